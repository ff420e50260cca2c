// ATM switch registers (byte addresses) and the table members the ATM module reads and writes.
#pragma once

#include <cstdint>

#include "core/entry_field.h"

namespace vq::atm {

// Table clear bits 0..4 (also gate the OAM status read for the loss-of-continuity bit).
inline constexpr uint32_t kTabClrReg = 0xA008;
inline constexpr uint32_t kTabClrAll = 0x1F;
inline constexpr uint32_t kTabClrOamStatus = 0x10;

// OAM registers.
inline constexpr uint32_t kOamReportNotEmptyReg = 0xA262;  // bits 0..1
inline constexpr uint32_t kOamLlidLastReg = 0xA274;        // ID bytes 14..15; 0xA282 holds bytes 0..1
inline constexpr uint32_t kOamLlidValidReg = 0xA284;       // bit 0
inline constexpr uint32_t kOamCrcEnReg = 0xA2C0;           // bit 0
inline constexpr uint32_t kFifoClearReg = 0xA2CA;          // bit 0 insertion, bit 1 report, 0..11 all
inline constexpr uint32_t kFifoClearInsertBit = 0;
inline constexpr uint32_t kFifoClearReportBit = 1;
inline constexpr uint32_t kFifoClearTopBit = 11;

// Ingress cell-to-PWE3 time, bits 0..15.
inline constexpr uint32_t kSendPwe3TimeReg = 0xA2E8;

// Global buffer limits: high part bits 0..2 at kBmLimitBase + 0x20 * n, low part bits 0..15 two bytes on.
inline constexpr uint32_t kBmLimitBase = 0xA420;
inline constexpr uint32_t kBmLimitStride = 0x20;
inline constexpr uint32_t kBmLimitNum = 7;

// Queue delete handshake: command bits 0..12 queue, bit 13 kind (1 port queue), bits 14..15 command;
// status bits 14..15 read 3 when the queue is deleted.
inline constexpr uint32_t kQmDelCmdReg = 0xA860;
inline constexpr uint32_t kQmDelStatReg = 0xA862;
inline constexpr uint32_t kQmDelQueueBit = 0;
inline constexpr uint32_t kQmDelQueueWidth = 13;
inline constexpr uint32_t kQmDelKindBit = 13;
inline constexpr uint32_t kQmDelCmdBit = 14;
inline constexpr uint32_t kQmDelCmdWidth = 2;
inline constexpr uint32_t kQmDelStart = 3;
inline constexpr uint32_t kQmDelDone = 3;

// Tables.
inline constexpr uint32_t kTcam = tableId("Atmswtcam");
inline constexpr uint32_t kVct = tableId("Atmswvct");
inline constexpr uint32_t kLpct = tableId("Atmswlpct");
inline constexpr uint32_t kSpct = tableId("Atmswspct");
inline constexpr uint32_t kLinkQm = tableId("Atmlinkqmcfg");
inline constexpr uint32_t kBmPvc = tableId("Atmbmpvccfg");
inline constexpr uint32_t kBmFifo = tableId("Atmbmfifocfg");
inline constexpr uint32_t kPortQm = tableId("Atmportqmcfg");
inline constexpr uint32_t kPolCfg = tableId("Atmswpolcfg");
inline constexpr uint32_t kRtVbrShap = tableId("Atmtmrtvbrshapcfg");
inline constexpr uint32_t kNrtVbrShap = tableId("Atmtmnrtvbrshapcfg");
inline constexpr uint32_t kUbrPlusShap = tableId("Atmtmubrplsshapcfg");
inline constexpr uint32_t kBmTh = tableId("Atmbmthcfg");
inline constexpr uint32_t kEbs = tableId("Atmebscfg");
inline constexpr uint32_t kShVc = tableId("Atmlinkshvccfg");
inline constexpr uint32_t kOamStatus = tableId("Atmswoamst");
inline constexpr uint32_t kInsertFifo = tableId("Atmswwfifo");
inline constexpr uint32_t kReportFifo = tableId("Atmswrfifo");
inline constexpr uint32_t kVcxFifo = tableId("Atmswvcxfifo");

// TCAM row: key VCI 0..15 (no member of its own), VPI, port; mask bit 40 + i compares key bit i.
inline constexpr EntryField kTcamVci{kTcam, 0, 16};
inline constexpr auto kTcamVpi = entryField("Atmswtcam", "Vpi");
inline constexpr auto kTcamPort = entryField("Atmswtcam", "Port");
inline constexpr auto kTcamMaskl = entryField("Atmswtcam", "Maskl");
inline constexpr auto kTcamMaskh = entryField("Atmswtcam", "Maskh");
inline constexpr auto kTcamVld = entryField("Atmswtcam", "Vld");

inline constexpr auto kVctValid = entryField("Atmswvct", "Valid");
inline constexpr auto kVctNewvci = entryField("Atmswvct", "Newvci");
inline constexpr auto kVctNewvpi = entryField("Atmswvct", "Newvpi");
inline constexpr auto kVctGfcnewvpi = entryField("Atmswvct", "Gfcnewvpi");
inline constexpr auto kVctOutport = entryField("Atmswvct", "Outport");
inline constexpr auto kVctDir = entryField("Atmswvct", "Dir");
inline constexpr auto kVctChntype = entryField("Atmswvct", "Chntype");
inline constexpr auto kVctEndrdien = entryField("Atmswvct", "Endrdien");
inline constexpr auto kVctSegrdien = entryField("Atmswvct", "Segrdien");
inline constexpr auto kVctEndaisen = entryField("Atmswvct", "Endaisen");
inline constexpr auto kVctSegaisen = entryField("Atmswvct", "Segaisen");
inline constexpr auto kVctCcsinktype = entryField("Atmswvct", "Ccsinktype");
inline constexpr auto kVctCcsrctype = entryField("Atmswvct", "Ccsrctype");
inline constexpr auto kVctCcsink = entryField("Atmswvct", "Ccsink");
inline constexpr auto kVctCcsource = entryField("Atmswvct", "Ccsource");
inline constexpr auto kVctE2e = entryField("Atmswvct", "E2e");
inline constexpr auto kVctSeg = entryField("Atmswvct", "Seg");
inline constexpr auto kVctUpcnpc = entryField("Atmswvct", "Upcnpc");
inline constexpr auto kVctPolicingid = entryField("Atmswvct", "Policingid");
inline constexpr auto kVctTraffictype = entryField("Atmswvct", "Traffictype");

inline constexpr auto kLpctPortmap = entryField("Atmswlpct", "Portmap");
inline constexpr auto kLpctLoopout = entryField("Atmswlpct", "Loopout");
inline constexpr auto kLpctNetattr = entryField("Atmswlpct", "Netattr");
inline constexpr auto kLpctPorten = entryField("Atmswlpct", "Porten");
inline constexpr auto kLpctPwindex = entryField("Atmswlpct", "Pwindex");

inline constexpr auto kSpctPortmap = entryField("Atmswspct", "Portmap");
inline constexpr auto kSpctNetattr = entryField("Atmswspct", "Netattr");
inline constexpr auto kSpctPorten = entryField("Atmswspct", "Porten");
inline constexpr auto kSpctOutport = entryField("Atmswspct", "Outport");

inline constexpr auto kQmQid = entryField("Atmlinkqmcfg", "Qmqid");
inline constexpr auto kQmType = entryField("Atmlinkqmcfg", "Qmtype");
inline constexpr auto kQmPort = entryField("Atmlinkqmcfg", "Qmport");
inline constexpr auto kQmSta = entryField("Atmlinkqmcfg", "Qmsta");
inline constexpr auto kQmLen = entryField("Atmlinkqmcfg", "Qmlen");
// Queue number, type and port: what a flushed queue gives up (bits 0..24).
inline constexpr EntryField kQmBinding{kLinkQm, 0, 25};
// Port queues follow the 8192 connection queues.
inline constexpr uint32_t kPortQueueBase = 8192;

inline constexpr auto kBmPvcThIndex = entryField("Atmbmpvccfg", "Atmbmthindex");
inline constexpr auto kBmPvcRed = entryField("Atmbmpvccfg", "Atmbmreden");
inline constexpr auto kBmPvcPfd = entryField("Atmbmpvccfg", "Atmbmpfden");
inline constexpr auto kBmPvcFd = entryField("Atmbmpvccfg", "Atmbmfden");
inline constexpr auto kBmPvcClpt = entryField("Atmbmpvccfg", "Atmbmclpt");

inline constexpr auto kBmFifoPause = entryField("Atmbmfifocfg", "Atmbmpauseth");
inline constexpr auto kBmFifoCancel = entryField("Atmbmfifocfg", "Atmbmcancelth");
inline constexpr auto kBmFifoDrop = entryField("Atmbmfifocfg", "Atmbmfifodropth");

inline constexpr auto kPortQmPeriod = entryField("Atmportqmcfg", "Portqmperiod");
inline constexpr auto kPortQmTh = entryField("Atmportqmcfg", "Portqmth");

inline constexpr auto kPolLimitA = entryField("Atmswpolcfg", "Limita");
inline constexpr auto kPolModeA = entryField("Atmswpolcfg", "Pamode");
inline constexpr auto kPolIncrA = entryField("Atmswpolcfg", "Incra");
inline constexpr auto kPolLimitB = entryField("Atmswpolcfg", "Limitb");
inline constexpr auto kPolModeB = entryField("Atmswpolcfg", "Pbmode");
inline constexpr auto kPolIncrB = entryField("Atmswpolcfg", "Incrb");

// The three shaper tables share one layout: limit 0..7, mode 8, increment 9..23.
struct ShaperFields {
    EntryField limit;
    EntryField mode;
    EntryField incr;
};
inline constexpr ShaperFields kRtVbrShaper{entryField("Atmtmrtvbrshapcfg", "Rtvbrlimit"),
                                           entryField("Atmtmrtvbrshapcfg", "Rtvbrmode"),
                                           entryField("Atmtmrtvbrshapcfg", "Rtvbrinc")};
inline constexpr ShaperFields kNrtVbrShaper{entryField("Atmtmnrtvbrshapcfg", "Nrtvbrlimit"),
                                            entryField("Atmtmnrtvbrshapcfg", "Nrtvbrmode"),
                                            entryField("Atmtmnrtvbrshapcfg", "Nrtvbrinc")};
inline constexpr ShaperFields kUbrPlusShaper{entryField("Atmtmubrplsshapcfg", "Ubrplslimit"),
                                             entryField("Atmtmubrplsshapcfg", "Ubrplsmode"),
                                             entryField("Atmtmubrplsshapcfg", "Ubrplsinc")};

inline constexpr auto kBmThClpTh1 = entryField("Atmbmthcfg", "Atmbmclpth1");
inline constexpr auto kBmThClpTh0 = entryField("Atmbmthcfg", "Atmbmclpth0");
inline constexpr auto kBmThFdTh1 = entryField("Atmbmthcfg", "Atmbmfdth1");
inline constexpr auto kBmThFdTh0 = entryField("Atmbmthcfg", "Atmbmfdth0");
inline constexpr auto kBmThRedMax = entryField("Atmbmthcfg", "Atmbmredmax");
inline constexpr auto kBmThRedMin = entryField("Atmbmthcfg", "Atmbmredmin");
inline constexpr auto kBmThWeight = entryField("Atmbmthcfg", "Atmbmweight");
inline constexpr auto kBmThClp1S0 = entryField("Atmbmthcfg", "Atmbmclp1s0");
inline constexpr auto kBmThClp0S0 = entryField("Atmbmthcfg", "Atmbmclp0s0");

inline constexpr auto kEbsUbr = entryField("Atmebscfg", "Ubrweight");
inline constexpr auto kEbsUbrPlus = entryField("Atmebscfg", "Ubr1weight");
inline constexpr auto kEbsNrtVbr = entryField("Atmebscfg", "Nvbrweight");
inline constexpr auto kEbsRtVbr = entryField("Atmebscfg", "Vbrweight");
inline constexpr auto kEbsNrtVbrEn = entryField("Atmebscfg", "Nvbren");
inline constexpr auto kEbsRtVbrEn = entryField("Atmebscfg", "Vbren");

inline constexpr auto kShVcPeriod = entryField("Atmlinkshvccfg", "Shvcperiod");

inline constexpr auto kOamStCcloc = entryField("Atmswoamst", "Ccloc");

inline constexpr auto kFifoData = entryField("Atmswwfifo", "Oamcapdata");
inline constexpr auto kFifoSoc = entryField("Atmswwfifo", "Soc");
inline constexpr auto kFifoEoc = entryField("Atmswwfifo", "Eoc");
inline constexpr auto kVcxFifoVcx = entryField("Atmswvcxfifo", "Vcx");
// The insertion FIFO is written at index 0, the report FIFO read at index 1.
inline constexpr uint32_t kInsertFifoIndex = 0;
inline constexpr uint32_t kReportFifoIndex = 1;

// ---- Pseudowires (PWE3 block) ----

// PW delete handshake: bits 0..10 PW, bit 11 start, bit 12 done.
inline constexpr uint32_t kPwDelReg = 0xA740;
inline constexpr uint32_t kPwDelStartBit = 11;
inline constexpr uint32_t kPwDelDoneBit = 12;
// PW packet capture: bits 0..10 PW, bit 11 direction, bit 12 start, bit 13 done.
inline constexpr uint32_t kPwCapReg = 0xA720;
inline constexpr uint32_t kPwCapDirBit = 11;
inline constexpr uint32_t kPwCapStartBit = 12;
inline constexpr uint32_t kPwCapDoneBit = 13;
inline constexpr uint32_t kPwBits = 11;  // PW number field of both handshakes
// The two PWE3 loopbacks, bit 0 each.
inline constexpr uint32_t kPwe3LoopReg[2] = {0xA760, 0xA762};
// FIFO status: high-water flags (bit 1 empty, bit 0 full), the live flags, resets, overruns.
inline constexpr uint32_t kPwe3RxEthFifoReg = 0xA680;
inline constexpr uint32_t kPwe3RxSwFifoReg = 0xA682;
inline constexpr uint32_t kPwe3TxEthFifoReg = 0xA684;
inline constexpr uint32_t kPwe3TxSwFifoReg = 0xA686;
inline constexpr uint32_t kPwe3FifoFlagsReg = 0xA68A;  // bits 7..0
inline constexpr uint32_t kPwe3FifoRstReg = 0xA6A0;    // bits 3..0
inline constexpr uint32_t kPwe3RxOverrunReg = 0xA6C0;
inline constexpr uint32_t kPwe3TxOverrunReg = 0xA6C2;
// FIFO overflow counters of the statistics record, bits 0..15.
inline constexpr uint32_t kPwe3RxOverflowReg = 0xA6E0;
inline constexpr uint32_t kPwe3TxOverflowReg = 0xA6E2;

inline constexpr uint32_t kPwCfg = tableId("Atmpwe3pwcfgtab");
inline constexpr uint32_t kPwRxManage = tableId("Atmpwe3rxmanagetab");
inline constexpr uint32_t kPwTxManage = tableId("Atmpwe3txmanagetab");
inline constexpr uint32_t kPwPri = tableId("Atmpwe3pritab");
inline constexpr uint32_t kPwRxSt = tableId("Atmpwe3rxsttab");
inline constexpr uint32_t kPwTxSt = tableId("Atmpwe3txsttab");
inline constexpr uint32_t kPwPktBuf = tableId("Atmpwe3pktbuf");

inline constexpr auto kPwEn = entryField("Atmpwe3pwcfgtab", "Atmpwe3pwen");
inline constexpr auto kPwCwEn = entryField("Atmpwe3pwcfgtab", "Atmpwe3cwen");
inline constexpr auto kPwType = entryField("Atmpwe3pwcfgtab", "Atmpwe3pwtype");
inline constexpr auto kPwPktDropEn = entryField("Atmpwe3rxmanagetab", "Pwe3pktdropen");
inline constexpr auto kPwSnChkEn = entryField("Atmpwe3rxmanagetab", "Pwe3snchken");
inline constexpr auto kPwExpectRange = entryField("Atmpwe3rxmanagetab", "Expectsnrstrange");
inline constexpr auto kPwVci = entryField("Atmpwe3rxmanagetab", "Atmpwe3vci");
inline constexpr auto kPwVpi = entryField("Atmpwe3rxmanagetab", "Atmpwe3vpi");
inline constexpr auto kPwSnAddEn = entryField("Atmpwe3txmanagetab", "Pwe3snadden");
inline constexpr auto kPwMaxPeriod = entryField("Atmpwe3txmanagetab", "Maxrelayperiod");
inline constexpr auto kPwMaxCells = entryField("Atmpwe3txmanagetab", "Maxrelaynum");
inline constexpr auto kPwPriIndex = entryField("Atmpwe3txmanagetab", "Pwpriindex");
inline constexpr auto kPriUbr = entryField("Atmpwe3pritab", "Ubrpri");
inline constexpr auto kPriUbrPlus = entryField("Atmpwe3pritab", "Ubrppri");
inline constexpr auto kPriNrtVbr = entryField("Atmpwe3pritab", "Nrtvbrpri");
inline constexpr auto kPriRtVbr = entryField("Atmpwe3pritab", "Rtvbrpri");
inline constexpr auto kPriCbr = entryField("Atmpwe3pritab", "Cbrpri");
inline constexpr auto kTxStSn = entryField("Atmpwe3txsttab", "Atmpwe3sn");
inline constexpr auto kTxStLength = entryField("Atmpwe3txsttab", "Atmpwe3length");
inline constexpr auto kTxStRelayNum = entryField("Atmpwe3txsttab", "Currentrelaynum");
inline constexpr auto kTxStDelayPkt = entryField("Atmpwe3txsttab", "Atmpwe3delaypkt");
inline constexpr auto kTxStPktCnt = entryField("Atmpwe3txsttab", "Atmpwe3txpktcnt");
inline constexpr auto kRxStPktCnt = entryField("Atmpwe3rxsttab", "Atmpwe3rxpktcnt");
inline constexpr auto kRxStLossPkt = entryField("Atmpwe3rxsttab", "Atmpwe3losspkt");
inline constexpr auto kRxStDisorder = entryField("Atmpwe3rxsttab", "Atmpwe3disorderpkt");
inline constexpr auto kRxStFractCell = entryField("Atmpwe3rxsttab", "Atmpwe3fractcell");
inline constexpr auto kRxStExpectSn = entryField("Atmpwe3rxsttab", "Atmpwe3expectsn");
inline constexpr auto kRxStLastSn = entryField("Atmpwe3rxsttab", "Atmpwe3lastsn");
inline constexpr auto kRxStRstCnt = entryField("Atmpwe3rxsttab", "Expectsnrstcnt");
inline constexpr auto kRxStSnChkErr = entryField("Atmpwe3rxsttab", "Pwe3snchkerr");
inline constexpr auto kPktBufData = entryField("Atmpwe3pktbuf", "Pwe3capturepkt");
inline constexpr auto kPktBufSel = entryField("Atmpwe3pktbuf", "Pwe3capturesel");
inline constexpr auto kPktBufEof = entryField("Atmpwe3pktbuf", "Pwe3captureeof");

// ---- Statistics and cell capture ----

inline constexpr uint32_t kLpcc = tableId("Atmswlpcc");
inline constexpr uint32_t kSpcc = tableId("Atmswspcc");
inline constexpr uint32_t kTtcc = tableId("Atmswttcc");
inline constexpr uint32_t kTrcc = tableId("Atmswtrcc");
inline constexpr uint32_t kBmPvcSta = tableId("Atmbmpvcsta");
inline constexpr uint32_t kBmFifoSta = tableId("Atmbmfifosta");
inline constexpr uint32_t kLcapFifo = tableId("Atmswlcapfifo");
inline constexpr uint32_t kScapFifo = tableId("Atmswscapfifo");
inline constexpr auto kLpccRx = entryField("Atmswlpcc", "Lprcc");
inline constexpr auto kLpccTx = entryField("Atmswlpcc", "Lptcc");
inline constexpr auto kSpccRx = entryField("Atmswspcc", "Sprcc");
inline constexpr auto kSpccTx = entryField("Atmswspcc", "Sptcc");
inline constexpr auto kTtccCells = entryField("Atmswttcc", "Ttcc");
inline constexpr auto kTrccCells = entryField("Atmswtrcc", "Trcc");
inline constexpr auto kBmStaDrop = entryField("Atmbmpvcsta", "Atmbmdropcnt");
inline constexpr auto kBmStaNewFrm = entryField("Atmbmpvcsta", "Atmbmnewfrm");
inline constexpr auto kBmStaFd = entryField("Atmbmpvcsta", "Atmbmfdst");
inline constexpr auto kBmStaPfd = entryField("Atmbmpvcsta", "Atmbmpfdst");
inline constexpr auto kBmFifoStaDrop = entryField("Atmbmfifosta", "Atmbmfifodropcnt");
inline constexpr auto kOamStSrcTimer = entryField("Atmswoamst", "Srctimer");
inline constexpr auto kOamStCcTtcc = entryField("Atmswoamst", "Ccttcc");
inline constexpr auto kLcapData = entryField("Atmswlcapfifo", "Lcapdata");
inline constexpr auto kScapData = entryField("Atmswscapfifo", "Scapdata");
// Both capture FIFOs are read at index 1.
inline constexpr uint32_t kCapFifoIndex = 1;

// Cell capture match registers of one side.
struct CaptureRegs {
    uint32_t vpi;   // bits 0..11
    uint32_t vci;   // bits 0..15
    uint32_t port;  // port or PW, its start bit and its match-VCI bit
    uint32_t portWidth;
    uint32_t portStartBit;
    uint32_t matchVciBit;
    uint32_t vcx;       // bits 0..12 VCX, bit 13 start
    uint32_t captured;  // bit 0
    uint32_t fifo;      // capture FIFO table
    EntryField data;
};
inline constexpr uint32_t kCapVcxStartBit = 13;
inline constexpr CaptureRegs kLineCapture{0xA2D8, 0xA2DA, 0xA2DC, 9,         9,
                                          10,     0xA2DE, 0xA2EC, kLcapFifo, kLcapData};
inline constexpr CaptureRegs kSysCapture{0xA2E0, 0xA2E2, 0xA2E4, 11,        11,
                                         12,     0xA2E6, 0xA2EA, kScapFifo, kScapData};

// Alarms.
inline constexpr uint32_t kTabRamBusyReg = 0xA006;  // bit 0, also the DDR2 full alarm
inline constexpr uint32_t kTcamRepeatReg = 0xA294;
inline constexpr uint32_t kTcamRepeatHisReg = 0xA296;
inline constexpr uint32_t kCcFifoNumReg = 0xA286;  // bits 0..1
inline constexpr uint32_t kCcCntReg = 0xA28A;

}  // namespace vq::atm
