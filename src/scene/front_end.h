// The way of all faces of a frame from their meshes to the screen, behind one door. Two forms that
// draw the same picture:
//   pass by pass   every face becomes a record, and every step of pipeline.h and light.h goes
//                  over the whole list; the reference
//   fused          mesh by mesh: corners are placed once each, faces out of sight or turned
//                  away are dropped before anything is written, only corners that show are lit
// docs/front-end.md says which part of the one is which part of the other. Callers: the scenes.
#pragma once

#include "base/pixel16.h"
#include "base/vector_path.h"
#include "scene/kernels.h"

namespace ombrel {

// What the frame decides for all faces. The lights are moved (LightsTransform, Copy) when lit.
struct FaceSettings {
    const Camera* camera;
    Light* lights;
    std::int32_t lightCount;
    bool cullBack, lit;
    std::int32_t sortMode; // of SortFaces; -1: none
    ColorPacker pack;      // of lit colours
};

// One frame's work. Plain data of the functions below.
struct FrontEnd {
    FaceList* list;
    FaceSettings settings;
    const FrontEndKernels* kernels; // null: pass by pass
    // The fused form only:
    CameraView view;
    std::int32_t offered; // faces that the list would hold pass by pass
    std::int32_t cuts;    // records that wait for the cut
};

// Used by StartFaces; null, the initial value, means pass by pass. Written at start-up by
// UseFrontEnd, and by tests and benches.
extern const FrontEndKernels* activeFrontEnd;
const FrontEndKernels* FrontEndOf(VectorPath path); // only where ProcessorRuns(path)
void UseFrontEnd(VectorPath path);
void ResetFrontEnd(); // pass by pass

// Empties the list. Camera and lights must stay as they are until FinishFaces. A sorted frame is
// made pass by pass, because faces that do not show take part in the order of those that do; so is
// one with a packer that is neither PackRgb565 nor PackRgb555.
void StartFaces(FrontEnd* front, FaceList* list, const FaceSettings& settings);

// Adds the faces of a mesh where it stands: stored vertices moved by its position. As MeshAddFaces
// does, returns 0 when the mesh is not drawable or the list is full. A mesh has at most
// kMaxMeshVertices vertices and kMaxMeshFaces faces.
int AddMesh(FrontEnd* front, Mesh* mesh);
// The same after MeshResetFrame.
int ResetAndAddMesh(FrontEnd* front, Mesh* mesh);

// Completes the list: afterwards its drawable records are ready for the dispatcher. Fused, the list
// holds only faces that show, in the order of the other form; u and v are valid of textured ones,
// normals of none.
void FinishFaces(FrontEnd* front);

} // namespace ombrel
