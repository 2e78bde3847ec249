// Lights: the table, and each kind on numbers worked out by hand.
#include <cmath>
#include <cstring>

#include <gtest/gtest.h>

#include "base/float_mode.h"
#include "base/pixel16.h"
#include "scene/light.h"
#include "scene_fixture.h"

using namespace ombrel;

namespace {

// Keeps the three channels apart: 8 bits each, for looking at what went into the packer.
std::uint32_t lastRed;
std::uint32_t lastGreen;
std::uint32_t lastBlue;
std::uint32_t RecordChannels(std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    lastRed = r;
    lastGreen = g;
    lastBlue = b;
    return 0xABCD1234;
}

constexpr std::uint32_t kWhite = 0xFFFF; // base channels 248, 252, 248
constexpr std::uint32_t kWhiteLight = PackLightColor(255, 255, 255);

// A corner at (x, y, z) with the normal (0, 1, 0).
Vertex Up(float x, float y, float z) {
    Vertex v = test::VertexAt(x, y, z);
    v.ny = 1.0F;
    v.vflags |= VERTEX_HAS_NORMAL;
    return v;
}

class Lighting : public testing::Test {
protected:
    void SetUp() override {
        SetFloatMode(FloatMode::Chop);
        test::ResetList();
    }
    void TearDown() override { SetFloatMode(FloatMode::Nearest); }

