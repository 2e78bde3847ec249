// The floating-point mode and the small shared tools: random numbers, hashes, pixels, variables.
#include "base/float_mode.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "base/hash.h"
#include "base/pixel16.h"
#include "base/random15.h"
#include "base/rect.h"
#include "base/shell_state.h"

namespace ombrel {
namespace {

// Values the compiler cannot compute beforehand.
volatile float one = 1.0F;
volatile float three = 3.0F;
volatile float tiny = 1.0e-30F;
volatile float denormal = 1.0e-40F;

TEST(FloatMode, ChopCutsEveryOperation) {
    {
        const ScopedFloatMode nearest(FloatMode::Nearest);
        EXPECT_EQ(one / three, 0x1.555556p-2F);
        EXPECT_EQ(one + 0x1.8p-24F, 1.0F + std::numeric_limits<float>::epsilon());
    }
    {
        const ScopedFloatMode chop(FloatMode::Chop);
        EXPECT_EQ(one / three, 0x1.555554p-2F);
        EXPECT_EQ(-one / three, -0x1.555554p-2F) << "toward zero, not down";
        EXPECT_EQ(one + 0x1.8p-24F, 1.0F);
        EXPECT_EQ(__builtin_sqrtf(three), 0x1.bb67aep+0F);
    }
}

TEST(FloatMode, ChopFlushesDenormals) {
    {
        const ScopedFloatMode chop(FloatMode::Chop);
        EXPECT_EQ(tiny * tiny, 0.0F);
        const volatile float result = tiny * 1.0e-9F;
        EXPECT_EQ(result * 1.0e30F, 0.0F) << "a result below the normal range";
        EXPECT_EQ(denormal * 1.0e10F, 0.0F) << "an operand below it";
    }
    const ScopedFloatMode nearest(FloatMode::Nearest);
    EXPECT_GT(denormal * 1.0e10F, 0.0F);
}

TEST(FloatMode, SetAndRead) {
    const ScopedFloatMode keep(CurrentFloatMode());
    SetFloatMode(FloatMode::Chop);
    EXPECT_EQ(CurrentFloatMode(), FloatMode::Chop);
    SetFloatMode(FloatMode::Nearest);
    EXPECT_EQ(CurrentFloatMode(), FloatMode::Nearest);
    EXPECT_GT(denormal * 1.0e10F, 0.0F) << "nothing of the other mode stays";
    EXPECT_EQ(one / three, 0x1.555556p-2F);
}

TEST(FloatMode, ScopesNest) {
    const ScopedFloatMode outer(FloatMode::Nearest);
    {
        const ScopedFloatMode chop(FloatMode::Chop);
        {
            const ScopedFloatMode inner(FloatMode::Nearest);
            EXPECT_EQ(CurrentFloatMode(), FloatMode::Nearest);
        }
        EXPECT_EQ(CurrentFloatMode(), FloatMode::Chop);
    }
    EXPECT_EQ(CurrentFloatMode(), FloatMode::Nearest);
}

TEST(Random15, SequenceOfSeedOne) {
    ResetRandom15();
    for (const std::int32_t expected : {41, 18467, 6334, 26500, 19169}) {
        EXPECT_EQ(Random15(), expected);
    }
    SeedRandom15(564546);
    const std::int32_t first = Random15();
    EXPECT_EQ(first, static_cast<std::int32_t>(((564546U * 214013U + 2531011U) >> 16) & 0x7FFF));
    SeedRandom15(564546);
    EXPECT_EQ(Random15(), first);
    for (int i = 0; i < 100000; ++i) {
        const std::int32_t value = Random15();
        ASSERT_GE(value, 0);
        ASSERT_LE(value, 32767);
    }
    ResetRandom15();
    EXPECT_EQ(Random15(), 41);
    ResetRandom15();
}

TEST(Hash, KnownValues) {
    EXPECT_EQ(HashBytes(kHashStart, "", 0), 0xcbf29ce484222325ULL);
    EXPECT_EQ(HashBytes(kHashStart, "a", 1), 0xaf63dc4c8601ec8cULL);
    EXPECT_EQ(HashBytes(kHashStart, "foobar", 6), 0x85944171f73967e8ULL);
    EXPECT_EQ(HashBytes(HashBytes(kHashStart, "foo", 3), "bar", 3), 0x85944171f73967e8ULL);
}

TEST(Hash, PictureCountsVisiblePixelsOnly) {
    const std::uint16_t wide[8] = {0x0102, 0x0304, 9, 9, 0x0506, 0x0708, 8, 8};
    const std::uint16_t narrow[4] = {0x0102, 0x0304, 0x0506, 0x0708};
    const unsigned char bytes[8] = {2, 1, 4, 3, 6, 5, 8, 7};
    EXPECT_EQ(HashPicture(wide, 8, 2, 2), HashPicture(narrow, 4, 2, 2));
    EXPECT_EQ(HashPicture(wide, 8, 2, 2), HashBytes(kHashStart, bytes, 8));
    EXPECT_NE(HashPicture(wide, 8, 2, 2), HashPicture(wide, 8, 3, 2));
    EXPECT_EQ(HashPicture(wide, 8, 0, 2), kHashStart);
    EXPECT_EQ(HashPicture(wide, 8, 2, 0), kHashStart);
}

TEST(Pixel16, PackAndSplit) {
    EXPECT_EQ(PackRgb565(255, 255, 255), 0xFFFFU);
    EXPECT_EQ(PackRgb565(255, 0, 0), 0xF800U);
    EXPECT_EQ(PackRgb565(0, 255, 0), 0x07E0U);
    EXPECT_EQ(PackRgb565(7, 3, 7), 0U);
    EXPECT_EQ(PackRgb565(256, 256, 256), 0U) << "bits above the eighth are cut";
    EXPECT_EQ(PackRgb555(255, 255, 255), 0x7FFFU);
    EXPECT_EQ(PackRgb555(255, 0, 0), 0x7C00U);
    EXPECT_EQ(PackRgb555(0, 255, 0), 0x03E0U);
    EXPECT_EQ(RedOf(0xF800), 31);
    EXPECT_EQ(GreenOf(0x07E0), 63);
    EXPECT_EQ(BlueOf(0x001F), 31);
    for (std::uint32_t p = 0; p < 65536; ++p) {
        const Pixel16 pixel = static_cast<Pixel16>(p);
        const std::uint32_t again = static_cast<std::uint32_t>(RedOf(pixel)) << 11 |
                                    static_cast<std::uint32_t>(GreenOf(pixel)) << 5 |
                                    static_cast<std::uint32_t>(BlueOf(pixel));
        ASSERT_EQ(again, p);
    }
}

TEST(Globals, ResetRestoresTheStart) {
    shell.screenWidth = 1;
    shell.noSound = true;
    driver.sceneIndex = 6;
    driver.frameCounter = 77;
    ResetShellState();
    EXPECT_EQ(shell.screenWidth, 640);
    EXPECT_EQ(shell.screenHeight, 480);
    EXPECT_FALSE(shell.noSound);
    EXPECT_EQ(driver.sceneIndex, 0);
    EXPECT_EQ(driver.frameCounter, 0U);
    EXPECT_EQ(driver.frameCapSwitch, 1);
    EXPECT_EQ(driver.crosshairSwitch, -1);
}

} // namespace
} // namespace ombrel
