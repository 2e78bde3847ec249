// The object model: meshes, vertices, faces, materials. The object loader fills them once; the
// scene pipeline moves, lights and orders the faces every frame.
#pragma once

#include <cstdint>

#include "assets/texture.h"
#include "math/vec3.h"

namespace ombrel {

// Mesh::state
inline constexpr std::uint32_t MESH_LIVE = 0x1;
inline constexpr std::uint32_t MESH_DRAWABLE = 0x2;
inline constexpr std::uint32_t MESH_CULLED = 0x4;
// Mesh::flags
inline constexpr std::uint32_t MESH_LOADED = 0x1;
inline constexpr std::uint32_t MESH_TEXTURED = 0x4;
inline constexpr std::uint32_t MESH_MIPMAPPED = 0x8;
// Vertex::vflags
inline constexpr std::uint32_t VERTEX_LOADED = 0x1;
inline constexpr std::uint32_t VERTEX_HAS_NORMAL = 0x2;
inline constexpr std::uint32_t VERTEX_TEXTURED = 0x4;
// Face::active and RenderFace::state
inline constexpr std::uint32_t FACE_LIVE = 0x1;
inline constexpr std::uint32_t FACE_OUTSIDE = 0x2; // rejected by the view-volume test
inline constexpr std::uint32_t FACE_BACK = 0x4;    // rejected by the back-face test
inline constexpr std::uint32_t FACE_LIT = 0x8;     // visited by the lighting pass
// Face::flags (the dispatcher reads the same bits by its own names, in draw_job.h)
inline constexpr std::uint32_t FACE_TWO_SIDED = 0x1;
inline constexpr std::uint32_t FACE_TRANSPARENT = 0x2;
inline constexpr std::uint32_t FACE_FLATCOLOR16 = 0x8;
inline constexpr std::uint32_t FACE_CONSTANT = 0x20;
inline constexpr std::uint32_t FACE_MATTE = 0x40;
inline constexpr std::uint32_t FACE_PLASTIC = 0x80;
inline constexpr std::uint32_t FACE_PHONG = 0x100;
inline constexpr std::uint32_t FACE_TEXTURED = 0x200;
inline constexpr std::uint32_t FACE_MIPMAPPED = 0x400;
inline constexpr std::uint32_t FACE_LOADED = 0x1000;

struct Vertex {
    Single x, y, z, w;
    Single nx, ny, nz;
    Single nw;           // zero after load
    Single u, v;         // texels; filled when a textured face is added to a face list
    std::uint32_t extra; // for the pipeline's use
    std::uint32_t vflags;
};

struct TexCoord {
    Single u, v; // texels of the full-size texture
};

struct Face {
    std::uint32_t active;
    std::uint32_t flags;
    std::uint32_t color; // low 16 bits: Pixel16; top byte: transparency level 0..7
    std::uint32_t litColors[3];
    TextureSlot texture;
    Vertex* vertexArray;     // what v0..v2 index: the mesh's vertices, or its transformed ones
    TexCoord* texCoordArray; // what t0..t2 index
    std::int32_t v0, v1, v2;
    std::int32_t t0, t1, t2;
    Single size; // length of (v1 - v0) x (v2 - v0): twice the area
};

struct Mesh {
    std::uint32_t state;
    std::uint32_t flags;
    Single* avgRadius; // copyCount entries: mean distance of the vertices from the object's origin
    Single* maxRadius; // copyCount entries: largest such distance; null means radius 0
    Vec3 position;
    Vec3 axes[3]; // direction vectors that turn with the object; zero after load
    std::int32_t vertexCount;
    std::int32_t copyCount;
    std::int32_t slotCount; // vertexCount * copyCount: length of each vertex array
    std::int32_t currentCopy;
    Vertex* vertices;
    Vertex* transformed;
    Vertex* curVertices;
    Vertex* curTransformed;
    TexCoord* texCoords;
    TextureSlot texture;
    std::int32_t faceCount;
    Face* faces;
};

// Its MAT_ flags are the shading of the file; those of draw_job.h, which name the bits of a face as
// the dispatcher reads them, are others.
struct Material {
    static constexpr std::uint32_t MAT_FILTER = 0x2;
    static constexpr std::uint32_t MAT_CONSTANT = 0x20;
    static constexpr std::uint32_t MAT_MATTE = 0x40;
    static constexpr std::uint32_t MAT_PLASTIC = 0x80;
    static constexpr std::uint32_t MAT_PHONG = 0x100;
    static constexpr std::uint32_t MAT_TEXTURED = 0x200;

    std::uint32_t flags;
    std::uint8_t color[4]; // level, blue, green, red
    Single ka, kd, ks, exponent;
    std::uint8_t ambient[4], diffuse[4], specular[4];
    char textureName[208];
};

inline constexpr std::int32_t kMaxMaterials = 255;
inline constexpr std::int32_t kMaxMeshVertices = 8192; // more fail the load
inline constexpr std::int32_t kMaxMeshFaces = 16384;   // likewise
// Written by the object loader; read by it alone. materialBase counts the records in use.
extern Material materials[kMaxMaterials];
extern std::int32_t materialBase;
void ResetMaterials();

// Allocates and zeroes the five arrays: vertices and transformed (n * copies), texCoords (3 *
// faceCapacity), the radii (copies), faces (faceCapacity); points the current arrays at them and
// sets the counts (faceCount = faceCapacity). With releaseFirst the mesh is released before.
// Returns 1, or 0 when an allocation fails or a count is negative (what was allocated stays).
int AllocateMeshArrays(Mesh* mesh, std::int32_t vertexCount, std::int32_t faceCapacity,
                       std::int32_t copyCount, bool releaseFirst);
int ReleaseMesh(Mesh* mesh); // frees the arrays (not the texture), clears the record; 1
// Fills avgRadius and maxRadius of the current copy; returns the maximum. Without vertices: NaN and
// 0.
Single ComputeMeshRadius(Mesh* mesh);
int ComputeFaceSizes(Mesh* mesh); // 1; 0 for null
// From the plastic faces and up to kMaxMeshVertices vertices only. 1; 0 for null.
int SmoothVertexNormals(Mesh* mesh);

} // namespace ombrel
