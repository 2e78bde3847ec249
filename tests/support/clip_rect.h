// The clip rectangle that the tests of the fillers draw in.
#pragma once

#include "base/rect.h"

namespace ombrel {

inline constexpr Rect kWholeScreen{0, 0, 640, 480};
inline constinit Rect clipRect = kWholeScreen;
inline void ResetClipRect() {
    clipRect = kWholeScreen;
}

} // namespace ombrel
