// Events, clock and drawing of the window. The show is wound in slices, so that the window answers
// meanwhile.
#include "window.h"

#include <SDL.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "base/float_mode.h"
#include "larkfen-capture/picture.h"
#include "overlay.h"
#include "platform/soft/fit_picture.h"
#include "player/chapters.h"
#include "player/show.h"
#include "timedemo.h"

namespace player {

namespace {

using Clock = std::chrono::steady_clock;

constexpr double kFrameSeconds = 0.025;
constexpr std::int32_t kSkip = 200; // frames: 5 seconds
constexpr double kSpeeds[] = {0.25, 0.5, 1.0, 2.0, 4.0};
constexpr std::int32_t kUsualSpeed = 2;
constexpr std::int32_t kFastest = 4;
constexpr double kBarStays = 2.5;     // seconds after the mouse has rested
constexpr double kSlice = 0.04;       // seconds of winding between two looks at the events
constexpr double kFiguresEvery = 0.5; // seconds, while it plays

struct Player {
    SDL_Window* window;
    SDL_Renderer* renderer;
    SDL_Texture* texture;
    WindowSetup setup;
    ombrel::LookPicture picture; // as it is shown
    std::vector<std::uint8_t> rgb;
    std::int32_t shown;  // frame of the picture; -1: none
    std::int32_t target; // that is wound to; -1: none
    bool playing, ended; // ended: the window is to close
    bool stretched, help, figures, dragging;
    std::int32_t speed; // index
    ombrel::Look look;
    std::int32_t markA, markB; // frames of the loop; -1: none
    Clock::time_point due;     // of the next frame
    Clock::time_point mouseMoved, countedAt, noteUntil;
    std::string note; // the answer to a key
    ombrel::ObjectAt object;
    std::int32_t objectFrame; // in which it was asked for; -1: none
    ombrel::FrameFigures counted;
    std::int32_t countedFrame;
    double frameMs; // of the last frame drawn
    double rate;    // frames a second, over the last half of a second
    std::int32_t rateFrames;
    Clock::time_point rateFrom;
    std::int32_t width, height; // of the window, pixels
    SDL_Rect place;             // of the picture in it
};

double SecondsSince(Clock::time_point then) {
    return std::chrono::duration<double>(Clock::now() - then).count();
}
Clock::duration Seconds(double seconds) {
    return std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
}

std::int32_t EndOf(const Player& p) {
    return p.setup.whole > 0 ? p.setup.whole - 1 : std::max(p.shown, p.setup.last);
}

void Tell(Player* p, const std::string& text) {
    p->note = text;
    p->noteUntil = Clock::now() + std::chrono::seconds(2);
}

// --- the picture ---------------------------------------------------------------------------------

void TakePicture(Player* p) {
    if (!ombrel::DrawLook(p->look, &p->picture)) {
        return;
    }
    p->shown = ombrel::ShownFrame();
    const ombrel::LookPicture& picture = p->picture;
    capture::ToRgb(picture.pixels.data(), picture.width * 2, picture.width, picture.height, 1,
                   &p->rgb);
    SDL_UpdateTexture(p->texture, nullptr, p->rgb.data(), picture.width * 3);
}

void CountShown(Player* p) {
    if (p->figures && p->shown >= 0 && p->countedFrame != p->shown &&
        (!p->playing || SecondsSince(p->countedAt) > kFiguresEvery)) {
        ombrel::CountFrame(&p->counted);
        p->countedFrame = p->shown;
        p->countedAt = Clock::now();
    }
}

// --- playing and winding -------------------------------------------------------------------------

void GoTo(Player* p, std::int64_t frame) {
    p->target = static_cast<std::int32_t>(std::clamp<std::int64_t>(frame, 0, EndOf(*p)));
}

std::int32_t Here(const Player& p) {
    return p.target >= 0 ? p.target : std::max(p.shown, 0);
}

void Wind(Player* p) {
    Clock::time_point start = Clock::now();
    const auto keepOn = [](std::int32_t, void* user) {
        return SecondsSince(*static_cast<Clock::time_point*>(user)) < kSlice;
    };
    const std::int32_t reached = ombrel::SeekShow(p->target, keepOn, &start);
    if (reached == p->target || ombrel::ShowEnded()) {
        p->target = -1;
        p->frameMs = LastFrameMs();
        TakePicture(p);
        p->due = Clock::now() + Seconds(kFrameSeconds);
    }
}

// The last frame that is played before the loop begins again or the window pauses.
std::int32_t LastOf(const Player& p) {
    return p.markB >= 0 ? p.markB : p.setup.last;
}

void PlayOn(Player* p) {
    const double speed = kSpeeds[p->speed];
    for (int i = 0; i < std::max(1, static_cast<int>(speed)) && p->target < 0; ++i) {
        // (Behind the end, where the mouse has gone, it plays on.)
        if (ombrel::ShownFrame() == LastOf(*p) || !ombrel::StepShow()) {
            if (p->setup.loop || p->markB >= 0) {
                GoTo(p, p->markB >= 0 ? p->markA : p->setup.first);
            } else {
                p->playing = false;
            }
            break;
        }
        ++p->rateFrames;
        p->frameMs = LastFrameMs();
    }
    if (ombrel::ShownFrame() != p->shown && p->target < 0) {
        TakePicture(p);
    }
    // The next one, a frame later; what has slipped by more than a frame is not made up for.
    const double wait = kFrameSeconds * std::max(1.0, 1.0 / speed);
    p->due = std::max(p->due + Seconds(wait), Clock::now() - Seconds(kFrameSeconds));
    const double passed = SecondsSince(p->rateFrom);
    if (passed > kFiguresEvery) {
        p->rate = p->rateFrames / passed;
        p->rateFrames = 0;
        p->rateFrom = Clock::now();
    }
}

void StartPlaying(Player* p, bool playing) {
    p->playing = playing;
    p->due = Clock::now();
    p->rateFrom = Clock::now();
    p->rateFrames = 0;
}

// --- what keys do --------------------------------------------------------------------------------

void NextChapter(Player* p, int by) {
    const std::int32_t now = ombrel::ChapterOf(Here(*p));
    // Back goes to the beginning of this one first, unless that was a moment ago.
    const bool begun = Here(*p) - ombrel::kChapters[now].frame > 40;
    const std::int32_t to = now + (by < 0 && begun ? 0 : by);
    if (to < ombrel::kChapterCount) {
        GoTo(p, ombrel::kChapters[std::max(to, 0)].frame);
    }
}

void SetLook(Player* p, ombrel::Look look) {
    p->look = look;
    TakePicture(p);
    Tell(p, std::string(ombrel::LookName(look)) + ": " + ombrel::LookMeaning(look));
}

// Some digits have a second look, for a second press.
void DigitLook(Player* p, int digit) {
    using ombrel::Look;
    struct Second {
        Look first, second;
    };
    constexpr Second kSeconds[] = {{Look::LightsOff, Look::Lights},
                                   {Look::Fillers, Look::Objects},
                                   {Look::Density, Look::MipLevel}};
    auto look = static_cast<Look>(digit);
    for (const Second& row : kSeconds) {
        if (look == row.first && p->look == row.first) {
            look = row.second;
        }
    }
    SetLook(p, look);
}

void MarkLoop(Player* p) {
    const std::int32_t here = Here(*p);
    if (p->markA < 0) {
        p->markA = here;
        Tell(p, "loop from " + std::to_string(here) + ", L again marks its end");
    } else if (p->markB < 0 && here > p->markA) {
        p->markB = here;
        Tell(p, "loop " + std::to_string(p->markA) + " to " + std::to_string(here));
        StartPlaying(p, true);
    } else {
        p->markA = p->markB = -1;
        Tell(p, "no loop");
    }
}

void SaveScreenshot(Player* p) {
    if (p->shown < 0) {
        return;
    }
    char name[64];
    const bool plain = p->look == ombrel::Look::None;
    std::snprintf(name, sizeof name, "ombrel-%06d%s%s.png", p->shown, plain ? "" : "-",
                  plain ? "" : ombrel::LookName(p->look));
    const std::string problem =
        capture::WritePng(name, p->rgb, p->picture.width, p->picture.height);
    Tell(p, problem.empty() ? name : problem);
}

void ToggleFullScreen(Player* p) {
    const bool full = (SDL_GetWindowFlags(p->window) & SDL_WINDOW_FULLSCREEN_DESKTOP) != 0;
    SDL_SetWindowFullscreen(p->window, full ? 0 : SDL_WINDOW_FULLSCREEN_DESKTOP);
}

void ChangeSpeed(Player* p, int by) {
    p->speed = std::clamp(p->speed + by, 0, kFastest);
    char text[32];
    std::snprintf(text, sizeof text, "speed %g", kSpeeds[p->speed]);
    Tell(p, text);
}

// Frames and chapters. False for another key.
bool OnMovingKey(Player* p, const SDL_Keysym& key) {
    const bool shift = (key.mod & KMOD_SHIFT) != 0;
    switch (key.sym) {
    case SDLK_LEFT:
        GoTo(p, Here(*p) - (shift ? 1 : kSkip));
        break;
    case SDLK_RIGHT:
        GoTo(p, Here(*p) + (shift ? 1 : kSkip));
        break;
    case SDLK_UP:
        NextChapter(p, 1);
        break;
    case SDLK_DOWN:
        NextChapter(p, -1);
        break;
    case SDLK_HOME:
        GoTo(p, 0);
        break;
    case SDLK_END:
        GoTo(p, EndOf(*p));
        break;
    default:
        return false;
    }
    if (shift) {
        p->playing = false;
    }
    return true;
}

void OnKey(Player* p, const SDL_Keysym& key) {
    if (key.sym >= SDLK_0 && key.sym <= SDLK_9) {
        DigitLook(p, key.sym - SDLK_0);
        return;
    }
    if (key.sym >= SDLK_KP_1 && key.sym <= SDLK_KP_9) {
        DigitLook(p, key.sym - SDLK_KP_1 + 1);
        return;
    }
    if (OnMovingKey(p, key)) {
        return;
    }
    switch (key.sym) {
    case SDLK_SPACE:
        StartPlaying(p, !p->playing);
        break;
    case SDLK_l:
        MarkLoop(p);
        break;
    case SDLK_s:
        SaveScreenshot(p);
        break;
    case SDLK_PLUS:
    case SDLK_EQUALS:
    case SDLK_KP_PLUS:
        ChangeSpeed(p, 1);
        break;
    case SDLK_MINUS:
    case SDLK_KP_MINUS:
        ChangeSpeed(p, -1);
        break;
    case SDLK_i:
        p->figures = !p->figures;
        break;
    case SDLK_h:
        p->help = !p->help;
        break;
    case SDLK_z:
        p->stretched = !p->stretched;
        break;
    case SDLK_f:
        ToggleFullScreen(p);
        break;
    case SDLK_RETURN:
        if ((key.mod & KMOD_ALT) != 0) {
            ToggleFullScreen(p);
        }
        break;
    case SDLK_ESCAPE:
        p->ended = true;
        break;
    default:
        break;
    }
}

// --- the bar and the mouse -----------------------------------------------------------------------

// The line of frames in the bar.
struct Bar {
    SDL_Rect box;
    int left, right, line; // ends of the line, its height
};

Brush BrushOf(const Player& p) {
    return {p.renderer, std::max(1, std::min(p.width / 640, p.height / 480))};
}

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

int PlaceOf(const Player& p, const Bar& bar, std::int32_t frame) {
    const std::int64_t width = bar.right - bar.left;
    return bar.left + static_cast<int>(width * frame / std::max(EndOf(p), 1));
}

// A point of the window in its pixels: they are finer than the mouse's where the screen is dense.
SDL_Point PixelOf(const Player& p, int x, int y) {
    int width = 1, height = 1;
    SDL_GetWindowSize(p.window, &width, &height);
    return {x * p.width / std::max(width, 1), y * p.height / std::max(height, 1)};
}

void DragTo(Player* p, int x) {
    const Bar bar = BarOf(*p);
    const std::int64_t along = std::clamp(x, bar.left, bar.right) - bar.left;
    GoTo(p, along * EndOf(*p) / std::max(bar.right - bar.left, 1));
}

void OnClick(Player* p, SDL_Point at) {
    if (BarShows(*p) && at.y >= BarOf(*p).box.y) {
        p->dragging = true;
        DragTo(p, at.x);
        return;
    }
    if (p->shown < 0 || p->place.w <= 0 || !SDL_PointInRect(&at, &p->place)) {
        return;
    }
    p->object = ombrel::FindObject((at.x - p->place.x) * p->picture.width / p->place.w,
                                   (at.y - p->place.y) * p->picture.height / p->place.h);
    p->objectFrame = p->shown;
}

void OnEvent(Player* p, const SDL_Event& event) {
    switch (event.type) {
    case SDL_QUIT:
        p->ended = true;
        break;
    case SDL_KEYDOWN:
        OnKey(p, event.key.keysym);
        break;
    case SDL_MOUSEMOTION:
        p->mouseMoved = Clock::now();
        if (p->dragging) {
            DragTo(p, PixelOf(*p, event.motion.x, event.motion.y).x);
        }
        break;
    case SDL_MOUSEBUTTONDOWN:
        if (event.button.button == SDL_BUTTON_LEFT) {
            OnClick(p, PixelOf(*p, event.button.x, event.button.y));
            p->mouseMoved = Clock::now();
        }
        break;
    case SDL_MOUSEBUTTONUP:
        p->dragging = false;
        break;
    default:
        break;
    }
}

// --- drawing -------------------------------------------------------------------------------------

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
    std::snprintf(text, sizeof text, "%s / %s  frame %d  x%g%s", TimeText(here).c_str(),
                  TimeText(EndOf(p)).c_str(), here, kSpeeds[p.speed], p.playing ? "" : "  paused");
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
          "S            saves the picture", "I            figures of the frame",
          "Z            fills the window", "F Alt+Enter  full screen",
          "Click        names an object, on the bar: goes there", "H            these keys",
          "Esc          ends", ""}) {
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
    return {format("frame      %10.0f", p.shown),
            format("to draw    %10.2f ms", p.frameMs),
            format("rate       %10.1f a second", p.playing ? p.rate : 0.0),
            format("faces      %10.0f", p.counted.faces),
            format("triangles  %10.0f drawn", p.counted.triangles),
            format("pixels     %10.0f", static_cast<double>(p.counted.pixels)),
            format("overdraw   %10.2f", static_cast<double>(p.counted.overdraw))};
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
    if (Clock::now() < p.noteUntil) {
        said.push_back({p.note, kInk});
    }
    if (!said.empty()) {
        const int above = BarOf(p).box.y - 34 * brush.scale;
        DrawPanel(brush, corner, above, p.width, said);
    }
}

