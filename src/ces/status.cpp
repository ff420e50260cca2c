// CES alarms (channel, FIFO and history) and packet counters.
#include "ces/ces_internal.h"

namespace vq::ces {
namespace {

// Flags out[k] = bit bits[k] of a register.
template <size_t N>
void flags(uint32_t value, const uint32_t (&bits)[N], uint8_t *out) {
    for (size_t k = 0; k < N; ++k) {
        out[k] = static_cast<uint8_t>(value >> bits[k] & 1u);
    }
}

// Drop, defect, TB over, TB under, JB over, JB under.
constexpr uint32_t kChanAlmBits[6] = {5, 4, 3, 2, 1, 0};
// TX FIFO over, TX under, RX over, RX under, then bits 11 down to 4.
constexpr uint32_t kFifoAlmBits[12] = {3, 2, 1, 0, 11, 10, 9, 8, 7, 6, 5, 4};

uint32_t chanAlm(uint32_t chip, uint32_t ch, uint8_t *alm, uint32_t reg) {
    if (!validChip(chip) || !validChan(ch) || alm == nullptr) {
        return paraErr(chip);
    }
    flags(VQ6192_ReadReg(chip, chanReg(reg, ch)), kChanAlmBits, alm);
    return 0;
}

uint32_t fifoAlm(uint32_t chip, uint8_t *alm, uint32_t reg) {
    if (!validChip(chip) || alm == nullptr) {
        return paraErr(chip);
    }
    flags(VQ6192_ReadReg(chip, reg), kFifoAlmBits, alm);
    return 0;
}

// Counter tables of a channel read in order; the first failed read stops with error 4.
struct Counter {
    uint32_t table;
    EntryField field;
};

uint32_t readCounters(uint32_t chip, uint32_t ch, const Counter *counters, size_t n, uint32_t *out) {
    for (size_t k = 0; k < n; ++k) {
        Entry e;
        if (readEntry(chip, counters[k].table, ch, e) != 0) {
            return status(chip, VQ6192_CES_ERR_STEP);
        }
        out[k] = getField(e.w, counters[k].field);
    }
    return 0;
}

constexpr Counter kJbCounters[] = {
    {tableId("Cesjbfullcnt"), entryField("Cesjbfullcnt", "Cesjbfullcnt")},
    {tableId("Cesjbempcnt"), entryField("Cesjbempcnt", "Cesjbemptycnt")},
    {tableId("Cesjbfulldropcnt"), entryField("Cesjbfulldropcnt", "Cesjbfulldropcnt")},
};
constexpr Counter kDbgCounters[] = {
    {tableId("Ceststxcnt"), entryField("Ceststxcnt", "Ceststxcnt")},
    {tableId("Cestsrxcnt"), entryField("Cestsrxcnt", "Cestxrxcnt")},
    {tableId("Cestxtbrdcnt"), entryField("Cestxtbrdcnt", "Cestxtbrdcnt")},
    {tableId("Cestxtbwrcnt"), entryField("Cestxtbwrcnt", "Cestxtbwrcnt")},
    {tableId("Cesrxjbrdcnt"), entryField("Cesrxjbrdcnt", "Cesrxjbrdcnt")},
    {tableId("Cesrxjbwrcnt"), entryField("Cesrxjbwrcnt", "Cesrxjbwrcnt")},
};
constexpr Counter kSendCounter = {tableId("Cestxcnt"), entryField("Cestxcnt", "Cestxcnt")};
constexpr uint32_t kRxCnt = tableId("Cesrxcnt");

}  // namespace
}  // namespace vq::ces

using namespace vq;
using namespace vq::ces;

