// Float to integer, the only two ways the program does it. Both define every input.
#pragma once

#include <cstdint>

namespace ombrel {

// Toward zero. NaN and anything outside the range of an int32 give INT32_MIN, as the processor's
// own conversion does.
inline std::int32_t ToIntChop(float value) {
    if (value >= -2147483648.0F && value < 2147483648.0F) {
        return static_cast<std::int32_t>(value);
    }
    return INT32_MIN;
}
inline std::int32_t ToIntChop(double value) {
    if (value > -2147483649.0 && value < 2147483648.0) {
        return static_cast<std::int32_t>(value);
    }
    return INT32_MIN;
}

// To nearest, ties to even, whatever rounding mode is set. NaN and out of range: INT32_MIN.
std::int32_t ToIntNearest(float value);

} // namespace ombrel
