// CES channels: creation and deletion of the E1/T1, E3/T3 and VC-4 kinds and of the VC-4 section
// overhead channels, enable and reset. Multi-step operations stop at the first failing step and keep
// what the earlier steps did.
#include "ces/ces_internal.h"
#include "platform/osal.h"
#include "vq6192/framer.h"

namespace vq::ces {
namespace {

constexpr char kCreate[] = "VQ6192_CES_CreateCesChan";
constexpr char kDelete[] = "VQ6192_CES_DelCesChan";
constexpr char kCreateE3[] = "VQ6192_CES_CreateE3CesChan";
constexpr char kDeleteE3[] = "VQ6192_CES_DelE3CesChan";
constexpr char kCreateVc4[] = "VQ6192_CES_CreateVC4CesChan";
constexpr char kDeleteVc4[] = "VQ6192_CES_DelVC4CesChan";
constexpr char kSetLrm[] = "VQ6192_CES_SetCesTxLRMAlm(%u,%u,0,0,0)";
constexpr char kSetTsCompress[] = "VQ6192_CES_SetCesTSCompress(%u,%u,%#x,%u)";

// Resetting a channel polls the drain bits every 0.5 ms: four drained reads in a row, at most 4096
// reads, and at least 138 half-milliseconds (69 ms) between disable and re-enable.
constexpr uint32_t kResetPollUs = 500;
constexpr uint32_t kResetMaxReads = 4096;
constexpr uint32_t kResetDrainedReads = 4;
constexpr uint32_t kResetMinHalfMs = 138;
constexpr uint16_t kDrainedBits = 0x18;  // bits 3 and 4
constexpr uint32_t kNoTsDeleteUs = 6000;

void setCreatedBit(uint32_t chip, uint32_t ch) {
    setFlag(chip, kCreatedReg + 2 * (ch / 16), ch % 16, 0);
}

// Timeslots and compression of an E1/T1 channel: unstructured carries the whole frame (24 timeslots
// on a T1) with nothing compressed; structured carries the map and compresses the rest, except that
// timeslots 1..31 are carried as the whole frame with timeslot 0 compressed.
uint32_t chooseTimeslots(uint32_t chip, const char *op, uint32_t tsMap, uint8_t mode, uint32_t &map,
                         uint32_t &mask) {
    if (mode == 1) {
        uint32_t tdm = 0;
        const uint32_t rc = VQ6192_Framer_GetFrmTDMMode(chip, &tdm);
        if (rc != 0) {
            return stepFailed(chip, op, VQ6192_CES_ERR_STEP, rc, "VQ6192_Framer_GetFrmTDMMode(%u)", chip);
        }
        map = tdm == 1 ? kT1Ts : kAllTs;
        mask = 0;
    } else if (tsMap == kTs1To31) {
        map = kAllTs;
        mask = 1;
    } else {
        map = tsMap;
        mask = ~tsMap;
    }
    return 0;
}

uint32_t lrmAndCompression(uint32_t chip, const char *op, uint32_t ch, uint32_t mask) {
    uint32_t rc = clearLrm(chip, ch);
    if (rc != 0) {
        return stepFailed(chip, op, VQ6192_CES_ERR_STEP, rc, kSetLrm, chip, ch);
    }
    rc = VQ6192_CES_SetCesTSCompress(chip, ch, mask, VQ6192_BASE_SRV_DIRECT_BOTH);
    if (rc != 0) {
        return stepFailed(chip, op, VQ6192_CES_ERR_STEP, rc, kSetTsCompress, chip, ch, mask, 2u);
    }
    return 0;
}

// A channel back to its free settings: compression (E1/T1 channels only), idle code, frames per packet,
// RTP and jitter buffer.
struct FreeSteps {
    bool compression;
    bool idle;
};

uint32_t freeSettings(uint32_t chip, const char *op, uint32_t ch, FreeSteps steps) {
    uint32_t rc = 0;
    if (steps.compression &&
        (rc = VQ6192_CES_SetCesTSCompress(chip, ch, 0, VQ6192_BASE_SRV_DIRECT_BOTH)) != 0) {
        return stepFailed(chip, op, VQ6192_CES_ERR_STEP, rc, kSetTsCompress, chip, ch, 0u, 2u);
    }
    if (steps.idle && (rc = VQ6192_CES_SetCesIdleCode(chip, ch, kFreeIdleCode)) != 0) {
        return stepFailed(chip, op, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesIdleCode(%u,%u,%u)", chip, ch,
                          kFreeIdleCode);
    }
    if ((rc = VQ6192_CES_SetCesFramNum(chip, ch, kFreeFramNum)) != 0) {
        return stepFailed(chip, op, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesFramNum(%u,%u,%u)", chip, ch,
                          kFreeFramNum);
    }
    const VQ6192_CES_RTP_CFG_S noRtp = {};
    if ((rc = VQ6192_CES_SetCesRTPConfig(chip, ch, &noRtp, VQ6192_BASE_SRV_DIRECT_BOTH)) != 0) {
        return stepFailed(chip, op, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesRTPConfig(%u,%u,0,%u)", chip,
                          ch, 2u);
    }
    if ((rc = VQ6192_CES_SetCesJtrBuf(chip, ch, kFreeJbDepth, kFreeJbDelay)) != 0) {
        return stepFailed(chip, op, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesJtrBuf(%u,%u,%u,%u)", chip, ch,
                          kFreeJbDepth, kFreeJbDelay);
    }
    return 0;
}

// L, R, M cleared and the channel disabled: the first two steps of every delete. A failed disable is
// reported as a parameter error.
uint32_t stopChannel(uint32_t chip, const char *op, uint32_t ch) {
    uint32_t rc = clearLrm(chip, ch);
    if (rc != 0) {
        return stepFailed(chip, op, VQ6192_CES_ERR_STEP, rc, kSetLrm, chip, ch);
    }
    rc = VQ6192_CES_SetCesChanEnable(chip, ch, 0);
    if (rc != 0) {
        stepFailed(chip, op, VQ6192_ERR_PARA, rc, "VQ6192_CES_SetCesChanEnable(%u,%u,0)", chip, ch);
        return status(chip, VQ6192_ERR_PARA);
    }
    return 0;
}

bool validE1Desc(const VQ6192_CES_CHAN_S *d) {
    return d != nullptr && validChan(d->ulCesChanNo) && d->ulPhyPort < VQ6192_CES_E1_CHAN_NUM &&
           d->ucMode <= 1;
}

bool vc4Chan(uint32_t ch) {
    return ch >= VQ6192_CES_VC4_CHAN_BASE && ch < VQ6192_CES_CHAN_NUM;
}

bool e3Chan(uint32_t ch) {
    return ch >= VQ6192_CES_E3_CHAN_BASE && ch < VQ6192_CES_VC4_CHAN_BASE;
}

// The section overhead of VC-4 k on CES channel k: flag, created bit, L/R/M, no compression, enabled.
uint32_t createSoh(uint32_t chip, uint32_t k) {
    setFlag(chip, kSohReg, k, 1);
    setCreatedBit(chip, k);
    const uint32_t rc = lrmAndCompression(chip, kCreateVc4, k, 0);
    if (rc != 0) {
        return rc;
    }
    setFlag(chip, chanReg(kChanCtrlReg, k), kEnableBit, 1);
    return 0;
}

// Channel k's overhead use undone: held in reset while its settings go back to free.
uint32_t deleteSohSettings(uint32_t chip, uint32_t k) {
    uint32_t rc = clearLrm(chip, k);
    if (rc != 0) {
        return stepFailed(chip, kDeleteVc4, VQ6192_CES_ERR_STEP, rc, kSetLrm, chip, k);
    }
    VQ6192_WriteRegField(chip, chanReg(kChanCtrlReg, k), 1u << kResetBit, 0, 2);
    if ((rc = freeSettings(chip, kDeleteVc4, k, {true, true})) != 0) {
        return rc;
    }
    setFlag(chip, chanReg(kChanCtrlReg, k), kResetBit, 0);
    return 0;
}

uint32_t createVc4(uint32_t chip, const VQ6192_CES_CHAN_S *d, uint32_t sohEn, bool selectTs) {
    if (!validChip(chip) || d == nullptr || !vc4Chan(d->ulCesChanNo) || d->ulPhyPort >= 4 || d->ucMode != 1 ||
        sohEn > 1) {
        return paraErr(chip);
    }
    const uint32_t ch = d->ulCesChanNo;
    const uint32_t k = ch - VQ6192_CES_VC4_CHAN_BASE;
    uint32_t rc = 0;
    if (selectTs && (rc = VQ6192_Framer_SelectSrcVC4DisIngTs(chip, VQ6192_BASE_SRV_DIRECT_BOTH, d->ulPhyPort,
                                                             k, kSvcCes)) != 0) {
        return stepFailed(chip, kCreateVc4, VQ6192_CES_ERR_STEP, rc,
                          "VQ6192_Framer_SelectSrcVC4DisIngTs(%u,%u,%u,%u,%u)", chip, 2u, d->ulPhyPort, k,
                          kSvcCes);
    }
    if ((rc = clearLrm(chip, ch)) != 0) {
        return stepFailed(chip, kCreateVc4, VQ6192_CES_ERR_STEP, rc, kSetLrm, chip, ch);
    }
    return sohEn == 1 ? createSoh(chip, k) : 0;
}

// Deleting a VC-4 channel; disIngTs holds the channel in reset during the teardown and clears the
// VC-4's timeslot routing at the end.
uint32_t deleteVc4(uint32_t chip, uint32_t ch, uint32_t vc4, uint32_t sohTsMap, bool disIngTs) {
    if (!validChip(chip) || !vc4Chan(ch) || vc4 >= 4) {
        return paraErr(chip);
    }
    const uint32_t k = ch - VQ6192_CES_VC4_CHAN_BASE;
    if (disIngTs) {
        setFlag(chip, chanReg(kChanCtrlReg, ch), kResetBit, 1);
    }
    uint32_t rc = stopChannel(chip, kDeleteVc4, ch);
    if (rc == 0) {
        rc = freeSettings(chip, kDeleteVc4, ch, {false, false});
    }
    if (rc != 0) {
        return rc;
    }
    const bool soh = VQ6192_ReadRegField(chip, kSohReg, k, 1) != 0;
    setFlag(chip, kSohReg, k, 0);
    VQ6192_CES_ResetCesChan(chip, ch);
    if (soh) {
        if ((rc = deleteSohSettings(chip, k)) != 0) {
            return rc;
        }
        if ((rc = VQ6192_Framer_DeleteSrcE1(chip, VQ6192_BASE_SRV_DIRECT_BOTH, vc4, sohTsMap)) != 0) {
            return stepFailed(chip, kDeleteVc4, VQ6192_CES_ERR_STEP, rc,
                              "VQ6192_Framer_DeleteSrcE1(%u,%u,%u,%#x)", chip, 2u, vc4, sohTsMap);
        }
        if ((rc = VQ6192_Framer_SetTSSMode(chip, vc4, 0)) != 0) {
            return stepFailed(chip, kDeleteVc4, VQ6192_CES_ERR_STEP, rc, "VQ6192_Framer_SetTSSMode(%u,%u,0)",
                              chip, vc4);
        }
        setCreatedBit(chip, k);
    }
    if (disIngTs) {
        setFlag(chip, chanReg(kChanCtrlReg, ch), kResetBit, 0);
        if ((rc = VQ6192_Framer_DeleteSrcVC4DisIngTs(chip, VQ6192_BASE_SRV_DIRECT_BOTH, vc4)) != 0) {
            return stepFailed(chip, kDeleteVc4, VQ6192_CES_ERR_STEP, rc,
                              "VQ6192_Framer_DeleteSrcVC4DisIngTs(%u,%u,%u)", chip, 2u, vc4);
        }
    }
    return 0;
}

}  // namespace
}  // namespace vq::ces

