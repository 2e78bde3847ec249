// A rule that the production does not have, said as rasterizer.md shows, and its filler over the
// plain lane set and over one of vectors.
#pragma once

#include "raster/fillers.h"

namespace ombrel {

// A textured, gouraud-lit filler with a tested inverse depth, whose colours are exclusive-ored with
// what is there. False: the triangle is strange, and nothing was drawn.
using MadeUpFiller = bool (*)(ScreenPolygon* polygon, const FillTarget& target);
extern const MadeUpFiller kMadeUpPlain;
extern const MadeUpFiller kMadeUpVector; // SSE4.1; null where the architecture has none

} // namespace ombrel
