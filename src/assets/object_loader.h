// Reads an ASCII object file (.cob) into a mesh, with its materials and its texture. Start-up calls
// it once for each object, after the floating-point mode has been set: colours and texels are cut.
#pragma once

#include <cstddef>
#include <cstdint>

#include "assets/bmp.h"
#include "assets/mesh.h"
#include "base/single.h"

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
    const Single* scale;               // three factors, or null for none
    const Vec3* position;              // or null for (0, 0, 0, 1)
    std::uint32_t options;             // LOAD_...
    std::int32_t mipMode;              // 1: mip chain; 0: none; other: see below
    DisplayFormat format = kFormat565; // of colours and texels
};
// Another mip mode marks the faces mip-mapped and makes no chain: they must not be drawn.

inline constexpr std::int32_t kMaxTextureSize = 1024; // wider or higher ones count as unreadable
inline constexpr std::size_t kMaxObjectFile = std::size_t{16} << 20; // bytes; larger ones fail

// The image the loader reads textures through. After a load it keeps the headers of the last image
// read, without pixels. Written and read by the loader alone.
extern BmpImage loaderImage;
void ResetObjectLoader(); // as if no image was ever read

// 1 on success; 0 when the file cannot be opened, is too large, ends early, or does not hold what
// it must: counts that are negative or more than the file or the limits allow, a face without three
// corners, an index outside its array, a material number that does not fit the table. What was
// filled and allocated so far stays in the mesh (faceCount counts the faces filled); materialBase
// is then unchanged. The mesh is cleared first, whatever it held: release it before loading again.
int loadObject(Mesh* mesh, const char* path, const LoadRequest& request);

// Frees the texture or mip chain of a mesh, then the mesh as ReleaseMesh does.
int releaseObject(Mesh* mesh);

} // namespace ombrel
