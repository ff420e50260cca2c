// Mapper loopbacks, the map loopback configuration and the DS3 receive FIFO reset.
#include "core/status.h"
#include "sdh/sdh_regs.h"
#include "vq6192/core.h"
#include "vq6192/sdh.h"

namespace vq::sdh {
namespace {

// A loop bit: a register and bit of the chip, or of AU-3 slot i at register + step * i / bit + i.
struct LoopBit {
    uint32_t reg;
    uint32_t bit;
    uint32_t regStep;  // per AU-3 index
    uint32_t bitStep;  // per AU-3 index
    bool present;
};

struct LoopPoint {
    LoopBit a;
    LoopBit b;
    bool perAu3;
};

// clang-format off
constexpr LoopPoint kLoopPoints[] = {
    {{0x2C00A, 0, 0,    0, true}, {0,       0, 0,    0, false}, false},  // 0
    {{0x26000, 0, 0,    1, true}, {0x26002, 0, 0,    1, true},  true},   // 1: bit AU-3 index
    {{0x2A020, 1, 0,    0, true}, {0x2A020, 0, 0,    0, true},  false},  // 2
    {{0x29296, 2, 0x10, 0, true}, {0x29296, 3, 0x10, 0, true},  true},   // 3
    {{0x2B604, 0, 0x20, 0, true}, {0x2B606, 0, 0x20, 0, true},  true},   // 4
};
// clang-format on

constexpr uint32_t kLoopPointNum = 5;

uint32_t loopReg(const LoopBit &b, uint32_t au3Index) {
    return b.reg + b.regStep * au3Index;
}
uint32_t loopBit(const LoopBit &b, uint32_t au3Index) {
    return b.bit + b.bitStep * au3Index;
}

uint32_t paraErr(uint32_t chip) {
    return vq::paraErr(chip, VQ6192_MODULE_SDH);
}

}  // namespace
}  // namespace vq::sdh

using namespace vq::sdh;

extern "C" {

// Loop mode 0 clears both bits, 1 sets A, 2 sets B. Points 0 and 2 are chip-wide and ignore vc4 and
// au3; point 0 has no bit B.
VQ6192_API uint32_t VQ6192_SDH_SetSDHLoop(uint32_t chip, uint32_t loopPoint, uint32_t vc4, uint32_t au3,
                                          uint32_t loopMode) {
    if (!vq::validChip(chip) || loopPoint >= kLoopPointNum || loopMode > 2) {
        return paraErr(chip);
    }
    const LoopPoint &p = kLoopPoints[loopPoint];
    if ((p.perAu3 && (vc4 >= VQ6192_SDH_VC4_NUM || au3 >= VQ6192_SDH_AU3_NUM)) ||
        (!p.b.present && loopMode == 2)) {
        return paraErr(chip);
    }
    const uint32_t index = p.perAu3 ? 3 * vc4 + au3 : 0;
    VQ6192_WriteRegField(chip, loopReg(p.a, index), loopMode == 1 ? 1 : 0, loopBit(p.a, index), 1);
    if (p.b.present) {
        VQ6192_WriteRegField(chip, loopReg(p.b, index), loopMode == 2 ? 1 : 0, loopBit(p.b, index), 1);
    }
    return 0;
}

// Returns 2 * B + A; the getter checks the slot for every point.
VQ6192_API uint32_t VQ6192_SDH_GetSDHLoop(uint32_t chip, uint32_t loopPoint, uint32_t vc4, uint32_t au3,
                                          uint8_t *loopState) {
    if (!vq::validChip(chip) || loopPoint >= kLoopPointNum || vc4 >= VQ6192_SDH_VC4_NUM ||
        au3 >= VQ6192_SDH_AU3_NUM || loopState == nullptr) {
        return paraErr(chip);
    }
    const LoopPoint &p = kLoopPoints[loopPoint];
    const uint32_t index = p.perAu3 ? 3 * vc4 + au3 : 0;
    const uint32_t a = VQ6192_ReadRegField(chip, loopReg(p.a, index), loopBit(p.a, index), 1);
    const uint32_t b =
        p.b.present ? VQ6192_ReadRegField(chip, loopReg(p.b, index), loopBit(p.b, index), 1) : 0;
    *loopState = static_cast<uint8_t>(2 * b + a);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetMapLoopCfg(uint32_t chip, uint32_t sdhSonetLbMode, uint32_t mapAisLbIns,
                                             uint32_t mapLbEn) {
    if (!vq::validChip(chip) || sdhSonetLbMode > 1 || mapAisLbIns > 1 || mapLbEn > 1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kMapLoopCfgReg, sdhSonetLbMode, kSdhSonetLbModeBit, 1);
    VQ6192_WriteRegField(chip, kMapLoopCfgReg, mapAisLbIns, kMapAisLbInsBit, 1);
    VQ6192_WriteRegField(chip, kMapLoopCfgReg, mapLbEn, kMapLbEnBit, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetMapLoopCfg(uint32_t chip, uint8_t *sdhSonetLbMode, uint8_t *mapAisLbIns,
                                             uint8_t *mapLbEn) {
    if (!vq::validChip(chip) || sdhSonetLbMode == nullptr || mapAisLbIns == nullptr || mapLbEn == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kMapLoopCfgReg);
    *sdhSonetLbMode = static_cast<uint8_t>((reg >> kSdhSonetLbModeBit) & 1u);
    *mapAisLbIns = static_cast<uint8_t>((reg >> kMapAisLbInsBit) & 1u);
    *mapLbEn = static_cast<uint8_t>((reg >> kMapLbEnBit) & 1u);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetDS3RxFifoRst(uint32_t chip, uint32_t vc4, uint32_t enable) {
    if (!vq::validChip(chip) || vc4 >= VQ6192_SDH_VC4_NUM || enable > 1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kRxHoBlock[0] + kRxHoVc4Stride * vc4, enable, kDs3RxFifoRstBit, 1);
    return 0;
}

}  // extern "C"
