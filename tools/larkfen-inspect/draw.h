// Pictures of what a file holds, drawn by the production's own renderer where it would draw it.
#pragma once

#include <string>

#include "../larkfen-gallery/sheet.h"

namespace inspect {

// False when there is nothing to draw; why says so.
bool DrawObject(const std::string& path, gallery::Sheet* sheet, std::string* why);
bool DrawTexture(const std::string& path, gallery::Sheet* sheet, std::string* why);
bool DrawFont(const std::string& path, gallery::Sheet* sheet, std::string* why);

// The world of a list seen from above, with the flights along tracks; either may be missing.
struct MapRequest {
    std::string listPath;
    std::string trackPaths[2];
    bool numbers; // of the list's objects
};
bool DrawMap(const MapRequest& request, gallery::Sheet* sheet, std::string* why);

// What every picture is painted with.
constexpr ombrel::Pixel16 Rgb(std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    return static_cast<ombrel::Pixel16>(ombrel::PackRgb565(r, g, b));
}
inline constexpr ombrel::Pixel16 kPaper = Rgb(16, 18, 28), kInk = Rgb(208, 212, 224),
                                 kTitle = Rgb(255, 200, 96), kAlarm = Rgb(255, 72, 56);
gallery::Sheet MakeSheet(std::int32_t width, std::int32_t height);
// A checked ground that shows holes and translucent faces.
struct Area {
    std::int32_t x, y, width, height;
};
void PaintChecks(gallery::Sheet* sheet, const Area& area);
void PaintPoint(gallery::Sheet* sheet, std::int32_t x, std::int32_t y, ombrel::Pixel16 color);

} // namespace inspect
