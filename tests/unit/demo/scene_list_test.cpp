// The scene list: what one read takes, and what the whole list loads.
#include "demo/scene_list.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "assets/object_loader.h"
#include "base/float_mode.h"
#include "demo/reset.h"
#include "support/hand_made_data.h"

namespace ombrel {
namespace {

struct Read {
    std::int32_t result;
    std::string path;
    std::vector<float> values;
};

std::vector<Read> ReadAll(const std::string& content) {
    SceneListText text{content.data(), content.data() + content.size()};
    SceneLine line{};
    std::vector<Read> reads;
    for (std::int32_t result = 0; (result = ReadSceneLine(&text, &line)) >= 0;) {
        reads.push_back({result, line.path, std::vector<float>(line.values, line.values + 9)});
    }
    return reads;
}

using Values = std::vector<float>;

TEST(SceneLine, WholeLine) {
    const auto reads = ReadAll("a.cob \t1, 2, 3; \t4.5, -5, 6e1; \t7, .5, 9;\n");
    ASSERT_EQ(reads.size(), 1U);
    EXPECT_EQ(reads[0].result, 10);
    EXPECT_EQ(reads[0].path, "a.cob");
    EXPECT_EQ(reads[0].values, (Values{1, 2, 3, 4.5F, -5, 60, 7, 0.5F, 9}));
}

TEST(SceneLine, BlanksStandForAnyBlanksOrNone) {
    const auto reads = ReadAll("\n\n  a 1,2,3;4,5,6;7,8,9;b\t\r\n1,\n2, 3;\v4,\f5,6 ; 7, 8, 9;");
    ASSERT_EQ(reads.size(), 3U);
    EXPECT_EQ(reads[0].values, (Values{1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(reads[1].path, "b");
    EXPECT_EQ(reads[1].result, 7); // a blank before the semicolon ends the read
    EXPECT_EQ(reads[2].path, ";");
    EXPECT_EQ(reads[2].result, 4); // 7, 8 and 9, then the text ends
}

TEST(SceneLine, R47_FewerThanNineNumbersKeepTheOthers) {
    const auto reads = ReadAll("a 1, 2, 3; 4, 5, 6; 7, 8, 9;\n"
                               "b 10, 20\n"
                               "c 11, 21, 31; 41, 51, 61; 71, 81, 91;\n");
    ASSERT_EQ(reads.size(), 3U);
    EXPECT_EQ(reads[1].result, 3);
    EXPECT_EQ(reads[1].path, "b");
    EXPECT_EQ(reads[1].values, (Values{10, 20, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(reads[2].path, "c");
    EXPECT_EQ(reads[2].result, 10);
    EXPECT_EQ(reads[2].values, (Values{11, 21, 31, 41, 51, 61, 71, 81, 91}));
}

TEST(SceneLine, R47_ReadGoesOnWhereTheOneBeforeStopped) {
    // After the comma a number is looked for across the line end; the point of "./c" is taken for
    // one and used up.
    const auto reads = ReadAll("b 1, 2,\n./c.cob 1, 1, 1; 2, 2, 2; 3, 3, 3;\n");
    ASSERT_EQ(reads.size(), 2U);
    EXPECT_EQ(reads[0].result, 3);
    EXPECT_EQ(reads[1].path, "/c.cob");
    EXPECT_EQ(reads[1].result, 10);
}

TEST(SceneLine, R47_CommentWithABlankIsReadAsAPath) {
    const auto reads = ReadAll("# a.cob 1, 2, 3; 4, 5, 6; 7, 8, 9;\n");
    ASSERT_EQ(reads.size(), 2U);
    EXPECT_EQ(reads[0].path, "#");
    EXPECT_EQ(reads[0].result, 1);
    EXPECT_EQ(reads[1].path, "a.cob");
    EXPECT_EQ(reads[1].result, 10);
}

TEST(SceneLine, NumbersThatNeverBecomeOneAreUsedUp) {
    auto reads = ReadAll("a -x");
    ASSERT_EQ(reads.size(), 2U);
    EXPECT_EQ(reads[0].result, 1);
    EXPECT_EQ(reads[1].path, "x");
    reads = ReadAll("a 5ex 1");
    ASSERT_EQ(reads.size(), 2U); // "5e" is used up, "x" is the next path
    EXPECT_EQ(reads[0].result, 1);
    EXPECT_EQ(reads[1].path, "x");
    EXPECT_EQ(reads[1].result, 2);
    reads = ReadAll("a 2d3, 4");
    EXPECT_EQ(reads[0].result, 2); // 2, then "d" is no comma
    EXPECT_EQ(reads[0].values[0], 2.0F);
    EXPECT_EQ(reads[1].path, "d3,");
    reads = ReadAll("a +.5e+1,");
    EXPECT_EQ(reads[0].values[0], 5.0F);
    reads = ReadAll("a inf, nan");
    EXPECT_EQ(reads[0].result, 1);
    EXPECT_EQ(reads[1].path, "inf,");
    reads = ReadAll("a 0x10, 2");
    EXPECT_EQ(reads[0].result, 2);
    EXPECT_EQ(reads[0].values[0], 0.0F);
    EXPECT_EQ(reads[1].path, "x10,");
}

TEST(SceneLine, EndOfTextAnywhere) {
    EXPECT_TRUE(ReadAll("").empty());
    EXPECT_TRUE(ReadAll(" \t\r\n").empty());
    const std::string whole = "a 1, 2, 3; 4, 5, 6; 7, 8, 9;";
    for (std::size_t n = 1; n <= whole.size(); ++n) {
        const auto reads = ReadAll(whole.substr(0, n));
        ASSERT_EQ(reads.size(), 1U) << n;
        EXPECT_EQ(reads[0].path, "a");
    }
    EXPECT_EQ(ReadAll(whole)[0].result, 10);
}

TEST(SceneLine, LongWordsAndNumbersAreBounded) {
    const std::string path(5000, 'p');
    const std::string digits(3000, '9');
    const auto reads = ReadAll(path + " " + digits + ", 2, 3; 4, 5, 6; 7, 8, 9;");
    ASSERT_EQ(reads.size(), 1U);
    EXPECT_EQ(reads[0].path, path.substr(0, kMaxScenePath));
    EXPECT_EQ(reads[0].result, 10);
    EXPECT_EQ(reads[0].values[1], 2.0F);
}

TEST(SceneLine, BytesOfAnyKindEnd) {
    std::string noise;
    for (unsigned i = 0; i < 20000; ++i) {
        noise += static_cast<char>(i * i * 31 + i / 7);
    }
    EXPECT_GT(ReadAll(noise).size(), 10U);
}

class SceneListFile : public testing::Test {
protected:
    void SetUp() override {
        ResetWorld();
        InitTrigTables();
        folder.Write("3d/box.cob", BoxCob(1, false, {1, 1, 1, "constant", -1, nullptr}));
    }
    void TearDown() override { ResetWorld(); }
    void Load(const std::string& list) {
        folder.Write("scene1.po", list);
        LoadSceneList(&world, "./data/scene1.po", kFormat565);
    }
    DataFolderForTest folder;
    ScopedFloatMode chop{FloatMode::Chop};
};

TEST_F(SceneListFile, OnlyCommentsLoadNothingAndTheFlagGoesToEntry11) {
    // Entry 11 gets a face here to see the flag by.
    Face face{};
    world.objects[11].faces = &face;
    world.objects[11].faceCount = 1;
    // (The sign anywhere in a name makes it none, though there were such a file.)
    folder.Write("3d/box#.cob", folder.Read("3d/box.cob"));
    Load("#./data/3d/box.cob \t1, 1, 1; \t0, 0, 0; \t0, 0, 0;\n"
         "./data/3d/box#.cob \t1, 1, 1; \t0, 0, 0; \t0, 0, 0;\n");
    EXPECT_EQ(world.objectCounter, 11);
    EXPECT_EQ(world.objects[12].faceCount, 0);
    EXPECT_EQ(face.flags, FACE_TWO_SIDED);
    world.objects[11] = Mesh{};
}

TEST_F(SceneListFile, OnlyTheFirstMebibyteCounts) {
    const std::string entry = "./data/3d/box.cob 1, 1, 1; 0, 0, 0; 0, 0, 0;\n";
    const std::string blanks(kMaxListFile - 2 * entry.size(), ' ');
    Load(entry + blanks + entry + entry);
    EXPECT_EQ(world.objectCounter, 13);
}

TEST_F(SceneListFile, WhatIsNoFileIsSkipped) {
    Load("/dev/zero 1, 1, 1; 0, 0, 0; 0, 0, 0;\n"
         "./data/3d 1, 1, 1; 0, 0, 0; 0, 0, 0;\n"
         "./data/3d/box.cob 1, 1, 1; 0, 0, 0; 0, 0, 0;\n");
    EXPECT_EQ(world.objectCounter, 12);
}

TEST_F(SceneListFile, ABlankBehindTheCommentSignLosesTheEntry) {
    // The point of "./data" begins a number that comes to nothing, and is gone.
    Load("# ./data/3d/box.cob 1, 1, 1; 0, 0, 0; 0, 0, 0;\n"
         "./data/3d/box.cob 2, 2, 2; 0, 0, 0; 0, 0, 0;\n");
    EXPECT_EQ(world.objectCounter, 12);
    EXPECT_NEAR(world.objects[12].vertices[0].x, -0.2F, 1e-6F);
}

TEST_F(SceneListFile, SizesAndPlacesAreTenths) {
    Load("./data/3d/box.cob \t10, 20, 30; \t100, 200, 300; \t0, 0, 0;\n");
    ASSERT_EQ(world.objectCounter, 12);
    const Mesh& mesh = world.objects[12];
    EXPECT_EQ(mesh.position.x, 10.0F);
    EXPECT_EQ(mesh.position.y, 20.0F);
    EXPECT_EQ(mesh.position.z, 30.0F);
    EXPECT_EQ(mesh.position.w, 1.0F);
    // Vertex 0 is (-1, -1, -1); y and z change places before the scale: 1, 2 and 3 times.
    EXPECT_NEAR(mesh.vertices[0].x, -1.0F, 1e-6F);
    EXPECT_NEAR(mesh.vertices[0].y, -2.0F, 1e-6F);
    EXPECT_NEAR(mesh.vertices[0].z, -3.0F, 1e-6F);
}

TEST_F(SceneListFile, AnglesAreWholeDegrees) {
    Load("./data/3d/box.cob \t10, 10, 10; \t0, 0, 0; \t0, 0, 90;\n");
    // Helper vertex (3, 0, 0) turned by 90 degrees about Z.
    const Vertex& v = world.objects[12].vertices[8];
    EXPECT_NEAR(v.x, 0.0F, 1e-4F);
    EXPECT_NEAR(std::abs(v.y), 3.0F, 1e-4F);
}

TEST_F(SceneListFile, MissingFilesAreSkippedAndOnlyTheLastObjectBecomesTwoSided) {
    Load("./data/3d/none.cob 1, 1, 1; 0, 0, 0; 0, 0, 0;\n"
         "./data/3d/box.cob 10, 10, 10; 1, 0, 0; 0, 0, 0;\n"
         "./data/3d 1, 1, 1; 0, 0, 0; 0, 0, 0;\n"
         "./data/3d/box.cob 10, 10, 10; 2, 0, 0; 0, 0, 0;\n");
    ASSERT_EQ(world.objectCounter, 13);
    for (std::int32_t i = 0; i < world.objects[12].faceCount; ++i) {
        EXPECT_EQ(world.objects[12].faces[i].flags & FACE_TWO_SIDED, 0U);
        EXPECT_EQ(world.objects[13].faces[i].flags & FACE_TWO_SIDED, FACE_TWO_SIDED);
    }
    EXPECT_EQ(world.objects[12].faceCount, 12);
}

TEST_F(SceneListFile, BrokenObjectStillTakesItsEntry) {
    folder.Write("3d/broken.cob", "Name x\ncenter 0 0 0\n");
    Load("./data/3d/broken.cob 1, 1, 1; 0, 0, 0; 0, 0, 0;\n"
         "./data/3d/box.cob 1, 1, 1; 0, 0, 0; 0, 0, 0;\n");
    EXPECT_EQ(world.objectCounter, 13);
    EXPECT_EQ(world.objects[12].faceCount, 0);
    EXPECT_EQ(world.objects[13].faceCount, 12);
}

TEST_F(SceneListFile, R47_CommentedNumbersAreKeptForAShortLine) {
    Load("#x 10, 10, 10; 50, 60, 70; 0, 0, 0;\n"
         "./data/3d/box.cob 20\n");
    ASSERT_EQ(world.objectCounter, 12);
    EXPECT_EQ(world.objects[12].position.x, 5.0F);
    EXPECT_NEAR(world.objects[12].vertices[0].x, -2.0F, 1e-6F);
}

TEST_F(SceneListFile, LongListEndsAtTheEndOfTheTable) {
    std::string list;
    for (int i = 0; i < 600; ++i) {
        list += "./data/3d/box.cob 1, 1, 1; 0, 0, 0; 0, 0, 0;\n";
    }
    Load(list);
    EXPECT_EQ(world.objectCounter, kMaxSceneObjects - 1);
    EXPECT_NE(world.objects[kMaxSceneObjects - 1].faces, nullptr);
}

TEST_F(SceneListFile, MissingListLoadsNothing) {
    LoadSceneList(&world, "./data/scene1.po", kFormat565);
    EXPECT_EQ(world.objectCounter, 11);
}

} // namespace
} // namespace ombrel
