// What a tool asks of the production before it plays: where its data is, how long it is, on which
// path of code.
#pragma once

#include <cstdint>
#include <string>

#include "base/vector_path.h"

namespace capture {

inline constexpr std::int32_t kTicksPerSecond = 40; // frames a second of the production

// Makes the named folder the data folder, or the one that the program finds when the name is empty.
// Empty, or why there is nothing to play.
std::string ChooseDataFolder(const std::string& told);

// Whether the data folder holds any of the files without which nothing can be seen.
bool HasProduction();

// Frames of the whole production; 0 when its first track never hands over.
std::int64_t FramesOfProduction();

// Chooses the path as the production does, and says on standard error when the one that was asked
// for cannot be had.
ombrel::VectorPath ChoosePath(const char* program);

} // namespace capture
