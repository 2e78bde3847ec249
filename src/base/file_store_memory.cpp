// Data files in memory. Folders are the parts of names; the table is searched from end to end.
#include <cstdlib>
#include <memory>
#include <vector>

#include "base/file_store.h"
#include "base/memory_files.h"

namespace ombrel {

namespace {

struct MemoryFile {
    std::string name;
    std::uint8_t* bytes;
    std::size_t size;
};
// Null: none. (That library's vectors cannot be made before the program starts.)
constinit std::unique_ptr<std::vector<MemoryFile>> table{};

std::vector<MemoryFile>& Files() {
    if (table == nullptr) {
        table = std::make_unique<std::vector<MemoryFile>>();
    }
    return *table;
}

constexpr std::string_view kFolder = "data/"; // that the names stand below

// The file of a path that FindStoredBelow returned.
const MemoryFile* FileAt(std::string_view path) {
    const std::string_view name =
        path.substr(0, kFolder.size()) == kFolder ? path.substr(kFolder.size()) : path;
    for (const MemoryFile& file : Files()) {
        if (file.name == name) {
            return &file;
        }
    }
    return nullptr;
}

// Without parts that are empty or a point.
std::string Plain(std::string_view path) {
    std::string plain;
    while (!path.empty()) {
        const std::string_view part = path.substr(0, path.find('/'));
        path.remove_prefix(part.size() < path.size() ? part.size() + 1 : part.size());
        if (!part.empty() && part != ".") {
            plain += plain.empty() ? "" : "/";
            plain += part;
        }
    }
    return plain;
}

} // namespace

bool IsStored(const std::string& path) {
    return FileAt(path) != nullptr;
}

std::string FindStoredBelow(const std::string& root, const std::string& relative) {
    const std::string name = Plain(relative);
    const MemoryFile* best = FileAt(name);
    for (const MemoryFile& file : Files()) {
        if (best == nullptr || (best->name != name && file.name < best->name)) {
            best = SameLetters(file.name, name) ? &file : best;
        }
    }
    (void)root; // the names stand below whatever folder is set
    return best != nullptr ? std::string(kFolder) + best->name : std::string{};
}

std::FILE* OpenStored(const std::string& path) {
    const MemoryFile* const file = FileAt(path);
    // A stream over no bytes cannot be had; one over the end of a text of one can.
    static constexpr char kNothing[1] = {};
    if (file == nullptr) {
        return nullptr;
    }
    if (file->size == 0) {
        std::FILE* const empty = fmemopen(const_cast<char*>(kNothing), 1, "rb");
        if (empty != nullptr) {
            (void)std::fgetc(empty);
        }
        return empty;
    }
    return fmemopen(file->bytes, file->size, "rb");
}

void AddMemoryFile(const std::string& name, std::uint8_t* bytes, std::size_t size) {
    for (MemoryFile& file : Files()) {
        if (file.name == name) {
            std::free(file.bytes);
            file.bytes = bytes;
            file.size = size;
            return;
        }
    }
    Files().push_back({name, bytes, size});
}

void ForgetMemoryFiles() {
    for (const MemoryFile& file : Files()) {
        std::free(file.bytes);
    }
    table = nullptr;
}

std::size_t MemoryFileBytes() {
    std::size_t sum = 0;
    for (const MemoryFile& file : Files()) {
        sum += file.size;
    }
    return sum;
}

} // namespace ombrel
