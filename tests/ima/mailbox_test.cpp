// The IMA processor mailbox, the block start and reset, UNI links, VC-4 ports, TC resets and the link
// parameters.
#include <array>
#include <numeric>
#include <tuple>
#include <vector>

#include "ima_fixture.h"

namespace {

using namespace imatest;

BusAccess w16(uint32_t addr, uint32_t value) {
    return {BusOp::Write, addr, value, 0, 16};
}

class MailboxTest : public ImaTest {};

TEST_F(MailboxTest, CommandRegisterSequence) {
    model.poke(0x4440, 0x00FF);  // low bits of the control register are kept
    const uint32_t para[4] = {7, 0x12345678, 0xABCD0001, 0x00010002};
    const auto t = traced([&] { EXPECT_EQ(VQ6192_IMA_RunCmd(kChip, 17, para), 0u); });
    // Field writes reach the host as read-modify-write: code 17, start 1, start 0 (accepted reads 1).
    const std::vector<BusAccess> expect = {w16(0x4440, 0x11FF), w16(0x4442, 7),      w16(0x4444, 0x5678),
                                           w16(0x4446, 0x1234), w16(0x4448, 0x0001), w16(0x444A, 0xABCD),
                                           w16(0x444C, 0x0002), w16(0x444E, 0x0001), w16(0x4440, 0x31FF),
                                           w16(0x4440, 0x51FF)};
    EXPECT_EQ(vqtest::writes(t), expect);
    EXPECT_EQ(proc().commands(), (std::vector<Proc::Command>{{17, 7, 0x12345678, 0xABCD0001, 0x00010002}}));
    EXPECT_EQ(model.peek(0x4440) & 0xFF, 0xFFu);
}

TEST_F(MailboxTest, RunCmdPassesOnlyKnownCodes) {
    const uint32_t para[4] = {1, 0, 0, 0};
    for (uint32_t code : {3u, 7u, 10u, 11u, 14u, 15u, 18u, 23u, 27u, 31u}) {
        SCOPED_TRACE(code);
        expectRefused(
            "unknown code", [&] { return VQ6192_IMA_RunCmd(kChip, code, para); }, nullptr);
    }
    for (uint32_t code : {0u, 1u, 2u, 4u, 5u, 6u, 8u, 9u, 12u, 13u, 16u, 17u, 24u, 25u, 26u}) {
        EXPECT_EQ(VQ6192_IMA_RunCmd(kChip, code, para), 0u) << code;
    }
    EXPECT_EQ(proc().commands().size(), 15u);
}

TEST_F(MailboxTest, BusyRefusedAndWaits) {
    // Idle; busy for 3 polls before; busy for ever; the command runs 4 polls; never ends; refused.
    const std::tuple<std::function<void(Proc &)>, uint32_t, uint64_t> cases[] = {
        {[](Proc &) {}, 0, 0},
        {[](Proc &p) { p.holdBusy(3); }, 0, 300},
        {[](Proc &p) { p.holdBusy(Proc::kForever); }, kTimeout, 1000 + 100},
        {[](Proc &p) { p.setCommandBusy(4); }, 0, 40},
        {[](Proc &p) { p.setCommandBusy(50); }, kTimeout, 100},
        {[](Proc &p) { p.refuse(1); }, kRefusedCmd, 0},
    };
    const uint32_t para[4] = {9, 0, 0, 0};
    for (const auto &[fault, status, ticks] : cases) {
        SCOPED_TRACE(ticks);
        proc().holdBusy(0);
        proc().setCommandBusy(0);
        proc().refuse(0);
        proc().clearCommands();
        fault(proc());
        VQ6192_Platform_ResetVirtualTime();
        EXPECT_EQ(VQ6192_utlRippCmd(kChip, 2, para), status);
        EXPECT_EQ(proc().commands().size(), 1u) << "the command is written even after a busy time-out";
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), ticks * kTickUs + 1);
        EXPECT_EQ(model.peek(0x4440) & (1u << 13), 0u) << "start bit back to 0";
    }
}

