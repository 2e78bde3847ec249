// The one triangle routine: rounds the corners, fills their attributes and walks the rows. Once for
// every row of the family table and every lane set.
//
// An ordinary triangle is drawn here. One whose texels may lie outside of the texture's memory, or
// whose coordinates are so large that differences wrap, is passed unchanged to the careful filler
// of the same rules: one pixel at a time, every texel bounded, every span cut.
#pragma once

#include <cstddef>
#include <cstdint>

#include "lanes/inline.h"
#include "lanes/pixels_plain.h"
#include "raster/fillers.h"
#include "raster/rules.h"
#include "raster/span.h"
#include "raster/walker.h"

namespace ombrel {
namespace {

// x, y and z of the corners, rounded (rounding.md, I2), and the least and the greatest of them.
template <class L> struct Places {
    Quad<L> of[3]; // x, y, z, -
    Quad<L> least, most;
};
template <class L> OMBREL_INLINE Places<L> RoundCorners(const Vertex (&vertices)[3]) {
    Places<L> places;
    Unroll<3>(
        [&](auto i) { places.of[i] = L::ToIntChop(L::LoadFloats(&vertices[i].x) + Single{0.5F}); });
    places.least = L::Min(L::Min(places.of[0], places.of[1]), places.of[2]);
    places.most = L::Max(L::Max(places.of[0], places.of[1]), places.of[2]);
    return places;
}

template <class L>
OMBREL_INLINE Corners<L> CornersOf(const ScreenPolygon& polygon, const Places<L>& places) {
    Corners<L> corners;
    const Quad<L>* of = places.of;
    const Quad<L> xy = L::template Shuffle<0, 1, 0, 1>(of[0], of[1]);
    const Quad<L> z = L::template Shuffle<2, 2, 2, 2>(of[0], of[1]);
    corners.x = L::template Shuffle<0, 2, 0, 0>(xy, of[2]);
    corners.y = L::template Shuffle<1, 3, 1, 1>(xy, of[2]);
    corners.z = L::template Shuffle<0, 2, 2, 2>(z, of[2]);
    L::LoadPairs({&polygon.vertices[0].u, &polygon.vertices[1].u, &polygon.vertices[2].u},
                 corners.uv);
    corners.color = Quad<L>{static_cast<std::int32_t>(polygon.litColors[0]),
                            static_cast<std::int32_t>(polygon.litColors[1]),
                            static_cast<std::int32_t>(polygon.litColors[2]), 0};
    return corners;
}

OMBREL_INLINE TexelMemory MemoryOf(const Texture& texture) {
    const auto width = static_cast<std::uint32_t>(texture.width);
    // An 8-bit texture holds half as many 16-bit texels.
    const std::int32_t texels =
        (texture.width * texture.height) >> (texture.bitsPerPixel == 8 ? 1 : 0);
    return {static_cast<const Pixel16*>(texture.pixels),
            width - 1 < 1024     ? 31 - __builtin_clz(width)
            : texture.width <= 0 ? 0
                                 : 10,
            texture.width - 1, texels - 1};
}

template <class L, class R>
OMBREL_INLINE Brush<L> MakeBrush(const ScreenPolygon& polygon, std::uint32_t level) {
    Brush<L> brush = {};
    brush.color = polygon.litColors[0] & 0xFFFF;
    if constexpr (R::kHasTexels) {
        brush.memory = MemoryOf(*polygon.texture.single);
    }
    R::Write::template Prepare<L>(level, &brush);
    if constexpr (R::kOneColor) {
        brush.source = R::Write::template Scale<L>(brush, L::AllPixels(brush.color));
    }
    return brush;
}

// Whether all coordinates are within +-16,384, beyond which differences may wrap and edges leave
// the triangle, and no pixel can reach past the texture: between corners linear coordinates stay
// between theirs; the ones in perspective need not, and are bounded.
template <class L, class R>
OMBREL_INLINE bool IsOrdinary(const Corners<L>& corners, const TexelMemory& memory) {
    const Quad<L> reach = (corners.x + 16384) | (corners.y + 16384);
    const Quad<L> strange = reach | (32767 - reach) | R::Texel::template Strays<L>(memory, corners);
    constexpr std::uint32_t kFourSigns = 15;
    return (!R::kHasTexels || memory.lastTexel >= 0) && (L::SignsOf(strange) & kFourSigns) == 0;
}

// Draws one row after another; asks for the memory of the row after the next one, since each lies
// in a part of memory of its own.
template <class L, class R, class Point> struct RowPainter {
    const Brush<L>& brush;
    ColumnRange columns;
    Row row;
    std::ptrdiff_t frameStep, depthStep;

    OMBREL_INLINE void Move(std::ptrdiff_t pixels, std::ptrdiff_t cells) {
        row.frame += pixels;
        if constexpr (R::kHasDepth) {
            row.depth += cells;
        }
    }
    OMBREL_INLINE void operator()(const Point& left, const Point& right) {
        const std::int32_t xl = L::template Get<kX>(left) >> 16;
        __builtin_prefetch(row.frame + 2 * frameStep + xl);
        if constexpr (R::kHasDepth) {
            const std::int32_t xr = L::template Get<kX>(right) >> 16;
            __builtin_prefetch(row.depth + 2 * depthStep + xl);
            __builtin_prefetch(row.depth + 2 * depthStep + xr);
        }
        DrawSpan<L, R>(brush, columns, row, left, right);
        Move(frameStep, depthStep);
    }
};

// Whether all of the triangle lies outside of the clip rectangle, or in one column or row.
template <class L> OMBREL_INLINE bool IsOutside(const Places<L>& places, const Rect& clip) {
    const Quad<L> leftTop = L::LoadQuad(&clip.left);
    const Quad<L> rightBottom = L::template Shuffle<2, 3, 2, 3>(leftTop, leftTop);
    const Quad<L> outside =
        (places.most < leftTop) | (places.least > rightBottom) | (places.least == places.most);
    return (L::SignsOf(outside) & 3) != 0;
}

template <class L> OMBREL_INLINE void StoreRounded(const Places<L>& places, ScreenPolygon* to) {
    Unroll<3>([&](auto i) { L::StorePair(&to->vertices[i].x, places.of[i]); });
}

template <class L, class R>
OMBREL_INLINE void DrawInside(const Places<L>& places, const Corners<L>& corners,
                              const Brush<L>& brush, const FillTarget& target) {
    // Fill the attributes of the corners.
    using Point = typename L::template Point<R::kNeeds>;
    Quad<L> by[kAttributeCount] = {};
    by[kX] = corners.x << 16;
    R::Depth::template Fill<L>(corners, by);
    R::Texel::template Fill<L>(corners, by);
    R::Light::template Fill<L>(corners, by);
    Point points[3];
    L::Transpose(by, points);
    // Walk.
    const Rect& clip = target.clip;
    const std::int32_t lastRow = places.most[1] + R::kClosed;
    const RowRange rows = {places.least[1] > clip.top ? places.least[1] : clip.top,
                           lastRow < clip.bottom ? lastRow : clip.bottom};
    const bool clips =
        R::kAlwaysClips || places.least[0] < clip.left || places.most[0] > clip.right;
    RowPainter<L, R, Point> painter = {brush,
                                       {clip.left, clip.right, clips},
                                       {target.frame, R::kHasDepth ? target.depth : nullptr},
                                       target.framePitch >> 1,
                                       target.depthPitch >> 2};
    painter.Move(rows.first * painter.frameStep, rows.first * painter.depthStep);
    WalkTriangle<L>(MakeEdges<L, R::kMayWrap>(points, corners.x, corners.y), rows, painter);
}

// Draws an ordinary triangle, or none of one outside; returns false, and changes nothing, where it
// is strange.
template <class L, class R>
OMBREL_INLINE bool FillOrdinary(ScreenPolygon* polygon, const FillTarget& target) {
    const Places<L> places = RoundCorners<L>(polygon->vertices);
    if (IsOutside<L>(places, target.clip)) {
        StoreRounded<L>(places, polygon);
        return true;
    }
    const Corners<L> corners = CornersOf<L>(*polygon, places);
    const Brush<L> brush = MakeBrush<L, R>(*polygon, target.level);
    if (!IsOrdinary<L, R>(corners, brush.memory)) [[unlikely]] {
        return false;
    }
    StoreRounded<L>(places, polygon);
    DrawInside<L, R>(places, corners, brush, target);
    return true;
}

inline constexpr Pixel16 kNoTexel = 0; // what a texture without texels shows

// Draws any triangle that is not outside.
template <class Ordinary> void FillCarefully(ScreenPolygon* polygon, const FillTarget& target) {
    using L = PlainPixels;
    using R = Careful<Ordinary>;
    const Places<L> places = RoundCorners<L>(polygon->vertices);
    const Corners<L> corners = CornersOf<L>(*polygon, places);
    Brush<L> brush = MakeBrush<L, R>(*polygon, target.level);
    if (R::kHasTexels && brush.memory.lastTexel < 0) {
        brush.memory.texels = &kNoTexel;
        brush.memory.lastTexel = 0;
    }
    StoreRounded<L>(places, polygon);
    DrawInside<L, R>(places, corners, brush, target);
}

} // namespace
} // namespace ombrel
