// Block start and reset, UNI (TC) links, VC-4 transparent ports, TC resets and the link parameters.
#include "ima/ima_internal.h"

namespace vq::ima {
namespace {

constexpr uint32_t kConfigUniLink = 2;
constexpr uint32_t kInitBusyWait = 100;
constexpr uint32_t kInitSettleWait = 100;
constexpr uint32_t kResetPulseWait = 100;
constexpr uint32_t kVc4Wait = 10;
constexpr uint32_t kStartup5030Value = 2;
constexpr uint32_t kVc4PortCount = 4;
constexpr uint32_t kVc4Scvc = 84;
constexpr uint32_t kVc4OamLabel = 3;

// Receive TC defaults written by the block start for every link.
Entry tcRxDefaults() {
    Entry e;
    e.set(fld::kRxHeaderMask, 0);
    e.set(fld::kRxHeader, 0xFFFFFFFFu);
    for (EntryField f : {fld::kRxLinkEn, fld::kRxPloyAddEn, fld::kRxHecCorrectEn, fld::kRxIdleFilterEn,
                         fld::kRxHecFilterEn, fld::kRxOcdFilterEn}) {
        e.set(f, 1);
    }
    e.set(fld::kRxCdfsmAlpha, 7);
    e.set(fld::kRxCdfsmDelta, 6);
    e.set(fld::kRxLcdTimer, 8);
    return e;
}

// Transmit TC defaults: idle header 00 00 00 01, computed HEC, idle insertion on.
Entry tcTxDefaults() {
    Entry e;
    e.set(fld::kTxIdleHead4, 0x01);
    e.set(fld::kTxHecInsertData, 0x01);
    e.set(fld::kTxHecInsertType, 1);
    e.set(fld::kTxIdleInsertEn, 1);
    e.set(fld::kTxPloyAddEn, 1);
    e.set(fld::kTxLinkEn, 1);
    return e;
}

uint32_t rmwEntry(uint32_t chip, uint32_t tableId, uint32_t index, EntryField f, uint32_t value) {
    Entry e;
    uint32_t rc = readEntry(chip, tableId, index, e);
    if (rc == 0) {
        e.set(f, value);
        rc = writeEntry(chip, tableId, index, e);
    }
    return rc;
}

uint32_t configEntry(uint32_t chip, uint32_t tableId, EntryField en, EntryField tag, uint32_t link,
                     uint32_t grp) {
    Entry e;
    e.set(en, kConfigUniLink);
    e.set(tag, grp);
    return writeEntry(chip, tableId, link, e);
}

void pulse(uint32_t chip, Reg r) {
    set(chip, r, 1);
    set(chip, r, 0);
}

// Step 2 of the VC-4 port change: receive off, per-link receive reset pulses, receive back on.
uint32_t restartVc4Receive(uint32_t chip, uint32_t first, bool idleFilter) {
    for (uint32_t l = first; l < first + kLinksPerVc4; ++l) {
        const uint32_t rc = rmwEntry(chip, tbl::kTcRxCfg, l, fld::kRxLinkEn, 0);
        if (rc != 0) {
            return rc;
        }
    }
    waitTicks(kVc4Wait);
    for (uint32_t l = first; l < first + kLinksPerVc4; ++l) {
        const Reg reset{kRxLinkResetBase + 2 * l, 0, 1};
        set(chip, reset, 1);
        waitTicks(kVc4Wait);
        set(chip, reset, 0);
        waitTicks(kVc4Wait);
    }
    for (uint32_t l = first; l < first + kLinksPerVc4; ++l) {
        Entry e;
        uint32_t rc = readEntry(chip, tbl::kTcRxCfg, l, e);
        if (rc == 0) {
            e.set(fld::kRxLinkEn, 1);
            if (idleFilter) {
                e.set(fld::kRxIdleFilterEn, 1);
            }
            rc = writeEntry(chip, tbl::kTcRxCfg, l, e);
        }
        if (rc != 0) {
            return rc;
        }
    }
    return 0;
}

}  // namespace
}  // namespace vq::ima

using namespace vq::ima;
using vq::validChip;

