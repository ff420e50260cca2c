// CES clock recovery: the mode mapping both ways, the level-2 source codes, the level-1 selection and
// the cross-channel differential recovery.
#include "ces_fixture.h"

namespace {

using namespace cestest;

using ClockRecovery = CesTest;

// Software modes CR_DIFF 0, CR_STAMP 2, CR_NONE 4 are hardware 0, 1, 3; hardware 2 reads back as 5.
TEST_F(ClockRecovery, ModeMappingBothWays) {
    VQ6192_Set_Printf_Flag(kChip, VQ6192_MODULE_CES, 15);  // the mode's information line is level 1
    // Mode; register: hardware mode 0..1, channel 40 at 2..10, rate 1 at 11..12, PLC at 13, bits 14..15 kept.
    for (const auto &[mode, reg] : Rows<2>{{0, 0xE8A0}, {2, 0xE8A1}, {4, 0xE8A3}}) {
        model.poke(0x16386, 0xC000);
        const VQ6192_CES_CR_MODE_S m = {mode, 40, 1, 1};
        capture.clear();
        ASSERT_EQ(VQ6192_CES_SetCesCRMode(kChip, 3, &m), 0u);
        EXPECT_EQ(model.peek(0x16386), reg);
        EXPECT_EQ(
            capture.traceTexts(),
            std::vector<std::string>{"Info: VQ6192_CES_SetCesCRMode(3,3) Set CES Channel:[40] CR Mode:[" +
                                     std::to_string(mode) + "]\r\n"});
        VQ6192_CES_CR_MODE_S out = {};
        ASSERT_EQ(VQ6192_CES_GetCesCRMode(kChip, 3, &out), 0u);
        EXPECT_EQ((U32s{out.eTrMode, out.wCesChanNo, out.wClkRateMode, out.wTrPLCEn}),
                  (U32s{mode, 40, 1, 1}));
    }
    model.poke(0x16386, 0x0002);
    VQ6192_CES_CR_MODE_S out = {};
    ASSERT_EQ(VQ6192_CES_GetCesCRMode(kChip, 3, &out), 0u);
    EXPECT_EQ(out.eTrMode, 5u);

    const VQ6192_CES_CR_MODE_S add = {2, 99, 2, 0};
    model.poke(0x16386, 0xC000 | 40 << 2 | 1 << 13);
    ASSERT_EQ(VQ6192_CES_AddDomain_SetCesCRMode(kChip, 3, &add), 0u);
    EXPECT_EQ(model.peek(0x16386), 0xD0A1) << "the bound channel stays 40";

    for (const VQ6192_CES_CR_MODE_S &bad :
         {VQ6192_CES_CR_MODE_S{1, 0, 0, 0}, VQ6192_CES_CR_MODE_S{3, 0, 0, 0},
          VQ6192_CES_CR_MODE_S{5, 0, 0, 0}, VQ6192_CES_CR_MODE_S{0, 352, 0, 0},
          VQ6192_CES_CR_MODE_S{0, 0, 3, 0}, VQ6192_CES_CR_MODE_S{0, 0, 0, 2}}) {
        CES_REFUSED(VQ6192_CES_SetCesCRMode(kChip, 3, &bad));
    }
    CES_REFUSED(VQ6192_CES_SetCesCRMode(kChip, 16, &add));
}

// Level-2 source codes by rate type and source kind, and the refusals of the code table.
TEST_F(ClockRecovery, LevelTwoSourceCodes) {
    struct Case {
        uint32_t rate, kind, index;
        int code;  // -1: refused
    } const cases[] = {{0, 0, 15, 15}, {0, 1, 5, 21},  {0, 1, 6, -1},  {0, 2, 0, 26},  {0, 2, 1, -1},
                       {0, 3, 0, 31},  {0, 0, 16, -1}, {1, 0, 11, 11}, {1, 0, 12, -1}, {1, 1, 0, -1},
                       {1, 2, 0, 26},  {1, 3, 0, 31},  {3, 0, 3, 3},   {3, 0, 4, -1},  {3, 2, 0, 26},
                       {3, 3, 0, -1},  {2, 0, 9, 9},   {2, 1, 2, 18}};
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << "rate " << c.rate << " kind " << c.kind << " index " << c.index);
        model.poke(0x16364, 0xFF00);
        const VQ6192_CES_CR_LV2_CLK_S cfg = {c.kind, 1, c.rate, c.index};
        if (c.code < 0) {
            CES_REFUSED(VQ6192_CES_SetIngCRLv2Clk(kChip, 2, &cfg));
            continue;
        }
        ASSERT_EQ(VQ6192_CES_SetIngCRLv2Clk(kChip, 2, &cfg), 0u);
        EXPECT_EQ(model.peek(0x16364), 0xFF00 | 1 | c.code << 1 | c.rate << 6);
        VQ6192_CES_CR_LV2_CLK_S out = {};
        ASSERT_EQ(VQ6192_CES_GetIngCRLv2Clk(kChip, 2, &out), 0u);
        if (c.rate != 2) {
            EXPECT_EQ((U32s{out.ulSrcKind, out.ulTsInit, out.ulRateType, out.ulIndex}),
                      (U32s{c.kind, 1, c.rate, c.index}));
        } else {
            EXPECT_EQ(out.ulRateType, 3u) << "bit 7 set reads as VC-4";
        }
    }
    uint32_t kind = 9, index = 9, flag = 9;
    model.poke(0x16364, 31 << 1);
    ASSERT_EQ(VQ6192_CES_GetIngCRLv2VC4Clk(kChip, 2, &kind, &index, &flag), 0u);
    EXPECT_EQ(kind, 2u) << "code 31 is no VC-4 source";
    ASSERT_EQ(VQ6192_CES_GetIngCRLv2E3Clk(kChip, 2, &kind, &index, &flag), 0u);
    EXPECT_EQ(kind, 3u);
}

