// The window, the desktop around it, its messages and the boxes, call by call. The shell in app/
// decides when each step runs; its variables are in base/shell_state.h.
#include "base/shell_state.h"
#include "platform/system.h"
#include "platform/win32/win32_calls.h"
#include "platform/win32/win32_state.h"

namespace ombrel {

namespace {

constexpr char kClassName[] = "BALTHERIUM -1.1";

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wide, LPARAM longer) {
    switch (message) {
    case WM_CREATE:
        return 0;
    case WM_DESTROY:
        PostQuit(0);
        return 0;
    case WM_PAINT: {
        PAINTSTRUCT paint = {};
        win32Calls.beginPaint(window, &paint);
        win32Calls.endPaint(window, &paint);
        return 0;
    }
    default:
        return win32Calls.defWindowProc(window, message, wide, longer);
    }
}

// Reads the current mode of the desktop into a zero-filled record. Systems that insist on the
// record's size get it at a second try.
void ReadDesktopMode(DEVMODEA* mode) {
    *mode = {};
    if (win32Calls.enumDisplaySettings(nullptr, ENUM_CURRENT_SETTINGS, mode) == 0) {
        *mode = {};
        mode->dmSize = sizeof(*mode);
        win32Calls.enumDisplaySettings(nullptr, ENUM_CURRENT_SETTINGS, mode);
    }
}

} // namespace

int RegisterWindowClass() {
    win32State.entryMode = {};
    WNDCLASSA windowClass = {};
    windowClass.style = CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_OWNDC;
    windowClass.lpfnWndProc = WindowProcedure;
    windowClass.hInstance = win32State.instance;
    windowClass.hCursor = win32Calls.loadCursor(nullptr, IDC_ARROW);
    windowClass.hbrBackground = static_cast<HBRUSH>(win32Calls.getStockObject(BLACK_BRUSH));
    windowClass.lpszClassName = kClassName;
    return win32Calls.registerClass(&windowClass) != 0 ? 1 : 0;
}

int CreateMainWindow() {
    const DWORD style = shell.windowed ? WS_CAPTION | WS_SYSMENU : WS_POPUP | WS_VISIBLE;
    HWND window =
        win32Calls.createWindow(0, kClassName, kWindowTitle, style, 0, 0, shell.screenWidth,
                                shell.screenHeight, nullptr, nullptr, win32State.instance, nullptr);
    if (!window) {
        return 0;
    }
    win32State.window = window;
    return 1;
}

void SetUpWindowedDesktop() {
    HWND window = win32State.window;

    // Widen the rectangle until its client area is exact.
    RECT outer = {0, 0, shell.screenWidth, shell.screenHeight};
    const auto style = static_cast<DWORD>(win32Calls.getWindowLong(window, GWL_STYLE));
    const BOOL menu = win32Calls.getMenu(window) != nullptr;
    const auto extended = static_cast<DWORD>(win32Calls.getWindowLong(window, GWL_EXSTYLE));
    win32Calls.adjustWindowRectEx(&outer, style, menu, extended);
    shell.clientOffsetX = -outer.left;
    shell.clientOffsetY = -outer.top;

    // Put the desktop at 16 bits per pixel.
    DEVMODEA& mode = win32State.entryMode;
    ReadDesktopMode(&mode);
    shell.savedDesktopDepth = mode.dmBitsPerPel;
    mode.dmBitsPerPel = 16;
    win32Calls.changeDisplaySettings(&mode, 0);

    // Park the cursor and the window in the middle.
    shell.screenCenterX = static_cast<std::int32_t>(mode.dmPelsWidth >> 1);
    shell.screenCenterY = static_cast<std::int32_t>(mode.dmPelsHeight >> 1);
    const auto desktopWidth = static_cast<std::int32_t>(mode.dmPelsWidth);
    const auto desktopHeight = static_cast<std::int32_t>(mode.dmPelsHeight);
    const std::int32_t x = (desktopWidth - outer.right + outer.left) >> 1;
    const std::int32_t y = (desktopHeight - outer.bottom + outer.top) >> 1;
    win32Calls.moveWindow(window, x, y, outer.right - outer.left, outer.bottom - outer.top, FALSE);
    win32Calls.showWindow(window, SW_SHOW);
}

void RestoreDesktopDepth() {
    DEVMODEA mode = {};
    ReadDesktopMode(&mode);
    mode.dmBitsPerPel = shell.savedDesktopDepth;
    win32Calls.changeDisplaySettings(&mode, 0);
}

void RepaintDesktop() {
    win32Calls.invalidateRect(win32Calls.getDesktopWindow(), nullptr, TRUE);
    win32Calls.invalidateRect(win32State.window, nullptr, TRUE);
    win32Calls.invalidateRect(win32Calls.getForegroundWindow(), nullptr, TRUE);
}

void RestoreDisplayModeAtExit() {
    win32State.entryMode.dmBitsPerPel = shell.savedDesktopDepth;
    win32Calls.changeDisplaySettings(&win32State.entryMode, 0);
}

Pump PumpMessage(std::int32_t* quitParameter) {
    // The system hands out the quit message last, when no other is left. Escape that is held down
    // posts another message every frame, so once the quit message is posted it is asked for first.
    MSG message = {};
    const bool quitting = win32State.quitPosted &&
                          win32Calls.peekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
    if (!quitting && !win32Calls.peekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        return Pump::None;
    }
    if (message.message == WM_QUIT) {
        *quitParameter = static_cast<std::int32_t>(message.wParam);
        return Pump::Quit;
    }
    win32Calls.translateMessage(&message);
    win32Calls.dispatchMessage(&message);
    return Pump::Dispatched;
}

void PostQuit(std::int32_t quitParameter) {
    win32State.quitPosted = true;
    win32Calls.postQuitMessage(quitParameter);
}

void PostWindowDestroy() {
    win32Calls.postMessage(win32State.window, WM_DESTROY, 0, 0);
}

bool EscapeKeyDown() {
    return win32Calls.getAsyncKeyState(VK_ESCAPE) < 0;
}

MessageAnswer ShowMessage(const char* text, MessageKind kind) {
    const UINT flags = kind == MessageKind::YesNo   ? MB_YESNO
                       : kind == MessageKind::Error ? MB_ICONERROR
                                                    : MB_OK;
    const int answer = win32Calls.messageBox(nullptr, text, kWindowTitle, flags);
    if (kind != MessageKind::YesNo) {
        return MessageAnswer::Ok;
    }
    return answer == IDYES ? MessageAnswer::Yes : MessageAnswer::No;
}

} // namespace ombrel
