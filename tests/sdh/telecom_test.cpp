// Telecom bus controls, alarms and counters.
#include <functional>

#include "support/test_support.h"
#include "vq6192/sdh.h"
#include "vq6192/sim/telecom.h"

namespace {

using vqtest::ChipTest;

constexpr uint32_t kParaErr = 0x03080001;

using TelecomTest = ChipTest;

// Each setter writes its field into a register whose other bits are set, and its getter reads it back.
TEST_F(TelecomTest, ControlsWriteOnlyTheirField) {
    struct Case {
        const char *name;
        std::function<uint32_t(uint32_t)> set;
        std::function<uint32_t(uint16_t *)> get;
        uint32_t reg;
        uint32_t bit;
        uint32_t width;
        uint32_t value;
    };
    const Case cases[] = {
        {"fifo read", [](uint32_t x) { return VQ6192_Telecom_SetFpFifoRead(3, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetFpFifoRead(3, o); }, 0x22002, 0, 4, 11},
        {"jitter msk", [](uint32_t x) { return VQ6192_Telecom_SetFpJitterMsk(3, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetFpJitterMsk(3, o); }, 0x22004, 3, 1, 1},
        {"los msk", [](uint32_t x) { return VQ6192_Telecom_SetFpLosMsk(3, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetFpLosMsk(3, o); }, 0x22004, 2, 1, 1},
        {"fifo err msk", [](uint32_t x) { return VQ6192_Telecom_SetFpErrMsk(3, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetFpErrMsk(3, o); }, 0x22004, 1, 1, 1},
        {"clock loss msk", [](uint32_t x) { return VQ6192_Telecom_SetClkLocMsk(3, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetClkLocMsk(3, o); }, 0x22004, 0, 1, 1},
        {"global int msk", [](uint32_t x) { return VQ6192_Telecom_SetIntGlbMsk(3, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetIntGlbMsk(3, o); }, 0x22006, 1, 1, 1},
        {"port int msk", [](uint32_t x) { return VQ6192_Telecom_SetIntPortMsk(3, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetIntPortMsk(3, o); }, 0x22006, 0, 1, 1},
        {"receive clock edge", [](uint32_t x) { return VQ6192_Telecom_SetTeleClkEdge(3, 0, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetTeleClkEdge(3, 0, o); }, 0x22008, 2, 1, 1},
        {"edge type 1", [](uint32_t x) { return VQ6192_Telecom_SetTeleClkEdge(3, 1, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetTeleClkEdge(3, 1, o); }, 0x22008, 1, 1, 1},
        {"edge type 2", [](uint32_t x) { return VQ6192_Telecom_SetTeleClkEdge(3, 2, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetTeleClkEdge(3, 2, o); }, 0x22008, 0, 1, 1},
        {"port reset", [](uint32_t x) { return VQ6192_Telecom_SetRstPort(3, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetRstPort(3, o); }, 0x22200, 0, 1, 1},
        {"tx b2 insertion", [](uint32_t x) { return VQ6192_Telecom_SetTeleTxB2Ins(3, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetTeleTxB2Ins(3, o); }, 0x22204, 1, 1, 1},
        {"rx b2 mode", [](uint32_t x) { return VQ6192_Telecom_SetTeleRxB2Mod(3, x); },
         [](uint16_t *o) { return VQ6192_Telecom_GetTeleRxB2Mod(3, o); }, 0x22204, 0, 1, 1},
    };
    for (const Case &c : cases) {
        const uint16_t mask = static_cast<uint16_t>(((1u << c.width) - 1u) << c.bit);
        model.poke(c.reg, static_cast<uint16_t>(~mask));
        ASSERT_EQ(c.set(c.value), 0u) << c.name;
        EXPECT_EQ(model.peek(c.reg), static_cast<uint16_t>(~mask | (c.value << c.bit))) << c.name;
        uint16_t out = 0xEEEE;
        ASSERT_EQ(c.get(&out), 0u) << c.name;
        EXPECT_EQ(out, c.value) << c.name;
        model.setTrace(true);
        model.clearTrace();
        capture.clear();
        EXPECT_EQ(c.set(c.width == 4 ? 12 : 2), kParaErr) << c.name;
        EXPECT_TRUE(model.trace().empty()) << c.name;
        EXPECT_EQ(capture.traceTexts(), std::vector<std::string>{"ParaErr.\r\n"}) << c.name;
        EXPECT_EQ(c.get(nullptr), kParaErr) << c.name;
        model.setTrace(false);
    }
    // The global reset takes any value and writes its bit 0.
    model.poke(0x22000, 0xFFFE);
    EXPECT_EQ(VQ6192_Telecom_SetTeleRst(kChip, 0x13), 0u);
    EXPECT_EQ(model.peek(0x22000), 0xFFFF);
    EXPECT_EQ(VQ6192_Telecom_SetTeleRst(kChip, 2), 0u);
    EXPECT_EQ(model.peek(0x22000), 0xFFFE);
    uint8_t rst = 9;
    ASSERT_EQ(VQ6192_Telecom_GetTeleRst(kChip, &rst), 0u);
    EXPECT_EQ(rst, 0);
    EXPECT_EQ(VQ6192_Telecom_SetTeleClkEdge(kChip, 3, 0), kParaErr);
}

TEST_F(TelecomTest, PerPortInterruptMasks) {
    // FIFO error and C1 masks change only the port's bit.
    model.poke(0x22206, 0xB0B3);
    ASSERT_EQ(VQ6192_Telecom_SetTeleRxFifoErrMsk(kChip, 2, 1), 0u);
    EXPECT_EQ(model.peek(0x22206), 0xF0B3);
    ASSERT_EQ(VQ6192_Telecom_SetTeleRxC1ErrMsk(kChip, 2, 1), 0u);
    EXPECT_EQ(model.peek(0x22206), 0xF0F3);
    ASSERT_EQ(VQ6192_Telecom_SetTeleRxC1ErrMsk(kChip, 0, 0), 0u);
    EXPECT_EQ(model.peek(0x22206), 0xF0E3);
    // The B2 overflow masks: all four cleared, then the port's bit.
    for (uint16_t before : {uint16_t{0x0F00}, uint16_t{0x0B00}, uint16_t{0x0000}}) {
        model.poke(0x22206, static_cast<uint16_t>(0xF0F3 | before));
        ASSERT_EQ(VQ6192_Telecom_SetTeleRxB2OFMsk(kChip, 2, 1), 0u);
        EXPECT_EQ(model.peek(0x22206), 0xF4F3) << before;
    }
    // C1/J1/SPE all-zeros/all-ones masks: one bit per pair of VC-4s.
    model.poke(0x22206, 0xFFFD);
    ASSERT_EQ(VQ6192_Telecom_SetTeleRxC1J1AllMsk(kChip, 1, 1), 0u);
    EXPECT_EQ(model.peek(0x22206), 0xFFFF);
    uint8_t m = 9;
    ASSERT_EQ(VQ6192_Telecom_GetTeleRxB2OFMsk(kChip, 2, &m), 0u);
    EXPECT_EQ(m, 1);
    ASSERT_EQ(VQ6192_Telecom_GetTeleRxFifoErrMsk(kChip, 3, &m), 0u);
    EXPECT_EQ(m, 1);
    EXPECT_EQ(VQ6192_Telecom_SetTeleRxC1J1AllMsk(kChip, 2, 1), kParaErr);
    EXPECT_EQ(VQ6192_Telecom_SetTeleRxFifoErrMsk(kChip, 4, 1), kParaErr);
    EXPECT_EQ(VQ6192_Telecom_SetTeleRxB2OFMsk(kChip, 4, 1), kParaErr);
    EXPECT_EQ(model.peek(0x22206), 0xFFFF);
}

TEST_F(TelecomTest, FramePulseAndPortAlarms) {
    model.poke(0x22010, 0xFFF5);  // jitter and fifo error set
    model.poke(0x22020, 0x000A);
    uint8_t j, l, f, c;
    ASSERT_EQ(VQ6192_Telecom_GetTeleFpLos(kChip, &j, &l, &f, &c), 0u);
    EXPECT_EQ(std::vector<int>({j, l, f, c}), std::vector<int>({0, 1, 0, 1}));
    ASSERT_EQ(VQ6192_Telecom_GetTeleFpLosHis(kChip, &j, &l, &f, &c), 0u);
    EXPECT_EQ(std::vector<int>({j, l, f, c}), std::vector<int>({1, 0, 1, 0}));
    model.poke(0x22012, 0xFFE5);
    uint16_t dis = 0;
    ASSERT_EQ(VQ6192_Telecom_GetTeleFpDisvalue(kChip, &dis), 0u);
    EXPECT_EQ(dis, 0x25);

    // Port p: FIFO error bit 12 + p, B2 overflow 8 + p, C1 4 + p, C1/J1/SPE p (ports 0 and 1 only).
    struct Case {
        uint32_t port;
        uint16_t reg;
        std::vector<int> flags;
    };
    const Case cases[] = {
        {3, 0x8880, {1, 1, 1, 0}}, {3, 0x777F, {0, 0, 0, 0}}, {0, 0x1011, {1, 0, 1, 1}},
        {1, 0x0202, {0, 1, 0, 1}}, {2, 0xFFFF, {1, 1, 1, 0}},
    };
    for (const Case &k : cases) {
        model.poke(0x22210, k.reg);
        model.poke(0x22220, static_cast<uint16_t>(~k.reg));
        uint8_t a = 9, b = 9, d = 9, e = 9;
        ASSERT_EQ(VQ6192_Telecom_GetB2C1j1speErr(kChip, k.port, &a, &b, &d, &e), 0u);
        EXPECT_EQ(std::vector<int>({a, b, d, e}), k.flags) << k.port << " " << k.reg;
        ASSERT_EQ(VQ6192_Telecom_GetB2C1j1speErrHis(kChip, k.port, &a, &b, &d, &e), 0u);
        EXPECT_EQ(a, 1 - k.flags[0]);
        EXPECT_EQ(e, k.port < 2 ? 1 - k.flags[3] : 0);
    }
    // A port above 3 is refused without a trace line.
    capture.clear();
    uint8_t a, b, d, e;
    EXPECT_EQ(VQ6192_Telecom_GetB2C1j1speErr(kChip, 4, &a, &b, &d, &e), kParaErr);
    EXPECT_EQ(VQ6192_Telecom_GetB2C1j1speErrHis(kChip, 4, &a, &b, &d, &e), kParaErr);
    EXPECT_TRUE(capture.traceTexts().empty());
}

TEST_F(TelecomTest, B2CountersClearWhenRead) {
    auto &bus = model.block<vq6192::sim::TelecomBus>();
    for (uint32_t port = 0; port < 4; ++port) {
        bus.setB2Count(port, static_cast<uint16_t>(0x1000 + port));
    }
    uint16_t count = 0;
    ASSERT_EQ(VQ6192_Telecom_GetTeleRxB2Cnt(kChip, 2, &count), 0u);
    EXPECT_EQ(count, 0x1002);
    ASSERT_EQ(VQ6192_Telecom_GetTeleRxB2Cnt(kChip, 2, &count), 0u);
    EXPECT_EQ(count, 0);
    ASSERT_EQ(VQ6192_Telecom_GetTeleRxB2Cnt(kChip, 3, &count), 0u);
    EXPECT_EQ(count, 0x1003);
    EXPECT_EQ(model.peek(0x22230), 0x1000);
    EXPECT_EQ(VQ6192_Telecom_GetTeleRxB2Cnt(kChip, 4, &count), kParaErr);
    EXPECT_EQ(VQ6192_Telecom_GetTeleRxB2Cnt(kChip, 0, nullptr), kParaErr);
    EXPECT_EQ(model.peek(0x22230), 0x1000);
}

}  // namespace
