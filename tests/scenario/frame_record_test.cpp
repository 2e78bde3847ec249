// The whole production over the data that ships, held to its stored record. To store a new record,
// a deliberate act in a commit of its own: OMBREL_UPDATE_FRAMES=1 scenario --gtest_filter=Frames.*
#include "scenario/frame_record.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "base/data_file.h"
#include "base/hash.h"
#include "base/shell_state.h"
#include "demo/reset.h"
#include "demo/world.h"
#include "scenario/world_checks.h"
#include "support/hand_made_data.h"
#include "support/production_run.h"

namespace ombrel {
namespace {

constexpr char kStoredRecord[] = OMBREL_SOURCE_DIR "/tests/scenario/frames.txt.gz";
constexpr char kPlayedRecord[] = OMBREL_BINARY_DIR "/frames-played.txt.gz";

std::vector<FrameLine> PlayAndRecord(const std::string& commandLine, WorldFindings* findings) {
    std::vector<FrameLine> lines;
    RunProductionForTest(commandLine, [&](const RunFrame& f) {
        lines.push_back(
            {f.number, driver.sceneIndex, sceneFaces.count, DigestState(),
             HashPicture(f.shown.pixels, f.shown.pitch, f.shown.width, f.shown.height)});
        LookAtWorld(findings, f);
    });
    ResetWorld();
    ResetOffscreen();
    return lines;
}

TEST(FrameRecord, LineReadsBackAsItWasWritten) {
    const FrameLine line{123, 1, 4567, 0x0123456789ABCDEF, 0xFEDCBA9876543210};
    const std::string text = FormatFrameLine(line);
    EXPECT_EQ(text, "frame 123 scene 1 faces 4567 state 0123456789abcdef picture fedcba9876543210");
    FrameLine read{};
    EXPECT_TRUE(ParseFrameLine(text, &read));
    EXPECT_TRUE(read == line);
    EXPECT_FALSE(ParseFrameLine(text + "0", &read));
    EXPECT_FALSE(ParseFrameLine(text.substr(0, 40), &read));
    EXPECT_FALSE(ParseFrameLine("", &read));
}

TEST(FrameRecord, ComparisonNamesTheFirstBadFrame) {
    std::vector<FrameLine> stored;
    for (int i = 0; i < 100; ++i) {
        stored.push_back({i, 0, i, 1000ULL + static_cast<std::uint64_t>(i), 7});
    }
    std::vector<FrameLine> played = stored;
    EXPECT_EQ(CompareFrameRecords(stored, played), "");
    played[41].picture = 8;
    played[60].state = 9;
    std::string said = CompareFrameRecords(stored, played);
    EXPECT_NE(said.find("first bad frame 41 (picture), 2 frames differ"), std::string::npos)
        << said;
    played[41].state = 5;
    played[41].scene = 1;
    said = CompareFrameRecords(stored, played);
    EXPECT_NE(said.find("first bad frame 41 (scene, state, picture)"), std::string::npos) << said;
    played = stored;
    played.pop_back();
    EXPECT_EQ(CompareFrameRecords(stored, played), "stored 100 frames, played 99\n");
}

TEST(FrameRecord, FileReadsBackAndBrokenOnesAreRefused) {
    const DataFolderForTest folder;
    const std::vector<FrameLine> lines = {{0, 0, 1, 2, 3}, {1, 0, 4, 5, 6}};
    const std::string path = folder.PathOf("record.txt.gz");
    ASSERT_TRUE(WriteFrameRecord(path, lines));
    std::vector<FrameLine> read;
    ASSERT_TRUE(ReadFrameRecord(path, &read));
    EXPECT_EQ(CompareFrameRecords(lines, read), "");
    const std::string whole = folder.Read("record.txt.gz");
    folder.Write("record.txt.gz", whole.substr(0, whole.size() - 9));
    EXPECT_FALSE(ReadFrameRecord(path, &read));
    folder.Write("record.txt.gz", "frame 0 scene x\n");
    EXPECT_FALSE(ReadFrameRecord(path, &read));
    EXPECT_FALSE(ReadFrameRecord(folder.PathOf("none.gz"), &read));
}

TEST(FrameRecord, TwoRunsAreTheSameAndADifferentTrackIsNot) {
    const DataFolderForTest folder;
    WriteWholeFolder(folder, "0.5");
    const auto play = [] {
        std::vector<FrameLine> lines;
        RunProductionForTest("-w -ns", [&lines](const RunFrame& f) {
            lines.push_back(
                {f.number, driver.sceneIndex, sceneFaces.count, DigestState(),
                 HashPicture(f.shown.pixels, f.shown.pitch, f.shown.width, f.shown.height)});
            if (f.number == 120) {
                EndRunAfterThisFrame();
            }
        });
        return lines;
    };
    const auto first = play();
    EXPECT_EQ(first.size(), 121U);
    EXPECT_EQ(CompareFrameRecords(first, play()), "");
    // Key 12 a little aside: nothing differs before segment 10 begins to feel it.
    std::string track = PlainTrack(35, "0.5");
    std::size_t at = 0;
    for (int line = 0; line < 12; ++line) {
        at = track.find('\n', at) + 1;
    }
    at = track.find("200.000000", at);
    track.replace(at, 10, "201.000000");
    folder.Write("cam/scene1.trk", track);
    const std::string said = CompareFrameRecords(first, play());
    EXPECT_NE(said.find("first bad frame 21 ("), std::string::npos) << said;
    ResetWorld();
    ResetOffscreen();
}

TEST(Frames, ShippedDataPlaysAsStored) {
    const bool update = std::getenv("OMBREL_UPDATE_FRAMES") != nullptr;
    if (!update && !std::filesystem::exists(kStoredRecord)) {
        GTEST_SKIP() << "there is no stored record yet";
    }
    const std::string before = DataFolder();
    SetDataFolder(OMBREL_SOURCE_DIR "/data");
    WorldFindings findings{};
    const std::vector<FrameLine> played = PlayAndRecord("-w -ns", &findings);
    SetDataFolder(before);
    EXPECT_EQ(findings.frames, static_cast<std::int64_t>(played.size()));
    EXPECT_GT(findings.coveredFrames, 3500); // all but the globe in white, and the dots
    EXPECT_EQ(WorldFaults(findings), "");
    if (update) {
        ASSERT_TRUE(WriteFrameRecord(kStoredRecord, played));
        return;
    }
    std::vector<FrameLine> stored;
    ASSERT_TRUE(ReadFrameRecord(kStoredRecord, &stored));
    const std::string differs = CompareFrameRecords(stored, played);
    if (!differs.empty()) {
        WriteFrameRecord(kPlayedRecord, played);
    }
    EXPECT_EQ(differs, "") << "what was played is in " << kPlayedRecord;
}

} // namespace
} // namespace ombrel
