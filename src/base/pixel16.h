// The 16-bit pixel of frame buffer, textures and blend tables, and the packers that make one from
// 8-bit channels. Every drawing part of the program uses it; the display set-up chooses the packer.
#pragma once

#include <cstdint>

namespace ombrel {

// 5-6-5: red in bits 15..11, green in bits 10..5, blue in bits 4..0. No alpha.
using Pixel16 = std::uint16_t;

constexpr std::int32_t RedOf(Pixel16 p) {
    return (p >> 11) & 31;
}
constexpr std::int32_t GreenOf(Pixel16 p) {
    return (p >> 5) & 63;
}
constexpr std::int32_t BlueOf(Pixel16 p) {
    return p & 31;
}

// Channels 0..255; bits above the eighth are cut. The low bits of each channel are dropped. N is an
// integer or a vector of them.
template <class N> static constexpr N Pack565(N r, N g, N b) {
    return (((r >> 3) & 31) << 11) + (((g >> 2) & 63) << 5) + ((b >> 3) & 31);
}
template <class N> static constexpr N Pack555(N r, N g, N b) {
    return (((r >> 3) & 31) << 10) + (((g >> 3) & 31) << 5) + ((b >> 3) & 31);
}
constexpr std::uint32_t PackRgb565(std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    return Pack565(r, g, b);
}
constexpr std::uint32_t PackRgb555(std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    return Pack555(r, g, b);
}

using ColorPacker = std::uint32_t (*)(std::uint32_t r, std::uint32_t g, std::uint32_t b);

// What a display offers. The loaders, the lighting and the scenes are given the one in force.
struct DisplayFormat {
    std::int32_t bitsPerPixel; // depth asked for at set-up: 16
    std::int32_t rgbBits;      // 15 (5-5-5) or 16 (5-6-5), as the visible surface reports it
    ColorPacker pack;          // PackRgb555 when rgbBits is 15, else PackRgb565
};
inline constexpr DisplayFormat kFormat565{16, 16, PackRgb565};

} // namespace ombrel
