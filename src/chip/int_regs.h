// Interrupt registers (byte addresses).
//
// Flag and latched status registers are write-1-to-clear. Like every access of this module, a clear
// is a field write: the clear value is merged into the register as read, so the other bits of the
// register are written back as they were read (on the chip's write-1-to-clear flags, a pending flag
// read as 1 is written back as 1).
#pragma once

#include <cstdint>

#include "chip/chip_regs.h"

namespace vq::intr {

using vq::chip::Field;

// Line behaviour (bits 1 and 0) and the pending source index.
inline constexpr Field kActiveMode{0xC0, 0, 2};
inline constexpr Field kPendingIndex{0x140, 0, 9};

// A top-level source: enable, mode and flag fields, and the number of sub-sources its flag field
// holds (0: a single flag bit).
struct Source {
    uint32_t id;
    Field enable;
    Field mode;
    Field flag;
    uint32_t subs;
};

// Choice: the flag field of the two ATM sources (4, 8) is bits 0..1 of 0x106 and that of sources
// 32 and 64 bits 0..1 of 0x10A; sub-source s is bit s of the field, as the ATM flag operation reads
// it, so both sub-sources of these ids can be read and cleared.
inline constexpr Source kSources[] = {
    {1, {0xC4, 0, 1}, {0xE2, 0, 1}, {0x102, 0, 1}, 0},
    {2, {0xC6, 0, 1}, {0xE4, 0, 1}, {0x104, 0, 1}, 0},
    {4, {0xC8, 0, 1}, {0xE6, 0, 1}, {0x106, 0, 2}, 2},
    {8, {0xC8, 1, 1}, {0xE6, 0, 1}, {0x106, 0, 2}, 2},
    {16, {0xCA, 0, 1}, {0xE8, 0, 1}, {0x108, 0, 1}, 0},
    {32, {0xCC, 1, 1}, {0xEA, 0, 1}, {0x10A, 0, 2}, 2},
    {64, {0xCC, 0, 1}, {0xEA, 0, 1}, {0x10A, 0, 2}, 2},
    {128, {0xC2, 0, 11}, {0xE0, 0, 1}, {0x100, 0, 11}, 11},
    {256, {0xCE, 0, 1}, {0xEC, 0, 1}, {0x10C, 0, 1}, 0},
};
inline constexpr uint32_t kLocalEnableAll = 0x7FF;

// Local alarm flags reported by the local flag operation: bits 4, 5, 7, 9, 10 of 0x100.
inline constexpr uint32_t kLocalFlagReg = 0x100;
inline constexpr uint32_t kLocalFlagBits[5] = {4, 5, 7, 9, 10};

// Packet modification unit, multilink engine and ATM engine.
inline constexpr Field kPmuEnable{0xC4, 0, 1};
inline constexpr Field kMpEnable{0xC6, 0, 1};
inline constexpr uint32_t kPmuFlagReg = 0x102;
inline constexpr uint32_t kMpFlagReg = 0x104;
inline constexpr Field kAtmEnable{0xC8, 0, 2};
inline constexpr uint32_t kAtmFlagReg = 0x106;

// CES timing recovery, 16 instances.
inline constexpr uint32_t kCesTrInstances = 16;
inline constexpr Field kCesTrSummary{0x17010, 0, 16};
inline constexpr uint32_t kCesTrLatchedReg = 0x17060;  // + 2i, bits 0..3
inline constexpr uint32_t kCesTrLiveReg = 0x17080;     // + 2i, bits 0..3
inline constexpr uint32_t kCesTrEnableReg = 0x170A0;   // + 2i, bits 0..3
inline constexpr uint32_t kCesTrFieldWidth = 4;
inline constexpr uint32_t kCesTrAll = 0xF;

// CES channels: enables of channel c at 0x16160 + 2 (c mod 84), bits 4g..4g+2 with g = c / 84;
// status bit 4 (c mod 4) + type of 0x16060 / 0x16260 + 2 (c / 4).
inline constexpr uint32_t kCesChannels = 336;
inline constexpr uint32_t kCesChannelBound = 352;  // channels 336..351 are refused with a bare 1
inline constexpr uint32_t kCesStatChannelBound = 353;
inline constexpr uint32_t kCesEnableReg = 0x16160;
inline constexpr uint32_t kCesEnableRegs = 84;
inline constexpr uint16_t kCesEnableAllBits = 0x7777;
inline constexpr uint32_t kCesLatchedReg = 0x16060;
inline constexpr uint32_t kCesLiveReg = 0x16260;

// E1 mapper.
inline constexpr Field kE1MapRfpEnable{0x20006, 1, 2};  // bit 2: a, bit 1: b
inline constexpr uint32_t kE1MapRfpStatusReg = 0x20012;
inline constexpr uint32_t kE1MapLpStatusReg[4] = {0x2C3A2, 0x303A2, 0x343A2, 0x383A2};
inline constexpr uint32_t kE1MapLpStatusMaxIndex = 90;
inline constexpr uint32_t kE1MapLpEnableBase = 0x161C6;  // register number
inline constexpr uint32_t kE1MapLpEnableMask = 0x1F8000;
inline constexpr uint32_t kE1MapLpEnableBit = 1;
inline constexpr uint32_t kE1MapLpDivisor[3] = {3, 21, 28};
inline constexpr uint32_t kE1MapLpMaxIndex[3] = {2, 62, 83};
inline constexpr uint32_t kE1MapHpEnableReg = 0x2C04C;  // + 64 index, bit 2
inline constexpr uint32_t kE1MapHpStatusReg = 0x2C05E;  // + 64 index, bits 3 and 2
inline constexpr uint32_t kE1MapStride = 64;
inline constexpr uint32_t kE1MapHpIndexBound[2] = {4, 12};

// High-order timeslot bus.
inline constexpr Field kHtbWarm{0x2A01E, 0, 12};  // bits 0..5 a, 6..11 b
inline constexpr Field kHtbB2sf{0x2A01C, 0, 7};   // bit 6 a, bits 0..5 b

// E3/T3 ports: kind k is bit 3 - k of 0x2B608 + 32 port.
inline constexpr uint32_t kEt3Reg = 0x2B608;
inline constexpr uint32_t kEt3Stride = 32;
inline constexpr uint32_t kEt3Ports = 12;

}  // namespace vq::intr
