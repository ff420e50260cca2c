// CES clock recovery: the sixteen domains' modes, the level-2 and level-1 clock selections and the
// cross-channel differential recovery.
#include "ces/ces_internal.h"

namespace vq::ces {
namespace {

constexpr uint32_t kDomainReg = 0x16380;  // bits 0..1 mode, 2..10 channel, 11..12 rate, 13 PLC, 14..15 kept
constexpr uint32_t kLv2Reg = 0x16360;     // bit 0 timestamp init, 1..5 source code, 6..7 rate type
constexpr uint32_t kLinkDownReg = 0x163E0;
constexpr uint32_t kTsInitNumReg = 0x170E0;  // bits 0..5
constexpr uint32_t kLv1SelReg = 0x3E2C2;     // bit d
constexpr uint32_t kLv1SrcReg = 0x3E2C8;     // + 16 d, when bit d is 1
constexpr uint32_t kLv1IdxReg = 0x3E2CA;     // + 16 d, when bit d is 0
constexpr uint32_t kLv1Stride = 16;
constexpr uint32_t kCrIntEnableReg = 0x14032;
constexpr uint32_t kCrIntActiveReg = 0x14034;
constexpr uint32_t kCrIntTrigReg = 0x14036;
constexpr uint32_t kCrProcessReg = 0x1403A;
constexpr uint32_t kMaxCompNumReg = 0x14048;
constexpr uint32_t kMaxCompSnReg = 0x1404A;
constexpr uint32_t kE3LineClkReg = 0x243E;  // + 2 e3, bit 5
constexpr uint32_t kE3LineClkBit = 5;
constexpr uint32_t kPlcBit = 13;
constexpr uint32_t kModeMask = 0x3FFF;  // bits 0..13; 14..15 kept

constexpr uint32_t kRateE1 = 0;
constexpr uint32_t kRateE3 = 1;
constexpr uint32_t kRateVc4 = 3;

// Software mode to the hardware code and back: CR_DIFF 0, CR_STAMP 1, CR_NONE 3; hardware 2 reads 5.
constexpr uint32_t kHwOfMode[5] = {0, UINT32_MAX, 1, UINT32_MAX, 3};
constexpr uint32_t kModeOfHw[4] = {VQ6192_CES_CR_DIFF, VQ6192_CES_CR_STAMP, 5, VQ6192_CES_CR_NONE};

bool validMode(const VQ6192_CES_CR_MODE_S *m) {
    return m != nullptr && m->eTrMode <= 4 && kHwOfMode[m->eTrMode] != UINT32_MAX &&
           m->wCesChanNo < VQ6192_CES_CHAN_NUM && m->wClkRateMode <= 2 && m->wTrPLCEn <= 1;
}

uint32_t domainReg(uint32_t d) {
    return kDomainReg + 2 * d;
}

// Level-2 source code of (rate type, kind, index); UINT32_MAX where the table has no entry.
uint32_t lv2Code(uint32_t rate, uint32_t kind, uint32_t index) {
    if (kind >= 2 && index != 0) {
        return UINT32_MAX;
    }
    switch (kind) {
        case 0: {
            const uint32_t bound = rate == kRateE1 ? 16 : rate == kRateE3 ? 12 : 4;
            return index < bound ? index : UINT32_MAX;
        }
        case 1:
            return rate == kRateE1 && index < 6 ? 16 + index : UINT32_MAX;
        case 2:
            return 26;
        case 3:
            return rate == kRateVc4 ? UINT32_MAX : 31;
        default:
            return UINT32_MAX;
    }
}

void decodeLv2(uint32_t rate, uint32_t code, uint32_t *kind, uint32_t *index) {
    *index = 0;
    if (rate == kRateE1 && code < 16) {
        *kind = 0;
        *index = code;
    } else if (rate == kRateE1 && code >= 16 && code <= 21) {
        *kind = 1;
        *index = code - 16;
    } else if (rate == kRateE3 && code < 12) {
        *kind = 0;
        *index = code;
    } else if (rate != kRateE1 && rate != kRateE3 && code < 4) {
        *kind = 0;
        *index = code;
    } else if (code == 31 && rate != kRateVc4 && rate != 2) {
        *kind = 3;
    } else {
        *kind = 2;
    }
}

uint32_t getLv2(uint32_t chip, uint32_t d, uint32_t rate, uint32_t *kind, uint32_t *index, uint32_t *flag) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || kind == nullptr || index == nullptr ||
        flag == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kLv2Reg + 2 * d);
    *flag = reg & 1u;
    decodeLv2(rate, reg >> 1 & 0x1Fu, kind, index);
    return 0;
}

