// Interrupt control: exact register accesses of the enable, mode, flag and status operations.
#include "chip_fixture.h"

#include <random>
#include <string>

namespace {

using namespace chiptest;
using Interrupts = ChipFixture;

struct SourceCase {
    uint32_t id;
    uint32_t enableAddr;
    uint16_t enableBits;
    uint32_t modeAddr, flagAddr;
    uint32_t subs;
};
const SourceCase kSources[] = {
    {1, 0xC4, 0x1, 0xE2, 0x102, 1},  {2, 0xC6, 0x1, 0xE4, 0x104, 1},      {4, 0xC8, 0x1, 0xE6, 0x106, 2},
    {8, 0xC8, 0x2, 0xE6, 0x106, 2},  {16, 0xCA, 0x1, 0xE8, 0x108, 1},     {32, 0xCC, 0x2, 0xEA, 0x10A, 2},
    {64, 0xCC, 0x1, 0xEA, 0x10A, 2}, {128, 0xC2, 0x7FF, 0xE0, 0x100, 11}, {256, 0xCE, 0x1, 0xEC, 0x10C, 1},
};

TEST_F(Interrupts, SourceEnableAndModeBits) {
    for (const SourceCase &s : kSources) {
        SCOPED_TRACE(s.id);
        model.poke(s.enableAddr, 0x8000);
        EXPECT_EQ(
            traced([&] { EXPECT_EQ(VQ6192_INT_SetIntEnable(kChip, s.id, 1), 0u); }),
            (std::vector<BusAccess>{rd(s.enableAddr, 0x8000), wr(s.enableAddr, 0x8000u | s.enableBits)}));
        uint16_t out = 0;
        EXPECT_EQ(VQ6192_INT_GetIntEnable(kChip, s.id, &out), 0u);
        EXPECT_EQ(out, s.id == 128 ? 0x7FF : 1);
        EXPECT_EQ(VQ6192_INT_SetIntEnable(kChip, s.id, 0), 0u);
        EXPECT_EQ(model.peek(s.enableAddr), 0x8000);
        model.poke(s.modeAddr, 0);
        EXPECT_EQ(VQ6192_INT_SetIntMode(kChip, s.id, 1), 0u);
        EXPECT_EQ(model.peek(s.modeAddr), 1);
    }
}

// Every flag read with a clear is a field write: the clear value goes into the operation's own field
// of the register as it was read, the other bits are written back as read, and the write-1-to-clear
// flags clear wherever a 1 was written. From random contents of every interrupt register, each
// operation writes exactly that and reports its flags from what it read.
struct FieldWrite {
    uint32_t bit, width, value;
};
struct ClearCase {
    std::string what;
    uint32_t addr;
    std::vector<FieldWrite> fields;  // in the order the operation writes them
    std::function<uint32_t(std::vector<uint32_t> &flags)> op;
    std::function<std::vector<uint32_t>(uint16_t before)> expectedFlags;
};

constexpr uint32_t kTestChip = 3;  // the fixture's chip

std::vector<ClearCase> clearCases() {
    std::vector<ClearCase> cases;
    auto bitOf = [](uint32_t b) { return [b](uint16_t v) { return std::vector<uint32_t>{(v >> b) & 1u}; }; };
    // Top-level sources: flag field (address, lowest bit, width) and sub-sources.
    const struct {
        uint32_t id, addr, bit, width, subs;
    } sources[] = {{1, 0x102, 0, 1, 1},  {2, 0x104, 0, 1, 1},     {4, 0x106, 0, 2, 2},
                   {8, 0x106, 0, 2, 2},  {16, 0x108, 0, 1, 1},    {32, 0x10A, 0, 2, 2},
                   {64, 0x10A, 0, 2, 2}, {128, 0x100, 0, 11, 11}, {256, 0x10C, 0, 1, 1}};
    for (const auto &src : sources) {
        for (uint32_t sub = 0; sub < src.subs; ++sub) {
            for (uint32_t clear = 0; clear <= 1; ++clear) {
                const uint32_t id = src.id;
                cases.push_back({"flag " + std::to_string(id) + " sub " + std::to_string(sub) + " clear " +
                                     std::to_string(clear),
                                 src.addr,
                                 {{src.bit, src.width, clear << sub}},
                                 [=](std::vector<uint32_t> &f) {
                                     uint16_t out = 9;
                                     const uint32_t rc =
                                         VQ6192_INT_GetIntFlag(kTestChip, id, sub, clear, &out);
                                     f = {out};
                                     return rc;
                                 },
                                 bitOf(sub)});
            }
        }
    }
    for (uint32_t clear = 0; clear <= 1; ++clear) {
        const std::string c = std::to_string(clear);
        cases.push_back({"local flags clear " + c,
                         0x100,
                         {{4, 1, clear}, {5, 1, clear}, {7, 1, clear}, {9, 1, clear}, {10, 1, clear}},
                         [=](std::vector<uint32_t> &f) {
                             uint16_t out[5] = {9, 9, 9, 9, 9};
                             const uint32_t rc = VQ6192_INT_GetLocIntFlag(kTestChip, 0, clear, out);
                             f.assign(out, out + 5);
                             return rc;
                         },
                         [](uint16_t v) {
                             return std::vector<uint32_t>{(v >> 4) & 1u, (v >> 5) & 1u, (v >> 7) & 1u,
                                                          (v >> 9) & 1u, (v >> 10) & 1u};
                         }});
        cases.push_back({"pmu clear " + c,
                         0x102,
                         {{0, 1, clear}},
                         [=](std::vector<uint32_t> &f) {
                             uint16_t out = 9;
                             const uint32_t rc = VQ6192_INT_GetPmuInt(kTestChip, &out, clear);
                             f = {out};
                             return rc;
                         },
                         bitOf(0)});
        cases.push_back({"mp clear " + c,
                         0x104,
                         {{0, 1, clear}},
                         [=](std::vector<uint32_t> &f) {
                             uint16_t out = 9;
                             const uint32_t rc = VQ6192_INT_GetMpInt(kTestChip, &out, clear);
                             f = {out};
                             return rc;
                         },
                         bitOf(0)});
        cases.push_back(
            {"atm clear " + c, 0x106,
             clear != 0 ? std::vector<FieldWrite>{{1, 1, 1}, {0, 1, 1}} : std::vector<FieldWrite>{},
             [=](std::vector<uint32_t> &f) {
                 uint16_t f0 = 9, f1 = 9;
                 const uint32_t rc = VQ6192_INT_GetAtmInt(kTestChip, &f0, &f1, clear);
                 f = {f0, f1};
                 return rc;
             },
             [](uint16_t v) {
                 return std::vector<uint32_t>{v & 1u, (v >> 1) & 1u};
             }});
    }
    // CES timing recovery instance 3, latched field bits 0..3: kind 8 is bit 3, 9 bit 0, 7 bit 2.
    for (const auto &[kind, mask] : {std::pair{8u, 8u}, {9u, 1u}, {7u, 4u}}) {
        cases.push_back({"ces tr stat kind " + std::to_string(kind),
                         0x17066,
                         {{0, 4, mask}},
                         [kind = kind](std::vector<uint32_t> &f) {
                             uint8_t out = 99;
                             const uint32_t rc = VQ6192_INT_GetCesTrIntStat(kTestChip, 3, kind, 1, &out, 1);
                             f = {out};
                             return rc;
                         },
                         [mask = mask](uint16_t v) { return std::vector<uint32_t>{v & mask}; }});
    }
    // CES channel 13, type 2: bit 4 x (13 mod 4) + 2 = 6 of the latched register 0x16060 + 2 x (13 / 4).
    cases.push_back({"ces channel 13 type 2",
                     0x16066,
                     {{6, 1, 1}},
                     [](std::vector<uint32_t> &f) {
                         uint8_t out = 99;
                         const uint32_t rc = VQ6192_INT_GetCESIntStat(kTestChip, 13, 2, 1, &out, 1);
                         f = {out};
                         return rc;
                     },
                     bitOf(6)});
    return cases;
}

TEST_F(Interrupts, ClearingReadsWriteOnlyTheirField) {
    static_assert(kTestChip == kChip);
    std::mt19937 rng(10);
    for (const ClearCase &c : clearCases()) {
        for (int round = 0; round < 3; ++round) {
            SCOPED_TRACE(testing::Message() << c.what << " round " << round);
            const auto before = static_cast<uint16_t>(rng() | 0x8000);
            model.poke(c.addr, before);
            std::vector<BusAccess> expected;
            uint16_t reg = before;
            for (const FieldWrite &w : c.fields) {
                const uint32_t mask = ((1u << w.width) - 1u) << w.bit;
                const auto written = static_cast<uint16_t>((reg & ~mask) | (w.value << w.bit & mask));
                expected.push_back(wr(c.addr, written));
                reg = static_cast<uint16_t>(reg & ~written);  // write 1 to clear
            }
            std::vector<uint32_t> flags;
            EXPECT_EQ(writes(traced([&] { EXPECT_EQ(c.op(flags), 0u); })), expected);
            EXPECT_EQ(model.peek(c.addr), reg);
            EXPECT_EQ(flags, c.expectedFlags(before));
        }
    }
}

// The timing recovery summary names the lowest pending instance; with clear, 15 goes into its latched
// field (bits 0..3) of the register as read.
TEST_F(Interrupts, CesTimingRecoveryPendingInstance) {
    model.poke(0x17060 + 2 * 7, 0xA0D);
    model.poke(0x17060 + 2 * 9, 0x4);
    uint16_t inst = 0, f3 = 9, f2 = 9, f0 = 9;
    EXPECT_EQ(writes(traced([&] { EXPECT_EQ(VQ6192_INT_GetCesTrInt(kChip, &inst, &f3, &f2, &f0, 1), 0u); })),
              (std::vector<BusAccess>{wr(0x1706E, 0xA0F)}));
    EXPECT_EQ(inst, 7);
    EXPECT_EQ((std::vector<uint16_t>{f3, f2, f0}), (std::vector<uint16_t>{1, 1, 1}));
    EXPECT_EQ(model.peek(0x1706E), 0);
    EXPECT_EQ(writes(traced([&] { EXPECT_EQ(VQ6192_INT_GetCesTrInt(kChip, &inst, &f3, &f2, &f0, 0), 0u); })),
              std::vector<BusAccess>{});
    EXPECT_EQ(inst, 9);
    EXPECT_EQ((std::vector<uint16_t>{f3, f2, f0}), (std::vector<uint16_t>{0, 1, 0}));
}

TEST_F(Interrupts, UnknownIdsAndBadSubSources) {
    uint16_t out = 0;
    for (uint32_t id : {0u, 3u, 5u, 100u, 129u, 255u}) {
        SCOPED_TRACE(id);
        expectRefused(
            "set enable", 1, [&] { return VQ6192_INT_SetIntEnable(kChip, id, 1); }, true);
        expectRefused(
            "get enable", 1, [&] { return VQ6192_INT_GetIntEnable(kChip, id, &out); }, true);
        expectRefused(
            "set mode", 1, [&] { return VQ6192_INT_SetIntMode(kChip, id, 1); }, true);
        expectRefused(
            "flag", 1, [&] { return VQ6192_INT_GetIntFlag(kChip, id, 0, 1, &out); }, true);
        expectRefused(
            "alarm", 1, [&] { return VQ6192_INT_GetIntAlm(kChip, id, 0, &out); }, true);
    }
    expectRefused("id 512", kIntPara, [&] { return VQ6192_INT_SetIntEnable(kChip, 512, 1); });
    expectRefused("id 257", kIntPara, [&] { return VQ6192_INT_SetIntMode(kChip, 257, 1); });
    expectRefused("flag id 257", kIntPara, [&] { return VQ6192_INT_GetIntFlag(kChip, 257, 0, 1, &out); });
    expectRefused("enable 2", kIntPara, [&] { return VQ6192_INT_SetIntEnable(kChip, 1, 2); });
    expectRefused("clear 2", kIntPara, [&] { return VQ6192_INT_GetIntFlag(kChip, 1, 0, 2, &out); });
    for (uint32_t id : {4u, 8u, 32u, 64u}) {
        expectRefused("sub 2", kIntPara, [&] { return VQ6192_INT_GetIntFlag(kChip, id, 2, 1, &out); });
    }
    expectRefused("sub 11", kIntPara, [&] { return VQ6192_INT_GetIntFlag(kChip, 128, 11, 1, &out); });
    expectRefused("alarm sub 11", kIntPara, [&] { return VQ6192_INT_GetIntAlm(kChip, 128, 11, &out); });
}

TEST_F(Interrupts, LineModeAndIndex) {
    EXPECT_EQ(traced([&] { EXPECT_EQ(VQ6192_INT_SetIntActiveMode(kChip, 1, 0), 0u); }),
              (std::vector<BusAccess>{rd(0xC0, 0), wr(0xC0, 2)}));
    uint32_t a = 9, b = 9;
    EXPECT_EQ(VQ6192_INT_GetIntActiveMode(kChip, &a, &b), 0u);
    EXPECT_EQ(a, 1u);
    EXPECT_EQ(b, 0u);

    model.poke(0x140, 0xFFFF);
    uint16_t index = 0;
    EXPECT_EQ(VQ6192_INT_GetIntIndex(kChip, &index), 0u);
    EXPECT_EQ(index, 0x1FF);
}

TEST_F(Interrupts, PmuMpAndAtmEngines) {
    EXPECT_EQ(VQ6192_INT_SetPmuIntEn(kChip, 1), 0u);
    EXPECT_EQ(VQ6192_INT_SetMpIntEn(kChip, 1), 0u);
    EXPECT_EQ(model.peek(0xC4), 1);
    EXPECT_EQ(model.peek(0xC6), 1);
    EXPECT_EQ(VQ6192_INT_SetAtmIntEn(kChip, 0, 1), 0u);
    EXPECT_EQ(model.peek(0xC8), 2);
}

TEST_F(Interrupts, CesTimingRecovery) {
    EXPECT_EQ(VQ6192_INT_SetCesTrIntEn(kChip, 5, 1), 0u);
    EXPECT_EQ(model.peek(0x170AA), 0xF);
    EXPECT_EQ(traced([&] { EXPECT_EQ(VQ6192_INT_SetCesTrIntEn(kChip, VQ6192_INT_ALL, 1), 0u); }).size(), 32u);
    for (uint32_t i = 0; i < 16; ++i) {
        EXPECT_EQ(model.peek(0x170A0 + 2 * i), 0xF) << i;
    }

    uint16_t inst = 0, f3 = 9, f2 = 9, f0 = 9;
    EXPECT_EQ(VQ6192_INT_GetCesTrInt(kChip, &inst, &f3, &f2, &f0, 1), VQ6192_INT_CES_TR_NONE);
    EXPECT_EQ(inst, 0xFFFF);
    uint8_t out = 0;
    expectRefused(
        "kind 6", kIntPara, [&] { return VQ6192_INT_GetCesTrIntStat(kChip, 3, 6, 1, &out, 0); }, true);
    expectRefused("instance 16", kIntPara,
                  [&] { return VQ6192_INT_GetCesTrIntStat(kChip, 16, 8, 1, &out, 0); });
    expectRefused("enable instance 16", kIntPara, [&] { return VQ6192_INT_SetCesTrIntEn(kChip, 16, 1); });
}

TEST_F(Interrupts, CesChannels) {
    EXPECT_EQ(traced([&] { EXPECT_EQ(VQ6192_INT_SetCesIntEn(kChip, 100, 1, 0, 0), 0u); }),
              (std::vector<BusAccess>{rd(0x16180, 0), wr(0x16180, 0x70)}));
    EXPECT_EQ(VQ6192_INT_SetCesIntEn(kChip, 335, 1, 1, 1), 0u);  // 335 mod 84 = 83, group 3
    EXPECT_EQ(model.peek(0x16160 + 2 * 83), 0x7000);
    model.poke(0x16160, 0x8888);
    EXPECT_EQ(VQ6192_INT_SetCesIntEn(kChip, VQ6192_INT_ALL, 1, 0, 0), 0u);
    for (uint32_t k = 0; k < 84; ++k) {
        EXPECT_EQ(model.peek(0x16160 + 2 * k) & 0x7777, 0x7777) << k;
    }
    EXPECT_EQ(model.peek(0x16160), 0xFFFF);
    EXPECT_EQ(VQ6192_INT_SetCesIntEn(kChip, VQ6192_INT_ALL, 0, 0, 0), 0u);
    EXPECT_EQ(model.peek(0x16160), 0x8888);
    expectRefused(
        "channel 340", 1, [&] { return VQ6192_INT_SetCesIntEn(kChip, 340, 1, 0, 0); }, true);
    expectRefused("channel 352", kIntPara, [&] { return VQ6192_INT_SetCesIntEn(kChip, 352, 1, 0, 0); });
    expectRefused("en3 2", kIntPara, [&] { return VQ6192_INT_SetCesIntEn(kChip, 1, 1, 0, 2); });

    uint8_t out = 0;
    expectRefused(
        "type 3", kIntPara, [&] { return VQ6192_INT_GetCESIntStat(kChip, 13, 3, 1, &out, 1); }, true);
    expectRefused("channel 353", kIntPara,
                  [&] { return VQ6192_INT_GetCESIntStat(kChip, 353, 0, 1, &out, 1); });
}

TEST_F(Interrupts, E1MapperRegisters) {
    EXPECT_EQ(VQ6192_INT_SetE1MapRfpIntEn(kChip, 1, 0), 0u);
    EXPECT_EQ(model.peek(0x20006), 0x4);
    EXPECT_EQ(VQ6192_INT_SetE1MapRfpIntEn(kChip, 0, 1), 0u);
    EXPECT_EQ(model.peek(0x20006), 0x2);
    model.poke(0x20012, 0x0012);  // bits 1 and 4
    uint16_t f1 = 9, f2 = 9;
    EXPECT_EQ(VQ6192_INT_GetE1MapRfpInt(kChip, &f1, &f2, 0), 0u);
    EXPECT_EQ((std::vector<uint16_t>{f1, f2}), (std::vector<uint16_t>{0, 1}));
    EXPECT_EQ(VQ6192_INT_GetE1MapRfpInt(kChip, &f1, &f2, 1), 0u);
    EXPECT_EQ((std::vector<uint16_t>{f1, f2}), (std::vector<uint16_t>{0, 1}));
    model.poke(0x20012, 0x0009);  // bits 0 and 3
    EXPECT_EQ(VQ6192_INT_GetE1MapRfpInt(kChip, &f1, &f2, 1), 0u);
    EXPECT_EQ((std::vector<uint16_t>{f1, f2}), (std::vector<uint16_t>{1, 0}));

    struct LpCase {
        uint32_t type, group, index, addr;
    };
    for (const LpCase &c : {LpCase{0, 1, 2, 0x7C38C}, LpCase{1, 3, 62, 0xDC38C}, LpCase{2, 0, 27, 0x2C38C},
                            LpCase{2, 2, 28, 0x9C38C}, LpCase{0, 0, 0, 0x2C38C}}) {
        SCOPED_TRACE(testing::Message() << c.type << "/" << c.group << "/" << c.index);
        model.poke(c.addr, 0);
        EXPECT_EQ(writes(traced([&] {
                      EXPECT_EQ(VQ6192_INT_SetE1MapLpIntEn(kChip, c.type, c.group, c.index, 1), 0u);
                  })),
                  std::vector<BusAccess>{wr(c.addr, 2)});
    }
    expectRefused("lp index 3 type 0", kIntPara,
                  [&] { return VQ6192_INT_SetE1MapLpIntEn(kChip, 0, 0, 3, 1); });
    expectRefused("lp index 63 type 1", kIntPara,
                  [&] { return VQ6192_INT_SetE1MapLpIntEn(kChip, 1, 0, 63, 1); });
    expectRefused("lp index 84 type 2", kIntPara,
                  [&] { return VQ6192_INT_SetE1MapLpIntEn(kChip, 2, 0, 84, 1); });
    expectRefused("lp group 4", kIntPara, [&] { return VQ6192_INT_SetE1MapLpIntEn(kChip, 1, 4, 0, 1); });

    model.poke(0x39A22, 0x2);  // type 3, index 90
    uint16_t f0 = 9;
    EXPECT_EQ(VQ6192_INT_GetE1MapLpInt(kChip, 3, 90, &f1, &f0), 0u);
    EXPECT_EQ((std::vector<uint16_t>{f1, f0}), (std::vector<uint16_t>{1, 0}));
    expectRefused("lp status index 91", kIntPara,
                  [&] { return VQ6192_INT_GetE1MapLpInt(kChip, 0, 91, &f1, &f0); });

    EXPECT_EQ(VQ6192_INT_SetE1MapHpIntEn(kChip, 1, 11, 1), 0u);
    EXPECT_EQ(model.peek(0x2C30C), 0x4);
    EXPECT_EQ(VQ6192_INT_SetE1MapHpIntEn(kChip, 0, 3, 1), 0u);
    EXPECT_EQ(model.peek(0x2C10C), 0x4);
    expectRefused("hp kind 0 index 4", kIntPara, [&] { return VQ6192_INT_SetE1MapHpIntEn(kChip, 0, 4, 1); });
    model.poke(0x2C0DE, 0x8);
    uint16_t f3 = 9;
    EXPECT_EQ(VQ6192_INT_GetE1MapHpInt(kChip, 2, &f3, &f2), 0u);
    EXPECT_EQ((std::vector<uint16_t>{f3, f2}), (std::vector<uint16_t>{1, 0}));

    // The E1 mapper interrupt index is bit 8 of the chip id; no register is read.
    uint16_t index = 9;
    EXPECT_TRUE(traced([&] { EXPECT_EQ(VQ6192_INT_GetE1MapIntIndex(kChip, &index), 0u); }).empty());
    EXPECT_EQ(index, 0);
}

TEST_F(Interrupts, TimeslotBusAndE3T3Ports) {
    EXPECT_EQ(VQ6192_INT_SetHtbWarmIntEn(kChip, 5, 63), 0u);
    EXPECT_EQ(model.peek(0x2A01E), 0xFC5);
    uint16_t a = 0, b = 0;
    EXPECT_EQ(VQ6192_INT_GetHtbWarmInt(kChip, &a, &b), 0u);
    EXPECT_EQ((std::vector<uint16_t>{a, b}), (std::vector<uint16_t>{5, 63}));
    EXPECT_EQ(VQ6192_INT_SetHtbB2sfIntEn(kChip, 1, 10), 0u);
    EXPECT_EQ(model.peek(0x2A01C), 0x4A);
    EXPECT_EQ(VQ6192_INT_GetHtbB2sfInt(kChip, &a, &b), 0u);
    EXPECT_EQ((std::vector<uint16_t>{a, b}), (std::vector<uint16_t>{1, 10}));
    expectRefused("warm 64", kIntPara, [&] { return VQ6192_INT_SetHtbWarmIntEn(kChip, 64, 0); });
    expectRefused("b2sf a 2", kIntPara, [&] { return VQ6192_INT_SetHtbB2sfIntEn(kChip, 2, 0); });

    for (uint32_t kind = 0; kind < 4; ++kind) {
        SCOPED_TRACE(kind);
        model.poke(0x2B768, 0);
        EXPECT_EQ(VQ6192_INT_SetET3IntEn(kChip, 11, kind, 1), 0u);
        EXPECT_EQ(model.peek(0x2B768), 1u << (3 - kind));
        uint8_t out = 9;
        EXPECT_EQ(VQ6192_INT_GetET3Int(kChip, 11, kind, &out), 0u);
        EXPECT_EQ(out, 1);
    }
    uint8_t out = 9;
    expectRefused(
        "et3 kind 4", 0, [&] { return VQ6192_INT_SetET3IntEn(kChip, 0, 4, 1); }, true);
    expectRefused(
        "et3 get kind 4", 0, [&] { return VQ6192_INT_GetET3Int(kChip, 0, 4, &out); }, true);
    EXPECT_EQ(out, 0);
    expectRefused("et3 port 12", kIntPara, [&] { return VQ6192_INT_SetET3IntEn(kChip, 12, 0, 1); });
    expectRefused("et3 null", kIntPara, [&] { return VQ6192_INT_GetET3Int(kChip, 0, 0, nullptr); });
}

TEST_F(Interrupts, NullOutputsAndChipIds) {
    uint16_t u16 = 0;
    uint32_t u32 = 0;
    const struct {
        const char *name;
        std::function<uint32_t()> op;
    } cases[] = {
        {"active mode 2", [&] { return VQ6192_INT_SetIntActiveMode(kChip, 2, 0); }},
        {"active mode null", [&] { return VQ6192_INT_GetIntActiveMode(kChip, &u32, nullptr); }},
        {"enable null", [&] { return VQ6192_INT_GetIntEnable(kChip, 1, nullptr); }},
        {"flag null", [&] { return VQ6192_INT_GetIntFlag(kChip, 1, 0, 0, nullptr); }},
        {"local null", [&] { return VQ6192_INT_GetLocIntFlag(kChip, 0, 0, nullptr); }},
        {"local clear 2", [&] { return VQ6192_INT_GetLocIntFlag(kChip, 0, 2, &u16); }},
        {"index null", [&] { return VQ6192_INT_GetIntIndex(kChip, nullptr); }},
        {"pmu 2", [&] { return VQ6192_INT_SetPmuIntEn(kChip, 2); }},
        {"mp null", [&] { return VQ6192_INT_GetMpInt(kChip, nullptr, 0); }},
        {"atm en 2", [&] { return VQ6192_INT_SetAtmIntEn(kChip, 2, 0); }},
        {"atm null", [&] { return VQ6192_INT_GetAtmInt(kChip, &u16, nullptr, 0); }},
        {"ces tr null", [&] { return VQ6192_INT_GetCesTrInt(kChip, &u16, &u16, nullptr, &u16, 0); }},
        {"rfp select 2", [&] { return VQ6192_INT_GetE1MapRfpInt(kChip, &u16, &u16, 2); }},
        {"hp null", [&] { return VQ6192_INT_GetE1MapHpInt(kChip, 0, nullptr, &u16); }},
        {"e1 index null", [&] { return VQ6192_INT_GetE1MapIntIndex(kChip, nullptr); }},
        {"warm null", [&] { return VQ6192_INT_GetHtbWarmInt(kChip, nullptr, &u16); }},
        {"b2sf null", [&] { return VQ6192_INT_GetHtbB2sfInt(kChip, &u16, nullptr); }},
    };
    for (const auto &c : cases) {
        expectRefused(c.name, kIntPara, c.op);
    }
    expectRefused(
        "chip 264", 0x080A0001, [&] { return VQ6192_INT_SetPmuIntEn(264, 1); }, true);
}

}  // namespace
