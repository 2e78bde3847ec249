// The view volume and the cut.
#include <cmath>
#include <cstring>
#include <limits>
#include <map>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "base/float_mode.h"
#include "base/pixel16.h"
#include "scene/pipeline.h"
#include "scene_fixture.h"

using namespace ombrel;
using test::ExpectCorner;
using test::VertexAt;

namespace {

class Clip : public test::ListAndCamera {
protected:
    // The state of a face after the test with this mask.
    std::uint32_t StateOf(const Vertex& a, const Vertex& b, const Vertex& c, std::uint32_t mask) {
        test::ResetList();
        const RenderFace* face = test::AddFace(0, a, b, c);
        ClipPolygons(&test::list, &camera_, mask);
        return face->state;
    }
};

constexpr std::uint32_t kKept = FACE_LIVE;
constexpr std::uint32_t kRejected = FACE_LIVE | FACE_OUTSIDE;

// --- the view volume ---------------------------------------------------------------------------

TEST_F(Clip, AFaceIsRejectedWhenAllCornersLieBeyondOneLimit) {
    // Limits at z = 10: 10 across, 7.5 up and down.
    EXPECT_EQ(StateOf(VertexAt(11, 0, 10), VertexAt(12, 1, 10), VertexAt(11, 2, 10), 7), kRejected);
    EXPECT_EQ(StateOf(VertexAt(-11, 0, 10), VertexAt(-12, 1, 10), VertexAt(-11, 2, 10), 7),
              kRejected);
    EXPECT_EQ(StateOf(VertexAt(0, 8, 10), VertexAt(1, 9, 10), VertexAt(2, 8, 10), 7), kRejected);
    EXPECT_EQ(StateOf(VertexAt(0, -8, 10), VertexAt(1, -9, 10), VertexAt(2, -8, 10), 7), kRejected);
    EXPECT_EQ(StateOf(VertexAt(0, 0, 15001), VertexAt(1, 0, 15001), VertexAt(0, 1, 16000), 7),
              kRejected);
    EXPECT_EQ(StateOf(VertexAt(0, 0, 0.5F), VertexAt(1, 0, 0), VertexAt(0, 1, -9), 7), kRejected);
}

TEST_F(Clip, ExactlyOnALimitIsInside) {
    EXPECT_EQ(StateOf(VertexAt(10, 0, 10), VertexAt(12, 1, 10), VertexAt(11, 2, 10), 7), kKept);
    EXPECT_EQ(StateOf(VertexAt(0, 0, 15000), VertexAt(1, 0, 15001), VertexAt(0, 1, 16000), 7),
              kKept);
    EXPECT_EQ(StateOf(VertexAt(0, 0, 1), VertexAt(1, 0, 1), VertexAt(0, 1, 1), 7), kKept);
}

TEST_F(Clip, CornersBeyondDifferentLimitsKeepTheFace) {
    EXPECT_EQ(StateOf(VertexAt(-20, 0, 10), VertexAt(20, 0, 10), VertexAt(0, 20, 10), 7), kKept);
    // Right, right and top: no limit has all three.
    EXPECT_EQ(StateOf(VertexAt(11, 0, 10), VertexAt(11, 1, 10), VertexAt(9, 9, 10), 7), kKept);
}

TEST_F(Clip, TheMaskChoosesTheSides) {
    const Vertex right[3] = {VertexAt(11, 0, 10), VertexAt(12, 1, 10), VertexAt(11, 2, 10)};
    EXPECT_EQ(StateOf(right[0], right[1], right[2], 1), kRejected);
    EXPECT_EQ(StateOf(right[0], right[1], right[2], 6), kKept);
    const Vertex top[3] = {VertexAt(0, 8, 10), VertexAt(1, 9, 10), VertexAt(2, 8, 10)};
    EXPECT_EQ(StateOf(top[0], top[1], top[2], 2), kRejected);
    EXPECT_EQ(StateOf(top[0], top[1], top[2], 5), kKept);
    const Vertex far[3] = {VertexAt(0, 0, 20000), VertexAt(1, 0, 20000), VertexAt(0, 1, 20000)};
    EXPECT_EQ(StateOf(far[0], far[1], far[2], 4), kRejected);
    EXPECT_EQ(StateOf(far[0], far[1], far[2], 3), kKept);
}

TEST_F(Clip, BehindTheEyeNothingIsLeftWhateverTheMask) {
    EXPECT_EQ(StateOf(VertexAt(0, 0, -1), VertexAt(1, 0, -2), VertexAt(0, 1, 0), 0), kRejected);
}

TEST_F(Clip, R35_BeyondBothLimitsCountsAsThePositiveOne) {
    // Behind the eye at z = -10 the limits are -10 and 10 the wrong way round: x = 0 lies beyond
    // both. With two corners on the right that makes three beyond the right limit.
    EXPECT_EQ(StateOf(VertexAt(20, 0, 10), VertexAt(20, 1, 10), VertexAt(0, 0, -10), 1), kRejected);
    // With two on the left it does not.
    EXPECT_EQ(StateOf(VertexAt(-20, 0, 10), VertexAt(-20, 1, 10), VertexAt(0, 0, -10), 1), kKept);
    // Top and bottom alike.
    EXPECT_EQ(StateOf(VertexAt(0, 20, 10), VertexAt(1, 20, 10), VertexAt(0, 0, -10), 2), kRejected);
    EXPECT_EQ(StateOf(VertexAt(0, -20, 10), VertexAt(1, -20, 10), VertexAt(0, 0, -10), 2), kKept);
}

// --- the near plane ----------------------------------------------------------------------------

TEST_F(Clip, OneCornerInFrontGivesOneTriangle) {
    // From z 5 down to -3 the plane z = 1 lies half way.
    const RenderFace* face =
        test::AddFace(0, VertexAt(0, 0, 5), VertexAt(4, 0, -3), VertexAt(0, 2, -3));
    ClipPolygons(&test::list, &camera_, 7);
    EXPECT_EQ(test::list.count, 1);
    EXPECT_EQ(face->state, kKept);
    ExpectCorner(face->work[0], 0, 0, 5);
    ExpectCorner(face->work[1], 2, 0, 1);
    ExpectCorner(face->work[2], 0, 1, 1);
}

TEST_F(Clip, TwoCornersInFrontGiveTwoTrianglesTheSecondAtTheEnd) {
    const RenderFace* face =
        test::AddFace(FACE_MATTE, VertexAt(0, 0, 5), VertexAt(4, 0, 5), VertexAt(0, 2, -3));
    test::AddFace(0, VertexAt(0, 0, 9), VertexAt(1, 0, 9), VertexAt(0, 1, 9));
    test::list.records[0].size = 12.5F;
    test::list.records[0].color = 0x04001234;
    test::list.records[0].state |= FACE_LIT;
    ClipPolygons(&test::list, &camera_, 7);
    ASSERT_EQ(test::list.count, 3);
    // The corners 0, 1, half way from 1 to 2, half way from 0 to 2, fanned out from 0.
    ExpectCorner(face->work[0], 0, 0, 5);
    ExpectCorner(face->work[1], 4, 0, 5);
    ExpectCorner(face->work[2], 2, 1, 1);
    const RenderFace& added = test::list.records[2];
    EXPECT_EQ(test::list.pointers[2], &added);
    ExpectCorner(added.work[0], 0, 0, 5);
    ExpectCorner(added.work[1], 2, 1, 1);
    ExpectCorner(added.work[2], 0, 1, 1);
    EXPECT_EQ(added.state, FACE_LIVE | FACE_LIT);
    EXPECT_EQ(added.flags, FACE_MATTE);
    EXPECT_EQ(added.color, 0x04001234U);
    EXPECT_EQ(added.size, 12.5F);
}

TEST_F(Clip, EachCornerInTurnCanBeTheOneBehind) {
    // The winding stays and the depth of a cut is the plane's own.
    const Vertex v[3] = {VertexAt(0, 0, 5), VertexAt(4, 0, 5), VertexAt(0, 2, -3)};
    for (int turn = 0; turn < 3; ++turn) {
        test::ResetList();
        test::AddFace(0, v[turn], v[(turn + 1) % 3], v[(turn + 2) % 3]);
        ClipPolygons(&test::list, &camera_, 0);
        ASSERT_EQ(test::list.count, 2);
        float area = 0.0F;
        for (int i = 0; i < 2; ++i) {
            const FaceCorner* w = test::list.records[i].work;
            const float twice =
                (w[1].x - w[0].x) * (w[2].y - w[0].y) - (w[2].x - w[0].x) * (w[1].y - w[0].y);
            EXPECT_GT(twice, 0.0F);
            area += twice;
            for (int c = 0; c < 3; ++c) {
                EXPECT_TRUE(w[c].z == 5.0F || w[c].z == 1.0F);
            }
        }
        EXPECT_EQ(area, 6.0F); // 8 less the quarter behind
    }
}

TEST_F(Clip, ACutMatchesTheFormulaToTheBit) {
    const Vertex a = VertexAt(3.3F, -1.7F, 7.1F);
    const Vertex b = VertexAt(-2.9F, 0.3F, -11.3F);
    const RenderFace* face = test::AddFace(0, a, b, b);
    ClipPolygons(&test::list, &camera_, 7);
    const float s = (1.0F - a.z) / (b.z - a.z);
    EXPECT_EQ(face->work[1].x, a.x + (b.x - a.x) * s);
    EXPECT_EQ(face->work[1].y, a.y + (b.y - a.y) * s);
    EXPECT_EQ(face->work[1].z, 1.0F);
}

TEST_F(Clip, CornersExactlyOnTheNearPlaneAreInFront) {
    const RenderFace* face =
        test::AddFace(0, VertexAt(0, 0, 1), VertexAt(1, 0, 1), VertexAt(0, 1, 1));
    const RenderFace before = *face;
    ClipPolygons(&test::list, &camera_, 7);
    EXPECT_EQ(std::memcmp(&before, face, sizeof before), 0);
}

TEST_F(Clip, TextureCoordinatesAndNormalsAreCutAlike) {
    Vertex a = VertexAt(0, 0, 5);
    Vertex b = VertexAt(4, 0, -3);
    a.u = 10.0F;
    a.v = 20.0F;
    a.nx = 1.0F;
    b.u = 30.0F;
    b.v = 0.0F;
    b.nx = -1.0F;
    b.ny = 1.0F;
    b.nz = 8.0F;
    const RenderFace* face = test::AddFace(0, a, b, b);
    ClipPolygons(&test::list, &camera_, 7);
    const FaceCorner& cut = face->work[1];
    const Xyz<float>& normal = test::list.NormalsOf(face).corners[1];
    EXPECT_EQ(cut.u, 20.0F);
    EXPECT_EQ(cut.v, 10.0F);
    EXPECT_EQ(normal.x, 0.0F);
    EXPECT_EQ(normal.y, 0.5F);
    EXPECT_EQ(normal.z, 4.0F);
}

TEST_F(Clip, GouraudColoursAreCutChannelByChannel) {
    RenderFace* face =
        test::AddFace(FACE_PLASTIC, VertexAt(0, 0, 5), VertexAt(4, 0, -3), VertexAt(0, 2, -3));
    // Half way from (31, 10, 4) to (1, 21, 8) is (16, 15.5, 6), cut to (16, 15, 6).
    face->litColors[0] = (31U << 11) | (10U << 5) | 4U;
    face->litColors[1] = (1U << 11) | (21U << 5) | 8U;
    face->litColors[2] = (31U << 11) | (10U << 5) | 5U;
    ClipPolygons(&test::list, &camera_, 7);
    EXPECT_EQ(face->litColors[0], (31U << 11) | (10U << 5) | 4U);
    EXPECT_EQ(face->litColors[1], (16U << 11) | (15U << 5) | 6U);
    EXPECT_EQ(face->litColors[2], (31U << 11) | (10U << 5) | 4U);
}

TEST_F(Clip, ColourZeroOfFlatAndUnlitFacesStaysThatOfTheFace) {
    for (const std::uint32_t flags : {FACE_MATTE, FACE_CONSTANT, FACE_MATTE | FACE_PLASTIC}) {
        test::ResetList();
        // The first corner is the one behind.
        RenderFace* face =
            test::AddFace(flags, VertexAt(0, 2, -3), VertexAt(0, 0, 5), VertexAt(4, 0, 5));
        face->litColors[0] = 0xF81F;
        face->litColors[1] = 0x1111;
        face->litColors[2] = 0x2222;
        ClipPolygons(&test::list, &camera_, 7);
        ASSERT_EQ(test::list.count, 2);
        for (int i = 0; i < 2; ++i) {
            EXPECT_EQ(test::list.records[i].litColors[0], 0xF81FU);
            EXPECT_EQ(test::list.records[i].litColors[1], 0x1111U);
        }
    }
}

// --- the full list -----------------------------------------------------------------------------

TEST_F(Clip, AFullListDropsWhatIsLeftOver) {
    RenderFace* face = test::AddFace(0, VertexAt(0, 0, 5), VertexAt(4, 0, 5), VertexAt(0, 2, -3));
    const Vertex v = VertexAt(0, 0, 9);
    while (test::list.count < 65536) {
        test::AddFace(0, v, v, v);
    }
    ClipPolygons(&test::list, &camera_, 7);
    EXPECT_EQ(test::list.count, 65536);
    EXPECT_EQ(face->state, kKept);
    ExpectCorner(face->work[2], 2, 1, 1); // its first triangle stands
    ExpectCorner(test::list.records[65535].work[0], 0, 0, 9);
}

TEST_F(Clip, TheLastFreeRecordGoesToTheFirstLeftOver) {
    // A huge face around the eye's line of sight: cut at all four sides of the band, many
    // triangles.
    RenderFace* face =
        test::AddFace(0, VertexAt(-150, -100, 10), VertexAt(130, -100, 10), VertexAt(0, 300, 10));
    ClipPolygons(&test::list, &camera_, 7);
    const std::int32_t triangles = test::list.count;
    ASSERT_EQ(triangles, 4);
    const RenderFace second = test::list.records[1];

    test::ResetList();
    face =
        test::AddFace(0, VertexAt(-150, -100, 10), VertexAt(130, -100, 10), VertexAt(0, 300, 10));
    RenderFace* other = test::AddFace(0, VertexAt(0, 0, 5), VertexAt(4, 0, 5), VertexAt(0, 2, -3));
    const Vertex v = VertexAt(0, 0, 9);
    while (test::list.count < 65535) {
        test::AddFace(0, v, v, v);
    }
    ClipPolygons(&test::list, &camera_, 7);
    EXPECT_EQ(test::list.count, 65536);
    EXPECT_EQ(std::memcmp(test::list.records[65535].work, second.work, sizeof second.work), 0);
    EXPECT_EQ(face->state, kKept);
    EXPECT_EQ(other->state, kKept); // cut too, without room for its second triangle
    ExpectCorner(other->work[2], 2, 1, 1);
}

// --- the guard band ----------------------------------------------------------------------------

// x in camera space that lands at pixel column sx at depth z, 640 wide, 90 degrees.
float AtColumn(float sx, float z) {
    return (sx / 319.5F - 1.0F) * z;
}

TEST_F(Clip, InsideTheBandFacesStayWhole) {
    const float z = 10.0F;
    const RenderFace* face = test::AddFace(0, VertexAt(AtColumn(-4090.0F, z), 0, z),
                                           VertexAt(AtColumn(4090.0F, z), 0, z), VertexAt(0, 1, z));
    const RenderFace before = *face;
    ClipPolygons(&test::list, &camera_, 7);
    EXPECT_EQ(test::list.count, 1);
    EXPECT_EQ(std::memcmp(&before, face, sizeof before), 0);
}

TEST_F(Clip, BeyondTheBandFacesAreCutThere) {
    const float z = 10.0F;
    const RenderFace* face = test::AddFace(0, VertexAt(AtColumn(8000.0F, z), 0, z),
                                           VertexAt(0, -1, z), VertexAt(0, 1, z));
    ClipPolygons(&test::list, &camera_, 7);
    ASSERT_EQ(test::list.count, 2);
    ProjectPolygons(&test::list, &camera_);
    MapPolygonsToScreen(&test::list, &camera_);
    float most = 0.0F;
    for (int i = 0; i < 2; ++i) {
        for (const FaceCorner& v : test::list.records[i].work) {
            most = std::fmax(most, v.x);
        }
    }
    EXPECT_NEAR(most, 4095.0F, 0.01F);
    EXPECT_EQ(face->state, kKept);
}

TEST_F(Clip, AFaceThatOnlyPassesTheCornerOfTheBandIsRejected) {
    // Beyond the right and the top of the band, no corner on the same outer side of the view volume
    // as all others, and nothing of it inside.
    const float z = 1.0F;
    EXPECT_EQ(StateOf(VertexAt(30, 0, z), VertexAt(0, 30, z), VertexAt(60, 60, z), 0), kRejected);
}

struct Bounds {
    float least, most, nearest;
};

Bounds BoundsOfDrawable() {
    Bounds b = {1e30F, -1e30F, 1e30F};
    for (std::int32_t i = 0; i < test::list.count; ++i) {
        const RenderFace& face = *test::list.pointers[i];
        if (!IsDrawable(face.state)) {
            continue;
        }
        for (const FaceCorner& v : face.work) {
            // Written so that NaN shows.
            if (!(v.x >= b.least && v.y >= b.least)) {
                b.least = std::isnan(v.x) || std::isnan(v.y) ? -1e38F : std::fmin(v.x, v.y);
            }
            b.most = std::fmax(b.most, std::fmax(v.x, v.y));
            b.nearest = std::fmin(b.nearest, v.z);
        }
    }
    return b;
}

TEST_F(Clip, NoScreenCoordinateLeavesTheBand) {
    test::Numbers n{44};
    const float sizes[][2] = {{320, 240}, {640, 480}, {1280, 800}, {512, 384}};
    const float fovs[] = {1.0F, 20.0F, 60.0F, 90.0F, 120.0F, 160.0F, 179.0F};
    std::int32_t drawable = 0;
    for (const auto& size : sizes) {
        for (const float fov : fovs) {
            for (const FloatMode mode : {FloatMode::Nearest, FloatMode::Chop}) {
                SetFloatMode(mode);
                camera_ = test::MakeCamera(size[0], size[1], fov);
                test::ResetList();
                for (int i = 0; i < 4000; ++i) {
                    Vertex v[3];
                    for (Vertex& corner : v) {
                        // Magnitudes from 2^-6 to 2^29.
                        const float x = std::ldexp(n.Signed(), static_cast<int>(n.Below(36)) - 6);
                        const float y = std::ldexp(n.Signed(), static_cast<int>(n.Below(36)) - 6);
                        const float z = std::ldexp(n.Signed(), static_cast<int>(n.Below(36)) - 6);
                        corner = VertexAt(x, y, z);
                    }
                    test::AddFace(FACE_PLASTIC, v[0], v[1], v[2]);
                }
                ClipPolygons(&test::list, &camera_, 0);
                ProjectPolygons(&test::list, &camera_);
                MapPolygonsToScreen(&test::list, &camera_);
                const Bounds b = BoundsOfDrawable();
                ASSERT_GE(b.least, -4096.0F) << size[0] << " " << fov;
                ASSERT_LE(b.most, 4096.0F) << size[0] << " " << fov;
                ASSERT_GE(b.nearest, 1.0F);
                for (std::int32_t i = 0; i < test::list.count; ++i) {
                    drawable += IsDrawable(test::list.records[i].state) ? 1 : 0;
                }
            }
        }
    }
    EXPECT_GT(drawable, 50000);
}

TEST_F(Clip, BrokenCoordinatesAreRejected) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    for (const float bad : {nan, inf, -inf, 2e9F, -3e38F}) {
        for (int axis = 0; axis < 3; ++axis) {
            for (int corner = 0; corner < 3; ++corner) {
                Vertex v[3] = {VertexAt(0, 0, 5), VertexAt(4, 0, 5), VertexAt(0, 2, 5)};
                (axis == 0 ? v[corner].x : axis == 1 ? v[corner].y : v[corner].z) = bad;
                EXPECT_EQ(StateOf(v[0], v[1], v[2], 7), kRejected) << bad << axis << corner;
            }
        }
    }
}

