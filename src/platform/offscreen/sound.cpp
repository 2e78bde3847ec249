// The silent sound table: every call is written down and answers as a library with a device would;
// the soundtrack counts as found when its file is there.
#include "base/data_file.h"
#include "platform/offscreen/offscreen.h"

namespace ombrel {

namespace {

constexpr std::uint32_t kStream = 1;

std::uint32_t GetVersion() {
    LogSeamCall("SoundGetVersion");
    return script.soundVersion;
}

int Init(std::int32_t device, std::uint32_t frequency) {
    LogSeamCall("SoundInit %d %u", device, frequency);
    const int opened = device == 0 || script.soundDevices > 0 ? 1 : 0;
    offscreen.soundOpen = opened != 0 ? 1 : offscreen.soundOpen;
    return opened;
}

std::uint32_t StreamCreateFile(const char* path) {
    LogSeamCall("SoundStreamCreateFile %s", path);
    return offscreen.soundOpen != 0 && !FindDataFile(path).empty() ? kStream : 0;
}

int ChannelPlay(std::uint32_t stream, int restart) {
    LogSeamCall("SoundChannelPlay %s %d", stream != 0 ? "stream" : "none", restart);
    offscreen.soundPlaying = stream != 0 ? 1 : 0;
    return offscreen.soundPlaying;
}

int ChannelStop(std::uint32_t stream) {
    LogSeamCall("SoundChannelStop %s", stream != 0 ? "stream" : "none");
    offscreen.soundPlaying = 0;
    return stream != 0 ? 1 : 0;
}

int SampleFree(std::uint32_t stream) {
    LogSeamCall("SoundSampleFree %s", stream != 0 ? "stream" : "none");
    return stream != 0 ? 1 : 0;
}

int Free() {
    LogSeamCall("SoundFree");
    offscreen.soundOpen = 0;
    return 1;
}

constexpr SoundCalls kSilentSound{GetVersion, Init, StreamCreateFile, ChannelPlay, ChannelStop,
                                  SampleFree, Free};

} // namespace

const SoundCalls* BackEndSound() {
    return &kSilentSound;
}

} // namespace ombrel
