// The kernels of the front end in AVX2.
#include "lanes/floats_avx2.h"
#include "scene/simd/kernels_of.h"

namespace ombrel {

constinit const FrontEndKernels kAvx2Kernels = {PlaceVertices<Avx2Floats>, LightPoints<Avx2Floats>};

} // namespace ombrel
