// ToIntNearest without leaning on the rounding mode in force.
#include "base/convert.h"

namespace ombrel {

std::int32_t ToIntNearest(float value) {
    if (!(value >= -2147483648.0F && value < 2147483648.0F)) {
        return INT32_MIN;
    }
    // A single's whole part and the rest are exact in double, in every rounding mode.
    const auto whole = static_cast<std::int64_t>(value);
    const double rest = static_cast<double>(value) - static_cast<double>(whole);
    const double size = rest < 0.0 ? -rest : rest;
    const std::int64_t away = rest < 0.0 ? -1 : 1;
    std::int64_t result = whole;
    if (size > 0.5 || (size == 0.5 && (whole & 1) != 0)) {
        result += away;
    }
    return static_cast<std::int32_t>(result);
}

} // namespace ombrel
