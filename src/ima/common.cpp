// The IMA processor mailbox, link vectors, entry indexes of the shared tables and the transmit link
// drain that group and link operations share.
#include "ima/ima_internal.h"
#include "platform/osal.h"

namespace vq::ima {
namespace {

// Tables that share one select code hold several entries per group or link: entry = number * per +
// word. Tables not listed hold one entry per number.
struct Layout {
    uint32_t table;
    uint32_t per;
    uint32_t word;
};

// clang-format off
constexpr Layout kLayouts[] = {
    {tableId("Imappgpc0"),     16, 0}, {tableId("Imappgpc1"),     16, 1}, {tableId("Imappgpc2"),     16, 2},
    {tableId("Imappgpc3"),     16, 3}, {tableId("Imappgpc4"),     16, 4}, {tableId("Imappgpc5"),     16, 5},
    {tableId("Imapptxs0"),      2, 0}, {tableId("Imapptxs1"),      2, 1},
    {tableId("Imapprxs0"),      2, 0}, {tableId("Imapprxs1"),      2, 1},
    {tableId("Imarxlks0"),      2, 0}, {tableId("Imarxlks1"),      2, 1},
    {tableId("Imatxlks0"),      2, 0}, {tableId("Imatxlks1"),      2, 1},
    {tableId("Imappgps0"),      8, 0}, {tableId("Imappgps1"),      8, 1}, {tableId("Imappgps2"),      8, 2},
    {tableId("Imappgps3"),      8, 3}, {tableId("Imappgps4"),      8, 4}, {tableId("Imappgps5"),      8, 5},
    {tableId("Imappgps6"),      8, 6}, {tableId("Imappgps7"),      8, 7},
    {tableId("Imatxgps0"),      8, 0}, {tableId("Imatxgps1"),      8, 1}, {tableId("Imatxgps2"),      8, 2},
    {tableId("Imatxgps3"),      8, 3}, {tableId("Imatxgps4"),      8, 4},
    {tableId("Imarxlkcnt0"),    4, 0}, {tableId("Imarxlkcnt1"),    4, 1}, {tableId("Imarxlkcnt2"),    4, 2},
    {tableId("Imarxlkcnt3"),    4, 3},
    {tableId("Imarxuniwcnt0"),  4, 0}, {tableId("Imarxuniwcnt1"),  4, 1}, {tableId("Imarxuniwcnt2"),  4, 2},
    {tableId("Imarxuniwcnt3"),  4, 3},
    {tableId("Imarxgpwptr0"),   4, 0}, {tableId("Imarxgpwptr1"),   4, 1}, {tableId("Imarxgpwptr2"),   4, 2},
    {tableId("Imarxgpcnt0"),    2, 0}, {tableId("Imarxgpcnt1"),    2, 1}, {tableId("Imarxunircnt0"),  2, 0},
    {tableId("Imarxicpbuf0"),  16, 0}, {tableId("Imarxicpbuf12"), 16, 12}, {tableId("Imatxicpbuf0"),  16, 0},
    {tableId("Imatxmaptbl0"),  32, 0},
};
// clang-format on

const Layout *layoutOf(uint32_t tableId) {
    for (const Layout &l : kLayouts) {
        if (l.table == tableId) {
            return &l;
        }
    }
    return nullptr;
}

constexpr uint32_t kMboxBusyPolls = 10;
constexpr uint32_t kMboxBusyWait = 100;
constexpr uint32_t kMboxDonePolls = 10;
constexpr uint32_t kMboxDoneWait = 10;
constexpr uint32_t kMaxCode = 26;
constexpr uint32_t kDrainPolls = 100;
constexpr uint32_t kDrainGapUs = 500;

bool runCmdCode(uint32_t code) {
    switch (code) {
        case 0:
        case 1:
        case 2:
        case 4:
        case 5:
        case 6:
        case 8:
        case 9:
        case 12:
        case 13:
        case 16:
        case 17:
        case 24:
        case 25:
        case 26:
            return true;
        default:
            return false;
    }
}

}  // namespace

uint32_t paraErr(uint32_t chip) {
    VQ6192_Printf(chip, VQ6192_MODULE_IMA, VQ6192_PRINT_PARA_WRONG, "ParaErr.\r\n");
    return status(chip, kErrPara);
}

uint32_t entriesPer(uint32_t tableId) {
    const Layout *l = layoutOf(tableId);
    return l == nullptr ? 1 : l->per;
}

uint32_t wordOf(uint32_t tableId) {
    const Layout *l = layoutOf(tableId);
    return l == nullptr ? 0 : l->word;
}

void waitTicks(uint32_t ticks) {
    OSK_TaskDelay(ticks);
}

void waitUs(uint32_t us) {
    DrvDelayUs(us);
}

uint32_t runCmd(uint32_t chip, uint32_t code, uint32_t grp, uint32_t p1, uint32_t p2, uint32_t p3) {
    uint32_t rc =
        status(chip, kErrTimeout);  // still busy after every poll: the command is written all the same
    for (uint32_t i = 0; i < kMboxBusyPolls; ++i) {
        if (get(chip, kMboxBusy) == 0) {
            rc = 0;
            break;
        }
        waitTicks(kMboxBusyWait);
    }
    set(chip, kMboxCode, code);
    set(chip, kMboxGroup, grp);
    const uint32_t para[kMboxParaCount] = {p1, p2, p3};
    for (uint32_t i = 0; i < kMboxParaCount; ++i) {
        VQ6192_WriteReg(chip, kMboxPara1Low + 4 * i, para[i] & 0xFFFFu);
        VQ6192_WriteReg(chip, kMboxPara1Low + 4 * i + 2, para[i] >> 16);
    }
    set(chip, kMboxStart, 1);
    uint32_t done = status(chip, kErrTimeout);
    for (uint32_t i = 0; i < kMboxDonePolls; ++i) {
        const uint32_t ctrl = VQ6192_ReadReg(chip, kMboxCtrl);
        if (((ctrl >> kMboxBusy.bit) & 1u) == 0) {
            done = ((ctrl >> kMboxAccepted.bit) & 1u) == 0 ? status(chip, kErrRefused) : 0;
            break;
        }
        waitTicks(kMboxDoneWait);
    }
    if (done != 0) {
        rc = done;
    }
    set(chip, kMboxStart, 0);
    waitUs(1);
    return rc;
}

uint32_t txVector(uint32_t numTx, const IMA_TX_LINK *tx) {
    uint32_t vec = 0;
    for (uint32_t i = 0; i < numTx && tx != nullptr; ++i) {
        if (tx[i].ucLid < kMaxLid) {
            vec |= 1u << tx[i].ucLid;
        }
    }
    return vec;
}

uint32_t rxPosition(uint32_t i, const uint16_t *rx, const IMA_TX_LINK *tx, uint32_t symmetryMode) {
    return symmetryMode < 2 ? tx[i].ucLid : rx[i];
}

uint32_t rxVector(uint32_t numRx, const uint16_t *rx, const IMA_TX_LINK *tx, uint32_t symmetryMode) {
    uint32_t vec = 0;
    for (uint32_t i = 0; i < numRx; ++i) {
        if ((symmetryMode < 2 && tx == nullptr) || (symmetryMode >= 2 && rx == nullptr)) {
            break;
        }
        const uint32_t pos = rxPosition(i, rx, tx, symmetryMode);
        if (pos < kMaxLid) {
            vec |= 1u << pos;
        }
    }
    return vec;
}

uint32_t drainTxLink(uint32_t chip, uint32_t link, bool *enabled) {
    Entry tx, rx;
    uint32_t rc = readEntry(chip, tbl::kTcTxCfg, link, tx);
    if (rc == 0) {
        rc = readEntry(chip, tbl::kTcRxCfg, link, rx);
    }
    if (rc != 0) {
        return rc;
    }
    const bool on = tx.get(fld::kTxLinkEn) != 0 || rx.get(fld::kRxLinkEn) != 0;
    if (enabled != nullptr) {
        *enabled = on;
    }
    if (!on) {
        return 0;
    }
    for (uint32_t i = 0; i < kDrainPolls; ++i) {
        Entry fifo;
        rc = readEntry(chip, tbl::kTcTxImaif, link, fifo);
        if (rc != 0) {
            return rc;
        }
        if (fifo.get(fld::kTxImaifDepth) == 0) {
            return 0;
        }
        waitUs(kDrainGapUs);
    }
    return kDrainNeverEnded;
}

uint32_t quiesceTxLink(uint32_t chip, uint32_t link, uint32_t i, const char *op, bool *drainFailed) {
    Entry tx;
    uint32_t rc = readEntry(chip, tbl::kTcTxCfg, link, tx);
    if (rc != 0) {
        VQ6192_IMA_TRACE(chip, "Err. %s.VQ6192_Read_Table(%u,%u,%u) i=%#x     ErrCode[%#x]\r\n", op, chip,
                         tbl::kTcTxCfg, link, i, rc);
        return rc;
    }
    rc = drainTxLink(chip, link);
    if (rc == kDrainNeverEnded) {
        VQ6192_IMA_TRACE(chip, "Err. %s.VQ6192_Read_Table(%u,%u,%u)i=%#x  GetDEPTH   ErrCode[%#x]\r\n", op,
                         chip, tbl::kTcTxImaif, link, i, status(chip, kErrNoEnd));
        *drainFailed = true;
    } else if (rc != 0) {
        VQ6192_IMA_TRACE(chip, "Err. %s.VQ6192_Read_Table(%u,%u,%u) i=%#x     ErrCode[%#x]\r\n", op, chip,
                         tbl::kTcTxCfg, link, i, rc);
        return rc;
    }
    tx.set(fld::kTxLinkEn, 0);
    rc = writeEntry(chip, tbl::kTcTxCfg, link, tx);
    if (rc != 0) {
        VQ6192_IMA_TRACE(chip,
                         "Err. %s.VQ6192_Write_Table(%u,%u,%u,) i=%#x  DisAbleTxLink   ErrCode[%#x]\r\n", op,
                         chip, tbl::kTcTxCfg, link, i, rc);
        return rc;
    }
    tx.set(fld::kTxLinkEn, 1);
    rc = writeEntry(chip, tbl::kTcTxCfg, link, tx);
    if (rc != 0) {
        VQ6192_IMA_TRACE(chip, "Err. %s.VQ6192_Write_Table(%u,%u,%u,) i=%#x  EnableTxLink   ErrCode[%#x]\r\n",
                         op, chip, tbl::kTcTxCfg, link, i, rc);
    }
    return rc;
}

uint32_t clearIdleFilter(uint32_t chip, uint32_t link, uint32_t i) {
    Entry rx;
    uint32_t rc = readEntry(chip, tbl::kTcRxCfg, link, rx);
    if (rc == 0) {
        rx.set(fld::kRxIdleFilterEn, 0);
        rc = writeEntry(chip, tbl::kTcRxCfg, link, rx);
    }
    if (rc != 0) {
        VQ6192_IMA_TRACE(
            chip,
            "Err. VQ6192_IMA_AddImaGrp.VQ6192_Write_Table(%u,%u,%u,) i=%#x  DisableIDLE   ErrCode[%#x]\r\n",
            chip, tbl::kTcRxCfg, link, i, rc);
    }
    return rc;
}

}  // namespace vq::ima

