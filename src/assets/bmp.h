// BMP files, textures cut from them, and mip levels. The object loader and the font code read their
// images through here, at start-up only. Results are 1 for success and 0 for failure.
#pragma once

#include <cstddef>
#include <cstdint>

#include "assets/texture.h"
#include "base/single.h"

namespace ombrel {

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

inline constexpr std::uint32_t kMaxImageBytes = 32U << 20; // of sizeImage; more counts as no memory

// Reads an uncompressed bottom-up image of 8, 16 or 24 bits a pixel; 24-bit pixels become 16-bit
// ones of the given format, the others stay as they are. The pixels are the last sizeImage
// bytes of the file, row padding included in the count but not skipped. 0: no such file, not a BMP,
// another bit count, width or height below 1, sizeImage below what width and height need or above
// the file's size or kMaxImageBytes, no memory. A failure keeps the image that was there; a success
// frees it.
int loadBmp(BmpImage* image, const char* path, const DisplayFormat& format);
int releaseBmp(BmpImage* image); // frees the pixels, keeps the headers; 1

// Zeroed bytes on each side of a texture's pixels: two rows of 16-bit pixels and 256 bytes more, so
// that a filler whose rounding goes a row or a texel too far still reads memory of its own texture.
constexpr std::size_t TextureGuardBytes(std::int32_t width) {
    return static_cast<std::size_t>(width) * 4 + 256;
}

struct TextureShape {
    std::int32_t originX, originY, width, height, bitsPerPixel;
};
// Fills texture with a zeroed image. 0, with pixels null and the rest untouched: no memory, a
// width or height outside 0..32767, or a depth other than 8 and 16. An 8-bit texture is given the
// memory of a 16-bit one, for fillers that take it for one.
int createTexture(Texture* texture, const TextureShape& shape);
void releaseTexture(Texture* texture); // frees the pixels with their guard, clears the record

// Copies a rectangle of the texture's size out of the image and sets TEX_FILLED.
// direct != 0: from pixel (x, y); 0: from cell (x, y) of a sheet with one-pixel lines.
// Rows that leave the image on a side run on in the row next to it; what lies before its first or
// after its last pixel is not copied. 0 for a null texture, an image without pixels, or a texture
// too small for pixels of that size.
int copyPixels8(Texture* texture, const BmpImage* image, std::int32_t x, std::int32_t y,
                std::int32_t direct);
int copyPixels16(Texture* texture, const BmpImage* image, std::int32_t x, std::int32_t y,
                 std::int32_t direct);

// Stores an array of floor(log2(width)) + 1 textures, entry 0 the texture itself, each of the
// others half the size of the one before (halves cut, so a height can be 0) and 16 bits a pixel. A
// texel is sum of four * brightness / 4 + 0.5 for each channel, cut down, at most the channel's
// largest value. 0, and *chain null: no memory, or a width outside the floor-log2 table (0..1024).
int buildMipChain(Texture* texture, Texture*** chain, Single brightness);
void releaseMipChain(Texture** chain); // the levels above 0 and the array, not the texture itself

} // namespace ombrel
