// larkfen-capture: plays the production over the offscreen back end and records its frames as
// pictures, as a video with sound, or as one line of digest a frame. Two runs give the same bytes.
#include <algorithm>
#include <cerrno>
#include <cinttypes>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

#include "app/command_line.h"
#include "app/frame_driver.h"
#include "app/shell.h"
#include "app/vector_choice.h"
#include "base/data_file.h"
#include "base/float_mode.h"
#include "base/hash.h"
#include "base/shell_state.h"
#include "base/version.h"
#include "demo/scene_one.h"
#include "demo/switches.h"
#include "demo/world.h"
#include "larkfen-capture/options.h"
#include "larkfen-capture/picture.h"
#include "larkfen-capture/processor.h"
#include "larkfen-capture/production.h"
#include "larkfen-capture/progress.h"
#include "larkfen-capture/published.h"
#include "larkfen-capture/video.h"
#include "platform/offscreen/offscreen.h"
#include "player/looks.h"
#include "player/show.h"

namespace {

using namespace capture;

constexpr std::uint32_t kMsPerFrame = 25;
constexpr int kDone = 0, kFailed = 1, kUsage = 2;

// Everything a run of the tool works on.
struct Recorder {
    Options options;
    Progress progress{};
    Video video;
    std::FILE* hashes = nullptr;
    std::string hashPart; // name of the hash file while it grows; empty: written in place
    Verification verification;
    std::vector<std::uint8_t> rgb;
    std::int64_t played = 0;
    std::int64_t recorded = 0;
    std::int32_t scene = 0; // that draws the frame of this turn; it may name the next while it does
    std::string problem;    // the first one ends the run
};

volatile std::sig_atomic_t interrupted = 0;

void OnInterrupt(int) {
    interrupted = 1;
}

// What ends a recording leaves no half file. A signal that whoever started us ignores stays
// ignored.
void TakeSignals() {
    for (const int number : {
             SIGINT,
             SIGTERM,
#ifdef SIGHUP
             SIGHUP,
#endif
         }) {
        if (std::signal(number, OnInterrupt) == SIG_IGN) {
            std::signal(number, SIG_IGN);
        }
    }
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN); // a pipe that breaks is a write that fails
#endif
}

// The first problem counts; the run ends with the frame.
void Note(Recorder* recorder, const std::string& problem) {
    if (recorder->problem.empty() && !problem.empty()) {
        recorder->problem = problem;
        ombrel::PostQuit(1);
    }
}

std::int32_t DrawnFaces() {
    std::int32_t count = 0;
    for (std::int32_t i = 0; i < ombrel::sceneFaces.count; ++i) {
        count += ombrel::IsDrawable(ombrel::sceneFaces.records[i].state) ? 1 : 0;
    }
    return count;
}

void WriteHashLine(Recorder* recorder, const ombrel::PresentedFrame& shown, std::uint64_t hash) {
    if (std::fprintf(recorder->hashes, "frame %" PRId64 " scene %d faces %d hash %016" PRIx64 "\n",
                     shown.number, recorder->scene, DrawnFaces(), hash) < 0) {
        Note(recorder, recorder->options.hashFile + ": " + std::strerror(errno));
    }
}

void WritePicture(Recorder* recorder, const ombrel::PresentedFrame& shown) {
    char name[64];
    std::snprintf(name, sizeof name, "frame-%06" PRId64 ".png", shown.number);
    const std::filesystem::path path = std::filesystem::path(recorder->options.pngFolder) / name;
    const std::int32_t scale = recorder->options.scale;
    Note(recorder,
         WritePng(path.string(), recorder->rgb, shown.width * scale, shown.height * scale));
}

