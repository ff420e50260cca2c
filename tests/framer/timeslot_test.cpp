// The timeslot tables: entries written for every service type, speed and direction, deletion, the
// readers' decoding, failures inside multi-timeslot writes, and the switch-side controls.
#include <functional>

#include "framer/framer_test.h"
#include "vq6192/ppp.h"

namespace framertest {
namespace {

using TimeslotTest = FramerTest;

TEST_F(TimeslotTest, E1EntriesForEveryServiceTypeSpeedAndDirection) {
    model.poke(0x10048, 0x2);  // VC-4 PPP channel 1 enabled: PPP channel 1 is inner 0x200
    // The entry each direction gets; a CES channel under PRBS test (the PRBS flag set) carries bit 9.
    const struct {
        uint32_t svcType, svcChnl, speed, prbs;
        uint16_t entry;
    } cases[] = {
        {2, 7, 3, 0, 0xB807},    // ATM, 64k
        {2, 7, 4, 0, 0xA007},    // ATM, 8k
        {2, 511, 0, 0, 0xA9FF},  // ATM, 16k
        {2, 300, 1, 0, 0xB12C},  // ATM, 32k
        {3, 351, 3, 0, 0x995F},  // CES
        {3, 20, 3, 1, 0x9A14},   // CES under PRBS test
        {2, 20, 3, 1, 0xB814},   // ATM: no mark
        {4, 7, 3, 0, 0x7807},    // none: no En
        {1, 1, 3, 0, 0xDA00},    // PPP through the enabled VC-4 channel
        {1, 37, 1, 0, 0xD025},   // ordinary PPP channel
    };
    for (const auto &c : cases) {
        for (uint32_t dir : {0u, 1u, 2u}) {
            SCOPED_TRACE(testing::Message()
                         << "type " << c.svcType << " chnl " << c.svcChnl << " dir " << dir);
            model.tables().clear();
            g_uiPrbsFlag[kChip] = c.prbs;
            const uint32_t bitmap = 0x80000005u;  // timeslots 0, 2 and 31
            ASSERT_EQ(VQ6192_Framer_SelectSrcE1(kChip, dir, 123, c.svcChnl, c.svcType, bitmap, c.speed), 0u);
            for (uint32_t ts = 0; ts < 32; ++ts) {
                const bool selected = (bitmap >> ts & 1u) != 0;
                EXPECT_EQ(ints(entry(kIngressSelect, 123, ts), entry(kEgressSelect, 123, ts)),
                          ints(selected && dir != 1 ? c.entry : 0, selected && dir != 0 ? c.entry : 0))
                    << "ts " << ts;
            }
        }
    }
}

TEST_F(TimeslotTest, AllTimeslotsAndDeletionBackToTheClearedEntry) {
    // The next tributary's timeslot 0 follows timeslot 31 in the table: it stays as it was.
    const uint32_t next = entry(kIngressSelect, 335, 0);
    ASSERT_EQ(VQ6192_Framer_SelectSrcE1(kChip, 2, 334, 100, 3, 0xFFFFFFFFu, 3), 0u);
    EXPECT_EQ(entry(kIngressSelect, 335, 0), next) << "timeslot 31 is the last one written";
    ASSERT_EQ(VQ6192_Framer_DeleteSrcE1(kChip, 1, 334, 0x0000FFFFu), 0u);
    ASSERT_EQ(VQ6192_Framer_DeleteSrcE1(kChip, 3, 334, 0xFFFFFFFFu), 0u) << "direction 3 clears nothing";
    for (uint32_t ts = 0; ts < 32; ++ts) {
        EXPECT_EQ(ints(entry(kIngressSelect, 334, ts), entry(kEgressSelect, 334, ts)),
                  ints(0x9864, ts < 16 ? 0x7800 : 0x9864));
    }
    EXPECT_EQ(VQ6192_Framer_SelectSrcE1(kChip, 2, 335, 100, 3, 0xFFFFFFFFu, 3), 0u) << "the last E1";
}

TEST_F(TimeslotTest, SelectionRefusalsTouchNothing) {
    beginRefusals();
    expectRefusals(
        VQ6192_Framer_SelectSrcE1(3, 2, 5, 7, 2, 0x3, 2), VQ6192_Framer_SelectSrcE1(3, 2, 5, 7, 2, 0x3, 5),
        VQ6192_Framer_SelectSrcE1(3, 2, 336, 7, 2, 0x3, 3),
        VQ6192_Framer_SelectSrcE1(3, 2, 5, 512, 2, 0x3, 3), VQ6192_Framer_SelectSrcE1(3, 2, 5, 7, 0, 0x3, 3),
        VQ6192_Framer_SelectSrcE1(3, 2, 5, 7, 5, 0x3, 3), VQ6192_Framer_SelectSrcE3(3, 2, 12, 7, 2),
        VQ6192_Framer_SelectSrcE3(3, 2, 0, 7, 4), VQ6192_Framer_SelectSrcVC4(3, 2, 4, 0, 2),
        VQ6192_Framer_SelectSrcVC4(3, 2, 0, 4, 2), VQ6192_Framer_SelectSrcVC4(3, 2, 0, 0x300, 2),
        VQ6192_Framer_DeleteSrcE1(3, 4, 335, 1), VQ6192_Framer_DeleteSrcE1(3, 0, 336, 1));
}

TEST_F(TimeslotTest, AFailingTimeslotWriteDoesNotStopTheOthers) {
    // Egress only: one table write per timeslot. The third write cannot take the chip semaphore.
    VQ6192_Platform_FailSemTakes(2, 1);
    EXPECT_EQ(VQ6192_Framer_SelectSrcE1(kChip, 1, 40, 9, 2, 0x1F, 3), 0x030E0004u);
    EXPECT_EQ(ints(entry(kEgressSelect, 40, 0), entry(kEgressSelect, 40, 1), entry(kEgressSelect, 40, 2),
                   entry(kEgressSelect, 40, 3), entry(kEgressSelect, 40, 4)),
              ints(0xB809, 0xB809, 0, 0xB809, 0xB809));
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_SelectSrcE1.SetTSTab(3,40,1,2)       ErrCode[0x30e0004]\r\n");
    // Both directions: the ingress write of timeslot 1 fails and its egress half is skipped.
    model.tables().clear();
    VQ6192_Platform_FailSemTakes(2, 1);
    EXPECT_EQ(VQ6192_Framer_DeleteSrcE1(kChip, 2, 40, 0x3), 0x030E0004u);
    EXPECT_EQ(ints(entry(kIngressSelect, 40, 0), entry(kEgressSelect, 40, 0), entry(kIngressSelect, 40, 1),
                   entry(kEgressSelect, 40, 1)),
              ints(0x7800, 0x7800, 0, 0))
        << "a direction-2 write stops at its failing half";
}

TEST_F(TimeslotTest, ReadersDecodeEveryKindOfEntry) {
    model.poke(0x10048, 0x4);  // VC-4 PPP channel 2 enabled
    struct Case {
        uint16_t raw, chnl;
        uint8_t type;
        uint32_t speed;
        uint8_t en;
    };
    const Case cases[] = {
        {0xB807, 7, 2, 3, 1},     // ATM 64k
        {0x9A14, 20, 3, 3, 1},    // CES, PRBS mark dropped
        {0xC400, 2, 1, 0, 1},     // PPP inner 0x400 back to VC-4 channel 2, 8k
        {0xD0FF, 0xFF, 1, 2, 1},  // ordinary PPP channel
        {0x7800, 0, 4, 3, 0},     // cleared
    };
    uint16_t chnl = 0;
    uint8_t type = 0, en = 9;
    uint32_t speed = 9;
    for (const Case &c : cases) {
        setEntry(kIngressSelect, 99, 17, c.raw);
        EXPECT_EQ((Ints{VQ6192_Framer_GetTsCfg(kChip, 0, 99, 17, &chnl, &type, &speed, &en), chnl, type,
                        speed, en}),
                  ints(0, c.chnl, c.type, c.speed, c.en))
            << std::hex << c.raw;
    }
    // The record form; direction 2 must agree; another direction answers the empty defaults.
    VQ6192_FRM_TS_CFG_S cfg{kChip, 0, 99, 17, 0, 0, 0, 0};
    EXPECT_EQ((Ints{VQ6192_Framer_GetTsCfg2(&cfg), cfg.ucSvcType, VQ6192_Framer_GetTsCfg2(nullptr)}),
              ints(0, 4, 0x000E0001));
    setEntry(kEgressSelect, 99, 17, 0xB807);
    EXPECT_EQ(VQ6192_Framer_GetTsCfg(kChip, 2, 99, 17, &chnl, &type, &speed, &en), 0x030E0007u);
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_GetTsCfg(3,99,17).aulIngData and aulEgData not equal\n");
    EXPECT_EQ(
        (Ints{VQ6192_Framer_GetTsCfg(kChip, 3, 99, 17, &chnl, &type, &speed, &en), chnl, type, speed, en}),
        ints(0, 0, 3, 0, 0));
    EXPECT_EQ(VQ6192_Framer_GetTsCfg(kChip, 0, 336, 0, &chnl, &type, &speed, &en), kParaErr);
    // A table read that times out.
    model.tables().holdBusy(kTsBlock, TableEngine::kForever);
    EXPECT_EQ(VQ6192_Framer_GetTsCfg(kChip, 1, 99, 17, &chnl, &type, &speed, &en), 0x030E0004u);
    ASSERT_FALSE(capture.traces.empty());
    EXPECT_EQ(capture.traces.back().module, uint32_t{VQ6192_MODULE_CES});
    EXPECT_EQ(capture.traces.back().text,
              "Err. VQ6192_Framer_GetTsCfg.VQ6192_Read_Table(3,99,17)       ErrCode[0x30c0003]\r\n");
}

TEST_F(TimeslotTest, E3AndVc4Entries) {
    model.poke(0x10048, 0x2);
    // E3/T3 n and VC-4 n use source 336 + n; direction 2 writes both tables; the enabled VC-4 PPP
    // channel 1 is inner 0x200.
    const struct {
        std::function<uint32_t()> select;
        uint32_t table, source;
        uint16_t entry;
    } selections[] = {
        {[] { return VQ6192_Framer_SelectSrcE3(3, 2, 4, 9, 2); }, kIngressSelect, 340, 0xB809},
        {[] { return VQ6192_Framer_SelectSrcE3(3, 0, 5, 9, 1); }, kIngressSelect, 341, 0xD809},
        {[] { return VQ6192_Framer_SelectSrcE3(3, 1, 6, 6, 3); }, kEgressSelect, 342, 0x9800 | 342},
        {[] { return VQ6192_Framer_SelectSrcVC4(3, 2, 1, 2, 2); }, kIngressSelect, 349, 0xB8A8},
        {[] { return VQ6192_Framer_SelectSrcVC4(3, 2, 1, 2, 2); }, kEgressSelect, 349, 0xB8A8},
        {[] { return VQ6192_Framer_SelectSrcVC4(3, 2, 2, 1, 1); }, kIngressSelect, 350, 0xDA00},
        {[] { return VQ6192_Framer_SelectSrcVC4(3, 0, 3, 3, 3); }, kIngressSelect, 351, 0x9800 | 351},
    };
    for (const auto &c : selections) {
        EXPECT_EQ((Ints{c.select(), entry(c.table, c.source, 0)}), ints(0, c.entry)) << c.source;
    }
    ASSERT_EQ(VQ6192_Framer_SelectSrcE3(kChip, 7, 7, 9, 2), 0u) << "direction not tested, nothing written";
    VQ6192_Platform_FailSemTakes(0, 1);
    EXPECT_EQ(VQ6192_Framer_SelectSrcE3(kChip, 1, 8, 9, 2), 0x030E0004u);
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_SelectSrcE3.SetE3TSTab(3,8,1)       ErrCode[0x30e0004]\r\n");
    VQ6192_Platform_FailSemTakes(0, 1);
    EXPECT_EQ(VQ6192_Framer_DeleteSrcVC4(kChip, 0, 2), 0x030E0004u);
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_DeleteSrcVC4.SetVC4TSTab(3,2,0)       ErrCode[0x30e0004]\r\n");
    EXPECT_EQ(entry(kIngressSelect, 343, 0), 0);

    uint16_t chnl = 0, c3 = 0;
    uint8_t type = 0, en = 0, t3 = 0;
    uint32_t speed = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_GetVC4TsCfg(kChip, 2, 1, &chnl, &type, &speed, &en), chnl, type, speed, en,
                    VQ6192_Framer_GetE3TsCfg(kChip, 0, 5, &c3, &t3, &speed, &en), c3, t3}),
              ints(0, 168, 2, 3, 1, 0, 9, 1));
    EXPECT_EQ(VQ6192_Framer_GetE3TsCfg(kChip, 2, 6, &chnl, &type, &speed, &en), 0x030E0007u)
        << "ingress empty";
    uint32_t raw = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_DeleteSrcVC4(kChip, 2, 1), entry(kIngressSelect, 349, 0),
                    entry(kEgressSelect, 349, 0), VQ6192_Framer_DeleteSrcE3(kChip, 0, 4),
                    entry(kIngressSelect, 340, 0), VQ6192_Framer_GetVC4TSTab(kChip, 3, 0, &raw), raw}),
              ints(0, 0x7800, 0x7800, 0, 0x7800, 0, 0x9800 | 351));
    // Reading both directions of differing entries.
    EXPECT_EQ(VQ6192_Framer_GetVC4TSTab(kChip, 3, 2, &raw), 0x030E0007u);
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_GetVC4TSTab(3,3,2).aulIngData and aulEgData not equal\n");
}

