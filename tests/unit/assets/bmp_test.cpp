// BMP files, textures and mip chains.
#include "assets/bmp.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "asset_files.h"

namespace ombrel {
namespace {

Pixel16 Pixel(const BmpImage& image, std::int32_t index) {
    Pixel16 value = 0;
    std::memcpy(&value, image.pixels + index * 2, 2);
    return value;
}

std::string Bytes(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values) {
        bytes.push_back(static_cast<char>(value));
    }
    return bytes;
}

class Bmp : public DataFolderTest {
protected:
    ~Bmp() override { releaseBmp(&image); }

    int Load(const BmpRecipe& recipe) { return LoadBytes(BmpBytes(recipe)); }
    int LoadBytes(const std::string& bytes) {
        return loadBmp(&image, Write("image.bmp", bytes).c_str(), format);
    }

    BmpImage image = {};
    DisplayFormat format = kFormat565;
};

TEST_F(Bmp, RowsAreTurnedOver) {
    BmpRecipe recipe;
    recipe.width = 2;
    recipe.height = 3;
    recipe.bitCount = 8;
    recipe.pixels = Bytes({1, 2, 3, 4, 5, 6});
    ASSERT_EQ(Load(recipe), 1);
    EXPECT_EQ(std::string(image.pixels, image.pixels + 6), Bytes({5, 6, 3, 4, 1, 2}));
    EXPECT_EQ(+image.infoHeader.width, 2);
    EXPECT_EQ(+image.infoHeader.height, 3);
    EXPECT_EQ(+image.infoHeader.bitCount, 8);
    EXPECT_EQ(+image.fileHeader.type, 0x4D42);
}

TEST_F(Bmp, SixteenBitsStayAsTheyAre) {
    BmpRecipe recipe;
    recipe.width = 1;
    recipe.height = 2;
    recipe.bitCount = 16;
    recipe.pixels = Bytes({0x34, 0x12, 0x78, 0x56});
    format.rgbBits = 15;
    ASSERT_EQ(Load(recipe), 1);
    EXPECT_EQ(Pixel(image, 0), 0x5678);
    EXPECT_EQ(Pixel(image, 1), 0x1234);
}

TEST_F(Bmp, TwentyFourBitsBecomeTheDisplaysFormat) {
    BmpRecipe recipe;
    recipe.width = 4;
    recipe.height = 1;
    recipe.pixels = Bytes({0, 0, 255, 0, 255, 0, 255, 0, 0, 0x12, 0x34, 0x56});
    ASSERT_EQ(Load(recipe), 1);
    EXPECT_EQ(+image.infoHeader.bitCount, 16);
    EXPECT_EQ(Pixel(image, 0), 0xF800);
    EXPECT_EQ(Pixel(image, 1), 0x07E0);
    EXPECT_EQ(Pixel(image, 2), 0x001F);
    EXPECT_EQ(Pixel(image, 3), (0x56 >> 3) << 11 | (0x34 >> 2) << 5 | (0x12 >> 3));
    format.rgbBits = 15;
    ASSERT_EQ(Load(recipe), 1);
    EXPECT_EQ(Pixel(image, 0), 0x7C00);
    EXPECT_EQ(Pixel(image, 1), 0x03E0);
    EXPECT_EQ(Pixel(image, 3), (0x56 >> 3) << 10 | (0x34 >> 3) << 5 | (0x12 >> 3));
    format.rgbBits = 24;
    ASSERT_EQ(Load(recipe), 1);
    EXPECT_EQ(Pixel(image, 0), 0);
    EXPECT_EQ(Pixel(image, 3), 0);
}

TEST_F(Bmp, R25_PaddingOfThreePixelRowsIsNotSkipped) {
    // Two rows of three blue pixels, each followed by three bytes of padding of another colour.
    BmpRecipe recipe;
    recipe.width = 3;
    recipe.height = 2;
    for (int row = 0; row < 2; ++row) {
        recipe.pixels += Bytes({255, 0, 0, 255, 0, 0, 255, 0, 0, 0, 255, 0});
    }
    ASSERT_EQ(Load(recipe), 1);
    // Bottom row: the first three triples. Top row: the padding, then two pixels.
    EXPECT_EQ(Pixel(image, 3), 0x001F);
    EXPECT_EQ(Pixel(image, 4), 0x001F);
    EXPECT_EQ(Pixel(image, 5), 0x001F);
    EXPECT_EQ(Pixel(image, 0), 0x07E0);
    EXPECT_EQ(Pixel(image, 1), 0x001F);
    EXPECT_EQ(Pixel(image, 2), 0x001F);
}

TEST_F(Bmp, R24_PixelsAreTheEndOfTheFile) {
    BmpRecipe recipe;
    recipe.width = 2;
    recipe.height = 1;
    recipe.bitCount = 8;
    recipe.pixels = Bytes({7, 8});
    recipe.between = std::string(100, 'p');
    recipe.dataOffset = 60;
    ASSERT_EQ(Load(recipe), 1);
    EXPECT_EQ(std::string(image.pixels, image.pixels + 2), Bytes({7, 8}));
    // A file that goes on after its pixels gives that end instead.
    ASSERT_EQ(LoadBytes(BmpBytes(recipe) + Bytes({1, 2})), 1);
    EXPECT_EQ(std::string(image.pixels, image.pixels + 2), Bytes({1, 2}));
}

TEST_F(Bmp, OtherFirstTwoBytesAreRejected) {
    for (const char* const type : {"BA", "MB", "bm", "BN", "AM"}) {
        BmpRecipe recipe;
        recipe.type = type;
        recipe.pixels = std::string(48, 'x');
        EXPECT_EQ(Load(recipe), 0) << type;
    }
    EXPECT_EQ(loadBmp(&image, "./data/absent.bmp", kFormat565), 0);
    EXPECT_EQ(loadBmp(&image, "./data/texture", kFormat565), 0);
    EXPECT_EQ(loadBmp(&image, nullptr, kFormat565), 0);
}

TEST_F(Bmp, OtherBitCountsAreRejected) {
    for (const std::uint32_t bits : {0U, 1U, 4U, 7U, 9U, 15U, 17U, 23U, 25U, 32U, 65535U}) {
        BmpRecipe recipe;
        recipe.bitCount = bits;
        recipe.pixels = std::string(64, 'x');
        EXPECT_EQ(Load(recipe), 0) << bits;
    }
}

TEST_F(Bmp, AbsurdHeadersAreRejected) {
    struct Case {
        std::int32_t width, height;
        std::int64_t sizeImage;
    };
    for (const Case& c :
         {Case{0, 4, -1}, Case{4, 0, -1}, Case{-4, 4, -1}, Case{4, -4, -1}, Case{-4, -4, -1},
          Case{5, 4, -1}, Case{4, 5, -1}, Case{4, 4, 0}, Case{4, 4, 47}, Case{4, 4, 103},
          Case{4, 4, 0x7FFFFFFF}, Case{4, 4, 0x80000000}, Case{4, 4, 0xFFFFFFFF},
          Case{INT32_MAX, INT32_MAX, -1}, Case{INT32_MAX, 1, -1}, Case{0x10000, 0x10000, -1},
          Case{INT32_MIN, INT32_MIN, -1}, Case{65536, 32768, 0x7FFFFFFF}}) {
        for (const std::uint32_t bits : {8U, 16U, 24U}) {
            BmpRecipe recipe;
            recipe.width = c.width;
            recipe.height = c.height;
            recipe.sizeImage = c.sizeImage;
            recipe.bitCount = bits;
            recipe.pixels = std::string(bits * 2, 'x'); // 4 x 4
            if (c.width == 4 && c.height == 4 && c.sizeImage == 47 && bits < 24) {
                continue; // enough for these
            }
            EXPECT_EQ(Load(recipe), 0)
                << c.width << " " << c.height << " " << c.sizeImage << " " << bits;
            EXPECT_EQ(image.pixels, nullptr);
        }
    }
}

TEST_F(Bmp, MoreThan32MiBCountAsNoMemory) {
    // A file that holds what it says, mostly a hole.
    for (const std::uint32_t more : {0U, 1U}) {
        BmpRecipe recipe;
        recipe.sizeImage = kMaxImageBytes + more;
        const std::string path = Write("texture/huge.bmp", BmpBytes(recipe));
        std::filesystem::resize_file(Root() / "texture/huge.bmp", 54 + kMaxImageBytes + more);
        EXPECT_EQ(loadBmp(&image, path.c_str(), kFormat565), more == 0 ? 1 : 0);
    }
}

TEST_F(Bmp, ShortFilesNeverCrash) {
    const std::string whole = PlainBmp(8, 8, 0x102030);
    std::int32_t loaded = 0;
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        loaded += LoadBytes(whole.substr(0, size));
    }
    // Up to 54 missing bytes the last sizeImage bytes still exist; they reach into the headers.
    EXPECT_EQ(loaded, 55);
}

