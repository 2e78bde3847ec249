// The stretches of the show that a viewer jumps to, by the frame each begins with. Frame numbers
// are those of the shipped flights; art/world/flights.py names the places. Used by the players.
#pragma once

#include <cstdint>

namespace ombrel {

struct Chapter {
    const char* name;
    std::int32_t frame; // its first
};
// clang-format off
inline constexpr Chapter kChapters[] = {
    {"dawn",         0},
    {"gates",      192},
    {"parasol",    704},
    {"tower",     1216},
    {"climb",     1536},
    {"glass",     1811},
    {"night",     2049},
    {"greetings", 2319},
    {"points",    3850},
    {"end",       5956},
};
// clang-format on
inline constexpr std::int32_t kChapterCount = sizeof kChapters / sizeof kChapters[0];

// Index of the chapter that a frame belongs to; frames before the first count as its own.
constexpr std::int32_t ChapterOf(std::int32_t frame) {
    std::int32_t index = kChapterCount - 1;
    while (index > 0 && kChapters[index].frame > frame) {
        --index;
    }
    return index;
}

} // namespace ombrel
