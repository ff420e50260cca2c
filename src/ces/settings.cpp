// Per-channel CES settings (compression, idle code, packets, jitter buffer, RTP and control word,
// alarm handling) and the chip-wide CES settings.
#include "ces/ces_internal.h"

namespace vq::ces {
namespace {

constexpr uint32_t kTxCw = tableId("Cestxcwrtp");
constexpr uint32_t kRxCw = tableId("Cesrxcwrtp");
constexpr uint32_t kTxTsMaskTable = tableId("Cestxtsmask");
constexpr uint32_t kRxTsMaskTable = tableId("Cesrxtsmask");
constexpr uint32_t kIdleTable = tableId("Cesidlecode");
constexpr uint32_t kFrmMapTable = tableId("Cestxpkgchnmap");

bool ingress(uint32_t dir) {
    return dir == VQ6192_BASE_SRV_DIRECT_INGRESS || dir == VQ6192_BASE_SRV_DIRECT_BOTH;
}
bool egress(uint32_t dir) {
    return dir == VQ6192_BASE_SRV_DIRECT_EGRESS || dir == VQ6192_BASE_SRV_DIRECT_BOTH;
}

void entryTrace(uint32_t chip, const char *op, uint32_t ch, uint32_t value) {
    VQ6192_Printf(chip, VQ6192_MODULE_CES, VQ6192_PRINT_NORMAL, "Info.Entry %s(%u,%u,%u)\r\n ", op, chip, ch,
                  value);
}

// Reads a CES table entry, lets `change` edit it and writes it back; a failed access is error 4.
template <typename F>
uint32_t modify(uint32_t chip, uint32_t table, uint32_t index, F change) {
    Entry e;
    if (readEntry(chip, table, index, e) != 0) {
        return status(chip, VQ6192_CES_ERR_STEP);
    }
    change(e.w);
    return writeEntry(chip, table, index, e) != 0 ? status(chip, VQ6192_CES_ERR_STEP) : 0;
}

uint32_t readField(uint32_t chip, uint32_t table, uint32_t index, EntryField f, uint32_t &value) {
    Entry e;
    if (readEntry(chip, table, index, e) != 0) {
        return status(chip, VQ6192_CES_ERR_STEP);
    }
    value = getField(e.w, f);
    return 0;
}

uint32_t readMask(uint32_t chip, uint32_t table, EntryField f, uint32_t ch, uint32_t &mask) {
    return readField(chip, table, ch, f, mask);
}

// A chip-wide register field: value checked against its width.
uint32_t setGlobal(uint32_t chip, uint32_t reg, uint32_t bit, uint32_t width, uint32_t value) {
    if (!validChip(chip) || value > (fieldMask(0, width))) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, reg, value, bit, width);
    return 0;
}

template <typename T>
uint32_t getGlobal(uint32_t chip, uint32_t reg, uint32_t bit, uint32_t width, T *out) {
    if (!validChip(chip) || out == nullptr) {
        return paraErr(chip);
    }
    *out = static_cast<T>(VQ6192_ReadRegField(chip, reg, bit, width));
    return 0;
}

// The ten reverse-R threshold registers: width of each field in record order.
constexpr uint32_t kRevRWidths[10] = {12, 15, 12, 12, 16, 12, 12, 16, 12, 12};

}  // namespace
}  // namespace vq::ces

using namespace vq;
using namespace vq::ces;

