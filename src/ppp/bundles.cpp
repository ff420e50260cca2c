// Multilink bundles: membership in both directions with the library's count of egress members, the
// bundle options, the bundle reset and drain, and the reassembly timeout arithmetic.
#include "platform/osal.h"
#include "ppp/ppp_internal.h"

using namespace vq::ppp;

namespace {

constexpr uint32_t kQueueOffWaitUs = 30000;
constexpr uint32_t kResetAttempts = 1300;
constexpr uint32_t kResetWaitUs = 10000;
constexpr uint32_t kGroupAckAttempts = 20;
constexpr uint32_t kSnAckAttempts = 3;
constexpr uint32_t kHandshakeWaitUs = 10000;
constexpr uint32_t kStrobePauseUs = 5;
constexpr uint32_t kStrobeBusyLoops = 715;
constexpr uint32_t kNotMember = 0xFFFFFFFFu;

constexpr uint32_t kDelFragSize = VQ6192_MP_FRAG_128;

bool hasIngress(uint32_t dir) {
    return dir == VQ6192_BASE_SRV_DIRECT_INGRESS || dir == VQ6192_BASE_SRV_DIRECT_BOTH;
}
bool hasEgress(uint32_t dir) {
    return dir == VQ6192_BASE_SRV_DIRECT_EGRESS || dir == VQ6192_BASE_SRV_DIRECT_BOTH;
}

// clang-format off
constexpr vq::EntryField kMpWeights[] = {
    vq::entryField("Mpwgtcfg", "Mpwgt0"), vq::entryField("Mpwgtcfg", "Mpwgt1"),
    vq::entryField("Mpwgtcfg", "Mpwgt2"), vq::entryField("Mpwgtcfg", "Mpwgt3"),
    vq::entryField("Mpwgtcfg", "Mpwgt4"), vq::entryField("Mpwgtcfg", "Mpwgt5"),
    vq::entryField("Mpwgtcfg", "Mpwgt6"), vq::entryField("Mpwgtcfg", "Mpwgt7"),
};
constexpr vq::EntryField kSnCtrlEn[] = {
    vq::entryField("Snctrlcfg", "Snctrlen0"), vq::entryField("Snctrlcfg", "Snctrlen1"),
    vq::entryField("Snctrlcfg", "Snctrlen2"), vq::entryField("Snctrlcfg", "Snctrlen3"),
    vq::entryField("Snctrlcfg", "Snctrlen4"), vq::entryField("Snctrlcfg", "Snctrlen5"),
    vq::entryField("Snctrlcfg", "Snctrlen6"), vq::entryField("Snctrlcfg", "Snctrlen7"),
};
constexpr vq::EntryField kSnCtrlNum[] = {
    vq::entryField("Snctrlcfg", "Snctrlnum0"), vq::entryField("Snctrlcfg", "Snctrlnum1"),
    vq::entryField("Snctrlcfg", "Snctrlnum2"), vq::entryField("Snctrlcfg", "Snctrlnum3"),
    vq::entryField("Snctrlcfg", "Snctrlnum4"), vq::entryField("Snctrlcfg", "Snctrlnum5"),
    vq::entryField("Snctrlcfg", "Snctrlnum6"), vq::entryField("Snctrlcfg", "Snctrlnum7"),
};
// clang-format on

uint32_t *counters(uint32_t chip) {
    return g_vq6192[chip].aulMpChanCnt;
}

uint32_t queuesOff(uint32_t chip, uint32_t b) {
    return VQ6192_PPP_SetPPPQmEnable(chip, b, VQ6192_PPP_CHNTYPE_MP, 0);
}

// The reassembly reset of a bundle through the reset engine (register 0x12218).
uint32_t reassemblyReset(uint32_t chip, uint32_t b) {
    auto waitReady = [&]() {
        for (uint32_t attempt = 0; attempt < kResetAttempts; ++attempt) {
            sleepUs(kResetWaitUs);
            if (reg(chip, kResetReady) == 1) {
                return true;
            }
        }
        return false;
    };
    if (reg(chip, kResetReady) == 0 && !waitReady()) {
        return status(chip, kErrTimeout);
    }
    setReg(chip, kBundleReset, 0);
    setReg(chip, kBundleReset, b);
    if (g_vq6192[chip].ulDelayMode == 1) {
        for (volatile uint32_t i = 0; i < kStrobeBusyLoops;) {
            i = i + 1u;
        }
    } else {
        sleepUs(kStrobePauseUs);
    }
    setReg(chip, kBundleReset, b | kBundleResetStrobe);
    setReg(chip, kBundleReset, b);
    setReg(chip, kBundleReset, 0);
    if (!waitReady()) {
        return status(chip, kErrTimeout);
    }
    setReg(chip, kBundleReset, 0);
    return 0;
}

// Group reset request and acknowledge.
uint32_t groupReset(uint32_t chip, uint32_t b) {
    const vq::ppp::RegField req = bundleBit(kGroupResetReq, b);
    setReg(chip, req, 1);
    for (uint32_t attempt = 0; attempt < kGroupAckAttempts; ++attempt) {
        sleepUs(kHandshakeWaitUs);
        if (reg(chip, bundleBit(kGroupResetAck, b)) == 1) {
            setReg(chip, req, 0);
            VQ6192_WriteReg(chip, req.addr, 0);
            return 0;
        }
    }
    VQ6192_PPP_ERR(chip, "Err. VQ6192_PPP_ResetMpBundle : no group reset acknowledge, bundle:[%d]\n", b);
    return status(chip, kErrTimeout);
}

uint32_t linkOf(uint32_t chip, uint32_t ch, Entry &e) {
    return readEntry(chip, kLinkmp.table, egressInner(chip, ch), e);
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_PPP_UpDateEgMpChanCnt(uint32_t ulChipID, uint32_t ulMpChanNo, uint32_t ulOp,
                                                 uint32_t ulMpEn, uint32_t ulPppEn, uint32_t ulOldMpChanNo) {
    VQ6192_PPP_CHECK(ulChipID, ulChipID < VQ6192_CHIP_NUM);
    VQ6192_PPP_CHECK(ulChipID, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(ulChipID, ulOldMpChanNo < VQ6192_SCH_MP_MAX);
    uint32_t *cnt = counters(ulChipID);
    uint32_t &n = cnt[ulMpChanNo];
    uint32_t &m = cnt[ulOldMpChanNo];
    const bool member = ulMpEn == 1 && ulPppEn == 1;
    uint32_t rc = 0;
    if (ulOp == 0) {
        if (ulMpEn == 0 && ulPppEn == 1) {
            n++;
        } else if (member && ulOldMpChanNo != ulMpChanNo) {
            n++;
            if (m != 0) {
                m--;
            }
        }
    } else if (ulOp == 1 && member) {
        // A remove naming a bundle other than the link's own is taken as a remove from the link's own
        // bundle: that counter loses the link (and its queues go off with its last member); the named
        // bundle's counter is left alone.
        const uint32_t own = ulOldMpChanNo;
        if (cnt[own] == 0) {
            return 0;
        }
        if (cnt[own] == 1) {
            rc |= queuesOff(ulChipID, own);
            sleepUs(kQueueOffWaitUs);
            rc |= VQ6192_PPP_ResetMpBundle(ulChipID, own, 1);
        }
        cnt[own]--;
    }
    if (n == 1) {
        return rc | VQ6192_PPP_SetPPPQmEnable(ulChipID, ulMpChanNo, VQ6192_PPP_CHNTYPE_MP, 1);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_ReCoverPppLinkCntInEgMp(uint32_t chip) {
    VQ6192_PPP_CHECK_CHIP(chip);
    uint32_t rc = 0;
    for (uint32_t ch = 0; ch < VQ6192_NONE_SCH_PPP_MAX; ++ch) {
        Entry e;
        const uint32_t r = linkOf(chip, ch, e);
        rc |= r;
        if (r == 0 && vq::getField(e.w, kLinkmpen) == 1 && vq::getField(e.w, kLinkpppen) == 1) {
            counters(chip)[vq::getField(e.w, kLinkmp)]++;
        }
    }
    return rc;
}

namespace {

uint32_t checkMembership(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulMpChanNo, uint8_t ucDirect) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, ucDirect < VQ6192_BASE_SRV_DIRECT_MAX);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    return 0;
}

// The chip fields of a membership: ingress link, then egress link.
uint32_t moveFields(uint32_t chip, uint32_t ch, uint32_t b, uint32_t dir, uint32_t member) {
    uint32_t rc = 0;
    if (hasIngress(dir)) {
        rc |= setFields(chip, ingressInner(chip, ch), {{kMprxmlinktype1, member}, {kMprxmlinkmpsn, b}});
    }
    if (hasEgress(dir)) {
        if (member == 1) {
            rc |= setFields(chip, egressInner(chip, ch), {{kLinkpppen, 1}, {kLinkmpen, 1}, {kLinkmp, b}});
        } else {
            rc |= setFields(chip, egressInner(chip, ch), {{kLinkmpen, 0}, {kLinkmp, b}});
        }
    }
    return rc;
}

uint32_t countMember(uint32_t chip, uint32_t ch, uint32_t b, uint32_t op) {
    Entry e;
    const uint32_t rc = linkOf(chip, ch, e);
    if (rc != 0) {
        return rc;
    }
    return VQ6192_PPP_UpDateEgMpChanCnt(chip, b, op, vq::getField(e.w, kLinkmpen),
                                        vq::getField(e.w, kLinkpppen), vq::getField(e.w, kLinkmp));
}

}  // namespace

VQ6192_API uint32_t VQ6192_PPP_AddPppChanToMp(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulMpChanNo,
                                              uint8_t ucDirect) {
    const uint32_t check = checkMembership(chip, ulPppChanNo, ulMpChanNo, ucDirect);
    if (check != 0) {
        return check;
    }
    uint32_t rc = 0;
    if (hasEgress(ucDirect)) {
        rc |= countMember(chip, ulPppChanNo, ulMpChanNo, 0);
    }
    rc |= moveFields(chip, ulPppChanNo, ulMpChanNo, ucDirect, 1);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_AddPppChanToMp:[%d] To MP Bundle:[%d] Direct:[%d]\n", ulPppChanNo,
                     ulMpChanNo, ucDirect);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_AddPppChanToMp_Modify(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulMpChanNo,
                                                     uint8_t ucDirect) {
    const uint32_t check = checkMembership(chip, ulPppChanNo, ulMpChanNo, ucDirect);
    if (check != 0) {
        return check;
    }
    const uint32_t rc = moveFields(chip, ulPppChanNo, ulMpChanNo, ucDirect, 1);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_AddPppChanToMp:[%d] To MP Bundle:[%d] Direct:[%d]\n", ulPppChanNo,
                     ulMpChanNo, ucDirect);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_RemovePppChanFromMp(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulMpChanNo,
                                                   uint8_t ucDirect) {
    const uint32_t check = checkMembership(chip, ulPppChanNo, ulMpChanNo, ucDirect);
    if (check != 0) {
        return check;
    }
    uint32_t rc = 0;
    if (hasEgress(ucDirect)) {
        rc |= countMember(chip, ulPppChanNo, ulMpChanNo, 1);
    }
    rc |= moveFields(chip, ulPppChanNo, ulMpChanNo, ucDirect, 0);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_RemovePppChanFromMp : Remove PPP:[%d] From MP Bundle Direct:[%d]\n",
                     ulPppChanNo, ucDirect);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_RemovePppChanFromMp_Modify(uint32_t chip, uint32_t ulPppChanNo,
                                                          uint32_t ulMpChanNo, uint8_t ucDirect,
                                                          uint32_t ulReset) {
    const uint32_t check = checkMembership(chip, ulPppChanNo, ulMpChanNo, ucDirect);
    if (check != 0) {
        return check;
    }
    uint32_t rc = 0;
    if (ulReset == 1 && hasEgress(ucDirect)) {
        rc |= queuesOff(chip, ulMpChanNo);
        sleepUs(kQueueOffWaitUs);
        rc |= VQ6192_PPP_ResetMpBundle(chip, ulMpChanNo, 2);
    }
    rc |= moveFields(chip, ulPppChanNo, ulMpChanNo, ucDirect, 0);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_RemovePppChanFromMp : Remove PPP:[%d] From MP Bundle Direct:[%d]\n",
                     ulPppChanNo, ucDirect);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppChanToMp(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulMpChanRx,
                                              uint32_t *pulMpChanTx) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pulMpChanRx != NULL);
    VQ6192_PPP_CHECK(chip, pulMpChanTx != NULL);
    Entry in, out;
    // A failed read leaves the outputs as they were and still reports success.
    if (readEntry(chip, kMprxmlinkmpsn.table, ingressInner(chip, ulPppChanNo), in) != 0 ||
        linkOf(chip, ulPppChanNo, out) != 0) {
        return 0;
    }
    *pulMpChanRx = vq::getField(in.w, kMprxmlinktype1) == 1 ? vq::getField(in.w, kMprxmlinkmpsn) : kNotMember;
    *pulMpChanTx = vq::getField(out.w, kLinkmpen) == 1 ? vq::getField(out.w, kLinkmp) : kNotMember;
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetMpBundleEnable(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulEnable,
                                                 uint8_t ucDirect) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, ucDirect < 3);
    // Enables other than 0 and 1 are refused.
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    const vq::ppp::RegField bit = bundleBit(kBundleEnable, ulMpChanNo);
    uint32_t value = VQ6192_ReadReg(chip, bit.addr);
    value = (value & ~(1u << bit.startBit)) | (ulEnable << bit.startBit);
    uint32_t rc = 0;
    if (ucDirect != VQ6192_BASE_SRV_DIRECT_EGRESS) {
        VQ6192_WriteReg(chip, bit.addr, value);
    }
    if (ucDirect != VQ6192_BASE_SRV_DIRECT_INGRESS) {
        rc |= VQ6192_PPP_SetPPPQmEnable(chip, ulMpChanNo, VQ6192_PPP_CHNTYPE_MP, ulEnable);
    }
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpBundleEnable : ulMpChanNo:[%d] ulEnable:[%d] ucDirect:[%d]\n",
                     ulMpChanNo, ulEnable, ucDirect);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetMpBundleEnable(uint32_t chip, uint32_t ulMpChanNo, uint32_t *pulEnableRx,
                                                 uint32_t *pulEnableTx) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pulEnableRx != NULL);
    VQ6192_PPP_CHECK(chip, pulEnableTx != NULL);
    *pulEnableRx = reg(chip, bundleBit(kBundleEnable, ulMpChanNo));
    *pulEnableTx = 1;  // the egress side is not read back
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_ResetMpBundle(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMode) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    uint32_t rc = queuesOff(chip, ulMpChanNo);
    if (drainBundle(chip, ulMpChanNo) != 0) {
        VQ6192_PPP_ERR(chip, "Err. VQ6192_PPP_ResetMpBundle : egress queues not drained, bundle:[%d]\n",
                       ulMpChanNo);
        return status(chip, kErrTimeout);
    }
    if (ulMode >= 3) {
        return rc;
    }
    if (ulMode != 0) {
        const uint32_t r = reassemblyReset(chip, ulMpChanNo);
        if (r != 0 || ulMode == 1) {
            return rc | r;
        }
    }
    return rc | groupReset(chip, ulMpChanNo);
}

