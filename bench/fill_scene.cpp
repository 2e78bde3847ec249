// Makes the triangle lists of the filler benchmarks. Same lists every time.
#include "fill_scene.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "base/rect.h"
#include "raster/blend_tables.h"
#include "raster/paths.h"

namespace ombrel {

namespace {
constexpr std::int32_t kWidth = 640, kHeight = 480, kTexels = 256;

// The pixels of one triangle, counted in its own rectangle of the cleared frame.
std::int64_t CountPixels(ScreenPolygon polygon, FillScene* scene) {
    std::int32_t left = kWidth, top = kHeight, right = 0, bottom = 0;
    for (const Vertex& vertex : polygon.vertices) {
        left = std::min(left, static_cast<std::int32_t>(vertex.x));
        top = std::min(top, static_cast<std::int32_t>(vertex.y));
        right = std::max(right, static_cast<std::int32_t>(vertex.x));
        bottom = std::max(bottom, static_cast<std::int32_t>(vertex.y));
    }
    polygon.litColors[0] = 1;
    kPlainPath.fillers[static_cast<int>(FillerId::FillFlat)](
        &polygon, {scene->frame.data(), kWidth * 2, nullptr, 0, 0, {0, 0, kWidth, kHeight}});
    std::int64_t count = 0;
    for (std::int32_t y = top; y < bottom; ++y) {
        Pixel16* row = &scene->frame[static_cast<std::size_t>(y * kWidth)];
        count += std::count(row + left, row + right, Pixel16{1});
        std::fill(row + left, row + right, Pixel16{0});
    }
    return count;
}

} // namespace

FillTarget FillScene::Target() {
    return {frame.data(), kWidth * 2, depth.data(), kWidth * 4, 4, kBenchClip};
}

void FillScene::Clear(std::string_view rule) {
    std::fill(depth.begin(), depth.end(), rule == "W" ? 0U : 0xFFFFFFFFU);
}

FillScene* MakeFillScene(std::int32_t trianglePixels) {
    BuildBlendTables(kBlendTableCount, &BlendTables[0][0]);
    auto* scene = new FillScene{};
    scene->frame.resize(kWidth * kHeight);
    scene->depth.resize(kWidth * kHeight);
    scene->texels.resize(kTexels * kTexels);
    std::mt19937 random(2026);
    const auto roll = [&random](double low, double high) {
        return low + (high - low) * (static_cast<double>(random() & 0xFFFFFF) / 16777216.0);
    };
    for (Pixel16& texel : scene->texels) {
        texel = static_cast<Pixel16>(random() | 1); // none is the colour key
    }
    scene->texture = {1,  TEX_FILLED,          0, 0, kTexels, kTexels, kTexels * kTexels * 2,
                      16, scene->texels.data()};

    // An equilateral triangle of the wanted area, turned at random, somewhere on the screen.
    const std::int32_t count = std::clamp(600000 / trianglePixels, 8, 4096);
    const double radius = std::sqrt(trianglePixels / 1.299);
    for (std::int32_t i = 0; i < count; ++i) {
        ScreenPolygon polygon{};
        const double centerX = roll(radius + 1, kWidth - radius - 1);
        const double centerY = roll(radius + 1, kHeight - radius - 1);
        const double turn = roll(0, 6.283);
        const double texelsWide = std::min(200.0, radius * 2);
        const double u0 = roll(0, 255 - texelsWide), v0 = roll(0, 255 - texelsWide);
        for (std::int32_t k = 0; k < 3; ++k) {
            Vertex& vertex = polygon.vertices[k];
            const double x = std::cos(turn + k * 2.0944), y = std::sin(turn + k * 2.0944);
            vertex.x = static_cast<float>(static_cast<std::int32_t>(centerX + radius * x));
            vertex.y = static_cast<float>(static_cast<std::int32_t>(centerY + radius * y));
            // Nearer by more than the triangle is deep.
            vertex.z = static_cast<float>(20000 - 4 * i + (k == 0 ? 2 : 0));
            vertex.u = static_cast<float>(u0 + texelsWide * (0.5 + 0.5 * x));
            vertex.v = static_cast<float>(v0 + texelsWide * (0.5 + 0.5 * y));
            polygon.litColors[k] = static_cast<std::uint32_t>(random() & 0xFFFF);
        }
        polygon.texture.single = &scene->texture;
        scene->polygons.push_back(polygon);
    }

    for (const ScreenPolygon& polygon : scene->polygons) {
        scene->pixels += CountPixels(polygon, scene);
    }
    return scene;
}

} // namespace ombrel
