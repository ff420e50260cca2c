// Path modes, masks, alarms and counters: REI and enhanced RDI modes, consequent actions, TU interrupt
// masks and resets, the low-order alarm record, error counts and pointer adjustments, the chip-wide
// alarm controls and the mapper FIFO alarms.
#include "sdh/poh_internal.h"

namespace vq::sdh::poh {
namespace {

constexpr uint32_t kActionTypeNum = 10;
constexpr uint32_t kRxActionTypes = 5;  // types 0..4 receive side, 5..9 transmit side (inverted)
constexpr uint32_t kFltTypeNum = 4;
constexpr uint32_t kE3Num = 12;

// Writes an ingress bit of the receive low-order block and/or an egress bit of the transmit group.
uint32_t setDirBits(uint32_t chip, uint32_t v, uint32_t k, uint32_t t, uint32_t dir, uint32_t mode,
                    uint32_t rxBit, uint32_t txBit) {
    if (badTu(chip, v, k, t) || dir >= VQ6192_BASE_SRV_DIRECT_MAX || mode > 1) {
        return paraErr(chip);
    }
    const uint32_t c = channel(k, t);
    if (dir != VQ6192_BASE_SRV_DIRECT_EGRESS) {
        wr(chip, rxLo(v, c) + kRxLoCfg, mode, rxBit);
    }
    if (dir != 0) {
        wr(chip, txLo(v, c) + kTxLoCfg, mode, txBit);
    }
    return 0;
}

uint32_t getDirBits(uint32_t chip, uint32_t v, uint32_t k, uint32_t t, uint8_t *ing, uint8_t *eg,
                    uint32_t rxBit, uint32_t txBit) {
    if (badTu(chip, v, k, t) || ing == nullptr || eg == nullptr) {
        return paraErr(chip);
    }
    const uint32_t c = channel(k, t);
    *ing = rd8(chip, rxLo(v, c) + kRxLoCfg, rxBit);
    *eg = rd8(chip, txLo(v, c) + kTxLoCfg, txBit);
    return 0;
}

// One bit of a low-order channel's receive block.
uint32_t setLoBit(uint32_t chip, uint32_t v, uint32_t k, uint32_t t, uint32_t word, uint32_t bit,
                  uint32_t value) {
    if (badTu(chip, v, k, t) || value > 1) {
        return paraErr(chip);
    }
    wr(chip, rxLo(v, channel(k, t)) + word, value, bit);
    return 0;
}

uint32_t getLoBit(uint32_t chip, uint32_t v, uint32_t k, uint32_t t, uint32_t word, uint32_t bit,
                  uint8_t *value) {
    if (badTu(chip, v, k, t) || value == nullptr) {
        return paraErr(chip);
    }
    *value = rd8(chip, rxLo(v, channel(k, t)) + word, bit);
    return 0;
}

// One chip-wide bit.
uint32_t setChipBit(uint32_t chip, uint32_t addr, uint32_t bit, uint32_t value) {
    if (!vq::validChip(chip) || value > 1) {
        return paraErr(chip);
    }
    wr(chip, addr, value, bit);
    return 0;
}

uint32_t getChipBit(uint32_t chip, uint32_t addr, uint32_t bit, uint8_t *value) {
    if (!vq::validChip(chip) || value == nullptr) {
        return paraErr(chip);
    }
    *value = rd8(chip, addr, bit);
    return 0;
}

// Filter number of alarm type 0 in bits 15..12, down to type 3 in bits 3..0.
constexpr uint32_t fltBit(uint32_t type) {
    return 12 - 4 * type;
}

}  // namespace
}  // namespace vq::sdh::poh

using namespace vq::sdh::poh;

extern "C" {

VQ6192_API uint32_t VQ6192_SDH_SetLpReiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                            uint32_t dir, uint32_t mode) {
    return setDirBits(chip, vc4, tug3, tu, dir, mode, kRxLoReiBit, kTxLoReiBit);
}

VQ6192_API uint32_t VQ6192_SDH_GetLpReiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                            uint8_t *ingress, uint8_t *egress) {
    return getDirBits(chip, vc4, tug3, tu, ingress, egress, kRxLoReiBit, kTxLoReiBit);
}

VQ6192_API uint32_t VQ6192_SDH_SetVc12ErdiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                               uint32_t dir, uint32_t mode) {
    return setDirBits(chip, vc4, tug3, tu, dir, mode, kRxLoErdiBit, kTxLoVc12ErdiBit);
}

VQ6192_API uint32_t VQ6192_SDH_GetVc12ErdiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                               uint8_t *ingress, uint8_t *egress) {
    return getDirBits(chip, vc4, tug3, tu, ingress, egress, kRxLoErdiBit, kTxLoVc12ErdiBit);
}

