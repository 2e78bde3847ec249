// By the standard library's from_chars, which knows no locale.
#include <charconv>
#include <limits>
#include <system_error>

#include "base/nearest_float.h"
#include "base/text.h"

namespace ombrel {

namespace {

// from_chars leaves the value alone when it is out of range. Whether it is too large or too small
// is read off the decimal exponent of the first digit that counts.
bool IsLarge(const char* p, const char* last) {
    long position = 0; // decimal exponent of the first non-zero digit
    bool found = false;
    bool afterPoint = false;
    for (; p < last && (IsDigit(*p) || *p == '.'); ++p) {
        if (*p == '.') {
            afterPoint = true;
        } else if (!found) {
            found = *p != '0';
            position -= afterPoint ? 1 : 0;
        } else if (!afterPoint) {
            ++position;
        }
    }
    long exponent = 0;
    if (p < last) {
        const bool negative = p[1] == '-';
        for (++p; p < last; ++p) {
            if (IsDigit(*p) && exponent < 100000000) {
                exponent = exponent * 10 + (*p - '0');
            }
        }
        exponent = negative ? -exponent : exponent;
    }
    return found && position + exponent > 0;
}

} // namespace

float NearestFloat(const char* first, const char* last) {
    float value = 0.0F;
    const auto result = std::from_chars(first, last, value, std::chars_format::general);
    if (result.ec == std::errc::result_out_of_range) {
        value = IsLarge(first, last) ? std::numeric_limits<float>::infinity() : 0.0F;
    }
    return value;
}

} // namespace ombrel
