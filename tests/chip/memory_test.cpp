// The chip's memories: RAM built-in self-test (register sequence, verdicts, the PLL2 check, the waits);
// the DDR controller (9-step scan, statistics, FIFO flags, 64-byte block access; the CRC counters are
// read through their diagnostic report in tests/diag); the software DDR 3-step test against the DDR
// model's data-line and address-line faults.
#include <algorithm>
#include <cstring>

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
    // 3 x 1 us restart, 1 us check, 20 ms run, 1 ms start, done at the first poll, restart, check.
    EXPECT_EQ((U64s{failed, VQ6192_Platform_GetVirtualTimeUs()}), (U64s{0, 3u + 1 + 20000 + 1000 + 3 + 1}));
    // clang-format off
    EXPECT_EQ(t, (Accesses{wr(0x62, 0xF024),
                           wr(0x6A, 0xFFFE), wr(0x6A, 0xFFFF), wr(0x6A, 0xFFFE), wr(0x6A, 0xFF7E),
                           wr(0x100, 0xA804), wr(0xA0, 8), wr(0xA2, 8), wr(0xA0, 0), wr(0xA2, 0), wr(0x62, 0xF123),
                           wr(0x6A, 0xFFFE), wr(0x6A, 0xFFFF), wr(0x6A, 0xFFFE), wr(0x6A, 0xFF7E),
                           wr(0x100, 4)}));
    // clang-format on
    EXPECT_EQ((U64s{bist().runs(3), bist().clockSelAtStart(3), capture.traces.size()}), (U64s{1, 36, 0}));
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
        EXPECT_EQ((U64s{failed, VQ6192_Platform_GetVirtualTimeUs()}), (U64s{c.failed, c.us}));
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
    // Clocks of modules 0..14 on, nine blocks of 21008 us each.
    EXPECT_EQ((U64s{model.peek(0x06), VQ6192_Platform_GetVirtualTimeUs(), capture.traces.size()}),
              (U64s{0xFFFF, 9u * 21008, 0}));
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
    expectRefused({{"block 9", kBasePara, [&] { return VQ6192_Base_RamBistTest(kChip, 9, &failed); }}});
    EXPECT_EQ(VQ6192_Base_RamBist(264), 0x1FFu);  // nothing tested: every block reported failed
}

using Ddr = ChipFixture;
constexpr uint16_t kPattern[4] = {0x5555, 0xAAAA, 0x5555, 0xAAAA};

// Every run writes the same sequence, whatever its verdict; the scan is started, and stopped again.
TEST_F(Ddr, NineStepScanVerdicts) {
    const Accesses sequence = {wr(0xC000, 1),      wr(0xC020, 0),      wr(0xC026, 0x5555), wr(0xC028, 0xAAAA),
                               wr(0xC02A, 0x5555), wr(0xC02C, 0xAAAA), wr(0xC022, 0x0FFF), wr(0xC024, 0xFFFF),
                               wr(0xC020, 1),      wr(0xC020, 0),      wr(0xC000, 0)};
    struct Case {
        const char *name;
        uint32_t polls;
        bool scanError;
        uint32_t rc, failed, us;
        std::string text;
    };
    // clang-format off
    const Case cases[] = {
        {"done after one wait", 1, false, 0, 0, 250000, ""},
        {"done at the fourth poll", 4, false, 0, 0, 1000000, ""},
        {"done at the last poll", 20, false, 0, 0, 5000000, ""},
        {"never done", vq6192::sim::DdrBlock::kForever, false, kBaseFailed, 1, 5000000, "Err. VQ6192_Base_DDR9StepTest.  Don't finish ErrCode[0x3010007]\r\n"},
        {"scan error", 1, true, kBaseFailed, 1, 250000, "Err. VQ6192_Base_DDR9StepTest.  ScanErr[0x53] ErrCode[0x3010007]\r\n"},
    };
    // clang-format on
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        ddr().setScanPolls(c.polls);
        if (c.scanError) {
            ddr().failScan(0x01234560, 5, {1, 2, 3, 4});
        } else {
            ddr().passScan();
        }
        for (bool newForm : {false, true}) {
            capture.clear();
            VQ6192_Platform_ResetVirtualTime();
            VQ6192_DDR9STEP_RESULT r{};
            uint8_t failed = 9;
            uint32_t rc = 1;
            EXPECT_EQ(writes(traced([&] {
                          rc = newForm ? VQ6192_Base_DDR9StepTestNew(kChip, kPattern, &r)
                                       : VQ6192_Base_DDR9StepTest(kChip, kPattern, &failed);
                      })),
                      sequence);
            EXPECT_EQ((U64s{rc, newForm ? r.ucStatus : failed, VQ6192_Platform_GetVirtualTimeUs()}),
                      (U64s{c.rc, c.failed, c.us}));
            EXPECT_EQ(capture.traceTexts(), c.text.empty() ? Lines{} : Lines{c.text});
            EXPECT_FALSE(ddr().scanRunning());
            EXPECT_EQ((model.peek(0xC020) | model.peek(0xC000)) & 1, 0);
            if (newForm && c.scanError) {
                EXPECT_EQ((U16s{r.wScanErrAddrHigh, r.wScanErrAddrLow}), (U16s{0x0123, 0x4560}));
                EXPECT_EQ(U16s(r.awScanErrRData, r.awScanErrRData + 4), (U16s{1, 2, 3, 4}));
                EXPECT_EQ(U16s(r.awScanExpRData, r.awScanExpRData + 4),
                          (U16s{0x5555, 0xAAAA, 0x5555, 0xAAAA}));
            }
        }
    }
}

