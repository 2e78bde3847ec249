// The single-precision number of math, scene and the front of the rasterizer, and the operations
// by which a formula is written once for numbers and for vectors of them.
#pragma once

#include <algorithm>
#include <cstdint>

#include "base/convert.h"
#if defined(__wasm__)
#include "base/cut_single.h"
#endif

namespace ombrel {

// A single whose sums, products, quotients and roots are cut toward zero and whose denormals are
// zero. Processors do that by themselves in the mode of float_mode.h, so there it is a float;
// WebAssembly, which has no such mode, has a class in its place. Code for it therefore writes
// conversions from and to other numbers out, and takes roots and absolute values by the functions
// below. Double is the same for the few sums that are wider.
#if defined(__wasm__)
using Single = CutSingle;
using Double = CutDouble;
inline constexpr bool kSinglesAreSlow = true; // several times as slow as plain doubles
#else
using Single = float;
using Double = double;
inline constexpr bool kSinglesAreSlow = false;

inline Single SquareRoot(Single value) {
    return __builtin_sqrtf(value);
}
inline Double SquareRoot(Double value) {
    return __builtin_sqrt(value);
}
inline Single AbsoluteValue(Single value) {
    return __builtin_fabsf(value);
}
#endif

// One lane: a number itself. The sets of src/lanes, one an instruction set, have the same
// operations for several at a time, and give each lane the bits of this one.
struct PlainFloats {
    using Floats = Single;
    using Ints = std::int32_t;
    using Mask = bool; // what a comparison gives; masks are joined by &

    static Floats Abs(Floats v) { return AbsoluteValue(v); }
    // Toward zero; what no 32-bit integer holds gives INT32_MIN.
    static Ints ToIntChop(Floats v) { return ombrel::ToIntChop(v); }
    static Floats ToFloat(Ints v) { return static_cast<Floats>(v); }
    // Of the 32 bits as a number without sign, rounded once.
    static Floats ToFloatUnsigned(Ints v) { return static_cast<Floats>(Unsigned(v)); }
    static Ints Min(Ints a, Ints b) { return std::min(a, b); }
    static Ints Max(Ints a, Ints b) { return std::max(a, b); }
    // Wraps at 32 bits.
    static Ints Sum(Ints a, Ints b) { return static_cast<Ints>(Unsigned(a) + Unsigned(b)); }
    static Ints Select(Mask mask, Ints a, Ints b) { return mask ? a : b; }
    // The bits where the mask is set, else 0.
    static Ints Bits(Mask mask, std::uint32_t bits) { return mask ? static_cast<Ints>(bits) : 0; }
    // Whether the mask of any lane is set.
    static bool Any(Mask mask) { return mask; }

private:
    static std::uint32_t Unsigned(Ints v) { return static_cast<std::uint32_t>(v); }
};

} // namespace ombrel
