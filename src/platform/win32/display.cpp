// The display: DirectDraw objects made in a fixed order, the back surface in system memory, and the
// copy of a finished frame to screen or window. Where the screen cannot be put at 16 bits the copy
// goes through convert.cpp. Called by start-up, the scenes and the frame driver.
#include "platform/display.h"
#include "base/shell_state.h"
#include "platform/win32/win32_calls.h"
#include "platform/win32/win32_state.h"

namespace ombrel {

namespace {

constexpr DWORD kFullScreenLevel =
    DDSCL_FULLSCREEN | DDSCL_ALLOWREBOOT | DDSCL_EXCLUSIVE | DDSCL_ALLOWMODEX | DDSCL_MULTITHREADED;

// True when the display lists the mode.
bool ModeListed(std::int32_t width, std::int32_t height, std::int32_t bitsPerPixel) {
    DEVMODEA mode = {};
    mode.dmSize = sizeof(mode);
    for (DWORD i = 0; win32Calls.enumDisplaySettings(nullptr, i, &mode); ++i) {
        if (mode.dmPelsWidth == static_cast<DWORD>(width) &&
            mode.dmPelsHeight == static_cast<DWORD>(height) &&
            mode.dmBitsPerPel == static_cast<DWORD>(bitsPerPixel)) {
            return true;
        }
    }
    return false;
}

// Whether a mode could not be set because this display cannot have it. Lists of modes may name more
// than the display can do, so an answer that says so counts too.
bool CannotHaveMode(HRESULT answer, std::int32_t width, std::int32_t height,
                    std::int32_t bitsPerPixel) {
    return answer == DDERR_UNSUPPORTED || answer == DDERR_UNSUPPORTEDMODE ||
           answer == DDERR_INVALIDMODE || !ModeListed(width, height, bitsPerPixel);
}

// Takes the display for this program. A display that has no such mode is left as it is, and the
// window is put over the whole monitor instead.
int TakeDisplay(std::int32_t width, std::int32_t height, std::int32_t bitsPerPixel,
                std::int32_t windowed) {
    const DWORD level = windowed ? DWORD{DDSCL_NORMAL} : kFullScreenLevel;
    if (FAILED(win32Calls.setCooperativeLevel(win32State.directDraw, win32State.window, level))) {
        return 0;
    }
    if (windowed) {
        return 1;
    }
    const HRESULT answer =
        win32Calls.setDisplayMode(win32State.directDraw, static_cast<DWORD>(width),
                                  static_cast<DWORD>(height), static_cast<DWORD>(bitsPerPixel));
    if (SUCCEEDED(answer)) {
        return 1;
    }
    if (!CannotHaveMode(answer, width, height, bitsPerPixel) ||
        FAILED(win32Calls.setCooperativeLevel(win32State.directDraw, win32State.window,
                                              DDSCL_NORMAL))) {
        return 0;
    }
    win32State.path = PresentPath::Stretch;
    win32State.picture = CoverMonitor(width, height);
    return 1;
}

// The visible surface. Its result is not looked at: what needs it fails by itself.
void MakePrimary(bool flipping) {
    DDSURFACEDESC2 wanted = {};
    wanted.dwSize = sizeof(wanted);
    wanted.dwFlags = DDSD_CAPS;
    wanted.ddsCaps.dwCaps = DDSCAPS_PRIMARYSURFACE;
    if (flipping) {
        wanted.dwFlags |= DDSD_BACKBUFFERCOUNT;
        wanted.ddsCaps.dwCaps |= DDSCAPS_FLIP | DDSCAPS_COMPLEX;
        wanted.dwBackBufferCount = 1;
    }
    win32Calls.createSurface(win32State.directDraw, &wanted, &win32State.primary);
}

void ReadPrimaryFormat(std::int32_t bitsPerPixel) {
    DDPIXELFORMAT format = {};
    format.dwSize = sizeof(format);
    win32Calls.getPixelFormat(win32State.primary, &format);
    const auto count = static_cast<std::int32_t>(format.dwRGBBitCount);
    win32State.ownFormat = count != 15 && count != 16;
    display.format.bitsPerPixel = bitsPerPixel;
    display.format.rgbBits = win32State.ownFormat ? 16 : count;
    // REQUIRED R50: only the packer heeds 15 bits.
    display.format.pack = display.format.rgbBits == 15 ? PackRgb555 : PackRgb565;
}

// 0 only where a flipping display has no back buffer; a surface that cannot be made stays null.
int MakeBackSurface(std::int32_t width, std::int32_t height, bool flipping) {
    if (!flipping) {
        display.backSurface = MakeOffscreenSurface(width, height, SurfaceMemory::System, 0);
        win32State.surfaceCount = 0; // the back surface has its own place in the order of release
        return 1;
    }
    DDSCAPS2 caps = {};
    caps.dwCaps = DDSCAPS_BACKBUFFER;
    IDirectDrawSurface7* back = nullptr;
    if (FAILED(win32Calls.getAttachedSurface(win32State.primary, &caps, &back))) {
        return 0;
    }
    display.backSurface = SurfaceOf(back);
    return 1;
}

// Keeps what other windows cover out of the copy.
int ClipToWindow() {
    return SUCCEEDED(win32Calls.createClipper(win32State.directDraw, &win32State.windowClipper)) &&
           SUCCEEDED(win32Calls.setHWnd(win32State.windowClipper, win32State.window)) &&
           SUCCEEDED(win32Calls.setClipper(win32State.primary, win32State.windowClipper));
}

} // namespace

int OpenDisplay(std::int32_t width, std::int32_t height, std::int32_t bitsPerPixel,
                std::int32_t windowed, std::int32_t flip) {
    win32State.path = PresentPath::Blit;
    if (FAILED(win32Calls.directDrawCreate(nullptr,
                                           reinterpret_cast<void**>(&win32State.directDraw),
                                           IID_IDirectDraw7, nullptr))) {
        return 0;
    }
    if (!TakeDisplay(width, height, bitsPerPixel, windowed)) {
        return 0;
    }
    display.width = width;
    display.height = height;
    display.bitsPerPixel = bitsPerPixel;
    display.windowed = windowed;
    const bool covering = win32State.path == PresentPath::Stretch;
    display.flip = covering ? 0 : flip;
    const bool flipping = !windowed && display.flip;

    MakePrimary(flipping);
    ReadPrimaryFormat(bitsPerPixel);
    if (!MakeBackSurface(width, height, flipping)) {
        return 0;
    }
    if (!windowed && !covering) {
        FillSurface(SurfaceOf(win32State.primary), 0, nullptr);
    }
    FillSurface(display.backSurface, 0, nullptr);

    const Rect whole = {0, 0, width, height};
    display.clip = whole;
    win32State.backClipper = ObjectOf(SetSurfaceClipList(display.backSurface, 1, &whole));
    if (windowed && !ClipToWindow()) {
        return 0;
    }
    display.source = whole;
    if (win32State.ownFormat && !covering && !BlitsConvert()) {
        win32State.path = PresentPath::Gdi;
    }
    return 1;
}

int CloseDisplay() {
    IUnknown* const made[] = {win32State.backClipper, win32State.windowClipper,
                              ObjectOf(display.backSurface), win32State.primary,
                              win32State.directDraw};
    for (IUnknown* object : made) {
        if (object) {
            win32Calls.release(object);
        }
    }
    // Glyph surfaces live as long as the process, and hold on to the object that gives the desktop
    // its mode back when it goes.
    while (win32State.surfaceCount > 0) {
        win32Calls.release(win32State.surfaces[--win32State.surfaceCount]);
    }
    return 1;
}

void LockFrame() {
    if (display.back.pixels) {
        return;
    }
    LockSurface(display.backSurface, &display.back);
}

int UnlockFrame() {
    if (!display.back.pixels) {
        return 0;
    }
    UnlockSurface(display.backSurface);
    display.back = {nullptr, 0};
    return 1;
}

int PresentFrame() {
    if (display.primary.pixels || display.back.pixels) {
        return 0;
    }
    if (!win32State.primary || !display.backSurface) {
        return 0;
    }
    if (!display.windowed && display.flip) {
        while (FAILED(win32Calls.flip(win32State.primary, DDFLIP_WAIT))) {
        }
        return 1;
    }
    if (win32State.path == PresentPath::Stretch) {
        return PresentBitmap(RectOf(win32State.picture));
    }
    if (win32State.path == PresentPath::Gdi) {
        return PresentBitmap({0, 0, display.width, display.height});
    }
    // Where the window is now: it may have been moved since the last frame.
    RECT window = {};
    if (!win32Calls.getWindowRect(win32State.window, &window)) {
        return 0;
    }
    RECT target = {window.left + shell.clientOffsetX, window.top + shell.clientOffsetY, 0, 0};
    target.right = target.left + display.width;
    target.bottom = target.top + display.height;
    RECT source = RectOf(display.source);
    // REQUIRED R49: a lost surface is not restored.
    return SUCCEEDED(win32Calls.blt(win32State.primary, &target, ObjectOf(display.backSurface),
                                    &source, DDBLT_WAIT, nullptr))
               ? 1
               : 0;
}

} // namespace ombrel
