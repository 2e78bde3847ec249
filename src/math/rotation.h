// The three elementary rotations from a sine and a cosine, for who composes them by hand.
#pragma once

#include "math/vec3.h"

namespace ombrel {

Matrix4 RotationX(float s, float c); // Y towards Z
Matrix4 RotationY(float s, float c); // Z towards X
Matrix4 RotationZ(float s, float c); // X towards Y

} // namespace ombrel
