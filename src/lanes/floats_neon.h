// Four lanes of singles in NEON of 64-bit ARM: what the vector extension can not say.
// say.
#pragma once

#include <arm_neon.h>

#include <cstddef>
#include <cstdint>

#include "lanes/floats_vector.h"

namespace ombrel {
namespace {

struct NeonSet {
    static constexpr int kLanes = 4;
    using Floats [[gnu::vector_size(4 * kLanes)]] = float;
    using Ints [[gnu::vector_size(4 * kLanes)]] = std::int32_t;

    // The processor's own conversion gives the nearest integer, and 0 for what is no number.
    static Ints ToIntChop(Floats v) {
        return v < 0x1p31F ? (Ints)vcvtq_s32_f32((float32x4_t)v) : Ints{} + INT32_MIN;
    }
    static Floats ToFloat(Ints v) { return (Floats)vcvtq_f32_s32((int32x4_t)v); }
    static Ints Min(Ints a, Ints b) { return (Ints)vminq_s32((int32x4_t)a, (int32x4_t)b); }
    static Ints Max(Ints a, Ints b) { return (Ints)vmaxq_s32((int32x4_t)a, (int32x4_t)b); }
    static bool Any(Ints mask) { return vmaxvq_u32((uint32x4_t)mask) != 0; }

    // Four columns of kLanes, and rows of four as they stand in memory: row i at base + i * step.
    struct Columns {
        Floats a, b, c, d;
    };
    static Columns LoadRows(const float* base, std::ptrdiff_t step) {
        return Transpose({(Floats)vld1q_f32(base), (Floats)vld1q_f32(base + step),
                          (Floats)vld1q_f32(base + 2 * step), (Floats)vld1q_f32(base + 3 * step)});
    }
    static void StoreRows(float* base, std::ptrdiff_t step, const Columns& v) {
        const Columns rows = Transpose(v);
        vst1q_f32(base, (float32x4_t)rows.a);
        vst1q_f32(base + step, (float32x4_t)rows.b);
        vst1q_f32(base + 2 * step, (float32x4_t)rows.c);
        vst1q_f32(base + 3 * step, (float32x4_t)rows.d);
    }

private:
    static Columns Transpose(const Columns& v) {
        const Floats ab0 = __builtin_shufflevector(v.a, v.b, 0, 4, 1, 5);
        const Floats ab1 = __builtin_shufflevector(v.a, v.b, 2, 6, 3, 7);
        const Floats cd0 = __builtin_shufflevector(v.c, v.d, 0, 4, 1, 5);
        const Floats cd1 = __builtin_shufflevector(v.c, v.d, 2, 6, 3, 7);
        return {__builtin_shufflevector(ab0, cd0, 0, 1, 4, 5),
                __builtin_shufflevector(ab0, cd0, 2, 3, 6, 7),
                __builtin_shufflevector(ab1, cd1, 0, 1, 4, 5),
                __builtin_shufflevector(ab1, cd1, 2, 3, 6, 7)};
    }
};
using NeonFloats = VectorFloats<NeonSet>;

} // namespace
} // namespace ombrel
