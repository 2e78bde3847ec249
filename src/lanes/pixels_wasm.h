// Four pixels at a time, in WebAssembly's vectors of 128 bits.
#pragma once

#include <cstdint>

#include <wasm_simd128.h>

#include "lanes/cut_floats_wasm.h"
#include "lanes/pixels_vector.h"

namespace ombrel {
namespace {

struct WasmPixels : VectorPixels<WasmPixels, 4> {
    using Floats = CutFloats;

    OMBREL_INLINE static Floats LoadFloats(const Single* from) {
        return Floats::Of(wasm_v128_load(from));
    }
    OMBREL_INLINE static void StorePair(Single* to, Quad a) {
        wasm_v128_store64_lane(to, FloatsOf(a).bits, 0);
    }
    OMBREL_INLINE static void LoadPairs(const Single* const (&from)[3], Floats (&to)[2]) {
        to[0] = Floats::Of(wasm_v128_load64_lane(from[1], wasm_v128_load64_zero(from[0]), 1));
        to[1] = Floats::Of(wasm_v128_load64_zero(from[2]));
    }
    OMBREL_INLINE static Quad ToIntChop(Floats a) { return (Quad)ChopLanes(a); }
    OMBREL_INLINE static Quad Min(Quad a, Quad b) {
        return (Quad)wasm_i32x4_min((v128_t)a, (v128_t)b);
    }
    OMBREL_INLINE static Quad Max(Quad a, Quad b) {
        return (Quad)wasm_i32x4_max((v128_t)a, (v128_t)b);
    }
    OMBREL_INLINE static Words Min(Words a, Words b) {
        return (Words)wasm_u32x4_min((v128_t)a, (v128_t)b);
    }
    OMBREL_INLINE static Words Max(Words a, Words b) {
        return (Words)wasm_u32x4_max((v128_t)a, (v128_t)b);
    }
    OMBREL_INLINE static std::uint32_t SignsOf(Quad a) {
        return static_cast<std::uint32_t>(wasm_i32x4_bitmask((v128_t)a));
    }
    OMBREL_INLINE static bool All(Ints mask) { return wasm_i32x4_all_true((v128_t)mask); }
    OMBREL_INLINE static Pixels Select(Pixels mask, Pixels yes, Pixels no) {
        return (Pixels)wasm_v128_bitselect((v128_t)yes, (v128_t)no, (v128_t)mask);
    }

    // (The compiler makes a loop of the general form.)
    OMBREL_INLINE static Ints LaneNumbers() { return Ints{0, 1, 2, 3}; }
    // Out of a loop the compiler would move a vector of the bits, and then shift lane by lane: the
    // instruction takes one number. So the number looks new each time.
    OMBREL_INLINE static Ints ShiftLeft(Ints a, std::int32_t bits) {
        __asm__ volatile("" : "+r"(bits));
        return a << bits;
    }

    template <int parts> OMBREL_INLINE static Pixels LoadPixels(const Pixel16* from) {
        return (Pixels)(parts == 2 ? wasm_v128_load(from) : wasm_v128_load64_zero(from));
    }
    template <int parts> OMBREL_INLINE static void StorePixels(Pixel16* to, Pixels pixels) {
        if constexpr (parts == 2) {
            wasm_v128_store(to, (v128_t)pixels);
        } else {
            wasm_v128_store64_lane(to, (v128_t)pixels, 0);
        }
    }
    OMBREL_INLINE static Pixels Join(Words low, Words high) {
        return (Pixels)wasm_i16x8_shuffle((v128_t)low, (v128_t)high, 0, 2, 4, 6, 8, 10, 12, 14);
    }
    OMBREL_INLINE static Pixels Join(Ints low, Ints high) { return Join((Words)low, (Words)high); }
    OMBREL_INLINE static Pixels Join(Pixels low, Pixels high) {
        return (Pixels)wasm_i64x2_shuffle((v128_t)low, (v128_t)high, 0, 2);
    }
    template <int i> OMBREL_INLINE static Words Widen(Pixels a) {
        return (Words)(i == 0 ? wasm_u32x4_extend_low_u16x8((v128_t)a)
                              : wasm_u32x4_extend_high_u16x8((v128_t)a));
    }

    OMBREL_INLINE static Pixels FetchTexels(const Pixel16* texels, Ints index, std::int32_t) {
        v128_t v = wasm_u16x8_const_splat(0);
        v = wasm_v128_load16_lane(texels + index[0], v, 0);
        v = wasm_v128_load16_lane(texels + index[1], v, 1);
        v = wasm_v128_load16_lane(texels + index[2], v, 2);
        return (Pixels)wasm_v128_load16_lane(texels + index[3], v, 3);
    }
    OMBREL_INLINE static Words FetchTexelPairs(const Pixel16* texels, Ints index) {
        v128_t v = wasm_v128_load32_zero(texels + index[0]);
        v = wasm_v128_load32_lane(texels + index[1], v, 1);
        v = wasm_v128_load32_lane(texels + index[2], v, 2);
        return (Words)wasm_v128_load32_lane(texels + index[3], v, 3);
    }
    OMBREL_INLINE static Pixels HighHalves(Pixels a, Pixels b) {
        return (Pixels)wasm_i16x8_shuffle(wasm_u32x4_extmul_low_u16x8((v128_t)a, (v128_t)b),
                                          wasm_u32x4_extmul_high_u16x8((v128_t)a, (v128_t)b), 1, 3,
                                          5, 7, 9, 11, 13, 15);
    }
    OMBREL_INLINE static Pixels RoundedProducts(Pixels a, Pixels b) {
        return (Pixels)wasm_i16x8_q15mulr_sat((v128_t)a, (v128_t)b);
    }
    OMBREL_INLINE static Words SumOfProducts(Words a, Words b) {
        return (Words)wasm_i32x4_dot_i16x8((v128_t)a, (v128_t)b);
    }
    OMBREL_INLINE static Pixels Average(Pixels a, Pixels b) {
        return (Pixels)wasm_u16x8_avgr((v128_t)a, (v128_t)b);
    }

    template <int k> OMBREL_INLINE static Ints Spread(Quad a) {
        return __builtin_shufflevector(a, a, k, k, k, k);
    }
    template <int k> OMBREL_INLINE static Ints Spread(Octet a) {
        return Spread<k % 4>(k < 4 ? a.low : a.high);
    }

    OMBREL_INLINE static Doubles ToDoubles(Quad a) {
        const v128_t v = (v128_t)a;
        return {wasm_f64x2_convert_low_i32x4(v),
                wasm_f64x2_convert_low_i32x4(wasm_i64x2_shuffle(v, v, 1, 1))};
    }
    // Cut, and moved to where the lowest bits of a double count ones: of these the lower half
    // stays, and 2^31 becomes INT32_MIN.
    OMBREL_INLINE static Quad ChopProduct(Doubles a, Doubles b) {
        const v128_t ones = wasm_f64x2_const_splat(0x1.8p52);
        const v128_t low = wasm_f64x2_add(wasm_f64x2_trunc(wasm_f64x2_mul(a.low, b.low)), ones);
        const v128_t high = wasm_f64x2_add(wasm_f64x2_trunc(wasm_f64x2_mul(a.high, b.high)), ones);
        return (Quad)wasm_i32x4_shuffle(low, high, 0, 2, 4, 6);
    }
};

} // namespace
} // namespace ombrel