void Present(Player* p) {
    const ombrel::ScopedFloatMode usual(ombrel::FloatMode::Nearest);
    SDL_GetRendererOutputSize(p->renderer, &p->width, &p->height);
    p->place = PlaceOfPicture(*p);
    SDL_SetRenderDrawColor(p->renderer, 0, 0, 0, 255);
    SDL_RenderClear(p->renderer);
    SDL_SetTextureScaleMode(p->texture, p->stretched ? SDL_ScaleModeLinear : SDL_ScaleModeNearest);
    if (p->shown >= 0) {
        SDL_RenderCopy(p->renderer, p->texture, nullptr, &p->place);
    }
    DrawOver(*p);
    SDL_RenderPresent(p->renderer);
    SDL_ShowCursor(BarShows(*p) ? SDL_ENABLE : SDL_DISABLE);
}

// --- the loop ------------------------------------------------------------------------------------

// Where nobody asks for it, a driver that shows nothing is no display.
bool DisplayIsThere() {
    const char* const driver = SDL_GetCurrentVideoDriver();
    const std::string name = driver != nullptr ? driver : "";
    return SDL_getenv("SDL_VIDEODRIVER") != nullptr ||
           (!name.empty() && name != "offscreen" && name != "dummy" && name != "evdev");
}

bool OpenWindow(Player* p) {
    if (SDL_Init(SDL_INIT_VIDEO) != 0 || !DisplayIsThere()) {
        return false;
    }
    const Uint32 full = p->setup.fullScreen ? SDL_WINDOW_FULLSCREEN_DESKTOP : 0;
    const int width = p->picture.width, height = p->picture.height;
    p->window =
        SDL_CreateWindow("Ombrel player", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, width,
                         height, SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI | full);
    if (p->window == nullptr) {
        return false;
    }
    SDL_SetWindowMinimumSize(p->window, width / 2, height / 2);
    p->renderer = SDL_CreateRenderer(p->window, -1, 0);
    if (p->renderer == nullptr) {
        return false;
    }
    SDL_SetRenderDrawBlendMode(p->renderer, SDL_BLENDMODE_BLEND);
    p->texture = SDL_CreateTexture(p->renderer, SDL_PIXELFORMAT_RGB24, SDL_TEXTUREACCESS_STREAMING,
                                   width, height);
    return p->texture != nullptr;
}

