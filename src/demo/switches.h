// The switches of the production by name, for the tools that show and test them. The shipped
// production never calls this.
#pragma once

#include <cstdint>

namespace ombrel {

// Names: renderMode1 renderMode2 backFace lighting sort cameraMode blur lightCount hideCursor
// cameraRunning sceneIndex crosshair frameCap. False, and nothing changed, for an unknown name or a
// value that the switch cannot hold. The scenes set some of them in their first frame (blur,
// cameraRunning, lightCount) and in the dot view (renderMode1, backFace): to hold a value, set it
// before every frame.
bool SetSwitch(const char* name, std::int32_t value);
// The current value; false for an unknown name.
bool GetSwitch(const char* name, std::int32_t* value);
// Name number i, from 0, or null after the last; and what it means, for a help text.
const char* SwitchName(std::int32_t i);
const char* SwitchMeaning(std::int32_t i);

} // namespace ombrel
