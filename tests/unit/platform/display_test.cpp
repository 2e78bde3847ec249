// Opening, locking, presenting and closing the display.
#include <gtest/gtest.h>

#include <vector>

#include "base/shell_state.h"
#include "platform/offscreen/offscreen.h"
#include "platform/soft/soft.h"

namespace ombrel {
namespace {

class DisplayTest : public testing::Test {
protected:
    void SetUp() override {
        ResetOffscreen();
        ResetShellState();
    }
    void TearDown() override { SetUp(); }
};

void ExpectRect(const Rect& r, std::int32_t left, std::int32_t top, std::int32_t right,
                std::int32_t bottom) {
    EXPECT_EQ(r.left, left);
    EXPECT_EQ(r.top, top);
    EXPECT_EQ(r.right, right);
    EXPECT_EQ(r.bottom, bottom);
}

TEST_F(DisplayTest, ResetRestoresTheStart) {
    display.format = {32, 15, PackRgb555};
    display.width = 7;
    ResetDisplayState();
    EXPECT_EQ(display.format.bitsPerPixel, 16);
    EXPECT_EQ(display.format.rgbBits, 16);
    EXPECT_EQ(display.format.pack(255, 0, 0), 0xF800U);
    EXPECT_EQ(display.width, 0);
}

TEST_F(DisplayTest, OpenSetsEveryField) {
    EXPECT_EQ(OpenDisplay(512, 384, 16, 1, 0), 1);
    EXPECT_EQ(display.width, 512);
    EXPECT_EQ(display.height, 384);
    EXPECT_EQ(display.bitsPerPixel, 16);
    EXPECT_EQ(display.windowed, 1);
    EXPECT_EQ(display.flip, 0);
    EXPECT_EQ(display.back.pixels, nullptr);
    EXPECT_EQ(display.back.pitch, 0);
    EXPECT_EQ(display.primary.pixels, nullptr);
    ASSERT_NE(display.backSurface, nullptr);
    EXPECT_EQ(display.backSurface->width, 512);
    EXPECT_EQ(display.backSurface->height, 384);
    ExpectRect(display.clip, 0, 0, 512, 384);
    ExpectRect(display.source, 0, 0, 512, 384);
    EXPECT_EQ(display.format.bitsPerPixel, 16);
    EXPECT_EQ(display.format.rgbBits, 16);
    EXPECT_EQ(display.format.pack, &PackRgb565);
}

TEST_F(DisplayTest, FifteenBitsChooseTheOtherPacker) {
    script.screenRgbBits = 15;
    EXPECT_EQ(OpenDisplay(640, 480, 16, 0, 0), 1);
    EXPECT_EQ(display.format.rgbBits, 15);
    EXPECT_EQ(display.format.pack, &PackRgb555);
    EXPECT_EQ(display.format.pack(255, 255, 255), 0x7FFFU);
    EXPECT_EQ(display.format.pack(8, 8, 8), 0x0421U);
    // Any other count is taken for 5-6-5.
    ResetOffscreen();
    script.screenRgbBits = 32;
    EXPECT_EQ(OpenDisplay(640, 480, 16, 0, 0), 1);
    EXPECT_EQ(display.format.pack, &PackRgb565);
    EXPECT_EQ(display.format.pack(8, 4, 8), 0x0821U);
}

TEST_F(DisplayTest, BackSurfaceIsClippedToTheFrame) {
    ASSERT_EQ(OpenDisplay(640, 480, 16, 1, 0), 1);
    Clipper* clipper = display.backSurface->clipper;
    ASSERT_NE(clipper, nullptr);
    ASSERT_EQ(clipper->rectangles.size(), 1U);
    ExpectRect(clipper->rectangles[0], 0, 0, 640, 480);
    Surface* glyph = MakeOffscreenSurface(48, 42, SurfaceMemory::System, 0);
    FillSurface(glyph, 3, nullptr);
    const Rect target{620, -20, 668, 22};
    EXPECT_EQ(BlitKeyed(display.backSurface, &target, glyph), 1);
    LockFrame();
    EXPECT_EQ(display.back.pixels[639], 3);
    EXPECT_EQ(display.back.pixels[619], 0);
    EXPECT_EQ(UnlockFrame(), 1);
}

TEST_F(DisplayTest, FirstStepFailsAndNothingIsMade) {
    script.failure = Failure::Screen;
    EXPECT_EQ(OpenDisplay(640, 480, 16, 0, 0), 0);
    EXPECT_EQ(display.backSurface, nullptr);
    // The program goes on with whatever was made.
    LockFrame();
    EXPECT_EQ(display.back.pixels, nullptr);
    EXPECT_EQ(UnlockFrame(), 0);
    EXPECT_EQ(PresentFrame(), 0);
    EXPECT_EQ(CloseDisplay(), 1);
}

TEST_F(DisplayTest, WindowClipperFailsInAWindowOnly) {
    script.failure = Failure::WindowClipper;
    EXPECT_EQ(OpenDisplay(640, 480, 16, 1, 0), 0);
    EXPECT_NE(display.backSurface, nullptr) << "left for CloseDisplay";
    ExpectRect(display.clip, 0, 0, 640, 480);
    ExpectRect(display.source, 0, 0, 0, 0);
    EXPECT_EQ(CloseDisplay(), 1);
    EXPECT_EQ(OpenDisplay(640, 480, 16, 0, 0), 1);
}

TEST_F(DisplayTest, LockTwiceIsOnce) {
    ASSERT_EQ(OpenDisplay(640, 480, 16, 1, 0), 1);
    LockFrame();
    Pixel16* const first = display.back.pixels;
    ASSERT_NE(first, nullptr);
    EXPECT_GE(display.back.pitch, 1280);
    LockFrame();
    EXPECT_EQ(display.back.pixels, first);
    EXPECT_EQ(UnlockFrame(), 1);
    EXPECT_EQ(display.back.pixels, nullptr);
    EXPECT_EQ(display.back.pitch, 0);
}

TEST_F(DisplayTest, SecondUnlockReturnsZero) {
    ASSERT_EQ(OpenDisplay(640, 480, 16, 1, 0), 1);
    LockFrame();
    EXPECT_EQ(UnlockFrame(), 1);
    EXPECT_EQ(UnlockFrame(), 0);
}

TEST_F(DisplayTest, PresentWhileLockedChangesNothing) {
    ASSERT_EQ(OpenDisplay(640, 480, 16, 1, 0), 1);
    FillSurface(display.backSurface, 0x1111, nullptr);
    EXPECT_EQ(PresentFrame(), 1);
    EXPECT_EQ(ShownPixel(5, 5), 0x1111);
    LockFrame();
    display.back.pixels[0] = 0x2222;
    EXPECT_EQ(PresentFrame(), 0);
    EXPECT_EQ(ShownPixel(0, 0), 0x1111);
    EXPECT_EQ(offscreen.shown, 1);
    UnlockFrame();
    EXPECT_EQ(PresentFrame(), 1);
    EXPECT_EQ(ShownPixel(0, 0), 0x2222);
}

TEST_F(DisplayTest, PresentLooksAtThePrimaryPointerToo) {
    ASSERT_EQ(OpenDisplay(640, 480, 16, 1, 0), 1);
    Pixel16 somewhere = 0;
    display.primary.pixels = &somewhere;
    EXPECT_EQ(PresentFrame(), 0);
    display.primary.pixels = nullptr;
    EXPECT_EQ(PresentFrame(), 1);
}

TEST_F(DisplayTest, FailedPresentLeavesThePictureBefore) {
    ASSERT_EQ(OpenDisplay(640, 480, 16, 1, 0), 1);
    script.failShowFrom = 1;
    script.failShowTo = 2;
    FillSurface(display.backSurface, 1, nullptr);
    EXPECT_EQ(PresentFrame(), 1);
    FillSurface(display.backSurface, 2, nullptr);
    EXPECT_EQ(PresentFrame(), 0);
    EXPECT_EQ(ShownPixel(0, 0), 1);
    EXPECT_EQ(PresentFrame(), 1);
    EXPECT_EQ(ShownPixel(0, 0), 2);
}

struct Places {
    std::vector<std::pair<std::int32_t, std::int32_t>> seen;
};
void NotePlace(const PresentedFrame& shown, void* user) {
    static_cast<Places*>(user)->seen.emplace_back(shown.x, shown.y);
}

TEST_F(DisplayTest, PictureFollowsTheWindow) {
    Places places;
    script.onFrame = NotePlace;
    script.user = &places;
    shell.windowed = 1;
    ASSERT_EQ(RegisterWindowClass(), 1);
    ASSERT_EQ(CreateMainWindow(), 1);
    SetUpWindowedDesktop();
    ASSERT_EQ(OpenDisplay(640, 480, 16, 1, 0), 1);
    EXPECT_EQ(PresentFrame(), 1);
    offscreen.windowX = -100;
    offscreen.windowY = 50;
    EXPECT_EQ(PresentFrame(), 1);
    ASSERT_EQ(places.seen.size(), 2U);
    // 1280 by 1024 with borders 3, 22, 3, 3: outer size 646 by 505.
    EXPECT_EQ(places.seen[0].first, (1280 - 646) / 2 + 3);
    EXPECT_EQ(places.seen[0].second, (1024 - 505) / 2 + 22);
    EXPECT_EQ(places.seen[1].first, -97);
    EXPECT_EQ(places.seen[1].second, 72);
}

TEST_F(DisplayTest, FlipExchangesTheSurfacesAndTriesUntilItWorks) {
    ASSERT_EQ(OpenDisplay(64, 48, 16, 0, 1), 1);
    script.failShowFrom = 0;
    script.failShowTo = 5;
    FillSurface(display.backSurface, 7, nullptr);
    EXPECT_EQ(PresentFrame(), 1);
    EXPECT_EQ(offscreen.presents, 6);
    EXPECT_EQ(ShownPixel(0, 0), 7);
    // What was visible before, black, is drawn into now.
    LockFrame();
    EXPECT_EQ(display.back.pixels[0], 0);
    UnlockFrame();
    EXPECT_EQ(PresentFrame(), 1);
    EXPECT_EQ(ShownPixel(0, 0), 0);
    LockFrame();
    EXPECT_EQ(display.back.pixels[0], 7);
    UnlockFrame();
}

TEST_F(DisplayTest, FlipInAWindowIsACopy) {
    ASSERT_EQ(OpenDisplay(64, 48, 16, 1, 1), 1);
    FillSurface(display.backSurface, 7, nullptr);
    EXPECT_EQ(PresentFrame(), 1);
    LockFrame();
    EXPECT_EQ(display.back.pixels[0], 7);
    UnlockFrame();
}

TEST_F(DisplayTest, FlipInAWindowNeedsOneSurface) {
    for (std::int32_t i = 1; i < kMaxSurfaces; ++i) {
        ASSERT_NE(MakeOffscreenSurface(1, 1, SurfaceMemory::System, 0), nullptr);
    }
    EXPECT_EQ(OpenDisplay(64, 48, 16, 1, 1), 1);
    EXPECT_NE(display.backSurface, nullptr);
    ResetOffscreen();
    for (std::int32_t i = 1; i < kMaxSurfaces; ++i) {
        ASSERT_NE(MakeOffscreenSurface(1, 1, SurfaceMemory::System, 0), nullptr);
    }
    EXPECT_EQ(OpenDisplay(64, 48, 16, 0, 1), 0) << "two on the whole screen";
}

TEST_F(DisplayTest, CloseClearsNoVariableAndTwiceIsHarmless) {
    ASSERT_EQ(OpenDisplay(640, 480, 16, 0, 0), 1);
    EXPECT_EQ(offscreen.fullScreenMode, 1);
    Surface* const before = display.backSurface;
    EXPECT_EQ(CloseDisplay(), 1);
    EXPECT_EQ(display.backSurface, before);
    EXPECT_EQ(display.width, 640);
    EXPECT_EQ(offscreen.fullScreenMode, 0);
    EXPECT_EQ(PresentFrame(), 0);
    EXPECT_EQ(CloseDisplay(), 1);
}

TEST_F(DisplayTest, FrameOfAPaddedSurfaceIsShownWithoutItsPadding) {
    softOptions.pitchPadding = 64;
    ASSERT_EQ(OpenDisplay(320, 240, 16, 1, 0), 1);
    LockFrame();
    EXPECT_EQ(display.back.pitch, 704);
    display.back.pixels[display.back.pitch / 2 * 239 + 319] = 0xBEEF;
    display.back.pixels[display.back.pitch / 2 * 100 + 321] = 0x1234; // padding
    UnlockFrame();
    EXPECT_EQ(PresentFrame(), 1);
    for (std::int32_t y = 0; y < 240; ++y) {
        for (std::int32_t x = 0; x < 320; ++x) {
            ASSERT_EQ(ShownPixel(x, y), x == 319 && y == 239 ? 0xBEEF : 0);
        }
    }
}

} // namespace
} // namespace ombrel
