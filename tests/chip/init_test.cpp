// Chip bring-up: PLL programming, chip reset, soft resets and clock enables, DDR start-up, and the whole
// bring-up in both modes with its failures.
#include <algorithm>

#include "chip/bringup.h"
#include "chip_fixture.h"
#include "vq6192/atm.h"
#include "vq6192/ces.h"
#include "vq6192/eth.h"
#include "vq6192/framer.h"
#include "vq6192/ima.h"
#include "vq6192/ppp.h"
#include "vq6192/sim/clocks.h"
#include "vq6192/sim/ddr_ctrl.h"
#include "vq6192/sim/mac.h"

namespace {

using namespace chiptest;
using vq6192::sim::ClockBlock;
using vq6192::sim::DdrCtrlBlock;

constexpr uint32_t kStepFailed = 0x03010004;
constexpr uint32_t kDdrStartFailed = 0x0300000C;

class Init : public ChipFixture {
  protected:
    void TearDown() override {
        g_ulVq6192DdrCl = 6;
        ChipFixture::TearDown();
    }
    ClockBlock &clocks() { return model.block<ClockBlock>(); }
    DdrCtrlBlock &ddrCtrl() { return model.block<DdrCtrlBlock>(); }

    static bool hasLineStarting(const Lines &lines, const std::string &prefix) {
        return std::any_of(lines.begin(), lines.end(),
                           [&](const std::string &s) { return s.rfind(prefix, 0) == 0; });
    }
    // The module initialisers in bring-up order, as the host would call them.
    static void runInitialisers(uint32_t mode) {
        EXPECT_EQ(VQ6192_ATM_AtmPwe3Init(kChip, mode), 0u);
        EXPECT_EQ(VQ6192_ATM_InitAtm(kChip, mode), 0u);
        EXPECT_EQ(VQ6192_PPP_InitPppModule(kChip, mode), 0u);
        EXPECT_EQ(VQ6192_IMA_InitIma(kChip, mode), 0u);
        EXPECT_EQ(VQ6192_CES_InitCesModule(kChip, mode), 0u);
        EXPECT_EQ(VQ6192_Framer_FrmInit(kChip, mode, 0), 0u);
        EXPECT_EQ(VQ6192_ETH_ETHInit(kChip, mode), 0u);
    }
    static bool wrote(const std::vector<BusAccess> &t, uint32_t addr) {
        return std::any_of(t.begin(), t.end(), [&](const BusAccess &a) {
            return a.addr == addr && (a.op == BusOp::Write || a.op == BusOp::FieldWrite);
        });
    }
    static size_t firstAccess(const std::vector<BusAccess> &t, uint32_t addr) {
        return static_cast<size_t>(
            std::find_if(t.begin(), t.end(), [&](const BusAccess &a) { return a.addr == addr; }) - t.begin());
    }
};

TEST_F(Init, ParameterErrorsTouchNothing) {
    // clang-format off
    expectRefused({
        {"mode 0", kBasePara, [] { return VQ6192_Base_Initialize(kChip, 0, 0, 0, 0, nullptr); }},
        {"mode 3", kBasePara, [] { return VQ6192_Base_Initialize(kChip, 3, 0, 0, 0, nullptr); }},
        {"ddr test 2", kBasePara, [] { return VQ6192_Base_Initialize(kChip, 1, 0, 2, 0, nullptr); }},
        {"reset mode 3", kBasePara, [] { return VQ6192_Base_ResetChip(kChip, 3); }},
        {"soft reset 2", kBasePara, [] { return VQ6192_Base_SetSoftResetModule(kChip, 1, 2); }},
        {"clock enable 2", kBasePara, [] { return VQ6192_Base_SetModuleClkEn(kChip, 1, 2); }},
        // Reset modes 0 and 2 are accepted and do nothing.
        {"reset mode 0", 0, [] { return VQ6192_Base_ResetChip(kChip, 0); }, true},
        {"reset mode 2", 0, [] { return VQ6192_Base_ResetChip(kChip, 2); }, true},
    });
    // clang-format on
}

TEST_F(Init, PllRegisterSetsFromTheTables) {
    struct Pll {
        uint32_t base, divA, divB, combined, value16, value8;
    };
    // Rows of the E1 and T1 tables: w1, w2, w4 * 16 + w3, w7, w6.
    // clang-format off
    const Pll e1[4] = {{0x20, 1, 0x20, 0x14, 0, 0}, {0x40, 1, 0x23, 0x15, 0xA782, 0x5B},
                       {0x60, 1, 0x3C, 0x13, 0, 0}, {0x80, 1, 0x40, 0x14, 0, 0}};
    const Pll t1[4] = {{0x20, 1, 0x20, 0x14, 0, 0}, {0x40, 1, 0x24, 0x14, 0xDB57, 0xD1},
                       {0x60, 1, 0x3C, 0x13, 0, 0}, {0x80, 1, 0x40, 0x14, 0x81C3, 0}};
    // clang-format on
    for (bool t1World : {false, true}) {
        SCOPED_TRACE(t1World ? "T1" : "E1");
        const Pll *plls = t1World ? t1 : e1;
        VQ6192_Platform_ResetVirtualTime();
        const auto &table = t1World ? g_ausVQ6192T1PLLCfg : g_ausVQ6192E1PLLCfg;
        const auto t = traced([&] { EXPECT_EQ(VQ6192_Base_SetPLLCfg(kChip, &table[0][0]), 0u); });
        std::vector<BusAccess> expected;
        for (uint32_t n = 0; n < 4; ++n) {
            const Pll &p = plls[n];
            if (n >= 2) {
                expected.push_back(wr(0x6A, 0));
            }
            expected.insert(expected.end(),
                            {wr(p.base, p.divA), wr(p.base + 2, p.divB), wr(p.base + 8, p.combined),
                             wr(p.base + 6, p.value16), wr(p.base + 4, p.value8), wr(p.base + 0xA, 1),
                             wr(p.base + 0xA, 0), wr(0x100, 1u << n)});
        }
        EXPECT_EQ(writes(t), expected);
        // Each PLL: reset held 50 ms, released 50 ms, three checks 50 ms apart (and one read for the
        // alarm clear).
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 4u * 5u * 50000u);
        EXPECT_EQ(std::count(t.begin(), t.end(), rd(0x100, 0)), 16);
    }
}

