// The record of a whole run: one line a frame with a digest of the state and a hash of the picture,
// stored compressed beside the tests. A change of the production names the first frame that
// differs.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ombrel {

struct FrameLine {
    std::int64_t frame; // of the production, from 0
    std::int32_t scene; // index after the frame
    std::int32_t faces; // in the list
    std::uint64_t state;
    std::uint64_t picture;
};
bool operator==(const FrameLine& a, const FrameLine& b);

// "frame 123 scene 0 faces 4567 state 0123456789abcdef picture 0123456789abcdef"
std::string FormatFrameLine(const FrameLine& line);
// False, and line unchanged, for any other form.
bool ParseFrameLine(const std::string& text, FrameLine* line);

// Text of one line a frame, compressed. False when the file cannot be written, or read, or holds a
// line of another form.
bool WriteFrameRecord(const std::string& path, const std::vector<FrameLine>& lines);
bool ReadFrameRecord(const std::string& path, std::vector<FrameLine>* lines);

// Empty when both are the same; else what differs first, in which frame and how many frames differ.
std::string CompareFrameRecords(const std::vector<FrameLine>& stored,
                                const std::vector<FrameLine>& played);

// Digest of what the scenes, the camera, the lights and the driver hold between two frames.
std::uint64_t DigestState();

} // namespace ombrel
