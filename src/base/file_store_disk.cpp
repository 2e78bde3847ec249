// Data files on the disk.
#include <filesystem>
#include <system_error>

#include "base/file_store.h"

namespace ombrel {

namespace fs = std::filesystem;

namespace {

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

} // namespace

bool IsStored(const std::string& path) {
    return Exists(path);
}

std::string FindStoredBelow(const std::string& root, const std::string& relative) {
    fs::path found = root;
    const fs::path parts = fs::path(relative).relative_path();
    for (const fs::path& part : parts) {
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

std::FILE* OpenStored(const std::string& path) {
    std::error_code error;
    // Folders cannot be read, and a device or a pipe may never end.
    const bool readable = !path.empty() && fs::is_regular_file(path, error);
    return readable ? std::fopen(path.c_str(), "rb") : nullptr;
}

} // namespace ombrel
