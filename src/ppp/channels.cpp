// PPP channels: creation on timeslots or on a VC-4, deletion, the channel reset engine, link type and
// enables, HDLC engine options, queue weights and watermarks, and the VC-4 channel controls.
#include <cstring>

#include "ppp/ppp_internal.h"
#include "vq6192/framer.h"

using namespace vq::ppp;

namespace {

constexpr uint32_t kSvcPpp = 1;
constexpr uint32_t kResetAttempts = 1300;
constexpr uint32_t kResetWaitUs = 1500;

bool hasIngress(uint32_t dir) {
    return dir == VQ6192_BASE_SRV_DIRECT_INGRESS || dir == VQ6192_BASE_SRV_DIRECT_BOTH;
}
bool hasEgress(uint32_t dir) {
    return dir == VQ6192_BASE_SRV_DIRECT_EGRESS || dir == VQ6192_BASE_SRV_DIRECT_BOTH;
}

// Opens both HDLC engines of a channel and makes it a PPP link (or a plain HDLC link).
uint32_t openChannel(uint32_t chip, uint32_t ch, uint32_t linkType) {
    uint32_t rc = setField(chip, egressInner(chip, ch), kTChcen, 0);
    rc |= setField(chip, ingressInner(chip, ch), kRChcen, 0);
    return rc | VQ6192_PPP_SetLinkToPpp(chip, ch, linkType);
}

// Delete steps 1 to 5: ingress disable, link options, both HDLC engines and self-fill CRC mode.
uint32_t closeChannel(uint32_t chip, uint32_t ch) {
    const uint32_t in = ingressInner(chip, ch);
    const uint32_t out = egressInner(chip, ch);
    uint32_t rc = setField(chip, in, kMprxmlinken, 0);
    rc |= setFields(chip, out, {{kLinkacfc, 0}, {kLinkpfc, 0}, {kLinkpppen, 0}});
    rc |= setFields(chip, in, {{kRxmtu, VQ6192_MAX_PPP_MRU}, {kRCrcmod, 0}, {kRChcen, 0}});
    rc |= setFields(chip, out, {{kTCrcfe, 0}, {kTChcen, 0}});
    return rc | setField(chip, in, kACrcmod, 0);
}

// Delete steps 7 and 8.
uint32_t releaseChannel(uint32_t chip, uint32_t ch) {
    uint32_t rc = VQ6192_PPP_SetLinkToPpp(chip, ch, 0);
    return rc | VQ6192_PPP_ResetPppChan(chip, ch);
}

// The PPU options: where each field of configuration word 0 goes. A table field at the ingress or
// egress inner number, or the CRC correction field of the channel register.
enum class Place : uint8_t { Ingress, Egress, CorrectReg };
struct PpuField {
    uint8_t cfgBit;  // lowest bit in configuration word 0
    uint8_t width;
    Place place;
    vq::EntryField field;
};

// clang-format off
constexpr PpuField kPpuFields[] = {
    {31, 1, Place::Ingress,    kRxafi},     // bRxafi
    {23, 8, Place::Ingress,    kMpv},       // bMpv
    {22, 1, Place::Egress,     kTChcen},    // bChnEn (then Rppucfg, below)
    {20, 2, Place::CorrectReg, {}},         // bCorrect
    {19, 1, Place::Egress,     kTxaifs},    // bTxaifs
    {18, 1, Place::Egress,     kTxifs},     // bTxifs
    {17, 1, Place::Egress,     kTxcfcs},    // bTxcfcs
    {13, 4, Place::Egress,     kTxfmod},    // bTxfMod
    {12, 1, Place::Egress,     kTFillmod},  // bTxFillMod
    {11, 1, Place::Ingress,    kRFillmod},  // bRxFillMod
    { 9, 2, Place::Egress,     kTCrcmod},   // bTxCrcMod
    { 7, 2, Place::Ingress,    kRCrcmod},   // bRxCrcMod
    { 6, 1, Place::Egress,     kTDie},      // bTxDie
    { 5, 1, Place::Ingress,    kRDie},      // bRxDie
    { 4, 1, Place::Egress,     kTBytefe},   // bByteFe
    { 3, 1, Place::Ingress,    kRxpldet},   // bRxPlDet
    { 2, 1, Place::Ingress,    kABytefe},   // receive byte reversal
};
// clang-format on
constexpr uint8_t kChnEnBit = 22;

uint32_t cfgWord0(const VQ6192_PPP_PPU_CFG_S *cfg) {
    uint32_t w = 0;
    std::memcpy(&w, cfg, sizeof w);
    return w;
}

uint32_t bitsOf(uint32_t word, uint32_t start, uint32_t width) {
    return (word >> start) & ((1u << width) - 1u);
}

vq::ppp::RegField correctReg(uint32_t inner) {
    return chanReg(kChanModeBase, inner, kCorrectBit, kCorrectWidth);
}

// The queue weight fields of the PPP weight entry, queue 0 first.
constexpr vq::EntryField kPppWeights[] = {
    vq::entryField("Pppwgtcfg", "Pppwgt0"), vq::entryField("Pppwgtcfg", "Pppwgt1"),
    vq::entryField("Pppwgtcfg", "Pppwgt2"), vq::entryField("Pppwgtcfg", "Pppwgt3"),
    vq::entryField("Pppwgtcfg", "Pppwgt4"), vq::entryField("Pppwgtcfg", "Pppwgt5"),
    vq::entryField("Pppwgtcfg", "Pppwgt6"), vq::entryField("Pppwgtcfg", "Pppwgt7"),
};

// Watermarks of an enabled and of a disabled VC-4 PPP channel.
constexpr VQ6192_PPP_WATERMARK_S kVc4OnWaterMark{0x3FF00, 6400, 0x3FFFF};
constexpr VQ6192_PPP_WATERMARK_S kVc4OffWaterMark{51, 25, 255};

uint32_t waitResetReady(uint32_t chip, bool sleepFirst) {
    for (uint32_t attempt = 0; attempt < kResetAttempts; ++attempt) {
        if (sleepFirst) {
            sleepUs(kResetWaitUs);
        }
        if (reg(chip, kResetReady) == 1) {
            return 0;
        }
        if (!sleepFirst) {
            sleepUs(kResetWaitUs);
        }
    }
    return status(chip, kErrTimeout);
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_PPP_CreatePppChan(uint32_t chip, const VQ6192_PPP_CHAN_S *rstPppChan) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, rstPppChan != NULL);
    VQ6192_PPP_CHECK(chip, rstPppChan->ulPhyPort < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, rstPppChan->ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, rstPppChan->ucSpeed < VQ6192_TS_SPEED_MAX);
    const uint32_t e1 = rstPppChan->ulPhyPort;
    const uint32_t ch = rstPppChan->ulPppChanNo;
    uint32_t rc = VQ6192_Framer_SetTSSMode(chip, e1, 0);
    rc |= VQ6192_Framer_SelectSrcE1(chip, VQ6192_BASE_SRV_DIRECT_EGRESS, e1, ch, kSvcPpp, rstPppChan->ulTsMap,
                                    rstPppChan->ucSpeed);
    rc |= VQ6192_Framer_SelectSrcE1(chip, VQ6192_BASE_SRV_DIRECT_INGRESS, e1, ch, kSvcPpp,
                                    rstPppChan->ulTsMap, rstPppChan->ucSpeed);
    VQ6192_PPP_TRACE(
        chip, "VQ6192_PPP_CreatePppChan : Set E1:[%d] TS:[0x%8x] To PPP:[%d] Speed:[%d] Return:[0x%x]\n", e1,
        rstPppChan->ulTsMap, ch, rstPppChan->ucSpeed, rc);
    return reportSteps(chip, "VQ6192_PPP_CreatePppChan", rc | openChannel(chip, ch, 1));
}

