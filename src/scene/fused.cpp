// The fused form of the front end. It takes a mesh at a time:
//
//   vertices --place--> placed --choose--> shown faces --gather--> points --light--> colours
//                                                  \---------------write----------------/--> list
//
// and keeps everything between in the scratch memory below, small enough for the caches.
#include "scene/fused.h"

#include <algorithm>

#include "scene/cut.h"
#include "scene/facing.h"
#include "scene/mesh_transform.h"

namespace ombrel {

namespace {

constexpr std::uint32_t kFrameBits = FACE_OUTSIDE | FACE_BACK | FACE_LIT;
constexpr std::int32_t kNoPoint = -1;

// A face that shows, and which points its lit colours come from.
struct ShownFace {
    std::int32_t face;
    std::int32_t points[3];
};

// Between the steps of one mesh; cuts: of one frame. Of no meaning from one mesh to the next.
struct Scratch {
    PlacedVertex placed[kMaxMeshVertices + 8];
    ShownFace shown[kMaxMeshFaces];
    LitPoints points;
    std::int32_t cuts[kMaxRenderFaces]; // records to be cut
};
constinit Scratch scratch = {};

// A mesh on its way through the steps.
struct MeshWork {
    FrontEnd* front;
    Mesh* mesh;
    std::int32_t shown;  // in scratch.shown
    std::int32_t points; // in scratch.points
};

// --- choosing the faces that show ----------------------------------------------------------------

bool ShowsBack(const PlacedVertex& a, const PlacedVertex& b, const PlacedVertex& c,
               const Vec3& eye) {
    if constexpr (kSinglesAreSlow) {
        const Side seen = SideSeen(a, b, c, eye);
        if (seen != Side::Unsure) [[likely]] {
            return seen == Side::Back;
        }
    }
    return FacesAway(a, b, c, eye);
}

// Counts every face that the list would hold; false when there is one that it would not.
bool ChooseFaces(MeshWork* work, bool reset) {
    FrontEnd* const front = work->front;
    const Vec3 eye = front->settings.camera->position;
    const bool cullBack = front->settings.cullBack;
    const std::int32_t room = kMaxRenderFaces - front->offered;
    std::int32_t offered = 0;
    std::int32_t shown = 0;
    bool fits = true;
    for (std::int32_t i = 0; i < work->mesh->faceCount; ++i) {
        Face& face = work->mesh->faces[i];
        if (reset && (face.active & FACE_LIVE) != 0 && (face.active & kFrameBits) != 0) {
            face.active &= ~kFrameBits;
        }
        if (!IsDrawable(face.active)) {
            continue;
        }
        if (offered == room) {
            fits = false;
            break;
        }
        ++offered;
        const PlacedVertex& a = scratch.placed[face.v0];
        const PlacedVertex& b = scratch.placed[face.v1];
        const PlacedVertex& c = scratch.placed[face.v2];
        if ((a.outside & b.outside & c.outside & ~OUTSIDE_BAND) != 0) {
            continue;
        }
        const bool tested = cullBack && (face.flags & FACE_TWO_SIDED) == 0;
        scratch.shown[shown].face = i;
        shown += tested && ShowsBack(a, b, c, eye) ? 0 : 1;
    }
    front->offered += offered;
    work->shown = shown;
    return fits;
}

// --- lighting ------------------------------------------------------------------------------------

std::int32_t AddPoint(MeshWork* work, const PlacedVertex& at, const Xyz<Single>& normal,
                      Single size, std::uint32_t color) {
    LitPoints& points = scratch.points;
    const std::int32_t i = work->points++;
    points.x[i] = at.x;
    points.y[i] = at.y;
    points.z[i] = at.z;
    points.nx[i] = normal.x;
    points.ny[i] = normal.y;
    points.nz[i] = normal.z;
    points.size[i] = size;
    points.base[i] = color;
    return i;
}

// Faces around a corner share its colour, as long as their own is the same.
std::int32_t CornerPoint(MeshWork* work, std::int32_t vertex, std::uint32_t color) {
    PlacedVertex& placed = scratch.placed[vertex];
    if (placed.point == kNoPoint || scratch.points.base[placed.point] != color) {
        const Vertex& v = work->mesh->vertices[vertex];
        placed.point = AddPoint(work, placed, {v.nx, v.ny, v.nz}, 1.0F, color);
    }
    return placed.point;
}

bool IsLit(const FrontEnd& front, const Face& face) {
    return front.settings.lit && (face.active & FACE_LIT) == 0;
}

void GatherPoints(MeshWork* work) {
    for (std::int32_t i = 0; i < work->shown; ++i) {
        ShownFace& shown = scratch.shown[i];
        const Face& face = work->mesh->faces[shown.face];
        if (!IsLit(*work->front, face)) {
            continue;
        }
        const std::uint32_t color = face.color & 0xFFFF;
        if ((face.flags & FACE_MATTE) != 0) {
            const PlacedVertex& first = scratch.placed[face.v0];
            shown.points[0] = AddPoint(
                work, first, FlatNormal(first, scratch.placed[face.v1], scratch.placed[face.v2]),
                face.size, color);
        } else if ((face.flags & FACE_PLASTIC) != 0) {
            shown.points[0] = CornerPoint(work, face.v0, color);
            shown.points[1] = CornerPoint(work, face.v1, color);
            shown.points[2] = CornerPoint(work, face.v2, color);
        }
    }
}

// --- writing the records -------------------------------------------------------------------------

void WriteColors(const FrontEnd& front, const Face& face, const ShownFace& shown,
                 RenderFace* record) {
    record->state = face.active;
    for (int i = 0; i < 3; ++i) {
        record->litColors[i] = face.litColors[i];
    }
    if (!IsLit(front, face)) {
        return;
    }
    record->state |= FACE_LIT;
    if ((face.flags & (FACE_MATTE | FACE_PLASTIC)) == 0) {
        record->litColors[0] = face.color;
        return;
    }
    const int count = (face.flags & FACE_MATTE) != 0 ? 1 : 3;
    for (int i = 0; i < count; ++i) {
        record->litColors[i] = scratch.points.lit[shown.points[i]];
    }
}

// Corners as they are before ClipPolygons; FinishFused cuts them.
void WriteForCut(FrontEnd* front, const Mesh& mesh, const Face& face, RenderFace* record) {
    const std::int32_t vertices[3] = {face.v0, face.v1, face.v2};
    for (int i = 0; i < 3; ++i) {
        const auto seen = ToCamera(scratch.placed[vertices[i]], front->view.matrix);
        const Vertex& v = mesh.vertices[vertices[i]];
        record->work[i] = {seen.x, seen.y, seen.z, v.u, v.v};
        front->list->NormalsOf(record).corners[i] = {v.nx, v.ny, v.nz};
    }
    scratch.cuts[front->cuts++] = static_cast<std::int32_t>(record - front->list->records);
}

void WriteCorners(const Face& face, RenderFace* record) {
    const std::int32_t vertices[3] = {face.v0, face.v1, face.v2};
    for (int i = 0; i < 3; ++i) {
        const PlacedVertex& placed = scratch.placed[vertices[i]];
        record->work[i].x = placed.screenX;
        record->work[i].y = placed.screenY;
        record->work[i].z = placed.depth;
    }
}

void WriteTexels(const Face& face, RenderFace* record) {
    const std::int32_t texels[3] = {face.t0, face.t1, face.t2};
    for (int i = 0; i < 3; ++i) {
        record->work[i].u = face.texCoordArray[texels[i]].u;
        record->work[i].v = face.texCoordArray[texels[i]].v;
    }
}

void WriteRecords(const MeshWork& work) {
    FaceList* const list = work.front->list;
    for (std::int32_t i = 0; i < work.shown; ++i) {
        const ShownFace& shown = scratch.shown[i];
        const Face& face = work.mesh->faces[shown.face];
        RenderFace* const record = &list->records[list->count];
        list->pointers[list->count] = record;
        ++list->count;
        record->flags = face.flags;
        record->color = face.color;
        record->texture = face.texture;
        record->size = face.size;
        WriteColors(*work.front, face, shown, record);
        const std::uint32_t outside = scratch.placed[face.v0].outside |
                                      scratch.placed[face.v1].outside |
                                      scratch.placed[face.v2].outside;
        if ((outside & OUTSIDE_BAND) != 0) {
            WriteForCut(work.front, *work.mesh, face, record);
        } else {
            WriteCorners(face, record);
        }
        if ((face.flags & FACE_TEXTURED) != 0) {
            WriteTexels(face, record);
        }
    }
}

// --- one mesh, one frame -------------------------------------------------------------------------

// What the passes do to a face after the cut.
void ProjectFace(const CameraView& view, RenderFace* face) {
    for (FaceCorner& v : face->work) {
        const auto screen = MapToScreen(Project(Xyz<Single>{v.x, v.y, v.z}, view), view);
        v.x = screen.x;
        v.y = screen.y;
    }
}

} // namespace

void StartFused(FrontEnd* front) {
    front->list->count = 0;
    front->view = ViewOf(*front->settings.camera);
    front->offered = 0;
    front->cuts = 0;
}

int AddFused(FrontEnd* front, Mesh* mesh, bool reset) {
    if (reset) {
        mesh->state &= ~MESH_CULLED;
    }
    if (front->kernels->placeVertices == nullptr) {
        return 1;
    }
    const bool known = mesh->vertexCount <= kMaxMeshVertices && mesh->faceCount <= kMaxMeshFaces;
    if (!IsMeshDrawable(*mesh) || !known) {
        if (reset) {
            MeshResetFrame(mesh);
        }
        return 0;
    }
    front->kernels->placeVertices(mesh->vertices, mesh->vertexCount, mesh->position, front->view,
                                  scratch.placed);
    MeshWork work = {front, mesh, 0, 0};
    const bool fits = ChooseFaces(&work, reset);
    if (!fits && reset) {
        MeshResetFrame(mesh);
    }
    GatherPoints(&work);
    const FaceSettings& set = front->settings;
    front->kernels->lightPoints(&scratch.points, work.points, {set.lights, set.lightCount},
                                set.pack == PackRgb555);
    WriteRecords(work);
    return fits ? 1 : 0;
}

void FinishFused(FrontEnd* front) {
    // What is left over of a cut goes to the end of the list, as long as that would not be full.
    FaceList* const list = front->list;
    std::int32_t room = kMaxRenderFaces - front->offered;
    for (std::int32_t i = 0; i < front->cuts; ++i) {
        RenderFace* const face = &list->records[scratch.cuts[i]];
        const std::int32_t whole = list->count;
        CutFace(list, face, front->view, &room);
        if (IsDrawable(face->state)) {
            ProjectFace(front->view, face);
        }
        for (std::int32_t added = whole; added < list->count; ++added) {
            ProjectFace(front->view, &list->records[added]);
        }
    }
}

} // namespace ombrel
