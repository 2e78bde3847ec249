// Faults of the system around the production, one row each, and what must come of them. Every run
// has the hand-made data folder and ends after some frames by the close box, unless the fault ends
// it. Whatever happens: the exit code is 0, and screen saver, desktop depth and sound are put back.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include <unistd.h>

#include "app/shell.h"
#include "base/shell_state.h"
#include "demo/reset.h"
#include "failing_calls.h"
#include "platform/system.h"
#include "support/hand_made_data.h"
#include "support/production_run.h"

namespace ombrel {
namespace {

constexpr std::int64_t kFrames = 40; // 33 of scene one, then scene two
// What the boxes say, as noted here.
constexpr const char* kNoDevice = "Couldn't initialize sound device...\n";
constexpr const char* kWrongLibrary = "An incorrect version of BASS.DLL was loaded\n";

// What a run came to.
struct Outcome {
    int result;
    std::int64_t drawn;     // frames presented, shown or not
    std::int64_t shown;     // frames that reached the screen
    std::int64_t lit;       // of those, not all black
    std::string said;       // texts of the boxes, one a line
    float averageRate;      // as the production measured it
    std::uint32_t demoTime; // ms
};

struct Run {
    std::function<void(std::int64_t turn)> onTurn;
    Outcome outcome;
};

void LookAtShown(const PresentedFrame& shown, void* user) {
    auto* const run = static_cast<Run*>(user);
    ++run->outcome.shown;
    bool lit = false;
    for (int y = 5; y < shown.height && !lit; y += 7) {
        for (int x = 5; x < shown.width && !lit; x += 3) {
            lit = PixelOf(shown, x, y) != 0;
        }
    }
    run->outcome.lit += lit ? 1 : 0;
}

void BeforeTurn(std::int64_t turn, void* user) {
    auto* const run = static_cast<Run*>(user);
    run->outcome.averageRate = driver.averageFrameRate;
    run->outcome.demoTime = driver.demoTime;
    if (run->onTurn) {
        run->onTurn(turn);
    }
    if (turn == kFrames) {
        PostWindowDestroy();
    }
}

void NoteMessage(const char* text, MessageKind kind, void* user) {
    if (kind != MessageKind::YesNo) {
        static_cast<Run*>(user)->outcome.said += std::string(text) + "\n";
    }
}

struct Fault {
    const char* name;
    const char* commandLine;
    std::function<void()> arrange; // the script, after its reset
    std::function<void(std::int64_t turn)> onTurn;
    std::function<void(const Outcome&)> check;
};

Outcome Play(const Fault& fault) {
    ResetForRun();
    failing = FailingCalls{};
    if (fault.arrange) {
        fault.arrange();
    }
    Run run{fault.onTurn, {}};
    script.onFrame = LookAtShown;
    script.onTurn = BeforeTurn;
    script.onMessage = NoteMessage;
    script.user = &run;
    StartFailing();
    run.outcome.result = RunProduction(fault.commandLine);
    StopFailing();
    run.outcome.drawn = offscreen.presents;
    return run.outcome;
}

// Turn kFrames posts the destroy message, which the next takes; the quit message ends the turn
// after that, without a frame.
constexpr std::int64_t kAll = kFrames + 1;

// The whole picture, every frame of it.
void PlaysWhole(const Outcome& o) {
    EXPECT_EQ(o.drawn, kAll);
    EXPECT_EQ(o.shown, kAll);
    EXPECT_EQ(o.lit, kAll);
    EXPECT_EQ(driver.sceneIndex, 1);
}
void PlaysWholeInSilence(const Outcome& o) {
    PlaysWhole(o);
    EXPECT_EQ(o.said, "");
}
void NothingHappens(const Outcome& o) {
    EXPECT_EQ(o.drawn, 0);
    EXPECT_EQ(o.said, "");
    EXPECT_EQ(offscreen.turns, 0);
}
void PlaysUnseen(const Outcome& o) {
    EXPECT_EQ(o.shown, 0);
    EXPECT_EQ(driver.frameCounter, static_cast<std::uint32_t>(kAll));
    EXPECT_EQ(driver.sceneIndex, 1);
}

const char* const kPlain = "-w -resolution=320x240";
const char* const kFull = "-resolution=320x240";

std::vector<Fault> Faults() {
    return {
        {"none", kPlain, nullptr, nullptr, PlaysWholeInSilence},
        {"no window class", kPlain, [] { script.failure = Failure::WindowClass; }, nullptr,
         NothingHappens},
        {"no window", kPlain, [] { script.failure = Failure::Window; }, nullptr, NothingHappens},
        {"no display", kPlain, [] { script.failure = Failure::Screen; }, nullptr, PlaysUnseen},
        {"no display, full screen", kFull,
         [] {
             script.failure = Failure::Screen;
             script.yesNoAnswer = MessageAnswer::Yes;
         },
         nullptr, PlaysUnseen},
        // The part of the back surface to show is set last, so there is none: black frames.
        {"no clipper of the window", kPlain, [] { script.failure = Failure::WindowClipper; },
         nullptr,
         [](const Outcome& o) {
             EXPECT_EQ(o.drawn, kAll);
             EXPECT_EQ(o.lit, 0);
         }},
        {"display lost for five frames", kPlain,
         [] {
             script.failShowFrom = 5;
             script.failShowTo = 10;
         },
         nullptr,
         [](const Outcome& o) {
             EXPECT_EQ(o.drawn, kAll);
             EXPECT_EQ(o.shown, kAll - 5);
             EXPECT_EQ(o.lit, kAll - 5);
         }},
        {"display lost for good", kPlain,
         [] {
             script.failShowFrom = 5;
             script.failShowTo = INT64_MAX;
         },
         nullptr,
         [](const Outcome& o) {
             EXPECT_EQ(o.drawn, kAll);
             EXPECT_EQ(o.shown, 5);
         }},
        {"display lost, full screen", kFull,
         [] {
             script.yesNoAnswer = MessageAnswer::Yes;
             script.failShowFrom = 5;
             script.failShowTo = 10;
         },
         nullptr, [](const Outcome& o) { EXPECT_EQ(o.shown, kAll - 5); }},
        {"display closed in the middle", kPlain, nullptr,
         [](std::int64_t turn) {
             if (turn == 7) {
                 CloseDisplay();
             }
         },
         [](const Outcome& o) {
             EXPECT_EQ(o.shown, 7);
             EXPECT_EQ(driver.frameCounter, static_cast<std::uint32_t>(kAll));
         }},
        {"no sound device", kPlain, [] { script.soundDevices = 0; }, nullptr,
         [](const Outcome& o) {
             PlaysWhole(o);
             EXPECT_EQ(o.said, kNoDevice);
         }},
        {"wrong sound library", kPlain, [] { script.soundVersion = 0x02040000; }, nullptr,
         [](const Outcome& o) {
             PlaysWhole(o);
             EXPECT_EQ(o.said, kWrongLibrary);
         }},
        {"wrong library and no device", kPlain,
         [] {
             script.soundVersion = 0;
             script.soundDevices = 0;
         },
         nullptr,
         [](const Outcome& o) {
             PlaysWhole(o);
             std::string both = kWrongLibrary;
             both += kNoDevice;
             EXPECT_EQ(o.said, both);
         }},
        {"sound device lost while playing", kPlain, nullptr,
         [](std::int64_t turn) {
             if (turn == 9) {
                 EXPECT_EQ(offscreen.soundPlaying, 1);
                 offscreen.soundPlaying = 0;
                 offscreen.soundOpen = 0;
             }
         },
         PlaysWholeInSilence},
        // A tick needs a thousand reads then; nothing but time is lost.
        {"clock standing", kPlain, [] { script.msPerPresent = 0; }, nullptr, PlaysWholeInSilence},
        {"clock jumping back", kPlain, nullptr,
         [](std::int64_t turn) { offscreen.tick -= turn % 4 == 3 ? 5000 : 0; },
         [](const Outcome& o) {
             PlaysWholeInSilence(o);
             EXPECT_GT(o.averageRate, 0.0F);
         }},
        {"clock jumping ahead", kPlain, nullptr,
         [](std::int64_t turn) { offscreen.tick += turn % 4 == 3 ? 0x80000000U : 0; },
         PlaysWholeInSilence},
        {"clock wrapping", kPlain, [] { script.startTick = 0xFFFFFFFFU - 260; }, nullptr,
         [](const Outcome& o) {
             PlaysWholeInSilence(o);
             EXPECT_LT(offscreen.tick, 5000U); // it has wrapped
             EXPECT_EQ(o.demoTime, 25U * kAll);
             EXPECT_NEAR(static_cast<double>(o.averageRate), 36.4, 0.1); // over 11 frames for 10
         }},
        {"every third file cannot be opened", kPlain,
         [] {
             failing.opens = {1, kNever, 3};
         },
         nullptr, [](const Outcome& o) { EXPECT_EQ(o.drawn, kAll); }},
        {"no file can be opened", kPlain,
         [] {
             failing.opens = {0, kNever, 1};
         },
         nullptr,
         [](const Outcome& o) {
             EXPECT_EQ(o.drawn, kAll);
             EXPECT_EQ(o.lit, 0);
             EXPECT_EQ(driver.sceneIndex, 0); // no track to lead out of scene one
         }},
        {"every third read fails", kPlain,
         [] {
             failing.reads = {1, kNever, 3};
         },
         nullptr, [](const Outcome& o) { EXPECT_EQ(o.drawn, kAll); }},
        {"no file can be read", kPlain,
         [] {
             failing.reads = {0, kNever, 1};
         },
         nullptr, [](const Outcome& o) { EXPECT_EQ(o.drawn, kAll); }},
        // Objects and images need to know their size; tracks and the list do not.
        {"every fourth seek fails", kPlain,
         [] {
             failing.seeks = {3, kNever, 4};
         },
         nullptr, [](const Outcome& o) { EXPECT_EQ(o.drawn, kAll); }},
        {"no file can be sought in", kPlain,
         [] {
             failing.seeks = {0, kNever, 1};
         },
         nullptr,
         [](const Outcome& o) {
             EXPECT_EQ(o.drawn, kAll);
             EXPECT_EQ(o.lit, 0);
             EXPECT_EQ(driver.sceneIndex, 1);
         }},
    };
}

void ExpectPutBack(const char* name) {
    EXPECT_EQ(offscreen.screenSaver, 1) << name;
    EXPECT_TRUE(offscreen.desktopBits == 32) << name << " " << offscreen.desktopBits;
    EXPECT_EQ(offscreen.screenOpen, 0) << name;
    EXPECT_EQ(offscreen.soundPlaying, 0) << name;
}

class FaultTable : public testing::Test {
protected:
    FaultTable() { WriteWholeFolder(folder_, "1"); }
    ~FaultTable() override {
        failing = FailingCalls{};
        ResetWorld();
        ResetOffscreen();
    }
    DataFolderForTest folder_;
};

TEST_F(FaultTable, EachComesToWhatItMust) {
    for (const Fault& fault : Faults()) {
        SCOPED_TRACE(fault.name);
        const Outcome o = Play(fault);
        std::printf("%-36s drawn %3lld shown %3lld lit %3lld\n", fault.name,
                    static_cast<long long>(o.drawn), static_cast<long long>(o.shown),
                    static_cast<long long>(o.lit));
        EXPECT_EQ(o.result, 0);
        fault.check(o);
        ExpectPutBack(fault.name);
    }
}

TEST_F(FaultTable, EachFileUnreadable) {
    for (const std::string& name : WholeFolderNames()) {
        SCOPED_TRACE(name);
        const std::string end = "/" + name;
        Fault fault{"unreadable", kPlain, nullptr, nullptr, nullptr};
        fault.arrange = [&end] { failing.unreadable = end.c_str(); };
        const Outcome o = Play(fault);
        EXPECT_EQ(o.result, 0);
        EXPECT_EQ(o.drawn, kAll);
        EXPECT_GT(o.lit, 0);
        EXPECT_EQ(o.said, "");
        // The second scene has not begun or has: its track is read then. The sound is not ours.
        EXPECT_GE(failing.failed, name == "sfx/soundtrack.mp3" ? 0 : 1);
        EXPECT_EQ(driver.sceneIndex, name == "cam/scene1.trk" ? 0 : 1);
        ExpectPutBack(name.c_str());
    }
}

// A file that opens and then breaks off: at its first read, early, or far into it.
TEST_F(FaultTable, EachFileBreaksOff) {
    for (const std::string& name : WholeFolderNames()) {
        if (name == "sfx/soundtrack.mp3") {
            continue; // the sound's library reads it
        }
        const std::string end = "/" + name;
        std::int64_t reads = 0;
        for (const std::int64_t first : {0, 1, 2, 7, 30}) {
            SCOPED_TRACE(name + " from read " + std::to_string(first));
            Fault fault{"breaks off", kPlain, nullptr, nullptr, nullptr};
            fault.arrange = [&end, first] {
                failing.broken = end.c_str();
                failing.brokenReads = {first, kNever, 1};
            };
            const Outcome o = Play(fault);
            EXPECT_EQ(o.result, 0);
            EXPECT_EQ(o.drawn, kAll);
            EXPECT_GT(o.lit, 0);
            EXPECT_EQ(o.said, "");
            EXPECT_EQ(driver.sceneIndex, name == "cam/scene1.trk" && first == 0 ? 0 : 1);
            reads += failing.failed;
            ExpectPutBack(name.c_str());
        }
        EXPECT_GT(reads, 0) << name;
    }
}

// The close box at every step of start-up: before each file and in each call of the system, from
// the moment there is a window. The message waits for the loop, which ends at once.
struct Steps {
    std::int64_t done, closeAt;
};
constinit Steps steps{};

void Step() {
    if (offscreen.windowMade != 0 && offscreen.turns == 0 && steps.done++ == steps.closeAt) {
        PostWindowDestroy();
    }
}

TEST_F(FaultTable, WindowClosedAtEveryStepOfStartUp) {
    for (const bool fullScreen : {false, true}) {
        SCOPED_TRACE(fullScreen ? "full screen" : "in a window");
        Fault fault{"closed", fullScreen ? kFull : kPlain, nullptr, nullptr, nullptr};
        fault.arrange = [fullScreen] {
            script.yesNoAnswer = fullScreen ? MessageAnswer::Yes : MessageAnswer::No;
            script.soundDevices = 0; // so that a box is one of the steps
            script.onCall = [](void*) { Step(); };
            failing.onOpen = [](std::int64_t) { Step(); };
            steps.done = 0;
        };
        steps.closeAt = kNever;
        EXPECT_EQ(Play(fault).drawn, kAll);
        const std::int64_t count = steps.done;
        std::printf("%lld steps\n", static_cast<long long>(count));
        ASSERT_GT(count, 30); // 16 files, and more than a dozen calls
        for (steps.closeAt = 0; steps.closeAt < count; ++steps.closeAt) {
            const Outcome o = Play(fault);
            EXPECT_EQ(o.result, 0) << steps.closeAt;
            EXPECT_EQ(o.drawn, 1) << steps.closeAt; // the turn that takes the message has a frame
            EXPECT_EQ(o.said, kNoDevice) << steps.closeAt;
            ExpectPutBack("closed");
        }
    }
}

TEST_F(FaultTable, QuitBeforeTheWindowIsThere) {
    ResetForRun();
    PostQuit(3);
    EXPECT_EQ(RunProduction(kPlain), 3);
    EXPECT_EQ(offscreen.presents, 0);
    ExpectPutBack("quit");
}

// Where the program was started from does not matter, though that folder may be gone.
TEST_F(FaultTable, WorkingFolderForeignReadOnlyOrGone) {
    char before[4096];
    ASSERT_NE(getcwd(before, sizeof before), nullptr);
    const Fault plain{"plain", kPlain, nullptr, nullptr, PlaysWholeInSilence};
    char gone[] = "/tmp/ombrel-gone-XXXXXX";
    ASSERT_NE(mkdtemp(gone), nullptr);
    for (const char* const place : {"/", "/proc/self", static_cast<const char*>(gone)}) {
        SCOPED_TRACE(place);
        ASSERT_EQ(chdir(place), 0);
        if (place == gone) {
            ASSERT_EQ(rmdir(gone), 0);
        }
        const Outcome o = Play(plain);
        EXPECT_EQ(o.result, 0);
        plain.check(o);
    }
    ASSERT_EQ(chdir(before), 0);
}

} // namespace
} // namespace ombrel
