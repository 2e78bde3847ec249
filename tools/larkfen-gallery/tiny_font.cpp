// The letters of the small font as pixels of a sheet.
#include "tiny_font.h"

namespace gallery {

namespace {

void DrawGlyph(Sheet* sheet, std::int32_t x, std::int32_t y, char letter, ombrel::Pixel16 color) {
    for (std::int32_t line = 0; line < kLetterHeight; ++line) {
        for (std::int32_t column = 0; column < kLetterWidth; ++column) {
            if (ombrel::SmallLetterPixel(letter, column, line)) {
                *sheet->At(x + column, y + line) = color;
            }
        }
    }
}

} // namespace

void DrawText(Sheet* sheet, std::int32_t x, std::int32_t y, std::string_view text,
              ombrel::Pixel16 color) {
    for (const char letter : text) {
        DrawGlyph(sheet, x, y, letter, color);
        x += kLetterWidth;
    }
}

} // namespace gallery
