// Numbers that are cut by hand against the processor's own mode: the same bits.
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "base/cut_single.h"
#include "base/float_mode.h"

namespace ombrel {
namespace {

// The processor's results. Kept apart, so that no compiler moves them across the switch.
struct Results {
    float sum, product, quotient, root, fromDouble, fromInt;
};
[[gnu::noinline]] Results ByProcessor(float a, float b, double d, std::int32_t i) {
    return {a + b, a * b, a / b, __builtin_sqrtf(a), static_cast<float>(d), static_cast<float>(i)};
}
Results InChop(float a, float b, double d, std::int32_t i) {
    const ScopedFloatMode chop(FloatMode::Chop);
    return ByProcessor(a, b, d, i);
}
// Operands of denormals count as zero, as the class sees to before it calls these.
Results ByHand(float a, float b, double d, std::int32_t i) {
    const float x = cut::Flushed(a), y = cut::Flushed(b);
    return {cut::Sum(x, y), cut::Product(x, y), cut::Quotient(x, y),
            cut::Root(x),   cut::ToSingle(d),   cut::ToSingle(static_cast<double>(i))};
}

bool Same(float a, float b) {
    return (std::isnan(a) && std::isnan(b)) ||
           std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

void Compare(float a, float b, double d, std::int32_t i) {
    const Results wanted = InChop(a, b, d, i), made = ByHand(a, b, d, i);
    const float* const w = &wanted.sum;
    const float* const m = &made.sum;
    constexpr const char* kNames[] = {"+", "*", "/", "root", "from double", "from int"};
    for (int k = 0; k < 6; ++k) {
        ASSERT_TRUE(Same(w[k], m[k])) << std::hexfloat << a << ' ' << kNames[k] << ' ' << b << ", "
                                      << d << ", " << i << ": " << w[k] << ", not " << m[k];
    }
}

constexpr float kBorders[] = {0.0F,
                              -0.0F,
                              1.0F,
                              -1.0F,
                              0x1.fffffep0F,
                              0x1.000002p0F,
                              0x1p-126F,
                              -0x1p-126F,
                              0x1p-149F,
                              -0x1p-149F,
                              0x1.8p-127F,
                              0x1.fffffep-127F,
                              0x1.fffffep127F,
                              -0x1.fffffep127F,
                              0x1p127F,
                              0x1p-125F,
                              0x1.000002p-126F,
                              0x1p24F,
                              0x1p-24F,
                              0x1p-25F,
                              0x1p29F,
                              0x1p-29F,
                              0x1p-30F,
                              0x1p-53F,
                              0x1p-54F,
                              0x1p-60F,
                              3.0F,
                              0x1.555554p-2F,
                              std::numeric_limits<float>::infinity(),
                              -std::numeric_limits<float>::infinity(),
                              std::numeric_limits<float>::quiet_NaN()};

TEST(CutSingle, BordersHaveTheBitsOfTheProcessor) {
    for (const float a : kBorders) {
        for (const float b : kBorders) {
            Compare(a, b, static_cast<double>(a) * (1.0 + 0x1p-40), static_cast<std::int32_t>(7));
            Compare(a, -b, static_cast<double>(a) * (1.0 - 0x1p-50), INT32_MIN);
        }
    }
}

// Any bits, and numbers of like size, whose sums lose few bits.
TEST(CutSingle, RandomNumbersHaveTheBitsOfTheProcessor) {
    std::mt19937 random(17);
    const auto any = [&] { return std::bit_cast<float>(static_cast<std::uint32_t>(random())); };
    for (int i = 0; i < 4000000 && !HasFatalFailure(); ++i) {
        const float a = any();
        const auto offset = static_cast<std::uint32_t>(random() % 0x20000000U) - 0x10000000U;
        const float near = std::bit_cast<float>(std::bit_cast<std::uint32_t>(a) + offset);
        const float b = (i & 1) != 0 ? any() : near;
        const double wide =
            std::bit_cast<double>(static_cast<std::uint64_t>(random()) << 32 | random());
        const double d = (i & 2) != 0 ? wide : static_cast<double>(a) * (1.0 + 1e-8 * (i % 7));
        Compare(a, b, d, static_cast<std::int32_t>(random()));
    }
}

[[gnu::noinline]] void DoublesByProcessor(double a, double b, double (&out)[4]) {
    out[0] = a + b;
    out[1] = a * b;
    out[2] = a / b;
    out[3] = __builtin_sqrt(a < 0.0 ? -a : a);
}

TEST(CutSingle, DoublesHaveTheBitsOfTheProcessor) {
    std::mt19937_64 random(18);
    const auto any = [&] {
        const std::uint64_t exponent = 1023 - 60 + random() % 120;
        const std::uint64_t kept = ~std::uint64_t{0} << (random() % 53);
        return std::bit_cast<double>((random() & (1ULL << 63)) | exponent << 52 |
                                     (random() & kept & ((1ULL << 52) - 1)));
    };
    for (int i = 0; i < 2000000; ++i) {
        const double a = i % 50 == 0 ? 0.0 : any(), b = i % 50 == 1 ? -a : any();
        double wanted[4];
        {
            const ScopedFloatMode chop(FloatMode::Chop);
            DoublesByProcessor(a, b, wanted);
        }
        const double made[4] = {cut::Sum(a, b), cut::Product(a, b),
                                b == 0.0 ? wanted[2] : cut::Quotient(a, b),
                                cut::Root(a < 0.0 ? -a : a)};
        ASSERT_EQ(std::memcmp(wanted, made, sizeof made), 0)
            << std::hexfloat << a << ' ' << b << ": " << wanted[0] << ' ' << wanted[1] << ' '
            << wanted[2] << ' ' << wanted[3] << ", not " << made[0] << ' ' << made[1] << ' '
            << made[2] << ' ' << made[3];
    }
}

} // namespace
} // namespace ombrel
