// Telecom bus controls, alarms and counters; the SAM block: initialisation and reset, Sa-bit insertion
// and extraction through the Sa-bit tables, channel switches, counters and status.
#include "vq6192/sim/telecom.h"
#include "sdh/sdh_test.h"
#include "vq6192/sim/sam.h"

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
        F{"receive clock edge", [](auto c, auto x) { return VQ6192_Telecom_SetTeleClkEdge(c, 0, x); },
          [](auto c, auto o) { return VQ6192_Telecom_GetTeleClkEdge(c, 0, o); }, 0x22008, 0, 1, 2, 1, 1},
        F{"edge type 1", [](auto c, auto x) { return VQ6192_Telecom_SetTeleClkEdge(c, 1, x); },
          [](auto c, auto o) { return VQ6192_Telecom_GetTeleClkEdge(c, 1, o); }, 0x22008, 0, 1, 1, 1, 1},
        F{"edge type 2", [](auto c, auto x) { return VQ6192_Telecom_SetTeleClkEdge(c, 2, x); },
          [](auto c, auto o) { return VQ6192_Telecom_GetTeleClkEdge(c, 2, o); }, 0x22008, 0, 1, 0, 1, 1},
        F{"port reset", VQ6192_Telecom_SetRstPort, VQ6192_Telecom_GetRstPort, 0x22200, 0, 1, 0, 1, 1},
        F{"tx b2", VQ6192_Telecom_SetTeleTxB2Ins, VQ6192_Telecom_GetTeleTxB2Ins, 0x22204, 0, 1, 1, 1, 1},
        F{"rx b2 mode", VQ6192_Telecom_SetTeleRxB2Mod, VQ6192_Telecom_GetTeleRxB2Mod, 0x22204, 0, 1, 0, 1, 1},
    };
    expectFields(cases);
    // A value past the field, and a clock edge type past 2, are refused.
    for (const F &c : cases) {
        beginRefusals();
        expectRefusals(kParaErr, false, c.set(3, c.width == 4 ? 12 : 2));
    }
    beginRefusals();
    expectRefusals(kParaErr, false, VQ6192_Telecom_SetTeleClkEdge(3, 3, 0));
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
    uint16_t count = 0;
    EXPECT_EQ(VQ6192_Telecom_GetTeleRxB2Cnt(kChip, 4, &count), kParaErr);
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
    uint8_t a, b, d, e, ha, hb, hd, he;
    for (const auto &k : cases) {
        poke({{0x22210, k.reg}, {0x22220, static_cast<uint16_t>(~k.reg)}});
        const auto &f = k.flags;
        EXPECT_EQ((Ints{VQ6192_Telecom_GetB2C1j1speErr(kChip, k.port, &a, &b, &d, &e), a, b, d, e,
                        VQ6192_Telecom_GetB2C1j1speErrHis(kChip, k.port, &ha, &hb, &hd, &he), ha, he}),
                  ints(0, f[0], f[1], f[2], f[3], 0, 1 - f[0], k.port < 2 ? 1 - f[3] : 0))
            << k.port << " " << k.reg;
    }
    // A port above 3 is refused without a trace line.
    beginRefusals();
    expectRefusals(kParaErr, true, VQ6192_Telecom_GetB2C1j1speErr(3, 4, &a, &b, &d, &e),
                   VQ6192_Telecom_GetB2C1j1speErrHis(3, 4, &a, &b, &d, &e));
}

using vq6192::sim::BusAccess;
using vq6192::sim::BusOp;

constexpr uint32_t kSamParaErr = 0x03090001;
constexpr uint32_t kSamBlock = 0x3000;  // SA-bit table engine (register number)
constexpr uint32_t kInsSelect = 11;     // inserted Sa bits
constexpr uint32_t kFthSelect = 5;      // extracted Sa bits

uint32_t chanReg(uint32_t e1) {
    return 0x6200 + 2 * e1;
}

using SamTest = SdhTest;

