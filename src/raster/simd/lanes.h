// Vector types of the twins, and what the language's vector extension says for all instruction
// sets. A lane is one pixel of a span: kLanes 32-bit numbers. A slot vector holds the attributes of
// one point: four slots, or eight with colours. Included once by each twins_*.cpp, which defines
// kLanes before; everything here is its own, so that nothing is shared between instruction sets.
//
//     slot     0    1       2    3    4     5       6      7
//              x    depth   u    v    red   green   blue   -
#pragma once

#include <cstdint>
#include <cstring>

#include <immintrin.h>

#include "raster/simd/reciprocal.h"

namespace ombrel {
namespace {

using Ints [[gnu::vector_size(4 * kLanes)]] = std::int32_t;    // a lane each
using Words [[gnu::vector_size(4 * kLanes)]] = std::uint32_t;  // the same, without sign
using Halves [[gnu::vector_size(4 * kLanes)]] = std::uint16_t; // two to a lane
using Quad [[gnu::vector_size(16)]] = std::int32_t;            // slots 0..3
using Octet [[gnu::vector_size(32)]] = std::int32_t;           // slots 0..7

constexpr int kX = 0, kDepth = 1, kU = 2, kV = 3, kRed = 4, kGreen = 5, kBlue = 6;

template <class Vector, class T> [[gnu::always_inline]] inline Vector Load(const T* from) {
    Vector v;
    std::memcpy(&v, from, sizeof v);
    return v;
}
template <class Vector, class T> [[gnu::always_inline]] inline void Store(T* to, Vector v) {
    std::memcpy(to, &v, sizeof v);
}
[[gnu::always_inline]] inline Words Select(Ints mask, Words yes, Words no) {
    return mask ? yes : no;
}
// The same for slots. (Without a question mark: compilers take those apart, where a vector is wider
// than the processor's.)
template <class Slots> [[gnu::always_inline]] inline Slots Either(Slots mask, Slots yes, Slots no) {
    return (mask & yes) | (~mask & no);
}
// Both halves of each lane.
[[gnu::always_inline]] inline Words ShiftHalves(Words a, int bits) {
    return (Words)((Halves)a >> bits);
}
[[gnu::always_inline]] inline Ints LaneNumbers() {
    Ints v;
    for (int i = 0; i < kLanes; ++i) {
        v[i] = i;
    }
    return v;
}

[[gnu::always_inline]] inline Quad Min(Quad a, Quad b) {
    return (Quad)_mm_min_epi32((__m128i)a, (__m128i)b);
}
[[gnu::always_inline]] inline Quad Max(Quad a, Quad b) {
    return (Quad)_mm_max_epi32((__m128i)a, (__m128i)b);
}

} // namespace
} // namespace ombrel