TEST_F(Ddr, TestStatisticsAfterAScanError) {
    ddr().failScan(0x0ABCDEF0, 6, {9, 8, 7, 6});
    uint8_t failed = 0;
    EXPECT_EQ(VQ6192_Base_DDR9StepTest(kChip, kPattern, &failed), kBaseFailed);
    EXPECT_EQ(ddr().scanMaxAddr(), g_ulVq6192Ddr9StepTestMaxAddr);
    poke({{0xC036, 0xA700u | model.peek(0xC036)}, {0xC102, 0xFFFF}, {0xC104, 0x0123}});
    VQ6192_DDR_TEST_STATS s{};
    EXPECT_EQ(VQ6192_Base_GetDDRTestStats(kChip, &s), 0u);
    EXPECT_EQ(
        (U16s{s.wDdr2cTestCurrSt, s.wDdr2cTestNextSt, s.wDdr2cRrCurrSt, s.wDdr2cRrNextSt, s.wScanErrStep}),
        (U16s{7, 0xA, 0x7FF, 0x123, 6}));
    EXPECT_EQ(s.dwScanErrAddr, 0x0ABCDEF0u);
    EXPECT_EQ(U16s(s.awScanErrRData, s.awScanErrRData + 4), (U16s{9, 8, 7, 6}));
    EXPECT_EQ(U16s(s.awScanExpRData, s.awScanExpRData + 4), (U16s{0x5555, 0xAAAA, 0x5555, 0xAAAA}));
}

TEST_F(Ddr, BlockWriteAndReadRoundTripWithAndWithoutSwap) {
    uint16_t data[32], out[32] = {};
    for (uint16_t k = 0; k < 32; ++k) {
        data[k] = static_cast<uint16_t>(0x1000 + k);
    }
    const uint32_t addr = 0x00123400;
    auto t = writes(traced([&] { EXPECT_EQ(VQ6192_Base_WriteDdr64Bytes(kChip, addr, data, 64), 0u); }));
    Accesses expected = {wr(0xC068, 63), wr(0xC064, 0x0012), wr(0xC066, 0x3400)};
    for (uint32_t k = 0; k < 32; ++k) {
        expected.push_back(wr(0xC080 + 2 * k, data[k]));
        EXPECT_EQ(ddr().word(addr + 2 * k), data[k]) << k;
    }
    expected.insert(expected.end(), {wr(0xC062, 0), wr(0xC062, 1), wr(0xC062, 0)});
    EXPECT_EQ(t, expected);
    EXPECT_EQ(ddr().blockWrites(), 1u);

    // The read strobe is bit 4 of 0xC062 alone: 0, 1, and 0 again after the data.
    model.poke(0xC062, 0xFFEF);
    t = writes(traced([&] { EXPECT_EQ(VQ6192_Base_ReadDdr64Bytes(kChip, addr, out, 0, 64), 0u); }));
    std::erase_if(t, [](const BusAccess &a) { return a.addr != 0xC062; });
    EXPECT_EQ(t, (Accesses{wr(0xC062, 0xFFEF), wr(0xC062, 0xFFFF), wr(0xC062, 0xFFEF)}));
    EXPECT_EQ(U16s(out, out + 32), U16s(data, data + 32));
    EXPECT_EQ(VQ6192_Base_ReadDdr64Bytes(kChip, addr, out, 1, 64), 0u);
    expectRefused(
        {{"swap 2", kBasePara, [&] { return VQ6192_Base_ReadDdr64Bytes(kChip, addr, out, 2, 64); }}});
    for (uint32_t k = 0; k < 32; ++k) {
        EXPECT_EQ(out[k], data[k ^ 3]) << k;  // the four words of each 64-bit group in reverse order
    }
}