TEST_F(TimeslotTest, Vc4SelectionThatLeavesTheIngressEnableAlone) {
    setEntry(kIngressSelect, 348, 0, 0x0000);  // ingress disabled
    setEntry(kEgressSelect, 348, 0, 0x8000);
    uint16_t en = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_SelectSrcVC4DisIngTs(kChip, 0, 0, 0x200, 3), entry(kIngressSelect, 348, 0),
                    entry(kEgressSelect, 348, 0)}),
              ints(0, 0x1800 | ((0x200 + 348) & 0x7FF), 0x9800 | ((0x200 + 348) & 0x7FF)));
    // Direction 1: the egress enable is set afterwards.
    setEntry(kEgressSelect, 349, 0, 0x0000);
    EXPECT_EQ((Ints{VQ6192_Framer_SelectSrcVC4DisIngTs(kChip, 1, 1, 1, 2), entry(kIngressSelect, 349, 0),
                    entry(kEgressSelect, 349, 0), VQ6192_Framer_GetTsVc4En(kChip, 1, 1, &en), en}),
              ints(0, 0x3854, 0xB854, 0, 1));
    // Deletion keeps the enables but for the egress one of directions 1 and 2.
    setEntry(kIngressSelect, 349, 0, 0xB854);
    EXPECT_EQ((Ints{VQ6192_Framer_DeleteSrcVC4DisIngTs(kChip, 2, 1), entry(kIngressSelect, 349, 0),
                    entry(kEgressSelect, 349, 0)}),
              ints(0, 0xF800, 0x7800));
    // A failing read is error 4, a failing write error 7.
    model.tables().holdBusy(kTsBlock, TableEngine::kForever);
    EXPECT_EQ(VQ6192_Framer_SelectSrcVC4DisIngTs(kChip, 0, 0, 0, 2), 0x030E0004u);
    model.tables().holdBusy(kTsBlock, 0);
    VQ6192_Platform_FailSemTakes(2, 1);  // two reads, then the ingress write
    EXPECT_EQ(VQ6192_Framer_SelectSrcVC4DisIngTs(kChip, 0, 0, 0, 2), 0x030E0007u);
    EXPECT_EQ(VQ6192_Framer_SelectSrcVC4DisIngTs(kChip, 3, 0, 0, 2), kParaErr);
}

