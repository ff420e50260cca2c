// IMA groups: the group check and its messages, the tables a group add lays, the mailbox command it
// ends with, link addition around a running start-up or LASR, link and group deletion, the read-back.
#include <cstring>
#include <tuple>

#include "ima_fixture.h"

namespace {

using namespace imatest;

constexpr uint32_t kGrp = 5;

// Symmetric, version 1.1, label 3, ids 0x21/0x42, M 15/1, minimums 2, delay 500, 4-ahead stuffing,
// reference link 47; links 10 (LID 0, ICP offset 3) and 47 (LID 2, offset 7).
IMA_GRP_CFG groupCfg() {
    IMA_GRP_CFG c{};
    c.byImaVersion = 1, c.byImaOamLabel = 3, c.byRxImaIdCfgEn = 1, c.byRxImaId = 0x21, c.byTxImaId = 0x42;
    c.wTxVphy = kGrp, c.wRxVphy = kGrp, c.byRxM = 0xF, c.byPRx = 2, c.byTxM = 1, c.byPTx = 2;
    c.wMaxDelay = 500, c.byStuffAdvMd = 4, c.wTxTrlPhy = 47, c.wNumRxLinks = 2, c.wNumTxLinks = 2;
    const uint16_t rx[2] = {10, 47};
    const IMA_TX_LINK tx[2] = {{0, 3, 10}, {2, 7, 47}};
    std::memcpy(reinterpret_cast<uint8_t *>(&c) + offsetof(IMA_GRP_CFG, pusRxLinks), rx, sizeof rx);
    std::memcpy(reinterpret_cast<uint8_t *>(&c) + offsetof(IMA_GRP_CFG, pstTxLinks), tx, sizeof tx);
    return c;
}

class GroupTest : public ImaTest {};

TEST_F(GroupTest, AddGroupLaysEveryTable) {
    // Neighbour bits set everywhere the add must keep them.
    for (uint32_t link : {10u, 47u}) {
        setBits(kTcB, kRxCfg, link, 0, 96, ~0ull);
        setBits(kTcB, kRxCfg, link, 64, 32, 0xFFFFFFFF);
        setBits(kTcB, kTxCfg, link, 0, 64, ~0ull);
    }
    setBits(kRxB, kRxGpc, kGrp, 0, 32, 0xFAB00000);
    for (uint32_t w = 0; w < 5; ++w) {
        setBits(kTxB, kTxGps, kGrp * 8 + w, 0, 32, 0x12345678);
    }
    setBits(kTxB, kInGrp, kGrp, 0, 64, 0x3);  // stale members are cleared
    const IMA_GRP_CFG cfg = groupCfg();
    ASSERT_EQ(VQ6192_IMA_AddImaGrp(kChip, kGrp, &cfg), 0u);

    // Transmit side: LID map, group config, ICP offsets, link set, depth, counters cleared.
    for (uint32_t lid = 0; lid < 32; ++lid) {
        EXPECT_EQ(bits(kTxB, kMap, kGrp * 32 + lid, 0, 9), lid == 0 ? 10u : lid == 2 ? 47u : 511u) << lid;
        EXPECT_EQ(lid < 5 ? word(kTxB, kTxGps, kGrp * 8 + lid) : 0u, 0u) << "Imatxgps" << lid;
    }
    // Reference LID 2, Txm 1, 4-ahead = bit 0, stuff, label 3; ICP offsets; link set; depth.
    EXPECT_EQ(
        (U64s{word(kTxB, kTxGpc, kGrp), bits(kTxB, kTxLkc, 10, 0, 8), bits(kTxB, kTxLkc, 47, 0, 8),
              bits(kTxB, kInGrp, kGrp, 0, 64), bits(kTxB, kDepth, kGrp, 0, 11), model.peek(0x48AE) & 1u}),
        (U64s{0x4903, 3, 7, (1ull << 10) | (1ull << 47), 2047, 1}));

    // Processor group words 0..2 at group * 16 + word, receive link table in words 5..15.
    const uint32_t gpc[6] = {0x03080000, 0x42420000, 0x9085F132, 0, 0, 10u | (511u << 9) | (47u << 18)};
    for (uint32_t w : {0, 1, 2, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}) {
        EXPECT_EQ(word(kPpB, kGpc, kGrp * 16 + w), w > 5 ? 0x7FFFFFFu : gpc[w]) << w;
    }
    EXPECT_EQ((U32s{word(kPpB, kTxc, 10), word(kPpB, kTxc, 47), word(kPpB, kRxc, 10), word(kPpB, kRxc, 47)}),
              (U32s{0xC0050000, 0xC0051000, 0xC0050000, 0xC0050000}));

    // Receive side: delay tolerance with Scvcthresh kept, SCVC entries at (link % 84) * 4 + link / 84.
    EXPECT_EQ((U64s{word(kRxB, kRxGpc, kGrp), bits(kRxB, kScvc, 40, 0, 10), bits(kRxB, kScvc, 188, 0, 10)}),
              (U64s{0xFABFFDF4, 0x205, 0x205}));

    // TC links: idle filter off on the receive links, the transmit link enabled again, neighbours kept.
    for (uint32_t link : {10u, 47u}) {
        EXPECT_EQ(bits(kTcB, kRxCfg, link, 64, 32), 0xFDFFFFFFu) << "only bit 89 cleared";
        EXPECT_EQ(bits(kTcB, kTxCfg, link, 0, 64), ~0ull);
    }
    EXPECT_EQ(proc().commands(), (std::vector<Proc::Command>{{0, kGrp, 0x5, 0x5, 0}}));
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 1u) << "the mailbox sleeps 1 us after the command";
}

