// Times of frames, and their table.
#include "timedemo.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <iterator>
#include <utility>
#include <vector>

#include "app/frame_driver.h"
#include "app/vector_choice.h"
#include "base/data_file.h"
#include "base/shell_state.h"
#include "base/version.h"
#include "larkfen-capture/processor.h"
#include "larkfen-capture/published.h"
#include "platform/display.h"
#include "platform/system.h"
#include "player/chapters.h"
#include "player/show.h"

namespace player {

namespace {

using Clock = std::chrono::steady_clock;

struct FrameTime {
    std::int32_t frame;
    std::int32_t scene; // that drew it
    FrameMs ms;
};

constexpr const char* kPartNames[ombrel::kFramePartCount] = {"step", "front end", "raster",
                                                             "blur", "texts",     "rest"};

// The frame that is drawn, or was last; the part that it is in, since when.
struct Running {
    FrameMs ms;
    std::int32_t part;
    Clock::time_point since;
};
constinit Running running = {};

std::vector<std::uint64_t> published; // of the show that is open

void BeginPart(ombrel::FramePart begins) {
    const Clock::time_point now = Clock::now();
    running.ms.parts[running.part] +=
        std::chrono::duration<double, std::milli>(now - running.since).count();
    running.part = static_cast<std::int32_t>(begins);
    running.since = now;
}

// What a stretch of frames took.
struct Row {
    const char* name;
    std::int32_t first, last, frames;
    double perSecond, median, slow, worst; // frames; ms: half and 99 of 100 are not slower
    std::int32_t worstFrame;
    double parts[ombrel::kFramePartCount]; // ms, mean
};

// Of times that are at least one.
Row RowOf(const char* name, std::vector<FrameTime> times) {
    Row row{};
    row.name = name;
    row.first = times.front().frame;
    row.last = times.back().frame;
    row.frames = static_cast<std::int32_t>(times.size());
    double sum = 0.0;
    for (const FrameTime& time : times) {
        sum += time.ms.whole;
        for (std::int32_t part = 0; part < ombrel::kFramePartCount; ++part) {
            row.parts[part] += time.ms.parts[part] / static_cast<double>(times.size());
        }
    }
    std::sort(times.begin(), times.end(),
              [](const FrameTime& a, const FrameTime& b) { return a.ms.whole < b.ms.whole; });
    const std::size_t last = times.size() - 1;
    row.perSecond = sum > 0.0 ? static_cast<double>(times.size()) * 1000.0 / sum : 0.0;
    row.median = times[last / 2].ms.whole;
    row.slow = times[last * 99 / 100].ms.whole;
    row.worst = times[last].ms.whole;
    row.worstFrame = times[last].frame;
    return row;
}

template <class Belongs>
void AddRow(const char* name, const std::vector<FrameTime>& times, Belongs belongs,
            std::vector<Row>* rows) {
    std::vector<FrameTime> some;
    std::copy_if(times.begin(), times.end(), std::back_inserter(some), belongs);
    if (!some.empty()) {
        rows->push_back(RowOf(name, std::move(some)));
    }
}

std::vector<Row> RowsOf(const std::vector<FrameTime>& times) {
    std::vector<Row> rows;
    AddRow(
        "all", times, [](const FrameTime&) { return true; }, &rows);
    constexpr const char* kScenes[] = {"scene one", "scene two"};
    for (std::int32_t scene = 0; scene < 2; ++scene) {
        AddRow(
            kScenes[scene], times, [=](const FrameTime& t) { return t.scene == scene; }, &rows);
    }
    for (std::int32_t i = 0; i < ombrel::kChapterCount; ++i) {
        AddRow(
            ombrel::kChapters[i].name, times,
            [=](const FrameTime& t) { return ombrel::ChapterOf(t.frame) == i; }, &rows);
    }
    return rows;
}

void PrintTable(const TimeDemo& demo, const std::vector<Row>& rows) {
    std::printf("Ombrel %s, %dx%d, %s, path %s\n", ombrel::kVersion, ombrel::display.width,
                ombrel::display.height, capture::ProcessorName().c_str(), demo.path.c_str());
    std::printf("%-11s%12s%8s%10s%11s%9s%11s%7s\n", "part", "frames", "number", "a second",
                "median ms", "99 % ms", "worst ms", "frame");
    for (const Row& row : rows) {
        char range[32];
        std::snprintf(range, sizeof range, "%d-%d", row.first, row.last);
        std::printf("%-11s%12s%8d%10.1f%11.2f%9.2f%11.2f%7d\n", row.name, range, row.frames,
                    row.perSecond, row.median, row.slow, row.worst, row.worstFrame);
    }
}

// What a frame spends its time on.
void PrintParts(const std::vector<Row>& rows) {
    std::printf("\n%-11s", "mean ms");
    for (const char* const name : kPartNames) {
        std::printf("%11s", name);
    }
    for (const Row& row : rows) {
        std::printf("\n%-11s", row.name);
        for (const double ms : row.parts) {
            std::printf("%11.3f", ms);
        }
    }
    std::printf("\n");
}

// Names and processors hold nothing that JSON would want escaped but these two.
std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c == '"' || c == '\\' ? std::string("\\") + c : std::string(1, c);
    }
    return quoted + "\"";
}

