// BMP images: textures and font sheets. Places are byte offsets.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "assets/bmp.h"
#include "report.h"

namespace inspect {

// By its name ("font..."), or by being as large as the grid and no texture's shape.
bool IsFontSheet(const std::string& path);

void InspectTexture(const std::string& path, Report* report);
void InspectFont(const std::string& path, Report* report);

// Of a font sheet that was read: whether the cell of a code has a pixel that is drawn, and how wide
// its glyph is, from the left of the cell.
std::int32_t GlyphExtent(const ombrel::BmpImage& sheet, std::int32_t code);

// One of the two fonts: how far its letters are apart, and which codes the texts use.
struct FontUse {
    const char* name;
    std::int32_t advance;
    bool used[256];
};
FontUse UseOfFont(const std::string& path);

} // namespace inspect
