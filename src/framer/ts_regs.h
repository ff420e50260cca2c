// Timeslot switch and PRBS registers (byte addresses).
#pragma once

#include <cstdint>

namespace vq::framer {

inline constexpr uint32_t kTssModeReg = 0x2000;          // + 2 * (e1 / 16), bit e1 mod 16
inline constexpr uint32_t kVc4PayloadReg = 0x202C;       // + 2 * vc4, bits 1..0
inline constexpr uint32_t kTsIngSourceReg = 0x2034;      // bits 3..0: sources / cross-connect enables
inline constexpr uint32_t kTsEgSourceReg = 0x2036;       // bits 3..0
inline constexpr uint32_t kTsEgDefaultByteReg = 0x2164;  // bits 7..0

// Timeslot loops.
inline constexpr uint32_t kTsLoopE1Out = 0x25A8;  // bit AU-3 group of bits 11..0
inline constexpr uint32_t kTsLoopE1In = 0x25AA;
inline constexpr uint32_t kTsLoopE3Out = 0x25AC;  // bit e3 of bits 11..0
inline constexpr uint32_t kTsLoopE3In = 0x25AE;
inline constexpr uint32_t kTsLoopPoint2 = 0x2038;  // bit 0 in
inline constexpr uint32_t kTsLoopPoint3 = 0x25B0;  // bit 0 in, bit 1 out

// Telecom-bus loops: chip level, and tributary i (0..83).
inline constexpr uint32_t kHtbLoopChip = 0x2A020;  // bit 1 in, bit 0 out
inline constexpr uint32_t kHtbLoopTrib = 0x2A080;  // + 0x40 * i: bit 5 in, bit 2 out
inline constexpr uint32_t kHtbTribStride = 0x40;
inline constexpr uint32_t kHtbTribNum = 84;

// Receive frame pulse.
inline constexpr uint32_t kRfpResetReg = 0x20004;  // bit 1
inline constexpr uint32_t kRfpEnReg1 = 0x20006;    // bit 2 drop, bit 1 error interrupt enable
inline constexpr uint32_t kRfpEnReg2 = 0x20010;    // bit 1 jitter valid, bit 0 shift enable
inline constexpr uint32_t kRfpDelayReg = 0x20008;  // bits 14..0
inline constexpr uint32_t kRfpAlarmReg = 0x20012;  // bits 1, 4, 0, 3

// Map delay time i (0..3): 0x20800 + 2 * i, bits 14..0, below 19440.
inline constexpr uint32_t kMapDelayReg = 0x20800;
inline constexpr uint32_t kMapDelayLimit = 19440;

// Mapper PRBS engine.
inline constexpr uint32_t kPrbsErrInsReg = 0x20400;   // bits 3..0 rate, 4 single error, 5 enable
inline constexpr uint32_t kPrbsGenReg = 0x20402;      // 0 run, 4..2 pattern, 5 flag, 7..6 mode, 9 selector
inline constexpr uint32_t kPrbsGenPathReg = 0x20406;  // bits 8..0 E1/T1 path, 12..9 E3/T3 or VC-4 path
inline constexpr uint32_t kPrbsChkReg = 0x20408;  // 0 run, 4..2 pattern, 5 flag, 7..6 mode, 8/9 enable flags
inline constexpr uint32_t kPrbsChkPathReg = 0x2040C;  // bits 8..0 E1/T1 path, 12..9 E3/T3 path
inline constexpr uint32_t kPrbsAlarmReg = 0x20420;    // bits 3, 2, 1, 0
inline constexpr uint32_t kPrbsErrCntReg = 0x20440;

// Timeslot PRBS engine.
inline constexpr uint32_t kTsPrbsGenReg = 0x257C;  // 0 run, 1 pattern, 2 flag, 6..3 rate, 7 single, 8 enable,
                                                   // 9 pattern 6, 10 modes 0 and 2
inline constexpr uint32_t kTsPrbsGenPathReg = 0x257E;  // bits 8..0
inline constexpr uint32_t kTsPrbsChkReg = 0x2580;  // 0 run, 1 pattern, 2 flag, 3 pattern 6, 4 modes 1 and 3
inline constexpr uint32_t kTsPrbsChkPathReg = 0x2582;  // bits 8..0
inline constexpr uint32_t kTsPrbsAlarmReg = 0x2584;    // bits 2, 1, 0
inline constexpr uint32_t kTsPrbsErrCntReg = 0x2586;

}  // namespace vq::framer
