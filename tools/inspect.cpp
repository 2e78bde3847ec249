// larkfen-inspect: says what a data file holds and what is wrong with it, line by line, and draws
// it. Exit code: 0 clean, 1 warnings, 2 broken, 64 an argument is wrong, 1 also when the picture
// cannot be written.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "app/shell.h"
#include "base/data_file.h"
#include "base/float_mode.h"
#include "base/version.h"
#include "larkfen-capture/picture.h"
#include "larkfen-inspect/draw.h"
#include "larkfen-inspect/folder.h"
#include "larkfen-inspect/list.h"
#include "math/vec3.h"
#include "platform/system.h"
#include "raster/blend_tables.h"

namespace {

using namespace inspect;
namespace fs = std::filesystem;

constexpr int kClean = 0, kWarnings = 1, kBroken = 2, kUsage = 64;

constexpr char kHelp[] =
    "Usage: larkfen-inspect [--data DIR] [--picture OUT.png] FILE...\n"
    "Says what data files of the production hold and what is wrong with them, line by line.\n"
    "\n"
    "Of everything that the production would refuse, clamp, cut or draw wrongly it says what is\n"
    "wrong, what the production does with it and how to mend it:\n"
    "    FILE:LINE: WHAT; WHAT HAPPENS; HOW TO MEND IT      (a byte offset in .bmp and .mp3 "
    "files)\n"
    "\n"
    "FILE is an object (.cob), an image (.bmp; a font sheet when its name begins with \"font\"), "
    "a\n"
    "camera track (.trk), a scene list (.po), the soundtrack (.mp3), or a whole data folder.\n"
    "\n"
    "  --picture OUT.png  draws the one FILE: an object on a turntable, a texture with its mip\n"
    "                     levels, a font sheet with its codes, a track or list from above; a "
    "folder\n"
    "                     is drawn as its world from above with both tracks\n"
    "  --data DIR         the data folder where textures and objects are looked for; without it "
    "the\n"
    "                     one around FILE, or the one beside the program\n"
    "  --help             this text\n"
    "  --version          the version\n"
    "\n"
    "Exit code: 0 clean, 1 warnings (or the picture cannot be written), 2 broken: the production\n"
    "refuses a file or it is missing, 64 an argument is wrong.\n";

struct Options {
    std::vector<std::string> files;
    std::string dataFolder;
    std::string picture;
    bool help, version;
};

// Empty, or what is wrong.
std::string ReadOptions(int argc, char** argv, Options* options) {
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
        const std::size_t sign = argument.find('=');
        const std::string name = argument.substr(0, sign);
        if (name == "--data" || name == "--picture") {
            std::string value = sign == std::string::npos ? "" : argument.substr(sign + 1);
            if (sign == std::string::npos && i + 1 < argc) {
                value = argv[++i];
            }
            if (value.empty()) {
                return name + ": a value is missing";
            }
            (name == "--data" ? options->dataFolder : options->picture) = value;
        } else if (argument.empty() || argument[0] == '-') {
            return "unknown argument \"" + argument + "\"; --help lists them";
        } else {
            options->files.push_back(argument);
        }
    }
    if (options->files.empty()) {
        return "no file to inspect; see --help";
    }
    std::error_code error;
    if (!options->dataFolder.empty() && !fs::is_directory(options->dataFolder, error)) {
        return "--data: there is no folder " + options->dataFolder;
    }
    if (!options->picture.empty() && options->files.size() != 1) {
        return "--picture: one file is drawn, not " + std::to_string(options->files.size());
    }
    return "";
}

void ChooseDataFolder(const Options& options, const std::string& file) {
    std::error_code error;
    std::string folder = options.dataFolder;
    if (folder.empty()) {
        folder = fs::is_directory(file, error) ? file : DataFolderAround(file);
    }
    if (folder.empty()) {
        folder = ombrel::DataFolderOf(ombrel::ProgramFolder());
    }
    ombrel::SetDataFolder(fs::absolute(folder, error).string());
}

std::string FoundOrEmpty(const char* name) {
    return ombrel::FindDataFile(name);
}

