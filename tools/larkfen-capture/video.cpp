// The pipe to ffmpeg. Systems without pipes to a shell say so.
#include "video.h"

#include <algorithm>
#include <cerrno>
#include <cinttypes>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include "base/hash.h"

#if __has_include(<sys/wait.h>)
#include <sys/wait.h>
#endif

namespace capture {

namespace fs = std::filesystem;

VideoKind KindOfVideo(const std::string& file) {
    const std::string ending = fs::path(file).extension().string();
    return ending == ".gif" ? VideoKind::Gif : ending == ".webp" ? VideoKind::WebP : VideoKind::Mp4;
}

// Picture k shows the frame that is due at k / rate, which is frame k * 40 / rate, cut to a whole
// number. Those of frame n are the ones from n * rate / 40 up to (n + 1) * rate / 40, both rounded
// up.
std::int64_t PicturesOf(std::int64_t n, std::int32_t rate) {
    const auto first = [&](std::int64_t frame) {
        return (frame * rate + kFramesPerSecond - 1) / kFramesPerSecond;
    };
    return first(n + 1) - first(n);
}

bool WantsPixels(const Video& video) {
    const bool pieceBegins = video.request.resume && video.frames % kPieceFrames == 0;
    return video.open && (pieceBegins || video.pipe != nullptr);
}

#if __has_include(<sys/wait.h>)

namespace {

constexpr char kBitExact[] =
    " -map_metadata -1 -fflags +bitexact -flags:v +bitexact -flags:a +bitexact";

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

// Seconds with all their decimals: 1/40 = 0.025.
std::string SecondsOf(std::int64_t count, std::int64_t perSecond) {
    constexpr std::int64_t kMillion = 1000000;
    const std::int64_t micros = count % perSecond * kMillion / perSecond;
    char text[64];
    std::snprintf(text, sizeof text, "%" PRId64 ".%06" PRId64, count / perSecond, micros);
    return text;
}

std::string InputOf(const VideoRequest& request) {
    return "ffmpeg -nostdin -v error -xerror -y -f rawvideo -pix_fmt rgb24 -s " +
           std::to_string(request.width) + "x" + std::to_string(request.height) + " -r " +
           std::to_string(request.rate) + " -i pipe:0";
}

// Colours as every player of the web takes them, and square pixels.
std::string EncoderOf(const VideoRequest& request) {
    return " -vf scale=out_color_matrix=bt709:out_range=tv:flags=accurate_rnd+full_chroma_int"
           ",format=yuv420p,setsar=1"
           " -color_primaries bt709 -color_trc bt709 -colorspace bt709 -color_range tv"
           " -c:v libx264 -preset veryfast -crf 16 -r " +
           std::to_string(request.rate) + kBitExact;
}

// Silence follows a soundtrack that is shorter than the picture.
std::string SoundOf(const VideoRequest& request) {
    if (request.soundtrack.empty()) {
        return "";
    }
    return " -ss " + SecondsOf(request.firstFrame, kFramesPerSecond) + " -i " +
           FileName(request.soundtrack) + " -map 0:v -map 1:a -c:a aac -b:a 192k -af apad";
}

// Of a file that is written in one go.
std::string CommandOf(const Video& video) {
    const VideoRequest& request = video.request;
    switch (KindOfVideo(request.file)) {
    case VideoKind::Gif:
        return InputOf(request) +
               " -filter_complex 'split[a][b];[a]palettegen=stats_mode=diff[p];"
               "[b][p]paletteuse=dither=bayer:bayer_scale=4:diff_mode=rectangle'" +
               kBitExact + " -loop 0 -f gif " + FileName(video.part);
    case VideoKind::WebP:
        return InputOf(request) +
               " -pix_fmt bgra -c:v libwebp_anim -quality 80 -compression_level 4" + kBitExact +
               " -loop 0 -f webp " + FileName(video.part);
    default:
        return InputOf(request) + SoundOf(request) +
               (request.soundtrack.empty() ? "" : " -shortest") + EncoderOf(request) +
               " -movflags +faststart -f mp4 " + FileName(video.part);
    }
}

std::string StartProgram(const std::string& command, Video* video) {
    std::fflush(nullptr);
    video->pipe = popen(("exec " + command).c_str(), "w");
    return video->pipe != nullptr ? "" : "--video: ffmpeg could not be started";
}

// False when it did not end as it should.
bool EndProgram(Video* video) {
    const int status = pclose(video->pipe);
    video->pipe = nullptr;
    return status != -1 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

// The file gets its name.
std::string Rename(const std::string& part, const std::string& file) {
    if (std::rename(part.c_str(), file.c_str()) == 0) {
        return "";
    }
    const int reason = errno;
    std::remove(part.c_str());
    return file + ": " + std::strerror(reason);
}

// --- pieces: FILE.pieces/piece-0003-0123456789abcdef.mp4, with the digest of its frames
// -------------
fs::path PiecesOf(const Video& video) {
    return video.request.file + ".pieces";
}

std::vector<fs::path> WholePieces(const Video& video) {
    std::vector<fs::path> pieces;
    std::error_code error;
    for (fs::directory_iterator it(PiecesOf(video), error), end; !error && it != end;
         it.increment(error)) {
        if (it->path().extension() == ".mp4") {
            pieces.push_back(it->path());
        }
    }
    std::sort(pieces.begin(), pieces.end());
    return pieces;
}

std::string PieceName(const char* format, std::int64_t number, std::uint64_t digest) {
    char name[64];
    std::snprintf(name, sizeof name, format, number, digest);
    return name;
}
constexpr char kPieceForm[] = "piece-%04" PRId64 "-%016" PRIx64 ".mp4";
constexpr std::size_t kPieceStem = sizeof "piece-0000-" - 1; // what two digests have in common

std::string SettingsOf(const VideoRequest& request) {
    return std::to_string(request.width) + "x" + std::to_string(request.height) + ", " +
           std::to_string(request.rate) + " pictures a second, from frame " +
           std::to_string(request.firstFrame) + request.settings + "\n";
}

// Makes the folder, or sees that what is in it was begun with the same settings.
std::string OpenPieces(const Video& video) {
    const fs::path settings = PiecesOf(video) / "settings.txt";
    const std::string wanted = SettingsOf(video.request);
    std::error_code error;
    fs::create_directories(PiecesOf(video), error);
    if (error) {
        return PiecesOf(video).string() + ": " + error.message();
    }
    if (std::ifstream there(settings); there) {
        const std::string found(std::istreambuf_iterator<char>(there), {});
        return found == wanted
                   ? ""
                   : PiecesOf(video).string() +
                         " was begun with other settings: " + found.substr(0, found.find('\n')) +
                         "; give the same or remove it";
    }
    std::ofstream file(settings);
    file << wanted << std::flush;
    return file ? "" : settings.string() + ": could not be written";
}

std::string BeginPiece(Video* video) {
    const std::int64_t number = video->frames / kPieceFrames;
    const std::string stem = PieceName(kPieceForm, number, 0).substr(0, kPieceStem);
    video->digest = ombrel::kHashStart;
    for (const fs::path& piece : WholePieces(*video)) {
        if (piece.filename().string().substr(0, kPieceStem) == stem) {
            video->piece = piece.string();
            return "";
        }
    }
    video->part = (PiecesOf(*video) / "growing.part").string();
    video->piece = video->part;
    const VideoRequest& request = video->request;
    return StartProgram(InputOf(request) + EncoderOf(request) + " -f mp4 " + FileName(video->part),
                        video);
}

std::string EndPiece(Video* video) {
    const std::int64_t number = (video->frames - 1) / kPieceFrames;
    const std::string name = PieceName(kPieceForm, number, video->digest);
    const std::string piece = std::exchange(video->piece, "");
    if (video->pipe == nullptr) {
        return fs::path(piece).filename() == name
                   ? ""
                   : piece + " shows other frames than are played now; remove it";
    }
    if (!EndProgram(video)) {
        std::remove(video->part.c_str());
        return video->request.file + ": ffmpeg could not write a piece of the video";
    }
    return Rename(std::exchange(video->part, ""), (PiecesOf(*video) / name).string());
}

// Pictures of all pieces, in one file with the sound.
std::string JoinPieces(Video* video) {
    const fs::path list = PiecesOf(*video) / "list.txt";
    {
        std::ofstream file(list);
        for (const fs::path& piece : WholePieces(*video)) {
            file << "file '" << piece.filename().string() << "'\n";
        }
        if (!(file << std::flush)) {
            return list.string() + ": could not be written";
        }
    }
    std::int64_t pictures = 0;
    const VideoRequest& request = video->request;
    for (std::int64_t n = 0; n < video->frames; ++n) {
        pictures += PicturesOf(n, request.rate);
    }
    video->part = request.file + ".part";
    const std::string command = "ffmpeg -nostdin -v error -xerror -y -f concat -i " +
                                FileName(list.string()) + SoundOf(request) + " -c:v copy -t " +
                                SecondsOf(pictures, request.rate) + kBitExact +
                                " -movflags +faststart -f mp4 " + FileName(video->part);
    if (!Runs(command)) {
        std::remove(video->part.c_str());
        return request.file + ": ffmpeg could not join the pieces of the video";
    }
    std::string problem = Rename(std::exchange(video->part, ""), request.file);
    if (problem.empty()) {
        std::error_code error;
        fs::remove_all(PiecesOf(*video), error);
    }
    return problem;
}

} // namespace

bool CanDecode(const std::string& soundtrack) {
    // A pipe might never begin.
    std::error_code error;
    return fs::is_regular_file(soundtrack, error) &&
           Runs("ffmpeg -nostdin -v quiet -t 1 -i " + FileName(soundtrack) +
                " -vn -f null - >/dev/null 2>&1");
}

std::string OpenVideo(const VideoRequest& request, Video* video) {
    if (!Runs("command -v ffmpeg >/dev/null 2>&1")) {
        return "--video: the program ffmpeg is not installed";
    }
    video->request = request;
    video->part = request.file + ".part";
    // Say it before the first frame where the place cannot be written to at all.
    std::FILE* place = std::fopen(video->part.c_str(), "wb");
    if (place == nullptr) {
        const int reason = errno;
        video->part.clear();
        return request.file + ": " + std::strerror(reason);
    }
    std::fclose(place);
    video->open = true;
    if (!request.resume) {
        return StartProgram(CommandOf(*video), video);
    }
    std::remove(video->part.c_str());
    video->part.clear();
    return OpenPieces(*video);
}

std::string WriteVideo(Video* video, const std::vector<std::uint8_t>& rgb, std::uint64_t hash) {
    const bool pieces = video->request.resume;
    if (pieces && video->piece.empty()) {
        std::string problem = BeginPiece(video);
        if (!problem.empty()) {
            return problem;
        }
    }
    const std::int64_t count =
        video->pipe != nullptr ? PicturesOf(video->frames, video->request.rate) : 0;
    for (std::int64_t i = 0; i < count; ++i) {
        if (std::fwrite(rgb.data(), 1, rgb.size(), video->pipe) != rgb.size()) {
            return video->request.file + ": ffmpeg ended early";
        }
    }
    ++video->frames;
    video->digest = ombrel::HashBytes(video->digest, &hash, sizeof hash);
    return pieces && video->frames % kPieceFrames == 0 ? EndPiece(video) : "";
}

std::string CloseVideo(Video* video) {
    video->open = false;
    if (video->request.resume) {
        const std::string problem = video->piece.empty() ? "" : EndPiece(video);
        return problem.empty() ? JoinPieces(video) : problem;
    }
    if (!EndProgram(video)) {
        std::remove(video->part.c_str());
        return video->request.file + ": ffmpeg could not write the video";
    }
    return Rename(video->part, video->request.file);
}

void DropVideo(Video* video) {
    if (video->pipe != nullptr) {
        (void)EndProgram(video);
    }
    if (!video->part.empty()) {
        std::remove(video->part.c_str());
    }
    if (!video->open || !video->request.resume) {
        return;
    }
    const std::size_t kept = WholePieces(*video).size();
    if (kept > 0) {
        std::fprintf(stderr, "%s holds %zu pieces of %d frames; the same call goes on after them\n",
                     PiecesOf(*video).c_str(), kept, kPieceFrames);
    } else {
        std::error_code error;
        fs::remove_all(PiecesOf(*video), error);
    }
}

#else

bool CanDecode(const std::string&) {
    return false;
}
std::string OpenVideo(const VideoRequest&, Video*) {
    return "--video: this build cannot write videos";
}
std::string WriteVideo(Video*, const std::vector<std::uint8_t>&, std::uint64_t) {
    return "";
}
std::string CloseVideo(Video*) {
    return "";
}
void DropVideo(Video*) {}

#endif

} // namespace capture
