// The handles and objects of the Windows back end, shared by its files.
#pragma once

#include <windows.h>

#include <ddraw.h>

#include <cstdint>

#include "platform/display.h"

namespace ombrel {

// How a finished frame reaches the screen.
enum class PresentPath {
    Blit,    // the visible surface has the format of the back surface, or its blits convert
    Gdi,     // it has another format and its blits do not convert: drawn as a bitmap
    Stretch, // no such mode: a bitmap over the whole monitor, enlarged by whole factors
};

inline constexpr std::int32_t kMaxSurfaces = 1024; // glyphs of two fonts, and to spare

// instance: written by the entry. window, quitPosted, entryMode: written by window.cpp. surfaces,
// surfaceCount: by surface.cpp, OpenDisplay and CloseDisplay. The rest: by OpenDisplay, read by
// presentation and release.
struct Win32State {
    HINSTANCE instance;
    HWND window;
    bool quitPosted;    // the quit message is on its way
    DEVMODEA entryMode; // all zero until a windowed run reads the desktop's mode into it
    IDirectDraw7* directDraw;
    IDirectDrawSurface7* primary;
    IDirectDrawClipper* backClipper;
    IDirectDrawClipper* windowClipper;
    IDirectDrawSurface7* surfaces[kMaxSurfaces]; // made and not released, but for the back surface
    std::int32_t surfaceCount;
    bool ownFormat; // the screen is not 16-bit: surfaces ask for 5-6-5 themselves
    PresentPath path;
    Rect picture; // path Stretch: where the frame goes, client pixels
};
extern Win32State win32State;
void ResetWin32State();

// A surface or clipper of the seam is the DirectDraw object itself.
inline IDirectDrawSurface7* ObjectOf(Surface* surface) {
    return reinterpret_cast<IDirectDrawSurface7*>(surface);
}
inline Surface* SurfaceOf(IDirectDrawSurface7* object) {
    return reinterpret_cast<Surface*>(object);
}
inline IDirectDrawClipper* ObjectOf(Clipper* clipper) {
    return reinterpret_cast<IDirectDrawClipper*>(clipper);
}

// Rectangles of the seam and of the system have the same four fields in the same order.
inline RECT RectOf(const Rect& r) {
    return {r.left, r.top, r.right, r.bottom};
}

// --- what the files of this folder offer each other

// The 5-6-5 format as a surface description wants it.
DDPIXELFORMAT Format565();
// True where blits from 5-6-5 to the format of the visible surface give the right colours.
bool BlitsConvert();
// Draws the back surface into the window's client area as a bitmap, on target. 1 or 0.
int PresentBitmap(const RECT& target);
// Covers the monitor of the window with it, and says where an enlarged width x height picture goes.
Rect CoverMonitor(std::int32_t width, std::int32_t height);

} // namespace ombrel
