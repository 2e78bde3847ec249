// What has become of the system that the page pretends to be.
#pragma once

#include <cstdint>

namespace ombrel {

struct WebState {
    std::uint32_t tick; // ms
    std::int32_t destroysWaiting;
    bool quitWaiting;
    std::int32_t quitParameter;
    std::int32_t cursorX, cursorY;
};
extern WebState web; // written by the files of this folder; ResetWeb() restores the start

} // namespace ombrel
