// The path of SSE4.1, four pixels at a time.
#include "lanes/pixels_sse41.h"
#include "raster/family.h"

namespace ombrel {

const RasterPath kSse41Path = kPathOf<Sse41Pixels>;

} // namespace ombrel
