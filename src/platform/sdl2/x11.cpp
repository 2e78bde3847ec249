// What is asked of X without SDL. The Escape key while another window has the focus: X
// gives the state of every key to whoever asks and, since version 2.1 of its input extension, every
// press as it comes from the keyboard, so that not even a short one is lost. Other window systems
// do not; there the window needs the focus. And whether there is a window manager.
#include <SDL_config.h>

#include "platform/sdl2/sdl2_state.h"

#if defined(SDL_VIDEO_DRIVER_X11)
#include <X11/Xlib.h>
#include <X11/extensions/XInput2.h>
#include <dlfcn.h>

#include <cstring>
#endif

namespace ombrel {

#if defined(SDL_VIDEO_DRIVER_X11)

namespace {

constexpr KeySym kEscapeSymbol = 0xFF1B;
constexpr int kRawMajor = 2, kRawMinor = 1;

// The window system's own libraries, which are loaded already when it is in use. The connection is
// ours alone: what SDL asks for on its own stays as it is.
struct XCalls {
    bool tried;
    Display* display; // null: not the window system in use
    KeyCode escape;
    int inputExtension; // its number; 0: presses are not told
    bool managed;       // a window manager is there
    decltype(&::XQueryKeymap) queryKeymap;
    decltype(&::XPending) pending;
    decltype(&::XNextEvent) nextEvent;
    decltype(&::XGetEventData) getEventData;
    decltype(&::XFreeEventData) freeEventData;
};
constinit XCalls x{};

template <typename Call> bool Find(void* library, const char* name, Call* call) {
    *call = library != nullptr ? reinterpret_cast<Call>(dlsym(library, name)) : nullptr;
    return *call != nullptr;
}

// Asks for the raw presses on every screen.
void AskForPresses(void* library) {
    decltype(&::XQueryExtension) queryExtension = nullptr;
    decltype(&::XIQueryVersion) queryVersion = nullptr;
    decltype(&::XISelectEvents) selectEvents = nullptr;
    decltype(&::XDefaultRootWindow) rootWindow = nullptr;
    void* const input = dlopen("libXi.so.6", RTLD_NOW | RTLD_LOCAL);
    if (!Find(library, "XQueryExtension", &queryExtension) ||
        !Find(library, "XDefaultRootWindow", &rootWindow) ||
        !Find(library, "XPending", &x.pending) || !Find(library, "XNextEvent", &x.nextEvent) ||
        !Find(library, "XGetEventData", &x.getEventData) ||
        !Find(library, "XFreeEventData", &x.freeEventData) ||
        !Find(input, "XIQueryVersion", &queryVersion) ||
        !Find(input, "XISelectEvents", &selectEvents)) {
        return;
    }
    int number = 0;
    int event = 0;
    int error = 0;
    int major = kRawMajor;
    int minor = kRawMinor;
    if (queryExtension(x.display, "XInputExtension", &number, &event, &error) == 0 ||
        queryVersion(x.display, &major, &minor) != Success ||
        (major == kRawMajor && minor < kRawMinor)) {
        return;
    }
    unsigned char bits[XIMaskLen(XI_LASTEVENT)] = {};
    XISetMask(bits, XI_RawKeyPress);
    XIEventMask mask{XIAllMasterDevices, sizeof bits, bits};
    if (selectEvents(x.display, rootWindow(x.display), &mask, 1) == Success) {
        x.inputExtension = number;
    }
}

// Window managers of today leave their mark at the root window.
bool FindManager(void* library) {
    decltype(&::XInternAtom) internAtom = nullptr;
    decltype(&::XDefaultRootWindow) rootWindow = nullptr;
    decltype(&::XGetWindowProperty) getProperty = nullptr;
    decltype(&::XFree) release = nullptr;
    if (!Find(library, "XInternAtom", &internAtom) ||
        !Find(library, "XDefaultRootWindow", &rootWindow) ||
        !Find(library, "XGetWindowProperty", &getProperty) || !Find(library, "XFree", &release)) {
        return true;
    }
    const Atom mark = internAtom(x.display, "_NET_SUPPORTING_WM_CHECK", False);
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long after = 0;
    unsigned char* value = nullptr;
    getProperty(x.display, rootWindow(x.display), mark, 0, 1, False, AnyPropertyType, &type,
                &format, &count, &after, &value);
    if (value != nullptr) {
        release(value);
    }
    return count > 0;
}

void ReachX() {
    x.tried = true;
    const char* const video = sdl.GetCurrentVideoDriver();
    if (video == nullptr || std::strcmp(video, "x11") != 0) {
        return;
    }
    decltype(&::XOpenDisplay) openDisplay = nullptr;
    decltype(&::XKeysymToKeycode) keycodeOf = nullptr;
    decltype(&::XSync) sync = nullptr;
    void* const library = dlopen("libX11.so.6", RTLD_NOW | RTLD_LOCAL);
    if (!Find(library, "XOpenDisplay", &openDisplay) ||
        !Find(library, "XKeysymToKeycode", &keycodeOf) || !Find(library, "XSync", &sync) ||
        !Find(library, "XQueryKeymap", &x.queryKeymap)) {
        return;
    }
    x.display = openDisplay(nullptr);
    if (x.display == nullptr) {
        return;
    }
    x.escape = keycodeOf(x.display, kEscapeSymbol);
    x.managed = FindManager(library);
    AskForPresses(library);
    sync(x.display, False); // from here on nothing is lost
}

bool Reached() {
    if (!x.tried) {
        ReachX();
    }
    return x.display != nullptr && x.escape != 0;
}

} // namespace

bool EscapeDownAnywhere() {
    if (!Reached()) {
        return false;
    }
    char keys[32] = {};
    x.queryKeymap(x.display, keys);
    return ((static_cast<unsigned char>(keys[x.escape / 8]) >> (x.escape % 8)) & 1) != 0;
}

bool EscapePressedAnywhere() {
    if (!Reached() || x.inputExtension == 0) {
        return false;
    }
    bool pressed = false;
    while (x.pending(x.display) > 0) {
        XEvent event;
        x.nextEvent(x.display, &event);
        if (event.type != GenericEvent || event.xcookie.extension != x.inputExtension ||
            x.getEventData(x.display, &event.xcookie) == False) {
            continue;
        }
        if (event.xcookie.evtype == XI_RawKeyPress) {
            const auto* raw = static_cast<const XIRawEvent*>(event.xcookie.data);
            pressed = pressed || raw->detail == x.escape;
        }
        x.freeEventData(x.display, &event.xcookie);
    }
    return pressed;
}

bool WindowsAreManaged() {
    return !Reached() || x.managed;
}

#else

bool WindowsAreManaged() {
    return true;
}

bool EscapeDownAnywhere() {
    return false;
}

bool EscapePressedAnywhere() {
    return false;
}

#endif

} // namespace ombrel
