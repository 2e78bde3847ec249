// The choice of twins. Built for the base processor, like everything outside twins_*.cpp.
#include "raster/simd/paths.h"

#include <algorithm>

#include "raster/simd/twins.h"

namespace ombrel {

const Filler* FillersOf(VectorPath path) {
#ifdef OMBREL_X86_TWINS
    constexpr const Filler* kTables[kVectorPathCount] = {kScalarFillers, kSse41Fillers,
                                                         kAvx2Fillers, kAvx512Fillers};
    return kTables[static_cast<int>(path)];
#else
    static_cast<void>(path);
    return kScalarFillers;
#endif
}

void UseFillers(VectorPath path) {
    std::copy_n(FillersOf(path), kFillerCount, activeFillers);
}

} // namespace ombrel
