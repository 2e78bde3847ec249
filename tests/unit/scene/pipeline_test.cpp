// From the world to pixels: spheres, back faces, camera space, projection, order.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "base/float_mode.h"
#include "base/hash.h"
#include "scene/light.h"
#include "scene/pipeline.h"
#include "scene_fixture.h"

using namespace ombrel;
using test::VertexAt;

namespace {

class Pipeline : public test::ListAndCamera {
protected:
    // Outside by this mask? The camera is at the origin, so the place is in camera space.
    bool SphereOutside(float x, float y, float z, float radius, std::uint32_t mask) {
        Mesh mesh = {};
        float radii[2] = {1e9F, radius};
        mesh.state = MESH_LIVE | MESH_DRAWABLE;
        mesh.position = {x, y, z, 1.0F};
        mesh.maxRadius = radii;
        mesh.currentCopy = 1;
        const int outside = ObjectCullSphere(&mesh, &camera_, mask);
        EXPECT_EQ(mesh.state, outside != 0 ? MESH_LIVE | MESH_DRAWABLE | MESH_CULLED
                                           : MESH_LIVE | MESH_DRAWABLE);
        return outside != 0;
    }
};

// --- the sphere --------------------------------------------------------------------------------

TEST_F(Pipeline, SphereThatTouchesTheNearDistanceIsKept) {
    EXPECT_FALSE(SphereOutside(0.0F, 0.0F, 1.0F - 5.0F, 5.0F, 4));
    EXPECT_TRUE(SphereOutside(0.0F, 0.0F, -4.001F, 5.0F, 4));
}

TEST_F(Pipeline, SphereThatTouchesTheFarDistanceIsKept) {
    EXPECT_FALSE(SphereOutside(0.0F, 0.0F, 15005.0F, 5.0F, 4));
    EXPECT_TRUE(SphereOutside(0.0F, 0.0F, 15005.1F, 5.0F, 4));
}

TEST_F(Pipeline, SphereAtTheSides) {
    EXPECT_FALSE(SphereOutside(105.0F, 0.0F, 100.0F, 5.0F, 1));
    EXPECT_TRUE(SphereOutside(105.01F, 0.0F, 100.0F, 5.0F, 1));
    EXPECT_FALSE(SphereOutside(-105.0F, 0.0F, 100.0F, 5.0F, 1));
    EXPECT_TRUE(SphereOutside(-105.01F, 0.0F, 100.0F, 5.0F, 1));
    // Top and bottom: limit 75 at 4:3.
    EXPECT_FALSE(SphereOutside(0.0F, 79.9F, 100.0F, 5.0F, 2));
    EXPECT_TRUE(SphereOutside(0.0F, 80.1F, 100.0F, 5.0F, 2));
    EXPECT_TRUE(SphereOutside(0.0F, -80.1F, 100.0F, 5.0F, 2));
}

TEST_F(Pipeline, SphereIsTestedByTheBitsOfTheMaskOnly) {
    EXPECT_FALSE(SphereOutside(1e6F, 1e6F, 1e6F, 1.0F, 0));
    EXPECT_FALSE(SphereOutside(1e6F, 0.0F, 100.0F, 1.0F, 2 | 4));
    EXPECT_FALSE(SphereOutside(0.0F, 1e6F, 100.0F, 1.0F, 1 | 4));
    EXPECT_FALSE(SphereOutside(0.0F, 0.0F, 1e6F, 1.0F, 1 | 2));
    EXPECT_TRUE(SphereOutside(1e6F, 0.0F, 100.0F, 1.0F, 7));
}

TEST_F(Pipeline, SphereWithoutRadiusArraysHasRadiusZero) {
    Mesh mesh = {};
    mesh.position = {0.0F, 0.0F, 0.999F, 1.0F};
    EXPECT_EQ(ObjectCullSphere(&mesh, &camera_, 7), 1);
    mesh = Mesh{};
    mesh.position = {0.0F, 0.0F, 1.0F, 1.0F};
    EXPECT_EQ(ObjectCullSphere(&mesh, &camera_, 7), 0);
    mesh.position = {1.001F, 0.0F, 1.0F, 1.0F};
    EXPECT_EQ(ObjectCullSphere(&mesh, &camera_, 7), 1);
}

TEST_F(Pipeline, SphereIsSeenThroughTheView) {
    camera_.position = {0.0F, 0.0F, 100.0F, 1.0F};
    camera_.angles = {0.0F, 180.0F, 0.0F, 1.0F};
    CameraBuildView(&camera_, 4);
    EXPECT_FALSE(SphereOutside(0.0F, 0.0F, 50.0F, 1.0F, 7));
    EXPECT_TRUE(SphereOutside(0.0F, 0.0F, 150.0F, 1.0F, 7));
}

TEST_F(Pipeline, SphereTestNeverClearsTheMark) {
    Mesh mesh = {};
    mesh.state = MESH_CULLED;
    mesh.position = {0.0F, 0.0F, 10.0F, 1.0F};
    EXPECT_EQ(ObjectCullSphere(&mesh, &camera_, 7), 0);
    EXPECT_EQ(mesh.state, MESH_CULLED);
}

TEST_F(Pipeline, R34_SphereIsMeasuredAlongXAndNotSquareToTheSide) {
    // 7 beside the limit along x, but only 7 / sqrt 2 = 4.95 from the side plane: radius 6 reaches
    // in.
    EXPECT_TRUE(SphereOutside(107.0F, 0.0F, 100.0F, 6.0F, 1));
}

TEST_F(Pipeline, R37_ALargerFieldOfViewMagnifies) {
    camera_ = test::MakeCamera(640.0F, 480.0F, 120.0F); // t = 1.732: side limit 57.7 at 100
    EXPECT_TRUE(SphereOutside(58.0F, 0.0F, 100.0F, 0.0F, 1));
    EXPECT_FALSE(SphereOutside(57.0F, 0.0F, 100.0F, 0.0F, 1));
    const RenderFace* face =
        test::AddFace(0, VertexAt(57.735F, 0, 100), VertexAt(0, 0, 100), VertexAt(0, 1, 100));
    ProjectPolygons(&test::list, &camera_);
    EXPECT_NEAR(face->work[0].x, 1.0F, 1e-5F); // the edge of the picture
}

// --- back faces --------------------------------------------------------------------------------

TEST_F(Pipeline, TheFrontIsWhereTheCornersRunClockwise) {
    RenderFace* front =
        test::AddFace(0, VertexAt(0, 0, 10), VertexAt(0, 1, 10), VertexAt(1, 0, 10));
    RenderFace* back = test::AddFace(0, VertexAt(0, 0, 10), VertexAt(1, 0, 10), VertexAt(0, 1, 10));
    CullBackFaces(&test::list, &camera_);
    EXPECT_EQ(front->state, FACE_LIVE);
    EXPECT_EQ(back->state, FACE_LIVE | FACE_BACK);
}

TEST_F(Pipeline, TheEyeDecidesNotTheDirectionOfSight) {
    RenderFace* face = test::AddFace(0, VertexAt(0, 0, 10), VertexAt(1, 0, 10), VertexAt(0, 1, 10));
    camera_.position = {0.0F, 0.0F, 20.0F, 1.0F};
    CullBackFaces(&test::list, &camera_);
    EXPECT_EQ(face->state, FACE_LIVE);
}

TEST_F(Pipeline, EdgeOnAndCollinearFacesAreRejectedUnlessTwoSided) {
    // Edge-on: the eye lies in the face's plane.
    RenderFace* edgeOn =
        test::AddFace(0, VertexAt(0, 0, 10), VertexAt(1, 0, 10), VertexAt(0, 0, 20));
    RenderFace* line = test::AddFace(0, VertexAt(0, 0, 10), VertexAt(1, 1, 11), VertexAt(2, 2, 12));
    RenderFace* twoSided =
        test::AddFace(FACE_TWO_SIDED, VertexAt(0, 0, 10), VertexAt(1, 1, 11), VertexAt(2, 2, 12));
    RenderFace* turned = test::AddFace(FACE_TWO_SIDED | FACE_MATTE, VertexAt(0, 0, 10),
                                       VertexAt(1, 0, 10), VertexAt(0, 1, 10));
    CullBackFaces(&test::list, &camera_);
    EXPECT_EQ(edgeOn->state, FACE_LIVE | FACE_BACK);
    EXPECT_EQ(line->state, FACE_LIVE | FACE_BACK);
    EXPECT_EQ(twoSided->state, FACE_LIVE);
    EXPECT_EQ(turned->state, FACE_LIVE);
}

// --- camera space ------------------------------------------------------------------------------

TEST_F(Pipeline, CornersMoveToCameraSpace) {
    camera_.position = {1.0F, 2.0F, 3.0F, 1.0F};
    camera_.angles = {0.0F, 90.0F, 0.0F, 1.0F};
    CameraBuildView(&camera_, 4);
    RenderFace* face = test::AddFace(0, VertexAt(11, 2, 3), VertexAt(1, 7, 3), VertexAt(1, 2, 0));
    TransformPolygonsToCamera(&test::list, &camera_);
    EXPECT_NEAR(face->work[0].z, 10.0F, 1e-4F);
    EXPECT_NEAR(face->work[0].x, 0.0F, 1e-4F);
    EXPECT_NEAR(face->work[1].y, 5.0F, 1e-4F);
    EXPECT_NEAR(face->work[2].x, 3.0F, 1e-4F);
}

// --- projection --------------------------------------------------------------------------------

TEST_F(Pipeline, ProjectsAndMapsTheWorkedExamples) {
    RenderFace* face = test::AddFace(0, VertexAt(1, 0, 2), VertexAt(0, 1, 2), VertexAt(0, 0, 5));
    ProjectPolygons(&test::list, &camera_);
    EXPECT_EQ(face->work[0].x, 0.5F);
    EXPECT_EQ(face->work[0].z, 2.0F);
    EXPECT_NEAR(face->work[1].y, 0.6667F, 1e-4F);
    MapPolygonsToScreen(&test::list, &camera_);
    EXPECT_EQ(face->work[0].x, 479.25F);
    EXPECT_EQ(face->work[0].y, 239.5F);
    EXPECT_NEAR(face->work[1].y, 79.83F, 0.01F);
    EXPECT_EQ(face->work[2].x, 319.5F);
    EXPECT_EQ(face->work[2].z, 5.0F);
}

TEST_F(Pipeline, TheSquaresEdgesAreTheFirstAndLastPixels) {
    for (const float width : {320.0F, 640.0F, 1280.0F}) {
        camera_ = test::MakeCamera(width, width * 0.75F, 90.0F);
        test::ResetList();
        RenderFace* face =
            test::AddFace(0, VertexAt(-1, 1, 1), VertexAt(1, -1, 1), VertexAt(0, 0, 1));
        MapPolygonsToScreen(&test::list, &camera_);
        EXPECT_EQ(face->work[0].x, 0.0F);
        EXPECT_EQ(face->work[0].y, 0.0F);
        EXPECT_EQ(face->work[1].x, width - 1.0F);
        EXPECT_EQ(face->work[1].y, width * 0.75F - 1.0F);
    }
}

TEST_F(Pipeline, RejectedFacesAreTouchedByNoStep) {
    for (const std::uint32_t state :
         {0U, FACE_LIT, FACE_LIVE | FACE_OUTSIDE, FACE_LIVE | FACE_BACK}) {
        test::ResetList();
        // It would be cut, and its front is turned away.
        RenderFace* face =
            test::AddFace(FACE_MATTE, VertexAt(0, 0, -5), VertexAt(5, 0, 9), VertexAt(0, 5, 9));
        face->state = state;
        const RenderFace before = *face;
        const Light light = {};
        camera_.position = {1.0F, 2.0F, 3.0F, 1.0F};
        CameraBuildView(&camera_, 4);
        CullBackFaces(&test::list, &camera_);
        LightFaces(&test::list, &camera_, {&light, 1}, PackRgb565);
        TransformPolygonsToCamera(&test::list, &camera_);
        ClipPolygons(&test::list, &camera_, 7);
        ProjectPolygons(&test::list, &camera_);
        MapPolygonsToScreen(&test::list, &camera_);
        EXPECT_EQ(std::memcmp(&before, face, sizeof before), 0) << state;
        EXPECT_EQ(test::list.count, 1);
    }
}

// --- order -------------------------------------------------------------------------------------

class Sorting : public Pipeline {
protected:
    RenderFace* AtDepths(float z0, float z1, float z2) {
        return test::AddFace(0, VertexAt(0, 0, z0), VertexAt(0, 0, z1), VertexAt(0, 0, z2));
    }
    std::vector<int> OrderAfter(std::int32_t mode) {
        SortFaces(&test::list, mode);
        std::vector<int> order;
        for (std::int32_t i = 0; i < test::list.count; ++i) {
            order.push_back(static_cast<int>(test::list.pointers[i] - test::list.records));
        }
        return order;
    }
    using Compare = int (*)(const void*, const void*);
    static int Compared(Compare compare, const RenderFace* a, const RenderFace* b) {
        return compare(&a, &b);
    }
};

TEST_F(Sorting, ThreeKeysFarthestFirst) {
    AtDepths(10, 10, 10); // average 10, nearest 10, farthest 10
    AtDepths(1, 20, 21);  // average 14, nearest 1, farthest 21
    AtDepths(5, 6, 30);   // average 13.7, nearest 5, farthest 30
    EXPECT_EQ(OrderAfter(0), (std::vector<int>{1, 2, 0}));
    EXPECT_EQ(OrderAfter(1), (std::vector<int>{0, 2, 1}));
    EXPECT_EQ(OrderAfter(2), (std::vector<int>{2, 1, 0}));
}

TEST_F(Sorting, TheLongFaceIsDrawnLateByItsNearestAndEarlyByItsFarthest) {
    RenderFace* far = AtDepths(2, 100, 100);
    AtDepths(50, 50, 50);
    EXPECT_EQ(OrderAfter(1), (std::vector<int>{1, 0}));
    EXPECT_EQ(OrderAfter(2), (std::vector<int>{0, 1}));
    EXPECT_EQ(far->work[0].z, 2.0F);
}

TEST_F(Sorting, AnyOtherModeLeavesTheOrder) {
    AtDepths(1, 1, 1);
    AtDepths(3, 3, 3);
    AtDepths(2, 2, 2);
    for (const std::int32_t mode : {3, -1, 100}) {
        EXPECT_EQ(OrderAfter(mode), (std::vector<int>{0, 1, 2}));
    }
}

TEST_F(Sorting, ZeroAndOneFaceAreLeftAlone) {
    EXPECT_EQ(OrderAfter(0), (std::vector<int>{}));
    AtDepths(1, 1, 1);
    EXPECT_EQ(OrderAfter(0), (std::vector<int>{0}));
}

TEST_F(Sorting, ComparatorsReturnMinusOneOneAndZero) {
    const RenderFace* a = AtDepths(1, 20, 21);
    const RenderFace* b = AtDepths(5, 6, 30);
    EXPECT_EQ(Compared(CompareFaceAverageDepth, a, b), -1);
    EXPECT_EQ(Compared(CompareFaceAverageDepth, b, a), 1);
    EXPECT_EQ(Compared(CompareFaceNearestDepth, a, b), 1);
    EXPECT_EQ(Compared(CompareFaceNearestDepth, b, a), -1);
    EXPECT_EQ(Compared(CompareFaceFarthestDepth, a, b), 1);
    EXPECT_EQ(Compared(CompareFaceFarthestDepth, b, a), -1);
}

TEST_F(Sorting, R36_EqualKeysCompareAsEqual) {
    const RenderFace* a = AtDepths(1, 20, 21);
    const RenderFace* b = AtDepths(21, 1, 20);
    for (const Compare compare :
         {CompareFaceAverageDepth, CompareFaceNearestDepth, CompareFaceFarthestDepth}) {
        EXPECT_EQ(Compared(compare, a, b), 0);
        EXPECT_EQ(Compared(compare, a, a), 0);
    }
}

TEST_F(Sorting, TheAverageIsTheSumTimesAThirdCutShort) {
    // (3 + 0 + 0) * 0.33333 = 0.99999, below the 1.0 of a true third, equal to no other key.
    const RenderFace* a = AtDepths(3, 0, 0);
    const RenderFace* b = AtDepths(1.00001F, 1.00001F, 1.00001F);
    EXPECT_EQ(Compared(CompareFaceAverageDepth, b, a), -1);
    // The sum is formed first: 1e8 + 1 + -1e8 loses the 1.
    const RenderFace* c = AtDepths(1e8F, 1.0F, -1e8F);
    const RenderFace* d = AtDepths(0, 0, 0);
    EXPECT_EQ(Compared(CompareFaceAverageDepth, c, d), 0);
}

TEST_F(Sorting, TheAverageKeepsSumsApartThatTrueThirdsMakeEqual) {
    // Above 1.5 the result of a division by 3 has coarser steps than the product with 0.33333 has.
    const RenderFace* nearest = AtDepths(1.0F, 0.5F, 0.0F);
    const RenderFace* middle = AtDepths(0x1.000002p0F, 0.5F, 0.0F);
    const RenderFace* farthest = AtDepths(0x1.000004p0F, 0.5F, 0.0F);
    for (const FloatMode mode : {FloatMode::Chop, FloatMode::Nearest}) {
        const ScopedFloatMode scoped(mode);
        EXPECT_EQ(Compared(CompareFaceAverageDepth, middle, nearest), -1);
        EXPECT_EQ(Compared(CompareFaceAverageDepth, farthest, middle), -1);
    }
}

TEST_F(Sorting, OnlyPointersMove) {
    AtDepths(1, 1, 1);
    AtDepths(2, 2, 2);
    const RenderFace first = test::list.records[0];
    OrderAfter(0);
    EXPECT_EQ(test::list.pointers[0], &test::list.records[1]);
    EXPECT_EQ(std::memcmp(&first, &test::list.records[0], sizeof first), 0);
}

// Depths of many shapes; the order must be descending and a permutation.
void FillDepths(int shape, std::int32_t count) {
    test::Numbers numbers{static_cast<std::uint64_t>(shape)};
    test::ResetList();
    for (std::int32_t i = 0; i < count; ++i) {
        float z = 0.0F;
        switch (shape) {
        case 0:
            z = numbers.Unit() * 15000.0F;
            break;
        case 1:
            z = static_cast<float>(i);
            break;
        case 2:
            z = static_cast<float>(count - i);
            break;
        case 3:
            z = 7.0F;
            break;
        case 4:
            z = static_cast<float>(numbers.Below(3));
            break;
        case 5:
            z = static_cast<float>(i < count / 2 ? i : count - i);
            break; // organ pipes
        default:
            z = static_cast<float>(i % 100);
            break;
        }
        const Vertex v = VertexAt(0, 0, z);
        test::AddFace(0, v, v, v);
    }
}

TEST_F(Sorting, EveryShapeOfDepthsEndsInDescendingOrder) {
    for (int shape = 0; shape < 7; ++shape) {
        for (const std::int32_t count : {2, 3, 12, 13, 14, 100, 4096, 65536}) {
            FillDepths(shape, count);
            SortFaces(&test::list, 1);
            std::vector<const RenderFace*> seen;
            for (std::int32_t i = 0; i < count; ++i) {
                if (i > 0) {
                    ASSERT_GE(test::list.pointers[i - 1]->work[0].z,
                              test::list.pointers[i]->work[0].z)
                        << shape << " " << count;
                }
                seen.push_back(test::list.pointers[i]);
            }
            std::sort(seen.begin(), seen.end());
            for (std::int32_t i = 0; i < count; ++i) {
                ASSERT_EQ(seen[static_cast<std::size_t>(i)], &test::list.records[i]);
            }
        }
    }
}

TEST_F(Sorting, NanDepthsNeitherCrashNorLoseFaces) {
    FillDepths(0, 5000);
    test::Numbers numbers{3};
    for (int i = 0; i < 1000; ++i) {
        test::list.records[numbers.Below(5000)].work[1].z = std::numeric_limits<float>::quiet_NaN();
    }
    for (const std::int32_t mode : {0, 1, 2}) {
        std::vector<int> order = OrderAfter(mode);
        std::sort(order.begin(), order.end());
        for (int i = 0; i < 5000; ++i) {
            ASSERT_EQ(order[static_cast<std::size_t>(i)], i);
        }
    }
}

TEST_F(Sorting, R36_TheOrderOfEqualDepthsIsTheSameOnEverySystem) {
    FillDepths(4, 20000);
    std::uint64_t hash = kHashStart;
    for (const int index : OrderAfter(0)) {
        hash = HashBytes(hash, &index, sizeof index);
    }
    EXPECT_EQ(hash, 2700455176807062769ULL);
    // And it is not the order of addition: nobody has put a second key in.
    bool stable = true;
    for (std::int32_t i = 1; i < test::list.count; ++i) {
        const RenderFace* const* p = &test::list.pointers[i];
        stable = stable && !(p[-1]->work[0].z == p[0]->work[0].z && p[-1] > p[0]);
    }
    EXPECT_FALSE(stable);
}

// --- all of it ---------------------------------------------------------------------------------

void PutFace(test::Numbers* n, std::uint32_t flags) {
    const Vec3 center = {n->Signed() * 2000.0F, n->Signed() * 1000.0F, n->Signed() * 2000.0F, 1.0F};
    Vertex v[3];
    for (Vertex& corner : v) {
        corner = VertexAt(0.0F, 0.0F, 0.0F);
        corner.x = center.x + n->Signed() * 500.0F;
        corner.y = center.y + n->Signed() * 500.0F;
        corner.z = center.z + n->Signed() * 500.0F;
        corner.nx = n->Signed();
        corner.ny = n->Signed();
        corner.nz = n->Signed();
        corner.u = n->Unit() * 255.0F;
        corner.v = n->Unit() * 255.0F;
        corner.vflags |= VERTEX_HAS_NORMAL;
    }
    RenderFace* face = test::AddFace(flags, v[0], v[1], v[2]);
    face->color = n->Bits() & 0xFFFF;
    face->size = 1000.0F + n->Unit() * 100000.0F;
}

std::uint64_t HashList(std::uint64_t hash) {
    for (std::int32_t i = 0; i < test::list.count; ++i) {
        const RenderFace& face = *test::list.pointers[i];
        const auto index = static_cast<std::uint32_t>(test::list.pointers[i] - test::list.records);
        hash = HashBytes(hash, &index, sizeof index);
        hash = HashBytes(hash, &face.state, sizeof face.state);
        hash = HashBytes(hash, face.litColors, sizeof face.litColors);
        hash = HashBytes(hash, face.work, sizeof face.work);
    }
    return hash;
}

TEST_F(Pipeline, SameBitsEverywhere) {
    const std::uint32_t kinds[5] = {LIGHT_AMBIENT, LIGHT_DIRECTIONAL, LIGHT_POINT, LIGHT_ATTENUATED,
                                    LIGHT_SPOT};
    test::Numbers n{2026};
    Light lights[5] = {};
    for (int i = 0; i < 5; ++i) {
        Light values = {};
        values.enabled = 1;
        values.kind = kinds[i];
        values.ambientColor = values.lightColor = n.Bits();
        values.sourcePosition = {n.Signed() * 1000.0F, n.Signed() * 1000.0F, n.Signed() * 1000.0F,
                                 1.0F};
        values.sourceDirection = {n.Signed(), n.Signed(), n.Signed(), 1.0F};
        values.c0 = 1.0F;
        values.c1 = 0.001F;
        values.exponent = 3.0F;
        SetLight(&lights[i], values);
    }
    const std::uint32_t classes[4] = {FACE_CONSTANT, FACE_MATTE, FACE_PLASTIC,
                                      FACE_PLASTIC | FACE_TWO_SIDED};
    std::uint64_t hash = kHashStart;
    std::int32_t added = 0;
    for (int frame = 0; frame < 12; ++frame) {
        test::ResetList();
        for (int i = 0; i < 1500; ++i) {
            PutFace(&n, classes[n.Below(4)]);
        }
        CameraSetFov(&camera_, 70.0F + static_cast<float>(frame) * 5.0F);
        camera_.position = {n.Signed() * 100.0F, n.Signed() * 100.0F, n.Signed() * 100.0F, 1.0F};
        camera_.angles = {n.Signed() * 400.0F, n.Signed() * 400.0F, n.Signed() * 400.0F, 1.0F};
        CameraBuildView(&camera_, frame % 6);
        CullBackFaces(&test::list, &camera_);
        LightsTransform(lights, 5, nullptr, LightMove::Copy);
        LightFaces(&test::list, &camera_, {lights, 5}, PackRgb565);
        TransformPolygonsToCamera(&test::list, &camera_);
        ClipPolygons(&test::list, &camera_, 7);
        added += test::list.count - 1500;
        SortFaces(&test::list, frame % 3);
        ProjectPolygons(&test::list, &camera_);
        MapPolygonsToScreen(&test::list, &camera_);
        hash = HashList(hash);
    }
    EXPECT_GT(added, 100); // enough were cut
    // Measured once and stored: any compiler, level and system has to give this.
    EXPECT_EQ(hash, 13081131239320232633ULL);
}

} // namespace
