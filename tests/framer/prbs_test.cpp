// The PRBS engines: register effects of the generators and checkers, their refusals and read-back,
// error insertion, alarms and counters, and the CES PRBS marking.
#include "framer/framer_test.h"

namespace framertest {
namespace {

using PrbsTest = FramerTest;

TEST_F(PrbsTest, MapperGeneratorRegisters) {
    struct Case {
        uint32_t pathType;
        VQ6192_FRM_PRBS_INS_ATTR_S gen;
        uint32_t enable;
        uint16_t genReg, pathReg, chkReg;
    };
    const Case cases[] = {
        // E1/T1 path 22 of path type 0 is stored as 32 * 1 + 1.
        {0, {0, 1, 1, 5, 22, 1}, 1, 0x0075, 33, 0x0100},
        {1, {0, 0, 0, 6, 335, 0}, 1, 0x0019, 335, 0x0000},
        {2, {1, 3, 0, 2, 11, 1}, 1, 0x02C9, 11 << 9, 0x0200},
        {3, {0, 2, 1, 0, 4, 0}, 0, 0x00A0, 4 << 9, 0x0000},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << "path type " << c.pathType);
        model.reset();
        ASSERT_EQ(VQ6192_Framer_SetPRBSInsAttr(kChip, c.pathType, &c.gen, c.enable), 0u);
        EXPECT_EQ(ints(model.peek(0x20402), model.peek(0x20406), model.peek(0x20408), g_uiPrbsFlag[kChip]),
                  ints(c.genReg, c.pathReg, c.chkReg, c.enable));
        VQ6192_FRM_PRBS_INS_ATTR_S back{};
        uint8_t enable = 9;
        ASSERT_EQ(VQ6192_Framer_GetPRBSInsAttr(kChip, c.pathType, &back, &enable), 0u);
        EXPECT_EQ(ints(enable, back.ulMode, back.ulFlag, back.ulPattern, back.ucEnFlag, back.ulSel),
                  ints(c.enable, c.gen.ulMode, c.gen.ulFlag, c.gen.ulPattern, c.gen.ucEnFlag,
                       c.pathType >= 2 ? c.gen.ulSel : 0u));
        EXPECT_EQ(back.usPath, c.pathType == 0 ? 33 : c.gen.usPath) << "stored path, not converted back";
    }
    EXPECT_EQ(VQ6192_Framer_SetPRBSInsAttrNew(kChip, 1, &cases[1].gen, 1), 0u);
}

TEST_F(PrbsTest, MapperGeneratorRefusals) {
    const VQ6192_FRM_PRBS_INS_ATTR_S good{0, 1, 0, 0, 10, 0};
    model.setTrace(true);
    using A = VQ6192_FRM_PRBS_INS_ATTR_S;
    // Field checks come before anything changes; the path checks come after the PRBS flag, so a refused
    // path still updates it, writes nothing, and stopping with one still clears the run bit.
    const struct {
        uint32_t pathType;
        A attr;  // select, mode, flag, pattern, path, enable flag
        uint32_t enable, flag;
    } cases[] = {
        {4, good, 1, 0},
        {0, {2, 1, 0, 0, 10, 0}, 1, 0},
        {0, {0, 4, 0, 0, 10, 0}, 1, 0},
        {0, {0, 1, 2, 0, 10, 0}, 1, 0},
        {0, {0, 1, 0, 7, 10, 0}, 1, 0},
        {0, {0, 1, 0, 0, 10, 2}, 1, 0},
        {0, good, 2, 0},
        {0, {0, 1, 0, 0, 252, 0}, 1, 1},
        {1, {0, 1, 0, 0, 336, 0}, 1, 1},
        {1, {0, 2, 0, 0, 10, 0}, 1, 1},
        {2, {0, 1, 0, 0, 10, 0}, 1, 1},
        {3, {0, 2, 0, 0, 12, 0}, 1, 1},
    };
    for (const auto &c : cases) {
        model.clearTrace();
        EXPECT_EQ(VQ6192_Framer_SetPRBSInsAttr(kChip, c.pathType, &c.attr, c.enable), kParaErr);
        EXPECT_EQ(g_uiPrbsFlag[kChip], c.flag) << c.pathType << " " << c.attr.usPath;
        EXPECT_FALSE(wrote()) << c.pathType << " " << c.attr.usPath;
    }
    model.poke(0x20402, 0x0001);
    const A badPath{0, 1, 0, 0, 252, 0};
    EXPECT_EQ(VQ6192_Framer_SetPRBSInsAttr(kChip, 0, &badPath, 0), kParaErr);
    EXPECT_EQ(ints(model.peek(0x20402), g_uiPrbsFlag[kChip]), ints(0, 0));
}

TEST_F(PrbsTest, MapperChecker) {
    const VQ6192_FRM_PRBS_CHK_ATTR_S chk{3, 1, 6, 11, 335};
    VQ6192_FRM_PRBS_CHK_ATTR_S back{};
    uint8_t en = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_SetPRBSChkAttr(kChip, &chk, 1), model.peek(0x20408), model.peek(0x2040C),
                    VQ6192_Framer_GetPRBSChkAttr(kChip, &back, &en), back.ulMode, back.ulFlag, back.ulPattern,
                    back.usET3Path, en}),
              ints(0, 0x00F9, (11 << 9) | (32 * 15 + 20), 0, 3, 1, 6, 11, 1));
    // The run bit goes off first.
    const auto stop = traced([&] { ASSERT_EQ(VQ6192_Framer_SetPRBSChkAttrNew(kChip, &chk, 0), 0u); });
    ASSERT_GT(stop.size(), 1u);
    EXPECT_EQ(stop[1], (BusAccess{BusOp::Write, 0x20408, 0x00F8, 0, 16}));
    model.setTrace(true);
    model.clearTrace();
    for (VQ6192_FRM_PRBS_CHK_ATTR_S bad :
         {VQ6192_FRM_PRBS_CHK_ATTR_S{4, 0, 0, 0, 0}, VQ6192_FRM_PRBS_CHK_ATTR_S{0, 2, 0, 0, 0},
          VQ6192_FRM_PRBS_CHK_ATTR_S{0, 0, 7, 0, 0}, VQ6192_FRM_PRBS_CHK_ATTR_S{0, 0, 0, 12, 0},
          VQ6192_FRM_PRBS_CHK_ATTR_S{0, 0, 0, 0, 336}}) {
        EXPECT_EQ(VQ6192_Framer_SetPRBSChkAttr(kChip, &bad, 1), kParaErr);
    }
    EXPECT_EQ(VQ6192_Framer_SetPRBSChkAttr(kChip, &chk, 2), kParaErr);
    EXPECT_FALSE(wrote());
}

