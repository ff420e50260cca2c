// Overhead insertion, alarm and counter readers, clock selectors, clock gates, SOH bypass and the AU
// pointer bytes.
#include <cstring>
#include <tuple>

#include "framer/framer_test.h"

namespace framertest {
namespace {

using FramerStatus = FramerTest;

TEST_F(FramerStatus, OverheadInsertionModes) {
    struct Case {
        uint32_t ohType, insMode, value, enable;
        uint16_t w2Before, w4Before, w2After, w4After;
    };
    const Case cases[] = {
        // RAI: value into bit 3, insertion mode bits, enable into bit 5 and carried into +4 bit 5.
        {0, 1, 1, 1, 0x0000, 0x0000, 0x0038, 0x0038},
        {0, 0, 1, 1, 0xFFFF, 0xFFFF, 0x7FEF, 0xFFB7},
        {0, 2, 0, 0, 0x0000, 0x0000, 0x8000, 0x0040},
        // Type 1: mode 0 leaves both words; mode 1 sets +2 bit 7 and +4 bit 1 with the enable in bit 0.
        {1, 0, 1, 1, 0x1234, 0x5678, 0x1234, 0x5678},
        {1, 1, 0, 1, 0x0000, 0x0000, 0x00C0, 0x0043},
        // Type 2: value into bit 0 in mode 1, never touches +4; mode 2 writes nothing.
        {2, 1, 1, 1, 0x0000, 0x0000, 0x0007, 0x0000},
        {2, 0, 1, 0, 0x00FF, 0x00FF, 0x00F9, 0x00FF},
        {2, 2, 1, 1, 0x0000, 0x0000, 0x0000, 0x0000},
    };
    const uint32_t e1 = 300;
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << "type " << c.ohType << " mode " << c.insMode << " value "
                                        << c.value << " enable " << c.enable);
        model.poke(Framers::egressAddr(e1, Framers::kEgOverhead), c.w2Before);
        model.poke(Framers::egressAddr(e1, Framers::kEgOverhead2), c.w4Before);
        EXPECT_EQ((Ints{VQ6192_Framer_SetET1OhInsMode(kChip, e1, c.ohType, c.insMode, c.value, c.enable),
                        model.peek(Framers::egressAddr(e1, Framers::kEgOverhead)),
                        model.peek(Framers::egressAddr(e1, Framers::kEgOverhead2))}),
                  ints(0, c.w2After, c.w4After));
    }
    model.poke(Framers::egressAddr(e1, Framers::kEgOverhead), 0xA5C3);
    uint16_t word = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_GetE1OvhInsRegVal(kChip, e1, &word), word}), ints(0, 0xA5C3));
}

// Overhead insertion into bit 14 of the overhead word and bit 5 of the second one; RAI insertion, its
// select and its value: bits 5, 4 and 3.
TEST_F(FramerStatus, OverheadAndRaiBits) {
    const uint32_t oh = Framers::egressAddr(12, Framers::kEgOverhead);
    const uint32_t oh2 = Framers::egressAddr(12, Framers::kEgOverhead2);
    EXPECT_EQ((Ints{VQ6192_Framer_SetET1OhInsEn(kChip, 12, 1), model.peek(oh), model.peek(oh2),
                    VQ6192_Framer_SetE1RaiInsEn(kChip, 12, 1), VQ6192_Framer_SetE1RaiInsSelEn(kChip, 12, 1),
                    VQ6192_Framer_SetE1RaiInsValue(kChip, 12, 1), model.peek(oh),
                    VQ6192_Framer_SetE1RaiInsSelEn(kChip, 12, 0), model.peek(oh)}),
              ints(0, 0x4000, 0x0020, 0, 0, 0, 0x4038, 0, 0x4028));
}

