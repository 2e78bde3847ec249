// 16-bit surfaces in memory, keyed blits and colour fills: the display half of the seam for systems
// that have no such thing of their own. A back end links this folder and adds the screen: the
// functions at the end of this file. Callers: the back ends and their tests.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/display.h"

namespace ombrel {

// A clip list, attached to one surface and freed with it.
struct Clipper {
    std::vector<Rect> rectangles;
    Rect bounds; // smallest rectangle around them; 64000, 64000, -64000, -64000 when there is none
};

// One record of a fixed pool. pixels is null once the surface is released, so that a handle which
// outlives its surface is refused instead of followed.
struct Surface {
    Pixel16* pixels;
    std::int32_t width, height;
    std::int32_t pitch; // bytes
    Pixel16 colorKey;
    bool locked;
    bool inUse;
    Clipper* clipper; // null: nothing outside the surface may be asked for
};

inline constexpr std::int32_t kMaxSurfaces = 4096;

// Bytes added to every row of new surfaces beyond twice the width, made even. Written by tests, so
// that a writer which steps rows by the width is seen.
struct SoftOptions {
    std::int32_t pitchPadding;
};
extern SoftOptions softOptions;

void ReleaseAllSurfaces();
void ResetSoft(); // releases every surface; options at their start values

// --- what the back end adds. 1 for success, 0 for failure.
struct ScreenRequest {
    std::int32_t width, height, bitsPerPixel, windowed;
};
int OpenScreen(const ScreenRequest& request); // a black picture; undone by CloseScreen
std::int32_t ScreenRgbBits();                 // 15 or 16, of the visible surface
int AttachScreenToWindow();                   // windowed only, the last step of OpenDisplay
// Shows the part `source` of the picture, unscaled from the program's point of view. 0 leaves what
// was shown before.
int ShowPicture(const FrameBuffer& picture, const Rect& source);
void CloseScreen(); // allowed when nothing is open

} // namespace ombrel
