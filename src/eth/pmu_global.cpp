// Global header attributes and controls of the packet engine, and the Ethernet side's initialisation.
#include <cstring>

#include "eth/eth_util.h"

using namespace vq::eth;

namespace {

// Pattern control bits in the order of the record: bit 14 down to bit 0.
uint32_t ptnBit(uint32_t field) {
    return kPtnCtrlFields - 1 - field;
}

// Protocol pairs every chip starts with, both directions and active.
struct ProtoPair {
    uint32_t pppPro;
    uint32_t ethType;
};
// clang-format off
constexpr ProtoPair kInitPairs[] = {
    {0x0021, 0x0800},  // IPv4
    {0x0281, 0x8847},  // MPLS unicast
    {0x0023, 0x8000},
    {0x0057, 0x86DD},  // IPv6
};
// clang-format on

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ETH_SetPMUIpGlbAttr(uint32_t chip, const VQ6192_ETH_PMU_IP_GLB_ATTR_S *attr) {
    if (!vq::validChip(chip) || attr == nullptr || attr->byVer >= 16 || attr->byIHL >= 16 ||
        attr->byFlags >= 8 || attr->wFrmOffset >= 8192) {
        return ethParaErr(chip);
    }
    set(chip, kIpVer, attr->byVer);
    set(chip, kIpIhl, attr->byIHL);
    VQ6192_WriteReg(chip, kIpIdentReg, attr->wIdentification);
    set(chip, kIpFlags, attr->byFlags);
    set(chip, kIpFrmOffset, attr->wFrmOffset);
    VQ6192_WriteReg(chip, kIpDaChkHighReg, attr->dwEgIpDaChkAddr >> 16);
    VQ6192_WriteReg(chip, kIpDaChkLowReg, attr->dwEgIpDaChkAddr & 0xFFFFu);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetPMUIpGlbAttr(uint32_t chip, VQ6192_ETH_PMU_IP_GLB_ATTR_S *attr) {
    if (!vq::validChip(chip) || attr == nullptr) {
        return ethParaErr(chip);
    }
    attr->byVer = static_cast<uint8_t>(get(chip, kIpVer));
    attr->byIHL = static_cast<uint8_t>(get(chip, kIpIhl));
    attr->wIdentification = static_cast<uint16_t>(VQ6192_ReadReg(chip, kIpIdentReg));
    attr->byFlags = static_cast<uint8_t>(get(chip, kIpFlags));
    attr->wFrmOffset = static_cast<uint16_t>(get(chip, kIpFrmOffset));
    attr->dwEgIpDaChkAddr =
        VQ6192_ReadReg(chip, kIpDaChkHighReg) << 16 | VQ6192_ReadReg(chip, kIpDaChkLowReg);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetPMUGreGlbAttr(uint32_t chip, const VQ6192_ETH_PMU_GRE_GLB_ATTR_S *attr) {
    if (!vq::validChip(chip) || attr == nullptr || attr->byVer >= 8) {
        return ethParaErr(chip);
    }
    set(chip, kGreVer, attr->byVer);
    VQ6192_WriteReg(chip, kGreProtType0Reg, attr->wProtType0);
    VQ6192_WriteReg(chip, kGreProtType1Reg, attr->wProtType1);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetPMUGreGlbAttr(uint32_t chip, VQ6192_ETH_PMU_GRE_GLB_ATTR_S *attr) {
    if (!vq::validChip(chip) || attr == nullptr) {
        return ethParaErr(chip);
    }
    attr->byVer = static_cast<uint8_t>(get(chip, kGreVer));
    attr->wProtType0 = static_cast<uint16_t>(VQ6192_ReadReg(chip, kGreProtType0Reg));
    attr->wProtType1 = static_cast<uint16_t>(VQ6192_ReadReg(chip, kGreProtType1Reg));
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetPMUUdpSPort(uint32_t chip, uint32_t port) {
    if (!vq::validChip(chip) || port > 0xFFFF) {
        return ethParaErr(chip);
    }
    VQ6192_WriteReg(chip, kUdpSrcPortReg, port);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetPMUUdpSPort(uint32_t chip, uint32_t *port) {
    if (!vq::validChip(chip) || port == nullptr) {
        return ethParaErr(chip);
    }
    *port = VQ6192_ReadReg(chip, kUdpSrcPortReg);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetPmuPtnCtrl(uint32_t chip, const VQ6192_ETH_PMU_PTN_S *sel,
                                             const VQ6192_ETH_PMU_PTN_S *val) {
    if (!vq::validChip(chip) || sel == nullptr || val == nullptr) {
        return ethParaErr(chip);
    }
    uint8_t s[kPtnCtrlFields], v[kPtnCtrlFields];
    static_assert(sizeof s == sizeof *sel);
    std::memcpy(s, sel, sizeof s);
    std::memcpy(v, val, sizeof v);
    for (uint32_t k = 0; k < kPtnCtrlFields; ++k) {
        if (s[k] > 1 || (s[k] == 1 && v[k] > 1)) {
            return ethParaErr(chip);
        }
    }
    uint32_t reg = VQ6192_ReadReg(chip, kPtnCtrlReg);
    for (uint32_t k = 0; k < kPtnCtrlFields; ++k) {
        if (s[k] == 1) {
            reg = (reg & ~(1u << ptnBit(k))) | static_cast<uint32_t>(v[k]) << ptnBit(k);
        }
    }
    VQ6192_WriteReg(chip, kPtnCtrlReg, reg);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetPmuPtnCtrl(uint32_t chip, VQ6192_ETH_PMU_PTN_S *val) {
    if (!vq::validChip(chip) || val == nullptr) {
        return ethParaErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kPtnCtrlReg);
    uint8_t v[kPtnCtrlFields];
    for (uint32_t k = 0; k < kPtnCtrlFields; ++k) {
        v[k] = static_cast<uint8_t>((reg >> ptnBit(k)) & 1u);
    }
    std::memcpy(val, v, sizeof v);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetVLANDisable(uint32_t chip, uint32_t disable) {
    if (!vq::validChip(chip) || !flag(disable)) {
        return ethParaErr(chip);
    }
    set(chip, kVlanDisable, disable);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetVLANDisable(uint32_t chip, uint32_t *disable) {
    if (!vq::validChip(chip) || disable == nullptr) {
        return ethParaErr(chip);
    }
    *disable = get(chip, kVlanDisable);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetPppCpuInsertEnable(uint32_t chip, uint32_t insertEn, uint32_t toCpuEn) {
    if (!vq::validChip(chip) || !flag(insertEn) || !flag(toCpuEn)) {
        return ethParaErr(chip);
    }
    set(chip, kCpuInsertEn, insertEn);
    set(chip, kToCpuEn, toCpuEn);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetMpPppPauseEn(uint32_t chip, uint32_t srvType, uint32_t enable) {
    if (!vq::validChip(chip) || srvType >= VQ6192_ETH_SRV_MAX || !flag(enable)) {
        return ethParaErr(chip);
    }
    set(chip, kMpPauseSel, srvType == VQ6192_ETH_SRV_PPP ? 0 : 1);
    set(chip, kPtnPauseEn, enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetMpPppPauseEn(uint32_t chip, uint32_t *mpSel, uint32_t *enable) {
    if (!vq::validChip(chip) || mpSel == nullptr || enable == nullptr) {
        return ethParaErr(chip);
    }
    *mpSel = get(chip, kMpPauseSel);
    *enable = get(chip, kPtnPauseEn);
    return 0;
}

// The four pause parameters are the caller's values, written unchanged.
VQ6192_API uint32_t VQ6192_ETH_SetEthPausePara(uint32_t chip, uint32_t daSel, uint32_t para1, uint32_t para2,
                                               uint32_t para3, uint32_t para4) {
    if (!vq::validChip(chip) || !flag(daSel) || para1 > 0xFFFF || para2 > 0xFFFF || para3 > 0xFFFF ||
        para4 > 0xFFFF) {
        return ethParaErr(chip);
    }
    set(chip, kPauseDaSel, daSel);
    const uint32_t para[4] = {para1, para2, para3, para4};
    for (uint32_t k = 0; k < 4; ++k) {
        VQ6192_WriteReg(chip, kPauseParaReg + 2 * k, para[k]);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetPppProtocolType(uint32_t chip, uint32_t mode, uint32_t value1,
                                                  uint32_t value2) {
    const uint32_t limit = mode == 1 ? 0xFFF : 0xFFFF;
    if (!vq::validChip(chip) || !flag(mode) || value1 > limit || value2 > limit) {
        return ethParaErr(chip);
    }
    set(chip, kIdtProtlMode, mode);
    VQ6192_WriteReg(chip, kPppProtoValue1Reg, value1);
    VQ6192_WriteReg(chip, kPppProtoValue2Reg, value2);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetPppCpuHead(uint32_t chip, uint32_t enable, uint32_t len, uint32_t value1,
                                             uint32_t value2) {
    if (!vq::validChip(chip) || !flag(enable) || len >= 65 || value1 >= 257 || value2 >= 257) {
        return ethParaErr(chip);
    }
    set(chip, kCpuHeadEn, enable);
    set(chip, kCpuHeadLen, len);
    set(chip, kCpuHeadValue1, value1);
    set(chip, kCpuHeadValue2, value2);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetIngPMUPWS(uint32_t chip, uint32_t value) {
    if (!vq::validChip(chip) || !flag(value)) {
        return ethParaErr(chip);
    }
    set(chip, kIngPws, value);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetIngPMUPWS(uint32_t chip, uint32_t *value) {
    if (!vq::validChip(chip) || value == nullptr) {
        return ethParaErr(chip);
    }
    *value = get(chip, kIngPws);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_ETHInit(uint32_t chip, uint32_t mode) {
    if (!vq::validChip(chip) || (mode != 1 && mode != 2)) {
        return ethParaErr(chip);
    }
    if (mode == 2) {
        return 0;
    }
    set(chip, kEthInitBit, 1);
    VQ6192_ETH_MAC_ATTR_S attr{}, sel{};
    attr.wMaxFrmSize = 2036;
    attr.byPadEnable = 0;
    attr.byStripPadEn = 1;
    attr.byRxRuntPktEn = 1;
    attr.byShortRuntsThr = 16;
    sel.wMaxFrmSize = sel.byPadEnable = sel.byStripPadEn = sel.byRxRuntPktEn = sel.byShortRuntsThr = 1;
    uint32_t rc = VQ6192_ETH_SetMACAttr(chip, VQ6192_ETH_MAC_1, &attr, &sel);
    rc |= VQ6192_ETH_SetMACAttr(chip, VQ6192_ETH_MAC_2, &attr, &sel);
    for (uint32_t i = 0; i < sizeof kInitPairs / sizeof kInitPairs[0]; ++i) {
        rc |= VQ6192_ETH_SetSrvPPPPro2EthType(chip, i, VQ6192_BASE_SRV_DIRECT_BOTH, kInitPairs[i].pppPro,
                                              kInitPairs[i].ethType, 1);
    }
    return rc;
}

}  // extern "C"
