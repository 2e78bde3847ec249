// Back to front: the face list's pointers by the depth of their faces. Records stay where they are.
// The quick sort is our own, because the C library's differs from system to system where depths are
// equal, and the order of equal depths shows.
#include <algorithm>
#include <cstddef>

#include "scene/pipeline.h"

namespace ombrel {

namespace {

Single AverageDepth(const RenderFace& face) {
    return (face.work[0].z + face.work[1].z + face.work[2].z) * 0.33333F;
}

Single NearestDepth(const RenderFace& face) {
    return std::min(std::min(face.work[0].z, face.work[1].z), face.work[2].z);
}

Single FarthestDepth(const RenderFace& face) {
    return std::max(std::max(face.work[0].z, face.work[1].z), face.work[2].z);
}

// Deeper comes first. REQUIRED R36: equal depths (and NaN) compare as equal, with no second key.
int CompareDepths(Single a, Single b) {
    return a > b ? -1 : a < b ? 1 : 0;
}

template <Single (*Depth)(const RenderFace&)> int CompareElements(const void* a, const void* b) {
    return CompareDepths(Depth(**static_cast<const RenderFace* const*>(a)),
                         Depth(**static_cast<const RenderFace* const*>(b)));
}

template <Single (*Depth)(const RenderFace&)>
void InsertionSort(RenderFace** first, RenderFace** last) {
    for (RenderFace** i = first + 1; i <= last; ++i) {
        RenderFace* const moved = *i;
        const Single depth = Depth(*moved);
        RenderFace** hole = i;
        for (; hole > first && CompareDepths(Depth(*hole[-1]), depth) > 0; --hole) {
            *hole = hole[-1];
        }
        *hole = moved;
    }
}

// The depth in the middle of three.
Single MiddleOf(Single a, Single b, Single c) {
    const Single low = a < b ? a : b;
    const Single high = a < b ? b : a;
    return c < low ? low : c > high ? high : c;
}

// Sorts first..last, both included. Partition about the middle of the first, the central and the
// last depth, stopping at equal ones from both sides; go into the smaller part, stay with the
// larger.
template <Single (*Depth)(const RenderFace&)>
void QuickSort(RenderFace** first, RenderFace** last) {
    constexpr std::ptrdiff_t kSmall = 12;
    while (last - first > kSmall) {
        const Single pivot =
            MiddleOf(Depth(**first), Depth(*first[(last - first) / 2]), Depth(**last));
        RenderFace** i = first;
        RenderFace** j = last;
        while (i <= j) {
            while (CompareDepths(Depth(**i), pivot) < 0) {
                ++i;
            }
            while (CompareDepths(Depth(**j), pivot) > 0) {
                --j;
            }
            if (i <= j) {
                RenderFace* const swapped = *i;
                *i++ = *j;
                *j-- = swapped;
            }
        }
        if (j - first < last - i) {
            QuickSort<Depth>(first, j);
            first = i;
        } else {
            QuickSort<Depth>(i, last);
            last = j;
        }
    }
    InsertionSort<Depth>(first, last);
}

} // namespace

int CompareFaceAverageDepth(const void* a, const void* b) {
    return CompareElements<AverageDepth>(a, b);
}
int CompareFaceNearestDepth(const void* a, const void* b) {
    return CompareElements<NearestDepth>(a, b);
}
int CompareFaceFarthestDepth(const void* a, const void* b) {
    return CompareElements<FarthestDepth>(a, b);
}

void SortFaces(FaceList* list, std::int32_t sortMode) {
    using Sort = void (*)(RenderFace**, RenderFace**);
    constexpr Sort kSorts[] = {QuickSort<AverageDepth>, QuickSort<NearestDepth>,
                               QuickSort<FarthestDepth>};
    if (list->count >= 2 && sortMode >= 0 && sortMode < 3) {
        kSorts[sortMode](list->pointers, list->pointers + list->count - 1);
    }
}

} // namespace ombrel
