// E1/T1 and E3/T3 framer registers (byte addresses).
#pragma once

#include <cstdint>

namespace vq::framer {

// TDM mode: bit 1 E1/T1 (read back from here), bit 2 E3/DS3; both carry the mode.
inline constexpr uint32_t kTdmModeReg = 0x000E;
inline constexpr uint32_t kTdmE1T1Bit = 1;
inline constexpr uint32_t kTdmE3Ds3Bit = 2;

// Per-channel blocks of register channel (v, k, r).
inline constexpr uint32_t kIngressBase = 0x24010;
inline constexpr uint32_t kEgressBase = 0x26010;
inline constexpr uint32_t kVc4Stride = 0x800;
inline constexpr uint32_t kTug3Stride = 0x200;
inline constexpr uint32_t kChannelStride = 0x10;

// Ingress block words.
inline constexpr uint32_t kIngMode = 0;  // bits 1..0 frame mode, bit 2 reframe, bit 3 reset
inline constexpr uint32_t kIngReframeBit = 2;
inline constexpr uint32_t kIngResetBit = 3;
inline constexpr uint32_t kIngAlarm = 2;  // bit 0 RAI, 1 AIS, 2 MFOOF, 3 BFOOF
inline constexpr uint32_t kIngMfoofBit = 2;
inline constexpr uint32_t kIngE1Crc = 4;
inline constexpr uint32_t kIngE1Febe = 6;
inline constexpr uint32_t kIngT1Crc = 8;
inline constexpr uint32_t kIngT1Ferr = 0xA;

// Egress block words.
inline constexpr uint32_t kEgMode = 0;  // bits 1..0 frame mode, bit 2 reset
inline constexpr uint32_t kEgResetBit = 2;
inline constexpr uint32_t kEgOh2 = 2;           // overhead insertion, first word
inline constexpr uint32_t kEgOh4 = 4;           // overhead insertion, second word
inline constexpr uint32_t kOhInsEnBit = 14;     // in word +2
inline constexpr uint32_t kOhInsEn2Bit = 5;     // in word +4
inline constexpr uint32_t kRaiInsEnBit = 5;     // in word +2
inline constexpr uint32_t kRaiInsSelEnBit = 4;  // in word +2
inline constexpr uint32_t kRaiInsValueBit = 3;  // in word +2

// E3/T3 framer e3 (0..11): status and counter registers.
inline constexpr uint32_t kEt3S0 = 0x2B60A;  // + 0x20 * e3; S1 = S0 + 2
inline constexpr uint32_t kEt3S0Stride = 0x20;
inline constexpr uint32_t kE3A = 0x29294;  // + 0x10 * e3; D = A + 0xC0
inline constexpr uint32_t kE3AStride = 0x10;
inline constexpr uint32_t kE3DOffset = 0xC0;
inline constexpr uint32_t kT3A = 0x29444;  // + 0x20 * e3
inline constexpr uint32_t kT3D = 0x295C4;  // + 0x20 * e3
inline constexpr uint32_t kT3Stride = 0x20;
inline constexpr uint32_t kT3ACounters = 0x29446;  // five words, + 0x20 * e3
inline constexpr uint32_t kT3DCounters = 0x295C6;

// Clock selectors.
inline constexpr uint32_t kE1ClkSrcReg = 0x2166;  // + 2 * e1, bits 5..0, 0..40
inline constexpr uint32_t kE1ClkSrcMax = 40;
inline constexpr uint32_t kEt3TxClkReg = 0x243E;  // + 2 * e3, bits 4..0, 0..25
inline constexpr uint32_t kEt3TxClkMax = 25;
inline constexpr uint32_t kHtbTxClkReg = 0x2432;  // + 2 * i, bits 5..0, i 0..5
inline constexpr uint32_t kHtbTxClkNum = 6;
inline constexpr uint32_t kHtbRxClkReg = 0x2426;  // + 2 * i, bits 5..0, i 0..1
inline constexpr uint32_t kHtbRxClkNum = 2;

// E1 mapper clock gates: gate 0..7 in 0x2080A bit 7 - g, gate 8..23 in 0x2080C bit 23 - g.
inline constexpr uint32_t kClkGateRegLow = 0x2080A;
inline constexpr uint32_t kClkGateRegHigh = 0x2080C;
inline constexpr uint32_t kClkGateNum = 24;

inline constexpr uint32_t kSohBypassReg = 0x257A;  // bit 0

// Transmitted AU pointer bytes, bits 7..0 each.
inline constexpr uint32_t kAuPtrH1 = 0x214C;
inline constexpr uint32_t kAuPtrY = 0x214E;
inline constexpr uint32_t kAuPtrH2 = 0x2150;
inline constexpr uint32_t kAuPtrF = 0x2152;
inline constexpr uint32_t kAuPtrH3 = 0x2154;

// Written by the framer initialisation.
inline constexpr uint32_t kTsSourceReg = 0x2034;    // bits 3..0 cleared one by one
inline constexpr uint32_t kMapDelay0Reg = 0x20800;  // bits 14..0
inline constexpr uint32_t kMapDelay1Reg = 0x20802;  // bits 14..0
inline constexpr uint32_t kMapDelay0 = 0x0260;
inline constexpr uint32_t kMapDelay0Product = 0x27C0;
inline constexpr uint32_t kMapDelay0Sonet = 0x2780;
inline constexpr uint32_t kMapDelay1Sonet = 0x25C0;
inline constexpr uint32_t kInitReg22002 = 0x22002;  // bits 3..0 := 0
inline constexpr uint32_t kInitReg2A000 = 0x2A000;  // bit 12 := 1

}  // namespace vq::framer
