// The twin of raster/fillers.cpp: one span loop and one triangle routine over vectors of pixels,
// for every row of the family table. Included once by each twins_<instruction set>.cpp, behind the
// few operations that it spells out; all names are the including file's own.
//
// A twin draws the ordinary triangle. One whose texels may lie outside the texture's memory, or
// whose coordinates are so large that differences wrap, goes to the scalar member as it came.
#pragma once

#include "base/rect.h"
#include "raster/fillers.h"
#include "raster/simd/rules.h"
#include "raster/simd/walker.h"

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

// The depths of a block against those that are there.
template <int parts> struct DepthTest {
    Ints depth[parts];
    Words cell[parts], nearest[parts];
    Ints keep[parts]; // lanes that stay as they are
};
template <FillerRules R, int parts>
[[gnu::always_inline]] inline DepthTest<parts>
TestDepths(Attributes* at, const Attributes& by, const std::uint32_t* cells, const Live& live) {
    DepthTest<parts> test;
    ForEachPart<parts>([&](int i) __attribute__((always_inline)) {
        test.keep[i] = live.dead;
        if constexpr (Needs<R>::depth) {
            test.depth[i] = Take(&at->depth, by.depth);
            test.cell[i] = Load<Words>(cells + i * kLanes);
            test.nearest[i] = (Words)test.depth[i];
        }
        if constexpr (R.depth == DepthRule::W) {
            test.nearest[i] = Max(test.nearest[i], test.cell[i]);
        } else if constexpr (R.depth == DepthRule::Z) {
            test.nearest[i] = Min(test.nearest[i], test.cell[i]);
        }
        if constexpr (Needs<R>::depthTest) {
            test.keep[i] |= test.nearest[i] == test.cell[i];
        }
    });
    return test;
}
template <int parts> [[gnu::always_inline]] inline bool KeepsAll(const DepthTest<parts>& test) {
    return All(parts == 2 ? test.keep[0] & test.keep[parts - 1] : test.keep[0]);
}

// A block of pixels from row on: two parts, all to be drawn but for what the test says; or one,
// without its dead lanes.
template <FillerRules R, int parts>
[[gnu::always_inline]] inline void DrawBlock(const Brush& brush, Attributes* at,
                                             const Attributes& by, Row row,
                                             const DepthTest<parts>& test, const Live& live) {
    constexpr bool whole = parts == 2, keyed = R.texel == TexelRule::Keyed;
    constexpr bool always = whole && !Needs<R>::depthTest && !keyed;
    const Pixels texels = Texels<R, parts>(brush, at, by, test.depth, live);
    Pixels keep = always ? Pixels{} : Narrow(test.keep[0], test.keep[parts - 1]);
    if constexpr (keyed) {
        keep |= (Pixels)(texels == 0);
    }
    Pixels pixels = Light<R, parts>(brush, texels, at, by);
    if constexpr (!always || R.write == WriteRule::Blend) {
        const Pixels there = LoadPixels<parts>(row.frame);
        if constexpr (R.write == WriteRule::Blend) {
            pixels = Blend(brush, pixels, there);
        }
        pixels = always ? pixels : Select(keep, there, pixels);
    }
    StorePixels<parts>(row.frame, pixels);
    if constexpr (Needs<R>::depth) {
        ForEachPart<parts>([&](int i) __attribute__((always_inline)) {
            Words nearest = test.nearest[i];
            if constexpr (keyed) {
                const Words kept = i == 0 ? WidenLow(keep) : WidenHigh(keep);
                nearest = kept != 0 ? test.cell[i] : nearest;
            } else if constexpr (!whole) {
                nearest = (Words)Select((Pixels)live.dead, (Pixels)test.cell[i], (Pixels)nearest);
            }
            Store(row.depth + i * kLanes, nearest);
        });
    }
}

