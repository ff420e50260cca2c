// The software DDR 3-step test: data lines (step 1: all zeros and all ones; step 2: walking one and
// walking zero) and address lines (step 3: one address per line with the line's bits cleared, then
// with only the line's bits set), all through the 64-byte block access.
#include <cstring>

#include "chip/chip_util.h"
#include "vq6192/chip.h"

using namespace vq::chip;

// Every stage reports through the trace point at level 4.
#define DDR3_TRACE(chip, ...) \
    VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO, __VA_ARGS__)

namespace {

constexpr uint32_t kZeroAddr = 0x0FFF7FE0;  // step 1, all zeros
constexpr uint32_t kDataAddr = 0x0FEFFF60;  // step 1 all ones, step 2
constexpr uint32_t kDataBytes = 16;         // 8 words
constexpr uint32_t kMarkBytes = 8;          // 4 words
constexpr uint32_t kDataBits = 32;

// Address lines A0..A12, BA0..BA2, then the base address (ALL).
constexpr uint32_t kLines = 16;
constexpr uint32_t kAll = 16;
constexpr uint32_t kAddrs = 17;
constexpr const char *kLineName[kLines] = {"A0", "A1", "A2",  "A3",  "A4",  "A5",  "A6",  "A7",
                                           "A8", "A9", "A10", "A11", "A12", "BA0", "BA1", "BA2"};
constexpr uint8_t kLineCode[kLines] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 50, 51, 52};
// Step 3a: the base 0x0FFFFFE0 with the bits of one line cleared (row, and column for A3..A9).
constexpr uint32_t kStep3aAddr[kAddrs] = {0x0FFF7FE0, 0x0FFEFFE0, 0x0FFDFFE0, 0x0FFBFFC0, 0x0FF7FFA0,
                                          0x0FEFFF60, 0x0FDFFEE0, 0x0FBFFDE0, 0x0F7FFBE0, 0x0EFFF7E0,
                                          0x0DFFFFE0, 0x0BFFFFE0, 0x07FFFFE0, 0x0FFFEFE0, 0x0FFFDFE0,
                                          0x0FFFBFE0, 0x0FFFFFE0};
// Step 3b: only the bits of one line set.
constexpr uint32_t kStep3bAddr[kAddrs] = {0x00008000, 0x00010000, 0x00020000, 0x00040020, 0x00080040,
                                          0x00100080, 0x00200100, 0x00400200, 0x00800400, 0x01000800,
                                          0x02000000, 0x04000000, 0x08000000, 0x00001000, 0x00002000,
                                          0x00004000, 0x00000000};
constexpr uint32_t kStep3bMark[kAddrs] = {0x00008000, 0x00010000, 0x00020000, 0x00040000, 0x00000020,
                                          0x00080000, 0x00000040, 0x00100000, 0x00000080, 0x00200000,
                                          0x00000100, 0x00400000, 0x00000200, 0x00800000, 0x00000400,
                                          0x01000000, 0xFF0000FF};

enum class LineCode { None, BaseEqual, Aliased, Wrong };

struct Test {
    uint32_t chip;
    uint8_t *status;
    VQ6192_DDR3STEP_CTX *ctx;
};

// The 32-bit data value of a block: the low bytes of its first four words, word 3 most significant.
uint32_t assemble(const uint16_t w[]) {
    return (w[0] & 0xFFu) | (w[1] & 0xFFu) << 8 | (w[2] & 0xFFu) << 16 |
           static_cast<uint32_t>(w[3] & 0xFFu) << 24;
}

// A data block whose word k carries byte k of the value in both of its bytes.
void spread(uint32_t value, uint16_t w[]) {
    for (uint32_t k = 0; k < 4; ++k) {
        const uint32_t byte = (value >> (8 * k)) & 0xFFu;
        w[k] = static_cast<uint16_t>(byte | byte << 8);
    }
}

