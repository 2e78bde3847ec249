// Rectangles in pixels, and the clip rectangle of the fillers.
#pragma once

#include <cstdint>

namespace ombrel {

// Right and bottom are exclusive.
struct Rect {
    std::int32_t left, top, right, bottom;
};

// What every filler clips to: left = top = 0, right = frame width, bottom = frame height.
// Written by OpenDisplay (and by tests); read by the fillers and the clipper of the scene pipeline.
extern Rect clipRect;
void ResetClipRect(); // 0, 0, 640, 480

} // namespace ombrel