TEST_F(GroupTest, GroupCheckMessages) {
    // The change to the valid record, and the message after "Err. VQ6192_IMA_checkGrpParams(3,5".
    const std::tuple<std::function<void(IMA_GRP_CFG &)>, const char *> cases[] = {
        {[](IMA_GRP_CFG &c) { c.byClockMd = 2; },
         ")---byClockMd >= VQ6192_IMA_GRP_CLK_MD_CTC---   pstCfg->byClockMd = 2\r\n"},
        {[](IMA_GRP_CFG &c) { c.byClockMd = 1, c.byStuffMd = 1; },
         ",)   ---byClockMd != VQ6192_IMA_GRP_CLK_MD_CTC or byStuffMd != VQ6192_IMA_GRP_STUFF_MD_ITC---    "
         "pstCfg->byClockMd = 1, pstCfg->byStuffMd = 1\n"},
        {[](IMA_GRP_CFG &c) { c.bySymmetryMd = 3; },
         ",)   ---bySymmetryMd >= VQ6192_IMA_GRP_ASYM---   pstCfg->bySymmetryMd = 3\n"},
        {[](IMA_GRP_CFG &c) { c.byImaVersion = 2; },
         ",)   ---byImaVersion >= VQ6192_VERSION_10---   pstCfg->byImaVersion = 2\n"},
        {[](IMA_GRP_CFG &c) { c.byImaOamLabel = 2; },
         ",)   ---byImaOamLabel >= VQ6192_OAM_LABEL_11 and byImaOamLabel != 2---   pstCfg->byImaOamLabel = "
         "2\n"},
        {[](IMA_GRP_CFG &c) { c.byRxImaIdCfgEn = 2; },
         ")   ---byRxImaIdCfgEn > 1---   pstCfg->byRxImaIdCfgEn = 2\n"},
        {[](IMA_GRP_CFG &c) { c.wRxVphy = 336; },
         ",)   ---wTxVphy >= VQ6192_MAX_GCNT or wRxVphy >= VQ6192_MAX_GCNT---   pstCfg->wTxVphy = 5; "
         "pstCfg->wRxVphy = 336\n"},
        {[](IMA_GRP_CFG &c) { c.byRxM = 0; },
         ",)   ---byRxM > VQ6192_IMA_GRP_MAX_RXM or byRxM == 0---   pstCfg->byRxM = 0\n"},
        {[](IMA_GRP_CFG &c) { c.byPRx = 33; },
         ",)   ---byPRx > VQ6192_MAX_LID or byPRx == 0---   pstCfg->byPRx = 33\n"},
        {[](IMA_GRP_CFG &c) { c.byTxM = 4; },
         ")   ---byTxM > VQ6192_IMA_GRP_MAX_TXM---   pstCfg->byTxM = 4\n"},
        {[](IMA_GRP_CFG &c) { c.byPTx = 0; },
         ",)   ---byPTx > VQ6192_MAX_LID or byPTx == 0---   pstCfg->byPTx = 0\n"},
        {[](IMA_GRP_CFG &c) { c.byPTx = 1; },  // symmetric minimums differ
         ",)   ---bySymmetryMd == VQ6192_IMA_GRP_SYM or byPRx != byPTx---   pstCfg->bySymmetryMd = 0; "
         "pstCfg->byPRx = 2;  pstCfg->byPTx = 1\n"},
        {[](IMA_GRP_CFG &c) { c.wMaxDelay = 1024; },
         ")   ---wMaxDelay > 1023---   pstCfg->wMaxDelay = 1024\n"},
        {[](IMA_GRP_CFG &c) { c.byStuffAdvMd = 2; },
         ",)   ---byStuffAdvMd !=VQ6192_IMA_GRP_STUFF_ADV_1_AHEAD or byStuffAdvMd "
         "!=VQ6192_IMA_GRP_STUFF_ADV_4_AHEAD---   pstCfg->byStuffAdvMd = 2\n"},
        {[](IMA_GRP_CFG &c) { c.wTxTrlPhy = 11; },  // reference link not sent
         ")   ---wNumTxLinks <= i---   pstCfg->wNumTxLinks=2; i=2\n"},
        {[](IMA_GRP_CFG &c) { c.wNumTxLinks = 0; },
         ")   ---wNumTxLinks <= i---   pstCfg->wNumTxLinks=0; i=0\n"},
        {[](IMA_GRP_CFG &c) { c.wNumRxLinks = 0; },  // symmetric with no receive link
         ",)   ---bySymmetryMd != VQ6192_IMA_GRP_ASYM and wNumRxLinks == usNumTxLinks---   "
         "pstCfg->bySymmetryMd = 0; pstCfg->wNumRxLinks = 0; pstCfg->wNumTxLinks = 2\n"},
    };
    for (const auto &[change, message] : cases) {
        IMA_GRP_CFG cfg = groupCfg();
        change(cfg);
        const std::string text = std::string("Err. VQ6192_IMA_checkGrpParams(3,5") + message;
        expectRefused(
            text, [&] { return VQ6192_IMA_AddImaGrp(kChip, kGrp, &cfg); }, text.c_str());
    }
    IMA_GRP_CFG asym = groupCfg();
    asym.bySymmetryMd = 2, asym.wNumRxLinks = 0;
    EXPECT_EQ(VQ6192_IMA_checkGrpParams(kChip, kGrp, &asym), 0u) << "asymmetric: any receive count";
    expectRefused("group 336", [&] { return VQ6192_IMA_AddImaGrp(kChip, 336, &asym); });
}

