// Letters and boxes over the picture, in pixels of the window.
#pragma once

#include <SDL.h>

#include <cstdint>
#include <string>
#include <vector>

namespace player {

struct Brush {
    SDL_Renderer* renderer;
    int scale; // pixels of the window a pixel of the font
};

struct Ink {
    Uint8 r, g, b, a;
};
inline constexpr Ink kInk = {255, 255, 255, 255};
inline constexpr Ink kFaint = {150, 150, 150, 255};
inline constexpr Ink kShade = {0, 0, 0, 190};
inline constexpr Ink kMark = {255, 190, 60, 255};

void FillBox(const Brush& brush, const SDL_Rect& box, Ink ink);
int TextWidth(const Brush& brush, const std::string& text); // pixels of the window
int LineHeight(const Brush& brush);
void DrawText(const Brush& brush, int x, int y, const std::string& text, Ink ink);

struct Line {
    std::string text;
    Ink ink;
};
// A shaded panel of lines with its top left corner at (x, y), or, where x is below 0, its top right
// corner that far from the right edge of a window of this width.
void DrawPanel(const Brush& brush, int x, int y, int windowWidth, const std::vector<Line>& lines);

} // namespace player
