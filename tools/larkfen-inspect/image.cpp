// The headers are judged in the loader's order; the loader then has the last word.
#include "image.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <set>

#include "assets/object_loader.h"
#include "base/log2_table.h"
#include "demo/font.h"
#include "demo/texts.h"

namespace inspect {

using namespace ombrel;

namespace {

constexpr std::size_t kMaxImageFile = std::size_t{256} << 20;
constexpr std::int32_t kGridWidth = 16 * (kGlyphWidth + 1) + 1;
constexpr std::int32_t kGridHeight = 16 * (kGlyphHeight + 1) + 1;
constexpr std::int64_t kOffsetAt = 10, kWidthAt = 18, kHeightAt = 22, kBitsAt = 28,
                       kCompressionAt = 30, kSizeAt = 34, kMasksAt = 54;
constexpr std::uint32_t kBitFields = 3; // a value of the compression field
constexpr std::uint32_t kMasks565[3] = {0xF800, 0x07E0, 0x001F};

struct Image {
    FileBytes content;
    std::string_view bytes; // of content
    BmpFileHeader file;
    BmpInfoHeader info;
    const char* lost; // what a refusal means
};

struct Needs {
    std::int64_t row, all; // bytes, without padding
};
Needs NeedsOf(const BmpInfoHeader& info) {
    const std::int64_t row = std::int64_t{info.width} * (info.bitCount / 8);
    return {row, row * info.height};
}

bool Fail(Report* report, std::int64_t place, const Image& image, const std::string& what,
          const std::string& mend) {
    Refuse(report, place, nullptr, {what, image.lost, mend});
    return false;
}

// What the loader checks, in its order; false at the first that it refuses.
bool CheckHeaders(const Image& image, Report* report) {
    constexpr std::size_t kHeaders = sizeof(BmpFileHeader) + sizeof(BmpInfoHeader);
    if (image.bytes.size() < 2 || image.bytes.compare(0, 2, "BM") != 0) {
        return Fail(report, 0, image, "the file does not begin with BM", "save it as BMP");
    }
    if (image.bytes.size() < kHeaders) {
        return Fail(report, static_cast<std::int64_t>(image.bytes.size()), image,
                    Format("the file ends within its %zu bytes of headers", kHeaders),
                    "save it again");
    }
    const BmpInfoHeader& info = image.info;
    if (info.bitCount != 8 && info.bitCount != 16 && info.bitCount != 24) {
        return Fail(report, kBitsAt, image, Format("%d bits a pixel", info.bitCount),
                    "save it with 24 bits");
    }
    if (info.width < 1) {
        return Fail(report, kWidthAt, image, Format("a width of %d", info.width), "save it again");
    }
    if (info.height < 1) {
        return Fail(report, kHeightAt, image,
                    Format("a height of %d%s", info.height,
                           info.height < 0 ? ": the top row comes first" : ""),
                    "save it with the bottom row first");
    }
    if (info.sizeImage > kMaxImageBytes) {
        return Fail(
            report, kSizeAt, image,
            Format("an image size of %u bytes, %u are allowed", info.sizeImage, kMaxImageBytes),
            "make the image smaller");
    }
    // Compared as the loader does, so that nothing overflows.
    const std::int64_t pixels = std::int64_t{info.width} * info.height;
    if (pixels > info.sizeImage / (info.bitCount / 8U)) {
        return Fail(
            report, kSizeAt, image,
            info.sizeImage == 0 ? std::string("the image size is not filled in")
                                : Format("an image size of %u bytes for %d x %d pixels of %d bits",
                                         info.sizeImage, info.width, info.height, info.bitCount),
            "write the number of its pixel bytes, " + std::to_string(pixels * (info.bitCount / 8)));
    }
    if (info.sizeImage > image.bytes.size()) {
        return Fail(report, kSizeAt, image,
                    Format("an image size of %u bytes in a file of %zu", info.sizeImage,
                           image.bytes.size()),
                    "the file is cut short: save it again");
    }
    return true;
}

void CheckDepth(const Image& image, Report* report) {
    const BmpInfoHeader& info = image.info;
    if (info.bitCount != 16) {
        if (info.compression != 0) {
            Warn(report, kCompressionAt, nullptr,
                 {Format("compression %u", info.compression),
                  "the bytes are taken for pixels as they are", "save it uncompressed"});
        }
        return;
    }
    std::uint32_t masks[3] = {0x7C00, 0x03E0, 0x001F}; // the format's own rule without masks
    const bool stated = info.compression == kBitFields &&
                        image.bytes.size() >= static_cast<std::size_t>(kMasksAt) + sizeof masks;
    if (stated) {
        std::memcpy(masks, image.bytes.data() + kMasksAt, sizeof masks);
    }
    if (!std::equal(std::begin(masks), std::end(masks), std::begin(kMasks565))) {
        Warn(report, stated ? kMasksAt : kCompressionAt, nullptr,
             {stated ? "16-bit pixels whose masks are not those of 5-6-5"
                     : "16-bit pixels without masks, which are 5-5-5",
              "they are taken for 5-6-5: the colours are wrong", "save it with 24 bits"});
    }
}

void CheckLayout(const Image& image, Report* report) {
    const BmpInfoHeader& info = image.info;
    const Needs needs = NeedsOf(info);
    if (needs.row % 4 != 0) {
        Warn(report, kWidthAt, nullptr,
             {Format("rows of %lld bytes, which the format pads to a multiple of 4",
                     static_cast<long long>(needs.row)),
              "the padding is taken for pixels: each row is shifted against the last",
              Format("make it %d pixels wide", (info.width + 3) / 4 * 4)});
        return;
    }
    const auto start = static_cast<std::int64_t>(image.bytes.size()) - info.sizeImage;
    const std::int64_t stated = image.file.dataOffset;
    if (start != stated) {
        Warn(report, kOffsetAt, nullptr,
             {Format("the pixels begin at byte %lld, but %u bytes before the end is byte %lld",
                     static_cast<long long>(stated), info.sizeImage, static_cast<long long>(start)),
              "the last bytes of the file are taken: the picture is shifted",
              "let nothing follow the pixels and let the image size be theirs"});
    }
}

void CheckTextureShape(const Image& image, Report* report) {
    const BmpInfoHeader& info = image.info;
    if (info.width > kMaxTextureSize || info.height > kMaxTextureSize) {
        Fail(report, info.width > kMaxTextureSize ? kWidthAt : kHeightAt, image,
             Format("%d x %d pixels, %d are allowed", info.width, info.height, kMaxTextureSize),
             "make it smaller");
        return;
    }
    if ((info.width & (info.width - 1)) != 0) {
        Warn(report, kWidthAt, nullptr,
             {Format("%d pixels wide, no power of two", info.width),
              Format("rows are taken as %d apart: the picture is torn",
                     1 << Log2Table[static_cast<std::size_t>(info.width)]),
              "make it 32, 64, 128, 256, 512 or 1024 pixels wide"});
    }
    if (info.height != info.width) {
        Warn(report, kHeightAt, nullptr,
             {Format("%d x %d pixels, not square", info.width, info.height),
              info.height < info.width ? "v reaches beyond the last row and is cut to it"
                                       : "the lower part is never shown",
              "make it square"});
    }
    if (info.bitCount == 8) {
        Warn(report, kBitsAt, nullptr,
             {"8 bits a pixel", "two of its bytes are taken for one 16-bit pixel",
              "save it with 24 bits"});
    }
}

std::int32_t ColorsOf(const BmpImage& image) {
    const auto* const pixels = reinterpret_cast<const std::uint8_t*>(image.pixels);
    const std::size_t bytes = image.infoHeader.bitCount / 8U;
    const std::size_t count = static_cast<std::size_t>(image.infoHeader.width) *
                              static_cast<std::size_t>(image.infoHeader.height);
    std::set<std::uint32_t> colors;
    for (std::size_t i = 0; i < count; ++i) {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, pixels + i * bytes, bytes);
        colors.insert(pixel);
    }
    return static_cast<std::int32_t>(colors.size());
}

// Reads, judges the headers and loads; the caller releases loaded. False when it is refused.
bool LoadImage(const std::string& path, const char* lost, Report* report, Image* image,
               BmpImage* loaded) {
    image->lost = lost;
    std::string problem;
    if (!ReadFile(path, kMaxImageFile, &image->content, &problem)) {
        return Fail(report, 0, *image, problem, "give a file that can be read");
    }
    image->bytes = image->content.text;
    if (image->bytes.size() >= sizeof image->file + sizeof image->info) {
        std::memcpy(&image->file, image->bytes.data(), sizeof image->file);
        std::memcpy(&image->info, image->bytes.data() + sizeof image->file, sizeof image->info);
    }
    const bool accepted = CheckHeaders(*image, report);
    if ((loadBmp(loaded, path.c_str(), kFormat565) != 0) != accepted) {
        return Fail(report, 0, *image, "the loader and this inspector disagree",
                    "tell the makers of this program");
    }
    if (accepted) {
        CheckDepth(*image, report);
        CheckLayout(*image, report);
    }
    return accepted;
}

void SizeRows(const Image& image, const BmpImage& loaded, Report* report) {
    const BmpInfoHeader& info = image.info;
    Row(report, "pixels", Format("%d x %d, %d bits each", info.width, info.height, info.bitCount));
    Row(report, "bytes",
        Format("%zu in the file, of which the last %u are taken", image.bytes.size(),
               info.sizeImage));
    Row(report, "colours", Format("%d as the production has them", ColorsOf(loaded)));
}

void UseText(FontUse* use, const char* text) {
    for (const char* p = text; *p != '\0'; ++p) {
        use->used[static_cast<unsigned char>(*p)] = true;
    }
}

// Where the top row of a cell stands in the file.
std::int64_t PlaceOfCell(const Image& image, std::int32_t code) {
    const BmpInfoHeader& info = image.info;
    const std::int64_t row = info.height - 1 - (code / 16 * (kGlyphHeight + 1) + 1);
    const std::int64_t column = code % 16 * (kGlyphWidth + 1) + 1;
    const auto start = static_cast<std::int64_t>(image.bytes.size()) - info.sizeImage;
    return start + (std::max<std::int64_t>(row, 0) * info.width + column) * (info.bitCount / 8);
}

void CheckGlyphs(const Image& image, const BmpImage& sheet, const FontUse& use, Report* report) {
    std::string missing;
    std::int32_t count = 0;
    std::int32_t first = 0;
    for (std::int32_t code = 0; code < kGlyphCount; ++code) {
        if (use.used[code] && code != ' ' && GlyphExtent(sheet, code) == 0) {
            first = count == 0 ? code : first;
            missing += Format(count++ == 0 ? "0x%02X" : " 0x%02X", static_cast<unsigned>(code));
        }
    }
    if (count > 0) {
        Warn(report, PlaceOfCell(image, first), nullptr,
             {Format("%d letters of the texts are empty cells: ", count) + missing,
              "they are blanks on the screen", "draw them"});
    }
}

} // namespace

