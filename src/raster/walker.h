// The triangle walker: from three corners to one span a row, for every filler and every lane set. A
// point is all attributes of one place; the first is x in 16.16, what the others mean is not known
// here. Arithmetic is 32-bit, wraps on overflow, and divides toward zero. Used by triangle.h.
//
//         T                 rows       edges          drawn
//        /|                 a          T-M and T-B    T.y up to and including M.y
//     a / | a               b          M-B and T-B    M.y + 1 up to B.y - 1
//      /  |
//     M   |                 T-----M                   T
//      \  |               d  \   / d               e / \ e
//     b \ | b                 \ /                   /   \         .
//        \|                    B                   M-----B
//         B
//
// c: rows above the clip rectangle are skipped; the edges start at its first row, steps multiplied.
// f: the edge of the smaller slope (flat triangles: of the smaller x) is on the left; equal: no
// swap.
#pragma once

#include <cstdint>

#include "lanes/inline.h"

namespace ombrel {
namespace {

// Rows to draw, last excluded.
struct RowRange {
    std::int32_t first, last;
};

// Corners from top to bottom, and what the three edges change by in a row; those of an edge without
// rows are never used.
template <class Point> struct Edges {
    Point top, middle, bottom;
    std::int32_t topY, middleY;
    Point longStep, upperStep, lowerStep;
    bool longOnLeft;
};

// Corner numbers from top to bottom; equal ones keep their order. Bits of the index: 1 stands above
// 0, 2 above 1, 2 above 0.
inline constexpr std::uint8_t kOrder[8][3] = {{0, 1, 2}, {1, 0, 2}, {0, 2, 1}, {1, 2, 0},
                                              {0, 1, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}};

// x, y: of the three corners, in pixels.
template <class L, bool mayWrap, class Point>
OMBREL_INLINE Edges<Point> MakeEdges(const Point (&corners)[3], typename L::Quad x,
                                     typename L::Quad y) {
    // Order the corners top to bottom.
    const typename L::Quad one = L::template Shuffle<1, 2, 2, 0>(y, y);
    const typename L::Quad other = L::template Shuffle<0, 1, 0, 0>(y, y);
    const std::uint8_t* order = kOrder[L::SignsOf(one < other)];
    std::int32_t xs[4], ys[4];
    L::StoreQuad(xs, x);
    L::StoreQuad(ys, y);
    Edges<Point> edges;
    edges.top = corners[order[0]];
    edges.middle = corners[order[1]];
    edges.bottom = corners[order[2]];
    edges.topY = ys[order[0]];
    edges.middleY = ys[order[1]];
    const std::int32_t bottomY = ys[order[2]];
    // Divide for the steps.
    edges.longStep = L::Divide(edges.bottom - edges.top, bottomY - edges.topY);
    edges.upperStep = L::Divide(edges.middle - edges.top, edges.middleY - edges.topY);
    edges.lowerStep = L::Divide(edges.bottom - edges.middle, bottomY - edges.middleY);
    // Choose the sides. (d, f; over equal rows, slopes differ where the lower ends do: e is a case
    // of its own only where differences wrap.)
    edges.longOnLeft = L::template Get<0>(edges.longStep) < L::template Get<0>(edges.upperStep);
    if (edges.topY == edges.middleY) {
        edges.longOnLeft = xs[order[0]] <= xs[order[1]];
    } else if (mayWrap && edges.middleY == bottomY) {
        edges.longOnLeft = xs[order[2]] < xs[order[1]];
    }
    return edges;
}

// Calls drawSpan(left, right) for each of the rows, top to bottom; they are rows of the triangle
// within the clip rectangle. Not all three y may be equal.
template <class L, class Point, class DrawSpan>
OMBREL_INLINE void WalkTriangle(const Edges<Point>& edges, RowRange rows, DrawSpan& drawSpan) {
    // The upper short edge serves the row of the middle corner too (a); where it has no row, the
    // lower one begins at once (c, d).
    const bool onlyLower = edges.topY == edges.middleY || edges.middleY < rows.first;
    const bool long1 = edges.longOnLeft;
    const Point longEdge = edges.top + edges.longStep * (rows.first - edges.topY);
    Point shortEdge = onlyLower ? edges.middle + edges.lowerStep * (rows.first - edges.middleY)
                                : edges.top + edges.upperStep * (rows.first - edges.topY);
    Point shortStep = onlyLower ? edges.lowerStep : edges.upperStep;
    Point left = L::Choose(long1, longEdge, shortEdge),
          right = L::Choose(long1, shortEdge, longEdge);
    const bool turns = !onlyLower && edges.middleY < rows.last - 1;
    std::int32_t row = rows.first;
    for (std::int32_t end = turns ? edges.middleY + 1 : rows.last;; end = rows.last) {
        const Point leftStep = L::Choose(long1, edges.longStep, shortStep);
        const Point rightStep = L::Choose(long1, shortStep, edges.longStep);
        for (; row < end; ++row) {
            drawSpan(left, right);
            left += leftStep;
            right += rightStep;
        }
        if (row >= rows.last) {
            return;
        }
        // Turn at the middle corner: one step has been taken there already. (b)
        shortStep = edges.lowerStep;
        shortEdge = edges.middle + edges.lowerStep;
        left = L::Choose(long1, left, shortEdge);
        right = L::Choose(long1, shortEdge, right);
    }
}

} // namespace
} // namespace ombrel
