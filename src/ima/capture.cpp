// IMA cell capture: filter blocks, start and stop, and the readout of the captured cells from the
// chip's external memory.
#include <cstring>

#include "ima/ima_internal.h"
#include "vq6192/chip.h"

namespace vq::ima {
namespace {

constexpr uint32_t kCapPolls = 10;
constexpr uint32_t kCapWait = 10;
constexpr uint32_t kSelectSubMode = 1024;
constexpr uint32_t kSlotBytes = 64;
constexpr uint32_t kSlotWords = 32;

// Waits for the capture engine to be idle: true when it is.
bool captureIdle(uint32_t chip) {
    for (uint32_t i = 0; i < kCapPolls; ++i) {
        if (get(chip, kCapBusy) == 0) {
            return true;
        }
        waitTicks(kCapWait);
    }
    return false;
}

uint32_t filterReg(uint32_t block, uint32_t r) {
    return kCapFilterBase + kCapFilterStride * block + 2 * r;
}

void field(uint32_t chip, uint32_t addr, uint32_t bit, uint32_t width, uint32_t value) {
    VQ6192_WriteRegField(chip, addr, value, bit, width);
}

// Output byte k of a 64-byte place takes slot byte kSlotOrder[k] (bytes 4..7 of the slot are skipped,
// output bytes 60..63 are left as they are).
uint8_t slotByte(const uint16_t *slot, uint32_t b) {
    const uint16_t half = slot[b / 2];
    return static_cast<uint8_t>(b % 2 == 0 ? half >> 8 : half & 0xFF);
}

void copySlot(const uint16_t *slot, uint8_t *out) {
    constexpr uint8_t kHead[4] = {1, 0, 3, 2};
    constexpr uint8_t kGroup[8] = {13, 12, 15, 14, 9, 8, 11, 10};
    for (uint32_t k = 0; k < 4; ++k) {
        out[k] = slotByte(slot, kHead[k]);
    }
    for (uint32_t g = 0; g < 7; ++g) {
        for (uint32_t k = 0; k < 8; ++k) {
            out[4 + 8 * g + k] = slotByte(slot, kGroup[k] + 8 * g);
        }
    }
}

}  // namespace
}  // namespace vq::ima

using namespace vq::ima;
using vq::validChip;

extern "C" {

VQ6192_API uint32_t VQ6192_IMA_SetImaCapture(uint32_t chip, const IMA_CAP_FILTER *f) {
    if (!validChip(chip) || f == nullptr) {
        return paraErr(chip);
    }
    if (!captureIdle(chip)) {
        return paraErr(chip);
    }
    set(chip, kCapMode, f->wCapMode);
    for (uint32_t b = 0; b < kCapFilterBlocks; ++b) {
        field(chip, filterReg(b, 0), 12, 1, 0);
        field(chip, filterReg(b, 0), 0, 9, kEmptyLink);
    }
    // Filter numbers above 32 have no filter block: the blocks that exist are set.
    const uint32_t count = f->wFilterNum < kCapFilterBlocks ? f->wFilterNum : kCapFilterBlocks;
    for (uint32_t i = 0; i < count; ++i) {
        field(chip, filterReg(i, 0), 0, 9, f->awLink[i]);
        field(chip, filterReg(i, 0), 12, 1, 1);
        field(chip, filterReg(i, 1), 4, 11, f->wSelect);
        if (f->wSelect != kSelectSubMode) {
            continue;
        }
        field(chip, filterReg(i, 1), 0, 3, f->wSubMode);
        switch (f->wSubMode) {
            case 0:
                field(chip, filterReg(i, 2), 8, 6, f->wValueA);
                field(chip, filterReg(i, 2), 0, 8, f->wValueB & 0xFFu);
                break;
            case 2:
            case 4:
                field(chip, filterReg(i, 3), 15, 1, f->wFlag);
                field(chip, filterReg(i, 3), 10, 5, f->awValueC[i]);
                break;
            case 3:
                field(chip, filterReg(i, 3), 0, 5, f->wValueA);
                break;
            case 6:
                field(chip, filterReg(i, 3), 0, 5, f->wValueA);
                field(chip, filterReg(i, 3), 5, 5, f->wValueB);
                break;
            default:
                return status(chip, kErrPara);
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_StartImaCapture(uint32_t chip, uint32_t count) {
    if (!validChip(chip) || count > 1023) {
        return paraErr(chip);
    }
    if (!captureIdle(chip)) {
        return status(chip, kErrTimeout);
    }
    VQ6192_WriteRegField(chip, kCapCtrl, (count << 1) | 1u, 0, 11);
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_StopImaCapture(uint32_t chip) {
    if (!validChip(chip)) {
        return paraErr(chip);
    }
    set(chip, kCapStart, 0);
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_GetImaCapture(uint32_t chip, IMA_CAP_DATA *cap) {
    if (!validChip(chip) || cap == nullptr) {
        return paraErr(chip);
    }
    const uint32_t filters =
        cap->stFilter.wFilterNum < kCapFilterBlocks ? cap->stFilter.wFilterNum : kCapFilterBlocks;
    if (cap->dwCapLen == 0) {
        cap->dwCapLen = static_cast<uint32_t>(cap->stFilter.wFilterNum) * 65536u;
        return 0;
    }
    if (filters == 0) {
        return 0;
    }
    // Every block is copied into the first 65536 bytes: a smaller buffer cannot take it.
    if (cap->pbyData == nullptr || cap->dwCapLen < kCapSlots * kSlotBytes) {
        return paraErr(chip);
    }
    const uint32_t start = get(chip, kCapStartSlot);
    uint32_t rc = 0;
    // Every block lands at the start of the buffer (the output position wraps at 16 bits) and the
    // start words run 0, 2048, 3072, ...; the slot address is not wrapped at slot 1023.
    for (uint32_t b = 0; b < filters; ++b) {
        cap->adwBlockStart[b] = b == 0 ? 0 : 1024u * (b + 1);
        uint16_t pos = 0;
        for (uint32_t s = start; s < start + kCapSlots; ++s) {
            uint16_t slot[kSlotWords] = {};
            rc |= VQ6192_Base_ReadDdr64Bytes(chip, kCapDdrBase + b * kCapDdrArea + s * kSlotBytes, slot, 0,
                                             kSlotBytes);
            copySlot(slot, cap->pbyData + pos);
            pos = static_cast<uint16_t>(pos + kSlotBytes);
        }
    }
    return rc;
}

}  // extern "C"