TEST_F(PrbsTest, ErrorInsertionAlarmsAndCounters) {
    // Continuous errors: rate then enable.
    uint32_t rate = 0, tsRate = 0;
    uint8_t en = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_SetPrbsErrInsert(kChip, 1, 10, 1), model.peek(0x20400),
                    VQ6192_Framer_GetPrbsErrInsert(kChip, &rate, &en), rate, en}),
              ints(0, 0x002A, 0, 10, 1));
    // One single error: enable and rate cleared, the enable written, the trigger pulsed 0 then 1.
    std::vector<uint16_t> writes;
    for (const auto &a : traced([&] { ASSERT_EQ(VQ6192_Framer_SetPrbsErrInsert(kChip, 0, 3, 0), 0u); })) {
        if (a.op == BusOp::Write) {
            writes.push_back(static_cast<uint16_t>(a.value));
        }
    }
    EXPECT_EQ(writes, (std::vector<uint16_t>{0x000A, 0x0000, 0x0000, 0x0000, 0x0010}));
    EXPECT_EQ(
        (Ints{VQ6192_Framer_SetPrbsErrInsert(kChip, 1, 11, 1), VQ6192_Framer_SetPrbsErrInsert(kChip, 2, 1, 1),
              VQ6192_Framer_SetTsPRBSIns(kChip, 1, 9, 1), model.peek(0x257C),
              VQ6192_Framer_GetTsPRBSIns(kChip, &tsRate, &en), tsRate,
              VQ6192_Framer_SetTsPRBSIns(kChip, 1, 10, 1)}),
        ints(kParaErr, kParaErr, 0, (9 << 3) | (1 << 8), 0, 9, kParaErr));

    model.poke(0x20420, 0x9);  // bits 3 and 0
    model.poke(0x2584, 0x4);   // bit 2
    model.poke(0x20440, 0xBEEF);
    model.poke(0x2586, 0x1234);
    uint16_t alarms[4] = {}, tsAlarms[3] = {}, count = 0, tsCount = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_GetPRBSAlm(kChip, alarms), alarms[0], alarms[1], alarms[2], alarms[3],
                    VQ6192_Framer_GetTsPRBSAlm(kChip, tsAlarms), tsAlarms[0], tsAlarms[1], tsAlarms[2],
                    VQ6192_Framer_GetPRBSErrCnt(kChip, &count), count,
                    VQ6192_Framer_GetTsPRBSErrCnt(kChip, &tsCount), tsCount}),
              ints(0, 1, 0, 0, 1, 0, 1, 0, 0, 0, 0xBEEF, 0, 0x1234));
}

