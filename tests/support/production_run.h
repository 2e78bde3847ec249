// The production over the offscreen back end, from its command line to its exit code, with a look
// at every presented frame.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/offscreen/offscreen.h"

namespace ombrel {

// A frame as it was presented, together with the state that the production has at that moment.
struct RunFrame {
    std::int64_t number; // of the production, from 0
    const PresentedFrame& shown;
};
using LookAtFrame = std::function<void(const RunFrame&)>;

// Program and back end as when the process started; frames of exactly 25 ms. Runs take the plain
// code, unless RASTER_USE names a path.
void ResetForRun();

// Resets, runs, leaves the state of the end in place. Returns the exit code.
int RunProductionForTest(const std::string& commandLine, const LookAtFrame& look);
// The same without the reset, for tests that set the script or the switches before.
int RunProductionAsItIs(const std::string& commandLine, const LookAtFrame& look);
// To be called by a look function: the frame it looks at is the last one.
void EndRunAfterThisFrame();

inline Pixel16 PixelOf(const PresentedFrame& shown, std::int32_t x, std::int32_t y) {
    const auto* row = reinterpret_cast<const unsigned char*>(shown.pixels) +
                      static_cast<std::ptrdiff_t>(y) * shown.pitch;
    return reinterpret_cast<const Pixel16*>(row)[x];
}

// To be called with every frame shown: after the 60th of scene two, the clock of its dot view and
// its scroller are set close to their ends, so that the long middle is left out.
void LeaveOutTheMiddle();

// Whether a text stands with its first cell at (x, y), drawn with a font of marks: every mark that
// falls inside the frame (8 pixels of border excluded when border is set) has its value. A text
// without any such mark is not there.
struct TextSpot {
    std::int32_t x, y, advance;
    std::uint16_t mark;
    bool border;
};
bool TextStandsAt(const PresentedFrame& shown, const TextSpot& spot, const char* text);

} // namespace ombrel