VQ6192_API uint32_t VQ6192_PPP_DelMpBundle(uint32_t chip, uint32_t ulMpChanNo) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    const vq::ppp::RegField bit = bundleBit(kBundleEnable, ulMpChanNo);
    const uint32_t enables = VQ6192_ReadReg(chip, bit.addr) & ~(1u << bit.startBit);
    uint32_t rc = queuesOff(chip, ulMpChanNo);
    VQ6192_WriteReg(chip, bit.addr, enables);
    rc |= VQ6192_PPP_ResetMpBundle(chip, ulMpChanNo, 0);
    rc |= VQ6192_PPP_SetMpRxWaterMark(chip, ulMpChanNo, 1, 0);
    VQ6192_MP_TX_WATERMARK_S wm{3, 3, 3, 3, 3, 3, 3, 3, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2, 1, 2};
    rc |= VQ6192_PPP_SetMpTxWaterMark(chip, ulMpChanNo, &wm);
    rc |= setFields(chip, ulMpChanNo,
                    {{kMpWeights[0], 0},
                     {kMpWeights[1], 0},
                     {kMpWeights[2], 0},
                     {kMpWeights[3], 0},
                     {kMpWeights[4], 0},
                     {kMpWeights[5], 0},
                     {kMpWeights[6], 0},
                     {kMpWeights[7], 0}});
    rc |= VQ6192_PPP_SetMpFragSize(chip, ulMpChanNo, kDelFragSize);
    rc |= VQ6192_PPP_SetMpPFCEnable(chip, ulMpChanNo, 0);
    for (uint32_t k = 0; k < VQ6192_MAX_MC_QUE_NUM; ++k) {
        rc |= VQ6192_PPP_SetMpSnCtrl(chip, ulMpChanNo, 0, 0, k);
    }
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_DelMpBundle : ulMpChanNo:[%d] Return:[0x%x]\n", ulMpChanNo, rc);
    return reportSteps(chip, "VQ6192_PPP_DelMpBundle", rc);
}

