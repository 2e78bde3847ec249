// The pipe to ffmpeg. Systems without pipes to a shell say so.
#include "video.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#if __has_include(<sys/wait.h>)
#include <sys/wait.h>
#endif

namespace capture {

#if __has_include(<sys/wait.h>)

namespace {

constexpr std::int32_t kFramesPerSecond = 40;

// One word for the shell, whatever it holds.
std::string Quoted(const std::string& text) {
    std::string out = "'";
    for (const char c : text) {
        out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return out + "'";
}

// A name that ffmpeg does not take for an option or a protocol.
std::string FileName(const std::string& path) {
    return Quoted("file:" + path);
}

bool Runs(const std::string& command) {
    const int status = std::system(command.c_str());
    return status != -1 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// Seconds of a frame with all its decimals: 1/40 = 0.025.
std::string SecondsOf(std::int64_t frame) {
    char text[64];
    std::snprintf(text, sizeof text, "%lld.%03lld",
                  static_cast<long long>(frame / kFramesPerSecond),
                  static_cast<long long>(frame % kFramesPerSecond * 25));
    return text;
}

} // namespace

bool CanDecode(const std::string& soundtrack) {
    // A pipe might never begin.
    std::error_code error;
    return std::filesystem::is_regular_file(soundtrack, error) &&
           Runs("ffmpeg -nostdin -v quiet -t 1 -i " + FileName(soundtrack) +
                " -vn -f null - >/dev/null 2>&1");
}

std::string OpenVideo(const VideoRequest& request, Video* video) {
    if (!Runs("command -v ffmpeg >/dev/null 2>&1")) {
        return "--video: the program ffmpeg is not installed";
    }
    video->file = request.file;
    video->part = request.file + ".part";
    // Say it before the first frame where the place cannot be written to at all.
    std::FILE* place = std::fopen(video->part.c_str(), "wb");
    if (place == nullptr) {
        return request.file + ": " + std::strerror(errno);
    }
    std::fclose(place);

    std::string command =
        "exec ffmpeg -nostdin -v error -xerror -y -f rawvideo -pix_fmt rgb24 -s " +
        std::to_string(request.width) + "x" + std::to_string(request.height) + " -r " +
        std::to_string(kFramesPerSecond) + " -i pipe:0";
    if (!request.soundtrack.empty()) {
        // Silence follows a soundtrack that is shorter than the picture.
        command += " -ss " + SecondsOf(request.firstFrame) + " -i " + FileName(request.soundtrack) +
                   " -map 0:v -map 1:a -c:a aac -b:a 192k -af apad -shortest";
    }
    command += " -vf scale=out_color_matrix=bt709:out_range=tv:flags=accurate_rnd+full_chroma_int"
               ",format=yuv420p"
               " -color_primaries bt709 -color_trc bt709 -colorspace bt709 -color_range tv"
               " -c:v libx264 -preset veryfast -crf 16 -r " +
               std::to_string(kFramesPerSecond) +
               " -map_metadata -1 -fflags +bitexact -flags:v +bitexact -flags:a +bitexact"
               " -movflags +faststart -f mp4 " +
               FileName(video->part);
    std::fflush(nullptr);
    video->pipe = popen(command.c_str(), "w");
    return video->pipe != nullptr ? "" : "--video: ffmpeg could not be started";
}

std::string WriteVideo(Video* video, const std::vector<std::uint8_t>& rgb) {
    if (std::fwrite(rgb.data(), 1, rgb.size(), video->pipe) != rgb.size()) {
        return video->file + ": ffmpeg ended early";
    }
    return "";
}

std::string CloseVideo(Video* video) {
    const int status = pclose(video->pipe);
    video->pipe = nullptr;
    if (status == -1 || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::remove(video->part.c_str());
        return video->file + ": ffmpeg could not write the video";
    }
    if (std::rename(video->part.c_str(), video->file.c_str()) != 0) {
        const int reason = errno;
        std::remove(video->part.c_str());
        return video->file + ": " + std::strerror(reason);
    }
    return "";
}

void DropVideo(Video* video) {
    if (video->pipe != nullptr) {
        (void)pclose(video->pipe);
        video->pipe = nullptr;
    }
    if (!video->part.empty()) {
        std::remove(video->part.c_str());
    }
}

#else

bool CanDecode(const std::string&) {
    return false;
}
std::string OpenVideo(const VideoRequest&, Video*) {
    return "--video: this build cannot write videos";
}
std::string WriteVideo(Video*, const std::vector<std::uint8_t>&) {
    return "";
}
std::string CloseVideo(Video*) {
    return "";
}
void DropVideo(Video*) {}

#endif

} // namespace capture
