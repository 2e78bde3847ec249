// Characters of text files, the same on every system and in every locale. A text here is closed by
// a zero.
#pragma once

namespace ombrel {

// The six blanks of the C locale: the space, and tab to carriage return.
constexpr bool IsBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// The place after the blanks, the digits, the one sign that stand at p, if any do.
constexpr const char* SkipBlanks(const char* p) {
    while (IsBlank(*p)) {
        ++p;
    }
    return p;
}
constexpr const char* SkipDigits(const char* p) {
    while (IsDigit(*p)) {
        ++p;
    }
    return p;
}
constexpr const char* SkipSign(const char* p) {
    return *p == '+' || *p == '-' ? p + 1 : p;
}

} // namespace ombrel
