// The lookup maps of the packet side: received label or UDP port to ATM/CES channel, VLAN to channel,
// channel to CPU PID and back, PPP protocol to EtherType and back, and the CPU protocol entries.
#include "eth/eth_util.h"

using namespace vq::eth;

namespace {

constexpr uint32_t kSelMpls = 0;
constexpr uint32_t kSelUdp = 1;
constexpr uint32_t kSelNone = 2;

uint32_t labelBase(uint32_t chip, uint32_t sel) {
    if (sel == kSelMpls) {
        return get(chip, kMplsBaseHigh) << 16 | VQ6192_ReadReg(chip, kMplsBaseLowReg);
    }
    return VQ6192_ReadReg(chip, kUdpBaseReg);
}

// Mpls2key entry of an in-label, or false (traced) when the label is outside the base's window.
bool labelIndex(uint32_t chip, uint32_t sel, uint32_t inLabel, const char *op, uint32_t *idx) {
    const uint32_t base = labelBase(chip, sel);
    if (inLabel < base || inLabel >= base + kLabelSpan) {
        VQ6192_Printf(chip, VQ6192_MODULE_ETH, VQ6192_PRINT_PARA_WRONG,
                      "%s 3rd Para[%#x] Error. MPLSBase[%#x]  \n", op, inLabel, base);
        return false;
    }
    *idx = inLabel - base + (sel == kSelUdp ? kLabelSpan : 0);
    return true;
}

// Active bit of a pair or entry: register pair (0..15, 16..31) and bit.
void setActive(uint32_t chip, uint32_t reg, uint32_t index, uint32_t active) {
    VQ6192_WriteRegField(chip, reg + 2 * (index / 16), active, index % 16, 1);
}

uint32_t getActive(uint32_t chip, uint32_t reg, uint32_t index) {
    return VQ6192_ReadRegField(chip, reg + 2 * (index / 16), index % 16, 1);
}

uint32_t writeNew(uint32_t chip, uint32_t table, uint32_t index, vq::EntryField f, uint32_t value) {
    Entry e;
    setField(e.w, f, value);
    return VQ6192_Write_Table(chip, table, index, e.w);
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ETH_SetEgMplsBase(uint32_t chip, uint32_t sel, uint32_t base) {
    if (!vq::validChip(chip) || sel > kSelUdp || base >= (sel == kSelMpls ? (1u << 20) : (1u << 16))) {
        return ethParaErr(chip);
    }
    if (sel == kSelMpls) {
        set(chip, kMplsBaseHigh, base >> 16);
        VQ6192_WriteReg(chip, kMplsBaseLowReg, base & 0xFFFFu);
    } else {
        VQ6192_WriteReg(chip, kUdpBaseReg, base);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetEgMplsBase(uint32_t chip, uint32_t sel, uint32_t *base) {
    if (!vq::validChip(chip) || sel > kSelUdp || base == nullptr) {
        return ethParaErr(chip);
    }
    *base = labelBase(chip, sel);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetAtmCesEgMpls2Chnl(uint32_t chip, uint32_t ch, uint32_t srvType,
                                                    uint32_t inLabel, uint32_t sel, uint32_t enable) {
    const bool chOk =
        (srvType == VQ6192_ETH_SRV_ATM && ch < 2048) || (srvType == VQ6192_ETH_SRV_CES && ch < 352);
    if (!vq::validChip(chip) || !chOk || inLabel >= (1u << 20) || sel > kSelUdp || !flag(enable)) {
        return ethParaErr(chip);
    }
    uint32_t idx = 0;
    if (!labelIndex(chip, sel, inLabel, "VQ6192_ETH_SetAtmCesEgMpls2Chnl", &idx)) {
        return ethStatus(chip, VQ6192_ERR_PARA);
    }
    const uint32_t key = enable == 0 ? 0 : ch | (srvType == VQ6192_ETH_SRV_ATM ? kKeyAtm : kKeyCes);
    return writeNew(chip, kMpls2KeyTbl, idx, kMpls2KeyE1no, key);
}

VQ6192_API uint32_t VQ6192_ETH_GetAtmCesEgChnl2Mpls(uint32_t chip, uint32_t sel, uint32_t inLabel,
                                                    uint32_t *srvType, uint32_t *ch, uint32_t *valid) {
    if (!vq::validChip(chip) || sel > kSelUdp || inLabel >= (1u << 20) || srvType == nullptr ||
        ch == nullptr || valid == nullptr) {
        return ethParaErr(chip);
    }
    uint32_t idx = 0;
    if (!labelIndex(chip, sel, inLabel, "VQ6192_ETH_GetAtmCesEgChnl2Mpls", &idx)) {
        return ethStatus(chip, VQ6192_ERR_PARA);
    }
    uint32_t key = 0;
    const uint32_t rc = readField(chip, kMpls2KeyTbl, idx, kMpls2KeyE1no, &key);
    if ((key & kKeyAtm) != 0) {
        *srvType = VQ6192_ETH_SRV_ATM;
        *ch = key & 0x7FF;
        *valid = 1;
    } else if ((key & kKeyCes) != 0) {
        *srvType = VQ6192_ETH_SRV_CES;
        *ch = key & 0x1FF;
        *valid = 1;
    } else {
        *srvType = VQ6192_ETH_SRV_MP;
        *ch = 0;
        *valid = 0;
    }
    return rc;
}

// Walks the whole map for the first entry of the channel: used on deletion paths only.
VQ6192_API uint32_t VQ6192_ETH_GetAtmCesEgMpls2Chnl(uint32_t chip, uint32_t ch, uint32_t srvType,
                                                    uint32_t *inLabel, uint32_t *sel, uint32_t *found) {
    // Only channels below 512 can be searched: ATM pseudowires above 511 are never found.
    if (!vq::validChip(chip) || ch >= 512 || srvType >= VQ6192_ETH_SRV_MAX || inLabel == nullptr ||
        sel == nullptr || found == nullptr) {
        return ethParaErr(chip);
    }
    const uint32_t wanted = ch | (srvType == VQ6192_ETH_SRV_ATM ? kKeyAtm : kKeyCes);
    uint32_t rc = 0;
    for (uint32_t i = 0; i < kMpls2KeyEntries; ++i) {
        Entry e;
        rc |= VQ6192_Read_Table(chip, kMpls2KeyTbl, i, e.w);
        if (getField(e.w, kMpls2KeyE1no) == wanted) {
            *sel = i < kLabelSpan ? kSelMpls : kSelUdp;
            *inLabel = i % kLabelSpan + labelBase(chip, *sel);
            *found = 1;
            return rc;
        }
    }
    *inLabel = 0;
    *sel = kSelNone;
    *found = 0;
    VQ6192_Printf(chip, VQ6192_MODULE_ETH, VQ6192_PRINT_NORMAL,
                  "VQ6192_ETH_GetAtmCesEgMpls2Chnl(%#x,%#x,%#x,%#x,%#x). return [%#x] Not found data. \n",
                  chip, ch, srvType, *inLabel, *sel, rc);
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_SetEgVlanID2Chnl(uint32_t chip, uint32_t vlanId, uint32_t lblType,
                                                uint32_t ch) {
    if (!vq::validChip(chip) || vlanId >= 4096 || lblType >= 8 || ch >= 2048) {
        return ethParaErr(chip);
    }
    VQ6192_Printf(chip, VQ6192_MODULE_ETH, VQ6192_PRINT_NORMAL,
                  "VQ6192_ETH_SetEgVlanID2Chnl : ulVlanID:[%d] enLblType:[0x%x] usChnlNo:[0x%x]\n",
                  static_cast<int>(vlanId), lblType, ch);
    return updateEntry(chip, kVlan2LableTbl, vlanId, [&](uint32_t *e) {
        setField(e, kVlanLabelType, lblType);
        // ATM and CES channels are not taken from this map.
        setField(e, kVlanMplable, lblType == 1 ? 0 : ch % 512);
    });
}

VQ6192_API uint32_t VQ6192_ETH_GetEgVlanID2Chnl(uint32_t chip, uint32_t vlanId, uint32_t *lblType,
                                                uint32_t *ch) {
    if (!vq::validChip(chip) || vlanId >= 4096 || lblType == nullptr || ch == nullptr) {
        return ethParaErr(chip);
    }
    Entry e;
    const uint32_t rc = VQ6192_Read_Table(chip, kVlan2LableTbl, vlanId, e.w);
    *lblType = getField(e.w, kVlanLabelType);
    *ch = getField(e.w, kVlanMplable);
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_ConvertPPPChnlPktType(uint32_t chip, uint32_t ch, uint32_t pktType,
                                                     uint32_t *index) {
    // Kinds: PPP protocol, PPP DCN, bundle protocol, bundle DCN.
    constexpr uint32_t kFirst[4] = {0, 512, 1024, 1280};
    constexpr uint32_t kCount[4] = {512, 512, 256, 256};
    if (!vq::validChip(chip) || index == nullptr) {
        return ethParaErr(chip);
    }
    if (pktType >= 4) {
        return ethStatus(chip, kErrPktType);
    }
    if (ch >= kCount[pktType]) {
        return ethParaErr(chip);
    }
    *index = kFirst[pktType] + ch;
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetIngPPPMP2PID(uint32_t chip, uint32_t ch, uint32_t pktType, uint32_t pid,
                                               uint32_t valid) {
    if (!vq::validChip(chip) || ch >= 512 || pid >= 4096 || !flag(valid)) {
        return ethParaErr(chip);
    }
    uint32_t idx = 0;
    const uint32_t rc = VQ6192_ETH_ConvertPPPChnlPktType(chip, ch, pktType, &idx);
    if (rc != 0) {
        return rc;
    }
    Entry e;
    setField(e.w, kNo2PidValid, valid);
    setField(e.w, kNo2PidPid, pid);
    return VQ6192_Write_Table(chip, kNo2PidTbl, idx, e.w);
}

VQ6192_API uint32_t VQ6192_ETH_GetIngPPPMP2PID(uint32_t chip, uint32_t ch, uint32_t pktType, uint32_t *pid,
                                               uint32_t *valid) {
    if (!vq::validChip(chip) || ch >= 512 || pid == nullptr || valid == nullptr) {
        return ethParaErr(chip);
    }
    uint32_t idx = 0;
    const uint32_t rc = VQ6192_ETH_ConvertPPPChnlPktType(chip, ch, pktType, &idx);
    if (rc != 0) {
        return rc;
    }
    Entry e;
    const uint32_t rd = VQ6192_Read_Table(chip, kNo2PidTbl, idx, e.w);
    *pid = getField(e.w, kNo2PidPid);
    *valid = getField(e.w, kNo2PidValid);
    return rd;
}

VQ6192_API uint32_t VQ6192_ETH_SetEgPID2PPPMP(uint32_t chip, uint32_t pid, uint32_t ch, uint32_t kind,
                                              uint32_t enable) {
    if (!vq::validChip(chip) || pid >= 2048 || kind > 1 || ch >= (kind == 0 ? 512u : 256u) || !flag(enable)) {
        return ethParaErr(chip);
    }
    uint32_t chan = ch & ~0x300u;
    if (enable == 1) {
        chan = ch | (kind == 0 ? 0x200u : 0x100u);
    }
    return writeNew(chip, kPid2NoTbl, pid, kPid2NoChan, chan);
}

VQ6192_API uint32_t VQ6192_ETH_GetEgPID2PPPMP(uint32_t chip, uint32_t pid, uint32_t *ch, uint32_t *kind,
                                              uint32_t *enable) {
    // The getter also takes PID 2048.
    if (!vq::validChip(chip) || pid > 2048 || ch == nullptr || kind == nullptr || enable == nullptr) {
        return ethParaErr(chip);
    }
    uint32_t chan = 0;
    const uint32_t rc = readField(chip, kPid2NoTbl, pid, kPid2NoChan, &chan);
    if ((chan & 0x200) != 0) {
        *kind = 0;
        *ch = chan & 0x1FF;
        *enable = 1;
    } else if ((chan & 0x300) == 0x100) {
        *kind = 1;
        *ch = chan & 0xFF;
        *enable = 1;
    } else {
        *kind = 2;
        *ch = 512;
        *enable = 0;
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_SetSrvPPPPro2EthType(uint32_t chip, uint32_t index, uint32_t dir,
                                                    uint32_t pppPro, uint32_t ethType, uint32_t active) {
    if (!vq::validChip(chip) || index >= kProtoPairs || dir >= VQ6192_BASE_SRV_DIRECT_MAX ||
        pppPro > 0xFFFF || ethType > 0xFFFF || !flag(active)) {
        return ethParaErr(chip);
    }
    uint32_t rc = 0;
    if (dir != VQ6192_BASE_SRV_DIRECT_EGRESS) {
        VQ6192_WriteReg(chip, kUpPppProtoReg + 2 * index, pppPro);
        setActive(chip, kUpActiveReg, index, active);
        rc |= writeNew(chip, kUpPppTypeTbl, index, kUpPppType, ethType);
    }
    if (dir != VQ6192_BASE_SRV_DIRECT_INGRESS) {
        VQ6192_WriteReg(chip, kDownEthTypeReg + 2 * index, ethType);
        setActive(chip, kDownActiveReg, index, active);
        rc |= writeNew(chip, kDownPppProTbl, index, kDownPppPro, pppPro);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_GetSrvPPPPro2EthType(uint32_t chip, uint32_t index, uint32_t dir,
                                                    uint32_t *pppPro, uint32_t *ethType, uint32_t *active) {
    if (!vq::validChip(chip) || index >= kProtoPairs || dir > VQ6192_BASE_SRV_DIRECT_EGRESS ||
        pppPro == nullptr || ethType == nullptr || active == nullptr) {
        return ethParaErr(chip);
    }
    if (dir == VQ6192_BASE_SRV_DIRECT_INGRESS) {
        *pppPro = VQ6192_ReadReg(chip, kUpPppProtoReg + 2 * index);
        *active = getActive(chip, kUpActiveReg, index);
        return readField(chip, kUpPppTypeTbl, index, kUpPppType, ethType);
    }
    *ethType = VQ6192_ReadReg(chip, kDownEthTypeReg + 2 * index);
    *active = getActive(chip, kDownActiveReg, index);
    return readField(chip, kDownPppProTbl, index, kDownPppPro, pppPro);
}

VQ6192_API uint32_t VQ6192_ETH_SetPPPPro2EthPro(uint32_t chip, uint32_t index, uint32_t pppPro,
                                                uint32_t cpuPro, uint32_t active) {
    if (!vq::validChip(chip) || index >= kCpuProtoEntries || pppPro > 0xFFFF || cpuPro > 0xFF ||
        !flag(active)) {
        return ethParaErr(chip);
    }
    setActive(chip, kCpuProtoActiveReg, index, active);
    VQ6192_WriteReg(chip, kCpuProtoPppReg + 2 * index, pppPro);
    return writeNew(chip, kCpuProtocolTbl, index, kCpuProtocol, cpuPro);
}

VQ6192_API uint32_t VQ6192_ETH_GetPPPPro2EthPro(uint32_t chip, uint32_t index, uint32_t *pppPro,
                                                uint32_t *cpuPro, uint32_t *active) {
    if (!vq::validChip(chip) || index >= kCpuProtoEntries || pppPro == nullptr || cpuPro == nullptr ||
        active == nullptr) {
        return ethParaErr(chip);
    }
    *active = getActive(chip, kCpuProtoActiveReg, index);
    *pppPro = VQ6192_ReadReg(chip, kCpuProtoPppReg + 2 * index);
    return readField(chip, kCpuProtocolTbl, index, kCpuProtocol, cpuPro);
}

}  // extern "C"
