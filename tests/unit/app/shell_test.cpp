// Whole runs: what is asked, in which order the system is called, how a run ends.
#include "app/shell.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "app/command_line.h"
#include "base/float_mode.h"
#include "run_fixture.h"

namespace ombrel {
namespace {

using ShellTest = RunTest;
using Lines = std::vector<std::string>;

TEST_F(ShellTest, StartAndExitInAWindowWithoutSound) {
    EscapeAfter(2);
    StartSeamLog();
    EXPECT_EQ(RunProduction("-w -ns"), 0);
    // The window stands at 317, 259; its client area 3, 22 further in.
    EXPECT_EQ(LogLines(), (Lines{
                              "RegisterWindowClass",
                              "CreateMainWindow 640 480 1",
                              "SetUpWindowedDesktop",
                              "EnableScreenSaver 0",
                              "OpenDisplay 640 480 16 1 0",
                              "SetRenderFloatMode",
                              "MoveMouseCursor 640 512",
                              "ReadMouseCursor",
                              "ShowMouseCursor 0",
                              "PresentFrame 320 281",
                              "PresentFrame 320 281",
                              "PostWindowDestroy",
                              "Dispatch destroy",
                              "PostQuit 0",
                              "PresentFrame 320 281",
                              "Quit 0",
                              "CloseDisplay",
                              "EnableScreenSaver 1",
                              "RestoreDesktopDepth 32",
                              "RepaintDesktop",
                              "RestoreDisplayModeAtExit 32",
                          }));
    EXPECT_EQ(offscreen.desktopBits, 32);
    EXPECT_EQ(offscreen.screenSaver, 1);
    EXPECT_EQ(offscreen.screenOpen, 0);
}

TEST_F(ShellTest, R14_StartAndExitFullScreenWithSound) {
    EscapeAfter(1);
    script.yesNoAnswer = MessageAnswer::Yes;
    StartSeamLog();
    EXPECT_EQ(RunProduction("-resolution=512x384"), 0);
    EXPECT_EQ(LogLines(), (Lines{
                              "ShowMessage yesno Full screen?",
                              "RegisterWindowClass",
                              "CreateMainWindow 512 384 0",
                              "EnableScreenSaver 0",
                              "OpenDisplay 512 384 16 0 0",
                              "ShowMouseCursor 0",
                              "SetRenderFloatMode",
                              "MoveMouseCursor 256 192",
                              "ReadMouseCursor",
                              "ShowMouseCursor 0",
                              "SoundGetVersion",
                              "SoundInit -1 44100",
                              "SoundStreamCreateFile ./data/sfx/soundtrack.mp3",
                              "SoundChannelPlay none 0",
                              "PresentFrame 0 0",
                              "PostWindowDestroy",
                              "Dispatch destroy",
                              "PostQuit 0",
                              "PresentFrame 0 0",
                              "Quit 0",
                              "CloseDisplay",
                              "EnableScreenSaver 1",
                              "SoundChannelStop none",
                              "SoundSampleFree none",
                              "SoundFree",
                              "RepaintDesktop",
                              "RestoreDisplayModeAtExit 0",
                          }));
    EXPECT_EQ(offscreen.desktopBits, 32);
    EXPECT_EQ(offscreen.soundOpen, 0);
}

TEST_F(ShellTest, EmptyLineAsksAndPlaysWithSound) {
    EscapeAfter(1);
    StartSeamLog();
    EXPECT_EQ(RunProduction(""), 0);
    EXPECT_EQ(CountLines("ShowMessage yesno Full screen?"), 1);
    EXPECT_EQ(CountLines("CreateMainWindow 640 480 1"), 1); // answered with No
    EXPECT_EQ(CountLines("SoundInit -1 44100"), 1);
}

TEST_F(ShellTest, AnswerNoIsTheSameRunAsTheSwitch) {
    EscapeAfter(3);
    StartSeamLog();
    EXPECT_EQ(RunProduction("-w"), 0);
    const std::string asked = SeamLog();
    TearDown();
    SetUp();
    EscapeAfter(3);
    StartSeamLog();
    EXPECT_EQ(RunProduction(""), 0);
    EXPECT_EQ(SeamLog(), "ShowMessage yesno Full screen?\n" + asked);
    EXPECT_EQ(shell.windowed, 1);
}

TEST_F(ShellTest, AnyAnswerButYesIsAWindow) {
    EscapeAfter(1);
    script.yesNoAnswer = MessageAnswer::Ok; // what a box closed otherwise might give
    RunProduction("-ns");
    EXPECT_EQ(shell.windowed, 1);
}

TEST_F(ShellTest, SwitchWSuppressesTheQuestion) {
    EscapeAfter(1);
    StartSeamLog();
    RunProduction("-w -ns");
    EXPECT_EQ(CountLines("ShowMessage"), 0);
}

TEST_F(ShellTest, LowestResolutionReachesTheWindow) {
    EscapeAfter(1);
    StartSeamLog();
    RunProduction("-w -ns -resolution=800x600 -resolution=320x240");
    EXPECT_EQ(CountLines("CreateMainWindow 800 600 1"), 1);
    EXPECT_EQ(CountLines("OpenDisplay 800 600 16 1 0"), 1);
    EXPECT_EQ(display.source.right, 800);
}

TEST_F(ShellTest, UnknownSizeKeepsTheDefaultAndSaysNothing) {
    EscapeAfter(1);
    StartSeamLog();
    RunProduction("-w -ns -resolution=1600x1200");
    EXPECT_EQ(CountLines("CreateMainWindow 640 480 1"), 1);
    EXPECT_EQ(CountLines("ShowMessage"), 0);
}

struct Boxes {
    Lines texts;
    std::vector<MessageKind> kinds;
};
void NoteBox(const char* text, MessageKind kind, void* user) {
    static_cast<Boxes*>(user)->texts.emplace_back(text);
    static_cast<Boxes*>(user)->kinds.push_back(kind);
}

TEST_F(ShellTest, R7_HelpShowsItsBoxWritesItsWordAndTouchesNothing) {
    Boxes boxes;
    script.onMessage = NoteBox;
    script.user = &boxes;
    const ShellState before = shell;
    StartSeamLog();
    testing::internal::CaptureStdout();
    EXPECT_EQ(RunProduction("-w -ns -resolution=800x600 -?"), 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "\nTEST\n");
    ASSERT_EQ(boxes.texts.size(), 1U);
    EXPECT_EQ(boxes.texts[0], kHelpText);
    EXPECT_EQ(boxes.kinds[0], MessageKind::Ok);
    EXPECT_EQ(CountLines("RegisterWindowClass"), 0);
    EXPECT_EQ(CountLines("CreateMainWindow"), 0);
    EXPECT_EQ(CountLines("OpenDisplay"), 0);
    EXPECT_EQ(CountLines("EnableScreenSaver"), 0);
    EXPECT_EQ(CountLines("Sound"), 0);
    EXPECT_EQ(shell.screenWidth, before.screenWidth);
    EXPECT_EQ(shell.windowed, before.windowed);
    EXPECT_EQ(offscreen.windowMade, 0);
}

TEST_F(ShellTest, R10_NoWindowClassReturnsZeroWithoutAWord) {
    script.failure = Failure::WindowClass;
    StartSeamLog();
    EXPECT_EQ(RunProduction("-w"), 0);
    EXPECT_EQ(LogLines(), (Lines{"RegisterWindowClass"}));
}

TEST_F(ShellTest, R10_NoWindowReturnsZeroWithoutAWord) {
    script.failure = Failure::Window;
    StartSeamLog();
    EXPECT_EQ(RunProduction("-w"), 0);
    EXPECT_EQ(LogLines(), (Lines{"RegisterWindowClass", "CreateMainWindow 640 480 1"}));
    EXPECT_EQ(offscreen.screenSaver, 1);
    EXPECT_EQ(offscreen.desktopBits, 32);
}

TEST_F(ShellTest, DisplayThatDoesNotOpenDoesNotStopTheRun) {
    for (const char* line : {"-w -ns", "-ns"}) {
        SetUp();
        script.failure = Failure::Screen;
        script.yesNoAnswer = MessageAnswer::Yes;
        script.msPerRead = 1;
        script.messages[0] = {5, MessageEvent::CloseBox};
        script.messageCount = 1;
        EXPECT_EQ(RunProduction(line), 0);
        EXPECT_EQ(offscreen.shown, 0);
        EXPECT_EQ(driver.frameCounter, 6U);
        EXPECT_EQ(offscreen.screenSaver, 1);
    }
}

TEST_F(ShellTest, CloseBoxEndsTheRun) {
    script.messages[0] = {4, MessageEvent::CloseBox};
    script.messageCount = 1;
    EXPECT_EQ(RunProduction("-w -ns"), 0);
    EXPECT_EQ(offscreen.shown, 5); // turns 0 to 4; the quit message comes on turn 5
}

TEST_F(ShellTest, R13_TurnsThatHandleAMessageDrawAFrameToo) {
    for (std::int32_t i = 0; i < 10; ++i) {
        script.messages[i] = {0, MessageEvent::Other};
    }
    script.messages[10] = {10, MessageEvent::CloseBox};
    script.messageCount = 11;
    StartSeamLog();
    EXPECT_EQ(RunProduction("-w -ns"), 0);
    EXPECT_EQ(CountLines("Dispatch other"), 10);
    EXPECT_EQ(offscreen.shown, 11);
    EXPECT_EQ(driver.frameCounter, 11U);
}

TEST_F(ShellTest, R13_HeldEscapePostsOnEveryFrameUntilTheEnd) {
    script.escapeFrom = 3;
    script.escapeTo = 1000000;
    StartSeamLog();
    EXPECT_EQ(RunProduction("-w -ns"), 0);
    // Frame 3 posts; its message is dispatched; frame 4 posts again; then the quit message.
    EXPECT_EQ(CountLines("PostWindowDestroy"), 2);
    EXPECT_EQ(offscreen.shown, 5);
}

void QuitWithSeven(const PresentedFrame& shown, void*) {
    if (shown.number == 2) {
        PostQuit(7);
    }
}

TEST_F(ShellTest, ResultIsTheParameterOfTheQuitMessage) {
    script.onFrame = QuitWithSeven;
    EXPECT_EQ(RunProduction("-w -ns"), 7);
    EXPECT_EQ(offscreen.shown, 3);
}

TEST_F(ShellTest, FullScreenParksTheCursorInTheMiddleOfTheFrame) {
    EscapeAfter(1);
    script.yesNoAnswer = MessageAnswer::Yes;
    RunProduction("-ns -resolution=1280x800");
    EXPECT_EQ(offscreen.cursorX, 640);
    EXPECT_EQ(offscreen.cursorY, 400);
    EXPECT_EQ(shell.clientOffsetX, 0);
    EXPECT_EQ(shell.clientOffsetY, 0);
    EXPECT_EQ(offscreen.cursorCount, -2); // hidden twice
}

TEST_F(ShellTest, NoSoundSwitchNeverTouchesTheLibrary) {
    EscapeAfter(2);
    StartSeamLog();
    RunProduction("-w -nsX");
    EXPECT_EQ(CountLines("Sound"), 0);
    EXPECT_TRUE(shell.noSound);
}

TEST_F(ShellTest, OtherSoundVersionIsReportedAndStillPlays) {
    const std::string folder = testing::TempDir() + "ombrel-shell-sound";
    std::filesystem::create_directories(folder + "/sfx");
    std::FILE* file = std::fopen((folder + "/sfx/soundtrack.mp3").c_str(), "wb");
    ASSERT_NE(file, nullptr);
    std::fclose(file);
    SetDataFolder(folder);
    EscapeAfter(1);
    script.soundVersion = 0x02040000;
    StartSeamLog();
    EXPECT_EQ(RunProduction("-w"), 0);
    const Lines lines = LogLines();
    const auto at = std::find(lines.begin(), lines.end(), "SoundGetVersion");
    ASSERT_GE(lines.end() - at, 5);
    EXPECT_EQ(Lines(at, at + 5),
              (Lines{
                  "SoundGetVersion",
                  "ShowMessage error An incorrect version of BASS.DLL was loaded",
                  "SoundInit -1 44100",
                  "SoundStreamCreateFile ./data/sfx/soundtrack.mp3",
                  "SoundChannelPlay stream 0",
              }));
    EXPECT_EQ(CountLines("SoundChannelStop stream"), 1);
    EXPECT_EQ(CountLines("SoundSampleFree stream"), 1);
    std::filesystem::remove_all(folder);
}

TEST_F(ShellTest, LowHalfOfTheSoundVersionDoesNotCount) {
    EscapeAfter(1);
    script.soundVersion = 0x0203FFFF;
    StartSeamLog();
    RunProduction("-w");
    EXPECT_EQ(CountLines("ShowMessage"), 0);
}

TEST_F(ShellTest, NoSoundDeviceFallsBackToSilence) {
    EscapeAfter(1);
    script.soundDevices = 0;
    StartSeamLog();
    EXPECT_EQ(RunProduction("-w"), 0);
    const Lines lines = LogLines();
    const auto at = std::find(lines.begin(), lines.end(), "SoundInit -1 44100");
    ASSERT_GE(lines.end() - at, 5);
    EXPECT_EQ(Lines(at, at + 5), (Lines{
                                     "SoundInit -1 44100",
                                     "ShowMessage ok Couldn't initialize sound device...",
                                     "SoundInit 0 44100",
                                     "SoundStreamCreateFile ./data/sfx/soundtrack.mp3",
                                     "SoundChannelPlay none 0",
                                 }));
    EXPECT_EQ(CountLines("SoundFree"), 1);
}

TEST_F(ShellTest, RenderingRunsWithTruncation) {
    EscapeAfter(1);
    RunProduction("-w -ns");
    EXPECT_EQ(CurrentFloatMode(), FloatMode::Chop);
}

TEST_F(ShellTest, DataFolderIsBesideTheProgramElseTwoFoldersUp) {
    namespace fs = std::filesystem;
    const fs::path root = fs::path(testing::TempDir()) / "ombrel-data-folder";
    fs::remove_all(root);
    fs::create_directories(root / "build" / "release");
    const std::string program = (root / "build" / "release").string();
    EXPECT_EQ(DataFolderOf(program), program + "/data"); // though it is not there
    fs::create_directories(root / "data");
    EXPECT_TRUE(fs::equivalent(DataFolderOf(program), root / "data"));
    fs::create_directories(root / "build" / "share" / "ombrel" / "data");
    EXPECT_EQ(DataFolderOf(program), (root / "build/share/ombrel/data").string());
    fs::create_directories(root / "build" / "release" / "data");
    EXPECT_EQ(DataFolderOf(program), program + "/data");
    fs::remove_all(root);
}

} // namespace
} // namespace ombrel
