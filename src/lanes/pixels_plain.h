// One pixel at a time: the lane set that a reader reads. The rasterizer is written once over a lane
// set; this one says what each operation means, and the others give every lane the bits of it.
//
// A lane is one pixel, 32 bits of each of its attributes. Ints and Words hold one number a lane,
// with and without sign. Pixels hold colours, 5-6-5, of all lanes of a block: kParts vectors. (Here
// bits above the sixteenth are of no meaning.) A Point is up to eight attributes of one point; bit
// k of its mask is set where it has attribute k. A Quad holds a number for each corner of a
// triangle, and a fourth one that is of no meaning.
//
// A mask is 0 or not 0; in a vector 0 or -1, a lane each, so that masks are joined by & and |.
// Arithmetic wraps at 32 bits.
#pragma once

#include <cstdint>
#include <utility>

#include "base/convert.h"
#include "base/single.h"
#include "lanes/inline.h"
#include "lanes/reciprocal.h"
#include "lanes/texels.h"

namespace ombrel {
namespace {

// What the language says of vectors of four, number by number.
template <class T> struct Four {
    T at[4];

    constexpr Four() : at{} {}
    constexpr Four(T all) : at{all, all, all, all} {}
    constexpr Four(T a, T b, T c, T d) : at{a, b, c, d} {}
    constexpr T operator[](int i) const { return at[i]; }

    template <class Operation> OMBREL_INLINE static Four Each(Four a, Four b, Operation of) {
        return {of(a[0], b[0]), of(a[1], b[1]), of(a[2], b[2]), of(a[3], b[3])};
    }
    friend Four operator+(Four a, Four b) {
        return Each(a, b, [](T x, T y) { return x + y; });
    }
    friend Four operator-(Four a, Four b) {
        return Each(a, b, [](T x, T y) { return x - y; });
    }
    friend Four operator&(Four a, Four b) {
        return Each(a, b, [](T x, T y) { return x & y; });
    }
    friend Four operator|(Four a, Four b) {
        return Each(a, b, [](T x, T y) { return x | y; });
    }
    friend Four operator<<(Four a, Four b) {
        return Each(a, b, [](T x, T y) { return x << y; });
    }
    friend Four operator>>(Four a, Four b) {
        return Each(a, b, [](T x, T y) { return x >> y; });
    }
    friend Four operator<(Four a, Four b) {
        return Each(a, b, [](T x, T y) { return x < y ? -1 : 0; });
    }
    friend Four operator>(Four a, Four b) { return b < a; }
    friend Four operator==(Four a, Four b) {
        return Each(a, b, [](T x, T y) { return x == y ? -1 : 0; });
    }
};

// The attributes of the mask, without the gaps.
template <std::uint32_t mask> struct PlainPoint {
    static constexpr int kCount = __builtin_popcount(mask);
    static constexpr bool Has(int k) { return (mask >> k & 1) != 0; }
    static constexpr int PlaceOf(int k) { return __builtin_popcount(mask & ((1U << k) - 1)); }

    std::int32_t at[kCount];

    template <class Operation> OMBREL_INLINE static PlainPoint Each(Operation of) {
        return [&]<int... i>(std::integer_sequence<int, i...>) {
            return PlainPoint{{of(i)...}};
        }
        (std::make_integer_sequence<int, kCount>{});
    }
    friend PlainPoint operator+(const PlainPoint& a, const PlainPoint& b) {
        return Each([&](int i) { return a.at[i] + b.at[i]; });
    }
    friend PlainPoint operator-(const PlainPoint& a, const PlainPoint& b) {
        return Each([&](int i) { return a.at[i] - b.at[i]; });
    }
    friend PlainPoint operator*(const PlainPoint& a, std::int32_t n) {
        return Each([&](int i) { return a.at[i] * n; });
    }
    PlainPoint& operator+=(const PlainPoint& b) { return *this = *this + b; }
};

struct PlainPixels {
    static constexpr int kLanes = 1;
    static constexpr int kParts = 1; // of a whole block

    using Ints = std::int32_t;
    using Words = std::uint32_t;
    using Pixels = std::uint32_t;
    using Quad = Four<std::int32_t>;
    using Floats = Four<Single>;
    template <std::uint32_t mask> using Point = PlainPoint<mask>;

    // --- quads: the set-up of a triangle

