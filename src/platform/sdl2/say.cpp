// One line on standard error.
#include "platform/sdl2/say.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <functional>
#include <string>
#include <string_view>

#include "base/data_file.h"

namespace ombrel {

namespace {

// Hashes of the paths that were told of already.
constexpr std::size_t kMaxSaid = 256;
constinit std::size_t saidMissing[kMaxSaid]{};
constinit std::size_t saidCount = 0;
constinit const char* programName = "larkfen";

} // namespace

void SayAs(const char* program) {
    programName = program;
}

void Say(const char* format, ...) {
    char line[1024];
    std::va_list values;
    va_start(values, format);
    std::vsnprintf(line, sizeof line, format, values);
    va_end(values);
    std::fprintf(stderr, "%s: %s\n", programName, line);
}

void SayMissing(const char* path) {
    // Say where it was looked for.
    constexpr std::string_view kFolder = "./data";
    std::string_view name = path;
    name = name.substr(0, name.find_last_not_of(" \t\r\n") + 1);
    const bool below = name.starts_with(kFolder);
    const std::string where =
        below ? DataFolder() + std::string(name.substr(kFolder.size())) : std::string(name);
    // Say it once.
    const std::size_t hash = std::hash<std::string>{}(where);
    if (std::find(saidMissing, saidMissing + saidCount, hash) != saidMissing + saidCount) {
        return;
    }
    if (saidCount < kMaxSaid) {
        saidMissing[saidCount++] = hash;
    }
    Say("%s is missing or cannot be read", where.c_str());
}

} // namespace ombrel
