// The one choice of code paths at start-up.
#pragma once

#include "base/vector_path.h"

namespace ombrel {

// The environment variable that names a path: scalar, sse, avx2, avx512, neon, wasm.
inline constexpr char kPathVariable[] = "RASTER_USE";

// Puts the functions of a path in their places: the one that the variable names, or the next one
// below it that the processor runs. Returns it. understood, unless null: see PathFor.
VectorPath ChooseVectorPath(bool* understood);

} // namespace ombrel
