// floor(log2 n) for the widths of textures.
#pragma once

#include <array>
#include <cstdint>

namespace ombrel {

// Entry n is floor(log2 n) for 1..1024; entry 0 is 0.
inline constexpr std::int32_t kLog2TableSize = 1025;
constexpr std::array<std::uint8_t, kLog2TableSize> MakeLog2Table() {
    std::array<std::uint8_t, kLog2TableSize> table{};
    for (std::uint32_t n = 2; n < kLog2TableSize; ++n) {
        table[n] = static_cast<std::uint8_t>(table[n >> 1] + 1);
    }
    return table;
}
inline constexpr std::array<std::uint8_t, kLog2TableSize> Log2Table = MakeLog2Table();

} // namespace ombrel
