// Messages as the frame driver posts them; a clock that each frame moves by its 25 ms. Escape,
// boxes, window and sound are the page's own.
#include "platform/system.h"

#include "base/float_mode.h"
#include "base/shell_state.h"
#include "platform/web/web.h"
#include "platform/web/web_state.h"

namespace ombrel {

constinit WebState web = {};

void ResetWeb() {
    web = {};
}

int RegisterWindowClass() {
    return 1;
}
int CreateMainWindow() {
    return 1;
}
void SetUpWindowedDesktop() {
    shell.screenCenterX = shell.screenWidth / 2;
    shell.screenCenterY = shell.screenHeight / 2;
}
void RestoreDesktopDepth() {}
void RepaintDesktop() {}
void RestoreDisplayModeAtExit() {}

Pump PumpMessage(std::int32_t* quitParameter) {
    // The quit message is taken on the turn after it was posted, whatever else waits.
    if (web.quitWaiting) {
        web.quitWaiting = false;
        *quitParameter = web.quitParameter;
        return Pump::Quit;
    }
    if (web.destroysWaiting > 0) {
        --web.destroysWaiting;
        PostQuit(0);
        return Pump::Dispatched;
    }
    return Pump::None;
}
void PostQuit(std::int32_t quitParameter) {
    web.quitWaiting = true;
    web.quitParameter = quitParameter;
}
void PostWindowDestroy() {
    ++web.destroysWaiting;
}
bool EscapeKeyDown() {
    return false; // the page closes the show
}

MessageAnswer ShowMessage(const char* text, MessageKind kind) {
    (void)text;
    return kind == MessageKind::YesNo ? MessageAnswer::No : MessageAnswer::Ok;
}

void ShowMouseCursor(bool show) {
    (void)show;
}
void MoveMouseCursor(std::int32_t x, std::int32_t y) {
    web.cursorX = x;
    web.cursorY = y;
}
void ReadMouseCursor(std::int32_t* x, std::int32_t* y) {
    *x = web.cursorX;
    *y = web.cursorY;
}
void EnableScreenSaver(bool enable) {
    (void)enable;
}

std::uint32_t TickCount() {
    return web.tick;
}
void NapBeforeFrame(std::uint32_t msLeft) {
    web.tick += msLeft; // no frame waits: the page paces them
}
void SetRenderFloatMode() {
    SetFloatMode(FloatMode::Chop);
}
std::string ProgramFolder() {
    return ".";
}

} // namespace ombrel
