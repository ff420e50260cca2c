// Chip identity, the register test, die id, ECC state, clock selections, PLL and service power.
#include <random>
#include "chip_fixture.h"

namespace {

using namespace chiptest;
using Service = vq6192::sim::ChipControlBlock::Service;
using Health = ChipFixture;

TEST_F(Health, VersionTextAndRegister) {
    char buf[64] = {};
    control().setVersion(0xABCD, 0x0001);
    EXPECT_EQ(VQ6192_Base_GetVersion(kChip, buf, 40), 0u);  // 40 bytes are enough
    EXPECT_STREQ(buf, "VQabcdV0001 DRV REL 2.5.600  \n");
    uint32_t reg = 0;
    EXPECT_EQ(traced([&] { EXPECT_EQ(VQ6192_Base_GetVersionReg(kChip, &reg), 0u); }),
              (Accesses{rd(0x00, 0xABCD), rd(0x02, 0x0001)}));
    EXPECT_EQ(reg, 0xABCD0001u);
}

TEST_F(Health, RegisterTestReportsTheStepAndTheBitsThatDidNotInvert) {
    struct Case {
        const char *name;
        uint16_t nonInverting, stuckAt1;
        uint32_t rc, written, read, fail0, fail1;
    };
    const Case cases[] = {
        {"healthy", 0, 0, 0, 0xAAAA, 0x5555, 0, 0},
        {"no inversion", 0xFFFF, 0, kBaseFailed, 0x5555, 0x5555, 0xFFFF, 0},
        {"bit 0 follows", 0x0001, 0, kBaseFailed, 0x5555, 0xAAAB, 0x0001, 0},
        {"bit 15 stuck at 1", 0, 0x8000, kBaseFailed, 0xAAAA, 0xD555, 0, 0x8000},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        model.clearStuckBits();
        control().setNonInvertingBits(c.nonInverting);
        model.stickBits(0x04, c.stuckAt1, c.stuckAt1);
        uint8_t failed = 9;
        uint16_t readVal = 0, writeVal = 0, written = 0, read = 0;
        uint32_t fail[2] = {7, 7};
        EXPECT_EQ((U32s{VQ6192_Base_GetChipStatus(kChip, &failed, &readVal, &writeVal),
                        VQ6192_Base_ChipRWTest(kChip, &written, &read),
                        VQ6192_Base_GetChipStatus_Test(kChip, fail)}),
                  U32s(3, c.rc));
        EXPECT_EQ((U32s{failed, written, read, fail[0], fail[1]}),
                  (U32s{c.rc != 0, c.written, c.read, c.fail0, c.fail1}));
        if (c.rc != 0) {  // the failing step's values
            EXPECT_EQ((U32s{readVal, writeVal}), (U32s{c.read, c.written}));
        }
    }
    model.clearStuckBits();
    control().setNonInvertingBits(0);
    uint32_t fail[2];
    EXPECT_EQ(traced([&] { VQ6192_Base_GetChipStatus_Test(kChip, fail); }),
              (Accesses{wr(0x04, 0x5555), rd(0x04, 0xAAAA), wr(0x04, 0xAAAA), rd(0x04, 0x5555)}));
}

TEST_F(Health, DieIdRecord) {
    // Control 0x9: read protect, write done; CRC 0x0A7: CRC wrong, CRC 0xA7.
    control().setDieId({0x9, 0x0A7, {1, 2, 3, 4, 5, 6, 0xFFFF, 0xFFFF}});
    VQ6192_DIE_ID die{};
    EXPECT_EQ(VQ6192_Base_GetDieID(kChip, &die), 0u);
    EXPECT_EQ((U16s{die.byRead_protect_out, die.byWrite_protect_out, die.byDieId_read_done,
                    die.byDieId_write_done, die.byDieId_crc_right, die.byDieId_crc}),
              (U16s{1, 0, 0, 1, 0, 0xA7}));
    EXPECT_EQ((U16s{die.byDieId_out_0, die.byDieId_out_1, die.byDieId_out_2, die.byDieId_out_3,
                    die.byDieId_out_4, die.byDieId_out_5, die.byDieId_out_6, die.byDieId_out_7}),
              (U16s{1, 2, 3, 4, 5, 6, 0xFFFF, 0x3F}));
}

TEST_F(Health, EccStateReadsBitsSevenToFourAndClearsThem) {
    ddr().raiseEcc(0xA0);
    uint16_t a = 9, b = 9, c = 9, d = 9;
    const auto t = traced([&] { EXPECT_EQ(VQ6192_Base_GetEccState(kChip, &a, &b, &c, &d), 0u); });
    EXPECT_EQ((U16s{a, b, c, d}), (U16s{1, 0, 1, 0}));
    EXPECT_EQ(writes(t), (Accesses{wr(0xD00C, 0xF0), wr(0xD00E, 0), wr(0xD00C, 0), wr(0xD00E, 0)}));
    EXPECT_EQ(VQ6192_Base_GetEccState(kChip, &a, &b, &c, &d), 0u);
    EXPECT_EQ((U16s{a, b, c, d}), (U16s{0, 0, 0, 0}));
}

TEST_F(Health, FramePulseState) {
    for (const auto &[reg, fp] :
         {std::pair{0x18u, U32s{1, 1}}, {0x08u, {1, 0}}, {0x10u, {0, 1}}, {0xFFE7u, {0, 0}}}) {
        poke({{0x20012, reg}});
        uint32_t a = 9, b = 9;
        EXPECT_EQ(VQ6192_GetFpState(kChip, &a, &b), 0u);
        EXPECT_EQ((U32s{a, b}), fp) << reg;
    }
}

TEST_F(Health, ClockPllCheckClearsLatchedAlarmsAndReportsLastingOnes) {
    uint8_t alarm = 9;
    irq().raise(0x100, 0x63F);  // alarms that have gone away
    const auto t = traced([&] { EXPECT_EQ(VQ6192_Base_CheckClkPll(kChip, &alarm), 0u); });
    EXPECT_EQ(t, (Accesses{wr(0xC2, 0x63F), wr(0x100, 0x63F), rd(0x100, 0)}));
    EXPECT_EQ(alarm, 0);
    irq().setActive(0x100, 1u << 1);  // PLL1 out of lock
    EXPECT_EQ(VQ6192_Base_CheckClkPll(kChip, &alarm), 0u);
    EXPECT_EQ(alarm, 1);
    irq().clearActive(0x100, 1u << 1);
    irq().setActive(0x100, 1u << 6);  // not one of the clock alarms
    EXPECT_EQ(VQ6192_Base_CheckClkPll(kChip, &alarm), 0u);
    EXPECT_EQ(alarm, 0);
}

TEST_F(Health, ClockSelectionsWriteTheirBit) {
    struct Case {
        const char *name;
        uint32_t (*set)(uint32_t, uint32_t);
        uint32_t (*get)(uint32_t, uint32_t *);
        uint32_t addr, bit;
    };
    const Case cases[] = {
        {"E3 out", VQ6192_Base_SetE3OutClkSel, VQ6192_Base_GetE3OutClkSel, 0x240, 1},
        {"MAC", VQ6192_Base_SetMacClkSel, VQ6192_Base_GetMacClkSel, 0x240, 15},
        {"detect", VQ6192_Base_SetClkDetectSel, VQ6192_Base_GetClkDetectSel, 0x240, 0},
        {"SerDes tx", VQ6192_Base_SetSdsTxclkSel, VQ6192_Base_GetSdsTxclkSel, 0x08, 13},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        poke({{0x240, 0x1234}, {0x08, 0x1234}});
        auto t = writes(traced([&] { EXPECT_EQ(c.set(kChip, CDK_FE_VQ6192_MAC_CLK_PLL), 0u); }));
        ASSERT_FALSE(t.empty());
        EXPECT_EQ(t[0], wr(c.addr, 0x1234u | 1u << c.bit));
        uint32_t on = 9, off = 9;
        EXPECT_EQ(
            (U32s{c.get(kChip, &on), c.set(kChip, CDK_FE_VQ6192_CLK_DETECT_SERDES), c.get(kChip, &off)}),
            U32s(3, 0));
        EXPECT_EQ((U32s{on, off, model.peek(c.addr)}), (U32s{1, 0, 0x1234u & ~(1u << c.bit)}));
        expectRefused({{"selection 2", kBasePara, [&] { return c.set(kChip, 2); }}});
    }
    // The SerDes transmit clock selection is mirrored into reg 0x240 bit 14.
    model.poke(0x240, 0);
    EXPECT_EQ(VQ6192_Base_SetSdsTxclkSel(kChip, 1), 0u);
    EXPECT_EQ(model.peek(0x240), 0x4000);
}

TEST_F(Health, PllPowerDownBits) {
    const uint32_t regs[4] = {0x2A, 0x4A, 0x6A, 0x8A};
    for (uint32_t pll = 0; pll < 4; ++pll) {
        SCOPED_TRACE(pll);
        model.poke(regs[pll], 0xFFFF);
        const uint16_t cfg[5] = {1, 0, 1, 0, 1};  // VCO, post divider, phase, DSM, whole PLL
        const auto t = traced([&] { EXPECT_EQ(VQ6192_Base_SetPLLPowerDown(kChip, pll, cfg), 0u); });
        EXPECT_EQ(t, (Accesses{rd(regs[pll], 0xFFFF), wr(regs[pll], 0xFFEB)}));
        VQ6192_PLL_PD_CFG back{};
        EXPECT_EQ(VQ6192_Base_GetPLLPowerDown(kChip, pll, &back.wSysPllVcoPd), 0u);
        EXPECT_EQ((U16s{back.wSysPllVcoPd, back.wSysPllPdivPd, back.wSysPllPhasePd, back.wSysPllDsmPd,
                        back.wSysPllPd}),
                  (U16s{1, 0, 1, 0, 1}));
        const uint16_t none[5] = {0, 0, 0, 0, 0};
        EXPECT_EQ(VQ6192_Base_SetPLLPowerDown(kChip, pll, none), 0u);
        EXPECT_EQ(model.peek(regs[pll]), 0xFFC2);
    }
    model.poke(0x4A, 0x0100);
    EXPECT_EQ(VQ6192_Base_SetPLL1TotalPowerDown(kChip), 0u);
    EXPECT_EQ(model.peek(0x4A), 0x0141);
}

// The service table of the chip: each service's bit in the power (0x18), clock (0x06), reset (0x0A)
// and isolation (0x16) registers, which are not the same position in every register.
struct ServiceCase {
    uint32_t srv;
    Service block;
    uint32_t power, clock, reset, isolation, mask;
    std::string on, down;  // the failure texts' service and status fields when half the status is up
};
// clang-format off
const ServiceCase kServices[] = {
    {0, Service::Ppp, 1, 1, 1, 1, 0xFFF, "0], stat[7ff]", "0], stat[fff]"},
    {1, Service::Ppp, 1, 1, 1, 1, 0xFFF, "1], stat[7ff]", "1], stat[fff]"},
    {2, Service::Atm, 0, 2, 2, 0, 0x3F, "2], stat[1f]", "2], stat[3f]"},
    {3, Service::Ces, 2, 0, 0, 2, 0xF, "3], stat[7]", "3], stat[f]"},
};
// clang-format on

// From random contents of the four registers, powering a service up or down changes exactly its own
// bit of each, in the order of the sequence: up writes power, then clock, reset and isolation once
// the status is complete; down writes isolation, reset, clock and power.
TEST_F(Health, ServicePowerSequences) {
    std::mt19937 rng(0x6192);
    for (const ServiceCase &s : kServices) {
        for (int round = 0; round < 4; ++round) {
            SCOPED_TRACE(testing::Message() << "srv " << s.srv << " round " << round);
            const uint16_t bg[4] = {static_cast<uint16_t>(rng()), static_cast<uint16_t>(rng()),
                                    static_cast<uint16_t>(rng()), static_cast<uint16_t>(rng())};
            const uint32_t regs[4] = {0x18, 0x06, 0x0A, 0x16};
            const uint32_t bits[4] = {s.power, s.clock, s.reset, s.isolation};
            auto with = [&](int k, uint32_t v) {
                return static_cast<uint16_t>((bg[k] & ~(1u << bits[k])) | v << bits[k]);
            };
            for (int k = 0; k < 4; ++k) {
                model.poke(regs[k], k == 0 ? with(0, 0) : bg[k]);
            }
            uint16_t down = 9, upDown = 9, stat = 9, downStat = 9;  // no power: powered down
            VQ6192_Platform_ResetVirtualTime();
            const auto up = writes(traced([&] {
                EXPECT_EQ((U32s{VQ6192_Base_GetSrvPowerDownEn(kChip, s.srv, &down),
                                VQ6192_Base_SetSrvPowerDownEn(kChip, s.srv, 0),
                                VQ6192_Base_GetSrvPowerDownEn(kChip, s.srv, &upDown),
                                VQ6192_Base_GetSrvPdStat(kChip, s.srv, &stat)}),
                          U32s(4, 0));
            }));
            EXPECT_EQ(up, (Accesses{wr(0x18, with(0, 1)), wr(0x06, with(1, 1)), wr(0x0A, with(2, 0)),
                                    wr(0x16, with(3, 0))}));
            const auto off = writes(traced([&] {
                EXPECT_EQ(VQ6192_Base_SetSrvPowerDownEn(kChip, s.srv, 1), 0u);
                EXPECT_EQ(VQ6192_Base_GetSrvPdStat(kChip, s.srv, &downStat), 0u);
            }));
            EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 20u);  // 10 us each way
            EXPECT_EQ(off, (Accesses{wr(0x16, with(3, 1)), wr(0x0A, with(2, 1)), wr(0x06, with(1, 0)),
                                     wr(0x18, with(0, 0))}));
            EXPECT_EQ((U32s{down, upDown, stat, downStat}), (U32s{1, 0, s.mask, 0}));
        }
    }
}

