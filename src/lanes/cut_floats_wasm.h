// Four singles of WebAssembly, cut toward zero: each lane has the bits of base/cut_single.h. Sums
// are formed to nearest with what they leave out, the rest in double, two lanes at a time. Lanes
// whose result is very small or infinite are done again one by one.
#pragma once

#include <cstdint>

#include <wasm_simd128.h>

#include "base/single.h"
#include "lanes/inline.h"

namespace ombrel {
namespace {

using CutInts [[gnu::vector_size(16)]] = std::int32_t;

struct CutFloats {
    v128_t bits;

    CutFloats() = default;
    OMBREL_INLINE CutFloats(float all) : bits(wasm_f32x4_splat(all)) {}
    OMBREL_INLINE CutFloats(Single all) : CutFloats(static_cast<float>(all)) {}
    OMBREL_INLINE explicit CutFloats(CutInts same) : bits((v128_t)same) {}
    OMBREL_INLINE explicit operator CutInts() const { return (CutInts)bits; }

    OMBREL_INLINE static CutFloats Of(v128_t bits) { return CutFloats((CutInts)bits); }
};

using CutOperation = float (*)(float a, float b);

template <CutOperation operation> [[gnu::noinline]] CutFloats LaneByLane(CutFloats a, CutFloats b) {
    return CutFloats::Of(wasm_f32x4_make(
        operation(wasm_f32x4_extract_lane(a.bits, 0), wasm_f32x4_extract_lane(b.bits, 0)),
        operation(wasm_f32x4_extract_lane(a.bits, 1), wasm_f32x4_extract_lane(b.bits, 1)),
        operation(wasm_f32x4_extract_lane(a.bits, 2), wasm_f32x4_extract_lane(b.bits, 2)),
        operation(wasm_f32x4_extract_lane(a.bits, 3), wasm_f32x4_extract_lane(b.bits, 3))));
}

// Whether a lane is infinite or none, or as small as the least normal number, but not zero. (It may
// say so of 2 and -2 too, whose twice is the one integer without a size: that costs time only.)
OMBREL_INLINE bool HasStrangeLane(v128_t v) {
    const v128_t twice = wasm_i32x4_add(v, v); // no sign; the largest are just below 0
    const v128_t fromZero = wasm_i32x4_abs(twice);
    const v128_t strange = wasm_i32x4_lt(fromZero, wasm_i32x4_const_splat(0x01000001));
    return wasm_v128_any_true(strange & fromZero);
}

OMBREL_INLINE v128_t UpperDoubles(v128_t v) {
    return wasm_f64x2_promote_low_f32x4(wasm_i64x2_shuffle(v, v, 1, 1));
}
// Two doubles each, cut to singles where these are normal.
OMBREL_INLINE v128_t CutToSingles(v128_t low, v128_t high) {
    const v128_t kept = wasm_i64x2_const_splat(~0x1FFFFFFFLL);
    return wasm_i64x2_shuffle(wasm_f32x4_demote_f64x2_zero(low & kept),
                              wasm_f32x4_demote_f64x2_zero(high & kept), 0, 2);
}

OMBREL_INLINE CutFloats operator+(CutFloats a, CutFloats b) {
    const v128_t sum = wasm_f32x4_add(a.bits, b.bits);
    // What the sum to nearest leaves out: exact. Method: Knuth's.
    const v128_t back = wasm_f32x4_sub(sum, a.bits);
    const v128_t error = wasm_f32x4_add(wasm_f32x4_sub(a.bits, wasm_f32x4_sub(sum, back)),
                                        wasm_f32x4_sub(b.bits, back));
    // Where it is of the other sign, the sum has grown by a unit.
    const v128_t sign = sum & wasm_i32x4_const_splat(INT32_MIN);
    const v128_t grew = wasm_f32x4_lt(error ^ sign, wasm_f32x4_const_splat(0.0F));
    const v128_t cut = wasm_i32x4_add(sum, grew);
    if (HasStrangeLane(cut)) [[unlikely]] {
        return LaneByLane<cut::Sum>(a, b);
    }
    return CutFloats::Of(cut);
}
OMBREL_INLINE CutFloats operator-(CutFloats a) {
    return CutFloats::Of(wasm_f32x4_neg(a.bits));
}
OMBREL_INLINE CutFloats operator-(CutFloats a, CutFloats b) {
    return a + -b;
}
OMBREL_INLINE CutFloats operator*(CutFloats a, CutFloats b) {
    const v128_t cut = CutToSingles(
        wasm_f64x2_mul(wasm_f64x2_promote_low_f32x4(a.bits), wasm_f64x2_promote_low_f32x4(b.bits)),
        wasm_f64x2_mul(UpperDoubles(a.bits), UpperDoubles(b.bits)));
    if (HasStrangeLane(cut)) [[unlikely]] {
        return LaneByLane<cut::Product>(a, b);
    }
    return CutFloats::Of(cut);
}
OMBREL_INLINE CutFloats operator/(CutFloats a, CutFloats b) {
    const v128_t cut = CutToSingles(
        wasm_f64x2_div(wasm_f64x2_promote_low_f32x4(a.bits), wasm_f64x2_promote_low_f32x4(b.bits)),
        wasm_f64x2_div(UpperDoubles(a.bits), UpperDoubles(b.bits)));
    if (HasStrangeLane(cut)) [[unlikely]] {
        return LaneByLane<cut::Quotient>(a, b);
    }
    return CutFloats::Of(cut);
}
OMBREL_INLINE CutFloats& operator*=(CutFloats& a, CutFloats b) {
    return a = a * b;
}
OMBREL_INLINE CutFloats& operator/=(CutFloats& a, CutFloats b) {
    return a = a / b;
}

OMBREL_INLINE CutInts operator<(CutFloats a, CutFloats b) {
    return (CutInts)wasm_f32x4_lt(a.bits, b.bits);
}
OMBREL_INLINE CutInts operator>(CutFloats a, CutFloats b) {
    return (CutInts)wasm_f32x4_gt(a.bits, b.bits);
}
OMBREL_INLINE CutInts operator<=(CutFloats a, CutFloats b) {
    return (CutInts)wasm_f32x4_le(a.bits, b.bits);
}
OMBREL_INLINE CutInts operator>=(CutFloats a, CutFloats b) {
    return (CutInts)wasm_f32x4_ge(a.bits, b.bits);
}

// Toward zero; INT32_MIN for what does not fit. (The instruction gives the nearest integer, and 0
// for what is no number.)
OMBREL_INLINE CutInts ChopLanes(CutFloats a) {
    const v128_t fits = wasm_f32x4_lt(a.bits, wasm_f32x4_const_splat(0x1p31F));
    return (CutInts)wasm_v128_bitselect(wasm_i32x4_trunc_sat_f32x4(a.bits),
                                        wasm_i32x4_const_splat(INT32_MIN), fits);
}
OMBREL_INLINE CutFloats FloatsOf(CutInts a) {
    const v128_t ints = (v128_t)a;
    return CutFloats::Of(
        CutToSingles(wasm_f64x2_convert_low_i32x4(ints),
                     wasm_f64x2_convert_low_i32x4(wasm_i64x2_shuffle(ints, ints, 1, 1))));
}
// Of the 32 bits as a number without sign.
OMBREL_INLINE CutFloats FloatsOfUnsigned(CutInts a) {
    const v128_t ints = (v128_t)a;
    return CutFloats::Of(
        CutToSingles(wasm_f64x2_convert_low_u32x4(ints),
                     wasm_f64x2_convert_low_u32x4(wasm_i64x2_shuffle(ints, ints, 1, 1))));
}

} // namespace
} // namespace ombrel
