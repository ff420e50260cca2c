// ATM ports, queues and module start: transparent ports, the line-port loop, the queue-delete
// handshake, the port queue rate, the table and FIFO clears and the start sequence.
#include <tuple>

#include "atm/atm_fixture.h"
#include "vq6192/platform.h"

namespace {

using namespace atmtest;
using vq6192::sim::AtmBlock;
using vq6192::sim::BusAccess;

using RegWrite = std::pair<uint32_t, uint32_t>;

class PortTest : public AtmTest {
  protected:
    // Register writes outside the table-access block: (address, register value written).
    std::vector<RegWrite> regWrites() {
        std::vector<RegWrite> out;
        for (const BusAccess &a : vqtest::writes(model.trace())) {
            if (a.addr >= 0xA008 && !(a.addr >= 0xA020 && a.addr < 0xA054)) {
                out.push_back({a.addr, a.value});
            }
        }
        return out;
    }
    void prefillPort(uint32_t line, uint32_t sys) {
        fillEntry(kLinkQm, 8192 + line, 46);
        fillEntry(kBmFifo, line, 64);
        fillEntry(kLpct, line, 15);
        fillEntry(kSpct, sys, 12);
    }
};

TEST_F(PortTest, TransparentPorts) {
    prefillPort(335, 2047);
    const uint32_t th[3] = {0x7FFFF, 0x12345, 0x1};
    ASSERT_EQ(VQ6192_ATM_AddAtmTransConn(kChip, 335, 2047, th), 0u);
    EXPECT_EQ(bits(kLinkQm, 8192 + 335, 0, 46), (((1ull << 46) - 1) & ~(0x3FFull << 16)) | 335ull << 16)
        << "port bound, not deleted";
    // Drop, pause cancel, pause; the bits above kept.
    EXPECT_EQ((fields(kBmFifo, 335, {{0, 19}, {19, 19}, {38, 19}, {57, 7}})),
              (V{0x1, 0x12345, 0x7FFFF, 0x7F}));
    EXPECT_EQ(bits(kLpct, 335, 0, 15), 2047u << 4 | 0xDu);  // transparent, no loop, NNI kept, enabled
    EXPECT_EQ(bits(kSpct, 2047, 0, 12), 335u << 3 | 0x7u);
    uint8_t map = 0, map2 = 0;
    uint16_t peer = 0, peer2 = 0;
    EXPECT_EQ((V32{VQ6192_ATM_GetAtmTransConnSingle(kChip, 335, 0, &map, &peer),
                   VQ6192_ATM_GetAtmTransConnSingle(kChip, 2047, 1, &map2, &peer2)}),
              (V32{0, 0}));
    EXPECT_EQ((V{map, peer, map2, peer2}), (V{1, 2047, 1, 335}));

    ASSERT_EQ(VQ6192_ATM_DelAtmTransConn(kChip, 335, 2047), 0u);
    // Attributes kept, thresholds cleared.
    EXPECT_EQ((V{bits(kLpct, 335, 0, 15), bits(kSpct, 2047, 0, 12), bits(kBmFifo, 335, 0, 64)}),
              (V{0x4, 0x2, 0x7Full << 57}));
    EXPECT_EQ(atm().deletes(), (std::vector<AtmBlock::QueueDelete>{{335, true}}));
    EXPECT_EQ(bits(kLinkQm, 8192 + 335, 0, 25), 0u);

    // Refusals.
    const uint32_t good[3] = {1, 2, 3};
    const uint32_t over[3][3] = {{0x80000, 0, 0}, {0, 0x80000, 0}, {0, 0, 0x80000}};
    const std::tuple<const char *, uint32_t, uint32_t, const uint32_t *> cases[] = {
        {"line port 336", 336, 0, good}, {"system port 2048", 0, 2048, good},
        {"pause", 0, 0, over[0]},        {"cancel", 0, 0, over[1]},
        {"drop", 0, 0, over[2]},
    };
    for (const auto &[name, line, sys, th] : cases) {
        SCOPED_TRACE(name);
        model.clearTrace();
        EXPECT_EQ(VQ6192_ATM_AddAtmTransConn(kChip, line, sys, th), kPara);
        EXPECT_EQ(VQ6192_ATM_SetAtmPortLoopMode(kChip, line, sys == 2048 ? nullptr : th), kPara);
        EXPECT_TRUE(model.trace().empty());
    }
    model.clearTrace();
    EXPECT_EQ(
        (V32{VQ6192_ATM_AddAtmTransConnSingle(kChip, 1, 2, 2, good),
             VQ6192_ATM_AddAtmTransConnSingle(kChip, 2047, 336, 1, good),
             VQ6192_ATM_AddAtmTransConnSingle(kChip, 2047, 1, 1, over[2]),
             VQ6192_ATM_DelAtmTransConnSingle(kChip, 336, 0), VQ6192_ATM_DelAtmTransConn(kChip, 1, 2048)}),
        V32(5, kPara));
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(PortTest, OneSidedTransparentPortsAndLineLoop) {
    prefillPort(7, 900);
    const uint32_t th[3] = {10, 20, 30};
    ASSERT_EQ(VQ6192_ATM_AddAtmTransConnSingle(kChip, 7, 900, 0, th), 0u);
    EXPECT_EQ(bits(kLpct, 7, 0, 15), 900u << 4 | 0xDu);
    EXPECT_EQ(bits(kBmFifo, 7, 0, 57), (1ull << 57) - 1) << "line side leaves the thresholds";
    ASSERT_EQ(VQ6192_ATM_AddAtmTransConnSingle(kChip, 900, 7, 1, th), 0u);
    // System side: thresholds written, the port queue bound and not deleted.
    EXPECT_EQ((V{bits(kSpct, 900, 0, 12), bits(kBmFifo, 7, 0, 57), bits(kLinkQm, 8192 + 7, 16, 10)}),
              (V{7u << 3 | 0x7u, 10ull << 38 | 20ull << 19 | 30u, 7}));

    ASSERT_EQ(VQ6192_ATM_DelAtmTransConnSingle(kChip, 900, 1), 0u);
    EXPECT_EQ((V{bits(kSpct, 900, 0, 12), bits(kBmFifo, 7, 0, 57)}), (V{0x2, 0}));
    EXPECT_EQ(atm().deletes(), (std::vector<AtmBlock::QueueDelete>{{7, true}}));
    ASSERT_EQ(VQ6192_ATM_DelAtmTransConnSingle(kChip, 7, 0), 0u);
    EXPECT_EQ(bits(kLpct, 7, 0, 15), 0x4u);
    // A flush that is never acknowledged keeps the thresholds.
    prefillPort(3, 4);
    atm().setDeleteAckPolls(AtmBlock::kForever);
    EXPECT_EQ(VQ6192_ATM_DelAtmTransConn(kChip, 3, 4), kPara);
    EXPECT_EQ(bits(kBmFifo, 3, 0, 57), (1ull << 57) - 1);

    // The line-port loop.
    atm().setDeleteAckPolls(0);
    prefillPort(20, 0);
    setBits(kLpct, 20, 1, 1, 0);
    setBits(kLpct, 20, 3, 1, 0);
    ASSERT_EQ(VQ6192_ATM_SetAtmPortLoopMode(kChip, 20, th), 0u);
    EXPECT_EQ((V{bits(kLpct, 20, 0, 15), bits(kBmFifo, 20, 0, 57)}),
              (V{0x7FFF, 10ull << 38 | 20ull << 19 | 30u}));
    uint8_t loop = 0;
    EXPECT_EQ((V{VQ6192_ATM_GetAtmPortLoopMode(kChip, 20, &loop), loop}), (V{0, 1}));
    ASSERT_EQ(VQ6192_ATM_DelAtmPortLoopMode(kChip, 20), 0u);
    EXPECT_EQ((V{bits(kLpct, 20, 0, 15), bits(kBmFifo, 20, 0, 57)}), (V{0x7FF5, 0}));
    EXPECT_EQ(atm().deletes().back(), (AtmBlock::QueueDelete{20, true}));
}

TEST_F(PortTest, PortEnablesAndAttributes) {
    fillEntry(kLpct, 335, 15);
    fillEntry(kSpct, 2047, 12);
    using Case = std::tuple<uint32_t, uint32_t, uint32_t, uint32_t, uint64_t>;
    for (const auto &[port, side, bit, sel, all] :
         {Case{335, 0, 3, kLpct, 0x7FFF}, Case{2047, 1, 2, kSpct, 0xFFF}}) {
        ASSERT_EQ(VQ6192_ATM_SetAtmPortEn(kChip, port, side, 0), 0u);
        EXPECT_EQ(bits(sel, port, 0, 16), all & ~(1ull << bit));
        uint8_t en = 1;
        EXPECT_EQ((V{VQ6192_ATM_GetAtmPortEnStat(kChip, port, side, &en), en}), (V{0, 0}));
        ASSERT_EQ(VQ6192_ATM_SetAtmPortType(kChip, port, side, 0), 0u);
        const uint32_t attr = side == 0 ? 2 : 1;
        EXPECT_EQ(bits(sel, port, 0, 16), all & ~(1ull << bit) & ~(1ull << attr));
    }
    model.clearTrace();
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_SetAtmPortEn(kChip, 1, 2, 1), kPara);
    EXPECT_TRUE(capture.traceTexts().empty()) << "side 2 is refused without a trace";
    EXPECT_EQ((V32{VQ6192_ATM_SetAtmPortEn(kChip, 336, 0, 1), VQ6192_ATM_SetAtmPortEn(kChip, 1, 3, 1),
                   VQ6192_ATM_SetAtmPortType(kChip, 2048, 1, 1), VQ6192_ATM_SetAtmPortType(kChip, 1, 2, 1)}),
              V32(4, kPara));
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(PortTest, QueueDeleteHandshake) {
    const std::tuple<const char *, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint64_t, bool> cases[] =
        {
            {"port queue, at once", 5, 0, 8197, 0, 0, 2, true},
            {"connection queue after 9 polls", 8191, 1, 8191, 9, 0, 20, true},
            {"never acknowledged", 12, 1, 12, AtmBlock::kForever, kPara, 2000, false},
        };
    for (const auto &[name, index, kind, entry, ackPolls, status, waitedUs, rewritten] : cases) {
        SCOPED_TRACE(name);
        fillEntry(kLinkQm, entry, 46);
        model.poke(0xA860, 0);
        atm().setDeleteAckPolls(ackPolls);
        model.clearTrace();
        VQ6192_Platform_ResetVirtualTime();
        EXPECT_EQ(VQ6192_ATM_DelAtmBwdQm(kChip, index, kind), status);
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), waitedUs);
        const uint32_t queue = index & 0x1FFFu;
        const uint32_t kindBit = kind == 0 ? 0x2000u : 0u;
        std::vector<RegWrite> expect = {
            {0xA860, 0}, {0xA860, queue}, {0xA860, queue | kindBit}, {0xA860, 0xC000u | queue | kindBit}};
        if (rewritten) {
            expect.push_back({0xA860, queue | kindBit});
        }
        EXPECT_EQ(regWrites(), expect);
        EXPECT_EQ(bits(kLinkQm, entry, 0, 25), rewritten ? 0u : 0x1FFFFFFu);
        EXPECT_EQ(bits(kLinkQm, entry, 25, 21), 0x1FFFFFu) << "state, busy bit and length kept";
    }
    model.clearTrace();
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_DelAtmBwdQm(kChip, 1, 2), kPara);
    EXPECT_TRUE(traced("Err. VQ6192_ATM_DelAtmBwdQm: Config is error! ChipID: 0x3\r\n"));
    EXPECT_EQ(regWrites(), (std::vector<RegWrite>{{0xA860, 0x000C}})) << "the standing command is cleared";
    model.clearTrace();
    EXPECT_EQ((V32{VQ6192_ATM_DelAtmBwdQm(kChip, 336, 0), VQ6192_ATM_DelAtmBwdQm(kChip, 8193, 1)}),
              V32(2, kPara));
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(PortTest, PortQueueRates) {
    const std::tuple<const char *, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t, uint32_t> cases[] = {
        {"VC-4 transparent", 0, 1, 0, 1, 64, 168},
        {"UNI, 31 timeslots", 0, 0xFFFFFFFE, 0, 2, 4857, 3},
        {"UNI, 1 timeslot", 0, 0x10, 3, 2, 150568, 3},
        {"IMA of 8 links, frame 64, 31 timeslots", 8, 0xFFFFFFFE, 1, 3, 4936, 24},
        {"IMA of 100 links, frame 32, 1 timeslot", 100, 1, 0, 3, 155500, 44},
        {"IMA, frame 256, 24 timeslots", 4, 0x00FFFFFF, 3, 3, 6301, 12},
    };
    for (const auto &[name, links, ts, lenCode, mode, period, threshold] : cases) {
        SCOPED_TRACE(name);
        fillEntry(kPortQm, 9, 38);
        ASSERT_EQ(VQ6192_ATM_SetAtmImaQmTm(kChip, 9, links, ts, lenCode, mode), 0u);
        EXPECT_EQ((fields(kPortQm, 9, {{0, 18}, {18, 8}, {26, 12}})), (V{period, threshold, 0xFFF}));
        uint16_t th = 0;
        uint32_t back = 0;
        EXPECT_EQ((V{VQ6192_ATM_GetAtmImaQm(kChip, 9, &th, &back), th, back}), (V{0, threshold, period}));
    }
    model.clearTrace();
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_SetAtmImaQmTm(kChip, 9, 1, 0, 0, 2), kPara);
    EXPECT_TRUE(capture.traceTexts().empty()) << "no timeslot: no trace";
    EXPECT_EQ(
        (V32{VQ6192_ATM_SetAtmImaQmTm(kChip, 9, 1, 1, 0, 0), VQ6192_ATM_SetAtmImaQmTm(kChip, 9, 1, 1, 4, 1),
             VQ6192_ATM_SetAtmImaQmTm(kChip, 336, 1, 1, 0, 1), VQ6192_ATM_SetAtmImaQm(kChip, 9, 1024, 1)}),
        V32(4, kPara));
    EXPECT_TRUE(model.trace().empty());
    ASSERT_EQ(VQ6192_ATM_SetAtmImaQm(kChip, 9, 1023, 0x7FFFF), 0u);
    EXPECT_EQ(bits(kPortQm, 9, 0, 26), 0xFFull << 18 | 0x3FFFFu);
}

