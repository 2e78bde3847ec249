// Walks from frame header to frame header; decoding is the business of the sound library.
#include "sound.h"

#include <cstdint>
#include <cstring>

namespace inspect {

namespace {

constexpr std::size_t kMaxSoundFile = std::size_t{1} << 30;
constexpr std::size_t kTagHeader = 10; // bytes before a tag at the start
constexpr std::size_t kTagAtEnd = 128;

// clang-format off
constexpr std::int32_t kKilobits[2][15] = { // layer III: MPEG 1; MPEG 2 and 2.5
    {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320},
    {0,  8, 16, 24, 32, 40, 48, 56,  64,  80,  96, 112, 128, 144, 160},
};
constexpr std::int32_t kRates[4][3] = { // by version bits: 2.5, none, 2, 1
    {11025, 12000, 8000}, {0, 0, 0}, {22050, 24000, 16000}, {44100, 48000, 32000},
};
// clang-format on

struct SoundFrame {
    std::size_t bytes;
    std::int32_t samples, rate, channels;
};

// False when no layer III frame begins with these four bytes.
bool ReadHeader(const unsigned char* p, SoundFrame* frame) {
    const unsigned version = p[1] >> 3 & 3;
    const unsigned layer = p[1] >> 1 & 3;
    const unsigned kilobits = p[2] >> 4;
    const unsigned rate = p[2] >> 2 & 3;
    if (p[0] != 0xFF || (p[1] & 0xE0) != 0xE0 || version == 1 || layer != 1 || kilobits == 0 ||
        kilobits == 15 || rate == 3) {
        return false;
    }
    const bool first = version == 3;
    frame->rate = kRates[version][rate];
    frame->samples = first ? 1152 : 576;
    frame->channels = p[3] >> 6 == 3 ? 1 : 2;
    const std::int32_t bits = kKilobits[first ? 0 : 1][kilobits] * 1000;
    frame->bytes =
        static_cast<std::size_t>(frame->samples / 8 * bits / frame->rate) + (p[2] >> 1 & 1);
    return frame->bytes > 4;
}

// After a tag at the start.
std::size_t StartOf(std::string_view bytes) {
    if (bytes.size() < kTagHeader || bytes.compare(0, 3, "ID3") != 0) {
        return 0;
    }
    std::size_t size = 0;
    for (std::size_t i = 6; i < kTagHeader; ++i) {
        size = size << 7 | (static_cast<unsigned char>(bytes[i]) & 0x7F);
    }
    return kTagHeader + size;
}

} // namespace

double InspectSound(const std::string& path, Report* report) {
    FileBytes file;
    std::string problem;
    report->summary = "broken";
    if (!ReadFile(path, kMaxSoundFile, &file, &problem)) {
        Refuse(report, 0, nullptr,
               {problem, "the production is silent", "give a file that can be read"});
        return 0.0;
    }
    const std::string_view bytes = file.text;
    const std::size_t start = StartOf(bytes);
    std::size_t end = bytes.size();
    if (end >= kTagAtEnd && bytes.compare(end - kTagAtEnd, 3, "TAG") == 0) {
        end -= kTagAtEnd;
    }
    const auto* const data = reinterpret_cast<const unsigned char*>(bytes.data());
    std::size_t at = start;
    std::int64_t count = 0;
    std::int64_t samples = 0;
    SoundFrame first{};
    SoundFrame frame{};
    while (at + 4 <= end && ReadHeader(data + at, &frame)) {
        first = count == 0 ? frame : first;
        if (at + frame.bytes > end) {
            Warn(report, static_cast<std::int64_t>(at), nullptr,
                 {"the last frame is cut short", "the sound breaks off there", "encode it again"});
            at = end;
            break;
        }
        ++count;
        samples += frame.samples;
        at += frame.bytes;
    }
    if (count == 0) {
        Refuse(report, static_cast<std::int64_t>(start), nullptr,
               {"no frame of MPEG audio, layer III, begins here", "the production is silent",
                "encode it as MP3"});
        return 0.0;
    }
    if (at < end) {
        Warn(report, static_cast<std::int64_t>(at), nullptr,
             {Format("%zu bytes that are no sound", end - at),
              "they are skipped or end the sound, as the library likes", "encode it again"});
    }
    const double seconds = static_cast<double>(samples) / first.rate;
    Row(report, "sound", Format("%d Hz, %s", first.rate, first.channels == 1 ? "mono" : "stereo"));
    Row(report, "length",
        Format("%.1f s in %lld frames, %.0f kbit/s", seconds, static_cast<long long>(count),
               static_cast<double>(end - start) * 0.008 / seconds));
    report->summary = Format("%.1f s, %d Hz", seconds, first.rate);
    return seconds;
}

} // namespace inspect
