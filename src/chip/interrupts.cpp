// Interrupt control: line behaviour, top-level sources, and the enable and status bits of the
// packet engines, CES, E1 mapper, high-order timeslot bus and E3/T3 framers. Stateless: every
// operation is a field access.
#include "chip/chip_util.h"
#include "chip/int_regs.h"
#include "vq6192/chip.h"

using namespace vq::intr;
using vq::chip::bit;
using vq::chip::get;
using vq::chip::set;

namespace {

// Bare result for a source id the chip does not have.
constexpr uint32_t kUnknownId = 1;

uint32_t paraErr(uint32_t chip) {
    return vq::paraErr(chip, VQ6192_MODULE_INT);
}

// The parameter error some operations return without tracing it.
uint32_t quietParaErr(uint32_t chip) {
    return vq::makeStatus(chip, VQ6192_MODULE_INT, VQ6192_ERR_PARA);
}

const Source *source(uint32_t id) {
    for (const Source &s : kSources) {
        if (s.id == id) {
            return &s;
        }
    }
    return nullptr;
}

// Reads a source's flag (bit `sub` of a sub-sourced field) and, with `clear`, writes the clear value
// into that bit.
uint32_t sourceFlag(uint32_t chip, uint32_t id, uint32_t sub, const uint32_t *clear, uint16_t *out) {
    const Source *s = source(id);
    if (s == nullptr) {
        return kUnknownId;
    }
    if (s->subs != 0 && sub >= s->subs) {
        return paraErr(chip);
    }
    const uint32_t pos = s->subs != 0 ? sub : 0;
    *out = static_cast<uint16_t>(bit(get(chip, s->flag), pos));
    if (clear != nullptr) {
        set(chip, s->flag, *clear << pos);
    }
    return 0;
}

bool flag01(uint32_t v) {
    return v <= 1;
}

uint32_t singleFlag(uint32_t chip, uint32_t reg, uint16_t *out, uint32_t clear) {
    if (!vq::validChip(chip) || out == nullptr || !flag01(clear)) {
        return paraErr(chip);
    }
    *out = static_cast<uint16_t>(VQ6192_ReadRegField(chip, reg, 0, 1));
    VQ6192_WriteRegField(chip, reg, clear, 0, 1);
    return 0;
}

}  // namespace

