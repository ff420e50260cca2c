// CES channels: creation and deletion of each kind with their timeslots, tables and registers, the
// reset and its waits, and the refusals.
#include "ces_fixture.h"

namespace {

using namespace cestest;

using Channels = CesTest;

// Timeslots of an E1/T1 routed to CES channel ch in both directions: exactly those of `map`.
void expectRouted(uint32_t e1, uint32_t ch, uint32_t map) {
    for (uint32_t dir = 0; dir < 2; ++dir) {
        for (uint32_t ts = 0; ts < 32; ++ts) {
            uint16_t chnl = 0;
            uint8_t type = 0, en = 0;
            uint32_t speed = 0;
            ASSERT_EQ(VQ6192_Framer_GetTsCfg(3, dir, e1, ts, &chnl, &type, &speed, &en), 0u);
            const bool on = (map >> ts) & 1u;
            EXPECT_EQ((U32s{en, on ? chnl : ch, on ? type : 3u}), (U32s{on, ch, 3}))
                << "dir " << dir << " ts " << ts;
        }
    }
}

// Structured channels carry their map and compress the rest, except timeslots 1..31 which travel as the
// whole frame with timeslot 0 compressed; unstructured channels carry the frame (24 timeslots on a T1).
TEST_F(Channels, CreateBindsTimeslotsAndCompression) {
    struct Case {
        const char *what;
        uint32_t tdm;
        uint8_t mode;
        uint32_t tsMap;
        uint32_t bound, mask;
    } const cases[] = {{"timeslots 1..3", 0, 0, 0x0000000E, 0x0000000E, 0xFFFFFFF1},
                       {"timeslots 1..31", 0, 0, 0xFFFFFFFE, 0xFFFFFFFF, 0x00000001},
                       {"unstructured E1", 0, 1, 0x00000F00, 0xFFFFFFFF, 0},
                       {"unstructured T1", 1, 1, 0x00000F00, 0x00FFFFFF, 0}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        ASSERT_EQ(VQ6192_Framer_SetFrmTDMMode(kChip, c.tdm), 0u);
        const uint32_t ch = 40;
        model.poke(0x16000 + 2 * (ch / 16), 0xFFFF);
        setEntry(kTxCw, ch, (uint64_t{1} << 50) - 1);
        const VQ6192_CES_CHAN_S d = {5, ch, c.tsMap, c.mode};
        ASSERT_EQ(VQ6192_CES_CreateCesChan(kChip, &d), 0u);
        expectRouted(5, ch, c.bound);
        EXPECT_EQ((U64s{bits(kTxTsMask, ch, 0, 32), bits(kRxTsMask, ch, 0, 32)}), (U64s{c.mask, c.mask}));
        // Channel 40 is bit 8 of the third switching register; L, R, M (2..5) cleared, other fields kept.
        EXPECT_EQ((U64s{model.peek(0x16000 + 2 * 2), bits(kTxCw, ch, 0, 50)}),
                  (U64s{0xFEFF, 0x3FFFFFFFFFFC3}));
        uint32_t tss = 9;
        ASSERT_EQ(VQ6192_Framer_GetTSSMode(kChip, 5, &tss), 0u);
        EXPECT_EQ(tss, c.mode);
        EXPECT_EQ(model.peek(0x15000 + 2 * ch) & 1, 0) << "left disabled";
        ASSERT_EQ(VQ6192_CES_DelCesChan(kChip, ch, 5, c.bound), 0u);
        expectRouted(5, ch, 0);
    }
}

// Deletion leaves the channel free: disabled, no L/R/M, no compression, idle 0xDF, 7 frames, no RTP,
// jitter buffer 63/31, timeslots and switching mode cleared.
TEST_F(Channels, DeleteLeavesTheFreeSettings) {
    const uint32_t ch = 17;
    const VQ6192_CES_CHAN_S d = {9, ch, 0x000000F0, 0};
    ASSERT_EQ(VQ6192_CES_CreateCesChan(kChip, &d), 0u);
    // Enabled with other bits set; clock select 31 and 63 frames; switching register 1 all set.
    poke({{0x15000 + 2 * ch, 0xFFF1}, {0x15800 + 2 * ch, 0x07FF}, {0x16000 + 2 * 1, 0xFFFF}});
    setEntry(kTxCw, ch, (uint64_t{1} << 50) - 1);
    setEntry(kRxCw, ch, (uint64_t{1} << 51) - 1);
    ASSERT_EQ(VQ6192_CES_DelCesChan(kChip, ch, 9, 0x000000F0), 0u);
    // Disabled; 7 frames with the clock select kept; depth 63, delay 31; switching bit 1 cleared.
    EXPECT_EQ(peek({0x15000 + 2 * ch, 0x15800 + 2 * ch, 0x15C00 + 2 * ch, 0x15400 + 2 * ch, 0x16002}),
              (U32s{0xFFF0, 0x07C7, 63, 31, 0xFFFD}));
    // Ingress RTP written whole; egress RTP fields (0..40) and SN mode 0; alarm and drop controls kept.
    EXPECT_EQ((U64s{bits(kIdle, ch, 0, 8), bits(kTxTsMask, ch, 0, 32), bits(kRxTsMask, ch, 0, 32),
                    bits(kTxCw, ch, 0, 50), bits(kRxCw, ch, 0, 51)}),
              (U64s{0xDF, 0, 0, 0, 0x3FE0000000000}));
    expectRouted(9, ch, 0);
    uint32_t tss = 9;
    ASSERT_EQ(VQ6192_Framer_GetTSSMode(kChip, 9, &tss), 0u);
    EXPECT_EQ(tss, 0u);

    // Without timeslots: 6 ms between the disable and the rest, the same free settings.
    poke({{0x15000 + 2 * ch, 0xFFF1}, {0x15C00 + 2 * ch, 0}, {0x16000 + 2 * 1, 0xFFFF}});
    VQ6192_Platform_ResetVirtualTime();
    ASSERT_EQ(VQ6192_CES_DelCesChanNoTS(kChip, ch), 0u);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 6000u);
    EXPECT_EQ(peek({0x15000 + 2 * ch, 0x15C00 + 2 * ch, 0x16002}), (U32s{0xFFF0, 63, 0xFFFD}));
}