extern "C" {

// ---- Compression, idle and empty codes, packets, jitter buffer --------------------------------------------

VQ6192_API uint32_t VQ6192_CES_SetCesTSCompress(uint32_t chip, uint32_t ch, uint32_t mask, uint32_t dir) {
    if (!validChip(chip) || !isE1Chan(ch) || dir >= VQ6192_BASE_SRV_DIRECT_MAX) {
        return paraErr(chip);
    }
    Entry e;
    if (ingress(dir)) {
        setField(e.w, kTxTsMask, mask);
        if (writeEntry(chip, kTxTsMaskTable, ch, e) != 0) {
            return status(chip, VQ6192_CES_ERR_ING_TSMASK);
        }
    }
    if (egress(dir)) {
        setField(e.w, kRxTsMask, mask);
        if (writeEntry(chip, kRxTsMaskTable, ch, e) != 0) {
            return status(chip, VQ6192_CES_ERR_EG_TSMASK);
        }
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesTSCompress(uint32_t chip, uint32_t ch, uint32_t *mask, uint32_t dir) {
    if (!validChip(chip) || !isE1Chan(ch) || dir >= VQ6192_BASE_SRV_DIRECT_MAX || mask == nullptr) {
        return paraErr(chip);
    }
    uint32_t ing = 0, eg = 0;
    if (ingress(dir) && readMask(chip, kTxTsMaskTable, kTxTsMask, ch, ing) != 0) {
        return status(chip, VQ6192_CES_ERR_STEP);
    }
    if (egress(dir) && readMask(chip, kRxTsMaskTable, kRxTsMask, ch, eg) != 0) {
        return status(chip, VQ6192_CES_ERR_STEP);
    }
    if (dir == VQ6192_BASE_SRV_DIRECT_BOTH && ing != eg) {
        VQ6192_Printf(chip, VQ6192_MODULE_CES, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_CES_GetCesTSCompress(%u,%u,%u)            Ing[%#x] != Eg[%#x]\r\n", chip,
                      ch, dir, ing, eg);
        return status(chip, VQ6192_CES_ERR_STEP);
    }
    *mask = dir == VQ6192_BASE_SRV_DIRECT_EGRESS ? eg : ing;
    return 0;
}

// The code is a byte: higher bits are dropped.
VQ6192_API uint32_t VQ6192_CES_SetCesIdleCode(uint32_t chip, uint32_t ch, uint32_t code) {
    if (!validChip(chip) || !isE1Chan(ch)) {
        return paraErr(chip);
    }
    Entry e;
    setField(e.w, kIdleCode, code);
    return writeEntry(chip, kIdleTable, ch, e) != 0 ? status(chip, VQ6192_CES_ERR_STEP) : 0;
}

VQ6192_API uint32_t VQ6192_CES_SetCesEmptyCode(uint32_t chip, uint32_t code) {
    if (!validChip(chip)) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kEmptyCodeReg, code, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetCesFramNum(uint32_t chip, uint32_t ch, uint32_t frames) {
    if (!validChip(chip) || !validChan(ch) || frames >= (isE1Chan(ch) ? 64u : 40u)) {
        return paraErr(chip);
    }
    entryTrace(chip, "VQ6192_CES_SetCesFramNum", ch, frames);
    VQ6192_WriteRegField(chip, chanReg(kFramNumReg, ch), frames, 0, kFramNumWidth);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesChanFramNum(uint32_t chip, uint32_t ch, VQ6192_CES_CHAN_PARA_S *para) {
    if (!validChip(chip) || !validChan(ch) || para == nullptr) {
        return paraErr(chip);
    }
    para->ucFramNum =
        static_cast<uint8_t>(VQ6192_ReadRegField(chip, chanReg(kFramNumReg, ch), 0, kFramNumWidth));
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetCesJtrBuf(uint32_t chip, uint32_t ch, uint32_t depth, uint32_t delay) {
    if (!validChip(chip) || !validChan(ch) || depth >= kJbMax || delay >= kJbMax) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, chanReg(kJbDepthReg, ch), depth, 0, kJbWidth);
    VQ6192_WriteRegField(chip, chanReg(kJbDelayReg, ch), delay, 0, kJbWidth);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetCesVc4JstThld(uint32_t chip, uint32_t value) {
    if (!validChip(chip)) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kVc4JstThldReg, value, 0, 16);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesVc4JstThld(uint32_t chip, uint32_t *value) {
    return getGlobal(chip, kVc4JstThldReg, 0, 16, value);
}

// ---- RTP and control word
// ------------------------------------------------------------------------------------

// Ingress writes the whole control-word entry (L/R/M, differential clock, reverse R and timestamp channel
// become 0); egress changes the RTP fields of its entry only.
VQ6192_API uint32_t VQ6192_CES_SetCesRTPConfig(uint32_t chip, uint32_t ch, const VQ6192_CES_RTP_CFG_S *cfg,
                                               uint32_t dir) {
    if (!validChip(chip) || !validChan(ch) || cfg == nullptr || cfg->dwRtpEnable > 1 || cfg->dwRtpCwSeq > 1 ||
        cfg->dwPayloadType >= 128 || cfg->dwTxSnGenmode >= 4 || dir >= VQ6192_BASE_SRV_DIRECT_MAX) {
        return paraErr(chip);
    }
    if (ingress(dir)) {
        Entry e;
        setField(e.w, kTxRtpen, cfg->dwRtpEnable);
        setField(e.w, kTxRtpcw, cfg->dwRtpCwSeq);
        setField(e.w, kTxRtppt, cfg->dwPayloadType);
        setField(e.w, kTxSsrc, cfg->dwSSRCTx);
        setField(e.w, kTxSngenmode, cfg->dwTxSnGenmode);
        if (writeEntry(chip, kTxCw, ch, e) != 0) {
            return status(chip, VQ6192_CES_ERR_STEP);
        }
    }
    if (egress(dir)) {
        return modify(chip, kRxCw, ch, [&](uint32_t *w) {
            setField(w, kRxRtpen, cfg->dwRtpEnable);
            setField(w, kRxRtpcw, cfg->dwRtpCwSeq);
            setField(w, kRxRtppt, cfg->dwPayloadType);
            setField(w, kRxSsrc, cfg->dwSSRCRx);
            setField(w, kRxSngenmode, cfg->dwTxSnGenmode);
        });
    }
    return 0;
}

// Direction 0 leaves both SSRC outputs alone, 1 gives both the received SSRC, 2 reads both entries and
// reports the egress one after comparing the shared fields.
VQ6192_API uint32_t VQ6192_CES_GetCesRtpConfig(uint32_t chip, uint32_t ch, VQ6192_CES_RTP_CFG_S *cfg,
                                               uint32_t dir) {
    if (!validChip(chip) || !validChan(ch) || cfg == nullptr || dir >= VQ6192_BASE_SRV_DIRECT_MAX) {
        return paraErr(chip);
    }
    Entry tx, rx;
    if (ingress(dir)) {
        if (readEntry(chip, kTxCw, ch, tx) != 0) {
            return status(chip, VQ6192_CES_ERR_STEP);
        }
        cfg->dwRtpEnable = getField(tx.w, kTxRtpen);
        cfg->dwRtpCwSeq = getField(tx.w, kTxRtpcw);
        cfg->dwPayloadType = getField(tx.w, kTxRtppt);
        cfg->dwTxSnGenmode = getField(tx.w, kTxSngenmode);
    }
    if (egress(dir)) {
        if (readEntry(chip, kRxCw, ch, rx) != 0) {
            return status(chip, VQ6192_CES_ERR_STEP);
        }
        const VQ6192_CES_RTP_CFG_S eg = {getField(rx.w, kRxRtpen), getField(rx.w, kRxRtpcw),
                                         getField(rx.w, kRxRtppt), getField(rx.w, kRxSsrc),
                                         getField(rx.w, kRxSsrc),  getField(rx.w, kRxSngenmode)};
        if (dir == VQ6192_BASE_SRV_DIRECT_BOTH &&
            (eg.dwRtpEnable != cfg->dwRtpEnable || eg.dwRtpCwSeq != cfg->dwRtpCwSeq ||
             eg.dwPayloadType != cfg->dwPayloadType || eg.dwTxSnGenmode != cfg->dwTxSnGenmode)) {
            const uint32_t err = status(chip, VQ6192_CES_ERR_RTP_DIFF);
            VQ6192_Printf(chip, VQ6192_MODULE_CES, VQ6192_PRINT_EXCEPTION1_INFO,
                          "Err. VQ6192_CES_GetCesRtpConfig(%u,%u,%u)       ErrCode[%#x]\r\n", chip, ch, dir,
                          err);
            return err;
        }
        *cfg = eg;
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetCesPktDropEnable(uint32_t chip, uint32_t ch,
                                                   const VQ6192_CES_PKT_DROP_S *drop) {
    if (!validChip(chip) || !validChan(ch) || drop == nullptr || drop->dwSnErrDropEn > 1 ||
        drop->dwPtErrDropEn > 1 || drop->dwSsrcErrDropEn > 1 || drop->dwLenErrDropEn > 1 ||
        drop->dwRxErrDropEn > 1) {
        return paraErr(chip);
    }
    return modify(chip, kRxCw, ch, [&](uint32_t *w) {
        setField(w, kSnerrdropen, drop->dwSnErrDropEn);
        setField(w, kPterrdropen, drop->dwPtErrDropEn);
        setField(w, kSsrcerrdropen, drop->dwSsrcErrDropEn);
        setField(w, kLenerrdropen, drop->dwLenErrDropEn);
        setField(w, kRxerrdropen, drop->dwRxErrDropEn);
    });
}

VQ6192_API uint32_t VQ6192_CES_GetCesPktDropEnable(uint32_t chip, uint32_t ch, VQ6192_CES_PKT_DROP_S *drop) {
    if (!validChip(chip) || !validChan(ch) || drop == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    if (readEntry(chip, kRxCw, ch, e) != 0) {
        return status(chip, VQ6192_CES_ERR_STEP);
    }
    *drop = {getField(e.w, kSnerrdropen), getField(e.w, kPterrdropen), getField(e.w, kSsrcerrdropen),
             getField(e.w, kLenerrdropen), getField(e.w, kRxerrdropen)};
    return 0;
}

// Lctrl, Lmctrl, Rctrl and Revrctrl live in the egress entry, Txrevren in the ingress one.
VQ6192_API uint32_t VQ6192_CES_SetCesAlmCtrl(uint32_t chip, uint32_t ch, const VQ6192_CES_ALM_CTRL_S *ctrl) {
    if (!validChip(chip) || !validChan(ch) || ctrl == nullptr || ctrl->dwLctrl > 1 || ctrl->dwLmctrl > 1 ||
        ctrl->dwRctrl > 1 || ctrl->dwRevrctrl > 1 || ctrl->dwTxrevren > 1) {
        return paraErr(chip);
    }
    uint32_t rc = modify(chip, kRxCw, ch, [&](uint32_t *w) {
        setField(w, kLctrl, ctrl->dwLctrl);
        setField(w, kLmctrl, ctrl->dwLmctrl);
        setField(w, kRctrl, ctrl->dwRctrl);
        setField(w, kRevrctrl, ctrl->dwRevrctrl);
    });
    if (rc == 0) {
        rc = modify(chip, kTxCw, ch, [&](uint32_t *w) { setField(w, kTxRevren, ctrl->dwTxrevren); });
    }
    if (rc != 0) {
        VQ6192_Printf(chip, VQ6192_MODULE_CES, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_CES_SetCesAlmCtrl(%u,%u)       ErrCode[%#x]\r\n", chip, ch, rc);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_CES_GetCesAlmCtrl(uint32_t chip, uint32_t ch, VQ6192_CES_ALM_CTRL_S *ctrl) {
    if (!validChip(chip) || !validChan(ch) || ctrl == nullptr) {
        return paraErr(chip);
    }
    Entry rx, tx;
    if (readEntry(chip, kRxCw, ch, rx) != 0 || readEntry(chip, kTxCw, ch, tx) != 0) {
        const uint32_t err = status(chip, VQ6192_CES_ERR_STEP);
        VQ6192_Printf(chip, VQ6192_MODULE_CES, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_CES_SetCesAlmCtrl(%u,%u)       ErrCode[%#x]\r\n", chip, ch, err);
        return err;
    }
    *ctrl = {getField(rx.w, kLctrl), getField(rx.w, kLmctrl), getField(rx.w, kRctrl),
             getField(rx.w, kRevrctrl), getField(tx.w, kTxRevren)};
    return 0;
}

// Txcwlrm: L bit 3, R bit 2, M bits 0..1.
VQ6192_API uint32_t VQ6192_CES_SetCesTxLRMAlm(uint32_t chip, uint32_t ch, const uint16_t lrm[3]) {
    if (!validChip(chip) || !validChan(ch) || lrm == nullptr || lrm[0] > 1 || lrm[1] > 1 || lrm[2] > 3) {
        return paraErr(chip);
    }
    const uint32_t value = (static_cast<uint32_t>(lrm[0]) << 3 | static_cast<uint32_t>(lrm[1]) << 2) + lrm[2];
    return modify(chip, kTxCw, ch, [&](uint32_t *w) { setField(w, kTxCwlrm, value); });
}

VQ6192_API uint32_t VQ6192_CES_GetCesTxLRMAlm(uint32_t chip, uint32_t ch, uint16_t lrm[3]) {
    if (!validChip(chip) || !validChan(ch) || lrm == nullptr) {
        return paraErr(chip);
    }
    uint32_t v = 0;
    if (readField(chip, kTxCw, ch, kTxCwlrm, v) != 0) {
        return status(chip, VQ6192_CES_ERR_STEP);
    }
    lrm[0] = static_cast<uint16_t>(v >> 3 & 1u);
    lrm[1] = static_cast<uint16_t>(v >> 2 & 1u);
    lrm[2] = static_cast<uint16_t>(v & 3u);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetCesTxLRMAlmBySel(uint32_t chip, uint32_t ch, const uint16_t lrm[3],
                                                   const uint16_t sel[3]) {
    if (!validChip(chip) || !validChan(ch) || lrm == nullptr || sel == nullptr) {
        return paraErr(chip);
    }
    uint16_t now[3] = {};
    uint32_t rc = VQ6192_CES_GetCesTxLRMAlm(chip, ch, now);
    if (rc != 0) {
        return rc;
    }
    for (int k = 0; k < 3; ++k) {
        if (sel[k] == 1) {
            now[k] = lrm[k];
        }
    }
    return VQ6192_CES_SetCesTxLRMAlm(chip, ch, now);
}

// Two read-modify-writes of the framer channel's entry: the alarm enables, then channel and map enable.
VQ6192_API uint32_t VQ6192_CES_SetIngFrmToCesAlmMap(uint32_t chip, uint32_t frmCh, uint32_t cesCh,
                                                    uint32_t aisEn, uint32_t rdiEn) {
    if (!validChip(chip) || frmCh >= VQ6192_CES_E1_CHAN_NUM || cesCh >= VQ6192_CES_E1_CHAN_NUM || aisEn > 1 ||
        rdiEn > 1) {
        return paraErr(chip);
    }
    const uint32_t rc = modify(chip, kFrmMapTable, frmCh, [&](uint32_t *w) {
        setField(w, kMapAisen, aisEn);
        setField(w, kMapRdien, rdiEn);
    });
    if (rc != 0) {
        return rc;
    }
    return modify(chip, kFrmMapTable, frmCh, [&](uint32_t *w) {
        setField(w, kMapChnmap, cesCh);
        setField(w, kMapChnen, aisEn | rdiEn);
    });
}

VQ6192_API uint32_t VQ6192_CES_GetIngFrmToCesAlmMap(uint32_t chip, uint32_t frmCh, uint32_t *cesCh,
                                                    uint32_t *aisEn, uint32_t *rdiEn) {
    if (!validChip(chip) || frmCh >= VQ6192_CES_E1_CHAN_NUM || cesCh == nullptr || aisEn == nullptr ||
        rdiEn == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    if (readEntry(chip, kFrmMapTable, frmCh, e) != 0) {
        return status(chip, VQ6192_CES_ERR_STEP);
    }
    const bool on = getField(e.w, kMapChnen) != 0;
    *cesCh = getField(e.w, kMapChnmap);
    *aisEn = on ? getField(e.w, kMapAisen) : 0;
    *rdiEn = on ? getField(e.w, kMapRdien) : 0;
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetCesSnType(uint32_t chip, uint32_t ch, uint32_t dir, uint32_t type) {
    if (!validChip(chip) || !validChan(ch) || dir >= VQ6192_BASE_SRV_DIRECT_MAX || type >= 4) {
        return paraErr(chip);
    }
    uint32_t rc = 0;
    if (ingress(dir)) {
        rc = modify(chip, kTxCw, ch, [&](uint32_t *w) { setField(w, kTxSngenmode, type); });
    }
    if (rc == 0 && egress(dir)) {
        rc = modify(chip, kRxCw, ch, [&](uint32_t *w) { setField(w, kRxSngenmode, type); });
    }
    if (rc != 0) {
        VQ6192_Printf(chip, VQ6192_MODULE_CES, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_CES_SetCesSnType(%u,%u,%u,%u)       ErrCode[%#x]\r\n", chip, ch, dir, type,
                      rc);
    }
    return rc;
}

// Choice: direction 2 reports the ingress type.
VQ6192_API uint32_t VQ6192_CES_GetCesSnType(uint32_t chip, uint32_t ch, uint32_t dir, uint32_t *type) {
    if (!validChip(chip) || !validChan(ch) || dir >= VQ6192_BASE_SRV_DIRECT_MAX || type == nullptr) {
        return paraErr(chip);
    }
    const bool eg = dir == VQ6192_BASE_SRV_DIRECT_EGRESS;
    const uint32_t rc = readField(chip, eg ? kRxCw : kTxCw, ch, eg ? kRxSngenmode : kTxSngenmode, *type);
    if (rc != 0) {
        VQ6192_Printf(chip, VQ6192_MODULE_CES, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_CES_SetCesSnType(%u,%u,%u)       ErrCode[%#x]\r\n", chip, ch, dir, rc);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_CES_GetCesFeSnType(uint32_t chip, uint32_t ch, uint32_t *type) {
    if (!validChip(chip) || !validChan(ch) || type == nullptr) {
        return paraErr(chip);
    }
    *type = VQ6192_ReadRegField(chip, chanReg(kFeSnTypeReg, ch), 0, 2);
    return 0;
}

// The codes are bytes: higher bits are dropped.
VQ6192_API uint32_t VQ6192_CES_SetCesInsertCode(uint32_t chip, uint32_t lCode, uint32_t rCode,
                                                uint32_t lVc4Code, uint32_t rVc4Code) {
    if (!validChip(chip)) {
        return paraErr(chip);
    }
    VQ6192_WriteReg(chip, kLInsertCodeReg, (lCode & 0xFFu) | (lVc4Code & 0xFFu) << 8);
    VQ6192_WriteReg(chip, kRInsertCodeReg, (rCode & 0xFFu) | (rVc4Code & 0xFFu) << 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesInsertCode(uint32_t chip, uint8_t *lCode, uint8_t *rCode,
                                                uint8_t *lVc4Code, uint8_t *rVc4Code) {
    if (!validChip(chip) || lCode == nullptr || rCode == nullptr || lVc4Code == nullptr ||
        rVc4Code == nullptr) {
        return paraErr(chip);
    }
    const uint32_t l = VQ6192_ReadReg(chip, kLInsertCodeReg);
    const uint32_t r = VQ6192_ReadReg(chip, kRInsertCodeReg);
    *lCode = static_cast<uint8_t>(l);
    *lVc4Code = static_cast<uint8_t>(l >> 8);
    *rCode = static_cast<uint8_t>(r);
    *rVc4Code = static_cast<uint8_t>(r >> 8);
    return 0;
}

// Bits vc4 (A) and vc4 + 4 (B): mode 0 clears both, 1 sets B unless A is set, 2 sets A unless B is set.
VQ6192_API uint32_t VQ6192_CES_SetCesVc4UnLoadMod(uint32_t chip, uint32_t vc4, uint32_t mode) {
    if (!validChip(chip) || vc4 >= 4 || mode >= 3) {
        return paraErr(chip);
    }
    const uint32_t a = 1u << vc4;
    const uint32_t b = 1u << (vc4 + 4);
    uint32_t reg = VQ6192_ReadReg(chip, kVc4UnloadReg);
    if (mode == 0) {
        reg &= ~(a | b);
    } else if (mode == 1 && (reg & a) == 0) {
        reg |= b;
    } else if (mode == 2 && (reg & b) == 0) {
        reg |= a;
    }
    VQ6192_WriteReg(chip, kVc4UnloadReg, reg);
    return 0;
}

// Choice: A set reads mode 2, else B set reads mode 1, else 0.
VQ6192_API uint32_t VQ6192_CES_GetCesVc4UnLoadMod(uint32_t chip, uint32_t vc4, uint32_t *mode) {
    if (!validChip(chip) || vc4 >= 4 || mode == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kVc4UnloadReg);
    *mode = (reg >> vc4 & 1u) != 0 ? 2 : (reg >> (vc4 + 4) & 1u) != 0 ? 1 : 0;
    return 0;
}

// Values below 256 are accepted; the register holds five bits (callers pass 0..31).
VQ6192_API uint32_t VQ6192_CES_SetCesClkSel(uint32_t chip, uint32_t ch, uint32_t sel) {
    if (!validChip(chip) || !validChan(ch) || sel >= 256) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, chanReg(kFramNumReg, ch), sel, kClkSelBit, kClkSelWidth);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesClkSel(uint32_t chip, uint32_t ch, uint32_t *sel) {
    if (!validChip(chip) || !validChan(ch) || sel == nullptr) {
        return paraErr(chip);
    }
    *sel = VQ6192_ReadRegField(chip, chanReg(kFramNumReg, ch), kClkSelBit, kClkSelWidth);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetCesCtrlFcEn(uint32_t chip, uint32_t ch, uint32_t en) {
    if (!validChip(chip) || !validChan(ch) || en > 1) {
        return paraErr(chip);
    }
    setFlag(chip, chanReg(kChanCtrlReg, ch), kCtrlFcBit, en);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesCtrlFcEn(uint32_t chip, uint32_t ch, uint32_t *en) {
    if (!validChip(chip) || !validChan(ch) || en == nullptr) {
        return paraErr(chip);
    }
    *en = VQ6192_ReadRegField(chip, chanReg(kChanCtrlReg, ch), kCtrlFcBit, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetTxRevRThld(uint32_t chip, const VQ6192_CES_REVR_THLD_S *thld) {
    if (!validChip(chip) || thld == nullptr) {
        return paraErr(chip);
    }
    const uint16_t *v = &thld->wRevRTime;
    for (uint32_t k = 0; k < 10; ++k) {
        if (v[k] > fieldMask(0, kRevRWidths[k])) {
            return paraErr(chip);
        }
    }
    for (uint32_t k = 0; k < 10; ++k) {
        VQ6192_WriteRegField(chip, kRevRThldReg + 2 * k, v[k], 0, kRevRWidths[k]);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetTxRevRThld(uint32_t chip, VQ6192_CES_REVR_THLD_S *thld) {
    if (!validChip(chip) || thld == nullptr) {
        return paraErr(chip);
    }
    uint16_t *v = &thld->wRevRTime;
    for (uint32_t k = 0; k < 10; ++k) {
        v[k] = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kRevRThldReg + 2 * k, 0, kRevRWidths[k]));
    }
    return 0;
}

// ---- Channel parameters
// ---------------------------------------------------------------------------------------

// Choice: E3/T3 and VC-4 channels have no timeslots: their mask and idle code read 0 without a table access.
VQ6192_API uint32_t VQ6192_CES_GetCesChanPara(uint32_t chip, uint32_t ch, VQ6192_CES_CHAN_PARA_S *para) {
    if (!validChip(chip) || !validChan(ch) || para == nullptr) {
        return paraErr(chip);
    }
    *para = {};
    if (isE1Chan(ch)) {
        uint32_t rc = VQ6192_CES_GetCesTSCompress(chip, ch, &para->ulTsMask, VQ6192_BASE_SRV_DIRECT_BOTH);
        if (rc != 0) {
            return stepFailed(chip, "VQ6192_CES_GetCesChanPara", VQ6192_CES_ERR_PARA_TS, rc,
                              "VQ6192_CES_GetCesTSCompress(%u,%u,%u)", chip, ch, 2u);
        }
        uint32_t idle = 0;
        if ((rc = readField(chip, kIdleTable, ch, kIdleCode, idle)) != 0) {
            return stepFailed(chip, "VQ6192_CES_GetCesChanPara", VQ6192_CES_ERR_PARA_IDLE, rc,
                              "VQ6192_Read_Table(%u,%u,%u)", chip, kIdleTable, ch);
        }
        para->ucIdleCode = static_cast<uint8_t>(idle);
    }
    para->usJbDepth = static_cast<uint16_t>(VQ6192_ReadRegField(chip, chanReg(kJbDepthReg, ch), 0, kJbWidth));
    para->usJbDelay = static_cast<uint16_t>(VQ6192_ReadRegField(chip, chanReg(kJbDelayReg, ch), 0, kJbWidth));
    para->ucFramNum =
        static_cast<uint8_t>(VQ6192_ReadRegField(chip, chanReg(kFramNumReg, ch), 0, kFramNumWidth));
    para->ucEmptyCode = static_cast<uint8_t>(VQ6192_ReadRegField(chip, kEmptyCodeReg, 0, 8));
    return 0;
}

VQ6192_API uint32_t Vq6192CesGetChanParaWithoutIdleCode(uint32_t chip, uint32_t ch,
                                                        VQ6192_CES_CHAN_PARA_S *para) {
    if (!validChip(chip) || !validChan(ch) || para == nullptr) {
        return paraErr(chip);
    }
    *para = {};
    if (isE1Chan(ch)) {
        const uint32_t rc =
            VQ6192_CES_GetCesTSCompress(chip, ch, &para->ulTsMask, VQ6192_BASE_SRV_DIRECT_BOTH);
        if (rc != 0) {
            return stepFailed(chip, "VQ6192_CES_GetCesChanPara", VQ6192_CES_ERR_NOIDLE_TS, rc,
                              "VQ6192_CES_GetCesTSCompress(%u,%u,%u)", chip, ch, 2u);
        }
    }
    para->usJbDepth = static_cast<uint16_t>(VQ6192_ReadRegField(chip, chanReg(kJbDepthReg, ch), 0, kJbWidth));
    para->ucFramNum =
        static_cast<uint8_t>(VQ6192_ReadRegField(chip, chanReg(kFramNumReg, ch), 0, kFramNumWidth));
    para->ucEmptyCode = static_cast<uint8_t>(VQ6192_ReadRegField(chip, kEmptyCodeReg, 0, 8));
    return 0;
}

// ---- Chip-wide settings
// ------------------------------------------------------------------------------------

VQ6192_API uint32_t VQ6192_CES_SetCesAlmThld(uint32_t chip, uint32_t thld1, uint32_t thld2) {
    if (!validChip(chip) || thld1 > 0xFF || thld2 > 0xFF) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kAlmThld1Reg, thld1, 0, 8);
    VQ6192_WriteRegField(chip, kAlmThld2Reg, thld2, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_GetCesAlmThld(uint32_t chip, uint32_t *thld1, uint32_t *thld2) {
    if (!validChip(chip) || thld1 == nullptr || thld2 == nullptr) {
        return paraErr(chip);
    }
    *thld1 = VQ6192_ReadRegField(chip, kAlmThld1Reg, 0, 8);
    *thld2 = VQ6192_ReadRegField(chip, kAlmThld2Reg, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetCesFifoThld(uint32_t chip, uint32_t thld) {
    return setGlobal(chip, kFifoThldReg, 0, 11, thld);
}
VQ6192_API uint32_t VQ6192_CES_GetCesFifoThld(uint32_t chip, uint32_t *thld) {
    return getGlobal(chip, kFifoThldReg, 0, 11, thld);
}
VQ6192_API uint32_t VQ6192_CES_SetCesObligateRec(uint32_t chip, uint32_t en) {
    return setGlobal(chip, kObligateRecReg, 0, 1, en);
}
VQ6192_API uint32_t VQ6192_CES_GetCesObligateRec(uint32_t chip, uint32_t *en) {
    return getGlobal(chip, kObligateRecReg, 0, 1, en);
}
VQ6192_API uint32_t VQ6192_CES_SetCesLoopBack(uint32_t chip, uint32_t en) {
    return setGlobal(chip, kLoopBackReg, 0, 1, en);
}
VQ6192_API uint32_t VQ6192_CES_GetCesLoopBack(uint32_t chip, uint32_t *en) {
    return getGlobal(chip, kLoopBackReg, 0, 1, en);
}
VQ6192_API uint32_t VQ6192_CES_SetVC4CesLoopBack(uint32_t chip, uint32_t en) {
    return setGlobal(chip, kLoopBackReg, 1, 1, en);
}
VQ6192_API uint32_t VQ6192_CES_GetVC4CesLoopBack(uint32_t chip, uint32_t *en) {
    return getGlobal(chip, kLoopBackReg, 1, 1, en);
}

// High byte first argument, low byte second.
VQ6192_API uint32_t VQ6192_CES_SetPlcCode(uint32_t chip, uint32_t high, uint32_t low) {
    if (!validChip(chip) || high > 0xFF || low > 0xFF) {
        return paraErr(chip);
    }
    VQ6192_WriteReg(chip, kPlcCodeReg, high << 8 | low);
    return 0;
}

VQ6192_API uint32_t VQ6192_CES_SetTuais(uint32_t chip, uint32_t en) {
    return setGlobal(chip, kTuaisReg, 0, 1, en);
}
VQ6192_API uint32_t VQ6192_CES_SetTuaisCfgTime(uint32_t chip, uint32_t time) {
    return setGlobal(chip, kTuaisCfgTimeReg, 0, 6, time);
}

}  // extern "C"
