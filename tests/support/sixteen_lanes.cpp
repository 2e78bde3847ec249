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
inline bool Any(Ints mask) {
    std::int32_t any = 0;
    for (int i = 0; i < kLanes; ++i) {
        any |= mask[i];
    }
    return any != 0;
}
inline Words LoadPixels(const Pixel16* from) {
    Words v = {};
    for (int i = 0; i < kLanes; ++i) {
        v[i] = from[i];
    }
    return v;
}
inline void StorePixels(Pixel16* to, Words pixels) {
    for (int i = 0; i < kLanes; ++i) {
        to[i] = static_cast<Pixel16>(pixels[i]);
    }
}
inline Words FetchTexels(const Pixel16* texels, Ints index) {
    Words v = {};
    for (int i = 0; i < kLanes; ++i) {
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
// One half of a lane, with sign.
inline std::int32_t HalfOf(std::uint32_t lane, int high) {
    return static_cast<std::int16_t>(lane >> (16 * high));
}
inline Words HighHalves(Words a, Words b) {
    Words v = {};
    for (int i = 0; i < kLanes; ++i) {
        v[i] = ((a[i] & 0xFFFF) * (b[i] & 0xFFFF)) >> 16 |
               (((a[i] >> 16) * (b[i] >> 16)) & 0xFFFF0000);
    }
    return v;
}
inline Words RoundedProducts(Words a, Words b) {
    Words v = {};
    for (int i = 0; i < kLanes; ++i) {
        for (int high = 0; high < 2; ++high) {
            const std::int32_t product = HalfOf(a[i], high) * HalfOf(b[i], high);
            v[i] |= static_cast<std::uint32_t>(((product + 0x4000) >> 15) & 0xFFFF) << (16 * high);
        }
    }
    return v;
}
inline Words SumOfProducts(Words a, Words b) {
    Words v = {};
    for (int i = 0; i < kLanes; ++i) {
        v[i] = static_cast<std::uint32_t>(HalfOf(a[i], 0) * HalfOf(b[i], 0) +
                                          HalfOf(a[i], 1) * HalfOf(b[i], 1));
    }
    return v;
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
