// BMP images, textures cut from them and their mip chains. The input is the BMP file; its last
// bytes also say where to cut.
#include <cstdlib>

#include "assets/bmp.h"
#include "base/float_mode.h"
#include "base/log2_table.h"

#include "limits.h"
#include "memory_file.h"

namespace {

using namespace ombrel;

// Reads all that a filler may read: the texture as 16-bit pixels, with its guards.
std::uint32_t SumOf(const Texture& texture) {
    const auto* const bytes = static_cast<const std::uint8_t*>(texture.pixels);
    const auto guard = static_cast<std::int64_t>(TextureGuardBytes(texture.width));
    const std::int64_t size = std::int64_t{2} * texture.width * texture.height;
    std::uint32_t sum = 0;
    for (std::int64_t i = -guard; i < size + guard; ++i) {
        sum += bytes[i];
    }
    return sum;
}

void UseImage(const BmpImage& image, const TextureShape& shape) {
    Texture texture = {};
    if (createTexture(&texture, shape) == 0) {
        return;
    }
    const auto copy = shape.bitsPerPixel == 16 ? copyPixels16 : copyPixels8;
    for (const std::int32_t direct : {0, 1}) {
        Require(copy(&texture, &image, shape.originX, shape.originY, direct) == 1);
    }
    SumOf(texture);
    Texture** chain = nullptr;
    if (buildMipChain(&texture, &chain, 1.01F) != 0) {
        const std::int32_t levels = Log2Table[static_cast<std::size_t>(texture.width)] + 1;
        for (std::int32_t k = 0; k < levels; ++k) {
            Require(chain[k]->width == texture.width >> k);
            Require(chain[k]->height == texture.height >> k);
            SumOf(*chain[k]);
        }
        releaseMipChain(chain);
    }
    releaseTexture(&texture);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScopedFloatMode chop(FloatMode::Chop);
    const InputLimits limits;
    const MemoryFile file(data, size);
    BmpImage image = {};
    if (loadBmp(&image, file.Path().c_str(), kFormat565) != 0) {
        const BmpInfoHeader& info = image.infoHeader;
        Require(info.width > 0 && info.height > 0);
        Require(info.bitCount == 8 || info.bitCount == 16);
        UseImage(image, {0, 0, info.width, info.height, info.bitCount});
        // Small cells from anywhere, inside the image or not.
        std::int32_t numbers[4] = {};
        for (std::size_t i = 0; i < 16; ++i) {
            const std::uint32_t byte = data[size - 16 + i];
            numbers[i / 4] =
                static_cast<std::int32_t>(static_cast<std::uint32_t>(numbers[i / 4]) << 8 | byte);
        }
        UseImage(image, {numbers[0], numbers[1], numbers[2] & 63, numbers[3] & 63, info.bitCount});
        UseImage(image, {numbers[0] % 64, numbers[1] % 64, 7, 5, info.bitCount});
    } else {
        Require(image.pixels == nullptr);
    }
    releaseBmp(&image);
    return 0;
}
