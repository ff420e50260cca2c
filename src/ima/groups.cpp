// IMA groups: the group check, the steps that lay a group into the transmit, processor and receive
// tables, link addition and deletion, and the configuration read-back.
#include <cstring>

#include "ima/ima_internal.h"

namespace vq::ima {
namespace {

constexpr uint32_t kRxTableFirstWord = 5;
constexpr uint32_t kRxTableWords = 11;
constexpr uint32_t kRxTableEmptyWord = 0x7FFFFFF;  // three empty slots of 511
constexpr uint32_t kGroupTxDepth = 2047;
constexpr uint32_t kDcbThresh = 1023;
constexpr uint32_t kTrlTimeout = 50;  // 500 ms in processor ticks
constexpr uint32_t kConfigImaLink = 3;
constexpr uint32_t kAddLinkAttempts = 3;
constexpr uint32_t kLasrPauseTicks = 10;

// The record is packed: copy its link lists out before taking their addresses.
struct Links {
    uint16_t rx[kMaxLid];
    IMA_TX_LINK tx[kMaxLid];
};

Links linksOf(const IMA_GRP_CFG *cfg) {
    Links l{};
    std::memcpy(l.rx, reinterpret_cast<const uint8_t *>(cfg) + offsetof(IMA_GRP_CFG, pusRxLinks),
                sizeof l.rx);
    std::memcpy(l.tx, reinterpret_cast<const uint8_t *>(cfg) + offsetof(IMA_GRP_CFG, pstTxLinks),
                sizeof l.tx);
    return l;
}

uint32_t checkGroup(uint32_t chip, uint32_t grp, const IMA_GRP_CFG &c) {
    const auto fail = [&](auto... args) {
        VQ6192_IMA_TRACE(chip, args...);
        return status(chip, kErrPara);
    };
    if (c.byClockMd > 1) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u)---byClockMd >= VQ6192_IMA_GRP_CLK_MD_CTC---   "
            "pstCfg->byClockMd = %d\r\n",
            chip, grp, c.byClockMd);
    }
    if (c.byClockMd == 1 && c.byStuffMd == 1) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u,)   ---byClockMd != VQ6192_IMA_GRP_CLK_MD_CTC or byStuffMd "
            "!= VQ6192_IMA_GRP_STUFF_MD_ITC---    pstCfg->byClockMd = %d, pstCfg->byStuffMd = %d\n",
            chip, grp, c.byClockMd, c.byStuffMd);
    }
    if (c.bySymmetryMd >= 3) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u,)   ---bySymmetryMd >= VQ6192_IMA_GRP_ASYM---   "
            "pstCfg->bySymmetryMd = %d\n",
            chip, grp, c.bySymmetryMd);
    }
    if (c.byImaVersion >= 2) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u,)   ---byImaVersion >= VQ6192_VERSION_10---   "
            "pstCfg->byImaVersion = %d\n",
            chip, grp, c.byImaVersion);
    }
    if (c.byImaOamLabel != 1 && c.byImaOamLabel != 3) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u,)   ---byImaOamLabel >= VQ6192_OAM_LABEL_11 and "
            "byImaOamLabel != 2---   pstCfg->byImaOamLabel = %d\n",
            chip, grp, c.byImaOamLabel);
    }
    if (c.byRxImaIdCfgEn > 1) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u)   ---byRxImaIdCfgEn > 1---   pstCfg->byRxImaIdCfgEn = "
            "%d\n",
            chip, grp, c.byRxImaIdCfgEn);
    }
    const uint16_t txVphy = c.wTxVphy, rxVphy = c.wRxVphy;
    if (txVphy >= kGroups || rxVphy >= kGroups) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u,)   ---wTxVphy >= VQ6192_MAX_GCNT or wRxVphy >= "
            "VQ6192_MAX_GCNT---   pstCfg->wTxVphy = %d; pstCfg->wRxVphy = %d\n",
            chip, grp, txVphy, rxVphy);
    }
    if (c.byRxM == 0 || c.byRxM > 15) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u,)   ---byRxM > VQ6192_IMA_GRP_MAX_RXM or byRxM == 0---   "
            "pstCfg->byRxM = %d\n",
            chip, grp, c.byRxM);
    }
    if (c.byPRx == 0 || c.byPRx > kMaxLid) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u,)   ---byPRx > VQ6192_MAX_LID or byPRx == 0---   "
            "pstCfg->byPRx = %d\n",
            chip, grp, c.byPRx);
    }
    if (c.byTxM > 3) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u)   ---byTxM > VQ6192_IMA_GRP_MAX_TXM---   pstCfg->byTxM = "
            "%d\n",
            chip, grp, c.byTxM);
    }
    if (c.byPTx == 0 || c.byPTx > kMaxLid) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u,)   ---byPTx > VQ6192_MAX_LID or byPTx == 0---   "
            "pstCfg->byPTx = %d\n",
            chip, grp, c.byPTx);
    }
    if (c.bySymmetryMd == 0 && c.byPRx != c.byPTx) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u,)   ---bySymmetryMd == VQ6192_IMA_GRP_SYM or byPRx != "
            "byPTx---   pstCfg->bySymmetryMd = %d; pstCfg->byPRx = %d;  pstCfg->byPTx = %d\n",
            chip, grp, c.bySymmetryMd, c.byPRx, c.byPTx);
    }
    const uint16_t maxDelay = c.wMaxDelay;
    if (maxDelay > 1023) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u)   ---wMaxDelay > 1023---   pstCfg->wMaxDelay = %d\n", chip,
            grp, maxDelay);
    }
    if (c.byStuffAdvMd != 1 && c.byStuffAdvMd != 4) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u,)   ---byStuffAdvMd !=VQ6192_IMA_GRP_STUFF_ADV_1_AHEAD or "
            "byStuffAdvMd !=VQ6192_IMA_GRP_STUFF_ADV_4_AHEAD---   pstCfg->byStuffAdvMd = %d\n",
            chip, grp, c.byStuffAdvMd);
    }
    // The timing reference link must be one of the transmit records (the record holds at most 32).
    const uint16_t numTx = c.wNumTxLinks, numRx = c.wNumRxLinks, trl = c.wTxTrlPhy;
    const Links l = linksOf(&c);
    uint32_t i = 0;
    while (i < numTx && i < kMaxLid && l.tx[i].usPhyLink != trl) {
        ++i;
    }
    if (numTx == 0 || i == numTx || i == kMaxLid) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u)   ---wNumTxLinks <= i---   pstCfg->wNumTxLinks=%d; i=%d\n",
            chip, grp, numTx, i);
    }
    if (c.bySymmetryMd != 2 && numRx != numTx) {
        return fail(
            "Err. VQ6192_IMA_checkGrpParams(%u,%u,)   ---bySymmetryMd != VQ6192_IMA_GRP_ASYM and wNumRxLinks "
            "== usNumTxLinks---   pstCfg->bySymmetryMd = %d; pstCfg->wNumRxLinks = %d; pstCfg->wNumTxLinks = "
            "%d\n",
            chip, grp, c.bySymmetryMd, numRx, numTx);
    }
    return 0;
}

