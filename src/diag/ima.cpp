// Diagnostic commands of the IMA family: one IMA read operation each, its outputs framed one field a
// line; and the shell argument helper strcc.
#include <cstdlib>
#include <cstring>

#include "diag/layout.h"
#include "diag/registry.h"
#include "vq6192/ima.h"

namespace vq::diag {
namespace {

constexpr uint32_t kNoBuffer = 2;

struct Report {
    TextBuilder text;
    explicit Report(char *buf, const char *title) : text(buf) { framedHead(text, kMacSep, title); }
    Report &line(const char *label, uint32_t value) {
        fieldLine(text, kValueLine, {label, value});
        return *this;
    }
    uint32_t end(uint32_t status) {
        text.add("%s", kMacSep);
        return status;
    }
};

uint32_t grpStatReport(const IMA_GRP_STAT &s, uint32_t rc, char *buf, const char *title) {
    return Report(buf, title)
        .line("dwTxDiscardCells", s.dwTxDiscardCells)
        .line("dwTxUserCells", s.dwTxUserCells)
        .line("dwTxFillerCells", s.dwTxFillerCells)
        .line("dwRxUserCells", s.dwRxUserCells)
        .line("dwRxFillerCells", s.dwRxFillerCells)
        .end(rc);
}

uint32_t linkStatReport(const IMA_LINK_STAT &s, uint32_t rc, char *buf, const char *title) {
    return Report(buf, title)
        .line("dwTxUserCells", s.dwTxUserCells)
        .line("dwTxStuffCells", s.dwTxStuffCells)
        .line("dwRxUserCells", s.dwRxUserCells)
        .line("dwRxStuffCells", s.dwRxStuffCells)
        .line("dwRxDroppedCells", s.dwRxDroppedCells)
        .line("dwRxOifAnomalies", s.dwRxOifAnomalies)
        .line("dwRxIcpViolations", s.dwRxIcpViolations)
        .line("dwRxIcpCells", s.dwRxIcpCells)
        .line("dwRxFillerCells", s.dwRxFillerCells)
        .end(rc);
}

}  // namespace
}  // namespace vq::diag

using vq::diag::kNoBuffer;
using vq::diag::Report;

