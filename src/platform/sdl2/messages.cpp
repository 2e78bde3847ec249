// Messages of the SDL2 back end: the close button, Alt-F4 and a request to end become the destroy
// message; everything else is taken off the queue and forgotten, so that nothing waits behind a
// moving mouse.
#include "platform/sdl2/sdl2_state.h"
#include "platform/system.h"

namespace ombrel {

namespace {

// Takes everything that waits and keeps what matters.
void TakeEvents() {
    SDL_Event event;
    while (SDL_PollEvent(&event) != 0) {
        switch (event.type) {
        case SDL_QUIT: // also sent when the last window is asked to close
            PostWindowDestroy();
            break;
        case SDL_KEYDOWN:
            if (event.key.keysym.sym == SDLK_F4 && (event.key.keysym.mod & KMOD_ALT) != 0) {
                PostWindowDestroy();
            }
            if (event.key.keysym.sym == SDLK_ESCAPE) {
                sdl2.escapePressed = 1;
            }
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
    // A press shorter than a frame counts too; a key held without the focus is asked for.
    const bool pressed = sdl2.escapePressed != 0;
    sdl2.escapePressed = 0;
    SDL_PumpEvents();
    return pressed || SDL_GetKeyboardState(nullptr)[SDL_SCANCODE_ESCAPE] != 0 ||
           EscapeDownAnywhere();
}

} // namespace ombrel
