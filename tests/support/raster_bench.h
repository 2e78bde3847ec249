// The bench that the tests of the fillers work on: small pictures, textures, triangles in short
// notation, and one way to draw. Draw() draws with the slow reference and with the fast filler of
// every path that this processor runs, each in memory that ends at a page nobody may touch; all
// must leave the same bytes. So what a test says of the picture it gets is said of all of them.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "base/float_mode.h"
#include "base/rect.h"
#include "base/vector_path.h"
#include "guard_memory.h"
#include "raster/blend_tables.h"
#include "raster/fillers.h"
#include "reference_fillers.h"

namespace ombrel::test {

inline constexpr Pixel16 kBackground = 0x1234;

// --- the paths -----------------------------------------------------------------------------------

// A code path and its fillers; null where this processor does not run them.
struct PathEntry {
    const char* name;
    const Filler* fillers;
};
// Those of this architecture, the plain one first, and the widest lane set as plain code.
inline constexpr int kPathCount = static_cast<int>(std::size(kPathsHere)) + 1;
const std::array<PathEntry, kPathCount>& AllPaths();

// --- pictures, textures, triangles ---------------------------------------------------------------

// A frame and its depth buffer. Rows lie further apart than they are wide.
struct Picture {
    static constexpr std::int32_t kPadding = 3; // cells after each row
    std::int32_t width, height;
    std::vector<Pixel16> frame;
    std::vector<std::uint32_t> depth;

    Picture(std::int32_t pictureWidth, std::int32_t pictureHeight, std::uint32_t clearDepth,
            Pixel16 color = kBackground);
    // Cleared as the filler wants it: everything is in front of it.
    Picture(std::int32_t pictureWidth, std::int32_t pictureHeight, FillerId filler,
            Pixel16 color = kBackground);

    std::size_t IndexOf(std::int32_t x, std::int32_t y) const {
        return static_cast<std::size_t>(y * (width + kPadding) + x);
    }
    Pixel16 At(std::int32_t x, std::int32_t y) const { return frame[IndexOf(x, y)]; }
    std::uint32_t DepthAt(std::int32_t x, std::int32_t y) const { return depth[IndexOf(x, y)]; }
    bool DrawnAt(std::int32_t x, std::int32_t y) const { return At(x, y) != kBackground; }
    std::int32_t CountDrawn() const;
    // Drawn pixels as '#', others as '.', rows divided by blanks, to the last row with a drawn one.
    std::string Shape() const;
    bool operator==(const Picture&) const = default;
};

// A texture over 16-bit texels of its own.
struct TestTexture {
    std::vector<Pixel16> texels;
    Texture record;

    TestTexture(std::int32_t width, std::int32_t height, std::vector<Pixel16> contents);
    TestTexture(const TestTexture&) = delete;
    TestTexture& operator=(const TestTexture&) = delete;
};
std::vector<Pixel16> EqualTexels(std::int32_t count, Pixel16 texel);
// Texel i has the value i + 1: no texel is 0, and a pixel shows which one it is.
std::vector<Pixel16> CountedTexels(std::int32_t count);

struct Corner {
    float x, y;
    float z = 100.0F;
    float u = 0.0F, v = 0.0F;
};
ScreenPolygon MakePolygon(const std::array<Corner, 3>& corners, Texture* texture = nullptr,
                          const std::array<std::uint32_t, 3>& colors = {0xFFFF, 0xFFFF, 0xFFFF});
// Covers everything with one texel, depth and colour.
ScreenPolygon Everywhere(Texture* texture, std::uint32_t color, float z = 100.0F);

// --- the family ----------------------------------------------------------------------------------

inline const FillerRow& RowOf(FillerId id) {
    return kFillerTable[static_cast<int>(id)];
}
// The fillers whose row a condition holds for.
template <class Condition> std::vector<FillerId> FillersWith(Condition condition) {
    std::vector<FillerId> found;
    for (int i = 0; i < kFillerCount; ++i) {
        if (condition(kFillerTable[i])) {
            found.push_back(static_cast<FillerId>(i));
        }
    }
    return found;
}
std::vector<FillerId> AllFillers();
inline bool IsTextured(const FillerRow& row) {
    return row.texel != "NoTexel";
}
inline bool IsPerspective(const FillerRow& row) {
    return row.texel == "Span" || row.texel == "PerPixel";
}
// What a cell of a cleared depth buffer holds.
std::uint32_t ClearDepth(FillerId id);
const reference::Filler& ReferenceOf(FillerId id);

// --- drawing -------------------------------------------------------------------------------------

// What a drawing needs beside the triangle.
struct Brushwork {
    std::uint32_t level = 7;
    Rect clip = {INT32_MIN, 0, 0, 0}; // left so: the whole picture
};

// The mode of the production; blend tables as at start-up.
class RasterBench : public testing::Test {
protected:
    void SetUp() override;

    // Draws a triangle; gives back the polygon as the fillers left it.
    static ScreenPolygon Draw(Picture* picture, FillerId filler, const ScreenPolygon& polygon,
                              const Brushwork& how = {});
    // On a new picture of 64 by 48.
    static Picture Drawn(FillerId filler, const ScreenPolygon& polygon, const Brushwork& how = {});

private:
    ScopedFloatMode mode_{FloatMode::Chop};
};

} // namespace ombrel::test
