// The twin of raster/rules.h: the cells of the family table, for a vector of pixels. Formats are
// those of the scalar rules. Part of fillers.h.
#pragma once

#include "raster/simd/lanes.h"

namespace ombrel {
namespace {

template <FillerRules R> struct Needs {
    static constexpr bool depth = R.depth != DepthRule::None;
    static constexpr bool texels = R.texel != TexelRule::None;
    static constexpr bool gouraud = R.light == LightRule::Gouraud;
    static constexpr bool perspective =
        R.texel == TexelRule::Span || R.texel == TexelRule::PerPixel;
    static constexpr bool depthTest = R.depth == DepthRule::Z || R.depth == DepthRule::W;
};

template <bool eight> struct SlotVectors { using Type = Quad; };
template <> struct SlotVectors<true> { using Type = Octet; };
template <FillerRules R> using SlotsOf = typename SlotVectors<Needs<R>::gouraud>::Type;

// What spans add to the slots at their start.
template <FillerRules R> [[gnu::always_inline]] inline SlotsOf<R> SpanStart() {
    SlotsOf<R> start = {};
    if constexpr (R.depth == DepthRule::Z || R.depth == DepthRule::ZWrite) {
        start[kDepth] = 0x8000;
    }
    if constexpr (Needs<R>::gouraud) {
        start[kRed] = start[kGreen] = start[kBlue] = 0x8000;
    }
    return start;
}

// The attributes of the pixels of a block, a vector each; those that R does not need stay unused.
struct Attributes {
    Ints depth, u, v, red, green, blue;
};

// Calls action(vector, slot) for each attribute that R needs.
template <FillerRules R, class Action>
[[gnu::always_inline]] inline void ForEachAttribute(Attributes* at, Action action) {
    if constexpr (Needs<R>::depth) {
        action(&at->depth, kDepth);
    }
    if constexpr (Needs<R>::texels) {
        action(&at->u, kU);
        action(&at->v, kV);
    }
    if constexpr (Needs<R>::gouraud) {
        action(&at->red, kRed);
        action(&at->green, kGreen);
        action(&at->blue, kBlue);
    }
}

template <FillerRules R>
[[gnu::always_inline]] inline void Advance(Attributes* at, const Attributes& by) {
    if constexpr (Needs<R>::depth) {
        at->depth += by.depth;
    }
    if constexpr (Needs<R>::texels) {
        at->u += by.u;
        at->v += by.v;
    }
    if constexpr (Needs<R>::gouraud) {
        at->red += by.red;
        at->green += by.green;
        at->blue += by.blue;
    }
}

// What stays the same over one triangle.
struct Brush {
    const Pixel16* texels;
    std::int32_t shift;      // from a texture row to a texel index
    std::int32_t lastColumn; // of the texture
    std::int32_t lastTexel;  // index of the last texel that the texture's memory holds
    std::uint32_t color;     // colour 0
    std::uint32_t under;     // blend factor of the pixel that is there, in 1/1024
    std::uint32_t over;      // blend factor of the source
};

// The blend tables as multiplications: channel * factor / 1024, to nearest, is the entry. (It is
// never near a half: channel * k / 7 is 1/14 from one, what the factors are rounded by at most
// 1/32.)
constexpr std::uint32_t kBlendFactors[8] = {0, 146, 293, 439, 585, 731, 878, 1024};

template <FillerRules R>
[[gnu::always_inline]] inline Brush MakeBrush(const ScreenPolygon& polygon, std::uint32_t level) {
    Brush brush = {};
    brush.color = polygon.litColors[0] & 0xFFFF;
    if constexpr (Needs<R>::texels) {
        const Texture& texture = *polygon.texture.single;
        brush.texels = static_cast<const Pixel16*>(texture.pixels);
        const auto width = static_cast<std::uint32_t>(texture.width);
        brush.shift = width - 1 < 1024 ? 31 - __builtin_clz(width) : width == 0 ? 0 : 10;
        brush.lastColumn = texture.width - 1;
        brush.lastTexel =
            ((texture.width * texture.height) >> (texture.bitsPerPixel == 8 ? 1 : 0)) - 1;
    }
    if constexpr (R.write == WriteRule::Blend) {
        brush.under = kBlendFactors[7 - level];
        brush.over = kBlendFactors[level];
    }
    return brush;
}

// --- one block of pixels
// ---------------------------------------------------------------------------

template <FillerRules R>
[[gnu::always_inline]] inline Ints TexelIndex(const Brush& brush, const Attributes& at) {
    Ints column, row;
    if constexpr (R.texel == TexelRule::PerPixel) {
        const IntsPair texel = DivChop(at.u << 6, at.v << 6, at.depth);
        column = texel.first;
        row = texel.second;
    } else {
        constexpr int fraction = R.texel == TexelRule::Span ? 22 : 16;
        column = at.u >> fraction;
        row = at.v >> fraction;
    }
    const Ints index = (row << brush.shift) + column;
    if constexpr (Needs<R>::perspective) {
        const Ints least = index > 0 ? index : 0, last = Ints{} + brush.lastTexel;
        return least < last ? least : last;
    }
    return index;
}

// Between the left and the right texels of two rows, then between the rows: the same sum of four
// products. safe: lanes that may be looked at.
[[gnu::always_inline]] inline Words MixTexels(const Brush& brush, const Attributes& at, Ints safe) {
    const Ints last = Ints{} + brush.lastColumn;
    const Ints x0 = (at.u >> 16) & safe, y0 = (at.v >> 16) & safe;
    // The last column has no right neighbour: its pair is taken one further left.
    const Ints isLast = x0 == last;
    const Ints pair = x0 + isLast;
    const Ints y1 = y0 < last ? y0 + 1 : last;
    const Words fu = (Words)(at.u >> 8) & 255, fv = (Words)(at.v >> 8) & 255;
    // Both weights of a pair in one lane; in the last column all of it goes to the right one.
    const Words across = Select(isLast, Words{} + (256U << 16), (256 - fu) | fu << 16);
    const Words down = (256 - fv) | fv << 16;
    const Words upper = FetchTexelPairs(brush.texels, (y0 << brush.shift) + pair);
    const Words lower = FetchTexelPairs(brush.texels, (y1 << brush.shift) + pair);
    const auto mix = [&](Words u, Words l) __attribute__((always_inline)) {
        return SumOfProducts(SumOfProducts(u, across) | SumOfProducts(l, across) << 16, down);
    };
    const Words red = mix(ShiftHalves(upper, 11), ShiftHalves(lower, 11));
    const Words green = mix(ShiftHalves(upper, 5) & 0x003F003F, ShiftHalves(lower, 5) & 0x003F003F);
    const Words blue = mix(upper & 0x001F001F, lower & 0x001F001F);
    return ((red >> 5) & 0xF800) + ((green >> 11) & 0xFFE0) + (blue >> 16);
}

template <FillerRules R>
[[gnu::always_inline]] inline Words Texels(const Brush& brush, const Attributes& at, Ints safe) {
    if constexpr (!Needs<R>::texels) {
        return Words{};
    } else if constexpr (R.texel == TexelRule::Bilinear) {
        return MixTexels(brush, at, safe);
    } else {
        return FetchTexels(brush.texels, TexelIndex<R>(brush, at) & safe);
    }
}

template <FillerRules R>
[[gnu::always_inline]] inline Words Light(const Brush& brush, Words t, const Attributes& at) {
    if constexpr (Needs<R>::gouraud) {
        const Words r = (Words)at.red, g = (Words)at.green, b = (Words)at.blue;
        if constexpr (Needs<R>::texels) {
            return (((((t >> 5) & 63) * g) >> 19) & 0x1FE0) + ((((t >> 11) * r) >> 13) & 0xF800) +
                   (((t & 31) * b) >> 24);
        }
        return ((g >> 13) & 0xFFE0) + ((r >> 8) & 0xF800) + (b >> 19);
    } else if constexpr (R.light == LightRule::Flat) {
        const std::uint32_t k = brush.color;
        if constexpr (Needs<R>::texels) {
            // Channels stay in their places: 2^11 red x 2^11 red is 64 times the product, and so
            // on.
            const Words red = HighHalves(t & 0xF800, Words{} + ((k & 0xF800)));
            const Words green = HighHalves(t & 0x07E0, Words{} + ((k & 0x07E0) << 5));
            const Words blue = HighHalves(t & 0x001F, Words{} + ((k & 0x001F) << 11));
            return (green & 0x07E0) + (red & 0xF800) + blue;
        }
        return Words{} + k;
    } else {
        return t;
    }
}

// Each channel is multiplied to nearest, red and blue with one product. Sums are not clamped: what
// runs over the top of a channel goes into the next one, and out at the top.
[[gnu::always_inline]] inline Words Blend(const Brush& brush, Words source, Words there) {
    const auto spread = [](Words p) __attribute__((always_inline)) {
        return (p >> 8 | p << 19) & 0x00F800F8; // red in the low half, blue in the high one
    };
    const Words over = Words{} + (brush.over << 2) * 0x10001,
                under = Words{} + (brush.under << 2) * 0x10001;
    const Words redBlue =
        RoundedProducts(spread(source), over) + RoundedProducts(spread(there), under);
    const Words green = RoundedProducts(source & 0x07E0, Words{} + brush.over) +
                        RoundedProducts(there & 0x07E0, Words{} + brush.under);
    return ((redBlue << 11) + (green << 5) + (redBlue >> 16)) & 0xFFFF;
}

} // namespace
} // namespace ombrel
