// PPP statistics (link, bundle and global counters, CRC correction and FIFO flags) and the link delay
// test.
#include <cstring>

#include "ppp/ppp_internal.h"

using namespace vq::ppp;

namespace {

// A counter of a per-member counter table: member m of link or bundle n is held at entry
// m * stride + n, in the field of member m.
struct MemberCounter {
    uint32_t member;
    vq::EntryField field;
    uint32_t VQ6192_PPP_LINK_STAT_S::*out;
};

// clang-format off
constexpr MemberCounter kRxCounters[] = {
    {7, vq::entryField("Rppustat", "Rxbytes"), &VQ6192_PPP_LINK_STAT_S::dwRxBytesCnt},
    {6, vq::entryField("Rppustat", "Ravail"),  &VQ6192_PPP_LINK_STAT_S::dwRxAvailCnt},
    {0, vq::entryField("Rppustat", "Rright"),  &VQ6192_PPP_LINK_STAT_S::dwRxRightCnt},
    {5, vq::entryField("Rppustat", "Rabort"),  &VQ6192_PPP_LINK_STAT_S::dwRxAbortCnt},
    {4, vq::entryField("Rppustat", "Rcrc"),    &VQ6192_PPP_LINK_STAT_S::dwRxCrcErrCnt},
    {3, vq::entryField("Rppustat", "Rbyte"),   &VQ6192_PPP_LINK_STAT_S::dwRx8bitErrCnt},
    {2, vq::entryField("Rppustat", "Rlong"),   &VQ6192_PPP_LINK_STAT_S::dwRxLongErrCnt},
    {1, vq::entryField("Rppustat", "Rshort"),  &VQ6192_PPP_LINK_STAT_S::dwRxShortErrCnt},
};
constexpr MemberCounter kTxCounters[] = {
    {3, vq::entryField("Tppustat", "Txbytes"), &VQ6192_PPP_LINK_STAT_S::dwTxBytesCnt},
    {2, vq::entryField("Tppustat", "Tright"),  &VQ6192_PPP_LINK_STAT_S::dwTxRightCnt},
    {1, vq::entryField("Tppustat", "Tabort"),  &VQ6192_PPP_LINK_STAT_S::dwTxAbortCnt},
    {0, vq::entryField("Tppustat", "Terr"),    &VQ6192_PPP_LINK_STAT_S::dwTxErrCnt},
};

struct GroupCounter {
    uint32_t member;
    vq::EntryField field;
    uint32_t VQ6192_MP_INGRESS_STAT_S::*out;
};
constexpr GroupCounter kGroupCounters[] = {
    {0, vq::entryField("Mprgrppktcnt", "Mprgrpfragcnt"),  &VQ6192_MP_INGRESS_STAT_S::dwRgrpFragCnt},
    {1, vq::entryField("Mprgrppktcnt", "Mprgrppackcnt"),  &VQ6192_MP_INGRESS_STAT_S::dwRgrpPktCnt},
    {2, vq::entryField("Mprgrppktcnt", "Mprgrpabrcnt"),   &VQ6192_MP_INGRESS_STAT_S::dwRgrpAbrCnt},
    {4, vq::entryField("Mprgrppktcnt", "Mprgrprepcnt"),   &VQ6192_MP_INGRESS_STAT_S::dwRgrpRepCnt},
    {3, vq::entryField("Mprgrppktcnt", "Mprgrpotcnt"),    &VQ6192_MP_INGRESS_STAT_S::dwRgrpOtCnt},
    {5, vq::entryField("Mprgrppktcnt", "Mprgrpsnerrcnt"), &VQ6192_MP_INGRESS_STAT_S::dwRgrpSnErrCnt},
};

// Global 16-bit counters: register and field.
struct Reg16 {
    uint32_t addr;
    uint16_t VQ6192_PPP_GLOBAL_IN_STAT_S::*out;
};
constexpr Reg16 kInReg16[] = {
    {0x11004, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRppuRsrCnt},     {0x11006, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRppu7ECnt},
    {0x11008, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRppuAbortCnt},   {0x1100A, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRppuCobcCnt},
    {0x1100C, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRppuAfidCnt},    {0x1100E, &VQ6192_PPP_GLOBAL_IN_STAT_S::wTppuTsrCnt},
    {0x13054, &VQ6192_PPP_GLOBAL_IN_STAT_S::wSFifoDropCnt},   {0x13056, &VQ6192_PPP_GLOBAL_IN_STAT_S::wPhpFifoDropCnt},
    {0x13058, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRpDdrErrDropCnt}, {0x1305A, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRpHeadErrDropCnt},
    {0x1305C, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRpLenErrDropCnt}, {0x1305E, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRprgErrDropCnt},
    {0x13060, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRpVldErrDropCnt}, {0x13062, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRpMrruErrDropCnt},
    {0x13064, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRpFragErrCnt},   {0x1321C, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRxmDropCnt},
    {0x1321E, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRxmPdFullDropCnt}, {0x13220, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRxmPrlsCnt},
    {0x13222, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRxmMerrCnt},     {0x13224, &VQ6192_PPP_GLOBAL_IN_STAT_S::wRxmRerrCnt},
};
// 32-bit counters: low half at addr, high half at addr + 2.
struct Reg32 {
    uint32_t addr;
    uint32_t VQ6192_PPP_GLOBAL_IN_STAT_S::*out;
};
constexpr Reg32 kInReg32[] = {
    {0x13028, &VQ6192_PPP_GLOBAL_IN_STAT_S::dwRpHdlcCnt},     {0x1302C, &VQ6192_PPP_GLOBAL_IN_STAT_S::dwRpBnCnt},
    {0x13030, &VQ6192_PPP_GLOBAL_IN_STAT_S::dwRpPtCnt},       {0x13034, &VQ6192_PPP_GLOBAL_IN_STAT_S::dwRpEsptCnt},
    {0x13038, &VQ6192_PPP_GLOBAL_IN_STAT_S::dwRpCsptCnt},     {0x1303C, &VQ6192_PPP_GLOBAL_IN_STAT_S::dwRpDcnCnt},
    {0x13040, &VQ6192_PPP_GLOBAL_IN_STAT_S::dwRpHdlcDropCnt}, {0x13044, &VQ6192_PPP_GLOBAL_IN_STAT_S::dwRpPppDropCnt},
};

struct EgReg {
    uint32_t addr;
    uint32_t width;
    uint16_t VQ6192_PPP_GLOBAL_EG_STAT_S::*out;
};
constexpr EgReg kEgRegs[] = {
    {0x12014, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpPppCnt},      {0x12012, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpMpCnt},
    {0x1201A, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpPppPCnt},     {0x12018, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpMpPCnt},
    {0x12016, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpPppDcnCnt},   {0x1200E, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpMpDcnCnt},
    {0x12010, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpT6Cnt},       {0x12040, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wFragBCnt},
    {0x12200, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wFragECnt},      {0x12030, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpTdisDropCnt},
    {0x12032, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpFdisDropCnt}, {0x12004, 3,  &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpPdisDropCnt},
    {0x12006, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpNdisDropCnt}, {0x12008, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpSEDropCnt},
    {0x1200A, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpSSDropCnt},   {0x1200C, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpEEDropCnt},
    {0x1201C, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpBdFullDropCnt}, {0x1202A, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpDfifoErrCnt},
    {0x1202E, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpErrPktCnt},   {0x1202C, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpDfifoCnt},
    {0x1203C, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpFragCnt},     {0x1203E, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wFragPppCnt},
    {0x12036, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpLdisCnt},     {0x12038, 16, &VQ6192_PPP_GLOBAL_EG_STAT_S::wTpMdisCnt},
};

// FIFO flags: the bit in both words, and the register bit of the current and of the latched flag
// (address 0: the flag has no such source and reads 0).
struct FifoFlag {
    uint8_t bit;
    uint32_t curAddr;
    uint8_t curBit;
    uint32_t hisAddr;
    uint8_t hisBit;
};
constexpr FifoFlag kFifoFlags[] = {
    {31, 0x1304C, 3, 0x1304E, 1}, {30, 0x1304C, 2, 0, 0}, {29, 0x1304C, 1, 0x1304E, 0}, {28, 0x1304C, 0, 0, 0},
    {27, 0,       0, 0x13204, 5}, {26, 0,       0, 0x13204, 4}, {25, 0x13204, 0, 0, 0},
    {24, 0x13050, 3, 0x13052, 1}, {23, 0x13050, 2, 0, 0}, {22, 0x13050, 1, 0x13052, 0}, {21, 0x13050, 0, 0, 0},
    {20, 0x130D6, 5, 0x130D8, 2}, {19, 0x130D6, 4, 0, 0}, {18, 0x130D6, 3, 0x130D8, 1}, {17, 0x130D6, 2, 0, 0},
    {16, 0x130D6, 1, 0x130D8, 0}, {15, 0x130D6, 0, 0, 0},
    {14, 0x130DA, 9, 0x130DC, 4}, {13, 0x130DA, 8, 0, 0}, {12, 0x130DA, 7, 0x130DC, 3}, {11, 0x130DA, 6, 0, 0},
    {10, 0x130DA, 5, 0x130DC, 2}, { 9, 0x130DA, 4, 0, 0}, { 8, 0x130DA, 3, 0x130DC, 1}, { 7, 0x130DA, 2, 0, 0},
    { 6, 0x130DA, 1, 0x130DC, 0}, { 5, 0x130DA, 0, 0, 0},
};
// clang-format on
constexpr uint32_t kFifoKeptBits = 0x1F;

constexpr uint32_t kCorrectCntBase = 0x11400, kCorrectErrBase = 0x11500, kCrcFifoDropBase = 0x11700;
constexpr uint32_t kCrcFifoStatusBase = 0x11300;

uint32_t readLinkCounters(uint32_t chip, uint32_t ch, VQ6192_PPP_LINK_STAT_S *s, bool forMp) {
    const uint32_t in = ingressInner(chip, ch);
    const uint32_t out = egressInner(chip, ch);
    uint32_t rc = 0;
    for (const MemberCounter &c : kRxCounters) {
        if (forMp && c.out != &VQ6192_PPP_LINK_STAT_S::dwRxBytesCnt &&
            c.out != &VQ6192_PPP_LINK_STAT_S::dwRxRightCnt) {
            continue;
        }
        rc |= getField(chip, c.member * kLinkStatStride + in, c.field, &(s->*c.out));
    }
    if (!forMp) {
        rc |= getField(chip, in, kMprxmlinkcnt, &s->dwRxmLinkCnt);
    }
    for (const MemberCounter &c : kTxCounters) {
        rc |= getField(chip, c.member * kLinkStatStride + out, c.field, &(s->*c.out));
    }
    return rc;
}

uint32_t readGroupCounters(uint32_t chip, uint32_t b, VQ6192_MP_INGRESS_STAT_S *s) {
    uint32_t rc = 0;
    for (const GroupCounter &c : kGroupCounters) {
        rc |= getField(chip, c.member * kBundleStatStride + b, c.field, &(s->*c.out));
    }
    for (uint32_t q = 0; q < VQ6192_MAX_MC_QUE_NUM; ++q) {
        uint32_t v = 0;
        rc |= getField(chip, VQ6192_MAX_MC_QUE_NUM * b + q, kRxmmccnt, &v);
        s->wMcRxCnt[q] = static_cast<uint16_t>(v);
    }
    return rc;
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_PPP_GetPppLinkStat(uint32_t chip, uint32_t ulPppChanNo,
                                              VQ6192_PPP_LINK_STAT_S *pstStat) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pstStat != NULL);
    return readLinkCounters(chip, ulPppChanNo, pstStat, false);
}

