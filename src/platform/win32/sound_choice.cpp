// Chooses the sound table once: the library beside the program, else the system's own playback.
#include "platform/win32/sound.h"

namespace ombrel {

namespace {

constinit const SoundCalls* chosen = nullptr;

} // namespace

const SoundCalls* BackEndSound() {
    if (!chosen) {
        chosen = LoadBassSound();
    }
    if (!chosen) {
        chosen = SystemSound();
    }
    return chosen;
}

void ResetWin32Sound() {
    chosen = nullptr;
}

} // namespace ombrel
