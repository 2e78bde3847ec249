// No filler of any path touches a byte outside the frame, the depth buffer and the texture it was
// given, whatever the triangle: each stands against pages that cannot be touched. And the pages do
// guard.
#include <algorithm>
#include <csignal>
#include <limits>

#include "support/guard_memory.h"
#include "support/random_numbers.h"
#include "support/random_triangles.h"
#include "support/raster_bench.h"

namespace ombrel::test {
namespace {

// Death tests run in a child of their own.
TEST(GuardMemoryDeathTest, ByteAfterAndByteBeforeCannotBeTouched) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    GuardMemory after = MakeGuardMemory(100, GuardSide::After);
    GuardMemory before = MakeGuardMemory(100, GuardSide::Before);
    volatile unsigned char* last = after.bytes;
    volatile unsigned char* first = before.bytes;
    last[99] = 1;
    first[0] = 1;
    EXPECT_DEATH(last[100] = 1, "");
    EXPECT_DEATH(first[-1] = 1, "");
    EXPECT_DEATH((void)last[100], "");
    FreeGuardMemory(&after);
    FreeGuardMemory(&before);
}

TEST(GuardMemory, MarksShowWhatWasTouchedOnTheOtherSide) {
    for (const GuardSide side : {GuardSide::Before, GuardSide::After}) {
        GuardMemory memory = MakeGuardMemory(5000, side);
        EXPECT_TRUE(GuardIntact(memory));
        memory.bytes[0] = 1;
        memory.bytes[4999] = 1;
        EXPECT_TRUE(GuardIntact(memory));
        memory.bytes[side == GuardSide::Before ? 5000 : -1] = 0;
        EXPECT_FALSE(GuardIntact(memory));
        FreeGuardMemory(&memory);
        EXPECT_EQ(memory.bytes, nullptr);
        FreeGuardMemory(&memory); // harmless
    }
}

TEST(GuardMemory, WholePagesHaveNoRoomForMarksAndAreZeroed) {
    GuardMemory memory = MakeGuardMemory(8192, GuardSide::After);
    EXPECT_TRUE(
        std::all_of(memory.bytes, memory.bytes + 8192, [](unsigned char b) { return b == 0; }));
    EXPECT_TRUE(GuardIntact(memory));
    FreeGuardMemory(&memory);
}

// --- the fillers ---------------------------------------------------------------------------------

constexpr std::int32_t kWidth = 64, kHeight = 48;

struct TextureShape {
    std::int32_t bitsPerPixel, width, height;
};

// Frame, depth buffer and texture, each against a page.
struct Stage {
    GuardMemory frame, depth, texels;
    Texture texture;

    Stage(GuardSide side, const TextureShape& shape)
        : frame(MakeGuardMemory(kWidth * kHeight * 2, side)),
          depth(MakeGuardMemory(kWidth * kHeight * 4, side)),
          texels(MakeGuardMemory(BytesOf(shape), side)) {
        RandomNumbers random(static_cast<std::uint64_t>(shape.width * 31 + shape.height));
        for (std::size_t i = 0; i < texels.size; ++i) {
            texels.bytes[i] = static_cast<unsigned char>(random.Word());
        }
        texture = {1,
                   TEX_FILLED,
                   0,
                   0,
                   shape.width,
                   shape.height,
                   static_cast<int>(texels.size),
                   shape.bitsPerPixel,
                   texels.bytes};
    }
    ~Stage() {
        for (GuardMemory* memory : {&frame, &depth, &texels}) {
            FreeGuardMemory(memory);
        }
    }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    static std::size_t BytesOf(const TextureShape& shape) {
        return static_cast<std::size_t>(
            std::max(2, shape.width * shape.height * (shape.bitsPerPixel / 8)));
    }
    FillTarget Target(std::uint32_t level) const {
        return {reinterpret_cast<Pixel16*>(frame.bytes),
                kWidth * 2,
                reinterpret_cast<std::uint32_t*>(depth.bytes),
                kWidth * 4,
                level,
                {0, 0, kWidth, kHeight}};
    }
    bool Intact() const { return GuardIntact(frame) && GuardIntact(depth) && GuardIntact(texels); }
};

// Coordinates of every kind.
float Wild(RandomNumbers* random, std::int32_t low, std::int32_t high) {
    switch (random->Below(25)) {
    case 0:
        return random->WholeBetween(-5000, 5000);
    case 1:
        return random->WholeBetween(-1000000000, 1000000000) * 2.0F;
    case 2:
        return std::numeric_limits<float>::infinity();
    case 3:
        return std::numeric_limits<float>::quiet_NaN();
    case 4:
        return -3.0e38F;
    case 5:
        return random->WholeBetween(-40000, 40000);
    default:
        return random->WholeBetween(low, high);
    }
}

// A wild triangle, or one that keeps what the pipeline promises: u and v in the image, z in front.
ScreenPolygon AnyTriangle(RandomNumbers* random, Texture* texture, bool wild) {
    const std::int32_t w = texture->width, h = texture->height;
    std::array<Corner, 3> corners;
    for (Corner& corner : corners) {
        corner = wild ? Corner{Wild(random, -10, 74), Wild(random, -10, 58), Wild(random, -3, 300),
                               Wild(random, -2, w), Wild(random, -2, h)}
                      : Corner{random->WholeBetween(-90, 150), random->WholeBetween(-90, 140),
                               random->WholeBetween(1, 60000), random->WholeBetween(0, w - 1),
                               random->WholeBetween(0, std::max(h - 1, 0))};
    }
    if (random->Below(6) == 0) {
        corners[2].y = corners[static_cast<std::size_t>(random->Below(2))].y;
    }
    return MakePolygon(corners, texture, {random->Word(), random->Word(), random->Word()});
}

class Memory : public testing::TestWithParam<int> {
protected:
    void SetUp() override {
        if (Path().fillers == nullptr) {
            GTEST_SKIP() << "this processor has no " << Path().name;
        }
        BuildBlendTables(kBlendTableCount, &BlendTables[0][0]);
    }
    static const PathEntry& Path() { return AllPaths()[static_cast<std::size_t>(GetParam())]; }

