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

// Calls action(vectors..., slot) for each attribute that R needs, with its vector in each of the
// records.
template <FillerRules R, class Action, class... Records>
[[gnu::always_inline]] inline void ForEachAttribute(Action action, Records*... records) {
    if constexpr (Needs<R>::depth) {
        action(Constant<kDepth>{}, &records->depth...);
    }
    if constexpr (Needs<R>::texels) {
        action(Constant<kU>{}, &records->u...);
        action(Constant<kV>{}, &records->v...);
    }
    if constexpr (Needs<R>::gouraud) {
        action(Constant<kRed>{}, &records->red...);
        action(Constant<kGreen>{}, &records->green...);
        action(Constant<kBlue>{}, &records->blue...);
    }
}

// The attribute of the part of a block at hand; moves it on to the next part.
[[gnu::always_inline]] inline Ints Take(Ints* attribute, Ints by) {
    const Ints taken = *attribute;
    *attribute += by;
    return taken;
}

// What stays the same over one triangle.
struct Brush {
    const Pixel16* texels;
    std::int32_t shift;      // from a texture row to a texel index
    std::int32_t lastColumn; // of the texture
    std::int32_t lastTexel;  // index of the last texel that the texture's memory holds
    std::uint32_t color;     // colour 0
    std::uint32_t under;     // blend factor of the pixel that is there, in 1/32768
    std::uint32_t over;      // blend factor of the source
};

// The blend tables as multiplications: channel * factor / 32768, to nearest, is the entry. (It is
// never near a half: channel * k / 7 is 1/14 from one, what the factors are off by at most 1/512.)
constexpr std::uint32_t kBlendFactors[8] = {0, 4681, 9362, 14043, 18725, 23406, 28087, 32767};

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

// Of lanes with their depth (in perspective per pixel).
template <FillerRules R>
[[gnu::always_inline]] inline Ints TexelIndex(const Brush& brush, Ints u, Ints v, Ints depth) {
    Ints column, row;
    if constexpr (R.texel == TexelRule::PerPixel) {
        const IntsPair texel = DivChop(u << 6, v << 6, depth);
        column = texel.first;
        row = texel.second;
    } else {
        constexpr int fraction = R.texel == TexelRule::Span ? 22 : 16;
        column = u >> fraction;
        row = v >> fraction;
    }
    const Ints index = (row << brush.shift) + column;
    if constexpr (Needs<R>::perspective) {
        const Ints least = index > 0 ? index : 0, last = Ints{} + brush.lastTexel;
        return least < last ? least : last;
    }
    return index;
}

// Between the left and the right texels of two rows, then between the rows: the same sum of four
// products.
[[gnu::always_inline]] inline Words MixTexels(const Brush& brush, Ints u, Ints v) {
    const Ints last = Ints{} + brush.lastColumn;
    const Ints x0 = u >> 16, y0 = v >> 16;
    // The last column has no right neighbour: its pair is taken one further left.
    const Ints isLast = x0 == last;
    const Ints pair = x0 + isLast;
    const Ints y1 = y0 < last ? y0 + 1 : last;
    const Words fu = (Words)(u >> 8) & 255, fv = (Words)(v >> 8) & 255;
    // Both weights of a pair in one lane; in the last column all of it goes to the right one.
    const Words across = isLast ? Words{} + (256U << 16) : (256 - fu) | fu << 16;
    const Words down = (256 - fv) | fv << 16;
    const Words upper = FetchTexelPairs(brush.texels, (y0 << brush.shift) + pair);
    const Words lower = FetchTexelPairs(brush.texels, (y1 << brush.shift) + pair);
    const auto mix = [&](Words a, Words b) __attribute__((always_inline)) {
        return SumOfProducts(SumOfProducts(a, across) | SumOfProducts(b, across) << 16, down);
    };
    const Words red = mix(ShiftHalves(upper, 11), ShiftHalves(lower, 11));
    const Words green = mix(ShiftHalves(upper, 5) & 0x003F003F, ShiftHalves(lower, 5) & 0x003F003F);
    const Words blue = mix(upper & 0x001F001F, lower & 0x001F001F);
    return ((red >> 5) & 0xF800) + ((green >> 11) & 0xFFE0) + (blue >> 16);
}