VQ6192_API uint32_t VQ6192_PPP_CreatePppChanNoTS(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_CreatePppChanNoTS : ulPppChanNo:[%d] ulEnable:[%d]\n", ulPppChanNo,
                     ulEnable);
    return reportSteps(chip, "VQ6192_PPP_CreatePppChanNoTS",
                       openChannel(chip, ulPppChanNo, ulEnable == 1 ? 1 : 0));
}

VQ6192_API uint32_t VQ6192_PPP_CreateVC4PppChan(uint32_t chip, const VQ6192_PPP_CHAN_S *pstPppChan) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pstPppChan != NULL);
    VQ6192_PPP_CHECK(chip, pstPppChan->ulPhyPort < VQ6192_SCH_C4_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pstPppChan->ulPppChanNo < VQ6192_SCH_C4_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pstPppChan->ucSpeed < VQ6192_TS_SPEED_MAX);
    const uint32_t ch = pstPppChan->ulPppChanNo;
    uint16_t usVc4Enable = 0;
    uint32_t rc = VQ6192_PPP_GetMpVc4En(chip, ch, &usVc4Enable);
    VQ6192_PPP_CHECK(chip, usVc4Enable == VQ6192_PPP_ENABLE);
    rc |= VQ6192_Framer_SelectSrcVC4(chip, VQ6192_BASE_SRV_DIRECT_BOTH, pstPppChan->ulPhyPort, ch, kSvcPpp);
    const uint32_t in = ingressInner(chip, ch);
    const uint32_t out = egressInner(chip, ch);
    rc |= setField(chip, out, kTChcen, 0);
    rc |= setField(chip, in, kRChcen, 0);
    rc |= setField(chip, out, kTCrcfe, 1);
    rc |= setField(chip, in, kRCrcfe, 1);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_CreateVC4PppChan : Set VC4:[%d] To PPP:[%d] Return:[0x%x]\n",
                     pstPppChan->ulPhyPort, ch, rc);
    return reportSteps(chip, "VQ6192_PPP_CreateVC4PppChan", rc | VQ6192_PPP_SetLinkToPpp(chip, ch, 1));
}