VQ6192_API uint32_t VQ6192_PPP_MpClearEgressBuff(uint32_t chip, uint32_t ulMpChanNo) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    const uint32_t rc = queuesOff(chip, ulMpChanNo);
    return rc | drainBundle(chip, ulMpChanNo);
}

VQ6192_API uint32_t VQ6192_PPP_SetMpFragSize(uint32_t chip, uint32_t ulMpChanNo, uint32_t enFragSize) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, enFragSize < VQ6192_MP_FRAG_SIZE_BUTT);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpFragSize : ulMpChanNo:[%d] enFragSize:[%d]\n", ulMpChanNo,
                     enFragSize);
    return setField(chip, ulMpChanNo, kMpgran, enFragSize);
}

VQ6192_API uint32_t VQ6192_PPP_GetMpFragSize(uint32_t chip, uint32_t ulMpChanNo, uint32_t *penFragSize) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, penFragSize != NULL);
    return getField(chip, ulMpChanNo, kMpgran, penFragSize);
}

VQ6192_API uint32_t VQ6192_PPP_SetMpTimeout(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulTimeout) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, ulTimeout < VQ6192_MAX_MP_RGRP_TIMEOUT);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpTimeout : ulMpChanNo:[%d] ulTimeout:[%d]\n", ulMpChanNo,
                     ulTimeout);
    return setField(chip, ulMpChanNo, kMprgrptmrthld, ulTimeout);
}