uint32_t setBit(uint32_t chip, uint32_t reg, uint32_t bit, uint32_t value) {
    if (!validChip(chip) || value > 1) {
        return paraErr(chip);
    }
    setFlag(chip, reg, bit, value);
    return 0;
}

uint32_t getBit(uint32_t chip, uint32_t reg, uint32_t bit, uint32_t *value) {
    if (!validChip(chip) || value == nullptr) {
        return paraErr(chip);
    }
    *value = VQ6192_ReadRegField(chip, reg, bit, 1);
    return 0;
}

}  // namespace
}  // namespace vq::ces

using namespace vq;
using namespace vq::ces;

extern "C" {

VQ6192_API uint32_t VQ6192_CES_SetCesCRMode(uint32_t chip, uint32_t d, const VQ6192_CES_CR_MODE_S *m) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || !validMode(m)) {
        return paraErr(chip);
    }
    const uint32_t value = kHwOfMode[m->eTrMode] | static_cast<uint32_t>(m->wCesChanNo) << 2 |
                           static_cast<uint32_t>(m->wClkRateMode) << 11 |
                           static_cast<uint32_t>(m->wTrPLCEn) << 13;
    VQ6192_Printf(chip, VQ6192_MODULE_CES, VQ6192_PRINT_NORMAL,
                  "Info: VQ6192_CES_SetCesCRMode(%u,%u) Set CES Channel:[%u] CR Mode:[%u]\r\n", chip, d,
                  static_cast<uint32_t>(m->wCesChanNo), m->eTrMode);
    VQ6192_WriteRegField(chip, domainReg(d), value, 0, 14);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesCRMode(uint32_t chip, uint32_t d, VQ6192_CES_CR_MODE_S *m) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || m == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, domainReg(d)) & kModeMask;
    m->eTrMode = kModeOfHw[reg & 3u];
    m->wCesChanNo = static_cast<uint16_t>(reg >> 2 & 0x1FFu);
    m->wClkRateMode = static_cast<uint16_t>(reg >> 11 & 3u);
    m->wTrPLCEn = static_cast<uint16_t>(reg >> kPlcBit & 1u);
    return 0;
}

// Mode, rate type and PLC only: the bound channel stays.
VQ6192_API uint32_t VQ6192_CES_AddDomain_SetCesCRMode(uint32_t chip, uint32_t d,
                                                      const VQ6192_CES_CR_MODE_S *m) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || !validMode(m)) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, domainReg(d), kHwOfMode[m->eTrMode], 0, 2);
    VQ6192_WriteRegField(chip, domainReg(d), m->wClkRateMode, 11, 2);
    VQ6192_WriteRegField(chip, domainReg(d), m->wTrPLCEn, kPlcBit, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetCesCRCompensationEnable(uint32_t chip, uint32_t d, uint32_t en) {
    return d >= VQ6192_CES_CR_DOMAIN_NUM ? paraErr(chip) : setBit(chip, domainReg(d), kPlcBit, en);
}

VQ6192_API uint32_t VQ6192_CES_GetCesCRCompensationEnable(uint32_t chip, uint32_t d, uint32_t *en) {
    return d >= VQ6192_CES_CR_DOMAIN_NUM ? paraErr(chip) : getBit(chip, domainReg(d), kPlcBit, en);
}

VQ6192_API uint32_t VQ6192_CES_SetCesCompensationEnable(uint32_t chip, uint32_t ch, uint32_t en) {
    return !validChan(ch) ? paraErr(chip) : setBit(chip, chanReg(kChanCtrlReg, ch), kCompensationBit, en);
}

VQ6192_API uint32_t VQ6192_CES_GetCesCompensationEnable(uint32_t chip, uint32_t ch, uint32_t *en) {
    return !validChan(ch) ? paraErr(chip) : getBit(chip, chanReg(kChanCtrlReg, ch), kCompensationBit, en);
}

VQ6192_API uint32_t VQ6192_CES_SetCesCRIntMode(uint32_t chip, uint32_t enable, uint32_t activeMode,
                                               uint32_t trigMode) {
    if (!validChip(chip) || enable > 1 || activeMode > 1 || trigMode > 1) {
        return paraErr(chip);
    }
    setFlag(chip, kCrIntEnableReg, 0, enable);
    setFlag(chip, kCrIntActiveReg, 0, activeMode);
    setFlag(chip, kCrIntTrigReg, 0, trigMode);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesCRIntMode(uint32_t chip, uint16_t *enable, uint16_t *activeMode,
                                               uint16_t *trigMode) {
    if (!validChip(chip) || enable == nullptr || activeMode == nullptr || trigMode == nullptr) {
        return paraErr(chip);
    }
    *enable = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kCrIntEnableReg, 0, 1));
    *activeMode = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kCrIntActiveReg, 0, 1));
    *trigMode = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kCrIntTrigReg, 0, 1));
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SelectCesCRProcess(uint32_t chip, uint32_t sel) {
    return setBit(chip, kCrProcessReg, 0, sel);
}

