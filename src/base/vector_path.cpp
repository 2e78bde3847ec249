// Asks the compiler's own runtime, which reads CPUID and, before it believes in a wide register,
// XGETBV: whether the operating system saves it.
#include "base/vector_path.h"

#include <cstring>

namespace ombrel {

namespace {

constexpr const char* kNames[kVectorPathCount] = {"scalar", "sse", "avx2", "avx512"};

// Compilers answer in different types.
template <class Answer> bool Yes(Answer answer) {
    return static_cast<bool>(answer);
}

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
    }
    return false;
#else
    return path == VectorPath::Scalar;
#endif
}

VectorPath PathFor(const char* request, bool* understood) {
    // Find the request in the list; without one, start from the best that is taken by default.
    const bool requested = request != nullptr && request[0] != '\0';
    int number = static_cast<int>(VectorPath::Avx2);
    bool known = !requested;
    for (int i = 0; requested && i < kVectorPathCount; ++i) {
        if (std::strcmp(request, kNames[i]) == 0) {
            number = i;
            known = true;
        }
    }
    // Go down to what the processor runs.
    bool met = known;
    while (!ProcessorRuns(static_cast<VectorPath>(number))) {
        --number;
        met = met && !requested;
    }
    if (understood != nullptr) {
        *understood = met;
    }
    return static_cast<VectorPath>(number);
}

} // namespace ombrel
