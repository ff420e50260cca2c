// ATM module start and the table and FIFO clears.
#include "atm/atm_internal.h"

namespace {

using namespace vq::atm;

// Global buffer limits after start, as (high 3 bits, low 16 bits) pairs: all, CBR, rt-VBR, nrt-VBR,
// UBR+, UBR, OAM.
// clang-format off
constexpr uint16_t kStartBmLimits[14] = {
    0x7, 0xFC00,  // 0x7FC00 all
    0x2, 0x0000,  // 0x20000 CBR
    0x1, 0x0000,  // 0x10000 rt-VBR
    0x1, 0x0000,  // 0x10000 nrt-VBR
    0x1, 0x0000,  // 0x10000 UBR+
    0x0, 0xEBFF,  // 0x0EBFF UBR
    0x0, 0x1001,  // 0x01001 OAM
};
// clang-format on

constexpr uint32_t kStartPwe3Time = 32;

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ATM_SetAtmTabClr(uint32_t chip, uint32_t sel, uint32_t enable) {
    if (!vq::validChip(chip) || sel > 5 || enable > 1) {
        return paraErr(chip);
    }
    if (sel == 5) {
        VQ6192_WriteRegField(chip, kTabClrReg, enable != 0 ? kTabClrAll : 0, 0, 5);
        return 0;
    }
    uint32_t bits = VQ6192_ReadRegField(chip, kTabClrReg, 0, 5);
    bits = enable != 0 ? (bits | 1u << sel) : (bits & ~(1u << sel));
    VQ6192_WriteRegField(chip, kTabClrReg, bits, 0, 5);
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmFifoClear(uint32_t chip) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    for (int bit = static_cast<int>(kFifoClearTopBit); bit >= 0; --bit) {
        pulseBit(chip, kFifoClearReg, static_cast<uint32_t>(bit));
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_SetOamFifoClear(uint32_t chip, uint32_t which) {
    if (!vq::validChip(chip) || which > 1) {
        return paraErr(chip);
    }
    pulseBit(chip, kFifoClearReg, which == 1 ? kFifoClearInsertBit : kFifoClearReportBit);
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_InitAtm(uint32_t chip, uint32_t mode) {
    if (!vq::validChip(chip) || (mode != 1 && mode != 2)) {
        return paraErr(chip);
    }
    if (mode == 2) {
        return 0;  // module restore: the chip keeps its ATM set-up
    }
    VQ6192_ATM_TRACE(chip, "Err. VQ6192_ATM_InitAtm: initializtion tables clr set! ChipID: %#x\r\n", chip);
    uint32_t rc = VQ6192_ATM_SetAtmTabClr(chip, 5, 1);
    VQ6192_ATM_TRACE(chip, "Err. VQ6192_ATM_InitAtm: initializtion BM drop limit! ChipID: %#x\r\n", chip);
    rc |= VQ6192_ATM_SetAtmBmReg(chip, kStartBmLimits);
    VQ6192_ATM_TRACE(
        chip, "Err. VQ6192_ATM_InitAtm: initializtion Ingress ATM to PWE3 times! ChipID: %#x\r\n", chip);
    rc |= VQ6192_ATM_SetSendPwe3Time(chip, kStartPwe3Time);
    VQ6192_ATM_TRACE(chip, "Err. VQ6192_ATM_InitAtm: initializtion CRC Enable! ChipID: %#x\r\n", chip);
    rc |= VQ6192_ATM_SetOamCrcEn(chip, 1);
    return rc;
}

}  // extern "C"
