// Which filler the production's own dispatcher chooses for a face.
#pragma once

#include "assets/mesh.h"

namespace inspect {

// The filler's name for a face of a loaded mesh, in the scenes' own draw job; "none" when nothing
// is drawn.
const char* FillerOf(const ombrel::Face& face);

} // namespace inspect