uint32_t step1(const Test &t) {
    const uint32_t chip = t.chip;
    DDR3_TRACE(chip, "\nStep 1: data bus testing (step 1)...\n");
    uint16_t w[kDdrBlockWords] = {};
    uint16_t r[kDdrBlockWords] = {};
    uint32_t rc = VQ6192_Base_WriteDdr64Bytes(chip, kZeroAddr, w, kDataBytes);
    if (rc != 0) {
        DDR3_TRACE(chip, " : WriteDdrDword:[0x%x] Data to Reg Failed, ulRtn = %d \n", kZeroAddr,
                   static_cast<int>(rc));
        return rc;
    }
    rc = VQ6192_Base_ReadDdr64Bytes(chip, kZeroAddr, r, 0, kDataBytes);
    if (rc != 0) {
        DDR3_TRACE(chip, " : ReadDdrDword:[0x%x] Data From Reg Failed!\n", kZeroAddr);
        return rc;
    }
    const uint32_t ones = assemble(r);
    for (uint32_t i = 0; i < kDataBits; ++i) {
        if (bit(ones, i) != 0) {
            DDR3_TRACE(chip, "data[%d] is Stuck-open-1 fault\n", static_cast<int>(i));
            t.status[1] = VQ6192_DDR3STEP_STUCK_OPEN_1;
            t.status[2] = static_cast<uint8_t>(i);
            t.ctx->ulStuckOpen1Mask |= 1u << i;
        }
    }
    if (ones != 0) {
        return VQ6192_DDR3STEP_FAULT;
    }

    w[0] = w[1] = w[2] = w[3] = 0xFFFF;
    rc = VQ6192_Base_WriteDdr64Bytes(chip, kDataAddr, w, kDataBytes);
    if (rc != 0) {
        DDR3_TRACE(chip, " : WriteDdrDword:[0x%x] Data From Reg Failed!\n", kDataAddr);
        return rc;
    }
    rc = VQ6192_Base_ReadDdr64Bytes(chip, kDataAddr, r, 0, kDataBytes);
    if (rc != 0) {
        DDR3_TRACE(chip, " : ReadDdrDword:[0x%x] Data From Reg Failed!\n", kDataAddr);
        return rc;
    }
    const uint32_t zeros = ~assemble(r);
    for (uint32_t i = 0; i < kDataBits; ++i) {
        if (bit(zeros, i) != 0) {
            DDR3_TRACE(chip, "data[%d] is Stuck-open-0 fault\n", static_cast<int>(i));
            t.status[1] = VQ6192_DDR3STEP_STUCK_OPEN_0;
            t.status[2] = static_cast<uint8_t>(i);
            t.ctx->ulStuckOpen0Mask |= 1u << i;
        }
    }
    if (zeros != 0) {
        return VQ6192_DDR3STEP_FAULT;
    }
    DDR3_TRACE(chip, "\nStep 1 PASS!");
    t.status[0] = 2;
    return 0;
}

// Writes the pattern of every data bit (walking one, or walking zero) and reads each back.
uint32_t walk(const Test &t, bool zero, uint32_t readBack[]) {
    const uint32_t chip = t.chip;
    uint16_t w[kDdrBlockWords] = {};
    uint16_t r[kDdrBlockWords] = {};
    for (uint32_t i = 0; i < kDataBits; ++i) {
        const uint32_t pattern = zero ? ~(1u << i) : 1u << i;
        spread(pattern, w);
        uint32_t rc = VQ6192_Base_WriteDdr64Bytes(chip, kDataAddr, w, kDataBytes);
        if (rc != 0) {
            if (zero) {
                DDR3_TRACE(chip, "\n Step 2b: write err and write addr is:0x%x", kDataAddr);
            } else {
                DDR3_TRACE(chip, "\n Step 2a: write err and write addr is:0x%x", kDataAddr);
            }
            return rc;
        }
        rc = VQ6192_Base_ReadDdr64Bytes(chip, kDataAddr, r, 0, kDataBytes);
        if (rc != 0) {
            if (zero) {
                DDR3_TRACE(chip, "\n Step 2b: Read err at:0x%x\n", kDataAddr);
            } else {
                DDR3_TRACE(chip, "\n Step 2a: Read err and write addr:0x%x", kDataAddr);
            }
            return rc;
        }
        readBack[i] = assemble(r);
    }
    return 0;
}

