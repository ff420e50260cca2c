// Group control commands, forced link deletion, interrupt events, state and counters, ICP cells, TC
// links and cell capture.
#include <array>
#include <cstring>
#include <tuple>

#include "ima_fixture.h"
#include "vq6192/sim/ddr.h"

namespace {

using namespace imatest;

class ControlTest : public ImaTest {};

TEST_F(ControlTest, CommandWrappersSendTheirParameters) {
    const uint16_t rx[2] = {10, 47};
    const IMA_TX_LINK tx[2] = {{1, 0, 10}, {6, 0, 47}};
    // Inhibit and not, LASR, unusable without and with reasons, receive defect, test pattern, timing
    // reference, restart.
    const std::pair<std::function<uint32_t()>, Proc::Command> cases[] = {
        {[] { return VQ6192_IMA_SetImaGrpStatus(kChip, 9, 1); }, {4, 9, 0, 0, 0}},
        {[] { return VQ6192_IMA_SetImaGrpStatus(kChip, 9, 0); }, {5, 9, 0, 0, 0}},
        {[&] { return VQ6192_IMA_Lasr(kChip, 9, 2, 2, rx, tx, 0); }, {8, 9, 0x42, 0x42, 0}},
        {[&] { return VQ6192_IMA_SetImaLinkStatus(kChip, 9, 2, 2, rx, tx, 0, 0, 0); },
         {12, 9, 0x42, 0x42, 9}},
        {[&] { return VQ6192_IMA_SetImaLinkStatus(kChip, 9, 1, 0, rx, tx, 2, 4, 1); }, {12, 9, 0, 2, 0x22}},
        {[&] { return VQ6192_IMA_SetImaLinkDefect(kChip, 9, 2, rx, tx, 1, 0); }, {10, 9, 0, 0x42, 1}},
        {[] { return VQ6192_IMA_UpdateTestPtn(kChip, 9, 1, 0xA5, 3, 1, 0x5A); }, {16, 9, 0x1052A35A, 0, 0}},
        {[] { return VQ6192_IMA_UpdateTxTrl(kChip, 9, 6); }, {17, 9, 6, 0, 0}},
        {[] { return VQ6192_IMA_Restart(kChip, 9); }, {2, 9, 0, 0, 0}},
    };
    setBits(kPpB, kGps, 9 * 8 + 1, 0, 64, 0x0000BFFF'FFFFFFFFull);
    for (const auto &[op, cmd] : cases) {
        proc().clearCommands();
        EXPECT_EQ(op(), 0u);
        EXPECT_EQ(proc().commands(), std::vector<Proc::Command>{cmd}) << cmd.code;
    }
    EXPECT_EQ(bits(kPpB, kGps, 9 * 8 + 1, 0, 64), 0x0000FFFF'FFFFFFFFull) << "Txtrlchange (46) set";
    proc().refuse(1);
    EXPECT_EQ(VQ6192_IMA_SetImaGrpStatus(kChip, 9, 1), 0u) << "the answer is not looked at";
    EXPECT_EQ(VQ6192_IMA_RunCmd(kChip, 10, std::array<uint32_t, 4>{9, 0, 0, 0}.data()), kPara);
    const uint16_t bad[1] = {336};
    expectRefused(
        "link 336", [&] { return VQ6192_IMA_SetImaLinkDefect(kChip, 9, 1, bad, tx, 0, 0); }, nullptr);
    const IMA_TX_LINK lid33[1] = {{33, 0, 1}};
    expectRefused(
        "LID 33", [&] { return VQ6192_IMA_SetImaLinkStatus(kChip, 9, 1, 0, rx, lid33, 1, 1, 0); }, nullptr);
    expectRefused("pattern 256", [] { return VQ6192_IMA_UpdateTestPtn(kChip, 9, 1, 256, 3, 1, 0); });
    EXPECT_EQ(VQ6192_IMA_UpdateTestPtn(kChip, 9, 1, 255, 3, 1, 255), 0u) << "both patterns up to 255";
    EXPECT_EQ(VQ6192_IMA_Lasr(kChip, 9, 0, 2, nullptr, tx, 0), 0u) << "transmit links alone";
}

TEST_F(ControlTest, ForcedLinkDeletion) {
    // Already clear; the processor keeps it for 3 reads; never lets go: ticks waited, restart sent.
    const std::tuple<bool, uint32_t, uint64_t, bool> cases[] = {
        {false, 0, 10, false}, {true, 3, 40, false}, {true, Proc::kForever, 4000, true}};
    for (const auto &[enabled, reads, ticks, restart] : cases) {
        SCOPED_TRACE(ticks);
        proc().clearCommands();
        VQ6192_Platform_ResetVirtualTime();
        setBits(kPpB, kTxs, 50 * 2, 0, 32, enabled ? 0xFFFFFFFF : 0x7FFFFFFF);
        setBits(kPpB, kRxs, 50 * 2, 0, 32, enabled ? 0xFFFFFFFF : 0x7FFFFFFF);
        setBits(kPpB, kGps, 4 * 8 + 2, 32, 32, 0xFFFFFFFF);
        proc().setDeleteReads(reads);
        EXPECT_EQ(VQ6192_IMA_ForceLinkDeleted(kChip, 50, 4, 7), 0u);
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs() / kTickUs, ticks);
        if (enabled) {
            EXPECT_EQ(bits(kPpB, kTxs, 100, 24, 7), 1u << 3) << "Netxlsm Deleted, Ferxlsm 0";
            EXPECT_EQ(bits(kPpB, kRxs, 100, 25, 6), 2u) << "Nerxlsm Deleted";
        }
        EXPECT_EQ(bits(kPpB, kTxs, 100, 31, 1), 0u);
        EXPECT_EQ(bits(kPpB, kGps, 34, 32, 32), restart ? 0xFFFFFF7Fu : 0xFFFFFFFFu);
        EXPECT_EQ(proc().commands().size(), restart ? 1u : 0u);
    }
    // Receive enable, transmit enable, deleted; only transmit enabled leaves the output as it is.
    for (const auto &l : {std::array<uint32_t, 3>{1, 0, 0}, {0, 0, 1}, {0, 1, 7}}) {
        uint32_t deleted = 7;
        setBits(kPpB, kRxs, 100, 31, 1, l[0]);
        setBits(kPpB, kTxs, 100, 31, 1, l[1]);
        ASSERT_EQ(VQ6192_ImaLinkLinkDeleted(kChip, 50, &deleted), 0u);
        EXPECT_EQ(deleted, l[2]) << l[0] << l[1];
    }
}

TEST_F(ControlTest, TimeTickLoopsAndInterruptEnables) {
    model.poke(0x4418, 250);
    for (const auto &t : {std::pair<uint32_t, uint32_t>{0, 500}, {0xFFFFFFFF, 250}, {77, 77}}) {
        ASSERT_EQ(VQ6192_IMA_SetImaTimeTick(kChip, t.first), 0u);
        EXPECT_EQ(model.peek(0x4418), t.second) << t.first;
    }
    poke({{0x4002, 0xFFF8}, {0x5026, 0xFFFE}});
    ASSERT_EQ(VQ6192_IMA_SetImaLoop(kChip, 0xA, 1), 0u);
    EXPECT_EQ(peek({0x4002, 0x5026}), (U32s{0xFFFA, 0xFFFF}));
    uint32_t loop = 0;
    EXPECT_EQ((U32s{VQ6192_IMA_GetImaLoop(kChip, &loop), loop}), (U32s{0, 0xA}));
    // Level, enable register, its value after enabling every source.
    for (const auto &l : {std::array<uint32_t, 3>{1, 0x442C, 0xFC03},
                          {2, 0x4426, 0xFFFF},
                          {4, 0x4428, 0xFC0F},
                          {8, 0x442A, 0xFFFF}}) {
        model.poke(l[1], 0xFC00);
        ASSERT_EQ(VQ6192_IMA_SetImaIntEnable(kChip, l[0], 0xFFFF, 1), 0u);
        EXPECT_EQ(model.peek(l[1]), l[2]) << l[0];
    }
    expectRefused("empty mask", [] { return VQ6192_IMA_SetImaIntEnable(kChip, 1, 0, 1); });
    expectRefused(
        "level 3", [] { return VQ6192_IMA_SetImaIntEnable(kChip, 3, 1, 1); }, nullptr);
    setBits(kPpB, kGpc, 12 * 16, 0, 32, 0xFFFFFC00);
    ASSERT_EQ(VQ6192_IMA_SetImaGrpInt(kChip, 12, 0x201, 1), 0u);
    EXPECT_EQ(word(kPpB, kGpc, 12 * 16), 0xFFFFFE01u);
    setBits(kPpB, kRxc, 12, 0, 32, 0xFFFFFFFF);
    ASSERT_EQ(VQ6192_IMA_SetImaLinkInt(kChip, 12, 2, 0x3FF, 0), 0u);
    EXPECT_EQ(word(kPpB, kRxc, 12), 0xFFFFFC00u);
    setBits(kPpB, kTxc, 12, 0, 32, 0xFFFFFFF0);
    ASSERT_EQ(VQ6192_IMA_SetImaLinkInt(kChip, 12, 1, 0x5, 1), 0u);
    EXPECT_EQ(word(kPpB, kTxc, 12), 0xFFFFFFF5u);
}

TEST_F(ControlTest, InterruptEvents) {
    uint16_t grp = 99, valid = 9;
    IMA_GRP_EVENT ev{};
    ev.wFeRestartInt = 0x55;
    uint8_t flags[23][32] = {};
    ASSERT_EQ(VQ6192_IMA_GetImaIntInfo(kChip, &grp, &ev, flags, &valid), 0u);
    EXPECT_EQ((U32s{valid, grp, ev.wFeRestartInt}), (U32s{0, 99, 0x55}))
        << "outputs untouched without an event";

    proc().raiseEvent(21, true);
    setBits(kPpB, kEvent, 34, 0, 64, (1ull << 25) | (1ull << 16) | (0xAull << 4) | 0x8);
    setBits(kPpB, kEvent, 32, 0, 32, 0x0000000F);
    setBits(kPpB, kEvent, 33, 0, 32, 0x000000F0);
    setBits(kPpB, kEvent, 5, 0, 64, (1ull << 56) | (0x1Full << 32) | (7ull << 3) | (3ull << 6));
    ASSERT_EQ(VQ6192_IMA_GetImaIntInfo(kChip, &grp, &ev, flags, &valid), 0u);
    EXPECT_EQ(proc().commands(), (std::vector<Proc::Command>{{24, 21, 0, 0, 0}}));
    EXPECT_EQ((U32s{valid, grp, ev.wFeRestartInt, ev.wNeGsmInt, ev.wFeGsmSt, ev.wNeGsmSt, ev.dwTxPhyValid,
                    ev.dwRxPhyValid}),
              (U32s{1, 21, 1, 1, 0xA, 0x8, 0xF, 0xF0}));
    // LID 5: Autolasrint, Rxlid, Ferxdefect, Ferxlsm; the request released.
    EXPECT_EQ((U32s{flags[0][5], flags[19][5], flags[20][5], flags[21][5]}), (U32s{1, 0x1F, 3, 7}));
    EXPECT_EQ(model.peek(0x4424) & (1u << 11), 0u);

    uint16_t fe = 0;
    EXPECT_EQ((U32s{VQ6192_IMA_GetImaIntFeRestart(kChip, &grp, &fe, &valid), fe}), (U32s{0, 1}));
    proc().holdEventBusy(Proc::kForever);
    EXPECT_EQ(VQ6192_IMA_GetImaIntInfo(kChip, &grp, &ev, flags, &valid), kTimeout);
}

TEST_F(ControlTest, StateDecodingAndAccumulator) {
    setBits(kPpB, kGps, 3 * 8, 0, 64,
            (3ull << 62) | (0xAull << 58) | (1ull << 55) | (2ull << 53) | (0x9ull << 44) | (5ull << 38) |
                (4ull << 32) | (1ull << 14) | (1ull << 11));
    setBits(kPpB, kGps, 3 * 8 + 3, 32, 32, (2u << 26) | 0x77);
    setBits(kPpB, kGps, 3 * 8 + 5, 0, 32, (100u << 5) | 6);
    IMA_GRP_STATUS g{};
    ASSERT_EQ(VQ6192_IMA_GetImaGrpStatus(kChip, 3, &g), 0u);
    EXPECT_EQ((U32s{g.byNeGsmState, g.byFeGsmState, g.byGtsmState, g.byInhibitStatus, g.byRxImaId, g.byRxM,
                    g.byRxTrlLid, g.byGwpActive, g.byTimingError, g.wRxTrlPhyLink, g.wNumTxLinks,
                    g.wNumTxLinksActv, g.wNumRxLinks, g.wNumRxLinksActv}),
              (U32s{0xA, 0x9, 1, 1, 0x77, 2, 6, 2, 1, 100, 5, 5, 4, 4}));

    setBits(kPpB, kTxs, 60 * 2, 0, 32, (0xEu << 27) | (6u << 24) | (1u << 23) | (3u << 20));
    setBits(kPpB, kTxs, 60 * 2 + 1, 4, 2, 2);
    setBits(kPpB, kRxs, 60 * 2, 0, 32, (0x38u << 25) | (9u << 13) | (7u << 4) | (1u << 3) | 5u);
    setBits(kPpB, kRxs, 60 * 2 + 1, 8, 4, 0xB);
    setBits(kRxB, kIcpVld, 60, 8, 8, 0x44);
    setBits(kTcB, kRxSta2, 60, 0, 40, (1ull << 37) | 1000);
    IMA_LINK_STATUS l{};
    ASSERT_EQ(VQ6192_IMA_GetImaLinkStatus(kChip, 60, &l, 3), 0u);
    uint8_t raw[17];
    std::memcpy(raw, &l, sizeof raw);
    EXPECT_EQ(std::vector<uint8_t>(raw, raw + 17),
              (std::vector<uint8_t>{0xE, 6, 2, 0x38, 7, 9, 0x44, 1, 0, 1, 0, 1, 1, 1, 5, 1, 3}));
    setBits(kTcB, kRxSta2, 60, 0, 32, 234);
    uint32_t rx2[9] = {};
    ASSERT_EQ(VQ6192_IMA_GetTcLinkStatus(kChip, 60, nullptr, nullptr, rx2, nullptr), 0u);
    EXPECT_EQ((U32s{rx2[8], rx2[5]}), (U32s{1234, 1}))
        << "cell counter plus what the link status read took; LCD warning";
    ASSERT_EQ(VQ6192_IMA_GetTcLinkStatus(kChip, 60, nullptr, nullptr, rx2, nullptr), 0u);
    EXPECT_EQ(rx2[8], 0u) << "read-clear, accumulator emptied";
}

TEST_F(ControlTest, ReadClearCountersIcpCellsAndTestPatterns) {
    const uint32_t lkcnt[4] = {0x00110022, 0x00330044, 123456, 0x00550066};
    for (uint32_t w = 0; w < 4; ++w) {
        setBits(kRxB, kLkCnt, 7 * 4 + w, 0, 32, lkcnt[w]);
    }
    setBits(kTxB, kTxLks, 7 * 2 + 1, 0, 32, 0x00080009);
    IMA_LINK_STAT s{};
    ASSERT_EQ(VQ6192_IMA_GetImaLinkStat(kChip, 7, &s, 3), 0u);
    EXPECT_EQ((U32s{s.dwTxUserCells, s.dwTxStuffCells, s.dwRxUserCells, s.dwRxStuffCells, s.dwRxDroppedCells,
                    s.dwRxOifAnomalies, s.dwRxIcpViolations, s.dwRxIcpCells, s.dwRxFillerCells}),
              (U32s{9, 8, 123456, 0x11, 0x55, 0x22, 0x33, 0x44, 0x66}));
    EXPECT_EQ((U64s{VQ6192_IMA_GetImaLinkStat(kChip, 7, &s, 3), s.dwRxUserCells}), (U64s{0, 0u}));
    for (uint32_t w = 1; w <= 3; ++w) {
        setBits(kTxB, kTxGps, 2 * 8 + w, 0, 32, 11 * w);
    }
    setBits(kRxB, kGpCnt, 2 * 2, 0, 32, 44);
    setBits(kRxB, kGpCnt, 2 * 2 + 1, 0, 32, 55);
    IMA_GRP_STAT g{};
    ASSERT_EQ(VQ6192_IMA_GetImaGrpStat(kChip, 2, &g), 0u);
    EXPECT_EQ(
        (U32s{g.dwTxDiscardCells, g.dwTxUserCells, g.dwTxFillerCells, g.dwRxUserCells, g.dwRxFillerCells}),
        (U32s{11, 22, 33, 44, 55}));
    for (uint32_t w = 0; w < 11; ++w) {
        setBits(kTxB, kTxIcp, 4 * 16 + w, 0, 32, 0xA0B0C0D0u + w);
    }
    uint8_t sent[41] = {};
    ASSERT_EQ(VQ6192_IMA_GetImaIcpCell(kChip, 4, sent, 1), 0u);
    // Word 10 gives its top two bytes.
    EXPECT_EQ((U32s{sent[0], sent[1], sent[2], sent[3], sent[4], sent[5], sent[6], sent[39], sent[40]}),
              (U32s{0xB0, 0xC0, 0xD0, 0xA0, 0xB0, 0xC0, 0xD1, 0xA0, 0xB0}));
    for (uint32_t w = 0; w < 12; ++w) {
        setBits(kRxB, kIcpBuf, 9 * 16 + w, 0, 32, 0x04030201u + 0x04040404u * w);
    }
    uint8_t got[48] = {};
    ASSERT_EQ(VQ6192_IMA_GetImaIcpCell(kChip, 9, got, 0), 0u);
    for (uint32_t i = 0; i < 48; ++i) {
        EXPECT_EQ(got[i], i + 1) << "octets 6..53 of the cell";
    }
    uint8_t ptn[1] = {};
    const uint16_t link[1] = {9};
    EXPECT_EQ((U32s{VQ6192_IMA_GetRxTestPtn(kChip, 0, 1, link, ptn), ptn[0]}), (U32s{0, 12}))
        << "word 2, top byte";
    const uint16_t pastTheLinks[1] = {336};
    EXPECT_EQ(VQ6192_IMA_GetRxTestPtn(kChip, 0, 1, pastTheLinks, ptn), 0x030D0001u);
    setBits(kPpB, kGps, 6 * 8 + 1, 0, 64,
            (1ull << 47) | (0x3Cull << 48) | (1ull << 15) | (0x1Full << 8) | 0xC3);
    uint16_t rxEn = 0, rxPtn = 0, txLid = 0, txEn = 0, txPtn = 0;
    ASSERT_EQ(VQ6192_IMA_GetTestPtn(kChip, 6, &rxEn, &rxPtn, &txLid, &txEn, &txPtn), 0u);
    EXPECT_EQ((U32s{rxEn, rxPtn, txLid, txEn, txPtn}), (U32s{1, 0x3C, 0x1F, 1, 0xC3}));
}

TEST_F(ControlTest, TcLinkConfigurationAndFifo) {
    setBits(kTcB, kTxCfg, 30, 0, 96, ~0ull);
    setBits(kTcB, kTxCfg, 30, 64, 32, 0xFFFFFFFF);
    TC_TX_CFG tx{1, 0, 1, 0, 1, 3, 0xAB, 0x11, 0x22, 0x33, 0x44};
    TC_RX_CFG rx{0xDEADBEEF, 0x0F0F0F0F, 1, 0, 1, 0, 1, 1, 0, 1, 0, 7, 9, 6, 2, 8};
    const uint16_t link[1] = {30};
    ASSERT_EQ(VQ6192_IMA_SetTcLinkParam(kChip, 1, link, &tx, &rx), 0u);
    EXPECT_EQ(bits(kTcB, kTxCfg, 30, 47, 49), (1ull << 49) - 1) << "bits 47..95 kept";
    EXPECT_EQ(bits(kTcB, kTxCfg, 30, 0, 47),
              (1ull << 46) | (1ull << 44) | (1ull << 42) | (3ull << 40) | (0xABull << 32) | 0x11223344ull);
    EXPECT_EQ(bits(kTcB, kRxCfg, 30, 0, 64), 0xDEADBEEF'0F0F0F0Full);
    EXPECT_EQ(bits(kTcB, kRxCfg, 30, 64, 32), (1u << 31) | (1u << 29) | (1u << 26) | (1u << 24) | (7u << 19) |
                                                  (6u << 15) | (2u << 13) | (8u << 7))
        << "HEC check has no bit; bits 64..70 and 91 are 0";
    TC_TX_CFG txb{};
    TC_RX_CFG rxb{};
    ASSERT_EQ(VQ6192_IMA_GetTcLinkParam(kChip, 1, link, &txb, &rxb), 0u);
    EXPECT_EQ(std::memcmp(&txb, &tx, sizeof tx), 0);
    EXPECT_EQ((U32s{rxb.byRxCdfsmBeta, rxb.dwRxHeader}), (U32s{6, 0xDEADBEEF})) << "beta reads back as delta";

    uint16_t ts[4], ima[5];
    setBits(kTcB, kTxCfg, 31, 46, 1, 0);
    setBits(kTcB, kRxCfg, 31, 95, 1, 0);
    capture.clear();
    EXPECT_EQ(VQ6192_IMA_GetTcLinkFifoStatus(kChip, 31, nullptr, nullptr, ts, ima), 0x000D000Bu);
    EXPECT_EQ(capture.traceTexts(), Texts{"VQ6192_IDX_TC_TX_IMAIF_LNK_STA_PRI Can't not be read  "
                                          "CHIPID[3] ErrCode[0xd000b]\r\n"});
    setBits(kTcB, kTxImaif, 30, 0, 32, (0x1234u << 18) | (0x2Au << 12) | (0x155u << 2) | 1u);
    ASSERT_EQ(VQ6192_IMA_GetTcLinkFifoStatus(kChip, 30, nullptr, nullptr, ts, ima), 0u);
    EXPECT_EQ((std::vector<uint16_t>(ima, ima + 5)), (std::vector<uint16_t>{0x1234, 0x155, 0, 1, 0x2A}));
}

TEST_F(ControlTest, CaptureFiltersAndReadout) {
    IMA_CAP_FILTER f{};
    f.wCapMode = 5, f.wSelect = 1024, f.wSubMode = 6, f.wValueA = 3, f.wValueB = 4, f.wFilterNum = 1,
    f.awLink[0] = 77;
    poke({{0x4C3C, 0x0FFF}, {0x4C40 + 10, 0xFFFF}, {0x4C40 + 6, 0xFC00}});
    ASSERT_EQ(VQ6192_IMA_SetImaCapture(kChip, &f), 0u);
    // Block 0 programmed; block 1 unused: disabled, no link, the rest kept.
    EXPECT_EQ(peek({0x4C3C, 0x4C40, 0x4C42, 0x4C46, 0x4C40 + 10}),
              (U32s{0x5FFF, 0x1000u | 77u, (1024u << 4) | 6u, 0xFC00u | (4u << 5) | 3u, 0xEFFF}));
    f.wSubMode = 5;
    EXPECT_EQ(VQ6192_IMA_SetImaCapture(kChip, &f), kPara);
    proc().holdCaptureBusy(Proc::kForever);
    EXPECT_EQ(VQ6192_IMA_StartImaCapture(kChip, 100), kTimeout);
    EXPECT_EQ(VQ6192_IMA_SetImaCapture(kChip, &f), kPara);
    proc().holdCaptureBusy(0);
    model.poke(0x4C3C, 0xF800);
    ASSERT_EQ(VQ6192_IMA_StartImaCapture(kChip, 100), 0u);
    EXPECT_EQ(model.peek(0x4C3C), 0xF800u | (100u << 1) | 1u);
    EXPECT_EQ((U32s{VQ6192_IMA_StopImaCapture(kChip), model.peek(0x4C3C)}), (U32s{0, 0xF800u | (100u << 1)}));

    IMA_CAP_DATA cap{};
    cap.stFilter.wFilterNum = 1;
    EXPECT_EQ((U64s{VQ6192_IMA_GetImaCapture(kChip, &cap), cap.dwCapLen}), (U64s{0, 65536u})) << "size query";
    auto &ddr = model.block<vq6192::sim::DdrBlock>();
    for (uint32_t k = 0; k < 32; ++k) {
        ddr.setWord(0x4D00000 + 2 * k, static_cast<uint16_t>(((2 * k) << 8) | (2 * k + 1)));
    }
    std::vector<uint8_t> data(65536, 0xEE);
    cap.pbyData = data.data();
    ASSERT_EQ(VQ6192_IMA_GetImaCapture(kChip, &cap), 0u);
    // Bytes 60..63 left as they are.
    EXPECT_EQ((std::vector<uint8_t>{data.begin(), data.begin() + 12}),
              (std::vector<uint8_t>{1, 0, 3, 2, 13, 12, 15, 14, 9, 8, 11, 10}));
    EXPECT_EQ((U32s{data[4 + 8 * 6], data[60]}), (U32s{61, 0xEE}));
}

}  // namespace
