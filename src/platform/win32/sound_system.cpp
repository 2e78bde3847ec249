// The system's own MP3 playback behind the calls of the soundtrack: one stream, played by the media
// control interface, silent on device 0 or where the file cannot be played.
#include <string>

#include "platform/win32/sound.h"
#include "platform/win32/win32_calls.h"

namespace ombrel {

namespace {

constexpr std::uint32_t kStream = 1; // the only handle

// Written by the calls below: whether an output device is open, and the stream on it.
constinit bool deviceOpen = false;
constinit bool streamOpen = false;

int Command(const std::wstring& command) {
    return win32Calls.mciSendString(command.c_str(), nullptr, 0, nullptr) == 0 ? 1 : 0;
}

std::uint32_t GetVersionWanted() {
    return kSoundVersion << 16;
}

// The frequency is the driver's own affair here.
int InitDevice(std::int32_t device, std::uint32_t) {
    deviceOpen = device != 0 && win32Calls.waveOutGetNumDevs() != 0;
    return device == 0 || deviceOpen ? 1 : 0;
}

std::uint32_t OpenStream(const char* path) {
    // The player wants a whole path with backslashes. The name itself is plain ASCII.
    const std::wstring relative(path, path + std::char_traits<char>::length(path));
    wchar_t whole[MAX_PATH + 1] = L"";
    const DWORD length = GetFullPathNameW(relative.c_str(), MAX_PATH, whole, nullptr);
    if (!deviceOpen || length == 0 || length > MAX_PATH) {
        return 0;
    }
    const std::wstring command =
        L"open \"" + std::wstring(whole, length) + L"\" type mpegvideo alias ombrel";
    streamOpen = Command(command) != 0;
    return streamOpen ? kStream : 0;
}

int PlayStream(std::uint32_t, int restart) {
    return streamOpen ? Command(restart ? L"play ombrel from 0" : L"play ombrel") : 0;
}

int StopStream(std::uint32_t) {
    return streamOpen ? Command(L"stop ombrel") : 0;
}

int CloseStream(std::uint32_t) {
    const int closed = streamOpen ? Command(L"close ombrel") : 0;
    streamOpen = false;
    return closed;
}

int CloseDevice() {
    CloseStream(kStream);
    deviceOpen = false;
    return 1;
}

constexpr SoundCalls kSystemSound = {GetVersionWanted, InitDevice,  OpenStream, PlayStream,
                                     StopStream,       CloseStream, CloseDevice};

} // namespace

const SoundCalls* SystemSound() {
    return &kSystemSound;
}

} // namespace ombrel