[[gnu::noinline]] void CopyPixels(Row from, Row to, std::int32_t count) {
    for (std::int32_t i = 0; i < count; ++i) {
        to.frame[i] = from.frame[i];
        if (from.depth != nullptr) {
            to.depth[i] = from.depth[i];
        }
    }
}

// Brings u and v of both ends of a span into perspective.
[[gnu::always_inline]] inline void ProjectEnds(Quad* left, Quad* right) {
    const __m128i l = (__m128i)*left, r = (__m128i)*right;
    const Quad over = (Quad)_mm_unpackhi_epi64(l, r);
    const Quad w = (Quad)_mm_unpacklo_epi64(_mm_shuffle_epi32(l, 0x55), _mm_shuffle_epi32(r, 0x55));
    const __m128i uv = (__m128i)(DivChop(over << 6, w >> 6) << 16);
    *left = (Quad)_mm_unpacklo_epi64(l, uv);
    *right = (Quad)_mm_blend_epi16(r, uv, 0xF0);
}

template <FillerRules R>
[[gnu::always_inline]] inline void DrawSpan(const Brush& brush, ColumnRange columns, Row row,
                                            SlotsOf<R> left, SlotsOf<R> right) {
    std::int32_t xl = (left[kX] + 0x8000) >> 16;
    std::int32_t xr = (right[kX] + 0x8000) >> 16;
    const std::int32_t width = xr - xl;
    constexpr std::int32_t closed = R.edges == EdgeRule::Closed ? 1 : 0;
    if (width + closed <= 0) {
        return;
    }
    if constexpr (R.texel == TexelRule::Span) {
        ProjectEnds(&left, &right);
    }
    // Divide for the steps. (A closed span of width 0 is one pixel and takes none.)
    const SlotsOf<R> step = ScaleChop(right - left, ReciprocalOfLength(width));
    SlotsOf<R> start = left + SpanStart<R>();
    // Cut the span to the clip rectangle.
    xr += closed;
    if (columns.clips) {
        if (xl < columns.left) {
            start += step * (columns.left - xl);
            xl = columns.left;
        }
        xr = xr < columns.right ? xr : columns.right;
        if (xl >= xr) {
            return;
        }
    }
    // Spread the slots over the lanes.
    Attributes at, steps;
    const auto spread = [&](auto k, Ints* a, Ints* by) __attribute__((always_inline)) {
        *by = Spread<k>(step);
        *a = Spread<k>(start) + *by * LaneNumbers();
    };
    ForEachAttribute<R>(spread, &at, &steps);
    row.frame += xl;
    row.depth += Needs<R>::depth ? xl : 0;
    std::int32_t count = xr - xl;
    constexpr bool skips = Needs<R>::texels && Needs<R>::depthTest;
    std::int32_t skipped = 0; // pixels that the attributes but depth lag behind
    const auto catchUp = [&]() __attribute__((always_inline)) {
        const auto move = [&](auto k, Ints* a, const Ints* by) __attribute__((always_inline)) {
            *a += k == kDepth ? Ints{} : *by * skipped;
        };
        if (skips && skipped != 0) {
            ForEachAttribute<R>(move, &at, &steps);
            skipped = 0;
        }
    };
    if (count >= 2 * kLanes) {
        Attributes by;
        const auto scale = [](auto, Ints* a, const Ints* by) __attribute__((always_inline)) {
            *a = *by * kLanes;
        };
        ForEachAttribute<R>(scale, &by, &steps);
        const Live all = {kLanes, Ints{}};
        do {
            const DepthTest<2> test = TestDepths<R, 2>(&at, by, row.depth, all);
            if (skips && KeepsAll(test)) {
                skipped += 2 * kLanes;
            } else {
                catchUp();
                DrawBlock<R, 2>(brush, &at, by, row, test, all);
            }
            row.frame += 2 * kLanes;
            row.depth += Needs<R>::depth ? 2 * kLanes : 0;
            count -= 2 * kLanes;
        } while (count >= 2 * kLanes);
    }
    // What is left is one masked part or two.
    while (count > 0) {
        // The last one is drawn aside where it would reach past the clip rectangle.
        Pixel16 frameAside[kLanes];
        std::uint32_t depthAside[kLanes];
        const bool aside = columns.right - xr + count < kLanes;
        const Row room = row;
        if (aside) [[unlikely]] {
            row = {frameAside, Needs<R>::depth ? depthAside : nullptr};
            CopyPixels(room, row, count);
        }
        const Live live = {count < kLanes ? count : kLanes, LaneNumbers() >= count};
        const Attributes none = {};
        const DepthTest<1> test = TestDepths<R, 1>(&at, none, row.depth, live);
        if (!skips || !KeepsAll(test)) {
            catchUp();
            DrawBlock<R, 1>(brush, &at, none, row, test, live);
            if (aside) [[unlikely]] {
                CopyPixels(row, room, count);
            }
        }
        count -= kLanes;
        if (count > 0) {
            const auto move = [](auto, Ints* a, const Ints* by) __attribute__((always_inline)) {
                *a += *by * kLanes;
            };
            ForEachAttribute<R>(move, &at, &steps);
            row.frame += kLanes;
            row.depth += Needs<R>::depth ? kLanes : 0;
        }
    }
}

