// Finds the extent of a number by the program's own grammar, then leaves the exact conversion to a
// library.
#include "base/parse_number.h"

#include "base/float_mode.h"
#include "base/nearest_float.h"
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

} // namespace

ScannedNumber ScanNumber(const char* text, const char* end) {
    Text rest{text, end};
    rest.SkipBlanks();
    ScannedNumber number{rest.at, nullptr, nullptr, false, false};
    rest.SkipOneOf('+', '-');
    number.digits = rest.SkipDigits();
    if (rest.SkipOneOf('.', '.')) {
        number.digits = rest.SkipDigits() || number.digits;
    }
    number.mantissa = rest.at;
    number.complete = number.digits;
    if (number.digits && rest.SkipOneOf('e', 'E')) {
        rest.SkipOneOf('+', '-');
        number.complete = rest.SkipDigits();
    }
    number.end = rest.at;
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
    const float value = NearestFloat(first, last);
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
