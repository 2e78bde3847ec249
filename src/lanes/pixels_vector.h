// What all lane sets of vectors have in common, in the words of the compilers' vector extension.
// The operations are those of pixels_plain.h, which says what they mean; an instruction set adds
// the ones that the extension has no word for (porting.md lists them), and replaces what it has a
// better one for.
//
// A block is two vectors of 32-bit lanes; its colours are 16 bits wide and fill one vector, of
// which a block of one part uses the lower half. A point is one vector of four attributes, or of
// eight where it has a colour.
//
//     attribute   0  1  2  3 | 4  5  6  7
#pragma once

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "base/single.h"
#include "lanes/inline.h"
#include "lanes/reciprocal.h"
#include "lanes/texels.h"

namespace ombrel {
namespace {

// The blend tables as multiplications: channel * factor / 32768, to nearest, is the entry. (It is
// never near a half: channel * k / 7 is 1/14 from one, what the factors are off by at most 1/512.)
constexpr std::uint32_t kBlendFactors[8] = {0, 4681, 9362, 14043, 18725, 23406, 28087, 32767};

using Quads [[gnu::vector_size(16)]] = std::int32_t;

// Eight attributes where a vector holds four numbers.
struct QuadPair {
    Quads low, high;

    friend QuadPair operator+(QuadPair a, QuadPair b) { return {a.low + b.low, a.high + b.high}; }
    friend QuadPair operator-(QuadPair a, QuadPair b) { return {a.low - b.low, a.high - b.high}; }
    friend QuadPair operator*(QuadPair a, std::int32_t n) { return {a.low * n, a.high * n}; }
    QuadPair& operator+=(QuadPair b) { return *this = *this + b; }
};

template <int lanes> struct VectorTypes;
template <> struct VectorTypes<4> {
    using Ints [[gnu::vector_size(16)]] = std::int32_t;
    using Words [[gnu::vector_size(16)]] = std::uint32_t;
    using Pixels [[gnu::vector_size(16)]] = std::uint16_t;
    using Floats [[gnu::vector_size(16)]] = float;
    using Doubles [[gnu::vector_size(16)]] = double;
};
template <> struct VectorTypes<8> {
    using Ints [[gnu::vector_size(32)]] = std::int32_t;
    using Words [[gnu::vector_size(32)]] = std::uint32_t;
    using Pixels [[gnu::vector_size(32)]] = std::uint16_t;
    using Doubles [[gnu::vector_size(32)]] = double;
};
template <> struct VectorTypes<16> {
    using Ints [[gnu::vector_size(64)]] = std::int32_t;
    using Words [[gnu::vector_size(64)]] = std::uint32_t;
    using Pixels [[gnu::vector_size(64)]] = std::uint16_t;
    using Doubles [[gnu::vector_size(64)]] = double;
};

template <class L, int lanes> struct VectorPixels {
    static constexpr int kLanes = lanes;
    static constexpr int kParts = 2;

    using Ints = typename VectorTypes<lanes>::Ints;
    using Words = typename VectorTypes<lanes>::Words;
    using Pixels = typename VectorTypes<lanes>::Pixels;
    using Quad = VectorTypes<4>::Ints;
    using Octet = std::conditional_t<lanes == 4, QuadPair, VectorTypes<8>::Ints>;
    using Floats = VectorTypes<4>::Floats;
    template <std::uint32_t mask> using Point = std::conditional_t<(mask >> 4) != 0, Octet, Quad>;

    template <class Vector, class T> OMBREL_INLINE static Vector Load(const T* from) {
        Vector v;
        std::memcpy(&v, from, sizeof v);
        return v;
    }
    template <class Vector, class T> OMBREL_INLINE static void Store(T* to, Vector v) {
        std::memcpy(to, &v, sizeof v);
    }

    // --- quads

    OMBREL_INLINE static Floats LoadFloats(const Single* from) { return Load<Floats>(from); }
    OMBREL_INLINE static Quad LoadQuad(const std::int32_t* from) { return Load<Quad>(from); }
    OMBREL_INLINE static void StoreQuad(std::int32_t (&to)[4], Quad a) { Store(to, a); }
    OMBREL_INLINE static void StorePair(Single* to, Quad a) {
        const Floats all = __builtin_convertvector(a, Floats);
        std::memcpy(to, &all, 2 * sizeof *to);
    }
    OMBREL_INLINE static void LoadPairs(const Single* const (&from)[3], Floats (&to)[2]) {
        using One = float; // the same where there are lanes of the processor's own
        const Floats a = {One(from[0][0]), One(from[0][1]), 0, 0},
                     b = {One(from[1][0]), One(from[1][1]), 0, 0};
        to[0] = __builtin_shufflevector(a, b, 0, 1, 4, 5);
        to[1] = Floats{One(from[2][0]), One(from[2][1]), 0, 0};
    }
    template <int k0, int k1, int k2, int k3> OMBREL_INLINE static Quad Shuffle(Quad a, Quad b) {
        return __builtin_shufflevector(a, b, k0, k1, k2 + 4, k3 + 4);
    }

    // --- points

    OMBREL_INLINE static void Transpose(const Quad (&by)[8], Quad (&corners)[3]) {
        const Quad low = __builtin_shufflevector(by[0], by[1], 0, 4, 1, 5);
        const Quad high = __builtin_shufflevector(by[0], by[1], 2, 6, 3, 7);
        corners[0] = __builtin_shufflevector(low, by[2], 0, 1, 4, 5);
        corners[1] = __builtin_shufflevector(low, by[2], 2, 3, 6, 7);
        corners[2] = __builtin_shufflevector(high, by[3], 0, 1, 4, 5);
    }
    OMBREL_INLINE static void Transpose(const Quad (&by)[8], Octet (&corners)[3]) {
        Quad low[3], high[3];
        Transpose(by, low);
        const Quad ab = __builtin_shufflevector(by[4], by[5], 0, 4, 1, 5);
        const Quad ab2 = __builtin_shufflevector(by[4], by[5], 2, 6, 3, 7);
        const Quad cd = __builtin_shufflevector(by[6], by[7], 0, 4, 1, 5);
        const Quad cd2 = __builtin_shufflevector(by[6], by[7], 2, 6, 3, 7);
        high[0] = __builtin_shufflevector(ab, cd, 0, 1, 4, 5);
        high[1] = __builtin_shufflevector(ab, cd, 2, 3, 6, 7);
        high[2] = __builtin_shufflevector(ab2, cd2, 0, 1, 4, 5);
        Unroll<3>([&](int i) { corners[i] = L::JoinQuads(low[i], high[i]); });
    }
    template <int k, class P> OMBREL_INLINE static std::int32_t Get(P a) { return a[k]; }
    template <int k> OMBREL_INLINE static std::int32_t Get(QuadPair a) {
        return k < 4 ? a.low[k % 4] : a.high[k % 4];
    }
    template <int k, class P> OMBREL_INLINE static void Set(P* a, std::int32_t n) { (*a)[k] = n; }
    template <int k> OMBREL_INLINE static void Set(QuadPair* a, std::int32_t n) {
        (k < 4 ? a->low : a->high)[k % 4] = n;
    }
    // In a form of which two with a and b exchanged have most in common.
    template <class P> OMBREL_INLINE static P Choose(bool first, P a, P b) {
        return b ^ ((a ^ b) & (P{} - static_cast<std::int32_t>(first)));
    }
    OMBREL_INLINE static QuadPair Choose(bool first, QuadPair a, QuadPair b) {
        return {Choose(first, a.low, b.low), Choose(first, a.high, b.high)};
    }
    OMBREL_INLINE static QuadPair JoinQuads(Quad low, Quad high) { return {low, high}; }
    template <class P> OMBREL_INLINE static P Divide(P a, std::int32_t n) {
        return L::ScaleChop(a, ReciprocalOfLength(n));
    }
    template <int k, int w> OMBREL_INLINE static void ProjectEnds(Quad* left, Quad* right) {
        static_assert(k == 2);
        const Quad over = __builtin_shufflevector(*left, *right, 2, 3, 6, 7);
        const Quad by = __builtin_shufflevector(*left, *right, w, w, w + 4, w + 4);
        const Quad two = L::DivChop(over << 6, by >> 6) << 16;
        *left = __builtin_shufflevector(*left, two, 0, 1, 4, 5);
        *right = __builtin_shufflevector(*right, two, 0, 1, 6, 7);
    }

    // --- quotients

    // Numbers as doubles, which hold them exactly: the lower half of the lanes and the higher one.
    struct Doubles {
        typename VectorTypes<lanes>::Doubles low, high;
    };
    OMBREL_INLINE static Doubles ReciprocalsOf(const Doubles& a) {
        return {kTraceAboveOne / a.low, kTraceAboveOne / a.high};
    }
    OMBREL_INLINE static Ints ScaleChop(Ints a, double factor) {
        const auto all = typename VectorTypes<lanes>::Doubles{} + factor;
        return L::ChopProduct(L::ToDoubles(a), {all, all});
    }
    OMBREL_INLINE static QuadPair ScaleChop(QuadPair a, double factor) {
        return {ScaleChop(a.low, factor), ScaleChop(a.high, factor)};
    }
    OMBREL_INLINE static Ints DivChop(Ints a, Ints n) {
        return L::ChopProduct(L::ToDoubles(a), ReciprocalsOf(L::ToDoubles(n))) & (n != 0);
    }
    struct Quotients {
        Ints a, b;
    };
    OMBREL_INLINE static Quotients DivChop(Ints a, Ints b, Ints n) {
        const auto reciprocals = ReciprocalsOf(L::ToDoubles(n));
        const Ints defined = n != 0;
        return {L::ChopProduct(L::ToDoubles(a), reciprocals) & defined,
                L::ChopProduct(L::ToDoubles(b), reciprocals) & defined};
    }

    // --- lanes

    OMBREL_INLINE static Ints LaneNumbers() {
        Ints v;
        for (int i = 0; i < lanes; ++i) {
            v[i] = i;
        }
        return v;
    }
    OMBREL_INLINE static Ints ShiftLeft(Ints a, std::int32_t bits) { return a << bits; }
    OMBREL_INLINE static Pixels AllPixels(std::uint32_t color) {
        return Pixels{} + static_cast<std::uint16_t>(color);
    }
    OMBREL_INLINE static Pixels Alone(Pixels only) { return only; }
    OMBREL_INLINE static Pixels Alone(Words only) { return L::Join(only, only); }

    // --- colours

    // Between the left and the right texels of two rows, then between the rows: the same sum of
    // four products. The last column has no right neighbour: its pair is taken one further left,
    // and all weight goes to the right one. Never out of bounds.
    template <bool>
    OMBREL_INLINE static Words MixTexels(const TexelMemory& memory, Ints u, Ints v) {
        const Ints last = Ints{} + memory.lastColumn;
        const Ints x0 = u >> 16, y0 = v >> 16;
        const Ints isLast = x0 == last;
        const Ints y1 = y0 < last ? y0 + 1 : last;
        const Words fu = (Words)(u >> 8) & 255, fv = (Words)(v >> 8) & 255;
        const Words across = isLast ? Words{} + (256U << 16) : (256 - fu) | fu << 16;
        const Words down = (256 - fv) | fv << 16;
        const Ints row0 = L::ShiftLeft(y0, memory.shift), row1 = L::ShiftLeft(y1, memory.shift);
        const Words upper = L::FetchTexelPairs(memory.texels, row0 + x0 + isLast);
        const Words lower = L::FetchTexelPairs(memory.texels, row1 + x0 + isLast);
        const Words red = Mix(ShiftHalves(upper, 11), ShiftHalves(lower, 11), across, down);
        const Words green = Mix(ShiftHalves(upper, 5) & 0x003F003F,
                                ShiftHalves(lower, 5) & 0x003F003F, across, down);
        const Words blue = Mix(upper & 0x001F001F, lower & 0x001F001F, across, down);
        return ((red >> 5) & 0xF800) + ((green >> 11) & 0xFFE0) + (blue >> 16);
    }
    OMBREL_INLINE static Ints Bound(Ints index, std::int32_t lastTexel) {
        const Ints least = index > 0 ? index : 0, last = Ints{} + lastTexel;
        return least < last ? least : last;
    }
    struct Weights {
        std::uint32_t over, under; // 1/32768
    };
    OMBREL_INLINE static Weights WeightsOf(std::uint32_t level, const Pixel16* const*) {
        return {kBlendFactors[level], kBlendFactors[7 - level]};
    }
    OMBREL_INLINE static Pixels Scale(std::uint32_t weight, Pixels color) {
        const Pixels by = AllPixels(weight);
        const Pixels red = L::RoundedProducts(color >> 11, by);
        const Pixels green = L::RoundedProducts((color >> 5) & 63, by);
        const Pixels blue = L::RoundedProducts(color & 31, by);
        return (red << 11) + (green << 5) + blue;
    }
    // low: the two lowest bits of each channel, of which four add up inside the channel. The
    // others, averaged twice, are a quarter of their sum exactly: the two bits that go lost are
    // zero.
    OMBREL_INLINE static Pixels MeanOf(Pixels a, Pixels b, Pixels c, Pixels d) {
        constexpr std::uint16_t kLow = 0x1863, kHigh = 0xFFFF ^ kLow;
        const Pixels high =
            L::Average(L::Average(a & kHigh, b & kHigh), L::Average(c & kHigh, d & kHigh));
        const Pixels low = (a & kLow) + (b & kLow) + (c & kLow) + (d & kLow);
        return high + ((low >> 2) & kLow);
    }

private:
    // Both halves of each lane.
    OMBREL_INLINE static Words ShiftHalves(Words a, int bits) { return (Words)((Pixels)a >> bits); }
    OMBREL_INLINE static Words Mix(Words upper, Words lower, Words across, Words down) {
        const Words rows = L::SumOfProducts(upper, across) | L::SumOfProducts(lower, across) << 16;
        return L::SumOfProducts(rows, down);
    }
};

} // namespace
} // namespace ombrel
