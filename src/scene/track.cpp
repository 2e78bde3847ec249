// Camera tracks: reading the keys, and the spline that moves the camera along them frame by frame.
// A segment runs from key s + 1 to key s + 2; key s only shapes its tangents.
#include <string>

#include "base/data_file.h"
#include "base/parse_number.h"
#include "base/text.h"
#include "scene/camera.h"

namespace ombrel {

constinit std::int32_t trackSegment = 0;
constinit Single trackT = 0.0F;

void ResetTrackState() {
    trackSegment = 0;
    trackT = 0.0F;
}

namespace {

constexpr char kLinePattern[] = "%f, %f, %f;\t%f, %f, %f;\t%f, %f, %f;\t%f;\t%f;\n";

// REQUIRED R29: the first three columns are stored in reverse.
void StoreKey(TrackKey* key, const Single columns[kTrackColumns]) {
    key->keyBias = columns[0];
    key->keyContinuity = columns[1];
    key->tension = columns[2];
    key->position = {columns[3], columns[4], columns[5], 1.0F};
    key->angles = {columns[6], columns[7], columns[8], 1.0F};
    key->fov = columns[9];
    key->step = columns[10];
}

// Hermite basis at one place of a segment, and the shape of its tangents.
struct Spline {
    Single u, u2, u3;
    Single bias, continuity, tension;
};

// From p1 to p2. REQUIRED R30: both tangents come from the two differences about p1; the key after
// p2 has no influence.
Single Interpolate(const Spline& s, Single p0, Single p1, Single p2) {
    const Single d0 = (p1 - p0) * (1.0F + s.bias);
    const Single d1 = (p2 - p1) * (1.0F - s.bias) - d0;
    const Single g = 1.0F - s.tension;
    const Single m0 = ((1.0F + s.continuity) * d1 * 0.5F + d0) * g;
    const Single m1 = ((1.0F - s.continuity) * d1 * 0.5F + d0) * g;
    return (s.u3 - 2.0F * s.u2 + s.u) * m0 + (s.u3 - s.u2) * m1 +
           (2.0F * s.u3 - 3.0F * s.u2 + 1.0F) * p1 + (3.0F - 2.0F * s.u) * s.u * s.u * p2;
}

} // namespace

std::int32_t ReadTrackColumns(const char** text, Single columns[kTrackColumns]) {
    std::int32_t read = 0;
    const char* p = *text;
    if (*SkipBlanks(p) == '\0') {
        return 0;
    }
    for (const char* pattern = kLinePattern; *pattern != '\0'; ++pattern) {
        if (IsBlank(*pattern)) {
            // Any blanks match, none too.
            p = SkipBlanks(p);
        } else if (*pattern == '%') {
            ++pattern;
            const ScannedNumber number = ScanNumber(p, nullptr);
            p = number.end;
            if (!number.complete) {
                break;
            }
            columns[read++] = ParseFloat(number.first, nullptr);
        } else if (*p == *pattern) {
            ++p;
        } else {
            break;
        }
    }
    *text = p;
    return read;
}

std::int32_t TrackLoad(const char* path, TrackKey* keys, std::int32_t capacity) {
    const std::string text = ReadDataFile(path, kMaxTrackFile); // a zero byte in it ends the text
    const char* p = text.c_str();
    // REQUIRED R39: columns that a read does not reach keep what the read before left in them.
    Single columns[kTrackColumns] = {};
    std::int32_t count = 0;
    while (count < capacity) {
        const char* const start = p;
        ReadTrackColumns(&p, columns);
        if (p == start) {
            break;
        }
        StoreKey(&keys[count], columns);
        ++count;
    }
    return count;
}

std::int32_t TrackSample(Camera* camera, const TrackKey* keys, std::int32_t count) {
    if (count < 3) {
        trackSegment = 0;
        return trackSegment;
    }

    // Go on to the next segment. REQUIRED R31: what the last step went too far is dropped.
    if (trackT >= 1.0F) {
        trackSegment += 1;
        trackT = 0.0F;
    }
    if (trackSegment > count - 3) {
        trackSegment = 0;
    }

    // Interpolate position, angles and field of view.
    const TrackKey& k0 = keys[trackSegment];
    const TrackKey& k1 = keys[trackSegment + 1];
    const TrackKey& k2 = keys[trackSegment + 2];
    const Single u = trackT;
    const Single u2 = u * u;
    const Spline spline = {u, u2, u2 * u, k1.keyBias, k1.keyContinuity, k1.tension};
    camera->position.x = Interpolate(spline, k0.position.x, k1.position.x, k2.position.x);
    camera->position.y = Interpolate(spline, k0.position.y, k1.position.y, k2.position.y);
    camera->position.z = Interpolate(spline, k0.position.z, k1.position.z, k2.position.z);
    camera->angles.x = Interpolate(spline, k0.angles.x, k1.angles.x, k2.angles.x);
    camera->angles.y = Interpolate(spline, k0.angles.y, k1.angles.y, k2.angles.y);
    camera->angles.z = Interpolate(spline, k0.angles.z, k1.angles.z, k2.angles.z);
    CameraSetFov(camera, Interpolate(spline, k0.fov, k1.fov, k2.fov));

    // Step on.
    trackT += k1.step > 0.0F ? k1.step : 0.02F;
    return trackSegment;
}

} // namespace ombrel