// Waits so long for it.
bool NextEvent(SDL_Event* event, int ms) {
    const ombrel::ScopedFloatMode usual(ombrel::FloatMode::Nearest);
    return (ms > 0 ? SDL_WaitEventTimeout(event, ms) : SDL_PollEvent(event)) != 0;
}

// Sleeps until something happens or the next frame is due.
void TakeEvents(Player* p) {
    int ms = 0;
    if (p->target < 0) {
        // While it pauses only the bar goes away by itself.
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(p->due - Clock::now());
        ms = p->playing ? static_cast<int>(std::max<std::int64_t>(left.count(), 0)) : 250;
    }
    SDL_Event event;
    while (!p->ended && NextEvent(&event, ms)) {
        OnEvent(p, event);
        ms = 0;
    }
}

void RunLoop(Player* p) {
    while (!p->ended) {
        TakeEvents(p);
        if (p->target >= 0) {
            Wind(p);
        } else if (p->playing && Clock::now() >= p->due) {
            PlayOn(p);
        }
        CountShown(p);
        Present(p);
    }
}

} // namespace

int RunWindow(const WindowSetup& setup) {
    Player p{};
    p.setup = setup;
    p.shown = p.markA = p.markB = p.objectFrame = p.countedFrame = -1;
    p.speed = kUsualSpeed;
    p.look = setup.look;
    p.picture.width = 640;
    p.picture.height = 480;
    int result = 0;
    bool opened = false;
    {
        const ombrel::ScopedFloatMode usual(ombrel::FloatMode::Nearest);
        opened = OpenWindow(&p);
    }
    if (opened) {
        p.target = setup.first;
        StartPlaying(&p, true);
        RunLoop(&p);
    } else {
        std::fputs("larkfen-player: there is no display to play on; --timedemo needs none\n",
                   stderr);
        result = 1;
    }
    SDL_DestroyTexture(p.texture);
    SDL_DestroyRenderer(p.renderer);
    SDL_DestroyWindow(p.window);
    SDL_Quit();
    return result;
}

} // namespace player
