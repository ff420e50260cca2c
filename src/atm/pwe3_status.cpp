// ATM pseudowires: per-PW counters, the sequence-error alarm, the PWE3 FIFO flags and the capture of
// one PW packet through the packet buffer.
#include <array>

#include "atm/atm_internal.h"
#include "platform/osal.h"

namespace {

using namespace vq::atm;

constexpr uint32_t kErrStep = 4;
constexpr uint32_t kCaptureSettleTicks = 1000;
constexpr uint32_t kCapturePolls = 1000;
constexpr uint32_t kCapturePollUs = 2;

uint32_t stepCode(uint32_t chip) {
    return vq::makeStatus(chip, kModule, kErrStep);
}

bool validPw(uint32_t chip, uint32_t pw) {
    return vq::validChip(chip) && pw < VQ6192_ATM_SYS_PORT_NUM;
}

// The table-clear bits around a receive-statistics read: `during` while the entry is read, then all.
uint32_t readRxStats(uint32_t chip, uint32_t pw, uint32_t during, Entry &e) {
    VQ6192_WriteRegField(chip, kTabClrReg, during, 0, 5);
    const uint32_t rc = readEntry(chip, kPwRxSt, pw, e);
    VQ6192_WriteRegField(chip, kTabClrReg, kTabClrAll, 0, 5);
    return rc;
}

struct FlagBit {
    uint32_t reg;
    uint32_t bit;
};

// The 22 flags in the order of the status record.
// clang-format off
constexpr FlagBit kFifoFlags[VQ6192_ATM_PW3_FIFO_STAT_NUM] = {
    {kPwe3RxEthFifoReg, 1}, {kPwe3RxEthFifoReg, 0},   // rx Ethernet FIFO empty, full (held)
    {kPwe3RxSwFifoReg, 1},  {kPwe3RxSwFifoReg, 0},    // rx switch FIFO
    {kPwe3TxEthFifoReg, 1}, {kPwe3TxEthFifoReg, 0},   // tx Ethernet FIFO
    {kPwe3TxSwFifoReg, 1},  {kPwe3TxSwFifoReg, 0},    // tx switch FIFO
    {kPwe3FifoFlagsReg, 7}, {kPwe3FifoFlagsReg, 6}, {kPwe3FifoFlagsReg, 5}, {kPwe3FifoFlagsReg, 4},
    {kPwe3FifoFlagsReg, 3}, {kPwe3FifoFlagsReg, 2}, {kPwe3FifoFlagsReg, 1}, {kPwe3FifoFlagsReg, 0},
    {kPwe3FifoRstReg, 3},   {kPwe3FifoRstReg, 2},   {kPwe3FifoRstReg, 1},   {kPwe3FifoRstReg, 0},
    {kPwe3RxOverrunReg, 0}, {kPwe3TxOverrunReg, 0},
};
// clang-format on

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ATM_GetAtmPwe3Per(uint32_t chip, uint32_t pw, uint32_t out[14]) {
    if (!validPw(chip, pw) || out == nullptr) {
        return paraErr(chip);
    }
    Entry tx;
    uint32_t rc = readEntry(chip, kPwTxSt, pw, tx);
    Entry rx;
    rc |= readRxStats(chip, pw, 15, rx);
    const uint32_t values[VQ6192_ATM_PWE3_PER_NUM] = {
        tx.get(kTxStSn),
        tx.get(kTxStLength),
        tx.get(kTxStRelayNum),
        tx.get(kTxStDelayPkt),
        tx.get(kTxStPktCnt),
        rx.get(kRxStPktCnt),
        rx.get(kRxStLossPkt),
        rx.get(kRxStDisorder),
        rx.get(kRxStFractCell),
        rx.get(kRxStExpectSn),
        rx.get(kRxStLastSn),
        rx.get(kRxStRstCnt),
        VQ6192_ReadRegField(chip, kPwe3RxOverflowReg, 0, 16),
        VQ6192_ReadRegField(chip, kPwe3TxOverflowReg, 0, 16),
    };
    for (uint32_t k = 0; k < VQ6192_ATM_PWE3_PER_NUM; ++k) {
        out[k] = values[k];
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_GetPwChkErrAlm(uint32_t chip, uint32_t pw, uint8_t *byAlmStat) {
    if (!validPw(chip, pw) || byAlmStat == nullptr) {
        return paraErr(chip);
    }
    Entry rx;
    const uint32_t rc = readRxStats(chip, pw, 16, rx);
    *byAlmStat = static_cast<uint8_t>(rx.get(kRxStSnChkErr));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetPw3FIFOStats(uint32_t chip, uint32_t which, uint32_t value) {
    if (!vq::validChip(chip) || which > 3 || value > 1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kPwe3FifoRstReg, value, 3 - which, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetPw3FIFOStats(uint32_t chip, uint8_t out[22]) {
    if (!vq::validChip(chip) || out == nullptr) {
        return paraErr(chip);
    }
    for (uint32_t k = 0; k < VQ6192_ATM_PW3_FIFO_STAT_NUM; ++k) {
        out[k] = static_cast<uint8_t>(VQ6192_ReadRegField(chip, kFifoFlags[k].reg, kFifoFlags[k].bit, 1));
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmPWE3Capture(uint32_t chip, uint32_t pw, uint32_t direction) {
    if (!validPw(chip, pw) || direction > 1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kPwCapReg, pw, 0, kPwBits);
    VQ6192_WriteRegField(chip, kPwCapReg, direction, kPwCapDirBit, 1);
    VQ6192_WriteRegField(chip, kPwCapReg, 0, kPwCapStartBit, 1);
    VQ6192_WriteRegField(chip, kPwCapReg, 1, kPwCapStartBit, 1);
    vq::OSK_TaskDelay(kCaptureSettleTicks);
    for (uint32_t poll = 0; poll < kCapturePolls; ++poll) {
        const uint32_t done = VQ6192_ReadRegField(chip, kPwCapReg, kPwCapDoneBit, 1);
        vq::DrvDelayUs(kCapturePollUs);
        if (done == 1) {
            return 0;
        }
    }
    VQ6192_WriteRegField(chip, kPwCapReg, 0, kPwCapStartBit, 1);
    const uint32_t code = stepCode(chip);
    VQ6192_ATM_TRACE(chip,
                     "Err. VQ6192_ATM_SetAtmPWE3Capture GetPwe3CaptureAck(%#x) WaitFinish Fail. "
                     "checkTime[%#x]ErrorCode: %#x\r\n",
                     pw, kCapturePolls, code);
    return code;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmPWE3CapData(uint32_t chip, uint8_t *data, uint16_t *cellEnds,
                                                 uint16_t *count) {
    if (!vq::validChip(chip) || data == nullptr || cellEnds == nullptr || count == nullptr) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    uint32_t bytes = 0;
    uint16_t ends = 0;
    for (uint32_t i = 0; i < VQ6192_ATM_PWE3_CAP_ENTRIES; ++i) {
        Entry e;
        rc = readEntry(chip, kPwPktBuf, i, e);
        const uint32_t word = e.get(kPktBufData);
        const bool eof = e.get(kPktBufEof) == 1;
        // A closing entry holds count + 1 bytes, the others four; bytes go most significant first.
        const uint32_t n = eof ? e.get(kPktBufSel) + 1 : 4;
        for (uint32_t b = 0; b < n; ++b) {
            data[bytes++] = static_cast<uint8_t>(word >> (24 - 8 * b));
        }
        if (eof) {
            cellEnds[ends++] = static_cast<uint16_t>(bytes);
        }
    }
    *count = ends;
    VQ6192_ATM_TRACE(chip, "Err. VQ6192_ATM_GetAtmPWE3CapData OK! ErrorCode: %x\r\n", rc);
    return rc;
}

// The caller's buffer takes the first captured packet: up to VQ6192_ATM_PWE3_CAP_BYTES bytes. A
// buffer without an end mark yields length 0.
VQ6192_API uint32_t VQ6192_ATM_GetAtmPWE3CapCell(uint32_t chip, uint32_t pw, uint32_t direction,
                                                 uint8_t *pbyCell, uint32_t *length) {
    if (!validPw(chip, pw) || direction > 1 || pbyCell == nullptr || length == nullptr) {
        return paraErr(chip);
    }
    uint32_t rc = VQ6192_ATM_SetAtmPWE3Capture(chip, pw, direction);
    if (rc != 0) {
        VQ6192_ATM_TRACE(chip,
                         "Err. VQ6192_ATM_GetAtmPWE3CapCell VQ6192_ATM_SetAtmPWE3Capture(%2lu,  %4lu,  %2lu) "
                         "ErrorCode: %#x\r\n",
                         static_cast<unsigned long>(chip), static_cast<unsigned long>(pw),
                         static_cast<unsigned long>(direction), rc);
        return stepCode(chip);
    }
    std::array<uint8_t, VQ6192_ATM_PWE3_CAP_BYTES> data{};
    std::array<uint16_t, VQ6192_ATM_PWE3_CAP_ENTRIES> ends{};
    uint16_t count = 0;
    rc = VQ6192_ATM_GetAtmPWE3CapData(chip, data.data(), ends.data(), &count);
    if (rc != 0) {
        VQ6192_ATM_TRACE(
            chip,
            "Err. VQ6192_ATM_GetAtmPWE3CapCell VQ6192_ATM_GetAtmPWE3CapData(%#x, %#x) ErrorCode: %#x\r\n",
            chip, pw, rc);
        return stepCode(chip);
    }
    const uint32_t n = count == 0 ? 0 : ends[0];
    for (uint32_t k = 0; k < n; ++k) {
        pbyCell[k] = data[k];
    }
    *length = n;
    return 0;
}

}  // extern "C"
