// From the world to pixels, corner by corner: camera space, perspective division, frame.
#include "scene/pipeline.h"
#include "scene/vertex_parts.h"

namespace ombrel {

void TransformPolygonsToCamera(FaceList* list, const Camera* camera) {
    for (std::int32_t i = 0; i < list->count; ++i) {
        RenderFace& face = *list->pointers[i];
        if (!IsDrawable(face.state)) {
            continue;
        }
        for (Vertex& v : face.work) {
            const Vec3 world = PositionOf(v);
            Vec3 seen;
            Vec3TransformMatrix4(&world, &camera->view, &seen);
            SetPosition(&v, seen);
        }
    }
}

void ProjectPolygons(FaceList* list, const Camera* camera) {
    const float t = camera->tanHalfFov;
    const float at = camera->aspect * t;
    for (std::int32_t i = 0; i < list->count; ++i) {
        RenderFace& face = *list->pointers[i];
        if (!IsDrawable(face.state)) {
            continue;
        }
        for (Vertex& v : face.work) {
            const float perDepth = 1.0F / v.z;
            // REQUIRED R37: times the tangent.
            v.x = v.x * t * perDepth;
            v.y = at * v.y * perDepth;
        }
    }
}

void MapPolygonsToScreen(FaceList* list, const Camera* camera) {
    const float cx = camera->screenWidth * 0.5F - 0.5F;
    const float cy = camera->screenHeight * 0.5F - 0.5F;
    for (std::int32_t i = 0; i < list->count; ++i) {
        RenderFace& face = *list->pointers[i];
        if (!IsDrawable(face.state)) {
            continue;
        }
        for (Vertex& v : face.work) {
            v.x = (v.x + 1.0F) * cx;
            v.y = cy - cy * v.y;
        }
    }
}

} // namespace ombrel