TEST_F(PrbsTest, TimeslotGenerator) {
    struct Case {
        uint32_t pathType;
        VQ6192_FRM_PRBS_INS_ATTR_S gen;
        uint32_t enable;
        uint16_t genReg, pathReg;
        uint32_t flag;
    };
    const Case cases[] = {
        {0, {0, 0, 1, 6, 335, 1}, 1, 0x0607, 335, 1},  // modes 0 and 2 set bit 10; pattern 6: bits 1 and 9
        {1, {0, 1, 0, 1, 20, 1}, 1, 0x0003, 20, 1},
        {3, {0, 3, 1, 0, 11, 1}, 1, 0x0005, 347, 1},  // E3/T3 and VC-4 paths + 336
        {0, {0, 0, 0, 0, 5, 0}, 1, 0x0400, 5, 0},     // enable without the enable flag: not started
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << "path type " << c.pathType << " mode " << c.gen.ulMode);
        model.reset();
        ASSERT_EQ(VQ6192_Framer_SetTsPRBSInsAttr(kChip, c.pathType, &c.gen, c.enable), 0u);
        EXPECT_EQ(ints(model.peek(0x257C), model.peek(0x257E), g_uiPrbsFlag[kChip]),
                  ints(c.genReg, c.pathReg, c.flag));
        VQ6192_FRM_PRBS_INS_ATTR_S back{};
        uint8_t en = 9;
        ASSERT_EQ(VQ6192_Framer_GetTsPRBSInsAttr(kChip, c.pathType, &back, &en), 0u);
        EXPECT_EQ(ints(back.ulMode, back.ulPattern, back.ulFlag, back.usPath, en),
                  ints(c.gen.ulMode, c.gen.ulPattern, c.gen.ulFlag, c.gen.usPath, c.flag));
    }
    // Bits 3..8 (rate, single, enable) are not the timeslot generator's: they are kept.
    model.poke(0x257C, 0x01F8);
    ASSERT_EQ(VQ6192_Framer_SetTsPRBSInsAttr(kChip, 1, &cases[1].gen, 1), 0u);
    EXPECT_EQ(model.peek(0x257C), 0x01FBu);
    // E3/T3 and VC-4 paths cannot insert towards the line.
    const VQ6192_FRM_PRBS_INS_ATTR_S egress{0, 2, 0, 0, 1, 1};
    model.setTrace(true);
    model.clearTrace();
    EXPECT_EQ(VQ6192_Framer_SetTsPRBSInsAttr(kChip, 2, &egress, 1), 0x030E0005u);
    EXPECT_FALSE(wrote());
    EXPECT_EQ(
        capture.traceTexts().back(),
        "Err. VQ6192_Framer_SetTsPRBSInsAttr.Can't Insert Egress PRBS(3,2,2)      ErrCode[0x30e0005]\r\n");
    for (VQ6192_FRM_PRBS_INS_ATTR_S bad :
         {VQ6192_FRM_PRBS_INS_ATTR_S{1, 1, 0, 0, 0, 0}, VQ6192_FRM_PRBS_INS_ATTR_S{0, 1, 0, 2, 0, 0},
          VQ6192_FRM_PRBS_INS_ATTR_S{0, 4, 0, 0, 0, 0}, VQ6192_FRM_PRBS_INS_ATTR_S{0, 1, 2, 0, 0, 0},
          VQ6192_FRM_PRBS_INS_ATTR_S{0, 1, 0, 0, 0, 2}}) {
        EXPECT_EQ(VQ6192_Framer_SetTsPRBSInsAttr(kChip, 0, &bad, 1), kParaErr);
    }
    EXPECT_FALSE(wrote());
    // A stored path of the other kind reads back as error 4.
    VQ6192_FRM_PRBS_INS_ATTR_S back{};
    uint8_t en = 0;
    model.poke(0x257E, 340);
    EXPECT_EQ(VQ6192_Framer_GetTsPRBSInsAttr(kChip, 0, &back, &en), 0x030E0004u);
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_SetTsPRBSInsAttr(3,0).psAttr->usPath >= DRV_VQ6192_MAX_ET1LINK     "
              "ErrCode[0x30e0004]\r\n");
}

