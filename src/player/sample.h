// A still life for one filler: a floor that runs into the distance, and two blades that cut through
// each other above it, all drawn by the filler, the blend level and the texture size that are asked
// for. Nothing of the show is touched; the fillers and blend tables in use are. Caller: the page.
#pragma once

#include <cstdint>

#include "player/looks.h"
#include "raster/fillers.h"

namespace ombrel {

inline constexpr std::int32_t kSampleWidth = 640, kSampleHeight = 480; // pixels
inline constexpr std::uint32_t kSampleLevels = 8;                      // of blending, 0 to 7
inline constexpr std::int32_t kSampleMips =
    7; // sizes of the texture: 64 texels across, halved each

// Draws it into out->pixels; the legend is empty. False for a number outside its range, and without
// memory. Behind start-up, which makes the tables.
bool DrawSample(FillerId filler, std::uint32_t level, std::int32_t mip, LookPicture* out);

} // namespace ombrel
