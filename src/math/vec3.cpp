// Lengths and normalising. Singles, rounded in the mode in force; the square root is the
// processor's.
#include "math/vec3.h"

#include "base/single.h"

namespace ombrel {

namespace {

// Shorter vectors have no direction.
constexpr Single kShortest = 0.00001F;

} // namespace

Single Vec3Length(const Vec3* v) {
    return SquareRoot(Vec3Dot(v, v));
}

Single Vec3FastLength(const Vec3* v) {
    return FastLength<PlainFloats>(*v);
}

void Vec3Normalize(Vec3* v) {
    const Single length = Vec3Length(v);
    if (length < kShortest) {
        return;
    }
    const Single scale = 1.0F / length;
    *v = {v->x * scale, v->y * scale, v->z * scale, 1.0F};
}

void Vec3NormalizeTo(const Vec3* v, Single out[3]) {
    out[0] = out[1] = out[2] = 0.0F;
    const Single length = Vec3Length(v);
    if (length < kShortest) {
        return;
    }
    const Single scale = 1.0F / length;
    out[0] = v->x * scale;
    out[1] = v->y * scale;
    out[2] = v->z * scale;
}

void RayInit(Ray* out, const Vec3* origin, const Vec3* direction, std::int32_t normalize) {
    out->origin[0] = origin->x;
    out->origin[1] = origin->y;
    out->origin[2] = origin->z;
    if (normalize != 0) {
        Vec3NormalizeTo(direction, out->direction);
        return;
    }
    out->direction[0] = direction->x;
    out->direction[1] = direction->y;
    out->direction[2] = direction->z;
}

} // namespace ombrel