TEST_F(Init, PllFieldsKeepNeighbourBitsAndOtherAlarms) {
    poke({{0x40, 0xFFFF}, {0x42, 0xF000}, {0x44, 0xFF00}, {0x4A, 0xFFFE}, {0x6A, 0xFFFF}});
    irq().raise(0x100, 0x0400);  // an unrelated local alarm stays latched
    EXPECT_EQ(VQ6192_Base_SetPLLCfg(kChip, &g_ausVQ6192E1PLLCfg[0][0]), 0u);
    // 0x6A: bit 6 from PLL2 and PLL3, bit 0 PLL2's reset.
    EXPECT_EQ(peek({0x40, 0x42, 0x44, 0x4A, 0x6A, 0x100}),
              (U32s{0xFFC1, 0xF023, 0xFF5B, 0xFFFE, 0xFFBE, 0x0400}));
}

TEST_F(Init, UnlockedPllFailsButTheOthersAreProgrammed) {
    const std::pair<uint32_t, std::string> cases[] = {
        {0, "Err. VQ6192_Base_SetPLLCfg.  SetPLL0, ChkTime[0x1], PLL Stat[0x1]\n, ErrCode[0x3010003]\r\n"},
        {1, "Err. VQ6192_Base_SetPLLCfg.  SetPLL1, ChkTime[0x1], PLL Stat[0x2]\n, ErrCode[0x3010003]\r\n"},
        {3, "Err. VQ6192_Base_SetPLLCfg.  SetPLL3, ChkTime[0x1], PLL Stat[0x8]\n, ErrCode[0x3010003]\r\n"},
    };
    for (const auto &[pll, text] : cases) {
        SCOPED_TRACE(pll);
        clocks().setPllLocked(pll, false);
        capture.clear();
        VQ6192_Platform_ResetVirtualTime();
        const auto t = traced(
            [&] { EXPECT_EQ(VQ6192_Base_SetPLLCfg(kChip, &g_ausVQ6192E1PLLCfg[0][0]), kBaseTimeout); });
        EXPECT_EQ(capture.traceTexts(), Lines{text});
        // The failing PLL stops after its first check; the later PLLs are still programmed.
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 1000000u - 2u * 50000u);
        EXPECT_TRUE(wrote(t, 0x80) && wrote(t, 0x8A));
        clocks().setPllLocked(pll, true);
    }
}

