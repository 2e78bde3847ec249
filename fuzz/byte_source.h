// Takes numbers out of a fuzzer's input, front to back; zeros after its end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace ombrel {

struct ByteSource {
    const std::uint8_t* at;
    std::size_t left;

    std::uint8_t Byte() {
        if (left == 0) {
            return 0;
        }
        --left;
        return *at++;
    }
    std::uint32_t Word() {
        std::uint32_t word = 0;
        for (int i = 0; i < 4; ++i) {
            word = word << 8 | Byte();
        }
        return word;
    }
    std::int32_t Signed() { return static_cast<std::int32_t>(Word()); }
    std::int32_t Below(std::int32_t count) {
        return static_cast<std::int32_t>(Byte() * 256U + Byte()) % count;
    }
    // One byte tells the kind: a small whole number, quarters around a picture, or any bits at all.
    float Float() {
        const std::uint8_t kind = Byte();
        if (kind < 96) {
            return static_cast<float>(static_cast<std::int8_t>(Byte()));
        }
        if (kind < 192) {
            return static_cast<float>(static_cast<std::int16_t>(Byte() * 256U + Byte())) * 0.25F;
        }
        const std::uint32_t bits = Word();
        float value = 0.0F;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
};

} // namespace ombrel
