// The progress line, on standard error.
#include "progress.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#if __has_include(<unistd.h>)
#include <unistd.h>
#endif

namespace capture {

namespace {

using Seconds = std::chrono::duration<double>;

constexpr double kSecondsBetweenLines = 0.25;
constexpr double kFramesPerSecond = 40.0;

double SecondsSince(std::chrono::steady_clock::time_point then) {
    return Seconds(std::chrono::steady_clock::now() - then).count();
}

} // namespace

Progress StartProgress(std::int64_t total) {
    const auto now = std::chrono::steady_clock::now();
    return {now, now, total, isatty(2) != 0};
}

void ShowProgress(Progress* progress, std::int64_t played) {
    if (!progress->terminal || SecondsSince(progress->lastLine) < kSecondsBetweenLines) {
        return;
    }
    progress->lastLine = std::chrono::steady_clock::now();
    const double rate = static_cast<double>(played) / SecondsSince(progress->start);
    if (progress->total > 0 && rate > 0.0) {
        const auto total = static_cast<double>(progress->total);
        const double left = std::max(0.0, total - static_cast<double>(played)) / rate;
        const auto seconds = std::llround(left);
        std::fprintf(stderr, "\rframe %lld of %lld, %.0f frames per second, %lld:%02lld left   ",
                     static_cast<long long>(played), static_cast<long long>(progress->total), rate,
                     seconds / 60, seconds % 60);
    } else {
        std::fprintf(stderr, "\rframe %lld, %.0f frames per second   ",
                     static_cast<long long>(played), rate);
    }
    std::fflush(stderr);
}

void EndProgress(const Progress& progress, std::int64_t played, std::int64_t recorded) {
    const double seconds = SecondsSince(progress.start);
    const double rate = seconds > 0.0 ? static_cast<double>(played) / seconds : 0.0;
    std::fprintf(stderr,
                 "%s%lld frames played in %.1f s (%.0f per second, %.1f times real time), "
                 "%lld recorded\n",
                 progress.terminal ? "\r" : "", static_cast<long long>(played), seconds, rate,
                 rate / kFramesPerSecond, static_cast<long long>(recorded));
}

} // namespace capture