VQ6192_API uint32_t VQ6192_SDH_SetVc3ErdiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t mode) {
    if (badVc3(chip, vc4, tug3) || mode > 1) {
        return paraErr(chip);
    }
    wr(chip, txLo(vc4, channel(tug3)) + kTxLoCfg, mode, kTxLoVc3ErdiBit);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetVc3ErdiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode) {
    if (badVc3(chip, vc4, tug3) || mode == nullptr) {
        return paraErr(chip);
    }
    *mode = rd8(chip, txLo(vc4, channel(tug3)) + kTxLoCfg, kTxLoVc3ErdiBit);
    return 0;
}

// Consequent actions 0..4 are enables of the receive block; 5..9 are disables of the transmit group.
VQ6192_API uint32_t VQ6192_SDH_SetSdhLpTranInsert(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                  uint32_t type, uint32_t en) {
    if (badTu(chip, vc4, tug3, tu) || type >= kActionTypeNum || en > 1) {
        return paraErr(chip);
    }
    const uint32_t c = channel(tug3, tu);
    if (type < kRxActionTypes) {
        wr(chip, rxLo(vc4, c) + kRxLoAction, en, kActionBit[type]);
    } else {
        wr(chip, txLo(vc4, c) + kTxLoAction, 1 - en, kActionBit[type]);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetSdhLpTranInsert(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                  uint32_t type, uint8_t *en) {
    if (badTu(chip, vc4, tug3, tu) || type >= kActionTypeNum || en == nullptr) {
        return paraErr(chip);
    }
    const uint32_t c = channel(tug3, tu);
    if (type < kRxActionTypes) {
        *en = rd8(chip, rxLo(vc4, c) + kRxLoAction, kActionBit[type]);
    } else {
        *en = static_cast<uint8_t>(1 - rd(chip, txLo(vc4, c) + kTxLoAction, kActionBit[type]));
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetTuAisIntMsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                              uint32_t msk) {
    return setLoBit(chip, vc4, tug3, tu, kRxLoIntMsk, 1, msk);
}

VQ6192_API uint32_t VQ6192_SDH_GetTuAisIntMsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                              uint8_t *msk) {
    return getLoBit(chip, vc4, tug3, tu, kRxLoIntMsk, 1, msk);
}

VQ6192_API uint32_t VQ6192_SDH_SetTuLopIntMsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                              uint32_t msk) {
    return setLoBit(chip, vc4, tug3, tu, kRxLoIntMsk, 0, msk);
}

VQ6192_API uint32_t VQ6192_SDH_GetTuLopIntMsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                              uint8_t *msk) {
    return getLoBit(chip, vc4, tug3, tu, kRxLoIntMsk, 0, msk);
}

VQ6192_API uint32_t VQ6192_SDH_SetRxLpRst(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                          uint32_t rst) {
    return setLoBit(chip, vc4, tug3, tu, kRxLoRst, 0, rst);
}

VQ6192_API uint32_t VQ6192_SDH_GetRxLpRst(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                          uint8_t *rst) {
    return getLoBit(chip, vc4, tug3, tu, kRxLoRst, 0, rst);
}

