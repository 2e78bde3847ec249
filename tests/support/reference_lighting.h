// A second lighting pass: slow, literal, one channel at a time, and sharing no code with the real
// one but the records. Tests hold the real one against it.
#pragma once

#include "scene/light.h"

namespace ombrel::test {

// What LightFaces would do to this one face.
void ReferenceLightFace(RenderFace* face, const CornerNormals& normals, const LightTable& lights,
                        ColorPacker pack);

} // namespace ombrel::test
