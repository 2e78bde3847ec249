// Expansion and PNG files.
#include "picture.h"

#include <algorithm>
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

namespace {

// Empty when write(file) and the rest went well: then all of it stands under its name.
template <class Write> std::string WriteWhole(const std::string& path, Write write) {
    const std::string part = path + ".part";
    std::FILE* file = std::fopen(part.c_str(), "wb");
    if (file == nullptr) {
        return path + ": " + std::strerror(errno);
    }
    errno = 0;
    const bool drawn = write(file);
    const bool written = std::fflush(file) == 0 && drawn;
    const int reason = errno;
    const bool closed = std::fclose(file) == 0;
    if (!written || !closed || std::rename(part.c_str(), path.c_str()) != 0) {
        std::remove(part.c_str());
        return path + ": " + (reason != 0 ? std::strerror(reason) : "could not be written");
    }
    return "";
}

} // namespace

#ifdef OMBREL_PNG

std::string WritePng(const std::string& path, const std::vector<std::uint8_t>& rgb,
                     std::int32_t width, std::int32_t height) {
    return WriteWhole(path, [&](std::FILE* file) {
        png_image image{};
        image.version = PNG_IMAGE_VERSION;
        image.width = static_cast<png_uint_32>(width);
        image.height = static_cast<png_uint_32>(height);
        image.format = PNG_FORMAT_RGB;
        image.flags = PNG_IMAGE_FLAG_FAST;
        return png_image_write_to_stdio(&image, file, 0, rgb.data(), 0, nullptr) != 0;
    });
}

#else

// Without a library: a PNG file whose pixels are stored as they are, in deflate's blocks of that
// kind.
namespace {

using Bytes = std::vector<std::uint8_t>;

void Add32(Bytes* out, std::uint32_t value) { // highest byte first
    for (int shift = 24; shift >= 0; shift -= 8) {
        out->push_back(static_cast<std::uint8_t>(value >> shift));
    }
}

// CRC-32 of PNG chunks: polynomial 0xEDB88320, bits from the lowest.
std::uint32_t Crc(const std::uint8_t* bytes, std::size_t size) {
    std::uint32_t crc = 0xFFFFFFFF;
    for (std::size_t i = 0; i < size; ++i) {
        crc ^= bytes[i];
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
        }
    }
    return ~crc;
}

void AddChunk(Bytes* out, const char* type, const Bytes& content) {
    Add32(out, static_cast<std::uint32_t>(content.size()));
    const std::size_t from = out->size();
    out->insert(out->end(), type, type + 4);
    out->insert(out->end(), content.begin(), content.end());
    Add32(out, Crc(out->data() + from, out->size() - from));
}

// A zlib stream of stored blocks: 65,535 bytes at most in each; at the end Adler-32.
Bytes Stored(const Bytes& raw) {
    constexpr std::size_t kMost = 65535;
    Bytes out = {0x78, 0x01};
    for (std::size_t at = 0; at < raw.size(); at += kMost) {
        const std::size_t size = std::min(kMost, raw.size() - at);
        out.push_back(at + size == raw.size() ? 1 : 0);
        for (const std::size_t value : {size, ~size}) {
            out.push_back(static_cast<std::uint8_t>(value));
            out.push_back(static_cast<std::uint8_t>(value >> 8));
        }
        const auto* const first = raw.data() + at;
        out.insert(out.end(), first, first + size);
    }
    std::uint32_t low = 1, high = 0;
    for (const std::uint8_t byte : raw) {
        low = (low + byte) % 65521;
        high = (high + low) % 65521;
    }
    Add32(&out, high << 16 | low);
    return out;
}

} // namespace

std::string WritePng(const std::string& path, const std::vector<std::uint8_t>& rgb,
                     std::int32_t width, std::int32_t height) {
    const std::size_t row = static_cast<std::size_t>(width) * 3;
    Bytes raw;
    raw.reserve((row + 1) * static_cast<std::size_t>(height));
    for (std::int32_t y = 0; y < height; ++y) {
        raw.push_back(0); // no filter
        const auto* const first = rgb.data() + static_cast<std::size_t>(y) * row;
        raw.insert(raw.end(), first, first + row);
    }
    Bytes head;
    Add32(&head, static_cast<std::uint32_t>(width));
    Add32(&head, static_cast<std::uint32_t>(height));
    head.insert(head.end(), {8, 2, 0, 0, 0}); // 8 bits of red, green and blue
    Bytes out = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    AddChunk(&out, "IHDR", head);
    AddChunk(&out, "IDAT", Stored(raw));
    AddChunk(&out, "IEND", {});
    return WriteWhole(path, [&](std::FILE* file) {
        return std::fwrite(out.data(), 1, out.size(), file) == out.size();
    });
}

#endif

} // namespace capture
