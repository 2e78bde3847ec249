// The production on the real Windows back end, watched: every call into the system goes through a
// table that can write it down, count frames, hash pictures, or make things go wrong. Never
// shipped.
//
//     probe [--log FILE] [--hashes FILE] [--frames N] [--wrong WHAT] [-- production switches]
//
// --frames N: Escape is down once N frames are shown (default 20). --hashes also lifts the frame
// cap. WHAT: depth (the desktop cannot change), gdi (nor do blits convert), pitch (rows further
// apart), locks (every third lock fails), lost (presents 5 to 9 fail).
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "app/shell.h"
#include "base/hash.h"
#include "base/shell_state.h"
#include "demo/world.h"
#include "platform/display.h"
#include "platform/win32/win32_calls.h"
#include "platform/win32/win32_state.h"
#include "scene/face_list.h"

namespace {

using namespace ombrel;

struct Watch {
    std::FILE* log;
    std::FILE* hashes;
    std::string wrong;
    long frames; // to show before Escape goes down
    long shown;  // presents so far, failed ones too
    long locks;
    int scene;                        // that drew the frame in hand
    std::vector<std::uint16_t> wide;  // the back surface with rows further apart
    IDirectDrawSurface7* wideSurface; // locked through it
    void* realPixels;
    LONG realPitch;
};
Watch watch;
Win32Calls systemCalls; // what the recorders call

// --- writing calls down

// Frames after the first two look the same; the end is told again.
bool Telling() {
    return watch.log && (watch.shown < 2 || watch.shown >= watch.frames);
}

const char* NameOf(const void* object) {
    if (!object) {
        return "null";
    }
    if (object == win32State.primary) {
        return "primary";
    }
    if (object == display.backSurface) {
        return "back";
    }
    if (object == win32State.directDraw) {
        return "direct";
    }
    if (object == win32State.backClipper) {
        return "back-clipper";
    }
    if (object == win32State.windowClipper) {
        return "window-clipper";
    }
    return "object";
}

void Print(const RECT* r) {
    if (r) {
        std::fprintf(watch.log, " [%ld %ld %ld %ld]", r->left, r->top, r->right, r->bottom);
    } else {
        std::fprintf(watch.log, " null");
    }
}
void Print(RECT* r) {
    Print(const_cast<const RECT*>(r));
}
void Print(const char* text) {
    // Small numbers in the place of a text are the system's own resources.
    if (reinterpret_cast<std::uintptr_t>(text) < 0x10000) {
        std::fprintf(watch.log, " #%u",
                     static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(text)));
    } else {
        std::fprintf(watch.log, " \"%s\"", text);
    }
}
void Print(const wchar_t* text) {
    std::fprintf(watch.log, " \"%ls\"", text ? text : L"");
}
void Print(HWND window) {
    const char* name = !window                        ? "null"
                       : window == win32State.window  ? "window"
                       : window == GetDesktopWindow() ? "desktop"
                                                      : "other-window";
    std::fprintf(watch.log, " %s", name);
}
void Print(const WNDCLASSA* c) {
    std::fprintf(watch.log, " class 0x%x \"%s\" extra %d %d icon %d menu %d", c->style,
                 c->lpszClassName, c->cbClsExtra, c->cbWndExtra, c->hIcon != nullptr,
                 c->lpszMenuName != nullptr);
}
void Print(DEVMODEA* mode) {
    std::fprintf(watch.log, " mode %lux%lux%lu", mode->dmPelsWidth, mode->dmPelsHeight,
                 mode->dmBitsPerPel);
}
void Print(DDSURFACEDESC2* d) {
    std::fprintf(watch.log, " %lux%lu caps 0x%lx flags 0x%lx size %lu", d->dwWidth, d->dwHeight,
                 d->ddsCaps.dwCaps, d->dwFlags, d->dwSize);
}
void Print(DDCOLORKEY* key) {
    std::fprintf(watch.log, " key %lu %lu", key->dwColorSpaceLowValue, key->dwColorSpaceHighValue);
}
void Print(DDBLTFX* effects) {
    if (effects) {
        std::fprintf(watch.log, " fill %lu", effects->dwFillColor);
    } else {
        std::fprintf(watch.log, " null");
    }
}
void Print(RGNDATA* region) {
    std::fprintf(watch.log, " region %lu %lu %lu %lu", region->rdh.dwSize, region->rdh.iType,
                 region->rdh.nCount, region->rdh.nRgnSize);
    Print(&region->rdh.rcBound);
}
template <class T> void Print(T value) {
    if constexpr (std::is_pointer_v<T>) {
        std::fprintf(watch.log, " %s",
                     std::is_convertible_v<T, IUnknown*>
                         ? NameOf(reinterpret_cast<const void*>(value))
                         : "out");
    } else if constexpr (std::is_integral_v<T>) {
        std::fprintf(watch.log, value > 0xFFFF ? " 0x%llx" : " %lld",
                     static_cast<long long>(value));
    } else {
        std::fprintf(watch.log, " it");
    }
}

