// Every call that this back end makes into the system, as one table of function pointers.
// The program runs with the system's own calls; a test build replaces entries, to make calls fail
// or to write them down. The list is the source: table, defaults and recorders are made from it.
// Types are the system's: handles, RECTs with exclusive right and bottom, HRESULTs below 0 failed.
#pragma once

#include <windows.h>

#include <ddraw.h>
#include <float.h>
#include <mmsystem.h>

namespace ombrel {

// The methods of the DirectDraw objects as plain functions, so that they fit in the table. A null
// object fails with DDERR_INVALIDOBJECT.
namespace direct {
HRESULT SetCooperativeLevel(IDirectDraw7* direct, HWND window, DWORD flags);
HRESULT SetDisplayMode(IDirectDraw7* direct, DWORD width, DWORD height, DWORD bitsPerPixel);
HRESULT CreateSurface(IDirectDraw7* direct, DDSURFACEDESC2* wanted, IDirectDrawSurface7** made);
HRESULT CreateClipper(IDirectDraw7* direct, IDirectDrawClipper** made);
HRESULT SetHWnd(IDirectDrawClipper* clipper, HWND window);
HRESULT SetClipList(IDirectDrawClipper* clipper, RGNDATA* region);
HRESULT GetPixelFormat(IDirectDrawSurface7* surface, DDPIXELFORMAT* format);
HRESULT GetAttachedSurface(IDirectDrawSurface7* surface, DDSCAPS2* caps,
                           IDirectDrawSurface7** attached);
HRESULT SetColorKey(IDirectDrawSurface7* surface, DWORD flags, DDCOLORKEY* key);
HRESULT SetClipper(IDirectDrawSurface7* surface, IDirectDrawClipper* clipper);
HRESULT Blt(IDirectDrawSurface7* destination, RECT* target, IDirectDrawSurface7* origin,
            RECT* source, DWORD flags, DDBLTFX* effects);
HRESULT Flip(IDirectDrawSurface7* surface, DWORD flags);
HRESULT Lock(IDirectDrawSurface7* surface, DDSURFACEDESC2* description, DWORD flags);
HRESULT Unlock(IDirectDrawSurface7* surface);
ULONG Release(IUnknown* object); // null is allowed
} // namespace direct

// clang-format off
//     entry                  the system's function        used for
#define OMBREL_WIN32_CALLS(X)                                                                      \
    X(registerClass,          ::RegisterClassA)         /* the one window class                 */ \
    X(createWindow,           ::CreateWindowExA)                                                   \
    X(defWindowProc,          ::DefWindowProcA)                                                    \
    X(loadCursor,             ::LoadCursorA)                                                       \
    X(getStockObject,         ::GetStockObject)                                                    \
    X(beginPaint,             ::BeginPaint)                                                        \
    X(endPaint,               ::EndPaint)                                                          \
    X(getWindowLong,          ::GetWindowLongA)         /* placing the window                   */ \
    X(getMenu,                ::GetMenu)                                                           \
    X(adjustWindowRectEx,     ::AdjustWindowRectEx)                                                \
    X(moveWindow,             ::MoveWindow)                                                        \
    X(setWindowPos,           ::SetWindowPos)                                                      \
    X(showWindow,             ::ShowWindow)                                                        \
    X(getWindowRect,          ::GetWindowRect)                                                     \
    X(monitorFromWindow,      ::MonitorFromWindow)                                                 \
    X(getMonitorInfo,         ::GetMonitorInfoA)                                                   \
    X(enumDisplaySettings,    ::EnumDisplaySettingsA)   /* the mode of the desktop              */ \
    X(changeDisplaySettings,  ::ChangeDisplaySettingsA)                                            \
    X(invalidateRect,         ::InvalidateRect)                                                    \
    X(getDesktopWindow,       ::GetDesktopWindow)                                                  \
    X(getForegroundWindow,    ::GetForegroundWindow)                                               \
    X(peekMessage,            ::PeekMessageA)           /* messages, keys and boxes             */ \
    X(translateMessage,       ::TranslateMessage)                                                  \
    X(dispatchMessage,        ::DispatchMessageA)                                                  \
    X(postQuitMessage,        ::PostQuitMessage)                                                   \
    X(postMessage,            ::PostMessageA)                                                      \
    X(getAsyncKeyState,       ::GetAsyncKeyState)                                                  \
    X(messageBox,             ::MessageBoxA)                                                       \
    X(showCursor,             ::ShowCursor)             /* cursor, screen saver, clock          */ \
    X(setCursorPos,           ::SetCursorPos)                                                      \
    X(getCursorPos,           ::GetCursorPos)                                                      \
    X(systemParametersInfo,   ::SystemParametersInfoA)                                             \
    X(getTickCount,           ::GetTickCount)                                                      \
    X(control87,              ::_control87)                                                        \
    X(controlfp,              ::_controlfp)                                                        \
    X(directDrawCreate,       ::DirectDrawCreateEx)     /* DirectDraw                           */ \
    X(setCooperativeLevel,    direct::SetCooperativeLevel)                                         \
    X(setDisplayMode,         direct::SetDisplayMode)                                              \
    X(createSurface,          direct::CreateSurface)                                               \
    X(createClipper,          direct::CreateClipper)                                               \
    X(setHWnd,                direct::SetHWnd)                                                     \
    X(setClipList,            direct::SetClipList)                                                 \
    X(getPixelFormat,         direct::GetPixelFormat)                                              \
    X(getAttachedSurface,     direct::GetAttachedSurface)                                          \
    X(setColorKey,            direct::SetColorKey)                                                 \
    X(setClipper,             direct::SetClipper)                                                  \
    X(blt,                    direct::Blt)                                                         \
    X(flip,                   direct::Flip)                                                        \
    X(lock,                   direct::Lock)                                                        \
    X(unlock,                 direct::Unlock)                                                      \
    X(release,                direct::Release)                                                     \
    X(getDC,                  ::GetDC)                  /* the copy where blits do not convert  */ \
    X(releaseDC,              ::ReleaseDC)                                                         \
    X(setStretchBltMode,      ::SetStretchBltMode)                                                 \
    X(stretchDIBits,          ::StretchDIBits)                                                     \
    X(loadLibrary,            ::LoadLibraryW)           /* sound                                */ \
    X(getProcAddress,         ::GetProcAddress)                                                    \
    X(waveOutGetNumDevs,      ::waveOutGetNumDevs)                                                 \
    X(mciSendString,          ::mciSendStringW)
// clang-format on

struct Win32Calls {
#define OMBREL_MEMBER(entry, function) decltype(&function) entry;
    OMBREL_WIN32_CALLS(OMBREL_MEMBER)
#undef OMBREL_MEMBER
};

// The calls in force. Written by tests; read by everything in this folder.
extern Win32Calls win32Calls;
void ResetWin32Calls(); // the system's own

} // namespace ombrel
