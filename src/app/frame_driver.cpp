// The frame driver. The order of its steps and the number of its clock reads are fixed.
#include "app/frame_driver.h"

#include <algorithm>

#include "base/shell_state.h"
#include "demo/primitives.h"
#include "demo/scenes.h"
#include "platform/display.h"
#include "platform/system.h"

namespace ombrel {

namespace {

constexpr std::int32_t kLastScene = 6;
constexpr std::int32_t kAveragedFrames = 10;
constexpr Pixel16 kBlack = 0;
constexpr Pixel16 kWhite = 0xFFFF;

struct CrosshairLine {
    Line2d fromCenter;
    Pixel16 color;
};

// clang-format off
// REQUIRED R11: the white upright bar is one pixel longer below the centre than above it.
constexpr CrosshairLine kCrosshair[] = {
    //  x0  y0  x1  y1    color
    { {-4,  0,  4,  0},  kBlack },
    { { 0, -4,  0,  4},  kBlack },
    { {-2,  0,  2,  0},  kWhite },
    { { 0, -1,  0,  2},  kWhite },
};
// clang-format on

// Needs the back surface locked; a lock that failed leaves nothing to draw into.
void DrawCrosshair() {
    if (display.back.pixels == nullptr) {
        return;
    }
    const std::int32_t cx = shell.screenWidth / 2;
    const std::int32_t cy = shell.screenHeight / 2;
    for (const CrosshairLine& bar : kCrosshair) {
        const Line2d& from = bar.fromCenter;
        DrawLine({cx + from.x0, cy + from.y0, cx + from.x1, cy + from.y1}, bar.color,
                 display.back.pixels, display.back.pitch);
    }
}

// numerator / ms as single precision; 0 ms gives infinity. The quotient is formed in double:
// chopped twice it is what one chopped division to single gives.
float RateOf(double numerator, std::uint32_t ms) {
    return static_cast<float>(numerator / static_cast<double>(ms));
}

// REQUIRED R12: the counter restarts at 1 and is tested against more than 10, so that a period
// is 11 frames while the figure is made for 10.
void MeasureAverageRate() {
    if (!driver.averagingStarted) {
        driver.averagingStarted = true;
        driver.averagingStartTick = TickNow();
    }
    if (driver.averagingCounter > kAveragedFrames) {
        driver.averagingCounter = 0;
        driver.averageFrameRate = RateOf(10000.0, TickNow() - driver.averagingStartTick);
        driver.averagingStartTick = TickNow();
    }
    ++driver.averagingCounter;
}

} // namespace

std::uint32_t TickNow() {
    return TickCount();
}

void FrameClockStart() {
    driver.frameStartTick = TickNow();
}

std::uint32_t FrameClockWait(std::uint32_t ms) {
    for (;;) {
        const std::uint32_t passed = TickNow() - driver.frameStartTick;
        if (passed >= ms) {
            return TickNow();
        }
        NapBeforeFrame(ms - passed);
    }
}

int RenderFrame() {
    // Hold the scene index inside its range.
    driver.sceneIndex = std::clamp(driver.sceneIndex, 0, kLastScene);

    // Start the clock of the frame.
    FrameClockStart();

    // Draw the scene; where there is none the back surface stays as it is.
    if (driver.sceneIndex < kSceneCount) {
        PlayScene(kScenes[driver.sceneIndex]);
    }

    // Draw the crosshair over it, for development only.
    LockFrame();
    if (driver.crosshairSwitch == 1) {
        DrawCrosshair();
    }
    (void)UnlockFrame();

    // Show the picture; a failure leaves the one before.
    (void)PresentFrame();

    // Let the frame last its time.
    if (driver.frameCapSwitch == 1) {
        FrameClockWait(kFrameMs);
    }

    // Take the figures.
    MeasureAverageRate();
    ++driver.frameCounter;
    driver.instantFrameRate = RateOf(1000.0, TickNow() - driver.frameStartTick);
    driver.demoTime = TickNow() - driver.demoStartTick;

    // Let Escape close the window.
    if (EscapeKeyDown()) {
        PostWindowDestroy();
    }
    return 1;
}

} // namespace ombrel
