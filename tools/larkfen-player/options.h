// The arguments of larkfen-player.
#pragma once

#include <cstdint>
#include <string>

#include "player/looks.h"

namespace player {

struct Options {
    bool help = false;
    bool version = false;
    bool loop = false;
    bool fullScreen = false;
    bool timeDemo = false;
    bool json = false;
    bool watch = false;
    std::string dataFolder; // empty: found by the program
    std::string fromText;   // as given, for messages
    std::string toText;
    std::int64_t from = 0;       // first frame
    std::int64_t to = INT64_MAX; // last frame
    ombrel::Look look = ombrel::Look::None;
};

// Empty on success, else what is wrong, naming the argument.
std::string ReadOptions(int argc, char** argv, Options* options);

// Empty, or what does not fit a production of so many frames; 0: nobody knows how many.
std::string CheckRange(const Options& options, std::int64_t whole);

std::string HelpText();

} // namespace player
