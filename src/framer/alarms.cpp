// E1/T1 and E3/T3 alarm and counter readers.
#include <iterator>

#include "framer/framer_internal.h"
#include "vq6192/sdh.h"

namespace vq::framer {
namespace {

// Where each flag of the E3/T3 alarm record comes from, in record order.
enum Reg : uint8_t { S0, S1, A, D, TA, TD };

struct AlarmBit {
    uint8_t VQ6192_FRM_ET3_ALARM_S::*flag;
    Reg reg;
    uint8_t bit;
};

using Al = VQ6192_FRM_ET3_ALARM_S;

// clang-format off
constexpr AlarmBit kEt3Alarms[] = {
    {&Al::ucET3aLosAlarmCur,    S0, 3}, {&Al::ucET3aAll0AlarmCur,   S0, 2},
    {&Al::ucET3aAll1AlarmCur,   S0, 1}, {&Al::ucET3aLocAlarmCur,    S0, 0},
    {&Al::ucET3aSyncfoAlarmHis, S1, 6}, {&Al::ucET3aSyncfuAlarmHis, S1, 5},
    {&Al::ucET3aLosAlarmHis,    S1, 3}, {&Al::ucET3aAll0AlarmHis,   S1, 2},
    {&Al::ucET3aAll1AlarmHis,   S1, 1}, {&Al::ucET3aLocAlarmHis,    S1, 0},
    {&Al::ucE3AAll0AlarmHis,    A,  3}, {&Al::ucE3AAisAlarmHis,     A,  2},
    {&Al::ucE3AOofAlarmHis,     A,  1}, {&Al::ucE3ARaiAlarmHis,     A,  0},
    {&Al::ucE3DAll0AlarmHis,    D,  3}, {&Al::ucE3DAisAlarmHis,     D,  2},
    {&Al::ucE3DOofAlarmHis,     D,  1}, {&Al::ucE3DRaiAlarmHis,     D,  0},
    {&Al::ucT3ARdiAlarmHis,     TA, 6}, {&Al::ucT3AAll0AlarmHis,    TA, 5},
    {&Al::ucT3AAll1AlarmHis,    TA, 4}, {&Al::ucT3AAisAlarmHis,     TA, 3},
    {&Al::ucT3AIdleAlarmHis,    TA, 2}, {&Al::ucT3AOofAlarmHis,     TA, 1},
    {&Al::ucT3ALofAlarmHis,     TA, 0},
    {&Al::ucT3DRdiAlarmHis,     TD, 6}, {&Al::ucT3DAll0AlarmHis,    TD, 5},
    {&Al::ucT3DAll1AlarmHis,    TD, 4}, {&Al::ucT3DAisAlarmHis,     TD, 3},
    {&Al::ucT3DIdleAlarmHis,    TD, 2}, {&Al::ucT3DOofAlarmHis,     TD, 1},
    {&Al::ucT3DLofAlarmHis,     TD, 0},
};
// clang-format on

static_assert(std::size(kEt3Alarms) == sizeof(VQ6192_FRM_ET3_ALARM_S), "every alarm flag has its bit");

// The five counters of one side of an E3/T3 framer, in register order.
using Err = VQ6192_FRM_T3_ERR_S;
constexpr uint16_t Err::*kT3ACounts[] = {&Err::usAT3Ferrcnt, &Err::usAT3Merrcnt, &Err::usAT3Pcnt,
                                         &Err::usAT3Cpcnt, &Err::usAT3Febecnt};
constexpr uint16_t Err::*kT3DCounts[] = {&Err::usDT3Ferrcnt, &Err::usDT3Merrcnt, &Err::usDT3Pcnt,
                                         &Err::usDT3Cpcnt, &Err::usDT3Febecnt};

uint32_t et3Reg(Reg reg, uint32_t e3) {
    switch (reg) {
        case S0:
            return kEt3S0 + kEt3S0Stride * e3;
        case S1:
            return kEt3S0 + kEt3S0Stride * e3 + 2;
        case A:
            return kE3A + kE3AStride * e3;
        case D:
            return kE3A + kE3AStride * e3 + kE3DOffset;
        case TA:
            return kT3A + kT3Stride * e3;
        case TD:
            return kT3D + kT3Stride * e3;
    }
    return 0;
}

}  // namespace
}  // namespace vq::framer

using namespace vq::framer;

