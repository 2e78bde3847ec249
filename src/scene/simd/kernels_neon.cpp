// The kernels of the front end in NEON.
#include "lanes/floats_neon.h"
#include "scene/simd/kernels_of.h"

namespace ombrel {

constinit const FrontEndKernels kNeonKernels = {PlaceVertices<NeonFloats>, LightPoints<NeonFloats>};

} // namespace ombrel
