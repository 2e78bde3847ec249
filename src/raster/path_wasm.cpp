// The path of WebAssembly's vectors, four pixels at a time.
#include "lanes/pixels_wasm.h"
#include "raster/family.h"

namespace ombrel {

const RasterPath kWasmPath = kPathOf<WasmPixels>;

} // namespace ombrel
