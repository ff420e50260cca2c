// Path overhead registers of the SDH/SONET mapper (byte addresses): the per-path register blocks, the
// selector pages and the chip-wide controls.
#pragma once

#include <cstdint>

namespace vq::sdh::poh {

// Per-path register blocks. High-order block n = VC-4 + 4 * TUG-3 (0..11); low-order channel
// c = 32 * TUG-3 + tributary (0..95) of a VC-4.
constexpr uint32_t rxHo(uint32_t n) {
    return 0x2C040 + 0x40 * n;
}
constexpr uint32_t txHo(uint32_t n) {
    return 0x2DCC0 + 0x20 * n;
}
constexpr uint32_t rxLo(uint32_t v, uint32_t c) {
    return 0x2C380 + 0x4000 * v + 0x40 * c;
}
constexpr uint32_t txLo(uint32_t v, uint32_t c) {
    return 0x2DE60 + 0x4000 * v + 8 * c;
}

// Receive high-order block words.
inline constexpr uint32_t kRxHoType2Copy = 0x0;  // bits 6..5: low bits of transmit byte type 2
inline constexpr uint32_t kRxHoRst = 0x2;        // bit 0
inline constexpr uint32_t kRxHoTrace = 0x4;      // bit 0 64-byte J1, bit 1 B3 count flag
inline constexpr uint32_t kRxHoLomIntMsk = 0xC;  // bit 2
inline constexpr uint32_t kRxHoLomAis = 0xE;     // bit 2
inline constexpr uint32_t kRxHoLomCur = 0x16;    // bit 2
inline constexpr uint32_t kRxHoHis = 0x1E;       // bit 3 OOM, bit 2 LOM
inline constexpr uint32_t kRxHoT3Fifo = 0x24;    // bit 1 overflow, bit 0 underflow (block = E3 number)
inline constexpr uint32_t kRxHoB3Cnt = 0x2A;

// Transmit high-order block words.
inline constexpr uint32_t kTxHoJ1 = 0x0;     // bit 0 64-byte trace; bits 1, 3..2, 5..4 byte type 6
inline constexpr uint32_t kTxHoType2 = 0x2;  // bit 5: byte type 2 value is not 0xFF
inline constexpr uint32_t kTxHoIns = 0x4;    // bit 0 J1 pass-through, bits 3..2 B3 source, enables
inline constexpr uint32_t kTxHoB3Err = 0x8;  // bits 9..0
inline constexpr uint32_t kB3SrcBit = 2;     // TxHo+4 bits 3..2
inline constexpr uint32_t kJ1PassBit = 0;    // TxHo+4 bit 0
// Insertion enable bit of transmit high-order byte types 0..5 in TxHo+4.
inline constexpr uint32_t kTxHoInsBit[6] = {4, 8, 6, 10, 12, 14};

// Receive low-order block words.
inline constexpr uint32_t kRxLoRst = 0x2;     // bit 0
inline constexpr uint32_t kRxLoCfg = 0x4;     // bit 0 64-byte trace, bit 3 VC-12 ERDI, bit 4 REI
inline constexpr uint32_t kRxLoSig = 0x6;     // bits 14..8 CRC-7, bits 7..0 byte sum
inline constexpr uint32_t kRxLoLast = 0x8;    // last two trace bytes
inline constexpr uint32_t kRxLoLabel = 0xA;   // bits 7..0 C2, bits 10..8 V5 signal label
inline constexpr uint32_t kRxLoIntMsk = 0xC;  // bit 1 TU-AIS, bit 0 TU-LOP
inline constexpr uint32_t kRxLoAction = 0xE;  // consequent actions 0..4
inline constexpr uint32_t kRxLoCur = 0x16;    // bit 1 TU-AIS, bit 0 TU-LOP
inline constexpr uint32_t kRxLoHis = 0x20;    // bits 8..0 path alarm histories
inline constexpr uint32_t kRxLoTuHis = 0x22;  // bit 1 TU-AIS, bit 0 TU-LOP
inline constexpr uint32_t kRxLoBipCnt = 0x28;
inline constexpr uint32_t kRxLoReiCnt = 0x2A;
inline constexpr uint32_t kRxLoPtrAdj = 0x2C;  // bits 3..0, 7..4, 11..8
inline constexpr uint32_t kRxLoErdiBit = 3;
inline constexpr uint32_t kRxLoReiBit = 4;

// Transmit low-order word group.
inline constexpr uint32_t kTxLoCfg = 0x0;     // bit 0 64-byte trace, 1 VC-3 ERDI, 7 VC-12 ERDI, 8 REI
inline constexpr uint32_t kTxLoAction = 0x2;  // consequent actions 5..9, written inverted
inline constexpr uint32_t kTxLoErr = 0x4;     // bits 9..0 B3 / BIP-2 error insertion
inline constexpr uint32_t kTxLoVc3ErdiBit = 1;
inline constexpr uint32_t kTxLoVc12ErdiBit = 7;
inline constexpr uint32_t kTxLoReiBit = 8;
inline constexpr uint32_t kTxLoB3SwBit = 5;
inline constexpr uint32_t kTxLoV5SwBits[4] = {5, 3, 6, 2};
inline constexpr uint32_t kTxLoK4SwBit = 2;
inline constexpr uint32_t kTxLoG1SwBits[3] = {2, 3, 4};

// Consequent-action enables: types 0..4 in RxLo+0xE, types 5..9 (inverted) in TxLo+2.
inline constexpr uint32_t kActionBit[10] = {3, 5, 4, 1, 0, 2, 4, 3, 0, 1};

// Transmit high-order page: selector 0x2DCA0 bits 13..10 = VC-4.
inline constexpr uint32_t kTxHoSel = 0x2DCA0;
inline constexpr uint32_t kTxHoSelBit = 10;
inline constexpr uint32_t kTxHoSelWidth = 4;
// Byte types 0..7; type 7 is bits 7..0 of the selector register itself.
inline constexpr uint32_t kTxHoByteReg[8] = {0x2DCA2, 0x2DCA6, 0x2DCAA, 0x2DCA8,
                                             0x2DCAC, 0x2DCAE, 0x2DCA4, 0x2DCA0};
inline constexpr uint32_t kTxHoTraceData = 0x2DCB0;
inline constexpr uint32_t kTxHoTraceIndex = 0x2DCB2;
inline constexpr uint32_t kTxHoPtr = 0x2DCB4;  // bit 0 YY, bit 1 FF, bits 3..2 SS

// Transmit low-order page: selector 0x2DE40 bits 8..0 = 128 * VC-4 + channel.
inline constexpr uint32_t kTxLoSel = 0x2DE40;
inline constexpr uint32_t kTxLoB3 = 0x2DE42;
inline constexpr uint32_t kTxLoV5C2 = 0x2DE44;
inline constexpr uint32_t kTxLoG1 = 0x2DE46;
inline constexpr uint32_t kTxLoK4K3 = 0x2DE4E;
inline constexpr uint32_t kTxLoN2N1 = 0x2DE50;
inline constexpr uint32_t kTxLoTraceData = 0x2DE52;
inline constexpr uint32_t kTxLoTraceIndex = 0x2DE54;
// Transmit VC-3 byte types 0..5 (6 is G1, 7 is B3).
inline constexpr uint32_t kTxLoByteReg[6] = {0x2DE44, 0x2DE48, 0x2DE4C, 0x2DE4A, 0x2DE4E, 0x2DE50};

// Received high-order page: selector 0x2C004 bits 3..0 = VC-4; received low-order page: selector
// 0x2C342 bits 8..0 = 128 * VC-4 + channel. Both need 50 ticks before the bytes are valid.
inline constexpr uint32_t kRxHoSel = 0x2C004;
inline constexpr uint32_t kRxHoTraceIndex = 0x2C006;
inline constexpr uint32_t kRxHoTraceData = 0x2C010;
inline constexpr uint32_t kRxLoSel = 0x2C342;
inline constexpr uint32_t kRxLoTraceIndex = 0x2C344;
inline constexpr uint32_t kRxLoTraceData = 0x2C360;
inline constexpr uint32_t kRxPageTicks = 50;

// Received byte types 0..6: register offset from 0x2C012 (high-order) or 0x2C362 (low-order), bit.
struct RxByte {
    uint32_t offset;
    uint32_t bit;
};
inline constexpr uint32_t kRxHoBytes = 0x2C012;
inline constexpr uint32_t kRxLoBytes = 0x2C362;
inline constexpr RxByte kRxByte[7] = {{0, 0}, {2, 8}, {4, 0}, {4, 8}, {6, 0}, {6, 8}, {2, 0}};
// Received VC-12 byte types 0..3 (0 is V5).
inline constexpr uint32_t kRxVc12ByteReg[4] = {0x2C362, 0x2C360, 0x2C368, 0x2C368};
inline constexpr uint32_t kRxVc12ByteBit[4] = {0, 0, 8, 0};

// Chip-wide controls.
inline constexpr uint32_t kChkOffReg = 0x2C000;    // bit 1 SONET B3 check off
inline constexpr uint32_t kTuAisInsReg = 0x2C002;  // bit 8 + VC-4
inline constexpr uint32_t kAlmMskReg = 0x2C008;    // bit 5 HP-LOM, bit 6 TU-AIS/TU-LOP
inline constexpr uint32_t kFltAlarmReg = 0x2C340;  // four 4-bit numbers, type 0 in bits 15..12
inline constexpr uint32_t kSsChkReg = 0x2C346;     // bit 0 signal-label check
inline constexpr uint32_t kE1FifoCur = 0x3C000;    // + 8 * E1: bit 1 overflow, bit 0 underflow
inline constexpr uint32_t kE1FifoHis = 0x3C002;

}  // namespace vq::sdh::poh