VQ6192_API uint32_t VQ6192_PPP_GetMpTimeout(uint32_t chip, uint32_t ulMpChanNo, uint32_t *pulTimeout) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pulTimeout != NULL);
    return getField(chip, ulMpChanNo, kMprgrptmrthld, pulTimeout);
}

VQ6192_API uint32_t VQ6192_PPP_CalcMpTimeOutValue(uint32_t chip, uint32_t ulMpChanNo, uint16_t usTsNum,
                                                  uint32_t *pulTimeOutVal) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pulTimeOutVal != NULL);
    uint32_t up = 0, down = 0;
    const uint32_t rc = VQ6192_PPP_GetMpSnFormat(chip, ulMpChanNo, &up, &down);
    if (rc != 0) {
        return rc;
    }
    // Long sequence numbers reorder over a longer window than short ones.
    const uint32_t base = up == VQ6192_MP_SN_LONG ? 50 : 10;
    *pulTimeOutVal = usTsNum == 0 ? base : base + 1 + 125 / usTsNum;
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetMpMrru(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMRRU) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, ulMRRU < VQ6192_MAX_MP_MRRU);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpMrru : ulMpChanNo:[%d] ulMRRU:[%d]\n", ulMpChanNo, ulMRRU);
    return setField(chip, ulMpChanNo, kMprpmrru, ulMRRU);
}

