// Moving objects: their vertex arrays are multiplied and shifted every frame, then their faces are
// added to the face list.
#pragma once

#include "scene/face_list.h"

namespace ombrel {

enum class TransformMode : std::int32_t {
    InPlace = 0,            // the stored vertices
    TransformedInPlace = 1, // the transformed vertices
    IntoTransformed = 2,    // the stored vertices into the transformed ones
};
// useCurrent: curVertices / curTransformed over slotCount instead. A normal turns with its position
// where the vertex has one (VERTEX_HAS_NORMAL). Other modes: nothing.
struct MeshTransformOptions {
    TransformMode mode;
    std::int32_t withAxes;
    std::int32_t useCurrent;
};
void MeshTransform(Mesh* mesh, const Matrix4* matrix, const MeshTransformOptions& options);
// Rotates the stored vertices (degrees, X then Y then Z) and the axes: repeated calls accumulate.
void MeshRotate(Mesh* mesh, Single ax, Single ay, Single az, std::int32_t useCurrent);
// IntoTransformed: vertices + position into transformed; any other: transformed += position.
void MeshTranslate(Mesh* mesh, TransformMode mode, std::int32_t useCurrent);
// Whether a frame draws the mesh at all: there, to be drawn, and not left out as out of sight.
bool IsMeshDrawable(const Mesh& mesh);
// fromVertices: read positions from vertices, else from transformed. 0: not drawable, or list full.
int MeshAddFaces(FaceList* list, Mesh* mesh, std::int32_t fromVertices);
void MeshResetFrame(Mesh* mesh);

} // namespace ombrel
