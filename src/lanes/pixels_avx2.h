// Eight pixels at a time, in AVX2.
#pragma once

#include "lanes/pixels_x86.h"

namespace ombrel {
namespace {

struct Avx2Pixels : AvxPixels<Avx2Pixels, 8> {
    using AvxPixels::Max;
    using AvxPixels::Min;

    OMBREL_INLINE static Words Min(Words a, Words b) {
        return (Words)_mm256_min_epu32((__m256i)a, (__m256i)b);
    }
    OMBREL_INLINE static Words Max(Words a, Words b) {
        return (Words)_mm256_max_epu32((__m256i)a, (__m256i)b);
    }
    OMBREL_INLINE static bool All(Ints mask) {
        return _mm256_testc_si256((__m256i)mask, _mm256_set1_epi32(-1)) != 0;
    }
    OMBREL_INLINE static Pixels Select(Pixels mask, Pixels yes, Pixels no) {
        return (Pixels)_mm256_blendv_epi8((__m256i)no, (__m256i)yes, (__m256i)mask);
    }

    template <int parts> OMBREL_INLINE static Pixels LoadPixels(const Pixel16* from) {
        return parts == 2 ? Load<Pixels>(from)
                          : (Pixels)_mm256_castsi128_si256(Load<__m128i>(from));
    }
    template <int parts> OMBREL_INLINE static void StorePixels(Pixel16* to, Pixels pixels) {
        if constexpr (parts == 2) {
            Store(to, pixels);
        } else {
            Store(to, _mm256_castsi256_si128((__m256i)pixels));
        }
    }
    OMBREL_INLINE static Pixels Join(Ints low, Ints high) {
        return (Pixels)_mm256_permute4x64_epi64(_mm256_packs_epi32((__m256i)low, (__m256i)high),
                                                0xD8);
    }
    OMBREL_INLINE static Pixels Join(Words low, Words high) {
        return (Pixels)_mm256_permute4x64_epi64(_mm256_packus_epi32((__m256i)low, (__m256i)high),
                                                0xD8);
    }
    template <int i> OMBREL_INLINE static Words Widen(Pixels a) {
        return (Words)_mm256_cvtepu16_epi32(_mm256_extracti128_si256((__m256i)a, i));
    }
    OMBREL_INLINE static Pixels Join(Pixels low, Pixels high) {
        return (Pixels)_mm256_permute2x128_si256((__m256i)low, (__m256i)high, 0x20);
    }

    OMBREL_INLINE static Pixels FetchTexels(const Pixel16* texels, Ints index, std::int32_t count) {
        const auto two = (IndexPairs)index;
        __m128i v = AddTexels<0>(_mm_setzero_si128(), texels, two[0]);
        v = AddTexels<2>(v, texels, two[1]);
        if (count > 4) {
            v = AddTexels<4>(v, texels, two[2]);
            v = AddTexels<6>(v, texels, two[3]);
        }
        return (Pixels)_mm256_castsi128_si256(v);
    }
    OMBREL_INLINE static Words FetchTexelPairs(const Pixel16* texels, Ints index) {
        return (Words)_mm256_i32gather_epi32(reinterpret_cast<const int*>(texels), (__m256i)index,
                                             2);
    }
    OMBREL_INLINE static Pixels HighHalves(Pixels a, Pixels b) {
        return (Pixels)_mm256_mulhi_epu16((__m256i)a, (__m256i)b);
    }
    OMBREL_INLINE static Pixels RoundedProducts(Pixels a, Pixels b) {
        return (Pixels)_mm256_mulhrs_epi16((__m256i)a, (__m256i)b);
    }
    OMBREL_INLINE static Words SumOfProducts(Words a, Words b) {
        return (Words)_mm256_madd_epi16((__m256i)a, (__m256i)b);
    }

    template <int k> OMBREL_INLINE static Ints Spread(Quad slots) {
        return (Ints)_mm256_shuffle_epi32(_mm256_broadcastsi128_si256((__m128i)slots), k * 0x55);
    }
    template <int k> OMBREL_INLINE static Ints Spread(Octet slots) {
        const __m256i both = _mm256_permute4x64_epi64((__m256i)slots, k < 4 ? 0x44 : 0xEE);
        return (Ints)_mm256_shuffle_epi32(both, k % 4 * 0x55);
    }

    OMBREL_INLINE static Doubles ToDoubles(Ints a) {
        return {_mm256_cvtepi32_pd(_mm256_castsi256_si128((__m256i)a)),
                _mm256_cvtepi32_pd(_mm256_extracti128_si256((__m256i)a, 1))};
    }
    OMBREL_INLINE static Ints ChopProduct(Doubles a, Doubles b) {
        return (Ints)_mm256_set_m128i(_mm256_cvttpd_epi32(_mm256_mul_pd(a.high, b.high)),
                                      _mm256_cvttpd_epi32(_mm256_mul_pd(a.low, b.low)));
    }
    OMBREL_INLINE static Pixels Average(Pixels a, Pixels b) {
        return (Pixels)_mm256_avg_epu16((__m256i)a, (__m256i)b);
    }
};

} // namespace
} // namespace ombrel
