// Chip control, health, RAM self-test and DDR controller registers (byte addresses).
#pragma once

#include <cstdint>

namespace vq::chip {

// A register field: address, lowest bit, width.
struct Field {
    uint32_t addr;
    uint32_t bit;
    uint32_t width;
};

// ---- Identity and register test ----------------------------------------------------------------
inline constexpr uint32_t kVersionHighReg = 0x00;
inline constexpr uint32_t kVersionLowReg = 0x02;
// Reads back the complement of what was last written.
inline constexpr uint32_t kTestReg = 0x04;
inline constexpr uint16_t kTestPattern = 0x5555;
inline constexpr uint16_t kTestComplement = 0xAAAA;

// ---- Module clocks, resets, service power ------------------------------------------------------
inline constexpr uint32_t kModuleClockReg = 0x06;  // bit n: clock of module n (0..14)
inline constexpr Field kBistModuleClocks{kModuleClockReg, 0, 15};
inline constexpr uint32_t kBistModuleClocksOn = 0x7FFF;
inline constexpr uint32_t kSoftResetReg = 0x0A;
inline constexpr uint32_t kIsolationReg = 0x16;
inline constexpr uint32_t kPowerReg = 0x18;  // 1 = service powered
inline constexpr uint32_t kSrvStatusReg0 = 0x1A;
inline constexpr uint32_t kSrvStatusReg1 = 0x1C;

// One service block: its bit in the power, clock, reset and isolation registers (not the same
// position in every register), and the status field that reads all ones once every sub-block has
// power.
struct ServiceBits {
    uint32_t power;      // kPowerReg
    uint32_t clock;      // kModuleClockReg
    uint32_t reset;      // kSoftResetReg
    uint32_t isolation;  // kIsolationReg
    Field status;
    uint32_t mask;
};
// clang-format off
//                                       power clock reset isolation  status                   mask
inline constexpr ServiceBits kAtmService{0,    2,    2,    0,         {kSrvStatusReg0, 4, 6},  0x3F};
inline constexpr ServiceBits kPppService{1,    1,    1,    1,         {kSrvStatusReg1, 0, 12}, 0xFFF};
inline constexpr ServiceBits kCesService{2,    0,    0,    2,         {kSrvStatusReg0, 0, 4},  0xF};
// clang-format on
inline constexpr uint32_t kSrvPowerPolls = 3;
inline constexpr uint32_t kSrvPowerPollUs = 10;

// ---- PLLs ----------------------------------------------------------------------------------------
// Control register of PLL 0..3.
inline constexpr uint32_t kPllCtrlReg[4] = {0x2A, 0x4A, 0x6A, 0x8A};
// Power-down bits in the order of the settings record: VCO, post divider, phase, DSM, whole PLL.
inline constexpr uint32_t kPllPdBits[5] = {5, 4, 3, 2, 0};
inline constexpr uint32_t kPll1CtrlReg = 0x4A;
inline constexpr uint16_t kPll1TotalPowerDown = 0x41;
inline constexpr uint32_t kPll2CtrlReg = 0x6A;
inline constexpr uint32_t kPll2ResetBit = 0;
inline constexpr uint32_t kPll2HoldBit = 7;

// ---- Local alarms (write 1 to clear) --------------------------------------------------------------
inline constexpr uint32_t kLocalAlarmReg = 0x100;  // bits 0..10; bit n of 0..3: PLL n out of lock
inline constexpr Field kLocalAlarms{kLocalAlarmReg, 0, 11};
inline constexpr uint32_t kLocalAlarmEnableReg = 0xC2;
inline constexpr uint32_t kPll2AlarmBit = 2;
inline constexpr uint16_t kClkPllAlarms = 0x63F;

// ---- RAM built-in self-test ----------------------------------------------------------------------
inline constexpr Field kBistClockSel{0x62, 0, 12};
inline constexpr uint32_t kBistClockSelValue = 36;
inline constexpr uint32_t kBistEnableReg = 0xA0;
inline constexpr uint32_t kBistStartReg = 0xA2;
inline constexpr uint32_t kBistDoneReg = 0xA4;
inline constexpr uint32_t kBistFailReg = 0xA6;
inline constexpr uint32_t kBistPllChecks = 3;
inline constexpr uint32_t kBistDonePolls = 3;
inline constexpr uint32_t kBistRunUs = 20000;
inline constexpr uint32_t kBistStartUs = 1000;
inline constexpr uint32_t kBistPollUs = 40000;
inline constexpr uint32_t kPllStepUs = 1;

// ---- Clock selections ---------------------------------------------------------------------------
inline constexpr Field kSdsTxclkSel{0x08, 13, 1};
inline constexpr Field kSdsTxclkSelMirror{0x240, 14, 1};
inline constexpr Field kE3OutClkSel{0x240, 1, 1};
inline constexpr Field kMacClkSel{0x240, 15, 1};
inline constexpr Field kClkDetectSel{0x240, 0, 1};

// ---- Die id, ECC, frame pulse ------------------------------------------------------------------------
inline constexpr uint32_t kDieIdCtrlReg = 0x160;
inline constexpr uint32_t kDieIdCrcReg = 0x162;
inline constexpr uint32_t kDieIdOutReg = 0x164;  // 0x164..0x172
inline constexpr uint32_t kDieIdOutRegs = 8;
inline constexpr uint32_t kDieIdLastMask = 0x3F;
inline constexpr uint32_t kEccStateReg = 0xD000;  // bits 7..4
inline constexpr uint32_t kEccClearReg = 0xD00C;
inline constexpr uint32_t kEccClearHighReg = 0xD00E;
inline constexpr uint16_t kEccClearAll = 0xF0;
inline constexpr uint32_t kFpStateReg = 0x20012;

// ---- DDR controller: 9-step scan ------------------------------------------------------------------
inline constexpr Field kDdrTestMode{0xC000, 0, 1};
inline constexpr Field kDdrScanStart{0xC020, 0, 1};
inline constexpr uint32_t kDdrScanMaxAddrHigh = 0xC022;
inline constexpr uint32_t kDdrScanMaxAddrLow = 0xC024;
inline constexpr uint32_t kDdrScanPattern = 0xC026;  // 0xC026..0xC02C
inline constexpr uint32_t kDdrScanStatusReg = 0xC036;
inline constexpr uint32_t kDdrScanDoneBit = 0;
inline constexpr uint32_t kDdrScanErrBit = 1;
inline constexpr uint32_t kDdrScanErrAddrHigh = 0xC038;
inline constexpr uint32_t kDdrScanErrAddrLow = 0xC03A;
inline constexpr uint32_t kDdrScanErrRData = 0xC040;  // 0xC040..0xC046
inline constexpr uint32_t kDdrScanExpRData = 0xC048;  // 0xC048..0xC04E
inline constexpr uint32_t kDdrScanPolls = 20;
inline constexpr uint32_t kDdrScanPollUs = 250000;
inline constexpr uint32_t kDdrRrCurrReg = 0xC102;
inline constexpr uint32_t kDdrRrNextReg = 0xC104;

// ---- DDR controller: 64-byte block access ---------------------------------------------------------
inline constexpr uint32_t kDdrTabStatusReg = 0xC060;  // bit 0 write busy, bit 1 read busy
inline constexpr uint32_t kDdrTabWBusyBit = 0;
inline constexpr uint32_t kDdrTabRBusyBit = 1;
inline constexpr uint32_t kDdrTabCtrlReg = 0xC062;
inline constexpr uint32_t kDdrTabWriteBit = 0;
inline constexpr uint32_t kDdrTabReadBit = 4;
inline constexpr uint32_t kDdrTabAddrHigh = 0xC064;
inline constexpr uint32_t kDdrTabAddrLow = 0xC066;
inline constexpr Field kDdrTabLength{0xC068, 0, 6};
inline constexpr uint32_t kDdrTabWData = 0xC080;  // 32 registers
inline constexpr uint32_t kDdrTabRData = 0xC0C0;  // 32 registers
inline constexpr uint32_t kDdrBlockWords = 32;
inline constexpr uint32_t kDdrBusyPollUs = 10000;

// ---- DDR controller: CRC counters ------------------------------------------------------------------
inline constexpr uint32_t kDdrCrcCntReg = 0xC128;  // + 8k
inline constexpr uint32_t kDdrCrcCntStride = 8;

}  // namespace vq::chip
