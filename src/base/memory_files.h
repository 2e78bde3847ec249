// The data files of a platform without a disk: names and bytes that somebody hands over before the
// production loads them. Only builds with file_store_memory.cpp have these functions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace ombrel {

// Keeps a file under a name below the data folder, with "/" between its parts ("cam/scene1.trk");
// one of exactly that name gives way. The bytes become the table's: they came from std::malloc and
// are freed by it.
void AddMemoryFile(const std::string& name, std::uint8_t* bytes, std::size_t size);
void ForgetMemoryFiles();
std::size_t MemoryFileBytes(); // of all

} // namespace ombrel