TEST_F(ClockRecovery, LevelOneSelectionAndDifferentialRecovery) {
    poke({{0x3E2C2, 0x8000}, {0x3E2CA + 32, 0x1234}});
    ASSERT_EQ(VQ6192_CES_SetIngCRLv1E1Clk(kChip, 2, 1, 2, 83, 1), 0u);
    // Index 83, kind 2 at 7..8, flag at 9; only kind 0 writes the index register.
    EXPECT_EQ(peek({0x3E2C2, 0x3E2C8 + 32, 0x3E2CA + 32}), (U32s{0x8004, 0x353, 0x1234}));
    uint32_t en = 9, kind = 9, index = 9, flag = 9;
    ASSERT_EQ(VQ6192_CES_GetIngCRLv1E1Clk(kChip, 2, &en, &kind, &index, &flag), 0u);
    EXPECT_EQ((U32s{en, kind, index, flag}), (U32s{1, 2, 83, 1}));
    ASSERT_EQ(VQ6192_CES_SetIngCRLv1E1Clk(kChip, 2, 0, 0, 5, 1), 0u);
    EXPECT_EQ(model.peek(0x3E2CA + 32), 5 + 128);
    ASSERT_EQ(VQ6192_CES_GetIngCRLv1E1Clk(kChip, 2, &en, &kind, &index, &flag), 0u);
    EXPECT_EQ((U32s{en, kind, index, flag}), (U32s{0, 0, 5, 1}));
    CES_REFUSED(VQ6192_CES_SetIngCRLv1E1Clk(kChip, 2, 0, 1, 5, 0));
    CES_REFUSED(VQ6192_CES_SetIngCRLv1E1Clk(kChip, 2, 1, 0, 84, 0));

    // Channel 100 recovered differentially through domain 4 from clock 9, then switched off.
    setEntry(kTxCw, 100, 0);
    model.poke(0x16388, 0xC003);
    ASSERT_EQ(VQ6192_CES_SetXcrPro(kChip, 9, 4, 100, 1), 0u);
    EXPECT_EQ(bits(kTxCw, 100, 47, 6), 4u << 2 | 1) << "Txltssel 49..52, Txdiffclken 47";
    EXPECT_EQ(model.peek(0x16368) >> 1 & 0x1F, 4);
    EXPECT_EQ(model.peek(0x3E2CA + 64), 137);
    VQ6192_CES_CR_MODE_S m = {};
    ASSERT_EQ(VQ6192_CES_GetCesCRMode(kChip, 4, &m), 0u);
    EXPECT_EQ(m.eTrMode, 0u) << "CR_DIFF";
    ASSERT_EQ(VQ6192_CES_SetXcrPro(kChip, 9, 4, 100, 0), 0u);
    EXPECT_EQ(bits(kTxCw, 100, 47, 1), 0u);
    EXPECT_EQ(peek({0x16388, 0x3E2CA + 64}), (U32s{0xC003, 0}));
    EXPECT_TRUE(traced([&] { EXPECT_EQ(VQ6192_CES_SetXcrPro(kChip, 9, 4, 100, 2), 0u); }).empty());

    model.poke(0x243E + 2 * 11, 0xFFDF);
    ASSERT_EQ(VQ6192_CES_SetIngCRLv1E3Clk(kChip, 11, 1), 0u);
    EXPECT_EQ(model.peek(0x243E + 22), 0xFFFF);
    ASSERT_EQ(VQ6192_CES_SetHtb2BdPllChannel(kChip, 7), 0u);
    EXPECT_EQ(model.peek(0x3E2CA + 16 * 7), 128 + 7);
}

