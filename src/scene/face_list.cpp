// Filling the face list: one record a face, in order of addition, each linked to its neighbours.
#include "scene/face_list.h"

namespace ombrel {

namespace {

// The next free record, linked behind the last one and counted; null when the list is full.
RenderFace* TakeRecord(FaceList* list) {
    if (list->count >= kMaxRenderFaces) {
        return nullptr;
    }
    RenderFace* record = &list->records[list->count];
    list->pointers[list->count] = record;
    ++list->count;
    return record;
}

void Link(FaceList* list, RenderFace* record) {
    record->next = nullptr;
    record->previous = record == list->records ? nullptr : record - 1;
    if (record->previous != nullptr) {
        record->previous->next = record;
    }
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
    for (int i = 0; i < 3; ++i) {
        record->litColors[i] = face->litColors[i];
        record->source[i] = face->vertexArray[corners[i]];
        if (textured) {
            record->source[i].u = face->texCoordArray[texels[i]].u;
            record->source[i].v = face->texCoordArray[texels[i]].v;
        }
        record->work[i] = record->source[i];
    }
    Link(list, record);
    return 1;
}

RenderFace* FaceListAddCopy(FaceList* list, const RenderFace* face) {
    RenderFace* record = TakeRecord(list);
    if (record == nullptr) {
        return nullptr;
    }
    *record = *face;
    Link(list, record);
    return record;
}

} // namespace ombrel
