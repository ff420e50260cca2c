// Path trace messages: the CRC-7 of the trace's first byte, the selector pages and trace transfer
// through a page's index and data registers.
#include "platform/osal.h"
#include "sdh/poh_internal.h"

namespace vq::sdh::poh {

// CRC-7 with generator x^7 + x^3 + 1, kept in bits 7..1 of an 8-bit register; the first byte of a trace
// counts as 0x80 (its own CRC bits zero) unless useFirst.
uint8_t traceCrc(const uint8_t *buf, uint32_t len, bool useFirst) {
    uint8_t r = 0;
    for (uint32_t i = 0; i < len; ++i) {
        uint8_t byte = (i == 0 && !useFirst) ? 0x80 : buf[i];
        for (int bit = 0; bit < 8; ++bit) {
            if (((r ^ byte) & 0x80) != 0) {
                r ^= 0x89;
            }
            r = static_cast<uint8_t>((r << 1) & 0xFE);
            byte = static_cast<uint8_t>(byte << 1);
        }
    }
    return static_cast<uint8_t>((r >> 1) | 0x80);
}

void selectTxHo(uint32_t chip, uint32_t v) {
    wr(chip, kTxHoSel, v, kTxHoSelBit, kTxHoSelWidth);
}

void selectTxLo(uint32_t chip, uint32_t v, uint32_t c) {
    wr(chip, kTxLoSel, 128 * v + c, 0, 9);
}

void selectRxHo(uint32_t chip, uint32_t v) {
    wr(chip, kRxHoSel, v, 0, 4);
    OSK_TaskDelay(kRxPageTicks);
}

void selectRxLo(uint32_t chip, uint32_t v, uint32_t c) {
    wr(chip, kRxLoSel, 128 * v + c, 0, 9);
    OSK_TaskDelay(kRxPageTicks);
}

void writeTrace(uint32_t chip, uint32_t indexReg, uint32_t dataReg, const uint8_t *msg, uint32_t len) {
    for (uint32_t i = 0; i < len; ++i) {
        wr(chip, indexReg, i, 0, 6);
        wr(chip, dataReg, msg[i], 0, 8);
    }
}

void readTrace(uint32_t chip, uint32_t indexReg, uint32_t dataReg, uint8_t *msg, uint32_t len) {
    for (uint32_t i = 0; i < len; ++i) {
        wr(chip, indexReg, i, 0, 6);
        msg[i] = rd8(chip, dataReg, 0, 8);
    }
}

}  // namespace vq::sdh::poh

extern "C" VQ6192_API uint8_t VQ6192_SDH_GetCRC7(uint32_t chip, const uint8_t *buf, uint8_t len,
                                                 uint32_t useFirst) {
    (void)chip;
    // A missing buffer has nothing to sum: the CRC of an empty trace.
    if (buf == nullptr) {
        return 0x80;
    }
    return vq::sdh::poh::traceCrc(buf, len, useFirst != 0);
}
