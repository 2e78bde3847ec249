// Numbers for a platform whose only rounding is to nearest: each operation's result is that of a
// processor which cuts toward zero and takes denormals for zero, bit for bit. docs/rounding.md
// (section W) says why. Natively only tests use them.
#pragma once

#include <bit>
#include <cstdint>
#include <type_traits>

#include "base/convert.h"
#include "base/float_mode.h"

namespace ombrel {

namespace cut {

inline constexpr std::uint64_t kSign64 = 1ULL << 63;
inline constexpr std::int64_t kDroppedBits = 29; // that a double has more than a single
inline constexpr std::int64_t kExponentShift = (1023LL - 127) << 23;
inline constexpr std::int64_t kLeastNormal = 0x00800000; // bits of singles
inline constexpr std::int64_t kInfinity = 0x7F800000;
inline constexpr std::uint64_t kInfinity64 = 0x7FFULL << 52;

// ToSingle of what is larger than all singles: the largest, as what is cut never grows to infinity;
// infinity and NaN stay.
float CutStrange(double value);
// Sum where the signs differ and the double that it is formed in is one of the two.
float SumOfUnlike(float a, float b);

// A double cut to a single; what is too small is zero.
[[gnu::always_inline]] inline float ToSingle(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const auto size = static_cast<std::int64_t>((bits & ~kSign64) >> kDroppedBits) - kExponentShift;
    const std::uint32_t sign = static_cast<std::uint32_t>(bits >> 32) & 0x80000000U;
    if (size >= kInfinity) [[unlikely]] {
        return CutStrange(value);
    }
    return std::bit_cast<float>(sign |
                                (size < kLeastNormal ? 0U : static_cast<std::uint32_t>(size)));
}

// a + b. The sum of two singles is exact in double unless one of them is so small beside the other
// that only its sign counts; what it takes away is then one unit.
[[gnu::always_inline]] inline float Sum(float a, float b) {
    const double x = static_cast<double>(a), y = static_cast<double>(b);
    const double sum = x + y;
    const bool isOneOfThem = static_cast<int>(sum == x) + static_cast<int>(sum == y) != 0;
    if (isOneOfThem && x * y < 0.0) [[unlikely]] {
        return SumOfUnlike(a, b);
    }
    return ToSingle(sum);
}

// Exact in double.
inline float Product(float a, float b) {
    return ToSingle(static_cast<double>(a) * static_cast<double>(b));
}

// A quotient or root of singles that is no single is further from one than a double's rounding.
inline float Quotient(float a, float b) {
    return ToSingle(static_cast<double>(a) / static_cast<double>(b));
}
inline float Root(float a) {
    return ToSingle(__builtin_sqrt(static_cast<double>(a)));
}

// A denormal is zero.
constexpr float Flushed(float value) {
    const bool denormal = value < 0x1p-126F && value > -0x1p-126F;
    return denormal ? (value < 0.0F ? -0.0F : value > 0.0F ? 0.0F : value) : value;
}

} // namespace cut

// The single of that platform, in the mode in force; denormals are zero in both.
class CutSingle {
public:
    CutSingle() = default;
    constexpr CutSingle(float value) : value_(cut::Flushed(value)) {}
    explicit CutSingle(double value)
        : value_(Nearest() ? static_cast<float>(value) : cut::ToSingle(value)) {}
    template <class Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
    explicit CutSingle(Integer value) : CutSingle(static_cast<double>(value)) {
        static_assert(sizeof value <= 4); // exact in double
    }

    explicit constexpr operator float() const { return value_; }
    explicit constexpr operator double() const { return static_cast<double>(value_); }
    template <class Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
    explicit constexpr operator Integer() const {
        return static_cast<Integer>(value_);
    }

