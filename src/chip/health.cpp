// Chip identity and health: version, the register test, die id, ECC state, frame pulse state and the
// clock/PLL alarm check.
#include <cstdio>

#include "chip/chip_util.h"
#include "platform/osal.h"
#include "vq6192/chip.h"

using namespace vq::chip;

extern "C" {

const char g_szVq6192DrvRelease[] = "DRV REL 2.5.600  ";

}  // extern "C"

namespace {

// The register test: the test register reads back the complement of what was written. Writes the
// pattern, expects its complement, writes what it read and expects the pattern again. Returns the
// step that failed (1 or 2) or 0; written and read receive the last pair.
uint32_t registerTest(uint32_t chip, uint16_t &written, uint16_t &read) {
    written = kTestPattern;
    VQ6192_WriteReg(chip, kTestReg, written);
    read = static_cast<uint16_t>(VQ6192_ReadReg(chip, kTestReg));
    if (read != kTestComplement) {
        return 1;
    }
    written = read;
    VQ6192_WriteReg(chip, kTestReg, written);
    read = static_cast<uint16_t>(VQ6192_ReadReg(chip, kTestReg));
    return read != kTestPattern ? 2 : 0;
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_Base_GetVersion(uint32_t chip, char *buf, uint32_t len) {
    if (!vq::validChip(chip) || buf == nullptr || len < VQ6192_VERSION_BUF_MIN) {
        return baseParaErr(chip);
    }
    const uint32_t high = VQ6192_ReadReg(chip, kVersionHighReg);
    const uint32_t low = VQ6192_ReadReg(chip, kVersionLowReg);
    // The untruncated length tells whether the text fitted.
    const int n = std::snprintf(buf, len, "VQ%04xV%04x %s\n", static_cast<unsigned>(high),
                                static_cast<unsigned>(low), g_szVq6192DrvRelease);
    if (n < 0 || static_cast<uint32_t>(n) >= len) {
        return baseStatus(chip, kErrFailed);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_GetVersionReg(uint32_t chip, uint32_t *out) {
    if (!vq::validChip(chip) || out == nullptr) {
        return baseParaErr(chip);
    }
    const uint32_t high = VQ6192_ReadReg(chip, kVersionHighReg);
    *out = (high << 16) | VQ6192_ReadReg(chip, kVersionLowReg);
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_GetChipStatus(uint32_t chip, uint8_t *failed, uint16_t *readVal,
                                              uint16_t *writeVal) {
    if (!vq::validChip(chip) || failed == nullptr || readVal == nullptr || writeVal == nullptr) {
        return baseParaErr(chip);
    }
    const uint32_t step = registerTest(chip, *writeVal, *readVal);
    *failed = step != 0 ? 1 : 0;
    return step != 0 ? baseStatus(chip, kErrFailed) : 0;
}

VQ6192_API uint32_t VQ6192_Base_ChipRWTest(uint32_t chip, uint16_t *written, uint16_t *read) {
    if (!vq::validChip(chip) || written == nullptr || read == nullptr) {
        return baseParaErr(chip);
    }
    return registerTest(chip, *written, *read) != 0 ? baseStatus(chip, kErrFailed) : 0;
}

VQ6192_API uint32_t VQ6192_Base_GetChipStatus_Test(uint32_t chip, uint32_t fail[2]) {
    if (!vq::validChip(chip) || fail == nullptr) {
        return baseParaErr(chip);
    }
    fail[0] = 0;
    fail[1] = 0;
    uint16_t written = 0;
    uint16_t read = 0;
    const uint32_t step = registerTest(chip, written, read);
    if (step == 0) {
        return 0;
    }
    // A bit that did not invert reads back as written.
    fail[step - 1] = static_cast<uint16_t>(~(read ^ written));
    return baseStatus(chip, kErrFailed);
}

VQ6192_API uint32_t VQ6192_Base_GetDieID(uint32_t chip, VQ6192_DIE_ID *out) {
    if (!vq::validChip(chip) || out == nullptr) {
        return baseParaErr(chip);
    }
    const uint32_t ctrl = VQ6192_ReadReg(chip, kDieIdCtrlReg);
    out->byRead_protect_out = static_cast<uint8_t>(bit(ctrl, 3));
    out->byWrite_protect_out = static_cast<uint8_t>(bit(ctrl, 2));
    out->byDieId_read_done = static_cast<uint8_t>(bit(ctrl, 1));
    out->byDieId_write_done = static_cast<uint8_t>(bit(ctrl, 0));
    const uint32_t crc = VQ6192_ReadReg(chip, kDieIdCrcReg);
    out->byDieId_crc_right = static_cast<uint8_t>(bit(crc, 8));
    out->byDieId_crc = static_cast<uint8_t>(crc & 0xFFu);
    uint16_t *const words[kDieIdOutRegs] = {&out->byDieId_out_0, &out->byDieId_out_1, &out->byDieId_out_2,
                                            &out->byDieId_out_3, &out->byDieId_out_4, &out->byDieId_out_5,
                                            &out->byDieId_out_6, &out->byDieId_out_7};
    for (uint32_t k = 0; k < kDieIdOutRegs; ++k) {
        *words[k] = static_cast<uint16_t>(VQ6192_ReadReg(chip, kDieIdOutReg + 2 * k));
    }
    out->byDieId_out_7 &= kDieIdLastMask;
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_GetEccState(uint32_t chip, uint16_t *a, uint16_t *b, uint16_t *c,
                                            uint16_t *d) {
    if (!vq::validChip(chip) || a == nullptr || b == nullptr || c == nullptr || d == nullptr) {
        return baseParaErr(chip);
    }
    const uint32_t state = VQ6192_ReadReg(chip, kEccStateReg);
    *a = static_cast<uint16_t>(bit(state, 7));
    *b = static_cast<uint16_t>(bit(state, 6));
    *c = static_cast<uint16_t>(bit(state, 5));
    *d = static_cast<uint16_t>(bit(state, 4));
    // Clear the latched ECC flags.
    VQ6192_WriteReg(chip, kEccClearReg, kEccClearAll);
    VQ6192_WriteReg(chip, kEccClearHighReg, 0);
    VQ6192_WriteReg(chip, kEccClearReg, 0);
    VQ6192_WriteReg(chip, kEccClearHighReg, 0);
    return 0;
}

VQ6192_API uint32_t VQ6192_GetFpState(uint32_t chip, uint32_t *a, uint32_t *b) {
    if (!vq::validChip(chip) || a == nullptr || b == nullptr) {
        return baseParaErr(chip);
    }
    const uint32_t state = VQ6192_ReadReg(chip, kFpStateReg);
    *a = bit(state, 3);
    *b = bit(state, 4);
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_CheckClkPll(uint32_t chip, uint8_t *alarm) {
    if (!vq::validChip(chip) || alarm == nullptr) {
        return baseParaErr(chip);
    }
    VQ6192_WriteReg(chip, kLocalAlarmEnableReg, kClkPllAlarms);
    // Clear the latched alarms; an alarm still present latches again at once.
    VQ6192_WriteReg(chip, kLocalAlarmReg, kClkPllAlarms);
    *alarm = (VQ6192_ReadReg(chip, kLocalAlarmReg) & kClkPllAlarms) != 0 ? 1 : 0;
    return 0;
}

}  // extern "C"
