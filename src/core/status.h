// Status codes and the trace lines every operation shares.
#pragma once

#include <cstdint>

#include "vq6192/core.h"

namespace vq {

// The chip id's low four bits in place: the "(chip bits)" of every status code.
constexpr uint32_t chipBits(uint32_t chip) {
    return (chip << 24) & 0x0F000000u;
}

constexpr uint32_t makeStatus(uint32_t chip, uint32_t module, uint32_t err) {
    return chipBits(chip) + (module << 16) + err;
}

constexpr bool validChip(uint32_t chip) {
    return chip < VQ6192_CHIP_NUM;
}

// Ids that index the registry without overrunning it: the valid chips and the spare record.
constexpr bool recordIndex(uint32_t chip) {
    return chip < VQ6192_CHIP_RECORD_NUM;
}

// Traces the parameter error line "ParaErr.\r\n" at PRINT_PARA_WRONG and returns the module's
// parameter error.
uint32_t paraErr(uint32_t chip, uint32_t module);

}  // namespace vq
