// Text to number, the same on every system and in every locale and rounding mode.
#pragma once

#include <cstdint>

namespace ombrel {

// Reads the longest decimal number at the start of text: blanks, an optional sign, digits, a point
// and digits, an exponent (e or E, optional sign, digits). The result is the single nearest to the
// decimal value, ties to even; beyond the largest single: infinity with the sign; no digits: 0.
// *end (when not null) is set to the place after the last character used, or to text when no number
// is there. No hexadecimal, no "inf", no "nan".
float ParseFloat(const char* text, const char** end);

// The same for a decimal integer; out of range saturates at INT32_MIN / INT32_MAX.
std::int32_t ParseInt(const char* text, const char** end);

} // namespace ombrel
