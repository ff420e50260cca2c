// Switch-side controls: TSS mode, VC-4 payload type, timeslot sources and cross-connect enables, the
// egress default byte, timeslot and telecom-bus loops, the receive frame pulse and the map delays.
#include "framer/framer_internal.h"
#include "framer/ts_regs.h"
#include "vq6192/sdh.h"

namespace {

using namespace vq::framer;

uint32_t readBit(uint32_t chip, uint32_t reg, uint32_t bit) {
    return VQ6192_ReadRegField(chip, reg, bit, 1);
}
void writeBit(uint32_t chip, uint32_t reg, uint32_t bit, uint32_t value) {
    VQ6192_WriteRegField(chip, reg, value, bit, 1);
}

// A loop: the register and bit of its in-loop and out-loop (out absent when outReg is 0).
struct LoopBits {
    uint32_t inReg, inBit, outReg, outBit;
};

// Timeslot loop points; false when the point or channel is out of range. Point 0 takes an internal E1
// number and uses its AU-3 group (chnl / 21).
bool tsLoopBits(uint32_t point, uint32_t chnl, LoopBits *b) {
    switch (point) {
        case VQ6192_TS_LOOP_POINT_ET1:
            if (chnl >= VQ6192_FRM_E1_NUM) {
                return false;
            }
            *b = {kTsLoopE1In, chnl / 21, kTsLoopE1Out, chnl / 21};
            return true;
        case VQ6192_TS_LOOP_POINT_ET3:
            if (chnl >= VQ6192_FRM_E3_NUM) {
                return false;
            }
            *b = {kTsLoopE3In, chnl, kTsLoopE3Out, chnl};
            return true;
        case 2:
            *b = {kTsLoopPoint2, 0, 0, 0};
            return true;
        case 3:
            *b = {kTsLoopPoint3, 0, kTsLoopPoint3, 1};
            return true;
        default:
            return false;
    }
}

bool htbLoopBits(uint32_t zero, uint32_t idx, uint32_t kind, LoopBits *b) {
    if (zero != 0 || kind > 1 || (kind == 1 && idx >= kHtbTribNum)) {
        return false;
    }
    if (kind == 0) {
        *b = {kHtbLoopChip, 1, kHtbLoopChip, 0};
    } else {
        const uint32_t reg = kHtbLoopTrib + kHtbTribStride * idx;
        *b = {reg, 5, reg, 2};
    }
    return true;
}

// Loop mode 0 clears both bits, 1 sets the in-loop bit only, 2 the out-loop bit only.
void writeLoop(uint32_t chip, const LoopBits &b, uint32_t loopMode) {
    writeBit(chip, b.inReg, b.inBit, loopMode == 1 ? 1 : 0);
    if (b.outReg != 0) {
        writeBit(chip, b.outReg, b.outBit, loopMode == 2 ? 1 : 0);
    }
}

// 2 * out + in.
uint8_t readLoop(uint32_t chip, const LoopBits &b) {
    const uint32_t in = readBit(chip, b.inReg, b.inBit);
    const uint32_t out = b.outReg != 0 ? readBit(chip, b.outReg, b.outBit) : 0;
    return static_cast<uint8_t>(2 * out + in);
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_Framer_SetTSSMode(uint32_t chip, uint32_t e1, uint32_t mode) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || mode > 1) {
        return paraErr(chip);
    }
    writeBit(chip, kTssModeReg + 2 * (e1 / 16), e1 % 16, mode);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetTSSMode(uint32_t chip, uint32_t e1, uint32_t *mode) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || mode == nullptr) {
        return paraErr(chip);
    }
    *mode = readBit(chip, kTssModeReg + 2 * (e1 / 16), e1 % 16);
    return 0;
}

