// The passes over the face list, each a loop around its formulas (geometry.h), and the bounding
// sphere of an object. What they promise is in pipeline.h and light.h.
#include "scene/pipeline.h"

#include "scene/cut.h"

namespace ombrel {

namespace {

// Only the faces that were in the list at the start; action may add others.
template <class Action> void ForEachDrawable(FaceList* list, Action action) {
    const std::int32_t count = list->count;
    for (std::int32_t i = 0; i < count; ++i) {
        RenderFace& face = *list->pointers[i];
        if (IsDrawable(face.state)) {
            action(&face);
        }
    }
}

Xyz<Single> PlaceOf(const FaceCorner& v) {
    return {v.x, v.y, v.z};
}

// Moves every working vertex of every drawable face.
template <class Step> void MoveCorners(FaceList* list, Step step) {
    ForEachDrawable(list, [&](RenderFace* face) {
        for (FaceCorner& v : face->work) {
            const Xyz<Single> moved = step(PlaceOf(v));
            v = {moved.x, moved.y, moved.z, v.u, v.v};
        }
    });
}

// The outside bits that a testMask lets through.
std::uint32_t TestedBits(std::uint32_t testMask) {
    return ((testMask & TEST_SIDES) != 0 ? OUTSIDE_RIGHT | OUTSIDE_LEFT : 0) |
           ((testMask & TEST_TOP_BOTTOM) != 0 ? OUTSIDE_TOP | OUTSIDE_BOTTOM : 0) |
           ((testMask & TEST_DEPTH) != 0 ? OUTSIDE_FAR | OUTSIDE_NEAR : 0);
}

std::uint32_t OutsideBitsOf(const FaceCorner& v, const CameraView& view) {
    return static_cast<std::uint32_t>(OutsideBits<PlainFloats>(v, view));
}

// The lit colours of one face.
void LightFace(FaceList* list, RenderFace* face, const LightTable& lights, ColorPacker pack) {
    const auto color = static_cast<std::int32_t>(face->color & 0xFFFF);
    const auto light = [&](const FaceCorner& at, const Xyz<Single>& normal, Single size) {
        const auto sum = LightOf<PlainFloats>(lights, {PlaceOf(at), normal, size}, color);
        return pack(static_cast<std::uint32_t>(sum.r), static_cast<std::uint32_t>(sum.g),
                    static_cast<std::uint32_t>(sum.b)) &
               0xFFFF;
    };
    const auto& v = face->work;
    if ((face->flags & FACE_MATTE) != 0) {
        face->litColors[0] = light(v[0], FlatNormal(v[0], v[1], v[2]), face->size);
        return;
    }
    if ((face->flags & FACE_PLASTIC) == 0) {
        face->litColors[0] = face->color;
        return;
    }
    const CornerNormals& normals = list->NormalsOf(face);
    for (int i = 0; i < 3; ++i) {
        face->litColors[i] = light(v[i], normals.corners[i], 1.0F);
    }
}

} // namespace

CameraView ViewOf(const Camera& camera) {
    CameraView view = {};
    view.matrix = camera.view;
    view.tanHalfFov = camera.tanHalfFov;
    view.aspectTan = camera.aspect * camera.tanHalfFov;
    view.projScale = camera.projScale;
    view.projScaleY = camera.projScaleY;
    view.zNear = camera.zNear;
    view.zFar = camera.zFar;
    view.centerX = camera.screenWidth * 0.5F - 0.5F;
    view.centerY = camera.screenHeight * 0.5F - 0.5F;
    // Solve the mapping to pixels for the edges of the band.
    const Single acrossX = kGuardBand / view.centerX;
    const Single acrossY = kGuardBand / view.centerY;
    view.left = acrossX + 1.0F;
    view.right = acrossX - 1.0F;
    view.top = acrossY + 1.0F;
    view.bottom = acrossY - 1.0F;
    return view;
}

int ObjectCullSphere(Mesh* mesh, const Camera* camera, std::uint32_t testMask) {
    const auto c = ToCamera(mesh->position, camera->view);
    const Single r = mesh->maxRadius != nullptr ? mesh->maxRadius[mesh->currentCopy] : 0.0F;
    // REQUIRED R34: the sides are measured along x and y, not square to the side planes.
    const Single limitX = SideLimit(camera->projScale, c.z, camera->tanHalfFov);
    const Single limitY = SideLimit(camera->projScaleY, c.z, camera->tanHalfFov);
    const auto beyond = [r](Single value, Single low, Single high) {
        return value - r > high || value + r < low;
    };
    const bool outside =
        ((testMask & TEST_DEPTH) != 0 && beyond(c.z, camera->zNear, camera->zFar)) ||
        ((testMask & TEST_SIDES) != 0 && beyond(c.x, -limitX, limitX)) ||
        ((testMask & TEST_TOP_BOTTOM) != 0 && beyond(c.y, -limitY, limitY));
    if (!outside) {
        return 0;
    }
    mesh->state |= MESH_CULLED;
    return 1;
}

void CullBackFaces(FaceList* list, const Camera* camera) {
    ForEachDrawable(list, [&](RenderFace* face) {
        const auto& v = face->work;
        if ((face->flags & FACE_TWO_SIDED) == 0 && FacesAway(v[0], v[1], v[2], camera->position)) {
            face->state |= FACE_BACK;
        }
    });
}

void LightFaces(FaceList* list, const Camera* camera, const LightTable& lights, ColorPacker pack) {
    static_cast<void>(camera);
    ForEachDrawable(list, [&](RenderFace* face) {
        if ((face->state & FACE_LIT) == 0) {
            face->state |= FACE_LIT;
            LightFace(list, face, lights, pack);
        }
    });
}

void TransformPolygonsToCamera(FaceList* list, const Camera* camera) {
    MoveCorners(list, [&](const Xyz<Single>& v) { return ToCamera(v, camera->view); });
}

void ClipPolygons(FaceList* list, const Camera* camera, std::uint32_t testMask) {
    const CameraView view = ViewOf(*camera);
    const std::uint32_t tested = TestedBits(testMask);
    std::int32_t room = kMaxRenderFaces - list->count;
    ForEachDrawable(list, [&](RenderFace* face) {
        const auto& v = face->work;
        if ((OutsideBitsOf(v[0], view) & OutsideBitsOf(v[1], view) & OutsideBitsOf(v[2], view) &
             tested) != 0) {
            face->state |= FACE_OUTSIDE;
        } else if ((IsInGuardBand(v[0], view) & IsInGuardBand(v[1], view) &
                    IsInGuardBand(v[2], view)) == 0) {
            CutFace(list, face, view, &room);
        }
    });
}

void ProjectPolygons(FaceList* list, const Camera* camera) {
    const CameraView view = ViewOf(*camera);
    MoveCorners(list, [&](const Xyz<Single>& v) { return Project(v, view); });
}

void MapPolygonsToScreen(FaceList* list, const Camera* camera) {
    const CameraView view = ViewOf(*camera);
    MoveCorners(list, [&](const Xyz<Single>& v) { return MapToScreen(v, view); });
}

} // namespace ombrel
