// Path alarms, counters and pointer adjustments decoded from injected chip states, and the masks and
// chip-wide controls written into registers whose other bits are set.
#include "sdh/sdh_test.h"

namespace sdhtest {
namespace {

using SdhAlarmTest = SdhTest;

TEST_F(SdhAlarmTest, LowOrderAlarmRecord) {
    // Record order and sources: W = LR+0x20, W2 = LR+0x22, C = LR+0x16.
    const struct {
        const char *name;
        uint32_t word, bit;
    } flags[13] = {
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

TEST_F(SdhAlarmTest, HighOrderAlarmsCountersAndFifoAlarms) {
    model.poke(hr(3) + 0x1E, 0xFFF7);  // OOM history clear, LOM history set
    model.poke(hr(3) + 0x16, 0x0004);
    model.poke(hr(7) + 0x1E, 0xFFFF);
    model.poke(hr(1) + 0x2A, 0x1234);
    model.poke(hr(1) + 4, 0xFFFD);
    uint8_t a = 9, b = 9, d = 9, o = 9, e = 9, rei = 9;
    EXPECT_EQ((Ints{VQ6192_SDH_GetHpAlms(kChip, 3, &a, &b, &d), a, b, d,
                    VQ6192_SDH_GetRxHpB3Cnt(kChip, 1, &o, &e), o, e}),
              ints(0, 0, 1, 1, 0, 0, 0x34));
    const uint32_t c = 32 * 2 + 27;
    model.poke(lr(1, c) + 0x28, 0xBEEF);
    model.poke(lr(1, c) + 0x2A, 0x0180);
    model.poke(lr(1, c) + 0x2C, 0xF5A3);
    uint16_t bip = 0, p = 0, q = 0, r = 0;
    EXPECT_EQ((Ints{VQ6192_SDH_GetRxLpB3B2Cnt(kChip, 1, 2, 27, &bip), bip,
                    VQ6192_SDH_GetRxLpReiCnt(kChip, 1, 2, 27, &rei), rei,
                    VQ6192_SDH_GetLpPointAdjust(kChip, 1, 2, 27, &p, &q, &r), p, q, r}),
              ints(0, 0xBEEF, 0, 0x80, 0, 0x3, 0xA, 0x5));
    model.poke(0x3C000 + 8 * 335, 0xFFFE);
    model.poke(0x3C002 + 8 * 335, 0x0001);
    uint8_t e1[4] = {9, 9, 9, 9};
    ASSERT_EQ(VQ6192_SDH_GetSDHET1FifoAlm(kChip, 335, e1), 0u);
    EXPECT_EQ(std::vector<uint8_t>(e1, e1 + 4), (std::vector<uint8_t>{1, 0, 0, 1}));
    model.poke(hr(11) + 0x24, 0xFFFD);
    ASSERT_EQ(VQ6192_SDH_GetSDHET3FifoAlm(kChip, 11, e1), 0u);
    EXPECT_EQ(std::vector<uint8_t>(e1, e1 + 2), (std::vector<uint8_t>{0, 1}));
}

TEST_F(SdhAlarmTest, MasksResetsAndChipWideControls) {
    using F = Field<uint8_t>;
    expectFields<uint8_t>({
        F{"rx hp rst", [](uint32_t c, uint32_t x) { return VQ6192_SDH_SetRxHpRst(c, 2, x); },
          [](uint32_t c, uint8_t *o) { return VQ6192_SDH_GetRxHpRst(c, 2, o); }, hr(2) + 2, 0x100, 3, 0, 1,
          1},
        F{"hp lom ais", [](uint32_t c, uint32_t x) { return VQ6192_SDH_SetHpLomAisEn(c, 0, x); },
          [](uint32_t c, uint8_t *o) { return VQ6192_SDH_GetHpLomAisEn(c, 0, o); }, hr(0) + 0xE, 0x100, 3, 2,
          1, 1},
        F{"hp lom int msk", [](uint32_t c, uint32_t x) { return VQ6192_SDH_SetHpLomIntMsk(c, 9, x); },
          [](uint32_t c, uint8_t *o) { return VQ6192_SDH_GetHpLomIntMsk(c, 9, o); }, hr(9) + 0xC, 0, 1, 2, 1,
          1},
        F{"hp lom msk", VQ6192_SDH_SetHpLomMsk, VQ6192_SDH_GetHpLomMsk, 0x2C008, 0, 1, 5, 1, 1},
        F{"lp alm msk", VQ6192_SDH_SetLpAlmMsk, VQ6192_SDH_GetLpAlmMsk, 0x2C008, 0, 1, 6, 1, 1},
        F{"tu ais int msk", [](uint32_t c, uint32_t x) { return VQ6192_SDH_SetTuAisIntMsk(c, 1, 0, 3, x); },
          [](uint32_t c, uint8_t *o) { return VQ6192_SDH_GetTuAisIntMsk(c, 1, 0, 3, o); }, lr(1, 3) + 0xC, 0,
          1, 1, 1, 1},
        F{"tu lop int msk", [](uint32_t c, uint32_t x) { return VQ6192_SDH_SetTuLopIntMsk(c, 1, 0, 3, x); },
          [](uint32_t c, uint8_t *o) { return VQ6192_SDH_GetTuLopIntMsk(c, 1, 0, 3, o); }, lr(1, 3) + 0xC, 0,
          1, 0, 1, 1},
        F{"rx lp rst", [](uint32_t c, uint32_t x) { return VQ6192_SDH_SetRxLpRst(c, 3, 2, 0, x); },
          [](uint32_t c, uint8_t *o) { return VQ6192_SDH_GetRxLpRst(c, 3, 2, 0, o); }, lr(3, 64) + 2, 0, 1, 0,
          1, 1},
        F{"should c2", [](uint32_t c, uint32_t x) { return VQ6192_SDH_SetRxLpShouldC2(c, 0, 2, x); },
          [](uint32_t c, uint8_t *o) { return VQ6192_SDH_GetRxLpShouldC2(c, 0, 2, o); }, lr(0, 64) + 0xA, 0,
          1, 0, 8, 0x13},
        F{"v5 label", [](uint32_t c, uint32_t x) { return VQ6192_SDH_SetRxLpShouldV5SgnlLbl(c, 0, 1, 1, x); },
          [](uint32_t c, uint8_t *o) { return VQ6192_SDH_GetRxLpShouldV5SgnlLbl(c, 0, 1, 1, o); },
          lr(0, 33) + 0xA, 0, 1, 8, 3, 5},
        F{"vc4 tu-ais ins", [](uint32_t c, uint32_t x) { return VQ6192_SDH_SetVc4TuAisInsEn(c, 3, x); },
          [](uint32_t c, uint8_t *o) { return VQ6192_SDH_GetVc4TuAisInsEn(c, 3, o); }, 0x2C002, 0, 1, 11, 1,
          1},
        F{"sonet b3 check", VQ6192_SDH_SetSONETB3ChkMode, VQ6192_SDH_GetSONETB3ChkMode, 0x2C000, 0, 1, 1, 1,
          1},
        F{"label check", VQ6192_SDH_SetOdLpSsCfg, VQ6192_SDH_GetOdLpSsCfg, 0x2C346, 0, 1, 0, 1, 1},
        F{"filter type 0", [](uint32_t c, uint32_t x) { return VQ6192_SDH_SetFltAlarmNum(c, 0, x); },
          [](uint32_t c, uint8_t *o) { return VQ6192_SDH_GetFltAlarmNum(c, 0, o); }, 0x2C340, 0, 1, 12, 4, 9},
        F{"filter type 3", [](uint32_t c, uint32_t x) { return VQ6192_SDH_SetFltAlarmNum(c, 3, x); },
          [](uint32_t c, uint8_t *o) { return VQ6192_SDH_GetFltAlarmNum(c, 3, o); }, 0x2C340, 0, 1, 0, 4, 6},
        F{"ptr yy ff", [](uint32_t c, uint32_t x) { return VQ6192_SDH_SetTxHpPtrSSInsVal(c, 1, x); },
          [](uint32_t c, uint8_t *o) { return VQ6192_SDH_GetTxHpPtrSSInsVal(c, 1, o); }, 0, 0, 0, 0, 0, 2},
    });
    // The filter number is cut to 4 bits. Pointer controls of the VC-4 selected: YY bit 0, FF bit 1.
    uint8_t yy = 9, ff = 9, ff0 = 9;
    EXPECT_EQ((Ints{VQ6192_SDH_SetFltAlarmNum(kChip, 1, 0x1F), (model.peek(0x2C340) >> 8) & 0xF,
                    VQ6192_SDH_SetTxHpPtrYFInsSel(kChip, 1, 0, 1),
                    VQ6192_SDH_GetTxHpPtrYFInsSel(kChip, 1, &yy, &ff), yy, ff,
                    VQ6192_SDH_GetTxHpPtrYFInsSel(kChip, 0, &yy, &ff0), ff0}),
              ints(0, 0xF, 0, 0, 0, 1, 0, 0));
}

}  // namespace
}  // namespace sdhtest
