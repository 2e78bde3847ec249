// Whole productions one after another in one process, over the offscreen back end: what they hold
// of memory and descriptors after each must be what they held after the first.
//   soak [--fast] [--scenes N] [--data DIR] [--size WxH] COUNT
// --fast: the camera goes on to the next part of its way with every frame, and the long middle of
// scene two is left out; --scenes N: only the first N frames of each scene. Exit code 0: nothing
// grew.
#include <malloc.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "app/shell.h"
#include "app/vector_choice.h"
#include "base/data_file.h"
#include "base/shell_state.h"
#include "demo/reset.h"
#include "platform/system.h"
#include "scene/camera.h"
#include "support/production_run.h"

namespace {

using namespace ombrel;

// Sanitizers and the C library keep pages of their own; the bytes in use may not differ at all.
constexpr std::int64_t kRoom = 2 << 20;

struct Options {
    bool fast = false;
    std::int64_t scenes = 0; // frames of each; 0: whole
    int count = 0;
    std::string production = "-w";
};

struct Pace {
    const Options* options;
    std::int64_t frames, begun; // shown; of scene two
};

void OnFrame(const PresentedFrame&, void* user) {
    auto* const pace = static_cast<Pace*>(user);
    const Options& options = *pace->options;
    ++pace->frames;
    pace->begun += driver.sceneIndex == 1 ? 1 : 0;
    if (options.fast) {
        trackT = 1.0F;
        LeaveOutTheMiddle();
    }
    if (options.scenes > 0) {
        if (pace->frames == options.scenes) {
            driver.sceneIndex = 1;
        }
        if (pace->begun == options.scenes + 1) {
            PostQuit(0);
        }
    }
}

struct Holdings {
    std::int64_t inUse;       // bytes of the C library's memory
    std::int64_t resident;    // bytes of the process
    std::int64_t descriptors; // open
};

Holdings Measure() {
    std::int64_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    std::int64_t descriptors = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        descriptors += entry.path().empty() ? 0 : 1;
    }
    const auto inUse = mallinfo2();
    return {static_cast<std::int64_t>(inUse.uordblks + inUse.hblkhd), pages * 4096, descriptors};
}

// False when the frames were not as many as of the first, or something grew.
bool Hold(const Holdings& now, const Holdings& first, int number) {
    if (now.inUse > first.inUse || now.resident > first.resident + kRoom ||
        now.descriptors != first.descriptors) {
        std::printf("production %d holds more than the first\n", number);
        return false;
    }
    return true;
}

bool ReadOptions(int argc, char** argv, Options* options) {
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        const char* const value = i + 1 < argc ? argv[i + 1] : "";
        if (word == "--fast") {
            options->fast = true;
        } else if (word == "--scenes") {
            options->scenes = std::atoi(value);
            ++i;
        } else if (word == "--data") {
            SetDataFolder(value);
            ++i;
        } else if (word == "--size") {
            options->production += std::string(" -resolution=") + value;
            ++i;
        } else {
            options->count = std::atoi(argv[i]);
        }
    }
    return options->count > 0;
}

} // namespace

int main(int argc, char** argv) {
    SetDataFolder(DataFolderOf(ProgramFolder()));
    // The C library's lists of freed blocks would count as in use: start again without them.
    if (std::getenv("GLIBC_TUNABLES") == nullptr) {
        setenv("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0", 1);
        execv("/proc/self/exe", argv);
    }
    // As it is played where nobody says otherwise.
    setenv(kPathVariable, NameOf(VectorPath::Avx2), 0);
    Options options;
    if (!ReadOptions(argc, argv, &options)) {
        std::fprintf(stderr, "soak [--fast] [--scenes N] [--data DIR] [--size WxH] COUNT\n");
        return 2;
    }
    std::printf("%d productions%s\n", options.count, options.fast ? ", hurried on" : "");
    Holdings first{};
    std::int64_t firstFrames = 0;
    int failures = 0;
    for (int i = 1; i <= options.count; ++i) {
        Pace pace{&options, 0, 0};
        ResetForRun();
        script.onFrame = OnFrame;
        script.user = &pace;
        const int result = RunProduction(options.production.c_str());
        ResetWorld();
        ResetOffscreen();
        const Holdings now = Measure();
        std::printf("production %2d: exit %d, %lld frames, %lld bytes in use, %lld KiB resident, "
                    "%lld descriptors\n",
                    i, result, static_cast<long long>(pace.frames),
                    static_cast<long long>(now.inUse), static_cast<long long>(now.resident / 1024),
                    static_cast<long long>(now.descriptors));
        std::fflush(stdout);
        if (i == 1) {
            first = now;
            firstFrames = pace.frames;
        }
        if (result != 0 || pace.frames != firstFrames || firstFrames < 60 || !Hold(now, first, i)) {
            ++failures;
        }
    }
    std::printf("%d passed, %d failed\n", options.count - failures, failures);
    return failures == 0 ? 0 : 1;
}
