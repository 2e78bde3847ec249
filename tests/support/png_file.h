// Pictures of 16-bit 5-6-5 pixels as 8-bit RGB files, for the golden tests. Every pixel survives
// the way there and back: a channel is widened by repeating its high bits, and narrowed by cutting.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/pixel16.h"

namespace ombrel {

struct PngPicture {
    std::int32_t width, height;
    std::vector<Pixel16> pixels; // rows of width pixels, top row first
};

// 5 or 6 bits to 8 by repeating the high bits: 0 stays 0, the largest becomes 255.
constexpr std::uint8_t Widen5(std::int32_t value) {
    return static_cast<std::uint8_t>((value << 3) | (value >> 2));
}
constexpr std::uint8_t Widen6(std::int32_t value) {
    return static_cast<std::uint8_t>((value << 2) | (value >> 4));
}

// A copy of a frame; pitch in bytes.
PngPicture PictureOf(const Pixel16* pixels, std::int32_t pitch, std::int32_t width,
                     std::int32_t height);

// Both return whether it went well. Reading wants 8-bit RGB whose channels are widened ones, as
// WritePng makes them: anything else would not come back the same, so it fails.
bool WritePng(const std::string& path, const PngPicture& picture);
bool ReadPng(const std::string& path, PngPicture* picture);

struct PictureDifference {
    std::int64_t count;          // pixels that differ
    std::int32_t firstX, firstY; // in reading order; -1 if none
    PngPicture picture;          // differing pixels white, others a dark grey shade of the first
};
// Pictures of different sizes differ in every pixel of the larger frame around both.
PictureDifference DifferenceOf(const PngPicture& actual, const PngPicture& expected);

} // namespace ombrel