bool IsFontSheet(const std::string& path) {
    const std::string name = std::filesystem::path(path).filename().string();
    return name.compare(0, 4, "font") == 0;
}

FontUse UseOfFont(const std::string& path) {
    const std::string name = std::filesystem::path(path).filename().string();
    if (name.find("16px") != std::string::npos) {
        FontUse small{"the small font", 12, {}};
        UseText(&small, kSubtitleText);
        for (const char* const text : kBlockTexts) {
            UseText(&small, text);
        }
        for (const char* const text : kScrollerTexts) {
            UseText(&small, text);
        }
        return small;
    }
    FontUse big{"the big font", 20, {}};
    UseText(&big, kTitleText);
    for (const char* const text : kGreetingTexts) {
        UseText(&big, text);
    }
    return big;
}

std::int32_t GlyphExtent(const BmpImage& sheet, std::int32_t code) {
    const std::int32_t left = code % 16 * (kGlyphWidth + 1) + 1;
    const std::int32_t top = code / 16 * (kGlyphHeight + 1) + 1;
    std::int32_t extent = 0;
    for (std::int32_t y = 0; y < kGlyphHeight && top + y < sheet.infoHeader.height; ++y) {
        for (std::int32_t x = 0; x < kGlyphWidth && left + x < sheet.infoHeader.width; ++x) {
            Pixel16 pixel = 0;
            const std::int64_t at = (std::int64_t{top} + y) * sheet.infoHeader.width + left + x;
            std::memcpy(&pixel, sheet.pixels + at * 2, sizeof pixel);
            extent = pixel != 0 ? std::max(extent, x + 1) : extent;
        }
    }
    return extent;
}

