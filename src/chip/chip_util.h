// Small helpers the chip health, self-test and interrupt operations share.
#pragma once

#include <cstdint>

#include "chip/chip_regs.h"
#include "core/reg_field.h"
#include "core/status.h"
#include "vq6192/core.h"

namespace vq::chip {

inline uint32_t get(uint32_t chip, Field f) {
    return VQ6192_ReadRegField(chip, f.addr, f.bit, f.width);
}

inline void set(uint32_t chip, Field f, uint32_t value) {
    VQ6192_WriteRegField(chip, f.addr, value, f.bit, f.width);
}

inline uint32_t bit(uint32_t value, uint32_t n) {
    return (value >> n) & 1u;
}

// Status codes of the BASE module.
inline uint32_t baseStatus(uint32_t chip, uint32_t err) {
    return makeStatus(chip, VQ6192_MODULE_BASE, err);
}

inline uint32_t baseParaErr(uint32_t chip) {
    return paraErr(chip, VQ6192_MODULE_BASE);
}

inline constexpr uint32_t kErrTimeout = 3;
inline constexpr uint32_t kErrFailed = 7;

}  // namespace vq::chip
