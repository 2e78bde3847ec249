// How fast the frames are drawn: plays them without a window and prints what each stretch took.
#pragma once

#include <cstdint>
#include <string>

#include "demo/scenes.h"

namespace player {

// Opens the show that both the window and the measurement play, with its frames timed. False when
// it could not be opened.
bool OpenProduction();

struct TimeDemo {
    std::int32_t first, last; // frames
    bool json;
    std::string path; // of code, by name
};

// Plays a show that is open and prints. The exit code.
int RunTimeDemo(const TimeDemo& demo);

// Draws a frame and takes its time: the frame driver of the show that is measured.
int TimedRenderFrame();

// Of the frame that it drew last, ms; the parts by ombrel::FramePart.
struct FrameMs {
    double whole;
    double parts[ombrel::kFramePartCount];
};
const FrameMs& LastFrameMs();
const char* NameOfPart(std::int32_t part);

} // namespace player
