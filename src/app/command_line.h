// The switches of the production, found by plain substring search in the raw command line. No
// words, no order, no complaint: a switch counts wherever its letters stand. Caller: the shell.
#pragma once

#include <cstdint>

namespace ombrel {

struct CommandLine {
    bool help;           // "-?"; nothing else was looked at then
    std::int32_t width;  // pixels; 640 by 480 when no row of the resolution table is found
    std::int32_t height; // pixels
    bool windowed;       // "-w"; otherwise the user is asked
    bool noSound;        // "-ns"
};

// text: everything after the program's name, as it was typed. Null counts as empty.
CommandLine ParseCommandLine(const char* text);

// One row of the resolution table; the table is in the order in which the rows are applied.
struct ResolutionSwitch {
    const char* text;
    std::int32_t width, height;
};
inline constexpr std::int32_t kResolutionCount = 7;
extern const ResolutionSwitch kResolutions[kResolutionCount];

extern const char kHelpText[];

} // namespace ombrel
