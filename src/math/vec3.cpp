// Lengths and normalising. Singles, rounded in the mode in force; the square root is the
// processor's.
#include "math/vec3.h"

#include <algorithm>

#include "base/convert.h"

namespace ombrel {

namespace {

// Shorter vectors have no direction.
constexpr float kShortest = 0.00001F;

// |value| in 1/1024.
std::int32_t SizeIn1024ths(float value) {
    return ToIntChop((value < 0.0F ? -value : value) * 1024.0F);
}

} // namespace

float Vec3Length(const Vec3* v) {
    return __builtin_sqrtf(Vec3Dot(v, v));
}

float Vec3FastLength(const Vec3* v) {
    const std::int32_t a = SizeIn1024ths(v->x);
    const std::int32_t b = SizeIn1024ths(v->y);
    const std::int32_t c = SizeIn1024ths(v->z);

    // Sort the three sizes, without a branch.
    const std::int32_t large = std::max(std::max(a, b), c);
    const std::int32_t middle = std::max(std::min(a, b), std::min(std::max(a, b), c));
    const std::int32_t small = std::min(std::min(a, b), c);

    // Weigh them; the sum wraps at 32 bits.
    const std::uint32_t sum = static_cast<std::uint32_t>(large) +
                              static_cast<std::uint32_t>((middle >> 5) * 11) +
                              static_cast<std::uint32_t>(small >> 2);
    return static_cast<float>(static_cast<std::int32_t>(sum) >> 10);
}

void Vec3Normalize(Vec3* v) {
    const float length = Vec3Length(v);
    if (length < kShortest) {
        return;
    }
    const float scale = 1.0F / length;
    *v = {v->x * scale, v->y * scale, v->z * scale, 1.0F};
}

void Vec3NormalizeTo(const Vec3* v, float out[3]) {
    out[0] = out[1] = out[2] = 0.0F;
    const float length = Vec3Length(v);
    if (length < kShortest) {
        return;
    }
    const float scale = 1.0F / length;
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
