// A small show, open for the life of a test: scene two begins with frame 33.
#pragma once

#include <gtest/gtest.h>

#include "app/frame_driver.h"
#include "demo/reset.h"
#include "platform/offscreen/offscreen.h"
#include "player/show.h"
#include "support/hand_made_data.h"

namespace ombrel {

class OpenShowTest : public testing::Test {
protected:
    static constexpr std::int32_t kWidth = 320, kHeight = 240;

    OpenShowTest() {
        ResetWorld();
        ResetOffscreen();
        WriteWholeFolder(folder_, "1");
        EXPECT_TRUE(OpenShow({RenderFrame, kWidth, kHeight, 0, 0}));
    }
    ~OpenShowTest() override {
        CloseShow();
        ResetOffscreen();
    }

private:
    DataFolderForTest folder_;
};

} // namespace ombrel