TEST_F(Bmp, FailureKeepsTheImageThatWasThere) {
    ASSERT_EQ(LoadBytes(PlainBmp(4, 4, 0xFF0000)), 1);
    const std::uint8_t* const pixels = image.pixels;
    EXPECT_EQ(LoadBytes("BM"), 0);
    EXPECT_EQ(LoadBytes("XX" + PlainBmp(8, 8, 0).substr(2)), 0);
    EXPECT_EQ(LoadBytes(PlainBmp(8, 8, 0).substr(0, 60)), 0);
    EXPECT_EQ(image.pixels, pixels);
    EXPECT_EQ(+image.infoHeader.width, 4);
    EXPECT_EQ(+image.infoHeader.bitCount, 16);
    EXPECT_EQ(Pixel(image, 0), 0xF800);
}

TEST_F(Bmp, ReleaseKeepsHeaders) {
    ASSERT_EQ(LoadBytes(PlainBmp(4, 4, 0xFF0000)), 1);
    EXPECT_EQ(releaseBmp(&image), 1);
    EXPECT_EQ(image.pixels, nullptr);
    EXPECT_EQ(+image.infoHeader.width, 4);
    EXPECT_EQ(releaseBmp(&image), 1);
}

TEST_F(Bmp, TrailingBlanksAndLetterCaseAreForgiven) {
    Write("texture/Wall.BMP", PlainBmp(4, 4, 0));
    EXPECT_EQ(loadBmp(&image, "./data/texture/wall.bmp  ", kFormat565), 1);
    EXPECT_EQ(loadBmp(&image, ".\\data\\texture\\wall.bmp", kFormat565), 1);
    EXPECT_EQ(loadBmp(&image, "./data/texture/ wall.bmp", kFormat565), 0)
        << "a leading blank is part of it";
}

