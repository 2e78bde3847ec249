// Reading the arguments, and the help text.
#include "options.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "app/command_line.h"
#include "demo/switches.h"
#include "video.h"

namespace capture {

namespace {

bool ReadNumber(const std::string& text, std::int64_t low, std::int64_t high, std::int64_t* out) {
    char* end = nullptr;
    errno = 0;
    const long long value = std::strtoll(text.c_str(), &end, 10);
    if (text.empty() || *end != '\0' || errno != 0 || value < low || value > high) {
        return false;
    }
    *out = value;
    return true;
}

std::string ReadFrames(const std::string& text, Options* options) {
    const std::size_t colon = text.find(':');
    std::string problem = "--frames: \"" + text + "\" is not A:B with A below B";
    if (colon == std::string::npos || text.size() == 1) {
        return problem;
    }
    const std::string from = text.substr(0, colon);
    const std::string to = text.substr(colon + 1);
    if (!from.empty() && !ReadNumber(from, 0, INT64_MAX - 1, &options->first)) {
        return problem;
    }
    if (!to.empty() && !ReadNumber(to, 1, INT64_MAX, &options->end)) {
        return problem;
    }
    return options->first < options->end ? "" : problem;
}

std::string ReadSwitch(const std::string& text, Options* options) {
    const std::size_t sign = text.find('=');
    std::int64_t value = 0;
    if (sign == std::string::npos ||
        !ReadNumber(text.substr(sign + 1), INT32_MIN, INT32_MAX, &value)) {
        return "--switch: \"" + text + "\" is not NAME=NUMBER";
    }
    const std::string name = text.substr(0, sign);
    const auto number = static_cast<std::int32_t>(value);
    std::int32_t before = 0;
    if (!ombrel::GetSwitch(name.c_str(), &before)) {
        return "--switch: there is no switch \"" + name + "\"";
    }
    if (!ombrel::SetSwitch(name.c_str(), number)) {
        return "--switch: " + name + " cannot be " + text.substr(sign + 1);
    }
    ombrel::SetSwitch(name.c_str(), before);
    options->settings.push_back({name, number});
    return "";
}

std::string ReadCount(const char* name, const std::string& text, std::int64_t high,
                      std::int64_t* out) {
    if (ReadNumber(text, 1, high, out)) {
        return "";
    }
    return std::string(name) + ": \"" + text + "\" is not a whole number from 1 to " +
           std::to_string(high);
}

std::string ReadPath(const char* name, const std::string& text, std::string* out) {
    *out = text;
    return text.empty() ? std::string(name) + ": the name is empty" : "";
}

// An option of the tool with its value.
std::string ReadOption(const std::string& name, const std::string& value, Options* options) {
    if (name == "--data") {
        return ReadPath("--data", value, &options->dataFolder);
    }
    if (name == "--frames") {
        return ReadFrames(value, options);
    }
    if (name == "--every") {
        return ReadCount("--every", value, 1000000, &options->every);
    }
    if (name == "--png") {
        return ReadPath("--png", value, &options->pngFolder);
    }
    if (name == "--video") {
        return ReadPath("--video", value, &options->videoFile);
    }
    if (name == "--scale") {
        std::int64_t scale = 0;
        std::string problem = ReadCount("--scale", value, 16, &scale);
        options->scale = static_cast<std::int32_t>(scale);
        return problem;
    }
    if (name == "--fps") {
        std::int64_t rate = 0;
        std::string problem = ReadCount("--fps", value, 240, &rate);
        options->rate = static_cast<std::int32_t>(rate);
        return problem;
    }
    if (name == "--hashes") {
        return ReadPath("--hashes", value, &options->hashFile);
    }
    if (name == "--hashes-file") {
        return ReadPath("--hashes-file", value, &options->publishedFile);
    }
    if (name == "--look") {
        return ombrel::LookOfName(value.c_str(), &options->look)
                   ? ""
                   : "--look: there is no look \"" + value + "\"; --help lists them";
    }
    return ReadSwitch(value, options);
}

constexpr const char* kOptionNames[] = {"--fps",         "--data",   "--frames", "--every",
                                        "--png",         "--video",  "--scale",  "--hashes",
                                        "--hashes-file", "--switch", "--look"};

bool IsOption(const std::string& name) {
    for (const char* known : kOptionNames) {
        if (name == known) {
            return true;
        }
    }
    return false;
}

bool IsProductionSwitch(const std::string& text) {
    if (text == "-w" || text == "-ns" || text == "-?") {
        return true;
    }
    for (const ombrel::ResolutionSwitch& row : ombrel::kResolutions) {
        if (text == row.text) {
            return true;
        }
    }
    return false;
}

// Empty, or what a file of this kind cannot be. Chooses the rate where it is left open.
std::string CheckVideo(Options* options) {
    constexpr std::int64_t kLongestLoop =
        1200; // frames of a moving picture: all of it is in memory
    constexpr std::int32_t kLoopRate = 20;
    if (options->videoFile.empty()) {
        return options->rate != 0 ? "--fps: give --video with it"
               : options->resume  ? "--resume: give --video with it"
                                  : "";
    }
    const VideoKind kind = KindOfVideo(options->videoFile);
    const bool loop = kind != VideoKind::Mp4;
    if (options->rate == 0) {
        options->rate = loop ? kLoopRate : kFramesPerSecond;
    }
    if (loop && options->resume) {
        return "--resume: only an .mp4 file grows in pieces";
    }
    if (loop && (options->end == INT64_MAX || options->end - options->first > kLongestLoop)) {
        return "--video: a .gif or .webp file shows at most 30 seconds; give --frames A:B";
    }
    if (kind == VideoKind::Gif && (options->rate > 50 || 100 % options->rate != 0)) {
        return "--fps: a .gif file has 1, 2, 4, 5, 10, 20, 25 or 50 pictures a second";
    }
    return "";
}

// Empty, or what does not go with a look.
std::string CheckLook(const Options& options) {
    if (options.look == ombrel::Look::None) {
        return "";
    }
    return options.verify              ? "--verify: the frames were published without --look"
           : !options.hashFile.empty() ? "--hashes: a look has no hashes; give --png or --video"
           : !options.settings.empty() ? "--look: cannot be given with --switch"
                                       : "";
}

// Empty, or why these frames cannot be those of the list.
std::string CheckVerify(const Options& options) {
    if (!options.verify) {
        return options.publishedFile.empty() ? "" : "--hashes-file: give --verify with it";
    }
    if (!options.settings.empty()) {
        return "--verify: the frames were published without --switch";
    }
    const ombrel::CommandLine line = ombrel::ParseCommandLine(options.production.c_str());
    const ombrel::CommandLine usual = ombrel::ParseCommandLine("");
    const bool published = line.width == usual.width && line.height == usual.height;
    if (!published && options.publishedFile.empty()) {
        return "--verify: the frames were published in 640x480; --hashes-file names another list";
    }
    return "";
}

} // namespace

std::string ReadOptions(int argc, char** argv, Options* options) {
    std::vector<std::string> given;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--help" || argument == "-h") {
            options->help = true;
            return "";
        }
        if (argument == "--version") {
            options->version = true;
            return "";
        }
        if (argument == "--verify" || argument == "--resume") {
            (argument == "--verify" ? options->verify : options->resume) = true;
            continue;
        }
        if (IsProductionSwitch(argument)) {
            options->production += options->production.empty() ? argument : " " + argument;
            continue;
        }
        // "--name value" and "--name=value" are the same.
        const std::size_t sign = argument.find('=');
        const std::string name = argument.substr(0, sign);
        if (!IsOption(name)) {
            return "unknown argument \"" + argument + "\"; --help lists them";
        }
        std::string value = sign == std::string::npos ? "" : argument.substr(sign + 1);
        if (sign == std::string::npos) {
            if (i + 1 >= argc) {
                return name + ": a value is missing";
            }
            value = argv[++i];
        }
        if (name != "--switch" && std::count(given.begin(), given.end(), name) != 0) {
            return name + " is given twice";
        }
        given.push_back(name);
        std::string problem = ReadOption(name, value, options);
        if (!problem.empty()) {
            return problem;
        }
    }
    const bool asksHelp = options->production.find("-?") != std::string::npos;
    if (!Records(*options) && !asksHelp) {
        return "nothing to record: give --png, --video, --hashes or --verify; see --help";
    }
    std::string problem = CheckVideo(options);
    problem = problem.empty() ? CheckLook(*options) : problem;
    return problem.empty() ? CheckVerify(*options) : problem;
}

