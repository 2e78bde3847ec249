// Opening the window, and its loop.
#include "window.h"

#include <SDL.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "base/data_file.h"
#include "base/float_mode.h"
#include "larkfen-capture/production.h"
#include "platform/sdl2/quiet.h"
#include "platform/sdl2/say.h"
#include "player/show.h"
#include "state.h"
#include "timedemo.h"

namespace player {

namespace {

// Where nobody asks for it, a driver that shows nothing is no display.
bool DisplayIsThere() {
    const char* const driver = sdl.GetCurrentVideoDriver();
    const std::string name = driver != nullptr ? driver : "";
    return std::getenv("SDL_VIDEODRIVER") != nullptr ||
           (!name.empty() && name != "offscreen" && name != "dummy" && name != "evdev");
}

bool OpenWindow(Player* p) {
    {
        const ombrel::QuietErrors quiet;
        if (sdl.Init(SDL_INIT_VIDEO) != 0 || !DisplayIsThere()) {
            return false;
        }
    }
    const int width = p->picture.width, height = p->picture.height;
    p->window = sdl.CreateWindow("Ombrel player", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                                 width, height, SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI);
    if (p->window == nullptr) {
        return false;
    }
    sdl.SetWindowMinimumSize(p->window, width / 2, height / 2);
    p->renderer = sdl.CreateRenderer(p->window, -1, 0);
    if (p->renderer == nullptr) {
        return false;
    }
    sdl.SetRenderDrawBlendMode(p->renderer, SDL_BLENDMODE_BLEND);
    p->texture = sdl.CreateTexture(p->renderer, SDL_PIXELFORMAT_RGB24, SDL_TEXTUREACCESS_STREAMING,
                                   width, height);
    if (p->setup.fullScreen) {
        ToggleFullScreen(p);
    }
    return p->texture != nullptr;
}

void CloseWindow(Player* p) {
    const ombrel::ScopedFloatMode usual(ombrel::FloatMode::Nearest);
    sdl.DestroyTexture(p->texture);
    sdl.DestroyRenderer(p->renderer);
    sdl.DestroyWindow(p->window);
    sdl.Quit();
}

// Waits so long for it.
bool NextEvent(SDL_Event* event, int ms) {
    const ombrel::ScopedFloatMode usual(ombrel::FloatMode::Nearest);
    return (ms > 0 ? sdl.WaitEventTimeout(event, ms) : sdl.PollEvent(event)) != 0;
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

void StartMusic(Player* p) {
    OpenMusic(&p->music, ombrel::FindDataFile("./data/sfx/soundtrack.mp3"));
}

// Files have changed: plays on from the same frame, in the new world or, where that is broken, in
// the one before.
void Reload(Player* p) {
    const std::int32_t frame = Here(*p);
    const bool toEnd = p->setup.last == p->setup.whole - 1;
    CloseMusic(&p->music);
    ombrel::CloseShow();
    p->broken = TakeChanges(p->setup.watch);
    p->setup.whole = static_cast<std::int32_t>(capture::FramesOfProduction());
    p->setup.last = toEnd && p->setup.whole > 0 ? p->setup.whole - 1 : p->setup.last;
    p->countedFrame = p->objectFrame = -1;
    if (!OpenProduction()) {
        std::fputs("larkfen-player: the production could not be opened again\n", stderr);
        p->ended = true;
        return;
    }
    p->target = std::min(frame, EndOf(*p));
    StartMusic(p);
    if (p->broken.empty()) {
        Tell(p, "the changed files are there");
    }
}

void RunLoop(Player* p) {
    while (!p->ended) {
        TakeEvents(p);
        if (p->setup.watch != nullptr && HasChanged(p->setup.watch)) {
            Reload(p);
        }
        if (p->target >= 0) {
            Wind(p);
        } else if (p->playing && Clock::now() >= p->due) {
            PlayOn(p);
        }
        CountShown(p);
        FollowShow(&p->music, p->shown * kFrameSeconds,
                   p->playing && p->target < 0 && p->speed == kUsualSpeed && !p->muted);
        Present(p);
    }
}

} // namespace

int RunWindow(const WindowSetup& setup) {
    ombrel::SayAs("larkfen-player");
    if (!ombrel::OpenSdl()) {
        return 1;
    }
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
        StartMusic(&p);
        StartPlaying(&p, true);
        RunLoop(&p);
    } else {
        std::fputs("larkfen-player: there is no display to play on; --timedemo needs none\n",
                   stderr);
        result = 1;
    }
    CloseMusic(&p.music);
    CloseWindow(&p);
    return result;
}

} // namespace player
