// CES channel settings, alarms, counters and the module initialisation, from the chip's tables and
// registers.
#include "ces_fixture.h"

namespace {

using namespace cestest;

using Settings = CesTest;

constexpr uint64_t kTxAll = (uint64_t{1} << 50) - 1;
constexpr uint64_t kRxAll = (uint64_t{1} << 51) - 1;

// Ingress RTP rewrites the whole control-word entry; egress changes only its RTP fields.
TEST_F(Settings, RtpConfigurationByDirection) {
    const uint32_t ch = 77;
    setEntry(kTxCw, ch, kTxAll);
    setEntry(kRxCw, ch, kRxAll);
    const VQ6192_CES_RTP_CFG_S cfg = {1, 0, 0x55, 0x89ABCDEF, 0x12345678, 3};
    ASSERT_EQ(VQ6192_CES_SetCesRTPConfig(kChip, ch, &cfg, 2), 0u);
    // Txrtpen 0, Txrtpcw 1, Txrtppt 6..12, Txssrc 13..44, Txsngenmode 45..46.
    EXPECT_EQ(bits(kTxCw, ch, 0, 50),
              1 | uint64_t{0x55} << 6 | uint64_t{0x89ABCDEF} << 13 | uint64_t{3} << 45);
    // Rxrtpen 0, Rxrtpcw 1, Rxrtppt 2..8, Rxssrc 9..40, Rxsngenmode 50..51; bits 41..49 kept.
    EXPECT_EQ(bits(kRxCw, ch, 0, 52), 1 | uint64_t{0x55} << 2 | uint64_t{0x12345678} << 9 |
                                          uint64_t{0x1FF} << 41 | uint64_t{3} << 50);
    uint16_t lrm[3] = {9, 9, 9};
    ASSERT_EQ(VQ6192_CES_GetCesTxLRMAlm(kChip, ch, lrm), 0u);
    EXPECT_EQ((U32s{lrm[0], lrm[1], lrm[2]}), (U32s{0, 0, 0}));

    VQ6192_CES_RTP_CFG_S out = {};
    ASSERT_EQ(VQ6192_CES_GetCesRtpConfig(kChip, ch, &out, 2), 0u);
    EXPECT_EQ((U32s{out.dwSSRCTx, out.dwSSRCRx, out.dwPayloadType}), (U32s{0x12345678, 0x12345678, 0x55}))
        << "both SSRC outputs get the received SSRC";
    VQ6192_CES_RTP_CFG_S in = {0, 0, 0, 0xAAAA, 0xBBBB, 0};
    ASSERT_EQ(VQ6192_CES_GetCesRtpConfig(kChip, ch, &in, 0), 0u);
    EXPECT_EQ((U32s{in.dwSSRCTx, in.dwTxSnGenmode}), (U32s{0xAAAA, 3}))
        << "ingress leaves the SSRC outputs alone";

    const VQ6192_CES_RTP_CFG_S other = {1, 1, 0x55, 0, 0, 3};
    ASSERT_EQ(VQ6192_CES_SetCesRTPConfig(kChip, ch, &other, 1), 0u);
    capture.clear();
    EXPECT_EQ(VQ6192_CES_GetCesRtpConfig(kChip, ch, &out, 2), 0x03030006u);
    EXPECT_EQ(
        capture.traceTexts(),
        std::vector<std::string>{"Err. VQ6192_CES_GetCesRtpConfig(3,77,2)       ErrCode[0x3030006]\r\n"});
}

TEST_F(Settings, CompressionDirectionsAndTheirMismatch) {
    ASSERT_EQ(VQ6192_CES_SetCesTSCompress(kChip, 7, 0x1, 0), 0u);
    ASSERT_EQ(VQ6192_CES_SetCesTSCompress(kChip, 7, 0x2, 1), 0u);
    uint32_t m = 0;
    ASSERT_EQ(VQ6192_CES_GetCesTSCompress(kChip, 7, &m, 1), 0u);
    EXPECT_EQ(m, 2u);
    capture.clear();
    EXPECT_EQ(VQ6192_CES_GetCesTSCompress(kChip, 7, &m, 2), kCesStep);
    EXPECT_EQ(capture.traceTexts(),
              std::vector<std::string>{
                  "Err. VQ6192_CES_GetCesTSCompress(3,7,2)            Ing[0x1] != Eg[0x2]\r\n"});
}

// Control-word fields of the alarm handling, the drop enables, L/R/M and the framer alarm map.
TEST_F(Settings, ControlWordFields) {
    const uint32_t ch = 5;
    setEntry(kRxCw, ch, 0);
    setEntry(kTxCw, ch, kTxAll & ~(uint64_t{1} << 48));
    const VQ6192_CES_ALM_CTRL_S ctrl = {1, 0, 1, 0, 1};  // Lctrl, Lmctrl, Rctrl, Revrctrl, Txrevren
    ASSERT_EQ(VQ6192_CES_SetCesAlmCtrl(kChip, ch, &ctrl), 0u);
    EXPECT_EQ(bits(kRxCw, ch, 41, 4), 0b1100u) << "Lctrl 44, Rctrl 43, Revrctrl 42, Lmctrl 41";
    EXPECT_EQ(bits(kTxCw, ch, 0, 50), kTxAll) << "Txrevren 48";

    const VQ6192_CES_PKT_DROP_S drop = {1, 0, 1, 0, 1};  // SN, PT, SSRC, length, Ethernet
    ASSERT_EQ(VQ6192_CES_SetCesPktDropEnable(kChip, ch, &drop), 0u);
    EXPECT_EQ(bits(kRxCw, ch, 45, 5), 0b10101u) << "Snerrdropen 49 .. Rxerrdropen 45";

    const uint16_t lrm[3] = {1, 0, 2};
    ASSERT_EQ(VQ6192_CES_SetCesTxLRMAlm(kChip, ch, lrm), 0u);
    EXPECT_EQ(bits(kTxCw, ch, 2, 4), 0b1010u);
    const uint16_t val[3] = {0, 1, 1}, sel[3] = {0, 1, 0};
    ASSERT_EQ(VQ6192_CES_SetCesTxLRMAlmBySel(kChip, ch, val, sel), 0u);
    EXPECT_EQ(bits(kTxCw, ch, 2, 4), 0b1110u) << "only R replaced";

    setEntry(kFrmMap, 200, 0);
    ASSERT_EQ(VQ6192_CES_SetIngFrmToCesAlmMap(kChip, 200, 331, 0, 1), 0u);
    EXPECT_EQ(bits(kFrmMap, 200, 0, 12), (1u << 11) | (1u << 9) | 331) << "Chnen 11, Rdien 9, Chnmap 0..8";
    uint32_t c = 0, ais = 9, rdi = 9;
    setEntry(kFrmMap, 201, (1u << 10) | 12);  // AIS set but the map disabled
    ASSERT_EQ(VQ6192_CES_GetIngFrmToCesAlmMap(kChip, 201, &c, &ais, &rdi), 0u);
    EXPECT_EQ((U32s{c, ais, rdi}), (U32s{12, 0, 0}));
}

TEST_F(Settings, RegistersOfTheChannelAndChipWideSettings) {
    model.poke(0x15800 + 2 * 340, 0xF800);
    EXPECT_EQ(VQ6192_CES_SetCesFramNum(kChip, 340, 39), 0u);
    EXPECT_EQ(model.peek(0x15800 + 2 * 340), 0xF827);
    EXPECT_EQ(VQ6192_CES_SetCesFramNum(kChip, 10, 63), 0u);
    EXPECT_EQ(VQ6192_CES_SetCesClkSel(kChip, 340, 0x15), 0u);
    EXPECT_EQ(model.peek(0x15800 + 2 * 340), 0xFD67);  // clock select 6..13, frames 0..5

    model.poke(0x14064, 0x0002);  // VC-4 1 has A set: B not set while A is
    for (const auto &[vc4, mode, after] : Rows<3>{{1, 1, 0x0002}, {2, 1, 0x0042}, {1, 0, 0x0040}}) {
        EXPECT_EQ(VQ6192_CES_SetCesVc4UnLoadMod(kChip, vc4, mode), 0u);
        EXPECT_EQ(model.peek(0x14064), after) << vc4 << " " << mode;
    }

    ASSERT_EQ(VQ6192_CES_SetCesInsertCode(kChip, 0x11, 0x22, 0x33, 0x44), 0u);
    ASSERT_EQ(VQ6192_CES_SetPlcCode(kChip, 0xAB, 0xCD), 0u);
    EXPECT_EQ(peek({0x1403C, 0x14038, 0x14050}), (U32s{0x3311, 0x4422, 0xABCD}));

    // Ten reverse-R thresholds, 12-bit fields refused from 4096, the second field from 32768.
    VQ6192_CES_REVR_THLD_S t = {4095, 32767, 1, 2, 65535, 3, 4, 65535, 5, 6};
    ASSERT_EQ(VQ6192_CES_SetTxRevRThld(kChip, &t), 0u);
    EXPECT_EQ(peek({0x163AA, 0x163BA}), (U32s{32767, 6}));
    for (auto bad : {&VQ6192_CES_REVR_THLD_S::wRevRTime, &VQ6192_CES_REVR_THLD_S::wET1RevRRecNum,
                     &VQ6192_CES_REVR_THLD_S::wVC4DisRSlrNum}) {
        VQ6192_CES_REVR_THLD_S b = t;
        b.*bad = bad == &VQ6192_CES_REVR_THLD_S::wET1RevRRecNum ? 32768 : 4096;
        CES_REFUSED(VQ6192_CES_SetTxRevRThld(kChip, &b));
    }
}

// Each flag from its own bit, one bit at a time, so that two flags read from one bit cannot pass.
TEST_F(Settings, AlarmsDecodedBitByBit) {
    // Channel alarms: drop 5, defect 4, TB over 3, TB under 2, JB over 1, JB under 0.
    const uint32_t chanBits[6] = {5, 4, 3, 2, 1, 0};
    // FIFO alarms: TX over 3, TX under 2, RX over 1, RX under 0, then bits 11 down to 4.
    const uint32_t fifoBits[12] = {3, 2, 1, 0, 11, 10, 9, 8, 7, 6, 5, 4};
    for (uint32_t k = 0; k < 12; ++k) {
        SCOPED_TRACE(k);
        std::vector<uint8_t> one(12, 0);
        one[k] = 1;
        if (k < 6) {
            model.poke(0x14200 + 2 * 9, static_cast<uint16_t>(1u << chanBits[k]));
            model.poke(0x14600 + 2 * 9, static_cast<uint16_t>(0x3F & ~(1u << chanBits[k])));
            uint8_t a[6] = {};
            ASSERT_EQ(VQ6192_CES_GetCesChanAlm(kChip, 9, a), 0u);
            EXPECT_EQ(std::vector<uint8_t>(a, a + 6), std::vector<uint8_t>(one.begin(), one.begin() + 6));
            ASSERT_EQ(VQ6192_CES_GetCesChanHistoryAlm(kChip, 9, a), 0u);
            EXPECT_EQ(a[k], 0);
        }
        model.poke(0x14028, static_cast<uint16_t>(1u << fifoBits[k]));
        model.poke(0x1402A, static_cast<uint16_t>(1u << fifoBits[k]));
        uint8_t f[12] = {};
        ASSERT_EQ(VQ6192_CES_GetCesRxTxFifoAlm(kChip, f), 0u);
        EXPECT_EQ(std::vector<uint8_t>(f, f + 12), one);
        ASSERT_EQ(VQ6192_CES_GetCesRxTxFifoHistoryAlm(kChip, f), 0u);
        EXPECT_EQ(std::vector<uint8_t>(f, f + 12), one);
    }

    model.poke(0x16C00 + 2 * 9, 0x2001);  // bits 13 and 0 (the drain bits read set as well)
    uint8_t h[14] = {};
    ASSERT_EQ(VQ6192_CES_GetCesFifoHisAlm(kChip, 9, h), 0u);
    EXPECT_EQ(std::vector<uint8_t>(h, h + 14),
              (std::vector<uint8_t>{1, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 0, 0, 1}));
}

TEST_F(Settings, CountersFromTheirTables) {
    TableEngine::Entry rx{};
    // Rxpkgcnt 0..31, Rxssrcerrcnt 32, Rxptlenerrcnt 48, Rxsnerrcnt 64, Rxdropcnt 80, Rxetherrcnt 96,
    // Rxlrpktcnt 112, Sndroppktcnt 128.
    rx = {0x5678, 0x1234, 4, 3, 2, 1, 6, 5, 7};
    model.tables().setEntry(kCesBlock, kRxCnt, 12, rx);
    VQ6192_CES_PKT_REC_STAT_S s = {};
    ASSERT_EQ(VQ6192_CES_GetCesPktRecStat(kChip, 12, &s), 0u);
    EXPECT_EQ((U32s{s.wDropCnt, s.wSnErrCnt, s.wPtlenErrCnt, s.wSSRCErrCnt, s.dwCorrectCnt, s.wEgLRPktCnt,
                    s.wEgEthErrCnt, s.wSnDropPktCnt}),
              (U32s{1, 2, 3, 4, 0x12345678, 5, 6, 7}));
    setEntry(kJbFullCnt, 12, 11);
    setEntry(kJbEmpCnt, 12, 22);
    setEntry(kJbFullDropCnt, 12, 0x10033);
    uint16_t over = 0, under = 0;
    uint32_t drop = 0;
    ASSERT_EQ(VQ6192_CES_GetCesJtrBufDataStat(kChip, 12, &over, &under, &drop), 0u);
    EXPECT_EQ((U32s{over, under, drop}), (U32s{11, 22, 0x10033}));
    // The debug counters: Ceststxcnt (select 8), Cestsrxcnt (12), Cestxtbrdcnt (6), Cestxtbwrcnt (7),
    // Cesrxjbrdcnt (11), Cesrxjbwrcnt (10); the far-end fields stay 0.
    for (const auto &[sel, value] :
         Rows<2>{{8, 0x80000001}, {12, 0x12}, {6, 0x6}, {7, 0x7}, {11, 0xB}, {10, 0xA}}) {
        setEntry(sel, 12, value);
    }
    VQ6192_CES_DBG_STAT_S dbg;
    std::memset(&dbg, 0xEE, sizeof dbg);
    ASSERT_EQ(VQ6192_CES_GetCesDbgStat(kChip, 12, &dbg), 0u);
    EXPECT_EQ((U64s{dbg.dwTsTxCnt, dbg.dwTsRxCnt, dbg.dwDdrRdCnt, dbg.dwDdrWrCnt, dbg.dwJtrBufRdCnt,
                    dbg.dwJtrBufWrCnt, dbg.wOppositeSn, dbg.wLocalTs1}),
              (U64s{0x80000001, 0x12, 6, 7, 0xB, 0xA, 0, 0}));
    model.tables().holdBusy(kCesBlock, TableEngine::kForever);
    EXPECT_EQ(VQ6192_CES_GetCesPktSendStat(kChip, 12, &drop), kCesStep);
    model.tables().holdBusy(kCesBlock, 0);
}

// Initialisation: per-kind packet and jitter-buffer defaults, E1/T1 drop enables, justification
// threshold, every clock-recovery domain without recovery, and the two miscellaneous registers.
TEST_F(Settings, InitialisationDefaultsAndItsFirstFailure) {
    poke({{0x1404E, 0xAA77}, {0x14006, 0xFFFF}, {0x16380, 0xFFFF}, {0x16380 + 30, 0xFFFF}});
    ASSERT_EQ(VQ6192_CES_InitCesModule(kChip, 1), 0u);
    // Channel; frames, jitter-buffer depth and delay; E1/T1 drop enables.
    for (const auto &[ch, frames, depth, delay, drops] : Rows<5>{{0, 7, 63, 31, 0x1F},
                                                                 {335, 7, 63, 31, 0x1F},
                                                                 {336, 31, 511, 255, 0},
                                                                 {347, 31, 511, 255, 0},
                                                                 {348, 26, 2047, 1023, 0},
                                                                 {351, 26, 2047, 1023, 0}}) {
        EXPECT_EQ((U64s{model.peek(0x15800 + 2 * ch) & 0x3Fu, model.peek(0x15C00 + 2 * ch),
                        model.peek(0x15400 + 2 * ch), bits(kRxCw, ch, 45, 5)}),
                  (U64s{frames, depth, delay, drops}))
            << ch;
    }
    // Justification threshold; domains 0 and 15 CR_NONE, channel 0, E1/T1, no PLC with bits 14..15 kept.
    EXPECT_EQ(peek({0x1405E, 0x16380, 0x16380 + 30, 0x1404E, 0x14006}),
              (U32s{511, 0xC003, 0xC003, 0xAB03, 0xFE00}));

    model.poke(0x15800 + 2, 0);
    model.tables().holdBusy(kCesBlock, TableEngine::kForever);
    capture.clear();
    EXPECT_EQ(VQ6192_CES_InitCesModule(kChip, 1), kCesStep);
    EXPECT_EQ(capture.traceTexts(),
              (std::vector<std::string>{"Err. VQ6192_Read_Table(3,94,0)       ErrCode[TimeOut]\r\n",
                                        "Err. VQ6192_CES_InitCesModule.VQ6192_CES_SetCesPktDropEnable(3,0)   "
                                        "    ErrCode[0x3030004]\r\n"}));
    EXPECT_EQ(model.peek(0x15800 + 2), 0) << "stopped at channel 0";
    model.tables().holdBusy(kCesBlock, 0);
}

}  // namespace
