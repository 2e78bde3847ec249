// Takes the rows in turns and prints the table.
#include "compare.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "app/vector_choice.h"

namespace ombrel {

double ProcessorSeconds() {
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

namespace {

constexpr int kRounds = 9;
constexpr double kSecondsOfATurn = 0.05;

// The seconds of one piece of work, over turns long enough for the clock.
double Turn(const CompareRow& row, VectorPath path, int repeats) {
    double best = row.seconds(path);
    for (int i = 1; i < repeats; ++i) {
        best = std::min(best, row.seconds(path));
    }
    return best;
}

double GoalOf(const CompareRow& row, VectorPath path) {
    return path == VectorPath::Sse      ? row.goals.sse
           : path == VectorPath::Avx2   ? row.goals.avx2
           : path == VectorPath::Avx512 ? row.goals.avx512
                                        : 0.0;
}

void CompareOne(const CompareRow& row, VectorPath path) {
    // The first turns warm up and tell how often the work fits into a turn.
    const double first = std::max({row.seconds(VectorPath::Scalar), row.seconds(path), 1e-7});
    const int repeats = std::clamp(static_cast<int>(kSecondsOfATurn / first), 1, 1000);
    std::vector<double> ratios, scalars, fasts;
    for (int round = 0; round < kRounds; ++round) {
        scalars.push_back(Turn(row, VectorPath::Scalar, repeats));
        fasts.push_back(Turn(row, path, repeats));
        ratios.push_back(scalars.back() / fasts.back());
    }
    for (std::vector<double>* list : {&ratios, &scalars, &fasts}) {
        std::sort(list->begin(), list->end());
    }
    const double ratio = ratios[kRounds / 2], goal = GoalOf(row, path);
    std::printf("%-32s %10.1f %10.1f %7.2f ", row.name.c_str(), scalars[kRounds / 2] * 1e6,
                fasts[kRounds / 2] * 1e6, ratio);
    if (goal > 0.0) {
        std::printf("%7.2f %s\n", goal, ratio >= goal ? "reached" : "missed");
    } else {
        std::printf("%7s\n", "-");
    }
    std::fflush(stdout);
}

} // namespace

int Compare(const char* filter) {
    const char* wish = std::getenv(kPathVariable);
    bool understood = true;
    const VectorPath path = PathFor(wish, &understood);
    if (!understood) {
        std::fprintf(stderr, "%s=%s cannot be had here; taking %s\n", kPathVariable, wish,
                     NameOf(path));
    }
    std::printf("scalar against %s, %d rounds in turns, median of ratios\n", NameOf(path), kRounds);
    std::printf("%-32s %10s %10s %7s %7s\n", "what", "scalar us", "path us", "times", "goal");
    std::vector<CompareRow> rows = FillerRows();
    for (CompareRow& row : FrontEndRows()) {
        rows.push_back(std::move(row));
    }
    for (const CompareRow& row : rows) {
        if (filter == nullptr || row.name.find(filter) != std::string::npos) {
            CompareOne(row, path);
        }
    }
    return 0;
}

} // namespace ombrel
