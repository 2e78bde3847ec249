// The camera: set-up, field of view, views from angles and from a target.
#include <cmath>
#include <cstring>

#include <gtest/gtest.h>

#include "base/float_mode.h"
#include "scene_fixture.h"

using namespace ombrel;

namespace {

void ExpectNormal(const Ray& plane, float x, float y, float z) {
    for (const float c : plane.origin) {
        EXPECT_EQ(c, 0.0F);
    }
    EXPECT_FLOAT_EQ(plane.direction[0], x);
    EXPECT_FLOAT_EQ(plane.direction[1], y);
    EXPECT_FLOAT_EQ(plane.direction[2], z);
}

void ExpectNear(const Vec3& v, float x, float y, float z) {
    EXPECT_NEAR(v.x, x, 1e-4F);
    EXPECT_NEAR(v.y, y, 1e-4F);
    EXPECT_NEAR(v.z, z, 1e-4F);
}

Vec3 Seen(const Camera& camera, const Vec3& point) {
    Vec3 out = {};
    Vec3TransformMatrix4(&point, &camera.view, &out);
    return out;
}

TEST(Camera, InitStoresAndDerives) {
    InitTrigTables();
    CameraSetup setup = {};
    setup.mode = 8;
    setup.position = {1.0F, 2.0F, 3.0F, 4.0F};
    setup.angles = {5.0F, 6.0F, 7.0F, 8.0F};
    setup.zNear = 1.0F;
    setup.zFar = 15000.0F;
    setup.fov = 90.0F;
    setup.screenWidth = 640.0F;
    setup.screenHeight = 480.0F;
    Camera c;
    std::memset(&c, 0xFF, sizeof c);
    CameraInit(&c, setup);
    EXPECT_EQ(c.mode, 8);
    EXPECT_EQ(c.position.w, 4.0F);
    EXPECT_EQ(c.angles.z, 7.0F);
    EXPECT_EQ(c.angles.w, 8.0F);
    EXPECT_EQ(c.right.x, 1.0F);
    EXPECT_EQ(c.up.y, 1.0F);
    EXPECT_EQ(c.forward.z, 1.0F);
    EXPECT_EQ(c.forward.w, 1.0F);
    EXPECT_EQ(c.target.z, 0.0F);
    EXPECT_EQ(c.target.w, 1.0F);
    EXPECT_EQ(c.zNear, 1.0F);
    EXPECT_EQ(c.zFar, 15000.0F);
    EXPECT_EQ(c.fov, 90.0F);
    EXPECT_EQ(c.tanHalfFov, 1.0F);
    EXPECT_EQ(c.screenCenterX, 319.5F);
    EXPECT_EQ(c.screenCenterY, 239.5F);
    EXPECT_EQ(c.aspect, 640.0F / 480.0F);
    EXPECT_EQ(c.projScale, 2.0F);
    EXPECT_FLOAT_EQ(c.projScaleY, 1.5F);
    EXPECT_EQ(std::memcmp(&c.view, &IdentityMatrix4, sizeof c.view), 0);
    EXPECT_EQ(std::memcmp(&c.matrixB, &IdentityMatrix4, sizeof c.view), 0);
    EXPECT_EQ(std::memcmp(&c.matrixC, &IdentityMatrix4, sizeof c.view), 0);

    const Vec3 target = {9.0F, 8.0F, 7.0F, 6.0F};
    setup.target = &target;
    CameraInit(&c, setup);
    EXPECT_EQ(c.target.x, 9.0F);
    EXPECT_EQ(c.target.w, 6.0F);
}

TEST(Camera, RightAngleHasTheLiteralPlanes) {
    Camera c = test::MakeCamera(640.0F, 480.0F, 90.0F);
    const float r = 0.7071068F;
    ExpectNormal(c.clipPosX, r, 0.0F, -r);
    ExpectNormal(c.clipNegX, -r, 0.0F, -r);
    ExpectNormal(c.clipPosY, 0.0F, r, -r);
    ExpectNormal(c.clipNegY, 0.0F, -r, -r);
}

TEST(Camera, RightAngleHasTangentOneInBothModes) {
    Camera c = test::MakeCamera(640.0F, 480.0F, 60.0F);
    CameraSetFov(&c, 90.0F);
    EXPECT_EQ(c.tanHalfFov, 1.0F);
    const ScopedFloatMode chop(FloatMode::Chop);
    CameraSetFov(&c, 60.0F);
    CameraSetFov(&c, 90.0F);
    EXPECT_EQ(c.tanHalfFov, 1.0F);
    EXPECT_EQ(c.fov, 90.0F);
}

TEST(Camera, R27_ClipNormalsCarryTheTangentAcrossAndOneAhead) {
    Camera c = test::MakeCamera(640.0F, 480.0F, 60.0F);
    EXPECT_FLOAT_EQ(c.tanHalfFov, 0.57735027F);
    // (t, 0, -1) has length 2 / sqrt(3): (0.5, 0, -0.8660254), not (0.866, 0, -0.5).
    ExpectNormal(c.clipPosX, 0.5F, 0.0F, -0.8660254F);
    ExpectNormal(c.clipNegX, -0.5F, 0.0F, -0.8660254F);
    ExpectNormal(c.clipPosY, 0.0F, 0.5F, -0.8660254F);
    ExpectNormal(c.clipNegY, 0.0F, -0.5F, -0.8660254F);
}

TEST(Camera, InitAndSetFovAgree) {
    for (const float fov : {10.0F, 45.0F, 60.0F, 90.0F, 91.0F, 120.0F, 170.0F}) {
        const Camera init = test::MakeCamera(640.0F, 480.0F, fov);
        Camera set = test::MakeCamera(640.0F, 480.0F, 77.0F);
        CameraSetFov(&set, fov);
        EXPECT_EQ(std::memcmp(&init, &set, sizeof init), 0) << fov;
        EXPECT_FLOAT_EQ(init.tanHalfFov,
                        static_cast<float>(std::tan(fov * 0.5 * 3.1415927410125732 / 180.0)))
            << fov;
    }
}

TEST(Camera, WithoutAnglesTheViewOnlyShifts) {
    Camera c = test::MakeCamera(640.0F, 480.0F, 90.0F);
    c.position = {10.0F, 20.0F, 30.0F, 1.0F};
    CameraBuildView(&c, 4);
    ExpectNear(Seen(c, {11.0F, 22.0F, 33.0F, 1.0F}), 1.0F, 2.0F, 3.0F);
    EXPECT_EQ(Seen(c, {0.0F, 0.0F, 0.0F, 1.0F}).w, 1.0F);
}

TEST(Camera, AnglesTurnTheWorldBack) {
    Camera c = test::MakeCamera(640.0F, 480.0F, 90.0F);
    c.angles = {0.0F, 90.0F, 0.0F, 1.0F}; // turned to the right: looks along +X
    CameraBuildView(&c, 4);
    ExpectNear(Seen(c, {5.0F, 0.0F, 0.0F, 1.0F}), 0.0F, 0.0F, 5.0F);
    c.angles = {90.0F, 0.0F, 0.0F, 1.0F}; // looks down
    CameraBuildView(&c, 4);
    ExpectNear(Seen(c, {0.0F, -5.0F, 0.0F, 1.0F}), 0.0F, 0.0F, 5.0F);
}

TEST(Camera, Order4IsTheInverseOfAnObjectsPlacing) {
    Camera c = test::MakeCamera(640.0F, 480.0F, 90.0F);
    c.position = {100.0F, -50.0F, 30.0F, 1.0F};
    c.angles = {20.0F, 130.0F, 310.0F, 1.0F};
    CameraBuildView(&c, 4);
    Matrix4 placed;
    Matrix4RotationXYZ(20.0F, 130.0F, 310.0F, &placed);
    placed.m[3][0] = 100.0F;
    placed.m[3][1] = -50.0F;
    placed.m[3][2] = 30.0F;
    Matrix4 both;
    Matrix4Multiply(&placed, &c.view, &both);
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            EXPECT_NEAR(both.m[i][j], i == j ? 1.0F : 0.0F, 1e-4F) << i << j;
        }
    }
}

