// The display half of the seam: a 16-bit back surface that the program draws into, small surfaces
// for glyphs, and the copy to screen or window. Every back-end folder defines these functions; a
// build links exactly one folder. Results are 1 for success, 0 for failure.
#pragma once

#include <cstdint>

#include "base/pixel16.h"
#include "base/rect.h"

namespace ombrel {

struct Surface; // owned by the back end
struct Clipper;

// A locked surface seen as memory. pitch is in bytes and may exceed twice the width.
struct FrameBuffer {
    Pixel16* pixels; // null while not locked
    std::int32_t pitch;
};

// Written by the back end; read by scenes, primitives and the frame driver.
struct DisplayState {
    FrameBuffer back;    // the back surface while it is locked, else null and 0
    FrameBuffer primary; // never locked by the program, but PresentFrame looks at it
    Surface* backSurface;
    std::int32_t width, height, bitsPerPixel;
    std::int32_t windowed, flip;
    DisplayFormat format; // of the visible surface: what colours are made for
    Rect clip;            // of primitives and fillers: 0, 0, width, height
    Rect source;          // the part of the back surface that is presented
};
extern DisplayState display;
void ResetDisplayState();

// bitsPerPixel is 16; flip 0 (blit) or 1. Sets the fields above, clears
// the surfaces to 0. A failure returns 0 and leaves what was made so far for CloseDisplay.
int OpenDisplay(std::int32_t width, std::int32_t height, std::int32_t bitsPerPixel,
                std::int32_t windowed, std::int32_t flip);
int CloseDisplay(); // releases everything, clears no variable; 1

void LockFrame();   // fills display.back; nothing happens when it is locked already
int UnlockFrame();  // 0 when it was not locked
int PresentFrame(); // 0 while a surface is locked or when the copy failed

enum class SurfaceMemory { Any, System };
Surface* MakeOffscreenSurface(std::int32_t width, std::int32_t height, SurfaceMemory memory,
                              std::uint32_t colorKey);                         // null on failure
void ReleaseSurface(Surface* surface);                                         // null is allowed
int FillSurface(Surface* surface, std::uint32_t color, const Rect* rectangle); // null: all of it; 1
Clipper* SetSurfaceClipList(Surface* surface, std::int32_t count, const Rect* rectangles);
int LockSurface(Surface* surface, FrameBuffer* out); // 0 and null pixels on failure
int UnlockSurface(Surface* surface);
// Copies the whole of source to target (same size) on destination, clipped by the clip list of
// destination, leaving pixels alone where source holds its colour key. 0 for a null surface.
int BlitKeyed(Surface* destination, const Rect* target, Surface* source);

} // namespace ombrel