VQ6192_API uint32_t VQ6192_PPP_DelPppChan(uint32_t chip, uint32_t ulPppChanNo, uint16_t usE1,
                                          uint32_t ulTsMap) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    uint32_t rc = closeChannel(chip, ulPppChanNo);
    uint32_t ts = VQ6192_Framer_DeleteSrcE1(chip, VQ6192_BASE_SRV_DIRECT_EGRESS, usE1, ulTsMap);
    ts |= VQ6192_Framer_DeleteSrcE1(chip, VQ6192_BASE_SRV_DIRECT_INGRESS, usE1, ulTsMap);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_DelPppChan : Del E1:[%d] TS:[0x%8x] return:[0x%x]\n", usE1, ulTsMap,
                     ts);
    return reportSteps(chip, "VQ6192_PPP_DelPppChan", rc | ts | releaseChannel(chip, ulPppChanNo));
}

VQ6192_API uint32_t VQ6192_PPP_DelPppChanNoTS(uint32_t chip, uint32_t ulPppChanNo) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    const uint32_t rc = closeChannel(chip, ulPppChanNo);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_DelPppChan : Del Channel:[%d]return:[0x%x]\n", ulPppChanNo, rc);
    return reportSteps(chip, "VQ6192_PPP_DelPppChanNoTS", rc | releaseChannel(chip, ulPppChanNo));
}

VQ6192_API uint32_t VQ6192_PPP_DelVC4PppChan(uint32_t chip, uint32_t ulVc4PppChanNo, uint32_t ulVc4No) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulVc4PppChanNo < VQ6192_SCH_C4_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ulVc4No < VQ6192_SCH_C4_PPP_MAX);
    uint32_t rc = closeChannel(chip, ulVc4PppChanNo);
    const uint32_t ts = VQ6192_Framer_DeleteSrcVC4(chip, VQ6192_BASE_SRV_DIRECT_BOTH, ulVc4No);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_DelPppChan :Del VC4:[%d] return:[0x%x]\n", ulVc4No, ts);
    return reportSteps(chip, "VQ6192_PPP_DelVC4PppChan", rc | ts | releaseChannel(chip, ulVc4PppChanNo));
}

