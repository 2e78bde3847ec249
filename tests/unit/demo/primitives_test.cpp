// Lines, points and fills, pixel by pixel.
#include "demo/primitives.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "demo/reset.h"
#include "platform/offscreen/offscreen.h"
#include "unit/demo/small_canvas.h"

namespace ombrel {
namespace {

using test::Points;

class Primitives : public testing::Test, protected test::SmallCanvas {
protected:
    void SetUp() override {
        ResetWorld();
        ResetOffscreen();
    }
};

TEST_F(Primitives, HorizontalLineIsShallowAndWritesDxPlusOne) {
    EXPECT_EQ(DrawLine({3, 4, 7, 4}, 0x1234, pixels.data(), kPitch), 1);
    EXPECT_EQ(Drawn(), (Points{{3, 4}, {4, 4}, {5, 4}, {6, 4}, {7, 4}}));
    EXPECT_EQ(pixels[4 * kPitch / 2 + 5], 0x1234);
}

TEST_F(Primitives, VerticalLineIsSteep) {
    DrawLine({3, 9, 3, 6}, 1, pixels.data(), kPitch);
    EXPECT_EQ(Drawn(), (Points{{3, 6}, {3, 7}, {3, 8}, {3, 9}}));
}

TEST_F(Primitives, R48_ExactDiagonalWritesItsPixels) {
    DrawLine({5, 5, 8, 8}, 1, pixels.data(), kPitch);
    EXPECT_EQ(Drawn(), (Points{{5, 5}, {6, 6}, {7, 7}, {8, 8}}));
}

TEST_F(Primitives, OnePointDrawsOnePixel) {
    DrawLine({6, 2, 6, 2}, 1, pixels.data(), kPitch);
    EXPECT_EQ(Drawn(), (Points{{6, 2}}));
}

// The rule written out by hand: error 2dy - dx, and a tie steps at once.
TEST_F(Primitives, ShallowLineStepsAfterThePixelWhenTheErrorIsNotNegative) {
    // dx 4, dy 2: errors 0, -4+4=0 ... (0,0) e=0 -> y1; e=-8+4=-4 (1,1); e=0 (2,1) -> y2.
    DrawLine({0, 0, 4, 2}, 1, pixels.data(), kPitch);
    EXPECT_EQ(Drawn(), (Points{{0, 0}, {1, 1}, {2, 1}, {3, 2}, {4, 2}}));
}

TEST_F(Primitives, SteepLineStepsAfterThePixelWhenTheErrorIsNotNegative) {
    DrawLine({0, 0, 2, 4}, 1, pixels.data(), kPitch);
    EXPECT_EQ(Drawn(), (Points{{0, 0}, {1, 1}, {1, 2}, {2, 3}, {2, 4}}));
}

// A second, plain transcription of the rule.
Points Reference(const Line2d& l) {
    Points points;
    const int dx = std::abs(l.x1 - l.x0);
    const int dy = std::abs(l.y1 - l.y0);
    const int sx = l.x1 >= l.x0 ? 1 : -1;
    const int sy = l.y1 >= l.y0 ? 1 : -1;
    int x = l.x0;
    int y = l.y0;
    if (dx <= dy) {
        int error = 2 * dx - dy;
        for (int n = 0; n < dy + 1; ++n) {
            points.insert({x, y});
            if (error >= 0) {
                x += sx;
                error -= 2 * dy;
            }
            y += sy;
            error += 2 * dx;
        }
    } else {
        int error = 2 * dy - dx;
        for (int n = 0; n < dx + 1; ++n) {
            points.insert({x, y});
            if (error >= 0) {
                error -= 2 * dx;
                y += sy;
            }
            error += 2 * dy;
            x += sx;
        }
    }
    return points;
}

TEST_F(Primitives, EveryLineOfASmallFrameIsTheReferenceLine) {
    for (int a = 0; a < 12 * 12; ++a) {
        for (int b = 0; b < 12 * 12; ++b) {
            const Line2d line{a % 12, a / 12, b % 12, b / 12};
            std::fill(pixels.begin(), pixels.end(), Pixel16{0});
            DrawLine(line, 1, pixels.data(), kPitch);
            ASSERT_EQ(Drawn(), Reference(line))
                << line.x0 << "," << line.y0 << " " << line.x1 << "," << line.y1;
        }
    }
}

TEST_F(Primitives, LineInsideTheClipRectangleIsDrawnUnchanged) {
    for (int i = 0; i < 500; ++i) {
        const Line2d line{i * 7 % kWidth, i * 3 % kHeight, i * 11 % kWidth, i * 5 % kHeight};
        std::fill(pixels.begin(), pixels.end(), Pixel16{0});
        EXPECT_EQ(DrawClippedLine(line, 1, canvas), 1);
        ASSERT_EQ(Drawn(), Reference(line));
    }
}

TEST_F(Primitives, LineOutsideIsRejectedAndStillReturns1) {
    for (const Line2d line : {Line2d{-5, 3, -1, 20}, Line2d{kWidth, 3, kWidth + 9, 20},
                              Line2d{3, -9, 20, -1}, Line2d{3, kHeight, 20, kHeight + 4},
                              Line2d{-10, 5, 5, -10}, Line2d{kWidth + 5, 0, kWidth - 1, -9}}) {
        EXPECT_EQ(DrawClippedLine(line, 1, canvas), 1);
        EXPECT_EQ(Drawn(), Points{});
    }
}

TEST_F(Primitives, NothingIsInsideAClipRectangleWithoutPixels) {
    for (const Rect& clip : {Rect{5, 5, 5, 20}, Rect{5, 5, 20, 5}, Rect{20, 5, 5, 20},
                             Rect{5, 20, 20, 5}, Rect{0, 0, 0, 0}}) {
        canvas.clip = clip;
        EXPECT_EQ(DrawClippedLine({0, 0, kWidth - 1, kHeight - 1}, 1, canvas), 1);
        EXPECT_EQ(DrawClippedLine({5, 5, 5, 5}, 1, canvas), 1);
        EXPECT_EQ(PlotPixel(5, 5, 1, canvas), 1);
        EXPECT_EQ(Drawn(), Points{});
    }
}

TEST_F(Primitives, CutLinesReachTheEdgesExactly) {
    DrawClippedLine({-100, 7, 100, 7}, 1, canvas);
    Points row;
    for (int x = 0; x < kWidth; ++x) {
        row.insert({x, 7});
    }
    EXPECT_EQ(Drawn(), row);
    std::fill(pixels.begin(), pixels.end(), Pixel16{0});
    DrawClippedLine({7, 100, 7, -100}, 1, canvas);
    Points column;
    for (int y = 0; y < kHeight; ++y) {
        column.insert({7, y});
    }
    EXPECT_EQ(Drawn(), column);
    std::fill(pixels.begin(), pixels.end(), Pixel16{0});
    DrawClippedLine({-10, -10, 100, 100}, 1, canvas);
    Points diagonal;
    for (int i = 0; i < kHeight; ++i) {
        diagonal.insert({i, i});
    }
    EXPECT_EQ(Drawn(), diagonal);
}

// Whatever the ends: nothing outside the frame is written, and what is drawn lies within a pixel of
// the line.
TEST_F(Primitives, WildLinesStayInsideAndOnTheLine) {
    std::mt19937 random(77);
    const int reaches[] = {60, 400, 5000, 2000000000};
    for (int i = 0; i < 40000; ++i) {
        const int reach = reaches[i % 4];
        const auto any = [&] {
            const std::int64_t room = 2 * std::int64_t{reach};
            return static_cast<int>(static_cast<std::int64_t>(random()) % room - reach);
        };
        const Line2d line{any(), any(), any(), any()};
        std::fill(pixels.begin(), pixels.end(), Pixel16{0});
        ASSERT_EQ(DrawClippedLine(line, 1, canvas), 1);
        for (const auto& [x, y] : Drawn()) {
            ASSERT_LT(x, kWidth);
            if (reach <= 5000) {
                // Distance across the longer direction, in pixels.
                const double dx = line.x1 - line.x0;
                const double dy = line.y1 - line.y0;
                const double cross = (x - line.x0) * dy - (y - line.y0) * dx;
                ASSERT_LE(std::abs(cross), 1.51 * std::max(std::abs(dx), std::abs(dy)) + 1)
                    << line.x0 << "," << line.y0 << " " << line.x1 << "," << line.y1;
            }
        }
    }
}

TEST_F(Primitives, FarthestCoordinatesAreHarmless) {
    for (const int x : {INT32_MIN, INT32_MAX, 0}) {
        for (const int y : {INT32_MIN, INT32_MAX, 5}) {
            EXPECT_EQ(DrawClippedLine({x, y, 10, 10}, 1, canvas), 1);
            EXPECT_EQ(DrawClippedLine({10, 10, x, y}, 1, canvas), 1);
            EXPECT_EQ(PlotPixel(x, y, 1, canvas), 1);
        }
    }
}

TEST_F(Primitives, PlotPixelKeepsInsideTheClipRectangle) {
    EXPECT_EQ(PlotPixel(kWidth, 5, 1, canvas), 1);
    PlotPixel(5, kHeight, 1, canvas);
    PlotPixel(-1, 5, 1, canvas);
    PlotPixel(5, -1, 1, canvas);
    EXPECT_EQ(Drawn(), Points{});
    PlotPixel(0, 0, 1, canvas);
    PlotPixel(kWidth - 1, kHeight - 1, 1, canvas);
    EXPECT_EQ(Drawn(), (Points{{0, 0}, {kWidth - 1, kHeight - 1}}));
}

TEST_F(Primitives, NothingIsDrawnWithoutPixels) {
    EXPECT_EQ(DrawLine({0, 0, 5, 5}, 1, nullptr, 0), 1);
    EXPECT_EQ(DrawClippedLine({0, 0, 5, 5}, 1, {nullptr, 0, canvas.clip}), 1);
    EXPECT_EQ(PlotPixel(1, 1, 1, {nullptr, 0, canvas.clip}), 1);
    EXPECT_EQ(FillSurfaceRect({0, 0, 5, 5}, 1, nullptr), 1);
}

TEST_F(Primitives, FillExcludesRightAndBottomAndNeedsTheSurfaceUnlocked) {
    Surface* const surface = MakeOffscreenSurface(20, 10, SurfaceMemory::System, 0);
    EXPECT_EQ(FillSurfaceRect({2, 3, 5, 6}, 0xABCD, surface), 1);
    FrameBuffer memory{};
    ASSERT_EQ(LockSurface(surface, &memory), 1);
    EXPECT_EQ(FillSurfaceRect({0, 0, 20, 10}, 0x1111, surface), 1); // locked: nothing happens
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 20; ++x) {
            const bool inside = x >= 2 && x < 5 && y >= 3 && y < 6;
            EXPECT_EQ(memory.pixels[y * memory.pitch / 2 + x], inside ? 0xABCD : 0);
        }
    }
    UnlockSurface(surface);
    ReleaseSurface(surface);
}

} // namespace
} // namespace ombrel
