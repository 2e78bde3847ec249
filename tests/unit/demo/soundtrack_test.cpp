// The calls of the soundtrack, written down by the offscreen back end.
#include "demo/soundtrack.h"

#include <gtest/gtest.h>

#include "demo/reset.h"
#include "platform/offscreen/offscreen.h"
#include "support/hand_made_data.h"
#include "support/production_run.h"

namespace ombrel {
namespace {

class Soundtrack : public testing::Test {
protected:
    void SetUp() override {
        ResetForRun();
        folder.Write("sfx/soundtrack.mp3", "x");
        StartSeamLog();
    }
    DataFolderForTest folder;
};

constexpr char kStartedLog[] = "SoundStreamCreateFile ./data/sfx/soundtrack.mp3\n"
                               "SoundChannelPlay stream 0\n";

TEST_F(Soundtrack, PlaysOnceFromTheStart) {
    StartSoundtrack();
    // The last argument of play is the restart flag; there is no looping flag at all.
    EXPECT_EQ(SeamLog(), std::string("SoundGetVersion\nSoundInit -1 44100\n") + kStartedLog);
    EXPECT_EQ(offscreen.soundPlaying, 1);
}

TEST_F(Soundtrack, R46_StopsReleasesAsSampleAndCloses) {
    StartSoundtrack();
    StartSeamLog();
    StopSoundtrack();
    EXPECT_EQ(SeamLog(), "SoundChannelStop stream\nSoundSampleFree stream\nSoundFree\n");
}

TEST_F(Soundtrack, OtherVersionShowsABoxAndPlaysAllTheSame) {
    script.soundVersion = 0x02040001;
    StartSoundtrack();
    EXPECT_EQ(SeamLog(),
              std::string("SoundGetVersion\n"
                          "ShowMessage error An incorrect version of BASS.DLL was loaded\n"
                          "SoundInit -1 44100\n") +
                  kStartedLog);
    EXPECT_EQ(offscreen.soundPlaying, 1);
}

TEST_F(Soundtrack, OnlyTheHighHalfOfTheVersionCounts) {
    script.soundVersion = 0x0203FFFF;
    StartSoundtrack();
    EXPECT_EQ(SeamLog().find("ShowMessage"), std::string::npos);
    script.soundVersion = 0x00000203;
    StartSeamLog();
    StartSoundtrack();
    EXPECT_NE(SeamLog().find("ShowMessage error"), std::string::npos);
}

TEST_F(Soundtrack, NoDeviceShowsABoxAndTakesTheSilentOne) {
    script.soundDevices = 0;
    StartSoundtrack();
    EXPECT_EQ(SeamLog(), std::string("SoundGetVersion\nSoundInit -1 44100\n"
                                     "ShowMessage ok Couldn't initialize sound device...\n"
                                     "SoundInit 0 44100\n") +
                             kStartedLog);
}

TEST_F(Soundtrack, MissingFileIsNotReported) {
    folder.Remove("sfx/soundtrack.mp3");
    StartSoundtrack();
    EXPECT_EQ(SeamLog(), "SoundGetVersion\nSoundInit -1 44100\n"
                         "SoundStreamCreateFile ./data/sfx/soundtrack.mp3\n"
                         "SoundChannelPlay none 0\n");
    StopSoundtrack();
    EXPECT_EQ(offscreen.soundOpen, 0);
}

TEST_F(Soundtrack, SwitchedOffNothingOfTheLibraryIsTouched) {
    ResetForRun();
    StartSeamLog();
    RunProductionAsItIs("-w -ns", [](const RunFrame&) { EndRunAfterThisFrame(); });
    EXPECT_EQ(SeamLog().find("Sound"), std::string::npos);
    EXPECT_NE(SeamLog().find("CloseDisplay"), std::string::npos);
}

TEST_F(Soundtrack, SwitchedOnTheLibraryIsClosedAtTheEnd) {
    ResetForRun();
    StartSeamLog();
    RunProductionAsItIs("-w", [](const RunFrame&) { EndRunAfterThisFrame(); });
    EXPECT_NE(SeamLog().find("SoundChannelPlay stream 0"), std::string::npos);
    EXPECT_NE(SeamLog().find("SoundFree"), std::string::npos);
}

} // namespace
} // namespace ombrel
