// Asks the dispatcher with fillers that only remember their number.
#include "fillers.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "demo/scene_frame.h"
#include "raster/fillers.h"

namespace inspect {

using namespace ombrel;

namespace {

constinit std::int32_t chosen = -1;

template <std::size_t Id> void Remember(ScreenPolygon*, const FillTarget&) {
    chosen = static_cast<std::int32_t>(Id);
}

template <std::size_t... Ids> void TakePlaces(std::index_sequence<Ids...>) {
    ((activeFillers[Ids] = Remember<Ids>), ...);
}

} // namespace

const char* FillerOf(const Face& face) {
    Filler before[kFillerCount];
    std::copy_n(activeFillers, kFillerCount, before);
    TakePlaces(std::make_index_sequence<kFillerCount>());
    FaceListClear(&sceneFaces);
    RenderFace& record = sceneFaces.records[0];
    record = RenderFace{};
    record.state = FACE_LIVE;
    record.flags = face.flags;
    record.color = face.color;
    record.texture = face.texture;
    sceneFaces.count = 1;
    DrawJob job{};
    job.flags = kSceneJobFlags;
    job.faces = &sceneFaces;
    job.level = -1;
    chosen = -1;
    DrawFaces(&job);
    sceneFaces.count = 0;
    std::copy_n(before, kFillerCount, activeFillers);
    return chosen < 0 ? "none" : kFillerTable[chosen].name;
}

} // namespace inspect
