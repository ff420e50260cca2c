// ATM OAM: fault-management cells built in software and pushed through the insertion FIFO, reported
// cells read from the report FIFO, the loopback location ID, and the per-connection OAM flags.
#include "atm/atm_internal.h"
#include "platform/osal.h"

namespace {

using namespace vq::atm;

constexpr uint32_t kCellBytes = VQ6192_ATM_CELL_BYTES;
constexpr uint32_t kHeaderBytes = 5;
constexpr uint32_t kFifoWordsPerCell = 16;
constexpr uint32_t kSocSearchReads = 17;
constexpr uint8_t kFill = 0x6A;

constexpr uint32_t kFuncAis = 16;
constexpr uint32_t kFuncRdi = 17;
constexpr uint32_t kFuncCc = 20;
constexpr uint8_t kLoopbackType = 0x18;

// Header byte 3 by flow (1 segment, 2 end-to-end) and level (0 F4, 1 F5).
// clang-format off
constexpr uint8_t kHeaderByte3[2][2] = {
    //  F4    F5
    {0x30, 0x08},  // segment: VCI 3, PT 100
    {0x40, 0x0A},  // end-to-end: VCI 4, PT 101
};
// clang-format on

constexpr uint32_t kLlidHalfwords = 8;

bool flowLevelLegal(uint32_t flow, uint32_t level) {
    return flow >= 1 && flow <= 2 && level <= 1;
}

// Whole-entry FIFO word: data bits 0..31, start and end of cell.
uint32_t pushWord(uint32_t chip, uint32_t data, uint32_t soc, uint32_t eoc) {
    Entry e;
    e.set(kFifoData, data);
    e.set(kFifoSoc, soc);
    e.set(kFifoEoc, eoc);
    return writeEntry(chip, kInsertFifo, kInsertFifoIndex, e);
}

uint32_t bytesWord(const uint8_t *b) {
    return static_cast<uint32_t>(b[0]) << 24 | static_cast<uint32_t>(b[1]) << 16 |
           static_cast<uint32_t>(b[2]) << 8 | b[3];
}

uint32_t insertFm(uint32_t chip, uint32_t vcx, uint32_t flow, uint32_t level, uint32_t func) {
    if (!vq::validChip(chip) || vcx >= VQ6192_ATM_VCX_NUM || !flowLevelLegal(flow, level)) {
        return paraErr(chip);
    }
    uint8_t cell[kCellBytes] = {};
    uint32_t rc = VQ6192_ATM_FillInsOamCell(chip, flow, level, func, cell);
    rc |= VQ6192_ATM_InsertOamCell(chip, vcx, cell);
    return rc;
}

// Reads a reported cell from the FIFO once its not-empty flag was seen.
uint32_t readReportedCell(uint32_t chip, uint16_t *vcx, uint8_t cell[53]) {
    Entry w;
    uint32_t rc = 0;
    bool found = false;
    for (uint32_t i = 0; i < kSocSearchReads && !found; ++i) {
        w = Entry{};
        rc |= readEntry(chip, kReportFifo, kReportFifoIndex, w);
        found = w.get(kFifoSoc) != 0;
    }
    if (!found) {
        return paraCode(chip);
    }
    const uint16_t reportedVcx = static_cast<uint16_t>(w.get(kFifoData) & 0x1FFFu);
    rc |= readEntry(chip, kReportFifo, kReportFifoIndex, w);  // second word carries nothing
    uint8_t bytes[kCellBytes] = {};
    for (uint32_t k = 0; k < 13; ++k) {
        Entry d;
        rc |= readEntry(chip, kReportFifo, kReportFifoIndex, d);
        const uint32_t v = d.get(kFifoData);
        for (uint32_t j = 0; j < 4; ++j) {
            bytes[4 * k + j] = static_cast<uint8_t>(v >> (24 - 8 * j));
        }
    }
    Entry last;
    rc |= readEntry(chip, kReportFifo, kReportFifoIndex, last);
    bytes[52] = static_cast<uint8_t>(last.get(kFifoData) >> 24);
    *vcx = reportedVcx;
    for (uint32_t i = 0; i < kCellBytes; ++i) {
        cell[i] = bytes[i];
    }
    return rc;
}

bool vctFlag(uint32_t kind, vq::EntryField *f) {
    constexpr vq::EntryField kAuto[4] = {kVctSegaisen, kVctEndaisen, kVctSegrdien, kVctEndrdien};
    if (kind >= 4) {
        return false;
    }
    *f = kAuto[kind];
    return true;
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ATM_FillInsertCellHead(uint32_t chip, uint32_t flow, uint32_t level,
                                                  uint8_t *byte3) {
    if (byte3 == nullptr || !flowLevelLegal(flow, level)) {
        return paraErr(chip);
    }
    *byte3 = kHeaderByte3[flow - 1][level];
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_FillInsOamCell(uint32_t chip, uint32_t flow, uint32_t level, uint32_t func,
                                              uint8_t cell[53]) {
    if (cell == nullptr || !flowLevelLegal(flow, level) ||
        (func != kFuncAis && func != kFuncRdi && func != kFuncCc)) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < kHeaderBytes; ++i) {
        cell[i] = 0;
    }
    cell[3] = kHeaderByte3[flow - 1][level];
    cell[5] = static_cast<uint8_t>(func);
    // The fill runs to the end of the cell: the reserved top bits of byte 51 are the fill's too.
    for (uint32_t i = 6; i < kCellBytes; ++i) {
        cell[i] = kFill;
    }
    const uint32_t crc = VQ6192_ATM_crc10(chip, cell + kHeaderBytes, 1);
    return crc == paraCode(chip) ? crc : 0;
}

VQ6192_API uint32_t VQ6192_ATM_InsertOamCell(uint32_t chip, uint32_t vcx, const uint8_t cell[53]) {
    if (!vq::validChip(chip) || vcx >= VQ6192_ATM_VCX_NUM || cell == nullptr) {
        return paraErr(chip);
    }
    uint32_t rc = pushWord(chip, vcx, 1, 0);
    rc |= pushWord(chip, 0, 0, 0);
    for (uint32_t k = 2; k < kFifoWordsPerCell - 1; ++k) {
        rc |= pushWord(chip, bytesWord(cell + 4 * k - 8), 0, 0);
    }
    rc |= pushWord(chip, static_cast<uint32_t>(cell[52]) << 24, 0, 1);
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_InsertLBCell(uint32_t chip, uint32_t vcx, const uint8_t llid[16],
                                            const uint8_t srcId[16], uint32_t correlationTag, uint32_t flow,
                                            uint32_t level, uint32_t lbIndication) {
    if (!vq::validChip(chip) || vcx >= VQ6192_ATM_VCX_NUM || llid == nullptr || srcId == nullptr ||
        !flowLevelLegal(flow, level) || lbIndication > 1) {
        return paraErr(chip);
    }
    uint8_t cell[kCellBytes] = {};
    cell[3] = kHeaderByte3[flow - 1][level];
    cell[5] = kLoopbackType;
    cell[6] = static_cast<uint8_t>(lbIndication);
    for (uint32_t j = 0; j < 4; ++j) {
        cell[7 + j] = static_cast<uint8_t>(correlationTag >> (24 - 8 * j));
    }
    for (uint32_t j = 0; j < 16; ++j) {
        cell[11 + j] = llid[j];
        cell[27 + j] = srcId[j];
    }
    for (uint32_t i = 43; i < kCellBytes; ++i) {
        cell[i] = kFill;
    }
    VQ6192_ATM_crc10(chip, cell + kHeaderBytes, 1);
    return VQ6192_ATM_InsertOamCell(chip, vcx, cell);
}

VQ6192_API uint32_t VQ6192_ATM_InsertAISCell(uint32_t chip, uint32_t vcx, uint32_t flow, uint32_t level) {
    return insertFm(chip, vcx, flow, level, kFuncAis);
}

VQ6192_API uint32_t VQ6192_ATM_InsertRDICell(uint32_t chip, uint32_t vcx, uint32_t flow, uint32_t level) {
    return insertFm(chip, vcx, flow, level, kFuncRdi);
}

VQ6192_API uint32_t VQ6192_ATM_InsertCCCell(uint32_t chip, uint32_t vcx, uint32_t flow, uint32_t level) {
    return insertFm(chip, vcx, flow, level, kFuncCc);
}

VQ6192_API uint32_t VQ6192_ATM_GetOamCell(uint32_t chip, uint16_t *vcx, uint8_t cell[53]) {
    if (!vq::validChip(chip) || vcx == nullptr || cell == nullptr) {
        return paraErr(chip);
    }
    if (VQ6192_ReadRegField(chip, kOamReportNotEmptyReg, 0, 2) == 0) {
        return paraCode(chip);  // nothing reported
    }
    return readReportedCell(chip, vcx, cell);
}

VQ6192_API uint32_t VQ6192_ATM_GetOamCellTest(uint32_t chip, uint16_t *vcx, uint8_t cell[53]) {
    if (!vq::validChip(chip) || vcx == nullptr || cell == nullptr) {
        return paraErr(chip);
    }
    VQ6192_CHIP_RECORD &rec = g_vq6192[chip];
    constexpr uint32_t kWaitTicks = 5;
    if (rec.pSem != nullptr && vq::iof_sema_timewait(rec.pSem, kWaitTicks) != 0) {
        rec.aulRegFailInfo[VQ6192_FAIL_SEM_TAKE]++;
        return vq::makeStatus(chip, kModule, VQ6192_ERR_TIMEOUT);
    }
    if (rec.pfnGetArbitrate != nullptr && rec.pfnGetArbitrate(chip) != 0) {
        rec.aulRegFailInfo[VQ6192_FAIL_ARBITRATE]++;
        vq::PIC_DbgLog(2, "chip %d pwe3 read reg get attrb fail oam,addr 0x%x", static_cast<int>(chip),
                       kOamReportNotEmptyReg);
        if (rec.pSem != nullptr && vq::iof_sema_post(rec.pSem) != 0) {
            rec.aulRegFailInfo[VQ6192_FAIL_SEM_GIVE]++;
            vq::PIC_DbgLog(2, "chip %d pwe3 read reg give sem fail oam,addr 0x%x", static_cast<int>(chip),
                           kOamReportNotEmptyReg);
        }
        return vq::makeStatus(chip, kModule, VQ6192_ERR_LOCK);
    }
    const uint32_t notEmpty = VQ6192_ReadRegFieldBDirect(chip, kOamReportNotEmptyReg, 0, 2);
    if (rec.pfnGiveArbitrate != nullptr) {
        rec.pfnGiveArbitrate(chip);
    }
    if (rec.pSem != nullptr && vq::iof_sema_post(rec.pSem) != 0) {
        rec.aulRegFailInfo[VQ6192_FAIL_SEM_GIVE]++;
        vq::PIC_DbgLog(2, "chip %d pwe3 read reg give sem fail,addr 0x%x", static_cast<int>(chip),
                       kOamReportNotEmptyReg);
        return vq::makeStatus(chip, kModule, VQ6192_ERR_LOCK);
    }
    if (notEmpty == 0) {
        return paraCode(chip);
    }
    return readReportedCell(chip, vcx, cell);
}

VQ6192_API uint32_t VQ6192_ATM_SetOamLLID(uint32_t chip, const uint8_t llid[16]) {
    if (!vq::validChip(chip) || llid == nullptr) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kOamLlidValidReg, 0, 0, 1);
    // h[7] goes to the lowest register, h[0] to the highest.
    for (uint32_t i = 0; i < kLlidHalfwords; ++i) {
        const uint32_t h = static_cast<uint32_t>(llid[2 * i]) << 8 | llid[2 * i + 1];
        VQ6192_WriteRegField(chip, kOamLlidLastReg + 2 * (kLlidHalfwords - 1 - i), h, 0, 16);
    }
    VQ6192_WriteRegField(chip, kOamLlidValidReg, 1, 0, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetOamLLID(uint32_t chip, uint8_t llid[16]) {
    if (!vq::validChip(chip) || llid == nullptr) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < kLlidHalfwords; ++i) {
        const uint32_t h = VQ6192_ReadRegField(chip, kOamLlidLastReg + 2 * (kLlidHalfwords - 1 - i), 0, 16);
        llid[2 * i] = static_cast<uint8_t>(h >> 8);
        llid[2 * i + 1] = static_cast<uint8_t>(h);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_SetOamCrcEn(uint32_t chip, uint32_t enable) {
    if (!vq::validChip(chip) || enable > 1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kOamCrcEnReg, enable, 0, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetOamCrcEnStat(uint32_t chip, uint8_t *byEnable) {
    if (!vq::validChip(chip) || byEnable == nullptr) {
        return paraErr(chip);
    }
    *byEnable = static_cast<uint8_t>(VQ6192_ReadRegField(chip, kOamCrcEnReg, 0, 1));
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_SetOamLinkCC(uint32_t chip, uint32_t vcx, uint32_t flowType, uint32_t action) {
    if (!vq::validChip(chip) || vcx >= VQ6192_ATM_VCX_NUM || flowType > 2 || action > 5) {
        return paraErr(chip);
    }
    const uint32_t type = flowType & 1u;
    Entry e;
    (void)readEntry(chip, kVct, vcx, e);  // the write is what counts
    const bool source = action == 1 || action == 3;
    const bool sink = action == 2 || action == 3;
    if (action == 0 || action == 4) {
        e.set(kVctCcsource, 0);
        e.set(kVctCcsrctype, 0);
    }
    if (action == 0 || action == 5) {
        e.set(kVctCcsink, 0);
        e.set(kVctCcsinktype, 0);
    }
    if (source) {
        e.set(kVctCcsource, 1);
        e.set(kVctCcsrctype, type);
    }
    if (sink) {
        e.set(kVctCcsink, 1);
        e.set(kVctCcsinktype, type);
    }
    return writeEntry(chip, kVct, vcx, e);
}

VQ6192_API uint32_t VQ6192_ATM_GetOamLinkCC(uint32_t chip, uint32_t vcx, uint8_t *srcType, uint8_t *sinkType,
                                            uint32_t *state) {
    if (!vq::validChip(chip) || vcx >= VQ6192_ATM_VCX_NUM || srcType == nullptr || sinkType == nullptr ||
        state == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kVct, vcx, e);
    *srcType = static_cast<uint8_t>(e.get(kVctCcsrctype));
    *sinkType = static_cast<uint8_t>(e.get(kVctCcsinktype));
    *state = e.get(kVctCcsource) | e.get(kVctCcsink) << 1;
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetOamSegEnd(uint32_t chip, uint32_t vcx, uint32_t renSegEndType) {
    if (!vq::validChip(chip) || vcx >= VQ6192_ATM_VCX_NUM || renSegEndType > 3) {
        return paraErr(chip);
    }
    return modifyEntry(chip, kVct, vcx, [&](Entry &e) {
        e.set(kVctSeg, renSegEndType & 1u);
        e.set(kVctE2e, renSegEndType >> 1);
    });
}

VQ6192_API uint32_t VQ6192_ATM_GetOamSegEnd(uint32_t chip, uint32_t vcx, uint32_t *renSegEndType) {
    if (!vq::validChip(chip) || vcx >= VQ6192_ATM_VCX_NUM || renSegEndType == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kVct, vcx, e);
    *renSegEndType = e.get(kVctSeg) | e.get(kVctE2e) << 1;
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetOamAutoInsertEn(uint32_t chip, uint32_t vcx, uint32_t kind,
                                                  uint32_t enable) {
    vq::EntryField f{};
    if (!vq::validChip(chip) || vcx >= VQ6192_ATM_VCX_NUM || enable > 1 || !vctFlag(kind, &f)) {
        return paraErr(chip);
    }
    return modifyEntry(chip, kVct, vcx, [&](Entry &e) { e.set(f, enable); });
}

VQ6192_API uint32_t VQ6192_ATM_GetOamAutoInsertEnStat(uint32_t chip, uint32_t vcx, uint32_t kind,
                                                      uint8_t *byEnable) {
    vq::EntryField f{};
    if (!vq::validChip(chip) || vcx >= VQ6192_ATM_VCX_NUM || byEnable == nullptr || !vctFlag(kind, &f)) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kVct, vcx, e);
    *byEnable = static_cast<uint8_t>(e.get(f));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_GetOamVcxFifo(uint32_t chip, uint16_t *vcx) {
    if (!vq::validChip(chip) || vcx == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kVcxFifo, 0, e);
    *vcx = static_cast<uint16_t>(e.get(kVcxFifoVcx));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_GetOamCcloc(uint32_t chip, uint32_t vcx, uint8_t *bCcloc) {
    if (!vq::validChip(chip) || vcx > VQ6192_ATM_VCX_NUM || bCcloc == nullptr) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kTabClrReg, kTabClrOamStatus, 0, 5);
    Entry e;
    const uint32_t rc = readEntry(chip, kOamStatus, vcx, e);
    *bCcloc = static_cast<uint8_t>(e.get(kOamStCcloc));
    VQ6192_WriteRegField(chip, kTabClrReg, kTabClrAll, 0, 5);
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetOamCapFifoClear(uint32_t chip) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    pulseBit(chip, kFifoClearReg, kFifoClearReportBit);
    return 0;
}

}  // extern "C"
