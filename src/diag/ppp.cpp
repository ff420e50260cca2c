// Diagnostic commands of the PPP and multilink PPP family: value and structure reports of the PPP
// getters, a few setters, and the capture commands that run a whole DDR, COBC or FIFO capture.
#include <cstring>

#include "diag/layout.h"
#include "diag/registry.h"
#include "platform/osal.h"
#include "vq6192/ppp.h"

extern "C" {
VQ6192_API VQ6192_PPP_CAP_STATE_S g_st6192CapPpp[VQ6192_CHIP_RECORD_NUM];
}

namespace vq::diag {
namespace {

// The PPP reports use the separator that begins with a line break.
constexpr const char *kPppSep = kMacSep;
constexpr char kStructLine[] = "    | %-24s : 0x%-8x(%-10u) \n";
constexpr uint32_t kCapPackets = 10;
constexpr uint32_t kShownBytes = 48;
constexpr uint32_t kDdrCapCount = 36;
constexpr uint32_t kDbgChannels = 256;
constexpr uint32_t kMatchWaitTicks = 5000;
constexpr uint32_t kPktBuf = 2048;

// A framed report of single values; the operation's status is returned as it is.
uint32_t values(char *buf, const char *title, uint32_t rc, std::initializer_list<Field> fields) {
    framed(buf, kPppSep, title, fields);
    return rc;
}

// A structure report: title, one line per field, PRINT_END.
uint32_t fields(char *buf, const char *title, uint32_t rc, std::initializer_list<Field> list) {
    fieldTable(buf, title, list, kStructLine);
    return rc;
}

// Up to `max` bytes as " %02x " with a line break after every 16.
void dumpBytes(TextBuilder &text, const uint8_t *data, uint32_t len, uint32_t max) {
    const uint32_t n = len < max ? len : max;
    for (uint32_t k = 0; k < n; ++k) {
        text.add(" %02x ", data[k]);
        if (k % 16 == 15) {
            text.add("\n");
        }
    }
    text.add("\n");
}

uint32_t selectCapChannel(uint32_t chip, uint32_t ch) {
    uint32_t rc = 0;
    for (uint32_t k = 0; k < kDbgChannels; ++k) {
        rc |= VQ6192_PPP_SetPppDdrCapChan(chip, k, k % VQ6192_DDR_CAP_MAX, 0);
    }
    return rc | VQ6192_PPP_SetPppDdrCapChan(chip, ch, ch % VQ6192_DDR_CAP_MAX, 1);
}

uint32_t bigEndian(const uint8_t *p) {
    return uint32_t{p[0]} << 24 | uint32_t{p[1]} << 16 | uint32_t{p[2]} << 8 | p[3];
}

// Reads up to ten packets of the channel's slot and prints those whose four bytes at startByte, taken
// big-endian, match temp under mask; then stops the capture.
uint32_t matchPackets(TextBuilder &text, uint32_t chip, uint32_t ch, uint32_t dir, uint32_t startByte,
                      uint32_t mask, uint32_t temp) {
    uint8_t data[kPktBuf] = {};
    uint32_t offset = 0;
    for (uint32_t n = 0; n < kCapPackets; ++n) {
        uint16_t len = 0;
        uint32_t next = 0;
        if (VQ6192_PPP_GetPppDdrCapPkt(chip, ch % VQ6192_DDR_CAP_MAX, offset, dir, data, &len, &next) != 0) {
            break;
        }
        offset = next;
        if (startByte + 4 > len || ((bigEndian(data + startByte) ^ temp) & mask) != 0) {
            continue;
        }
        text.add("The Data  %u  Capture data Len:  %u  \n", n, len);
        dumpBytes(text, data, len, kShownBytes);
    }
    return VQ6192_PPP_StopPppDdrCapPkt(chip);
}

}  // namespace
}  // namespace vq::diag

using namespace vq::diag;
using vq::TextBuilder;

