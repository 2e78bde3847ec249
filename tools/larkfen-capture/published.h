// The hashes of the frames as they were published, and how a run compares. A list is a text with
// one line a frame, frames in their order:
//   # lines that begin so are passed over
//   frame 123 hash 0123456789abcdef
// What --hashes writes is one too: only the two numbers count.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace capture {

inline constexpr char kPublishedName[] = "frame-hashes.txt";

struct PublishedFrame {
    std::int64_t number;
    std::uint64_t hash;
};

struct Verification {
    std::vector<PublishedFrame> frames; // that are to be played, by number
    std::size_t next = 0;               // of frames
    std::int64_t same = 0;
    std::string firstDifference; // empty: none
};

// The list that stands beside the data folder, or else beside the program; where it should be when
// it is in neither place.
std::string FindPublished(const std::string& dataFolder, const std::string& programFolder);

// Reads the frames first..end - 1 of a list. Empty on success, else what is wrong with the file.
std::string ReadPublished(const std::string& path, std::int64_t first, std::int64_t end,
                          Verification* verification);

// The hashes of all frames of the list that FindPublished finds, from frame 0 on; empty where there
// is none, or it is broken or has gaps: for those that can do without.
std::vector<std::uint64_t> PublishedHashes(const std::string& dataFolder,
                                           const std::string& programFolder);

// A frame was played. Frames that are not in the list do not count.
void CompareFrame(Verification* verification, std::int64_t number, std::uint64_t hash);

// After the run: "6017 of 6017 frames as published"; where some differ or are missing, with the
// first of them. same: whether all are.
std::string Verdict(const Verification& verification, bool* same);

} // namespace capture
