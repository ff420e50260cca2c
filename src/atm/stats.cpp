// ATM switch counters and alarm flags: per port, per connection, per drop cause and service class,
// OAM and continuity-check counters, FIFO overflows and the queue-delete status. Most counters clear
// when read.
#include "atm/atm_internal.h"
#include "platform/osal.h"

namespace {

using namespace vq::atm;

constexpr uint32_t kQmLenReadTicks = 200;

uint32_t reg16(uint32_t chip, uint32_t addr) {
    return VQ6192_ReadRegField(chip, addr, 0, 16);
}

// Chip-wide drop counters in the order of the drop record.
// clang-format off
constexpr uint32_t kDropRegs[] = {
    0xA400,  // wRedDrop
    0xA402,  // wFdDrop
    0xA404,  // wPfdDrop
    0xA406,  // wClpDrop
    0xA416,  // wFdAll5Drop
    0xA418,  // wPfdAll5Drop
    0xA40A,  // wCbrDrop
    0xA40C,  // wRtvbrDrop
    0xA40E,  // wNrtvbrDrop
    0xA410,  // wUbrplusDrop
    0xA412,  // wUbrDrop
    0xA408,  // wGlobalDrop
    0xA41A,  // wErrDrop
    0xA268,  // wTcamDropRx
    0xA26A,  // wTcamDropTx
    0xA2C8,  // wLcptDropRx
    0xA2C6,  // wLcptDropTx
    0xA2C4,  // wScptDropRx
    0xA2C2,  // wScptDropTx
    0xA2F2,  // wNoVldRx
    0xA2F4,  // wNoVldTx
};
static_assert(sizeof kDropRegs / sizeof kDropRegs[0] == sizeof(ATM_DROP_STAT) / sizeof(uint16_t));

// Queue occupancy per class: high register (bits 0..2), low register (bits 0..15).
constexpr uint32_t kQmDataRegs[][2] = {
    {0xA520, 0xA522},  // dwCbrData
    {0xA540, 0xA542},  // dwRtVbrData
    {0xA560, 0xA562},  // dwNrtVbrData
    {0xA580, 0xA582},  // dwUbrPlusData
    {0xA5A0, 0xA5A2},  // dwUbrData
    {0xA500, 0xA502},  // dwGlobalData
};

constexpr uint32_t kPolicingRegs[] = {
    0xA270,  // wPolDropRx
    0xA272,  // wPolDropTx
    0xA2F0,  // wPolTagRx
    0xA2EE,  // wPolTagTx
};

// OAM counters: register, width (the capture count is two bits).
struct RegField {
    uint32_t reg;
    uint32_t width;
};
constexpr RegField kOamRegs[] = {
    {0xA288, 16},  // wOamMin
    {0xA302, 16},  // wOamCapRx
    {0xA304, 16},  // wOamCapTx
    {0xA286,  2},  // wOamCapNum
    {0xA288, 16},  // wOamInNum
    {0xA264, 16},  // wOamDropRx
    {0xA266, 16},  // wOamDropTx
    {0xA414, 16},  // wOamDrop
    {0xA26C, 16},  // wOamCrcErrRx
    {0xA26E, 16},  // wOamCrcErrTx
    {0xA28C, 16},  // wCapFifoNum
    {0xA28E, 16},  // wInFifoNum
    {0xA310, 16},  // wCapltInc
};
static_assert(sizeof kOamRegs / sizeof kOamRegs[0] == sizeof(ATM_OAM_STAT) / sizeof(uint16_t));

constexpr uint32_t kFifoOverflowRegs[3] = {0xA306, 0xA30A, 0xA30C};
// clang-format on

using TableRead = uint32_t (*)(uint32_t, uint32_t, uint32_t, uint32_t *);

uint32_t portStat(uint32_t chip, uint32_t port, uint32_t side, uint32_t *rcc, uint32_t *tcc, TableRead read) {
    Entry e;
    if (side == 0) {
        const uint32_t rc = read(chip, kLpcc, port, e.w);
        *rcc = e.get(kLpccRx);
        *tcc = e.get(kLpccTx);
        return rc;
    }
    const uint32_t rc = read(chip, kSpcc, port, e.w);
    *rcc = e.get(kSpccRx);
    *tcc = e.get(kSpccTx);
    return rc;
}

bool portInRange(uint32_t port, uint32_t side) {
    return (side == 0 && port < VQ6192_ATM_LINE_PORT_NUM) || (side == 1 && port < VQ6192_ATM_SYS_PORT_NUM);
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ATM_GetAtmPortStat(uint32_t chip, uint32_t port, uint32_t side, uint32_t *dwRcc,
                                              uint32_t *dwTcc) {
    if (!vq::validChip(chip) || dwRcc == nullptr || dwTcc == nullptr || !portInRange(port, side)) {
        return paraErr(chip);
    }
    return portStat(chip, port, side, dwRcc, dwTcc, VQ6192_Read_Table);
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmPortStat_Pro(uint32_t chip, uint32_t port, uint32_t side,
                                                  uint32_t *dwRcc, uint32_t *dwTcc) {
    if (!vq::validChip(chip) || dwRcc == nullptr || dwTcc == nullptr || side != 1 ||
        !portInRange(port, side)) {
        return paraErr(chip);
    }
    return portStat(chip, port, side, dwRcc, dwTcc, VQ6192_Read_Table_Pro);
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmVcsStat(uint32_t chip, uint32_t vcx, uint32_t *dwTTcc,
                                             uint32_t *dwTRcc) {
    if (!vq::validChip(chip) || vcx >= VQ6192_ATM_VCX_NUM || dwTTcc == nullptr || dwTRcc == nullptr) {
        return paraErr(chip);
    }
    Entry t;
    Entry r;
    uint32_t rc = readEntry(chip, kTtcc, vcx, t);
    rc |= readEntry(chip, kTrcc, vcx, r);
    *dwTTcc = t.get(kTtccCells);
    *dwTRcc = r.get(kTrccCells);
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmVcxDropStat(uint32_t chip, uint32_t vcx, uint16_t *wDropCell) {
    if (!vq::validChip(chip) || vcx >= VQ6192_ATM_VCX_NUM || wDropCell == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kBmPvcSta, vcx, e);
    *wDropCell = static_cast<uint16_t>(e.get(kBmStaDrop));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_GetVcxDropInfo(uint32_t chip, uint32_t vcx, uint8_t *byBmAll5, uint8_t *byBmFD,
                                              uint8_t *byBmPFD) {
    if (!vq::validChip(chip) || vcx >= VQ6192_ATM_VCX_NUM || byBmAll5 == nullptr || byBmFD == nullptr ||
        byBmPFD == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kBmPvcSta, vcx, e);
    *byBmAll5 = static_cast<uint8_t>(e.get(kBmStaNewFrm));
    *byBmFD = static_cast<uint8_t>(e.get(kBmStaFd));
    *byBmPFD = static_cast<uint8_t>(e.get(kBmStaPfd));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmPortDropStat(uint32_t chip, uint32_t linePort, uint16_t *wDropCell) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM || wDropCell == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kBmFifoSta, linePort, e);
    *wDropCell = static_cast<uint16_t>(e.get(kBmFifoStaDrop));
    return rc;
}

// Index 8192 passes the check and is refused by the table layer (8192 entries).
VQ6192_API uint32_t VQ6192_ATM_GetAtmCcSrcStat(uint32_t chip, uint32_t vcx, uint16_t *wSrcTimer,
                                               uint16_t *wTtcc) {
    if (!vq::validChip(chip) || vcx > VQ6192_ATM_VCX_NUM || wSrcTimer == nullptr || wTtcc == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kOamStatus, vcx, e);
    *wSrcTimer = static_cast<uint16_t>(e.get(kOamStSrcTimer));
    *wTtcc = static_cast<uint16_t>(e.get(kOamStCcTtcc));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmDropStat(uint32_t chip, ATM_DROP_STAT *stat) {
    if (!vq::validChip(chip) || stat == nullptr) {
        return paraErr(chip);
    }
    uint16_t *out = &stat->wRedDrop;
    for (uint32_t k = 0; k < sizeof kDropRegs / sizeof kDropRegs[0]; ++k) {
        out[k] = static_cast<uint16_t>(reg16(chip, kDropRegs[k]));
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmQmDataStat(uint32_t chip, ATM_QM_DATA_STAT *stat) {
    if (!vq::validChip(chip) || stat == nullptr) {
        return paraErr(chip);
    }
    uint32_t *out = &stat->dwCbrData;
    for (uint32_t k = 0; k < sizeof kQmDataRegs / sizeof kQmDataRegs[0]; ++k) {
        const uint32_t high = VQ6192_ReadRegField(chip, kQmDataRegs[k][0], 0, 3);
        out[k] = high << 16 | reg16(chip, kQmDataRegs[k][1]);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmPolicingStat(uint32_t chip, ATM_POLICING_STAT *stat) {
    if (!vq::validChip(chip) || stat == nullptr) {
        return paraErr(chip);
    }
    uint16_t *out = &stat->wPolDropRx;
    for (uint32_t k = 0; k < sizeof kPolicingRegs / sizeof kPolicingRegs[0]; ++k) {
        out[k] = static_cast<uint16_t>(reg16(chip, kPolicingRegs[k]));
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmOamStat(uint32_t chip, ATM_OAM_STAT *stat) {
    if (!vq::validChip(chip) || stat == nullptr) {
        return paraErr(chip);
    }
    uint16_t *out = &stat->wOamMin;
    for (uint32_t k = 0; k < sizeof kOamRegs / sizeof kOamRegs[0]; ++k) {
        out[k] = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kOamRegs[k].reg, 0, kOamRegs[k].width));
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmCcStat(uint32_t chip, uint16_t *wCcFifoNum, uint16_t *wCcCnt) {
    if (!vq::validChip(chip) || wCcFifoNum == nullptr || wCcCnt == nullptr) {
        return paraErr(chip);
    }
    *wCcFifoNum = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kCcFifoNumReg, 0, 2));
    *wCcCnt = static_cast<uint16_t>(reg16(chip, kCcCntReg));
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmFifoOverflow(uint32_t chip, uint16_t out[3]) {
    if (!vq::validChip(chip) || out == nullptr) {
        return paraErr(chip);
    }
    for (uint32_t k = 0; k < 3; ++k) {
        out[k] = static_cast<uint16_t>(reg16(chip, kFifoOverflowRegs[k]));
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmTabRamBusy(uint32_t chip, uint16_t *byRam) {
    if (!vq::validChip(chip) || byRam == nullptr) {
        return paraErr(chip);
    }
    *byRam = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kTabRamBusyReg, 0, 1));
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmSwAlarm(uint32_t chip, uint16_t out[3]) {
    if (!vq::validChip(chip) || out == nullptr) {
        return paraErr(chip);
    }
    out[0] = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kTcamRepeatReg, 0, 1));
    out[1] = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kTcamRepeatHisReg, 0, 1));
    out[2] = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kTabRamBusyReg, 0, 1));
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetVpcDelAck(uint32_t chip, uint8_t *byDelStat, uint8_t *byType,
                                            uint16_t *wLinkPort) {
    if (!vq::validChip(chip) || byDelStat == nullptr || byType == nullptr || wLinkPort == nullptr) {
        return paraErr(chip);
    }
    const uint32_t v = reg16(chip, kQmDelStatReg);
    *byDelStat = (v >> kQmDelCmdBit & 3u) == kQmDelDone ? 1 : 0;
    *byType = static_cast<uint8_t>(v >> 9 & 0xFu);
    *wLinkPort = static_cast<uint16_t>(v & 0x1FFu);
    return 0;
}

VQ6192_API uint32_t VQ6192_Read_QMLEN(uint32_t chip, uint32_t queue, uint32_t n, uint32_t *len) {
    if (!vq::validChip(chip) || len == nullptr) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    *len = 0;
    for (uint32_t k = 0; k < n; ++k) {
        if (k != 0) {
            vq::OSK_TaskDelay(kQmLenReadTicks);
        }
        Entry e;
        rc = readEntry(chip, kLinkQm, queue, e);
        *len = e.get(kQmLen);
    }
    return rc;
}

}  // extern "C"
