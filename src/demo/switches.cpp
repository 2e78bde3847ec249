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
};
// clang-format off
constexpr SwitchRow kSwitches[] = {
    {"renderMode1",   &switches.renderMode1,   INT32_MIN, INT32_MAX},
    {"renderMode2",   &switches.renderMode2,   INT32_MIN, INT32_MAX},
    {"backFace",      &switches.backFace,      INT32_MIN, INT32_MAX},
    {"lighting",      &switches.lighting,      INT32_MIN, INT32_MAX},
    {"sort",          &switches.sort,          INT32_MIN, INT32_MAX},
    {"cameraMode",    &switches.cameraMode,    INT32_MIN, INT32_MAX},
    {"blur",          &switches.blur,          INT32_MIN, INT32_MAX},
    {"lightCount",    &switches.lightCount,    0,         kMaxLights},
    {"hideCursor",    &switches.hideCursor,    INT32_MIN, INT32_MAX},
    {"cameraRunning", &switches.cameraRunning, INT32_MIN, INT32_MAX},
    {"sceneIndex",    &frame.sceneIndex,       INT32_MIN, INT32_MAX},
    {"crosshair",     &frame.crosshairSwitch,  INT32_MIN, INT32_MAX},
    {"frameCap",      &frame.frameCapSwitch,   INT32_MIN, INT32_MAX},
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
    return i >= 0 && i < static_cast<std::int32_t>(std::size(kSwitches)) ? kSwitches[i].name
                                                                         : nullptr;
}

} // namespace ombrel
