// One frame: its steps, its clock reads, its figures.
#include "app/frame_driver.h"

#include <gtest/gtest.h>

#include <cmath>

#include "demo/scene_one.h"
#include "platform/soft/soft.h"
#include "run_fixture.h"

namespace ombrel {
namespace {

constexpr Pixel16 kGrey = 0x5555;

class FrameDriverTest : public RunTest {
protected:
    void SetUp() override {
        RunTest::SetUp();
        script.msPerRead = 1;
        script.msPerPresent = 0;
        offscreen.tick = 5000;
    }
    // A display, and a scene index that draws nothing.
    void Open(std::int32_t width = 640, std::int32_t height = 480) {
        shell.screenWidth = width;
        shell.screenHeight = height;
        ASSERT_EQ(OpenDisplay(width, height, 16, 1, 0), 1);
        FillSurface(display.backSurface, kGrey, nullptr);
        driver.sceneIndex = 2;
    }
};

TEST_F(FrameDriverTest, InitialValues) {
    EXPECT_EQ(driver.sceneIndex, 0);
    EXPECT_EQ(driver.crosshairSwitch, -1);
    EXPECT_EQ(driver.frameCapSwitch, 1);
    EXPECT_EQ(driver.frameCounter, 0U);
    EXPECT_EQ(driver.averagingCounter, 10);
    EXPECT_EQ(driver.averageFrameRate, 0.0F);
    EXPECT_EQ(driver.instantFrameRate, 0.0F);
}

TEST_F(FrameDriverTest, TickNowReadsTheClock) {
    EXPECT_EQ(TickNow(), 5000U);
    EXPECT_EQ(TickNow(), 5001U);
}

TEST_F(FrameDriverTest, ClockWaitSpinsAndReturnsAFreshTick) {
    FrameClockStart(); // 5000
    EXPECT_EQ(driver.frameStartTick, 5000U);
    EXPECT_EQ(FrameClockWait(25), 5026U); // the read of 5025 ends it
    EXPECT_EQ(FrameClockWait(0), 5028U);
}

TEST_F(FrameDriverTest, ClockWaitSurvivesTheWrap) {
    offscreen.tick = 0xFFFFFFF0;
    FrameClockStart();
    EXPECT_EQ(FrameClockWait(25), 0xFFFFFFF0U + 26U);
}

TEST_F(FrameDriverTest, SceneIndexAboveSixIsSixAndTheFrameIsCounted) {
    Open();
    driver.sceneIndex = 9;
    EXPECT_EQ(RenderFrame(), 1);
    EXPECT_EQ(driver.sceneIndex, 6);
    EXPECT_EQ(offscreen.shown, 1);
    EXPECT_EQ(ShownPixel(100, 100), kGrey); // what the back surface held
    EXPECT_EQ(driver.frameCounter, 1U);
    EXPECT_EQ(driver.instantFrameRate, 1000.0F / 28.0F);
    EXPECT_FALSE(sceneOne.started);
}

TEST_F(FrameDriverTest, SceneIndicesTwoToSixDrawNothing) {
    Open();
    for (std::int32_t index = 2; index <= 6; ++index) {
        driver.sceneIndex = index;
        RenderFrame();
        EXPECT_EQ(driver.sceneIndex, index);
        EXPECT_EQ(ShownPixel(320, 240), kGrey);
    }
    EXPECT_EQ(offscreen.shown, 5);
    EXPECT_FALSE(sceneOne.started);
}

void SetMinusFive(std::int64_t turn, void*) {
    driver.sceneIndex = turn == 0 ? -5 : 2;
}

TEST_F(FrameDriverTest, SceneIndexBelowZeroIsSceneOne) {
    script.onTurn = SetMinusFive;
    EscapeAfter(1);
    RunProduction("-w -ns");
    EXPECT_TRUE(sceneOne.started);
}

TEST_F(FrameDriverTest, FrameLastsItsTimeFromItsStart) {
    Open();
    RenderFrame();
    // Start 5000; the wait ends with 5025 and reads 5026; 5027 opens the averaging period; 5028 and
    // 5029 are the figures.
    EXPECT_EQ(driver.frameStartTick, 5000U);
    EXPECT_EQ(driver.averagingStartTick, 5027U);
    EXPECT_EQ(driver.instantFrameRate, 1000.0F / 28.0F);
    EXPECT_EQ(driver.demoTime, 5029U);
    EXPECT_EQ(offscreen.tick, 5030U);
}

TEST_F(FrameDriverTest, DemoTimeCountsFromTheDemoStart) {
    Open();
    driver.demoStartTick = 4000;
    RenderFrame();
    EXPECT_EQ(driver.demoTime, 1029U);
    driver.demoStartTick = 0xFFFFFFFF; // started before the wrap
    offscreen.tick = 10;
    RenderFrame();
    EXPECT_EQ(driver.demoTime, driver.frameStartTick + 31);
}

TEST_F(FrameDriverTest, AnyOtherCapSwitchLetsFramesRun) {
    Open();
    for (const std::int32_t value : {0, 2, -1}) {
        driver.frameCapSwitch = value;
        const std::uint32_t before = offscreen.tick;
        RenderFrame();
        EXPECT_LT(offscreen.tick - before, 8U) << value;
    }
    driver.frameCapSwitch = 1;
    const std::uint32_t before = offscreen.tick;
    RenderFrame();
    EXPECT_GE(offscreen.tick - before, 25U);
}

TEST_F(FrameDriverTest, FrameOfNoTimeHasAnInfiniteRate) {
    Open();
    script.msPerRead = 0;
    driver.frameCapSwitch = 0;
    RenderFrame();
    EXPECT_TRUE(std::isinf(driver.instantFrameRate));
    EXPECT_GT(driver.instantFrameRate, 0.0F);
    RenderFrame(); // the first measurement, over 0 ms
    EXPECT_TRUE(std::isinf(driver.averageFrameRate));
}

TEST_F(FrameDriverTest, R12_FirstAverageOnTheSecondFrameThenEveryEleventh) {
    Open();
    std::vector<int> measured;
    float last = driver.averageFrameRate;
    for (int number = 1; number <= 40; ++number) {
        // Make every period last differently, so that every measurement shows.
        offscreen.tick += static_cast<std::uint32_t>(number);
        RenderFrame();
        if (driver.averageFrameRate != last) {
            measured.push_back(number);
            last = driver.averageFrameRate;
        }
    }
    EXPECT_EQ(measured, (std::vector<int>{2, 13, 24, 35}));
}

TEST_F(FrameDriverTest, R12_AverageIsTenElevenths) {
    Open();
    script.msPerRead = 0;
    script.msPerPresent = 25;
    for (int i = 0; i < 13; ++i) {
        RenderFrame();
    }
    // 11 frames of 25 ms, and a figure made for 10.
    EXPECT_EQ(driver.averageFrameRate, static_cast<float>(10000.0 / 275.0));
    EXPECT_EQ(driver.instantFrameRate, 40.0F);
}

TEST_F(FrameDriverTest, R12_AverageReadsTheClockTwice) {
    Open();
    RenderFrame();
    RenderFrame();
    // Frame 2 starts at 5030; 5057 is measured against 5027; 5058 opens the next period.
    EXPECT_EQ(driver.averageFrameRate, 10000.0F / 30.0F);
    EXPECT_EQ(driver.averagingStartTick, 5058U);
    EXPECT_EQ(driver.averagingCounter, 1);
    for (int number = 3; number <= 13; ++number) {
        RenderFrame();
    }
    // Frame 3 starts at 5061, ten frames of 29 reads follow; 5378 is measured against 5058.
    EXPECT_EQ(driver.averageFrameRate, 10000.0F / 320.0F);
}

TEST_F(FrameDriverTest, FailedPresentIsNotLookedAt) {
    Open();
    script.failShowFrom = 0;
    script.failShowTo = 1;
    EXPECT_EQ(RenderFrame(), 1);
    EXPECT_EQ(offscreen.shown, 0);
    EXPECT_EQ(driver.frameCounter, 1U);
    EXPECT_EQ(RenderFrame(), 1);
    EXPECT_EQ(offscreen.shown, 1);
}

TEST_F(FrameDriverTest, SurfaceLeftLockedIsUnlockedBeforeThePresent) {
    Open();
    LockFrame(); // as a scene may leave it
    RenderFrame();
    EXPECT_EQ(display.back.pixels, nullptr);
    EXPECT_EQ(offscreen.shown, 1);
}

TEST_F(FrameDriverTest, FrameCounterWraps) {
    Open();
    driver.frameCounter = 0xFFFFFFFF;
    RenderFrame();
    EXPECT_EQ(driver.frameCounter, 0U);
}

TEST_F(FrameDriverTest, EscapePostsTheDestroyMessage) {
    Open();
    script.escapeFrom = 1;
    script.escapeTo = 3;
    const std::int32_t expected[] = {0, 1, 2, 2};
    for (const std::int32_t count : expected) {
        RenderFrame();
        EXPECT_EQ(offscreen.destroysWaiting, count);
    }
}

// '#' black, 'o' white, '.' what was there. The centre is in the middle of the picture.
constexpr const char* kCrosshairPicture[] = {
    "...........", //
    ".....#.....", //
    ".....#.....", //
    ".....#.....", //
    ".....o.....", //
    ".##ooooo##.", // through the centre
    ".....o.....", //
    ".....o.....", //
    ".....#.....", //
    ".....#.....", //
    "...........", //
};

void ExpectCrosshair(std::int32_t width, std::int32_t height, bool drawn) {
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            const std::int32_t column = x - width / 2 + 5;
            const std::int32_t row = y - height / 2 + 5;
            const bool near = column >= 0 && column < 11 && row >= 0 && row < 11;
            const char mark = near && drawn ? kCrosshairPicture[row][column] : '.';
            const Pixel16 expected = mark == '#' ? 0 : mark == 'o' ? 0xFFFF : kGrey;
            ASSERT_EQ(ShownPixel(x, y), expected) << x << ',' << y;
        }
    }
}

TEST_F(FrameDriverTest, R11_CrosshairPixels) {
    softOptions.pitchPadding = 30;
    Open();
    driver.crosshairSwitch = 1;
    RenderFrame();
    ExpectCrosshair(640, 480, true);
}

TEST_F(FrameDriverTest, R11_CrosshairOfAnOddFrame) {
    Open(31, 21);
    driver.crosshairSwitch = 1;
    RenderFrame();
    ExpectCrosshair(31, 21, true);
}

TEST_F(FrameDriverTest, CrosshairNeedsItsSwitchAtOne) {
    for (const std::int32_t value : {-1, 0, 2}) {
        SetUp();
        Open();
        driver.crosshairSwitch = value;
        RenderFrame();
        ExpectCrosshair(640, 480, false);
    }
}

TEST_F(FrameDriverTest, CrosshairWithoutADisplayIsHarmless) {
    driver.sceneIndex = 3;
    driver.crosshairSwitch = 1;
    EXPECT_EQ(RenderFrame(), 1);
    EXPECT_EQ(driver.frameCounter, 1U);
}

} // namespace
} // namespace ombrel