// Calls of every turn of the loop that say nothing.
bool IsNoise(const char* name) {
    for (const char* noise :
         {"defWindowProc", "peekMessage", "translateMessage", "dispatchMessage", "getTickCount",
          "getAsyncKeyState", "beginPaint", "endPaint", "getPixelFormat"}) {
        if (std::strcmp(name, noise) == 0) {
            return true;
        }
    }
    return false;
}

template <auto Member> constexpr const char* kName = "";
#define OMBREL_NAME(entry, function)                                                               \
    template <> constexpr const char* kName<&Win32Calls::entry> = #entry;
OMBREL_WIN32_CALLS(OMBREL_NAME)
#undef OMBREL_NAME

template <auto Member, class R, class... A> R WINAPI Recorded(A... arguments) {
    const bool telling = Telling() && !IsNoise(kName<Member>);
    if (telling) {
        std::fprintf(watch.log, "%s", kName<Member>);
        (Print(arguments), ...);
        std::fputc('\n', watch.log);
    }
    if constexpr (std::is_same_v<R, HRESULT>) {
        const HRESULT result = (systemCalls.*Member)(arguments...);
        if (telling && result < 0) {
            std::fprintf(watch.log, "failed %lx\n", static_cast<unsigned long>(result));
        }
        return result;
    } else {
        return (systemCalls.*Member)(arguments...);
    }
}
template <auto Member, class R, class... A> void Install(R (*Win32Calls::*)(A...)) {
    win32Calls.*Member = Recorded<Member, R, A...>;
}

// --- things that go wrong, and what is learnt from calls

LONG WINAPI NoChange(DEVMODEA*, DWORD) {
    return DISP_CHANGE_BADMODE;
}

std::int32_t DrawnFaces() {
    std::int32_t count = 0;
    for (std::int32_t i = 0; i < sceneFaces.count; ++i) {
        count += IsDrawable(sceneFaces.records[i].state) ? 1 : 0;
    }
    return count;
}

void WriteHashLine(const std::uint16_t* pixels, std::int32_t pitch) {
    std::fprintf(watch.hashes, "frame %ld scene %d faces %d hash %016" PRIx64 "\n", watch.shown,
                 watch.scene, DrawnFaces(),
                 HashPicture(pixels, pitch, display.width, display.height));
}

bool IsPresent(IDirectDrawSurface7* destination, IDirectDrawSurface7* origin) {
    return origin && destination == win32State.primary && origin == ObjectOf(display.backSurface);
}

HRESULT WatchedBlt(IDirectDrawSurface7* destination, RECT* target, IDirectDrawSurface7* origin,
                   RECT* source, DWORD flags, DDBLTFX* effects) {
    if (!IsPresent(destination, origin)) {
        const bool probing = origin && watch.wrong == "gdi" && !(flags & DDBLT_KEYSRC);
        return probing ? DDERR_UNSUPPORTED
                       : direct::Blt(destination, target, origin, source, flags, effects);
    }
    if (watch.hashes) {
        DDSURFACEDESC2 description = {};
        description.dwSize = sizeof(description);
        if (SUCCEEDED(direct::Lock(origin, &description, DDLOCK_WAIT))) {
            WriteHashLine(static_cast<std::uint16_t*>(description.lpSurface), description.lPitch);
            direct::Unlock(origin);
        }
    }
    const long number = watch.shown++;
    return watch.wrong == "lost" && number >= 5 && number < 10
               ? DDERR_SURFACELOST
               : direct::Blt(destination, target, origin, source, flags, effects);
}

int WINAPI WatchedBitmap(HDC context, int x, int y, int width, int height, int sourceX, int sourceY,
                         int sourceWidth, int sourceHeight, const void* bits,
                         const BITMAPINFO* bitmap, UINT usage, DWORD operation) {
    if (watch.hashes) {
        WriteHashLine(static_cast<const std::uint16_t*>(bits), bitmap->bmiHeader.biWidth * 2);
    }
    ++watch.shown;
    return StretchDIBits(context, x, y, width, height, sourceX, sourceY, sourceWidth, sourceHeight,
                         bits, bitmap, usage, operation);
}

