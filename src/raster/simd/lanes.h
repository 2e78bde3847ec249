// Vector types of the twins, and what the language's vector extension says for all instruction
// sets. A lane is one pixel of a span: kLanes 32-bit numbers. Colours take half a lane: a vector of
// them holds the pixels of two parts of a block, or in its lower half those of one. A slot vector
// holds the attributes of one point: four slots, or eight with colours. Included once by each
// twins_*.cpp, which defines kLanes before; everything here is its own, so that nothing is shared
// between instruction sets.
//
//     slot     0    1       2    3    4     5       6      7
//              x    depth   u    v    red   green   blue   -
#pragma once

#include <cstdint>
#include <cstring>

#include <immintrin.h>

#include "base/pixel16.h"
#include "raster/simd/reciprocal.h"

namespace ombrel {
namespace {

using Ints [[gnu::vector_size(4 * kLanes)]] = std::int32_t;        // a lane each
using Words [[gnu::vector_size(4 * kLanes)]] = std::uint32_t;      // the same, without sign
using Pixels [[gnu::vector_size(4 * kLanes)]] = std::uint16_t;     // two to a lane
using Quad [[gnu::vector_size(16)]] = std::int32_t;                // slots 0..3
using Octet [[gnu::vector_size(32)]] = std::int32_t;               // slots 0..7
using IndexPairs [[gnu::vector_size(4 * kLanes)]] = std::uint64_t; // two lanes in one

constexpr int kX = 0, kDepth = 1, kU = 2, kV = 3, kRed = 4, kGreen = 5, kBlue = 6;

template <class Vector, class T> [[gnu::always_inline]] inline Vector Load(const T* from) {
    Vector v;
    std::memcpy(&v, from, sizeof v);
    return v;
}
template <class Vector, class T> [[gnu::always_inline]] inline void Store(T* to, Vector v) {
    std::memcpy(to, &v, sizeof v);
}
// The same for slots. (Without a question mark: compilers take those apart, where a vector is wider
// than the processor's.)
template <class Slots> [[gnu::always_inline]] inline Slots Either(Slots mask, Slots yes, Slots no) {
    return (mask & yes) | (~mask & no);
}
// Both halves of each lane.
[[gnu::always_inline]] inline Words ShiftHalves(Words a, int bits) {
    return (Words)((Pixels)a >> bits);
}
// One colour everywhere.
[[gnu::always_inline]] inline Pixels AllPixels(std::uint32_t color) {
    return Pixels{} + static_cast<std::uint16_t>(color);
}
// Calls action(i) for each part of a block, unrolled.
template <int parts, class Action> [[gnu::always_inline]] inline void ForEachPart(Action action) {
    action(0);
    if constexpr (parts == 2) {
        action(1);
    }
}
// The lanes of a part that are to be drawn: the first so many.
struct Live {
    std::int32_t count; // 1..kLanes
    Ints dead;          // the others
};

// Calls action(i) for the corners of a triangle, unrolled; i is a constant.
template <int k> struct Constant {
    constexpr operator int() const { return k; }
};
template <class Action> [[gnu::always_inline]] inline void ForEachCorner(Action action) {
    action(Constant<0>{});
    action(Constant<1>{});
    action(Constant<2>{});
}
[[gnu::always_inline]] inline Ints LaneNumbers() {
    Ints v;
    for (int i = 0; i < kLanes; ++i) {
        v[i] = i;
    }
    return v;
}

// Two texels more, by their indices (of 0 or more) in the halves of two. What the texture has
// behind a texel is not touched. (Going through memory or gathering is slower.)
template <int place>
[[gnu::always_inline]] inline __m128i AddTexels(__m128i v, const Pixel16* texels,
                                                std::uint64_t two) {
    v = _mm_insert_epi16(v, texels[two & 0xFFFFFFFF], place);
    return _mm_insert_epi16(v, texels[two >> 32], place + 1);
}

[[gnu::always_inline]] inline Quad Min(Quad a, Quad b) {
    return (Quad)_mm_min_epi32((__m128i)a, (__m128i)b);
}
[[gnu::always_inline]] inline Quad Max(Quad a, Quad b) {
    return (Quad)_mm_max_epi32((__m128i)a, (__m128i)b);
}

// One slot everywhere; two slots of a, then two of b.
template <int k> [[gnu::always_inline]] inline Quad Everywhere(Quad a) {
    return (Quad)_mm_shuffle_epi32((__m128i)a, k * 0x55);
}
template <int k0, int k1, int k2, int k3> [[gnu::always_inline]] inline Quad Pick(Quad a, Quad b) {
    return (Quad)_mm_shuffle_ps((__m128)a, (__m128)b, k0 | k1 << 2 | k2 << 4 | k3 << 6);
}
// The signs, a bit each.
[[gnu::always_inline]] inline std::uint32_t SignsOf(Quad a) {
    return static_cast<std::uint32_t>(_mm_movemask_ps((__m128)a));
}

} // namespace
} // namespace ombrel
