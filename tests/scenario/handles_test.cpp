// The greetings as they are seen: which handles fall, where, and that the others never do.
#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>

#include "base/shell_state.h"
#include "demo/reset.h"
#include "demo/scene_two.h"
#include "demo/texts.h"
#include "math/vec3.h"
#include "support/hand_made_data.h"
#include "support/production_run.h"

namespace ombrel {
namespace {

TEST(Handles, ThirtyFourFallInTheirColumnsAndFourSlotsNeverShow) {
    const std::int32_t xs[] = {10, 90, 180, 270, 360, 405};
    const std::int32_t firsts[] = {0, 6, 12, 18, 24, 31};
    const std::int32_t counts[] = {5, 5, 5, 6, 6, 8};
    const DataFolderForTest folder;
    WriteWholeFolder(folder, "1"); // scene one lasts 33 frames
    std::set<std::int32_t> seen;
    RunProductionForTest("-w -ns", [&](const RunFrame& f) {
        const std::int64_t two = f.number - 33;
        if (two < 270) {
            return;
        }
        for (std::size_t k = 0; k < 6; ++k) {
            const GreetingColumn& column = sceneTwo.columns[k];
            const auto y = static_cast<std::int32_t>(SinRad(static_cast<double>(column.phase)) *
                                                     static_cast<double>(shell.screenHeight + 1));
            // A column that has just started anew was drawn below the frame.
            if (column.phase == 0.0F || y + kMarkY >= 472 || y + kMarkY < 8) {
                continue;
            }
            for (std::int32_t slot = firsts[k]; slot < firsts[k] + counts[k]; ++slot) {
                const bool here =
                    column.on && slot == firsts[k] + column.index && kGreetingTexts[slot][0] != 0;
                const bool there =
                    TextStandsAt(f.shown, {xs[k], y, 20, kBigMark, true}, kGreetingTexts[slot]);
                ASSERT_EQ(there, here) << "slot " << slot << " frame " << two << " y " << y;
                if (there) {
                    seen.insert(slot);
                }
            }
        }
        if (two == 880) {
            EndRunAfterThisFrame();
        }
    });
    std::set<std::int32_t> expected;
    for (std::int32_t slot = 0; slot < kGreetingSlots; ++slot) {
        if (slot != 5 && slot != 11 && slot != 17 && slot != 30 && slot != 38) {
            expected.insert(slot);
        }
    }
    EXPECT_EQ(expected.size(), 34U);
    EXPECT_EQ(seen, expected);
    ResetWorld();
    ResetOffscreen();
}

} // namespace
} // namespace ombrel
