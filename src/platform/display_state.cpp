// The display state that every back end fills and every scene reads: plain data, one of it.
#include "platform/display.h"

namespace ombrel {

namespace {

constexpr DisplayState InitialDisplay() {
    DisplayState initial{};
    initial.format = kFormat565;
    return initial;
}
constexpr DisplayState kInitialDisplay = InitialDisplay();

} // namespace

constinit DisplayState display = kInitialDisplay;

void ResetDisplayState() {
    display = kInitialDisplay;
}

} // namespace ombrel
