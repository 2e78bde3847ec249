// Rectangles in pixels.
#pragma once

#include <cstdint>

namespace ombrel {

// Right and bottom are exclusive.
struct Rect {
    std::int32_t left, top, right, bottom;
};

} // namespace ombrel
