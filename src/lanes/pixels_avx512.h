// Sixteen pixels at a time, in AVX-512 (F, BW, DQ, VL).
#pragma once

#include "lanes/pixels_x86.h"

namespace ombrel {
namespace {

struct Avx512Pixels : AvxPixels<Avx512Pixels, 16> {
    using AvxPixels::Max;
    using AvxPixels::Min;
    using AvxPixels::ScaleChop;

    OMBREL_INLINE static Words Min(Words a, Words b) {
        return (Words)_mm512_min_epu32((__m512i)a, (__m512i)b);
    }
    OMBREL_INLINE static Words Max(Words a, Words b) {
        return (Words)_mm512_max_epu32((__m512i)a, (__m512i)b);
    }
    OMBREL_INLINE static bool All(Ints mask) {
        return _mm512_movepi32_mask((__m512i)mask) == 0xFFFF;
    }
    OMBREL_INLINE static Pixels Select(Pixels mask, Pixels yes, Pixels no) {
        return (Pixels)_mm512_ternarylogic_epi32((__m512i)mask, (__m512i)yes, (__m512i)no, 0xCA);
    }

    template <int parts> OMBREL_INLINE static Pixels LoadPixels(const Pixel16* from) {
        return parts == 2 ? Load<Pixels>(from)
                          : (Pixels)_mm512_castsi256_si512(Load<__m256i>(from));
    }
    template <int parts> OMBREL_INLINE static void StorePixels(Pixel16* to, Pixels pixels) {
        if constexpr (parts == 2) {
            Store(to, pixels);
        } else {
            Store(to, _mm512_castsi512_si256((__m512i)pixels));
        }
    }
    OMBREL_INLINE static Pixels Join(Words low, Words high) {
        return (Pixels)_mm512_inserti64x4(
            _mm512_castsi256_si512(_mm512_cvtepi32_epi16((__m512i)low)),
            _mm512_cvtepi32_epi16((__m512i)high), 1);
    }
    OMBREL_INLINE static Pixels Join(Ints low, Ints high) { return Join((Words)low, (Words)high); }
    template <int i> OMBREL_INLINE static Words Widen(Pixels a) {
        return (Words)_mm512_cvtepu16_epi32(_mm512_extracti64x4_epi64((__m512i)a, i));
    }
    OMBREL_INLINE static Pixels Join(Pixels low, Pixels high) {
        return (Pixels)_mm512_inserti64x4((__m512i)low, _mm512_castsi512_si256((__m512i)high), 1);
    }

    OMBREL_INLINE static Words FetchTexelPairs(const Pixel16* texels, Ints index) {
        return (Words)_mm512_i32gather_epi32((__m512i)index, texels, 2);
    }
    OMBREL_INLINE static Pixels FetchTexels(const Pixel16* texels, Ints index, std::int32_t count) {
        const auto two = (IndexPairs)index;
        const __m128i low = FetchEight(texels, two[0], two[1], two[2], two[3]);
        const __m128i high =
            count > 8 ? FetchEight(texels, two[4], two[5], two[6], two[7]) : _mm_setzero_si128();
        return (Pixels)_mm512_castsi256_si512(_mm256_set_m128i(high, low));
    }
    OMBREL_INLINE static Pixels HighHalves(Pixels a, Pixels b) {
        return (Pixels)_mm512_mulhi_epu16((__m512i)a, (__m512i)b);
    }
    OMBREL_INLINE static Pixels RoundedProducts(Pixels a, Pixels b) {
        return (Pixels)_mm512_mulhrs_epi16((__m512i)a, (__m512i)b);
    }
    OMBREL_INLINE static Words SumOfProducts(Words a, Words b) {
        return (Words)_mm512_madd_epi16((__m512i)a, (__m512i)b);
    }

    template <int k> OMBREL_INLINE static Ints Spread(Quad slots) {
        return (Ints)_mm512_broadcastd_epi32(_mm_shuffle_epi32((__m128i)slots, k * 0x55));
    }
    template <int k> OMBREL_INLINE static Ints Spread(Octet slots) {
        return Spread<k % 4>((Quad)_mm256_extracti128_si256((__m256i)slots, k / 4));
    }

    OMBREL_INLINE static Doubles ToDoubles(Ints a) {
        return {_mm512_cvtepi32_pd(_mm512_castsi512_si256((__m512i)a)),
                _mm512_cvtepi32_pd(_mm512_extracti64x4_epi64((__m512i)a, 1))};
    }
    OMBREL_INLINE static Ints ChopProduct(Doubles a, Doubles b) {
        const __m256i low = _mm512_cvttpd_epi32(_mm512_mul_pd(a.low, b.low));
        const __m256i high = _mm512_cvttpd_epi32(_mm512_mul_pd(a.high, b.high));
        return (Ints)_mm512_inserti64x4(_mm512_castsi256_si512(low), high, 1);
    }
    OMBREL_INLINE static Octet ScaleChop(Octet a, double factor) {
        return (Octet)_mm512_cvttpd_epi32(
            _mm512_mul_pd(_mm512_cvtepi32_pd((__m256i)a), _mm512_set1_pd(factor)));
    }
    OMBREL_INLINE static Pixels Average(Pixels a, Pixels b) {
        return (Pixels)_mm512_avg_epu16((__m512i)a, (__m512i)b);
    }

private:
    // Eight texels, by pairs of indices.
    OMBREL_INLINE static __m128i FetchEight(const Pixel16* texels, std::uint64_t a, std::uint64_t b,
                                            std::uint64_t c, std::uint64_t d) {
        __m128i v = AddTexels<0>(_mm_setzero_si128(), texels, a);
        v = AddTexels<2>(v, texels, b);
        v = AddTexels<4>(v, texels, c);
        return AddTexels<6>(v, texels, d);
    }
};

} // namespace
} // namespace ombrel
