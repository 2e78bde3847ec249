// The second drawing, the recording fillers, and whose face is whose.
#include "player/trace.h"

#include <algorithm>
#include <cstring>

#include "base/data_file.h"
#include "demo/fixed_objects.h"
#include "demo/scene_frame.h"
#include "demo/scene_list.h"
#include "demo/world.h"
#include "platform/display.h"
#include "player/show.h"

namespace ombrel {

namespace {

constexpr std::int32_t kFixedCount = sizeof kFixedObjects / sizeof kFixedObjects[0];
// Bits of a face's flags that no part of the production uses: whose it is, from 1.
constexpr int kOwnerShift = 16;

// What the recording fillers work on; they have no argument for it.
struct Recording {
    Trace* trace;
    Filler flat, flatW;               // the fillers that draw the masks
    std::vector<Pixel16> mask;        // 0 between two triangles
    std::vector<std::uint32_t> depth; // of the masks
    std::int32_t next;                // in the list, after the face drawn last
};
Recording recording = {}; // no constinit: not every library has vectors for that

// The pixels a triangle may touch, right and bottom excluded.
Rect BoxOf(const ScreenPolygon& polygon, const Rect& clip) {
    Rect box = {INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN};
    for (const Vertex& corner : polygon.vertices) { // rounded by the filler
        box.left = std::min(box.left, static_cast<std::int32_t>(corner.x));
        box.top = std::min(box.top, static_cast<std::int32_t>(corner.y));
        box.right = std::max(box.right, static_cast<std::int32_t>(corner.x) + 1);
        box.bottom = std::max(box.bottom, static_cast<std::int32_t>(corner.y) + 1);
    }
    return {std::max(box.left, clip.left), std::max(box.top, clip.top),
            std::min(box.right, clip.right), std::min(box.bottom, clip.bottom)};
}

// Draws the triangle into the mask and calls note(pixel) for each pixel, which is cleared again.
template <class Note>
void ForEachPixel(Filler filler, ScreenPolygon polygon, const FillTarget& target, Note note) {
    polygon.litColors[0] = 0xFFFF;
    filler(&polygon, target);
    const Rect box = BoxOf(polygon, target.clip);
    const std::int32_t width = recording.trace->width;
    for (std::int32_t y = box.top; y < box.bottom; ++y) {
        for (std::int32_t x = box.left; x < box.right; ++x) {
            const std::int32_t at = y * width + x;
            Pixel16* const pixel = target.frame + at;
            if (*pixel != 0) {
                *pixel = 0;
                note(static_cast<std::size_t>(at));
            }
        }
    }
}

// The record that the dispatcher has just taken: it goes through the list in order and leaves some
// out.
std::int32_t FindRecord(const ScreenPolygon& polygon) {
    const Vertex& corner = polygon.vertices[0];
    for (std::int32_t i = recording.next; i < sceneFaces.count; ++i) {
        const RenderFace& face = *sceneFaces.pointers[i];
        if (IsDrawable(face.state) && face.work[0].x == corner.x && face.work[0].y == corner.y &&
            face.work[1].x == polygon.vertices[1].x && face.work[2].x == polygon.vertices[2].x) {
            recording.next = i + 1;
            return static_cast<std::int32_t>(&face - sceneFaces.records);
        }
    }
    return 0;
}

void Note(FillerId filler, const ScreenPolygon& polygon, const FillTarget& target) {
    Trace* const trace = recording.trace;
    const auto index = static_cast<std::int32_t>(trace->triangles.size());
    TracedTriangle triangle = {filler, polygon, FindRecord(polygon), 0};
    ForEachPixel(recording.flat, polygon, target, [&](std::size_t at) {
        ++trace->coverings[at];
        ++triangle.pixels;
    });
    ForEachPixel(recording.flatW, polygon, target,
                 [&](std::size_t at) { trace->shown[at] = index; });
    trace->triangles.push_back(triangle);
}
template <FillerId filler> void Record(ScreenPolygon* polygon, const FillTarget& target) {
    Note(filler, *polygon, target);
}
#define OMBREL_RECORDER(name, ...) Record<FillerId::name>,
constexpr Filler kRecorders[kFillerCount] = {OMBREL_FILLERS(OMBREL_RECORDER)};
#undef OMBREL_RECORDER

Mesh* OwnerOf(std::int32_t owner) {
    if (owner < kFixedCount) {
        return &(world.*kFixedObjects[owner].mesh);
    }
    const std::int32_t number = owner - kFixedCount + kFirstSceneObject + 1;
    return number <= world.objectCounter ? &world.objects[number] : nullptr;
}

// Writes owners into the flags of all faces, or takes them out again.
void MarkFaces(bool mark) {
    for (std::int32_t owner = 0; OwnerOf(owner) != nullptr; ++owner) {
        Mesh* const mesh = OwnerOf(owner);
        const std::uint32_t bits = mark ? static_cast<std::uint32_t>(owner + 1) << kOwnerShift : 0;
        for (std::int32_t i = 0; i < mesh->faceCount; ++i) {
            std::uint32_t& flags = mesh->faces[i].flags;
            flags = (flags & ((1U << kOwnerShift) - 1)) | bits;
        }
    }
}

void ReadOwners(Trace* trace) {
    trace->owners.clear();
    for (std::int32_t i = 0; i < sceneFaces.count; ++i) {
        const std::uint32_t owner = sceneFaces.records[i].flags >> kOwnerShift;
        trace->owners.push_back(static_cast<std::int32_t>(owner) - 1);
    }
}

// The list as the dispatcher draws it, whatever view the scene has chosen.
void DrawRecorded(Trace* trace) {
    const auto pixels =
        static_cast<std::size_t>(trace->width) * static_cast<std::size_t>(trace->height);
    recording.mask.assign(pixels, 0);
    recording.depth.assign(pixels, 0);
    recording.trace = trace;
    recording.next = 0;
    Filler kept[kFillerCount];
    std::copy_n(activeFillers, kFillerCount, kept);
    recording.flat = kept[static_cast<int>(FillerId::FillFlat)];
    recording.flatW = kept[static_cast<int>(FillerId::FillFlatW)];
    std::copy_n(kRecorders, kFillerCount, activeFillers);
    DrawJob job{};
    job.flags = kSceneJobFlags;
    job.faces = &sceneFaces;
    job.frame = recording.mask.data();
    job.framePitch = trace->width * 2;
    job.depth = recording.depth.data();
    job.depthPitch = trace->width * 4;
    job.level = -1; // each face's own
    job.clip = {0, 0, trace->width, trace->height};
    DrawFaces(&job);
    std::copy_n(kept, kFillerCount, activeFillers);
    trace->depth = std::move(recording.depth);
    recording = {};
}

void AfterDrawing(void* user) {
    auto* const trace = static_cast<Trace*>(user);
    trace->faces = sceneFaces.count;
    ReadOwners(trace);
    MarkFaces(false);
    DrawRecorded(trace);
}

std::string FileNameOf(const char* path) {
    const char* const slash = std::strrchr(path, '/');
    return slash != nullptr ? slash + 1 : path;
}

} // namespace

bool TraceFrame(Trace* trace) {
    trace->width = display.width;
    trace->height = display.height;
    const auto pixels =
        static_cast<std::size_t>(trace->width) * static_cast<std::size_t>(trace->height);
    trace->triangles.clear();
    trace->shown.assign(pixels, -1);
    trace->coverings.assign(pixels, 0);
    const Redraw redraw = {[](void*) { MarkFaces(true); }, AfterDrawing, trace};
    return RedrawShown(redraw);
}

std::vector<std::string> TraceNames() {
    std::vector<std::string> names;
    for (const FixedObject& object : kFixedObjects) {
        names.push_back(FileNameOf(object.path));
    }
    // The list once more, by its own reader: what was loaded has a name.
    const std::string text = ReadDataFile("./data/scene1.po", kMaxListFile);
    SceneListText rest = {text.data(), text.data() + text.size()};
    SceneLine line{};
    while (ReadSceneLine(&rest, &line) >= 0) {
        if (NamesObject(line)) {
            names.push_back(FileNameOf(line.path));
        }
    }
    return names;
}

const Mesh* TracedMesh(std::int32_t owner) {
    return owner >= 0 ? OwnerOf(owner) : nullptr;
}

} // namespace ombrel
