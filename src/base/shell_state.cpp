// The variables that shell and scenes share, with their initial values.
#include "base/shell_state.h"

namespace ombrel {

namespace {

constexpr ShellState kInitialShell{640, 480, 0, false, 0, 0, 0, 0, 0};
constexpr DriverState kInitialDriver{0, -1, 1, 0, 0, 0, 0, 10, 0, false, 0.0F, 0.0F};

} // namespace

constinit ShellState shell = kInitialShell;
constinit DriverState driver = kInitialDriver;

void ResetShellState() {
    shell = kInitialShell;
    driver = kInitialDriver;
}

} // namespace ombrel