VQ6192_API uint32_t VQ6192_PPP_ResetPppChan(uint32_t chip, uint32_t ulPppChanNo) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    if (waitResetReady(chip, false) != 0) {
        VQ6192_PPP_ERR(chip, "Err. VQ6192_PPP_ResetPppChan : reset engine not ready, channel:[%d]\n",
                       ulPppChanNo);
        return status(chip, kErrTimeout);
    }
    // The reset register takes the caller's channel number, not the inner number.
    for (uint32_t value : {0u, ulPppChanNo, ulPppChanNo | kChanResetStrobe, ulPppChanNo, 0u}) {
        setReg(chip, kChanReset, value);
    }
    const uint32_t rc = waitResetReady(chip, true);
    if (rc != 0) {
        VQ6192_PPP_ERR(chip, "Err. VQ6192_PPP_ResetPppChan : reset not finished, channel:[%d]\n",
                       ulPppChanNo);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_SetLinkToPpp(uint32_t chip, uint32_t ulLinkNo, uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulLinkNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    uint32_t rc = setField(chip, ingressInner(chip, ulLinkNo), kMprxmlinktype0, ulEnable);
    rc |= setField(chip, egressInner(chip, ulLinkNo), kLinkpppen, ulEnable);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetLinkToPpp : ulLinkNo:[%d] ulEnable:[%d]\n", ulLinkNo, ulEnable);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetLinkToPpp(uint32_t chip, uint32_t ulLinkNo, uint32_t *pulEnableRx,
                                            uint32_t *pulEnableTx) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulLinkNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pulEnableRx != NULL);
    VQ6192_PPP_CHECK(chip, pulEnableTx != NULL);
    uint32_t rc = getField(chip, ingressInner(chip, ulLinkNo), kMprxmlinktype0, pulEnableRx);
    return rc | getField(chip, egressInner(chip, ulLinkNo), kLinkpppen, pulEnableTx);
}

VQ6192_API uint32_t VQ6192_PPP_SetPppChanEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable,
                                                uint8_t ucDirect) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    uint32_t rc = 0;
    if (hasIngress(ucDirect)) {
        rc |= setField(chip, ingressInner(chip, ulPppChanNo), kMprxmlinken, ulEnable);
    }
    if (hasEgress(ucDirect)) {
        // The scheduling mode always reads back as PPP mode 0, so one bit per link is set.
        const uint32_t inner = egressInner(chip, ulPppChanNo);
        Entry e;
        uint32_t r = readEntry(chip, kPppcfgen.table, inner / 8, e);
        if (r == 0) {
            uint32_t bits = vq::getField(e.w, kPppcfgen);
            bits = (bits & ~(1u << (inner % 8))) | (ulEnable << (inner % 8));
            vq::setField(e.w, kPppcfgen, bits);
            r = writeEntry(chip, kPppcfgen.table, inner / 8, e);
        }
        rc |= r;
    }
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppChanEnable : ulPppChanNo:[%d] ulEnable:[%d] ucDirect:[%d]\n",
                     ulPppChanNo, ulEnable, ucDirect);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppChanEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulEnableRx,
                                                uint32_t *pulEnableTx) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pulEnableRx != NULL);
    VQ6192_PPP_CHECK(chip, pulEnableTx != NULL);
    uint32_t rc = getField(chip, ingressInner(chip, ulPppChanNo), kMprxmlinken, pulEnableRx);
    const uint32_t inner = egressInner(chip, ulPppChanNo);
    uint32_t bits = 0;
    rc |= getField(chip, inner / 8, kPppcfgen, &bits);
    *pulEnableTx = (bits >> (inner % 8)) & 1u;
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppCRCMode(uint32_t chip, uint32_t ulPppChanNo, uint32_t enCRCMode,
                                             uint8_t ucDirect) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, enCRCMode < VQ6192_PPP_CRC_BUTT);
    VQ6192_PPP_CHECK(chip, ucDirect < VQ6192_BASE_SRV_DIRECT_MAX);
    uint32_t rc = 0;
    if (hasIngress(ucDirect)) {
        const uint32_t in = ingressInner(chip, ulPppChanNo);
        rc |= setField(chip, in, kRCrcmod, enCRCMode);
        rc |= setField(chip, in, kACrcmod, enCRCMode);
        setReg(chip, correctReg(in), enCRCMode);
    }
    if (hasEgress(ucDirect)) {
        rc |= setField(chip, egressInner(chip, ulPppChanNo), kTCrcmod, enCRCMode);
    }
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppCRCMode : ulPppChanNo:[%d] enCRCMode:[%d] ucDirect:[%d]\n",
                     ulPppChanNo, enCRCMode, ucDirect);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppCRCMode(uint32_t chip, uint32_t ulPppChanNo, uint8_t ucDirect,
                                             uint32_t *penCRCMode) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ucDirect < VQ6192_BASE_SRV_DIRECT_BOTH);
    VQ6192_PPP_CHECK(chip, penCRCMode != NULL);
    if (ucDirect == VQ6192_BASE_SRV_DIRECT_EGRESS) {
        return getField(chip, egressInner(chip, ulPppChanNo), kTCrcmod, penCRCMode);
    }
    return getField(chip, ingressInner(chip, ulPppChanNo), kRCrcmod, penCRCMode);
}

