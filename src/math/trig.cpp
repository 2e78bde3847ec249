// Sine, cosine and tangent without the C library, and the whole-degree tables made from them.
// Double precision: reduce to the nearest multiple of pi/2, then the power series, whose first
// dropped term is below half a unit in the last place at pi/4. Every step is one plain operation,
// so compilers and systems agree to the bit. Called at start-up, for the field of view, and
// (SinDeg, CosDeg) a few dozen times a frame.
#include <cmath>

#include "base/convert.h"
#include "base/float_mode.h"
#include "math/vec3.h"

namespace ombrel {

constinit Single SinTableDeg[kTrigTableSize] = {};
constinit Single CosTableDeg[kTrigTableSize] = {};

namespace {

// pi/2 in four parts. The first three have 23 bits or fewer, so that their product with a quadrant
// number of up to 30 bits is exact.
constexpr double kHalfPi1 = 0x1.921fb4p+0;
constexpr double kHalfPi2 = 0x1.4442dp-24;
constexpr double kHalfPi3 = 0x1.84698p-48;
constexpr double kHalfPi4 = 0x1.3198a2e037073p-69;
constexpr double kTwoOverPi = 0.6366197723675814;

// An angle as quadrant * pi/2 + high + low, |high| up to about pi/4, low below high's last bit.
struct Reduced {
    std::uint32_t quadrant; // counts modulo 4
    Double high, low;
};

// a - b, with what the rounding of the difference lost added to lost.
Double Difference(Double a, Double b, Double* lost) {
    const Double d = a - b;
    const Double shift = d - a;
    *lost += (a - (d - shift)) - (b + shift);
    return d;
}

Reduced Reduce(Double radians) {
    const Double turns = radians * kTwoOverPi;
    const std::int32_t quadrant = ToIntChop(turns + (turns < 0.0 ? -0.5 : 0.5));
    const Double n = static_cast<Double>(quadrant);
    Double lost = 0.0;
    Double rest = radians - n * kHalfPi1;
    rest = Difference(rest, n * kHalfPi2, &lost);
    rest = Difference(rest, n * kHalfPi3, &lost);
    lost -= n * kHalfPi4;
    const Double high = rest + lost;
    return {static_cast<std::uint32_t>(quadrant), high, (rest - high) + lost};
}

// x - x^3/3! + x^5/5! ... - x^15/15!
Double SineNearZero(Double x, Double low) {
    const Double xx = x * x;
    Double sum = -7.647163731819816e-13;
    sum = sum * xx + 1.6059043836821613e-10;
    sum = sum * xx - 2.505210838544172e-08;
    sum = sum * xx + 2.7557319223985893e-06;
    sum = sum * xx - 1.984126984126984e-04;
    sum = sum * xx + 8.333333333333333e-03;
    sum = sum * xx - 1.6666666666666666e-01;
    // The low part moves the sine by low * cosine.
    return x + (x * xx * sum + low * (1.0 - 0.5 * xx));
}

// 1 - x^2/2! + x^4/4! ... + x^16/16!
Double CosineNearZero(Double x, Double low) {
    const Double xx = x * x;
    Double sum = 4.779477332387385e-14;
    sum = sum * xx - 1.1470745597729725e-11;
    sum = sum * xx + 2.08767569878681e-09;
    sum = sum * xx - 2.755731922398589e-07;
    sum = sum * xx + 2.48015873015873e-05;
    sum = sum * xx - 1.388888888888889e-03;
    sum = sum * xx + 4.1666666666666664e-02;
    // 1 - x^2/2 rounds; what it lost is added back among the small terms.
    const Double half = 0.5 * xx;
    const Double head = 1.0 - half;
    return head + (((1.0 - head) - half) + (xx * xx * sum - low * x));
}

Double SineOf(const Reduced& r) {
    const Double value =
        (r.quadrant & 1) != 0 ? CosineNearZero(r.high, r.low) : SineNearZero(r.high, r.low);
    return (r.quadrant & 2) != 0 ? -value : value;
}

Reduced QuarterTurnOn(Reduced r) {
    ++r.quadrant;
    return r;
}

// The table's value at an angle: truncate to the degree, interpolate to the next.
Single Lookup(const Single* table, Single degrees) {
    auto r = static_cast<Single>(std::fmod(static_cast<double>(degrees), 360.0));
    if (r < 0.0F) {
        r += 360.0F;
    }
    // Infinite angles and NaN leave a NaN.
    if (!(r <= 360.0F)) {
        r = 0.0F;
    }
    const std::int32_t i = ToIntChop(r);
    const Single fraction = r - static_cast<Single>(i);
    return table[i] + (table[i + 1] - table[i]) * fraction;
}

// Kept apart, so that no arithmetic moves to before the switch of the rounding mode.
[[gnu::noinline]] void FillTables() {
    constexpr Single kRadiansPerDegree = 0.0174532924F;
    for (std::int32_t i = 0; i <= 360; ++i) {
        const Double radians = static_cast<Double>(i) * static_cast<Double>(kRadiansPerDegree);
        SinTableDeg[i] = static_cast<Single>(SinRad(radians));
        CosTableDeg[i] = static_cast<Single>(CosRad(radians));
    }
}

} // namespace

Double SinRad(Double radians) {
    return SineOf(Reduce(radians));
}

Double CosRad(Double radians) {
    return SineOf(QuarterTurnOn(Reduce(radians)));
}

Double TanRad(Double radians) {
    const Reduced r = Reduce(radians);
    return SineOf(r) / SineOf(QuarterTurnOn(r));
}

void InitTrigTables() {
    const ScopedFloatMode nearest(FloatMode::Nearest);
    FillTables();
}

void ResetTrigTables() {
    for (std::int32_t i = 0; i < kTrigTableSize; ++i) {
        SinTableDeg[i] = 0.0F;
        CosTableDeg[i] = 0.0F;
    }
}

Single SinDeg(Single degrees) {
    return Lookup(SinTableDeg, degrees);
}

Single CosDeg(Single degrees) {
    return Lookup(CosTableDeg, degrees);
}

} // namespace ombrel