// Judges every data bit i from its two read-backs a (after 1 << i) and b (after ~(1 << i)), taken as
// whole 32-bit words: both zero is stuck-at-0, a zero with b one is stuck-at-1; otherwise every
// later bit with the same two read-backs is shorted to it.
uint32_t step2(const Test &t) {
    const uint32_t chip = t.chip;
    uint32_t a[kDataBits] = {};
    uint32_t b[kDataBits] = {};
    DDR3_TRACE(chip, "\nStep 2a: data bus testing (step 1)...");
    uint32_t rc = walk(t, false, a);
    if (rc != 0) {
        return rc;
    }
    DDR3_TRACE(chip, "\nStep 2a PASS!");
    DDR3_TRACE(chip, "\r\nStep 2b: data bus testing (step 0)...");
    rc = walk(t, true, b);
    if (rc != 0) {
        return rc;
    }
    DDR3_TRACE(chip, "\nStep 2b PASS!\n");

    bool fault = false;
    for (uint32_t i = 0; i < kDataBits; ++i) {
        const uint32_t one = 1u << i;
        const uint32_t zero = ~one;
        if (a[i] == 0 && b[i] == 0) {
            DDR3_TRACE(chip, "\n Step 2: data[%d] is S-A-0 fault\n", static_cast<int>(i));
            t.status[3] = VQ6192_DDR3STEP_STUCK_AT_0;
            t.status[4] = static_cast<uint8_t>(i);
            t.ctx->ulStuckAt0Mask |= one;
            fault = true;
            continue;
        }
        if (a[i] == 0 && b[i] == 1) {
            DDR3_TRACE(chip, "\n Step 2: data[%d] is S-A-1 fault\n", static_cast<int>(i));
            t.status[3] = VQ6192_DDR3STEP_STUCK_AT_1;
            t.status[4] = static_cast<uint8_t>(i);
            t.ctx->ulStuckAt1Mask |= one;
            fault = true;
            continue;
        }
        for (uint32_t j = i + 1; j < kDataBits; ++j) {
            if (a[j] != a[i] || b[j] != b[i]) {
                continue;
            }
            if ((a[i] & one) != 0 && (b[i] & zero) == zero) {
                DDR3_TRACE(chip, "\n Step 2: data[%d] and data[%d] is Stuck-short-1 fault\n",
                           static_cast<int>(i), static_cast<int>(j));
                t.status[3] = VQ6192_DDR3STEP_SHORT_1;
                t.ctx->ulShort1Mask |= one;
            } else if ((a[i] & zero) == 0 && (b[i] & one) == 0) {
                DDR3_TRACE(chip, "\n Step 2: data[%d] and data[%d] is Stuck-short-0 fault\n",
                           static_cast<int>(i), static_cast<int>(j));
                t.status[3] = VQ6192_DDR3STEP_SHORT_0;
                t.ctx->ulShort0Mask |= one;
            } else {
                continue;
            }
            t.status[4] = static_cast<uint8_t>(i);
            t.status[6] = static_cast<uint8_t>(j);
            fault = true;
        }
    }
    if (fault) {
        return VQ6192_DDR3STEP_FAULT;
    }
    DDR3_TRACE(chip, "\nStep 2 PASS!");
    t.status[0] = 3;
    return 0;
}

// Writes every mark to its address (low half in word 0, high half in word 1), then reads all back.
uint32_t markAddresses(const Test &t, const uint32_t addr[], const uint32_t mark[], uint32_t readBack[]) {
    uint16_t w[kDdrBlockWords] = {};
    uint16_t r[kDdrBlockWords] = {};
    for (uint32_t i = 0; i < kAddrs; ++i) {
        w[0] = static_cast<uint16_t>(mark[i] & 0xFFFFu);
        w[1] = static_cast<uint16_t>(mark[i] >> 16);
        const uint32_t rc = VQ6192_Base_WriteDdr64Bytes(t.chip, addr[i], w, kMarkBytes);
        if (rc != 0) {
            return rc;
        }
    }
    for (uint32_t i = 0; i < kAddrs; ++i) {
        const uint32_t rc = VQ6192_Base_ReadDdr64Bytes(t.chip, addr[i], r, 0, kMarkBytes);
        if (rc != 0) {
            return rc;
        }
        readBack[i] = r[0] | static_cast<uint32_t>(r[1]) << 16;
    }
    return 0;
}

LineCode judgeLine(uint32_t line, const uint32_t readBack[], const uint32_t mark[]) {
    if (readBack[line] == readBack[kAll]) {
        return LineCode::BaseEqual;
    }
    for (uint32_t other = 0; other < kLines; ++other) {
        if (other != line && readBack[other] == readBack[line]) {
            return LineCode::Aliased;
        }
    }
    return readBack[line] != mark[line] ? LineCode::Wrong : LineCode::None;
}

