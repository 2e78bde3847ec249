// Each look: what it changes before the frame is drawn again, or how it colours a trace.
#include "player/looks.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "base/convert.h"
#include "demo/face_views.h"
#include "demo/world.h"
#include "platform/display.h"
#include "player/show.h"
#include "player/trace.h"
#include "scene/geometry.h"

namespace ombrel {

namespace {

// --- the table -----------------------------------------------------------------------------------

struct LookRow {
    const char* name;
    const char* meaning;
    void (*before)(void* user);     // of a second drawing; null: nothing changes
    void (*over)(LookPicture* out); // drawn over its picture; null: nothing
    void (*color)(const Trace& trace, LookPicture* out); // null: no trace is needed
};

std::size_t PixelCount(const LookPicture& picture) {
    return static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
}

void CopyPicture(LookPicture* out) {
    out->pixels.resize(PixelCount(*out));
    LockFrame();
    for (std::int32_t y = 0; y < out->height && display.back.pixels != nullptr; ++y) {
        const Pixel16* const row =
            display.back.pixels + static_cast<std::ptrdiff_t>(y) * (display.back.pitch / 2);
        std::copy_n(row, out->width,
                    out->pixels.data() + static_cast<std::ptrdiff_t>(y) * out->width);
    }
    (void)UnlockFrame();
}

Canvas CanvasOf(LookPicture* picture) {
    return {picture->pixels.data(), picture->width * 2, {0, 0, picture->width, picture->height}};
}

Pixel16 Rgb(std::int32_t r, std::int32_t g, std::int32_t b) {
    const auto byte = [](std::int32_t v) {
        return static_cast<std::uint32_t>(std::clamp(v, 0, 255));
    };
    return static_cast<Pixel16>(PackRgb565(byte(r), byte(g), byte(b)));
}

// --- what is changed before the second drawing ---------------------------------------------------

// One white light for all, which throws every colour back as it is.
void LightsOff(void*) {
    for (Light& light : world.lights) {
        light.enabled = 0;
    }
    Light& even = world.lights[kMaxLights - 1];
    even = Light{};
    even.enabled = 1;
    even.kind = LIGHT_AMBIENT;
    even.ambientColor = PackLightColor(255, 255, 255);
    switches.lightCount = kMaxLights;
}
void ShowBacks(void*) {
    switches.backFace = 0;
}
void LeaveOutBlur(void*) {
    switches.blur = -1;
}
void Unchanged(void*) {}

// --- what is drawn over it -----------------------------------------------------------------------

void DrawWires(LookPicture* out) {
    for (Pixel16& pixel : out->pixels) {
        pixel = static_cast<Pixel16>((pixel >> 1) & 0x7BEF); // half as bright
    }
    DrawFaceListWire(&sceneFaces, CanvasOf(out));
}
void DrawDots(LookPicture* out) {
    std::fill(out->pixels.begin(), out->pixels.end(), Pixel16{0});
    DrawFaceListDots(&sceneFaces, CanvasOf(out));
}

// A cross where a light stands, in its colour.
void DrawLights(LookPicture* out) {
    const CameraView view = ViewOf(world.camera);
    const Canvas canvas = CanvasOf(out);
    for (std::int32_t i = 0; i < std::min(switches.lightCount, kMaxLights); ++i) {
        const Light& light = world.lights[i];
        const auto seen = ToCamera(light.position, view.matrix);
        if (light.enabled == 0 || light.kind != LIGHT_POINT || seen.z < view.zNear) {
            continue;
        }
        const auto place = MapToScreen(Project(seen, view), view);
        const std::int32_t x = ToIntChop(place.x), y = ToIntChop(place.y);
        const std::uint32_t c = light.lightColor;
        const auto color = static_cast<Pixel16>(PackRgb565(c >> 24, c >> 16 & 255, c >> 8 & 255));
        for (std::int32_t k = -6; k <= 6; ++k) {
            PlotPixel(x + k, y + k, 0xFFFF, canvas);
            PlotPixel(x + k, y - k, 0xFFFF, canvas);
            PlotPixel(x + k, y, color, canvas);
            PlotPixel(x, y + k, color, canvas);
        }
    }
}

// --- how a trace is coloured ---------------------------------------------------------------------

// From white, the nearest place of the frame, to dark grey, the farthest; every doubling of the
// distance takes the same step. Black is nothing at all.
void ColorDepth(const Trace& trace, LookPicture* out) {
    constexpr double kDarkest = 24.0;
    std::uint32_t nearest = 1, farthest = UINT32_MAX;
    for (const std::uint32_t depth : trace.depth) {
        nearest = std::max(nearest, depth);
        farthest = depth != 0 ? std::min(farthest, depth) : farthest;
    }
    const double low = std::log2(static_cast<double>(farthest));
    const double span = std::max(std::log2(static_cast<double>(nearest)) - low, 1e-6);
    for (std::size_t i = 0; i < trace.depth.size(); ++i) {
        if (trace.depth[i] != 0) {
            const double nearness = (std::log2(static_cast<double>(trace.depth[i])) - low) / span;
            const auto grey = static_cast<std::int32_t>(kDarkest + nearness * (255.0 - kDarkest));
            out->pixels[i] = Rgb(grey, grey, grey);
        }
    }
}

void ColorOverdraw(const Trace& trace, LookPicture* out) {
    static constexpr Pixel16 kHeat[] = {0x0000, 0x0010, 0x041F, 0x07F0, 0x9FE0,
                                        0xFFE0, 0xFC00, 0xF800, 0xFFFF};
    constexpr std::size_t kHottest = sizeof kHeat / sizeof kHeat[0] - 1;
    std::int32_t counts[kHottest + 1] = {};
    for (std::size_t i = 0; i < trace.coverings.size(); ++i) {
        const std::size_t heat = std::min<std::size_t>(trace.coverings[i], kHottest);
        out->pixels[i] = kHeat[heat];
        ++counts[heat];
    }
    for (std::size_t i = 0; i <= kHottest; ++i) {
        const std::string name = std::to_string(i) + (i == kHottest ? " or more" : "");
        out->legend.push_back({kHeat[i], name, counts[i]});
    }
}

// Colours that neighbours in a row can be told apart by: a hue each golden angle.
Pixel16 ColorOfNumber(std::int32_t number) {
    const double hue = std::fmod(static_cast<double>(number) * 137.508, 360.0) / 60.0;
    const auto wave = [&](double shift) {
        const double at = std::fmod(hue + shift, 6.0);
        const double level = std::clamp(std::fabs(at - 3.0) - 1.0, 0.0, 1.0);
        return static_cast<std::int32_t>(60.0 + 195.0 * level);
    };
    return Rgb(wave(0.0), wave(4.0), wave(2.0));
}

// Colours each pixel by what numberOf says of its triangle, and counts them for the legend.
template <class NumberOf, class NameOf>
void ColorByNumber(const Trace& trace, LookPicture* out, NumberOf numberOf, NameOf nameOf) {
    std::vector<std::int32_t> counts;
    for (std::size_t i = 0; i < trace.shown.size(); ++i) {
        if (trace.shown[i] < 0) {
            continue;
        }
        const std::int32_t number =
            numberOf(trace.triangles[static_cast<std::size_t>(trace.shown[i])]);
        if (number < 0) {
            continue;
        }
        const auto slot = static_cast<std::size_t>(number);
        counts.resize(std::max(counts.size(), slot + 1));
        ++counts[slot];
        out->pixels[i] = ColorOfNumber(number);
    }
    for (std::size_t n = 0; n < counts.size(); ++n) {
        if (counts[n] != 0) {
            const auto number = static_cast<std::int32_t>(n);
            out->legend.push_back({ColorOfNumber(number), nameOf(number), counts[n]});
        }
    }
    std::sort(out->legend.begin(), out->legend.end(),
              [](const LegendRow& a, const LegendRow& b) { return a.pixels > b.pixels; });
}

void ColorFillers(const Trace& trace, LookPicture* out) {
    ColorByNumber(
        trace, out, [](const TracedTriangle& t) { return static_cast<std::int32_t>(t.filler); },
        [](std::int32_t number) { return std::string(kFillerTable[number].name); });
}

// Objects of one file have one colour.
void ColorObjects(const Trace& trace, LookPicture* out) {
    const std::vector<std::string> names = TraceNames();
    ColorByNumber(
        trace, out,
        [&](const TracedTriangle& t) {
            const std::int32_t owner = trace.owners[static_cast<std::size_t>(t.record)];
            const auto n = static_cast<std::size_t>(owner);
            return n < names.size()
                       ? static_cast<std::int32_t>(std::find(names.begin(), names.end(), names[n]) -
                                                   names.begin())
                       : owner;
        },
        [&](std::int32_t number) {
            const auto n = static_cast<std::size_t>(number);
            return n < names.size() ? names[n] : "object " + std::to_string(number);
        });
}

double CrossOf(double ax, double ay, double bx, double by) {
    return std::fabs(ax * by - ay * bx);
}
// Texels on a pixel, over the whole triangle; negative without a texture or without an area.
double DensityOf(const TracedTriangle& triangle) {
    const Vertex* const v = triangle.polygon.vertices;
    const double pixels =
        CrossOf(static_cast<double>(v[1].x - v[0].x), static_cast<double>(v[1].y - v[0].y),
                static_cast<double>(v[2].x - v[0].x), static_cast<double>(v[2].y - v[0].y));
    const double texels =
        CrossOf(static_cast<double>(v[1].u - v[0].u), static_cast<double>(v[1].v - v[0].v),
                static_cast<double>(v[2].u - v[0].u), static_cast<double>(v[2].v - v[0].v));
    const bool textured = kFillerTable[static_cast<int>(triangle.filler)].texel != "NoTexel";
    return textured && pixels > 0.0 ? texels / pixels : -1.0;
}

void ColorDensity(const Trace& trace, LookPicture* out) {
    for (std::size_t i = 0; i < trace.shown.size(); ++i) {
        if (trace.shown[i] < 0) {
            continue;
        }
        const double density = DensityOf(trace.triangles[static_cast<std::size_t>(trace.shown[i])]);
        if (density < 0.0) {
            out->pixels[i] = Rgb(70, 70, 70);
            continue;
        }
        // Green at one texel a pixel, full red and blue at 32 times more and less.
        const double doublings = std::log2(std::max(density, 1.0 / 1024.0)) / 5.0;
        const auto away = static_cast<std::int32_t>(255.0 * std::fabs(doublings));
        out->pixels[i] = doublings > 0.0 ? Rgb(away, 255 - away, 0) : Rgb(0, 255 - away, away);
    }
    out->legend = {{Rgb(0, 0, 255), "a texel on 32 pixels or more", 0},
                   {Rgb(0, 255, 0), "a texel a pixel", 0},
                   {Rgb(255, 0, 0), "32 texels a pixel or more", 0},
                   {Rgb(70, 70, 70), "no texture", 0}};
}

void ColorMipLevels(const Trace& trace, LookPicture* out) {
    for (std::size_t i = 0; i < trace.shown.size(); ++i) {
        if (trace.shown[i] < 0) {
            continue;
        }
        const TracedTriangle& triangle = trace.triangles[static_cast<std::size_t>(trace.shown[i])];
        const RenderFace& face = sceneFaces.records[triangle.record];
        if ((face.flags & FACE_MIPMAPPED) == 0) {
            out->pixels[i] = Rgb(110, 110, 110);
            continue;
        }
        std::int32_t level = 0;
        for (std::int32_t width = face.texture.chain[0]->width;
             width > triangle.polygon.texture.single->width; width /= 2) {
            ++level;
        }
        out->pixels[i] = Rgb(28 * level, 255 - 25 * level, 60);
    }
    out->legend = {{Rgb(0, 255, 60), "full size", 0}, {Rgb(110, 110, 110), "no levels", 0}};
}

// clang-format off
constexpr LookRow kLooks[kLookCount] = {
    // name         meaning                                               before        over        color
    {"none",        "the picture itself",                                 nullptr,      nullptr,    nullptr},
    {"wires",       "every drawn face outlined",                          Unchanged,    DrawWires,  nullptr},
    {"dots",        "the corners of every drawn face",                    Unchanged,    DrawDots,   nullptr},
    {"lights-off",  "even light: textures as they were painted",          LightsOff,    nullptr,    nullptr},
    {"back-faces",  "faces turned away are drawn too",                    ShowBacks,    nullptr,    nullptr},
    {"no-blur",     "the frame before it is blurred",                     LeaveOutBlur, nullptr,    nullptr},
    {"depth",       "near is white, far is black",                        nullptr,      nullptr,    ColorDepth},
    {"overdraw",    "how many triangles cover a pixel",                   nullptr,      nullptr,    ColorOverdraw},
    {"fillers",     "which filler drew a pixel last",                     nullptr,      nullptr,    ColorFillers},
    {"density",     "texels a pixel: blue too few, red too many",         nullptr,      nullptr,    ColorDensity},
    {"mip-level",   "size of the texture level: green is the full one",   nullptr,      nullptr,    ColorMipLevels},
    {"objects",     "a colour for the objects of each file",              nullptr,      nullptr,    ColorObjects},
    {"lights",      "where the point lights stand",                       Unchanged,    DrawLights, nullptr},
};
// clang-format on

struct Second {
    const LookRow* row;
    LookPicture* out;
};

bool DrawSecond(const LookRow& row, LookPicture* out) {
    Second second = {&row, out};
    const Redraw redraw = {[](void* user) { static_cast<Second*>(user)->row->before(nullptr); },
                           [](void* user) {
                               const Second& s = *static_cast<Second*>(user);
                               CopyPicture(s.out);
                               if (s.row->over != nullptr) {
                                   s.row->over(s.out);
                               }
                           },
                           &second};
    return RedrawShown(redraw);
}

} // namespace

const char* LookName(Look look) {
    return kLooks[static_cast<int>(look)].name;
}

const char* LookMeaning(Look look) {
    return kLooks[static_cast<int>(look)].meaning;
}

bool LookOfName(const char* name, Look* look) {
    for (int i = 0; i < kLookCount; ++i) {
        if (std::strcmp(kLooks[i].name, name) == 0) {
            *look = static_cast<Look>(i);
            return true;
        }
    }
    return false;
}

bool DrawLook(Look look, LookPicture* out) {
    const LookRow& row = kLooks[static_cast<int>(look)];
    out->width = display.width;
    out->height = display.height;
    out->legend.clear();
    if (!ShowIsSeen()) {
        return false;
    }
    if (row.before != nullptr) {
        return DrawSecond(row, out);
    }
    if (row.color == nullptr) {
        CopyPicture(out);
        return true;
    }
    Trace trace;
    if (!TraceFrame(&trace)) {
        return false;
    }
    out->pixels.assign(PixelCount(*out), Pixel16{0});
    row.color(trace, out);
    return true;
}

ObjectAt FindObject(std::int32_t x, std::int32_t y) {
    ObjectAt found = {"", 0, 0};
    Trace trace;
    if (x < 0 || y < 0 || x >= display.width || y >= display.height || !TraceFrame(&trace)) {
        return found;
    }
    const std::int32_t pixel = y * trace.width + x;
    const std::int32_t shown = trace.shown[static_cast<std::size_t>(pixel)];
    if (shown < 0) {
        return found;
    }
    const std::int32_t record = trace.triangles[static_cast<std::size_t>(shown)].record;
    const std::int32_t owner = trace.owners[static_cast<std::size_t>(record)];
    const std::vector<std::string> names = TraceNames();
    const Mesh* const mesh = TracedMesh(owner);
    if (mesh != nullptr && static_cast<std::size_t>(owner) < names.size()) {
        found = {names[static_cast<std::size_t>(owner)], mesh->faceCount, record};
    }
    return found;
}

bool CountFrame(FrameFigures* out) {
    Trace trace;
    if (!TraceFrame(&trace)) {
        return false;
    }
    *out = {trace.faces, static_cast<std::int32_t>(trace.triangles.size()), 0, 0.0F};
    for (const TracedTriangle& triangle : trace.triangles) {
        out->pixels += triangle.pixels;
    }
    out->overdraw = static_cast<float>(static_cast<double>(out->pixels) /
                                       static_cast<double>(trace.shown.size()));
    return true;
}

} // namespace ombrel
