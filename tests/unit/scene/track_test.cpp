// Tracks: the file format with its half lines, and the spline frame by frame.
#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/float_mode.h"
#include "scene_fixture.h"

using namespace ombrel;

namespace {

class Track : public testing::Test {
protected:
    void SetUp() override { ResetTrackState(); }
    void TearDown() override {
        ResetTrackState();
        if (!path_.empty()) {
            std::remove(path_.c_str());
        }
    }

    std::int32_t Load(const std::string& text, std::int32_t capacity = 64) {
        path_ = testing::TempDir() + "track_test_" +
                testing::UnitTest::GetInstance()->current_test_info()->name() + ".trk";
        std::FILE* file = std::fopen(path_.c_str(), "wb");
        EXPECT_NE(file, nullptr);
        EXPECT_EQ(std::fwrite(text.data(), 1, text.size(), file), text.size());
        std::fclose(file);
        keys_.assign(static_cast<std::size_t>(capacity) + 1, TrackKey{});
        keys_.back().keyBias = 4711.0F; // a guard after the last key
        const std::int32_t count = TrackLoad(path_.c_str(), keys_.data(), capacity);
        EXPECT_EQ(keys_.back().keyBias, 4711.0F);
        return count;
    }

    std::string path_;
    std::vector<TrackKey> keys_;
};

// Keys at the given places along x, y = 10 x, angles y = 100 x, fov 90 + x.
std::vector<TrackKey> KeysAt(std::initializer_list<float> places, float step) {
    std::vector<TrackKey> keys;
    for (const float x : places) {
        TrackKey key = {};
        key.position = {x, 10.0F * x, 0.0F, 1.0F};
        key.angles = {0.0F, 100.0F * x, 0.0F, 1.0F};
        key.fov = 90.0F + x;
        key.step = step;
        keys.push_back(key);
    }
    return keys;
}

std::int32_t Sample(Camera* camera, const std::vector<TrackKey>& keys) {
    return TrackSample(camera, keys.data(), static_cast<std::int32_t>(keys.size()));
}

// --- reading -----------------------------------------------------------------------------------

TEST_F(Track, R29_FirstThreeColumnsAreStoredInReverse) {
    ASSERT_EQ(Load("1, 2, 3;\t4, 5, 6;\t7, 8, 9;\t10;\t11;\n"), 1);
    const TrackKey& key = keys_[0];
    EXPECT_EQ(key.keyBias, 1.0F);
    EXPECT_EQ(key.keyContinuity, 2.0F);
    EXPECT_EQ(key.tension, 3.0F);
    EXPECT_EQ(key.position.x, 4.0F);
    EXPECT_EQ(key.position.y, 5.0F);
    EXPECT_EQ(key.position.z, 6.0F);
    EXPECT_EQ(key.angles.x, 7.0F);
    EXPECT_EQ(key.angles.y, 8.0F);
    EXPECT_EQ(key.angles.z, 9.0F);
    EXPECT_EQ(key.fov, 10.0F);
    EXPECT_EQ(key.step, 11.0F);
}

TEST_F(Track, SeveralLinesWithAnyLineEndAndAnyBlanks) {
    EXPECT_EQ(Load("0, 0, 0;\t1, 0, 0;\t0, 0, 0;\t90;\t0.5;\r\n"
                   "0,0,0;2,0,0;0,0,0;90;0.5;"
                   "\n\n   0, \n 0,\t0;\t 3, 0, 0;\t0, 0, 0;\t90;\t0.5;"),
              3);
    EXPECT_EQ(keys_[0].position.x, 1.0F);
    EXPECT_EQ(keys_[1].position.x, 2.0F);
    EXPECT_EQ(keys_[2].position.x, 3.0F);
    EXPECT_EQ(keys_[2].step, 0.5F);
}

TEST_F(Track, NumbersAreTheNearestSinglesInBothModes) {
    const ScopedFloatMode chop(FloatMode::Chop);
    ASSERT_EQ(Load("0, 0, 0;\t0.1, -1e3, +.5;\t0, 0, 0;\t90;\t0.02;\n"), 1);
    EXPECT_EQ(keys_[0].position.x, 0.1F);
    EXPECT_EQ(keys_[0].position.y, -1000.0F);
    EXPECT_EQ(keys_[0].position.z, 0.5F);
}

TEST_F(Track, MissingOrEmptyFileGivesNoKeys) {
    TrackKey key = {};
    EXPECT_EQ(TrackLoad("./no/such/track.trk", &key, 1), 0);
    EXPECT_EQ(TrackLoad(testing::TempDir().c_str(), &key, 1), 0); // a folder
    EXPECT_EQ(Load(""), 0);
    EXPECT_EQ(Load(" \n\t\n"), 0);
}

TEST_F(Track, R39_HalfALineMakesAKeyWithTheColumnsOfTheOneBefore) {
    EXPECT_EQ(Load("1, 2, 3;\t4, 5, 6;\t7, 8, 9;\t10;\t11;\n"
                   "21, 22, 23;\t24,"),
              2);
    EXPECT_EQ(keys_[1].keyBias, 21.0F);
    EXPECT_EQ(keys_[1].position.x, 24.0F);
    EXPECT_EQ(keys_[1].position.y, 5.0F);
    EXPECT_EQ(keys_[1].step, 11.0F);
}

TEST_F(Track, R39_TheNextKeyBeginsWhereTheHalfLineStopped) {
    // "2 3": the comma is missing, so the second read begins at 3.
    EXPECT_EQ(Load("1, 2 3, 4, 5;\n"), 2);
    EXPECT_EQ(keys_[0].keyBias, 1.0F);
    EXPECT_EQ(keys_[0].keyContinuity, 2.0F);
    EXPECT_EQ(keys_[0].tension, 0.0F); // nothing before it
    EXPECT_EQ(keys_[1].keyBias, 3.0F);
    EXPECT_EQ(keys_[1].keyContinuity, 4.0F);
    EXPECT_EQ(keys_[1].tension, 5.0F);
}

TEST_F(Track, AReadThatTakesNothingInEndsTheReading) {
    EXPECT_EQ(Load("1, 2, 3;\t4, 5, 6;\t7, 8, 9;\t10;\t11;\n# no comments here\n"
                   "1, 2, 3;\t4, 5, 6;\t7, 8, 9;\t10;\t11;\n"),
              1);
    EXPECT_EQ(Load("hello"), 0);
    EXPECT_EQ(Load(std::string("1, 2\0, 3, 4", 11)), 1);
}

TEST_F(Track, R39_SignPointOrExponentWithoutDigitsIsTakenInAndMakesAKey) {
    const std::string good = "1, 2, 3;\t4, 5, 6;\t7, 8, 9;\t10;\t11;\n";
    for (const char* const bad : {"-", "+.", "1e", "2E+"}) {
        ASSERT_EQ(Load(good + bad + "\n" + good), 3) << bad;
        EXPECT_EQ(keys_[1].keyBias, 1.0F) << bad; // as in the key before
        EXPECT_EQ(keys_[1].step, 11.0F) << bad;
        EXPECT_EQ(keys_[2].keyContinuity, 2.0F) << bad;
    }
    EXPECT_EQ(Load("-"), 1);
    EXPECT_EQ(Load("- "), 1);
    EXPECT_EQ(Load(" \n"), 0);
    EXPECT_EQ(Load(std::string(100000, '-')), 64); // as many as there is room for
}

TEST_F(Track, AWholeExponentWithAnotherEAfterItIsANumber) {
    EXPECT_EQ(Load("1, 2e0e;"), 1);
    EXPECT_EQ(keys_[0].keyBias, 1.0F);
    EXPECT_EQ(keys_[0].keyContinuity, 2.0F);
}

TEST_F(Track, NoMoreKeysThanTheCallerHasRoomFor) {
    std::string text;
    for (int i = 0; i < 10; ++i) {
        text += "1, 2, 3;\t4, 5, 6;\t7, 8, 9;\t10;\t11;\n";
    }
    EXPECT_EQ(Load(text, 7), 7);
    EXPECT_EQ(Load(text, 0), 0);
    EXPECT_EQ(Load(text, 11), 10);
}

TEST_F(Track, ReadsWhatTheLibrarysScannerReads) {
    // Lines with a few characters changed, put in or left out, against fscanf itself.
    const char kAlphabet[] = "0123456789  ,,;;\t\n+-..a";
    test::Numbers numbers{7};
    int keysSeen = 0;
    for (int round = 0; round < 300; ++round) {
        std::string text;
        for (std::uint32_t line = numbers.Below(5); line > 0; --line) {
            text += "0.5, -1, 2;\t12.25, 0, +7;\t.5, 90, 360.;\t90;\t0.02;\n";
        }
        for (std::uint32_t changes = numbers.Below(6); changes > 0 && !text.empty(); --changes) {
            const char c = kAlphabet[numbers.Below(sizeof kAlphabet - 1)];
            const std::size_t at = numbers.Below(static_cast<std::uint32_t>(text.size()));
            switch (numbers.Below(3)) {
            case 0:
                text[at] = c;
                break;
            case 1:
                text.insert(at, 1, c);
                break;
            default:
                text.erase(at, 1);
                break;
            }
        }
        const std::int32_t count = Load(text, 64);
        std::FILE* file = std::fopen(path_.c_str(), "rb");
        ASSERT_NE(file, nullptr);
        float c[11] = {};
        std::int32_t want = 0;
        for (; want < 64; ++want) {
            const long before = std::ftell(file);
            const int read =
                std::fscanf(file, "%f, %f, %f;\t%f, %f, %f;\t%f, %f, %f;\t%f;\t%f;\n", &c[0], &c[1],
                            &c[2], &c[3], &c[4], &c[5], &c[6], &c[7], &c[8], &c[9], &c[10]);
            if (read < 0 || std::ftell(file) == before) {
                break;
            }
            ASSERT_LT(want, count) << text;
            const TrackKey& k = keys_[static_cast<std::size_t>(want)];
            const float got[11] = {k.keyBias,    k.keyContinuity, k.tension,  k.position.x,
                                   k.position.y, k.position.z,    k.angles.x, k.angles.y,
                                   k.angles.z,   k.fov,           k.step};
            for (int i = 0; i < 11; ++i) {
                ASSERT_EQ(got[i], c[i]) << "key " << want << " column " << i << " of " << text;
            }
        }
        std::fclose(file);
        ASSERT_EQ(count, want) << text;
        keysSeen += count;
    }
    EXPECT_GT(keysSeen, 300);
}

// --- sampling ----------------------------------------------------------------------------------

TEST_F(Track, AtZeroTheSampleIsTheFirstKeyAndAtOneTheSecond) {
    const auto keys = KeysAt({0.0F, 1.0F, 4.0F, 7.0F}, 1.0F);
    Camera camera = test::MakeCamera(640.0F, 480.0F, 60.0F);
    const ScopedFloatMode chop(FloatMode::Chop);
    EXPECT_EQ(Sample(&camera, keys), 0);
    EXPECT_EQ(camera.position.x, 1.0F);
    EXPECT_EQ(camera.position.y, 10.0F);
    EXPECT_EQ(camera.angles.y, 100.0F);
    EXPECT_EQ(camera.fov, 91.0F);
    EXPECT_EQ(trackT, 1.0F);
    EXPECT_EQ(Sample(&camera, keys), 1);
    EXPECT_EQ(camera.position.x, 4.0F);
    EXPECT_EQ(camera.fov, 94.0F);
    // Just before its end the segment is where the next one begins.
    trackSegment = 0;
    trackT = 0.99999994F;
    EXPECT_EQ(Sample(&camera, keys), 0);
    EXPECT_NEAR(camera.position.x, 4.0F, 1e-4F);
    EXPECT_NEAR(camera.position.y, 40.0F, 1e-3F);
    EXPECT_NEAR(camera.angles.y, 400.0F, 1e-2F);
    EXPECT_NEAR(camera.fov, 94.0F, 1e-3F);
}

TEST_F(Track, TheFieldOfViewIsSetWithItsTangentAndPlanes) {
    const auto keys = KeysAt({0.0F, -30.0F, -30.0F}, 0.5F);
    Camera camera = test::MakeCamera(640.0F, 480.0F, 90.0F);
    Sample(&camera, keys);
    EXPECT_EQ(camera.fov, 60.0F);
    EXPECT_FLOAT_EQ(camera.tanHalfFov, 0.57735027F);
    EXPECT_FLOAT_EQ(camera.clipPosX.direction[0], 0.5F);
}

TEST_F(Track, R30_WithoutShapeTheTangentIsHalfTheWayFromKeyZeroToKeyTwo) {
    // m0 = m1 = (3 - 0) / 2 = 1.5; at a half: 0.125 * 1.5 - 0.125 * 1.5 + 0.5 * 1 + 0.5 * 3 = 2.
    auto keys = KeysAt({0.0F, 1.0F, 3.0F, 1000.0F}, 0.5F);
    Camera camera = test::MakeCamera(640.0F, 480.0F, 90.0F);
    Sample(&camera, keys);
    Sample(&camera, keys);
    EXPECT_EQ(camera.position.x, 2.0F);
    // At a quarter: 0.140625 * 1.5 - 0.046875 * 1.5 + 0.84375 * 1 + 0.15625 * 3 = 1.453125.
    trackT = 0.25F;
    Sample(&camera, keys);
    EXPECT_EQ(camera.position.x, 1.453125F);
    // The key after the end has no influence.
    keys[3].position.x = -1000.0F;
    trackT = 0.25F;
    Sample(&camera, keys);
    EXPECT_EQ(camera.position.x, 1.453125F);
}

TEST_F(Track, TensionContinuityAndBiasOfTheSecondKeyShapeTheTangents) {
    auto keys = KeysAt({0.0F, 1.0F, 3.0F}, 0.5F);
    keys[1].tension = 0.5F;
    keys[1].keyContinuity = 0.5F;
    keys[1].keyBias = 0.25F;
    keys[0].tension = keys[2].tension = 77.0F; // not looked at
    // d0 = 1.25, d1 = 2 * 0.75 - 1.25 = 0.25; m0 = (1.5 * 0.25 * 0.5 + 1.25) * 0.5 = 0.71875,
    // m1 = (0.5 * 0.25 * 0.5 + 1.25) * 0.5 = 0.65625; 0.125 * (m0 - m1) + 2 = 2.0078125.
    Camera camera = test::MakeCamera(640.0F, 480.0F, 90.0F);
    trackT = 0.5F;
    Sample(&camera, keys);
    EXPECT_EQ(camera.position.x, 2.0078125F);
}

TEST_F(Track, FiveKeysPlaySegmentsZeroToTwoAndStartAgain) {
    const auto keys = KeysAt({0.0F, 1.0F, 2.0F, 3.0F, 4.0F}, 1.0F);
    Camera camera = test::MakeCamera(640.0F, 480.0F, 90.0F);
    const std::int32_t want[7] = {0, 1, 2, 0, 1, 2, 0};
    for (const std::int32_t segment : want) {
        EXPECT_EQ(Sample(&camera, keys), segment);
        EXPECT_EQ(camera.position.x, static_cast<float>(segment + 1));
    }
}

TEST_F(Track, AStepOfAHalfGivesTwoFramesASegment) {
    const auto keys = KeysAt({0.0F, 1.0F, 2.0F, 3.0F}, 0.5F);
    Camera camera = test::MakeCamera(640.0F, 480.0F, 90.0F);
    EXPECT_EQ(Sample(&camera, keys), 0);
    EXPECT_EQ(trackT, 0.5F);
    EXPECT_EQ(Sample(&camera, keys), 0);
    EXPECT_EQ(trackT, 1.0F);
    EXPECT_EQ(Sample(&camera, keys), 1);
    EXPECT_EQ(trackT, 0.5F);
}

TEST_F(Track, AStepOfMinusOneOrZeroAdvancesByTwoHundredths) {
    Camera camera = test::MakeCamera(640.0F, 480.0F, 90.0F);
    for (const float step : {-1.0F, 0.0F, NAN}) {
        ResetTrackState();
        const auto keys = KeysAt({0.0F, 1.0F, 2.0F}, step);
        Sample(&camera, keys);
        EXPECT_EQ(trackT, 0.02F);
    }
    // The step is that of the second key of the three.
    ResetTrackState();
    auto keys = KeysAt({0.0F, 1.0F, 2.0F}, 0.5F);
    keys[1].step = 0.125F;
    Sample(&camera, keys);
    EXPECT_EQ(trackT, 0.125F);
}

TEST_F(Track, R31_OvershootIsDroppedAndTheNextTrackGoesOnFromThere) {
    const auto keys = KeysAt({0.0F, 1.0F, 2.0F, 3.0F, 4.0F}, 0.75F);
    Camera camera = test::MakeCamera(640.0F, 480.0F, 90.0F);
    Sample(&camera, keys); // 0
    Sample(&camera, keys); // 0.75, then 1.5
    EXPECT_EQ(trackT, 1.5F);
    EXPECT_EQ(Sample(&camera, keys), 1);
    EXPECT_EQ(camera.position.x, 2.0F); // begins at 0, not at 0.5

    // Another track takes over segment and place.
    const auto other = KeysAt({10.0F, 20.0F, 30.0F, 40.0F}, 0.25F);
    EXPECT_EQ(Sample(&camera, other), 1);
    EXPECT_EQ(trackT, 1.0F); // 0.75 + 0.25
    // A shorter one wraps.
    const auto shorter = KeysAt({10.0F, 20.0F, 30.0F}, 0.25F);
    EXPECT_EQ(Sample(&camera, shorter), 0);
}

TEST_F(Track, FewerThanThreeKeysLeaveTheCameraAlone) {
    const auto keys = KeysAt({5.0F, 6.0F}, 0.5F);
    Camera camera = test::MakeCamera(640.0F, 480.0F, 60.0F);
    Camera before;
    std::memcpy(&before, &camera, sizeof before);
    trackSegment = 9;
    trackT = 0.25F;
    EXPECT_EQ(TrackSample(&camera, keys.data(), 2), 0);
    EXPECT_EQ(TrackSample(&camera, keys.data(), 0), 0);
    EXPECT_EQ(TrackSample(&camera, nullptr, -3), 0);
    EXPECT_EQ(std::memcmp(&before, &camera, sizeof before), 0);
    EXPECT_EQ(trackSegment, 0);
    EXPECT_EQ(trackT, 0.25F);
}

TEST_F(Track, BrokenKeysAreSurvived) {
    // Infinite places, angles and fields of view: no crash, no endless loop.
    ASSERT_EQ(Load("1e99, 1e99, 1e99;\t1e99, 0, 0;\t1e99, -1e99, 0;\t1e99;\t1e99;\n"
                   "0, 0, 0;\t1e99, 0, 0;\t1e99, -1e99, 0;\t1e99;\t1e99;\n"
                   "0, 0, 0;\t0, 0, 0;\t0, 0, 0;\t180;\t-1e99;\n"),
              3);
    Camera camera = test::MakeCamera(640.0F, 480.0F, 90.0F);
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(TrackSample(&camera, keys_.data(), 3), 0);
        CameraBuildView(&camera, 4);
    }
}

} // namespace