TEST(Camera, SixOrdersOfTheInverseRotations) {
    Camera c = test::MakeCamera(640.0F, 480.0F, 90.0F);
    c.position = {0.0F, 0.0F, 0.0F, 1.0F};
    c.angles = {10.0F, 20.0F, 30.0F, 1.0F};
    Matrix4 turn[3];
    Matrix4RotationXYZ(-10.0F, 0.0F, 0.0F, &turn[0]);
    Matrix4RotationXYZ(0.0F, -20.0F, 0.0F, &turn[1]);
    Matrix4RotationXYZ(0.0F, 0.0F, -30.0F, &turn[2]);
    const int orders[6][3] = {{0, 1, 2}, {1, 0, 2}, {0, 2, 1}, {1, 2, 0}, {2, 1, 0}, {2, 0, 1}};
    for (int order = 0; order < 6; ++order) {
        Matrix4 two;
        Matrix4 want;
        Matrix4Multiply(&turn[orders[order][0]], &turn[orders[order][1]], &two);
        Matrix4Multiply(&two, &turn[orders[order][2]], &want);
        CameraBuildView(&c, order);
        for (int i = 0; i < 16; ++i) {
            EXPECT_NEAR(c.view.m[i / 4][i % 4], want.m[i / 4][i % 4], 1e-6F) << order;
        }
    }
}

