// The benchmark program: Google Benchmark and its switches (--benchmark_filter=...), or
// --compare[=PART OF A NAME], the plain code against the vector path in turns.
#include <benchmark/benchmark.h>

#include <cstring>

#include "compare.h"

int main(int argc, char** argv) {
    constexpr char kCompare[] = "--compare";
    constexpr std::size_t length = sizeof kCompare - 1;
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], kCompare, length) == 0) {
            return ombrel::Compare(argv[i][length] == '=' ? argv[i] + length + 1 : nullptr);
        }
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
