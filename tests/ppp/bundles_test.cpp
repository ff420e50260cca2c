// Multilink bundles: membership and the egress member counts, the bundle reset handshakes with their
// codes and virtual waits, the SN format change, and the per-bundle settings.
#include <algorithm>
#include <cstring>

#include "ppp_fixture.h"

namespace {

using namespace ppptest;
using vq6192::sim::BusOp;
using vq6192::sim::PppBlock;

class BundleTest : public PppTest {
  protected:
    uint32_t &count(uint32_t b) { return g_vq6192[kChip].aulMpChanCnt[b]; }
    std::vector<uint32_t> fieldWrites(uint32_t addr) {
        std::vector<uint32_t> out;
        for (const auto &a : busWrites()) {
            if (a.addr == addr) {
                out.push_back(a.value);
            }
        }
        return out;
    }
};

TEST_F(BundleTest, FirstEgressMemberSwitchesTheQueuesOnAndTheLastOff) {
    setEntry(kLinkcfg, 20, 0x3C01);  // a PPP link, not in a bundle
    setEntry(kLinkcfg, 21, 0x3C01);
    setEntry(kHdlccfg2, 20, 0x0FF);
    ASSERT_EQ(VQ6192_PPP_AddPppChanToMp(kChip, 20, 7, 2), 0u);
    EXPECT_EQ(count(7), 1u);
    EXPECT_EQ(entry(kQmencfg, 256 + 7), 0xFFu);
    EXPECT_EQ(entry(kLinkcfg, 20), 0x3C00u | 7u << 2 | 0x3u);
    EXPECT_EQ(entry(kHdlccfg2, 20), 0x107u);

    setEntry(kQmencfg, 256 + 7, 0x0F);
    ASSERT_EQ(VQ6192_PPP_AddPppChanToMp(kChip, 21, 7, 1), 0u);
    EXPECT_EQ(count(7), 2u);
    EXPECT_EQ(entry(kQmencfg, 256 + 7), 0x0Fu) << "a second member leaves the queues";
    EXPECT_EQ(entry(kHdlccfg2, 21), 0u) << "egress only";

    ASSERT_EQ(VQ6192_PPP_RemovePppChanFromMp(kChip, 21, 7, 1), 0u);
    EXPECT_EQ(count(7), 1u);
    EXPECT_TRUE(ppp().bundleResets().empty());

    VQ6192_Platform_ResetVirtualTime();
    ASSERT_EQ(VQ6192_PPP_RemovePppChanFromMp(kChip, 20, 7, 2), 0u);
    EXPECT_EQ(count(7), 0u);
    EXPECT_EQ(entry(kQmencfg, 256 + 7), 0x00u);
    EXPECT_EQ(ppp().bundleResets(), std::vector<uint32_t>{7});
    EXPECT_EQ(entry(kLinkcfg, 20), 0x3C00u | 7u << 2 | 0x1u) << "the bundle number stays, the flag goes";
    EXPECT_EQ(entry(kHdlccfg2, 20), 0x007u);
    // 30 ms after the queues go off, one 30 ms drain attempt, two 10 ms ready waits of the reset.
    EXPECT_EQ(virtualUs(), 30000u + 30000u + 5u + 20000u);
    const auto traces = capture.traceTexts();
    for (const char *line :
         {"VQ6192_PPP_AddPppChanToMp:[20] To MP Bundle:[7] Direct:[2]\n",
          "VQ6192_PPP_RemovePppChanFromMp : Remove PPP:[20] From MP Bundle Direct:[2]\n"}) {
        EXPECT_NE(std::find(traces.begin(), traces.end(), line), traces.end()) << line;
    }
}

TEST_F(BundleTest, MemberCountingRules) {
    struct Case {
        const char *name;
        uint64_t link;  // Linkcfg of channel 30 before
        uint32_t op;    // 0 add, 1 remove
        uint32_t bundle;
        uint32_t before3, before5;
        uint32_t after3, after5;
        size_t resets;
    };
    const Case cases[] = {
        {"add a PPP link", 0x1, 0, 5, 0, 0, 0, 1, 0},
        {"add a plain HDLC link", 0x0, 0, 5, 0, 0, 0, 0, 0},
        {"move from bundle 3", 0x1 | 0x2 | 3u << 2, 0, 5, 1, 0, 0, 1, 0},
        {"move from bundle 3 whose count is 0", 0x1 | 0x2 | 3u << 2, 0, 5, 0, 0, 0, 1, 0},
        {"add to its own bundle again", 0x1 | 0x2 | 5u << 2, 0, 5, 0, 1, 0, 1, 0},
        {"remove with a count of 0", 0x1 | 0x2 | 5u << 2, 1, 5, 0, 0, 0, 0, 0},
        {"remove one of two", 0x1 | 0x2 | 5u << 2, 1, 5, 0, 2, 0, 1, 0},
        {"remove a non-member", 0x1 | 5u << 2, 1, 5, 0, 2, 0, 2, 0},
        // Naming bundle 5 for a link of bundle 3: bundle 3 loses the link, bundle 5 keeps its count.
        {"remove from the wrong bundle", 0x1 | 0x2 | 3u << 2, 1, 5, 1, 2, 0, 2, 1},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        model.tables().clear();
        setEntry(kLinkcfg, 30, c.link);
        count(3) = c.before3;
        count(5) = c.before5;
        const size_t resets = ppp().bundleResets().size();
        const uint32_t rc = c.op == 0 ? VQ6192_PPP_AddPppChanToMp(kChip, 30, c.bundle, 1)
                                      : VQ6192_PPP_RemovePppChanFromMp(kChip, 30, c.bundle, 1);
        EXPECT_EQ(rc, 0u);
        EXPECT_EQ(count(3), c.after3);
        EXPECT_EQ(count(5), c.after5);
        EXPECT_EQ(ppp().bundleResets().size() - resets, c.resets);
    }
    EXPECT_EQ(VQ6192_PPP_UpDateEgMpChanCnt(VQ6192_CHIP_NUM, 0, 0, 0, 1, 0), 0x08040001u);
}

TEST_F(BundleTest, ModifyVariantsLeaveTheCountsAlone) {
    setEntry(kLinkcfg, 40, 0x1);
    ASSERT_EQ(VQ6192_PPP_AddPppChanToMp_Modify(kChip, 40, 9, 2), 0u);
    EXPECT_EQ(count(9), 0u);
    EXPECT_EQ(entry(kLinkcfg, 40), 0x3u | 9u << 2);
    EXPECT_EQ(entry(kQmencfg, 256 + 9), 0u);
    setEntry(kQmencfg, 256 + 9, 0xFF);
    ASSERT_EQ(VQ6192_PPP_RemovePppChanFromMp_Modify(kChip, 40, 9, 1, 1), 0u);
    EXPECT_EQ(count(9), 0u);
    EXPECT_EQ(entry(kQmencfg, 256 + 9), 0u);
    EXPECT_EQ(ppp().bundleResets(), std::vector<uint32_t>{9});
    EXPECT_EQ(ppp().groupResets(), std::vector<uint32_t>{9}) << "mode 2: reassembly and group reset";
    EXPECT_EQ(entry(kLinkcfg, 40), 0x1u | 9u << 2);
}

TEST_F(BundleTest, MembershipReadBack) {
    setEntry(kLinkcfg, 50, 0x1 | 0x2 | 12u << 2);
    setEntry(kHdlccfg2, 50, 0x0C);  // bundle number without the member flag
    uint32_t rx = 0, tx = 0;
    ASSERT_EQ(VQ6192_PPP_GetPppChanToMp(kChip, 50, &rx, &tx), 0u);
    EXPECT_EQ(rx, 0xFFFFFFFFu);
    EXPECT_EQ(tx, 12u);
    model.tables().holdBusy(kPppBlock, vq6192::sim::TableEngine::kForever);
    rx = tx = 77;
    EXPECT_EQ(VQ6192_PPP_GetPppChanToMp(kChip, 50, &rx, &tx), 0u) << "a failed read still reports 0";
    model.tables().holdBusy(kPppBlock, 0);
    EXPECT_EQ(rx, 77u);
}

TEST_F(BundleTest, BundleEnableByDirection) {
    struct Case {
        uint8_t dir;
        uint16_t reg;  // 0x13244 after (bundle 37 is bit 5 of register 2)
        uint64_t qmen;
    };
    const Case cases[] = {{0, 0xFFFF, 0x00}, {1, 0xFFDF, 0xFF}, {2, 0xFFFF, 0xFF}};
    for (const Case &c : cases) {
        SCOPED_TRACE(static_cast<int>(c.dir));
        model.poke(0x13244, 0xFFDF);
        setEntry(kQmencfg, 256 + 37, 0);
        ASSERT_EQ(VQ6192_PPP_SetMpBundleEnable(kChip, 37, 1, c.dir), 0u);
        EXPECT_EQ(model.peek(0x13244), c.reg);
        EXPECT_EQ(entry(kQmencfg, 256 + 37), c.qmen);
    }
    uint32_t rx = 9, tx = 9;
    model.poke(0x13244, 0);
    ASSERT_EQ(VQ6192_PPP_GetMpBundleEnable(kChip, 37, &rx, &tx), 0u);
    EXPECT_EQ(rx, 0u);
    EXPECT_EQ(tx, 1u) << "egress always reported on";
}

TEST_F(BundleTest, ResetHandshakesCodesAndWaits) {
    struct Case {
        const char *name;
        uint32_t mode;
        uint32_t drainReads;  // reads that still see blocks (0: empty)
        uint32_t readyHold;   // reads of 0 from the reset engine before
        uint32_t resetBusy;   // reads of 0 after the strobe
        bool refuse;
        uint32_t status;
        uint64_t waitUs;
        size_t strobes, groups;
    };
    const Case cases[] = {
        {"mode 3 drains only", 3, 3, 0, 1, false, 0, 4 * 30000, 0, 0},
        {"never drains", 3, PppBlock::kForever, 0, 1, false, kTimeout, 500 * 30000, 0, 0},
        {"mode 0 group reset", 0, 0, 0, 1, false, 0, 30000 + 10000, 0, 1},
        {"mode 0 refused", 0, 0, 0, 1, true, kTimeout, 30000 + 20 * 10000, 0, 1},
        {"mode 1 reassembly", 1, 0, 0, 1, false, 0, 30000 + 5 + 20000, 1, 0},
        {"mode 1 not ready", 1, 0, PppBlock::kForever, 1, false, kTimeout, 30000 + 1300 * 10000, 0, 0},
        {"mode 1 never done", 1, 0, 0, PppBlock::kForever, false, kTimeout, 30000 + 5 + 1300 * 10000, 1, 0},
        {"mode 2 both", 2, 0, 0, 1, false, 0, 30000 + 5 + 20000 + 10000, 1, 1},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        if (c.drainReads != 0) {
            ppp().fillQueue(60, 6, 5, c.drainReads);
        }
        ppp().holdNotReady(c.readyHold);
        ppp().setResetBusy(c.resetBusy);
        ppp().refuseGroupReset(60, c.refuse);
        model.poke(0x13086, 0x0001);  // bundle 48's request, same register
        const size_t strobes = ppp().bundleResets().size();
        const size_t groups = ppp().groupResets().size();
        VQ6192_Platform_ResetVirtualTime();
        EXPECT_EQ(VQ6192_PPP_ResetMpBundle(kChip, 60, c.mode), c.status);
        EXPECT_EQ(virtualUs(), c.waitUs);
        EXPECT_EQ(ppp().bundleResets().size() - strobes, c.strobes);
        EXPECT_EQ(ppp().groupResets().size() - groups, c.groups);
        // Bundle 60 is bit 12 of register 3: left set only by a refused handshake; an acknowledged one
        // clears the whole register.
        const uint16_t req = model.peek(0x13086);
        if (c.groups == 0) {
            EXPECT_EQ(req, 0x0001u);
        } else {
            EXPECT_EQ(req, c.refuse ? 0x1001u : 0u);
        }
        ppp().fillQueue(60, 6, 0, 0);
        ppp().holdNotReady(0);
        ppp().setResetBusy(1);
        ppp().refuseGroupReset(60, false);
    }
}

TEST_F(BundleTest, ReassemblyResetStrobeSequence) {
    model.setTrace(true);
    ASSERT_EQ(VQ6192_PPP_ResetMpBundle(kChip, 0x5A, 1), 0u);
    EXPECT_EQ(fieldWrites(0x12218), (std::vector<uint32_t>{0, 0x5A, 0x15A, 0x5A, 0, 0}));
    EXPECT_EQ(entry(kQmencfg, 256 + 0x5A), 0u);
}

TEST_F(BundleTest, SnFormatChange) {
    struct Case {
        const char *name;
        uint16_t snReg;    // 0x13260 (bundle 4 is bit 4)
        uint64_t fragcfg;  // Mpsntype bit 5
        uint32_t up, down;
        bool refuse;
        uint32_t status;
        uint16_t snAfter;
        uint64_t fragAfter;
        uint16_t reqAfter;
        uint64_t waitUs;
    };
    const Case cases[] = {
        {"unchanged", 0xFFEF, 0xFFDF, 0, 0, false, 0, 0xFFEF, 0xFFDF, 0, 0},
        {"egress only", 0xFFEF, 0xFFDF, 0, 1, false, 0, 0xFFEF, 0xFFFF, 0, 0},
        {"ingress to short", 0xFFEF, 0xFFDF, 1, 0, false, 0, 0xFFFF, 0xFFDF, 0, 0},
        {"ingress refused", 0x0010, 0x0000, 0, 0, true, kTimeout, 0x0010, 0x0000, 0x0010, 3 * 10000},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        model.poke(0x13260, c.snReg);
        model.poke(0x13080, 0);
        setEntry(kFragcfg, 4, c.fragcfg);
        ppp().refuseGroupReset(4, c.refuse);
        model.setTrace(true);
        model.clearTrace();
        VQ6192_Platform_ResetVirtualTime();
        EXPECT_EQ(VQ6192_PPP_SetMpSnFormat(kChip, 4, c.up, c.down), c.status);
        EXPECT_EQ(model.peek(0x13260), c.snAfter);
        EXPECT_EQ(entry(kFragcfg, 4), c.fragAfter);
        EXPECT_EQ(model.peek(0x13080), c.reqAfter);
        EXPECT_EQ(virtualUs(), c.waitUs);
        if (c.up == (c.snReg >> 4 & 1u)) {
            EXPECT_TRUE(fieldWrites(0x13080).empty()) << "the request register is not touched";
        }
    }
}

TEST_F(BundleTest, ReassemblyTimeoutArithmetic) {
    struct Case {
        uint16_t snReg;
        uint16_t ts;
        uint32_t value;
    };
    const Case cases[] = {{0, 1, 176}, {0, 31, 55}, {0x0002, 3, 52}, {0x0002, 0, 10}, {0, 0, 50}};
    for (const Case &c : cases) {
        model.poke(0x13260, c.snReg);  // bundle 1 is bit 1
        uint32_t v = 0;
        ASSERT_EQ(VQ6192_PPP_CalcMpTimeOutValue(kChip, 1, c.ts, &v), 0u);
        EXPECT_EQ(v, c.value) << "ts " << c.ts;
    }
}

TEST_F(BundleTest, PerBundleFieldsKeepTheirNeighbours) {
    struct Case {
        const char *name;
        uint32_t (*op)(uint32_t chip);
        uint32_t select, index;
        uint64_t before, after;
    };
    constexpr uint64_t kOnes = 0xFFFFFFFFFFFFFFFFull;
    const Case cases[] = {
        {"fragment size 4", [](uint32_t c) { return VQ6192_PPP_SetMpFragSize(c, 3, 4); }, kFragcfg, 3, 0xFFFF,
         0xFFE4},
        {"PFC off", [](uint32_t c) { return VQ6192_PPP_SetMpPFCEnable(c, 3, 0); }, kFragcfg, 3, 0xFFFF,
         0xFFBF},
        {"ACFC off", [](uint32_t c) { return VQ6192_PPP_SetMpACFCEnable(c, 3, 0); }, kFragcfg, 3, 0xFFFF,
         0x7FFF},
        {"timeout 511", [](uint32_t c) { return VQ6192_PPP_SetMpTimeout(c, 3, 511); }, kMprgrpcfg, 3,
         0x7FFE00, 0x7FFFFF},
        {"MRRU 4095", [](uint32_t c) { return VQ6192_PPP_SetMpMrru(c, 3, 4095); }, kMprpmrrucfg, 3, 0xF000,
         0xFFFF},
        {"SN control MC 5", [](uint32_t c) { return VQ6192_PPP_SetMpSnCtrl(c, 3, 1, 0x33, 5); }, kSnctrlcfg,
         3, 0, 0xB3ull << 40},
        {"weight of queue 4", [](uint32_t c) { return VQ6192_PPP_SetMpQueWeight(c, 3, 4, 0x15); }, kMpwgtcfg,
         3, kOnes, (kOnes & ~(0x7Full << 28)) | 0x15ull << 28},
        {"ingress watermarks", [](uint32_t c) { return VQ6192_PPP_SetMpRxWaterMark(c, 3, 0x3FFBF, 0); },
         kMprxmmpcfg1, 3, kOnes, (kOnes & ~0xFFFFFFFFFull) | 0x3FFBFull << 18},
        {"CSPT of a bundle", [](uint32_t c) { return VQ6192_PPP_SetPppCsptEnable(c, 3, 1, 0); }, kCsptcfg2, 3,
         0x1FF, 0xFF},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        model.tables().clear();
        setEntry(c.select, c.index, c.before);
        ASSERT_EQ(c.op(kChip), 0u);
        EXPECT_EQ(entry(c.select, c.index), c.after);
    }
}

TEST_F(BundleTest, EgressMcWatermarksQueueByQueue) {
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
        SCOPED_TRACE(q);
        const uint64_t drop = 100 + (7 - q);  // drops come queue 7 first
        const uint64_t low = 108 + 2 * q, high = 109 + 2 * q;
        EXPECT_EQ(entry(kMcfccfg, 16 + q), 0xF000000000000000ull | drop << 40 | high << 20 | low);
    }
    VQ6192_MP_TX_WATERMARK_S back{};
    ASSERT_EQ(VQ6192_PPP_GetMpTxWaterMark(kChip, 2, &back), 0u);
    EXPECT_EQ(std::memcmp(&back, &wm, sizeof wm), 0);
}

