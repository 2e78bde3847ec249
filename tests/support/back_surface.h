// What stands on the back surface between two frames.
#pragma once

#include <cstdint>

#include "base/hash.h"
#include "platform/display.h"

namespace ombrel {

inline std::uint64_t BackSurfaceHash() {
    LockFrame();
    const std::uint64_t hash =
        HashPicture(display.back.pixels, display.back.pitch, display.width, display.height);
    (void)UnlockFrame();
    return hash;
}

} // namespace ombrel
