// Telecom bus registers (byte addresses): the 77 MHz interface towards a companion device, one port
// per VC-4.
#pragma once

#include <cstdint>

namespace vq::sdh::tele {

inline constexpr uint32_t kRst = 0x22000;         // bit 0 global reset
inline constexpr uint32_t kFpFifoRead = 0x22002;  // bits 3..0 output byte phase 0..11
inline constexpr uint32_t kAlmMsk = 0x22004;      // bit 3 FP drift, 2 FP loss, 1 port FIFO, 0 clock loss
inline constexpr uint32_t kIntMsk = 0x22006;      // bit 1 global, bit 0 port
inline constexpr uint32_t kClkEdge = 0x22008;     // bits 2, 1, 0: edge types 0, 1, 2
inline constexpr uint32_t kFpAlm = 0x22010;       // current 77 MHz alarms, bits as kAlmMsk
inline constexpr uint32_t kFpDisvalue = 0x22012;  // bits 5..0
inline constexpr uint32_t kFpAlmHis = 0x22020;    // history 77 MHz alarms
inline constexpr uint32_t kRstPort = 0x22200;     // bit 0
inline constexpr uint32_t kB2Cfg = 0x22204;       // bit 1 transmit B2 insertion, bit 0 receive B2 mode
inline constexpr uint32_t kPortMsk = 0x22206;     // per-port interrupt masks
inline constexpr uint32_t kPortErr = 0x22210;     // per-port current errors
inline constexpr uint32_t kPortErrHis = 0x22220;  // per-port history errors
inline constexpr uint32_t kB2Cnt = 0x22230;       // + 2 * port, cleared by reading

inline constexpr uint32_t kFpPhaseMax = 11;
inline constexpr uint32_t kEdgeTypeNum = 3;
inline constexpr uint32_t kPortNum = 4;

// Per-port fields of kPortMsk, kPortErr and kPortErrHis: bit base + port.
inline constexpr uint32_t kFifoErrBit = 12;
inline constexpr uint32_t kB2OfBit = 8;
inline constexpr uint32_t kC1ErrBit = 4;
inline constexpr uint32_t kC1j1SpeBit = 0;  // ports 0 and 1 only (pairs of VC-4s in the mask register)
inline constexpr uint32_t kC1j1SpePorts = 2;

}  // namespace vq::sdh::tele
