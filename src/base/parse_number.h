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

// A number as a scanner takes it in that never gives back a character: blanks, an optional sign,
// digits, a point and digits, a letter e or E, an optional sign, digits; each as long as what
// stands before it is there. Such a scanner reads "1e" to its end and finds no number; ParseFloat
// reads 1.
struct ScannedNumber {
    const char* first;    // after the blanks
    const char* mantissa; // after the mantissa
    const char* end;      // after the last character that is taken in
    bool digits;          // the mantissa has one
    bool complete;        // and the exponent has one too, or there is none
};

// The text ends at `end`, or where end is null at a zero. ParseFloat of a complete number's `first`
// is its value.
ScannedNumber ScanNumber(const char* text, const char* end);

} // namespace ombrel
