// Lines, points and filled rectangles: integers only.
#include "demo/primitives.h"

#include <algorithm>
#include <cstddef>

namespace ombrel {

namespace {

// Sides of the clip rectangle that a point is beyond.
constexpr std::uint32_t kLeft = 1;
constexpr std::uint32_t kRight = 2;
constexpr std::uint32_t kAbove = 4;
constexpr std::uint32_t kBelow = 8;

// Coordinates are cut to this before products of two differences are formed in 64 bits.
constexpr std::int32_t kFarthest = 1 << 30;

std::uint32_t SidesBeyond(std::int32_t x, std::int32_t y, const Rect& clip) {
    return (x < clip.left ? kLeft : 0) | (x >= clip.right ? kRight : 0) |
           (y < clip.top ? kAbove : 0) | (y >= clip.bottom ? kBelow : 0);
}

// a * b / c to the nearest integer, halves away from zero.
std::int32_t MulDivNearest(std::int64_t a, std::int64_t b, std::int64_t c) {
    const std::int64_t product = a * b;
    const std::int64_t half = (c < 0 ? -c : c) / 2;
    return static_cast<std::int32_t>((product < 0 ? product - half : product + half) / c);
}

std::int32_t Bounded(std::int32_t value) {
    return std::clamp(value, -kFarthest, kFarthest);
}

} // namespace

int DrawLine(const Line2d& line, Pixel16 color, Pixel16* pixels, std::int32_t pitch) {
    if (pixels == nullptr) {
        return 1;
    }
    const std::ptrdiff_t rowStep = pitch >> 1;
    const std::ptrdiff_t xStep = line.x1 >= line.x0 ? 1 : -1;
    const std::ptrdiff_t yStep = line.y1 >= line.y0 ? rowStep : -rowStep;
    const std::int32_t dx = line.x1 >= line.x0 ? line.x1 - line.x0 : line.x0 - line.x1;
    const std::int32_t dy = line.y1 >= line.y0 ? line.y1 - line.y0 : line.y0 - line.y1;

    // The longer direction is stepped for every pixel, the other when the error says so.
    // REQUIRED R48: the exact diagonal counts as steep.
    const bool steep = dx <= dy;
    const std::int32_t longer = steep ? dy : dx;
    const std::int32_t shorter = steep ? dx : dy;
    const std::ptrdiff_t alongStep = steep ? yStep : xStep;
    const std::ptrdiff_t acrossStep = steep ? xStep : yStep;
    std::ptrdiff_t at = line.y0 * rowStep + line.x0;
    std::int32_t error = 2 * shorter - longer;
    for (std::int32_t i = 0; i <= longer; ++i) {
        pixels[at] = color;
        if (error >= 0) {
            at += acrossStep;
            error -= 2 * longer;
        }
        at += alongStep;
        error += 2 * shorter;
    }
    return 1;
}

bool ClipLine(Line2d* line, const Rect& clip) {
    if (clip.left >= clip.right || clip.top >= clip.bottom) {
        return false;
    }
    line->x0 = Bounded(line->x0);
    line->y0 = Bounded(line->y0);
    line->x1 = Bounded(line->x1);
    line->y1 = Bounded(line->y1);
    const Line2d whole = *line;
    const std::int64_t dx = static_cast<std::int64_t>(whole.x1) - whole.x0;
    const std::int64_t dy = static_cast<std::int64_t>(whole.y1) - whole.y0;

    // Each turn moves one end onto one side of the rectangle, always along the whole line, so that
    // no error adds up. A cut that rounds to a place beyond another side is cut there next.
    for (int turn = 0; turn < 8; ++turn) {
        const std::uint32_t sides0 = SidesBeyond(line->x0, line->y0, clip);
        const std::uint32_t sides1 = SidesBeyond(line->x1, line->y1, clip);
        if ((sides0 | sides1) == 0) {
            return true;
        }
        if ((sides0 & sides1) != 0) {
            return false;
        }
        const bool first = sides0 != 0;
        const std::uint32_t sides = first ? sides0 : sides1;
        std::int32_t* const x = first ? &line->x0 : &line->x1;
        std::int32_t* const y = first ? &line->y0 : &line->y1;
        if ((sides & (kAbove | kBelow)) != 0) {
            *y = (sides & kAbove) != 0 ? clip.top : clip.bottom - 1;
            *x = whole.x0 + MulDivNearest(static_cast<std::int64_t>(*y) - whole.y0, dx, dy);
        } else {
            *x = (sides & kLeft) != 0 ? clip.left : clip.right - 1;
            *y = whole.y0 + MulDivNearest(static_cast<std::int64_t>(*x) - whole.x0, dy, dx);
        }
    }
    return false;
}

int DrawClippedLine(const Line2d& line, Pixel16 color, const Canvas& canvas) {
    Line2d clipped = line;
    return ClipLine(&clipped, canvas.clip) ? DrawLine(clipped, color, canvas.pixels, canvas.pitch)
                                           : 1;
}

int PlotPixel(std::int32_t x, std::int32_t y, Pixel16 color, const Canvas& canvas) {
    if (canvas.pixels != nullptr && SidesBeyond(x, y, canvas.clip) == 0) {
        canvas.pixels[static_cast<std::ptrdiff_t>(y) * (canvas.pitch >> 1) + x] = color;
    }
    return 1;
}

int FillSurfaceRect(const Line2d& corners, Pixel16 color, Surface* surface) {
    const Rect rectangle{corners.x0, corners.y0, corners.x1, corners.y1};
    FillSurface(surface, color, &rectangle);
    return 1;
}

} // namespace ombrel
