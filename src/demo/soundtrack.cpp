// The calls of the soundtrack, in their order.
#include "demo/soundtrack.h"

#include "platform/sound.h"
#include "platform/system.h"

namespace ombrel {

namespace {

constexpr std::int32_t kDefaultDevice = -1;
constexpr std::int32_t kSilentDevice = 0;
constexpr std::uint32_t kFrequency = 44100;

} // namespace

constinit SoundtrackState soundtrack = {};

void ResetSoundtrack() {
    soundtrack = {};
}

void StartSoundtrack() {
    const SoundCalls& calls = *Sound();
    if (calls.getVersion() >> 16 != kSoundVersion) {
        ShowMessage("An incorrect version of BASS.DLL was loaded", MessageKind::Error);
    }
    if (calls.init(kDefaultDevice, kFrequency) == 0) {
        ShowMessage("Couldn't initialize sound device...", MessageKind::Ok);
        calls.init(kSilentDevice, kFrequency);
    }
    soundtrack.stream = calls.streamCreateFile("./data/sfx/soundtrack.mp3");
    calls.channelPlay(soundtrack.stream, 0);
}

void StopSoundtrack() {
    const SoundCalls& calls = *Sound();
    calls.channelStop(soundtrack.stream);
    // REQUIRED R46: released as a sample, then the library is closed.
    calls.sampleFree(soundtrack.stream);
    calls.free();
}

} // namespace ombrel
