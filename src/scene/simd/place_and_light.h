// The kernels of the front end, kLanes corners or points at a time. Every lane goes through the
// operations of the plain functions in their order, so that it rounds as they do. Included once by
// each kernels_*.cpp behind its vector types; everything here is its own.
#pragma once

#include <cstring>

#include "scene/scissors.h"

namespace ombrel {
namespace {

[[gnu::always_inline]] inline Ints Bits(Ints mask, std::uint32_t bits) {
    return mask & static_cast<std::int32_t>(bits);
}

// --- placing -----------------------------------------------------------------------------------

// As Classify of clip.cpp does: beyond the positive limit comes first.
[[gnu::always_inline]] inline Ints Side(Floats value, Floats low, Floats high, std::uint32_t below,
                                        std::uint32_t above) {
    const Ints isAbove = value > high;
    const Ints isBelow = value < low;
    return Bits(isAbove, above) | Bits(isBelow & ~isAbove, below);
}

[[gnu::always_inline]] inline void PlaceSome(const Vertex* from, const Placement& p,
                                             PlacedVertex* to) {
    constexpr std::ptrdiff_t kVertexWords = sizeof(Vertex) / sizeof(float);
    constexpr std::ptrdiff_t kPlacedWords = sizeof(PlacedVertex) / sizeof(float);

    // Move into the world, then before the camera.
    const Columns position = LoadRows(&from->x, kVertexWords);
    const Floats wx = position.a + p.shift.x;
    const Floats wy = position.b + p.shift.y;
    const Floats wz = position.c + p.shift.z;
    const auto& m = p.view.m;
    const Floats x = wx * m[0][0] + wy * m[1][0] + wz * m[2][0] + m[3][0];
    const Floats y = wx * m[0][1] + wy * m[1][1] + wz * m[2][1] + m[3][1];
    const Floats z = wx * m[0][2] + wy * m[1][2] + wz * m[2][2] + m[3][2];

    // Test against the view volume.
    const Floats limitX = p.projScale * z * 0.5F / p.tanHalfFov;
    const Floats limitY = p.projScaleY * z * 0.5F / p.tanHalfFov;
    const Floats nearest = All(p.zNear);
    const Floats farthest = All(p.zFar);
    Ints outside = Side(x, -limitX, limitX, OUTSIDE_LEFT, OUTSIDE_RIGHT) |
                   Side(y, -limitY, limitY, OUTSIDE_BOTTOM, OUTSIDE_TOP) |
                   Side(z, nearest, farthest, OUTSIDE_NEAR, OUTSIDE_FAR);

    // Test against the guard band; NaN is not inside.
    const Floats bandX = x * p.scaleX;
    const Floats bandY = y * p.scaleY;
    const Ints inside = (z >= p.zNear) & (z <= kLargestCoordinate) & (bandX >= -(p.left * z)) &
                        (bandX <= p.right * z) & (bandY >= -(p.bottom * z)) & (bandY <= p.top * z);
    outside |= Bits(~inside, OUTSIDE_BAND);

    // Project and map to pixels.
    const Floats perDepth = 1.0F / z;
    const Floats screenX = (x * p.tanHalfFov * perDepth + 1.0F) * p.centerX;
    const Floats screenY = p.centerY - p.centerY * (p.aspectTan * y * perDepth);

    StoreRows(&to->x, kPlacedWords, {wx, wy, wz, (Floats)outside});
    StoreRows(&to->screenX, kPlacedWords, {screenX, screenY, z, (Floats)(Ints{} - 1)});
}

void PlaceVertices(const Vertex* from, std::int32_t count, const Placement& placement,
                   PlacedVertex* to) {
    std::int32_t i = 0;
    for (; i + kLanes <= count; i += kLanes) {
        PlaceSome(from + i, placement, to + i);
    }
    if (i < count) {
        Vertex rest[kLanes] = {};
        std::memcpy(static_cast<void*>(rest), from + i,
                    static_cast<std::size_t>(count - i) * sizeof(Vertex));
        PlaceSome(rest, placement, to + i);
    }
}

// --- lighting ----------------------------------------------------------------------------------

struct Vectors {
    Floats x, y, z;
};
struct Colors {
    Ints r, g, b;
};

[[gnu::always_inline]] inline Floats Dot(const Vectors& a, const Vectors& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
[[gnu::always_inline]] inline Floats Dot(const Vectors& a, const Vec3& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

// Vec3FastLength.
[[gnu::always_inline]] inline Floats FastLength(const Vectors& v) {
    const auto size = [](Floats c) __attribute__((always_inline)) {
        return ToIntChop((Floats)((Ints)c & 0x7FFFFFFF) * 1024.0F);
    };
    const Ints a = size(v.x);
    const Ints b = size(v.y);
    const Ints c = size(v.z);
    const Ints large = Max(Max(a, b), c);
    const Ints middle = Max(Min(a, b), Min(Max(a, b), c));
    const Ints small = Min(Min(a, b), c);
    return ToFloat((large + (middle >> 5) * 11 + (small >> 2)) >> 10);
}

[[gnu::always_inline]] inline Floats Attenuation(const Light& light, Floats distance) {
    return (distance * light.c2 + light.c1) * distance + light.c0;
}

// What LightFactor of lighting.cpp says of one light: the factors, and which points it reaches.
struct Factors {
    Floats factor;
    Ints reached;
};
[[gnu::always_inline]] inline Factors FactorsOf(const Light& light, std::uint32_t kind,
                                                const Vectors& at, const Vectors& normal) {
    if (kind == LIGHT_DIRECTIONAL) {
        const Floats facing = Dot(normal, light.direction);
        return {facing * 128.0F, facing > 0.0F};
    }
    const Vec3& p = light.position;
    if (kind == LIGHT_SPOT) {
        const Floats facing = Dot(normal, light.direction);
        const Vectors fromLight = {at.x - p.x, at.y - p.y, at.z - p.z};
        const Floats distance = FastLength(fromLight);
        const Floats s = Dot(fromLight, light.direction) / distance;
        const std::int32_t n = ToIntChop(All(light.exponent))[0];
        Floats power = s;
        for (std::int32_t i = 1; i < n; ++i) {
            power *= s;
        }
        return {128.0F / Attenuation(light, distance) * power * facing,
                (facing > 0.0F) & (s > 0.0F)};
    }
    const Vectors toLight = {p.x - at.x, p.y - at.y, p.z - at.z};
    const Floats distance = FastLength(toLight);
    if (kind == LIGHT_POINT) {
        const Floats facing = Dot(normal, toLight);
        return {facing * 128.0F / (Attenuation(light, distance) * distance), facing > 0.0F};
    }
    const Floats facing = Dot(normal, light.direction);
    return {facing * 128.0F / Attenuation(light, distance), facing > 0.0F};
}

// Of 32-bit numbers without sign, rounded once: the upper half is exact.
[[gnu::always_inline]] inline Floats ToFloatUnsigned(Ints v) {
    return ToFloat((v >> 16) & 0xFFFF) * 65536.0F + ToFloat(v & 0xFFFF);
}

// AddLight of lighting.cpp where the light reaches. Sums have no sign.
[[gnu::always_inline]] inline Ints AddLight(Ints sum, std::uint32_t light, Floats base,
                                            const Factors& f) {
    constexpr float kScale = 0.000030517578125F; // 1 / 32768
    const Floats product = base * static_cast<float>(light);
    const Ints next = ToIntChop(product * f.factor * kScale + ToFloatUnsigned(sum));
    return f.reached ? next : sum;
}

[[gnu::always_inline]] inline Ints Limit(Ints sum) {
    return ((sum < 0) | (sum > 255)) ? Ints{} + 255 : sum;
}

template <class Vector, class T> [[gnu::always_inline]] inline Vector Load(const T* from) {
    Vector v;
    std::memcpy(&v, from, sizeof v);
    return v;
}

[[gnu::always_inline]] inline void LightSome(LitPoints* points, std::int32_t i,
                                             const LitFrame& frame) {
    const Vectors at = {Load<Floats>(points->x + i), Load<Floats>(points->y + i),
                        Load<Floats>(points->z + i)};
    const Vectors normal = {Load<Floats>(points->nx + i), Load<Floats>(points->ny + i),
                            Load<Floats>(points->nz + i)};
    const Floats size = Load<Floats>(points->size + i);
    const Ints color = Load<Ints>(points->base + i);
    const Colors base = {((color >> 11) & 31) * 8, ((color >> 5) & 63) * 4, (color & 31) * 8};
    const Vectors baseFloat = {ToFloat(base.r), ToFloat(base.g), ToFloat(base.b)};

    Colors sum = {};
    for (std::int32_t k = 0; k < frame.count; ++k) {
        const Light& light = frame.lights[k];
        const std::uint32_t kinds = light.kind & 255;
        const std::uint32_t kind = kinds & (0U - kinds); // the lowest bit that is set
        if (light.enabled == 0 || kind == 0 || kind > LIGHT_SPOT) {
            continue;
        }
        const auto byte = [](std::uint32_t word, int shift) __attribute__((always_inline)) {
            return (word >> shift) & 255;
        };
        if (kind == LIGHT_AMBIENT) {
            const std::uint32_t ambient = light.ambientColor;
            sum.r += (base.r * static_cast<std::int32_t>(byte(ambient, 24))) >> 8;
            sum.g += (base.g * static_cast<std::int32_t>(byte(ambient, 16))) >> 8;
            sum.b += (base.b * static_cast<std::int32_t>(byte(ambient, 8))) >> 8;
            continue;
        }
        Factors f = FactorsOf(light, kind, at, normal);
        f.factor /= size;
        sum.r = AddLight(sum.r, byte(light.lightColor, 24), baseFloat.x, f);
        sum.g = AddLight(sum.g, byte(light.lightColor, 16), baseFloat.y, f);
        sum.b = AddLight(sum.b, byte(light.lightColor, 8), baseFloat.z, f);
    }

    // Pack.
    const Ints r = Limit(sum.r) >> 3;
    const Ints g = Limit(sum.g);
    const Ints b = Limit(sum.b) >> 3;
    const Ints packed =
        frame.fiveBitGreen ? (r << 10) + ((g >> 3) << 5) + b : (r << 11) + ((g >> 2) << 5) + b;
    std::memcpy(points->lit + i, &packed, sizeof packed);
}

void LightPoints(LitPoints* points, std::int32_t count, const LitFrame& frame) {
    for (std::int32_t i = 0; i < count; i += kLanes) {
        LightSome(points, i, frame);
    }
}

} // namespace
} // namespace ombrel