// The payload type is a 2-bit field and is not range-tested.
VQ6192_API uint32_t VQ6192_Framer_SetTSPayLoad(uint32_t chip, uint32_t vc4, uint32_t payload) {
    if (!vq::validChip(chip) || vc4 >= 4) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kVc4PayloadReg + 2 * vc4, payload, 0, 2);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetTSPayLoad(uint32_t chip, uint32_t vc4, uint32_t *payload) {
    if (!vq::validChip(chip) || vc4 >= 4 || payload == nullptr) {
        return paraErr(chip);
    }
    *payload = VQ6192_ReadRegField(chip, kVc4PayloadReg + 2 * vc4, 0, 2);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetTSSource(uint32_t chip, uint32_t dir, uint32_t src, uint32_t value) {
    if (!vq::validChip(chip) || dir > VQ6192_BASE_SRV_DIRECT_BOTH || src > 3 || value > 1) {
        return paraErr(chip);
    }
    if (dir != VQ6192_BASE_SRV_DIRECT_EGRESS) {
        writeBit(chip, kTsIngSourceReg, src, value);
    }
    if (dir != VQ6192_BASE_SRV_DIRECT_INGRESS) {
        writeBit(chip, kTsEgSourceReg, src, value);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetTSSource(uint32_t chip, uint32_t dir, uint32_t src, uint32_t *value) {
    if (!vq::validChip(chip) || dir > VQ6192_BASE_SRV_DIRECT_BOTH || src > 3 || value == nullptr) {
        return paraErr(chip);
    }
    if (dir == VQ6192_BASE_SRV_DIRECT_INGRESS) {
        *value = readBit(chip, kTsIngSourceReg, src);
        return 0;
    }
    *value = readBit(chip, kTsEgSourceReg, src);
    if (dir == VQ6192_BASE_SRV_DIRECT_BOTH) {
        const uint32_t ingress = readBit(chip, kTsIngSourceReg, src);
        if (ingress != *value) {
            VQ6192_FRM_TRACE(
                chip, "Err. VQ6192_Framer_GetTSSource(%u,%u,%u)    usIngGetVal[%u] != usEgGetVal[%u]\r\n",
                chip, dir, src, ingress, *value);
            return status(chip, kErrState);
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_SetTsUxcEnable(uint32_t chip, uint32_t idx, uint32_t en) {
    if (!vq::validChip(chip) || idx > 3 || en > 1) {
        return paraErr(chip);
    }
    writeBit(chip, kTsIngSourceReg, idx, en);
    return 0;
}

VQ6192_API uint32_t VQ6192_GetTsUxcEnable(uint32_t chip, uint32_t idx, uint32_t *en) {
    if (!vq::validChip(chip) || idx > 3 || en == nullptr) {
        return paraErr(chip);
    }
    *en = readBit(chip, kTsIngSourceReg, idx);
    return 0;
}

VQ6192_API uint32_t VQ6192_GetTsUxcRegVal(uint32_t chip, uint16_t *val) {
    if (!vq::validChip(chip) || val == nullptr) {
        return paraErr(chip);
    }
    *val = static_cast<uint16_t>(VQ6192_ReadReg(chip, kTsIngSourceReg));
    return 0;
}

// The byte is chip-wide; the channel is only range-tested.
VQ6192_API uint32_t VQ6192_Framer_SetTsEgDefaultByte(uint32_t chip, uint32_t e1, uint32_t byte) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || byte > 0xFF) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kTsEgDefaultByteReg, byte, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetTsEgDefaultByte(uint32_t chip, uint32_t e1, uint8_t *byte) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || byte == nullptr) {
        return paraErr(chip);
    }
    *byte = static_cast<uint8_t>(VQ6192_ReadRegField(chip, kTsEgDefaultByteReg, 0, 8));
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetTsLoop(uint32_t chip, uint32_t loopPoint, uint32_t chnl,
                                            uint32_t loopMode) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    LoopBits bits{};
    if (loopMode > 2 || !tsLoopBits(loopPoint, chnl, &bits)) {
        return paraErr(chip);
    }
    if (loopPoint == VQ6192_TS_LOOP_POINT_ET1) {
        // The line mode is read first, as the chip documentation's sequence does.
        uint8_t line = 0;
        if (VQ6192_SDH_GetSDHSonetMode(chip, &line) != 0) {
            return vq::makeStatus(chip, VQ6192_MODULE_SDH, kErrSubOp);
        }
        VQ6192_Printf(chip, VQ6192_MODULE_FRM, VQ6192_PRINT_NORMAL,
                      "Info. VQ6192_Framer_SetTsLoop(%u,%u,%u) LineMode[%u] Group[%u]\r\n", chip, chnl,
                      loopMode, static_cast<uint32_t>(line), chnl / 21);
    }
    writeLoop(chip, bits, loopMode);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetTsLoop(uint32_t chip, uint32_t loopPoint, uint32_t chnl,
                                            uint8_t *loopState) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    LoopBits bits{};
    if (loopState == nullptr || !tsLoopBits(loopPoint, chnl, &bits)) {
        return paraErr(chip);
    }
    *loopState = readLoop(chip, bits);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetHTBLoop(uint32_t chip, uint32_t zero, uint32_t idx, uint32_t kind,
                                             uint32_t loopMode) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    LoopBits bits{};
    if (loopMode > 2 || !htbLoopBits(zero, idx, kind, &bits)) {
        return paraErr(chip);
    }
    writeLoop(chip, bits, loopMode);
    VQ6192_Printf(chip, VQ6192_MODULE_FRM, VQ6192_PRINT_NORMAL,
                  "Info: VQ6192_Framer_SetHTBLoop(%u,%u,%u,%u)\r\n", chip, idx, kind, loopMode);
    return 0;
}

// Both loops at once is not a state the setter makes: reported as error 4 with the state 3.
VQ6192_API uint32_t VQ6192_Framer_GetHTBLoop(uint32_t chip, uint32_t zero, uint32_t idx, uint32_t kind,
                                             uint8_t *loopState) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    LoopBits bits{};
    if (loopState == nullptr || !htbLoopBits(zero, idx, kind, &bits)) {
        return paraErr(chip);
    }
    *loopState = readLoop(chip, bits);
    if (*loopState == 3) {
        const uint32_t rc = status(chip, kErrSubOp);
        VQ6192_FRM_TRACE(chip, "Err.chipid %d VQ6192_Framer_GetHTBLoop(%u,%u,%u,%u)       ErrCode[%#x]\r\n",
                         static_cast<int>(chip), chip, idx, kind, static_cast<uint32_t>(*loopState), rc);
        return rc;
    }
    return 0;
}

// The receive frame pulse setters test nothing: each value goes into its one-bit or 15-bit field.
VQ6192_API uint32_t VQ6192_Framer_ResetRfp(uint32_t chip, uint32_t value) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    writeBit(chip, kRfpResetReg, 1, value);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetResetRfpState(uint32_t chip, uint8_t *state) {
    if (!vq::validChip(chip) || state == nullptr) {
        return paraErr(chip);
    }
    *state = static_cast<uint8_t>(readBit(chip, kRfpResetReg, 1));
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetRfpEnableOnOff(uint32_t chip, uint32_t dropIntEn, uint32_t errIntEn,
                                                    uint32_t jitVldEn, uint32_t shiftEn) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    writeBit(chip, kRfpEnReg1, 2, dropIntEn);
    writeBit(chip, kRfpEnReg1, 1, errIntEn);
    writeBit(chip, kRfpEnReg2, 1, jitVldEn);
    writeBit(chip, kRfpEnReg2, 0, shiftEn);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetRfpEnableOnOff(uint32_t chip, uint8_t *dropIntEn, uint8_t *errIntEn,
                                                    uint8_t *jitVldEn, uint8_t *shiftEn) {
    if (!vq::validChip(chip) || dropIntEn == nullptr || errIntEn == nullptr || jitVldEn == nullptr ||
        shiftEn == nullptr) {
        return paraErr(chip);
    }
    *dropIntEn = static_cast<uint8_t>(readBit(chip, kRfpEnReg1, 2));
    *errIntEn = static_cast<uint8_t>(readBit(chip, kRfpEnReg1, 1));
    *jitVldEn = static_cast<uint8_t>(readBit(chip, kRfpEnReg2, 1));
    *shiftEn = static_cast<uint8_t>(readBit(chip, kRfpEnReg2, 0));
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetRfpDelay(uint32_t chip, uint32_t delay) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kRfpDelayReg, delay, 0, 15);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetRfpDelay(uint32_t chip, uint16_t *delay) {
    if (!vq::validChip(chip) || delay == nullptr) {
        return paraErr(chip);
    }
    *delay = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kRfpDelayReg, 0, 15));
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetRfpAlm(uint32_t chip, uint8_t *a, uint8_t *b, uint8_t *c, uint8_t *d) {
    if (!vq::validChip(chip) || a == nullptr || b == nullptr || c == nullptr || d == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kRfpAlarmReg);
    *a = static_cast<uint8_t>((reg >> 1) & 1u);
    *b = static_cast<uint8_t>((reg >> 4) & 1u);
    *c = static_cast<uint8_t>(reg & 1u);
    *d = static_cast<uint8_t>((reg >> 3) & 1u);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetMapDelayTime(uint32_t chip, uint32_t idx, uint32_t time) {
    if (!vq::validChip(chip) || idx > 3 || time >= kMapDelayLimit) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kMapDelayReg + 2 * idx, time, 0, 15);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetMapDelayTime(uint32_t chip, uint32_t idx, uint16_t *time) {
    if (!vq::validChip(chip) || idx > 3 || time == nullptr) {
        return paraErr(chip);
    }
    *time = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kMapDelayReg + 2 * idx, 0, 15));
    return 0;
}

}  // extern "C"
