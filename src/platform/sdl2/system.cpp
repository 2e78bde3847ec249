// Window, cursor, screen saver, clock and boxes of the SDL2 back end.
#include "platform/system.h"

#include <cstdio>
#include <cstring>

#include "base/float_mode.h"
#include "base/shell_state.h"
#include "platform/sdl2/sdl2_state.h"

namespace ombrel {

constinit Sdl2State sdl2{};

namespace {

constexpr int kYes = 1;
constexpr int kNo = 0;

constexpr SDL_MessageBoxButtonData kOkButton[] = {
    {SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT | SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT, 0, "OK"},
};
constexpr SDL_MessageBoxButtonData kYesNoButtons[] = {
    {SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT, kYes, "Yes"},
    {SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT, kNo, "No"},
};

// Drivers that SDL falls back to by itself where there is nothing to see. They count only when the
// user names one.
constexpr const char* kBlindDrivers[] = {"offscreen", "dummy", "evdev"};

bool DisplayIsThere() {
    const char* driver = SDL_GetCurrentVideoDriver();
    const char* wanted = SDL_getenv("SDL_VIDEODRIVER");
    if (wanted != nullptr && wanted[0] != '\0') {
        return true;
    }
    for (const char* blind : kBlindDrivers) {
        if (driver == nullptr || std::strcmp(driver, blind) == 0) {
            return false;
        }
    }
    return true;
}

} // namespace

void SayNoDisplay() {
    if (sdl2.saidNoDisplay == 0) {
        sdl2.saidNoDisplay = 1;
        std::fprintf(stderr, "larkfen: there is no display to play on; larkfen-capture records the "
                             "production without one\n");
    }
}

int RegisterWindowClass() {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
    SDL_SetHint(SDL_HINT_APP_NAME, "larkfen");
    SDL_SetMainReady();
    if (SDL_Init(SDL_INIT_VIDEO) != 0 || !DisplayIsThere()) {
        SayNoDisplay();
        SDL_Quit();
        return 0;
    }
    return 1;
}

int CreateMainWindow() {
    // Full screen has the size of the desktop from the start, for systems where no window manager
    // would enlarge it.
    Uint32 flags = SDL_WINDOW_HIDDEN;
    SDL_DisplayMode mode{};
    mode.w = shell.screenWidth;
    mode.h = shell.screenHeight;
    if (shell.windowed == 0) {
        flags = SDL_WINDOW_FULLSCREEN_DESKTOP | SDL_WINDOW_BORDERLESS;
        SDL_GetDesktopDisplayMode(0, &mode);
    }
    sdl2.window =
        SDL_CreateWindow(kWindowTitle, 0, 0, mode.w, mode.h, flags | SDL_WINDOW_ALLOW_HIGHDPI);
    if (sdl2.window == nullptr) {
        SayNoDisplay();
        return 0;
    }
    (void)MakeRenderer(); // the display says so when there is none
    InstallRescue();
    return 1;
}

void SetUpWindowedDesktop() {
    // Desktops here have no 16-bit mode to switch to; the depth is only remembered.
    SDL_DisplayMode mode{};
    if (SDL_GetDesktopDisplayMode(0, &mode) == 0) {
        shell.savedDesktopDepth = SDL_BITSPERPIXEL(mode.format);
    }
    shell.screenCenterX = mode.w >> 1;
    shell.screenCenterY = mode.h >> 1;
    // The client area is the window; borders are the window manager's, known once it is shown.
    SDL_SetWindowPosition(sdl2.window, (mode.w - shell.screenWidth) >> 1,
                          (mode.h - shell.screenHeight) >> 1);
    SDL_ShowWindow(sdl2.window);
    int top = 0;
    int left = 0;
    if (SDL_GetWindowBordersSize(sdl2.window, &top, &left, nullptr, nullptr) == 0) {
        shell.clientOffsetX = left;
        shell.clientOffsetY = top;
    }
}

void RestoreDesktopDepth() {} // nothing was switched

void RepaintDesktop() {} // the window system repaints what a window covered

void RestoreDisplayModeAtExit() {
    if (sdl2.window != nullptr) {
        SDL_DestroyWindow(sdl2.window);
        sdl2.window = nullptr;
    }
    SDL_Quit();
}

MessageAnswer ShowMessage(const char* text, MessageKind kind) {
    const bool question = kind == MessageKind::YesNo;
    SDL_MessageBoxData box{};
    box.flags = kind == MessageKind::Error ? SDL_MESSAGEBOX_ERROR : SDL_MESSAGEBOX_INFORMATION;
    box.window = sdl2.window; // so that it lies above a full screen
    box.title = kWindowTitle;
    box.message = text;
    box.numbuttons = question ? 2 : 1;
    box.buttons = question ? kYesNoButtons : kOkButton;
    int pressed = -1;
    if (SDL_ShowMessageBox(&box, &pressed) != 0) {
        // Without a display a question is not asked: the next step will say why. Tell the rest.
        if (!question) {
            std::fprintf(stderr, "%s\n", text);
        }
        return question ? MessageAnswer::No : MessageAnswer::Ok;
    }
    if (!question) {
        return MessageAnswer::Ok;
    }
    return pressed == kYes ? MessageAnswer::Yes : MessageAnswer::No;
}

void ShowMouseCursor(bool show) {
    sdl2.cursorCount += show ? 1 : -1;
    SDL_ShowCursor(sdl2.cursorCount >= 0 ? SDL_ENABLE : SDL_DISABLE);
}

void MoveMouseCursor(std::int32_t x, std::int32_t y) {
    SDL_WarpMouseGlobal(x, y);
}

void ReadMouseCursor(std::int32_t* x, std::int32_t* y) {
    int atX = 0;
    int atY = 0;
    SDL_GetGlobalMouseState(&atX, &atY);
    *x = atX;
    *y = atY;
}

void EnableScreenSaver(bool enable) {
    if (enable) {
        SDL_EnableScreenSaver();
    } else {
        SDL_DisableScreenSaver();
    }
}

std::uint32_t TickCount() {
    return static_cast<std::uint32_t>(SDL_GetTicks64());
}

void SetRenderFloatMode() {
    SetFloatMode(FloatMode::Chop); // the control calls themselves are another system's
}

std::string ProgramFolder() {
    char* base = SDL_GetBasePath();
    std::string folder = base != nullptr ? base : ".";
    SDL_free(base);
    while (folder.size() > 1 && folder.back() == '/') {
        folder.pop_back();
    }
    return folder;
}

} // namespace ombrel