    // One gouraud face at the origin whose corners all face up.
    RenderFace* Gouraud(std::uint32_t color) {
        const Vertex v = Up(0.0F, 0.0F, 0.0F);
        RenderFace* face = test::AddFace(FACE_PLASTIC, v, v, v);
        face->color = color;
        return face;
    }
    // One flat face whose cross product is (0, 16, 0); size 16, so its true normal is up.
    RenderFace* Flat(std::uint32_t color) {
        RenderFace* face =
            test::AddFace(FACE_MATTE, test::VertexAt(0.0F, 0.0F, 0.0F),
                          test::VertexAt(0.0F, 0.0F, 4.0F), test::VertexAt(4.0F, 0.0F, 0.0F));
        face->color = color;
        face->size = 16.0F;
        return face;
    }
    void Run(const Light& light) { Run(&light, 1); }
    void Run(const Light* lights, std::int32_t count) {
        LightFaces(&test::list, nullptr, {lights, count}, pack_);
    }
    ColorPacker pack_ = RecordChannels;
};

void ExpectChannels(std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    EXPECT_EQ(lastRed, r);
    EXPECT_EQ(lastGreen, g);
    EXPECT_EQ(lastBlue, b);
}

Light Directional(std::uint32_t color) {
    Light light = {};
    light.enabled = 1;
    light.kind = LIGHT_DIRECTIONAL;
    light.lightColor = color;
    light.direction = {0.0F, 1.0F, 0.0F, 1.0F};
    return light;
}

Light AtPlace(std::uint32_t kind, float x, float y, float z) {
    Light light = {};
    light.enabled = 1;
    light.kind = kind;
    light.lightColor = kWhiteLight;
    light.position = {x, y, z, 1.0F};
    light.direction = {0.0F, 1.0F, 0.0F, 1.0F};
    light.c0 = 1.0F;
    return light;
}

// --- ambient -----------------------------------------------------------------------------------

TEST_F(Lighting, AmbientWhiteOnWhiteGives247_251_247) {
    Light light = {};
    light.enabled = 1;
    light.kind = LIGHT_AMBIENT;
    light.ambientColor = PackLightColor(255, 255, 255);
    Gouraud(kWhite);
    Run(light);
    ExpectChannels(247, 251, 247);
    test::ResetList();
    Flat(kWhite);
    Run(light);
    ExpectChannels(247, 251, 247);
}

TEST_F(Lighting, AmbientScalesEachChannelByItsOwnByte) {
    Light light = {};
    light.enabled = 1;
    light.kind = LIGHT_AMBIENT;
    light.ambientColor = PackLightColor(140, 134, 107);
    light.lightColor = kWhiteLight; // not looked at
    // Base 5-6-5 (20, 33, 7): channels 160, 132, 56.
    Gouraud((20U << 11) | (33U << 5) | 7U);
    Run(light);
    ExpectChannels(140 * 160 / 256, 134 * 132 / 256, 107 * 56 / 256);
}

// --- directional -------------------------------------------------------------------------------

TEST_F(Lighting, DirectionalWithCosineOneAdds247) {
    Gouraud(kWhite);
    Run(Directional(kWhiteLight));
    // 255 * 248 * 128 / 32768 = 247.03; 255 * 252 / 256 = 251.02
    ExpectChannels(247, 251, 247);
}

TEST_F(Lighting, DirectionalOnAFlatFaceIsDividedByItsSize) {
    Flat(kWhite);
    Run(Directional(kWhiteLight));
    ExpectChannels(247, 251, 247);
    test::ResetList();
    Flat(kWhite)->size = 32.0F;
    Run(Directional(kWhiteLight));
    ExpectChannels(123, 125, 123); // 123.5, 125.5
}

TEST_F(Lighting, DirectionalByTheCosine) {
    Gouraud(kWhite);
    Light light = Directional(PackLightColor(200, 100, 50));
    light.direction = {0.0F, 0.25F, 0.0F, 1.0F};
    Run(light);
    // 200 * 248 / 1024 = 48.4; 100 * 252 / 1024 = 24.6; 50 * 248 / 1024 = 12.1
    ExpectChannels(48, 24, 12);
}

TEST_F(Lighting, DirectionalFromBehindOrTheSideGivesNothing) {
    Light light = Directional(kWhiteLight);
    light.direction = {0.0F, -1.0F, 0.0F, 1.0F};
    Gouraud(kWhite);
    Run(light);
    ExpectChannels(0, 0, 0);
    light.direction = {1.0F, 0.0F, 0.0F, 1.0F};
    test::ResetList();
    Flat(kWhite);
    Run(light);
    ExpectChannels(0, 0, 0);
}

// --- point -------------------------------------------------------------------------------------

TEST_F(Lighting, PointFallsOffByItsConstants) {
    // V = (0, 8, 0), dist 8, N.V 8. Delta = (8 * 0.25 + 1) * 8 + 8 = 32.
    Light light = AtPlace(LIGHT_POINT, 0.0F, 8.0F, 0.0F);
    light.c0 = 8.0F;
    light.c1 = 1.0F;
    light.c2 = 0.25F;
    // f = 8 * 128 / (32 * 8) = 4; 255 * 248 * 4 / 32768 = 7.7; 255 * 252 * 4 / 32768 = 7.8
    Gouraud(kWhite);
    Run(light);
    ExpectChannels(7, 7, 7);
    light.c0 = 1.0F;
    light.c1 = light.c2 = 0.0F; // delta 1: f = 128
    test::ResetList();
    Flat(kWhite);
    Run(light);
    ExpectChannels(247, 251, 247);
}

TEST_F(Lighting, PointTakesTheFastLength) {
    // V = (12, 4, 3): dist 14 instead of 13; N.V = 4; f = 4 * 128 / 14 = 36.57.
    Gouraud(kWhite);
    Run(AtPlace(LIGHT_POINT, 12.0F, 4.0F, 3.0F));
    // 255 * 248 * 36.5714 / 32768 = 70.58; 255 * 252 * ... = 71.72
    ExpectChannels(70, 71, 70);
}

TEST_F(Lighting, PointBelowTheSurfaceGivesNothing) {
    Gouraud(kWhite);
    Run(AtPlace(LIGHT_POINT, 5.0F, -1.0F, 0.0F));
    ExpectChannels(0, 0, 0);
    test::ResetList();
    Gouraud(kWhite);
    Run(AtPlace(LIGHT_POINT, 5.0F, 0.0F, 0.0F)); // level with it
    ExpectChannels(0, 0, 0);
}

TEST_F(Lighting, R32_ALightCloserThanOneGivesWhiteInEveryChannel) {
    Light light = AtPlace(LIGHT_POINT, 0.0F, 0.5F, 0.0F);
    light.lightColor = PackLightColor(1, 0, 0);
    Gouraud(kWhite);
    Run(light);
    ExpectChannels(255, 255, 255); // 1 * inf, 0 * inf, 0 * inf
    test::ResetList();
    Flat(0);
    Run(light);
    ExpectChannels(255, 255, 255);
    // A second light does not take it back.
    test::ResetList();
    Gouraud(kWhite);
    const Light two[2] = {light, Directional(kWhiteLight)};
    Run(two, 2);
    ExpectChannels(255, 255, 255);
}

// --- attenuated directional --------------------------------------------------------------------

TEST_F(Lighting, AttenuatedTakesTheDirectionForTheCosineAndThePlaceForTheDistance) {
    // dist of (0, -8, 0) = 8, delta = 8 * 0.25 + 2 = 4 with c1 0.25: f = 1 * 128 / 4 = 32.
    Light light =
        AtPlace(LIGHT_ATTENUATED, 0.0F, -8.0F, 0.0F); // below, but its light comes from above
    light.c0 = 2.0F;
    light.c1 = 0.25F;
    Gouraud(kWhite);
    Run(light);
    ExpectChannels(61, 62, 61); // 61.76, 62.75
    light.direction.y = -1.0F;
    test::ResetList();
    Gouraud(kWhite);
    Run(light);
    ExpectChannels(0, 0, 0);
}

TEST_F(Lighting, AttenuatedWithoutConstantsIsWhite) {
    Light light = AtPlace(LIGHT_ATTENUATED, 0.0F, 8.0F, 0.0F);
    light.c0 = 0.0F;
    Gouraud(kWhite);
    Run(light);
    ExpectChannels(255, 255, 255);
}

// --- spot --------------------------------------------------------------------------------------

TEST_F(Lighting, SpotMultipliesConeAndCosine) {
    // V = P - Lp = (0, 8, 6), dist = 8 + 11/32 * 6 = 10.06 -> 10; D = (0, 0.5, 0):
    // s = 4 / 10 = 0.4; exponent 2: s^2 = 0.16; N.D = 0.5; f = 128 / 1 * 0.16 * 0.5 = 10.24.
    Light light = AtPlace(LIGHT_SPOT, 0.0F, -8.0F, -6.0F);
    light.direction = {0.0F, 0.5F, 0.0F, 1.0F};
    light.exponent = 2.0F;
    Gouraud(kWhite);
    Run(light);
    ExpectChannels(19, 20, 19); // 255 * 248 * 10.24 / 32768 = 19.76; 20.08
}

TEST_F(Lighting, SpotExponentIsCutToAWholeNumber) {
    Light light = AtPlace(LIGHT_SPOT, 0.0F, -8.0F, 0.0F);
    light.direction = {0.0F, 0.5F, 0.0F, 1.0F}; // s = 0.5, N.D = 0.5
    const float exponents[] = {-3.0F, 0.0F, 1.0F, 1.99F, 2.0F, 2.99F, 3.0F};
    // f = 64 * s^n: 32, 32, 32, 32, 16, 16, 8; white: f * 1.93.
    const std::uint32_t want[] = {61, 61, 61, 61, 30, 30, 15};
    for (int i = 0; i < 7; ++i) {
        light.exponent = exponents[i];
        test::ResetList();
        Gouraud(kWhite);
        Run(light);
        EXPECT_EQ(lastRed, want[i]) << exponents[i];
    }
}

TEST_F(Lighting, R33_SpotTakesItsDirectionForTheCosine) {
    // Lamp above, shining up: the surface faces its direction, but lies outside the cone.
    Light light = AtPlace(LIGHT_SPOT, 0.0F, 8.0F, 0.0F);
    light.exponent = 1.0F;
    Gouraud(kWhite);
    Run(light);
    ExpectChannels(0, 0, 0);
    // Lamp below, shining up through the back: lit, since the normal agrees with the direction.
    light.position.y = -8.0F;
    test::ResetList();
    Gouraud(kWhite);
    Run(light);
    ExpectChannels(247, 251, 247);
    // Lamp above, shining down on it: the normal disagrees with the direction; nothing.
    light.position.y = 8.0F;
    light.direction.y = -1.0F;
    test::ResetList();
    Gouraud(kWhite);
    Run(light);
    ExpectChannels(0, 0, 0);
}

TEST_F(Lighting, SpotOnAFlatFaceIsDividedByItsSize) {
    Light light = AtPlace(LIGHT_SPOT, 0.0F, -8.0F, 0.0F);
    light.exponent = 1.0F;
    Flat(kWhite);
    Run(light);
    ExpectChannels(247, 251, 247);
}

// --- sums, kinds, states -----------------------------------------------------------------------

TEST_F(Lighting, LightsAddUpAndEndAt255) {
    Light lights[3] = {Directional(kWhiteLight), Directional(PackLightColor(0, 2, 8)), {}};
    lights[2].enabled = 1;
    lights[2].kind = LIGHT_AMBIENT;
    lights[2].ambientColor = PackLightColor(0, 1, 9);
    Gouraud(kWhite);
    Run(lights, 3);
    // 247 + 0 + 0; 251.02 -> 251, + 1.97 -> 252, + 0; 247 + 7.75 -> 254, + 8 = 262 -> 255.
    ExpectChannels(247, 252, 255);
}

TEST_F(Lighting, LightsAfterAnAmbientOneStillCount) {
    Light lights[3] = {{}, Directional(PackLightColor(100, 100, 100)), {}};
    lights[0].enabled = 1;
    lights[0].kind = LIGHT_AMBIENT;
    lights[0].ambientColor = PackLightColor(64, 64, 64);
    lights[2] = lights[0];
    Gouraud(kWhite);
    Run(lights, 3);
    ExpectChannels(62 + 96 + 62, 63 + 98 + 63, 62 + 96 + 62);
    // The other way round it is the same here.
    const Light turned[3] = {lights[1], lights[0], lights[2]};
    test::ResetList();
    Gouraud(kWhite);
    Run(turned, 3);
    ExpectChannels(62 + 96 + 62, 63 + 98 + 63, 62 + 96 + 62);
}

TEST_F(Lighting, ALightThatIsOffOrBeyondTheCountIsSkipped) {
    Light lights[2] = {Directional(kWhiteLight), Directional(kWhiteLight)};
    lights[0].enabled = 0;
    Gouraud(kWhite);
    Run(lights, 1);
    ExpectChannels(0, 0, 0);
    lights[0].enabled = 0x80000000;
    test::ResetList();
    Gouraud(kWhite);
    Run(lights, 1);
    ExpectChannels(247, 251, 247);
}

TEST_F(Lighting, TheLowestKindBitDecidesAndOnlyTheLowByteCounts) {
    Light light = AtPlace(LIGHT_DIRECTIONAL | LIGHT_POINT | LIGHT_SPOT | 0xFF00, 0.0F, -8.0F, 0.0F);
    Gouraud(kWhite);
    Run(light); // as a point light it would give nothing
    ExpectChannels(247, 251, 247);
    light.kind = LIGHT_AMBIENT | LIGHT_DIRECTIONAL;
    light.ambientColor = 0;
    test::ResetList();
    Gouraud(kWhite);
    Run(light);
    ExpectChannels(0, 0, 0);
    for (const std::uint32_t kind : {0U, 32U, 64U, 128U, 0x200U}) {
        light.kind = kind;
        test::ResetList();
        Gouraud(kWhite);
        Run(light);
        ExpectChannels(0, 0, 0);
    }
}

TEST_F(Lighting, GouraudLightsEachCornerByItsOwnPlaceAndNormal) {
    pack_ = PackRgb565;
    Vertex a = Up(0.0F, 0.0F, 0.0F);
    Vertex b = Up(0.0F, 4.0F, 0.0F); // four below the light
    Vertex c = Up(0.0F, 0.0F, 0.0F);
    c.ny = -1.0F;
    RenderFace* face = test::AddFace(FACE_PLASTIC, a, b, c);
    face->color = kWhite;
    Light light = AtPlace(LIGHT_POINT, 0.0F, 8.0F, 0.0F);
    light.c0 = 0.0F;
    light.c1 = 0.25F; // delta = dist / 4: 2 at eight, 1 at four
    Run(light);
    EXPECT_EQ(face->litColors[0], PackRgb565(123, 125, 123));
    EXPECT_EQ(face->litColors[1], PackRgb565(247, 251, 247));
    EXPECT_EQ(face->litColors[2], 0U);
}

TEST_F(Lighting, FlatLightsTheFirstCornerAndWritesOneColour) {
    pack_ = PackRgb565;
    RenderFace* face = Flat(kWhite);
    face->litColors[1] = 11;
    face->litColors[2] = 22;
    for (Xyz<float>& normal : test::list.NormalsOf(face).corners) {
        normal.y = -1.0F; // not looked at
    }
    Light light = AtPlace(LIGHT_POINT, 0.0F, 8.0F, 0.0F); // right above corner 0
    Run(light);
    EXPECT_EQ(face->litColors[0], PackRgb565(247, 251, 247));
    EXPECT_EQ(face->litColors[1], 11U);
    EXPECT_EQ(face->litColors[2], 22U);
}

TEST_F(Lighting, FlatWinsOverGouraud) {
    RenderFace* face = Flat(kWhite);
    face->flags |= FACE_PLASTIC;
    face->litColors[1] = 11;
    Run(Directional(kWhiteLight));
    EXPECT_EQ(face->litColors[1], 11U);
}

TEST_F(Lighting, NeitherFlatNorGouraudGetsItsBaseColourAsColourZero) {
    for (const std::uint32_t flags : {0U, FACE_CONSTANT, FACE_PHONG, FACE_TEXTURED | FACE_PHONG}) {
        test::ResetList();
        RenderFace* face = Flat(0x03001234);
        face->flags = flags;
        face->litColors[1] = 11;
        face->litColors[2] = 22;
        Run(Directional(kWhiteLight));
        EXPECT_EQ(face->litColors[0], 0x03001234U);
        EXPECT_EQ(face->litColors[1], 11U);
        EXPECT_EQ(face->litColors[2], 22U);
        EXPECT_EQ(face->state, FACE_LIVE | FACE_LIT);
    }
}

TEST_F(Lighting, OnlyDrawableFacesAreVisitedAndOnlyOnce) {
    for (const std::uint32_t state :
         {0U, FACE_LIVE | FACE_OUTSIDE, FACE_LIVE | FACE_BACK, FACE_LIVE | FACE_LIT, FACE_LIT}) {
        test::ResetList();
        RenderFace* face = Flat(kWhite);
        face->state = state;
        face->litColors[0] = 77;
        Run(Directional(kWhiteLight));
        EXPECT_EQ(face->litColors[0], 77U);
        EXPECT_EQ(face->state, state);
    }
}

TEST_F(Lighting, TheColourWordKeepsSixteenBitsOfThePacker) {
    RenderFace* face = Flat(kWhite);
    Run(Directional(kWhiteLight));
    EXPECT_EQ(face->litColors[0], 0x1234U); // RecordChannels returns 0xABCD1234
}

TEST_F(Lighting, TheDisplaysPackerIsUsed) {
    pack_ = PackRgb555;
    RenderFace* face = Flat(kWhite);
    Run(Directional(kWhiteLight));
    EXPECT_EQ(face->litColors[0], PackRgb555(247, 251, 247));
}

TEST_F(Lighting, BrokenNumbersEndAt255) {
    Flat(kWhite)->size = 0.0F;
    Run(Directional(kWhiteLight)); // divided by 0
    ExpectChannels(255, 255, 255);
    test::ResetList();
    Gouraud(kWhite);
    Light light = Directional(kWhiteLight);
    light.direction.y = 3e38F;
    Run(light);
    ExpectChannels(255, 255, 255);
    test::ResetList();
    Gouraud(kWhite);
    light.direction.y = NAN; // NaN faces nothing
    Run(light);
    ExpectChannels(0, 0, 0);
    // A negative attenuation makes a negative sum, which as an unsigned number is above 255.
    test::ResetList();
    Gouraud(kWhite);
    light = AtPlace(LIGHT_POINT, 0.0F, 8.0F, 0.0F);
    light.c0 = -1.0F;
    Run(light);
    ExpectChannels(255, 255, 255);
}

// --- the table ---------------------------------------------------------------------------------

TEST(Lights, ClearZeroesAllWords) {
    Light lights[3];
    std::memset(lights, 0xFF, sizeof lights);
    ClearLights(lights, 2);
    const Light zero = {};
    EXPECT_EQ(std::memcmp(&lights[0], &zero, sizeof zero), 0);
    EXPECT_EQ(std::memcmp(&lights[1], &zero, sizeof zero), 0);
    EXPECT_EQ(lights[2].enabled, 0xFFFFFFFFU);
}

TEST(Lights, SetStoresPlaceAndNormalisedDirectionTwice) {
    Light values = {};
    values.enabled = 1;
    values.kind = LIGHT_SPOT;
    values.lightColor = 0x01020300;
    values.sourcePosition = {1.0F, 2.0F, 3.0F, 1.0F};
    values.sourceDirection = {0.0F, 3.0F, 4.0F, 1.0F};
    values.exponent = 5.0F;
    Light light = {};
    SetLight(&light, values);
    EXPECT_EQ(light.kind, LIGHT_SPOT);
    EXPECT_EQ(light.lightColor, 0x01020300U);
    EXPECT_EQ(light.exponent, 5.0F);
    EXPECT_EQ(light.position.z, 3.0F);
    EXPECT_EQ(light.sourcePosition.z, 3.0F);
    EXPECT_FLOAT_EQ(light.direction.y, 0.6F);
    EXPECT_FLOAT_EQ(light.sourceDirection.z, 0.8F);
    EXPECT_EQ(PackLightColor(1, 2, 3), 0x01020300U);
}

class LightsMove : public testing::Test {
protected:
    void SetUp() override {
        for (Light& light : lights_) {
            light = {};
            light.sourcePosition = {1.0F, 2.0F, 3.0F, 1.0F};
            light.sourceDirection = {4.0F, 5.0F, 6.0F, 1.0F};
            light.position = {10.0F, 20.0F, 30.0F, 1.0F};
            light.direction = {40.0F, 50.0F, 60.0F, 1.0F};
        }
    }
    static void Expect(const Vec3& v, float x, float y, float z) {
        EXPECT_EQ(v.x, x);
        EXPECT_EQ(v.y, y);
        EXPECT_EQ(v.z, z);
        EXPECT_EQ(v.w, 1.0F);
    }
    // x' = 2 y, y' = x, z' = 3 z, shifted by (100, 200, 300).
    static constexpr Matrix4 kMatrix = {
        {{0, 1, 0, 0}, {2, 0, 0, 0}, {0, 0, 3, 0}, {100, 200, 300, 1}}};
    Light lights_[3];
};

TEST_F(LightsMove, Mode0MovesTheSource) {
    LightsTransform(lights_, 2, &kMatrix, LightMove::SourceInPlace);
    Expect(lights_[1].sourcePosition, 104.0F, 201.0F, 309.0F);
    Expect(lights_[1].sourceDirection, 10.0F, 4.0F, 18.0F); // not shifted
    Expect(lights_[1].position, 10.0F, 20.0F, 30.0F);
    Expect(lights_[2].sourcePosition, 1.0F, 2.0F, 3.0F); // beyond the count
}

TEST_F(LightsMove, Mode1MovesTheWorkingCopy) {
    LightsTransform(lights_, 2, &kMatrix, LightMove::WorkingInPlace);
    Expect(lights_[0].position, 140.0F, 210.0F, 390.0F);
    Expect(lights_[0].direction, 100.0F, 40.0F, 180.0F);
    Expect(lights_[0].sourcePosition, 1.0F, 2.0F, 3.0F);
    Expect(lights_[0].sourceDirection, 4.0F, 5.0F, 6.0F);
}

TEST_F(LightsMove, Mode2MovesTheSourceIntoTheWorkingCopy) {
    LightsTransform(lights_, 2, &kMatrix, LightMove::SourceIntoWorking);
    Expect(lights_[0].position, 104.0F, 201.0F, 309.0F);
    Expect(lights_[0].direction, 10.0F, 4.0F, 18.0F);
    Expect(lights_[0].sourcePosition, 1.0F, 2.0F, 3.0F);
    Expect(lights_[0].sourceDirection, 4.0F, 5.0F, 6.0F);
}

TEST_F(LightsMove, Mode3CopiesAndNeedsNoMatrix) {
    LightsTransform(lights_, 2, nullptr, LightMove::Copy);
    Expect(lights_[0].position, 1.0F, 2.0F, 3.0F);
    Expect(lights_[0].direction, 4.0F, 5.0F, 6.0F);
    Expect(lights_[2].position, 10.0F, 20.0F, 30.0F);
}

TEST_F(LightsMove, OtherModesDoNothing) {
    Light before[3];
    std::memcpy(before, lights_, sizeof before);
    LightsTransform(lights_, 3, &kMatrix, LightMove{4});
    LightsTransform(lights_, 3, nullptr, LightMove{-1});
    EXPECT_EQ(std::memcmp(before, lights_, sizeof before), 0);
}

} // namespace
