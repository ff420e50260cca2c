// ATM TC link configuration, TC state and the TC FIFO state.
#include "ima/ima_internal.h"

namespace vq::ima {
namespace {

constexpr uint32_t kTcTxCfgBits = 47;  // bits 0..46 of the transmit entry belong to the record

uint32_t member(uint32_t tableId, uint32_t i, const Entry &e) {
    const VQ6192_TBL_MEMBER_S &m = g_astVQ6192TblEntryList[tableId].pstMember[i];
    return entryBits(e.w, m.usStartBit, m.usWidth);
}

uint32_t memberCount(uint32_t tableId) {
    return g_astVQ6192TblEntryList[tableId].usMemberNum;
}

Entry rxEntry(const TC_RX_CFG &c) {
    Entry e;
    e.set(fld::kRxHeader, c.dwRxHeader);
    e.set(fld::kRxHeaderMask, c.dwRxHeaderMask);
    e.set(fld::kRxLinkEn, c.byRxLinkEn);
    e.set(fld::kRxScramblerEn, c.byRxScramblerEn);
    e.set(fld::kRxPloyAddEn, c.byRxPloyAddEn);
    e.set(fld::kRxBitReverseEn, c.byRxBitReverseEn);
    e.set(fld::kRxHecCorrectEn, c.byRxHecCorrectEn);
    e.set(fld::kRxIdleFilterEn, c.byRxIdleFilterEn);
    e.set(fld::kRxHecFilterEn, c.byRxHecFilterEn);
    e.set(fld::kRxOcdFilterEn, c.byRxOcdFilterEn);
    e.set(fld::kRxCdfsmAlpha, c.byRxCdfsmAlpha);
    e.set(fld::kRxCdfsmDelta, c.byRxCdfsmDelta);
    e.set(fld::kRxHecCorrectM, c.byRxHecCorrectM);
    e.set(fld::kRxLcdTimer, c.byRxLcdTimer);
    return e;
}

void setTxFields(Entry &e, const TC_TX_CFG &c) {
    setEntryBits(e.w, 0, 32, 0);
    setEntryBits(e.w, 32, kTcTxCfgBits - 32, 0);
    e.set(fld::kTxLinkEn, c.byTxLinkEn);
    e.set(fld::kTxScramblerEn, c.byTxScramblerEn);
    e.set(fld::kTxPloyAddEn, c.byTxPloyAddEn);
    e.set(fld::kTxBitReverseEn, c.byTxBitReverseEn);
    e.set(fld::kTxIdleInsertEn, c.byTxIdleInsertEn);
    e.set(fld::kTxHecInsertType, c.byTxHecInsertType);
    e.set(fld::kTxHecInsertData, c.byTxHecInsertData);
    e.set(fld::kTxIdleHead4, c.byTxIdleCellHead4);
    e.set(fld::kTxIdleHead3, c.byTxIdleCellHead3);
    e.set(fld::kTxIdleHead2, c.byTxIdleCellHead2);
    e.set(fld::kTxIdleHead1, c.byTxIdleCellHead1);
}

template <typename T>
void copyMembers(uint32_t tableId, const Entry &e, T *out, uint32_t count) {
    for (uint32_t i = 0; i < count; ++i) {
        out[i] = static_cast<T>(member(tableId, i, e));
    }
}

bool linksValid(uint32_t n, const uint16_t *links) {
    for (uint32_t i = 0; i < n; ++i) {
        if (links[i] >= kLinks) {
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

VQ6192_API uint32_t VQ6192_IMA_SetTcLinkParam(uint32_t chip, uint32_t n, const uint16_t *links,
                                              const TC_TX_CFG *tx, const TC_RX_CFG *rx) {
    if (!validChip(chip) || n == 0 || n > kMaxLid || links == nullptr || (tx == nullptr && rx == nullptr) ||
        !linksValid(n, links)) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    for (uint32_t i = 0; i < n; ++i) {
        const uint32_t link = links[i];
        if (rx != nullptr) {
            rc |= writeEntry(chip, tbl::kTcRxCfg, link, rxEntry(*rx));
        }
        if (tx != nullptr) {
            Entry txe, rxe;
            uint32_t rd = readEntry(chip, tbl::kTcTxCfg, link, txe);
            rd |= readEntry(chip, tbl::kTcRxCfg, link, rxe);
            rc |= rd;
            if (rd != 0) {
                continue;
            }
            if ((txe.get(fld::kTxLinkEn) != 0 || rxe.get(fld::kRxLinkEn) != 0) && tx->byTxLinkEn == 0) {
                const uint32_t d = drainTxLink(chip, link);
                if (d == kDrainNeverEnded) {
                    VQ6192_IMA_TRACE(chip,
                                     "Err. VQ6192_IMA_AddImaGrp.VQ6192_Read_Table(%u,%u,%u)i=%#x  GetDEPTH   "
                                     "ErrCode[%#x]\r\n",
                                     chip, tbl::kTcTxImaif, link, i, status(chip, kErrNoEnd));
                } else {
                    rc |= d;
                }
            }
            setTxFields(txe, *tx);
            rc |= writeEntry(chip, tbl::kTcTxCfg, link, txe);
        }
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetTcLinkParam(uint32_t chip, uint32_t n, const uint16_t *links, TC_TX_CFG *tx,
                                              TC_RX_CFG *rx) {
    if (!validChip(chip) || n == 0 || n > kMaxLid || links == nullptr || (tx == nullptr && rx == nullptr) ||
        !linksValid(n, links)) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    for (uint32_t i = 0; i < n; ++i) {
        if (tx != nullptr) {
            Entry e;
            rc |= readEntry(chip, tbl::kTcTxCfg, links[i], e);
            tx->byTxLinkEn = static_cast<uint8_t>(e.get(fld::kTxLinkEn));
            tx->byTxScramblerEn = static_cast<uint8_t>(e.get(fld::kTxScramblerEn));
            tx->byTxPloyAddEn = static_cast<uint8_t>(e.get(fld::kTxPloyAddEn));
            tx->byTxBitReverseEn = static_cast<uint8_t>(e.get(fld::kTxBitReverseEn));
            tx->byTxIdleInsertEn = static_cast<uint8_t>(e.get(fld::kTxIdleInsertEn));
            tx->byTxHecInsertType = static_cast<uint8_t>(e.get(fld::kTxHecInsertType));
            tx->byTxHecInsertData = static_cast<uint8_t>(e.get(fld::kTxHecInsertData));
            tx->byTxIdleCellHead4 = static_cast<uint8_t>(e.get(fld::kTxIdleHead4));
            tx->byTxIdleCellHead3 = static_cast<uint8_t>(e.get(fld::kTxIdleHead3));
            tx->byTxIdleCellHead2 = static_cast<uint8_t>(e.get(fld::kTxIdleHead2));
            tx->byTxIdleCellHead1 = static_cast<uint8_t>(e.get(fld::kTxIdleHead1));
        }
        if (rx != nullptr) {
            Entry e;
            rc |= readEntry(chip, tbl::kTcRxCfg, links[i], e);
            rx->dwRxHeader = e.get(fld::kRxHeader);
            rx->dwRxHeaderMask = e.get(fld::kRxHeaderMask);
            rx->byRxLinkEn = static_cast<uint8_t>(e.get(fld::kRxLinkEn));
            rx->byRxScramblerEn = static_cast<uint8_t>(e.get(fld::kRxScramblerEn));
            rx->byRxPloyAddEn = static_cast<uint8_t>(e.get(fld::kRxPloyAddEn));
            rx->byRxBitReverseEn = static_cast<uint8_t>(e.get(fld::kRxBitReverseEn));
            rx->byRxHecCorrectEn = static_cast<uint8_t>(e.get(fld::kRxHecCorrectEn));
            rx->byRxIdleFilterEn = static_cast<uint8_t>(e.get(fld::kRxIdleFilterEn));
            rx->byRxHecFilterEn = static_cast<uint8_t>(e.get(fld::kRxHecFilterEn));
            rx->byRxOcdFilterEn = static_cast<uint8_t>(e.get(fld::kRxOcdFilterEn));
            rx->byRxCdfsmAlpha = static_cast<uint8_t>(e.get(fld::kRxCdfsmAlpha));
            rx->byRxCdfsmBeta = static_cast<uint8_t>(e.get(fld::kRxCdfsmDelta));
            rx->byRxCdfsmDelta = static_cast<uint8_t>(e.get(fld::kRxCdfsmDelta));
            rx->byRxHecCorrectM = static_cast<uint8_t>(e.get(fld::kRxHecCorrectM));
            rx->byRxLcdTimer = static_cast<uint8_t>(e.get(fld::kRxLcdTimer));
        }
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_tcGetRxLinkState(uint32_t chip, uint32_t link, uint16_t rx0[15], uint16_t rx1[6],
                                            uint32_t rx2[9]) {
    if (!validChip(chip) || link >= kLinks || (rx0 == nullptr && rx1 == nullptr && rx2 == nullptr)) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    if (rx0 != nullptr) {
        Entry e;
        rc |= readEntry(chip, tbl::kTcRxSta0, link, e);
        copyMembers(tbl::kTcRxSta0, e, rx0, memberCount(tbl::kTcRxSta0));
    }
    if (rx1 != nullptr) {
        Entry e;
        rc |= readEntry(chip, tbl::kTcRxSta1, link, e);
        copyMembers(tbl::kTcRxSta1, e, rx1, memberCount(tbl::kTcRxSta1));
    }
    if (rx2 != nullptr) {
        Entry e;
        rc |= readEntry(chip, tbl::kTcRxSta2, link, e);
        const uint32_t n = memberCount(tbl::kTcRxSta2);
        copyMembers(tbl::kTcRxSta2, e, rx2, n);
        // The cell counter is read-clear: add what the link status reader already took from it.
        rx2[n] = e.w[0] + g_vq6192[chip].ulLinkStatAccum;
        g_vq6192[chip].ulLinkStatAccum = 0;
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_tcGetTxLinkState(uint32_t chip, uint32_t link, uint32_t tx[11]) {
    if (!validChip(chip) || link >= kLinks || tx == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, tbl::kTcTxSta, link, e);
    copyMembers(tbl::kTcTxSta, e, tx, memberCount(tbl::kTcTxSta));
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetTcLinkStatus(uint32_t chip, uint32_t link, uint16_t rx0[15],
                                               uint16_t rx1[6], uint32_t rx2[9], uint32_t tx[11]) {
    if (!validChip(chip) || link >= kLinks ||
        (rx0 == nullptr && rx1 == nullptr && rx2 == nullptr && tx == nullptr)) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    if (rx0 != nullptr || rx1 != nullptr || rx2 != nullptr) {
        rc |= VQ6192_tcGetRxLinkState(chip, link, rx0, rx1, rx2);
    }
    if (tx != nullptr) {
        rc |= VQ6192_tcGetTxLinkState(chip, link, tx);
    }
    return rc;
}

static void imaifRecord(uint32_t tableId, const Entry &e, uint16_t out[5]) {
    // Bits 18..31, depth, overrun, underrun, then the byte count.
    out[0] = static_cast<uint16_t>(member(tableId, 0, e));
    out[1] = static_cast<uint16_t>(member(tableId, 2, e));
    out[2] = static_cast<uint16_t>(member(tableId, 3, e));
    out[3] = static_cast<uint16_t>(member(tableId, 4, e));
    out[4] = static_cast<uint16_t>(member(tableId, 1, e));
}

VQ6192_API uint32_t VQ6192_tcGetRxLinkFifoState(uint32_t chip, uint32_t link, uint16_t tsif[4],
                                                uint16_t imaif[5]) {
    if (!validChip(chip) || link >= kLinks || (tsif == nullptr && imaif == nullptr)) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    if (tsif != nullptr) {
        Entry e;
        rc |= readEntry(chip, tbl::kTcRxTsif, link, e);
        copyMembers(tbl::kTcRxTsif, e, tsif, 4);
    }
    if (imaif != nullptr) {
        Entry e;
        rc |= readEntry(chip, tbl::kTcRxImaif, link, e);
        imaifRecord(tbl::kTcRxImaif, e, imaif);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_tcGetTxLinkFifoState(uint32_t chip, uint32_t link, uint16_t tsif[4],
                                                uint16_t imaif[5]) {
    if (!validChip(chip) || link >= kLinks || (tsif == nullptr && imaif == nullptr)) {
        return paraErr(chip);
    }
    Entry txc, rxc;
    uint32_t rc = readEntry(chip, tbl::kTcTxCfg, link, txc);
    rc |= readEntry(chip, tbl::kTcRxCfg, link, rxc);
    if (rc != 0) {
        return rc;
    }
    if (txc.get(fld::kTxLinkEn) == 0 && rxc.get(fld::kRxLinkEn) == 0) {
        rc = bareStatus(kErrNotEnabled);
        VQ6192_IMA_TRACE(chip,
                         "VQ6192_IDX_TC_TX_IMAIF_LNK_STA_PRI Can't not be read  CHIPID[%d] ErrCode[%#x]\r\n",
                         chip, rc);
        return rc;
    }
    if (tsif != nullptr) {
        Entry e;
        rc |= readEntry(chip, tbl::kTcTxTsif, link, e);
        copyMembers(tbl::kTcTxTsif, e, tsif, 4);
    }
    if (imaif != nullptr) {
        Entry e;
        rc |= readEntry(chip, tbl::kTcTxImaif, link, e);
        imaifRecord(tbl::kTcTxImaif, e, imaif);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_IMA_GetTcLinkFifoStatus(uint32_t chip, uint32_t link, uint16_t rxTsif[4],
                                                   uint16_t rxImaif[5], uint16_t txTsif[4],
                                                   uint16_t txImaif[5]) {
    if (!validChip(chip) || link >= kLinks ||
        (rxTsif == nullptr && rxImaif == nullptr && txTsif == nullptr && txImaif == nullptr)) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    if (rxTsif != nullptr || rxImaif != nullptr) {
        rc |= VQ6192_tcGetRxLinkFifoState(chip, link, rxTsif, rxImaif);
    }
    if (txTsif != nullptr || txImaif != nullptr) {
        rc |= VQ6192_tcGetTxLinkFifoState(chip, link, txTsif, txImaif);
    }
    return rc;
}

}  // extern "C"