TEST_F(Init, ResetsAndClockEnables) {
    // The chip reset pulses every reset bit.
    model.poke(0x0C, 0xFFC0);
    EXPECT_EQ(writes(traced([&] { EXPECT_EQ(VQ6192_Base_ResetChip(kChip, 1), 0u); })),
              (Accesses{wr(0x0A, 0xFFFF), wr(0x0C, 0xFFFF), wr(0x0A, 0), wr(0x0C, 0xFFC0)}));
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 20000u);
    struct Case {
        const char *name;
        bool clock;
        uint32_t module, value, reg, before, after;
    };
    // clang-format off
    const Case cases[] = {
        {"reset 0 on", false, 0, 1, 0x0A, 0x8000, 0x8001},
        {"reset 15 off", false, 15, 0, 0x0A, 0xFFFF, 0x7FFF},
        {"reset 16 on", false, 16, 1, 0x0C, 0x0000, 0x0001},
        {"reset 17 on", false, 17, 1, 0x0C, 0xA0F0, 0xA0F2},
        {"reset 21 off", false, 21, 0, 0x0C, 0xFFFF, 0xFFDF},
        {"clock 14 on", true, 14, 1, 0x06, 0x0001, 0x4001},
        {"clock 5 off", true, 5, 0, 0x06, 0xFFFF, 0xFFDF},
        {"clock 15 off", true, 15, 0, 0x08, 0xFFFF, 0xFFFE},
        {"clock 20 on", true, 20, 1, 0x08, 0x8000, 0x8020},
    };
    // clang-format on
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        poke({{c.reg, c.before}});
        EXPECT_EQ(c.clock ? VQ6192_Base_SetModuleClkEn(kChip, c.module, c.value)
                          : VQ6192_Base_SetSoftResetModule(kChip, c.module, c.value),
                  0u);
        EXPECT_EQ(peek({c.reg}), U32s{c.after});
    }
}

// The start-up sequence of a healthy DDR, the address map registers starting at all ones.
Accesses healthyDdrWrites(uint32_t config, uint32_t timing1, uint32_t mode0) {
    Accesses w;
    const uint16_t map[10] = {0x000, 0x180, 0x1C0, 0x4F9, 0x519, 0x6B7, 0x279, 0x100, 0x2F9, 0x278};
    for (uint32_t k = 0; k < 10; ++k) {
        w.push_back(wr(0xC12C + 8 * k, 0xF800u | map[k]));  // bits 11..15 seeded by the test, kept
    }
    auto pair = [&](uint32_t reg, uint32_t lo, uint32_t hi) {
        w.insert(w.end(), {wr(reg, lo), wr(reg + 2, hi)});
    };
    pair(0xD360, 0x0067, 0);
    pair(0xD02C, config, 0);
    for (uint32_t v : {0x56u, 0x57u}) {
        for (uint32_t reg : {0xD228u, 0xD230u, 0xD234u, 0xD238u, 0xD23Cu, 0xD240u}) {
            pair(reg, v, 0);
        }
    }
    // Register, low and high half, in order.
    // clang-format off
    const uint32_t rest[17][3] = {
        {0xD058, 0x5000, 0x8471}, {0xD010, 0, 0}, {0xD010, 1, 0}, {0xD004, 0, 0}, {0xD014, mode0, 4}, {0xD018, 0, 0},
        {0xD01C, 0x0611, 0x8140}, {0xD020, 0x0023, 0}, {0xD050, 0x1710, 0xC577}, {0xD054, timing1, 0xFF52},
        {0xD058, 0x5061, 0x8471}, {0xD05C, 0xF4F4, 0xFFDF}, {0xD0AC, 0x0103, 0x0F10}, {0xD0F4, 1, 0}, {0xD200, 0x22, 0},
        {0xD008, 1, 0}, {0xD01C, 0x0611, 0x8141}};
    // clang-format on
    for (const auto &p : rest) {
        pair(p[0], p[1], p[2]);
    }
    return w;
}

