// The choice of the blur's twin. Built for the base processor.
#include "raster/simd/blur.h"

namespace ombrel {

BlurRowTwin BlurRowOf(VectorPath path) {
#ifdef OMBREL_X86_TWINS
    constexpr BlurRowTwin kTable[kVectorPathCount] = {nullptr, BlurRowSse41, BlurRowAvx2,
                                                      BlurRowAvx2};
    return kTable[static_cast<int>(path)];
#else
    static_cast<void>(path);
    return nullptr;
#endif
}

} // namespace ombrel
