// Fill/<FillerName>/large and Fill/<FillerName>/25: every filler in use, on triangles of 60,000 and
// of 25 pixels, in pixels and triangles a second. RASTER_USE names the path.
#include <benchmark/benchmark.h>

#include <chrono>
#include <string>

#include "app/vector_choice.h"
#include "base/float_mode.h"
#include "fill_scene.h"

namespace ombrel {
namespace {

void FillTriangles(benchmark::State& state, std::int32_t id, std::int32_t trianglePixels) {
    FillScene* scene = MakeFillScene(trianglePixels);
    const ScopedFloatMode mode(FloatMode::Chop);
    const FillTarget target = scene->Target();
    ChooseVectorPath(nullptr);
    for (auto _ : state) {
        scene->Clear(kFillerTable[id].depth);
        const auto start = std::chrono::steady_clock::now();
        for (ScreenPolygon& polygon : scene->polygons) {
            activeFillers[id](&polygon, target);
        }
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(taken.count());
        benchmark::ClobberMemory();
    }
    const auto rounds = static_cast<double>(state.iterations());
    const auto triangles = static_cast<double>(scene->polygons.size());
    state.counters["pixels"] = benchmark::Counter(rounds * static_cast<double>(scene->pixels),
                                                  benchmark::Counter::kIsRate);
    state.counters["triangles"] =
        benchmark::Counter(rounds * triangles, benchmark::Counter::kIsRate);
    delete scene;
}

[[maybe_unused]] const bool registered = [] {
    for (std::int32_t id = 0; id < kFillerCount; ++id) {
        const std::string name = std::string("Fill/") + kFillerTable[id].name;
        benchmark::RegisterBenchmark((name + "/large").c_str(), FillTriangles, id, 60000)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark((name + "/25").c_str(), FillTriangles, id, 25)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    }
    return true;
}();

} // namespace
} // namespace ombrel
