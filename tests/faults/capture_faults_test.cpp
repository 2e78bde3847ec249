// The recorder on a disk that is full and in folders where nothing can be written: it ends with
// exit code 1 and names the file, and neither half a file nor its first part stays behind. The full
// disk is a limit on the size of files, which every program of the recording has.
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/hand_made_data.h"

namespace ombrel {
namespace {

namespace fs = std::filesystem;

constexpr rlim_t kNoLimit = RLIM_INFINITY;
constexpr int kLongestSilence = 120000; // ms

struct Result {
    int code; // -1: died of a signal
    std::string said;
};

class CaptureFaults : public testing::Test {
protected:
    CaptureFaults() {
        WriteWholeFolder(data_, "1");
        char name[] = "/tmp/ombrel-capture-XXXXXX";
        place_ = mkdtemp(name);
    }
    ~CaptureFaults() override {
        std::error_code error;
        fs::remove_all(place_, error);
    }

    // Starts the recorder on 320 x 240 pictures in a working folder, its files limited in size, as
    // the head of a group of programs. It is silent and takes the data of the test unless the
    // arguments say --data.
    void Start(const std::vector<std::string>& arguments, rlim_t limit, const std::string& folder) {
        std::vector<std::string> words = {OMBREL_BINARY_DIR "/larkfen-capture", "-w",
                                          "-resolution=320x240"};
        if (std::find(arguments.begin(), arguments.end(), "--data") == arguments.end()) {
            words.insert(words.end(), {"-ns", "--data", data_.Root()});
        }
        words.insert(words.end(), arguments.begin(), arguments.end());
        std::vector<char*> argv;
        for (std::string& word : words) {
            argv.push_back(word.data());
        }
        argv.push_back(nullptr);
        int ends[2] = {-1, -1};
        ASSERT_EQ(pipe(ends), 0);
        child_ = fork();
        if (child_ == 0) {
            setpgid(0, 0);
            std::signal(SIGXFSZ, SIG_IGN); // a full disk sends none
            std::signal(SIGINT, SIG_DFL);  // which whoever starts the tests may ignore
            std::signal(SIGHUP, SIG_DFL);
            const rlimit size{limit, limit};
            if (chdir(folder.c_str()) == 0 && setrlimit(RLIMIT_FSIZE, &size) == 0) {
                dup2(ends[1], 1);
                dup2(ends[1], 2);
                close(ends[0]);
                execv(argv[0], argv.data());
            }
            _exit(99);
        }
        close(ends[1]);
        saying_ = ends[0];
    }

    // Waits for its end; a group that hangs is killed.
    Result End() {
        Result result{-1, ""};
        char block[512];
        pollfd waiting{saying_, POLLIN, 0};
        for (ssize_t n = 1; n > 0;) {
            if (poll(&waiting, 1, kLongestSilence) == 0) {
                kill(-child_, SIGKILL);
                ADD_FAILURE() << "it hangs";
            }
            n = read(saying_, block, sizeof block);
            result.said.append(block, static_cast<std::size_t>(n > 0 ? n : 0));
        }
        close(saying_);
        int status = 0;
        waitpid(child_, &status, 0);
        result.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        // A sanitized recorder ends with 1 as well when it has something to report.
        EXPECT_EQ(result.said.find("Sanitizer: "), std::string::npos) << result.said;
        EXPECT_EQ(result.said.find("runtime error"), std::string::npos) << result.said;
        return result;
    }

    Result Record(const std::vector<std::string>& arguments, rlim_t limit,
                  const std::string& folder) {
        Start(arguments, limit, folder);
        return End();
    }
    Result Record(const std::vector<std::string>& arguments, rlim_t limit = kNoLimit) {
        return Record(arguments, limit, place_);
    }

    std::string Place(const std::string& name) const { return place_ + "/" + name; }
    std::vector<std::string> Left() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(place_)) {
            if (!entry.is_directory()) {
                names.push_back(entry.path().filename().string());
            }
        }
        return names;
    }

