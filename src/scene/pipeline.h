// Visibility, clipping, projection and order: the steps that bring a face list to the screen.
// testMask bits: 1 left and right, 2 top and bottom, 4 near and far.
#pragma once

#include "scene/camera.h"
#include "scene/face_list.h"

namespace ombrel {

// 1 and MESH_CULLED when the bounding sphere lies outside the view volume, else 0.
int ObjectCullSphere(Mesh* mesh, const Camera* camera, std::uint32_t testMask);
void CullBackFaces(FaceList* list, const Camera* camera);
void TransformPolygonsToCamera(FaceList* list, const Camera* camera);
void ClipPolygons(FaceList* list, const Camera* camera, std::uint32_t testMask);
void ProjectPolygons(FaceList* list, const Camera* camera);
void MapPolygonsToScreen(FaceList* list, const Camera* camera);

// 0 average depth, 1 nearest, 2 farthest corner, farthest face first; other: order of addition.
void SortFaces(FaceList* list, std::int32_t sortMode);
int CompareFaceAverageDepth(const void* a, const void* b); // of two RenderFace*
int CompareFaceNearestDepth(const void* a, const void* b);
int CompareFaceFarthestDepth(const void* a, const void* b);

} // namespace ombrel
