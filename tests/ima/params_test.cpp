// Running-group parameter changes, VC-4 port removal, UNI counters and the link configuration
// read-back.
#include <tuple>

#include "ima_fixture.h"

namespace {

using namespace imatest;

class ParamsTest : public ImaTest {};

// A parameter record from its fields in order: eleven bytes, then wMaxDelay.
IMA_GRP_PARAM param(std::initializer_list<uint32_t> v) {
    IMA_GRP_PARAM p{};
    uint8_t *bytes[] = {&p.byClockMd,      &p.bySymmetryMd, &p.byImaVersion, &p.byImaOamLabel,
                        &p.byRxImaIdCfgEn, &p.byRxImaId,    &p.byTxImaId,    &p.byRxM,
                        &p.byPRx,          &p.byTxM,        &p.byPTx};
    size_t i = 0;
    for (uint32_t x : v) {
        if (i < 11) {
            *bytes[i] = static_cast<uint8_t>(x);
        } else {
            p.wMaxDelay = static_cast<uint16_t>(x);
        }
        ++i;
    }
    return p;
}

TEST_F(ParamsTest, RunningGroupParameters) {
    constexpr uint32_t g = 8;
    setBits(kPpB, kGpc, g * 16, 0, 32, 0x01C80000);  // label 1, asymmetric, auto restart
    setBits(kPpB, kGpc, g * 16 + 1, 0, 32, 0xFFFFFFFF);
    setBits(kTxB, kTxGpc, g, 0, 32, 0x0FFFFF01);
    setBits(kRxB, kRxGpc, g, 0, 32, 0xFFFFFC00);
    using W = U32s;
    // Mask, value, then processor words 0..2, transmit and receive group configuration after the change: the
    // third byte alone rewrites word 0 unchanged; label; symmetry; transmit M and clock; receive id; delay.
    const std::tuple<IMA_GRP_PARAM, IMA_GRP_PARAM, W> cases[] = {
        {param({0, 0, 1}), param({1, 1, 1, 1}), {0x01C80000, 0xFFFFFFFF, 0, 0x0FFFFF01, 0xFFFFFC00}},
        {param({0, 0, 0, 1}), param({0, 0, 0, 3}), {0x03C80000, 0xFFFFFFFF, 0, 0x0FFFFF03, 0xFFFFFC00}},
        {param({0, 1}), param({0, 0}), {0x03080000, 0xFFFFFFFF, 0, 0x0FFFFF03, 0xFFFFFC00}},
        {param({1, 0, 0, 0, 0, 0, 0, 0, 0, 1}),
         param({0, 0, 0, 0, 0, 0, 0, 0, 0, 2}),
         {0x03080000, 0xFFBFFFBF, 0, 0x0FFFF703, 0xFFFFFC00}},
        {param({0, 0, 0, 0, 1, 0, 0, 1}),
         param({0, 0, 0, 0, 1, 0x5A, 0, 9}),
         {0x03080000, 0xFFBFFFBF, 0xAD012000, 0x0FFFF703, 0xFFFFFC00}},
        {param({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}),
         param({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 700}),
         {0x03080000, 0xFFBFFFBF, 0xAD012000, 0x0FFFF703, 0xFFFFFEBC}},
    };
    for (const auto &[mask, value, after] : cases) {
        SCOPED_TRACE(after[0]);
        ASSERT_EQ(VQ6192_IMA_SetImaGrpParam(kChip, g, 0, &mask, &value), 0u);
        EXPECT_EQ((W{word(kPpB, kGpc, g * 16 + 0), word(kPpB, kGpc, g * 16 + 1), word(kPpB, kGpc, g * 16 + 2),
                     word(kTxB, kTxGpc, g), word(kRxB, kRxGpc, g)}),
                  after);
    }
}

TEST_F(ParamsTest, Vc4PortRemoval) {
    poke({{0x4C24, 0xFFFF}, {0x5028, 0xFFFF}});
    setBits(kTxB, kInGrp, 170, 0, 256, 0);
    setBits(kTxB, kInGrp, 170, 168, 3, 7);
    ASSERT_EQ(VQ6192_IMA_DelVc4(kChip, 2, 9), 0u);
    EXPECT_EQ(peek({0x4C24, 0x5028}), (U32s{0xFDFF, 0xFFFB})) << "only the enable bits cleared";
    EXPECT_EQ(bits(kTxB, kInGrp, 170, 168, 3), 3u) << "link 170 (bit 2 of the three) leaves group 170";
    ASSERT_EQ(proc().commands().size(), 84u);
    EXPECT_EQ(proc().commands().front(), (Proc::Command{13, 168, 0, 0, 0}));
    EXPECT_EQ(proc().commands().back(), (Proc::Command{13, 251, 0, 0, 0}));
    EXPECT_EQ(bits(kTcB, kRxCfg, 200, 95, 1), 1u);
    EXPECT_EQ(bits(kTcB, kRxCfg, 200, 89, 1), 0u) << "no idle filter on removal";
    proc().refuse(1);
    EXPECT_EQ(VQ6192_IMA_DelVc4(kChip, 2, 9), kRefusedCmd);
    EXPECT_EQ(proc().commands().size(), 85u) << "the first failure ends it";
}

TEST_F(ParamsTest, UniCountersAndLinkConfiguration) {
    setBits(kRxB, kGpCnt, 30 * 2, 0, 32, 0xFFFFFFFF);
    setBits(kRxB, kGpCnt, 30 * 2 + 1, 0, 32, 0x11);
    IMA_GRP_STAT g{1, 2, 3, 4, 5};
    ASSERT_EQ(VQ6192_IMA_GetUniGrpStat(kChip, 30, &g), 0u);
    EXPECT_EQ(
        (U32s{g.dwTxDiscardCells, g.dwTxUserCells, g.dwTxFillerCells, g.dwRxUserCells, g.dwRxFillerCells}),
        (U32s{0, 0, 0, 0xFFFFFFFF, 0}));
    setBits(kRxB, kLkCnt, 40 * 4 + 2, 0, 32, 1000);
    setBits(kRxB, kLkCnt, 40 * 4 + 3, 0, 32, 7);
    setBits(kTxB, kTxLks, 40 * 2 + 1, 0, 32, 0x00030004);
    IMA_LINK_STAT l{};
    ASSERT_EQ(VQ6192_IMA_GetUniLinkStat(kChip, 40, &l), 0u);
    EXPECT_EQ((U32s{l.dwTxUserCells, l.dwTxStuffCells, l.dwRxUserCells, l.dwRxDroppedCells}),
              (U32s{4, 3, 1000, 7}));
    setBits(kPpB, kTxc, 40, 0, 32, 0x8123F80F);
    setBits(kPpB, kRxc, 40, 0, 32, 0xC0450FFF);
    setBits(kTxB, kTxLkc, 40, 0, 8, 0x77);
    uint16_t cfg[5] = {};
    ASSERT_EQ(VQ6192_IMA_GetImaLinkCfg(kChip, 40, cfg), 0u);
    EXPECT_EQ((std::vector<uint16_t>(cfg, cfg + 5)), (std::vector<uint16_t>{2, 0x123, 0x1F, 3, 0x45}));
    IMA_TX_LINK tx{};
    ASSERT_EQ(VQ6192_IMA_GetImaTxLinkCfg(kChip, 40, &tx), 0u);
    EXPECT_EQ(tx.ucLid, 0x1Fu);
    EXPECT_EQ(tx.ucIcpOffset, 0x77u);
    EXPECT_EQ(tx.usPhyLink, 40u);
}

}  // namespace
