#include "face_scene.h"

#include "math/vec3.h"

namespace ombrel {

void MakeFaceCamera(Camera* camera) {
    InitTrigTables();
    CameraSetup setup = {};
    setup.position = setup.angles = {0.0F, 0.0F, 0.0F, 1.0F};
    setup.zNear = 1.0F;
    setup.zFar = 15000.0F;
    setup.fov = 90.0F;
    setup.screenWidth = 640.0F;
    setup.screenHeight = 480.0F;
    CameraInit(camera, setup);
    CameraBuildView(camera, 4);
}

void MakeFaceLights(Light* lights) {
    const std::uint32_t kinds[kFaceLights] = {LIGHT_AMBIENT, LIGHT_DIRECTIONAL, LIGHT_POINT,
                                              LIGHT_POINT, LIGHT_POINT};
    ClearLights(lights, kMaxLights);
    for (int i = 0; i < kFaceLights; ++i) {
        Light values = {};
        values.enabled = 1;
        values.kind = kinds[i];
        values.ambientColor = values.lightColor = PackLightColor(60, 50, 40);
        values.sourcePosition = {200.0F * static_cast<float>(i), 500.0F, 0.0F, 1.0F};
        values.sourceDirection = {1.0F, 0.8F, 1.0F, 1.0F};
        values.c1 = 0.001F;
        SetLight(&lights[i], values);
    }
}

} // namespace ombrel
