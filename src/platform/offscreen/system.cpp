// Window, messages, boxes, cursor and clock as the script has them.
#include <filesystem>

#include "base/float_mode.h"
#include "base/shell_state.h"
#include "platform/offscreen/offscreen.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace ombrel {

namespace {

constexpr std::uint32_t kPatience = 1000; // reads of a clock that nobody moves

// A posted or scripted message has its effect when it is dispatched.
Pump Dispatch(MessageEvent event) {
    LogSeamCall(event == MessageEvent::CloseBox ? "Dispatch destroy" : "Dispatch other");
    if (event == MessageEvent::CloseBox) {
        PostQuit(0);
    }
    return Pump::Dispatched;
}

} // namespace

int RegisterWindowClass() {
    LogSeamCall("RegisterWindowClass");
    offscreen.desktopBits = script.desktopBits;
    offscreen.tick = script.startTick;
    return script.failure == Failure::WindowClass ? 0 : 1;
}

int CreateMainWindow() {
    LogSeamCall("CreateMainWindow %d %d %d", shell.screenWidth, shell.screenHeight, shell.windowed);
    if (script.failure == Failure::Window) {
        return 0;
    }
    offscreen.windowX = 0;
    offscreen.windowY = 0;
    offscreen.windowWidth = shell.screenWidth;
    offscreen.windowHeight = shell.screenHeight;
    offscreen.windowMade = 1;
    offscreen.windowVisible = shell.windowed == 0 ? 1 : 0;
    return 1;
}

void SetUpWindowedDesktop() {
    LogSeamCall("SetUpWindowedDesktop");
    // Widen the rectangle of the client area by the borders.
    const std::int32_t left = -script.borderLeft;
    const std::int32_t top = -script.borderTop;
    const std::int32_t right = shell.screenWidth + script.borderRight;
    const std::int32_t bottom = shell.screenHeight + script.borderBottom;
    shell.clientOffsetX = -left;
    shell.clientOffsetY = -top;
    // Put the desktop at 16 bits and remember what it had.
    shell.savedDesktopDepth = static_cast<std::uint32_t>(offscreen.desktopBits);
    offscreen.desktopBits = 16;
    shell.screenCenterX = script.desktopWidth >> 1;
    shell.screenCenterY = script.desktopHeight >> 1;
    // Move the window to the middle and show it.
    offscreen.windowX = (script.desktopWidth - right + left) >> 1;
    offscreen.windowY = (script.desktopHeight - bottom + top) >> 1;
    offscreen.windowWidth = right - left;
    offscreen.windowHeight = bottom - top;
    offscreen.windowVisible = 1;
}

void RestoreDesktopDepth() {
    LogSeamCall("RestoreDesktopDepth %u", shell.savedDesktopDepth);
    offscreen.desktopBits = static_cast<std::int32_t>(shell.savedDesktopDepth);
}

void RepaintDesktop() {
    LogSeamCall("RepaintDesktop");
}

void RestoreDisplayModeAtExit() {
    LogSeamCall("RestoreDisplayModeAtExit %u", shell.savedDesktopDepth);
    if (shell.savedDesktopDepth != 0) {
        offscreen.desktopBits = static_cast<std::int32_t>(shell.savedDesktopDepth);
    }
}

Pump PumpMessage(std::int32_t* quitParameter) {
    const std::int64_t turn = offscreen.turns++;
    if (script.onTurn != nullptr) {
        script.onTurn(turn, script.user);
    }
    // The quit message is taken on the turn after it was posted, whatever else waits.
    if (offscreen.quitWaiting != 0) {
        offscreen.quitWaiting = 0;
        *quitParameter = offscreen.quitParameter;
        LogSeamCall("Quit %d", *quitParameter);
        return Pump::Quit;
    }
    if (offscreen.destroysWaiting > 0) {
        --offscreen.destroysWaiting;
        return Dispatch(MessageEvent::CloseBox);
    }
    if (offscreen.nextMessage < script.messageCount &&
        script.messages[offscreen.nextMessage].turn <= turn) {
        return Dispatch(script.messages[offscreen.nextMessage++].event);
    }
    return Pump::None;
}

void PostQuit(std::int32_t quitParameter) {
    LogSeamCall("PostQuit %d", quitParameter);
    offscreen.quitWaiting = 1;
    offscreen.quitParameter = quitParameter;
}

void PostWindowDestroy() {
    LogSeamCall("PostWindowDestroy");
    ++offscreen.destroysWaiting;
}

bool EscapeKeyDown() {
    return offscreen.shown > script.escapeFrom && offscreen.shown <= script.escapeTo;
}

MessageAnswer ShowMessage(const char* text, MessageKind kind) {
    constexpr const char* kKindNames[] = {"ok", "error", "yesno"};
    LogSeamCall("ShowMessage %s %s", kKindNames[static_cast<std::int32_t>(kind)], text);
    if (script.onMessage != nullptr) {
        script.onMessage(text, kind, script.user);
    }
    return kind == MessageKind::YesNo ? script.yesNoAnswer : MessageAnswer::Ok;
}

void ShowMouseCursor(bool show) {
    LogSeamCall("ShowMouseCursor %d", show ? 1 : 0);
    offscreen.cursorCount += show ? 1 : -1;
}

void MoveMouseCursor(std::int32_t x, std::int32_t y) {
    LogSeamCall("MoveMouseCursor %d %d", x, y);
    offscreen.cursorX = x;
    offscreen.cursorY = y;
}

void ReadMouseCursor(std::int32_t* x, std::int32_t* y) {
    LogSeamCall("ReadMouseCursor");
    *x = offscreen.cursorX;
    *y = offscreen.cursorY;
}

void EnableScreenSaver(bool enable) {
    LogSeamCall("EnableScreenSaver %d", enable ? 1 : 0);
    offscreen.screenSaver = enable ? 1 : 0;
}

std::uint32_t TickCount() {
    const std::uint32_t now = offscreen.tick;
    const bool stuck = script.msPerRead == 0 && ++offscreen.idleReads > kPatience;
    offscreen.tick += stuck ? 1 : script.msPerRead;
    return now;
}

void NapBeforeFrame(std::uint32_t msLeft) {
    (void)msLeft; // the reads of the clock move it
}

void SetRenderFloatMode() {
    LogSeamCall("SetRenderFloatMode");
    SetFloatMode(FloatMode::Chop);
}

std::string ProgramFolder() {
#ifdef _WIN32
    char path[MAX_PATH + 1] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path().string();
#else
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string(".") : program.parent_path().string();
#endif
}

} // namespace ombrel