TEST_F(MailboxTest, InitImaStartsTheBlock) {
    poke({{0x5030, 0xFFF8}, {0x4008, 0xFFFE}, {0x5024, 0xFFFE}, {0x4C20, 0xFFFF}, {0x5028, 0xFFFF}});
    model.poke(0x000A, 0x00FF);
    setBits(kPpB, kTxc, 335, 0, 32, 0xC0050000);
    ASSERT_EQ(VQ6192_IMA_InitIma(kChip, 1), 0u);
    // VC-4 group and enable cleared (0x4C20); the block reset pulsed and released (0x000A).
    EXPECT_EQ(peek({0x5030, 0x4008, 0x5024, 0x4C20, 0x5028, 0x000A}),
              (U32s{0xFFFA, 0xFFFF, 0xFFFF, 0xFC00, 0xFFF0, 0x00FF}));
    EXPECT_EQ(word(kPpB, kTxc, 335), 0u);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 200 * kTickUs) << "reset pulse 100 ticks, settle 100 ticks";
    // TC defaults of every link.
    for (uint32_t link : {0u, 335u}) {
        EXPECT_EQ(bits(kTcB, kRxCfg, link, 0, 64), 0xFFFFFFFF'00000000ull) << "header, header mask 0";
        // 95 link, 93 coset, 90 correction, 89 idle, 88 HEC, 87 OCD; alpha 7, delta 6, LCD 8 ms
        EXPECT_EQ(bits(kTcB, kRxCfg, link, 64, 32), (1u << 31) | (1u << 29) | (1u << 26) | (1u << 25) |
                                                        (1u << 24) | (1u << 23) | (7u << 19) | (6u << 15) |
                                                        (8u << 7));
        EXPECT_EQ(bits(kTcB, kTxCfg, link, 0, 47),
                  (1ull << 46) | (1ull << 44) | (1ull << 42) | (1ull << 40) | (1ull << 32) | (1ull << 24));
    }
    expectRefused("mode 3", [] { return VQ6192_IMA_InitIma(kChip, 3); });
    EXPECT_TRUE(traced([] { EXPECT_EQ(VQ6192_IMA_InitIma(kChip, 2), 0u); }).empty()) << "mode 2 does nothing";
    // The block never leaves busy: nothing started.
    model.stickBits(0x4004, 1, 1);
    model.poke(0x5030, 0);
    capture.clear();
    VQ6192_Platform_ResetVirtualTime();
    EXPECT_EQ(VQ6192_IMA_InitIma(kChip, 1), kTimeout);
    EXPECT_EQ(capture.traceTexts(),
              Texts{"Err. VQ6192_IMA_InitIma.ReadImaBusy(3)       TimeOut ErrCode[0x30d0003]\r\n"});
    EXPECT_EQ((U64s{VQ6192_Platform_GetVirtualTimeUs(), model.peek(0x5030)}), (U64s{100 * kTickUs, 0}));
}

TEST_F(MailboxTest, LinkParametersAutoProcessingAndUniLinks) {
    model.poke(0x4C10, 0xFF00);
    EXPECT_EQ((U64s{VQ6192_IMA_SetImaLinkParam(kChip, 2, 3, 5), model.peek(0x4C10)}), (U64s{0, 0xFFAEu}));
    for (auto args :
         {std::array<uint32_t, 3>{0, 1, 1}, {3, 1, 1}, {1, 0, 1}, {1, 6, 1}, {1, 1, 0}, {1, 1, 6}}) {
        expectRefused("out of range",
                      [&] { return VQ6192_IMA_SetImaLinkParam(kChip, args[0], args[1], args[2]); });
    }
    model.poke(0x4452, 0xF00F);
    for (const auto &p : {std::array<uint32_t, 3>{0x0F0, 1, 0xF0FF}, {0x00F, 0, 0xF0F0}}) {
        EXPECT_EQ((U64s{VQ6192_IMA_SetAutoProcEn(kChip, p[0], p[1]), model.peek(0x4452)}), (U64s{0, p[2]}));
    }
    expectRefused("mask past bit 10", [] { return VQ6192_IMA_SetAutoProcEn(kChip, 0x800, 1); });
    setBits(kTxB, kInGrp, 20, 0, 64, 0xFF);
    setBits(kTxB, kTxGpc, 20, 0, 32, 0xFFFF);
    ASSERT_EQ(VQ6192_IMA_AddTcLink(kChip, 33, 20, 20), 0u);
    // Idle filter on, group configuration cleared, LID 0 on link 33 and the rest unused, just this link in
    // the group, a UNI link (2) of group 20 both ways, the SCVC entry.
    EXPECT_EQ((U64s{bits(kTcB, kRxCfg, 33, 89, 1), word(kTxB, kTxGpc, 20), bits(kTxB, kMap, 20 * 32, 0, 9),
                    bits(kTxB, kMap, 20 * 32 + 1, 0, 9), bits(kTxB, kInGrp, 20, 0, 64), word(kPpB, kTxc, 33),
                    word(kPpB, kRxc, 33), bits(kRxB, kScvc, 33 * 4, 0, 10)}),
              (U64s{1, 0, 33, 511, 1ull << 33, 0x80140000, 0x80140000, 0x200u | 20u}));
    expectRefused("second group differs", [] { return VQ6192_IMA_AddTcLink(kChip, 33, 20, 21); });

    EXPECT_EQ((U64s{VQ6192_IMA_DelTcLink(kChip, 33), bits(kTxB, kInGrp, 20, 0, 64)}), (U64s{0, 0u}));
    EXPECT_EQ(proc().commands(), (std::vector<Proc::Command>{{13, 20, 0, 0, 0}}));

    setBits(kPpB, kTxc, 40, 30, 2, 3);
    capture.clear();
    EXPECT_EQ(VQ6192_IMA_DelTcLink(kChip, 40), kInUse);
    EXPECT_EQ(capture.traceTexts(), Texts{"Err. VQ6192_IMA_DelTcLink(3,40)      ErrCode[0x30d0006]\r\n"});
}

