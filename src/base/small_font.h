// A font of 5 x 7 pixels that is there without any file: letters, figures and a few marks. Callers:
// the boxes of the SDL2 back end, the labels of the tools.
#pragma once

#include <cstdint>

namespace ombrel {

inline constexpr std::int32_t kSmallLetterWidth = 6; // pixels; one column of gap included
inline constexpr std::int32_t kSmallLetterHeight = 7;

// Whether a letter has its pixel (x, y) set, counted from its top left corner. False outside the
// letter, and everywhere for characters without a picture.
bool SmallLetterPixel(char letter, std::int32_t x, std::int32_t y);

} // namespace ombrel