TEST_F(Ddr, BlockLengthIsCountLessOne) {
    uint16_t data[32];
    for (uint16_t k = 0; k < 32; ++k) {
        data[k] = static_cast<uint16_t>(0xA000 + k);
    }
    struct Case {
        uint32_t count, length, words;
    };
    for (const Case &c : {Case{0, 63, 32}, Case{64, 63, 32}, Case{16, 15, 8}, Case{8, 7, 4}, Case{1, 0, 1}}) {
        SCOPED_TRACE(c.count);
        ddr().clearMemory();
        EXPECT_EQ(VQ6192_Base_WriteDdr64Bytes(kChip, 0x400, data, c.count), 0u);
        EXPECT_EQ(model.peek(0xC068) & 0x3F, c.length);
        for (uint32_t k = 0; k < 32; ++k) {
            EXPECT_EQ(ddr().word(0x400 + 2 * k), k < c.words ? data[k] : 0) << k;
        }
    }
}

TEST_F(Ddr, BusyTableTimesOut) {
    uint16_t data[32] = {};
    ddr().setCommandBusy(2);
    VQ6192_Platform_ResetVirtualTime();
    EXPECT_EQ(VQ6192_Base_WriteDdr64Bytes(kChip, 0, data, 64), 0u);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 20000u);  // two busy polls, 10 ms each
    EXPECT_TRUE(capture.traceTexts().empty());

    ddr().setCommandBusy(vq6192::sim::DdrBlock::kForever);
    VQ6192_Platform_ResetVirtualTime();
    EXPECT_EQ(VQ6192_Base_WriteDdr64Bytes(kChip, 0, data, 64), kBaseFailed);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 90000u);  // 3 x 3 polls
    EXPECT_EQ(model.peek(0xC062) & 1, 0);
    EXPECT_EQ(capture.traceTexts(),
              (Lines{"Err. VQ6192_Base_GetDdrTabWBusy. DDR Write Tab Is Busy! TimeOut \r\n",
                     "Err. VQ6192_Base_WriteDdr64Bytes.VQ6192_Base_GetDdrTabWBusy DDR Tab Is Always Busy! "
                     "Write Failed! \r\n"}));
    capture.clear();
    uint16_t out[32] = {};
    EXPECT_EQ(VQ6192_Base_ReadDdr64Bytes(kChip, 0, out, 0, 64), kBaseFailed);
    EXPECT_EQ(model.peek(0xC062) & 0x10, 0);
    EXPECT_EQ(capture.traceTexts(),
              (Lines{"Err. VQ6192_Base_GetDdrTabWBusy. DDR Tab Read Is Busy! TimeOut \r\n",
                     "Err. VQ6192_Base_ReadDdr64Bytes.VQ6192_Base_GetDdrTabRBusy DDR Tab Is Always Busy! "
                     "Read Failed! \r\n"}));
    // The busy wait alone, with fewer wait rounds.
    g_ulVQ6192DDRRWWaitTimes = 1;
    VQ6192_Platform_ResetVirtualTime();
    EXPECT_EQ(VQ6192_Base_GetDdrTabWBusy(kChip), kBaseTimeout);
    EXPECT_EQ(VQ6192_Base_GetDdrTabRBusy(kChip), kBaseTimeout);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 60000u);
    g_ulVQ6192DDRRWWaitTimes = 3;
}

