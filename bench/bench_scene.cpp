// The steps between a mesh and its pixels, each over 20,000 faces; items are faces. Every iteration
// starts from the same list, restored outside the measured time.
#include <cstring>
#include <vector>

#include <benchmark/benchmark.h>

#include "base/float_mode.h"
#include "face_scene.h"
#include "scene/light.h"
#include "scene/mesh_transform.h"
#include "scene/pipeline.h"

using namespace ombrel;

namespace {

constexpr std::int32_t kFaces = 20000;

FaceList list;   // the one worked on
FaceList before; // what an iteration starts from

struct Scene {
    std::vector<Vertex> vertices;
    std::vector<Vertex> transformed;
    std::vector<Face> faces;
    Mesh mesh;
    Camera camera;
    Light lights[kMaxLights];
};
Scene scene;

// A cloud of small gouraud and flat faces all around, most before the eye, some across the near
// plane.
void MakeMesh() {
    Numbers n{1};
    scene.vertices.assign(3 * kFaces, Vertex{});
    scene.transformed.assign(3 * kFaces, Vertex{});
    scene.faces.assign(kFaces, Face{});
    for (std::size_t i = 0; i < kFaces; ++i) {
        const float x = n.Signed() * 800.0F;
        const float y = n.Signed() * 600.0F;
        const float z = n.Signed() * 500.0F + 450.0F;
        for (std::size_t c = 0; c < 3; ++c) {
            Vertex& v = scene.vertices[3 * i + c];
            v.x = x + n.Signed() * 20.0F;
            v.y = y + n.Signed() * 20.0F;
            v.z = z + n.Signed() * 20.0F;
            v.w = 1.0F;
            v.nx = n.Signed();
            v.ny = n.Signed();
            v.nz = n.Signed();
            v.vflags = VERTEX_LOADED | VERTEX_HAS_NORMAL;
        }
        Face& face = scene.faces[i];
        face.active = FACE_LIVE;
        face.flags = i % 2 == 0 ? FACE_PLASTIC : FACE_MATTE;
        face.color = 0xFFFF;
        face.v0 = static_cast<std::int32_t>(3 * i);
        face.v1 = face.v0 + 1;
        face.v2 = face.v0 + 2;
        face.size = 400.0F;
    }
    Mesh& mesh = scene.mesh;
    mesh = Mesh{};
    mesh.state = MESH_LIVE | MESH_DRAWABLE;
    mesh.position = {0.0F, 0.0F, 0.0F, 1.0F};
    mesh.vertexCount = mesh.slotCount = 3 * kFaces;
    mesh.vertices = mesh.curVertices = scene.vertices.data();
    mesh.transformed = mesh.curTransformed = scene.transformed.data();
    mesh.faces = scene.faces.data();
    mesh.faceCount = kFaces;
}

void MakeScene() {
    MakeFaceCamera(&scene.camera);
    MakeMesh();
    MakeFaceLights(scene.lights);
}

// The pipeline in its order; a benchmark starts after the steps that its stage names.
enum Stage { Added, Culled, Lit, Seen, Clipped, Projected };
void RunUpTo(Stage stage) {
    FaceListClear(&list);
    MeshTranslate(&scene.mesh, TransformMode::IntoTransformed, 0);
    MeshAddFaces(&list, &scene.mesh, 0);
    if (stage >= Culled) {
        CullBackFaces(&list, &scene.camera);
    }
    if (stage >= Lit) {
        LightFaces(&list, &scene.camera, {scene.lights, kFaceLights}, PackRgb565);
    }
    if (stage >= Seen) {
        TransformPolygonsToCamera(&list, &scene.camera);
    }
    if (stage >= Clipped) {
        ClipPolygons(&list, &scene.camera, 7);
    }
    if (stage >= Projected) {
        ProjectPolygons(&list, &scene.camera);
    }
}

template <class Step> void RunStep(benchmark::State& state, Stage stage, Step step) {
    const ScopedFloatMode chop(FloatMode::Chop);
    MakeScene();
    RunUpTo(stage);
    std::memcpy(&before, &list, sizeof list);
    for (auto _ : state) {
        state.PauseTiming();
        std::memcpy(list.records, before.records,
                    sizeof(RenderFace) * static_cast<std::size_t>(before.count));
        std::memcpy(list.pointers, before.pointers, sizeof list.pointers);
        list.count = before.count;
        state.ResumeTiming();
        step();
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kFaces);
}

void Transform(benchmark::State& state) {
    RunStep(state, Added, [] {
        MeshTransform(&scene.mesh, &scene.camera.view, {TransformMode::IntoTransformed, 0, 0});
    });
}
void AddFaces(benchmark::State& state) {
    RunStep(state, Added, [] {
        FaceListClear(&list);
        MeshAddFaces(&list, &scene.mesh, 0);
    });
}
void Cull(benchmark::State& state) {
    RunStep(state, Added, [] { CullBackFaces(&list, &scene.camera); });
}
void Lighting(benchmark::State& state) {
    RunStep(state, Culled, [] {
        LightFaces(&list, &scene.camera, {scene.lights, kFaceLights}, PackRgb565);
    });
}
void ToCamera(benchmark::State& state) {
    RunStep(state, Lit, [] { TransformPolygonsToCamera(&list, &scene.camera); });
}
void Clip(benchmark::State& state) {
    RunStep(state, Seen, [] { ClipPolygons(&list, &scene.camera, 7); });
}
void Sort(benchmark::State& state) {
    RunStep(state, Clipped, [] { SortFaces(&list, 0); });
}
void Project(benchmark::State& state) {
    RunStep(state, Clipped, [] {
        ProjectPolygons(&list, &scene.camera);
        MapPolygonsToScreen(&list, &scene.camera);
    });
}

BENCHMARK(Transform)->Name("Scene/Transform")->Unit(benchmark::kMicrosecond);
BENCHMARK(AddFaces)->Name("Scene/AddFaces")->Unit(benchmark::kMicrosecond);
BENCHMARK(Cull)->Name("Scene/Cull")->Unit(benchmark::kMicrosecond);
BENCHMARK(Lighting)->Name("Scene/Light")->Unit(benchmark::kMicrosecond);
BENCHMARK(ToCamera)->Name("Scene/ToCamera")->Unit(benchmark::kMicrosecond);
BENCHMARK(Clip)->Name("Scene/Clip")->Unit(benchmark::kMicrosecond);
BENCHMARK(Sort)->Name("Scene/Sort")->Unit(benchmark::kMicrosecond);
BENCHMARK(Project)->Name("Scene/Project")->Unit(benchmark::kMicrosecond);

} // namespace
