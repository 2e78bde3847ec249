// Finding the first frame, decoding frame by frame, cutting the ends.
#include "platform/sdl2/mp3_stream.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

namespace ombrel {

namespace {

constexpr std::size_t kMaxFile = std::size_t{1} << 28; // bytes
constexpr std::size_t kPiece = 1024;                   // bytes that go to the decoder at once
constexpr std::size_t kHeaderSize = 4;
constexpr int kIdleCalls = 4;               // of the decoder at the end of the file
constexpr std::int64_t kDecoderDelay = 529; // samples that every layer III decoder puts in front
constexpr std::uint32_t kSameStream = 0xFFFE0C00; // sync word, version, layer, rate

// clang-format off
constexpr std::int32_t kKilobits[2][16] = {
    {0,  8, 16, 24, 32, 40, 48, 56,  64,  80,  96, 112, 128, 144, 160, 0}, // versions 2 and 2.5
    {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 0}, // version 1
};
constexpr std::int32_t kRates[4] = {44100, 48000, 32000, 0}; // of version 1; halved, quartered
// clang-format on

void SayNothing(const char*, va_list) {}

bool ReadWholeFile(Mp3Stream* stream, const char* path) {
    // A device may never end, and a pipe that nobody writes to does not even open.
    std::error_code error;
    std::FILE* const file =
        std::filesystem::is_regular_file(path, error) ? std::fopen(path, "rb") : nullptr;
    if (file == nullptr) {
        return false;
    }
    const long size = std::fseek(file, 0, SEEK_END) == 0 ? std::ftell(file) : -1;
    if (size > 0 && static_cast<std::size_t>(size) <= kMaxFile) {
        std::rewind(file);
        stream->file = static_cast<unsigned char*>(std::malloc(static_cast<std::size_t>(size)));
        if (stream->file != nullptr) {
            stream->size = std::fread(stream->file, 1, static_cast<std::size_t>(size), file);
        }
    }
    std::fclose(file);
    return stream->size > 0;
}

std::uint32_t HeaderAt(const Mp3Stream& stream, std::size_t at) {
    const unsigned char* const b = stream.file + at;
    return std::uint32_t{b[0]} << 24 | std::uint32_t{b[1]} << 16 | std::uint32_t{b[2]} << 8 | b[3];
}

// The bytes of a frame of layer III with this header; 0: it is none.
std::size_t FrameSize(std::uint32_t header) {
    const std::uint32_t version = header >> 19 & 3; // 3: version 1, 2: version 2, 0: version 2.5
    const bool layerThree = (header >> 17 & 3) == 1;
    const std::int32_t kilobits = kKilobits[version == 3 ? 1 : 0][header >> 12 & 15];
    const std::int32_t rate = kRates[header >> 10 & 3] >> (version == 3 ? 0 : version == 2 ? 1 : 2);
    if (header >> 21 != 0x7FF || version == 1 || !layerThree || kilobits == 0 || rate == 0) {
        return 0;
    }
    const std::int32_t padding = static_cast<std::int32_t>(header >> 9 & 1);
    const std::int32_t size = (version == 3 ? 144000 : 72000) * kilobits / rate + padding;
    return static_cast<std::size_t>(size);
}

// Puts the stream at the first frame that is followed by another of its kind, or by the end; texts
// in front are passed over.
bool FindFirstFrame(Mp3Stream* stream) {
    for (std::size_t at = 0; at + kHeaderSize <= stream->size; ++at) {
        const std::uint32_t header = HeaderAt(*stream, at);
        const std::size_t size = FrameSize(header);
        if (size == 0 || at + size > stream->size) {
            continue;
        }
        const std::size_t next = at + size;
        if (next + kHeaderSize > stream->size ||
            ((HeaderAt(*stream, next) ^ header) & kSameStream) == 0) {
            stream->at = at;
            return true;
        }
    }
    return false;
}

// One frame as it comes out of the decoder, and what it says about the whole file.
struct DecodedFrame {
    short left[kMp3FrameSamples], right[kMp3FrameSamples];
    std::int32_t samples; // a channel; 0 at the end of the file
    mp3data_struct facts;
    int delay, padding; // samples the encoder put before and after; -1: not stated
};

void DecodeFrame(Mp3Stream* stream, DecodedFrame* frame) {
    // Ask for what has been handed over already, then hand over more. At the end ask on for a
    // while: the decoder may take a header in one call and its frame in the next.
    std::size_t size = 0;
    for (int idle = 0; idle <= kIdleCalls; idle = size == 0 ? idle + 1 : 0) {
        frame->samples =
            hip_decode1_headersB(stream->decoder, stream->file + stream->at, size, frame->left,
                                 frame->right, &frame->facts, &frame->delay, &frame->padding);
        stream->at += size;
        if (frame->samples > 0) {
            frame->samples = std::min(frame->samples, kMp3FrameSamples);
            return;
        }
        size = std::min(kPiece, stream->size - stream->at);
    }
    frame->samples = 0;
}

// Cuts the frame to what belongs to the music and puts its channels side by side.
std::int32_t Interleave(Mp3Stream* stream, const DecodedFrame& frame, short* samples) {
    const std::int64_t from = std::min<std::int64_t>(stream->skip, frame.samples);
    stream->skip -= from;
    std::int64_t count = frame.samples - from;
    if (stream->left >= 0) {
        count = std::min(count, stream->left);
        stream->left -= count;
    }
    const short* const right = frame.facts.stereo == 2 ? frame.right : frame.left;
    for (std::int64_t i = from; i < from + count; ++i) {
        *samples++ = frame.left[i];
        if (stream->channels == 2) {
            *samples++ = right[i];
        }
    }
    return static_cast<std::int32_t>(count);
}

bool DecodeFirstFrame(Mp3Stream* stream) {
    DecodedFrame frame{};
    frame.delay = -1;
    frame.padding = -1;
    stream->decoder = hip_decode_init();
    if (stream->decoder == nullptr) {
        return false;
    }
    hip_set_errorf(stream->decoder, SayNothing);
    hip_set_msgf(stream->decoder, SayNothing);
    hip_set_debugf(stream->decoder, SayNothing);
    DecodeFrame(stream, &frame);
    if (frame.samples == 0 || frame.facts.samplerate <= 0) {
        return false;
    }
    stream->rate = frame.facts.samplerate;
    stream->channels = frame.facts.stereo == 2 ? 2 : 1;
    stream->left = -1;
    if (frame.delay >= 0 && frame.padding >= 0) {
        stream->skip = frame.delay + kDecoderDelay;
        const auto all = static_cast<std::int64_t>(frame.facts.nsamp);
        stream->left = all > 0 ? std::max<std::int64_t>(all - frame.delay - frame.padding, 0) : -1;
    }
    stream->waiting = Interleave(stream, frame, stream->first);
    return true;
}

} // namespace

bool OpenMp3(Mp3Stream* stream, const char* path) {
    *stream = {};
    if (ReadWholeFile(stream, path) && FindFirstFrame(stream) && DecodeFirstFrame(stream)) {
        return true;
    }
    CloseMp3(stream);
    return false;
}

std::int32_t ReadMp3(Mp3Stream* stream, short samples[kMp3FrameSamples * 2]) {
    if (stream->waiting > 0) {
        std::copy_n(stream->first, stream->waiting * stream->channels, samples);
        return std::exchange(stream->waiting, 0);
    }
    // A frame may lie wholly in front of the music.
    DecodedFrame frame;
    std::int32_t count = 0;
    do {
        DecodeFrame(stream, &frame);
        count = Interleave(stream, frame, samples);
    } while (count == 0 && frame.samples > 0 && stream->left != 0);
    return count;
}

void CloseMp3(Mp3Stream* stream) {
    if (stream->decoder != nullptr) {
        hip_decode_exit(stream->decoder);
    }
    std::free(stream->file);
    *stream = {};
}

} // namespace ombrel
