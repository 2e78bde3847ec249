// Whole frames of the production on the shipped data, and the passes over the whole picture. Frames
// are played one after another from the first on, so that an iteration is an average of the flight.
// RASTER_USE names the path.
#include <benchmark/benchmark.h>

#include <vector>

#include "app/frame_driver.h"
#include "app/shell.h"
#include "app/vector_choice.h"
#include "base/data_file.h"
#include "base/float_mode.h"
#include "base/shell_state.h"
#include "demo/blur.h"
#include "demo/reset.h"
#include "demo/startup.h"
#include "platform/system.h"
#include "scene/camera.h"

namespace ombrel {
namespace {

constexpr std::uint32_t kFramesOfAStretch = 400;

void StartOver() {
    ResetWorld();
    SetDataFolder(DataFolderOf(ProgramFolder()));
    shell.windowed = 1;
    shell.noSound = true;
    ChooseVectorPath(nullptr);
    StartUp();
    driver.frameCapSwitch = 0;
}

// The first stretch of a scene, over and over; its lights go on fading in.
void PlayScene(benchmark::State& state, std::int32_t scene) {
    StartOver();
    std::uint32_t last = 0;
    for (auto _ : state) {
        if (driver.frameCounter == last) {
            state.PauseTiming();
            trackSegment = 0;
            trackT = 0.0F;
            driver.sceneIndex = scene;
            last = driver.frameCounter + kFramesOfAStretch;
            state.ResumeTiming();
        }
        RenderFrame();
        driver.sceneIndex = scene;
    }
    state.counters["frames"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
    ResetWorld();
    SetFloatMode(FloatMode::Nearest);
}

void BM_Flight(benchmark::State& state) {
    PlayScene(state, 0);
}
BENCHMARK(BM_Flight)->Name("Frame/flight")->Unit(benchmark::kMillisecond)->Iterations(400);

void BM_Night(benchmark::State& state) {
    PlayScene(state, 1);
}
BENCHMARK(BM_Night)->Name("Frame/night")->Unit(benchmark::kMillisecond)->Iterations(400);

void BM_Blur(benchmark::State& state) {
    constexpr std::int32_t width = 640, height = 480;
    std::vector<Pixel16> picture(width * height);
    for (std::size_t i = 0; i < picture.size(); ++i) {
        picture[i] = static_cast<Pixel16>(i * 40503U >> 3);
    }
    ChooseVectorPath(nullptr);
    for (auto _ : state) {
        BlurFrame(picture.data(), width, width, height);
        benchmark::ClobberMemory();
    }
    state.counters["pixels"] = benchmark::Counter(
        static_cast<double>(state.iterations()) * width * height, benchmark::Counter::kIsRate);
    ResetWorld();
}
BENCHMARK(BM_Blur)->Name("Frame/Blur")->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace ombrel