TEST_F(TimeslotTest, SwitchSideControls) {
    // TSS mode: channel 37 is register 0x2004 bit 5; payload of channel 3 in 0x2032; source of channel 3
    // bit 3 of 0x2034 (ingress) and 0x2036 (egress).
    uint32_t mode = 0, payload = 0, source = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_SetTSSMode(kChip, 37, 1), model.peek(0x2004),
                    VQ6192_Framer_GetTSSMode(kChip, 37, &mode), mode, VQ6192_Framer_SetTSSMode(kChip, 336, 1),
                    VQ6192_Framer_SetTSPayLoad(kChip, 3, 2), model.peek(0x2032),
                    VQ6192_Framer_GetTSPayLoad(kChip, 3, &payload), payload,
                    VQ6192_Framer_SetTSSource(kChip, 2, 3, 1), model.peek(0x2034), model.peek(0x2036)}),
              ints(0, 1 << 5, 0, 1, kParaErr, 0, 2, 0, 2, 0, 8, 8));
    ASSERT_EQ(VQ6192_Framer_SetTSSource(kChip, 0, 3, 0), 0u);
    EXPECT_EQ((Ints{VQ6192_Framer_GetTSSource(kChip, 2, 3, &source), source}), ints(0x030E0007, 1))
        << "the egress value";
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_GetTSSource(3,2,3)    usIngGetVal[0] != usEgGetVal[1]\r\n");
    // The default byte is chip-wide: the second call wins.
    uint16_t reg = 0, delay = 0;
    uint8_t byte = 0;
    EXPECT_EQ((Ints{VQ6192_SetTsUxcEnable(kChip, 1, 1), VQ6192_GetTsUxcRegVal(kChip, &reg), reg,
                    VQ6192_Framer_SetTsEgDefaultByte(kChip, 3, 0x55),
                    VQ6192_Framer_SetTsEgDefaultByte(kChip, 300, 0xD5),
                    VQ6192_Framer_GetTsEgDefaultByte(kChip, 3, &byte), byte}),
              ints(0, 0, 2, 0, 0, 0, 0xD5));
    // The map delay is below 19440.
    EXPECT_EQ(
        (Ints{VQ6192_Framer_SetMapDelayTime(kChip, 0, 19440), VQ6192_Framer_SetMapDelayTime(kChip, 3, 19439),
              model.peek(0x20806), VQ6192_Framer_GetMapDelayTime(kChip, 3, &delay), delay}),
        ints(kParaErr, 0, 19439, 0, 19439));
    EXPECT_EQ((Ints{VQ6192_Framer_ResetRfp(kChip, 1), VQ6192_Framer_SetRfpEnableOnOff(kChip, 1, 0, 1, 0),
                    VQ6192_Framer_SetRfpDelay(kChip, 0x7FFF), model.peek(0x20004), model.peek(0x20006),
                    model.peek(0x20010), model.peek(0x20008)}),
              ints(0, 0, 0, 2, 4, 2, 0x7FFF));
    model.poke(0x20012, 0x0012);  // bits 1 and 4
    uint8_t a = 0, b = 0, c = 0, d = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_GetRfpAlm(kChip, &a, &b, &c, &d), a, b, c, d}), ints(0, 1, 1, 0, 0));
}

