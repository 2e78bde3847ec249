// Presentation on screens that cannot be put at 16 bits: whether the display's own blits convert
// 5-6-5 rightly, the copy as a bitmap where they do not, and the window over the whole monitor.
#include <algorithm>
#include <cstring>

#include "platform/display.h"
#include "platform/win32/win32_calls.h"
#include "platform/win32/win32_state.h"

namespace ombrel {

namespace {

constexpr std::int32_t kProbeCount = 4;
constexpr Pixel16 kProbePixels[kProbeCount] = {0xF800, 0x07E0, 0x001F, 0xFFFF};

struct BitmapHeader {
    BITMAPINFOHEADER header;
    DWORD masks[3];
};

// One channel of a pixel as 0..255, given its mask; 0 for no mask.
std::uint32_t Channel(std::uint32_t pixel, DWORD mask) {
    return mask ? static_cast<std::uint32_t>(std::uint64_t{pixel & mask} * 255 / mask) : 0;
}

// Compares with what a full or an empty channel must come out as, some rounding allowed.
bool ProbeMatches(std::uint32_t pixel, Pixel16 wanted, const DDPIXELFORMAT& format) {
    const bool full[3] = {RedOf(wanted) != 0, GreenOf(wanted) != 0, BlueOf(wanted) != 0};
    const DWORD masks[3] = {format.dwRBitMask, format.dwGBitMask, format.dwBBitMask};
    for (int i = 0; i < 3; ++i) {
        const std::uint32_t value = Channel(pixel, masks[i]);
        if (full[i] ? value < 240 : value > 15) {
            return false;
        }
    }
    return true;
}

Surface* MakeProbeSurface(const DDPIXELFORMAT& format) {
    DDSURFACEDESC2 wanted = {};
    wanted.dwSize = sizeof(wanted);
    wanted.dwFlags = DDSD_CAPS | DDSD_HEIGHT | DDSD_WIDTH | DDSD_PIXELFORMAT;
    wanted.dwWidth = kProbeCount;
    wanted.dwHeight = 1;
    wanted.ddpfPixelFormat = format;
    wanted.ddsCaps.dwCaps = DDSCAPS_OFFSCREENPLAIN | DDSCAPS_SYSTEMMEMORY;
    IDirectDrawSurface7* made = nullptr;
    return SUCCEEDED(win32Calls.createSurface(win32State.directDraw, &wanted, &made))
               ? SurfaceOf(made)
               : nullptr;
}

// Writes the probe pixels to from, blits them to to, and reads them there. Both may be null.
bool ProbeBlit(Surface* from, Surface* to, const DDPIXELFORMAT& format) {
    FrameBuffer memory = {};
    if (!from || !to || !LockSurface(from, &memory)) {
        return false;
    }
    std::memcpy(memory.pixels, kProbePixels, sizeof(kProbePixels));
    UnlockSurface(from);
    RECT all = {0, 0, kProbeCount, 1};
    if (FAILED(win32Calls.blt(ObjectOf(to), &all, ObjectOf(from), &all, DDBLT_WAIT, nullptr)) ||
        !LockSurface(to, &memory)) {
        return false;
    }
    bool matches = true;
    const std::size_t size = format.dwRGBBitCount / 8;
    for (std::size_t i = 0; i < kProbeCount; ++i) {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, reinterpret_cast<const unsigned char*>(memory.pixels) + i * size, size);
        matches = matches && ProbeMatches(pixel, kProbePixels[i], format);
    }
    UnlockSurface(to);
    return matches;
}

} // namespace

bool BlitsConvert() {
    DDPIXELFORMAT format = {};
    format.dwSize = sizeof(format);
    if (FAILED(win32Calls.getPixelFormat(win32State.primary, &format)) ||
        format.dwRGBBitCount < 24 || format.dwRGBBitCount > 32) {
        return false;
    }
    Surface* from = MakeProbeSurface(Format565());
    Surface* to = MakeProbeSurface(format);
    const bool converts = ProbeBlit(from, to, format);
    win32Calls.release(ObjectOf(from));
    win32Calls.release(ObjectOf(to));
    return converts;
}

int PresentBitmap(const RECT& target) {
    FrameBuffer memory = {};
    if (!LockSurface(display.backSurface, &memory)) {
        return 0;
    }
    // The bitmap is as wide as the pitch; only the frame's part of it is drawn.
    BitmapHeader bitmap = {};
    bitmap.header.biSize = sizeof(bitmap.header);
    bitmap.header.biWidth = memory.pitch / 2;
    bitmap.header.biHeight = -display.height;
    bitmap.header.biPlanes = 1;
    bitmap.header.biBitCount = 16;
    bitmap.header.biCompression = BI_BITFIELDS;
    const bool short15 = display.format.rgbBits == 15;
    bitmap.masks[0] = short15 ? 0x7C00 : 0xF800;
    bitmap.masks[1] = short15 ? 0x03E0 : 0x07E0;
    bitmap.masks[2] = 0x001F;
    HDC context = win32Calls.getDC(win32State.window);
    win32Calls.setStretchBltMode(context, COLORONCOLOR);
    const int lines = win32Calls.stretchDIBits(
        context, target.left, target.top, target.right - target.left, target.bottom - target.top, 0,
        0, display.width, display.height, memory.pixels, reinterpret_cast<BITMAPINFO*>(&bitmap),
        DIB_RGB_COLORS, SRCCOPY);
    win32Calls.releaseDC(win32State.window, context);
    UnlockSurface(display.backSurface);
    return lines != 0 && lines != static_cast<int>(GDI_ERROR) ? 1 : 0;
}

Rect CoverMonitor(std::int32_t width, std::int32_t height) {
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof(monitor);
    HMONITOR handle = win32Calls.monitorFromWindow(win32State.window, MONITOR_DEFAULTTOPRIMARY);
    if (!win32Calls.getMonitorInfo(handle, &monitor)) {
        monitor.rcMonitor = {0, 0, width, height};
    }
    const RECT& area = monitor.rcMonitor;
    const std::int32_t areaWidth = area.right - area.left;
    const std::int32_t areaHeight = area.bottom - area.top;
    win32Calls.setWindowPos(win32State.window, HWND_TOP, area.left, area.top, areaWidth, areaHeight,
                            SWP_SHOWWINDOW | SWP_FRAMECHANGED);
    const std::int32_t scale = std::max(1, std::min(areaWidth / width, areaHeight / height));
    const std::int32_t x = (areaWidth - width * scale) / 2;
    const std::int32_t y = (areaHeight - height * scale) / 2;
    return {x, y, x + width * scale, y + height * scale};
}

} // namespace ombrel