TEST_F(Init, DdrStartSequenceForBothSettings) {
    const int option = 1;
    struct Case {
        const char *name;
        const void *ddrOption;
        uint32_t cl, config, timing1, mode0;
        Lines traces;
    };
    // clang-format off
    const Case cases[] = {
        {"first setting", nullptr, 6, 0x0122, 0x5641, 0x1720, {}},
        {"second setting", &option, 6, 0x0142, 0x5669, 0x1720, {}},
        {"CL 17 falls back to 6", nullptr, 17, 0x0122, 0x5641, 0x1720,
         {"Err. VQ6192_Base_InitDDR.  g_wVq6192DdrCl[0x11] Err. g_wVq6192DdrCl set to 6 \r\n"}},
        {"CL 16", nullptr, 16, 0x0122, 0x5041, 0x1741, {}},  // code 9: bit 0 and (9 * 8) & 0x70
    };
    // clang-format on
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        g_ulVq6192DdrCl = c.cl;
        for (uint32_t k = 0; k < 10; ++k) {
            model.poke(0xC12C + 8 * k, 0xFFFF);
        }
        model.poke(0xD286, 0xFFFF);  // past lane 4's levelling result: no lane of its own
        capture.clear();
        VQ6192_Platform_ResetVirtualTime();
        uint8_t failed = 9;
        EXPECT_EQ(writes(traced([&] { EXPECT_EQ(VQ6192_Base_InitDDR(kChip, &failed, c.ddrOption), 0u); })),
                  healthyDdrWrites(c.config, c.timing1, c.mode0));
        EXPECT_EQ(failed, 0);
        EXPECT_EQ(capture.traceTexts(), c.traces);
        EXPECT_EQ(g_ulVq6192DdrCl, c.cl > 16 ? 6u : c.cl);
        // 10 + 70 us PHY, 10 + 10 ms reset, 70 + 70 us, one ready poll, 70 ms after the mode write.
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 160220u);
    }
}

TEST_F(Init, DdrStartFailures) {
    struct Case {
        const char *name;
        uint32_t busyReads, training, productFlag, rc, failed;
        Lines traces;
    };
    const uint32_t never = DdrCtrlBlock::kForever;
    // clang-format off
    const Case cases[] = {
        {"ready at the third poll", 2, 15, 0, 0, 0, {}},
        {"never ready", never, 15, 0, kBaseTimeout, 1, {"Err. VQ6192_Base_InitDDR.  TimeOut \r\n"}},
        {"training short", 0, 14, 0, kBaseFailed, 1, {"Err. VQ6192_Base_InitDDR.  DDR Init Dtr Err[e00]. \r\n"}},
        {"training short, product fallback", 0, 0, 1, 0, 0, {"Err. VQ6192_Base_InitDDR.  DDR Init Dtr Err[0]. \r\n"}},
    };
    // clang-format on
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        ddrCtrl().setBusyReads(c.busyReads);
        ddrCtrl().setTraining(c.training);
        g_vq6192[kChip].ulSupportProductFlag = c.productFlag;
        capture.clear();
        uint8_t failed = 9;
        const auto t = traced([&] { EXPECT_EQ(VQ6192_Base_InitDDR(kChip, &failed, nullptr), c.rc); });
        g_vq6192[kChip].ulSupportProductFlag = 0;
        EXPECT_EQ(failed, c.failed);
        EXPECT_EQ(capture.traceTexts(), c.traces);
        const auto w = writes(t);
        EXPECT_EQ(wrote(t, 0xD0E4), c.productFlag == 1);
        if (c.productFlag == 1) {
            EXPECT_EQ(Accesses(w.end() - 7, w.end()),
                      (Accesses{wr(0xD0AC, 0x0101), wr(0xD0AE, 0x0F10), wr(0xD0E4, 2), wr(0xD0E6, 2),
                                wr(0xD0B4, 0xAA), wr(0xD0C4, 0x2222), wr(0xD0C6, 0)}));
        }
    }
    ddrCtrl().setBusyReads(0);
    ddrCtrl().setTraining(15);
}

