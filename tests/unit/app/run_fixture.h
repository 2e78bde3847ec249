// A fresh world over the offscreen back end, and the log of a run as lines.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "app/shell.h"
#include "base/data_file.h"
#include "base/shell_state.h"
#include "demo/reset.h"
#include "demo/world.h"
#include "platform/offscreen/offscreen.h"

namespace ombrel {

class RunTest : public testing::Test {
protected:
    void SetUp() override {
        ResetWorld();
        ResetOffscreen();
        SetDataFolder("/nowhere/at/all"); // every file is missing
        script.msPerRead = 0;
        script.msPerPresent = 25;
    }
    void TearDown() override {
        SetUp();
        SetDataFolder("");
    }

    // Ends the run after so many frames, by the Escape key.
    static void EscapeAfter(std::int64_t frames) {
        script.escapeFrom = frames - 1;
        script.escapeTo = frames;
    }

    static std::vector<std::string> LogLines() {
        std::vector<std::string> lines;
        std::istringstream text(SeamLog());
        for (std::string line; std::getline(text, line);) {
            lines.push_back(line);
        }
        return lines;
    }

    static int CountLines(const std::string& beginning) {
        const std::vector<std::string> lines = LogLines();
        return static_cast<int>(
            std::count_if(lines.begin(), lines.end(), [&](const std::string& line) {
                return line.compare(0, beginning.size(), beginning) == 0;
            }));
    }
};

} // namespace ombrel
