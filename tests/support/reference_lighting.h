// A second lighting pass: slow, literal, one channel at a time, and sharing no code with the real
// one but the records. Tests hold the real one against it.
#pragma once

#include "scene/light.h"

namespace ombrel::test {

// What LightFaces would do to this one face.
void ReferenceLightFace(RenderFace* face, const Light* lights, std::int32_t count);

} // namespace ombrel::test
