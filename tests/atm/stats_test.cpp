// ATM counters, alarms and cell capture: which counter sits where, read-clear, the capture match
// registers, the capture polls and the FIFO drain.
#include <tuple>

#include "atm/atm_fixture.h"
#include "vq6192/sim/atm_pwe3.h"

namespace {

using namespace atmtest;
using vq6192::sim::AtmPwe3Block;

constexpr uint32_t kTrcc = 1, kTtcc = 2, kLpcc = 6, kSpcc = 8, kBmPvcSta = 18, kBmFifoSta = 20;

class StatsTest : public AtmTest {
  protected:
    void SetUp() override {
        AtmTest::SetUp();
        model.block<AtmPwe3Block>().setReadClear(true);
    }
    // Every bit set but the capture start bits.
    void startsCleared() {
        poke({{0xA2D8, 0xFFFF}, {0xA2DA, 0xFFFF}, {0xA2DC, 0xFDFF}, {0xA2DE, 0xDFFF}});
        poke({{0xA2E0, 0xFFFF}, {0xA2E2, 0xFFFF}, {0xA2E4, 0xF7FF}, {0xA2E6, 0xDFFF}});
    }
    AtmPwe3Block &pwe3() { return model.block<AtmPwe3Block>(); }
};

TEST_F(StatsTest, PortCountersClearWhenRead) {
    using Case = std::tuple<uint32_t, uint32_t, uint32_t>;
    for (const auto &[port, side, sel] : {Case{335, 0, kLpcc}, Case{0, 0, kLpcc}, Case{2047, 1, kSpcc}}) {
        SCOPED_TRACE(port);
        setBits(sel, port, 0, 32, 0x0BADCAFE);   // transmitted
        setBits(sel, port, 32, 32, 0xFEEDF00D);  // received
        uint32_t r[4] = {};
        ASSERT_EQ(VQ6192_ATM_GetAtmPortStat(kChip, port, side, &r[0], &r[1]), 0u);
        ASSERT_EQ(VQ6192_ATM_GetAtmPortStat(kChip, port, side, &r[2], &r[3]), 0u);
        EXPECT_EQ(V32(r, r + 4), (V32{0xFEEDF00D, 0x0BADCAFE, 0, 0})) << "cleared by the first read";
    }
    setBits(kSpcc, 7, 32, 32, 9);
    uint32_t rcc = 0, tcc = 0;
    EXPECT_EQ(VQ6192_ATM_GetAtmPortStat_Pro(kChip, 7, 1, &rcc, &tcc), 0u);
    EXPECT_EQ(rcc, 9u);
    model.clearTrace();
    // The last: the line side is refused by the variant.
    EXPECT_EQ((V32{VQ6192_ATM_GetAtmPortStat(kChip, 2048, 1, &rcc, &tcc),
                   VQ6192_ATM_GetAtmPortStat(kChip, 336, 0, &rcc, &tcc),
                   VQ6192_ATM_GetAtmPortStat(kChip, 0, 2, &rcc, &tcc),
                   VQ6192_ATM_GetAtmPortStat_Pro(kChip, 0, 0, &rcc, &tcc)}),
              V32(4, kPara));
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(StatsTest, ConnectionCounters) {
    setBits(kTtcc, 8191, 0, 32, 0x11112222);
    setBits(kTrcc, 8191, 0, 32, 0x33334444);
    // Drop count 0x1234; frame discard state (17) off, the new-frame (16) and partial (18) states on.
    setFields(kBmPvcSta, 8191, {{0, 64, ~0ull}, {0, 16, 0x1234}, {17, 1, 0}});
    setBits(kBmFifoSta, 335, 0, 16, 0xABCD);
    setFields(kOamSt, 8191, {{0, 27, 0x7FFFFFF}, {8, 8, 0x5A}, {16, 4, 0x9}});
    uint32_t tt = 0, tr = 0, tt2 = 9, tr2 = 9;
    uint16_t drop = 0, drop2 = 9, portDrop = 0, timer = 0, cc = 0;
    uint8_t all5 = 0, fd = 9, pfd = 0;
    EXPECT_EQ((V32{VQ6192_ATM_GetAtmVcsStat(kChip, 8191, &tt, &tr),
                   VQ6192_ATM_GetAtmVcxDropStat(kChip, 8191, &drop),
                   VQ6192_ATM_GetVcxDropInfo(kChip, 8191, &all5, &fd, &pfd),
                   VQ6192_ATM_GetAtmVcxDropStat(kChip, 8191, &drop2),
                   VQ6192_ATM_GetAtmPortDropStat(kChip, 335, &portDrop),
                   VQ6192_ATM_GetAtmCcSrcStat(kChip, 8191, &timer, &cc),
                   VQ6192_ATM_GetAtmVcsStat(kChip, 8191, &tt2, &tr2)}),
              V32(7, 0));
    // The drop and connection counters clear when read.
    EXPECT_EQ((V{tt, tr, drop, all5, fd, pfd, drop2, portDrop, timer, cc, tt2, tr2}),
              (V{0x11112222, 0x33334444, 0x1234, 1, 0, 1, 0, 0xABCD, 0x9, 0x5A, 0, 0}));
    model.clearTrace();
    EXPECT_EQ((V32{VQ6192_ATM_GetAtmVcsStat(kChip, 8192, &tt, &tr),
                   VQ6192_ATM_GetAtmPortDropStat(kChip, 336, &drop),
                   VQ6192_ATM_GetAtmCcSrcStat(kChip, 8193, &timer, &cc)}),
              V32(3, kPara));
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(StatsTest, ChipWideCountersInRecordOrder) {
    const uint32_t dropRegs[21] = {0xA400, 0xA402, 0xA404, 0xA406, 0xA416, 0xA418, 0xA40A,
                                   0xA40C, 0xA40E, 0xA410, 0xA412, 0xA408, 0xA41A, 0xA268,
                                   0xA26A, 0xA2C8, 0xA2C6, 0xA2C4, 0xA2C2, 0xA2F2, 0xA2F4};
    for (uint32_t k = 0; k < 21; ++k) {
        model.poke(dropRegs[k], static_cast<uint16_t>(0x100 + k));
    }
    ATM_DROP_STAT d{};
    ASSERT_EQ(VQ6192_ATM_GetAtmDropStat(kChip, &d), 0u);
    const uint16_t *dv = &d.wRedDrop;
    for (uint32_t k = 0; k < 21; ++k) {
        EXPECT_EQ(dv[k], 0x100 + k) << k;
    }
    const uint32_t oamRegs[13] = {0xA288, 0xA302, 0xA304, 0xA286, 0xA288, 0xA264, 0xA266,
                                  0xA414, 0xA26C, 0xA26E, 0xA28C, 0xA28E, 0xA310};
    for (uint32_t k = 0; k < 13; ++k) {
        model.poke(oamRegs[k], static_cast<uint16_t>(0x200 + k));
    }
    model.poke(0xA286, 0xFFFE);  // capture count: bits 0..1 only
    ATM_OAM_STAT o{};
    model.clearTrace();
    ASSERT_EQ(VQ6192_ATM_GetAtmOamStat(kChip, &o), 0u);
    // wOamMin and wOamInNum: the same register, read again.
    EXPECT_EQ((V{o.wOamMin, o.wOamInNum, o.wOamCapNum, o.wOamCapRx, o.wOamDrop, o.wCapltInc}),
              (V{0x204, 0x204, 2, 0x201, 0x207, 0x20C}));
    EXPECT_EQ(model.trace().size(), 13u) << "thirteen reads";
    const uint32_t qmRegs[6][2] = {{0xA520, 0xA522}, {0xA540, 0xA542}, {0xA560, 0xA562},
                                   {0xA580, 0xA582}, {0xA5A0, 0xA5A2}, {0xA500, 0xA502}};
    for (uint32_t k = 0; k < 6; ++k) {
        model.poke(qmRegs[k][0], static_cast<uint16_t>(0xFFF8 | k));
        model.poke(qmRegs[k][1], static_cast<uint16_t>(0x1000 * k + 1));
    }
    ATM_QM_DATA_STAT q{};
    ASSERT_EQ(VQ6192_ATM_GetAtmQmDataStat(kChip, &q), 0u);
    EXPECT_EQ((V{q.dwCbrData, q.dwNrtVbrData, q.dwGlobalData}), (V{0x00001, 0x22001, 0x55001}));
    poke({{0xA270, 1}, {0xA272, 2}, {0xA2F0, 3}, {0xA2EE, 4}});
    ATM_POLICING_STAT p{};
    ASSERT_EQ(VQ6192_ATM_GetAtmPolicingStat(kChip, &p), 0u);
    EXPECT_EQ(p.wPolDropRx * 1000 + p.wPolDropTx * 100 + p.wPolTagRx * 10 + p.wPolTagTx, 1234);
}

TEST_F(StatsTest, AlarmsDeleteStatusAndQueueLength) {
    poke({{0xA306, 0x1111}, {0xA30A, 0x2222}, {0xA30C, 0x3333}, {0xA294, 0xFFFE}, {0xA296, 0x0001}});
    model.tables().holdBusy(kAtmBlock, 2);  // the table RAM busy bit, read by both alarms
    uint16_t ov[3] = {}, sw[3] = {}, busy = 0;
    ASSERT_EQ((V32{VQ6192_ATM_GetAtmFifoOverflow(kChip, ov), VQ6192_ATM_GetAtmSwAlarm(kChip, sw),
                   VQ6192_ATM_GetAtmTabRamBusy(kChip, &busy)}),
              V32(3, 0));
    EXPECT_EQ((V{ov[0], ov[1], ov[2], sw[0], sw[1], sw[2], busy}), (V{0x1111, 0x2222, 0x3333, 0, 1, 1, 1}));
    // The status field reads 3 once the chip has deleted the queue a delete command named.
    using Case = std::tuple<uint16_t, bool, uint8_t, uint8_t, uint16_t>;
    for (const auto &[stored, deleted, wantDel, wantType, wantPort] :
         {Case{0x1E00 | 0x1FF, true, 1, 0xF, 0x1FF}, Case{0x0200 | 5, false, 0, 1, 5},
          Case{0x0400 | 0x150, true, 1, 2, 0x150}, Case{0xC000, false, 0, 0, 0}}) {
        SCOPED_TRACE(stored);
        model.busWrite(0xA860, deleted ? 0xC000 : 0);
        model.poke(0xA862, stored);
        uint8_t del = 9, type = 99;
        uint16_t port = 999;
        ASSERT_EQ(VQ6192_ATM_GetVpcDelAck(kChip, &del, &type, &port), 0u);
        EXPECT_EQ((V{del, type, port}), (V{wantDel, wantType, wantPort}));
    }
    // Queue-length reads 200 ticks apart.
    atm().setQueueLength(70, 0x1234, vq6192::sim::AtmBlock::kForever);
    for (uint32_t n : {0u, 1u, 3u}) {
        VQ6192_Platform_ResetVirtualTime();
        uint32_t len = 99;
        ASSERT_EQ(VQ6192_Read_QMLEN(kChip, 70, n, &len), 0u);
        EXPECT_EQ(len, n == 0 ? 0u : 0x1234u);
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(),
                  (n == 0 ? 0 : n - 1) * 200ull * VQ6192_Platform_GetTickUs());
    }
}

TEST_F(StatsTest, CellCapture) {
    struct Case {
        const char *name;
        uint32_t mode, index, matchVci, vpi, vci;
        uint32_t side;
        // register, value after the capture
        std::vector<std::pair<uint32_t, uint16_t>> regs;
    };
    // clang-format off
    const Case cases[] = {
        {"line by VCX", 0, 0x1ABC, 0, 0, 0, 0, {{0xA2DE, 0xC000 | 0x1ABC}, {0xA2DC, 0xFDFF}}},
        {"line by port, VPI and VCI", 1, 335, 1, 4095, 0xBEEF, 0,
         {{0xA2DC, 0xF800 | 0x400 | 335}, {0xA2D8, 0xFFFF}, {0xA2DA, 0xBEEF}, {0xA2DE, 0xDFFF}}},
        {"system by VCX", 2, 2047, 0, 0, 0, 1, {{0xA2E6, 0xC000 | 2047}, {0xA2E4, 0xF7FF}}},
        {"system by PW, VPI only", 3, 1234, 0, 0x123, 7, 1,
         {{0xA2E4, 0xE000 | 1234}, {0xA2E0, 0xF123}, {0xA2E2, 7}, {0xA2E6, 0xDFFF}}},
    };
    // clang-format on
    for (const Case &k : cases) {
        SCOPED_TRACE(k.name);
        startsCleared();
        AtmPwe3Block::Cell cell{};
        for (size_t i = 0; i < cell.size(); ++i) {
            cell[i] = static_cast<uint8_t>(i * 3 + k.mode);
        }
        pwe3().queueCell(k.side, cell);
        VQ6192_Platform_ResetVirtualTime();
        uint8_t out[64] = {};
        ASSERT_EQ(VQ6192_ATM_CaptureAtmCell(kChip, out, k.mode, k.index, k.matchVci, k.vpi, k.vci), 0u);
        EXPECT_EQ(std::vector<uint8_t>(out, out + 64), std::vector<uint8_t>(cell.begin(), cell.end()));
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 0u) << "captured at the first poll";
        for (const auto &[reg, value] : k.regs) {
            EXPECT_EQ(model.peek(reg), value) << std::hex << reg;
        }
    }

    // No cell on the side polled, and refusals.
    AtmPwe3Block::Cell cell{};
    cell[0] = 0x42;
    pwe3().queueCell(0, cell);  // waits on the other side
    VQ6192_Platform_ResetVirtualTime();
    uint8_t out[64] = {};
    EXPECT_EQ(VQ6192_ATM_CaptureAtmCell(kChip, out, 3, 1, 0, 0, 0), kPara);
    // Six polls 1000 ticks apart, the start bit dropped, the line FIFO not touched.
    EXPECT_EQ((V{VQ6192_Platform_GetVirtualTimeUs(), model.peek(0xA2E4) & 0x0800u, pwe3().fifoWords(0)}),
              (V{6 * 1000ull * VQ6192_Platform_GetTickUs(), 0, 16}));
    ASSERT_EQ(VQ6192_ATM_CaptureAtmLcapCell(kChip, out), 0u);
    EXPECT_EQ((V{out[0], pwe3().fifoWords(0)}), (V{0x42, 0}));

    using Bad = std::tuple<uint32_t, uint32_t, uint32_t, uint32_t, bool>;
    model.clearTrace();
    for (const auto &[mode, index, matchVci, vpi, paraErr] :
         {Bad{0, 8193, 0, 0, true}, Bad{1, 336, 0, 0, true}, Bad{2, 2048, 0, 0, true},
          Bad{3, 2048, 0, 0, true}, Bad{1, 1, 1, 4096, true}, Bad{3, 1, 2, 0, true},
          Bad{4, 0, 0, 0, false}}) {
        capture.clear();
        EXPECT_EQ(VQ6192_ATM_CaptureAtmCell(kChip, out, mode, index, matchVci, vpi, 0), kPara);
        EXPECT_EQ(traced("ParaErr. \r\n"), paraErr);
    }
    EXPECT_TRUE(model.trace().empty());
}

}  // namespace