extern "C" {

VQ6192_API uint32_t strcc(uintptr_t arg, uint32_t *value, uint32_t *isNumber) {
    constexpr uintptr_t kNumberMax = 65534;
    constexpr size_t kTextMax = 1023;
    if (value == nullptr || isNumber == nullptr) {
        return 1;
    }
    if (arg <= kNumberMax) {
        *value = static_cast<uint32_t>(arg);
        *isNumber = 1;
        return 0;
    }
    char text[kTextMax + 1] = {};
    std::strncpy(text, reinterpret_cast<const char *>(arg), kTextMax);
    // The text is read as a number in decimal or 0x hex; text that is not a number gives 1.
    char *end = nullptr;
    const unsigned long v = std::strtoul(text, &end, 0);
    *isNumber = 0;
    if (end == text || *end != '\0') {
        *value = 0;
        return 1;
    }
    *value = static_cast<uint32_t>(v);
    return 0;
}

VQ6192_API uint32_t getimagrpstatus(uint32_t chip, uint32_t grp, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    IMA_GRP_STATUS s{};
    const uint32_t rc = VQ6192_IMA_GetImaGrpStatus(chip, grp, &s);
    return Report(buf, "GetImaGrpStatus()")
        .line("byNeGsmState", s.byNeGsmState)
        .line("byFeGsmState", s.byFeGsmState)
        .line("byGtsmState", s.byGtsmState)
        .line("byInhibitStatus", s.byInhibitStatus)
        .line("byRxImaId", s.byRxImaId)
        .line("byRxM", s.byRxM)
        .line("byRxTrlLid", s.byRxTrlLid)
        .line("byGwpActive", s.byGwpActive)
        .line("byTimingError", s.byTimingError)
        .line("wRxTrlPhyLink", s.wRxTrlPhyLink)
        .line("wNumTxLinks", s.wNumTxLinks)
        .line("wNumTxLinksActv", s.wNumTxLinksActv)
        .line("wNumRxLinks", s.wNumRxLinks)
        .line("wNumRxLinksActv", s.wNumRxLinksActv)
        .end(rc);
}

VQ6192_API uint32_t gettclinkparam(uint32_t chip, uint32_t link, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    TC_TX_CFG tx{};
    TC_RX_CFG rx{};
    const uint16_t one = static_cast<uint16_t>(link);
    const uint32_t rc = VQ6192_IMA_GetTcLinkParam(chip, 1, &one, &tx, &rx);
    return Report(buf, "GetTcLinkParam()")
        .line("byTxLinkEn", tx.byTxLinkEn)
        .line("byTxScramblerEn", tx.byTxScramblerEn)
        .line("byTxPloyAddEn", tx.byTxPloyAddEn)
        .line("byTxBitReverseEn", tx.byTxBitReverseEn)
        .line("byTxIdleInsertEn", tx.byTxIdleInsertEn)
        .line("byTxHecInsertType", tx.byTxHecInsertType)
        .line("byTxHecInsertData", tx.byTxHecInsertData)
        .line("byTxIdleCellHead4", tx.byTxIdleCellHead4)
        .line("byTxIdleCellHead3", tx.byTxIdleCellHead3)
        .line("byTxIdleCellHead2", tx.byTxIdleCellHead2)
        .line("byTxIdleCellHead1", tx.byTxIdleCellHead1)
        .line("dwRxHeader", rx.dwRxHeader)
        .line("dwRxHeaderMask", rx.dwRxHeaderMask)
        .line("byRxLinkEn", rx.byRxLinkEn)
        .line("byRxScramblerEn", rx.byRxScramblerEn)
        .line("byRxPloyAddEn", rx.byRxPloyAddEn)
        .line("byRxBitReverseEn", rx.byRxBitReverseEn)
        .line("byRxHecCcheckEn", rx.byRxHecCcheckEn)
        .line("byRxHecCorrectEn", rx.byRxHecCorrectEn)
        .line("byRxIdleFilterEn", rx.byRxIdleFilterEn)
        .line("byRxHecFilterEn", rx.byRxHecFilterEn)
        .line("byRxOcdFilterEn", rx.byRxOcdFilterEn)
        .line("byRxCdfsmAlpha", rx.byRxCdfsmAlpha)
        .line("byRxCdfsmBeta", rx.byRxCdfsmBeta)
        .line("byRxCdfsmDelta", rx.byRxCdfsmDelta)
        .line("byRxHecCorrectM", rx.byRxHecCorrectM)
        .line("byRxLcdTimer", rx.byRxLcdTimer)
        .end(rc);
}

VQ6192_API uint32_t getimalinkparam(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    uint16_t alpha = 0, beta = 0, gamma = 0;
    const uint32_t rc = VQ6192_IMA_GetImaLinkParam(chip, &alpha, &beta, &gamma);
    return Report(buf, "GetImaLinkParam()")
        .line("wAlpha", alpha)
        .line("wBeta", beta)
        .line("wGamma", gamma)
        .end(rc);
}

VQ6192_API uint32_t gettclinkstatus(uint32_t chip, uint32_t link, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    static constexpr const char *kRx0[15] = {
        "wRxScrambleByte0", "wRxByteCnt",   "wRxCorrectCnt", "wRxHecAlphaCnt", "wRxHecDeltaCnt",
        "wRxCdfsmSt",       "wRxCorrectSt", "wRxHecFindBit", "wRxDinDff7",     "wRxDinDff6",
        "wRxDinDff5",       "wRxDinDff4",   "wRxDinDff3",    "wRxDinDff2",     "wRxDinDff1"};
    static constexpr const char *kRx1[6] = {"wRxScrambleByte1", "wRxIdleRecCnt",   "wRxHeadMatchCnt",
                                            "wRxHecCorrCnt",    "wRxHecUncorrCnt", "wRxOcdCellCnt"};
    static constexpr const char *kRx2[9] = {"dwRxLastPayloadH", "dwRxLastPayloadL", "dwRxScrambleByte2",
                                            "dwRxUhcsWarn",     "dwRxChcsWarn",     "dwRxLcdWarn",
                                            "dwRxOcdWarn",      "dwReserved",       "dwRxCellRecCnt"};
    static constexpr const char *kTx[11] = {"dwHecCrcOut",      "dwReserved",       "dwTxCellType",
                                            "dwTxCellSentCnt",  "dwTxByteCnt",      "dwTxScrambleDff5",
                                            "dwTxScrambleDff4", "dwTxScrambleDff3", "dwTxScrambleDff2",
                                            "dwTxScrambleDff1", "dwTxScrambleOut"};
    uint16_t rx0[15] = {}, rx1[6] = {};
    uint32_t rx2[9] = {}, tx[11] = {};
    const uint32_t rc = VQ6192_IMA_GetTcLinkStatus(chip, link, rx0, rx1, rx2, tx);
    Report r(buf, "GetTcLinkStatus()");
    for (uint32_t i = 0; i < 15; ++i) {
        r.line(kRx0[i], rx0[i]);
    }
    for (uint32_t i = 0; i < 6; ++i) {
        r.line(kRx1[i], rx1[i]);
    }
    for (uint32_t i = 0; i < 9; ++i) {
        r.line(kRx2[i], rx2[i]);
    }
    for (uint32_t i = 0; i < 11; ++i) {
        r.line(kTx[i], tx[i]);
    }
    return r.end(rc);
}

VQ6192_API uint32_t getimalinkstatus(uint32_t chip, uint32_t link, uint32_t which, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    IMA_LINK_STATUS s{};
    const uint32_t rc = VQ6192_IMA_GetImaLinkStatus(chip, link, &s, which);
    return Report(buf, "GetImaLinkStatus()")
        .line("byNeTxState", s.byNeTxState)
        .line("byFeRxState", s.byFeRxState)
        .line("byFeRxDefect", s.byFeRxDefect)
        .line("byNeRxState", s.byNeRxState)
        .line("byFeTxState", s.byFeTxState)
        .line("byRxLid", s.byRxLid)
        .line("byRxIcpOffset", s.byRxIcpOffset)
        .line("byRxLcd", s.byRxLcd)
        .line("byRxOcd", s.byRxOcd)
        .line("byRxLif", s.byRxLif)
        .line("byRxLodsOvr", s.byRxLodsOvr)
        .line("byRxLodsUdr", s.byRxLodsUdr)
        .line("byDelayGood", s.byDelayGood)
        .line("byRxUuse", s.byRxUuse)
        .line("byRxCause", s.byRxCause)
        .line("byTxUuse", s.byTxUuse)
        .line("byTxCause", s.byTxCause)
        .end(rc);
}

VQ6192_API uint32_t getimagrpstat(uint32_t chip, uint32_t grp, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    IMA_GRP_STAT s{};
    const uint32_t rc = VQ6192_IMA_GetImaGrpStat(chip, grp, &s);
    return vq::diag::grpStatReport(s, rc, buf, "GetImaGrpStat()");
}

VQ6192_API uint32_t getunigrpstat(uint32_t chip, uint32_t grp, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    IMA_GRP_STAT s{};
    const uint32_t rc = VQ6192_IMA_GetUniGrpStat(chip, grp, &s);
    return vq::diag::grpStatReport(s, rc, buf, "GetUniGrpStat()");
}

VQ6192_API uint32_t getimalinkstat(uint32_t chip, uint32_t link, uint32_t which, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    IMA_LINK_STAT s{};
    const uint32_t rc = VQ6192_IMA_GetImaLinkStat(chip, link, &s, which);
    return vq::diag::linkStatReport(s, rc, buf, "GetImaLinkStat()");
}

VQ6192_API uint32_t getunilinkstat(uint32_t chip, uint32_t link, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    IMA_LINK_STAT s{};
    const uint32_t rc = VQ6192_IMA_GetUniLinkStat(chip, link, &s);
    return vq::diag::linkStatReport(s, rc, buf, "GetUniLinkStat()");
}

VQ6192_API uint32_t getimaloop(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    uint32_t mask = 0;
    const uint32_t rc = VQ6192_IMA_GetImaLoop(chip, &mask);
    return Report(buf, "GetImaLoop()").line("dwLoopMask", mask).end(rc);
}

VQ6192_API uint32_t getimaicpcell(uint32_t chip, uint32_t index, uint32_t send, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    uint8_t cell[48] = {};
    const uint32_t rc = VQ6192_IMA_GetImaIcpCell(chip, index, cell, send);
    Report r(buf, "GetImaIcpCell()");
    r.text.add(" pbyCell    :    \n");
    const uint32_t n = send != 0 ? 41 : 48;
    for (uint32_t i = 0; i < n; ++i) {
        r.text.add("%02x ", cell[i]);
    }
    r.text.add("\n");
    return r.end(rc);
}

VQ6192_API uint32_t gettestptn(uint32_t chip, uint32_t grp, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    uint16_t rxEn = 0, rxPtn = 0, txLid = 0, txEn = 0, txPtn = 0;
    const uint32_t rc = VQ6192_IMA_GetTestPtn(chip, grp, &rxEn, &rxPtn, &txLid, &txEn, &txPtn);
    return Report(buf, "GetTestPtn()")
        .line("wRxEn", rxEn)
        .line("wRxPtn", rxPtn)
        .line("wTxLid", txLid)
        .line("wTxEn", txEn)
        .line("wTxPtn", txPtn)
        .end(rc);
}

VQ6192_API uint32_t gettestmatch(uint32_t chip, uint32_t grp, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    uint32_t match = 0;
    const uint32_t rc = VQ6192_IMA_GetTestMatch(chip, grp, &match);
    return Report(buf, "GetTestMatch()").line("dwMatch", match).end(rc);
}

VQ6192_API uint32_t getrxtestptn(uint32_t chip, uint32_t grp, uint32_t n, const uint16_t *links, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    uint8_t ptn[32] = {};
    const uint32_t rc = VQ6192_IMA_GetRxTestPtn(chip, grp, n, links, ptn);
    Report r(buf, "GetRxTestPtn()");
    for (uint32_t i = 0; i < 16; ++i) {
        r.text.add(" Ptn[%2u]       :    0x%x(%u)\n", i, ptn[i], ptn[i]);
    }
    return r.end(rc);
}

VQ6192_API uint32_t getdelayinfo(uint32_t chip, uint32_t grp, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    IMA_DELAY_INFO d{};
    const uint32_t rc = VQ6192_IMA_GetDelayInfo(chip, grp, &d);
    Report r(buf, "GetDelayInfo()");
    r.text.add(" dwReadPtr       :    0x%x(%u)\n", d.dwReadPtr, d.dwReadPtr);
    r.text.add(" dwLinkActive    :    0x%x(%u)\n", d.dwLinkActive, d.dwLinkActive);
    r.text.add(" wWritePtr\t byOverRun   byLif      byIfsm\n");
    for (uint32_t lid = 0; lid < 32; ++lid) {
        const IMA_LINK_DELAY &l = d.astLink[lid];
        r.text.add("%u:0x%x(%u)  0x%x(%u)  0x%x(%u)  0x%x(%u)\n", lid, l.wWritePtr, l.wWritePtr, l.byOverRun,
                   l.byOverRun, l.byLif, l.byLif, l.byIfsm, l.byIfsm);
    }
    return r.end(rc);
}

VQ6192_API uint32_t getimatimetick(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return kNoBuffer;
    }
    uint16_t tick = 0;
    const uint32_t rc = VQ6192_IMA_GetImaTimeTick(chip, &tick);
    return Report(buf, "GetImaTimeTick()").line("wTimeTick", tick).end(rc);
}

}  // extern "C"

