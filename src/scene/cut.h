// Cutting faces at the near plane and at the guard band. Called by ClipPolygons and the fused front
// end.
#pragma once

#include "scene/geometry.h"

namespace ombrel {

// Cuts one face of the list, in camera space. What is left over of it after its first triangle goes
// to the end of the list, as long as there is room, which counts down; FACE_OUTSIDE when nothing is
// left.
void CutFace(FaceList* list, RenderFace* face, const CameraView& view, std::int32_t* room);

} // namespace ombrel