bool Records(const Options& options) {
    return !options.pngFolder.empty() || !options.videoFile.empty() || !options.hashFile.empty() ||
           options.verify;
}

std::string HelpText() {
    std::string text =
        "Usage: larkfen-capture [switches of the production] [options]\n"
        "Plays the production without a screen and records it frame by frame, as fast as it goes.\n"
        "\n"
        "Switches of the production: -w, -ns (a video without sound), -resolution=640x480 and so\n"
        "on, -? (its own help). It never asks anything.\n"
        "\n"
        "  --frames A:B       frames A to B - 1, counted from 0; either may be left out; the run\n"
        "                     ends after frame B - 1\n"
        "  --png DIR          writes every frame to DIR/frame-000123.png\n"
        "  --video FILE       writes a video: FILE.mp4 with the soundtrack, or FILE.gif or "
        "FILE.webp\n"
        "                     of up to 30 seconds without it; needs the program ffmpeg\n"
        "  --fps N            pictures a second of the video, 40 without it, 20 in a .gif or "
        ".webp;\n"
        "                     each shows the frame that is due at its time\n"
        "  --resume           lets the .mp4 grow in pieces of ten seconds, which stay in\n"
        "                     FILE.pieces when it breaks off; the same call goes on after them\n"
        "  --hashes FILE      writes a line a frame: frame 123 scene 0 faces 4567 hash 0123...\n"
        "                     (scene that drew it, faces drawn, hash of its pixels); - is\n"
        "                     standard output\n"
        "  --verify           compares every frame with the list of the published ones and says "
        "how\n"
        "                     many are the same, or names the first that differs, the processor\n"
        "                     and its path of code\n"
        "  --hashes-file FILE\n"
        "                     the list to compare with, as --hashes writes it; without it\n"
        "                     frame-hashes.txt beside the data folder or beside the program\n"
        "  --every N          only every Nth frame as picture and hash line; a video is whole\n"
        "  --scale N          pictures and video N times as large, 1 to 16\n"
        "  --data DIR         takes the data files from DIR\n"
        "  --switch NAME=N    holds a switch at a number from the first frame on; what a scene\n"
        "                     sets itself in its first frame holds from its second:\n";
    for (std::int32_t i = 0; ombrel::SwitchName(i) != nullptr; ++i) {
        std::string line = "                       ";
        line += ombrel::SwitchName(i);
        line.append(39 > line.size() ? 39 - line.size() : 1, ' ');
        text += line + ombrel::SwitchMeaning(i) + "\n";
    }
    text += "  --look NAME        a look into the frames instead of the frames, in --png and "
            "--video:\n";
    for (int i = 1; i < ombrel::kLookCount; ++i) {
        const auto look = static_cast<ombrel::Look>(i);
        std::string line = std::string("                       ") + ombrel::LookName(look);
        line.append(39 > line.size() ? 39 - line.size() : 1, ' ');
        text += line + ombrel::LookMeaning(look) + "\n";
    }
    text +=
        "  --help             this text\n"
        "  --version          the version\n"
        "\n"
        "Exit code: 0 done, 1 something could not be written or a frame differs, 2 an argument is\n"
        "wrong or the data is not there.\n";
    return text;
}

} // namespace capture
