// PPP registers (byte addresses) and the fields of the PPP tables.
#pragma once

#include <cstdint>

#include "core/entry_field.h"

namespace vq::ppp {

// A register field: address, lowest bit, width.
struct RegField {
    uint32_t addr;
    uint32_t startBit;
    uint32_t width;
};

// VC-4 PPP enable: bit n enables VC-4 PPP channel n.
inline constexpr uint32_t kVc4EnableReg = 0x10048;
inline constexpr uint32_t kVc4EnableBit = 0;
inline constexpr uint32_t kVc4EnableWidth = 4;

// Inner channel number of an enabled VC-4 PPP channel n: n * 512.
inline constexpr uint32_t kVc4InnerStride = 512;

// ---- channel layer ----
inline constexpr RegField kVc4Enable{0x10048, 0, 4};
inline constexpr RegField kMpMode{0x1004A, 0, 1};
inline constexpr uint32_t kScramblerReg = 0x11000;    // bit n: VC-4 channel n
inline constexpr uint32_t kDescramblerReg = 0x11002;  // bit n: VC-4 channel n
inline constexpr RegField kInitReg11010{0x11010, 0, 10};
inline constexpr uint32_t kChanModeBase = 0x11200;  // + 2 * inner: COBC mode and CRC correction
inline constexpr uint32_t kCobcModeBit = 1, kCobcModeWidth = 2;
inline constexpr uint32_t kCorrectBit = 3, kCorrectWidth = 2;
inline constexpr uint32_t kSchModeReg = 0x12000;  // bit 0 PPP, bit 1 MP (low bit)
inline constexpr RegField kDFifoHigh{0x12022, 0, 12};
inline constexpr RegField kDFifoLow{0x12024, 0, 12};
inline constexpr RegField kResetReady{0x12202, 0, 1};
inline constexpr RegField kChanReset{0x12216, 0, 12};
inline constexpr uint32_t kChanResetStrobe = 0x800;
inline constexpr uint32_t kInitReg1220A = 0x1220A;
inline constexpr RegField kInitReg1220C{0x1220C, 0, 4};
inline constexpr RegField kUnidentifyMode{0x13004, 0, 2};
inline constexpr RegField kDcnEnable{0x13006, 0, 1};
inline constexpr RegField kEsptEnable{0x13008, 0, 1};
inline constexpr uint32_t kDcnLabelHigh = 0x1301E, kDcnLabelLow = 0x13020;
inline constexpr uint32_t kDcnMaskHigh = 0x13022, kDcnMaskLow = 0x13024;
inline constexpr RegField kCfgPrtcEnable{0x13066, 0, 1};
inline constexpr uint32_t kCfgPrtcValue = 0x13068;
inline constexpr uint32_t kCfgPrtcCntLow = 0x1306A, kCfgPrtcCntHigh = 0x1306C;
inline constexpr RegField kMpAbortThld{0x130D4, 0, 8};

// ---- bundles ----
inline constexpr uint32_t kGroupResetReq = 0x13080;  // + 2 * (bundle / 16), bit bundle % 16
inline constexpr uint32_t kGroupResetAck = 0x130A0;
inline constexpr uint32_t kBundleEnable = 0x13240;
inline constexpr uint32_t kIngressSnFormat = 0x13260;
inline constexpr RegField kMaxFragNum{0x130C6, 0, 7};
inline constexpr RegField kBundleReset{0x12218, 0, 9};
inline constexpr uint32_t kBundleResetStrobe = 0x100;

// ---- statistics, tests and capture ----
inline constexpr RegField kTestRxEnable{0x13400, 0, 1};
inline constexpr uint32_t kTestSendTimeSlot = 0x13402, kTestTxProType = 0x13404, kTestRxProType = 0x13406;
inline constexpr RegField kDdrCapRun{0x13600, 13, 1};
inline constexpr RegField kDdrCapCount{0x13600, 0, 13};
inline constexpr RegField kDdrCapDirect{0x13602, 0, 1};
inline constexpr RegField kDdrReadClear{0xC002, 7, 1};
inline constexpr uint32_t kDdrCapBase = 0x2000000;
inline constexpr uint32_t kDdrCapRegionShift = 19;
inline constexpr RegField kCobcStart{0x11012, 0, 1};
inline constexpr RegField kCobcChannel{0x11012, 1, 11};
inline constexpr RegField kCobcClear{0x11014, 0, 1};
inline constexpr RegField kCobcRead{0x11018, 0, 1};
inline constexpr RegField kCobcReady{0x1101C, 0, 1};
inline constexpr uint32_t kCobcData = 0x1101E;
inline constexpr RegField kCobcFlags{0x11020, 0, 3};
inline constexpr RegField kFifoCapType{0x1300C, 0, 1};
inline constexpr RegField kFifoCapStart{0x1300C, 1, 1};
inline constexpr RegField kFifoCapChannel{0x1300E, 0, 11};
inline constexpr RegField kFifoCapReady{0x13010, 0, 1};
inline constexpr RegField kFifoCapRead{0x13014, 0, 1};
inline constexpr RegField kFifoCapAck{0x13016, 0, 1};
inline constexpr uint32_t kFifoCapData0 = 0x13018, kFifoCapData1 = 0x1301A;
inline constexpr RegField kFifoCapFlags{0x1301C, 0, 3};

// ---- tables ----
inline constexpr EntryField kMploopen = entryField("Mprxmhdlccfg1", "Mploopen");
inline constexpr EntryField kMprxmlinken = entryField("Mprxmhdlccfg1", "Mprxmlinken");
inline constexpr EntryField kMprxmlinktype0 = entryField("Mprxmhdlccfg1", "Mprxmlinktype0");
inline constexpr EntryField kMprxmlinktype1 = entryField("Mprxmhdlccfg2", "Mprxmlinktype1");
inline constexpr EntryField kMprxmlinkmpsn = entryField("Mprxmhdlccfg2", "Mprxmlinkmpsn");
inline constexpr EntryField kLoopen = entryField("Linkcfg", "Loopen");
inline constexpr EntryField kTesttxen = entryField("Linkcfg", "Testtxen");
inline constexpr EntryField kLinkacfc = entryField("Linkcfg", "Linkacfc");
inline constexpr EntryField kLinkpfc = entryField("Linkcfg", "Linkpfc");
inline constexpr EntryField kLinkmp = entryField("Linkcfg", "Linkmp");
inline constexpr EntryField kLinkmpen = entryField("Linkcfg", "Linkmpen");
inline constexpr EntryField kLinkpppen = entryField("Linkcfg", "Linkpppen");
inline constexpr EntryField kRCrcfe = entryField("Rppucfg", "Crcfe");
inline constexpr EntryField kRChcen = entryField("Rppucfg", "Chcen");
inline constexpr EntryField kRFillmod = entryField("Rppucfg", "Fillmod");
inline constexpr EntryField kRCrcmod = entryField("Rppucfg", "Crcmod");
inline constexpr EntryField kRDie = entryField("Rppucfg", "Die");
inline constexpr EntryField kRxpldet = entryField("Rppucfg", "Rxpldet");
inline constexpr EntryField kRxmtu = entryField("Rppucfg", "Rxmtu");
inline constexpr EntryField kRxmintu = entryField("Rppucfg", "Rxmintu");
inline constexpr EntryField kTCrcfe = entryField("Tppucfg", "Crcfe");
inline constexpr EntryField kTChcen = entryField("Tppucfg", "Chcen");
inline constexpr EntryField kTxaifs = entryField("Tppucfg", "Txaifs");
inline constexpr EntryField kTxifs = entryField("Tppucfg", "Txifs");
inline constexpr EntryField kTxcfcs = entryField("Tppucfg", "Txcfcs");
inline constexpr EntryField kTxfmod = entryField("Tppucfg", "Txfmod");
inline constexpr EntryField kTFillmod = entryField("Tppucfg", "Fillmod");
inline constexpr EntryField kTCrcmod = entryField("Tppucfg", "Crcmod");
inline constexpr EntryField kTDie = entryField("Tppucfg", "Die");
inline constexpr EntryField kTBytefe = entryField("Tppucfg", "Bytefe");
inline constexpr EntryField kRxafi = entryField("Afidcfg", "Rxafi");
inline constexpr EntryField kMpv = entryField("Afidcfg", "Mpv");
inline constexpr EntryField kACrcmod = entryField("Afidcfg", "Crcmod");
inline constexpr EntryField kABytefe = entryField("Afidcfg", "Bytefe");
inline constexpr EntryField kPppcfgen = entryField("Pppencfg", "Pppcfgen");
inline constexpr EntryField kQmen = entryField("Qmencfg", "Qmen");
inline constexpr EntryField kHdDisth = entryField("Hdfccfg", "Disth");
inline constexpr EntryField kHdCgtth = entryField("Hdfccfg", "Cgtth");
inline constexpr EntryField kHdUncgtth = entryField("Hdfccfg", "Uncgtth");
inline constexpr EntryField kPppwgt0 = entryField("Pppwgtcfg", "Pppwgt0");
inline constexpr EntryField kCsptpppen = entryField("Mprpcsptcfg1", "Csptpppen");
inline constexpr EntryField kCsptmpen = entryField("Mprpcsptcfg2", "Csptmpen");
inline constexpr EntryField kMpacfc = entryField("Fragcfg", "Mpacfc");
inline constexpr EntryField kMppfc = entryField("Fragcfg", "Mppfc");
inline constexpr EntryField kMpsntype = entryField("Fragcfg", "Mpsntype");
inline constexpr EntryField kMpgran = entryField("Fragcfg", "Mpgran");
inline constexpr EntryField kMprgrptmrthld = entryField("Mprgrpcfg", "Mprgrptmrthld");
inline constexpr EntryField kMprpmrru = entryField("Mprpmrrucfg", "Mprpmrru");
inline constexpr EntryField kMprxmmphth = entryField("Mprxmmpcfg1", "Mprxmmphth");
inline constexpr EntryField kMprxmmplth = entryField("Mprxmmpcfg1", "Mprxmmplth");
inline constexpr EntryField kMcDisth = entryField("Mcfccfg", "Disth");
inline constexpr EntryField kMcCgtth = entryField("Mcfccfg", "Cgtth");
inline constexpr EntryField kMcUncgtth = entryField("Mcfccfg", "Uncgtth");
inline constexpr EntryField kMcqstCnt = entryField("Mcqst", "Cnt");
inline constexpr EntryField kMpwgt0 = entryField("Mpwgtcfg", "Mpwgt0");
inline constexpr EntryField kSnctrlnum0 = entryField("Snctrlcfg", "Snctrlnum0");
inline constexpr EntryField kSnctrlen0 = entryField("Snctrlcfg", "Snctrlen0");
inline constexpr EntryField kGpen = entryField("Mpskyeyecfg", "Gpen");
inline constexpr EntryField kGplink = entryField("Mpskyeyecfg", "Gplink");
inline constexpr EntryField kMptesttxen = entryField("Mptesttxen", "Mptesttxen");
inline constexpr EntryField kMptestrefstat = entryField("Mptestrefstat", "Mptestrefstat");
inline constexpr uint32_t kMplooptimestp = tableId("Mplooptimestp");
inline constexpr uint32_t kRppustat = tableId("Rppustat");
inline constexpr uint32_t kTppustat = tableId("Tppustat");
inline constexpr EntryField kMprxmlinkcnt = entryField("Mprxmhdlcpktcnt", "Mprxmlinkcnt");
inline constexpr uint32_t kMprgrppktcnt = tableId("Mprgrppktcnt");
inline constexpr EntryField kMprpbytecnt = entryField("Mprpbytecnt", "Mprpbytecnt");
inline constexpr EntryField kMprxmmpb = entryField("Mprxmbecnt", "Mprxmmpb");
inline constexpr EntryField kMprxmmpe = entryField("Mprxmbecnt", "Mprxmmpe");
inline constexpr EntryField kRxmmccnt = entryField("Mprxmmccnt", "Rxmmccnt");
inline constexpr EntryField kMprpkt = entryField("Mprpkt", "Mprpkt");
inline constexpr EntryField kMprbyte = entryField("Mprbyte", "Mprbyte");

// Entries of the shared queue enable table: links 0..2047 at entry link / 8, bundles at 256 + bundle.
inline constexpr uint32_t kQmenBundleBase = 256;
// Stride of the per-member counter tables (Rppustat, Tppustat) and of Mprgrppktcnt.
inline constexpr uint32_t kLinkStatStride = 0x800;
inline constexpr uint32_t kBundleStatStride = 256;

}  // namespace vq::ppp
