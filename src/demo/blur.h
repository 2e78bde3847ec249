// The blur that scene two lays over its pictures.
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/pixel16.h"
#include "raster/paths.h"

namespace ombrel {

// Replaces each pixel with 2 <= x <= width - 4 and 1 <= y <= height - 3 by the mean of its four
// diagonal neighbours (2 across, 1 down), each 5-6-5 channel cut down. In place, rows downwards and
// pixels rightwards, so the neighbours above are blurred already. step: from row to row, in pixels.
// Nothing for null pixels.
void BlurFrame(Pixel16* pixels, std::ptrdiff_t step, std::int32_t width, std::int32_t height);

// What BlurFrame does its rows with; null, the initial value: the plain path. Written at start-up
// by UseBlur, and by tests and benches.
extern RowBlur activeBlur;
void UseBlur(VectorPath path);
void ResetBlur();

} // namespace ombrel
