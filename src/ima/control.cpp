// Group control through the IMA processor: inhibit, LASR, unusable links, receive defects, test pattern,
// timing reference, restart, forced link deletion, running-group parameters, interrupt enables, the
// processor time tick and the loopbacks.
#include "ima/ima_internal.h"

namespace vq::ima {
namespace {

constexpr uint32_t kForceDeletePolls = 400;
constexpr uint32_t kForceDeleteWait = 10;
constexpr uint32_t kNetxDeleted = 1;
constexpr uint32_t kNerxDeleted = 2;
constexpr uint32_t kReasonUnspecified = 1;
constexpr uint32_t kGroupIntMask = 0x3FF;

// The receive links below 336 and the transmit LIDs at the same index at most 32.
bool linksValid(uint32_t n, const uint16_t *rx, const IMA_TX_LINK *tx) {
    for (uint32_t i = 0; i < n; ++i) {
        if (rx[i] >= kLinks || tx[i].ucLid > kMaxLid) {
            return false;
        }
    }
    return true;
}

uint32_t rmw(uint32_t chip, uint32_t tableId, uint32_t index, EntryField f, uint32_t value) {
    Entry e;
    uint32_t rc = readEntry(chip, tableId, index, e);
    if (rc == 0) {
        e.set(f, value);
        rc = writeEntry(chip, tableId, index, e);
    }
    return rc;
}

uint32_t setBits(uint32_t chip, uint32_t tableId, uint32_t index, uint32_t mask, uint32_t enable) {
    Entry e;
    uint32_t rc = readEntry(chip, tableId, index, e);
    if (rc == 0) {
        e.w[0] = enable ? (e.w[0] | mask) : (e.w[0] & ~mask);
        rc = writeEntry(chip, tableId, index, e);
    }
    return rc;
}

}  // namespace
}  // namespace vq::ima

using namespace vq::ima;
using vq::validChip;

