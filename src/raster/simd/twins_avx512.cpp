// The twins in AVX-512 (F, BW, DQ, VL): sixteen pixels at a time. Here is only what the vector
// extension of the language cannot say; the fillers themselves are in fillers.h beside this file.
// Never run so far for want of a processor: taken only when asked for by name.
namespace ombrel {
namespace {
constexpr int kLanes = 16;
}
} // namespace ombrel

#include "raster/simd/lanes.h"
#include "raster/simd/twins.h"

namespace ombrel {
namespace {

[[gnu::always_inline]] inline Words Min(Words a, Words b) {
    return (Words)_mm512_min_epu32((__m512i)a, (__m512i)b);
}
[[gnu::always_inline]] inline Words Max(Words a, Words b) {
    return (Words)_mm512_max_epu32((__m512i)a, (__m512i)b);
}
[[gnu::always_inline]] inline bool All(Ints mask) {
    return _mm512_movepi32_mask((__m512i)mask) == 0xFFFF;
}
[[gnu::always_inline]] inline Pixels Select(Pixels mask, Pixels yes, Pixels no) {
    return (Pixels)_mm512_ternarylogic_epi32((__m512i)mask, (__m512i)yes, (__m512i)no, 0xCA);
}

// Pixels of the frame, of one part of a block or of two.
template <int parts> [[gnu::always_inline]] inline Pixels LoadPixels(const Pixel16* from) {
    return parts == 2 ? Load<Pixels>(from) : (Pixels)_mm512_castsi256_si512(Load<__m256i>(from));
}
template <int parts> [[gnu::always_inline]] inline void StorePixels(Pixel16* to, Pixels pixels) {
    if constexpr (parts == 2) {
        Store(to, pixels);
    } else {
        Store(to, _mm512_castsi512_si256((__m512i)pixels));
    }
}
// From lanes to pixels and back: masks; colours, which are below 2^16.
[[gnu::always_inline]] inline Pixels Narrow(Words low, Words high) {
    return (Pixels)_mm512_inserti64x4(_mm512_castsi256_si512(_mm512_cvtepi32_epi16((__m512i)low)),
                                      _mm512_cvtepi32_epi16((__m512i)high), 1);
}
[[gnu::always_inline]] inline Pixels Narrow(Ints low, Ints high) {
    return Narrow((Words)low, (Words)high);
}
[[gnu::always_inline]] inline Words WidenLow(Pixels pixels) {
    return (Words)_mm512_cvtepu16_epi32(_mm512_castsi512_si256((__m512i)pixels));
}
[[gnu::always_inline]] inline Words WidenHigh(Pixels pixels) {
    return (Words)_mm512_cvtepu16_epi32(_mm512_extracti64x4_epi64((__m512i)pixels, 1));
}
// The lower halves of both.
[[gnu::always_inline]] inline Pixels Join(Pixels low, Pixels high) {
    return (Pixels)_mm512_inserti64x4((__m512i)low, _mm512_castsi512_si256((__m512i)high), 1);
}

// Two neighbours a lane, the left one in the low half.
[[gnu::always_inline]] inline Words FetchTexelPairs(const Pixel16* texels, Ints index) {
    return (Words)_mm512_i32gather_epi32((__m512i)index, texels, 2);
}
// A texel for each index, of the first so many at least.
[[gnu::always_inline]] inline Pixels FetchTexels(const Pixel16* texels, Ints index,
                                                 std::int32_t count) {
    const auto two = (IndexPairs)index;
    __m128i v[2] = {};
    ForEachPart<2>([&](int i) __attribute__((always_inline)) {
        if (count > 8 * i) {
            v[i] = AddTexels<0>(v[i], texels, two[4 * i]);
            v[i] = AddTexels<2>(v[i], texels, two[4 * i + 1]);
            v[i] = AddTexels<4>(v[i], texels, two[4 * i + 2]);
            v[i] = AddTexels<6>(v[i], texels, two[4 * i + 3]);
        }
    });
    return (Pixels)_mm512_castsi256_si512(_mm256_set_m128i(v[1], v[0]));
}
// Products of halves: the high half of each, without sign; or 1/2^15 of each to nearest, with sign.
[[gnu::always_inline]] inline Pixels HighHalves(Pixels a, Pixels b) {
    return (Pixels)_mm512_mulhi_epu16((__m512i)a, (__m512i)b);
}
[[gnu::always_inline]] inline Pixels RoundedProducts(Pixels a, Pixels b) {
    return (Pixels)_mm512_mulhrs_epi16((__m512i)a, (__m512i)b);
}
// Low half times low half plus high half times high half, with sign.
[[gnu::always_inline]] inline Words SumOfProducts(Words a, Words b) {
    return (Words)_mm512_madd_epi16((__m512i)a, (__m512i)b);
}

// The slots of one point from both halves.
[[gnu::always_inline]] inline Octet MakeOctet(Quad low, Quad high) {
    return (Octet)_mm256_set_m128i((__m128i)high, (__m128i)low);
}
// Slot k in all lanes.
template <int k> [[gnu::always_inline]] inline Ints Spread(Quad slots) {
    return (Ints)_mm512_broadcastd_epi32(_mm_shuffle_epi32((__m128i)slots, k * 0x55));
}
template <int k> [[gnu::always_inline]] inline Ints Spread(Octet slots) {
    return Spread<k % 4>((Quad)_mm256_extracti128_si256((__m256i)slots, k / 4));
}

[[gnu::always_inline]] inline Quad ScaleChop(Quad a, double factor) {
    return (Quad)_mm256_cvttpd_epi32(
        _mm256_mul_pd(_mm256_cvtepi32_pd((__m128i)a), _mm256_set1_pd(factor)));
}
[[gnu::always_inline]] inline Octet ScaleChop(Octet a, double factor) {
    return (Octet)_mm512_cvttpd_epi32(
        _mm512_mul_pd(_mm512_cvtepi32_pd((__m256i)a), _mm512_set1_pd(factor)));
}

// Toward zero; by 0: 0.
[[gnu::always_inline]] inline Quad DivChop(Quad a, Quad b) {
    const __m256d reciprocals =
        _mm256_div_pd(_mm256_set1_pd(kTraceAboveOne), _mm256_cvtepi32_pd((__m128i)b));
    const __m128i quotients =
        _mm256_cvttpd_epi32(_mm256_mul_pd(_mm256_cvtepi32_pd((__m128i)a), reciprocals));
    return (Quad)quotients & (b != 0);
}
struct IntsPair {
    Ints first, second;
};
struct Halved {
    __m512d low, high;
};
[[gnu::always_inline]] inline Halved ToDoubles(Ints a) {
    return {_mm512_cvtepi32_pd(_mm512_castsi512_si256((__m512i)a)),
            _mm512_cvtepi32_pd(_mm512_extracti64x4_epi64((__m512i)a, 1))};
}
[[gnu::always_inline]] inline Ints ChopProduct(Halved a, Halved b) {
    const __m256i low = _mm512_cvttpd_epi32(_mm512_mul_pd(a.low, b.low));
    const __m256i high = _mm512_cvttpd_epi32(_mm512_mul_pd(a.high, b.high));
    return (Ints)_mm512_inserti64x4(_mm512_castsi256_si512(low), high, 1);
}
[[gnu::always_inline]] inline IntsPair DivChop(Ints a, Ints b, Ints divisor) {
    const __m512d trace = _mm512_set1_pd(kTraceAboveOne);
    const Halved d = ToDoubles(divisor);
    const Halved reciprocals = {_mm512_div_pd(trace, d.low), _mm512_div_pd(trace, d.high)};
    const Ints defined = divisor != 0;
    return {ChopProduct(ToDoubles(a), reciprocals) & defined,
            ChopProduct(ToDoubles(b), reciprocals) & defined};
}

} // namespace
} // namespace ombrel

#include "raster/simd/fillers.h"

namespace ombrel {

#define OMBREL_TWIN(name, ...) FillTriangle<FillerId::name>,
const Filler kAvx512Fillers[kFillerCount] = {OMBREL_FILLERS(OMBREL_TWIN)};
#undef OMBREL_TWIN

} // namespace ombrel
