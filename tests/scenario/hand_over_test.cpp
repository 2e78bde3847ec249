// How long scene one lasts, and where scene two starts on its track.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/shell_state.h"
#include "demo/reset.h"
#include "demo/scene_one.h"
#include "demo/scene_two.h"
#include "demo/scenes.h"
#include "demo/startup.h"
#include "scene/camera.h"
#include "support/hand_made_data.h"
#include "support/production_run.h"

namespace ombrel {
namespace {

class HandOver : public testing::Test {
protected:
    void TearDown() override {
        ResetWorld();
        ResetOffscreen();
    }
    // Start-up with nothing but the two tracks.
    void Start(const std::string& first, const std::string& second) {
        ResetForRun();
        folder.Write("cam/scene1.trk", first);
        folder.Write("cam/scene2.trk", second);
        shell.screenWidth = 320;
        shell.screenHeight = 240;
        shell.noSound = true;
        StartUp();
    }
    static std::int64_t FramesOfSceneOne() {
        std::int64_t frames = 0;
        while (driver.sceneIndex == 0 && frames < 100000) {
            PlayScene(kScenes[0]);
            ++driver.frameCounter;
            ++frames;
        }
        return frames;
    }
    DataFolderForTest folder;
};

std::string TrackOfSteps(const std::vector<const char*>& steps) {
    std::vector<TrackKeyText> keys;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        keys.push_back({static_cast<float>(i), 0, 0, 0, 0, 0, 90, steps[i]});
    }
    return TrackText(keys);
}

TEST_F(HandOver, AllStepsEqual) {
    const struct {
        const char* step;
        std::int64_t frames;
    } rows[] = {{"1", 33},        {"0.0625", 513},     {"0.03125", 1025},  {"0.0208333", 1569},
                {"0.02", 1633},   {"0", 1633},         {"-1", 1633},       {"0.015625", 2049},
                {"0.0125", 2593}, {"0.0104167", 3073}, {"0.0078125", 4097}};
    for (const auto& row : rows) {
        Start(TrackOfSteps(std::vector<const char*>(35, row.step)), "");
        EXPECT_EQ(FramesOfSceneOne(), row.frames) << row.step;
        EXPECT_EQ(world.camera.position.x, 33.0F); // exactly at key 33
    }
}

TEST_F(HandOver, StepsOfSegmentsAddUpAndKeyZeroAndThirtyThreeCountForNothing) {
    // Frames of a segment with a step, additions cut toward zero.
    const struct {
        const char* step;
        std::int64_t frames;
    } table[] = {{"0.5", 2},     {"0.25", 4},   {"0.2", 6},     {"0.125", 8}, {"0.1", 11},
                 {"0.0625", 16}, {"0.05", 21},  {"0.04", 26},   {"0.03", 34}, {"0.025", 41},
                 {"0.015", 67},  {"0.01", 101}, {"0.008", 126}, {"2", 1},     {"1", 1}};
    std::vector<const char*> steps = {"0.001"};
    std::int64_t expected = 1;
    for (std::size_t i = 0; i < 32; ++i) {
        const auto& row = table[(i * 7 + 3) % std::size(table)];
        steps.push_back(row.step);
        expected += row.frames;
    }
    steps.push_back("0.001");
    steps.push_back("0.001");
    ASSERT_EQ(steps.size(), 35U);
    Start(TrackOfSteps(steps), "");
    EXPECT_EQ(FramesOfSceneOne(), expected);
}

TEST_F(HandOver, FramesOfASegment) {
    const struct {
        const char* step;
        std::int64_t frames;
    } rows[] = {{"0.5", 2},          {"0.25", 4},     {"0.2", 6},      {"0.125", 8},
                {"0.1", 11},         {"0.0625", 16},  {"0.05", 21},    {"0.04", 26},
                {"0.03125", 32},     {"0.03", 34},    {"0.025", 41},   {"0.02", 51},
                {"0.015625", 64},    {"0.015", 67},   {"0.0125", 81},  {"0.01", 101},
                {"0.0078125", 128},  {"0.008", 126},  {"0.005", 201},  {"0.004", 251},
                {"0.00390625", 256}, {"0.0025", 401}, {"0.002", 501},  {"0.001", 1001},
                {"0.0201", 50},      {"0.0101", 100}, {"0.00501", 200}};
    for (const auto& row : rows) {
        Start(TrackOfSteps(std::vector<const char*>(5, row.step)), "");
        TrackKey keys[5];
        ASSERT_EQ(TrackLoad("./data/cam/scene1.trk", keys, 5), 5);
        std::int64_t frames = 0;
        while (TrackSample(&world.camera, keys, 5) == 0) {
            ++frames;
        }
        EXPECT_EQ(frames, row.frames) << row.step;
    }
}

TEST_F(HandOver, MoreKeysThanThirtyFiveChangeNothing) {
    for (const std::size_t count : {35U, 36U, 60U}) {
        Start(TrackOfSteps(std::vector<const char*>(count, "0.5")), "");
        EXPECT_EQ(FramesOfSceneOne(), 65) << count;
    }
}

TEST_F(HandOver, R31_SceneTwoStartsWhereTheSharedSamplingStands) {
    const struct {
        const char* step33;
        std::size_t keys;
        std::int32_t segment;
        float t; // of the first sample
    } rows[] = {
        {"1", 35, 0, 0.0F},    {"1", 20, 0, 0.0F},     {"1", 36, 33, 0.0F},
        {"1.5", 40, 33, 0.0F}, {"0.25", 34, 0, 0.25F}, {"0.25", 35, 32, 0.25F},
        {"0.25", 3, 0, 0.25F},
    };
    for (const auto& row : rows) {
        std::vector<const char*> steps(35, "1");
        steps[33] = row.step33;
        Start(TrackOfSteps(steps), TrackOfSteps(std::vector<const char*>(row.keys, "0.125")));
        FramesOfSceneOne();
        PlayScene(kScenes[1]);
        EXPECT_EQ(trackSegment, row.segment) << row.step33 << " " << row.keys;
        EXPECT_EQ(trackT, row.t + 0.125F) << row.step33 << " " << row.keys;
        // Keys stand at x 0, 1, 2 ...: with equal spacing the spline goes straight.
        EXPECT_NEAR(world.camera.position.x, static_cast<float>(row.segment + 1) + row.t, 1e-4F);
        UnlockFrame();
    }
}

} // namespace
} // namespace ombrel
