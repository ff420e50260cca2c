// Packet engine (PMU), Ethernet port, SerDes and self-test registers (byte addresses), and the
// Ethernet lookup tables and MAC register files with their fields.
#pragma once

#include <cstdint>

#include "core/entry_field.h"

namespace vq::eth {

// A register field: address, lowest bit, width.
struct Field {
    uint32_t addr;
    uint32_t bit;
    uint32_t width;
};

// ---- Packet engine: pattern control and global header attributes ------------------------------
inline constexpr uint32_t kPtnCtrlReg = 0x8100;  // bit 14 byPtnLenLocSel .. bit 0 byToCpuEn
inline constexpr uint32_t kPtnCtrlFields = 15;
inline constexpr Field kPauseDaSel{kPtnCtrlReg, 10, 1};
inline constexpr Field kMpPauseSel{kPtnCtrlReg, 9, 1};
inline constexpr Field kPtnPauseEn{kPtnCtrlReg, 8, 1};
inline constexpr Field kIdtProtlMode{kPtnCtrlReg, 3, 1};
inline constexpr Field kVlanDisable{kPtnCtrlReg, 2, 1};
inline constexpr Field kCpuInsertEn{kPtnCtrlReg, 1, 1};
inline constexpr Field kToCpuEn{kPtnCtrlReg, 0, 1};

inline constexpr uint32_t kIpDaChkHighReg = 0x810A;
inline constexpr uint32_t kIpDaChkLowReg = 0x810C;
inline constexpr uint32_t kPppProtoValue1Reg = 0x810E;
inline constexpr uint32_t kPppProtoValue2Reg = 0x8110;
inline constexpr uint32_t kGreProtType0Reg = 0x8112;
inline constexpr uint32_t kGreProtType1Reg = 0x8114;
inline constexpr uint32_t kPauseParaReg = 0x8116;  // four words, 0x8116..0x811C
// IP protocol numbers of the IP encapsulations (set by the chip, read only here).
inline constexpr Field kIpProtoGre{0x811E, 0, 8};     // encapsulation 4
inline constexpr Field kIpProtoUdp{0x811E, 8, 8};     // encapsulation 5
inline constexpr Field kIpProtoMplsIp{0x8120, 0, 8};  // encapsulation 3
inline constexpr Field kIngPws{0x8122, 0, 1};
inline constexpr uint32_t kUdpSrcPortReg = 0x8124;
inline constexpr Field kIpVer{0x8126, 4, 4};
inline constexpr Field kIpIhl{0x8126, 0, 4};
inline constexpr uint32_t kIpIdentReg = 0x8128;
inline constexpr Field kIpFlags{0x812A, 13, 3};
inline constexpr Field kIpFrmOffset{0x812A, 0, 13};
inline constexpr Field kGreVer{0x812C, 0, 3};
inline constexpr Field kCpuHeadEn{0x812E, 6, 1};
inline constexpr Field kCpuHeadLen{0x812E, 0, 6};
inline constexpr Field kCpuHeadValue1{0x8130, 0, 8};
inline constexpr Field kCpuHeadValue2{0x8130, 8, 8};

// ---- Protocol pairs and CPU protocol entries ---------------------------------------------------
inline constexpr uint32_t kUpActiveReg = 0x8146;     // pairs 0..15; 0x8148 pairs 16..31
inline constexpr uint32_t kDownActiveReg = 0x814A;   // pairs 0..15; 0x814C pairs 16..31
inline constexpr uint32_t kUpPppProtoReg = 0x8180;   // + 2 * pair
inline constexpr uint32_t kDownEthTypeReg = 0x81C0;  // + 2 * pair
inline constexpr uint32_t kProtoPairs = 32;
inline constexpr uint32_t kCpuProtoActiveReg = 0x8206;
inline constexpr uint32_t kCpuProtoPppReg = 0x8220;  // + 2 * index
inline constexpr uint32_t kCpuProtoEntries = 16;

// ---- In-label bases ------------------------------------------------------------------------------
inline constexpr Field kMplsBaseHigh{0x8200, 0, 4};  // base bits 16..19
inline constexpr uint32_t kMplsBaseLowReg = 0x8202;  // base bits 0..15
inline constexpr uint32_t kUdpBaseReg = 0x8204;

// ---- PPP protocol packet insertion and reading ---------------------------------------------------
inline constexpr Field kProtoPktWaiting{0x8152, 0, 1};
inline constexpr Field kProtoPktInsertBusy{0x8152, 1, 1};
inline constexpr Field kProtoInsAddr{0x8156, 0, 10};
inline constexpr uint32_t kProtoInsDataReg = 0x8158;
inline constexpr Field kProtoInsLen{0x8160, 0, 12};
inline constexpr Field kProtoInsSend{0x8154, 0, 5};
inline constexpr Field kProtoRdLen{0x814E, 0, 12};
inline constexpr Field kProtoRdAddr{0x815A, 0, 10};
inline constexpr uint32_t kProtoRdDataReg = 0x815C;
inline constexpr Field kProtoRdRelease{0x8150, 0, 1};
inline constexpr uint32_t kProtoPktPolls = 3;
inline constexpr uint32_t kProtoPktMax = 4096;  // lengths below this

// ---- Ethernet port controls ----------------------------------------------------------------------
inline constexpr uint32_t kMac1StationReg = 0x80A6;  // high, middle, low
inline constexpr uint32_t kMac2StationReg = 0x80B2;
inline constexpr Field kEthInitBit{0x80B8, 0, 1};
inline constexpr Field kAppInterface{0x80B8, 1, 1};
inline constexpr Field kPppLength0{0x80BA, 0, 1};
inline constexpr Field kPppLength1{0x80BA, 1, 1};
inline constexpr Field kSelfTestMac{0x80BA, 3, 1};
inline constexpr Field kSelfTestDirN{0x80BA, 4, 1};  // set for direction 0
inline constexpr Field kSelfTestEn5{0x80BA, 5, 1};
inline constexpr Field kGlbPauseEn{0x80BA, 6, 1};
inline constexpr Field kSelfTestEn7{0x80BA, 7, 1};
inline constexpr Field kWrrWeight2{0x80BC, 8, 8};
inline constexpr Field kWrrWeight3{0x80BC, 0, 8};
inline constexpr Field kWrrWeight01{0x80BE, 0, 8};
inline constexpr Field kEth1MaxLen{0x80C2, 0, 13};
inline constexpr Field kSerDesSel{0x80C6, 0, 2};
inline constexpr Field kSendMode{0x80C6, 2, 1};

// ---- SerDes ----------------------------------------------------------------------------------------
inline constexpr Field kSerDesAllReset{0x202, 0, 1};
// Not in the lane register list: the all-lane power-down sits beside the all-lane reset.
inline constexpr Field kSerDesAllPowerDown{0x202, 1, 1};
struct Lane {
    Field resetPrep;  // set before the reset bit is written
    Field reset;
    Field cfg;
    Field parLoop;
    Field loopCode;
};
inline constexpr Lane kLanes[2] = {
    {{0x206, 5, 1}, {0x20A, 1, 1}, {0x208, 0, 12}, {0x218, 0, 1}, {0x21E, 0, 4}},
    {{0x210, 5, 1}, {0x214, 1, 1}, {0x212, 0, 12}, {0x21A, 0, 1}, {0x21E, 4, 4}},
};
inline constexpr uint32_t kLaneAlarmReg = 0x220;
inline constexpr uint32_t kLaneAlarmReg2 = 0x222;
// Loop codes of the loop points SER, LINE, PAR, RCK.
inline constexpr uint32_t kLoopCodes[4] = {0x1, 0x2, 0xC, 0xA};

// ---- Self-test -----------------------------------------------------------------------------------
inline constexpr uint32_t kSelfTestChnlEnReg = 0x9018;  // four words
inline constexpr Field kSelfTestPattern{0x9020, 0, 8};
inline constexpr Field kSelfTestPrbsEn{0x9022, 8, 1};
inline constexpr Field kSelfTestPrbsCh{0x9022, 0, 6};
inline constexpr Field kSelfTestTxHeadLen{0x9024, 0, 7};
inline constexpr Field kSelfTestPayloadLen{0x9026, 0, 12};
inline constexpr uint32_t kSelfTestRateReg = 0x9028;
inline constexpr uint32_t kHeadEntries = 64;
inline constexpr uint32_t kHeadBytes = 64;

// ---- Ethernet capture ------------------------------------------------------------------------------
inline constexpr Field kCapLen{0x9092, 0, 12};
inline constexpr Field kCapDir{0x9092, 12, 1};
inline constexpr Field kCapStart{0x9092, 13, 1};
inline constexpr uint32_t kCapMatchReg = 0x90A0;  // sixteen words
inline constexpr uint32_t kCapOption0Reg = 0x9096;
inline constexpr uint32_t kCapOption1Reg = 0x9094;
inline constexpr Field kCapDone{0x902E, 0, 1};
inline constexpr Field kCapRxLen{0x902A, 0, 12};
inline constexpr Field kCapRdAddr{0x9030, 0, 10};
inline constexpr uint32_t kCapRdDataReg = 0x9032;
inline constexpr Field kCapRelease{0x902C, 0, 1};
inline constexpr uint32_t kCapPolls = 3;

// ---- Tables -------------------------------------------------------------------------------------------
inline constexpr uint32_t kPsnHeaderTbl = tableId("Psnheader");
inline constexpr uint32_t kMpls2KeyTbl = tableId("Mpls2key");
inline constexpr uint32_t kVlan2LableTbl = tableId("Vlan2lable");
inline constexpr uint32_t kNo2PidTbl = tableId("No2pid");
inline constexpr uint32_t kPid2NoTbl = tableId("Pid2no");
inline constexpr uint32_t kUpPppTypeTbl = tableId("Upppptype");
inline constexpr uint32_t kDownPppProTbl = tableId("Downppppro");
inline constexpr uint32_t kCpuProtocolTbl = tableId("Cpuprotocol");
inline constexpr uint32_t kTxHeadTbl = tableId("Txheadfield");
inline constexpr uint32_t kRxHeadTbl = tableId("Rxheadfield");
inline constexpr uint32_t kMac1Tbl = tableId("Mac1Cnt");
inline constexpr uint32_t kMac2Tbl = tableId("Mac2Cnt");

// Header entry fields. The header type, bits 0..2, has no member of its own in the catalogue.
inline constexpr EntryField kHdType{kPsnHeaderTbl, 0, 3};
inline constexpr EntryField kHdReserved3{kPsnHeaderTbl, 3, 1};
inline constexpr EntryField kHdPwCos = entryField("Psnheader", "Lb1pwcos");
inline constexpr EntryField kHdReserved2{kPsnHeaderTbl, 7, 1};
inline constexpr EntryField kHdPwTtl = entryField("Psnheader", "Lb1pwttl");
inline constexpr EntryField kHdPwLabel = entryField("Psnheader", "Lb1pwlable");
inline constexpr EntryField kHdReserved1{kPsnHeaderTbl, 36, 4};
inline constexpr EntryField kHdIpTos = entryField("Psnheader", "Lb1iptos");
inline constexpr EntryField kHdIpTtl = entryField("Psnheader", "Lb1ipttl");
inline constexpr EntryField kHdIpProtcl = entryField("Psnheader", "Lb1ipprotcl");
inline constexpr EntryField kHdIpSa = entryField("Psnheader", "Lb1ipsa");
inline constexpr EntryField kHdIpDa = entryField("Psnheader", "Lb1ipda");
inline constexpr EntryField kHdGreProType = entryField("Psnheader", "Lb1greprotype");
inline constexpr EntryField kHdEthDal = entryField("Psnheader", "Lb1ethdal");
inline constexpr EntryField kHdEthDah = entryField("Psnheader", "Lb1ethdah");
inline constexpr EntryField kHdVlanId = entryField("Psnheader", "Lb1vlanid");
inline constexpr EntryField kHdEthType = entryField("Psnheader", "Lb1ethtype");
inline constexpr EntryField kHdReserved0{kPsnHeaderTbl, 206, 2};

inline constexpr EntryField kMpls2KeyE1no = entryField("Mpls2key", "E1no");
inline constexpr EntryField kVlanLabelType = entryField("Vlan2lable", "Labletype");
inline constexpr EntryField kVlanMplable = entryField("Vlan2lable", "Mplable");
inline constexpr EntryField kNo2PidValid = entryField("No2pid", "Ppppiden");
inline constexpr EntryField kNo2PidPid = entryField("No2pid", "Cpupid");
inline constexpr EntryField kPid2NoChan = entryField("Pid2no", "Channo");
inline constexpr EntryField kUpPppType = entryField("Upppptype", "Upppptype");
inline constexpr EntryField kDownPppPro = entryField("Downppppro", "Downppppro");
inline constexpr EntryField kCpuProtocol = entryField("Cpuprotocol", "Mpcpuprtl");

// Mpls2key: MPLS labels in entries 0..4095, UDP ports in 4096..8191.
inline constexpr uint32_t kLabelSpan = 4096;
inline constexpr uint32_t kMpls2KeyEntries = 8192;
inline constexpr uint32_t kKeyAtm = 0x800;  // ATM pseudowire in bits 0..10
inline constexpr uint32_t kKeyCes = 0x400;  // CES channel in bits 0..8

// ---- MAC register files (entry index = MAC register number) -------------------------------------
inline constexpr uint32_t kMacStationLow = 0;
inline constexpr uint32_t kMacStationHigh = 1;
inline constexpr EntryField kMacStationHighBits{kMac1Tbl, 0, 16};
inline constexpr uint32_t kMacFdFcType = 3;
inline constexpr uint32_t kMacFcTxTimer = 7;
inline constexpr uint32_t kMacFdFcAddrLow = 8;
inline constexpr uint32_t kMacFdFcAddrHigh = 9;
inline constexpr uint32_t kMacIpgTxTimer = 12;
inline constexpr uint32_t kMacPreamble = 13;
inline constexpr uint32_t kMacPauseThr = 14;
inline constexpr uint32_t kMacMaxFrmSize = 15;
inline constexpr uint32_t kMacPortEn = 17;
inline constexpr uint32_t kMacFdFcEn = 18;
inline constexpr uint32_t kMacShortRunts = 20;
inline constexpr uint32_t kMacDropUnkCtl = 21;
inline constexpr uint32_t kMacSynOk = 22;
inline constexpr uint32_t kMacTxFen = 24;
inline constexpr uint32_t kMacRxPsEn = 25;
inline constexpr uint32_t kMacMcAddrLow = 26;
inline constexpr uint32_t kMacMcAddrHigh = 27;
inline constexpr uint32_t kMacSoftRst = 28;
inline constexpr uint32_t kMacMacPortEn = 105;
inline constexpr uint32_t kMacLineLoop = 106;
inline constexpr uint32_t kMacCrcStrip = 108;
inline constexpr uint32_t kMacDflSingleRx = 117;
inline constexpr uint32_t kMacLpCtrl = 119;
inline constexpr uint32_t kMacRxCtrl = 120;
inline constexpr uint32_t kMacSerDesOrder = 121;
inline constexpr uint32_t kMacVlanCode = 122;

inline constexpr EntryField kMacRxEn = entryField("Porten", "Rxen");
inline constexpr EntryField kMacTxEn = entryField("Porten", "Txen");
inline constexpr EntryField kMacMaxFrm = entryField("Maxfrmsize", "Maxfrmsize");
inline constexpr EntryField kMacFdFcAddrHighBits = entryField("Fdfcaddrhigh", "Fdfcaddrhigh");
inline constexpr EntryField kMacRxFdFc = entryField("Fdfcen", "Rxfdfc");
inline constexpr EntryField kMacTxFdFc = entryField("Fdfcen", "Txfdfc");
inline constexpr EntryField kMacLinkUp = entryField("Synok", "Synok");
inline constexpr EntryField kMacAnEnable = entryField("Mactxfen", "Anenable");
inline constexpr EntryField kMacCrcAdd = entryField("Mactxfen", "Crcadd");
inline constexpr EntryField kMacPadEnable = entryField("Mactxfen", "Padenable");
inline constexpr EntryField kMacLineLoopBit = entryField("Lineloopback", "Lineloopback");
inline constexpr EntryField kMacCrcStripBit = entryField("Cfcrcstrip", "Cfcrcstrip");
inline constexpr EntryField kMacMiiLoop = entryField("Lpctrl", "Cf2milpen");
// Bit 0 of the loop control, cleared with every loopback off.
inline constexpr EntryField kMacLpCtrlBit0{kMac1Tbl, 0, 1};
inline constexpr EntryField kMacStripPad = entryField("Macrxctrl", "Strippaden");
inline constexpr EntryField kMacRuntPkt = entryField("Macrxctrl", "Runtpkten");

}  // namespace vq::eth
