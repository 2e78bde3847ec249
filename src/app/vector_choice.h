// The one choice of code paths at start-up.
#pragma once

#include "base/vector_path.h"

namespace ombrel {

// The environment variable that names a path: scalar, sse, avx2, avx512.
inline constexpr char kPathVariable[] = "RASTER_USE";

// Puts the fastest functions in their places: those of the path that the variable names, or of the
// next one down that the processor runs. Returns it. understood, unless null: see PathFor.
VectorPath ChooseVectorPath(bool* understood);

} // namespace ombrel
