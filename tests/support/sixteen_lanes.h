// The source of the sixteen-lane twins with its few operations spelled out lane by lane, so that it
// can be tried on processors without AVX-512. Runs where AVX2 does.
#pragma once

#include "raster/fillers.h"

namespace ombrel {

extern const Filler kSixteenLaneFillers[kFillerCount];

} // namespace ombrel
