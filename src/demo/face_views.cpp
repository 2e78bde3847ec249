// Corner dots and wires of a face list, drawn with the 2D primitives.
#include "demo/face_views.h"

#include <initializer_list>

#include "base/convert.h"
#include "demo/primitives.h"

namespace ombrel {

namespace {

Pixel16 ViewColor(const RenderFace& face) {
    return static_cast<Pixel16>(face.litColors[0]);
}

void DrawDot(const Vertex& corner, float dx, float dy, Pixel16 color, const FrameBuffer& frame) {
    PlotPixel(ToIntChop(corner.x + dx), ToIntChop(corner.y + dy), color, frame.pixels, frame.pitch);
}

void DrawEdge(const Vertex& from, const Vertex& to, Pixel16 color, const FrameBuffer& frame) {
    const Line2d line{ToIntChop(from.x), ToIntChop(from.y), ToIntChop(to.x), ToIntChop(to.y)};
    DrawClippedLine(line, color, frame.pixels, frame.pitch);
}

} // namespace

void DrawFaceListDots(const FaceList* list, Pixel16* pixels, std::int32_t pitch) {
    const FrameBuffer frame{pixels, pitch};
    for (std::int32_t i = 0; i < list->count; ++i) {
        const RenderFace& face = *list->pointers[i];
        if (!IsDrawable(face.state)) {
            continue;
        }
        for (const float dx : {0.0F, 1.0F}) {
            for (const float dy : {0.0F, 1.0F}) {
                DrawDot(face.work[1], dx, dy, ViewColor(face), frame);
                DrawDot(face.work[2], dx, dy, ViewColor(face), frame);
                DrawDot(face.work[0], dx, dy, ViewColor(face), frame);
            }
        }
    }
}

void DrawFaceListWire(const FaceList* list, Pixel16* pixels, std::int32_t pitch) {
    const FrameBuffer frame{pixels, pitch};
    for (std::int32_t i = 0; i < list->count; ++i) {
        const RenderFace& face = *list->pointers[i];
        if (!IsDrawable(face.state)) {
            continue;
        }
        DrawEdge(face.work[0], face.work[1], ViewColor(face), frame);
        DrawEdge(face.work[1], face.work[2], ViewColor(face), frame);
        DrawEdge(face.work[2], face.work[0], ViewColor(face), frame);
    }
}

} // namespace ombrel
