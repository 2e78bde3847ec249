// The face list of one frame: what the scenes fill, the pipeline culls, lights, clips, sorts and
// projects, and the dispatcher draws.
#pragma once

#include <cstdint>

#include "assets/mesh.h"

namespace ombrel {

inline constexpr std::int32_t kMaxRenderFaces = 65536;

// A working vertex, moved on by every step: world, camera, projected, pixels.
struct FaceCorner {
    Single x, y, z;
    Single u, v; // texels
};

// What a face is drawn from, and no more: it passes through the caches several times a frame.
struct RenderFace {
    std::uint32_t state;        // FACE_LIVE, FACE_OUTSIDE, FACE_BACK, FACE_LIT
    std::uint32_t flags;        // material flags of the face
    std::uint32_t color;        // low 16 bits: base colour; top byte: its own blend level
    std::uint32_t litColors[3]; // low 16 bits: Pixel16, written by the lighting pass
    TextureSlot texture;
    Single size; // twice the area in the mesh
    FaceCorner work[3];
};

// The normals of the working vertices, which only the lighting reads.
struct CornerNormals {
    Xyz<Single> corners[3];
};

struct FaceList {
    RenderFace* pointers[kMaxRenderFaces]; // walked by the dispatcher, moved by the sort
    RenderFace records[kMaxRenderFaces];   // in order of addition
    CornerNormals normals[kMaxRenderFaces];
    std::int32_t count;

    CornerNormals& NormalsOf(const RenderFace* record) { return normals[record - records]; }
};

// A face draws, and the pipeline works on it, only while it is live and not rejected.
constexpr bool IsDrawable(std::uint32_t state) {
    return (state & (FACE_LIVE | FACE_OUTSIDE | FACE_BACK)) == FACE_LIVE;
}

// Empties the list: count 0, pointer i on record i again.
void FaceListClear(FaceList* list);

// Adds one face: record and normals filled from the face, its vertexArray and (textured)
// texCoordArray. Returns 1, or 0 when the list is full (then nothing is added).
int FaceListAdd(FaceList* list, const Face* face);

// Adds a copy of a record of the list: what a cut leaves over becomes a face of its own. Returns
// the new record, or null when the list is full (then nothing is added).
RenderFace* FaceListAddCopy(FaceList* list, const RenderFace* face);

} // namespace ombrel
