// The triangle walker: from three corners to one span a row, for every filler and every twin.
// An attribute is a 32-bit slot k of N; slot 0 is x in 16.16, what the others mean is not known
// here. Arithmetic is 32-bit, wraps on overflow, and divides toward zero. Called by fillers.cpp.
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

#include <algorithm>
#include <cstdint>
#include <utility>

namespace ombrel {

// Toward zero. By 0: 0. The one quotient that does not fit, INT32_MIN / -1, wraps to INT32_MIN.
inline std::int32_t DivChop(std::int32_t dividend, std::int32_t divisor) {
    if (static_cast<std::uint32_t>(divisor) + 1U > 1U) [[likely]] {
        return dividend / divisor;
    }
    return divisor == 0 ? 0 : static_cast<std::int32_t>(0U - static_cast<std::uint32_t>(dividend));
}

// Calls action(k) for k = first..last - 1, unrolled.
template <int first, int last, class Action> constexpr void ForEachSlot(Action action) {
    [&]<int... k>(std::integer_sequence<int, k...>) {
        (action(first + k), ...);
    }
    (std::make_integer_sequence<int, last - first>{});
}

template <int N> struct Corner {
    std::int32_t x, y; // pixels
    std::int32_t slot[N];
};

template <int N> struct Edge {
    std::int32_t slot[N]; // in the row at hand
    std::int32_t step[N]; // a row
};

// The edge, advanced by a number of rows from its upper end.
template <int N>
Edge<N> MakeEdge(const Corner<N>& upper, const Corner<N>& lower, std::int32_t rows) {
    Edge<N> edge;
    ForEachSlot<0, N>([&](int k) {
        edge.step[k] = DivChop(lower.slot[k] - upper.slot[k], lower.y - upper.y);
        edge.slot[k] = upper.slot[k] + edge.step[k] * rows;
    });
    return edge;
}

// Rows to draw, last excluded.
struct RowRange {
    std::int32_t first, last;
};

// Calls drawSpan(left slots, right slots) for each of the rows, top to bottom; they are rows of the
// triangle within the clip rectangle. Not all three y may be equal.
template <int N, class DrawSpan>
void WalkTriangle(const Corner<N> corners[3], RowRange rows, DrawSpan drawSpan) {
    // Order the corners top to bottom; equal ones keep their order.
    const Corner<N>* top = &corners[0];
    const Corner<N>* middle = &corners[1];
    const Corner<N>* bottom = &corners[2];
    if (middle->y < top->y) {
        std::swap(top, middle);
    }
    if (bottom->y < middle->y) {
        std::swap(middle, bottom);
        if (middle->y < top->y) {
            std::swap(top, middle);
        }
    }
    const bool flatTop = top->y == middle->y;       // d
    const bool flatBottom = middle->y == bottom->y; // e

    // Set up the long edge, and the lower short edge where the upper one has no row. (a, c, d)
    const bool turned = flatTop || middle->y < rows.first;
    const Corner<N>& from = turned ? *middle : *top;
    const Corner<N>& to = turned ? *bottom : *middle;
    Edge<N> longEdge = MakeEdge(*top, *bottom, rows.first - top->y);
    Edge<N> shortEdge = MakeEdge(from, to, rows.first - from.y);
    // Choose their sides; the slopes are those of the edges that meet at the top. (f)
    bool longOnLeft = top->x <= middle->x;
    if (!flatTop) {
        const std::int32_t slope = turned
                                       ? DivChop(middle->slot[0] - top->slot[0], middle->y - top->y)
                                       : shortEdge.step[0];
        longOnLeft = flatBottom ? bottom->x < middle->x : longEdge.step[0] < slope;
    }
    const std::int32_t bend = flatTop ? rows.last : middle->y;
    Edge<N>& left = longOnLeft ? longEdge : shortEdge;
    Edge<N>& right = longOnLeft ? shortEdge : longEdge;

    for (std::int32_t row = rows.first; row < rows.last; ++row) {
        drawSpan(left.slot, right.slot);
        ForEachSlot<0, N>([&](int k) {
            longEdge.slot[k] += longEdge.step[k];
            shortEdge.slot[k] += shortEdge.step[k];
        });
        // Turn at the middle corner: its own row was still drawn with the upper short edge. (b)
        if (row == bend) {
            shortEdge = MakeEdge(*middle, *bottom, 1);
        }
    }
}

} // namespace ombrel
