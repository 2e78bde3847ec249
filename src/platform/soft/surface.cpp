// Surfaces in memory: making, filling, locking, clipping and the keyed blit. A surface that is
// locked refuses fills and blits, as one whose memory the program holds does. Callers: the font,
// the primitives, the scenes, and soft/display.cpp.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

#include "platform/soft/soft.h"

namespace ombrel {

namespace {

constexpr std::int32_t kMaxSide = 16384;
constexpr std::int32_t kBoundsStart = 64000;

constinit Surface surfaces[kMaxSurfaces]{};
constinit std::int32_t nextSurface = 0;

bool IsAlive(const Surface* surface) {
    return surface != nullptr && surface->pixels != nullptr;
}

// The next free record after the one handed out last: a record is used again as late as possible.
Surface* FreeRecord() {
    for (std::int32_t i = 0; i < kMaxSurfaces; ++i) {
        Surface* candidate = &surfaces[(nextSurface + i) % kMaxSurfaces];
        if (!candidate->inUse) {
            nextSurface = (nextSurface + i + 1) % kMaxSurfaces;
            return candidate;
        }
    }
    return nullptr;
}

Rect Common(const Rect& a, const Rect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

bool IsEmpty(const Rect& r) {
    return r.left >= r.right || r.top >= r.bottom;
}

Pixel16* RowOf(const Surface& surface, std::int32_t y) {
    return reinterpret_cast<Pixel16*>(reinterpret_cast<unsigned char*>(surface.pixels) +
                                      static_cast<std::ptrdiff_t>(y) * surface.pitch);
}

// Calls draw(part) for every part of the rectangle that may be written. A surface without a clip
// list takes only rectangles that lie wholly inside it; returns 0 for any other.
template <typename Draw> int ForVisibleParts(const Surface& surface, const Rect& r, Draw draw) {
    const Rect whole{0, 0, surface.width, surface.height};
    if (IsEmpty(r)) {
        return 0;
    }
    if (surface.clipper == nullptr) {
        const Rect inside = Common(r, whole);
        if (inside.left != r.left || inside.top != r.top || inside.right != r.right ||
            inside.bottom != r.bottom) {
            return 0;
        }
        draw(r);
        return 1;
    }
    for (const Rect& allowed : surface.clipper->rectangles) {
        const Rect part = Common(Common(r, allowed), whole);
        if (!IsEmpty(part)) {
            draw(part);
        }
    }
    return 1;
}

} // namespace

Surface* MakeOffscreenSurface(std::int32_t width, std::int32_t height, SurfaceMemory memory,
                              std::uint32_t colorKey) {
    (void)memory; // there is only one kind here
    if (width <= 0 || height <= 0 || width > kMaxSide || height > kMaxSide) {
        return nullptr;
    }
    Surface* surface = FreeRecord();
    if (surface == nullptr) {
        return nullptr;
    }
    const std::int32_t pitch = width * 2 + (std::clamp(softOptions.pitchPadding, 0, kMaxSide) & ~1);
    auto* pixels = static_cast<Pixel16*>(
        std::calloc(static_cast<std::size_t>(height), static_cast<std::size_t>(pitch)));
    if (pixels == nullptr) {
        return nullptr;
    }
    *surface = {pixels, width, height, pitch, static_cast<Pixel16>(colorKey & 0xFFFF),
                false,  true,  nullptr};
    return surface;
}

void ReleaseSurface(Surface* surface) {
    if (!IsAlive(surface)) {
        return;
    }
    delete surface->clipper;
    std::free(surface->pixels);
    *surface = {};
}

int FillSurface(Surface* surface, std::uint32_t color, const Rect* rectangle) {
    if (!IsAlive(surface) || surface->locked) {
        return 1;
    }
    const Rect whole{0, 0, surface->width, surface->height};
    const auto value = static_cast<Pixel16>(color & 0xFFFF);
    (void)ForVisibleParts(*surface, rectangle != nullptr ? *rectangle : whole, [&](const Rect& r) {
        for (std::int32_t y = r.top; y < r.bottom; ++y) {
            Pixel16* row = RowOf(*surface, y);
            std::fill(row + r.left, row + r.right, value);
        }
    });
    return 1;
}

Clipper* SetSurfaceClipList(Surface* surface, std::int32_t count, const Rect* rectangles) {
    if (!IsAlive(surface) || count < 0 || (count > 0 && rectangles == nullptr)) {
        return nullptr;
    }
    auto* clipper = new (std::nothrow) Clipper;
    if (clipper == nullptr) {
        return nullptr;
    }
    // Take the list over and box it in.
    Rect bounds{kBoundsStart, kBoundsStart, -kBoundsStart, -kBoundsStart};
    for (std::int32_t i = 0; i < count; ++i) {
        const Rect& r = rectangles[i];
        clipper->rectangles.push_back(r);
        bounds = {std::min(bounds.left, r.left), std::min(bounds.top, r.top),
                  std::max(bounds.right, r.right), std::max(bounds.bottom, r.bottom)};
    }
    clipper->bounds = bounds;
    // Attach it in place of the one before.
    delete surface->clipper;
    surface->clipper = clipper;
    return clipper;
}

int LockSurface(Surface* surface, FrameBuffer* out) {
    *out = {};
    if (!IsAlive(surface) || surface->locked) {
        return 0;
    }
    surface->locked = true;
    *out = {surface->pixels, surface->pitch};
    return 1;
}

int UnlockSurface(Surface* surface) {
    if (!IsAlive(surface) || !surface->locked) {
        return 0;
    }
    surface->locked = false;
    return 1;
}

int BlitKeyed(Surface* destination, const Rect* target, Surface* source) {
    if (!IsAlive(destination) || !IsAlive(source) || target == nullptr || destination->locked ||
        source->locked) {
        return 0;
    }
    // In 64 bits: a target may be anywhere.
    const std::int64_t width = std::int64_t{target->right} - target->left;
    const std::int64_t height = std::int64_t{target->bottom} - target->top;
    if (width != source->width || height != source->height) {
        return 0;
    }
    return ForVisibleParts(*destination, *target, [&](const Rect& r) {
        for (std::int32_t y = r.top; y < r.bottom; ++y) {
            const Pixel16* from = RowOf(*source, y - target->top) + (r.left - target->left);
            Pixel16* to = RowOf(*destination, y) + r.left;
            for (std::int32_t x = r.left; x < r.right; ++x, ++from, ++to) {
                if (*from != source->colorKey) {
                    *to = *from;
                }
            }
        }
    });
}

void ReleaseAllSurfaces() {
    for (Surface& surface : surfaces) {
        ReleaseSurface(&surface);
    }
    nextSurface = 0;
}

} // namespace ombrel
