// One table of all switches.
#include "demo/switches.h"

#include <cstring>
#include <iterator>

#include "base/shell_state.h"
#include "demo/world.h"

namespace ombrel {

namespace {

struct SwitchRow {
    const char* name;
    std::int32_t* value;
    std::int32_t least, most;
    const char* meaning;
};
// clang-format off
constexpr SwitchRow kSwitches[] = {
    {"renderMode1",   &switches.renderMode1,   INT32_MIN, INT32_MAX, "0 draws corner dots (1)"},
    {"renderMode2",   &switches.renderMode2,   INT32_MIN, INT32_MAX, "0 draws wires (1)"},
    {"backFace",      &switches.backFace,      INT32_MIN, INT32_MAX, "1 culls back faces (1)"},
    {"lighting",      &switches.lighting,      INT32_MIN, INT32_MAX, "1 lights the faces (1)"},
    {"sort",          &switches.sort,          INT32_MIN, INT32_MAX, "1 sorts them by depth (-1)"},
    {"cameraMode",    &switches.cameraMode,    INT32_MIN, INT32_MAX, "-1 view from angles, else look-at (-1)"},
    {"blur",          &switches.blur,          INT32_MIN, INT32_MAX, "1 blurs (set by each scene)"},
    {"lightCount",    &switches.lightCount,    0,         kMaxLights, "lights in use (set by each scene)"},
    {"hideCursor",    &switches.hideCursor,    INT32_MIN, INT32_MAX, "1 hides the cursor (1)"},
    {"cameraRunning", &switches.cameraRunning, INT32_MIN, INT32_MAX, "1 follows the track (set by each scene)"},
    {"sceneIndex",    &driver.sceneIndex,       INT32_MIN, INT32_MAX, "0 scene one, 1 scene two, 2..6 none"},
    {"crosshair",     &driver.crosshairSwitch,  INT32_MIN, INT32_MAX, "1 draws it (-1)"},
    {"frameCap",      &driver.frameCapSwitch,   INT32_MIN, INT32_MAX, "1 holds a frame for 25 ms (1)"},
};
// clang-format on

const SwitchRow* FindSwitch(const char* name) {
    for (const SwitchRow& row : kSwitches) {
        if (name != nullptr && std::strcmp(row.name, name) == 0) {
            return &row;
        }
    }
    return nullptr;
}

bool IsSwitch(std::int32_t i) {
    return i >= 0 && i < static_cast<std::int32_t>(std::size(kSwitches));
}

} // namespace

bool SetSwitch(const char* name, std::int32_t value) {
    const SwitchRow* const row = FindSwitch(name);
    if (row == nullptr || value < row->least || value > row->most) {
        return false;
    }
    *row->value = value;
    return true;
}

bool GetSwitch(const char* name, std::int32_t* value) {
    const SwitchRow* const row = FindSwitch(name);
    if (row == nullptr) {
        return false;
    }
    *value = *row->value;
    return true;
}

const char* SwitchName(std::int32_t i) {
    return IsSwitch(i) ? kSwitches[i].name : nullptr;
}

const char* SwitchMeaning(std::int32_t i) {
    return IsSwitch(i) ? kSwitches[i].meaning : nullptr;
}

} // namespace ombrel
