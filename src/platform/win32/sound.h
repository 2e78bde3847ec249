// The two sound tables of this back end, and which of them plays.
#pragma once

#include "platform/sound.h"

namespace ombrel {

// The calls of BASS.dll, loaded from the program's own folder; null when there is none there or it
// lacks one of the seven functions.
const SoundCalls* LoadBassSound();
// The system's own MP3 playback under the same calls; silent without an output device.
const SoundCalls* SystemSound();

void ResetWin32Sound(); // forgets the choice

} // namespace ombrel
