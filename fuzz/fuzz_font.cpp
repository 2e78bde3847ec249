// Font sheets and text drawn with them. The input is the sheet; its last bytes are text and place.
#include <string>

#include "base/float_mode.h"
#include "demo/font.h"
#include "platform/offscreen/offscreen.h"

#include "byte_source.h"
#include "limits.h"
#include "memory_file.h"

namespace {

using namespace ombrel;

constexpr std::size_t kTail = 24; // bytes of the input's end that are read a second time

GlyphSet glyphs{};

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    OpenDisplay(64, 48, 16, 1, 0);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScopedFloatMode chop(FloatMode::Chop);
    const InputLimits limits;
    const MemoryFile file(data, size);
    const int loaded = LoadGlyphSet(file.Path().c_str(), &glyphs, kFormat565);
    Require(loaded == 0 || (glyphs.attributes & GLYPHS_FILLED) != 0);

    const std::size_t tail = size < kTail ? size : kTail;
    ByteSource source{data + size - tail, tail};
    const TextPlace place{source.Float(), source.Float(), source.Signed() >> source.Below(32)};
    const std::string text(reinterpret_cast<const char*>(source.at), source.left);
    const std::int32_t width = DrawGlyphText(&glyphs, place, text.c_str(), display.backSurface);
    const auto length = static_cast<std::uint32_t>(std::char_traits<char>::length(text.c_str()));
    Require(static_cast<std::uint32_t>(width) ==
            length * static_cast<std::uint32_t>(place.advance));
    ReleaseGlyphSet(&glyphs);
    releaseBmp(&fontImage);
    fontImage = {};
    return 0;
}
