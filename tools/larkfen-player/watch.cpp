// Looking, judging, copying.
#include "watch.h"

#include <stdlib.h>

#include <system_error>

#include "base/data_file.h"
#include "base/float_mode.h"
#include "demo/reset.h"
#include "larkfen-inspect/folder.h"
#include "larkfen-inspect/list.h"
#include "math/vec3.h"
#include "platform/system.h"
#include "raster/blend_tables.h"

namespace player {

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::milliseconds kEvery{300};

FileMarks MarksOf(const std::string& folder) {
    FileMarks marks;
    std::error_code error;
    for (fs::recursive_directory_iterator file(folder, error), end; !error && file != end;
         file.increment(error)) {
        // (A file may go while it is asked about.)
        std::error_code gone;
        const std::string name = file->path().lexically_relative(folder).string();
        if (name.front() == '.' || !file->is_regular_file(gone)) {
            continue;
        }
        const FileMark mark = {file->file_size(gone), file->last_write_time(gone)};
        if (!gone) {
            marks[name] = mark;
        }
    }
    return marks;
}

bool CopyOne(const Watch& watch, const std::string& name) {
    std::error_code error;
    const fs::path to = fs::path(watch.copy) / name;
    fs::create_directories(to.parent_path(), error);
    return fs::copy_file(fs::path(watch.folder) / name, to, fs::copy_options::overwrite_existing,
                         error);
}

// Empty, or what is wrong with a file.
std::string Judge(const std::string& folder, const std::string& name) {
    const inspect::Report report = inspect::InspectFile(folder + "/" + name);
    for (const inspect::Finding& finding : report.findings) {
        if (finding.weight == inspect::Weight::Broken) {
            return name + ":" + std::to_string(finding.place) + ": " +
                   finding.text.substr(0, finding.text.find(';'));
        }
    }
    return "";
}

bool MayBeRead(const std::string& name) {
    return inspect::KindOf(name) != inspect::Kind::Unknown;
}

// Empty, or the first file that is broken or gone.
std::string JudgeChanges(const Watch& watch) {
    for (const auto& [name, mark] : watch.played) {
        if (watch.taken.find(name) == watch.taken.end()) {
            return name + " is gone";
        }
    }
    for (const auto& [name, mark] : watch.taken) {
        const auto old = watch.played.find(name);
        if (MayBeRead(name) && (old == watch.played.end() || !(old->second == mark))) {
            std::string problem = Judge(watch.folder, name);
            if (!problem.empty()) {
                return problem;
            }
        }
    }
    return "";
}

} // namespace

std::string OpenWatch(Watch* watch, const std::string& folder) {
    std::error_code error;
    std::string name = (fs::temp_directory_path(error) / "larkfen-player-XXXXXX").string();
    if (error || mkdtemp(name.data()) == nullptr) {
        return "--watch: there is no place for a copy of the data: " + name;
    }
    *watch = {fs::absolute(folder, error).string(), name, {}, {}, {}, {}};
    watch->taken = watch->played = watch->seen = MarksOf(watch->folder);
    for (const auto& [file, mark] : watch->played) {
        if (!CopyOne(*watch, file)) {
            CloseWatch(watch);
            return std::string("--watch: ")
                .append(file)
                .append(" could not be copied to ")
                .append(name);
        }
    }
    ombrel::SetDataFolder(watch->copy);
    return "";
}

void CloseWatch(Watch* watch) {
    if (!watch->copy.empty()) {
        std::error_code error;
        fs::remove_all(watch->copy, error);
    }
    *watch = {};
}

bool HasChanged(Watch* watch) {
    const auto now = std::chrono::steady_clock::now();
    if (watch->copy.empty() || now < watch->next) {
        return false;
    }
    watch->next = now + kEvery;
    FileMarks marks = MarksOf(watch->folder);
    const bool rests = marks == watch->seen;
    watch->seen = std::move(marks);
    if (!rests || watch->seen == watch->taken) {
        return false;
    }
    watch->taken = watch->seen;
    return true;
}

std::string TakeChanges(Watch* watch) {
    // As at start-up: tables while rounding to nearest, then cut.
    ombrel::SetDataFolder(watch->folder);
    ombrel::InitTrigTables();
    ombrel::BuildBlendTables(ombrel::kBlendTableCount, ombrel::BlendTables[0]);
    ombrel::SetRenderFloatMode();
    std::string problem = JudgeChanges(*watch);
    ombrel::ResetWorld();
    ombrel::SetDataFolder(watch->copy);
    if (!problem.empty()) {
        return problem;
    }
    for (const auto& [name, mark] : watch->taken) {
        const auto old = watch->played.find(name);
        const bool same = old != watch->played.end() && old->second == mark;
        if (!same && !CopyOne(*watch, name)) {
            return name + " could not be copied";
        }
    }
    watch->played = watch->taken;
    return "";
}

} // namespace player