bool Draw(const std::string& file, gallery::Sheet* sheet, std::string* why) {
    std::error_code error;
    const std::string path = fs::absolute(file, error).string();
    ResetWorldOfTool();
    MapRequest map{};
    map.listPath = FoundOrEmpty("./data/scene1.po");
    if (fs::is_directory(file, error)) {
        map.trackPaths[0] = FoundOrEmpty("./data/cam/scene1.trk");
        map.trackPaths[1] = FoundOrEmpty("./data/cam/scene2.trk");
        return DrawMap(map, sheet, why);
    }
    switch (KindOf(file)) {
    case Kind::Object:
        return DrawObject(path, sheet, why);
    case Kind::Texture:
        return DrawTexture(path, sheet, why);
    case Kind::Font:
        return DrawFont(path, sheet, why);
    case Kind::Track:
        map.trackPaths[fs::path(file).filename() == "scene2.trk" ? 1 : 0] = path;
        return DrawMap(map, sheet, why);
    case Kind::List:
        map.listPath = path;
        map.numbers = true;
        return DrawMap(map, sheet, why);
    default:
        *why = "there is no picture of such a file";
        return false;
    }
}

// Empty, or why there is no picture.
std::string WritePicture(const Options& options) {
    gallery::Sheet sheet{};
    std::string why;
    if (!Draw(options.files[0], &sheet, &why)) {
        return options.files[0] + " is not drawn: " + why;
    }
    std::vector<std::uint8_t> rgb;
    capture::ToRgb(sheet.pixels.data(), sheet.Pitch(), sheet.width, sheet.height, 1, &rgb);
    return capture::WritePng(options.picture, rgb, sheet.width, sheet.height);
}

struct Totals {
    std::size_t files, warnings, broken;
};

void Print(const Report& report, Totals* totals) {
    std::fputs(report.table.c_str(), stdout);
    std::fputs(FindingLines(report).c_str(), stdout);
    ++totals->files;
    for (const Finding& finding : report.findings) {
        std::size_t& total = finding.weight == Weight::Broken ? totals->broken : totals->warnings;
        total += 1 + static_cast<std::size_t>(finding.more);
    }
}

void InspectOne(const Options& options, const std::string& file, Totals* totals) {
    std::error_code error;
    ChooseDataFolder(options, file);
    std::printf("%s: ", file.c_str());
    if (fs::is_directory(file, error)) {
        std::puts("data folder");
        std::vector<Report> reports = InspectFolder(file);
        std::fputs(reports[0].table.c_str(), stdout);
        reports[0].table.clear();
        for (const Report& report : reports) {
            Print(report, totals);
        }
        return;
    }
    std::puts(NameOfKind(KindOf(file)));
    Print(InspectFile(file), totals);
}

} // namespace

int main(int argc, char** argv) {
    Options options{};
    const std::string wrong = ReadOptions(argc, argv, &options);
    if (!wrong.empty()) {
        std::fprintf(stderr, "larkfen-inspect: %s\n", wrong.c_str());
        return kUsage;
    }
    if (options.help) {
        std::fputs(kHelp, stdout);
        return kClean;
    }
    if (options.version) {
        std::printf("larkfen-inspect %s\n", ombrel::kVersion);
        return kClean;
    }
    // As at start-up: tables while rounding to nearest, then cut.
    ombrel::InitTrigTables();
    ombrel::BuildBlendTables(ombrel::kBlendTableCount, ombrel::BlendTables[0]);
    ombrel::SetRenderFloatMode();

    Totals totals{};
    for (const std::string& file : options.files) {
        InspectOne(options, file, &totals);
    }
    int code = totals.broken > 0 ? kBroken : totals.warnings > 0 ? kWarnings : kClean;
    if (code == kClean) {
        std::puts("clean");
    } else {
        std::printf("%zu broken, %zu warnings\n", totals.broken, totals.warnings);
    }
    if (!options.picture.empty()) {
        std::fflush(stdout);
        const std::string problem = WritePicture(options);
        if (!problem.empty()) {
            std::fprintf(stderr, "larkfen-inspect: %s\n", problem.c_str());
            code = std::max(code, kWarnings);
        }
    }
    ResetWorldOfTool();
    return code;
}
