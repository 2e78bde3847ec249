// Four pixels at a time, in SSE4.1.
#pragma once

#include "lanes/pixels_x86.h"

namespace ombrel {
namespace {

struct Sse41Pixels : X86Pixels<Sse41Pixels, 4> {
    using X86Pixels::Max;
    using X86Pixels::Min;

    OMBREL_INLINE static Words Min(Words a, Words b) {
        return (Words)_mm_min_epu32((__m128i)a, (__m128i)b);
    }
    OMBREL_INLINE static Words Max(Words a, Words b) {
        return (Words)_mm_max_epu32((__m128i)a, (__m128i)b);
    }
    OMBREL_INLINE static bool All(Ints mask) {
        return _mm_testc_si128((__m128i)mask, _mm_set1_epi32(-1)) != 0;
    }
    OMBREL_INLINE static Pixels Select(Pixels mask, Pixels yes, Pixels no) {
        return (Pixels)_mm_blendv_epi8((__m128i)no, (__m128i)yes, (__m128i)mask);
    }

    template <int parts> OMBREL_INLINE static Pixels LoadPixels(const Pixel16* from) {
        const auto* v = reinterpret_cast<const __m128i*>(from);
        return (Pixels)(parts == 2 ? _mm_loadu_si128(v) : _mm_loadl_epi64(v));
    }
    template <int parts> OMBREL_INLINE static void StorePixels(Pixel16* to, Pixels pixels) {
        auto* const v = reinterpret_cast<__m128i*>(to);
        if constexpr (parts == 2) {
            _mm_storeu_si128(v, (__m128i)pixels);
        } else {
            _mm_storel_epi64(v, (__m128i)pixels);
        }
    }
    OMBREL_INLINE static Pixels Join(Ints low, Ints high) {
        return (Pixels)_mm_packs_epi32((__m128i)low, (__m128i)high);
    }
    OMBREL_INLINE static Pixels Join(Words low, Words high) {
        return (Pixels)_mm_packus_epi32((__m128i)low, (__m128i)high);
    }
    template <int i> OMBREL_INLINE static Words Widen(Pixels a) {
        return (Words)(i == 0 ? _mm_cvtepu16_epi32((__m128i)a)
                              : _mm_unpackhi_epi16((__m128i)a, _mm_setzero_si128()));
    }
    OMBREL_INLINE static Pixels Join(Pixels low, Pixels high) {
        return (Pixels)_mm_unpacklo_epi64((__m128i)low, (__m128i)high);
    }

    OMBREL_INLINE static Pixels FetchTexels(const Pixel16* texels, Ints index, std::int32_t) {
        const auto two = (IndexPairs)index;
        const __m128i v = AddTexels<0>(_mm_setzero_si128(), texels, two[0]);
        return (Pixels)AddTexels<2>(v, texels, two[1]);
    }
    OMBREL_INLINE static Words FetchTexelPairs(const Pixel16* texels, Ints index) {
        return Words{Load<std::uint32_t>(texels + index[0]), Load<std::uint32_t>(texels + index[1]),
                     Load<std::uint32_t>(texels + index[2]),
                     Load<std::uint32_t>(texels + index[3])};
    }
    OMBREL_INLINE static Pixels HighHalves(Pixels a, Pixels b) {
        return (Pixels)_mm_mulhi_epu16((__m128i)a, (__m128i)b);
    }
    OMBREL_INLINE static Pixels RoundedProducts(Pixels a, Pixels b) {
        return (Pixels)_mm_mulhrs_epi16((__m128i)a, (__m128i)b);
    }
    OMBREL_INLINE static Words SumOfProducts(Words a, Words b) {
        return (Words)_mm_madd_epi16((__m128i)a, (__m128i)b);
    }

    template <int k> OMBREL_INLINE static Ints Spread(Quad a) {
        return (Ints)_mm_shuffle_epi32((__m128i)a, k * 0x55);
    }
    template <int k> OMBREL_INLINE static Ints Spread(Octet a) {
        return Spread<k % 4>(k < 4 ? a.low : a.high);
    }

    OMBREL_INLINE static Doubles ToDoubles(Quad a) {
        return {_mm_cvtepi32_pd((__m128i)a), _mm_cvtepi32_pd(_mm_shuffle_epi32((__m128i)a, 0xEE))};
    }
    OMBREL_INLINE static Quad ChopProduct(Doubles a, Doubles b) {
        return (Quad)_mm_unpacklo_epi64(_mm_cvttpd_epi32(_mm_mul_pd(a.low, b.low)),
                                        _mm_cvttpd_epi32(_mm_mul_pd(a.high, b.high)));
    }
    OMBREL_INLINE static Pixels Average(Pixels a, Pixels b) {
        return (Pixels)_mm_avg_epu16((__m128i)a, (__m128i)b);
    }
};

} // namespace
} // namespace ombrel