// --- textures ----------------------------------------------------------------------------------

TEST(Texture, Creation) {
    Texture texture = {};
    ASSERT_EQ(createTexture(&texture, {3, -4, 6, 5, 16}), 1);
    EXPECT_EQ(texture.valid, 1U);
    EXPECT_EQ(texture.texFlags, 0U);
    EXPECT_EQ(texture.originX, 3);
    EXPECT_EQ(texture.originY, -4);
    EXPECT_EQ(texture.width, 6);
    EXPECT_EQ(texture.height, 5);
    EXPECT_EQ(texture.byteSize, 60);
    EXPECT_EQ(texture.bitsPerPixel, 16);
    for (int i = 0; i < 60; ++i) {
        EXPECT_EQ(static_cast<std::uint8_t*>(texture.pixels)[i], 0);
    }
    releaseTexture(&texture);
    EXPECT_EQ(texture.pixels, nullptr);
    ASSERT_EQ(createTexture(&texture, {0, 0, 6, 5, 8}), 1);
    EXPECT_EQ(texture.byteSize, 30);
    releaseTexture(&texture);
    ASSERT_EQ(createTexture(&texture, {0, 0, 1, 0, 16}), 1);
    EXPECT_EQ(texture.byteSize, 0);
    releaseTexture(&texture);
    releaseTexture(&texture);
}

