// Labels of the gallery and the inspector, in the small font.
#pragma once

#include <string_view>

#include "base/small_font.h"
#include "sheet.h"

namespace gallery {

inline constexpr std::int32_t kLetterWidth = ombrel::kSmallLetterWidth; // gap included
inline constexpr std::int32_t kLetterHeight = ombrel::kSmallLetterHeight;

// Draws from (x, y), the top left pixel of the first letter. Characters without a glyph are blank.
void DrawText(Sheet* sheet, std::int32_t x, std::int32_t y, std::string_view text,
              ombrel::Pixel16 color);

} // namespace gallery
