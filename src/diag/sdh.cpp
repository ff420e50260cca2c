// Diagnostic commands of the SDH/SONET mapper and telecom bus family: one report per read operation,
// framed between separators, and a help block for most of them.
#include <cstdint>

#include "diag/layout.h"
#include "diag/registry.h"
#include "platform/text_builder.h"
#include "vq6192/sdh.h"

namespace vq::diag {
namespace {

// The SDH and telecom commands hand back the low 16 bits of the operation's status. Every command tests
// its buffer before it queries the chip, so a null buffer returns 0 and touches nothing.
constexpr uint32_t low16(uint32_t status) {
    return status & 0xFFFFu;
}

uint32_t report(char *buf, const char *title, uint32_t status, std::initializer_list<Field> fields) {
    framed(buf, kSep, title, fields);
    return low16(status);
}

// A trace message printed as text; msg holds one byte more than the longest trace, left 0.
void traceField(TextBuilder &text, const char *label, const uint8_t *msg) {
    text.add(" %s    :    %s\n", label, reinterpret_cast<const char *>(msg));
}

constexpr size_t kTraceBuf = VQ6192_SDH_TRACE_LONG + 1;

// Name lines of the map types (14: no row matches).
// clang-format off
constexpr const char *kMapNames[VQ6192_SDH_MAP_TYPE_NUM + 1] = {
    "    SDHSONET_MAP_VC4_BYPASS\n",
    "    SDHSONET_MAP_C4_BYPASS\n",
    "    CKD_FE_SDHSONET_MAP_HTB_E1\n",
    "    CKD_FE_SDHSONET_MAP_HTB_T1\n",
    "    CKD_FE_SDHSONET_MAP_LIU_E3\n",
    "    CKD_FE_SDHSONET_MAP_LIU_DS3\n",
    "    CKD_FE_SDHSONET_MAP_E1_VC12TU12TUG3_AU4\n",
    "    CKD_FE_SDHSONET_MAP_DS1_VC11VC12TU12TUG3_AU4\n",
    "    CKD_FE_SDHSONET_MAP_DS1_E1VC1TU12TUG3_AU4\n",
    "    CKD_FE_SDHSONET_MAP_E3_VC3TUG3_AU4\n",
    "    CKD_FE_SDHSONET_MAP_DS3_VC3TUG3_AU4\n",
    "    CKD_FE_SDHSONET_MAP_E1_VT3_STS1\n",
    "    CKD_FE_SDHSONET_MAP_DS1_VT15_STS1\n",
    "    CKD_FE_SDHSONET_MAP_DS3_STS1SPE_STS1\n",
    "    NULL_MAP_PATH\n",
};
// clang-format on

const char *mapName(uint32_t type) {
    return kMapNames[type <= NULL_MAP_PATH ? type : static_cast<uint32_t>(NULL_MAP_PATH)];
}

// Mode and trace of the traces without further fields.
uint32_t traceReport(char *buf, const char *title, const char *modeLabel, uint8_t mode, const char *label,
                     const uint8_t *msg, uint32_t status) {
    TextBuilder text(buf);
    framedHead(text, kSep, title);
    if (modeLabel != nullptr) {
        fieldLine(text, kValueLine, {modeLabel, mode});
    }
    traceField(text, label, msg);
    text.add("%s", kSep);
    return low16(status);
}

// Record-style line of the mapper FIFO alarms.
constexpr char kRecordLine[] = "    |  %-25s: 0x%-8x(%-10u) \n";

// Help blocks: the command, the operation it wraps, what it reads, its inputs and the labels it prints.
struct Help {
    const char *command;
    const char *prototype;
    const char *purpose;
    const char *inputs;
    const char *outputs;
};

// clang-format off
constexpr Help kHelp[] = {
    {"getsdhsonetmode", "uint32_t VQ6192_SDH_GetSDHSonetMode(uint32_t chip, uint8_t *mode)",
     "the line mode: 0 SDH, 1 SONET",
     "chip 0..263", "reSdhMode"},
    {"getsdhloop", "uint32_t VQ6192_SDH_GetSDHLoop(uint32_t chip, uint32_t loopPoint, uint32_t vc4, uint32_t au3, uint8_t *loopState)",
     "the state of a mapper loop point (0..4): 0 none, 1 loop A, 2 loop B, 3 both",
     "chip 0..263, loopPoint 0..4, vc4 0..3, au3 0..2", "reLoop"},
    {"gettxhpbyte", "uint32_t VQ6192_SDH_GetTxHpByte(uint32_t chip, uint32_t vc4, uint32_t byteType, uint8_t *value, uint8_t *mode)",
     "a transmitted high-order overhead byte (type 0..7) and its insertion mode",
     "chip 0..263, vc4 0..3, byteType 0..7", "byVal, byMode"},
    {"getrxhpbyte", "uint32_t VQ6192_SDH_GetRxHpByte(uint32_t chip, uint32_t vc4, uint32_t byteType, uint8_t *value)",
     "a received high-order overhead byte (type 0..6); waits 50 ticks after selecting the VC-4",
     "chip 0..263, vc4 0..3, byteType 0..6", "byVal"},
    {"gettxhpb3err", "uint32_t VQ6192_SDH_GetTxHpB3Err(uint32_t chip, uint32_t vc4, uint8_t *value, uint8_t *mode)",
     "the high-order B3 error insertion: value and mode 0..2",
     "chip 0..263, vc4 0..3", "byVal, byMode"},
    {"gettxlpbyte", "uint32_t VQ6192_SDH_GetTxLpByte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t byteType, uint8_t *mode, uint8_t *value)",
     "a transmitted VC-3 overhead byte (type 0..7; 6 G1, 7 B3)",
     "chip 0..263, vc4 0..3, tug3 0..2, byteType 0..7", "byMode, byVal"},
    {"getrxlpvc3byte", "uint32_t VQ6192_SDH_GetRxLpVc3Byte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t byteType, uint8_t *value)",
     "a received VC-3 overhead byte (type 0..6); waits 50 ticks after selecting the path",
     "chip 0..263, vc4 0..3, tug3 0..2, byteType 0..6", "byVal"},
    {"getrxlpshouldc2", "uint32_t VQ6192_SDH_GetRxLpShouldC2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *c2)",
     "the expected C2 signal label of a VC-3",
     "chip 0..263, vc4 0..3, tug3 0..2", "byC2"},
    {"getrxlpshouldj1", "uint32_t VQ6192_SDH_GetRxLpShouldJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode, uint8_t *crc, uint8_t *sum, uint16_t *last)",
     "the expected J1 trace signature of a VC-3: mode, CRC-7, byte sum, last two bytes",
     "chip 0..263, vc4 0..3, tug3 0..2", "byJ1Mode, byCrc, bySum, wLast"},
    {"gettxlpb3err", "uint32_t VQ6192_SDH_GetTxLpB3Err(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *value, uint8_t *mode)",
     "the VC-3 B3 error insertion: value and mode 0..2",
     "chip 0..263, vc4 0..3, tug3 0..2", "byVal, byMode"},
    {"getrxlpshouldj2", "uint32_t VQ6192_SDH_GetRxLpShouldJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *crc, uint8_t *sum)",
     "the expected J2 trace signature of a VC-12: CRC-7 and byte sum",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byCrc, bySum"},
    {"gettxlpv5", "uint32_t VQ6192_SDH_GetTxLpV5(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *mode, uint8_t *value)",
     "the transmitted V5 of a VC-12 and its software insertion mode (a partial setting reads as, and becomes, off)",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byMode, byV5"},
    {"getrxlpv5", "uint32_t VQ6192_SDH_GetRxLpV5(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *value)",
     "the received V5 of a VC-12; waits 50 ticks after selecting the path",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byV5"},
    {"getrxlpshouldv5sgnllbl", "uint32_t VQ6192_SDH_GetRxLpShouldV5SgnlLbl(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *label)",
     "the expected V5 signal label (0..7) of a VC-12",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "reSignalLable"},
    {"gettxlpk4", "uint32_t VQ6192_SDH_GetTxLpK4(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *mode, uint8_t *value)",
     "the transmitted K4 of a VC-12 and its software insertion mode",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byMode, byK4"},
    {"gettxlpn2", "uint32_t VQ6192_SDH_GetTxLpN2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *value)",
     "the transmitted N2 of a VC-12",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byN2"},
    {"getrxlpvc12byte", "uint32_t VQ6192_SDH_GetRxLpVc12Byte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint32_t byteType, uint8_t *value)",
     "a received VC-12 overhead byte (type 0..3, 0 is V5); waits 50 ticks after selecting the path",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27, byteType 0..3", "byVal"},
    {"gettxlpv5bip2err", "uint32_t VQ6192_SDH_GetTxLpV5Bip2Err(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *byB2, uint8_t *byB2Mode)",
     "the VC-12 BIP-2 error insertion: value and mode 0..2",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byB2, byB2Mode"},
    {"getlpreimode", "uint32_t VQ6192_SDH_GetLpReiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *ingress, uint8_t *egress)",
     "the REI mode of a low-order path, ingress and egress",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byIngMode, byEgMode"},
    {"getvc3erdimode", "uint32_t VQ6192_SDH_GetVc3ErdiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode)",
     "the enhanced RDI mode of a VC-3",
     "chip 0..263, vc4 0..3, tug3 0..2", "byMode"},
    {"getvc12erdimode", "uint32_t VQ6192_SDH_GetVc12ErdiMode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *ingress, uint8_t *egress)",
     "the enhanced RDI mode of a VC-12, ingress and egress",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byIngMode, byEgMode"},
    {"gethplomaisen", "uint32_t VQ6192_SDH_GetHpLomAisEn(uint32_t chip, uint32_t vc4, uint8_t *en)",
     "whether HP-LOM inserts E1/T1/E3/DS3 AIS on the VC-4",
     "chip 0..263, vc4 0..3", "byEn"},
    {"getfltalarmnum", "uint32_t VQ6192_SDH_GetFltAlarmNum(uint32_t chip, uint32_t type, uint8_t *num)",
     "the 4-bit alarm filter number of alarm type 0..3",
     "chip 0..263, type 0..3", "byNum"},
    {"getsdhlptraninsert", "uint32_t VQ6192_SDH_GetSdhLpTranInsert(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint32_t type, uint8_t *en)",
     "whether consequent action type 0..9 is enabled on a low-order path",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27, type 0..9", "byInsEn"},
    {"gethplommsk", "uint32_t VQ6192_SDH_GetHpLomMsk(uint32_t chip, uint8_t *msk)",
     "whether low-order alarms are masked during HP-LOM",
     "chip 0..263", "byMsk"},
    {"getlpalmmsk", "uint32_t VQ6192_SDH_GetLpAlmMsk(uint32_t chip, uint8_t *msk)",
     "whether low-order alarms are masked during TU-AIS and TU-LOP",
     "chip 0..263", "byMsk"},
    {"gethplomintmsk", "uint32_t VQ6192_SDH_GetHpLomIntMsk(uint32_t chip, uint32_t hpNo, uint8_t *msk)",
     "the HP-LOM interrupt mask of high-order block 0..11 (VC-4 + 4 * TUG-3)",
     "chip 0..263, hpNo 0..11 (VC-4 + 4 * TUG-3)", "byMsk"},
    {"gettuaisintmsk", "uint32_t VQ6192_SDH_GetTuAisIntMsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *msk)",
     "the TU-AIS interrupt mask of a low-order path",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byMsk"},
    {"gettulopintmsk", "uint32_t VQ6192_SDH_GetTuLopIntMsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *msk)",
     "the TU-LOP interrupt mask of a low-order path",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byMsk"},
    {"getrxhprst", "uint32_t VQ6192_SDH_GetRxHpRst(uint32_t chip, uint32_t vc4, uint8_t *rst)",
     "the receive high-order path reset of a VC-4",
     "chip 0..263, vc4 0..3", "byRst"},
    {"getrxlprst", "uint32_t VQ6192_SDH_GetRxLpRst(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *rst)",
     "the receive low-order path reset",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byRst"},
    {"gettxhpptryfinssel", "uint32_t VQ6192_SDH_GetTxHpPtrYFInsSel(uint32_t chip, uint32_t vc4, uint8_t *yySel, uint8_t *ffSel)",
     "the transmit pointer YY and FF insertion selects of a VC-4",
     "chip 0..263, vc4 0..3", "rbyYYSel, rbyFFSel"},
    {"gettxhpptrssinsval", "uint32_t VQ6192_SDH_GetTxHpPtrSSInsVal(uint32_t chip, uint32_t vc4, uint8_t *ss)",
     "the transmit pointer SS bits (0..3) of a VC-4",
     "chip 0..263, vc4 0..3", "rbySSVal"},
    {"getrxlpb3b2cnt", "uint32_t VQ6192_SDH_GetRxLpB3B2Cnt(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint16_t *count)",
     "the B3 (VC-3) or BIP-2 (VC-12) error count of a low-order path",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "wCnt"},
    {"getrxhpb3cnt", "uint32_t VQ6192_SDH_GetRxHpB3Cnt(uint32_t chip, uint32_t vc4, uint8_t *flag, uint8_t *count)",
     "the high-order B3 error count (low eight bits) of a VC-4 and its flag",
     "chip 0..263, vc4 0..3", "byFlag, byCnt"},
    {"getrxlpreicnt", "uint32_t VQ6192_SDH_GetRxLpReiCnt(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *count)",
     "the REI count (low eight bits) of a low-order path",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byCnt"},
    {"gethpalms", "uint32_t VQ6192_SDH_GetHpAlms(uint32_t chip, uint32_t vc4, uint8_t *oomHis, uint8_t *lomHis, uint8_t *lomCur)",
     "the HP-OOM and HP-LOM histories and the current HP-LOM of a VC-4",
     "chip 0..263, vc4 0..3", "rHpoomhis, rHplomhis, rHplomcur"},
    {"gettxlpg1", "uint32_t VQ6192_SDH_GetTxLpG1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode, uint8_t *value)",
     "the transmitted G1 of a VC-3 and its software insertion mode",
     "chip 0..263, vc4 0..3, tug3 0..2", "byMode, byG1"},
    {"gettxlpb3", "uint32_t VQ6192_SDH_GetTxLpB3(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode, uint8_t *value)",
     "the transmitted B3 of a VC-3 and its software insertion mode",
     "chip 0..263, vc4 0..3, tug3 0..2", "byMode, byB3"},
    {"gettelerst", "uint32_t VQ6192_Telecom_GetTeleRst(uint32_t chip, uint8_t *value)",
     "the telecom bus global reset (0 run, 1 reset)",
     "chip 0..263", "byVal"},
    {"getfpfiforead", "uint32_t VQ6192_Telecom_GetFpFifoRead(uint32_t chip, uint16_t *phase)",
     "the telecom bus output byte phase adjustment (0..11)",
     "chip 0..263", "wVal"},
    {"getfpjittermsk", "uint32_t VQ6192_Telecom_GetFpJitterMsk(uint32_t chip, uint16_t *msk)",
     "the interrupt mask of the 77 MHz frame-pulse drift alarm",
     "chip 0..263", "wVal"},
    {"getfplosmsk", "uint32_t VQ6192_Telecom_GetFpLosMsk(uint32_t chip, uint16_t *msk)",
     "the interrupt mask of the 77 MHz frame-pulse loss alarm",
     "chip 0..263", "wVal"},
    {"getfperrmsk", "uint32_t VQ6192_Telecom_GetFpErrMsk(uint32_t chip, uint16_t *msk)",
     "the interrupt mask of the 77 MHz port FIFO overflow alarm",
     "chip 0..263", "wVal"},
    {"getclklocmsk", "uint32_t VQ6192_Telecom_GetClkLocMsk(uint32_t chip, uint16_t *msk)",
     "the interrupt mask of the 77 MHz clock loss alarm",
     "chip 0..263", "wVal"},
    {"getintglbmsk", "uint32_t VQ6192_Telecom_GetIntGlbMsk(uint32_t chip, uint16_t *msk)",
     "the telecom bus global interrupt mask",
     "chip 0..263", "wVal"},
    {"getintportmsk", "uint32_t VQ6192_Telecom_GetIntPortMsk(uint32_t chip, uint16_t *msk)",
     "the telecom bus port interrupt mask",
     "chip 0..263", "wVal"},
    {"getteleclkedge", "uint32_t VQ6192_Telecom_GetTeleClkEdge(uint32_t chip, uint32_t edgeType, uint16_t *edge)",
     "the clock edge (0 rising, 1 falling) of edge type 0..2 (0 is the receive clock)",
     "chip 0..263, edgeType 0..2", "wVal"},
    {"getrstport", "uint32_t VQ6192_Telecom_GetRstPort(uint32_t chip, uint16_t *rst)",
     "the telecom bus port reset (0 run, 1 reset)",
     "chip 0..263", "wVal"},
    {"getteletxb2ins", "uint32_t VQ6192_Telecom_GetTeleTxB2Ins(uint32_t chip, uint16_t *en)",
     "the telecom bus transmit B2 insertion enable",
     "chip 0..263", "wVal"},
    {"gettelerxb2mod", "uint32_t VQ6192_Telecom_GetTeleRxB2Mod(uint32_t chip, uint16_t *mode)",
     "the receive B2 counting mode: 0 counts bits, 1 counts blocks",
     "chip 0..263", "wVal"},
    {"gettelefploshis", "uint32_t VQ6192_Telecom_GetTeleFpLosHis(uint32_t chip, uint8_t *jitter, uint8_t *los, uint8_t *fifoErr, uint8_t *clkLoc)",
     "the history 77 MHz alarms: frame-pulse drift, frame-pulse loss, port FIFO error, clock loss",
     "chip 0..263", "rbyFp77jiterhis, rbyFp77loshis, rbyTtelefifo77errhis, rbyCclk77lochis"},
    {"gettelefplos", "uint32_t VQ6192_Telecom_GetTeleFpLos(uint32_t chip, uint8_t *jitter, uint8_t *los, uint8_t *fifoErr, uint8_t *clkLoc)",
     "the current 77 MHz alarms: frame-pulse drift, frame-pulse loss, port FIFO error, clock loss",
     "chip 0..263", "rbyFp77jiter, rbyFp77los, rbyTtelefifo77err, rbyCclk77loc"},
    {"gettelefpdisvalue", "uint32_t VQ6192_Telecom_GetTeleFpDisvalue(uint32_t chip, uint16_t *value)",
     "the write/read FIFO frame-pulse address difference (0..63)",
     "chip 0..263", "wVal"},
    {"gettelerxfifoerrmsk", "uint32_t VQ6192_Telecom_GetTeleRxFifoErrMsk(uint32_t chip, uint32_t port, uint8_t *msk)",
     "the receive FIFO error interrupt mask of port 0..3 (0 masked, 1 not masked)",
     "chip 0..263, port 0..3", "byVal"},
    {"gettelerxb2ofmsk", "uint32_t VQ6192_Telecom_GetTeleRxB2OFMsk(uint32_t chip, uint32_t port, uint8_t *msk)",
     "the receive B2 counter overflow interrupt mask of port 0..3",
     "chip 0..263, port 0..3", "byVal"},
    {"gettelerxc1errmsk", "uint32_t VQ6192_Telecom_GetTeleRxC1ErrMsk(uint32_t chip, uint32_t port, uint8_t *msk)",
     "the receive C1 drift or loss interrupt mask of port 0..3",
     "chip 0..263, port 0..3", "byVal"},
    {"gettelerxc1j1allmsk", "uint32_t VQ6192_Telecom_GetTeleRxC1J1AllMsk(uint32_t chip, uint32_t pair, uint8_t *msk)",
     "the C1/J1/SPE all-zeros/all-ones interrupt mask of VC-4 pair 0 (VC-4s 0, 1) or 1 (VC-4s 2, 3)",
     "chip 0..263, pair 0..1", "byVal"},
    {"getb2c1j1speerrhis", "uint32_t VQ6192_Telecom_GetB2C1j1speErrHis(uint32_t chip, uint32_t port, uint8_t *fifoErr, uint8_t *b2Of, uint8_t *c1Err, uint8_t *c1j1Spe)",
     "the history errors of telecom bus port 0..3: FIFO error, B2 counter overflow, C1 error, C1/J1/SPE all-zeros/all-ones (ports 0 and 1 only)",
     "chip 0..263, port 0..3", "rRteleFifoErrHis, rRteleB2ErrcntofHis, rRteleC1ErrHis, rRteleC1j1Speall01His"},
    {"getb2c1j1speerr", "uint32_t VQ6192_Telecom_GetB2C1j1speErr(uint32_t chip, uint32_t port, uint8_t *fifoErr, uint8_t *b2Of, uint8_t *c1Err, uint8_t *c1j1Spe)",
     "the current errors of telecom bus port 0..3: FIFO error, B2 counter overflow, C1 error, C1/J1/SPE all-zeros/all-ones (ports 0 and 1 only)",
     "chip 0..263, port 0..3", "rRteleFifoErr, rRteleB2Errcntof, rRteleC1Err, rRteleC1j1Speall01"},
    {"gettelerxb2cnt", "uint32_t VQ6192_Telecom_GetTeleRxB2Cnt(uint32_t chip, uint32_t port, uint16_t *count)",
     "the receive B2 error counter of port 0..3; the chip clears it when it is read",
     "chip 0..263, port 0..3", "wCnt"},
    {"gettxhpj1", "uint32_t VQ6192_SDH_GetTxHpJ1(uint32_t chip, uint32_t vc4, uint8_t *j1Mode, uint8_t *msg, uint8_t *byPass)",
     "the transmitted J1 trace of a VC-4 (16 bytes, or 64 in mode 2), its mode and pass-through",
     "chip 0..263, vc4 0..3", "byJ1Mode, abyJ1, byPASS"},
    {"getrxhpj1", "uint32_t VQ6192_SDH_GetRxHpJ1(uint32_t chip, uint32_t vc4, uint8_t *j1Mode, uint8_t *msg)",
     "the received 64-byte J1 trace of a VC-4 and its mode; waits 50 ticks after selecting the VC-4",
     "chip 0..263, vc4 0..3", "byJ1Mode, abyJ1"},
    {"gettxlpj1", "uint32_t VQ6192_SDH_GetTxLpJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode, uint8_t *msg)",
     "the transmitted J1 trace of a VC-3 (16 bytes in mode 1, 64 in mode 2)",
     "chip 0..263, vc4 0..3, tug3 0..2", "byJ1Mode, abyJ1"},
    {"getrxlpj1", "uint32_t VQ6192_SDH_GetRxLpJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode, uint8_t *msg)",
     "the received J1 trace of a VC-3 (16 bytes in mode 1, 64 in mode 2); waits 50 ticks after selecting the path",
     "chip 0..263, vc4 0..3, tug3 0..2", "byJ1Mode, abyJ1"},
    {"gettxlpj2", "uint32_t VQ6192_SDH_GetTxLpJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *msg)",
     "the transmitted 16-byte J2 trace of a VC-12",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "abyJ2"},
    {"getrxlpj2", "uint32_t VQ6192_SDH_GetRxLpJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *mode, uint8_t *msg)",
     "the received 16-byte J2 trace of a VC-12; waits 50 ticks after selecting the path",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "byJ2Mode, abyJ2"},
    {"getlpalms", "uint32_t VQ6192_SDH_GetLpAlms(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint8_t *alarms)",
     "the 13 low-order alarm flags of a path: RFI, PDI, SDI, RDI, CDI, VC-AIS, PLM, UNEQ and TIM histories, TU-AIS and TU-LOP current and history",
     "chip 0..263, vc4 0..3, tug3 0..2, tu 0..27", "the 13 flags ucLpRfiAlarmHis .. ucLpTuLopAlarmHis"},
    {"getsdhe1fifoalm", "uint32_t VQ6192_SDH_GetSDHET1FifoAlm(uint32_t chip, uint32_t e1, uint8_t *alarms)",
     "the E1/T1 mapper FIFO overflow and underflow alarms, current and history, of E1 0..335",
     "chip 0..263, e1 0..335", "byMapFifoFoAlarm, byMapFifoFuAlarm, byMapFifoFoHisAlarm, byMapFifoFuHisAlarm"},
    {"getsdhe3fifoalm", "uint32_t VQ6192_SDH_GetSDHET3FifoAlm(uint32_t chip, uint32_t e3, uint8_t *alarms)",
     "the E3/T3 mapper FIFO overflow and underflow alarms of E3 0..11",
     "chip 0..263, e3 0..11", "byMaT3Fifoo, byMaT3Fifou"},
};
// clang-format on

constexpr char kHelpOpen[] =
    "/*****************************************************************************\n";
constexpr char kHelpClose[] =
    "*****************************************************************************/\n";

uint32_t helpBlock(char *buf, const char *command) {
    for (const Help &h : kHelp) {
        if (std::string_view(h.command) != command) {
            continue;
        }
        TextBuilder text(buf);
        text.add("%s", kHelpOpen);
        text.add(" Command   : %s\n", h.command);
        text.add(" Prototype : %s\n", h.prototype);
        text.add(" Purpose   : reads %s\n", h.purpose);
        text.add(" Input     : %s\n", h.inputs);
        text.add(" Output    : %s\n", h.outputs);
        text.add(" Return    : the operation's status, low 16 bits (0 success, 1 parameter error)\n");
        text.add(" Remarks   : the report goes into a 48128-byte buffer; a null buffer prints nothing\n");
        text.add("%s", kHelpClose);
        break;
    }
    return 0;
}

}  // namespace
}  // namespace vq::diag

using namespace vq::diag;
using vq::TextBuilder;

#define VQ6192_SDH_HELP_COMMAND(fn, command)           \
    VQ6192_API uint32_t fn(uint32_t chip, char *buf) { \
        (void)chip;                                    \
        return helpBlock(buf, command);                \
    }

extern "C" {

// ---- Value commands ----------------------------------------------------------------------------------

VQ6192_API uint32_t getsdhsonetmode(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t reSdhMode = 0;
    const uint32_t status = VQ6192_SDH_GetSDHSonetMode(chip, &reSdhMode);
    return report(buf, "GetSDHSonetMode()", status, {{"reSdhMode", reSdhMode}});
}

VQ6192_API uint32_t getsdhloop(uint32_t chip, uint32_t loopPoint, uint32_t vc4, uint32_t au3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t reLoop = 0;
    const uint32_t status = VQ6192_SDH_GetSDHLoop(chip, loopPoint, vc4, au3, &reLoop);
    return report(buf, "GetSDHLoop()", status, {{"reLoop", reLoop}});
}

VQ6192_API uint32_t gettxhpbyte(uint32_t chip, uint32_t vc4, uint32_t byteType, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byVal = 0;
    uint8_t byMode = 0;
    const uint32_t status = VQ6192_SDH_GetTxHpByte(chip, vc4, byteType, &byVal, &byMode);
    return report(buf, "GetTxHpByte()", status, {{"byVal", byVal}, {"byMode", byMode}});
}

VQ6192_API uint32_t getrxhpbyte(uint32_t chip, uint32_t vc4, uint32_t byteType, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byVal = 0;
    const uint32_t status = VQ6192_SDH_GetRxHpByte(chip, vc4, byteType, &byVal);
    return report(buf, "GetRxHpByte()", status, {{"byVal", byVal}});
}

VQ6192_API uint32_t gettxhpb3err(uint32_t chip, uint32_t vc4, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byVal = 0;
    uint8_t byMode = 0;
    const uint32_t status = VQ6192_SDH_GetTxHpB3Err(chip, vc4, &byVal, &byMode);
    return report(buf, "GetTxHpB3Err()", status, {{"byVal", byVal}, {"byMode", byMode}});
}

VQ6192_API uint32_t gettxlpbyte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t byteType, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byMode = 0;
    uint8_t byVal = 0;
    const uint32_t status = VQ6192_SDH_GetTxLpByte(chip, vc4, tug3, byteType, &byMode, &byVal);
    return report(buf, "GetTxLpByte()", status, {{"byMode", byMode}, {"byVal", byVal}});
}

VQ6192_API uint32_t getrxlpvc3byte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t byteType, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byVal = 0;
    const uint32_t status = VQ6192_SDH_GetRxLpVc3Byte(chip, vc4, tug3, byteType, &byVal);
    return report(buf, "GetRxLpVc3Byte()", status, {{"byVal", byVal}});
}

VQ6192_API uint32_t getrxlpshouldc2(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byC2 = 0;
    const uint32_t status = VQ6192_SDH_GetRxLpShouldC2(chip, vc4, tug3, &byC2);
    return report(buf, "GetRxLpShouldC2()", status, {{"byC2", byC2}});
}

VQ6192_API uint32_t getrxlpshouldj1(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byJ1Mode = 0;
    uint8_t byCrc = 0;
    uint8_t bySum = 0;
    uint16_t wLast = 0;
    const uint32_t status = VQ6192_SDH_GetRxLpShouldJ1(chip, vc4, tug3, &byJ1Mode, &byCrc, &bySum, &wLast);
    return report(buf, "GetRxLpShouldJ1()", status,
                  {{"byJ1Mode", byJ1Mode}, {"byCrc", byCrc}, {"bySum", bySum}, {"wLast", wLast}});
}

VQ6192_API uint32_t gettxlpb3err(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byVal = 0;
    uint8_t byMode = 0;
    const uint32_t status = VQ6192_SDH_GetTxLpB3Err(chip, vc4, tug3, &byVal, &byMode);
    return report(buf, "GetTxLpB3Err()", status, {{"byVal", byVal}, {"byMode", byMode}});
}

VQ6192_API uint32_t getrxlpshouldj2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byCrc = 0;
    uint8_t bySum = 0;
    const uint32_t status = VQ6192_SDH_GetRxLpShouldJ2(chip, vc4, tug3, tu, &byCrc, &bySum);
    return report(buf, "GetRxLpShouldJ2()", status, {{"byCrc", byCrc}, {"bySum", bySum}});
}

VQ6192_API uint32_t gettxlpv5(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byMode = 0;
    uint8_t byV5 = 0;
    const uint32_t status = VQ6192_SDH_GetTxLpV5(chip, vc4, tug3, tu, &byMode, &byV5);
    return report(buf, "GetTxLpV5()", status, {{"byMode", byMode}, {"byV5", byV5}});
}

VQ6192_API uint32_t getrxlpv5(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byV5 = 0;
    const uint32_t status = VQ6192_SDH_GetRxLpV5(chip, vc4, tug3, tu, &byV5);
    return report(buf, "GetRxLpV5()", status, {{"byV5", byV5}});
}

VQ6192_API uint32_t getrxlpshouldv5sgnllbl(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                           char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t reSignalLable = 0;
    const uint32_t status = VQ6192_SDH_GetRxLpShouldV5SgnlLbl(chip, vc4, tug3, tu, &reSignalLable);
    return report(buf, "GetRxLpShouldV5SgnlLbl()", status, {{"reSignalLable", reSignalLable}});
}

VQ6192_API uint32_t gettxlpk4(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byMode = 0;
    uint8_t byK4 = 0;
    const uint32_t status = VQ6192_SDH_GetTxLpK4(chip, vc4, tug3, tu, &byMode, &byK4);
    return report(buf, "GetTxLpK4()", status, {{"byMode", byMode}, {"byK4", byK4}});
}

VQ6192_API uint32_t gettxlpn2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byN2 = 0;
    const uint32_t status = VQ6192_SDH_GetTxLpN2(chip, vc4, tug3, tu, &byN2);
    return report(buf, "GetTxLpN2()", status, {{"byN2", byN2}});
}

VQ6192_API uint32_t getrxlpvc12byte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                    uint32_t byteType, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byVal = 0;
    const uint32_t status = VQ6192_SDH_GetRxLpVc12Byte(chip, vc4, tug3, tu, byteType, &byVal);
    return report(buf, "GetRxLpVc12Byte()", status, {{"byVal", byVal}});
}

VQ6192_API uint32_t gettxlpv5bip2err(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byB2 = 0;
    uint8_t byB2Mode = 0;
    const uint32_t status = VQ6192_SDH_GetTxLpV5Bip2Err(chip, vc4, tug3, tu, &byB2, &byB2Mode);
    return report(buf, "GetTxLpV5Bip2Err()", status, {{"byB2", byB2}, {"byB2Mode", byB2Mode}});
}

VQ6192_API uint32_t getlpreimode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byIngMode = 0;
    uint8_t byEgMode = 0;
    const uint32_t status = VQ6192_SDH_GetLpReiMode(chip, vc4, tug3, tu, &byIngMode, &byEgMode);
    return report(buf, "GetLpReiMode()", status, {{"byIngMode", byIngMode}, {"byEgMode", byEgMode}});
}

VQ6192_API uint32_t getvc3erdimode(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byMode = 0;
    const uint32_t status = VQ6192_SDH_GetVc3ErdiMode(chip, vc4, tug3, &byMode);
    return report(buf, "GetVc3ErdiMode()", status, {{"byMode", byMode}});
}

VQ6192_API uint32_t getvc12erdimode(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byIngMode = 0;
    uint8_t byEgMode = 0;
    const uint32_t status = VQ6192_SDH_GetVc12ErdiMode(chip, vc4, tug3, tu, &byIngMode, &byEgMode);
    return report(buf, "GetVc12ErdiMode()", status, {{"byIngMode", byIngMode}, {"byEgMode", byEgMode}});
}

VQ6192_API uint32_t gethplomaisen(uint32_t chip, uint32_t vc4, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byEn = 0;
    const uint32_t status = VQ6192_SDH_GetHpLomAisEn(chip, vc4, &byEn);
    return report(buf, "GetHpLomAisEn()", status, {{"byEn", byEn}});
}

VQ6192_API uint32_t getfltalarmnum(uint32_t chip, uint32_t type, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byNum = 0;
    const uint32_t status = VQ6192_SDH_GetFltAlarmNum(chip, type, &byNum);
    return report(buf, "GetFltAlarmNum()", status, {{"byNum", byNum}});
}

VQ6192_API uint32_t getsdhlptraninsert(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, uint32_t type,
                                       char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byInsEn = 0;
    const uint32_t status = VQ6192_SDH_GetSdhLpTranInsert(chip, vc4, tug3, tu, type, &byInsEn);
    return report(buf, "GetSdhLpTranInsert()", status, {{"byInsEn", byInsEn}});
}

VQ6192_API uint32_t gethplommsk(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byMsk = 0;
    const uint32_t status = VQ6192_SDH_GetHpLomMsk(chip, &byMsk);
    return report(buf, "GetHpLomMsk()", status, {{"byMsk", byMsk}});
}

VQ6192_API uint32_t getlpalmmsk(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byMsk = 0;
    const uint32_t status = VQ6192_SDH_GetLpAlmMsk(chip, &byMsk);
    return report(buf, "GetLpAlmMsk()", status, {{"byMsk", byMsk}});
}

VQ6192_API uint32_t gethplomintmsk(uint32_t chip, uint32_t hpNo, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byMsk = 0;
    const uint32_t status = VQ6192_SDH_GetHpLomIntMsk(chip, hpNo, &byMsk);
    return report(buf, "GetHpLomIntMsk()", status, {{"byMsk", byMsk}});
}

VQ6192_API uint32_t gettuaisintmsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byMsk = 0;
    const uint32_t status = VQ6192_SDH_GetTuAisIntMsk(chip, vc4, tug3, tu, &byMsk);
    return report(buf, "GetTuAisIntMsk()", status, {{"byMsk", byMsk}});
}

VQ6192_API uint32_t gettulopintmsk(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byMsk = 0;
    const uint32_t status = VQ6192_SDH_GetTuLopIntMsk(chip, vc4, tug3, tu, &byMsk);
    return report(buf, "GetTuLopIntMsk()", status, {{"byMsk", byMsk}});
}

VQ6192_API uint32_t getrxhprst(uint32_t chip, uint32_t vc4, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byRst = 0;
    const uint32_t status = VQ6192_SDH_GetRxHpRst(chip, vc4, &byRst);
    return report(buf, "GetRxHpRst()", status, {{"byRst", byRst}});
}

VQ6192_API uint32_t getrxlprst(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byRst = 0;
    const uint32_t status = VQ6192_SDH_GetRxLpRst(chip, vc4, tug3, tu, &byRst);
    return report(buf, "GetRxLpRst()", status, {{"byRst", byRst}});
}

VQ6192_API uint32_t gettxhpptryfinssel(uint32_t chip, uint32_t vc4, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t rbyYYSel = 0;
    uint8_t rbyFFSel = 0;
    const uint32_t status = VQ6192_SDH_GetTxHpPtrYFInsSel(chip, vc4, &rbyYYSel, &rbyFFSel);
    return report(buf, "GetTxHpPtrYFInsSel()", status, {{"rbyYYSel", rbyYYSel}, {"rbyFFSel", rbyFFSel}});
}

VQ6192_API uint32_t gettxhpptrssinsval(uint32_t chip, uint32_t vc4, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t rbySSVal = 0;
    const uint32_t status = VQ6192_SDH_GetTxHpPtrSSInsVal(chip, vc4, &rbySSVal);
    return report(buf, "GetTxHpPtrSSInsVal()", status, {{"rbySSVal", rbySSVal}});
}

VQ6192_API uint32_t getrxlpb3b2cnt(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wCnt = 0;
    const uint32_t status = VQ6192_SDH_GetRxLpB3B2Cnt(chip, vc4, tug3, tu, &wCnt);
    return report(buf, "GetRxLpB3B2Cnt()", status, {{"wCnt", wCnt}});
}

VQ6192_API uint32_t getvc4tuaisinsen(uint32_t chip, uint32_t vc4, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byInsEn = 0;
    const uint32_t status = VQ6192_SDH_GetVc4TuAisInsEn(chip, vc4, &byInsEn);
    return report(buf, "GetVc4TuAisInsEn()", status, {{"byInsEn", byInsEn}});
}

VQ6192_API uint32_t getsonetb3chkmode(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byChkOffEn = 0;
    const uint32_t status = VQ6192_SDH_GetSONETB3ChkMode(chip, &byChkOffEn);
    return report(buf, "GetSONETB3ChkMode()", status, {{"byChkOffEn", byChkOffEn}});
}

VQ6192_API uint32_t getmaploopcfg(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t BySdhSonetLbMode = 0;
    uint8_t byMapAisLbIns = 0;
    uint8_t byMapLbEn = 0;
    const uint32_t status = VQ6192_SDH_GetMapLoopCfg(chip, &BySdhSonetLbMode, &byMapAisLbIns, &byMapLbEn);
    return report(
        buf, "GetMapLoopCfg()", status,
        {{"BySdhSonetLbMode", BySdhSonetLbMode}, {"byMapAisLbIns", byMapAisLbIns}, {"byMapLbEn", byMapLbEn}});
}

VQ6192_API uint32_t getodlpsscfg(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t bySsChkEn = 0;
    const uint32_t status = VQ6192_SDH_GetOdLpSsCfg(chip, &bySsChkEn);
    return report(buf, "GetOdLpSsCfg()", status, {{"bySsChkEn", bySsChkEn}});
}

VQ6192_API uint32_t getrxhpb3cnt(uint32_t chip, uint32_t vc4, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byFlag = 0;
    uint8_t byCnt = 0;
    const uint32_t status = VQ6192_SDH_GetRxHpB3Cnt(chip, vc4, &byFlag, &byCnt);
    return report(buf, "GetRxHpB3Cnt()", status, {{"byFlag", byFlag}, {"byCnt", byCnt}});
}

VQ6192_API uint32_t getrxlpreicnt(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byCnt = 0;
    const uint32_t status = VQ6192_SDH_GetRxLpReiCnt(chip, vc4, tug3, tu, &byCnt);
    return report(buf, "GetRxLpReiCnt()", status, {{"byCnt", byCnt}});
}

VQ6192_API uint32_t gethpalms(uint32_t chip, uint32_t vc4, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t rHpoomhis = 0;
    uint8_t rHplomhis = 0;
    uint8_t rHplomcur = 0;
    const uint32_t status = VQ6192_SDH_GetHpAlms(chip, vc4, &rHpoomhis, &rHplomhis, &rHplomcur);
    return report(buf, "GetHpOomAlm()", status,
                  {{"rHpoomhis", rHpoomhis}, {"rHplomhis", rHplomhis}, {"rHplomcur", rHplomcur}});
}

VQ6192_API uint32_t gettxlpg1(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byMode = 0;
    uint8_t byG1 = 0;
    const uint32_t status = VQ6192_SDH_GetTxLpG1(chip, vc4, tug3, &byMode, &byG1);
    return report(buf, "GetTxLpG1()", status, {{"byMode", byMode}, {"byG1", byG1}});
}

VQ6192_API uint32_t gettxlpb3(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byMode = 0;
    uint8_t byB3 = 0;
    const uint32_t status = VQ6192_SDH_GetTxLpB3(chip, vc4, tug3, &byMode, &byB3);
    return report(buf, "GetTxLpB3()", status, {{"byMode", byMode}, {"byB3", byB3}});
}

VQ6192_API uint32_t gettelerst(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byVal = 0;
    const uint32_t status = VQ6192_Telecom_GetTeleRst(chip, &byVal);
    return report(buf, "GetTeleRst()", status, {{"byVal", byVal}});
}

VQ6192_API uint32_t getfpfiforead(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wVal = 0;
    const uint32_t status = VQ6192_Telecom_GetFpFifoRead(chip, &wVal);
    return report(buf, "GetFpFifoRead()", status, {{"wVal", wVal}});
}

VQ6192_API uint32_t getfpjittermsk(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wVal = 0;
    const uint32_t status = VQ6192_Telecom_GetFpJitterMsk(chip, &wVal);
    return report(buf, "GetFpJitterMsk()", status, {{"wVal", wVal}});
}

VQ6192_API uint32_t getfplosmsk(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wVal = 0;
    const uint32_t status = VQ6192_Telecom_GetFpLosMsk(chip, &wVal);
    return report(buf, "GetFpLosMsk()", status, {{"wVal", wVal}});
}

VQ6192_API uint32_t getfperrmsk(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wVal = 0;
    const uint32_t status = VQ6192_Telecom_GetFpErrMsk(chip, &wVal);
    return report(buf, "GetFpErrMsk()", status, {{"wVal", wVal}});
}

VQ6192_API uint32_t getclklocmsk(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wVal = 0;
    const uint32_t status = VQ6192_Telecom_GetClkLocMsk(chip, &wVal);
    return report(buf, "GetClkLocMsk()", status, {{"wVal", wVal}});
}

VQ6192_API uint32_t getintglbmsk(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wVal = 0;
    const uint32_t status = VQ6192_Telecom_GetIntGlbMsk(chip, &wVal);
    return report(buf, "GetIntGlbMsk()", status, {{"wVal", wVal}});
}

VQ6192_API uint32_t getintportmsk(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wVal = 0;
    const uint32_t status = VQ6192_Telecom_GetIntPortMsk(chip, &wVal);
    return report(buf, "GetIntPortMsk()", status, {{"wVal", wVal}});
}

VQ6192_API uint32_t getteleclkedge(uint32_t chip, uint32_t edgeType, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wVal = 0;
    const uint32_t status = VQ6192_Telecom_GetTeleClkEdge(chip, edgeType, &wVal);
    return report(buf, "GetTeleClkEdge()", status, {{"wVal", wVal}});
}

VQ6192_API uint32_t getrstport(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wVal = 0;
    const uint32_t status = VQ6192_Telecom_GetRstPort(chip, &wVal);
    return report(buf, "GetRstPort()", status, {{"wVal", wVal}});
}

VQ6192_API uint32_t getteletxb2ins(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wVal = 0;
    const uint32_t status = VQ6192_Telecom_GetTeleTxB2Ins(chip, &wVal);
    return report(buf, "GetTeleTxB2Ins()", status, {{"wVal", wVal}});
}

VQ6192_API uint32_t gettelerxb2mod(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wVal = 0;
    const uint32_t status = VQ6192_Telecom_GetTeleRxB2Mod(chip, &wVal);
    return report(buf, "GetTeleRxB2Mod()", status, {{"wVal", wVal}});
}

VQ6192_API uint32_t gettelefploshis(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t rbyFp77jiterhis = 0;
    uint8_t rbyFp77loshis = 0;
    uint8_t rbyTtelefifo77errhis = 0;
    uint8_t rbyCclk77lochis = 0;
    const uint32_t status = VQ6192_Telecom_GetTeleFpLosHis(chip, &rbyFp77jiterhis, &rbyFp77loshis,
                                                           &rbyTtelefifo77errhis, &rbyCclk77lochis);
    return report(buf, "GetTeleFpLosHis()", status,
                  {{"rbyFp77jiterhis", rbyFp77jiterhis},
                   {"rbyFp77loshis", rbyFp77loshis},
                   {"rbyTtelefifo77errhis", rbyTtelefifo77errhis},
                   {"rbyCclk77lochis", rbyCclk77lochis}});
}

VQ6192_API uint32_t gettelefplos(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t rbyFp77jiter = 0;
    uint8_t rbyFp77los = 0;
    uint8_t rbyTtelefifo77err = 0;
    uint8_t rbyCclk77loc = 0;
    const uint32_t status =
        VQ6192_Telecom_GetTeleFpLos(chip, &rbyFp77jiter, &rbyFp77los, &rbyTtelefifo77err, &rbyCclk77loc);
    return report(buf, "GetTeleFpLos()", status,
                  {{"rbyFp77jiter", rbyFp77jiter},
                   {"rbyFp77los", rbyFp77los},
                   {"rbyTtelefifo77err", rbyTtelefifo77err},
                   {"rbyCclk77loc", rbyCclk77loc}});
}

VQ6192_API uint32_t gettelefpdisvalue(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wVal = 0;
    const uint32_t status = VQ6192_Telecom_GetTeleFpDisvalue(chip, &wVal);
    return report(buf, "GetTeleFpDisvalue()", status, {{"wVal", wVal}});
}

VQ6192_API uint32_t gettelerxfifoerrmsk(uint32_t chip, uint32_t port, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byVal = 0;
    const uint32_t status = VQ6192_Telecom_GetTeleRxFifoErrMsk(chip, port, &byVal);
    return report(buf, "GetTeleRxFifoErrMsk()", status, {{"byVal", byVal}});
}

VQ6192_API uint32_t gettelerxb2ofmsk(uint32_t chip, uint32_t port, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byVal = 0;
    const uint32_t status = VQ6192_Telecom_GetTeleRxB2OFMsk(chip, port, &byVal);
    return report(buf, "GetTeleRxB2OFMsk()", status, {{"byVal", byVal}});
}

VQ6192_API uint32_t gettelerxc1errmsk(uint32_t chip, uint32_t port, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byVal = 0;
    const uint32_t status = VQ6192_Telecom_GetTeleRxC1ErrMsk(chip, port, &byVal);
    return report(buf, "GetTeleRxC1ErrMsk()", status, {{"byVal", byVal}});
}

VQ6192_API uint32_t gettelerxc1j1allmsk(uint32_t chip, uint32_t pair, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byVal = 0;
    const uint32_t status = VQ6192_Telecom_GetTeleRxC1J1AllMsk(chip, pair, &byVal);
    return report(buf, "GetTeleRxC1J1AllMsk()", status, {{"byVal", byVal}});
}

VQ6192_API uint32_t getb2c1j1speerrhis(uint32_t chip, uint32_t port, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t rRteleFifoErrHis = 0;
    uint8_t rRteleB2ErrcntofHis = 0;
    uint8_t rRteleC1ErrHis = 0;
    uint8_t rRteleC1j1Speall01His = 0;
    const uint32_t status = VQ6192_Telecom_GetB2C1j1speErrHis(
        chip, port, &rRteleFifoErrHis, &rRteleB2ErrcntofHis, &rRteleC1ErrHis, &rRteleC1j1Speall01His);
    return report(buf, "GetB2C1j1speErrHis()", status,
                  {{"rRteleFifoErrHis", rRteleFifoErrHis},
                   {"rRteleB2ErrcntofHis", rRteleB2ErrcntofHis},
                   {"rRteleC1ErrHis", rRteleC1ErrHis},
                   {"rRteleC1j1Speall01His", rRteleC1j1Speall01His}});
}

VQ6192_API uint32_t getb2c1j1speerr(uint32_t chip, uint32_t port, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t rRteleFifoErr = 0;
    uint8_t rRteleB2Errcntof = 0;
    uint8_t rRteleC1Err = 0;
    uint8_t rRteleC1j1Speall01 = 0;
    const uint32_t status = VQ6192_Telecom_GetB2C1j1speErr(chip, port, &rRteleFifoErr, &rRteleB2Errcntof,
                                                           &rRteleC1Err, &rRteleC1j1Speall01);
    return report(buf, "GetB2C1j1speErr()", status,
                  {{"rRteleFifoErr", rRteleFifoErr},
                   {"rRteleB2Errcntof", rRteleB2Errcntof},
                   {"rRteleC1Err", rRteleC1Err},
                   {"rRteleC1j1Speall01", rRteleC1j1Speall01}});
}

VQ6192_API uint32_t gettelerxb2cnt(uint32_t chip, uint32_t port, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint16_t wCnt = 0;
    const uint32_t status = VQ6192_Telecom_GetTeleRxB2Cnt(chip, port, &wCnt);
    return report(buf, "GetTeleRxB2Cnt()", status, {{"wCnt", wCnt}});
}

// ---- Map type reports --------------------------------------------------------------------------------

VQ6192_API uint32_t getsdhmap(uint32_t chip, uint32_t vc4, uint32_t au3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t reSdhMap = 0;
    const uint32_t status = VQ6192_SDH_GetSDHMap(chip, vc4, au3, &reSdhMap);
    TextBuilder text(buf);
    framedHead(text, kSep, "GetSDHMap(ULONG dwChipID,UCHAR *pucBuff)");
    fieldLine(text, kValueLine, {"reSdhMap", reSdhMap});
    text.add("%s%s", mapName(reSdhMap), kSep);
    return low16(status);
}

// Every slot is listed, also after a slot whose configuration matches no map type.
VQ6192_API uint32_t getsdhmaps(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    TextBuilder text(buf);
    framedHead(text, kSep, "GetSDHMaps(ULONG dwChipID,UCHAR *pucBuff)");
    text.add("  Vc4No    Au3Chnl    reSdhMap\n");
    uint32_t status = 0;
    for (uint32_t i = 0; i < VQ6192_SDH_AU3_INDEX_NUM; ++i) {
        const uint32_t vc4 = i / VQ6192_SDH_AU3_NUM;
        const uint32_t au3 = i % VQ6192_SDH_AU3_NUM;
        uint8_t type = 0;
        status |= VQ6192_SDH_GetSDHMap(chip, vc4, au3, &type);
        text.add("  %5lu    %6lu    %3u %s\n", static_cast<unsigned long>(vc4),
                 static_cast<unsigned long>(au3), static_cast<unsigned>(type), mapName(type));
    }
    text.add("%s", kSep);
    return low16(status);
}

// ---- Trace reports -----------------------------------------------------------------------------------

VQ6192_API uint32_t gettxhpj1(uint32_t chip, uint32_t vc4, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byJ1Mode = 0;
    uint8_t byPASS = 0;
    uint8_t abyJ1[kTraceBuf] = {};
    const uint32_t status = VQ6192_SDH_GetTxHpJ1(chip, vc4, &byJ1Mode, abyJ1, &byPASS);
    TextBuilder text(buf);
    framedHead(text, kSep, "GetTxHpJ1()");
    fieldLine(text, kValueLine, {"byJ1Mode", byJ1Mode});
    traceField(text, "abyJ1", abyJ1);
    fieldLine(text, kValueLine, {"byPASS", byPASS});
    text.add("%s", kSep);
    return low16(status);
}

VQ6192_API uint32_t getrxhpj1(uint32_t chip, uint32_t vc4, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byJ1Mode = 0;
    uint8_t abyJ1[kTraceBuf] = {};
    const uint32_t status = VQ6192_SDH_GetRxHpJ1(chip, vc4, &byJ1Mode, abyJ1);
    return traceReport(buf, "GetRxHpJ1()", "byJ1Mode", byJ1Mode, "abyJ1", abyJ1, status);
}

VQ6192_API uint32_t gettxlpj1(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byJ1Mode = 0;
    uint8_t abyJ1[kTraceBuf] = {};
    const uint32_t status = VQ6192_SDH_GetTxLpJ1(chip, vc4, tug3, &byJ1Mode, abyJ1);
    return traceReport(buf, "GetTxLpJ1()", "byJ1Mode", byJ1Mode, "abyJ1", abyJ1, status);
}

VQ6192_API uint32_t getrxlpj1(uint32_t chip, uint32_t vc4, uint32_t tug3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byJ1Mode = 0;
    uint8_t abyJ1[kTraceBuf] = {};
    const uint32_t status = VQ6192_SDH_GetRxLpJ1(chip, vc4, tug3, &byJ1Mode, abyJ1);
    return traceReport(buf, "GetRxLpJ1()", "byJ1Mode", byJ1Mode, "abyJ1", abyJ1, status);
}

VQ6192_API uint32_t gettxlpj2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t abyJ2[kTraceBuf] = {};
    const uint32_t status = VQ6192_SDH_GetTxLpJ2(chip, vc4, tug3, tu, abyJ2);
    return traceReport(buf, "GetTxLpJ2()", nullptr, 0, "abyJ2", abyJ2, status);
}

VQ6192_API uint32_t getrxlpj2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t byJ2Mode = 0;
    uint8_t abyJ2[kTraceBuf] = {};
    const uint32_t status = VQ6192_SDH_GetRxLpJ2(chip, vc4, tug3, tu, &byJ2Mode, abyJ2);
    return traceReport(buf, "GetRxLpJ2()", "byJ2Mode", byJ2Mode, "abyJ2", abyJ2, status);
}

// ---- Alarm records -----------------------------------------------------------------------------------

VQ6192_API uint32_t getlpalms(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t a[VQ6192_SDH_LP_ALARM_NUM] = {};
    const uint32_t status = VQ6192_SDH_GetLpAlms(chip, vc4, tug3, tu, a);
    framed(buf, kSep, "GetLpAlms()",
           {{"ucLpRfiAlarmHis", a[0]},
            {"ucLpPdiAlarmHis", a[1]},
            {"ucLpSdiAlarmHis", a[2]},
            {"ucLpRdiAlarmHis", a[3]},
            {"ucLpCdiAlarmHis", a[4]},
            {"ucLpVcAisAlarmHis", a[5]},
            {"ucLpPlmAlarmHis", a[6]},
            {"ucLpUneqAlarmHis", a[7]},
            {"ucLpTimAlarmHis", a[8]},
            {"ucLpTuAisAlarmCur", a[9]},
            {"ucLpTuAisAlarmHis", a[10]},
            {"ucLpTuLopAlarmCur", a[11]},
            {"ucLpTuLopAlarmHis", a[12]}},
           " %s    :    0x%-8x(%-10u) \n");
    return low16(status);
}

VQ6192_API uint32_t getsdhe1fifoalm(uint32_t chip, uint32_t e1, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t a[4] = {};
    const uint32_t status = VQ6192_SDH_GetSDHET1FifoAlm(chip, e1, a);
    fieldTable(buf, "GetSDHE1FifoAlm()",
               {{"byMapFifoFoAlarm", a[0]},
                {"byMapFifoFuAlarm", a[1]},
                {"byMapFifoFoHisAlarm", a[2]},
                {"byMapFifoFuHisAlarm", a[3]}},
               kRecordLine);
    return low16(status);
}

VQ6192_API uint32_t getsdhe3fifoalm(uint32_t chip, uint32_t e3, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t a[2] = {};
    const uint32_t status = VQ6192_SDH_GetSDHET3FifoAlm(chip, e3, a);
    fieldTable(buf, "GetSDHE3FifoAlm()", {{"byMaT3Fifoo", a[0]}, {"byMaT3Fifou", a[1]}}, kRecordLine);
    return low16(status);
}

// ---- Help commands -----------------------------------------------------------------------------------

VQ6192_SDH_HELP_COMMAND(getsdhsonetmode_h, "getsdhsonetmode")
VQ6192_SDH_HELP_COMMAND(getsdhloop_h, "getsdhloop")
VQ6192_SDH_HELP_COMMAND(gettxhpbyte_h, "gettxhpbyte")
VQ6192_SDH_HELP_COMMAND(getrxhpbyte_h, "getrxhpbyte")
VQ6192_SDH_HELP_COMMAND(gettxhpb3err_h, "gettxhpb3err")
VQ6192_SDH_HELP_COMMAND(gettxlpbyte_h, "gettxlpbyte")
VQ6192_SDH_HELP_COMMAND(getrxlpvc3byte_h, "getrxlpvc3byte")
VQ6192_SDH_HELP_COMMAND(getrxlpshouldc2_h, "getrxlpshouldc2")
VQ6192_SDH_HELP_COMMAND(getrxlpshouldj1_h, "getrxlpshouldj1")
VQ6192_SDH_HELP_COMMAND(gettxlpb3err_h, "gettxlpb3err")
VQ6192_SDH_HELP_COMMAND(getrxlpshouldj2_h, "getrxlpshouldj2")
VQ6192_SDH_HELP_COMMAND(gettxlpv5_h, "gettxlpv5")
VQ6192_SDH_HELP_COMMAND(getrxlpv5_h, "getrxlpv5")
VQ6192_SDH_HELP_COMMAND(getrxlpshouldv5sgnllbl_h, "getrxlpshouldv5sgnllbl")
VQ6192_SDH_HELP_COMMAND(gettxlpk4_h, "gettxlpk4")
VQ6192_SDH_HELP_COMMAND(gettxlpn2_h, "gettxlpn2")
VQ6192_SDH_HELP_COMMAND(getrxlpvc12byte_h, "getrxlpvc12byte")
VQ6192_SDH_HELP_COMMAND(gettxlpv5bip2err_h, "gettxlpv5bip2err")
VQ6192_SDH_HELP_COMMAND(getlpreimode_h, "getlpreimode")
VQ6192_SDH_HELP_COMMAND(getvc3erdimode_h, "getvc3erdimode")
VQ6192_SDH_HELP_COMMAND(getvc12erdimode_h, "getvc12erdimode")
VQ6192_SDH_HELP_COMMAND(gethplomaisen_h, "gethplomaisen")
VQ6192_SDH_HELP_COMMAND(getfltalarmnum_h, "getfltalarmnum")
VQ6192_SDH_HELP_COMMAND(getsdhlptraninsert_h, "getsdhlptraninsert")
VQ6192_SDH_HELP_COMMAND(gethplommsk_h, "gethplommsk")
VQ6192_SDH_HELP_COMMAND(getlpalmmsk_h, "getlpalmmsk")
VQ6192_SDH_HELP_COMMAND(gethplomintmsk_h, "gethplomintmsk")
VQ6192_SDH_HELP_COMMAND(gettuaisintmsk_h, "gettuaisintmsk")
VQ6192_SDH_HELP_COMMAND(gettulopintmsk_h, "gettulopintmsk")
VQ6192_SDH_HELP_COMMAND(getrxhprst_h, "getrxhprst")
VQ6192_SDH_HELP_COMMAND(getrxlprst_h, "getrxlprst")
VQ6192_SDH_HELP_COMMAND(gettxhpptryfinssel_h, "gettxhpptryfinssel")
VQ6192_SDH_HELP_COMMAND(gettxhpptrssinsval_h, "gettxhpptrssinsval")
VQ6192_SDH_HELP_COMMAND(getrxlpb3b2cnt_h, "getrxlpb3b2cnt")
VQ6192_SDH_HELP_COMMAND(getrxhpb3cnt_h, "getrxhpb3cnt")
VQ6192_SDH_HELP_COMMAND(getrxlpreicnt_h, "getrxlpreicnt")
VQ6192_SDH_HELP_COMMAND(gethpalms_h, "gethpalms")
VQ6192_SDH_HELP_COMMAND(gettxlpg1_h, "gettxlpg1")
VQ6192_SDH_HELP_COMMAND(gettxlpb3_h, "gettxlpb3")
VQ6192_SDH_HELP_COMMAND(gettelerst_h, "gettelerst")
VQ6192_SDH_HELP_COMMAND(getfpfiforead_h, "getfpfiforead")
VQ6192_SDH_HELP_COMMAND(getfpjittermsk_h, "getfpjittermsk")
VQ6192_SDH_HELP_COMMAND(getfplosmsk_h, "getfplosmsk")
VQ6192_SDH_HELP_COMMAND(getfperrmsk_h, "getfperrmsk")
VQ6192_SDH_HELP_COMMAND(getclklocmsk_h, "getclklocmsk")
VQ6192_SDH_HELP_COMMAND(getintglbmsk_h, "getintglbmsk")
VQ6192_SDH_HELP_COMMAND(getintportmsk_h, "getintportmsk")
VQ6192_SDH_HELP_COMMAND(getteleclkedge_h, "getteleclkedge")
VQ6192_SDH_HELP_COMMAND(getrstport_h, "getrstport")
VQ6192_SDH_HELP_COMMAND(getteletxb2ins_h, "getteletxb2ins")
VQ6192_SDH_HELP_COMMAND(gettelerxb2mod_h, "gettelerxb2mod")
VQ6192_SDH_HELP_COMMAND(gettelefploshis_h, "gettelefploshis")
VQ6192_SDH_HELP_COMMAND(gettelefplos_h, "gettelefplos")
VQ6192_SDH_HELP_COMMAND(gettelefpdisvalue_h, "gettelefpdisvalue")
VQ6192_SDH_HELP_COMMAND(gettelerxfifoerrmsk_h, "gettelerxfifoerrmsk")
VQ6192_SDH_HELP_COMMAND(gettelerxb2ofmsk_h, "gettelerxb2ofmsk")
VQ6192_SDH_HELP_COMMAND(gettelerxc1errmsk_h, "gettelerxc1errmsk")
VQ6192_SDH_HELP_COMMAND(gettelerxc1j1allmsk_h, "gettelerxc1j1allmsk")
VQ6192_SDH_HELP_COMMAND(gettelerxc1j1allerrhis_h, "getb2c1j1speerrhis")
VQ6192_SDH_HELP_COMMAND(getb2c1j1speerrhis_h, "getb2c1j1speerrhis")
VQ6192_SDH_HELP_COMMAND(gettelerxc1j1allerr_h, "getb2c1j1speerr")
VQ6192_SDH_HELP_COMMAND(getb2c1j1speerr_h, "getb2c1j1speerr")
VQ6192_SDH_HELP_COMMAND(gettelerxb2cnt_h, "gettelerxb2cnt")
VQ6192_SDH_HELP_COMMAND(gettxhpj1_h, "gettxhpj1")
VQ6192_SDH_HELP_COMMAND(getrxhpj1_h, "getrxhpj1")
VQ6192_SDH_HELP_COMMAND(gettxlpj1_h, "gettxlpj1")
VQ6192_SDH_HELP_COMMAND(getrxlpj1_h, "getrxlpj1")
VQ6192_SDH_HELP_COMMAND(gettxlpj2_h, "gettxlpj2")
VQ6192_SDH_HELP_COMMAND(getrxlpj2_h, "getrxlpj2")
VQ6192_SDH_HELP_COMMAND(getlpalmhis_h, "getlpalms")
VQ6192_SDH_HELP_COMMAND(getlpalms_h, "getlpalms")
VQ6192_SDH_HELP_COMMAND(getsdhe1fifoalm_h, "getsdhe1fifoalm")
VQ6192_SDH_HELP_COMMAND(getsdhe3fifoalm_h, "getsdhe3fifoalm")

}  // extern "C"

namespace vq::diag {
namespace {

constexpr Command kCommands[] = {
    VQ6192_DIAG_COMMAND(getsdhsonetmode, "SDH", "chip", "the line mode: 0 SDH, 1 SONET"),
    VQ6192_DIAG_COMMAND(getsdhsonetmode_h, "SDH", "chip", "help of getsdhsonetmode"),
    VQ6192_DIAG_COMMAND(getsdhloop, "SDH", "chip loopPoint vc4 au3",
                        "the state of a mapper loop point (0..4): 0 none, 1 loop A, 2 loop B, 3 both"),
    VQ6192_DIAG_COMMAND(getsdhloop_h, "SDH", "chip", "help of getsdhloop"),
    VQ6192_DIAG_COMMAND(gettxhpbyte, "SDH", "chip vc4 byteType",
                        "a transmitted high-order overhead byte (type 0..7) and its insertion mode"),
    VQ6192_DIAG_COMMAND(gettxhpbyte_h, "SDH", "chip", "help of gettxhpbyte"),
    VQ6192_DIAG_COMMAND(
        getrxhpbyte, "SDH", "chip vc4 byteType",
        "a received high-order overhead byte (type 0..6); waits 50 ticks after selecting the VC-4"),
    VQ6192_DIAG_COMMAND(getrxhpbyte_h, "SDH", "chip", "help of getrxhpbyte"),
    VQ6192_DIAG_COMMAND(gettxhpb3err, "SDH", "chip vc4",
                        "the high-order B3 error insertion: value and mode 0..2"),
    VQ6192_DIAG_COMMAND(gettxhpb3err_h, "SDH", "chip", "help of gettxhpb3err"),
    VQ6192_DIAG_COMMAND(gettxlpbyte, "SDH", "chip vc4 tug3 byteType",
                        "a transmitted VC-3 overhead byte (type 0..7; 6 G1, 7 B3)"),
    VQ6192_DIAG_COMMAND(gettxlpbyte_h, "SDH", "chip", "help of gettxlpbyte"),
    VQ6192_DIAG_COMMAND(getrxlpvc3byte, "SDH", "chip vc4 tug3 byteType",
                        "a received VC-3 overhead byte (type 0..6); waits 50 ticks after selecting the path"),
    VQ6192_DIAG_COMMAND(getrxlpvc3byte_h, "SDH", "chip", "help of getrxlpvc3byte"),
    VQ6192_DIAG_COMMAND(getrxlpshouldc2, "SDH", "chip vc4 tug3", "the expected C2 signal label of a VC-3"),
    VQ6192_DIAG_COMMAND(getrxlpshouldc2_h, "SDH", "chip", "help of getrxlpshouldc2"),
    VQ6192_DIAG_COMMAND(getrxlpshouldj1, "SDH", "chip vc4 tug3",
                        "the expected J1 trace signature of a VC-3: mode, CRC-7, byte sum, last two bytes"),
    VQ6192_DIAG_COMMAND(getrxlpshouldj1_h, "SDH", "chip", "help of getrxlpshouldj1"),
    VQ6192_DIAG_COMMAND(gettxlpb3err, "SDH", "chip vc4 tug3",
                        "the VC-3 B3 error insertion: value and mode 0..2"),
    VQ6192_DIAG_COMMAND(gettxlpb3err_h, "SDH", "chip", "help of gettxlpb3err"),
    VQ6192_DIAG_COMMAND(getrxlpshouldj2, "SDH", "chip vc4 tug3 tu",
                        "the expected J2 trace signature of a VC-12: CRC-7 and byte sum"),
    VQ6192_DIAG_COMMAND(getrxlpshouldj2_h, "SDH", "chip", "help of getrxlpshouldj2"),
    VQ6192_DIAG_COMMAND(gettxlpv5, "SDH", "chip vc4 tug3 tu",
                        "the transmitted V5 of a VC-12 and its software insertion mode (a partial setting "
                        "reads as, and becomes, off)"),
    VQ6192_DIAG_COMMAND(gettxlpv5_h, "SDH", "chip", "help of gettxlpv5"),
    VQ6192_DIAG_COMMAND(getrxlpv5, "SDH", "chip vc4 tug3 tu",
                        "the received V5 of a VC-12; waits 50 ticks after selecting the path"),
    VQ6192_DIAG_COMMAND(getrxlpv5_h, "SDH", "chip", "help of getrxlpv5"),
    VQ6192_DIAG_COMMAND(getrxlpshouldv5sgnllbl, "SDH", "chip vc4 tug3 tu",
                        "the expected V5 signal label (0..7) of a VC-12"),
    VQ6192_DIAG_COMMAND(getrxlpshouldv5sgnllbl_h, "SDH", "chip", "help of getrxlpshouldv5sgnllbl"),
    VQ6192_DIAG_COMMAND(gettxlpk4, "SDH", "chip vc4 tug3 tu",
                        "the transmitted K4 of a VC-12 and its software insertion mode"),
    VQ6192_DIAG_COMMAND(gettxlpk4_h, "SDH", "chip", "help of gettxlpk4"),
    VQ6192_DIAG_COMMAND(gettxlpn2, "SDH", "chip vc4 tug3 tu", "the transmitted N2 of a VC-12"),
    VQ6192_DIAG_COMMAND(gettxlpn2_h, "SDH", "chip", "help of gettxlpn2"),
    VQ6192_DIAG_COMMAND(
        getrxlpvc12byte, "SDH", "chip vc4 tug3 tu byteType",
        "a received VC-12 overhead byte (type 0..3, 0 is V5); waits 50 ticks after selecting the path"),
    VQ6192_DIAG_COMMAND(getrxlpvc12byte_h, "SDH", "chip", "help of getrxlpvc12byte"),
    VQ6192_DIAG_COMMAND(gettxlpv5bip2err, "SDH", "chip vc4 tug3 tu",
                        "the VC-12 BIP-2 error insertion: value and mode 0..2"),
    VQ6192_DIAG_COMMAND(gettxlpv5bip2err_h, "SDH", "chip", "help of gettxlpv5bip2err"),
    VQ6192_DIAG_COMMAND(getlpreimode, "SDH", "chip vc4 tug3 tu",
                        "the REI mode of a low-order path, ingress and egress"),
    VQ6192_DIAG_COMMAND(getlpreimode_h, "SDH", "chip", "help of getlpreimode"),
    VQ6192_DIAG_COMMAND(getvc3erdimode, "SDH", "chip vc4 tug3", "the enhanced RDI mode of a VC-3"),
    VQ6192_DIAG_COMMAND(getvc3erdimode_h, "SDH", "chip", "help of getvc3erdimode"),
    VQ6192_DIAG_COMMAND(getvc12erdimode, "SDH", "chip vc4 tug3 tu",
                        "the enhanced RDI mode of a VC-12, ingress and egress"),
    VQ6192_DIAG_COMMAND(getvc12erdimode_h, "SDH", "chip", "help of getvc12erdimode"),
    VQ6192_DIAG_COMMAND(gethplomaisen, "SDH", "chip vc4",
                        "whether HP-LOM inserts E1/T1/E3/DS3 AIS on the VC-4"),
    VQ6192_DIAG_COMMAND(gethplomaisen_h, "SDH", "chip", "help of gethplomaisen"),
    VQ6192_DIAG_COMMAND(getfltalarmnum, "SDH", "chip type",
                        "the 4-bit alarm filter number of alarm type 0..3"),
    VQ6192_DIAG_COMMAND(getfltalarmnum_h, "SDH", "chip", "help of getfltalarmnum"),
    VQ6192_DIAG_COMMAND(getsdhlptraninsert, "SDH", "chip vc4 tug3 tu type",
                        "whether consequent action type 0..9 is enabled on a low-order path"),
    VQ6192_DIAG_COMMAND(getsdhlptraninsert_h, "SDH", "chip", "help of getsdhlptraninsert"),
    VQ6192_DIAG_COMMAND(gethplommsk, "SDH", "chip", "whether low-order alarms are masked during HP-LOM"),
    VQ6192_DIAG_COMMAND(gethplommsk_h, "SDH", "chip", "help of gethplommsk"),
    VQ6192_DIAG_COMMAND(getlpalmmsk, "SDH", "chip",
                        "whether low-order alarms are masked during TU-AIS and TU-LOP"),
    VQ6192_DIAG_COMMAND(getlpalmmsk_h, "SDH", "chip", "help of getlpalmmsk"),
    VQ6192_DIAG_COMMAND(gethplomintmsk, "SDH", "chip hpNo",
                        "the HP-LOM interrupt mask of high-order block 0..11 (VC-4 + 4 * TUG-3)"),
    VQ6192_DIAG_COMMAND(gethplomintmsk_h, "SDH", "chip", "help of gethplomintmsk"),
    VQ6192_DIAG_COMMAND(gettuaisintmsk, "SDH", "chip vc4 tug3 tu",
                        "the TU-AIS interrupt mask of a low-order path"),
    VQ6192_DIAG_COMMAND(gettuaisintmsk_h, "SDH", "chip", "help of gettuaisintmsk"),
    VQ6192_DIAG_COMMAND(gettulopintmsk, "SDH", "chip vc4 tug3 tu",
                        "the TU-LOP interrupt mask of a low-order path"),
    VQ6192_DIAG_COMMAND(gettulopintmsk_h, "SDH", "chip", "help of gettulopintmsk"),
    VQ6192_DIAG_COMMAND(getrxhprst, "SDH", "chip vc4", "the receive high-order path reset of a VC-4"),
    VQ6192_DIAG_COMMAND(getrxhprst_h, "SDH", "chip", "help of getrxhprst"),
    VQ6192_DIAG_COMMAND(getrxlprst, "SDH", "chip vc4 tug3 tu", "the receive low-order path reset"),
    VQ6192_DIAG_COMMAND(getrxlprst_h, "SDH", "chip", "help of getrxlprst"),
    VQ6192_DIAG_COMMAND(gettxhpptryfinssel, "SDH", "chip vc4",
                        "the transmit pointer YY and FF insertion selects of a VC-4"),
    VQ6192_DIAG_COMMAND(gettxhpptryfinssel_h, "SDH", "chip", "help of gettxhpptryfinssel"),
    VQ6192_DIAG_COMMAND(gettxhpptrssinsval, "SDH", "chip vc4",
                        "the transmit pointer SS bits (0..3) of a VC-4"),
    VQ6192_DIAG_COMMAND(gettxhpptrssinsval_h, "SDH", "chip", "help of gettxhpptrssinsval"),
    VQ6192_DIAG_COMMAND(getrxlpb3b2cnt, "SDH", "chip vc4 tug3 tu",
                        "the B3 (VC-3) or BIP-2 (VC-12) error count of a low-order path"),
    VQ6192_DIAG_COMMAND(getrxlpb3b2cnt_h, "SDH", "chip", "help of getrxlpb3b2cnt"),
    VQ6192_DIAG_COMMAND(getvc4tuaisinsen, "SDH", "chip vc4",
                        "whether TU-AIS insertion is enabled on the VC-4"),
    VQ6192_DIAG_COMMAND(getsonetb3chkmode, "SDH", "chip", "whether the SONET B3 check is off"),
    VQ6192_DIAG_COMMAND(
        getmaploopcfg, "SDH", "chip",
        "the map loopback configuration: SDH/SONET loopback mode, AIS insertion, loopback enable"),
    VQ6192_DIAG_COMMAND(getodlpsscfg, "SDH", "chip", "whether the low-order signal-label check is enabled"),
    VQ6192_DIAG_COMMAND(getrxhpb3cnt, "SDH", "chip vc4",
                        "the high-order B3 error count (low eight bits) of a VC-4 and its flag"),
    VQ6192_DIAG_COMMAND(getrxhpb3cnt_h, "SDH", "chip", "help of getrxhpb3cnt"),
    VQ6192_DIAG_COMMAND(getrxlpreicnt, "SDH", "chip vc4 tug3 tu",
                        "the REI count (low eight bits) of a low-order path"),
    VQ6192_DIAG_COMMAND(getrxlpreicnt_h, "SDH", "chip", "help of getrxlpreicnt"),
    VQ6192_DIAG_COMMAND(gethpalms, "SDH", "chip vc4",
                        "the HP-OOM and HP-LOM histories and the current HP-LOM of a VC-4"),
    VQ6192_DIAG_COMMAND(gethpalms_h, "SDH", "chip", "help of gethpalms"),
    VQ6192_DIAG_COMMAND(gettxlpg1, "SDH", "chip vc4 tug3",
                        "the transmitted G1 of a VC-3 and its software insertion mode"),
    VQ6192_DIAG_COMMAND(gettxlpg1_h, "SDH", "chip", "help of gettxlpg1"),
    VQ6192_DIAG_COMMAND(gettxlpb3, "SDH", "chip vc4 tug3",
                        "the transmitted B3 of a VC-3 and its software insertion mode"),
    VQ6192_DIAG_COMMAND(gettxlpb3_h, "SDH", "chip", "help of gettxlpb3"),
    VQ6192_DIAG_COMMAND(gettelerst, "TELECOM", "chip", "the telecom bus global reset (0 run, 1 reset)"),
    VQ6192_DIAG_COMMAND(gettelerst_h, "TELECOM", "chip", "help of gettelerst"),
    VQ6192_DIAG_COMMAND(getfpfiforead, "TELECOM", "chip",
                        "the telecom bus output byte phase adjustment (0..11)"),
    VQ6192_DIAG_COMMAND(getfpfiforead_h, "TELECOM", "chip", "help of getfpfiforead"),
    VQ6192_DIAG_COMMAND(getfpjittermsk, "TELECOM", "chip",
                        "the interrupt mask of the 77 MHz frame-pulse drift alarm"),
    VQ6192_DIAG_COMMAND(getfpjittermsk_h, "TELECOM", "chip", "help of getfpjittermsk"),
    VQ6192_DIAG_COMMAND(getfplosmsk, "TELECOM", "chip",
                        "the interrupt mask of the 77 MHz frame-pulse loss alarm"),
    VQ6192_DIAG_COMMAND(getfplosmsk_h, "TELECOM", "chip", "help of getfplosmsk"),
    VQ6192_DIAG_COMMAND(getfperrmsk, "TELECOM", "chip",
                        "the interrupt mask of the 77 MHz port FIFO overflow alarm"),
    VQ6192_DIAG_COMMAND(getfperrmsk_h, "TELECOM", "chip", "help of getfperrmsk"),
    VQ6192_DIAG_COMMAND(getclklocmsk, "TELECOM", "chip", "the interrupt mask of the 77 MHz clock loss alarm"),
    VQ6192_DIAG_COMMAND(getclklocmsk_h, "TELECOM", "chip", "help of getclklocmsk"),
    VQ6192_DIAG_COMMAND(getintglbmsk, "TELECOM", "chip", "the telecom bus global interrupt mask"),
    VQ6192_DIAG_COMMAND(getintglbmsk_h, "TELECOM", "chip", "help of getintglbmsk"),
    VQ6192_DIAG_COMMAND(getintportmsk, "TELECOM", "chip", "the telecom bus port interrupt mask"),
    VQ6192_DIAG_COMMAND(getintportmsk_h, "TELECOM", "chip", "help of getintportmsk"),
    VQ6192_DIAG_COMMAND(getteleclkedge, "TELECOM", "chip edgeType",
                        "the clock edge (0 rising, 1 falling) of edge type 0..2 (0 is the receive clock)"),
    VQ6192_DIAG_COMMAND(getteleclkedge_h, "TELECOM", "chip", "help of getteleclkedge"),
    VQ6192_DIAG_COMMAND(getrstport, "TELECOM", "chip", "the telecom bus port reset (0 run, 1 reset)"),
    VQ6192_DIAG_COMMAND(getrstport_h, "TELECOM", "chip", "help of getrstport"),
    VQ6192_DIAG_COMMAND(getteletxb2ins, "TELECOM", "chip", "the telecom bus transmit B2 insertion enable"),
    VQ6192_DIAG_COMMAND(getteletxb2ins_h, "TELECOM", "chip", "help of getteletxb2ins"),
    VQ6192_DIAG_COMMAND(gettelerxb2mod, "TELECOM", "chip",
                        "the receive B2 counting mode: 0 counts bits, 1 counts blocks"),
    VQ6192_DIAG_COMMAND(gettelerxb2mod_h, "TELECOM", "chip", "help of gettelerxb2mod"),
    VQ6192_DIAG_COMMAND(
        gettelefploshis, "TELECOM", "chip",
        "the history 77 MHz alarms: frame-pulse drift, frame-pulse loss, port FIFO error, clock loss"),
    VQ6192_DIAG_COMMAND(gettelefploshis_h, "TELECOM", "chip", "help of gettelefploshis"),
    VQ6192_DIAG_COMMAND(
        gettelefplos, "TELECOM", "chip",
        "the current 77 MHz alarms: frame-pulse drift, frame-pulse loss, port FIFO error, clock loss"),
    VQ6192_DIAG_COMMAND(gettelefplos_h, "TELECOM", "chip", "help of gettelefplos"),
    VQ6192_DIAG_COMMAND(gettelefpdisvalue, "TELECOM", "chip",
                        "the write/read FIFO frame-pulse address difference (0..63)"),
    VQ6192_DIAG_COMMAND(gettelefpdisvalue_h, "TELECOM", "chip", "help of gettelefpdisvalue"),
    VQ6192_DIAG_COMMAND(gettelerxfifoerrmsk, "TELECOM", "chip port",
                        "the receive FIFO error interrupt mask of port 0..3 (0 masked, 1 not masked)"),
    VQ6192_DIAG_COMMAND(gettelerxfifoerrmsk_h, "TELECOM", "chip", "help of gettelerxfifoerrmsk"),
    VQ6192_DIAG_COMMAND(gettelerxb2ofmsk, "TELECOM", "chip port",
                        "the receive B2 counter overflow interrupt mask of port 0..3"),
    VQ6192_DIAG_COMMAND(gettelerxb2ofmsk_h, "TELECOM", "chip", "help of gettelerxb2ofmsk"),
    VQ6192_DIAG_COMMAND(gettelerxc1errmsk, "TELECOM", "chip port",
                        "the receive C1 drift or loss interrupt mask of port 0..3"),
    VQ6192_DIAG_COMMAND(gettelerxc1errmsk_h, "TELECOM", "chip", "help of gettelerxc1errmsk"),
    VQ6192_DIAG_COMMAND(
        gettelerxc1j1allmsk, "TELECOM", "chip pair",
        "the C1/J1/SPE all-zeros/all-ones interrupt mask of VC-4 pair 0 (VC-4s 0, 1) or 1 (VC-4s 2, 3)"),
    VQ6192_DIAG_COMMAND(gettelerxc1j1allmsk_h, "TELECOM", "chip", "help of gettelerxc1j1allmsk"),
    VQ6192_DIAG_COMMAND(getb2c1j1speerrhis, "TELECOM", "chip port",
                        "the history errors of telecom bus port 0..3: FIFO error, B2 counter overflow, C1 "
                        "error, C1/J1/SPE all-zeros/all-ones (ports 0 and 1 only)"),
    VQ6192_DIAG_COMMAND(gettelerxc1j1allerrhis_h, "TELECOM", "chip", "help of getb2c1j1speerrhis"),
    VQ6192_DIAG_COMMAND(getb2c1j1speerrhis_h, "TELECOM", "chip", "help of getb2c1j1speerrhis"),
    VQ6192_DIAG_COMMAND(getb2c1j1speerr, "TELECOM", "chip port",
                        "the current errors of telecom bus port 0..3: FIFO error, B2 counter overflow, C1 "
                        "error, C1/J1/SPE all-zeros/all-ones (ports 0 and 1 only)"),
    VQ6192_DIAG_COMMAND(gettelerxc1j1allerr_h, "TELECOM", "chip", "help of getb2c1j1speerr"),
    VQ6192_DIAG_COMMAND(getb2c1j1speerr_h, "TELECOM", "chip", "help of getb2c1j1speerr"),
    VQ6192_DIAG_COMMAND(gettelerxb2cnt, "TELECOM", "chip port",
                        "the receive B2 error counter of port 0..3; the chip clears it when it is read"),
    VQ6192_DIAG_COMMAND(gettelerxb2cnt_h, "TELECOM", "chip", "help of gettelerxb2cnt"),
    VQ6192_DIAG_COMMAND(getsdhmap, "SDH", "chip vc4 au3", "the map type of an AU-3/TUG-3 slot and its name"),
    VQ6192_DIAG_COMMAND(getsdhmaps, "SDH", "chip", "the map types of all twelve AU-3/TUG-3 slots"),
    VQ6192_DIAG_COMMAND(gettxhpj1, "SDH", "chip vc4", "the transmitted J1 trace of a VC-4"),
    VQ6192_DIAG_COMMAND(gettxhpj1_h, "SDH", "chip", "help of gettxhpj1"),
    VQ6192_DIAG_COMMAND(getrxhpj1, "SDH", "chip vc4", "the received J1 trace of a VC-4"),
    VQ6192_DIAG_COMMAND(getrxhpj1_h, "SDH", "chip", "help of getrxhpj1"),
    VQ6192_DIAG_COMMAND(gettxlpj1, "SDH", "chip vc4 tug3", "the transmitted J1 trace of a VC-3"),
    VQ6192_DIAG_COMMAND(gettxlpj1_h, "SDH", "chip", "help of gettxlpj1"),
    VQ6192_DIAG_COMMAND(getrxlpj1, "SDH", "chip vc4 tug3", "the received J1 trace of a VC-3"),
    VQ6192_DIAG_COMMAND(getrxlpj1_h, "SDH", "chip", "help of getrxlpj1"),
    VQ6192_DIAG_COMMAND(gettxlpj2, "SDH", "chip vc4 tug3 tu", "the transmitted J2 trace of a VC-12"),
    VQ6192_DIAG_COMMAND(gettxlpj2_h, "SDH", "chip", "help of gettxlpj2"),
    VQ6192_DIAG_COMMAND(getrxlpj2, "SDH", "chip vc4 tug3 tu", "the received J2 trace of a VC-12"),
    VQ6192_DIAG_COMMAND(getrxlpj2_h, "SDH", "chip", "help of getrxlpj2"),
    VQ6192_DIAG_COMMAND(getlpalms, "SDH", "chip vc4 tug3 tu", "the low-order alarms of a path"),
    VQ6192_DIAG_COMMAND(getlpalmhis_h, "SDH", "chip", "help of getlpalms"),
    VQ6192_DIAG_COMMAND(getlpalms_h, "SDH", "chip", "help of getlpalms"),
    VQ6192_DIAG_COMMAND(getsdhe1fifoalm, "SDH", "chip e1", "the E1/T1 mapper FIFO alarms"),
    VQ6192_DIAG_COMMAND(getsdhe1fifoalm_h, "SDH", "chip", "help of getsdhe1fifoalm"),
    VQ6192_DIAG_COMMAND(getsdhe3fifoalm, "SDH", "chip e3", "the E3/T3 mapper FIFO alarms"),
    VQ6192_DIAG_COMMAND(getsdhe3fifoalm_h, "SDH", "chip", "help of getsdhe3fifoalm"),
};

}  // namespace

std::span<const Command> sdhCommands() {
    return kCommands;
}

}  // namespace vq::diag