VQ6192_API uint32_t VQ6192_CES_GetCesCRProcess(uint32_t chip, uint32_t *sel) {
    return getBit(chip, kCrProcessReg, 0, sel);
}

VQ6192_API uint32_t VQ6192_CES_SetCesCRMaxCompensationThld(uint32_t chip, uint32_t num, uint32_t sn) {
    if (!validChip(chip) || num >= 32767 || sn >= 32767) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kMaxCompNumReg, num, 0, 15);
    VQ6192_WriteRegField(chip, kMaxCompSnReg, sn, 0, 15);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesCRMaxCompensationThld(uint32_t chip, uint16_t *num, uint16_t *sn) {
    if (!validChip(chip) || num == nullptr || sn == nullptr) {
        return paraErr(chip);
    }
    *num = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kMaxCompNumReg, 0, 15));
    *sn = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kMaxCompSnReg, 0, 15));
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetCesCRTimeStampInitMode(uint32_t chip, uint32_t d, uint32_t num,
                                                         uint32_t mode) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || num >= 64 || mode > 1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kTsInitNumReg + 2 * d, num, 0, 6);
    setFlag(chip, kLv2Reg + 2 * d, 0, mode);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesCRTimeStampInitMode(uint32_t chip, uint32_t d, uint32_t *num,
                                                         uint32_t *mode) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || num == nullptr || mode == nullptr) {
        return paraErr(chip);
    }
    *num = VQ6192_ReadRegField(chip, kTsInitNumReg + 2 * d, 0, 6);
    *mode = VQ6192_ReadRegField(chip, kLv2Reg + 2 * d, 0, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetCesTrLinkDownAlmThld(uint32_t chip, uint32_t d, uint32_t thld) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || thld > 0xFFFF) {
        return paraErr(chip);
    }
    VQ6192_WriteReg(chip, kLinkDownReg + 2 * d, thld);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesTrLinkDownAlmThld(uint32_t chip, uint32_t d, uint32_t *thld) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || thld == nullptr) {
        return paraErr(chip);
    }
    *thld = VQ6192_ReadReg(chip, kLinkDownReg + 2 * d);
    return 0;
}

// Rate type 2 has no row of its own: its code follows the kinds without an index check.
VQ6192_API uint32_t VQ6192_CES_SetIngCRLv2Clk(uint32_t chip, uint32_t d, const VQ6192_CES_CR_LV2_CLK_S *cfg) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || cfg == nullptr || cfg->ulTsInit > 1 ||
        cfg->ulRateType > 3 || cfg->ulSrcKind > 3) {
        return paraErr(chip);
    }
    constexpr uint32_t kUncheckedCode[4] = {0, 16, 26, 31};
    const uint32_t code = cfg->ulRateType == 2
                              ? (kUncheckedCode[cfg->ulSrcKind] + (cfg->ulSrcKind < 2 ? cfg->ulIndex : 0))
                              : lv2Code(cfg->ulRateType, cfg->ulSrcKind, cfg->ulIndex);
    if (code == UINT32_MAX) {
        return paraErr(chip);
    }
    // Flag and rate type first (source code bits and bits 8..15 kept), then the source code.
    const uint32_t reg = kLv2Reg + 2 * d;
    VQ6192_WriteReg(chip, reg, (VQ6192_ReadReg(chip, reg) & 0xFF3Eu) | cfg->ulTsInit | cfg->ulRateType << 6);
    VQ6192_WriteRegField(chip, reg, code, 1, 5);
    return 0;
}

// A rate type with bit 7 set reads as 3 (VC-4).
VQ6192_API uint32_t VQ6192_CES_GetIngCRLv2Clk(uint32_t chip, uint32_t d, VQ6192_CES_CR_LV2_CLK_S *cfg) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || cfg == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kLv2Reg + 2 * d);
    const uint32_t rate = (reg & 0x80u) != 0 ? kRateVc4 : reg >> 6 & 3u;
    cfg->ulRateType = rate;
    cfg->ulTsInit = reg & 1u;
    decodeLv2(rate, reg >> 1 & 0x1Fu, &cfg->ulSrcKind, &cfg->ulIndex);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetIngCRLv2E1Clk(uint32_t chip, uint32_t d, uint32_t *kind, uint32_t *index,
                                                uint32_t *flag) {
    return getLv2(chip, d, kRateE1, kind, index, flag);
}

