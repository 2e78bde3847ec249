// The benchmark program: Google Benchmark's own main and its switches (--benchmark_filter=...).
#include <benchmark/benchmark.h>

BENCHMARK_MAIN();