TEST_F(BundleTest, DeleteReturnsTheBundleToTheDeleteDefaults) {
    constexpr uint64_t kOnes = 0xFFFFFFFFFFFFFFFFull;
    model.poke(0x13240, 0xFFFF);
    setEntry(kQmencfg, 256 + 8, 0xFF);
    setEntry(kMprxmmpcfg1, 8, kOnes);
    setEntry(kMpwgtcfg, 8, kOnes);
    setEntry(kFragcfg, 8, 0xFFFF);
    setEntry(kSnctrlcfg, 8, kOnes);
    for (uint32_t q = 0; q < 8; ++q) {
        setEntry(kMcfccfg, 64 + q, kOnes);
    }
    ASSERT_EQ(VQ6192_PPP_DelMpBundle(kChip, 8), 0u);
    EXPECT_EQ(model.peek(0x13240), 0xFEFFu);
    EXPECT_EQ(entry(kQmencfg, 256 + 8), 0u);
    EXPECT_EQ(ppp().groupResets(), std::vector<uint32_t>{8});
    EXPECT_EQ((entry(kMprxmmpcfg1, 8) & 0xFFFFFFFFFull), 1ull << 18);  // high 1, low 0
    for (uint32_t q = 0; q < 8; ++q) {
        EXPECT_EQ(entry(kMcfccfg, 64 + q), 0xF000000000000000ull | 3ull << 40 | 2ull << 20 | 1u) << q;
    }
    EXPECT_EQ(entry(kMpwgtcfg, 8), 0xFF00000000000000ull);  // bits 56..63 kept
    EXPECT_EQ(entry(kFragcfg, 8), 0xFFA2u);                 // fragment code 2, PFC off
    EXPECT_EQ(entry(kSnctrlcfg, 8), 0u);
}

TEST_F(BundleTest, RecountAddsTheMembersFoundInTheChip) {
    setEntry(kLinkcfg, 1, 0x3 | 2u << 2);
    setEntry(kLinkcfg, 2, 0x3 | 2u << 2);
    setEntry(kLinkcfg, 3, 0x2 | 2u << 2);  // not a PPP link
    setEntry(kLinkcfg, 511, 0x3 | 255u << 2);
    count(2) = 1;
    ASSERT_EQ(VQ6192_PPP_ReCoverPppLinkCntInEgMp(kChip), 0u);
    EXPECT_EQ(count(2), 3u) << "added to, not cleared first";
    EXPECT_EQ(count(255), 1u);
}

}  // namespace