VQ6192_API uint32_t VQ6192_PPP_SetPppMRU(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulMRU) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ulMRU <= VQ6192_MAX_PPP_MRU);
    const uint32_t rc = setField(chip, ingressInner(chip, ulPppChanNo), kRxmtu, ulMRU);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppMRU : ulPppChanNo:[%d] ulMRU:[%d]\n", ulPppChanNo, ulMRU);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppMRU(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulMRU) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pulMRU != NULL);
    return getField(chip, ingressInner(chip, ulPppChanNo), kRxmtu, pulMRU);
}

VQ6192_API uint32_t VQ6192_PPP_SetPppACFCEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    const uint32_t rc = setField(chip, egressInner(chip, ulPppChanNo), kLinkacfc, ulEnable);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppACFCEnable : ulPppChanNo:[%d] ulEnable:[%d]\n", ulPppChanNo,
                     ulEnable);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppACFCEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pulEnable != NULL);
    return getField(chip, egressInner(chip, ulPppChanNo), kLinkacfc, pulEnable);
}

VQ6192_API uint32_t VQ6192_PPP_SetPppPFCEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    const uint32_t rc = setField(chip, egressInner(chip, ulPppChanNo), kLinkpfc, ulEnable);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppPFCEnable : ulPppChanNo:[%d] ulEnable:[%d]\n", ulPppChanNo,
                     ulEnable);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppPFCEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pulEnable != NULL);
    return getField(chip, egressInner(chip, ulPppChanNo), kLinkpfc, pulEnable);
}

