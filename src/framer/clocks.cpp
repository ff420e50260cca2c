// Clock source selectors, E1 mapper clock gates, SOH bypass and the transmitted AU pointer bytes.
#include "framer/framer_internal.h"

namespace vq::framer {
namespace {

// A 6- or 5-bit selector field at base + 2 * index, bits 0..width-1.
uint32_t setSelector(uint32_t chip, uint32_t base, uint32_t index, uint32_t indexCount, uint32_t value,
                     uint32_t maxValue, uint32_t width) {
    if (index >= indexCount || value > maxValue) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, base + 2 * index, value, 0, width);
    return 0;
}

uint32_t getSelector(uint32_t chip, uint32_t base, uint32_t index, uint32_t indexCount, uint32_t width,
                     uint16_t *value) {
    if (index >= indexCount || value == nullptr) {
        return paraErr(chip);
    }
    *value = static_cast<uint16_t>(VQ6192_ReadRegField(chip, base + 2 * index, 0, width));
    return 0;
}

// Gate 0..7: register 0x2080A bit 7 - g; gate 8..23: register 0x2080C bit 23 - g.
void gateBit(uint32_t gate, uint32_t *reg, uint32_t *bit) {
    if (gate < 8) {
        *reg = kClkGateRegLow;
        *bit = 7 - gate;
    } else {
        *reg = kClkGateRegHigh;
        *bit = 23 - gate;
    }
}

}  // namespace
}  // namespace vq::framer

using namespace vq::framer;

extern "C" {

VQ6192_API uint32_t VQ6192_Framer_SetFrmClkSource(uint32_t chip, uint32_t e1, uint32_t src) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return setSelector(chip, kE1ClkSrcReg, e1, VQ6192_FRM_E1_NUM, src, kE1ClkSrcMax, 6);
}

VQ6192_API uint32_t VQ6192_Framer_GetFrmClkSource(uint32_t chip, uint32_t e1, uint16_t *src) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return getSelector(chip, kE1ClkSrcReg, e1, VQ6192_FRM_E1_NUM, 6, src);
}

// Values 0x00..0x0B select a downstream E3/T3 clock, 0x0C..0x19 an upstream recovery clock.
VQ6192_API uint32_t VQ6192_Framer_SetFrmET3TxClkSource(uint32_t chip, uint32_t e3, uint32_t src) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return setSelector(chip, kEt3TxClkReg, e3, VQ6192_FRM_E3_NUM, src, kEt3TxClkMax, 5);
}

VQ6192_API uint32_t VQ6192_Framer_GetFrmET3TxClkSource(uint32_t chip, uint32_t e3, uint16_t *src) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return getSelector(chip, kEt3TxClkReg, e3, VQ6192_FRM_E3_NUM, 5, src);
}

// The telecom-bus clock selects take any 6-bit value.
VQ6192_API uint32_t VQ6192_HTBE_TCLK_CLKSEL(uint32_t chip, uint32_t i, uint32_t sel) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return setSelector(chip, kHtbTxClkReg, i, kHtbTxClkNum, sel, UINT32_MAX, 6);
}

VQ6192_API uint32_t VQ6192_HTBE_RT_CLKSEL(uint32_t chip, uint32_t i, uint32_t sel) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return setSelector(chip, kHtbRxClkReg, i, kHtbRxClkNum, sel, UINT32_MAX, 6);
}

VQ6192_API uint32_t VQ6192_Framer_SetE1MapClkGate(uint32_t chip, uint32_t gate, uint32_t en) {
    if (!vq::validChip(chip) || gate >= kClkGateNum || en > 1) {
        return paraErr(chip);
    }
    uint32_t reg = 0, bit = 0;
    gateBit(gate, &reg, &bit);
    VQ6192_WriteRegField(chip, reg, en, bit, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetE1MapClkGate(uint32_t chip, uint32_t gate, uint16_t *en) {
    if (!vq::validChip(chip) || gate >= kClkGateNum || en == nullptr) {
        return paraErr(chip);
    }
    uint32_t reg = 0, bit = 0;
    gateBit(gate, &reg, &bit);
    *en = static_cast<uint16_t>(VQ6192_ReadRegField(chip, reg, bit, 1));
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetSOHByPassMode(uint32_t chip, uint32_t en) {
    if (!vq::validChip(chip) || en > 1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kSohBypassReg, en, 0, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetSOHByPassMode(uint32_t chip, uint16_t *en) {
    if (!vq::validChip(chip) || en == nullptr) {
        return paraErr(chip);
    }
    *en = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kSohBypassReg, 0, 1));
    return 0;
}

// The chip stores one Y, one F and one H3 byte: the copies in the record must agree.
VQ6192_API uint32_t VQ6192_Framer_SetSDHAuPtr(uint32_t chip, const VQ6192_SDH_AU_PTR_S *ptr) {
    if (!vq::validChip(chip) || ptr == nullptr || ptr->ucY_1 != ptr->ucY_2 || ptr->ucF_1 != ptr->ucF_2 ||
        ptr->ucH3_1 != ptr->ucH3_2 || ptr->ucH3_2 != ptr->ucH3_3) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kAuPtrH1, ptr->ucH1, 0, 8);
    VQ6192_WriteRegField(chip, kAuPtrY, ptr->ucY_1, 0, 8);
    VQ6192_WriteRegField(chip, kAuPtrH2, ptr->ucH2, 0, 8);
    VQ6192_WriteRegField(chip, kAuPtrF, ptr->ucF_1, 0, 8);
    VQ6192_WriteRegField(chip, kAuPtrH3, ptr->ucH3_1, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetSDHAuPtr(uint32_t chip, VQ6192_SDH_AU_PTR_S *ptr) {
    if (!vq::validChip(chip) || ptr == nullptr) {
        return paraErr(chip);
    }
    auto byte = [chip](uint32_t reg) { return static_cast<uint8_t>(VQ6192_ReadRegField(chip, reg, 0, 8)); };
    ptr->ucH1 = byte(kAuPtrH1);
    ptr->ucY_1 = ptr->ucY_2 = byte(kAuPtrY);
    ptr->ucH2 = byte(kAuPtrH2);
    ptr->ucF_1 = ptr->ucF_2 = byte(kAuPtrF);
    ptr->ucH3_1 = ptr->ucH3_2 = ptr->ucH3_3 = byte(kAuPtrH3);
    return 0;
}

}  // extern "C"
