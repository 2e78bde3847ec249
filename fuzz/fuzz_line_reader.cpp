// Line reader, text helpers and pattern matcher. The first line of the input is a pattern, the
// second a set of characters, the rest the file. Every line is matched with that pattern and with
// the loader's own kinds of patterns. Pattern and set are constants of a program, which goes
// through them at every line: what is longer than any of them is cut, or the time would be their
// length times the number of lines.
#include <cstring>
#include <string>

#include "assets/line_reader.h"
#include "base/float_mode.h"

#include "limits.h"
#include "memory_file.h"

namespace {

using namespace ombrel;

constexpr std::uint32_t kLoaderOptions = READ_SKIP_BLANK | READ_TRIM;
constexpr std::size_t kLongestPattern = 400; // 32 tokens
constexpr std::size_t kLongestSet = 64;

constexpr const char* kPatterns[] = {
    "['Name'] [s>0]", "['x'] ['axis'] [f] [f] [f]",    "[i] [i] [i] [i] [i] [i]",
    "[f] [f]",        "['a'] ['a'] ['a'] [s<3] [s=2]", "[s>0] [s>0] [s>0] [i]",
};

void CheckResults(const LineReader& reader) {
    Require(reader.wordCount >= 0 && reader.wordCount <= kMaxTokens);
    Require(reader.floatCount >= 0 && reader.floatCount <= kMaxTokens);
    Require(reader.intCount >= 0 && reader.intCount <= kMaxTokens);
    for (const auto& word : reader.words) {
        Require(std::memchr(word, 0, sizeof word) != nullptr);
    }
}

std::string TakeLine(std::string* text, std::size_t longest) {
    const std::size_t end = text->find('\n');
    const std::string line = text->substr(0, end);
    *text = end == std::string::npos ? std::string() : text->substr(end + 1);
    return line.substr(0, longest);
}

void ReadAll(const std::string& text, std::uint32_t options, const std::string& pattern,
             const std::string& set) {
    const MemoryFile file(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    LineReader reader;
    Require(open(&reader, file.Path().c_str()));
    std::size_t lines = 0;
    while (const char* const line = readLine(&reader, options)) {
        Require(line == reader.line);
        Require(++lines <= text.size());
        Require(reader.lineCount == static_cast<std::int32_t>(lines));
        Require(reader.length == static_cast<std::int32_t>(std::strlen(line)));
        Require(reader.length < kMaxLine);
        Require((options & READ_SKIP_BLANK) == 0 || reader.length > 0);
        replaceChars(line, reader.line, set.c_str(), ' ', static_cast<int>(options & 1));
        scanInt(line);
        scanFloat(line);
        if (options != kLoaderOptions) {
            continue;
        }
        match(&reader, line, pattern.c_str());
        CheckResults(reader);
        for (const char* const known : kPatterns) {
            match(&reader, line, known);
            CheckResults(reader);
        }
    }
    reset(&reader);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScopedFloatMode chop(FloatMode::Chop);
    const InputLimits limits;
    std::string text(reinterpret_cast<const char*>(data), size);
    const std::string pattern = TakeLine(&text, kLongestPattern);
    const std::string set = TakeLine(&text, kLongestSet);
    for (const std::uint32_t options : {0U, kLoaderOptions, 21U}) {
        ReadAll(text, options, pattern, set);
    }
    LineReader reader;
    match(&reader, text.c_str(), pattern.c_str()); // a line of any length
    CheckResults(reader);
    return 0;
}
