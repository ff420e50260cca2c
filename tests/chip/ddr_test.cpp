// DDR controller: the 9-step scan, statistics, FIFO flags and the 64-byte block access. The CRC
// counters are read through their diagnostic report (tests/diag).
#include <cstring>

#include "chip_fixture.h"

namespace {

using namespace chiptest;
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
            EXPECT_EQ(rc, c.rc);
            EXPECT_EQ(newForm ? r.ucStatus : failed, c.failed);
            EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), c.us);
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
    EXPECT_EQ(ddr().scanPattern(), (std::array<uint16_t, 4>{0x5555, 0xAAAA, 0x5555, 0xAAAA}));
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
    expectRefused({"swap 2", kBasePara, [&] { return VQ6192_Base_ReadDdr64Bytes(kChip, addr, out, 2, 64); }});
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

}  // namespace
