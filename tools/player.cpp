// larkfen-player: the production in a window that can be paused, wound to any frame and looked
// into; or a measurement of how fast it is drawn.
#include <cstdint>
#include <cstdio>
#include <string>

#include "base/data_file.h"
#include "base/version.h"
#include "larkfen-capture/production.h"
#include "larkfen-player/options.h"
#include "larkfen-player/timedemo.h"
#include "larkfen-player/window.h"
#include "player/show.h"

namespace {

constexpr int kDone = 0, kFailed = 1, kUsage = 2;

int Refuse(const std::string& why) {
    std::fprintf(stderr, "larkfen-player: %s\n", why.c_str());
    return kUsage;
}

// Empty, or why there is nothing to play.
std::string FindProduction(const player::Options& options) {
    std::string problem = capture::ChooseDataFolder(options.dataFolder);
    if (!problem.empty()) {
        return problem;
    }
    return capture::HasProduction() ? ""
                                    : ombrel::DataFolder() + ": no data of the production is in it";
}

int Play(const player::Options& options, std::int64_t whole, ombrel::VectorPath path,
         player::Watch* watch) {
    const std::int64_t end = whole > 0 ? whole - 1 : INT32_MAX - 1;
    const auto last = static_cast<std::int32_t>(options.to < end ? options.to : end);
    const auto first = static_cast<std::int32_t>(options.from < last ? options.from : last);
    if (options.timeDemo) {
        return player::RunTimeDemo({first, last, options.json, ombrel::NameOf(path)});
    }
    return player::RunWindow({first, last, static_cast<std::int32_t>(whole > 0 ? whole : 0),
                              options.loop, options.fullScreen, options.look, watch});
}

} // namespace

int main(int argc, char** argv) {
    player::Options options;
    const std::string wrong = player::ReadOptions(argc, argv, &options);
    if (!wrong.empty()) {
        return Refuse(wrong);
    }
    if (options.help) {
        std::fputs(player::HelpText().c_str(), stdout);
        return kDone;
    }
    if (options.version) {
        std::printf("larkfen-player %s\n", ombrel::kVersion);
        return kDone;
    }
    const std::string noData = FindProduction(options);
    if (!noData.empty()) {
        return Refuse(noData);
    }
    const ombrel::VectorPath path = capture::ChoosePath("larkfen-player");
    const std::int64_t whole = capture::FramesOfProduction();
    const std::string outside = player::CheckRange(options, whole);
    if (!outside.empty()) {
        return Refuse(outside);
    }
    player::Watch watch;
    const std::string unwatched = options.watch ? OpenWatch(&watch, ombrel::DataFolder()) : "";
    if (!unwatched.empty()) {
        return Refuse(unwatched);
    }
    if (!player::OpenProduction()) {
        std::fprintf(stderr, "larkfen-player: the production could not be opened\n");
        return kFailed;
    }
    const int result = Play(options, whole, path, options.watch ? &watch : nullptr);
    ombrel::CloseShow();
    CloseWatch(&watch);
    return result;
}
