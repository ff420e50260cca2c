// PPP channel numbering: the caller's PPP channel number and the inner number at which the chip's PPP
// tables hold the channel. The VC-4 enable register is read at every call; nothing is cached.
#include "ppp/ppp_regs.h"
#include "vq6192/core.h"
#include "vq6192/ppp.h"

namespace {

uint32_t vc4Enables(uint32_t chip) {
    using namespace vq::ppp;
    return VQ6192_ReadRegField(chip, kVc4EnableReg, kVc4EnableBit, kVc4EnableWidth);
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_PPP_CalcPppChnl(uint32_t chip, uint32_t ulPppChanNo, uint32_t direction) {
    const uint32_t enables = vc4Enables(chip);
    if (ulPppChanNo < VQ6192_SCH_C4_PPP_MAX && (enables >> ulPppChanNo & 1u) != 0) {
        return ulPppChanNo * vq::ppp::kVc4InnerStride;
    }
    if (direction == VQ6192_BASE_SRV_DIRECT_EGRESS) {
        VQ6192_Printf(chip, VQ6192_MODULE_PPP, VQ6192_PRINT_NORMAL,
                      "VQ6192_PPP_CalcPppChnl bSpecialChnl TRUE!\n");
    }
    return ulPppChanNo;
}

VQ6192_API uint32_t VQ6192_PPP_ReCalcPppChnl(uint32_t chip, uint32_t inner, uint32_t direction) {
    const uint32_t enables = vc4Enables(chip);
    const uint32_t vc4 = inner / vq::ppp::kVc4InnerStride;
    // Only 0x000, 0x200, 0x400 and 0x600 can name a VC-4 channel.
    if ((inner & ~0x600u) == 0 && (enables >> vc4 & 1u) != 0) {
        return vc4;
    }
    if (direction == VQ6192_BASE_SRV_DIRECT_EGRESS) {
        VQ6192_Printf(chip, VQ6192_MODULE_PPP, VQ6192_PRINT_NORMAL,
                      "VQ6192_PPP_ReCalcPppChnl bSpecialChnl TRUE!\n");
    }
    return inner;
}

}  // extern "C"
