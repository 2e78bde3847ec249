// Frames as 24-bit pictures: channel expansion, whole-number enlargement, PNG files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/pixel16.h"

namespace capture {

// 5 and 6 bits to 8 by repeating the high bits below: 0 stays 0, all ones become 255.
constexpr std::uint8_t Expand5(std::int32_t v) {
    return static_cast<std::uint8_t>((v << 3) | (v >> 2));
}
constexpr std::uint8_t Expand6(std::int32_t v) {
    return static_cast<std::uint8_t>((v << 2) | (v >> 4));
}

// Red, green, blue bytes, row after row, scale times as large. pitch in bytes; out is resized.
void ToRgb(const ombrel::Pixel16* pixels, std::int32_t pitch, std::int32_t width,
           std::int32_t height, std::int32_t scale, std::vector<std::uint8_t>* out);

// Empty on success, else what went wrong. Nothing is left under the name on failure.
std::string WritePng(const std::string& path, const std::vector<std::uint8_t>& rgb,
                     std::int32_t width, std::int32_t height);

} // namespace capture
