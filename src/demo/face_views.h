// The two development views of a face list that was mapped to the screen: corner dots and wires.
// Both draw every drawable face in its first lit colour, clipped to display.clip2d; pitch in bytes.
// Coordinates become whole pixels by truncation.
#pragma once

#include <cstdint>

#include "base/pixel16.h"
#include "scene/face_list.h"

namespace ombrel {

// A block of 2 x 2 pixels at each corner, its top-left pixel on the corner.
void DrawFaceListDots(const FaceList* list, Pixel16* pixels, std::int32_t pitch);
// Three lines a face.
void DrawFaceListWire(const FaceList* list, Pixel16* pixels, std::int32_t pitch);

} // namespace ombrel