TEST_F(Init, WriteLevellingCorrection) {
    // PHY lane 0 and mode register 3 with bits the correction must keep.
    model.stickBits(0xD020, 0x8000, 0x8000);
    model.stickBits(0xD228, 0x0F00, 0x0300);
    model.stickBits(0xD22A, 0xFFFF, 0x1234);
    ddrCtrl().setWriteLevel(1, 0x0001);
    ddrCtrl().setWriteLevel(3, 0x8000);
    uint8_t failed = 9;
    VQ6192_Platform_ResetVirtualTime();
    const auto t = traced([&] { EXPECT_EQ(VQ6192_Base_InitDDR(kChip, &failed, nullptr), 0u); });
    EXPECT_EQ(failed, 0);
    EXPECT_EQ(ddrCtrl().starts(), 2u);
    const auto w = writes(t);
    // The correction runs between the first start and the final mode write.
    const auto start = std::find(w.begin(), w.end(), wr(0xD008, 1)) + 2;
    EXPECT_EQ(Accesses(start, w.end() - 2),
              (Accesses{wr(0xD020, 0x8003), wr(0xD022, 0),      wr(0xD274, 0),      wr(0xD276, 0),
                        wr(0xD27C, 0),      wr(0xD27E, 0),      wr(0xD058, 0x5000), wr(0xD05A, 0x8471),
                        wr(0xD010, 0),      wr(0xD012, 0),      wr(0xD004, 1),      wr(0xD006, 0),
                        wr(0xD228, 0x0356), wr(0xD22A, 0x1234), wr(0xD228, 0x0357), wr(0xD22A, 0x1234),
                        wr(0xD0AC, 0x0101), wr(0xD0AE, 0x0F10), wr(0xD010, 1),      wr(0xD012, 0),
                        wr(0xD004, 0),      wr(0xD006, 0),      wr(0xD0AC, 0x0103), wr(0xD0AE, 0x0F10),
                        wr(0xD008, 1),      wr(0xD00A, 0),      wr(0xD058, 0x5061), wr(0xD05A, 0x8471)}));
    model.clearStuckBits();
    EXPECT_EQ(peek({0xD276, 0xD27E}), (U32s{0, 0}));
    // Healthy start plus the correction's 70 ms, 10 ms, 10 ms, three 70 us steps and one ready poll.
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 160220u + 70000u + 10000u + 10000u + 210u + 70000u);

    // Second start never ready: the lanes are named in the trace.
    ddrCtrl().setWriteLevel(3, 0x8000);
    ddrCtrl().setBusyReads(DdrCtrlBlock::kForever, ddrCtrl().starts() + 1);
    capture.clear();
    EXPECT_EQ(VQ6192_Base_InitDDR(kChip, &failed, nullptr), kBaseTimeout);
    EXPECT_EQ(failed, 1);
    EXPECT_EQ(capture.traceTexts(), Lines{"Err. InitDDR.  DDR Init Err in write level [8] TimeOut\r\n"});
    ddrCtrl().setBusyReads(0);
}

TEST_F(Init, FullBringUpOrderAndWaits) {
    // The initialisers' own waits, measured alone.
    VQ6192_Platform_ResetVirtualTime();
    runInitialisers(1);
    const uint64_t initialisers = VQ6192_Platform_GetVirtualTimeUs();

    poke({{0x06, 0x8020}, {0x08, 0xFFFF}});
    VQ6192_Platform_ResetVirtualTime();
    capture.clear();
    const auto t = traced([&] { EXPECT_EQ(VQ6192_Base_Initialize(kChip, 1, 0, 0, 0, nullptr), 0u); });
    EXPECT_FALSE(hasLineStarting(capture.traceTexts(), "Err. VQ6192_Base_"));
    // 70 ms settle; four PLLs of five 50 ms waits; 70 + 20 + 70 ms around the reset; DDR start;
    // SerDes: 100 us and six short delays, one lock poll.
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(),
              70000u + 1000000u + 160000u + 160220u + 100u + 6u * 50u + 50u + initialisers);
    const uint32_t landmarks[] = {0x20, 0x06, 0x0A, 0x04, 0xC12C, 0xD000, 0x200, 0x220};
    for (size_t i = 1; i < std::size(landmarks); ++i) {
        EXPECT_LT(firstAccess(t, landmarks[i - 1]), firstAccess(t, landmarks[i])) << std::hex << landmarks[i];
    }
    EXPECT_EQ((U32s{model.peek(0x06), model.peek(0x08), model.peek(0x0A) & 0x3000u,
                    uint32_t(clocks().serdesLockReads())}),
              (U32s{0xFFDF, 0xFFC0, 0, 1}));
}

