// ATM connections: the legality check, the TCAM key, the connection information entry, the steps that
// lay an ingress, egress or local connection, paired connections, deletion and reading back.
#include "atm/atm_internal.h"
#include "platform/osal.h"

extern "C" {
VQ6192_API ATM_CONN_DATA g_conndata[VQ6192_ATM_VCX_NUM];
VQ6192_API ATM_PORT_DATA g_atmportdata[VQ6192_ATM_LINE_PORT_NUM];
VQ6192_API ATM_BM_TEMPLATE_DATA g_bmtemplatedata[VQ6192_ATM_BM_TEMPLATE_NUM];
}

namespace vq::atm {

uint32_t paraErr(uint32_t chip) {
    VQ6192_Printf(chip, kModule, VQ6192_PRINT_PARA_WRONG, "ParaErr. \r\n");
    return paraCode(chip);
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
uint32_t stepErr(uint32_t chip, const char *message) {
    VQ6192_ATM_TRACE(chip, message, chip);
    return paraCode(chip);
}
#pragma GCC diagnostic pop

void pulseBit(uint32_t chip, uint32_t addr, uint32_t bit) {
    for (uint32_t v : {0u, 1u, 0u}) {
        VQ6192_WriteRegField(chip, addr, v, bit, 1);
    }
}

}  // namespace vq::atm

namespace {

using namespace vq::atm;

constexpr uint32_t kSysPortKeyOffset = 2048;  // a system port in the TCAM key
constexpr uint32_t kDrainRounds = 200;
constexpr uint32_t kDrainTicks = 20;

// Queue weight or rate class of an egress or local connection: CBR rate classes 0..15, WRR weights
// 1..8190 otherwise.
bool legalQid(uint32_t stype, uint32_t qid) {
    return stype == 1 ? qid <= 15 : (qid >= 1 && qid <= 8190);
}

bool legalConn(const ATM_SRV_CONN &c) {
    if (c.cType >= 2 || c.Tag >= 3 || c.UpcNpc >= 2 || c.PolicingId >= 8192 || c.Stype >= 6 ||
        c.Vcx >= 8192) {
        return false;
    }
    if (c.SrcPort > (c.Tag == DRV_VQ6192_ATM_DIR_EGRESS ? 2047 : 335)) {
        return false;
    }
    if (c.Tag == DRV_VQ6192_ATM_DIR_INGRESS) {
        return c.DstPort <= 2047;
    }
    return c.DstPort <= 335 && legalQid(c.Stype, c.Qid) && c.Clpt < 2 && c.Fd < 2 && c.Pfd < 2 && c.Red < 2 &&
           c.idx < 64;
}

struct Step {
    uint32_t (*run)(uint32_t chip, const ATM_SRV_CONN &c);
    const char *message;
};

uint32_t stepVcs(uint32_t chip, const ATM_SRV_CONN &c) {
    return VQ6192_ATM_SetAtmVcs(chip, &c);
}
uint32_t stepTcam(uint32_t chip, const ATM_SRV_CONN &c) {
    return VQ6192_ATM_SetAtmTcam(chip, &c);
}
uint32_t stepVct(uint32_t chip, const ATM_SRV_CONN &c) {
    return VQ6192_ATM_SetAtmVct(chip, &c);
}
uint32_t stepEnable(uint32_t chip, const ATM_SRV_CONN &c) {
    return VQ6192_ATM_SetAtmVcxEn(chip, c.Vcx, 1);
}
uint32_t stepSpctDst(uint32_t chip, const ATM_SRV_CONN &c) {
    return VQ6192_ATM_SetAtmSpct(chip, c.DstPort);
}
uint32_t stepSpctSrc(uint32_t chip, const ATM_SRV_CONN &c) {
    return VQ6192_ATM_SetAtmSpct(chip, c.SrcPort);
}
uint32_t stepLpctSrc(uint32_t chip, const ATM_SRV_CONN &c) {
    return VQ6192_ATM_SetAtmLpct(chip, c.SrcPort);
}
uint32_t stepLpctDst(uint32_t chip, const ATM_SRV_CONN &c) {
    return VQ6192_ATM_SetAtmLpct(chip, c.DstPort);
}
uint32_t stepBm(uint32_t chip, const ATM_SRV_CONN &c) {
    const uint8_t bm[5] = {c.Clpt, c.Fd, c.Pfd, c.Red, c.idx};
    return VQ6192_ATM_SetAtmBmPvc(chip, c.Vcx, bm);
}
uint32_t stepQm(uint32_t chip, const ATM_SRV_CONN &c) {
    return VQ6192_ATM_SetAtmQm(chip, c.Vcx, c.DstPort, c.Stype, c.Qid);
}

// clang-format off
constexpr Step kFwdSteps[] = {
    {stepVcs,     "Err. VQ6192_ATM_AddAtmFwdConn: Set VCS Table Error! ChipID: %#x\r\n"},
    {stepTcam,    "Err. VQ6192_ATM_AddAtmFwdConn: Set TCAM Reg Error! ChipID: %#x\r\n"},
    {stepVct,     "Err. VQ6192_ATM_AddAtmFwdConn: Set VCT Table Error! ChipID: %#x\r\n"},
    {stepEnable,  "Err. VQ6192_ATM_AddAtmFwdConn: Set VCX Table Error! ChipID: %#x\r\n"},
    {stepSpctDst, "Err. VQ6192_ATM_AddAtmFwdConn: Set SPCT Table Error! ChipID: %#x\r\n"},
    {stepLpctSrc, "Err. VQ6192_ATM_AddAtmFwdConn: Set LPCT Table Error! ChipID: %#x\r\n"},
};
constexpr Step kBwdSteps[] = {
    {stepVcs,     "Err. VQ6192_ATM_AddAtmBwdConn: Set VCS Table Error! ChipID: %#x\r\n"},
    {stepTcam,    "Err. VQ6192_ATM_AddAtmBwdConn: Set TCAM Reg Error! ChipID: %#x\r\n"},
    {stepVct,     "Err. VQ6192_ATM_AddAtmBwdConn: Set VCT Table Error! ChipID: %#x\r\n"},
    {stepBm,      "Err. VQ6192_ATM_AddAtmBwdConn: Set BM Table Error! ChipID: %#x\r\n"},
    {stepQm,      "Err. VQ6192_ATM_AddAtmBwdConn: Set QM Table Error! ChipID: %#x\r\n"},
    {stepEnable,  "Err. VQ6192_ATM_AddAtmBwdConn: Set VCX Table Error! ChipID: %#x\r\n"},
    {stepLpctDst, "Err. VQ6192_ATM_AddAtmBwdConn: Set LPCT Table Error! ChipID: %#x\r\n"},
    {stepSpctSrc, "Err. VQ6192_ATM_AddAtmBwdConn: Set SPCT Table Error! ChipID: %#x\r\n"},
};
// The second line-port enable of a local connection reports with the SPCT text.
constexpr Step kLocalSteps[] = {
    {stepVcs,     "Err. VQ6192_ATM_AddAtmLocalConn: Set VCS Table Error! ChipID: %#x\r\n"},
    {stepTcam,    "Err. VQ6192_ATM_AddAtmLocalConn: Set TCAM Reg Error! ChipID: %#x\r\n"},
    {stepVct,     "Err. VQ6192_ATM_AddAtmLocalConn: Set VCT Table Error! ChipID: %#x\r\n"},
    {stepBm,      "Err. VQ6192_ATM_AddAtmLocalConn: Set BM Table Error! ChipID: %#x\r\n"},
    {stepQm,      "Err. VQ6192_ATM_AddAtmLocalConn: Set QM Table Error! ChipID: %#x\r\n"},
    {stepEnable,  "Err. VQ6192_ATM_AddAtmLocalConn: Set VCX Table Error! ChipID: %#x\r\n"},
    {stepLpctSrc, "Err. VQ6192_ATM_AddAtmLocalConn: Set LPCT Table Error! ChipID: %#x\r\n"},
    {stepLpctDst, "Err. VQ6192_ATM_AddAtmLocalConn: Set SPCT Table Error! ChipID: %#x\r\n"},
};
// clang-format on

// Runs the steps in order and stops at the first failure; nothing already written is undone.
template <size_t N>
uint32_t runSteps(uint32_t chip, const ATM_SRV_CONN *c, const Step (&steps)[N]) {
    if (!vq::validChip(chip) || c == nullptr) {
        return paraErr(chip);
    }
    for (const Step &s : steps) {
        if (s.run(chip, *c) != 0) {
            return stepErr(chip, s.message);
        }
    }
    return 0;
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ATM_GetAtmVcx(uint32_t chip, uint32_t wLink, uint32_t dir, uint16_t *wVCX) {
    if (!vq::validChip(chip) || wVCX == nullptr || wLink >= VQ6192_ATM_LINK_NUM || dir >= 2) {
        return paraErr(chip);
    }
    *wVCX = static_cast<uint16_t>(2 * wLink + ((dir + 1) >> 1));
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_IsConnParasLegal(uint32_t chip, const ATM_SRV_CONN *conn) {
    if (!vq::validChip(chip) || conn == nullptr || !legalConn(*conn)) {
        return paraErr(chip);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmTcam(uint32_t chip, const ATM_SRV_CONN *conn) {
    if (!vq::validChip(chip) || conn == nullptr || conn->cType >= 2) {
        return paraErr(chip);
    }
    const ATM_SRV_CONN c = *conn;
    return modifyEntry(chip, kTcam, c.Vcx, [&](Entry &e) {
        const uint32_t port = c.SrcPort + (c.Tag == DRV_VQ6192_ATM_DIR_EGRESS ? kSysPortKeyOffset : 0);
        e.set(kTcamPort, port);
        e.set(kTcamVpi, c.SrcVpi);
        e.set(kTcamVci, c.SrcVci);
        // A VPC leaves the VCI (key bits 0..15) out of the comparison.
        e.set(kTcamMaskl, c.cType == 0 ? 0xFFFF0000u : 0xFFFFFFFFu);
        e.set(kTcamMaskh, 0xFF);
        e.set(kTcamVld, 1);
    });
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmVcs(uint32_t chip, const ATM_SRV_CONN *conn) {
    if (!vq::validChip(chip) || conn == nullptr) {
        return paraErr(chip);
    }
    const ATM_SRV_CONN c = *conn;
    return modifyEntry(chip, kVct, c.Vcx, [&](Entry &e) {
        e.set(kVctNewvci, c.DstVci);
        e.set(kVctNewvpi, c.DstVpi & 0xFFu);
        e.set(kVctGfcnewvpi, (c.DstVpi >> 8) & 0xFu);
        e.set(kVctOutport, c.DstPort);
        e.set(kVctDir, c.Tag != DRV_VQ6192_ATM_DIR_INGRESS ? 1 : 0);
        e.set(kVctChntype, c.cType);
        e.set(kVctTraffictype, c.Stype);
    });
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmVct(uint32_t chip, const ATM_SRV_CONN *conn) {
    if (!vq::validChip(chip) || conn == nullptr) {
        return paraErr(chip);
    }
    const ATM_SRV_CONN c = *conn;
    return modifyEntry(chip, kVct, c.Vcx, [&](Entry &e) {
        e.set(kVctUpcnpc, c.UpcNpc);
        e.set(kVctPolicingid, c.PolicingId);
    });
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmVcxEn(uint32_t chip, uint32_t vcx, uint32_t enable) {
    if (!vq::validChip(chip) || vcx > VQ6192_ATM_VCX_NUM || enable > 1) {
        return paraErr(chip);
    }
    return modifyEntry(chip, kVct, vcx, [&](Entry &e) { e.set(kVctValid, enable); });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmVcxEnStat(uint32_t chip, uint32_t vcx, uint8_t *byEnable) {
    if (!vq::validChip(chip) || vcx > VQ6192_ATM_VCX_NUM || byEnable == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kVct, vcx, e);
    *byEnable = static_cast<uint8_t>(e.get(kVctValid));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmSpct(uint32_t chip, uint32_t systemPort) {
    if (!vq::validChip(chip) || systemPort >= VQ6192_ATM_SYS_PORT_NUM) {
        return paraErr(chip);
    }
    return modifyEntry(chip, kSpct, systemPort, [](Entry &e) {
        e.set(kSpctPorten, 1);
        e.set(kSpctPortmap, 0);
    });
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmLpct(uint32_t chip, uint32_t linePort) {
    if (!vq::validChip(chip) || linePort >= VQ6192_ATM_LINE_PORT_NUM) {
        return paraErr(chip);
    }
    return modifyEntry(chip, kLpct, linePort, [](Entry &e) {
        e.set(kLpctPorten, 1);
        e.set(kLpctPortmap, 0);
        e.set(kLpctLoopout, 0);
    });
}

VQ6192_API uint32_t VQ6192_ATM_AddAtmFwdConn(uint32_t chip, const ATM_SRV_CONN *conn) {
    return runSteps(chip, conn, kFwdSteps);
}

VQ6192_API uint32_t VQ6192_ATM_AddAtmBwdConn(uint32_t chip, const ATM_SRV_CONN *conn) {
    return runSteps(chip, conn, kBwdSteps);
}

VQ6192_API uint32_t VQ6192_ATM_AddAtmLocalConn(uint32_t chip, const ATM_SRV_CONN *conn) {
    return runSteps(chip, conn, kLocalSteps);
}

VQ6192_API uint32_t VQ6192_ATM_AddAtmSrvConn(uint32_t chip, const ATM_SRV_CONN *conn) {
    if (VQ6192_ATM_IsConnParasLegal(chip, conn) != 0) {
        return stepErr(chip,
                       "Err. VQ6192_ATM_AddAtmSrvConn: IsConnParasLegal parameter error! ChipID: %#x\r\n");
    }
    switch (conn->Tag) {
        case DRV_VQ6192_ATM_DIR_INGRESS:
            return VQ6192_ATM_AddAtmFwdConn(chip, conn);
        case DRV_VQ6192_ATM_DIR_EGRESS:
            return VQ6192_ATM_AddAtmBwdConn(chip, conn);
        case DRV_VQ6192_ATM_DIR_LOCAL:
            return VQ6192_ATM_AddAtmLocalConn(chip, conn);
        default:
            return stepErr(chip, "Err. VQ6192_ATM_AddAtmSrvConn: link Dir is error! ChipID: %#x\r\n");
    }
}

}  // extern "C"

namespace {

constexpr char kBothDirErr[] = "Err. VQ6192_ATM_AddAtmSrvConnBoth: link Dir is error! ChipID: %#x\r\n";

ATM_SRV_CONN leg(uint32_t vcx, uint32_t tag, uint32_t cType, const uint16_t src[3], const uint16_t dst[3],
                 uint32_t stype, uint32_t upc, uint32_t pol, uint32_t qid, const uint8_t bm[5]) {
    ATM_SRV_CONN c{};
    c.Vcx = static_cast<uint16_t>(vcx);
    c.Tag = static_cast<uint16_t>(tag);
    c.cType = static_cast<uint16_t>(cType);
    c.SrcPort = src[0];
    c.SrcVpi = src[1];
    c.SrcVci = src[2];
    c.DstPort = dst[0];
    c.DstVpi = dst[1];
    c.DstVci = dst[2];
    c.Stype = static_cast<uint16_t>(stype);
    c.UpcNpc = static_cast<uint16_t>(upc);
    c.PolicingId = static_cast<uint16_t>(pol);
    c.Qid = static_cast<uint16_t>(qid);
    c.Clpt = bm[0];
    c.Fd = bm[1];
    c.Pfd = bm[2];
    c.Red = bm[3];
    c.idx = bm[4];
    return c;
}

// Egress leg (VCX 2L + 1) first; the ingress leg (VCX 2L) only after it was laid.
uint32_t addPair(uint32_t chip, const ATM_SRV_CONN &egress, const ATM_SRV_CONN &ingress) {
    if (VQ6192_ATM_AddAtmSrvConn(chip, &egress) != 0) {
        return paraCode(chip);
    }
    return VQ6192_ATM_AddAtmSrvConn(chip, &ingress);
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ATM_AddAtmSrvConnBoth(uint32_t chip, const ATM_SRV_CONN_BOTH *conn) {
    if (!vq::validChip(chip) || conn == nullptr || conn->wInPolicingId >= 8192 ||
        conn->wEgPolicingId >= 8192 || conn->wInUpcNpc >= 2 || conn->wEgUpcNpc >= 2) {
        return paraErr(chip);
    }
    const ATM_SRV_CONN_BOTH &b = *conn;
    const uint16_t line[3] = {b.wLinePort, b.wLineVpi, b.wLineVci};
    const uint16_t sys[3] = {b.wSysPort, b.wSysVpi, b.wSysVci};
    const uint8_t bm[5] = {b.Clpt, b.Fd, b.Pfd, b.Red, b.idx};
    if (b.wKind == 1) {
        if (b.wLink >= VQ6192_ATM_LINK_NUM || b.wInStype >= 6 || b.wEgStype >= 6) {
            return paraErr(chip);
        }
        const ATM_SRV_CONN eg = leg(2u * b.wLink + 1, DRV_VQ6192_ATM_DIR_EGRESS, b.cType, sys, line,
                                    b.wEgStype, b.wEgUpcNpc, b.wEgPolicingId, b.Qid, bm);
        const ATM_SRV_CONN in = leg(2u * b.wLink, DRV_VQ6192_ATM_DIR_INGRESS, b.cType, line, sys, b.wInStype,
                                    b.wInUpcNpc, b.wInPolicingId, b.Qid, bm);
        return addPair(chip, eg, in);
    }
    if (b.wKind == 2) {
        if (b.wLink >= VQ6192_ATM_VCX_NUM) {
            return paraErr(chip);
        }
        const ATM_SRV_CONN local = leg(b.wLink, DRV_VQ6192_ATM_DIR_LOCAL, b.cType, line, sys, b.wInStype,
                                       b.wInUpcNpc, b.wInPolicingId, b.Qid, bm);
        return VQ6192_ATM_AddAtmSrvConn(chip, &local);
    }
    return stepErr(chip, kBothDirErr);
}

VQ6192_API uint32_t VQ6192_ATM_AddAtmSrvConnBothAndSingle(uint32_t chip,
                                                          const ATM_SRV_CONN_BOTH_SINGLE *conn) {
    if (!vq::validChip(chip) || conn == nullptr) {
        return paraErr(chip);
    }
    const ATM_SRV_CONN_BOTH_SINGLE &b = *conn;
    if (b.wKind != 1) {
        return stepErr(chip, kBothDirErr);
    }
    if (b.wLink >= VQ6192_ATM_LINK_NUM || b.wInStype >= 6 || b.wEgStype >= 6 || b.wInPolicingId >= 8192 ||
        b.wEgPolicingId >= 8192 || b.wInUpcNpc >= 2 || b.wEgUpcNpc >= 2) {
        return paraErr(chip);
    }
    const uint16_t inSrc[3] = {b.wInSrcPort, b.wInSrcVpi, b.wInSrcVci};
    const uint16_t inDst[3] = {b.wInDstPort, b.wInDstVpi, b.wInDstVci};
    const uint16_t egSrc[3] = {b.wEgSrcPort, b.wEgSrcVpi, b.wEgSrcVci};
    const uint16_t egDst[3] = {b.wEgDstPort, b.wEgDstVpi, b.wEgDstVci};
    const uint8_t bm[5] = {b.Clpt, b.Fd, b.Pfd, b.Red, b.idx};
    const ATM_SRV_CONN eg = leg(2u * b.wLink + 1, DRV_VQ6192_ATM_DIR_EGRESS, b.cType, egSrc, egDst,
                                b.wEgStype, b.wEgUpcNpc, b.wEgPolicingId, b.Qid, bm);
    const ATM_SRV_CONN in = leg(2u * b.wLink, DRV_VQ6192_ATM_DIR_INGRESS, b.cType, inSrc, inDst, b.wInStype,
                                b.wInUpcNpc, b.wInPolicingId, b.Qid, bm);
    return addPair(chip, eg, in);
}

VQ6192_API uint32_t VQ6192_ATM_DelAtmSrvConn(uint32_t chip, const uint16_t rec[2]) {
    if (!vq::validChip(chip) || rec == nullptr || rec[0] > VQ6192_ATM_VCX_NUM ||
        rec[1] > DRV_VQ6192_ATM_DIR_LOCAL) {
        return paraErr(chip);
    }
    const uint32_t vcx = rec[0];
    const uint32_t tag = rec[1];
    // The connection stops switching first; its result does not stop the deletion.
    (void)VQ6192_ATM_SetAtmVcxEn(chip, vcx, 0);
    if (tag != DRV_VQ6192_ATM_DIR_INGRESS) {
        uint32_t round = 0;
        for (; round < kDrainRounds; ++round) {
            Entry q;
            (void)readEntry(chip, kLinkQm, vcx, q);
            if (q.get(kQmLen) == 0) {
                break;
            }
            vq::OSK_TaskDelay(kDrainTicks);
        }
        if (round == kDrainRounds) {
            VQ6192_ATM_TRACE(chip,
                             "Err. VQ6192_ATM_DelAtmSrvConn: Len has Cell after Cycle %d!  ChipID: %#x\r\n",
                             static_cast<int>(round), chip);
        }
    }
    uint32_t rc = modifyEntry(chip, kTcam, vcx, [](Entry &e) {
        e.w[0] = 0;
        e.w[1] = 0;
        vq::setEntryBits(e.w, 64, 17, 0);
    });
    rc |= modifyEntry(chip, kVct, vcx, [](Entry &e) {
        e.w[0] = 0;
        e.w[1] = 0;
        vq::setEntryBits(e.w, 64, 5, 0);
    });
    if (rc != 0) {
        return stepErr(chip, "Err. VQ6192_ATM_DelAtmSrvConn: Delete Switch Error!  ChipID: %#x\r\n");
    }
    if (tag == DRV_VQ6192_ATM_DIR_INGRESS) {
        return 0;
    }
    if (VQ6192_ATM_DelAtmBwdQm(chip, vcx, 1) != 0) {
        return stepErr(chip, "Err. VQ6192_ATM_DelAtmSrvConn: Delete DelAtmBwdQm Error!  ChipID: %#x\r\n");
    }
    const uint8_t none[5] = {0, 0, 0, 0, 0};
    if (VQ6192_ATM_SetAtmBmPvc(chip, vcx, none) != 0) {
        return stepErr(chip, "Err. VQ6192_ATM_DelAtmSrvConn: Delete SetAtmBmPvc Error!  ChipID: %#x\r\n");
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_DelAtmSrvConnBoth(uint32_t chip, const uint16_t rec[2]) {
    if (!vq::validChip(chip) || rec == nullptr) {
        return paraErr(chip);
    }
    const uint32_t n = rec[0];
    if (rec[1] == 1 && n < VQ6192_ATM_LINK_NUM) {
        const uint16_t in[2] = {static_cast<uint16_t>(2 * n), DRV_VQ6192_ATM_DIR_INGRESS};
        if (VQ6192_ATM_DelAtmSrvConn(chip, in) != 0) {
            return stepErr(chip,
                           "Err. VQ6192_ATM_DelAtmSrvConnBoth: Delete DRV_VQ6192_ATM_DIR_INGRESS Error! "
                           "ChipID: %#x\r\n");
        }
        const uint16_t eg[2] = {static_cast<uint16_t>(2 * n + 1), DRV_VQ6192_ATM_DIR_EGRESS};
        if (VQ6192_ATM_DelAtmSrvConn(chip, eg) != 0) {
            return stepErr(
                chip,
                "Err. VQ6192_ATM_DelAtmSrvConnBoth: Delete DRV_VQ6192_ATM_DIR_EGRESS Error! ChipID: %#x\r\n");
        }
        return 0;
    }
    if (rec[1] == 2 && n <= VQ6192_ATM_VCX_NUM) {
        const uint16_t local[2] = {static_cast<uint16_t>(n), DRV_VQ6192_ATM_DIR_LOCAL};
        if (VQ6192_ATM_DelAtmSrvConn(chip, local) != 0) {
            return stepErr(
                chip,
                "Err. VQ6192_ATM_DelAtmSrvConnBoth: Delete DRV_VQ6192_ATM_DIR_LOCAL Error! ChipID: %#x\r\n");
        }
        return 0;
    }
    return paraErr(chip);
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmSrvConn(uint32_t chip, uint32_t vcx, ATM_SRV_CONN *conn) {
    if (!vq::validChip(chip) || vcx > VQ6192_ATM_VCX_NUM || conn == nullptr) {
        return paraErr(chip);
    }
    *conn = ATM_SRV_CONN{};
    Entry tcam;
    if (readEntry(chip, kTcam, vcx, tcam) != 0) {
        return paraCode(chip);
    }
    Entry vct;
    const uint32_t rcVct = readEntry(chip, kVct, vcx, vct);
    conn->cType = static_cast<uint16_t>(vct.get(kVctChntype));
    conn->PolicingId = static_cast<uint16_t>(vct.get(kVctPolicingid));
    conn->DstPort = static_cast<uint16_t>(vct.get(kVctOutport));
    conn->Stype = static_cast<uint16_t>(vct.get(kVctTraffictype));
    conn->DstVci = static_cast<uint16_t>(vct.get(kVctNewvci));
    conn->UpcNpc = static_cast<uint16_t>(vct.get(kVctUpcnpc));
    conn->DstVpi = static_cast<uint16_t>(vct.get(kVctNewvpi));
    if (rcVct == 0 && vct.get(kVctValid) == 0) {
        return 0;
    }
    const uint32_t keyPort = tcam.get(kTcamPort);
    const bool fromSystem = keyPort >= kSysPortKeyOffset;
    uint8_t nni = 0;
    uint32_t rcType = rcVct;
    if (rcVct == 0) {
        if (vct.get(kVctDir) == 0) {
            if (fromSystem) {
                return paraCode(chip);
            }
            conn->Tag = DRV_VQ6192_ATM_DIR_INGRESS;
            rcType = VQ6192_ATM_GetAtmPortType(chip, conn->DstPort, 1, &nni);
        } else {
            conn->Tag = fromSystem ? DRV_VQ6192_ATM_DIR_EGRESS : DRV_VQ6192_ATM_DIR_LOCAL;
            rcType = VQ6192_ATM_GetAtmPortType(chip, conn->DstPort, 0, &nni);
        }
    }
    if (rcType != 0) {
        return stepErr(chip, "Err. VQ6192_ATM_GetAtmSrvConn: get UNIFlag is error! ChipID: %#x\r\n");
    }
    if (nni == 1) {
        conn->DstVpi = static_cast<uint16_t>(vct.get(kVctNewvpi) | vct.get(kVctGfcnewvpi) << 8);
    }
    // The source port is reported from the TCAM key (system ports are keyed 2048 higher).
    conn->SrcPort = static_cast<uint16_t>(fromSystem ? keyPort - kSysPortKeyOffset : keyPort);
    Entry qm;
    Entry bm;
    uint32_t rc = readEntry(chip, kLinkQm, vcx, qm);
    rc |= readEntry(chip, kBmPvc, vcx, bm);
    conn->Qid = static_cast<uint16_t>(qm.get(kQmQid));
    conn->Clpt = static_cast<uint8_t>(bm.get(kBmPvcClpt));
    conn->Fd = static_cast<uint8_t>(bm.get(kBmPvcFd));
    conn->Pfd = static_cast<uint8_t>(bm.get(kBmPvcPfd));
    conn->Red = static_cast<uint8_t>(bm.get(kBmPvcRed));
    conn->idx = static_cast<uint8_t>(bm.get(kBmPvcThIndex));
    conn->Vcx = static_cast<uint16_t>(vcx);
    conn->SrcVci = static_cast<uint16_t>(tcam.get(kTcamVci));
    conn->SrcVpi = static_cast<uint16_t>(tcam.get(kTcamVpi));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmUpcNpcEn(uint32_t chip, uint32_t vcx, uint32_t enable) {
    if (!vq::validChip(chip) || vcx > VQ6192_ATM_VCX_NUM || enable > 1) {
        return paraErr(chip);
    }
    return modifyEntry(chip, kVct, vcx, [&](Entry &e) { e.set(kVctUpcnpc, enable); });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmUpcNpcEnStat(uint32_t chip, uint32_t vcx, uint8_t *byEnable) {
    if (!vq::validChip(chip) || vcx > VQ6192_ATM_VCX_NUM || byEnable == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kVct, vcx, e);
    *byEnable = static_cast<uint8_t>(e.get(kVctUpcnpc));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmPolicingID(uint32_t chip, uint32_t vcx, uint32_t upcNpc,
                                                uint32_t wPolicingID) {
    if (!vq::validChip(chip) || vcx > VQ6192_ATM_VCX_NUM || upcNpc > 1 || wPolicingID >= 8192) {
        return paraErr(chip);
    }
    return modifyEntry(chip, kVct, vcx, [&](Entry &e) {
        e.set(kVctUpcnpc, upcNpc);
        e.set(kVctPolicingid, wPolicingID);
    });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmPolicingID(uint32_t chip, uint32_t vcx, uint16_t *wPolicingID) {
    if (!vq::validChip(chip) || vcx > VQ6192_ATM_VCX_NUM || wPolicingID == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kVct, vcx, e);
    *wPolicingID = static_cast<uint16_t>(e.get(kVctPolicingid));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_GetLinkType(uint32_t chip, uint32_t vcx, uint16_t *wType) {
    if (!vq::validChip(chip) || vcx > VQ6192_ATM_VCX_NUM || wType == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kVct, vcx, e);
    *wType = static_cast<uint16_t>(e.get(kVctChntype));
    return rc;
}

}  // extern "C"
