// An input of the fuzzer as a file that the loaders can open by name, without a disk.
#pragma once

#if defined(__wasm__)
#include "base/memory_files.h"
#else
#include <sys/mman.h>
#include <unistd.h>
#endif

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace ombrel {

#if defined(__wasm__)
// In the table of files; the next input takes its place.
struct MemoryFile {
    MemoryFile(const std::uint8_t* data, std::size_t size) {
        auto* const bytes = static_cast<std::uint8_t*>(std::malloc(size + 1));
        std::memcpy(bytes, data, size);
        AddMemoryFile("input", bytes, size);
    }
    std::string Path() const { return "./data/input"; }
};
#else
struct MemoryFile {
    MemoryFile(const std::uint8_t* data, std::size_t size) : handle(memfd_create("input", 0)) {
        if (handle < 0 || write(handle, data, size) != static_cast<ssize_t>(size)) {
            std::perror("memory file");
            std::abort();
        }
    }
    ~MemoryFile() { close(handle); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    std::string Path() const { return "/proc/self/fd/" + std::to_string(handle); }

    int handle;
};
#endif

// A property that must hold for every input; the fuzzer keeps the input for which it does not.
inline void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace ombrel
