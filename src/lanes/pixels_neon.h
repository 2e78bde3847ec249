// Four pixels at a time, in NEON of 64-bit ARM.
#pragma once

#include <cstdint>

#include <arm_neon.h>

#include "lanes/pixels_vector.h"

namespace ombrel {
namespace {

struct NeonPixels : VectorPixels<NeonPixels, 4> {
    // The processor's own conversion gives the nearest integer, and 0 for what is no number.
    OMBREL_INLINE static Quad ToIntChop(Floats a) {
        return a < 0x1p31F ? (Quad)vcvtq_s32_f32((float32x4_t)a) : Quad{} + INT32_MIN;
    }
    OMBREL_INLINE static Quad Min(Quad a, Quad b) {
        return (Quad)vminq_s32((int32x4_t)a, (int32x4_t)b);
    }
    OMBREL_INLINE static Quad Max(Quad a, Quad b) {
        return (Quad)vmaxq_s32((int32x4_t)a, (int32x4_t)b);
    }
    OMBREL_INLINE static Words Min(Words a, Words b) {
        return (Words)vminq_u32((uint32x4_t)a, (uint32x4_t)b);
    }
    OMBREL_INLINE static Words Max(Words a, Words b) {
        return (Words)vmaxq_u32((uint32x4_t)a, (uint32x4_t)b);
    }
    OMBREL_INLINE static std::uint32_t SignsOf(Quad a) {
        return vaddvq_u32((uint32x4_t)((Words)(a >> 31) & Words{1, 2, 4, 8}));
    }
    OMBREL_INLINE static bool All(Ints mask) { return vminvq_u32((uint32x4_t)mask) != 0; }
    OMBREL_INLINE static Pixels Select(Pixels mask, Pixels yes, Pixels no) {
        return (Pixels)vbslq_u16((uint16x8_t)mask, (uint16x8_t)yes, (uint16x8_t)no);
    }

    template <int parts> OMBREL_INLINE static Pixels LoadPixels(const Pixel16* from) {
        return (Pixels)(parts == 2 ? vld1q_u16(from) : vcombine_u16(vld1_u16(from), vdup_n_u16(0)));
    }
    template <int parts> OMBREL_INLINE static void StorePixels(Pixel16* to, Pixels pixels) {
        if constexpr (parts == 2) {
            vst1q_u16(to, (uint16x8_t)pixels);
        } else {
            vst1_u16(to, vget_low_u16((uint16x8_t)pixels));
        }
    }
    OMBREL_INLINE static Pixels Join(Words low, Words high) {
        return (Pixels)vuzp1q_u16((uint16x8_t)low, (uint16x8_t)high);
    }
    OMBREL_INLINE static Pixels Join(Ints low, Ints high) { return Join((Words)low, (Words)high); }
    OMBREL_INLINE static Pixels Join(Pixels low, Pixels high) {
        return (Pixels)vzip1q_u64((uint64x2_t)low, (uint64x2_t)high);
    }
    template <int i> OMBREL_INLINE static Words Widen(Pixels a) {
        return (Words)(i == 0 ? vmovl_u16(vget_low_u16((uint16x8_t)a))
                              : vmovl_high_u16((uint16x8_t)a));
    }

    OMBREL_INLINE static Pixels FetchTexels(const Pixel16* texels, Ints index, std::int32_t) {
        uint16x8_t v = vdupq_n_u16(0);
        v = vld1q_lane_u16(texels + index[0], v, 0);
        v = vld1q_lane_u16(texels + index[1], v, 1);
        v = vld1q_lane_u16(texels + index[2], v, 2);
        return (Pixels)vld1q_lane_u16(texels + index[3], v, 3);
    }
    OMBREL_INLINE static Words FetchTexelPairs(const Pixel16* texels, Ints index) {
        return Words{Load<std::uint32_t>(texels + index[0]), Load<std::uint32_t>(texels + index[1]),
                     Load<std::uint32_t>(texels + index[2]),
                     Load<std::uint32_t>(texels + index[3])};
    }
    OMBREL_INLINE static Pixels HighHalves(Pixels a, Pixels b) {
        const uint32x4_t low = vmull_u16(vget_low_u16((uint16x8_t)a), vget_low_u16((uint16x8_t)b));
        const uint32x4_t high = vmull_high_u16((uint16x8_t)a, (uint16x8_t)b);
        return (Pixels)vuzp2q_u16((uint16x8_t)low, (uint16x8_t)high);
    }
    OMBREL_INLINE static Pixels RoundedProducts(Pixels a, Pixels b) {
        return (Pixels)vqrdmulhq_s16((int16x8_t)a, (int16x8_t)b);
    }
    OMBREL_INLINE static Words SumOfProducts(Words a, Words b) {
        const int32x4_t low = vmull_s16(vget_low_s16((int16x8_t)a), vget_low_s16((int16x8_t)b));
        return (Words)vpaddq_s32(low, vmull_high_s16((int16x8_t)a, (int16x8_t)b));
    }
    OMBREL_INLINE static Pixels Average(Pixels a, Pixels b) {
        return (Pixels)vrhaddq_u16((uint16x8_t)a, (uint16x8_t)b);
    }

    template <int k> OMBREL_INLINE static Ints Spread(Quad a) {
        return (Ints)vdupq_laneq_s32((int32x4_t)a, k);
    }
    template <int k> OMBREL_INLINE static Ints Spread(Octet a) {
        return Spread<k % 4>(k < 4 ? a.low : a.high);
    }

    OMBREL_INLINE static Doubles ToDoubles(Quad a) {
        return {vcvtq_f64_s64(vmovl_s32(vget_low_s32((int32x4_t)a))),
                vcvtq_f64_s64(vmovl_high_s32((int32x4_t)a))};
    }
    // By way of 64 bits, of which the lower half stays: 2^31 becomes INT32_MIN.
    OMBREL_INLINE static Quad ChopProduct(Doubles a, Doubles b) {
        return (Quad)vuzp1q_s32((int32x4_t)vcvtq_s64_f64(vmulq_f64(a.low, b.low)),
                                (int32x4_t)vcvtq_s64_f64(vmulq_f64(a.high, b.high)));
    }
};

} // namespace
} // namespace ombrel
