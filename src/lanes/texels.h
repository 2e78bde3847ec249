// A texture as the lane sets read it.
#pragma once

#include <cstdint>

#include "base/pixel16.h"

namespace ombrel {

// Texel (column, row) has the index (row << shift) + column.
struct TexelMemory {
    const Pixel16* texels;
    std::int32_t shift;
    std::int32_t lastColumn;
    std::int32_t lastTexel; // the last index that the memory holds; -1: none
};

} // namespace ombrel