TEST(Texture, AbsurdShapesFail) {
    Texture texture = {};
    texture.width = 77;
    for (const TextureShape& shape :
         {TextureShape{0, 0, -1, 4, 16}, TextureShape{0, 0, 4, -1, 16},
          TextureShape{0, 0, 32768, 1, 16}, TextureShape{0, 0, 1, 32768, 16},
          TextureShape{0, 0, INT32_MAX, INT32_MAX, 16}, TextureShape{0, 0, 4, 4, 24},
          TextureShape{0, 0, 4, 4, 0}, TextureShape{0, 0, 4, 4, -16}}) {
        EXPECT_EQ(createTexture(&texture, shape), 0);
        EXPECT_EQ(texture.pixels, nullptr);
        EXPECT_EQ(texture.valid, 0U);
        EXPECT_EQ(texture.width, 77);
    }
}

TEST(Texture, GuardsOnBothSidesCanBeReadAndAreZero) {
    // Under the address sanitizer this fails where the memory does not reach so far.
    for (const std::int32_t bits : {8, 16}) {
        for (const std::int32_t width : {1, 2, 64, 1024}) {
            Texture texture = {};
            ASSERT_EQ(createTexture(&texture, {0, 0, width, width, bits}), 1);
            const auto* const pixels = static_cast<const Pixel16*>(texture.pixels);
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(pixels) % 2, 0U);
            std::uint32_t sum = 0;
            for (std::int32_t i = 1; i <= 2 * width + 128; ++i) {
                sum += pixels[-i];
                sum += pixels[width * width - 1 + i]; // the last texel as a filler counts it
            }
            EXPECT_EQ(sum, 0U);
            releaseTexture(&texture);
        }
    }
}

class Copy : public Bmp {
protected:
    void SetUp() override {
        // 5 x 4 pixels of 8 bits: pixel (x, y) from the top holds 10 y + x.
        BmpRecipe recipe;
        recipe.width = 5;
        recipe.height = 4;
        recipe.bitCount = 8;
        for (int y = 3; y >= 0; --y) {
            for (int x = 0; x < 5; ++x) {
                recipe.pixels.push_back(static_cast<char>(10 * y + x));
            }
        }
        ASSERT_EQ(Load(recipe), 1);
    }
    ~Copy() override { releaseTexture(&texture); }

    std::string Pixels8() const {
        const auto* const bytes = static_cast<const char*>(texture.pixels);
        return std::string(bytes, static_cast<std::size_t>(texture.byteSize));
    }

    Texture texture = {};
};

TEST_F(Copy, DirectFromAPixel) {
    ASSERT_EQ(createTexture(&texture, {0, 0, 2, 2, 8}), 1);
    EXPECT_EQ(copyPixels8(&texture, &image, 2, 1, 1), 1);
    EXPECT_EQ(Pixels8(), Bytes({12, 13, 22, 23}));
    EXPECT_EQ(texture.texFlags, TEX_FILLED);
}

TEST_F(Copy, FromASheetCell) {
    ASSERT_EQ(createTexture(&texture, {0, 0, 1, 1, 8}), 1);
    EXPECT_EQ(copyPixels8(&texture, &image, 0, 0, 0), 1);
    EXPECT_EQ(Pixels8(), Bytes({11}));
    EXPECT_EQ(copyPixels8(&texture, &image, 1, 1, 0), 1);
    EXPECT_EQ(Pixels8(), Bytes({33}));
}

TEST_F(Copy, SixteenBitsMoveWholePixels) {
    ASSERT_EQ(LoadBytes(PlainBmp(4, 4, 0x00FF00)), 1);
    ASSERT_EQ(createTexture(&texture, {0, 0, 4, 4, 16}), 1);
    EXPECT_EQ(copyPixels16(&texture, &image, 0, 0, 1), 1);
    for (int i = 0; i < 16; ++i) {
        EXPECT_EQ(static_cast<const Pixel16*>(texture.pixels)[i], 0x07E0);
    }
}