// The reset polls the drain bits every 0.5 ms until four reads in a row show them, pulses the reset bit
// and keeps the channel off for at least 69 ms; a channel that never drains is only reported.
TEST_F(Channels, ResetWaitsForTheDrain) {
    struct Case {
        const char *what;
        uint32_t drainReads;
        uint64_t us;
        uint64_t statusReads;
        bool pulse;
    } const cases[] = {{"drained at once", 0, 4 * 500 + 500 + 134 * 500, 4, true},
                       {"drained after 200 reads", 200, 204 * 500 + 500, 204, true},
                       {"never drained", vq6192::sim::CesBlock::kForever, 4096 * 500, 4096, false}};
    const std::string done = "INfo. VQ6192_CES_ResetCesChan chipID(3) : Reset CES Channel:[300]\r\n",
                      stuck =
                          "Err. VQ6192_CES_ResetCesChan ulChipID(3) Reset CES Channel:[300] Failed! Rst "
                          "Over is not Over!\r\n";
    const uint32_t ch = 300;
    const uint32_t ctrl = 0x15000 + 2 * ch;
    VQ6192_Set_Printf_Flag(kChip, VQ6192_MODULE_CES, 15);  // the reset's information line is level 1
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        ces().setDrainReads(ch, c.drainReads);
        model.poke(ctrl, 0x8009);
        const uint64_t readsBefore = ces().drainStatusReads(ch);
        capture.clear();
        VQ6192_Platform_ResetVirtualTime();
        const auto w = vqtest::writes(traced([&] { EXPECT_EQ(VQ6192_CES_ResetCesChan(kChip, ch), 0u); }));
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), c.us);
        EXPECT_EQ(ces().drainStatusReads(ch) - readsBefore, c.statusReads);
        std::vector<uint32_t> values;
        for (const BusAccess &a : w) {
            EXPECT_EQ(a.addr, ctrl);
            values.push_back(a.value);
        }
        EXPECT_EQ(values, c.pulse ? (U32s{0x8008, 0x800A, 0x8008, 0x8009}) : (U32s{0x8008, 0x8009}));
        EXPECT_EQ(capture.traceTexts(), std::vector<std::string>{c.pulse ? done : stuck});
    }
    model.poke(ctrl, 0x8008);
    VQ6192_Platform_ResetVirtualTime();
    EXPECT_TRUE(vqtest::writes(traced([&] { EXPECT_EQ(VQ6192_CES_ResetCesChan(kChip, ch), 0u); })).empty())
        << "a disabled channel is left alone";
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 0u);
}

