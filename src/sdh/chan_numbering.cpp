// The four numberings of a 2 Mbit/s or 1.5 Mbit/s tributary and the twelve conversions between them.
// With v = VC-4, k = TUG-3, l = TUG-2 and m = TU: internal E1 number 63v + 21k + 7m + l, register
// channel (v, k, 7m + l), standard number (v, k, l, m), hardware channel (v, 21m + 3l + k).
#include "core/status.h"
#include "vq6192/sdh.h"

namespace {

constexpr uint32_t kPerVc4 = 63;
constexpr uint32_t kPerTug3 = 21;
constexpr uint32_t kTug2PerTu = 7;

uint32_t paraErr(uint32_t chip) {
    return vq::paraErr(chip, VQ6192_MODULE_SDH);
}

// Standard coordinates of an internal E1 number (no range check).
void toStandard(uint32_t e1, uint32_t *v, uint32_t *k, uint32_t *l, uint32_t *m) {
    *v = e1 / kPerVc4;
    *k = (e1 % kPerVc4) / kPerTug3;
    *l = e1 % kTug2PerTu;
    *m = (e1 / kTug2PerTu) % 3;
}

uint32_t fromStandard(uint32_t v, uint32_t k, uint32_t l, uint32_t m) {
    return kPerVc4 * v + kPerTug3 * k + kTug2PerTu * m + l;
}

uint32_t hwToE1(uint32_t v, uint32_t h) {
    return kPerVc4 * v + h / 3 + kPerTug3 * (h % 3);
}

void e1ToHw(uint32_t e1, uint32_t *v, uint32_t *h) {
    const uint32_t q = e1 % kPerVc4;
    *v = e1 / kPerVc4;
    *h = g_aulVQ6192InterE1no2HwnoPerTug3[q % kPerTug3] + q / kPerTug3;
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_SDH_InterE1Chno2RegChno(uint32_t chip, uint32_t e1, uint32_t *vc4, uint32_t *tug3,
                                                   uint32_t *reg) {
    if (!vq::validChip(chip) || e1 >= VQ6192_SDH_E1_NUM || vc4 == nullptr || tug3 == nullptr ||
        reg == nullptr) {
        return paraErr(chip);
    }
    *vc4 = e1 / kPerVc4;
    *tug3 = (e1 % kPerVc4) / kPerTug3;
    *reg = (e1 % kPerVc4) % kPerTug3;
    return 0;
}

// A register channel of 21..27 (T1 tributaries) runs into the next TUG-3's numbers.
VQ6192_API uint32_t VQ6192_SDH_RegChno2InterE1Chno(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t reg,
                                                   uint32_t *e1) {
    if (!vq::validChip(chip) || vc4 >= VQ6192_SDH_VC4_NUM || tug3 >= VQ6192_SDH_AU3_NUM || reg >= 28 ||
        e1 == nullptr) {
        return paraErr(chip);
    }
    *e1 = kPerVc4 * vc4 + kPerTug3 * tug3 + reg;
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_InterE1Chno2HWChno(uint32_t chip, uint32_t e1, uint32_t *vc4, uint32_t *hw) {
    if (!vq::validChip(chip) || e1 >= VQ6192_SDH_E1_NUM || vc4 == nullptr || hw == nullptr) {
        return paraErr(chip);
    }
    e1ToHw(e1, vc4, hw);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_HWChno2InterE1Chno(uint32_t chip, uint32_t vc4, uint32_t hw, uint32_t *e1) {
    if (!vq::validChip(chip) || e1 == nullptr) {
        return paraErr(chip);
    }
    *e1 = hwToE1(vc4, hw);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_InterE1Chno2Standardno(uint32_t chip, uint32_t e1, uint32_t *vc4,
                                                      uint32_t *tug3, uint32_t *tug2, uint32_t *tu) {
    if (!vq::validChip(chip) || vc4 == nullptr || tug3 == nullptr || tug2 == nullptr || tu == nullptr) {
        return paraErr(chip);
    }
    toStandard(e1, vc4, tug3, tug2, tu);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_Standardno2InterE1Chno(uint32_t chip, uint32_t vc4, uint32_t tug3,
                                                      uint32_t tug2, uint32_t tu, uint32_t *e1) {
    if (!vq::validChip(chip) || e1 == nullptr) {
        return paraErr(chip);
    }
    *e1 = fromStandard(vc4, tug3, tug2, tu);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_RegChno2Standardno(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t reg,
                                                  uint32_t *outVc4, uint32_t *outTug3, uint32_t *tug2,
                                                  uint32_t *tu) {
    if (!vq::validChip(chip) || outVc4 == nullptr || outTug3 == nullptr || tug2 == nullptr || tu == nullptr) {
        return paraErr(chip);
    }
    *outVc4 = vc4;
    *outTug3 = tug3;
    *tug2 = reg % kTug2PerTu;
    *tu = reg / kTug2PerTu;
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_Standardno2RegChno(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tug2,
                                                  uint32_t tu, uint32_t *outVc4, uint32_t *outTug3,
                                                  uint32_t *reg) {
    if (!vq::validChip(chip) || outVc4 == nullptr || outTug3 == nullptr || reg == nullptr) {
        return paraErr(chip);
    }
    *outVc4 = vc4;
    *outTug3 = tug3;
    *reg = kTug2PerTu * tu + tug2;
    return 0;
}

// The hardware conversions go through the internal E1 number, so their VC-4 is recomputed from it.
VQ6192_API uint32_t VQ6192_SDH_HWChno2Standardno(uint32_t chip, uint32_t vc4, uint32_t hw, uint32_t *outVc4,
                                                 uint32_t *tug3, uint32_t *tug2, uint32_t *tu) {
    if (!vq::validChip(chip) || outVc4 == nullptr || tug3 == nullptr || tug2 == nullptr || tu == nullptr) {
        return paraErr(chip);
    }
    toStandard(hwToE1(vc4, hw), outVc4, tug3, tug2, tu);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_Standardno2HWChno(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tug2,
                                                 uint32_t tu, uint32_t *outVc4, uint32_t *hw) {
    if (!vq::validChip(chip) || outVc4 == nullptr || hw == nullptr) {
        return paraErr(chip);
    }
    e1ToHw(fromStandard(vc4, tug3, tug2, tu), outVc4, hw);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_HWChno2RegChno(uint32_t chip, uint32_t vc4, uint32_t hw, uint32_t *outVc4,
                                              uint32_t *tug3, uint32_t *reg) {
    if (!vq::validChip(chip) || outVc4 == nullptr || tug3 == nullptr || reg == nullptr) {
        return paraErr(chip);
    }
    const uint32_t e1 = hwToE1(vc4, hw);
    *outVc4 = e1 / kPerVc4;
    *tug3 = (e1 % kPerVc4) / kPerTug3;
    *reg = (e1 % kPerVc4) % kPerTug3;
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_RegChnoHWChno(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t reg,
                                             uint32_t *outVc4, uint32_t *hw) {
    if (!vq::validChip(chip) || outVc4 == nullptr || hw == nullptr) {
        return paraErr(chip);
    }
    e1ToHw(kPerVc4 * vc4 + kPerTug3 * tug3 + reg, outVc4, hw);
    return 0;
}

}  // extern "C"
