// Stepping, seeking, and the snapshots between.
#include "player/show.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/shell_state.h"
#include "demo/reset.h"
#include "demo/startup.h"
#include "platform/display.h"
#include "platform/system.h"

namespace ombrel {

namespace {

struct ShowState {
    bool open;
    int (*renderFrame)();
    std::int32_t played; // frames drawn since the start
    bool ended;
    std::int32_t distance;
    std::size_t memory, held;        // bytes of snapshots: allowed, held
    std::vector<Snapshot> snapshots; // number n was taken after n * distance frames
    Snapshot before;                 // before the shown frame
};
ShowState show = {}; // no constinit: not every library has vectors for that

// Keeps the state that the next frame starts from, where its number asks for it.
void KeepSnapshot() {
    const auto number = static_cast<std::size_t>(show.played / show.distance);
    if (show.played % show.distance != 0 || number != show.snapshots.size()) {
        return;
    }
    Snapshot snapshot = TakeSnapshot();
    if (snapshot.bytes == nullptr || show.held + snapshot.size > show.memory) {
        return;
    }
    show.held += snapshot.size;
    show.snapshots.push_back(std::move(snapshot));
}

bool TakeQuit() {
    std::int32_t parameter = 0;
    Pump pump = Pump::None;
    do {
        pump = PumpMessage(&parameter);
    } while (pump == Pump::Dispatched);
    return pump == Pump::Quit;
}

// The state after so many frames, or the nearest one held before it.
void RestoreNearest(std::int32_t played) {
    if (show.snapshots.empty()) {
        return;
    }
    const std::size_t number =
        std::min(static_cast<std::size_t>(played / show.distance), show.snapshots.size() - 1);
    const auto at = static_cast<std::int32_t>(number) * show.distance;
    // Go on from here where that is nearer.
    if (show.played <= played && show.played >= at) {
        return;
    }
    if (RestoreSnapshot(show.snapshots[number])) {
        show.played = at;
        show.ended = false;
        show.before = {};
    }
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
    KeepSnapshot();
    show.before = TakeSnapshot();
    show.renderFrame();
    ++show.played;
    show.ended = TakeQuit();
    return true;
}

std::int32_t ShownFrame() {
    return show.played - 1;
}

bool ShowEnded() {
    return show.ended;
}

std::int32_t SeekShow(std::int32_t frame, KeepOn keepOn, void* user) {
    const std::int32_t played = std::max(frame, 0) + 1;
    RestoreNearest(played - 1);
    while (show.played < played && StepShow()) {
        if (keepOn != nullptr && !keepOn(ShownFrame(), user)) {
            break;
        }
    }
    return ShownFrame();
}

std::size_t SnapshotBytes() {
    return show.held;
}

bool RedrawShown(const Redraw& redraw) {
    if (show.played == 0 || show.before.bytes == nullptr) {
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