extern "C" {

VQ6192_API uint32_t VQ6192_IMA_SetImaGrpStatus(uint32_t chip, uint32_t grp, uint32_t inhibit) {
    if (!validChip(chip) || grp >= kGroups || inhibit > 1) {
        return paraErr(chip);
    }
    // The processor's answer is not looked at.
    (void)runCmd(chip, inhibit ? VQ6192_IMA_CMD_INHIBIT_GROUP : VQ6192_IMA_CMD_NOT_INHIBIT_GROUP, grp, 0, 0,
                 0);
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_Lasr(uint32_t chip, uint32_t grp, uint32_t numRx, uint32_t numTx,
                                    const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                    uint32_t symmetryMode) {
    if (!validChip(chip) || grp >= kGroups || numRx > kLinks || numTx > kLinks ||
        (numRx == 0 && numTx == 0) || symmetryMode > 2 || (numTx > 0 && txLinks == nullptr) ||
        (numRx > 0 && (symmetryMode < 2 ? txLinks == nullptr : rxLinks == nullptr))) {
        return paraErr(chip);
    }
    return runCmd(chip, VQ6192_IMA_CMD_START_LASR, grp, txVector(numTx, txLinks),
                  rxVector(numRx, rxLinks, txLinks, symmetryMode), 0);
}

VQ6192_API uint32_t VQ6192_IMA_SetImaLinkStatus(uint32_t chip, uint32_t grp, uint32_t numRx, uint32_t numTx,
                                                const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                                uint32_t rxReason, uint32_t txReason, uint32_t symmetryMode) {
    if (!validChip(chip) || grp >= kGroups || numRx > kMaxLid || numTx > kMaxLid || rxReason > 7 ||
        txReason > 7 || symmetryMode > 2 || (numRx > 0 && (rxLinks == nullptr || txLinks == nullptr)) ||
        (numTx > 0 && txLinks == nullptr)) {
        return paraErr(chip);
    }
    if (!linksValid(numRx, rxLinks, txLinks)) {
        return status(chip, kErrPara);
    }
    const uint32_t rx = rxReason == 0 ? kReasonUnspecified : rxReason;
    const uint32_t tx = txReason == 0 ? kReasonUnspecified : txReason;
    return runCmd(chip, VQ6192_IMA_CMD_UNUSABLE_LINK, grp, txVector(numTx, txLinks),
                  rxVector(numRx, rxLinks, txLinks, symmetryMode), rx | (tx << 3));
}

VQ6192_API uint32_t VQ6192_IMA_SetImaLinkDefect(uint32_t chip, uint32_t grp, uint32_t n,
                                                const uint16_t *rxLinks, const IMA_TX_LINK *txLinks,
                                                uint32_t defect, uint32_t symmetryMode) {
    if (!validChip(chip) || grp >= kGroups || n == 0 || n > kMaxLid || rxLinks == nullptr ||
        txLinks == nullptr || defect > 1 || symmetryMode > 2) {
        return paraErr(chip);
    }
    if (!linksValid(n, rxLinks, txLinks)) {
        return status(chip, kErrPara);
    }
    return runCmd(chip, VQ6192_IMA_CMD_SET_RX_PHY_DEFECT, grp, 0, rxVector(n, rxLinks, txLinks, symmetryMode),
                  defect & 1u);
}

VQ6192_API uint32_t VQ6192_IMA_UpdateTestPtn(uint32_t chip, uint32_t grp, uint32_t rxTestEn,
                                             uint32_t rxPattern, uint32_t txTestLid, uint32_t txTestEn,
                                             uint32_t txPattern) {
    if (!validChip(chip) || grp >= kGroups || rxTestEn > 1 || rxPattern > 255 || txTestLid >= kLinks ||
        txTestEn > 1 || txPattern > 255) {
        return paraErr(chip);
    }
    const uint32_t p1 =
        txPattern | ((txTestLid & 0x1Fu) << 8) | (txTestEn << 13) | (rxPattern << 15) | (rxTestEn << 28);
    return runCmd(chip, VQ6192_IMA_CMD_UPDATE_TEST_PTN, grp, p1, 0, 0);
}

VQ6192_API uint32_t VQ6192_IMA_UpdateTxTrl(uint32_t chip, uint32_t grp, uint32_t lid) {
    if (!validChip(chip) || grp >= kGroups || lid >= kLinks) {
        return paraErr(chip);
    }
    return runCmd(chip, VQ6192_IMA_CMD_UPDATE_TX_TRL, grp, lid, 0, 0);
}

VQ6192_API uint32_t VQ6192_IMA_Restart(uint32_t chip, uint32_t grp) {
    if (!validChip(chip) || grp >= kGroups) {
        return paraErr(chip);
    }
    const uint32_t rc = rmw(chip, tbl::kPpGps1, entryIndex(tbl::kPpGps1, grp), fld::kTxTrlChange, 1);
    if (rc != 0) {
        return rc;
    }
    return runCmd(chip, VQ6192_IMA_CMD_RESTART_GROUP, grp, 0, 0, 0);
}

VQ6192_API uint32_t VQ6192_IMA_ForceLinkDeleted(uint32_t chip, uint32_t link, uint32_t grp, uint32_t lid) {
    if (!validChip(chip) || link >= kLinks || grp >= kGroups || lid >= kMaxLid) {
        return paraErr(chip);
    }
    const uint32_t txIdx = entryIndex(tbl::kPpTxs0, link), rxIdx = entryIndex(tbl::kPpRxs0, link);
    Entry txs, rxs;
    uint32_t rc = readEntry(chip, tbl::kPpTxs0, txIdx, txs);
    if (rc == 0 && txs.get(fld::kTxsLinkEn) != 0) {
        txs.set(fld::kNetxlsm, kNetxDeleted);
        txs.set(fld::kFerxlsm, 0);
        rc = writeEntry(chip, tbl::kPpTxs0, txIdx, txs);
    }
    uint32_t rc2 = readEntry(chip, tbl::kPpRxs0, rxIdx, rxs);
    if (rc2 == 0 && rxs.get(fld::kRxsLinkEn) != 0) {
        rxs.set(fld::kNerxlsm, kNerxDeleted);
        rc2 = writeEntry(chip, tbl::kPpRxs0, rxIdx, rxs);
    }
    rc |= rc2;
    for (uint32_t i = 0; i < kForceDeletePolls; ++i) {
        waitTicks(kForceDeleteWait);
        rc |= readEntry(chip, tbl::kPpTxs0, txIdx, txs);
        rc |= readEntry(chip, tbl::kPpRxs0, rxIdx, rxs);
        if (txs.get(fld::kTxsLinkEn) == 0 && rxs.get(fld::kRxsLinkEn) == 0) {
            return rc;
        }
    }
    // The processor never let the link go: take it out by hand and restart the group.
    txs.set(fld::kTxsLinkEn, 0);
    rxs.set(fld::kRxsLinkEn, 0);
    rc |= writeEntry(chip, tbl::kPpTxs0, txIdx, txs);
    rc |= writeEntry(chip, tbl::kPpRxs0, rxIdx, rxs);
    Entry gps2;
    const uint32_t gIdx = entryIndex(tbl::kPpGps2, grp);
    uint32_t rc3 = readEntry(chip, tbl::kPpGps2, gIdx, gps2);
    if (rc3 == 0) {
        gps2.set(fld::kTxPhyValid, gps2.get(fld::kTxPhyValid) & ~(1u << lid));
        rc3 = writeEntry(chip, tbl::kPpGps2, gIdx, gps2);
    }
    return rc | rc3 | VQ6192_IMA_Restart(chip, grp);
}

VQ6192_API uint32_t VQ6192_ImaLinkLinkDeleted(uint32_t chip, uint32_t link, uint32_t *deleted) {
    if (!validChip(chip) || link >= kLinks || deleted == nullptr) {
        return paraErr(chip);
    }
    Entry txs, rxs;
    uint32_t rc = readEntry(chip, tbl::kPpTxs0, entryIndex(tbl::kPpTxs0, link), txs);
    rc |= readEntry(chip, tbl::kPpRxs0, entryIndex(tbl::kPpRxs0, link), rxs);
    if (rc != 0) {
        return rc;
    }
    if (rxs.get(fld::kRxsLinkEn) != 0) {
        *deleted = 0;
    } else if (txs.get(fld::kTxsLinkEn) == 0) {
        *deleted = 1;
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_SetImaGrpParam(uint32_t chip, uint32_t grp, uint32_t reserved,
                                              const IMA_GRP_PARAM *mask, const IMA_GRP_PARAM *value) {
    if (!validChip(chip) || grp >= kGroups || reserved > 1 || mask == nullptr || value == nullptr) {
        return paraErr(chip);
    }
    const IMA_GRP_PARAM &m = *mask, &v = *value;
    uint32_t rc = 0;
    if (m.bySymmetryMd || m.byImaVersion || m.byImaOamLabel) {
        const uint32_t idx = entryIndex(tbl::kPpGpc0, grp);
        Entry e;
        if ((rc = readEntry(chip, tbl::kPpGpc0, idx, e))) {
            return rc;
        }
        if (m.byImaOamLabel) {
            e.set(fld::kGpOamLabel, v.byImaOamLabel);
        }
        if (m.bySymmetryMd) {
            e.set(fld::kGpSymMode, v.bySymmetryMd);
        }
        if ((rc = writeEntry(chip, tbl::kPpGpc0, idx, e))) {
            return rc;
        }
        if (m.byImaOamLabel && (rc = rmw(chip, tbl::kTxGpc, grp, fld::kTxOamLabel, v.byImaOamLabel))) {
            return rc;
        }
    }
    if (m.byClockMd || m.byTxImaId || m.byTxM || m.byPTx) {
        const uint32_t idx = entryIndex(tbl::kPpGpc1, grp);
        Entry e;
        if ((rc = readEntry(chip, tbl::kPpGpc1, idx, e))) {
            return rc;
        }
        if (m.byTxImaId) {
            e.set(fld::kTxImaId, v.byTxImaId);
        }
        if (m.byTxM) {
            e.set(fld::kTxImaM, v.byTxM);
        }
        if (m.byPTx) {
            e.set(fld::kTxMinNum, v.byPTx);
        }
        if (m.byClockMd) {
            e.set(fld::kTxClkMode, v.byClockMd);
        }
        if ((rc = writeEntry(chip, tbl::kPpGpc1, idx, e))) {
            return rc;
        }
        if (m.byTxM && (rc = rmw(chip, tbl::kTxGpc, grp, fld::kTxm, v.byTxM))) {
            return rc;
        }
    }
    if (m.byRxM || m.byPRx || m.byRxImaIdCfgEn) {
        const uint32_t idx = entryIndex(tbl::kPpGpc2, grp);
        Entry e;
        if ((rc = readEntry(chip, tbl::kPpGpc2, idx, e))) {
            return rc;
        }
        if (m.byRxM) {
            e.set(fld::kRxImaMEn, v.byRxM);
        }
        if (m.byPRx) {
            e.set(fld::kRxMinNum, v.byPRx);
        }
        if (m.byRxImaIdCfgEn) {
            e.set(fld::kRxImaIdCfgEn, v.byRxImaIdCfgEn);
            e.set(fld::kRxImaIdCfg, v.byRxImaId);
        }
        if ((rc = writeEntry(chip, tbl::kPpGpc2, idx, e))) {
            return rc;
        }
    }
    if (m.wMaxDelay) {
        rc = rmw(chip, tbl::kRxGpc, grp, fld::kRxDelayTol, v.wMaxDelay);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_SetImaGrpInt(uint32_t chip, uint32_t grp, uint32_t mask, uint32_t enable) {
    if (!validChip(chip) || grp >= kGroups || mask == 0 || mask > kGroupIntMask || enable > 1) {
        return paraErr(chip);
    }
    return setBits(chip, tbl::kPpGpc0, entryIndex(tbl::kPpGpc0, grp), mask, enable);
}

VQ6192_API uint32_t VQ6192_IMA_SetImaLinkInt(uint32_t chip, uint32_t link, uint32_t side, uint32_t mask,
                                             uint32_t enable) {
    const uint32_t limit = side == 1 ? 0xFu : 0x3FFu;
    if (!validChip(chip) || link >= kLinks || side < 1 || side > 2 || mask == 0 || mask > limit ||
        enable > 1) {
        return paraErr(chip);
    }
    return setBits(chip, side == 1 ? tbl::kPpTxc : tbl::kPpRxc, link, mask, enable);
}

VQ6192_API uint32_t VQ6192_IMA_SetImaIntEnable(uint32_t chip, uint32_t level, uint32_t mask,
                                               uint32_t enable) {
    if (!validChip(chip) || mask == 0 || enable > 1) {
        return paraErr(chip);
    }
    Reg r{};
    switch (level) {
        case 1:
            r = kIntLevel1;
            break;
        case 2:
            r = kIntLevel2;
            break;
        case 4:
            r = kIntLevel4;
            break;
        case 8:
            r = kIntLevel8;
            break;
        default:
            return status(chip, kErrPara);
    }
    const uint32_t sel = mask & ((1u << r.width) - 1);
    const uint32_t old = VQ6192_ReadReg(chip, r.addr);
    VQ6192_WriteReg(chip, r.addr, enable ? (old | sel) : (old & ~sel));
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_SetImaTimeTick(uint32_t chip, uint32_t value) {
    if (!validChip(chip)) {
        return paraErr(chip);
    }
    uint32_t tick = value;
    if (value == 0) {
        tick = VQ6192_ReadReg(chip, kTimeTickReg) * 2;
    } else if (value == 0xFFFFFFFFu) {
        tick = VQ6192_ReadReg(chip, kTimeTickReg) / 2;
    }
    VQ6192_WriteReg(chip, kTimeTickReg, tick & 0xFFFFu);
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_GetImaTimeTick(uint32_t chip, uint16_t *value) {
    if (!validChip(chip) || value == nullptr) {
        return paraErr(chip);
    }
    *value = static_cast<uint16_t>(VQ6192_ReadReg(chip, kTimeTickReg));
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_SetImaLoop(uint32_t chip, uint32_t mask, uint32_t enable) {
    if (!validChip(chip) || mask == 0 || mask > 0xF || enable > 1) {
        return paraErr(chip);
    }
    if (mask & 8u) {
        set(chip, kLoopTcSide, enable);
    }
    for (uint32_t b = 0; b < kLoopImaSide.width; ++b) {
        if (mask & (1u << b)) {
            VQ6192_WriteRegField(chip, kLoopImaSide.addr, enable, b, 1);
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_GetImaLoop(uint32_t chip, uint32_t *mask) {
    if (!validChip(chip) || mask == nullptr) {
        return paraErr(chip);
    }
    *mask = (get(chip, kLoopTcSide) << 3) | get(chip, kLoopImaSide);
    return 0;
}

}  // extern "C"