TEST_F(PrbsTest, TimeslotChecker) {
    // E3/T3 paths are stored as 336 + path; an E1 path as itself.
    const VQ6192_FRM_PRBS_CHK_ATTR_S chk{3, 1, 6, 7, 999}, e1{0, 0, 1, 99, 300};
    VQ6192_FRM_PRBS_CHK_ATTR_S back{}, back1{};
    uint8_t en = 0, en1 = 9;
    EXPECT_EQ((Ints{VQ6192_Framer_SetTsPRBSChkAttr(kChip, 2, &chk, 1), model.peek(0x2580), model.peek(0x2582),
                    VQ6192_Framer_GetTsPRBSChkAttr(kChip, 2, &back, &en), back.ulMode, back.ulFlag,
                    back.ulPattern, back.usET3Path, back.usPath, en}),
              ints(0, 0x001F, 343, 0, 3, 1, 6, 7, 0xFFFF, 1));
    EXPECT_EQ((Ints{VQ6192_Framer_SetTsPRBSChkAttr(kChip, 0, &e1, 0), model.peek(0x2580), model.peek(0x2582),
                    VQ6192_Framer_GetTsPRBSChkAttr(kChip, 0, &back1, &en1), back1.ulMode, back1.ulPattern,
                    back1.usET3Path, back1.usPath, en1}),
              ints(0, 0x0002, 300, 0, 0, 1, 0xFFFF, 300, 0));
    const VQ6192_FRM_PRBS_CHK_ATTR_S badE1{0, 0, 0, 0, 336}, badE3{2, 0, 0, 12, 0}, badPattern{0, 0, 3, 0, 0};
    EXPECT_EQ((Ints{VQ6192_Framer_SetTsPRBSChkAttr(kChip, 1, &badE1, 1),
                    VQ6192_Framer_SetTsPRBSChkAttr(kChip, 3, &badE3, 1),
                    VQ6192_Framer_SetTsPRBSChkAttr(kChip, 0, &badPattern, 1),
                    VQ6192_Framer_SetTsPRBSChkAttr(kChip, 4, &e1, 1)}),
              ints(kParaErr, kParaErr, kParaErr, kParaErr));
}

TEST_F(PrbsTest, CesTimeslotMarking) {
    // Channel 9 on timeslots 0..3 of E1 20, both directions; timeslot 5 belongs to channel 10 and
    // timeslot 6 is channel 9 already under test.
    ASSERT_EQ(VQ6192_Framer_SelectSrcE1(kChip, 2, 20, 9, 3, 0xF, 3), 0u);
    ASSERT_EQ(VQ6192_Framer_SelectSrcE1(kChip, 2, 20, 10, 3, 0x20, 3), 0u);
    g_uiPrbsFlag[kChip] = 1;
    ASSERT_EQ(VQ6192_Framer_SelectSrcE1(kChip, 2, 20, 9, 3, 0x40, 3), 0u);
    g_uiPrbsFlag[kChip] = 0;

    ASSERT_EQ(VQ6192_Framer_SetTsCesPrbsCfg(kChip, 0, 2, 20, 0x5, 9), 0u);
    auto egress = [&](uint32_t ts) { return model.tables().entry(0x10ab, 1, (20 << 5) | ts)[0]; };
    EXPECT_EQ(ints(egress(0), egress(1), egress(2)), ints(0x9A09, 0x9809, 0x9A09));
    EXPECT_EQ(egress(5), 0x980A) << "another channel";
    EXPECT_EQ(egress(6), 0x9A09) << "already marked: left alone";

    uint32_t bitmap = 0;
    uint16_t chnl = 0;
    ASSERT_EQ(VQ6192_Framer_GetTsCesPrbsCfg(kChip, 0, 1, 20, &bitmap, &chnl), 0u);
    EXPECT_EQ(bitmap, 0x45u);
    EXPECT_EQ(chnl, 9);
    // Two channels under test on one E1.
    ASSERT_EQ(VQ6192_Framer_SetTsCesPrbsCfg(kChip, 0, 2, 20, 0x20, 10), 0u);
    EXPECT_EQ(VQ6192_Framer_GetTsCesPrbsCfg(kChip, 0, 2, 20, &bitmap, &chnl), 0x030E0006u);
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_GetTsCesPrbsCfg(3,20,5).usChnlID(10) and *pusChnlDstID not equal\n");
    // Directions that disagree.
    vq6192::sim::TableEngine::Entry e{};
    e[0] = 0x9A0B;
    model.tables().setEntry(0x10ab, 0, (21 << 5) | 3, e);
    EXPECT_EQ(VQ6192_Framer_GetTsCesPrbsCfg(kChip, 0, 2, 21, &bitmap, &chnl), 0x030E0007u);
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_GetTsCesPrbsCfg(3,21,3).aulIngData(0x9a0b)!=aulEgData(0) not equal\n");
    EXPECT_EQ(VQ6192_Framer_SetTsCesPrbsCfg(kChip, 0, 2, 20, 1, 348), kParaErr);
    EXPECT_EQ(VQ6192_Framer_SetTsCesPrbsCfg(kChip, 2, 2, 12, 1, 9), kParaErr);
    EXPECT_EQ(VQ6192_Framer_SetTsCesPrbsCfg(kChip, 0, 3, 20, 1, 9), kParaErr);
    // A read that times out ends the scan.
    model.tables().holdBusy(0x10ab, TableEngine::kForever);
    EXPECT_EQ(VQ6192_Framer_SetTsCesPrbsCfg(kChip, 0, 0, 20, 1, 9), 0x030E0004u);
}

}  // namespace
}  // namespace framertest
