// Reading timeslot entries back as service channel, service type, rate and enable.
#include "framer/framer_internal.h"
#include "framer/timeslot.h"
#include "vq6192/ppp.h"

namespace {

using namespace vq::framer;
using namespace vq::framer::ts;

struct Decoded {
    uint16_t svcChnl;
    uint8_t svcType;
    uint32_t speed;
    uint8_t en;
};

// Service type of a Moduleind value: 00 CES, 01 ATM, 10 PPP, 11 none.
constexpr uint8_t kSvcOfModule[] = {kSvcCes, kSvcAtm, kSvcPpp, kSvcNone};

// E1/T1 entries: a CES channel loses its PRBS test bit and a PPP channel is converted back from its
// inner number.
Decoded decode(uint32_t chip, uint32_t entry, bool e1Entry) {
    const uint32_t module = vq::getField(&entry, kModuleind);
    uint32_t channel = vq::getField(&entry, kChnum);
    if (e1Entry && module == kModuleCes) {
        channel &= ~kCesPrbsBit;
    } else if (e1Entry && module == kModuleMlppp) {
        channel = VQ6192_PPP_ReCalcPppChnl(chip, channel, VQ6192_BASE_SRV_DIRECT_EGRESS);
    }
    return {static_cast<uint16_t>(channel), kSvcOfModule[module], vq::getField(&entry, kTsspeed),
            static_cast<uint8_t>(vq::getField(&entry, kEn))};
}

void store(const Decoded &d, uint16_t *svcChnl, uint8_t *svcType, uint32_t *speed, uint8_t *en) {
    *svcChnl = d.svcChnl;
    *svcType = d.svcType;
    *speed = d.speed;
    *en = d.en;
}

// E3/T3 and VC-4 entries: an ingress read failure is error 7, an egress one error 4.
uint32_t highOrderCfg(uint32_t chip, uint32_t dir, uint32_t source, uint16_t *svcChnl, uint8_t *svcType,
                      uint32_t *speed, uint8_t *en) {
    if (svcChnl == nullptr || svcType == nullptr || speed == nullptr || en == nullptr) {
        return paraErr(chip);
    }
    if (dir > VQ6192_BASE_SRV_DIRECT_BOTH) {
        store({0, kSvcCes, 0, 0}, svcChnl, svcType, speed, en);
        return 0;
    }
    uint32_t ingress = 0;
    uint32_t egress = 0;
    if (dir != VQ6192_BASE_SRV_DIRECT_EGRESS &&
        readEntry(chip, Kind::HighOrder, source, 0, 0, &ingress) != 0) {
        return status(chip, kErrState);
    }
    if (dir != VQ6192_BASE_SRV_DIRECT_INGRESS &&
        readEntry(chip, Kind::HighOrder, source, 0, 1, &egress) != 0) {
        return status(chip, kErrSubOp);
    }
    if (dir == VQ6192_BASE_SRV_DIRECT_BOTH && ingress != egress) {
        return status(chip, kErrState);
    }
    store(decode(chip, dir == VQ6192_BASE_SRV_DIRECT_INGRESS ? ingress : egress, false), svcChnl, svcType,
          speed, en);
    return 0;
}

}  // namespace

extern "C" {

// Timeslot numbers are not range-tested; callers pass 0..31.
VQ6192_API uint32_t VQ6192_Framer_GetTsCfg(uint32_t chip, uint32_t dir, uint32_t e1, uint32_t ts,
                                           uint16_t *svcChnl, uint8_t *svcType, uint32_t *speed,
                                           uint8_t *en) {
    if (!vq::validChip(chip) || e1 >= VQ6192_FRM_E1_NUM || svcChnl == nullptr || svcType == nullptr ||
        speed == nullptr || en == nullptr) {
        return paraErr(chip);
    }
    if (dir > VQ6192_BASE_SRV_DIRECT_BOTH) {
        store({0, kSvcCes, 0, 0}, svcChnl, svcType, speed, en);
        return 0;
    }
    uint32_t entries[2] = {};
    for (uint32_t d : {VQ6192_BASE_SRV_DIRECT_INGRESS, VQ6192_BASE_SRV_DIRECT_EGRESS}) {
        if (dir != d && dir != VQ6192_BASE_SRV_DIRECT_BOTH) {
            continue;
        }
        const uint32_t rc = readEntry(chip, Kind::E1, e1, ts, d, &entries[d]);
        if (rc != 0) {
            VQ6192_Printf(chip, VQ6192_MODULE_CES, VQ6192_PRINT_EXCEPTION1_INFO,
                          "Err. VQ6192_Framer_GetTsCfg.VQ6192_Read_Table(%u,%u,%u)       ErrCode[%#x]\r\n",
                          chip, e1, ts, rc);
            return status(chip, kErrSubOp);
        }
    }
    if (dir == VQ6192_BASE_SRV_DIRECT_BOTH && entries[0] != entries[1]) {
        VQ6192_FRM_TRACE(chip, "Err. VQ6192_Framer_GetTsCfg(%u,%u,%u).aulIngData and aulEgData not equal\n",
                         chip, e1, ts);
        return status(chip, kErrState);
    }
    store(decode(chip, entries[dir == VQ6192_BASE_SRV_DIRECT_INGRESS ? 0 : 1], true), svcChnl, svcType, speed,
          en);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetTsCfg2(VQ6192_FRM_TS_CFG_S *cfg) {
    if (cfg == nullptr) {
        return paraErr(0);
    }
    return VQ6192_Framer_GetTsCfg(cfg->ulChipId, cfg->usDir, cfg->usE1, cfg->usTs, &cfg->usSvcChnl,
                                  &cfg->ucSvcType, &cfg->ulSpeed, &cfg->ucEn);
}

VQ6192_API uint32_t VQ6192_Framer_GetE3TsCfg(uint32_t chip, uint32_t dir, uint32_t e3, uint16_t *svcChnl,
                                             uint8_t *svcType, uint32_t *speed, uint8_t *en) {
    if (!vq::validChip(chip) || e3 >= VQ6192_FRM_E3_NUM) {
        return paraErr(chip);
    }
    return highOrderCfg(chip, dir, kE3SourceBase + e3, svcChnl, svcType, speed, en);
}

VQ6192_API uint32_t VQ6192_Framer_GetVC4TsCfg(uint32_t chip, uint32_t dir, uint32_t vc4, uint16_t *svcChnl,
                                              uint8_t *svcType, uint32_t *speed, uint8_t *en) {
    if (!vq::validChip(chip) || vc4 >= 4) {
        return paraErr(chip);
    }
    return highOrderCfg(chip, dir, kVc4SourceBase + vc4, svcChnl, svcType, speed, en);
}

}  // extern "C"