    DataFolderForTest data_;
    std::string place_;
    pid_t child_ = -1;
    int saying_ = -1; // what it says
};

using Names = std::vector<std::string>;

#if defined(__has_feature)
#define OMBREL_HAS_FEATURE(name) __has_feature(name)
#else
#define OMBREL_HAS_FEATURE(name) 0
#endif

// Where these tests are sanitized, so is the recorder that they start.
TEST_F(CaptureFaults, RecorderIsSanitizedAsTheTestsAre) {
#if defined(__SANITIZE_ADDRESS__) || OMBREL_HAS_FEATURE(address_sanitizer)
    constexpr bool wanted = true;
#else
    constexpr bool wanted = false;
#endif
    const char* const before = std::getenv("ASAN_OPTIONS");
    const std::string saved = before != nullptr ? before : "";
    setenv("ASAN_OPTIONS", (saved + ":help=1").c_str(), 1);
    const Result r = Record({"--frames", "0:1", "--hashes", "-"}, kNoLimit, place_);
    if (before != nullptr) {
        setenv("ASAN_OPTIONS", saved.c_str(), 1);
    } else {
        unsetenv("ASAN_OPTIONS");
    }
    EXPECT_EQ(r.said.find("flags for AddressSanitizer") != std::string::npos, wanted) << r.said;
}

TEST_F(CaptureFaults, DiskFullWhileHashing) {
    const Result r = Record({"--frames", "0:120", "--hashes", Place("h.txt")}, 2000);
    EXPECT_EQ(r.code, 1) << r.said;
    EXPECT_NE(r.said.find(Place("h.txt") + ": File too large"), std::string::npos) << r.said;
    EXPECT_EQ(Left(), Names());
}

TEST_F(CaptureFaults, DiskFullKeepsTheHashesOfBefore) {
    std::ofstream(Place("h.txt")) << "whole\n";
    EXPECT_EQ(Record({"--frames", "0:120", "--hashes", Place("h.txt")}, 2000).code, 1);
    EXPECT_EQ(Left(), Names{"h.txt"});
    std::ifstream file(Place("h.txt"));
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "whole\n");
}

TEST_F(CaptureFaults, DeviceThatIsFull) {
    const Result r = Record({"--frames", "0:3", "--hashes", "/dev/full"});
    EXPECT_EQ(r.code, 1) << r.said;
    EXPECT_NE(r.said.find("/dev/full: No space left on device"), std::string::npos) << r.said;
    EXPECT_FALSE(fs::exists("/dev/full.part"));
}

TEST_F(CaptureFaults, DiskFullWhileDrawing) {
    const Result r = Record({"--frames", "0:4", "--png", Place("png")}, 100);
    EXPECT_EQ(r.code, 1) << r.said;
    EXPECT_NE(r.said.find(Place("png/frame-000000.png") + ": "), std::string::npos) << r.said;
    EXPECT_EQ(Left(), Names());
}

TEST_F(CaptureFaults, DiskFullWhileFilming) {
    const Result r = Record({"--frames", "0:40", "--video", Place("v.mp4")}, 3000);
    EXPECT_EQ(r.code, 1) << r.said;
    EXPECT_NE(r.said.find(Place("v.mp4") + ": "), std::string::npos) << r.said;
    EXPECT_EQ(Left(), Names());
}

TEST_F(CaptureFaults, NowhereToWrite) {
    for (const char* const option : {"--hashes", "--video", "--png"}) {
        const Result r = Record({"--frames", "0:3", option, "/proc/none/file"});
        EXPECT_EQ(r.code, 1) << option << r.said;
        EXPECT_NE(r.said.find("/proc/none/file: "), std::string::npos) << option << r.said;
    }
    // A good file beside a bad one is not begun.
    EXPECT_EQ(Record({"--frames", "0:3", "--hashes", Place("h"), "--video", "/proc/none/v"}).code,
              1);
    EXPECT_EQ(Left(), Names());
}

