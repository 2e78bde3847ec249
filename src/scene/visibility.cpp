// What is seen at all: the bounding sphere of an object, and the side that a face shows.
#include "scene/pipeline.h"
#include "scene/vertex_parts.h"
#include "scene/view_volume.h"

namespace ombrel {

int ObjectCullSphere(Mesh* mesh, const Camera* camera, std::uint32_t testMask) {
    Vec3 c;
    const Vec3 center = {mesh->position.x, mesh->position.y, mesh->position.z, 1.0F};
    Vec3TransformMatrix4(&center, &camera->view, &c);
    const float r = mesh->maxRadius != nullptr ? mesh->maxRadius[mesh->currentCopy] : 0.0F;

    // Test far and near, then the sides, then top and bottom. REQUIRED R34: the sides are measured
    // along x and y, not square to the side planes.
    bool outside = false;
    if ((testMask & TEST_DEPTH) != 0) {
        outside = c.z - r > camera->zFar || c.z + r < camera->zNear;
    }
    if (!outside && (testMask & TEST_SIDES) != 0) {
        const float limit = SideLimit(camera->projScale, c.z, *camera);
        outside = c.x - r > limit || c.x + r < -limit;
    }
    if (!outside && (testMask & TEST_TOP_BOTTOM) != 0) {
        const float limit = SideLimit(camera->projScaleY, c.z, *camera);
        outside = c.y - r > limit || c.y + r < -limit;
    }
    if (!outside) {
        return 0;
    }
    mesh->state |= MESH_CULLED;
    return 1;
}

void CullBackFaces(FaceList* list, const Camera* camera) {
    for (std::int32_t i = 0; i < list->count; ++i) {
        RenderFace& face = *list->pointers[i];
        if (!IsDrawable(face.state) || (face.flags & FACE_TWO_SIDED) != 0) {
            continue;
        }
        const Vec3 p0 = PositionOf(face.work[0]);
        const Vec3 p1 = PositionOf(face.work[1]);
        const Vec3 p2 = PositionOf(face.work[2]);
        Vec3 a;
        Vec3 b;
        Vec3 normal;
        Vec3 toEye;
        Vec3Sub(&p0, &p1, &a);
        Vec3Sub(&p0, &p2, &b);
        Vec3Cross(&a, &b, &normal);
        Vec3Sub(&p0, &camera->position, &toEye);
        if (Vec3Dot(&normal, &toEye) <= 0.0F) {
            face.state |= FACE_BACK;
        }
    }
}

} // namespace ombrel
