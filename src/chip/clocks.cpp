// Clock source selections: SerDes transmit clock, E3 output clock, MAC clock and clock detection.
#include "chip/chip_util.h"
#include "vq6192/chip.h"

using namespace vq::chip;

namespace {

uint32_t setSel(uint32_t chip, Field f, uint32_t sel) {
    if (!vq::validChip(chip) || sel > 1) {
        return baseParaErr(chip);
    }
    set(chip, f, sel);
    return 0;
}

uint32_t getSel(uint32_t chip, Field f, uint32_t *sel) {
    if (!vq::validChip(chip) || sel == nullptr) {
        return baseParaErr(chip);
    }
    *sel = get(chip, f);
    return 0;
}

}  // namespace

extern "C" {

// The SerDes transmit clock selection lives in two registers; the first one is read back.
VQ6192_API uint32_t VQ6192_Base_SetSdsTxclkSel(uint32_t chip, uint32_t sel) {
    const uint32_t rc = setSel(chip, kSdsTxclkSel, sel);
    if (rc == 0) {
        set(chip, kSdsTxclkSelMirror, sel);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_Base_GetSdsTxclkSel(uint32_t chip, uint32_t *sel) {
    return getSel(chip, kSdsTxclkSel, sel);
}

VQ6192_API uint32_t VQ6192_Base_SetE3OutClkSel(uint32_t chip, uint32_t sel) {
    return setSel(chip, kE3OutClkSel, sel);
}

VQ6192_API uint32_t VQ6192_Base_GetE3OutClkSel(uint32_t chip, uint32_t *sel) {
    return getSel(chip, kE3OutClkSel, sel);
}

VQ6192_API uint32_t VQ6192_Base_SetMacClkSel(uint32_t chip, uint32_t sel) {
    return setSel(chip, kMacClkSel, sel);
}

VQ6192_API uint32_t VQ6192_Base_GetMacClkSel(uint32_t chip, uint32_t *sel) {
    return getSel(chip, kMacClkSel, sel);
}

VQ6192_API uint32_t VQ6192_Base_SetClkDetectSel(uint32_t chip, uint32_t sel) {
    return setSel(chip, kClkDetectSel, sel);
}

VQ6192_API uint32_t VQ6192_Base_GetClkDetectSel(uint32_t chip, uint32_t *sel) {
    return getSel(chip, kClkDetectSel, sel);
}

}  // extern "C"
