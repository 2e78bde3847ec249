// Four lanes of singles in WebAssembly's vectors of 128 bits.
#pragma once

#include <cstddef>
#include <cstdint>

#include <wasm_simd128.h>

#include "lanes/cut_floats_wasm.h"
#include "lanes/floats_vector.h"

namespace ombrel {
namespace {

struct WasmSet {
    static constexpr int kLanes = 4;
    using Floats = CutFloats;
    using Ints = CutInts;

    static Ints ToIntChop(Floats v) { return ChopLanes(v); }
    static Floats ToFloat(Ints v) { return FloatsOf(v); }
    static Ints Min(Ints a, Ints b) { return (Ints)wasm_i32x4_min((v128_t)a, (v128_t)b); }
    static Ints Max(Ints a, Ints b) { return (Ints)wasm_i32x4_max((v128_t)a, (v128_t)b); }
    static bool Any(Ints mask) { return wasm_v128_any_true((v128_t)mask); }

    // Four columns of kLanes, and rows of four as they stand in memory: row i at base + i * step.
    struct Columns {
        Floats a, b, c, d;
    };
    static Columns LoadRows(const Single* base, std::ptrdiff_t step) {
        return Transpose({Row(base), Row(base + step), Row(base + 2 * step), Row(base + 3 * step)});
    }
    static void StoreRows(Single* base, std::ptrdiff_t step, const Columns& v) {
        const Columns rows = Transpose(v);
        wasm_v128_store(base, rows.a.bits);
        wasm_v128_store(base + step, rows.b.bits);
        wasm_v128_store(base + 2 * step, rows.c.bits);
        wasm_v128_store(base + 3 * step, rows.d.bits);
    }

private:
    static Floats Row(const Single* from) { return Floats::Of(wasm_v128_load(from)); }
    static Columns Transpose(const Columns& v) {
        const v128_t ab0 = wasm_i32x4_shuffle(v.a.bits, v.b.bits, 0, 4, 1, 5);
        const v128_t ab1 = wasm_i32x4_shuffle(v.a.bits, v.b.bits, 2, 6, 3, 7);
        const v128_t cd0 = wasm_i32x4_shuffle(v.c.bits, v.d.bits, 0, 4, 1, 5);
        const v128_t cd1 = wasm_i32x4_shuffle(v.c.bits, v.d.bits, 2, 6, 3, 7);
        return {Floats::Of(wasm_i64x2_shuffle(ab0, cd0, 0, 2)),
                Floats::Of(wasm_i64x2_shuffle(ab0, cd0, 1, 3)),
                Floats::Of(wasm_i64x2_shuffle(ab1, cd1, 0, 2)),
                Floats::Of(wasm_i64x2_shuffle(ab1, cd1, 1, 3))};
    }
};
struct WasmFloats : VectorFloats<WasmSet> {
    static Floats ToFloatUnsigned(Ints v) { return FloatsOfUnsigned(v); }
};

} // namespace
} // namespace ombrel
