// High-order path overhead: transmitted bytes, J1 trace, B3 error insertion and pointer controls, the
// received bytes and trace, resets, HP-LOM controls, alarms and the B3 count. A VC-4's settings go to
// its three high-order blocks (n = v, v + 4, v + 8); getters read block n = v.

#include "platform/osal.h"
#include "sdh/poh_internal.h"

namespace vq::sdh::poh {
namespace {

constexpr uint32_t kByteTypeNum = 8;
constexpr uint32_t kRxByteTypeNum = 7;
constexpr uint32_t kByteTypeB3Src = 7;
constexpr uint32_t kByteTypeJ1 = 6;
constexpr uint32_t kByteTypeSignal = 2;

// J1 byte mode (byte type 6) in TxHo+0: bit 1 set, then bits 5..4 and 3..2. Mode 1 is (2, 2); mode 0 is
// taken as (1, 0).
constexpr uint32_t kJ1ModeOn = 1;
struct J1Encoding {
    uint32_t hi;  // bits 5..4
    uint32_t lo;  // bits 3..2
};
constexpr J1Encoding kJ1Encoding[2] = {{1, 0}, {2, 2}};

// High-order B3 error insertion words: mode 0 the value, mode 1 0x200 + value, mode 2 0x300 + value.
constexpr uint32_t kB3ErrMode[3] = {0, 0x200, 0x300};

}  // namespace
}  // namespace vq::sdh::poh

using namespace vq::sdh::poh;