TEST_F(TimeslotTest, TimeslotAndTelecomBusLoops) {
    struct Case {
        uint32_t point, chnl, inReg, inBit, outReg, outBit;  // outReg 0: none
    };
    const Case cases[] = {
        {0, 22, 0x25AA, 1, 0x25A8, 1},  // internal E1 number 22: AU-3 group 1
        {1, 11, 0x25AE, 11, 0x25AC, 11},
        {2, 99, 0x2038, 0, 0, 0},
        {3, 99, 0x25B0, 0, 0x25B0, 1},
    };
    for (const Case &c : cases) {
        for (uint32_t mode = 0; mode < 3; ++mode) {
            uint8_t state = 9;
            EXPECT_EQ(
                (Ints{VQ6192_Framer_SetTsLoop(kChip, c.point, c.chnl, mode),
                      (model.peek(c.inReg) >> c.inBit) & 1,
                      c.outReg == 0 ? 0 : (model.peek(c.outReg) >> c.outBit) & 1,
                      VQ6192_Framer_GetTsLoop(kChip, c.point, c.chnl, &state), state}),
                ints(0, mode == 1, c.outReg != 0 && mode == 2, 0, c.outReg == 0 && mode == 2 ? 0 : mode))
                << "point " << c.point << " mode " << mode;
        }
    }
    beginRefusals();
    expectRefusals(VQ6192_Framer_SetTsLoop(3, 0, 336, 1), VQ6192_Framer_SetTsLoop(3, 1, 12, 1),
                   VQ6192_Framer_SetTsLoop(3, 4, 0, 1), VQ6192_Framer_SetTsLoop(3, 2, 0, 3));

    // High-order tributary loops: bit 1 of 0x2A020 for the whole block, bits 2 and 5 of tributary n's
    // register; both set read as 3 with error 4.
    uint8_t state = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_SetHTBLoop(kChip, 0, 0, 0, 1), model.peek(0x2A020),
                    VQ6192_Framer_SetHTBLoop(kChip, 0, 83, 1, 2), model.peek(0x2A080 + 0x40 * 83),
                    VQ6192_Framer_GetHTBLoop(kChip, 0, 83, 1, &state), state}),
              ints(0, 2, 0, 4, 0, 2));
    model.poke(0x2A080, 0x24);
    EXPECT_EQ((Ints{VQ6192_Framer_GetHTBLoop(kChip, 0, 0, 1, &state), state}), ints(0x030E0004, 3));
    beginRefusals();
    expectRefusals(VQ6192_Framer_SetHTBLoop(3, 1, 0, 0, 1), VQ6192_Framer_SetHTBLoop(3, 0, 84, 1, 1));
}

}  // namespace
}  // namespace framertest
