// Corner dots and wires of hand-made face lists.
#include "demo/face_views.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <set>
#include <utility>
#include <vector>

#include "base/float_mode.h"
#include "demo/reset.h"
#include "platform/display.h"
#include "unit/demo/small_canvas.h"

namespace ombrel {
namespace {

using test::Points;

struct Corner {
    float x, y;
};

class FaceViews : public testing::Test, protected test::SmallCanvas {
protected:
    void SetUp() override {
        ResetWorld();
        FaceListClear(list.get());
    }
    RenderFace* Add(Corner a, Corner b, Corner c, std::uint32_t color = 0x0707) {
        RenderFace* const face = list->pointers[list->count++];
        *face = RenderFace{};
        face->state = FACE_LIVE;
        face->litColors[0] = color;
        face->litColors[1] = 0x1111;
        const Corner corners[3] = {a, b, c};
        for (int i = 0; i < 3; ++i) {
            face->work[i].x = corners[i].x;
            face->work[i].y = corners[i].y;
        }
        return face;
    }
    void Dots() { DrawFaceListDots(list.get(), canvas); }
    void Wire() { DrawFaceListWire(list.get(), canvas); }
    static Points Blocks(std::initializer_list<std::pair<int, int>> corners) {
        Points points;
        for (const auto& [x, y] : corners) {
            points.insert({{x, y}, {x + 1, y}, {x, y + 1}, {x + 1, y + 1}});
        }
        return points;
    }
    ScopedFloatMode chop{FloatMode::Chop};
    std::unique_ptr<FaceList> list = std::make_unique<FaceList>();
};

TEST_F(FaceViews, EachCornerIsABlockOfTwoByTwo) {
    Add({3, 4}, {20, 5}, {10.9F, 20.9F});
    Dots();
    EXPECT_EQ(Drawn(), Blocks({{3, 4}, {20, 5}, {10, 20}}));
    EXPECT_EQ(pixels[4 * kRow + 3], 0x0707); // colour word 0, its low 16 bits
}

TEST_F(FaceViews, HighBitsOfTheColorWordAreIgnored) {
    Add({3, 4}, {3, 4}, {3, 4}, 0xFFFF1234);
    Dots();
    EXPECT_EQ(pixels[4 * kRow + 3], 0x1234);
}

TEST_F(FaceViews, RejectedFacesDrawNothingInEitherView) {
    for (const std::uint32_t state : {FACE_LIVE | FACE_BACK, FACE_LIVE | FACE_OUTSIDE,
                                      FACE_LIVE | FACE_BACK | FACE_OUTSIDE, 0U, FACE_LIT}) {
        Add({3, 4}, {20, 5}, {10, 20})->state = state;
    }
    Dots();
    Wire();
    EXPECT_EQ(Drawn(), Points{});
    Add({3, 4}, {3, 4}, {3, 4})->state = FACE_LIVE | FACE_LIT;
    Dots();
    EXPECT_EQ(Drawn(), Blocks({{3, 4}}));
}

TEST_F(FaceViews, NegativeFractionOfAPixelCountsAsColumn0) {
    // -0.4 is column or row 0, and the block begins there; of one that begins at -1 half is seen.
    Add({-0.4F, 4}, {10, -0.4F}, {-1.4F, 12});
    Dots();
    EXPECT_EQ(
        Drawn(),
        (Points{
            {0, 4}, {0, 5}, {0, 12}, {0, 13}, {1, 4}, {1, 5}, {10, 0}, {10, 1}, {11, 0}, {11, 1}}));
}

TEST_F(FaceViews, DotsLeaveTheFramePixelByPixel) {
    Add({kWidth - 1, 4}, {-1, 10}, {8, kHeight - 1});
    Dots();
    EXPECT_EQ(Drawn(), (Points{{kWidth - 1, 4},
                               {kWidth - 1, 5},
                               {0, 10},
                               {0, 11},
                               {8, kHeight - 1},
                               {9, kHeight - 1}}));
}

TEST_F(FaceViews, WireJoinsTheCorners) {
    Add({2, 2}, {6, 2}, {2, 6});
    Wire();
    EXPECT_EQ(Drawn(), (Points{{2, 2},
                               {3, 2},
                               {4, 2},
                               {5, 2},
                               {6, 2},
                               {5, 3},
                               {4, 4},
                               {3, 5},
                               {2, 6},
                               {2, 5},
                               {2, 4},
                               {2, 3}}));
}

TEST_F(FaceViews, WireIsClippedNotRejected) {
    Add({-10, 5}, {50, 5}, {-10, 5});
    Wire();
    Points row;
    for (int x = 0; x < kWidth; ++x) {
        row.insert({x, 5});
    }
    EXPECT_EQ(Drawn(), row);
}

TEST_F(FaceViews, EmptyListDrawsNothing) {
    Dots();
    Wire();
    EXPECT_EQ(Drawn(), Points{});
}

TEST_F(FaceViews, PointersAreFollowedNotRecords) {
    Add({2, 2}, {2, 2}, {2, 2});
    RenderFace other = *list->pointers[0];
    other.work[0].x = other.work[1].x = other.work[2].x = 20;
    list->pointers[0] = &other;
    Dots();
    EXPECT_EQ(Drawn(), Blocks({{20, 2}}));
}

TEST_F(FaceViews, CoordinatesWithoutMeaningAreHarmless) {
    const float huge = 3e38F;
    Add({huge, -huge}, {__builtin_nanf(""), 3}, {-huge, huge});
    Dots();
    Wire();
    EXPECT_EQ(Drawn(), Points{});
}

} // namespace
} // namespace ombrel
