// One file by its kind, and a whole data folder.
#pragma once

#include <string>
#include <vector>

#include "report.h"

namespace inspect {

enum class Kind { Object, Texture, Font, Track, List, Sound, Unknown };
Kind KindOf(const std::string& path); // by the name's ending, else by the first bytes
const char* NameOfKind(Kind kind);

// The data folder that a file belongs to: above 3d, texture, 2d, cam and sfx, else the one that the
// file stands in when it looks like one; empty when neither.
std::string DataFolderAround(const std::string& path);

Report InspectFile(const std::string& path);

// Every file of the folder, and the files that the production wants. The text of the tables goes to
// the first report's table.
std::vector<Report> InspectFolder(const std::string& folder);

} // namespace inspect
