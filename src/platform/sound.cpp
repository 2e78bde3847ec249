// Which sound table is in force: the one that a test or a tool put in place, else the back end's.
#include "platform/sound.h"

namespace ombrel {

namespace {

constinit const SoundCalls* otherSound = nullptr;

} // namespace

const SoundCalls* Sound() {
    return otherSound != nullptr ? otherSound : BackEndSound();
}

void UseSoundCalls(const SoundCalls* calls) {
    otherSound = calls;
}

} // namespace ombrel
