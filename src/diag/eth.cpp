// Diagnostic commands of the Ethernet side and MAC ports family.
//
// Getters call their operation with zeroed results and, with a buffer, print a framed value or a field
// table; setters print "        <name>() OK|FAIL" (the MAC commands "... is OK|FAIL"). Every command
// returns the status of the operation it called.
#include <cstring>
#include <initializer_list>

#include "core/status.h"
#include "diag/layout.h"
#include "diag/registry.h"
#include "platform/osal.h"
#include "vq6192/vq6192.h"

namespace vq::diag {
namespace {

// Framed values of the ETH commands that use the separator beginning with the letter n.
constexpr char kStructLine[] = "    | %-24s : 0x%-8x(%-10u) \n";
constexpr char kPsnLine[] = "\r\n    | %-16s : 0x%-8x(%-10u) ";
constexpr char kMacValueLine[] = " %s    :    0x%x(%d)\n";
constexpr char kMacAddrLine[] = "    | %s  : 0x%8x(%10d) \n";
constexpr size_t kWorkBufSize = 4096;
constexpr uint32_t kCapPrintMax = 48;

uint32_t single(char *buf, const char *sep, const char *title, std::initializer_list<Field> fields,
                uint32_t rc) {
    framed(buf, sep, title, fields);
    return rc;
}

uint32_t ethSingle(char *buf, const char *title, std::initializer_list<Field> fields, uint32_t rc) {
    return single(buf, kMacSep, title, fields, rc);
}

uint32_t nSingle(char *buf, const char *title, std::initializer_list<Field> fields, uint32_t rc) {
    return single(buf, kSep, title, fields, rc);
}

uint32_t table(char *buf, const char *title, std::initializer_list<Field> fields, uint32_t rc) {
    fieldTable(buf, title, fields, kStructLine);
    return rc;
}

// A field table over a record of u32 words with a name per word (null names are skipped).
uint32_t wordTable(char *buf, const char *title, const char *const *names, const uint32_t *words, size_t n,
                   uint32_t rc) {
    if (buf != nullptr) {
        TextBuilder text(buf);
        text.add("        %s\n", title);
        for (size_t k = 0; k < n; ++k) {
            if (names[k] != nullptr) {
                fieldLine(text, kStructLine, {names[k], words[k]});
            }
        }
        text.add("%s", kPrintEnd);
    }
    return rc;
}

uint32_t setter(char *buf, const char *name, uint32_t rc) {
    if (buf != nullptr) {
        TextBuilder(buf).add("        %s() %s\n", name, rc == 0 ? "OK" : "FAIL");
    }
    return rc;
}

uint32_t macSetter(char *buf, const char *name, uint32_t rc) {
    if (buf != nullptr) {
        TextBuilder text(buf);
        setResult(text, name, rc);
    }
    return rc;
}

uint32_t macSingle(char *buf, const char *title, const Field &field, uint32_t rc) {
    if (buf != nullptr) {
        TextBuilder text(buf);
        framed(text, kMacSep, title, {field}, kMacValueLine);
    }
    return rc;
}

// Up to 48 bytes, sixteen to a line.
void bytesOut(TextBuilder &text, const uint8_t *data, uint32_t len) {
    const uint32_t n = len < kCapPrintMax ? len : kCapPrintMax;
    for (uint32_t i = 0; i < n; ++i) {
        text.add(" %02x ", data[i]);
        if (i % 16 == 15) {
            text.add("\n");
        }
    }
    text.add("\n");
}

// 16-bit fields of a command argument: one u16 per field, in record order.
// clang-format off
constexpr const char *kPsnNames[VQ6192_ETH_PSN_INFO_NUM] = {
    "dwreserved3", "dwLblEthType", "dwLblVlanId", "dwLblEthDah", "dwLblEthDal", "dwLblGreProType",
    "dwLblIpDa", "dwLblIpSa", "dwLblIpProtcl", "dwLblIpTtl", "dwLblIpTos", "dwreserved2",
    "dwLblPwLable", "dwLblPwTtl", "dwreserved1", "dwLblPwCos", "dwreserved0", "dwLblHdType",
};
constexpr const char *kPtnNames[VQ6192_ETH_PMU_PTN_NUM] = {
    "byPtnLenLocSel", "byPppTypeUnmtchDrop", "byCpuBidChkEn", "byPppBmSel", "byPauseDaSel",
    "byMpPauseSel", "byPtnPauseEn", "byGreCheckEn", "byIpDaChkEn", "byIpPtcChkEn", "byIpHeadChkEn",
    "byIdtProtlMode", "byVlanDisable", "byCpuInsertEn", "byToCpuEn",
};
constexpr const char *kEth1Names[VQ6192_ETH_ETH1_PER_NUM] = {
    "dwRx1FcsErrCnt", "dwRxAtmPktCnt", "dwRxCesPktCnt", "dwRxMpPktCnt", "dwCpuInstPktCnt", "dwRptCpuPktCnt",
    "dwRx1OverLenCnt", "dwIpDaErrCnt", "dwIpChkErrCnt", "dwIpPtcErrCnt", "dwGrePtcErrCnt", "dwRxUnkownPktCnt",
    "dwCpuProErrCnt", "dwRxBidErrCnt", "dwMpTypeUnmtchCnt", "dwMplsUnmtchCnt", "dwRxPidErrCnt", "dwRxTypeErrCnt",
    "dwTxAtmPktCnt", "dwTxCesPktCnt", "dwTxMpPktCnt", "dwMpProUnmtchCnt", "wTxMpPauseCnt", "wTxPppPauseCnt",
    "dwTxPidErrCnt", "dwTxPsnUnmatchCnt", "dwRx0PktErrCnt", "dwRx0FcsErrCnt", "dwAtmE1PsCnt", "dwMPE1PSCnt",
    "dwHDE1PSCnt", "dwRX1LpPKTCnt", "dwRX1PktERRCnt", "dwRX1FrmTypeErrCnt", "dwLP1FfROutPktCnt", "dwTX1LpPKTCnt",
    "dwTXAutoPKTCnt", "dwRXAutoPKTCnt", "dwRXHeadERRCnt", "dwRXPrbsERRCnt", "dwAPPEnTXCnt", "dwAPPEnRXCnt",
    "dwAPPInTXCnt", "dwAPPInRXCnt", "dwAPPERxERRCnt", "dwAPPERxOLENCNT", "dwAPPIRxERRCnt", "dwAPPIRxOLENCnt",
    "dwRx0OverLenCnt", "dwMplsErrCnt", nullptr, nullptr, "dwPausePsnErrCnt", "dwTxShortErrCnt",
    "dwRx0LpPktCnt", "dwRx0FrmTypeErrCnt", "dwLp0FfRoutPktCnt", "dwTx0LpPktCnt",
};
// The last two words (registers 126 and 127) are not printed.
constexpr const char *kMacPerNames[VQ6192_ETH_MAC_PER_NUM] = {
    "dwrxOverrunCnt", "dwrxLengthfieldErrCnt",
    "dwRxOctetsOkCnt", "dwRxOctets_badCnt", "dwRxUcPktCnt", "dwRxMcPktCnt", "dwRxBcPktCnt", "dwRxPkts64octCnt",
    "dwRxPkts65to127OctCnt", "dwRxPkts128to255OctCnt", "dwRxPkts256to511OctCnt", "dwRxPkts512to1023OctCnt",
    "dwRxPkts1024to1518OctCnt", "dwRxPkts1519tomaxOctCnt", "dwRxFcsErrCnt", "dwRxTaggedCnt", "dwRxDataErrCnt",
    "dwRxLongErrCnt", "dwRxJabberErrCnt", "dwRxPauseCnt", "dwRxUnkCtlCnt", "dwRxVeryLongErrCnt", "dwRxRuntErrCnt",
    "dwRxShortErrCnt",
    "dwtxOctetsOkCnt", "dwtxOctetsBadCnt", "dwtxUcPktCnt", "dwtxMcPktCnt", "dwtx_bcPktCnt", "dwtxPkts64octCnt",
    "dwtxPkts65to127OctCnt", "dwtxPkts128to255OctCnt", "dwtxPkts256to511OctCnt", "dwtxPkts512to1023OctCnt",
    "dwtxPkts1024to1518OctCnt", "dwtxPkts1519tomaxOctCnt",
    "dwTxTotalColCnt", "dwTxSingleColCnt", "dwTxMultiColCnt", "dwTxLateColCnt", "dwTxExcColErrCnt",
    "dwtxExcLenDropCnt", "dwtxUnderrunCnt", "dwtxTaggedCnt", "dwtxCrcErrCnt", "dwtxPauseCnt",
    nullptr, nullptr,
};
// clang-format on

// The MAC attribute record as one u16 per field, in record order.
// clang-format off
#define VQ6192_MAC_ATTR_FIELDS(X)                                                                           \
    X(byPortEn) X(byTxEn) X(byRxEn) X(byCfSlientEn) X(bySoftRstMII) X(bySoftRstRx) X(bySoftRstTx)         \
    X(wMaxFrmSize) X(sFdFcAddrL) X(sFdFcAddrM) X(sFdFcAddrH) X(wAddrL) X(wAddrM) X(wAddrH)                 \
    X(byPadEnable) X(byStripPadEn) X(byRxRuntPktEn) X(byShortRuntsThr) X(byCrcAdd) X(byStripCRCEn)         \
    X(byCRCErrPass) X(byIpgTxTimer) X(byRxDflSgl) X(byCf2DfTwoPartDf1) X(bySerDesOrd) X(wVLanType)         \
    X(byVlanDropEn) X(byBcDropEn) X(byMcMatchEn) X(byUcMatchEn) X(byTxFdFc) X(byRxFdFc)                    \
    X(byAutoEegEnable) X(wFdFcType) X(wFcTxTimer) X(wPauseThr) X(byDropUnkCtlFrm) X(byPauseFrmPass)        \
    X(byNoRmiiPreamble) X(byNoMiiPreamble) X(byNoGmiiPreamble)
// clang-format on

#define VQ6192_COUNT_FIELD(f) +1
constexpr size_t kMacAttrFields = 0 VQ6192_MAC_ATTR_FIELDS(VQ6192_COUNT_FIELD);
#undef VQ6192_COUNT_FIELD

VQ6192_ETH_MAC_ATTR_S macAttrOf(const uint16_t *v) {
    VQ6192_ETH_MAC_ATTR_S a{};
    size_t k = 0;
#define VQ6192_TAKE_FIELD(f) a.f = static_cast<decltype(a.f)>(v[k++]);
    VQ6192_MAC_ATTR_FIELDS(VQ6192_TAKE_FIELD)
#undef VQ6192_TAKE_FIELD
    return a;
}

uint32_t beWord(const uint8_t *b) {
    return static_cast<uint32_t>(b[0]) << 24 | static_cast<uint32_t>(b[1]) << 16 |
           static_cast<uint32_t>(b[2]) << 8 | b[3];
}

// Eighteen big-endian u32 from 72 bytes.
VQ6192_ETH_PSN_INFO_S psnOf(const uint8_t *bytes) {
    uint32_t w[VQ6192_ETH_PSN_INFO_NUM];
    for (uint32_t k = 0; k < VQ6192_ETH_PSN_INFO_NUM; ++k) {
        w[k] = beWord(bytes + 4 * k);
    }
    VQ6192_ETH_PSN_INFO_S info;
    std::memcpy(&info, w, sizeof info);
    return info;
}

}  // namespace
}  // namespace vq::diag

