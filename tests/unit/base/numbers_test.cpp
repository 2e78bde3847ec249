// Text to number, float to integer, the log table: the same on every system and in every mode.
#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include "base/convert.h"
#include "base/float_mode.h"
#include "base/log2_table.h"
#include "base/parse_number.h"
#include "base/random15.h"

namespace ombrel {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

std::uint32_t BitsOf(float value) {
    return std::bit_cast<std::uint32_t>(value);
}

// Characters that ParseFloat uses up.
std::ptrdiff_t FloatLength(const char* text) {
    const char* end = nullptr;
    ParseFloat(text, &end);
    return end - text;
}
std::ptrdiff_t IntLength(const char* text) {
    const char* end = nullptr;
    ParseInt(text, &end);
    return end - text;
}

// --- ParseFloat ----------------------------------------------------------------------------------

TEST(ParseFloat, PlainNumbers) {
    EXPECT_EQ(ParseFloat("0", nullptr), 0.0F);
    EXPECT_EQ(ParseFloat("1.5", nullptr), 1.5F);
    EXPECT_EQ(ParseFloat("-1.5", nullptr), -1.5F);
    EXPECT_EQ(ParseFloat("+.25", nullptr), 0.25F);
    EXPECT_EQ(ParseFloat("12.", nullptr), 12.0F);
    EXPECT_EQ(ParseFloat(" \t\n\v\f\r7", nullptr), 7.0F);
    EXPECT_EQ(ParseFloat("1e3", nullptr), 1000.0F);
    EXPECT_EQ(ParseFloat("1E+3", nullptr), 1000.0F);
    EXPECT_EQ(ParseFloat("25e-2", nullptr), 0.25F);
    EXPECT_EQ(ParseFloat("00012.50", nullptr), 12.5F);
    EXPECT_EQ(BitsOf(ParseFloat("-0", nullptr)), 0x80000000U);
}

TEST(ParseFloat, StopsWhereTheNumberStops) {
    EXPECT_EQ(FloatLength("1.5, 2"), 3);
    EXPECT_EQ(FloatLength("  -1.5;"), 6);
    EXPECT_EQ(FloatLength("1.2.3"), 3);
    EXPECT_EQ(FloatLength("2d3"), 1);
    EXPECT_EQ(ParseFloat("2d3", nullptr), 2.0F);
    EXPECT_EQ(FloatLength("1e"), 1);
    EXPECT_EQ(FloatLength("1e+"), 1);
    EXPECT_EQ(FloatLength("1e+x"), 1);
    EXPECT_EQ(FloatLength("1e5e5"), 3);
    EXPECT_EQ(FloatLength("0x10"), 1);
    EXPECT_EQ(ParseFloat("0x10", nullptr), 0.0F);
    EXPECT_EQ(FloatLength("1_000"), 1);
    EXPECT_EQ(FloatLength("5."), 2);
}

TEST(ParseFloat, NoNumberUsesNothing) {
    for (const char* const text : {"", " ", "x", "-", "+", ".", "-.", ".e5", "e5", "--1", "+-1",
                                   "inf", "nan", "- 1", "INFINITY", ",5"}) {
        const char* end = nullptr;
        EXPECT_EQ(ParseFloat(text, &end), 0.0F) << text;
        EXPECT_EQ(end, text) << text;
    }
}

TEST(ParseFloat, NearestSingleWithTiesToEven) {
    EXPECT_EQ(ParseFloat("16777217", nullptr), 16777216.0F);
    EXPECT_EQ(ParseFloat("16777219", nullptr), 16777220.0F);
    EXPECT_EQ(ParseFloat("16777217.0000000000000000000001", nullptr), 16777218.0F);
    // Between a single and its neighbour; reading through a double would round twice.
    EXPECT_EQ(BitsOf(ParseFloat("1.00000017881393432617187499", nullptr)), 0x3F800001U);
    EXPECT_EQ(BitsOf(ParseFloat("1.00000017881393432617187500", nullptr)), 0x3F800002U);
    EXPECT_EQ(BitsOf(ParseFloat("1.00000017881393432617187501", nullptr)), 0x3F800002U);
    EXPECT_EQ(ParseFloat("3.4028234663852886e38", nullptr), std::numeric_limits<float>::max());
    EXPECT_EQ(BitsOf(ParseFloat("0.1", nullptr)), 0x3DCCCCCDU);
}

TEST(ParseFloat, TheSameInEveryMode) {
    for (const FloatMode mode : {FloatMode::Nearest, FloatMode::Chop}) {
        const ScopedFloatMode scope(mode);
        EXPECT_EQ(BitsOf(ParseFloat("0.1", nullptr)), 0x3DCCCCCDU);
        EXPECT_EQ(BitsOf(ParseFloat("-0.7", nullptr)), 0xBF333333U);
        EXPECT_EQ(BitsOf(ParseFloat("1e-45", nullptr)), 1U) << "a denormal";
        EXPECT_EQ(BitsOf(ParseFloat("1.1754944e-38", nullptr)), 0x00800000U);
        EXPECT_EQ(CurrentFloatMode(), mode) << "the mode is put back";
    }
}

TEST(ParseFloat, TheSameInEveryLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* const name : {"de_DE.UTF-8", "fr_FR.UTF-8", "C.UTF-8", "C"}) {
        if (std::setlocale(LC_ALL, name) != nullptr) {
            EXPECT_EQ(ParseFloat("1.5", nullptr), 1.5F) << name;
            EXPECT_EQ(ParseFloat("1,5", nullptr), 1.0F) << name;
        }
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST(ParseFloat, TooLargeAndTooSmall) {
    EXPECT_EQ(ParseFloat("1e39", nullptr), kInfinity);
    EXPECT_EQ(ParseFloat("-1e39", nullptr), -kInfinity);
    EXPECT_EQ(ParseFloat("3.5e38", nullptr), kInfinity);
    EXPECT_EQ(ParseFloat("1e99999999999999999999", nullptr), kInfinity);
    EXPECT_EQ(ParseFloat("1e-99999999999999999999", nullptr), 0.0F);
    // (Cut to 32 or 64 bits, these exponents change their sign.)
    EXPECT_EQ(ParseFloat("1e3000000000", nullptr), kInfinity);
    EXPECT_EQ(ParseFloat("1e-3000000000", nullptr), 0.0F);
    EXPECT_EQ(ParseFloat("1e9999999999999999999", nullptr), kInfinity);
    EXPECT_EQ(ParseFloat("1e-9999999999999999999", nullptr), 0.0F);
    EXPECT_EQ(BitsOf(ParseFloat("-1e-99", nullptr)), 0x80000000U);
    EXPECT_EQ(ParseFloat("0e99999999999999999999", nullptr), 0.0F);
    EXPECT_EQ(ParseFloat((std::string(400, '9')).c_str(), nullptr), kInfinity);
    EXPECT_EQ(ParseFloat(("0." + std::string(400, '0') + "1").c_str(), nullptr), 0.0F);
    EXPECT_EQ(ParseFloat(("0." + std::string(400, '0') + "1e401").c_str(), nullptr), 1.0F);
    EXPECT_EQ(ParseFloat(("1" + std::string(400, '0') + "e-400").c_str(), nullptr), 1.0F);
    EXPECT_EQ(ParseFloat(("1" + std::string(100, '0') + "e-200").c_str(), nullptr), 0.0F);
    EXPECT_EQ(ParseFloat(("0." + std::string(100, '0') + "1e200").c_str(), nullptr), kInfinity);
    EXPECT_EQ(ParseFloat(("0." + std::string(400, '0') + "1e100").c_str(), nullptr), 0.0F);
    EXPECT_EQ(ParseFloat(("1." + std::string(400, '0') + "e-300").c_str(), nullptr), 0.0F);
}

TEST(ParseFloat, AgreesWithTheCLibrary) {
    SeedRandom15(1);
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        text += Random15() % 2 != 0 ? "-" : "";
        text += std::to_string(Random15() * Random15()) + "." + std::to_string(Random15());
        if (Random15() % 2 != 0) {
            text += "e" + std::to_string(Random15() % 70 - 35);
        }
        ASSERT_EQ(BitsOf(ParseFloat(text.c_str(), nullptr)),
                  BitsOf(std::strtof(text.c_str(), nullptr)))
            << text;
    }
    ResetRandom15();
}

// --- ParseInt ------------------------------------------------------------------------------------

TEST(ParseInt, PlainNumbers) {
    EXPECT_EQ(ParseInt("0", nullptr), 0);
    EXPECT_EQ(ParseInt("  42x", nullptr), 42);
    EXPECT_EQ(ParseInt("-42", nullptr), -42);
    EXPECT_EQ(ParseInt("+7", nullptr), 7);
    EXPECT_EQ(ParseInt("007", nullptr), 7);
    EXPECT_EQ(IntLength(" -42,"), 4);
    EXPECT_EQ(IntLength("1.5"), 1);
}

TEST(ParseInt, Saturates) {
    EXPECT_EQ(ParseInt("2147483647", nullptr), INT32_MAX);
    EXPECT_EQ(ParseInt("2147483648", nullptr), INT32_MAX);
    EXPECT_EQ(ParseInt("-2147483648", nullptr), INT32_MIN);
    EXPECT_EQ(ParseInt("-2147483649", nullptr), INT32_MIN);
    EXPECT_EQ(ParseInt((std::string(500, '9')).c_str(), nullptr), INT32_MAX);
    EXPECT_EQ(ParseInt(("-" + std::string(500, '9')).c_str(), nullptr), INT32_MIN);
    EXPECT_EQ(IntLength("99999999999999999999 "), 20) << "all digits are used up";
}

TEST(ParseInt, NoNumberUsesNothing) {
    for (const char* const text : {"", "-", "+", "x", " ", "--1", "- 1", ".5"}) {
        const char* end = nullptr;
        EXPECT_EQ(ParseInt(text, &end), 0) << text;
        EXPECT_EQ(end, text) << text;
    }
}

// --- float to integer ----------------------------------------------------------------------------

TEST(ToIntChop, TowardZeroInEveryMode) {
    for (const FloatMode mode : {FloatMode::Nearest, FloatMode::Chop}) {
        const ScopedFloatMode scope(mode);
        EXPECT_EQ(ToIntChop(1.99F), 1);
        EXPECT_EQ(ToIntChop(-1.99F), -1);
        EXPECT_EQ(ToIntChop(-2.5F), -2);
        EXPECT_EQ(ToIntChop(0.5F), 0);
        EXPECT_EQ(ToIntChop(-0.0F), 0);
        EXPECT_EQ(ToIntChop(2.999999), 2);
        EXPECT_EQ(ToIntChop(-2.999999), -2);
    }
}

TEST(ToIntChop, OutOfRangeAndNaN) {
    EXPECT_EQ(ToIntChop(2147483520.0F), 2147483520);
    EXPECT_EQ(ToIntChop(-2147483648.0F), INT32_MIN);
    for (const float value :
         {2147483648.0F, -2147483904.0F, 1e30F, -1e30F, kInfinity, -kInfinity, kNaN}) {
        EXPECT_EQ(ToIntChop(value), INT32_MIN) << value;
        EXPECT_EQ(ToIntChop(static_cast<double>(value)), INT32_MIN) << value;
        EXPECT_EQ(ToIntNearest(value), INT32_MIN) << value;
    }
    EXPECT_EQ(ToIntChop(2147483647.9), INT32_MAX);
    EXPECT_EQ(ToIntChop(-2147483648.9), INT32_MIN);
    EXPECT_EQ(ToIntChop(-2147483647.9), -INT32_MAX);
}

TEST(ToIntNearest, TiesToEvenInEveryMode) {
    for (const FloatMode mode : {FloatMode::Nearest, FloatMode::Chop}) {
        const ScopedFloatMode scope(mode);
        EXPECT_EQ(ToIntNearest(0.5F), 0);
        EXPECT_EQ(ToIntNearest(1.5F), 2);
        EXPECT_EQ(ToIntNearest(2.5F), 2);
        EXPECT_EQ(ToIntNearest(-0.5F), 0);
        EXPECT_EQ(ToIntNearest(-1.5F), -2);
        EXPECT_EQ(ToIntNearest(-2.5F), -2);
        EXPECT_EQ(ToIntNearest(2.51F), 3);
        EXPECT_EQ(ToIntNearest(2.49F), 2);
        EXPECT_EQ(ToIntNearest(-2.51F), -3);
        EXPECT_EQ(ToIntNearest(0.49999997F), 0);
        EXPECT_EQ(ToIntNearest(8388607.5F), 8388608);
        EXPECT_EQ(ToIntNearest(2147483520.0F), 2147483520);
        EXPECT_EQ(ToIntNearest(-2147483648.0F), INT32_MIN);
    }
}

TEST(Log2Table, FloorOfEveryWidth) {
    EXPECT_EQ(Log2Table[0], 0);
    for (std::uint32_t n = 1; n < kLog2TableSize; ++n) {
        ASSERT_EQ(Log2Table[n], std::bit_width(n) - 1) << n;
    }
    EXPECT_EQ(Log2Table[1024], 10);
}

} // namespace
} // namespace ombrel
