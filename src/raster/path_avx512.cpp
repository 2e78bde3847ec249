// The path of AVX-512, sixteen pixels at a time.
#include "lanes/pixels_avx512.h"
#include "raster/family.h"

namespace ombrel {

const RasterPath kAvx512Path = kPathOf<Avx512Pixels>;

} // namespace ombrel