TEST_F(Init, MacPortsGetPreamblesThenComeUp) {
    auto &mac = model.block<vq6192::sim::MacBlock>();
    for (uint32_t port : {1u, 2u}) {
        mac.setReg(port, 13, 0xFFFFFFFF);   // preamble lengths, bits 0..4, 8..12, 16..20
        mac.setReg(port, 105, 0xFFFFFFFE);  // port enable, bit 0
    }
    // Stopped right after the clocks: preambles of 3 written, ports still disabled.
    control().setNonInvertingBits(0xFFFF);
    EXPECT_EQ(VQ6192_Base_Initialize(kChip, 1, 0, 0, 0, nullptr), kStepFailed);
    EXPECT_EQ((U32s{mac.reg(1, 13), mac.reg(2, 13), mac.reg(1, 105), mac.reg(2, 105)}),
              (U32s{0xFFE3E3E3u, 0xFFE3E3E3u, 0xFFFFFFFEu, 0xFFFFFFFEu}));
    control().setNonInvertingBits(0);
    EXPECT_EQ(VQ6192_Base_Initialize(kChip, 1, 0, 0, 0, nullptr), 0u);
    EXPECT_EQ((U32s{mac.reg(1, 105), mac.reg(2, 105)}), (U32s{0xFFFFFFFFu, 0xFFFFFFFFu}));
}

// Whole-register values of the SerDes start, from SerDes registers at 0 and at 0xFFFF: 0x200 keeps
// bit 3 while bit 12 comes and goes, and every field write leaves the register's other bits as they were.
TEST_F(Init, SerdesStartSequence) {
    const uint32_t serdes[] = {0x1E, 0x200, 0x202, 0x206, 0x208, 0x20A, 0x20C, 0x210, 0x212, 0x214, 0x216};
    // clang-format off
    const Accesses fromZero = {
        wr(0x0A, 0x3005),  wr(0x200, 0x1000), wr(0x200, 0x1008), wr(0x1E, 0x0001),  wr(0x208, 0x0003), wr(0x20A, 0),
        wr(0x212, 0x0003), wr(0x214, 0),      wr(0x20C, 0),      wr(0x216, 0),      wr(0x200, 0x0008), wr(0x202, 0x0001),
        wr(0x202, 0),      wr(0x202, 0),      wr(0x206, 0),      wr(0x210, 0),      wr(0x206, 0x0020), wr(0x210, 0x0020),
        wr(0x202, 0x0010), wr(0x202, 0),      wr(0x206, 0),      wr(0x210, 0),      wr(0x20C, 0),      wr(0x216, 0),
        wr(0x20A, 0x0002), wr(0x214, 0x0002), wr(0x20A, 0),      wr(0x214, 0),      wr(0x0A, 0x0005)};
    const Accesses fromOnes = {
        wr(0x0A, 0x3005),  wr(0x200, 0xFFFF), wr(0x200, 0xFFFF), wr(0x1E, 0xFFFF),  wr(0x208, 0xFFE3), wr(0x20A, 0xFFCF),
        wr(0x212, 0xFFE3), wr(0x214, 0xFFCF), wr(0x20C, 0xFFFD), wr(0x216, 0xFFFD), wr(0x200, 0xEFFF), wr(0x202, 0xFFFF),
        wr(0x202, 0xFFFE), wr(0x202, 0xFFF6), wr(0x206, 0xFFEF), wr(0x210, 0xFFEF), wr(0x206, 0xFFEF), wr(0x210, 0xFFEF),
        wr(0x202, 0xFFF6), wr(0x202, 0xFFE6), wr(0x206, 0xFFCF), wr(0x210, 0xFFCF), wr(0x20C, 0xFFFD), wr(0x216, 0xFFFD),
        wr(0x20A, 0xFFCF), wr(0x214, 0xFFCF), wr(0x20A, 0xFFCD), wr(0x214, 0xFFCD), wr(0x0A, 0x0005)};
    // clang-format on
    for (const auto &[seed, expected] : {std::pair{0x0000, fromZero}, {0xFFFF, fromOnes}}) {
        SCOPED_TRACE(seed);
        model.stickBits(0x0A, 0x0005, 0x0005);  // reset bits that stay set keep their place
        for (uint32_t reg : serdes) {
            model.poke(reg, static_cast<uint16_t>(seed));
        }
        const auto w =
            writes(traced([&] { EXPECT_EQ(VQ6192_Base_Initialize(kChip, 1, 1, 0, 0, nullptr), 0u); }));
        const auto from = std::find(w.begin(), w.end(), wr(0x0A, 0x3005));
        ASSERT_GE(w.end() - from, 29);
        EXPECT_EQ(Accesses(from, from + 29), expected);
        model.clearStuckBits();
    }
}

