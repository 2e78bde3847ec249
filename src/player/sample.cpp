// The still life of a filler.
#include "player/sample.h"

#include <vector>

#include "assets/bmp.h"
#include "base/float_mode.h"
#include "base/single.h"

namespace ombrel {

namespace {

constexpr std::int32_t kTextureWidth = 1 << (kSampleMips - 1);
constexpr std::int32_t kTile = 32; // pixels of the backdrop

// A corner: place in pixels, depth, place in the texture in 64ths, colour of the light.
struct Spot {
    std::int32_t x, y, z, u, v;
    std::uint32_t color;
};
using Triangle = Spot[3];
// clang-format off
constexpr Triangle kTriangles[] = {
    // the floor
    {{ 32, 416,  40,  0, 64, 0xFFFF}, {248, 208, 160,  0,  0, 0x7BEF}, {608, 416,  40, 64, 64, 0xFFFF}},
    {{608, 416,  40, 64, 64, 0xFFFF}, {248, 208, 160,  0,  0, 0x7BEF}, {392, 208, 160, 64,  0, 0x7BEF}},
    // the blades
    {{ 72, 352,  46,  0, 64, 0xFD20}, {296,  68,  56, 32,  0, 0xFFE0}, {520, 328, 110, 64, 64, 0xF81F}},
    {{568, 288,  48, 64, 32, 0x07FF}, {152,  88,  90,  0,  0, 0x07E0}, {208, 392,  70,  0, 64, 0x52BF}},
};
// clang-format on

constexpr Pixel16 Rgb(std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    return static_cast<Pixel16>(PackRgb565(r, g, b));
}

// Coloured checks with a bright rim; a ring of texel 0, which keyed fillers leave out.
Pixel16 TexelOf(std::int32_t x, std::int32_t y) {
    const std::int32_t cx = 2 * x + 1 - kTextureWidth, cy = 2 * y + 1 - kTextureWidth;
    const std::int32_t far = (cx * cx + cy * cy) * 64 / (kTextureWidth * kTextureWidth);
    if (far >= 12 && far < 22) {
        return 0;
    }
    const std::int32_t last = kTextureWidth - kTextureWidth / 16;
    if (x < kTextureWidth - last || y < kTextureWidth - last || x >= last || y >= last) {
        return Rgb(255, 248, 216);
    }
    const auto along = static_cast<std::uint32_t>(x * 255 / kTextureWidth);
    const auto down = static_cast<std::uint32_t>(y * 255 / kTextureWidth);
    return (x / 8 + y / 8) % 2 != 0 ? Rgb(255 - along / 2, 120 + down / 2, 64)
                                    : Rgb(48 + along / 3, 96, 255 - down / 2);
}

bool MakeTexture(Texture* texture) {
    if (createTexture(texture, {0, 0, kTextureWidth, kTextureWidth, 16}) == 0) {
        return false;
    }
    auto* texels = static_cast<Pixel16*>(texture->pixels);
    for (std::int32_t i = 0; i < kTextureWidth * kTextureWidth; ++i) {
        texels[i] = TexelOf(i % kTextureWidth, i / kTextureWidth);
    }
    texture->texFlags |= TEX_FILLED;
    return true;
}

void DrawBackdrop(LookPicture* out) {
    for (std::int32_t y = 0; y < kSampleHeight; ++y) {
        for (std::int32_t x = 0; x < kSampleWidth; ++x) {
            const bool band = (x + y) / kTile % 2 != 0;
            const std::int32_t at = y * kSampleWidth + x;
            out->pixels[static_cast<std::size_t>(at)] = band ? Rgb(52, 66, 104) : Rgb(28, 36, 60);
        }
    }
}

// 64ths of a texture as a texel of it.
Single TexelAt(std::int32_t part, std::int32_t width) {
    const std::int32_t texel = part * (width - 1) / 64;
    return static_cast<Single>(texel);
}

void DrawTriangle(FillerId filler, const Triangle& triangle, Texture* texture,
                  const FillTarget& target) {
    ScreenPolygon polygon{};
    polygon.texture.single = texture;
    for (int i = 0; i < 3; ++i) {
        const Spot& spot = triangle[i];
        Vertex& vertex = polygon.vertices[i];
        vertex.x = static_cast<Single>(spot.x);
        vertex.y = static_cast<Single>(spot.y);
        vertex.z = static_cast<Single>(spot.z);
        vertex.u = TexelAt(spot.u, texture->width);
        vertex.v = TexelAt(spot.v, texture->height);
        polygon.litColors[i] = spot.color;
    }
    activeFillers[static_cast<int>(filler)](&polygon, target);
}

} // namespace

bool DrawSample(FillerId filler, std::uint32_t level, std::int32_t mip, LookPicture* out) {
    if (static_cast<std::int32_t>(filler) >= kFillerCount || level >= kSampleLevels || mip < 0 ||
        mip >= kSampleMips) {
        return false;
    }
    const ScopedFloatMode mode(FloatMode::Chop);
    Texture texture{};
    Texture** chain = nullptr;
    const bool made = MakeTexture(&texture) && buildMipChain(&texture, &chain, 1.01F) != 0;
    if (made) {
        *out = {std::vector<Pixel16>(std::size_t{kSampleWidth} * kSampleHeight),
                kSampleWidth,
                kSampleHeight,
                {}};
        DrawBackdrop(out);
        const bool inverse = kFillerTable[static_cast<int>(filler)].depth == "W";
        std::vector<std::uint32_t> depth(out->pixels.size(), inverse ? 0U : 0xFFFFFFFFU);
        const FillTarget target{out->pixels.data(),
                                kSampleWidth * 2,
                                depth.data(),
                                kSampleWidth * 4,
                                level,
                                {0, 0, kSampleWidth, kSampleHeight}};
        for (const Triangle& triangle : kTriangles) {
            DrawTriangle(filler, triangle, chain[mip], target);
        }
        releaseMipChain(chain);
    }
    releaseTexture(&texture);
    return made;
}

} // namespace ombrel
