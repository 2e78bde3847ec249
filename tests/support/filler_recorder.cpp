#include "filler_recorder.h"

#include <utility>

namespace ombrel {

constinit RecordedCall recordedCalls[kMaxRecordedCalls] = {};
constinit int recordedCount = 0;

namespace {

template <int kNumber> void Record(ScreenPolygon* polygon, const FillTarget& target) {
    if (recordedCount < kMaxRecordedCalls) {
        recordedCalls[recordedCount] = {kNumber, polygon, *polygon, target};
    }
    ++recordedCount;
}

template <int... kNumbers> void RecordAll(std::integer_sequence<int, kNumbers...>) {
    ((activeFillers[kNumbers] = Record<kNumbers>), ...);
}

} // namespace

void RecordFillers() {
    RecordAll(std::make_integer_sequence<int, kFillerCount>{});
    recordedCount = 0;
}

void ForgetCalls() {
    recordedCount = 0;
}

} // namespace ombrel
