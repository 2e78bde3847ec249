// larkfen-gallery: one picture of every filler, of the blend levels, the mip chain, the lights,
// dots and wires. Exit code: 0 done, 1 the picture could not be made or written, 2 an argument is
// wrong.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <png.h>

#include "base/version.h"
#include "larkfen-gallery/sheet.h"

namespace {

constexpr char kHelp[] =
    "Usage: larkfen-gallery OUT.png\n"
    "Draws every filler of the production into one picture.\n"
    "\n"
    "All 45 triangle fillers stand by name on the same textured, lit, overlapping triangles, and\n"
    "under them the blend levels 0 to 7, a mip chain, the five lights, corner dots and wires.\n"
    "\n"
    "  --help     this text\n"
    "  --version  the version\n"
    "\n"
    "Exit code: 0 done, 1 the picture could not be made or written, 2 an argument is wrong.\n";

// Channels are widened by repeating their high bits.
std::vector<unsigned char> ToRgb(const std::vector<ombrel::Pixel16>& pixels) {
    std::vector<unsigned char> rgb;
    rgb.reserve(pixels.size() * 3);
    for (const ombrel::Pixel16 p : pixels) {
        const std::int32_t r = ombrel::RedOf(p), g = ombrel::GreenOf(p), b = ombrel::BlueOf(p);
        rgb.push_back(static_cast<unsigned char>((r << 3) | (r >> 2)));
        rgb.push_back(static_cast<unsigned char>((g << 2) | (g >> 4)));
        rgb.push_back(static_cast<unsigned char>((b << 3) | (b >> 2)));
    }
    return rgb;
}

bool WriteSheet(const char* path, const gallery::Sheet& sheet) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(sheet.width);
    image.height = static_cast<png_uint_32>(sheet.height);
    image.format = PNG_FORMAT_RGB;
    const std::vector<unsigned char> rgb = ToRgb(sheet.pixels);
    if (png_image_write_to_file(&image, path, 0, rgb.data(), 0, nullptr) != 0) {
        return true;
    }
    std::remove(path);
    return false;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0)) {
        std::fputs(kHelp, stdout);
        return 0;
    }
    if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
        std::printf("larkfen-gallery %s\n", ombrel::kVersion);
        return 0;
    }
    if (argc != 2 || argv[1][0] == '-' || argv[1][0] == '\0') {
        std::fputs("larkfen-gallery: one argument is wanted, the picture to write; see --help\n",
                   stderr);
        return 2;
    }
    const gallery::Sheet sheet = gallery::DrawGallery();
    if (sheet.pixels.empty()) {
        std::fputs("larkfen-gallery: not enough memory\n", stderr);
        return 1;
    }
    errno = 0;
    if (!WriteSheet(argv[1], sheet)) {
        std::fprintf(stderr, "larkfen-gallery: %s: %s\n", argv[1],
                     errno != 0 ? std::strerror(errno) : "could not be written");
        return 1;
    }
    return 0;
}
