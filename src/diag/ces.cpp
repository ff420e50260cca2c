// Diagnostic commands of the circuit emulation and clock recovery family. Every command calls its
// operation with zeroed results and, with a buffer, prints them framed by the CES separator (single
// values) or as a field table (records); it returns the operation's status.
#include <initializer_list>
#include <vector>

#include "diag/layout.h"
#include "diag/registry.h"
#include "vq6192/ces.h"
#include "vq6192/eth.h"
#include "vq6192/framer.h"

namespace vq::diag {
namespace {

constexpr char kRecordLine[] = "    | %-20s : 0x%-8x(%-10u) \n";

// A single-value report: "        <title>()\n" between CES separators, one value line per field.
uint32_t single(char *buf, const char *title, uint32_t rc, std::initializer_list<Field> fields) {
    framed(buf, kSep, title, fields);
    return rc;
}

// A record report: the title line, one line per field, PRINT_END.
uint32_t record(char *buf, const char *title, uint32_t rc, std::initializer_list<Field> fields) {
    fieldTable(buf, title, fields, kRecordLine);
    return rc;
}

template <size_t N>
uint32_t flags(char *buf, const char *title, uint32_t rc, const uint8_t (&v)[N],
               const char *const (&names)[N]) {
    TextBuilder text(buf);
    text.add("        %s\n", title);
    for (size_t k = 0; k < N; ++k) {
        fieldLine(text, kRecordLine, {names[k], v[k]});
    }
    text.add("%s", kPrintEnd);
    return rc;
}

constexpr const char *kChanAlmNames[6] = {"dwDropAlm",    "dwDefectAlm", "dwTbOverAlm",
                                          "dwTbUnderAlm", "dwJbOverAlm", "dwJbUnderAlm"};
constexpr const char *kFifoAlmNames[12] = {"dwTxFifoOverAlm",  "dwTxFifoUnderAlm", "dwRxFifoOverAlm",
                                           "dwRxFifoUnderAlm", "dwFifoAlmBit11",   "dwFifoAlmBit10",
                                           "dwFifoAlmBit9",    "dwFifoAlmBit8",    "dwFifoAlmBit7",
                                           "dwFifoAlmBit6",    "dwFifoAlmBit5",    "dwFifoAlmBit4"};

// Channel range of the listings: first up to (not including) last; 0..30 when last is 0 or below first.
void listRange(uint32_t &first, uint32_t &last) {
    if (last == 0 || last < first) {
        first = 0;
        last = 31;
    }
}

}  // namespace
}  // namespace vq::diag

using namespace vq::diag;
using vq::TextBuilder;

