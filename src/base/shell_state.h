// The process-wide variables that shell and scenes share: the resolution and switches of the
// command line, and the counters of the frame driver. Plain data; ResetShellState() restores the
// start.
#pragma once

#include <cstdint>

namespace ombrel {

inline constexpr char kWindowTitle[] = "Ombrel - a fast prod from Quellant";

// Written by the command line and the display set-up of the shell; read everywhere.
struct ShellState {
    std::int32_t screenWidth; // pixels
    std::int32_t screenHeight;
    std::int32_t windowed;      // 1: in a window, 0: full screen
    bool noSound;               // true: the sound library is not touched at all
    std::int32_t clientOffsetX; // from the window's outer corner to its client area, pixels
    std::int32_t clientOffsetY;
    std::int32_t screenCenterX; // where the cursor is parked
    std::int32_t screenCenterY;
    std::uint32_t savedDesktopDepth; // bits per pixel before the program changed it
};
extern ShellState shell;

// Written by the frame driver (and sceneIndex by the scenes); read by the scenes.
struct DriverState {
    std::int32_t sceneIndex;      // 0 scene one, 1 scene two, 2..6 nothing
    std::int32_t crosshairSwitch; // drawn only when 1
    std::int32_t frameCapSwitch;  // 1: a frame lasts at least 25 ms
    std::uint32_t frameStartTick; // ms
    std::uint32_t frameCounter;   // frames since the process started
    std::uint32_t demoStartTick;  // ms; last act of start-up
    std::uint32_t demoTime;       // ms since demoStartTick
    std::int32_t averagingCounter;
    std::uint32_t averagingStartTick; // ms
    bool averagingStarted;            // false until the first frame has taken averagingStartTick
    float averageFrameRate;           // frames per second, about 10/11 of the true rate
    float instantFrameRate;           // frames per second of the last frame; infinite for 0 ms
};
extern DriverState driver;

void ResetShellState(); // both records

} // namespace ombrel
