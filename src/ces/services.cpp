// CES pseudowire services: a channel with its packet, RTP and jitter-buffer settings bound to its
// packet-network header, PW label and in-label in one call, and removed again. Steps stop at the first
// failure and keep what the earlier ones did.
#include "ces/ces_internal.h"
#include "vq6192/eth.h"

namespace vq::ces {
namespace {

constexpr char kCreate[] = "VQ6192_CES_CreateCesPwSrv";
constexpr char kDelete[] = "VQ6192_CES_DelCesPwSrv";
constexpr uint32_t kEncpMplsUnicast = 1;
constexpr uint32_t kEncpRemove = 0;
constexpr uint32_t kVlanLabelAtmCes = 1;
constexpr uint32_t kLabelMax = 0xFFFFF;
constexpr uint32_t kVlanBound = 4096;
constexpr uint32_t kCosBound = 8;

// The fields a service descriptor shares in both forms.
struct Service {
    uint32_t ch;
    uint32_t tsCompress;
    uint16_t jbDepth, jbDelay;
    uint8_t idle, frames, empty;
    VQ6192_CES_RTP_CFG_S rtp;
    uint32_t vlan, pwLabel, inLabel;
    uint8_t cos, ttl;
};

template <typename D>
Service serviceOf(const D &d) {
    return {d.ulCesChanNo, d.ulTsCompress, d.usJbDepth, d.usJbDelay, d.ucIdleCode, d.ucFramNum, d.ucEmptyCode,
            d.stRtpCfg,    d.ulVlanId,     d.ulPwLabel, d.ulInLabel, d.ucPwCos,    d.ucPwTtl};
}

// Every bound of the steps, checked before the first one runs so that a refusal touches nothing.
bool validService(const Service &s, uint8_t mode) {
    const VQ6192_CES_RTP_CFG_S &r = s.rtp;
    return isE1Chan(s.ch) && mode <= 1 && s.frames < 64 && s.jbDepth < kJbMax && s.jbDelay < kJbMax &&
           r.dwRtpEnable <= 1 && r.dwRtpCwSeq <= 1 && r.dwPayloadType < 128 && r.dwTxSnGenmode < 4 &&
           s.vlan < kVlanBound && s.pwLabel <= kLabelMax && s.inLabel <= kLabelMax && s.cos < kCosBound;
}

// Steps 2..10 of a service: packet settings, then the packet-network side.
uint32_t configure(uint32_t chip, const Service &s, const uint32_t *dah, const uint32_t *dal) {
    const uint32_t ch = s.ch;
    uint32_t rc = 0;
    if ((rc = VQ6192_CES_SetCesFramNum(chip, ch, s.frames)) != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesFramNum(%u,%u,%u)", chip,
                          ch, s.frames);
    }
    if ((rc = VQ6192_CES_SetCesIdleCode(chip, ch, s.idle)) != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesIdleCode(%u,%u,%u)", chip,
                          ch, s.idle);
    }
    if ((rc = VQ6192_CES_SetCesJtrBuf(chip, ch, s.jbDepth, s.jbDelay)) != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesJtrBuf(%u,%u,%u,%u)",
                          chip, ch, s.jbDepth, s.jbDelay);
    }
    if ((rc = VQ6192_CES_SetCesTSCompress(chip, ch, s.tsCompress, VQ6192_BASE_SRV_DIRECT_BOTH)) != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesTSCompress(%u,%u,%#x,%u)",
                          chip, ch, s.tsCompress, 2u);
    }
    if ((rc = VQ6192_CES_SetCesRTPConfig(chip, ch, &s.rtp, VQ6192_BASE_SRV_DIRECT_BOTH)) != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesRTPConfig(%u,%u,%u)",
                          chip, ch, 2u);
    }
    if ((rc = VQ6192_CES_SetCesEmptyCode(chip, s.empty)) != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_SetCesEmptyCode(%u,%u)", chip,
                          s.empty);
    }
    rc = VQ6192_ETH_SetAtmCesPMUEncpLbl(chip, ch, VQ6192_ETH_SRV_CES, kEncpMplsUnicast, s.pwLabel, s.inLabel);
    if (rc != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc,
                          "VQ6192_ETH_SetAtmCesPMUEncpLbl(%u,%u,%u,%u,%#x,%#x)", chip, ch, 3u,
                          kEncpMplsUnicast, s.pwLabel, s.inLabel);
    }
    VQ6192_ETH_PSN_INFO_S mask = {}, info = {};
    mask.dwLblVlanId = mask.dwLblPwCos = mask.dwLblPwTtl = 1;
    info.dwLblVlanId = s.vlan;
    info.dwLblPwCos = s.cos;
    info.dwLblPwTtl = s.ttl;
    if (dah != nullptr) {
        mask.dwLblEthDah = mask.dwLblEthDal = 1;
        info.dwLblEthDah = *dah;
        info.dwLblEthDal = *dal;
    }
    if ((rc = VQ6192_ETH_ModifyPSNEthInfo(chip, ch, VQ6192_ETH_SRV_CES, &mask, &info)) != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc, "VQ6192_ETH_ModifyPSNEthInfo(%u,%u,%u)",
                          chip, ch, 3u);
    }
    if ((rc = VQ6192_ETH_SetEgVlanID2Chnl(chip, s.vlan, kVlanLabelAtmCes, 0)) != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc, "VQ6192_ETH_SetEgVlanID2Chnl(%u,%u,%u,%u)",
                          chip, s.vlan, kVlanLabelAtmCes, 0u);
    }
    return 0;
}

