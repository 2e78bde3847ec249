// What keys and mouse do, and playing and winding. The show is wound in slices, so that the window
// answers meanwhile.
#include <algorithm>
#include <cstdio>

#include "larkfen-capture/picture.h"
#include "platform/sdl2/sdl2_state.h"
#include "player/chapters.h"
#include "player/show.h"
#include "state.h"
#include "timedemo.h"

namespace player {

namespace {

constexpr std::int32_t kSkip = 200;   // frames: 5 seconds
constexpr double kSlice = 0.04;       // seconds of winding between two looks at the events
constexpr double kFiguresEvery = 0.5; // seconds, while it plays
constexpr std::int32_t kFastest = sizeof kSpeeds / sizeof kSpeeds[0] - 1;

} // namespace

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
    sdl.UpdateTexture(p->texture, nullptr, p->rgb.data(), picture.width * 3);
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
    if ((reached == p->target && ombrel::ShowIsSeen()) || ombrel::ShowEnded()) {
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

namespace {

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
    case SDLK_m:
        p->muted = !p->muted;
        Tell(p, p->muted ? "mute" : "sound");
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

// A point of the window in its pixels: they are finer than the mouse's where the screen is dense.
SDL_Point PixelOf(const Player& p, int x, int y) {
    int width = 1, height = 1;
    sdl.GetWindowSize(p.window, &width, &height);
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
    if (p->shown < 0 || p->place.w <= 0 || SDL_PointInRect(&at, &p->place) == SDL_FALSE) {
        return;
    }
    p->object = ombrel::FindObject((at.x - p->place.x) * p->picture.width / p->place.w,
                                   (at.y - p->place.y) * p->picture.height / p->place.h);
    p->objectFrame = p->shown;
}

} // namespace

// Where nobody manages windows, nobody answers the wish to cover the screen.
void ToggleFullScreen(Player* p) {
    if (ombrel::WindowsAreManaged()) {
        const bool full = (sdl.GetWindowFlags(p->window) & SDL_WINDOW_FULLSCREEN_DESKTOP) != 0;
        sdl.SetWindowFullscreen(p->window, full ? 0 : SDL_WINDOW_FULLSCREEN_DESKTOP);
        return;
    }
    SDL_Rect to = p->before;
    if (!p->covers) {
        SDL_Rect& now = p->before;
        sdl.GetWindowPosition(p->window, &now.x, &now.y);
        sdl.GetWindowSize(p->window, &now.w, &now.h);
        SDL_DisplayMode mode{};
        sdl.GetDesktopDisplayMode(0, &mode);
        to = {0, 0, mode.w, mode.h};
    }
    p->covers = !p->covers;
    sdl.SetWindowPosition(p->window, to.x, to.y);
    sdl.SetWindowSize(p->window, to.w, to.h);
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

} // namespace player
