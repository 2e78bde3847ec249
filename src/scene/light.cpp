// The light table: clearing, setting and moving lights. What they do to faces is in geometry.h.
#include "scene/light.h"

namespace ombrel {

void ClearLights(Light* lights, std::int32_t count) {
    for (std::int32_t i = 0; i < count; ++i) {
        lights[i] = Light{};
    }
}

void SetLight(Light* light, const Light& values) {
    *light = values;
    Vec3Normalize(&light->sourceDirection);
    light->position = light->sourcePosition;
    light->direction = light->sourceDirection;
}

void LightsTransform(Light* lights, std::int32_t count, const Matrix4* matrix, LightMove move) {
    if (move == LightMove::Copy) {
        for (std::int32_t i = 0; i < count; ++i) {
            lights[i].position = lights[i].sourcePosition;
            lights[i].direction = lights[i].sourceDirection;
        }
        return;
    }
    if (move < LightMove::SourceInPlace || move > LightMove::Copy) {
        return;
    }

    // Directions turn without moving.
    Matrix4 turn = *matrix;
    turn.m[3][0] = turn.m[3][1] = turn.m[3][2] = 0.0F;

    const bool fromSource = move != LightMove::WorkingInPlace;
    const bool toSource = move == LightMove::SourceInPlace;
    for (std::int32_t i = 0; i < count; ++i) {
        Light& light = lights[i];
        const Vec3 position = fromSource ? light.sourcePosition : light.position;
        const Vec3 direction = fromSource ? light.sourceDirection : light.direction;
        Vec3TransformMatrix4(&position, matrix, toSource ? &light.sourcePosition : &light.position);
        Vec3TransformMatrix4(&direction, &turn,
                             toSource ? &light.sourceDirection : &light.direction);
    }
}

} // namespace ombrel
