// The choice of the code path. Built for the base processor, like everything but path_*.cpp.
#include "raster/paths.h"

#include <algorithm>

namespace ombrel {

const RasterPath& RasterPathOf(VectorPath path) {
#ifdef OMBREL_X86_LANES
    constexpr const RasterPath* kPaths[kVectorPathCount] = {&kPlainPath, &kSse41Path, &kAvx2Path,
                                                            &kAvx512Path};
    return *kPaths[static_cast<int>(path)];
#else
    static_cast<void>(path);
    return kPlainPath;
#endif
}

void UseFillers(VectorPath path) {
    std::copy_n(RasterPathOf(path).fillers, kFillerCount, activeFillers);
}

void ResetFillers() {
    UseFillers(VectorPath::Scalar);
}

} // namespace ombrel
