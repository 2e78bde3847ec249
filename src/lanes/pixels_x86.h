// What the lane sets of x86 share: vectors of four, and texels put into them.
#pragma once

#include <cstdint>

#include <immintrin.h>

#include "lanes/pixels_vector.h"

namespace ombrel {
namespace {

template <class L, int lanes> struct X86Pixels : VectorPixels<L, lanes> {
    using typename VectorPixels<L, lanes>::Quad;
    using typename VectorPixels<L, lanes>::Floats;
    using IndexPairs [[gnu::vector_size(4 * lanes)]] = std::uint64_t; // two lanes in one

    OMBREL_INLINE static Quad ToIntChop(Floats a) { return (Quad)_mm_cvttps_epi32((__m128)a); }
    OMBREL_INLINE static Quad Min(Quad a, Quad b) {
        return (Quad)_mm_min_epi32((__m128i)a, (__m128i)b);
    }
    OMBREL_INLINE static Quad Max(Quad a, Quad b) {
        return (Quad)_mm_max_epi32((__m128i)a, (__m128i)b);
    }
    OMBREL_INLINE static std::uint32_t SignsOf(Quad a) {
        return static_cast<std::uint32_t>(_mm_movemask_ps((__m128)a));
    }
    // Two texels more, by their indices (of 0 or more) in the halves of two. What the texture has
    // after a texel is not touched. (Going through memory or gathering is slower.)
    template <int place>
    OMBREL_INLINE static __m128i AddTexels(__m128i v, const Pixel16* texels, std::uint64_t two) {
        v = _mm_insert_epi16(v, texels[two & 0xFFFFFFFF], place);
        return _mm_insert_epi16(v, texels[two >> 32], place + 1);
    }
};

#ifdef __AVX2__
// Four numbers as doubles fill one vector, and eight attributes do.
template <class L, int lanes> struct AvxPixels : X86Pixels<L, lanes> {
    using X86Pixels<L, lanes>::DivChop;
    using X86Pixels<L, lanes>::ScaleChop;
    using typename X86Pixels<L, lanes>::Quad;
    using typename X86Pixels<L, lanes>::Octet;

    OMBREL_INLINE static Octet JoinQuads(Quad low, Quad high) {
        return (Octet)_mm256_set_m128i((__m128i)high, (__m128i)low);
    }
    OMBREL_INLINE static Quad ScaleChop(Quad a, double factor) {
        return ChopProduct(_mm256_cvtepi32_pd((__m128i)a), _mm256_set1_pd(factor));
    }
    OMBREL_INLINE static Quad DivChop(Quad a, Quad n) {
        const __m256d divisors = _mm256_cvtepi32_pd((__m128i)n);
        const __m256d reciprocals = _mm256_div_pd(_mm256_set1_pd(kTraceAboveOne), divisors);
        return ChopProduct(_mm256_cvtepi32_pd((__m128i)a), reciprocals) & (n != 0);
    }

private:
    OMBREL_INLINE static Quad ChopProduct(__m256d a, __m256d b) {
        return (Quad)_mm256_cvttpd_epi32(_mm256_mul_pd(a, b));
    }
};
#endif

} // namespace
} // namespace ombrel
