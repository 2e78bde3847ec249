// Decoding ahead, and handing samples to the device.
#include "music.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <mutex>
#include <thread>
#include <vector>

#include "base/float_mode.h"
#include "platform/sdl2/mp3_stream.h"
#include "platform/sdl2/quiet.h"
#include "platform/sdl2/sdl2_calls.h"

namespace player {

namespace {

constexpr double kNear = 0.12; // seconds that sound and picture may be apart
constexpr Uint16 kBufferSamples = 1024;
constexpr std::int64_t kMostSamples = 44100 * 1200; // a channel

} // namespace

// lock guards samples, place and audible: the device, the decoder and the window meet there.
struct MusicState {
    SDL_AudioDeviceID device;
    ombrel::Mp3Stream stream; // the decoder's own, once it runs
    std::thread decoder;
    std::atomic<bool> stop;
    std::mutex lock;
    std::vector<short> samples; // decoded so far, channels interleaved
    std::int64_t place;         // sample a channel that the device takes next
    bool audible;
};

namespace {

void Decode(MusicState* state) {
    const ombrel::ScopedFloatMode usual(ombrel::FloatMode::Nearest);
    const auto channels = static_cast<std::size_t>(state->stream.channels);
    short frame[ombrel::kMp3FrameSamples * 2];
    while (!state->stop) {
        const std::int32_t count = ombrel::ReadMp3(&state->stream, frame);
        const std::lock_guard<std::mutex> guard(state->lock);
        const std::size_t size = static_cast<std::size_t>(count) * channels;
        if (count == 0 || state->samples.size() + size > state->samples.capacity()) {
            break;
        }
        state->samples.insert(state->samples.end(), frame, frame + size);
    }
}

// On the device's thread: what it plays next.
void SDLCALL FillBuffer(void* user, Uint8* out, int size) {
    auto* const state = static_cast<MusicState*>(user);
    std::memset(out, 0, static_cast<std::size_t>(size));
    const std::lock_guard<std::mutex> guard(state->lock);
    if (!state->audible) {
        return;
    }
    const std::int64_t channels = state->stream.channels;
    const std::int64_t wanted = size / (channels * 2);
    const std::int64_t decoded = static_cast<std::int64_t>(state->samples.size()) / channels;
    const std::int64_t count = std::clamp<std::int64_t>(decoded - state->place, 0, wanted);
    if (count > 0) {
        std::memcpy(out, state->samples.data() + state->place * channels,
                    static_cast<std::size_t>(count * channels) * 2);
    }
    state->place += wanted;
}

bool OpenDevice(MusicState* state) {
    SDL_AudioSpec wanted{};
    wanted.freq = state->stream.rate;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = static_cast<Uint8>(state->stream.channels);
    wanted.samples = kBufferSamples;
    wanted.callback = FillBuffer;
    wanted.userdata = state;
    // The libraries below SDL have much to say about a device that is not there.
    const ombrel::QuietErrors quiet;
    if (ombrel::sdl.InitSubSystem(SDL_INIT_AUDIO) != 0) {
        return false;
    }
    state->device = ombrel::sdl.OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
    if (state->device == 0) {
        ombrel::sdl.QuitSubSystem(SDL_INIT_AUDIO);
    }
    return state->device != 0;
}

} // namespace

void OpenMusic(Music* music, const std::string& path) {
    const ombrel::ScopedFloatMode usual(ombrel::FloatMode::Nearest);
    CloseMusic(music);
    auto state = std::make_shared<MusicState>();
    if (path.empty()) {
        std::fputs("larkfen-player: data/sfx/soundtrack.mp3 is missing; it is silent\n", stderr);
        return;
    }
    if (!ombrel::OpenMp3(&state->stream, path.c_str())) {
        std::fprintf(stderr, "larkfen-player: %s is no MP3 file that can be played; it is silent\n",
                     path.c_str());
        return;
    }
    if (!OpenDevice(state.get())) {
        std::fprintf(stderr, "larkfen-player: there is no sound device (%s); it is silent\n",
                     ombrel::sdl.GetError());
        ombrel::CloseMp3(&state->stream);
        return;
    }
    const std::int64_t known = state->stream.left + ombrel::kMp3FrameSamples;
    const std::int64_t most =
        state->stream.left >= 0 ? std::min(known, kMostSamples) : kMostSamples;
    state->samples.reserve(static_cast<std::size_t>(most * state->stream.channels));
    state->decoder = std::thread(Decode, state.get());
    music->state = std::move(state);
    ombrel::sdl.PauseAudioDevice(music->state->device, 0);
}

void CloseMusic(Music* music) {
    MusicState* const state = music->state.get();
    if (state == nullptr) {
        return;
    }
    ombrel::sdl.CloseAudioDevice(state->device);
    ombrel::sdl.QuitSubSystem(SDL_INIT_AUDIO);
    state->stop = true;
    state->decoder.join();
    ombrel::CloseMp3(&state->stream);
    music->state.reset();
}

void FollowShow(Music* music, double seconds, bool audible) {
    MusicState* const state = music->state.get();
    if (state == nullptr) {
        return;
    }
    const std::lock_guard<std::mutex> guard(state->lock);
    const double rate = state->stream.rate;
    const auto place = static_cast<std::int64_t>(std::floor(seconds * rate));
    const double apart = std::fabs(static_cast<double>(state->place - place)) / rate;
    if (!state->audible || apart > kNear) {
        state->place = place;
    }
    state->audible = audible;
}

} // namespace player
