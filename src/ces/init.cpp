// CES module initialisation: every channel's packet and jitter-buffer defaults by kind, drop enables of
// the E1/T1 channels, the VC-4 justification threshold and the clock-recovery domains.
#include "ces/ces_internal.h"

namespace vq::ces {
namespace {

constexpr char kInit[] = "VQ6192_CES_InitCesModule";

// Defaults by channel range: frames per packet, jitter-buffer depth and delay.
struct KindDefaults {
    uint32_t first, last;
    uint32_t frames, depth, delay;
    bool dropEnables;
};
// clang-format off
constexpr KindDefaults kDefaults[] = {
    //  channels    frames  depth  delay  drop enables
    {0,   335,    7,      63,    31,    true},   // E1/T1
    {336, 347,    31,     511,   255,   false},  // E3/T3
    {348, 351,    26,     2047,  1023,  false},  // VC-4
};
// clang-format on

constexpr uint32_t kVc4JstThld = 511;
constexpr uint32_t kMiscValue = 0x103;

}  // namespace
}  // namespace vq::ces

using namespace vq;
using namespace vq::ces;

extern "C" {

VQ6192_API uint32_t VQ6192_CES_InitCesModule(uint32_t chip, uint32_t mode) {
    if (!validChip(chip) || mode < 1 || mode > 2) {
        return paraErr(chip);
    }
    if (mode == 2) {
        return 0;
    }
    const VQ6192_CES_PKT_DROP_S allDrops = {1, 1, 1, 1, 1};
    for (const KindDefaults &k : kDefaults) {
        for (uint32_t ch = k.first; ch <= k.last; ++ch) {
            uint32_t rc = VQ6192_CES_SetCesFramNum(chip, ch, k.frames);
            if (rc != 0) {
                return stepFailed(chip, kInit, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesFramNum(%u,%u,%u)",
                                  chip, ch, k.frames);
            }
            if ((rc = VQ6192_CES_SetCesJtrBuf(chip, ch, k.depth, k.delay)) != 0) {
                return stepFailed(chip, kInit, VQ6192_CES_ERR_STEP, rc,
                                  "VQ6192_CES_SetCesJtrBuf(%u,%u,%u,%u)", chip, ch, k.depth, k.delay);
            }
            if (k.dropEnables && (rc = VQ6192_CES_SetCesPktDropEnable(chip, ch, &allDrops)) != 0) {
                return stepFailed(chip, kInit, VQ6192_CES_ERR_STEP, rc,
                                  "VQ6192_CES_SetCesPktDropEnable(%u,%u)", chip, ch);
            }
        }
    }
    uint32_t rc = VQ6192_CES_SetCesVc4JstThld(chip, kVc4JstThld);
    if (rc != 0) {
        return stepFailed(chip, kInit, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesVc4JstThld(%u,%u)", chip,
                          kVc4JstThld);
    }
    const VQ6192_CES_CR_MODE_S none = {VQ6192_CES_CR_NONE, 0, 0, 0};
    for (uint32_t d = 0; d < VQ6192_CES_CR_DOMAIN_NUM; ++d) {
        if ((rc = VQ6192_CES_SetCesCRMode(chip, d, &none)) != 0) {
            return stepFailed(chip, kInit, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesCRMode(%u,%u)", chip,
                              d);
        }
    }
    VQ6192_WriteReg(chip, kInitMiscReg, (VQ6192_ReadReg(chip, kInitMiscReg) & 0xFF00u) | kMiscValue);
    VQ6192_WriteRegField(chip, kInitMiscReg2, 0, 0, 9);
    return 0;
}

}  // extern "C"
