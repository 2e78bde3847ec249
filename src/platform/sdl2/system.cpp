// Cursor, screen saver, clock and program folder of the SDL2 back end.
#include "platform/system.h"

#include <time.h>

#include <chrono>
#include <filesystem>

#include "base/float_mode.h"
#include "platform/sdl2/sdl2_state.h"

namespace ombrel {

namespace {

// A sleep may end late; the rest is waited for at the clock.
constexpr std::uint32_t kAwakeBeforeFrame = 2; // ms
constexpr long kNanosecondsAMillisecond = 1000000;

} // namespace

void ShowMouseCursor(bool show) {
    sdl2.cursorCount += show ? 1 : -1;
    sdl.ShowCursor(sdl2.cursorCount >= 0 ? SDL_ENABLE : SDL_DISABLE);
}

void MoveMouseCursor(std::int32_t x, std::int32_t y) {
    sdl.WarpMouseGlobal(x, y);
}

void ReadMouseCursor(std::int32_t* x, std::int32_t* y) {
    int atX = 0;
    int atY = 0;
    sdl.GetGlobalMouseState(&atX, &atY);
    *x = atX;
    *y = atY;
}

void EnableScreenSaver(bool enable) {
    if (enable) {
        sdl.EnableScreenSaver();
    } else {
        sdl.DisableScreenSaver();
    }
}

std::uint32_t TickCount() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

void NapBeforeFrame(std::uint32_t msLeft) {
    if (msLeft <= kAwakeBeforeFrame) {
        return;
    }
    const std::uint32_t ms = msLeft - kAwakeBeforeFrame;
    const timespec nap{ms / 1000, static_cast<long>(ms % 1000) * kNanosecondsAMillisecond};
    nanosleep(&nap, nullptr); // a signal may end it: the caller looks at the clock
}

void SetRenderFloatMode() {
    SetFloatMode(FloatMode::Chop); // the control calls themselves are another system's
}

std::string ProgramFolder() {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string(".") : program.parent_path().string();
}

} // namespace ombrel
