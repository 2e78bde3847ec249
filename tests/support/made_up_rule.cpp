#include "made_up_rule.h"

#include "lanes/pixels_plain.h"
#include "raster/triangle.h"
#if defined(__SSE4_1__)
#include "lanes/pixels_sse41.h"
#elif defined(__aarch64__)
#include "lanes/pixels_neon.h"
#endif

namespace ombrel {
namespace {

// Says all that there is to say about it; src/ does not know it.
struct ExclusiveOr : Set {
    static constexpr bool kMixes = true;
    template <class L>
    OMBREL_INLINE static Pixels<L> Write(const Brush<L>&, Pixels<L> source, Pixels<L> there) {
        return source ^ there;
    }
};
using MadeUp = Rules<W, Affine, Gouraud, ExclusiveOr, Open>;

template <class L> bool Fill(ScreenPolygon* polygon, const FillTarget& target) {
    return FillOrdinary<L, MadeUp>(polygon, target);
}

} // namespace

const MadeUpFiller kMadeUpPlain = Fill<PlainPixels>;
#if defined(__SSE4_1__)
const MadeUpFiller kMadeUpVector = Fill<Sse41Pixels>;
#elif defined(__aarch64__)
const MadeUpFiller kMadeUpVector = Fill<NeonPixels>;
#else
const MadeUpFiller kMadeUpVector = nullptr;
#endif

} // namespace ombrel
