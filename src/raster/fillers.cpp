// The family: one span loop and one triangle routine, composed with the rules of each row of the
// table. Edges 16.16; a span's columns are rounded to nearest, halves up. Called by DrawFaces.
#include "raster/fillers.h"

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "base/rect.h"
#include "raster/rules.h"
#include "raster/walker.h"

namespace ombrel {

namespace {

// Columns that a span may touch, right excluded.
struct ColumnRange {
    std::int32_t left, right;
    bool clips; // false: the whole triangle lies within
};

// One row of the frame and of the depth buffer.
struct Row {
    Pixel16* frame;
    std::uint32_t* depth;
};

template <FillerRules R, bool bounded>
void DrawSpan(const Brush& triangleBrush, ColumnRange columns, Row row, const std::int32_t* left,
              const std::int32_t* right) {
    using S = Slots<R>;
    const Brush brush = triangleBrush; // known not to be written through the pixels
    std::int32_t xl = (left[S::x] + 0x8000) >> 16;
    std::int32_t xr = (right[S::x] + 0x8000) >> 16;
    const std::int32_t width = xr - xl;
    constexpr std::int32_t closed = R.edges == EdgeRule::Closed ? 1 : 0;
    if (width + closed <= 0) {
        return;
    }

    // Take the slots at both ends; bring u and v into perspective there.
    std::int32_t slot[S::count], end[S::count], step[S::count];
    ForEachSlot<1, S::count>([&](int k) {
        slot[k] = left[k];
        end[k] = right[k];
    });
    if constexpr (R.texel == TexelRule::Span) {
        for (const int k : {S::u, S::v}) {
            slot[k] = DivChop(left[k] << 6, left[S::depth] >> 6) << 16;
            end[k] = DivChop(right[k] << 6, right[S::depth] >> 6) << 16;
        }
    }
    // Divide for the steps.
    ForEachSlot<1, S::count>([&](int k) {
        step[k] = width > 0 ? (end[k] - slot[k]) / width : end[k] - slot[k];
        slot[k] += S::startsAtHalf(k) ? 0x8000 : 0;
    });
    // Cut the span to the clip rectangle.
    xr += closed;
    if (columns.clips) {
        if (xl < columns.left) {
            ForEachSlot<1, S::count>([&](int k) { slot[k] += step[k] * (columns.left - xl); });
            xl = columns.left;
        }
        xr = std::min(xr, columns.right);
    }

    for (std::int32_t x = xl; x < xr; ++x) {
        if (IsInFront<R>(slot, row.depth + x)) {
            const std::uint32_t texel = Texel<R, bounded>(brush, slot);
            if (R.texel != TexelRule::Keyed || texel != 0) {
                row.frame[x] = Write<R.write>(brush, Light<R>(brush, texel, slot), row.frame[x]);
                if constexpr (S::hasDepth) {
                    row.depth[x] = static_cast<std::uint32_t>(slot[S::depth]);
                }
            }
        }
        ForEachSlot<1, S::count>([&](int k) { slot[k] += step[k]; });
    }
}

// Rounds x and y to pixels, in the record itself. False when no pixel can come of it.
bool RoundVertices(ScreenPolygon* polygon) {
    std::int32_t above = 0, below = 0, before = 0, behind = 0;
    for (Vertex& vertex : polygon->vertices) {
        const std::int32_t x = ToIntChop(vertex.x + 0.5F);
        const std::int32_t y = ToIntChop(vertex.y + 0.5F);
        vertex.x = static_cast<float>(x);
        vertex.y = static_cast<float>(y);
        above += y < clipRect.top ? 1 : 0;
        below += y > clipRect.bottom ? 1 : 0;
        before += x < clipRect.left ? 1 : 0;
        behind += x > clipRect.right ? 1 : 0;
    }
    return above < 3 && below < 3 && before < 3 && behind < 3;
}

template <FillerRules R> void FillTriangle(ScreenPolygon* polygon, const FillTarget& target) {
    using S = Slots<R>;
    if (!RoundVertices(polygon)) {
        return;
    }
    // Fill the slots of the three corners; return when they share a column or a row.
    const Vertex* v = polygon->vertices;
    const Corner<S::count> corners[3] = {MakeCorner<R>(v[0], polygon->litColors[0]),
                                         MakeCorner<R>(v[1], polygon->litColors[1]),
                                         MakeCorner<R>(v[2], polygon->litColors[2])};
    const auto [xMin, xMax] = std::minmax({corners[0].x, corners[1].x, corners[2].x});
    const auto [yMin, yMax] = std::minmax({corners[0].y, corners[1].y, corners[2].y});
    if (xMin == xMax || yMin == yMax) {
        return;
    }
    // Leave out the column clipping where the triangle is inside, the texel bound where it can be.
    // Beyond these limits differences of coordinates would wrap, and edges leave the triangle.
    constexpr std::int32_t limit = 16384;
    const bool wraps = xMin < -limit || xMax >= limit || yMin < -limit || yMax >= limit;
    const ColumnRange columns = {clipRect.left, clipRect.right,
                                 wraps || R.edges == EdgeRule::Closed || xMin < clipRect.left ||
                                     xMax > clipRect.right};
    const RowRange rows = {clipRect.top, clipRect.bottom};
    const Brush brush = MakeBrush<R>(*polygon, target.level);
    const auto walk = [&](auto bounded) {
        const auto draw = [&](std::int32_t y, const std::int32_t* left, const std::int32_t* right) {
            const Row row = {target.frame + std::ptrdiff_t{y} * (target.framePitch >> 1),
                             S::hasDepth
                                 ? target.depth + std::ptrdiff_t{y} * (target.depthPitch >> 2)
                                 : nullptr};
            DrawSpan<R, bounded>(brush, columns, row, left, right);
        };
        WalkTriangle(corners, rows, R.edges == EdgeRule::Closed ? 1 : 0, draw);
    };
    if constexpr (S::hasTexels) {
        if (wraps || !TexelsStayInside<R>(brush, corners)) {
            return walk(std::true_type{});
        }
    }
    if constexpr (!S::inPerspective) {
        walk(std::false_type{});
    }
}

} // namespace

#define OMBREL_SCALAR(name, ...) FillTriangle<kFillerTable[int(FillerId::name)].rules>,
const Filler kScalarFillers[kFillerCount] = {OMBREL_FILLERS(OMBREL_SCALAR)};
constinit Filler activeFillers[kFillerCount] = {OMBREL_FILLERS(OMBREL_SCALAR)};
#undef OMBREL_SCALAR

void ResetFillers() {
    std::copy_n(kScalarFillers, kFillerCount, activeFillers);
}

#define OMBREL_DEFINE(name, depthRule, texel, light, write, edges)                                 \
    void name(ScreenPolygon* polygon, Pixel16* frame,                                              \
              std::int32_t framePitch                                                              \
                  OMBREL_DEPTH_PARAMETERS_##depthRule OMBREL_WRITE_PARAMETERS_##write) {           \
        activeFillers[int(FillerId::name)](                                                        \
            polygon,                                                                               \
            {frame, framePitch, OMBREL_DEPTH_VALUES_##depthRule, OMBREL_WRITE_VALUES_##write});    \
    }
OMBREL_FILLERS(OMBREL_DEFINE)
#undef OMBREL_DEFINE

} // namespace ombrel
