// 64-bit FNV-1a, for pictures and states. Method: Fowler, Noll, Vo.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ombrel {

inline constexpr std::uint64_t kHashStart = 0xcbf29ce484222325ULL;

// Continues hash over size bytes.
std::uint64_t HashBytes(std::uint64_t hash, const void* data, std::size_t size);

// Hash of width x height pixels; pitch in bytes. Only the visible pixels count, as little-endian
// bytes, row after row, so that the value is the same on every system.
std::uint64_t HashPicture(const std::uint16_t* pixels, std::int32_t pitch, std::int32_t width,
                          std::int32_t height);

} // namespace ombrel
