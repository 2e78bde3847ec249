// BMP files, textures cut from them, and mip levels.
#pragma once

#include <cstdint>

#include "assets/texture.h"

namespace ombrel {

inline constexpr std::int32_t kTextureGuard = 256; // bytes of guard before and behind the pixels

#pragma pack(push, 1)
struct BmpFileHeader { // 14 bytes, as in the file
    std::uint16_t type;
    std::uint32_t fileSize;
    std::uint16_t reserved1, reserved2;
    std::uint32_t dataOffset;
};
struct BmpInfoHeader { // 40 bytes, as in the file
    std::uint32_t headerSize;
    std::int32_t width, height;
    std::uint16_t planes, bitCount;
    std::uint32_t compression, sizeImage;
    std::int32_t xResolution, yResolution;
    std::uint32_t colorsUsed, colorsImportant;
};
#pragma pack(pop)

// pixels: top row first, width * (bitCount / 8) bytes a row, no padding; owned by the record.
struct BmpImage {
    BmpFileHeader fileHeader;
    BmpInfoHeader infoHeader;     // bitCount reads 16 after a 24-bit image was converted
    std::uint8_t palette[256][4]; // never read
    std::uint8_t* pixels;
};

int loadBmp(BmpImage* image, const char* path); // 1 or 0; a failure keeps the image that was there
int releaseBmp(BmpImage* image);

struct TextureShape {
    std::int32_t originX, originY, width, height, bitsPerPixel;
};
int createTexture(Texture* texture, const TextureShape& shape);
void releaseTexture(Texture* texture); // frees the pixels with their guard
// direct != 0: from pixel (x, y); 0: from cell (x, y) of a sheet with one-pixel lines.
int copyPixels8(Texture* texture, const BmpImage* image, std::int32_t x, std::int32_t y,
                std::int32_t direct);
int copyPixels16(Texture* texture, const BmpImage* image, std::int32_t x, std::int32_t y,
                 std::int32_t direct);
// Array of floor(log2(width)) + 1 textures, entry 0 the texture itself. 1, or 0 without memory.
int buildMipChain(Texture* texture, Texture*** chain, float brightness);
void releaseMipChain(Texture** chain); // the levels above 0 and the array, not the texture itself

} // namespace ombrel