VQ6192_API uint32_t VQ6192_SDH_GetLpAlms(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *alarms) {
    if (badTu(chip, vc4, tug3, tu) || alarms == nullptr) {
        return paraErr(chip);
    }
    // The record: history bits of the path alarms, then TU-AIS and TU-LOP current and history.
    struct Source {
        uint32_t word;
        uint32_t bit;
    };
    static constexpr Source kRecord[VQ6192_SDH_LP_ALARM_NUM] = {
        {kRxLoHis, 8},   {kRxLoHis, 7}, {kRxLoHis, 5},   {kRxLoHis, 4}, {kRxLoHis, 6},
        {kRxLoHis, 3},   {kRxLoHis, 2}, {kRxLoHis, 1},   {kRxLoHis, 0}, {kRxLoCur, 1},
        {kRxLoTuHis, 1}, {kRxLoCur, 0}, {kRxLoTuHis, 0},
    };
    const uint32_t base = rxLo(vc4, channel(tug3, tu));
    const uint32_t his = VQ6192_ReadReg(chip, base + kRxLoHis);
    const uint32_t tuHis = VQ6192_ReadReg(chip, base + kRxLoTuHis);
    const uint32_t cur = VQ6192_ReadReg(chip, base + kRxLoCur);
    for (uint32_t i = 0; i < VQ6192_SDH_LP_ALARM_NUM; ++i) {
        const uint32_t reg = kRecord[i].word == kRxLoHis ? his : kRecord[i].word == kRxLoTuHis ? tuHis : cur;
        alarms[i] = static_cast<uint8_t>((reg >> kRecord[i].bit) & 1u);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxLpB3B2Cnt(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                              uint16_t *count) {
    if (badTu(chip, vc4, tug3, tu) || count == nullptr) {
        return paraErr(chip);
    }
    *count = static_cast<uint16_t>(VQ6192_ReadReg(chip, rxLo(vc4, channel(tug3, tu)) + kRxLoBipCnt));
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxLpReiCnt(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                             uint8_t *count) {
    if (badTu(chip, vc4, tug3, tu) || count == nullptr) {
        return paraErr(chip);
    }
    *count = static_cast<uint8_t>(VQ6192_ReadReg(chip, rxLo(vc4, channel(tug3, tu)) + kRxLoReiCnt) & 0xFFu);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetLpPointAdjust(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                uint16_t *adjustA, uint16_t *adjustB, uint16_t *adjustC) {
    if (badTu(chip, vc4, tug3, tu) || adjustA == nullptr || adjustB == nullptr || adjustC == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, rxLo(vc4, channel(tug3, tu)) + kRxLoPtrAdj);
    *adjustA = static_cast<uint16_t>(reg & 0xFu);
    *adjustB = static_cast<uint16_t>((reg >> 4) & 0xFu);
    *adjustC = static_cast<uint16_t>((reg >> 8) & 0xFu);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetHpLomMsk(uint32_t chip, uint32_t msk) {
    return setChipBit(chip, kAlmMskReg, 5, msk);
}

VQ6192_API uint32_t VQ6192_SDH_GetHpLomMsk(uint32_t chip, uint8_t *msk) {
    return getChipBit(chip, kAlmMskReg, 5, msk);
}

VQ6192_API uint32_t VQ6192_SDH_SetLpAlmMsk(uint32_t chip, uint32_t msk) {
    return setChipBit(chip, kAlmMskReg, 6, msk);
}

VQ6192_API uint32_t VQ6192_SDH_GetLpAlmMsk(uint32_t chip, uint8_t *msk) {
    return getChipBit(chip, kAlmMskReg, 6, msk);
}

VQ6192_API uint32_t VQ6192_SDH_SetVc4TuAisInsEn(uint32_t chip, uint32_t vc4, uint32_t en) {
    if (badVc4(chip, vc4)) {
        return paraErr(chip);
    }
    return setChipBit(chip, kTuAisInsReg, 8 + vc4, en);
}

VQ6192_API uint32_t VQ6192_SDH_GetVc4TuAisInsEn(uint32_t chip, uint32_t vc4, uint8_t *en) {
    if (badVc4(chip, vc4)) {
        return paraErr(chip);
    }
    return getChipBit(chip, kTuAisInsReg, 8 + vc4, en);
}

VQ6192_API uint32_t VQ6192_SDH_SetSONETB3ChkMode(uint32_t chip, uint32_t off) {
    return setChipBit(chip, kChkOffReg, 1, off);
}

VQ6192_API uint32_t VQ6192_SDH_GetSONETB3ChkMode(uint32_t chip, uint8_t *off) {
    return getChipBit(chip, kChkOffReg, 1, off);
}

VQ6192_API uint32_t VQ6192_SDH_SetOdLpSsCfg(uint32_t chip, uint32_t en) {
    return setChipBit(chip, kSsChkReg, 0, en);
}

VQ6192_API uint32_t VQ6192_SDH_GetOdLpSsCfg(uint32_t chip, uint8_t *en) {
    return getChipBit(chip, kSsChkReg, 0, en);
}

// The number is cut to its 4 bits.
VQ6192_API uint32_t VQ6192_SDH_SetFltAlarmNum(uint32_t chip, uint32_t type, uint32_t num) {
    if (!vq::validChip(chip) || type >= kFltTypeNum) {
        return paraErr(chip);
    }
    wr(chip, kFltAlarmReg, num & 0xFu, fltBit(type), 4);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetFltAlarmNum(uint32_t chip, uint32_t type, uint8_t *num) {
    if (!vq::validChip(chip) || type >= kFltTypeNum || num == nullptr) {
        return paraErr(chip);
    }
    *num = rd8(chip, kFltAlarmReg, fltBit(type), 4);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetSDHET1FifoAlm(uint32_t chip, uint32_t e1, uint8_t *alarms) {
    if (!vq::validChip(chip) || e1 >= VQ6192_SDH_E1_NUM || alarms == nullptr) {
        return paraErr(chip);
    }
    const uint32_t cur = VQ6192_ReadReg(chip, kE1FifoCur + 8 * e1);
    const uint32_t his = VQ6192_ReadReg(chip, kE1FifoHis + 8 * e1);
    alarms[0] = static_cast<uint8_t>((cur >> 1) & 1u);
    alarms[1] = static_cast<uint8_t>(cur & 1u);
    alarms[2] = static_cast<uint8_t>((his >> 1) & 1u);
    alarms[3] = static_cast<uint8_t>(his & 1u);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetSDHET3FifoAlm(uint32_t chip, uint32_t e3, uint8_t *alarms) {
    if (!vq::validChip(chip) || e3 >= kE3Num || alarms == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, rxHo(e3) + kRxHoT3Fifo);
    alarms[0] = static_cast<uint8_t>((reg >> 1) & 1u);
    alarms[1] = static_cast<uint8_t>(reg & 1u);
    return 0;
}

}  // extern "C"
