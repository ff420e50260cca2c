// Capture of single cells on the line or system side of the ATM switch, by connection (VCX) or by
// port/PW with VPI and optionally VCI; cells come out of the side's capture FIFO.
#include "atm/atm_internal.h"
#include "platform/osal.h"

namespace {

using namespace vq::atm;

constexpr uint32_t kCellWords = VQ6192_ATM_CAP_CELL_BYTES / 4;
constexpr uint32_t kCapturePolls = 6;
constexpr uint32_t kCapturePollTicks = 1000;
constexpr uint32_t kDrainCells = 3;

// One cell: sixteen 32-bit FIFO words, most significant byte first. The result is the OR of the reads.
uint32_t readCell(uint32_t chip, const CaptureRegs &side, uint8_t *cell) {
    uint32_t rc = 0;
    for (uint32_t k = 0; k < kCellWords; ++k) {
        Entry e;
        rc |= readEntry(chip, side.fifo, kCapFifoIndex, e);
        const uint32_t word = e.get(side.data);
        for (uint32_t b = 0; b < 4; ++b) {
            cell[4 * k + b] = static_cast<uint8_t>(word >> (24 - 8 * b));
        }
    }
    return rc;
}

// Largest index of each mode: line VCX, line port, system VCX, PW.
constexpr uint32_t kIndexMax[4] = {VQ6192_ATM_VCX_NUM, VQ6192_ATM_LINE_PORT_NUM - 1,
                                   VQ6192_ATM_SYS_PORT_NUM - 1, VQ6192_ATM_SYS_PORT_NUM - 1};

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ATM_CaptureAtmCell(uint32_t chip, uint8_t cell[64], uint32_t mode, uint32_t index,
                                              uint32_t matchVci, uint32_t vpi, uint32_t vci) {
    if (!vq::validChip(chip) || cell == nullptr || matchVci > 1) {
        return paraErr(chip);
    }
    if (mode > 3) {
        return paraCode(chip);  // an unknown mode is refused without a trace
    }
    const bool byPort = mode == 1 || mode == 3;
    if (index > kIndexMax[mode] || (byPort && matchVci == 1 && vpi > 4095)) {
        return paraErr(chip);
    }
    const CaptureRegs &side = mode < 2 ? kLineCapture : kSysCapture;
    if (byPort) {
        VQ6192_WriteRegField(chip, side.port, matchVci, side.matchVciBit, 1);
        VQ6192_WriteRegField(chip, side.vpi, vpi, 0, 12);
        VQ6192_WriteRegField(chip, side.vci, vci, 0, 16);
        VQ6192_WriteRegField(chip, side.port, index, 0, side.portWidth);
        VQ6192_WriteRegField(chip, side.port, 1, side.portStartBit, 1);
    } else {
        VQ6192_WriteRegField(chip, side.vcx, index, 0, kCapVcxStartBit);
        VQ6192_WriteRegField(chip, side.vcx, 1, kCapVcxStartBit, 1);
    }
    bool captured = false;
    uint32_t rc = 0;
    for (uint32_t poll = 0; poll < kCapturePolls && !captured; ++poll) {
        if (VQ6192_ReadRegField(chip, side.captured, 0, 1) == 1) {
            rc |= readCell(chip, side, cell);
            captured = true;
        } else {
            vq::OSK_TaskDelay(kCapturePollTicks);
        }
    }
    VQ6192_WriteRegField(chip, side.vcx, 0, kCapVcxStartBit, 1);
    VQ6192_WriteRegField(chip, side.port, 0, side.portStartBit, 1);
    // Three more cell reads empty whatever the match let into the FIFO meanwhile.
    uint8_t scratch[VQ6192_ATM_CAP_CELL_BYTES];
    for (uint32_t k = 0; k < kDrainCells; ++k) {
        rc |= readCell(chip, side, scratch);
    }
    return captured ? rc : paraCode(chip);
}

VQ6192_API uint32_t VQ6192_ATM_CaptureAtmLcapCell(uint32_t chip, uint8_t cell[64]) {
    if (!vq::validChip(chip) || cell == nullptr) {
        return paraErr(chip);
    }
    return readCell(chip, kLineCapture, cell);
}

VQ6192_API uint32_t VQ6192_ATM_CaptureAtmScapCell(uint32_t chip, uint8_t cell[64]) {
    if (!vq::validChip(chip) || cell == nullptr) {
        return paraErr(chip);
    }
    return readCell(chip, kSysCapture, cell);
}

}  // extern "C"
