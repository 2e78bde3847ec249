// The light table and the lighting pass, in world space, 8-bit channels.
#pragma once

#include <cstdint>

#include "math/vec3.h"
#include "scene/camera.h"
#include "scene/face_list.h"

namespace ombrel {

inline constexpr std::int32_t kMaxLights = 10;

// Light::kind, low byte; the lowest set bit decides.
inline constexpr std::uint32_t LIGHT_AMBIENT = 1;
inline constexpr std::uint32_t LIGHT_DIRECTIONAL = 2;
inline constexpr std::uint32_t LIGHT_POINT = 4;
inline constexpr std::uint32_t LIGHT_ATTENUATED = 8;
inline constexpr std::uint32_t LIGHT_SPOT = 16;

// Thirty-six words. Colours: red in bits 24..31, green 16..23, blue 8..15.
struct Light {
    std::uint32_t enabled;
    std::uint32_t unused1;
    std::uint32_t kind;
    std::uint32_t ambientColor;
    std::uint32_t lightColor;
    std::uint32_t unused5[3];
    Vec3 sourcePosition, position; // the working copy is what the lighting uses
    Vec3 sourceDirection, direction;
    float c0, c1, c2; // attenuation
    std::uint32_t unused27[2];
    float exponent; // of the spot cone
    std::uint32_t unused30[6];
};
static_assert(sizeof(Light) == 36 * 4);

constexpr std::uint32_t PackLightColor(std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    return (r << 24) | (g << 16) | (b << 8);
}

void ClearLights(Light* lights, std::int32_t count); // all words 0
// Stores the light; its sourcePosition and sourceDirection (normalised first) go into the source
// and the working fields alike, so the working fields of values are not read.
void SetLight(Light* light, const Light& values);

// mode 0: source in place, 1: working in place, 2: source into working, 3: source copied into
// working (matrix unused, may be null). Other modes: nothing.
void LightsTransform(Light* lights, std::int32_t count, const Matrix4* matrix, std::int32_t mode);

// Writes the lit colours of every drawable, not yet lit face, from its base colour and its working
// vertices in world space. Flat faces get colour 0, gouraud ones all three; a face that is neither
// gets its base colour as colour 0. Channels end at 255. The camera is not used.
void LightFaces(FaceList* list, const Camera* camera, const Light* lights, std::int32_t count);

} // namespace ombrel
