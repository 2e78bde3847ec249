// Textures with their mip levels, and font sheets with their codes.
#include <algorithm>

#include "../larkfen-gallery/tiny_font.h"
#include "assets/bmp.h"
#include "assets/object_lines.h"
#include "assets/object_loader.h"
#include "base/log2_table.h"
#include "demo/font.h"
#include "draw.h"
#include "image.h"
#include "report.h"

namespace inspect {

using namespace ombrel;
using gallery::Sheet;

namespace {

constexpr std::int32_t kGap = 6, kLine = 12;

void PaintTexture(Sheet* sheet, const Texture& texture, std::int32_t left, std::int32_t top,
                  std::int32_t times) {
    const auto* const texels = static_cast<const Pixel16*>(texture.pixels);
    for (std::int32_t y = 0; y < texture.height * times; ++y) {
        for (std::int32_t x = 0; x < texture.width * times; ++x) {
            *sheet->At(left + x, top + y) = texels[y / times * texture.width + x / times];
        }
    }
}

// The full size at the left, the levels one under the other at its right.
void PaintLevels(Sheet* sheet, Texture** chain, std::int32_t levels, std::int32_t times) {
    PaintTexture(sheet, *chain[0], kGap, 2 * kLine, times);
    const std::int32_t x = 2 * kGap + chain[0]->width * times;
    std::int32_t y = 2 * kLine;
    for (std::int32_t k = 1; k < levels; ++k) {
        const Texture& level = *chain[k];
        PaintTexture(sheet, level, x, y, times);
        DrawText(sheet, x + level.width * times + kGap, y, std::to_string(level.width), kInk);
        y += std::max(level.height * times, kLine) + 2;
    }
}

void PaintGlyph(Sheet* sheet, const BmpImage& image, std::int32_t code, const Area& area) {
    const std::int32_t left = code % 16 * (kGlyphWidth + 1) + 1;
    const std::int32_t top = code / 16 * (kGlyphHeight + 1) + 1;
    const auto* const pixels = reinterpret_cast<const Pixel16*>(image.pixels);
    for (std::int32_t y = 0; y < kGlyphHeight && top + y < image.infoHeader.height; ++y) {
        for (std::int32_t x = 0; x < kGlyphWidth && left + x < image.infoHeader.width; ++x) {
            const Pixel16 pixel = pixels[(top + y) * image.infoHeader.width + left + x];
            if (pixel != 0) {
                *sheet->At(area.x + x, area.y + y) = pixel;
            }
        }
    }
}

} // namespace

Sheet MakeSheet(std::int32_t width, std::int32_t height) {
    Sheet sheet{};
    sheet.width = width;
    sheet.height = height;
    sheet.pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kPaper);
    return sheet;
}

void PaintChecks(Sheet* sheet, const Area& area) {
    for (std::int32_t y = 0; y < area.height; ++y) {
        for (std::int32_t x = 0; x < area.width; ++x) {
            const bool light = ((x >> 4) + (y >> 4)) % 2 != 0;
            *sheet->At(area.x + x, area.y + y) = light ? Rgb(60, 64, 76) : Rgb(48, 52, 64);
        }
    }
}

void PaintPoint(Sheet* sheet, std::int32_t x, std::int32_t y, Pixel16 color) {
    if (x >= 0 && y >= 0 && x < sheet->width && y < sheet->height) {
        *sheet->At(x, y) = color;
    }
}

bool DrawTexture(const std::string& path, Sheet* sheet, std::string* why) {
    BmpImage image{};
    Texture texture{};
    Texture** chain = nullptr;
    *why = "the production cannot make a texture of it";
    bool drawn = false;
    if (loadBmp(&image, path.c_str(), kFormat565) != 0 && image.infoHeader.bitCount == 16 &&
        image.infoHeader.width <= kMaxTextureSize && image.infoHeader.height <= kMaxTextureSize &&
        createTexture(&texture, {0, 0, image.infoHeader.width, image.infoHeader.height, 16}) != 0) {
        copyPixels16(&texture, &image, 0, 0, 1);
        drawn = buildMipChain(&texture, &chain, cob::kMipBrightness) != 0;
    }
    if (drawn) {
        const std::int32_t levels = Log2Table[static_cast<std::size_t>(texture.width)] + 1;
        const std::int32_t times = std::max(1, 256 / std::max(texture.width, texture.height));
        const std::int32_t height = std::max(texture.height * times, (levels + 1) * kLine) + 24;
        *sheet = MakeSheet(texture.width * times * 3 / 2 + 3 * kGap + 48,
                           2 * kLine + height + texture.height * times / 8 + kGap);
        DrawText(sheet, kGap, kGap,
                 Format("%d x %d, %d mip levels", texture.width, texture.height, levels), kTitle);
        PaintLevels(sheet, chain, levels, times);
    }
    releaseMipChain(chain);
    releaseTexture(&texture);
    releaseBmp(&image);
    return drawn;
}

bool DrawFont(const std::string& path, Sheet* sheet, std::string* why) {
    constexpr std::int32_t kCellWidth = kGlyphWidth + 3, kCellHeight = kGlyphHeight + 12;
    BmpImage image{};
    if (loadBmp(&image, path.c_str(), kFormat565) == 0 || image.infoHeader.bitCount != 16) {
        releaseBmp(&image);
        *why = "the production cannot make a font of it";
        return false;
    }
    const FontUse use = UseOfFont(path);
    *sheet = MakeSheet(16 * kCellWidth + 2 * kGap, 16 * kCellHeight + 2 * kLine + kGap);
    DrawText(sheet, kGap, kGap,
             std::string(use.name) + ": bright codes are used by the texts, red ones are missing",
             kTitle);
    for (std::int32_t code = 0; code < kGlyphCount; ++code) {
        const Area area{kGap + code % 16 * kCellWidth, 2 * kLine + code / 16 * kCellHeight,
                        kGlyphWidth, kGlyphHeight};
        PaintChecks(sheet, area);
        for (std::int32_t y = 0; y < kGlyphHeight; ++y) {
            *sheet->At(area.x + use.advance, area.y + y) = Rgb(96, 60, 60); // where the next begins
        }
        PaintGlyph(sheet, image, code, area);
        const bool missing = use.used[code] && code != ' ' && GlyphExtent(image, code) == 0;
        DrawText(sheet, area.x, area.y + kGlyphHeight + 2,
                 Format("%02X", static_cast<unsigned>(code)),
                 missing          ? kAlarm
                 : use.used[code] ? kTitle
                                  : Rgb(96, 100, 116));
    }
    releaseBmp(&image);
    return true;
}

} // namespace inspect
