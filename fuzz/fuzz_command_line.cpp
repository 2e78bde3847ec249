// The command line: any text gives one of the eight sizes, and no switch that is not in it.
#include <cstring>
#include <string>

#include "app/command_line.h"

#include "limits.h"
#include "memory_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ombrel;
    const InputLimits limits;
    const std::string text(reinterpret_cast<const char*>(data), size);
    const CommandLine line = ParseCommandLine(text.c_str());
    const std::string seen = text.c_str(); // up to the first zero byte
    Require(line.help == (seen.find("-?") != std::string::npos));
    if (line.help) {
        return 0;
    }
    Require(line.windowed == (seen.find("-w") != std::string::npos));
    Require(line.noSound == (seen.find("-ns") != std::string::npos));
    std::int32_t width = 640;
    std::int32_t height = 480;
    for (const ResolutionSwitch& row : kResolutions) {
        if (seen.find(row.text) != std::string::npos) {
            width = row.width;
            height = row.height;
        }
    }
    Require(line.width == width && line.height == height);
    return 0;
}
