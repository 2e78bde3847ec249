// The twins in AVX2: eight pixels at a time. Here is only what the vector extension of the language
// cannot say; the fillers themselves are in fillers.h beside this file.
namespace ombrel {
namespace {
constexpr int kLanes = 8;
}
} // namespace ombrel

#include "raster/simd/lanes.h"
#include "raster/simd/twins.h"

namespace ombrel {
namespace {

[[gnu::always_inline]] inline Words Min(Words a, Words b) {
    return (Words)_mm256_min_epu32((__m256i)a, (__m256i)b);
}
[[gnu::always_inline]] inline Words Max(Words a, Words b) {
    return (Words)_mm256_max_epu32((__m256i)a, (__m256i)b);
}
[[gnu::always_inline]] inline bool Any(Ints mask) {
    return _mm256_testz_si256((__m256i)mask, (__m256i)mask) == 0;
}

// Pixels of the frame, widened to lanes and back; back only below 2^16.
[[gnu::always_inline]] inline Words LoadPixels(const Pixel16* from) {
    return (Words)_mm256_cvtepu16_epi32(Load<__m128i>(from));
}
[[gnu::always_inline]] inline void StorePixels(Pixel16* to, Words pixels) {
    const __m256i v = (__m256i)pixels;
    Store(to, _mm_packus_epi32(_mm256_castsi256_si128(v), _mm256_extracti128_si256(v, 1)));
}

using IndexPairs [[gnu::vector_size(32)]] = std::uint64_t;

// One texel a lane, and not a byte besides. Indices of 0 or more, taken out two at a time.
[[gnu::always_inline]] inline Words FetchTexels(const Pixel16* texels, Ints index) {
    const auto two = (IndexPairs)index;
    __m128i v = _mm_cvtsi32_si128(texels[two[0] & 0xFFFFFFFF]);
    v = _mm_insert_epi16(v, texels[two[0] >> 32], 1);
    v = _mm_insert_epi16(v, texels[two[1] & 0xFFFFFFFF], 2);
    v = _mm_insert_epi16(v, texels[two[1] >> 32], 3);
    v = _mm_insert_epi16(v, texels[two[2] & 0xFFFFFFFF], 4);
    v = _mm_insert_epi16(v, texels[two[2] >> 32], 5);
    v = _mm_insert_epi16(v, texels[two[3] & 0xFFFFFFFF], 6);
    v = _mm_insert_epi16(v, texels[two[3] >> 32], 7);
    return (Words)_mm256_cvtepu16_epi32(v);
}

// Two neighbours a lane, the left one in the low half.
[[gnu::always_inline]] inline Words FetchTexelPairs(const Pixel16* texels, Ints index) {
    return (Words)_mm256_i32gather_epi32(reinterpret_cast<const int*>(texels), (__m256i)index, 2);
}
// Products of halves: the high half of each, without sign; or 1/2^15 of each to nearest, with sign.
[[gnu::always_inline]] inline Words HighHalves(Words a, Words b) {
    return (Words)_mm256_mulhi_epu16((__m256i)a, (__m256i)b);
}
[[gnu::always_inline]] inline Words RoundedProducts(Words a, Words b) {
    return (Words)_mm256_mulhrs_epi16((__m256i)a, (__m256i)b);
}
// Low half times low half plus high half times high half, with sign.
[[gnu::always_inline]] inline Words SumOfProducts(Words a, Words b) {
    return (Words)_mm256_madd_epi16((__m256i)a, (__m256i)b);
}

[[gnu::always_inline]] inline Quad ScaleChop(Quad a, double factor) {
    return (Quad)_mm256_cvttpd_epi32(
        _mm256_mul_pd(_mm256_cvtepi32_pd((__m128i)a), _mm256_set1_pd(factor)));
}
[[gnu::always_inline]] inline Octet ScaleChop(Octet a, double factor) {
    const Quad low = ScaleChop((Quad)_mm256_castsi256_si128((__m256i)a), factor);
    const Quad high = ScaleChop((Quad)_mm256_extracti128_si256((__m256i)a, 1), factor);
    return (Octet)_mm256_set_m128i((__m128i)high, (__m128i)low);
}

// Toward zero; by 0: 0.
[[gnu::always_inline]] inline Quad DivChop(Quad a, Quad b) {
    const __m256d reciprocal =
        _mm256_div_pd(_mm256_set1_pd(kTraceAboveOne), _mm256_cvtepi32_pd((__m128i)b));
    const __m128i quotient =
        _mm256_cvttpd_epi32(_mm256_mul_pd(_mm256_cvtepi32_pd((__m128i)a), reciprocal));
    return (Quad)quotient & (b != 0);
}
struct IntsPair {
    Ints first, second;
};
[[gnu::always_inline]] inline IntsPair DivChop(Ints a, Ints b, Ints divisor) {
    const __m256i va = (__m256i)a, vb = (__m256i)b, vd = (__m256i)divisor;
    const Quad d0 = (Quad)_mm256_castsi256_si128(vd), d1 = (Quad)_mm256_extracti128_si256(vd, 1);
    const __m256d trace = _mm256_set1_pd(kTraceAboveOne);
    const __m256d r0 = _mm256_div_pd(trace, _mm256_cvtepi32_pd((__m128i)d0));
    const __m256d r1 = _mm256_div_pd(trace, _mm256_cvtepi32_pd((__m128i)d1));
    const auto scale = [](__m128i x, __m256d r) __attribute__((always_inline)) {
        return _mm256_cvttpd_epi32(_mm256_mul_pd(_mm256_cvtepi32_pd(x), r));
    };
    const __m256i qa = _mm256_set_m128i(scale(_mm256_extracti128_si256(va, 1), r1),
                                        scale(_mm256_castsi256_si128(va), r0));
    const __m256i qb = _mm256_set_m128i(scale(_mm256_extracti128_si256(vb, 1), r1),
                                        scale(_mm256_castsi256_si128(vb), r0));
    const Ints defined = divisor != 0;
    return {(Ints)qa & defined, (Ints)qb & defined};
}

} // namespace
} // namespace ombrel

#include "raster/simd/fillers.h"

namespace ombrel {

#define OMBREL_TWIN(name, ...) FillTriangle<FillerId::name>,
const Filler kAvx2Fillers[kFillerCount] = {OMBREL_FILLERS(OMBREL_TWIN)};
#undef OMBREL_TWIN

} // namespace ombrel
