// What the path overhead files share: status codes, field access, the selector pages and the trace
// signature.
#pragma once

#include <cstdint>

#include "core/status.h"
#include "sdh/poh_regs.h"
#include "vq6192/core.h"
#include "vq6192/sdh.h"

namespace vq::sdh::poh {

inline constexpr uint32_t kErrPrereq = 4;  // a prerequisite setting forbids the operation
inline constexpr uint32_t kErrCopy = 7;    // bounded copy refused (framer module)
inline constexpr uint32_t kTuNum = 28;     // tributaries per TUG-3
inline constexpr uint32_t kHoBlockNum = 12;

inline uint32_t paraErr(uint32_t chip) {
    return vq::paraErr(chip, VQ6192_MODULE_SDH);
}
inline uint32_t status(uint32_t chip, uint32_t err) {
    return makeStatus(chip, VQ6192_MODULE_SDH, err);
}

inline bool badVc4(uint32_t chip, uint32_t v) {
    return !validChip(chip) || v >= VQ6192_SDH_VC4_NUM;
}
inline bool badVc3(uint32_t chip, uint32_t v, uint32_t k) {
    return badVc4(chip, v) || k >= VQ6192_SDH_AU3_NUM;
}
inline bool badTu(uint32_t chip, uint32_t v, uint32_t k, uint32_t t) {
    return badVc3(chip, v, k) || t >= kTuNum;
}
// Low-order channel of a VC-4: 32 * TUG-3 + tributary (the VC-3 of the TUG-3 at tributary 0).
constexpr uint32_t channel(uint32_t k, uint32_t t = 0) {
    return 32 * k + t;
}

inline uint32_t rd(uint32_t chip, uint32_t addr, uint32_t bit, uint32_t width = 1) {
    return VQ6192_ReadRegField(chip, addr, bit, width);
}
inline uint8_t rd8(uint32_t chip, uint32_t addr, uint32_t bit, uint32_t width = 1) {
    return static_cast<uint8_t>(rd(chip, addr, bit, width));
}
inline void wr(uint32_t chip, uint32_t addr, uint32_t value, uint32_t bit, uint32_t width = 1) {
    VQ6192_WriteRegField(chip, addr, value, bit, width);
}
// The same field of the three high-order blocks of a VC-4 (n = v, v + 4, v + 8).
inline void wrHo3(uint32_t chip, uint32_t (*block)(uint32_t), uint32_t v, uint32_t word, uint32_t value,
                  uint32_t bit, uint32_t width = 1) {
    for (uint32_t k = 0; k < VQ6192_SDH_AU3_NUM; ++k) {
        wr(chip, block(v + 4 * k) + word, value, bit, width);
    }
}

// Selector pages. Every paged access writes its selector first; the receive pages then wait 50 ticks
// for the chip to fetch the path's bytes.
void selectTxHo(uint32_t chip, uint32_t v);
void selectTxLo(uint32_t chip, uint32_t v, uint32_t c);
void selectRxHo(uint32_t chip, uint32_t v);
void selectRxLo(uint32_t chip, uint32_t v, uint32_t c);

// Trace bytes through a page's index and data registers.
void writeTrace(uint32_t chip, uint32_t indexReg, uint32_t dataReg, const uint8_t *msg, uint32_t len);
void readTrace(uint32_t chip, uint32_t indexReg, uint32_t dataReg, uint8_t *msg, uint32_t len);

// Trace CRC-7 over len bytes (first byte taken as 0x80 unless useFirst), with bit 7 set.
uint8_t traceCrc(const uint8_t *buf, uint32_t len, bool useFirst);

}  // namespace vq::sdh::poh
