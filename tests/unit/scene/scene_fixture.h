// What the tests of the scene pipeline share: a face list, faces without a mesh, a camera, numbers.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>

#include "base/float_mode.h"
#include "math/vec3.h"
#include "scene/camera.h"
#include "scene/face_list.h"

namespace ombrel::test {

inline FaceList list; // large, so there is one; ResetList before use

inline void ResetList() {
    FaceListClear(&list);
    list.records[0] = RenderFace{};
}

inline Vertex VertexAt(float x, float y, float z) {
    Vertex v = {};
    v.x = x;
    v.y = y;
    v.z = z;
    v.w = 1.0F;
    v.vflags = VERTEX_LOADED;
    return v;
}

// A live face of the list, everything 0 but what is given.
inline RenderFace* AddFace(std::uint32_t flags, const Vertex& a, const Vertex& b, const Vertex& c) {
    Vertex vertices[3] = {a, b, c};
    Face face = {};
    face.active = FACE_LIVE;
    face.flags = flags;
    face.vertexArray = vertices;
    face.v1 = 1;
    face.v2 = 2;
    face.size = 1.0F;
    return FaceListAdd(&list, &face) != 0 ? &list.records[list.count - 1] : nullptr;
}

// At the origin, looking along +Z, near 1, far 15000.
inline Camera MakeCamera(float width, float height, float fov) {
    InitTrigTables();
    CameraSetup setup = {};
    setup.mode = 8;
    setup.position = setup.angles = {0.0F, 0.0F, 0.0F, 1.0F};
    setup.zNear = 1.0F;
    setup.zFar = 15000.0F;
    setup.fov = fov;
    setup.screenWidth = width;
    setup.screenHeight = height;
    Camera camera = {};
    CameraInit(&camera, setup);
    return camera;
}

// An empty list, a camera at the origin, and the rounding of the production.
class ListAndCamera : public testing::Test {
protected:
    void SetUp() override {
        SetFloatMode(FloatMode::Chop);
        ResetList();
        camera_ = MakeCamera(640.0F, 480.0F, 90.0F);
    }
    void TearDown() override { SetFloatMode(FloatMode::Nearest); }

    Camera camera_;
};

inline void ExpectCorner(const FaceCorner& v, float x, float y, float z) {
    EXPECT_EQ(v.x, x);
    EXPECT_EQ(v.y, y);
    EXPECT_EQ(v.z, z);
}

// The same numbers on every system: Knuth's 64-bit linear generator, and singles without rounding.
struct Numbers {
    std::uint64_t state;
    std::uint32_t Bits() {
        state = state * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<std::uint32_t>(state >> 32);
    }
    std::uint32_t Below(std::uint32_t n) { return Bits() % n; }
    float Unit() { return static_cast<float>(Bits() >> 8) * 0x1p-24F; }            // 0 up to 1
    float Signed() { return static_cast<float>((Bits() >> 7)) * 0x1p-24F - 1.0F; } // -1 up to 1
};

} // namespace ombrel::test
