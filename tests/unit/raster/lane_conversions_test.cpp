// What processors do differently, lane by lane: conversions that do not fit, NaN, divisions by 0.
// The plain lane set, and those that every processor of the architecture runs.
#include <limits>

#include <gtest/gtest.h>

#include "base/convert.h"
#include "base/float_mode.h"
#include "lanes/pixels_plain.h"
#if defined(__aarch64__)
#include "lanes/floats_neon.h"
#include "lanes/pixels_neon.h"
#endif

namespace ombrel {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
// Cut; the last ones on both sides that fit; the first ones that do not; those far out.
const float kSingles[4][4] = {{-1.9F, -0.5F, 0.9999999F, 16384.75F},
                              {0x1.fffffep30F, -0x1p31F, 0x1p31F, -0x1.000002p31F},
                              {1e30F, -1e30F, 0x1p32F, -0x1p63F},
                              {kInfinity, -kInfinity, kNaN, -kNaN}};
const std::int32_t kDividends[4] = {INT32_MIN, INT32_MAX, -7, 7};
const std::int32_t kDivisors[4] = {-1, 0, 1, 2};

std::int32_t Quotient(std::int32_t a, std::int32_t n) {
    return n == 0 ? 0 : static_cast<std::int32_t>(std::int64_t{a} / n);
}

template <class L> void ConvertAndDivide() {
    for (const FloatMode mode : {FloatMode::Nearest, FloatMode::Chop}) {
        const ScopedFloatMode inForce(mode);
        std::int32_t seen[4];
        for (const auto& four : kSingles) {
            L::StoreQuad(seen, L::ToIntChop(L::LoadFloats(four)));
            for (int i = 0; i < 4; ++i) {
                EXPECT_EQ(seen[i], ToIntChop(four[i])) << four[i];
            }
        }
        for (const std::int32_t n : kDivisors) {
            const std::int32_t by[4] = {n, n, n, n};
            L::StoreQuad(seen, L::DivChop(L::LoadQuad(kDividends), L::LoadQuad(by)));
            for (int i = 0; i < 4; ++i) {
                EXPECT_EQ(seen[i], Quotient(kDividends[i], n)) << kDividends[i] << " / " << n;
            }
        }
    }
}

TEST(LaneConversions, OfOnePixel) {
    ConvertAndDivide<PlainPixels>();
}

#if defined(__aarch64__)
TEST(LaneConversions, OfPixelsInNeon) {
    ConvertAndDivide<NeonPixels>();
}

TEST(LaneConversions, OfSinglesInNeon) {
    for (const auto& four : kSingles) {
        const auto seen = NeonFloats::ToIntChop(NeonFloats::Load<NeonFloats::Floats>(four));
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(seen[i], ToIntChop(four[i])) << four[i];
        }
    }
}
#endif

} // namespace
} // namespace ombrel
