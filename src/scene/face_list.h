// The face list of one frame: what the scenes fill, the pipeline culls, lights, clips, sorts and
// projects, and the dispatcher draws. Records are copies of mesh faces, 96 words each where
// pointers have 32 bits.
#pragma once

#include <cstdint>

#include "assets/mesh.h"

namespace ombrel {

inline constexpr std::int32_t kMaxRenderFaces = 65536;

struct RenderFace {
    std::uint32_t state;        // FACE_LIVE, FACE_OUTSIDE, FACE_BACK, FACE_LIT
    std::uint32_t flags;        // material flags of the face
    std::uint32_t color;        // low 16 bits: base colour; top byte: its own blend level
    std::uint32_t litColors[3]; // low 16 bits: Pixel16, written by the lighting pass
    TextureSlot texture;
    std::uint32_t extra; // not copied
    float size;
    std::uint32_t pipeline[11];
    Vertex source[3]; // as taken from the mesh
    Vertex work[3];   // moved on by every step: world, camera, projected, pixels
    RenderFace* next; // in order of addition
    RenderFace* previous;
    std::uint32_t spare[2];
};
static_assert(sizeof(void*) != 4 || sizeof(RenderFace) == 96 * 4);

struct FaceList {
    std::uint32_t header[2];
    RenderFace* pointers[kMaxRenderFaces]; // walked by the dispatcher, moved by the sort
    RenderFace records[kMaxRenderFaces];
    std::int32_t count;
};

// A face draws, and the pipeline works on it, only while it is live and not rejected.
constexpr bool IsDrawable(std::uint32_t state) {
    return (state & (FACE_LIVE | FACE_OUTSIDE | FACE_BACK)) == FACE_LIVE;
}

// Empties the list: count 0, pointer i on record i again.
void FaceListClear(FaceList* list);

// Adds one face: record filled from the face, its vertexArray and (textured) texCoordArray, linked
// behind the one before. Returns 1, or 0 when the list is full (then nothing is added).
int FaceListAdd(FaceList* list, const Face* face);

// Adds a copy of a record of the list, linked behind the last one: what a cut leaves over becomes a
// face of its own. Returns the new record, or null when the list is full (then nothing is added).
RenderFace* FaceListAddCopy(FaceList* list, const RenderFace* face);

} // namespace ombrel
