// The display over surfaces in memory: opening, locking, presenting, closing. The screen behind it
// is the back end's. Callers: start-up, the scenes, the frame driver, the exit sequence.
#include <utility>

#include "platform/soft/soft.h"

namespace ombrel {

namespace {

constexpr SoftOptions kInitialOptions{0};

// The visible surface of the flip mode; null otherwise.
constinit Surface* primarySurface = nullptr;

int ShowBackSurface() {
    if (display.backSurface == nullptr || display.backSurface->pixels == nullptr) {
        return 0;
    }
    return ShowPicture({display.backSurface->pixels, display.backSurface->pitch}, display.source);
}

} // namespace

constinit SoftOptions softOptions = kInitialOptions;

int OpenDisplay(std::int32_t width, std::int32_t height, std::int32_t bitsPerPixel,
                std::int32_t windowed, std::int32_t flip) {
    // Reach the screen and put it into the wanted mode.
    if (OpenScreen({width, height, bitsPerPixel, windowed}) == 0) {
        return 0;
    }
    display.width = width;
    display.height = height;
    display.bitsPerPixel = bitsPerPixel;
    display.windowed = windowed;
    display.flip = flip;

    // Choose the colour packer by what the visible surface reports.
    display.format.bitsPerPixel = bitsPerPixel;
    display.format.rgbBits = ScreenRgbBits();
    display.format.pack = display.format.rgbBits == 15 ? PackRgb555 : PackRgb565;

    // Make the back surface, and the one it changes places with.
    const bool flips = windowed == 0 && flip != 0;
    primarySurface = flips ? MakeOffscreenSurface(width, height, SurfaceMemory::Any, 0) : nullptr;
    display.backSurface = MakeOffscreenSurface(width, height, SurfaceMemory::System, 0);
    if (flips && (primarySurface == nullptr || display.backSurface == nullptr)) {
        return 0;
    }

    // Clear both to colour 0.
    FillSurface(primarySurface, 0, nullptr);
    FillSurface(display.backSurface, 0, nullptr);

    // Clip the primitives, the fillers and the blits to the frame.
    const Rect whole{0, 0, width, height};
    display.clip = whole;
    SetSurfaceClipList(display.backSurface, 1, &whole);

    // Keep the copy to the screen inside the window.
    if (windowed != 0 && AttachScreenToWindow() == 0) {
        return 0;
    }
    display.source = whole;
    return 1;
}

int CloseDisplay() {
    // The clip list goes with its surface. A released handle is refused, so twice is harmless.
    ReleaseSurface(display.backSurface);
    ReleaseSurface(primarySurface);
    CloseScreen();
    return 1;
}

void LockFrame() {
    if (display.back.pixels != nullptr) {
        return;
    }
    (void)LockSurface(display.backSurface, &display.back);
}

int UnlockFrame() {
    if (display.back.pixels == nullptr) {
        return 0;
    }
    (void)UnlockSurface(display.backSurface);
    display.back = {};
    return 1;
}

int PresentFrame() {
    if (display.primary.pixels != nullptr || display.back.pixels != nullptr) {
        return 0;
    }
    if (display.windowed != 0 || display.flip == 0) {
        return ShowBackSurface();
    }
    // Flip: try until it does not fail, then what was seen is what is drawn into next.
    while (ShowBackSurface() == 0) {
    }
    std::swap(display.backSurface->pixels, primarySurface->pixels);
    return 1;
}

void ResetSoft() {
    ReleaseAllSurfaces();
    primarySurface = nullptr;
    softOptions = kInitialOptions;
}

} // namespace ombrel
