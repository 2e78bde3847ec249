// The sound table over an SDL2 device: one stream at a time, played once. The silent device answers
// like a real one and plays nothing. The device asks for samples on a thread of its own; there and
// in the libraries the rounding is that of a fresh process, not the one of the renderer.
#include <algorithm>
#include <cstring>

#include "base/data_file.h"
#include "base/float_mode.h"
#include "platform/sdl2/mp3_stream.h"
#include "platform/sdl2/quiet.h"
#include "platform/sdl2/say.h"
#include "platform/sdl2/sdl2_calls.h"
#include "platform/sound.h"

namespace ombrel {

namespace {

constexpr std::int32_t kSilentDevice = 0;
constexpr std::uint32_t kStream = 1; // the one handle
constexpr Uint8 kChannels = 2;
constexpr Uint16 kBufferSamples = 2048;

// Everything but device is shared with the device's thread, under its lock.
struct SoundState {
    SDL_AudioDeviceID device; // 0: none open
    int rate;                 // of the device
    bool playing;
    Mp3Stream music;
    SDL_AudioStream* converted; // the music as the device wants it; null: no stream
};
constinit SoundState sound{};

class DeviceLock {
public:
    DeviceLock() { sdl.LockAudioDevice(sound.device); }
    ~DeviceLock() { sdl.UnlockAudioDevice(sound.device); }
    DeviceLock(const DeviceLock&) = delete;
    DeviceLock& operator=(const DeviceLock&) = delete;
};

// On the device's thread, under its lock: what the device plays next.
void SDLCALL FillBuffer(void*, Uint8* out, int size) {
    const ScopedFloatMode usual(FloatMode::Nearest);
    int filled = 0;
    if (sound.playing) {
        short samples[kMp3FrameSamples * 2];
        while (sdl.AudioStreamAvailable(sound.converted) < size) {
            const std::int32_t count = ReadMp3(&sound.music, samples);
            if (count == 0) {
                sdl.AudioStreamFlush(sound.converted);
                break;
            }
            const auto bytes = static_cast<std::size_t>(count * sound.music.channels) * 2;
            sdl.AudioStreamPut(sound.converted, samples, static_cast<int>(bytes));
        }
        filled = std::max(sdl.AudioStreamGet(sound.converted, out, size), 0);
        sound.playing = filled > 0;
    }
    std::memset(out + filled, 0, static_cast<std::size_t>(size - filled));
}

bool OpenDevice(std::uint32_t frequency) {
    SDL_AudioSpec wanted{};
    wanted.freq = static_cast<int>(frequency);
    wanted.format = AUDIO_S16SYS;
    wanted.channels = kChannels;
    wanted.samples = kBufferSamples;
    wanted.callback = FillBuffer;
    sound.rate = wanted.freq;
    // The libraries below SDL have much to say about a device that is not there.
    const QuietErrors quiet;
    const ScopedFloatMode usual(FloatMode::Nearest);
    if (sdl.InitSubSystem(SDL_INIT_AUDIO) != 0) {
        return false;
    }
    sound.device = sdl.OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
    if (sound.device == 0) {
        sdl.QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    sdl.PauseAudioDevice(sound.device, 0);
    return true;
}

std::uint32_t GetVersion() {
    return kSoundVersion << 16;
}

int Init(std::int32_t device, std::uint32_t frequency) {
    if (device == kSilentDevice || OpenDevice(frequency)) {
        return 1;
    }
    Say("there is no sound device (%s)", sdl.GetError());
    return 0;
}

std::uint32_t StreamCreateFile(const char* path) {
    const std::string file = FindDataFile(path);
    if (sound.device == 0 || sound.converted != nullptr) {
        return 0;
    }
    const ScopedFloatMode usual(FloatMode::Nearest);
    if (file.empty()) {
        SayMissing(path);
        return 0;
    }
    if (!OpenMp3(&sound.music, file.c_str())) {
        Say("%s is no MP3 file that can be played", file.c_str());
        return 0;
    }
    sound.converted = sdl.NewAudioStream(AUDIO_S16SYS, static_cast<Uint8>(sound.music.channels),
                                         sound.music.rate, AUDIO_S16SYS, kChannels, sound.rate);
    if (sound.converted == nullptr) {
        CloseMp3(&sound.music);
        return 0;
    }
    return kStream;
}

int ChannelPlay(std::uint32_t stream, int restart) {
    (void)restart; // the stream is at its start anyway
    if (stream != kStream || sound.converted == nullptr) {
        return 0;
    }
    const DeviceLock lock;
    sound.playing = true;
    return 1;
}

int ChannelStop(std::uint32_t stream) {
    if (stream != kStream || sound.converted == nullptr) {
        return 0;
    }
    const DeviceLock lock;
    sound.playing = false;
    return 1;
}

int SampleFree(std::uint32_t stream) {
    if (stream != kStream || sound.converted == nullptr) {
        return 0;
    }
    const DeviceLock lock;
    sound.playing = false;
    sdl.FreeAudioStream(sound.converted);
    sound.converted = nullptr;
    CloseMp3(&sound.music);
    return 1;
}

int Free() {
    if (sound.device != 0) {
        sdl.CloseAudioDevice(sound.device);
        sdl.QuitSubSystem(SDL_INIT_AUDIO);
        sound.device = 0;
    }
    SampleFree(kStream); // plays nowhere now
    return 1;
}

constexpr SoundCalls kDeviceSound{GetVersion, Init, StreamCreateFile, ChannelPlay, ChannelStop,
                                  SampleFree, Free};

} // namespace

const SoundCalls* BackEndSound() {
    return &kDeviceSound;
}

} // namespace ombrel