extern "C" {

VQ6192_API uint32_t getlinktoppp(uint32_t chip, uint32_t ulLinkNo, char *buf) {
    uint32_t rx = 0, tx = 0;
    const uint32_t rc = VQ6192_PPP_GetLinkToPpp(chip, ulLinkNo, &rx, &tx);
    return values(buf, "GetLinkToPpp()", rc, {{"rdwEnableRx", rx}, {"rdwEnableTx", tx}});
}

VQ6192_API uint32_t getmpvc4scrambler(uint32_t chip, uint32_t ulVc4PppChanNo, char *buf) {
    uint16_t scr = 0, unscr = 0;
    const uint32_t rc = VQ6192_PPP_GetMpVc4Scrambler(chip, ulVc4PppChanNo, &scr, &unscr);
    return values(buf, "GetMpVc4Scrambler()", rc, {{"rwScramblerEn", scr}, {"rwUnScramblerEn", unscr}});
}

VQ6192_API uint32_t getpppchanenable(uint32_t chip, uint32_t ulPppChanNo, char *buf) {
    uint32_t rx = 0, tx = 0;
    const uint32_t rc = VQ6192_PPP_GetPppChanEnable(chip, ulPppChanNo, &rx, &tx);
    return values(buf, "GetPppChanEnable()", rc, {{"rdwEnableRx", rx}, {"rdwEnableTx", tx}});
}

VQ6192_API uint32_t getmpbundleenable(uint32_t chip, uint32_t ulMpChanNo, char *buf) {
    uint32_t rx = 0, tx = 0;
    const uint32_t rc = VQ6192_PPP_GetMpBundleEnable(chip, ulMpChanNo, &rx, &tx);
    return values(buf, "GetMpBundleEnable()", rc, {{"rdwEnableRx", rx}, {"rdwEnableTx", tx}});
}

VQ6192_API uint32_t getpppchantomp(uint32_t chip, uint32_t ulPppChanNo, char *buf) {
    uint32_t rx = 0, tx = 0;
    const uint32_t rc = VQ6192_PPP_GetPppChanToMp(chip, ulPppChanNo, &rx, &tx);
    return values(buf, "GetPppChanToMp()", rc, {{"rdwMpChanRx", rx}, {"rdwMpChanTx", tx}});
}

VQ6192_API uint32_t getpppcrcmode(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulDirect, char *buf) {
    uint32_t mode = 0;
    const uint32_t rc = VQ6192_PPP_GetPppCRCMode(chip, ulPppChanNo, static_cast<uint8_t>(ulDirect), &mode);
    return values(buf, "GetPppCRCMode()", rc, {{"renCRCMode", mode}});
}

VQ6192_API uint32_t getpppmru(uint32_t chip, uint32_t ulPppChanNo, char *buf) {
    uint32_t mru = 0;
    const uint32_t rc = VQ6192_PPP_GetPppMRU(chip, ulPppChanNo, &mru);
    return values(buf, "GetPppMRU()", rc, {{"rdwMRU", mru}});
}

VQ6192_API uint32_t getpppacfcenable(uint32_t chip, uint32_t ulPppChanNo, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_PPP_GetPppACFCEnable(chip, ulPppChanNo, &en);
    return values(buf, "GetPppACFCEnable()", rc, {{"rdwEnable", en}});
}

VQ6192_API uint32_t getppppfcenable(uint32_t chip, uint32_t ulPppChanNo, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_PPP_GetPppPFCEnable(chip, ulPppChanNo, &en);
    return values(buf, "GetPppPFCEnable()", rc, {{"rdwEnable", en}});
}

VQ6192_API uint32_t getmpfragsize(uint32_t chip, uint32_t ulMpChanNo, char *buf) {
    uint32_t size = 0;
    const uint32_t rc = VQ6192_PPP_GetMpFragSize(chip, ulMpChanNo, &size);
    return values(buf, "GetMpFragSize()", rc, {{"renFragSize", size}});
}

VQ6192_API uint32_t getmptimeout(uint32_t chip, uint32_t ulMpChanNo, char *buf) {
    uint32_t t = 0;
    const uint32_t rc = VQ6192_PPP_GetMpTimeout(chip, ulMpChanNo, &t);
    return values(buf, "GetMpTimeout()", rc, {{"rdwTimeout", t}});
}

VQ6192_API uint32_t calcmptimeoutvalue(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulTsNum, char *buf) {
    uint32_t t = 0;
    const uint32_t rc = VQ6192_PPP_CalcMpTimeOutValue(chip, ulMpChanNo, static_cast<uint16_t>(ulTsNum), &t);
    return values(buf, "CalcMpTimeOutValue()", rc, {{"rdwTimeOutVal", t}});
}

VQ6192_API uint32_t getmpabortthld(uint32_t chip, char *buf) {
    uint16_t t = 0;
    const uint32_t rc = VQ6192_PPP_GetMpAbortThld(chip, &t);
    return values(buf, "GetMpAbortThld()", rc, {{"rwThld", t}});
}

VQ6192_API uint32_t getmpmrru(uint32_t chip, uint32_t ulMpChanNo, char *buf) {
    uint32_t m = 0;
    const uint32_t rc = VQ6192_PPP_GetMpMrru(chip, ulMpChanNo, &m);
    return values(buf, "GetMpMrru()", rc, {{"rdwMRRU", m}});
}

VQ6192_API uint32_t getmpsnformat(uint32_t chip, uint32_t ulMpChanNo, char *buf) {
    uint32_t up = 0, down = 0;
    const uint32_t rc = VQ6192_PPP_GetMpSnFormat(chip, ulMpChanNo, &up, &down);
    return values(buf, "GetMpSnFormat()", rc, {{"renSnFormatUp", up}, {"renSnFormatDown", down}});
}

VQ6192_API uint32_t getmppfcenable(uint32_t chip, uint32_t ulMpChanNo, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_PPP_GetMpPFCEnable(chip, ulMpChanNo, &en);
    return values(buf, "GetMpPFCEnable()", rc, {{"rdwEnable", en}});
}

VQ6192_API uint32_t getmpacfcenable(uint32_t chip, uint32_t ulMpChanNo, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_PPP_GetMpACFCEnable(chip, ulMpChanNo, &en);
    return values(buf, "GetMpACFCEnable()", rc, {{"rdwEnable", en}});
}

VQ6192_API uint32_t getpppcsptenable(uint32_t chip, uint32_t ulChanNo, uint32_t enChanType, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_PPP_GetPppCsptEnable(chip, ulChanNo, enChanType, &en);
    return values(buf, "GetPppCsptEnable()", rc, {{"rdwEnable", en}});
}

VQ6192_API uint32_t getpppesptenable(uint32_t chip, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_PPP_GetPppESPTEnable(chip, &en);
    return values(buf, "GetPppESPTEnable()", rc, {{"rdwEnable", en}});
}

VQ6192_API uint32_t getpppcfgprtcen(uint32_t chip, char *buf) {
    uint16_t value = 0, en = 0;
    const uint32_t rc = VQ6192_PPP_GetPppCfgPrtcEn(chip, &value, &en);
    return values(buf, "GetPppCfgPrtcEn()", rc, {{"rwValue", value}, {"rwEnable", en}});
}

VQ6192_API uint32_t getppprxcfgprtccnt(uint32_t chip, char *buf) {
    uint32_t cnt = 0;
    const uint32_t rc = VQ6192_PPP_GetPppRxCfgPrtcCnt(chip, &cnt);
    return values(buf, "GetPppRxCfgPrtcCnt()", rc, {{"rdwCnt", cnt}});
}

VQ6192_API uint32_t getpppunidentifymode(uint32_t chip, char *buf) {
    uint32_t mode = 0;
    const uint32_t rc = VQ6192_PPP_GetPppUnidentifyMode(chip, &mode);
    return values(buf, "GetPppUnidentifyMode()", rc, {{"renMode", mode}});
}

VQ6192_API uint32_t getmpsnctrl(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMcNum, char *buf) {
    uint32_t en = 0, num = 0;
    const uint32_t rc = VQ6192_PPP_GetMpSnCtrl(chip, ulMpChanNo, ulMcNum, &en, &num);
    return values(buf, "GetMpSnCtrl()", rc, {{"rdwEnable", en}, {"rdwMpCtrlNum", num}});
}

VQ6192_API uint32_t getmpctrltimeout(uint32_t, uint32_t, char *buf) {
    return values(buf, "GetMpCtrlTimeOut()", 0, {{"rwTimeOut", 0}});
}

VQ6192_API uint32_t getmpmaxfragnum(uint32_t chip, char *buf) {
    uint32_t n = 0;
    const uint32_t rc = VQ6192_PPP_GetMpMaxFragNum(chip, &n);
    return values(buf, "GetMpMaxFragNum()", rc, {{"rdwMaxFragNum", n}});
}

VQ6192_API uint32_t getmpmcmap(uint32_t, uint32_t, char *buf) {
    return values(buf, "GetMpMcMap()", 0, {{"rdwMcQueNo", 0}});
}

VQ6192_API uint32_t getmpqueweight(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMcQueNo, char *buf) {
    uint32_t w = 0;
    const uint32_t rc = VQ6192_PPP_GetMpQueWeight(chip, ulMpChanNo, ulMcQueNo, &w);
    return values(buf, "GetMpQueWeight()", rc, {{"rdwQueWeight", w}});
}

VQ6192_API uint32_t getpppqueweight(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulPppQueNo, char *buf) {
    uint32_t w = 0;
    const uint32_t rc = VQ6192_PPP_GetPppQueWeight(chip, ulPppChanNo, ulPppQueNo, &w);
    return values(buf, "GetPppQueWeight()", rc, {{"rdwQueWeight", w}});
}

VQ6192_API uint32_t getppploopenable(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulDirect, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_PPP_GetPppLoopEnable(chip, ulPppChanNo, static_cast<uint8_t>(ulDirect), &en);
    return values(buf, "GetPppLoopEnable()", rc, {{"rdwEnable", en}});
}

VQ6192_API uint32_t getppptesttxenable(uint32_t chip, uint32_t ulPppChanNo, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_PPP_GetPppTestTxEnable(chip, ulPppChanNo, &en);
    return values(buf, "GetPppTestTxEnable()", rc, {{"rdwEnable", en}});
}

VQ6192_API uint32_t getppptestconfig(uint32_t chip, char *buf) {
    uint16_t ts = 0, tx = 0, rx = 0;
    const uint32_t rc = VQ6192_PPP_GetPppTestConfig(chip, &ts, &tx, &rx);
    return values(buf, "GetPppTestConfig()", rc,
                  {{"rwSendTimeSlot", ts}, {"rwTxProType", tx}, {"rwRxProType", rx}});
}

VQ6192_API uint32_t getppptestrxenable(uint32_t chip, uint32_t ulPppChanNo, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_PPP_GetPppTestRxEnable(chip, ulPppChanNo, &en);
    return values(buf, "GetPppTestRxEnable()", rc, {{"rdwEnable", en}});
}

VQ6192_API uint32_t getpppdelaytime(uint32_t chip, uint32_t ulPppChanNo, char *buf) {
    uint32_t t[4] = {};
    const uint32_t rc = VQ6192_PPP_GetPppDelayTime(chip, ulPppChanNo, t);
    return values(buf, "GetPppDelayTime()", rc,
                  {{"rdwT1", t[0]}, {"rdwT2", t[1]}, {"rdwT3", t[2]}, {"rdwT4", t[3]}});
}

VQ6192_API uint32_t getpppdelayteststat(uint32_t chip, char *buf) {
    uint16_t s[4] = {};
    const uint32_t rc = VQ6192_PPP_GetPppDelayTestStat(chip, s);
    return values(buf, "GetPppDelayTestStat()", rc,
                  {{"rwStat0", s[0]}, {"rwStat1", s[1]}, {"rwStat2", s[2]}, {"rwStat3", s[3]}});
}

VQ6192_API uint32_t getppptxlinkwatermark(uint32_t chip, uint32_t ulPppChanNo, char *buf) {
    VQ6192_PPP_WATERMARK_S w{};
    const uint32_t rc = VQ6192_PPP_GetPppTxLinkWaterMark(chip, ulPppChanNo, &w);
    return fields(buf, "GetPppTxLinkWaterMark()", rc,
                  {{"dwWaterMarkH", w.dwWaterMarkH},
                   {"dwWaterMarkL", w.dwWaterMarkL},
                   {"dwWaterMarkDrop", w.dwWaterMarkDrop}});
}

VQ6192_API uint32_t getmptxwatermark(uint32_t chip, uint32_t ulMpChanNo, char *buf) {
    VQ6192_MP_TX_WATERMARK_S w{};
    const uint32_t rc = VQ6192_PPP_GetMpTxWaterMark(chip, ulMpChanNo, &w);
    return fields(buf, "GetMpTxWaterMark()", rc,
                  {{"dwQue7WaterMarkDrop", w.dwQue7WaterMarkDrop},
                   {"dwQue6WaterMarkDrop", w.dwQue6WaterMarkDrop},
                   {"dwQue5WaterMarkDrop", w.dwQue5WaterMarkDrop},
                   {"dwQue4WaterMarkDrop", w.dwQue4WaterMarkDrop},
                   {"dwQue3WaterMarkDrop", w.dwQue3WaterMarkDrop},
                   {"dwQue2WaterMarkDrop", w.dwQue2WaterMarkDrop},
                   {"dwQue1WaterMarkDrop", w.dwQue1WaterMarkDrop},
                   {"dwQue0WaterMarkDrop", w.dwQue0WaterMarkDrop},
                   {"dwWaterMarkL", w.dwWaterMarkL},
                   {"dwWaterMarkH", w.dwWaterMarkH},
                   {"dwWaterMarkL1", w.dwWaterMarkL1},
                   {"dwWaterMarkH1", w.dwWaterMarkH1},
                   {"dwWaterMarkL2", w.dwWaterMarkL2},
                   {"dwWaterMarkH2", w.dwWaterMarkH2},
                   {"dwWaterMarkL3", w.dwWaterMarkL3},
                   {"dwWaterMarkH3", w.dwWaterMarkH3},
                   {"dwWaterMarkL4", w.dwWaterMarkL4},
                   {"dwWaterMarkH4", w.dwWaterMarkH4},
                   {"dwWaterMarkL5", w.dwWaterMarkL5},
                   {"dwWaterMarkH5", w.dwWaterMarkH5},
                   {"dwWaterMarkL6", w.dwWaterMarkL6},
                   {"dwWaterMarkH6", w.dwWaterMarkH6},
                   {"dwWaterMarkL7", w.dwWaterMarkL7},
                   {"dwWaterMarkH7", w.dwWaterMarkH7}});
}

VQ6192_API uint32_t getmprxwatermark(uint32_t chip, uint32_t ulMpChanNo, char *buf) {
    uint32_t h = 0, l = 0;
    const uint32_t rc = VQ6192_PPP_GetMpRxWaterMark(chip, ulMpChanNo, &h, &l);
    return values(buf, "GetMpRxWaterMark()", rc, {{"rdwWaterMarkH", h}, {"rdwWaterMarkL", l}});
}

VQ6192_API uint32_t getpppdfifowatermark(uint32_t chip, char *buf) {
    uint32_t h = 0, l = 0;
    const uint32_t rc = VQ6192_PPP_GetPppDFifoWaterMark(chip, &h, &l);
    return values(buf, "GetPppDFifoWaterMark()", rc, {{"rdwWaterMarkH", h}, {"rdwWaterMarkL", l}});
}

VQ6192_API uint32_t getpppfifocapdata(uint32_t chip, char *buf) {
    uint8_t data[kPktBuf] = {};
    uint32_t len = 0;
    const uint32_t rc = VQ6192_PPP_GetPppFifoCapData(chip, data, &len);
    TextBuilder text(buf);
    if (len > VQ6192_PPP_MAX_PKT_LEN) {
        text.add("Len is Wrong!\n");
        return rc;
    }
    text.add("The Pkt Len : %u\n", len);
    dumpBytes(text, data, len, len);
    return rc;
}

VQ6192_API uint32_t capturepppfifopkt(uint32_t chip, uint32_t ulChanNo, uint32_t ulType, char *buf) {
    uint8_t data[kPktBuf] = {};
    uint32_t len = 0;
    const uint32_t rc = VQ6192_PPP_CapturePppFifoPkt(chip, ulChanNo, ulType, data, &len);
    TextBuilder text(buf);
    if (len > VQ6192_PPP_MAX_PKT_LEN) {
        text.add("Len is Wrong!\n");
        return rc;
    }
    text.add(" dwDataLen    :    (%u)\n", len);
    dumpBytes(text, data, len, len);
    return rc;
}

VQ6192_API uint32_t getpppdcnenable(uint32_t chip, char *buf) {
    uint32_t en = 0;
    const uint32_t rc = VQ6192_PPP_GetPppDCNEnable(chip, &en);
    return values(buf, "GetPppDCNEnable()", rc, {{"rdwDCNEnable", en}});
}

VQ6192_API uint32_t getpppdcnconfig(uint32_t chip, char *buf) {
    uint32_t label = 0, mask = 0;
    const uint32_t rc = VQ6192_PPP_GetPppDCNConfig(chip, &label, &mask);
    return values(buf, "GetPppDCNConfig()", rc, {{"rdwDCNLabel", label}, {"rdwDCNMask", mask}});
}

VQ6192_API uint32_t getpppglobalingressstat(uint32_t chip, char *buf) {
    VQ6192_PPP_GLOBAL_IN_STAT_S s{};
    const uint32_t rc = VQ6192_PPP_GetPppGlobalIngressStat(chip, &s);
    return fields(buf, "GetPppGlobalIngressStat()", rc,
                  {{"wRppuRsrCnt", s.wRppuRsrCnt},
                   {"wRppu7ECnt", s.wRppu7ECnt},
                   {"wRppuAbortCnt", s.wRppuAbortCnt},
                   {"wRppuCobcCnt", s.wRppuCobcCnt},
                   {"wRppuAfidCnt", s.wRppuAfidCnt},
                   {"wTxmTppuCnt", s.wTxmTppuCnt},
                   {"wTppuTsrCnt", s.wTppuTsrCnt},
                   {"dwRpHdlcCnt", s.dwRpHdlcCnt},
                   {"dwRpBnCnt", s.dwRpBnCnt},
                   {"dwRpPtCnt", s.dwRpPtCnt},
                   {"dwRpEsptCnt", s.dwRpEsptCnt},
                   {"dwRpCsptCnt", s.dwRpCsptCnt},
                   {"dwRpDcnCnt", s.dwRpDcnCnt},
                   {"dwRpHdlcDropCnt", s.dwRpHdlcDropCnt},
                   {"dwRpPppDropCnt", s.dwRpPppDropCnt},
                   {"wSFifoDropCnt", s.wSFifoDropCnt},
                   {"wPhpFifoDropCnt", s.wPhpFifoDropCnt},
                   {"wRpDdrErrDropCnt", s.wRpDdrErrDropCnt},
                   {"wRpHeadErrDropCnt", s.wRpHeadErrDropCnt},
                   {"wRpLenErrDropCnt", s.wRpLenErrDropCnt},
                   {"wRprgErrDropCnt", s.wRprgErrDropCnt},
                   {"wRpVldErrDropCnt", s.wRpVldErrDropCnt},
                   {"wRpMrruErrDropCnt", s.wRpMrruErrDropCnt},
                   {"wRpFragErrCnt", s.wRpFragErrCnt},
                   {"wRxmDropCnt", s.wRxmDropCnt},
                   {"wRxmPdFullDropCnt", s.wRxmPdFullDropCnt},
                   {"wRxmPrlsCnt", s.wRxmPrlsCnt},
                   {"wRxmMerrCnt", s.wRxmMerrCnt},
                   {"wRxmRerrCnt", s.wRxmRerrCnt},
                   {"wRxmTdisDropCnt", s.wRxmTdisDropCnt}});
}

VQ6192_API uint32_t getpppglobalegressstat(uint32_t chip, char *buf) {
    VQ6192_PPP_GLOBAL_EG_STAT_S s{};
    const uint32_t rc = VQ6192_PPP_GetPppGlobalEgressStat(chip, &s);
    return fields(buf, "GetPppGlobalEgressStat()", rc,
                  {{"wTpPppCnt", s.wTpPppCnt},
                   {"wTpMpCnt", s.wTpMpCnt},
                   {"wTpPppPCnt", s.wTpPppPCnt},
                   {"wTpMpPCnt", s.wTpMpPCnt},
                   {"wTpPppDcnCnt", s.wTpPppDcnCnt},
                   {"wTpMpDcnCnt", s.wTpMpDcnCnt},
                   {"wTpT6Cnt", s.wTpT6Cnt},
                   {"wFragBCnt", s.wFragBCnt},
                   {"wFragECnt", s.wFragECnt},
                   {"wTpTdisDropCnt", s.wTpTdisDropCnt},
                   {"wTpFdisDropCnt", s.wTpFdisDropCnt},
                   {"wTpPdisDropCnt", s.wTpPdisDropCnt},
                   {"wTpNdisDropCnt", s.wTpNdisDropCnt},
                   {"wTpSEDropCnt", s.wTpSEDropCnt},
                   {"wTpSSDropCnt", s.wTpSSDropCnt},
                   {"wTpEEDropCnt", s.wTpEEDropCnt},
                   {"wTpBdFullDropCnt", s.wTpBdFullDropCnt},
                   {"wTpDfifoErrCnt", s.wTpDfifoErrCnt},
                   {"wTpErrPktCnt", s.wTpErrPktCnt},
                   {"wTpDfifoCnt", s.wTpDfifoCnt},
                   {"wTpFragCnt", s.wTpFragCnt},
                   {"wFragPppCnt", s.wFragPppCnt},
                   {"wTpLdisCnt", s.wTpLdisCnt},
                   {"wTpMdisCnt", s.wTpMdisCnt}});
}

VQ6192_API uint32_t getppplinkstat(uint32_t chip, uint32_t ulPppChanNo, char *buf) {
    VQ6192_PPP_LINK_STAT_S s{};
    const uint32_t rc = VQ6192_PPP_GetPppLinkStat(chip, ulPppChanNo, &s);
    return fields(buf, "GetPppLinkStat()", rc,
                  {{"dwRxBytesCnt", s.dwRxBytesCnt},
                   {"dwRxAvailCnt", s.dwRxAvailCnt},
                   {"dwRxRightCnt", s.dwRxRightCnt},
                   {"dwRxmLinkCnt", s.dwRxmLinkCnt},
                   {"dwRxAbortCnt", s.dwRxAbortCnt},
                   {"dwRxCrcErrCnt", s.dwRxCrcErrCnt},
                   {"dwRx8bitErrCnt", s.dwRx8bitErrCnt},
                   {"dwRxLongErrCnt", s.dwRxLongErrCnt},
                   {"dwRxShortErrCnt", s.dwRxShortErrCnt},
                   {"dwTxBytesCnt", s.dwTxBytesCnt},
                   {"dwTxRightCnt", s.dwTxRightCnt},
                   {"dwTxAbortCnt", s.dwTxAbortCnt},
                   {"dwTxErrCnt", s.dwTxErrCnt}});
}

VQ6192_API uint32_t getmpingressstat(uint32_t chip, uint32_t ulMpChanNo, char *buf) {
    VQ6192_MP_INGRESS_STAT_S s{};
    const uint32_t rc = VQ6192_PPP_GetMpIngressStat(chip, ulMpChanNo, &s);
    return fields(buf, "GetMpIngressStat()", rc,
                  {{"dwRgrpFragCnt", s.dwRgrpFragCnt},
                   {"dwRgrpPktCnt", s.dwRgrpPktCnt},
                   {"dwRgrpAbrCnt", s.dwRgrpAbrCnt},
                   {"dwRgrpRepCnt", s.dwRgrpRepCnt},
                   {"dwRgrpOtCnt", s.dwRgrpOtCnt},
                   {"dwRgrpSnErrCnt", s.dwRgrpSnErrCnt},
                   {"dwRxMpBytesCnt", s.dwRxMpBytesCnt},
                   {"wRxmMpBCnt", s.wRxmMpBCnt},
                   {"wRxmMpECnt", s.wRxmMpECnt},
                   {"wMcRxCnt[0]", s.wMcRxCnt[0]},
                   {"wMcRxCnt[1]", s.wMcRxCnt[1]},
                   {"wMcRxCnt[2]", s.wMcRxCnt[2]},
                   {"wMcRxCnt[3]", s.wMcRxCnt[3]},
                   {"wMcRxCnt[4]", s.wMcRxCnt[4]},
                   {"wMcRxCnt[5]", s.wMcRxCnt[5]},
                   {"wMcRxCnt[6]", s.wMcRxCnt[6]},
                   {"wMcRxCnt[7]", s.wMcRxCnt[7]}});
}

VQ6192_API uint32_t getmpegressstat(uint32_t chip, uint32_t ulMpChanNo, char *buf) {
    VQ6192_MP_EGRESS_STAT_S s{};
    const uint32_t rc = VQ6192_PPP_GetMpEgressStat(chip, ulMpChanNo, &s);
    return fields(buf, "GetMpEgressStat()", rc,
                  {{"dwTxMpRpkt", s.dwTxMpRpkt}, {"dwTxMpRbyte", s.dwTxMpRbyte}});
}

VQ6192_API uint32_t getpppcrccorrectstat(uint32_t chip, uint32_t ulChanNo, char *buf) {
    uint16_t s[3] = {};
    const uint32_t rc = VQ6192_PPP_GetPppCrcCorrectStat(chip, ulChanNo, s);
    return fields(buf, "GetPppCrcCorrectStat()", rc,
                  {{"wCorrectCnt0", s[0]}, {"wCorrectErrCnt0", s[1]}, {"wCrcFifoDropCnt0", s[2]}});
}

VQ6192_API uint32_t getpppcrcfifostatus(uint32_t chip, uint32_t ulChanNo, char *buf) {
    VQ6192_PPP_CRC_FIFO_STATUS_S cur{};
    VQ6192_PPP_CRC_FIFO_HIS_STATUS_S his{};
    const uint32_t rc = VQ6192_PPP_GetPppCrcFifoStatus(chip, ulChanNo, &cur, &his);
    return fields(buf, "GetPppCrcFifoStatus()", rc,
                  {{"bCrcFifoFull", cur.bCrcFifoFull},
                   {"bCrcFifoEmpty", cur.bCrcFifoEmpty},
                   {"bCrcFifoHisFull", his.bCrcFifoHisFull},
                   {"bCrcFifoHisEmpty", his.bCrcFifoHisEmpty}});
}

VQ6192_API uint32_t getpppfifostatus(uint32_t chip, char *buf) {
    VQ6192_PPP_FIFO_STATUS_S c{};
    VQ6192_PPP_FIFO_HIS_STATUS_S h{};
    const uint32_t rc = VQ6192_PPP_GetPppFifoStatus(chip, &c, &h);
    return fields(buf, "GetPppFifoStatus()", rc,
                  {{"bPhpFifo2Full", c.bPhpFifo2Full},   {"bPhpFifo2Empty", c.bPhpFifo2Empty},
                   {"bPhpFifo1Full", c.bPhpFifo1Full},   {"bPhpFifo1Empty", c.bPhpFifo1Empty},
                   {"bBFifoEmpty", c.bBFifoEmpty},       {"bSFifoFull", c.bSFifoFull},
                   {"bSFifoEmpty", c.bSFifoEmpty},       {"bCFifoFull", c.bCFifoFull},
                   {"bCFifoEmpty", c.bCFifoEmpty},       {"bEmcFifoFull", c.bEmcFifoFull},
                   {"bEmcFifoEmpty", c.bEmcFifoEmpty},   {"bMcFifoFull", c.bMcFifoFull},
                   {"bMcFifoEmpty", c.bMcFifoEmpty},     {"bHdFifoFull", c.bHdFifoFull},
                   {"bHdFifoEmpty", c.bHdFifoEmpty},     {"bGnFifoFull", c.bGnFifoFull},
                   {"bGnFifoEmpty", c.bGnFifoEmpty},     {"bEqFifoFull", c.bEqFifoFull},
                   {"bEqFifoEmpty", c.bEqFifoEmpty},     {"bOtFifoFull", c.bOtFifoFull},
                   {"bOtFifoEmpty", c.bOtFifoEmpty},     {"bOdFifoFull", c.bOdFifoFull},
                   {"bOdFifoEmpty", c.bOdFifoEmpty},     {"bDqFifoFull", c.bDqFifoFull},
                   {"bDqFifoEmpty", c.bDqFifoEmpty},     {"bPhpFifo2Full", h.bPhpFifo2Full},
                   {"bPhpFifo1Full", h.bPhpFifo1Full},   {"bAFifoFull", h.bAFifoFull},
                   {"bBFifoFull", h.bBFifoFull},         {"bSFifoHisFull", h.bSFifoHisFull},
                   {"bCFifoHisFull", h.bCFifoHisFull},   {"bEmcFifoHisFull", h.bEmcFifoHisFull},
                   {"bMcFifoHisFull", h.bMcFifoHisFull}, {"bHdFifoHisFull", h.bHdFifoHisFull},
                   {"bGnFifoHisFull", h.bGnFifoHisFull}, {"bEqFifoHisFull", h.bEqFifoHisFull},
                   {"bOtFifoHisFull", h.bOtFifoHisFull}, {"bOdFifoHisFull", h.bOdFifoHisFull},
                   {"bDqFifoHisFull", h.bDqFifoHisFull}});
}

VQ6192_API uint32_t startcobccap(uint32_t chip, uint32_t ulHdlcChnl, char *buf) {
    const uint32_t rc = VQ6192_PPP_StartCobcCap(chip, ulHdlcChnl);
    TextBuilder(buf).add("     startcobccap() is %s\n", rc == 0 ? "OK" : "FAIL");
    return rc;
}

VQ6192_API uint32_t stopcobccap(uint32_t chip, char *buf) {
    const uint32_t rc = VQ6192_PPP_StopCobcCap(chip);
    TextBuilder(buf).add("     stopcobccap() is %s\n", rc == 0 ? "OK" : "FAIL");
    return rc;
}

VQ6192_API uint32_t getcobccappkt(uint32_t chip, char *buf) {
    uint8_t data[kPktBuf] = {};
    uint16_t len = 0;
    const uint32_t rc = VQ6192_PPP_GetCobcCapPkt(chip, data, &len);
    TextBuilder text(buf);
    text.add("%s  wDataLen  :  %u \n%s", kPppSep, len, kPppSep);
    dumpBytes(text, data, len, len);
    return rc;
}

VQ6192_API uint32_t getpppmpschmode(uint32_t chip, char *buf) {
    uint32_t ppp = 0, mp = 0;
    const uint32_t rc = VQ6192_PPP_GetPppMpSchMode(chip, &ppp, &mp);
    return values(buf, "GetPppMpSchMode()", rc, {{"renPppSchMode", ppp}, {"renMpSchMode", mp}});
}

VQ6192_API uint32_t getcobcmode(uint32_t chip, uint32_t ulChanNo, char *buf) {
    uint32_t mode = 0;
    const uint32_t rc = VQ6192_PPP_GetCobcMode(chip, ulChanNo, &mode);
    return values(buf, "GetCobcMode()", rc, {{"rdwMode", mode}});
}

VQ6192_API uint32_t DbgPrintPppPkt(uint32_t chip, uint32_t ulSlot, uint32_t ulDirect, uint32_t ulFirst,
                                   uint32_t ulLast, uint32_t ulMaxLen, char *buf) {
    TextBuilder text(buf);
    const uint32_t max = ulMaxLen == 0 ? VQ6192_PPP_MAX_PKT_LEN : ulMaxLen;
    uint8_t data[kPktBuf] = {};
    uint32_t offset = 0;
    for (uint32_t n = 0; n <= ulLast; ++n) {
        uint16_t len = 0;
        uint32_t next = 0;
        const uint32_t rc = VQ6192_PPP_GetPppDdrCapPkt(chip, ulSlot, offset, ulDirect, data, &len, &next);
        if (rc != 0) {
            text.add("Read Data Fail!!\n");
            return rc;
        }
        offset = next;
        if (n >= ulFirst) {
            text.add("The Packge  %u  Len:  %u  Data:\n", n, len);
            dumpBytes(text, data, len, max);
        }
    }
    return 0;
}

VQ6192_API uint32_t DbgReadPppAllCntAndStatus(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulMpChanNo,
                                              char *buf) {
    // Each report is formatted into a work buffer and appended, cut to the room that is left.
    char *scratch = nullptr;
    if (buf != nullptr) {
        scratch = static_cast<char *>(vq::_drv_malloc(VQ6192_DIAG_BUF_SIZE, "vq6192_ppp_cfg", __LINE__));
        if (scratch == nullptr) {
            return VQ6192_STATUS(chip, VQ6192_MODULE_PPP, VQ6192_ERR_NULL);
        }
    }
    TextBuilder text(buf);
    uint32_t rc = 0;
    auto report = [&](uint32_t r) {
        rc |= r;
        if (scratch != nullptr) {
            text.add("%s", scratch);
        }
    };
    report(getpppglobalingressstat(chip, scratch));
    report(getpppglobalegressstat(chip, scratch));
    report(getppplinkstat(chip, ulPppChanNo, scratch));
    report(getmpingressstat(chip, ulMpChanNo, scratch));
    report(getmpegressstat(chip, ulMpChanNo, scratch));
    report(getpppcrccorrectstat(chip, ulPppChanNo, scratch));
    report(getpppcrcfifostatus(chip, ulPppChanNo, scratch));
    report(getpppfifostatus(chip, scratch));
    report(getpppdelayteststat(chip, scratch));
    report(getpppmpschmode(chip, scratch));
    if (scratch != nullptr) {
        vq::_drv_free(scratch);
    }
    return rc;
}

VQ6192_API uint32_t getmpvc4en(uint32_t chip, uint32_t ulVc4PppChanNo, char *buf) {
    uint16_t en = 0;
    const uint32_t rc = VQ6192_PPP_GetMpVc4En(chip, ulVc4PppChanNo, &en);
    return values(buf, "GetMpVc4En()", rc, {{"rwEnable", en}});
}

VQ6192_API uint32_t setpppppucfg(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulPacked, uint32_t ulRxMtu,
                                 uint32_t ulRxMintu, char *buf) {
    VQ6192_PPP_PPU_CFG_S cfg{}, sel{};
    auto bits = [&](uint32_t start, uint32_t width) { return (ulPacked >> start) & ((1u << width) - 1u); };
    // Packed bits 21..31 (CRC modes, inversion, byte reversal) are not unpacked: those fields stay
    // unselected.
    cfg.bRxafi = bits(0, 1) & 1u;
    cfg.bMpv = bits(1, 8) & 0xFFu;
    cfg.bChnEn = bits(9, 1) & 1u;
    cfg.bCorrect = bits(10, 2) & 3u;
    cfg.bTxaifs = bits(12, 1) & 1u;
    cfg.bTxifs = bits(13, 1) & 1u;
    cfg.bTxcfcs = bits(14, 1) & 1u;
    cfg.bTxfMod = bits(15, 4) & 0xFu;
    cfg.bTxFillMod = bits(19, 1) & 1u;
    cfg.bRxFillMod = bits(20, 1) & 1u;
    cfg.dwRxMtu = ulRxMtu;
    cfg.dwRxMintu = ulRxMintu;
    sel.bRxafi = cfg.bRxafi != 0;
    sel.bMpv = cfg.bMpv != 0 ? 1 : 0;
    sel.bChnEn = cfg.bChnEn != 0;
    sel.bCorrect = cfg.bCorrect != 0 ? 1 : 0;
    sel.bTxaifs = cfg.bTxaifs != 0;
    sel.bTxifs = cfg.bTxifs != 0;
    sel.bTxcfcs = cfg.bTxcfcs != 0;
    sel.bTxfMod = cfg.bTxfMod != 0 ? 1 : 0;
    sel.bTxFillMod = cfg.bTxFillMod != 0;
    sel.bRxFillMod = cfg.bRxFillMod != 0;
    sel.dwRxMtu = ulRxMtu != 0 ? 1 : 0;
    sel.dwRxMintu = ulRxMintu != 0 ? 1 : 0;
    const uint32_t rc = VQ6192_PPP_SetPppPpuCfg(chip, ulPppChanNo, &cfg, &sel);
    TextBuilder(buf).add("        setpppppucfg() is %s\n", rc == 0 ? "OK" : "FIAL");
    return rc;
}

VQ6192_API uint32_t getpppppucfg(uint32_t chip, uint32_t ulPppChanNo, char *buf) {
    VQ6192_PPP_PPU_CFG_S c{};
    const uint32_t rc = VQ6192_PPP_GetPppPpuCfg(chip, ulPppChanNo, &c);
    return fields(buf, "GetPppPpuCfg()", rc,
                  {{"bRxafi", c.bRxafi},
                   {"bMpv", c.bMpv},
                   {"bChnEn", c.bChnEn},
                   {"bCorrect", c.bCorrect},
                   {"bTxaifs", c.bTxaifs},
                   {"bTxifs", c.bTxifs},
                   {"bTxcfcs", c.bTxcfcs},
                   {"bTxfMod", c.bTxfMod},
                   {"bTxFillMod", c.bTxFillMod},
                   {"bTxCrcMod", c.bTxCrcMod},
                   {"bRxFillMod", c.bRxFillMod},
                   {"bRxCrcMod", c.bRxCrcMod},
                   {"bTxDie", c.bTxDie},
                   {"bByteFe", c.bByteFe},
                   {"bRxPlDet", c.bRxPlDet},
                   {"dwRxMtu", c.dwRxMtu},
                   {"dwRxMintu", c.dwRxMintu},
                   {"bRxDie", c.bRxDie}});
}

VQ6192_API uint32_t Vq6192PppSetChnlCappkt(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulEnable,
                                           char *buf) {
    TextBuilder text(buf);
    if (chip >= VQ6192_CHIP_RECORD_NUM || ulPppChanNo >= kDbgChannels) {
        text.add("\r\n   sorry,parameter err!\r\n");
        return 0;
    }
    const uint32_t rc =
        VQ6192_PPP_SetPppDdrCapChan(chip, ulPppChanNo, ulPppChanNo % VQ6192_DDR_CAP_MAX, ulEnable);
    if (rc == 0) {
        text.add(ulEnable != 0 ? "\r\n Enable DDR cap channel Success!\r\n"
                               : "\r\n Disable DDR cap channel Success!\r\n");
    } else if (ulEnable != 0) {
        text.add("\r\n   Enable DDR cap channel Fail! dwRtn = 0x%x\r\n", rc);
    } else {
        text.add("\r\n  Disable DDR cap channel Fail! dwRtn = 0x%x\r\n", rc);
    }
    return rc;
}

VQ6192_API uint32_t Vq6192PppStartDdrCappkt(uint32_t chip, uint32_t ulDirect, char *buf) {
    TextBuilder text(buf);
    if (ulDirect >= VQ6192_BASE_SRV_DIRECT_MAX) {
        text.add("\r\nsorry,parameter err!\r\n");
        return 0;
    }
    const uint32_t rc = VQ6192_PPP_StartPppDdrCapPkt(chip, ulDirect, kDdrCapCount);
    if (rc == 0) {
        text.add("\r\nStart cap pkt success!\r\n");
    } else {
        text.add("\r\nStart cap pkt fail! dwRtn = 0x%x\r\n", rc);
    }
    return rc;
}

VQ6192_API uint32_t Vq6192PppStoptDdrCappkt(uint32_t chip, char *buf) {
    const uint32_t rc = VQ6192_PPP_StopPppDdrCapPkt(chip);
    TextBuilder text(buf);
    if (rc == 0) {
        text.add("\r\nStop is success!\r\n");
    } else {
        text.add("\r\nStop fail!dwRtn =0x%x,Please try again!\r\n", rc);
    }
    return rc;
}

VQ6192_API uint32_t Vq6192PppgetDdrpkt(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulDirect, char *buf) {
    uint8_t data[kPktBuf] = {};
    uint16_t len = 0;
    uint32_t next = 0;
    const uint32_t rc =
        VQ6192_PPP_GetPppDdrCapPkt(chip, ulPppChanNo % VQ6192_DDR_CAP_MAX, 0, ulDirect, data, &len, &next);
    TextBuilder text(buf);
    if (rc != 0) {
        text.add("\r\nStop fail,maybe,chip buffer is not full! dwRtn = 0x%x\r\n", rc);
        return rc;
    }
    text.add("\r\n----------------------------------------------------\r\n");
    text.add("  wDataLen  :  %u \r\n", len);
    const uint32_t n = len < kShownBytes ? len : kShownBytes;
    for (uint32_t k = 0; k < n; ++k) {
        text.add("%02x ", data[k]);
        if (k % 16 == 15) {
            text.add("\r\n");
        } else if (k % 8 == 7) {
            text.add(" ");
        }
    }
    text.add("\r\n next offset: 0x%x---------------------------------\r\n", next);
    return rc;
}

VQ6192_API uint32_t setpppqueweight(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulPppQueNo,
                                    uint32_t ulQueWeight, char *buf) {
    const uint32_t rc = VQ6192_PPP_SetPppQueWeight(chip, ulPppChanNo, ulPppQueNo, ulQueWeight);
    TextBuilder(buf).add("\r\nSetpppqueweight :dwRtn = 0x%x!\r\n", rc);
    return 0;
}

VQ6192_API uint32_t setmpqueweight(uint32_t chip, uint32_t ulMpChanNo, uint32_t ulMcQueNo,
                                   uint32_t ulQueWeight, char *buf) {
    const uint32_t rc = VQ6192_PPP_SetMpQueWeight(chip, ulMpChanNo, ulMcQueNo, ulQueWeight);
    TextBuilder(buf).add("\r\nSetmpqueweight :dwRtn = 0x%x!\r\n", rc);
    return 0;
}

VQ6192_API uint32_t DbgSetCapPktAndStart(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulDirect, char *buf) {
    TextBuilder text(buf);
    if (ulPppChanNo >= kDbgChannels) {
        text.add("\r\n input ulPppChanNo error");
        return 0;
    }
    if (ulDirect >= VQ6192_BASE_SRV_DIRECT_BOTH) {
        text.add("\r\n input direct error");
        return 0;
    }
    const uint32_t rc = selectCapChannel(chip, ulPppChanNo);
    if (rc != 0) {
        text.add("\r\n Set PPP Cap Chan en error");
        return rc;
    }
    const uint32_t start = Vq6192PppStartDdrCappkt(chip, ulDirect, buf);
    if (chip < VQ6192_CHIP_RECORD_NUM) {
        g_st6192CapPpp[chip] = {1, ulPppChanNo, ulDirect};
    }
    return start;
}

VQ6192_API uint32_t DbgGetCapPkt(uint32_t chip, char *buf) {
    TextBuilder text(buf);
    if (chip >= VQ6192_CHIP_RECORD_NUM || g_st6192CapPpp[chip].ulStarted == 0) {
        text.add("\r\n Not set pppchl and start,please first start and set ppp chl,thank you!");
        return 0;
    }
    const VQ6192_PPP_CAP_STATE_S st = g_st6192CapPpp[chip];
    uint8_t data[kPktBuf] = {};
    uint32_t offset = 0;
    uint32_t got = 0;
    for (uint32_t n = 0; n < kCapPackets; ++n) {
        uint16_t len = 0;
        uint32_t next = 0;
        if (VQ6192_PPP_GetPppDdrCapPkt(chip, st.ulPppChanNo % VQ6192_DDR_CAP_MAX, offset, st.ulDirect, data,
                                       &len, &next) != 0) {
            break;
        }
        offset = next;
        got++;
        text.add("The Data  %u  Len:  %u  \n", n, len);
        dumpBytes(text, data, len, kShownBytes);
    }
    if (got == 0) {
        text.add("can not capture data,retry start captue again\n");
    }
    const uint32_t rc = VQ6192_PPP_StopPppDdrCapPkt(chip);
    g_st6192CapPpp[chip].ulStarted = 0;
    return rc;
}

VQ6192_API uint32_t DbgGetCapPktForMatch(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulDirect,
                                         uint32_t ulStartByte, uint32_t ulMask, uint32_t ulTemp, char *buf) {
    TextBuilder text(buf);
    return matchPackets(text, chip, ulPppChanNo, ulDirect, ulStartByte, ulMask, ulTemp);
}

VQ6192_API uint32_t DbgGetCapPktForMatchTemp(uint32_t chip, uint32_t ulPppChanNo, uint32_t ulDirect,
                                             uint32_t ulStartByte, uint32_t ulMask, uint32_t ulTemp,
                                             char *buf) {
    TextBuilder text(buf);
    if (ulPppChanNo >= kDbgChannels) {
        text.add("\r\n input ulPppChnlNo error");
        return 0;
    }
    if (ulDirect >= VQ6192_BASE_SRV_DIRECT_BOTH) {
        text.add("\r\n input direct type error");
        return 0;
    }
    uint32_t rc = selectCapChannel(chip, ulPppChanNo);
    rc |= VQ6192_PPP_StartPppDdrCapPkt(chip, ulDirect, kDdrCapCount);
    vq::OSK_TaskDelay(kMatchWaitTicks);
    text.add("Cmd DATA ChipID:%u  PppChanNo:%u  Direct:%u  StartByte:%u  MatchMask: 0x%x MatchTemp:0x%x \n",
             chip, ulPppChanNo, ulDirect, ulStartByte, ulMask, ulTemp);
    return rc | matchPackets(text, chip, ulPppChanNo, ulDirect, ulStartByte, ulMask, ulTemp);
}

VQ6192_API uint32_t DbgGetPppconfig(uint32_t, char *) {
    return 0;
}

VQ6192_API uint32_t DbgGetMpconfig(uint32_t, char *) {
    return 0;
}

VQ6192_API uint32_t DbgGetCapPktMatchCapture(uint32_t, char *) {
    return 0;
}

}  // extern "C"

