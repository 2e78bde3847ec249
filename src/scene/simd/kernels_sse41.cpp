// The kernels of the front end in SSE4.1: four corners at a time. Here is only what the vector
// extension of the language cannot say; the kernels themselves are in place_and_light.h.
#include <smmintrin.h>

#include "scene/simd/kernels.h"

namespace ombrel {
namespace {

constexpr int kLanes = 4;
using Floats [[gnu::vector_size(4 * kLanes)]] = float;
using Ints [[gnu::vector_size(4 * kLanes)]] = std::int32_t;

[[gnu::always_inline]] inline Floats All(float v) {
    return (Floats)_mm_set1_ps(v);
}
// Toward zero; what no 32-bit integer holds gives INT32_MIN.
[[gnu::always_inline]] inline Ints ToIntChop(Floats v) {
    return (Ints)_mm_cvttps_epi32((__m128)v);
}
[[gnu::always_inline]] inline Floats ToFloat(Ints v) {
    return (Floats)_mm_cvtepi32_ps((__m128i)v);
}
[[gnu::always_inline]] inline Ints Min(Ints a, Ints b) {
    return (Ints)_mm_min_epi32((__m128i)a, (__m128i)b);
}
[[gnu::always_inline]] inline Ints Max(Ints a, Ints b) {
    return (Ints)_mm_max_epi32((__m128i)a, (__m128i)b);
}

// Four vectors as four columns to kLanes rows of four, and back; row i stands at base + i * step.
struct Columns {
    Floats a, b, c, d;
};
[[gnu::always_inline]] inline Columns LoadRows(const float* base, std::ptrdiff_t step) {
    __m128 a = _mm_loadu_ps(base);
    __m128 b = _mm_loadu_ps(base + step);
    __m128 c = _mm_loadu_ps(base + 2 * step);
    __m128 d = _mm_loadu_ps(base + 3 * step);
    _MM_TRANSPOSE4_PS(a, b, c, d);
    return {(Floats)a, (Floats)b, (Floats)c, (Floats)d};
}
[[gnu::always_inline]] inline void StoreRows(float* base, std::ptrdiff_t step, const Columns& v) {
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

} // namespace
} // namespace ombrel

#include "scene/simd/place_and_light.h"

namespace ombrel {
const FrontEndKernels kSse41Kernels = {PlaceVertices, LightPoints};
} // namespace ombrel
