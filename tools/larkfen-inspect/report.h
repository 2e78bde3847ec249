// What the inspector has to say about one file: a table, and findings of one line each. Places are
// line numbers from 1 in text files and byte offsets from 0 in binary ones.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace inspect {

enum class Weight { Warning, Broken }; // drawn otherwise than the file says; refused

struct Finding {
    Weight weight;
    std::int64_t place;
    std::string kind; // findings of one kind are told once, with their number; empty: always told
    std::string text;
    std::int32_t more; // findings of this kind behind the first
};

struct Report {
    std::string file;    // as the user names it
    std::string summary; // one line, for the table of a whole folder
    std::string table;   // lines, each with its end
    std::vector<Finding> findings;
};

[[gnu::format(printf, 1, 2)]] std::string Format(const char* format, ...);

// A piece of a file for a message: at most 40 characters, in quotes, unprintable ones as "?".
std::string Quote(const std::string& text);

// What is wrong, what the production does with it, and how to mend it.
struct Trouble {
    std::string what, then, mend;
};
void Warn(Report* report, std::int64_t place, const char* kind, const Trouble& trouble);
void Refuse(Report* report, std::int64_t place, const char* kind, const Trouble& trouble);
bool IsBroken(const Report& report);

// Adds "  name   value" to the table.
void Row(Report* report, const char* name, const std::string& value);

// "file:place: what; what the production does; how to mend it", by place, a line each.
std::string FindingLines(const Report& report);

// The file's bytes; false when it cannot be read or is larger than limit (the text then says so).
bool ReadFile(const std::string& path, std::size_t limit, std::string* bytes, std::string* problem);

// Where the lines of a text end, and the number of the line that holds a byte of it, from 1.
using LineEnds = std::vector<std::size_t>;
LineEnds LineEndsOf(const std::string& text);
std::int64_t LineOf(const LineEnds& ends, std::size_t offset);

} // namespace inspect
