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

}  // namespace vq::atm