using namespace vq;
using namespace vq::ces;

extern "C" {

VQ6192_API uint32_t VQ6192_CES_CreateCesChan(uint32_t chip, const VQ6192_CES_CHAN_S *d) {
    if (!validChip(chip) || !validE1Desc(d)) {
        return paraErr(chip);
    }
    const uint32_t ch = d->ulCesChanNo;
    setCreatedBit(chip, ch);
    uint32_t rc = VQ6192_Framer_SetTSSMode(chip, d->ulPhyPort, d->ucMode);
    if (rc != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc, "VQ6192_Framer_SetTSSMode(%u,%u,%u)", chip,
                          d->ulPhyPort, d->ucMode);
    }
    uint32_t map = 0, mask = 0;
    if ((rc = chooseTimeslots(chip, kCreate, d->ulTsMap, d->ucMode, map, mask)) != 0) {
        return rc;
    }
    rc = VQ6192_Framer_SelectSrcE1(chip, VQ6192_BASE_SRV_DIRECT_BOTH, d->ulPhyPort, ch, kSvcCes, map,
                                   kSpeed64k);
    if (rc != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc,
                          "VQ6192_Framer_SelectSrcE1(%u,%u,%u,%u,%u,%u,%u)", chip, 2u, d->ulPhyPort, ch,
                          kSvcCes, map, kSpeed64k);
    }
    return lrmAndCompression(chip, kCreate, ch, mask);
}

