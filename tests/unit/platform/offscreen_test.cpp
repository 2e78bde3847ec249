// The scripted system: clock, messages, keys, boxes, sound.
#include <gtest/gtest.h>

#include <string>

#include "base/data_file.h"
#include "base/shell_state.h"
#include "platform/offscreen/offscreen.h"

namespace ombrel {
namespace {

class OffscreenTest : public testing::Test {
protected:
    void SetUp() override {
        ResetOffscreen();
        ResetShellState();
    }
    void TearDown() override { SetUp(); }
};

TEST_F(OffscreenTest, ClockMovesWhenRead) {
    script.msPerRead = 3;
    offscreen.tick = 100;
    EXPECT_EQ(TickCount(), 100U);
    EXPECT_EQ(TickCount(), 103U);
    EXPECT_EQ(TickCount(), 106U);
}

TEST_F(OffscreenTest, ClockWraps) {
    script.msPerRead = 2;
    offscreen.tick = 0xFFFFFFFF;
    EXPECT_EQ(TickCount(), 0xFFFFFFFFU);
    EXPECT_EQ(TickCount(), 1U);
}

TEST_F(OffscreenTest, ClockOfFramesMovesWhenPresented) {
    script.msPerRead = 0;
    script.msPerPresent = 25;
    ASSERT_EQ(OpenDisplay(64, 48, 16, 1, 0), 1);
    const std::uint32_t start = TickCount();
    EXPECT_EQ(TickCount(), start);
    PresentFrame();
    EXPECT_EQ(TickCount(), start + 25);
}

TEST_F(OffscreenTest, ClockThatNobodyMovesMovesInTheEnd) {
    script.msPerRead = 0;
    const std::uint32_t start = TickCount();
    int reads = 0;
    while (TickCount() - start < 25) {
        ASSERT_LT(++reads, 100000);
    }
    EXPECT_GT(reads, 900);
}

TEST_F(OffscreenTest, DestroyIsAnsweredByQuitOnTheTurnAfter) {
    std::int32_t parameter = -1;
    EXPECT_EQ(PumpMessage(&parameter), Pump::None);
    PostWindowDestroy();
    PostWindowDestroy();
    EXPECT_EQ(PumpMessage(&parameter), Pump::Dispatched);
    EXPECT_EQ(parameter, -1);
    EXPECT_EQ(PumpMessage(&parameter), Pump::Quit);
    EXPECT_EQ(parameter, 0);
}

TEST_F(OffscreenTest, QuitCarriesItsParameter) {
    std::int32_t parameter = 0;
    PostQuit(42);
    EXPECT_EQ(PumpMessage(&parameter), Pump::Quit);
    EXPECT_EQ(parameter, 42);
    EXPECT_EQ(PumpMessage(&parameter), Pump::None);
}

TEST_F(OffscreenTest, ScriptedMessagesComeOneATurn) {
    script.messages[0] = {1, MessageEvent::Other};
    script.messages[1] = {1, MessageEvent::Other};
    script.messageCount = 2;
    std::int32_t parameter = 0;
    EXPECT_EQ(PumpMessage(&parameter), Pump::None);
    EXPECT_EQ(PumpMessage(&parameter), Pump::Dispatched);
    EXPECT_EQ(PumpMessage(&parameter), Pump::Dispatched);
    EXPECT_EQ(PumpMessage(&parameter), Pump::None);
}

TEST_F(OffscreenTest, LogKeepsTheOrder) {
    StartSeamLog();
    EnableScreenSaver(false);
    ShowMouseCursor(false);
    MoveMouseCursor(3, 4);
    (void)TickCount();
    EXPECT_EQ(SeamLog(), "EnableScreenSaver 0\nShowMouseCursor 0\nMoveMouseCursor 3 4\n");
}

TEST_F(OffscreenTest, BoxesAnswerAsScripted) {
    EXPECT_EQ(ShowMessage("a", MessageKind::Ok), MessageAnswer::Ok);
    EXPECT_EQ(ShowMessage("a", MessageKind::Error), MessageAnswer::Ok);
    EXPECT_EQ(ShowMessage("a", MessageKind::YesNo), MessageAnswer::No);
    script.yesNoAnswer = MessageAnswer::Yes;
    EXPECT_EQ(ShowMessage("a", MessageKind::YesNo), MessageAnswer::Yes);
}

TEST_F(OffscreenTest, WindowedSetUpMeasuresBordersAndDesktop) {
    shell.windowed = 1;
    ASSERT_EQ(RegisterWindowClass(), 1);
    ASSERT_EQ(CreateMainWindow(), 1);
    EXPECT_EQ(offscreen.windowVisible, 0);
    SetUpWindowedDesktop();
    EXPECT_EQ(offscreen.windowVisible, 1);
    EXPECT_EQ(shell.clientOffsetX, 3);
    EXPECT_EQ(shell.clientOffsetY, 22);
    EXPECT_EQ(shell.savedDesktopDepth, 32U);
    EXPECT_EQ(offscreen.desktopBits, 16);
    EXPECT_EQ(shell.screenCenterX, 640);
    EXPECT_EQ(shell.screenCenterY, 512);
    EXPECT_EQ(offscreen.windowWidth, 646);
    EXPECT_EQ(offscreen.windowHeight, 505);
    RestoreDesktopDepth();
    EXPECT_EQ(offscreen.desktopBits, 32);
}

TEST_F(OffscreenTest, LeavingRestoresOnlyADepthThatWasSaved) {
    offscreen.desktopBits = 24;
    RestoreDisplayModeAtExit();
    EXPECT_EQ(offscreen.desktopBits, 24);
    shell.savedDesktopDepth = 32;
    RestoreDisplayModeAtExit();
    EXPECT_EQ(offscreen.desktopBits, 32);
}

TEST_F(OffscreenTest, TheCursorCountsHowOftenItIsHiddenAndShown) {
    ShowMouseCursor(false);
    ShowMouseCursor(false);
    EXPECT_EQ(offscreen.cursorCount, -2);
    ShowMouseCursor(true);
    EXPECT_EQ(offscreen.cursorCount, -1);
}

std::uint32_t NoVersion() {
    return 0;
}

TEST_F(OffscreenTest, AnotherSoundTableTakesItsPlaceAndGivesItBack) {
    const SoundCalls* own = Sound();
    ASSERT_NE(own, nullptr);
    static_assert(kSoundVersion == 0x0203);
    EXPECT_EQ(own->getVersion() >> 16, kSoundVersion);
    SoundCalls other = *own;
    other.getVersion = NoVersion;
    UseSoundCalls(&other);
    EXPECT_EQ(Sound(), &other);
    EXPECT_EQ(Sound()->getVersion(), 0U);
    UseSoundCalls(nullptr);
    EXPECT_EQ(Sound(), own);
}

TEST_F(OffscreenTest, SilentSoundKnowsNoMissingFile) {
    SetDataFolder("/nowhere/at/all");
    EXPECT_EQ(Sound()->init(-1, 44100), 1);
    EXPECT_EQ(Sound()->streamCreateFile("./data/sfx/soundtrack.mp3"), 0U);
    EXPECT_EQ(Sound()->channelPlay(0, 0), 0);
    EXPECT_EQ(Sound()->channelStop(0), 0);
    EXPECT_EQ(Sound()->sampleFree(0), 0);
    script.soundDevices = 0;
    EXPECT_EQ(Sound()->init(-1, 44100), 0);
    EXPECT_EQ(Sound()->init(0, 44100), 1);
    EXPECT_EQ(Sound()->free(), 1);
    SetDataFolder("");
}

} // namespace
} // namespace ombrel