extern "C" {

// ---- Line behaviour and top-level sources ------------------------------------------------------------

VQ6192_API uint32_t VQ6192_INT_SetIntActiveMode(uint32_t chip, uint32_t a, uint32_t b) {
    if (!vq::validChip(chip) || !flag01(a) || !flag01(b)) {
        return paraErr(chip);
    }
    set(chip, kActiveMode, a << 1 | b);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetIntActiveMode(uint32_t chip, uint32_t *a, uint32_t *b) {
    if (!vq::validChip(chip) || a == nullptr || b == nullptr) {
        return paraErr(chip);
    }
    const uint32_t mode = get(chip, kActiveMode);
    *a = bit(mode, 1);
    *b = bit(mode, 0);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_SetIntEnable(uint32_t chip, uint32_t id, uint32_t enable) {
    if (!vq::validChip(chip) || id >= VQ6192_INT_SRC_BOUND || !flag01(enable)) {
        return paraErr(chip);
    }
    const Source *s = source(id);
    if (s == nullptr) {
        return kUnknownId;
    }
    // The local alarms have one enable bit each; all of them follow.
    set(chip, s->enable, s->enable.width > 1 ? (enable != 0 ? kLocalEnableAll : 0) : enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetIntEnable(uint32_t chip, uint32_t id, uint16_t *out) {
    if (!vq::validChip(chip) || out == nullptr) {
        return paraErr(chip);
    }
    const Source *s = source(id);
    if (s == nullptr) {
        return kUnknownId;
    }
    *out = static_cast<uint16_t>(get(chip, s->enable));
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_SetIntMode(uint32_t chip, uint32_t id, uint32_t mode) {
    if (!vq::validChip(chip) || id >= VQ6192_INT_SRC_BOUND || !flag01(mode)) {
        return paraErr(chip);
    }
    const Source *s = source(id);
    if (s == nullptr) {
        return kUnknownId;
    }
    set(chip, s->mode, mode);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetIntFlag(uint32_t chip, uint32_t id, uint32_t sub, uint32_t clear,
                                          uint16_t *out) {
    if (!vq::validChip(chip) || id >= VQ6192_INT_SRC_BOUND || !flag01(clear) || out == nullptr) {
        return paraErr(chip);
    }
    return sourceFlag(chip, id, sub, &clear, out);
}

VQ6192_API uint32_t VQ6192_INT_GetIntAlm(uint32_t chip, uint32_t id, uint32_t sub, uint16_t *out) {
    if (!vq::validChip(chip) || out == nullptr) {
        return paraErr(chip);
    }
    return sourceFlag(chip, id, sub, nullptr, out);
}

VQ6192_API uint32_t VQ6192_INT_GetLocIntFlag(uint32_t chip, uint32_t /*unused*/, uint32_t clear,
                                             uint16_t out[5]) {
    if (!vq::validChip(chip) || !flag01(clear) || out == nullptr) {
        return paraErr(chip);
    }
    const uint32_t flags = VQ6192_ReadRegField(chip, kLocalFlagReg, 0, 11);
    for (uint32_t k = 0; k < 5; ++k) {
        VQ6192_WriteRegField(chip, kLocalFlagReg, clear, kLocalFlagBits[k], 1);
    }
    for (uint32_t k = 0; k < 5; ++k) {
        out[k] = static_cast<uint16_t>(bit(flags, kLocalFlagBits[k]));
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetIntIndex(uint32_t chip, uint16_t *out) {
    if (!vq::validChip(chip) || out == nullptr) {
        return paraErr(chip);
    }
    *out = static_cast<uint16_t>(get(chip, kPendingIndex));
    return 0;
}

// ---- Packet modification unit, multilink engine, ATM engine -------------------------------------------

VQ6192_API uint32_t VQ6192_INT_SetPmuIntEn(uint32_t chip, uint32_t enable) {
    if (!vq::validChip(chip) || !flag01(enable)) {
        return paraErr(chip);
    }
    set(chip, kPmuEnable, enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_SetMpIntEn(uint32_t chip, uint32_t enable) {
    if (!vq::validChip(chip) || !flag01(enable)) {
        return paraErr(chip);
    }
    set(chip, kMpEnable, enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetPmuInt(uint32_t chip, uint16_t *out, uint32_t clear) {
    return singleFlag(chip, kPmuFlagReg, out, clear);
}

VQ6192_API uint32_t VQ6192_INT_GetMpInt(uint32_t chip, uint16_t *out, uint32_t clear) {
    return singleFlag(chip, kMpFlagReg, out, clear);
}

VQ6192_API uint32_t VQ6192_INT_SetAtmIntEn(uint32_t chip, uint32_t en0, uint32_t en1) {
    if (!vq::validChip(chip) || !flag01(en0) || !flag01(en1)) {
        return paraErr(chip);
    }
    set(chip, kAtmEnable, en1 << 1 | en0);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetAtmInt(uint32_t chip, uint16_t *f0, uint16_t *f1, uint32_t clear) {
    if (!vq::validChip(chip) || f0 == nullptr || f1 == nullptr || !flag01(clear)) {
        return paraErr(chip);
    }
    const uint32_t flags = VQ6192_ReadReg(chip, kAtmFlagReg);
    *f1 = static_cast<uint16_t>(bit(flags, 1));
    *f0 = static_cast<uint16_t>(bit(flags, 0));
    if (clear != 0) {
        VQ6192_WriteRegField(chip, kAtmFlagReg, 1, 1, 1);
        VQ6192_WriteRegField(chip, kAtmFlagReg, 1, 0, 1);
    }
    return 0;
}

// ---- CES timing recovery -------------------------------------------------------------------------------

// Enabling an instance enables all four of its causes.
VQ6192_API uint32_t VQ6192_INT_SetCesTrIntEn(uint32_t chip, uint32_t instance, uint32_t enable) {
    if (!vq::validChip(chip) || (instance != VQ6192_INT_ALL && instance >= kCesTrInstances) ||
        !flag01(enable)) {
        return paraErr(chip);
    }
    const uint32_t value = enable != 0 ? kCesTrAll : 0;
    const uint32_t first = instance == VQ6192_INT_ALL ? 0 : instance;
    const uint32_t last = instance == VQ6192_INT_ALL ? kCesTrInstances - 1 : instance;
    for (uint32_t i = first; i <= last; ++i) {
        VQ6192_WriteRegField(chip, kCesTrEnableReg + 2 * i, value, 0, kCesTrFieldWidth);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetCesTrInt(uint32_t chip, uint16_t *instance, uint16_t *f3, uint16_t *f2,
                                           uint16_t *f0, uint32_t clear) {
    if (!vq::validChip(chip) || instance == nullptr || f3 == nullptr || f2 == nullptr || f0 == nullptr ||
        !flag01(clear)) {
        return paraErr(chip);
    }
    *instance = 0xFFFF;
    const uint32_t summary = get(chip, kCesTrSummary);
    if (summary == 0) {
        return VQ6192_INT_CES_TR_NONE;
    }
    uint32_t i = 0;
    while (bit(summary, i) == 0) {
        ++i;
    }
    *instance = static_cast<uint16_t>(i);
    const uint32_t reg = kCesTrLatchedReg + 2 * i;
    const uint32_t flags = VQ6192_ReadRegField(chip, reg, 0, kCesTrFieldWidth);
    if (clear != 0) {
        VQ6192_WriteRegField(chip, reg, kCesTrAll, 0, kCesTrFieldWidth);
    }
    *f3 = static_cast<uint16_t>(bit(flags, 3));
    *f2 = static_cast<uint16_t>(bit(flags, 2));
    *f0 = static_cast<uint16_t>(bit(flags, 0));
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetCesTrIntStat(uint32_t chip, uint32_t instance, uint32_t kind,
                                               uint32_t latched, uint8_t *out, uint32_t clear) {
    if (!vq::validChip(chip) || instance >= kCesTrInstances || !flag01(latched) || out == nullptr ||
        !flag01(clear)) {
        return paraErr(chip);
    }
    uint32_t mask = 0;
    switch (kind) {
        case VQ6192_INT_CES_TR_KIND_BIT3:
            mask = 1u << 3;
            break;
        case VQ6192_INT_CES_TR_KIND_BIT0:
            mask = 1u << 0;
            break;
        case VQ6192_INT_CES_TR_KIND_BIT2:
            mask = 1u << 2;
            break;
        default:
            return quietParaErr(chip);
    }
    const uint32_t reg = (latched != 0 ? kCesTrLatchedReg : kCesTrLiveReg) + 2 * instance;
    *out = static_cast<uint8_t>(VQ6192_ReadRegField(chip, reg, 0, kCesTrFieldWidth) & mask);
    if (latched != 0 && clear != 0) {
        VQ6192_WriteRegField(chip, reg, mask, 0, kCesTrFieldWidth);
    }
    return 0;
}

// ---- CES channels -------------------------------------------------------------------------------------

// en goes into all three enable bits of the channel; en2 and en3 are only range-checked.
VQ6192_API uint32_t VQ6192_INT_SetCesIntEn(uint32_t chip, uint32_t channel, uint32_t en, uint32_t en2,
                                           uint32_t en3) {
    if (!vq::validChip(chip) || (channel != VQ6192_INT_ALL && channel >= kCesChannelBound) || !flag01(en) ||
        !flag01(en2) || !flag01(en3)) {
        return paraErr(chip);
    }
    if (channel == VQ6192_INT_ALL) {
        for (uint32_t k = 0; k < kCesEnableRegs; ++k) {
            const uint32_t reg = kCesEnableReg + 2 * k;
            const uint32_t old = VQ6192_ReadReg(chip, reg);
            VQ6192_WriteReg(chip, reg, en != 0 ? old | kCesEnableAllBits : old & ~kCesEnableAllBits);
        }
        return 0;
    }
    if (channel >= kCesChannels) {
        return kUnknownId;
    }
    const uint32_t reg = kCesEnableReg + 2 * (channel % kCesEnableRegs);
    VQ6192_WriteRegField(chip, reg, en != 0 ? 7u : 0u, 4 * (channel / kCesEnableRegs), 3);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetCESIntStat(uint32_t chip, uint32_t channel, uint32_t type, uint32_t latched,
                                             uint8_t *out, uint32_t clear) {
    if (!vq::validChip(chip) || channel >= kCesStatChannelBound || !flag01(latched) || out == nullptr ||
        !flag01(clear)) {
        return paraErr(chip);
    }
    if (type > 2) {
        return quietParaErr(chip);
    }
    const uint32_t reg = (latched != 0 ? kCesLatchedReg : kCesLiveReg) + 2 * (channel / 4);
    const uint32_t pos = 4 * (channel % 4) + type;
    *out = static_cast<uint8_t>(VQ6192_ReadRegField(chip, reg, pos, 1));
    if (latched != 0 && clear != 0) {
        VQ6192_WriteRegField(chip, reg, 1, pos, 1);
    }
    return 0;
}

// ---- E1 mapper ---------------------------------------------------------------------------------------

VQ6192_API uint32_t VQ6192_INT_SetE1MapRfpIntEn(uint32_t chip, uint32_t a, uint32_t b) {
    if (!vq::validChip(chip) || !flag01(a) || !flag01(b)) {
        return paraErr(chip);
    }
    set(chip, kE1MapRfpEnable, a << 1 | b);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetE1MapRfpInt(uint32_t chip, uint16_t *f1, uint16_t *f2, uint32_t select) {
    if (!vq::validChip(chip) || f1 == nullptr || f2 == nullptr || !flag01(select)) {
        return paraErr(chip);
    }
    const uint32_t status = VQ6192_ReadReg(chip, kE1MapRfpStatusReg);
    const uint32_t first = select == 0 ? 0 : 3;
    *f2 = static_cast<uint16_t>(bit(status, first + 1));
    *f1 = static_cast<uint16_t>(bit(status, first));
    return 0;
}

// The enable register follows the chip's low-order enable map: with d = 3, 21, 28 for type 0, 1, 2,
// x = (3 group + index / d) * 32 (plus (index mod d) * 32 for type 0) and the register number is
// 0x161C6 + ((x << 10) AND 0x1F8000). This map does not follow the status layout; it is kept as the
// chip's enable map.
VQ6192_API uint32_t VQ6192_INT_SetE1MapLpIntEn(uint32_t chip, uint32_t type, uint32_t group, uint32_t index,
                                               uint32_t enable) {
    if (!vq::validChip(chip) || type > 2 || group > 3 || !flag01(enable) || index > kE1MapLpMaxIndex[type]) {
        return paraErr(chip);
    }
    const uint32_t d = kE1MapLpDivisor[type];
    uint32_t x = (3 * group + index / d) * 32;
    if (type == 0) {
        x += (index % d) * 32;
    }
    const uint32_t reg = 2 * (kE1MapLpEnableBase + ((x << 10) & kE1MapLpEnableMask));
    VQ6192_WriteRegField(chip, reg, enable, kE1MapLpEnableBit, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetE1MapLpInt(uint32_t chip, uint32_t type, uint32_t index, uint16_t *f1,
                                             uint16_t *f0) {
    if (!vq::validChip(chip) || type > 3 || index > kE1MapLpStatusMaxIndex || f1 == nullptr ||
        f0 == nullptr) {
        return paraErr(chip);
    }
    const uint32_t status = VQ6192_ReadReg(chip, kE1MapLpStatusReg[type] + kE1MapStride * index);
    *f1 = static_cast<uint16_t>(bit(status, 1));
    *f0 = static_cast<uint16_t>(bit(status, 0));
    return 0;
}

// kind only bounds the index: 4 high-order paths for kind 0, 12 for kind 1.
VQ6192_API uint32_t VQ6192_INT_SetE1MapHpIntEn(uint32_t chip, uint32_t kind, uint32_t index,
                                               uint32_t enable) {
    if (!vq::validChip(chip) || kind > 1 || index >= kE1MapHpIndexBound[kind] || !flag01(enable)) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kE1MapHpEnableReg + kE1MapStride * index, enable, 2, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetE1MapHpInt(uint32_t chip, uint32_t index, uint16_t *f3, uint16_t *f2) {
    if (!vq::validChip(chip) || index >= kE1MapHpIndexBound[1] || f3 == nullptr || f2 == nullptr) {
        return paraErr(chip);
    }
    const uint32_t status = VQ6192_ReadReg(chip, kE1MapHpStatusReg + kE1MapStride * index);
    *f3 = static_cast<uint16_t>(bit(status, 3));
    *f2 = static_cast<uint16_t>(bit(status, 2));
    return 0;
}

// Choice: no register is known to hold the E1 mapper's interrupt index, so the operation reads no
// register and reports bit 8 of the chip id.
VQ6192_API uint32_t VQ6192_INT_GetE1MapIntIndex(uint32_t chip, uint16_t *out) {
    if (!vq::validChip(chip) || out == nullptr) {
        return paraErr(chip);
    }
    *out = static_cast<uint16_t>(bit(chip, 8));
    return 0;
}

// ---- High-order timeslot bus ----------------------------------------------------------------------------

VQ6192_API uint32_t VQ6192_INT_SetHtbWarmIntEn(uint32_t chip, uint32_t a, uint32_t b) {
    if (!vq::validChip(chip) || a >= 64 || b >= 64) {
        return paraErr(chip);
    }
    set(chip, kHtbWarm, b << 6 | a);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetHtbWarmInt(uint32_t chip, uint16_t *a, uint16_t *b) {
    if (!vq::validChip(chip) || a == nullptr || b == nullptr) {
        return paraErr(chip);
    }
    const uint32_t v = get(chip, kHtbWarm);
    *a = static_cast<uint16_t>(v & 0x3Fu);
    *b = static_cast<uint16_t>(v >> 6);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_SetHtbB2sfIntEn(uint32_t chip, uint32_t a, uint32_t b) {
    if (!vq::validChip(chip) || !flag01(a) || b >= 64) {
        return paraErr(chip);
    }
    set(chip, kHtbB2sf, a << 6 | b);
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetHtbB2sfInt(uint32_t chip, uint16_t *a, uint16_t *b) {
    if (!vq::validChip(chip) || a == nullptr || b == nullptr) {
        return paraErr(chip);
    }
    const uint32_t v = get(chip, kHtbB2sf);
    *a = static_cast<uint16_t>(v >> 6);
    *b = static_cast<uint16_t>(v & 0x3Fu);
    return 0;
}

// ---- E3/T3 ports ---------------------------------------------------------------------------------------

// Kinds above 3 name no bit: nothing is written (and they read as 0).
VQ6192_API uint32_t VQ6192_INT_SetET3IntEn(uint32_t chip, uint32_t port, uint32_t kind, uint32_t enable) {
    if (!vq::validChip(chip) || port >= kEt3Ports || !flag01(enable)) {
        return paraErr(chip);
    }
    if (kind <= 3) {
        VQ6192_WriteRegField(chip, kEt3Reg + kEt3Stride * port, enable, 3 - kind, 1);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_INT_GetET3Int(uint32_t chip, uint32_t port, uint32_t kind, uint8_t *out) {
    if (!vq::validChip(chip) || port >= kEt3Ports || out == nullptr) {
        return paraErr(chip);
    }
    *out = kind <= 3
               ? static_cast<uint8_t>(VQ6192_ReadRegField(chip, kEt3Reg + kEt3Stride * port, 3 - kind, 1))
               : 0;
    return 0;
}

}  // extern "C"
