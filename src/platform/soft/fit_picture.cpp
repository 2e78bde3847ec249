// Whole-number scaling, centred.
#include "platform/soft/fit_picture.h"

#include <algorithm>

namespace ombrel {

Rect FitPicture(std::int32_t outputWidth, std::int32_t outputHeight, std::int32_t width,
                std::int32_t height) {
    const std::int32_t factor = std::min(outputWidth / width, outputHeight / height);
    std::int32_t shownWidth = width * factor;
    std::int32_t shownHeight = height * factor;
    if (factor == 0) {
        // Shrink by the tighter side.
        const std::int64_t byWidth = std::int64_t{outputWidth} * height;
        const std::int64_t byHeight = std::int64_t{outputHeight} * width;
        shownWidth =
            byWidth <= byHeight ? outputWidth : static_cast<std::int32_t>(byHeight / height);
        shownHeight =
            byWidth <= byHeight ? static_cast<std::int32_t>(byWidth / width) : outputHeight;
        shownWidth = std::max(shownWidth, 1);
        shownHeight = std::max(shownHeight, 1);
    }
    const std::int32_t left = (outputWidth - shownWidth) / 2;
    const std::int32_t top = (outputHeight - shownHeight) / 2;
    return {left, top, left + shownWidth, top + shownHeight};
}

} // namespace ombrel
