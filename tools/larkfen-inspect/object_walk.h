// Goes through an object file line by line as the loader does, with the loader's own reader,
// matcher and table of lines, and says of every line what the loader makes of it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "report.h"

namespace inspect {

struct MaterialFacts {
    std::int32_t number;
    std::int64_t line;
    std::int32_t rgb[3];
    bool textured;
    std::int32_t level; // of a filter, 0..7; -1: opaque
    std::string shading;
};

// Line numbers beside what stands there; what could not be reached is missing.
struct ObjectFacts {
    std::int32_t vertexCount, texCoordCount;
    std::vector<std::int64_t> vertexLines;
    struct TexCoordFacts {
        float u, v;
        std::int64_t line;
    };
    std::vector<TexCoordFacts> texCoords;
    struct FaceFacts {
        std::int32_t material;
        std::int32_t texCoords[3];
        std::int64_t line, cornerLine;
    };
    std::vector<FaceFacts> faces;
    std::vector<MaterialFacts> materials; // in the order of their blocks
    std::int32_t materialCount;           // distinct numbers the faces use
    std::string texture;                  // base name of the first one named
    std::int64_t textureLine;
};

// Adds findings to the report. False when the loader refuses the file.
bool WalkObject(const std::string& path, std::string_view bytes, Report* report,
                ObjectFacts* facts);

} // namespace inspect
