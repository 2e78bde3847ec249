// The scene list: its entries as the production reads them, and the world they make.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "demo/scene_list.h"
#include "report.h"

namespace inspect {

// Loads the fixed objects and a list as start-up does, into world; ResetWorldOfTool frees them.
void LoadWorld(const std::string& listPath);
void ResetWorldOfTool();

void InspectList(const std::string& path, Report* report);

} // namespace inspect
