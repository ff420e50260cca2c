// TDM mode, frame modes, reframe and channel resets.
#include "framer/framer_internal.h"
#include "vq6192/sdh.h"

namespace vq::framer {
namespace {

// API frame mode 0..3 to the egress field; mode 2 has no fixed egress value (the reframe decides).
constexpr uint32_t kEgressField[] = {0, 1, 0xFF, 2};
// Egress field 0..3 read back as a frame mode.
constexpr uint32_t kEgressMode[] = {0, 1, 3, 4};
constexpr uint32_t kModeMultiframe = 2;

}  // namespace

uint32_t paraErr(uint32_t chip) {
    VQ6192_Printf(chip, VQ6192_MODULE_FRM, VQ6192_PRINT_PARA_WRONG, "ParaErr.\r\n");
    return status(chip, kErrPara);
}

bool regChannel(uint32_t chip, uint32_t e1, uint32_t *v, uint32_t *k, uint32_t *r) {
    return VQ6192_SDH_InterE1Chno2RegChno(chip, e1, v, k, r) == 0;
}

void writeIngressReset(uint32_t chip, uint32_t v, uint32_t k, uint32_t r, uint32_t reset) {
    VQ6192_WriteRegField(chip, ingressBlock(v, k, r) + kIngMode, reset, kIngResetBit, 1);
}

void writeEgressReset(uint32_t chip, uint32_t v, uint32_t k, uint32_t r, uint32_t reset) {
    VQ6192_WriteRegField(chip, egressBlock(v, k, r) + kEgMode, reset, kEgResetBit, 1);
}

uint32_t tdmMode(uint32_t chip) {
    return VQ6192_ReadRegField(chip, kTdmModeReg, kTdmE1T1Bit, 1);
}

namespace {

void writeResets(uint32_t chip, uint32_t v, uint32_t k, uint32_t r, uint32_t dir, uint32_t reset) {
    if (dir == VQ6192_BASE_SRV_DIRECT_INGRESS || dir == VQ6192_BASE_SRV_DIRECT_BOTH) {
        writeIngressReset(chip, v, k, r, reset);
    }
    if (dir == VQ6192_BASE_SRV_DIRECT_EGRESS || dir == VQ6192_BASE_SRV_DIRECT_BOTH) {
        writeEgressReset(chip, v, k, r, reset);
    }
}

}  // namespace
}  // namespace vq::framer

using namespace vq::framer;

