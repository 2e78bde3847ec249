// The viewer: set-up, field of view, view matrix from angles or from a target.
// Degrees; singles in the mode in force, but for the tangent of the field of view (double).
#include "scene/camera.h"

#include "math/rotation.h"

namespace ombrel {

namespace {

constexpr Vec3 kOrigin = {0.0F, 0.0F, 0.0F, 1.0F};

// tan(fov / 2). The angle is carried in double: 90 degrees then gives 1, whichever way singles
// round.
Single TanHalf(Single fov) {
    constexpr Single kPi = 3.1415927F;
    const Double radians =
        static_cast<Double>(fov) * 0.5 * static_cast<Double>(kPi) * 0.005555555555555556;
    return static_cast<Single>(TanRad(radians));
}

Matrix4 TranslationFromEye(const Camera& camera) {
    Matrix4 translation = IdentityMatrix4;
    translation.m[3][0] = -camera.position.x;
    translation.m[3][1] = -camera.position.y;
    translation.m[3][2] = -camera.position.z;
    return translation;
}

void SetClipPlane(Ray* plane, Single x, Single y, Single z) {
    const Vec3 normal = {x, y, z, 1.0F};
    RayInit(plane, &kOrigin, &normal, 1);
}

} // namespace

void CameraInit(Camera* camera, const CameraSetup& setup) {
    camera->mode = setup.mode;
    camera->position = setup.position;
    camera->angles = setup.angles;
    camera->right = {1.0F, 0.0F, 0.0F, 1.0F};
    camera->up = {0.0F, 1.0F, 0.0F, 1.0F};
    camera->forward = {0.0F, 0.0F, 1.0F, 1.0F};
    camera->target = setup.target != nullptr ? *setup.target : kOrigin;
    camera->zNear = setup.zNear;
    camera->zFar = setup.zFar;
    camera->screenWidth = setup.screenWidth;
    camera->screenHeight = setup.screenHeight;
    camera->screenCenterX = (setup.screenWidth - 1.0F) * 0.5F;
    camera->screenCenterY = (setup.screenHeight - 1.0F) * 0.5F;
    camera->aspect = setup.screenWidth / setup.screenHeight;
    camera->projScale = 2.0F;
    camera->projScaleY = 2.0F / camera->aspect;
    camera->view = IdentityMatrix4;
    camera->matrixB = IdentityMatrix4;
    camera->matrixC = IdentityMatrix4;
    CameraSetFov(camera, setup.fov);
}

void CameraSetFov(Camera* camera, Single fov) {
    camera->fov = fov;
    camera->tanHalfFov = TanHalf(fov) * camera->projScale * 0.5F;

    // REQUIRED R27: the normals carry the tangent across and the image plane's half width ahead.
    const bool rightAngle = fov == 90.0F;
    const Single t = rightAngle ? 1.0F : camera->tanHalfFov;
    const Single h = rightAngle ? 1.0F : camera->projScale * 0.5F;
    SetClipPlane(&camera->clipPosX, t, 0.0F, -h);
    SetClipPlane(&camera->clipNegX, -t, 0.0F, -h);
    SetClipPlane(&camera->clipPosY, 0.0F, t, -h);
    SetClipPlane(&camera->clipNegY, 0.0F, -t, -h);
}

void CameraBuildView(Camera* camera, std::int32_t order) {
    enum Axis { X, Y, Z };
    // clang-format off
    constexpr Axis kOrders[6][3] = {
        {X, Y, Z}, {Y, X, Z}, {X, Z, Y}, {Y, Z, X}, {Z, Y, X}, {Z, X, Y},
    };
    // clang-format on
    if (order < 0 || order >= 6) {
        return;
    }

    // Turn back by each angle.
    const Vec3& a = camera->angles;
    const Matrix4 turns[3] = {RotationX(-SinDeg(a.x), CosDeg(a.x)),
                              RotationY(-SinDeg(a.y), CosDeg(a.y)),
                              RotationZ(-SinDeg(a.z), CosDeg(a.z))};

    // Translate, then turn in the order asked for.
    const Axis* axes = kOrders[order];
    Matrix4 two;
    Matrix4 rotation;
    Matrix4Multiply(&turns[axes[0]], &turns[axes[1]], &two);
    Matrix4Multiply(&two, &turns[axes[2]], &rotation);
    const Matrix4 translation = TranslationFromEye(*camera);
    Matrix4Multiply(&translation, &rotation, &camera->view);
}

void CameraLookAt(Camera* camera, std::int32_t fromAngles) {
    if (fromAngles == 1) {
        // REQUIRED R28: the target lies about the world's origin, wherever the eye is.
        const Single alpha = camera->angles.x;
        const Single beta = camera->angles.y;
        camera->target = {-SinDeg(beta) * SinDeg(alpha), CosDeg(alpha),
                          CosDeg(beta) * SinDeg(alpha), 1.0F};
    }

    // Build the basis from the line of sight and the world's up.
    Vec3& right = camera->right;
    Vec3& up = camera->up;
    Vec3& forward = camera->forward;
    Vec3Sub(&camera->position, &camera->target, &forward);
    up = {0.0F, 1.0F, 0.0F, 1.0F};
    Vec3Cross(&up, &forward, &right);
    Vec3Cross(&forward, &right, &up);
    Vec3Normalize(&right);
    Vec3Normalize(&up);
    Vec3Normalize(&forward);

    // Its vectors are the columns of the view's rotation.
    const Matrix4 rotation = {{{right.x, up.x, forward.x, 0.0F},
                               {right.y, up.y, forward.y, 0.0F},
                               {right.z, up.z, forward.z, 0.0F},
                               {0.0F, 0.0F, 0.0F, 1.0F}}};
    const Matrix4 translation = TranslationFromEye(*camera);
    Matrix4Multiply(&translation, &rotation, &camera->view);
}

} // namespace ombrel
