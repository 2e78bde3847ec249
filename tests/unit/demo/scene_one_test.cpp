// Scene one, call by call.
#include "demo/scene_one.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>

#include "base/shell_state.h"
#include "demo/font.h"
#include "demo/reset.h"
#include "demo/scenes.h"
#include "demo/startup.h"
#include "demo/texts.h"
#include "unit/demo/scene_fixture.h"

namespace ombrel {
namespace {

class SceneOneTest : public test::SceneFixture {
protected:
    SceneOneTest() : SceneFixture("0.0625") {}
    // Whether every mark of both titles is at its fixed place.
    bool TitleStands() {
        bool all = true;
        std::int32_t x = 210;
        for (const char* p = kTitleText; *p != '\0'; ++p, x += 20) {
            all = all && Big(x, 200, *p);
        }
        x = 100;
        for (const char* p = kSubtitleText; *p != '\0'; ++p, x += 12) {
            all = all && Small(x, 240, *p);
        }
        return all;
    }
};

TEST_F(SceneOneTest, FirstCallSetsUp) {
    StartUp();
    switches.blur = 1;
    switches.lightCount = 5;
    PlayScene(kScenes[0]);
    EXPECT_EQ(switches.blur, -1);
    EXPECT_EQ(switches.lightCount, 2);
    EXPECT_EQ(switches.cameraRunning, 1);
    EXPECT_EQ(sceneOne.keyCount, 35);
    EXPECT_FALSE(sceneOne.titleDone);
    EXPECT_EQ(display.back.pixels, nullptr); // unlocked
    EXPECT_EQ(world.camera.fov, 90.0F);      // by the track
}

TEST_F(SceneOneTest, WithoutATrackTheCameraStaysWithItsFirstField) {
    folder.Remove("cam/scene1.trk");
    StartUp();
    for (int i = 0; i < 50; ++i) {
        PlayScene(kScenes[0]);
    }
    EXPECT_EQ(sceneOne.keyCount, 0);
    EXPECT_EQ(world.camera.fov, 146.5F);
    EXPECT_EQ(world.camera.position.x, 0.0F);
    EXPECT_EQ(driver.sceneIndex, 0);
}

TEST_F(SceneOneTest, TracksOfOneAndTwoKeysLeaveTheCameraToo) {
    for (const int keys : {1, 2}) {
        ResetForRun();
        shell.noSound = true;
        folder.Write("cam/scene1.trk", PlainTrack(keys, "1"));
        StartUp();
        for (int i = 0; i < 40; ++i) {
            PlayScene(kScenes[0]);
        }
        EXPECT_EQ(sceneOne.keyCount, keys);
        EXPECT_EQ(world.camera.position.y, 0.0F);
        EXPECT_EQ(driver.sceneIndex, 0);
    }
}

TEST_F(SceneOneTest, LongTrackIsCutToTheTable) {
    folder.Write("cam/scene1.trk", PlainTrack(kMaxTrackKeys + 100, "1"));
    StartUp();
    PlayScene(kScenes[0]);
    EXPECT_EQ(sceneOne.keyCount, kMaxTrackKeys);
}

// red, green, blue of both lights as the table of the production's fade has them.
TEST_F(SceneOneTest, FadeValuesFrameByFrame) {
    RemoveObjects();
    StartUp();
    const std::map<int, std::array<std::uint32_t, 6>> expected = {
        {0, {0, 0, 0, 0, 0, 0}},
        {1, {0, 0, 0, 0, 0, 0}},
        {3, {0, 0, 0, 1, 1, 0}},
        {5, {1, 0, 1, 1, 1, 1}},
        {20, {4, 3, 4, 7, 6, 5}},
        {40, {8, 7, 8, 14, 13, 10}},
        {80, {17, 15, 17, 28, 27, 21}},
        {120, {26, 23, 26, 43, 41, 32}},
        {160, {35, 31, 35, 57, 54, 43}},
        {240, {53, 47, 53, 86, 82, 64}},
        {320, {71, 63, 71, 115, 109, 86}},
        {400, {89, 79, 89, 144, 136, 108}},
        {480, {107, 95, 107, 173, 164, 129}},
        {560, {125, 111, 125, 202, 191, 151}},
        {600, {134, 119, 134, 216, 205, 162}},
        {640, {143, 127, 143, 230, 218, 172}},
        {642, {144, 128, 144, 231, 219, 173}},
        {643, {144, 128, 144, 231, 219, 173}},
        {700, {144, 128, 144, 231, 219, 173}},
    };
    for (int f = 0; f <= 700; ++f) {
        PlayScene(kScenes[0]);
        if (expected.count(f) != 0) {
            const auto& e = expected.at(f);
            EXPECT_EQ(world.lights[0].ambientColor, PackLightColor(e[0], e[1], e[2])) << f;
            EXPECT_EQ(world.lights[1].lightColor, PackLightColor(e[3], e[4], e[5])) << f;
        }
        EXPECT_EQ(sceneOne.titleDone, f >= 643) << f;
    }
    EXPECT_EQ(sceneOne.ambientFade[0], 144.673538F);
    EXPECT_EQ(sceneOne.ambientFade[1], 128.598419F);
    EXPECT_EQ(sceneOne.ambientFade[2], 144.673538F);
    EXPECT_EQ(sceneOne.lightFade[0], 232.079727F);
    EXPECT_EQ(sceneOne.lightFade[1], 220.023590F);
    EXPECT_EQ(sceneOne.lightFade[2], 173.809250F);
}

TEST_F(SceneOneTest, TitlesKeepTheirPixelsAtEveryResolution) {
    RemoveObjects();
    for (const auto& [width, height] :
         {std::pair{640, 480}, {512, 384}, {800, 600}, {1024, 768}, {1280, 800}}) {
        ResetForRun();
        shell.noSound = true;
        shell.screenWidth = width;
        shell.screenHeight = height;
        StartUp();
        PlayScene(kScenes[0]);
        EXPECT_TRUE(TitleStands()) << width;
    }
}

TEST_F(SceneOneTest, SmallResolutionCutsTheTitles) {
    RemoveObjects();
    shell.screenWidth = 320;
    shell.screenHeight = 240;
    StartUp();
    PlayScene(kScenes[0]);
    EXPECT_EQ(At(210 + kMarkX, 200 + kMarkY), kBigMark + 0xAB);
}

TEST_F(SceneOneTest, R43_OutsideTheBoxTheGroundIsWhiteAFrameLate) {
    RemoveObjects();
    folder.Write("cam/scene1.trk", TrackText({{0, 200, 0, 0, 0, 0, 90, "1"},
                                              {0, 200, 3600, 0, 0, 0, 90, "1"},
                                              {0, 200, 0, 0, 0, 0, 90, "1"},
                                              {0, 200, 0, 0, 0, 0, 90, "1"}}));
    StartUp();
    PlayScene(kScenes[0]); // the eye goes to z 3600, the test saw the origin
    EXPECT_TRUE(sceneOne.insideBox);
    EXPECT_EQ(sceneOne.gridSize, 8);
    EXPECT_EQ(At(5, 5), 0);
    PlayScene(kScenes[0]); // the eye comes back, the test sees 3600
    EXPECT_FALSE(sceneOne.insideBox);
    EXPECT_EQ(sceneOne.gridSize, 6);
    EXPECT_EQ(At(5, 5), 0xFFFF);
    EXPECT_EQ(At(639, 479), 0xFFFF);
    EXPECT_EQ(world.camera.position.z, 0.0F);
    PlayScene(kScenes[0]);
    EXPECT_TRUE(sceneOne.insideBox);
    EXPECT_EQ(At(5, 5), 0xFFFF); // nothing clears it inside
}

TEST_F(SceneOneTest, BoxIsStrictOnEverySide) {
    folder.Remove("cam/scene1.trk");
    StartUp();
    const struct {
        Vec3 eye;
        bool inside;
    } cases[] = {
        {{0, 0, 0, 1}, true},       {{3500, 0, 0, 1}, false},    {{-3500, 0, 0, 1}, false},
        {{3499.9F, 0, 0, 1}, true}, {{-3499.9F, 0, 0, 1}, true}, {{0, 3500, 0, 1}, false},
        {{0, 3499.9F, 0, 1}, true}, {{0, -100, 0, 1}, false},    {{0, -99.9F, 0, 1}, true},
        {{0, 0, 3500, 1}, false},   {{0, 0, -3500, 1}, false},   {{0, 0, -3499.9F, 1}, true},
    };
    for (const auto& c : cases) {
        world.camera.position = c.eye;
        PlayScene(kScenes[0]);
        EXPECT_EQ(sceneOne.insideBox, c.inside) << c.eye.x << " " << c.eye.y << " " << c.eye.z;
    }
}

// Which objects are in the list: told by how many faces come from each vertex array.
int FacesOf(const Mesh& mesh) {
    int count = 0;
    for (int i = 0; i < sceneFaces.count; ++i) {
        for (int f = 0; f < mesh.faceCount; ++f) {
            count += sceneFaces.records[i].size == mesh.faces[f].size &&
                             sceneFaces.records[i].color == mesh.faces[f].color
                         ? 1
                         : 0;
        }
    }
    return count;
}

TEST_F(SceneOneTest, InsideTheSkyOutsideTheStandAndTheVeil) {
    folder.Remove("cam/scene1.trk");
    StartUp();
    world.camera.position = {0, 200, 0, 1};
    PlayScene(kScenes[0]);
    EXPECT_GT(FacesOf(world.sky), 0);
    EXPECT_EQ(FacesOf(world.skyAlpha0), 0);
    EXPECT_EQ(FacesOf(world.stay), 0);
    const float turned = world.sky.vertices[0].x;
    world.camera.position = {0, 5000, 0, 1};
    PlayScene(kScenes[0]);
    EXPECT_EQ(FacesOf(world.sky), 0);
    EXPECT_GT(FacesOf(world.skyAlpha0), 0);
    EXPECT_GT(FacesOf(world.stay), 0);
    EXPECT_EQ(world.sky.vertices[0].x, turned); // outside it does not turn
}

TEST_F(SceneOneTest, ViewsBySwitch) {
    RemoveObjects();
    const struct {
        int mode1, mode2;
        bool filled;
    } cases[] = {{1, 1, true},  {1, 0, false}, {0, 0, false}, {0, 1, false},
                 {2, 1, false}, {1, 2, false}, {-1, 0, false}};
    StartUp();
    for (const auto& c : cases) {
        switches.renderMode1 = c.mode1;
        switches.renderMode2 = c.mode2;
        world.depth[0] = 0xDEAD;
        PlayScene(kScenes[0]);
        // Only the filled view clears the depth buffer.
        EXPECT_EQ(world.depth[0] == 0, c.filled) << c.mode1 << " " << c.mode2;
    }
}

TEST_F(SceneOneTest, DotsAndWiresReachThePicture) {
    StartUp();
    int lit[3] = {};
    for (int view = 0; view < 3; ++view) {
        switches.renderMode1 = view == 0 ? 0 : 1;
        switches.renderMode2 = view == 1 ? 0 : 1;
        FillSurface(display.backSurface, 0, nullptr);
        for (int i = 0; i < 60; ++i) {
            PlayScene(kScenes[0]);
        }
        FillSurface(display.backSurface, 0, nullptr);
        sceneOne.titleDone = true;
        sceneOne.ambientFade[1] = 200;
        PlayScene(kScenes[0]);
        LockFrame();
        for (int i = 0; i < 640 * 480; ++i) {
            lit[view] += display.back.pixels[i] != 0 ? 1 : 0;
        }
        UnlockFrame();
    }
    EXPECT_GT(lit[0], 20);
    EXPECT_GT(lit[1], 4 * lit[0]);
    EXPECT_GT(lit[2], 100000);
}

TEST_F(SceneOneTest, BlurRunsWhenItsSwitchIs1) {
    RemoveObjects();
    StartUp();
    PlayScene(kScenes[0]);
    FillSurface(display.backSurface, 0, nullptr);
    const Rect dot{100, 100, 101, 101};
    FillSurface(display.backSurface, 0xFFFF, &dot);
    PlayScene(kScenes[0]);
    EXPECT_EQ(At(100, 100), 0xFFFF);
    switches.blur = 1;
    PlayScene(kScenes[0]);
    // A quarter goes to the row above, and of two such quarters comes back.
    EXPECT_EQ(At(98, 99), 7 << 11 | 15 << 5 | 7);
    EXPECT_EQ(At(100, 100), 3 << 11 | 7 << 5 | 3);
}

TEST_F(SceneOneTest, HandsOverInTheCallThatPassesKey31) {
    folder.Write("cam/scene1.trk", PlainTrack(35, "1"));
    StartUp();
    for (int f = 0; f < 32; ++f) {
        PlayScene(kScenes[0]);
        EXPECT_EQ(driver.sceneIndex, 0) << f;
    }
    PlayScene(kScenes[0]);
    EXPECT_EQ(driver.sceneIndex, 1);
    EXPECT_EQ(trackSegment, 32);
    EXPECT_EQ(world.camera.position.z, 330.0F); // exactly at key 33
}

TEST_F(SceneOneTest, With34KeysItLoopsForEver) {
    folder.Write("cam/scene1.trk", PlainTrack(34, "1"));
    StartUp();
    for (int f = 0; f < 200; ++f) {
        PlayScene(kScenes[0]);
    }
    EXPECT_EQ(driver.sceneIndex, 0);
}

TEST_F(SceneOneTest, DisplayThatDidNotOpenIsHarmless) {
    script.failure = Failure::Screen;
    StartUp();
    for (int f = 0; f < 5; ++f) {
        world.camera.position.y = 9000; // outside: the white fill too
        PlayScene(kScenes[0]);
    }
    EXPECT_EQ(display.back.pixels, nullptr);
}

} // namespace
} // namespace ombrel
