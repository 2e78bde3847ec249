// The choice of the code path. Built for the base processor, like everything but path_*.cpp.
#include "raster/paths.h"

#include <algorithm>

namespace ombrel {

const RasterPath& RasterPathOf(VectorPath path) {
    switch (path) {
#if defined(OMBREL_X86_LANES)
    case VectorPath::Sse:
        return kSse41Path;
    case VectorPath::Avx2:
        return kAvx2Path;
    case VectorPath::Avx512:
        return kAvx512Path;
#elif defined(OMBREL_NEON_LANES)
    case VectorPath::Neon:
        return kNeonPath;
#elif defined(OMBREL_WASM_LANES)
    case VectorPath::Wasm:
        return kWasmPath;
#endif
    default:
        return kPlainPath;
    }
}

void UseFillers(VectorPath path) {
    std::copy_n(RasterPathOf(path).fillers, kFillerCount, activeFillers);
}

void ResetFillers() {
    UseFillers(VectorPath::Scalar);
}

} // namespace ombrel