extern "C" {

VQ6192_API uint32_t VQ6192_CES_GetCesChanAlm(uint32_t chip, uint32_t ch, uint8_t alm[6]) {
    return chanAlm(chip, ch, alm, kChanAlmReg);
}

VQ6192_API uint32_t VQ6192_CES_GetCesChanHistoryAlm(uint32_t chip, uint32_t ch, uint8_t alm[6]) {
    return chanAlm(chip, ch, alm, kChanAlmHisReg);
}

VQ6192_API uint32_t VQ6192_CES_GetCesRxTxFifoAlm(uint32_t chip, uint8_t alm[12]) {
    return fifoAlm(chip, alm, kFifoAlmReg);
}

VQ6192_API uint32_t VQ6192_CES_GetCesRxTxFifoHistoryAlm(uint32_t chip, uint8_t alm[12]) {
    return fifoAlm(chip, alm, kFifoAlmHisReg);
}

// Flag k is bit 13 - k.
VQ6192_API uint32_t VQ6192_CES_GetCesFifoHisAlm(uint32_t chip, uint32_t ch, uint8_t alm[14]) {
    if (!validChip(chip) || !validChan(ch) || alm == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, chanReg(kDrainReg, ch));
    for (uint32_t k = 0; k < 14; ++k) {
        alm[k] = static_cast<uint8_t>(reg >> (13 - k) & 1u);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesPktSendStat(uint32_t chip, uint32_t ch, uint32_t *cnt) {
    if (!validChip(chip) || !validChan(ch) || cnt == nullptr) {
        return paraErr(chip);
    }
    return readCounters(chip, ch, &kSendCounter, 1, cnt);
}

VQ6192_API uint32_t VQ6192_CES_GetCesPktRecStat(uint32_t chip, uint32_t ch, VQ6192_CES_PKT_REC_STAT_S *stat) {
    if (!validChip(chip) || !validChan(ch) || stat == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    if (readEntry(chip, kRxCnt, ch, e) != 0) {
        return status(chip, VQ6192_CES_ERR_STEP);
    }
    auto field = [&](EntryField f) { return static_cast<uint16_t>(getField(e.w, f)); };
    stat->wDropCnt = field(entryField("Cesrxcnt", "Rxdropcnt"));
    stat->wSnErrCnt = field(entryField("Cesrxcnt", "Rxsnerrcnt"));
    stat->wPtlenErrCnt = field(entryField("Cesrxcnt", "Rxptlenerrcnt"));
    stat->wSSRCErrCnt = field(entryField("Cesrxcnt", "Rxssrcerrcnt"));
    stat->dwCorrectCnt = getField(e.w, entryField("Cesrxcnt", "Rxpkgcnt"));
    stat->wEgLRPktCnt = field(entryField("Cesrxcnt", "Rxlrpktcnt"));
    stat->wEgEthErrCnt = field(entryField("Cesrxcnt", "Rxetherrcnt"));
    stat->wSnDropPktCnt = field(entryField("Cesrxcnt", "Sndroppktcnt"));
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesJtrBufDataStat(uint32_t chip, uint32_t ch, uint16_t *over,
                                                    uint16_t *under, uint32_t *fullDrop) {
    if (!validChip(chip) || !validChan(ch) || over == nullptr || under == nullptr || fullDrop == nullptr) {
        return paraErr(chip);
    }
    uint32_t v[3] = {};
    const uint32_t rc = readCounters(chip, ch, kJbCounters, 3, v);
    *over = static_cast<uint16_t>(v[0]);
    *under = static_cast<uint16_t>(v[1]);
    *fullDrop = v[2];
    return rc;
}

VQ6192_API uint32_t VQ6192_CES_GetCesDbgStat(uint32_t chip, uint32_t ch, VQ6192_CES_DBG_STAT_S *stat) {
    if (!validChip(chip) || !validChan(ch) || stat == nullptr) {
        return paraErr(chip);
    }
    *stat = {};
    uint32_t v[6] = {};
    const uint32_t rc = readCounters(chip, ch, kDbgCounters, 6, v);
    stat->dwTsTxCnt = v[0];
    stat->dwTsRxCnt = v[1];
    stat->dwDdrRdCnt = v[2];
    stat->dwDdrWrCnt = v[3];
    stat->dwJtrBufRdCnt = v[4];
    stat->dwJtrBufWrCnt = v[5];
    return rc;
}

}  // extern "C"