TEST_F(FramerStatus, E1AlarmsAndCounters) {
    const uint32_t e1 = 140;  // VC-4 2, TUG-3 0, TUG-2 0, TU 2
    model.poke(Framers::ingressAddr(e1, Framers::kIngAlarms), VQ6192_FRAMER_AIS | VQ6192_FRAMER_BFOOF);
    uint16_t ais = 9, rai = 9, bfoof = 9, mfoof = 9, word = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_GetFrmAlms(kChip, e1, &ais, &rai, &bfoof, &mfoof), ais, rai, bfoof, mfoof,
                    VQ6192_Framer_GetE1AlmRegVal(kChip, e1, &word), word}),
              ints(0, 1, 0, 1, 0, 0, VQ6192_FRAMER_AIS | VQ6192_FRAMER_BFOOF));
    model.poke(Framers::ingressAddr(e1, Framers::kIngE1Crc), 11);
    model.poke(Framers::ingressAddr(e1, Framers::kIngE1Febe), 22);
    model.poke(Framers::ingressAddr(e1, Framers::kIngT1Crc), 33);
    model.poke(Framers::ingressAddr(e1, Framers::kIngT1Ferr), 44);
    struct Case {
        uint32_t tdm, type, status, count;
    };
    const Case cases[] = {
        {0, VQ6192_FRM_CRCERR, 0, 11}, {0, VQ6192_FRM_FERR, kParaErr, 0}, {0, VQ6192_FRM_FEBE, 0, 22},
        {1, VQ6192_FRM_CRCERR, 0, 33}, {1, VQ6192_FRM_FERR, 0, 44},       {1, VQ6192_FRM_FEBE, kParaErr, 0},
    };
    for (const Case &c : cases) {
        ASSERT_EQ(VQ6192_Framer_SetFrmTDMMode(kChip, c.tdm), 0u);
        uint32_t count = 99;
        EXPECT_EQ(VQ6192_Framer_GetE1FrmCntStd(kChip, 2, 0, 0, 2, c.type, &count), c.status);
        EXPECT_EQ(count, c.count) << "tdm " << c.tdm << " type " << c.type;
    }
}

TEST_F(FramerStatus, Et3AlarmRecordFlagByFlag) {
    // Record order: register and bit of every flag.
    struct Flag {
        Framers::Et3Reg reg;
        uint32_t bit;
    };
    const Flag flags[32] = {
        {Framers::kS0, 3},  {Framers::kS0, 2},  {Framers::kS0, 1},  {Framers::kS0, 0},  {Framers::kS1, 6},
        {Framers::kS1, 5},  {Framers::kS1, 3},  {Framers::kS1, 2},  {Framers::kS1, 1},  {Framers::kS1, 0},
        {Framers::kE3A, 3}, {Framers::kE3A, 2}, {Framers::kE3A, 1}, {Framers::kE3A, 0}, {Framers::kE3D, 3},
        {Framers::kE3D, 2}, {Framers::kE3D, 1}, {Framers::kE3D, 0}, {Framers::kT3A, 6}, {Framers::kT3A, 5},
        {Framers::kT3A, 4}, {Framers::kT3A, 3}, {Framers::kT3A, 2}, {Framers::kT3A, 1}, {Framers::kT3A, 0},
        {Framers::kT3D, 6}, {Framers::kT3D, 5}, {Framers::kT3D, 4}, {Framers::kT3D, 3}, {Framers::kT3D, 2},
        {Framers::kT3D, 1}, {Framers::kT3D, 0},
    };
    const uint32_t e3 = 11;
    for (uint32_t i = 0; i < 32; ++i) {
        model.reset();
        model.poke(Framers::et3Addr(e3, flags[i].reg), static_cast<uint16_t>(1u << flags[i].bit));
        VQ6192_FRM_ET3_ALARM_S alarms;
        ASSERT_EQ(VQ6192_Framer_GetFrmET3Alms(kChip, e3, &alarms), 0u);
        const auto *bytes = reinterpret_cast<const uint8_t *>(&alarms);
        for (uint32_t j = 0; j < 32; ++j) {
            EXPECT_EQ(bytes[j], i == j ? 1 : 0) << "raised flag " << i << ", looking at " << j;
        }
    }
}