TEST_F(GroupTest, AddGroupDrainAndStepFailures) {
    const IMA_GRP_CFG cfg = groupCfg();
    setBits(kTcB, kTxCfg, 10, 46, 1, 1);
    proc().setDrainReads(Proc::kForever);
    EXPECT_EQ(VQ6192_IMA_AddImaGrp(kChip, kGrp, &cfg), 0u) << "a drain that never ends does not stop the add";
    const auto texts = capture.traceTexts();
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts[0],
              "Err. VQ6192_IMA_AddImaGrp.VQ6192_Read_Table(3,140,10)i=0  GetDEPTH   ErrCode[0x30d0004]\r\n");
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 100u * 500u + 1u) << "100 polls 500 us apart";

    // The refused add_group command is the step's result.
    setBits(kPpB, kGps, kGrp * 8, 62, 2, 0);
    proc().setDrainReads(0);
    proc().refuse(1);
    capture.clear();
    EXPECT_EQ(VQ6192_IMA_AddImaGrp(kChip, kGrp, &cfg), kRefusedCmd);
    EXPECT_EQ(capture.traceTexts(),
              Texts{"Err. VQ6192_imaAddGrp.VQ6192_IMA_utlRippCmd(3,5)       ErrCode[0x30d0009]\r\n"});
}

