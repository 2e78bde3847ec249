// Looks into the shown frame: the same frame drawn so that one thing about it can be seen. A look
// goes into a picture of its own; the show goes on as if nobody had looked. Callers: the player
// window, the page, the recorder.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/pixel16.h"

namespace ombrel {

enum class Look : std::uint8_t {
    None,
    Wires,     // every drawn face outlined, over the picture
    Dots,      // its corners alone, on black
    LightsOff, // full even light: textures as they were painted
    BackFaces, // faces turned away are drawn too
    NoBlur,    // the frame as it was before the blur
    Depth,     // from white, the nearest, to dark, the farthest of the frame, by doublings
    Overdraw,  // how often a pixel was asked for: black never, then blue to red to white
    Fillers,   // which filler drew the pixel last
    Density,   // texels on a pixel: blue too few, green one, red too many
    MipLevel,  // level of the texture: green the full size; grey without levels
    Objects,   // which object the pixel shows
    Lights,    // the places of the lights, over the picture
};
inline constexpr std::int32_t kLookCount = 13;

const char* LookName(Look look);    // "none", "wires", "dots", "lights-off", ...
const char* LookMeaning(Look look); // one line, for a help text
// False, and *look unchanged, for an unknown name.
bool LookOfName(const char* name, Look* look);

// A row of a legend.
struct LegendRow {
    Pixel16 color;
    std::string name;
    std::int32_t pixels; // that show it
};

// What an object is, for the one under the mouse.
struct ObjectAt {
    std::string name; // "tower.cob"; empty: none
    std::int32_t faces;
    std::int32_t record; // of the face list, of the face under the point
};

// width x height pixels, row after row, as large as the frame.
struct LookPicture {
    std::vector<Pixel16> pixels;
    std::int32_t width, height;
    std::vector<LegendRow> legend; // most pixels first; empty where colours need no names
};

// Draws a look at the shown frame. None gives the picture itself. False before the first frame.
bool DrawLook(Look look, LookPicture* out);

// The object that pixel (x, y) of the shown frame shows; a draw of the frame, so not for every one.
ObjectAt FindObject(std::int32_t x, std::int32_t y);

// What the shown frame was made of, counted by drawing it once more.
struct FrameFigures {
    std::int32_t faces;     // in the list
    std::int32_t triangles; // handed to fillers
    std::int64_t pixels;    // asked for by them, hidden ones included
    float overdraw;         // pixels asked for, a pixel of the frame
};
bool CountFrame(FrameFigures* out);

} // namespace ombrel
