// The lighting pass against the slow one, on random faces and light tables: every kind alone and
// mixed, flat, gouraud and neither, both rounding modes, both packers, sane and wild numbers.
#include <cmath>
#include <cstring>

#include <gtest/gtest.h>

#include "base/float_mode.h"
#include "base/pixel16.h"
#include "scene/light.h"
#include "scene_fixture.h"
#include "support/reference_lighting.h"

using namespace ombrel;

namespace {

constexpr int kFacesARound = 2000;

// Sizes from tiny to a whole world; now and then broken.
float Coordinate(test::Numbers* n, bool wild) {
    if (wild && n->Below(40) == 0) {
        const float broken[] = {NAN, INFINITY, -INFINITY, 3e38F, -1e20F, 0.0F, 1e-40F, 3000000.0F};
        return broken[n->Below(8)];
    }
    return std::ldexp(n->Signed(), static_cast<int>(n->Below(16)) - 2);
}

Vec3 RandomPlace(test::Numbers* n, bool wild) {
    Vec3 v = {};
    v.x = Coordinate(n, wild);
    v.y = Coordinate(n, wild);
    v.z = Coordinate(n, wild);
    v.w = 1.0F;
    return v;
}

Light RandomLight(test::Numbers* n, std::uint32_t kind, bool wild) {
    Light light = {};
    light.enabled = n->Below(16) != 0 ? 1 : 0;
    light.kind = kind | (n->Below(4) == 0 ? n->Bits() & 0xFFFFFFE0U : 0);
    light.ambientColor = n->Bits();
    light.lightColor = n->Below(8) == 0 ? 0 : n->Bits();
    light.position = RandomPlace(n, wild);
    light.direction = {n->Signed(), n->Signed(), n->Signed(), 1.0F};
    Vec3Normalize(&light.direction);
    // Mostly such that the sums end between black and white.
    light.c0 = n->Below(8) != 0 ? 0.5F + n->Unit() : 0.0F;
    light.c1 = n->Below(2) != 0 ? n->Unit() * 0.002F : 0.0F;
    light.c2 = n->Below(2) != 0 ? n->Unit() * 0.000001F : 0.0F;
    light.exponent = n->Signed() * 12.0F;
    return light;
}

RenderFace RandomFace(test::Numbers* n, bool wild, CornerNormals* normals) {
    const std::uint32_t classes[] = {FACE_MATTE,   FACE_MATTE,    FACE_PLASTIC,
                                     FACE_PLASTIC, FACE_CONSTANT, FACE_MATTE | FACE_PLASTIC};
    RenderFace face = {};
    face.state = n->Below(10) != 0 ? FACE_LIVE : n->Bits() & 15;
    face.flags = classes[n->Below(6)];
    face.color = n->Bits();
    face.litColors[0] = n->Bits();
    face.litColors[1] = n->Bits();
    face.litColors[2] = n->Bits();
    const Vec3 center = RandomPlace(n, false);
    const float spread = std::ldexp(1.0F, static_cast<int>(n->Below(10)) - 1);
    for (int i = 0; i < 3; ++i) {
        FaceCorner& v = face.work[i];
        v.x = center.x + n->Signed() * spread;
        v.y = center.y + n->Signed() * spread;
        v.z = center.z + n->Signed() * spread;
        normals->corners[i].x = n->Signed();
        normals->corners[i].y = n->Signed();
        normals->corners[i].z = n->Signed();
        if (wild && n->Below(20) == 0) {
            v.x = Coordinate(n, true);
        }
    }
    // About the size that belongs to it, or anything.
    face.size = spread * spread * (1.0F + n->Unit());
    if (wild && n->Below(20) == 0) {
        face.size = Coordinate(n, true);
    }
    return face;
}

// Keeps all 24 bits in play: a channel that differs by one changes the word.
std::uint32_t MixChannels(std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    return (r * 0x0101U) ^ (g * 0x1F35U) ^ (b * 0x6B97U);
}

constexpr ColorPacker kPackers[4] = {PackRgb565, MixChannels, PackRgb555, MixChannels};

struct Tally {
    int lit = 0;   // faces that changed
    int white = 0; // with a channel at its end
    int black = 0;
};

// Lights the list both ways and compares every word of every face.
void CompareRound(test::Numbers* n, const LightTable& lights, ColorPacker pack, bool wild,
                  Tally* tally) {
    static_assert(kFacesARound <= kMaxRenderFaces / 2);
    test::ResetList();
    test::list.count = kFacesARound;
    RenderFace* const faces = test::list.records;
    RenderFace* const expected = test::list.records + kMaxRenderFaces / 2;
    for (int i = 0; i < kFacesARound; ++i) {
        faces[i] = RandomFace(n, wild, &test::list.normals[i]);
        expected[i] = faces[i];
        test::ReferenceLightFace(&expected[i], test::list.normals[i], lights, pack);
    }
    LightFaces(&test::list, nullptr, lights, pack);
    for (int i = 0; i < kFacesARound; ++i) {
        ASSERT_EQ(std::memcmp(&faces[i], &expected[i], sizeof(RenderFace)), 0)
            << "face " << i << " flags " << faces[i].flags << " got " << faces[i].litColors[0]
            << " want " << expected[i].litColors[0];
        if ((faces[i].flags & FACE_CONSTANT) == 0 && (faces[i].state & FACE_LIT) != 0) {
            const auto color = static_cast<Pixel16>(faces[i].litColors[0]);
            tally->black += color == 0 ? 1 : 0;
            tally->white += color == 0xFFFF ? 1 : 0;
            tally->lit += color != 0 && color != 0xFFFF ? 1 : 0;
        }
    }
}

class LightingReference : public testing::TestWithParam<std::uint32_t> {
protected:
    void TearDown() override { SetFloatMode(FloatMode::Nearest); }
};

// 60 rounds of 2,000 faces a kind; 0 stands for tables of up to ten lights of all kinds.
TEST_P(LightingReference, AgreesOnRandomFaces) {
    const std::uint32_t kind = GetParam();
    test::Numbers n{kind + 1000ULL};
    Tally tally;
    for (int round = 0; round < 60; ++round) {
        SetFloatMode(round % 4 == 3 ? FloatMode::Nearest : FloatMode::Chop);
        const bool wild = round % 3 == 1;
        const std::int32_t count =
            kind != 0 ? 1 : 2 + static_cast<std::int32_t>(n.Below(kMaxLights - 1));
        Light lights[kMaxLights] = {};
        for (std::int32_t i = 0; i < count; ++i) {
            lights[i] = RandomLight(&n, kind != 0 ? kind : 1U << n.Below(5), wild);
        }
        if (kind != 0) {
            lights[0].enabled = 1;
        }
        CompareRound(&n, {lights, count}, kPackers[round / 4 % 4], wild, &tally);
        if (HasFatalFailure()) {
            FAIL() << "round " << round;
        }
    }
    RecordProperty("lit", tally.lit);
    // The numbers reach into the range between black and white often enough to say something.
    EXPECT_GT(tally.lit, 8000) << tally.black << " black, " << tally.white << " white";
}

INSTANTIATE_TEST_SUITE_P(Kinds, LightingReference,
                         testing::Values(0U, LIGHT_AMBIENT, LIGHT_DIRECTIONAL, LIGHT_POINT,
                                         LIGHT_ATTENUATED, LIGHT_SPOT));

} // namespace