void InspectTexture(const std::string& path, Report* report) {
    Image image{};
    BmpImage loaded{};
    if (LoadImage(path, "its faces are white, or black once any other texture was read", report,
                  &image, &loaded)) {
        CheckTextureShape(image, report);
        SizeRows(image, loaded, report);
        const std::int32_t width =
            std::min(+image.info.width, kLog2TableSize - 1); // a copy: packed
        Row(report, "mip levels",
            Format("%d, none asked for", Log2Table[static_cast<std::size_t>(width)] + 1));
        report->summary =
            Format("%4d x %4d  %d bits", image.info.width, image.info.height, image.info.bitCount);
    } else {
        report->summary = "broken";
    }
    releaseBmp(&loaded);
}

void InspectFont(const std::string& path, Report* report) {
    Image image{};
    BmpImage loaded{};
    if (!LoadImage(path, "no text is drawn with this font", report, &image, &loaded)) {
        report->summary = "broken";
        releaseBmp(&loaded);
        return;
    }
    const BmpInfoHeader& info = image.info;
    SizeRows(image, loaded, report);
    if (loaded.infoHeader.bitCount != 16) {
        Fail(report, kBitsAt, image, Format("%d bits a pixel", info.bitCount),
             "save it with 24 bits");
        report->summary = "broken";
        releaseBmp(&loaded);
        return;
    }
    if (info.width < kGridWidth || info.height < kGridHeight) {
        Warn(report, info.width < kGridWidth ? kWidthAt : kHeightAt, nullptr,
             {Format("%d x %d pixels, the grid of 256 cells has %d x %d", info.width, info.height,
                     kGridWidth, kGridHeight),
              "the cells that it does not reach stay empty", "make it 788 x 689"});
    }
    const FontUse use = UseOfFont(path);
    std::int32_t drawn = 0;
    std::int32_t widest = 0;
    std::int32_t used = 0;
    for (std::int32_t code = 0; code < kGlyphCount; ++code) {
        const std::int32_t extent = GlyphExtent(loaded, code);
        drawn += extent > 0 ? 1 : 0;
        widest = std::max(widest, extent);
        used += use.used[code] ? 1 : 0;
    }
    Row(report, "used as", use.name);
    Row(report, "glyphs", Format("%d of 256 drawn, the texts use %d", drawn, used));
    Row(report, "widest", Format("%d pixels, letters are %d apart", widest, use.advance));
    CheckGlyphs(image, loaded, use, report);
    report->summary =
        Format("%4d x %4d  %d bits  %d glyphs", info.width, info.height, info.bitCount, drawn);
    releaseBmp(&loaded);
}

} // namespace inspect
