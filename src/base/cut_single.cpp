// Doubles cut toward zero: the operation to nearest, its error, and a step back where it grew.
#include "base/cut_single.h"

namespace ombrel {

namespace cut {

float CutStrange(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    if ((bits & ~kSign64) >= kInfinity64) {
        return static_cast<float>(value);
    }
    return std::bit_cast<float>((static_cast<std::uint32_t>(bits >> 32) & 0x80000000U) |
                                0x7F7FFFFFU);
}

float SumOfUnlike(float a, float b) {
    const double sum = static_cast<double>(a) + static_cast<double>(b);
    const float small = sum == static_cast<double>(a) ? b : a;
    const bool finite = sum - sum == 0.0;
    if (finite && ((small < 0.0F && sum > 0.0) || (small > 0.0F && sum < 0.0))) {
        return ToSingle(std::bit_cast<double>(std::bit_cast<std::uint64_t>(sum) - 1));
    }
    return ToSingle(sum);
}

namespace {

// value, unless the exact result is value plus an error of the other sign: then the next number
// toward zero. Infinite and no numbers stay.
double StepBack(double value, double error) {
    const bool grew = (error < 0.0 && value > 0.0) || (error > 0.0 && value < 0.0);
    const bool finite = value - value == 0.0;
    return grew && finite ? std::bit_cast<double>(std::bit_cast<std::uint64_t>(value) - 1) : value;
}

// What a sum to nearest leaves out: exact. Method: Knuth's.
double ErrorOfSum(double a, double b, double sum) {
    const double back = sum - a;
    return (a - (sum - back)) + (b - back);
}

// The upper half of the digits; what is left is a double too. Method: Veltkamp's.
double UpperHalf(double a) {
    constexpr double kSplit = 0x1p27 + 1.0;
    const double wide = a * kSplit;
    return wide - (wide - a);
}

// What a product to nearest leaves out: exact. Method: Dekker's.
double ErrorOfProduct(double a, double b, double product) {
    const double a1 = UpperHalf(a), a2 = a - a1;
    const double b1 = UpperHalf(b), b2 = b - b1;
    return a2 * b2 - (((product - a1 * b1) - a2 * b1) - a1 * b2);
}

// The sign of a - b c, where b c is about a.
double Remainder(double a, double b, double c) {
    const double product = b * c;
    return (a - product) - ErrorOfProduct(b, c, product);
}

} // namespace

double Sum(double a, double b) {
    const double sum = a + b;
    return StepBack(sum, ErrorOfSum(a, b, sum));
}

double Product(double a, double b) {
    const double product = a * b;
    return StepBack(product, ErrorOfProduct(a, b, product));
}

double Quotient(double a, double b) {
    const double quotient = a / b;
    const double rest = Remainder(a, quotient, b);
    return StepBack(quotient, b < 0.0 ? -rest : rest);
}

double Root(double a) {
    const double root = __builtin_sqrt(a);
    return StepBack(root, Remainder(a, root, root));
}

} // namespace cut

namespace {
bool Nearest() {
    return !numbersAreCut;
}
} // namespace

CutDouble operator+(CutDouble a, CutDouble b) {
    return {Nearest() ? a.value_ + b.value_ : cut::Sum(a.value_, b.value_)};
}
CutDouble operator*(CutDouble a, CutDouble b) {
    return {Nearest() ? a.value_ * b.value_ : cut::Product(a.value_, b.value_)};
}
CutDouble operator/(CutDouble a, CutDouble b) {
    return {Nearest() ? a.value_ / b.value_ : cut::Quotient(a.value_, b.value_)};
}
CutDouble SquareRoot(CutDouble a) {
    return {Nearest() ? __builtin_sqrt(a.value_) : cut::Root(a.value_)};
}

} // namespace ombrel