    OMBREL_INLINE static Floats LoadFloats(const Single* from) {
        return {from[0], from[1], from[2], from[3]};
    }
    OMBREL_INLINE static Quad LoadQuad(const std::int32_t* from) {
        return {from[0], from[1], from[2], from[3]};
    }
    OMBREL_INLINE static void StoreQuad(std::int32_t (&to)[4], Quad a) {
        Unroll<4>([&](int i) { to[i] = a[i]; });
    }
    // The first two numbers, as singles.
    OMBREL_INLINE static void StorePair(Single* to, Quad a) {
        to[0] = static_cast<Single>(a[0]);
        to[1] = static_cast<Single>(a[1]);
    }
    // Three pairs of neighbours: the first two in one vector, the last one in another.
    OMBREL_INLINE static void LoadPairs(const Single* const (&from)[3], Floats (&to)[2]) {
        to[0] = {from[0][0], from[0][1], from[1][0], from[1][1]};
        to[1] = {from[2][0], from[2][1], 0, 0};
    }
    // Toward zero; INT32_MIN where the result does not fit.
    OMBREL_INLINE static Quad ToIntChop(Floats a) {
        return {ombrel::ToIntChop(a[0]), ombrel::ToIntChop(a[1]), ombrel::ToIntChop(a[2]),
                ombrel::ToIntChop(a[3])};
    }
    OMBREL_INLINE static Quad Min(Quad a, Quad b) {
        return Quad::Each(a, b, [](std::int32_t x, std::int32_t y) { return x < y ? x : y; });
    }
    OMBREL_INLINE static Quad Max(Quad a, Quad b) {
        return Quad::Each(a, b, [](std::int32_t x, std::int32_t y) { return x < y ? y : x; });
    }
    // Toward zero. By 0: 0.
    OMBREL_INLINE static Quad DivChop(Quad a, Quad n) { return Quad::Each(a, n, ombrel::DivChop); }
    // Two numbers of a, then two of b, by their places (b's too are 0 to 3).
    template <int k0, int k1, int k2, int k3> OMBREL_INLINE static Quad Shuffle(Quad a, Quad b) {
        return {a[k0], a[k1], b[k2], b[k3]};
    }
    // Bit i is the sign of number i.
    OMBREL_INLINE static std::uint32_t SignsOf(Quad a) {
        const auto sign = [](std::int32_t x) { return static_cast<std::uint32_t>(x) >> 31; };
        return sign(a[0]) | sign(a[1]) << 1 | sign(a[2]) << 2 | sign(a[3]) << 3;
    }

    // --- points: edges and the ends of spans

    // The three corners from their attributes: number i of by[k] is attribute k of corner i. But
    // attributes 2 and 3 come in pairs: by[2] has both of corners 0 and 1, by[3] those of corner 2.
    template <class P> OMBREL_INLINE static void Transpose(const Quad (&by)[8], P (&corners)[3]) {
        Unroll<8>([&](auto k) {
            if constexpr (P::Has(k)) {
                constexpr bool paired = k == 2 || k == 3;
                corners[0].at[P::PlaceOf(k)] = paired ? by[2][k - 2] : by[k][0];
                corners[1].at[P::PlaceOf(k)] = paired ? by[2][k] : by[k][1];
                corners[2].at[P::PlaceOf(k)] = paired ? by[3][k - 2] : by[k][2];
            }
        });
    }
    // Attribute k, as a number and in every lane.
    template <int k, class P> OMBREL_INLINE static std::int32_t Get(const P& a) {
        return a.at[P::PlaceOf(k)];
    }
    template <int k, class P> OMBREL_INLINE static Ints Spread(const P& a) {
        return a.at[P::PlaceOf(k)];
    }
    template <int k, class P> OMBREL_INLINE static void Set(P* a, std::int32_t n) {
        a->at[P::PlaceOf(k)] = n;
    }
    template <class P> OMBREL_INLINE static P Choose(bool first, const P& a, const P& b) {
        return first ? a : b;
    }
    // Toward zero; by 0: 0.
    template <class P> OMBREL_INLINE static P Divide(const P& a, std::int32_t n) {
        if (static_cast<std::uint32_t>(n) + 1U > 1U) [[likely]] {
            return P::Each([&](int i) { return a.at[i] / n; });
        }
        return P::Each([&](int i) { return ombrel::DivChop(a.at[i], n); });
    }
    // Attributes k and k + 1 of both divided by w, each bits further left, and put back bits again
    // further left: what a span in perspective does at its ends.
    template <int k, int w, class P> OMBREL_INLINE static void ProjectEnds(P* left, P* right) {
        for (P* const end : {left, right}) {
            const std::int32_t over = Get<w>(*end) >> 6;
            std::int32_t* const two = end->at + P::PlaceOf(k);
            two[0] = ombrel::DivChop(two[0] << 6, over) << 16;
            two[1] = ombrel::DivChop(two[1] << 6, over) << 16;
        }
    }

    // --- lanes: a block of pixels

