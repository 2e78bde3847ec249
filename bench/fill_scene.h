// The triangles that the filler benchmarks draw, with frame, depth buffer and texture. Every
// triangle is nearer than the ones before it, so that each pixel passes its depth test.
#pragma once

#include <cstdint>
#include <vector>

#include "raster/fillers.h"

namespace ombrel {

inline constexpr Rect kBenchClip{0, 0, 640, 480};

struct FillScene {
    std::vector<ScreenPolygon> polygons;
    std::vector<Pixel16> frame, texels;
    std::vector<std::uint32_t> depth;
    Texture texture;
    std::int64_t pixels; // drawn by all polygons together

    FillTarget Target();
    void Clear(std::string_view rule); // the depth buffer only
};

// Triangles of about so many pixels at 640 x 480, about 600,000 pixels or 4,096 triangles in all.
// The scene stays where it is: its records point at each other.
FillScene* MakeFillScene(std::int32_t trianglePixels);

} // namespace ombrel
