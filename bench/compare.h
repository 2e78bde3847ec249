// larkfen-bench --compare: plain code against the chosen vector path, row by row. The two take
// turns, so that whatever else slows the machine down slows both; a row shows the median of the
// ratios of all rounds. Each file of rows gives a list of its own.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/vector_path.h"

namespace ombrel {

// How many times as fast a path is to be; 0: nothing was promised.
struct CompareGoals {
    double sse, avx2, avx512;
};
struct CompareRow {
    std::string name;
    CompareGoals goals;
    // Does the work once with the plain code (Scalar) or with a path; the seconds that it took, by
    // ProcessorSeconds.
    std::function<double(VectorPath)> seconds;
};

// The time that this program has had the processor; what else runs does not count.
double ProcessorSeconds();

std::vector<CompareRow> FillerRows();   // compare_fillers.cpp
std::vector<CompareRow> FrontEndRows(); // compare_front_end.cpp

// Runs all rows, or those whose name holds filter (null: all), and prints the table. The path is
// the one that RASTER_USE names, else the best. Returns the exit code of the program.
int Compare(const char* filter);

} // namespace ombrel
