// Position and normal of a vertex, seen as the vectors that the math works on.
#pragma once

#include "assets/mesh.h"

namespace ombrel {

inline Vec3 PositionOf(const Vertex& v) {
    return {v.x, v.y, v.z, v.w};
}
inline Vec3 NormalOf(const Vertex& v) {
    return {v.nx, v.ny, v.nz, v.nw};
}

inline void SetPosition(Vertex* v, const Vec3& position) {
    v->x = position.x;
    v->y = position.y;
    v->z = position.z;
    v->w = position.w;
}
inline void SetNormal(Vertex* v, const Vec3& normal) {
    v->nx = normal.x;
    v->ny = normal.y;
    v->nz = normal.z;
    v->nw = normal.w;
}

} // namespace ombrel
