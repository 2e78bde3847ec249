// Seeks of the players on the shipped production: cold, where nothing was played before, by way of
// the published hashes and without them, and where the neighbourhood was played. The argument is
// the frame; 3778 is the one with the longest way. RASTER_USE names the path.
#include <benchmark/benchmark.h>

#include <vector>

#include "app/frame_driver.h"
#include "app/shell.h"
#include "app/vector_choice.h"
#include "base/data_file.h"
#include "base/float_mode.h"
#include "larkfen-capture/published.h"
#include "platform/system.h"
#include "player/show.h"

namespace ombrel {
namespace {

// Before the first frame. hashes: may be empty.
void OpenCold(const std::vector<std::uint64_t>& hashes) {
    CloseShow();
    SetDataFolder(DataFolderOf(ProgramFolder()));
    ChooseVectorPath(nullptr);
    OpenShow(
        {RenderFrame, 640, 480, 0, 0, {hashes.data(), static_cast<std::int32_t>(hashes.size())}});
}

void Close() {
    CloseShow();
    SetFloatMode(FloatMode::Nearest);
}

std::vector<std::uint64_t> Hashes() {
    return capture::PublishedHashes(DataFolderOf(ProgramFolder()), ProgramFolder());
}

void SeekCold(benchmark::State& state, const std::vector<std::uint64_t>& hashes) {
    for (auto _ : state) {
        state.PauseTiming();
        OpenCold(hashes);
        state.ResumeTiming();
        SeekShow(static_cast<std::int32_t>(state.range(0)), nullptr, nullptr);
    }
    Close();
}

void BM_Cold(benchmark::State& state) {
    const std::vector<std::uint64_t> hashes = Hashes();
    if (hashes.empty()) {
        state.SkipWithError("there is no frame-hashes.txt beside the program");
    }
    SeekCold(state, hashes);
}
void BM_ColdWithoutHashes(benchmark::State& state) {
    SeekCold(state, {});
}

// To and fro within 200 frames that were played.
void BM_Played(benchmark::State& state) {
    const auto middle = static_cast<std::int32_t>(state.range(0));
    OpenCold(Hashes());
    for (std::int32_t frame = middle - 100; frame <= middle + 100; ++frame) {
        SeekShow(frame, nullptr, nullptr);
    }
    std::int32_t offset = 0;
    for (auto _ : state) {
        offset = (offset + 83) % 200;
        SeekShow(middle - 100 + offset, nullptr, nullptr);
    }
    Close();
}

void AtSomeFrames(benchmark::internal::Benchmark* benchmark) {
    for (const int frame : {1810, 2700, 3470, 3778, 4900, 5950}) {
        benchmark->Arg(frame);
    }
    benchmark->Unit(benchmark::kMillisecond);
}
BENCHMARK(BM_Played)->Name("Seek/played")->Apply(AtSomeFrames)->Iterations(40);
BENCHMARK(BM_Cold)->Name("Seek/cold")->Apply(AtSomeFrames)->Iterations(1);
BENCHMARK(BM_ColdWithoutHashes)
    ->Name("Seek/cold_without_hashes")
    ->Apply(AtSomeFrames)
    ->Iterations(1);

} // namespace
} // namespace ombrel
