// The version of the whole release, as the build file's project() line states it. Read by every
// program that answers --version.
#pragma once

namespace ombrel {

extern const char kVersion[]; // "1.0.0"

} // namespace ombrel
