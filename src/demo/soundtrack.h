// The soundtrack: one file, played once from start to end through the sound half of the seam.
// Nothing ties the pictures to it. Start-up starts it last, shut-down stops it; neither is called
// when the sound is switched off.
#pragma once

#include <cstdint>

namespace ombrel {

struct SoundtrackState {
    std::uint32_t stream; // 0: none. Written by StartSoundtrack, read by StopSoundtrack.
};
extern SoundtrackState soundtrack;
void ResetSoundtrack();

// Says by a box when the library has another version, and when there is no device; then the silent
// device is taken. A missing or broken file plays nothing and is not reported.
void StartSoundtrack();
void StopSoundtrack();

} // namespace ombrel
