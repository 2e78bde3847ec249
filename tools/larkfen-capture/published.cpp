// Reading the list and keeping the score.
#include "published.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace capture {

namespace {

std::string HashText(std::uint64_t hash) {
    char text[32];
    std::snprintf(text, sizeof text, "%016" PRIx64, hash);
    return text;
}

void Differs(Verification* verification, const std::string& what) {
    if (verification->firstDifference.empty()) {
        verification->firstDifference = what;
    }
}

// Frames of the list before number were not played.
void SkipTo(Verification* verification, std::int64_t number) {
    const auto& frames = verification->frames;
    while (verification->next < frames.size() && frames[verification->next].number < number) {
        Differs(verification,
                "frame " + std::to_string(frames[verification->next].number) + " was not played");
        ++verification->next;
    }
}

// False for a line of another form.
bool ParseLine(const char* line, PublishedFrame* frame) {
    constexpr std::string_view kFrame = "frame ", kHash = "hash ";
    constexpr std::size_t kDigits = 16;
    std::string_view text = line;
    const auto number = std::from_chars(line + std::min(kFrame.size(), text.size()),
                                        line + text.size(), frame->number);
    const std::size_t label = text.find(kHash);
    if (!text.starts_with(kFrame) || number.ec != std::errc() || *number.ptr != ' ' ||
        label == std::string_view::npos) {
        return false;
    }
    text.remove_prefix(label + kHash.size());
    const char* const digits = text.data();
    const auto hash = std::from_chars(digits, digits + text.size(), frame->hash, 16);
    return hash.ec == std::errc() && hash.ptr == digits + kDigits &&
           std::strspn(hash.ptr, " \t\r\n") == std::strlen(hash.ptr);
}

} // namespace

std::string FindPublished(const std::string& dataFolder, const std::string& programFolder) {
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path data = fs::absolute(dataFolder, error).lexically_normal();
    const fs::path folder = data.has_filename() ? data : data.parent_path();
    const fs::path beside = folder.parent_path() / kPublishedName;
    const fs::path own = fs::path(programFolder) / kPublishedName;
    const bool useOwn = !fs::exists(beside, error) && fs::exists(own, error);
    return (useOwn ? own : beside).string();
}

std::string ReadPublished(const std::string& path, std::int64_t first, std::int64_t end,
                          Verification* verification) {
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) {
        return path + ": " + std::strerror(errno);
    }
    std::string problem;
    char line[512];
    std::int64_t number = 0;
    std::int64_t before = -1;
    while (problem.empty() && std::fgets(line, sizeof line, file) != nullptr) {
        ++number;
        PublishedFrame frame{};
        if (line[0] == '#') {
            continue;
        }
        if (!ParseLine(line, &frame) || frame.number <= before) {
            problem = path + ":" + std::to_string(number) + ": here \"frame " +
                      std::to_string(before + 1) + " hash ...\" must stand";
            break;
        }
        before = frame.number;
        if (frame.number >= first && frame.number < end) {
            verification->frames.push_back(frame);
        }
    }
    if (problem.empty() && std::ferror(file) != 0) {
        problem = path + ": cannot be read";
    }
    std::fclose(file);
    if (problem.empty() && verification->frames.empty()) {
        problem = path + ": holds none of the frames asked for";
    }
    return problem;
}

std::vector<std::uint64_t> PublishedHashes(const std::string& dataFolder,
                                           const std::string& programFolder) {
    Verification list;
    std::vector<std::uint64_t> hashes;
    if (!ReadPublished(FindPublished(dataFolder, programFolder), 0, INT32_MAX, &list).empty()) {
        return hashes;
    }
    for (const PublishedFrame& frame : list.frames) {
        if (frame.number != static_cast<std::int64_t>(hashes.size())) {
            return {};
        }
        hashes.push_back(frame.hash);
    }
    return hashes;
}

void CompareFrame(Verification* verification, std::int64_t number, std::uint64_t hash) {
    SkipTo(verification, number);
    const auto& frames = verification->frames;
    if (verification->next == frames.size() || frames[verification->next].number != number) {
        return;
    }
    const std::uint64_t published = frames[verification->next].hash;
    ++verification->next;
    if (published == hash) {
        ++verification->same;
        return;
    }
    Differs(verification, "frame " + std::to_string(number) + " is the first that differs: hash " +
                              HashText(hash) + ", published " + HashText(published));
}

std::string Verdict(const Verification& verification, bool* same) {
    Verification end = verification;
    SkipTo(&end, INT64_MAX);
    *same = end.firstDifference.empty();
    return std::to_string(end.same) + " of " + std::to_string(end.frames.size()) +
           " frames as published" + (*same ? "" : "; " + end.firstDifference);
}

} // namespace capture