void RecordFrame(Recorder* recorder, const ombrel::PresentedFrame& shown) {
    const Options& options = recorder->options;
    const bool picked = (shown.number - options.first) % options.every == 0;
    const bool wantsLine = !options.hashFile.empty() && picked;
    std::uint64_t hash = 0;
    if (options.verify || options.resume || wantsLine) {
        hash = ombrel::HashPicture(shown.pixels, shown.pitch, shown.width, shown.height);
    }
    if (options.verify) {
        CompareFrame(&recorder->verification, shown.number, hash);
    }
    if (wantsLine) {
        WriteHashLine(recorder, shown, hash);
    }
    const bool wantsPicture = !options.pngFolder.empty() && picked;
    if (wantsPicture || WantsPixels(recorder->video)) {
        ToRgb(shown.pixels, shown.pitch, shown.width, shown.height, options.scale, &recorder->rgb);
    }
    if (wantsPicture) {
        WritePicture(recorder, shown);
    }
    if (recorder->video.open) {
        Note(recorder, WriteVideo(&recorder->video, recorder->rgb, hash));
    }
    recorder->recorded += picked || recorder->video.open ? 1 : 0;
}

void OnFrame(const ombrel::PresentedFrame& shown, void* user) {
    auto* recorder = static_cast<Recorder*>(user);
    if (shown.number >= recorder->options.first && shown.number < recorder->options.end &&
        recorder->problem.empty()) {
        RecordFrame(recorder, shown);
    }
    ++recorder->played;
    ShowProgress(&recorder->progress, recorder->played);
    if (interrupted != 0) {
        Note(recorder, "interrupted");
    }
    if (shown.number + 1 >= recorder->options.end) {
        ombrel::PostQuit(0);
    }
}

void HoldSwitches(const Recorder& recorder) {
    for (const SwitchSetting& setting : recorder.options.settings) {
        ombrel::SetSwitch(setting.name.c_str(), setting.value);
    }
}

void OnTurn(std::int64_t, void* user) {
    auto* recorder = static_cast<Recorder*>(user);
    HoldSwitches(*recorder);
    recorder->scene = std::clamp(ombrel::driver.sceneIndex, 0, 6);
}

void OnMessage(const char* text, ombrel::MessageKind kind, void*) {
    if (kind != ombrel::MessageKind::YesNo) {
        std::printf("%s\n", text);
    }
}

std::string OpenVideoOf(Recorder* recorder) {
    const Options& options = recorder->options;
    const ombrel::CommandLine line = ombrel::ParseCommandLine(options.production.c_str());
    const bool silent = line.noSound || KindOfVideo(options.videoFile) != VideoKind::Mp4;
    std::string soundtrack = silent ? "" : ombrel::FindDataFile("./data/sfx/soundtrack.mp3");
    if (!soundtrack.empty() && !CanDecode(soundtrack)) {
        std::fprintf(stderr, "%s: no sound in it; the video is silent\n", soundtrack.c_str());
        soundtrack.clear();
    }
    VideoRequest request{
        options.videoFile,           soundtrack,   options.first,  line.width * options.scale,
        line.height * options.scale, options.rate, options.resume, ""};
    request.settings =
        options.end == INT64_MAX ? " to the end" : " to " + std::to_string(options.end - 1);
    if (options.look != ombrel::Look::None) {
        request.settings += std::string(", look ") + ombrel::LookName(options.look);
    }
    for (const SwitchSetting& setting : options.settings) {
        request.settings += ", " + setting.name + "=" + std::to_string(setting.value);
    }
    return OpenVideo(request, &recorder->video);
}

std::string OpenOutputs(Recorder* recorder) {
    const Options& options = recorder->options;
    if (!options.pngFolder.empty()) {
        std::error_code error;
        std::filesystem::create_directories(options.pngFolder, error);
        if (error) {
            return options.pngFolder + ": " + error.message();
        }
    }
    if (options.hashFile == "-") {
        recorder->hashes = stdout;
    } else if (!options.hashFile.empty()) {
        // A device or a pipe cannot change its name.
        std::error_code error;
        const auto status = std::filesystem::status(options.hashFile, error);
        if (!std::filesystem::exists(status) || std::filesystem::is_regular_file(status)) {
            recorder->hashPart = options.hashFile + ".part";
        }
        const std::string& name =
            recorder->hashPart.empty() ? options.hashFile : recorder->hashPart;
        recorder->hashes = std::fopen(name.c_str(), "wb");
        if (recorder->hashes == nullptr) {
            return options.hashFile + ": " + std::strerror(errno);
        }
    }
    return options.videoFile.empty() ? "" : OpenVideoOf(recorder);
}

