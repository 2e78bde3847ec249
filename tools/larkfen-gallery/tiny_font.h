// A font of 5 x 7 pixels for the labels of the gallery: letters, figures and a few marks.
#pragma once

#include <string_view>

#include "sheet.h"

namespace gallery {

inline constexpr std::int32_t kLetterWidth = 6; // one column of gap included
inline constexpr std::int32_t kLetterHeight = 7;

// Draws from (x, y), the top left pixel of the first letter. Characters without a glyph are blank.
void DrawText(Sheet* sheet, std::int32_t x, std::int32_t y, std::string_view text,
              ombrel::Pixel16 color);

} // namespace gallery
