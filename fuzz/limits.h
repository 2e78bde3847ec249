// What one input may cost: 100 ms of processor time (with the sanitizers in, which slow it down)
// and 64 MiB of memory at once. A target opens with an InputLimits; whoever exceeds them is kept as
// a finding. Memory is counted from the first use on.
#pragma once

#if !defined(__wasm__)
#include <sanitizer/allocator_interface.h>
#endif
#include <time.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace ombrel {

#if defined(__wasm__)
// The module itself has no more memory than that; who replays the inputs looks at the clock.
struct InputLimits {
    InputLimits() {}
};
#else
inline constexpr std::int64_t kMaxInputMemory = std::int64_t{64} << 20; // bytes
inline constexpr double kMaxInputSeconds = 0.1;

inline std::int64_t liveBytes = 0; // the targets have one thread
inline std::int64_t peakBytes = 0;

inline void CountTaken(const volatile void*, std::size_t size) {
    const std::int64_t live = liveBytes += static_cast<std::int64_t>(size);
    if (live > peakBytes) {
        peakBytes = live;
    }
}
inline void CountGiven(const volatile void* memory) {
    if (memory != nullptr) {
        void* const block = const_cast<void*>(memory);
        liveBytes -= static_cast<std::int64_t>(__sanitizer_get_allocated_size(block));
    }
}

inline double ProcessorSeconds() {
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

struct InputLimits {
    InputLimits() {
        static const int installed = __sanitizer_install_malloc_and_free_hooks(
            [](const volatile void* memory, std::size_t size) { CountTaken(memory, size); },
            [](const volatile void* memory) { CountGiven(memory); });
        (void)installed;
        liveBytes = 0;
        peakBytes = 0;
        started = ProcessorSeconds();
    }
    ~InputLimits() {
        const double seconds = ProcessorSeconds() - started;
        if (peakBytes > kMaxInputMemory || seconds > kMaxInputSeconds) {
            std::fprintf(stderr, "limits: %.3f s, %lld bytes\n", seconds,
                         static_cast<long long>(peakBytes));
            std::abort();
        }
    }
    InputLimits(const InputLimits&) = delete;
    InputLimits& operator=(const InputLimits&) = delete;

    double started;
};
#endif

} // namespace ombrel