// --- the triangle
// ----------------------------------------------------------------------------------

[[gnu::always_inline]] inline Quad ToIntChop(__m128 v) {
    return (Quad)_mm_cvttps_epi32(v);
}

// The greatest u and v that a corner may have, so that all indices of affine texels lie within the
// texture's memory. Those in perspective are bounded.
template <FillerRules R> [[gnu::always_inline]] inline Quad LastTexel(const Brush& brush) {
    std::int32_t lastRow = (brush.lastTexel - brush.lastColumn) >> brush.shift;
    // Bilinear sampling looks one row further down, as far as there are columns, and at pairs.
    if constexpr (R.texel == TexelRule::Bilinear) {
        lastRow = brush.lastColumn < 1 ? -1 : lastRow - (lastRow < brush.lastColumn ? 1 : 0);
    }
    return Quad{brush.lastColumn, lastRow, 0, 0};
}

template <FillerId id> void FillTriangle(ScreenPolygon* polygon, const FillTarget& target) {
    constexpr FillerRules R = kFillerTable[static_cast<int>(id)].rules;
    using Slots = SlotsOf<R>;
    Vertex* const vertices = polygon->vertices;

    // Round x, y and z; u and v after their own rule.
    const __m128 half = _mm_set1_ps(0.5F);
    Quad xyz[3], uv[3];
    ForEachCorner([&](int i) __attribute__((always_inline)) {
        xyz[i] = ToIntChop(_mm_add_ps(_mm_loadu_ps(&vertices[i].x), half));
        if constexpr (Needs<R>::texels) {
            const __m128 exact =
                _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(&vertices[i].u)));
            uv[i] = ToIntChop(Needs<R>::perspective ? _mm_add_ps(exact, half) : exact);
        }
    });
    // Leave out what is far out or may read beside the texture.
    const Quad least = Min(Min(xyz[0], xyz[1]), xyz[2]), most = Max(Max(xyz[0], xyz[1]), xyz[2]);
    const Quad reach = (least + 16384) | (most + 16384);
    Quad strange = reach | (reach > 32767);
    const Brush brush = MakeBrush<R>(*polygon, target.level);
    bool ordinary = true;
    if constexpr (Needs<R>::texels) {
        ordinary = brush.lastTexel >= 0;
        if constexpr (!Needs<R>::perspective) {
            strange |= Min(Min(uv[0], uv[1]), uv[2]) < 0;
            strange |= Max(Max(uv[0], uv[1]), uv[2]) > LastTexel<R>(brush);
        }
    }
    constexpr std::uint32_t kSignsOfTwo = 3;
    if (!ordinary || (SignsOf(strange) & kSignsOfTwo) != 0) [[unlikely]] {
        return kScalarFillers[static_cast<int>(id)](polygon, target);
    }
    ForEachCorner([&](int i) __attribute__((always_inline)) {
        _mm_storel_pi(reinterpret_cast<__m64*>(&vertices[i].x), _mm_cvtepi32_ps((__m128i)xyz[i]));
    });
    // Return when the triangle is outside, or all in one column or row.
    const Quad leftTop = Load<Quad>(&clipRect);
    const Quad rightBottom = Pick<2, 3, 2, 3>(leftTop, leftTop);
    const Quad outside = (most < leftTop) | (least > rightBottom) | (least == most);
    if ((SignsOf(outside) & kSignsOfTwo) != 0) {
        return;
    }
    constexpr std::int32_t closed = R.edges == EdgeRule::Closed ? 1 : 0;
    const std::int32_t lastRow = most[1] + closed;
    const RowRange rows = {least[1] > leftTop[1] ? least[1] : leftTop[1],
                           lastRow < leftTop[3] ? lastRow : leftTop[3]};
    const std::ptrdiff_t frameStep = target.framePitch >> 1, depthStep = target.depthPitch >> 2;
    Row row = {target.frame + rows.first * frameStep, nullptr};
    if constexpr (Needs<R>::depth) {
        row.depth = target.depth + rows.first * depthStep;
    }
    // Fill the slots of the corners.
    Corners<Slots> corners;
    const Quad xy = (Quad)_mm_unpacklo_epi32((__m128i)xyz[0], (__m128i)xyz[1]);
    const Quad z = (Quad)_mm_unpackhi_epi32((__m128i)xyz[0], (__m128i)xyz[1]);
    corners.y = Pick<2, 3, 1, 1>(xy, xyz[2]);
    Quad depths = {};
    if constexpr (R.depth == DepthRule::W) {
        depths = DivChop(Quad{} + 0x10000000, Pick<0, 1, 2, 2>(z, xyz[2]));
    }
    ForEachCorner([&](auto i) __attribute__((always_inline)) {
        // x and depth, from lanes 0 and 2.
        Quad place = xyz[i] << 16, texel = {};
        if constexpr (R.depth == DepthRule::W) {
            place = (Quad)_mm_blend_epi16((__m128i)place, (__m128i)Everywhere<i>(depths), 0x30);
        }
        if constexpr (Needs<R>::perspective) {
            texel = DivChop(uv[i] << 22, Everywhere<2>(xyz[i]));
        } else if constexpr (Needs<R>::texels) {
            texel = uv[i] << 16;
        }
        const Quad head = Pick<0, 2, 0, 1>(place, texel);
        if constexpr (Needs<R>::gouraud) {
            const Quad masks = {0xF800, 0x07E0, 0x001F, 0}, places = {1 << 8, 1 << 13, 1 << 19, 0};
            const auto color = static_cast<std::int32_t>(polygon->litColors[i]);
            corners.slots[i] = MakeOctet(head, ((Quad{} + color) & masks) * places);
        } else {
            corners.slots[i] = head;
        }
    });
    // Walk.
    const Quad beyond = (least < leftTop) | (most > rightBottom);
    const ColumnRange columns = {leftTop[0], leftTop[2], closed != 0 || beyond[0] != 0};
    WalkTriangle(
        corners, rows, [&](Slots left, Slots right) __attribute__((always_inline)) {
            // Ask for the row after the next one: each lies in a part of memory of its own.
            __builtin_prefetch(row.frame + 2 * frameStep + (left[kX] >> 16));
            if constexpr (Needs<R>::depth) {
                __builtin_prefetch(row.depth + 2 * depthStep + (left[kX] >> 16));
                __builtin_prefetch(row.depth + 2 * depthStep + (right[kX] >> 16));
            }
            DrawSpan<R>(brush, columns, row, left, right);
            row.frame += frameStep;
            if constexpr (Needs<R>::depth) {
                row.depth += depthStep;
            }
        });
}

} // namespace
} // namespace ombrel