TEST_F(GroupTest, AddLinksAroundStartupAndLasr) {
    IMA_GRP_CFG cfg = groupCfg();
    const uint16_t rx[1] = {100};
    const IMA_TX_LINK tx[1] = {{4, 1, 100}};
    const std::tuple<uint32_t, uint32_t, uint32_t, size_t, uint64_t> cases[] = {
        {0, 0, 0, 1, 0},           {1, 0, 0, 1, 0}, {2, 0, 0, 1, 10},
        {2, 2, 0, 3, 10},           // refused twice: the later attempts find the LASR stopped
        {0, 3, kRefusedCmd, 3, 0},  // three refusals end it
    };
    for (const auto &[gwp, refusals, status, commands, ticks] : cases) {
        SCOPED_TRACE(testing::Message() << "Gwpactive " << gwp << " refusals " << refusals);
        proc().clearCommands();
        VQ6192_Platform_ResetVirtualTime();
        setBits(kPpB, kGps, kGrp * 8, 53, 2, gwp);
        setBits(kPpB, kGps, kGrp * 8 + 2, 0, 32, 0xFFFFFFFF);   // Txlasract
        setBits(kPpB, kGps, kGrp * 8 + 4, 32, 32, 0xFFFFFFFF);  // Rxlasract
        setBits(kPpB, kGpc, kGrp * 16 + 3, 0, 32, 0xFFFFFFFF);
        proc().refuse(refusals);
        EXPECT_EQ(VQ6192_IMA_AddImaLink(kChip, 1, kGrp, 1, 1, rx, tx, &cfg), status);
        ASSERT_EQ(proc().commands().size(), commands);
        EXPECT_EQ(proc().commands().back(), (Proc::Command{8, kGrp, 1u << 4, 1u << 4, 0}));
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs() / kTickUs, ticks);
        // Gwpactive, Autolasren set again, and Txlasract and Rxlasract cleared when a LASR was running.
        const U64s got = {bits(kPpB, kGps, kGrp * 8, 53, 2), word(kPpB, kGpc, kGrp * 16 + 3),
                          bits(kPpB, kGps, kGrp * 8 + 2, 0, 32), bits(kPpB, kGps, kGrp * 8 + 4, 32, 32)};
        EXPECT_EQ(got, (U64s{gwp == 1 ? 1u : 0u, 0xFFFFFFFF, gwp == 2 ? 0u : 0xFFFFFFFFu,
                             gwp == 2 ? 0u : 0xFFFFFFFFu}));
    }
    // LID 4 maps link 100; position 4 of the receive table: word 6, slot 1.
    EXPECT_EQ((U64s{bits(kTxB, kMap, kGrp * 32 + 4, 0, 9), word(kPpB, kTxc, 100),
                    bits(kPpB, kGpc, kGrp * 16 + 5 + 1, 9, 9)}),
              (U64s{100, 0xC0052000, 100}));

    expectRefused("no receive link",
                  [&] { return VQ6192_IMA_AddImaLink(kChip, 0, kGrp, 0, 1, rx, tx, &cfg); });
    expectRefused("33 links", [&] { return VQ6192_IMA_AddImaLink(kChip, 0, kGrp, 33, 1, rx, tx, &cfg); });
    const IMA_TX_LINK badOffset[1] = {{4, 64, 100}};
    capture.clear();
    EXPECT_EQ(VQ6192_IMA_AddImaLink(kChip, 0, kGrp, 1, 1, rx, badOffset, &cfg), kPara);
    EXPECT_EQ(capture.traceTexts(), Texts{"Err. VQ6192_checkTxLinkParams(3,1,1) "
                                          "pstTxLinks[i].ucIcpOffset[0x40]     ErrCode[0x30d0001]\r\n"});
    setBits(kTcB, kTxCfg, 100, 46, 1, 1);
    proc().setDrainReads(Proc::kForever);
    EXPECT_EQ(VQ6192_IMA_AddImaLink(kChip, 0, kGrp, 1, 1, rx, tx, &cfg), kNoEnd);
}

TEST_F(GroupTest, DeleteLinksAndGroup) {
    setBits(kTxB, kInGrp, kGrp, 0, 64, (1ull << 10) | (1ull << 47) | (1ull << 63));
    const uint16_t rx[1] = {47};
    const IMA_TX_LINK tx[1] = {{2, 7, 47}};
    ASSERT_EQ(VQ6192_IMA_DelImaLink(kChip, kGrp, 1, 1, rx, tx, 0), 0u);
    EXPECT_EQ(bits(kTxB, kInGrp, kGrp, 0, 64), (1ull << 10) | (1ull << 63));
    ASSERT_EQ(VQ6192_IMA_DelImaLink(kChip, kGrp, 1, 0, rx, nullptr, 2), 0u)
        << "asymmetric: position = link number";
    ASSERT_EQ(VQ6192_IMA_DelImaGrp(kChip, kGrp), 0u);
    const std::vector<Proc::Command> expect = {
        {9, kGrp, 1u << 2, 1u << 2, 0}, {9, kGrp, 0, 0, 0}, {1, kGrp, 0, 0, 0}};
    EXPECT_EQ(proc().commands(), expect) << "link 47 has no position bit in an asymmetric group";
    expectRefused("nothing to delete", [&] { return VQ6192_IMA_DelImaLink(kChip, kGrp, 0, 0, rx, tx, 0); });
    expectRefused("receive link 336", [&] {
        const uint16_t bad[1] = {336};
        return VQ6192_IMA_DelImaLink(kChip, kGrp, 1, 1, bad, tx, 0);
    });
}