VQ6192_API uint32_t VQ6192_PPP_SetPppPpuCfg(uint32_t chip, uint32_t ulPppChanNo,
                                            const VQ6192_PPP_PPU_CFG_S *rstPpuCfg,
                                            const VQ6192_PPP_PPU_CFG_S *rstSel) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, rstPpuCfg != NULL);
    VQ6192_PPP_CHECK(chip, rstSel != NULL);
    const uint32_t cfg = cfgWord0(rstPpuCfg);
    const uint32_t sel = cfgWord0(rstSel);
    const uint32_t in = ingressInner(chip, ulPppChanNo);
    const uint32_t out = egressInner(chip, ulPppChanNo);
    uint32_t rc = 0;
    for (const PpuField &f : kPpuFields) {
        if (bitsOf(sel, f.cfgBit, f.width) != 1) {
            continue;
        }
        const uint32_t value = bitsOf(cfg, f.cfgBit, f.width);
        switch (f.place) {
            case Place::CorrectReg:
                setReg(chip, correctReg(in), value);
                break;
            case Place::Ingress:
                rc |= setField(chip, in, f.field, value);
                break;
            case Place::Egress:
                rc |= setField(chip, out, f.field, value);
                if (f.cfgBit == kChnEnBit) {
                    rc |= setField(chip, in, kRChcen, value);
                }
                break;
        }
    }
    if (rstSel->dwRxMtu == 1) {
        rc |= setField(chip, in, kRxmtu, rstPpuCfg->dwRxMtu);
    }
    if (rstSel->dwRxMintu == 1) {
        rc |= setField(chip, in, kRxmintu, rstPpuCfg->dwRxMintu);
    }
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppPpuCfg : ulPppChanNo:[%d] Cfg:[0x%x] Sel:[0x%x]\n", ulPppChanNo,
                     cfg, sel);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppPpuCfg(uint32_t chip, uint32_t ulPppChanNo,
                                            VQ6192_PPP_PPU_CFG_S *rstPpuCfg) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, rstPpuCfg != NULL);
    const uint32_t in = ingressInner(chip, ulPppChanNo);
    const uint32_t out = egressInner(chip, ulPppChanNo);
    Entry afid, tppu, rppu;
    uint32_t rc = readEntry(chip, kRxafi.table, in, afid);
    rc |= readEntry(chip, kTChcen.table, out, tppu);
    const uint32_t correct = reg(chip, correctReg(in));
    rc |= readEntry(chip, kRChcen.table, in, rppu);
    uint32_t word = 0;
    for (const PpuField &f : kPpuFields) {
        uint32_t value = 0;
        if (f.place == Place::CorrectReg) {
            value = correct;
        } else if (f.cfgBit == kChnEnBit) {
            value = vq::getField(rppu.w, kRChcen);  // reported from the ingress engine
        } else {
            const Entry &e = f.field.table == kRxafi.table    ? afid
                             : f.field.table == kTChcen.table ? tppu
                                                              : rppu;
            value = vq::getField(e.w, f.field);
        }
        word |= (value & ((1u << f.width) - 1u)) << f.cfgBit;
    }
    VQ6192_PPP_PPU_CFG_S cfg{};
    std::memcpy(&cfg, &word, sizeof word);
    cfg.dwRxMtu = vq::getField(rppu.w, kRxmtu);
    cfg.dwRxMintu = vq::getField(rppu.w, kRxmintu);
    *rstPpuCfg = cfg;
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppLoopEnable(uint32_t chip, uint32_t ulPppChanNo, uint8_t ucPppDirect,
                                                uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ucPppDirect < VQ6192_BASE_SRV_DIRECT_EGRESS);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    uint32_t rc = setField(chip, ingressInner(chip, ulPppChanNo), kMploopen, ulEnable);
    rc |= setField(chip, egressInner(chip, ulPppChanNo), kLoopen, ulEnable);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppLoopEnable : ulPppChanNo:[%d] ucPppDirect:[%d] ulEnable:[%d]\n",
                     ulPppChanNo, ucPppDirect, ulEnable);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppLoopEnable(uint32_t chip, uint32_t ulPppChanNo, uint8_t ucPppDirect,
                                                uint32_t *pulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ucPppDirect < VQ6192_BASE_SRV_DIRECT_EGRESS);
    VQ6192_PPP_CHECK(chip, pulEnable != NULL);
    return getField(chip, ingressInner(chip, ulPppChanNo), kMploopen, pulEnable);
}