TEST_F(Copy, OutsideTheImageNothingIsCopied) {
    ASSERT_EQ(createTexture(&texture, {0, 0, 5, 2, 8}), 1);
    EXPECT_EQ(copyPixels8(&texture, &image, 0, 3, 1), 1);
    EXPECT_EQ(Pixels8(), Bytes({30, 31, 32, 33, 34, 0, 0, 0, 0, 0}));
    EXPECT_EQ(copyPixels8(&texture, &image, 2, 3, 1), 1);
    EXPECT_EQ(Pixels8(), Bytes({32, 33, 34, 33, 34, 0, 0, 0, 0, 0}));
    EXPECT_EQ(copyPixels8(&texture, &image, -2, 0, 1), 1);
    EXPECT_EQ(Pixels8().substr(2), Bytes({0, 1, 2, 3, 4, 10, 11, 12})) << "rows run on";
    for (const std::int32_t far : {INT32_MIN, -1000000, 1000000, INT32_MAX}) {
        const std::string before = Pixels8();
        EXPECT_EQ(copyPixels8(&texture, &image, far, far, 1), 1);
        EXPECT_EQ(copyPixels8(&texture, &image, far, far, 0), 1);
        EXPECT_EQ(Pixels8(), before);
    }
}

TEST_F(Copy, WrongDepthsAndNothingAtAll) {
    EXPECT_EQ(copyPixels8(nullptr, &image, 0, 0, 1), 0);
    EXPECT_EQ(copyPixels16(nullptr, &image, 0, 0, 1), 0);
    ASSERT_EQ(createTexture(&texture, {0, 0, 5, 4, 8}), 1);
    EXPECT_EQ(copyPixels16(&texture, &image, 0, 0, 1), 0) << "16-bit pixels need 16-bit memory";
    const BmpImage none = {};
    EXPECT_EQ(copyPixels8(&texture, &none, 0, 0, 1), 0);
    EXPECT_EQ(texture.texFlags, 0U);
    releaseTexture(&texture);
    ASSERT_EQ(createTexture(&texture, {0, 0, 5, 4, 16}), 1);
    EXPECT_EQ(copyPixels16(&texture, &image, 0, 0, 1), 1) << "reads half of it and no more";
    EXPECT_EQ(static_cast<const Pixel16*>(texture.pixels)[10], 0);
}

// --- mip chains --------------------------------------------------------------------------------

struct Chain {
    Chain(std::int32_t width, std::int32_t height, std::int32_t bits = 16) {
        EXPECT_EQ(createTexture(&base, {0, 0, width, height, bits}), 1);
    }
    ~Chain() {
        releaseMipChain(levels);
        releaseTexture(&base);
    }
    Chain(const Chain&) = delete;
    Chain& operator=(const Chain&) = delete;

    void Fill(Pixel16 value) {
        auto* const pixels = static_cast<Pixel16*>(base.pixels);
        for (std::int32_t i = 0; i < base.width * base.height; ++i) {
            pixels[i] = value;
        }
    }
    Pixel16 At(std::size_t level, std::int32_t index) const {
        return static_cast<const Pixel16*>(levels[level]->pixels)[index];
    }

    ScopedFloatMode mode{FloatMode::Chop};
    Texture base = {};
    Texture** levels = nullptr;
};

TEST(MipChain, NineLevelsOf256) {
    Chain chain(256, 256);
    ASSERT_EQ(buildMipChain(&chain.base, &chain.levels, 1.01F), 1);
    EXPECT_EQ(chain.levels[0], &chain.base);
    for (std::size_t k = 0; k < 9; ++k) {
        EXPECT_EQ(chain.levels[k]->width, 256 >> k);
        EXPECT_EQ(chain.levels[k]->height, 256 >> k);
        EXPECT_EQ(chain.levels[k]->bitsPerPixel, 16);
        EXPECT_EQ(chain.levels[k]->originX, 0);
        if (k > 0) {
            EXPECT_EQ(chain.levels[k]->texFlags, TEX_FILLED);
        }
    }
}

TEST(MipChain, EightLevelsOf128By64) {
    Chain chain(128, 64);
    ASSERT_EQ(buildMipChain(&chain.base, &chain.levels, 1.01F), 1);
    EXPECT_EQ(chain.levels[6]->width, 2);
    EXPECT_EQ(chain.levels[6]->height, 1);
    EXPECT_EQ(chain.levels[7]->width, 1);
    EXPECT_EQ(chain.levels[7]->height, 0);
}

