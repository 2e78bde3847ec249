// Objects on a turntable and the world from above, through the production's own pipeline.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <vector>

#include "../larkfen-gallery/tiny_font.h"
#include "base/float_mode.h"
#include "base/rect.h"
#include "demo/face_views.h"
#include "demo/scene_frame.h"
#include "demo/world.h"
#include "draw.h"
#include "list.h"
#include "object.h"
#include "platform/display.h"
#include "raster/blend_tables.h"
#include "raster/fillers.h"
#include "report.h"
#include "scene/mesh_transform.h"
#include "scene/pipeline.h"
#include "track.h"

namespace inspect {

using namespace ombrel;
using gallery::Sheet;

namespace {

constexpr std::int32_t kGap = 6, kLine = 12, kCell = 288, kColumns = 4, kTurn = 45;

// What a picture is drawn with.
struct Stage {
    Sheet* sheet;
    float mapHalf; // units from the middle of a map to its side, on the ground
    std::vector<std::uint32_t> depth;
    Camera camera;
    Light lights[2];
};

void SetUpLights(Light* lights) {
    Light values{};
    values.enabled = 1;
    values.kind = LIGHT_AMBIENT;
    values.ambientColor = PackLightColor(144, 128, 144);
    SetLight(&lights[0], values);
    values.kind = LIGHT_DIRECTIONAL;
    values.ambientColor = 0;
    values.lightColor = PackLightColor(231, 219, 173);
    values.sourceDirection = {-0.6F, 0.8F, -1.0F, 1.0F};
    SetLight(&lights[1], values);
}

struct View3d {
    float fov, zFar;
    float tilt; // degrees down
    Vec3 eye;
};
void AimCamera(Camera* camera, const View3d& view, std::int32_t size) {
    CameraSetup setup{};
    setup.mode = 8;
    setup.zNear = 1.0F;
    setup.zFar = view.zFar;
    setup.fov = view.fov;
    setup.screenWidth = setup.screenHeight = static_cast<float>(size);
    setup.position = view.eye;
    setup.angles = {view.tilt, 0.0F, 0.0F, 1.0F};
    CameraInit(camera, setup);
    CameraBuildView(camera, 4);
}

// Culls, lights, cuts and projects the gathered faces.
void RunPipeline(Stage* stage) {
    FaceList* const list = &sceneFaces;
    CullBackFaces(list, &stage->camera);
    LightsTransform(stage->lights, 2, nullptr, LightMove::Copy);
    LightFaces(list, &stage->camera, {stage->lights, 2}, display.format.pack);
    TransformPolygonsToCamera(list, &stage->camera);
    ClipPolygons(list, &stage->camera, 7);
    ProjectPolygons(list, &stage->camera);
    MapPolygonsToScreen(list, &stage->camera);
}

void DrawFilled(Stage* stage, const Area& area) {
    stage->depth.assign(
        static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height), 0);
    DrawJob job{};
    job.flags = kSceneJobFlags;
    job.faces = &sceneFaces;
    job.frame = stage->sheet->At(area.x, area.y);
    job.framePitch = stage->sheet->Pitch();
    job.depth = stage->depth.data();
    job.depthPitch = area.width * 4;
    job.level = -1;
    job.clip = {0, 0, area.width, area.height};
    DrawFaces(&job);
}

// The used vertices' box becomes a ball of this radius around the origin; a sky keeps its centre.
void Normalize(Mesh* mesh, float radius, bool keepsCentre) {
    float low[3] = {1e30F, 1e30F, 1e30F};
    float high[3] = {-1e30F, -1e30F, -1e30F};
    const auto eachUsed = [&](auto&& visit) {
        for (std::int32_t i = 0; i < mesh->faceCount; ++i) {
            for (const std::int32_t v : {mesh->faces[i].v0, mesh->faces[i].v1, mesh->faces[i].v2}) {
                visit(mesh->vertices[v]);
            }
        }
    };
    eachUsed([&](const Vertex& v) {
        const float place[3] = {v.x, v.y, v.z};
        for (int k = 0; k < 3; ++k) {
            low[k] = std::min(low[k], place[k]);
            high[k] = std::max(high[k], place[k]);
        }
    });
    float centre[3] = {0.0F, 0.0F, 0.0F};
    for (int k = 0; k < 3 && !keepsCentre; ++k) {
        centre[k] = (low[k] + high[k]) * 0.5F;
    }
    float reach = 0.0F;
    eachUsed([&](const Vertex& v) {
        reach = std::max(reach, std::hypot(v.x - centre[0], v.y - centre[1], v.z - centre[2]));
    });
    const float scale = reach > 0.0F ? radius / reach : 1.0F;
    for (std::int32_t i = 0; i < mesh->vertexCount; ++i) {
        Vertex& v = mesh->vertices[i];
        v.x = (v.x - centre[0]) * scale;
        v.y = (v.y - centre[1]) * scale;
        v.z = (v.z - centre[2]) * scale;
    }
    ComputeFaceSizes(mesh);
}

// Adds the faces of an object where it stands.
void Gather(Mesh* mesh) {
    MeshResetFrame(mesh);
    MeshTranslate(mesh, TransformMode::IntoTransformed, 0);
    MeshAddFaces(&sceneFaces, mesh, 0);
}

// Six sides, then from above (a sky: straight up), then as wires.
void DrawTurntable(Stage* stage, Mesh* mesh, bool sky) {
    constexpr float kSide = 20.0F, kDistance = 1500.0F;
    for (int i = 0; i < 2 * kColumns; ++i) {
        const Area area{kGap + i % kColumns * (kCell + kGap),
                        2 * kLine + i / kColumns * (kCell + kLine + kGap), kCell, kCell};
        const bool above = i == 6;
        const bool wires = i == 7;
        const float tilt = above ? 90.0F : kSide;
        View3d view{140.0F, 15000.0F, tilt, {0.0F, 0.0F, 0.0F, 1.0F}};
        if (sky) {
            view.fov = 90.0F;
            view.tilt = above ? -90.0F : -10.0F;
        } else {
            view.eye.y = SinDeg(tilt) * kDistance;
            view.eye.z = -CosDeg(tilt) * kDistance;
        }
        AimCamera(&stage->camera, view, kCell);
        PaintChecks(stage->sheet, area);
        FaceListClear(&sceneFaces);
        Gather(mesh);
        RunPipeline(stage);
        if (wires) {
            DrawFaceListWire(
                &sceneFaces,
                {stage->sheet->At(area.x, area.y), stage->sheet->Pitch(), {0, 0, kCell, kCell}});
        } else {
            DrawFilled(stage, area);
        }
        const std::string label = wires   ? "wires"
                                  : above ? (sky ? "straight up" : "from above")
                                          : Format("turned by %d", i * kTurn);
        DrawText(stage->sheet, area.x, area.y + kCell + 2, label, kInk);
        MeshRotate(mesh, 0.0F, i < 5 ? kTurn : i == 5 ? 135.0F : 0.0F, 0.0F, 0);
    }
}

void SetUpStage(Stage* stage, Sheet* sheet) {
    stage->sheet = sheet;
    SetUpLights(stage->lights);
}

// --- the map -----------------------------------------------------------------------------------
constexpr std::int32_t kMap = 960;
constexpr float kLeastHalf = 4600.0F; // units from the middle to the side, on the ground
constexpr float kMapHeight = 12000.0F;
constexpr std::int32_t kLegend = 200; // pixels beside the map
constexpr std::int32_t kTiles = 8;    // a side of the field

struct Pixel {
    float x, y;
};
Pixel OnMap(const Stage& stage, const Vec3& place) {
    const float scale = kMap * 0.5F / stage.mapHalf * kMapHeight / (kMapHeight - place.y);
    return {kMap * 0.5F + place.x * scale, kMap * 0.5F - place.z * scale};
}

void PaintLine(Sheet* sheet, Pixel a, Pixel b, Pixel16 color) {
    const float length = std::max(std::fabs(b.x - a.x), std::fabs(b.y - a.y));
    const int steps = std::clamp(static_cast<int>(std::ceil(length)), 1, 4 * kMap);
    for (int i = 0; i <= steps; ++i) {
        const float t = static_cast<float>(i) / static_cast<float>(steps);
        const float x = a.x + (b.x - a.x) * t;
        const float y = a.y + (b.y - a.y) * t;
        if (x >= 0.0F && y >= 0.0F && x < kMap && y < kMap) {
            PaintPoint(sheet, static_cast<std::int32_t>(x), static_cast<std::int32_t>(y), color);
        }
    }
}

// Text on a dark ground, so that it can be read on any picture.
void PaintLabel(Sheet* sheet, std::int32_t x, std::int32_t y, const std::string& text,
                Pixel16 color) {
    const auto width = static_cast<std::int32_t>(text.size()) * gallery::kLetterWidth;
    for (std::int32_t row = -1; row <= gallery::kLetterHeight; ++row) {
        for (std::int32_t column = -1; column < width; ++column) {
            PaintPoint(sheet, x + column, y + row, kPaper);
        }
    }
    DrawText(sheet, x, y, text, color);
}

void PaintBox(const Stage& stage, float half, Pixel16 color) {
    const Pixel corners[5] = {OnMap(stage, {-half, 0, -half, 1}), OnMap(stage, {half, 0, -half, 1}),
                              OnMap(stage, {half, 0, half, 1}), OnMap(stage, {-half, 0, half, 1}),
                              OnMap(stage, {-half, 0, -half, 1})};
    for (int i = 0; i < 4; ++i) {
        PaintLine(stage.sheet, corners[i], corners[i + 1], color);
    }
}

void DrawGround(Stage* stage) {
    const auto half = static_cast<double>(stage->mapHalf / kMapHeight);
    const auto fov = static_cast<float>(180.0 - 2.0 * std::atan(half) * 57.29577951308232);
    AimCamera(&stage->camera, {fov, 30000.0F, 90.0F, {0.0F, kMapHeight, 0.0F, 1.0F}}, kMap);
    FaceListClear(&sceneFaces);
    for (std::int32_t tile = 0; tile < kTiles * kTiles; ++tile) {
        const std::int32_t column = tile % kTiles;
        const std::int32_t row = tile / kTiles;
        if (column % (kTiles - 1) == 0 && row % (kTiles - 1) == 0) {
            continue; // the corners of the field are missing
        }
        world.ground.position.x = static_cast<float>(column * 1000 - 3500);
        world.ground.position.z = static_cast<float>(row * 1000 - 3500);
        Gather(&world.ground);
    }
    for (std::int32_t i = kFirstSceneObject + 1; i < world.objectCounter; ++i) {
        Gather(&world.objects[i]);
    }
    RunPipeline(stage);
    DrawFilled(stage, {0, 0, kMap, kMap});
}

Vec3 AheadOf(const Camera& camera) {
    const float down = camera.angles.x;
    const float right = camera.angles.y;
    return {SinDeg(right) * CosDeg(down), -SinDeg(down), CosDeg(right) * CosDeg(down), 1.0F};
}

void PaintFlight(const Stage& stage, const std::vector<TrackKey>& keys, Pixel16 color) {
    constexpr std::size_t kEvery = 64; // frames from one look to the next
    constexpr float kLook = 220.0F;
    Sheet* const sheet = stage.sheet;
    const std::vector<Camera> flight = FlightOf(keys, 20000);
    for (std::size_t i = 0; i + 1 < flight.size(); ++i) {
        const Pixel a = OnMap(stage, flight[i].position);
        const Pixel b = OnMap(stage, flight[i + 1].position);
        PaintLine(sheet, a, b, color);
        PaintLine(sheet, {a.x + 1, a.y}, {b.x + 1, b.y}, color);
    }
    for (std::size_t i = 0; i < flight.size(); i += kEvery) {
        const Vec3& eye = flight[i].position;
        const Vec3 ahead = AheadOf(flight[i]);
        PaintLine(sheet, OnMap(stage, eye),
                  OnMap(stage, {eye.x + ahead.x * kLook, eye.y, eye.z + ahead.z * kLook, 1.0F}),
                  kInk);
    }
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const Pixel at = OnMap(stage, keys[i].position);
        if (at.x > 2 && at.y > 2 && at.x < kMap - 20 && at.y < kMap - 10) {
            const auto x = static_cast<std::int32_t>(at.x);
            const auto y = static_cast<std::int32_t>(at.y);
            for (std::int32_t k = 0; k < 25; ++k) {
                PaintPoint(sheet, x - 2 + k % 5, y - 2 + k / 5, color);
            }
            PaintLabel(sheet, x + 5, y - 3, std::to_string(i), color);
        }
    }
}

