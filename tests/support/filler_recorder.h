// Puts recorders in the place of all 45 fillers, so that a test sees which filler was called, with
// what, in what order. ResetFillers() puts the fillers back.
#pragma once

#include <cstdint>

#include "raster/fillers.h"

namespace ombrel {

struct RecordedCall {
    int number; // row of kFillerTable
    ScreenPolygon* address;
    ScreenPolygon polygon; // as it was at the call
    FillTarget target;
};

inline constexpr int kMaxRecordedCalls = 1024;
// Written by the recorders: the calls since RecordFillers(); those after the last place are only
// counted.
extern RecordedCall recordedCalls[kMaxRecordedCalls];
extern int recordedCount;

void RecordFillers(); // all 45; forgets the calls before
void ForgetCalls();

} // namespace ombrel
