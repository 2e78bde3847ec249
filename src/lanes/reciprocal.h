// Division toward zero as one multiplication by a reciprocal that is a trace too large.
//
// The quotient of a 32-bit number by n is whole, or lies 1/n or more below the next whole number
// away from zero. The trace adds 2^-40 of the quotient, at most 2^-9 / n: too little to reach that
// number, and more than the two roundings of double precision take away, whichever way they go. The
// product, cut, is the quotient. Own to each file that includes it.
#pragma once

#include <cstdint>

#include "lanes/inline.h"

namespace ombrel {
namespace {

// Toward zero. By 0: 0. The one quotient that does not fit, INT32_MIN / -1, wraps to INT32_MIN.
OMBREL_INLINE std::int32_t DivChop(std::int32_t dividend, std::int32_t divisor) {
    if (static_cast<std::uint32_t>(divisor) + 1U > 1U) [[likely]] {
        return dividend / divisor;
    }
    return divisor == 0 ? 0 : static_cast<std::int32_t>(0U - static_cast<std::uint32_t>(dividend));
}

inline constexpr double kTraceAboveOne = 0x1.0000000001p0;

OMBREL_INLINE double ReciprocalOf(std::int32_t n) {
    return kTraceAboveOne / static_cast<double>(n);
}
// The same for the lengths of most spans and edges, without waiting for a division.
inline constexpr std::int32_t kShortSpan = 128;
struct ReciprocalTable {
    double of[kShortSpan];
};
inline constexpr ReciprocalTable kReciprocals = [] {
    ReciprocalTable table = {};
    for (std::int32_t n = 1; n < kShortSpan; ++n) {
        table.of[n] = kTraceAboveOne / n;
    }
    return table;
}();

// Of n from 0 on; that of 0 is 0.
OMBREL_INLINE double ReciprocalOfLength(std::int32_t n) {
    return n < kShortSpan ? kReciprocals.of[n] : ReciprocalOf(n);
}

} // namespace
} // namespace ombrel
