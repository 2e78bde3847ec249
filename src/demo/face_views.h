// The two development views of a face list that was mapped to the screen: corner dots and wires.
// Both draw every drawable face in its first lit colour, inside the clip rectangle. Coordinates
// become whole pixels by truncation.
#pragma once

#include "demo/primitives.h"
#include "scene/face_list.h"

namespace ombrel {

// A block of 2 x 2 pixels at each corner, its top-left pixel on the corner.
void DrawFaceListDots(const FaceList* list, const Canvas& canvas);
// Three lines a face.
void DrawFaceListWire(const FaceList* list, const Canvas& canvas);

} // namespace ombrel
