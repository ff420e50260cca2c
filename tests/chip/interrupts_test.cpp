// Interrupt control: exact register accesses of the enable, mode, flag and status operations.
#include <random>
#include <string>

#include "chip_fixture.h"

namespace {

using namespace chiptest;
using Interrupts = ChipFixture;

// Interrupt sources: enable register and bits, mode and flag registers, sub-sources (flag bits 0..n-1).
struct SourceCase {
    uint32_t id, enableAddr;
    uint16_t enableBits;
    uint32_t modeAddr, flagAddr, subs;
};
// clang-format off
const SourceCase kSources[] = {
    {1, 0xC4, 0x1, 0xE2, 0x102, 1},  {2, 0xC6, 0x1, 0xE4, 0x104, 1},      {4, 0xC8, 0x1, 0xE6, 0x106, 2},
    {8, 0xC8, 0x2, 0xE6, 0x106, 2},  {16, 0xCA, 0x1, 0xE8, 0x108, 1},     {32, 0xCC, 0x2, 0xEA, 0x10A, 2},
    {64, 0xCC, 0x1, 0xEA, 0x10A, 2}, {128, 0xC2, 0x7FF, 0xE0, 0x100, 11}, {256, 0xCE, 0x1, 0xEC, 0x10C, 1},
};
// clang-format on

TEST_F(Interrupts, SourceEnableAndModeBits) {
    for (const SourceCase &s : kSources) {
        SCOPED_TRACE(s.id);
        poke({{s.enableAddr, 0x8000}, {s.modeAddr, 0x8000}});
        EXPECT_EQ(traced([&] { EXPECT_EQ(VQ6192_INT_SetIntEnable(kChip, s.id, 1), 0u); }),
                  (Accesses{rd(s.enableAddr, 0x8000), wr(s.enableAddr, 0x8000u | s.enableBits)}));
        uint16_t out = 0;
        EXPECT_EQ((U32s{VQ6192_INT_GetIntEnable(kChip, s.id, &out), VQ6192_INT_SetIntEnable(kChip, s.id, 0),
                        VQ6192_INT_SetIntMode(kChip, s.id, 1)}),
                  U32s(3, 0));
        EXPECT_EQ(out, s.id == 128 ? 0x7FF : 1);
        EXPECT_EQ(peek({s.enableAddr, s.modeAddr}), (U32s{0x8000, 0x8001}));
        poke({{s.modeAddr, 0xFFFF}});
        EXPECT_EQ(VQ6192_INT_SetIntMode(kChip, s.id, 0), 0u);
        EXPECT_EQ(peek({s.modeAddr}), U32s{0xFFFE});
    }
}

// Every flag read with a clear is a field write: the clear value goes into the operation's own field
// of the register as it was read, the other bits are written back as read, and the write-1-to-clear
// flags clear wherever a 1 was written. From random contents of every interrupt register, each
// operation writes exactly that and reports its flags (register bits at shift, masked) from what it read.
struct FieldWrite {
    uint32_t bit, width, value;
};
struct ClearCase {
    std::string what;
    uint32_t addr;
    std::vector<FieldWrite> fields;                    // in the order the operation writes them
    std::function<std::vector<uint32_t>()> op;         // runs the read, returns the flags
    std::vector<std::pair<uint32_t, uint32_t>> flags;  // expected: (before >> shift) & mask
};

constexpr uint32_t kTestChip = 3;  // the fixture's chip
using Flags = std::vector<uint32_t>;

// clang-format off
std::vector<ClearCase> clearCases() {
    std::vector<ClearCase> cases;
    auto add = [&](std::string what, uint32_t addr, std::vector<FieldWrite> fields,
                   std::vector<std::pair<uint32_t, uint32_t>> flags, std::function<Flags()> op) {
        cases.push_back({std::move(what), addr, std::move(fields), std::move(op), std::move(flags)});
    };
    for (const SourceCase &src : kSources) {
        for (uint32_t sub = 0; sub < src.subs; ++sub) {
            for (uint32_t c = 0; c <= 1; ++c) {
                add("flag " + std::to_string(src.id) + " sub " + std::to_string(sub) + " clear " + std::to_string(c),
                    src.flagAddr, {{0, src.subs, c << sub}}, {{sub, 1}}, [id = src.id, sub, c] {
                        uint16_t o = 9; EXPECT_EQ(VQ6192_INT_GetIntFlag(kTestChip, id, sub, c, &o), 0u); return Flags{o}; });
            }
        }
    }
    for (uint32_t c = 0; c <= 1; ++c) {
        const std::string s = " clear " + std::to_string(c);
        add("local" + s, 0x100, {{4, 1, c}, {5, 1, c}, {7, 1, c}, {9, 1, c}, {10, 1, c}}, {{4, 1}, {5, 1}, {7, 1}, {9, 1}, {10, 1}},
            [c] { uint16_t o[5] = {9, 9, 9, 9, 9}; EXPECT_EQ(VQ6192_INT_GetLocIntFlag(kTestChip, 0, c, o), 0u); return Flags(o, o + 5); });
        add("pmu" + s, 0x102, {{0, 1, c}}, {{0, 1}},
            [c] { uint16_t o = 9; EXPECT_EQ(VQ6192_INT_GetPmuInt(kTestChip, &o, c), 0u); return Flags{o}; });
        add("mp" + s, 0x104, {{0, 1, c}}, {{0, 1}},
            [c] { uint16_t o = 9; EXPECT_EQ(VQ6192_INT_GetMpInt(kTestChip, &o, c), 0u); return Flags{o}; });
        add("atm" + s, 0x106, c != 0 ? std::vector<FieldWrite>{{1, 1, 1}, {0, 1, 1}} : std::vector<FieldWrite>{}, {{0, 1}, {1, 1}},
            [c] { uint16_t f0 = 9, f1 = 9; EXPECT_EQ(VQ6192_INT_GetAtmInt(kTestChip, &f0, &f1, c), 0u); return Flags{f0, f1}; });
    }
    // CES timing recovery instance 3, latched field bits 0..3: kind 8 is bit 3, 9 bit 0, 7 bit 2.
    for (const auto &[kind, mask] : {std::pair{8u, 8u}, {9u, 1u}, {7u, 4u}}) {
        add("ces tr stat kind " + std::to_string(kind), 0x17066, {{0, 4, mask}}, {{0, mask}},
            [kind = kind] { uint8_t o = 99; EXPECT_EQ(VQ6192_INT_GetCesTrIntStat(kTestChip, 3, kind, 1, &o, 1), 0u); return Flags{o}; });
    }
    // CES channel 13, type 2: bit 4 x (13 mod 4) + 2 = 6 of the latched register 0x16060 + 2 x (13 / 4).
    add("ces channel 13 type 2", 0x16066, {{6, 1, 1}}, {{6, 1}},
        [] { uint8_t o = 99; EXPECT_EQ(VQ6192_INT_GetCESIntStat(kTestChip, 13, 2, 1, &o, 1), 0u); return Flags{o}; });
    return cases;
}
// clang-format on

TEST_F(Interrupts, ClearingReadsWriteOnlyTheirField) {
    std::mt19937 rng(10);
    for (const ClearCase &c : clearCases()) {
        for (int round = 0; round < 3; ++round) {
            SCOPED_TRACE(testing::Message() << c.what << " round " << round);
            const auto before = static_cast<uint16_t>(rng() | 0x8000);
            model.poke(c.addr, before);
            Accesses expected;
            uint16_t reg = before;
            for (const FieldWrite &w : c.fields) {
                const uint32_t mask = ((1u << w.width) - 1u) << w.bit;
                const auto written = static_cast<uint16_t>((reg & ~mask) | (w.value << w.bit & mask));
                expected.push_back(wr(c.addr, written));
                reg = static_cast<uint16_t>(reg & ~written);  // write 1 to clear
            }
            Flags flags, want;
            EXPECT_EQ(writes(traced([&] { flags = c.op(); })), expected);
            EXPECT_EQ(peek({c.addr}), U32s{reg});
            for (const auto &[shift, mask] : c.flags) {
                want.push_back((before >> shift) & mask);
            }
            EXPECT_EQ(flags, want);
        }
    }
}

// The timing recovery summary names the lowest pending instance; with clear, 15 goes into its latched
// field (bits 0..3) of the register as read.
TEST_F(Interrupts, CesTimingRecoveryPendingInstance) {
    poke({{0x17060 + 2 * 7, 0xA0D}, {0x17060 + 2 * 9, 0x4}});
    uint16_t inst = 0, f3 = 9, f2 = 9, f0 = 9;
    EXPECT_EQ(writes(traced([&] { EXPECT_EQ(VQ6192_INT_GetCesTrInt(kChip, &inst, &f3, &f2, &f0, 1), 0u); })),
              (Accesses{wr(0x1706E, 0xA0F)}));
    EXPECT_EQ((U16s{inst, f3, f2, f0, model.peek(0x1706E)}), (U16s{7, 1, 1, 1, 0}));
    EXPECT_EQ(writes(traced([&] { EXPECT_EQ(VQ6192_INT_GetCesTrInt(kChip, &inst, &f3, &f2, &f0, 0), 0u); })),
              Accesses{});
    EXPECT_EQ((U16s{inst, f3, f2, f0}), (U16s{9, 0, 1, 0}));
}

TEST_F(Interrupts, EngineEnables) {
    model.poke(0xC0, 0xFFFD);
    EXPECT_EQ(traced([&] { EXPECT_EQ(VQ6192_INT_SetIntActiveMode(kChip, 1, 0), 0u); }),
              (Accesses{rd(0xC0, 0xFFFD), wr(0xC0, 0xFFFE)}));
    uint32_t a = 9, b = 9;
    uint16_t index = 0;
    poke({{0x140, 0xFFFF}, {0xC4, 0xFFFE}, {0xC6, 0xFFFE}, {0xC8, 0xFFFD}, {0x170AA, 0xFFF0}});
    EXPECT_EQ((U32s{VQ6192_INT_GetIntActiveMode(kChip, &a, &b), VQ6192_INT_GetIntIndex(kChip, &index)}),
              U32s(2, 0));
    EXPECT_EQ((U32s{a, b, index}), (U32s{1, 0, 0x1FF}));
    // ATM: bit 1 <- 1, bit 0 <- 0
    EXPECT_EQ((U32s{VQ6192_INT_SetPmuIntEn(kChip, 1), VQ6192_INT_SetMpIntEn(kChip, 1),
                    VQ6192_INT_SetAtmIntEn(kChip, 0, 1), VQ6192_INT_SetCesTrIntEn(kChip, 5, 1)}),
              U32s(4, 0));
    EXPECT_EQ(peek({0xC4, 0xC6, 0xC8, 0x170AA}), (U32s{0xFFFF, 0xFFFF, 0xFFFE, 0xFFFF}));
    model.poke(0x170AA, 0);
    EXPECT_EQ(traced([&] { EXPECT_EQ(VQ6192_INT_SetCesTrIntEn(kChip, VQ6192_INT_ALL, 1), 0u); }).size(), 32u);
    for (uint32_t i = 0; i < 16; ++i) {
        EXPECT_EQ(model.peek(0x170A0 + 2 * i), 0xF) << i;
    }
    uint16_t inst = 0, f = 9;
    EXPECT_EQ((U32s{VQ6192_INT_GetCesTrInt(kChip, &inst, &f, &f, &f, 1), inst}),
              (U32s{VQ6192_INT_CES_TR_NONE, 0xFFFF}));

    model.poke(0x16180, 0x8F8F);  // channel 100: group 1, bits 4..6
    EXPECT_EQ(traced([&] { EXPECT_EQ(VQ6192_INT_SetCesIntEn(kChip, 100, 1, 0, 0), 0u); }),
              (Accesses{rd(0x16180, 0x8F8F), wr(0x16180, 0x8FFF)}));
    model.poke(0x16160, 0x8888);
    EXPECT_EQ(
        (U32s{VQ6192_INT_SetCesIntEn(kChip, 335, 1, 1, 1), model.peek(0x16160 + 2 * 83),  // 335 mod 84 = 83
              VQ6192_INT_SetCesIntEn(kChip, VQ6192_INT_ALL, 1, 0, 0), model.peek(0x16160)}),
        (U32s{0, 0x7000, 0, 0xFFFF}));  // group 3 of channel 83; every group of every channel
    for (uint32_t k = 0; k < 84; ++k) {
        EXPECT_EQ(model.peek(0x16160 + 2 * k) & 0x7777, 0x7777) << k;
    }
    EXPECT_EQ((U32s{VQ6192_INT_SetCesIntEn(kChip, VQ6192_INT_ALL, 0, 0, 0), model.peek(0x16160)}),
              (U32s{0, 0x8888}));
}

TEST_F(Interrupts, E1MapperRegisters) {
    model.poke(0x20006, 0xFFFB);
    EXPECT_EQ(VQ6192_INT_SetE1MapRfpIntEn(kChip, 1, 0), 0u);  // bit 2 <- 1, bit 1 <- 0
    EXPECT_EQ(peek({0x20006}), U32s{0xFFFD});
    uint16_t f1 = 9, f2 = 9, f0 = 9, f3 = 9;
    for (const auto &[reg, clear, want] : {std::tuple{0x0012, 0, U16s{0, 1}},
                                           {0x0012, 1, U16s{0, 1}},
                                           {0x0009, 1, U16s{1, 0}}}) {  // bits 1 and 4; bits 0 and 3
        model.poke(0x20012, static_cast<uint16_t>(reg));
        EXPECT_EQ(VQ6192_INT_GetE1MapRfpInt(kChip, &f1, &f2, clear), 0u);
        EXPECT_EQ((U16s{f1, f2}), want);
    }
    // Low-order path enables: type, group, index and the register of their bit 1.
    for (const auto &[type, group, index, addr] : {std::array<uint32_t, 4>{0, 1, 2, 0x7C38C},
                                                   {1, 3, 62, 0xDC38C},
                                                   {2, 0, 27, 0x2C38C},
                                                   {2, 2, 28, 0x9C38C},
                                                   {0, 0, 0, 0x2C38C}}) {
        SCOPED_TRACE(testing::Message() << type << "/" << group << "/" << index);
        model.poke(addr, 0xFFFD);
        uint32_t rc = 1;
        EXPECT_EQ(writes(traced([&] { rc = VQ6192_INT_SetE1MapLpIntEn(kChip, type, group, index, 1); })),
                  Accesses{wr(addr, 0xFFFF)});
        EXPECT_EQ(rc, 0u);
    }
    poke({{0x39A22, 0x2}, {0x2C30C, 0xFFFB}, {0x2C0DE, 0x8}});  // LP: type 3, index 90
    EXPECT_EQ(
        (U32s{VQ6192_INT_GetE1MapLpInt(kChip, 3, 90, &f1, &f0), VQ6192_INT_SetE1MapHpIntEn(kChip, 1, 11, 1),
              VQ6192_INT_SetE1MapHpIntEn(kChip, 0, 3, 1), VQ6192_INT_GetE1MapHpInt(kChip, 2, &f3, &f2)}),
        U32s(4, 0));
    EXPECT_EQ((U16s{f1, f0, f3, f2}), (U16s{1, 0, 1, 0}));
    EXPECT_EQ(peek({0x2C30C, 0x2C10C}), (U32s{0xFFFF, 0x4}));
    // The E1 mapper interrupt index is bit 8 of the chip id; no register is read.
    uint16_t index = 9;
    EXPECT_TRUE(traced([&] { EXPECT_EQ(VQ6192_INT_GetE1MapIntIndex(kChip, &index), 0u); }).empty());
    EXPECT_EQ(index, 0);
}

TEST_F(Interrupts, TimeslotBusAndE3T3Ports) {
    uint16_t a = 0, b = 0, c = 0, d = 0;
    poke({{0x2A01E, 0xF000}, {0x2A01C, 0xFF80}});
    EXPECT_EQ((U32s{VQ6192_INT_SetHtbWarmIntEn(kChip, 5, 63), VQ6192_INT_GetHtbWarmInt(kChip, &a, &b),
                    VQ6192_INT_SetHtbB2sfIntEn(kChip, 1, 10), VQ6192_INT_GetHtbB2sfInt(kChip, &c, &d)}),
              U32s(4, 0));
    EXPECT_EQ(peek({0x2A01E, 0x2A01C}), (U32s{0xFFC5, 0xFFCA}));
    EXPECT_EQ((U16s{a, b, c, d}), (U16s{5, 63, 1, 10}));
    uint8_t out = 9;
    for (uint32_t kind = 0; kind < 4; ++kind) {
        SCOPED_TRACE(kind);
        model.poke(0x2B768, 0xFFF0);
        out = 9;
        EXPECT_EQ(
            (U32s{VQ6192_INT_SetET3IntEn(kChip, 11, kind, 1), VQ6192_INT_GetET3Int(kChip, 11, kind, &out)}),
            U32s(2, 0));
        EXPECT_EQ(peek({0x2B768}), U32s{0xFFF0u | 1u << (3 - kind)});
        EXPECT_EQ(out, 1);
    }
    expectRefused({{"et3 get kind 4", 0, [&] { return VQ6192_INT_GetET3Int(kChip, 0, 4, &out); }, true}});
    EXPECT_EQ(out, 0);
}

TEST_F(Interrupts, ParameterErrors) {
    uint16_t u16 = 0, f = 0;
    uint8_t u8 = 0;
    // Unknown source ids are refused with a bare 1 and no trace.
    for (uint32_t id : {0u, 3u, 5u, 100u, 129u, 255u}) {
        SCOPED_TRACE(id);
        expectRefused({{"set enable", 1, [&] { return VQ6192_INT_SetIntEnable(kChip, id, 1); }, true},
                       {"get enable", 1, [&] { return VQ6192_INT_GetIntEnable(kChip, id, &u16); }, true},
                       {"set mode", 1, [&] { return VQ6192_INT_SetIntMode(kChip, id, 1); }, true},
                       {"flag", 1, [&] { return VQ6192_INT_GetIntFlag(kChip, id, 0, 1, &u16); }, true},
                       {"alarm", 1, [&] { return VQ6192_INT_GetIntAlm(kChip, id, 0, &u16); }, true}});
    }
    for (uint32_t id : {4u, 8u, 32u, 64u}) {
        expectRefused({{"sub 2", kIntPara, [&] { return VQ6192_INT_GetIntFlag(kChip, id, 2, 1, &u16); }}});
    }
    // clang-format off
    expectRefused({
        {"id 512", kIntPara, [&] { return VQ6192_INT_SetIntEnable(kChip, 512, 1); }},
        {"id 257", kIntPara, [&] { return VQ6192_INT_SetIntMode(kChip, 257, 1); }},
        {"flag id 257", kIntPara, [&] { return VQ6192_INT_GetIntFlag(kChip, 257, 0, 1, &u16); }},
        {"enable 2", kIntPara, [&] { return VQ6192_INT_SetIntEnable(kChip, 1, 2); }},
        {"clear 2", kIntPara, [&] { return VQ6192_INT_GetIntFlag(kChip, 1, 0, 2, &u16); }},
        {"sub 11", kIntPara, [&] { return VQ6192_INT_GetIntFlag(kChip, 128, 11, 1, &u16); }},
        {"alarm sub 11", kIntPara, [&] { return VQ6192_INT_GetIntAlm(kChip, 128, 11, &u16); }},
        {"active mode 2", kIntPara, [&] { return VQ6192_INT_SetIntActiveMode(kChip, 2, 0); }},
        {"local clear 2", kIntPara, [&] { return VQ6192_INT_GetLocIntFlag(kChip, 0, 2, &u16); }},
        {"pmu 2", kIntPara, [&] { return VQ6192_INT_SetPmuIntEn(kChip, 2); }},
        {"atm en 2", kIntPara, [&] { return VQ6192_INT_SetAtmIntEn(kChip, 2, 0); }},
        {"ces tr kind 6", kIntPara, [&] { return VQ6192_INT_GetCesTrIntStat(kChip, 3, 6, 1, &u8, 0); }, true},
        {"ces tr instance 16", kIntPara, [&] { return VQ6192_INT_GetCesTrIntStat(kChip, 16, 8, 1, &u8, 0); }},
        {"ces tr enable instance 16", kIntPara, [&] { return VQ6192_INT_SetCesTrIntEn(kChip, 16, 1); }},
        {"ces channel 340", 1, [&] { return VQ6192_INT_SetCesIntEn(kChip, 340, 1, 0, 0); }, true},
        {"ces channel 352", kIntPara, [&] { return VQ6192_INT_SetCesIntEn(kChip, 352, 1, 0, 0); }},
        {"ces en3 2", kIntPara, [&] { return VQ6192_INT_SetCesIntEn(kChip, 1, 1, 0, 2); }},
        {"ces type 3", kIntPara, [&] { return VQ6192_INT_GetCESIntStat(kChip, 13, 3, 1, &u8, 1); }, true},
        {"ces channel 353", kIntPara, [&] { return VQ6192_INT_GetCESIntStat(kChip, 353, 0, 1, &u8, 1); }},
        {"rfp select 2", kIntPara, [&] { return VQ6192_INT_GetE1MapRfpInt(kChip, &u16, &u16, 2); }},
        {"lp index 3 type 0", kIntPara, [&] { return VQ6192_INT_SetE1MapLpIntEn(kChip, 0, 0, 3, 1); }},
        {"lp index 63 type 1", kIntPara, [&] { return VQ6192_INT_SetE1MapLpIntEn(kChip, 1, 0, 63, 1); }},
        {"lp index 84 type 2", kIntPara, [&] { return VQ6192_INT_SetE1MapLpIntEn(kChip, 2, 0, 84, 1); }},
        {"lp group 4", kIntPara, [&] { return VQ6192_INT_SetE1MapLpIntEn(kChip, 1, 4, 0, 1); }},
        {"lp status index 91", kIntPara, [&] { return VQ6192_INT_GetE1MapLpInt(kChip, 0, 91, &u16, &f); }},
        {"hp kind 0 index 4", kIntPara, [&] { return VQ6192_INT_SetE1MapHpIntEn(kChip, 0, 4, 1); }},
        {"warm 64", kIntPara, [&] { return VQ6192_INT_SetHtbWarmIntEn(kChip, 64, 0); }},
        {"b2sf a 2", kIntPara, [&] { return VQ6192_INT_SetHtbB2sfIntEn(kChip, 2, 0); }},
        {"et3 kind 4", 0, [&] { return VQ6192_INT_SetET3IntEn(kChip, 0, 4, 1); }, true},
        {"et3 port 12", kIntPara, [&] { return VQ6192_INT_SetET3IntEn(kChip, 12, 0, 1); }},
    });
    // clang-format on
}

}  // namespace
