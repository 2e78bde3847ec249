// Finding data files: the folder beside the program, both slashes, any letter case.
#include "base/data_file.h"

#include <cctype>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "base/memory_reserve.h"
#include "base/text.h"

namespace ombrel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kDataPrefix = "./data";

constexpr std::size_t kMaxFolderLength = 4095;
constinit char dataFolder[kMaxFolderLength + 1] = "";
constinit MissingFileHook missingFileHook = nullptr;

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

// The entry of folder whose name is name but for letter case; the first in sorted order when
// several are, so that every system picks the same. Empty when there is none.
std::string EntryInAnyCase(const fs::path& folder, std::string_view name) {
    std::string best;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), last; !error && it != last;
         it.increment(error)) {
        std::string entry = it->path().filename().string();
        if (SameLetters(entry, name) && (best.empty() || entry < best)) {
            best = std::move(entry);
        }
    }
    return best;
}

bool Exists(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

// Walks the parts of relative below root, forgiving letter case where a part is not there as
// written.
std::string FindBelow(const fs::path& root, const fs::path& relative) {
    fs::path found = root;
    for (const fs::path& part : relative) {
        if (part.empty() || part == ".") {
            continue;
        }
        if (!Exists(found / part)) {
            const std::string entry = EntryInAnyCase(found.empty() ? "." : found, part.string());
            if (entry.empty()) {
                return {};
            }
            found /= entry;
        } else {
            found /= part;
        }
    }
    return found.string();
}

} // namespace

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
        return Exists(name) ? name : std::string{};
    }
    const std::string rest = name.substr(kDataPrefix.size());
    const fs::path root = dataFolder[0] == '\0' ? fs::path("data") : fs::path(dataFolder);
    return FindBelow(root, fs::path(rest).relative_path());
}

void SetMissingFileHook(MissingFileHook hook) {
    missingFileHook = hook;
}

std::FILE* OpenDataFile(const char* path, const char* mode) {
    KeepMemoryReserve(); // again, where the names of the file before took of it
    // Always binary: a text file read here never depends on the system's idea of a line end.
    (void)mode;
    const std::string found = FindDataFile(path);
    std::error_code error;
    // Folders cannot be read, and a device or a pipe may never end.
    const bool readable = !found.empty() && fs::is_regular_file(found, error);
    std::FILE* const file = readable ? std::fopen(found.c_str(), "rb") : nullptr;
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
