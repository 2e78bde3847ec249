// The lighting pass: world-space corners and normals in, packed colours out. Colours are 8-bit
// integers, factors singles; every float that becomes an integer is cut toward zero (ToIntChop).
// Once a frame, over the whole face list, before it moves to camera space.
#include "base/convert.h"
#include "base/pixel16.h"
#include "scene/light.h"
#include "scene/vertex_parts.h"

namespace ombrel {

namespace {

// Red, green, blue: 0..255 for colours; sums of light may be above until they are packed.
struct Channels {
    std::uint32_t r, g, b;
};

// The point that is lit. A flat face's normal is its cross product, as long as size says; the
// normal of a corner counts as one long.
struct LitPoint {
    Vec3 position;
    Vec3 normal;
    bool flat;
    float size; // flat only
};

struct LightTable {
    const Light* lights;
    std::int32_t count;
};

Channels BaseColor(std::uint32_t color) {
    return {((color >> 11) & 31) * 8, ((color >> 5) & 63) * 4, (color & 31) * 8};
}

Channels ColorBytes(std::uint32_t color) {
    return {(color >> 24) & 255, (color >> 16) & 255, (color >> 8) & 255};
}

float Attenuation(const Light& light, float distance) {
    return (distance * light.c2 + light.c1) * distance + light.c0;
}

// s to the n-th, n the exponent's whole part; s itself for 1 and below.
float ConePower(float s, float exponent) {
    const std::int32_t n = ToIntChop(exponent);
    float power = s;
    for (std::int32_t i = 1; i < n; ++i) {
        power *= s;
    }
    return power;
}

// The factor of one light at a point, by kind; false when the light does not reach it.
// REQUIRED R32: closer than one unit to a light its distance counts 0; the factor is then infinite,
// or no number for a channel without light, and either way the channel ends at 255.
bool LightFactor(const Light& light, const LitPoint& point, float* factor) {
    const std::uint32_t kinds = light.kind & 255;
    const std::uint32_t kind = kinds & (0U - kinds); // the lowest bit that is set
    const Vec3& n = point.normal;
    switch (kind) {
    case LIGHT_DIRECTIONAL: {
        const float facing = Vec3Dot(&n, &light.direction);
        *factor = facing * 128.0F;
        return facing > 0.0F;
    }
    case LIGHT_POINT: {
        Vec3 toLight;
        Vec3Sub(&point.position, &light.position, &toLight);
        const float facing = Vec3Dot(&n, &toLight);
        if (!(facing > 0.0F)) {
            return false;
        }
        const float distance = Vec3FastLength(&toLight);
        *factor = facing * 128.0F / (Attenuation(light, distance) * distance);
        return true;
    }
    case LIGHT_ATTENUATED: {
        const float facing = Vec3Dot(&n, &light.direction);
        if (!(facing > 0.0F)) {
            return false;
        }
        Vec3 toLight;
        Vec3Sub(&point.position, &light.position, &toLight);
        *factor = facing * 128.0F / Attenuation(light, Vec3FastLength(&toLight));
        return true;
    }
    case LIGHT_SPOT: {
        // REQUIRED R33: how far the surface faces the lamp is taken from the lamp's direction.
        const float facing = Vec3Dot(&n, &light.direction);
        if (!(facing > 0.0F)) {
            return false;
        }
        Vec3 fromLight;
        Vec3Sub(&light.position, &point.position, &fromLight);
        const float distance = Vec3FastLength(&fromLight);
        const float s = Vec3Dot(&fromLight, &light.direction) / distance;
        if (!(s > 0.0F)) {
            return false;
        }
        *factor = 128.0F / Attenuation(light, distance) * ConePower(s, light.exponent) * facing;
        return true;
    }
    default:
        return false;
    }
}

std::uint32_t AddLight(std::uint32_t sum, std::uint32_t light, std::uint32_t base, float factor) {
    constexpr float kScale = 0.000030517578125F; // 1 / 32768
    const float product = static_cast<float>(light * base);
    return static_cast<std::uint32_t>(
        ToIntChop(product * factor * kScale + static_cast<float>(sum)));
}

std::uint32_t Limit(std::uint32_t sum) {
    return sum > 255 ? 255 : sum;
}

// The sum of all lights at a point, as the word that a face stores.
std::uint32_t LightPoint(const LightTable& table, const LitPoint& point, const Channels& base) {
    Channels sum = {0, 0, 0};
    for (std::int32_t i = 0; i < table.count; ++i) {
        const Light& light = table.lights[i];
        if (light.enabled == 0) {
            continue;
        }
        if ((light.kind & LIGHT_AMBIENT) != 0) {
            const Channels ambient = ColorBytes(light.ambientColor);
            sum.r += (ambient.r * base.r) >> 8;
            sum.g += (ambient.g * base.g) >> 8;
            sum.b += (ambient.b * base.b) >> 8;
            continue;
        }
        float factor = 0.0F;
        if (!LightFactor(light, point, &factor)) {
            continue;
        }
        if (point.flat) {
            factor /= point.size;
        }
        const Channels color = ColorBytes(light.lightColor);
        sum.r = AddLight(sum.r, color.r, base.r, factor);
        sum.g = AddLight(sum.g, color.g, base.g, factor);
        sum.b = AddLight(sum.b, color.b, base.b, factor);
    }
    return displayFormat.pack(Limit(sum.r), Limit(sum.g), Limit(sum.b)) & 0xFFFF;
}

// The first corner, and the face's cross product for a normal.
LitPoint FlatPoint(const RenderFace& face) {
    LitPoint point = {PositionOf(face.work[0]), {}, true, face.size};
    const Vec3 b = PositionOf(face.work[1]);
    const Vec3 c = PositionOf(face.work[2]);
    Vec3 toB;
    Vec3 toC;
    Vec3Sub(&point.position, &b, &toB);
    Vec3Sub(&point.position, &c, &toC);
    Vec3Cross(&toB, &toC, &point.normal);
    return point;
}

} // namespace

void LightFaces(FaceList* list, const Camera* camera, const Light* lights, std::int32_t count) {
    (void)camera;
    const LightTable table = {lights, count};
    for (std::int32_t i = 0; i < list->count; ++i) {
        RenderFace& face = *list->pointers[i];
        if (!IsDrawable(face.state) || (face.state & FACE_LIT) != 0) {
            continue;
        }
        face.state |= FACE_LIT;
        if ((face.flags & (FACE_MATTE | FACE_PLASTIC)) == 0) {
            face.litColors[0] = face.color;
            continue;
        }
        const Channels base = BaseColor(face.color);
        if ((face.flags & FACE_MATTE) != 0) {
            face.litColors[0] = LightPoint(table, FlatPoint(face), base);
            continue;
        }
        for (int corner = 0; corner < 3; ++corner) {
            const Vertex& v = face.work[corner];
            const LitPoint point = {PositionOf(v), NormalOf(v), false, 0.0F};
            face.litColors[corner] = LightPoint(table, point, base);
        }
    }
}

} // namespace ombrel