extern "C" {

VQ6192_API uint32_t getceschanenable(uint32_t chip, uint32_t ch, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_CES_GetCesChanEnable(chip, ch, &en);
    return single(buf, "GetCesChanEnable()", rc, {{"rdwEnable", en}});
}

VQ6192_API uint32_t getcestscompress(uint32_t chip, uint32_t ch, uint32_t dir, char *buf) {
    uint32_t mask = 0;
    const uint32_t rc = VQ6192_CES_GetCesTSCompress(chip, ch, &mask, dir);
    return single(buf, "GetCesTSCompress()", rc, {{"rdwTsCompress", mask}});
}

VQ6192_API uint32_t getcesvc4jstthld(uint32_t chip, char *buf) {
    uint32_t v = 0;
    const uint32_t rc = VQ6192_CES_GetCesVc4JstThld(chip, &v);
    return single(buf, "GetCesVc4JstThld()", rc, {{"rdwThld", v}});
}

VQ6192_API uint32_t getceschanpara(uint32_t chip, uint32_t ch, char *buf) {
    VQ6192_CES_CHAN_PARA_S p = {};
    const uint32_t rc = VQ6192_CES_GetCesChanPara(chip, ch, &p);
    return record(buf, "GetCesChanPara()", rc,
                  {{"dwTsCompressBitmap", p.ulTsMask},
                   {"byIdleCode", p.ucIdleCode},
                   {"byFramNum", p.ucFramNum},
                   {"dwJtrBufDepth", p.usJbDepth},
                   {"dwJtrBufDelay", p.usJbDelay},
                   {"byEmptyCode", p.ucEmptyCode}});
}

VQ6192_API uint32_t getcesrtpconfig(uint32_t chip, uint32_t ch, uint32_t dir, char *buf) {
    VQ6192_CES_RTP_CFG_S c = {};
    const uint32_t rc = VQ6192_CES_GetCesRtpConfig(chip, ch, &c, dir);
    return record(buf, "GetCesRtpConfig()", rc,
                  {{"dwRtpEnable", c.dwRtpEnable},
                   {"dwRtpCwSeq", c.dwRtpCwSeq},
                   {"dwPayloadType", c.dwPayloadType},
                   {"dwSSRCTx", c.dwSSRCTx},
                   {"dwSSRCRx", c.dwSSRCRx},
                   {"dwTxSnGenmode", c.dwTxSnGenmode}});
}

VQ6192_API uint32_t getceserrpktdropenable(uint32_t chip, uint32_t ch, char *buf) {
    VQ6192_CES_PKT_DROP_S d = {};
    const uint32_t rc = VQ6192_CES_GetCesPktDropEnable(chip, ch, &d);
    return record(buf, "GetCesPktDropEnable()", rc,
                  {{"dwSnErrDropEn", d.dwSnErrDropEn},
                   {"dwPtErrDropEn", d.dwPtErrDropEn},
                   {"dwSsrcErrDropEn", d.dwSsrcErrDropEn},
                   {"dwLenErrDropEn", d.dwLenErrDropEn},
                   {"dwRxErrDropEn", d.dwRxErrDropEn}});
}

VQ6192_API uint32_t getcesalmctrl(uint32_t chip, uint32_t ch, char *buf) {
    VQ6192_CES_ALM_CTRL_S c = {};
    const uint32_t rc = VQ6192_CES_GetCesAlmCtrl(chip, ch, &c);
    return record(buf, "GetCesAlmCtrl()", rc,
                  {{"dwLctrl", c.dwLctrl},
                   {"dwLmctrl", c.dwLmctrl},
                   {"dwRctrl", c.dwRctrl},
                   {"dwRevrctrl", c.dwRevrctrl},
                   {"dwTxrevren", c.dwTxrevren}});
}

VQ6192_API uint32_t getcestxlrmalm(uint32_t chip, uint32_t ch, char *buf) {
    uint16_t lrm[3] = {};
    const uint32_t rc = VQ6192_CES_GetCesTxLRMAlm(chip, ch, lrm);
    return single(buf, "GetCesTxLRMAlm()", rc, {{"rwLBit", lrm[0]}, {"rwRBit", lrm[1]}, {"rwMBits", lrm[2]}});
}

VQ6192_API uint32_t gettxrevrthld(uint32_t chip, char *buf) {
    VQ6192_CES_REVR_THLD_S t = {};
    const uint32_t rc = VQ6192_CES_GetTxRevRThld(chip, &t);
    return record(buf, "GetTxRevRThld()", rc,
                  {{"wRevRTime", t.wRevRTime},
                   {"wET1RevRRecNum", t.wET1RevRRecNum},
                   {"wET1RevRDropNum", t.wET1RevRDropNum},
                   {"wET1DisRSlrNum", t.wET1DisRSlrNum},
                   {"wET3RevRRecNum", t.wET3RevRRecNum},
                   {"wET3RevRDropNum", t.wET3RevRDropNum},
                   {"wET3DisRSlrNum", t.wET3DisRSlrNum},
                   {"wVC4RevRRecNum", t.wVC4RevRRecNum},
                   {"wVC4RevRDropNum", t.wVC4RevRDropNum},
                   {"wVC4DisRSlrNum", t.wVC4DisRSlrNum}});
}

VQ6192_API uint32_t getcesinsertcode(uint32_t chip, char *buf) {
    uint8_t l = 0, r = 0, lv = 0, rv = 0;
    const uint32_t rc = VQ6192_CES_GetCesInsertCode(chip, &l, &r, &lv, &rv);
    return single(buf, "GetCesInsertCode()", rc,
                  {{"rbyLCode", l}, {"rbyRCode", r}, {"rbyLVc4Code", lv}, {"rbyRVc4Code", rv}});
}

VQ6192_API uint32_t getingfrmtocesalmmap(uint32_t chip, uint32_t frmCh, char *buf) {
    uint32_t ces = 0, ais = 0, rdi = 0;
    const uint32_t rc = VQ6192_CES_GetIngFrmToCesAlmMap(chip, frmCh, &ces, &ais, &rdi);
    return single(buf, "GetIngFrmToCesAlmMap()", rc,
                  {{"rdwCesChan", ces}, {"rdwAisEn", ais}, {"rdwRdiEn", rdi}});
}

VQ6192_API uint32_t getcesobligaterec(uint32_t chip, char *buf) {
    uint32_t v = 0;
    const uint32_t rc = VQ6192_CES_GetCesObligateRec(chip, &v);
    return single(buf, "GetCesObligateRec()", rc, {{"rdwEnable", v}});
}

VQ6192_API uint32_t getcesloopback(uint32_t chip, char *buf) {
    uint32_t v = 0;
    const uint32_t rc = VQ6192_CES_GetCesLoopBack(chip, &v);
    return single(buf, "GetCesLoopBack()", rc, {{"rdwEnable", v}});
}

VQ6192_API uint32_t getvc4cesloopback(uint32_t chip, char *buf) {
    uint32_t v = 0;
    const uint32_t rc = VQ6192_CES_GetVC4CesLoopBack(chip, &v);
    return single(buf, "GetVC4CesLoopBack()", rc, {{"rdwEnable", v}});
}

VQ6192_API uint32_t getcescompensationenable(uint32_t chip, uint32_t ch, char *buf) {
    uint32_t v = 0;
    const uint32_t rc = VQ6192_CES_GetCesCompensationEnable(chip, ch, &v);
    return single(buf, "GetCesCompensationEnable()", rc, {{"rdwEnable", v}});
}

VQ6192_API uint32_t getcescrcompensationenable(uint32_t chip, uint32_t domain, char *buf) {
    uint32_t v = 0;
    const uint32_t rc = VQ6192_CES_GetCesCRCompensationEnable(chip, domain, &v);
    return single(buf, "GetCesCRCompensationEnable()", rc, {{"rdwEnable", v}});
}

// Every domain, one line each; the statuses are ORed.
VQ6192_API uint32_t getcescrmode(uint32_t chip, char *buf) {
    TextBuilder text(buf);
    framedHead(text, kSep, "GetCesCRMode()");
    text.add(
        "  wClkRateMode(0:E1/T1, 1: E3/T3, 2: VC4)\n"
        "  wTrPLCEn    (0:DISABLE, 1: ENABLE)\n"
        "  eTrMode(0:CR_DIFF, 2: CR_STAMP, 4: CR_NONE)\n"
        " Index    wCesChanNo    wClkRateMode    wTrPLCEn    eTrMode\n");
    uint32_t rc = 0;
    for (uint32_t d = 0; d < VQ6192_CES_CR_DOMAIN_NUM; ++d) {
        VQ6192_CES_CR_MODE_S m = {};
        rc |= VQ6192_CES_GetCesCRMode(chip, d, &m);
        text.add(" %-5lu    %-10u    %-12u    %-8u    %-7d\n", static_cast<unsigned long>(d), m.wCesChanNo,
                 m.wClkRateMode, m.wTrPLCEn, static_cast<int>(m.eTrMode));
    }
    text.add("%s", kSep);
    return rc;
}

VQ6192_API uint32_t getcescrintmode(uint32_t chip, char *buf) {
    uint16_t en = 0, active = 0, trig = 0;
    const uint32_t rc = VQ6192_CES_GetCesCRIntMode(chip, &en, &active, &trig);
    return single(buf, "GetCesCRIntMode()", rc,
                  {{"rwEnable", en}, {"rwActiveMode", active}, {"rwTrigMode", trig}});
}

VQ6192_API uint32_t getcescrprocess(uint32_t chip, char *buf) {
    uint32_t v = 0;
    const uint32_t rc = VQ6192_CES_GetCesCRProcess(chip, &v);
    return single(buf, "GetCesCRProcess()", rc, {{"rdwSel", v}});
}

VQ6192_API uint32_t getcescrmaxcompensationthld(uint32_t chip, char *buf) {
    uint16_t num = 0, sn = 0;
    const uint32_t rc = VQ6192_CES_GetCesCRMaxCompensationThld(chip, &num, &sn);
    return single(buf, "GetCesCRMaxCompensationThld()", rc, {{"rwNum", num}, {"wSn", sn}});
}

VQ6192_API uint32_t getcescrtimestampinitmode(uint32_t chip, uint32_t domain, char *buf) {
    uint32_t num = 0, mode = 0;
    const uint32_t rc = VQ6192_CES_GetCesCRTimeStampInitMode(chip, domain, &num, &mode);
    return single(buf, "GetCesCRTimeStampInitMode()", rc, {{"rdwNum", num}, {"rdwMode", mode}});
}

VQ6192_API uint32_t getcesalmthld(uint32_t chip, char *buf) {
    uint32_t t1 = 0, t2 = 0;
    const uint32_t rc = VQ6192_CES_GetCesAlmThld(chip, &t1, &t2);
    return single(buf, "GetCesAlmThld()", rc, {{"rdwThld1", t1}, {"rdwThld2", t2}});
}

VQ6192_API uint32_t getcesfifothld(uint32_t chip, char *buf) {
    uint32_t t = 0;
    const uint32_t rc = VQ6192_CES_GetCesFifoThld(chip, &t);
    return single(buf, "GetCesFifoThld()", rc, {{"rdwThld", t}});
}

VQ6192_API uint32_t getcespktsendstat(uint32_t chip, uint32_t ch, char *buf) {
    uint32_t cnt = 0;
    const uint32_t rc = VQ6192_CES_GetCesPktSendStat(chip, ch, &cnt);
    return single(buf, "GetCesPktSendStat()", rc, {{"rdwCnt", cnt}});
}

VQ6192_API uint32_t getcespktrecstat(uint32_t chip, uint32_t ch, char *buf) {
    VQ6192_CES_PKT_REC_STAT_S s = {};
    const uint32_t rc = VQ6192_CES_GetCesPktRecStat(chip, ch, &s);
    return record(buf, "GetCesPktRecStat()", rc,
                  {{"wDropCnt", s.wDropCnt},
                   {"wSnErrCnt", s.wSnErrCnt},
                   {"wPtlenErrCnt", s.wPtlenErrCnt},
                   {"wSSRCErrCnt", s.wSSRCErrCnt},
                   {"dwCorrectCnt", s.dwCorrectCnt},
                   {"wEgLRPktCnt", s.wEgLRPktCnt},
                   {"wEgEthErrCnt", s.wEgEthErrCnt},
                   {"wSnDropPktCnt", s.wSnDropPktCnt}});
}

VQ6192_API uint32_t getcesjtrbufdatastat(uint32_t chip, uint32_t ch, char *buf) {
    uint16_t over = 0, under = 0;
    uint32_t drop = 0;
    const uint32_t rc = VQ6192_CES_GetCesJtrBufDataStat(chip, ch, &over, &under, &drop);
    return record(buf, "GetCesJtrBufDataStat()", rc,
                  {{"wJtrBufOverCnt", over}, {"wJtrBufUnderCnt", under}, {"dwJtrBufFullDropCnt", drop}});
}

VQ6192_API uint32_t getcesdbgstat(uint32_t chip, uint32_t ch, char *buf) {
    VQ6192_CES_DBG_STAT_S s = {};
    const uint32_t rc = VQ6192_CES_GetCesDbgStat(chip, ch, &s);
    return record(buf, "GetCesDbgStat()", rc,
                  {{"dwTsTxCnt", s.dwTsTxCnt},
                   {"dwTsRxCnt", s.dwTsRxCnt},
                   {"dwDdrRdCnt", s.dwDdrRdCnt},
                   {"dwDdrWrCnt", s.dwDdrWrCnt},
                   {"dwJtrBufRdCnt", s.dwJtrBufRdCnt},
                   {"dwJtrBufWrCnt", s.dwJtrBufWrCnt},
                   {"wOppositeSn", s.wOppositeSn},
                   {"wOppositeTs0", s.wOppositeTs0},
                   {"wOppositeTs1", s.wOppositeTs1},
                   {"wLocalTs0", s.wLocalTs0},
                   {"wLocalTs1", s.wLocalTs1}});
}

VQ6192_API uint32_t getcesrxtxfifoalm(uint32_t chip, char *buf) {
    uint8_t a[12] = {};
    const uint32_t rc = VQ6192_CES_GetCesRxTxFifoAlm(chip, a);
    return flags(buf, "GetCesRxTxFifoAlm()", rc, a, kFifoAlmNames);
}

VQ6192_API uint32_t getcesrxtxfifohistoryalm(uint32_t chip, char *buf) {
    uint8_t a[12] = {};
    const uint32_t rc = VQ6192_CES_GetCesRxTxFifoHistoryAlm(chip, a);
    return flags(buf, "GetCesRxTxFifoHistoryAlm()", rc, a, kFifoAlmNames);
}

VQ6192_API uint32_t getceschanalm(uint32_t chip, uint32_t ch, char *buf) {
    uint8_t a[6] = {};
    const uint32_t rc = VQ6192_CES_GetCesChanAlm(chip, ch, a);
    return flags(buf, "GetCesChanAlm()", rc, a, kChanAlmNames);
}

VQ6192_API uint32_t getceschanhistoryalm(uint32_t chip, uint32_t ch, char *buf) {
    uint8_t a[6] = {};
    const uint32_t rc = VQ6192_CES_GetCesChanHistoryAlm(chip, ch, a);
    return flags(buf, "GetCesChanHistoryAlm()", rc, a, kChanAlmNames);
}

VQ6192_API uint32_t getsohbypassmode(uint32_t chip, char *buf) {
    uint16_t en = 0;
    const uint32_t rc = VQ6192_Framer_GetSOHByPassMode(chip, &en);
    return single(buf, "GetSOHByPassMode()", rc, {{"wByPassEn", en}});
}

// The timeslots of the first 252 lines routed to CES channels (ingress), the channels' enables and
// packet-network labels; statuses ORed.
VQ6192_API uint32_t DbgGetCesConfig(uint32_t chip, uint32_t first, uint32_t last, char *buf) {
    constexpr uint32_t kLines = 252;
    struct Binding {
        uint32_t line = 0;
        uint32_t map = 0;
        bool seen = false;
    };
    std::vector<Binding> bound(VQ6192_CES_CHAN_NUM);
    TextBuilder text(buf);
    uint32_t tdm = 0;
    uint32_t rc = VQ6192_Framer_GetFrmTDMMode(chip, &tdm);
    if (tdm > 1) {
        text.add("Wrong TDM MODE not E1 and not T1!\n");
    } else {
        const uint32_t timeslots = tdm == 0 ? 32 : 24;
        for (uint32_t line = 0; line < kLines; ++line) {
            for (uint32_t ts = 0; ts < timeslots; ++ts) {
                uint16_t ch = 0;
                uint8_t type = 0, en = 0;
                uint32_t speed = 0;
                rc |= VQ6192_Framer_GetTsCfg(chip, VQ6192_BASE_SRV_DIRECT_INGRESS, line, ts, &ch, &type,
                                             &speed, &en);
                if (en == 0 || type != 3 || ch >= VQ6192_CES_CHAN_NUM) {
                    continue;
                }
                Binding &b = bound[ch];
                if (b.seen && b.line != line) {
                    text.add("WRONG! E1: [%x] AND E1: [%x] TS: [%2lu] TO CES:[%x] CHANNEL\n", b.line, line,
                             static_cast<unsigned long>(ts), static_cast<uint32_t>(ch));
                    continue;
                }
                b = {line, b.map | 1u << ts, true};
            }
        }
    }
    if (last == 0 || last <= first) {
        first = 0;
        last = 31;
    }
    last = last > kLines - 1 ? kLines - 1 : last;
    text.add(
        "n-------------------------------CES CHAN----------------------------\n"
        "CH     ENABLE   E1  TIMESLOT    LABEL_EN  TYPE  LABEL_IN    LABEL_E\n");
    for (uint32_t ch = first; ch < last; ++ch) {
        uint32_t en = 0, inLabel = 0, sel = 0, found = 0;
        VQ6192_ETH_PSN_INFO_S info = {};
        rc |= VQ6192_CES_GetCesChanEnable(chip, ch, &en);
        rc |= VQ6192_ETH_GetAtmCesEgMpls2Chnl(chip, ch, VQ6192_ETH_SRV_CES, &inLabel, &sel, &found);
        rc |= VQ6192_ETH_GetPSNEthInfo(chip, ch, VQ6192_ETH_SRV_CES, &info);
        text.add(" %-3lu     %x    0x%x   0x%-8x      %x      %x    0x%-6x    0x%-6x\n",
                 static_cast<unsigned long>(ch), en, bound[ch].line, bound[ch].map, found, sel, inLabel,
                 info.dwLblPwLable);
    }
    text.add("-----------------------------------------------------------------\n");
    return rc;
}

// Only with a buffer: each channel's parameters and RTP settings (direction 2), statuses ORed.
VQ6192_API uint32_t DbgGetCesPara(uint32_t chip, uint32_t first, uint32_t last, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    listRange(first, last);
    TextBuilder text(buf);
    text.add(
        "n--------------------------------------------CES PARA---------------------------------------------\n"
        "CH BITMAP       IDLE FRAM  JB_DELAY  JTR_DEPTH    RTP_EN  CW_RTP  PT   TX_SSRC     RX_SSRC     "
        "TR\n");
    uint32_t rc = 0;
    for (uint32_t ch = first; ch < last; ++ch) {
        VQ6192_CES_CHAN_PARA_S p = {};
        VQ6192_CES_RTP_CFG_S r = {};
        rc |= VQ6192_CES_GetCesChanPara(chip, ch, &p);
        rc |= VQ6192_CES_GetCesRtpConfig(chip, ch, &r, VQ6192_BASE_SRV_DIRECT_BOTH);
        text.add(
            " %x 0x%-8x   0x%02x  %02u     %03u        %03u         %u       %u    0x%02x  0x%-8x  0x%-8x  "
            "%lu \n",
            ch, p.ulTsMask, p.ucIdleCode, p.ucFramNum, p.usJbDelay, p.usJbDepth, r.dwRtpEnable, r.dwRtpCwSeq,
            r.dwPayloadType, r.dwSSRCTx, r.dwSSRCRx, 5ul);
    }
    text.add(
        "-------------------------------------------------------------------------------------------------"
        "\n");
    return rc;
}

VQ6192_API uint32_t DbgGetCesChannelInfo(uint32_t /*chip*/, uint32_t /*ch*/, char * /*buf*/) {
    return 0;
}

VQ6192_API uint32_t DbgGetCesRtpParam(uint32_t /*chip*/, uint32_t /*ch*/, char * /*buf*/) {
    return 0;
}

}  // extern "C"

