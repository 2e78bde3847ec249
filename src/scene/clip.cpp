// The view volume, and the scissors: faces that cross the near plane or reach outside the guard
// band are cut, in camera space, into as many triangles as it takes.
//
//        B behind      A + (B - A) s is the same point for both faces of an edge: A is always the
//         .            corner that stays, whichever way the edge runs. So a cut leaves no gap.
//   -----*---*-----    plane
//       /     \        A keeps its place in the polygon; the polygon is then fanned out from its
//      A-------C       first corner: (0 1 2) stays in the face, (0 2 3), ... are added to the list.
#include "base/convert.h"
#include "base/pixel16.h"
#include "scene/pipeline.h"
#include "scene/scissors.h"
#include "scene/view_volume.h"

namespace ombrel {

namespace {

// --- the view volume ---------------------------------------------------------------------------

// Behind the eye the limits change places and a corner can lie beyond both. REQUIRED R35: it then
// counts as beyond the positive one.
std::uint32_t Classify(const Vertex& v, const Camera& camera, std::uint32_t testMask) {
    const auto side = [](float value, float low, float high, std::uint32_t below,
                         std::uint32_t above) -> std::uint32_t {
        return value > high ? above : value < low ? below : 0;
    };
    std::uint32_t outside = 0;
    if ((testMask & TEST_SIDES) != 0) {
        const float limit = SideLimit(camera.projScale, v.z, camera);
        outside |= side(v.x, -limit, limit, OUTSIDE_LEFT, OUTSIDE_RIGHT);
    }
    if ((testMask & TEST_TOP_BOTTOM) != 0) {
        const float limit = SideLimit(camera.projScaleY, v.z, camera);
        outside |= side(v.y, -limit, limit, OUTSIDE_BOTTOM, OUTSIDE_TOP);
    }
    if ((testMask & TEST_DEPTH) != 0) {
        outside |= side(v.z, camera.zNear, camera.zFar, OUTSIDE_NEAR, OUTSIDE_FAR);
    }
    return outside;
}

// --- near plane and guard band -----------------------------------------------------------------

// NaN is not inside.
bool IsInside(const Vertex& v, const Scissors& s) {
    const float x = v.x * s.scaleX;
    const float y = v.y * s.scaleY;
    return v.z >= s.zNear && v.z <= kLargestCoordinate && x >= -(s.left * v.z) &&
           x <= s.right * v.z && y >= -(s.bottom * v.z) && y <= s.top * v.z;
}

bool IsSane(const Vertex& v) {
    const auto sane = [](float c) { return c >= -kLargestCoordinate && c <= kLargestCoordinate; };
    return sane(v.x) && sane(v.y) && sane(v.z);
}

// A corner with its lit colour taken apart into 5-6-5 channels.
struct Corner {
    Vertex vertex;
    float red, green, blue;
};

// Each of the five planes adds a corner at most.
struct Polygon {
    Corner corners[3 + 5];
    std::int32_t count;
};

float Mix(float a, float b, float s) {
    return a + (b - a) * s;
}

Corner MixCorners(const Corner& a, const Corner& b, float s) {
    const Vertex& p = a.vertex;
    const Vertex& q = b.vertex;
    Corner c;
    c.vertex.x = Mix(p.x, q.x, s);
    c.vertex.y = Mix(p.y, q.y, s);
    c.vertex.z = Mix(p.z, q.z, s);
    c.vertex.w = Mix(p.w, q.w, s);
    c.vertex.nx = Mix(p.nx, q.nx, s);
    c.vertex.ny = Mix(p.ny, q.ny, s);
    c.vertex.nz = Mix(p.nz, q.nz, s);
    c.vertex.nw = Mix(p.nw, q.nw, s);
    c.vertex.u = Mix(p.u, q.u, s);
    c.vertex.v = Mix(p.v, q.v, s);
    c.vertex.extra = p.extra;
    c.vertex.vflags = p.vflags;
    c.red = Mix(a.red, b.red, s);
    c.green = Mix(a.green, b.green, s);
    c.blue = Mix(a.blue, b.blue, s);
    return c;
}

float Along(const Plane& plane, const Vertex& v) {
    return plane.x * v.x + plane.y * v.y + plane.z * v.z;
}

// Where the edge from a kept corner to a lost one meets the plane.
Corner Cut(const Plane& plane, const Corner& kept, const Corner& lost) {
    const float from = Along(plane, kept.vertex);
    const float to = Along(plane, lost.vertex);
    Corner cut = MixCorners(kept, lost, (plane.limit - from) / (to - from));
    if (plane.isNear) {
        cut.vertex.z = plane.limit;
    }
    return cut;
}

// What of the polygon lies on the kept side.
void CutPolygon(const Plane& plane, const Polygon& in, Polygon* out) {
    out->count = 0;
    for (std::int32_t i = 0; i < in.count; ++i) {
        const Corner& a = in.corners[i];
        const Corner& b = in.corners[i + 1 < in.count ? i + 1 : 0];
        const bool keepA = Along(plane, a.vertex) >= plane.limit;
        const bool keepB = Along(plane, b.vertex) >= plane.limit;
        if (keepA) {
            out->corners[out->count++] = a;
        }
        if (keepA != keepB) {
            out->corners[out->count++] = keepA ? Cut(plane, a, b) : Cut(plane, b, a);
        }
    }
}

// value, or where value * scale leaves low..high, what brings it back there.
float Settled(float value, float scale, float low, float high) {
    const float scaled = value * scale;
    if (scaled < low) {
        return low / scale;
    }
    return scaled > high ? high / scale : value;
}

// Puts a corner that rounding left a trifle outside back onto the planes.
void Settle(Vertex* v, const Scissors& s) {
    v->z = v->z < s.zNear ? s.zNear : v->z;
    v->x = Settled(v->x, s.scaleX, -(s.left * v->z), s.right * v->z);
    v->y = Settled(v->y, s.scaleY, -(s.bottom * v->z), s.top * v->z);
}

// Only these are drawn with a colour a corner; for all others colour 0 is that of the whole face.
bool HasCornerColors(const RenderFace& face) {
    return (face.flags & (FACE_CONSTANT | FACE_MATTE)) == 0;
}

void ReadPolygon(const RenderFace& face, Polygon* polygon) {
    polygon->count = 3;
    for (int i = 0; i < 3; ++i) {
        const auto color = static_cast<Pixel16>(face.litColors[i]);
        polygon->corners[i] = {face.work[i], static_cast<float>(RedOf(color)),
                               static_cast<float>(GreenOf(color)),
                               static_cast<float>(BlueOf(color))};
    }
}

void WriteTriangle(RenderFace* face, const Corner* const corners[3]) {
    const bool cornerColors = HasCornerColors(*face);
    for (int i = 0; i < 3; ++i) {
        const Corner& c = *corners[i];
        face->work[i] = c.vertex;
        if (cornerColors) {
            const std::int32_t packed =
                (ToIntChop(c.red) << 11) + (ToIntChop(c.green) << 5) + ToIntChop(c.blue);
            face->litColors[i] = static_cast<std::uint32_t>(packed) & 0xFFFF;
        }
    }
}

} // namespace

Scissors MakeScissors(const Camera& camera) {
    // Solve the mapping to pixels for the edges of the band.
    const float acrossX = kGuardBand / (camera.screenWidth * 0.5F - 0.5F);
    const float acrossY = kGuardBand / (camera.screenHeight * 0.5F - 0.5F);
    Scissors s = {};
    s.zNear = camera.zNear;
    s.scaleX = camera.tanHalfFov;
    s.scaleY = camera.aspect * camera.tanHalfFov;
    s.left = acrossX + 1.0F;
    s.right = acrossX - 1.0F;
    s.top = acrossY + 1.0F;
    s.bottom = acrossY - 1.0F;
    s.planes[0] = {0.0F, 0.0F, 1.0F, s.zNear, true};
    s.planes[1] = {s.scaleX, 0.0F, s.left, 0.0F, false};
    s.planes[2] = {-s.scaleX, 0.0F, s.right, 0.0F, false};
    s.planes[3] = {0.0F, s.scaleY, s.bottom, 0.0F, false};
    s.planes[4] = {0.0F, -s.scaleY, s.top, 0.0F, false};
    return s;
}

void CutFace(FaceList* list, RenderFace* face, const Scissors& scissors, std::int32_t* room) {
    for (const Vertex& v : face->work) {
        if (!IsSane(v)) {
            face->state |= FACE_OUTSIDE;
            return;
        }
    }

    // Cut at one plane after the other.
    Polygon polygons[2];
    Polygon* polygon = &polygons[0];
    Polygon* next = &polygons[1];
    ReadPolygon(*face, polygon);
    for (const Plane& plane : scissors.planes) {
        CutPolygon(plane, *polygon, next);
        Polygon* const done = polygon;
        polygon = next;
        next = done;
    }
    if (polygon->count < 3) {
        face->state |= FACE_OUTSIDE;
        return;
    }
    for (std::int32_t i = 0; i < polygon->count; ++i) {
        Settle(&polygon->corners[i].vertex, scissors);
    }

    // Fan it out.
    const Corner* const c = polygon->corners;
    const Corner* const first[3] = {&c[0], &c[1], &c[2]};
    WriteTriangle(face, first);
    for (std::int32_t i = 2; i + 1 < polygon->count; ++i) {
        RenderFace* const added = *room > 0 ? FaceListAddCopy(list, face) : nullptr;
        if (added == nullptr) {
            return;
        }
        --*room;
        const Corner* const more[3] = {&c[0], &c[i], &c[i + 1]};
        WriteTriangle(added, more);
    }
}

void ClipPolygons(FaceList* list, const Camera* camera, std::uint32_t testMask) {
    const Scissors scissors = MakeScissors(*camera);
    const std::int32_t count = list->count; // added triangles are inside already
    std::int32_t room = kMaxRenderFaces - count;
    for (std::int32_t i = 0; i < count; ++i) {
        RenderFace& face = *list->pointers[i];
        if (!IsDrawable(face.state)) {
            continue;
        }
        const Vertex* const v = face.work;
        if ((Classify(v[0], *camera, testMask) & Classify(v[1], *camera, testMask) &
             Classify(v[2], *camera, testMask)) != 0) {
            face.state |= FACE_OUTSIDE;
        } else if (!IsInside(v[0], scissors) || !IsInside(v[1], scissors) ||
                   !IsInside(v[2], scissors)) {
            CutFace(list, &face, scissors, &room);
        }
    }
}

} // namespace ombrel