    friend CutSingle operator+(CutSingle a, CutSingle b) {
        return Of(Nearest() ? a.value_ + b.value_ : cut::Sum(a.value_, b.value_));
    }
    friend CutSingle operator-(CutSingle a, CutSingle b) { return a + -b; }
    friend CutSingle operator*(CutSingle a, CutSingle b) {
        return Of(Nearest() ? a.value_ * b.value_ : cut::Product(a.value_, b.value_));
    }
    friend CutSingle operator/(CutSingle a, CutSingle b) {
        return Of(Nearest() ? a.value_ / b.value_ : cut::Quotient(a.value_, b.value_));
    }
    friend CutSingle SquareRoot(CutSingle a) {
        return Of(Nearest() ? __builtin_sqrtf(a.value_) : cut::Root(a.value_));
    }
    friend constexpr CutSingle AbsoluteValue(CutSingle a) { return Of(__builtin_fabsf(a.value_)); }
    constexpr CutSingle operator-() const { return Of(-value_); }
    CutSingle& operator+=(CutSingle b) { return *this = *this + b; }
    CutSingle& operator-=(CutSingle b) { return *this = *this - b; }
    CutSingle& operator*=(CutSingle b) { return *this = *this * b; }
    CutSingle& operator/=(CutSingle b) { return *this = *this / b; }

    friend constexpr bool operator==(CutSingle a, CutSingle b) { return a.value_ == b.value_; }
    friend constexpr bool operator!=(CutSingle a, CutSingle b) { return a.value_ != b.value_; }
    friend constexpr bool operator<(CutSingle a, CutSingle b) { return a.value_ < b.value_; }
    friend constexpr bool operator>(CutSingle a, CutSingle b) { return a.value_ > b.value_; }
    friend constexpr bool operator<=(CutSingle a, CutSingle b) { return a.value_ <= b.value_; }
    friend constexpr bool operator>=(CutSingle a, CutSingle b) { return a.value_ >= b.value_; }

    // Of bits that are a result already.
    static constexpr CutSingle Of(float value) {
        CutSingle single(0.0F);
        single.value_ = value;
        return single;
    }

private:
    static bool Nearest() { return !numbersAreCut; }

    float value_;
};

inline std::int32_t ToIntChop(CutSingle value) {
    return ToIntChop(static_cast<float>(value));
}

// The double of that platform: in the mode in force, but with its denormals. Sizes of operands from
// 2^-400 to 2^400, results of 2^-800 at least, or zero: then the error of an operation is a double.
class CutDouble {
public:
    CutDouble() = default;
    constexpr CutDouble(double value) : value_(value) {}
    explicit CutDouble(CutSingle value) : value_(static_cast<double>(value)) {}
    explicit constexpr CutDouble(std::int32_t value) : value_(static_cast<double>(value)) {}

    explicit constexpr operator double() const { return value_; }
    explicit operator CutSingle() const { return CutSingle(value_); }

    friend CutDouble operator+(CutDouble a, CutDouble b);
    friend CutDouble operator-(CutDouble a, CutDouble b) { return a + -b; }
    friend CutDouble operator*(CutDouble a, CutDouble b);
    friend CutDouble operator/(CutDouble a, CutDouble b);
    friend CutDouble SquareRoot(CutDouble a);
    constexpr CutDouble operator-() const { return {-value_}; }
    CutDouble& operator+=(CutDouble b) { return *this = *this + b; }
    CutDouble& operator-=(CutDouble b) { return *this = *this - b; }

    friend constexpr bool operator<(CutDouble a, CutDouble b) { return a.value_ < b.value_; }
    friend constexpr bool operator>(CutDouble a, CutDouble b) { return a.value_ > b.value_; }

private:
    double value_;
};

inline std::int32_t ToIntChop(CutDouble value) {
    return ToIntChop(static_cast<double>(value));
}

namespace cut {

// The same operations on doubles, always cut.
double Sum(double a, double b);
double Product(double a, double b);
double Quotient(double a, double b);
double Root(double a);

} // namespace cut

} // namespace ombrel
