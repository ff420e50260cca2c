// PLL power-down bits and the power sequence of the ATM, PPP and CES service blocks.
#include "chip/chip_util.h"
#include "platform/osal.h"
#include "vq6192/chip.h"

using namespace vq::chip;

namespace {

// Services 0 and 1 are both PPP.
const ServiceBits *service(uint32_t srv) {
    switch (srv) {
        case VQ6192_SRV_PPP0:
        case VQ6192_SRV_PPP1:
            return &kPppService;
        case VQ6192_SRV_ATM:
            return &kAtmService;
        case VQ6192_SRV_CES:
            return &kCesService;
        default:
            return nullptr;
    }
}

uint32_t serviceStatus(uint32_t chip, const ServiceBits &s) {
    return get(chip, s.status);
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_Base_SetPLLPowerDown(uint32_t chip, uint32_t pll, const uint16_t cfg[5]) {
    if (!vq::validChip(chip) || pll > 3 || cfg == nullptr) {
        return baseParaErr(chip);
    }
    for (uint32_t k = 0; k < VQ6192_PLL_PD_CFG_NUM; ++k) {
        if (cfg[k] > 1) {
            return baseParaErr(chip);
        }
    }
    uint32_t reg = VQ6192_ReadReg(chip, kPllCtrlReg[pll]);
    for (uint32_t k = 0; k < VQ6192_PLL_PD_CFG_NUM; ++k) {
        reg = (reg & ~(1u << kPllPdBits[k])) | (static_cast<uint32_t>(cfg[k]) << kPllPdBits[k]);
    }
    VQ6192_WriteReg(chip, kPllCtrlReg[pll], reg);
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_GetPLLPowerDown(uint32_t chip, uint32_t pll, uint16_t cfg[5]) {
    if (!vq::validChip(chip) || pll > 3 || cfg == nullptr) {
        return baseParaErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kPllCtrlReg[pll]);
    for (uint32_t k = 0; k < VQ6192_PLL_PD_CFG_NUM; ++k) {
        cfg[k] = static_cast<uint16_t>(bit(reg, kPllPdBits[k]));
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_SetPLL1TotalPowerDown(uint32_t chip) {
    if (!vq::validChip(chip)) {
        return baseParaErr(chip);
    }
    VQ6192_WriteReg(chip, kPll1CtrlReg, VQ6192_ReadReg(chip, kPll1CtrlReg) | kPll1TotalPowerDown);
    return 0;
}

// Power up (enable 0): power bit on, then wait for every sub-block's status bit before the clock is
// switched on and reset and isolation are released. Power down (enable 1): isolate, reset, stop the
// clock, then remove power and check that the status bits went out.
VQ6192_API uint32_t VQ6192_Base_SetSrvPowerDownEn(uint32_t chip, uint32_t srv, uint32_t enable) {
    const ServiceBits *s = service(srv);
    if (!vq::validChip(chip) || s == nullptr || enable > 1) {
        return baseParaErr(chip);
    }
    const uint32_t on = enable ^ 1u;
    if (enable == 0) {
        VQ6192_WriteRegField(chip, kPowerReg, on, s->power, 1);
        uint32_t stat = 0;
        for (uint32_t poll = 0; poll < kSrvPowerPolls; ++poll) {
            vq::DrvDelayUs(kSrvPowerPollUs);
            stat = serviceStatus(chip, *s);
            if (stat == s->mask) {
                VQ6192_WriteRegField(chip, kModuleClockReg, on, s->clock, 1);
                VQ6192_WriteRegField(chip, kSoftResetReg, enable, s->reset, 1);
                VQ6192_WriteRegField(chip, kIsolationReg, enable, s->isolation, 1);
                return 0;
            }
        }
        const uint32_t err = baseStatus(chip, kErrFailed);
        VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_Base_SetSrvPowerDownEn.  Power On Err srv[%x], stat[%x]  ErrCode[%#x]\r\n",
                      srv, stat, err);
        return err;
    }
    VQ6192_WriteRegField(chip, kIsolationReg, enable, s->isolation, 1);
    VQ6192_WriteRegField(chip, kSoftResetReg, enable, s->reset, 1);
    VQ6192_WriteRegField(chip, kModuleClockReg, on, s->clock, 1);
    VQ6192_WriteRegField(chip, kPowerReg, on, s->power, 1);
    vq::DrvDelayUs(kSrvPowerPollUs);
    const uint32_t stat = serviceStatus(chip, *s);
    if ((stat & s->mask) != 0) {
        const uint32_t err = baseStatus(chip, kErrFailed);
        VQ6192_Printf(
            chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
            "Err. VQ6192_Base_SetSrvPowerDownEn.  Power Down Err srv[%x], stat[%x] ErrCode[%#x]\r\n", srv,
            stat, err);
        return err;
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_GetSrvPowerDownEn(uint32_t chip, uint32_t srv, uint16_t *out) {
    const ServiceBits *s = service(srv);
    if (!vq::validChip(chip) || s == nullptr || out == nullptr) {
        return baseParaErr(chip);
    }
    *out = static_cast<uint16_t>(1u - VQ6192_ReadRegField(chip, kPowerReg, s->power, 1));
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_GetSrvPdStat(uint32_t chip, uint32_t srv, uint16_t *out) {
    const ServiceBits *s = service(srv);
    if (!vq::validChip(chip) || s == nullptr || out == nullptr) {
        return baseParaErr(chip);
    }
    *out = static_cast<uint16_t>(serviceStatus(chip, *s));
    return 0;
}

}  // extern "C"
