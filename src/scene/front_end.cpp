// The two forms of the front end. The fused one takes a mesh at a time:
//
//   vertices --place--> placed --choose--> shown faces --gather--> points --light--> colours
//                                                  \---------------write----------------/--> list
//
// and keeps everything between in the scratch memory below, small enough for the caches.
#include "scene/front_end.h"

#include <algorithm>

#include "base/pixel16.h"
#include "scene/mesh_transform.h"
#include "scene/pipeline.h"
#include "scene/vertex_parts.h"

namespace ombrel {

namespace {

constexpr std::int32_t kLightsCopy = 3; // mode of LightsTransform
constexpr std::int32_t kTranslateCopy = 2;
constexpr std::int32_t kFromTransformed = 0;
constexpr std::uint32_t kTestAllSides = 7;
constexpr std::uint32_t kFrameBits = FACE_OUTSIDE | FACE_BACK | FACE_LIT;
constexpr std::uint32_t kOutsideBits =
    OUTSIDE_RIGHT | OUTSIDE_LEFT | OUTSIDE_TOP | OUTSIDE_BOTTOM | OUTSIDE_FAR | OUTSIDE_NEAR;
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
    std::int32_t cuts[kMaxRenderFaces]; // records for the scissors
};
constinit Scratch scratch = {};

// A mesh on its way through the steps.
struct MeshWork {
    FrontEnd* front;
    Mesh* mesh;
    std::int32_t shown;  // in scratch.shown
    std::int32_t points; // in scratch.points
};

Placement MakePlacement(const Camera& camera, const Scissors& s) {
    Placement p = {};
    p.view = camera.view;
    p.projScale = camera.projScale;
    p.projScaleY = camera.projScaleY;
    p.tanHalfFov = camera.tanHalfFov;
    p.zNear = camera.zNear;
    p.zFar = camera.zFar;
    p.scaleX = s.scaleX;
    p.scaleY = s.scaleY;
    p.left = s.left;
    p.right = s.right;
    p.top = s.top;
    p.bottom = s.bottom;
    p.aspectTan = camera.aspect * camera.tanHalfFov;
    p.centerX = camera.screenWidth * 0.5F - 0.5F;
    p.centerY = camera.screenHeight * 0.5F - 0.5F;
    return p;
}

// --- choosing the faces that show ----------------------------------------------------------------

// As CullBackFaces has it.
bool ShowsBack(const PlacedVertex& v0, const PlacedVertex& v1, const PlacedVertex& v2,
               const Vec3& eye) {
    const float ax = v1.x - v0.x;
    const float ay = v1.y - v0.y;
    const float az = v1.z - v0.z;
    const float bx = v2.x - v0.x;
    const float by = v2.y - v0.y;
    const float bz = v2.z - v0.z;
    const float nx = ay * bz - az * by;
    const float ny = az * bx - ax * bz;
    const float nz = ax * by - ay * bx;
    return nx * (eye.x - v0.x) + ny * (eye.y - v0.y) + nz * (eye.z - v0.z) <= 0.0F;
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
        if ((a.outside & b.outside & c.outside & kOutsideBits) != 0) {
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

std::int32_t AddPoint(MeshWork* work, const Vec3& position, const Vec3& normal, float size,
                      std::uint32_t color) {
    LitPoints& points = scratch.points;
    const std::int32_t i = work->points++;
    points.x[i] = position.x;
    points.y[i] = position.y;
    points.z[i] = position.z;
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
        placed.point = AddPoint(work, {placed.x, placed.y, placed.z, 1.0F},
                                NormalOf(work->mesh->vertices[vertex]), 1.0F, color);
    }
    return placed.point;
}

// The first corner, and the face's cross product for a normal.
std::int32_t FlatPoint(MeshWork* work, const Face& face) {
    const PlacedVertex& p0 = scratch.placed[face.v0];
    const PlacedVertex& p1 = scratch.placed[face.v1];
    const PlacedVertex& p2 = scratch.placed[face.v2];
    const Vec3 a = {p1.x - p0.x, p1.y - p0.y, p1.z - p0.z, 1.0F};
    const Vec3 b = {p2.x - p0.x, p2.y - p0.y, p2.z - p0.z, 1.0F};
    Vec3 normal;
    Vec3Cross(&a, &b, &normal);
    return AddPoint(work, {p0.x, p0.y, p0.z, 1.0F}, normal, face.size, face.color & 0xFFFF);
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
        if ((face.flags & FACE_MATTE) != 0) {
            shown.points[0] = FlatPoint(work, face);
        } else if ((face.flags & FACE_PLASTIC) != 0) {
            const std::uint32_t color = face.color & 0xFFFF;
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

// A record as it is before ClipPolygons; FinishFaces takes the scissors to it.
void WriteForScissors(FrontEnd* front, const Mesh& mesh, const Face& face, RenderFace* record) {
    const std::int32_t vertices[3] = {face.v0, face.v1, face.v2};
    for (int i = 0; i < 3; ++i) {
        Vertex& v = record->work[i];
        const PlacedVertex& placed = scratch.placed[vertices[i]];
        const Vec3 world = {placed.x, placed.y, placed.z, 1.0F};
        Vec3 seen;
        Vec3TransformMatrix4(&world, &front->settings.camera->view, &seen);
        v = mesh.transformed[vertices[i]];
        SetPosition(&v, seen);
        SetNormal(&v, NormalOf(mesh.vertices[vertices[i]]));
    }
    scratch.cuts[front->cuts++] = static_cast<std::int32_t>(record - front->list->records);
}

// Asks for the memory of a record that is written soon.
constexpr std::int32_t kRecordsAhead = 3;
void FetchForWriting(const RenderFace* record) {
    __builtin_prefetch(&record->state, 1);
    __builtin_prefetch(&record->work[0], 1);
    __builtin_prefetch(&record->work[1], 1);
    __builtin_prefetch(&record->work[2].v, 1);
}

void WriteRecords(const MeshWork& work) {
    FrontEnd* const front = work.front;
    FaceList* const list = front->list;
    for (std::int32_t i = 0; i < work.shown; ++i) {
        const ShownFace& shown = scratch.shown[i];
        const Face& face = work.mesh->faces[shown.face];
        RenderFace* const record = &list->records[list->count];
        list->pointers[list->count] = record;
        ++list->count;
        FetchForWriting(&list->records[std::min(list->count + kRecordsAhead, kMaxRenderFaces - 1)]);
        record->flags = face.flags;
        record->color = face.color;
        record->texture = face.texture;
        record->size = face.size;
        WriteColors(*front, face, shown, record);

        const PlacedVertex* const corners[3] = {&scratch.placed[face.v0], &scratch.placed[face.v1],
                                                &scratch.placed[face.v2]};
        if (((corners[0]->outside | corners[1]->outside | corners[2]->outside) & OUTSIDE_BAND) !=
            0) {
            WriteForScissors(front, *work.mesh, face, record);
        } else {
            for (int c = 0; c < 3; ++c) {
                record->work[c].x = corners[c]->screenX;
                record->work[c].y = corners[c]->screenY;
                record->work[c].z = corners[c]->depth;
            }
        }
        if ((face.flags & FACE_TEXTURED) != 0) {
            const std::int32_t texels[3] = {face.t0, face.t1, face.t2};
            for (int c = 0; c < 3; ++c) {
                record->work[c].u = face.texCoordArray[texels[c]].u;
                record->work[c].v = face.texCoordArray[texels[c]].v;
            }
        }
    }
}

// --- one mesh, one frame -------------------------------------------------------------------------

int AddFused(FrontEnd* front, Mesh* mesh, bool reset) {
    const bool known = mesh->vertexCount <= kMaxMeshVertices && mesh->faceCount <= kMaxMeshFaces;
    if (!IsMeshDrawable(*mesh) || !known) {
        if (reset) {
            MeshResetFrame(mesh);
        }
        return 0;
    }
    front->placement.shift = mesh->position;
    front->kernels->placeVertices(mesh->vertices, mesh->vertexCount, front->placement,
                                  scratch.placed);
    MeshWork work = {front, mesh, 0, 0};
    const bool fits = ChooseFaces(&work, reset);
    if (!fits && reset) {
        MeshResetFrame(mesh);
    }
    GatherPoints(&work);
    front->kernels->lightPoints(
        &scratch.points, work.points,
        {front->settings.lights, front->settings.lightCount, displayFormat.pack == PackRgb555});
    WriteRecords(work);
    return fits ? 1 : 0;
}

// ProjectPolygons and MapPolygonsToScreen for one record.
void Project(const FrontEnd& front, RenderFace* face) {
    if (!IsDrawable(face->state)) {
        return;
    }
    const Placement& p = front.placement;
    for (Vertex& v : face->work) {
        const float perDepth = 1.0F / v.z;
        v.x = (v.x * p.tanHalfFov * perDepth + 1.0F) * p.centerX;
        v.y = p.centerY - p.centerY * (p.aspectTan * v.y * perDepth);
    }
}

void FinishFused(FrontEnd* front) {
    // Cut; what is left over goes to the end of the list, as long as it would not be full.
    FaceList* const list = front->list;
    const std::int32_t whole = list->count;
    std::int32_t room = kMaxRenderFaces - front->offered;
    for (std::int32_t i = 0; i < front->cuts; ++i) {
        CutFace(list, &list->records[scratch.cuts[i]], front->scissors, &room);
    }
    // Project what the scissors made.
    for (std::int32_t i = 0; i < front->cuts; ++i) {
        Project(*front, &list->records[scratch.cuts[i]]);
    }
    for (std::int32_t i = whole; i < list->count; ++i) {
        Project(*front, &list->records[i]);
    }
}

void FinishPassByPass(FrontEnd* front) {
    FaceList* const list = front->list;
    const FaceSettings& set = front->settings;
    if (set.cullBack) {
        CullBackFaces(list, set.camera);
    }
    if (set.lit) {
        LightsTransform(set.lights, set.lightCount, nullptr, kLightsCopy);
        LightFaces(list, set.camera, set.lights, set.lightCount);
    }
    TransformPolygonsToCamera(list, set.camera);
    ClipPolygons(list, set.camera, kTestAllSides);
    SortFaces(list, set.sortMode);
    ProjectPolygons(list, set.camera);
    MapPolygonsToScreen(list, set.camera);
}

} // namespace

constinit const FrontEndKernels* activeFrontEnd = nullptr;

const FrontEndKernels* FrontEndOf(VectorPath path) {
#ifdef OMBREL_X86_KERNELS
    constexpr const FrontEndKernels* kTable[kVectorPathCount] = {nullptr, &kSse41Kernels,
                                                                 &kAvx2Kernels, &kAvx2Kernels};
    return kTable[static_cast<int>(path)];
#else
    static_cast<void>(path);
    return nullptr;
#endif
}

void UseFrontEnd(VectorPath path) {
    activeFrontEnd = FrontEndOf(path);
}

void ResetFrontEnd() {
    activeFrontEnd = nullptr;
}

void StartFaces(FrontEnd* front, FaceList* list, const FaceSettings& settings) {
    const bool knownPacker = displayFormat.pack == PackRgb555 || displayFormat.pack == PackRgb565;
    front->list = list;
    front->settings = settings;
    front->kernels = settings.sortMode < 0 && knownPacker ? activeFrontEnd : nullptr;
    if (front->kernels == nullptr) {
        FaceListClear(list);
        return;
    }
    if (settings.lit) {
        LightsTransform(settings.lights, settings.lightCount, nullptr, kLightsCopy);
    }
    list->count = 0;
    front->scissors = MakeScissors(*settings.camera);
    front->placement = MakePlacement(*settings.camera, front->scissors);
    front->offered = 0;
    front->cuts = 0;
}

int AddMesh(FrontEnd* front, Mesh* mesh) {
    if (front->kernels != nullptr) {
        return AddFused(front, mesh, false);
    }
    MeshTranslate(mesh, kTranslateCopy, 0);
    return MeshAddFaces(front->list, mesh, kFromTransformed);
}

int ResetAndAddMesh(FrontEnd* front, Mesh* mesh) {
    if (front->kernels != nullptr) {
        mesh->state &= ~MESH_CULLED;
        return AddFused(front, mesh, true);
    }
    MeshResetFrame(mesh);
    return AddMesh(front, mesh);
}

void FinishFaces(FrontEnd* front) {
    if (front->kernels != nullptr) {
        FinishFused(front);
    } else {
        FinishPassByPass(front);
    }
}

} // namespace ombrel
