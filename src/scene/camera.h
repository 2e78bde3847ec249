// The one viewer and its keyed tracks. The camera looks along +Z, +X right, +Y up; degrees.
#pragma once

#include <cstddef>
#include <cstdint>

#include "math/vec3.h"

namespace ombrel {

struct Camera {
    std::int32_t mode; // 8
    Vec3 position;
    Vec3 angles;
    Vec3 right, up, forward; // basis
    Vec3 target;
    Single tanHalfFov;
    Single fov; // degrees; a larger value magnifies, 90 is a half angle of 45
    Single zNear, zFar;
    Ray clipPosX, clipNegX, clipPosY, clipNegY;
    Single projScale;                 // 2
    Single projScaleY;                // 2 / aspect
    Single screenWidth, screenHeight; // pixels
    Single screenCenterX, screenCenterY;
    Single aspect;
    Matrix4 view; // world to camera
    Matrix4 matrixB, matrixC;
};

// A place on a camera track, and the shape of the spline that starts there.
struct TrackKey {
    Single keyBias, keyContinuity, tension;
    Vec3 position, angles;
    Single fov;  // degrees
    Single step; // added to the segment parameter per frame; <= 0 means 0.02
};

struct CameraSetup {
    std::int32_t mode;
    Vec3 position, angles;
    const Vec3* target; // null: (0, 0, 0, 1)
    Single zNear, zFar;
    Single fov; // degrees, between 0 and 180, both excluded
    Single screenWidth, screenHeight;
};
void CameraInit(Camera* camera, const CameraSetup& setup);
// Sets fov, tanHalfFov and the four clip planes; 1 exactly and normals about +-0.7071068 for 90
// degrees.
void CameraSetFov(Camera* camera, Single fov);
// The view from position and angles. order 0..5 of the inverse rotations: 0 XYZ, 1 YXZ, 2 XZY, 3
// YZX, 4 ZYX (the scenes'), 5 ZXY; any other leaves the view alone.
void CameraBuildView(Camera* camera, std::int32_t order);
// The basis and the view from position and target. fromAngles 1: the target is first taken from the
// first two angles, a point of the unit sphere about the world's origin.
void CameraLookAt(Camera* camera, std::int32_t fromAngles);

// Sampling state, one for the program: switching tracks does not reset it. Written and read by
// TrackSample alone; trackT is the place between keys trackSegment + 1 and + 2, from 0 to 1.
extern std::int32_t trackSegment;
extern Single trackT;
void ResetTrackState();

// Reads at most capacity keys; 0 for a missing file. A line that matches in part still makes a key
// (its other columns keep the values of the line before); the reading ends with the text, or where
// nothing of it can be taken in.
std::int32_t TrackLoad(const char* path, TrackKey* keys, std::int32_t capacity);

// One key of a track's text: reads from *text on and moves it past what matched. Returns how many
// of the eleven columns were read; the others are left alone. 0: no number stands there, though a
// sign, a point or an exponent without digits is taken in. Where nothing is, or only blanks are
// left, *text stays.
inline constexpr std::int32_t kTrackColumns = 11;
inline constexpr std::size_t kMaxTrackFile = std::size_t{16} << 20; // bytes read of a file
std::int32_t ReadTrackColumns(const char** text, Single columns[kTrackColumns]);

// Writes the sampled values into the camera, steps on, returns the segment just sampled. With fewer
// than 3 keys the camera and trackT stay as they are, the segment becomes 0 and 0 is returned.
std::int32_t TrackSample(Camera* camera, const TrackKey* keys, std::int32_t count);

} // namespace ombrel
