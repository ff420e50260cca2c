// Telecom bus controls, alarms and counters.
#include "vq6192/sim/telecom.h"
#include "sdh/sdh_test.h"

namespace sdhtest {
namespace {

using TelecomTest = SdhTest;

// Each setter writes its field into a register whose other bits are set, its getter reads it back, and
// a value past the field or a missing output is refused.
TEST_F(TelecomTest, ControlsWriteOnlyTheirField) {
    using F = Field<uint16_t>;
    const std::vector<F> cases = {
        F{"fifo read", VQ6192_Telecom_SetFpFifoRead, VQ6192_Telecom_GetFpFifoRead, 0x22002, 0, 1, 0, 4, 11},
        F{"jitter msk", VQ6192_Telecom_SetFpJitterMsk, VQ6192_Telecom_GetFpJitterMsk, 0x22004, 0, 1, 3, 1, 1},
        F{"los msk", VQ6192_Telecom_SetFpLosMsk, VQ6192_Telecom_GetFpLosMsk, 0x22004, 0, 1, 2, 1, 1},
        F{"fifo err msk", VQ6192_Telecom_SetFpErrMsk, VQ6192_Telecom_GetFpErrMsk, 0x22004, 0, 1, 1, 1, 1},
        F{"clock loss msk", VQ6192_Telecom_SetClkLocMsk, VQ6192_Telecom_GetClkLocMsk, 0x22004, 0, 1, 0, 1, 1},
        F{"global int msk", VQ6192_Telecom_SetIntGlbMsk, VQ6192_Telecom_GetIntGlbMsk, 0x22006, 0, 1, 1, 1, 1},
        F{"port int msk", VQ6192_Telecom_SetIntPortMsk, VQ6192_Telecom_GetIntPortMsk, 0x22006, 0, 1, 0, 1, 1},
        F{"receive clock edge", [](uint32_t c, uint32_t x) { return VQ6192_Telecom_SetTeleClkEdge(c, 0, x); },
          [](uint32_t c, uint16_t *o) { return VQ6192_Telecom_GetTeleClkEdge(c, 0, o); }, 0x22008, 0, 1, 2, 1,
          1},
        F{"edge type 1", [](uint32_t c, uint32_t x) { return VQ6192_Telecom_SetTeleClkEdge(c, 1, x); },
          [](uint32_t c, uint16_t *o) { return VQ6192_Telecom_GetTeleClkEdge(c, 1, o); }, 0x22008, 0, 1, 1, 1,
          1},
        F{"edge type 2", [](uint32_t c, uint32_t x) { return VQ6192_Telecom_SetTeleClkEdge(c, 2, x); },
          [](uint32_t c, uint16_t *o) { return VQ6192_Telecom_GetTeleClkEdge(c, 2, o); }, 0x22008, 0, 1, 0, 1,
          1},
        F{"port reset", VQ6192_Telecom_SetRstPort, VQ6192_Telecom_GetRstPort, 0x22200, 0, 1, 0, 1, 1},
        F{"tx b2 insertion", VQ6192_Telecom_SetTeleTxB2Ins, VQ6192_Telecom_GetTeleTxB2Ins, 0x22204, 0, 1, 1,
          1, 1},
        F{"rx b2 mode", VQ6192_Telecom_SetTeleRxB2Mod, VQ6192_Telecom_GetTeleRxB2Mod, 0x22204, 0, 1, 0, 1, 1},
    };
    expectFields(cases);
    // A value past the field, and a clock edge type past 2, are refused.
    Calls refused;
    for (const F &c : cases) {
        refused.emplace_back(c.name, [&c] { return c.set(3, c.width == 4 ? 12 : 2); });
    }
    refused.emplace_back("edge type 3", [] { return VQ6192_Telecom_SetTeleClkEdge(3, 3, 0); });
    expectRefused(refused);
    // The global reset takes any value and writes its bit 0.
    model.poke(0x22000, 0xFFFE);
    uint8_t rst = 9;
    EXPECT_EQ((Ints{VQ6192_Telecom_SetTeleRst(kChip, 0x13), model.peek(0x22000),
                    VQ6192_Telecom_SetTeleRst(kChip, 2), model.peek(0x22000),
                    VQ6192_Telecom_GetTeleRst(kChip, &rst), rst}),
              ints(0, 0xFFFF, 0, 0xFFFE, 0, 0));
}

TEST_F(TelecomTest, PerPortInterruptMasks) {
    // FIFO error and C1 masks change only the port's bit; the B2 overflow masks clear all four, then set
    // the port's bit; C1/J1/SPE all-zeros/all-ones masks have one bit per pair of VC-4s.
    const struct {
        uint16_t before;
        std::function<uint32_t()> set;
        uint16_t after;
    } cases[] = {
        {0xB0B3, [] { return VQ6192_Telecom_SetTeleRxFifoErrMsk(3, 2, 1); }, 0xF0B3},
        {0xF0B3, [] { return VQ6192_Telecom_SetTeleRxC1ErrMsk(3, 2, 1); }, 0xF0F3},
        {0xF0F3, [] { return VQ6192_Telecom_SetTeleRxC1ErrMsk(3, 0, 0); }, 0xF0E3},
        {0xFFF3, [] { return VQ6192_Telecom_SetTeleRxB2OFMsk(3, 2, 1); }, 0xF4F3},
        {0xFBF3, [] { return VQ6192_Telecom_SetTeleRxB2OFMsk(3, 2, 1); }, 0xF4F3},
        {0xF0F3, [] { return VQ6192_Telecom_SetTeleRxB2OFMsk(3, 2, 1); }, 0xF4F3},
        {0xFFFD, [] { return VQ6192_Telecom_SetTeleRxC1J1AllMsk(3, 1, 1); }, 0xFFFF},
    };
    for (const auto &c : cases) {
        model.poke(0x22206, c.before);
        ASSERT_EQ(c.set(), 0u);
        EXPECT_EQ(model.peek(0x22206), c.after) << std::hex << c.before;
    }
    uint8_t m = 9, n = 9;
    EXPECT_EQ(
        (Ints{VQ6192_Telecom_GetTeleRxB2OFMsk(kChip, 2, &m), m,
              VQ6192_Telecom_GetTeleRxFifoErrMsk(kChip, 3, &n), n,
              VQ6192_Telecom_SetTeleRxC1J1AllMsk(kChip, 2, 1),
              VQ6192_Telecom_SetTeleRxFifoErrMsk(kChip, 4, 1), VQ6192_Telecom_SetTeleRxB2OFMsk(kChip, 4, 1)}),
        ints(0, 1, 0, 1, kParaErr, kParaErr, kParaErr));
    EXPECT_EQ(model.peek(0x22206), 0xFFFF);
}

TEST_F(TelecomTest, FramePulseAndPortAlarms) {
    model.poke(0x22010, 0xFFF5);  // jitter and fifo error set
    model.poke(0x22020, 0x000A);
    model.poke(0x22012, 0xFFE5);
    uint8_t j, l, f, c, hj, hl, hf, hc;
    uint16_t dis = 0;
    EXPECT_EQ((Ints{VQ6192_Telecom_GetTeleFpLos(kChip, &j, &l, &f, &c), j, l, f, c,
                    VQ6192_Telecom_GetTeleFpLosHis(kChip, &hj, &hl, &hf, &hc), hj, hl, hf, hc,
                    VQ6192_Telecom_GetTeleFpDisvalue(kChip, &dis), dis}),
              ints(0, 0, 1, 0, 1, 0, 1, 0, 1, 0, 0, 0x25));

    // Port p: FIFO error bit 12 + p, B2 overflow 8 + p, C1 4 + p, C1/J1/SPE p (ports 0 and 1 only).
    const struct {
        uint32_t port;
        uint16_t reg;
        std::vector<int> flags;
    } cases[] = {
        {3, 0x8880, {1, 1, 1, 0}}, {3, 0x777F, {0, 0, 0, 0}}, {0, 0x1011, {1, 0, 1, 1}},
        {1, 0x0202, {0, 1, 0, 1}}, {2, 0xFFFF, {1, 1, 1, 0}},
    };
    uint8_t a, b, d, e;
    for (const auto &k : cases) {
        model.poke(0x22210, k.reg);
        model.poke(0x22220, static_cast<uint16_t>(~k.reg));
        ASSERT_EQ(VQ6192_Telecom_GetB2C1j1speErr(kChip, k.port, &a, &b, &d, &e), 0u);
        EXPECT_EQ(std::vector<int>({a, b, d, e}), k.flags) << k.port << " " << k.reg;
        ASSERT_EQ(VQ6192_Telecom_GetB2C1j1speErrHis(kChip, k.port, &a, &b, &d, &e), 0u);
        EXPECT_EQ(a, 1 - k.flags[0]);
        EXPECT_EQ(e, k.port < 2 ? 1 - k.flags[3] : 0);
    }
    // A port above 3 is refused without a trace line.
    expectRefused({{"alarms", [&] { return VQ6192_Telecom_GetB2C1j1speErr(3, 4, &a, &b, &d, &e); }},
                   {"history", [&] { return VQ6192_Telecom_GetB2C1j1speErrHis(3, 4, &a, &b, &d, &e); }}},
                  kParaErr, false);
}

TEST_F(TelecomTest, B2CountersClearWhenRead) {
    for (uint32_t port = 0; port < 4; ++port) {
        model.block<vq6192::sim::TelecomBus>().setB2Count(port, static_cast<uint16_t>(0x1000 + port));
    }
    uint16_t count = 0;
    for (auto [port, expected] : {std::pair{2u, 0x1002}, {2u, 0}, {3u, 0x1003}}) {
        EXPECT_EQ((Ints{VQ6192_Telecom_GetTeleRxB2Cnt(kChip, port, &count), count}), ints(0, expected))
            << port;
    }
    EXPECT_EQ(
        (Ints{model.peek(0x22230), VQ6192_Telecom_GetTeleRxB2Cnt(kChip, 4, &count), model.peek(0x22230)}),
        ints(0x1000, kParaErr, 0x1000));
}

}  // namespace
}  // namespace sdhtest
