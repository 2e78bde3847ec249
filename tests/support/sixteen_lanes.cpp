// The operations of twins_avx512.cpp, a lane at a time.
#include "sixteen_lanes.h"

#if defined(__x86_64__) || defined(__i386__)

namespace ombrel {
namespace {
constexpr int kLanes = 16;
}
} // namespace ombrel

#include "raster/simd/lanes.h"

namespace ombrel {
namespace {

inline Words Min(Words a, Words b) {
    return a < b ? a : b;
}
inline Words Max(Words a, Words b) {
    return a > b ? a : b;
}
inline bool All(Ints mask) {
    std::int32_t all = -1;
    for (int i = 0; i < kLanes; ++i) {
        all &= mask[i];
    }
    return all == -1;
}
inline Pixels Select(Pixels mask, Pixels yes, Pixels no) {
    return (mask & yes) | (~mask & no);
}
template <int parts> inline Pixels LoadPixels(const Pixel16* from) {
    Pixels v = {};
    for (int i = 0; i < kLanes * parts; ++i) {
        v[i] = from[i];
    }
    return v;
}
template <int parts> inline void StorePixels(Pixel16* to, Pixels pixels) {
    for (int i = 0; i < kLanes * parts; ++i) {
        to[i] = pixels[i];
    }
}
template <class Lanes> inline Pixels Narrow(Lanes low, Lanes high) {
    Pixels v = {};
    for (int i = 0; i < kLanes; ++i) {
        v[i] = static_cast<Pixel16>(low[i]);
        v[kLanes + i] = static_cast<Pixel16>(high[i]);
    }
    return v;
}
inline Words WidenLow(Pixels pixels) {
    Words v = {};
    for (int i = 0; i < kLanes; ++i) {
        v[i] = pixels[i];
    }
    return v;
}
inline Words WidenHigh(Pixels pixels) {
    Words v = {};
    for (int i = 0; i < kLanes; ++i) {
        v[i] = pixels[kLanes + i];
    }
    return v;
}
inline Pixels Join(Pixels low, Pixels high) {
    return Narrow(WidenLow(low), WidenLow(high));
}
inline Pixels FetchTexels(const Pixel16* texels, Ints index, std::int32_t count) {
    Pixels v = {};
    for (int i = 0; i < count; ++i) {
        v[i] = texels[index[i]];
    }
    return v;
}
inline Words FetchTexelPairs(const Pixel16* texels, Ints index) {
    Words v = {};
    for (int i = 0; i < kLanes; ++i) {
        v[i] = texels[index[i]] | static_cast<std::uint32_t>(texels[index[i] + 1]) << 16;
    }
    return v;
}
inline Pixels HighHalves(Pixels a, Pixels b) {
    Pixels v = {};
    for (int i = 0; i < 2 * kLanes; ++i) {
        v[i] = static_cast<Pixel16>((std::uint32_t{a[i]} * b[i]) >> 16);
    }
    return v;
}
inline Pixels RoundedProducts(Pixels a, Pixels b) {
    Pixels v = {};
    for (int i = 0; i < 2 * kLanes; ++i) {
        const std::int32_t product =
            static_cast<std::int16_t>(a[i]) * static_cast<std::int16_t>(b[i]);
        v[i] = static_cast<Pixel16>((product + 0x4000) >> 15);
    }
    return v;
}
// One half of a lane, with sign.
inline std::int32_t HalfOf(std::uint32_t lane, int high) {
    return static_cast<std::int16_t>(lane >> (16 * high));
}
inline Words SumOfProducts(Words a, Words b) {
    Words v = {};
    for (int i = 0; i < kLanes; ++i) {
        v[i] = static_cast<std::uint32_t>(HalfOf(a[i], 0) * HalfOf(b[i], 0) +
                                          HalfOf(a[i], 1) * HalfOf(b[i], 1));
    }
    return v;
}

inline Octet MakeOctet(Quad low, Quad high) {
    return Octet{low[0], low[1], low[2], low[3], high[0], high[1], high[2], high[3]};
}
template <int k, class Slots> inline Ints Spread(Slots slots) {
    return Ints{} + slots[k];
}

// Toward zero as the processor's conversion: what no 32-bit number can hold gives INT32_MIN.
inline std::int32_t Cut(double value) {
    const bool fits = value > -2147483649.0 && value < 2147483648.0;
    return fits ? static_cast<std::int32_t>(value) : INT32_MIN;
}
template <class Slots> inline Slots ScaleChop(Slots a, double factor) {
    for (std::size_t i = 0; i < sizeof a / 4; ++i) {
        a[i] = Cut(static_cast<double>(a[i]) * factor);
    }
    return a;
}
template <class Vector> inline Vector DivChop(Vector a, Vector b) {
    for (std::size_t i = 0; i < sizeof a / 4; ++i) {
        a[i] = b[i] == 0 ? 0 : Cut(static_cast<double>(a[i]) * ReciprocalOf(b[i]));
    }
    return a;
}
struct IntsPair {
    Ints first, second;
};
inline IntsPair DivChop(Ints a, Ints b, Ints divisor) {
    return {DivChop(a, divisor), DivChop(b, divisor)};
}

} // namespace
} // namespace ombrel

#include "raster/simd/fillers.h"

namespace ombrel {

#define OMBREL_TWIN(name, ...) FillTriangle<FillerId::name>,
const Filler kSixteenLaneFillers[kFillerCount] = {OMBREL_FILLERS(OMBREL_TWIN)};
#undef OMBREL_TWIN

} // namespace ombrel

#else

namespace ombrel {

const Filler kSixteenLaneFillers[kFillerCount] = {}; // not to be called here

} // namespace ombrel

#endif