extern "C" {

VQ6192_API uint32_t VQ6192_SDH_SetTxHpByte(uint32_t chip, uint32_t vc4, uint32_t byteType, uint32_t value,
                                           uint32_t mode) {
    if (badVc4(chip, vc4) || byteType >= kByteTypeNum || mode > (byteType == kByteTypeB3Src ? 2u : 1u)) {
        return paraErr(chip);
    }
    selectTxHo(chip, vc4);
    wr(chip, kTxHoByteReg[byteType], value, 0, 8);
    if (byteType == kByteTypeB3Src) {
        wrHo3(chip, txHo, vc4, kTxHoIns, mode, kB3SrcBit, 2);
        return 0;
    }
    if (byteType == kByteTypeJ1) {
        for (uint32_t k = 0; k < VQ6192_SDH_AU3_NUM; ++k) {
            const uint32_t addr = txHo(vc4 + 4 * k) + kTxHoJ1;
            wr(chip, addr, kJ1ModeOn, 1);
            wr(chip, addr, kJ1Encoding[mode].hi, 4, 2);
            wr(chip, addr, kJ1Encoding[mode].lo, 2, 2);
        }
        return 0;
    }
    wrHo3(chip, txHo, vc4, kTxHoIns, mode, kTxHoInsBit[byteType]);
    if (byteType == kByteTypeSignal) {
        wrHo3(chip, rxHo, vc4, kRxHoType2Copy, value & 3u, 5, 2);
        wrHo3(chip, txHo, vc4, kTxHoType2, (value & 0xFFu) != 0xFF ? 1 : 0, 5);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxHpByte(uint32_t chip, uint32_t vc4, uint32_t byteType, uint8_t *value,
                                           uint8_t *mode) {
    if (badVc4(chip, vc4) || byteType >= kByteTypeNum || value == nullptr || mode == nullptr) {
        return paraErr(chip);
    }
    selectTxHo(chip, vc4);
    const uint8_t byte = rd8(chip, kTxHoByteReg[byteType], 0, 8);
    uint8_t m = 0;
    if (byteType == kByteTypeB3Src) {
        m = rd8(chip, txHo(vc4) + kTxHoIns, kB3SrcBit, 2);
    } else if (byteType == kByteTypeJ1) {
        const uint32_t reg = VQ6192_ReadReg(chip, txHo(vc4) + kTxHoJ1);
        const uint32_t hi = (reg >> 4) & 3u;
        const uint32_t lo = (reg >> 2) & 3u;
        if (hi == kJ1Encoding[1].hi && lo == kJ1Encoding[1].lo) {
            m = 1;
        } else if (hi == kJ1Encoding[0].hi && lo == kJ1Encoding[0].lo) {
            m = 0;
        } else {
            return status(chip, kErrPrereq);
        }
    } else {
        m = rd8(chip, txHo(vc4) + kTxHoIns, kTxHoInsBit[byteType]);
    }
    *value = byte;
    *mode = m;
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetTxHpJ1(uint32_t chip, uint32_t vc4, uint32_t j1Mode, const uint8_t *msg,
                                         uint32_t byPass) {
    if (badVc4(chip, vc4) || j1Mode > 2 || msg == nullptr) {
        return paraErr(chip);
    }
    uint8_t trace[VQ6192_SDH_TRACE_LONG] = {};
    const uint32_t len = j1Mode == 2 ? VQ6192_SDH_TRACE_LONG : VQ6192_SDH_TRACE_SHORT;
    if (vq::memcpy_s(trace, sizeof trace, msg, len) != 0) {
        return vq::makeStatus(chip, VQ6192_ERR_MODULE_FRAMER, kErrCopy);
    }
    if (j1Mode == 1) {
        trace[0] = traceCrc(trace, VQ6192_SDH_TRACE_SHORT, false);
    }
    wrHo3(chip, txHo, vc4, kTxHoJ1, j1Mode == 2 ? 1 : 0, 0);
    selectTxHo(chip, vc4);
    writeTrace(chip, kTxHoTraceIndex, kTxHoTraceData, trace, len);
    wrHo3(chip, txHo, vc4, kTxHoIns, byPass, kJ1PassBit);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxHpJ1(uint32_t chip, uint32_t vc4, uint8_t *j1Mode, uint8_t *msg,
                                         uint8_t *byPass) {
    if (badVc4(chip, vc4) || j1Mode == nullptr || msg == nullptr || byPass == nullptr) {
        return paraErr(chip);
    }
    const bool longTrace = rd(chip, txHo(vc4) + kTxHoJ1, 0) != 0;
    selectTxHo(chip, vc4);
    readTrace(chip, kTxHoTraceIndex, kTxHoTraceData, msg,
              longTrace ? VQ6192_SDH_TRACE_LONG : VQ6192_SDH_TRACE_SHORT);
    *j1Mode = longTrace ? 2 : 0;
    *byPass = rd8(chip, txHo(vc4) + kTxHoIns, kJ1PassBit);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetTxHpB3Err(uint32_t chip, uint32_t vc4, uint32_t value, uint32_t mode) {
    if (badVc4(chip, vc4) || mode > 2) {
        return paraErr(chip);
    }
    // Errors are inserted into the chip's own B3 only.
    if (rd(chip, txHo(vc4) + kTxHoIns, kB3SrcBit, 2) != 0) {
        const uint32_t st = status(chip, kErrPrereq);
        VQ6192_Printf(chip, VQ6192_MODULE_SDH, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_SDH_SetTxHpB3Err.VQ6192_OA_HPOH_SRCSEL_ReadOaHpb3srcsel(%u,%u)       "
                      "ErrCode[%#x]\r\n",
                      chip, vc4, st);
        return st;
    }
    wrHo3(chip, txHo, vc4, kTxHoB3Err, kB3ErrMode[mode] + value, 0, 10);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxHpB3Err(uint32_t chip, uint32_t vc4, uint8_t *value, uint8_t *mode) {
    if (badVc4(chip, vc4) || value == nullptr || mode == nullptr) {
        return paraErr(chip);
    }
    const uint32_t field = rd(chip, txHo(vc4) + kTxHoB3Err, 0, 10);
    const uint32_t m = field >> 8;
    *value = static_cast<uint8_t>(field & 0xFFu);
    // Bits 9..8: 2 and 3 are modes 1 and 2; 0 (and 1, which the setter never writes) is mode 0.
    *mode = static_cast<uint8_t>(m >= 2 ? m - 1 : 0);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetTxHpPtrYFInsSel(uint32_t chip, uint32_t vc4, uint32_t yySel,
                                                  uint32_t ffSel) {
    if (badVc4(chip, vc4) || yySel > 1 || ffSel > 1) {
        return paraErr(chip);
    }
    selectTxHo(chip, vc4);
    wr(chip, kTxHoPtr, yySel, 0);
    wr(chip, kTxHoPtr, ffSel, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxHpPtrYFInsSel(uint32_t chip, uint32_t vc4, uint8_t *yySel,
                                                  uint8_t *ffSel) {
    if (badVc4(chip, vc4) || yySel == nullptr || ffSel == nullptr) {
        return paraErr(chip);
    }
    selectTxHo(chip, vc4);
    *yySel = rd8(chip, kTxHoPtr, 0);
    *ffSel = rd8(chip, kTxHoPtr, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetTxHpPtrSSInsVal(uint32_t chip, uint32_t vc4, uint32_t ss) {
    if (badVc4(chip, vc4) || ss > 3) {
        return paraErr(chip);
    }
    selectTxHo(chip, vc4);
    wr(chip, kTxHoPtr, ss, 2, 2);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxHpPtrSSInsVal(uint32_t chip, uint32_t vc4, uint8_t *ss) {
    if (badVc4(chip, vc4) || ss == nullptr) {
        return paraErr(chip);
    }
    selectTxHo(chip, vc4);
    *ss = rd8(chip, kTxHoPtr, 2, 2);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxHpByte(uint32_t chip, uint32_t vc4, uint32_t byteType, uint8_t *value) {
    if (badVc4(chip, vc4) || byteType >= kRxByteTypeNum || value == nullptr) {
        return paraErr(chip);
    }
    selectRxHo(chip, vc4);
    *value = rd8(chip, kRxHoBytes + kRxByte[byteType].offset, kRxByte[byteType].bit, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxHpJ1(uint32_t chip, uint32_t vc4, uint8_t *j1Mode, uint8_t *msg) {
    if (badVc4(chip, vc4) || j1Mode == nullptr || msg == nullptr) {
        return paraErr(chip);
    }
    selectRxHo(chip, vc4);
    readTrace(chip, kRxHoTraceIndex, kRxHoTraceData, msg, VQ6192_SDH_TRACE_LONG);
    *j1Mode = rd(chip, rxHo(vc4) + kRxHoTrace, 0) != 0 ? 2 : 0;
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetRxHpRst(uint32_t chip, uint32_t vc4, uint32_t rst) {
    if (badVc4(chip, vc4) || rst > 1) {
        return paraErr(chip);
    }
    wrHo3(chip, rxHo, vc4, kRxHoRst, rst, 0);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxHpRst(uint32_t chip, uint32_t vc4, uint8_t *rst) {
    if (badVc4(chip, vc4) || rst == nullptr) {
        return paraErr(chip);
    }
    *rst = rd8(chip, rxHo(vc4) + kRxHoRst, 0);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetHpLomAisEn(uint32_t chip, uint32_t vc4, uint32_t en) {
    if (badVc4(chip, vc4) || en > 1) {
        return paraErr(chip);
    }
    wrHo3(chip, rxHo, vc4, kRxHoLomAis, en, 2);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetHpLomAisEn(uint32_t chip, uint32_t vc4, uint8_t *en) {
    if (badVc4(chip, vc4) || en == nullptr) {
        return paraErr(chip);
    }
    *en = rd8(chip, rxHo(vc4) + kRxHoLomAis, 2);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetHpLomIntMsk(uint32_t chip, uint32_t hpNo, uint32_t msk) {
    if (!vq::validChip(chip) || hpNo >= kHoBlockNum || msk > 1) {
        return paraErr(chip);
    }
    wr(chip, rxHo(hpNo) + kRxHoLomIntMsk, msk, 2);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetHpLomIntMsk(uint32_t chip, uint32_t hpNo, uint8_t *msk) {
    if (!vq::validChip(chip) || hpNo >= kHoBlockNum || msk == nullptr) {
        return paraErr(chip);
    }
    *msk = rd8(chip, rxHo(hpNo) + kRxHoLomIntMsk, 2);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetHpAlms(uint32_t chip, uint32_t vc4, uint8_t *oomHis, uint8_t *lomHis,
                                         uint8_t *lomCur) {
    if (badVc4(chip, vc4) || oomHis == nullptr || lomHis == nullptr || lomCur == nullptr) {
        return paraErr(chip);
    }
    const uint32_t his = VQ6192_ReadReg(chip, rxHo(vc4) + kRxHoHis);
    *oomHis = static_cast<uint8_t>((his >> 3) & 1u);
    *lomHis = static_cast<uint8_t>((his >> 2) & 1u);
    *lomCur = rd8(chip, rxHo(vc4) + kRxHoLomCur, 2);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxHpB3Cnt(uint32_t chip, uint32_t vc4, uint8_t *flag, uint8_t *count) {
    if (badVc4(chip, vc4) || flag == nullptr || count == nullptr) {
        return paraErr(chip);
    }
    *flag = rd8(chip, rxHo(vc4) + kRxHoTrace, 1);
    *count = static_cast<uint8_t>(VQ6192_ReadReg(chip, rxHo(vc4) + kRxHoB3Cnt) & 0xFFu);
    return 0;
}

}  // extern "C"
