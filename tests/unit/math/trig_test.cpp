// The degree tables, their interpolation, and the trigonometry of our own behind them.
#include <cmath>
#include <cstring>
#include <limits>

#include <gtest/gtest.h>

#include "base/float_mode.h"
#include "base/hash.h"
#include "math/vec3.h"

using namespace ombrel;

namespace {

class Trig : public testing::Test {
protected:
    void SetUp() override { InitTrigTables(); }
    void TearDown() override { ResetTrigTables(); }
};

// A plain 64-bit generator (Knuth's linear one), so that the arguments are the same everywhere.
struct Sequence {
    std::uint64_t state;
    double Next(double low, double high) {
        state = state * 6364136223846793005ULL + 1442695040888963407ULL;
        return low + (high - low) * (static_cast<double>(state >> 11) * 0x1p-53);
    }
};

double UlpsOff(double got, long double want) {
    const double near = static_cast<double>(want);
    const double ulp = std::nextafter(std::fabs(near), HUGE_VAL) - std::fabs(near);
    return static_cast<double>(std::fabs(static_cast<long double>(got) - want)) / ulp;
}

using Function = double (*)(double);
using LongFunction = long double (*)(long double);

// The widest error over a spread of sizes up to 1e9.
double WidestError(Function function, LongFunction reference, FloatMode mode) {
    double widest = 0.0;
    Sequence sequence{12345};
    for (double size = 1e-6; size <= 1e9; size *= 3.0) {
        for (int i = 0; i < 3000; ++i) {
            const double x = sequence.Next(-size, size);
            double got = 0.0;
            {
                const ScopedFloatMode scope(mode);
                got = function(x);
            }
            widest = std::fmax(widest, UlpsOff(got, reference(x)));
        }
    }
    return widest;
}

std::uint64_t Fingerprint(FloatMode mode) {
    Sequence sequence{99};
    std::uint64_t hash = kHashStart;
    for (int i = 0; i < 20000; ++i) {
        // volatile: worked out here, before the mode changes.
        const volatile double x = sequence.Next(-1000.0, 1000.0);
        double values[3];
        {
            const ScopedFloatMode scope(mode);
            values[0] = SinRad(x);
            values[1] = CosRad(x);
            values[2] = TanRad(x);
        }
        hash = HashBytes(hash, values, sizeof values);
    }
    return hash;
}

TEST_F(Trig, SineCosineTangentStayBelowFourUnitsInBothModes) {
    if (sizeof(long double) <= sizeof(double) || std::numeric_limits<long double>::digits < 64) {
        GTEST_SKIP() << "no wider type to measure against";
    }
    for (const FloatMode mode : {FloatMode::Nearest, FloatMode::Chop}) {
        EXPECT_LT(WidestError(SinRad, sinl, mode), 4.0);
        EXPECT_LT(WidestError(CosRad, cosl, mode), 4.0);
        EXPECT_LT(WidestError(TanRad, tanl, mode), 4.0);
    }
}

TEST_F(Trig, CloseToAZeroTheErrorIsTiny) {
    // The doubles nearest to multiples of pi: their sines are the rounding of that double.
    const double kMultiples[] = {3.141592653589793, 6.283185307179586, 314.1592653589793,
                                 3141592.653589793, 314159265.3589793};
    for (const double x : kMultiples) {
        EXPECT_LT(std::fabs(SinRad(x) - static_cast<double>(sinl(x))), 1e-25) << x;
    }
    EXPECT_EQ(SinRad(3.141592653589793), 1.2246467991473532e-16);
}

TEST_F(Trig, SameBitsEverywhere) {
    // Measured once and stored: any compiler, level and system has to give these.
    EXPECT_EQ(Fingerprint(FloatMode::Nearest), 380967541248162020ULL);
    EXPECT_EQ(Fingerprint(FloatMode::Chop), 3131465848886861323ULL);
}

TEST_F(Trig, ExactPoints) {
    EXPECT_EQ(SinRad(0.0), 0.0);
    EXPECT_EQ(SinRad(-0.0), 0.0);
    EXPECT_EQ(CosRad(0.0), 1.0);
    EXPECT_EQ(TanRad(0.0), 0.0);
    EXPECT_EQ(SinRad(1.5707963267948966), 1.0);
    EXPECT_EQ(CosRad(3.141592653589793), -1.0);
    EXPECT_EQ(SinRad(-0.75), -SinRad(0.75));
    EXPECT_EQ(CosRad(-0.75), CosRad(0.75));
}

TEST_F(Trig, OutOfReachIsDefined) {
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(std::isnan(SinRad(inf)));
    EXPECT_TRUE(std::isnan(CosRad(std::numeric_limits<double>::quiet_NaN())));
    (void)SinRad(1e300); // means nothing, but comes back
}

TEST_F(Trig, TablesHoldTheSineOfTheExactProductToNearest) {
    for (int i = 0; i <= 360; ++i) {
        const double radians = i * static_cast<double>(0.0174532924F);
        EXPECT_EQ(SinTableDeg[i], static_cast<float>(sinl(radians))) << i;
        EXPECT_EQ(CosTableDeg[i], static_cast<float>(cosl(radians))) << i;
    }
    EXPECT_EQ(SinTableDeg[361], 0.0F);
    EXPECT_EQ(CosTableDeg[361], 0.0F);
    EXPECT_EQ(SinTableDeg[0], 0.0F);
    EXPECT_EQ(CosTableDeg[0], 1.0F);
    EXPECT_EQ(SinTableDeg[90], 1.0F);
    EXPECT_EQ(SinTableDeg[30], 0.5F);
}

TEST_F(Trig, TablesAreTheSameWhateverModeIsSet) {
    float sines[kTrigTableSize];
    float cosines[kTrigTableSize];
    std::memcpy(sines, SinTableDeg, sizeof sines);
    std::memcpy(cosines, CosTableDeg, sizeof cosines);
    ResetTrigTables();
    EXPECT_EQ(CosTableDeg[0], 0.0F);
    {
        const ScopedFloatMode chop(FloatMode::Chop);
        InitTrigTables();
        EXPECT_EQ(CurrentFloatMode(), FloatMode::Chop);
    }
    EXPECT_EQ(std::memcmp(sines, SinTableDeg, sizeof sines), 0);
    EXPECT_EQ(std::memcmp(cosines, CosTableDeg, sizeof cosines), 0);
}

TEST_F(Trig, CosDegNearTheEndInterpolatesBetween359And360) {
    const ScopedFloatMode chop(FloatMode::Chop);
    const float fraction = 359.7F - 359.0F;
    EXPECT_NEAR(fraction, 0.7F, 1e-4F);
    EXPECT_EQ(CosDeg(359.7F), CosTableDeg[359] + (CosTableDeg[360] - CosTableDeg[359]) * fraction);
    // -0.3 + 360, cut to a single, is the single below 359.7.
    EXPECT_EQ(CosDeg(-0.3F), CosDeg(std::nextafter(359.7F, 0.0F)));
    EXPECT_NEAR(CosDeg(-0.3F), CosDeg(359.7F), 1e-7F);
}

TEST_F(Trig, CosDegOfMinusAThirdIsThatOf359PointSevenWhenRoundingToNearest) {
    EXPECT_EQ(CosDeg(-0.3F), CosDeg(359.7F));
}

TEST_F(Trig, SinDegTruncatesTheAngleToItsDegree) {
    const ScopedFloatMode chop(FloatMode::Chop);
    const float step = SinTableDeg[91] - SinTableDeg[90];
    EXPECT_EQ(SinDeg(90.4F), SinTableDeg[90] + step * (90.4F - 90.0F));
    EXPECT_EQ(SinDeg(90.6F), SinTableDeg[90] + step * (90.6F - 90.0F));
}

TEST_F(Trig, WholeDegreesAreTheTableInBothModes) {
    for (const FloatMode mode : {FloatMode::Nearest, FloatMode::Chop}) {
        const ScopedFloatMode scope(mode);
        for (int i = 0; i < 360; ++i) {
            EXPECT_EQ(SinDeg(static_cast<float>(i)), SinTableDeg[i]);
            EXPECT_EQ(CosDeg(static_cast<float>(i - 360)), CosTableDeg[i]);
            EXPECT_EQ(CosDeg(static_cast<float>(i + 720)), CosTableDeg[i]);
        }
    }
}

TEST_F(Trig, AnAngleThatRoundsUpTo360ReadsEntry360) {
    // -1e-6 + 360 is 360 to nearest; entry 361 takes part with a fraction of 0 only.
    EXPECT_EQ(CosDeg(-1e-6F), CosTableDeg[360]);
    EXPECT_EQ(SinDeg(-1e-6F), SinTableDeg[360]);
    EXPECT_EQ(CosDeg(-360.0F), CosTableDeg[0]);
}

TEST_F(Trig, InfiniteAnglesCountAsZero) {
    const float inf = std::numeric_limits<float>::infinity();
    EXPECT_EQ(CosDeg(inf), 1.0F);
    EXPECT_EQ(SinDeg(-inf), 0.0F);
    EXPECT_EQ(CosDeg(std::numeric_limits<float>::quiet_NaN()), 1.0F);
    EXPECT_EQ(CosDeg(3e38F), CosDeg(std::fmod(3e38F, 360.0F)));
}

} // namespace
