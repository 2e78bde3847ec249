// The picture that the gallery is drawn into: a grid of cells, each a small frame with a label
// under it. 16-bit pixels, 5-6-5.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/pixel16.h"

namespace gallery {

inline constexpr std::int32_t kCellWidth = 152; // pixels, without gap and label
inline constexpr std::int32_t kCellHeight = 96;
inline constexpr std::int32_t kColumns = 8;

struct Sheet {
    std::int32_t width, height;
    std::vector<ombrel::Pixel16> pixels;

    ombrel::Pixel16* At(std::int32_t x, std::int32_t y) {
        return &pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                       static_cast<std::size_t>(x)];
    }
    std::int32_t Pitch() const { return width * 2; } // bytes
};

// Everything: the 45 fillers, the blend levels, the mip chain, the lights, dots and wires. Sets the
// clip rectangle, the blend tables and the drawing rectangle of the 2D primitives; truncates.
Sheet DrawGallery();

} // namespace gallery