// A VC-4 channel with its section overhead on channel k: flag, created bit, channel k enabled without
// compression; the delete undoes both halves.
TEST_F(Channels, Vc4ChannelWithSectionOverhead) {
    const uint32_t ch = 349, k = 1;
    poke({{0x16000, 0xFFFF}, {0x1405C, 0x00F0}});
    const VQ6192_CES_CHAN_S d = {1, ch, 0, 1};
    ASSERT_EQ(VQ6192_CES_CreateVC4CesChan(kChip, &d, 1), 0u);
    EXPECT_EQ(peek({0x1405C, 0x16000}), (U32s{0x00F2, 0xFFFD}));
    EXPECT_EQ(model.peek(0x15000 + 2 * k) & 1, 1);
    EXPECT_EQ(bits(kTxTsMask, k, 0, 32), 0u);

    poke({{0x15000 + 2 * ch, 0x0001}, {0x16000, 0xFFFF}});
    VQ6192_Platform_ResetVirtualTime();
    ASSERT_EQ(VQ6192_CES_DelVC4CesChan(kChip, ch, 1, 0), 0u);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 0u) << "the VC-4 channel is already off at its reset";
    // Overhead channel disabled and its reset released; 7 frames, depth 63.
    EXPECT_EQ((U32s{model.peek(0x1405C), model.peek(0x16000), model.peek(0x15000 + 2 * k) & 3u,
                    model.peek(0x15800 + 2 * ch) & 0x3Fu, model.peek(0x15C00 + 2 * ch)}),
              (U32s{0x00F0, 0xFFFD, 0, 7, 63}));
    EXPECT_EQ(bits(kIdle, k, 0, 8), 0xDFu);

    const VQ6192_CES_CHAN_S e3 = {4, 340, 0, 1};
    ASSERT_EQ(VQ6192_CES_CreateE3CesChan(kChip, &e3), 0u);
    uint16_t chnl = 0;
    uint8_t type = 0, en = 0;
    uint32_t speed = 0;
    ASSERT_EQ(VQ6192_Framer_GetE3TsCfg(kChip, 0, 4, &chnl, &type, &speed, &en), 0u);
    EXPECT_EQ((U32s{en, type}), (U32s{1, 3}));
    ASSERT_EQ(VQ6192_CES_DelE3CesChan(kChip, 340, 4), 0u);
    ASSERT_EQ(VQ6192_Framer_GetE3TsCfg(kChip, 0, 4, &chnl, &type, &speed, &en), 0u);
    EXPECT_EQ(en, 0);

    const VQ6192_CES_CHAN_S lastPort = {3, 351, 0, 1};
    EXPECT_EQ(VQ6192_CES_CreateVC4CesChan(kChip, &lastPort, 0), 0u) << "VC-4 3 takes a channel too";
}

