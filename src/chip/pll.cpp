// PLL programming, chip reset, per-module soft resets and module clock enables.
#include "chip/chip_util.h"
#include "chip/init_regs.h"
#include "platform/osal.h"
#include "vq6192/chip.h"

using namespace vq::chip;

namespace {

void setAt(uint32_t chip, uint32_t base, Field f, uint32_t value) {
    VQ6192_WriteRegField(chip, base + f.addr, value, f.bit, f.width);
}

// Sets or clears one bit of a register by read-modify-write of the whole register.
void changeBit(uint32_t chip, uint32_t reg, uint32_t bitNo, uint32_t value) {
    uint32_t v = VQ6192_ReadReg(chip, reg);
    v = value != 0 ? (v | 1u << bitNo) : (v & ~(1u << bitNo));
    VQ6192_WriteReg(chip, reg, v & 0xFFFFu);
}

// Programs PLL n from its table row; returns 0, or the time-out status when its loss-of-lock alarm
// is still latched after a clear.
uint32_t programPll(uint32_t chip, uint32_t n, const uint16_t *w) {
    const uint32_t base = kPllBase[n];
    const uint32_t settleUs = w[kW8Settle] * kPllSettleUnitUs;
    if (n >= 2) {
        set(chip, kPllUpperSel, w[kW0Sel]);
    }
    setAt(chip, base, kPllDivA, w[kW1DivA]);
    setAt(chip, base, kPllDivB, w[kW2DivB]);
    VQ6192_WriteReg(chip, base + kPllCombinedOffset, (w[kW4High] * 16u + w[kW3Low]) & 0xFFFFu);
    setAt(chip, base, kPllValue16, w[kW7Value16]);
    setAt(chip, base, kPllValue8, w[kW6Value8]);

    setAt(chip, base, kPllReset, 1);
    vq::DrvDelayUs(settleUs);
    setAt(chip, base, kPllReset, 0);
    vq::DrvDelayUs(settleUs);

    set(chip, kLocalAlarms, 1u << n);
    for (uint32_t check = 1; check <= kPllChecks; ++check) {
        vq::DrvDelayUs(settleUs);
        const uint32_t stat = VQ6192_ReadReg(chip, kLocalAlarmReg);
        if (bit(stat, n) != 0) {
            const uint32_t err = baseStatus(chip, kErrTimeout);
            VQ6192_Printf(
                chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
                "Err. VQ6192_Base_SetPLLCfg.  SetPLL%u, ChkTime[%#x], PLL Stat[%#x]\n, ErrCode[%#x]\r\n", n,
                check, stat, err);
            return err;
        }
    }
    return 0;
}

}  // namespace

extern "C" {

// A null table is a parameter error. Every PLL is programmed even after an earlier one failed.
VQ6192_API uint32_t VQ6192_Base_SetPLLCfg(uint32_t chip, const uint16_t table[40]) {
    if (!vq::validChip(chip) || table == nullptr) {
        return baseParaErr(chip);
    }
    uint32_t result = 0;
    for (uint32_t n = 0; n < VQ6192_PLL_NUM; ++n) {
        result |= programPll(chip, n, table + n * VQ6192_PLL_CFG_WORDS);
    }
    return result;
}

// Only mode 1 resets; modes 0 and 2 are accepted and do nothing.
VQ6192_API uint32_t VQ6192_Base_ResetChip(uint32_t chip, uint32_t mode) {
    if (!vq::validChip(chip) || mode > 2) {
        return baseParaErr(chip);
    }
    if (mode != 1) {
        return 0;
    }
    set(chip, kSoftResets, 0xFFFF);
    set(chip, kSoftResets2, 0x3F);
    vq::DrvDelayUs(kChipResetUs);
    VQ6192_WriteReg(chip, kSoftResetReg, 0);
    set(chip, kSoftResets2, 0);
    return 0;
}

// The module number is not bounded (reg 0x0C has six reset bits): callers keep to 0..21, and a number
// beyond the register's sixteen bits changes nothing.
VQ6192_API uint32_t VQ6192_Base_SetSoftResetModule(uint32_t chip, uint32_t module, uint32_t value) {
    if (!vq::validChip(chip) || value > 1) {
        return baseParaErr(chip);
    }
    if (module < kSoftResetSplit) {
        changeBit(chip, kSoftResetReg, module, value);
    } else if (module - kSoftResetSplit < 16) {
        changeBit(chip, kSoftResetReg2, module - kSoftResetSplit, value);
    }
    return 0;
}

// As for the soft resets: callers keep to modules 0..20 (reg 0x08 has six clock bits).
VQ6192_API uint32_t VQ6192_Base_SetModuleClkEn(uint32_t chip, uint32_t module, uint32_t enable) {
    if (!vq::validChip(chip) || enable > 1) {
        return baseParaErr(chip);
    }
    if (module < kModuleClockSplit) {
        changeBit(chip, kModuleClockReg, module, enable);
    } else if (module - kModuleClockSplit < 16) {
        changeBit(chip, kModuleClockReg2, module - kModuleClockSplit, enable);
    }
    return 0;
}

}  // extern "C"
