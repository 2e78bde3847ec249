// A row of the blur, once for every lane set.
#pragma once

#include "lanes/inline.h"
#include "raster/paths.h"

namespace ombrel {
namespace {

template <class L> OMBREL_INLINE void BlurBlock(const BlurredRow& work, std::int32_t x) {
    constexpr int parts = L::kParts;
    L::template StorePixels<parts>(work.row + x,
                                   L::MeanOf(L::template LoadPixels<parts>(work.above + x - 2),
                                             L::template LoadPixels<parts>(work.above + x + 2),
                                             L::template LoadPixels<parts>(work.below + x - 2),
                                             L::template LoadPixels<parts>(work.below + x + 2)));
}

// The last pixels are done with some before them once more: the row itself is not read.
template <class L> void BlurRow(const BlurredRow& work) {
    constexpr std::int32_t kBlock = L::kParts * L::kLanes;
    if (work.count < kBlock) {
        if (kBlock > 1) {
            kPlainPath.blurRow(work);
        }
        return;
    }
    for (std::int32_t x = 0; x + kBlock <= work.count; x += kBlock) {
        BlurBlock<L>(work, x);
    }
    if (work.count % kBlock != 0) {
        BlurBlock<L>(work, work.count - kBlock);
    }
}

} // namespace
} // namespace ombrel