TEST_F(PortTest, TableAndFifoClears) {
    // Selector, enable, register after: one bit per table, 5 all five.
    const uint32_t clears[][3] = {{1, 1, 0xFFE7}, {2, 0, 0xFFE3}, {5, 1, 0xFFFF}, {5, 0, 0xFFE0}};
    model.poke(0xA008, 0xFFE5);
    for (const auto &c : clears) {
        ASSERT_EQ(VQ6192_ATM_SetAtmTabClr(kChip, c[0], c[1]), 0u);
        EXPECT_EQ(model.peek(0xA008), c[2]) << c[0] << "/" << c[1];
    }
    model.clearTrace();
    EXPECT_EQ((V32{VQ6192_ATM_SetAtmTabClr(kChip, 6, 1), VQ6192_ATM_SetAtmTabClr(kChip, 0, 2),
                   VQ6192_ATM_SetOamFifoClear(kChip, 2)}),
              V32(3, kPara));
    EXPECT_TRUE(model.trace().empty());

    model.poke(0xA2CA, 0xF000);
    ASSERT_EQ(VQ6192_ATM_SetAtmFifoClear(kChip), 0u);
    std::vector<RegWrite> expect;
    for (int bit = 11; bit >= 0; --bit) {
        for (uint32_t v : {0u, 1u, 0u}) {
            expect.push_back({0xA2CA, 0xF000u | v << bit});
        }
    }
    EXPECT_EQ(regWrites(), expect) << "one pulse per FIFO, bit 11 first, the high bits kept";
    ASSERT_EQ(VQ6192_ATM_SetOamFifoClear(kChip, 1), 0u);
    ASSERT_EQ(VQ6192_ATM_SetOamFifoClear(kChip, 0), 0u);
    ASSERT_EQ(VQ6192_ATM_SetOamCapFifoClear(kChip), 0u);
    EXPECT_EQ(atm().clearPulses(0), 2u) << "insertion FIFO";
    EXPECT_EQ(atm().clearPulses(1), 3u) << "report FIFO";
}