using vq::diag::Field;
using namespace vq::diag;

extern "C" {

// ---- Headers and maps ---------------------------------------------------------------------------------

VQ6192_API uint32_t getpsnethinfo(uint32_t chip, uint32_t ch, uint32_t type, char *buf) {
    VQ6192_ETH_PSN_INFO_S info{};
    const uint32_t rc = VQ6192_ETH_GetPSNEthInfo(chip, ch, type, &info);
    if (buf != nullptr) {
        uint32_t w[VQ6192_ETH_PSN_INFO_NUM];
        std::memcpy(w, &info, sizeof w);
        vq::TextBuilder text(buf);
        text.add("        GetPSNEthInfo()\n");
        for (uint32_t k = 0; k < VQ6192_ETH_PSN_INFO_NUM; ++k) {
            fieldLine(text, kPsnLine, {kPsnNames[k], w[k]});
        }
        text.add("\r\n%s", kPrintEnd);
    }
    return rc;
}

// The record is 72 bytes: each field a big-endian u32 in record order.
// A missing record goes to the operation as a null pointer, which it refuses.
VQ6192_API uint32_t setpsnethinfo(uint32_t chip, uint32_t ch, uint32_t type, const uint8_t *info, char *buf) {
    if (info == nullptr) {
        return setter(buf, "setpsnethinfo", VQ6192_ETH_SetPSNEthInfo(chip, ch, type, nullptr));
    }
    const VQ6192_ETH_PSN_INFO_S i = psnOf(info);
    return setter(buf, "setpsnethinfo", VQ6192_ETH_SetPSNEthInfo(chip, ch, type, &i));
}

// The mask is 18 bytes, one per field; the record 72 bytes as for setpsnethinfo.
VQ6192_API uint32_t modifypsnethinfo(uint32_t chip, uint32_t ch, uint32_t type, const uint8_t *mask,
                                     const uint8_t *info, char *buf) {
    if (mask == nullptr || info == nullptr) {
        return setter(buf, "modifypsnethinfo", VQ6192_ETH_ModifyPSNEthInfo(chip, ch, type, nullptr, nullptr));
    }
    uint32_t m[VQ6192_ETH_PSN_INFO_NUM];
    for (uint32_t k = 0; k < VQ6192_ETH_PSN_INFO_NUM; ++k) {
        m[k] = mask[k];
    }
    VQ6192_ETH_PSN_INFO_S sel;
    std::memcpy(&sel, m, sizeof sel);
    const VQ6192_ETH_PSN_INFO_S i = psnOf(info);
    return setter(buf, "modifypsnethinfo", VQ6192_ETH_ModifyPSNEthInfo(chip, ch, type, &sel, &i));
}

VQ6192_API uint32_t setpsnethipaddr(uint32_t chip, uint32_t ch, uint32_t type, uint32_t sa, uint32_t da,
                                    char *buf) {
    return setter(buf, "setpsnethipaddr", VQ6192_ETH_SetPSNEthIPAddr(chip, ch, type, sa, da));
}

VQ6192_API uint32_t setingvlanid(uint32_t chip, uint32_t type, uint32_t ch, uint32_t vlan, char *buf) {
    return setter(buf, "setingvlanid", VQ6192_ETH_SetIngVlanID(chip, type, ch, vlan));
}

VQ6192_API uint32_t getingvlanid(uint32_t chip, uint32_t type, uint32_t ch, char *buf) {
    uint32_t vlan = 0;
    const uint32_t rc = VQ6192_ETH_GetIngVlanID(chip, type, ch, &vlan);
    return nSingle(buf, "GetIngVlanID()", {{"rdwVlanId", vlan}}, rc);
}

VQ6192_API uint32_t setsrvpktingda(uint32_t chip, uint32_t type, uint32_t ch, uint32_t low, uint32_t mid,
                                   uint32_t high, char *buf) {
    if (low > 0xFFFF || mid > 0xFFFF || high > 0xFFFF) {
        return setter(buf, "setsrvpktingda", vq::paraErr(chip, VQ6192_MODULE_ETH));
    }
    return setter(buf, "setsrvpktingda",
                  VQ6192_ETH_SetSrvPktIngDA(chip, type, ch, static_cast<uint16_t>(low),
                                            static_cast<uint16_t>(mid), static_cast<uint16_t>(high)));
}

VQ6192_API uint32_t setatmcespmuencplbl(uint32_t chip, uint32_t ch, uint32_t type, uint32_t encp,
                                        uint32_t label, uint32_t inLabel, char *buf) {
    return setter(buf, "setatmcespmuencplbl",
                  VQ6192_ETH_SetAtmCesPMUEncpLbl(chip, ch, type, encp, label, inLabel));
}

VQ6192_API uint32_t setppppmuencplbl(uint32_t chip, uint32_t ch, uint32_t type, uint32_t encp, uint32_t label,
                                     uint32_t gre, char *buf) {
    return setter(buf, "setppppmuencplbl", VQ6192_ETH_SetPppPMUEncpLbl(chip, ch, type, encp, label, gre));
}

VQ6192_API uint32_t setegmplsbase(uint32_t chip, uint32_t sel, uint32_t base, char *buf) {
    return setter(buf, "setegmplsbase", VQ6192_ETH_SetEgMplsBase(chip, sel, base));
}

VQ6192_API uint32_t getegmplsbase(uint32_t chip, uint32_t sel, char *buf) {
    uint32_t base = 0;
    const uint32_t rc = VQ6192_ETH_GetEgMplsBase(chip, sel, &base);
    return ethSingle(buf, "GetEgMplsBase()", {{"rdwBase", base}}, rc);
}

VQ6192_API uint32_t setatmcesegmpls2chnl(uint32_t chip, uint32_t ch, uint32_t type, uint32_t inLabel,
                                         uint32_t sel, uint32_t en, char *buf) {
    return setter(buf, "setatmcesegmpls2chnl",
                  VQ6192_ETH_SetAtmCesEgMpls2Chnl(chip, ch, type, inLabel, sel, en));
}

VQ6192_API uint32_t getatmcesegmpls2chnl(uint32_t chip, uint32_t ch, uint32_t type, char *buf) {
    uint32_t inLabel = 0, sel = 0, found = 0;
    const uint32_t rc = VQ6192_ETH_GetAtmCesEgMpls2Chnl(chip, ch, type, &inLabel, &sel, &found);
    return ethSingle(buf, "GetAtmCesEgMpls2Chnl()",
                     {{"rdwInLabel", inLabel}, {"rdwSelect", sel}, {"rdwFound", found}}, rc);
}

VQ6192_API uint32_t setegvlanid2chnl(uint32_t chip, uint32_t vlan, uint32_t type, uint32_t ch, char *buf) {
    return setter(buf, "setegvlanid2chnl", VQ6192_ETH_SetEgVlanID2Chnl(chip, vlan, type, ch));
}

VQ6192_API uint32_t getegvlanid2chnl(uint32_t chip, uint32_t vlan, char *buf) {
    uint32_t type = 0, ch = 0;
    const uint32_t rc = VQ6192_ETH_GetEgVlanID2Chnl(chip, vlan, &type, &ch);
    return nSingle(buf, "GetEgVlanID2Chnl()", {{"rdwLblType", type}, {"rdwChnlNo", ch}}, rc);
}

VQ6192_API uint32_t setingpppmp2pid(uint32_t chip, uint32_t ch, uint32_t kind, uint32_t pid, uint32_t valid,
                                    char *buf) {
    return setter(buf, "setingpppmp2pid", VQ6192_ETH_SetIngPPPMP2PID(chip, ch, kind, pid, valid));
}

VQ6192_API uint32_t getingpppmp2pid(uint32_t chip, uint32_t ch, uint32_t kind, char *buf) {
    uint32_t pid = 0, valid = 0;
    const uint32_t rc = VQ6192_ETH_GetIngPPPMP2PID(chip, ch, kind, &pid, &valid);
    return ethSingle(buf, "GetIngPPPMP2PID()", {{"rdwPid", pid}, {"rdwValid", valid}}, rc);
}

VQ6192_API uint32_t setegpid2pppmp(uint32_t chip, uint32_t pid, uint32_t ch, uint32_t kind, uint32_t en,
                                   char *buf) {
    return setter(buf, "setegpid2pppmp", VQ6192_ETH_SetEgPID2PPPMP(chip, pid, ch, kind, en));
}

VQ6192_API uint32_t getegpid2pppmp(uint32_t chip, uint32_t pid, char *buf) {
    uint32_t ch = 0, kind = 0, en = 0;
    const uint32_t rc = VQ6192_ETH_GetEgPID2PPPMP(chip, pid, &ch, &kind, &en);
    return nSingle(buf, "GetEgPID2PPPMP()", {{"rdwChnlNo", ch}, {"rdwType", kind}, {"rdwEnable", en}}, rc);
}

VQ6192_API uint32_t setsrvppppro2ethtypebyidx(uint32_t chip, uint32_t idx, uint32_t dir, uint32_t ppp,
                                              uint32_t type, uint32_t active, char *buf) {
    return setter(buf, "setsrvppppro2ethtypebyidx",
                  VQ6192_ETH_SetSrvPPPPro2EthType(chip, idx, dir, ppp, type, active));
}

VQ6192_API uint32_t getsrvppppro2ethtype(uint32_t chip, uint32_t idx, uint32_t dir, char *buf) {
    uint32_t ppp = 0, type = 0, active = 0;
    const uint32_t rc = VQ6192_ETH_GetSrvPPPPro2EthType(chip, idx, dir, &ppp, &type, &active);
    return ethSingle(buf, "GetSrvPPPPro2EthType()",
                     {{"rdwPppProtocol", ppp}, {"rdwEthType", type}, {"rdwActive", active}}, rc);
}

VQ6192_API uint32_t setppppro2ethpro(uint32_t chip, uint32_t idx, uint32_t ppp, uint32_t cpu, uint32_t active,
                                     char *buf) {
    return setter(buf, "setppppro2ethpro", VQ6192_ETH_SetPPPPro2EthPro(chip, idx, ppp, cpu, active));
}

VQ6192_API uint32_t getppppro2ethpro(uint32_t chip, uint32_t idx, char *buf) {
    uint32_t ppp = 0, cpu = 0, active = 0;
    const uint32_t rc = VQ6192_ETH_GetPPPPro2EthPro(chip, idx, &ppp, &cpu, &active);
    return nSingle(buf, "GetPPPPro2EthPro()",
                   {{"rdwPppProtocol", ppp}, {"rdwCpuProtocol", cpu}, {"rdwActive", active}}, rc);
}

// Both directions of the 32 protocol pairs, active pairs two to a line.
VQ6192_API uint32_t ppppro2type(uint32_t chip, char *buf) {
    uint32_t rc = 0;
    vq::TextBuilder text(buf);
    for (uint32_t dir = 0; dir < 2; ++dir) {
        uint32_t ppp[32] = {}, type[32] = {}, active[32] = {};
        uint32_t dirRc = 0;
        for (uint32_t i = 0; i < 32; ++i) {
            dirRc |= VQ6192_ETH_GetSrvPPPPro2EthType(chip, i, dir, &ppp[i], &type[i], &active[i]);
        }
        rc |= dirRc;
        if (dirRc != 0) {
            text.add(dir == 0 ? "INGRESS Error.\n" : "EGRESS Error.\n");
            continue;
        }
        text.add(dir == 0 ? "  Ingress\n" : "  Egress\n");
        text.add("  Index        pro       type    |  Index        pro       type\n");
        uint32_t shown = 0;
        for (uint32_t i = 0; i < 32; ++i) {
            if (active[i] == 0) {
                continue;
            }
            text.add("  %-5u      0x%-4x      0x%-4x    |", i, ppp[i], type[i]);
            if (++shown % 2 == 0) {
                text.add("\n");
            }
        }
        if (shown % 2 != 0) {
            text.add("\n");
        }
    }
    return rc;
}

// ---- Packet-engine attributes ---------------------------------------------------------------------------

VQ6192_API uint32_t setpmuipglbattr(uint32_t chip, uint32_t ver, uint32_t ihl, uint32_t ident, uint32_t flags,
                                    uint32_t offset, uint32_t daChk, char *buf) {
    if (ver > 0xFF || ihl > 0xFF || ident > 0xFFFF || flags > 0xFF || offset > 0xFFFF) {
        return setter(buf, "setpmuipglbattr", vq::paraErr(chip, VQ6192_MODULE_ETH));
    }
    const VQ6192_ETH_PMU_IP_GLB_ATTR_S a{static_cast<uint8_t>(ver),     static_cast<uint8_t>(ihl),
                                         static_cast<uint16_t>(ident),  static_cast<uint8_t>(flags),
                                         static_cast<uint16_t>(offset), daChk};
    return setter(buf, "setpmuipglbattr", VQ6192_ETH_SetPMUIpGlbAttr(chip, &a));
}

VQ6192_API uint32_t getpmuipglbattr(uint32_t chip, char *buf) {
    VQ6192_ETH_PMU_IP_GLB_ATTR_S a{};
    const uint32_t rc = VQ6192_ETH_GetPMUIpGlbAttr(chip, &a);
    return table(buf, "GetPMUIpGlbAttr()",
                 {{"byVer", a.byVer},
                  {"byIHL", a.byIHL},
                  {"wIdentification", a.wIdentification},
                  {"byFlags", a.byFlags},
                  {"wFrmOffset", a.wFrmOffset},
                  {"dwEgIpDaChkAddr", a.dwEgIpDaChkAddr}},
                 rc);
}

VQ6192_API uint32_t setpmugreglbattr(uint32_t chip, uint32_t ver, uint32_t type0, uint32_t type1, char *buf) {
    if (ver > 0xFF || type0 > 0xFFFF || type1 > 0xFFFF) {
        return setter(buf, "setpmugreglbattr", vq::paraErr(chip, VQ6192_MODULE_ETH));
    }
    const VQ6192_ETH_PMU_GRE_GLB_ATTR_S a{static_cast<uint8_t>(ver), static_cast<uint16_t>(type0),
                                          static_cast<uint16_t>(type1)};
    return setter(buf, "setpmugreglbattr", VQ6192_ETH_SetPMUGreGlbAttr(chip, &a));
}

VQ6192_API uint32_t getpmugreglbattr(uint32_t chip, char *buf) {
    VQ6192_ETH_PMU_GRE_GLB_ATTR_S a{};
    const uint32_t rc = VQ6192_ETH_GetPMUGreGlbAttr(chip, &a);
    return table(buf, "GetPMUGreGlbAttr()",
                 {{"byVer", a.byVer}, {"wProtType0", a.wProtType0}, {"wProtType1", a.wProtType1}}, rc);
}

VQ6192_API uint32_t setpmuudpsport(uint32_t chip, uint32_t port, char *buf) {
    return setter(buf, "setpmuudpsport", VQ6192_ETH_SetPMUUdpSPort(chip, port));
}

VQ6192_API uint32_t getpmuudpsport(uint32_t chip, char *buf) {
    uint32_t port = 0;
    const uint32_t rc = VQ6192_ETH_GetPMUUdpSPort(chip, &port);
    return ethSingle(buf, "GetPMUUdpSPort()", {{"rdwUdpSPort", port}}, rc);
}

// Selectors and values: fifteen bytes each, in the order of the pattern control record.
VQ6192_API uint32_t setpmuptnctrl(uint32_t chip, const uint8_t *sel, const uint8_t *val, char *buf) {
    if (sel == nullptr || val == nullptr) {
        return setter(buf, "setpmuptnctrl", VQ6192_ETH_SetPmuPtnCtrl(chip, nullptr, nullptr));
    }
    VQ6192_ETH_PMU_PTN_S s, v;
    std::memcpy(&s, sel, sizeof s);
    std::memcpy(&v, val, sizeof v);
    return setter(buf, "setpmuptnctrl", VQ6192_ETH_SetPmuPtnCtrl(chip, &s, &v));
}

VQ6192_API uint32_t getpmuptnctrl(uint32_t chip, char *buf) {
    VQ6192_ETH_PMU_PTN_S p{};
    const uint32_t rc = VQ6192_ETH_GetPmuPtnCtrl(chip, &p);
    uint8_t b[VQ6192_ETH_PMU_PTN_NUM];
    std::memcpy(b, &p, sizeof b);
    uint32_t w[VQ6192_ETH_PMU_PTN_NUM];
    for (uint32_t k = 0; k < VQ6192_ETH_PMU_PTN_NUM; ++k) {
        w[k] = b[k];
    }
    return wordTable(buf, "GetPmuPtnCtrl()", kPtnNames, w, VQ6192_ETH_PMU_PTN_NUM, rc);
}

VQ6192_API uint32_t setvlandisable(uint32_t chip, uint32_t disable, char *buf) {
    return setter(buf, "setvlandisable", VQ6192_ETH_SetVLANDisable(chip, disable));
}

VQ6192_API uint32_t getvlandisable(uint32_t chip, char *buf) {
    uint32_t v = 0;
    const uint32_t rc = VQ6192_ETH_GetVLANDisable(chip, &v);
    return ethSingle(buf, "GetVLANDisable()", {{"rdwVlanDisable", v}}, rc);
}

VQ6192_API uint32_t setpppcpuinsertenable(uint32_t chip, uint32_t insert, uint32_t toCpu, char *buf) {
    return setter(buf, "setpppcpuinsertenable", VQ6192_ETH_SetPppCpuInsertEnable(chip, insert, toCpu));
}

VQ6192_API uint32_t setmpppppauseen(uint32_t chip, uint32_t srvType, uint32_t en, char *buf) {
    return setter(buf, "setmpppppauseen", VQ6192_ETH_SetMpPppPauseEn(chip, srvType, en));
}

VQ6192_API uint32_t getmpppppauseen(uint32_t chip, char *buf) {
    uint32_t sel = 0, en = 0;
    const uint32_t rc = VQ6192_ETH_GetMpPppPauseEn(chip, &sel, &en);
    return ethSingle(buf, "GetMpPppPauseEn()", {{"rbyMpPauseSel", sel}, {"rbyPtnPauseEn", en}}, rc);
}

VQ6192_API uint32_t setethpausepara(uint32_t chip, uint32_t daSel, uint32_t p1, uint32_t p2, uint32_t p3,
                                    uint32_t p4, char *buf) {
    return setter(buf, "setethpausepara", VQ6192_ETH_SetEthPausePara(chip, daSel, p1, p2, p3, p4));
}

VQ6192_API uint32_t setpppprotocoltype(uint32_t chip, uint32_t mode, uint32_t v1, uint32_t v2, char *buf) {
    return setter(buf, "setpppprotocoltype", VQ6192_ETH_SetPppProtocolType(chip, mode, v1, v2));
}

VQ6192_API uint32_t setpppcpuhead(uint32_t chip, uint32_t en, uint32_t len, uint32_t v1, uint32_t v2,
                                  char *buf) {
    return setter(buf, "setpppcpuhead", VQ6192_ETH_SetPppCpuHead(chip, en, len, v1, v2));
}

VQ6192_API uint32_t setingpmupws(uint32_t chip, uint32_t value, char *buf) {
    return setter(buf, "setingpmupws", VQ6192_ETH_SetIngPMUPWS(chip, value));
}

VQ6192_API uint32_t getingpmupws(uint32_t chip, char *buf) {
    uint32_t v = 0;
    const uint32_t rc = VQ6192_ETH_GetIngPMUPWS(chip, &v);
    return ethSingle(buf, "GetIngPMUPWS()", {{"rdwValue", v}}, rc);
}

VQ6192_API uint32_t ethinit(uint32_t chip, uint32_t mode, char *buf) {
    return setter(buf, "ethinit", VQ6192_ETH_ETHInit(chip, mode));
}

// ---- Ports and SerDes -----------------------------------------------------------------------------------

VQ6192_API uint32_t getmacno(uint32_t chip, char *buf) {
    uint32_t mac = 0;
    const uint32_t rc = VQ6192_ETH_GetMACNo(chip, &mac);
    return ethSingle(buf, "GetMACNo()", {{"rdwMacNo", mac}}, rc);
}

// The address is three 16-bit values: low, middle, high.
VQ6192_API uint32_t setserdesmacaddr(uint32_t chip, uint32_t mac, const uint16_t *addr, char *buf) {
    return setter(buf, "setserdesmacaddr", VQ6192_ETH_SetSerDesMACAddr(chip, mac, addr));
}

VQ6192_API uint32_t getserdesmacaddr(uint32_t chip, uint32_t mac, char *buf) {
    uint16_t a[3] = {};
    const uint32_t rc = VQ6192_ETH_GetSerDesMACAddr(chip, mac, a);
    return table(buf, "GetSerDesMACAddr()", {{"wAddrL", a[0]}, {"wAddrM", a[1]}, {"wAddrH", a[2]}}, rc);
}

// Attributes and selectors: one 16-bit value per field, in the order of the attribute record.
VQ6192_API uint32_t setmacattr(uint32_t chip, uint32_t mac, const uint16_t *attr, const uint16_t *sel,
                               char *buf) {
    if (attr == nullptr || sel == nullptr) {
        return setter(buf, "setmacattr", VQ6192_ETH_SetMACAttr(chip, mac, nullptr, nullptr));
    }
    const VQ6192_ETH_MAC_ATTR_S a = macAttrOf(attr), s = macAttrOf(sel);
    return setter(buf, "setmacattr", VQ6192_ETH_SetMACAttr(chip, mac, &a, &s));
}

VQ6192_API uint32_t getmacattr(uint32_t chip, uint32_t mac, char *buf) {
    VQ6192_ETH_MAC_ATTR_S a{};
    const uint32_t rc = VQ6192_ETH_GetMACAttr(chip, mac, &a);
    const char *names[kMacAttrFields];
    uint32_t w[kMacAttrFields];
    size_t k = 0;
#define VQ6192_PUT_FIELD(f) names[k] = #f, w[k++] = a.f;
    VQ6192_MAC_ATTR_FIELDS(VQ6192_PUT_FIELD)
#undef VQ6192_PUT_FIELD
    return wordTable(buf, "GetMACAttr()", names, w, kMacAttrFields, rc);
}

VQ6192_API uint32_t getmaclinkstat(uint32_t chip, uint32_t mac, char *buf) {
    uint32_t up = 0;
    const uint32_t rc = VQ6192_ETH_GetMACLinkStat(chip, mac, &up);
    return nSingle(buf, "GetMACLinkStat()", {{"rdwLinkStat", up}}, rc);
}

VQ6192_API uint32_t setmacloop(uint32_t chip, uint32_t mac, uint32_t mode, char *buf) {
    return setter(buf, "setmacloop", VQ6192_ETH_SetMACLoop(chip, mac, mode));
}

VQ6192_API uint32_t getmacloop(uint32_t chip, uint32_t mac, char *buf) {
    uint32_t mode = 0;
    const uint32_t rc = VQ6192_ETH_GetMACLoop(chip, mac, &mode);
    return ethSingle(buf, "GetMACLoop()", {{"rdwLoopMode", mode}}, rc);
}

VQ6192_API uint32_t setserdesloop(uint32_t chip, uint32_t lane, uint32_t point, uint32_t en, char *buf) {
    return setter(buf, "setserdesloop", VQ6192_ETH_SetSerdesLoop(chip, lane, point, en));
}

VQ6192_API uint32_t getserdesloop(uint32_t chip, uint32_t lane, char *buf) {
    uint32_t point = 0, en = 0;
    const uint32_t rc = VQ6192_ETH_GetSerdesLoop(chip, lane, &point, &en);
    return ethSingle(buf, "GetSerdesLoop()", {{"rdwLoopPoint", point}, {"rdwEnable", en}}, rc);
}

VQ6192_API uint32_t setserdesallchnlreset(uint32_t chip, uint32_t en, char *buf) {
    return setter(buf, "setserdesallchnlreset", VQ6192_ETH_SetSerDesAllChnlReset(chip, en));
}

VQ6192_API uint32_t getserdesallchnlreset(uint32_t chip, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_ETH_GetSerDesAllChnlReset(chip, &en);
    return ethSingle(buf, "GetSerDesAllChnlReset()", {{"rdwReset", en}}, rc);
}

VQ6192_API uint32_t setserdeschnlreset(uint32_t chip, uint32_t lane, uint32_t en, char *buf) {
    return setter(buf, "setserdeschnlreset", VQ6192_ETH_SetSerDesChnlReset(chip, lane, en));
}

VQ6192_API uint32_t getserdeschnlreset(uint32_t chip, uint32_t lane, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_ETH_GetSerDesChnlReset(chip, lane, &en);
    return ethSingle(buf, "GetSerDesChnlReset()", {{"rdwReset", en}}, rc);
}

VQ6192_API uint32_t setserdesallchnlpowerdown(uint32_t chip, uint32_t en, char *buf) {
    return setter(buf, "setserdesallchnlpowerdown", VQ6192_ETH_SetSerDesAllChnlPowerDown(chip, en));
}

VQ6192_API uint32_t getserdesallchnlpowerdown(uint32_t chip, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_ETH_GetSerDesAllChnlPowerDown(chip, &en);
    return ethSingle(buf, "GetSerDesAllChnlPowerDown()", {{"rdwPowerDown", en}}, rc);
}

VQ6192_API uint32_t getsesdesalmerr(uint32_t chip, uint32_t lane, char *buf) {
    uint16_t a[9] = {};
    const uint32_t rc = VQ6192_ETH_GetSesDesAlmErr(chip, lane, a);
    return table(buf, "GetSesDesAlmErr()",
                 {{"awAlmErr[0]", a[0]},
                  {"awAlmErr[1]", a[1]},
                  {"awAlmErr[2]", a[2]},
                  {"awAlmErr[3]", a[3]},
                  {"awAlmErr[4]", a[4]},
                  {"awAlmErr[5]", a[5]},
                  {"awAlmErr[6]", a[6]},
                  {"awAlmErr[7]", a[7]},
                  {"awAlmErr[8]", a[8]}},
                 rc);
}

VQ6192_API uint32_t getmacper(uint32_t chip, uint32_t mac, char *buf) {
    VQ6192_ETH_MAC_PER_S s{};
    const uint32_t rc = VQ6192_ETH_GetMACPer(chip, mac, &s);
    uint32_t w[VQ6192_ETH_MAC_PER_NUM];
    std::memcpy(w, &s, sizeof w);
    return wordTable(buf, "GetMACPer()", kMacPerNames, w, VQ6192_ETH_MAC_PER_NUM, rc);
}

// The second argument is not used.
VQ6192_API uint32_t getmaccnt(uint32_t chip, uint32_t unused, uint32_t mac, char *buf) {
    (void)unused;
    return getmacper(chip, mac, buf);
}

VQ6192_API uint32_t geteth1per(uint32_t chip, char *buf) {
    VQ6192_ETH_ETH1_PER_S s{};
    const uint32_t rc = VQ6192_ETH_GetETH1Per(chip, &s);
    uint32_t w[VQ6192_ETH_ETH1_PER_NUM];
    std::memcpy(w, &s, sizeof w);
    return wordTable(buf, "GetETH1Per()", kEth1Names, w, VQ6192_ETH_ETH1_PER_NUM, rc);
}

VQ6192_API uint32_t seteth1wrrweight(uint32_t chip, uint32_t cls, uint32_t weight, char *buf) {
    return setter(buf, "seteth1wrrweight", VQ6192_ETH_SetETH1WRRWeight(chip, cls, weight));
}

VQ6192_API uint32_t geteth1wrrweight(uint32_t chip, uint32_t cls, char *buf) {
    uint32_t w = 0;
    const uint32_t rc = VQ6192_ETH_GetETH1WRRWeight(chip, cls, &w);
    return ethSingle(buf, "GetETH1WRRWeight()", {{"rdwWeight", w}}, rc);
}

VQ6192_API uint32_t setethglbpauseenable(uint32_t chip, uint32_t en, char *buf) {
    return setter(buf, "setethglbpauseenable", VQ6192_ETH_SetEthGlbPauseEnable(chip, en));
}

VQ6192_API uint32_t setethppplengthenable(uint32_t chip, uint32_t en1, uint32_t en0, char *buf) {
    return setter(buf, "setethppplengthenable", VQ6192_ETH_SetEthPppLengthEnable(chip, en1, en0));
}

VQ6192_API uint32_t seteth1maxlen(uint32_t chip, uint32_t len, char *buf) {
    return setter(buf, "seteth1maxlen", VQ6192_ETH_SetEth1Maxlen(chip, len));
}

VQ6192_API uint32_t seteth1portsendmode(uint32_t chip, uint32_t mode, char *buf) {
    const uint32_t rc = VQ6192_ETH_SetEth1PortSendMode(chip, mode);
    if (buf != nullptr) {
        vq::TextBuilder(buf)
            .add("seteth1portsendmode(UCHAR byMode)\n")
            .add(
                "     UCHAR byMode   : 0:Select single-fed and single-receiving; 1:Select dual-fed and "
                "single-receiving\n")
            .add("        seteth1portsendmode() %s\n", rc == 0 ? "OK" : "FAIL");
    }
    return rc;
}

VQ6192_API uint32_t setethappinterface(uint32_t chip, uint32_t en, char *buf) {
    return setter(buf, "setethappinterface", VQ6192_ETH_SetEthAppInterface(chip, en));
}

VQ6192_API uint32_t getethappinterface(uint32_t chip, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_ETH_GetEthAppInterface(chip, &en);
    return ethSingle(buf, "GetEthAppInterface()", {{"rdwAppInterface", en}}, rc);
}

// ---- Self-test ------------------------------------------------------------------------------------------

VQ6192_API uint32_t setselftestglbctl(uint32_t chip, uint32_t dir, uint32_t mac, uint32_t pattern,
                                      uint32_t len, char *buf) {
    return setter(buf, "setselftestglbctl", VQ6192_ETH_SetSelfTestGlbCtl(chip, dir, mac, pattern, len));
}

VQ6192_API uint32_t getselftestglbctl(uint32_t chip, char *buf) {
    uint32_t dir = 0, mac = 0, pattern = 0, len = 0;
    const uint32_t rc = VQ6192_ETH_GetSelfTestGlbCtl(chip, &dir, &mac, &pattern, &len);
    return ethSingle(
        buf, "GetSelfTestGlbCtl()",
        {{"rbyDirect", dir}, {"rbyMacNo", mac}, {"rbyTestPattern", pattern}, {"rwPlayLoadLen", len}}, rc);
}

VQ6192_API uint32_t setselftestchnlen(uint32_t chip, const uint16_t *en, char *buf) {
    return setter(buf, "setselftestchnlen", VQ6192_ETH_SetSelfTestChnlEn(chip, en));
}

VQ6192_API uint32_t getselftestchnlen(uint32_t chip, char *buf) {
    uint16_t en[4] = {};
    const uint32_t rc = VQ6192_ETH_GetSelfTestChnlEn(chip, en);
    return ethSingle(buf, "GetSelfTestChnlEn()",
                     {{"qwChnlEn0", en[0]}, {"qwChnlEn1", en[1]}, {"qwChnlEn2", en[2]}, {"qwChnlEn3", en[3]}},
                     rc);
}

VQ6192_API uint32_t setselftestprbs(uint32_t chip, uint32_t ch, uint32_t en, char *buf) {
    return setter(buf, "setselftestprbs", VQ6192_ETH_SetSelfTestPRBS(chip, ch, en));
}

VQ6192_API uint32_t getselftestprbs(uint32_t chip, char *buf) {
    uint32_t ch = 0, en = 0;
    const uint32_t rc = VQ6192_ETH_GetSelfTestPRBS(chip, &ch, &en);
    return ethSingle(buf, "GetSelfTestPRBS()", {{"rbyPrbsChnl", ch}, {"rbyPrbsEn", en}}, rc);
}

VQ6192_API uint32_t setselftestrate(uint32_t chip, uint32_t rate, char *buf) {
    return setter(buf, "setselftestrate", VQ6192_ETH_SetSelfTestRate(chip, rate));
}

VQ6192_API uint32_t getselftestrate(uint32_t chip, char *buf) {
    uint32_t rate = 0;
    const uint32_t rc = VQ6192_ETH_GtSelfTestRate(chip, &rate);
    return ethSingle(buf, "GtSelfTestRate()", {{"rwRate", rate}}, rc);
}

VQ6192_API uint32_t setselftesten(uint32_t chip, uint32_t en5, uint32_t en7, char *buf) {
    return setter(buf, "setselftesten", VQ6192_ETH_SetSelfTestEn(chip, en5, en7));
}

VQ6192_API uint32_t getselftesten(uint32_t chip, char *buf) {
    uint32_t en5 = 0, en7 = 0;
    const uint32_t rc = VQ6192_ETH_GetSelfTestEn(chip, &en5, &en7);
    return ethSingle(buf, "GetSelfTestEn()", {{"rbyTestEn", en5}, {"rbyTestEn2", en7}}, rc);
}

VQ6192_API uint32_t setselftesttxheaddata(uint32_t chip, uint32_t idx, const uint8_t *data, uint32_t len,
                                          char *buf) {
    return setter(buf, "setselftesttxheaddata", VQ6192_ETH_SetSelfTestTxHeadData(chip, idx, data, len));
}

VQ6192_API uint32_t getselftesttxheaddata(uint32_t chip, uint32_t idx, char *buf) {
    uint8_t data[64] = {};
    uint32_t len = 0;
    const uint32_t rc = VQ6192_ETH_GetSelfTestTxHeadData(chip, idx, data, &len);
    if (buf != nullptr) {
        vq::TextBuilder text(buf);
        fieldTable(text, "GetSelfTestTxHeadData()", {{"rbyHeadLen", len}}, kStructLine);
        bytesOut(text, data, 64);
    }
    return rc;
}

VQ6192_API uint32_t setselftestshouldrxheaddata(uint32_t chip, uint32_t idx, const uint8_t *data, char *buf) {
    return setter(buf, "setselftestshouldrxheaddata",
                  VQ6192_ETH_SetSelfTestShouldRxHeadData(chip, idx, data, 0));
}

VQ6192_API uint32_t setselftestshouldrxheaddatamsk(uint32_t chip, uint32_t idx, const uint8_t *data,
                                                   char *buf) {
    return setter(buf, "setselftestshouldrxheaddatamsk",
                  VQ6192_ETH_SetSelfTestShouldRxHeadData(chip, idx, data, 1));
}

VQ6192_API uint32_t getselftestshouldrxheaddata(uint32_t chip, uint32_t idx, char *buf) {
    uint8_t data[64] = {};
    const uint32_t rc = VQ6192_ETH_GetSelfTestShouldRxHeadData(chip, idx, data);
    if (buf != nullptr) {
        vq::TextBuilder text(buf);
        text.add("        GetSelfTestShouldRxHeadData()\n");
        bytesOut(text, data, 64);
    }
    return rc;
}

// ---- Capture and protocol packets -----------------------------------------------------------------------

VQ6192_API uint32_t startcapethpkt(uint32_t chip, uint32_t dir, uint32_t len, const uint8_t *match,
                                   const uint8_t *option, char *buf) {
    return setter(buf, "startcapethpkt", VQ6192_ETH_StartCapEthPkt(chip, dir, len, match, option));
}

VQ6192_API uint32_t stopcapethpkt(uint32_t chip, char *buf) {
    return setter(buf, "stopcapethpkt", VQ6192_ETH_StopCapEthPkt(chip));
}

namespace {

uint32_t readAndPrintCapture(uint32_t chip, uint8_t *pkt, char *buf) {
    uint16_t len = 0;
    const uint32_t rc = VQ6192_ETH_GetCapEthPkt(chip, pkt, &len);
    if (buf != nullptr) {
        vq::TextBuilder text(buf);
        text.add(
            "\r\n        GetCapEthPkt()\r\n    | RxLen                : 0x%-8x(%-10u) \r\n\r\n"
            "----------------------------------------------------------------------------\r\n"
            "   CaptureData: \r\n",
            len, len);
        bytesOut(text, pkt, len);
    }
    return rc;
}

}  // namespace

VQ6192_API uint32_t getcapethpkt(uint32_t chip, char *buf) {
    auto *pkt = static_cast<uint8_t *>(vq::_drv_malloc(kWorkBufSize, "vq6192_eth_sub", __LINE__));
    if (pkt == nullptr) {
        return VQ6192_STATUS(chip, VQ6192_MODULE_ETH, VQ6192_ERR_NULL);
    }
    const uint32_t rc = readAndPrintCapture(chip, pkt, buf);
    vq::_drv_free(pkt);
    return rc;
}

// A capture of the first packet with 0x81 in its fourth byte (a VLAN tag), 20 seconds long.
VQ6192_API uint32_t Vq6192CapEthPkt(uint32_t chip, uint32_t dir, char *buf) {
    if (chip >= 16 || dir >= 2) {
        return 2;
    }
    auto *pkt = static_cast<uint8_t *>(vq::_drv_malloc(kWorkBufSize, "vq6192_eth_sub", __LINE__));
    if (pkt == nullptr) {
        return VQ6192_STATUS(chip, VQ6192_MODULE_ETH, VQ6192_ERR_NULL);
    }
    uint8_t match[32] = {};
    match[3] = 0x81;
    const uint8_t option[4] = {0xFC, 0xFF, 0xFF, 0xFF};
    uint32_t rc = VQ6192_ETH_StartCapEthPkt(chip, dir, 12, match, option);
    vq::OSK_TaskDelay(2000);
    rc |= VQ6192_ETH_StopCapEthPkt(chip);
    rc |= readAndPrintCapture(chip, pkt, buf);
    vq::_drv_free(pkt);
    return rc;
}

VQ6192_API uint32_t insertpppprotocolpkt(uint32_t chip, const uint8_t *data, uint32_t len, char *buf) {
    if (len > 4095) {
        if (buf != nullptr) {
            vq::TextBuilder(buf).add("The MAX Data Len is 4095!\n");
        }
        return VQ6192_STATUS(chip, VQ6192_MODULE_ETH, VQ6192_ERR_PARA);
    }
    return setter(buf, "insertpppprotocolpkt", VQ6192_ETH_InsertPppProtocolPkt(chip, data, len));
}

VQ6192_API uint32_t readpppprotocolpkt(uint32_t chip, char *buf) {
    auto *pkt = static_cast<uint8_t *>(vq::_drv_malloc(kWorkBufSize, "vq6192_eth_sub", __LINE__));
    if (pkt == nullptr) {
        return VQ6192_STATUS(chip, VQ6192_MODULE_ETH, VQ6192_ERR_NULL);
    }
    uint32_t len = 0;
    const uint32_t rc = VQ6192_ETH_ReadPppProtocolPkt(chip, pkt, &len);
    if (buf != nullptr) {
        vq::TextBuilder text(buf);
        text.add(" rdwDataLen    :    0x%x(%u )\n", len, len);
        bytesOut(text, pkt, len);
    }
    vq::_drv_free(pkt);
    return rc;
}

// Trailing zero bits of x; 0 for x = 0. A helper without a chip: it has no registry row.
VQ6192_API uint32_t COUNT_ZERO_NUM(uint32_t x) {
    if (x == 0) {
        return 0;
    }
    uint32_t n = 0;
    while ((x & 1u) == 0 && n < 33) {
        x >>= 1;
        ++n;
    }
    return n;
}

// ---- MAC ports --------------------------------------------------------------------------------------------

VQ6192_API uint32_t cdk_setportworkmode(uint32_t chip, uint32_t port, uint32_t mode, char *buf) {
    return macSetter(buf, "cdk_setportworkmode", VQ6192_MAC_SetPortWorkMode(chip, port, mode));
}

VQ6192_API uint32_t cdk_getportworkmode(uint32_t chip, uint32_t port, char *buf) {
    uint32_t mode = 0;
    const uint32_t rc = VQ6192_MAC_GetPortWorkMode(chip, port, &mode);
    return macSingle(buf, "GetPortWorkMode()", {"reWorkMode", mode}, rc);
}

VQ6192_API uint32_t cdk_getportlinkstatus(uint32_t chip, uint32_t port, uint32_t x, char *buf) {
    uint32_t link = 0;
    const uint32_t rc = VQ6192_MAC_GetPortLinkStatus(chip, port, x, &link);
    return macSingle(buf, "GetPortLinkStatus()", {"reLinkStatus", link}, rc);
}

VQ6192_API uint32_t cdk_setporttxen(uint32_t chip, uint32_t port, uint32_t v, char *buf) {
    return macSetter(buf, "cdk_setporttxen", VQ6192_MAC_SetPortTxEn(chip, port, v));
}

VQ6192_API uint32_t cdk_setportrxen(uint32_t chip, uint32_t port, uint32_t v, char *buf) {
    return macSetter(buf, "cdk_setportrxen", VQ6192_MAC_SetPortRxEn(chip, port, v));
}

VQ6192_API uint32_t cdk_setportrxfcsen(uint32_t chip, uint32_t port, uint32_t v, char *buf) {
    return macSetter(buf, "cdk_setportrxfcsen", VQ6192_MAC_SetPortRxFcsEn(chip, port, v));
}

VQ6192_API uint32_t cdk_setporttxfcsen(uint32_t chip, uint32_t port, uint32_t v, char *buf) {
    return macSetter(buf, "cdk_setporttxfcsen", VQ6192_MAC_SetPortTxFcsEn(chip, port, v));
}

VQ6192_API uint32_t cdk_setporttxpaden(uint32_t chip, uint32_t port, uint32_t v, char *buf) {
    return macSetter(buf, "cdk_setporttxpaden", VQ6192_MAC_SetPortTxPadEn(chip, port, v));
}

VQ6192_API uint32_t cdk_setportrxundersizepkten(uint32_t chip, uint32_t port, uint32_t v, char *buf) {
    return macSetter(buf, "cdk_setportrxundersizepkten", VQ6192_MAC_SetPortRxUnderSizePktEn(chip, port, v));
}

VQ6192_API uint32_t cdk_setportrxpadstripen(uint32_t chip, uint32_t port, uint32_t v, char *buf) {
    return macSetter(buf, "cdk_setportrxpadstripen", VQ6192_MAC_SetPortRxPadStripEn(chip, port, v));
}

VQ6192_API uint32_t cdk_setportmaxpktlencfg(uint32_t chip, uint32_t port, uint32_t v, char *buf) {
    return macSetter(buf, "cdk_setportmaxpktlencfg", VQ6192_MAC_SetPortMaxPktLenCfg(chip, port, v));
}

VQ6192_API uint32_t cdk_setportloopbacken(uint32_t chip, uint32_t port, uint32_t kind, uint32_t en,
                                          char *buf) {
    return macSetter(buf, "cdk_setportloopbacken", VQ6192_MAC_SetPortLoopbackEn(chip, port, kind, en));
}

VQ6192_API uint32_t cdk_setportpausemode(uint32_t chip, uint32_t port, uint32_t mode, char *buf) {
    return macSetter(buf, "cdk_setportpausemode", VQ6192_MAC_SetPortPauseMode(chip, port, mode));
}

VQ6192_API uint32_t cdk_getportpausemode(uint32_t chip, uint32_t port, char *buf) {
    uint32_t mode = 0;
    const uint32_t rc = VQ6192_MAC_GetPortPauseMode(chip, port, &mode);
    return macSingle(buf, "GetPortPauseMode()", {"reFcMode", mode}, rc);
}

VQ6192_API uint32_t cdk_setportpauseaddr(uint32_t chip, uint32_t port, const uint8_t *mac, char *buf) {
    uint8_t addr[6] = {};
    if (mac != nullptr) {
        std::memcpy(addr, mac, sizeof addr);
    }
    return macSetter(buf, "cdk_setportpauseaddr", VQ6192_MAC_SetPortPauseAddr(chip, port, addr));
}

VQ6192_API uint32_t cdk_getportpauseaddr(uint32_t chip, uint32_t port, char *buf) {
    uint8_t a[6] = {};
    const uint32_t rc = VQ6192_MAC_GetPortPauseAddr(chip, port, a);
    if (buf != nullptr) {
        vq::TextBuilder text(buf);
        fieldTable(text, "GetPortPauseAddr()",
                   {{"aucMac[0]", a[0]},
                    {"aucMac[1]", a[1]},
                    {"aucMac[2]", a[2]},
                    {"aucMac[3]", a[3]},
                    {"aucMac[4]", a[4]},
                    {"aucMac[5]", a[5]}},
                   kMacAddrLine);
    }
    return rc;
}

// Takes no chip and does nothing: the MAC side needs no set-up before its ports are used.
VQ6192_API uint32_t initcdkmac(void) {
    return 0;
}

}  // extern "C"

