// The sound table over SDL2_mixer: one stream at a time, played once. The silent device answers
// like a real one and plays nothing. Threads that the mixer starts get the rounding that a process
// starts with, not the one of the renderer.
#include <SDL.h>
#include <SDL_mixer.h>

#include "base/data_file.h"
#include "base/float_mode.h"
#include "platform/sound.h"

namespace ombrel {

namespace {

constexpr std::int32_t kSilentDevice = 0;
constexpr std::uint32_t kStream = 1; // the one handle
constexpr int kChannels = 2;
constexpr int kBufferSamples = 2048;

struct MixerState {
    bool open; // a real device
    Mix_Music* music;
};
constinit MixerState mixer{};

std::uint32_t GetVersion() {
    return kSoundVersion << 16;
}

int Init(std::int32_t device, std::uint32_t frequency) {
    if (device == kSilentDevice) {
        return 1;
    }
    const ScopedFloatMode usual(FloatMode::Nearest);
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
        return 0;
    }
    if (Mix_OpenAudio(static_cast<int>(frequency), AUDIO_S16SYS, kChannels, kBufferSamples) != 0) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return 0;
    }
    mixer.open = true;
    return 1;
}

std::uint32_t StreamCreateFile(const char* path) {
    const std::string file = FindDataFile(path);
    if (!mixer.open || file.empty()) {
        return 0;
    }
    const ScopedFloatMode usual(FloatMode::Nearest);
    mixer.music = Mix_LoadMUS(file.c_str());
    return mixer.music != nullptr ? kStream : 0;
}

int ChannelPlay(std::uint32_t stream, int restart) {
    (void)restart; // the stream is at its start anyway
    if (stream != kStream || mixer.music == nullptr) {
        return 0;
    }
    const ScopedFloatMode usual(FloatMode::Nearest);
    return Mix_PlayMusic(mixer.music, 1) == 0 ? 1 : 0;
}

int ChannelStop(std::uint32_t stream) {
    if (stream != kStream || mixer.music == nullptr) {
        return 0;
    }
    Mix_HaltMusic();
    return 1;
}

int SampleFree(std::uint32_t stream) {
    if (stream != kStream || mixer.music == nullptr) {
        return 0;
    }
    Mix_FreeMusic(mixer.music);
    mixer.music = nullptr;
    return 1;
}

int Free() {
    if (mixer.open) {
        Mix_CloseAudio();
        Mix_Quit();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        mixer.open = false;
    }
    return 1;
}

constexpr SoundCalls kMixerSound{GetVersion, Init, StreamCreateFile, ChannelPlay, ChannelStop,
                                 SampleFree, Free};

} // namespace

const SoundCalls* BackEndSound() {
    return &kMixerSound;
}

} // namespace ombrel
