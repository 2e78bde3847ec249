// What the window of the player knows, and what its parts ask of each other: actions.cpp is what
// keys and mouse do, drawing.cpp what is shown, window.cpp the loop.
#pragma once

#include <SDL.h>

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "music.h"
#include "overlay.h"
#include "platform/sdl2/sdl2_calls.h"
#include "player/looks.h"
#include "timedemo.h"
#include "window.h"

namespace player {

using Clock = std::chrono::steady_clock;
using ombrel::sdl;

inline constexpr double kFrameSeconds = 0.025;
inline constexpr double kSpeeds[] = {0.25, 0.5, 1.0, 2.0, 4.0};
inline constexpr std::int32_t kUsualSpeed = 2;

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
    FrameMs frameMs; // of the last frame drawn
    double rate;     // frames a second, over the last half of a second
    std::int32_t rateFrames;
    Clock::time_point rateFrom;
    std::int32_t width, height; // of the window, pixels
    SDL_Rect place;             // of the picture in it
    bool covers;                // the whole screen, though nobody manages windows
    SDL_Rect before;            // the window, before it did
    bool muted;
    Music music;
    std::string broken; // a file that was changed and is no good; empty: none
};

inline double SecondsSince(Clock::time_point then) {
    return std::chrono::duration<double>(Clock::now() - then).count();
}
inline Clock::duration Seconds(double seconds) {
    return std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
}

// --- actions.cpp

void TakePicture(Player* p);
void CountShown(Player* p);
std::int32_t EndOf(const Player& p); // the last frame that there is
std::int32_t Here(const Player& p);  // the frame that is shown or wound to
void Tell(Player* p, const std::string& text);
void Wind(Player* p);   // a slice of time
void PlayOn(Player* p); // the next frame
void StartPlaying(Player* p, bool playing);
void ToggleFullScreen(Player* p);
void OnEvent(Player* p, const SDL_Event& event);

// --- drawing.cpp

// The line of frames in the bar.
struct Bar {
    SDL_Rect box;
    int left, right, line; // ends of the line, its height
};
Bar BarOf(const Player& p);
bool BarShows(const Player& p);
void Present(Player* p);

} // namespace player