TEST_F(CaptureFaults, DataFolderThatIsNone) {
    std::ofstream(Place("file")) << "no folder\n";
    for (const std::string& folder : {Place("absent"), Place("file"), std::string("/proc/none")}) {
        const Result r = Record({"--frames", "0:3", "--hashes", Place("h"), "--data", folder});
        EXPECT_EQ(r.code, 2) << r.said;
        EXPECT_NE(r.said.find("larkfen-capture: --data: " + folder + " is no folder\n"),
                  std::string::npos)
            << r.said;
        EXPECT_EQ(Left(), Names{"file"});
    }
}

TEST_F(CaptureFaults, DataFolderWithoutOneFileOfTheProduction) {
    const Result r = Record({"--frames", "0:3", "--hashes", Place("h"), "--data", place_});
    EXPECT_EQ(r.code, 0) << r.said;
    EXPECT_NE(r.said.find(place_ + ": no data of the production is in it\n"), std::string::npos)
        << r.said;
    EXPECT_EQ(Left(), Names{"h"});
}

TEST_F(CaptureFaults, SoundtrackThatIsAPipe) {
    data_.Remove("sfx/soundtrack.mp3");
    ASSERT_EQ(mkfifo(data_.PathOf("sfx/soundtrack.mp3").c_str(), 0600), 0);
    const Result r =
        Record({"--frames", "0:10", "--video", Place("v.mp4"), "--data", data_.Root()});
    EXPECT_EQ(r.code, 0) << r.said;
    EXPECT_NE(r.said.find("soundtrack.mp3: no sound in it; the video is silent\n"),
              std::string::npos)
        << r.said;
    EXPECT_EQ(Left(), Names{"v.mp4"});
}

// A terminal that goes away sends it to the recorder, and to the encoder as well.
TEST_F(CaptureFaults, EndedWhileItRecords) {
    for (const int reason : {SIGHUP, SIGTERM, SIGINT}) {
        for (const bool both : {false, true}) {
            Start({"--hashes", Place("h.txt"), "--video", Place("v.mp4")}, kNoLimit, place_);
            for (int tries = 0; tries < 1200 && Left().size() < 2; ++tries) {
                usleep(50000);
            }
            EXPECT_EQ(Left().size(), 2U) << "it does not begin";
            kill(both ? -child_ : child_, reason);
            const Result r = End();
            EXPECT_EQ(r.code, 1) << r.said;
            EXPECT_EQ(Left(), Names()) << "after signal " << reason;
        }
    }
}

TEST_F(CaptureFaults, OptionsGivenTwice) {
    for (const char* const option : {"--hashes", "--video", "--png"}) {
        const Result r = Record({"--frames", "0:3", option, Place("a"), option, Place("b")});
        EXPECT_EQ(r.code, 2) << r.said;
        EXPECT_NE(r.said.find(std::string(option) + " is given twice\n"), std::string::npos)
            << r.said;
    }
    EXPECT_EQ(Record({"--frames", "0:3", "--frames=0:4", "--hashes", Place("h")}).code, 2);
    EXPECT_EQ(Record({"--hashes", Place("h"), "--frames", "0:3", "--switch", "crosshair=1",
                      "--switch", "crosshair=0"})
                  .code,
              0);
    EXPECT_EQ(Left(), Names{"h"});
}

// From a folder that is not ours and where nothing can be written, and by another way.
TEST_F(CaptureFaults, WorkingFolderDoesNotMatter) {
    const Result here = Record({"--frames", "0:5", "--hashes", "-"});
    const Result there = Record({"--frames", "0:5", "--hashes", "-"}, kNoLimit, "/proc/self");
    EXPECT_EQ(here.code, 0);
    EXPECT_EQ(there.code, 0);
    const auto lines = [](const std::string& text) { return text.substr(0, text.find("frames ")); };
    EXPECT_EQ(lines(here.said), lines(there.said));
    EXPECT_NE(here.said.find("frame 4 scene 0 faces "), std::string::npos) << here.said;
}

} // namespace
} // namespace ombrel