namespace vq::diag {
namespace {

constexpr Command kCommands[] = {
    VQ6192_DIAG_COMMAND(getceschanenable, "CES", "chip ch", "enable bit of a CES channel"),
    VQ6192_DIAG_COMMAND(getcestscompress, "CES", "chip ch dir",
                        "timeslot compression mask (dir 2: both, compared)"),
    VQ6192_DIAG_COMMAND(getcesvc4jstthld, "CES", "chip", "VC-4 justification threshold"),
    VQ6192_DIAG_COMMAND(getceschanpara, "CES", "chip ch", "compression, idle code, frames, jitter buffer"),
    VQ6192_DIAG_COMMAND(getcesrtpconfig, "CES", "chip ch dir",
                        "RTP settings of a direction (2: both, compared)"),
    VQ6192_DIAG_COMMAND(getceserrpktdropenable, "CES", "chip ch", "which received packet errors are dropped"),
    VQ6192_DIAG_COMMAND(getcesalmctrl, "CES", "chip ch", "L, R, M and reverse-R handling of a channel"),
    VQ6192_DIAG_COMMAND(getcestxlrmalm, "CES", "chip ch", "L, R and M bits sent in the control word"),
    VQ6192_DIAG_COMMAND(gettxrevrthld, "CES", "chip", "the ten reverse-R thresholds"),
    VQ6192_DIAG_COMMAND(getcesinsertcode, "CES", "chip", "L and R insert codes (and their VC-4 codes)"),
    VQ6192_DIAG_COMMAND(getingfrmtocesalmmap, "CES", "chip frmCh", "framer alarms mapped to a CES channel"),
    VQ6192_DIAG_COMMAND(getcesobligaterec, "CES", "chip", "obligate-receive switch"),
    VQ6192_DIAG_COMMAND(getcesloopback, "CES", "chip", "CES loopback"),
    VQ6192_DIAG_COMMAND(getvc4cesloopback, "CES", "chip", "VC-4 CES loopback"),
    VQ6192_DIAG_COMMAND(getcescompensationenable, "CES", "chip ch", "packet-loss compensation of a channel"),
    VQ6192_DIAG_COMMAND(getcescrcompensationenable, "CES", "chip domain",
                        "packet-loss compensation of a recovery domain"),
    VQ6192_DIAG_COMMAND(getcescrmode, "CES", "chip", "recovery mode, channel, rate and PLC of every domain"),
    VQ6192_DIAG_COMMAND(getcescrintmode, "CES", "chip",
                        "clock-recovery interrupt enable, active and trigger modes"),
    VQ6192_DIAG_COMMAND(getcescrprocess, "CES", "chip", "clock-recovery process selection"),
    VQ6192_DIAG_COMMAND(getcescrmaxcompensationthld, "CES", "chip",
                        "the two maximum compensation thresholds"),
    VQ6192_DIAG_COMMAND(getcescrtimestampinitmode, "CES", "chip domain",
                        "timestamp initialisation of a domain"),
    VQ6192_DIAG_COMMAND(getcesalmthld, "CES", "chip", "alarm thresholds 1 and 2"),
    VQ6192_DIAG_COMMAND(getcesfifothld, "CES", "chip", "FIFO threshold"),
    VQ6192_DIAG_COMMAND(getcespktsendstat, "CES", "chip ch", "packets sent to the Ethernet side"),
    VQ6192_DIAG_COMMAND(getcespktrecstat, "CES", "chip ch", "received packet counters"),
    VQ6192_DIAG_COMMAND(getcesjtrbufdatastat, "CES", "chip ch",
                        "jitter-buffer over, under and full-drop counters"),
    VQ6192_DIAG_COMMAND(getcesdbgstat, "CES", "chip ch", "timeslot, DDR and jitter-buffer debug counters"),
    VQ6192_DIAG_COMMAND(getcesrxtxfifoalm, "CES", "chip", "current global FIFO alarms"),
    VQ6192_DIAG_COMMAND(getcesrxtxfifohistoryalm, "CES", "chip", "latched global FIFO alarms"),
    VQ6192_DIAG_COMMAND(getceschanalm, "CES", "chip ch", "current channel alarms"),
    VQ6192_DIAG_COMMAND(getceschanhistoryalm, "CES", "chip ch", "latched channel alarms"),
    VQ6192_DIAG_COMMAND(getsohbypassmode, "CES", "chip", "section overhead bypass of the framers"),
    VQ6192_DIAG_COMMAND(DbgGetCesConfig, "CES", "chip first last",
                        "channels first..last-1 with their line, timeslots and labels"),
    VQ6192_DIAG_COMMAND(DbgGetCesPara, "CES", "chip first last", "parameter table of channels first..last-1"),
    VQ6192_DIAG_COMMAND(DbgGetCesChannelInfo, "CES", "chip ch", "kept for compatibility: prints nothing"),
    VQ6192_DIAG_COMMAND(DbgGetCesRtpParam, "CES", "chip ch", "kept for compatibility: prints nothing"),
};

}  // namespace

std::span<const Command> cesCommands() {
    return kCommands;
}

}  // namespace vq::diag
