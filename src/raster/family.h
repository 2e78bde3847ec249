// The family of fillers over one lane set: the rows of the table as functions. Included by each
// path_<lane set>.cpp, which is built for its own processor; so everything here is that file's own.
#pragma once

#include "raster/blur_row.h"
#include "raster/fillers.h"
#include "raster/paths.h"
#include "raster/triangle.h"

namespace ombrel {
namespace {

template <FillerId id> struct RowOf;
#define OMBREL_RULES(name, ...)                                                                    \
    template <> struct RowOf<FillerId::name> { using Type = Rules<__VA_ARGS__>; };
OMBREL_FILLERS(OMBREL_RULES)
#undef OMBREL_RULES

template <class L, FillerId id>
[[gnu::flatten]] void Fill(ScreenPolygon* polygon, const FillTarget& target) {
    if (!FillOrdinary<L, typename RowOf<id>::Type>(polygon, target)) [[unlikely]] {
        kCarefulFillers[static_cast<int>(id)](polygon, target);
    }
}

template <class L>
constexpr RasterPath kPathOf = {
#define OMBREL_FILLER(name, ...) Fill<L, FillerId::name>,
    {OMBREL_FILLERS(OMBREL_FILLER)},
#undef OMBREL_FILLER
    BlurRow<L>};

} // namespace
} // namespace ombrel
