// RAM built-in self-test: register sequence, verdicts, the PLL2 check and the waits.
#include "chip_fixture.h"

namespace {

using namespace chiptest;
using RamBist = ChipFixture;

// The PLL2 check writes 4 into bits 0..10 of 0x100 as a field: bits 11..15 are written back as read.
// The PLL2 restart is hold (bit 7), reset (bit 0), release reset, release hold, as read-modify-writes of
// 0x6A from 0xFF7E: every other bit of the register stays set.
TEST_F(RamBist, HealthyBlockPassesWithTheFullSequenceAndItsWaits) {
    poke({{0x62, 0xF123}, {0x100, 0xA800}, {0x6A, 0xFF7E}});
    uint8_t failed = 9;
    VQ6192_Platform_ResetVirtualTime();
    const auto t = writes(traced([&] { EXPECT_EQ(VQ6192_Base_RamBistTest(kChip, 3, &failed), 0u); }));
    EXPECT_EQ(failed, 0);
    // 3 x 1 us restart, 1 us check, 20 ms run, 1 ms start, done at the first poll, restart, check.
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 3u + 1 + 20000 + 1000 + 3 + 1);
    // clang-format off
    EXPECT_EQ(t, (Accesses{wr(0x62, 0xF024),
                           wr(0x6A, 0xFFFE), wr(0x6A, 0xFFFF), wr(0x6A, 0xFFFE), wr(0x6A, 0xFF7E),
                           wr(0x100, 0xA804), wr(0xA0, 8), wr(0xA2, 8), wr(0xA0, 0), wr(0xA2, 0), wr(0x62, 0xF123),
                           wr(0x6A, 0xFFFE), wr(0x6A, 0xFFFF), wr(0x6A, 0xFFFE), wr(0x6A, 0xFF7E),
                           wr(0x100, 4)}));
    // clang-format on
    EXPECT_EQ(bist().runs(3), 1u);
    EXPECT_EQ(bist().clockSelAtStart(3), 36);
    EXPECT_TRUE(capture.traceTexts().empty());
}

// The PLL2 check accepts bit 2 of 0x100 at 0 (no loss-of-lock alarm): an alarm that latched before the
// test is cleared by the check and does not fail it; a lasting one fails both checks.
TEST_F(RamBist, VerdictsStatusesTextsAndWaits) {
    const uint32_t kHealthyUs = 21008, never = vq6192::sim::RamBistBlock::kForever;
    struct Case {
        const char *name;
        bool fail;
        uint32_t polls, pllAlarm, rc, failed;  // pllAlarm: 1 latched before, 2 lasting
        uint64_t us;
        Lines texts;
    };
    // clang-format off
    const Case cases[] = {
        {"block fails", true, 0, 0, 0, 1, kHealthyUs, {}},
        {"done at the third poll", false, 2, 0, 0, 0, kHealthyUs + 2 * 40000, {}},
        {"never done", false, never, 0, kBaseTimeout, 1, 3 + 1 + 20000 + 1000 + 3 * 40000,
         {"Err. VQ6192_Base_RamBistTest.  RamBistTest can't finish. ErrCode[0x3010003]\r\n"}},
        {"PLL2 alarm latched before", false, 0, 1, 0, 0, kHealthyUs, {}},
        {"PLL2 stays out of lock", false, 0, 2, kBaseTimeout, 0, kHealthyUs + 2 * 2,
         {"Err. VQ6192_Base_RamBistTest.  Fst eMdl[0x5], ChkTime[0x3], PLL Stat[0x1], ErrCode[0x3010003]\r\n",
          "Err. VQ6192_Base_RamBistTest.  Sec eMdl[0x5], ChkTime[0x3], PLL Stat[0x1] ErrCode[0x3010003]\r\n"}},
    };
    // clang-format on
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        bist().setFailing(5, c.fail);
        bist().setRunPolls(5, c.polls);
        c.pllAlarm == 1 ? irq().raise(0x100, 4) : c.pllAlarm == 2 ? irq().setActive(0x100, 4) : (void)0;
        capture.clear();
        VQ6192_Platform_ResetVirtualTime();
        uint8_t failed = 9;
        EXPECT_EQ(VQ6192_Base_RamBistTest(kChip, 5, &failed), c.rc);
        EXPECT_EQ(failed, c.failed);
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), c.us);
        EXPECT_EQ(capture.traceTexts(), c.texts);
        EXPECT_EQ(peek({0xA0, 0xA2}), (U32s{0, 0})) << "the test mode is always switched off again";
        EXPECT_EQ(model.peek(0x100) & 4, c.pllAlarm == 2 ? 4 : 0);
        irq().clearActive(0x100, 4);
    }
}

TEST_F(RamBist, AllBlocksReportAMaskAndATable) {
    model.poke(0x06, 0x8000);
    VQ6192_Platform_ResetVirtualTime();
    EXPECT_EQ(VQ6192_Base_RamBist(kChip), 0u);
    EXPECT_EQ(model.peek(0x06), 0xFFFF);  // clocks of modules 0..14 on
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 9u * 21008);
    EXPECT_TRUE(capture.traceTexts().empty());
    for (uint32_t b = 0; b < 9; ++b) {
        EXPECT_EQ(bist().runs(b), 1u) << b;
    }

    bist().setFailing(1, true);
    bist().setRunPolls(8, vq6192::sim::RamBistBlock::kForever);
    capture.clear();
    EXPECT_EQ(VQ6192_Base_RamBist(kChip), 0x102u);
    EXPECT_EQ(capture.traceTexts(),
              // clang-format off
              (Lines{"Err. VQ6192_Base_RamBistTest.  RamBistTest can't finish. ErrCode[0x3010003]\r\n",
                     "-------------------------------------MBIST ulChipID(3):\n", "  MDL       Result(0-ok, 1-fail)\n",
                     "  ATM          0\n", "  MPTX          1\n", "  MPRX          0\n", "  CES          0\n",
                     "  ETH          0\n", "  SAM          0\n", "  FRM          0\n", "  OHP          0\n",
                     "  DDR2C        1\n"}));
    // clang-format on
}

TEST_F(RamBist, ParameterErrors) {
    uint8_t failed = 0;
    expectRefused({"block 9", kBasePara, [&] { return VQ6192_Base_RamBistTest(kChip, 9, &failed); }});
    EXPECT_EQ(VQ6192_Base_RamBist(264), 0x1FFu);  // nothing tested: every block reported failed
}

}  // namespace
