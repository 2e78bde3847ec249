// On x86 the processor says its name; elsewhere the system may know it.
#include "processor.h"

#include <cstdio>
#include <cstring>

#if defined(__x86_64__) || defined(__i386__)
#include <cpuid.h>
#endif

namespace capture {

namespace {

constexpr char kUnknown[] = "unknown processor";

// Blanks at both ends, and more than one in a row, are left out.
std::string Tidy(const char* text) {
    std::string tidy;
    for (const char* p = text; *p != '\0' && *p != '\n'; ++p) {
        if (*p != ' ' || (!tidy.empty() && tidy.back() != ' ')) {
            tidy += *p;
        }
    }
    while (!tidy.empty() && tidy.back() == ' ') {
        tidy.pop_back();
    }
    return tidy.empty() ? kUnknown : tidy;
}

} // namespace

#if defined(__x86_64__) || defined(__i386__)

std::string ProcessorName() {
    constexpr unsigned kFirst = 0x80000002; // three leaves of 16 characters
    char name[3 * 16 + 1] = "";
    for (unsigned i = 0; i < 3; ++i) {
        unsigned words[4];
        if (__get_cpuid(kFirst + i, &words[0], &words[1], &words[2], &words[3]) == 0) {
            return kUnknown;
        }
        std::memcpy(name + std::size_t{16} * i, words, sizeof words);
    }
    return Tidy(name);
}

#else

std::string ProcessorName() {
    std::FILE* const file = std::fopen("/proc/cpuinfo", "rb");
    char line[256];
    std::string name = kUnknown;
    while (file != nullptr && std::fgets(line, sizeof line, file) != nullptr) {
        const char* const colon = std::strchr(line, ':');
        if (colon != nullptr &&
            (std::strncmp(line, "model name", 10) == 0 || std::strncmp(line, "Model", 5) == 0)) {
            name = Tidy(colon + 1);
            break;
        }
    }
    if (file != nullptr) {
        std::fclose(file);
    }
    return name;
}

#endif

} // namespace capture
