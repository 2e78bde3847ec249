// The screen: a window, and a 5-6-5 texture that is copied into it by whole factors, centred, with
// black around. Full screen is the desktop's own mode; no mode is ever switched.
#include "platform/sdl2/sdl2_state.h"
#include "platform/soft/fit_picture.h"
#include "platform/soft/soft.h"

namespace ombrel {

SDL_Renderer* MakeRenderer(SDL_Window* window) {
    sdl.SetHint(SDL_HINT_RENDER_SCALE_QUALITY, "nearest");
    sdl.SetHint(SDL_HINT_RENDER_VSYNC, "0");
    SDL_Renderer* const renderer = sdl.CreateRenderer(window, -1, 0);
    return renderer != nullptr ? renderer : sdl.CreateRenderer(window, -1, SDL_RENDERER_SOFTWARE);
}

int OpenScreen(const ScreenRequest& request) {
    if (sdl2.window != nullptr && sdl2.renderer == nullptr) {
        sdl2.renderer = MakeRenderer(sdl2.window);
    }
    if (sdl2.renderer == nullptr) {
        return 0;
    }
    sdl2.texture = sdl.CreateTexture(sdl2.renderer, SDL_PIXELFORMAT_RGB565,
                                     SDL_TEXTUREACCESS_STREAMING, request.width, request.height);
    if (sdl2.texture == nullptr) {
        return 0;
    }
    sdl.SetTextureBlendMode(sdl2.texture, SDL_BLENDMODE_NONE);
    sdl.SetRenderDrawColor(sdl2.renderer, 0, 0, 0, 255);
    sdl.RenderClear(sdl2.renderer);
    sdl.RenderPresent(sdl2.renderer);
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
    if (sdl.UpdateTexture(sdl2.texture, nullptr, first, picture.pitch) != 0) {
        return 0;
    }
    // The output is asked for every time: the window may have moved to a screen of another kind.
    int outputWidth = 0;
    int outputHeight = 0;
    if (sdl.GetRendererOutputSize(sdl2.renderer, &outputWidth, &outputHeight) != 0 ||
        outputWidth <= 0 || outputHeight <= 0) {
        return 0;
    }
    const Rect fit = FitPicture(outputWidth, outputHeight, source.right - source.left,
                                source.bottom - source.top);
    const SDL_Rect target{fit.left, fit.top, fit.right - fit.left, fit.bottom - fit.top};
    sdl.RenderClear(sdl2.renderer);
    if (sdl.RenderCopy(sdl2.renderer, sdl2.texture, nullptr, &target) != 0) {
        return 0;
    }
    sdl.RenderPresent(sdl2.renderer);
    return 1;
}

void CloseScreen() {
    if (sdl2.texture != nullptr) {
        sdl.DestroyTexture(sdl2.texture);
        sdl2.texture = nullptr;
    }
    if (sdl2.renderer != nullptr) {
        sdl.DestroyRenderer(sdl2.renderer);
        sdl2.renderer = nullptr;
    }
}

} // namespace ombrel