namespace vq::diag {
namespace {

constexpr Command kCommands[] = {
    VQ6192_DIAG_COMMAND(getimagrpstatus, "IMA", "chip grp", "IMA group state machines and active links"),
    VQ6192_DIAG_COMMAND(gettclinkparam, "IMA", "chip link", "ATM TC link configuration"),
    VQ6192_DIAG_COMMAND(getimalinkparam, "IMA", "chip", "IMA link parameters alpha, beta, gamma"),
    VQ6192_DIAG_COMMAND(gettclinkstatus, "IMA", "chip link", "ATM TC link receive and transmit state"),
    VQ6192_DIAG_COMMAND(getimalinkstatus, "IMA", "chip link which",
                        "IMA link state (which: 1 tx, 2 rx, 3 both)"),
    VQ6192_DIAG_COMMAND(getimagrpstat, "IMA", "chip grp", "IMA group cell counters (read-clear)"),
    VQ6192_DIAG_COMMAND(getunigrpstat, "IMA", "chip grp", "UNI group cell counters (read-clear)"),
    VQ6192_DIAG_COMMAND(getimalinkstat, "IMA", "chip link which", "IMA link cell counters (read-clear)"),
    VQ6192_DIAG_COMMAND(getunilinkstat, "IMA", "chip link", "UNI link cell counters (read-clear)"),
    VQ6192_DIAG_COMMAND(getimaloop, "IMA", "chip", "IMA loopbacks"),
    VQ6192_DIAG_COMMAND(getimaicpcell, "IMA", "chip index send",
                        "ICP cell sent by a group or received on a link"),
    VQ6192_DIAG_COMMAND(gettestptn, "IMA", "chip grp", "IMA test pattern settings of a group"),
    VQ6192_DIAG_COMMAND(gettestmatch, "IMA", "chip grp", "receive test pattern match vector"),
    VQ6192_DIAG_COMMAND(getrxtestptn, "IMA", "chip grp n links", "received test pattern per link"),
    VQ6192_DIAG_COMMAND(getdelayinfo, "IMA", "chip grp", "differential delay of a group's links"),
    VQ6192_DIAG_COMMAND(getimatimetick, "IMA", "chip", "IMA processor time tick"),
    VQ6192_DIAG_COMMAND(
        MCARD_IMA_Dbg_ImaHardWareInfo, "IMA", "chip type arg1 arg2",
        "IMA hardware diagnostics: tables, processor, transmit and receive views (type 0: help)"),
};

}  // namespace

std::span<const Command> imaCommands() {
    return kCommands;
}

}  // namespace vq::diag