extern "C" {

VQ6192_API uint32_t VQ6192_IMA_ResetIma(uint32_t chip) {
    if (!validChip(chip)) {
        return paraErr(chip);
    }
    for (uint32_t link = 0; link < kLinks; ++link) {
        for (uint32_t t : {tbl::kPpRxc, tbl::kPpTxc}) {
            const uint32_t rc = writeEntry(chip, t, link, Entry{});
            if (rc != 0) {
                VQ6192_IMA_TRACE(
                    chip, "Err. VQ6192_IMA_ResetIma.VQ6192_Write_Table(%u,%u,%u)      ErrCode[%#x]\r\n", chip,
                    t, link, rc);
                return rc;
            }
        }
    }
    for (uint32_t k = 0; k < kVc4PortCount; ++k) {
        VQ6192_WriteRegField(chip, kVc4PortBase + 2 * k, 0, kVc4PortGroupBit, kVc4PortGroupWidth + 1);
    }
    VQ6192_WriteRegField(chip, kVc4EnableReg, 0, 0, kVc4PortCount);
    set(chip, kBlockReset, 1);
    waitTicks(kResetPulseWait);
    set(chip, kBlockReset, 0);
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_InitIma(uint32_t chip, uint32_t mode) {
    if (!validChip(chip) || (mode != 1 && mode != 2)) {
        return paraErr(chip);
    }
    if (mode == 2) {
        return 0;
    }
    if (get(chip, kBlockBusy) != 0) {
        waitTicks(kInitBusyWait);
        if (get(chip, kBlockBusy) != 0) {
            const uint32_t rc = status(chip, kErrTimeout);
            VQ6192_IMA_TRACE(chip, "Err. VQ6192_IMA_InitIma.ReadImaBusy(%u)       TimeOut ErrCode[%#x]\r\n",
                             chip, rc);
            return rc;
        }
    }
    set(chip, kStartup5030, kStartup5030Value);
    set(chip, kStartup4008, 1);
    set(chip, kStartup5024, 1);
    uint32_t rc = VQ6192_IMA_ResetIma(chip);
    if (rc != 0) {
        VQ6192_IMA_TRACE(chip, "Err. VQ6192_IMA_InitIma.VQ6192_IMA_ResetIma(%u)       ErrCode[%#x]\r\n", chip,
                         rc);
        return rc;
    }
    waitTicks(kInitSettleWait);
    const Entry rx = tcRxDefaults(), tx = tcTxDefaults();
    for (uint32_t link = 0; link < kLinks; ++link) {
        rc = writeEntry(chip, tbl::kTcRxCfg, link, rx);
        if (rc == 0) {
            rc = writeEntry(chip, tbl::kTcTxCfg, link, tx);
        }
        if (rc != 0) {
            VQ6192_IMA_TRACE(chip, "Err. VQ6192_IMA_InitIma.VQ6192_Write_Table(%u,%u)       ErrCode[%#x]\r\n",
                             chip, link, rc);
            return rc;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_tcAddTxLink(uint32_t chip, uint32_t link, uint32_t grp) {
    if (!validChip(chip) || link >= kLinks || grp >= kGroups) {
        return paraErr(chip);
    }
    Entry e;
    uint32_t rc;
    if ((rc = readEntry(chip, tbl::kTxLks0, entryIndex(tbl::kTxLks0, link), e)) ||
        (rc = readEntry(chip, tbl::kTxLks1, entryIndex(tbl::kTxLks1, link), e)) ||
        (rc = readEntry(chip, tbl::kTcTxSta, link, e))) {
        return rc;
    }
    // Reads the configuration and, when the link is enabled, its IMA-side FIFO state.
    Entry tx, rx;
    if ((rc = readEntry(chip, tbl::kTcTxCfg, link, tx)) || (rc = readEntry(chip, tbl::kTcRxCfg, link, rx))) {
        return rc;
    }
    if ((tx.get(fld::kTxLinkEn) != 0 || rx.get(fld::kRxLinkEn) != 0) &&
        (rc = readEntry(chip, tbl::kTcTxImaif, link, e))) {
        return rc;
    }
    if ((rc = readEntry(chip, tbl::kTcTxTsif, link, e))) {
        return rc;
    }
    Entry map;
    map.set(fld::kTxCh, link);
    const uint16_t one = static_cast<uint16_t>(link);
    if ((rc = VQ6192_clrTimaGrpParams(chip, grp)) ||
        (rc = writeEntry(chip, tbl::kTxMap, entryIndex(tbl::kTxMap, grp, 0), map)) ||
        (rc = writeEntry(chip, tbl::kTxGpc, link, Entry{})) ||
        (rc = VQ6192_setTimaCommParams(chip, grp, 0, 1, nullptr)) ||
        (rc = VQ6192_setTimaCommParams(chip, grp, 1, 1, &one))) {
        return rc;
    }
    return configEntry(chip, tbl::kPpTxc, fld::kTxConfigEn, fld::kTxGroupTag, link, grp);
}

VQ6192_API uint32_t VQ6192_tcAddRxLink(uint32_t chip, uint32_t link, uint32_t grp) {
    if (!validChip(chip) || link >= kLinks || grp >= kGroups) {
        return paraErr(chip);
    }
    Entry e;
    uint32_t rc;
    for (uint32_t t : {tbl::kTcRxSta0, tbl::kTcRxSta1, tbl::kTcRxSta2, tbl::kTcRxImaif}) {
        if ((rc = readEntry(chip, t, link, e))) {
            return rc;
        }
    }
    if ((rc = configEntry(chip, tbl::kPpRxc, fld::kRxConfigEn, fld::kRxGroupTag, link, grp))) {
        return rc;
    }
    const uint16_t one = static_cast<uint16_t>(link);
    return VQ6192_setRdatScvcParams(chip, grp, 1, &one, 1);
}

VQ6192_API uint32_t VQ6192_IMA_AddTcLink(uint32_t chip, uint32_t link, uint32_t grp, uint32_t grp2) {
    if (!validChip(chip) || link >= kLinks || grp >= kGroups || grp2 != grp) {
        return paraErr(chip);
    }
    uint32_t rc = rmwEntry(chip, tbl::kTcRxCfg, link, fld::kRxIdleFilterEn, 1);
    if (rc == 0) {
        rc = writeEntry(chip, tbl::kTxGpc, grp, Entry{});
    }
    if (rc != 0) {
        return rc;
    }
    // Transmit side first, then receive: two statements, as `|` leaves the order of its calls open.
    rc = VQ6192_tcAddTxLink(chip, link, grp);
    return rc | VQ6192_tcAddRxLink(chip, link, grp);
}

VQ6192_API uint32_t VQ6192_IMA_DelTcLink(uint32_t chip, uint32_t link) {
    if (!validChip(chip) || link >= kLinks) {
        return paraErr(chip);
    }
    Entry txc, rxc;
    uint32_t rc = readEntry(chip, tbl::kPpTxc, link, txc);
    if (rc != 0) {
        return rc;
    }
    if (txc.get(fld::kTxConfigEn) != kConfigUniLink) {
        rc = status(chip, kErrInUse);
        VQ6192_IMA_TRACE(chip, "Err. VQ6192_IMA_DelTcLink(%u,%u)      ErrCode[%#x]\r\n", chip, link, rc);
        return rc;
    }
    const uint16_t one = static_cast<uint16_t>(link);
    if ((rc = VQ6192_setTimaCommParams(chip, txc.get(fld::kTxGroupTag), 1, 0, &one)) ||
        (rc = readEntry(chip, tbl::kPpRxc, link, rxc))) {
        return rc;
    }
    return runCmd(chip, VQ6192_IMA_CMD_DELETE_UNI, rxc.get(fld::kRxGroupTag), 0, 0, 0);
}

VQ6192_API uint32_t VQ6192_IMA_AddVc4(uint32_t chip, uint32_t vc4, uint32_t grp) {
    if (!validChip(chip) || vc4 >= kVc4PortCount || grp >= kGroups) {
        return paraErr(chip);
    }
    const uint32_t first = kLinksPerVc4 * vc4;
    VQ6192_WriteRegField(chip, kVc4PortBase + 2 * vc4, grp | (1u << kVc4PortEnableBit), kVc4PortGroupBit,
                         kVc4PortGroupWidth + 1);
    uint32_t rc = restartVc4Receive(chip, first, true);
    if (rc != 0) {
        return rc;
    }
    VQ6192_WriteRegField(chip, kVc4EnableReg, 1, vc4, 1);
    const uint16_t head = static_cast<uint16_t>(first);
    if ((rc = rmwEntry(chip, tbl::kTcTxCfg, first, fld::kTxLinkEn, 0)) ||
        (rc = VQ6192_IMA_ResetTc(chip, 3, 1, &head)) ||
        (rc = rmwEntry(chip, tbl::kTcTxCfg, first, fld::kTxLinkEn, 1))) {
        return rc;
    }
    for (uint32_t l = first; l < first + kLinksPerVc4; ++l) {
        Entry map, gpc;
        map.set(fld::kTxCh, first);
        gpc.set(fld::kTren, 1);
        gpc.set(fld::kTrgp, grp);
        gpc.set(fld::kStuffAdvMode, 1);
        gpc.set(fld::kStuffEn, 1);
        gpc.set(fld::kTxOamLabel, kVc4OamLabel);
        const uint16_t self = static_cast<uint16_t>(l);
        if ((rc = VQ6192_clrTimaGrpParams(chip, l)) ||
            (rc = writeEntry(chip, tbl::kTxMap, entryIndex(tbl::kTxMap, l, 0), map)) ||
            (rc = VQ6192_setTimaCommParams(chip, l, 1, 1, &head)) ||
            (rc = rmwEntry(chip, tbl::kRxGpc, l, fld::kScvcThresh, kVc4Scvc)) ||
            (rc = configEntry(chip, tbl::kPpTxc, fld::kTxConfigEn, fld::kTxGroupTag, l, l)) ||
            (rc = configEntry(chip, tbl::kPpRxc, fld::kRxConfigEn, fld::kRxGroupTag, l, l)) ||
            (rc = VQ6192_setRdatScvcParams(chip, grp, 1, &self, 1)) ||
            (rc = writeEntry(chip, tbl::kTxGpc, l, gpc))) {
            return rc;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_DelVc4(uint32_t chip, uint32_t vc4, uint32_t grp) {
    if (!validChip(chip) || vc4 >= kVc4PortCount || grp >= kGroups) {
        return paraErr(chip);
    }
    const uint32_t first = kLinksPerVc4 * vc4;
    VQ6192_WriteRegField(chip, kVc4PortBase + 2 * vc4, 0, kVc4PortEnableBit, 1);
    VQ6192_WriteRegField(chip, kVc4EnableReg, 0, vc4, 1);
    uint32_t rc = restartVc4Receive(chip, first, false);
    if (rc != 0) {
        return rc;
    }
    for (uint32_t l = first; l < first + kLinksPerVc4; ++l) {
        const uint16_t self = static_cast<uint16_t>(l);
        if ((rc = VQ6192_setTimaCommParams(chip, l, 1, 0, &self)) ||
            (rc = runCmd(chip, VQ6192_IMA_CMD_DELETE_UNI, l, 0, 0, 0))) {
            return rc;
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_GetImaVC4Cfg(uint32_t chip, uint32_t vc4, uint16_t *enabled,
                                            uint16_t *portEnable, uint16_t *grp) {
    if (!validChip(chip) || vc4 >= kVc4PortCount || enabled == nullptr || portEnable == nullptr ||
        grp == nullptr) {
        return paraErr(chip);
    }
    *enabled = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kVc4EnableReg, vc4, 1));
    const uint32_t port = VQ6192_ReadReg(chip, kVc4PortBase + 2 * vc4);
    *portEnable = static_cast<uint16_t>((port >> kVc4PortEnableBit) & 1u);
    *grp = static_cast<uint16_t>(port & ((1u << kVc4PortGroupWidth) - 1));
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_ResetTc(uint32_t chip, uint32_t which, uint32_t n, const uint16_t *links) {
    if (!validChip(chip) || which == 0 || which > 3 || n == 0 || n > kLinks || links == nullptr) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < n; ++i) {
        if (links[i] >= kLinks) {
            return paraErr(chip);
        }
    }
    // The reset bits carry no link number: every listed link pulses the same two bits.
    for (uint32_t i = 0; i < n; ++i) {
        if (which & 2u) {
            const uint32_t rc = drainTxLink(chip, links[i]);
            if (rc == kDrainNeverEnded) {
                return bareStatus(kErrNoEnd);
            }
            if (rc != 0) {
                return rc;
            }
            pulse(chip, kTcTxReset);
        }
        if (which & 1u) {
            pulse(chip, kTcRxReset);
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_ResetVc(uint32_t chip) {
    if (!validChip(chip)) {
        return paraErr(chip);
    }
    const uint32_t old = VQ6192_ReadReg(chip, kVcReset.addr);
    VQ6192_WriteReg(chip, kVcReset.addr, old | (1u << kVcReset.bit));
    waitTicks(kResetPulseWait);
    VQ6192_WriteReg(chip, kVcReset.addr, old);
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_SetImaLinkParam(uint32_t chip, uint32_t alpha, uint32_t beta, uint32_t gamma) {
    if (!validChip(chip) || alpha < 1 || alpha > 2 || beta < 1 || beta > 5 || gamma < 1 || gamma > 5) {
        return paraErr(chip);
    }
    const uint32_t value = (alpha << kLinkAlpha.bit) | (beta << kLinkBeta.bit) | (gamma << kLinkGamma.bit);
    VQ6192_WriteRegField(chip, kLinkAlpha.addr, value, 0,
                         kLinkAlpha.width + kLinkBeta.width + kLinkGamma.width);
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_GetImaLinkParam(uint32_t chip, uint16_t *alpha, uint16_t *beta,
                                               uint16_t *gamma) {
    if (!validChip(chip) || alpha == nullptr || beta == nullptr || gamma == nullptr) {
        return paraErr(chip);
    }
    *alpha = static_cast<uint16_t>(get(chip, kLinkAlpha));
    *beta = static_cast<uint16_t>(get(chip, kLinkBeta));
    *gamma = static_cast<uint16_t>(get(chip, kLinkGamma));
    return 0;
}

VQ6192_API uint32_t VQ6192_IMA_SetAutoProcEn(uint32_t chip, uint32_t mask, uint32_t enable) {
    if (!validChip(chip) || mask > 0x7FFu || enable > 1) {
        return paraErr(chip);
    }
    const uint32_t old = VQ6192_ReadReg(chip, kAutoProcReg);
    VQ6192_WriteReg(chip, kAutoProcReg, enable ? (old | mask) : (old & ~mask));
    return 0;
}

}  // extern "C"
