// One turn of the picture: scene, crosshair, presentation, frame cap, counters, Escape. Works on
// `driver` and `display`. Caller: the message loop.
#pragma once

#include <cstdint>

namespace ombrel {

inline constexpr std::uint32_t kFrameMs = 25; // 40 frames per second at most

std::uint32_t TickNow(); // ms, wraps at 2^32
void FrameClockStart();  // stores the tick in driver.frameStartTick
// Reads the clock until at least ms have passed since FrameClockStart; returns a fresh tick. Never
// sleeps itself; between two reads it leaves the back end a chance to (NapBeforeFrame).
std::uint32_t FrameClockWait(std::uint32_t ms);

int RenderFrame(); // 1

} // namespace ombrel
