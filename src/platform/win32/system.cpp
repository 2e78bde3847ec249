// Cursor, screen saver, clock, floating-point unit and program folder.
#include <stdlib.h>

#include "base/float_mode.h"
#include "platform/system.h"
#include "platform/win32/win32_calls.h"
#include "platform/win32/win32_state.h"

namespace ombrel {

namespace {

// 64-bit run-time libraries may call a request for 24 bits of precision invalid, and the default
// answer to that ends the process.
void IgnoreInvalidParameter(const wchar_t*, const wchar_t*, const wchar_t*, unsigned, uintptr_t) {}

} // namespace

void ShowMouseCursor(bool show) {
    win32Calls.showCursor(show ? TRUE : FALSE);
}

void MoveMouseCursor(std::int32_t x, std::int32_t y) {
    win32Calls.setCursorPos(x, y);
}

void ReadMouseCursor(std::int32_t* x, std::int32_t* y) {
    POINT point = {};
    win32Calls.getCursorPos(&point);
    *x = point.x;
    *y = point.y;
}

void EnableScreenSaver(bool enable) {
    win32Calls.systemParametersInfo(SPI_SETSCREENSAVEACTIVE, enable ? 1 : 0, nullptr, 0);
    // Wine sends the request off only when something is asked of the screen saver, and the end of
    // the program is near.
    if (enable) {
        BOOL active = FALSE;
        win32Calls.systemParametersInfo(SPI_GETSCREENSAVEACTIVE, 0, &active, 0);
    }
}

std::uint32_t TickCount() {
    return win32Calls.getTickCount();
}

void NapBeforeFrame(std::uint32_t msLeft) {
    (void)msLeft; // the wait spins here
}

void SetRenderFloatMode() {
    const _invalid_parameter_handler before =
        _set_invalid_parameter_handler(IgnoreInvalidParameter);
    win32Calls.control87(_PC_24, _MCW_PC);
    win32Calls.control87(_DN_FLUSH, _MCW_DN);
    win32Calls.control87(_RC_NEAR, _MCW_RC);
    win32Calls.controlfp(_RC_CHOP, _MCW_RC);
    _set_invalid_parameter_handler(before);
    SetFloatMode(FloatMode::Chop);
}

std::string ProgramFolder() {
    char path[MAX_PATH + 1] = "";
    const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
    std::string folder(path, length);
    const std::size_t slash = folder.find_last_of("\\/");
    return slash == std::string::npos ? "." : folder.substr(0, slash);
}

} // namespace ombrel
