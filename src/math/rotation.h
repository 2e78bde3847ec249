// The three elementary rotations from a sine and a cosine, for who composes them by hand.
#pragma once

#include "math/vec3.h"

namespace ombrel {

Matrix4 RotationX(Single s, Single c); // Y towards Z
Matrix4 RotationY(Single s, Single c); // Z towards X
Matrix4 RotationZ(Single s, Single c); // X towards Y

} // namespace ombrel
