// Finds the extent of a number by the program's own grammar, then leaves the exact conversion to
// the standard library's from_chars, which knows no locale.
#include "base/parse_number.h"

#include <charconv>
#include <limits>
#include <system_error>

#include "base/float_mode.h"
#include "base/text.h"

namespace ombrel {

namespace {

// A text with a known end, or one closed by a zero.
struct Text {
    const char* at;
    const char* end; // null: at a zero

    char Next() const { return at == end ? '\0' : *at; }
    void SkipBlanks() {
        while (IsBlank(Next())) {
            ++at;
        }
    }
    // Whether there were any.
    bool SkipDigits() {
        const char* const first = at;
        while (IsDigit(Next())) {
            ++at;
        }
        return at > first;
    }
    // Whether one of the two stood there.
    bool SkipOneOf(char a, char b) {
        const bool there = Next() == a || Next() == b;
        at += there ? 1 : 0;
        return there;
    }
};

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

ScannedNumber ScanNumber(const char* start, const char* end) {
    Text text{start, end};
    text.SkipBlanks();
    ScannedNumber number{text.at, nullptr, nullptr, false, false};
    text.SkipOneOf('+', '-');
    number.digits = text.SkipDigits();
    if (text.SkipOneOf('.', '.')) {
        number.digits = text.SkipDigits() || number.digits;
    }
    number.mantissa = text.at;
    number.complete = number.digits;
    if (number.digits && text.SkipOneOf('e', 'E')) {
        text.SkipOneOf('+', '-');
        number.complete = text.SkipDigits();
    }
    number.end = text.at;
    return number;
}

float ParseFloat(const char* text, const char** end) {
    const ScannedNumber number = ScanNumber(text, nullptr);
    const char* const last = number.complete ? number.end : number.mantissa;
    if (end != nullptr) {
        *end = number.digits ? last : text;
    }
    if (!number.digits) {
        return 0.0F;
    }
    const bool negative = *number.first == '-';
    const char* const first = SkipSign(number.first);
    const ScopedFloatMode nearest(FloatMode::Nearest);
    float value = 0.0F;
    const auto result = std::from_chars(first, last, value, std::chars_format::general);
    if (result.ec == std::errc::result_out_of_range) {
        value = IsLarge(first, last) ? std::numeric_limits<float>::infinity() : 0.0F;
    }
    return negative ? -value : value;
}

std::int32_t ParseInt(const char* text, const char** end) {
    const char* p = SkipBlanks(text);
    const bool negative = *p == '-';
    p = SkipSign(p);
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
