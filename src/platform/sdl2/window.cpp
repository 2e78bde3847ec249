// The window: making it, giving it the size that suits the desktop, full screen and back, its icon.
#include <stdlib.h>

#include <algorithm>
#include <cstring>

#include "base/shell_state.h"
#include "platform/sdl2/quiet.h"
#include "platform/sdl2/say.h"
#include "platform/sdl2/sdl2_state.h"
#include "platform/system.h"

namespace ombrel {

constinit Sdl2State sdl2{};

namespace {

// The name of the desktop entry, by which desktops find icon and group.
constexpr char kApplicationId[] = "larkfen";

// Drivers that SDL falls back to by itself where there is nothing to see. They count only when the
// user names one.
constexpr const char* kBlindDrivers[] = {"offscreen", "dummy", "evdev"};
// The one that has screens but no windows.
constexpr char kBareScreenDriver[] = "KMSDRM";

// Room for what a desktop puts around a window, in the desktop's units.
constexpr int kBordersWidth = 16;
constexpr int kBordersHeight = 64;

bool DisplayIsThere() {
    const char* video = sdl.GetCurrentVideoDriver();
    const char* wanted = getenv("SDL_VIDEODRIVER");
    if (wanted != nullptr && wanted[0] != '\0') {
        return true;
    }
    for (const char* blind : kBlindDrivers) {
        if (video == nullptr || std::strcmp(video, blind) == 0) {
            return false;
        }
    }
    return true;
}

bool StartVideo() {
    sdl.SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    sdl.SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
    sdl.SetHint(SDL_HINT_APP_NAME, kApplicationId);
    // The application id: a hint of newer versions, the environment of older ones.
    sdl.SetHint("SDL_APP_ID", kApplicationId);
    setenv("SDL_VIDEO_X11_WMCLASS", kApplicationId, 0);
    setenv("SDL_VIDEO_WAYLAND_WMCLASS", kApplicationId, 0);
    // The libraries below SDL have much to say about displays that are not there.
    const QuietErrors quiet;
    sdl2.videoOpen = sdl.Init(SDL_INIT_VIDEO) == 0 && DisplayIsThere() ? 1 : 0;
    return sdl2.videoOpen != 0;
}

// The largest whole factor at which the frame, as a window, has room on the desktop.
int WindowFactor(const SDL_Rect& desktop) {
    const int factor = std::min((desktop.w - kBordersWidth) / shell.screenWidth,
                                (desktop.h - kBordersHeight) / shell.screenHeight);
    return std::max(factor, 1);
}

SDL_Rect UsableDesktop(const SDL_DisplayMode& mode) {
    SDL_Rect usable{};
    if (sdl.GetDisplayUsableBounds(0, &usable) != 0 || usable.w <= 0 || usable.h <= 0) {
        usable = {0, 0, mode.w, mode.h};
    }
    return usable;
}

// Gives the window its size and its place in the middle of the desktop.
void SizeForDesktop(const SDL_DisplayMode& mode) {
    const SDL_Rect desktop = UsableDesktop(mode);
    const int factor = WindowFactor(desktop);
    const int width = shell.screenWidth * factor;
    const int height = shell.screenHeight * factor;
    sdl.SetWindowSize(sdl2.window, width, height);
    sdl.SetWindowPosition(sdl2.window, desktop.x + ((desktop.w - width) >> 1),
                          desktop.y + ((desktop.h - height) >> 1));
    sdl2.sizedForDesktop = 1;
}

bool IsFullScreen() {
    const Uint32 flags = sdl.GetWindowFlags(sdl2.window);
    return (flags & SDL_WINDOW_FULLSCREEN_DESKTOP) == SDL_WINDOW_FULLSCREEN_DESKTOP;
}

void CoverScreen(const SDL_DisplayMode& mode) {
    if (WindowsAreManaged()) {
        sdl.SetWindowFullscreen(sdl2.window, SDL_WINDOW_FULLSCREEN_DESKTOP);
        return;
    }
    sdl2.coversScreen = 1;
    sdl.SetWindowPosition(sdl2.window, 0, 0);
    sdl.SetWindowSize(sdl2.window, mode.w, mode.h);
}

// Goes back to the size of before, or, where nobody knows one, to that of a new window.
void BecomeWindow(const SDL_DisplayMode& mode) {
    sdl.SetWindowFullscreen(sdl2.window, 0);
    if (sdl2.sizedForDesktop == 0 || sdl2.coversScreen != 0) {
        sdl.SetWindowBordered(sdl2.window, SDL_TRUE);
        SizeForDesktop(mode);
    }
    sdl2.coversScreen = 0;
}

} // namespace

void SayNoDisplay() {
    if (sdl2.saidNoDisplay == 0) {
        sdl2.saidNoDisplay = 1;
        Say("there is no display to play on; larkfen-capture records the production without one");
    }
}

bool OpenVideo() {
    if (sdl2.videoOpen == 0 && sdl2.saidNoDisplay == 0 && !StartVideo()) {
        sdl.Quit();
        SayNoDisplay();
    }
    return sdl2.videoOpen != 0;
}

void CloseVideo() {
    sdl2.videoOpen = 0;
    sdl.Quit();
}

std::uint32_t WindowFlags() {
    const char* video = sdl.GetCurrentVideoDriver();
    const bool bare = video != nullptr && std::strcmp(video, kBareScreenDriver) == 0;
    return bare ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0;
}

int RegisterWindowClass() {
    InstallRescue();
    return OpenVideo() && !EndRequested() ? 1 : 0;
}

int CreateMainWindow() {
    // Full screen has the size of the desktop from the start, for systems where no window manager
    // would enlarge it.
    Uint32 flags = SDL_WINDOW_HIDDEN | WindowFlags();
    SDL_DisplayMode mode{};
    mode.w = shell.screenWidth;
    mode.h = shell.screenHeight;
    if (shell.windowed == 0) {
        flags = SDL_WINDOW_FULLSCREEN_DESKTOP | SDL_WINDOW_BORDERLESS;
        sdl.GetDesktopDisplayMode(0, &mode);
    }
    flags |= SDL_WINDOW_ALLOW_HIGHDPI | SDL_WINDOW_RESIZABLE;
    sdl2.window = sdl.CreateWindow(kWindowTitle, 0, 0, mode.w, mode.h, flags);
    if (sdl2.window == nullptr) {
        SayNoDisplay();
        return 0;
    }
    SetWindowIcon(sdl2.window);
    sdl2.renderer = MakeRenderer(sdl2.window); // the display says so when there is none
    (void)EscapePressedAnywhere();             // look from now on: loading takes a while
    return 1;
}

void SetUpWindowedDesktop() {
    // Desktops here have no 16-bit mode to switch to; the depth is only remembered.
    SDL_DisplayMode mode{};
    if (sdl.GetDesktopDisplayMode(0, &mode) == 0) {
        shell.savedDesktopDepth = SDL_BITSPERPIXEL(mode.format);
    }
    shell.screenCenterX = mode.w >> 1;
    shell.screenCenterY = mode.h >> 1;
    // The client area is the window; borders are the window manager's, known once it is shown.
    SizeForDesktop(mode);
    sdl.ShowWindow(sdl2.window);
    int top = 0;
    int left = 0;
    if (sdl.GetWindowBordersSize(sdl2.window, &top, &left, nullptr, nullptr) == 0) {
        shell.clientOffsetX = left;
        shell.clientOffsetY = top;
    }
}

void ToggleFullScreen() {
    SDL_DisplayMode mode{};
    sdl.GetDesktopDisplayMode(0, &mode);
    if (!IsFullScreen() && sdl2.coversScreen == 0) {
        CoverScreen(mode);
    } else if (WindowFlags() == 0) { // else there is nothing but full screens
        BecomeWindow(mode);
    }
}

void RestoreDesktopDepth() {} // nothing was switched

void RepaintDesktop() {} // the window system repaints what a window covered

void RestoreDisplayModeAtExit() {
    if (sdl2.window != nullptr) {
        sdl.DestroyWindow(sdl2.window);
        sdl2.window = nullptr;
    }
    CloseVideo();
}

} // namespace ombrel
