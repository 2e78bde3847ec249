// A video written by the program ffmpeg, fed through a pipe: an MP4 file with sound, or a moving
// picture (GIF, WebP) without. Frames are due every 25 ms; whatever its rate, each picture of the
// video shows the frame that is due at its time. The file stands under its name only when it is
// whole. A video that can be resumed grows in pieces, which stay in FILE.pieces/ until then.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace capture {

inline constexpr std::int32_t kFramesPerSecond = 40; // of the production
inline constexpr std::int32_t kPieceFrames = 400;    // of the production: ten seconds

enum class VideoKind { Mp4, Gif, WebP };
// By the ending of the name; anything else is an MP4 file.
VideoKind KindOfVideo(const std::string& file);

struct VideoRequest {
    std::string file;
    std::string soundtrack;  // path of the MP3; empty: silent
    std::int64_t firstFrame; // of the production: where in the soundtrack the video begins
    std::int32_t width, height;
    std::int32_t rate;    // pictures a second
    bool resume;          // in pieces; goes on after those that are there
    std::string settings; // whatever else makes the pictures; pieces of other settings are refused
};

// Pictures of the video that show frame n of the recording, counted from 0.
std::int64_t PicturesOf(std::int64_t n, std::int32_t rate);

struct Video {
    VideoRequest request;
    std::FILE* pipe = nullptr;
    std::string part;         // the name while it grows
    std::int64_t frames = 0;  // taken so far
    std::uint64_t digest = 0; // of the frames of this piece
    std::string piece;        // the one that grows, or that is there already; empty: none
    bool open = false;
};

// All three return an empty text on success, else what went wrong.
std::string OpenVideo(const VideoRequest& request, Video* video);
// The next frame: its pixels and the hash of them. rgb is only looked at where WantsPixels says so.
std::string WriteVideo(Video* video, const std::vector<std::uint8_t>& rgb, std::uint64_t hash);
std::string CloseVideo(Video* video);
// Ends the program and removes what there is, but for whole pieces; allowed when not open.
void DropVideo(Video* video);

// Whether the next frame goes into the video; false for one of a piece that is there.
bool WantsPixels(const Video& video);

// Whether ffmpeg can decode the start of the file.
bool CanDecode(const std::string& soundtrack);

} // namespace capture
