// Eight lanes of singles in AVX2: what the vector extension of the language can not say.
#pragma once

#include <immintrin.h>

#include <cstddef>
#include <cstdint>

#include "lanes/floats_vector.h"

namespace ombrel {
namespace {

struct Avx2Set {
    static constexpr int kLanes = 8;
    using Floats [[gnu::vector_size(4 * kLanes)]] = float;
    using Ints [[gnu::vector_size(4 * kLanes)]] = std::int32_t;

    static Ints ToIntChop(Floats v) { return (Ints)_mm256_cvttps_epi32((__m256)v); }
    static Floats ToFloat(Ints v) { return (Floats)_mm256_cvtepi32_ps((__m256i)v); }
    static Ints Min(Ints a, Ints b) { return (Ints)_mm256_min_epi32((__m256i)a, (__m256i)b); }
    static Ints Max(Ints a, Ints b) { return (Ints)_mm256_max_epi32((__m256i)a, (__m256i)b); }
    static bool Any(Ints mask) { return _mm256_movemask_ps((__m256)mask) != 0; }

    // Four columns of kLanes, and rows of four as they stand in memory: row i at base + i * step.
    struct Columns {
        Floats a, b, c, d;
    };
    static Columns LoadRows(const float* base, std::ptrdiff_t step) {
        return Transpose(Pair(base, 0, step), Pair(base, 1, step), Pair(base, 2, step),
                         Pair(base, 3, step));
    }
    static void StoreRows(float* base, std::ptrdiff_t step, const Columns& v) {
        const Columns rows = Transpose((__m256)v.a, (__m256)v.b, (__m256)v.c, (__m256)v.d);
        const Floats pairs[4] = {rows.a, rows.b, rows.c, rows.d};
        for (std::ptrdiff_t i = 0; i < 4; ++i) {
            _mm_storeu_ps(base + i * step, _mm256_castps256_ps128((__m256)pairs[i]));
            _mm_storeu_ps(base + (i + 4) * step, _mm256_extractf128_ps((__m256)pairs[i], 1));
        }
    }

private:
    // Rows i and i + 4.
    static __m256 Pair(const float* base, std::ptrdiff_t i, std::ptrdiff_t step) {
        return _mm256_set_m128(_mm_loadu_ps(base + (i + 4) * step), _mm_loadu_ps(base + i * step));
    }
    // Of the lower and of the upper four lanes, each by itself.
    static Columns Transpose(__m256 a, __m256 b, __m256 c, __m256 d) {
        const __m256 ab0 = _mm256_unpacklo_ps(a, b);
        const __m256 ab1 = _mm256_unpackhi_ps(a, b);
        const __m256 cd0 = _mm256_unpacklo_ps(c, d);
        const __m256 cd1 = _mm256_unpackhi_ps(c, d);
        return {
            (Floats)_mm256_shuffle_ps(ab0, cd0, 0x44), (Floats)_mm256_shuffle_ps(ab0, cd0, 0xEE),
            (Floats)_mm256_shuffle_ps(ab1, cd1, 0x44), (Floats)_mm256_shuffle_ps(ab1, cd1, 0xEE)};
    }
};
using Avx2Floats = VectorFloats<Avx2Set>;

} // namespace
} // namespace ombrel
