// BMP reading, textures and the mip filter.
#include "assets/bmp.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/convert.h"
#include "base/data_file.h"
#include "base/log2_table.h"

namespace ombrel {

static_assert(sizeof(BmpFileHeader) == 14);
static_assert(sizeof(BmpInfoHeader) == 40);

namespace {

constexpr std::uint16_t kBmpType = 0x4D42;      // "BM"
constexpr std::int32_t kMaxTextureSide = 32767; // what a 16.16 texel coordinate can reach

// What the reader knows before it touches the pixels.
struct BmpHeaders {
    BmpFileHeader file;
    BmpInfoHeader info;
};

// Seeks to offset from origin; the position after it, or -1.
long SeekTo(std::FILE* file, long offset, int origin) {
    return std::fseek(file, offset, origin) == 0 ? std::ftell(file) : -1;
}

// Reads the headers and stands the file on the first byte of the pixels, REQUIRED R24: sizeImage
// bytes before the end. False when the file cannot hold what the headers say.
bool ReadHeaders(std::FILE* file, BmpHeaders* headers) {
    if (std::fread(&headers->file, sizeof headers->file, 1, file) != 1 ||
        headers->file.type != kBmpType ||
        std::fread(&headers->info, sizeof headers->info, 1, file) != 1) {
        return false;
    }
    const BmpInfoHeader& info = headers->info;
    if (info.bitCount != 8 && info.bitCount != 16 && info.bitCount != 24) {
        return false;
    }
    if (info.width < 1 || info.height < 1 || info.sizeImage > kMaxImageBytes) {
        return false;
    }
    // In this order nothing overflows: both factors are below 2^31.
    const std::int64_t pixelCount = static_cast<std::int64_t>(info.width) * info.height;
    const long size = SeekTo(file, 0, SEEK_END);
    if (pixelCount > info.sizeImage / (info.bitCount / 8U) ||
        size < static_cast<long>(info.sizeImage)) {
        return false;
    }
    return SeekTo(file, -static_cast<long>(info.sizeImage), SEEK_END) >= 0;
}

// 24-bit triples blue, green, red to pixels of 15 or 16 bits; out may be where they stand.
// REQUIRED R25: one straight after the other, over the ends of rows. In any other format than the
// two known ones every pixel is the one before it, and so 0.
void ConvertTriples(const std::uint8_t* triples, std::int32_t count, std::int32_t rgbBits,
                    std::uint8_t* out) {
    for (std::int32_t i = 0; i < count; ++i, triples += 3, out += 2) {
        std::uint32_t pixel = 0;
        if (rgbBits == 15) {
            pixel = PackRgb555(triples[2], triples[1], triples[0]);
        } else if (rgbBits == 16) {
            pixel = PackRgb565(triples[2], triples[1], triples[0]);
        }
        const Pixel16 value = static_cast<Pixel16>(pixel);
        std::memcpy(out, &value, sizeof value);
    }
}

// Reads the pixels the file stands on; 24-bit images leave with bitCount 16. Null on failure.
std::uint8_t* ReadPixels(std::FILE* file, BmpInfoHeader* info, std::int32_t rgbBits) {
    auto* bytes = static_cast<std::uint8_t*>(std::malloc(info->sizeImage));
    if (bytes == nullptr || std::fread(bytes, 1, info->sizeImage, file) != info->sizeImage) {
        std::free(bytes);
        return nullptr;
    }
    if (info->bitCount != 24) {
        return bytes;
    }
    ConvertTriples(bytes, info->width * info->height, rgbBits, bytes);
    info->bitCount = 16;
    return bytes;
}

void TurnRowsOver(const BmpInfoHeader& info, std::uint8_t* pixels) {
    const std::ptrdiff_t rowBytes = (info.bitCount >> 3) * static_cast<std::ptrdiff_t>(info.width);
    std::uint8_t* upper = pixels;
    std::uint8_t* lower = pixels + rowBytes * (info.height - 1);
    for (; upper < lower; upper += rowBytes, lower -= rowBytes) {
        std::swap_ranges(upper, upper + rowBytes, lower);
    }
}

// What to copy: a pixel position or a cell, and bytes a pixel.
struct CopySource {
    std::int64_t x, y;
    bool direct;
    std::int64_t pixelBytes;
};

int CopyPixels(Texture* texture, const BmpImage* image, const CopySource& from) {
    const std::int64_t pixelBytes = from.pixelBytes;
    if (texture == nullptr || image == nullptr || texture->pixels == nullptr ||
        image->pixels == nullptr) {
        return 0;
    }
    const std::int64_t width = texture->width;
    const std::int64_t height = texture->height;
    if (width * height * pixelBytes > texture->byteSize) {
        return 0;
    }
    const std::int64_t stride = image->infoHeader.width;
    const std::int64_t available =
        stride * image->infoHeader.height * (image->infoHeader.bitCount >> 3) / pixelBytes;
    const std::int64_t left = from.direct ? from.x : (width + 1) * from.x + 1;
    const std::int64_t top = from.direct ? from.y : (height + 1) * from.y + 1;
    auto* const out = static_cast<std::uint8_t*>(texture->pixels);
    for (std::int64_t row = 0; row < height; ++row) {
        // The part of the row that the image has.
        const std::int64_t start = (top + row) * stride + left;
        const std::int64_t first = std::clamp<std::int64_t>(start, 0, available);
        const std::int64_t last = std::clamp<std::int64_t>(start + width, 0, available);
        if (first < last) {
            std::memcpy(out + (row * width + first - start) * pixelBytes,
                        image->pixels + first * pixelBytes,
                        static_cast<std::size_t>((last - first) * pixelBytes));
        }
    }
    texture->texFlags |= TEX_FILLED;
    return 1;
}

// One channel of a mip texel. REQUIRED R26: brighter than the mean.
std::uint32_t MipChannel(std::int32_t sum, Single brightness, std::int32_t largest) {
    const Single value = static_cast<Single>(sum) * brightness * 0.25F + 0.5F;
    return static_cast<std::uint32_t>(std::clamp(ToIntChop(value), 0, largest));
}

// Fills a level from the one before it, whose rows are taken to be twice as long as the level's.
void FilterLevel(const Pixel16* source, Texture* level, Single brightness) {
    auto* const out = static_cast<Pixel16*>(level->pixels);
    const std::ptrdiff_t width = level->width;
    const std::ptrdiff_t height = level->height;
    for (std::ptrdiff_t i = 0; i < width; ++i) {
        for (std::ptrdiff_t j = 0; j < height; ++j) {
            const Pixel16* const upper = source + 2 * j * 2 * width + 2 * i;
            const Pixel16* const lower = upper + 2 * width;
            const Pixel16 four[4] = {upper[0], upper[1], lower[0], lower[1]};
            std::int32_t red = 0;
            std::int32_t green = 0;
            std::int32_t blue = 0;
            for (const Pixel16 pixel : four) {
                red += RedOf(pixel);
                green += GreenOf(pixel);
                blue += BlueOf(pixel);
            }
            out[j * width + i] = static_cast<Pixel16>(MipChannel(red, brightness, 31) << 11 |
                                                      MipChannel(green, brightness, 63) << 5 |
                                                      MipChannel(blue, brightness, 31));
        }
    }
}

// A new, zeroed 16-bit texture in memory of its own; null without memory.
Texture* NewLevel(std::int32_t width, std::int32_t height) {
    auto* level = static_cast<Texture*>(std::calloc(1, sizeof(Texture)));
    if (level != nullptr && createTexture(level, {0, 0, width, height, 16}) == 0) {
        std::free(level);
        level = nullptr;
    }
    return level;
}

} // namespace

int loadBmp(BmpImage* image, const char* path, const DisplayFormat& format) {
    std::FILE* const file = OpenDataFile(path, "rb");
    if (file == nullptr) {
        return 0;
    }
    BmpHeaders headers;
    std::uint8_t* pixels = nullptr;
    if (ReadHeaders(file, &headers)) {
        pixels = ReadPixels(file, &headers.info, format.rgbBits);
    }
    std::fclose(file);
    if (pixels == nullptr) {
        return 0;
    }
    TurnRowsOver(headers.info, pixels);
    std::free(image->pixels);
    image->fileHeader = headers.file;
    image->infoHeader = headers.info;
    image->pixels = pixels;
    return 1;
}

int releaseBmp(BmpImage* image) {
    std::free(image->pixels);
    image->pixels = nullptr;
    return 1;
}

int createTexture(Texture* texture, const TextureShape& shape) {
    texture->pixels = nullptr;
    const std::int64_t pixelCount = static_cast<std::int64_t>(shape.width) * shape.height;
    if (shape.width < 0 || shape.height < 0 || shape.width > kMaxTextureSide ||
        shape.height > kMaxTextureSide || (shape.bitsPerPixel != 8 && shape.bitsPerPixel != 16)) {
        return 0;
    }
    const std::size_t guard = TextureGuardBytes(shape.width);
    auto* const memory = static_cast<std::uint8_t*>(
        std::calloc(1, 2 * guard + static_cast<std::size_t>(pixelCount) * sizeof(Pixel16)));
    if (memory == nullptr) {
        return 0;
    }
    texture->valid = 1;
    texture->texFlags = 0;
    texture->originX = shape.originX;
    texture->originY = shape.originY;
    texture->width = shape.width;
    texture->height = shape.height;
    texture->byteSize = (shape.bitsPerPixel >> 3) * static_cast<std::int32_t>(pixelCount);
    texture->bitsPerPixel = shape.bitsPerPixel;
    texture->pixels = memory + guard;
    return 1;
}

void releaseTexture(Texture* texture) {
    if (texture->pixels != nullptr) {
        std::free(static_cast<std::uint8_t*>(texture->pixels) - TextureGuardBytes(texture->width));
    }
    *texture = Texture{};
}

int copyPixels8(Texture* texture, const BmpImage* image, std::int32_t x, std::int32_t y,
                std::int32_t direct) {
    return CopyPixels(texture, image, {x, y, direct != 0, 1});
}

int copyPixels16(Texture* texture, const BmpImage* image, std::int32_t x, std::int32_t y,
                 std::int32_t direct) {
    return CopyPixels(texture, image, {x, y, direct != 0, 2});
}

int buildMipChain(Texture* texture, Texture*** chain, Single brightness) {
    *chain = nullptr;
    if (texture->width < 0 || texture->width >= kLog2TableSize) {
        return 0;
    }
    const std::size_t levels = Log2Table[static_cast<std::size_t>(texture->width)] + 1U;
    auto** const array = static_cast<Texture**>(std::calloc(levels, sizeof(Texture*)));
    if (array == nullptr) {
        return 0;
    }
    array[0] = texture;
    for (std::size_t k = 1; k < levels; ++k) {
        array[k] = NewLevel(array[k - 1]->width / 2, array[k - 1]->height / 2);
        if (array[k] == nullptr) {
            releaseMipChain(array);
            return 0;
        }
        array[k]->texFlags |= TEX_FILLED;
        FilterLevel(static_cast<const Pixel16*>(array[k - 1]->pixels), array[k], brightness);
    }
    *chain = array;
    return 1;
}

void releaseMipChain(Texture** chain) {
    if (chain == nullptr) {
        return;
    }
    const std::size_t levels = Log2Table[static_cast<std::size_t>(chain[0]->width)] + 1U;
    for (std::size_t k = 1; k < levels && chain[k] != nullptr; ++k) {
        releaseTexture(chain[k]);
        std::free(chain[k]);
    }
    std::free(static_cast<void*>(chain));
}

} // namespace ombrel
