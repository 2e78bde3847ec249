// Rows of --compare: what happens to faces before they are filled, the passes over the picture, and
// whole frames.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>

#include "app/frame_driver.h"
#include "app/shell.h"
#include "base/data_file.h"
#include "base/float_mode.h"
#include "base/shell_state.h"
#include "compare.h"
#include "demo/blur.h"
#include "demo/reset.h"
#include "demo/scene_one.h"
#include "demo/scene_two.h"
#include "demo/startup.h"
#include "face_scene.h"
#include "platform/system.h"
#include "raster/paths.h"
#include "scene/front_end.h"
#include "scene/mesh_transform.h"

namespace ombrel {

namespace {

constexpr CompareGoals kBlur = {6.0, 10.0, 10.0};
constexpr CompareGoals kFrontEnd = {1.5, 2.2, 2.2};
constexpr CompareGoals kFrame = {1.5, 2.5, 3.0};

// --- the front end -------------------------------------------------------------------------------

constexpr int kMeshes = 10;
constexpr int kFacesOfAMesh = 2000;

struct FaceWorld {
    struct Part {
        std::vector<Vertex> vertices, transformed;
        std::vector<Face> faces;
        Mesh mesh;
    };
    Part parts[kMeshes];
    Camera camera;
    Light lights[kMaxLights];
    FaceList list;
};

Vertex CornerAt(float x, float y, float z) {
    Vertex v = {};
    v.x = x;
    v.y = y;
    v.z = z;
    v.w = 1.0F;
    v.vflags = VERTEX_LOADED | VERTEX_HAS_NORMAL;
    return v;
}

// A ring of 50 x 20 corners, each shared by six faces, as smooth objects have them.
void MakeRing(FaceWorld::Part* part) {
    constexpr int kAround = 50, kAcross = 20;
    for (int i = 0; i < kAround; ++i) {
        for (int j = 0; j < kAcross; ++j) {
            const double a = 2.0 * M_PI * i / kAround, b = 2.0 * M_PI * j / kAcross;
            const double nx = std::cos(a) * std::cos(b), ny = std::sin(b);
            const double nz = std::sin(a) * std::cos(b);
            Vertex v = CornerAt(static_cast<float>(100.0 * std::cos(a) + 40.0 * nx),
                                static_cast<float>(40.0 * ny),
                                static_cast<float>(100.0 * std::sin(a) + 40.0 * nz));
            v.nx = static_cast<float>(nx);
            v.ny = static_cast<float>(ny);
            v.nz = static_cast<float>(nz);
            part->vertices.push_back(v);
            const int i1 = (i + 1) % kAround, j1 = (j + 1) % kAcross;
            const int c[4] = {i * kAcross + j, i * kAcross + j1, i1 * kAcross + j1,
                              i1 * kAcross + j};
            for (int k = 1; k < 3; ++k) {
                Face face = {};
                face.v0 = c[0];
                face.v1 = c[k];
                face.v2 = c[k + 1];
                part->faces.push_back(face);
            }
        }
    }
}

// Small faces anywhere, no corner shared: the worst case.
void MakeCloud(FaceWorld::Part* part, std::uint64_t seed) {
    Numbers n{seed};
    for (int i = 0; i < kFacesOfAMesh; ++i) {
        const float x = n.Signed() * 160.0F, y = n.Signed() * 120.0F, z = n.Signed() * 160.0F;
        for (int c = 0; c < 3; ++c) {
            Vertex v =
                CornerAt(x + n.Signed() * 20.0F, y + n.Signed() * 20.0F, z + n.Signed() * 20.0F);
            v.nx = n.Signed();
            v.ny = n.Signed();
            v.nz = n.Signed();
            part->vertices.push_back(v);
        }
        Face face = {};
        face.v0 = 3 * i;
        face.v1 = face.v0 + 1;
        face.v2 = face.v0 + 2;
        part->faces.push_back(face);
    }
}

void FinishPart(FaceWorld::Part* part, int number) {
    for (std::size_t i = 0; i < part->faces.size(); ++i) {
        Face& face = part->faces[i];
        face.active = FACE_LIVE;
        face.flags = i % 4 == 0 ? FACE_MATTE : FACE_PLASTIC;
        face.color = 0xFFFF;
        face.size = 400.0F;
    }
    part->transformed = part->vertices;
    Mesh& mesh = part->mesh;
    mesh = {};
    mesh.state = MESH_LIVE | MESH_DRAWABLE;
    mesh.position = {static_cast<float>(number % 5 - 2) * 250.0F,
                     static_cast<float>(number / 5) * 300.0F - 150.0F,
                     500.0F + 40.0F * static_cast<float>(number), 1.0F};
    mesh.vertexCount = mesh.slotCount = static_cast<std::int32_t>(part->vertices.size());
    mesh.vertices = mesh.curVertices = part->vertices.data();
    mesh.transformed = mesh.curTransformed = part->transformed.data();
    mesh.faces = part->faces.data();
    mesh.faceCount = static_cast<std::int32_t>(part->faces.size());
}

// Ten meshes of 2,000 faces before the camera, under an ambient light, a sun and three lamps.
std::shared_ptr<FaceWorld> MakeFaceWorld(bool shared) {
    auto made = std::make_shared<FaceWorld>();
    for (int i = 0; i < kMeshes; ++i) {
        if (shared) {
            MakeRing(&made->parts[i]);
        } else {
            MakeCloud(&made->parts[i], static_cast<std::uint64_t>(i + 1));
        }
        FinishPart(&made->parts[i], i);
    }
    MakeFaceCamera(&made->camera);
    MakeFaceLights(made->lights);
    return made;
}

CompareRow FrontEndRow(const char* name, bool shared) {
    return {name, kFrontEnd, [made = MakeFaceWorld(shared)](VectorPath path) {
                const ScopedFloatMode chop(FloatMode::Chop);
                UseFrontEnd(path);
                const double start = ProcessorSeconds();
                FrontEnd front;
                StartFaces(&front, &made->list,
                           {&made->camera, made->lights, kFaceLights, true, true, -1, PackRgb565});
                for (FaceWorld::Part& part : made->parts) {
                    ResetAndAddMesh(&front, &part.mesh);
                }
                FinishFaces(&front);
                const double seconds = ProcessorSeconds() - start;
                ResetFrontEnd();
                return seconds;
            }};
}

// --- the picture ---------------------------------------------------------------------------------

CompareRow BlurRowOfTable() {
    constexpr std::int32_t kWidth = 640, kHeight = 480;
    auto picture = std::make_shared<std::vector<Pixel16>>(kWidth * kHeight);
    for (std::size_t i = 0; i < picture->size(); ++i) {
        (*picture)[i] = static_cast<Pixel16>(i * 40503U >> 3);
    }
    return {"blur, 640 x 480", kBlur, [picture](VectorPath path) {
                UseBlur(path);
                const double start = ProcessorSeconds();
                BlurFrame(picture->data(), kWidth, kWidth, kHeight);
                const double seconds = ProcessorSeconds() - start;
                ResetBlur();
                return seconds;
            }};
}

// --- whole frames --------------------------------------------------------------------------------

constexpr int kFramesOfARound = 8; // along the whole track

struct Flight {
    std::int32_t width, height, scene;
};

// What playing frames changes; restored before every round. Turning objects go on turning.
struct PlayState {
    SceneOneState one;
    SceneTwoState two;
    SceneSwitches set;
    DriverState clock;
};

void StartFlight(const Flight& flight, PlayState* state) {
    ResetWorld();
    SetDataFolder(DataFolderOf(ProgramFolder()));
    shell.windowed = 1;
    shell.noSound = true;
    shell.screenWidth = flight.width;
    shell.screenHeight = flight.height;
    StartUp();
    // The first frame sets the scene up; then its light shines in full.
    driver.frameCapSwitch = 0;
    driver.sceneIndex = flight.scene;
    RenderFrame();
    std::fill_n(sceneOne.ambientFade, 3, 128.0F);
    std::fill_n(sceneOne.lightFade, 3, 200.0F);
    *state = {sceneOne, sceneTwo, switches, driver};
}

double FlyOnce(const Flight& flight, const PlayState& state, VectorPath path) {
    sceneOne = state.one;
    sceneTwo = state.two;
    switches = state.set;
    driver = state.clock;
    SetRenderFloatMode();
    UseFillers(path);
    UseFrontEnd(path);
    UseBlur(path);
    const std::int32_t keys = flight.scene == 0 ? 32 : state.two.keyCount - 3;
    double seconds = 0.0;
    for (int i = 0; i < kFramesOfARound; ++i) {
        trackSegment = keys * i / kFramesOfARound;
        trackT = 0.5F;
        driver.sceneIndex = flight.scene;
        const double start = ProcessorSeconds();
        RenderFrame();
        seconds += ProcessorSeconds() - start;
    }
    SetFloatMode(FloatMode::Nearest);
    return seconds;
}

CompareRow FrameRow(const char* name, const Flight& flight) {
    return {
        name, kFrame,
        [flight, state = std::make_shared<PlayState>(), started = false](VectorPath path) mutable {
            if (!started) {
                StartFlight(flight, state.get());
                started = true;
            }
            return FlyOnce(flight, *state, path);
        }};
}

} // namespace

std::vector<CompareRow> FrontEndRows() {
    return {
        BlurRowOfTable(),
        FrontEndRow("front end, 20,000 faces", true),
        FrontEndRow("front end, no shared corners", false),
        FrameRow("8 frames of scene one, 640 x 480", {640, 480, 0}),
        FrameRow("8 frames of scene one, 1280 x 800", {1280, 800, 0}),
        FrameRow("8 frames of scene two, 640 x 480", {640, 480, 1}),
        FrameRow("8 frames of scene two, 1280 x 800", {1280, 800, 1}),
    };
}

} // namespace ombrel