VQ6192_API uint32_t VQ6192_PPP_GetMpMrru(uint32_t chip, uint32_t ulMpChanNo, uint32_t *pulMRRU) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pulMRRU != NULL);
    return getField(chip, ulMpChanNo, kMprpmrru, pulMRRU);
}

VQ6192_API uint32_t VQ6192_PPP_GetMpSnFormat(uint32_t chip, uint32_t ulMpChanNo, uint32_t *penSnFormatUp,
                                             uint32_t *penSnFormatDown) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, penSnFormatUp != NULL);
    VQ6192_PPP_CHECK(chip, penSnFormatDown != NULL);
    *penSnFormatUp = reg(chip, bundleBit(kIngressSnFormat, ulMpChanNo));
    return getField(chip, ulMpChanNo, kMpsntype, penSnFormatDown);
}

VQ6192_API uint32_t VQ6192_PPP_SetMpSnFormat(uint32_t chip, uint32_t ulMpChanNo, uint32_t enSnFormatUp,
                                             uint32_t enSnFormatDown) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, enSnFormatUp < VQ6192_MP_SN_BUTT);
    VQ6192_PPP_CHECK(chip, enSnFormatDown < VQ6192_MP_SN_BUTT);
    uint32_t up = 0, down = 0;
    if (VQ6192_PPP_GetMpSnFormat(chip, ulMpChanNo, &up, &down) != 0) {
        up = down = VQ6192_MP_SN_BUTT;  // unknown: differs from any valid format
    }
    uint32_t rc = 0;
    if (down != enSnFormatDown) {
        rc |= setField(chip, ulMpChanNo, kMpsntype, enSnFormatDown);
    }
    if (up == enSnFormatUp) {
        return rc;
    }
    // The ingress format changes only while the group is held in reset.
    const vq::ppp::RegField req = bundleBit(kGroupResetReq, ulMpChanNo);
    setReg(chip, req, 1);
    for (uint32_t attempt = 0; attempt < kSnAckAttempts; ++attempt) {
        if (reg(chip, bundleBit(kGroupResetAck, ulMpChanNo)) == 1) {
            setReg(chip, bundleBit(kIngressSnFormat, ulMpChanNo), enSnFormatUp);
            setReg(chip, req, 0);
            VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpSnFormat : ulMpChanNo:[%d] Up:[%d] Down:[%d]\n",
                             ulMpChanNo, enSnFormatUp, enSnFormatDown);
            return rc;
        }
        sleepUs(kHandshakeWaitUs);
    }
    VQ6192_PPP_ERR(chip, "Err. VQ6192_PPP_SetMpSnFormat : no group reset acknowledge, bundle:[%d]\n",
                   ulMpChanNo);
    return rc | status(chip, kErrTimeout);
}

