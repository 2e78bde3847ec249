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
[[gnu::always_inline]] inline bool All(Ints mask) {
    return _mm256_testc_si256((__m256i)mask, _mm256_set1_epi32(-1)) != 0;
}
[[gnu::always_inline]] inline Pixels Select(Pixels mask, Pixels yes, Pixels no) {
    return (Pixels)_mm256_blendv_epi8((__m256i)no, (__m256i)yes, (__m256i)mask);
}

// Pixels of the frame, of one part of a block or of two.
template <int parts> [[gnu::always_inline]] inline Pixels LoadPixels(const Pixel16* from) {
    return parts == 2 ? Load<Pixels>(from) : (Pixels)_mm256_castsi128_si256(Load<__m128i>(from));
}
template <int parts> [[gnu::always_inline]] inline void StorePixels(Pixel16* to, Pixels pixels) {
    if constexpr (parts == 2) {
        Store(to, pixels);
    } else {
        Store(to, _mm256_castsi256_si128((__m256i)pixels));
    }
}
// From lanes to pixels and back: masks; colours, which are below 2^16.
[[gnu::always_inline]] inline Pixels Narrow(Ints low, Ints high) {
    return (Pixels)_mm256_permute4x64_epi64(_mm256_packs_epi32((__m256i)low, (__m256i)high), 0xD8);
}
[[gnu::always_inline]] inline Pixels Narrow(Words low, Words high) {
    return (Pixels)_mm256_permute4x64_epi64(_mm256_packus_epi32((__m256i)low, (__m256i)high), 0xD8);
}
[[gnu::always_inline]] inline Words WidenLow(Pixels pixels) {
    return (Words)_mm256_cvtepu16_epi32(_mm256_castsi256_si128((__m256i)pixels));
}
[[gnu::always_inline]] inline Words WidenHigh(Pixels pixels) {
    return (Words)_mm256_cvtepu16_epi32(_mm256_extracti128_si256((__m256i)pixels, 1));
}
// The lower halves of both.
[[gnu::always_inline]] inline Pixels Join(Pixels low, Pixels high) {
    return (Pixels)_mm256_permute2x128_si256((__m256i)low, (__m256i)high, 0x20);
}

// A texel for each index, of the first so many at least.
[[gnu::always_inline]] inline Pixels FetchTexels(const Pixel16* texels, Ints index,
                                                 std::int32_t count) {
    const auto two = (IndexPairs)index;
    __m128i v = AddTexels<0>(_mm_setzero_si128(), texels, two[0]);
    v = AddTexels<2>(v, texels, two[1]);
    if (count > 4) {
        v = AddTexels<4>(v, texels, two[2]);
        v = AddTexels<6>(v, texels, two[3]);
    }
    return (Pixels)_mm256_castsi128_si256(v);
}
// Two neighbours a lane, the left one in the low half.
[[gnu::always_inline]] inline Words FetchTexelPairs(const Pixel16* texels, Ints index) {
    return (Words)_mm256_i32gather_epi32(reinterpret_cast<const int*>(texels), (__m256i)index, 2);
}
// Products of halves: the high half of each, without sign; or 1/2^15 of each to nearest, with sign.
[[gnu::always_inline]] inline Pixels HighHalves(Pixels a, Pixels b) {
    return (Pixels)_mm256_mulhi_epu16((__m256i)a, (__m256i)b);
}
[[gnu::always_inline]] inline Pixels RoundedProducts(Pixels a, Pixels b) {
    return (Pixels)_mm256_mulhrs_epi16((__m256i)a, (__m256i)b);
}
// Low half times low half plus high half times high half, with sign.
[[gnu::always_inline]] inline Words SumOfProducts(Words a, Words b) {
    return (Words)_mm256_madd_epi16((__m256i)a, (__m256i)b);
}

// The slots of one point from both halves.
[[gnu::always_inline]] inline Octet MakeOctet(Quad low, Quad high) {
    return (Octet)_mm256_set_m128i((__m128i)high, (__m128i)low);
}
// Slot k in all lanes.
template <int k> [[gnu::always_inline]] inline Ints Spread(Quad slots) {
    return (Ints)_mm256_shuffle_epi32(_mm256_broadcastsi128_si256((__m128i)slots), k * 0x55);
}
template <int k> [[gnu::always_inline]] inline Ints Spread(Octet slots) {
    const __m256i both = _mm256_permute4x64_epi64((__m256i)slots, k < 4 ? 0x44 : 0xEE);
    return (Ints)_mm256_shuffle_epi32(both, k % 4 * 0x55);
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
