// Bring-up registers: PLL register sets, module clocks and soft resets, SerDes start, and the DDR
// controller's start-up registers (byte addresses).
#pragma once

#include <cstdint>

#include "chip/chip_regs.h"

namespace vq::chip {

// ---- PLLs ----------------------------------------------------------------------------------------
// Register set of PLL n starts at kPllBase[n].
inline constexpr uint32_t kPllBase[4] = {0x20, 0x40, 0x60, 0x80};
inline constexpr Field kPllDivA{0x0, 0, 6};  // offsets from the PLL's base
inline constexpr Field kPllDivB{0x2, 0, 12};
inline constexpr Field kPllValue8{0x4, 0, 8};
inline constexpr Field kPllValue16{0x6, 0, 16};
inline constexpr uint32_t kPllCombinedOffset = 0x8;  // whole register: w4 * 16 + w3
inline constexpr Field kPllReset{0xA, 0, 1};
// PLL2 and PLL3 both program this bit of PLL2's register set.
inline constexpr Field kPllUpperSel{0x6A, 6, 1};
// Words of a PLL table row.
enum PllWord : uint32_t { kW0Sel, kW1DivA, kW2DivB, kW3Low, kW4High, kW5, kW6Value8, kW7Value16, kW8Settle };
inline constexpr uint32_t kPllSettleUnitUs = 10000;
inline constexpr uint32_t kPllChecks = 3;

// ---- Module clocks and soft resets ---------------------------------------------------------------
inline constexpr uint32_t kModuleClockReg2 = 0x08;  // modules 15.. at bit module - 15
inline constexpr uint32_t kModuleClockSplit = 15;
inline constexpr uint32_t kSoftResetReg2 = 0x0C;  // modules 16.. at bit module - 16
inline constexpr uint32_t kSoftResetSplit = 16;
inline constexpr Field kSoftResets{kSoftResetReg, 0, 16};
inline constexpr Field kSoftResets2{kSoftResetReg2, 0, 6};
inline constexpr Field kModuleClocks2{kModuleClockReg2, 0, 6};
inline constexpr uint16_t kClockKeepMask = 0x8000;
inline constexpr uint16_t kClocksOnButFive = 0x7FDF;  // every module clock but module 5's
inline constexpr uint32_t kChipResetUs = 20000;

// ---- SerDes start ----------------------------------------------------------------------------------
inline constexpr uint16_t kSerdesResets = 0x3000;  // reg 0x0A bits 12, 13: the SerDes held in reset
inline constexpr Field kSerdesCfgLock{0x200, 12, 1};
inline constexpr Field kSerdesSysclkSel{0x200, 3, 1};
inline constexpr Field kSerdesEnable{0x1E, 0, 1};
inline constexpr Field kSerdesAllReset{0x202, 0, 1};
inline constexpr Field kSerdesBit3{0x202, 3, 1};
inline constexpr Field kSerdesCalibrate{0x202, 4, 1};
// Per-lane registers: lane 1, lane 2.
inline constexpr Field kLaneCfg[2] = {{0x208, 0, 5}, {0x212, 0, 5}};
inline constexpr Field kLaneRate[2] = {{0x20A, 4, 2}, {0x214, 4, 2}};
inline constexpr Field kLaneReset[2] = {{0x20A, 1, 1}, {0x214, 1, 1}};
inline constexpr Field kLanePower[2] = {{0x20C, 1, 1}, {0x216, 1, 1}};
inline constexpr Field kLaneBit4[2] = {{0x206, 4, 1}, {0x210, 4, 1}};
inline constexpr Field kLaneHold[2] = {{0x206, 5, 1}, {0x210, 5, 1}};
inline constexpr uint32_t kLaneCfgValue = 3;
inline constexpr uint32_t kSerdesCfgSettleUs = 100;
inline constexpr Field kSerdesLock{0x220, 0, 4};
inline constexpr uint32_t kSerdesLocked = 0xF;
inline constexpr uint32_t kSerdesLockPolls = 3;
// Short delays: 50 us, or a countdown of a volatile counter when the chip record asks for busy-waits.
inline constexpr uint32_t kShortDelayUs = 50;
inline constexpr uint32_t kShortDelaySpins = 7150;

// ---- DDR controller start-up ----------------------------------------------------------------------
// The controller's registers are 32 bits wide: low half at the address, high half at address + 2.
inline constexpr uint32_t kDdrAddrMapReg = 0xC12C;  // + 8k, bits 0..10
inline constexpr uint32_t kDdrAddrMapStride = 8;
inline constexpr uint32_t kDdrAddrMapWidth = 11;
inline constexpr uint32_t kDdrStatusReg = 0xD000;  // bit 3: controller still initialising
inline constexpr uint32_t kDdrBusyBit = 3;
inline constexpr uint32_t kDdrDfiReset = 0xD004;
inline constexpr uint32_t kDdrStart = 0xD008;
inline constexpr uint32_t kDdrReset = 0xD010;
inline constexpr uint32_t kDdrMode0 = 0xD014;
inline constexpr uint32_t kDdrMode1 = 0xD018;
inline constexpr uint32_t kDdrMode2 = 0xD01C;
inline constexpr uint32_t kDdrMode3 = 0xD020;
inline constexpr uint32_t kDdrConfig = 0xD02C;
inline constexpr uint32_t kDdrTiming0 = 0xD050;
inline constexpr uint32_t kDdrTiming1 = 0xD054;
inline constexpr uint32_t kDdrRefresh = 0xD058;
inline constexpr uint32_t kDdrTiming3 = 0xD05C;
inline constexpr uint32_t kDdrPhyCtrl = 0xD0AC;
inline constexpr uint32_t kDdrTraining = 0xD0D4;  // bits 8..11 read 15 after a good training
inline constexpr Field kDdrTrainingResult{kDdrTraining, 8, 4};
inline constexpr uint32_t kDdrTrainingGood = 15;
inline constexpr uint32_t kDdrFallbackA = 0xD0E4;
inline constexpr uint32_t kDdrFallbackB = 0xD0E6;
inline constexpr uint32_t kDdrFallbackC = 0xD0B4;
inline constexpr uint32_t kDdrFallbackD = 0xD0C4;
inline constexpr uint32_t kDdrOdt = 0xD0F4;
inline constexpr uint32_t kDdrPhyMode = 0xD200;
inline constexpr uint32_t kDdrPhyLane0 = 0xD228;
inline constexpr uint32_t kDdrPhyLanes[6] = {0xD228, 0xD230, 0xD234, 0xD238, 0xD23C, 0xD240};
inline constexpr uint32_t kDdrWriteLevel = 0xD270;  // + 4k: lane k's pair, result in the high half
inline constexpr uint32_t kDdrWriteLevelLanes = 5;
inline constexpr uint32_t kDdrDriveReg = 0xD360;
inline constexpr uint32_t kDdrReadyPolls = 3;
inline constexpr uint32_t kDdrStepUs = 70;
inline constexpr uint32_t kDdrPhySettleUs = 10;
inline constexpr uint32_t kDdrClDefault = 6;

}  // namespace vq::chip
