// The fused front end against the passes: the same faces, in the same order, with the same bits in
// everything that is drawn from.
#include "scene/front_end.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/float_mode.h"
#include "base/pixel16.h"
#include "scene/mesh_transform.h"
#include "scene_fixture.h"

namespace ombrel {
namespace {

using test::Numbers;

FaceList passList;
FaceList fusedList;

// A mesh with arrays of its own.
struct OwnMesh {
    std::vector<Vertex> vertices, transformed;
    std::vector<TexCoord> texCoords;
    std::vector<Face> faces;
    float radius = 0.0F;
    Mesh mesh = {};

    void Connect() {
        mesh.state = MESH_LIVE | MESH_DRAWABLE;
        mesh.vertexCount = mesh.slotCount = static_cast<std::int32_t>(vertices.size());
        mesh.vertices = mesh.curVertices = vertices.data();
        mesh.transformed = mesh.curTransformed = transformed.data();
        mesh.texCoords = texCoords.data();
        mesh.maxRadius = &radius;
        mesh.faces = faces.data();
        mesh.faceCount = static_cast<std::int32_t>(faces.size());
        for (Face& face : faces) {
            face.texCoordArray = texCoords.data();
        }
    }
};

constexpr std::uint32_t kClasses[] = {0,
                                      FACE_CONSTANT,
                                      FACE_MATTE,
                                      FACE_PLASTIC,
                                      FACE_MATTE | FACE_PLASTIC,
                                      FACE_PHONG,
                                      FACE_CONSTANT | FACE_PLASTIC};

// Corners within spread of the middle, shared by faces at random; some faces out of use.
std::unique_ptr<OwnMesh> RandomMesh(Numbers* n, std::uint32_t vertices, std::uint32_t faces,
                                    float spread) {
    auto own = std::make_unique<OwnMesh>();
    own->vertices.resize(vertices);
    for (Vertex& v : own->vertices) {
        v.x = n->Signed() * spread;
        v.y = n->Signed() * spread;
        v.z = n->Signed() * spread;
        v.w = 1.0F;
        v.nx = n->Signed();
        v.ny = n->Signed();
        v.nz = n->Signed();
        v.u = n->Unit();
        v.extra = n->Bits();
        v.vflags = VERTEX_LOADED | VERTEX_HAS_NORMAL;
    }
    own->transformed = own->vertices;
    own->texCoords.resize(vertices);
    for (TexCoord& t : own->texCoords) {
        t = {n->Unit() * 255.0F, n->Unit() * 255.0F};
    }
    own->faces.resize(faces);
    const std::uint32_t colors[3] = {n->Bits() & 0xFFFF, 0xFFFF, n->Bits()};
    for (Face& face : own->faces) {
        face = {};
        face.active = n->Below(20) == 0 ? n->Below(16) : std::uint32_t{FACE_LIVE};
        face.flags = kClasses[n->Below(7)] | (n->Below(4) == 0 ? FACE_TWO_SIDED : 0) |
                     (n->Below(2) == 0 ? FACE_TEXTURED : 0) |
                     (n->Below(4) == 0 ? FACE_TRANSPARENT : 0);
        face.color = colors[n->Below(3)];
        face.litColors[0] = n->Bits();
        face.litColors[1] = n->Bits();
        face.litColors[2] = n->Bits();
        face.size = n->Below(50) == 0 ? 0.0F : n->Unit() * 1000.0F;
        face.v0 = static_cast<std::int32_t>(n->Below(vertices));
        face.v1 = static_cast<std::int32_t>(n->Below(vertices));
        face.v2 = static_cast<std::int32_t>(n->Below(vertices));
        face.t0 = static_cast<std::int32_t>(n->Below(vertices));
        face.t1 = static_cast<std::int32_t>(n->Below(vertices));
        face.t2 = static_cast<std::int32_t>(n->Below(vertices));
    }
    own->mesh.position = {n->Signed() * 600.0F, n->Signed() * 300.0F, n->Signed() * 600.0F, 1.0F};
    own->Connect();
    return own;
}

void RandomLights(Numbers* n, Light* lights) {
    ClearLights(lights, kMaxLights);
    for (std::int32_t i = 0; i < kMaxLights; ++i) {
        Light values = {};
        values.enabled = n->Below(6) == 0 ? 0 : 1;
        values.kind = n->Below(10) == 0 ? n->Bits() : 1U << n->Below(5);
        values.ambientColor = n->Bits();
        values.lightColor = n->Bits();
        values.sourcePosition = {n->Signed() * 800.0F, n->Signed() * 800.0F, n->Signed() * 800.0F,
                                 1.0F};
        values.sourceDirection = {n->Signed(), n->Signed(), n->Signed(), 1.0F};
        values.c0 = n->Below(2) == 0 ? 0.0F : n->Unit();
        values.c0 *= n->Below(8) == 0 ? -1.0F : 1.0F; // takes light away
        values.c1 = n->Unit() * 0.01F;
        values.c2 = n->Below(2) == 0 ? 0.0F : n->Unit() * 0.0001F;
        values.exponent = n->Unit() * 6.0F - 1.0F;
        SetLight(&lights[i], values);
    }
}

std::vector<const RenderFace*> Drawables(const FaceList& list) {
    std::vector<const RenderFace*> faces;
    for (std::int32_t i = 0; i < list.count; ++i) {
        if (IsDrawable(list.pointers[i]->state)) {
            faces.push_back(list.pointers[i]);
        }
    }
    return faces;
}

template <class T> bool SameBits(const T& a, const T& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// Empty when the face is the same wherever it is drawn from.
std::string WhatDiffers(const RenderFace& a, const RenderFace& b) {
    std::string what;
    const auto check = [&what](bool same, const char* name) {
        what += same ? "" : std::string(" ") + name;
    };
    check(a.state == b.state, "state");
    check(a.flags == b.flags, "flags");
    check(a.color == b.color, "color");
    check(SameBits(a.litColors, b.litColors), "litColors");
    check(a.texture.single == b.texture.single, "texture");
    check(SameBits(a.size, b.size), "size");
    for (int i = 0; i < 3; ++i) {
        const FaceCorner& v = a.work[i];
        const FaceCorner& w = b.work[i];
        check(SameBits(v.x, w.x), "x");
        check(SameBits(v.y, w.y), "y");
        check(SameBits(v.z, w.z), "z");
        if ((a.flags & FACE_TEXTURED) != 0) {
            check(SameBits(v.u, w.u), "u");
            check(SameBits(v.v, w.v), "v");
        }
    }
    return what;
}

struct Comparison {
    std::size_t drawn;
    std::int32_t all; // records pass by pass
};

// Runs meshes through both forms and compares.
Comparison RunBoth(const std::vector<OwnMesh*>& meshes, const FaceSettings& settings,
                   const FrontEndKernels* kernels, bool reset) {
    const auto run = [&](FaceList* list, const FrontEndKernels* form, std::vector<int>* results) {
        FrontEnd front = {};
        activeFrontEnd = form;
        StartFaces(&front, list, settings);
        for (OwnMesh* own : meshes) {
            results->push_back(reset ? ResetAndAddMesh(&front, &own->mesh)
                                     : AddMesh(&front, &own->mesh));
        }
        FinishFaces(&front);
        activeFrontEnd = nullptr;
    };
    std::vector<int> passResults, fusedResults;
    run(&fusedList, kernels, &fusedResults);
    run(&passList, nullptr, &passResults);
    EXPECT_EQ(passResults, fusedResults);
    const auto expected = Drawables(passList);
    const auto actual = Drawables(fusedList);
    EXPECT_EQ(expected.size(), actual.size());
    for (std::size_t i = 0; i < std::min(expected.size(), actual.size()); ++i) {
        const std::string what = WhatDiffers(*expected[i], *actual[i]);
        if (!what.empty()) {
            ADD_FAILURE() << "face " << i << " of " << expected.size() << ":" << what;
            break;
        }
    }
    return {expected.size(), passList.count};
}

class FrontEndOfPath : public testing::TestWithParam<VectorPath> {
protected:
    void SetUp() override {
        if (!ProcessorRuns(GetParam()) || FrontEndOf(GetParam()) == nullptr) {
            GTEST_SKIP() << "this machine has no " << NameOf(GetParam());
        }
        camera_ = test::MakeCamera(640.0F, 480.0F, 90.0F);
        CameraBuildView(&camera_, 4);
    }
    void TearDown() override { activeFrontEnd = nullptr; }
    FaceSettings Settings() { return {&camera_, lights_, kMaxLights, true, true, -1, PackRgb565}; }
    Comparison Run(const std::vector<OwnMesh*>& meshes, const FaceSettings& settings,
                   bool reset = true) {
        return RunBoth(meshes, settings, FrontEndOf(GetParam()), reset);
    }
    void RandomCamera(Numbers* n) {
        camera_ = test::MakeCamera(320.0F + static_cast<float>(n->Below(1000)),
                                   200.0F + static_cast<float>(n->Below(600)),
                                   20.0F + n->Unit() * 140.0F);
        camera_.position = {n->Signed() * 500.0F, n->Signed() * 300.0F, n->Signed() * 500.0F, 1.0F};
        camera_.angles = {n->Signed() * 180.0F, n->Signed() * 180.0F, n->Signed() * 180.0F, 1.0F};
        CameraBuildView(&camera_, static_cast<std::int32_t>(n->Below(6)));
    }
    Camera camera_ = {};
    Light lights_[kMaxLights] = {};
};

TEST_P(FrontEndOfPath, RandomWorldsHaveTheBitsOfThePasses) {
    std::size_t drawn = 0;
    bool cut = false;
    for (const FloatMode mode : {FloatMode::Chop, FloatMode::Nearest}) {
        const ScopedFloatMode scope(mode);
        Numbers n{mode == FloatMode::Chop ? 7ULL : 8ULL};
        for (int round = 0; round < 60; ++round) {
            RandomCamera(&n);
            RandomLights(&n, lights_);
            const ColorPacker pack = n.Below(4) == 0 ? PackRgb555 : PackRgb565;
            std::vector<std::unique_ptr<OwnMesh>> owners;
            std::vector<OwnMesh*> meshes;
            std::int32_t live = 0;
            for (std::uint32_t k = 1 + n.Below(5); k > 0; --k) {
                owners.push_back(RandomMesh(&n, 1 + n.Below(300), n.Below(500),
                                            n.Below(3) == 0 ? 4000.0F : 200.0F));
                meshes.push_back(owners.back().get());
                for (const Face& face : meshes.back()->faces) {
                    live += (face.active & FACE_LIVE) != 0 ? 1 : 0;
                }
            }
            // The same mesh twice in a frame, moved in between, as the ground tiles are.
            meshes.push_back(meshes[0]);
            FaceSettings settings = Settings();
            settings.pack = pack;
            settings.lightCount = static_cast<std::int32_t>(n.Below(kMaxLights + 1));
            settings.cullBack = n.Below(5) != 0;
            settings.lit = n.Below(5) != 0;
            const Comparison result = Run(meshes, settings, n.Below(2) == 0);
            drawn += result.drawn;
            cut = cut || result.all > live;
        }
    }
    EXPECT_GT(drawn, 10000U);
    EXPECT_TRUE(cut);
}

TEST_P(FrontEndOfPath, BrokenCoordinatesAreDroppedAsThePassesDo) {
    const ScopedFloatMode chop(FloatMode::Chop);
    const float broken[] = {std::numeric_limits<float>::quiet_NaN(),
                            std::numeric_limits<float>::infinity(),
                            -std::numeric_limits<float>::infinity(),
                            1e30F,
                            2e9F,
                            1e-42F,
                            -0.0F};
    Numbers n{21};
    std::size_t drawn = 0;
    for (int round = 0; round < 40; ++round) {
        RandomCamera(&n);
        RandomLights(&n, lights_);
        const auto own = RandomMesh(&n, 40, 400, 300.0F);
        for (int i = 0; i < 6; ++i) {
            Vertex& v = own->vertices[n.Below(40)];
            (n.Below(3) == 0 ? v.x : n.Below(2) == 0 ? v.y : v.z) = broken[n.Below(7)];
            (n.Below(2) == 0 ? v.nx : v.nz) = broken[n.Below(7)];
        }
        drawn += Run({own.get()}, Settings()).drawn;
    }
    EXPECT_GT(drawn, 1000U);
}

// Lights at the very corner: distance 0, infinite factors, no light in a channel.
TEST_P(FrontEndOfPath, R32_LightsAtTheCorner) {
    const ScopedFloatMode chop(FloatMode::Chop);
    Numbers n{5};
    for (int round = 0; round < 40; ++round) {
        RandomLights(&n, lights_);
        const auto own = RandomMesh(&n, 30, 200, 300.0F);
        own->mesh.position = {0.0F, 0.0F, 400.0F, 1.0F};
        for (Light& light : lights_) {
            const Vertex& v = own->vertices[n.Below(30)];
            light.sourcePosition = {v.x + n.Signed() * 0.8F, v.y, v.z + 400.0F, 1.0F};
            light.kind = n.Below(2) == 0 ? LIGHT_POINT : LIGHT_AMBIENT;
            light.lightColor &= n.Below(2) == 0 ? 0xFF00FF00U : 0xFFFFFFFFU;
        }
        FaceSettings settings = Settings();
        settings.cullBack = false;
        EXPECT_GT(Run({own.get()}, settings).drawn, 0U);
    }
}

// One gouraud face before the camera, its normals along x.
void MakeLitTriangle(OwnMesh* own, float normalX, std::uint32_t color) {
    for (const auto& [x, y] : {std::pair{-10.0F, -10.0F}, {10.0F, -10.0F}, {0.0F, 10.0F}}) {
        own->vertices.push_back(test::VertexAt(x, y, 100.0F));
        own->vertices.back().nx = normalX;
    }
    own->transformed = own->vertices;
    own->faces.resize(1);
    own->faces[0].active = FACE_LIVE;
    own->faces[0].flags = FACE_PLASTIC | FACE_TWO_SIDED;
    own->faces[0].color = color;
    own->faces[0].v1 = 1;
    own->faces[0].v2 = 2;
    own->mesh.position = {0.0F, 0.0F, 0.0F, 1.0F};
    own->Connect();
}

// A sum that no 32-bit integer holds counts as white, also when the next light adds 2^31 to it.
TEST_P(FrontEndOfPath, SumsBeyondAllBoundsStayWhite) {
    const ScopedFloatMode chop(FloatMode::Chop);
    OwnMesh own;
    MakeLitTriangle(&own, 0x1p25F, 16 << 11); // a red of 128
    // The first light is without bounds, the second gives 2^14 * 2^32 / 2^15.
    ClearLights(lights_, kMaxLights);
    for (int i = 0; i < 2; ++i) {
        lights_[i].enabled = 1;
        lights_[i].kind = LIGHT_DIRECTIONAL;
        lights_[i].lightColor = PackLightColor(128, 0, 0);
        lights_[i].sourceDirection = {i == 0 ? 0x1p40F : 1.0F, 0.0F, 0.0F, 1.0F};
    }
    EXPECT_EQ(Run({&own}, Settings()).drawn, 1U);
    EXPECT_EQ(fusedList.records[0].litColors[0], 31U << 11);
}

// A light that takes 5 away leaves 2^32 - 5; the next one makes 2^31 of it, and a last ambient one
// adds its 247: still white.
TEST_P(FrontEndOfPath, SumsBelowZeroCountWithoutSign) {
    const ScopedFloatMode chop(FloatMode::Chop);
    OwnMesh own;
    MakeLitTriangle(&own, 1.0F, 0xFFFF);
    ClearLights(lights_, kMaxLights);
    for (int i = 0; i < 3; ++i) {
        Light light = {};
        light.enabled = 1;
        light.kind = i == 2 ? LIGHT_AMBIENT : LIGHT_ATTENUATED;
        light.lightColor = PackLightColor(8, 8, 8);
        light.ambientColor = PackLightColor(255, 255, 255);
        light.sourceDirection = {1.0F, 0.0F, 0.0F, 1.0F};
        light.c0 = i == 0 ? -1.5F : 1.5F;
        SetLight(&lights_[i], light);
    }
    for (const std::int32_t count : {1, 2, 3}) {
        FaceSettings settings = Settings();
        settings.lightCount = count;
        EXPECT_EQ(Run({&own}, settings).drawn, 1U) << count;
        EXPECT_EQ(fusedList.records[0].litColors[0], 0xFFFFU) << count;
    }
}

// 65,536 faces fill the list; what comes later is dropped, also what cuts leave over.
TEST_P(FrontEndOfPath, FullListDropsTheSameFaces) {
    const ScopedFloatMode chop(FloatMode::Chop);
    Numbers n{99};
    RandomLights(&n, lights_);
    for (const std::uint32_t last : {16384U, 16383U, 16380U, 16300U, 15000U}) {
        std::vector<std::unique_ptr<OwnMesh>> owners;
        std::vector<OwnMesh*> meshes;
        for (int i = 0; i < 4; ++i) {
            owners.push_back(RandomMesh(&n, 60, i == 3 ? last : 16384U, 400.0F));
            owners.back()->mesh.position = {0.0F, 0.0F, 100.0F, 1.0F};
            for (Face& face : owners.back()->faces) {
                face.active = FACE_LIVE;
            }
            meshes.push_back(owners.back().get());
        }
        const Comparison exact = Run(meshes, Settings());
        EXPECT_GT(exact.drawn, 1000U);
        EXPECT_EQ(exact.all == kMaxRenderFaces, last > 10000U);
        // And one mesh more, for which there is no room from the start.
        meshes.push_back(meshes[0]);
        Run(meshes, Settings());
        // Its marks go only where it is reset.
        const auto late = RandomMesh(&n, 10, 2, 400.0F);
        late->faces[0].active = FACE_LIVE;
        meshes.push_back(late.get());
        for (const bool reset : {false, true}) {
            late->faces[1].active = FACE_LIVE | FACE_BACK;
            Run(meshes, Settings(), reset);
            EXPECT_EQ((late->faces[1].active & FACE_BACK) == 0, reset);
        }
    }
}

TEST_P(FrontEndOfPath, MeshesThatAreNotDrawnAddNothing) {
    const ScopedFloatMode chop(FloatMode::Chop);
    Numbers n{3};
    RandomLights(&n, lights_);
    const auto own = RandomMesh(&n, 30, 100, 300.0F);
    own->mesh.position = {0.0F, 0.0F, 400.0F, 1.0F};
    for (const std::uint32_t state : {0U, MESH_LIVE, MESH_DRAWABLE, MESH_LIVE | MESH_CULLED}) {
        own->mesh.state = state;
        EXPECT_EQ(Run({own.get()}, Settings(), false).drawn, 0U);
        EXPECT_EQ(Run({own.get()}, Settings(), true).drawn, 0U);
    }
    // Culled: nothing, until it is reset.
    own->mesh.state = MESH_LIVE | MESH_DRAWABLE | MESH_CULLED;
    EXPECT_EQ(Run({own.get()}, Settings(), false).drawn, 0U);
    EXPECT_GT(Run({own.get()}, Settings(), true).drawn, 0U);
    // An empty one, as the scene list's first entry is.
    OwnMesh empty;
    empty.mesh.state = MESH_LIVE | MESH_DRAWABLE;
    EXPECT_EQ(Run({&empty}, Settings()).drawn, 0U);
}

TEST_P(FrontEndOfPath, ResetTakesTheBitsOfTheFrameAway) {
    const ScopedFloatMode chop(FloatMode::Chop);
    Numbers n{4};
    const auto own = RandomMesh(&n, 30, 100, 300.0F);
    std::vector<std::uint32_t> expected;
    for (Face& face : own->faces) {
        face.active = n.Below(16);
        const bool live = (face.active & FACE_LIVE) != 0;
        expected.push_back(live ? face.active & ~0xEU : face.active);
    }
    FrontEnd front = {};
    activeFrontEnd = FrontEndOf(GetParam());
    StartFaces(&front, &fusedList, Settings());
    ResetAndAddMesh(&front, &own->mesh);
    FinishFaces(&front);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(own->faces[i].active, expected[i]) << i;
    }
}

// Order is decided among all faces, those that do not show too.
TEST_P(FrontEndOfPath, SortedFramesAreMadePassByPass) {
    FaceSettings settings = Settings();
    settings.sortMode = 0;
    FrontEnd front = {};
    activeFrontEnd = FrontEndOf(GetParam());
    StartFaces(&front, &fusedList, settings);
    EXPECT_EQ(front.kernels, nullptr);
    settings.sortMode = -1;
    StartFaces(&front, &fusedList, settings);
    EXPECT_EQ(front.kernels, activeFrontEnd);
}

INSTANTIATE_TEST_SUITE_P(Paths, FrontEndOfPath,
                         testing::ValuesIn(std::begin(kPathsHere) + 1, std::end(kPathsHere)),
                         [](const auto& info) { return std::string(NameOf(info.param)); });

TEST(FrontEnd, PlainPathIsPassByPass) {
    UseFrontEnd(VectorPath::Avx2);
    UseFrontEnd(VectorPath::Scalar);
    EXPECT_EQ(activeFrontEnd, nullptr);
}

} // namespace
} // namespace ombrel