extern "C" {

VQ6192_API uint32_t VQ6192_Framer_SetFrmTDMMode(uint32_t chip, uint32_t tdmMode) {
    if (!vq::validChip(chip) || tdmMode > VQ6192_BASE_TDM_T1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kTdmModeReg, tdmMode, kTdmE1T1Bit, 1);
    VQ6192_WriteRegField(chip, kTdmModeReg, tdmMode, kTdmE3Ds3Bit, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetFrmTDMMode(uint32_t chip, uint32_t *mode) {
    if (!vq::validChip(chip) || mode == nullptr) {
        return paraErr(chip);
    }
    *mode = vq::framer::tdmMode(chip);
    return 0;
}

VQ6192_API uint16_t VQ6192_Framer_CalcTug12ToTu12Chnl(uint32_t /*chip*/, uint32_t tug2, uint32_t tu) {
    return static_cast<uint16_t>(tug2 + 7 * tu);
}

VQ6192_API uint32_t VQ6192_Framer_RvCaclMapChnl(uint32_t chip, uint32_t e1, uint8_t *ignored, uint16_t *vc4,
                                                uint16_t *tug3, uint16_t *tug2, uint16_t *tu) {
    if (!vq::validChip(chip) || ignored == nullptr || vc4 == nullptr || tug3 == nullptr || tug2 == nullptr ||
        tu == nullptr) {
        return paraErr(chip);
    }
    uint32_t v = 0, k = 0, l = 0, m = 0;
    if (VQ6192_SDH_InterE1Chno2Standardno(chip, e1, &v, &k, &l, &m) != 0) {
        return status(chip, kErrSubOp);
    }
    *vc4 = static_cast<uint16_t>(v);
    *tug3 = static_cast<uint16_t>(k);
    *tug2 = static_cast<uint16_t>(l);
    *tu = static_cast<uint16_t>(m);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_ReFrmFrame(uint32_t chip, uint32_t e1) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM) {
        return paraErr(chip);
    }
    uint8_t unused = 0;
    uint16_t v = 0, k = 0, l = 0, m = 0;
    if (VQ6192_Framer_RvCaclMapChnl(chip, e1, &unused, &v, &k, &l, &m) != 0) {
        return status(chip, kErrSubOp);
    }
    const uint32_t addr = ingressBlock(v, k, VQ6192_Framer_CalcTug12ToTu12Chnl(chip, l, m)) + kIngMode;
    VQ6192_WriteRegField(chip, addr, 0, kIngReframeBit, 1);
    VQ6192_WriteRegField(chip, addr, 1, kIngReframeBit, 1);
    VQ6192_ReadRegField(chip, addr, kIngReframeBit, 1);
    VQ6192_WriteRegField(chip, addr, 0, kIngReframeBit, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetFrmMode(uint32_t chip, uint32_t e1, uint32_t dir, uint32_t frmMode) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || dir > VQ6192_BASE_SRV_DIRECT_BOTH || frmMode > 3) {
        return paraErr(chip);
    }
    uint32_t v = 0, k = 0, r = 0;
    if (!regChannel(chip, e1, &v, &k, &r)) {
        return status(chip, kErrSubOp);
    }
    // Mode 2 (multiframe search) exists only for E1. The refusal carries no chip bits.
    if (frmMode == kModeMultiframe && vq::framer::tdmMode(chip) == VQ6192_BASE_TDM_T1) {
        VQ6192_FRM_TRACE(chip,
                         "Err. VQ6192_Framer_SetFrmMode.enTDMMode(%u) eFramerMode(%u)       ErrCode[%#x]\r\n",
                         VQ6192_BASE_TDM_T1, frmMode, 0xE0001u);
        return 0xE0001u;
    }
    const uint32_t ingress = ingressBlock(v, k, r) + kIngMode;
    const uint32_t egress = egressBlock(v, k, r) + kEgMode;
    if (dir == VQ6192_BASE_SRV_DIRECT_EGRESS) {
        if (frmMode == kModeMultiframe) {
            return paraErr(chip);
        }
        VQ6192_WriteRegField(chip, egress, kEgressField[frmMode], 0, 2);
        return 0;
    }
    VQ6192_WriteRegField(chip, ingress, frmMode, 0, 2);
    if (frmMode != kModeMultiframe) {
        if (dir == VQ6192_BASE_SRV_DIRECT_BOTH) {
            VQ6192_WriteRegField(chip, egress, kEgressField[frmMode], 0, 2);
        }
        return 0;
    }
    // Multiframe search: reframe, then the transmit side follows what the receive side found, for
    // ingress alone as well as for both directions.
    if (VQ6192_Framer_ReFrmFrame(chip, e1) != 0) {
        return status(chip, kErrSubOp);
    }
    const uint32_t mfoof = VQ6192_ReadRegField(chip, ingressBlock(v, k, r) + kIngAlarm, kIngMfoofBit, 1);
    VQ6192_WriteRegField(chip, egress, mfoof != 0 ? 1 : 0, 0, 2);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetFrmMode(uint32_t chip, uint32_t e1, uint32_t dir, uint32_t *frmMode) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || dir > VQ6192_BASE_SRV_DIRECT_BOTH ||
        frmMode == nullptr) {
        return paraErr(chip);
    }
    uint32_t v = 0, k = 0, r = 0;
    if (!regChannel(chip, e1, &v, &k, &r)) {
        return status(chip, kErrSubOp);
    }
    const uint32_t ingress = VQ6192_ReadRegField(chip, ingressBlock(v, k, r) + kIngMode, 0, 2);
    if (dir == VQ6192_BASE_SRV_DIRECT_INGRESS) {
        *frmMode = ingress;
        return 0;
    }
    const uint32_t egress = kEgressMode[VQ6192_ReadRegField(chip, egressBlock(v, k, r) + kEgMode, 0, 2)];
    if (dir == VQ6192_BASE_SRV_DIRECT_BOTH && egress != ingress) {
        VQ6192_FRM_TRACE(chip,
                         "Err. VQ6192_Framer_GetFrmMode(%u) ucFramerDirect == VQ6192_BASE_SRV_DIRECT_BOTH && "
                         "usEgFrmMode != usIngFrmMode     ErrCode[%#x]\r\n",
                         e1, 0xE0007u);
        return 0xE0007u;
    }
    *frmMode = egress;
    return 0;
}

// A direction of 3 or more resets nothing and succeeds.
VQ6192_API uint32_t VQ6192_Framer_ReSetFrmChnl(uint32_t chip, uint32_t e1, uint32_t dir, uint32_t reset) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || reset > 1) {
        return paraErr(chip);
    }
    uint32_t v = 0, k = 0, r = 0;
    if (!regChannel(chip, e1, &v, &k, &r)) {
        return status(chip, kErrSubOp);
    }
    writeResets(chip, v, k, r, dir, reset);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_ReSetFrmChnlStd(uint32_t chip, uint32_t /*ignored*/, uint32_t vc4,
                                                  uint32_t tug3, uint32_t tug2, uint32_t tu, uint32_t dir,
                                                  uint32_t reset) {
    if (!vq::validChip(chip) || tu >= VQ6192_FRM_E1_NUM || reset > 1) {
        return paraErr(chip);
    }
    const uint32_t r = VQ6192_Framer_CalcTug12ToTu12Chnl(chip, tug2, tu);
    writeResets(chip, vc4, tug3, r, dir, reset);
    VQ6192_FRM_TRACE(chip, "Info. VQ6192_Framer_ReSetFrmChnlStd(%u,%u,%u,%u,%u) Chnl[%u] Reset[%u]\r\n", vc4,
                     tug3, tug2, tu, dir, r, reset);
    return 0;
}

}  // extern "C"
