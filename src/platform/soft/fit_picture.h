// Where a picture goes on an output of another size. Caller: back ends that show the picture by
// scaling it.
#pragma once

#include <cstdint>

#include "base/rect.h"

namespace ombrel {

// The rectangle of the output that shows a picture of width x height: centred, enlarged by the
// largest whole factor that fits; an output smaller than the picture gets it shrunk, its shape kept
// (sizes rounded down, 1 pixel at least). Sizes in pixels, all above 0.
Rect FitPicture(std::int32_t outputWidth, std::int32_t outputHeight, std::int32_t width,
                std::int32_t height);

} // namespace ombrel
