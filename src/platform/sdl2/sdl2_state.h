// What the files of the SDL2 back end share: the window and what is drawn with, the messages that
// wait, and the way out of a crash.
#pragma once

#include <cstdint>

#include "platform/sdl2/sdl2_calls.h"

namespace ombrel {

struct Sdl2State {
    SDL_Window* window;
    SDL_Renderer* renderer;
    SDL_Texture* texture;         // 5-6-5, the size of the frame
    std::int32_t videoOpen;       // the video of SDL runs, on a display
    std::int32_t sizedForDesktop; // the window has had its size and place as a window
    std::int32_t coversScreen;    // without being a full screen: nobody manages windows
    std::int32_t cursorCount;     // visible when 0 or more
    std::int32_t destroysWaiting; // posted, not yet dispatched
    std::int32_t quitWaiting, quitParameter;
    std::int32_t escapePressed; // a press was seen since the last poll
    std::int32_t saidNoDisplay; // the one line about it is out
};
extern Sdl2State sdl2;

// Starts the video of SDL, once. False, with a line on standard error, when there is no display.
bool OpenVideo();
void CloseVideo(); // allowed when nothing is open

// Flags that every window needs here: where the system has no windows, each covers the screen, in
// the mode that the screen has.
std::uint32_t WindowFlags();

// What draws into a window; null when there can be nothing. Made while the window is hidden,
// because making it may make the window anew.
SDL_Renderer* MakeRenderer(SDL_Window* window);

void SetWindowIcon(SDL_Window* window);
void ToggleFullScreen(); // of the main window

// From now on a crash puts screen saver and cursor back before the process ends, and a request to
// end (interrupt, terminate, hang up) ends the production in the orderly way; a second one at once.
// Twice is once.
void InstallRescue();
bool EndRequested();

// Escape, whatever window has the focus; nothing where the system does not tell. Both need the
// video open and look from their first call on.
bool EscapeDownAnywhere();
// Whether Escape was pressed since the call before, however short.
bool EscapePressedAnywhere();

// Whether somebody answers a window's wish to cover the screen; false under X alone.
bool WindowsAreManaged();

// One line on standard error, once.
void SayNoDisplay();

} // namespace ombrel
