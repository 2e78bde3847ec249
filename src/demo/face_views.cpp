// Corner dots and wires of a face list, drawn with the 2D primitives.
#include "demo/face_views.h"

#include "base/convert.h"

namespace ombrel {

namespace {

Pixel16 ViewColor(const RenderFace& face) {
    return static_cast<Pixel16>(face.litColors[0]);
}

// One pixel of the block: dx and dy from the corner's own.
void DrawDot(const FaceCorner& corner, std::int32_t dx, std::int32_t dy, Pixel16 color,
             const Canvas& canvas) {
    PlotPixel(ToIntChop(corner.x) + dx, ToIntChop(corner.y) + dy, color, canvas);
}

void DrawEdge(const FaceCorner& from, const FaceCorner& to, Pixel16 color, const Canvas& canvas) {
    const Line2d line{ToIntChop(from.x), ToIntChop(from.y), ToIntChop(to.x), ToIntChop(to.y)};
    DrawClippedLine(line, color, canvas);
}

} // namespace

void DrawFaceListDots(const FaceList* list, const Canvas& canvas) {
    for (std::int32_t i = 0; i < list->count; ++i) {
        const RenderFace& face = *list->pointers[i];
        if (!IsDrawable(face.state)) {
            continue;
        }
        for (std::int32_t dx = 0; dx < 2; ++dx) {
            for (std::int32_t dy = 0; dy < 2; ++dy) {
                DrawDot(face.work[1], dx, dy, ViewColor(face), canvas);
                DrawDot(face.work[2], dx, dy, ViewColor(face), canvas);
                DrawDot(face.work[0], dx, dy, ViewColor(face), canvas);
            }
        }
    }
}

void DrawFaceListWire(const FaceList* list, const Canvas& canvas) {
    for (std::int32_t i = 0; i < list->count; ++i) {
        const RenderFace& face = *list->pointers[i];
        if (!IsDrawable(face.state)) {
            continue;
        }
        DrawEdge(face.work[0], face.work[1], ViewColor(face), canvas);
        DrawEdge(face.work[1], face.work[2], ViewColor(face), canvas);
        DrawEdge(face.work[2], face.work[0], ViewColor(face), canvas);
    }
}

} // namespace ombrel
