// The small font, enlarged.
#include "overlay.h"

#include <algorithm>

#include "base/small_font.h"
#include "platform/sdl2/sdl2_calls.h"

namespace player {

using ombrel::sdl;

void FillBox(const Brush& brush, const SDL_Rect& box, Ink ink) {
    sdl.SetRenderDrawColor(brush.renderer, ink.r, ink.g, ink.b, ink.a);
    sdl.RenderFillRect(brush.renderer, &box);
}

int TextWidth(const Brush& brush, const std::string& text) {
    return static_cast<int>(text.size()) * ombrel::kSmallLetterWidth * brush.scale;
}

int LineHeight(const Brush& brush) {
    return (ombrel::kSmallLetterHeight + 3) * brush.scale;
}

void DrawText(const Brush& brush, int x, int y, const std::string& text, Ink ink) {
    std::vector<SDL_Rect> dots;
    for (const char letter : text) {
        for (int line = 0; line < ombrel::kSmallLetterHeight; ++line) {
            for (int column = 0; column < ombrel::kSmallLetterWidth; ++column) {
                if (ombrel::SmallLetterPixel(letter, column, line)) {
                    dots.push_back({x + column * brush.scale, y + line * brush.scale, brush.scale,
                                    brush.scale});
                }
            }
        }
        x += ombrel::kSmallLetterWidth * brush.scale;
    }
    sdl.SetRenderDrawColor(brush.renderer, ink.r, ink.g, ink.b, ink.a);
    sdl.RenderFillRects(brush.renderer, dots.data(), static_cast<int>(dots.size()));
}

void DrawPanel(const Brush& brush, int x, int y, int windowWidth, const std::vector<Line>& lines) {
    const int border = 5 * brush.scale;
    int width = 0;
    for (const Line& line : lines) {
        width = std::max(width, TextWidth(brush, line.text));
    }
    const int left = x >= 0 ? x : windowWidth + x - width - 2 * border;
    const int height = static_cast<int>(lines.size()) * LineHeight(brush) + 2 * border;
    FillBox(brush, {left, y, width + 2 * border, height}, kShade);
    int at = y + border;
    for (const Line& line : lines) {
        DrawText(brush, left + border, at, line.text, line.ink);
        at += LineHeight(brush);
    }
}

} // namespace player
