#include "base/hash.h"

namespace ombrel {

namespace {
constexpr std::uint64_t kPrime = 0x00000100000001b3ULL;

std::uint64_t AddByte(std::uint64_t hash, std::uint32_t byte) {
    return (hash ^ byte) * kPrime;
}
} // namespace

std::uint64_t HashBytes(std::uint64_t hash, const void* data, std::size_t size) {
    const auto* bytes = static_cast<const unsigned char*>(data);
    for (std::size_t i = 0; i < size; ++i) {
        hash = AddByte(hash, bytes[i]);
    }
    return hash;
}

std::uint64_t HashPicture(const std::uint16_t* pixels, std::int32_t pitch, std::int32_t width,
                          std::int32_t height) {
    std::uint64_t hash = kHashStart;
    for (std::int32_t y = 0; y < height; ++y) {
        const std::uint16_t* row = pixels + static_cast<std::ptrdiff_t>(y) * (pitch >> 1);
        for (std::int32_t x = 0; x < width; ++x) {
            hash = AddByte(hash, row[x] & 0xFFU);
            hash = AddByte(hash, row[x] >> 8U);
        }
    }
    return hash;
}

} // namespace ombrel
