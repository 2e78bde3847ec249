// The recorder on a disk that is full and in folders where nothing can be written: it ends with
// exit code 1 and names the file, and neither half a file nor its first part stays behind. The full
// disk is a limit on the size of files, which every program of the recording has.
#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/hand_made_data.h"

namespace ombrel {
namespace {

namespace fs = std::filesystem;

constexpr rlim_t kNoLimit = RLIM_INFINITY;

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

    // Runs the recorder on 320 x 240 pictures in a working folder, its files limited in size.
    Result Record(const std::vector<std::string>& arguments, rlim_t limit,
                  const std::string& folder) const {
        std::vector<std::string> words = {OMBREL_BINARY_DIR "/larkfen-capture",
                                          "-w",
                                          "-ns",
                                          "-resolution=320x240",
                                          "--data",
                                          data_.Root()};
        words.insert(words.end(), arguments.begin(), arguments.end());
        std::vector<char*> argv;
        for (std::string& word : words) {
            argv.push_back(word.data());
        }
        argv.push_back(nullptr);
        int ends[2];
        if (pipe(ends) != 0) {
            return {-1, "no pipe"};
        }
        const pid_t child = fork();
        if (child == 0) {
            std::signal(SIGXFSZ, SIG_IGN); // a full disk sends none
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
        Result result{-1, ""};
        char block[512];
        for (ssize_t n = 0; (n = read(ends[0], block, sizeof block)) > 0;) {
            result.said.append(block, static_cast<std::size_t>(n));
        }
        close(ends[0]);
        int status = 0;
        waitpid(child, &status, 0);
        result.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        // A sanitized recorder ends with 1 as well when it has something to report.
        EXPECT_EQ(result.said.find("Sanitizer: "), std::string::npos) << result.said;
        EXPECT_EQ(result.said.find("runtime error"), std::string::npos) << result.said;
        return result;
    }
    Result Record(const std::vector<std::string>& arguments, rlim_t limit = kNoLimit) const {
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
