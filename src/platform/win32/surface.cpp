// Surfaces through DirectDraw: made, filled, clipped, locked, released and blitted with a colour
// key. Pixels are 5-6-5 wherever the screen is not 15-bit. A null surface fails, and never crashes.
#include <cstdlib>
#include <cstring>

#include "platform/display.h"
#include "platform/win32/win32_calls.h"
#include "platform/win32/win32_state.h"

namespace ombrel {

DDPIXELFORMAT Format565() {
    DDPIXELFORMAT format = {};
    format.dwSize = sizeof(format);
    format.dwFlags = DDPF_RGB;
    format.dwRGBBitCount = 16;
    format.dwRBitMask = 0xF800;
    format.dwGBitMask = 0x07E0;
    format.dwBBitMask = 0x001F;
    return format;
}

Surface* MakeOffscreenSurface(std::int32_t width, std::int32_t height, SurfaceMemory memory,
                              std::uint32_t colorKey) {
    DDSURFACEDESC2 wanted = {};
    wanted.dwSize = sizeof(wanted);
    wanted.dwFlags = DDSD_CAPS | DDSD_HEIGHT | DDSD_WIDTH;
    wanted.dwWidth = static_cast<DWORD>(width);
    wanted.dwHeight = static_cast<DWORD>(height);
    wanted.ddsCaps.dwCaps = DDSCAPS_OFFSCREENPLAIN;
    if (memory == SurfaceMemory::System) {
        wanted.ddsCaps.dwCaps |= DDSCAPS_SYSTEMMEMORY;
    }
    // A surface takes the format of the screen; where that is not 16-bit it names its own, which
    // only system memory is sure to hold.
    if (win32State.ownFormat) {
        wanted.dwFlags |= DDSD_PIXELFORMAT;
        wanted.ddpfPixelFormat = Format565();
        wanted.ddsCaps.dwCaps |= DDSCAPS_SYSTEMMEMORY;
    }
    IDirectDrawSurface7* made = nullptr;
    if (FAILED(win32Calls.createSurface(win32State.directDraw, &wanted, &made)) || !made) {
        return nullptr;
    }
    DDCOLORKEY key = {};
    key.dwColorSpaceLowValue = colorKey & 0xFFFF;
    key.dwColorSpaceHighValue = colorKey & 0xFFFF;
    win32Calls.setColorKey(made, DDCKEY_SRCBLT, &key);
    if (win32State.surfaceCount < kMaxSurfaces) {
        win32State.surfaces[win32State.surfaceCount++] = made;
    }
    return SurfaceOf(made);
}

void ReleaseSurface(Surface* surface) {
    // A surface that CloseDisplay has released already is not in the list any more.
    for (std::int32_t i = 0; surface && i < win32State.surfaceCount; ++i) {
        if (win32State.surfaces[i] == ObjectOf(surface)) {
            win32State.surfaces[i] = win32State.surfaces[--win32State.surfaceCount];
            win32Calls.release(ObjectOf(surface));
            return;
        }
    }
}

int FillSurface(Surface* surface, std::uint32_t color, const Rect* rectangle) {
    if (!surface) {
        return 1;
    }
    DDBLTFX effects = {};
    effects.dwSize = sizeof(effects);
    effects.dwFillColor = color & 0xFFFF;
    RECT target = rectangle ? RectOf(*rectangle) : RECT{};
    win32Calls.blt(ObjectOf(surface), rectangle ? &target : nullptr, nullptr, nullptr,
                   DDBLT_COLORFILL | DDBLT_WAIT, &effects);
    return 1;
}

Clipper* SetSurfaceClipList(Surface* surface, std::int32_t count, const Rect* rectangles) {
    IDirectDrawClipper* clipper = nullptr;
    if (FAILED(win32Calls.createClipper(win32State.directDraw, &clipper)) || !clipper) {
        return nullptr;
    }
    // Region data: a header, then the rectangles. The box around them starts inside out.
    const std::size_t listSize = static_cast<std::size_t>(count) * sizeof(RECT);
    auto* region = static_cast<RGNDATA*>(std::calloc(1, sizeof(RGNDATAHEADER) + listSize));
    bool attached = false;
    if (region) {
        RECT box = {64000, 64000, -64000, -64000};
        for (std::int32_t i = 0; i < count; ++i) {
            const RECT r = RectOf(rectangles[i]);
            std::memcpy(region->Buffer + static_cast<std::size_t>(i) * sizeof(RECT), &r, sizeof(r));
            box.left = r.left < box.left ? r.left : box.left;
            box.top = r.top < box.top ? r.top : box.top;
            box.right = r.right > box.right ? r.right : box.right;
            box.bottom = r.bottom > box.bottom ? r.bottom : box.bottom;
        }
        region->rdh.dwSize = sizeof(RGNDATAHEADER);
        region->rdh.iType = RDH_RECTANGLES;
        region->rdh.nCount = static_cast<DWORD>(count);
        region->rdh.nRgnSize = static_cast<DWORD>(listSize);
        region->rdh.rcBound = box;
        attached = SUCCEEDED(win32Calls.setClipList(clipper, region));
        std::free(region);
        attached = attached && SUCCEEDED(win32Calls.setClipper(ObjectOf(surface), clipper));
    }
    if (!attached) {
        win32Calls.release(clipper);
        return nullptr;
    }
    return reinterpret_cast<Clipper*>(clipper);
}

int LockSurface(Surface* surface, FrameBuffer* out) {
    DDSURFACEDESC2 description = {};
    description.dwSize = sizeof(description);
    *out = {nullptr, 0};
    if (FAILED(win32Calls.lock(ObjectOf(surface), &description, DDLOCK_WAIT)) ||
        !description.lpSurface) {
        return 0;
    }
    *out = {static_cast<Pixel16*>(description.lpSurface), description.lPitch};
    return 1;
}

int UnlockSurface(Surface* surface) {
    return SUCCEEDED(win32Calls.unlock(ObjectOf(surface))) ? 1 : 0;
}

int BlitKeyed(Surface* destination, const Rect* target, Surface* source) {
    if (!destination || !source) {
        return 0;
    }
    RECT to = RectOf(*target);
    RECT from = {0, 0, to.right - to.left, to.bottom - to.top};
    return SUCCEEDED(win32Calls.blt(ObjectOf(destination), &to, ObjectOf(source), &from,
                                    DDBLT_WAIT | DDBLT_KEYSRC, nullptr))
               ? 1
               : 0;
}

} // namespace ombrel
