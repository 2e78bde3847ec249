// Scene two, call by call.
#include "demo/scene_two.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

#include "base/random15.h"
#include "base/shell_state.h"
#include "demo/font.h"
#include "demo/reset.h"
#include "demo/scenes.h"
#include "demo/startup.h"
#include "unit/demo/scene_fixture.h"

namespace ombrel {
namespace {

class SceneTwoTest : public test::SceneFixture {
protected:
    SceneTwoTest() : SceneFixture("1") {}
    // One frame as the frame driver makes it.
    static void Frame() {
        PlayScene(kScenes[1]);
        UnlockFrame();
        ++driver.frameCounter;
    }
};

TEST_F(SceneTwoTest, FirstCallSetsUp) {
    StartUp();
    driver.frameCounter = 1234;
    switches.lightCount = 2;
    Frame();
    EXPECT_EQ(switches.blur, 1);
    EXPECT_EQ(switches.cameraRunning, 1);
    EXPECT_EQ(switches.lightCount, 7);
    EXPECT_EQ(sceneTwo.startFrame, 1234U);
    EXPECT_EQ(sceneTwo.keyCount, 35);
    EXPECT_EQ(world.lights[0].ambientColor, 0x36263600U);
    EXPECT_EQ(world.lights[1].lightColor, 0x4E433A00U);
    EXPECT_EQ(world.lights[2].lightColor, 0xC82DC000U);
    EXPECT_EQ(world.lights[3].lightColor, 0xB8000F00U);
    EXPECT_EQ(world.lights[4].lightColor, 0xF55E0C00U);
    EXPECT_EQ(world.lights[5].lightColor, 0x2D0AF800U);
}

TEST_F(SceneTwoTest, ReturnsWithTheBackSurfaceLocked) {
    StartUp();
    PlayScene(kScenes[1]);
    EXPECT_NE(display.back.pixels, nullptr);
    EXPECT_EQ(UnlockFrame(), 1);
}

TEST_F(SceneTwoTest, LightsMoveWithTheirPhase) {
    RemoveObjects();
    StartUp();
    for (int f = 0; f < 400; ++f) {
        const double p = static_cast<double>(sceneTwo.lightPhase);
        EXPECT_NEAR(p, 60.0 + 0.01 * f, 0.003) << f;
        Frame();
        const double expected[4][2] = {
            {cos(0.84 * p) * cos(3 * p) * 4000, cos(3.9354 * p) * sin(p) * 3000},
            {cos(5.546 * p) * sin(3 * p) * 2000, sin(2.4554 * p) * cos(2.6184 * p) * 3000},
            {sin(1.0546 * p) * 3500, sin(1.1203 * p) * 2000},
            {sin(1.48456 * p) * 3345, cos(1.1203 * p) * 2845},
        };
        for (int i = 0; i < 4; ++i) {
            const Light& light = world.lights[2 + i];
            EXPECT_NEAR(static_cast<double>(light.position.x), expected[i][0], 0.5) << f;
            EXPECT_NEAR(static_cast<double>(light.position.z), expected[i][1], 0.5) << f;
            EXPECT_EQ(light.position.y, 500.0F);
        }
    }
}

TEST_F(SceneTwoTest, GridSizeOneHasNoTiles) {
    for (const char* const name :
         {"3d/sky-sphere-04-alpha-s2.cob", "3d/stay-01.cob", "scene1.po"}) {
        folder.Remove(name);
    }
    StartUp();
    Frame();
    EXPECT_GT(sceneFaces.count, 0);
    sceneTwo.gridSize = 1;
    Frame();
    EXPECT_EQ(sceneFaces.count, 0);
}

TEST_F(SceneTwoTest, CameraModes) {
    folder.Write("cam/scene2.trk", PlainTrack(10, "0.5"));
    StartUp();
    Frame();
    EXPECT_EQ(world.camera.position.z, 10.0F); // key 1
    const Vec3 eye{100, 50, -300, 1};
    world.camera.position = eye;
    world.camera.angles = {0, 90, 0, 1};
    Frame();
    EXPECT_NE(world.camera.position.x, eye.x); // the track has it
    switches.cameraRunning = 0;
    world.camera.position = eye;
    world.camera.angles = {0, 90, 0, 1};
    Frame();
    EXPECT_EQ(world.camera.position.x, eye.x);
    EXPECT_NEAR(world.camera.view.m[0][2], 1.0F, 0.001F); // looks along +X
    switches.cameraMode = 1;
    Frame();
    EXPECT_GT(world.camera.forward.z, 0.9F); // looks at the origin
    EXPECT_LT(world.camera.forward.x, 0.0F);
}

TEST_F(SceneTwoTest, BorderIsBlackEightPixelsWide) {
    RemoveObjects();
    StartUp();
    FillSurface(display.backSurface, 0xFFFF, nullptr);
    Frame();
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(At(i, 240), 0);
        EXPECT_EQ(At(639 - i, 240), 0);
        EXPECT_EQ(At(320, i), 0);
        EXPECT_EQ(At(320, 479 - i), 0);
    }
    EXPECT_NE(At(8, 240), 0);
    EXPECT_NE(At(631, 240), 0);
    EXPECT_NE(At(320, 8), 0);
    EXPECT_NE(At(320, 471), 0);
}

TEST_F(SceneTwoTest, BlockLineSlidesInFromBeyondTheRightEdge) {
    RemoveObjects();
    StartUp();
    for (int f = 0; f <= 54; ++f) {
        Frame();
    }
    // Its first frame: at 680, so nothing of it is inside.
    for (int x = 0; x < 640; ++x) {
        EXPECT_NE(At(x, 24 + kMarkY) & 0xFF00, kSmallMark);
    }
    Frame();
    Frame();
    // Third frame: angle 2 * 0.03965464, x = 680 - 53.79: cut to 626.
    EXPECT_TRUE(Small(626, 24, 'W'));
    for (int f = 57; f <= 102; ++f) {
        Frame();
    }
    EXPECT_TRUE(Small(38, 24, 'W'));
    EXPECT_TRUE(Small(38 + 12, 24, 'e'));
    EXPECT_NEAR(sceneTwo.block.angles[1], 1.9034218F, 1e-5F);
}

TEST_F(SceneTwoTest, ScrollerLineSlidesInFromBeyondTheRightEdge) {
    RemoveObjects();
    StartUp();
    for (int f = 0; f <= 1056; ++f) {
        Frame();
    }
    EXPECT_EQ(sceneTwo.scroller.line, 1);
    for (int x = 0; x < 640; ++x) {
        EXPECT_NE(At(x, 21 + kMarkY) & 0xFF00, kSmallMark);
    }
    Frame();
    Frame();
    // 660 - sin(2 * 0.03446879) * 689 = 612.5
    EXPECT_TRUE(Small(612, 21, ' '));
    for (int f = 1059; f <= 1111; ++f) {
        Frame();
    }
    EXPECT_TRUE(Small(7, 21, ' '));
    EXPECT_TRUE(Small(7 + 12 * 12, 21, 'H'));
    EXPECT_NEAR(sceneTwo.scroller.angles[1], 1.8957825F, 1e-5F);
}

TEST_F(SceneTwoTest, BlockAndGreetingsExcludeEachOtherInAFrame) {
    RemoveObjects();
    StartUp();
    for (int f = 0; f < 270; ++f) {
        Frame();
        EXPECT_EQ(sceneTwo.columns[0].phase, 0.0F) << f;
    }
    EXPECT_EQ(sceneTwo.block.stage, 5);
    FillSurface(display.backSurface, 0, nullptr);
    Frame();
    EXPECT_EQ(sceneTwo.columns[0].phase, 0.0356464F);
    EXPECT_FALSE(Small(38, 24, 'W'));
    // y = sin(0.0356464) * 481 = 17.14
    EXPECT_TRUE(Big(10, 17, kGreetingTexts[0][0]));
    EXPECT_TRUE(Big(90, 11, kGreetingTexts[6][0]));
    EXPECT_TRUE(Big(405, 21, kGreetingTexts[31][0]));
}

// A column falls by the sine of its phase, to one row below the picture: sin(0.92) * 481 = 382.7.
TEST_F(SceneTwoTest, ColumnsFallToTheRowBelowThePicture) {
    RemoveObjects();
    StartUp();
    sceneTwo.block.stage = kBlockSlots;
    sceneTwo.columns[0].phase = 0.92F - sceneTwo.columns[0].speed;
    Frame();
    EXPECT_TRUE(Big(10, 382, kGreetingTexts[0][0]));
    EXPECT_FALSE(Big(10, 381, kGreetingTexts[0][0]));
}

TEST_F(SceneTwoTest, R44_ColumnThatIsOffStillTakesItsRandomNumbers) {
    RemoveObjects();
    StartUp();
    sceneTwo.block.stage = kBlockSlots;
    for (GreetingColumn& column : sceneTwo.columns) {
        column.phase = 0;
    }
    sceneTwo.columns[2].phase = 1.57F;
    sceneTwo.columns[2].on = false;
    sceneTwo.columns[2].index = 1;
    SeedRandom15(99);
    // The speed by hand: the first number that gives 0.01 or more.
    float speed = 0;
    int draws = 0;
    do {
        speed = static_cast<float>(Random15()) * 3.051851e-5F * 0.04F;
        ++draws;
    } while (speed < 0.01F);
    const std::int32_t next = Random15();
    SeedRandom15(99);
    Frame();
    EXPECT_EQ(sceneTwo.columns[2].speed, speed);
    EXPECT_EQ(sceneTwo.columns[2].index, 2);
    EXPECT_FALSE(sceneTwo.columns[2].on);
    EXPECT_EQ(sceneTwo.columns[2].phase, 0.0F);
    EXPECT_EQ(Random15(), next) << draws;
}

TEST_F(SceneTwoTest, ColumnGoesOffBehindItsLastHandle) {
    RemoveObjects();
    StartUp();
    sceneTwo.block.stage = kBlockSlots;
    sceneTwo.columns[0].phase = 1.5707963F - 0.03F;
    sceneTwo.columns[0].index = 4;
    FillSurface(display.backSurface, 0, nullptr);
    Frame();
    EXPECT_FALSE(sceneTwo.columns[0].on);
    EXPECT_EQ(sceneTwo.columns[0].index, 0);
}

TEST_F(SceneTwoTest, DotViewReplacesTheFilledViewBehindFrame1800) {
    RemoveObjects();
    StartUp();
    driver.frameCounter = 500;
    Frame();
    driver.frameCounter = 500 + 1800;
    world.depth[0] = 7;
    Frame();
    EXPECT_EQ(switches.renderMode1, 1);
    EXPECT_EQ(world.depth[0], 0U); // filled
    switches.backFace = 0;
    world.depth[0] = 7;
    Frame();
    EXPECT_EQ(switches.renderMode1, 0);
    EXPECT_EQ(switches.backFace, 1);
    EXPECT_EQ(world.depth[0], 7U);
    EXPECT_EQ(world.lights[0].ambientColor, 0xA272A200U);
    EXPECT_EQ(world.lights[1].lightColor, 0xEAC9AE00U);
}

TEST_F(SceneTwoTest, BehindTheEndFlagNoDotsAndNoScrollerButStillFilledAndWire) {
    StartUp();
    Frame();
    sceneTwo.endFlag = true;
    const std::int32_t count = sceneTwo.scroller.frameCount;
    const auto litAfterFrame = [] {
        FillSurface(display.backSurface, 0, nullptr);
        switches.blur = -1;
        Frame();
        int lit = 0;
        LockFrame();
        for (int i = 0; i < 640 * 480; ++i) {
            lit += display.back.pixels[i] != 0 ? 1 : 0;
        }
        UnlockFrame();
        return lit;
    };
    sceneTwo.block.stage = kBlockSlots;
    for (GreetingColumn& column : sceneTwo.columns) {
        column.on = false;
    }
    EXPECT_GT(litAfterFrame(), 50000); // filled
    switches.renderMode2 = 0;
    EXPECT_GT(litAfterFrame(), 1000); // wire
    switches.renderMode1 = 0;
    EXPECT_EQ(litAfterFrame(), 0); // dots
    EXPECT_EQ(sceneTwo.scroller.frameCount, count);
    sceneTwo.endFlag = false;
    EXPECT_GT(litAfterFrame(), 20);
}

TEST_F(SceneTwoTest, SixtyFramesBehindTheEndFlagItQuitsAndDrawsNothing) {
    RemoveObjects();
    StartUp();
    Frame();
    sceneTwo.endFlag = true;
    StartSeamLog();
    for (int f = 1; f <= 60; ++f) {
        Frame();
        EXPECT_EQ(sceneTwo.closingCount, f);
    }
    EXPECT_EQ(SeamLog().find("PostQuit"), std::string::npos);
    FillSurface(display.backSurface, 0x1234, nullptr);
    const float phase = sceneTwo.lightPhase;
    PlayScene(kScenes[1]);
    EXPECT_NE(SeamLog().find("PostQuit 0"), std::string::npos);
    EXPECT_EQ(display.back.pixels, nullptr);
    EXPECT_EQ(At(0, 0), 0x1234);
    EXPECT_EQ(At(100, 100), 0x1234);
    EXPECT_EQ(sceneTwo.lightPhase, phase);
}

TEST_F(SceneTwoTest, R41_ThirteenthLineStandsAtItsPlaceFromTheSecondPageOn) {
    RemoveObjects();
    StartUp();
    Frame();
    sceneTwo.scroller.frameCount = 1000;
    int frames = 0;
    while (sceneTwo.scroller.page == 0) {
        Frame();
        ASSERT_LT(++frames, 1000);
    }
    EXPECT_EQ(frames, 768);
    EXPECT_GT(sceneTwo.scroller.angles[12], 1.8849556F);
    for (int j = 0; j < 12; ++j) {
        EXPECT_EQ(sceneTwo.scroller.angles[j], 0.0F);
    }
    EXPECT_EQ(sceneTwo.scroller.line, 0);
    frames = 0;
    while (sceneTwo.scroller.page == 12) {
        Frame();
        ASSERT_LT(++frames, 1000);
    }
    EXPECT_EQ(frames, 713); // 55 fewer: the thirteenth line need not slide in
}

TEST_F(SceneTwoTest, LastPageSetsTheEndFlagAndStartsOver) {
    RemoveObjects();
    StartUp();
    Frame();
    ScrollerState& s = sceneTwo.scroller;
    s.frameCount = 2000;
    s.page = 36;
    for (float& angle : s.angles) {
        angle = 1.9F;
    }
    s.line = 12;
    while (!sceneTwo.endFlag) {
        Frame();
    }
    EXPECT_EQ(s.page, 0);
    EXPECT_EQ(s.line, 0);
}

TEST_F(SceneTwoTest, MissingTrackLeavesTheCamera) {
    folder.Remove("cam/scene2.trk");
    StartUp();
    world.camera.position.x = 77;
    for (int f = 0; f < 10; ++f) {
        Frame();
    }
    EXPECT_EQ(sceneTwo.keyCount, 0);
    EXPECT_EQ(world.camera.position.x, 77.0F);
}

TEST_F(SceneTwoTest, DisplayThatDidNotOpenIsHarmless) {
    script.failure = Failure::Screen;
    StartUp();
    for (int f = 0; f < 5; ++f) {
        Frame();
    }
    EXPECT_EQ(display.back.pixels, nullptr);
}

} // namespace
} // namespace ombrel
