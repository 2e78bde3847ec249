// The show in a window: its clock, keys, mouse, and what is drawn over the picture when asked for.
#pragma once

#include <cstdint>

#include "player/looks.h"
#include "watch.h"

namespace player {

struct WindowSetup {
    std::int32_t first, last; // frames
    std::int32_t whole;       // frames of the production; 0: nobody knows
    bool loop, fullScreen;
    ombrel::Look look;
    Watch* watch; // the data that is played; null: nobody works on it
};

// Plays a show that is open until the window is closed. The exit code.
int RunWindow(const WindowSetup& setup);

} // namespace player