VQ6192_API uint32_t VQ6192_PPP_GetPppLinkStatForMp(uint32_t chip, uint32_t ulPppChanNo,
                                                   VQ6192_PPP_LINK_STAT_S *pstStat) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pstStat != NULL);
    return readLinkCounters(chip, ulPppChanNo, pstStat, true);
}

VQ6192_API uint32_t VQ6192_PPP_GetMpIngressStat(uint32_t chip, uint32_t ulMpChanNo,
                                                VQ6192_MP_INGRESS_STAT_S *pstStat) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pstStat != NULL);
    uint32_t rc = readGroupCounters(chip, ulMpChanNo, pstStat);
    rc |= getField(chip, ulMpChanNo, kMprpbytecnt, &pstStat->dwRxMpBytesCnt);
    Entry e;
    rc |= readEntry(chip, kMprxmmpb.table, ulMpChanNo, e);
    pstStat->wRxmMpBCnt = static_cast<uint16_t>(vq::getField(e.w, kMprxmmpb));
    pstStat->wRxmMpECnt = static_cast<uint16_t>(vq::getField(e.w, kMprxmmpe));
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetMpIngressStatNew(uint32_t chip, uint32_t ulMpChanNo,
                                                   VQ6192_MP_INGRESS_STAT_S *pstStat) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pstStat != NULL);
    return readGroupCounters(chip, ulMpChanNo, pstStat);
}

