// The loaders of images and objects without memory, one block missing after the other: what fails
// says so with 0, keeps what was there before, and gives back what it took.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "assets/bmp.h"
#include "assets/object_loader.h"
#include "base/float_mode.h"
#include "demo/reset.h"
#include "failing_calls.h"
#include "support/hand_made_data.h"

namespace ombrel {
namespace {

class AssetMemory : public testing::Test {
protected:
    AssetMemory() : mode_(FloatMode::Chop) {
        ResetWorld();
        failing = FailingCalls{};
    }
    ~AssetMemory() override {
        failing = FailingCalls{};
        ResetWorld();
    }
    // Calls work with block k missing, from the first one on until none is missed.
    template <class Work> static std::int64_t MissEachBlock(Work work) {
        work(); // what is taken once in a process is there
        std::int64_t k = 0;
        for (;; ++k) {
            failing = FailingCalls{};
            failing.blocks = {k, k, 1};
            StartFailing();
            work();
            StopFailing();
            if (failing.failed == 0 || testing::Test::HasFailure()) {
                return k;
            }
        }
    }

    ScopedFloatMode mode_;
    DataFolderForTest folder_;
};

TEST_F(AssetMemory, TextureThatFindsNoneHasNoPixelsAndNothingElseChanged) {
    Texture texture{1, 2, 3, 4, 5, 6, 7, 8, &texture};
    failing.blocks = {0, kNever, 1};
    StartFailing();
    EXPECT_EQ(createTexture(&texture, {10, 20, 8, 8, 16}), 0);
    StopFailing();
    const Texture wanted{1, 2, 3, 4, 5, 6, 7, 8, nullptr};
    EXPECT_EQ(std::memcmp(&texture, &wanted, sizeof texture), 0);
}

TEST_F(AssetMemory, ImageThatFindsNoneLeavesTheOneBefore) {
    folder_.Write("2d/old.bmp", BmpText(4, 4, 255, 0, 0));
    folder_.Write("2d/new.bmp", BmpText(8, 8, 0, 0, 255));
    BmpImage image{};
    int loaded = 0;
    const std::int64_t blocks = MissEachBlock([&] {
        const bool counts = failing.active;
        failing.active = false;
        ASSERT_EQ(loadBmp(&image, "./data/2d/old.bmp", kFormat565), 1);
        failing.active = counts;
        const BmpImage before = image;
        loaded = loadBmp(&image, "./data/2d/new.bmp", kFormat565);
        if (loaded == 0) {
            EXPECT_EQ(image.pixels, before.pixels);
            EXPECT_EQ(std::int32_t{image.infoHeader.width}, 4); // a copy: the header is packed
            EXPECT_EQ(reinterpret_cast<const Pixel16*>(image.pixels)[15], 0xF800);
        } else {
            EXPECT_EQ(std::int32_t{image.infoHeader.width}, 8); // a copy: the header is packed
            EXPECT_EQ(reinterpret_cast<const Pixel16*>(image.pixels)[63], 0x001F);
        }
    });
    EXPECT_EQ(loaded, 1);
    EXPECT_GE(blocks, 1);
    releaseBmp(&image);
}

TEST_F(AssetMemory, ChainThatMissesALevelIsNone) {
    Texture texture{};
    ASSERT_EQ(createTexture(&texture, {0, 0, 16, 16, 16}), 1);
    std::memset(texture.pixels, 0xFF, 16 * 16 * 2);
    Texture** chain = nullptr;
    int built = 0;
    const std::int64_t blocks = MissEachBlock([&] {
        releaseMipChain(chain);
        built = buildMipChain(&texture, &chain, 1.01F);
        EXPECT_EQ(built, failing.failed == 0 ? 1 : 0);
        EXPECT_EQ(chain != nullptr, built == 1);
        EXPECT_EQ(texture.width, 16);
        EXPECT_EQ(static_cast<const Pixel16*>(texture.pixels)[255], 0xFFFF);
    });
    EXPECT_EQ(blocks, 1 + 4 * 2); // the array; record and pixels of four levels
    ASSERT_EQ(built, 1);
    EXPECT_EQ(static_cast<const Pixel16*>(chain[4]->pixels)[0], 0xFFFF);
    releaseMipChain(chain);
    releaseTexture(&texture);
}

// Without its texture, or without the levels of it, an object is there all the same; without its
// arrays it is not.
TEST_F(AssetMemory, ObjectLoadsWithWhatItFinds) {
    folder_.Write("texture/wall.bmp", BmpText(16, 16, 0, 255, 0));
    folder_.Write("3d/box.cob",
                  BoxCob(10.0F, false, CobMaterial{1, 1, 1, "matte", -1, "wall.bmp"}));
    int loaded = 0, plain = 0, untextured = 0, failed = 0;
    Mesh mesh{};
    MissEachBlock([&] {
        const std::int32_t base = materialBase;
        loaded = loadObject(&mesh, "./data/3d/box.cob", LoadRequest{nullptr, nullptr, 0x610, 1});
        const bool counts = failing.active;
        failing.active = false;
        failed += loaded == 0 ? 1 : 0;
        untextured += loaded == 1 && mesh.texture.single == nullptr ? 1 : 0;
        plain += loaded == 1 && mesh.texture.single != nullptr && (mesh.flags & MESH_MIPMAPPED) == 0
                     ? 1
                     : 0;
        EXPECT_EQ(materialBase - base, loaded == 1 ? 1 : 0);
        for (std::int32_t i = 0; i < mesh.faceCount; ++i) {
            const Face& face = mesh.faces[i];
            // A face says of its texture what the mesh has.
            EXPECT_EQ((face.flags & FACE_MIPMAPPED) != 0,
                      (mesh.flags & MESH_MIPMAPPED) != 0 && (face.flags & FACE_TEXTURED) != 0);
            EXPECT_EQ(face.texture.single,
                      (face.flags & FACE_TEXTURED) != 0 ? mesh.texture.single : nullptr);
            EXPECT_LT(face.v0, mesh.vertexCount);
        }
        releaseObject(&mesh);
        failing.active = counts;
    });
    EXPECT_EQ(loaded, 1);
    EXPECT_EQ(failed, 6); // six arrays
    EXPECT_GE(untextured, 1);
    EXPECT_EQ(plain, 1 + 4 * 2); // the blocks of the chain
}

} // namespace
} // namespace ombrel
