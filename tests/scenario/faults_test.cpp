// Each data file missing, empty, cut in half, or swapped for another kind, one at a time: the
// production starts, shows what it has and plays to its end.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "demo/reset.h"
#include "support/hand_made_data.h"
#include "support/production_run.h"

namespace ombrel {
namespace {

struct Fault {
    const char* name;
    std::string content; // of the broken file
    bool missing;
};

std::string Numbers() {
    std::string text;
    for (int i = 0; i < 400; ++i) {
        text += "3e38, -3e38, 1e-40;\t1e30, 2e30, -3e38;\t1e9, 7, 720;\t180;\t0.5;\n";
    }
    return text;
}

std::vector<Fault> FaultsOf(const std::string& whole) {
    const CobMaterial plain{1, 1, 1, "matte", -1, nullptr};
    std::string noise;
    for (unsigned i = 0; i < 5000; ++i) {
        noise += static_cast<char>(i * i * 31 + i / 7);
    }
    return {
        {"missing", "", true},
        {"empty", "", false},
        {"half", whole.substr(0, whole.size() / 2), false},
        {"an object", BoxCob(1, false, plain), false},
        {"an image", BmpText(8, 8, 1, 2, 3), false},
        {"numbers", Numbers(), false},
        {"a list", "./data/3d/ball.cob \t10, 10, 10; \t0, 0, 0; \t0, 0, 0;\n", false},
        {"noise", noise, false},
    };
}

struct Outcome {
    int result;
    std::int64_t frames;
    bool lit; // some picture had something to show
};

// Plays with Escape held from frame escapeFrom on, without the long middle of scene two.
Outcome Play(std::int64_t escapeFrom) {
    ResetForRun();
    script.escapeFrom = escapeFrom;
    script.escapeTo = INT64_MAX;
    Outcome outcome{};
    outcome.result = RunProductionAsItIs("-w -resolution=320x240", [&outcome](const RunFrame& f) {
        ++outcome.frames;
        for (int y = 10; y < 230 && !outcome.lit; y += 7) {
            for (int x = 10; x < 310; ++x) {
                outcome.lit = outcome.lit || PixelOf(f.shown, x, y) != 0;
            }
        }
        LeaveOutTheMiddle();
    });
    return outcome;
}

bool NeedsEscape(const std::string& name) {
    return name == "cam/scene1.trk";
}

TEST(Faults, EveryFileInEveryWay) {
    const DataFolderForTest folder;
    WriteWholeFolder(folder, "1");
    const Outcome whole = Play(INT64_MAX);
    ASSERT_EQ(whole.result, 0);
    ASSERT_TRUE(whole.lit);
    ASSERT_GT(whole.frames, 33 + 60 + 60);
    std::printf("%-32s %-10s %6s %7s\n", "file", "fault", "result", "frames");
    for (const std::string& name : WholeFolderNames()) {
        const std::string content = folder.Read(name);
        for (const Fault& fault : FaultsOf(content)) {
            if (fault.missing) {
                folder.Remove(name);
            } else {
                folder.Write(name, fault.content);
            }
            // Without a first track of 35 keys scene one goes on until Escape.
            const bool escapes = NeedsEscape(name) && std::string(fault.name) != "numbers";
            const Outcome outcome = Play(escapes ? 100 : INT64_MAX);
            std::printf("%-32s %-10s %6d %7lld\n", name.c_str(), fault.name, outcome.result,
                        static_cast<long long>(outcome.frames));
            EXPECT_EQ(outcome.result, 0) << name << " " << fault.name;
            EXPECT_TRUE(outcome.lit) << name << " " << fault.name;
            if (escapes) {
                EXPECT_GE(outcome.frames, 100) << name << " " << fault.name;
                EXPECT_LE(outcome.frames, 104) << name << " " << fault.name;
            } else {
                const std::int64_t longer = NeedsEscape(name) ? 1000 : 0; // other steps
                EXPECT_GE(outcome.frames, whole.frames - 1) << name << " " << fault.name;
                EXPECT_LE(outcome.frames, whole.frames + longer) << name << " " << fault.name;
            }
        }
        folder.Write(name, content);
    }
    ResetWorld();
    ResetOffscreen();
}

TEST(Faults, WithoutAnyDataItPlaysUntilEscape) {
    const DataFolderForTest folder;
    const Outcome outcome = Play(50);
    EXPECT_EQ(outcome.result, 0);
    EXPECT_FALSE(outcome.lit);
    EXPECT_GE(outcome.frames, 50);
    EXPECT_LE(outcome.frames, 54);
    ResetWorld();
    ResetOffscreen();
}

TEST(Faults, TracksAloneBringItToItsEnd) {
    const DataFolderForTest folder;
    folder.Write("cam/scene1.trk", PlainTrack(35, "1"));
    ResetForRun();
    std::int64_t frames = 0;
    EXPECT_EQ(
        RunProductionAsItIs("-w -resolution=320x240", [&frames](const RunFrame&) { ++frames; }), 0);
    EXPECT_EQ(frames, 33 + 3968);
    ResetWorld();
    ResetOffscreen();
}

} // namespace
} // namespace ombrel