uint32_t step3(const Test &t) {
    const uint32_t chip = t.chip;
    uint32_t markA[kAddrs] = {};
    uint32_t readA[kAddrs] = {};
    uint32_t readB[kAddrs] = {};
    for (uint32_t i = 0; i < kAddrs; ++i) {
        markA[i] = ~(1u << i);
    }
    DDR3_TRACE(chip, "\r\nStep 3a: Addr bus testing (step 0)...\n");
    uint32_t rc = markAddresses(t, kStep3aAddr, markA, readA);
    if (rc != 0) {
        return rc;
    }
    for (uint32_t i = 0; i < kAddrs; ++i) {
        DDR3_TRACE(chip, " 3a. aulTestStep3DataMask0[%u]=%#x\n", i, markA[i]);
        DDR3_TRACE(chip, " 3a. aulTemReadData0[%u]=%#x\n", i, readA[i]);
    }
    DDR3_TRACE(chip, "\r\nStep 3b: Addr bus testing (step 1)...\n");
    rc = markAddresses(t, kStep3bAddr, kStep3bMark, readB);
    if (rc != 0) {
        return rc;
    }
    for (uint32_t i = 0; i < kAddrs; ++i) {
        DDR3_TRACE(chip, " 3b. aulTestStep3DataMask1[%u]=%#x\n", i, kStep3bMark[i]);
        DDR3_TRACE(chip, " 3b. aulTemReadData1[%u]=%#x\n", i, readB[i]);
    }

    bool fault = false;
    for (uint32_t line = 0; line < kLines; ++line) {
        const LineCode a = judgeLine(line, readA, markA);
        const LineCode b = judgeLine(line, readB, kStep3bMark);
        const uint32_t lineBit = 1u << line;
        if (a == LineCode::BaseEqual && b == LineCode::BaseEqual) {
            DDR3_TRACE(chip, "\nStep 3ab: %s is Stuck-Short-x fault\n", kLineName[line]);
            t.ctx->ulAddrShortXMask |= lineBit;
            t.status[5] = 0;
        } else if (a == LineCode::BaseEqual || b == LineCode::BaseEqual) {
            DDR3_TRACE(chip, "\nStep 3ab: %s is S-A-1 or S-A-0 fault\n", kLineName[line]);
            t.ctx->ulAddrStuckAtMask |= lineBit;
            t.status[5] = VQ6192_DDR3STEP_ADDR_STUCK_AT;
        } else if (a == LineCode::Aliased || b == LineCode::Aliased) {
            DDR3_TRACE(chip, "\nStep 3ab: %s is Stuck-Short-1 or Stuck-Short-0 fault\n", kLineName[line]);
            t.ctx->ulAddrShortMask |= lineBit;
            t.status[5] = VQ6192_DDR3STEP_ADDR_SHORT;
        } else if (a == LineCode::Wrong || b == LineCode::Wrong) {
            DDR3_TRACE(chip, "\nStep 3ab: %s is Un-Know fault\n", kLineName[line]);
            t.ctx->ulAddrUnknownMask |= lineBit;
            t.status[5] = 0;
        } else {
            continue;
        }
        t.status[6] = kLineCode[line];
        fault = true;
    }
    if (fault) {
        return VQ6192_DDR3STEP_FAULT;
    }
    DDR3_TRACE(chip, "\nStep 3a PASS! \n");
    t.status[0] = 0;
    return 0;
}

}  // namespace

extern "C" {

// failed: VQ6192_DDR3STEP_STATUS_NUM status bytes (see chip.h).
VQ6192_API uint32_t VQ6192_Base_DDR3StepTest(uint32_t chip, uint8_t *failed, VQ6192_DDR3STEP_CTX *ctx) {
    if (!vq::validChip(chip) || failed == nullptr || ctx == nullptr) {
        return baseParaErr(chip);
    }
    std::memset(failed, 0, VQ6192_DDR3STEP_STATUS_NUM);
    std::memset(ctx, 0, sizeof *ctx);
    failed[0] = 1;
    const Test t{chip, failed, ctx};
    uint32_t rc = step1(t);
    if (rc == 0) {
        rc = step2(t);
    }
    if (rc == 0) {
        rc = step3(t);
    }
    return rc;
}

}  // extern "C"