// How far from the middle of a map a flight gets, as seen from above; not more than a map can show.
float ReachOnMap(const std::vector<TrackKey>& keys) {
    constexpr float kMargin = 300.0F, kMost = 60000.0F;
    float reach = 0.0F;
    for (const Camera& at : FlightOf(keys, 20000)) {
        const float height = std::min(at.position.y, kMapHeight * 0.9F);
        const float away = std::max(std::fabs(at.position.x), std::fabs(at.position.z));
        reach = std::max(reach, away * kMapHeight / (kMapHeight - height) + kMargin);
    }
    return std::min(reach, kMost);
}

void PaintNumbers(const Stage& stage) {
    for (std::int32_t i = kFirstSceneObject + 1; i <= world.objectCounter; ++i) {
        const Pixel at = OnMap(stage, world.objects[i].position);
        if (at.x >= 0 && at.y >= 0 && at.x < kMap - 20 && at.y < kMap - 10) {
            PaintLabel(stage.sheet, static_cast<std::int32_t>(at.x),
                       static_cast<std::int32_t>(at.y), std::to_string(i - kFirstSceneObject),
                       kTitle);
        }
    }
}

} // namespace

bool DrawObject(const std::string& path, Sheet* sheet, std::string* why) {
    const ScopedFloatMode asPlayed(FloatMode::Chop);
    const ObjectRole role = RoleOf(path);
    Mesh mesh;
    if (LoadAsProduction(&mesh, path, role) == 0 || mesh.faceCount == 0) {
        releaseObject(&mesh);
        *why = "the production draws nothing of it";
        return false;
    }
    *sheet =
        MakeSheet(kColumns * (kCell + kGap) + kGap, 2 * kLine + 2 * (kCell + kLine + kGap) + kGap);
    DrawText(sheet, kGap, kGap,
             std::filesystem::path(path).filename().string() +
                 Format(": %d faces, %d vertices, ", mesh.faceCount, mesh.vertexCount) + role.name,
             kTitle);
    Stage stage{};
    SetUpStage(&stage, sheet);
    const bool inside = role.side == Side::Inside;
    Normalize(&mesh, inside ? 5000.0F : 500.0F, inside);
    mesh.position = {0.0F, 0.0F, 0.0F, 1.0F};
    DrawTurntable(&stage, &mesh, inside);
    releaseObject(&mesh);
    return true;
}

