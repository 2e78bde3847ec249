// Reading the arguments, and the help text.
#include "options.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "larkfen-capture/production.h"
#include "player/chapters.h"

namespace player {

namespace {

// "1810", "62.5s" or the name of a chapter.
bool ReadPlace(const std::string& text, std::int64_t* frame) {
    for (const ombrel::Chapter& chapter : ombrel::kChapters) {
        if (text == chapter.name) {
            *frame = chapter.frame;
            return true;
        }
    }
    const bool seconds = !text.empty() && text.back() == 's';
    const std::string number = seconds ? text.substr(0, text.size() - 1) : text;
    if (number.empty() || number.size() > 12 ||
        number.find_first_not_of(seconds ? "0123456789." : "0123456789") != std::string::npos) {
        return false;
    }
    char* end = nullptr;
    const double value = std::strtod(number.c_str(), &end);
    if (*end != '\0') {
        return false;
    }
    *frame = std::llround(seconds ? value * capture::kTicksPerSecond : value);
    return true;
}

std::string ReadPlaceOption(const std::string& name, const std::string& value, std::string* text,
                            std::int64_t* frame) {
    *text = value;
    if (ReadPlace(value, frame)) {
        return "";
    }
    return name + ": \"" + value +
           "\" is neither a frame (1810) nor seconds (45.25s) nor a chapter (tower)";
}

// An option with its value.
std::string ReadOption(const std::string& name, const std::string& value, Options* options) {
    if (name == "--from") {
        return ReadPlaceOption(name, value, &options->fromText, &options->from);
    }
    if (name == "--to") {
        return ReadPlaceOption(name, value, &options->toText, &options->to);
    }
    if (name == "--look") {
        return ombrel::LookOfName(value.c_str(), &options->look)
                   ? ""
                   : "--look: there is no look \"" + value + "\"; --help lists them";
    }
    options->dataFolder = value;
    return value.empty() ? "--data: the name is empty" : "";
}

// The switch of that name; null: none.
bool* SwitchOf(const std::string& name, Options* options) {
    return name == "--loop"         ? &options->loop
           : name == "--fullscreen" ? &options->fullScreen
           : name == "--timedemo"   ? &options->timeDemo
           : name == "--json"       ? &options->json
           : name == "--watch"      ? &options->watch
           : name == "--version"    ? &options->version
           : name == "--help"       ? &options->help
           : name == "-h"           ? &options->help
                                    : nullptr;
}

std::string CheckTogether(const Options& options) {
    if (options.json && !options.timeDemo) {
        return "--json: give --timedemo with it";
    }
    if (options.timeDemo && (options.loop || options.fullScreen || options.watch)) {
        return options.loop    ? "--loop: a --timedemo plays once"
               : options.watch ? "--watch: a --timedemo plays the data as it is"
                               : "--fullscreen: a --timedemo has no window";
    }
    if (options.timeDemo && options.look != ombrel::Look::None) {
        return "--look: a --timedemo draws the frames as they are";
    }
    return options.from <= options.to ? "" : "--to: " + options.toText + " is before --from";
}

std::string PastEnd(const char* name, const std::string& text, std::int64_t whole) {
    char seconds[32];
    std::snprintf(seconds, sizeof seconds, "%.1f",
                  static_cast<double>(whole) / capture::kTicksPerSecond);
    return std::string(name) + ": " + text + " is past the end; the last frame is " +
           std::to_string(whole - 1) + " (" + seconds + "s)";
}

} // namespace

std::string ReadOptions(int argc, char** argv, Options* options) {
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (bool* const known = SwitchOf(argument, options)) {
            *known = true;
            continue;
        }
        // "--name value" and "--name=value" are the same.
        const std::size_t sign = argument.find('=');
        const std::string name = argument.substr(0, sign);
        if (name != "--from" && name != "--to" && name != "--look" && name != "--data") {
            return "unknown argument \"" + argument + "\"; --help lists them";
        }
        if (sign == std::string::npos && i + 1 >= argc) {
            return name + ": a value is missing";
        }
        const std::string value =
            sign == std::string::npos ? std::string(argv[++i]) : argument.substr(sign + 1);
        std::string problem = ReadOption(name, value, options);
        if (!problem.empty()) {
            return problem;
        }
    }
    return options->help || options->version ? "" : CheckTogether(*options);
}

std::string CheckRange(const Options& options, std::int64_t whole) {
    if (whole == 0) {
        return "";
    }
    if (options.from >= whole) {
        return PastEnd("--from", options.fromText, whole);
    }
    return options.to >= whole && !options.toText.empty() ? PastEnd("--to", options.toText, whole)
                                                          : "";
}

std::string HelpText() {
    std::string text =
        "Usage: larkfen-player [options]\n"
        "Plays the production in a window that can be paused, wound to any frame and looked into.\n"
        "The soundtrack is heard at the usual speed.\n"
        "\n"
        "A place is a frame (1810), seconds (45.25s) or a chapter:";
    for (const ombrel::Chapter& chapter : ombrel::kChapters) {
        text += text.size() - text.rfind('\n') > 80 ? "\n" : " ";
        text += chapter.name;
    }
    text += "\n\n"
            "  --from PLACE       begins there\n"
            "  --to PLACE         the last frame; the window pauses there\n"
            "  --loop             plays from --from to --to again and again\n"
            "  --look NAME        begins with a look into the frames:\n";
    for (int i = 1; i < ombrel::kLookCount; ++i) {
        const auto look = static_cast<ombrel::Look>(i);
        std::string line = std::string("                       ") + ombrel::LookName(look);
        line.append(35 > line.size() ? 35 - line.size() : 1, ' ');
        text += line + ombrel::LookMeaning(look) + "\n";
    }
    text +=
        "  --fullscreen       begins with the whole screen\n"
        "  --data DIR         takes the data files from DIR\n"
        "  --watch            looks whether data files change, and plays on in the new world from\n"
        "                     the same frame; a broken file is named in the window\n"
        "  --timedemo         plays without a window, as fast as it goes, and prints frames a\n"
        "                     second, median, 99th percentile and worst time of the frames\n"
        "  --json             prints the same as JSON\n"
        "  --help             this text\n"
        "  --version          the version\n"
        "\n"
        "In the window H shows the keys.\n"
        "\n"
        "Exit code: 0 done, 1 there is no display or the production ended early, 2 an argument is\n"
        "wrong or the data is not there.\n";
    return text;
}

} // namespace player