VQ6192_API uint32_t VQ6192_PPP_SetMpPFCEnable(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpPFCEnable : ulMpChanNo:[%d] ulEnable:[%d]\n", ulMpChanNo,
                     ulEnable);
    return setField(chip, ulMpChanNo, kMppfc, ulEnable);
}

VQ6192_API uint32_t VQ6192_PPP_GetMpPFCEnable(uint32_t chip, uint32_t ulMpChanNo, uint32_t *pulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pulEnable != NULL);
    return getField(chip, ulMpChanNo, kMppfc, pulEnable);
}

VQ6192_API uint32_t VQ6192_PPP_SetMpACFCEnable(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpACFCEnable : ulMpChanNo:[%d] ulEnable:[%d]\n", ulMpChanNo,
                     ulEnable);
    return setField(chip, ulMpChanNo, kMpacfc, ulEnable);
}

VQ6192_API uint32_t VQ6192_PPP_GetMpACFCEnable(uint32_t chip, uint32_t ulMpChanNo, uint32_t *pulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pulEnable != NULL);
    return getField(chip, ulMpChanNo, kMpacfc, pulEnable);
}

VQ6192_API uint32_t VQ6192_PPP_SetMpSnCtrl(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulEnable,
                                           uint32_t ulMpCtrlNum, uint32_t ulMcNum) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    VQ6192_PPP_CHECK(chip, ulMpCtrlNum < VQ6192_MAX_MP_CTRL_NUM);
    VQ6192_PPP_CHECK(chip, ulMcNum < VQ6192_MAX_MC_QUE_NUM);
    VQ6192_PPP_TRACE(chip,
                     "VQ6192_PPP_SetMpSnCtrl : ulMpChanNo:[%d] ulEnable:[%d] ulMpCtrlNum:[%d] ulMcNum:[%d]\n",
                     ulMpChanNo, ulEnable, ulMpCtrlNum, ulMcNum);
    return setFields(chip, ulMpChanNo, {{kSnCtrlEn[ulMcNum], ulEnable}, {kSnCtrlNum[ulMcNum], ulMpCtrlNum}});
}

