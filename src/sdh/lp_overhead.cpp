// Low-order path overhead: the transmitted VC-3 and VC-12 bytes and traces, software byte insertion,
// B3 and BIP-2 error insertion, the received bytes and traces, and the expected (should-be) trace
// signatures and labels the receiver compares against.
#include "platform/osal.h"
#include "sdh/poh_internal.h"

namespace vq::sdh::poh {
namespace {

constexpr uint32_t kTxLpByteTypeNum = 8;
constexpr uint32_t kTxLpByteG1 = 6;
constexpr uint32_t kTxLpByteB3 = 7;
constexpr uint32_t kRxVc3ByteTypeNum = 7;
constexpr uint32_t kRxVc12ByteTypeNum = 4;

// Error insertion words: B3 mode 0 clears, modes 1 and 2 add 0x200 / 0x300; BIP-2 adds 8 / 12.
constexpr uint32_t kB3ErrMode[3] = {0, 0x200, 0x300};
constexpr uint32_t kBip2ErrMode[3] = {0, 8, 12};

// A 64-byte trace ends in CR, LF.
constexpr uint8_t kTraceCr = 0x0D;
constexpr uint8_t kTraceLf = 0x0A;
constexpr uint16_t kTraceLast = 0x0D0A;

uint32_t copyErr(uint32_t chip) {
    return vq::makeStatus(chip, VQ6192_ERR_MODULE_FRAMER, kErrCopy);
}

// Bytes 1..15 of a 16-byte trace, or 0..61 of a 64-byte one, summed.
uint32_t byteSum(const uint8_t *trace, uint32_t first, uint32_t last) {
    uint32_t sum = 0;
    for (uint32_t i = first; i <= last; ++i) {
        sum += trace[i];
    }
    return sum & 0xFFFFu;
}

// Writes the expected-trace signature of low-order channel c: CRC-7 and byte sum.
void writeSignature(uint32_t chip, uint32_t v, uint32_t c, uint32_t crc, uint32_t sum) {
    wr(chip, rxLo(v, c) + kRxLoSig, crc & 0x7Fu, 8, 7);
    wr(chip, rxLo(v, c) + kRxLoSig, sum & 0xFFu, 0, 8);
}

bool allSet(uint32_t reg, const uint32_t *bits, uint32_t n) {
    for (uint32_t i = 0; i < n; ++i) {
        if (((reg >> bits[i]) & 1u) == 0) {
            return false;
        }
    }
    return true;
}

void writeBits(uint32_t chip, uint32_t addr, const uint32_t *bits, uint32_t n, uint32_t value) {
    for (uint32_t i = 0; i < n; ++i) {
        wr(chip, addr, value, bits[i]);
    }
}

uint8_t decodeB3ErrMode(uint32_t field) {
    const uint32_t m = (field >> 8) & 3u;
    return static_cast<uint8_t>(m >= 2 ? m - 1 : 0);
}

}  // namespace
}  // namespace vq::sdh::poh

using namespace vq::sdh::poh;

