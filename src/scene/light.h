// The light table and the lighting pass, in world space, 8-bit channels.
#pragma once

#include <cstdint>

#include "base/pixel16.h"
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

// Colours: red in bits 24..31, green 16..23, blue 8..15.
struct Light {
    std::uint32_t enabled;
    std::uint32_t kind;
    std::uint32_t ambientColor;
    std::uint32_t lightColor;
    Vec3 sourcePosition, position; // the working copy is what the lighting uses
    Vec3 sourceDirection, direction;
    Single c0, c1, c2; // attenuation
    Single exponent;   // of the spot cone
};

constexpr std::uint32_t PackLightColor(std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    return (r << 24) | (g << 16) | (b << 8);
}

void ClearLights(Light* lights, std::int32_t count); // all words 0
// Stores the light; its sourcePosition and sourceDirection (normalised first) go into the source
// and the working fields alike, so the working fields of values are not read.
void SetLight(Light* light, const Light& values);

// Which positions and directions are moved, and where to. Other values: nothing.
enum class LightMove : std::int32_t {
    SourceInPlace = 0,
    WorkingInPlace = 1,
    SourceIntoWorking = 2,
    Copy = 3, // source into working, unchanged; the matrix may be null
};
void LightsTransform(Light* lights, std::int32_t count, const Matrix4* matrix, LightMove move);

// Writes the lit colours of every drawable, not yet lit face, from its base colour and its working
// vertices in world space. Flat faces get colour 0, gouraud ones all three; a face that is neither
// gets its base colour as colour 0. Channels end at 255 and go to the packer. The camera is not
// used.
struct LightTable {
    const Light* lights;
    std::int32_t count;
};
void LightFaces(FaceList* list, const Camera* camera, const LightTable& lights, ColorPacker pack);

} // namespace ombrel
