// Messages of the SDL2 back end: the close button, Alt-F4 and a request to end become the destroy
// message, Alt-Enter changes between full screen and window; everything else is taken off the queue
// and forgotten, so that nothing waits behind a moving mouse.
#include "platform/sdl2/sdl2_state.h"
#include "platform/system.h"

namespace ombrel {

namespace {

void OnKeyDown(const SDL_KeyboardEvent& key) {
    const bool alt = (key.keysym.mod & KMOD_ALT) != 0;
    if (alt && key.keysym.sym == SDLK_F4) {
        PostWindowDestroy();
    }
    if (alt && key.keysym.sym == SDLK_RETURN && key.repeat == 0) {
        ToggleFullScreen();
    }
    if (key.keysym.sym == SDLK_ESCAPE) {
        sdl2.escapePressed = 1;
    }
}

// Takes everything that waits and keeps what matters.
void TakeEvents() {
    SDL_Event event;
    while (sdl.PollEvent(&event) != 0) {
        switch (event.type) {
        case SDL_QUIT: // also sent when the last window is asked to close
            PostWindowDestroy();
            break;
        case SDL_KEYDOWN:
            OnKeyDown(event.key);
            break;
        default:
            break;
        }
    }
    if (EndRequested()) {
        PostWindowDestroy();
    }
}

} // namespace

Pump PumpMessage(std::int32_t* quitParameter) {
    TakeEvents();
    // The quit message is taken on the turn after it was posted, whatever else waits.
    if (sdl2.quitWaiting != 0) {
        sdl2.quitWaiting = 0;
        *quitParameter = sdl2.quitParameter;
        return Pump::Quit;
    }
    if (sdl2.destroysWaiting > 0) {
        --sdl2.destroysWaiting;
        PostQuit(0);
        return Pump::Dispatched;
    }
    return Pump::None;
}

void PostQuit(std::int32_t quitParameter) {
    sdl2.quitWaiting = 1;
    sdl2.quitParameter = quitParameter;
}

void PostWindowDestroy() {
    ++sdl2.destroysWaiting;
}

bool EscapeKeyDown() {
    // A press shorter than a frame counts too, whether an event reports it or the window system's
    // own record; a key that is held is asked for.
    TakeEvents();
    const bool pressed = sdl2.escapePressed != 0;
    sdl2.escapePressed = 0;
    return EscapePressedAnywhere() || pressed ||
           sdl.GetKeyboardState(nullptr)[SDL_SCANCODE_ESCAPE] != 0 || EscapeDownAnywhere();
}

} // namespace ombrel
