// How far the recording is: a line that renews itself on a terminal, one line at the end elsewhere.
#pragma once

#include <chrono>
#include <cstdint>

namespace capture {

struct Progress {
    std::chrono::steady_clock::time_point start;
    std::chrono::steady_clock::time_point lastLine;
    std::int64_t total; // frames to play; 0: not known
    bool terminal;      // of standard error
};

Progress StartProgress(std::int64_t total);
void ShowProgress(Progress* progress, std::int64_t played);
void EndProgress(const Progress& progress, std::int64_t played, std::int64_t recorded);

} // namespace capture
