// The vector twins of the fillers: one table a path, and the choice among them. A twin gives the
// bits of its scalar member for every polygon; a textured one must have its texture record, also
// where it lies outside. Called at start-up by app/, by tests and benches.
#pragma once

#include "base/vector_path.h"
#include "raster/fillers.h"

namespace ombrel {

// The twins of one path by FillerId; the plain family where this build has none for the processor's
// architecture, and for Scalar. To be called only where ProcessorRuns(path).
const Filler* FillersOf(VectorPath path);

// Puts the twins of that path into activeFillers.
void UseFillers(VectorPath path);

} // namespace ombrel
