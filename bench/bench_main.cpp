// larkfen-bench: every benchmark of the program; --benchmark_filter=Fill/ picks some, --help tells
// more.
#include <benchmark/benchmark.h>

BENCHMARK_MAIN();
