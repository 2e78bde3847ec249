// The screen: a window, and a 5-6-5 texture that is copied into it by whole factors, centred, with
// black around. Full screen is the desktop's own mode; no mode is ever switched.
#include "platform/sdl2/sdl2_state.h"
#include "platform/soft/fit_picture.h"
#include "platform/soft/soft.h"

namespace ombrel {

bool MakeRenderer() {
    SDL_SetHint(SDL_HINT_RENDER_SCALE_QUALITY, "nearest");
    SDL_SetHint(SDL_HINT_RENDER_VSYNC, "0");
    sdl2.renderer = SDL_CreateRenderer(sdl2.window, -1, 0);
    if (sdl2.renderer == nullptr) {
        sdl2.renderer = SDL_CreateRenderer(sdl2.window, -1, SDL_RENDERER_SOFTWARE);
    }
    return sdl2.renderer != nullptr;
}

int OpenScreen(const ScreenRequest& request) {
    if (sdl2.window == nullptr || (sdl2.renderer == nullptr && !MakeRenderer())) {
        return 0;
    }
    sdl2.texture = SDL_CreateTexture(sdl2.renderer, SDL_PIXELFORMAT_RGB565,
                                     SDL_TEXTUREACCESS_STREAMING, request.width, request.height);
    if (sdl2.texture == nullptr) {
        return 0;
    }
    SDL_SetTextureBlendMode(sdl2.texture, SDL_BLENDMODE_NONE);
    SDL_SetRenderDrawColor(sdl2.renderer, 0, 0, 0, 255);
    SDL_RenderClear(sdl2.renderer);
    SDL_RenderPresent(sdl2.renderer);
    return 1;
}

std::int32_t ScreenRgbBits() {
    return 16;
}

int AttachScreenToWindow() {
    return 1; // the window system clips
}

int ShowPicture(const FrameBuffer& picture, const Rect& source) {
    if (sdl2.texture == nullptr) {
        return 0;
    }
    const auto* first = reinterpret_cast<const unsigned char*>(picture.pixels) +
                        static_cast<std::ptrdiff_t>(source.top) * picture.pitch + source.left * 2;
    if (SDL_UpdateTexture(sdl2.texture, nullptr, first, picture.pitch) != 0) {
        return 0;
    }
    // The output is asked for every time: the window may have moved to a screen of another kind.
    int outputWidth = 0;
    int outputHeight = 0;
    if (SDL_GetRendererOutputSize(sdl2.renderer, &outputWidth, &outputHeight) != 0 ||
        outputWidth <= 0 || outputHeight <= 0) {
        return 0;
    }
    const Rect fit = FitPicture(outputWidth, outputHeight, source.right - source.left,
                                source.bottom - source.top);
    const SDL_Rect target{fit.left, fit.top, fit.right - fit.left, fit.bottom - fit.top};
    SDL_RenderClear(sdl2.renderer);
    if (SDL_RenderCopy(sdl2.renderer, sdl2.texture, nullptr, &target) != 0) {
        return 0;
    }
    SDL_RenderPresent(sdl2.renderer);
    return 1;
}

void CloseScreen() {
    if (sdl2.texture != nullptr) {
        SDL_DestroyTexture(sdl2.texture);
        sdl2.texture = nullptr;
    }
    if (sdl2.renderer != nullptr) {
        SDL_DestroyRenderer(sdl2.renderer);
        sdl2.renderer = nullptr;
    }
}

} // namespace ombrel
