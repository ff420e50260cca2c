// Field arithmetic on the chip's 16-bit registers: a field is (start bit, width).
#pragma once

#include <cstdint>

namespace vq {

// Low `width` bits shifted to `startBit`. A width of 0 or above 32, or a start bit of 32 or more,
// gives an empty mask.
constexpr uint32_t fieldMask(uint32_t startBit, uint32_t width) {
    if (width == 0 || width > 32 || startBit >= 32) {
        return 0;
    }
    uint32_t low = width == 32 ? 0xFFFFFFFFu : (1u << width) - 1u;
    return low << startBit;
}

// (reg AND mask) >> startBit, cut to 16 bits.
constexpr uint32_t fieldGet(uint32_t reg, uint32_t startBit, uint32_t width) {
    uint32_t mask = fieldMask(startBit, width);
    return mask == 0 ? 0 : ((reg & mask) >> startBit) & 0xFFFFu;
}

// old XOR ((old XOR (value << startBit)) AND mask), cut to 16 bits: value bits beyond the width are
// dropped and the other register bits kept.
constexpr uint32_t fieldMerge(uint32_t old, uint32_t value, uint32_t startBit, uint32_t width) {
    uint32_t shifted = startBit >= 32 ? 0 : value << startBit;
    return (old ^ ((old ^ shifted) & fieldMask(startBit, width))) & 0xFFFFu;
}

}  // namespace vq
