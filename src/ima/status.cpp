// Group and link state, read-clear counters, link configuration read-back, test patterns, differential
// delay, ICP cells and the processor's interrupt events.
#include <cstring>

#include "ima/ima_internal.h"

namespace vq::ima {
namespace {

constexpr uint32_t kEventPolls = 100;
constexpr uint32_t kSendIcpWords = 11;
constexpr uint32_t kLinkIcpWords = 12;
constexpr uint32_t kRxDlyReadPtr = 32;
constexpr uint32_t kRxDlyActive = 33;
constexpr uint32_t kEventTxValid = 32;
constexpr uint32_t kEventRxValid = 33;
constexpr uint32_t kEventGroupEntry = 34;

uint32_t read(uint32_t chip, uint32_t tableId, uint32_t number, Entry &e) {
    return readEntry(chip, tableId, entryIndex(tableId, number), e);
}

uint32_t field(uint32_t tableId, const char *name, const Entry &e) {
    const VQ6192_TBL_ENTRY_S &t = g_astVQ6192TblEntryList[tableId];
    for (uint16_t i = 0; i < t.usMemberNum; ++i) {
        if (std::strcmp(t.pstMember[i].pszName, name) == 0) {
            return entryBits(e.w, t.pstMember[i].usStartBit, t.pstMember[i].usWidth);
        }
    }
    return 0;
}

// Group flags of the event snapshot and per-LID flags, in the order of the event records.
struct GroupFlag {
    const char *member;
    uint16_t IMA_GRP_EVENT::*field;
};
constexpr GroupFlag kGroupFlags[] = {{"Ferestartint", &IMA_GRP_EVENT::wFeRestartInt},
                                     {"Fetrlint", &IMA_GRP_EVENT::wFeTrlInt},
                                     {"Grtimingint", &IMA_GRP_EVENT::wGrTimingInt},
                                     {"Fegptimeoutint", &IMA_GRP_EVENT::wFeGpTimeoutInt},
                                     {"Negptimeoutint", &IMA_GRP_EVENT::wNeGpTimeoutInt},
                                     {"Feconfigabortint", &IMA_GRP_EVENT::wFeConfigAbortInt},
                                     {"Neconfigabortint", &IMA_GRP_EVENT::wNeConfigAbortInt},
                                     {"Negtsmint", &IMA_GRP_EVENT::wNeGtsmInt},
                                     {"Fegsmint", &IMA_GRP_EVENT::wFeGsmInt},
                                     {"Negsmint", &IMA_GRP_EVENT::wNeGsmInt},
                                     {"Fetrlstatus", &IMA_GRP_EVENT::wFeTrlStatus},
                                     {"Grouptimingerror", &IMA_GRP_EVENT::wGroupTimingError},
                                     {"Negtsmst", &IMA_GRP_EVENT::wNeGtsmSt},
                                     {"Fegsmst", &IMA_GRP_EVENT::wFeGsmSt},
                                     {"Negsmst", &IMA_GRP_EVENT::wNeGsmSt}};
constexpr const char *kLinkFlags[VQ6192_IMA_EVENT_LINK_FLAGS] = {
    "Autolasrint",     "Autouusint",       "Nerxactiveint",   "Fetxunusableint",
    "Nediffdelayint",  "Neoverrunint",     "Neunderrunint",   "Nelifint",
    "Neinvalidicpint", "Nerxtimeoutint",   "Netxactiveinten", "Ferxunusableinten",
    "Ferxdefectinten", "Netxtimeoutinten", "Neoverrun",       "Neunderrun",
    "Nelif",           "Fetxlsm",          "Icprxst",         "Rxlid",
    "Ferxdefect",      "Ferxlsm",          "Icptxst"};

// Asks the processor which group has an event: 0 and the group, or the time-out.
uint32_t fetchEventGroup(uint32_t chip, uint16_t *grp) {
    set(chip, kEventRequest, 0);
    set(chip, kEventRequest, 1);
    for (uint32_t i = 0; i < kEventPolls; ++i) {
        if (get(chip, kEventBusy) == 0) {
            *grp = static_cast<uint16_t>(get(chip, kEventGroup));
            return 0;
        }
    }
    return status(chip, kErrTimeout);
}

}  // namespace
}  // namespace vq::ima

using namespace vq::ima;
using vq::validChip;

