// Where the files of the production are, and how they are opened. The code names them by paths
// that begin with "./data/"; the folder "data" stands beside the program and can be moved by a
// tool.
#pragma once

#include <cstdio>
#include <string>

namespace ombrel {

// The folder that "./data" stands for. Empty: "./data" relative to the working directory.
// Written by the SDL2 entry (the folder of the program; on Windows that is made the working one)
// and by tools (--data); read by FindDataFile. A path above 4095 bytes counts as empty.
void SetDataFolder(const std::string& folder);
std::string DataFolder();

// The path of an existing file for a name as the code or a data file writes it: trailing blanks are
// dropped, "\" counts as "/", "./data" is replaced by the data folder, and where no file has
// exactly that name, letter case is forgiven in every part below the data folder. Empty if there is
// none. A leading blank is kept (such a name is not found).
std::string FindDataFile(const char* path);

// Called with the path as the code or a data file writes it, whenever OpenDataFile returns null.
// Null, as at the start: nobody is told. Written by the SDL2 entry.
using MissingFileHook = void (*)(const char* path);
void SetMissingFileHook(MissingFileHook hook);

// fopen of FindDataFile(path) for reading; mode "r" or "rb" (line ends are never converted).
// Null when there is no such file, it cannot be opened, or it is a folder, a device or a pipe.
std::FILE* OpenDataFile(const char* path, const char* mode);

// The whole content of such a file; empty when it does not open. Of one that is longer than limit
// (bytes) the rest is left out, to the next 4096.
std::string ReadDataFile(const char* path, std::size_t limit);

} // namespace ombrel
