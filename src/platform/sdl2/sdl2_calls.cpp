// Opening SDL2.
#include "platform/sdl2/sdl2_calls.h"

#include <dlfcn.h>

#include "platform/sdl2/say.h"

namespace ombrel {

namespace {

constexpr char kLibrary[] = "libSDL2-2.0.so.0";

template <typename Call> bool Find(void* library, const char* name, Call* call) {
    *call = reinterpret_cast<Call>(dlsym(library, name));
    return *call != nullptr;
}

} // namespace

constinit SdlCalls sdl{};

bool OpenSdl() {
    void* const library = dlopen(kLibrary, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        Say("SDL2 is missing (on Debian: apt install libsdl2-2.0-0): %s", dlerror());
        return false;
    }
#define OMBREL_SDL_FIND(name)                                                                      \
    if (!Find(library, "SDL_" #name, &sdl.name)) {                                                 \
        Say("%s is too old: it has no SDL_" #name, kLibrary);                                      \
        return false;                                                                              \
    }
    OMBREL_SDL_CALLS(OMBREL_SDL_FIND)
#undef OMBREL_SDL_FIND
    return true;
}

} // namespace ombrel