    // Every filler, on triangles that are wild or not.
    static void DrawMany(GuardSide side, const TextureShape& shape, bool wild) {
        Stage stage(side, shape);
        RandomNumbers random(static_cast<std::uint64_t>(shape.width * 64 + shape.height));
        const int rounds = RandomShare() < 1.0F ? 40 : 200;
        for (int id = 0; id < kFillerCount; ++id) {
            for (int round = 0; round < rounds; ++round) {
                if (round % 50 == 0) {
                    std::fill_n(reinterpret_cast<std::uint32_t*>(stage.depth.bytes),
                                kWidth * kHeight, ClearDepth(static_cast<FillerId>(id)));
                }
                ScreenPolygon polygon = AnyTriangle(&random, &stage.texture, wild);
                const auto level = static_cast<std::uint32_t>(random.Below(8));
                Path().fillers[id](&polygon, stage.Target(level));
            }
            ASSERT_TRUE(stage.Intact()) << kFillerTable[id].name;
        }
    }

private:
    ScopedFloatMode mode_{FloatMode::Chop};
};

TEST_P(Memory, NothingOutsideIsTouched) {
    for (const GuardSide side : {GuardSide::Before, GuardSide::After}) {
        for (const bool wild : {false, true}) {
            DrawMany(side, {16, 64, 64}, wild);
        }
    }
}

TEST_P(Memory, NothingOutsideIsTouchedWithOddTextures) {
    for (const GuardSide side : {GuardSide::Before, GuardSide::After}) {
        for (const bool wild : {false, true}) {
            for (const TextureShape& shape : {TextureShape{16, 64, 16},
                                              {16, 16, 64},
                                              {8, 32, 32},
                                              {8, 64, 8},
                                              {16, 1, 1},
                                              {8, 1, 1},
                                              {16, 24, 20}}) {
                DrawMany(side, shape, wild);
            }
        }
    }
}

// Rows so far apart that their difference wraps: the long edge leaves the triangle to the left,
// where only the column clipping holds it.
TEST_P(Memory, EdgesThatWrapStayWithinTheClipRectangle) {
    TestTexture texture(8, 8, CountedTexels(64));
    for (const FillerId id : AllFillers()) {
        Picture picture(kWidth, kHeight, id);
        const std::int32_t row = kWidth + Picture::kPadding;
        ScreenPolygon polygon =
            MakePolygon({{{0, -2147483904.0F, 9}, {30, 20, 9, 7}, {60, 2147483520.0F, 9, 7, 7}}},
                        &texture.record);
        Path().fillers[static_cast<int>(id)](&polygon, {picture.frame.data(),
                                                        row * 2,
                                                        picture.depth.data(),
                                                        row * 4,
                                                        7,
                                                        {0, 0, kWidth, kHeight}});
        EXPECT_TRUE(picture.DrawnAt(20, 40)) << RowOf(id).name;
        for (std::int32_t y = 0; y < kHeight; ++y) {
            for (std::int32_t x = kWidth; x < row; ++x) {
                ASSERT_FALSE(picture.DrawnAt(x, y)) << RowOf(id).name;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Paths, Memory, testing::Range(0, kPathCount),
                         [](const testing::TestParamInfo<int>& info) {
                             return std::string(
                                 AllPaths()[static_cast<std::size_t>(info.param)].name);
                         });

} // namespace
} // namespace ombrel::test
