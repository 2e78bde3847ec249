// Lines, points and filled rectangles on 16-bit pixels. Coordinates are whole pixels, +y down; a
// pitch is in bytes. Callers: the crosshair of the frame driver, the wire and dot views, scene two.
#pragma once

#include <cstdint>

#include "base/pixel16.h"
#include "platform/display.h"

namespace ombrel {

struct Line2d {
    std::int32_t x0, y0, x1, y1;
};

// Pixels to draw on, and the part of them that may be drawn on; right and bottom are exclusive.
struct Canvas {
    Pixel16* pixels;
    std::int32_t pitch; // bytes
    Rect clip;
};

// Bresenham's line, both ends drawn, no clipping: both ends must lie inside the pixels. Returns 1.
int DrawLine(const Line2d& line, Pixel16 color, Pixel16* pixels, std::int32_t pitch);

// The part of the line inside the clip rectangle, found on whole pixels (cuts rounded half away
// from zero) and then drawn by DrawLine. Any coordinates. Returns 1, also when nothing is drawn.
int DrawClippedLine(const Line2d& line, Pixel16 color, const Canvas& canvas);

// Cuts the line to the pixels of the rectangle; false when no part of it is inside (then the line
// is left half cut).
bool ClipLine(Line2d* line, const Rect& clip);

// One pixel, if it is inside the clip rectangle. Returns 1.
int PlotPixel(std::int32_t x, std::int32_t y, Pixel16 color, const Canvas& canvas);

// Fills x0 <= x < x1, y0 <= y < y1 by the display's own fill; the surface must be unlocked. Returns
// 1, whatever became of it.
int FillSurfaceRect(const Line2d& corners, Pixel16 color, Surface* surface);

} // namespace ombrel
