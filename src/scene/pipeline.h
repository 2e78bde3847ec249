// Visibility, clipping, projection and order: the steps that bring a face list to the screen.
// All of them pass over a face that is not live or was rejected before: its vertices stay as they
// are.
#pragma once

#include "scene/camera.h"
#include "scene/face_list.h"

namespace ombrel {

// Bits of a testMask.
inline constexpr std::uint32_t TEST_SIDES = 1; // left and right
inline constexpr std::uint32_t TEST_TOP_BOTTOM = 2;
inline constexpr std::uint32_t TEST_DEPTH = 4; // near and far
inline constexpr std::uint32_t kTestAllSides = TEST_SIDES | TEST_TOP_BOTTOM | TEST_DEPTH;

// 1 and MESH_CULLED when the bounding sphere lies outside the view volume, else 0.
// Centre: the mesh's position; radius: maxRadius of its current copy.
int ObjectCullSphere(Mesh* mesh, const Camera* camera, std::uint32_t testMask);
// World space. FACE_BACK on faces that show their back or their edge, unless they are two-sided.
void CullBackFaces(FaceList* list, const Camera* camera);
// World space to camera space.
void TransformPolygonsToCamera(FaceList* list, const Camera* camera);
// Camera space. FACE_OUTSIDE on faces whose corners all lie beyond one limit of the tested sides.
// Whatever the mask, faces are then cut at zNear, and at the guard band: afterwards every drawable
// face has z >= zNear, and no corner of it will be mapped outside +-kGuardBand (geometry.h)
// pixels but for rounding. A cut face keeps its first triangle; the others are added to the end of
// the list, and are dropped without notice when it is full. Texture coordinates, normals and
// (gouraud) lit colours are cut alike. Faces that are cut and have a coordinate that is no finite
// number below 1e9 in size are rejected.
void ClipPolygons(FaceList* list, const Camera* camera, std::uint32_t testMask);
// Camera space to the square -1..1; z stays. A z of 0 is the caller's mistake (infinite results).
void ProjectPolygons(FaceList* list, const Camera* camera);
// The square to pixels: -1 is column 0, +1 the last column; +1 is row 0, -1 the last row.
void MapPolygonsToScreen(FaceList* list, const Camera* camera);

// 0 average depth, 1 nearest, 2 farthest corner, farthest face first; other: the list stays as it
// is. Faces of equal depth end in no particular order, but in the same one on every system.
void SortFaces(FaceList* list, std::int32_t sortMode);
// Of two elements of FaceList::pointers: -1 when the first lies deeper, +1 when the second, else 0.
int CompareFaceAverageDepth(const void* a, const void* b);
int CompareFaceNearestDepth(const void* a, const void* b);
int CompareFaceFarthestDepth(const void* a, const void* b);

} // namespace ombrel