void PrintJson(const TimeDemo& demo, const std::vector<Row>& rows) {
    std::printf("{\"version\": %s, \"width\": %d, \"height\": %d, \"processor\": %s, "
                "\"path\": %s, \"parts\": [",
                Quoted(ombrel::kVersion).c_str(), ombrel::display.width, ombrel::display.height,
                Quoted(capture::ProcessorName()).c_str(), Quoted(demo.path).c_str());
    for (const Row& row : rows) {
        std::printf("%s\n  {\"name\": %s, \"first\": %d, \"last\": %d, \"frames\": %d, "
                    "\"frames_per_second\": %.3f, \"median_ms\": %.4f, \"p99_ms\": %.4f, "
                    "\"worst_ms\": %.4f, \"worst_frame\": %d",
                    &row == rows.data() ? "" : ",", Quoted(row.name).c_str(), row.first, row.last,
                    row.frames, row.perSecond, row.median, row.slow, row.worst, row.worstFrame);
        for (std::int32_t part = 0; part < ombrel::kFramePartCount; ++part) {
            std::printf("%s%s: %.4f", part == 0 ? ", \"mean_ms\": {" : ", ",
                        Quoted(kPartNames[part]).c_str(), row.parts[part]);
        }
        std::printf("}}");
    }
    std::printf("\n]}\n");
}

} // namespace

bool OpenProduction() {
    constexpr std::int32_t kWidth = 640, kHeight = 480;
    ombrel::ChooseVectorPath(nullptr);
    published = capture::PublishedHashes(ombrel::DataFolder(), ombrel::ProgramFolder());
    return ombrel::OpenShow({TimedRenderFrame,
                             kWidth,
                             kHeight,
                             0,
                             0,
                             {published.data(), static_cast<std::int32_t>(published.size())}});
}

int TimedRenderFrame() {
    const Clock::time_point start = Clock::now();
    running = {{}, static_cast<std::int32_t>(ombrel::FramePart::Rest), start};
    ombrel::frameProbe = BeginPart;
    const int result = ombrel::RenderFrame();
    BeginPart(ombrel::FramePart::Rest); // ends the last one
    ombrel::frameProbe = nullptr;
    running.ms.whole = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    return result;
}

const FrameMs& LastFrameMs() {
    return running.ms;
}

const char* NameOfPart(std::int32_t part) {
    return kPartNames[part];
}

int RunTimeDemo(const TimeDemo& demo) {
    if (demo.first > 0 && ombrel::SeekShow(demo.first - 1, nullptr, nullptr) != demo.first - 1) {
        std::fprintf(stderr, "larkfen-player: the production ended before frame %d\n", demo.first);
        return 1;
    }
    std::vector<FrameTime> times;
    while (ombrel::ShownFrame() < demo.last) {
        const std::int32_t scene = ombrel::driver.sceneIndex;
        if (!ombrel::StepShow()) {
            break;
        }
        times.push_back({ombrel::ShownFrame(), scene, running.ms});
    }
    if (times.empty()) {
        std::fprintf(stderr, "larkfen-player: the production ended before frame %d\n", demo.first);
        return 1;
    }
    const std::vector<Row> rows = RowsOf(times);
    (demo.json ? PrintJson : PrintTable)(demo, rows);
    if (!demo.json) {
        PrintParts(rows);
    }
    return std::fflush(stdout) == 0 ? 0 : 1;
}

} // namespace player
