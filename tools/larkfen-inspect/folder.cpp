// Which file is what, and what a whole folder must hold.
#include "folder.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "base/data_file.h"
#include "demo/fixed_objects.h"
#include "demo/scene_list.h"
#include "image.h"
#include "list.h"
#include "object.h"
#include "sound.h"
#include "track.h"

namespace inspect {

using namespace ombrel;
namespace fs = std::filesystem;

namespace {

struct KindRow {
    Kind kind;
    const char* ending;
    const char* name;
    const char* heading;
};
// clang-format off
constexpr KindRow kKinds[] = {
    {Kind::Object,  ".cob", "object",       "Objects"},
    {Kind::Texture, ".bmp", "texture",      "Textures"},
    {Kind::Font,    ".bmp", "font sheet",   "Font sheets"},
    {Kind::Track,   ".trk", "camera track", "Camera tracks"},
    {Kind::List,    ".po",  "scene list",   "Scene list"},
    {Kind::Sound,   ".mp3", "soundtrack",   "Soundtrack"},
};
// What the production opens by name, beside the fixed objects.
constexpr const char* kWanted[] = {
    "./data/scene1.po",         "./data/cam/scene1.trk",        "./data/cam/scene2.trk",
    "./data/2d/font-48.bmp",    "./data/2d/font-48-16px.bmp",   "./data/sfx/soundtrack.mp3",
};
constexpr const char* kFolders[] = {"3d", "texture", "2d", "cam", "sfx"};
// clang-format on

std::string SmallLetters(std::string text) {
    for (char& c : text) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return text;
}

bool IsFolder(const fs::path& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

// The first bytes of a file whose name does not tell.
Kind KindOfBytes(const std::string& path) {
    char head[16] = {};
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) {
        return Kind::Unknown;
    }
    const std::size_t length = std::fread(head, 1, sizeof head - 1, file);
    std::fclose(file);
    if (length >= 2 && head[0] == 'B' && head[1] == 'M') {
        return Kind::Texture;
    }
    return std::strncmp(head, "ID3", 3) == 0 ? Kind::Sound : Kind::Unknown;
}

// Reads the report's own parts: a file each, sorted, without those that hide.
std::vector<std::string> FilesOf(const std::string& folder) {
    std::vector<std::string> files;
    std::error_code error;
    for (fs::recursive_directory_iterator it(folder, error), end; !error && it != end;
         it.increment(error)) {
        std::error_code unknown;
        if (it->path().filename().string()[0] == '.') {
            it.disable_recursion_pending();
        } else if (it->is_regular_file(unknown)) {
            files.push_back(it->path().string());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

void CheckWanted(const std::string& folder, std::vector<Report>* reports) {
    std::vector<const char*> wanted(std::begin(kWanted), std::end(kWanted));
    for (const FixedObject& object : kFixedObjects) {
        wanted.push_back(object.path);
    }
    wanted.push_back(kLightMarkerPath);
    for (const char* const name : wanted) {
        if (FindDataFile(name).empty()) {
            Report report{};
            report.file = (fs::path(folder) / (name + std::strlen("./data/"))).string();
            Refuse(&report, 1, nullptr,
                   {"the file is missing", "the production goes on without it", "put it there"});
            reports->push_back(report);
        }
    }
}

// The sound against the pictures.
void CheckLength(const std::string& folder, double seconds, std::vector<Report>* reports) {
    const std::string track = FindDataFile("./data/cam/scene1.trk");
    const std::int64_t first = track.empty() ? 0 : FramesOfSceneOne(KeysOf(track));
    const double needed = static_cast<double>(first + kSceneTwoFrames) * 0.025;
    if (first == 0 || seconds <= 0.0 || seconds >= needed) {
        return;
    }
    for (Report& report : *reports) {
        if (report.file == (fs::path(folder) / "sfx/soundtrack.mp3").string()) {
            Warn(&report, 0, nullptr,
                 {Format("%.1f s of sound for %.1f s of pictures", seconds, needed),
                  "the end is silent", "make it longer, or the first track shorter"});
        }
    }
}

} // namespace

Kind KindOf(const std::string& path) {
    const std::string ending = SmallLetters(fs::path(path).extension().string());
    for (const KindRow& row : kKinds) {
        if (ending == row.ending) {
            const bool font = row.kind == Kind::Texture && IsFontSheet(path);
            return font ? Kind::Font : row.kind;
        }
    }
    const Kind kind = KindOfBytes(path);
    return kind == Kind::Texture && IsFontSheet(path) ? Kind::Font : kind;
}

const char* NameOfKind(Kind kind) {
    for (const KindRow& row : kKinds) {
        if (row.kind == kind) {
            return row.name;
        }
    }
    return "unknown";
}

std::string DataFolderAround(const std::string& path) {
    std::error_code error;
    const fs::path folder = fs::absolute(path, error).lexically_normal().parent_path();
    const std::string name = SmallLetters(folder.filename().string());
    if (std::any_of(std::begin(kFolders), std::end(kFolders),
                    [&](const char* known) { return name == known; })) {
        return folder.parent_path().string();
    }
    return IsFolder(folder / "3d") || IsFolder(folder / "texture") ? folder.string() : "";
}

Report InspectFile(const std::string& path) {
    Report report{};
    report.file = path;
    // The loaders take a path below "./data" for one in the data folder.
    std::error_code error;
    const std::string whole = fs::absolute(path, error).string();
    ResetWorldOfTool();
    switch (KindOf(path)) {
    case Kind::Object:
        InspectObject(whole, &report);
        break;
    case Kind::Texture:
        InspectTexture(whole, &report);
        break;
    case Kind::Font:
        InspectFont(whole, &report);
        break;
    case Kind::Track:
        InspectTrack(whole, &report);
        break;
    case Kind::List:
        InspectList(whole, &report);
        break;
    case Kind::Sound:
        InspectSound(whole, &report);
        break;
    case Kind::Unknown:
        Refuse(
            &report, fs::exists(path, error) ? 0 : 1, nullptr,
            {fs::exists(path, error) ? "no kind of file that the production reads" : "no such file",
             "it is not opened", "give a .cob, .bmp, .trk, .po or .mp3"});
        break;
    }
    return report;
}

std::vector<Report> InspectFolder(const std::string& folder) {
    const std::vector<std::string> files = FilesOf(folder);
    std::vector<Report> reports;
    std::string tables;
    double seconds = 0.0;
    for (const KindRow& row : kKinds) {
        bool headed = false;
        for (const std::string& file : files) {
            if (KindOf(file) != row.kind) {
                continue;
            }
            tables += headed ? "" : std::string(row.heading) + "\n";
            headed = true;
            Report report = InspectFile(file);
            tables += Format("  %-30s ", fs::path(file).filename().string().c_str()) +
                      report.summary + "\n";
            tables += row.kind == Kind::Track ? report.table : "";
            if (row.kind == Kind::Sound) {
                Report again{};
                seconds = InspectSound(file, &again);
            }
            report.table.clear();
            reports.push_back(report);
        }
    }
    const auto unread = std::count_if(files.begin(), files.end(), [](const std::string& file) {
        return KindOf(file) == Kind::Unknown;
    });
    tables += Format("%zu files, %lld of them of no kind that the production reads\n", files.size(),
                     static_cast<long long>(unread));
    CheckWanted(folder, &reports);
    CheckLength(folder, seconds, &reports);
    if (reports.empty()) {
        reports.push_back({});
    }
    reports[0].table = tables;
    return reports;
}

} // namespace inspect
