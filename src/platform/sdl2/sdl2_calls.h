// The calls of SDL2, opened when the program runs: a system without SDL2 then gets a sentence, and
// --help and --version are answered without it. Nothing here is linked. Callers: the SDL2 back end,
// and the window of the player.
#pragma once

#include <SDL.h>

namespace ombrel {

// Every call that the back end and the player make, by its name without the prefix.
// clang-format off
#define OMBREL_SDL_CALLS(CALL)                                                                   \
    CALL(Init) CALL(Quit) CALL(InitSubSystem) CALL(QuitSubSystem) CALL(VideoQuit)                \
    CALL(GetError) CALL(SetHint) CALL(GetCurrentVideoDriver)                                     \
    CALL(PollEvent) CALL(WaitEventTimeout) CALL(PumpEvents) CALL(FlushEvents)                    \
    CALL(GetKeyboardState)                                                                       \
    CALL(CreateWindow) CALL(DestroyWindow) CALL(ShowWindow)                    \
    CALL(GetWindowFlags) CALL(GetWindowSize) CALL(SetWindowSize)               \
    CALL(SetWindowPosition) CALL(GetWindowPosition) CALL(SetWindowMinimumSize)                   \
    CALL(SetWindowBordered) CALL(SetWindowFullscreen)                                            \
    CALL(SetWindowIcon) CALL(GetWindowBordersSize)                         \
    CALL(GetDesktopDisplayMode) CALL(GetDisplayUsableBounds)                                     \
    CALL(CreateRGBSurfaceWithFormatFrom) CALL(FreeSurface)                                       \
    CALL(CreateRenderer) CALL(DestroyRenderer) CALL(GetRendererOutputSize)                       \
    CALL(SetRenderDrawColor) CALL(RenderClear) CALL(RenderFillRect) CALL(RenderFillRects)        \
    CALL(RenderCopy) CALL(RenderPresent) CALL(SetRenderDrawBlendMode) CALL(SetTextureScaleMode)  \
    CALL(CreateTexture) CALL(DestroyTexture) CALL(UpdateTexture) CALL(SetTextureBlendMode)       \
    CALL(ShowCursor) CALL(WarpMouseGlobal) CALL(GetGlobalMouseState)                             \
    CALL(EnableScreenSaver) CALL(DisableScreenSaver)                                             \
    CALL(OpenAudioDevice) CALL(CloseAudioDevice) CALL(PauseAudioDevice)                          \
    CALL(LockAudioDevice) CALL(UnlockAudioDevice)                                                \
    CALL(NewAudioStream) CALL(FreeAudioStream) CALL(AudioStreamPut) CALL(AudioStreamGet)         \
    CALL(AudioStreamAvailable) CALL(AudioStreamFlush)
// clang-format on

struct SdlCalls {
// NOLINTNEXTLINE(bugprone-macro-parentheses): a member's name
#define OMBREL_SDL_POINTER(name) decltype(&SDL_##name) name;
    OMBREL_SDL_CALLS(OMBREL_SDL_POINTER)
#undef OMBREL_SDL_POINTER
};
extern SdlCalls sdl;

// Opens the library and fills the table, before any other call of the back end. False, with a line
// on standard error, when it is missing or too old.
bool OpenSdl();

} // namespace ombrel