VQ6192_API uint32_t VQ6192_PPP_SetPppQueWeight(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulPppQueNo,
                                               uint32_t ulQueWeight) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ulPppQueNo < VQ6192_MAX_PPPQ_NUM);
    VQ6192_PPP_CHECK(chip, ulQueWeight < VQ6192_MAX_PPP_QUE_WEIGHT);
    const uint32_t rc = setField(chip, ingressInner(chip, ulPppChanNo), kPppWeights[ulPppQueNo], ulQueWeight);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppQueWeight : ulPppChanNo:[%d] ulPppQueNo:[%d] ulQueWeight:[%d]\n",
                     ulPppChanNo, ulPppQueNo, ulQueWeight);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppQueWeight(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulPppQueNo,
                                               uint32_t *pulQueWeight) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ulPppQueNo < VQ6192_MAX_PPPQ_NUM);
    VQ6192_PPP_CHECK(chip, pulQueWeight != NULL);
    return getField(chip, ingressInner(chip, ulPppChanNo), kPppWeights[ulPppQueNo], pulQueWeight);
}

VQ6192_API uint32_t VQ6192_PPP_SetPppTxLinkWaterMark(uint32_t chip, uint32_t ulPppChanNo,
                                                     const VQ6192_PPP_WATERMARK_S *pstWaterMark) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pstWaterMark != NULL);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppTxLinkWaterMark : ulPppChanNo:[%d] H:[%d] L:[%d] Drop:[%d]\n",
                     ulPppChanNo, pstWaterMark->dwWaterMarkH, pstWaterMark->dwWaterMarkL,
                     pstWaterMark->dwWaterMarkDrop);
    return setFields(chip, egressInner(chip, ulPppChanNo),
                     {{kHdUncgtth, pstWaterMark->dwWaterMarkL},
                      {kHdCgtth, pstWaterMark->dwWaterMarkH},
                      {kHdDisth, pstWaterMark->dwWaterMarkDrop}});
}

VQ6192_API uint32_t VQ6192_PPP_GetPppTxLinkWaterMark(uint32_t chip, uint32_t ulPppChanNo,
                                                     VQ6192_PPP_WATERMARK_S *pstWaterMark) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pstWaterMark != NULL);
    Entry e;
    const uint32_t rc = readEntry(chip, kHdCgtth.table, egressInner(chip, ulPppChanNo), e);
    pstWaterMark->dwWaterMarkH = vq::getField(e.w, kHdCgtth);
    pstWaterMark->dwWaterMarkL = vq::getField(e.w, kHdUncgtth);
    pstWaterMark->dwWaterMarkDrop = vq::getField(e.w, kHdDisth);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_SetPPPQmEnable(uint32_t chip, uint32_t ulChanNo, uint32_t ulType,
                                              uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    // Types above 1 and enables above 1 have no meaning for the chip: refused as parameter errors.
    VQ6192_PPP_CHECK(chip, ulType < VQ6192_PPP_CHNTYPE_BUTT);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    if (ulType == VQ6192_PPP_CHNTYPE_PPP) {
        VQ6192_PPP_CHECK(chip, ulChanNo < VQ6192_NONE_SCH_PPP_MAX);
    } else {
        VQ6192_PPP_CHECK(chip, ulChanNo < VQ6192_SCH_MP_MAX);
    }
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPPPQmEnable : ulChanNo:[%d] ulType:[%d] ulEnable:[%d]\n", ulChanNo,
                     ulType, ulEnable);
    if (ulType == VQ6192_PPP_CHNTYPE_PPP) {
        const uint32_t inner = egressInner(chip, ulChanNo);
        Entry e;
        if (readEntry(chip, kQmen.table, inner / 8, e) != 0) {
            return status(chip, kErrNoData);
        }
        uint32_t bits = vq::getField(e.w, kQmen);
        bits = (bits & ~(1u << (inner % 8))) | (ulEnable << (inner % 8));
        vq::setField(e.w, kQmen, bits);
        return writeEntry(chip, kQmen.table, inner / 8, e);
    }
    uint32_t up = 0, down = 0;
    if (VQ6192_PPP_GetMpSnFormat(chip, ulChanNo, &up, &down) != 0) {
        return status(chip, kErrNoData);
    }
    return setField(chip, kQmenBundleBase + ulChanNo, kQmen, ulEnable == 1 ? 0xFFu : 0x00u);
}

