// The eight blend tables: every colour scaled by 0, 1/7, 2/7 ... 1 (and a trace more).
// Built once at start-up, before the first translucent face; read by the blending fillers.
#pragma once

#include <cstdint>

#include "base/pixel16.h"

namespace ombrel {

inline constexpr std::int32_t kBlendTableCount = 8;
inline constexpr std::int32_t kBlendTableSize = 65536; // indexed by a Pixel16

// Written by BuildBlendTables at start-up; all zero until then.
extern Pixel16 BlendTables[kBlendTableCount][kBlendTableSize];
// Where each table begins; from here a filler takes whole addresses into its loops, and not places
// within all of them.
extern const Pixel16* const kBlendTableStarts[kBlendTableCount];
void ResetBlendTables(); // all zero

// Fills count (2 or more) tables one after the other: table k scales each 5-6-5 channel by
// k * (1/(count - 1) + 0.000001), to nearest, ties to even, whatever rounding mode is in force.
// Returns 1, or -1 when destination is null.
int BuildBlendTables(std::int32_t count, Pixel16* destination);

} // namespace ombrel
