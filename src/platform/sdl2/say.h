// The word to whoever started the program from a terminal. Callers: the SDL2 back end and its
// entry.
#pragma once

namespace ombrel {

// The name before every line; "larkfen" at first.
void SayAs(const char* program);

// One line on standard error, after the program's name. format as that of printf, without a line
// end.
void Say(const char* format, ...) __attribute__((format(printf, 1, 2)));

// That a file is missing or unreadable, once a file; path as the code or a data file writes it.
void SayMissing(const char* path);

} // namespace ombrel