TEST(MipChain, WidthsWithOneLevelOnly) {
    for (const std::int32_t width : {0, 1}) {
        Chain chain(width, 4);
        ASSERT_EQ(buildMipChain(&chain.base, &chain.levels, 1.01F), 1);
        EXPECT_EQ(chain.levels[0], &chain.base);
    }
}

TEST(MipChain, R26_WhiteStaysWhiteAndTenStaysTen) {
    Chain chain(4, 4);
    chain.Fill(0xFFFF);
    ASSERT_EQ(buildMipChain(&chain.base, &chain.levels, 1.01F), 1);
    EXPECT_EQ(chain.At(1, 0), 0xFFFF);
    EXPECT_EQ(chain.At(2, 0), 0xFFFF);
    Chain ten(2, 2);
    ten.Fill(10 << 11);
    ASSERT_EQ(buildMipChain(&ten.base, &ten.levels, 1.01F), 1);
    EXPECT_EQ(ten.At(1, 0), 10 << 11);
    // Green 40: 160 * 1.01 / 4 + 0.5 = 40.9; green 60: 61.1.
    Chain forty(2, 2);
    forty.Fill(40 << 5);
    ASSERT_EQ(buildMipChain(&forty.base, &forty.levels, 1.01F), 1);
    EXPECT_EQ(forty.At(1, 0), 40 << 5);
    Chain brighter(2, 2);
    brighter.Fill(60 << 5);
    ASSERT_EQ(buildMipChain(&brighter.base, &brighter.levels, 1.01F), 1);
    EXPECT_EQ(brighter.At(1, 0), 61 << 5);
}

TEST(MipChain, FourPixelsOfEachChannel) {
    Chain chain(4, 2);
    auto* const pixels = static_cast<Pixel16*>(chain.base.pixels);
    const Pixel16 rows[8] = {0xF800, 0x0000, 0x07E0, 0x0001, 0x0000, 0x0000, 0x0000, 0x0000};
    std::memcpy(pixels, rows, sizeof rows);
    ASSERT_EQ(buildMipChain(&chain.base, &chain.levels, 1.0F), 1);
    EXPECT_EQ(chain.At(1, 0), 8 << 11);       // 31 / 4 + 0.5 = 8.25
    EXPECT_EQ(chain.At(1, 1), (16 << 5) | 0); // 63 / 4 + 0.5 = 16.25; 1 / 4 + 0.5 = 0.75
}

TEST(MipChain, OddWidthsReadRowsOfTwiceTheHalf) {
    Chain chain(3, 3);
    auto* const pixels = static_cast<Pixel16*>(chain.base.pixels);
    for (Pixel16 i = 0; i < 9; ++i) {
        pixels[i] = i;
    }
    ASSERT_EQ(buildMipChain(&chain.base, &chain.levels, 1.0F), 1);
    // One texel of pixels 0, 1 and, two further on, 2, 3: (0 + 1 + 2 + 3) / 4 + 0.5 = 2.
    EXPECT_EQ(chain.levels[1]->width, 1);
    EXPECT_EQ(chain.At(1, 0), 2);
}

TEST(MipChain, ExtremeBrightnessIsClamped) {
    for (const float brightness : {1.0e30F, -1.0e30F, -1.0F, 100.0F}) {
        Chain chain(2, 2);
        chain.Fill(0x8410);
        ASSERT_EQ(buildMipChain(&chain.base, &chain.levels, brightness), 1);
        EXPECT_EQ(chain.At(1, 0), brightness == 100.0F ? 0xFFFF : 0x0000) << brightness;
    }
}

TEST(MipChain, EightBitAndTooWideTextures) {
    Chain bytes(64, 64, 8);
    EXPECT_EQ(buildMipChain(&bytes.base, &bytes.levels, 1.01F), 1) << "reads its own memory only";
    Chain wide(1025, 4);
    EXPECT_EQ(buildMipChain(&wide.base, &wide.levels, 1.01F), 0);
    EXPECT_EQ(wide.levels, nullptr);
    Chain widest(1024, 4);
    EXPECT_EQ(buildMipChain(&widest.base, &widest.levels, 1.01F), 1);
}

} // namespace
} // namespace ombrel
