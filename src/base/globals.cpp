// Definitions of the process-wide variables that belong to base, with their initial values.
#include "base/rect.h"
#include "base/shell_state.h"

namespace ombrel {

namespace {

constexpr Rect kInitialClip{0, 0, 640, 480};
constexpr ShellState kInitialShell{640, 480, 0, false, 0, 0, 0, 0, 0};
constexpr DriverState kInitialDriver{0, -1, 1, 0, 0, 0, 0, 10, 0, false, 0.0F, 0.0F};

} // namespace

constinit Rect clipRect = kInitialClip;
constinit ShellState shell = kInitialShell;
constinit DriverState driver = kInitialDriver;

void ResetClipRect() {
    clipRect = kInitialClip;
}
void ResetShellState() {
    shell = kInitialShell;
    driver = kInitialDriver;
}

} // namespace ombrel
