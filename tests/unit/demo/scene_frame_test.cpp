// What both scenes share: tiles, list objects, turning objects.
#include "demo/scene_frame.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>
#include <utility>

#include "base/shell_state.h"
#include "demo/reset.h"
#include "demo/startup.h"
#include "support/hand_made_data.h"
#include "support/production_run.h"

namespace ombrel {
namespace {

class SceneFrame : public testing::Test {
protected:
    void SetUp() override {
        ResetForRun();
        WriteWholeFolder(folder, "1");
        shell.noSound = true;
        shell.windowed = 1;
        StartUp();
        StartOver();
        // High above the middle, looking straight down: the whole field is in sight.
        LookFrom({0, 12000, 0, 1}, {90, 0, 0, 1});
    }
    void TearDown() override {
        ResetWorld();
        ResetOffscreen();
    }
    // The frame's start: an empty list.
    void StartOver() { StartFaces(&front, &sceneFaces, FaceSettingsOf(&world, switches)); }
    static void LookFrom(Vec3 position, Vec3 angles) {
        world.camera.position = position;
        world.camera.angles = angles;
        CameraBuildView(&world.camera, 4);
    }
    // Middles of the tiles in the list, from their two faces' corners, in units of 1000.
    static std::map<std::pair<int, int>, int> Tiles() {
        std::map<std::pair<int, int>, int> tiles;
        for (int i = 0; i < sceneFaces.count; ++i) {
            const RenderFace& face = *sceneFaces.pointers[i];
            float x = 1e9F;
            float z = 1e9F;
            for (const FaceCorner& v : face.work) {
                x = std::min(x, v.x);
                z = std::min(z, v.z);
            }
            ++tiles[{static_cast<int>(std::lround(x / 1000)),
                     static_cast<int>(std::lround(z / 1000))}];
        }
        return tiles;
    }
    DataFolderForTest folder;
    FrontEnd front = {};
};

TEST_F(SceneFrame, FieldOfEightHasSixtyTiles) {
    AddGroundTiles(&front, &world.ground, world.camera, 8);
    const auto tiles = Tiles();
    EXPECT_EQ(sceneFaces.count, 120);
    EXPECT_EQ(tiles.size(), 60U);
    for (int i = -4; i < 4; ++i) {
        for (int j = -4; j < 4; ++j) {
            const bool corner = (i == -4 || i == 3) && (j == -4 || j == 3);
            EXPECT_EQ(tiles.count({i, j}), corner ? 0U : 1U) << i << "," << j;
        }
    }
}

TEST_F(SceneFrame, OtherFieldSizes) {
    for (const auto& [size, count] :
         {std::pair{6, 32}, {4, 12}, {7, 32}, {3, 0}, {2, 0}, {1, 0}, {0, 0}, {-1, 0}}) {
        StartOver();
        AddGroundTiles(&front, &world.ground, world.camera, size);
        EXPECT_EQ(sceneFaces.count, 2 * count) << size;
    }
}

TEST_F(SceneFrame, TilesAreAddedRowByRow) {
    AddGroundTiles(&front, &world.ground, world.camera, 8);
    // The first is i -4, j -3; positions are the exact sums.
    EXPECT_EQ(world.ground.position.x, 3500.0F); // the last one tried: i 3, j 2
    EXPECT_EQ(world.ground.position.z, 2500.0F);
    const RenderFace& first = *sceneFaces.pointers[0];
    EXPECT_NEAR(first.work[0].x, -3000.0F, 0.01F); // vertex 1 of the file stands at +500, -500
    EXPECT_NEAR(first.work[0].z, -3000.0F, 0.01F);
}

TEST_F(SceneFrame, TilesOutOfSightAreLeftOut) {
    LookFrom({0, 200, 0, 1}, {0, 0, 0, 1});
    AddGroundTiles(&front, &world.ground, world.camera, 8);
    EXPECT_GT(sceneFaces.count, 10);
    EXPECT_LT(sceneFaces.count, 90);
    for (const auto& [place, faces] : Tiles()) {
        EXPECT_GE(place.second, -2); // nothing far behind the eye
    }
}

float AngleOf(const Vertex& v) {
    return std::atan2(v.z, v.x) * 57.29578F;
}

TEST_F(SceneFrame, R42_LastObjectIsNeverDrawnAndTwoOfThoseBeforeTurn) {
    ASSERT_EQ(world.objectCounter, 15);
    const float before12 = AngleOf(world.objects[12].vertices[8]);
    const float before13 = AngleOf(world.objects[13].vertices[8]);
    const float before14 = AngleOf(world.objects[14].vertices[8]);
    LookFrom({0, 200, 0, 1}, {0, 0, 0, 1});
    AddListObjects(&front, &world);
    // Entries 12, 13 and 14 of twelve faces each; entry 15 is the last.
    EXPECT_EQ(sceneFaces.count, 36);
    const float turn13 = AngleOf(world.objects[13].vertices[8]) - before13;
    const float turn12 = AngleOf(world.objects[12].vertices[8]) - before12;
    EXPECT_NEAR(std::fabs(turn13), 0.2F, 0.01F);
    EXPECT_NEAR(turn12, -turn13, 0.01F);
    EXPECT_EQ(AngleOf(world.objects[14].vertices[8]), before14);
}

TEST_F(SceneFrame, BothTurnOnlyWhileTheSecondBeforeTheLastIsInSight) {
    LookFrom({0, 200, 0, 1}, {0, 0, 0, 1});
    world.objects[13].position.z = -9000;
    const Vertex before12 = world.objects[12].vertices[0];
    const Vertex before13 = world.objects[13].vertices[0];
    AddListObjects(&front, &world);
    EXPECT_EQ(world.objects[12].vertices[0].x, before12.x);
    EXPECT_EQ(world.objects[13].vertices[0].x, before13.x);
    // The one before turns even where it is out of sight itself.
    world.objects[13].position.z = 1500;
    world.objects[12].position.z = -9000;
    AddListObjects(&front, &world);
    EXPECT_NE(world.objects[12].vertices[0].x, before12.x);
}

TEST_F(SceneFrame, R42_EmptyEntriesAreHarmlessAlsoWhereTheyTurn) {
    LookFrom({0, 200, 0, 1}, {0, 0, 0, 1});
    for (const std::int32_t counter : {11, 12, 13, 14}) {
        StartOver();
        world.objectCounter = counter;
        AddListObjects(&front, &world);
        EXPECT_EQ(sceneFaces.count, 12 * std::max(counter - 12, 0)) << counter;
    }
    world.objectCounter = 15;
}

TEST_F(SceneFrame, TurningObjectsAddUp) {
    const float before = AngleOf(world.stay.vertices[8]);
    for (int i = 0; i < 100; ++i) {
        TurnObject(&world.stay);
    }
    EXPECT_NEAR(std::fabs(AngleOf(world.stay.vertices[8]) - before), 2.0F, 0.02F);
}

TEST_F(SceneFrame, ObjectWithoutSphereTestIsAddedBehindTheEyeToo) {
    LookFrom({0, 200, 0, 1}, {0, 0, 0, 1});
    world.stay.position.z = -9000;
    AddObjectInSight(&front, &world.stay, world.camera);
    EXPECT_EQ(sceneFaces.count, 0);
    TurnObject(&world.stay); // takes the mark of the test away again
    AddMesh(&front, &world.stay);
    EXPECT_EQ(sceneFaces.count, 12);
    EXPECT_NEAR(sceneFaces.pointers[0]->work[0].y, -560.0F - 1100.0F, 1.0F);
}

TEST_F(SceneFrame, PipelineFollowsItsSwitches) {
    LookFrom({0, 200, 0, 1}, {0, 0, 0, 1});
    SceneSwitches set = switches;
    const auto run = [&] {
        StartFaces(&front, &sceneFaces, FaceSettingsOf(&world, set));
        AddListObjects(&front, &world);
        FinishFaces(&front);
        std::set<std::uint32_t> states;
        for (int i = 0; i < sceneFaces.count; ++i) {
            states.insert(sceneFaces.records[i].state & (FACE_BACK | FACE_LIT));
        }
        return states;
    };
    EXPECT_EQ(run(), (std::set<std::uint32_t>{FACE_BACK, FACE_LIT}));
    set.backFace = 0;
    EXPECT_EQ(run(), (std::set<std::uint32_t>{FACE_LIT}));
    set.lighting = 0;
    EXPECT_EQ(run(), (std::set<std::uint32_t>{0}));
    set.backFace = 1;
    EXPECT_EQ(run(), (std::set<std::uint32_t>{FACE_BACK, 0}));
    // A count of lights beyond the table, or below nothing, ends at the table.
    set.lighting = 1;
    for (const std::int32_t count : {kMaxLights + 90, -5}) {
        set.lightCount = count;
        EXPECT_EQ(run().count(FACE_LIT), 1U);
    }
    // Sorting moves the pointers: farthest first.
    set.sort = 1;
    run();
    float last = 1e9F;
    for (int i = 0; i < sceneFaces.count; ++i) {
        const RenderFace& face = *sceneFaces.pointers[i];
        if (IsDrawable(face.state)) {
            const float depth = face.work[0].z + face.work[1].z + face.work[2].z;
            EXPECT_LE(depth, last + 0.1F);
            last = depth;
        }
    }
    // Any other number leaves them in the order of addition.
    for (const std::int32_t sort : {0, 2, -1}) {
        set.sort = sort;
        run();
        for (int i = 0; i < sceneFaces.count; ++i) {
            EXPECT_EQ(sceneFaces.pointers[i], &sceneFaces.records[i]) << sort;
        }
    }
}

} // namespace
} // namespace ombrel