TEST_F(Clip, BrokenCamerasDrawNothingWild) {
    for (const float fov : {0.0F, 180.0F, 360.0F, -90.0F, 1e30F, INFINITY, NAN}) {
        camera_ = test::MakeCamera(640.0F, 480.0F, 90.0F);
        CameraSetFov(&camera_, fov);
        test::ResetList();
        test::AddFace(0, VertexAt(0, 0, 5), VertexAt(4, 0, 5), VertexAt(0, 2, -3));
        test::AddFace(0, VertexAt(0, 0, 5), VertexAt(4e4F, 0, 5), VertexAt(0, 2e4F, 5));
        ClipPolygons(&test::list, &camera_, 7);
        ProjectPolygons(&test::list, &camera_);
        MapPolygonsToScreen(&test::list, &camera_);
        const Bounds b = BoundsOfDrawable();
        EXPECT_GE(b.least, -4096.0F) << fov;
        EXPECT_LE(b.most, 4096.0F) << fov;
    }
}

// --- watertight --------------------------------------------------------------------------------

using Place = std::tuple<float, float, float>;

// Edges of all drawable triangles, each cancelling one that runs the other way.
std::map<std::pair<Place, Place>, int> OpenEdges() {
    std::map<std::pair<Place, Place>, int> edges;
    for (std::int32_t i = 0; i < test::list.count; ++i) {
        const RenderFace& face = test::list.records[i];
        if (!IsDrawable(face.state)) {
            continue;
        }
        for (int c = 0; c < 3; ++c) {
            const FaceCorner& v = face.work[c];
            const FaceCorner& w = face.work[(c + 1) % 3];
            const Place a{v.x, v.y, v.z};
            const Place b{w.x, w.y, w.z};
            if (a == b) {
                continue;
            }
            const auto other = edges.find({b, a});
            if (other == edges.end()) {
                ++edges[{a, b}];
            } else if (--other->second == 0) {
                edges.erase(other);
            }
        }
    }
    return edges;
}

