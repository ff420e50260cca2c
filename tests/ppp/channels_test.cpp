// PPP channels: creation on E1 timeslots and on a VC-4, deletion, the channel reset engine, and the
// per-channel options, checked on the model's table entries and bus trace.
#include <algorithm>
#include <cstring>

#include "ppp_fixture.h"

namespace {

using namespace ppptest;
using vq6192::sim::BusOp;
using vq6192::sim::PppBlock;

constexpr uint32_t kTsIngress = 0;
constexpr uint32_t kTsEgress = 1;

TEST_F(PppTest, TypicalRequestPppChannelOnE1Tributary5) {
    // Select, before (neighbours set, engines closed), after: Tppucfg Chcen (bit 12) and Rppucfg Chcen
    // (bit 27) opened; Linkpppen and Mprxmlinktype0: PPP link.
    const uint64_t rows[][3] = {{kTppucfg, 0x3FFF, 0x2FFF},
                                {kRppucfg, 0x1FFFFFFF, 0x17FFFFFF},
                                {kLinkcfg, 0x3FFE, 0x3FFF},
                                {kHdlccfg1, 6, 7}};
    for (const auto &[sel, before, after] : rows) {
        setEntry(static_cast<uint32_t>(sel), 37, before);
    }
    const VQ6192_PPP_CHAN_S chan{5, 37, 0xFFFFFFFEu, 3};
    ASSERT_EQ(VQ6192_PPP_CreatePppChan(kChip, &chan), 0u);
    for (const auto &[sel, before, after] : rows) {
        EXPECT_EQ(entry(static_cast<uint32_t>(sel), 37), after) << sel;
    }
    // One entry per timeslot 1..31 in both directions: En, MLPPP module, 64 kbit/s, channel 37.
    for (uint32_t ts = 0; ts < 32; ++ts) {
        const uint32_t want = ts == 0 ? 0 : 0xD825;
        EXPECT_EQ((U32s{tsEntry(kTsIngress, 5, ts), tsEntry(kTsEgress, 5, ts)}), (U32s{want, want})) << ts;
    }
    EXPECT_TRUE(tracedLine(
        "VQ6192_PPP_CreatePppChan : Set E1:[5] TS:[0xfffffffe] To PPP:[37] Speed:[3] Return:[0x0]\n"));
    for (const std::string &line : capture.traceTexts()) {
        EXPECT_NE(line.rfind("Err. ", 0), 0u) << line;  // a success reports no failed step
    }
}

TEST_F(PppTest, CreateOnAnE1TheTimeslotLayerRefusesOrsItsStatus) {
    // Port 400 passes the channel layer's bound (512) but not the timeslot layer's (335).
    setEntry(kTppucfg, 8, 0x1000);
    const VQ6192_PPP_CHAN_S chan{400, 8, 0x2, 3};
    EXPECT_EQ(VQ6192_PPP_CreatePppChan(kChip, &chan), 0x030E0001u);  // the framer's parameter error, ORed
    EXPECT_EQ((U32s{uint32_t(entry(kTppucfg, 8)), uint32_t(entry(kLinkcfg, 8))}), (U32s{0, 1}))
        << "later steps run";
}

TEST_F(PppTest, Vc4ChannelLivesAtItsInnerNumber) {
    setEntry(kHdfccfg, 0x200, 0xF000000000000000ull);
    EXPECT_EQ((U64s{VQ6192_PPP_SetMpVc4En(kChip, 1, 1), model.peek(kVc4Enable)}), (U64s{0, 0x2u}));
    // H 0x3FF00 (bits 20..39), L 6400 (0..19), Drop 0x3FFFF (40..59); bits 60..63 kept.
    EXPECT_EQ(entry(kHdfccfg, 0x200), 0xF3FFFF3FF0001900u);

    setEntries(0x200, {{kTppucfg, 0x1000}, {kRppucfg, 0x08000000}});
    const VQ6192_PPP_CHAN_S chan{2, 1, 0, 0};
    ASSERT_EQ(VQ6192_PPP_CreateVC4PppChan(kChip, &chan), 0u);
    // Tppucfg and Rppucfg: Chcen 0, Crcfe 1; ordinary channel 1 untouched.
    EXPECT_EQ((std::vector<uint64_t>{entry(kTppucfg, 0x200), entry(kRppucfg, 0x200), entry(kLinkcfg, 0x200),
                                     entry(kHdlccfg1, 0x200), entry(kLinkcfg, 1)}),
              (std::vector<uint64_t>{0x2000, 0x10000000, 1, 1, 0}));

    // Disabled again: the watermarks of a disabled channel land at entry 1.
    EXPECT_EQ((U64s{VQ6192_PPP_SetMpVc4En(kChip, 1, 0), model.peek(kVc4Enable)}), (U64s{0, 0x0u}));
    EXPECT_EQ(entry(kHdfccfg, 1), 0xFF0003300019u);  // drop 255, high 51, low 25
    model.poke(kVc4Enable, 0xD);                     // every VC-4 channel but 1
    const VQ6192_PPP_CHAN_S off{1, 1, 0, 0};
    PPP_REFUSED(VQ6192_PPP_CreateVC4PppChan(kChip, &off), "usVc4Enable == VQ6192_PPP_ENABLE");
}

TEST_F(PppTest, DeleteRestoresTheChannelAndResetsIt) {
    // Hdlccfg1: ingress off, plain HDLC, loopback kept. Linkcfg: ACFC, PFC and PPP off. Rppucfg: Rxmtu 2036,
    // Crcmod 0, Chcen 0, Crcfe kept. Tppucfg: Crcfe 0, Chcen 0. Afidcfg: Crcmod 0.
    const uint64_t rows[][3] = {{kHdlccfg1, 0x7, 0x4},
                                {kLinkcfg, 0x3FFF, 0x33FE},
                                {kRppucfg, 0x1FFFFFFF, 0x14FFA7FF},
                                {kTppucfg, 0x3FFF, 0x0FFF},
                                {kAfidcfg, 0xFFF, 0xFF9}};
    for (const auto &[sel, before, after] : rows) {
        setEntry(static_cast<uint32_t>(sel), 9, before);
    }
    ASSERT_EQ(VQ6192_Framer_SelectSrcE1(kChip, 2, 7, 9, 1, 0x6, 3), 0u);
    model.setTrace(true);
    ASSERT_EQ(VQ6192_PPP_DelPppChan(kChip, 9, 7, 0x6), 0u);
    for (const auto &[sel, before, after] : rows) {
        EXPECT_EQ(entry(static_cast<uint32_t>(sel), 9), after) << sel;
    }
    EXPECT_EQ((U32s{tsEntry(kTsIngress, 7, 1), tsEntry(kTsIngress, 7, 2), tsEntry(kTsEgress, 7, 1),
                    tsEntry(kTsEgress, 7, 2)}),
              (U32s{0x7800, 0x7800, 0x7800, 0x7800}));
    EXPECT_EQ(writesTo(0x12216), (U32s{0, 9, 0x809, 9, 0}));
    EXPECT_EQ(ppp().channelResets(), std::vector<uint32_t>{9});
}

TEST_F(PppTest, DeleteWithoutTimeslotsAndTheVc4Delete) {
    for (const bool vc4 : {false, true}) {
        capture.clear();
        setEntries(3, {{kLinkcfg, 0x3FFF}, {kRppucfg, 0x1FFFFFFF}});
        ASSERT_EQ(vc4 ? VQ6192_PPP_DelVC4PppChan(kChip, 3, 2) : VQ6192_PPP_DelPppChanNoTS(kChip, 3), 0u);
        EXPECT_EQ(entry(kLinkcfg, 3), 0x33FEu);
        EXPECT_EQ(entry(kRppucfg, 3) >> 28, 1u) << "Crcfe kept";
        EXPECT_TRUE(tracedLine(vc4 ? "VQ6192_PPP_DelPppChan :Del VC4:[2] return:[0x0]\n"
                                   : "VQ6192_PPP_DelPppChan : Del Channel:[3]return:[0x0]\n"));
    }
    EXPECT_EQ(ppp().channelResets(), (std::vector<uint32_t>{3, 3}));
}

TEST_F(PppTest, ResetEngineWaitsAndTimeouts) {
    constexpr uint64_t F = PppBlock::kForever;
    // Reads of 0 before the strobe and after it; status; virtual wait; strobes.
    for (const auto &[notReady, busy, status, waitUs, strobes] :
         Rows<5>{{0, 1, 0, 2 * 1500, 1},               // ready at once
                 {10, 1, 0, 10 * 1500 + 2 * 1500, 1},  // ready after 10 reads
                 {F, 1, kTimeout, 1300 * 1500, 0},     // never ready
                 {0, F, kTimeout, 1300 * 1500, 1}}) {  // reset never finishes
        ppp().holdNotReady(static_cast<uint32_t>(notReady));
        ppp().setResetBusy(static_cast<uint32_t>(busy));
        const size_t before = ppp().channelResets().size();
        VQ6192_Platform_ResetVirtualTime();
        capture.clear();
        EXPECT_EQ(VQ6192_PPP_ResetPppChan(kChip, 300), status) << waitUs;
        EXPECT_EQ((U64s{virtualUs(), ppp().channelResets().size() - before}), (U64s{waitUs, strobes}));
        const char *trace = status == 0 ? nullptr
                            : strobes == 0
                                ? "Err. VQ6192_PPP_ResetPppChan : reset engine not ready, channel:[300]\n"
                                : "Err. VQ6192_PPP_ResetPppChan : reset not finished, channel:[300]\n";
        EXPECT_EQ(capture.traceTexts(), trace ? std::vector<std::string>{trace} : std::vector<std::string>{});
        ppp().holdNotReady(0);
    }
    // The caller's channel is strobed, not the inner number of an enabled VC-4 channel.
    ppp().setResetBusy(1);
    model.poke(kVc4Enable, 0x4);
    EXPECT_EQ((U64s{VQ6192_PPP_ResetPppChan(kChip, 2), ppp().channelResets().back()}), (U64s{0, 2u}));
}

TEST_F(PppTest, LinkTypeEnablesAndLoopbackFields) {
    expectEntryOps({{PPP_OP(VQ6192_PPP_SetLinkToPpp(c, 20, 0)), kHdlccfg1, 20, 0x7, 0x6},
                    {PPP_OP(VQ6192_PPP_SetLinkToPpp(c, 20, 0)), kLinkcfg, 20, 0x3FFF, 0x3FFE},
                    {PPP_OP(VQ6192_PPP_SetPppChanEnable(c, 20, 1, 0)), kHdlccfg1, 20, 0x5, 0x7},
                    {PPP_OP(VQ6192_PPP_SetPppChanEnable(c, 20, 1, 1)), kPppencfg, 2, 0xE0, 0xF0},
                    {PPP_OP(VQ6192_PPP_SetPppChanEnable(c, 20, 0, 2)), kPppencfg, 2, 0xFF, 0xEF},
                    {PPP_OP(VQ6192_PPP_SetPppChanEnable(c, 20, 0, 2)), kHdlccfg1, 20, 0x7, 0x5},
                    {PPP_OP(VQ6192_PPP_SetPppChanEnable(c, 20, 1, 3)), kPppencfg, 2, 0x0, 0x0},
                    {PPP_OP(VQ6192_PPP_SetPppLoopEnable(c, 20, 0, 1)), kHdlccfg1, 20, 0x3, 0x7},
                    {PPP_OP(VQ6192_PPP_SetPppLoopEnable(c, 20, 0, 0)), kLinkcfg, 20, 0x3FFF, 0x1FFF},
                    {PPP_OP(VQ6192_PPP_SetPppACFCEnable(c, 20, 0)), kLinkcfg, 20, 0x3FFF, 0x37FF},
                    {PPP_OP(VQ6192_PPP_SetPppPFCEnable(c, 20, 0)), kLinkcfg, 20, 0x3FFF, 0x3BFF},
                    {PPP_OP(VQ6192_PPP_SetPppMRU(c, 20, 2036)), kRppucfg, 20, 0x1FFFFFFF, 0x1FFFA7FF},
                    {PPP_OP(VQ6192_PPP_SetPppCsptEnable(c, 20, 0, 1)), kCsptcfg1, 20, 0x0, 0x1},
                    {PPP_OP(VQ6192_PPP_SetPppCsptEnable(c, 20, 1, 1)), kCsptcfg2, 20, 0xFF, 0x1FF},
                    {PPP_OP(VQ6192_PPP_SetPppTestTxEnable(c, 20, 1)), kLinkcfg, 20, 0x2FFF, 0x3FFF},
                    {PPP_OP(VQ6192_PPP_SetPppDdrCapChan(c, 20, 9, 1)), kMpskyeyecfg, 20, 0x0, 0x29}});
    EXPECT_TRUE(tracedLine("VQ6192_PPP_SetPppMRU : ulPppChanNo:[20] ulMRU:[2036]\n"));
}

TEST_F(PppTest, CrcModeAndPpuConfiguration) {
    setEntries(40, {{kRppucfg, 0x1FFFFFFF}, {kAfidcfg, 0xFFF}, {kTppucfg, 0x3FFF}});
    model.poke(0x11200 + 2 * 40, 0xFFFF);
    ASSERT_EQ(VQ6192_PPP_SetPppCRCMode(kChip, 40, 2, 0), 0u);
    // Rppucfg Crcmod bits 24..25, Afidcfg Crcmod bits 1..2, CRC correction bits 3..4 = 2; egress untouched.
    EXPECT_EQ(
        (U64s{entry(kRppucfg, 40), entry(kAfidcfg, 40), model.peek(0x11200 + 2 * 40), entry(kTppucfg, 40)}),
        (U64s{0x1EFFFFFF, 0xFFD, 0xFFF7, 0x3FFF}));
    ASSERT_EQ(VQ6192_PPP_SetPppCRCMode(kChip, 40, 1, 1), 0u);
    EXPECT_EQ(entry(kTppucfg, 40), 0x3FF7u);  // Crcmod bits 2..3 = 1
    uint32_t eg = 9, in = 9;
    EXPECT_EQ(VQ6192_PPP_GetPppCRCMode(kChip, 40, 1, &eg) | VQ6192_PPP_GetPppCRCMode(kChip, 40, 0, &in), 0u);
    EXPECT_EQ((U32s{eg, in}), (U32s{1, 2}));
    setEntries(50, {{kRppucfg, 0x1FFFFFFF}, {kTppucfg, 0x3FFF}, {kAfidcfg, 0xFFF}});
    VQ6192_PPP_PPU_CFG_S cfg{}, sel{};
    cfg.bRxCrcMod = 1, cfg.bTxCrcMod = 2, cfg.dwRxMintu = 64;
    sel.bRxCrcMod = 1, sel.bTxCrcMod = 2;  // a multi-bit selector other than 1 selects nothing
    const uint64_t writesBefore = model.tables().writesExecuted(kPppBlock);
    ASSERT_EQ(VQ6192_PPP_SetPppPpuCfg(kChip, 50, &cfg, &sel), 0u);
    // Rppucfg bits 24..25 = 1, Rxmintu untouched.
    EXPECT_EQ(entries({kRppucfg, kTppucfg}, 50), (U64s{0x1DFFFFFF, 0x3FFF}));
    EXPECT_EQ(model.tables().writesExecuted(kPppBlock) - writesBefore, 1u);

    // Every field, through the getter.
    VQ6192_PPP_PPU_CFG_S all{};
    all.bRxafi = 1, all.bMpv = 0xA5, all.bChnEn = 1, all.bCorrect = 2, all.bTxaifs = 1, all.bTxifs = 1;
    all.bTxcfcs = 1, all.bTxfMod = 9, all.bTxFillMod = 1, all.bRxFillMod = 1, all.bTxCrcMod = 2;
    all.bRxCrcMod = 2, all.bTxDie = 1, all.bRxDie = 1, all.bByteFe = 1, all.bRxPlDet = 1, all.bRxByteFe = 1;
    all.dwRxMtu = 1500, all.dwRxMintu = 10;
    VQ6192_PPP_PPU_CFG_S pick{0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};  // every selector
    model.tables().clear();
    ASSERT_EQ(VQ6192_PPP_SetPppPpuCfg(kChip, 51, &all, &pick), 0u);
    // Afidcfg: Rxafi 11, Mpv 3..10, Bytefe 0. Tppucfg: Chcen 12, Txaifs 11, Txifs 10, Txcfcs 9,
    // Txfmod 5..8, Fillmod 4, Crcmod 2..3, Die 1, Bytefe 0.
    // Rppucfg: Chcen 27, Fillmod 26, Crcmod 24..25, Die 23, Rxpldet 22, Rxmtu 11..21, Rxmintu 0..10.
    EXPECT_EQ(entries({kAfidcfg, kTppucfg, kRppucfg}, 51), (U64s{0xD29, 0x1F3B, 0xEEEE00A}));
    EXPECT_EQ(model.peek(0x11200 + 2 * 51) >> 3 & 3u, 2u);
    VQ6192_PPP_PPU_CFG_S back{};
    ASSERT_EQ(VQ6192_PPP_GetPppPpuCfg(kChip, 51, &back), 0u);
    EXPECT_EQ(std::memcmp(&back, &all, sizeof back), 0);
}

TEST_F(PppTest, QueueWeightsAndWatermarksKeepTheirNeighbours) {
    setEntry(kPppwgtcfg, 6, 0xFFFFFFFFFFFFFFFFull);
    // Queue 4: low 4 bits to bits 28..31, high 3 bits to bits 32..34.
    ASSERT_EQ(VQ6192_PPP_SetPppQueWeight(kChip, 6, 4, 0x15), 0u);
    EXPECT_EQ(entry(kPppwgtcfg, 6), 0xFFFFFFF95FFFFFFFu);
    uint32_t w = 0;
    EXPECT_EQ((U64s{VQ6192_PPP_GetPppQueWeight(kChip, 6, 4, &w), w}), (U64s{0, 0x15u}));

    setEntry(kHdfccfg, 6, 0xFFFFFFFFFFFFFFFFull);
    const VQ6192_PPP_WATERMARK_S wm{0x12345, 0x6789A, 0xBCDEF};
    ASSERT_EQ(VQ6192_PPP_SetPppTxLinkWaterMark(kChip, 6, &wm), 0u);
    EXPECT_EQ(entry(kHdfccfg, 6), 0xFBCDEF123456789Au);  // drop 40..59, high 20..39, low 0..19
}

TEST_F(PppTest, TableFailuresAreOredAndLaterStepsStillRun) {
    constexpr uint32_t kTableTimeout = 0x030C0003;
    setEntry(kRppucfg, 14, 0x1FFFFFFF);
    model.tables().holdBusy(kPppBlock, vq6192::sim::TableEngine::kForever);
    const uint64_t writes = model.tables().writesExecuted(kPppBlock);
    EXPECT_EQ(VQ6192_PPP_SetPppMRU(kChip, 14, 100), kTableTimeout);
    EXPECT_EQ(model.tables().writesExecuted(kPppBlock), writes) << "no write after a failed read";
    model.tables().holdBusy(kPppBlock, 0);
    EXPECT_EQ(entry(kRppucfg, 14), 0x1FFFFFFFu);

    // A create whose first engine write times out still opens the ingress engine and sets the link type.
    setEntry(kRppucfg, 15, 0x08000000);
    model.tables().holdBusy(kPppBlock, 500);  // the first table access of the create fails
    EXPECT_EQ(VQ6192_PPP_CreatePppChanNoTS(kChip, 15, 1), kTableTimeout);
    EXPECT_EQ(entries({kRppucfg, kLinkcfg}, 15), (U64s{0, 1}));
    EXPECT_EQ(failCounters()[3], 2u) << "both time-outs counted in the chip record";
    EXPECT_EQ(capture.traceTexts().back(), "Err. VQ6192_PPP_CreatePppChanNoTS Return:[0x30c0003]\n");
}

TEST_F(PppTest, LinkGettersAndEgressQueueEnable) {
    setEntry(kLinkcfg, 11, 0x37FF ^ 0x0C00);  // ACFC (bit 11) on, PFC (bit 10) off
    uint32_t pfc = 9, acfc = 9;
    ASSERT_EQ(VQ6192_PPP_GetPppPFCEnable(kChip, 11, &pfc) | VQ6192_PPP_GetPppACFCEnable(kChip, 11, &acfc),
              0u);
    EXPECT_EQ((U32s{pfc, acfc}), (U32s{0, 1}));
    setEntry(kQmencfg, 5, 0xFF);
    ASSERT_EQ(VQ6192_PPP_SetPPPQmEnable(kChip, 41, 0, 0), 0u);
    EXPECT_EQ(entry(kQmencfg, 5), 0xFDu);  // link 41: entry 5, bit 1
    // Failed reads, of the link's entry and of a bundle's SN format first: nothing written.
    model.tables().holdBusy(kPppBlock, vq6192::sim::TableEngine::kForever);
    EXPECT_EQ((U32s{VQ6192_PPP_SetPPPQmEnable(kChip, 41, 0, 1), VQ6192_PPP_SetPPPQmEnable(kChip, 12, 1, 1)}),
              (U32s{kNoData, kNoData}));
    model.tables().holdBusy(kPppBlock, 0);
    EXPECT_EQ(entry(kQmencfg, 5), 0xFDu);
    EXPECT_EQ(entry(kQmencfg, 256 + 12), 0u);
    ASSERT_EQ(VQ6192_PPP_SetPPPQmEnable(kChip, 12, 1, 1), 0u);
    EXPECT_EQ(entry(kQmencfg, 256 + 12), 0xFFu);
}

TEST_F(PppTest, ModuleRegistersAndGetters) {
    for (const RegCase &c : std::initializer_list<RegCase>{
             {PPP_OP(VQ6192_PPP_SetMpMode(c, 0)), 0x1004A, 0xFFFF, 0xFFFE},
             {PPP_OP(VQ6192_PPP_SetMpAbortThld(c, 0x5A)), 0x130D4, 0xFFFF, 0xFF5A},
             {PPP_OP(VQ6192_PPP_SetPppUnidentifyMode(c, 1)), 0x13004, 0xFFFF, 0xFFFD},
             {PPP_OP(VQ6192_PPP_SetPppESPTEnable(c, 0)), 0x13008, 0xFFFF, 0xFFFE},
             {PPP_OP(VQ6192_PPP_SetPppDCNEnable(c, 1)), 0x13006, 0xFFFE, 0xFFFF},
             {PPP_OP(VQ6192_PPP_SetPppCfgPrtcEn(c, 0xC021, 0)), 0x13066, 0xFFFF, 0xFFFE},
             {PPP_OP(VQ6192_PPP_SetPppCfgPrtcEn(c, 0xC021, 0)), 0x13068, 0xFFFF, 0xC021},
             {PPP_OP(VQ6192_PPP_SetPppDCNConfig(c, 0x12345678, 0x9ABCDEF0)), 0x1301E, 0, 0x1234},
             {PPP_OP(VQ6192_PPP_SetPppDCNConfig(c, 0x12345678, 0x9ABCDEF0)), 0x13020, 0, 0x5678},
             {PPP_OP(VQ6192_PPP_SetPppDCNConfig(c, 0x12345678, 0x9ABCDEF0)), 0x13022, 0, 0x9ABC},
             {PPP_OP(VQ6192_PPP_SetPppDCNConfig(c, 0x12345678, 0x9ABCDEF0)), 0x13024, 0, 0xDEF0},
             {PPP_OP(VQ6192_PPP_SetPppDFifoWaterMark(c, 4095, 1)), 0x12022, 0xF000, 0xFFFF},
             {PPP_OP(VQ6192_PPP_SetPppDFifoWaterMark(c, 4095, 1)), 0x12024, 0xFFFF, 0xF001},
             {PPP_OP(VQ6192_PPP_SetPppMpSchMode(c, 0, 3)), 0x12000, 0xFFFD, 0xFFFE},
             {PPP_OP(VQ6192_PPP_SetPppMpSchMode(c, 1, 2)), 0x12000, 0xFFFE, 0xFFFD},
             {PPP_OP(VQ6192_PPP_SetMpVc4Scrambler(c, 2, 1, 0)), 0x11000, 0xFFF0, 0xFFF4},
             {PPP_OP(VQ6192_PPP_SetMpVc4Scrambler(c, 2, 1, 0)), 0x11002, 0xFFFF, 0xFFFB},
             {PPP_OP(VQ6192_PPP_SetMpMaxFragNum(c, 127)), 0x130C6, 0xFF80, 0xFFFF},
             {PPP_OP(VQ6192_PPP_SetCobcMode(c, 5, 2)), 0x1120A, 0xFFFF, 0xFFFD},
             {PPP_OP(VQ6192_PPP_SetPppTestConfig(c, 9, 0x21, 0x57)), 0x13402, 0, 9}}) {
        model.poke(c.addr, static_cast<uint16_t>(c.before));
        ASSERT_EQ(c.op(kChip), 0u) << c.name;
        EXPECT_EQ(model.peek(c.addr), c.after) << c.name;
    }
    poke({{0x1306A, 0x5678}, {0x1306C, 0x1234}, {0x130D4, 0xFF7F}});
    uint32_t cnt = 0, ppp = 9, mp = 9;
    uint16_t thld = 0;
    ASSERT_EQ(VQ6192_PPP_GetPppRxCfgPrtcCnt(kChip, &cnt) | VQ6192_PPP_GetMpAbortThld(kChip, &thld), 0u);
    EXPECT_EQ((U32s{cnt, thld}), (U32s{0x12345678, 0x7F}));
    EXPECT_TRUE(traced([&] { ASSERT_EQ(VQ6192_PPP_GetPppMpSchMode(kChip, &ppp, &mp), 0u); }).empty())
        << "the scheduling mode is not read from the chip";
    EXPECT_EQ((U32s{ppp, mp}), (U32s{0, 1}));
}

}  // namespace