VQ6192_API uint32_t VQ6192_CES_GetIngCRLv2E3Clk(uint32_t chip, uint32_t d, uint32_t *kind, uint32_t *index,
                                                uint32_t *flag) {
    return getLv2(chip, d, kRateE3, kind, index, flag);
}

VQ6192_API uint32_t VQ6192_CES_GetIngCRLv2VC4Clk(uint32_t chip, uint32_t d, uint32_t *kind, uint32_t *index,
                                                 uint32_t *flag) {
    return getLv2(chip, d, kRateVc4, kind, index, flag);
}

VQ6192_API uint32_t VQ6192_CES_SetIngCRLv1E1Clk(uint32_t chip, uint32_t d, uint32_t en, uint32_t kind,
                                                uint32_t index, uint32_t flag) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || en > 1 || kind >= 4 || index >= 84 || flag > 1 ||
        (en == 0 && kind != 0)) {
        return paraErr(chip);
    }
    setFlag(chip, kLv1SelReg, d, en);
    VQ6192_WriteReg(chip, kLv1SrcReg + kLv1Stride * d, index + kind * 128 + flag * 512);
    if (kind == 0) {
        VQ6192_WriteReg(chip, kLv1IdxReg + kLv1Stride * d, index + flag * 128);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetIngCRLv1E1Clk(uint32_t chip, uint32_t d, uint32_t *en, uint32_t *kind,
                                                uint32_t *index, uint32_t *flag) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || en == nullptr || kind == nullptr ||
        index == nullptr || flag == nullptr) {
        return paraErr(chip);
    }
    *en = VQ6192_ReadRegField(chip, kLv1SelReg, d, 1);
    if (*en == 0) {
        const uint32_t reg = VQ6192_ReadReg(chip, kLv1IdxReg + kLv1Stride * d);
        *kind = 0;
        *index = reg & 0x7Fu;
        *flag = reg >> 7 & 1u;
    } else {
        const uint32_t reg = VQ6192_ReadReg(chip, kLv1SrcReg + kLv1Stride * d);
        *kind = reg >> 7 & 3u;
        *index = reg & 0x7Fu;
        *flag = reg >> 9 & 1u;
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetIngCRLv1E3Clk(uint32_t chip, uint32_t e3, uint32_t en) {
    return e3 >= 12 ? paraErr(chip) : setBit(chip, kE3LineClkReg + 2 * e3, kE3LineClkBit, en);
}

VQ6192_API uint32_t VQ6192_CES_GetIngCRLv1E3Clk(uint32_t chip, uint32_t e3, uint32_t *en) {
    return e3 >= 12 ? paraErr(chip) : getBit(chip, kE3LineClkReg + 2 * e3, kE3LineClkBit, en);
}

VQ6192_API uint32_t VQ6192_CES_SetHtb2BdPllChannel(uint32_t chip, uint32_t d) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM) {
        return paraErr(chip);
    }
    VQ6192_WriteReg(chip, kLv1IdxReg + kLv1Stride * d, 128 + d);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetBdPllClkSrc(uint32_t chip, uint32_t d, uint32_t sel) {
    return d >= VQ6192_CES_CR_DOMAIN_NUM ? paraErr(chip) : setBit(chip, kLv1SelReg, d, sel);
}

// Choice: the domain, channel and clock are checked against the registers and table they address
// (domain below 16, channel below 352, clock below 128); an enable other than 0 or 1 does nothing.
VQ6192_API uint32_t VQ6192_CES_SetXcrPro(uint32_t chip, uint32_t clk, uint32_t d, uint32_t ch, uint32_t en) {
    if (!validChip(chip) || d >= VQ6192_CES_CR_DOMAIN_NUM || !validChan(ch) || clk >= 128) {
        return paraErr(chip);
    }
    if (en > 1) {
        return 0;
    }
    constexpr uint32_t kTxCw = vq::tableId("Cestxcwrtp");
    Entry e;
    if (readEntry(chip, kTxCw, ch, e) != 0) {
        return status(chip, VQ6192_CES_ERR_STEP);
    }
    if (en == 1) {
        setField(e.w, kTxLtssel, d);
    }
    setField(e.w, kTxDiffclken, en);
    if (writeEntry(chip, kTxCw, ch, e) != 0) {
        return status(chip, VQ6192_CES_ERR_STEP);
    }
    VQ6192_WriteRegField(chip, kLv2Reg + 2 * d, en == 1 ? d : 0, 1, 5);
    VQ6192_WriteRegField(chip, domainReg(d), en == 1 ? 0 : 3, 0, 2);
    VQ6192_WriteReg(chip, kLv1IdxReg + kLv1Stride * d, en == 1 ? clk + 128 : 0);
    return 0;
}

}  // extern "C"
