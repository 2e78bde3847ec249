// Through libpng's simplified interface, which needs no jumps out of functions.
#include "png_file.h"

#include <cstring>

#include <png.h>

namespace ombrel {

PngPicture PictureOf(const Pixel16* pixels, std::int32_t pitch, std::int32_t width,
                     std::int32_t height) {
    PngPicture picture = {width, height, {}};
    picture.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (std::int32_t y = 0; y < height; ++y) {
        const Pixel16* row = pixels + static_cast<std::ptrdiff_t>(y) * (pitch >> 1);
        picture.pixels.insert(picture.pixels.end(), row, row + width);
    }
    return picture;
}

bool WritePng(const std::string& path, const PngPicture& picture) {
    std::vector<png_byte> bytes;
    bytes.reserve(picture.pixels.size() * 3);
    for (const Pixel16 pixel : picture.pixels) {
        bytes.push_back(Widen5(RedOf(pixel)));
        bytes.push_back(Widen6(GreenOf(pixel)));
        bytes.push_back(Widen5(BlueOf(pixel)));
    }
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGB;
    return png_image_write_to_file(&image, path.c_str(), 0, bytes.data(), 0, nullptr) != 0;
}

bool ReadPng(const std::string& path, PngPicture* picture) {
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&image, path.c_str()) == 0) {
        return false;
    }
    if (image.format != PNG_FORMAT_RGB) {
        png_image_free(&image);
        return false;
    }
    std::vector<png_byte> bytes(PNG_IMAGE_SIZE(image));
    if (png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr) == 0) {
        return false;
    }
    picture->width = static_cast<std::int32_t>(image.width);
    picture->height = static_cast<std::int32_t>(image.height);
    picture->pixels.clear();
    for (std::size_t i = 0; i + 2 < bytes.size(); i += 3) {
        const std::int32_t red = bytes[i] >> 3;
        const std::int32_t green = bytes[i + 1] >> 2;
        const std::int32_t blue = bytes[i + 2] >> 3;
        if (Widen5(red) != bytes[i] || Widen6(green) != bytes[i + 1] ||
            Widen5(blue) != bytes[i + 2]) {
            return false;
        }
        picture->pixels.push_back(static_cast<Pixel16>((red << 11) + (green << 5) + blue));
    }
    return true;
}

namespace {
// The pixel at a place, or none.
const Pixel16* PixelOf(const PngPicture& picture, std::int32_t x, std::int32_t y) {
    if (x >= picture.width || y >= picture.height) {
        return nullptr;
    }
    return &picture.pixels[static_cast<std::size_t>(y * picture.width + x)];
}

// A quarter as bright and without colour.
Pixel16 Dimmed(Pixel16 pixel) {
    const std::int32_t grey = (RedOf(pixel) * 2 + GreenOf(pixel) + BlueOf(pixel) * 2) / 3 / 4;
    return static_cast<Pixel16>((grey / 2 << 11) + (grey << 5) + grey / 2);
}
} // namespace

PictureDifference DifferenceOf(const PngPicture& actual, const PngPicture& expected) {
    const bool sameSize = actual.width == expected.width && actual.height == expected.height;
    const std::int32_t width = actual.width > expected.width ? actual.width : expected.width;
    const std::int32_t height = actual.height > expected.height ? actual.height : expected.height;
    PictureDifference difference = {0, -1, -1, {width, height, {}}};
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            const Pixel16* a = PixelOf(actual, x, y);
            const Pixel16* b = PixelOf(expected, x, y);
            const bool same = sameSize && *a == *b;
            difference.picture.pixels.push_back(same ? Dimmed(*a) : Pixel16{0xFFFF});
            if (same) {
                continue;
            }
            if (difference.count == 0) {
                difference.firstX = x;
                difference.firstY = y;
            }
            ++difference.count;
        }
    }
    return difference;
}

} // namespace ombrel