    OMBREL_INLINE static Ints LaneNumbers() { return 0; }
    // By bits that are the same in all lanes.
    OMBREL_INLINE static Ints ShiftLeft(Ints a, std::int32_t bits) { return a << bits; }
    OMBREL_INLINE static Words Min(Words a, Words b) { return a < b ? a : b; }
    OMBREL_INLINE static Words Max(Words a, Words b) { return a < b ? b : a; }
    template <class Mask> OMBREL_INLINE static bool All(Mask mask) { return mask != 0; }
    OMBREL_INLINE static Pixels Select(Pixels mask, Pixels yes, Pixels no) {
        return mask != 0 ? yes : no;
    }
    template <class Lanes, class T> OMBREL_INLINE static Lanes Load(const T* from) {
        return static_cast<Lanes>(*from);
    }
    template <class Lanes, class T> OMBREL_INLINE static void Store(T* to, Lanes a) {
        *to = static_cast<T>(a);
    }
    // Pixels of the frame, of so many parts of a block.
    template <int parts> OMBREL_INLINE static Pixels LoadPixels(const Pixel16* from) {
        return *from;
    }
    template <int parts> OMBREL_INLINE static void StorePixels(Pixel16* to, Pixels a) {
        *to = static_cast<Pixel16>(a);
    }
    // Colours or masks of both parts of a block, from lanes (below 2^16), or from pixels of one
    // part each; and those of part i back in lanes.
    OMBREL_INLINE static Pixels Join(Pixels low, Pixels) { return low; }
    OMBREL_INLINE static Pixels Join(Ints low, Ints) { return static_cast<Pixels>(low); }
    OMBREL_INLINE static Pixels Alone(Pixels only) { return only; } // of a block of one part
    template <int i> OMBREL_INLINE static Words Widen(Pixels a) { return a; }
    OMBREL_INLINE static Pixels AllPixels(std::uint32_t color) { return color; }
    OMBREL_INLINE static Pixels MaskOf(bool yes) { return yes ? 1 : 0; }

    // The texel of each index; only the first count lanes are looked at.
    OMBREL_INLINE static Pixels FetchTexels(const Pixel16* texels, Ints index, std::int32_t) {
        return texels[index];
    }
    // a / n and b / n, toward zero; by 0: 0.
    struct Quotients {
        Ints a, b;
    };
    OMBREL_INLINE static Quotients DivChop(Ints a, Ints b, Ints n) {
        return {ombrel::DivChop(a, n), ombrel::DivChop(b, n)};
    }
    // The high half of each product, without sign.
    OMBREL_INLINE static Pixels HighHalves(Pixels a, Pixels b) { return (a * b) >> 16; }

    // --- colours: each set has its own trick

    // Four neighbours, weighted in 1/65536: bilinear texels. The last column bounds columns and
    // rows alike: REQUIRED R4.
    template <bool bounded>
    OMBREL_INLINE static Words MixTexels(const TexelMemory& memory, Ints u, Ints v) {
        const Ints x[2] = {u >> 16, Lesser((u >> 16) + 1, memory.lastColumn)};
        const Ints y[2] = {v >> 16, Lesser((v >> 16) + 1, memory.lastColumn)};
        const Words fu = static_cast<Words>(u >> 8) & 255, fv = static_cast<Words>(v >> 8) & 255;
        const Words across[2] = {256 - fu, fu}, down[2] = {256 - fv, fv};
        Words red = 0, green = 0, blue = 0;
        Unroll<4>([&](int i) {
            const Ints index = (y[i >> 1] << memory.shift) + x[i & 1];
            const Words texel = memory.texels[bounded ? Bound(index, memory.lastTexel) : index];
            const Words weight = across[i & 1] * down[i >> 1];
            red += weight * (texel >> 11);
            green += weight * ((texel >> 5) & 63);
            blue += weight * (texel & 31);
        });
        return ((red >> 5) & 0xF800) + ((green >> 11) & 0xFFE0) + (blue >> 16);
    }
    // From 0 to last.
    OMBREL_INLINE static Ints Bound(Ints index, std::int32_t last) {
        return Lesser(index > 0 ? index : 0, last);
    }
    // The two blend tables of a level.
    struct Weights {
        const Pixel16* over;  // the table of the source
        const Pixel16* under; // the table of what is there
    };
    OMBREL_INLINE static Weights WeightsOf(std::uint32_t level, const Pixel16* const* tables) {
        return {tables[level], tables[7 - level]};
    }
    // A colour scaled by one of them.
    OMBREL_INLINE static Pixels Scale(const Pixel16* table, Pixels color) {
        return table[color & 0xFFFF];
    }
    // The mean of four colours, each channel cut down. Red and blue stay in the low half of a word,
    // green goes to the high half, so that sums of four do not run into each other.
    //    bits 31..22 0 | 26..21 green | 20..16 0 | 15..11 red | 10..5 0 | 4..0 blue
    OMBREL_INLINE static Pixels MeanOf(Pixels a, Pixels b, Pixels c, Pixels d) {
        constexpr Words kApart = 0x07E0F81F;
        const auto apart = [](Words p) { return (p | p << 16) & kApart; };
        const Words mean = ((apart(a) + apart(b) + apart(c) + apart(d)) >> 2) & kApart;
        return mean | mean >> 16;
    }

private:
    OMBREL_INLINE static Ints Lesser(Ints a, Ints b) { return a < b ? a : b; }
};

} // namespace
} // namespace ombrel
