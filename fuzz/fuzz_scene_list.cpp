// Scene lists. The input is the list; the objects it can name stand in fuzz/data. What a short list
// has loaded is drawn, wherever it stands and however large it is: plainly and with the widest
// vectors that the processor has, with the same picture.
#include "assets/object_loader.h"
#include "base/data_file.h"
#include "base/float_mode.h"
#include "base/hash.h"
#include "base/shell_state.h"
#include "demo/scene_frame.h"
#include "demo/scene_list.h"
#include "demo/startup.h"
#include "platform/offscreen/offscreen.h"
#include "raster/paths.h"
#include "scene/front_end.h"

#include "limits.h"
#include "memory_file.h"

namespace {

using namespace ombrel;

constexpr std::int32_t kDrawn = 8; // objects, at most

// Every object, in sight or not; the hash of the picture.
std::uint64_t DrawAll() {
    FillSurface(display.backSurface, 0x1234, nullptr);
    CameraBuildView(&world.camera, 4);
    FrontEnd front;
    StartFaces(&front, &sceneFaces, FaceSettingsOf(&world, switches));
    for (std::int32_t i = kFirstSceneObject; i <= world.objectCounter; ++i) {
        ResetAndAddMesh(&front, &world.objects[i]);
    }
    FinishFaces(&front);
    LockFrame();
    DrawView(&sceneFaces, &world, View::Filled);
    const std::uint64_t hash =
        HashPicture(display.back.pixels, display.back.pitch, shell.screenWidth, shell.screenHeight);
    DrawView(&sceneFaces, &world, View::Wire);
    DrawView(&sceneFaces, &world, View::Dots);
    UnlockFrame();
    return hash;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    SetDataFolder(OMBREL_SOURCE_DIR "/fuzz/data");
    shell.screenWidth = 64;
    shell.screenHeight = 48;
    shell.windowed = 1;
    shell.noSound = 1;
    StartUp();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScopedFloatMode chop(FloatMode::Chop);
    const MemoryFile file(data, size);
    {
        const InputLimits limits;
        ResetMaterials();
        ResetObjectLoader();
        LoadSceneList(&world, file.Path().c_str(), kFormat565);
    }
    Require(world.objectCounter >= kFirstSceneObject && world.objectCounter < kMaxSceneObjects);
    if (world.objectCounter <= kFirstSceneObject + kDrawn) {
        ResetFrontEnd();
        ResetFillers();
        const std::uint64_t plain = DrawAll();
        const VectorPath path = PathFor(nullptr, nullptr);
        UseFrontEnd(path);
        UseFillers(path);
        Require(DrawAll() == plain);
    }
    for (; world.objectCounter > kFirstSceneObject; --world.objectCounter) {
        releaseObject(&world.objects[world.objectCounter]);
    }
    return 0;
}
