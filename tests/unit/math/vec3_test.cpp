// Vectors and matrices, each against numbers worked out by hand.
#include <cmath>
#include <cstring>

#include <gtest/gtest.h>

#include "base/float_mode.h"
#include "math/vec3.h"

using namespace ombrel;

namespace {

void ExpectVec(const Vec3& v, float x, float y, float z, float w) {
    EXPECT_EQ(v.x, x);
    EXPECT_EQ(v.y, y);
    EXPECT_EQ(v.z, z);
    EXPECT_EQ(v.w, w);
}

bool SameBits(const Matrix4& a, const Matrix4& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// Every element equal as a number: 0 and -0 are the same.
void ExpectMatrix(const Matrix4& m, const float (&want)[16]) {
    for (int i = 0; i < 16; ++i) {
        EXPECT_EQ(m.m[i / 4][i % 4], want[i]) << "element " << i;
    }
}

class Rotation : public testing::Test {
protected:
    void SetUp() override { InitTrigTables(); }
    void TearDown() override { ResetTrigTables(); }
};

TEST(Vec3, SubtractsTheFirstFromTheSecondAndSetsW) {
    const Vec3 a = {1.0F, 2.0F, 3.0F, 7.0F};
    const Vec3 b = {10.0F, 20.0F, 40.0F, 9.0F};
    Vec3 out = {};
    Vec3Sub(&a, &b, &out);
    ExpectVec(out, 9.0F, 18.0F, 37.0F, 1.0F);
    Vec3Add(&a, &b, &out);
    ExpectVec(out, 11.0F, 22.0F, 43.0F, 1.0F);
}

TEST(Vec3, DotAndCrossNeverReadW) {
    const Vec3 a = {1.0F, 2.0F, 3.0F, NAN};
    const Vec3 b = {4.0F, -5.0F, 6.0F, NAN};
    EXPECT_EQ(Vec3Dot(&a, &b), 12.0F);
    Vec3 out = {};
    Vec3Cross(&a, &b, &out);
    ExpectVec(out, 27.0F, 6.0F, -13.0F, 1.0F);
    const Vec3 x = {1.0F, 0.0F, 0.0F, 0.0F};
    const Vec3 y = {0.0F, 1.0F, 0.0F, 0.0F};
    Vec3Cross(&x, &y, &out);
    ExpectVec(out, 0.0F, 0.0F, 1.0F, 1.0F);
}

TEST(Vec3, LengthIsTheRoot) {
    const Vec3 v = {2.0F, -3.0F, 6.0F, 100.0F};
    EXPECT_EQ(Vec3Length(&v), 7.0F);
}

// A dot product that a compiler cannot work out before the mode is set.
float DotInMode(FloatMode mode) {
    volatile float small = 0x1p-24F;
    const ScopedFloatMode scope(mode);
    const Vec3 a = {1.0F, small, small, 1.0F};
    const Vec3 b = {1.0F, 1.75F, 1.75F, 1.0F};
    return Vec3Dot(&a, &b);
}

TEST(Vec3, SumsAreRoundedInTheModeThatIsSet) {
    EXPECT_EQ(DotInMode(FloatMode::Nearest), 0x1.000004p+0F); // each sum rounds up by itself
    EXPECT_EQ(DotInMode(FloatMode::Chop), 1.0F);
}

TEST(Vec3, FastLengthOfThreeFourZeroIsFive) {
    const Vec3 v = {3.0F, 4.0F, 0.0F, 1.0F};
    EXPECT_EQ(Vec3FastLength(&v), 5.0F);
}

TEST(Vec3, FastLengthIsTheSameInAnyOrderAndSign) {
    // 12 * 1024 + (4 * 1024 >> 5) * 11 + (3 * 1024 >> 2) = 12288 + 1408 + 768 = 14464; >> 10 = 14.
    const float c[3] = {12.0F, -4.0F, 3.0F};
    const int orders[6][3] = {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}};
    for (const auto& o : orders) {
        const Vec3 v = {c[o[0]], c[o[1]], c[o[2]], 1.0F};
        EXPECT_EQ(Vec3FastLength(&v), 14.0F);
        const Vec3 minus = {-c[o[0]], -c[o[1]], -c[o[2]], 1.0F};
        EXPECT_EQ(Vec3FastLength(&minus), 14.0F);
    }
}

TEST(Vec3, FastLengthIsWholeAndZeroBelowOne) {
    const Vec3 below = {0.999F, 0.0F, 0.0F, 1.0F};
    EXPECT_EQ(Vec3FastLength(&below), 0.0F);
    const Vec3 zero = {0.0F, 0.0F, 0.0F, 1.0F};
    EXPECT_EQ(Vec3FastLength(&zero), 0.0F);
    const Vec3 one = {1.0F, 0.0F, 0.0F, 1.0F};
    EXPECT_EQ(Vec3FastLength(&one), 1.0F);
    const Vec3 almostTwo = {1.9990234F, 0.0F, 0.0F, 1.0F};
    EXPECT_EQ(Vec3FastLength(&almostTwo), 1.0F);
}

TEST(Vec3, FastLengthCutsIn1024ths) {
    // 31 / 1024 >> 5 is 0: the middle size adds nothing before 32 / 1024.
    const Vec3 v = {0.99F, 31.9F / 1024.0F, 0.0F, 1.0F};
    EXPECT_EQ(Vec3FastLength(&v), 0.0F);
    // (1013 + 11 * 1) >> 10 = 1
    const Vec3 w = {1013.0F / 1024.0F, 32.0F / 1024.0F, 0.0F, 1.0F};
    EXPECT_EQ(Vec3FastLength(&w), 1.0F);
}

TEST(Vec3, FastLengthOutOfRangeWrapsAndIsDefined) {
    // The largest that fits, alone.
    const Vec3 large = {2097151.0F, 0.0F, 0.0F, 1.0F};
    EXPECT_EQ(Vec3FastLength(&large), 2097151.0F);
    // Three of 2,000,000: 2048000000 + 64000000 * 11 + 512000000 = 3264000000 wraps to -1030967296.
    const Vec3 sum = {2e6F, 2e6F, 2e6F, 1.0F};
    EXPECT_EQ(Vec3FastLength(&sum), static_cast<float>(-1030967296 >> 10));
    // An overflowing size counts as the smallest integer, and so sorts last: 0, 0, -2^31 >> 2.
    const Vec3 over = {1e30F, 0.0F, 0.0F, 1.0F};
    EXPECT_EQ(Vec3FastLength(&over), -524288.0F);
    const Vec3 nan = {NAN, 0.0F, 0.0F, 1.0F};
    EXPECT_EQ(Vec3FastLength(&nan), -524288.0F);
}

TEST(Vec3, NormalizeGivesLengthOneAndW) {
    Vec3 v = {0.0F, -8.0F, 0.0F, 5.0F};
    Vec3Normalize(&v);
    ExpectVec(v, 0.0F, -1.0F, 0.0F, 1.0F);
}

TEST(Vec3, NormalizeLeavesShortVectorsUntouched) {
    Vec3 zero = {0.0F, 0.0F, 0.0F, 5.0F};
    Vec3Normalize(&zero);
    ExpectVec(zero, 0.0F, 0.0F, 0.0F, 5.0F);
    Vec3 tiny = {0.000009F, 0.0F, 0.0F, 5.0F};
    Vec3Normalize(&tiny);
    ExpectVec(tiny, 0.000009F, 0.0F, 0.0F, 5.0F);
    // The limit itself is long enough.
    Vec3 limit = {0.0F, 0.0F, 0x1p-16F, 5.0F}; // 0.0000152...
    Vec3Normalize(&limit);
    ExpectVec(limit, 0.0F, 0.0F, 1.0F, 1.0F);
}

TEST(Vec3, NormalizeToOfAShortVectorIsZeroAndLeavesTheInput) {
    const Vec3 tiny = {0.0F, 0.000009F, 0.0F, 5.0F};
    float out[3] = {9.0F, 9.0F, 9.0F};
    Vec3NormalizeTo(&tiny, out);
    EXPECT_EQ(out[0], 0.0F);
    EXPECT_EQ(out[1], 0.0F);
    EXPECT_EQ(out[2], 0.0F);
    const Vec3 v = {0.0F, 0.0F, 4.0F, 5.0F};
    Vec3NormalizeTo(&v, out);
    EXPECT_EQ(out[2], 1.0F);
    EXPECT_EQ(v.z, 4.0F);
}

TEST(Vec3, RayTakesItsDirectionAsItIsOrNormalized) {
    const Vec3 origin = {1.0F, 2.0F, 3.0F, 4.0F};
    const Vec3 direction = {0.0F, 2.0F, 0.0F, 1.0F};
    Ray ray = {};
    RayInit(&ray, &origin, &direction, 0);
    EXPECT_EQ(ray.origin[0], 1.0F);
    EXPECT_EQ(ray.origin[1], 2.0F);
    EXPECT_EQ(ray.origin[2], 3.0F);
    EXPECT_EQ(ray.direction[1], 2.0F);
    RayInit(&ray, &origin, &direction, 1);
    EXPECT_EQ(ray.direction[0], 0.0F);
    EXPECT_EQ(ray.direction[1], 1.0F);
    EXPECT_EQ(ray.direction[2], 0.0F);
}

TEST(Matrix, SetAndMultiplyRowByColumn) {
    const float a[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    const float b[16] = {2, 0, 1, 0, 0, 3, 0, 1, 1, 0, 1, 0, 0, 2, 0, 1};
    Matrix4 ma;
    Matrix4 mb;
    Matrix4 out;
    Matrix4Set(&ma, a);
    Matrix4Set(&mb, b);
    EXPECT_EQ(ma.m[1][0], 5.0F);
    Matrix4Multiply(&ma, &mb, &out);
    ExpectMatrix(out, {5, 14, 4, 6, 17, 34, 12, 14, 29, 54, 20, 22, 41, 74, 28, 30});
    Matrix4Multiply(&ma, &IdentityMatrix4, &out);
    EXPECT_TRUE(SameBits(out, ma));
}

TEST(Matrix, TransformsAllFourComponentsOfARowVector) {
    const float values[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    Matrix4 m;
    Matrix4Set(&m, values);
    const Vec3 v = {1.0F, 10.0F, 100.0F, 1000.0F};
    Vec3 out = {};
    Vec3TransformMatrix4(&v, &m, &out);
    ExpectVec(out, 13951.0F, 15062.0F, 16173.0F, 17284.0F);
}

TEST_F(Rotation, ElementaryMatricesRowByRow) {
    const float s = SinTableDeg[30];
    const float c = CosTableDeg[30];
    Matrix4 m;
    Matrix4RotationXYZ(30.0F, 0.0F, 0.0F, &m);
    ExpectMatrix(m, {1, 0, 0, 0, 0, c, s, 0, 0, -s, c, 0, 0, 0, 0, 1});
    Matrix4RotationXYZ(0.0F, 30.0F, 0.0F, &m);
    ExpectMatrix(m, {c, 0, -s, 0, 0, 1, 0, 0, s, 0, c, 0, 0, 0, 0, 1});
    Matrix4RotationXYZ(0.0F, 0.0F, 30.0F, &m);
    ExpectMatrix(m, {c, s, 0, 0, -s, c, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1});
}

TEST_F(Rotation, QuarterTurnsOfTheAxes) {
    const auto turned = [](float ax, float ay, float az, Vec3 v) {
        Matrix4 m;
        Matrix4RotationXYZ(ax, ay, az, &m);
        Vec3 out = {};
        Vec3TransformMatrix4(&v, &m, &out);
        return out;
    };
    const Vec3 aboutX = turned(90.0F, 0.0F, 0.0F, {0.0F, 1.0F, 0.0F, 1.0F});
    EXPECT_NEAR(aboutX.z, 1.0F, 1e-6F);
    const Vec3 aboutY = turned(0.0F, 90.0F, 0.0F, {0.0F, 0.0F, 1.0F, 1.0F});
    EXPECT_NEAR(aboutY.x, 1.0F, 1e-6F);
    const Vec3 aboutZ = turned(0.0F, 0.0F, 90.0F, {1.0F, 0.0F, 0.0F, 1.0F});
    EXPECT_NEAR(aboutZ.y, 1.0F, 1e-6F);
    // X first: y goes to z, which the turn about Y takes to x, which the one about Z takes to y.
    const Vec3 all = turned(90.0F, 90.0F, 90.0F, {0.0F, 1.0F, 0.0F, 1.0F});
    EXPECT_NEAR(all.y, 1.0F, 1e-6F);
}

TEST_F(Rotation, ProductIsXThenYThenZ) {
    Matrix4 x;
    Matrix4 y;
    Matrix4 z;
    Matrix4 xy;
    Matrix4 xyz;
    Matrix4 got;
    Matrix4RotationXYZ(10.0F, 0.0F, 0.0F, &x);
    Matrix4RotationXYZ(0.0F, 20.0F, 0.0F, &y);
    Matrix4RotationXYZ(0.0F, 0.0F, 30.0F, &z);
    Matrix4Multiply(&x, &y, &xy);
    Matrix4Multiply(&xy, &z, &xyz);
    Matrix4RotationXYZ(10.0F, 20.0F, 30.0F, &got);
    EXPECT_TRUE(SameBits(got, xyz));
    Matrix4RotationXYZ(10.0F, 20.0F, 0.0F, &got);
    EXPECT_TRUE(SameBits(got, xy));
    Matrix4 xz;
    Matrix4Multiply(&x, &z, &xz);
    Matrix4RotationXYZ(10.0F, 0.0F, 30.0F, &got);
    EXPECT_TRUE(SameBits(got, xz));
}

TEST_F(Rotation, TinyAnglesTakeNoPart) {
    Matrix4 m;
    Matrix4RotationXYZ(0.000005F, 0.0F, 0.0F, &m);
    EXPECT_TRUE(SameBits(m, IdentityMatrix4));
    Matrix4RotationXYZ(-0.000005F, 0.00001F, 0.0F, &m); // the single 0.00001 is below the double
    EXPECT_TRUE(SameBits(m, IdentityMatrix4));
    Matrix4RotationXYZ(0.00002F, 0.0F, 0.0F, &m);
    EXPECT_FALSE(SameBits(m, IdentityMatrix4));
    Matrix4RotationXYZ(0.0F, 0.0F, -0.00002F, &m);
    EXPECT_FALSE(SameBits(m, IdentityMatrix4));
}

} // namespace
