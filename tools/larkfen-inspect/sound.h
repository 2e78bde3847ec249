// The soundtrack: MPEG audio frames, counted by their headers.
#pragma once

#include <string>

#include "report.h"

namespace inspect {

// seconds of sound; 0 when nothing can be played.
double InspectSound(const std::string& path, Report* report);

} // namespace inspect