namespace vq::diag {
namespace {

constexpr Command kCommands[] = {
    VQ6192_DIAG_COMMAND(getlinktoppp, "PPP", "chip link", "link type (PPP or plain HDLC) of both directions"),
    VQ6192_DIAG_COMMAND(getmpvc4scrambler, "PPP", "chip vc4Chan",
                        "scrambler and descrambler of a VC-4 PPP channel"),
    VQ6192_DIAG_COMMAND(getpppchanenable, "PPP", "chip ch", "ingress and egress enable of a PPP channel"),
    VQ6192_DIAG_COMMAND(getmpbundleenable, "PPP", "chip bundle", "ingress and egress enable of a bundle"),
    VQ6192_DIAG_COMMAND(getpppchantomp, "PPP", "chip ch", "bundle of a PPP channel in each direction"),
    VQ6192_DIAG_COMMAND(getpppcrcmode, "PPP", "chip ch dir",
                        "CRC mode of a PPP channel (dir 0 ingress, 1 egress)"),
    VQ6192_DIAG_COMMAND(getpppmru, "PPP", "chip ch", "MRU of a PPP channel"),
    VQ6192_DIAG_COMMAND(getpppacfcenable, "PPP", "chip ch", "address/control field compression of a channel"),
    VQ6192_DIAG_COMMAND(getppppfcenable, "PPP", "chip ch", "protocol field compression of a channel"),
    VQ6192_DIAG_COMMAND(getmpfragsize, "PPP", "chip bundle", "fragment size code of a bundle"),
    VQ6192_DIAG_COMMAND(getmptimeout, "PPP", "chip bundle", "reassembly timeout of a bundle (ms)"),
    VQ6192_DIAG_COMMAND(calcmptimeoutvalue, "PPP", "chip bundle tsNum",
                        "reassembly timeout for a timeslot count"),
    VQ6192_DIAG_COMMAND(getmpabortthld, "PPP", "chip", "MP abort threshold"),
    VQ6192_DIAG_COMMAND(getmpmrru, "PPP", "chip bundle", "MRRU of a bundle"),
    VQ6192_DIAG_COMMAND(getmpsnformat, "PPP", "chip bundle", "sequence-number formats of a bundle"),
    VQ6192_DIAG_COMMAND(getmppfcenable, "PPP", "chip bundle", "protocol field compression of a bundle"),
    VQ6192_DIAG_COMMAND(getmpacfcenable, "PPP", "chip bundle",
                        "address/control field compression of a bundle"),
    VQ6192_DIAG_COMMAND(getpppcsptenable, "PPP", "chip no type",
                        "special-protocol packet enable (type 0 PPP, 1 MP)"),
    VQ6192_DIAG_COMMAND(getpppesptenable, "PPP", "chip", "ESPT enable"),
    VQ6192_DIAG_COMMAND(getpppcfgprtcen, "PPP", "chip", "CfgPrtc value and enable"),
    VQ6192_DIAG_COMMAND(getppprxcfgprtccnt, "PPP", "chip", "received CfgPrtc packet count"),
    VQ6192_DIAG_COMMAND(getpppunidentifymode, "PPP", "chip", "unidentified-protocol mode"),
    VQ6192_DIAG_COMMAND(getmpsnctrl, "PPP", "chip bundle mc", "reorder control of a bundle's class"),
    VQ6192_DIAG_COMMAND(getmpctrltimeout, "PPP", "chip bundle", "reorder control timeout (always 0)"),
    VQ6192_DIAG_COMMAND(getmpmaxfragnum, "PPP", "chip", "maximum fragment count"),
    VQ6192_DIAG_COMMAND(getmpmcmap, "PPP", "chip bundle", "MC queue map (always 0)"),
    VQ6192_DIAG_COMMAND(getmpqueweight, "PPP", "chip bundle queue", "weight of a bundle's MC queue"),
    VQ6192_DIAG_COMMAND(getpppqueweight, "PPP", "chip ch queue", "weight of a PPP channel's queue"),
    VQ6192_DIAG_COMMAND(getppploopenable, "PPP", "chip ch dir", "loopback of a PPP channel"),
    VQ6192_DIAG_COMMAND(getppptesttxenable, "PPP", "chip ch", "test frame transmission of a channel"),
    VQ6192_DIAG_COMMAND(getppptestconfig, "PPP", "chip", "test frame timeslot and protocol types"),
    VQ6192_DIAG_COMMAND(getppptestrxenable, "PPP", "chip ch", "test frame reception"),
    VQ6192_DIAG_COMMAND(getpppdelaytime, "PPP", "chip ch", "delay test timestamps T1..T4"),
    VQ6192_DIAG_COMMAND(getpppdelayteststat, "PPP", "chip", "delay test frame counters"),
    VQ6192_DIAG_COMMAND(getppptxlinkwatermark, "PPP", "chip ch", "egress queue watermarks of a PPP channel"),
    VQ6192_DIAG_COMMAND(getmptxwatermark, "PPP", "chip bundle", "egress MC queue watermarks of a bundle"),
    VQ6192_DIAG_COMMAND(getmprxwatermark, "PPP", "chip bundle", "ingress buffer watermarks of a bundle"),
    VQ6192_DIAG_COMMAND(getpppdfifowatermark, "PPP", "chip", "egress data FIFO watermarks"),
    VQ6192_DIAG_COMMAND(getpppfifocapdata, "PPP", "chip", "read the frame held by the FIFO capture"),
    VQ6192_DIAG_COMMAND(capturepppfifopkt, "PPP", "chip ch type",
                        "capture one frame of a channel (0) or bundle (1)"),
    VQ6192_DIAG_COMMAND(getpppdcnenable, "PPP", "chip", "DCN enable"),
    VQ6192_DIAG_COMMAND(getpppdcnconfig, "PPP", "chip", "DCN label and mask"),
    VQ6192_DIAG_COMMAND(getpppglobalingressstat, "PPP", "chip", "global ingress counters"),
    VQ6192_DIAG_COMMAND(getpppglobalegressstat, "PPP", "chip", "global egress counters"),
    VQ6192_DIAG_COMMAND(getppplinkstat, "PPP", "chip ch", "counters of a PPP link"),
    VQ6192_DIAG_COMMAND(getmpingressstat, "PPP", "chip bundle", "ingress counters of a bundle"),
    VQ6192_DIAG_COMMAND(getmpegressstat, "PPP", "chip bundle", "egress counters of a bundle"),
    VQ6192_DIAG_COMMAND(getpppcrccorrectstat, "PPP", "chip ch", "CRC correction counters"),
    VQ6192_DIAG_COMMAND(getpppcrcfifostatus, "PPP", "chip ch", "CRC FIFO flags"),
    VQ6192_DIAG_COMMAND(getpppfifostatus, "PPP", "chip", "PPP FIFO flags, current and latched"),
    VQ6192_DIAG_COMMAND(startcobccap, "PPP", "chip hdlcChnl", "start the COBC capture of an HDLC channel"),
    VQ6192_DIAG_COMMAND(stopcobccap, "PPP", "chip", "stop the COBC capture"),
    VQ6192_DIAG_COMMAND(getcobccappkt, "PPP", "chip", "read the frame of the COBC capture"),
    VQ6192_DIAG_COMMAND(getpppmpschmode, "PPP", "chip", "PPP and MP scheduling modes"),
    VQ6192_DIAG_COMMAND(getcobcmode, "PPP", "chip ch", "COBC mode of a channel"),
    VQ6192_DIAG_COMMAND(DbgPrintPppPkt, "PPP", "chip slot dir first last maxLen",
                        "print DDR-captured packets"),
    VQ6192_DIAG_COMMAND(DbgReadPppAllCntAndStatus, "PPP", "chip ch bundle", "every PPP counter and status"),
    VQ6192_DIAG_COMMAND(getmpvc4en, "PPP", "chip vc4Chan", "VC-4 PPP channel enable"),
    VQ6192_DIAG_COMMAND(setpppppucfg, "PPP", "chip ch packed rxMtu rxMintu",
                        "set HDLC engine options (packed)"),
    VQ6192_DIAG_COMMAND(getpppppucfg, "PPP", "chip ch", "HDLC engine options of a channel"),
    VQ6192_DIAG_COMMAND(Vq6192PppSetChnlCappkt, "PPP", "chip ch enable",
                        "DDR capture of a channel on or off"),
    VQ6192_DIAG_COMMAND(Vq6192PppStartDdrCappkt, "PPP", "chip dir", "start a DDR capture of 36 packets"),
    VQ6192_DIAG_COMMAND(Vq6192PppStoptDdrCappkt, "PPP", "chip", "stop the DDR capture"),
    VQ6192_DIAG_COMMAND(Vq6192PppgetDdrpkt, "PPP", "chip ch dir", "read one DDR-captured packet"),
    VQ6192_DIAG_COMMAND(setpppqueweight, "PPP", "chip ch queue weight", "set a PPP channel queue weight"),
    VQ6192_DIAG_COMMAND(setmpqueweight, "PPP", "chip bundle queue weight", "set a bundle MC queue weight"),
    VQ6192_DIAG_COMMAND(DbgSetCapPktAndStart, "PPP", "chip ch dir", "capture one channel and start"),
    VQ6192_DIAG_COMMAND(DbgGetCapPkt, "PPP", "chip", "print up to ten captured packets and stop"),
    VQ6192_DIAG_COMMAND(DbgGetCapPktForMatch, "PPP", "chip ch dir startByte mask temp",
                        "print matching packets and stop"),
    VQ6192_DIAG_COMMAND(DbgGetCapPktForMatchTemp, "PPP", "chip ch dir startByte mask temp",
                        "capture a channel, wait, print matching packets"),
    VQ6192_DIAG_COMMAND(DbgGetPppconfig, "PPP", "chip", "(no output)"),
    VQ6192_DIAG_COMMAND(DbgGetMpconfig, "PPP", "chip", "(no output)"),
    VQ6192_DIAG_COMMAND(DbgGetCapPktMatchCapture, "PPP", "chip", "(no output)"),
};

}  // namespace

std::span<const Command> pppCommands() {
    return kCommands;
}

}  // namespace vq::diag
