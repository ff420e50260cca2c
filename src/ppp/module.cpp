// PPP module-wide settings and the module initialisation run at chip bring-up.
#include "ppp/ppp_internal.h"

using namespace vq::ppp;

namespace {

constexpr uint32_t kInit1220AValue = 255;
constexpr uint32_t kInit11010Value = 636;
constexpr uint32_t kTestSendTimeSlotDefault = 9;
constexpr uint32_t kCobcChannels = 84;
constexpr uint32_t kCobcModeDefault = 2;
constexpr uint32_t kCapSlots = VQ6192_DDR_CAP_MAX;

constexpr VQ6192_PPP_WATERMARK_S kZeroWaterMark{0, 0, 0};
constexpr VQ6192_PPP_WATERMARK_S kLinkWaterMark{1000, 800, 1200};

// Egress MC queue watermarks of a bundle after initialisation: queues 2 and 7 are deeper.
constexpr VQ6192_MP_TX_WATERMARK_S kBundleTxWaterMark{
    768, 192, 192, 192, 192, 768, 192, 192,  // drops, queue 7 first
    64,  128,                                // queue 0
    64,  128, 256, 512, 64,  128, 64,  128, 64, 128, 64, 128, 256, 512,
};

uint32_t initVc4Channels(uint32_t chip) {
    uint32_t rc = 0;
    for (uint32_t ch = 0; ch < VQ6192_SCH_C4_PPP_MAX; ++ch) {
        rc |= VQ6192_PPP_SetMpVc4En(chip, ch, 1);
        rc |= VQ6192_PPP_SetPppTxLinkWaterMark(chip, ch, &kZeroWaterMark);
        rc |= VQ6192_PPP_SetPppACFCEnable(chip, ch, 1);
        rc |= VQ6192_PPP_SetPppPFCEnable(chip, ch, 1);
        rc |= VQ6192_PPP_SetMpVc4En(chip, ch, 0);
    }
    return rc;
}

uint32_t initBundle(uint32_t chip, uint32_t b) {
    uint32_t rc = VQ6192_PPP_SetMpRxWaterMark(chip, b, 1024, 512);
    rc |= VQ6192_PPP_SetMpTxWaterMark(chip, b, &kBundleTxWaterMark);
    rc |= VQ6192_PPP_SetMpSnFormat(chip, b, VQ6192_MP_SN_LONG, VQ6192_MP_SN_LONG);
    rc |= VQ6192_PPP_SetMpPFCEnable(chip, b, 1);
    rc |= VQ6192_PPP_SetMpTimeout(chip, b, VQ6192_MAX_MP_RGRP_TIMEOUT - 1);
    for (uint32_t q = 0; q < VQ6192_MAX_MC_QUE_NUM; ++q) {
        rc |= VQ6192_PPP_SetMpQueWeight(chip, b, q, 0);
    }
    return rc;
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_PPP_SetMpMode(uint32_t chip, uint32_t enMpMode) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, enMpMode < VQ6192_PPP_MODE_BUTT);
    setReg(chip, kMpMode, enMpMode);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpMode : enMpMode:[%d]\n", enMpMode);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetMpAbortThld(uint32_t chip, uint16_t usThld) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, usThld < VQ6192_MP_ABORT_THLD);
    setReg(chip, kMpAbortThld, usThld);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpAbortThld : usThld:[%d]\n", usThld);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetMpAbortThld(uint32_t chip, uint16_t *pusThld) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pusThld != NULL);
    *pusThld = static_cast<uint16_t>(reg(chip, kMpAbortThld));
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppUnidentifyMode(uint32_t chip, uint32_t enMode) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, enMode < VQ6192_PPP_UIDF_BUTT);
    setReg(chip, kUnidentifyMode, enMode);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppUnidentifyMode : enMode:[%d]\n", enMode);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppUnidentifyMode(uint32_t chip, uint32_t *penMode) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, penMode != NULL);
    *penMode = reg(chip, kUnidentifyMode);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppESPTEnable(uint32_t chip, uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    setReg(chip, kEsptEnable, ulEnable);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppESPTEnable : ulEnable:[%d]\n", ulEnable);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppESPTEnable(uint32_t chip, uint32_t *pulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pulEnable != NULL);
    *pulEnable = reg(chip, kEsptEnable);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppCfgPrtcEn(uint32_t chip, uint16_t usValue, uint16_t usEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, usEnable <= VQ6192_PPP_ENABLE);
    VQ6192_WriteReg(chip, kCfgPrtcValue, usValue);
    setReg(chip, kCfgPrtcEnable, usEnable);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppCfgPrtcEn : usValue:[0x%x] usEnable:[%d]\n", usValue, usEnable);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppCfgPrtcEn(uint32_t chip, uint16_t *pusValue, uint16_t *pusEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pusValue != NULL);
    VQ6192_PPP_CHECK(chip, pusEnable != NULL);
    *pusValue = static_cast<uint16_t>(VQ6192_ReadReg(chip, kCfgPrtcValue));
    *pusEnable = static_cast<uint16_t>(reg(chip, kCfgPrtcEnable));
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppRxCfgPrtcCnt(uint32_t chip, uint32_t *pulCnt) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pulCnt != NULL);
    const uint32_t low = VQ6192_ReadReg(chip, kCfgPrtcCntLow);
    *pulCnt = (VQ6192_ReadReg(chip, kCfgPrtcCntHigh) << 16) + low;
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppDCNEnable(uint32_t chip, uint32_t ulDCNEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulDCNEnable <= VQ6192_PPP_ENABLE);
    setReg(chip, kDcnEnable, ulDCNEnable);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppDCNEnable : ulDCNEnable:[%d]\n", ulDCNEnable);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppDCNEnable(uint32_t chip, uint32_t *pulDCNEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pulDCNEnable != NULL);
    *pulDCNEnable = reg(chip, kDcnEnable);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppDCNConfig(uint32_t chip, uint32_t ulDCNLabel, uint32_t ulDCNMask) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_WriteReg(chip, kDcnLabelHigh, ulDCNLabel >> 16);
    VQ6192_WriteReg(chip, kDcnLabelLow, ulDCNLabel & 0xFFFFu);
    VQ6192_WriteReg(chip, kDcnMaskHigh, ulDCNMask >> 16);
    VQ6192_WriteReg(chip, kDcnMaskLow, ulDCNMask & 0xFFFFu);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppDCNConfig : ulDCNLabel:[0x%x] ulDCNMask:[0x%x]\n", ulDCNLabel,
                     ulDCNMask);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppDCNConfig(uint32_t chip, uint32_t *pulDCNLabel, uint32_t *pulDCNMask) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pulDCNLabel != NULL);
    VQ6192_PPP_CHECK(chip, pulDCNMask != NULL);
    *pulDCNLabel = VQ6192_ReadReg(chip, kDcnLabelHigh) << 16 | VQ6192_ReadReg(chip, kDcnLabelLow);
    *pulDCNMask = VQ6192_ReadReg(chip, kDcnMaskHigh) << 16 | VQ6192_ReadReg(chip, kDcnMaskLow);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppDFifoWaterMark(uint32_t chip, uint32_t ulWaterMarkH,
                                                    uint32_t ulWaterMarkL) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulWaterMarkL > VQ6192_PPP_DISABLE);
    VQ6192_PPP_CHECK(chip, ulWaterMarkL < ulWaterMarkH);
    VQ6192_PPP_CHECK(chip, ulWaterMarkH < VQ6192_MAX_DFIFO_ALM_LC);
    setReg(chip, kDFifoHigh, ulWaterMarkH);
    setReg(chip, kDFifoLow, ulWaterMarkL);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppDFifoWaterMark : ulWaterMarkH:[%d] ulWaterMarkL:[%d]\n",
                     ulWaterMarkH, ulWaterMarkL);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppDFifoWaterMark(uint32_t chip, uint32_t *pulWaterMarkH,
                                                    uint32_t *pulWaterMarkL) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pulWaterMarkH != NULL);
    VQ6192_PPP_CHECK(chip, pulWaterMarkL != NULL);
    *pulWaterMarkH = reg(chip, kDFifoHigh);
    *pulWaterMarkL = reg(chip, kDFifoLow);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppMpSchMode(uint32_t chip, uint32_t ePppSchMode, uint32_t eMpSchMode) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ePppSchMode < VQ6192_PPPMP_SCH_MC);
    VQ6192_PPP_CHECK(chip, (eMpSchMode < VQ6192_PPPMP_SCH_MODE_BUTT) && (eMpSchMode > VQ6192_PPPMP_SCH_PPP));
    setReg(chip, {kSchModeReg, 0, 1}, ePppSchMode);
    setReg(chip, {kSchModeReg, 1, 1}, eMpSchMode & 1u);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppMpSchMode : ePppSchMode:[%d] eMpSchMode:[%d]\n", ePppSchMode,
                     eMpSchMode);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppMpSchMode(uint32_t chip, uint32_t *pePppSchMode, uint32_t *peMpSchMode) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pePppSchMode != NULL);
    VQ6192_PPP_CHECK(chip, peMpSchMode != NULL);
    // The chip's scheduling mode is not read back: PPP mode 0 and MP mode 1 are reported.
    *pePppSchMode = 0;
    *peMpSchMode = 1;
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_InitPppModule(uint32_t chip, uint32_t ulMode) {
    VQ6192_PPP_CHECK_CHIP(chip);
    if (ulMode != 1) {
        return 0;
    }
    uint32_t rc = VQ6192_PPP_SetMpMode(chip, 1);
    rc |= VQ6192_PPP_SetPppMpSchMode(chip, 0, 3);
    setReg(chip, kVc4Enable, 0xF);
    rc |= initVc4Channels(chip);

    // The chip needs these three written once; their meaning is not documented.
    VQ6192_WriteReg(chip, kInitReg1220A, kInit1220AValue);
    setReg(chip, kInitReg1220C, 0);
    rc |= VQ6192_PPP_SetPppUnidentifyMode(chip, 2);

    for (uint32_t ch = 0; ch < VQ6192_NONE_SCH_PPP_MAX; ++ch) {
        rc |= VQ6192_PPP_SetPppDdrCapChan(chip, ch, ch % kCapSlots, 1);
    }
    for (uint32_t ch = 0; ch < VQ6192_NONE_SCH_PPP_MAX; ++ch) {
        rc |= VQ6192_PPP_SetPppTxLinkWaterMark(chip, ch, &kLinkWaterMark);
        rc |= VQ6192_PPP_SetPppACFCEnable(chip, ch, 1);
        rc |= VQ6192_PPP_SetPppPFCEnable(chip, ch, 1);
    }
    for (uint32_t b = 0; b < VQ6192_SCH_MP_MAX; ++b) {
        rc |= initBundle(chip, b);
    }
    for (uint32_t ch = 0; ch < VQ6192_SCH_MP_MAX; ++ch) {
        rc |= VQ6192_PPP_SetPppTestRxEnable(chip, ch, 1);
    }
    VQ6192_WriteReg(chip, kTestSendTimeSlot, kTestSendTimeSlotDefault);
    setReg(chip, kInitReg11010, kInit11010Value);
    for (uint32_t n = 0; n < kCobcChannels; ++n) {
        rc |= VQ6192_PPP_SetCobcMode(chip, n, kCobcModeDefault);
    }
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_InitPppModule : ulMode:[%d] Return:[0x%x]\n", ulMode, rc);
    return reportSteps(chip, "VQ6192_PPP_InitPppModule", rc);
}

}  // extern "C"
