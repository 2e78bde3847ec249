// The MP3 file as a stream of samples: its length, its ends, and files that are none.
#include "platform/sdl2/mp3_stream.h"

#include <gtest/gtest.h>
#include <lame/lame.h>
#include <sys/stat.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace ombrel {
namespace {

constexpr char kSoundtrack[] = OMBREL_SOURCE_DIR "/data/sfx/soundtrack.mp3";

std::string Content(const char* path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Samples of two channels, interleaved, as an MP3 file that says how many its encoder put around
// them.
std::string Encoded(std::vector<short> samples) {
    const int count = static_cast<int>(samples.size() / 2);
    lame_global_flags* const encoder = lame_init();
    lame_set_in_samplerate(encoder, 44100);
    lame_set_num_channels(encoder, 2);
    lame_set_brate(encoder, 320);
    lame_set_bWriteVbrTag(encoder, 1);
    EXPECT_GE(lame_init_params(encoder), 0);
    std::vector<unsigned char> file(samples.size() * 2 + 100000);
    const int room = static_cast<int>(file.size());
    int size = lame_encode_buffer_interleaved(encoder, samples.data(), count, file.data(), room);
    size += lame_encode_flush(encoder, file.data() + size, room - size);
    // The first frame has kept the place of the one that tells.
    EXPECT_GT(lame_get_lametag_frame(encoder, file.data(), file.size()), 0U);
    lame_close(encoder);
    return {file.begin(), file.begin() + size};
}

class Mp3StreamTest : public testing::Test {
protected:
    ~Mp3StreamTest() override {
        CloseMp3(&stream_);
        std::filesystem::remove(path_);
    }

    bool Opens(const std::string& content) {
        std::ofstream(path_, std::ios::binary) << content;
        return OpenMp3(&stream_, path_.c_str());
    }

    // All samples that are left, channels interleaved.
    std::vector<short> Rest() {
        std::vector<short> all;
        short samples[kMp3FrameSamples * 2];
        while (const std::int32_t count = ReadMp3(&stream_, samples)) {
            all.insert(all.end(), samples, samples + count * stream_.channels);
        }
        return all;
    }

    Mp3Stream stream_{};
    std::string path_ = testing::TempDir() + "mp3_stream_test_" +
                        testing::UnitTest::GetInstance()->current_test_info()->name() + ".mp3";
};

TEST_F(Mp3StreamTest, TheSoundtrackHasItsLengthWithoutWhatTheEncoderAdded) {
    ASSERT_TRUE(OpenMp3(&stream_, kSoundtrack));
    EXPECT_EQ(stream_.rate, 44100);
    EXPECT_EQ(stream_.channels, 2);
    const std::vector<short> samples = Rest();
    // The length that the file itself states: 7447 frames of 1152, less 576 before, 918 after.
    EXPECT_EQ(samples.size() / 2, std::size_t{7447} * 1152 - 576 - 918);
    const auto [low, high] = std::minmax_element(samples.begin(), samples.end());
    EXPECT_LT(*low, -8000);
    EXPECT_GT(*high, 8000);
    short more[kMp3FrameSamples * 2];
    EXPECT_EQ(ReadMp3(&stream_, more), 0);
}

TEST_F(Mp3StreamTest, EverySampleStandsAtItsPlaceInItsChannel) {
    constexpr int kCount = 20000, kPeaks[2] = {5000, 9000};
    std::vector<short> pulses(std::size_t{2} * kCount);
    for (int channel = 0; channel < 2; ++channel) {
        for (int i = 0; i < kCount; ++i) {
            const double away = (i - kPeaks[channel]) / 40.0;
            pulses[static_cast<std::size_t>(2 * i + channel)] =
                static_cast<short>(20000.0 * std::exp(-away * away));
        }
    }
    ASSERT_TRUE(Opens(Encoded(pulses)));
    ASSERT_EQ(stream_.channels, 2);
    const std::vector<short> heard = Rest();
    ASSERT_EQ(heard.size(), pulses.size());
    for (int channel = 0; channel < 2; ++channel) {
        int highest = 0;
        for (int i = 0; i < kCount; ++i) {
            const auto at = [&](int k) { return heard[static_cast<std::size_t>(2 * k + channel)]; };
            highest = at(i) > at(highest) ? i : highest;
        }
        EXPECT_NEAR(highest, kPeaks[channel], 10) << channel;
    }
}

TEST_F(Mp3StreamTest, WhatStandsBeforeAndBehindTheMusicIsPassedOver) {
    const std::string whole = Content(kSoundtrack).substr(0, 200000);
    ASSERT_TRUE(Opens(whole));
    const std::vector<short> plain = Rest();
    CloseMp3(&stream_);
    EXPECT_GT(plain.size(), std::size_t{44100} * 8);
    // 0xFF 0xFB looks like the beginning of a frame.
    ASSERT_TRUE(Opens("no music\xFF\xFB\x90\x64 yet" + whole + "nor here"));
    EXPECT_EQ(Rest(), plain);
}

TEST_F(Mp3StreamTest, AShortenedFilePlaysToItsEnd) {
    const std::string whole = Content(kSoundtrack);
    ASSERT_TRUE(Opens(whole.substr(0, 50000)));
    EXPECT_GT(Rest().size(), std::size_t{44100} * 2 * 3 / 2);
}

TEST_F(Mp3StreamTest, APipeThatNobodyWritesToIsNotWaitedFor) {
    ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
    EXPECT_FALSE(OpenMp3(&stream_, path_.c_str()));
}

// A frame of 192 kilobits and 44,100 Hz has 626 bytes, and one more where its header says so. These
// ten all say so.
TEST_F(Mp3StreamTest, AFileMayBeginWithAPaddedFrame) {
    const std::string ten = Content(kSoundtrack).substr(1515, std::size_t{10} * 627);
    ASSERT_EQ(ten[2] & 2, 2);
    ASSERT_TRUE(Opens(ten));
    EXPECT_GT(Rest().size(), std::size_t{8} * kMp3FrameSamples * 2);
}

TEST_F(Mp3StreamTest, AFileOfMoreThan256MiBDoesNotOpen) {
    ASSERT_TRUE(Opens(Content(kSoundtrack).substr(0, 50000)));
    CloseMp3(&stream_);
    std::filesystem::resize_file(path_, (std::size_t{1} << 28) + 1);
    EXPECT_FALSE(OpenMp3(&stream_, path_.c_str()));
}

TEST_F(Mp3StreamTest, WhatIsNoMusicDoesNotOpen) {
    EXPECT_FALSE(Opens(""));
    EXPECT_FALSE(Opens("no music at all"));
    EXPECT_FALSE(Opens(std::string(100000, '\0')));
    EXPECT_FALSE(Opens(std::string(100000, '\xFF')));
    EXPECT_FALSE(OpenMp3(&stream_, OMBREL_SOURCE_DIR));
    EXPECT_FALSE(OpenMp3(&stream_, "/dev/zero"));
    EXPECT_FALSE(OpenMp3(&stream_, OMBREL_BINARY_DIR "/there is no such file"));
    EXPECT_EQ(stream_.file, nullptr);
}

} // namespace
} // namespace ombrel