// The hash file gets its name only when it is whole.
void CloseHashes(Recorder* recorder) {
    const std::string& file = recorder->options.hashFile;
    errno = 0;
    const bool written = std::fflush(recorder->hashes) == 0;
    const int reason = errno;
    const bool closed = recorder->hashes == stdout || std::fclose(recorder->hashes) == 0;
    if (!written || !closed) {
        Note(recorder, file + ": " + std::strerror(reason != 0 ? reason : errno));
    }
    if (recorder->hashPart.empty()) {
        return;
    }
    if (!recorder->problem.empty()) {
        std::remove(recorder->hashPart.c_str());
    } else if (std::rename(recorder->hashPart.c_str(), file.c_str()) != 0) {
        Note(recorder, file + ": " + std::strerror(errno));
        std::remove(recorder->hashPart.c_str());
    }
}

void CloseOutputs(Recorder* recorder) {
    if (recorder->hashes != nullptr) {
        CloseHashes(recorder);
    }
    if (!recorder->problem.empty()) {
        DropVideo(&recorder->video);
    } else if (recorder->video.open) {
        Note(recorder, CloseVideo(&recorder->video));
    }
}

int Refuse(const std::string& why) {
    std::fprintf(stderr, "larkfen-capture: %s\n", why.c_str());
    return kUsage;
}

// Reads the list to compare with, and ends the run after its last frame. Empty, or what is wrong.
std::string PrepareVerification(Recorder* recorder, std::int64_t whole) {
    Options& options = recorder->options;
    const std::string file = !options.publishedFile.empty()
                                 ? options.publishedFile
                                 : FindPublished(ombrel::DataFolder(), ombrel::ProgramFolder());
    const bool all = options.first == 0 && options.end == INT64_MAX;
    const std::string problem =
        ReadPublished(file, options.first, options.end, &recorder->verification);
    if (!problem.empty()) {
        return problem +
               (options.publishedFile.empty() ? "; --hashes-file names another list" : "");
    }
    options.end = recorder->verification.frames.back().number + 1;
    if (all && whole > options.end) {
        return file + ": ends with frame " + std::to_string(options.end - 1) +
               ", the production has " + std::to_string(whole);
    }
    return "";
}

// Empty when the run may begin, else why not.
std::string Prepare(Recorder* recorder, std::int64_t whole) {
    const Options& options = recorder->options;
    if (options.verify) {
        std::string problem = PrepareVerification(recorder, whole);
        if (!problem.empty()) {
            return problem;
        }
    }
    // Without a whole first track nobody would end the run.
    if (whole == 0 && options.end == INT64_MAX && options.settings.empty() && Records(options)) {
        return "data/cam/scene1.trk has fewer than 35 keys, so the production never ends; give "
               "--frames A:B";
    }
    return "";
}

// As fast as it goes; the clock moves by exactly one frame a frame.
int Play(Recorder* recorder, std::int64_t whole) {
    const Options& options = recorder->options;
    const bool bounded = whole == 0 || options.end < whole;
    recorder->progress = StartProgress(bounded && options.end != INT64_MAX ? options.end : whole);
    HoldSwitches(*recorder);
    ombrel::script.msPerRead = 0;
    ombrel::script.msPerPresent = kMsPerFrame;
    ombrel::script.onFrame = OnFrame;
    ombrel::script.onTurn = OnTurn;
    ombrel::script.onMessage = OnMessage;
    ombrel::script.user = recorder;
    return ombrel::RunProduction(options.production.c_str());
}

