// The Escape key while another window has the focus: X tells the state of every key to anybody who
// asks. Other window systems do not; there the window needs the focus.
#include <SDL_syswm.h>

#include "platform/sdl2/sdl2_state.h"

namespace ombrel {

#if defined(SDL_VIDEO_DRIVER_X11)

namespace {

constexpr unsigned long kEscapeSymbol = 0xFF1B;

using QueryKeymap = int (*)(Display*, char[32]);
using KeysymToKeycode = KeyCode (*)(Display*, unsigned long);

// The window system's own library, which is loaded already when it is in use.
struct XCalls {
    bool tried;
    Display* display; // null: not the window system in use
    QueryKeymap queryKeymap;
    KeyCode escape;
};
constinit XCalls x{};

void ReachX() {
    x.tried = true;
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (sdl2.window == nullptr || SDL_GetWindowWMInfo(sdl2.window, &info) != SDL_TRUE ||
        info.subsystem != SDL_SYSWM_X11) {
        return;
    }
    void* library = SDL_LoadObject("libX11.so.6");
    if (library == nullptr) {
        return;
    }
    x.queryKeymap = reinterpret_cast<QueryKeymap>(SDL_LoadFunction(library, "XQueryKeymap"));
    const auto keycodeOf =
        reinterpret_cast<KeysymToKeycode>(SDL_LoadFunction(library, "XKeysymToKeycode"));
    if (x.queryKeymap == nullptr || keycodeOf == nullptr) {
        return;
    }
    x.escape = keycodeOf(info.info.x11.display, kEscapeSymbol);
    x.display = x.escape != 0 ? info.info.x11.display : nullptr;
}

} // namespace

bool EscapeDownAnywhere() {
    if (!x.tried) {
        ReachX();
    }
    if (x.display == nullptr) {
        return false;
    }
    char keys[32] = {};
    x.queryKeymap(x.display, keys);
    return ((static_cast<unsigned char>(keys[x.escape / 8]) >> (x.escape % 8)) & 1) != 0;
}

#else

bool EscapeDownAnywhere() {
    return false;
}

#endif

} // namespace ombrel