TEST_F(Ddr, FifoFlagsLandInRecordOrder) {
    using F = VQ6192_DDR_FIFO_STAT;
    // The registers in record order with their flag bits, most significant first; the last two rows are
    // bits that carry no flag.
    const U32s six = {5, 4, 3, 2, 1, 0}, four = {3, 2, 1, 0};
    // clang-format off
    const std::pair<uint32_t, U32s> order[] = {
        {0xC004, {10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0}}, {0xC060, {1, 0}}, {0xC100, four}, {0xC126, four}, {0xC12E, six},
        {0xC136, six}, {0xC13E, six}, {0xC146, six}, {0xC14E, six}, {0xC156, six}, {0xC15E, six}, {0xC166, four},
        {0xC16E, six}, {0xC176, {5, 4, 1, 0}}, {0xC176, {2}}, {0xC004, {11}}};
    // clang-format on
    size_t k = 0;
    for (const auto &[reg, bits] : order) {
        for (uint32_t bit : bits) {
            SCOPED_TRACE(testing::Message() << std::hex << reg << " bit " << std::dec << bit);
            model.poke(reg, static_cast<uint16_t>(1u << bit));
            F f;
            std::memset(&f, 7, sizeof f);
            EXPECT_EQ(VQ6192_Base_GetDDRFifoStats(kChip, &f), 0u);
            const auto *bytes = reinterpret_cast<const uint8_t *>(&f);
            for (size_t i = 0; i < sizeof f; ++i) {
                EXPECT_EQ(bytes[i], i == k ? 1 : 0) << i;
            }
            model.poke(reg, 0);
            ++k;
        }
    }
    EXPECT_EQ(k, sizeof(F) + 2);
}

using Short = vq6192::sim::DdrBlock::Short;
using Ctx = VQ6192_DDR3STEP_CTX;

const char *const kLineName[16] = {"A0", "A1", "A2",  "A3",  "A4",  "A5",  "A6",  "A7",
                                   "A8", "A9", "A10", "A11", "A12", "BA0", "BA1", "BA2"};
constexpr uint8_t kLineCode[16] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 50, 51, 52};

class Ddr3Step : public ChipFixture {
  protected:
    struct Result {
        uint32_t rc;
        std::array<uint8_t, VQ6192_DDR3STEP_STATUS_NUM> status;
        VQ6192_DDR3STEP_CTX ctx;
        Lines verdicts;  // trace lines naming a fault
    };

    Result run() {
        capture.clear();
        ddr().clearMemory();
        Result r{};
        r.status.fill(0xEE);
        std::memset(&r.ctx, 0xEE, sizeof r.ctx);
        r.rc = VQ6192_Base_DDR3StepTest(kChip, r.status.data(), &r.ctx);
        for (const std::string &t : capture.traceTexts()) {
            if (t.find("fault") != std::string::npos) {
                r.verdicts.push_back(t);
            }
        }
        return r;
    }

    // The status bytes at `at`.
    static U32s st(const Result &r, std::initializer_list<size_t> at) {
        U32s v;
        for (size_t k : at) {
            v.push_back(r.status[k]);
        }
        return v;
    }
    static uint32_t dataMasks(const VQ6192_DDR3STEP_CTX &c) {
        return c.ulStuckOpen1Mask | c.ulStuckOpen0Mask | c.ulStuckAt0Mask | c.ulStuckAt1Mask |
               c.ulShort1Mask | c.ulShort0Mask;
    }
    static uint32_t addrMasks(const VQ6192_DDR3STEP_CTX &c) {
        return c.ulAddrShortXMask | c.ulAddrStuckAtMask | c.ulAddrShortMask | c.ulAddrUnknownMask;
    }
    // One fault found: the status bytes at `at`, the one context mask that names it, the verdict lines.
    static void expectFound(const Result &r, std::initializer_list<size_t> at, const U32s &status,
                            uint32_t VQ6192_DDR3STEP_CTX::*mask, uint32_t bits, const Lines &verdicts) {
        EXPECT_EQ(r.rc, VQ6192_DDR3STEP_FAULT);
        EXPECT_EQ(st(r, at), status);
        EXPECT_EQ((U32s{r.ctx.*mask, dataMasks(r.ctx) | addrMasks(r.ctx)}), (U32s{bits, bits}));
        EXPECT_EQ(r.verdicts, verdicts);
    }
    bool traced(const std::string &line) const {
        const auto t = capture.traceTexts();
        return std::find(t.begin(), t.end(), line) != t.end();
    }
};

