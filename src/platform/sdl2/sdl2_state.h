// What the files of the SDL2 back end share: the window and what is drawn with, the messages that
// wait, and the way out of a crash.
#pragma once

#include <SDL.h>

#include <cstdint>

namespace ombrel {

struct Sdl2State {
    SDL_Window* window;
    SDL_Renderer* renderer;
    SDL_Texture* texture;         // 5-6-5, the size of the frame
    std::int32_t cursorCount;     // visible when 0 or more
    std::int32_t destroysWaiting; // posted, not yet dispatched
    std::int32_t quitWaiting, quitParameter;
    std::int32_t escapePressed; // a press was seen since the last poll
    std::int32_t saidNoDisplay; // the one line about it is out
};
extern Sdl2State sdl2;

// What draws into the window. Made while the window is hidden, because making it may make the
// window anew. False when there can be none.
bool MakeRenderer();

// From now on a crash puts screen saver and cursor back before the process ends, and a request to
// end (interrupt, terminate, hang up) ends the production in the orderly way; a second one at once.
void InstallRescue();
bool EndRequested();

// Whether Escape is down, whatever window has the focus; false where the system does not tell.
bool EscapeDownAnywhere();

// One line on standard error, once.
void SayNoDisplay();

} // namespace ombrel
