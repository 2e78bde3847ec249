// An MP3 file as a stream of samples: the file is read at once, its frames are decoded when they
// are asked for. What the encoder put before and after the music is left out. Caller: the sound
// table.
#pragma once

#include <lame/lame.h>

#include <cstddef>
#include <cstdint>

namespace ombrel {

inline constexpr std::int32_t kMp3FrameSamples = 1152; // at most, a channel

struct Mp3Stream {
    unsigned char* file; // the whole file
    std::size_t size;
    std::size_t at; // the next byte that goes to the decoder
    hip_t decoder;
    std::int32_t rate;     // samples a second
    std::int32_t channels; // 1 or 2
    std::int64_t skip;     // samples a channel still to be left out at the start
    std::int64_t left;     // samples a channel still to come; below 0: not known
    std::int32_t waiting;  // samples a channel of the first frame, decoded when it was opened
    short first[kMp3FrameSamples * 2];
};

// Opens a file and decodes its first frame. False, with everything released, when it can not be
// read or holds no MPEG audio of layer III.
bool OpenMp3(Mp3Stream* stream, const char* path);
// The samples of the next frame, signed 16 bits, channels interleaved. Returns their number a
// channel, 0 at the end.
std::int32_t ReadMp3(Mp3Stream* stream, short samples[kMp3FrameSamples * 2]);
void CloseMp3(Mp3Stream* stream); // allowed when nothing is open

} // namespace ombrel
