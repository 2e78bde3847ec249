// The kernels of the front end in WebAssembly's vectors.
#include "lanes/floats_wasm.h"
#include "scene/simd/kernels_of.h"

namespace ombrel {

constinit const FrontEndKernels kWasmKernels = {PlaceVertices<WasmFloats>, LightPoints<WasmFloats>};

} // namespace ombrel
