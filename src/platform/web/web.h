// The back end of the page: the picture in memory, no window, no sound, a clock that frames move.
// Used by entry_web.cpp.
#pragma once

#include <cstdint>

#include "base/pixel16.h"

namespace ombrel {

// width x height pixels at pixels, rows pitch bytes apart, as red, green, blue, 255 into out.
void ToRgba(const Pixel16* pixels, std::int32_t pitch, std::int32_t width, std::int32_t height,
            std::uint8_t* out);

// Messages, clock and cursor as at the start.
void ResetWeb();

} // namespace ombrel
