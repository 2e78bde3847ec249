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

void Add(Report* report, Finding finding) {
    if (!finding.kind.empty()) {
        for (Finding& known : report->findings) {
            if (known.kind == finding.kind) {
                ++known.more;
                return;
            }
        }
    }
    report->findings.push_back(std::move(finding));
}

std::string TextOf(const Trouble& trouble) {
    return trouble.what + "; " + trouble.then + "; " + trouble.mend;
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

std::string Quote(const std::string& text) {
    constexpr std::size_t kMost = 40;
    std::string quoted = "\"" + text.substr(0, kMost);
    for (char& c : quoted) {
        c = c >= ' ' && c <= '~' ? c : '?';
    }
    return quoted + (text.size() > kMost ? "...\"" : "\"");
}

void Warn(Report* report, std::int64_t place, const char* kind, const Trouble& trouble) {
    Add(report, {Weight::Warning, place, kind == nullptr ? "" : kind, TextOf(trouble), 0});
}

void Refuse(Report* report, std::int64_t place, const char* kind, const Trouble& trouble) {
    Add(report, {Weight::Broken, place, kind == nullptr ? "" : kind, TextOf(trouble), 0});
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

bool ReadFile(const std::string& path, std::size_t limit, std::string* bytes,
              std::string* problem) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        *problem = std::filesystem::exists(path, error) ? "no file of bytes" : "no such file";
        return false;
    }
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) {
        *problem = std::strerror(errno);
        return false;
    }
    bytes->clear();
    char block[65536];
    std::size_t length = 0;
    while (bytes->size() <= limit && (length = std::fread(block, 1, sizeof block, file)) > 0) {
        bytes->append(block, length);
    }
    const bool failed = std::ferror(file) != 0;
    std::fclose(file);
    if (failed || bytes->size() > limit) {
        *problem = failed ? "cannot be read" : Format("larger than %zu bytes", limit);
        return false;
    }
    return true;
}

LineEnds LineEndsOf(const std::string& text) {
    LineEnds ends;
    for (std::size_t i = text.find('\n'); i != std::string::npos; i = text.find('\n', i + 1)) {
        ends.push_back(i);
    }
    return ends;
}

std::int64_t LineOf(const LineEnds& ends, std::size_t offset) {
    return 1 + (std::lower_bound(ends.begin(), ends.end(), offset) - ends.begin());
}

} // namespace inspect