TEST_F(PortTest, ModuleStart) {
    VQ6192_Platform_ResetVirtualTime();
    ASSERT_EQ(VQ6192_ATM_InitAtm(kChip, 1), 0u);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 0u) << "the start sequence does not wait";
    const std::vector<RegWrite> expect = {
        {0xA008, 0x1F},   {0xA420, 0x7}, {0xA422, 0xFC00}, {0xA440, 0x2}, {0xA442, 0x0000}, {0xA460, 0x1},
        {0xA462, 0x0000}, {0xA480, 0x1}, {0xA482, 0x0000}, {0xA4A0, 0x1}, {0xA4A2, 0x0000}, {0xA4C0, 0x0},
        {0xA4C2, 0xEBFF}, {0xA4E0, 0x0}, {0xA4E2, 0x1001}, {0xA2E8, 32},  {0xA2C0, 1},
    };
    EXPECT_EQ(regWrites(), expect);
    EXPECT_EQ(capture.traceTexts(),
              (std::vector<std::string>{
                  "Err. VQ6192_ATM_InitAtm: initializtion tables clr set! ChipID: 0x3\r\n",
                  "Err. VQ6192_ATM_InitAtm: initializtion BM drop limit! ChipID: 0x3\r\n",
                  "Err. VQ6192_ATM_InitAtm: initializtion Ingress ATM to PWE3 times! ChipID: 0x3\r\n",
                  "Err. VQ6192_ATM_InitAtm: initializtion CRC Enable! ChipID: 0x3\r\n",
              }));
    uint32_t limits[7] = {};
    ASSERT_EQ(VQ6192_ATM_GetAtmBmReg(kChip, limits), 0u);
    EXPECT_EQ(V32(limits, limits + 7), (V32{0x7FC00, 0x20000, 0x10000, 0x10000, 0x10000, 0xEBFF, 0x1001}));
    model.clearTrace();
    EXPECT_EQ((V32{VQ6192_ATM_InitAtm(kChip, 2), VQ6192_ATM_InitAtm(kChip, 0), VQ6192_ATM_InitAtm(kChip, 3)}),
              (V32{0, kPara, kPara}));
    EXPECT_TRUE(model.trace().empty());
}

}  // namespace
