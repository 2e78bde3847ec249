// Runs of the whole production.
#include "production_run.h"

#include <cstdlib>

#include "app/shell.h"
#include "app/vector_choice.h"
#include "base/shell_state.h"
#include "demo/reset.h"
#include "demo/scene_two.h"
#include "hand_made_data.h"
#include "platform/system.h"

namespace ombrel {

namespace {

struct Run {
    const LookAtFrame* look;
    std::int64_t next;
};

void OnFrame(const PresentedFrame& shown, void* user) {
    Run* const run = static_cast<Run*>(user);
    if (*run->look) {
        (*run->look)({run->next, shown});
    }
    ++run->next;
}

} // namespace

void ResetForRun() {
    setenv(kPathVariable, NameOf(VectorPath::Scalar), 0);
    ResetWorld();
    ResetOffscreen();
    script.msPerRead = 0;
    script.msPerPresent = 25;
}

int RunProductionAsItIs(const std::string& commandLine, const LookAtFrame& look) {
    Run run{&look, 0};
    script.onFrame = OnFrame;
    script.user = &run;
    const int result = RunProduction(commandLine.c_str());
    script.onFrame = nullptr;
    return result;
}

int RunProductionForTest(const std::string& commandLine, const LookAtFrame& look) {
    ResetForRun();
    return RunProductionAsItIs(commandLine, look);
}

void EndRunAfterThisFrame() {
    PostQuit(0);
}

void LeaveOutTheMiddle() {
    if (!sceneTwo.started || driver.frameCounter != sceneTwo.startFrame + 60) {
        return;
    }
    sceneTwo.startFrame -= 1780;
    ScrollerState& s = sceneTwo.scroller;
    s.frameCount = 1000;
    s.page = 36;
    s.line = 12;
    for (float& angle : s.angles) {
        angle = 1.9F;
    }
}

bool TextStandsAt(const PresentedFrame& shown, const TextSpot& spot, const char* text) {
    const std::int32_t edge = spot.border ? 8 : 0;
    std::int32_t seen = 0;
    std::int32_t x = spot.x + kMarkX;
    const std::int32_t y = spot.y + kMarkY;
    for (const char* p = text; *p != '\0'; ++p, x += spot.advance) {
        if (x < edge || y < edge || x >= shown.width - edge || y >= shown.height - edge) {
            continue;
        }
        const auto mark = static_cast<Pixel16>(spot.mark + static_cast<unsigned char>(*p));
        if (PixelOf(shown, x, y) != mark) {
            return false;
        }
        ++seen;
    }
    return seen > 0;
}

} // namespace ombrel
