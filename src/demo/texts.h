// Every text that the production shows, in code page 1251, and the tables that the scenes read
// them from. An empty slot is an empty string.
#pragma once

#include <cstdint>

namespace ombrel {

extern const char* const kTitleText;    // scene one, big font
extern const char* const kSubtitleText; // scene one, small font

inline constexpr std::int32_t kBlockSlots = 5;
inline constexpr std::int32_t kGreetingSlots = 39;
inline constexpr std::int32_t kScrollerSlots = 49;
extern const char* const kBlockTexts[kBlockSlots];       // small font, up to 49 characters
extern const char* const kGreetingTexts[kGreetingSlots]; // big font, widths as in the columns
extern const char* const kScrollerTexts[kScrollerSlots]; // small font, up to 52 characters

} // namespace ombrel
