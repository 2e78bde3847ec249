// Finds the extent of a number by the program's own grammar, then leaves the exact conversion to
// the standard library's from_chars, which knows no locale.
#include "base/parse_number.h"

#include <charconv>
#include <limits>
#include <system_error>

#include "base/float_mode.h"

namespace ombrel {

namespace {

bool IsBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

const char* SkipDigits(const char* p) {
    while (IsDigit(*p)) {
        ++p;
    }
    return p;
}

// Behind an exponent at p ("e+12"), or p itself when there is none.
const char* SkipExponent(const char* p) {
    if (*p != 'e' && *p != 'E') {
        return p;
    }
    const char* q = p + 1;
    if (*q == '+' || *q == '-') {
        ++q;
    }
    return IsDigit(*q) ? SkipDigits(q) : p;
}

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

float ParseFloat(const char* text, const char** end) {
    const char* p = text;
    while (IsBlank(*p)) {
        ++p;
    }
    const bool negative = *p == '-';
    if (*p == '+' || *p == '-') {
        ++p;
    }
    const char* const first = p;
    p = SkipDigits(p);
    bool digits = p > first;
    if (*p == '.') {
        const char* const afterPoint = SkipDigits(p + 1);
        digits = digits || afterPoint > p + 1;
        p = afterPoint;
    }
    if (!digits) {
        if (end != nullptr) {
            *end = text;
        }
        return 0.0F;
    }
    const char* const last = SkipExponent(p);
    if (end != nullptr) {
        *end = last;
    }
    const ScopedFloatMode nearest(FloatMode::Nearest);
    float value = 0.0F;
    const auto result = std::from_chars(first, last, value, std::chars_format::general);
    if (result.ec == std::errc::result_out_of_range) {
        value = IsLarge(first, last) ? std::numeric_limits<float>::infinity() : 0.0F;
    }
    return negative ? -value : value;
}

std::int32_t ParseInt(const char* text, const char** end) {
    const char* p = text;
    while (IsBlank(*p)) {
        ++p;
    }
    const bool negative = *p == '-';
    if (*p == '+' || *p == '-') {
        ++p;
    }
    const char* const first = p;
    std::int64_t value = 0;
    for (; IsDigit(*p); ++p) {
        if (value <= INT32_MAX) {
            value = value * 10 + (*p - '0');
        }
    }
    if (end != nullptr) {
        *end = p > first ? p : text;
    }
    value = negative ? -value : value;
    if (value > INT32_MAX) {
        return INT32_MAX;
    }
    return value < INT32_MIN ? INT32_MIN : static_cast<std::int32_t>(value);
}

} // namespace ombrel
