// Line mode, AU-3 mapping and its read-back, the mapping's waits, loopbacks and switches.
#include <map>
#include <set>

#include "sdh/sdh_test.h"
#include "vq6192/sim/framers.h"

namespace sdhtest {
namespace {

using vq6192::sim::BusOp;
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
    for (uint32_t line = 0; line < 2; ++line) {
        for (uint32_t tdm = 0; tdm < 2; ++tdm) {
            for (uint32_t vc4 = 0; vc4 < 4; ++vc4) {
                for (uint32_t au3 = 0; au3 < 3; ++au3) {
                    for (uint32_t type = 0; type < 14; ++type) {
                        SCOPED_TRACE(testing::Message() << "line " << line << " tdm " << tdm << " slot "
                                                        << vc4 << "/" << au3 << " type " << type);
                        setModes(line, tdm);
                        model.setTrace(true);
                        model.clearTrace();
                        const int readBack = kReadBack[line][tdm][vc4 == 0 ? 0 : 1][type];
                        const uint32_t rc = VQ6192_SDH_SetSDHMap(kChip, vc4, au3, type);
                        std::set<uint32_t> written;
                        for (const auto &a : model.trace()) {
                            if (a.op == BusOp::Write) {
                                written.insert(a.addr);
                            }
                        }
                        if (readBack < 0) {
                            ASSERT_EQ(rc, kParaErr);
                            EXPECT_TRUE(written.empty()) << "a refused map writes nothing";
                            continue;
                        }
                        ASSERT_EQ(rc, 0u);
                        const auto expected = expectedRegisters(line, tdm, vc4, au3, type);
                        for (uint32_t addr : written) {
                            // T1 structures pulse the framer channel resets, which end at 0.
                            const auto it = expected.find(addr);
                            EXPECT_EQ(model.peek(addr), it == expected.end() ? 0 : it->second)
                                << std::hex << addr;
                        }
                        for (const auto &[addr, value] : expected) {
                            EXPECT_EQ(model.peek(addr), value) << std::hex << addr;
                        }
                        uint8_t got = 0;
                        EXPECT_EQ(VQ6192_SDH_GetSDHMap(kChip, vc4, au3, &got), 0u);
                        EXPECT_EQ(got, readBack);
                    }
                }
            }
        }
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
    ASSERT_EQ(VQ6192_SDH_GetSDHMap(kChip, 1, 2, &type), 0u);
    EXPECT_EQ(type, 7);

    // Disagreeing VT/TU types of the three receive blocks.
    model.poke(0x2C140 + 0x40, 3);
    EXPECT_EQ(VQ6192_SDH_GetSDHMap(kChip, 1, 0, &type), 0x03080006u);
    EXPECT_EQ(type, NULL_MAP_PATH);
    // Registers no row describes.
    setModes(0, 0);
    model.poke(0x202C, 3);
    EXPECT_EQ(VQ6192_SDH_GetSDHMap(kChip, 0, 0, &type), 0x03080006u);
    EXPECT_EQ(type, NULL_MAP_PATH);
    EXPECT_EQ(capture.traceTexts(), (std::vector<std::string>{
                                        "Err. VQ6192_SDH_GetSDHMap.VQ6192_MAP_STRUC1_ReadVttuType(1,0)       "
                                        "ErrCode[0x3080006]\r\n",
                                        "Err. VQ6192_SDH_GetSDHMap.reSdhMap(14)       ErrCode[0x3080006]\r\n",
                                    }));
}

TEST_F(SdhMapTest, WaitsAfterVc4SlotThreeAndPulsesThePayloadType) {
    setModes(0, 0);
    std::vector<std::pair<uint16_t, uint64_t>> payloadWrites;  // value, virtual time
    model.onWrite(0x202C + 2 * 3, [&](uint32_t, uint16_t value, uint16_t) {
        payloadWrites.emplace_back(value, VQ6192_Platform_GetVirtualTimeUs());
        return value;
    });
    VQ6192_Platform_ResetVirtualTime();
    ASSERT_EQ(VQ6192_SDH_SetSDHMap(kChip, 3, 1, CKD_FE_SDHSONET_MAP_E1_VC12TU12TUG3_AU4), 0u);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 510u + 1u);
    ASSERT_EQ(payloadWrites.size(), 2u);
    EXPECT_EQ(ints(payloadWrites[0].first, payloadWrites[1].first,
                   payloadWrites[1].second - payloadWrites[0].second),
              ints(3, 0, 1u));

    VQ6192_Platform_ResetVirtualTime();
    ASSERT_EQ(VQ6192_SDH_SetSDHMap(kChip, 2, 1, CKD_FE_SDHSONET_MAP_E1_VC12TU12TUG3_AU4), 0u);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 1u) << "no settling wait below VC-4 3";
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
        EXPECT_EQ(n, 1) << std::hex << addr;
        EXPECT_EQ(model.peek(addr) & 8, 0) << "released again";
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
    expectRefused({
        {"line mode 2", [] { return VQ6192_SDH_SetSDHSonetMode(3, 2); }},
        {"vc4 4", [] { return VQ6192_SDH_SetSDHMap(3, 4, 0, 6); }},
        {"au3 3", [] { return VQ6192_SDH_SetSDHMap(3, 0, 3, 6); }},
        {"type 14", [] { return VQ6192_SDH_SetSDHMap(3, 0, 0, 14); }},
        {"htb e1", [] { return VQ6192_SDH_SetSDHMap(3, 1, 0, CKD_FE_SDHSONET_MAP_HTB_E1); }},
        {"htb t1", [] { return VQ6192_SDH_SetSDHMap(3, 3, 2, CKD_FE_SDHSONET_MAP_HTB_T1); }},
        {"get vc4 4", [&] { return VQ6192_SDH_GetSDHMap(3, 4, 0, &out); }},
        {"get au3 3", [&] { return VQ6192_SDH_GetSDHMap(3, 0, 3, &out); }},
    });
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

}  // namespace
}  // namespace sdhtest
