// The path of NEON, four pixels at a time.
#include "lanes/pixels_neon.h"
#include "raster/family.h"

namespace ombrel {

const RasterPath kNeonPath = kPathOf<NeonPixels>;

} // namespace ombrel