// The SerDes lock is polled up to three times but not required; in busy-wait mode the six short delays
// of the start and the lock poll no longer sleep.
TEST_F(Init, SerdesLockAndShortDelays) {
    for (const auto &[unlockedReads, lockReads] : {std::pair{1u, 2u}, {ClockBlock::kForever, 3u}}) {
        SCOPED_TRACE(unlockedReads);
        clocks().delaySerdesLock(unlockedReads);
        const uint64_t before = clocks().serdesLockReads();
        EXPECT_EQ(VQ6192_Base_Initialize(kChip, 1, 0, 0, 0, nullptr), 0u);
        EXPECT_EQ(clocks().serdesLockReads() - before, lockReads);
    }
    clocks().delaySerdesLock(0);
    uint64_t us[2] = {};
    for (uint32_t mode : {1u, 0u}) {
        g_vq6192[kChip].ulDelayMode = mode;
        VQ6192_Platform_ResetVirtualTime();
        EXPECT_EQ(VQ6192_Base_Initialize(kChip, 1, 0, 0, 0, nullptr), 0u);
        us[mode] = VQ6192_Platform_GetVirtualTimeUs();
    }
    EXPECT_EQ(us[0] - us[1], 7u * 50u);
}

TEST_F(Init, BringUpFailures) {
    struct Case {
        const char *name;
        std::function<void(bool)> fault;  // injects (true) or removes (false) the fault
        uint32_t tdm, ddrTest, frmOption, rc;
        std::string trace;  // a line the failure traces, or its start
    };
    const auto stuck = vq6192::sim::TableEngine::kForever;
    const std::string step = "Err. VQ6192_Base_Initialize.  ";
    // clang-format off
    const Case cases[] = {
        {"PLL2 unlocked", [this](bool on) { clocks().setPllLocked(2, !on); }, 0, 0, 0, kStepFailed,
         "Err. VQ6192_Base_SetPLLCfg.  SetPLL2, ChkTime[0x1], PLL Stat[0x4]\n, ErrCode[0x3010003]\r\n"},
        {"TDM mode refused", [](bool) {}, 2, 0, 0, kStepFailed, step + "VQ6192_Framer_SetFrmTDMMode ErrCode[0x30e0001]\r\n"},
        {"register test", [this](bool on) { control().setNonInvertingBits(on ? 0xFFFF : 0); }, 0, 0, 0, kStepFailed,
         step + "VQ6192_Base_GetChipStatus ErrCode[0x3010007]\r\n"},
        {"DDR never ready", [this](bool on) { ddrCtrl().setBusyReads(on ? DdrCtrlBlock::kForever : 0); }, 0, 0, 0,
         kDdrStartFailed, "Err. VQ6192_Base_InitDDR.  TimeOut \r\n"},
        {"DDR training", [this](bool on) { ddrCtrl().setTraining(on ? 7 : 15); }, 0, 0, 0, kDdrStartFailed,
         "Err. VQ6192_Base_InitDDR.  DDR Init Dtr Err[700]. \r\n"},
        {"DDR scan error", [this](bool on) { on ? ddr().failScan(0x100, 2, {0, 0, 0, 0}) : ddr().passScan(); }, 0, 1, 0,
         kStepFailed, step + "VQ6192_Base_DDR9StepTest ErrCode[0x3010007]\r\n"},
        {"MAC tables stuck", [&](bool on) { model.tables().holdBusy(0x4000, on ? stuck : 0); }, 0, 0, 0, kStepFailed,
         step + "VQ6192_ETH_SetMACAttr ErrCode["},
        {"CES tables stuck", [&](bool on) { model.tables().holdBusy(0xA000, on ? stuck : 0); }, 0, 0, 0, kStepFailed,
         step + "VQ6192_CES_InitCesModule ErrCode["},
        {"framer option low byte 2", [](bool) {}, 0, 0, 0x0102, kStepFailed, step + "VQ6192_Framer_FrmInit ErrCode[0x30e0001]\r\n"},
    };
    // clang-format on
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        c.fault(true);
        capture.clear();
        const auto t = traced([&] {
            EXPECT_EQ(VQ6192_Base_Initialize(kChip, 1, c.tdm, c.ddrTest, c.frmOption, nullptr), c.rc);
        });
        EXPECT_TRUE(hasLineStarting(capture.traceTexts(), c.trace))
            << testing::PrintToString(capture.traceTexts());
        for (const auto &line : capture.traces) {  // the chip module's own lines: module 1, level 4
            EXPECT_TRUE(line.text.rfind("Err. VQ6192_Base_", 0) != 0 || (line.module == 1 && line.level == 4))
                << line.text;
        }
        EXPECT_FALSE(wrote(t, 0x200)) << "bring-up stops at the failing step: the SerDes are never started";
        c.fault(false);
    }
    // With the scan passing, the DDR test runs and bring-up completes.
    EXPECT_EQ(VQ6192_Base_Initialize(kChip, 1, 0, 1, 0, nullptr), 0u);
    EXPECT_EQ(ddr().scansStarted(), 2u);
}

