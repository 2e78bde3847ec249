// Stepping, seeking, and the snapshots between.
#include "player/show.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/hash.h"
#include "base/shell_state.h"
#include "demo/reset.h"
#include "demo/startup.h"
#include "platform/display.h"
#include "platform/system.h"
#include "player/unseen.h"

namespace ombrel {

namespace {

struct ShowState {
    bool open;
    int (*renderFrame)();
    std::int32_t played; // frames gone by since the start
    bool ended;
    bool unseen; // the picture is none of the production's: a seek is under way
    std::int32_t distance;
    std::size_t memory, held;        // bytes of snapshots: allowed, held
    PublishedPictures published;     // count 0: none, or not those of this data
    std::vector<Snapshot> snapshots; // number n: after n * distance frames; empty: not drawn yet
    Snapshot before;                 // before the shown frame
    UnseenSeek seek;
};
ShowState show = {}; // no constinit: not every library has vectors for that

// Keeps the state that the next frame starts from, where its number asks for it.
void KeepSnapshot() {
    const auto number = static_cast<std::size_t>(show.played / show.distance);
    if (show.played % show.distance != 0 ||
        (number < show.snapshots.size() && show.snapshots[number].bytes != nullptr)) {
        return;
    }
    Snapshot snapshot = TakeSnapshot();
    if (snapshot.bytes == nullptr || show.held + snapshot.size > show.memory) {
        return;
    }
    show.held += snapshot.size;
    show.snapshots.resize(std::max(show.snapshots.size(), number + 1));
    show.snapshots[number] = std::move(snapshot);
}

bool TakeQuit() {
    std::int32_t parameter = 0;
    Pump pump = Pump::None;
    do {
        pump = PumpMessage(&parameter);
    } while (pump == Pump::Dispatched);
    return pump == Pump::Quit;
}

// After how many frames the last snapshot was taken that is not after so many; -1: there is none.
std::int32_t LastHeld(std::int32_t played) {
    auto number =
        std::min(played / show.distance, static_cast<std::int32_t>(show.snapshots.size()) - 1);
    while (number >= 0 && show.snapshots[static_cast<std::size_t>(number)].bytes == nullptr) {
        --number;
    }
    return number * show.distance;
}

// Goes to the state that the snapshot was taken in.
bool Return(const Snapshot& snapshot, std::int32_t played) {
    if (!RestoreSnapshot(snapshot)) {
        return false;
    }
    show.played = played;
    show.ended = false;
    show.unseen = false;
    show.before = {};
    return true;
}

// The nearest state before so many frames, or after them, that is drawn.
void ReturnToDrawn(std::int32_t played) {
    const std::int32_t at = LastHeld(played);
    const bool hereIsNearer = !show.unseen && show.played <= played && show.played >= at;
    if (!hereIsNearer && at >= 0) {
        (void)Return(show.snapshots[static_cast<std::size_t>(at / show.distance)], at);
    }
}

// Whether the shown frame has the picture that was published.
bool IsPublished() {
    const std::int32_t frame = ShownFrame();
    return frame < show.published.count && ShownHash() == show.published.hashes[frame];
}

bool Step() {
    KeepSnapshot();
    show.before = TakeSnapshot();
    show.renderFrame();
    ++show.played;
    show.ended = TakeQuit();
    if (show.played == 1 && !IsPublished()) {
        show.published = {};
    }
    return true;
}

// --- far seeks -----------------------------------------------------------------------------------

// Who is asked between two frames whether the search shall go on.
struct Asking {
    KeepOn keepOn;
    void* user;
};
bool GoesOn(const Asking& asking) {
    return asking.keepOn == nullptr || asking.keepOn(ShownFrame(), asking.user);
}

enum class Found { Yes, No, NotYet };

// Winds on to the nearest start, and keeps the state of each.
Found WindUnseen(const Asking& asking) {
    UnseenSeek* const seek = &show.seek;
    const std::int32_t last = seek->wanted - kNearestReach;
    for (;;) {
        KeepStart(seek, show.played);
        if (show.played >= last) {
            return Found::Yes;
        }
        show.unseen = true;
        PlayUnseen(show.renderFrame);
        ++show.played;
        if (TakeQuit()) {
            return Found::No;
        }
        if (!GoesOn(asking)) {
            return Found::NotYet;
        }
    }
}

// Draws on from a start until the picture is the true one, one frame before the wanted one at the
// latest.
Found Settle(const Asking& asking) {
    UnseenSeek* const seek = &show.seek;
    if (seek->dark.bytes == nullptr) {
        show.played = seek->starts[seek->tried].played;
    }
    while (show.played < seek->wanted - 1) {
        const std::int32_t left = seek->wanted - 1 - show.played;
        const std::int32_t frames = std::min(left, left > kHiddenAtOnce ? kHiddenAtOnce : 1);
        bool failed = false;
        const bool same = PlayHidden({seek, show.renderFrame, show.played}, frames, &failed);
        show.played += frames;
        failed = failed || TakeQuit();
        if (!failed && (same || (seek->oneShow && IsPublished()))) {
            show.unseen = false;
            seek->settled = true;
            return Found::Yes;
        }
        if (failed) {
            break;
        }
        if (!GoesOn(asking)) {
            return Found::NotYet;
        }
    }
    return Found::No;
}

// The seek that has this frame as its aim: the one under way, or a new one from here or from the
// nearest snapshot.
void BeginSeek(std::int32_t wanted) {
    if (show.seek.wanted == wanted) {
        return;
    }
    show.seek = StartOfSeek(wanted, show.published.count > 0);
    const std::int32_t first = FirstStart(show.seek);
    const std::int32_t at = LastHeld(first);
    if (show.played > first || show.played < at) {
        (void)Return(show.snapshots[static_cast<std::size_t>(at / show.distance)], at);
    }
}

// No: it has to be played from the nearest drawn frame.
Found FindUnseen(std::int32_t wanted, const Asking& asking) {
    BeginSeek(wanted);
    UnseenSeek* const seek = &show.seek;
    if (seek->settled) {
        return Found::Yes;
    }
    if (seek->tried < 0) {
        const Found wound = WindUnseen(asking);
        if (wound != Found::Yes) {
            return wound;
        }
        SortStarts(seek);
    }
    while (seek->tried <= kReachCount && seek->starts[seek->tried].snapshot.bytes != nullptr) {
        const Found settled = Settle(asking);
        if (settled != Found::No) {
            return settled;
        }
        seek->dark = {};
        seek->bright = {};
        ++seek->tried;
    }
    if (seek->oneShow) { // the hashes are not those of this frame: look for it without them
        show.published = {};
        show.seek = {};
        return FindUnseen(wanted, asking);
    }
    return Found::No;
}

// Whether a frame is so far from any that is drawn that the unseen way is the shorter one.
bool IsFar(std::int32_t wanted) {
    constexpr std::int32_t kNear = 64;
    const std::int32_t held = LastHeld(wanted);
    const std::int32_t here = !show.unseen && show.played <= wanted ? show.played : 0;
    return held >= 0 && wanted - std::max(held, here) > kNear;
}

} // namespace

bool OpenShow(const ShowSetup& setup) {
    CloseShow();
    shell.screenWidth = setup.width;
    shell.screenHeight = setup.height;
    shell.windowed = 1;
    shell.noSound = true;
    if (RegisterWindowClass() == 0 || CreateMainWindow() == 0) {
        return false;
    }
    StartUp();
    driver.frameCapSwitch = 0;
    show.open = true;
    show.renderFrame = setup.renderFrame;
    show.distance = setup.distance > 0 ? setup.distance : kSnapshotDistance;
    show.memory = setup.memory > 0 ? setup.memory : kSnapshotMemory;
    show.published = setup.published;
    return display.backSurface != nullptr;
}

void CloseShow() {
    if (!show.open) {
        return;
    }
    ShutDown();
    show = ShowState{};
    ResetWorld();
}

bool StepShow() {
    if (!show.open || show.ended) {
        return false;
    }
    if (show.unseen) { // a seek was broken off: go to where it is
        (void)SeekShow(ShownFrame(), nullptr, nullptr);
    }
    return Step();
}

std::int32_t ShownFrame() {
    return show.played - 1;
}

bool ShowEnded() {
    return show.ended;
}

std::uint64_t ShownHash() {
    LockFrame();
    const FrameBuffer back = display.back;
    const std::uint64_t hash = back.pixels == nullptr ? 0
                                                      : HashPicture(back.pixels, back.pitch,
                                                                    display.width, display.height);
    (void)UnlockFrame();
    return hash;
}

std::int32_t SeekShow(std::int32_t frame, KeepOn keepOn, void* user) {
    const std::int32_t played = std::max(frame, 0) + 1;
    const Asking asking = {keepOn, user};
    if (!show.open || (show.ended && show.played < played)) {
        return ShownFrame();
    }
    if (show.played == 0) { // the first snapshot
        (void)Step();
    }
    const bool far = show.seek.wanted == played || IsFar(played - 1);
    if (far && FindUnseen(played, asking) == Found::NotYet) {
        return ShownFrame();
    }
    // What is left is played. (Where the search has failed it is everything; while this is broken
    // off and taken up again the search stays as it is.)
    ReturnToDrawn(played - 1);
    while (show.played < played && !show.ended && Step()) {
        if (show.played < played && !GoesOn(asking)) {
            return ShownFrame();
        }
    }
    show.seek = {};
    return ShownFrame();
}

bool ShowIsSeen() {
    return show.played > 0 && !show.unseen;
}

std::size_t SnapshotBytes() {
    return show.held;
}

bool RedrawShown(const Redraw& redraw) {
    if (show.played == 0 || show.unseen || show.before.bytes == nullptr) {
        return false;
    }
    const Snapshot after = TakeSnapshot();
    if (after.bytes == nullptr || !RestoreSnapshot(show.before)) {
        return false;
    }
    redraw.before(redraw.user);
    show.renderFrame();
    redraw.after(redraw.user);
    return RestoreSnapshot(after) && !TakeQuit();
}

} // namespace ombrel