TEST_F(Health, ServiceThatDoesNotPowerUpOrDown) {
    for (const ServiceCase &s : kServices) {
        SCOPED_TRACE(s.srv);
        poke({{0x18, 0}, {0x06, 0}});
        capture.clear();
        control().holdPowerStatus(s.block, static_cast<uint16_t>(s.mask >> 1));
        VQ6192_Platform_ResetVirtualTime();
        uint32_t rc = 0;
        const auto up = writes(traced([&] { rc = VQ6192_Base_SetSrvPowerDownEn(kChip, s.srv, 0); }));
        // Three polls, 10 us each; clock, reset and isolation stay as they were.
        EXPECT_EQ((U64s{rc, VQ6192_Platform_GetVirtualTimeUs(), up.size()}), (U64s{kBaseFailed, 30, 1}));
        EXPECT_EQ(capture.traceTexts(), Lines{"Err. VQ6192_Base_SetSrvPowerDownEn.  Power On Err srv[" +
                                              s.on + "  ErrCode[0x3010007]\r\n"});

        capture.clear();
        control().holdPowerStatus(s.block, s.mask);
        EXPECT_EQ(VQ6192_Base_SetSrvPowerDownEn(kChip, s.srv, 1), kBaseFailed);
        EXPECT_EQ(capture.traceTexts(), Lines{"Err. VQ6192_Base_SetSrvPowerDownEn.  Power Down Err srv[" +
                                              s.down + " ErrCode[0x3010007]\r\n"});
        control().releasePowerStatus(s.block);
    }
}

TEST_F(Health, ParameterErrorsTouchNoRegister) {
    char buf[64];
    uint16_t u16 = 0, cfg[5] = {};
    const uint16_t bad[5] = {0, 0, 2, 0, 0};
    // clang-format off
    expectRefused({
        {"version len 39", kBasePara, [&] { return VQ6192_Base_GetVersion(kChip, buf, 39); }},
        {"set pll cfg value 2", kBasePara, [&] { return VQ6192_Base_SetPLLPowerDown(kChip, 0, bad); }},
        {"set pll 4", kBasePara, [&] { return VQ6192_Base_SetPLLPowerDown(kChip, 4, bad); }},
        {"get pll 4", kBasePara, [&] { return VQ6192_Base_GetPLLPowerDown(kChip, 4, cfg); }},
        {"srv 4", kBasePara, [&] { return VQ6192_Base_SetSrvPowerDownEn(kChip, 4, 0); }},
        {"srv enable 2", kBasePara, [&] { return VQ6192_Base_SetSrvPowerDownEn(kChip, 2, 2); }},
        {"srv stat 4", kBasePara, [&] { return VQ6192_Base_GetSrvPdStat(kChip, 4, &u16); }},
    });
    // clang-format on
}

}  // namespace
