// What the tests of both scenes share: a folder of plain data, a silent window, and a look at the
// picture, whose glyphs carry a mark each.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "base/shell_state.h"
#include "demo/reset.h"
#include "platform/display.h"
#include "platform/offscreen/offscreen.h"
#include "support/hand_made_data.h"
#include "support/production_run.h"

namespace ombrel::test {

class SceneFixture : public testing::Test {
protected:
    // The steps of the tracks' keys as they are written in the files.
    explicit SceneFixture(const char* step) { WriteWholeFolder(folder, step); }
    void SetUp() override {
        ResetForRun();
        shell.windowed = 1;
        shell.noSound = true;
    }
    void TearDown() override {
        ResetWorld();
        ResetOffscreen();
    }
    void RemoveObjects() {
        for (const std::string& name : WholeFolderNames()) {
            if (name.substr(0, 2) == "3d") {
                folder.Remove(name);
            }
        }
    }
    // A pixel of the back surface.
    static Pixel16 At(std::int32_t x, std::int32_t y) {
        LockFrame();
        const Pixel16 pixel = display.back.pixels[y * (display.back.pitch / 2) + x];
        UnlockFrame();
        return pixel;
    }
    // Whether a font's mark for c stands in the cell at (x, y).
    static bool Big(std::int32_t x, std::int32_t y, char c) {
        return At(x + kMarkX, y + kMarkY) ==
               static_cast<Pixel16>(kBigMark + static_cast<unsigned char>(c));
    }
    static bool Small(std::int32_t x, std::int32_t y, char c) {
        return At(x + kMarkX, y + kMarkY) ==
               static_cast<Pixel16>(kSmallMark + static_cast<unsigned char>(c));
    }
    DataFolderForTest folder;
};

} // namespace ombrel::test
