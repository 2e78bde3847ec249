// Textures and their mip levels: what the loaders make and the fillers read.
#pragma once

#include <cstdint>

#include "base/pixel16.h"

namespace ombrel {

inline constexpr std::uint32_t TEX_FILLED = 0x80;

// Rows of width pixels, top row first, no padding; 16-bit pixels are Pixel16.
// There are TextureGuardBytes() more before the first and after the last row, so that a
// filler that reads a little past an edge reads memory of this texture.
struct Texture {
    std::uint32_t valid;    // 1 once the pixels are allocated
    std::uint32_t texFlags; // TEX_FILLED once pixels have been copied in
    std::int32_t originX;   // position within a sheet
    std::int32_t originY;
    std::int32_t width; // pixels, a power of two for the fillers
    std::int32_t height;
    std::int32_t byteSize;     // (bitsPerPixel / 8) * width * height
    std::int32_t bitsPerPixel; // 8 or 16
    void* pixels;
};

// A texture field holds one texture, or (mip-mapped) an array of textures, full size first.
union TextureSlot {
    Texture* single;
    Texture** chain;
};

} // namespace ombrel
