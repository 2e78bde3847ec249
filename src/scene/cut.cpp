// The cut: faces that cross the near plane or reach outside the guard band are cut, in camera
// space, into as many triangles as it takes.
//
//        B outside     A + (B - A) s is the same point for both faces of an edge: A is always the
//         .            corner that stays, whichever way the edge runs. So a cut leaves no gap.
//   -----*---*-----    plane
//       /     \        A keeps its place in the polygon; the polygon is then fanned out from its
//      A-------C       first corner: (0 1 2) stays in the face, (0 2 3), ... are added to the list.
#include "scene/cut.h"

#include <utility>

#include "base/pixel16.h"

namespace ombrel {

namespace {

constexpr int kPlaneCount = 5;

// Kept is what has x * v.x + y * v.y + z * v.z >= limit.
struct Plane {
    Single x, y, z, limit;
    bool isNear; // a cut lies at z = limit exactly
};

// A corner with its lit colour taken apart into 5-6-5 channels.
struct Corner {
    FaceCorner at;
    Xyz<Single> normal;
    Channels<Single> color;
};

// Each plane adds a corner at most.
struct Polygon {
    Corner corners[3 + kPlaneCount];
    std::int32_t count;
};

bool IsSane(const FaceCorner& v) {
    const auto sane = [](Single c) { return c >= -kLargestCoordinate && c <= kLargestCoordinate; };
    return sane(v.x) && sane(v.y) && sane(v.z);
}

Corner MixCorners(const Corner& a, const Corner& b, Single s) {
    const auto mix = [s](Single from, Single to) { return from + (to - from) * s; };
    return {{mix(a.at.x, b.at.x), mix(a.at.y, b.at.y), mix(a.at.z, b.at.z), mix(a.at.u, b.at.u),
             mix(a.at.v, b.at.v)},
            {mix(a.normal.x, b.normal.x), mix(a.normal.y, b.normal.y), mix(a.normal.z, b.normal.z)},
            {mix(a.color.r, b.color.r), mix(a.color.g, b.color.g), mix(a.color.b, b.color.b)}};
}

// Where the edge from a kept corner to a lost one meets the plane.
Corner Cut(const Plane& plane, const Corner& kept, const Corner& lost) {
    const Single from = Dot(plane, kept.at);
    const Single to = Dot(plane, lost.at);
    Corner cut = MixCorners(kept, lost, (plane.limit - from) / (to - from));
    if (plane.isNear) {
        cut.at.z = plane.limit;
    }
    return cut;
}

// What of the polygon lies on the kept side.
void CutPolygon(const Plane& plane, const Polygon& in, Polygon* out) {
    out->count = 0;
    for (std::int32_t i = 0; i < in.count; ++i) {
        const Corner& a = in.corners[i];
        const Corner& b = in.corners[i + 1 < in.count ? i + 1 : 0];
        const bool keepA = Dot(plane, a.at) >= plane.limit;
        const bool keepB = Dot(plane, b.at) >= plane.limit;
        if (keepA) {
            out->corners[out->count++] = a;
        }
        if (keepA != keepB) {
            out->corners[out->count++] = keepA ? Cut(plane, a, b) : Cut(plane, b, a);
        }
    }
}

// value, or where value * scale leaves low..high, what brings it back there.
Single Settled(Single value, Single scale, Single low, Single high) {
    const Single scaled = value * scale;
    if (scaled < low) {
        return low / scale;
    }
    return scaled > high ? high / scale : value;
}

// Puts a corner that rounding left a trifle outside back onto the planes.
void Settle(FaceCorner* v, const CameraView& view) {
    v->z = v->z < view.zNear ? view.zNear : v->z;
    v->x = Settled(v->x, view.tanHalfFov, -(view.left * v->z), view.right * v->z);
    v->y = Settled(v->y, view.aspectTan, -(view.bottom * v->z), view.top * v->z);
}

void ReadPolygon(const RenderFace& face, const CornerNormals& normals, Polygon* polygon) {
    polygon->count = 3;
    for (int i = 0; i < 3; ++i) {
        const auto color = static_cast<Pixel16>(face.litColors[i]);
        polygon->corners[i] = {face.work[i],
                               normals.corners[i],
                               {static_cast<Single>(RedOf(color)),
                                static_cast<Single>(GreenOf(color)),
                                static_cast<Single>(BlueOf(color))}};
    }
}

void WriteTriangle(FaceList* list, RenderFace* face, const Corner* const corners[3]) {
    // Of all other faces colour 0 is that of the whole face.
    const bool cornerColors = (face->flags & (FACE_CONSTANT | FACE_MATTE)) == 0;
    for (int i = 0; i < 3; ++i) {
        const Corner& c = *corners[i];
        face->work[i] = c.at;
        list->NormalsOf(face).corners[i] = c.normal;
        if (cornerColors) {
            const std::int32_t packed =
                (ToIntChop(c.color.r) << 11) + (ToIntChop(c.color.g) << 5) + ToIntChop(c.color.b);
            face->litColors[i] = static_cast<std::uint32_t>(packed) & 0xFFFF;
        }
    }
}

// What the near plane and the guard band leave of the polygon; spare is overwritten.
Polygon* CutAtAllPlanes(Polygon* polygon, Polygon* spare, const CameraView& view) {
    const Plane planes[kPlaneCount] = {
        {0.0F, 0.0F, 1.0F, view.zNear, true},
        {view.tanHalfFov, 0.0F, view.left, 0.0F, false},
        {-view.tanHalfFov, 0.0F, view.right, 0.0F, false},
        {0.0F, view.aspectTan, view.bottom, 0.0F, false},
        {0.0F, -view.aspectTan, view.top, 0.0F, false},
    };
    for (const Plane& plane : planes) {
        CutPolygon(plane, *polygon, spare);
        std::swap(polygon, spare);
    }
    return polygon;
}

} // namespace

void CutFace(FaceList* list, RenderFace* face, const CameraView& view, std::int32_t* room) {
    if (!IsSane(face->work[0]) || !IsSane(face->work[1]) || !IsSane(face->work[2])) {
        face->state |= FACE_OUTSIDE;
        return;
    }
    Polygon whole;
    Polygon spare;
    ReadPolygon(*face, list->NormalsOf(face), &whole);
    Polygon* const left = CutAtAllPlanes(&whole, &spare, view);
    if (left->count < 3) {
        face->state |= FACE_OUTSIDE;
        return;
    }
    for (std::int32_t i = 0; i < left->count; ++i) {
        Settle(&left->corners[i].at, view);
    }

    // Fan it out.
    const Corner* const c = left->corners;
    const Corner* const first[3] = {&c[0], &c[1], &c[2]};
    WriteTriangle(list, face, first);
    for (std::int32_t i = 2; i + 1 < left->count && *room > 0; ++i) {
        RenderFace* const added = FaceListAddCopy(list, face);
        if (added == nullptr) {
            return;
        }
        --*room;
        const Corner* const more[3] = {&c[0], &c[i], &c[i + 1]};
        WriteTriangle(list, added, more);
    }
}

} // namespace ombrel
