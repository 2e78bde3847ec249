// What every frame of the shipped world must hold, looked at while the production plays:
//   covered   where nothing clears the frame, every pixel is drawn
//   budget    the face list is neither near its end nor, at the busiest, poor
//   outside   the eye is inside no object, where faces are filled
//   texels    no corner of a drawn face lies outside its texture
// The checks read what the frame left behind and change no pixel, but for the marker colour.
#pragma once

#include <cstdint>
#include <string>

#include "assets/mesh.h"
#include "math/vec3.h"
#include "support/production_run.h"

namespace ombrel {

inline constexpr std::int32_t kFaceLimit = 60000; // in any frame
inline constexpr std::int32_t kBusyLeast = 20000; // in the busiest frame
inline constexpr std::int32_t kBusyMost = 59000;
inline constexpr Pixel16 kMarker = 0x07E0; // a green that the world does not have

struct WorldFindings {
    std::int64_t frames;
    std::int64_t coveredFrames; // of those that nothing clears
    std::int64_t uncovered;     // pixels in all of them that no face drew
    std::int64_t marked;        // pixels that kept the marker colour
    std::int64_t inside;        // frames with the eye inside an object
    std::int64_t texelsOutside; // faces with such a corner
    std::int32_t mostFaces;
    std::int64_t firstBad; // frame of the first finding; -1: none
    std::string said;      // about the first finding
};

// To be called for every frame, from frame 0 on. Fills the back surface with the marker colour
// before a frame of scene one that clears nothing.
void LookAtWorld(WorldFindings* findings, const RunFrame& f);

// "" when all is well, else what is wrong, a line each.
std::string WorldFaults(const WorldFindings& findings);

// The parts, for the frame that was drawn last.
bool NothingClears();          // the filled view covers what is on the surface
std::int64_t UncoveredCells(); // of those that show: the border of scene two hides some
std::int64_t MarkedPixels(const PresentedFrame& shown);
std::int64_t FacesWithTexelsOutside();
// Straight above the eye, the nearest face of the object shows its back; where that is far above,
// most of those beside the eye do as well. (Below the hem of a cloth of two shells only the first
// is so; objects may be open below.)
bool EyeInside(const Vec3& eye, const Mesh& object);
// Index of a scene object with the eye inside, kMaxSceneObjects for the stand; -1: none.
std::int32_t ObjectAroundEye();

} // namespace ombrel
