// The arguments of larkfen-capture. The production's own switches are collected into the one raw
// string that the production reads; everything else is the tool's.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "player/looks.h"

namespace capture {

struct SwitchSetting {
    std::string name; // one that SetSwitch knows
    std::int32_t value;
};

struct Options {
    bool help = false;
    bool version = false;
    bool verify = false;
    std::string production; // "-w -ns ..."
    std::string dataFolder; // empty: found by the program
    std::int64_t first = 0; // frames first..end - 1
    std::int64_t end = INT64_MAX;
    std::int64_t every = 1;    // of pictures and hash lines
    std::string pngFolder;     // empty: no pictures
    std::string videoFile;     // empty: no video
    std::string hashFile;      // empty: no hashes; "-": standard output
    std::string publishedFile; // list of frame hashes; empty: found by the program
    std::int32_t scale = 1;
    std::int32_t rate = 0; // pictures a second of the video; 0: what suits its kind
    bool resume = false;
    ombrel::Look look = ombrel::Look::None;
    std::vector<SwitchSetting> settings;
};

// Empty on success, else what is wrong, naming the argument.
std::string ReadOptions(int argc, char** argv, Options* options);

std::string HelpText();

// Whether there is anything to do with the frames.
bool Records(const Options& options);

} // namespace capture
