// Ethernet ports as the packet side sees them: MAC selection, station addresses, MAC attributes, MAC
// and SerDes loopbacks, SerDes resets and alarms, port counters and the Ethernet port controls.
#include <array>
#include <cstddef>
#include <cstring>

#include "eth/eth_util.h"

using namespace vq::eth;

namespace {

// ---- MAC attributes -----------------------------------------------------------------------------

// One step of an attribute write: a plain field, or an address group (low and middle halves into a
// 32-bit register, high half into bits 0..15 of the next register).
struct AttrStep {
    size_t offset;  // of the value (the low half for a group)
    uint8_t size;   // 1 or 2 bytes
    uint32_t reg;
    vq::EntryField field;
    uint32_t max;
    bool group;
};

constexpr uint32_t kAny8 = 0xFF;
constexpr uint32_t kAny16 = 0xFFFF;

#define ATTR(member, reg, layout, name, max)                                                 \
    {                                                                                        \
        offsetof(VQ6192_ETH_MAC_ATTR_S, member), sizeof(VQ6192_ETH_MAC_ATTR_S::member), reg, \
            vq::entryField(layout, name), max, false                                         \
    }
#define ATTR_GROUP(low, reg) \
    { offsetof(VQ6192_ETH_MAC_ATTR_S, low), 2, reg, vq::EntryField{kMac1Tbl, 0, 32}, kAny16, true }

// clang-format off
constexpr AttrStep kAttrSteps[] = {
    ATTR(byPortEn,          kMacMacPortEn,   "Macporten",     "Porten",          1),
    ATTR(byTxEn,            kMacPortEn,      "Porten",        "Txen",            1),
    ATTR(byRxEn,            kMacPortEn,      "Porten",        "Rxen",            1),
    ATTR(byCfSlientEn,      kMacRxCtrl,      "Macrxctrl",     "Cfsilentmode",    1),
    ATTR(bySoftRstMII,      kMacSoftRst,     "Macsoftrst",    "Softrstmii",      1),
    ATTR(bySoftRstRx,       kMacSoftRst,     "Macsoftrst",    "Softrstrx",       1),
    ATTR(bySoftRstTx,       kMacSoftRst,     "Macsoftrst",    "Softrsttx",       1),
    ATTR(wMaxFrmSize,       kMacMaxFrmSize,  "Maxfrmsize",    "Maxfrmsize",      16383),
    ATTR_GROUP(sFdFcAddrL,  kMacFdFcAddrLow),
    ATTR_GROUP(wAddrL,      kMacMcAddrLow),
    ATTR(byPadEnable,       kMacTxFen,       "Mactxfen",      "Padenable",       1),
    ATTR(byStripPadEn,      kMacRxCtrl,      "Macrxctrl",     "Strippaden",      1),
    ATTR(byRxRuntPktEn,     kMacRxCtrl,      "Macrxctrl",     "Runtpkten",       1),
    ATTR(byShortRuntsThr,   kMacShortRunts,  "Shortruntsthr", "Shortruntsthr",   31),
    ATTR(byCrcAdd,          kMacTxFen,       "Mactxfen",      "Crcadd",          1),
    ATTR(byStripCRCEn,      kMacCrcStrip,    "Cfcrcstrip",    "Cfcrcstrip",      1),
    ATTR(byCRCErrPass,      kMacRxPsEn,      "Macrxpsen",     "Crcerrpass",      1),
    ATTR(byIpgTxTimer,      kMacIpgTxTimer,  "Ipgtxtimer",    "Ipgtxtimer",      kAny8),
    ATTR(byRxDflSgl,        kMacDflSingleRx, "Cfdflsinglerx", "Cfdflsinglerx",   kAny8),
    ATTR(byCf2DfTwoPartDf1, kMacRxCtrl,      "Macrxctrl",     "Cf2dftwopartdfl", 1),
    ATTR(bySerDesOrd,       kMacSerDesOrder, "Cfserdesorder", "Cfserdesorder",   1),
    ATTR(wVLanType,         kMacVlanCode,    "Cfvlancode",    "Cfvlancode",      kAny16),
    ATTR(byVlanDropEn,      kMacRxPsEn,      "Macrxpsen",     "Vlandropen",      1),
    ATTR(byBcDropEn,        kMacRxPsEn,      "Macrxpsen",     "Bcdropen",        1),
    ATTR(byMcMatchEn,       kMacRxPsEn,      "Macrxpsen",     "Mcmatchen",       1),
    ATTR(byUcMatchEn,       kMacRxPsEn,      "Macrxpsen",     "Ucmatchen",       1),
    ATTR(byTxFdFc,          kMacFdFcEn,      "Fdfcen",        "Txfdfc",          1),
    ATTR(byRxFdFc,          kMacFdFcEn,      "Fdfcen",        "Rxfdfc",          1),
    ATTR(byAutoEegEnable,   kMacTxFen,       "Mactxfen",      "Anenable",        1),
    ATTR(wFdFcType,         kMacFdFcType,    "Fdfctype",      "Fdfctype",        kAny16),
    ATTR(wFcTxTimer,        kMacFcTxTimer,   "Fctxtimer",     "Fctxtimer",       kAny16),
    ATTR(wPauseThr,         kMacPauseThr,    "Pausethr",      "Pausethr",        kAny16),
    ATTR(byDropUnkCtlFrm,   kMacDropUnkCtl,  "Dropunkctlfrm", "Dropunkctlfrm",   1),
    ATTR(byPauseFrmPass,    kMacRxPsEn,      "Macrxpsen",     "Pausefrpass",     1),
    ATTR(byNoRmiiPreamble,  kMacPreamble,    "Preamblecfg",   "Normiipreable",   31),
    ATTR(byNoMiiPreamble,   kMacPreamble,    "Preamblecfg",   "Nomiipreable",    31),
    ATTR(byNoGmiiPreamble,  kMacPreamble,    "Preamblecfg",   "Nogmiipreable",   31),
};
// clang-format on
#undef ATTR
#undef ATTR_GROUP

uint32_t member(const VQ6192_ETH_MAC_ATTR_S &a, size_t offset, uint8_t size) {
    const auto *p = reinterpret_cast<const uint8_t *>(&a) + offset;
    if (size == 1) {
        return *p;
    }
    uint16_t v;
    std::memcpy(&v, p, sizeof v);
    return v;
}

void setMember(VQ6192_ETH_MAC_ATTR_S &a, size_t offset, uint8_t size, uint32_t value) {
    auto *p = reinterpret_cast<uint8_t *>(&a) + offset;
    if (size == 1) {
        *p = static_cast<uint8_t>(value);
        return;
    }
    const auto v = static_cast<uint16_t>(value);
    std::memcpy(p, &v, sizeof v);
}

// ---- Counters -------------------------------------------------------------------------------------

// MAC registers of the MAC counter record, word by word.
// clang-format off
constexpr uint8_t kMacPerRegs[VQ6192_ETH_MAC_PER_NUM] = {
    123, 125,
    32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44, 45, 46,
    48, 49, 50, 51, 52, 53, 54,
    64, 65, 66, 67, 68, 69, 70, 71, 72, 73, 74, 75,
    77, 78, 79, 80, 81,
    83, 84, 85, 86, 87,
    126, 127,
};

// Port counter words: one register, or a high and a low register. kNone: not read.
constexpr uint32_t kNone = 0;
constexpr uint32_t kPauseCnt = UINT32_MAX;  // the shared pause counter, by register 0x8100 bit 9
struct CntRegs {
    uint32_t high;  // or the only register
    uint32_t low;
};
constexpr CntRegs kEth1Regs[VQ6192_ETH_ETH1_PER_NUM] = {
    {0x9200, 0},      {0x90C6, 0x90C4}, {0x90CA, 0x90C8}, {0x90CE, 0x90CC}, {0x90D2, 0x90D0}, {0x90D6, 0x90D4},
    {0x9206, 0},      {0x90D8, 0},      {0x90DA, 0},      {0x90DC, 0},      {0x90DE, 0},      {0x90E0, 0},
    {kNone, 0},       {0x90E4, 0},      {0x90E6, 0},      {0x90E8, 0},      {0x90EC, 0},      {0x90EE, 0},
    {0x9102, 0x9100}, {0x9106, 0x9104}, {0x910A, 0x9108}, {0x9114, 0},      {kPauseCnt, 1},   {kPauseCnt, 0},
    {0x9116, 0},      {0x9118, 0},      {0x9124, 0},      {0x90C0, 0},      {0x9132, 0x9130}, {0x9136, 0x9134},
    {0x913A, 0x9138}, {0x913E, 0x913C}, {0x9200, 0},      {0x9204, 0},      {0x9208, 0},      {0x920E, 0x920C},
    {0x9212, 0x9210}, {0x9216, 0x9214}, {0x9218, 0},      {0x921A, 0},      {0x9222, 0x9220}, {0x9226, 0x9224},
    {0x922A, 0x9228}, {0x922E, 0x922C}, {0x9230, 0},      {0x9232, 0},      {0x9234, 0},      {0x9236, 0},
    {0x90C2, 0},      {0x90EA, 0},      {kNone, 1},       {kNone, 1},       {0x9110, 0},      {0x9112, 0},
    {0x9122, 0x9120}, {0x9126, 0},      {0x9128, 0},      {0x912E, 0x912C},
};
// clang-format on
constexpr uint32_t kPauseCntHigh = 0x910E;
constexpr uint32_t kPauseCntLow = 0x910C;

uint32_t readMacReg(uint32_t chip, uint32_t table, uint32_t reg, uint32_t *value) {
    Entry e;
    const uint32_t rc = VQ6192_Read_Table(chip, table, reg, e.w);
    *value = e.w[0];
    return rc;
}

uint32_t macRegField(uint32_t chip, uint32_t table, uint32_t reg, vq::EntryField f, uint32_t value) {
    return updateEntry(chip, table, reg, [&](uint32_t *w) { setField(w, f, value); });
}

const Lane *lane(uint32_t n) {
    return n == 1 || n == 2 ? &kLanes[n - 1] : nullptr;
}

}  // namespace

