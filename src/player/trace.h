// Which triangles of the shown frame reach which pixels: the frame is drawn once more, with every
// filler replaced by one that notes what it is given. Used by the looks.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/pixel16.h"
#include "raster/fillers.h"
#include "scene/face_list.h"

namespace ombrel {

// A triangle that was handed to a filler.
struct TracedTriangle {
    FillerId filler;
    ScreenPolygon polygon;
    std::int32_t record; // number in FaceList::records
    std::int32_t pixels; // that it covers, hidden ones included
};

struct Trace {
    std::int32_t width, height;
    std::int32_t faces;                    // in the list
    std::vector<TracedTriangle> triangles; // in the order drawn
    std::vector<std::int32_t> shown;       // a pixel: the triangle it shows, -1: none
    std::vector<std::uint16_t> coverings;  // a pixel: triangles that cover it
    std::vector<std::uint32_t> depth;      // a pixel: 2^28 / z of what it shows; 0: nothing
    std::vector<std::int32_t> owners;      // of all records: index into the names, -1: unknown
};

// False before the first frame.
bool TraceFrame(Trace* trace);

// What a record's owner is called: the file names of the objects, fixed ones first.
std::vector<std::string> TraceNames();
// The mesh of an owner; null where there is none of that number.
const Mesh* TracedMesh(std::int32_t owner);

} // namespace ombrel
