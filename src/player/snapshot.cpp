// Walks the same list of memory for taking and restoring, so that the two cannot disagree.
#include "player/snapshot.h"

#include <cstring>
#include <new>

#include "base/random15.h"
#include "base/shell_state.h"
#include "demo/scene_frame.h"
#include "demo/scene_one.h"
#include "demo/scene_two.h"
#include "demo/world.h"
#include "platform/display.h"
#include "scene/camera.h"

namespace ombrel {

namespace {

// One pass over all state. bytes null: counts only.
struct Walk {
    std::uint8_t* bytes;
    std::size_t size;
    bool restores;
};

void Visit(Walk* walk, void* memory, std::size_t size) {
    if (walk->bytes != nullptr && size > 0) {
        std::uint8_t* const kept = walk->bytes + walk->size;
        std::memcpy(walk->restores ? memory : kept, walk->restores ? kept : memory, size);
    }
    walk->size += size;
}

void VisitPicture(Walk* walk) {
    LockFrame();
    const std::size_t rowBytes = static_cast<std::size_t>(display.width) * sizeof(Pixel16);
    for (std::int32_t y = 0; y < display.height && display.back.pixels != nullptr; ++y) {
        auto* const row = reinterpret_cast<std::uint8_t*>(display.back.pixels);
        Visit(walk, row + static_cast<std::ptrdiff_t>(y) * display.back.pitch, rowBytes);
    }
    (void)UnlockFrame();
}

void VisitAll(Walk* walk) {
    Visit(walk, &world, sizeof world);
    // Keys are read once, by the first frame of a scene, and stay.
    Visit(walk, &sceneOne, offsetof(SceneOneState, keys));
    Visit(walk, &sceneTwo, offsetof(SceneTwoState, keys));
    Visit(walk, &switches, sizeof switches);
    Visit(walk, &driver, sizeof driver);
    Visit(walk, &trackSegment, sizeof trackSegment);
    Visit(walk, &trackT, sizeof trackT);
    std::uint32_t random = Random15State();
    Visit(walk, &random, sizeof random);
    SeedRandom15(random);
    for (Mesh* const mesh : TurningObjects(&world)) {
        const std::size_t count = mesh != nullptr && mesh->vertices != nullptr
                                      ? static_cast<std::size_t>(mesh->slotCount)
                                      : 0;
        Visit(walk, count > 0 ? mesh->vertices : nullptr, count * sizeof(Vertex));
    }
    VisitPicture(walk);
}

std::size_t SnapshotSize() {
    Walk walk{nullptr, 0, false};
    VisitAll(&walk);
    return walk.size;
}

} // namespace

Snapshot TakeSnapshot() {
    Snapshot snapshot{nullptr, SnapshotSize()};
    snapshot.bytes.reset(new (std::nothrow) std::uint8_t[snapshot.size]);
    if (snapshot.bytes == nullptr) {
        return {};
    }
    Walk walk{snapshot.bytes.get(), 0, false};
    VisitAll(&walk);
    return snapshot;
}

bool RestoreSnapshot(const Snapshot& snapshot) {
    if (snapshot.bytes == nullptr || snapshot.size != SnapshotSize()) {
        return false;
    }
    Walk walk{snapshot.bytes.get(), 0, true};
    VisitAll(&walk);
    return true;
}

std::size_t PictureBytes() {
    Walk walk{nullptr, 0, false};
    VisitPicture(&walk);
    return walk.size;
}

} // namespace ombrel