VQ6192_API uint32_t VQ6192_CES_CreateCesChanNoTS(uint32_t chip, const VQ6192_CES_CHAN_NOTS_S *d) {
    if (!validChip(chip) || d == nullptr || !validChan(d->ulCesChanNo) || d->ucMode > 1) {
        return paraErr(chip);
    }
    setCreatedBit(chip, d->ulCesChanNo);
    uint32_t map = 0, mask = 0;
    const uint32_t rc = chooseTimeslots(chip, kCreate, d->ulTsMap, d->ucMode, map, mask);
    return rc != 0 ? rc : lrmAndCompression(chip, kCreate, d->ulCesChanNo, mask);
}

VQ6192_API uint32_t VQ6192_CES_DelCesChan(uint32_t chip, uint32_t ch, uint32_t e1, uint32_t tsMap) {
    if (!validChip(chip) || !validChan(ch) || e1 >= VQ6192_CES_E1_CHAN_NUM) {
        return paraErr(chip);
    }
    uint32_t rc = stopChannel(chip, kDelete, ch);
    if (rc == 0) {
        rc = freeSettings(chip, kDelete, ch, {true, true});
    }
    if (rc != 0) {
        return rc;
    }
    const uint32_t map = tsMap == kTs1To31 ? kAllTs : tsMap;
    if ((rc = VQ6192_Framer_DeleteSrcE1(chip, VQ6192_BASE_SRV_DIRECT_BOTH, e1, map)) != 0) {
        return stepFailed(chip, kDelete, VQ6192_CES_ERR_STEP, rc, "VQ6192_Framer_DeleteSrcE1(%u,%u,%u,%#x)",
                          chip, 2u, e1, map);
    }
    if ((rc = VQ6192_Framer_SetTSSMode(chip, e1, 0)) != 0) {
        return stepFailed(chip, kDelete, VQ6192_CES_ERR_STEP, rc, "VQ6192_Framer_SetTSSMode(%u,%u,0)", chip,
                          e1);
    }
    setCreatedBit(chip, ch);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_DelCesChanNoTS(uint32_t chip, uint32_t ch) {
    if (!validChip(chip) || !validChan(ch)) {
        return paraErr(chip);
    }
    uint32_t rc = stopChannel(chip, kDelete, ch);
    if (rc != 0) {
        return rc;
    }
    DrvDelayUs(kNoTsDeleteUs);
    if ((rc = freeSettings(chip, kDelete, ch, {true, true})) != 0) {
        return rc;
    }
    setCreatedBit(chip, ch);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_CreateE3CesChan(uint32_t chip, const VQ6192_CES_CHAN_S *d) {
    if (!validChip(chip) || d == nullptr || !e3Chan(d->ulCesChanNo) || d->ulPhyPort >= 12 || d->ucMode != 1) {
        return paraErr(chip);
    }
    const uint32_t ch = d->ulCesChanNo;
    const uint32_t svc = ch - VQ6192_CES_E3_CHAN_BASE;
    uint32_t rc = VQ6192_Framer_SelectSrcE3(chip, VQ6192_BASE_SRV_DIRECT_BOTH, d->ulPhyPort, svc, kSvcCes);
    if (rc != 0) {
        return stepFailed(chip, kCreateE3, VQ6192_CES_ERR_STEP, rc,
                          "VQ6192_Framer_SelectSrcE3(%u,%u,%u,%u,%u)", chip, 2u, d->ulPhyPort, svc, kSvcCes);
    }
    if ((rc = clearLrm(chip, ch)) != 0) {
        return stepFailed(chip, kCreateE3, VQ6192_CES_ERR_STEP, rc, kSetLrm, chip, ch);
    }
    return 0;
}

// E3/T3 numbers up to 12 are accepted for deletion.
VQ6192_API uint32_t VQ6192_CES_DelE3CesChan(uint32_t chip, uint32_t ch, uint32_t e3) {
    if (!validChip(chip) || !e3Chan(ch) || e3 >= 13) {
        return paraErr(chip);
    }
    uint32_t rc = stopChannel(chip, kDeleteE3, ch);
    if (rc == 0) {
        rc = freeSettings(chip, kDeleteE3, ch, {false, false});
    }
    if (rc != 0) {
        return rc;
    }
    VQ6192_CES_ResetCesChan(chip, ch);
    if ((rc = VQ6192_Framer_DeleteSrcE3(chip, VQ6192_BASE_SRV_DIRECT_BOTH, e3)) != 0) {
        return stepFailed(chip, kDeleteE3, VQ6192_CES_ERR_STEP, rc, "VQ6192_Framer_DeleteSrcE3(%u,%u,%u)",
                          chip, 2u, e3);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_CreateVC4CesChan(uint32_t chip, const VQ6192_CES_CHAN_S *d, uint32_t ulSohEn) {
    return createVc4(chip, d, ulSohEn, false);
}

VQ6192_API uint32_t VQ6192_CES_CreateVC4CesChanDisIngTs(uint32_t chip, const VQ6192_CES_CHAN_S *d,
                                                        uint32_t ulSohEn) {
    return createVc4(chip, d, ulSohEn, true);
}

VQ6192_API uint32_t VQ6192_CES_DelVC4CesChan(uint32_t chip, uint32_t ch, uint32_t vc4, uint32_t sohTsMap) {
    return deleteVc4(chip, ch, vc4, sohTsMap, false);
}

VQ6192_API uint32_t VQ6192_CES_DelVC4CesChanDisIngTs(uint32_t chip, uint32_t ch, uint32_t vc4,
                                                     uint32_t sohTsMap) {
    return deleteVc4(chip, ch, vc4, sohTsMap, true);
}

VQ6192_API uint32_t VQ6192_CES_CreateVC4Soh(uint32_t chip, const VQ6192_CES_CHAN_S *d) {
    if (!validChip(chip) || d == nullptr || !vc4Chan(d->ulCesChanNo) || d->ulPhyPort >= 4 || d->ucMode > 1) {
        return paraErr(chip);
    }
    return createSoh(chip, d->ulCesChanNo - VQ6192_CES_VC4_CHAN_BASE);
}

// Choice: the overhead half of a VC-4 delete without a timeslot map: the flag is cleared and channel k
// goes back to its free settings; the timeslot tables are left alone, as the overhead create leaves them.
VQ6192_API uint32_t VQ6192_CES_DelVC4Soh(uint32_t chip, uint32_t ch, uint32_t vc4) {
    if (!validChip(chip) || !vc4Chan(ch) || vc4 >= 4) {
        return paraErr(chip);
    }
    const uint32_t k = ch - VQ6192_CES_VC4_CHAN_BASE;
    const bool soh = VQ6192_ReadRegField(chip, kSohReg, k, 1) != 0;
    setFlag(chip, kSohReg, k, 0);
    if (!soh) {
        return 0;
    }
    const uint32_t rc = deleteSohSettings(chip, k);
    if (rc == 0) {
        setCreatedBit(chip, k);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_CES_SetCesChanEnable(uint32_t chip, uint32_t ch, uint32_t en) {
    if (!validChip(chip) || !validChan(ch) || en > 1) {
        return paraErr(chip);
    }
    setFlag(chip, chanReg(kChanCtrlReg, ch), kEnableBit, en);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesChanEnable(uint32_t chip, uint32_t ch, uint32_t *en) {
    if (!validChip(chip) || !validChan(ch) || en == nullptr) {
        return paraErr(chip);
    }
    *en = VQ6192_ReadRegField(chip, chanReg(kChanCtrlReg, ch), kEnableBit, 1);
    return 0;
}

// Each poll waits 0.5 ms and then reads the drain bits. A channel that does not drain is only reported;
// the channel is re-enabled and 0 returned in both cases.
VQ6192_API uint32_t VQ6192_CES_ResetCesChan(uint32_t chip, uint32_t ch) {
    if (!validChip(chip) || !validChan(ch)) {
        return paraErr(chip);
    }
    const uint32_t ctrl = chanReg(kChanCtrlReg, ch);
    const uint32_t enabled = VQ6192_ReadRegField(chip, ctrl, kEnableBit, 1);
    if (enabled == 0) {
        return 0;
    }
    setFlag(chip, ctrl, kEnableBit, 0);
    uint32_t reads = 0;
    uint32_t drainedInRow = 0;
    while (drainedInRow < kResetDrainedReads && reads < kResetMaxReads) {
        DrvDelayUs(kResetPollUs);
        ++reads;
        const bool drained = (VQ6192_ReadReg(chip, chanReg(kDrainReg, ch)) & kDrainedBits) == kDrainedBits;
        drainedInRow = drained ? drainedInRow + 1 : 0;
    }
    if (drainedInRow == kResetDrainedReads) {
        VQ6192_Printf(chip, VQ6192_MODULE_CES, VQ6192_PRINT_NORMAL,
                      "INfo. VQ6192_CES_ResetCesChan chipID(%d) : Reset CES Channel:[%d]\r\n",
                      static_cast<int>(chip), static_cast<int>(ch));
        setFlag(chip, ctrl, kResetBit, 1);
        DrvDelayUs(kResetPollUs);
        setFlag(chip, ctrl, kResetBit, 0);
        if (reads < kResetMinHalfMs) {
            DrvDelayUs((kResetMinHalfMs - reads) * kResetPollUs);
        }
    } else {
        VQ6192_Printf(
            chip, VQ6192_MODULE_CES, VQ6192_PRINT_EXCEPTION1_INFO,
            "Err. VQ6192_CES_ResetCesChan ulChipID(%d) Reset CES Channel:[%d] Failed! Rst Over is not "
            "Over!\r\n",
            static_cast<int>(chip), static_cast<int>(ch));
    }
    setFlag(chip, ctrl, kEnableBit, enabled);
    return 0;
}

}  // extern "C"