// Interrupt modes, process selection, compensation thresholds (bits 0..14) and the timestamp count of
// a domain (0x170E0 + 2d bits 0..5, mode bit 0 of 0x16360 + 2d), each from a register whose other bits
// are set, and read back.
TEST_F(ClockRecovery, GlobalRegistersKeepTheirNeighbours) {
    poke({{0x14032, 0xFFFE},
          {0x14034, 0xFFFF},
          {0x14036, 0xFFFE},
          {0x1403A, 0xFFFE},
          {0x14048, 0x8000},
          {0x1404A, 0x8000},
          {0x170E0 + 2 * 7, 0xFFC0},
          {0x16360 + 2 * 7, 0xFFFE}});
    ASSERT_EQ(VQ6192_CES_SetCesCRIntMode(kChip, 1, 0, 1), 0u);
    ASSERT_EQ(VQ6192_CES_SelectCesCRProcess(kChip, 1), 0u);
    ASSERT_EQ(VQ6192_CES_SetCesCRMaxCompensationThld(kChip, 0x1234, 0x7FFE), 0u);
    ASSERT_EQ(VQ6192_CES_SetCesCRTimeStampInitMode(kChip, 7, 45, 1), 0u);
    EXPECT_EQ(peek({0x14032, 0x14034, 0x14036, 0x1403A, 0x14048, 0x1404A, 0x170E0 + 2 * 7, 0x16360 + 2 * 7}),
              (U32s{0xFFFF, 0xFFFE, 0xFFFF, 0xFFFF, 0x9234, 0xFFFE, 0xFFED, 0xFFFF}));
    uint16_t en = 9, active = 9, trig = 9, num = 9, sn = 9;
    uint32_t sel = 9, count = 9, mode = 9;
    ASSERT_EQ(VQ6192_CES_GetCesCRIntMode(kChip, &en, &active, &trig), 0u);
    ASSERT_EQ(VQ6192_CES_GetCesCRProcess(kChip, &sel), 0u);
    ASSERT_EQ(VQ6192_CES_GetCesCRMaxCompensationThld(kChip, &num, &sn), 0u);
    ASSERT_EQ(VQ6192_CES_GetCesCRTimeStampInitMode(kChip, 7, &count, &mode), 0u);
    EXPECT_EQ((U32s{en, active, trig, sel, num, sn, count, mode}), (U32s{1, 0, 1, 1, 0x1234, 0x7FFE, 45, 1}));
    CES_REFUSED(VQ6192_CES_SetCesCRMaxCompensationThld(kChip, 0, 32767));
    CES_REFUSED(VQ6192_CES_SetCesCRTimeStampInitMode(kChip, 7, 64, 0));
}

}  // namespace
