// Multilink bundles: membership and the egress member counts, the bundle reset handshakes with their
// codes and virtual waits, the SN format change, and the per-bundle settings.
#include <cstring>

#include "ppp_fixture.h"

namespace {

using namespace ppptest;
using vq6192::sim::PppBlock;

class BundleTest : public PppTest {
  protected:
    uint32_t &count(uint32_t b) { return g_vq6192[kChip].aulMpChanCnt[b]; }
};

TEST_F(BundleTest, FirstEgressMemberSwitchesTheQueuesOnAndTheLastOff) {
    setEntry(kLinkcfg, 20, 0x3C01);  // a PPP link, not in a bundle
    setEntry(kLinkcfg, 21, 0x3C01);
    setEntry(kHdlccfg2, 20, 0x0FF);
    EXPECT_EQ((U64s{VQ6192_PPP_AddPppChanToMp(kChip, 20, 7, 2), count(7)}), (U64s{0, 1u}));
    // Linkcfg: bundle 7 at bits 2..9, member flag bit 1, PPP bit 0.
    EXPECT_EQ((U64s{entry(kQmencfg, 256 + 7), entry(kLinkcfg, 20), entry(kHdlccfg2, 20)}),
              (U64s{0xFF, 0x3C1F, 0x107}));

    setEntry(kQmencfg, 256 + 7, 0x0F);
    EXPECT_EQ((U64s{VQ6192_PPP_AddPppChanToMp(kChip, 21, 7, 1), count(7)}), (U64s{0, 2u}));
    EXPECT_EQ(entry(kQmencfg, 256 + 7), 0x0Fu) << "a second member leaves the queues";
    EXPECT_EQ(entry(kHdlccfg2, 21), 0u) << "egress only";

    EXPECT_EQ((U64s{VQ6192_PPP_RemovePppChanFromMp(kChip, 21, 7, 1), count(7)}), (U64s{0, 1u}));
    EXPECT_TRUE(ppp().bundleResets().empty());

    VQ6192_Platform_ResetVirtualTime();
    EXPECT_EQ((U64s{VQ6192_PPP_RemovePppChanFromMp(kChip, 20, 7, 2), count(7)}), (U64s{0, 0u}));
    EXPECT_EQ(ppp().bundleResets(), U32s{7});
    // The bundle number stays, the member flag goes.
    EXPECT_EQ((U64s{entry(kQmencfg, 256 + 7), entry(kLinkcfg, 20), entry(kHdlccfg2, 20)}),
              (U64s{0, 0x3C1D, 0x007}));
    // 30 ms after the queues go off, one 30 ms drain attempt, two 10 ms ready waits of the reset.
    EXPECT_EQ(virtualUs(), 30000u + 30000u + 5u + 20000u);
    EXPECT_TRUE(tracedLine("VQ6192_PPP_AddPppChanToMp:[20] To MP Bundle:[7] Direct:[2]\n"));
    EXPECT_TRUE(tracedLine("VQ6192_PPP_RemovePppChanFromMp : Remove PPP:[20] From MP Bundle Direct:[2]\n"));
}

TEST_F(BundleTest, MemberCountingRules) {
    // Linkcfg of channel 30 before (bundle at bits 2..9, member flag 1, PPP 0), add (0) or remove (1) with
    // bundle 5, counts of bundles 3 and 5 before and after, bundle resets.
    for (const auto &[link, op, before3, before5, after3, after5, resets] : Rows<7>{
             {0x1, 0, 0, 0, 0, 1, 0},   // add a PPP link
             {0x0, 0, 0, 0, 0, 0, 0},   // add a plain HDLC link
             {0xF, 0, 1, 0, 0, 1, 0},   // move from bundle 3
             {0xF, 0, 0, 0, 0, 1, 0},   // move from bundle 3 whose count is 0
             {0x17, 0, 0, 1, 0, 1, 0},  // add to its own bundle again
             {0x17, 1, 0, 0, 0, 0, 0},  // remove with a count of 0
             {0x17, 1, 0, 2, 0, 1, 0},  // remove one of two
             {0x15, 1, 0, 2, 0, 2, 0},  // remove a non-member
             {0xF, 1, 1, 2, 0, 2, 1}    // remove naming bundle 5 for a link of bundle 3: bundle 3 loses it
         }) {
        SCOPED_TRACE(testing::Message() << "link " << link << " op " << op);
        model.tables().clear();
        setEntry(kLinkcfg, 30, link);
        count(3) = static_cast<uint32_t>(before3), count(5) = static_cast<uint32_t>(before5);
        const size_t strobes = ppp().bundleResets().size();
        EXPECT_EQ(op == 0 ? VQ6192_PPP_AddPppChanToMp(kChip, 30, 5, 1)
                          : VQ6192_PPP_RemovePppChanFromMp(kChip, 30, 5, 1),
                  0u);
        EXPECT_EQ((U64s{count(3), count(5), ppp().bundleResets().size() - strobes}),
                  (U64s{after3, after5, resets}));
    }
}

TEST_F(BundleTest, ModifyVariantsLeaveTheCountsAlone) {
    setEntry(kLinkcfg, 40, 0x1);
    ASSERT_EQ(VQ6192_PPP_AddPppChanToMp_Modify(kChip, 40, 9, 2), 0u);
    EXPECT_EQ((U64s{count(9), entry(kLinkcfg, 40), entry(kQmencfg, 256 + 9)}), (U64s{0, 0x27, 0}));
    setEntry(kQmencfg, 256 + 9, 0xFF);
    ASSERT_EQ(VQ6192_PPP_RemovePppChanFromMp_Modify(kChip, 40, 9, 1, 1), 0u);
    EXPECT_EQ((U64s{count(9), entry(kLinkcfg, 40), entry(kQmencfg, 256 + 9)}), (U64s{0, 0x25, 0}));
    EXPECT_EQ(ppp().bundleResets(), U32s{9});
    EXPECT_EQ(ppp().groupResets(), U32s{9}) << "mode 2: reassembly and group reset";
}

TEST_F(BundleTest, MembershipReadBack) {
    setEntry(kLinkcfg, 50, 0x1 | 0x2 | 12u << 2);
    setEntry(kHdlccfg2, 50, 0x0C);  // bundle number without the member flag
    uint32_t rx = 0, tx = 0;
    EXPECT_EQ((U32s{VQ6192_PPP_GetPppChanToMp(kChip, 50, &rx, &tx), rx, tx}), (U32s{0, 0xFFFFFFFF, 12}));
    model.tables().holdBusy(kPppBlock, vq6192::sim::TableEngine::kForever);
    rx = 77;
    EXPECT_EQ((U32s{VQ6192_PPP_GetPppChanToMp(kChip, 50, &rx, &tx), rx}), (U32s{0, 77}))
        << "a failed read: 0";
    model.tables().holdBusy(kPppBlock, 0);
}

TEST_F(BundleTest, BundleEnableByDirection) {
    // Direction, 0x13244 after (bundle 37 is bit 5 of register 2), queue enables after.
    for (const auto &[dir, reg, qmen] :
         {std::array<uint32_t, 3>{0, 0xFFFF, 0}, {1, 0xFFDF, 0xFF}, {2, 0xFFFF, 0xFF}}) {
        model.poke(0x13244, 0xFFDF);
        setEntry(kQmencfg, 256 + 37, 0);
        ASSERT_EQ(VQ6192_PPP_SetMpBundleEnable(kChip, 37, 1, static_cast<uint8_t>(dir)), 0u);
        EXPECT_EQ((U64s{model.peek(0x13244), entry(kQmencfg, 256 + 37)}), (U64s{reg, qmen})) << dir;
    }
    uint32_t rx = 9, tx = 9;
    model.poke(0x13244, 0);
    EXPECT_EQ((U32s{VQ6192_PPP_GetMpBundleEnable(kChip, 37, &rx, &tx), rx, tx}), (U32s{0, 0, 1}))
        << "egress always reported on";
}

TEST_F(BundleTest, ResetHandshakesCodesAndWaits) {
    constexpr uint64_t F = PppBlock::kForever;
    // Mode; drain reads that still see blocks (0: empty); reads of 0 from the reset engine before the strobe
    // and after it; group reset refused; status; virtual wait; reassembly strobes; group resets.
    for (const auto &[mode, drain, ready, busy, refuse, status, waitUs, strobes, groups] : Rows<9>{
             {3, 3, 0, 1, 0, 0, 4 * 30000, 0, 0},                        // drains only
             {3, F, 0, 1, 0, kTimeout, 500 * 30000, 0, 0},               // never drains
             {0, 0, 0, 1, 0, 0, 30000 + 10000, 0, 1},                    // group reset
             {0, 0, 0, 1, 1, kTimeout, 30000 + 20 * 10000, 0, 1},        // refused
             {1, 0, 0, 1, 0, 0, 30000 + 5 + 20000, 1, 0},                // reassembly
             {1, 0, F, 1, 0, kTimeout, 30000 + 1300 * 10000, 0, 0},      // never ready
             {1, 0, 0, F, 0, kTimeout, 30000 + 5 + 1300 * 10000, 1, 0},  // never done
             {2, 0, 0, 1, 0, 0, 30000 + 5 + 20000 + 10000, 1, 1}         // both
         }) {
        SCOPED_TRACE(testing::Message() << "mode " << mode << " wait " << waitUs);
        if (drain != 0) {
            ppp().fillQueue(60, 6, 5, static_cast<uint32_t>(drain));
        }
        ppp().holdNotReady(static_cast<uint32_t>(ready));
        ppp().setResetBusy(static_cast<uint32_t>(busy));
        ppp().refuseGroupReset(60, refuse != 0);
        model.poke(0x13086, 0x0001);  // bundle 48's request, same register
        const size_t strobes0 = ppp().bundleResets().size(), groups0 = ppp().groupResets().size();
        VQ6192_Platform_ResetVirtualTime();
        EXPECT_EQ(VQ6192_PPP_ResetMpBundle(kChip, 60, static_cast<uint32_t>(mode)), status);
        EXPECT_EQ(virtualUs(), waitUs);
        EXPECT_EQ((U64s{ppp().bundleResets().size() - strobes0, ppp().groupResets().size() - groups0}),
                  (U64s{strobes, groups}));
        // Bundle 60 is bit 12 of register 3: left set only by a refused handshake; an acknowledged one
        // clears the whole register.
        EXPECT_EQ(model.peek(0x13086), groups == 0 ? 0x0001u : refuse ? 0x1001u : 0u);
        ppp().fillQueue(60, 6, 0, 0);
        ppp().holdNotReady(0);
        ppp().setResetBusy(1);
        ppp().refuseGroupReset(60, false);
    }
    // Every queue of the bundle counts, its first one too.
    ppp().fillQueue(60, 0, 5, static_cast<uint32_t>(F));
    EXPECT_EQ(VQ6192_PPP_ResetMpBundle(kChip, 60, 3), kTimeout);
    ppp().fillQueue(60, 0, 0, 0);
    // Only the bundle's own queues count: the next bundle's first queue never drains.
    ppp().fillQueue(61, 0, 5, static_cast<uint32_t>(F));
    VQ6192_Platform_ResetVirtualTime();
    EXPECT_EQ((U64s{VQ6192_PPP_ResetMpBundle(kChip, 60, 3), virtualUs()}), (U64s{0, 30000}));
    ppp().fillQueue(61, 0, 0, 0);
    // The reassembly reset strobe sequence.
    model.setTrace(true);
    ASSERT_EQ(VQ6192_PPP_ResetMpBundle(kChip, 0x5A, 1), 0u);
    EXPECT_EQ(writesTo(0x12218), (U32s{0, 0x5A, 0x15A, 0x5A, 0, 0}));
}

TEST_F(BundleTest, SnFormatChange) {
    // 0x13260 (bundle 4 is bit 4) and Fragcfg (Mpsntype bit 5) before; ingress and egress formats; group
    // reset refused; status; 0x13260, Fragcfg and the request register 0x13080 after; virtual wait.
    for (const auto &[sn, frag, up, down, refuse, status, snAfter, fragAfter, reqAfter, waitUs] : Rows<10>{
             {0xFFEF, 0xFFDF, 0, 0, 0, 0, 0xFFEF, 0xFFDF, 0, 0},                     // unchanged
             {0xFFEF, 0xFFDF, 0, 1, 0, 0, 0xFFEF, 0xFFFF, 0, 0},                     // egress only
             {0xFFEF, 0xFFDF, 1, 0, 0, 0, 0xFFFF, 0xFFDF, 0, 0},                     // ingress to short
             {0x0010, 0x0000, 0, 0, 1, kTimeout, 0x0010, 0x0000, 0x0010, 3 * 10000}  // ingress refused
         }) {
        SCOPED_TRACE(testing::Message() << "up " << up << " down " << down << " refuse " << refuse);
        poke({{0x13260, sn}, {0x13080, 0}});
        setEntry(kFragcfg, 4, frag);
        ppp().refuseGroupReset(4, refuse != 0);
        model.setTrace(true);
        model.clearTrace();
        VQ6192_Platform_ResetVirtualTime();
        EXPECT_EQ(VQ6192_PPP_SetMpSnFormat(kChip, 4, static_cast<uint32_t>(up), static_cast<uint32_t>(down)),
                  status);
        EXPECT_EQ((U64s{model.peek(0x13260), entry(kFragcfg, 4), model.peek(0x13080), virtualUs()}),
                  (U64s{snAfter, fragAfter, reqAfter, waitUs}));
        if (up == (sn >> 4 & 1u)) {
            EXPECT_TRUE(writesTo(0x13080).empty()) << "the request register is not touched";
        }
    }
    // 0x13260 (bundle 1 is bit 1: short sequence numbers), timeslots, timeout value.
    for (const auto &[sn, ts, value] :
         {std::array<uint32_t, 3>{0, 1, 176}, {0, 31, 55}, {0x0002, 3, 52}, {0x0002, 0, 10}, {0, 0, 50}}) {
        model.poke(0x13260, static_cast<uint16_t>(sn));
        uint32_t v = 0;
        EXPECT_EQ((U32s{VQ6192_PPP_CalcMpTimeOutValue(kChip, 1, static_cast<uint16_t>(ts), &v), v}),
                  (U32s{0, value}));
    }
}

TEST_F(BundleTest, PerBundleFieldsAndMcWatermarks) {
    constexpr uint64_t kOnes = 0xFFFFFFFFFFFFFFFFull;
    expectEntryOps(
        {{PPP_OP(VQ6192_PPP_SetMpFragSize(c, 3, 4)), kFragcfg, 3, 0xFFFF, 0xFFE4},
         {PPP_OP(VQ6192_PPP_SetMpPFCEnable(c, 3, 0)), kFragcfg, 3, 0xFFFF, 0xFFBF},
         {PPP_OP(VQ6192_PPP_SetMpACFCEnable(c, 3, 0)), kFragcfg, 3, 0xFFFF, 0x7FFF},
         {PPP_OP(VQ6192_PPP_SetMpTimeout(c, 3, 511)), kMprgrpcfg, 3, 0x7FFE00, 0x7FFFFF},
         {PPP_OP(VQ6192_PPP_SetMpMrru(c, 3, 4095)), kMprpmrrucfg, 3, 0xF000, 0xFFFF},
         {PPP_OP(VQ6192_PPP_SetMpSnCtrl(c, 3, 1, 0x33, 5)), kSnctrlcfg, 3, 0, 0xB3ull << 40},
         {PPP_OP(VQ6192_PPP_SetMpQueWeight(c, 3, 4, 0x15)), kMpwgtcfg, 3, kOnes,
          0xFFFFFFF95FFFFFFF},  // bits 28..34
         {PPP_OP(VQ6192_PPP_SetMpRxWaterMark(c, 3, 0x3FFBF, 0)), kMprxmmpcfg1, 3, kOnes, 0xFFFFFFFFFEFC0000},
         {PPP_OP(VQ6192_PPP_SetPppCsptEnable(c, 3, 1, 0)), kCsptcfg2, 3, 0x1FF, 0xFF}});
    for (uint32_t q = 0; q < 8; ++q) {
        setEntry(kMcfccfg, 8 * 2 + q, 0xF000000000000000ull);
    }
    VQ6192_MP_TX_WATERMARK_S wm{};
    uint32_t *w = &wm.dwQue7WaterMarkDrop;
    for (uint32_t k = 0; k < 24; ++k) {
        w[k] = 100 + k;
    }
    ASSERT_EQ(VQ6192_PPP_SetMpTxWaterMark(kChip, 2, &wm), 0u);
    for (uint32_t q = 0; q < 8; ++q) {
        // Drops come queue 7 first, then low and high of each queue; drop 40..59, high 20..39, low 0..19.
        const uint64_t drop = 100 + (7 - q), low = 108 + 2 * q, high = 109 + 2 * q;
        EXPECT_EQ(entry(kMcfccfg, 16 + q), 0xF000000000000000ull | drop << 40 | high << 20 | low) << q;
    }
    VQ6192_MP_TX_WATERMARK_S back{};
    ASSERT_EQ(VQ6192_PPP_GetMpTxWaterMark(kChip, 2, &back), 0u);
    EXPECT_EQ(std::memcmp(&back, &wm, sizeof wm), 0);
}

TEST_F(BundleTest, DeleteReturnsTheBundleToTheDeleteDefaults) {
    constexpr uint64_t kOnes = 0xFFFFFFFFFFFFFFFFull;
    model.poke(0x13240, 0xFFFF);
    setEntry(kQmencfg, 256 + 8, 0xFF);
    for (uint32_t s : {kMprxmmpcfg1, kMpwgtcfg, kSnctrlcfg}) {
        setEntry(s, 8, kOnes);
    }
    setEntry(kFragcfg, 8, 0xFFFF);
    for (uint32_t q = 0; q < 8; ++q) {
        setEntry(kMcfccfg, 64 + q, kOnes);
    }
    EXPECT_EQ((U64s{VQ6192_PPP_DelMpBundle(kChip, 8), model.peek(0x13240)}), (U64s{0, 0xFEFFu}));
    EXPECT_EQ(ppp().groupResets(), U32s{8});
    // Ingress watermarks high 1, low 0; weights cleared but bits 56..63; fragment code 2 and PFC off.
    EXPECT_EQ((U64s{entry(kQmencfg, 256 + 8), entry(kMprxmmpcfg1, 8) & 0xFFFFFFFFF, entry(kMpwgtcfg, 8),
                    entry(kFragcfg, 8), entry(kSnctrlcfg, 8)}),
              (U64s{0, 1 << 18, 0xFF00000000000000, 0xFFA2, 0}));
    for (uint32_t q = 0; q < 8; ++q) {
        EXPECT_EQ(entry(kMcfccfg, 64 + q), 0xF000000000000000ull | 3ull << 40 | 2ull << 20 | 1u) << q;
    }
    for (const auto &[ch, link] : {std::pair<uint32_t, uint64_t>{1, 0x3 | 2u << 2},
                                   {2, 0x3 | 2u << 2},
                                   {3, 0x2 | 2u << 2} /* not a PPP link */,
                                   {511, 0x3 | 255u << 2}}) {
        setEntry(kLinkcfg, ch, link);
    }
    count(2) = 1;
    ASSERT_EQ(VQ6192_PPP_ReCoverPppLinkCntInEgMp(kChip), 0u);
    EXPECT_EQ((U32s{count(2), count(255)}), (U32s{3, 1})) << "added to, not cleared first";
}

}  // namespace
