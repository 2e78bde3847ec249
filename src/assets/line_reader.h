// Reads a text file line by line and recognises lines by small patterns: the front end of the
// object loader. A pattern is a row of tokens in brackets, separated by blanks, one token for a
// word:
//   ['text']              the word text, exactly          -> words
//   [f]                   a decimal number                -> floats
//   [i]                   a decimal integer               -> ints
//   [s<N] [s=N] [s>N]     any word shorter than, as long as, longer than N (no digits: 0) -> words
// Blanks are the six of the C locale everywhere. Nothing here takes memory.
#pragma once

#include <cstdint>
#include <cstdio>

#include "base/single.h"

namespace ombrel {

inline constexpr std::int32_t kMaxLine = 1024; // characters of a line, the closing zero included
inline constexpr std::int32_t kMaxWord = 80;   // likewise of a word
inline constexpr std::int32_t kMaxTokens = 32; // tokens of a pattern, and results of each kind
inline constexpr std::int32_t kMaxMarker = 64; // characters of the comment marker

// readLine options
inline constexpr std::uint32_t READ_SKIP_BLANK = 0x1; // skip blank lines, drop leading blanks
inline constexpr std::uint32_t READ_TRIM = 0x4;       // drop leading and trailing blanks
inline constexpr std::uint32_t READ_COMMENTS = 0x10;  // with READ_SKIP_BLANK: drop comments

// What scanInt and scanFloat give for a text that is not wholly a number.
inline constexpr std::int32_t kNotAnInt = INT32_MIN;
inline constexpr double kNotAFloat = static_cast<double>(1.17549435e-38F);

// A new record is as reset() leaves it.
struct LineReader {
    std::FILE* file = nullptr;
    char line[kMaxLine] = {};
    std::int32_t length = 0;    // of line, after the read options
    std::int32_t lineCount = 0; // lines returned since the last reset
    char commentMarker[kMaxMarker] = "#";
    char words[kMaxTokens][kMaxWord] = {}; // results of the last match; entries at and beyond the
    std::int32_t wordCount = 0;            // counts keep what earlier matches left
    Single floats[kMaxTokens] = {};
    std::int32_t floatCount = 0;
    std::int32_t ints[kMaxTokens] = {};
    std::int32_t intCount = 0;
};

// Closes the file if one is open; line, counts and marker as in a new record. Match results
// stay. 1.
int reset(LineReader* reader);

// Resets, then opens path by OpenDataFile; false when it does not open.
bool open(LineReader* reader, const char* path);

// Reads the next line into line and returns it; null at the end of the file or without a file.
// Takes at most 1023 characters: a longer line comes in pieces. A zero byte ends a line early.
const char* readLine(LineReader* reader, std::uint32_t options);

// 1 when the pattern matches a run of consecutive words of the line, 0 otherwise, and 0 for a null
// or empty or malformed argument. Captures of attempts that failed stay in front of those that
// fitted. Lines count up to 1023 characters and words up to 79, the rest is as if it were not
// there; more than 32 captures of a kind are not stored.
int match(LineReader* reader, const char* line, const char* pattern);

// Copies source to destination (which may be source) with every character of set replaced, and
// returns how many were. caseMode 1: characters compare exactly; else without letter case.
// A null or empty source, or a null destination: nothing is written, 0.
int replaceChars(const char* source, char* destination, const char* set, char replacement,
                 int caseMode);

// The number that the whole text is, or kNotAnInt, kNotAFloat. Texts that scan but hold no digit
// ("-", ".", "e5") are 0. scanFloat takes e, E, d, D as exponent letters but converts only up to a
// d; the value is that of the nearest single.
std::int32_t scanInt(const char* text);
double scanFloat(const char* text);

// Drop leading, trailing blanks in place; return text (null stays null).
char* trimLeft(char* text);
char* trimRight(char* text);

} // namespace ombrel