TEST_F(SamTest, InitialisationNeedsTheReadyBit) {
    model.block<vq6192::sim::SamBlock>().setReady(false);
    capture.clear();
    EXPECT_TRUE(
        vqtest::writes(traced([&] { EXPECT_EQ(VQ6192_SAM_InitSam(kChip, 1), 0x03090007u); })).empty());
    EXPECT_TRUE(capture.traceTexts().empty());

    model.block<vq6192::sim::SamBlock>().setReady(true);
    for (uint32_t e1 = 0; e1 < 336; ++e1) {
        model.poke(chanReg(e1), 0xFF9B);
    }
    const auto w = vqtest::writes(traced([&] { ASSERT_EQ(VQ6192_SAM_InitSam(kChip, 1), 0u); }));
    for (uint32_t e1 = 0; e1 < 336; ++e1) {
        EXPECT_EQ(model.peek(chanReg(e1)), 0xFFBF) << e1;
    }
    // Fetch mode first, then insertion mode, channel by channel in ascending order.
    ASSERT_EQ(w.size(), 672u);
    EXPECT_EQ((std::vector<BusAccess>{w[0], w[1], w[670], w[671]}),
              (std::vector<BusAccess>{{BusOp::Write, 0x6200, 0xFFBB, 0, 16},
                                      {BusOp::Write, 0x6200, 0xFFBF, 0, 16},
                                      {BusOp::Write, chanReg(335), 0xFFBB, 0, 16},
                                      {BusOp::Write, chanReg(335), 0xFFBF, 0, 16}}));
    // Modes 0 and 2 do nothing; 3 is refused.
    EXPECT_TRUE(traced([&] {
                    EXPECT_EQ((Ints{VQ6192_SAM_InitSam(kChip, 0), VQ6192_SAM_InitSam(kChip, 2),
                                    VQ6192_SAM_InitSam(kChip, 3)}),
                              ints(0, 0, kSamParaErr));
                }).empty());
}

TEST_F(SamTest, ResetPulsesTheBlockReset) {
    model.poke(0x000C, 0xF0F3);
    VQ6192_Platform_ResetVirtualTime();
    EXPECT_EQ(vqtest::writes(traced([&] { ASSERT_EQ(VQ6192_SAM_ResetSam(kChip), 0u); })),
              (std::vector<BusAccess>{{BusOp::Write, 0x000C, 0xF0F7, 0, 16},
                                      {BusOp::Write, 0x000C, 0xF0F3, 0, 16}}));
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 10u);
}

TEST_F(SamTest, SaBitInsertion) {
    auto &tables = model.tables();
    vq6192::sim::TableEngine::Entry entry{};
    entry[0] = 0xD7FF;  // Sabit2 (bits 14..10) = 0x15, every other bit set
    entry[1] = 0x000F;
    tables.setEntry(kSamBlock, kInsSelect, 5, entry);
    model.poke(chanReg(5), 0xFFFE);
    ASSERT_EQ(VQ6192_SAM_SetSaBitInsert(kChip, 5, 2, 0x3F, 1), 0u);
    auto after = tables.entry(kSamBlock, kInsSelect, 5);
    EXPECT_EQ(ints(after[0], after[1], model.peek(chanReg(5))), ints(0xFFFF, 0x000F, 0xFFFF));

    // Sabit3 is bits 19..15, across the two halves.
    ASSERT_EQ(VQ6192_SAM_SetSaBitInsert(kChip, 5, 3, 0x0A, 0), 0u);
    after = tables.entry(kSamBlock, kInsSelect, 5);
    EXPECT_EQ(ints(after[0], after[1], model.peek(chanReg(5))), ints(0x7FFF, 0x0005, 0xFFFE));

    // A bit position above 3: the code without a trace line, nothing written.
    capture.clear();
    EXPECT_EQ(VQ6192_SAM_SetSaBitInsert(kChip, 5, 4, 1, 1), kSamParaErr);
    EXPECT_TRUE(capture.traceTexts().empty());
    EXPECT_EQ(tables.entry(kSamBlock, kInsSelect, 5), after);
    EXPECT_EQ(ints(model.peek(chanReg(5)), tables.writesExecuted(kSamBlock)), ints(0xFFFE, 2));
    beginRefusals();
    expectRefusals(kSamParaErr, false, VQ6192_SAM_SetSaBitInsert(3, 336, 0, 1, 1));
}

