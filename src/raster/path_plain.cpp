// The plain path, one pixel at a time, and the careful fillers.
#include "lanes/pixels_plain.h"
#include "raster/family.h"

namespace ombrel {

#define OMBREL_FILLER(name, ...) FillCarefully<Rules<__VA_ARGS__>>,
const Filler kCarefulFillers[kFillerCount] = {OMBREL_FILLERS(OMBREL_FILLER)};
#undef OMBREL_FILLER

const RasterPath kPlainPath = kPathOf<PlainPixels>;

#define OMBREL_FILLER(name, ...) Fill<PlainPixels, FillerId::name>,
constinit Filler activeFillers[kFillerCount] = {OMBREL_FILLERS(OMBREL_FILLER)};
#undef OMBREL_FILLER

} // namespace ombrel
