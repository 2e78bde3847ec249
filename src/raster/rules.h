// What the cells of the family table mean: a type each. A rule says which attributes of a point it
// needs, how the corners of a triangle fill them, where spans start, and what becomes of a block of
// pixels; once for every lane set L (lanes/pixels_plain.h says what its operations mean).
//
//   attribute   along edges and spans
//   x           16.16
//   depth       16.16 (Z) or 2^28 / z (W)
//   u, v        16.16; in perspective u / z and v / z with 22 fraction bits, 10.22 within a span
//   red..blue   intensities, 8.16
//
// All arithmetic is 32-bit and wraps. Used by span.h and triangle.h.
#pragma once

#include <cstdint>

#include "lanes/inline.h"
#include "lanes/texels.h"
#include "raster/blend_tables.h"
#include "raster/draw_job.h"

namespace ombrel {
namespace {

enum Attribute { kX, kDepth, kU, kV, kRed, kGreen, kBlue, kAttributeCount = 8 };
inline constexpr std::uint32_t kColors = 1U << kRed | 1U << kGreen | 1U << kBlue;
inline constexpr std::uint32_t kTexels = 1U << kU | 1U << kV;

template <class L> using Ints = typename L::Ints;
template <class L> using Words = typename L::Words;
template <class L> using Pixels = typename L::Pixels;
template <class L> using Quad = typename L::Quad;

// Each attribute of the pixels at hand, or what it changes by; those that a filler has no use for
// are never touched.
template <class L> struct Attributes { Ints<L> of[kAttributeCount]; };
// The attribute; moves it on.
template <class L> OMBREL_INLINE Ints<L> Take(Ints<L>* attribute, Ints<L> by) {
    const Ints<L> taken = *attribute;
    *attribute += by;
    return taken;
}

// What stays the same over one triangle.
template <class L> struct Brush {
    TexelMemory memory;
    std::uint32_t color; // colour 0
    typename L::Weights weights;
    Pixels<L> source; // of fillers of one colour, scaled
};

// The corners of a triangle, a number each in three of four.
template <class L> struct Corners {
    Quad<L> x, y, z;          // rounded
    typename L::Floats uv[2]; // u and v of the first two; of the third
    Quad<L> color;
};

// The pixels of a part of a block that are to be drawn: the first so many lanes.
template <class L> struct Live {
    std::int32_t count; // 1..kLanes
    Ints<L> dead;       // mask of the others
};

// --- depth: smaller or larger is nearer; the cell is written where the pixel is drawn ------------

struct NoDepth { // always drawn
    static constexpr std::uint32_t kNeeds = 0;
    static constexpr std::int32_t kSpanStart = 0;
    static constexpr bool kTests = false;
    template <class L> OMBREL_INLINE static void Fill(const Corners<L>&, Quad<L> (&)[8]) {}
    template <class L> OMBREL_INLINE static Words<L> Nearer(Words<L> depth, Words<L>) {
        return depth;
    }
};

struct ZWrite { // smaller is nearer; written but never tested
    static constexpr std::uint32_t kNeeds = 1U << kDepth;
    static constexpr std::int32_t kSpanStart = 0x8000;
    static constexpr bool kTests = false;
    template <class L> OMBREL_INLINE static void Fill(const Corners<L>& c, Quad<L> (&to)[8]) {
        to[kDepth] = c.z << 16;
    }
    template <class L> OMBREL_INLINE static Words<L> Nearer(Words<L> depth, Words<L>) {
        return depth;
    }
};

struct Z : ZWrite { // drawn where below the cell, unsigned
    static constexpr bool kTests = true;
    template <class L> OMBREL_INLINE static Words<L> Nearer(Words<L> depth, Words<L> cell) {
        return L::Min(depth, cell);
    }
};

struct W { // larger is nearer; drawn where above the cell, unsigned
    static constexpr std::uint32_t kNeeds = 1U << kDepth;
    static constexpr std::int32_t kSpanStart = 0;
    static constexpr bool kTests = true;
    template <class L> OMBREL_INLINE static void Fill(const Corners<L>& c, Quad<L> (&to)[8]) {
        to[kDepth] = L::DivChop(Quad<L>{} + 0x10000000, c.z);
    }
    template <class L> OMBREL_INLINE static Words<L> Nearer(Words<L> depth, Words<L> cell) {
        return L::Max(depth, cell);
    }
};

// --- texels --------------------------------------------------------------------------------------

// What a filler without a texture has for texels.
struct Blank {};

struct NoTexel {
    static constexpr std::uint32_t kNeeds = 0;
    static constexpr bool kBounds = false, kKeyed = false;
    template <class L> OMBREL_INLINE static void Fill(const Corners<L>&, Quad<L> (&)[8]) {}
    template <class L> OMBREL_INLINE static Quad<L> Strays(const TexelMemory&, const Corners<L>&) {
        return Quad<L>{};
    }
    template <class L, class P> OMBREL_INLINE static void AtSpanEnds(P*, P*) {}
};

// Whose texels are fetched one by one, from the index that Rule::IndexOf gives.
template <class Rule> struct Fetched {
    static constexpr std::uint32_t kNeeds = kTexels;
    static constexpr bool kKeyed = false;
    template <class L, class P> OMBREL_INLINE static void AtSpanEnds(P*, P*) {}

    template <class L, bool bounded>
    OMBREL_INLINE static Pixels<L> Part(const TexelMemory& memory, Ints<L> u, Ints<L> v,
                                        Ints<L> depth, const Live<L>& live) {
        Ints<L> index = Rule::template IndexOf<L>(memory, u, v, depth);
        if constexpr (bounded) {
            index = L::Bound(index, memory.lastTexel);
        }
        return L::FetchTexels(memory.texels, index & ~live.dead, live.count);
    }
};

// u and v linear over the triangle, cut to whole texels at the corners; as long as those lie in the
// texture, so does everything between.
struct Affine : Fetched<Affine> {
    static constexpr bool kBounds = false;
    template <class L> OMBREL_INLINE static void Fill(const Corners<L>& c, Quad<L> (&to)[8]) {
        to[kU] = L::ToIntChop(c.uv[0]) << 16;
        to[kV] = L::ToIntChop(c.uv[1]) << 16;
    }
    // Negative for the corners that lie outside of the texture's memory.
    template <class L>
    OMBREL_INLINE static Quad<L> Strays(const TexelMemory& memory, const Corners<L>& c) {
        return OutsideOf<L>(c, memory.lastColumn, LastRow(memory));
    }
    template <class L>
    OMBREL_INLINE static Ints<L> IndexOf(const TexelMemory& memory, Ints<L> u, Ints<L> v, Ints<L>) {
        return L::ShiftLeft(v >> 16, memory.shift) + (u >> 16);
    }

protected:
    OMBREL_INLINE static std::int32_t LastRow(const TexelMemory& memory) {
        return (memory.lastTexel - memory.lastColumn) >> memory.shift;
    }
    template <class L>
    OMBREL_INLINE static Quad<L> OutsideOf(const Corners<L>& c, std::int32_t lastColumn,
                                           std::int32_t lastRow) {
        const Quad<L> two = L::ToIntChop(c.uv[0]), third = L::ToIntChop(c.uv[1]);
        const Quad<L> last = {lastColumn, lastRow, lastColumn, lastRow};
        return two | third | (last - two) | (last - third);
    }
};

struct Keyed : Affine { // a texel of 0 leaves pixel and depth alone
    static constexpr bool kKeyed = true;
};

struct Bilinear : Affine { // mixed from four texels
    // One row further down is looked at, as far as there are columns, and pairs of columns.
    template <class L>
    OMBREL_INLINE static Quad<L> Strays(const TexelMemory& memory, const Corners<L>& c) {
        const std::int32_t last = memory.lastColumn, row = LastRow(memory);
        return OutsideOf<L>(c, last, last < 1 ? -1 : row - (row < last ? 1 : 0));
    }
    template <class L, bool bounded>
    OMBREL_INLINE static Words<L> Part(const TexelMemory& memory, Ints<L> u, Ints<L> v, Ints<L>,
                                       const Live<L>& live) {
        return L::template MixTexels<bounded>(memory, u & ~live.dead, v & ~live.dead);
    }
};

// u / z and v / z are linear over the triangle; texels are bounded wherever they lie.
template <class Rule> struct Perspective : Fetched<Rule> {
    static constexpr bool kBounds = true;
    // Half a texel from the affine ones: REQUIRED R5.
    template <class L> OMBREL_INLINE static void Fill(const Corners<L>& c, Quad<L> (&to)[8]) {
        const Quad<L> two = L::template Shuffle<0, 0, 1, 1>(c.z, c.z);
        const Quad<L> third = L::template Shuffle<2, 2, 2, 2>(c.z, c.z);
        to[kU] = L::DivChop(L::ToIntChop(c.uv[0] + Single{0.5F}) << 22, two);
        to[kV] = L::DivChop(L::ToIntChop(c.uv[1] + Single{0.5F}) << 22, third);
    }
    template <class L> OMBREL_INLINE static Quad<L> Strays(const TexelMemory&, const Corners<L>&) {
        return Quad<L>{};
    }
};

struct PerPixel : Perspective<PerPixel> { // in perspective at every pixel, whole texels
    template <class L>
    OMBREL_INLINE static Ints<L> IndexOf(const TexelMemory& memory, Ints<L> u, Ints<L> v,
                                         Ints<L> depth) {
        const auto texel = L::DivChop(u << 6, v << 6, depth);
        return L::ShiftLeft(texel.b, memory.shift) + texel.a;
    }
};

struct Span : Perspective<Span> { // in perspective at both ends of a span, linear between
    template <class L, class P> OMBREL_INLINE static void AtSpanEnds(P* left, P* right) {
        L::template ProjectEnds<kU, kDepth>(left, right);
    }
    template <class L>
    OMBREL_INLINE static Ints<L> IndexOf(const TexelMemory& memory, Ints<L> u, Ints<L> v, Ints<L>) {
        return L::ShiftLeft(v >> 22, memory.shift) + (u >> 22);
    }
};

// --- light: the colours of a block from its texels -----------------------------------------------

struct Unlit { // the texel as it is
    static constexpr std::uint32_t kNeeds = 0;
    static constexpr std::int32_t kSpanStart = 0;
    template <class L> OMBREL_INLINE static void Fill(const Corners<L>&, Quad<L> (&)[8]) {}
    template <class L, int parts>
    OMBREL_INLINE static Pixels<L> Light(const Brush<L>&, Pixels<L> texels, Attributes<L>*,
                                         const Attributes<L>&) {
        return texels;
    }
};

struct Flat { // colour 0 (Rules::kOneColor), or the texel times it
    static constexpr std::uint32_t kNeeds = 0;
    static constexpr std::int32_t kSpanStart = 0;
    template <class L> OMBREL_INLINE static void Fill(const Corners<L>&, Quad<L> (&)[8]) {}
    // Channels stay in their places: 2^11 red x 2^11 red is 64 times the product, and so on.
    template <class L, int parts>
    OMBREL_INLINE static Pixels<L> Light(const Brush<L>& brush, Pixels<L> t, Attributes<L>*,
                                         const Attributes<L>&) {
        const std::uint32_t k = brush.color;
        const Pixels<L> red = L::HighHalves(t & 0xF800, L::AllPixels(k & 0xF800));
        const Pixels<L> green = L::HighHalves(t & 0x07E0, L::AllPixels((k & 0x07E0) << 5));
        const Pixels<L> blue = L::HighHalves(t & 0x001F, L::AllPixels((k & 0x001F) << 11));
        return (green & 0x07E0) + (red & 0xF800) + blue;
    }
};

struct Gouraud { // the colour between the three colours, or the texel times it
    static constexpr std::uint32_t kNeeds = kColors;
    static constexpr std::int32_t kSpanStart = 0x8000;
    template <class L> OMBREL_INLINE static void Fill(const Corners<L>& c, Quad<L> (&to)[8]) {
        to[kRed] = (c.color & 0xF800) << 8;
        to[kGreen] = (c.color & 0x07E0) << 13;
        to[kBlue] = (c.color & 0x001F) << 19;
    }
    template <class L, int parts, class T>
    OMBREL_INLINE static Pixels<L> Light(const Brush<L>&, T texels, Attributes<L>* at,
                                         const Attributes<L>& by) {
        Words<L> lit[parts];
        lit[0] = Part<L>(TexelsOf<L, 0>(texels), at, by);
        if constexpr (parts == 2) {
            lit[1] = Part<L>(TexelsOf<L, 1>(texels), at, by);
        }
        return L::Join(lit[0], lit[parts - 1]);
    }

private:
    template <class L, int i> OMBREL_INLINE static Blank TexelsOf(Blank blank) { return blank; }
    template <class L, int i> OMBREL_INLINE static Words<L> TexelsOf(Pixels<L> texels) {
        return L::template Widen<i>(texels);
    }
    template <class L>
    OMBREL_INLINE static Words<L> Part(Blank, Attributes<L>* at, const Attributes<L>& by) {
        const auto r = (Words<L>)Take<L>(&at->of[kRed], by.of[kRed]);
        const auto g = (Words<L>)Take<L>(&at->of[kGreen], by.of[kGreen]);
        const auto b = (Words<L>)Take<L>(&at->of[kBlue], by.of[kBlue]);
        return ((g >> 13) & 0xFFE0) + ((r >> 8) & 0xF800) + (b >> 19);
    }
    // texel x intensity / 256, a channel
    template <class L>
    OMBREL_INLINE static Words<L> Part(Words<L> t, Attributes<L>* at, const Attributes<L>& by) {
        const auto r = (Words<L>)Take<L>(&at->of[kRed], by.of[kRed]);
        const auto g = (Words<L>)Take<L>(&at->of[kGreen], by.of[kGreen]);
        const auto b = (Words<L>)Take<L>(&at->of[kBlue], by.of[kBlue]);
        return (((((t >> 5) & 63) * g) >> 19) & 0x1FE0) + ((((t >> 11) * r) >> 13) & 0xF800) +
               (((t & 31) * b) >> 24);
    }
};

// --- writing -------------------------------------------------------------------------------------

struct Set { // replaces the pixel
    static constexpr bool kMixes = false;
    template <class L> OMBREL_INLINE static void Prepare(std::uint32_t, Brush<L>*) {}
    // What of the source comes into the pixel, and the pixel of that.
    template <class L> OMBREL_INLINE static Pixels<L> Scale(const Brush<L>&, Pixels<L> source) {
        return source;
    }
    template <class L>
    OMBREL_INLINE static Pixels<L> Write(const Brush<L>&, Pixels<L> scaled, Pixels<L>) {
        return scaled;
    }
};

// BlendTables[7 - level][pixel] + BlendTables[level][source]; channels are not clamped, but run
// over into the next one.
struct Blend {
    static constexpr bool kMixes = true;
    template <class L> OMBREL_INLINE static void Prepare(std::uint32_t level, Brush<L>* brush) {
        brush->weights = L::WeightsOf(level, kBlendTableStarts);
    }
    template <class L>
    OMBREL_INLINE static Pixels<L> Scale(const Brush<L>& brush, Pixels<L> source) {
        return L::Scale(brush.weights.over, source);
    }
    template <class L>
    OMBREL_INLINE static Pixels<L> Write(const Brush<L>& brush, Pixels<L> scaled, Pixels<L> there) {
        return L::Scale(brush.weights.under, there) + scaled;
    }
};

// --- edges ---------------------------------------------------------------------------------------

struct Open { // right column and bottom row belong to the neighbour
    static constexpr std::int32_t kClosed = 0;
};
struct Closed { // right column and bottom row are drawn, up to the clip rectangle: REQUIRED R2
    static constexpr std::int32_t kClosed = 1;
};

// --- a row of the table --------------------------------------------------------------------------

template <class DepthRule, class TexelRule, class LightRule, class WriteRule, class EdgeRule>
struct Rules {
    using Depth = DepthRule;
    using Texel = TexelRule;
    using Light = LightRule;
    using Write = WriteRule;

    static constexpr std::uint32_t kNeeds =
        1U << kX | Depth::kNeeds | Texel::kNeeds | Light::kNeeds;
    static constexpr bool kHasDepth = Depth::kNeeds != 0;
    static constexpr bool kHasTexels = Texel::kNeeds != 0;
    static constexpr bool kBounds = Texel::kBounds; // texels, to the texture's memory
    static constexpr bool kOneColor = !kHasTexels && Light::kNeeds == 0; // of a whole triangle
    static constexpr std::int32_t kClosed = EdgeRule::kClosed;
    static constexpr bool kAlwaysClips = kClosed != 0;
    static constexpr bool kMayWrap = false; // differences of coordinates

    // What is added to attribute k where a span starts.
    static constexpr std::int32_t SpanStart(int k) {
        return k == kDepth                     ? Depth::kSpanStart
               : (Light::kNeeds >> k & 1) != 0 ? Light::kSpanStart
                                               : 0;
    }
};
// The same for triangles that are not ordinary.
template <class R> struct Careful : R {
    static constexpr bool kBounds = R::kHasTexels;
    static constexpr bool kAlwaysClips = true;
    static constexpr bool kMayWrap = true;
};

} // namespace
} // namespace ombrel