uint32_t lidOf(uint32_t phy, uint32_t numTx, const IMA_TX_LINK *tx) {
    for (uint32_t i = 0; i < numTx; ++i) {
        if (tx[i].usPhyLink == phy) {
            return tx[i].ucLid;
        }
    }
    return 0;
}

uint32_t writeZero(uint32_t chip, uint32_t tableId, uint32_t index) {
    return writeEntry(chip, tableId, index, Entry{});
}

uint32_t setGpsField(uint32_t chip, uint32_t tableId, uint32_t grp, EntryField f, uint32_t value) {
    Entry e;
    uint32_t rc = readEntry(chip, tableId, entryIndex(tableId, grp), e);
    if (rc == 0) {
        e.set(f, value);
        rc = writeEntry(chip, tableId, entryIndex(tableId, grp), e);
    }
    return rc;
}

bool validRx(uint32_t n, const uint16_t *rx) {
    for (uint32_t i = 0; i < n; ++i) {
        if (rx[i] >= kLinks) {
            return false;
        }
    }
    return true;
}

}  // namespace

}  // namespace vq::ima

using namespace vq::ima;
using vq::validChip;

extern "C" {

VQ6192_API uint32_t VQ6192_IMA_checkGrpParams(uint32_t chip, uint32_t grp, const IMA_GRP_CFG *cfg) {
    if (!validChip(chip) || cfg == nullptr) {
        return paraErr(chip);
    }
    return checkGroup(chip, grp, *cfg);
}

VQ6192_API uint32_t VQ6192_checkRxLinkParams(uint32_t chip, uint32_t n, const uint16_t *rxLinks) {
    if (!validChip(chip) || n == 0 || n > kMaxLid || rxLinks == nullptr) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < n; ++i) {
        if (rxLinks[i] >= kLinks) {
            VQ6192_IMA_TRACE(chip,
                             "Err. VQ6192_checkRxLinkParams(%u,%u) pusRxLinks[i][%#x]     ErrCode[%#x]\r\n",
                             chip, n, rxLinks[i], status(chip, kErrPara));
            return status(chip, kErrPara);
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_checkTxLinkParams(uint32_t chip, uint32_t n, const IMA_TX_LINK *txLinks,
                                             uint32_t txM) {
    if (!validChip(chip) || n == 0 || n > kMaxLid || txLinks == nullptr || txM > 3) {
        return paraErr(chip);
    }
    const uint32_t maxOffset = (32u << txM) - 1;
    const uint32_t err = status(chip, kErrPara);
    for (uint32_t i = 0; i < n; ++i) {
        if (txLinks[i].usPhyLink >= kLinks) {
            VQ6192_IMA_TRACE(
                chip,
                "Err. VQ6192_checkTxLinkParams(%u,%u,%u) pstTxLinks[i].usPhyLink[%#x]     ErrCode[%#x]\r\n",
                chip, n, txM, txLinks[i].usPhyLink, err);
            return err;
        }
        if (txLinks[i].ucLid >= kMaxLid) {
            VQ6192_IMA_TRACE(
                chip, "Err. VQ6192_checkTxLinkParams(%u,%u,%u) pstTxLinks[i].ucLid[%#x]     ErrCode[%#x]\r\n",
                chip, n, txM, txLinks[i].ucLid, err);
            return err;
        }
        if (txLinks[i].ucIcpOffset > maxOffset) {
            VQ6192_IMA_TRACE(
                chip,
                "Err. VQ6192_checkTxLinkParams(%u,%u,%u) pstTxLinks[i].ucIcpOffset[%#x]     ErrCode[%#x]\r\n",
                chip, n, txM, txLinks[i].ucIcpOffset, err);
            return err;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_getLidFromPhy(uint32_t chip, uint32_t phy, uint32_t numTx,
                                         const IMA_TX_LINK *txLinks, uint32_t *lid) {
    if (!validChip(chip) || numTx > kMaxLid || (numTx > 0 && txLinks == nullptr) || lid == nullptr) {
        return paraErr(chip);
    }
    *lid = lidOf(phy, numTx, txLinks);
    return 0;
}

VQ6192_API uint32_t VQ6192_clrTimaGrpParams(uint32_t chip, uint32_t grp) {
    if (!validChip(chip) || grp >= kGroups) {
        return paraErr(chip);
    }
    Entry e;
    e.set(fld::kTxCh, kEmptyLink);
    for (uint32_t lid = 0; lid < kMaxLid; ++lid) {
        const uint32_t rc = writeEntry(chip, tbl::kTxMap, entryIndex(tbl::kTxMap, grp, lid), e);
        if (rc != 0) {
            return rc;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_setTimaLid2PhyMap(uint32_t chip, uint32_t grp, uint32_t numTx,
                                             const IMA_TX_LINK *txLinks) {
    if (!validChip(chip) || grp >= kGroups || numTx > kMaxLid || (numTx > 0 && txLinks == nullptr)) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < numTx; ++i) {
        Entry e;
        e.set(fld::kTxCh, txLinks[i].usPhyLink);
        const uint32_t rc =
            writeEntry(chip, tbl::kTxMap, entryIndex(tbl::kTxMap, grp, txLinks[i].ucLid % kMaxLid), e);
        if (rc != 0) {
            return rc;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_setTimaCommParams(uint32_t chip, uint32_t grp, uint32_t n, uint32_t add,
                                             const uint16_t *links) {
    if (!validChip(chip) || grp >= kGroups || n > kLinks || add > 1 || (n > 0 && links == nullptr)) {
        return paraErr(chip);
    }
    set(chip, kTxLinkSetChanged, 1);
    Entry e;
    if (n > 0) {
        const uint32_t rc = readEntry(chip, tbl::kTxLinkInGp, grp, e);
        if (rc != 0) {
            return rc;
        }
    }
    for (uint32_t i = 0; i < n; ++i) {
        if (links[i] < kLinks) {
            vq::setEntryBits(e.w, links[i], 1, add);
        }
    }
    return writeEntry(chip, tbl::kTxLinkInGp, grp, e);
}

VQ6192_API uint32_t VQ6192_setTimaGrpParams(uint32_t chip, uint32_t grp, const IMA_GRP_CFG *cfg) {
    if (!validChip(chip) || grp >= kGroups || cfg == nullptr) {
        return paraErr(chip);
    }
    const uint32_t gps[] = {tbl::kTxGps0, tbl::kTxGps1, tbl::kTxGps2, tbl::kTxGps3, vq::tableId("Imatxgps4")};
    for (uint32_t t : gps) {
        const uint32_t rc = writeZero(chip, t, entryIndex(t, grp));
        if (rc != 0) {
            return rc;
        }
    }
    const Links l = linksOf(cfg);
    const uint32_t numTx = cfg->wNumTxLinks < kMaxLid ? cfg->wNumTxLinks : kMaxLid;
    Entry gpc;
    gpc.set(fld::kTxRefLid, lidOf(cfg->wTxTrlPhy, numTx, l.tx));
    gpc.set(fld::kTxm, cfg->byTxM);
    // Stuffadvmode takes bit 0 of byStuffAdvMd: 1 selects the four-cell announcement, 4 the one-cell one.
    gpc.set(fld::kStuffAdvMode, cfg->byStuffAdvMd & 1u);
    gpc.set(fld::kStuffEn, 1);
    gpc.set(fld::kTxOamLabel, cfg->byImaOamLabel);
    uint32_t rc = writeEntry(chip, tbl::kTxGpc, grp, gpc);
    if (rc == 0) {
        rc = VQ6192_setTimaLid2PhyMap(chip, grp, numTx, l.tx);
    }
    if (rc == 0) {
        rc = writeZero(chip, tbl::kTxLinkInGp, grp);
    }
    if (rc == 0) {
        uint16_t phys[kMaxLid];
        for (uint32_t i = 0; i < numTx; ++i) {
            phys[i] = l.tx[i].usPhyLink;
        }
        rc = VQ6192_setTimaCommParams(chip, grp, numTx, 1, phys);
    }
    if (rc == 0) {
        Entry depth;
        depth.set(fld::kTxGpDepth, kGroupTxDepth);
        rc = writeEntry(chip, tbl::kTxGpDepth, grp, depth);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_setTimaLinkParams(uint32_t chip, uint32_t numTx, const IMA_TX_LINK *txLinks) {
    if (!validChip(chip) || numTx > kMaxLid || (numTx > 0 && txLinks == nullptr)) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < numTx; ++i) {
        Entry e;
        e.set(fld::kTxLkcIcpOffset, txLinks[i].ucIcpOffset);
        const uint32_t rc = writeEntry(chip, tbl::kTxLkc, txLinks[i].usPhyLink, e);
        if (rc != 0) {
            return rc;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_clrRdatGrpParams(uint32_t chip, uint32_t grp) {
    if (!validChip(chip) || grp >= kGroups) {
        return paraErr(chip);
    }
    Entry e;
    e.w[0] = kRxTableEmptyWord;
    for (uint32_t w = 0; w < kRxTableWords; ++w) {
        const uint32_t rc = writeEntry(chip, tbl::kPpGpc5, entryIndex(tbl::kPpGpc5, grp, w), e);
        if (rc != 0) {
            return rc;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_setRippRxPhyTbl(uint32_t chip, uint32_t grp, uint32_t numRx,
                                           const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                           uint32_t symmetryMode) {
    if (!validChip(chip) || grp >= kGroups || numRx > kMaxLid || symmetryMode > 2 ||
        (numRx > 0 && (rxLinks == nullptr || (symmetryMode < 2 && txLinks == nullptr)))) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < numRx; ++i) {
        const uint32_t pos = rxPosition(i, rxLinks, txLinks, symmetryMode);
        // Positions of 32 and above have no place in the group's table words: they are skipped.
        if (pos >= kMaxLid) {
            continue;
        }
        const uint32_t index = entryIndex(tbl::kPpGpc5, grp, pos / 3);
        Entry e;
        uint32_t rc = readEntry(chip, tbl::kPpGpc5, index, e);
        if (rc == 0) {
            e.set(fld::kRxPhyLink[pos % 3], rxLinks[i]);
            rc = writeEntry(chip, tbl::kPpGpc5, index, e);
        }
        if (rc != 0) {
            return rc;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_getRippRxPhyTbl(uint32_t chip, uint32_t grp, uint16_t table[32]) {
    if (!validChip(chip) || grp >= kGroups || table == nullptr) {
        return paraErr(chip);
    }
    for (uint32_t w = 0; w * 3 < kMaxLid; ++w) {
        Entry e;
        const uint32_t rc = readEntry(chip, tbl::kPpGpc5, entryIndex(tbl::kPpGpc5, grp, w), e);
        if (rc != 0) {
            return rc;
        }
        for (uint32_t s = 0; s < 3 && 3 * w + s < kMaxLid; ++s) {
            table[3 * w + s] = static_cast<uint16_t>(e.get(fld::kRxPhyLink[s]));
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_setRippGrpParams(uint32_t chip, uint32_t grp, const IMA_GRP_CFG *cfg) {
    if (!validChip(chip) || grp >= kGroups || cfg == nullptr) {
        return paraErr(chip);
    }
    Entry gpc0, gpc1, gpc2;
    gpc0.set(fld::kGpOamLabel, cfg->byImaOamLabel);
    gpc0.set(fld::kGpSymMode, cfg->bySymmetryMd);
    gpc0.set(fld::kGpAutoRstEn, 1);
    gpc1.set(fld::kTxImaId, cfg->byTxImaId);
    gpc1.set(fld::kTxImaM, cfg->byTxM);
    gpc1.set(fld::kTxMinNum, cfg->byPTx);
    gpc1.set(fld::kTxClkMode, cfg->byClockMd & 1u);
    gpc2.set(fld::kRxImaIdCfgEn, cfg->byRxImaIdCfgEn);
    gpc2.set(fld::kRxImaIdCfg, cfg->byRxImaId);
    gpc2.set(fld::kRxMinNum, cfg->byPRx);
    gpc2.set(fld::kRxImaMEn, cfg->byRxM);
    gpc2.set(fld::kRxDefectRpt, 1);
    gpc2.set(fld::kTxChgTrlEn, 1);
    gpc2.set(fld::kTrlTimeoutMax, kTrlTimeout);
    uint32_t rc = writeEntry(chip, tbl::kPpGpc0, entryIndex(tbl::kPpGpc0, grp), gpc0);
    if (rc == 0) {
        rc = writeEntry(chip, tbl::kPpGpc1, entryIndex(tbl::kPpGpc1, grp), gpc1);
    }
    if (rc == 0) {
        rc = writeEntry(chip, tbl::kPpGpc2, entryIndex(tbl::kPpGpc2, grp), gpc2);
    }
    if (rc == 0) {
        rc = VQ6192_clrRdatGrpParams(chip, grp);
    }
    if (rc == 0) {
        const Links l = linksOf(cfg);
        const uint32_t numRx = cfg->wNumRxLinks < kMaxLid ? cfg->wNumRxLinks : kMaxLid;
        rc = VQ6192_setRippRxPhyTbl(chip, grp, numRx, l.rx, l.tx, cfg->bySymmetryMd);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_setRippTxLinkParams(uint32_t chip, uint32_t grp, uint32_t numTx,
                                               const IMA_TX_LINK *txLinks) {
    if (!validChip(chip) || grp >= kGroups || numTx > kMaxLid || (numTx > 0 && txLinks == nullptr)) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < numTx; ++i) {
        const uint32_t link = txLinks[i].usPhyLink;
        Entry txc;
        txc.set(fld::kTxConfigEn, kConfigImaLink);
        txc.set(fld::kTxGroupTag, grp);
        txc.set(fld::kTxLid, txLinks[i].ucLid);
        uint32_t rc = writeEntry(chip, tbl::kPpTxc, link, txc);
        if (rc == 0) {
            rc = writeZero(chip, tbl::kPpTxs0, entryIndex(tbl::kPpTxs0, link));
        }
        if (rc == 0) {
            rc = writeZero(chip, tbl::kPpTxs1, entryIndex(tbl::kPpTxs1, link));
        }
        if (rc != 0) {
            return rc;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_setRippRxLinkParams(uint32_t chip, uint32_t grp, uint32_t numRx,
                                               const uint16_t *rxLinks) {
    if (!validChip(chip) || grp >= kGroups || numRx > kMaxLid || (numRx > 0 && rxLinks == nullptr)) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < numRx; ++i) {
        const uint32_t link = rxLinks[i];
        Entry rxc;
        rxc.set(fld::kRxConfigEn, kConfigImaLink);
        rxc.set(fld::kRxGroupTag, grp);
        uint32_t rc = writeEntry(chip, tbl::kPpRxc, link, rxc);
        if (rc == 0) {
            rc = writeZero(chip, tbl::kPpRxs0, entryIndex(tbl::kPpRxs0, link));
        }
        if (rc == 0) {
            rc = writeZero(chip, tbl::kPpRxs1, entryIndex(tbl::kPpRxs1, link));
        }
        if (rc != 0) {
            return rc;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_setRdatGrpParams(uint32_t chip, uint32_t grp, uint32_t maxDelay) {
    if (!validChip(chip) || grp >= kGroups || maxDelay > 1023) {
        return paraErr(chip);
    }
    Entry e;
    uint32_t rc = readEntry(chip, tbl::kRxGpc, grp, e);
    if (rc == 0) {
        e.set(fld::kRxDelayTol, maxDelay);
        e.set(fld::kDcbThresh, kDcbThresh);
        rc = writeEntry(chip, tbl::kRxGpc, grp, e);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_setRdatScvcParams(uint32_t chip, uint32_t grp, uint32_t n, const uint16_t *links,
                                             uint32_t enable) {
    if (!validChip(chip) || grp >= kGroups || n > kLinks || enable > 1 || (n > 0 && links == nullptr)) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < n; ++i) {
        const uint32_t link = links[i];
        Entry e;
        e.set(fld::kScvcEn, enable);
        e.set(fld::kScvcGroupTag, grp);
        const uint32_t rc =
            writeEntry(chip, tbl::kRxScvc, (link % kLinksPerVc4) * 4 + link / kLinksPerVc4, e);
        if (rc != 0) {
            return rc;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_getTimaLinkParams(uint32_t chip, uint32_t grp, uint16_t lidMap[32],
                                             uint8_t icpOffset[32]) {
    if (!validChip(chip) || grp >= kGroups || lidMap == nullptr || icpOffset == nullptr) {
        return paraErr(chip);
    }
    for (uint32_t lid = 0; lid < kMaxLid; ++lid) {
        Entry map;
        uint32_t rc = readEntry(chip, tbl::kTxMap, entryIndex(tbl::kTxMap, grp, lid), map);
        if (rc != 0) {
            return rc;
        }
        lidMap[lid] = static_cast<uint16_t>(map.get(fld::kTxCh));
        icpOffset[lid] = 0;
        if (lidMap[lid] < kLinks) {
            Entry lkc;
            rc = readEntry(chip, tbl::kTxLkc, lidMap[lid], lkc);
            if (rc != 0) {
                return rc;
            }
            icpOffset[lid] = static_cast<uint8_t>(lkc.get(fld::kTxLkcIcpOffset));
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_imaAddGrp(uint32_t chip, uint32_t grp, const IMA_GRP_CFG *cfg) {
    if (!validChip(chip) || grp >= kGroups || cfg == nullptr) {
        return paraErr(chip);
    }
    const Links l = linksOf(cfg);
    const uint32_t numTx = cfg->wNumTxLinks < kMaxLid ? cfg->wNumTxLinks : kMaxLid;
    const uint32_t numRx = cfg->wNumRxLinks < kMaxLid ? cfg->wNumRxLinks : kMaxLid;
    const auto step = [&](uint32_t rc, auto... args) {
        if (rc != 0) {
            VQ6192_IMA_TRACE(chip, args..., rc);
        }
        return rc;
    };
    uint32_t rc;
    if ((rc = step(VQ6192_clrTimaGrpParams(chip, grp),
                   "Err. VQ6192_imaAddGrp.VQ6192_clrTimaGrpParams(%u,%u)       ErrCode[%#x]\r\n", chip,
                   grp)) ||
        (rc = step(VQ6192_setTimaGrpParams(chip, grp, cfg),
                   "Err. VQ6192_imaAddGrp.VQ6192_setTimaGrpParams(%u,%u)       ErrCode[%#x]\r\n", chip,
                   grp)) ||
        (rc = step(VQ6192_setTimaLinkParams(chip, numTx, l.tx),
                   "Err. VQ6192_imaAddGrp.VQ6192_setTimaLinkParams(%u,%u,%u)       ErrCode[%#x]\r\n", chip,
                   grp, numTx)) ||
        (rc = step(VQ6192_setRippGrpParams(chip, grp, cfg),
                   "Err. VQ6192_imaAddGrp.VQ6192_setRippGrpParams(%u,%u)       ErrCode[%#x]\r\n", chip,
                   grp)) ||
        (rc = step(VQ6192_setRippTxLinkParams(chip, grp, numTx, l.tx),
                   "Err. VQ6192_imaAddGrp.VQ6192_setRippTxLinkParams(%u,%u,%u)       ErrCode[%#x]\r\n", chip,
                   grp, numTx)) ||
        (rc = step(VQ6192_setRippRxLinkParams(chip, grp, numRx, l.rx),
                   "Err. VQ6192_imaAddGrp.VQ6192_setRippRxLinkParams(%u,%u,%u)       ErrCode[%#x]\r\n", chip,
                   grp, numRx)) ||
        (rc = step(VQ6192_setRdatGrpParams(chip, grp, cfg->wMaxDelay),
                   "Err. VQ6192_imaAddGrp.VQ6192_setRdatGrpParams(%u,%u)       ErrCode[%#x]\r\n", chip,
                   grp)) ||
        (rc = step(VQ6192_setRdatScvcParams(chip, grp, numRx, l.rx, 1),
                   "Err. VQ6192_imaAddGrp.VQ6192_setRdatScvcParams(%u,%u,%u,%u)       ErrCode[%#x]\r\n", chip,
                   grp, numRx, 1u))) {
        return rc;
    }
    return step(runCmd(chip, VQ6192_IMA_CMD_ADD_GROUP, grp, txVector(numTx, l.tx),
                       rxVector(numRx, l.rx, l.tx, cfg->bySymmetryMd), 0),
                "Err. VQ6192_imaAddGrp.VQ6192_IMA_utlRippCmd(%u,%u)       ErrCode[%#x]\r\n", chip, grp);
}

VQ6192_API uint32_t VQ6192_IMA_AddImaGrp(uint32_t chip, uint32_t grp, const IMA_GRP_CFG *cfg) {
    if (!validChip(chip) || grp >= kGroups || cfg == nullptr) {
        return paraErr(chip);
    }
    uint32_t rc = checkGroup(chip, grp, *cfg);
    if (rc != 0) {
        return rc;
    }
    // The record holds 32 receive links; an asymmetric group cannot name more.
    const uint16_t numRx = cfg->wNumRxLinks;
    const Links l = linksOf(cfg);
    if (numRx > kMaxLid || !validRx(numRx, l.rx)) {
        return paraErr(chip);
    }
    Entry gps0;
    rc = readEntry(chip, tbl::kPpGps0, entryIndex(tbl::kPpGps0, grp), gps0);
    if (rc != 0) {
        return rc;
    }
    if (gps0.get(fld::kGroupEn) != 0) {
        return status(chip, kErrInUse);
    }
    const uint16_t numTx = cfg->wNumTxLinks;
    for (uint32_t i = 0; i < numTx; ++i) {
        bool drainFailed = false;
        rc = quiesceTxLink(chip, l.tx[i].usPhyLink, i, "VQ6192_IMA_AddImaGrp", &drainFailed);
        if (rc != 0) {
            return rc;
        }
    }
    for (uint32_t i = 0; i < numRx; ++i) {
        rc = clearIdleFilter(chip, l.rx[i], i);
        if (rc != 0) {
            return rc;
        }
    }
    return VQ6192_imaAddGrp(chip, grp, cfg);
}

VQ6192_API uint32_t VQ6192_IMA_DelImaGrp(uint32_t chip, uint32_t grp) {
    if (!validChip(chip) || grp >= kGroups) {
        return paraErr(chip);
    }
    return runCmd(chip, VQ6192_IMA_CMD_DELETE_GROUP, grp, 0, 0, 0);
}

VQ6192_API uint32_t VQ6192_imaAddLinks(uint32_t chip, uint32_t startLasr, uint32_t grp, uint32_t numRx,
                                       uint32_t numTx, const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                       const IMA_GRP_CFG *cfg) {
    if (!validChip(chip) || startLasr > 1 || grp >= kGroups || numRx > kMaxLid || numTx > kMaxLid ||
        cfg == nullptr || (numRx > 0 && rxLinks == nullptr) || (numTx > 0 && txLinks == nullptr)) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    if (numTx > 0) {
        uint16_t phys[kMaxLid];
        for (uint32_t i = 0; i < numTx; ++i) {
            phys[i] = txLinks[i].usPhyLink;
        }
        if ((rc = VQ6192_setTimaLid2PhyMap(chip, grp, numTx, txLinks)) ||
            (rc = VQ6192_setTimaLinkParams(chip, numTx, txLinks)) ||
            (rc = VQ6192_setTimaCommParams(chip, grp, numTx, 1, phys)) ||
            (rc = VQ6192_setRippTxLinkParams(chip, grp, numTx, txLinks))) {
            return rc;
        }
    }
    if (numRx > 0) {
        if ((rc = VQ6192_setRippRxLinkParams(chip, grp, numRx, rxLinks)) ||
            (rc = VQ6192_setRippRxPhyTbl(chip, grp, numRx, rxLinks, txLinks, cfg->bySymmetryMd)) ||
            (rc = VQ6192_setRdatScvcParams(chip, grp, numRx, rxLinks, 1))) {
            return rc;
        }
    }
    if (startLasr == 1) {
        rc = runCmd(chip, VQ6192_IMA_CMD_START_LASR, grp, txVector(numTx, txLinks),
                    rxVector(numRx, rxLinks, txLinks, cfg->bySymmetryMd), 0);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_AddImaLink(uint32_t chip, uint32_t startLasr, uint32_t grp, uint32_t numRx,
                                          uint32_t numTx, const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                          const IMA_GRP_CFG *cfg) {
    if (!validChip(chip) || startLasr > 1 || grp >= kGroups || numRx > kMaxLid || numTx > kMaxLid ||
        (numRx == 0 && numTx == 0) || cfg == nullptr) {
        return paraErr(chip);
    }
    uint32_t rc = checkGroup(chip, grp, *cfg);
    if (rc == 0) {
        rc = VQ6192_checkRxLinkParams(chip, numRx, rxLinks);
    }
    if (rc == 0) {
        rc = VQ6192_checkTxLinkParams(chip, numTx, txLinks, cfg->byTxM);
    }
    if (rc != 0) {
        return rc;
    }
    for (uint32_t i = 0; i < numTx; ++i) {
        bool drainFailed = false;
        rc = quiesceTxLink(chip, txLinks[i].usPhyLink, i, "VQ6192_IMA_AddImaGrp", &drainFailed);
        if (rc != 0) {
            return rc;
        }
        if (drainFailed) {
            return status(chip, kErrNoEnd);
        }
    }
    for (uint32_t i = 0; i < numRx; ++i) {
        rc = clearIdleFilter(chip, rxLinks[i], i);
        if (rc != 0) {
            return rc;
        }
    }
    const auto addLinks = [&] {
        return VQ6192_imaAddLinks(chip, startLasr, grp, numRx, numTx, rxLinks, txLinks, cfg);
    };
    rc = status(chip, kErrRefused);
    for (uint32_t attempt = 0; attempt < kAddLinkAttempts && rc == status(chip, kErrRefused); ++attempt) {
        Entry gps0;
        rc = readEntry(chip, tbl::kPpGps0, entryIndex(tbl::kPpGps0, grp), gps0);
        if (rc != 0) {
            return rc;
        }
        const uint32_t active = gps0.get(fld::kGwpActive);
        if (active == 1) {
            rc = setGpsField(chip, tbl::kPpGps0, grp, fld::kGwpActive, 0);
            rc |= addLinks();
            rc |= setGpsField(chip, tbl::kPpGps0, grp, fld::kGwpActive, 1);
        } else if (active == 2) {
            rc = setGpsField(chip, tbl::kPpGpc3, grp, fld::kAutoLasrEn, 0);
            rc |= setGpsField(chip, tbl::kPpGps0, grp, fld::kGwpActive, 0);
            rc |= setGpsField(chip, tbl::kPpGps2, grp, fld::kTxLasrAct, 0);
            rc |= setGpsField(chip, tbl::kPpGps4, grp, fld::kRxLasrAct, 0);
            waitTicks(kLasrPauseTicks);
            rc |= addLinks();
            rc |= setGpsField(chip, tbl::kPpGpc3, grp, fld::kAutoLasrEn, 1);
        } else {
            rc = addLinks();
        }
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_DelImaLink(uint32_t chip, uint32_t grp, uint32_t numRx, uint32_t numTx,
                                          const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                          uint32_t symmetryMode) {
    if (!validChip(chip) || grp >= kGroups || numRx > kMaxLid || numTx > kMaxLid ||
        (numRx == 0 && numTx == 0) || symmetryMode > 2 || (numTx > 0 && txLinks == nullptr) ||
        (numRx > 0 && rxLinks == nullptr) || (numRx > 0 && symmetryMode < 2 && txLinks == nullptr)) {
        return paraErr(chip);
    }
    if (numRx > 0 && !validRx(numRx, rxLinks)) {
        return paraErr(chip);
    }
    uint16_t phys[kMaxLid];
    for (uint32_t i = 0; i < numTx; ++i) {
        phys[i] = txLinks[i].usPhyLink;
    }
    const uint32_t rc = VQ6192_setTimaCommParams(chip, grp, numTx, 0, phys);
    if (rc != 0) {
        return rc;
    }
    return runCmd(chip, VQ6192_IMA_CMD_DELETE_LINK, grp, txVector(numTx, txLinks),
                  rxVector(numRx, rxLinks, txLinks, symmetryMode), 0);
}

VQ6192_API uint32_t VQ6192_IMA_GetImaGrpCfg(uint32_t chip, uint32_t grp, IMA_GRP_CFG *cfg,
                                            uint16_t *groupEn) {
    if (!validChip(chip) || grp >= kGroups || cfg == nullptr) {
        return paraErr(chip);
    }
    Entry gps0, gpc0, gpc1, gpc2, rxgpc, txgpc, gps1, gps2, gps3;
    uint32_t rc = readEntry(chip, tbl::kPpGps0, entryIndex(tbl::kPpGps0, grp), gps0);
    if (rc != 0) {
        return rc;
    }
    if (groupEn != nullptr) {
        *groupEn = static_cast<uint16_t>(gps0.get(fld::kGroupEn));
    }
    if (gps0.get(fld::kGroupEn) == 0) {
        return status(chip, kErrInUse);
    }
    if ((rc = readEntry(chip, tbl::kPpGpc0, entryIndex(tbl::kPpGpc0, grp), gpc0)) ||
        (rc = readEntry(chip, tbl::kPpGpc1, entryIndex(tbl::kPpGpc1, grp), gpc1)) ||
        (rc = readEntry(chip, tbl::kPpGpc2, entryIndex(tbl::kPpGpc2, grp), gpc2)) ||
        (rc = readEntry(chip, tbl::kRxGpc, grp, rxgpc)) || (rc = readEntry(chip, tbl::kTxGpc, grp, txgpc)) ||
        (rc = readEntry(chip, tbl::kPpGps1, entryIndex(tbl::kPpGps1, grp), gps1)) ||
        (rc = readEntry(chip, tbl::kPpGps3, entryIndex(tbl::kPpGps3, grp), gps3)) ||
        (rc = readEntry(chip, tbl::kPpGps2, entryIndex(tbl::kPpGps2, grp), gps2))) {
        return rc;
    }
    uint16_t lidMap[kMaxLid], rxTable[kMaxLid];
    uint8_t icp[kMaxLid];
    if ((rc = VQ6192_getTimaLinkParams(chip, grp, lidMap, icp)) ||
        (rc = VQ6192_getRippRxPhyTbl(chip, grp, rxTable))) {
        return rc;
    }
    IMA_GRP_CFG c{};
    c.byImaOamLabel = static_cast<uint8_t>(gpc0.get(fld::kGpOamLabel));
    c.bySymmetryMd = static_cast<uint8_t>(gpc0.get(fld::kGpSymMode));
    c.byTxImaId = static_cast<uint8_t>(gpc1.get(fld::kTxImaId));
    c.byTxM = static_cast<uint8_t>(gpc1.get(fld::kTxImaM));
    c.byPTx = static_cast<uint8_t>(gpc1.get(fld::kTxMinNum));
    c.byClockMd = static_cast<uint8_t>(gpc1.get(fld::kTxClkMode));
    c.byRxImaIdCfgEn = static_cast<uint8_t>(gpc2.get(fld::kRxImaIdCfgEn));
    c.byRxImaId = static_cast<uint8_t>(gpc2.get(fld::kRxImaIdCfg));
    c.byPRx = static_cast<uint8_t>(gpc2.get(fld::kRxMinNum));
    c.byRxM = static_cast<uint8_t>(gpc2.get(fld::kRxImaMEn));
    c.wMaxDelay = static_cast<uint16_t>(rxgpc.get(fld::kRxDelayTol));
    // The read-back reports the Stuffadvmode bit itself (1 or 0), not the 1 or 4 the group was added with.
    c.byStuffAdvMd = static_cast<uint8_t>(txgpc.get(fld::kStuffAdvMode));
    c.wTxTrlPhy = static_cast<uint16_t>(gps1.get(fld::kTxTrlPhyId));
    c.wTxVphy = static_cast<uint16_t>(grp);
    c.wRxVphy = static_cast<uint16_t>(grp);
    c.byStuffMd = 2;
    Links l{};
    const uint32_t txVec = gps2.get(fld::kTxPhyValid);
    const uint32_t rxVec = gps3.get(fld::kRxPhyValid);
    uint16_t numTx = 0, numRx = 0;
    for (uint32_t lid = 0; lid < kMaxLid; ++lid) {
        if ((txVec >> lid) & 1u) {
            l.tx[numTx++] = {static_cast<uint8_t>(lid), icp[lid], lidMap[lid]};
        }
        if ((rxVec >> lid) & 1u) {
            l.rx[numRx++] = rxTable[lid];
        }
    }
    c.wNumTxLinks = numTx;
    c.wNumRxLinks = numRx;
    std::memcpy(reinterpret_cast<uint8_t *>(&c) + offsetof(IMA_GRP_CFG, pusRxLinks), l.rx, sizeof l.rx);
    std::memcpy(reinterpret_cast<uint8_t *>(&c) + offsetof(IMA_GRP_CFG, pstTxLinks), l.tx, sizeof l.tx);
    std::memcpy(cfg, &c, sizeof c);
    return 0;
}

}  // extern "C"
