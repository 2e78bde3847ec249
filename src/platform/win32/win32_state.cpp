// The one record of handles and objects, with its initial values.
#include "platform/win32/win32_state.h"

namespace ombrel {

namespace {

constexpr Win32State kInitialState{};

} // namespace

constinit Win32State win32State{};

void ResetWin32State() {
    win32State = kInitialState;
}

} // namespace ombrel
