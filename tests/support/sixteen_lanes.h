// The path of sixteen lanes with its few operations spelled out lane by lane, so that it can be
// tried on processors without AVX-512. Runs where AVX2 does.
#pragma once

#include "raster/paths.h"

namespace ombrel {

extern const RasterPath kSixteenLanePath;

} // namespace ombrel
