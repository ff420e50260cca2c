// What the IMA files share: status codes, trace lines, register and table access helpers and the entry
// fields of the IMA tables.
#pragma once

#include <cstdint>

#include "core/entry_field.h"
#include "core/status.h"
#include "ima/ima_regs.h"
#include "vq6192/core.h"
#include "vq6192/ima.h"
#include "vq6192/table.h"

namespace vq::ima {

inline constexpr uint32_t kErrPara = 1;
inline constexpr uint32_t kErrTimeout = 3;
inline constexpr uint32_t kErrNoEnd = 4;
inline constexpr uint32_t kErrInUse = 6;
inline constexpr uint32_t kErrRefused = 9;
inline constexpr uint32_t kErrNotEnabled = 0xB;

inline constexpr uint32_t kGroups = VQ6192_IMA_GRP_NUM;
inline constexpr uint32_t kLinks = VQ6192_IMA_LINK_NUM;
inline constexpr uint32_t kMaxLid = VQ6192_IMA_MAX_LID;
inline constexpr uint32_t kLinksPerVc4 = 84;
inline constexpr uint32_t kEmptyLink = 511;

// IMA status: module field 13.
constexpr uint32_t status(uint32_t chip, uint32_t err) {
    return makeStatus(chip, VQ6192_ERR_MODULE_IMA, err);
}
// The two codes without chip bits.
constexpr uint32_t bareStatus(uint32_t err) {
    return (VQ6192_ERR_MODULE_IMA << 16) + err;
}

// "ParaErr.\r\n" under module IMA, parameter-error status.
uint32_t paraErr(uint32_t chip);

#define VQ6192_IMA_TRACE(chip, ...) \
    VQ6192_Printf(chip, VQ6192_MODULE_IMA, VQ6192_PRINT_EXCEPTION1_INFO, __VA_ARGS__)

inline uint32_t get(uint32_t chip, Reg r) {
    return VQ6192_ReadRegField(chip, r.addr, r.bit, r.width);
}
inline void set(uint32_t chip, Reg r, uint32_t value) {
    VQ6192_WriteRegField(chip, r.addr, value, r.bit, r.width);
}

// Entries of the per-group and per-link tables: number * (entries per number) + the table's own word
// (Imappgps3 is word 3 of a group) + extra words (the receive link table, the ICP buffer words).
uint32_t entriesPer(uint32_t tableId);
uint32_t wordOf(uint32_t tableId);
inline uint32_t entryIndex(uint32_t tableId, uint32_t number, uint32_t extra = 0) {
    return number * entriesPer(tableId) + wordOf(tableId) + extra;
}

// Whole-entry buffer large enough for any table.
struct Entry {
    uint32_t w[VQ6192_TBL_MAX_WORDS]{};
    uint32_t get(EntryField f) const { return getField(w, f); }
    void set(EntryField f, uint32_t v) { setField(w, f, v); }
};

inline uint32_t readEntry(uint32_t chip, uint32_t tableId, uint32_t index, Entry &e) {
    return VQ6192_Read_Table(chip, tableId, index, e.w);
}
inline uint32_t writeEntry(uint32_t chip, uint32_t tableId, uint32_t index, const Entry &e) {
    return VQ6192_Write_Table(chip, tableId, index, e.w);
}

// Bus waits that tests see on the virtual clock.
void waitTicks(uint32_t ticks);
void waitUs(uint32_t us);

// Drains a transmit link before its enable is toggled: when Txlinken or Rxlinken is set, polls the IMA
// side FIFO depth up to 100 times, 500 us apart. kErrNoEnd (as a bare number) when it never empties;
// a table read error is returned as such.
inline constexpr uint32_t kDrainNeverEnded = 0xFFFFFFFFu;
uint32_t drainTxLink(uint32_t chip, uint32_t link, bool *enabled = nullptr);
// Quiesces a transmit link: drain, then Txlinken 0 and 1. Messages go under `op`.
uint32_t quiesceTxLink(uint32_t chip, uint32_t link, uint32_t i, const char *op, bool *drainFailed);
// Clears Rxidlefilteren of a receive link.
uint32_t clearIdleFilter(uint32_t chip, uint32_t link, uint32_t i);

// Mailbox.
uint32_t runCmd(uint32_t chip, uint32_t code, uint32_t grp, uint32_t p1, uint32_t p2, uint32_t p3);

// Link vectors.
uint32_t txVector(uint32_t numTx, const IMA_TX_LINK *tx);
uint32_t rxVector(uint32_t numRx, const uint16_t *rx, const IMA_TX_LINK *tx, uint32_t symmetryMode);
uint32_t rxPosition(uint32_t i, const uint16_t *rx, const IMA_TX_LINK *tx, uint32_t symmetryMode);

// ---- Table ids and entry fields ----
namespace tbl {
inline constexpr uint32_t kTcRxCfg = tableId("Tcrxlnkcfg");
inline constexpr uint32_t kTcRxSta0 = tableId("Tcrxlnksta0");
inline constexpr uint32_t kTcRxSta1 = tableId("Tcrxlnksta1");
inline constexpr uint32_t kTcRxSta2 = tableId("Tcrxlnksta2");
inline constexpr uint32_t kTcRxImaif = tableId("Tcrximaiflnksta");
inline constexpr uint32_t kTcRxTsif = tableId("Tcrxtsiflnksta");
inline constexpr uint32_t kTcTxCfg = tableId("Tctxlnkcfg");
inline constexpr uint32_t kTcTxSta = tableId("Tctxlnksta");
inline constexpr uint32_t kTcTxImaif = tableId("Tctximaiflnksta");
inline constexpr uint32_t kTcTxTsif = tableId("Tctxtsiflnksta");
inline constexpr uint32_t kPpTxc = tableId("Imapptxc");
inline constexpr uint32_t kPpRxc = tableId("Imapprxc");
inline constexpr uint32_t kPpGpc0 = tableId("Imappgpc0");
inline constexpr uint32_t kPpGpc1 = tableId("Imappgpc1");
inline constexpr uint32_t kPpGpc2 = tableId("Imappgpc2");
inline constexpr uint32_t kPpGpc3 = tableId("Imappgpc3");
inline constexpr uint32_t kPpGpc4 = tableId("Imappgpc4");
inline constexpr uint32_t kPpGpc5 = tableId("Imappgpc5");
inline constexpr uint32_t kPpTxs0 = tableId("Imapptxs0");
inline constexpr uint32_t kPpTxs1 = tableId("Imapptxs1");
inline constexpr uint32_t kPpRxs0 = tableId("Imapprxs0");
inline constexpr uint32_t kPpRxs1 = tableId("Imapprxs1");
inline constexpr uint32_t kPpGps0 = tableId("Imappgps0");
inline constexpr uint32_t kPpGps1 = tableId("Imappgps1");
inline constexpr uint32_t kPpGps2 = tableId("Imappgps2");
inline constexpr uint32_t kPpGps3 = tableId("Imappgps3");
inline constexpr uint32_t kPpGps4 = tableId("Imappgps4");
inline constexpr uint32_t kPpGps5 = tableId("Imappgps5");
inline constexpr uint32_t kPpGps7 = tableId("Imappgps7");
inline constexpr uint32_t kEvent031 = tableId("Readevent031");
inline constexpr uint32_t kEvent32 = tableId("Readevent32");
inline constexpr uint32_t kEvent33 = tableId("Readevent33");
inline constexpr uint32_t kEvent34 = tableId("Readevent34");
inline constexpr uint32_t kIcpFwd = tableId("Icpfwd0");
inline constexpr uint32_t kRxLkCnt0 = tableId("Imarxlkcnt0");
inline constexpr uint32_t kRxLkCnt1 = tableId("Imarxlkcnt1");
inline constexpr uint32_t kRxLkCnt2 = tableId("Imarxlkcnt2");
inline constexpr uint32_t kRxLkCnt3 = tableId("Imarxlkcnt3");
inline constexpr uint32_t kRxUniWCnt2 = tableId("Imarxuniwcnt2");
inline constexpr uint32_t kRxUniWCnt3 = tableId("Imarxuniwcnt3");
inline constexpr uint32_t kRxGpc = tableId("Imarxgpc");
inline constexpr uint32_t kRxIcpVld = tableId("Imarxicpvld");
inline constexpr uint32_t kRxIcpBuf = tableId("Imarxicpbuf0");
inline constexpr uint32_t kRxIcpBuf12 = tableId("Imarxicpbuf12");
inline constexpr uint32_t kRxDly031 = tableId("Imarxrddly031");
inline constexpr uint32_t kRxDly32 = tableId("Imarxrddly32");
inline constexpr uint32_t kRxDly33 = tableId("Imarxrddly33");
inline constexpr uint32_t kRxGpCnt0 = tableId("Imarxgpcnt0");
inline constexpr uint32_t kRxGpCnt1 = tableId("Imarxgpcnt1");
inline constexpr uint32_t kRxUniRCnt0 = tableId("Imarxunircnt0");
inline constexpr uint32_t kRxScvc = tableId("Imarxscvcrr");
inline constexpr uint32_t kTxGps0 = tableId("Imatxgps0");
inline constexpr uint32_t kTxGps1 = tableId("Imatxgps1");
inline constexpr uint32_t kTxGps2 = tableId("Imatxgps2");
inline constexpr uint32_t kTxGps3 = tableId("Imatxgps3");
inline constexpr uint32_t kTxIcpBuf = tableId("Imatxicpbuf0");
inline constexpr uint32_t kTxGpc = tableId("Imatxgpc");
inline constexpr uint32_t kTxMap = tableId("Imatxmaptbl0");
inline constexpr uint32_t kTxLks0 = tableId("Imatxlks0");
inline constexpr uint32_t kTxLks1 = tableId("Imatxlks1");
inline constexpr uint32_t kTxLkc = tableId("Imatxlkc");
inline constexpr uint32_t kTxLinkInGp = tableId("Imatxlinkingp");
inline constexpr uint32_t kTxGpDepth = tableId("Imatxgpdepth");
}  // namespace tbl

namespace fld {
// ATM TC links.
inline constexpr EntryField kRxLinkEn = entryField("Tcrxlnkcfg", "Rxlinken");
inline constexpr EntryField kRxScramblerEn = entryField("Tcrxlnkcfg", "Rxscrambleren");
inline constexpr EntryField kRxPloyAddEn = entryField("Tcrxlnkcfg", "Rxployadden");
inline constexpr EntryField kRxBitReverseEn = entryField("Tcrxlnkcfg", "Rxbitreverseen");
inline constexpr EntryField kRxHecCorrectEn = entryField("Tcrxlnkcfg", "Rxheccorrecten");
inline constexpr EntryField kRxIdleFilterEn = entryField("Tcrxlnkcfg", "Rxidlefilteren");
inline constexpr EntryField kRxHecFilterEn = entryField("Tcrxlnkcfg", "Rxhecfilteren");
inline constexpr EntryField kRxOcdFilterEn = entryField("Tcrxlnkcfg", "Rxocdfilteren");
inline constexpr EntryField kRxCdfsmAlpha = entryField("Tcrxlnkcfg", "Rxcdfsmalpha");
inline constexpr EntryField kRxCdfsmDelta = entryField("Tcrxlnkcfg", "Rxcdfsmdelta");
inline constexpr EntryField kRxHecCorrectM = entryField("Tcrxlnkcfg", "Rxheccorrectm");
inline constexpr EntryField kRxLcdTimer = entryField("Tcrxlnkcfg", "Rxlcdtimer");
inline constexpr EntryField kRxHeader = entryField("Tcrxlnkcfg", "Rxheader");
inline constexpr EntryField kRxHeaderMask = entryField("Tcrxlnkcfg", "Rxheadermask");
inline constexpr EntryField kTxLinkEn = entryField("Tctxlnkcfg", "Txlinken");
inline constexpr EntryField kTxScramblerEn = entryField("Tctxlnkcfg", "Txscrambleren");
inline constexpr EntryField kTxPloyAddEn = entryField("Tctxlnkcfg", "Txployadden");
inline constexpr EntryField kTxBitReverseEn = entryField("Tctxlnkcfg", "Txbitreverseen");
inline constexpr EntryField kTxIdleInsertEn = entryField("Tctxlnkcfg", "Txidleinserten");
inline constexpr EntryField kTxHecInsertType = entryField("Tctxlnkcfg", "Txhecinserttype");
inline constexpr EntryField kTxHecInsertData = entryField("Tctxlnkcfg", "Txhecinsertdata");
inline constexpr EntryField kTxIdleHead4 = entryField("Tctxlnkcfg", "Txidlecellhead4");
inline constexpr EntryField kTxIdleHead3 = entryField("Tctxlnkcfg", "Txidlecellhead3");
inline constexpr EntryField kTxIdleHead2 = entryField("Tctxlnkcfg", "Txidlecellhead2");
// The first idle header octet sits below Txidlecellhead2 and has no member of its own.
inline constexpr EntryField kTxIdleHead1{tbl::kTcTxCfg, 0, 8};
inline constexpr EntryField kTxImaifDepth = entryField("Tctximaiflnksta", "Depth");
inline constexpr EntryField kRxLcdWarn = entryField("Tcrxlnksta2", "Rxlcdwarn");
inline constexpr EntryField kRxOcdWarn = entryField("Tcrxlnksta2", "Rxocdwarn");

// Processor link configuration and status.
inline constexpr EntryField kTxConfigEn = entryField("Imapptxc", "Txconfigen");
inline constexpr EntryField kTxGroupTag = entryField("Imapptxc", "Txlinkgrouptag");
inline constexpr EntryField kTxLid = entryField("Imapptxc", "Txlid");
inline constexpr EntryField kRxConfigEn = entryField("Imapprxc", "Rxconfigen");
inline constexpr EntryField kRxGroupTag = entryField("Imapprxc", "Rxlinkgrouptag");
inline constexpr EntryField kTxsLinkEn = entryField("Imapptxs0", "Txlinken");
inline constexpr EntryField kNetxlsm = entryField("Imapptxs0", "Netxlsm");
inline constexpr EntryField kFerxlsm = entryField("Imapptxs0", "Ferxlsm");
inline constexpr EntryField kTxPmUus = entryField("Imapptxs0", "Txlinkpmuus");
inline constexpr EntryField kTxPmUusCause = entryField("Imapptxs0", "Txlinkpmuuscause");
inline constexpr EntryField kFerxDefect = entryField("Imapptxs1", "Ferxdefect");
inline constexpr EntryField kRxsLinkEn = entryField("Imapprxs0", "Rxlinken");
inline constexpr EntryField kNerxlsm = entryField("Imapprxs0", "Nerxlsm");
inline constexpr EntryField kRxsLid = entryField("Imapprxs0", "Rxlid");
inline constexpr EntryField kFetxlsm = entryField("Imapprxs0", "Fetxlsm");
inline constexpr EntryField kRxPmUus = entryField("Imapprxs0", "Rxlinkpmuus");
inline constexpr EntryField kRxPmUusCause = entryField("Imapprxs0", "Rxlinkpmuuscause");
inline constexpr EntryField kNeLif = entryField("Imapprxs1", "Nelif");
inline constexpr EntryField kNeLodsOvr = entryField("Imapprxs1", "Nelodsoverrun");
inline constexpr EntryField kNeLodsUdr = entryField("Imapprxs1", "Nelodsunderrun");
inline constexpr EntryField kNeDelayGood = entryField("Imapprxs1", "Nelinkdelaygood");

// Processor group configuration.
inline constexpr EntryField kGpOamLabel = entryField("Imappgpc0", "Gpimaoamlabel");
inline constexpr EntryField kGpSymMode = entryField("Imappgpc0", "Gpsymmode");
inline constexpr EntryField kGpAutoRstEn = entryField("Imappgpc0", "Gpautorsten");
inline constexpr EntryField kTxImaId = entryField("Imappgpc1", "Tximaid");
inline constexpr EntryField kTxImaM = entryField("Imappgpc1", "Tximam");
inline constexpr EntryField kTxMinNum = entryField("Imappgpc1", "Txminnum");
inline constexpr EntryField kTxClkMode = entryField("Imappgpc1", "Txclkmode");
inline constexpr EntryField kRxImaIdCfgEn = entryField("Imappgpc2", "Rximaidcfgen");
inline constexpr EntryField kRxImaIdCfg = entryField("Imappgpc2", "Rximaidcfg");
inline constexpr EntryField kRxMinNum = entryField("Imappgpc2", "Rxminmum");
inline constexpr EntryField kRxImaMEn = entryField("Imappgpc2", "Rximamen");
inline constexpr EntryField kRxDefectRpt = entryField("Imappgpc2", "Rxdefectrpt");
inline constexpr EntryField kTxChgTrlEn = entryField("Imappgpc2", "Txchgtrlen");
inline constexpr EntryField kTrlTimeoutMax = entryField("Imappgpc2", "Trltimeoutmax");
inline constexpr EntryField kAutoLasrEn = entryField("Imappgpc3", "Autolasren");
inline constexpr EntryField kRxPhyLink[3] = {entryField("Imappgpc5", "Rxphylink0"),
                                             entryField("Imappgpc5", "Rxphylink1"),
                                             entryField("Imappgpc5", "Rxphylink2")};

// Processor group status.
inline constexpr EntryField kGroupEn = entryField("Imappgps0", "Groupen");
inline constexpr EntryField kNegsmSt = entryField("Imappgps0", "Negsmst");
inline constexpr EntryField kNegtsmSt = entryField("Imappgps0", "Negtsmst");
inline constexpr EntryField kGwpActive = entryField("Imappgps0", "Gwpactive");
inline constexpr EntryField kFegsm = entryField("Imappgps0", "Fegsm");
inline constexpr EntryField kNumTxActive = entryField("Imappgps0", "Numtxlinkactive");
inline constexpr EntryField kNumRxActive = entryField("Imappgps0", "Numrxlinkactive");
inline constexpr EntryField kInhibitStatus = entryField("Imappgps0", "Groupinhibitstatus");
inline constexpr EntryField kTimingError = entryField("Imappgps0", "Grouptimingerror");
inline constexpr EntryField kRxTestPattern = entryField("Imappgps1", "Rxtestpattern");
inline constexpr EntryField kRxTestEn = entryField("Imappgps1", "Rxtesten");
inline constexpr EntryField kTxTrlChange = entryField("Imappgps1", "Txtrlchange");
inline constexpr EntryField kTxTrlPhyId = entryField("Imappgps1", "Txtrlphyid");
inline constexpr EntryField kTxTestEn = entryField("Imappgps1", "Txtesten");
inline constexpr EntryField kTxTestLid = entryField("Imappgps1", "Txtestlid");
inline constexpr EntryField kTxTestPattern = entryField("Imappgps1", "Txtestpattern");
inline constexpr EntryField kTxPhyValid = entryField("Imappgps2", "Txphyvalid");
inline constexpr EntryField kTxLasrAct = entryField("Imappgps2", "Txlasract");
inline constexpr EntryField kFeFrameM = entryField("Imappgps3", "Feframem");
inline constexpr EntryField kFeRxImaId = entryField("Imappgps3", "Ferximaid");
inline constexpr EntryField kRxPhyValid = entryField("Imappgps3", "Rxphyvalid");
inline constexpr EntryField kRxLasrAct = entryField("Imappgps4", "Rxlasract");
inline constexpr EntryField kRxTestMatch = entryField("Imappgps4", "Rxtestpatternmatch");
inline constexpr EntryField kRxTrlPhyId = entryField("Imappgps5", "Rxtrlphyid");
inline constexpr EntryField kRxTrlLid = entryField("Imappgps5", "Rxtrllid");

// Receive side.
inline constexpr EntryField kRxDelayTol = entryField("Imarxgpc", "Rxdelaytol");
inline constexpr EntryField kDcbThresh = entryField("Imarxgpc", "Dcbthresh");
inline constexpr EntryField kScvcThresh = entryField("Imarxgpc", "Scvcthresh");
inline constexpr EntryField kIcpVldOffset = entryField("Imarxicpvld", "Icpoffset");
inline constexpr EntryField kScvcEn = entryField("Imarxscvcrr", "Scvcen");
inline constexpr EntryField kScvcGroupTag = entryField("Imarxscvcrr", "Scvcgrouptag");

// Transmit side.
inline constexpr EntryField kTren = entryField("Imatxgpc", "Tren");
inline constexpr EntryField kTrgp = entryField("Imatxgpc", "Trgp");
inline constexpr EntryField kTxRefLid = entryField("Imatxgpc", "Txreflid");
inline constexpr EntryField kTxm = entryField("Imatxgpc", "Txm");
inline constexpr EntryField kStuffAdvMode = entryField("Imatxgpc", "Stuffadvmode");
inline constexpr EntryField kStuffEn = entryField("Imatxgpc", "Stuffen");
inline constexpr EntryField kTxOamLabel = entryField("Imatxgpc", "Txoamlabel");
inline constexpr EntryField kTxCh = entryField("Imatxmaptbl0", "Txch");
inline constexpr EntryField kTxLkcIcpOffset = entryField("Imatxlkc", "Icpoffset");
inline constexpr EntryField kTxGpDepth = entryField("Imatxgpdepth", "Depth");
inline constexpr EntryField kStuffEventCnt = entryField("Imatxlks1", "Stuffeventcnt");
inline constexpr EntryField kImaUserCellCnt = entryField("Imatxlks1", "Imausercellcnt");
}  // namespace fld

}  // namespace vq::ima
