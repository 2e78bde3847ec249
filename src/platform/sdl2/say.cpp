// One line on standard error.
#include "platform/sdl2/say.h"

#include <cstdarg>
#include <cstdio>
#include <string>
#include <string_view>

#include "base/data_file.h"

namespace ombrel {

void Say(const char* format, ...) {
    char line[1024];
    std::va_list values;
    va_start(values, format);
    std::vsnprintf(line, sizeof line, format, values);
    va_end(values);
    std::fprintf(stderr, "larkfen: %s\n", line);
}

void SayMissing(const char* path) {
    // Where it was looked for.
    constexpr std::string_view kFolder = "./data";
    const std::string_view name = path;
    const bool below = name.starts_with(kFolder);
    const std::string where =
        below ? DataFolder() + std::string(name.substr(kFolder.size())) : std::string(name);
    Say("%s is missing or cannot be read", where.c_str());
}

} // namespace ombrel