// The received label mapped to the channel (0 when none) is what the header removal clears.
uint32_t unbind(uint32_t chip, uint32_t ch, uint32_t inLabel) {
    const uint32_t rc = VQ6192_ETH_SetAtmCesPMUEncpLbl(chip, ch, VQ6192_ETH_SRV_CES, kEncpRemove, 0, inLabel);
    if (rc != 0) {
        return stepFailed(chip, kDelete, VQ6192_CES_ERR_STEP, rc,
                          "VQ6192_ETH_SetAtmCesPMUEncpLbl(%u,%u,%u,%u,0,%#x)", chip, ch, 3u, kEncpRemove,
                          inLabel);
    }
    return 0;
}

uint32_t inLabelOf(uint32_t chip, uint32_t ch, uint32_t &inLabel) {
    uint32_t sel = 0, found = 0;
    const uint32_t rc = VQ6192_ETH_GetAtmCesEgMpls2Chnl(chip, ch, VQ6192_ETH_SRV_CES, &inLabel, &sel, &found);
    if (rc != 0) {
        return stepFailed(chip, kDelete, VQ6192_CES_ERR_STEP, rc, "VQ6192_ETH_GetAtmCesEgMpls2Chnl(%u,%u,%u)",
                          chip, ch, 3u);
    }
    return 0;
}

}  // namespace
}  // namespace vq::ces

using namespace vq;
using namespace vq::ces;

extern "C" {

VQ6192_API uint32_t VQ6192_CES_CreateCesPwSrv(uint32_t chip, const VQ6192_CES_PW_S *pw) {
    if (!validChip(chip) || pw == nullptr || pw->ulPhyPort >= VQ6192_CES_E1_CHAN_NUM ||
        !validService(serviceOf(*pw), pw->ucMode)) {
        return paraErr(chip);
    }
    const VQ6192_CES_CHAN_S chan = {pw->ulPhyPort, pw->ulCesChanNo, pw->ulTsMap, pw->ucMode};
    uint32_t rc = VQ6192_CES_CreateCesChan(chip, &chan);
    if (rc != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_CreateCesChan(%u,%u,%u,%#x,%u)",
                          chip, chan.ulPhyPort, chan.ulCesChanNo, chan.ulTsMap, chan.ucMode);
    }
    if ((rc = configure(chip, serviceOf(*pw), nullptr, nullptr)) != 0) {
        return rc;
    }
    return VQ6192_CES_SetCesChanEnable(chip, pw->ulCesChanNo, 1);
}

VQ6192_API uint32_t VQ6192_CES_CreateCesPwSrvNoTS(uint32_t chip, const VQ6192_CES_PW_NOTS_S *pw) {
    if (!validChip(chip) || pw == nullptr || pw->ulChanEn > 1 || !validService(serviceOf(*pw), pw->ucMode)) {
        return paraErr(chip);
    }
    const VQ6192_CES_CHAN_NOTS_S chan = {pw->ulCesChanNo, pw->ulTsMap, pw->ulChanEn, pw->ucMode};
    uint32_t rc = VQ6192_CES_CreateCesChanNoTS(chip, &chan);
    if (rc != 0) {
        return stepFailed(chip, kCreate, VQ6192_CES_ERR_STEP, rc,
                          "VQ6192_CES_CreateCesChanNoTS(%u,%u,%#x,%u)", chip, chan.ulCesChanNo, chan.ulTsMap,
                          chan.ucMode);
    }
    if ((rc = configure(chip, serviceOf(*pw), &pw->ulEthDah, &pw->ulEthDal)) != 0) {
        return rc;
    }
    VQ6192_CES_SetCesChanEnable(chip, pw->ulCesChanNo, pw->ulChanEn);
    return VQ6192_CES_ResetCesChan(chip, pw->ulCesChanNo);
}

VQ6192_API uint32_t VQ6192_CES_DelCesPwSrv(uint32_t chip, uint32_t ch, uint32_t e1, uint32_t tsMap) {
    if (!validChip(chip) || !validChan(ch) || e1 >= VQ6192_CES_E1_CHAN_NUM) {
        return paraErr(chip);
    }
    uint32_t inLabel = 0;
    uint32_t rc = inLabelOf(chip, ch, inLabel);
    if (rc == 0 && (rc = VQ6192_CES_DelCesChan(chip, ch, e1, tsMap)) != 0) {
        return stepFailed(chip, kDelete, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_DelCesChan(%u,%u,%u,%#x)", chip,
                          ch, e1, tsMap);
    }
    return rc != 0 ? rc : unbind(chip, ch, inLabel);
}

VQ6192_API uint32_t VQ6192_CES_DelCesPwSrvNoTS(uint32_t chip, uint32_t ch) {
    if (!validChip(chip) || !validChan(ch)) {
        return paraErr(chip);
    }
    uint32_t inLabel = 0;
    uint32_t rc = inLabelOf(chip, ch, inLabel);
    if (rc == 0 && (rc = VQ6192_CES_DelCesChanNoTS(chip, ch)) != 0) {
        return stepFailed(chip, kDelete, VQ6192_CES_ERR_STEP, rc, "VQ6192_CES_DelCesChanNoTS(%u,%u)", chip,
                          ch);
    }
    return rc != 0 ? rc : unbind(chip, ch, inLabel);
}

}  // extern "C"
