// A frame without a surface, and two shows side by side.
#include "player/unseen.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/pixel16.h"
#include "demo/world.h"
#include "platform/display.h"
#include "scene/front_end.h"

namespace ombrel {

namespace {

constexpr std::uint32_t kBlack = 0, kWhite = 0xFFFF;

// Every corner is out of sight on the left, so that no face shows.
void PlaceNowhere(const Vertex*, std::int32_t count, const Vec3&, const CameraView&,
                  PlacedVertex* to) {
    for (std::int32_t i = 0; i < count; ++i) {
        to[i].outside = OUTSIDE_LEFT;
    }
}
void LightNothing(LitPoints*, std::int32_t, const LightTable&, bool) {}

constexpr FrontEndKernels kBlindKernels = {PlaceNowhere, LightNothing};

// The state of the process, but with a picture of one colour.
Snapshot TakeWith(std::uint32_t color) {
    FillSurface(display.backSurface, color, nullptr);
    return TakeSnapshot();
}

bool SamePicture(const Snapshot& a, const Snapshot& b) {
    const std::size_t size = PictureBytes();
    return a.size == b.size && a.size >= size &&
           std::memcmp(a.bytes.get() + a.size - size, b.bytes.get() + b.size - size, size) == 0;
}

bool PlayOne(Snapshot* show, int (*renderFrame)(), std::int32_t frames) {
    if (!RestoreSnapshot(*show)) {
        return false;
    }
    for (std::int32_t i = 0; i < frames; ++i) {
        renderFrame();
    }
    *show = TakeSnapshot();
    return show->bytes != nullptr;
}

} // namespace

void KeepStart(UnseenSeek* seek, std::int32_t played) {
    const std::int32_t left = seek->wanted - played;
    for (std::int32_t i = 0; i < kReachCount; ++i) {
        if (left == kReaches[i]) {
            seek->starts[i] = {played, TakeSnapshot()};
        }
    }
    const bool near = left < kReaches[kReachCount - 1] && left > kReaches[0];
    if (near && left % kSharpEvery == 0 && switches.blur != 1) {
        seek->starts[kReachCount] = {played, TakeSnapshot()};
    }
}

void SortStarts(UnseenSeek* seek) {
    std::sort(seek->starts, seek->starts + kReachCount + 1,
              [](const UnseenStart& a, const UnseenStart& b) { return a.played > b.played; });
    seek->tried = 0;
}

void PlayUnseen(int (*renderFrame)()) {
    Surface* const surface = std::exchange(display.backSurface, nullptr);
    const FrontEndKernels* const kernels = std::exchange(activeFrontEnd, &kBlindKernels);
    renderFrame();
    display.backSurface = surface;
    activeFrontEnd = kernels;
}

bool PlayBoth(const BothShows& both, std::int32_t frames, bool* failed) {
    UnseenSeek* const seek = both.seek;
    if (seek->dark.bytes == nullptr) {
        *failed = !RestoreSnapshot(seek->starts[seek->tried].snapshot);
        seek->bright = TakeWith(kWhite);
        seek->dark = TakeWith(kBlack);
    }
    *failed = *failed || !PlayOne(&seek->bright, both.renderFrame, frames) ||
              !PlayOne(&seek->dark, both.renderFrame, frames);
    return !*failed && SamePicture(seek->dark, seek->bright);
}

} // namespace ombrel
