// The blur against a plain transcription of its rule.
#include "demo/blur.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
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

TEST(Blur, R45_RandomPicturesInPlace) {
    std::mt19937 random(5);
    for (const auto& [width, height, step] :
         {std::array{64, 48, 64}, std::array{33, 21, 40}, std::array{6, 4, 6}, std::array{5, 3, 5},
          std::array{8, 3, 8}, std::array{1, 1, 1}, std::array{640, 5, 641}}) {
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