VQ6192_API uint32_t VQ6192_PPP_GetMpSnCtrl(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMcNum,
                                           uint32_t *pulEnable, uint32_t *pulMpCtrlNum) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, ulMcNum < VQ6192_MAX_MC_QUE_NUM);
    VQ6192_PPP_CHECK(chip, pulEnable != NULL);
    VQ6192_PPP_CHECK(chip, pulMpCtrlNum != NULL);
    Entry e;
    const uint32_t rc = readEntry(chip, kSnCtrlEn[0].table, ulMpChanNo, e);
    *pulEnable = vq::getField(e.w, kSnCtrlEn[ulMcNum]);
    *pulMpCtrlNum = vq::getField(e.w, kSnCtrlNum[ulMcNum]);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_SetMpMaxFragNum(uint32_t chip, uint32_t ulMaxFragNum) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMaxFragNum < VQ6192_MAX_MP_FRAG_NUM);
    setReg(chip, kMaxFragNum, ulMaxFragNum);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpMaxFragNum : ulMaxFragNum:[%d]\n", ulMaxFragNum);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetMpMaxFragNum(uint32_t chip, uint32_t *pulMaxFragNum) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pulMaxFragNum != NULL);
    *pulMaxFragNum = reg(chip, kMaxFragNum);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetMpQueWeight(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMcQueNo,
                                              uint32_t ulQueWeight) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, ulMcQueNo < VQ6192_MAX_MC_QUE_NUM);
    VQ6192_PPP_CHECK(chip, ulQueWeight < VQ6192_MAX_MP_QUE_WEIGHT);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpQueWeight : ulMpChanNo:[%d] ulMcQueNo:[%d] ulQueWeight:[%d]\n",
                     ulMpChanNo, ulMcQueNo, ulQueWeight);
    return setField(chip, ulMpChanNo, kMpWeights[ulMcQueNo], ulQueWeight);
}

VQ6192_API uint32_t VQ6192_PPP_GetMpQueWeight(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMcQueNo,
                                              uint32_t *pulQueWeight) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, ulMcQueNo < VQ6192_MAX_MC_QUE_NUM);
    VQ6192_PPP_CHECK(chip, pulQueWeight != NULL);
    return getField(chip, ulMpChanNo, kMpWeights[ulMcQueNo], pulQueWeight);
}

VQ6192_API uint32_t VQ6192_PPP_SetMpRxWaterMark(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulWaterMarkH,
                                                uint32_t ulWaterMarkL) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, ulWaterMarkL < ulWaterMarkH);
    VQ6192_PPP_CHECK(chip, ulWaterMarkH < VQ6192_MAX_RXM_MP_TH);
    VQ6192_PPP_TRACE(chip,
                     "VQ6192_PPP_SetMpRxWaterMark : ulMpChanNo:[%d] ulWaterMarkH:[%d] ulWaterMarkL:[%d]\n",
                     ulMpChanNo, ulWaterMarkH, ulWaterMarkL);
    return setFields(chip, ulMpChanNo, {{kMprxmmphth, ulWaterMarkH}, {kMprxmmplth, ulWaterMarkL}});
}

VQ6192_API uint32_t VQ6192_PPP_GetMpRxWaterMark(uint32_t chip, uint32_t ulMpChanNo, uint32_t *pulWaterMarkH,
                                                uint32_t *pulWaterMarkL) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pulWaterMarkH != NULL);
    VQ6192_PPP_CHECK(chip, pulWaterMarkL != NULL);
    Entry e;
    const uint32_t rc = readEntry(chip, kMprxmmphth.table, ulMpChanNo, e);
    *pulWaterMarkH = vq::getField(e.w, kMprxmmphth);
    *pulWaterMarkL = vq::getField(e.w, kMprxmmplth);
    return rc;
}