TEST_F(Ddr3Step, HealthyMemoryPassesEveryStep) {
    VQ6192_Platform_ResetVirtualTime();
    const Result r = run();
    EXPECT_EQ(r.rc, 0u);
    EXPECT_EQ(r.status, (std::array<uint8_t, 7>{}));
    EXPECT_EQ(dataMasks(r.ctx) | addrMasks(r.ctx) | r.ctx.ulReserved, 0u);
    EXPECT_TRUE(r.verdicts.empty());
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 0u);  // the table port is never busy
    EXPECT_EQ(ddr().blockWrites(), 2u + 64 + 34);
    EXPECT_EQ(ddr().blockReads(), 2u + 64 + 34);
    Lines stages;
    for (const std::string &t : capture.traceTexts()) {
        if (t.rfind(" 3", 0) != 0) {
            stages.push_back(t);
        }
    }
    EXPECT_EQ(stages, (Lines{"\nStep 1: data bus testing (step 1)...\n", "\nStep 1 PASS!",
                             "\nStep 2a: data bus testing (step 1)...", "\nStep 2a PASS!",
                             "\r\nStep 2b: data bus testing (step 0)...", "\nStep 2b PASS!\n",
                             "\nStep 2 PASS!", "\r\nStep 3a: Addr bus testing (step 0)...\n",
                             "\r\nStep 3b: Addr bus testing (step 1)...\n", "\nStep 3a PASS! \n"}));
    EXPECT_TRUE(traced(" 3a. aulTestStep3DataMask0[0]=0xfffffffe\n"));
    EXPECT_TRUE(traced(" 3a. aulTemReadData0[16]=0xfffeffff\n"));
    EXPECT_TRUE(traced(" 3b. aulTestStep3DataMask1[16]=0xff0000ff\n"));
    EXPECT_TRUE(traced(" 3b. aulTemReadData1[3]=0x40000\n"));
    EXPECT_EQ(capture.traceTexts().size(), stages.size() + 4 * 17);
}

// Step 1 finds every data line stuck at 1 or 0 (on its own) and names it as stuck-open.
TEST_F(Ddr3Step, EveryStuckDataLineIsFoundInStepOne) {
    for (uint32_t line = 0; line < 32; ++line) {
        for (bool value : {true, false}) {
            SCOPED_TRACE(testing::Message() << "DQ" << line << " stuck at " << value);
            ddr().clearFaults();
            ddr().stickDataLine(line, value);
            expectFound(
                run(), {0, 1, 2},
                {1, value ? VQ6192_DDR3STEP_STUCK_OPEN_1 : VQ6192_DDR3STEP_STUCK_OPEN_0, line},
                value ? &Ctx::ulStuckOpen1Mask : &Ctx::ulStuckOpen0Mask, 1u << line,
                {"data[" + std::to_string(line) + "] is Stuck-open-" + (value ? "1" : "0") + " fault\n"});
        }
    }
}

// Step 2 finds every short between two data lines: a wired AND as short-to-0, a wired OR as
// short-to-1, reported once for the lower line with the higher one as its partner. Step 2b (walking
// zero) may pass, step 2 as a whole does not.
TEST_F(Ddr3Step, EveryDataLineShortIsFoundInStepTwo) {
    for (uint32_t i = 0; i < 32; ++i) {
        for (uint32_t j = i + 1; j < 32; ++j) {
            for (Short kind : {Short::And, Short::Or}) {
                SCOPED_TRACE(testing::Message()
                             << "DQ" << i << " DQ" << j << (kind == Short::And ? " AND" : " OR"));
                ddr().clearFaults();
                ddr().shortDataLines(j, i, kind);
                const bool to0 = kind == Short::And;
                expectFound(run(), {0, 3, 4, 6},
                            {2, to0 ? VQ6192_DDR3STEP_SHORT_0 : VQ6192_DDR3STEP_SHORT_1, i, j},
                            to0 ? &Ctx::ulShort0Mask : &Ctx::ulShort1Mask, 1u << i,
                            {"\n Step 2: data[" + std::to_string(i) + "] and data[" + std::to_string(j) +
                             "] is Stuck-short-" + (to0 ? "0" : "1") + " fault\n"});
                EXPECT_FALSE(traced("\nStep 2 PASS!"));
            }
        }
    }
}

