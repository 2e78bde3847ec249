// A stand-in for BASS.dll that plays nothing: it writes each call with its arguments into
// bass-calls.txt of the working directory. Built three times: with the right version, with a wrong
// one (BASS_VERSION) and with a default device that cannot be opened (BASS_NO_DEVICE).
#include <windows.h>

#include <cstdarg>
#include <cstdio>

#ifndef BASS_VERSION
#define BASS_VERSION 0x02030003
#endif
#ifndef BASS_NO_DEVICE
#define BASS_NO_DEVICE 0
#endif

namespace {

constexpr DWORD kStream = 0x51;

__attribute__((format(printf, 1, 2))) void Note(const char* format, ...) {
    std::FILE* file = std::fopen("bass-calls.txt", "a");
    if (!file) {
        return;
    }
    std::va_list arguments;
    va_start(arguments, format);
    std::vfprintf(file, format, arguments);
    va_end(arguments);
    std::fputc('\n', file);
    std::fclose(file);
}

} // namespace

extern "C" {

__declspec(dllexport) DWORD WINAPI BASS_GetVersion() {
    Note("BASS_GetVersion");
    return BASS_VERSION;
}

__declspec(dllexport) BOOL WINAPI
    BASS_Init(int device, DWORD frequency, DWORD flags, HWND window, const GUID* guid) {
    char title[64] = "";
    GetWindowTextA(window, title, sizeof(title));
    Note("BASS_Init %d %lu %lu \"%s\" %s", device, frequency, flags, title, guid ? "guid" : "null");
    return BASS_NO_DEVICE && device == -1 ? FALSE : TRUE;
}

__declspec(dllexport) DWORD WINAPI
    BASS_StreamCreateFile(BOOL memory, const char* file, DWORD offset, DWORD length, DWORD flags) {
    Note("BASS_StreamCreateFile %d \"%s\" %lu %lu %lu", memory, file, offset, length, flags);
    return kStream;
}

__declspec(dllexport) BOOL WINAPI BASS_ChannelPlay(DWORD handle, BOOL restart) {
    Note("BASS_ChannelPlay %lx %d", handle, restart);
    return TRUE;
}

__declspec(dllexport) BOOL WINAPI BASS_ChannelStop(DWORD handle) {
    Note("BASS_ChannelStop %lx", handle);
    return TRUE;
}

__declspec(dllexport) BOOL WINAPI BASS_SampleFree(DWORD handle) {
    Note("BASS_SampleFree %lx", handle);
    return FALSE; // a stream is no sample
}

__declspec(dllexport) BOOL WINAPI BASS_Free() {
    Note("BASS_Free");
    return TRUE;
}
}
