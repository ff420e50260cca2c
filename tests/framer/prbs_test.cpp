// The PRBS engines (generators and checkers, their refusals and read-back, error insertion, alarms and
// counters, the CES PRBS marking); overhead insertion, E1 alarm and counter readers (the E3/T3 records
// are read by the diagnostic tests), clock selectors, clock gates, SOH bypass and the AU pointer bytes.
#include <cstring>
#include <tuple>

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
        model.reset();
        VQ6192_FRM_PRBS_INS_ATTR_S back{};
        uint8_t enable = 9;
        EXPECT_EQ((Ints{VQ6192_Framer_SetPRBSInsAttr(kChip, c.pathType, &c.gen, c.enable),
                        model.peek(0x20402), model.peek(0x20406), model.peek(0x20408), g_uiPrbsFlag[kChip],
                        VQ6192_Framer_GetPRBSInsAttr(kChip, c.pathType, &back, &enable), enable, back.ulMode,
                        back.ulFlag, back.ulPattern, back.ucEnFlag, back.ulSel, back.usPath}),
                  ints(0, c.genReg, c.pathReg, c.chkReg, c.enable, 0, c.enable, c.gen.ulMode, c.gen.ulFlag,
                       c.gen.ulPattern, c.gen.ucEnFlag, c.pathType >= 2 ? c.gen.ulSel : 0u,
                       c.pathType == 0 ? 33 : c.gen.usPath))
            << "path type " << c.pathType << "; the path is read back as stored, not converted back";
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
    } cases[] = {{4, good, 1, 0},
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
                 {3, {0, 2, 0, 0, 12, 0}, 1, 1}};
    for (const auto &c : cases) {
        model.clearTrace();
        EXPECT_EQ((Ints{VQ6192_Framer_SetPRBSInsAttr(kChip, c.pathType, &c.attr, c.enable),
                        g_uiPrbsFlag[kChip], wrote()}),
                  ints(kParaErr, c.flag, false))
            << c.pathType << " " << c.attr.usPath;
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
    // Mode 4, flag 2, pattern 7, E3/T3 path 12, E1 path 336, enable 2.
    const VQ6192_FRM_PRBS_CHK_ATTR_S bad[] = {
        {4, 0, 0, 0, 0}, {0, 2, 0, 0, 0}, {0, 0, 7, 0, 0}, {0, 0, 0, 12, 0}, {0, 0, 0, 0, 336}};
    beginRefusals();
    expectRefusals(VQ6192_Framer_SetPRBSChkAttr(3, &bad[0], 1), VQ6192_Framer_SetPRBSChkAttr(3, &bad[1], 1),
                   VQ6192_Framer_SetPRBSChkAttr(3, &bad[2], 1), VQ6192_Framer_SetPRBSChkAttr(3, &bad[3], 1),
                   VQ6192_Framer_SetPRBSChkAttr(3, &bad[4], 1), VQ6192_Framer_SetPRBSChkAttr(3, &chk, 2));
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
        model.reset();
        VQ6192_FRM_PRBS_INS_ATTR_S back{};
        uint8_t en = 9;
        EXPECT_EQ((Ints{VQ6192_Framer_SetTsPRBSInsAttr(kChip, c.pathType, &c.gen, c.enable),
                        model.peek(0x257C), model.peek(0x257E), g_uiPrbsFlag[kChip],
                        VQ6192_Framer_GetTsPRBSInsAttr(kChip, c.pathType, &back, &en), back.ulMode,
                        back.ulPattern, back.ulFlag, back.usPath, en}),
                  ints(0, c.genReg, c.pathReg, c.flag, 0, c.gen.ulMode, c.gen.ulPattern, c.gen.ulFlag,
                       c.gen.usPath, c.flag))
            << "path type " << c.pathType << " mode " << c.gen.ulMode;
    }
    // Bits 3..8 (rate, single, enable) are not the timeslot generator's: they are kept.
    model.poke(0x257C, 0x01F8);
    EXPECT_EQ((Ints{VQ6192_Framer_SetTsPRBSInsAttr(kChip, 1, &cases[1].gen, 1), model.peek(0x257C)}),
              ints(0, 0x01FB));
    // E3/T3 and VC-4 paths cannot insert towards the line.
    const VQ6192_FRM_PRBS_INS_ATTR_S egress{0, 2, 0, 0, 1, 1};
    model.setTrace(true);
    model.clearTrace();
    EXPECT_EQ(VQ6192_Framer_SetTsPRBSInsAttr(kChip, 2, &egress, 1), 0x030E0005u);
    EXPECT_FALSE(wrote());
    EXPECT_EQ(
        capture.traceTexts().back(),
        "Err. VQ6192_Framer_SetTsPRBSInsAttr.Can't Insert Egress PRBS(3,2,2)      ErrCode[0x30e0005]\r\n");
    // Select 1, pattern 2, mode 4, flag 2, enable flag 2.
    const VQ6192_FRM_PRBS_INS_ATTR_S bad[] = {
        {1, 1, 0, 0, 0, 0}, {0, 1, 0, 2, 0, 0}, {0, 4, 0, 0, 0, 0}, {0, 1, 2, 0, 0, 0}, {0, 1, 0, 0, 0, 2}};
    beginRefusals();
    expectRefusals(
        VQ6192_Framer_SetTsPRBSInsAttr(3, 0, &bad[0], 1), VQ6192_Framer_SetTsPRBSInsAttr(3, 0, &bad[1], 1),
        VQ6192_Framer_SetTsPRBSInsAttr(3, 0, &bad[2], 1), VQ6192_Framer_SetTsPRBSInsAttr(3, 0, &bad[3], 1),
        VQ6192_Framer_SetTsPRBSInsAttr(3, 0, &bad[4], 1));
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
    beginRefusals();
    expectRefusals(
        VQ6192_Framer_SetTsPRBSChkAttr(3, 1, &badE1, 1), VQ6192_Framer_SetTsPRBSChkAttr(3, 3, &badE3, 1),
        VQ6192_Framer_SetTsPRBSChkAttr(3, 0, &badPattern, 1), VQ6192_Framer_SetTsPRBSChkAttr(3, 4, &e1, 1));
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
    EXPECT_EQ(ints(entry(kEgressSelect, 20, 0), entry(kEgressSelect, 20, 1), entry(kEgressSelect, 20, 2),
                   entry(kEgressSelect, 20, 5), entry(kEgressSelect, 20, 6)),
              ints(0x9A09, 0x9809, 0x9A09, 0x980A, 0x9A09));

    uint32_t bitmap = 0;
    uint16_t chnl = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_GetTsCesPrbsCfg(kChip, 0, 1, 20, &bitmap, &chnl), bitmap, chnl}),
              ints(0, 0x45, 9));
    // Two channels under test on one E1.
    ASSERT_EQ(VQ6192_Framer_SetTsCesPrbsCfg(kChip, 0, 2, 20, 0x20, 10), 0u);
    EXPECT_EQ(VQ6192_Framer_GetTsCesPrbsCfg(kChip, 0, 2, 20, &bitmap, &chnl), 0x030E0006u);
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_GetTsCesPrbsCfg(3,20,5).usChnlID(10) and *pusChnlDstID not equal\n");
    // Directions that disagree.
    setEntry(kIngressSelect, 21, 3, 0x9A0B);
    EXPECT_EQ(VQ6192_Framer_GetTsCesPrbsCfg(kChip, 0, 2, 21, &bitmap, &chnl), 0x030E0007u);
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_GetTsCesPrbsCfg(3,21,3).aulIngData(0x9a0b)!=aulEgData(0) not equal\n");
    EXPECT_EQ((Ints{VQ6192_Framer_SetTsCesPrbsCfg(kChip, 0, 2, 20, 1, 348),
                    VQ6192_Framer_SetTsCesPrbsCfg(kChip, 2, 2, 12, 1, 9),
                    VQ6192_Framer_SetTsCesPrbsCfg(kChip, 0, 3, 20, 1, 9)}),
              ints(kParaErr, kParaErr, kParaErr));
    // A read that times out ends the scan.
    model.tables().holdBusy(0x10ab, TableEngine::kForever);
    EXPECT_EQ(VQ6192_Framer_SetTsCesPrbsCfg(kChip, 0, 0, 20, 1, 9), 0x030E0004u);
}

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
        {1, 1, 1, 0, 0xFFFF, 0xFFFF, 0xFFBF, 0xFFFE},
        {1, 2, 0, 1, 0xFFFF, 0xFFFF, 0xFF7F, 0xFFFD},
        // Type 2: value into bit 0 in mode 1, never touches +4; mode 2 writes nothing.
        {2, 1, 1, 1, 0x0000, 0x0000, 0x0007, 0x0000},
        {2, 0, 1, 0, 0x00FF, 0x00FF, 0x00F9, 0x00FF},
        {2, 2, 1, 1, 0x0000, 0x0000, 0x0000, 0x0000},
    };
    const uint32_t e1 = 300;
    for (const Case &c : cases) {
        model.poke(Framers::egressAddr(e1, Framers::kEgOverhead), c.w2Before);
        model.poke(Framers::egressAddr(e1, Framers::kEgOverhead2), c.w4Before);
        EXPECT_EQ((Ints{VQ6192_Framer_SetET1OhInsMode(kChip, e1, c.ohType, c.insMode, c.value, c.enable),
                        model.peek(Framers::egressAddr(e1, Framers::kEgOverhead)),
                        model.peek(Framers::egressAddr(e1, Framers::kEgOverhead2))}),
                  ints(0, c.w2After, c.w4After))
            << "type " << c.ohType << " mode " << c.insMode << " value " << c.value << " enable " << c.enable;
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
    poke({{Framers::ingressAddr(e1, Framers::kIngE1Crc), 11},
          {Framers::ingressAddr(e1, Framers::kIngE1Febe), 22},
          {Framers::ingressAddr(e1, Framers::kIngT1Crc), 33},
          {Framers::ingressAddr(e1, Framers::kIngT1Ferr), 44}});
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

TEST_F(FramerStatus, ClockSelectorsGatesBypassAndAuPointer) {
    // Selector, index, value, register and field: the E1 clock source 0..40 of E1 0..335, the E3/T3
    // transmit clock 0..25 of 0..11, the HTB transmit clock of 0..5 and receive clock of 0..1.
    const struct {
        uint32_t (*set)(uint32_t, uint32_t, uint32_t);
        uint32_t index, value, addr, mask;
    } selectors[] = {
        {VQ6192_Framer_SetFrmClkSource, 335, 40, 0x2166 + 2 * 335, 0x3F},
        {VQ6192_Framer_SetFrmET3TxClkSource, 11, 25, 0x243E + 22, 0x1F},
        {VQ6192_HTBE_TCLK_CLKSEL, 5, 63, 0x2432 + 10, 0x3F},
        {VQ6192_HTBE_RT_CLKSEL, 1, 0x2A, 0x2428, 0x3F},
    };
    for (const auto &c : selectors) {
        model.poke(c.addr, 0xFFC0);
        EXPECT_EQ((Ints{c.set(kChip, c.index, c.value), model.peek(c.addr)}),
                  ints(0, (0xFFC0 & ~c.mask) | c.value))
            << c.index;
    }
    beginRefusals();
    expectRefusals(VQ6192_Framer_SetFrmClkSource(3, 336, 1), VQ6192_Framer_SetFrmClkSource(3, 0, 41),
                   VQ6192_Framer_SetFrmET3TxClkSource(3, 0, 26), VQ6192_Framer_SetFrmET3TxClkSource(3, 12, 0),
                   VQ6192_HTBE_TCLK_CLKSEL(3, 6, 0), VQ6192_HTBE_RT_CLKSEL(3, 2, 0));
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
    beginRefusals();
    expectRefusals(
        VQ6192_Framer_SetET1OhInsMode(3, 300, 3, 0, 0, 0), VQ6192_Framer_SetET1OhInsMode(3, 300, 0, 3, 0, 0),
        VQ6192_Framer_SetET1OhInsMode(3, 300, 0, 0, 0, 2), VQ6192_Framer_SetET1OhInsMode(3, 336, 0, 0, 0, 0),
        VQ6192_Framer_SetE1RaiInsValue(3, 12, 2), VQ6192_Framer_SetET1OhInsEn(3, 336, 1),
        VQ6192_Framer_GetE1OvhInsRegVal(3, 336, &w), VQ6192_Framer_GetE1FrmCntStd(3, 4, 0, 0, 0, 0, &count),
        VQ6192_Framer_GetE1FrmCntStd(3, 0, 0, 7, 0, 0, &count),
        VQ6192_Framer_GetE1FrmCntStd(3, 0, 0, 0, 4, 0, &count),
        VQ6192_Framer_GetE1FrmCntStd(3, 0, 0, 0, 0, 3, &count), VQ6192_Framer_GetFrmET3Alms(3, 12, &alarms),
        VQ6192_Framer_GetFrmClkSource(3, 336, &w), VQ6192_Framer_SetE1MapClkGate(3, 24, 1),
        VQ6192_Framer_SetE1MapClkGate(3, 0, 2), VQ6192_Framer_SetSOHByPassMode(3, 2));
}

}  // namespace
}  // namespace framertest
