// A small picture for the tests of the fillers: frame, depth buffer and texture, whose rows are
// longer than the picture is wide, and triangles in short notation. Everything is made before a
// test draws.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <vector>

#include "base/float_mode.h"
#include "raster/blend_tables.h"
#include "raster/fillers.h"
#include "raster/paths.h"
#include "support/clip_rect.h"

namespace ombrel {

inline constexpr Pixel16 kBackground = 0x1234;
inline constexpr std::int32_t kPadding = 3; // cells behind each row

// What a cleared depth cell of a filler holds.
inline std::uint32_t ClearDepth(std::string_view rule) {
    return rule == "W" ? 0U : 0xFFFFFFFFU;
}

struct Canvas {
    std::int32_t width, height;
    std::vector<Pixel16> frame;
    std::vector<std::uint32_t> depth;

    Canvas(std::int32_t canvasWidth, std::int32_t canvasHeight, std::string_view rule = "W",
           Pixel16 color = kBackground)
        : width(canvasWidth), height(canvasHeight),
          frame(static_cast<std::size_t>((canvasWidth + kPadding) * canvasHeight), color),
          depth(frame.size(), ClearDepth(rule)) {}

    std::size_t IndexOf(std::int32_t x, std::int32_t y) const {
        return static_cast<std::size_t>(y * (width + kPadding) + x);
    }
    Pixel16 At(std::int32_t x, std::int32_t y) const { return frame[IndexOf(x, y)]; }
    std::uint32_t DepthAt(std::int32_t x, std::int32_t y) const { return depth[IndexOf(x, y)]; }
    Pixel16& At(std::int32_t x, std::int32_t y) { return frame[IndexOf(x, y)]; }
    std::uint32_t& DepthAt(std::int32_t x, std::int32_t y) { return depth[IndexOf(x, y)]; }

    FillTarget Target(std::uint32_t level = 7) {
        return {frame.data(), (width + kPadding) * 2, depth.data(), (width + kPadding) * 4, level,
                clipRect};
    }
    bool operator==(const Canvas&) const = default;

    std::int32_t CountChanged() const {
        return static_cast<std::int32_t>(
            std::count_if(frame.begin(), frame.end(), [](Pixel16 p) { return p != kBackground; }));
    }
};

// A texture over texels of its own.
struct TestTexture {
    std::vector<Pixel16> texels;
    Texture record;

    TestTexture(std::int32_t width, std::int32_t height, std::vector<Pixel16> contents)
        : texels(std::move(contents)),
          record{1, TEX_FILLED, 0, 0, width, height, width * height * 2, 16, texels.data()} {}
    TestTexture(const TestTexture&) = delete;
    TestTexture& operator=(const TestTexture&) = delete;
};

inline std::vector<Pixel16> EqualTexels(std::int32_t count, Pixel16 texel) {
    return std::vector<Pixel16>(static_cast<std::size_t>(count), texel);
}
// Texel i has the value i + 1: no texel is 0, and a pixel tells which one it shows.
inline std::vector<Pixel16> CountedTexels(std::int32_t count) {
    std::vector<Pixel16> texels(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < texels.size(); ++i) {
        texels[i] = static_cast<Pixel16>(i + 1);
    }
    return texels;
}

struct Point {
    float x, y, z, u, v;
};

inline ScreenPolygon MakePolygon(const std::array<Point, 3>& points, Texture* texture = nullptr,
                                 std::array<std::uint32_t, 3> colors = {0xFFFF, 0xFFFF, 0xFFFF}) {
    ScreenPolygon polygon{};
    polygon.texture.single = texture;
    for (std::size_t i = 0; i < 3; ++i) {
        polygon.litColors[i] = colors[i];
        polygon.vertices[i].x = points[i].x;
        polygon.vertices[i].y = points[i].y;
        polygon.vertices[i].z = points[i].z;
        polygon.vertices[i].u = points[i].u;
        polygon.vertices[i].v = points[i].v;
    }
    return polygon;
}

inline Filler PlainFiller(FillerId id) {
    return kPlainPath.fillers[static_cast<int>(id)];
}
// Draws with the plain filler of a number, leaving the polygon as it was.
inline void DrawWith(std::int32_t id, ScreenPolygon polygon, const FillTarget& target) {
    kPlainPath.fillers[id](&polygon, target);
}
inline void DrawWith(FillerId id, const ScreenPolygon& polygon, const FillTarget& target) {
    DrawWith(static_cast<std::int32_t>(id), polygon, target);
}
inline const FillerRow& RulesOf(std::int32_t id) {
    return kFillerTable[id];
}

// Random numbers in a closed range.
struct Dice {
    std::mt19937 generator;
    std::int32_t Roll(std::int32_t low, std::int32_t high) {
        const auto least = static_cast<std::uint32_t>(low);
        const std::uint32_t span = static_cast<std::uint32_t>(high) - least + 1U;
        return static_cast<std::int32_t>(least + static_cast<std::uint32_t>(generator() % span));
    }
    float RollFloat(std::int32_t low, std::int32_t high) {
        return static_cast<float>(Roll(low, high));
    }
};

// Truncation in force, clip rectangle as said, blend tables built, plain fillers in use.
class RasterTest : public testing::Test {
protected:
    void SetUp() override {
        ResetFillers();
        ResetBlendTables();
        BuildBlendTables(kBlendTableCount, &BlendTables[0][0]);
        ClipTo(64, 48);
    }
    void TearDown() override { ResetClipRect(); }
    static void ClipTo(std::int32_t width, std::int32_t height) {
        clipRect = {0, 0, width, height};
    }

private:
    ScopedFloatMode mode_{FloatMode::Chop};
};

} // namespace ombrel
