// The operations of lanes/pixels_avx512.h, a lane at a time.
#include "sixteen_lanes.h"

#if defined(__x86_64__) || defined(__i386__)

#include "lanes/pixels_vector.h"
#include "raster/family.h"

namespace ombrel {
namespace {

struct SixteenPixels : VectorPixels<SixteenPixels, 16> {
    static Words Min(Words a, Words b) { return a < b ? a : b; }
    static Words Max(Words a, Words b) { return a > b ? a : b; }
    static bool All(Ints mask) {
        std::int32_t all = -1;
        for (int i = 0; i < kLanes; ++i) {
            all &= mask[i];
        }
        return all == -1;
    }
    static Pixels Select(Pixels mask, Pixels yes, Pixels no) { return (mask & yes) | (~mask & no); }
    template <int parts> static Pixels LoadPixels(const Pixel16* from) {
        Pixels v = {};
        for (int i = 0; i < kLanes * parts; ++i) {
            v[i] = from[i];
        }
        return v;
    }
    template <int parts> static void StorePixels(Pixel16* to, Pixels pixels) {
        for (int i = 0; i < kLanes * parts; ++i) {
            to[i] = pixels[i];
        }
    }
    template <class Lanes> static Pixels Join(Lanes low, Lanes high) {
        Pixels v = {};
        for (int i = 0; i < kLanes; ++i) {
            v[i] = static_cast<Pixel16>(low[i]);
            v[kLanes + i] = static_cast<Pixel16>(high[i]);
        }
        return v;
    }
    template <int part> static Words Widen(Pixels pixels) {
        Words v = {};
        for (int i = 0; i < kLanes; ++i) {
            v[i] = pixels[part * kLanes + i];
        }
        return v;
    }
    static Pixels Join(Pixels low, Pixels high) { return Join(Widen<0>(low), Widen<0>(high)); }
    static Pixels FetchTexels(const Pixel16* texels, Ints index, std::int32_t count) {
        Pixels v = {};
        for (int i = 0; i < count; ++i) {
            v[i] = texels[index[i]];
        }
        return v;
    }
    static Words FetchTexelPairs(const Pixel16* texels, Ints index) {
        Words v = {};
        for (int i = 0; i < kLanes; ++i) {
            v[i] = texels[index[i]] | static_cast<std::uint32_t>(texels[index[i] + 1]) << 16;
        }
        return v;
    }
    static Pixels HighHalves(Pixels a, Pixels b) {
        Pixels v = {};
        for (int i = 0; i < 2 * kLanes; ++i) {
            v[i] = static_cast<Pixel16>((std::uint32_t{a[i]} * b[i]) >> 16);
        }
        return v;
    }
    static Pixels RoundedProducts(Pixels a, Pixels b) {
        Pixels v = {};
        for (int i = 0; i < 2 * kLanes; ++i) {
            const std::int32_t product =
                static_cast<std::int16_t>(a[i]) * static_cast<std::int16_t>(b[i]);
            v[i] = static_cast<Pixel16>((product + 0x4000) >> 15);
        }
        return v;
    }
    // One half of a lane, with sign.
    static std::int32_t HalfOf(std::uint32_t lane, int high) {
        return static_cast<std::int16_t>(lane >> (16 * high));
    }
    static Words SumOfProducts(Words a, Words b) {
        Words v = {};
        for (int i = 0; i < kLanes; ++i) {
            v[i] = static_cast<std::uint32_t>(HalfOf(a[i], 0) * HalfOf(b[i], 0) +
                                              HalfOf(a[i], 1) * HalfOf(b[i], 1));
        }
        return v;
    }

    static Octet JoinQuads(Quad low, Quad high) {
        return Octet{low[0], low[1], low[2], low[3], high[0], high[1], high[2], high[3]};
    }
    template <int k, class Slots> static Ints Spread(Slots slots) { return Ints{} + slots[k]; }

    // Toward zero as the processor's conversion: what no 32-bit number can hold gives INT32_MIN.
    static std::int32_t Cut(double value) {
        const bool fits = value > -2147483649.0 && value < 2147483648.0;
        return fits ? static_cast<std::int32_t>(value) : INT32_MIN;
    }
    static std::int32_t Quotient(std::int32_t a, std::int32_t n) {
        return n == 0 ? 0 : Cut(static_cast<double>(a) * ReciprocalOf(n));
    }
    template <class Slots> static Slots ScaleChop(Slots a, double factor) {
        for (std::size_t i = 0; i < sizeof a / 4; ++i) {
            a[i] = Cut(static_cast<double>(a[i]) * factor);
        }
        return a;
    }
    static Quad DivChop(Quad a, Quad n) {
        for (int i = 0; i < 4; ++i) {
            a[i] = Quotient(a[i], n[i]);
        }
        return a;
    }
    static Quotients DivChop(Ints a, Ints b, Ints n) {
        for (int i = 0; i < kLanes; ++i) {
            a[i] = Quotient(a[i], n[i]);
            b[i] = Quotient(b[i], n[i]);
        }
        return {a, b};
    }
    static Quad ToIntChop(Floats a) { return Quad{Cut(a[0]), Cut(a[1]), Cut(a[2]), Cut(a[3])}; }
    static Quad Min(Quad a, Quad b) { return a < b ? a : b; }
    static Quad Max(Quad a, Quad b) { return a > b ? a : b; }
    static std::uint32_t SignsOf(Quad a) {
        return (a[0] < 0 ? 1U : 0U) | (a[1] < 0 ? 2U : 0U) | (a[2] < 0 ? 4U : 0U) |
               (a[3] < 0 ? 8U : 0U);
    }
    static Pixels Average(Pixels a, Pixels b) {
        for (int i = 0; i < 2 * kLanes; ++i) {
            a[i] = static_cast<Pixel16>((a[i] + b[i] + 1) >> 1);
        }
        return a;
    }
};

} // namespace

const RasterPath kSixteenLanePath = kPathOf<SixteenPixels>;

} // namespace ombrel

#else

namespace ombrel {

const RasterPath kSixteenLanePath = {}; // not to be called here

} // namespace ombrel

#endif
