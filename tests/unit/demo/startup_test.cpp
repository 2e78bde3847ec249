// Start-up and shut-down: the order of their calls, and what they leave in the world.
#include "demo/startup.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "base/float_mode.h"
#include "base/random15.h"
#include "base/shell_state.h"
#include "demo/font.h"
#include "demo/reset.h"
#include "demo/soundtrack.h"
#include "demo/world.h"
#include "platform/offscreen/offscreen.h"
#include "raster/blend_tables.h"
#include "support/hand_made_data.h"
#include "support/production_run.h"

namespace ombrel {
namespace {

class StartUpTest : public testing::Test {
protected:
    void SetUp() override {
        ResetForRun();
        WriteWholeFolder(folder, "1");
        shell.windowed = 1;
        shell.screenCenterX = 320;
        shell.screenCenterY = 240;
        StartSeamLog();
    }
    void TearDown() override {
        ResetWorld();
        ResetOffscreen();
    }
    DataFolderForTest folder;
};

TEST_F(StartUpTest, CallsOfTheSeamInTheirOrderInAWindow) {
    EXPECT_EQ(StartUp(), 1);
    EXPECT_EQ(SeamLog(), "EnableScreenSaver 0\n"
                         "OpenDisplay 640 480 16 1 0\n"
                         "SetRenderFloatMode\n"
                         "MoveMouseCursor 320 240\n"
                         "ReadMouseCursor\n"
                         "ShowMouseCursor 0\n"
                         "SoundGetVersion\n"
                         "SoundInit -1 44100\n"
                         "SoundStreamCreateFile ./data/sfx/soundtrack.mp3\n"
                         "SoundChannelPlay stream 0\n");
    EXPECT_EQ(offscreen.cursorCount, -1);
}

TEST_F(StartUpTest, FullScreenHidesTheCursorTwice) {
    shell.windowed = 0;
    shell.screenWidth = 320;
    shell.screenHeight = 240;
    shell.noSound = true;
    StartUp();
    EXPECT_EQ(SeamLog(), "EnableScreenSaver 0\n"
                         "OpenDisplay 320 240 16 0 0\n"
                         "ShowMouseCursor 0\n"
                         "SetRenderFloatMode\n"
                         "MoveMouseCursor 320 240\n"
                         "ReadMouseCursor\n"
                         "ShowMouseCursor 0\n");
    EXPECT_EQ(offscreen.cursorCount, -2);
}

TEST_F(StartUpTest, CursorStaysWhileItsSwitchIsOff) {
    switches.hideCursor = 0;
    StartUp();
    EXPECT_EQ(SeamLog().find("ShowMouseCursor"), std::string::npos);
}

// The steps that no call of the seam shows, seen from inside the last one.
struct Seen {
    int skyFaces, listObjects, markerFaces;
    bool fonts, depth, chop;
    std::uint32_t startTick;
    float blendFull;
};

void LookInside(const char* text, MessageKind kind, void* user) {
    (void)text;
    (void)kind;
    Seen* const seen = static_cast<Seen*>(user);
    seen->skyFaces = world.sky.faceCount;
    seen->listObjects = world.objectCounter - kFirstSceneObject;
    seen->markerFaces = world.lightMarker.faceCount;
    seen->fonts = fonts.big.glyphs[255] != nullptr && fonts.small.glyphs[255] != nullptr;
    seen->depth = world.depth != nullptr;
    seen->chop = CurrentFloatMode() == FloatMode::Chop;
    seen->startTick = driver.demoStartTick;
    offscreen.tick += 7000; // a box takes its time
}

TEST_F(StartUpTest, SoundComesLastAndTheStartTickBehindIt) {
    Seen seen{};
    script.soundVersion = 0x02040000;
    script.onMessage = LookInside;
    script.user = &seen;
    driver.sceneIndex = 5;
    switches.cameraRunning = 1;
    const std::uint32_t before = offscreen.tick;
    StartUp();
    EXPECT_EQ(seen.skyFaces, 12);
    EXPECT_EQ(seen.listObjects, 4);
    EXPECT_EQ(seen.markerFaces, 12);
    EXPECT_TRUE(seen.fonts);
    EXPECT_TRUE(seen.depth);
    EXPECT_TRUE(seen.chop);
    EXPECT_EQ(seen.startTick, 0U);
    EXPECT_EQ(driver.demoStartTick, before + 7000);
    EXPECT_EQ(driver.sceneIndex, 0);
    EXPECT_EQ(switches.cameraRunning, 0);
}

TEST_F(StartUpTest, RandomNumbersStartAtTheirSeed) {
    StartUp();
    const std::uint32_t state = 564546U * 214013U + 2531011U;
    EXPECT_EQ(Random15(), static_cast<std::int32_t>(state >> 16 & 0x7FFF));
}

TEST_F(StartUpTest, BlendTablesAreRoundedAndWhatFollowsIsCut) {
    StartUp();
    EXPECT_EQ(BlendTables[1][4], 1); // 4/7 is 0.57
    EXPECT_EQ(BlendTables[1][3], 0); // 3/7 is 0.43
    EXPECT_EQ(CurrentFloatMode(), FloatMode::Chop);
}

TEST_F(StartUpTest, Camera) {
    StartUp();
    EXPECT_EQ(world.camera.mode, 8);
    EXPECT_EQ(world.camera.position.x, 0.0F);
    EXPECT_EQ(world.camera.position.w, 1.0F);
    EXPECT_EQ(world.camera.zNear, 1.0F);
    EXPECT_EQ(world.camera.zFar, 15000.0F);
    EXPECT_EQ(world.camera.fov, 90.0F);
    EXPECT_EQ(world.camera.screenWidth, 640.0F);
    EXPECT_EQ(startUp.marker.x, 20.0F);
    EXPECT_EQ(startUp.marker.w, 1.0F);
    EXPECT_NEAR(startUp.cameraStart, 0.3F, 1e-6F);
    EXPECT_EQ(startUp.cursorX, 320);
    EXPECT_EQ(startUp.cursorY, 240);
    EXPECT_EQ(world.pitchPixels, 0);
    EXPECT_EQ(world.depthPitch, 2560);
}

void ExpectVec3(const Vec3& v, const Vec3& wanted, int light) {
    EXPECT_EQ(v.x, wanted.x) << light;
    EXPECT_EQ(v.y, wanted.y) << light;
    EXPECT_EQ(v.z, wanted.z) << light;
    EXPECT_EQ(v.w, wanted.w) << light;
}

TEST_F(StartUpTest, LightTableFieldByField) {
    std::memset(static_cast<void*>(world.lights), 0x5A, sizeof world.lights);
    StartUp();
    Light expected[kMaxLights] = {};
    const std::uint32_t kinds[] = {1, 2, 4, 4, 4, 4};
    for (int i = 0; i < 6; ++i) {
        expected[i].enabled = 1;
        expected[i].kind = kinds[i];
    }
    expected[0].ambientColor = 0x8C866B00;
    expected[1].lightColor = 0xE7DBAD00;
    expected[2].lightColor = 0xFF800000;
    expected[3].lightColor = 0x0000FF00;
    expected[4].lightColor = 0xFF000000;
    expected[5].lightColor = 0xFF000000;
    for (int i = 2; i < 6; ++i) {
        expected[i].sourcePosition = expected[i].position = {0.0F, 1000.0F, 0.0F, 1.0F};
        expected[i].c1 = 0.001F;
        expected[i].exponent = 1.0F;
    }
    for (int i = 0; i < kMaxLights; ++i) {
        const Light& light = world.lights[i];
        EXPECT_EQ(light.enabled, expected[i].enabled) << i;
        EXPECT_EQ(light.kind, expected[i].kind) << i;
        EXPECT_EQ(light.ambientColor, expected[i].ambientColor) << i;
        EXPECT_EQ(light.lightColor, expected[i].lightColor) << i;
        ExpectVec3(light.sourcePosition, expected[i].sourcePosition, i);
        ExpectVec3(light.position, expected[i].position, i);
        if (i != 1) { // its direction is below
            ExpectVec3(light.sourceDirection, expected[i].sourceDirection, i);
            ExpectVec3(light.direction, expected[i].direction, i);
        }
        EXPECT_EQ(light.c0, expected[i].c0) << i;
        EXPECT_EQ(light.c1, expected[i].c1) << i;
        EXPECT_EQ(light.c2, expected[i].c2) << i;
        EXPECT_EQ(light.exponent, expected[i].exponent) << i;
    }
    const Vec3& d = world.lights[1].direction;
    EXPECT_NEAR(d.x, 0.61545745F, 1e-6F);
    EXPECT_NEAR(d.y, 0.49236596F, 1e-6F);
    EXPECT_NEAR(d.z, 0.61545745F, 1e-6F);
    EXPECT_EQ(std::memcmp(&d, &world.lights[1].sourceDirection, sizeof d), 0);
}

TEST_F(StartUpTest, FixedObjectsStandWhereTheTableSaysTurnedAndScaled) {
    StartUp();
    EXPECT_EQ(world.sky.position.y, 2000.0F);
    EXPECT_EQ(world.skyAlpha0.position.y, 2000.0F);
    EXPECT_EQ(world.skyAlphaS2.position.y, 2000.0F);
    EXPECT_EQ(world.stay.position.y, -560.0F);
    EXPECT_EQ(world.ground.position.y, 0.0F);
    // File axes (fx, fy, fz) end at x = -scale fy, y = scale fz, z = scale fx.
    const Vertex& v = world.stay.vertices[1]; // file (1, -1, -1)
    EXPECT_NEAR(v.x, 1100.0F, 0.1F);
    EXPECT_NEAR(v.y, -1100.0F, 0.1F);
    EXPECT_NEAR(v.z, 1100.0F, 0.1F);
    const Vertex& g = world.groundAlpha.vertices[1]; // file (-4, -4, 0)
    EXPECT_NEAR(g.x, 500.0F, 0.1F);
    EXPECT_NEAR(g.y, 0.0F, 0.1F);
    EXPECT_NEAR(g.z, -500.0F, 0.1F);
}

TEST_F(StartUpTest, R40_VertexZeroOfBothGroundsStandsAside) {
    StartUp();
    for (const Mesh* const ground : {&world.ground, &world.groundAlpha}) {
        // File (8.5, 0, 0) belongs at x 0, z 1062.5.
        EXPECT_NEAR(ground->curVertices[0].x, 50.0F, 0.1F);
        EXPECT_NEAR(ground->curVertices[0].z, 1062.5F, 0.1F);
        EXPECT_EQ(ground->curTransformed[0].x, 50.0F);
    }
    EXPECT_NEAR(world.sky.curVertices[0].x, 5000.0F, 1.0F);
}

TEST_F(StartUpTest, LightMarkerFacesTurnBlackWhereOnlyLive) {
    StartUp();
    ASSERT_EQ(world.lightMarker.faceCount, 12);
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(world.lightMarker.faces[i].active, FACE_LIVE);
        EXPECT_EQ(world.lightMarker.faces[i].color, 0U);
    }
    EXPECT_NE(world.sky.faces[0].color, 0U);
}

TEST_F(StartUpTest, FifteenBitDisplayPacksTheColorsOfTheObjects) {
    script.screenRgbBits = 15;
    StartUp();
    EXPECT_EQ(world.sky.faces[0].color & 0xFFFF, PackRgb555(76, 102, 204));
}

TEST_F(StartUpTest, WithoutAnyDataEverythingIsEmptyAndItStillReturns1) {
    for (const std::string& name : WholeFolderNames()) {
        folder.Remove(name);
    }
    EXPECT_EQ(StartUp(), 1);
    EXPECT_EQ(world.sky.faceCount, 0);
    EXPECT_EQ(world.objectCounter, 11);
    EXPECT_EQ(fonts.big.glyphs[65], nullptr);
    EXPECT_NE(world.depth, nullptr);
    EXPECT_EQ(soundtrack.stream, 0U);
}

TEST_F(StartUpTest, DisplayThatDoesNotOpenIsNotLookedAt) {
    script.failure = Failure::Screen;
    EXPECT_EQ(StartUp(), 1);
    EXPECT_EQ(world.sky.faceCount, 12);
    EXPECT_NE(SeamLog().find("SoundChannelPlay"), std::string::npos);
}

TEST_F(StartUpTest, ShutDownInItsOrder) {
    StartUp();
    StartSeamLog();
    ShutDown();
    EXPECT_EQ(SeamLog(), "CloseDisplay\n"
                         "EnableScreenSaver 1\n"
                         "RestoreDesktopDepth 0\n"
                         "SoundChannelStop stream\n"
                         "SoundSampleFree stream\n"
                         "SoundFree\n");
}

TEST_F(StartUpTest, ShutDownFullScreenWithoutSound) {
    shell.windowed = 0;
    shell.noSound = true;
    StartUp();
    StartSeamLog();
    ShutDown();
    EXPECT_EQ(SeamLog(), "CloseDisplay\nEnableScreenSaver 1\n");
}

TEST(DepthBuffer, TakesTwoFormats) {
    for (const std::uint32_t bits : {16U, 32U}) {
        void* const cells = AllocateDepthBuffer(64, 32, bits);
        ASSERT_NE(cells, nullptr);
        std::memset(cells, 1, 64 * 32 * bits / 8);
        std::free(cells);
    }
    for (const std::uint32_t bits : {0U, 1U, 8U, 24U, 48U, 64U}) {
        EXPECT_EQ(AllocateDepthBuffer(64, 32, bits), nullptr);
    }
    EXPECT_EQ(AllocateDepthBuffer(0, 32, 32), nullptr);
    EXPECT_EQ(AllocateDepthBuffer(64, -1, 32), nullptr);
}

TEST_F(StartUpTest, ResetGivesTheWorldOfTheProcessStart) {
    StartUp();
    ResetWorld();
    EXPECT_EQ(world.objectCounter, 11);
    EXPECT_EQ(world.sky.faces, nullptr);
    EXPECT_EQ(world.depth, nullptr);
    EXPECT_EQ(world.lights[0].enabled, 0U);
    EXPECT_EQ(fonts.big.attributes, 0U);
    EXPECT_EQ(CurrentFloatMode(), FloatMode::Nearest);
    EXPECT_EQ(switches.lightCount, 5);
}

} // namespace
} // namespace ombrel