extern "C" {

VQ6192_API uint32_t VQ6192_Framer_GetFrmAlms(uint32_t chip, uint32_t e1, uint16_t *ais, uint16_t *rai,
                                             uint16_t *bfoof, uint16_t *mfoof) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || ais == nullptr || rai == nullptr ||
        bfoof == nullptr || mfoof == nullptr) {
        return paraErr(chip);
    }
    uint32_t v = 0, k = 0, r = 0;
    if (!regChannel(chip, e1, &v, &k, &r)) {
        return status(chip, kErrSubOp);
    }
    const uint32_t word = VQ6192_ReadReg(chip, ingressBlock(v, k, r) + kIngAlarm);
    *ais = (word & VQ6192_FRAMER_AIS) != 0;
    *rai = (word & VQ6192_FRAMER_RAI) != 0;
    *bfoof = (word & VQ6192_FRAMER_BFOOF) != 0;
    *mfoof = (word & VQ6192_FRAMER_MFOOF) != 0;
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetE1AlmRegVal(uint32_t chip, uint32_t e1, uint16_t *regVal) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || regVal == nullptr) {
        return paraErr(chip);
    }
    uint32_t mode = 0;
    if (VQ6192_Framer_GetFrmTDMMode(chip, &mode) != 0) {
        return status(chip, kErrSubOp);
    }
    uint32_t v = 0, k = 0, r = 0;
    if (!regChannel(chip, e1, &v, &k, &r)) {
        return status(chip, kErrSubOp);
    }
    *regVal = static_cast<uint16_t>(VQ6192_ReadReg(chip, ingressBlock(v, k, r) + kIngAlarm));
    return 0;
}

// The counter a TDM mode does not have (framing errors in E1, far-end block errors in T1) reads 0
// with the parameter error and no trace.
VQ6192_API uint32_t VQ6192_Framer_GetE1FrmCntStd(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tug2,
                                                 uint32_t tu, uint32_t cntType, uint32_t *count) {
    if (!vq::validChip(chip) || vc4 >= VQ6192_SDH_VC4_NUM || tug3 >= VQ6192_SDH_AU3_NUM || tug2 > 6 ||
        tu > 3 || cntType > VQ6192_FRM_FEBE || count == nullptr) {
        return paraErr(chip);
    }
    uint32_t mode = 0;
    if (VQ6192_Framer_GetFrmTDMMode(chip, &mode) != 0) {
        return status(chip, kErrSubOp);
    }
    uint32_t v = 0, k = 0, r = 0;
    if (VQ6192_SDH_Standardno2RegChno(chip, vc4, tug3, tug2, tu, &v, &k, &r) != 0) {
        return status(chip, kErrSubOp);
    }
    const uint32_t block = ingressBlock(v, k, r);
    const bool t1 = mode == VQ6192_BASE_TDM_T1;
    uint32_t offset = 0;
    switch (cntType) {
        case VQ6192_FRM_CRCERR:
            offset = t1 ? kIngT1Crc : kIngE1Crc;
            break;
        case VQ6192_FRM_FERR:
            offset = t1 ? kIngT1Ferr : 0;
            break;
        default:
            offset = t1 ? 0 : kIngE1Febe;
            break;
    }
    if (offset == 0) {
        *count = 0;
        return status(chip, kErrPara);
    }
    *count = VQ6192_ReadReg(chip, block + offset);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetFrmET3Alms(uint32_t chip, uint32_t e3, VQ6192_FRM_ET3_ALARM_S *alarms) {
    if (!vq::validChip(chip) || e3 >= VQ6192_FRM_E3_NUM || alarms == nullptr) {
        return paraErr(chip);
    }
    uint32_t regs[6];
    for (uint32_t reg = S0; reg <= TD; ++reg) {
        regs[reg] = VQ6192_ReadReg(chip, et3Reg(static_cast<Reg>(reg), e3));
    }
    for (const AlarmBit &a : kEt3Alarms) {
        alarms->*a.flag = static_cast<uint8_t>((regs[a.reg] >> a.bit) & 1u);
    }
    return 0;
}

// The E3/T3 number is not range-tested.
VQ6192_API uint32_t VQ6192_Framer_GetT3ErrorStat(uint32_t chip, uint32_t e3, VQ6192_FRM_T3_ERR_S *counts) {
    if (!vq::validChip(chip) || counts == nullptr) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < 5; ++i) {
        counts->*kT3ACounts[i] =
            static_cast<uint16_t>(VQ6192_ReadReg(chip, kT3ACounters + kT3Stride * e3 + 2 * i));
        counts->*kT3DCounts[i] =
            static_cast<uint16_t>(VQ6192_ReadReg(chip, kT3DCounters + kT3Stride * e3 + 2 * i));
    }
    return 0;
}

}  // extern "C"