// The frames with one look into each, by a show that can be wound: only those that are wanted.
int PlayLooks(Recorder* recorder, std::int64_t whole) {
    const Options& options = recorder->options;
    const std::int64_t end = whole > 0 ? std::min(options.end, whole) : options.end;
    const std::int64_t every = recorder->video.open ? 1 : options.every;
    const ombrel::CommandLine line = ombrel::ParseCommandLine(options.production.c_str());
    const std::vector<std::uint64_t> published =
        PublishedHashes(ombrel::DataFolder(), ombrel::ProgramFolder());
    if (!ombrel::OpenShow({ombrel::RenderFrame,
                           line.width,
                           line.height,
                           0,
                           0,
                           {published.data(), static_cast<std::int32_t>(published.size())}})) {
        Note(recorder, "the production could not be opened");
        return kFailed;
    }
    recorder->progress = StartProgress(end - options.first);
    ombrel::LookPicture look;
    for (std::int64_t frame = options.first; frame < end && recorder->problem.empty();
         frame += every) {
        if (ombrel::SeekShow(static_cast<std::int32_t>(frame), nullptr, nullptr) != frame ||
            !ombrel::DrawLook(options.look, &look)) {
            break;
        }
        RecordFrame(recorder,
                    {look.pixels.data(), look.width * 2, look.width, look.height, 0, 0, frame});
        recorder->played += every;
        ShowProgress(&recorder->progress, recorder->played);
        if (interrupted != 0) {
            Note(recorder, "interrupted");
        }
    }
    ombrel::CloseShow();
    return kDone;
}

// Says how the frames compare; the exit code.
int TellVerdict(const Recorder& recorder, ombrel::VectorPath path) {
    bool same = false;
    const std::string verdict = Verdict(recorder.verification, &same);
    std::printf("%s (%s, path %s)\n", verdict.c_str(), ProcessorName().c_str(),
                ombrel::NameOf(path));
    return same ? kDone : kFailed;
}

// Puts the files in their places and says how it went; the exit code.
int Finish(Recorder* recorder, ombrel::VectorPath path) {
    CloseOutputs(recorder);
    if (!recorder->problem.empty()) {
        std::fprintf(stderr, "%slarkfen-capture: %s\n", recorder->progress.terminal ? "\n" : "",
                     recorder->problem.c_str());
        return kFailed;
    }
    if (recorder->played == 0) { // its help
        return kDone;
    }
    EndProgress(recorder->progress, recorder->played, recorder->recorded);
    return recorder->options.verify ? TellVerdict(*recorder, path) : kDone;
}

} // namespace

int main(int argc, char** argv) {
    Recorder recorder;
    const std::string wrong = ReadOptions(argc, argv, &recorder.options);
    if (!wrong.empty()) {
        return Refuse(wrong);
    }
    if (recorder.options.help) {
        std::fputs(HelpText().c_str(), stdout);
        return kDone;
    }
    if (recorder.options.version) {
        std::printf("larkfen-capture %s\n", ombrel::kVersion);
        return kDone;
    }
    TakeSignals();
    const std::string noData = ChooseDataFolder(recorder.options.dataFolder);
    if (!noData.empty()) {
        return Refuse(noData);
    }
    // The production plays without any of them; nobody wants that without knowing.
    if (!HasProduction()) {
        std::fprintf(stderr, "%s: no data of the production is in it\n",
                     ombrel::DataFolder().c_str());
    }
    const ombrel::VectorPath path = ChoosePath("larkfen-capture");
    const std::int64_t whole = FramesOfProduction();
    const std::string unready = Prepare(&recorder, whole);
    if (!unready.empty()) {
        return Refuse(unready);
    }
    const std::string unopened = OpenOutputs(&recorder);
    if (!unopened.empty()) {
        Note(&recorder, unopened);
        return Finish(&recorder, path);
    }
    const bool looks = recorder.options.look != ombrel::Look::None;
    const int result = looks ? PlayLooks(&recorder, whole) : Play(&recorder, whole);
    const bool helped = recorder.played == 0 && result == 0;
    if (!helped && recorder.recorded == 0) {
        Note(&recorder,
             "the production ended before frame " + std::to_string(recorder.options.first));
    }
    return Finish(&recorder, path);
}