// The texels of a block of so many parts; those of dead lanes are not looked at.
template <FillerRules R, int parts>
[[gnu::always_inline]] inline Pixels Texels(const Brush& brush, Attributes* at,
                                            const Attributes& by, const Ints (&depth)[parts],
                                            const Live& live) {
    if constexpr (!Needs<R>::texels) {
        return Pixels{};
    } else if constexpr (R.texel == TexelRule::Bilinear) {
        Words mixed[parts];
        ForEachPart<parts>([&](int i) __attribute__((always_inline)) {
            const Ints u = Take(&at->u, by.u) & ~live.dead, v = Take(&at->v, by.v) & ~live.dead;
            mixed[i] = MixTexels(brush, u, v);
        });
        return Narrow(mixed[0], mixed[parts - 1]);
    } else {
        Pixels texels[parts];
        ForEachPart<parts>([&](int i) __attribute__((always_inline)) {
            const Ints u = Take(&at->u, by.u), v = Take(&at->v, by.v);
            const Ints index = TexelIndex<R>(brush, u, v, depth[i]) & ~live.dead;
            texels[i] = FetchTexels(brush.texels, index, live.count);
        });
        return parts == 2 ? Join(texels[0], texels[parts - 1]) : texels[0];
    }
}

// The colours of a block with the texels t.
template <FillerRules R, int parts>
[[gnu::always_inline]] inline Pixels Light(const Brush& brush, Pixels t, Attributes* at,
                                           const Attributes& by) {
    if constexpr (Needs<R>::gouraud) {
        Words lit[parts];
        ForEachPart<parts>([&](int i) __attribute__((always_inline)) {
            const Words r = (Words)Take(&at->red, by.red), g = (Words)Take(&at->green, by.green),
                        b = (Words)Take(&at->blue, by.blue);
            if constexpr (Needs<R>::texels) {
                const Words w = i == 0 ? WidenLow(t) : WidenHigh(t);
                lit[i] = (((((w >> 5) & 63) * g) >> 19) & 0x1FE0) +
                         ((((w >> 11) * r) >> 13) & 0xF800) + (((w & 31) * b) >> 24);
            } else {
                lit[i] = ((g >> 13) & 0xFFE0) + ((r >> 8) & 0xF800) + (b >> 19);
            }
        });
        return Narrow(lit[0], lit[parts - 1]);
    } else if constexpr (R.light == LightRule::Flat) {
        const std::uint32_t k = brush.color;
        if constexpr (Needs<R>::texels) {
            // Channels stay in their places: 2^11 red x 2^11 red is 64 times the product, and so
            // on.
            const Pixels red = HighHalves(t & 0xF800, AllPixels(k & 0xF800));
            const Pixels green = HighHalves(t & 0x07E0, AllPixels((k & 0x07E0) << 5));
            const Pixels blue = HighHalves(t & 0x001F, AllPixels((k & 0x001F) << 11));
            return (green & 0x07E0) + (red & 0xF800) + blue;
        }
        return AllPixels(k);
    } else {
        return t;
    }
}

// Each channel is multiplied to nearest. Sums are not clamped: what runs over the top of a channel
// goes into the next one, and out at the top.
[[gnu::always_inline]] inline Pixels Blend(const Brush& brush, Pixels source, Pixels there) {
    const Pixels over = AllPixels(brush.over), under = AllPixels(brush.under);
    const auto mix = [&](Pixels s, Pixels t) __attribute__((always_inline)) {
        return RoundedProducts(s, over) + RoundedProducts(t, under);
    };
    const Pixels red = mix(source >> 11, there >> 11);
    const Pixels green = mix((source >> 5) & 63, (there >> 5) & 63);
    const Pixels blue = mix(source & 31, there & 31);
    return (red << 11) + (green << 5) + blue;
}

} // namespace
} // namespace ombrel