// The fault status and the short-to-1 code as the chip documentation numbers them.
TEST_F(Ddr3Step, ShortOfBitsThreeAndFourAsTheReadBacksShowIt) {
    ddr().shortDataLines(3, 4, Short::Or);  // 1 << 3 and 1 << 4 read 0x18, complements 0xFFFFFFFF
    const Result r = run();
    EXPECT_EQ(r.rc, 0x10007u);
    EXPECT_EQ(st(r, {3, 4, 6}), (U32s{8, 3, 4}));
    EXPECT_TRUE(traced("\nStep 2b PASS!\n"));
}

// Step 2's stuck-at rules judge the two read-backs as whole words: a bit whose walking one and walking
// zero both read back 0 is stuck-at-0; walking one reading 0 and walking zero reading 1 is stuck-at-1.
// Such pattern-dependent read-backs come from a read filter on the model.
TEST_F(Ddr3Step, StepTwoStuckAtVerdicts) {
    struct Case {
        uint32_t bit, walkingZeroReadsAs, kind;  // walking zero: low byte of word 0; words 1..3 read 0
        uint32_t Ctx::*mask;
        std::string text;
    };
    const Case cases[] = {
        {5, 0, VQ6192_DDR3STEP_STUCK_AT_0, &Ctx::ulStuckAt0Mask, "\n Step 2: data[5] is S-A-0 fault\n"},
        {17, 1, VQ6192_DDR3STEP_STUCK_AT_1, &Ctx::ulStuckAt1Mask, "\n Step 2: data[17] is S-A-1 fault\n"}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.text);
        ddr().clearFaults();
        ddr().setReadFilter([&](uint32_t addr, uint32_t words, vq6192::sim::DdrBlock::Block &b) {
            if (addr != 0x0FEFFF60 || words != 8) {
                return;
            }
            uint32_t v = 0;
            for (int k = 0; k < 4; ++k) {
                v |= static_cast<uint32_t>(b[k] & 0xFF) << (8 * k);
            }
            if (v == 1u << c.bit || v == ~(1u << c.bit)) {
                const bool walkingZero = v != 1u << c.bit;
                b[0] = static_cast<uint16_t>(walkingZero ? c.walkingZeroReadsAs : 0);
                b[1] = b[2] = b[3] = 0;
            }
        });
        expectFound(run(), {0, 3, 4}, {2, c.kind, c.bit}, c.mask, 1u << c.bit, {c.text});
    }
}

// A stuck address line sends its step-3a address and the step-3b base address onto the cells of the
// base: its read-back equals the base's in both steps, the "Stuck-Short-x" verdict.
TEST_F(Ddr3Step, EveryStuckAddressLineIsFoundInStepThree) {
    for (uint32_t line = 0; line < 16; ++line) {
        for (bool value : {true, false}) {
            SCOPED_TRACE(testing::Message() << kLineName[line] << " stuck at " << value);
            ddr().clearFaults();
            ddr().stickAddressLine(line, value);
            expectFound(run(), {0, 5, 6}, {3, 0, kLineCode[line]}, &Ctx::ulAddrShortXMask, 1u << line,
                        {std::string("\nStep 3ab: ") + kLineName[line] + " is Stuck-Short-x fault\n"});
        }
    }
}

