// Asks the compiler's own runtime, which on x86 reads CPUID and, before it believes in a wide
// register, XGETBV: whether the operating system saves it.
#include "base/vector_path.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace ombrel {

namespace {

constexpr const char* kNames[kVectorPathCount] = {"scalar", "sse",  "avx2",
                                                  "avx512", "neon", "wasm"};

#if defined(__x86_64__) || defined(__i386__)
// Compilers answer in different types.
template <class Answer> bool Yes(Answer answer) {
    return static_cast<bool>(answer);
}
#endif

} // namespace

const char* NameOf(VectorPath path) {
    return kNames[static_cast<int>(path)];
}

bool ProcessorRuns(VectorPath path) {
#if defined(__x86_64__) || defined(__i386__)
    __builtin_cpu_init();
    switch (path) {
    case VectorPath::Scalar:
        return true;
    case VectorPath::Sse:
        return Yes(__builtin_cpu_supports("sse4.1"));
    case VectorPath::Avx2:
        return Yes(__builtin_cpu_supports("avx2"));
    case VectorPath::Avx512:
        return Yes(__builtin_cpu_supports("avx512f")) && Yes(__builtin_cpu_supports("avx512bw")) &&
               Yes(__builtin_cpu_supports("avx512dq")) && Yes(__builtin_cpu_supports("avx512vl"));
    case VectorPath::Neon:
    case VectorPath::Wasm:
        break;
    }
    return false;
#else
    return std::find(std::begin(kPathsHere), std::end(kPathsHere), path) != std::end(kPathsHere);
#endif
}

VectorPath PathFor(const char* request, bool* understood) {
    // Find the request in the list; without one, start from the best that is taken by default.
    const bool requested = request != nullptr && request[0] != '\0';
    const VectorPath* const named =
        std::find_if(std::begin(kPathsHere), std::end(kPathsHere), [&](VectorPath path) {
            return requested && std::strcmp(request, NameOf(path)) == 0;
        });
    const bool known = named != std::end(kPathsHere);
    const VectorPath* path = known ? named : std::end(kPathsHere) - 1;
    // Go down to what the processor runs.
    while (!ProcessorRuns(*path) || (!known && *path == VectorPath::Avx512)) {
        --path;
    }
    if (understood != nullptr) {
        *understood = known ? path == named : !requested;
    }
    return *path;
}

} // namespace ombrel
