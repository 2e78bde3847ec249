// The blend tables, entry by entry, against the formula computed here in exact arithmetic.
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "base/float_mode.h"
#include "raster/blend_tables.h"
#include "support/reference_fillers.h"

namespace ombrel {
namespace {

constexpr int kEntries = 65536;

// The scales, summed in single precision to nearest.
void Scales(float* scales) {
    const ScopedFloatMode nearest(FloatMode::Nearest);
    volatile float scale = 0.0F; // volatile: every sum is rounded to single here and now
    volatile float seventh = 1.0F;
    seventh = seventh / 7.0F;
    for (int k = 0; k < 8; ++k) {
        scales[k] = scale;
        volatile float sum = scale + seventh;
        scale = sum + 0.000001F;
    }
}

// channel * scale is exact in double; the nearest whole number, ties to even.
int Scaled(int channel, float scale) {
    const double product = static_cast<double>(channel) * static_cast<double>(scale);
    const double whole = std::floor(product);
    const double rest = product - whole;
    int result = static_cast<int>(whole);
    if (rest > 0.5 || (rest == 0.5 && (result & 1) != 0)) {
        ++result;
    }
    return result;
}

void BuildInNearest(Pixel16* tables) {
    const ScopedFloatMode nearest(FloatMode::Nearest);
    ASSERT_EQ(BuildBlendTables(8, tables), 1);
}

TEST(BlendTablesReference, EveryEntryOfAllEightTablesIsTheFormulas) {
    std::vector<Pixel16> tables(8 * kEntries + 1, 0xBEEF);
    BuildInNearest(tables.data());
    float scales[8];
    Scales(scales);
    EXPECT_EQ(scales[0], 0.0F);
    EXPECT_GT(scales[7], 1.0F); // the small excess
    EXPECT_LT(scales[7], 1.00002F);
    const ScopedFloatMode nearest(FloatMode::Nearest);
    for (int k = 0; k < 8; ++k) {
        int wrong = 0;
        for (int p = 0; p < kEntries; ++p) {
            const int red = Scaled((p >> 11) & 31, scales[k]);
            const int green = Scaled((p >> 5) & 63, scales[k]);
            const int blue = Scaled(p & 31, scales[k]);
            const int expected = ((red << 11) + ((green & 63) << 5) + (blue & 31)) & 0xFFFF;
            const int entry = tables[static_cast<std::size_t>(k * kEntries + p)];
            wrong += entry != expected ? 1 : 0;
        }
        EXPECT_EQ(wrong, 0) << "table " << k;
    }
    EXPECT_EQ(tables[8 * kEntries], 0xBEEF) << "written behind the last table";
}

TEST(BlendTablesReference, NoProductLiesNearATie) {
    // So it cannot matter whether the product is rounded to single before it is made whole.
    const ScopedFloatMode nearest(FloatMode::Nearest);
    float scales[8];
    Scales(scales);
    for (int k = 0; k < 8; ++k) {
        for (int channel = 0; channel < 64; ++channel) {
            const double product = static_cast<double>(channel) * static_cast<double>(scales[k]);
            const double rest = product - std::floor(product);
            EXPECT_GT(std::fabs(rest - 0.5), 0.00001) << k << " " << channel;
        }
    }
}

TEST(BlendTablesReference, TheReferencesOwnTablesAreTheSame) {
    std::vector<Pixel16> fast(8 * kEntries);
    std::vector<Pixel16> slow(8 * kEntries);
    BuildInNearest(fast.data());
    const ScopedFloatMode chop(FloatMode::Chop);
    reference::BuildTables(slow.data());
    EXPECT_TRUE(fast == slow);
}

TEST(BlendTablesReference, TableZeroIsBlackAndTableSevenKeepsEveryColour) {
    std::vector<Pixel16> tables(8 * kEntries);
    BuildInNearest(tables.data());
    for (int p = 0; p < kEntries; ++p) {
        ASSERT_EQ(tables[static_cast<std::size_t>(p)], 0);
        // The excess of table 7 is too small to change a channel of 5 or 6 bits.
        ASSERT_EQ(tables[static_cast<std::size_t>(7 * kEntries + p)], p);
    }
}

TEST(BlendTablesReference, ANullDestinationIsRefused) {
    EXPECT_EQ(BuildBlendTables(8, nullptr), -1);
}

} // namespace
} // namespace ombrel
