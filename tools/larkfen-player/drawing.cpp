// The picture in its place, the bar, and the panels.
#include <algorithm>
#include <cstdio>

#include "base/float_mode.h"
#include "larkfen-capture/picture.h"
#include "platform/soft/fit_picture.h"
#include "player/chapters.h"
#include "player/show.h"
#include "state.h"

namespace player {

namespace {

constexpr double kBarStays = 2.5; // seconds after the mouse has rested

// --- the bar and the mouse -----------------------------------------------------------------------

Brush BrushOf(const Player& p) {
    return {p.renderer, std::max(1, std::min(p.width / 640, p.height / 480))};
}

} // namespace

Bar BarOf(const Player& p) {
    const int scale = BrushOf(p).scale;
    const int height = 48 * scale;
    return {{0, p.height - height, p.width, height},
            10 * scale,
            p.width - 10 * scale,
            p.height - 18 * scale};
}

bool BarShows(const Player& p) {
    return p.dragging ||
           (p.mouseMoved != Clock::time_point{} && SecondsSince(p.mouseMoved) < kBarStays);
}

namespace {

int PlaceOf(const Player& p, const Bar& bar, std::int32_t frame) {
    const std::int64_t width = bar.right - bar.left;
    return bar.left + static_cast<int>(width * frame / std::max(EndOf(p), 1));
}

SDL_Rect PlaceOfPicture(const Player& p) {
    const int width = std::max(p.picture.width, 1), height = std::max(p.picture.height, 1);
    if (!p.stretched) {
        const ombrel::Rect fit = ombrel::FitPicture(p.width, p.height, width, height);
        return {fit.left, fit.top, fit.right - fit.left, fit.bottom - fit.top};
    }
    const double factor =
        std::min(static_cast<double>(p.width) / width, static_cast<double>(p.height) / height);
    const int w = static_cast<int>(width * factor), h = static_cast<int>(height * factor);
    return {(p.width - w) / 2, (p.height - h) / 2, w, h};
}

std::string TimeText(std::int32_t frame) {
    char text[32];
    std::snprintf(text, sizeof text, "%d:%05.2f", frame / 2400, frame % 2400 / 40.0);
    return text;
}

void DrawChapters(const Player& p, const Brush& brush, const Bar& bar) {
    for (std::int32_t i = 0; i < ombrel::kChapterCount; ++i) {
        const ombrel::Chapter& chapter = ombrel::kChapters[i];
        if (chapter.frame > EndOf(p)) {
            break;
        }
        const int x = PlaceOf(p, bar, chapter.frame);
        FillBox(brush, {x, bar.line - 3 * brush.scale, brush.scale, 8 * brush.scale}, kInk);
        // Names stand in two rows by turns, so that near ones have room.
        const int y = bar.line - (i % 2 == 0 ? 24 : 14) * brush.scale;
        const int width = TextWidth(brush, chapter.name);
        const bool now = i == ombrel::ChapterOf(Here(p));
        DrawText(brush, std::min(x, bar.right - width), y, chapter.name, now ? kMark : kFaint);
    }
}

void DrawBar(const Player& p, const Brush& brush) {
    const Bar bar = BarOf(p);
    const std::int32_t here = Here(p);
    FillBox(brush, bar.box, kShade);
    FillBox(brush, {bar.left, bar.line, bar.right - bar.left, 2 * brush.scale}, kFaint);
    FillBox(brush, {bar.left, bar.line, PlaceOf(p, bar, here) - bar.left, 2 * brush.scale}, kInk);
    DrawChapters(p, brush, bar);
    for (const std::int32_t mark : {p.markA, p.markB}) {
        if (mark >= 0) {
            FillBox(brush,
                    {PlaceOf(p, bar, mark), bar.line - 5 * brush.scale, 2 * brush.scale,
                     12 * brush.scale},
                    kMark);
        }
    }
    FillBox(brush,
            {PlaceOf(p, bar, here) - 2 * brush.scale, bar.line - 2 * brush.scale, 5 * brush.scale,
             6 * brush.scale},
            kInk);
    const int y = bar.line + 7 * brush.scale;
    char text[128];
    std::snprintf(text, sizeof text, "%s / %s  frame %d  x%g%s%s", TimeText(here).c_str(),
                  TimeText(EndOf(p)).c_str(), here, kSpeeds[p.speed], p.playing ? "" : "  paused",
                  p.muted ? "  mute" : "");
    DrawText(brush, bar.left, y, text, kInk);
    std::string right = p.target >= 0 ? "winding: " + std::to_string(ombrel::ShownFrame())
                                      : std::string("H shows the keys");
    DrawText(brush, bar.right - TextWidth(brush, right), y, right, kFaint);
}

std::vector<Line> HelpLines() {
    std::vector<Line> lines;
    for (const char* const text :
         {"Space        play, pause", "Left Right   5 seconds, with Shift a frame",
          "Up Down      next chapter, this or the one before", "Home End     first, last frame",
          "+ -          speed, 1/4 to 4", "L            begin of a loop, its end, no loop",
          "S            saves the picture", "M            mute: sound is at speed 1 only",
          "I            figures of the frame", "Z            fills the window",
          "F Alt+Enter  full screen", "Click        names an object, on the bar: goes there",
          "H            these keys", "Esc          ends", ""}) {
        lines.push_back({text, kInk});
    }
    constexpr const char* kAgain[] = {"", "", "", "lights", "", "", "", "", "objects", "mip-level"};
    for (int digit = 0; digit <= 9; ++digit) {
        std::string text = std::to_string(digit) + "            " +
                           ombrel::LookName(static_cast<ombrel::Look>(digit));
        text += kAgain[digit][0] != '\0' ? std::string(", again: ") + kAgain[digit] : "";
        lines.push_back({text, kInk});
    }
    return lines;
}

std::vector<Line> FigureLines(const Player& p) {
    const auto format = [](const char* form, double value) {
        char text[64];
        std::snprintf(text, sizeof text, form, value);
        return Line{text, kInk};
    };
    std::vector<Line> lines = {format("frame      %10.0f", p.shown),
                               format("to draw    %10.2f ms", p.frameMs.whole)};
    for (std::int32_t part = 0; part < ombrel::kFramePartCount; ++part) {
        char form[32];
        std::snprintf(form, sizeof form, "  %-9s%%10.2f ms", NameOfPart(part));
        lines.push_back({format(form, p.frameMs.parts[part]).text, kFaint});
    }
    lines.push_back(format("rate       %10.1f a second", p.playing ? p.rate : 0.0));
    lines.push_back(format("faces      %10.0f", p.counted.faces));
    lines.push_back(format("triangles  %10.0f drawn", p.counted.triangles));
    lines.push_back(format("pixels     %10.0f", static_cast<double>(p.counted.pixels)));
    lines.push_back(format("overdraw   %10.2f", static_cast<double>(p.counted.overdraw)));
    return lines;
}

void DrawLegend(const Player& p, const Brush& brush) {
    constexpr std::size_t kMost = 20;
    std::vector<Line> lines;
    for (const ombrel::LegendRow& row : p.picture.legend) {
        if (lines.size() == kMost) {
            break;
        }
        const Ink color = {capture::Expand5(ombrel::RedOf(row.color)),
                           capture::Expand6(ombrel::GreenOf(row.color)),
                           capture::Expand5(ombrel::BlueOf(row.color)), 255};
        const std::string pixels = row.pixels > 0 ? "  " + std::to_string(row.pixels) : "";
        lines.push_back({row.name + pixels, color});
    }
    if (!lines.empty()) {
        DrawPanel(brush, -4 * brush.scale, 4 * brush.scale, p.width, lines);
    }
}

void DrawOver(const Player& p) {
    const Brush brush = BrushOf(p);
    const int corner = 4 * brush.scale;
    if (p.help) {
        DrawPanel(brush, corner, corner, p.width, HelpLines());
    } else if (p.figures) {
        DrawPanel(brush, corner, corner, p.width, FigureLines(p));
    }
    if (BarShows(p)) {
        DrawLegend(p, brush);
        DrawBar(p, brush);
    }
    std::vector<Line> said;
    if (p.objectFrame == p.shown && p.objectFrame >= 0) {
        said.push_back({p.object.name.empty()
                            ? "no object"
                            : p.object.name + ", " + std::to_string(p.object.faces) + " faces",
                        kMark});
    }
    if (!p.broken.empty()) {
        said.push_back({p.broken, kMark});
        said.push_back({"what was there before plays on", kFaint});
    }
    if (Clock::now() < p.noteUntil) {
        said.push_back({p.note, kInk});
    }
    if (!said.empty()) {
        const int lines = static_cast<int>(said.size());
        const int above = BarOf(p).box.y - (12 * brush.scale + lines * LineHeight(brush));
        DrawPanel(brush, corner, above, p.width, said);
    }
}

} // namespace

void Present(Player* p) {
    const ombrel::ScopedFloatMode usual(ombrel::FloatMode::Nearest);
    sdl.GetRendererOutputSize(p->renderer, &p->width, &p->height);
    p->place = PlaceOfPicture(*p);
    sdl.SetRenderDrawColor(p->renderer, 0, 0, 0, 255);
    sdl.RenderClear(p->renderer);
    sdl.SetTextureScaleMode(p->texture, p->stretched ? SDL_ScaleModeLinear : SDL_ScaleModeNearest);
    if (p->shown >= 0) {
        sdl.RenderCopy(p->renderer, p->texture, nullptr, &p->place);
    }
    DrawOver(*p);
    sdl.RenderPresent(p->renderer);
    sdl.ShowCursor(BarShows(*p) ? SDL_ENABLE : SDL_DISABLE);
}

} // namespace player
