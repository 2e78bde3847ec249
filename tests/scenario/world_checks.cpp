// The shipped world, frame by frame.
#include "scenario/world_checks.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>

#include "base/shell_state.h"
#include "demo/scene_one.h"
#include "demo/scene_two.h"
#include "demo/world.h"
#include "platform/display.h"

namespace ombrel {

namespace {

// A cut corner is a float between two corners: a hair beyond the edge is rounded back by the
// filler.
constexpr float kTexelSlack = 1.0F / 64.0F;
// Scene two lays its border over the finished picture, in every frame.
constexpr std::int32_t kBorder = 8;
constexpr float kLowRoof = 300.0F;

void Note(WorldFindings* findings, std::int64_t frameNumber, const std::string& text) {
    if (findings->firstBad < 0) {
        findings->firstBad = frameNumber;
        findings->said = text;
    }
}

Vec3 Placed(const Mesh& object, std::int32_t vertex) {
    const Vertex& v = object.vertices[vertex];
    return {v.x + object.position.x, v.y + object.position.y, v.z + object.position.z, 0.0F};
}

// A ray from the eye along one axis of the world, up or down that axis.
struct AxisRay {
    float Vec3::*along;
    float Vec3::*
        across[2]; // in the order that makes along, across[0], across[1] turn as x, y, z do
    float sign;
};
constexpr AxisRay kUp = {&Vec3::y, {&Vec3::z, &Vec3::x}, 1.0F};
constexpr AxisRay kSideways[4] = {{&Vec3::x, {&Vec3::y, &Vec3::z}, 1.0F},
                                  {&Vec3::x, {&Vec3::y, &Vec3::z}, -1.0F},
                                  {&Vec3::z, {&Vec3::x, &Vec3::y}, 1.0F},
                                  {&Vec3::z, {&Vec3::x, &Vec3::y}, -1.0F}};

// What the ray meets first of an object: how far away, and whether it shows its back.
struct Meeting {
    float distance; // infinite: nothing
    bool back;
};

// Twice the area of (a, b, eye) as seen along the axis.
float SideOf(const Vec3& a, const Vec3& b, const Vec3& eye, const AxisRay& ray) {
    const auto& [p, q] = ray.across;
    return (b.*p - a.*p) * (eye.*q - a.*q) - (b.*q - a.*q) * (eye.*p - a.*p);
}

Meeting FirstMeeting(const Vec3& eye, const Mesh& object, const AxisRay& ray) {
    Meeting first = {INFINITY, false};
    for (std::int32_t i = 0; i < object.faceCount; ++i) {
        const Face& face = object.faces[i];
        const Vec3 a = Placed(object, face.v0);
        const Vec3 b = Placed(object, face.v1);
        const Vec3 c = Placed(object, face.v2);
        const float ab = SideOf(a, b, eye, ray);
        const float bc = SideOf(b, c, eye, ray);
        const float ca = SideOf(c, a, eye, ray);
        const float area = ab + bc + ca;
        if (area == 0.0F || (ab < 0 || bc < 0 || ca < 0) == (ab > 0 || bc > 0 || ca > 0)) {
            continue; // on edge, or beside the ray
        }
        const float place = (a.*ray.along * bc + b.*ray.along * ca + c.*ray.along * ab) / area;
        const float distance = (place - eye.*ray.along) * ray.sign;
        if (distance > 0.0F && distance < first.distance) {
            // The area is what (b - a) x (c - a) has along the axis; the front has it towards the
            // eye.
            first = {distance, area * ray.sign > 0.0F};
        }
    }
    return first;
}

} // namespace

bool NothingClears() {
    return sceneTwo.started ? switches.renderMode1 == 1 && switches.renderMode2 == 1
                            : sceneOne.started && sceneOne.insideBox;
}

// The depth buffer is emptied for every filled view, and a drawn pixel, blended or not, leaves its
// depth, which is never 0.
std::int64_t UncoveredCells() {
    const std::int32_t edge = sceneTwo.started ? kBorder : 0;
    std::int64_t count = 0;
    for (std::int32_t y = edge; y < shell.screenHeight - edge; ++y) {
        const std::uint32_t* const row =
            world.depth + static_cast<std::ptrdiff_t>(y) * shell.screenWidth;
        count += std::count(row + edge, row + shell.screenWidth - edge, 0U);
    }
    return count;
}

std::int64_t MarkedPixels(const PresentedFrame& shown) {
    std::int64_t count = 0;
    for (std::int32_t y = 0; y < shown.height; ++y) {
        for (std::int32_t x = 0; x < shown.width; ++x) {
            count += PixelOf(shown, x, y) == kMarker ? 1 : 0;
        }
    }
    return count;
}

std::int64_t FacesWithTexelsOutside() {
    std::int64_t count = 0;
    for (std::int32_t i = 0; i < sceneFaces.count; ++i) {
        const RenderFace& face = *sceneFaces.pointers[i];
        if (!IsDrawable(face.state) || (face.flags & FACE_TEXTURED) == 0) {
            continue;
        }
        const Texture& texture = *face.texture.single;
        const float right = static_cast<float>(texture.width - 1) + kTexelSlack;
        const float bottom = static_cast<float>(texture.height - 1) + kTexelSlack;
        const bool inside = std::all_of(face.work, face.work + 3, [&](const FaceCorner& v) {
            return v.u >= -kTexelSlack && v.u <= right && v.v >= -kTexelSlack && v.v <= bottom;
        });
        count += inside ? 0 : 1;
    }
    return count;
}

bool EyeInside(const Vec3& eye, const Mesh& object) {
    const Meeting up = FirstMeeting(eye, object, kUp);
    if (!up.back) {
        return false;
    }
    if (up.distance < kLowRoof) {
        return true;
    }
    return std::count_if(std::begin(kSideways), std::end(kSideways), [&](const AxisRay& ray) {
               return FirstMeeting(eye, object, ray).back;
           }) >= 3;
}

std::int32_t ObjectAroundEye() {
    const Vec3& eye = world.camera.position;
    for (std::int32_t e = kFirstSceneObject; e < world.objectCounter; ++e) {
        const Mesh& object = world.objects[e];
        if (object.faceCount == 0 || object.maxRadius == nullptr) {
            continue;
        }
        const float dx = eye.x - object.position.x;
        const float dz = eye.z - object.position.z;
        const float reach = object.maxRadius[0];
        if (dx * dx + dz * dz <= reach * reach && EyeInside(eye, object)) {
            return e;
        }
    }
    return EyeInside(eye, world.stay) ? kMaxSceneObjects : -1;
}

void LookAtWorld(WorldFindings* findings, const RunFrame& f) {
    if (f.number == 0) {
        *findings = {};
        findings->firstBad = -1;
    }
    ++findings->frames;
    findings->mostFaces = std::max(findings->mostFaces, sceneFaces.count);
    if (sceneFaces.count > kFaceLimit) {
        Note(findings, f.number, std::to_string(sceneFaces.count) + " faces");
    }
    if (NothingClears()) {
        ++findings->coveredFrames;
        const std::int64_t open = UncoveredCells();
        findings->uncovered += open;
        const bool prefilled = !sceneTwo.started && f.number > 0;
        const std::int64_t marked = prefilled ? MarkedPixels(f.shown) : 0;
        findings->marked += marked;
        if (open + marked > 0) {
            Note(findings, f.number,
                 std::to_string(open) + " pixels without depth, " + std::to_string(marked) +
                     " in the marker colour");
        }
    }
    // The points have no insides: their eye is below the sea.
    const bool points = sceneTwo.started && switches.renderMode1 == 0;
    const std::int32_t around = points ? -1 : ObjectAroundEye();
    if (around >= 0) {
        ++findings->inside;
        Note(findings, f.number, "the eye is inside object " + std::to_string(around));
    }
    const std::int64_t outside = FacesWithTexelsOutside();
    if (outside > 0) {
        findings->texelsOutside += outside;
        Note(findings, f.number, std::to_string(outside) + " faces reach outside their texture");
    }
    // Scene two blends with the picture before, so that only scene one can start on a marker; a
    // frame outside the box clears it away.
    if (driver.sceneIndex == 0) {
        FillSurface(display.backSurface, kMarker, nullptr);
    }
}

std::string WorldFaults(const WorldFindings& findings) {
    std::string text;
    const auto add = [&text](bool wrong, std::int64_t count, const char* what) {
        if (wrong) {
            text += std::to_string(count) + " " + what + "\n";
        }
    };
    add(findings.uncovered > 0, findings.uncovered, "pixels drawn by no face");
    add(findings.marked > 0, findings.marked, "pixels left in the marker colour");
    add(findings.inside > 0, findings.inside, "frames with the eye inside an object");
    add(findings.texelsOutside > 0, findings.texelsOutside, "faces outside their texture");
    add(findings.mostFaces > kFaceLimit, findings.mostFaces, "faces in the list are too many");
    add(findings.mostFaces < kBusyLeast || findings.mostFaces > kBusyMost, findings.mostFaces,
        "faces in the busiest frame are not what was planned");
    if (findings.firstBad >= 0) {
        text += "first in frame " + std::to_string(findings.firstBad) + ": " + findings.said + "\n";
    }
    return text;
}

} // namespace ombrel
