// What the inspector has to say about one file: a table, and findings of one line each. Places are
// line numbers from 1 in text files and byte offsets from 0 in binary ones.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

enum class Weight { Warning, Broken }; // drawn otherwise than the file says; refused

struct Finding {
    Weight weight;
    std::int64_t place;
    std::string kind;
    std::string text;
    std::int32_t more; // findings of this kind after it that are not printed
};

struct Report {
    std::string file;    // as the user names it
    std::string summary; // one line, for the table of a whole folder
    std::string table;   // lines, each with its end
    std::vector<Finding> findings;
};

[[gnu::format(printf, 1, 2)]] std::string Format(const char* format, ...);

// A piece of a file for a message: at most 40 characters, in quotes, unprintable ones as "?".
std::string Quote(std::string_view text);

// What is wrong, what the production does with it, and how to mend it. Findings of one kind are
// told once, with their number; without a kind, those that differ in numbers and names alone are
// told a hundred times.
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

// A file in memory: one block, and a zero byte after the file's own.
struct FreeBlock {
    void operator()(char* block) const { std::free(block); }
};
struct FileBytes {
    std::unique_ptr<char, FreeBlock> block;
    std::string_view text; // all of the file
};

// False when the file cannot be read, is larger than limit, or finds no memory; problem says which.
bool ReadFile(const std::string& path, std::size_t limit, FileBytes* bytes, std::string* problem);

// Which line of a text a byte stands in, from 1. Quick where the places asked for go forward.
class LineCounter {
public:
    LineCounter() = default;
    explicit LineCounter(std::string_view text) : text_(text) {}
    std::int64_t LineOf(std::size_t offset); // offset up to the size of the text

private:
    std::string_view text_;
    std::size_t place_ = 0; // of the last answer
    std::int64_t line_ = 1;
};

} // namespace inspect
