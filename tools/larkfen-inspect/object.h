// An object file: what the loader makes of it, and what will not look as its maker thinks.
#pragma once

#include <cstdint>
#include <string>

#include "assets/object_loader.h"
#include "report.h"

namespace inspect {

// How the production loads and uses an object; told by its file's name.
enum class Side { Outside, Inside, Either }; // from which it is seen
struct ObjectRole {
    const char* name;
    float scale[3];
    std::uint32_t options;
    Side side;
    bool ground; // vertex 0 is moved
    bool culled; // by its bounding sphere
};
ObjectRole RoleOf(const std::string& path);

// Loads an object as the production does, with the turn that start-up gives the fixed ones.
int LoadAsProduction(ombrel::Mesh* mesh, const std::string& path, const ObjectRole& role);

void InspectObject(const std::string& path, Report* report);

} // namespace inspect
