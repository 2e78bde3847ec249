// The blur against a plain transcription of its rule.
#include "demo/blur.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

namespace ombrel {
namespace {

Pixel16 MeanOf(Pixel16 a, Pixel16 b, Pixel16 c, Pixel16 d) {
    const int red = (RedOf(a) + RedOf(b) + RedOf(c) + RedOf(d)) >> 2;
    const int green = (GreenOf(a) + GreenOf(b) + GreenOf(c) + GreenOf(d)) >> 2;
    const int blue = (BlueOf(a) + BlueOf(b) + BlueOf(c) + BlueOf(d)) >> 2;
    return static_cast<Pixel16>(red << 11 | green << 5 | blue);
}

void Reference(std::vector<Pixel16>* pixels, int step, int width, int height) {
    const auto at = [&](int x, int y) -> Pixel16& {
        return (*pixels)[static_cast<std::size_t>(y * step + x)];
    };
    for (int y = 1; y <= height - 3; ++y) {
        for (int x = 2; x <= width - 4; ++x) {
            at(x, y) =
                MeanOf(at(x + 2, y + 1), at(x - 2, y - 1), at(x + 2, y - 1), at(x - 2, y + 1));
        }
    }
}

void CompareWithReference() {
    std::mt19937 random(5);
    for (const auto& [width, height, step] :
         {std::array{64, 48, 64}, std::array{33, 21, 40}, std::array{6, 4, 6}, std::array{5, 3, 5},
          std::array{8, 3, 8}, std::array{1, 1, 1}, std::array{640, 5, 641}, std::array{20, 9, 20},
          std::array{21, 9, 24}, std::array{22, 9, 25}, std::array{37, 9, 37},
          std::array{52, 9, 60}, std::array{53, 9, 53}}) {
        for (int round = 0; round < 20; ++round) {
            std::vector<Pixel16> pixels(static_cast<std::size_t>(step * height));
            for (Pixel16& p : pixels) {
                p = static_cast<Pixel16>(round == 0 ? 0xFFFF : random());
            }
            std::vector<Pixel16> expected = pixels;
            Reference(&expected, step, width, height);
            BlurFrame(pixels.data(), step, width, height);
            ASSERT_EQ(pixels, expected) << width << "x" << height;
        }
    }
}

class BlurOfPath : public testing::TestWithParam<VectorPath> {
protected:
    void SetUp() override {
        if (!ProcessorRuns(GetParam())) {
            GTEST_SKIP() << "this machine has no " << NameOf(GetParam());
        }
        UseBlur(GetParam());
    }
    void TearDown() override { ResetBlur(); }
};

TEST(Blur, R45_RandomPicturesInPlace) {
    CompareWithReference();
}
TEST_P(BlurOfPath, R45_RandomPicturesInPlace) {
    CompareWithReference();
}

// One row with every pair of levels above and random ones below.
TEST_P(BlurOfPath, EverySumOfAChannel) {
    constexpr int kWidth = 64 + 5;
    std::mt19937 random(6);
    for (int a = 0; a < 64; ++a) {
        for (int b = 0; b < 64; ++b) {
            std::vector<Pixel16> rows[3];
            for (std::vector<Pixel16>& row : rows) {
                row.resize(kWidth);
            }
            const auto gray = [](int level) {
                return static_cast<Pixel16>((level >> 1) << 11 | level << 5 | level >> 1);
            };
            for (int x = 0; x < kWidth; ++x) {
                rows[0][static_cast<std::size_t>(x)] = gray(x % 4 < 2 ? a : b);
                rows[2][static_cast<std::size_t>(x)] = gray(static_cast<int>(random() % 64));
            }
            activeBlur({rows[1].data() + 2, rows[0].data() + 2, rows[2].data() + 2, kWidth - 5});
            for (int x = 2; x <= kWidth - 4; ++x) {
                const auto at = static_cast<std::size_t>(x);
                ASSERT_EQ(rows[1][at], MeanOf(rows[0][at - 2], rows[0][at + 2], rows[2][at - 2],
                                              rows[2][at + 2]));
            }
            // Nothing beside the pixels is written.
            ASSERT_EQ(rows[1][0] | rows[1][1] | rows[1][kWidth - 3] | rows[1][kWidth - 1], 0);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Paths, BlurOfPath,
                         testing::ValuesIn(std::begin(kPathsHere) + 1, std::end(kPathsHere)),
                         [](const auto& info) { return std::string(NameOf(info.param)); });

TEST(Blur, EdgesStayAsTheyAre) {
    std::vector<Pixel16> pixels(20 * 10, 0);
    for (int i = 0; i < 200; ++i) {
        pixels[static_cast<std::size_t>(i)] = static_cast<Pixel16>(i * 321);
    }
    const std::vector<Pixel16> before = pixels;
    BlurFrame(pixels.data(), 20, 20, 10);
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 20; ++x) {
            const bool inside = x >= 2 && x <= 16 && y >= 1 && y <= 7;
            const auto i = static_cast<std::size_t>(y * 20 + x);
            if (!inside) {
                EXPECT_EQ(pixels[i], before[i]) << x << "," << y;
            }
        }
    }
}

TEST(Blur, NothingWithoutPixels) {
    BlurFrame(nullptr, 0, 640, 480);
}

} // namespace
} // namespace ombrel
