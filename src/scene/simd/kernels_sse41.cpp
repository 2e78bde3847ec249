// The kernels of the front end in SSE4.1.
#include "lanes/floats_sse41.h"
#include "scene/simd/kernels_of.h"

namespace ombrel {

constinit const FrontEndKernels kSse41Kernels = {PlaceVertices<Sse41Floats>,
                                                 LightPoints<Sse41Floats>};

} // namespace ombrel
