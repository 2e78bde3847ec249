// The display state that every back end fills and every scene reads: plain data, one of it.
#include "platform/display.h"

namespace ombrel {

namespace {

constexpr DisplayState kInitialDisplay{};

} // namespace

constinit DisplayState display = kInitialDisplay;

void ResetDisplayState() {
    display = kInitialDisplay;
}

} // namespace ombrel
