// The sound half of the seam: one run-time table of the calls that the soundtrack makes. A build
// may choose a table when it runs (a library that is there or not); tests put a recording one in.
#pragma once

#include <cstdint>

namespace ombrel {

inline constexpr std::uint32_t kSoundVersion = 0x0203; // expected in the high 16 bits of getVersion

struct SoundCalls {
    std::uint32_t (*getVersion)();
    int (*init)(std::int32_t device,
                std::uint32_t frequency);                // device -1 default, 0 silent; 1 or 0
    std::uint32_t (*streamCreateFile)(const char* path); // 0 on failure
    int (*channelPlay)(std::uint32_t stream, int restart);
    int (*channelStop)(std::uint32_t stream);
    int (*sampleFree)(std::uint32_t stream);
    int (*free)();
};

// The table in force: the one of UseSoundCalls, else the back end's. Never null.
const SoundCalls* Sound();
// Every back-end folder defines this one: its own table, chosen at the first call; never null.
const SoundCalls* BackEndSound();
// Puts another table in place; null goes back to the back end's own.
void UseSoundCalls(const SoundCalls* calls);

} // namespace ombrel