TEST_F(MailboxTest, Vc4TransparentPortAndTcReset) {
    poke({{0x4C22, 0xFC00}, {0x5028, 0xFFF0}});
    ASSERT_EQ(VQ6192_IMA_AddVc4(kChip, 1, 7), 0u);
    EXPECT_EQ(peek({0x4C22, 0x5028}), (U32s{0xFE07, 0xFFF2})) << "group 7, enable bit 9, 10..15 kept";
    uint16_t en = 0, port = 0, grp = 0;
    EXPECT_EQ((U32s{VQ6192_IMA_GetImaVC4Cfg(kChip, 1, &en, &port, &grp), en, port, grp}), (U32s{0, 1, 1, 7}));
    for (uint32_t l : {84u, 167u}) {
        EXPECT_EQ(
            (U64s{bits(kTcB, kRxCfg, l, 89, 1), bits(kTcB, kRxCfg, l, 95, 1), bits(kTxB, kMap, l * 32, 0, 9),
                  word(kTxB, kTxGpc, l), bits(kRxB, kRxGpc, l, 20, 8), word(kPpB, kTxc, l)}),
            (U64s{1, 1, 84, (1u << 27) | (7u << 18) | (1u << 9) | (1u << 8) | 3u, 84,
                  0x80000000u | (l << 16)}));
    }
    // 84 receive reset pulses of 10 + 10 ticks, and the wait after the receive enables.
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), (10 + 84 * 20) * kTickUs);
    expectRefused("VC-4 4", [] { return VQ6192_IMA_AddVc4(kChip, 4, 7); });
    model.poke(0x5200, 0xFFFC);
    const uint16_t links[2] = {3, 4};
    const auto t = traced([&] { EXPECT_EQ(VQ6192_IMA_ResetTc(kChip, 3, 2, links), 0u); });
    size_t pulses = 0;
    for (const BusAccess &a : vqtest::writes(t)) {
        pulses += a.addr == 0x5200 ? 1 : 0;
    }
    EXPECT_EQ(pulses, 8u) << "transmit and receive pulse, 1 then 0, per link";
    EXPECT_EQ(model.peek(0x5200), 0xFFFCu);
    setBits(kTcB, kTxCfg, 4, 46, 1, 1);
    proc().setDrainReads(Proc::kForever);
    EXPECT_EQ(VQ6192_IMA_ResetTc(kChip, 2, 2, links), 0x000D0004u) << "no chip bits";
    expectRefused("which 0", [&] { return VQ6192_IMA_ResetTc(kChip, 0, 2, links); });
    expectRefused("n 337", [&] { return VQ6192_IMA_ResetTc(kChip, 1, 337, links); });
    proc().setDrainReads(0);
    std::vector<uint16_t> all(336);
    std::iota(all.begin(), all.end(), uint16_t{0});
    EXPECT_EQ(VQ6192_IMA_ResetTc(kChip, 1, 336, all.data()), 0u) << "every TC link in one call";
    model.poke(0x000A, 0x1234);
    EXPECT_EQ((U64s{VQ6192_IMA_ResetVc(kChip), model.peek(0x000A)}), (U64s{0, 0x1234u}));
}

}  // namespace