bool DrawMap(const MapRequest& request, Sheet* sheet, std::string* why) {
    constexpr Pixel16 kFlights[2] = {Rgb(255, 208, 64), Rgb(96, 220, 255)};
    const ScopedFloatMode asPlayed(FloatMode::Chop);
    LoadWorld(request.listPath);
    *sheet = MakeSheet(kMap + kLegend, kMap);
    PaintChecks(sheet, {0, 0, kMap, kMap});
    std::vector<TrackKey> keys[2];
    for (int i = 0; i < 2; ++i) {
        keys[i] = request.trackPaths[i].empty() ? keys[i] : KeysOf(request.trackPaths[i]);
    }
    Stage stage{};
    SetUpStage(&stage, sheet);
    stage.mapHalf = std::max({kLeastHalf, ReachOnMap(keys[0]), ReachOnMap(keys[1])});
    DrawGround(&stage);
    PaintBox(stage, 3500.0F, Rgb(255, 255, 255));
    std::int32_t y = kGap;
    const auto tell = [&](const std::string& text, Pixel16 color) {
        DrawText(sheet, kMap + kGap, y, text, color);
        y += kLine;
    };
    tell("from above", kTitle);
    tell("up is ahead, right is x", kInk);
    tell("white: the box of scene one", kInk);
    if (request.numbers) {
        tell("figures: objects of the list", kTitle);
    } else {
        tell("figures: keys", kInk);
        tell("short lines: where the", kInk);
        tell("camera looks, each 64 frames", kInk);
    }
    bool flown = false;
    for (int i = 0; i < 2; ++i) {
        if (keys[i].size() >= 3) {
            PaintFlight(stage, keys[i], kFlights[i]);
            tell(std::filesystem::path(request.trackPaths[i]).filename().string(), kFlights[i]);
            flown = true;
        }
    }
    if (request.numbers) {
        PaintNumbers(stage);
    }
    const bool drawn = flown || request.numbers;
    *why = drawn ? "" : "the production reads fewer than 3 keys";
    ResetWorldOfTool();
    return drawn;
}

} // namespace inspect
