// What the cells of the family table mean: which slots a filler walks, how a vertex fills them, and
// how a pixel is made of them. Depth 16.16 (Z) or 2^28 / z (W); u, v 16.16, 10.22 within a span in
// perspective, u / z and v / z of 22 fraction bits between; intensities 8.16. 32-bit, wrapping.
// Called by fillers.cpp.
#pragma once

#include <algorithm>
#include <cstdint>

#include "base/convert.h"
#include "base/log2_table.h"
#include "raster/blend_tables.h"
#include "raster/fillers.h"
#include "raster/walker.h"

namespace ombrel {

// The slots of a filler: x, then depth, u and v, red, green and blue where its rules need them.
template <FillerRules R> struct Slots {
    static constexpr bool hasDepth = R.depth != DepthRule::None;
    static constexpr bool hasTexels = R.texel != TexelRule::None;
    static constexpr bool isGouraud = R.light == LightRule::Gouraud;
    static constexpr bool inPerspective =
        R.texel == TexelRule::Span || R.texel == TexelRule::PerPixel;

    static constexpr int x = 0;
    static constexpr int depth = 1;
    static constexpr int u = hasDepth ? 2 : 1;
    static constexpr int v = u + 1;
    static constexpr int red = hasTexels ? u + 2 : u;
    static constexpr int count = isGouraud ? red + 3 : red;

    // Spans of 16.16 depth and of intensities start half a unit further on.
    static constexpr bool startsAtHalf(int k) {
        return (k == depth && hasDepth && R.depth != DepthRule::W) || (k >= red && k < red + 3);
    }
};

// What stays the same over one triangle.
struct Brush {
    const Pixel16* texels;
    std::int32_t shift;      // from a texture row to a texel index
    std::int32_t lastColumn; // of the texture
    std::int32_t lastTexel;  // index of the last texel that the texture's memory holds
    std::uint32_t color;     // colour 0
    const Pixel16* under;    // blend table of the pixel that is there
    const Pixel16* over;     // blend table of the source
};

inline constexpr Pixel16 kNoTexel = 0; // what a texture without texels shows

template <FillerRules R> Brush MakeBrush(const ScreenPolygon& polygon, std::uint32_t level) {
    Brush brush{};
    brush.color = polygon.litColors[0] & 0xFFFF;
    if constexpr (Slots<R>::hasTexels) {
        // An 8-bit texture holds half as many 16-bit texels.
        const Texture& texture = *polygon.texture.single;
        const std::int32_t texels =
            (texture.width * texture.height) >> (texture.bitsPerPixel == 8 ? 1 : 0);
        brush.texels = texels > 0 ? static_cast<const Pixel16*>(texture.pixels) : &kNoTexel;
        brush.shift =
            Log2Table[static_cast<std::size_t>(std::clamp(texture.width, 0, kLog2TableSize - 1))];
        brush.lastColumn = texture.width - 1;
        brush.lastTexel = std::max(texels, 1) - 1;
    }
    if constexpr (R.write == WriteRule::Blend) {
        brush.under = BlendTables[7 - level];
        brush.over = BlendTables[level];
    }
    return brush;
}

// x and y of the corner are set already.
template <FillerRules R>
void FillSlots(const Vertex& vertex, std::uint32_t color, Corner<Slots<R>::count>* corner) {
    using S = Slots<R>;
    corner->slot[S::x] = corner->x << 16;
    [[maybe_unused]] const std::int32_t z = ToIntChop(vertex.z + 0.5F);
    if constexpr (R.depth == DepthRule::W) {
        corner->slot[S::depth] = DivChop(0x10000000, z);
    } else if constexpr (S::hasDepth) {
        corner->slot[S::depth] = z << 16;
    }
    if constexpr (S::inPerspective) { // half a texel from the affine ones: REQUIRED R5
        corner->slot[S::u] = DivChop(ToIntChop(vertex.u + 0.5F) << 22, z);
        corner->slot[S::v] = DivChop(ToIntChop(vertex.v + 0.5F) << 22, z);
    } else if constexpr (S::hasTexels) {
        corner->slot[S::u] = ToIntChop(vertex.u) << 16;
        corner->slot[S::v] = ToIntChop(vertex.v) << 16;
    }
    if constexpr (S::isGouraud) {
        corner->slot[S::red + 0] = static_cast<std::int32_t>((color >> 8) & 248) << 16;
        corner->slot[S::red + 1] = static_cast<std::int32_t>((color >> 3) & 252) << 16;
        corner->slot[S::red + 2] = static_cast<std::int32_t>((color & 31) * 8) << 16;
    }
}

// Whether no pixel of the triangle can reach past the texture, so that indices need no bound.
// Between corners the linear coordinates stay between theirs; the ones in perspective need not.
template <FillerRules R>
bool TexelsStayInside(const Brush& brush, const Corner<Slots<R>::count> corners[3]) {
    using S = Slots<R>;
    if constexpr (S::inPerspective) {
        return false;
    } else {
        // Bilinear sampling looks one row further down, as far as there are columns.
        const std::int32_t rowBelow = R.texel == TexelRule::Bilinear ? 1 : 0;
        for (std::int32_t i = 0; i < 3; ++i) {
            const std::int32_t u = corners[i].slot[S::u] >> 16;
            const std::int32_t v = corners[i].slot[S::v] >> 16;
            const std::int32_t row = std::max(v, std::min(v + rowBelow, brush.lastColumn));
            if (u < 0 || u > brush.lastColumn || v < 0 ||
                (row << brush.shift) + brush.lastColumn > brush.lastTexel) {
                return false;
            }
        }
        return true;
    }
}

// --- one pixel -----------------------------------------------------------------------------------

template <FillerRules R> bool IsInFront(const std::int32_t* slot, const std::uint32_t* cell) {
    if constexpr (R.depth == DepthRule::Z) {
        return static_cast<std::uint32_t>(slot[Slots<R>::depth]) < *cell;
    } else if constexpr (R.depth == DepthRule::W) {
        return static_cast<std::uint32_t>(slot[Slots<R>::depth]) > *cell;
    } else {
        return true;
    }
}

template <bool bounded>
std::uint32_t TexelAt(const Brush& brush, std::int32_t column, std::int32_t row) {
    const std::int32_t index = (row << brush.shift) + column;
    return brush.texels[bounded ? std::clamp(index, 0, brush.lastTexel) : index];
}

// Four neighbours, weighted in 1/65536; the last column bounds columns and rows alike.
// REQUIRED R4.
template <bool bounded>
std::uint32_t MixTexels(const Brush& brush, std::int32_t u, std::int32_t v) {
    const std::int32_t x0 = u >> 16, x1 = std::min(x0 + 1, brush.lastColumn);
    const std::int32_t y0 = v >> 16, y1 = std::min(y0 + 1, brush.lastColumn);
    const std::uint32_t fu = (u >> 8) & 255, fv = (v >> 8) & 255;
    const std::uint32_t texels[4] = {
        TexelAt<bounded>(brush, x0, y0), TexelAt<bounded>(brush, x1, y0),
        TexelAt<bounded>(brush, x0, y1), TexelAt<bounded>(brush, x1, y1)};
    const std::uint32_t weights[4] = {(256 - fu) * (256 - fv), fu * (256 - fv), (256 - fu) * fv,
                                      fu * fv};
    std::uint32_t red = 0, green = 0, blue = 0;
    for (int i = 0; i < 4; ++i) {
        red += weights[i] * (texels[i] >> 11);
        green += weights[i] * ((texels[i] >> 5) & 63);
        blue += weights[i] * (texels[i] & 31);
    }
    return ((red >> 5) & 0xF800) + ((green >> 11) & 0xFFE0) + (blue >> 16);
}

template <FillerRules R, bool bounded>
std::uint32_t Texel(const Brush& brush, const std::int32_t* slot) {
    using S = Slots<R>;
    if constexpr (!S::hasTexels) {
        return 0;
    } else if constexpr (R.texel == TexelRule::Bilinear) {
        return MixTexels<bounded>(brush, slot[S::u], slot[S::v]);
    } else if constexpr (R.texel == TexelRule::Span) {
        return TexelAt<bounded>(brush, slot[S::u] >> 22, slot[S::v] >> 22);
    } else if constexpr (R.texel == TexelRule::PerPixel) {
        return TexelAt<bounded>(brush, DivChop(slot[S::u] << 6, slot[S::depth]),
                                DivChop(slot[S::v] << 6, slot[S::depth]));
    } else {
        return TexelAt<bounded>(brush, slot[S::u] >> 16, slot[S::v] >> 16);
    }
}

template <FillerRules R>
std::uint32_t Light(const Brush& brush, std::uint32_t t, const std::int32_t* slot) {
    using S = Slots<R>;
    if constexpr (S::isGouraud) {
        const auto r = static_cast<std::uint32_t>(slot[S::red + 0]);
        const auto g = static_cast<std::uint32_t>(slot[S::red + 1]);
        const auto b = static_cast<std::uint32_t>(slot[S::red + 2]);
        if constexpr (S::hasTexels) { // texel x intensity / 256, a channel
            return (((((t >> 5) & 63) * g) >> 19) & 0x1FE0) + ((((t >> 11) * r) >> 13) & 0xF800) +
                   (((t & 31) * b) >> 24);
        }
        return ((g >> 13) & 0xFFE0) + ((r >> 8) & 0xF800) + (b >> 19);
    } else if constexpr (R.light == LightRule::Flat) {
        const std::uint32_t k = brush.color;
        if constexpr (S::hasTexels) { // texel x colour / 32 or 64, a channel
            return (((((t >> 5) & 63) * ((k >> 5) & 63)) >> 1) & 0x7FE0) +
                   ((((t >> 11) * (k >> 11)) & 0xFFE0) * 64) + (((t & 31) * (k & 31)) >> 5);
        }
        return k;
    } else {
        return t;
    }
}

template <WriteRule W> Pixel16 Write(const Brush& brush, std::uint32_t source, Pixel16 there) {
    if constexpr (W == WriteRule::Blend) {
        return static_cast<Pixel16>(brush.under[there] + brush.over[source & 0xFFFF]);
    } else {
        return static_cast<Pixel16>(source);
    }
}

} // namespace ombrel
