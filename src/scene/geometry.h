// Every formula between a mesh and the screen, once. P is any record with x, y, z; L says what its
// numbers are: one number (PlainFloats of base/single.h), which is how the passes call them, or the
// lanes of a vector (src/lanes), which is how the fused front end does. Comparisons give a mask a
// lane. Single precision; operations are rounded in the order written here, so every lane has the
// bits of the plain number.
#pragma once

#include "base/single.h"
#include "scene/light.h"

namespace ombrel {

// What the formulas take from a camera.
struct CameraView {
    Matrix4 matrix; // world to camera
    Single tanHalfFov, aspectTan;
    Single projScale, projScaleY, zNear, zFar;
    Single centerX, centerY; // half of the last column and row
    // The guard band in units of depth: a corner is inside while -left z <= x tanHalfFov <= right z
    // and -bottom z <= y aspectTan <= top z.
    Single left, right, top, bottom;
};

// No corner of a drawn face is mapped outside +-kGuardBand pixels, but for rounding.
inline constexpr Single kGuardBand = 4095.0F;
// Coordinates beyond this come from broken data, and so does NaN.
inline constexpr Single kLargestCoordinate = 1.0e9F;

CameraView ViewOf(const Camera& camera);

// Bits of a corner beyond the view volume.
inline constexpr std::uint32_t OUTSIDE_RIGHT = 1;
inline constexpr std::uint32_t OUTSIDE_LEFT = 2;
inline constexpr std::uint32_t OUTSIDE_TOP = 4;
inline constexpr std::uint32_t OUTSIDE_BOTTOM = 8;
inline constexpr std::uint32_t OUTSIDE_FAR = 16;
inline constexpr std::uint32_t OUTSIDE_NEAR = 32;

// The templates are static, because code for a newer processor makes its own of them: the linker
// must not choose.

// --- places --------------------------------------------------------------------------------------

template <class P> static auto FlatNormal(const P& p0, const P& p1, const P& p2) {
    return Cross(Difference(p0, p1), Difference(p0, p2));
}

// How far before a face the eye is, times twice the face's area; negative behind it.
template <class P, class E>
static auto Facing(const P& p0, const P& p1, const P& p2, const E& eye) {
    return Dot(FlatNormal(p0, p1, p2), Difference(p0, eye));
}

// Whether a face shows its back, or its edge.
template <class P, class E>
static auto FacesAway(const P& p0, const P& p1, const P& p2, const E& eye) {
    return Facing(p0, p1, p2, eye) <= 0.0F;
}

// A point of the world, whose fourth component is 1.
template <class P> static auto ToCamera(const P& p, const Matrix4& matrix) {
    const auto& m = matrix.m;
    const auto column = [&](int j) {
        return p.x * m[0][j] + p.y * m[1][j] + p.z * m[2][j] + m[3][j];
    };
    return Xyz<decltype(p.x * m[0][0])>{column(0), column(1), column(2)};
}

// How far to the side is still seen at depth z; scale is projScale across, projScaleY up and down.
// A larger tangent narrows the view. Negative behind the eye.
template <class N> static N SideLimit(Single scale, N z, Single tanHalfFov) {
    return scale * z * 0.5F / tanHalfFov;
}

// REQUIRED R35: behind the eye the limits change places, and a corner can lie beyond both. It then
// counts as beyond the positive one.
template <class L, class N, class M>
static auto BeyondBits(const N& value, const M& low, const M& high, std::uint32_t below,
                       std::uint32_t above) {
    return L::Bits(value > high, above) | L::Bits((value < low) & (value <= high), below);
}

// The OUTSIDE_ bits of a corner in camera space.
template <class L, class P> static auto OutsideBits(const P& p, const CameraView& view) {
    const auto limitX = SideLimit(view.projScale, p.z, view.tanHalfFov);
    const auto limitY = SideLimit(view.projScaleY, p.z, view.tanHalfFov);
    return BeyondBits<L>(p.x, -limitX, limitX, OUTSIDE_LEFT, OUTSIDE_RIGHT) |
           BeyondBits<L>(p.y, -limitY, limitY, OUTSIDE_BOTTOM, OUTSIDE_TOP) |
           BeyondBits<L>(p.z, view.zNear, view.zFar, OUTSIDE_NEAR, OUTSIDE_FAR);
}

// Whether a corner in camera space lies between the near plane and the sides of the guard band;
// NaN does not.
template <class P> static auto IsInGuardBand(const P& p, const CameraView& view) {
    const auto x = p.x * view.tanHalfFov;
    const auto y = p.y * view.aspectTan;
    return (p.z >= view.zNear) & (p.z <= kLargestCoordinate) & (x >= -(view.left * p.z)) &
           (x <= view.right * p.z) & (y >= -(view.bottom * p.z)) & (y <= view.top * p.z);
}

// Camera space to the square -1..1. REQUIRED R37: times the tangent.
template <class P> static auto Project(const P& p, const CameraView& view) {
    const auto perDepth = 1.0F / p.z;
    return Xyz<std::remove_cvref_t<decltype(perDepth)>>{p.x * view.tanHalfFov * perDepth,
                                                        view.aspectTan * p.y * perDepth, p.z};
}

// The square to pixels: -1 is column 0 and the last row.
template <class P> static auto MapToScreen(const P& p, const CameraView& view) {
    return P{(p.x + 1.0F) * view.centerX, view.centerY - view.centerY * p.y, p.z};
}

// --- light ---------------------------------------------------------------------------------------

// What is lit. size divides the light: that of the face where the normal is its cross product, 1
// where it is that of a corner.
template <class L> struct LitPoint {
    Xyz<typename L::Floats> position, normal;
    typename L::Floats size;
};

// 8-bit channels; sums of light may be larger until they are limited.
template <class N> struct Channels { N r, g, b; };

// The factor of a light, and where it reaches at all.
template <class L> struct Reach {
    typename L::Mask reached;
    typename L::Floats factor;
};

template <class N> static N Attenuation(const Light& light, N distance) {
    return (distance * light.c2 + light.c1) * distance + light.c0;
}

// s to the n-th, n the exponent's whole part; s itself for 1 and below.
template <class N> static N ConePower(N s, Single exponent) {
    const std::int32_t n = ToIntChop(exponent);
    N power = s;
    for (std::int32_t i = 1; i < n; ++i) {
        power *= s;
    }
    return power;
}

// REQUIRED R33: how far the surface faces the lamp is taken from the lamp's direction.
template <class L>
static Reach<L> SpotReach(const Light& light, const LitPoint<L>& point, typename L::Floats facing) {
    const auto fromLight = Difference(light.position, point.position);
    const auto distance = FastLength<L>(fromLight);
    const auto s = Dot(fromLight, light.direction) / distance;
    const typename L::Mask reached = (facing > 0.0F) & (s > 0.0F);
    return {reached, 128.0F / Attenuation(light, distance) * ConePower(s, light.exponent) * facing};
}

// REQUIRED R32: closer than one unit to a light its distance counts 0; the factor is then infinite,
// or no number for a channel without light, and either way the channel ends at 255.
template <class L>
static Reach<L> ReachOf(const Light& light, std::uint32_t kind, const LitPoint<L>& point) {
    using Floats = typename L::Floats;
    const auto toLight = Difference(point.position, light.position);
    const bool isPoint = kind == LIGHT_POINT;
    const Floats facing = isPoint ? Dot(point.normal, toLight) : Dot(point.normal, light.direction);
    const typename L::Mask reached = facing > 0.0F;
    if (kind == LIGHT_DIRECTIONAL || !L::Any(reached)) {
        return {reached, facing * 128.0F};
    }
    if (kind == LIGHT_SPOT) {
        return SpotReach<L>(light, point, facing);
    }
    const Floats distance = FastLength<L>(toLight);
    const Floats attenuation = Attenuation(light, distance);
    return {reached, facing * 128.0F / (isPoint ? attenuation * distance : attenuation)};
}

// One channel: sums have no sign.
template <class L>
static auto AddLight(typename L::Ints sum, std::uint32_t light, typename L::Floats base,
                     const Reach<L>& reach) {
    constexpr Single kScale = 0.000030517578125F; // 1 / 32768
    const auto product = base * static_cast<Single>(light);
    return L::Select(reach.reached,
                     L::ToIntChop(product * reach.factor * kScale + L::ToFloatUnsigned(sum)), sum);
}

// color: red in bits 24..31, green 16..23, blue 8..15.
constexpr Channels<std::uint32_t> ColorBytes(std::uint32_t color) {
    return {(color >> 24) & 255, (color >> 16) & 255, (color >> 8) & 255};
}

// The light of all lights that a point of a 5-6-5 colour throws back, channels 0 to 255.
template <class L>
static auto LightOf(const LightTable& table, const LitPoint<L>& point, typename L::Ints color) {
    using Ints = typename L::Ints;
    const Channels<Ints> base = {((color >> 11) & 31) * 8, ((color >> 5) & 63) * 4,
                                 (color & 31) * 8};
    Channels<Ints> sum = {};
    for (std::int32_t i = 0; i < table.count; ++i) {
        const Light& light = table.lights[i];
        const std::uint32_t kinds = light.kind & 255;
        const std::uint32_t kind = kinds & (0U - kinds); // the lowest bit that is set
        if (light.enabled == 0 || kind == 0 || kind > LIGHT_SPOT) {
            continue;
        }
        if (kind == LIGHT_AMBIENT) {
            const auto ambient = ColorBytes(light.ambientColor);
            sum.r = L::Sum(sum.r, (base.r * static_cast<std::int32_t>(ambient.r)) >> 8);
            sum.g = L::Sum(sum.g, (base.g * static_cast<std::int32_t>(ambient.g)) >> 8);
            sum.b = L::Sum(sum.b, (base.b * static_cast<std::int32_t>(ambient.b)) >> 8);
            continue;
        }
        Reach<L> reach = ReachOf<L>(light, kind, point);
        if (!L::Any(reach.reached)) {
            continue;
        }
        reach.factor /= point.size;
        const auto bytes = ColorBytes(light.lightColor);
        sum.r = AddLight<L>(sum.r, bytes.r, L::ToFloat(base.r), reach);
        sum.g = AddLight<L>(sum.g, bytes.g, L::ToFloat(base.g), reach);
        sum.b = AddLight<L>(sum.b, bytes.b, L::ToFloat(base.b), reach);
    }
    const auto limit = [](Ints v) { return L::Select((v < 0) | (v > 255), Ints{} + 255, v); };
    return Channels<Ints>{limit(sum.r), limit(sum.g), limit(sum.b)};
}

} // namespace ombrel
