// One row of a triangle: from the points at its ends to pixels, for every filler and every lane
// set. Whole blocks first, then what is left of one, masked. Nothing outside of the row's columns
// is touched. Used by triangle.h.
#pragma once

#include <cstdint>

#include "lanes/inline.h"
#include "raster/rules.h"

namespace ombrel {
namespace {

// Columns that a span may touch, right excluded.
struct ColumnRange {
    std::int32_t left, right;
    bool clips; // false: the whole triangle lies within
};

// A row of the frame and of the depth buffer, from some pixel on.
struct Row {
    Pixel16* frame;
    std::uint32_t* depth; // null: none
};
template <class R> OMBREL_INLINE Row RowAt(const Row& row, std::ptrdiff_t x) {
    if constexpr (R::kHasDepth) {
        return {row.frame + x, row.depth + x};
    }
    return {row.frame + x, nullptr};
}

// What is left of a span.
template <class L> struct Run {
    std::ptrdiff_t x, end; // columns
    std::int32_t skipped;  // pixels that the attributes but depth lag behind
    Attributes<L> at;      // of the next pixels
    Attributes<L> step;    // a pixel
};

// Calls action(k) for each attribute that R needs.
template <class R, class Action> OMBREL_INLINE void ForEachAttribute(Action action) {
    Unroll<kAttributeCount>([&](auto k) {
        if constexpr (k != kX && (R::kNeeds >> k & 1) != 0) {
            action(k);
        }
    });
}
// Moves all attributes on, or all but depth.
template <class L, class R, bool withDepth>
OMBREL_INLINE void Advance(Attributes<L>* at, const Attributes<L>& by, std::int32_t times) {
    ForEachAttribute<R>([&](auto k) {
        if constexpr (withDepth || k != kDepth) {
            at->of[k] += by.of[k] * times;
        }
    });
}

// Whether a filler passes over what is hidden; otherwise it is drawn masked, which costs less.
template <class L, class R>
constexpr bool kSkips = R::Depth::kTests && (R::kHasTexels || L::kLanes == 1);

// Steps the attributes but depth by the pixels that were passed over.
template <class L, class R> OMBREL_INLINE void CatchUp(Run<L>* run) {
    if constexpr (kSkips<L, R> && L::kLanes > 1) {
        if (run->skipped != 0) {
            Advance<L, R, false>(&run->at, run->step, run->skipped);
            run->skipped = 0;
        }
    }
}

// --- one block -----------------------------------------------------------------------------------

// The depths of a block against those that are there.
template <class L, int parts> struct DepthTest {
    Ints<L> depth[parts];
    Words<L> cell[parts], nearer[parts];
    Ints<L> keep[parts]; // mask of the lanes that stay as they are
};

template <class L, class R, int parts, int i>
OMBREL_INLINE void TestPart(Attributes<L>* at, const Attributes<L>& by, const Row& row,
                            const Live<L>& live, DepthTest<L, parts>* test) {
    test->keep[i] = live.dead;
    if constexpr (R::kHasDepth) {
        test->depth[i] = Take<L>(&at->of[kDepth], by.of[kDepth]);
        test->cell[i] = L::template Load<Words<L>>(row.depth + i * L::kLanes);
        test->nearer[i] = R::Depth::template Nearer<L>((Words<L>)test->depth[i], test->cell[i]);
    }
    if constexpr (R::Depth::kTests) {
        test->keep[i] |= test->nearer[i] == test->cell[i];
    }
}
template <class L, class R, int parts>
OMBREL_INLINE DepthTest<L, parts> TestDepths(Attributes<L>* at, const Attributes<L>& by,
                                             const Row& row, const Live<L>& live) {
    DepthTest<L, parts> test;
    TestPart<L, R, parts, 0>(at, by, row, live, &test);
    if constexpr (parts == 2) {
        TestPart<L, R, parts, 1>(at, by, row, live, &test);
    }
    return test;
}
template <class L, int parts> OMBREL_INLINE bool KeepsAll(const DepthTest<L, parts>& test) {
    return L::All(parts == 2 ? test.keep[0] & test.keep[parts - 1] : test.keep[0]);
}

// The texels of a block; those of dead lanes are not looked at.
template <class L, class R, int parts>
OMBREL_INLINE auto TexelsOf(const Brush<L>& brush, Attributes<L>* at, const Attributes<L>& by,
                            const Ints<L> (&depth)[parts], const Live<L>& live) {
    if constexpr (!R::kHasTexels) {
        return Blank{};
    } else {
        using Texel = typename R::Texel;
        const Ints<L> u = Take<L>(&at->of[kU], by.of[kU]), v = Take<L>(&at->of[kV], by.of[kV]);
        const auto low = Texel::template Part<L, R::kBounds>(brush.memory, u, v, depth[0], live);
        if constexpr (parts == 2) {
            const Ints<L> u1 = Take<L>(&at->of[kU], by.of[kU]),
                          v1 = Take<L>(&at->of[kV], by.of[kV]);
            return L::Join(
                low, Texel::template Part<L, R::kBounds>(brush.memory, u1, v1, depth[1], live));
        } else {
            return L::Alone(low);
        }
    }
}

// What of the colours of a block comes into the frame.
template <class L, class R, int parts, class T>
OMBREL_INLINE Pixels<L> SourceOf(const Brush<L>& brush, T texels, Attributes<L>* at,
                                 const Attributes<L>& by) {
    if constexpr (R::kOneColor) {
        return brush.source;
    } else {
        return R::Write::template Scale<L>(
            brush, R::Light::template Light<L, parts>(brush, texels, at, by));
    }
}

template <class L, class R, int parts, int i>
OMBREL_INLINE void StorePart(const Row& row, const DepthTest<L, parts>& test, Pixels<L> keep,
                             const Live<L>& live) {
    Words<L> nearer = test.nearer[i];
    if constexpr (L::kLanes == 1) {
        nearer = (Words<L>)test.depth[i]; // or it would not be drawn
    } else if constexpr (R::Texel::kKeyed) {
        nearer = L::template Widen<i>(keep) != 0 ? test.cell[i] : nearer;
    } else if constexpr (parts < L::kParts) {
        nearer =
            (Words<L>)L::Select((Pixels<L>)live.dead, (Pixels<L>)test.cell[i], (Pixels<L>)nearer);
    }
    L::Store(row.depth + i * L::kLanes, nearer);
}

// Draws a block: a whole one but for what the test says, or one part without its dead lanes.
template <class L, class R, int parts>
OMBREL_INLINE void DrawBlock(const Brush<L>& brush, Row row, Attributes<L>* at,
                             const Attributes<L>& by, const DepthTest<L, parts>& test,
                             const Live<L>& live) {
    constexpr bool single = L::kLanes == 1, keyed = R::Texel::kKeyed;
    constexpr bool always = single || (parts == L::kParts && !R::Depth::kTests && !keyed);
    const auto texels = TexelsOf<L, R, parts>(brush, at, by, test.depth, live);
    Pixels<L> pixels = SourceOf<L, R, parts>(brush, texels, at, by);
    Pixels<L> keep = always ? Pixels<L>{} : L::Join(test.keep[0], test.keep[parts - 1]);
    if constexpr (keyed) {
        keep |= (Pixels<L>)(texels == 0);
        if constexpr (single) {
            if (L::All(keep)) {
                return;
            }
        }
    }
    if constexpr (!always || R::Write::kMixes) {
        const Pixels<L> there = L::template LoadPixels<parts>(row.frame);
        pixels = R::Write::template Write<L>(brush, pixels, there);
        pixels = always ? pixels : L::Select(keep, there, pixels);
    }
    L::template StorePixels<parts>(row.frame, pixels);
    if constexpr (R::kHasDepth) {
        StorePart<L, R, parts, 0>(row, test, keep, live);
        if constexpr (parts == 2) {
            StorePart<L, R, parts, 1>(row, test, keep, live);
        }
    }
}

// --- the span ------------------------------------------------------------------------------------

template <class L, class R>
OMBREL_INLINE void DrawWholeBlocks(const Brush<L>& brush, const Row& row, Run<L>* run) {
    constexpr std::int32_t kBlock = L::kParts * L::kLanes;
    std::ptrdiff_t x = run->x;
    const std::ptrdiff_t last = run->end - kBlock;
    if (x > last) {
        return;
    }
    // The attributes of vectors move on as they are taken; those of one lane all at once.
    constexpr bool single = L::kLanes == 1;
    Attributes<L> by = {};
    ForEachAttribute<R>([&](auto k) { by.of[k] = run->step.of[k] * (single ? 0 : L::kLanes); });
    const Live<L> all = {L::kLanes, Ints<L>{}};
    do {
        const Row block = RowAt<R>(row, x);
        const auto test = TestDepths<L, R, L::kParts>(&run->at, by, block, all);
        if (kSkips<L, R> && KeepsAll<L>(test)) {
            run->skipped += single ? 0 : kBlock;
        } else {
            CatchUp<L, R>(run);
            DrawBlock<L, R, L::kParts>(brush, block, &run->at, by, test, all);
        }
        if constexpr (single) {
            Advance<L, R, true>(&run->at, run->step, 1);
        }
        x += kBlock;
    } while (x <= last);
    run->x = x;
}

[[maybe_unused, gnu::noinline]] inline void CopyPixels(Row from, Row to, std::int32_t count) {
    for (std::int32_t i = 0; i < count; ++i) {
        to.frame[i] = from.frame[i];
        if (from.depth != nullptr) {
            to.depth[i] = from.depth[i];
        }
    }
}

// Draws the next count pixels, at most one part of a block. Where that would reach past the clip
// rectangle, room pixels further on, it is drawn aside.
template <class L, class R>
OMBREL_INLINE void DrawPart(const Brush<L>& brush, const Row& row, std::int32_t count,
                            std::int32_t room, Run<L>* run) {
    Pixel16 frameAside[L::kLanes];
    std::uint32_t depthAside[L::kLanes];
    const bool aside = room < L::kLanes;
    Row part = row;
    if (aside) [[unlikely]] {
        part = {frameAside, R::kHasDepth ? depthAside : nullptr};
        CopyPixels(row, part, count);
    }
    const Live<L> live = {count < L::kLanes ? count : L::kLanes, L::LaneNumbers() >= count};
    const Attributes<L> none = {};
    const auto test = TestDepths<L, R, 1>(&run->at, none, part, live);
    if (!kSkips<L, R> || !KeepsAll<L>(test)) {
        CatchUp<L, R>(run);
        DrawBlock<L, R, 1>(brush, part, &run->at, none, test, live);
        if (aside) [[unlikely]] {
            CopyPixels(part, row, count);
        }
    }
}

// What is left is one masked part or two. (Counting down costs less than columns do: most tails are
// drawn once through.)
template <class L, class R>
OMBREL_INLINE void DrawTail(const Brush<L>& brush, const Row& row, std::ptrdiff_t clipRight,
                            Run<L>* run) {
    Row part = RowAt<R>(row, run->x);
    auto count = static_cast<std::int32_t>(run->end - run->x);
    const auto beyond = static_cast<std::int32_t>(clipRight - run->end);
    while (count > 0) {
        DrawPart<L, R>(brush, part, count, beyond + count, run);
        count -= L::kLanes;
        if (count > 0) {
            Advance<L, R, true>(&run->at, run->step, L::kLanes);
            part = RowAt<R>(part, L::kLanes);
        }
    }
}

// What the attributes of a span's first pixel are more than those of its left edge.
template <class L, class R, class Point> OMBREL_INLINE Point SpanStart() {
    Point start = {};
    ForEachAttribute<R>([&](auto k) {
        if constexpr (R::SpanStart(k) != 0) {
            L::template Set<k>(&start, R::SpanStart(k));
        }
    });
    return start;
}

template <class L, class R, class Point>
OMBREL_INLINE void DrawSpan(const Brush<L>& brush, ColumnRange columns, Row row, Point left,
                            Point right) {
    std::int32_t xl = (L::template Get<kX>(left) + 0x8000) >> 16;
    std::int32_t xr = (L::template Get<kX>(right) + 0x8000) >> 16;
    const std::int32_t width = xr - xl;
    if (width + R::kClosed <= 0) {
        return;
    }
    R::Texel::template AtSpanEnds<L>(&left, &right);
    // Divide for the steps. (A closed span of width 0 is one pixel and takes none.)
    const Point step = L::Divide(right - left, width);
    Point start = left + SpanStart<L, R, Point>();
    // Cut the span to the clip rectangle.
    xr += R::kClosed;
    if (columns.clips) {
        if (xl < columns.left) {
            start = start + step * (columns.left - xl);
            xl = columns.left;
        }
        xr = xr < columns.right ? xr : columns.right;
        if (xl >= xr) {
            return;
        }
    }
    // Spread the attributes over the lanes.
    Run<L> run;
    run.x = xl;
    run.end = xr;
    run.skipped = 0;
    ForEachAttribute<R>([&](auto k) {
        run.step.of[k] = L::template Spread<k>(step);
        run.at.of[k] = L::template Spread<k>(start) + run.step.of[k] * L::LaneNumbers();
    });
    DrawWholeBlocks<L, R>(brush, row, &run);
    if constexpr (L::kLanes > 1) {
        DrawTail<L, R>(brush, row, columns.right, &run);
    }
}

} // namespace
} // namespace ombrel
