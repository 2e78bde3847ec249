// BASS.dll, version 2.3, reached when the program runs: our own declarations of the seven functions
// that the soundtrack needs. Offsets and lengths of files are 32-bit.
#include <cstring>
#include <string>

#include "platform/win32/sound.h"
#include "platform/win32/win32_calls.h"
#include "platform/win32/win32_state.h"

namespace ombrel {

namespace {

// clang-format off
struct BassFunctions {
    DWORD (WINAPI* getVersion)();
    BOOL  (WINAPI* init)(int device, DWORD frequency, DWORD flags, HWND window, const GUID* guid);
    DWORD (WINAPI* streamCreateFile)(BOOL memory, const void* file, DWORD offset, DWORD length,
                                     DWORD flags);
    BOOL  (WINAPI* channelPlay)(DWORD handle, BOOL restart);
    BOOL  (WINAPI* channelStop)(DWORD handle);
    BOOL  (WINAPI* sampleFree)(DWORD handle);
    BOOL  (WINAPI* free)();
};
// clang-format on

// Written by LoadBassSound.
constinit BassFunctions bass{};

std::uint32_t GetVersionOfBass() {
    return bass.getVersion();
}
int InitBass(std::int32_t device, std::uint32_t frequency) {
    return bass.init(device, frequency, 0, win32State.window, nullptr);
}
std::uint32_t CreateBassStream(const char* path) {
    return bass.streamCreateFile(0, path, 0, 0, 0);
}
int PlayBassChannel(std::uint32_t stream, int restart) {
    return bass.channelPlay(stream, restart);
}
int StopBassChannel(std::uint32_t stream) {
    return bass.channelStop(stream);
}
int FreeBassSample(std::uint32_t stream) {
    return bass.sampleFree(stream);
}
int FreeBass() {
    return bass.free();
}

constexpr SoundCalls kBassSound = {GetVersionOfBass, InitBass,        CreateBassStream,
                                   PlayBassChannel,  StopBassChannel, FreeBassSample,
                                   FreeBass};

// Fills one function pointer by name; false when the library has no such function.
template <class Function> bool Find(HMODULE library, const char* name, Function* function) {
    FARPROC found = win32Calls.getProcAddress(library, name);
    static_assert(sizeof(found) == sizeof(*function));
    std::memcpy(function, &found, sizeof(found));
    return found != nullptr;
}

} // namespace

const SoundCalls* LoadBassSound() {
    wchar_t program[MAX_PATH + 1] = L"";
    const DWORD length = GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring path(program, length);
    path.resize(path.find_last_of(L'\\') + 1);
    path += L"BASS.dll";
    HMODULE library = win32Calls.loadLibrary(path.c_str());
    if (!library) {
        return nullptr;
    }
    const bool complete = Find(library, "BASS_GetVersion", &bass.getVersion) &&
                          Find(library, "BASS_Init", &bass.init) &&
                          Find(library, "BASS_StreamCreateFile", &bass.streamCreateFile) &&
                          Find(library, "BASS_ChannelPlay", &bass.channelPlay) &&
                          Find(library, "BASS_ChannelStop", &bass.channelStop) &&
                          Find(library, "BASS_SampleFree", &bass.sampleFree) &&
                          Find(library, "BASS_Free", &bass.free);
    return complete ? &kBassSound : nullptr;
}

} // namespace ombrel