TEST_F(FramerStatus, T3ErrorCounters) {
    for (uint32_t i = 0; i < 5; ++i) {
        model.poke(Framers::t3CounterAddr(7, false) + 2 * i, static_cast<uint16_t>(100 + i));
        model.poke(Framers::t3CounterAddr(7, true) + 2 * i, static_cast<uint16_t>(200 + i));
    }
    VQ6192_FRM_T3_ERR_S c{};
    ASSERT_EQ(VQ6192_Framer_GetT3ErrorStat(kChip, 7, &c), 0u);
    EXPECT_EQ(
        (std::vector<uint16_t>{c.usAT3Ferrcnt, c.usAT3Merrcnt, c.usAT3Pcnt, c.usAT3Cpcnt, c.usAT3Febecnt,
                               c.usDT3Ferrcnt, c.usDT3Merrcnt, c.usDT3Pcnt, c.usDT3Cpcnt, c.usDT3Febecnt}),
        (std::vector<uint16_t>{100, 101, 102, 103, 104, 200, 201, 202, 203, 204}));
}

TEST_F(FramerStatus, ClockSelectorsGatesBypassAndAuPointer) {
    struct Selector {
        uint32_t (*set)(uint32_t, uint32_t, uint32_t);
        uint32_t index, value, addr, mask;
        bool ok;
    };
    const Selector selectors[] = {
        {VQ6192_Framer_SetFrmClkSource, 335, 40, 0x2166 + 2 * 335, 0x3F, true},
        {VQ6192_Framer_SetFrmClkSource, 336, 1, 0, 0, false},
        {VQ6192_Framer_SetFrmClkSource, 0, 41, 0, 0, false},
        {VQ6192_Framer_SetFrmET3TxClkSource, 11, 25, 0x243E + 22, 0x1F, true},
        {VQ6192_Framer_SetFrmET3TxClkSource, 0, 26, 0, 0, false},
        {VQ6192_Framer_SetFrmET3TxClkSource, 12, 0, 0, 0, false},
        {VQ6192_HTBE_TCLK_CLKSEL, 5, 63, 0x2432 + 10, 0x3F, true},
        {VQ6192_HTBE_TCLK_CLKSEL, 6, 0, 0, 0, false},
        {VQ6192_HTBE_RT_CLKSEL, 1, 0x2A, 0x2428, 0x3F, true},
        {VQ6192_HTBE_RT_CLKSEL, 2, 0, 0, 0, false},
    };
    for (const Selector &s : selectors) {
        SCOPED_TRACE(testing::Message() << "index " << s.index << " value " << s.value);
        if (s.ok) {
            model.poke(s.addr, 0xFFC0);
            ASSERT_EQ(s.set(kChip, s.index, s.value), 0u);
            EXPECT_EQ(model.peek(s.addr), (0xFFC0 & ~s.mask) | s.value);
        } else {
            EXPECT_EQ(s.set(kChip, s.index, s.value), kParaErr);
        }
    }
    uint16_t v = 0, v3 = 0, gate = 0, bypass = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_GetFrmClkSource(kChip, 335, &v), v,
                    VQ6192_Framer_GetFrmET3TxClkSource(kChip, 11, &v3), v3}),
              ints(0, 40, 0, 25));
    // Gates 0..7 are bits 7..0 of 0x2080A, gates 8..23 bits 15..0 of 0x2080C.
    for (auto [g, addr, bit] :
         {std::tuple{0u, 0x2080Au, 7}, {7u, 0x2080Au, 0}, {8u, 0x2080Cu, 15}, {23u, 0x2080Cu, 0}}) {
        model.poke(addr, 0);
        EXPECT_EQ((Ints{VQ6192_Framer_SetE1MapClkGate(kChip, g, 1), model.peek(addr),
                        VQ6192_Framer_GetE1MapClkGate(kChip, g, &gate), gate}),
                  ints(0, 1u << bit, 0, 1))
            << "gate " << g;
    }
    EXPECT_EQ((Ints{VQ6192_Framer_SetSOHByPassMode(kChip, 1), model.peek(0x257A),
                    VQ6192_Framer_GetSOHByPassMode(kChip, &bypass), bypass}),
              ints(0, 1, 0, 1));

    // H1, H2 and the H3 bytes: the second Y/1 bytes and the three H3 bytes must repeat the first.
    VQ6192_SDH_AU_PTR_S ptr{0x6A, 0x9B, 0x9B, 0x0A, 0xFF, 0xFF, 0x55, 0x55, 0x55};
    VQ6192_SDH_AU_PTR_S back{};
    EXPECT_EQ((Ints{VQ6192_Framer_SetSDHAuPtr(kChip, &ptr), model.peek(0x214C), model.peek(0x214E),
                    model.peek(0x2150), model.peek(0x2152), model.peek(0x2154),
                    VQ6192_Framer_GetSDHAuPtr(kChip, &back), std::memcmp(&back, &ptr, sizeof ptr)}),
              ints(0, 0x6A, 0x9B, 0x0A, 0xFF, 0x55, 0, 0));
    model.setTrace(true);
    ptr.ucH3_3 = 0x56;
    EXPECT_EQ(VQ6192_Framer_SetSDHAuPtr(kChip, &ptr), kParaErr);
    ptr.ucH3_3 = 0x55;
    ptr.ucY_2 = 0;
    EXPECT_EQ(VQ6192_Framer_SetSDHAuPtr(kChip, &ptr), kParaErr);
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(FramerStatus, RefusalsTouchNothing) {
    uint16_t w = 0;
    uint32_t count = 0;
    VQ6192_FRM_ET3_ALARM_S alarms;
    expectRefused({
        {"oh type 3", [] { return VQ6192_Framer_SetET1OhInsMode(3, 300, 3, 0, 0, 0); }},
        {"oh mode 3", [] { return VQ6192_Framer_SetET1OhInsMode(3, 300, 0, 3, 0, 0); }},
        {"oh enable 2", [] { return VQ6192_Framer_SetET1OhInsMode(3, 300, 0, 0, 0, 2); }},
        {"oh e1 336", [] { return VQ6192_Framer_SetET1OhInsMode(3, 336, 0, 0, 0, 0); }},
        {"rai value 2", [] { return VQ6192_Framer_SetE1RaiInsValue(3, 12, 2); }},
        {"oh enable e1 336", [] { return VQ6192_Framer_SetET1OhInsEn(3, 336, 1); }},
        {"oh word e1 336", [&] { return VQ6192_Framer_GetE1OvhInsRegVal(3, 336, &w); }},
        {"count vc4 4", [&] { return VQ6192_Framer_GetE1FrmCntStd(3, 4, 0, 0, 0, 0, &count); }},
        {"count tug2 7", [&] { return VQ6192_Framer_GetE1FrmCntStd(3, 0, 0, 7, 0, 0, &count); }},
        {"count tu 4", [&] { return VQ6192_Framer_GetE1FrmCntStd(3, 0, 0, 0, 4, 0, &count); }},
        {"count type 3", [&] { return VQ6192_Framer_GetE1FrmCntStd(3, 0, 0, 0, 0, 3, &count); }},
        {"e3 alarms 12", [&] { return VQ6192_Framer_GetFrmET3Alms(3, 12, &alarms); }},
        {"clock source 336", [&] { return VQ6192_Framer_GetFrmClkSource(3, 336, &w); }},
        {"clock gate 24", [] { return VQ6192_Framer_SetE1MapClkGate(3, 24, 1); }},
        {"clock gate value 2", [] { return VQ6192_Framer_SetE1MapClkGate(3, 0, 2); }},
        {"soh bypass 2", [] { return VQ6192_Framer_SetSOHByPassMode(3, 2); }},
    });
}

}  // namespace
}  // namespace framertest
