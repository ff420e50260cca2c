// Path alarms, counters and pointer adjustments decoded from injected chip states, and the masks and
// chip-wide controls written into registers whose other bits are set.
#include <functional>

#include "support/test_support.h"
#include "vq6192/sdh.h"

namespace {

using vqtest::ChipTest;

uint32_t hr(uint32_t n) {
    return 0x2C040 + 0x40 * n;
}
uint32_t lr(uint32_t v, uint32_t c) {
    return 0x2C380 + 0x4000 * v + 0x40 * c;
}

using SdhAlarmTest = ChipTest;

TEST_F(SdhAlarmTest, LowOrderAlarmRecord) {
    // Record order and sources: W = LR+0x20, W2 = LR+0x22, C = LR+0x16.
    struct Flag {
        const char *name;
        uint32_t word;
        uint32_t bit;
    };
    const Flag flags[13] = {
        {"ucLpRfiAlarmHis", 0x20, 8},   {"ucLpPdiAlarmHis", 0x20, 7},   {"ucLpSdiAlarmHis", 0x20, 5},
        {"ucLpRdiAlarmHis", 0x20, 4},   {"ucLpCdiAlarmHis", 0x20, 6},   {"ucLpVcAisAlarmHis", 0x20, 3},
        {"ucLpPlmAlarmHis", 0x20, 2},   {"ucLpUneqAlarmHis", 0x20, 1},  {"ucLpTimAlarmHis", 0x20, 0},
        {"ucLpTuAisAlarmCur", 0x16, 1}, {"ucLpTuAisAlarmHis", 0x22, 1}, {"ucLpTuLopAlarmCur", 0x16, 0},
        {"ucLpTuLopAlarmHis", 0x22, 0},
    };
    const uint32_t base = lr(2, 32 * 1 + 17);
    for (uint32_t i = 0; i < 13; ++i) {
        // Only this flag's bit set; a neighbouring channel has every bit set.
        for (uint32_t word : {0x16u, 0x20u, 0x22u}) {
            model.poke(base + word, static_cast<uint16_t>(word == flags[i].word ? 1u << flags[i].bit : 0));
            model.poke(base + 0x40 + word, 0xFFFF);
        }
        uint8_t alarms[13];
        std::fill(std::begin(alarms), std::end(alarms), 7);
        ASSERT_EQ(VQ6192_SDH_GetLpAlms(kChip, 2, 1, 17, alarms), 0u);
        for (uint32_t j = 0; j < 13; ++j) {
            EXPECT_EQ(alarms[j], i == j ? 1 : 0) << flags[i].name << " -> " << flags[j].name;
        }
    }
}

TEST_F(SdhAlarmTest, HighOrderAlarmsAndCounters) {
    model.poke(hr(3) + 0x1E, 0xFFF7);  // OOM history clear, LOM history set
    model.poke(hr(3) + 0x16, 0x0004);
    model.poke(hr(7) + 0x1E, 0xFFFF);
    uint8_t oom = 9, lom = 9, cur = 9;
    ASSERT_EQ(VQ6192_SDH_GetHpAlms(kChip, 3, &oom, &lom, &cur), 0u);
    EXPECT_EQ(oom, 0);
    EXPECT_EQ(lom, 1);
    EXPECT_EQ(cur, 1);

    model.poke(hr(1) + 0x2A, 0x1234);
    model.poke(hr(1) + 4, 0xFFFD);
    uint8_t flag = 9, count = 0;
    ASSERT_EQ(VQ6192_SDH_GetRxHpB3Cnt(kChip, 1, &flag, &count), 0u);
    EXPECT_EQ(flag, 0);
    EXPECT_EQ(count, 0x34);

    const uint32_t c = 32 * 2 + 27;
    model.poke(lr(1, c) + 0x28, 0xBEEF);
    model.poke(lr(1, c) + 0x2A, 0x0180);
    model.poke(lr(1, c) + 0x2C, 0xF5A3);
    uint16_t bip = 0, a = 0, b = 0, d = 0;
    uint8_t rei = 0;
    ASSERT_EQ(VQ6192_SDH_GetRxLpB3B2Cnt(kChip, 1, 2, 27, &bip), 0u);
    EXPECT_EQ(bip, 0xBEEF);
    ASSERT_EQ(VQ6192_SDH_GetRxLpReiCnt(kChip, 1, 2, 27, &rei), 0u);
    EXPECT_EQ(rei, 0x80);
    ASSERT_EQ(VQ6192_SDH_GetLpPointAdjust(kChip, 1, 2, 27, &a, &b, &d), 0u);
    EXPECT_EQ(a, 0x3);
    EXPECT_EQ(b, 0xA);
    EXPECT_EQ(d, 0x5);
}

TEST_F(SdhAlarmTest, MapperFifoAlarms) {
    model.poke(0x3C000 + 8 * 335, 0xFFFE);
    model.poke(0x3C002 + 8 * 335, 0x0001);
    uint8_t e1[4] = {9, 9, 9, 9};
    ASSERT_EQ(VQ6192_SDH_GetSDHET1FifoAlm(kChip, 335, e1), 0u);
    EXPECT_EQ(std::vector<uint8_t>(e1, e1 + 4), (std::vector<uint8_t>{1, 0, 0, 1}));
    model.poke(hr(11) + 0x24, 0xFFFD);
    uint8_t e3[2] = {9, 9};
    ASSERT_EQ(VQ6192_SDH_GetSDHET3FifoAlm(kChip, 11, e3), 0u);
    EXPECT_EQ(e3[0], 0);
    EXPECT_EQ(e3[1], 1);
}

// A setter writes one bit (or field) and its getter reads it back; the register starts with every
// other bit set.
TEST_F(SdhAlarmTest, MasksResetsAndChipWideControls) {
    struct Case {
        const char *name;
        std::function<uint32_t(uint32_t)> set;
        std::function<uint32_t(uint8_t *)> get;
        std::vector<uint32_t> regs;  // every register the setter changes
        uint32_t bit;
        uint32_t width;
        uint32_t value;
    };
    const Case cases[] = {
        {"rx hp rst",
         [](uint32_t x) { return VQ6192_SDH_SetRxHpRst(3, 2, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetRxHpRst(3, 2, o); },
         {hr(2) + 2, hr(6) + 2, hr(10) + 2},
         0,
         1,
         1},
        {"hp lom ais",
         [](uint32_t x) { return VQ6192_SDH_SetHpLomAisEn(3, 0, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetHpLomAisEn(3, 0, o); },
         {hr(0) + 0xE, hr(4) + 0xE, hr(8) + 0xE},
         2,
         1,
         1},
        {"hp lom int msk",
         [](uint32_t x) { return VQ6192_SDH_SetHpLomIntMsk(3, 9, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetHpLomIntMsk(3, 9, o); },
         {hr(9) + 0xC},
         2,
         1,
         1},
        {"hp lom msk",
         [](uint32_t x) { return VQ6192_SDH_SetHpLomMsk(3, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetHpLomMsk(3, o); },
         {0x2C008},
         5,
         1,
         1},
        {"lp alm msk",
         [](uint32_t x) { return VQ6192_SDH_SetLpAlmMsk(3, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetLpAlmMsk(3, o); },
         {0x2C008},
         6,
         1,
         1},
        {"tu ais int msk",
         [](uint32_t x) { return VQ6192_SDH_SetTuAisIntMsk(3, 1, 0, 3, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetTuAisIntMsk(3, 1, 0, 3, o); },
         {lr(1, 3) + 0xC},
         1,
         1,
         1},
        {"tu lop int msk",
         [](uint32_t x) { return VQ6192_SDH_SetTuLopIntMsk(3, 1, 0, 3, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetTuLopIntMsk(3, 1, 0, 3, o); },
         {lr(1, 3) + 0xC},
         0,
         1,
         1},
        {"rx lp rst",
         [](uint32_t x) { return VQ6192_SDH_SetRxLpRst(3, 3, 2, 0, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetRxLpRst(3, 3, 2, 0, o); },
         {lr(3, 64) + 2},
         0,
         1,
         1},
        {"should c2",
         [](uint32_t x) { return VQ6192_SDH_SetRxLpShouldC2(3, 0, 2, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetRxLpShouldC2(3, 0, 2, o); },
         {lr(0, 64) + 0xA},
         0,
         8,
         0x13},
        {"v5 label",
         [](uint32_t x) { return VQ6192_SDH_SetRxLpShouldV5SgnlLbl(3, 0, 1, 1, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetRxLpShouldV5SgnlLbl(3, 0, 1, 1, o); },
         {lr(0, 33) + 0xA},
         8,
         3,
         5},
        {"vc4 tu-ais ins",
         [](uint32_t x) { return VQ6192_SDH_SetVc4TuAisInsEn(3, 3, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetVc4TuAisInsEn(3, 3, o); },
         {0x2C002},
         11,
         1,
         1},
        {"sonet b3 check",
         [](uint32_t x) { return VQ6192_SDH_SetSONETB3ChkMode(3, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetSONETB3ChkMode(3, o); },
         {0x2C000},
         1,
         1,
         1},
        {"label check",
         [](uint32_t x) { return VQ6192_SDH_SetOdLpSsCfg(3, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetOdLpSsCfg(3, o); },
         {0x2C346},
         0,
         1,
         1},
        {"filter type 0",
         [](uint32_t x) { return VQ6192_SDH_SetFltAlarmNum(3, 0, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetFltAlarmNum(3, 0, o); },
         {0x2C340},
         12,
         4,
         9},
        {"filter type 3",
         [](uint32_t x) { return VQ6192_SDH_SetFltAlarmNum(3, 3, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetFltAlarmNum(3, 3, o); },
         {0x2C340},
         0,
         4,
         6},
        {"ptr yy ff",
         [](uint32_t x) { return VQ6192_SDH_SetTxHpPtrSSInsVal(3, 1, x); },
         [](uint8_t *o) { return VQ6192_SDH_GetTxHpPtrSSInsVal(3, 1, o); },
         {},
         0,
         0,
         2},
    };
    for (const Case &c : cases) {
        const uint16_t mask = static_cast<uint16_t>(((1u << c.width) - 1u) << c.bit);
        for (uint32_t reg : c.regs) {
            model.poke(reg, static_cast<uint16_t>(~mask));
        }
        ASSERT_EQ(c.set(c.value), 0u) << c.name;
        for (uint32_t reg : c.regs) {
            EXPECT_EQ(model.peek(reg), static_cast<uint16_t>(~mask | (c.value << c.bit))) << c.name;
        }
        uint8_t out = 0xEE;
        ASSERT_EQ(c.get(&out), 0u) << c.name;
        EXPECT_EQ(out, c.value) << c.name;
    }
    // The filter number is cut to 4 bits.
    ASSERT_EQ(VQ6192_SDH_SetFltAlarmNum(kChip, 1, 0x1F), 0u);
    EXPECT_EQ((model.peek(0x2C340) >> 8) & 0xF, 0xF);
    // Pointer controls of the VC-4 selected: YY bit 0, FF bit 1.
    ASSERT_EQ(VQ6192_SDH_SetTxHpPtrYFInsSel(kChip, 1, 0, 1), 0u);
    uint8_t yy = 9, ff = 9;
    ASSERT_EQ(VQ6192_SDH_GetTxHpPtrYFInsSel(kChip, 1, &yy, &ff), 0u);
    EXPECT_EQ(yy, 0);
    EXPECT_EQ(ff, 1);
    ASSERT_EQ(VQ6192_SDH_GetTxHpPtrYFInsSel(kChip, 0, &yy, &ff), 0u);
    EXPECT_EQ(ff, 0);
}

}  // namespace