namespace {

struct McWaterMark {
    uint32_t low, high, drop;
};

McWaterMark mcWaterMark(const VQ6192_MP_TX_WATERMARK_S &s, uint32_t q) {
    const uint32_t drops[VQ6192_MAX_MC_QUE_NUM] = {
        s.dwQue0WaterMarkDrop, s.dwQue1WaterMarkDrop, s.dwQue2WaterMarkDrop, s.dwQue3WaterMarkDrop,
        s.dwQue4WaterMarkDrop, s.dwQue5WaterMarkDrop, s.dwQue6WaterMarkDrop, s.dwQue7WaterMarkDrop};
    const uint32_t pairs[VQ6192_MAX_MC_QUE_NUM][2] = {
        {s.dwWaterMarkL, s.dwWaterMarkH},   {s.dwWaterMarkL1, s.dwWaterMarkH1},
        {s.dwWaterMarkL2, s.dwWaterMarkH2}, {s.dwWaterMarkL3, s.dwWaterMarkH3},
        {s.dwWaterMarkL4, s.dwWaterMarkH4}, {s.dwWaterMarkL5, s.dwWaterMarkH5},
        {s.dwWaterMarkL6, s.dwWaterMarkH6}, {s.dwWaterMarkL7, s.dwWaterMarkH7}};
    return {pairs[q][0], pairs[q][1], drops[q]};
}

}  // namespace

VQ6192_API uint32_t VQ6192_PPP_SetMpTxWaterMark(uint32_t chip, uint32_t ulMpChanNo,
                                                const VQ6192_MP_TX_WATERMARK_S *pstWaterMark) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pstWaterMark != NULL);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpTxWaterMark : ulMpChanNo:[%d]\n", ulMpChanNo);
    Entry entries[VQ6192_MAX_MC_QUE_NUM];
    uint32_t rc = 0;
    for (uint32_t q = 0; q < VQ6192_MAX_MC_QUE_NUM; ++q) {
        rc |= readEntry(chip, kMcCgtth.table, VQ6192_MAX_MC_QUE_NUM * ulMpChanNo + q, entries[q]);
    }
    const bool readOk = rc == 0;
    for (uint32_t q = 0; q < VQ6192_MAX_MC_QUE_NUM; ++q) {
        if (readOk) {
            const McWaterMark wm = mcWaterMark(*pstWaterMark, q);
            vq::setField(entries[q].w, kMcUncgtth, wm.low);
            vq::setField(entries[q].w, kMcCgtth, wm.high);
            vq::setField(entries[q].w, kMcDisth, wm.drop);
        }
        rc |= writeEntry(chip, kMcCgtth.table, VQ6192_MAX_MC_QUE_NUM * ulMpChanNo + q, entries[q]);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetMpTxWaterMark(uint32_t chip, uint32_t ulMpChanNo,
                                                VQ6192_MP_TX_WATERMARK_S *pstWaterMark) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pstWaterMark != NULL);
    uint32_t rc = 0;
    uint32_t low[VQ6192_MAX_MC_QUE_NUM], high[VQ6192_MAX_MC_QUE_NUM], drop[VQ6192_MAX_MC_QUE_NUM];
    for (uint32_t q = 0; q < VQ6192_MAX_MC_QUE_NUM; ++q) {
        Entry e;
        rc |= readEntry(chip, kMcCgtth.table, VQ6192_MAX_MC_QUE_NUM * ulMpChanNo + q, e);
        low[q] = vq::getField(e.w, kMcUncgtth);
        high[q] = vq::getField(e.w, kMcCgtth);
        drop[q] = vq::getField(e.w, kMcDisth);
    }
    VQ6192_MP_TX_WATERMARK_S &s = *pstWaterMark;
    s = {drop[7], drop[6], drop[5], drop[4], drop[3], drop[2], drop[1], drop[0],
         low[0],  high[0], low[1],  high[1], low[2],  high[2], low[3],  high[3],
         low[4],  high[4], low[5],  high[5], low[6],  high[6], low[7],  high[7]};
    return rc;
}

}  // extern "C"