// Two shorted address lines collapse two addresses of one step onto the base and two of the other
// step onto each other: base-equal in one step only, the "S-A-1 or S-A-0" verdict. Lines that share
// both phases (row and column, or row only) are both named; otherwise the one the base address
// catches is.
TEST_F(Ddr3Step, EveryAddressLineShortIsFoundInStepThree) {
    auto hasColumn = [](uint32_t line) { return line >= 3 && line <= 9; };
    for (uint32_t a = 0; a < 16; ++a) {
        for (uint32_t b = a + 1; b < 16; ++b) {
            for (Short kind : {Short::And, Short::Or}) {
                SCOPED_TRACE(testing::Message()
                             << kLineName[a] << " " << kLineName[b] << (kind == Short::And ? " AND" : " OR"));
                ddr().clearFaults();
                ddr().shortAddressLines(a, b, kind);
                const Result r = run();
                ASSERT_EQ(r.rc, VQ6192_DDR3STEP_FAULT);
                EXPECT_EQ(st(r, {0, 5}), (U32s{3, VQ6192_DDR3STEP_ADDR_STUCK_AT}));
                const uint32_t pair = 1u << a | 1u << b;
                EXPECT_EQ(addrMasks(r.ctx), r.ctx.ulAddrStuckAtMask);
                EXPECT_NE(r.ctx.ulAddrStuckAtMask, 0u);
                EXPECT_EQ(r.ctx.ulAddrStuckAtMask & ~pair, 0u);
                if (hasColumn(a) == hasColumn(b)) {
                    EXPECT_EQ(r.ctx.ulAddrStuckAtMask, pair);
                    EXPECT_EQ(r.status[6], kLineCode[b]);
                    EXPECT_EQ(
                        r.verdicts,
                        (Lines{std::string("\nStep 3ab: ") + kLineName[a] + " is S-A-1 or S-A-0 fault\n",
                               std::string("\nStep 3ab: ") + kLineName[b] + " is S-A-1 or S-A-0 fault\n"}));
                }
            }
        }
    }
}

// Read-backs that equal each other but not the base are the aliasing verdict; a read-back that matches
// nothing is unknown. The read filter makes them.
TEST_F(Ddr3Step, AliasedAndUnknownAddressVerdicts) {
    ddr().setReadFilter([](uint32_t addr, uint32_t words, vq6192::sim::DdrBlock::Block &b) {
        if (words == 4 && (addr == 0x0FEFFF60 || addr == 0x0FDFFEE0)) {  // A5 and A6 in step 3a
            b[0] = 0x5678;
            b[1] = 0x1234;
        }
    });
    expectFound(run(), {5, 6}, {VQ6192_DDR3STEP_ADDR_SHORT, 6}, &Ctx::ulAddrShortMask, 1u << 5 | 1u << 6,
                {"\nStep 3ab: A5 is Stuck-Short-1 or Stuck-Short-0 fault\n",
                 "\nStep 3ab: A6 is Stuck-Short-1 or Stuck-Short-0 fault\n"});
    EXPECT_TRUE(traced(" 3a. aulTemReadData0[5]=0x12345678\n"));

    ddr().setReadFilter([](uint32_t addr, uint32_t words, vq6192::sim::DdrBlock::Block &b) {
        if (words == 4 && addr == 0x00002000) {  // BA1 in step 3b
            b[0] = 0xBEEF;
            b[1] = 0xDEAD;
        }
    });
    expectFound(run(), {5, 6}, {0, 51}, &Ctx::ulAddrUnknownMask, 1u << 14,
                {"\nStep 3ab: BA1 is Un-Know fault\n"});
}

// A block access that fails ends the test with its status and, in steps 1 and 2, a line naming it.
TEST_F(Ddr3Step, BlockAccessFailureEndsTheTest) {
    struct Case {
        uint32_t after, stage;  // block commands that succeed first, the step that fails
        std::string text;
    };
    // clang-format off
    const Case cases[] = {
        {0, 1, " : WriteDdrDword:[0xfff7fe0] Data to Reg Failed, ulRtn = 50397191 \n"},
        {1, 1, " : ReadDdrDword:[0xfff7fe0] Data From Reg Failed!\n"},
        {2, 1, " : WriteDdrDword:[0xfefff60] Data From Reg Failed!\n"},
        {3, 1, " : ReadDdrDword:[0xfefff60] Data From Reg Failed!\n"},
        {4, 2, "\n Step 2a: write err and write addr is:0xfefff60"}, {5, 2, "\n Step 2a: Read err and write addr:0xfefff60"},
        {68, 2, "\n Step 2b: write err and write addr is:0xfefff60"}, {69, 2, "\n Step 2b: Read err at:0xfefff60\n"},
        {132, 3, ""}, {167, 3, ""},
    };
    // clang-format on
    for (const Case &c : cases) {
        SCOPED_TRACE(c.after);
        ddr().clearFaults();
        ddr().stallAfter(c.after);
        const Result r = run();
        EXPECT_EQ(r.rc, kBaseFailed);
        EXPECT_EQ(r.status[0], c.stage);
        if (!c.text.empty()) {
            EXPECT_EQ(capture.traceTexts().back(), c.text);
        }
    }
}

}  // namespace