extern "C" {

VQ6192_API uint32_t VQ6192_SDH_SetTxLpB3(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t mode,
                                         uint32_t value) {
    if (badVc3(chip, vc4, tug3) || mode > 1) {
        return paraErr(chip);
    }
    wr(chip, txLo(vc4, channel(tug3)) + kTxLoCfg, mode, kTxLoB3SwBit);
    selectTxLo(chip, vc4, channel(tug3));
    wr(chip, kTxLoB3, value, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxLpB3(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode,
                                         uint8_t *value) {
    if (badVc3(chip, vc4, tug3) || mode == nullptr || value == nullptr) {
        return paraErr(chip);
    }
    *mode = rd8(chip, txLo(vc4, channel(tug3)) + kTxLoCfg, kTxLoB3SwBit);
    selectTxLo(chip, vc4, channel(tug3));
    *value = rd8(chip, kTxLoB3, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetTxLpG1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t mode,
                                         uint32_t value) {
    if (badVc3(chip, vc4, tug3) || mode > 1) {
        return paraErr(chip);
    }
    const uint32_t cfg = txLo(vc4, channel(tug3)) + kTxLoCfg;
    wr(chip, cfg, mode, kTxLoG1SwBits[0]);
    wr(chip, cfg, mode, kTxLoG1SwBits[1]);
    wr(chip, cfg, mode != 0 ? 1 : 0, kTxLoG1SwBits[2]);
    selectTxLo(chip, vc4, channel(tug3));
    wr(chip, kTxLoG1, value, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxLpG1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode,
                                         uint8_t *value) {
    if (badVc3(chip, vc4, tug3) || mode == nullptr || value == nullptr) {
        return paraErr(chip);
    }
    const uint32_t cfg = VQ6192_ReadReg(chip, txLo(vc4, channel(tug3)) + kTxLoCfg);
    *mode = allSet(cfg, kTxLoG1SwBits, 3) ? 1 : 0;
    selectTxLo(chip, vc4, channel(tug3));
    *value = rd8(chip, kTxLoG1, 0, 8);
    return 0;
}

// Byte types 0..5 carry only the value (the mode is range-checked and has no effect); 6 is G1 and 7 B3.
VQ6192_API uint32_t VQ6192_SDH_SetTxLpByte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t byteType,
                                           uint32_t mode, uint32_t value) {
    if (badVc3(chip, vc4, tug3) || byteType >= kTxLpByteTypeNum || mode > 1) {
        return paraErr(chip);
    }
    if (byteType == kTxLpByteG1) {
        return VQ6192_SDH_SetTxLpG1(chip, vc4, tug3, mode, value);
    }
    if (byteType == kTxLpByteB3) {
        return VQ6192_SDH_SetTxLpB3(chip, vc4, tug3, mode, value);
    }
    selectTxLo(chip, vc4, channel(tug3));
    wr(chip, kTxLoByteReg[byteType], value, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxLpByte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t byteType,
                                           uint8_t *mode, uint8_t *value) {
    if (badVc3(chip, vc4, tug3) || byteType >= kTxLpByteTypeNum || mode == nullptr || value == nullptr) {
        return paraErr(chip);
    }
    if (byteType == kTxLpByteG1) {
        return VQ6192_SDH_GetTxLpG1(chip, vc4, tug3, mode, value);
    }
    if (byteType == kTxLpByteB3) {
        return VQ6192_SDH_GetTxLpB3(chip, vc4, tug3, mode, value);
    }
    selectTxLo(chip, vc4, channel(tug3));
    *value = rd8(chip, kTxLoByteReg[byteType], 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetTxLpJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t mode,
                                         const uint8_t *msg) {
    if (badVc3(chip, vc4, tug3) || mode > 2 || msg == nullptr) {
        return paraErr(chip);
    }
    uint8_t trace[VQ6192_SDH_TRACE_LONG] = {};
    const uint32_t len = mode == 2 ? VQ6192_SDH_TRACE_LONG : VQ6192_SDH_TRACE_SHORT;
    if (vq::memcpy_s(trace, sizeof trace, msg, len) != 0) {
        return copyErr(chip);
    }
    if (mode == 1) {
        trace[0] = traceCrc(trace, VQ6192_SDH_TRACE_SHORT, false);
    } else if (mode == 2) {
        trace[62] = kTraceCr;
        trace[63] = kTraceLf;
    }
    const uint32_t c = channel(tug3);
    wr(chip, txLo(vc4, c) + kTxLoCfg, mode == 2 ? 1 : 0, 0);
    selectTxLo(chip, vc4, c);
    writeTrace(chip, kTxLoTraceIndex, kTxLoTraceData, trace, len);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxLpJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode,
                                         uint8_t *msg) {
    if (badVc3(chip, vc4, tug3) || mode == nullptr || msg == nullptr) {
        return paraErr(chip);
    }
    const uint32_t c = channel(tug3);
    const bool longTrace = rd(chip, txLo(vc4, c) + kTxLoCfg, 0) != 0;
    selectTxLo(chip, vc4, c);
    readTrace(chip, kTxLoTraceIndex, kTxLoTraceData, msg,
              longTrace ? VQ6192_SDH_TRACE_LONG : VQ6192_SDH_TRACE_SHORT);
    *mode = longTrace ? 2 : 1;
    return 0;
}

// J2 traces are 16 bytes; mode 1 puts the trace CRC in the first byte, modes 0 and 2 send the bytes as
// given.
VQ6192_API uint32_t VQ6192_SDH_SetTxLpJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint32_t mode, const uint8_t *msg) {
    if (badTu(chip, vc4, tug3, tu) || mode > 2 || msg == nullptr) {
        return paraErr(chip);
    }
    uint8_t trace[VQ6192_SDH_TRACE_SHORT] = {};
    if (vq::memcpy_s(trace, sizeof trace, msg, VQ6192_SDH_TRACE_SHORT) != 0) {
        return copyErr(chip);
    }
    if (mode == 1) {
        trace[0] = traceCrc(trace, VQ6192_SDH_TRACE_SHORT, false);
    }
    selectTxLo(chip, vc4, channel(tug3, tu));
    writeTrace(chip, kTxLoTraceIndex, kTxLoTraceData, trace, VQ6192_SDH_TRACE_SHORT);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxLpJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *msg) {
    if (badTu(chip, vc4, tug3, tu) || msg == nullptr) {
        return paraErr(chip);
    }
    selectTxLo(chip, vc4, channel(tug3, tu));
    readTrace(chip, kTxLoTraceIndex, kTxLoTraceData, msg, VQ6192_SDH_TRACE_SHORT);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetTxLpV5(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint32_t mode, uint32_t value) {
    if (badTu(chip, vc4, tug3, tu) || mode > 1) {
        return paraErr(chip);
    }
    const uint32_t c = channel(tug3, tu);
    writeBits(chip, txLo(vc4, c) + kTxLoCfg, kTxLoV5SwBits, 4, mode);
    selectTxLo(chip, vc4, c);
    wr(chip, kTxLoV5C2, value, 0, 8);
    return 0;
}

// Software V5 insertion is on only with all four bits set; a partial setting reads back as off and is
// cleared.
VQ6192_API uint32_t VQ6192_SDH_GetTxLpV5(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *mode, uint8_t *value) {
    if (badTu(chip, vc4, tug3, tu) || mode == nullptr || value == nullptr) {
        return paraErr(chip);
    }
    const uint32_t c = channel(tug3, tu);
    const uint32_t cfgAddr = txLo(vc4, c) + kTxLoCfg;
    const bool on = allSet(VQ6192_ReadReg(chip, cfgAddr), kTxLoV5SwBits, 4);
    if (!on) {
        writeBits(chip, cfgAddr, kTxLoV5SwBits, 4, 0);
    }
    selectTxLo(chip, vc4, c);
    *value = rd8(chip, kTxLoV5C2, 0, 8);
    *mode = on ? 1 : 0;
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetTxLpK4(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint32_t mode, uint32_t value) {
    if (badTu(chip, vc4, tug3, tu) || mode > 1) {
        return paraErr(chip);
    }
    const uint32_t c = channel(tug3, tu);
    wr(chip, txLo(vc4, c) + kTxLoCfg, mode, kTxLoK4SwBit);
    selectTxLo(chip, vc4, c);
    wr(chip, kTxLoK4K3, value, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxLpK4(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *mode, uint8_t *value) {
    if (badTu(chip, vc4, tug3, tu) || mode == nullptr || value == nullptr) {
        return paraErr(chip);
    }
    const uint32_t c = channel(tug3, tu);
    *mode = rd8(chip, txLo(vc4, c) + kTxLoCfg, kTxLoK4SwBit);
    selectTxLo(chip, vc4, c);
    *value = rd8(chip, kTxLoK4K3, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetTxLpN2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint32_t value) {
    if (badTu(chip, vc4, tug3, tu)) {
        return paraErr(chip);
    }
    selectTxLo(chip, vc4, channel(tug3, tu));
    wr(chip, kTxLoN2N1, value, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxLpN2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *value) {
    if (badTu(chip, vc4, tug3, tu) || value == nullptr) {
        return paraErr(chip);
    }
    selectTxLo(chip, vc4, channel(tug3, tu));
    *value = rd8(chip, kTxLoN2N1, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetTxLpB3Err(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t value,
                                            uint32_t mode) {
    if (badVc3(chip, vc4, tug3) || mode > 2) {
        return paraErr(chip);
    }
    // Errors go into the chip's own B3 only, not into a B3 the software inserts.
    uint8_t swMode = 0;
    uint8_t swValue = 0;
    uint32_t st = VQ6192_SDH_GetTxLpB3(chip, vc4, tug3, &swMode, &swValue);
    if (st == 0 && swMode != 0) {
        st = status(chip, kErrPrereq);
    }
    if (st != 0) {
        VQ6192_Printf(chip, VQ6192_MODULE_SDH, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. chipid %d VQ6192_SDH_SetTxLpB3Err.VQ6192_SDH_GetTxLpB3(%u,%u)       "
                      "ErrCode[%#x]\r\n",
                      static_cast<int>(chip), vc4, tug3, st);
        return st;
    }
    wr(chip, txLo(vc4, channel(tug3)) + kTxLoErr, mode == 0 ? 0 : kB3ErrMode[mode] + value, 0, 10);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxLpB3Err(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *value,
                                            uint8_t *mode) {
    if (badVc3(chip, vc4, tug3) || value == nullptr || mode == nullptr) {
        return paraErr(chip);
    }
    const uint32_t field = rd(chip, txLo(vc4, channel(tug3)) + kTxLoErr, 0, 10);
    *value = static_cast<uint8_t>(field & 0xFFu);
    *mode = decodeB3ErrMode(field);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetTxLpV5Bip2Err(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                uint32_t value, uint32_t mode) {
    if (badTu(chip, vc4, tug3, tu) || mode > 2) {
        return paraErr(chip);
    }
    // Errors go into the chip's own BIP-2 only, not into a V5 the software inserts.
    uint8_t swMode = 0;
    uint8_t swValue = 0;
    uint32_t st = VQ6192_SDH_GetTxLpV5(chip, vc4, tug3, tu, &swMode, &swValue);
    if (st == 0 && swMode != 0) {
        st = status(chip, kErrPrereq);
    }
    if (st != 0) {
        VQ6192_Printf(chip, VQ6192_MODULE_SDH, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. chipid %d VQ6192_SDH_SetTxLpV5Bip2Err.VQ6192_SDH_GetTxLpV5(%u,%u,%u)       "
                      "ErrCode[%#x]\r\n",
                      static_cast<int>(chip), vc4, tug3, tu, st);
        return st;
    }
    wr(chip, txLo(vc4, channel(tug3, tu)) + kTxLoErr, mode == 0 ? 0 : kBip2ErrMode[mode] + value, 0, 10);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetTxLpV5Bip2Err(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                uint8_t *byB2, uint8_t *byB2Mode) {
    if (badTu(chip, vc4, tug3, tu) || byB2 == nullptr || byB2Mode == nullptr) {
        return paraErr(chip);
    }
    const uint32_t field = rd(chip, txLo(vc4, channel(tug3, tu)) + kTxLoErr, 0, 10);
    const uint32_t m = (field >> 2) & 3u;
    *byB2 = static_cast<uint8_t>(field & 3u);
    *byB2Mode = static_cast<uint8_t>(m >= 2 ? m - 1 : 0);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxLpVc3Byte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t byteType,
                                              uint8_t *value) {
    if (badVc3(chip, vc4, tug3) || byteType >= kRxVc3ByteTypeNum || value == nullptr) {
        return paraErr(chip);
    }
    selectRxLo(chip, vc4, channel(tug3));
    *value = rd8(chip, kRxLoBytes + kRxByte[byteType].offset, kRxByte[byteType].bit, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxLpVc12Byte(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                               uint32_t byteType, uint8_t *value) {
    if (badTu(chip, vc4, tug3, tu) || byteType >= kRxVc12ByteTypeNum || value == nullptr) {
        return paraErr(chip);
    }
    selectRxLo(chip, vc4, channel(tug3, tu));
    *value = rd8(chip, kRxVc12ByteReg[byteType], kRxVc12ByteBit[byteType], 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxLpV5(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *value) {
    if (badTu(chip, vc4, tug3, tu) || value == nullptr) {
        return paraErr(chip);
    }
    selectRxLo(chip, vc4, channel(tug3, tu));
    *value = rd8(chip, kRxVc12ByteReg[0], kRxVc12ByteBit[0], 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxLpJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode,
                                         uint8_t *msg) {
    if (badVc3(chip, vc4, tug3) || mode == nullptr || msg == nullptr) {
        return paraErr(chip);
    }
    const uint32_t c = channel(tug3);
    selectRxLo(chip, vc4, c);
    const bool longTrace = rd(chip, rxLo(vc4, c) + kRxLoCfg, 0) != 0;
    readTrace(chip, kRxLoTraceIndex, kRxLoTraceData, msg,
              longTrace ? VQ6192_SDH_TRACE_LONG : VQ6192_SDH_TRACE_SHORT);
    *mode = longTrace ? 2 : 1;
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxLpJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                         uint8_t *mode, uint8_t *msg) {
    if (badTu(chip, vc4, tug3, tu) || mode == nullptr || msg == nullptr) {
        return paraErr(chip);
    }
    selectRxLo(chip, vc4, channel(tug3, tu));
    readTrace(chip, kRxLoTraceIndex, kRxLoTraceData, msg, VQ6192_SDH_TRACE_SHORT);
    *mode = 0;
    return 0;
}

// The receiver compares a signature of the expected trace: its CRC-7 and a byte sum. Mode 2 (64 bytes):
// CRC over all 64 bytes as stored, sum of bytes 0..61; modes 0, 1 and 4 (16 bytes): CRC with the first
// byte as 0x80, sum of bytes 1..15.
VQ6192_API uint32_t VQ6192_SDH_SetRxLpShouldJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t mode,
                                               const uint8_t *msg) {
    if (badVc3(chip, vc4, tug3) || mode == 3 || mode > 4 || msg == nullptr) {
        return paraErr(chip);
    }
    uint8_t trace[VQ6192_SDH_TRACE_LONG] = {};
    if (vq::memcpy_s(trace, sizeof trace, msg, VQ6192_SDH_TRACE_LONG) != 0) {
        return copyErr(chip);
    }
    trace[62] = kTraceCr;
    trace[63] = kTraceLf;
    const bool longTrace = mode == 2;
    const uint32_t crc = longTrace ? traceCrc(trace, VQ6192_SDH_TRACE_LONG, true)
                                   : traceCrc(trace, VQ6192_SDH_TRACE_SHORT, false);
    const uint32_t sum = longTrace ? byteSum(trace, 0, 61) : byteSum(trace, 1, 15);
    const uint32_t c = channel(tug3);
    writeSignature(chip, vc4, c, crc, sum);
    wr(chip, rxLo(vc4, c) + kRxLoCfg, longTrace ? 1 : 0, 0);
    if (longTrace) {
        VQ6192_WriteReg(chip, rxLo(vc4, c) + kRxLoLast, kTraceLast);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxLpShouldJ1(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *mode,
                                               uint8_t *crc, uint8_t *sum, uint16_t *last) {
    if (badVc3(chip, vc4, tug3) || mode == nullptr || crc == nullptr || sum == nullptr || last == nullptr) {
        return paraErr(chip);
    }
    const uint32_t c = channel(tug3);
    const uint32_t sig = VQ6192_ReadReg(chip, rxLo(vc4, c) + kRxLoSig);
    *mode = rd(chip, rxLo(vc4, c) + kRxLoCfg, 0) != 0 ? 2 : 0;
    *crc = static_cast<uint8_t>((sig >> 8) & 0x7Fu);
    *sum = static_cast<uint8_t>(sig & 0xFFu);
    *last = static_cast<uint16_t>(VQ6192_ReadReg(chip, rxLo(vc4, c) + kRxLoLast));
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetRxLpShouldJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                               const uint8_t *msg, uint32_t ignored) {
    (void)ignored;
    if (badTu(chip, vc4, tug3, tu) || msg == nullptr) {
        return paraErr(chip);
    }
    uint8_t trace[VQ6192_SDH_TRACE_SHORT] = {};
    if (vq::memcpy_s(trace, sizeof trace, msg, VQ6192_SDH_TRACE_SHORT) != 0) {
        return copyErr(chip);
    }
    writeSignature(chip, vc4, channel(tug3, tu), traceCrc(trace, VQ6192_SDH_TRACE_SHORT, false),
                   byteSum(trace, 1, 15));
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxLpShouldJ2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                               uint8_t *crc, uint8_t *sum) {
    if (badTu(chip, vc4, tug3, tu) || crc == nullptr || sum == nullptr) {
        return paraErr(chip);
    }
    const uint32_t sig = VQ6192_ReadReg(chip, rxLo(vc4, channel(tug3, tu)) + kRxLoSig);
    *crc = static_cast<uint8_t>((sig >> 8) & 0x7Fu);
    *sum = static_cast<uint8_t>(sig & 0xFFu);
    return 0;
}

// C2 is one byte: larger values are refused rather than cut.
VQ6192_API uint32_t VQ6192_SDH_SetRxLpShouldC2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t c2) {
    if (badVc3(chip, vc4, tug3) || c2 > 0xFF) {
        return paraErr(chip);
    }
    wr(chip, rxLo(vc4, channel(tug3)) + kRxLoLabel, c2, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxLpShouldC2(uint32_t chip, uint32_t vc4, uint32_t tug3, uint8_t *c2) {
    if (badVc3(chip, vc4, tug3) || c2 == nullptr) {
        return paraErr(chip);
    }
    *c2 = rd8(chip, rxLo(vc4, channel(tug3)) + kRxLoLabel, 0, 8);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetRxLpShouldV5SgnlLbl(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                      uint32_t label) {
    if (badTu(chip, vc4, tug3, tu) || label > 7) {
        return paraErr(chip);
    }
    wr(chip, rxLo(vc4, channel(tug3, tu)) + kRxLoLabel, label, 8, 3);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetRxLpShouldV5SgnlLbl(uint32_t chip, uint32_t vc4, uint32_t tug3, uint32_t tu,
                                                      uint8_t *label) {
    if (badTu(chip, vc4, tug3, tu) || label == nullptr) {
        return paraErr(chip);
    }
    *label = rd8(chip, rxLo(vc4, channel(tug3, tu)) + kRxLoLabel, 8, 3);
    return 0;
}

}  // extern "C"
