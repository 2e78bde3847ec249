// The fused form of the front end (front_end.h). Called by front_end.cpp alone.
#pragma once

#include "scene/front_end.h"

namespace ombrel {

void StartFused(FrontEnd* front);
// reset: as after MeshResetFrame.
int AddFused(FrontEnd* front, Mesh* mesh, bool reset);
void FinishFused(FrontEnd* front);

} // namespace ombrel