VQ6192_API uint32_t VQ6192_PPP_GetMpEgressStat(uint32_t chip, uint32_t ulMpChanNo,
                                               VQ6192_MP_EGRESS_STAT_S *pstStat) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pstStat != NULL);
    const uint32_t rc = getField(chip, ulMpChanNo, kMprpkt, &pstStat->dwTxMpRpkt);
    return rc | getField(chip, ulMpChanNo, kMprbyte, &pstStat->dwTxMpRbyte);
}

VQ6192_API uint32_t VQ6192_PPP_GetMpEgressStatNew(uint32_t chip, uint32_t ulMpChanNo,
                                                  VQ6192_MP_EGRESS_STAT_S *pstStat) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulMpChanNo < VQ6192_SCH_MP_MAX);
    VQ6192_PPP_CHECK(chip, pstStat != NULL);
    return getField(chip, ulMpChanNo, kMprpkt, &pstStat->dwTxMpRpkt);
}

VQ6192_API uint32_t VQ6192_PPP_GetPppGlobalIngressStat(uint32_t chip, VQ6192_PPP_GLOBAL_IN_STAT_S *pstStat) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pstStat != NULL);
    for (const Reg16 &r : kInReg16) {
        pstStat->*r.out = static_cast<uint16_t>(VQ6192_ReadReg(chip, r.addr));
    }
    for (const Reg32 &r : kInReg32) {
        const uint32_t low = VQ6192_ReadReg(chip, r.addr);
        pstStat->*r.out = (VQ6192_ReadReg(chip, r.addr + 2) << 16) | low;
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppGlobalEgressStat(uint32_t chip, VQ6192_PPP_GLOBAL_EG_STAT_S *pstStat) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pstStat != NULL);
    for (const EgReg &r : kEgRegs) {
        pstStat->*r.out = static_cast<uint16_t>(VQ6192_ReadRegField(chip, r.addr, 0, r.width));
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppCrcCorrectStat(uint32_t chip, uint32_t ulChanNo, uint16_t pusStat[3]) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pusStat != NULL);
    pusStat[0] = static_cast<uint16_t>(VQ6192_ReadReg(chip, kCorrectCntBase + 2 * ulChanNo));
    pusStat[1] = static_cast<uint16_t>(VQ6192_ReadReg(chip, kCorrectErrBase + 2 * ulChanNo));
    pusStat[2] = static_cast<uint16_t>(VQ6192_ReadReg(chip, kCrcFifoDropBase + 2 * ulChanNo));
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppCrcFifoStatus(uint32_t chip, uint32_t ulChanNo,
                                                   VQ6192_PPP_CRC_FIFO_STATUS_S *pstCur,
                                                   VQ6192_PPP_CRC_FIFO_HIS_STATUS_S *pstHis) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pstCur != NULL);
    VQ6192_PPP_CHECK(chip, pstHis != NULL);
    const uint32_t v = VQ6192_ReadReg(chip, kCrcFifoStatusBase + 2 * ulChanNo);
    pstCur->bCrcFifoFull = static_cast<uint16_t>((v >> 1) & 1u);
    pstCur->bCrcFifoEmpty = static_cast<uint16_t>(v & 1u);
    pstHis->bCrcFifoHisFull = static_cast<uint16_t>((v >> 2) & 1u);  // the latched full flag
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppFifoStatus(uint32_t chip, VQ6192_PPP_FIFO_STATUS_S *pstCur,
                                                VQ6192_PPP_FIFO_HIS_STATUS_S *pstHis) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pstCur != NULL);
    VQ6192_PPP_CHECK(chip, pstHis != NULL);
    uint32_t cur = 0, his = 0;
    std::memcpy(&cur, pstCur, sizeof cur);
    std::memcpy(&his, pstHis, sizeof his);
    cur &= kFifoKeptBits;
    his &= kFifoKeptBits;
    for (const FifoFlag &f : kFifoFlags) {
        if (f.curAddr != 0) {
            cur |= VQ6192_ReadRegField(chip, f.curAddr, f.curBit, 1) << f.bit;
        }
        if (f.hisAddr != 0) {
            his |= VQ6192_ReadRegField(chip, f.hisAddr, f.hisBit, 1) << f.bit;
        }
    }
    std::memcpy(pstCur, &cur, sizeof cur);
    std::memcpy(pstHis, &his, sizeof his);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppTestTxEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppTestTxEnable : ulPppChanNo:[%d] ulEnable:[%d]\n", ulPppChanNo,
                     ulEnable);
    uint32_t rc = setField(chip, ingressInner(chip, ulPppChanNo), kMptesttxen, ulEnable);
    return rc | setField(chip, egressInner(chip, ulPppChanNo), kTesttxen, ulEnable);
}