// A rectangle split at an inner point has one outline. After any cut it still has: a gap, an
// overlap or a corner in the middle of a neighbour's edge would leave edges inside.
TEST_F(Clip, ASplitRectangleStaysWatertight) {
    test::Numbers n{5};
    int cut = 0;
    for (int round = 0; round < 3000; ++round) {
        test::ResetList();
        camera_ = test::MakeCamera(640.0F, 480.0F, 60.0F + 60.0F * n.Unit());
        const float size = std::ldexp(1.0F, static_cast<int>(n.Below(14)));
        Vec3 o = {n.Signed() * size, n.Signed() * size, n.Signed() * size, 1.0F};
        Vec3 a = {n.Signed() * size, n.Signed() * size, n.Signed() * size, 1.0F};
        Vec3 b = {n.Signed() * size, n.Signed() * size, n.Signed() * size, 1.0F};
        const auto at = [&](float s, float t) {
            return VertexAt(o.x + a.x * s + b.x * t, o.y + a.y * s + b.y * t,
                            o.z + a.z * s + b.z * t);
        };
        const Vertex corners[4] = {at(0, 0), at(1, 0), at(1, 1), at(0, 1)};
        const Vertex inner = at(0.1F + 0.8F * n.Unit(), 0.1F + 0.8F * n.Unit());
        for (int i = 0; i < 4; ++i) {
            // The shared edges run from either end.
            if (n.Below(2) == 0) {
                test::AddFace(0, inner, corners[i], corners[(i + 1) % 4]);
            } else {
                test::AddFace(0, corners[i], corners[(i + 1) % 4], inner);
            }
        }
        ClipPolygons(&test::list, &camera_, 0);
        cut += test::list.count > 4 ? 1 : 0;

        // Walk the outline: one loop that uses every open edge once.
        const auto edges = OpenEdges();
        std::map<Place, Place> next;
        for (const auto& [edge, count] : edges) {
            ASSERT_EQ(count, 1) << round;
            ASSERT_TRUE(next.emplace(edge.first, edge.second).second) << round;
        }
        if (next.empty()) {
            continue;
        }
        std::size_t steps = 0;
        const Place start = next.begin()->first;
        Place place = start;
        do {
            const auto step = next.find(place);
            ASSERT_NE(step, next.end()) << round;
            place = step->second;
            ++steps;
        } while (place != start && steps <= next.size());
        ASSERT_EQ(steps, next.size()) << round;
    }
    EXPECT_GT(cut, 500);
}

TEST_F(Clip, AnEdgeIsCutAtTheSamePointFromBothSides) {
    const Vertex a = VertexAt(3.3F, -1.7F, 7.1F);
    const Vertex b = VertexAt(-2.9F, 0.3F, -11.3F);
    const Vertex c = VertexAt(5.1F, 4.0F, -6.0F);
    const Vertex d = VertexAt(-4.0F, -3.0F, -6.0F);
    const RenderFace* one = test::AddFace(0, a, b, c);
    const RenderFace* two = test::AddFace(0, b, a, d);
    ClipPolygons(&test::list, &camera_, 0);
    const FaceCorner& p = one->work[1]; // from a to b
    bool found = false;
    for (const FaceCorner& q : two->work) {
        found = found || (p.x == q.x && p.y == q.y && p.z == q.z);
    }
    EXPECT_TRUE(found);
}

} // namespace
