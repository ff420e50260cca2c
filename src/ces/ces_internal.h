// CES registers, table fields and the helpers the CES operations share.
#pragma once

#include <cstdint>

#include "core/entry_field.h"
#include "core/reg_field.h"
#include "core/status.h"
#include "vq6192/ces.h"
#include "vq6192/core.h"
#include "vq6192/table.h"

namespace vq::ces {

// ---- Per-channel registers (ch = CES channel, 2 bytes apart) -------------------------------------------
inline constexpr uint32_t kChanCtrlReg = 0x15000;  // bit 0 enable, 1 reset, 2 compensation, 3 flow control
inline constexpr uint32_t kEnableBit = 0;
inline constexpr uint32_t kResetBit = 1;
inline constexpr uint32_t kCompensationBit = 2;
inline constexpr uint32_t kCtrlFcBit = 3;
inline constexpr uint32_t kJbDelayReg = 0x15400;  // bits 0..14
inline constexpr uint32_t kFramNumReg = 0x15800;  // bits 0..5 frames per packet, 6..10 clock select
inline constexpr uint32_t kJbDepthReg = 0x15C00;  // bits 0..14
inline constexpr uint32_t kJbWidth = 15;
inline constexpr uint32_t kFramNumWidth = 6;
inline constexpr uint32_t kClkSelBit = 6;
inline constexpr uint32_t kClkSelWidth = 5;
inline constexpr uint32_t kCreatedReg = 0x16000;  // bit ch mod 16 of 0x16000 + 2 (ch / 16)
inline constexpr uint32_t kDrainReg = 0x16C00;    // bits 3 and 4: drained; bits 0..13 history FIFO alarms
inline constexpr uint32_t kChanAlmReg = 0x14200;  // bits 0..5 current
inline constexpr uint32_t kChanAlmHisReg = 0x14600;
inline constexpr uint32_t kFeSnTypeReg = 0x16800;  // bits 0..1, read only

// ---- Chip-wide registers ------------------------------------------------------------------------------
inline constexpr uint32_t kFifoAlmReg = 0x14028;
inline constexpr uint32_t kFifoAlmHisReg = 0x1402A;
inline constexpr uint32_t kFifoThldReg = 0x1402C;   // bits 0..10
inline constexpr uint32_t kEmptyCodeReg = 0x1402E;  // bits 0..7
inline constexpr uint32_t kRInsertCodeReg = 0x14038;
inline constexpr uint32_t kLInsertCodeReg = 0x1403C;
inline constexpr uint32_t kAlmThld1Reg = 0x1403E;  // bits 0..7
inline constexpr uint32_t kAlmThld2Reg = 0x14040;
inline constexpr uint32_t kObligateRecReg = 0x14042;
inline constexpr uint32_t kLoopBackReg = 0x14046;  // bit 0 CES, bit 1 VC-4 CES
inline constexpr uint32_t kPlcCodeReg = 0x14050;
inline constexpr uint32_t kSohReg = 0x1405C;  // bit k: VC-4 k's overhead on channel k
inline constexpr uint32_t kVc4JstThldReg = 0x1405E;
inline constexpr uint32_t kVc4UnloadReg = 0x14064;  // bit vc4 (A), bit vc4 + 4 (B)
inline constexpr uint32_t kRevRThldReg = 0x163A8;   // ten registers
inline constexpr uint32_t kTuaisReg = 0x163BC;
inline constexpr uint32_t kTuaisCfgTimeReg = 0x16EF6;  // bits 0..5
inline constexpr uint32_t kInitMiscReg = 0x1404E;
inline constexpr uint32_t kInitMiscReg2 = 0x14006;  // bits 0..8

// ---- Tables -------------------------------------------------------------------------------------------
inline constexpr auto kTxLtssel = entryField("Cestxcwrtp", "Txltssel");
inline constexpr auto kTxRevren = entryField("Cestxcwrtp", "Txrevren");
inline constexpr auto kTxDiffclken = entryField("Cestxcwrtp", "Txdiffclken");
inline constexpr auto kTxSngenmode = entryField("Cestxcwrtp", "Txsngenmode");
inline constexpr auto kTxSsrc = entryField("Cestxcwrtp", "Txssrc");
inline constexpr auto kTxRtppt = entryField("Cestxcwrtp", "Txrtppt");
inline constexpr auto kTxCwlrm = entryField("Cestxcwrtp", "Txcwlrm");
inline constexpr auto kTxRtpcw = entryField("Cestxcwrtp", "Txrtpcw");
inline constexpr auto kTxRtpen = entryField("Cestxcwrtp", "Txrtpen");

inline constexpr auto kRxSngenmode = entryField("Cesrxcwrtp", "Rxsngenmode");
inline constexpr auto kSnerrdropen = entryField("Cesrxcwrtp", "Snerrdropen");
inline constexpr auto kPterrdropen = entryField("Cesrxcwrtp", "Pterrdropen");
inline constexpr auto kSsrcerrdropen = entryField("Cesrxcwrtp", "Ssrcerrdropen");
inline constexpr auto kLenerrdropen = entryField("Cesrxcwrtp", "Lenerrdropen");
inline constexpr auto kRxerrdropen = entryField("Cesrxcwrtp", "Rxerrdropen");
inline constexpr auto kLctrl = entryField("Cesrxcwrtp", "Lctrl");
inline constexpr auto kRctrl = entryField("Cesrxcwrtp", "Rctrl");
inline constexpr auto kRevrctrl = entryField("Cesrxcwrtp", "Revrctrl");
inline constexpr auto kLmctrl = entryField("Cesrxcwrtp", "Lmctrl");
inline constexpr auto kRxSsrc = entryField("Cesrxcwrtp", "Rxssrc");
inline constexpr auto kRxRtppt = entryField("Cesrxcwrtp", "Rxrtppt");
inline constexpr auto kRxRtpcw = entryField("Cesrxcwrtp", "Rxrtpcw");
inline constexpr auto kRxRtpen = entryField("Cesrxcwrtp", "Rxrtpen");

inline constexpr auto kTxTsMask = entryField("Cestxtsmask", "Cestxtsmask");
inline constexpr auto kRxTsMask = entryField("Cesrxtsmask", "Cesrxtsmask");
inline constexpr auto kIdleCode = entryField("Cesidlecode", "Cesidlecode");

inline constexpr auto kMapChnen = entryField("Cestxpkgchnmap", "Chnen");
inline constexpr auto kMapAisen = entryField("Cestxpkgchnmap", "Aisen");
inline constexpr auto kMapRdien = entryField("Cestxpkgchnmap", "Rdien");
inline constexpr auto kMapChnmap = entryField("Cestxpkgchnmap", "Chnmap");

// ---- Values -------------------------------------------------------------------------------------------
inline constexpr uint32_t kJbMax = 0x5400;  // depth and delay below 21504
inline constexpr uint32_t kFreeIdleCode = 0xDF;
inline constexpr uint32_t kFreeFramNum = 7;
inline constexpr uint32_t kFreeJbDepth = 63;
inline constexpr uint32_t kFreeJbDelay = 31;
inline constexpr uint32_t kAllTs = 0xFFFFFFFFu;
inline constexpr uint32_t kTs1To31 = 0xFFFFFFFEu;
inline constexpr uint32_t kT1Ts = 0x00FFFFFFu;
inline constexpr uint32_t kSvcCes = 3;    // timeslot routing service type
inline constexpr uint32_t kSpeed64k = 3;  // timeslot speed code

inline bool isE1Chan(uint32_t ch) {
    return ch < VQ6192_CES_E1_CHAN_NUM;
}
inline bool validChan(uint32_t ch) {
    return ch < VQ6192_CES_CHAN_NUM;
}
inline uint32_t chanReg(uint32_t base, uint32_t ch) {
    return base + 2 * ch;
}

inline uint32_t status(uint32_t chip, uint32_t err) {
    return makeStatus(chip, VQ6192_MODULE_CES, err);
}
inline uint32_t paraErr(uint32_t chip) {
    return vq::paraErr(chip, VQ6192_MODULE_CES);
}

// A table entry of the CES block, read, changed and written back whole.
struct Entry {
    uint32_t w[VQ6192_TBL_MAX_WORDS] = {};
};
uint32_t readEntry(uint32_t chip, uint32_t table, uint32_t index, Entry &e);
uint32_t writeEntry(uint32_t chip, uint32_t table, uint32_t index, const Entry &e);

// Traces a failed step, "Err. <op>.<callee>       ErrCode[%#x]\r\n" where callee is the called
// operation with its arguments, and returns the CES error `err`.
uint32_t stepFailed(uint32_t chip, const char *op, uint32_t err, uint32_t rc, const char *calleeFormat, ...)
    __attribute__((format(printf, 5, 6)));

// The channel kinds' free state, as after deletion.
uint32_t clearLrm(uint32_t chip, uint32_t ch);
void setFlag(uint32_t chip, uint32_t reg, uint32_t bit, uint32_t value);

}  // namespace vq::ces
