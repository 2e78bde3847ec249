// The table of system calls with the system's own functions, and the DirectDraw methods behind
// plain functions.
#include "platform/win32/win32_calls.h"

namespace ombrel {

namespace direct {

HRESULT SetCooperativeLevel(IDirectDraw7* direct, HWND window, DWORD flags) {
    return direct ? direct->SetCooperativeLevel(window, flags) : DDERR_INVALIDOBJECT;
}

// Default refresh rate, no flags.
HRESULT SetDisplayMode(IDirectDraw7* direct, DWORD width, DWORD height, DWORD bitsPerPixel) {
    return direct ? direct->SetDisplayMode(width, height, bitsPerPixel, 0, 0) : DDERR_INVALIDOBJECT;
}

HRESULT CreateSurface(IDirectDraw7* direct, DDSURFACEDESC2* wanted, IDirectDrawSurface7** made) {
    return direct ? direct->CreateSurface(wanted, made, nullptr) : DDERR_INVALIDOBJECT;
}

HRESULT CreateClipper(IDirectDraw7* direct, IDirectDrawClipper** made) {
    return direct ? direct->CreateClipper(0, made, nullptr) : DDERR_INVALIDOBJECT;
}

HRESULT SetHWnd(IDirectDrawClipper* clipper, HWND window) {
    return clipper ? clipper->SetHWnd(0, window) : DDERR_INVALIDOBJECT;
}

HRESULT SetClipList(IDirectDrawClipper* clipper, RGNDATA* region) {
    return clipper ? clipper->SetClipList(region, 0) : DDERR_INVALIDOBJECT;
}

HRESULT GetPixelFormat(IDirectDrawSurface7* surface, DDPIXELFORMAT* format) {
    return surface ? surface->GetPixelFormat(format) : DDERR_INVALIDOBJECT;
}

HRESULT GetAttachedSurface(IDirectDrawSurface7* surface, DDSCAPS2* caps,
                           IDirectDrawSurface7** attached) {
    return surface ? surface->GetAttachedSurface(caps, attached) : DDERR_INVALIDOBJECT;
}

HRESULT SetColorKey(IDirectDrawSurface7* surface, DWORD flags, DDCOLORKEY* key) {
    return surface ? surface->SetColorKey(flags, key) : DDERR_INVALIDOBJECT;
}

HRESULT SetClipper(IDirectDrawSurface7* surface, IDirectDrawClipper* clipper) {
    return surface ? surface->SetClipper(clipper) : DDERR_INVALIDOBJECT;
}

HRESULT Blt(IDirectDrawSurface7* destination, RECT* target, IDirectDrawSurface7* origin,
            RECT* source, DWORD flags, DDBLTFX* effects) {
    return destination ? destination->Blt(target, origin, source, flags, effects)
                       : DDERR_INVALIDOBJECT;
}

HRESULT Flip(IDirectDrawSurface7* surface, DWORD flags) {
    return surface ? surface->Flip(nullptr, flags) : DDERR_INVALIDOBJECT;
}

HRESULT Lock(IDirectDrawSurface7* surface, DDSURFACEDESC2* description, DWORD flags) {
    return surface ? surface->Lock(nullptr, description, flags, nullptr) : DDERR_INVALIDOBJECT;
}

HRESULT Unlock(IDirectDrawSurface7* surface) {
    return surface ? surface->Unlock(nullptr) : DDERR_INVALIDOBJECT;
}

ULONG Release(IUnknown* object) {
    return object ? object->Release() : 0;
}

} // namespace direct

namespace {

constinit const Win32Calls kSystemCalls = {
#define OMBREL_FUNCTION(entry, function) function,
    OMBREL_WIN32_CALLS(OMBREL_FUNCTION)
#undef OMBREL_FUNCTION
};

} // namespace

constinit Win32Calls win32Calls = {
#define OMBREL_FUNCTION(entry, function) function,
    OMBREL_WIN32_CALLS(OMBREL_FUNCTION)
#undef OMBREL_FUNCTION
};

void ResetWin32Calls() {
    win32Calls = kSystemCalls;
}

} // namespace ombrel
