// Finding data files: the folder beside the program, both slashes, any letter case.
#include "base/data_file.h"

#include <cctype>
#include <cstring>
#include <string_view>

#include "base/file_store.h"
#include "base/memory_reserve.h"
#include "base/text.h"

namespace ombrel {

namespace {

constexpr std::string_view kDataPrefix = "./data";

constexpr std::size_t kMaxFolderLength = 4095;
constinit char dataFolder[kMaxFolderLength + 1] = "";
constinit MissingFileHook missingFileHook = nullptr;

} // namespace

bool SameLetters(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(a[i])) !=
            std::tolower(static_cast<unsigned char>(b[i]))) {
            return false;
        }
    }
    return true;
}

void SetDataFolder(const std::string& folder) {
    const std::size_t length = folder.size() <= kMaxFolderLength ? folder.size() : 0;
    std::memcpy(dataFolder, folder.data(), length);
    dataFolder[length] = '\0';
}
std::string DataFolder() {
    return dataFolder;
}

std::string FindDataFile(const char* path) {
    if (path == nullptr) {
        return {};
    }
    std::string name = path;
    while (!name.empty() && IsBlank(name.back())) {
        name.pop_back();
    }
    for (char& c : name) {
        c = c == '\\' ? '/' : c;
    }
    if (name.empty()) {
        return {};
    }
    const std::string_view prefix = std::string_view(name).substr(0, kDataPrefix.size());
    const bool below = SameLetters(prefix, kDataPrefix) &&
                       (name.size() == kDataPrefix.size() || name[kDataPrefix.size()] == '/');
    if (!below) {
        return IsStored(name) ? name : std::string{};
    }
    const std::string rest = name.substr(kDataPrefix.size());
    return FindStoredBelow(dataFolder[0] == '\0' ? "data" : dataFolder, rest);
}

void SetMissingFileHook(MissingFileHook hook) {
    missingFileHook = hook;
}

std::FILE* OpenDataFile(const char* path, const char* mode) {
    KeepMemoryReserve(); // again, where the names of the file before took of it
    // Always binary: a text file read here never depends on the system's idea of a line end.
    (void)mode;
    std::FILE* const file = OpenStored(FindDataFile(path));
    if (file == nullptr && missingFileHook != nullptr) {
        missingFileHook(path);
    }
    return file;
}

std::string ReadDataFile(const char* path, std::size_t limit) {
    std::string content;
    std::FILE* const file = OpenDataFile(path, "r");
    if (file == nullptr) {
        return content;
    }
    char block[4096];
    std::size_t length = 0;
    while (content.size() < limit && (length = std::fread(block, 1, sizeof block, file)) > 0) {
        content.append(block, length);
    }
    std::fclose(file);
    return content;
}

} // namespace ombrel