VQ6192_API uint32_t VQ6192_PPP_GetPppTestTxEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pulEnable != NULL);
    uint32_t tx = 0, link = 0;
    uint32_t rc = getField(chip, ingressInner(chip, ulPppChanNo), kMptesttxen, &tx);
    rc |= getField(chip, egressInner(chip, ulPppChanNo), kTesttxen, &link);
    *pulEnable = tx & link;
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppTestRxEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, ulEnable <= VQ6192_PPP_ENABLE);
    VQ6192_PPP_TRACE(chip, "VQ6192_PPP_SetPppTestRxEnable : ulPppChanNo:[%d] ulEnable:[%d]\n", ulPppChanNo,
                     ulEnable);
    setReg(chip, kTestRxEnable, ulEnable);
    return setField(chip, egressInner(chip, ulPppChanNo), kTesttxen, ulEnable);
}

VQ6192_API uint32_t VQ6192_PPP_GetPppTestRxEnable(uint32_t chip, uint32_t ulPppChanNo, uint32_t *pulEnable) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pulEnable != NULL);
    *pulEnable = reg(chip, kTestRxEnable);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_SetPppTestConfig(uint32_t chip, uint16_t usSendTimeSlot, uint16_t usTxProType,
                                                uint16_t usRxProType) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_WriteReg(chip, kTestSendTimeSlot, usSendTimeSlot);
    VQ6192_WriteReg(chip, kTestTxProType, usTxProType);
    VQ6192_WriteReg(chip, kTestRxProType, usRxProType);
    VQ6192_PPP_TRACE(
        chip, "VQ6192_PPP_SetPppTestConfig : usSendTimeSlot:[%d] usTxProType:[0x%x] usRxProType:[0x%x]\n",
        usSendTimeSlot, usTxProType, usRxProType);
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppTestConfig(uint32_t chip, uint16_t *pusSendTimeSlot,
                                                uint16_t *pusTxProType, uint16_t *pusRxProType) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pusSendTimeSlot != NULL);
    VQ6192_PPP_CHECK(chip, pusTxProType != NULL);
    VQ6192_PPP_CHECK(chip, pusRxProType != NULL);
    *pusSendTimeSlot = static_cast<uint16_t>(VQ6192_ReadReg(chip, kTestSendTimeSlot));
    *pusTxProType = static_cast<uint16_t>(VQ6192_ReadReg(chip, kTestTxProType));
    *pusRxProType = static_cast<uint16_t>(VQ6192_ReadReg(chip, kTestRxProType));
    return 0;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppDelayTime(uint32_t chip, uint32_t ulPppChanNo, uint32_t pulTime[4]) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX);
    VQ6192_PPP_CHECK(chip, pulTime != NULL);
    const uint32_t in = ingressInner(chip, ulPppChanNo);
    uint32_t refreshed = 0;
    uint32_t rc = getField(chip, in, kMptestrefstat, &refreshed);
    Entry e;
    rc |= readEntry(chip, kMplooptimestp, in, e);
    for (uint32_t k = 0; k < 4; ++k) {
        pulTime[k] = e.w[k];
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_PPP_GetPppDelayTestStat(uint32_t chip, uint16_t pusStat[4]) {
    VQ6192_PPP_CHECK_CHIP(chip);
    VQ6192_PPP_CHECK(chip, pusStat != NULL);
    constexpr uint32_t kStatRegs[4] = {0x1340E, 0x1340A, 0x13410, 0x1340C};
    for (uint32_t k = 0; k < 4; ++k) {
        pusStat[k] = static_cast<uint16_t>(VQ6192_ReadReg(chip, kStatRegs[k]));
    }
    return 0;
}

}  // extern "C"