VQ6192_API uint32_t VQ6192_PPP_SetMpVc4En(uint32_t chip, uint32_t ulVc4PppChanNo, uint16_t usEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulVc4PppChanNo < VQ6192_SCH_C4_PPP_MAX);
    const uint32_t on = usEnable & 1u;
    setReg(chip, {kVc4Enable.addr, ulVc4PppChanNo, 1}, on);
    // Written after the enable changed: the watermarks land at the channel's new inner number.
    const uint32_t rc = VQ6192_PPP_SetPppTxLinkWaterMark(chip, ulVc4PppChanNo,
                                                         on != 0 ? &kVc4OnWaterMark : &kVc4OffWaterMark);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetMpVc4En : ulVc4PppChanNo:[%d] usEnable:[%d]\n", ulVc4PppChanNo,
                     usEnable);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetMpVc4En(uint32_t chip, uint32_t ulVc4PppChanNo, uint16_t *pusEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulVc4PppChanNo < VQ6192_SCH_C4_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pusEnable != NULL);
    *pusEnable = static_cast<uint16_t>(reg(chip, {kVc4Enable.addr, ulVc4PppChanNo, 1}));
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetMpVc4Scrambler(uint32_t chip, uint32_t ulVc4PppChanNo,
                                                 uint16_t usScramblerEn, uint16_t usUnScramblerEn) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulVc4PppChanNo < VQ6192_SCH_C4_PPP_MAX);
    setReg(chip, {kScramblerReg, ulVc4PppChanNo, 1}, usScramblerEn & 1u);
    setReg(chip, {kDescramblerReg, ulVc4PppChanNo, 1}, usUnScramblerEn & 1u);
    VQ6192_PPP_TRACE(
        chip, "VQ6192_PPP_SetMpVc4Scrambler : ulVc4PppChanNo:[%d] usScramblerEn:[%d] usUnScramblerEn:[%d]\n",
        ulVc4PppChanNo, usScramblerEn, usUnScramblerEn);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetMpVc4Scrambler(uint32_t chip, uint32_t ulVc4PppChanNo,
                                                 uint16_t *pusScramblerEn, uint16_t *pusUnScramblerEn) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulVc4PppChanNo < VQ6192_SCH_C4_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pusScramblerEn != NULL);
    VQ6192_PPP_CHECK(chip, pusUnScramblerEn != NULL);
    *pusScramblerEn = static_cast<uint16_t>(reg(chip, {kScramblerReg, ulVc4PppChanNo, 1}));
    *pusUnScramblerEn = static_cast<uint16_t>(reg(chip, {kDescramblerReg, ulVc4PppChanNo, 1}));
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppCsptEnable(uint32_t chip, uint32_t ulChanNo, uint32_t enChanType,
                                                uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, enChanType < VQ6192_PPP_CHNTYPE_BUTT);
    VQ6192_PPP_CHECK(chip, ulChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    const vq::EntryField f = enChanType == VQ6192_PPP_CHNTYPE_PPP ? kCsptpppen : kCsptmpen;
    const uint32_t rc = setField(chip, ulChanNo, f, ulEnable);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppCsptEnable : ulChanNo:[%d] enChanType:[%d] ulEnable:[%d]\n",
                     ulChanNo, enChanType, ulEnable);
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppCsptEnable(uint32_t chip, uint32_t ulChanNo, uint32_t enChanType,
                                                uint32_t *pulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pulEnable != NULL);
    if (enChanType == VQ6192_PPP_CHNTYPE_PPP) {
        return getField(chip, ulChanNo, kCsptpppen, pulEnable);
    }
    if (enChanType == VQ6192_PPP_CHNTYPE_MP) {
        return getField(chip, ulChanNo, kCsptmpen, pulEnable);
    }
    return 0;
}

}  // extern "C"
