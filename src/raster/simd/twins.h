// The tables that twins_<instruction set>.cpp define, by FillerId. For paths.cpp.
#pragma once

#include "raster/fillers.h"

namespace ombrel {

extern const Filler kSse41Fillers[kFillerCount];
extern const Filler kAvx2Fillers[kFillerCount];
extern const Filler kAvx512Fillers[kFillerCount];

} // namespace ombrel
