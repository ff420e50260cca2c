// SDH/SONET mapper registers (byte addresses) and the targets of the map configuration columns.
#pragma once

#include <cstdint>

namespace vq::sdh {

// Line mode: bit 0, 0 SDH, 1 SONET.
inline constexpr uint32_t kLineModeReg = 0x20006;
// TDM mode: bit 1 E1/T1, bit 2 E3/DS3 (owned by the framer; the mapping only checks them).
inline constexpr uint32_t kTdmModeReg = 0x000E;

// Receive high-order blocks of VC-4 v: VT/TU type in bits 1..0, DS3 receive FIFO reset in bit 3.
inline constexpr uint32_t kRxHoBlock[] = {0x2C040, 0x2C140, 0x2C240};
inline constexpr uint32_t kRxHoVc4Stride = 0x40;
inline constexpr uint32_t kDs3RxFifoRstBit = 3;

// VC-4 payload type of VC-4 v: 0x202C + 2 * v, bits 1..0.
inline constexpr uint32_t kVc4PayloadReg = 0x202C;

// Map loopback configuration.
inline constexpr uint32_t kMapLoopCfgReg = 0x2DCBC;
inline constexpr uint32_t kSdhSonetLbModeBit = 13;
inline constexpr uint32_t kMapAisLbInsBit = 12;
inline constexpr uint32_t kMapLbEnBit = 11;

// Waits of the mapping: after the VT/TU type of VC-4 3, and the VC-4 payload type pulse.
inline constexpr uint32_t kVc4Slot3SettleUs = 510;
inline constexpr uint32_t kPayloadPulseUs = 1;
inline constexpr uint32_t kPayloadPulseValue = 3;

}  // namespace vq::sdh
