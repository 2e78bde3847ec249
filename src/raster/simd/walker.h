// The twin of raster/walker.h: all slots of an edge in one vector. The letters are those of the
// drawing there. Part of fillers.h.
#pragma once

#include "raster/simd/lanes.h"

namespace ombrel {
namespace {

template <class Slots> struct Corners {
    Quad y; // three
    Slots slots[3];
};

struct RowRange {
    std::int32_t first, last; // last excluded
};

// Corner numbers from top to bottom; equal ones keep their order. Bits of the index: 1 stands above
// 0, 2 above 1, 2 above 0.
constexpr std::uint8_t kOrder[8][3] = {{0, 1, 2}, {1, 0, 2}, {0, 2, 1}, {1, 2, 0},
                                       {0, 1, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}};

// Calls drawSpan(left, right) for each row, top to bottom, with the slots of both edges.
template <class Slots, class DrawSpan>
[[gnu::always_inline]] inline void WalkTriangle(const Corners<Slots>& corners, RowRange rows,
                                                DrawSpan drawSpan) {
    // Order the corners top to bottom.
    const Quad one = Pick<1, 2, 2, 0>(corners.y, corners.y);
    const Quad other = Pick<0, 1, 0, 0>(corners.y, corners.y);
    const std::uint8_t* order = kOrder[SignsOf(one < other)];
    std::int32_t y[4];
    Store(y, corners.y);
    const Slots top = corners.slots[order[0]];
    const Slots middle = corners.slots[order[1]];
    const Slots bottom = corners.slots[order[2]];
    const std::int32_t topY = y[order[0]], middleY = y[order[1]], bottomY = y[order[2]];
    const bool flatTop = topY == middleY; // d

    // Divide for the steps of all three edges; those of an edge without rows are never used.
    const Slots longStep = ScaleChop(bottom - top, ReciprocalOfLength(bottomY - topY));
    const Slots upperStep = ScaleChop(middle - top, ReciprocalOfLength(middleY - topY));
    const Slots lowerStep = ScaleChop(bottom - middle, ReciprocalOfLength(bottomY - middleY));

    // Choose the sides. (f: over equal rows, slopes differ where the lower ends do.)
    const bool longOnLeft = flatTop ? top[kX] <= middle[kX] : longStep[kX] < upperStep[kX];
    const Slots side = Slots{} - static_cast<std::int32_t>(longOnLeft);

    // The upper short edge serves the row of the middle corner too (a); where it has no row, the
    // lower one begins at once (c, d).
    const bool onlyLower = flatTop || middleY < rows.first;
    const std::int32_t turn = onlyLower                 ? rows.first
                              : middleY + 1 < rows.last ? middleY + 1
                                                        : rows.last;
    const Slots longSlots = top + longStep * (rows.first - topY);
    Slots shortStep = onlyLower ? lowerStep : upperStep;
    Slots shortSlots = onlyLower ? middle + lowerStep * (rows.first - middleY)
                                 : top + upperStep * (rows.first - topY);
    Slots left = Either(side, longSlots, shortSlots), right = Either(side, shortSlots, longSlots);
    std::int32_t row = rows.first;
    for (std::int32_t end = onlyLower ? rows.last : turn;; end = rows.last) {
        const Slots leftStep = Either(side, longStep, shortStep);
        const Slots rightStep = Either(side, shortStep, longStep);
        for (; row < end; ++row) {
            drawSpan(left, right);
            left += leftStep;
            right += rightStep;
        }
        if (row >= rows.last) {
            return;
        }
        // Turn at the middle corner: one step has been taken there already. (b)
        shortStep = lowerStep;
        shortSlots = middle + lowerStep;
        left = Either(side, left, shortSlots);
        right = Either(side, shortSlots, right);
    }
}

} // namespace
} // namespace ombrel
