// The checks of the shipped world, shown to find what they are for: each is given a world that was
// broken on purpose. The world as it ships is checked while the whole production plays (see
// frame_record_test.cpp).
#include "scenario/world_checks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "base/data_file.h"
#include "base/shell_state.h"
#include "demo/reset.h"
#include "demo/scene_two.h"
#include "demo/world.h"

namespace ombrel {
namespace {

constexpr char kSmall[] = "-w -ns -resolution=320x240";

class WorldChecks : public testing::Test {
protected:
    void SetUp() override {
        before = DataFolder();
        SetDataFolder(OMBREL_SOURCE_DIR "/data");
    }
    void TearDown() override {
        SetDataFolder(before);
        ResetWorld();
        ResetOffscreen();
    }
    // Plays the shipped data to a frame, with a look at the world after every frame; tamper is
    // called after the check of each.
    static WorldFindings Play(std::int64_t frames,
                              const std::function<void(std::int64_t)>& tamper) {
        WorldFindings findings{};
        RunProductionForTest(kSmall, [&](const RunFrame& f) {
            LookAtWorld(&findings, f);
            tamper(f.number);
            if (f.number == frames - 1) {
                EndRunAfterThisFrame();
            }
        });
        return findings;
    }
    std::string before;
};

void HandOver() {
    driver.sceneIndex = 1;
}

Mesh* BusiestObject() {
    return std::max_element(world.objects + kFirstSceneObject, world.objects + world.objectCounter,
                            [](const Mesh& a, const Mesh& b) { return a.faceCount < b.faceCount; });
}

TEST_F(WorldChecks, NothingIsFoundInTheFirstFramesOfBothScenes) {
    const WorldFindings one = Play(70, [](std::int64_t) {});
    EXPECT_EQ(WorldFaults(one), "");
    EXPECT_EQ(one.frames, 70);
    EXPECT_EQ(one.coveredFrames, 70);
    const WorldFindings two = Play(20, [](std::int64_t number) {
        if (number == 0) {
            HandOver();
        }
    });
    EXPECT_EQ(WorldFaults(two), "");
    EXPECT_EQ(two.coveredFrames, 20);
}

TEST_F(WorldChecks, HoleInTheSkyOfTheDayShowsTheMarker) {
    const WorldFindings found = Play(120, [](std::int64_t number) {
        if (number == 0) {
            world.sky.faceCount /= 2; // it has two shells, one inside the other
        } else if (number == 100) {
            world.sky.faceCount /= 2;
        }
    });
    EXPECT_GT(found.uncovered, 0);
    EXPECT_GT(found.marked, 0);
    EXPECT_GE(found.firstBad, 1);
}

TEST_F(WorldChecks, HoleInTheNightShows) {
    const WorldFindings found = Play(20, [](std::int64_t number) {
        if (number == 0) {
            HandOver();
        } else if (number == 10) {
            world.skyAlphaS2.faceCount = 0;
        }
    });
    EXPECT_GT(found.uncovered, 0);
    EXPECT_EQ(found.firstBad, 11);
    EXPECT_EQ(found.marked, 0); // the night blends with the picture before: no marker there
}

TEST_F(WorldChecks, PictureThatClearsIsNotAskedToBeCovered) {
    const WorldFindings found = Play(4, [](std::int64_t) {
        world.camera.position.y = 3600.0F; // above the box: white from the next frame on
    });
    EXPECT_EQ(found.coveredFrames, 1);
    const WorldFindings dots = Play(4, [](std::int64_t number) {
        if (number == 0) {
            HandOver();
            switches.renderMode1 = 0;
        }
    });
    EXPECT_EQ(dots.coveredFrames, 1);
}

TEST_F(WorldChecks, ObjectAroundTheEyeIsFound) {
    std::int32_t where = -1;
    const WorldFindings found = Play(6, [&where](std::int64_t number) {
        if (number == 2) {
            // The reef is a closed stone.
            for (std::int32_t e = kFirstSceneObject; e < world.objectCounter && where < 0; ++e) {
                Mesh& object = world.objects[e];
                const Vec3 middle = object.position;
                if (object.faceCount > 0 &&
                    EyeInside({middle.x, middle.y + 30.0F, middle.z, 0.0F}, object)) {
                    const Vec3& eye = world.camera.position;
                    object.position = {eye.x, eye.y - 30.0F, eye.z, 0.0F};
                    where = e;
                }
            }
        }
    });
    ASSERT_GE(where, 0);
    EXPECT_EQ(found.inside, 3);
    EXPECT_EQ(found.firstBad, 3);
}

// A box of two units around (10, 20, 30), seen from outside.
TEST(WorldChecksParts, EyeIsInsideABoxOrNot) {
    Mesh box{};
    ASSERT_EQ(AllocateMeshArrays(&box, 8, 12, 1, false), 1);
    box.position = {10.0F, 20.0F, 30.0F, 0.0F};
    for (int i = 0; i < 8; ++i) {
        box.vertices[i].x = (i & 1) != 0 ? 1.0F : -1.0F;
        box.vertices[i].y = (i & 2) != 0 ? 1.0F : -1.0F;
        box.vertices[i].z = (i & 4) != 0 ? 1.0F : -1.0F;
    }
    // (b - a) x (c - a) points out of the box.
    const int corners[12][3] = {{0, 2, 3}, {0, 3, 1}, {4, 5, 7}, {4, 7, 6}, {0, 4, 6}, {0, 6, 2},
                                {1, 3, 7}, {1, 7, 5}, {0, 1, 5}, {0, 5, 4}, {2, 6, 7}, {2, 7, 3}};
    for (int i = 0; i < 12; ++i) {
        box.faces[i].v0 = corners[i][0];
        box.faces[i].v1 = corners[i][1];
        box.faces[i].v2 = corners[i][2];
    }
    EXPECT_TRUE(EyeInside({10.3F, 20.2F, 30.1F, 0.0F}, box));
    EXPECT_TRUE(EyeInside({9.1F, 19.1F, 29.2F, 0.0F}, box));
    EXPECT_FALSE(EyeInside({10.3F, 18.9F, 30.1F, 0.0F}, box)); // below
    EXPECT_FALSE(EyeInside({10.3F, 21.1F, 30.1F, 0.0F}, box)); // above
    EXPECT_FALSE(EyeInside({11.1F, 20.2F, 30.1F, 0.0F}, box)); // beside
    EXPECT_FALSE(EyeInside({10.3F, 20.2F, 28.9F, 0.0F}, box));
    ReleaseMesh(&box);
}

TEST_F(WorldChecks, TexelOutsideIsFound) {
    const WorldFindings found = Play(6, [](std::int64_t number) {
        if (number == 2) {
            for (std::int32_t e = kFirstSceneObject; e < world.objectCounter; ++e) {
                Mesh& object = world.objects[e];
                for (std::int32_t i = 0; i < object.faceCount; ++i) {
                    const Face& face = object.faces[i];
                    if ((face.flags & FACE_TEXTURED) != 0) {
                        face.texCoordArray[face.t0].v =
                            static_cast<float>(face.texture.single->height) + 0.5F;
                    }
                }
            }
        }
    });
    EXPECT_GT(found.texelsOutside, 0);
    EXPECT_EQ(found.firstBad, 3);
}

TEST(WorldChecksParts, FaultsNameEveryFinding) {
    WorldFindings good{};
    good.frames = 10;
    good.firstBad = -1;
    good.mostFaces = 40000;
    EXPECT_EQ(WorldFaults(good), "");
    const auto with = [&good](auto change) {
        WorldFindings bad = good;
        change(bad);
        return WorldFaults(bad);
    };
    EXPECT_NE(with([](WorldFindings& w) { w.mostFaces = kFaceLimit + 1; }), "");
    EXPECT_NE(with([](WorldFindings& w) { w.mostFaces = kBusyMost + 1; }), "");
    EXPECT_NE(with([](WorldFindings& w) { w.mostFaces = kBusyLeast - 1; }), "");
    EXPECT_NE(with([](WorldFindings& w) { w.uncovered = 1; }), "");
    EXPECT_NE(with([](WorldFindings& w) { w.marked = 1; }), "");
    EXPECT_NE(with([](WorldFindings& w) { w.inside = 1; }), "");
    EXPECT_NE(with([](WorldFindings& w) { w.texelsOutside = 1; }), "");
}

TEST_F(WorldChecks, LoadedCountsAreWithinTheLimits) {
    std::int32_t materialsUsed = 0;
    Play(1, [&materialsUsed](std::int64_t) {
        materialsUsed = materialBase;
        std::vector<const Mesh*> all = {&world.sky,        &world.skyAlpha0, &world.skyAlphaS2,
                                        &world.stay,       &world.ground,    &world.groundAlpha,
                                        &world.lightMarker};
        for (std::int32_t e = kFirstSceneObject + 1; e <= world.objectCounter; ++e) {
            all.push_back(&world.objects[e]);
        }
        EXPECT_GT(all.size(), 7U + 12U);
        for (const Mesh* mesh : all) {
            EXPECT_NE(mesh->flags & MESH_LOADED, 0U);
            EXPECT_GT(mesh->faceCount, 0);
            EXPECT_LE(mesh->faceCount, kMaxMeshFaces);
            EXPECT_GT(mesh->vertexCount, 2);
            EXPECT_LE(mesh->vertexCount, kMaxMeshVertices);
        }
        EXPECT_GT(BusiestObject()->faceCount, 300);
    });
    EXPECT_GT(materialsUsed, 12);
    EXPECT_LE(materialsUsed, kMaxMaterials);
}

} // namespace
} // namespace ombrel