// A step that fails stops the operation with error 4, names the callee, and keeps the earlier steps.
TEST_F(Channels, FailedStepStopsAndKeepsEarlierSteps) {
    model.poke(0x16004, 0xFFFF);
    model.tables().holdBusy(0x10ab, TableEngine::kForever);  // the timeslot tables
    const VQ6192_CES_CHAN_S d = {5, 40, 0x6, 0};
    EXPECT_EQ(VQ6192_CES_CreateCesChan(kChip, &d), kCesStep);
    EXPECT_EQ(model.peek(0x16004), 0xFEFF) << "the first step stays";
    const auto texts = capture.traceTexts();
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts.back(),
              "Err. VQ6192_CES_CreateCesChan.VQ6192_Framer_SelectSrcE1(3,2,5,40,3,6,3)       "
              "ErrCode[0x30e0004]\r\n");
    model.tables().holdBusy(0x10ab, 0);

    // A failed ingress or egress mask write has its own code.
    model.tables().holdBusy(kCesBlock, TableEngine::kForever);
    EXPECT_EQ(VQ6192_CES_SetCesTSCompress(kChip, 1, 5, 0), 0x03030007u);
    EXPECT_EQ(VQ6192_CES_SetCesTSCompress(kChip, 1, 5, 1), 0x03030008u);
    VQ6192_CES_CHAN_PARA_S para;
    EXPECT_EQ(VQ6192_CES_GetCesChanPara(kChip, 1, &para), 0x0303000Au);
    EXPECT_EQ(Vq6192CesGetChanParaWithoutIdleCode(kChip, 1, &para), 0x03030005u);
    model.tables().holdBusy(kCesBlock, 0);
}

TEST_F(Channels, RefusalsTouchNothing) {
    const VQ6192_CES_CHAN_S badCh = {5, 352, 1, 0}, badPort = {336, 5, 1, 0}, badMode = {5, 5, 1, 2};
    const VQ6192_CES_CHAN_S e3Ch = {1, 335, 0, 1}, e3Mode = {1, 336, 0, 0}, vc4Ch = {1, 347, 0, 1};
    const VQ6192_CES_CHAN_NOTS_S noTs = {352, 1, 0, 0};
    CES_REFUSED(VQ6192_CES_CreateCesChan(kChip, &badCh));
    CES_REFUSED(VQ6192_CES_CreateCesChan(kChip, &badPort));
    CES_REFUSED(VQ6192_CES_CreateCesChan(kChip, &badMode));
    CES_REFUSED(VQ6192_CES_CreateCesChanNoTS(kChip, &noTs));
    CES_REFUSED(VQ6192_CES_DelCesChan(kChip, 1, 336, 1));
    CES_REFUSED(VQ6192_CES_CreateE3CesChan(kChip, &e3Ch));
    CES_REFUSED(VQ6192_CES_CreateE3CesChan(kChip, &e3Mode));
    CES_REFUSED(VQ6192_CES_DelE3CesChan(kChip, 336, 13));
    CES_REFUSED(VQ6192_CES_CreateVC4CesChan(kChip, &vc4Ch, 0));
    CES_REFUSED(VQ6192_CES_DelVC4CesChan(kChip, 348, 4, 0));
    CES_REFUSED(VQ6192_CES_SetCesChanEnable(kChip, 1, 2));
    CES_REFUSED(VQ6192_CES_ResetCesChan(kChip, 352));
    CES_REFUSED(VQ6192_CES_SetCesFramNum(kChip, 340, 40));
    CES_REFUSED(VQ6192_CES_SetCesFramNum(kChip, 10, 64));
    CES_REFUSED(VQ6192_CES_SetCesJtrBuf(kChip, 1, 21504, 0));
    CES_REFUSED(VQ6192_CES_SetCesJtrBuf(kChip, 1, 0, 21504));
    CES_REFUSED(VQ6192_CES_SetCesTSCompress(kChip, 336, 0, 0));
    CES_REFUSED(VQ6192_CES_SetCesTSCompress(kChip, 1, 0, 3));
    CES_REFUSED(VQ6192_CES_SetCesIdleCode(kChip, 336, 0));
    CES_REFUSED(VQ6192_CES_SetCesSnType(kChip, 1, 0, 4));
    CES_REFUSED(VQ6192_CES_SetCesVc4UnLoadMod(kChip, 0, 3));
    CES_REFUSED(VQ6192_CES_SetCesClkSel(kChip, 1, 256));
    CES_REFUSED(VQ6192_CES_SetCesFifoThld(kChip, 2048));
    CES_REFUSED(VQ6192_CES_SetIngFrmToCesAlmMap(kChip, 1, 336, 1, 1));
    CES_REFUSED(VQ6192_CES_InitCesModule(kChip, 3));
    CES_REFUSED(VQ6192_CES_InitCesModule(kChip, 0));
    EXPECT_EQ(VQ6192_CES_InitCesModule(kChip, 2), 0u);
}

}  // namespace