TEST(Camera, AnInvalidOrderLeavesTheView) {
    Camera c = test::MakeCamera(640.0F, 480.0F, 90.0F);
    c.angles = {10.0F, 20.0F, 30.0F, 1.0F};
    CameraBuildView(&c, 6);
    CameraBuildView(&c, -1);
    EXPECT_EQ(std::memcmp(&c.view, &IdentityMatrix4, sizeof c.view), 0);
}

TEST(Camera, LooksAtItsTarget) {
    Camera c = test::MakeCamera(640.0F, 480.0F, 90.0F);
    c.position = {10.0F, 0.0F, 0.0F, 1.0F};
    c.target = {10.0F, 0.0F, -7.0F, 1.0F};
    CameraLookAt(&c, 0);
    ExpectNear(Seen(c, c.target), 0.0F, 0.0F, 7.0F);
    ExpectNear(Seen(c, {10.0F, 3.0F, -7.0F, 1.0F}), 0.0F, 3.0F, 7.0F);
    // Looking along -Z, right is -X.
    ExpectNear(Seen(c, {8.0F, 0.0F, -7.0F, 1.0F}), 2.0F, 0.0F, 7.0F);
    ExpectNear(c.right, -1.0F, 0.0F, 0.0F);
    ExpectNear(c.up, 0.0F, 1.0F, 0.0F);
    ExpectNear(c.forward, 0.0F, 0.0F, -1.0F);
}

TEST(Camera, LookAtFromAnglesTakesTheTargetOnlyForOne) {
    Camera c = test::MakeCamera(640.0F, 480.0F, 90.0F);
    c.angles = {90.0F, 0.0F, 0.0F, 1.0F};
    c.target = {3.0F, 4.0F, 5.0F, 1.0F};
    CameraLookAt(&c, 2);
    EXPECT_EQ(c.target.x, 3.0F);
    EXPECT_EQ(c.target.z, 5.0F);
}

TEST(Camera, R28_TheTargetFromAnglesLiesAboutTheOrigin) {
    Camera c = test::MakeCamera(640.0F, 480.0F, 90.0F);
    c.position = {70.0F, 100.0F, -90.0F, 1.0F};
    c.angles = {90.0F, 90.0F, 0.0F, 1.0F};
    CameraLookAt(&c, 1);
    EXPECT_EQ(c.target.x, -SinTableDeg[90] * SinTableDeg[90]);
    EXPECT_EQ(c.target.y, CosTableDeg[90]);
    EXPECT_EQ(c.target.z, CosTableDeg[90] * SinTableDeg[90]);
    EXPECT_EQ(c.target.w, 1.0F);
    c.angles = {60.0F, 0.0F, 0.0F, 1.0F};
    CameraLookAt(&c, 1);
    ExpectNear(c.target, 0.0F, 0.5F, 0.8660254F);
}

} // namespace
