// A frame without a surface, and shows that begin with a picture of their own.
#include "player/unseen.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/pixel16.h"
#include "demo/world.h"
#include "platform/display.h"
#include "player/black_starts.h"
#include "scene/front_end.h"

namespace ombrel {

namespace {

constexpr std::uint32_t kBlack = 0, kWhite = 0xFFFF;

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

bool PlayOne(Snapshot* show, const HiddenShows& shows, std::int32_t frames) {
    if (!RestoreSnapshot(*show)) {
        return false;
    }
    const std::int32_t every = shows.played < shows.seek->dense ? kSparse : 1;
    for (std::int32_t i = 0; i < frames; ++i) {
        if (i % every == 0) {
            shows.renderFrame();
        } else {
            PlayUnseen(shows.renderFrame);
        }
    }
    *show = TakeSnapshot();
    return show->bytes != nullptr;
}

} // namespace

UnseenSeek StartOfSeek(std::int32_t wanted, bool oneShow) {
    UnseenSeek seek = {};
    seek.wanted = wanted;
    seek.tried = -1;
    seek.oneShow = oneShow;
    // (The picture must be the true one of the frame before.)
    const BlackStart& row = BlackStartOf(wanted - 2);
    const std::int32_t reach = row.start > 0 ? wanted - row.start : 0;
    const std::int32_t reachesOfOne[kReachCount] = {kNearestReach, reach};
    seek.dense = seek.oneShow ? row.dense : 0;
    const std::int32_t* const reaches = seek.oneShow ? reachesOfOne : kReachesOfTwo;
    std::copy(reaches, reaches + kReachCount, seek.reaches);
    return seek;
}

std::int32_t FirstStart(const UnseenSeek& seek) {
    const std::int32_t* const end = seek.reaches + kReachCount;
    return std::max(seek.wanted - *std::max_element(seek.reaches, end), 0);
}

void KeepStart(UnseenSeek* seek, std::int32_t played) {
    const std::int32_t left = seek->wanted - played;
    for (std::int32_t i = 0; i < kReachCount; ++i) {
        if (left == seek->reaches[i]) {
            seek->starts[i] = {played, TakeSnapshot()};
        }
    }
    const bool near = played > FirstStart(*seek) && left > kNearestReach;
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
    const FrontEndKernels* const kernels = std::exchange(activeFrontEnd, &kBlindFrontEnd);
    renderFrame();
    display.backSurface = surface;
    activeFrontEnd = kernels;
}

bool PlayHidden(const HiddenShows& shows, std::int32_t frames, bool* failed) {
    UnseenSeek* const seek = shows.seek;
    if (seek->dark.bytes == nullptr) {
        *failed = !RestoreSnapshot(seek->starts[seek->tried].snapshot);
        seek->bright = seek->oneShow ? Snapshot{} : TakeWith(kWhite);
        seek->dark = TakeWith(kBlack);
    }
    *failed = *failed || (!seek->oneShow && !PlayOne(&seek->bright, shows, frames)) ||
              !PlayOne(&seek->dark, shows, frames);
    return !*failed && !seek->oneShow && SamePicture(seek->dark, seek->bright);
}

} // namespace ombrel