namespace vq::diag {
namespace {

constexpr Command kCommands[] = {
    // Packet-network headers and maps
    VQ6192_DIAG_COMMAND(getpsnethinfo, "ETH", "chip ch srvType", "show the header entry of a service"),
    VQ6192_DIAG_COMMAND(setpsnethinfo, "ETH", "chip ch srvType info",
                        "write a whole header entry (72 bytes: 18 big-endian fields)"),
    VQ6192_DIAG_COMMAND(modifypsnethinfo, "ETH", "chip ch srvType mask info",
                        "write the selected header fields (18 mask bytes, 72 info bytes)"),
    VQ6192_DIAG_COMMAND(setpsnethipaddr, "ETH", "chip ch srvType ipSa ipDa", "set the header's IP addresses"),
    VQ6192_DIAG_COMMAND(setingvlanid, "ETH", "chip srvType ch vlan", "set the header's VLAN id"),
    VQ6192_DIAG_COMMAND(getingvlanid, "ETH", "chip srvType ch", "show the header's VLAN id"),
    VQ6192_DIAG_COMMAND(setsrvpktingda, "ETH", "chip srvType ch macL macM macH",
                        "set the header's destination MAC"),
    VQ6192_DIAG_COMMAND(setatmcespmuencplbl, "ETH", "chip ch srvType encp pwLabel inLabel",
                        "set an ATM/CES encapsulation and its in-label"),
    VQ6192_DIAG_COMMAND(setppppmuencplbl, "ETH", "chip ch srvType encp pwLabel greType",
                        "set a PPP/bundle encapsulation"),
    VQ6192_DIAG_COMMAND(setegmplsbase, "ETH", "chip sel base", "set the MPLS (0) or UDP (1) in-label base"),
    VQ6192_DIAG_COMMAND(getegmplsbase, "ETH", "chip sel", "show the MPLS (0) or UDP (1) in-label base"),
    VQ6192_DIAG_COMMAND(setatmcesegmpls2chnl, "ETH", "chip ch srvType inLabel sel enable",
                        "map an in-label to an ATM/CES channel"),
    VQ6192_DIAG_COMMAND(getatmcesegmpls2chnl, "ETH", "chip ch srvType", "search the in-label of a channel"),
    VQ6192_DIAG_COMMAND(setegvlanid2chnl, "ETH", "chip vlan lblType ch", "map a received VLAN to a channel"),
    VQ6192_DIAG_COMMAND(getegvlanid2chnl, "ETH", "chip vlan", "show the channel of a received VLAN"),
    VQ6192_DIAG_COMMAND(setingpppmp2pid, "ETH", "chip ch kind pid valid",
                        "map a PPP/bundle channel to a CPU PID"),
    VQ6192_DIAG_COMMAND(getingpppmp2pid, "ETH", "chip ch kind", "show the CPU PID of a PPP/bundle channel"),
    VQ6192_DIAG_COMMAND(setegpid2pppmp, "ETH", "chip pid ch kind enable",
                        "map a CPU PID to a PPP/bundle channel"),
    VQ6192_DIAG_COMMAND(getegpid2pppmp, "ETH", "chip pid", "show the channel of a CPU PID"),
    VQ6192_DIAG_COMMAND(setsrvppppro2ethtypebyidx, "ETH", "chip idx dir pppPro ethType active",
                        "set a PPP protocol / EtherType pair"),
    VQ6192_DIAG_COMMAND(getsrvppppro2ethtype, "ETH", "chip idx dir", "show a PPP protocol / EtherType pair"),
    VQ6192_DIAG_COMMAND(ppppro2type, "ETH", "chip", "list the active protocol pairs of both directions"),
    VQ6192_DIAG_COMMAND(setppppro2ethpro, "ETH", "chip idx pppPro cpuPro active", "set a CPU protocol entry"),
    VQ6192_DIAG_COMMAND(getppppro2ethpro, "ETH", "chip idx", "show a CPU protocol entry"),
    // Packet-engine attributes
    VQ6192_DIAG_COMMAND(setpmuipglbattr, "ETH", "chip ver ihl ident flags offset daChk",
                        "set the IP header attributes"),
    VQ6192_DIAG_COMMAND(getpmuipglbattr, "ETH", "chip", "show the IP header attributes"),
    VQ6192_DIAG_COMMAND(setpmugreglbattr, "ETH", "chip ver type0 type1", "set the GRE attributes"),
    VQ6192_DIAG_COMMAND(getpmugreglbattr, "ETH", "chip", "show the GRE attributes"),
    VQ6192_DIAG_COMMAND(setpmuudpsport, "ETH", "chip port", "set the UDP source port"),
    VQ6192_DIAG_COMMAND(getpmuudpsport, "ETH", "chip", "show the UDP source port"),
    VQ6192_DIAG_COMMAND(setpmuptnctrl, "ETH", "chip sel val",
                        "set pattern control bits (15 selector, 15 value bytes)"),
    VQ6192_DIAG_COMMAND(getpmuptnctrl, "ETH", "chip", "show the pattern control bits"),
    VQ6192_DIAG_COMMAND(setvlandisable, "ETH", "chip disable", "set the VLAN disable bit"),
    VQ6192_DIAG_COMMAND(getvlandisable, "ETH", "chip", "show the VLAN disable bit"),
    VQ6192_DIAG_COMMAND(setpppcpuinsertenable, "ETH", "chip insert toCpu", "set CPU insertion and to-CPU"),
    VQ6192_DIAG_COMMAND(setmpppppauseen, "ETH", "chip srvType enable", "set the bundle/PPP pause"),
    VQ6192_DIAG_COMMAND(getmpppppauseen, "ETH", "chip", "show the bundle/PPP pause"),
    VQ6192_DIAG_COMMAND(setethpausepara, "ETH", "chip daSel p1 p2 p3 p4", "set the pause parameters"),
    VQ6192_DIAG_COMMAND(setpppprotocoltype, "ETH", "chip mode value1 value2",
                        "set the PPP protocol identification"),
    VQ6192_DIAG_COMMAND(setpppcpuhead, "ETH", "chip enable len value1 value2", "set the CPU header"),
    VQ6192_DIAG_COMMAND(setingpmupws, "ETH", "chip value", "set the ingress PW selection"),
    VQ6192_DIAG_COMMAND(getingpmupws, "ETH", "chip", "show the ingress PW selection"),
    VQ6192_DIAG_COMMAND(ethinit, "ETH", "chip mode", "initialise the Ethernet side (mode 1)"),
    // Ports and SerDes
    VQ6192_DIAG_COMMAND(getmacno, "ETH", "chip", "show the MAC in use"),
    VQ6192_DIAG_COMMAND(setserdesmacaddr, "ETH", "chip mac addr", "set a station address (low,middle,high)"),
    VQ6192_DIAG_COMMAND(getserdesmacaddr, "ETH", "chip mac", "show a station address"),
    VQ6192_DIAG_COMMAND(setmacattr, "ETH", "chip mac attr sel",
                        "set MAC attributes (41 values, 41 selectors)"),
    VQ6192_DIAG_COMMAND(getmacattr, "ETH", "chip mac", "show the MAC attributes"),
    VQ6192_DIAG_COMMAND(getmaclinkstat, "ETH", "chip mac", "show the MAC link state"),
    VQ6192_DIAG_COMMAND(setmacloop, "ETH", "chip mac mode",
                        "set the MAC loopback (0 off, 1 interface, 2 line)"),
    VQ6192_DIAG_COMMAND(getmacloop, "ETH", "chip mac", "show the MAC loopback"),
    VQ6192_DIAG_COMMAND(setserdesloop, "ETH", "chip lane point enable", "set a SerDes loopback"),
    VQ6192_DIAG_COMMAND(getserdesloop, "ETH", "chip lane", "show a SerDes loopback"),
    VQ6192_DIAG_COMMAND(setserdesallchnlreset, "ETH", "chip enable", "reset all SerDes lanes"),
    VQ6192_DIAG_COMMAND(getserdesallchnlreset, "ETH", "chip", "show the all-lane reset"),
    VQ6192_DIAG_COMMAND(setserdeschnlreset, "ETH", "chip lane enable", "reset a SerDes lane"),
    VQ6192_DIAG_COMMAND(getserdeschnlreset, "ETH", "chip lane", "show a SerDes lane reset"),
    VQ6192_DIAG_COMMAND(setserdesallchnlpowerdown, "ETH", "chip enable", "power down all SerDes lanes"),
    VQ6192_DIAG_COMMAND(getserdesallchnlpowerdown, "ETH", "chip", "show the all-lane power-down"),
    VQ6192_DIAG_COMMAND(getsesdesalmerr, "ETH", "chip lane", "show the SerDes lane alarms"),
    VQ6192_DIAG_COMMAND(getmacper, "ETH", "chip mac", "show the MAC counters"),
    VQ6192_DIAG_COMMAND(getmaccnt, "ETH", "chip x mac", "show the MAC counters (x unused)"),
    VQ6192_DIAG_COMMAND(geteth1per, "ETH", "chip", "show the Ethernet port counters"),
    VQ6192_DIAG_COMMAND(seteth1wrrweight, "ETH", "chip cls weight", "set a class's WRR weight"),
    VQ6192_DIAG_COMMAND(geteth1wrrweight, "ETH", "chip cls", "show a class's WRR weight"),
    VQ6192_DIAG_COMMAND(setethglbpauseenable, "ETH", "chip enable", "set the global pause"),
    VQ6192_DIAG_COMMAND(setethppplengthenable, "ETH", "chip enable1 enable0", "set the PPP length checks"),
    VQ6192_DIAG_COMMAND(seteth1maxlen, "ETH", "chip len", "set the port's maximum frame length"),
    VQ6192_DIAG_COMMAND(seteth1portsendmode, "ETH", "chip mode",
                        "set single-fed (0) or dual-fed (1) sending"),
    VQ6192_DIAG_COMMAND(setethappinterface, "ETH", "chip enable", "set the application interface"),
    VQ6192_DIAG_COMMAND(getethappinterface, "ETH", "chip", "show the application interface"),
    // Self-test
    VQ6192_DIAG_COMMAND(setselftestglbctl, "ETH", "chip dir mac pattern len",
                        "set the self-test direction and payload"),
    VQ6192_DIAG_COMMAND(getselftestglbctl, "ETH", "chip", "show the self-test direction and payload"),
    VQ6192_DIAG_COMMAND(setselftestchnlen, "ETH", "chip en", "set the self-test channel enables (4 words)"),
    VQ6192_DIAG_COMMAND(getselftestchnlen, "ETH", "chip", "show the self-test channel enables"),
    VQ6192_DIAG_COMMAND(setselftestprbs, "ETH", "chip ch enable", "set the self-test PRBS"),
    VQ6192_DIAG_COMMAND(getselftestprbs, "ETH", "chip", "show the self-test PRBS"),
    VQ6192_DIAG_COMMAND(setselftestrate, "ETH", "chip rate", "set the self-test rate"),
    VQ6192_DIAG_COMMAND(getselftestrate, "ETH", "chip", "show the self-test rate"),
    VQ6192_DIAG_COMMAND(setselftesten, "ETH", "chip en5 en7", "start or stop the self-test"),
    VQ6192_DIAG_COMMAND(getselftesten, "ETH", "chip", "show the self-test enables"),
    VQ6192_DIAG_COMMAND(setselftesttxheaddata, "ETH", "chip idx data len",
                        "set a transmit header (64 bytes)"),
    VQ6192_DIAG_COMMAND(getselftesttxheaddata, "ETH", "chip idx", "show a transmit header"),
    VQ6192_DIAG_COMMAND(setselftestshouldrxheaddata, "ETH", "chip idx data",
                        "set an expected receive header"),
    VQ6192_DIAG_COMMAND(setselftestshouldrxheaddatamsk, "ETH", "chip idx data",
                        "set an expected receive header as a mask"),
    VQ6192_DIAG_COMMAND(getselftestshouldrxheaddata, "ETH", "chip idx", "show an expected receive header"),
    // Capture and protocol packets
    VQ6192_DIAG_COMMAND(startcapethpkt, "ETH", "chip dir len match option", "start an Ethernet capture"),
    VQ6192_DIAG_COMMAND(stopcapethpkt, "ETH", "chip", "stop the Ethernet capture"),
    VQ6192_DIAG_COMMAND(getcapethpkt, "ETH", "chip", "show the captured Ethernet packet"),
    VQ6192_DIAG_COMMAND(Vq6192CapEthPkt, "ETH", "chip dir", "capture a VLAN-tagged packet and show it"),
    VQ6192_DIAG_COMMAND(insertpppprotocolpkt, "ETH", "chip data len", "send a PPP protocol packet"),
    VQ6192_DIAG_COMMAND(readpppprotocolpkt, "ETH", "chip", "show a received PPP protocol packet"),
    // MAC ports
    VQ6192_DIAG_COMMAND(cdk_setportworkmode, "MAC", "chip port mode", "set a port's work mode"),
    VQ6192_DIAG_COMMAND(initcdkmac, "MAC", "", "MAC set-up (nothing to do on this chip)"),
    VQ6192_DIAG_COMMAND(cdk_getportworkmode, "MAC", "chip port", "show a port's work mode"),
    VQ6192_DIAG_COMMAND(cdk_getportlinkstatus, "MAC", "chip port x", "show a port's link state"),
    VQ6192_DIAG_COMMAND(cdk_setporttxen, "MAC", "chip port enable", "enable a port's transmitter"),
    VQ6192_DIAG_COMMAND(cdk_setportrxen, "MAC", "chip port enable", "enable a port's receiver"),
    VQ6192_DIAG_COMMAND(cdk_setportrxfcsen, "MAC", "chip port enable", "enable the receive FCS"),
    VQ6192_DIAG_COMMAND(cdk_setporttxfcsen, "MAC", "chip port enable", "enable the transmit FCS"),
    VQ6192_DIAG_COMMAND(cdk_setporttxpaden, "MAC", "chip port enable", "enable transmit padding"),
    VQ6192_DIAG_COMMAND(cdk_setportrxundersizepkten, "MAC", "chip port enable", "accept undersized frames"),
    VQ6192_DIAG_COMMAND(cdk_setportrxpadstripen, "MAC", "chip port enable", "strip receive padding"),
    VQ6192_DIAG_COMMAND(cdk_setportmaxpktlencfg, "MAC", "chip port len", "set the maximum frame length"),
    VQ6192_DIAG_COMMAND(cdk_setportloopbacken, "MAC", "chip port kind enable",
                        "set a loopback (1 line, 2 interface)"),
    VQ6192_DIAG_COMMAND(cdk_setportpausemode, "MAC", "chip port mode", "set the pause mode"),
    VQ6192_DIAG_COMMAND(cdk_getportpausemode, "MAC", "chip port", "show the pause mode"),
    VQ6192_DIAG_COMMAND(cdk_setportpauseaddr, "MAC", "chip port mac", "set the pause address (6 bytes)"),
    VQ6192_DIAG_COMMAND(cdk_getportpauseaddr, "MAC", "chip port", "show the pause address"),
};

}  // namespace

std::span<const Command> ethCommands() {
    return kCommands;
}

}  // namespace vq::diag