using namespace vq::ima;

extern "C" {

VQ6192_API uint32_t VQ6192_utlRippCmd(uint32_t chip, uint32_t code, const uint32_t para[4]) {
    if (!vq::validChip(chip) || code > kMaxCode || para == nullptr) {
        return paraErr(chip);
    }
    return runCmd(chip, code, para[0], para[1], para[2], para[3]);
}

VQ6192_API uint32_t VQ6192_IMA_RunCmd(uint32_t chip, uint32_t code, const uint32_t para[4]) {
    if (!vq::validChip(chip) || !runCmdCode(code) || para == nullptr) {
        return status(chip, kErrPara);
    }
    return runCmd(chip, code, para[0], para[1], para[2], para[3]);
}

VQ6192_API uint32_t VQ6192_utlTransIdxID(uint32_t chip, uint32_t tableId, uint32_t number, uint32_t word,
                                         uint32_t *index) {
    if (!vq::validChip(chip) || tableId >= VQ6192_CHIP_TABLE_NUM || index == nullptr) {
        return paraErr(chip);
    }
    *index = number * entriesPer(tableId) + word;
    return 0;
}

VQ6192_API uint32_t VQ6192_setupTxLinksVec(uint32_t chip, uint32_t numTx, const IMA_TX_LINK *txLinks,
                                           uint32_t *vec) {
    if (!vq::validChip(chip) || numTx > kMaxLid || (numTx > 0 && txLinks == nullptr) || vec == nullptr) {
        return paraErr(chip);
    }
    *vec = txVector(numTx, txLinks);
    return 0;
}

VQ6192_API uint32_t VQ6192_setupRxLinksVec(uint32_t chip, uint32_t numRx, const uint16_t *rxLinks,
                                           const IMA_TX_LINK *txLinks, uint32_t symmetryMode, uint32_t *vec) {
    if (!vq::validChip(chip) || numRx > kMaxLid || symmetryMode > 2 || vec == nullptr ||
        (numRx > 0 && (symmetryMode < 2 ? txLinks == nullptr : rxLinks == nullptr))) {
        return paraErr(chip);
    }
    *vec = rxVector(numRx, rxLinks, txLinks, symmetryMode);
    return 0;
}

}  // extern "C"
