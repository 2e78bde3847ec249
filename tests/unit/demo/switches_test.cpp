// The switches by name.
#include "demo/switches.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "base/shell_state.h"
#include "demo/reset.h"
#include "demo/world.h"

namespace ombrel {
namespace {

TEST(Switches, AllNamesWithTheirShippedValues) {
    ResetWorld();
    const struct {
        const char* name;
        int value;
    } shipped[] = {{"renderMode1", 1}, {"renderMode2", 1},   {"backFace", 1},   {"lighting", 1},
                   {"sort", -1},       {"cameraMode", -1},   {"blur", -1},      {"lightCount", 5},
                   {"hideCursor", 1},  {"cameraRunning", 0}, {"sceneIndex", 0}, {"crosshair", -1},
                   {"frameCap", 1}};
    std::set<std::string> names;
    for (const auto& row : shipped) {
        std::int32_t value = 99;
        EXPECT_TRUE(GetSwitch(row.name, &value)) << row.name;
        EXPECT_EQ(value, row.value) << row.name;
        names.insert(row.name);
    }
    std::set<std::string> listed;
    for (std::int32_t i = 0; SwitchName(i) != nullptr; ++i) {
        listed.insert(SwitchName(i));
    }
    EXPECT_EQ(listed, names);
    EXPECT_EQ(SwitchName(-1), nullptr);
}

// The recorder's help lists both.
TEST(Switches, EachNameHasAMeaningOfItsOwn) {
    std::set<std::string> meanings;
    std::int32_t count = 0;
    for (; SwitchName(count) != nullptr; ++count) {
        ASSERT_NE(SwitchMeaning(count), nullptr) << SwitchName(count);
        EXPECT_FALSE(std::string(SwitchMeaning(count)).empty()) << SwitchName(count);
        meanings.insert(SwitchMeaning(count));
    }
    EXPECT_EQ(meanings.size(), static_cast<std::size_t>(count));
    EXPECT_EQ(SwitchMeaning(-1), nullptr);
    EXPECT_EQ(SwitchMeaning(count), nullptr);
}

TEST(Switches, SetReachesTheVariable) {
    ResetWorld();
    EXPECT_TRUE(SetSwitch("renderMode1", 0));
    EXPECT_TRUE(SetSwitch("crosshair", 1));
    EXPECT_TRUE(SetSwitch("sceneIndex", 1));
    EXPECT_EQ(switches.renderMode1, 0);
    EXPECT_EQ(driver.crosshairSwitch, 1);
    EXPECT_EQ(driver.sceneIndex, 1);
    ResetWorld();
    EXPECT_EQ(switches.renderMode1, 1);
}

TEST(Switches, UnknownNamesAndImpossibleValuesChangeNothing) {
    ResetWorld();
    std::int32_t value = 0;
    EXPECT_FALSE(SetSwitch("rendermode1", 0));
    EXPECT_FALSE(SetSwitch("", 0));
    EXPECT_FALSE(SetSwitch(nullptr, 0));
    EXPECT_FALSE(GetSwitch("x", &value));
    EXPECT_FALSE(SetSwitch("lightCount", kMaxLights + 1));
    EXPECT_FALSE(SetSwitch("lightCount", -1));
    EXPECT_EQ(switches.lightCount, 5);
    EXPECT_TRUE(SetSwitch("lightCount", kMaxLights));
    ResetWorld();
}

} // namespace
} // namespace ombrel
