// The family of fillers and the blur, once a code path; all give the same bits. Called at start-up
// by app/, by tests and benches.
#pragma once

#include <cstdint>

#include "base/pixel16.h"
#include "base/vector_path.h"
#include "raster/fillers.h"

namespace ombrel {

// One row of a picture: each of count pixels becomes the mean of its four diagonal neighbours, 2
// across, in the rows above and below; each 5-6-5 channel cut down. above and below point at the
// pixels beside the first one.
struct BlurredRow {
    Pixel16* row;
    const Pixel16* above;
    const Pixel16* below;
    std::int32_t count;
};
using RowBlur = void (*)(const BlurredRow& work);

// What is built for one lane set: the functions that path_<lane set>.cpp put into a table.
struct RasterPath {
    Filler fillers[kFillerCount]; // by FillerId
    RowBlur blurRow;
};
extern const RasterPath kPlainPath;
extern const RasterPath kSse41Path;
extern const RasterPath kAvx2Path;
extern const RasterPath kAvx512Path;
extern const RasterPath kNeonPath;
extern const RasterPath kWasmPath;

// What every path passes its strange triangles to (triangle.h), by FillerId.
extern const Filler kCarefulFillers[kFillerCount];

// The functions of a path; the plain ones where this build has none for the processor's
// architecture. To be called only where ProcessorRuns(path).
const RasterPath& RasterPathOf(VectorPath path);

// Puts the fillers of that path into activeFillers.
void UseFillers(VectorPath path);

} // namespace ombrel
