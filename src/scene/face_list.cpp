// Filling the face list: one record a face, in order of addition.
#include "scene/face_list.h"

namespace ombrel {

namespace {

// The next free record, counted; null when the list is full.
RenderFace* TakeRecord(FaceList* list) {
    if (list->count >= kMaxRenderFaces) {
        return nullptr;
    }
    RenderFace* record = &list->records[list->count];
    list->pointers[list->count] = record;
    ++list->count;
    return record;
}

} // namespace

void FaceListClear(FaceList* list) {
    list->count = 0;
    for (std::int32_t i = 0; i < kMaxRenderFaces; ++i) {
        list->pointers[i] = &list->records[i];
    }
}

int FaceListAdd(FaceList* list, const Face* face) {
    RenderFace* record = TakeRecord(list);
    if (record == nullptr) {
        return 0;
    }
    record->state = face->active;
    record->flags = face->flags;
    record->color = face->color;
    record->texture = face->texture;
    record->size = face->size;

    const std::int32_t corners[3] = {face->v0, face->v1, face->v2};
    const std::int32_t texels[3] = {face->t0, face->t1, face->t2};
    const bool textured = (face->flags & FACE_TEXTURED) != 0;
    CornerNormals& normals = list->NormalsOf(record);
    for (int i = 0; i < 3; ++i) {
        record->litColors[i] = face->litColors[i];
        const Vertex& v = face->vertexArray[corners[i]];
        const TexCoord texel = textured ? face->texCoordArray[texels[i]] : TexCoord{v.u, v.v};
        record->work[i] = {v.x, v.y, v.z, texel.u, texel.v};
        normals.corners[i] = {v.nx, v.ny, v.nz};
    }
    return 1;
}

RenderFace* FaceListAddCopy(FaceList* list, const RenderFace* face) {
    RenderFace* record = TakeRecord(list);
    if (record != nullptr) {
        *record = *face;
        list->NormalsOf(record) = list->NormalsOf(face);
    }
    return record;
}

} // namespace ombrel
