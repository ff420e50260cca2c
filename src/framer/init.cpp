// Framer initialisation: every channel in frame mode 1, the map delays, the line mode, transmit
// overhead insertion in E1 mode, and the map of all twelve AU-3 slots.
#include "framer/framer_internal.h"
#include "vq6192/sdh.h"

using namespace vq::framer;

namespace {

constexpr uint32_t kInitFull = 1;
constexpr uint32_t kInitRestore = 2;

uint32_t failed(uint32_t chip) {
    return status(chip, kErrSubOp);
}

}  // namespace

extern "C" VQ6192_API uint32_t VQ6192_Framer_FrmInit(uint32_t chip, uint32_t initType, uint32_t sdhSonet) {
    if ((initType != kInitFull && initType != kInitRestore) || sdhSonet > VQ6192_SDH_MODE_SONET) {
        return paraErr(chip);
    }
    if (initType == kInitRestore) {
        return 0;
    }
    for (uint32_t e1 = 0; e1 < VQ6192_FRM_E1_NUM; ++e1) {
        const uint32_t rc = VQ6192_Framer_SetFrmMode(chip, e1, VQ6192_BASE_SRV_DIRECT_BOTH, 1);
        if (rc != 0) {
            VQ6192_FRM_TRACE(
                chip,
                "Err. VQ6192_Framer_FrmInit.VQ6192_Framer_SetFrmMode(%u,%u,%u,%u)       ErrCode[%#x]\r\n",
                chip, e1, VQ6192_BASE_SRV_DIRECT_BOTH, 1u, rc);
            return failed(chip);
        }
    }
    for (uint32_t bit = 0; bit < 4; ++bit) {
        VQ6192_WriteRegField(chip, kTsSourceReg, 0, bit, 1);
    }
    VQ6192_WriteRegField(chip, kMapDelay0Reg,
                         VQ6192_GetSupportProductFlag(chip) == 1 ? kMapDelay0Product : kMapDelay0, 0, 15);
    VQ6192_WriteRegField(chip, kInitReg22002, 0, 0, 4);
    VQ6192_WriteRegField(chip, kInitReg2A000, 1, 12, 1);

    uint32_t rc = VQ6192_SDH_SetSDHSonetMode(chip, sdhSonet);
    if (rc != 0) {
        VQ6192_FRM_TRACE(
            chip, "Err. VQ6192_Framer_FrmInit.VQ6192_SDH_SetSDHSonetMode(%u,%u)       ErrCode[%#x]\r\n", chip,
            sdhSonet, rc);
        return failed(chip);
    }
    uint32_t tdm = 0;
    rc = VQ6192_Framer_GetFrmTDMMode(chip, &tdm);
    if (rc != 0) {
        VQ6192_FRM_TRACE(chip,
                         "Err. VQ6192_Framer_FrmInit.VQ6192_Framer_GetFrmTDMMode(%u)       ErrCode[%#x]\r\n",
                         chip, rc);
        return failed(chip);
    }
    if (tdm == VQ6192_BASE_TDM_E1) {
        // Overhead and RAI insertion on, RAI select off, overhead type 2 on in insertion mode 0.
        for (uint32_t e1 = 0; e1 < VQ6192_FRM_E1_NUM; ++e1) {
            uint32_t v = 0, k = 0, r = 0;
            if (!regChannel(chip, e1, &v, &k, &r)) {
                return failed(chip);
            }
            const uint32_t w2 = egressBlock(v, k, r) + kEgOh2;
            VQ6192_WriteRegField(chip, w2, 1, kOhInsEnBit, 1);
            VQ6192_WriteRegField(chip, w2, 1, kRaiInsEnBit, 1);
            VQ6192_WriteRegField(chip, w2, 0, kRaiInsSelEnBit, 1);
            VQ6192_WriteRegField(chip, w2, 1, 2, 1);
            VQ6192_WriteRegField(chip, w2, 0, 1, 1);
        }
    }
    uint32_t mapType = 0;
    if (sdhSonet == VQ6192_SDH_MODE_SONET) {
        VQ6192_WriteRegField(chip, kMapDelay1Reg, kMapDelay1Sonet, 0, 15);
        VQ6192_WriteRegField(chip, kMapDelay0Reg, kMapDelay0Sonet, 0, 15);
        mapType =
            tdm == VQ6192_BASE_TDM_T1 ? CKD_FE_SDHSONET_MAP_DS1_VT15_STS1 : CKD_FE_SDHSONET_MAP_E1_VT3_STS1;
    } else {
        mapType = tdm == VQ6192_BASE_TDM_T1 ? CKD_FE_SDHSONET_MAP_DS1_VC11VC12TU12TUG3_AU4
                                            : CKD_FE_SDHSONET_MAP_E1_VC12TU12TUG3_AU4;
    }
    for (uint32_t i = 0; i < VQ6192_SDH_AU3_INDEX_NUM; ++i) {
        rc = VQ6192_SDH_SetSDHMap(chip, i / 3, i % 3, mapType);
        if (rc != 0) {
            VQ6192_FRM_TRACE(
                chip, "Err. VQ6192_Framer_FrmInit.VQ6192_SDH_SetSDHMap(%u,%u,%u,%u)       ErrCode[%#x]\r\n",
                chip, i / 3, i % 3, mapType, rc);
            return failed(chip);
        }
    }
    return 0;
}
