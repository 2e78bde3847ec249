// The path of AVX2, eight pixels at a time.
#include "lanes/pixels_avx2.h"
#include "raster/family.h"

namespace ombrel {

const RasterPath kAvx2Path = kPathOf<Avx2Pixels>;

} // namespace ombrel
