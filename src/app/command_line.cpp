// The switches and the help text.
#include "app/command_line.h"

#include <cstring>

namespace ombrel {

// clang-format off
const ResolutionSwitch kResolutions[kResolutionCount] = {
    // text                     width  height
    {"-resolution=320x240",       320,    240},
    {"-resolution=400x300",       400,    300},
    {"-resolution=512x384",       512,    384},
    {"-resolution=640x480",       640,    480},
    {"-resolution=800x600",       800,    600},
    {"-resolution=1024x768",     1024,    768},
    {"-resolution=1280x800",     1280,    800},
};

// REQUIRED R6: the misspelt last line stays.
const char kHelpText[] =
    "Help. You can use args:\n"
    " -w  Run in window\n"
    " -ns  No Sound\n"
    " -resolution=?x?  Resolution (320x240, 400x300, 512x384, 640x480, 800x600, 1024x768, 1280x800)\n"
    "\n"
    "examlpe:\tlarkfen.exe -w -resolution=800x600";
// clang-format on

CommandLine ParseCommandLine(const char* text) {
    CommandLine result{false, 640, 480, false, false};
    if (text == nullptr) {
        return result;
    }
    if (std::strstr(text, "-?") != nullptr) {
        result.help = true;
        return result;
    }
    // REQUIRED R8: every row that is found is applied, so the lowest of them wins.
    for (const ResolutionSwitch& row : kResolutions) {
        if (std::strstr(text, row.text) != nullptr) {
            result.width = row.width;
            result.height = row.height;
        }
    }
    // REQUIRED R9: "-w" and "-ns" count inside longer words too.
    result.windowed = std::strstr(text, "-w") != nullptr;
    result.noSound = std::strstr(text, "-ns") != nullptr;
    return result;
}

} // namespace ombrel