HRESULT WatchedLock(IDirectDrawSurface7* surface, DDSURFACEDESC2* description, DWORD flags) {
    const bool back = surface && surface == ObjectOf(display.backSurface);
    if (back && watch.wrong == "locks" && ++watch.locks % 3 == 0) {
        return DDERR_SURFACEBUSY;
    }
    const HRESULT result = direct::Lock(surface, description, flags);
    if (SUCCEEDED(result) && back && watch.wrong == "pitch") {
        // Hand out a copy with 100 more pixels a row.
        watch.wideSurface = surface;
        watch.realPixels = description->lpSurface;
        watch.realPitch = description->lPitch;
        const auto rowPixels = static_cast<std::size_t>(display.width) + 100;
        watch.wide.resize(rowPixels * static_cast<std::size_t>(display.height));
        for (std::int32_t y = 0; y < display.height; ++y) {
            std::memcpy(&watch.wide[static_cast<std::size_t>(y) * rowPixels],
                        static_cast<char*>(watch.realPixels) + y * watch.realPitch,
                        static_cast<std::size_t>(display.width) * 2);
        }
        description->lpSurface = watch.wide.data();
        description->lPitch = static_cast<LONG>(rowPixels * 2);
    }
    return result;
}

HRESULT WatchedUnlock(IDirectDrawSurface7* surface) {
    if (surface && surface == watch.wideSurface) {
        const auto rowPixels = static_cast<std::size_t>(display.width) + 100;
        for (std::int32_t y = 0; y < display.height; ++y) {
            std::memcpy(static_cast<char*>(watch.realPixels) + y * watch.realPitch,
                        &watch.wide[static_cast<std::size_t>(y) * rowPixels],
                        static_cast<std::size_t>(display.width) * 2);
        }
        watch.wideSurface = nullptr;
    }
    return direct::Unlock(surface);
}

SHORT WINAPI WatchedKey(int key) {
    return key == VK_ESCAPE && watch.shown >= watch.frames ? static_cast<SHORT>(0x8000) : SHORT{0};
}

// A turn of the loop begins: the scene that will draw is known.
BOOL WINAPI WatchedPeek(MSG* message, HWND window, UINT from, UINT to, UINT remove) {
    watch.scene = driver.sceneIndex;
    if (watch.hashes) {
        driver.frameCapSwitch = 0;
    }
    return PeekMessageA(message, window, from, to, remove);
}

void InstallAll() {
    win32Calls.blt = WatchedBlt;
    win32Calls.stretchDIBits = WatchedBitmap;
    win32Calls.lock = WatchedLock;
    win32Calls.unlock = WatchedUnlock;
    win32Calls.getAsyncKeyState = WatchedKey;
    win32Calls.peekMessage = WatchedPeek;
    if (watch.wrong == "depth" || watch.wrong == "gdi") {
        win32Calls.changeDisplaySettings = NoChange;
    }
    if (watch.log) {
        systemCalls = win32Calls;
#define OMBREL_INSTALL(entry, function) Install<&Win32Calls::entry>(&Win32Calls::entry);
        OMBREL_WIN32_CALLS(OMBREL_INSTALL)
#undef OMBREL_INSTALL
    }
}

} // namespace

int main(int count, char** arguments) {
    watch.frames = 20;
    std::string production;
    bool own = true;
    for (int i = 1; i < count; ++i) {
        const std::string word = arguments[i];
        const char* value = i + 1 < count ? arguments[i + 1] : "";
        if (own && word == "--") {
            own = false;
        } else if (!own) {
            production += production.empty() ? word : " " + word;
        } else if (word == "--log") {
            watch.log = std::fopen(value, "wb");
            ++i;
        } else if (word == "--hashes") {
            watch.hashes = std::fopen(value, "wb");
            ++i;
        } else if (word == "--frames") {
            watch.frames = std::atol(value);
            ++i;
        } else if (word == "--wrong") {
            watch.wrong = value;
            ++i;
        } else {
            std::fprintf(stderr, "probe: what is %s?\n", word.c_str());
            return 2;
        }
    }
    InstallAll();
    win32State.instance = GetModuleHandleA(nullptr);
    const int result = RunProduction(production.c_str());
    std::printf("shown %ld own-format %d path %d result %d\n", watch.shown, win32State.ownFormat,
                static_cast<int>(win32State.path), result);
    if (watch.log) {
        std::fclose(watch.log);
    }
    if (watch.hashes) {
        std::fclose(watch.hashes);
    }
    return result;
}