TEST_F(SamTest, SaBitExtraction) {
    vq6192::sim::TableEngine::Entry entry{};
    // Rxsabit3..0 = 0x11, 0x0E, 0x1B, 0x04.
    const uint32_t bits = (0x11u << 15) | (0x0Eu << 10) | (0x1Bu << 5) | 0x04u;
    entry[0] = static_cast<uint16_t>(bits & 0xFFFF);
    entry[1] = static_cast<uint16_t>(bits >> 16);
    model.tables().setEntry(kSamBlock, kFthSelect, 200, entry);
    const uint32_t expected[4] = {0x04, 0x1B, 0x0E, 0x11};
    for (uint32_t pos = 0; pos < 4; ++pos) {
        model.poke(chanReg(200), 0xFFF7);
        uint32_t sa = 0xEE;
        EXPECT_EQ((Ints{VQ6192_SAM_GetSaBitValue(kChip, 200, pos, &sa, 1), sa, model.peek(chanReg(200))}),
                  ints(0, expected[pos], 0xFFFF))
            << pos;
    }
    // The enable is written even when the bit position is refused.
    uint32_t sa = 0xEE;
    capture.clear();
    EXPECT_EQ((Ints{VQ6192_SAM_GetSaBitValue(kChip, 200, 4, &sa, 0), sa, model.peek(chanReg(200))}),
              ints(kSamParaErr, 0xEE, 0xFFF7));
    EXPECT_TRUE(capture.traceTexts().empty());
}

TEST_F(SamTest, ChannelAndGlobalSwitches) {
    // The register and the bits each call sets, from a register with every other bit set.
    const struct {
        const char *name;
        std::function<uint32_t()> call;
        uint32_t reg;
        uint16_t mask;
    } cases[] = {
        {"global tu-ais", [] { return VQ6192_SAM_SetSamGlbTuaisEn(3, 1); }, 0x6060, 1u << 3},
        {"channel tu-ais", [] { return VQ6192_SAM_SetSamChnTuaisEn(3, 17, 1); }, chanReg(17), 1u << 6},
        {"hdlc select 4", [] { return VQ6192_SAM_SetSamHdlcSel(3, 4); }, 0x6060, 0x4},
        {"fetch enables", [] { return VQ6192_SAM_SetSamFthEn(3, 335, 1, 1); }, chanReg(335), 0x18},
        {"fetch mode", [] { return VQ6192_SAM_SetSamFthMod(3, 0, 1); }, chanReg(0), 1u << 5},
        {"insert enables", [] { return VQ6192_SAM_SetSamInsEn(3, 100, 1, 1); }, chanReg(100), 0x3},
        {"insert mode", [] { return VQ6192_SAM_SetSamInsMod(3, 100, 1); }, chanReg(100), 1u << 2},
    };
    for (const auto &c : cases) {
        const uint16_t field = c.reg == 0x6060 && c.mask == 0x4 ? 0x7 : c.mask;
        model.poke(c.reg, static_cast<uint16_t>(~field));
        ASSERT_EQ(c.call(), 0u) << c.name;
        EXPECT_EQ(model.peek(c.reg), static_cast<uint16_t>(~field | c.mask)) << c.name;
    }
    beginRefusals();
    expectRefusals(kSamParaErr, false, VQ6192_SAM_SetSamHdlcSel(3, 5), VQ6192_SAM_SetSamGlbTuaisEn(3, 2),
                   VQ6192_SAM_SetSamChnTuaisEn(3, 336, 1), VQ6192_SAM_SetSamFthEn(3, 0, 2, 0),
                   VQ6192_SAM_SetSamInsEn(3, 0, 0, 2), VQ6192_SAM_SetSamInsMod(3, 0, 2));
}

TEST_F(SamTest, CountersWarningsAndSoftErrors) {
    // Channel n's four counters are the low bytes of 0x6600, 0x6620, 0x6640, 0x6660 + 2n; the MPI AIS
    // warnings bits 1 and 0 of 0x6800 + 2n; the 13 SRAM soft errors bits 0..12 of 0x6688.
    poke({{0x6600 + 2 * 9, 0xFF11}, {0x6620 + 2 * 9, 0x22}, {0x6640 + 2 * 9, 0x33}, {0x6660 + 2 * 9, 0x44}});
    poke({{0x6800 + 2 * 335, 0xFFFD}, {0x6688, 0x1001}});
    uint32_t c0, c1, c2, c3, w1 = 9, w0 = 9, f[13];
    EXPECT_EQ(
        (Ints{VQ6192_SAM_GetSamCnt(kChip, 9, &c0, &c1, &c2, &c3), c0, c1, c2, c3,
              VQ6192_SAM_GetSamMpiAisWarn(kChip, 335, &w1, &w0), w1, w0,
              VQ6192_SAM_GetSamSramSoftErr(kChip, f), VQ6192_SAM_GetSamCnt(kChip, 336, &c0, &c1, &c2, &c3)}),
        ints(0, 0x11, 0x22, 0x33, 0x44, 0, 0, 1, 0, kSamParaErr));
    EXPECT_EQ(std::vector<uint32_t>(f, f + 13),
              (std::vector<uint32_t>{1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}));
}

}  // namespace
}  // namespace sdhtest