extern "C" {

VQ6192_API uint32_t VQ6192_IMA_GetImaGrpStatus(uint32_t chip, uint32_t grp, IMA_GRP_STATUS *st) {
    if (!validChip(chip) || grp >= kGroups || st == nullptr) {
        return paraErr(chip);
    }
    Entry gps0, gps3, gps5;
    uint32_t rc = read(chip, tbl::kPpGps0, grp, gps0);
    rc |= read(chip, tbl::kPpGps3, grp, gps3);
    rc |= read(chip, tbl::kPpGps5, grp, gps5);
    st->byNeGsmState = static_cast<uint8_t>(gps0.get(fld::kNegsmSt));
    st->byFeGsmState = static_cast<uint8_t>(gps0.get(fld::kFegsm));
    st->byGtsmState = static_cast<uint8_t>(gps0.get(fld::kNegtsmSt));
    st->byInhibitStatus = static_cast<uint8_t>(gps0.get(fld::kInhibitStatus));
    st->byRxImaId = static_cast<uint8_t>(gps3.get(fld::kFeRxImaId));
    st->byRxM = static_cast<uint8_t>(gps3.get(fld::kFeFrameM));
    st->byRxTrlLid = static_cast<uint8_t>(gps5.get(fld::kRxTrlLid));
    st->byGwpActive = static_cast<uint8_t>(gps0.get(fld::kGwpActive));
    st->byTimingError = static_cast<uint8_t>(gps0.get(fld::kTimingError));
    st->wRxTrlPhyLink = static_cast<uint16_t>(gps5.get(fld::kRxTrlPhyId));
    st->wNumTxLinks = st->wNumTxLinksActv = static_cast<uint16_t>(gps0.get(fld::kNumTxActive));
    st->wNumRxLinks = st->wNumRxLinksActv = static_cast<uint16_t>(gps0.get(fld::kNumRxActive));
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetImaLinkStatus(uint32_t chip, uint32_t link, IMA_LINK_STATUS *st,
                                                uint32_t which) {
    if (!validChip(chip) || link >= kLinks || st == nullptr || which > 3) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    if (which & 1u) {
        Entry txs0, txs1;
        rc |= read(chip, tbl::kPpTxs0, link, txs0);
        rc |= read(chip, tbl::kPpTxs1, link, txs1);
        st->byNeTxState = static_cast<uint8_t>(txs0.get(fld::kNetxlsm));
        st->byFeRxState = static_cast<uint8_t>(txs0.get(fld::kFerxlsm));
        st->byFeRxDefect = static_cast<uint8_t>(txs1.get(fld::kFerxDefect));
        st->byTxUuse = static_cast<uint8_t>(txs0.get(fld::kTxPmUus));
        st->byTxCause = static_cast<uint8_t>(txs0.get(fld::kTxPmUusCause));
    }
    if (which & 2u) {
        Entry rxs0, rxs1, vld, sta2;
        rc |= read(chip, tbl::kPpRxs0, link, rxs0);
        rc |= read(chip, tbl::kPpRxs1, link, rxs1);
        rc |= readEntry(chip, tbl::kRxIcpVld, link, vld);
        const uint32_t rc2 = readEntry(chip, tbl::kTcRxSta2, link, sta2);
        rc |= rc2;
        if (rc2 == 0) {
            // The cell counter of the receive state is read-clear: keep it for the TC state reader.
            g_vq6192[chip].ulLinkStatAccum += sta2.w[0];
        }
        st->byNeRxState = static_cast<uint8_t>(rxs0.get(fld::kNerxlsm));
        st->byFeTxState = static_cast<uint8_t>(rxs0.get(fld::kFetxlsm));
        st->byRxLid = static_cast<uint8_t>(rxs0.get(fld::kRxsLid));
        st->byRxIcpOffset = static_cast<uint8_t>(vld.get(fld::kIcpVldOffset));
        st->byRxLcd = static_cast<uint8_t>(sta2.get(fld::kRxLcdWarn));
        st->byRxOcd = static_cast<uint8_t>(sta2.get(fld::kRxOcdWarn));
        st->byRxLif = static_cast<uint8_t>(rxs1.get(fld::kNeLif));
        st->byRxLodsOvr = static_cast<uint8_t>(rxs1.get(fld::kNeLodsOvr));
        st->byRxLodsUdr = static_cast<uint8_t>(rxs1.get(fld::kNeLodsUdr));
        st->byDelayGood = static_cast<uint8_t>(rxs1.get(fld::kNeDelayGood));
        st->byRxUuse = static_cast<uint8_t>(rxs0.get(fld::kRxPmUus));
        st->byRxCause = static_cast<uint8_t>(rxs0.get(fld::kRxPmUusCause));
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetImaGrpStat(uint32_t chip, uint32_t grp, IMA_GRP_STAT *stat) {
    if (!validChip(chip) || grp >= kGroups || stat == nullptr) {
        return paraErr(chip);
    }
    Entry g1, g2, g3, user, filler;
    uint32_t rc = read(chip, tbl::kTxGps1, grp, g1);
    rc |= read(chip, tbl::kTxGps2, grp, g2);
    rc |= read(chip, tbl::kTxGps3, grp, g3);
    rc |= read(chip, tbl::kRxGpCnt0, grp, user);
    rc |= read(chip, tbl::kRxGpCnt1, grp, filler);
    stat->dwTxDiscardCells = g1.w[0];
    stat->dwTxUserCells = g2.w[0];
    stat->dwTxFillerCells = g3.w[0];
    stat->dwRxUserCells = user.w[0];
    stat->dwRxFillerCells = filler.w[0];
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetUniGrpStat(uint32_t chip, uint32_t grp, IMA_GRP_STAT *stat) {
    if (!validChip(chip) || grp >= kGroups || stat == nullptr) {
        return paraErr(chip);
    }
    Entry user;
    const uint32_t rc = read(chip, tbl::kRxUniRCnt0, grp, user);
    *stat = IMA_GRP_STAT{};
    stat->dwRxUserCells = user.w[0];
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetImaLinkStat(uint32_t chip, uint32_t link, IMA_LINK_STAT *stat,
                                              uint32_t which) {
    if (!validChip(chip) || link >= kLinks || stat == nullptr || which > 3) {
        return paraErr(chip);
    }
    *stat = IMA_LINK_STAT{};
    uint32_t rc = 0;
    if (which & 1u) {
        Entry lks1;
        rc |= read(chip, tbl::kTxLks1, link, lks1);
        stat->dwTxUserCells = lks1.get(fld::kImaUserCellCnt);
        stat->dwTxStuffCells = lks1.get(fld::kStuffEventCnt);
    }
    if (which & 2u) {
        Entry c0, c1, c2, c3;
        rc |= read(chip, tbl::kRxLkCnt0, link, c0);
        rc |= read(chip, tbl::kRxLkCnt1, link, c1);
        rc |= read(chip, tbl::kRxLkCnt2, link, c2);
        rc |= read(chip, tbl::kRxLkCnt3, link, c3);
        stat->dwRxStuffCells = c0.w[0] >> 16;
        stat->dwRxOifAnomalies = c0.w[0] & 0xFFFFu;
        stat->dwRxIcpViolations = c1.w[0] >> 16;
        stat->dwRxIcpCells = c1.w[0] & 0xFFFFu;
        stat->dwRxUserCells = c2.w[0];
        stat->dwRxDroppedCells = c3.w[0] >> 16;
        stat->dwRxFillerCells = c3.w[0] & 0xFFFFu;
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetUniLinkStat(uint32_t chip, uint32_t link, IMA_LINK_STAT *stat) {
    if (!validChip(chip) || link >= kLinks || stat == nullptr) {
        return paraErr(chip);
    }
    Entry user, dropped, lks1;
    uint32_t rc = read(chip, tbl::kRxUniWCnt2, link, user);
    rc |= read(chip, tbl::kRxUniWCnt3, link, dropped);
    rc |= read(chip, tbl::kTxLks1, link, lks1);
    *stat = IMA_LINK_STAT{};
    stat->dwRxUserCells = user.w[0];
    stat->dwRxDroppedCells = dropped.w[0];
    stat->dwTxUserCells = lks1.get(fld::kImaUserCellCnt);
    stat->dwTxStuffCells = lks1.get(fld::kStuffEventCnt);
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetImaLinkCfg(uint32_t chip, uint32_t link, uint16_t out[5]) {
    if (!validChip(chip) || link >= kLinks || out == nullptr) {
        return paraErr(chip);
    }
    Entry txc, rxc;
    uint32_t rc = readEntry(chip, tbl::kPpTxc, link, txc);
    rc |= readEntry(chip, tbl::kPpRxc, link, rxc);
    // Transmit configuration, group and LID, then receive configuration and group.
    out[0] = static_cast<uint16_t>(txc.get(fld::kTxConfigEn));
    out[1] = static_cast<uint16_t>(txc.get(fld::kTxGroupTag));
    out[2] = static_cast<uint16_t>(txc.get(fld::kTxLid));
    out[3] = static_cast<uint16_t>(rxc.get(fld::kRxConfigEn));
    out[4] = static_cast<uint16_t>(rxc.get(fld::kRxGroupTag));
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetImaTxLinkCfg(uint32_t chip, uint32_t link, IMA_TX_LINK *txLink) {
    if (!validChip(chip) || link >= kLinks || txLink == nullptr) {
        return paraErr(chip);
    }
    Entry txc, lkc;
    uint32_t rc = readEntry(chip, tbl::kPpTxc, link, txc);
    rc |= readEntry(chip, tbl::kTxLkc, link, lkc);
    txLink->ucLid = static_cast<uint8_t>(txc.get(fld::kTxLid));
    txLink->ucIcpOffset = static_cast<uint8_t>(lkc.get(fld::kTxLkcIcpOffset));
    txLink->usPhyLink = static_cast<uint16_t>(link);
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetTestPtn(uint32_t chip, uint32_t grp, uint16_t *rxEn, uint16_t *rxPtn,
                                          uint16_t *txLid, uint16_t *txEn, uint16_t *txPtn) {
    if (!validChip(chip) || grp >= kGroups || rxEn == nullptr || rxPtn == nullptr || txLid == nullptr ||
        txEn == nullptr || txPtn == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = read(chip, tbl::kPpGps1, grp, e);
    *rxEn = static_cast<uint16_t>(e.get(fld::kRxTestEn));
    *rxPtn = static_cast<uint16_t>(e.get(fld::kRxTestPattern));
    *txLid = static_cast<uint16_t>(e.get(fld::kTxTestLid));
    *txEn = static_cast<uint16_t>(e.get(fld::kTxTestEn));
    *txPtn = static_cast<uint16_t>(e.get(fld::kTxTestPattern));
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetTestMatch(uint32_t chip, uint32_t grp, uint32_t *match) {
    if (!validChip(chip) || grp >= kGroups || match == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = read(chip, tbl::kPpGps4, grp, e);
    *match = e.get(fld::kRxTestMatch);
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetRxTestPtn(uint32_t chip, uint32_t grp, uint32_t n, const uint16_t *links,
                                            uint8_t *out) {
    if (!validChip(chip) || grp >= kGroups || n == 0 || n > kMaxLid || links == nullptr || out == nullptr) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    for (uint32_t i = 0; i < n; ++i) {
        if (links[i] >= kLinks) {
            return paraErr(chip);
        }
    }
    for (uint32_t i = 0; i < n; ++i) {
        Entry e;
        rc |= readEntry(chip, tbl::kRxIcpBuf, entryIndex(tbl::kRxIcpBuf, links[i], 2), e);
        out[i] = static_cast<uint8_t>(e.w[0] >> 24);  // ICP octet 17, the received test pattern
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetDelayInfo(uint32_t chip, uint32_t grp, IMA_DELAY_INFO *info) {
    if (!validChip(chip) || grp >= kGroups || info == nullptr) {
        return paraErr(chip);
    }
    uint32_t rc = runCmd(chip, VQ6192_IMA_CMD_READ_DELAY, grp, 0, 0, 0);
    Entry rp, act;
    rc |= readEntry(chip, tbl::kRxDly32, grp + kRxDlyReadPtr, rp);
    rc |= readEntry(chip, tbl::kRxDly33, grp + kRxDlyActive, act);
    info->dwReadPtr = field(tbl::kRxDly32, "Readptr", rp);
    info->dwLinkActive = field(tbl::kRxDly33, "Readptractive", act);
    for (uint32_t lid = 0; lid < kMaxLid; ++lid) {
        Entry e;
        rc |= readEntry(chip, tbl::kRxDly031, grp + lid, e);
        IMA_LINK_DELAY &d = info->astLink[lid];
        d.wWritePtr = static_cast<uint16_t>(field(tbl::kRxDly031, "Writeptr", e));
        d.byIfsm = static_cast<uint8_t>(field(tbl::kRxDly031, "Ifsmstate", e));
        d.byLcd = static_cast<uint8_t>(field(tbl::kRxDly031, "Lcd", e));
        d.byLif = static_cast<uint8_t>(field(tbl::kRxDly031, "Lif", e));
        d.byOverRun = static_cast<uint8_t>(field(tbl::kRxDly031, "Imarxoverrun", e));
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_imaGetSendIcpCell(uint32_t chip, uint32_t grp, uint8_t cell[41]) {
    if (!validChip(chip) || grp >= kGroups || cell == nullptr) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    uint32_t n = 0;
    for (uint32_t w = 0; w < kSendIcpWords; ++w) {
        Entry e;
        rc |= readEntry(chip, tbl::kTxIcpBuf, entryIndex(tbl::kTxIcpBuf, grp, w), e);
        // Word 0 carries octets 11..13 in its low 24 bits, word 10 octets 50..51 in its top 16 bits.
        const uint32_t first = w == 0 ? 2 : 3;
        const uint32_t last = w == kSendIcpWords - 1 ? 2 : 0;
        for (int32_t b = static_cast<int32_t>(first); b >= static_cast<int32_t>(last); --b) {
            cell[n++] = static_cast<uint8_t>(e.w[0] >> (8 * b));
        }
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_imaGetLinkIcpCell(uint32_t chip, uint32_t link, uint8_t cell[48]) {
    if (!validChip(chip) || link >= kLinks || cell == nullptr) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    for (uint32_t w = 0; w < kLinkIcpWords; ++w) {
        Entry e;
        rc |= readEntry(chip, tbl::kRxIcpBuf, entryIndex(tbl::kRxIcpBuf, link, w), e);
        for (uint32_t b = 0; b < 4; ++b) {
            cell[4 * w + b] = static_cast<uint8_t>(e.w[0] >> (8 * b));
        }
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetImaIcpCell(uint32_t chip, uint32_t index, uint8_t *cell, uint32_t send) {
    if (!validChip(chip) || cell == nullptr || index >= kLinks) {
        return paraErr(chip);
    }
    return send != 0 ? VQ6192_imaGetSendIcpCell(chip, index, cell)
                     : VQ6192_imaGetLinkIcpCell(chip, index, cell);
}

VQ6192_API uint32_t VQ6192_IMA_GetImaIntInfo(uint32_t chip, uint16_t *grp, IMA_GRP_EVENT *event,
                                             uint8_t linkFlags[23][32], uint16_t *valid) {
    if (!validChip(chip) || grp == nullptr || event == nullptr || linkFlags == nullptr || valid == nullptr) {
        return paraErr(chip);
    }
    if (get(chip, kEventPending) == 0) {
        *valid = 0;
        return 0;
    }
    uint32_t rc = fetchEventGroup(chip, grp);
    if (rc != 0) {
        return rc;
    }
    *valid = 1;
    rc = runCmd(chip, VQ6192_IMA_CMD_READ_EVENT, *grp, 0, 0, 0);
    Entry tx, rx, g;
    rc |= readEntry(chip, tbl::kEvent32, kEventTxValid, tx);
    rc |= readEntry(chip, tbl::kEvent33, kEventRxValid, rx);
    rc |= readEntry(chip, tbl::kEvent34, kEventGroupEntry, g);
    for (const GroupFlag &f : kGroupFlags) {
        event->*f.field = static_cast<uint16_t>(field(tbl::kEvent34, f.member, g));
    }
    event->dwTxPhyValid = field(tbl::kEvent32, "Txphyvalid", tx);
    event->dwRxPhyValid = field(tbl::kEvent33, "Rxphyvalid", rx);
    for (uint32_t lid = 0; lid < kMaxLid; ++lid) {
        Entry e;
        rc |= readEntry(chip, tbl::kEvent031, lid, e);
        for (uint32_t f = 0; f < VQ6192_IMA_EVENT_LINK_FLAGS; ++f) {
            linkFlags[f][lid] = static_cast<uint8_t>(field(tbl::kEvent031, kLinkFlags[f], e));
        }
    }
    set(chip, kEventRequest, 0);
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetImaIntFeRestart(uint32_t chip, uint16_t *grp, uint16_t *feRestart,
                                                  uint16_t *valid) {
    if (!validChip(chip) || grp == nullptr || feRestart == nullptr || valid == nullptr) {
        return paraErr(chip);
    }
    if (get(chip, kEventPending) == 0 || get(chip, kFeRestartEvent) == 0) {
        *valid = 0;
        return 0;
    }
    uint32_t rc = fetchEventGroup(chip, grp);
    if (rc != 0) {
        return rc;
    }
    *valid = 1;
    rc = runCmd(chip, VQ6192_IMA_CMD_READ_EVENT, *grp, 0, 0, 0);
    Entry g;
    rc |= readEntry(chip, tbl::kEvent34, kEventGroupEntry, g);
    *feRestart = static_cast<uint16_t>(field(tbl::kEvent34, "Ferestartint", g));
    set(chip, kEventRequest, 0);
    return rc;
}

}  // extern "C"
