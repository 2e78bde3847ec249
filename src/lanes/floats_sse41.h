// Four lanes of singles in SSE4.1: what the vector extension of the language can not say.
#pragma once

#include <smmintrin.h>

#include <cstddef>
#include <cstdint>

#include "lanes/floats_vector.h"

namespace ombrel {
namespace {

struct Sse41Set {
    static constexpr int kLanes = 4;
    using Floats [[gnu::vector_size(4 * kLanes)]] = float;
    using Ints [[gnu::vector_size(4 * kLanes)]] = std::int32_t;

    static Ints ToIntChop(Floats v) { return (Ints)_mm_cvttps_epi32((__m128)v); }
    static Floats ToFloat(Ints v) { return (Floats)_mm_cvtepi32_ps((__m128i)v); }
    static Ints Min(Ints a, Ints b) { return (Ints)_mm_min_epi32((__m128i)a, (__m128i)b); }
    static Ints Max(Ints a, Ints b) { return (Ints)_mm_max_epi32((__m128i)a, (__m128i)b); }
    static bool Any(Ints mask) { return _mm_movemask_ps((__m128)mask) != 0; }

    // Four columns of kLanes, and rows of four as they stand in memory: row i at base + i * step.
    struct Columns {
        Floats a, b, c, d;
    };
    static Columns LoadRows(const float* base, std::ptrdiff_t step) {
        __m128 a = _mm_loadu_ps(base);
        __m128 b = _mm_loadu_ps(base + step);
        __m128 c = _mm_loadu_ps(base + 2 * step);
        __m128 d = _mm_loadu_ps(base + 3 * step);
        _MM_TRANSPOSE4_PS(a, b, c, d);
        return {(Floats)a, (Floats)b, (Floats)c, (Floats)d};
    }
    static void StoreRows(float* base, std::ptrdiff_t step, const Columns& v) {
        __m128 a = (__m128)v.a;
        __m128 b = (__m128)v.b;
        __m128 c = (__m128)v.c;
        __m128 d = (__m128)v.d;
        _MM_TRANSPOSE4_PS(a, b, c, d);
        _mm_storeu_ps(base, a);
        _mm_storeu_ps(base + step, b);
        _mm_storeu_ps(base + 2 * step, c);
        _mm_storeu_ps(base + 3 * step, d);
    }
};
using Sse41Floats = VectorFloats<Sse41Set>;

} // namespace
} // namespace ombrel
