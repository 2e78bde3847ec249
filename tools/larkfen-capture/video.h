// A video written by the program ffmpeg, fed through a pipe. The file stands under its name only
// when it is whole.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace capture {

struct VideoRequest {
    std::string file;
    std::string soundtrack;  // path of the MP3; empty: silent
    std::int64_t firstFrame; // of the production: where in the soundtrack the video begins
    std::int32_t width, height;
};

struct Video {
    std::FILE* pipe = nullptr;
    std::string file;
    std::string part; // the name while it grows
};

// All three return an empty text on success, else what went wrong.
std::string OpenVideo(const VideoRequest& request, Video* video);
std::string WriteVideo(Video* video, const std::vector<std::uint8_t>& rgb);
std::string CloseVideo(Video* video);
void DropVideo(Video* video); // ends the program and removes what there is; allowed when not open

// Whether ffmpeg can decode the start of the file.
bool CanDecode(const std::string& soundtrack);

} // namespace capture
