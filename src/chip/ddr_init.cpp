// DDR start-up: address map, PHY lanes, controller reset and timing, the ready poll, write-levelling
// correction and the training check with its fallback timing.
#include "chip/chip_util.h"
#include "chip/init_regs.h"
#include "platform/osal.h"
#include "vq6192/chip.h"

using namespace vq::chip;

namespace {

// A 32-bit controller register: low half first, then the high half.
void pair(uint32_t chip, uint32_t reg, uint32_t low, uint32_t high) {
    VQ6192_WriteReg(chip, reg, low);
    VQ6192_WriteReg(chip, reg + 2, high);
}

// Up to three polls, g_ulVQ6192DDRWaitTime apart, for the controller to leave initialisation.
bool waitReady(uint32_t chip) {
    for (uint32_t poll = 0; poll < kDdrReadyPolls; ++poll) {
        vq::DrvDelayUs(g_ulVQ6192DDRWaitTime);
        if (bit(VQ6192_ReadReg(chip, kDdrStatusReg), kDdrBusyBit) == 0) {
            return true;
        }
    }
    return false;
}

void phyLanes(uint32_t chip, uint32_t value) {
    for (uint32_t reg : kDdrPhyLanes) {
        pair(chip, reg, value, 0);
    }
}

void programController(uint32_t chip, bool option) {
    uint32_t cl = g_ulVq6192DdrCl;
    if (cl >= VQ6192_DDR_CL_NUM) {
        VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_Base_InitDDR.  g_wVq6192DdrCl[%#x] Err. g_wVq6192DdrCl set to 6 \r\n", cl);
        cl = kDdrClDefault;
        g_ulVq6192DdrCl = cl;
    }
    const uint32_t x = g_aulVq6192CL_HL_Cfg[cl] & 0xFFu;
    pair(chip, kDdrMode0, ((x * 8) & 0x70u) | (x & 1u) | 0x1700u, 4);
    pair(chip, kDdrMode1, 0, 0);
    pair(chip, kDdrMode2, 0x0611, 0x8140);
    pair(chip, kDdrMode3, 0x0023, 0);
    pair(chip, kDdrTiming0, 0x1710, 0xC577);
    pair(chip, kDdrTiming1, ((cl << 8) & 0xF00u) | (option ? 0x5069u : 0x5041u), 0xFF52);
    pair(chip, kDdrRefresh, (0x5000u + g_ulVq6192DdrTaref) & 0xFFFFu, 0x8471);
    pair(chip, kDdrTiming3, 0xF4F4, 0xFFDF);
    pair(chip, kDdrPhyCtrl, 0x0103, 0x0F10);
    pair(chip, kDdrOdt, 1, 0);
    pair(chip, kDdrPhyMode, 0x22, 0);
    pair(chip, kDdrStart, 1, 0);
    vq::DrvDelayUs(kDdrStepUs);
}

// Lanes whose write-levelling result is not clean (any bit of the result register set).
uint32_t lanesToCorrect(uint32_t chip) {
    uint32_t lanes = 0;
    for (uint32_t k = 0; k < kDdrWriteLevelLanes; ++k) {
        if (VQ6192_ReadReg(chip, kDdrWriteLevel + 2 + 4 * k) != 0) {
            lanes |= 1u << k;
        }
    }
    return lanes;
}

// Clears the failed lanes' levelling results and restarts the controller with levelling off.
void correctWriteLevel(uint32_t chip, uint32_t lanes) {
    VQ6192_WriteReg(chip, kDdrMode3, VQ6192_ReadReg(chip, kDdrMode3) & 0xFFDFu);
    VQ6192_WriteReg(chip, kDdrMode3 + 2, 0);
    for (uint32_t k = 0; k < kDdrWriteLevelLanes; ++k) {
        if (bit(lanes, k) != 0) {
            pair(chip, kDdrWriteLevel + 4 * k, 0, 0);
        }
    }
    pair(chip, kDdrRefresh, 0x5000, 0x8471);
    pair(chip, kDdrReset, 0, 0);
    pair(chip, kDdrDfiReset, 1, 0);
    const uint32_t a = VQ6192_ReadReg(chip, kDdrPhyLane0) & 0xFFFEu;
    const uint32_t b = VQ6192_ReadReg(chip, kDdrPhyLane0 + 2);
    pair(chip, kDdrPhyLane0, a, b);
    vq::DrvDelayUs(g_ulVQ6192DDRWaitTime);
    pair(chip, kDdrPhyLane0, a | 1u, b);
    vq::DrvDelayUs(g_ulVq6192DdrResetDelayLaterTime);
    pair(chip, kDdrPhyCtrl, 0x0101, 0x0F10);
    pair(chip, kDdrReset, 1, 0);
    vq::DrvDelayUs(g_ulVq6192DdrResetDelayTime);
    pair(chip, kDdrDfiReset, 0, 0);
    vq::DrvDelayUs(kDdrStepUs);
    pair(chip, kDdrPhyCtrl, 0x0103, 0x0F10);
    vq::DrvDelayUs(kDdrStepUs);
    pair(chip, kDdrStart, 1, 0);
    pair(chip, kDdrRefresh, 0x5061, 0x8471);
    vq::DrvDelayUs(kDdrStepUs);
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_Base_InitDDR(uint32_t chip, uint8_t *failed, const void *ddrOption) {
    if (!vq::validChip(chip) || failed == nullptr) {
        return baseParaErr(chip);
    }
    const bool option = ddrOption != nullptr;
    *failed = 1;

    for (uint32_t k = 0; k < VQ6192_DDR_BADDR_NUM; ++k) {
        VQ6192_WriteRegField(chip, kDdrAddrMapReg + kDdrAddrMapStride * k, g_ausVq6192DDRBAddr[k], 0,
                             kDdrAddrMapWidth);
    }
    pair(chip, kDdrDriveReg, 0x0067, 0);
    pair(chip, kDdrConfig, option ? 0x0142 : 0x0122, 0);

    phyLanes(chip, 0x56);
    vq::DrvDelayUs(kDdrPhySettleUs);
    phyLanes(chip, 0x57);
    vq::DrvDelayUs(kDdrStepUs);

    pair(chip, kDdrRefresh, 0x5000, 0x8471);
    pair(chip, kDdrReset, 0, 0);
    vq::DrvDelayUs(g_ulVq6192DdrResetDelayTime);
    pair(chip, kDdrReset, 1, 0);
    vq::DrvDelayUs(g_ulVq6192DdrResetDelayLaterTime);
    pair(chip, kDdrDfiReset, 0, 0);
    vq::DrvDelayUs(kDdrStepUs);

    programController(chip, option);

    const uint32_t timeout = baseStatus(chip, kErrTimeout);
    if (!waitReady(chip)) {
        VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_Base_InitDDR.  TimeOut \r\n");
        return timeout;
    }
    *failed = 0;

    const uint32_t lanes = lanesToCorrect(chip);
    if (lanes != 0) {
        correctWriteLevel(chip, lanes);
        if (!waitReady(chip)) {
            // The trace shows the lanes that needed correction (bit k: lane k).
            VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
                          "Err. InitDDR.  DDR Init Err in write level [%x] TimeOut\r\n", lanes);
            *failed = 1;
            return timeout;
        }
    }

    pair(chip, kDdrMode2, 0x0611, 0x8141);
    vq::DrvDelayUs(g_ulVQ6192DDRWaitTime);

    const uint32_t training = VQ6192_ReadReg(chip, kDdrTraining);
    if (((training >> kDdrTrainingResult.bit) & 0xFu) < kDdrTrainingGood) {
        VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_Base_InitDDR.  DDR Init Dtr Err[%x]. \r\n", training);
        if (g_vq6192[chip].ulSupportProductFlag != 1) {
            *failed = 1;
            return baseStatus(chip, kErrFailed);
        }
        pair(chip, kDdrPhyCtrl, 0x0101, 0x0F10);
        VQ6192_WriteReg(chip, kDdrFallbackA, 2);
        VQ6192_WriteReg(chip, kDdrFallbackB, 2);
        VQ6192_WriteReg(chip, kDdrFallbackC, 0xAA);
        pair(chip, kDdrFallbackD, 0x2222, 0);
    }
    return 0;
}

}  // extern "C"
