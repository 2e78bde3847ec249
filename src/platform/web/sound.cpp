// No sound of ours: the browser decodes and plays the soundtrack. Every call answers as a silent
// device would.
#include "platform/sound.h"

namespace ombrel {

namespace {

std::uint32_t GetVersion() {
    return kSoundVersion << 16;
}
int Init(std::int32_t, std::uint32_t) {
    return 1;
}
std::uint32_t StreamCreateFile(const char*) {
    return 0;
}
int ChannelPlay(std::uint32_t, int) {
    return 0;
}
int OfStream(std::uint32_t) {
    return 0;
}
int Free() {
    return 1;
}

constexpr SoundCalls kSilentSound{GetVersion, Init, StreamCreateFile, ChannelPlay, OfStream,
                                  OfStream,   Free};

} // namespace

const SoundCalls* BackEndSound() {
    return &kSilentSound;
}

} // namespace ombrel