TEST_F(Init, RestoreRunsOnlyTheModuleInitialisers) {
    const auto direct = traced([&] { runInitialisers(2); });
    VQ6192_Platform_ResetVirtualTime();
    const auto restore = traced([&] { EXPECT_EQ(VQ6192_Base_Initialize(kChip, 2, 1, 1, 0, nullptr), 0u); });
    EXPECT_EQ(restore, direct);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 0u);
    EXPECT_EQ(ddr().scansStarted(), 0u);
    // A failing initialiser ends the restore with the step failure.
    EXPECT_EQ(VQ6192_Base_Initialize(kChip, 2, 0, 0, 0x02, nullptr), kStepFailed);
}

TEST_F(Init, MacPortFailuresAreToldApart) {
    ASSERT_EQ(VQ6192_Base_Initialize(kChip, 1, 0, 0, 0, nullptr), 0u);
    const vq::chip::BringUpStep &ports = vq::chip::bringUpSteps().back();  // the last step
    ASSERT_STREQ(ports.name, "MAC ports");
    // A lock failure injected ever later in the step: port 1 fails first, then port 2, then nothing.
    const vq::chip::BringUpRun run{kChip, 1, 0, 0, 0, nullptr};
    U32s seen;
    for (uint32_t after = 0; after < 64 && (seen.empty() || seen.back() != 0); ++after) {
        VQ6192_Platform_FailSemTakes(after, 1);
        const uint32_t rc = ports.run(run);
        VQ6192_Platform_FailSemTakes(0, 0);
        if (seen.empty() || seen.back() != rc) {
            seen.push_back(rc);
        }
    }
    EXPECT_EQ(seen, (U32s{kStepFailed, kBaseFailed, 0}));
    EXPECT_TRUE(hasLineStarting(capture.traceTexts(),
                                "Err. VQ6192_Base_Initialize.  VQ6192_ETH_SetMACAttr ErrCode["));
}

}  // namespace
