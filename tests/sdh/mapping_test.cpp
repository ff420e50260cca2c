// Line mode, AU-3 mapping and its read-back, the mapping's waits, loopbacks and switches; path traces:
// the trace CRC-7 against independently known values, traces sent and read through the selector pages,
// and the expected-trace signature the receiver compares.
#include <map>
#include <numeric>

#include "sdh/sdh_test.h"
#include "vq6192/sim/framers.h"

namespace sdhtest {
namespace {

using vq6192::sim::Framers;

// The mapper register field behind each column of the map configuration, from the chip's register
// map: register and lowest bit, how each moves with the VC-4 and with the slot (3 x VC-4 + AU-3), and
// the number of receive high-order blocks (0x100 apart) written; 0 for a check column.
struct Target {
    uint32_t reg, regPerVc4, regPerSlot, bit, bitPerVc4, bitPerSlot, copies;
};
const Target kTargets[20] = {
    {0x24000, 0, 0, 8, 0, 0, 1},    {0x24000, 0, 0, 0, 1, 0, 1},    {0x24002, 0, 0, 13, 0, 0, 1},
    {0x24006, 0, 0, 14, 0, 0, 1},   {0x2080E, 0, 0, 0, 0, 1, 1},    {0x2C002, 0, 0, 4, 1, 0, 1},
    {0x2C002, 0, 0, 0, 1, 0, 1},    {0x20006, 0, 0, 0, 0, 0, 0},    {0x2C380, 0, 0, 0, 2, 0, 1},
    {0x2C040, 0x40, 0, 0, 0, 0, 3}, {0x2C000, 0, 0, 1, 0, 0, 1},    {0x202C, 2, 0, 0, 0, 0, 1},
    {0x2A020, 0, 0, 5, 0, 0, 1},    {0x202A, 0, 0, 0, 0, 0, 1},     {0x2400C, 0, 0, 0, 0, 0, 1},
    {0x2400C, 0, 0, 2, 0, 0, 1},    {0x000E, 0, 0, 2, 0, 0, 0},     {0x000E, 0, 0, 1, 0, 0, 0},
    {0x29282, 0, 0, 0, 0, 1, 1},    {0x2B602, 0, 0x20, 0, 0, 0, 1},
};

// The map configuration of VC-4 0, typed from the chip documentation: rows are map types, columns the
// targets below, '-' a register left alone. VC-4s 1 to 3 leave columns 2 and 3 alone in rows 6, 7, 8, 11
// and 12.
const char *const kMapCfg[14] = {
    "- - - - - 1 - 0 - - - 2 - - - - - - - -", "- - - - - 0 1 0 - - - 2 - - - - - - - -",
    "0 0 1 1 - 0 0 - - - - 0 0 1 1 0 - 0 - -", "1 1 1 1 - 0 0 - - - - 0 7 0 0 - - 1 - -",
    "- - - - 0 0 0 - - - - 1 - - - - 0 - 1 1", "- - - - 0 0 0 - - - - 1 - - - - 1 - 0 0",
    "0 0 0 0 - 0 0 0 0 1 0 0 - 1 1 0 - 0 - -", "1 1 0 0 - 0 0 0 2 1 0 0 - 1 0 - - 1 - -",
    "1 1 0 0 - 0 0 0 1 1 0 0 - 1 1 2 - 1 - -", "- - - - 1 0 0 0 - 3 0 1 - - - - 0 - 1 1",
    "- - - - 1 0 0 0 - 2 0 1 - - - - 1 - 0 0", "0 0 0 0 - 0 0 1 0 1 1 0 - 1 1 0 - 0 - -",
    "1 1 0 0 - 0 0 1 0 0 1 0 - 0 0 - - 1 - -", "- - - - 1 0 0 1 - 2 1 1 - - - - 1 - 0 0",
};

// Column `col` of row `type` for VC-4 `vc4`; -1 for a dash.
int mapCfg(uint32_t vc4, uint32_t type, uint32_t col) {
    const char cell = kMapCfg[type][2 * col];
    const bool leftAlone = vc4 != 0 && (col == 2 || col == 3) &&
                           (type == 6 || type == 7 || type == 8 || type == 11 || type == 12);
    return cell == '-' || leftAlone ? -1 : cell - '0';
}

// Registers after writing one table row on a chip whose registers were all 0 but for the modes.
std::map<uint32_t, uint16_t> expectedRegisters(uint32_t line, uint32_t tdm, uint32_t vc4, uint32_t au3,
                                               uint32_t type) {
    std::map<uint32_t, uint16_t> regs{{0x20006, line}, {0x000E, tdm * 6}};
    const uint32_t slot = 3 * vc4 + au3;
    for (uint32_t col = 0; col < 20; ++col) {
        const Target &t = kTargets[col];
        const int value = mapCfg(vc4, type, col);
        for (uint32_t k = 0; value >= 0 && k < t.copies; ++k) {
            uint16_t &reg = regs[t.reg + t.regPerVc4 * vc4 + t.regPerSlot * slot + 0x100 * k];
            reg = static_cast<uint16_t>(reg | (value << (t.bit + t.bitPerVc4 * vc4 + t.bitPerSlot * slot)));
        }
    }
    return regs;
}

// The exported tables are the documented ones, dashes as 0xFFFF; rows that no mode accepts included.
TEST(SdhMapTables, ExportedTablesAreTheDocumentedOnes) {
    for (uint32_t type = 0; type < 14; ++type) {
        for (uint32_t col = 0; col < 20; ++col) {
            for (uint32_t vc4 : {0u, 1u}) {
                const int want = mapCfg(vc4, type, col);
                const uint16_t got =
                    (vc4 == 0 ? g_aausVQ6192SDHMapCfg0 : g_aausVQ6192SDHMapCfg123)[type][col];
                EXPECT_EQ(got, want < 0 ? 0xFFFF : want)
                    << "VC-4 " << vc4 << " type " << type << " column " << col;
            }
        }
    }
}

// Map type read back after setting each type on a fresh chip, per line mode, TDM mode and VC-4
// (0, or 1..3); -1: the setter refuses it.
const int kReadBack[2][2][2][14] = {
    {{{0, 1, 2, -1, 4, -1, 6, -1, -1, 9, -1, -1, -1, -1},
      {0, 1, -1, -1, 4, -1, 6, -1, -1, 9, -1, -1, -1, -1}},
     {{0, 1, -1, 3, -1, 5, -1, 7, 8, -1, 10, -1, -1, -1},
      {0, 1, -1, -1, -1, 5, -1, 7, 8, -1, 10, -1, -1, -1}}},
    {{{-1, -1, 2, -1, 4, -1, -1, -1, -1, -1, -1, 11, -1, -1},
      {-1, -1, -1, -1, 4, -1, -1, -1, -1, -1, -1, 11, -1, -1}},
     {{-1, -1, -1, 3, -1, 5, -1, -1, -1, -1, -1, -1, 12, 13},
      {-1, -1, -1, -1, -1, 5, -1, -1, -1, -1, -1, -1, 12, 13}}},
};

class SdhMapTest : public SdhTest {
  protected:
    void setModes(uint32_t line, uint32_t tdm) {
        model.reset();
        model.poke(0x20006, static_cast<uint16_t>(line));
        model.poke(0x000E, static_cast<uint16_t>(tdm * 6));
    }
};

TEST_F(SdhMapTest, EveryTypeOnEverySlotUnderEveryMode) {
    // Every line mode, TDM mode, slot (VC-4, AU-3) and map type.
    for (uint32_t n = 0; n < 2 * 2 * 4 * 3 * 14; ++n) {
        const uint32_t line = n / 336, tdm = n / 168 % 2, vc4 = n / 42 % 4, au3 = n / 14 % 3, type = n % 14;
        SCOPED_TRACE(testing::Message() << "line " << line << " tdm " << tdm << " slot " << vc4 << "/" << au3
                                        << " type " << type);
        setModes(line, tdm);
        const int readBack = kReadBack[line][tdm][vc4 == 0 ? 0 : 1][type];
        uint32_t rc = 0;
        const auto written =
            vqtest::writes(traced([&] { rc = VQ6192_SDH_SetSDHMap(kChip, vc4, au3, type); }));
        if (readBack < 0) {
            EXPECT_EQ((Ints{rc, written.empty()}), ints(kParaErr, true)) << "a refused map writes nothing";
            continue;
        }
        ASSERT_EQ(rc, 0u);
        const auto expected = expectedRegisters(line, tdm, vc4, au3, type);
        // Nothing else is left set (T1 structures pulse the framer channel resets, which end at 0).
        for (const auto &w : written) {
            const auto it = expected.find(w.addr);
            EXPECT_EQ(model.peek(w.addr), it == expected.end() ? 0 : it->second) << std::hex << w.addr;
        }
        for (const auto &[addr, value] : expected) {
            EXPECT_EQ(model.peek(addr), value) << std::hex << addr;
        }
        uint8_t got = 0;
        EXPECT_EQ((Ints{VQ6192_SDH_GetSDHMap(kChip, vc4, au3, &got), got}), ints(0, readBack));
    }
}

// The E3/DS3 bit (2) and the E1/T1 bit (1) of the TDM mode register are checked each on its own: with
// only one of them set, the rows needing the other value are refused.
TEST_F(SdhMapTest, ModeChecksReadTheirOwnBit) {
    const struct {
        uint16_t tdmReg;
        uint32_t type, status;
    } cases[] = {
        {0x0004, 4, kParaErr}, {0x0004, 5, 0},        {0x0004, 2, 0},        {0x0004, 3, kParaErr},
        {0x0002, 4, 0},        {0x0002, 5, kParaErr}, {0x0002, 2, kParaErr}, {0x0002, 3, 0},
    };
    for (const auto &c : cases) {
        setModes(0, 0);
        model.poke(0x000E, c.tdmReg);
        EXPECT_EQ(VQ6192_SDH_SetSDHMap(kChip, 0, 0, c.type), c.status) << c.tdmReg << " type " << c.type;
    }
}

TEST_F(SdhMapTest, ReadBackPrefersTheHigherTypeAndReportsNoMatch) {
    setModes(0, 1);
    ASSERT_EQ(VQ6192_SDH_SetSDHMap(kChip, 1, 2, 8), 0u);
    ASSERT_EQ(VQ6192_SDH_SetSDHMap(kChip, 1, 2, 7), 0u);  // leaves column 15 at 2; row 8 fails on 14
    uint8_t type = 0;
    EXPECT_EQ((Ints{VQ6192_SDH_GetSDHMap(kChip, 1, 2, &type), type}), ints(0, 7));

    // Disagreeing VT/TU types of the three receive blocks.
    model.poke(0x2C140 + 0x40, 3);
    EXPECT_EQ((Ints{VQ6192_SDH_GetSDHMap(kChip, 1, 0, &type), type}), ints(0x03080006, NULL_MAP_PATH));
    // Registers no row describes.
    setModes(0, 0);
    model.poke(0x202C, 3);
    EXPECT_EQ((Ints{VQ6192_SDH_GetSDHMap(kChip, 0, 0, &type), type}), ints(0x03080006, NULL_MAP_PATH));
    EXPECT_EQ(capture.traceTexts(), (std::vector<std::string>{
                                        "Err. VQ6192_SDH_GetSDHMap.VQ6192_MAP_STRUC1_ReadVttuType(1,0)       "
                                        "ErrCode[0x3080006]\r\n",
                                        "Err. VQ6192_SDH_GetSDHMap.reSdhMap(14)       ErrCode[0x3080006]\r\n",
                                    }));
}

// The payload type of VC-4 3 (0x202C + 6) is pulsed 3 then 0, 1 us apart; a map of VC-4 3 then waits
// 510 us to settle. A bypass has no VT/TU type to pulse.
TEST_F(SdhMapTest, WaitsAfterVc4SlotThreeAndPulsesThePayloadType) {
    setModes(0, 0);
    std::vector<std::pair<uint16_t, uint64_t>> pulses;  // value, virtual time
    model.onWrite(0x202C + 2 * 3, [&](uint32_t, uint16_t value, uint16_t) {
        pulses.emplace_back(value, VQ6192_Platform_GetVirtualTimeUs());
        return value;
    });
    VQ6192_Platform_ResetVirtualTime();
    ASSERT_EQ(VQ6192_SDH_SetSDHMap(kChip, 3, 1, CKD_FE_SDHSONET_MAP_E1_VC12TU12TUG3_AU4), 0u);
    ASSERT_EQ(pulses.size(), 2u);
    EXPECT_EQ(ints(VQ6192_Platform_GetVirtualTimeUs(), pulses[0].first, pulses[1].first,
                   pulses[1].second - pulses[0].second),
              ints(510 + 1, 3, 0, 1));
    VQ6192_Platform_ResetVirtualTime();
    ASSERT_EQ(VQ6192_SDH_SetSDHMap(kChip, 3, 0, SDHSONET_MAP_VC4_BYPASS), 0u);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 1u) << "no VT/TU type for a bypass";
}

TEST_F(SdhMapTest, T1StructuresPulseTheSlotsChannelResets) {
    setModes(1, 1);
    std::map<uint32_t, int> pulses;
    for (uint32_t tu = 0; tu < 4; ++tu) {
        for (uint32_t tug2 = 0; tug2 < 7; ++tug2) {
            const uint32_t addr = Framers::ingressAddr(2, 1, tug2, tu, Framers::kIngMode);
            model.onWrite(addr, [&pulses](uint32_t a, uint16_t value, uint16_t old) {
                pulses[a] += ((value & 8) != 0 && (old & 8) == 0) ? 1 : 0;
                return value;
            });
        }
    }
    ASSERT_EQ(VQ6192_SDH_SetSDHMap(kChip, 2, 1, CKD_FE_SDHSONET_MAP_DS1_VT15_STS1), 0u);
    ASSERT_EQ(pulses.size(), 28u) << "register channels 0..27 of the slot";
    for (const auto &[addr, n] : pulses) {
        EXPECT_EQ(ints(n, model.peek(addr) & 8), ints(1, 0)) << "pulsed once, released: " << std::hex << addr;
    }
    EXPECT_EQ(model.peek(Framers::ingressAddr(2, 2, 0, 0, Framers::kIngMode)), 0) << "other slots untouched";
}

TEST_F(SdhMapTest, LineModeAndRefusals) {
    model.poke(0x20006, 0xABCE);
    uint8_t mode = 0;
    EXPECT_EQ((Ints{VQ6192_SDH_SetSDHSonetMode(kChip, 1), model.peek(0x20006),
                    VQ6192_SDH_GetSDHSonetMode(kChip, &mode), mode}),
              ints(0, 0xABCF, 0, 1))
        << "bits 15..1 kept";
    uint8_t out = 0;
    beginRefusals();
    expectRefusals(kParaErr, false, VQ6192_SDH_SetSDHSonetMode(3, 2), VQ6192_SDH_SetSDHMap(3, 4, 0, 6),
                   VQ6192_SDH_SetSDHMap(3, 0, 3, 6), VQ6192_SDH_SetSDHMap(3, 0, 0, 14),
                   VQ6192_SDH_SetSDHMap(3, 1, 0, CKD_FE_SDHSONET_MAP_HTB_E1),
                   VQ6192_SDH_SetSDHMap(3, 3, 2, CKD_FE_SDHSONET_MAP_HTB_T1),
                   VQ6192_SDH_GetSDHMap(3, 4, 0, &out), VQ6192_SDH_GetSDHMap(3, 0, 3, &out));
}

TEST_F(SdhMapTest, LoopPoints) {
    // Point, slot, and the register bits of loop mode 1 (A) and 2 (B; regB 0: point 0 has no mode 2).
    const struct {
        uint32_t point, vc4, au3, regA, bitA, regB, bitB;
    } cases[] = {
        {0, 9, 9, 0x2C00A, 0, 0, 0},
        {1, 2, 1, 0x26000, 7, 0x26002, 7},
        {2, 9, 9, 0x2A020, 1, 0x2A020, 0},
        {3, 3, 2, 0x29296 + 0x10 * 11, 2, 0x29296 + 0x10 * 11, 3},
        {4, 1, 0, 0x2B604 + 0x20 * 3, 0, 0x2B606 + 0x20 * 3, 0},
    };
    for (const auto &c : cases) {
        // Points 0 and 2 ignore the slot when set; the getter checks it for every point.
        const uint32_t vc4 = c.vc4 > 3 ? 0 : c.vc4, au3 = c.au3 > 2 ? 0 : c.au3;
        for (uint32_t mode = 0; mode < 3; ++mode) {
            uint8_t state = 9;
            if (c.regB == 0 && mode == 2) {
                EXPECT_EQ(VQ6192_SDH_SetSDHLoop(kChip, c.point, c.vc4, c.au3, 2), kParaErr);
                continue;
            }
            EXPECT_EQ((Ints{VQ6192_SDH_SetSDHLoop(kChip, c.point, c.vc4, c.au3, mode),
                            (model.peek(c.regA) >> c.bitA) & 1,
                            c.regB == 0 ? 0 : (model.peek(c.regB) >> c.bitB) & 1,
                            VQ6192_SDH_GetSDHLoop(kChip, c.point, vc4, au3, &state), state}),
                      ints(0, mode == 1, mode == 2, 0, mode))
                << "point " << c.point << " mode " << mode;
        }
    }
    uint8_t state = 0;
    EXPECT_EQ((Ints{VQ6192_SDH_GetSDHLoop(kChip, 2, 9, 0, &state), VQ6192_SDH_SetSDHLoop(kChip, 5, 0, 0, 0),
                    VQ6192_SDH_SetSDHLoop(kChip, 1, 0, 0, 3), VQ6192_SDH_SetSDHLoop(kChip, 3, 4, 0, 1)}),
              ints(kParaErr, kParaErr, kParaErr, kParaErr));
    // Both bits set by hand read as 3.
    model.poke(0x26000, 1);
    model.poke(0x26002, 1);
    EXPECT_EQ((Ints{VQ6192_SDH_GetSDHLoop(kChip, 1, 0, 0, &state), state}), ints(0, 3));
}

TEST_F(SdhMapTest, MapLoopConfigurationAndDs3FifoReset) {
    model.poke(0x2DCBC, 0x07FF);
    uint8_t a = 0, b = 9, c = 0;
    EXPECT_EQ((Ints{VQ6192_SDH_SetMapLoopCfg(kChip, 1, 0, 1), model.peek(0x2DCBC),
                    VQ6192_SDH_GetMapLoopCfg(kChip, &a, &b, &c), a, b, c,
                    VQ6192_SDH_SetMapLoopCfg(kChip, 0, 2, 0)}),
              ints(0, 0x2FFF, 0, 1, 0, 1, kParaErr));
    // Bit 3 alone of receive block 2, beside the VT/TU type.
    model.poke(0x2C040 + 0x40 * 2, 0xFFF7);
    EXPECT_EQ((Ints{VQ6192_SDH_SetDS3RxFifoRst(kChip, 2, 1), model.peek(0x2C0C0),
                    VQ6192_SDH_SetDS3RxFifoRst(kChip, 4, 1), VQ6192_SDH_SetDS3RxFifoRst(kChip, 0, 2)}),
              ints(0, 0xFFFF, kParaErr, kParaErr));
}

// CRC-7 by polynomial long division: the message bits (MSB first) followed by seven 0 bits, each
// shifted into the remainder, which sheds x^7 + x^3 + 1 (0x89) whenever its bit 7 comes up.
uint8_t referenceCrc7(const std::vector<uint8_t> &msg) {
    std::vector<int> bits;
    for (uint8_t b : msg) {
        for (int i = 7; i >= 0; --i) {
            bits.push_back((b >> i) & 1);
        }
    }
    bits.insert(bits.end(), 7, 0);
    uint32_t rem = 0;
    for (int bit : bits) {
        rem = (rem << 1) | static_cast<uint32_t>(bit);
        rem ^= (rem & 0x80) != 0 ? 0x89 : 0;
    }
    return static_cast<uint8_t>(rem);
}

// The first byte of a 16-byte trace: 1, then the CRC-7 of the trace with that byte taken as 0x80.
uint8_t traceHead(std::vector<uint8_t> msg) {
    msg[0] = 0x80;
    return static_cast<uint8_t>(0x80 | referenceCrc7(msg));
}

std::vector<uint8_t> text(const char *s, size_t len) {
    std::vector<uint8_t> v(len, ' ');
    for (size_t i = 0; i < len && s[i] != 0; ++i) {
        v[i] = static_cast<uint8_t>(s[i]);
    }
    return v;
}

// The SD card command CRC uses the same CRC-7: CMD0, CMD8 and CMD17 frames carry 0x95, 0x87 and 0x55
// as (CRC << 1) | 1. Without the first byte it is taken as 0x80; no bytes (or no buffer) give 0x80.
TEST(TraceCrc, KnownValues) {
    const std::vector<uint8_t> zeros16(16, 0);
    const struct {
        std::vector<uint8_t> bytes;
        uint8_t len, useFirst, expected;
    } cases[] = {
        {{0x40, 0, 0, 0, 0}, 5, 1, 0x80 | (0x95 >> 1)},
        {{0x48, 0, 0, 0x01, 0xAA}, 5, 1, 0x80 | (0x87 >> 1)},
        {{0x51, 0, 0, 0, 0}, 5, 1, 0x80 | (0x55 >> 1)},
        {zeros16, 16, 0, traceHead(zeros16)},
        {{0x12}, 0, 0, 0x80},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(VQ6192_SDH_GetCRC7(3, c.bytes.data(), c.len, c.useFirst), c.expected) << int(c.bytes[0]);
    }
    EXPECT_EQ(VQ6192_SDH_GetCRC7(3, nullptr, 16, 0), 0x80);
}

using SdhTraceTest = SdhTest;

TEST_F(SdhTraceTest, HighOrderJ1SentThroughThePageOfItsVc4) {
    const auto msg = text("\x01VQ6192 LINE 1 A", 64);
    for (uint32_t mode : {0u, 1u, 2u}) {
        // The 64-byte flag (TH+0 bit 0) and pass-through (TH+4 bit 0) in the VC-4's three blocks only.
        fill12(th, 0, mode == 2 ? 0xFFFE : 0xFFFF);
        fill12(th, 4, 0xFFFE);
        ASSERT_EQ(VQ6192_SDH_SetTxHpJ1(kChip, 2, mode, msg.data(), 1), 0u) << mode;
        const size_t len = mode == 2 ? 64 : 16;
        auto expected = std::vector<uint8_t>(msg.begin(), msg.begin() + len);
        expected[0] = mode == 1 ? traceHead(expected) : expected[0];
        EXPECT_EQ(paths().trace(Page::TxHo, 2, len), expected) << mode;
        EXPECT_EQ(peek12(th, 0), ofVc4(2, mode == 2 ? 0xFFFF : 0xFFFE, mode == 2 ? 0xFFFE : 0xFFFF)) << mode;
        EXPECT_EQ(peek12(th, 4), ofVc4(2, 0xFFFF, 0xFFFE)) << mode;
        uint8_t readMode = 9, pass = 9, back[64] = {};
        EXPECT_EQ((Ints{VQ6192_SDH_GetTxHpJ1(kChip, 2, &readMode, back, &pass), readMode, pass}),
                  ints(0, mode == 2 ? 2 : 0, 1));
        EXPECT_EQ(std::vector<uint8_t>(back, back + len), expected);
    }
    EXPECT_EQ(paths().trace(Page::TxHo, 1, 16), std::vector<uint8_t>(16, 0)) << "other VC-4s untouched";
}

TEST_F(SdhTraceTest, LowOrderTracesAndTheirEndings) {
    // A 64-byte trace ends in CR LF whatever the caller gave; LT+0 bit 0 of the VC-3 says 64 bytes.
    auto msg = text("\x01VC3 TRACE", 64);
    msg[62] = 'x';
    msg[63] = 'y';
    const uint32_t vc3 = lt(1, 64);
    ASSERT_EQ(VQ6192_SDH_SetTxLpJ1(kChip, 1, 2, 2, msg.data()), 0u);
    auto expected = msg;
    expected[62] = 0x0D;
    expected[63] = 0x0A;
    EXPECT_EQ(ints(paths().trace(Page::TxLo, 128 * 1 + 64, 64) == expected, model.peek(vc3) & 1u),
              ints(1, 1));
    ASSERT_EQ(VQ6192_SDH_SetTxLpJ1(kChip, 1, 2, 1, msg.data()), 0u);
    expected.resize(16);
    expected[0] = traceHead(expected);
    uint8_t mode = 9, back[64] = {};
    EXPECT_EQ((Ints{paths().trace(Page::TxLo, 128 * 1 + 64, 16) == expected, model.peek(vc3) & 1u,
                    VQ6192_SDH_GetTxLpJ1(kChip, 1, 2, &mode, back), mode}),
              ints(1, 0, 0, 1));
    EXPECT_EQ(std::vector<uint8_t>(back, back + 16), expected);

    // J2 of VC-12 (v 3, k 1, t 27): channel 59; modes 0 and 2 send the bytes as given.
    const auto j2 = text("\x55J2 TRACE 27", 16);
    for (uint32_t m : {0u, 2u, 1u}) {
        ASSERT_EQ(VQ6192_SDH_SetTxLpJ2(kChip, 3, 1, 27, m, j2.data()), 0u);
        auto sent = j2;
        sent[0] = m == 1 ? traceHead(j2) : j2[0];
        uint8_t b16[16] = {};
        EXPECT_EQ(paths().trace(Page::TxLo, 128 * 3 + 59, 16), sent) << m;
        EXPECT_EQ(
            (Ints{VQ6192_SDH_GetTxLpJ2(kChip, 3, 1, 27, b16), std::vector<uint8_t>(b16, b16 + 16) == sent}),
            ints(0, 1));
    }
}

TEST_F(SdhTraceTest, ReceivedTracesComeFromTheSelectedPathAfterTheWait) {
    // The high-order trace of VC-4 1 (64 bytes: HR+4 bit 0 set); low-order: J1 of the VC-3 of TUG-3 2
    // (16 bytes with bit 0 of LR+4 clear), J2 of a VC-12. Each page selection waits 50 x 10 ms.
    paths().setTrace(Page::RxHo, 1, text("RECEIVED ON VC-4 1", 64));
    paths().setTrace(Page::RxHo, 0, text("WRONG PATH", 64));
    paths().setTrace(Page::RxLo, 128 * 2 + 64, text("VC3 RX", 64));
    paths().setTrace(Page::RxLo, 128 * 2 + 32 + 5, text("J2 RX", 16));
    model.poke(hr(1) + 4, 0xFFFF);
    model.poke(lr(2, 64) + 4, 0xFFFE);
    VQ6192_Platform_ResetVirtualTime();
    uint8_t hoMode = 9, loMode = 9, j2Mode = 9, ho[64] = {}, lo[64] = {}, j2[64] = {};
    EXPECT_EQ(
        (Ints{VQ6192_SDH_GetRxHpJ1(kChip, 1, &hoMode, ho), hoMode,
              int64_t(VQ6192_Platform_GetVirtualTimeUs()), VQ6192_SDH_GetRxLpJ1(kChip, 2, 2, &loMode, lo),
              loMode, VQ6192_SDH_GetRxLpJ2(kChip, 2, 1, 5, &j2Mode, j2), j2Mode,
              int64_t(VQ6192_Platform_GetVirtualTimeUs()), int64_t(paths().earlyReads(Page::RxHo)),
              int64_t(paths().earlyReads(Page::RxLo))}),
        ints(0, 2, 50 * 10000, 0, 1, 0, 0, 3 * 50 * 10000, 0, 0));
    EXPECT_EQ(std::vector<uint8_t>(ho, ho + 64), text("RECEIVED ON VC-4 1", 64));
    EXPECT_EQ(std::vector<uint8_t>(lo, lo + 16), text("VC3 RX", 16));
    EXPECT_EQ(std::vector<uint8_t>(j2, j2 + 16), text("J2 RX", 16));
}

// The receiver compares against a signature in LR+6: bit 15 kept, the CRC-7 in bits 14..8 and the low
// byte of the byte sum. 16 bytes: CRC of the trace with its first byte as 0x80, sum of bytes 1..15; 64
// bytes (LR+4 bit 0 set): CRC and sum of the trace with CR LF as bytes 62, 63, which also go to LR+8.
TEST_F(SdhTraceTest, ExpectedTraceSignatures) {
    auto msg = text(
        "\x01"
        "EXPECTED J1 TRACE",
        64);
    const uint32_t vc3 = lr(3, 32);
    for (auto [mode, longTrace] : {std::pair{0u, false}, {1u, false}, {4u, false}, {2u, true}}) {
        model.poke(vc3 + 4, longTrace ? 0xFFFE : 0xFFFF);
        model.poke(vc3 + 6, 0x8000);
        model.poke(vc3 + 8, 0x1234);
        auto t = msg;
        t[62] = 0x0D;
        t[63] = 0x0A;
        const std::vector<uint8_t> s16(t.begin(), t.begin() + 16);
        const uint32_t crc = longTrace ? referenceCrc7(t) : traceHead(s16) & 0x7F;
        const uint32_t sum = longTrace ? std::accumulate(t.begin(), t.begin() + 62, 0u)
                                       : std::accumulate(s16.begin() + 1, s16.end(), 0u);
        uint8_t gotMode, gcrc, gsum;
        uint16_t last;
        EXPECT_EQ((Ints{VQ6192_SDH_SetRxLpShouldJ1(kChip, 3, 1, mode, msg.data()), model.peek(vc3 + 6),
                        model.peek(vc3 + 4), model.peek(vc3 + 8),
                        VQ6192_SDH_GetRxLpShouldJ1(kChip, 3, 1, &gotMode, &gcrc, &gsum, &last), gotMode, gcrc,
                        gsum}),
                  ints(0, 0x8000 | (crc << 8) | (sum & 0xFF), longTrace ? 0xFFFF : 0xFFFE,
                       longTrace ? 0x0D0A : 0x1234, 0, longTrace ? 2 : 0, crc, sum & 0xFF))
            << mode;
    }
    // J2: 16 bytes, only LR+6 of the VC-12 changes.
    const uint32_t vc12 = lr(0, 32 * 2 + 20);
    model.poke(vc12 + 4, 0xFFFF);
    const std::vector<uint8_t> s(msg.begin(), msg.begin() + 16);
    const uint32_t crc = traceHead(s) & 0x7F, sum = std::accumulate(s.begin() + 1, s.end(), 0u) & 0xFF;
    uint8_t gcrc, gsum;
    EXPECT_EQ(
        (Ints{VQ6192_SDH_SetRxLpShouldJ2(kChip, 0, 2, 20, msg.data(), 7), model.peek(vc12 + 6),
              model.peek(vc12 + 4), VQ6192_SDH_GetRxLpShouldJ2(kChip, 0, 2, 20, &gcrc, &gsum), gcrc, gsum}),
        ints(0, (crc << 8) | sum, 0xFFFF, 0, crc, sum));
}

TEST_F(SdhTraceTest, RefusalsTouchNothing) {
    const auto msg = text("X", 64);
    uint8_t m, b[64];
    beginRefusals();
    expectRefusals(
        kParaErr, false, VQ6192_SDH_SetTxHpJ1(kChip, 4, 0, msg.data(), 0),
        VQ6192_SDH_SetTxHpJ1(kChip, 0, 3, msg.data(), 0), VQ6192_SDH_SetTxLpJ1(kChip, 0, 3, 0, msg.data()),
        VQ6192_SDH_SetTxLpJ2(kChip, 0, 0, 28, 0, msg.data()),
        VQ6192_SDH_SetRxLpShouldJ1(kChip, 0, 0, 3, msg.data()),
        VQ6192_SDH_SetRxLpShouldJ1(kChip, 0, 0, 5, msg.data()), VQ6192_SDH_GetRxLpJ1(kChip, 4, 0, &m, b));
}

}  // namespace
}  // namespace sdhtest
