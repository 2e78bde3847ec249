// What doubles say of a face's side is what singles say, wherever they say anything.
#include "scene/facing.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <string>

#include "base/cut_single.h"
#include "scene_fixture.h"

namespace ombrel {
namespace {

using test::Numbers;

struct Place {
    float x, y, z;
};
struct Sample {
    Place corners[3];
    Place eye;
};

Place RandomPlace(Numbers* n, float spread) {
    return {n->Signed() * spread, n->Signed() * spread, n->Signed() * spread};
}

// From a towards b and c.
Place Between(const Place& a, const Place& b, const Place& c, float s, float t) {
    return {a.x + s * (b.x - a.x) + t * (c.x - a.x), a.y + s * (b.y - a.y) + t * (c.y - a.y),
            a.z + s * (b.z - a.z) + t * (c.z - a.z)};
}

Place AnyBits(Numbers* n) {
    return {std::bit_cast<float>(n->Bits()), std::bit_cast<float>(n->Bits()),
            std::bit_cast<float>(n->Bits())};
}

Sample Usual(Numbers* n) {
    const Place a = RandomPlace(n, 500.0F);
    const auto near = [&] {
        const Place d = RandomPlace(n, 20.0F);
        return Place{a.x + d.x, a.y + d.y, a.z + d.z};
    };
    const Place b = near(), c = near();
    return {{a, b, c}, RandomPlace(n, 500.0F)};
}

// The eye in the plane of the face, as far as singles can say.
Sample Edgewise(Numbers* n) {
    Sample face = Usual(n);
    const auto& [a, b, c] = face.corners;
    face.eye = Between(a, b, c, n->Signed() * 30.0F, n->Signed() * 30.0F);
    return face;
}

// Corners on a line, or two of them the same.
Sample Sliver(Numbers* n) {
    Sample face = Usual(n);
    const auto& [a, b, c] = face.corners;
    face.corners[2] = n->Below(4) == 0 ? a : Between(a, b, c, n->Signed() * 2.0F, 0.0F);
    return face;
}

// So small or large that products leave the range of singles.
Sample Scaled(Numbers* n) {
    Sample face = n->Below(2) == 0 ? Usual(n) : Edgewise(n);
    const float scale = std::ldexp(1.0F, static_cast<int>(n->Below(200)) - 110);
    for (Place* p : {&face.corners[0], &face.corners[1], &face.corners[2], &face.eye}) {
        *p = {p->x * scale, p->y * scale, p->z * scale};
    }
    return face;
}

Sample Broken(Numbers* n) {
    Sample face = Usual(n);
    face.corners[n->Below(3)] = AnyBits(n);
    if (n->Below(2) == 0) {
        face.eye = AnyBits(n);
    }
    return face;
}

template <class N> Xyz<N> As(const Place& p) {
    return {N(p.x), N(p.y), N(p.z)};
}

// How many faces of so many are unsure.
template <class N> int Unsure(Sample (*make)(Numbers*), int faces) {
    Numbers n{17};
    int unsure = 0;
    for (int i = 0; i < faces; ++i) {
        const Sample face = make(&n);
        const auto a = As<N>(face.corners[0]), b = As<N>(face.corners[1]),
                   c = As<N>(face.corners[2]), eye = As<N>(face.eye);
        const Side side = SideSeen(a, b, c, eye);
        unsure += side == Side::Unsure ? 1 : 0;
        if (side != Side::Unsure && (side == Side::Back) != FacesAway(a, b, c, eye)) {
            ADD_FAILURE() << "face " << i;
            break;
        }
    }
    return unsure;
}

class SidesInMode : public testing::TestWithParam<FloatMode> {};

TEST_P(SidesInMode, AreThoseOfSingles) {
    const ScopedFloatMode scope(GetParam());
    constexpr int kFaces = 50000;
    for (const auto make : {Usual, Edgewise, Sliver, Scaled, Broken}) {
        const int unsure = Unsure<float>(make, kFaces);
        EXPECT_EQ(Unsure<CutSingle>(make, kFaces), unsure);
        if (make == Usual) {
            EXPECT_LT(unsure, kFaces / 1000);
        } else {
            EXPECT_GT(unsure, kFaces / 100);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Modes, SidesInMode, testing::Values(FloatMode::Chop, FloatMode::Nearest),
                         [](const auto& mode) {
                             return std::string(mode.param == FloatMode::Chop ? "Chop" : "Nearest");
                         });

} // namespace
} // namespace ombrel
