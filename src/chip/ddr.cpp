// DDR controller: the hardware 9-step scan, test statistics, FIFO flags, CRC counters and the 64-byte
// block access through the controller's table port.
#include <cstddef>

#include "chip/chip_util.h"
#include "platform/osal.h"
#include "vq6192/chip.h"

using namespace vq::chip;

extern "C" {

VQ6192_API uint32_t g_ulVq6192Ddr9StepTestMaxAddr = 0x0FFFFFFF;
VQ6192_API uint32_t g_ulVQ6192DDRRWWaitTimes = 3;

}  // extern "C"

namespace {

static_assert(sizeof(VQ6192_DDR_FIFO_STAT) == VQ6192_DDR_FIFO_STAT_NUM, "one byte per flag");
static_assert(sizeof(VQ6192_DDR_CRC_CNT) == 2 * VQ6192_DDR_CRC_CNT_NUM, "one u16 per counter");

// The FIFO status record, register by register: the bits in record order.
struct FifoFlags {
    uint32_t reg;
    uint8_t count;
    uint8_t bits[11];
};
constexpr FifoFlags kFifoFlags[] = {
    {0xC004, 11, {10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0}},  // CRC errors
    {0xC060, 2, {1, 0}},                               // table port full
    {0xC100, 4, {3, 2, 1, 0}},                         // reorder FIFOs
    {0xC126, 4, {3, 2, 1, 0}},                         // table port FIFOs
    {0xC12E, 6, {5, 4, 3, 2, 1, 0}},                   // ATM
    {0xC136, 6, {5, 4, 3, 2, 1, 0}},                   // PWE3
    {0xC13E, 6, {5, 4, 3, 2, 1, 0}},                   // IMA
    {0xC146, 6, {5, 4, 3, 2, 1, 0}},                   // CES ingress
    {0xC14E, 6, {5, 4, 3, 2, 1, 0}},                   // CES egress
    {0xC156, 6, {5, 4, 3, 2, 1, 0}},                   // clock recovery
    {0xC15E, 6, {5, 4, 3, 2, 1, 0}},                   // PPP ingress
    {0xC166, 4, {3, 2, 1, 0}},                         // packet
    {0xC16E, 6, {5, 4, 3, 2, 1, 0}},                   // PPP egress
    {0xC176, 4, {5, 4, 1, 0}},                         // PPU
};

constexpr uint32_t fifoFlagCount() {
    uint32_t n = 0;
    for (const FifoFlags &f : kFifoFlags) {
        n += f.count;
    }
    return n;
}
static_assert(fifoFlagCount() == VQ6192_DDR_FIFO_STAT_NUM, "the table covers the record");

void stopScan(uint32_t chip) {
    set(chip, kDdrScanStart, 0);
    set(chip, kDdrTestMode, 0);
}

// Runs the scan over the whole DDR with the pattern; on a scan error fills `result` (if given).
uint32_t runScan(uint32_t chip, const uint16_t pattern[4], uint8_t &failed, VQ6192_DDR9STEP_RESULT *result) {
    set(chip, kDdrTestMode, 1);
    set(chip, kDdrScanStart, 0);
    for (uint32_t k = 0; k < 4; ++k) {
        VQ6192_WriteReg(chip, kDdrScanPattern + 2 * k, pattern[k]);
    }
    VQ6192_WriteReg(chip, kDdrScanMaxAddrHigh, g_ulVq6192Ddr9StepTestMaxAddr >> 16);
    VQ6192_WriteReg(chip, kDdrScanMaxAddrLow, g_ulVq6192Ddr9StepTestMaxAddr & 0xFFFFu);
    set(chip, kDdrScanStart, 1);
    failed = 1;

    const uint32_t err = baseStatus(chip, kErrFailed);
    uint32_t status = 0;
    bool done = false;
    for (uint32_t poll = 0; poll < kDdrScanPolls && !done; ++poll) {
        vq::DrvDelayUs(kDdrScanPollUs);
        status = VQ6192_ReadReg(chip, kDdrScanStatusReg);
        done = bit(status, kDdrScanDoneBit) != 0;
    }
    if (!done) {
        VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_Base_DDR9StepTest.  Don't finish ErrCode[%#x]\r\n", err);
        stopScan(chip);
        return err;
    }
    if (bit(status, kDdrScanErrBit) != 0) {
        VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_Base_DDR9StepTest.  ScanErr[%#x] ErrCode[%#x]\r\n", status, err);
        if (result != nullptr) {
            result->wScanErrAddrHigh = static_cast<uint16_t>(VQ6192_ReadReg(chip, kDdrScanErrAddrHigh));
            result->wScanErrAddrLow = static_cast<uint16_t>(VQ6192_ReadReg(chip, kDdrScanErrAddrLow));
            for (uint32_t k = 0; k < 4; ++k) {
                result->awScanErrRData[k] =
                    static_cast<uint16_t>(VQ6192_ReadReg(chip, kDdrScanErrRData + 2 * k));
            }
            for (uint32_t k = 0; k < 4; ++k) {
                result->awScanExpRData[k] =
                    static_cast<uint16_t>(VQ6192_ReadReg(chip, kDdrScanExpRData + 2 * k));
            }
        }
        stopScan(chip);
        return err;
    }
    failed = 0;
    stopScan(chip);
    return 0;
}

// Length and address of a block transfer: length field count - 1 (63 for a count of 0).
void setupBlock(uint32_t chip, uint32_t addr, uint32_t count) {
    set(chip, kDdrTabLength, count - 1);
    VQ6192_WriteReg(chip, kDdrTabAddrHigh, addr >> 16);
    VQ6192_WriteReg(chip, kDdrTabAddrLow, addr & 0xFFFFu);
}

uint32_t waitTabIdle(uint32_t chip, uint32_t busyBit, const char *timeoutText) {
    if (!vq::validChip(chip)) {
        return baseParaErr(chip);
    }
    const uint32_t polls = g_ulVQ6192DDRRWWaitTimes * 3;
    for (uint32_t poll = 0; poll < polls; ++poll) {
        if (VQ6192_ReadRegField(chip, kDdrTabStatusReg, busyBit, 1) == 0) {
            return 0;
        }
        vq::DrvDelayUs(kDdrBusyPollUs);
    }
    VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO, "%s", timeoutText);
    return baseStatus(chip, kErrTimeout);
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_Base_DDR9StepTest(uint32_t chip, const uint16_t pattern[4], uint8_t *failed) {
    if (!vq::validChip(chip) || pattern == nullptr || failed == nullptr) {
        return baseParaErr(chip);
    }
    return runScan(chip, pattern, *failed, nullptr);
}

VQ6192_API uint32_t VQ6192_Base_DDR9StepTestNew(uint32_t chip, const uint16_t pattern[4],
                                                VQ6192_DDR9STEP_RESULT *result) {
    if (!vq::validChip(chip) || pattern == nullptr || result == nullptr) {
        return baseParaErr(chip);
    }
    return runScan(chip, pattern, result->ucStatus, result);
}

VQ6192_API uint32_t VQ6192_Base_GetDDRTestStats(uint32_t chip, VQ6192_DDR_TEST_STATS *stats) {
    if (!vq::validChip(chip) || stats == nullptr) {
        return baseParaErr(chip);
    }
    const uint32_t status = VQ6192_ReadReg(chip, kDdrScanStatusReg);
    stats->wDdr2cTestCurrSt = static_cast<uint16_t>(vq::fieldGet(status, 8, 4));
    stats->wDdr2cTestNextSt = static_cast<uint16_t>(vq::fieldGet(status, 12, 4));
    stats->wDdr2cRrCurrSt = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kDdrRrCurrReg, 0, 11));
    stats->wDdr2cRrNextSt = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kDdrRrNextReg, 0, 11));
    const uint32_t high = VQ6192_ReadReg(chip, kDdrScanErrAddrHigh);
    stats->dwScanErrAddr = (high << 16) + VQ6192_ReadReg(chip, kDdrScanErrAddrLow);
    stats->wScanErrStep = static_cast<uint16_t>(vq::fieldGet(status, 4, 3));
    for (uint32_t k = 0; k < 4; ++k) {
        stats->awScanErrRData[k] = static_cast<uint16_t>(VQ6192_ReadReg(chip, kDdrScanErrRData + 2 * k));
    }
    for (uint32_t k = 0; k < 4; ++k) {
        stats->awScanExpRData[k] = static_cast<uint16_t>(VQ6192_ReadReg(chip, kDdrScanExpRData + 2 * k));
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_GetDdrTabWBusy(uint32_t chip) {
    return waitTabIdle(chip, kDdrTabWBusyBit,
                       "Err. VQ6192_Base_GetDdrTabWBusy. DDR Write Tab Is Busy! TimeOut \r\n");
}

VQ6192_API uint32_t VQ6192_Base_GetDdrTabRBusy(uint32_t chip) {
    return waitTabIdle(chip, kDdrTabRBusyBit,
                       "Err. VQ6192_Base_GetDdrTabWBusy. DDR Tab Read Is Busy! TimeOut \r\n");
}

VQ6192_API uint32_t VQ6192_Base_WriteDdr64Bytes(uint32_t chip, uint32_t addr, const uint16_t data[32],
                                                uint32_t count) {
    if (!vq::validChip(chip) || data == nullptr) {
        return baseParaErr(chip);
    }
    setupBlock(chip, addr, count);
    for (uint32_t k = 0; k < kDdrBlockWords; ++k) {
        VQ6192_WriteReg(chip, kDdrTabWData + 2 * k, data[k]);
    }
    VQ6192_WriteRegField(chip, kDdrTabCtrlReg, 0, kDdrTabWriteBit, 1);
    VQ6192_WriteRegField(chip, kDdrTabCtrlReg, 1, kDdrTabWriteBit, 1);
    const uint32_t busy = VQ6192_Base_GetDdrTabWBusy(chip);
    VQ6192_WriteRegField(chip, kDdrTabCtrlReg, 0, kDdrTabWriteBit, 1);
    if (busy != 0) {
        VQ6192_Printf(
            chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
            "Err. VQ6192_Base_WriteDdr64Bytes.VQ6192_Base_GetDdrTabWBusy DDR Tab Is Always Busy! Write "
            "Failed! \r\n");
        return baseStatus(chip, kErrFailed);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_ReadDdr64Bytes(uint32_t chip, uint32_t addr, uint16_t out[32], uint32_t swap,
                                               uint32_t count) {
    if (!vq::validChip(chip) || out == nullptr || swap > 1) {
        return baseParaErr(chip);
    }
    setupBlock(chip, addr, count);
    VQ6192_WriteRegField(chip, kDdrTabCtrlReg, 0, kDdrTabReadBit, 1);
    VQ6192_WriteRegField(chip, kDdrTabCtrlReg, 1, kDdrTabReadBit, 1);
    if (VQ6192_Base_GetDdrTabRBusy(chip) != 0) {
        VQ6192_Printf(
            chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
            "Err. VQ6192_Base_ReadDdr64Bytes.VQ6192_Base_GetDdrTabRBusy DDR Tab Is Always Busy! Read "
            "Failed! \r\n");
        VQ6192_WriteRegField(chip, kDdrTabCtrlReg, 0, kDdrTabReadBit, 1);
        return baseStatus(chip, kErrFailed);
    }
    uint16_t value[kDdrBlockWords];
    for (uint32_t k = 0; k < kDdrBlockWords; ++k) {
        value[k] = static_cast<uint16_t>(VQ6192_ReadReg(chip, kDdrTabRData + 2 * k));
    }
    VQ6192_WriteRegField(chip, kDdrTabCtrlReg, 0, kDdrTabReadBit, 1);
    // With swap the four words of every 64-bit group come in reverse order.
    for (uint32_t k = 0; k < kDdrBlockWords; ++k) {
        out[k] = swap != 0 ? value[(k & ~3u) + 3 - (k & 3u)] : value[k];
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_GetDDRFifoStats(uint32_t chip, VQ6192_DDR_FIFO_STAT *out) {
    if (!vq::validChip(chip) || out == nullptr) {
        return baseParaErr(chip);
    }
    auto *flag = reinterpret_cast<uint8_t *>(out);
    for (const FifoFlags &f : kFifoFlags) {
        const uint32_t value = VQ6192_ReadReg(chip, f.reg);
        for (uint32_t k = 0; k < f.count; ++k) {
            *flag++ = static_cast<uint8_t>(bit(value, f.bits[k]));
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_GetDDRCntStats(uint32_t chip, VQ6192_DDR_CRC_CNT *out) {
    if (!vq::validChip(chip) || out == nullptr) {
        return baseParaErr(chip);
    }
    uint16_t *const counters[VQ6192_DDR_CRC_CNT_NUM] = {
        &out->wDDR2CIMACRCERRCNT,  &out->wDDR2CPWE3CRCERRCNT, &out->wDDR2CATMCRCERRCNT,
        &out->wDDR2CCESICRCERRCNT, &out->wDDR2CCESECRCERRCNT, &out->wDDR2CCRPCRCERRCNT,
        &out->wDDR2CPPPICRCERRCNT, &out->wDDR2CPKTCRCERRCNT,  &out->wDDR2CPPPECRCERRCNT,
    };
    for (uint32_t k = 0; k < VQ6192_DDR_CRC_CNT_NUM; ++k) {
        *counters[k] = static_cast<uint16_t>(VQ6192_ReadReg(chip, kDdrCrcCntReg + kDdrCrcCntStride * k));
    }
    return 0;
}

}  // extern "C"
