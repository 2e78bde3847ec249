// The twins in SSE4.1: four pixels at a time. Here is only what the vector extension of the
// language cannot say; the fillers themselves are in fillers.h beside this file.
namespace ombrel {
namespace {
constexpr int kLanes = 4;
}
} // namespace ombrel

#include "raster/simd/lanes.h"
#include "raster/simd/twins.h"

namespace ombrel {
namespace {

[[gnu::always_inline]] inline Words Min(Words a, Words b) {
    return (Words)_mm_min_epu32((__m128i)a, (__m128i)b);
}
[[gnu::always_inline]] inline Words Max(Words a, Words b) {
    return (Words)_mm_max_epu32((__m128i)a, (__m128i)b);
}
[[gnu::always_inline]] inline bool All(Ints mask) {
    return _mm_testc_si128((__m128i)mask, _mm_set1_epi32(-1)) != 0;
}
[[gnu::always_inline]] inline Pixels Select(Pixels mask, Pixels yes, Pixels no) {
    return (Pixels)_mm_blendv_epi8((__m128i)no, (__m128i)yes, (__m128i)mask);
}

// Pixels of the frame, of one part of a block or of two.
template <int parts> [[gnu::always_inline]] inline Pixels LoadPixels(const Pixel16* from) {
    const auto* v = reinterpret_cast<const __m128i*>(from);
    return (Pixels)(parts == 2 ? _mm_loadu_si128(v) : _mm_loadl_epi64(v));
}
template <int parts> [[gnu::always_inline]] inline void StorePixels(Pixel16* to, Pixels pixels) {
    auto* const v = reinterpret_cast<__m128i*>(to);
    if constexpr (parts == 2) {
        _mm_storeu_si128(v, (__m128i)pixels);
    } else {
        _mm_storel_epi64(v, (__m128i)pixels);
    }
}
// From lanes to pixels and back: masks; colours, which are below 2^16.
[[gnu::always_inline]] inline Pixels Narrow(Ints low, Ints high) {
    return (Pixels)_mm_packs_epi32((__m128i)low, (__m128i)high);
}
[[gnu::always_inline]] inline Pixels Narrow(Words low, Words high) {
    return (Pixels)_mm_packus_epi32((__m128i)low, (__m128i)high);
}
[[gnu::always_inline]] inline Words WidenLow(Pixels pixels) {
    return (Words)_mm_cvtepu16_epi32((__m128i)pixels);
}
[[gnu::always_inline]] inline Words WidenHigh(Pixels pixels) {
    return (Words)_mm_unpackhi_epi16((__m128i)pixels, _mm_setzero_si128());
}
// The lower halves of both.
[[gnu::always_inline]] inline Pixels Join(Pixels low, Pixels high) {
    return (Pixels)_mm_unpacklo_epi64((__m128i)low, (__m128i)high);
}

// A texel for each index.
[[gnu::always_inline]] inline Pixels FetchTexels(const Pixel16* texels, Ints index, std::int32_t) {
    const auto two = (IndexPairs)index;
    const __m128i v = AddTexels<0>(_mm_setzero_si128(), texels, two[0]);
    return (Pixels)AddTexels<2>(v, texels, two[1]);
}
// Two neighbours a lane, the left one in the low half.
[[gnu::always_inline]] inline Words FetchTexelPairs(const Pixel16* texels, Ints index) {
    return Words{Load<std::uint32_t>(texels + index[0]), Load<std::uint32_t>(texels + index[1]),
                 Load<std::uint32_t>(texels + index[2]), Load<std::uint32_t>(texels + index[3])};
}
// Products of halves: the high half of each, without sign; or 1/2^15 of each to nearest, with sign.
[[gnu::always_inline]] inline Pixels HighHalves(Pixels a, Pixels b) {
    return (Pixels)_mm_mulhi_epu16((__m128i)a, (__m128i)b);
}
[[gnu::always_inline]] inline Pixels RoundedProducts(Pixels a, Pixels b) {
    return (Pixels)_mm_mulhrs_epi16((__m128i)a, (__m128i)b);
}
// Low half times low half plus high half times high half, with sign.
[[gnu::always_inline]] inline Words SumOfProducts(Words a, Words b) {
    return (Words)_mm_madd_epi16((__m128i)a, (__m128i)b);
}

// The slots of one point from both halves.
[[gnu::always_inline]] inline Octet MakeOctet(Quad low, Quad high) {
    const Quad half[2] = {low, high};
    return Load<Octet>(half);
}
// Slot k in all lanes.
template <int k> [[gnu::always_inline]] inline Ints Spread(Quad slots) {
    return (Ints)_mm_shuffle_epi32((__m128i)slots, k * 0x55);
}
template <int k> [[gnu::always_inline]] inline Ints Spread(Octet slots) {
    Quad half[2];
    std::memcpy(half, &slots, sizeof slots);
    return Spread<k % 4>(half[k / 4]);
}

struct Halved {
    __m128d low, high;
};
[[gnu::always_inline]] inline Halved ToDoubles(Quad a) {
    return {_mm_cvtepi32_pd((__m128i)a), _mm_cvtepi32_pd(_mm_shuffle_epi32((__m128i)a, 0xEE))};
}
[[gnu::always_inline]] inline Quad ChopProduct(Halved a, Halved b) {
    return (Quad)_mm_unpacklo_epi64(_mm_cvttpd_epi32(_mm_mul_pd(a.low, b.low)),
                                    _mm_cvttpd_epi32(_mm_mul_pd(a.high, b.high)));
}
[[gnu::always_inline]] inline Halved ReciprocalsOf(Quad a) {
    const __m128d trace = _mm_set1_pd(kTraceAboveOne);
    const Halved d = ToDoubles(a);
    return {_mm_div_pd(trace, d.low), _mm_div_pd(trace, d.high)};
}

[[gnu::always_inline]] inline Quad ScaleChop(Quad a, double factor) {
    const __m128d both = _mm_set1_pd(factor);
    return ChopProduct(ToDoubles(a), {both, both});
}
[[gnu::always_inline]] inline Octet ScaleChop(Octet a, double factor) {
    Quad half[2];
    std::memcpy(half, &a, sizeof a);
    half[0] = ScaleChop(half[0], factor);
    half[1] = ScaleChop(half[1], factor);
    std::memcpy(&a, half, sizeof a);
    return a;
}

// Toward zero; by 0: 0.
[[gnu::always_inline]] inline Quad DivChop(Quad a, Quad b) {
    return ChopProduct(ToDoubles(a), ReciprocalsOf(b)) & (b != 0);
}
struct IntsPair {
    Ints first, second;
};
[[gnu::always_inline]] inline IntsPair DivChop(Ints a, Ints b, Ints divisor) {
    const Halved reciprocals = ReciprocalsOf(divisor);
    const Ints defined = divisor != 0;
    return {ChopProduct(ToDoubles(a), reciprocals) & defined,
            ChopProduct(ToDoubles(b), reciprocals) & defined};
}

} // namespace
} // namespace ombrel

#include "raster/simd/fillers.h"

namespace ombrel {

#define OMBREL_TWIN(name, ...) FillTriangle<FillerId::name>,
const Filler kSse41Fillers[kFillerCount] = {OMBREL_FILLERS(OMBREL_TWIN)};
#undef OMBREL_TWIN

} // namespace ombrel
