// The kernels of the front end in AVX2: eight corners at a time. Here is only what the vector
// extension of the language cannot say; the kernels themselves are in place_and_light.h.
#include <immintrin.h>

#include "scene/simd/kernels.h"

namespace ombrel {
namespace {

constexpr int kLanes = 8;
using Floats [[gnu::vector_size(4 * kLanes)]] = float;
using Ints [[gnu::vector_size(4 * kLanes)]] = std::int32_t;

[[gnu::always_inline]] inline Floats All(float v) {
    return (Floats)_mm256_set1_ps(v);
}
// Toward zero; what no 32-bit integer holds gives INT32_MIN.
[[gnu::always_inline]] inline Ints ToIntChop(Floats v) {
    return (Ints)_mm256_cvttps_epi32((__m256)v);
}
[[gnu::always_inline]] inline Floats ToFloat(Ints v) {
    return (Floats)_mm256_cvtepi32_ps((__m256i)v);
}
[[gnu::always_inline]] inline Ints Min(Ints a, Ints b) {
    return (Ints)_mm256_min_epi32((__m256i)a, (__m256i)b);
}
[[gnu::always_inline]] inline Ints Max(Ints a, Ints b) {
    return (Ints)_mm256_max_epi32((__m256i)a, (__m256i)b);
}

// Four vectors as four columns to kLanes rows of four, and back; row i stands at base + i * step.
struct Columns {
    Floats a, b, c, d;
};
[[gnu::always_inline]] inline Columns Turn(const Columns& v) {
    const __m256 ab0 = _mm256_unpacklo_ps((__m256)v.a, (__m256)v.b);
    const __m256 ab1 = _mm256_unpackhi_ps((__m256)v.a, (__m256)v.b);
    const __m256 cd0 = _mm256_unpacklo_ps((__m256)v.c, (__m256)v.d);
    const __m256 cd1 = _mm256_unpackhi_ps((__m256)v.c, (__m256)v.d);
    return {(Floats)_mm256_shuffle_ps(ab0, cd0, 0x44), (Floats)_mm256_shuffle_ps(ab0, cd0, 0xEE),
            (Floats)_mm256_shuffle_ps(ab1, cd1, 0x44), (Floats)_mm256_shuffle_ps(ab1, cd1, 0xEE)};
}
[[gnu::always_inline]] inline Columns LoadRows(const float* base, std::ptrdiff_t step) {
    const auto pair = [=](std::ptrdiff_t i) __attribute__((always_inline)) {
        return (Floats)_mm256_set_m128(_mm_loadu_ps(base + (i + 4) * step),
                                       _mm_loadu_ps(base + i * step));
    };
    return Turn({pair(0), pair(1), pair(2), pair(3)});
}
[[gnu::always_inline]] inline void StoreRows(float* base, std::ptrdiff_t step, const Columns& v) {
    const Columns rows = Turn(v);
    const Floats pairs[4] = {rows.a, rows.b, rows.c, rows.d};
    for (std::ptrdiff_t i = 0; i < 4; ++i) {
        _mm_storeu_ps(base + i * step, _mm256_castps256_ps128((__m256)pairs[i]));
        _mm_storeu_ps(base + (i + 4) * step, _mm256_extractf128_ps((__m256)pairs[i], 1));
    }
}

} // namespace
} // namespace ombrel

#include "scene/simd/place_and_light.h"

namespace ombrel {
const FrontEndKernels kAvx2Kernels = {PlaceVertices, LightPoints};
} // namespace ombrel
