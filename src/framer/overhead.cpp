// Transmit overhead insertion of the E1/T1 framers (egress words +2 and +4).
#include "framer/framer_internal.h"

namespace vq::framer {
namespace {

constexpr uint16_t kNone = 0xFFFF;

// Per overhead type: the +2 and +4 values for insertion modes 0..2, the bits they replace, and where
// the enable goes. Type 0 works on the RAI insertion bits of +2.
struct OhType {
    uint16_t w2[3];
    uint16_t mask2;
    uint32_t enable2Bit;
    uint16_t w4[3];
    uint16_t mask4;
    uint32_t enable4Bit;
};

// clang-format off
constexpr OhType kOhTypes[] = {
    //  +2 for mode 0, 1, 2        mask    en   +4 for mode 0, 1, 2        mask    en
    {{0x0000, 0x0010, 0x8000}, 0x8030, 5, {0x0000, 0x0008, 0x0040}, 0x0058, 4},
    {{kNone,  0x0080, 0x0000}, 0x00C0, 6, {kNone,  0x0002, 0x0000}, 0x0003, 0},
    {{0x0000, 0x0002, kNone},  0x0006, 2, {kNone,  kNone,  kNone},  0x0000, 0},
};
// clang-format on

// Writes one bit of a channel's egress word +2.
uint32_t setEgressBit(uint32_t chip, uint32_t e1, uint32_t bit, uint32_t value) {
    if (e1 >= VQ6192_FRM_E1_NUM || value > 1) {
        return paraErr(chip);
    }
    uint32_t v = 0, k = 0, r = 0;
    if (!regChannel(chip, e1, &v, &k, &r)) {
        return status(chip, kErrSubOp);
    }
    VQ6192_WriteRegField(chip, egressBlock(v, k, r) + kEgOh2, value, bit, 1);
    return 0;
}

}  // namespace
}  // namespace vq::framer

using namespace vq::framer;

extern "C" {

VQ6192_API uint32_t VQ6192_Framer_SetET1OhInsEn(uint32_t chip, uint32_t e1, uint32_t enable) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || enable > 1) {
        return paraErr(chip);
    }
    uint32_t v = 0, k = 0, r = 0;
    if (!regChannel(chip, e1, &v, &k, &r)) {
        return status(chip, kErrSubOp);
    }
    const uint32_t block = egressBlock(v, k, r);
    VQ6192_WriteRegField(chip, block + kEgOh2, enable, kOhInsEnBit, 1);
    VQ6192_WriteRegField(chip, block + kEgOh4, enable, kOhInsEn2Bit, 1);
    return 0;
}

// The value goes to a one-bit field and is not range-tested.
VQ6192_API uint32_t VQ6192_Framer_SetET1OhInsMode(uint32_t chip, uint32_t e1, uint32_t ohType,
                                                  uint32_t insMode, uint32_t value, uint32_t enable) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || ohType > 2 || insMode > 2 || enable > 1) {
        return paraErr(chip);
    }
    uint32_t v = 0, k = 0, r = 0;
    if (!regChannel(chip, e1, &v, &k, &r)) {
        return status(chip, kErrSubOp);
    }
    const uint32_t w2Addr = egressBlock(v, k, r) + kEgOh2;
    const uint32_t w4Addr = egressBlock(v, k, r) + kEgOh4;
    if (insMode == 1 && enable == 1) {
        if (ohType == 0) {
            VQ6192_WriteRegField(chip, w2Addr, value, kRaiInsValueBit, 1);
        } else if (ohType == 2) {
            VQ6192_WriteRegField(chip, w2Addr, value, 0, 1);
        }
    }
    const OhType &t = kOhTypes[ohType];
    const uint32_t w2 = VQ6192_ReadReg(chip, w2Addr);
    const uint32_t w4 = VQ6192_ReadReg(chip, w4Addr);
    uint32_t s = 0;
    if (t.w2[insMode] != kNone) {
        s = enable << t.enable2Bit;
        VQ6192_WriteReg(chip, w2Addr, (w2 & ~static_cast<uint32_t>(t.mask2)) | t.w2[insMode] | s);
    }
    if (t.w4[insMode] != kNone) {
        const uint32_t enable4 = enable << t.enable4Bit;
        const uint32_t carried = s & ~(1u << t.enable4Bit);
        VQ6192_WriteReg(chip, w4Addr,
                        (w4 & ~static_cast<uint32_t>(t.mask4)) | t.w4[insMode] | carried | enable4);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetE1RaiInsEn(uint32_t chip, uint32_t e1, uint32_t en) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return setEgressBit(chip, e1, kRaiInsEnBit, en);
}

VQ6192_API uint32_t VQ6192_Framer_SetE1RaiInsSelEn(uint32_t chip, uint32_t e1, uint32_t en) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return setEgressBit(chip, e1, kRaiInsSelEnBit, en);
}

VQ6192_API uint32_t VQ6192_Framer_SetE1RaiInsValue(uint32_t chip, uint32_t e1, uint32_t val) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return setEgressBit(chip, e1, kRaiInsValueBit, val);
}

VQ6192_API uint32_t VQ6192_Framer_GetE1OvhInsRegVal(uint32_t chip, uint32_t e1, uint16_t *regVal) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || regVal == nullptr) {
        return paraErr(chip);
    }
    uint32_t v = 0, k = 0, r = 0;
    if (!regChannel(chip, e1, &v, &k, &r)) {
        return status(chip, kErrSubOp);
    }
    *regVal = static_cast<uint16_t>(VQ6192_ReadReg(chip, egressBlock(v, k, r) + kEgOh2));
    return 0;
}

}  // extern "C"
