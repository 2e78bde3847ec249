// What holds the data files: the disk, or a table in memory for a platform without one. A build
// links one of file_store_disk.cpp and file_store_memory.cpp. Called by data_file.cpp only.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace ombrel {

// Whether letters are the same but for case (ASCII).
bool SameLetters(std::string_view a, std::string_view b);

// Whether something has exactly this name.
bool IsStored(const std::string& path);

// The name of what lies below root at relative; letter case is forgiven in each part that is not
// there as written. Empty when there is none. root empty: the working directory.
std::string FindStoredBelow(const std::string& root, const std::string& relative);

// For reading; null when it does not open, or is a folder, a device or a pipe.
std::FILE* OpenStored(const std::string& path);

} // namespace ombrel
