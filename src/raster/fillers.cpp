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

template <FillerRules R> void FillTriangle(ScreenPolygon* polygon, const FillTarget& target) {
    using S = Slots<R>;
    // Round x and y to pixels, in the record itself.
    Corner<S::count> corners[3];
    for (int i = 0; i < 3; ++i) {
        Vertex& vertex = polygon->vertices[i];
        corners[i].x = ToIntChop(vertex.x + 0.5F);
        corners[i].y = ToIntChop(vertex.y + 0.5F);
        vertex.x = static_cast<float>(corners[i].x);
        vertex.y = static_cast<float>(corners[i].y);
    }
    const std::int32_t xMin = std::min(corners[0].x, std::min(corners[1].x, corners[2].x));
    const std::int32_t xMax = std::max(corners[0].x, std::max(corners[1].x, corners[2].x));
    const std::int32_t yMin = std::min(corners[0].y, std::min(corners[1].y, corners[2].y));
    const std::int32_t yMax = std::max(corners[0].y, std::max(corners[1].y, corners[2].y));
    // Return when the triangle is outside, or all in one column or row.
    if (yMax < clipRect.top || yMin > clipRect.bottom || xMax < clipRect.left ||
        xMin > clipRect.right || xMin == xMax || yMin == yMax) {
        return;
    }
    // Fill the slots of the corners.
    for (int i = 0; i < 3; ++i) {
        FillSlots<R>(polygon->vertices[i], polygon->litColors[i], &corners[i]);
    }
    // Leave out the column clipping where the triangle is inside, the texel bound where it can be.
    // From 16,384 on, differences of coordinates may wrap and edges leave the triangle.
    const auto reach = static_cast<std::uint32_t>((xMin + 16384) | (xMax + 16384) | (yMin + 16384) |
                                                  (yMax + 16384));
    const bool wraps = reach >= 32768;
    constexpr std::int32_t closed = R.edges == EdgeRule::Closed ? 1 : 0;
    const ColumnRange columns = {clipRect.left, clipRect.right,
                                 wraps || closed != 0 || xMin < clipRect.left ||
                                     xMax > clipRect.right};
    const RowRange rows = {std::max(yMin, clipRect.top), std::min(yMax + closed, clipRect.bottom)};
    const Brush brush = MakeBrush<R>(*polygon, target.level);
    const std::ptrdiff_t frameStep = target.framePitch >> 1, depthStep = target.depthPitch >> 2;
    Row row = {target.frame + rows.first * frameStep, nullptr};
    if constexpr (S::hasDepth) {
        row.depth = target.depth + rows.first * depthStep;
    }
    const auto walk = [&](auto bounded) {
        WalkTriangle(corners, rows, [&](const std::int32_t* left, const std::int32_t* right) {
            DrawSpan<R, bounded>(brush, columns, row, left, right);
            row.frame += frameStep;
            if constexpr (S::hasDepth) {
                row.depth += depthStep;
            }
        });
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
