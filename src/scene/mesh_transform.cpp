// Objects on the move: the vertex arrays of a mesh multiplied, turned and shifted, and its faces
// handed to the face list. Called by start-up, the scenes and the front end,
// object by object.
#include "scene/mesh_transform.h"

#include <cstring>

#include "lanes/rows.h"
#include "scene/vertex_parts.h"

namespace ombrel {

namespace {

struct VertexArrays {
    Vertex* original;
    Vertex* transformed;
    std::int32_t count;
};

VertexArrays ChooseArrays(const Mesh& mesh, std::int32_t useCurrent) {
    if (useCurrent != 0) {
        return {mesh.curVertices, mesh.curTransformed, mesh.slotCount};
    }
    return {mesh.vertices, mesh.transformed, mesh.vertexCount};
}

// A vector times a matrix, written to four numbers: column by column, or all at a time.
struct ByColumns {
    const Matrix4* matrix;
    void operator()(const Vec3& v, Single* to) const {
        Vec3 result;
        Vec3TransformMatrix4(&v, matrix, &result);
        std::memcpy(static_cast<void*>(to), &result, sizeof result);
    }
};
struct ByRows {
    Row rows[4];
    void operator()(const Vec3& v, Single* to) const { StoreRow(TimesRows(v, rows), to); }
};

// from and to may be the same array.
template <class Times>
void TransformVertices(const Vertex* from, Vertex* to, std::int32_t count, const Times& times) {
    for (std::int32_t i = 0; i < count; ++i) {
        times(PositionOf(from[i]), &to[i].x);
        if ((from[i].vflags & VERTEX_HAS_NORMAL) != 0) {
            times(NormalOf(from[i]), &to[i].nx);
        }
    }
}

} // namespace

void MeshTransform(Mesh* mesh, const Matrix4* matrix, const MeshTransformOptions& options) {
    const VertexArrays arrays = ChooseArrays(*mesh, options.useCurrent);
    const TransformMode mode = options.mode;
    if (mode < TransformMode::InPlace || mode > TransformMode::IntoTransformed) {
        return;
    }
    const Vertex* const from =
        mode == TransformMode::TransformedInPlace ? arrays.transformed : arrays.original;
    Vertex* const to = mode == TransformMode::InPlace ? arrays.original : arrays.transformed;
    if (RowsFollowMode()) {
        const auto& m = matrix->m;
        TransformVertices(from, to, arrays.count,
                          ByRows{{LoadRow(m[0]), LoadRow(m[1]), LoadRow(m[2]), LoadRow(m[3])}});
    } else {
        TransformVertices(from, to, arrays.count, ByColumns{matrix});
    }
    if (options.withAxes != 0) {
        for (Vec3& axis : mesh->axes) {
            const Vec3 before = axis;
            Vec3TransformMatrix4(&before, matrix, &axis);
        }
    }
}

void MeshRotate(Mesh* mesh, Single ax, Single ay, Single az, std::int32_t useCurrent) {
    // REQUIRED R38: off the whole degrees each turn shrinks the object a little.
    Matrix4 rotation;
    Matrix4RotationXYZ(ax, ay, az, &rotation);
    MeshTransform(mesh, &rotation, {TransformMode::InPlace, 1, useCurrent});
}

void MeshTranslate(Mesh* mesh, TransformMode mode, std::int32_t useCurrent) {
    const VertexArrays arrays = ChooseArrays(*mesh, useCurrent);
    const bool inPlace = mode != TransformMode::IntoTransformed;
    for (std::int32_t i = 0; i < arrays.count; ++i) {
        Vertex& to = arrays.transformed[i];
        const Vertex& from = inPlace ? to : arrays.original[i];
        const auto moved = Sum(from, mesh->position);
        SetPosition(&to, {moved.x, moved.y, moved.z, inPlace ? to.w : 1.0F});
        SetNormal(&to, NormalOf(from));
    }
}

bool IsMeshDrawable(const Mesh& mesh) {
    constexpr std::uint32_t kMask = MESH_LIVE | MESH_DRAWABLE | MESH_CULLED;
    return (mesh.state & kMask) == (MESH_LIVE | MESH_DRAWABLE);
}

int MeshAddFaces(FaceList* list, Mesh* mesh, std::int32_t fromVertices) {
    if (!IsMeshDrawable(*mesh)) {
        return 0;
    }
    Vertex* const vertices = fromVertices != 0 ? mesh->vertices : mesh->transformed;
    for (std::int32_t i = 0; i < mesh->faceCount; ++i) {
        Face& face = mesh->faces[i];
        if (!IsDrawable(face.active)) {
            continue;
        }
        face.vertexArray = vertices;
        if (FaceListAdd(list, &face) == 0) {
            return 0;
        }
    }
    return 1;
}

void MeshResetFrame(Mesh* mesh) {
    mesh->state &= ~MESH_CULLED;
    for (std::int32_t i = 0; i < mesh->faceCount; ++i) {
        Face& face = mesh->faces[i];
        if ((face.active & FACE_LIVE) != 0) {
            face.active &= ~(FACE_OUTSIDE | FACE_BACK | FACE_LIT);
        }
    }
}

} // namespace ombrel
