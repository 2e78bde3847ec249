// Expansion and PNG files.
#include "picture.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#if __has_include(<png.h>) && !defined(OMBREL_WITHOUT_PNG)
#define OMBREL_PNG
#include <png.h>
#endif

namespace capture {

void ToRgb(const ombrel::Pixel16* pixels, std::int32_t pitch, std::int32_t width,
           std::int32_t height, std::int32_t scale, std::vector<std::uint8_t>* out) {
    const auto rowBytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(scale) * 3;
    out->resize(rowBytes * static_cast<std::size_t>(height) * static_cast<std::size_t>(scale));
    std::uint8_t* to = out->data();
    for (std::int32_t y = 0; y < height; ++y) {
        const auto* row = reinterpret_cast<const ombrel::Pixel16*>(
            reinterpret_cast<const unsigned char*>(pixels) +
            static_cast<std::ptrdiff_t>(y) * pitch);
        std::uint8_t* first = to;
        for (std::int32_t x = 0; x < width; ++x) {
            const std::uint8_t red = Expand5(ombrel::RedOf(row[x]));
            const std::uint8_t green = Expand6(ombrel::GreenOf(row[x]));
            const std::uint8_t blue = Expand5(ombrel::BlueOf(row[x]));
            for (std::int32_t i = 0; i < scale; ++i) {
                *to++ = red;
                *to++ = green;
                *to++ = blue;
            }
        }
        for (std::int32_t i = 1; i < scale; ++i) {
            std::memcpy(to, first, rowBytes);
            to += rowBytes;
        }
    }
}

#ifdef OMBREL_PNG

std::string WritePng(const std::string& path, const std::vector<std::uint8_t>& rgb,
                     std::int32_t width, std::int32_t height) {
    const std::string part = path + ".part";
    std::FILE* file = std::fopen(part.c_str(), "wb");
    if (file == nullptr) {
        return path + ": " + std::strerror(errno);
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_RGB;
    image.flags = PNG_IMAGE_FLAG_FAST;
    errno = 0;
    const bool drawn = png_image_write_to_stdio(&image, file, 0, rgb.data(), 0, nullptr) != 0;
    const bool written = std::fflush(file) == 0 && drawn;
    const int reason = errno;
    const bool closed = std::fclose(file) == 0;
    if (!written || !closed || std::rename(part.c_str(), path.c_str()) != 0) {
        std::remove(part.c_str());
        return path + ": " + (reason != 0 ? std::strerror(reason) : "could not be written");
    }
    return "";
}

#else

std::string WritePng(const std::string& path, const std::vector<std::uint8_t>&, std::int32_t,
                     std::int32_t) {
    return path + ": this build cannot write PNG files";
}

#endif

} // namespace capture
