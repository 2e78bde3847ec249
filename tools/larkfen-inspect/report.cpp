// Findings and tables as text, and files as bytes.
#include "report.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace inspect {

namespace {

constexpr std::int32_t kMostOfAKind = 100;

// A text without its numbers and its pieces in quotes.
std::string WordsOf(const std::string& text) {
    std::string words;
    bool quoted = false; // cppcheck-suppress variableScope; it lasts from one letter to the next
    for (const char c : text) {
        quoted = (c == '"') != quoted;
        if (!quoted && std::strchr("0123456789", c) == nullptr) {
            words += c;
        }
    }
    return words;
}

void Add(Report* report, Finding finding, std::int32_t most) {
    std::int32_t count = 0;
    Finding* last = nullptr;
    for (Finding& known : report->findings) {
        if (known.kind == finding.kind) {
            ++count;
            last = &known;
        }
    }
    if (count >= most) {
        ++last->more;
        return;
    }
    report->findings.push_back(std::move(finding));
}

void Tell(Report* report, Weight weight, std::int64_t place, const char* kind,
          const Trouble& trouble) {
    Add(report,
        {weight, place, kind != nullptr ? kind : WordsOf(trouble.what),
         trouble.what + "; " + trouble.then + "; " + trouble.mend, 0},
        kind != nullptr ? 1 : kMostOfAKind);
}

} // namespace

std::string Format(const char* format, ...) {
    char text[1024];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    return text;
}

std::string Quote(std::string_view text) {
    constexpr std::size_t kMost = 40;
    std::string quoted = "\"" + std::string(text.substr(0, kMost));
    for (char& c : quoted) {
        c = c >= ' ' && c <= '~' ? c : '?';
    }
    return quoted + (text.size() > kMost ? "...\"" : "\"");
}

void Warn(Report* report, std::int64_t place, const char* kind, const Trouble& trouble) {
    Tell(report, Weight::Warning, place, kind, trouble);
}

void Refuse(Report* report, std::int64_t place, const char* kind, const Trouble& trouble) {
    Tell(report, Weight::Broken, place, kind, trouble);
}

bool IsBroken(const Report& report) {
    return std::any_of(report.findings.begin(), report.findings.end(),
                       [](const Finding& f) { return f.weight == Weight::Broken; });
}

void Row(Report* report, const char* name, const std::string& value) {
    report->table += Format("  %-18s ", name) + value + "\n";
}

std::string FindingLines(const Report& report) {
    std::vector<Finding> sorted = report.findings;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Finding& a, const Finding& b) { return a.place < b.place; });
    std::string lines;
    for (const Finding& finding : sorted) {
        lines += report.file + ":" + std::to_string(finding.place) + ": " + finding.text;
        if (finding.more > 0) {
            lines += " (and " + std::to_string(finding.more) + " more like this)";
        }
        lines += "\n";
    }
    return lines;
}

bool ReadFile(const std::string& path, std::size_t limit, FileBytes* bytes, std::string* problem) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        *problem = std::filesystem::exists(path, error) ? "no file of bytes" : "no such file";
        return false;
    }
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error) {
        *problem = error.message();
        return false;
    }
    if (size > limit) {
        *problem = Format("%ju bytes, %zu are allowed", size, limit);
        return false;
    }
    // One block of the right size, which may be more than there is.
    const auto room = static_cast<std::size_t>(size);
    bytes->block.reset(static_cast<char*>(std::malloc(room + 1)));
    if (bytes->block == nullptr) {
        *problem = Format("no memory for its %zu bytes", room);
        return false;
    }
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) {
        *problem = std::strerror(errno);
        return false;
    }
    const std::size_t length = std::fread(bytes->block.get(), 1, room, file);
    const bool failed = std::ferror(file) != 0;
    std::fclose(file);
    if (failed) {
        *problem = "cannot be read";
        return false;
    }
    bytes->block.get()[length] = '\0';
    bytes->text = {bytes->block.get(), length};
    return true;
}

std::int64_t LineCounter::LineOf(std::size_t offset) {
    if (offset < place_) {
        place_ = 0;
        line_ = 1;
    }
    line_ += std::count(text_.data() + place_, text_.data() + offset, '\n');
    place_ = offset;
    return line_;
}

} // namespace inspect
