// Reads an ASCII object file (.cob) into a mesh, with its materials and its texture.
#pragma once

#include <cstdint>

#include "assets/mesh.h"

namespace ombrel {

// loadOptions
inline constexpr std::uint32_t LOAD_NEGATE_X = 0x1;
inline constexpr std::uint32_t LOAD_NEGATE_Y = 0x2;
inline constexpr std::uint32_t LOAD_NEGATE_Z = 0x4;
inline constexpr std::uint32_t LOAD_SWAP_YZ = 0x8;
inline constexpr std::uint32_t LOAD_SWAP_XZ = 0x10;
inline constexpr std::uint32_t LOAD_SWAP_XY = 0x20;
inline constexpr std::uint32_t LOAD_REVERSE_CORNERS = 0x40;
inline constexpr std::uint32_t LOAD_MIRROR_U = 0x80;
inline constexpr std::uint32_t LOAD_MIRROR_V = 0x100;
inline constexpr std::uint32_t LOAD_OBJECT_FRAME = 0x200;
inline constexpr std::uint32_t LOAD_TRANSFORM = 0x400;
inline constexpr std::uint32_t LOAD_SWAP_UV = 0x800;

struct LoadRequest {
    const float* scale;    // three factors, or null for none
    const Vec3* position;  // or null for (0, 0, 0, 1)
    const Vec3* reserved;  // not used
    std::uint32_t options; // LOAD_...
    std::int32_t mipMode;  // 1: mip chain; 0: none; other: faces marked mip-mapped, no chain
};

// 1 on success; 0 when the file cannot be opened, ends early, or does not hold what it must. What
// was filled and allocated so far stays in the mesh; materialBase is then unchanged.
int loadObject(Mesh* mesh, const char* path, const LoadRequest& request);

} // namespace ombrel