extern "C" {

// The SerDes selection 3 names no MAC: it is refused like a bad argument.
VQ6192_API uint32_t VQ6192_ETH_GetMACNo(uint32_t chip, uint32_t *mac) {
    constexpr uint32_t kMacOfSel[3] = {3, VQ6192_ETH_MAC_1, VQ6192_ETH_MAC_2};
    if (!vq::validChip(chip) || mac == nullptr) {
        return ethParaErr(chip);
    }
    const uint32_t sel = get(chip, kSerDesSel);
    if (sel >= 3) {
        return ethParaErr(chip);
    }
    *mac = kMacOfSel[sel];
    VQ6192_Printf(chip, VQ6192_MODULE_ETH, VQ6192_PRINT_NORMAL,
                  "VQ6192_ETH_GetMACNo(%#x). wSerDesSel[%#x] return [%#x]\n", chip, sel, *mac);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetSerDesMACAddr(uint32_t chip, uint32_t mac, const uint16_t addr[3]) {
    const uint32_t table = macTable(mac);
    if (!vq::validChip(chip) || table == 0 || addr == nullptr) {
        return ethParaErr(chip);
    }
    uint32_t rc = updateEntry(chip, table, kMacStationLow,
                              [&](uint32_t *w) { w[0] = static_cast<uint32_t>(addr[1]) << 16 | addr[0]; });
    rc |= macRegField(chip, table, kMacStationHigh, kMacStationHighBits, addr[2]);
    const uint32_t pmu = mac == VQ6192_ETH_MAC_1 ? kMac1StationReg : kMac2StationReg;
    VQ6192_WriteReg(chip, pmu, addr[2]);
    VQ6192_WriteReg(chip, pmu + 2, addr[1]);
    VQ6192_WriteReg(chip, pmu + 4, addr[0]);
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_GetSerDesMACAddr(uint32_t chip, uint32_t mac, uint16_t addr[3]) {
    const uint32_t table = macTable(mac);
    if (!vq::validChip(chip) || table == 0 || addr == nullptr) {
        return ethParaErr(chip);
    }
    uint32_t low = 0, high = 0;
    uint32_t rc = readMacReg(chip, table, kMacStationLow, &low);
    rc |= readMacReg(chip, table, kMacStationHigh, &high);
    addr[0] = static_cast<uint16_t>(low);
    addr[1] = static_cast<uint16_t>(low >> 16);
    addr[2] = static_cast<uint16_t>(high);
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_SetMACAttr(uint32_t chip, uint32_t mac, const VQ6192_ETH_MAC_ATTR_S *attr,
                                          const VQ6192_ETH_MAC_ATTR_S *sel) {
    const uint32_t table = macTable(mac);
    if (!vq::validChip(chip) || table == 0 || attr == nullptr || sel == nullptr) {
        return ethParaErr(chip);
    }
    uint32_t rc = 0;
    for (const AttrStep &s : kAttrSteps) {
        if (s.group) {
            // Low, middle and high halves follow each other in the record.
            const uint32_t l = member(*attr, s.offset, 2), m = member(*attr, s.offset + 2, 2),
                           h = member(*attr, s.offset + 4, 2);
            if (member(*sel, s.offset, 2) != 1 && member(*sel, s.offset + 2, 2) != 1 &&
                member(*sel, s.offset + 4, 2) != 1) {
                continue;
            }
            rc |= updateEntry(chip, table, s.reg, [&](uint32_t *w) { w[0] = m << 16 | l; });
            rc |= macRegField(chip, table, s.reg + 1, kMacFdFcAddrHighBits, h);
            continue;
        }
        if (member(*sel, s.offset, s.size) != 1) {
            continue;
        }
        const uint32_t v = member(*attr, s.offset, s.size);
        if (v > s.max) {
            return rc | ethParaErr(chip);
        }
        rc |= macRegField(chip, table, s.reg, s.field, v);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_GetMACAttr(uint32_t chip, uint32_t mac, VQ6192_ETH_MAC_ATTR_S *attr) {
    const uint32_t table = macTable(mac);
    if (!vq::validChip(chip) || table == 0 || attr == nullptr) {
        return ethParaErr(chip);
    }
    // Each register once, in the order of the record.
    std::array<uint32_t, 128> regs{};
    std::array<bool, 128> have{};
    uint32_t rc = 0;
    auto reg = [&](uint32_t n) {
        if (!have[n]) {
            rc |= readMacReg(chip, table, n, &regs[n]);
            have[n] = true;
        }
        return regs[n];
    };
    for (const AttrStep &s : kAttrSteps) {
        if (s.group) {
            const uint32_t low = reg(s.reg), high = reg(s.reg + 1);
            setMember(*attr, s.offset, 2, low & 0xFFFF);
            setMember(*attr, s.offset + 2, 2, low >> 16);
            setMember(*attr, s.offset + 4, 2, high & 0xFFFF);
            continue;
        }
        const uint32_t v = reg(s.reg);
        setMember(*attr, s.offset, s.size, wordField(v, s.field));
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_GetMACLinkStat(uint32_t chip, uint32_t mac, uint32_t *up) {
    const uint32_t table = macTable(mac);
    if (!vq::validChip(chip) || table == 0 || up == nullptr) {
        return ethParaErr(chip);
    }
    uint32_t v = 0;
    const uint32_t rc = readMacReg(chip, table, kMacSynOk, &v);
    *up = wordField(v, kMacLinkUp);
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_SetMACLoop(uint32_t chip, uint32_t mac, uint32_t mode) {
    const uint32_t table = macTable(mac);
    if (!vq::validChip(chip) || table == 0 || mode >= 4) {
        return ethParaErr(chip);
    }
    // Modes: 0 none, 1 interface side, 2 line side, 3 both registers rewritten as they are.
    uint32_t rc = updateEntry(chip, table, kMacLpCtrl, [&](uint32_t *w) {
        if (mode != 3) {
            setField(w, kMacMiiLoop, mode == 1 ? 1 : 0);
        }
        if (mode == 0) {
            setField(w, kMacLpCtrlBit0, 0);
        }
    });
    rc |= updateEntry(chip, table, kMacLineLoop, [&](uint32_t *w) {
        if (mode != 3) {
            setField(w, kMacLineLoopBit, mode == 2 ? 1 : 0);
        }
    });
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_GetMACLoop(uint32_t chip, uint32_t mac, uint32_t *mode) {
    const uint32_t table = macTable(mac);
    if (!vq::validChip(chip) || table == 0 || mode == nullptr) {
        return ethParaErr(chip);
    }
    uint32_t lp = 0, line = 0;
    uint32_t rc = readMacReg(chip, table, kMacLpCtrl, &lp);
    rc |= readMacReg(chip, table, kMacLineLoop, &line);
    *mode = wordField(lp, kMacMiiLoop) != 0 ? 1 : wordField(line, kMacLineLoopBit) != 0 ? 2 : 0;
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_SetSerdesLoop(uint32_t chip, uint32_t laneNo, uint32_t point,
                                             uint32_t enable) {
    const Lane *l = lane(laneNo);
    if (!vq::validChip(chip) || l == nullptr || point > VQ6192_ETH_SERDES_LOOP_POINT_RCK_LPB ||
        !flag(enable)) {
        return ethParaErr(chip);
    }
    set(chip, l->loopCode, enable == 1 ? kLoopCodes[point] : 0);
    set(chip, l->parLoop, enable == 1 && point == VQ6192_ETH_SERDES_LOOP_POINT_PAR_LPB ? 1 : 0);
    if (point == VQ6192_ETH_SERDES_LOOP_POINT_SER_LPB) {
        return macRegField(chip, macTable(laneNo), kMacLpCtrl, kMacMiiLoop, enable);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetSerdesLoop(uint32_t chip, uint32_t laneNo, uint32_t *point,
                                             uint32_t *enable) {
    const Lane *l = lane(laneNo);
    if (!vq::validChip(chip) || l == nullptr || point == nullptr || enable == nullptr) {
        return ethParaErr(chip);
    }
    const uint32_t code = get(chip, l->loopCode);
    *point = 0;
    *enable = 0;
    for (uint32_t p = 0; p < 4; ++p) {
        if (code != 0 && kLoopCodes[p] == code) {
            *point = p;
            *enable = 1;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetSerDesAllChnlReset(uint32_t chip, uint32_t enable) {
    if (!vq::validChip(chip) || !flag(enable)) {
        return ethParaErr(chip);
    }
    set(chip, kSerDesAllReset, enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetSerDesAllChnlReset(uint32_t chip, uint32_t *enable) {
    if (!vq::validChip(chip) || enable == nullptr) {
        return ethParaErr(chip);
    }
    *enable = get(chip, kSerDesAllReset);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetSerDesChnlReset(uint32_t chip, uint32_t laneNo, uint32_t enable) {
    const Lane *l = lane(laneNo);
    if (!vq::validChip(chip) || l == nullptr || !flag(enable)) {
        return ethParaErr(chip);
    }
    set(chip, l->resetPrep, 1);
    set(chip, l->reset, enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetSerDesChnlReset(uint32_t chip, uint32_t laneNo, uint32_t *enable) {
    const Lane *l = lane(laneNo);
    if (!vq::validChip(chip) || l == nullptr || enable == nullptr) {
        return ethParaErr(chip);
    }
    *enable = get(chip, l->reset);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetSerDesChnlCfg(uint32_t chip, uint32_t laneNo, uint32_t value) {
    const Lane *l = lane(laneNo);
    if (!vq::validChip(chip) || l == nullptr || value >= 4096) {
        return ethParaErr(chip);
    }
    set(chip, l->cfg, value);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetSerDesChnlCfg(uint32_t chip, uint32_t laneNo, uint32_t *value) {
    const Lane *l = lane(laneNo);
    if (!vq::validChip(chip) || l == nullptr || value == nullptr) {
        return ethParaErr(chip);
    }
    *value = get(chip, l->cfg);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetSerDesAllChnlPowerDown(uint32_t chip, uint32_t enable) {
    if (!vq::validChip(chip) || !flag(enable)) {
        return ethParaErr(chip);
    }
    set(chip, kSerDesAllPowerDown, enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetSerDesAllChnlPowerDown(uint32_t chip, uint32_t *enable) {
    if (!vq::validChip(chip) || enable == nullptr) {
        return ethParaErr(chip);
    }
    *enable = get(chip, kSerDesAllPowerDown);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetSesDesAlmErr(uint32_t chip, uint32_t laneNo, uint16_t alarm[9]) {
    if (!vq::validChip(chip) || laneNo > 1 || alarm == nullptr) {
        return ethParaErr(chip);
    }
    const uint32_t a = VQ6192_ReadReg(chip, kLaneAlarmReg);
    const uint32_t b = VQ6192_ReadReg(chip, kLaneAlarmReg2);
    for (uint32_t k = 0; k < 4; ++k) {
        alarm[k] = static_cast<uint16_t>((a >> (3 - k)) & 1u);
    }
    if (laneNo == 1) {
        alarm[4] = static_cast<uint16_t>((b >> 12) & 0xF);
        for (uint32_t k = 0; k < 4; ++k) {
            alarm[5 + k] = static_cast<uint16_t>((b >> (11 - k)) & 1u);
        }
    } else {
        // Lane 0 uses the low byte the same way: the group in bits 4..7, the flags in bits 3..0.
        alarm[4] = static_cast<uint16_t>((b >> 4) & 0xF);
        for (uint32_t k = 0; k < 4; ++k) {
            alarm[5 + k] = static_cast<uint16_t>((b >> (3 - k)) & 1u);
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetMACPer(uint32_t chip, uint32_t mac, VQ6192_ETH_MAC_PER_S *stat) {
    const uint32_t table = macTable(mac);
    if (!vq::validChip(chip) || table == 0 || stat == nullptr) {
        return ethParaErr(chip);
    }
    uint32_t w[VQ6192_ETH_MAC_PER_NUM];
    static_assert(sizeof w == sizeof *stat);
    uint32_t rc = 0;
    for (uint32_t k = 0; k < VQ6192_ETH_MAC_PER_NUM; ++k) {
        rc |= readMacReg(chip, table, kMacPerRegs[k], &w[k]);
    }
    std::memcpy(stat, w, sizeof w);
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_GetMACPer_for_fmea(uint32_t chip, uint32_t mac, VQ6192_ETH_MAC_PER_S *stat) {
    const uint32_t table = macTable(mac);
    if (!vq::validChip(chip) || table == 0 || stat == nullptr) {
        return ethParaErr(chip);
    }
    uint32_t rc = readMacReg(chip, table, 32, &stat->dwRxOctetsOkCnt);
    rc |= readMacReg(chip, table, 44, &stat->dwRxFcsErrCnt);
    rc |= readMacReg(chip, table, 64, &stat->dwtxOctetsOkCnt);
    return rc;
}

VQ6192_API uint32_t VQ6192_ETH_FMEA_CheckMACErrorCnt(uint32_t chip, uint32_t *count) {
    if (!vq::validChip(chip) || count == nullptr) {
        return ethParaErr(chip);
    }
    return readMacReg(chip, kMac1Tbl, 33, count);
}

VQ6192_API uint32_t VQ6192_ETH_GetETH1Per(uint32_t chip, VQ6192_ETH_ETH1_PER_S *stat) {
    if (!vq::validChip(chip) || stat == nullptr) {
        return ethParaErr(chip);
    }
    uint32_t w[VQ6192_ETH_ETH1_PER_NUM];
    static_assert(sizeof w == sizeof *stat);
    std::memcpy(w, stat, sizeof w);
    const uint32_t mpPause = get(chip, kMpPauseSel);
    for (uint32_t k = 0; k < VQ6192_ETH_ETH1_PER_NUM; ++k) {
        const CntRegs &r = kEth1Regs[k];
        if (r.high == kNone) {
            if (r.low == 0) {
                w[k] = 0;  // no register of its own
            }
            continue;  // words the caller's values stay in
        }
        if (r.high == kPauseCnt) {
            w[k] = mpPause == r.low
                       ? VQ6192_ReadReg(chip, kPauseCntHigh) << 16 | VQ6192_ReadReg(chip, kPauseCntLow)
                       : 0;
            continue;
        }
        w[k] = r.low == 0 ? VQ6192_ReadReg(chip, r.high)
                          : VQ6192_ReadReg(chip, r.high) << 16 | VQ6192_ReadReg(chip, r.low);
    }
    std::memcpy(stat, w, sizeof w);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetETH1WRRWeight(uint32_t chip, uint32_t cls, uint32_t weight) {
    if (!vq::validChip(chip) || cls >= 4 || weight > 0xFF) {
        return ethParaErr(chip);
    }
    set(chip, cls < 2 ? kWrrWeight01 : cls == 2 ? kWrrWeight2 : kWrrWeight3, weight);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetETH1WRRWeight(uint32_t chip, uint32_t cls, uint32_t *weight) {
    if (!vq::validChip(chip) || cls >= 4 || weight == nullptr) {
        return ethParaErr(chip);
    }
    *weight = get(chip, cls < 2 ? kWrrWeight01 : cls == 2 ? kWrrWeight2 : kWrrWeight3);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetEthGlbPauseEnable(uint32_t chip, uint32_t enable) {
    if (!vq::validChip(chip) || !flag(enable)) {
        return ethParaErr(chip);
    }
    set(chip, kGlbPauseEn, enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetEthPppLengthEnable(uint32_t chip, uint32_t enable1, uint32_t enable0) {
    if (!vq::validChip(chip) || !flag(enable1) || !flag(enable0)) {
        return ethParaErr(chip);
    }
    set(chip, kPppLength1, enable1);
    set(chip, kPppLength0, enable0);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetEth1Maxlen(uint32_t chip, uint32_t len) {
    if (!vq::validChip(chip) || len >= 8192) {
        return ethParaErr(chip);
    }
    set(chip, kEth1MaxLen, len);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetEth1PortSendMode(uint32_t chip, uint32_t mode) {
    if (!vq::validChip(chip) || !flag(mode)) {
        return ethParaErr(chip);
    }
    set(chip, kSendMode, mode);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_SetEthAppInterface(uint32_t chip, uint32_t enable) {
    if (!vq::validChip(chip) || !flag(enable)) {
        return ethParaErr(chip);
    }
    set(chip, kAppInterface, enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_ETH_GetEthAppInterface(uint32_t chip, uint32_t *enable) {
    if (!vq::validChip(chip) || enable == nullptr) {
        return ethParaErr(chip);
    }
    *enable = get(chip, kAppInterface);
    return 0;
}

}  // extern "C"