TEST_F(GroupTest, ConfigurationReadBack) {
    IMA_GRP_CFG out{};
    uint16_t en = 9;
    EXPECT_EQ(VQ6192_IMA_GetImaGrpCfg(kChip, kGrp, &out, &en), kInUse) << "a free group has no configuration";
    const IMA_GRP_CFG cfg = groupCfg();
    ASSERT_EQ(VQ6192_IMA_AddImaGrp(kChip, kGrp, &cfg), 0u);
    // The group now in use: a second add writes nothing.
    const uint64_t writes = tableWrites();
    EXPECT_EQ(VQ6192_IMA_AddImaGrp(kChip, kGrp, &cfg), kInUse);
    EXPECT_EQ((U64s{tableWrites(), proc().commands().size()}), (U64s{writes, 1}));
    setBits(kPpB, kGps, kGrp * 8 + 1, 32, 9, 47);  // Txtrlphyid reported by the processor
    ASSERT_EQ(VQ6192_IMA_GetImaGrpCfg(kChip, kGrp, &out, &en), 0u);
    IMA_TX_LINK tx[2];
    uint16_t rx[2];
    std::memcpy(tx, reinterpret_cast<const uint8_t *>(&out) + offsetof(IMA_GRP_CFG, pstTxLinks), sizeof tx);
    std::memcpy(rx, reinterpret_cast<const uint8_t *>(&out) + offsetof(IMA_GRP_CFG, pusRxLinks), sizeof rx);
    // The stuff advance 4 is stored as bit 0 and read back as that bit.
    EXPECT_EQ((U32s{en, out.byImaOamLabel, out.byTxImaId, out.byRxImaId, out.byRxM, out.byTxM, out.byPRx,
                    out.byPTx, out.wMaxDelay, out.byStuffAdvMd}),
              (U32s{3, 3, 0x42, 0x21, 0xF, 1, 2, 2, 500, 0}));
    EXPECT_EQ((U32s{out.wTxTrlPhy, out.wTxVphy, out.byStuffMd, out.wNumTxLinks, out.wNumRxLinks, tx[1].ucLid,
                    tx[1].ucIcpOffset, tx[1].usPhyLink, rx[0], rx[1]}),
              (U32s{47, kGrp, 2, 2, 2, 2, 7, 47, 10, 47}));
}

TEST_F(GroupTest, TableFailuresEndTheStepWithItsMessage) {
    static const IMA_GRP_CFG cfg = groupCfg();
    const std::tuple<uint32_t, std::function<uint32_t()>, const char *> cases[] = {
        {kTcB, [] { return VQ6192_IMA_AddImaGrp(kChip, kGrp, &cfg); },
         "Err. VQ6192_IMA_AddImaGrp.VQ6192_Read_Table(3,138,10) i=0     ErrCode[0x30c0003]\r\n"},
        {kTxB, [] { return VQ6192_IMA_AddImaGrp(kChip, kGrp, &cfg); },
         "Err. VQ6192_imaAddGrp.VQ6192_clrTimaGrpParams(3,5)       ErrCode[0x30c0003]\r\n"},
        {kPpB, [] { return VQ6192_IMA_ResetIma(kChip); },
         "Err. VQ6192_IMA_ResetIma.VQ6192_Write_Table(3,143,0)      ErrCode[0x30c0003]\r\n"},
    };
    for (const auto &[block, op, message] : cases) {
        SCOPED_TRACE(message);
        model.tables().holdBusy(block, vq6192::sim::TableEngine::kForever);
        capture.clear();
        EXPECT_EQ(op(), 0x030C0003u) << "the table access's own code";
        const auto texts = capture.traceTexts();
        ASSERT_EQ(texts.size(), 2u) << "the table layer's line, then the step's";
        EXPECT_EQ(texts[1], message);
        model.tables().holdBusy(block, 0);
    }
    EXPECT_TRUE(proc().commands().empty());
}

}  // namespace
