// Ethernet ports: MAC selection and attributes, loopbacks, SerDes, counters, self-test, capture and
// the protocol packet path.
#include "eth_fixture.h"

namespace {

using namespace ethtest;
using Ports = EthFixture;

BusAccess wr(uint32_t addr, uint32_t value) {
    return {BusOp::Write, addr, value, 0, 16};
}

TEST_F(Ports, MacInUseFollowsTheSerDesSelection) {
    VQ6192_Set_Printf_Flag(kChip, VQ6192_MODULE_ETH, VQ6192_PRINT_ALL);
    for (const auto &[sel, mac, text] : {std::tuple{0, 3u, "wSerDesSel[0] return [0x3]\n"},
                                         std::tuple{1, 1u, "wSerDesSel[0x1] return [0x1]\n"},
                                         std::tuple{2, 2u, "wSerDesSel[0x2] return [0x2]\n"}}) {
        model.poke(0x80C6, static_cast<uint16_t>(0xFFFC | sel));
        capture.clear();
        uint32_t got = 0;
        EXPECT_EQ(VQ6192_ETH_GetMACNo(kChip, &got), 0u);
        EXPECT_EQ(got, mac);
        EXPECT_EQ(capture.traceTexts(),
                  std::vector<std::string>{"VQ6192_ETH_GetMACNo(0x3). " + std::string(text)});
    }
    model.poke(0x80C6, 3);
    uint32_t mac = 7;
    EXPECT_EQ(VQ6192_ETH_GetMACNo(kChip, &mac), kEthPara);
    EXPECT_EQ(mac, 7u);
}

TEST_F(Ports, AttributeSetterStopsAtItsFirstBadFieldKeepingEarlierWrites) {
    setMac(2, {{17, 0xFFFFFFF9}, {8, 0}, {9, 0xABCD0000}, {13, 0}});
    VQ6192_ETH_MAC_ATTR_S attr{}, sel{};
    attr.byTxEn = sel.byTxEn = 1;
    attr.sFdFcAddrL = 0x4455, attr.sFdFcAddrM = 0x2233, attr.sFdFcAddrH = 0x0011, sel.sFdFcAddrM = 1;
    attr.byNoMiiPreamble = 12, sel.byNoMiiPreamble = 1;
    EXPECT_EQ(VQ6192_ETH_SetMACAttr(kChip, 2, &attr, &sel), 0u);
    EXPECT_EQ(macRegs(2, {17, 8, 9, 13}), (U32s{0xFFFFFFFD, 0x22334455, 0xABCD0011, 12u << 8}));
    VQ6192_ETH_MAC_ATTR_S back{};
    EXPECT_EQ(VQ6192_ETH_GetMACAttr(kChip, 2, &back), 0u);
    EXPECT_EQ((U32s{back.byTxEn, back.byRxEn, back.sFdFcAddrL, back.sFdFcAddrM, back.sFdFcAddrH,
                    back.byNoMiiPreamble}),
              (U32s{1, 0, 0x4455, 0x2233, 0x0011, 12}));
    // Bounds: one-bit fields, 16383, 31; the fields before the bad one stay written.
    using Bad = void (*)(VQ6192_ETH_MAC_ATTR_S &, VQ6192_ETH_MAC_ATTR_S &);
    const Bad cases[] = {[](auto &a, auto &s) { a.byRxEn = 2, s.byRxEn = 1; },
                         [](auto &a, auto &s) { a.wMaxFrmSize = 16384, s.wMaxFrmSize = 1; },
                         [](auto &a, auto &s) { a.byShortRuntsThr = 32, s.byShortRuntsThr = 1; },
                         [](auto &a, auto &s) { a.byNoGmiiPreamble = 32, s.byNoGmiiPreamble = 1; }};
    for (const Bad bad : cases) {
        mac().setReg(1, 105, 0);
        VQ6192_ETH_MAC_ATTR_S a{}, s{};
        a.byPortEn = s.byPortEn = 1;
        bad(a, s);
        capture.clear();
        EXPECT_EQ(VQ6192_ETH_SetMACAttr(kChip, 1, &a, &s), kEthPara);
        EXPECT_EQ(mac().reg(1, 105), 1u);
        EXPECT_EQ(capture.traceTexts(), std::vector<std::string>{"ParaErr.\r\n"});
    }
    ETH_REFUSED(VQ6192_ETH_SetMACAttr(kChip, 3, &attr, &sel));
    ETH_REFUSED(VQ6192_ETH_GetMACAttr(kChip, 0, &back));
}

TEST_F(Ports, StationAddressGoesToTheMacAndThePacketEngine) {
    mac().setReg(1, 1, 0xFFFF0000);
    const uint16_t addr[3] = {0x4455, 0x2233, 0x0011};
    EXPECT_EQ(VQ6192_ETH_SetSerDesMACAddr(kChip, 1, addr), 0u);
    EXPECT_EQ(macRegs(1, {0, 1}), (U32s{0x22334455, 0xFFFF0011}));
    EXPECT_EQ(peek({0x80A6, 0x80A8, 0x80AA}), (U32s{0x0011, 0x2233, 0x4455}));
    EXPECT_EQ(VQ6192_ETH_SetSerDesMACAddr(kChip, 2, addr), 0u);
    EXPECT_EQ(peek({0x80B2, 0x80B6}), (U32s{0x0011, 0x4455}));
    uint16_t back[3] = {};
    EXPECT_EQ(VQ6192_ETH_GetSerDesMACAddr(kChip, 2, back), 0u);
    EXPECT_EQ((U32s{back[0], back[2]}), (U32s{0x4455, 0x0011}));
}

TEST_F(Ports, MacAndSerDesLoops) {
    for (const auto &[mode, reg119, reg106] : Rows<3>{{1, 0xFFFFFFFF, 0xFFFFFFFE},
                                                      {2, 0xFFFFFFFB, 0xFFFFFFFF},
                                                      {0, 0xFFFFFFFA, 0xFFFFFFFE},
                                                      {3, 0xFFFFFFFF, 0xFFFFFFFF}}) {
        setMac(2, {{119, 0xFFFFFFFF}, {106, 0xFFFFFFFF}});
        EXPECT_EQ(VQ6192_ETH_SetMACLoop(kChip, 2, mode), 0u);
        EXPECT_EQ(macRegs(2, {119, 106}), (U32s{reg119, reg106})) << mode;
    }
    ETH_REFUSED(VQ6192_ETH_SetMACLoop(kChip, 1, 4));

    for (const auto &[lane, point, en, codes, parFlag, reg119] : Rows<6>{{1, 2, 1, 0xFF0C, 1, 0},
                                                                         {1, 2, 0, 0xFF00, 0, 0},
                                                                         {2, 0, 1, 0xFF1F, 0, 4},
                                                                         {2, 1, 1, 0xFF2F, 0, 0},
                                                                         {1, 3, 1, 0xFF0A, 0, 0}}) {
        model.poke(0x21E, lane == 2 ? 0xFFFF : 0xFF0F);
        mac().setReg(lane, 119, 0);
        const uint32_t flagReg = lane == 1 ? 0x218 : 0x21A;
        model.poke(flagReg, 0xFFFE);
        EXPECT_EQ(VQ6192_ETH_SetSerdesLoop(kChip, lane, point, en), 0u);
        const uint32_t want = lane == 1 ? 0xFF00u | (codes & 0xF) : 0xFF0Fu | (codes & 0xF0);
        EXPECT_EQ(peek({0x21E, flagReg}), (U32s{want, 0xFFFEu | parFlag})) << lane << "/" << point;
        EXPECT_EQ(mac().reg(lane, 119), reg119);
        uint32_t gotPoint = 9, gotEn = 9;
        EXPECT_EQ(VQ6192_ETH_GetSerdesLoop(kChip, lane, &gotPoint, &gotEn), 0u);
        EXPECT_EQ((U32s{gotPoint, gotEn}), (U32s{en != 0 ? uint32_t(point) : 0u, uint32_t(en)}));
    }
    ETH_REFUSED(VQ6192_ETH_SetSerdesLoop(kChip, 0, 0, 1));
    ETH_REFUSED(VQ6192_ETH_SetSerdesLoop(kChip, 3, 0, 1));
    ETH_REFUSED(VQ6192_ETH_SetSerdesLoop(kChip, 1, 4, 1));
}

TEST_F(Ports, SerDesLaneResetSetsThePreparationBitFirst) {
    poke({{0x210, 0xFFDF}, {0x214, 0xFFFD}});
    const auto t = traced([] { EXPECT_EQ(VQ6192_ETH_SetSerDesChnlReset(kChip, 2, 1), 0u); });
    EXPECT_EQ(vqtest::writes(t), (std::vector<BusAccess>{wr(0x210, 0xFFFF), wr(0x214, 0xFFFF)}));
    model.poke(0x20A, 0xFFFF);
    const auto t1 = traced([] { EXPECT_EQ(VQ6192_ETH_SetSerDesChnlReset(kChip, 1, 0), 0u); });
    EXPECT_EQ(vqtest::writes(t1), (std::vector<BusAccess>{wr(0x206, 0x0020), wr(0x20A, 0xFFFD)}));
    EXPECT_EQ(VQ6192_ETH_SetSerDesAllChnlReset(kChip, 1), 0u);
    EXPECT_EQ(model.peek(0x202) & 1, 1);
    model.poke(0x208, 0xF000);
    EXPECT_EQ(VQ6192_ETH_SetSerDesChnlCfg(kChip, 1, 0xABC), 0u);
    EXPECT_EQ(model.peek(0x208), 0xFABC);
    ETH_REFUSED(VQ6192_ETH_SetSerDesChnlCfg(kChip, 1, 4096));
    ETH_REFUSED(VQ6192_ETH_SetSerDesChnlReset(kChip, 3, 1));
}

TEST_F(Ports, LaneAlarms) {
    poke({{0x220, 0x0005}, {0x222, 0xA5C9}});  // lane 1: bits 2 and 0
    uint16_t a[9] = {};
    EXPECT_EQ(VQ6192_ETH_GetSesDesAlmErr(kChip, 1, a), 0u);
    EXPECT_EQ(std::vector<uint16_t>(a, a + 9), (std::vector<uint16_t>{0, 1, 0, 1, 0xA, 0, 1, 0, 1}));
    EXPECT_EQ(VQ6192_ETH_GetSesDesAlmErr(kChip, 0, a), 0u);
    EXPECT_EQ(std::vector<uint16_t>(a, a + 9), (std::vector<uint16_t>{0, 1, 0, 1, 0xC, 1, 0, 0, 1}));
    ETH_REFUSED(VQ6192_ETH_GetSesDesAlmErr(kChip, 2, a));
}

TEST_F(Ports, PortCountersFromSingleRegistersAndPairs) {
    for (uint32_t a = 0x90C0; a <= 0x9236; a += 2) {
        model.poke(a, static_cast<uint16_t>(a));
    }
    VQ6192_ETH_ETH1_PER_S s;
    for (uint16_t mode : {0, 0x0200}) {  // pause counters swap with bit 9 of 0x8100
        model.poke(0x8100, mode);
        std::memset(&s, 0xEE, sizeof s);
        EXPECT_EQ(VQ6192_ETH_GetETH1Per(kChip, &s), 0u);
        EXPECT_EQ((U32s{s.wTxMpPauseCnt, s.wTxPppPauseCnt}),
                  (mode ? U32s{0x910E910C, 0} : U32s{0, 0x910E910C}));
    }
    EXPECT_EQ((U32s{s.dwRx1FcsErrCnt, s.dwRxAtmPktCnt, s.dwCpuProErrCnt, s.dwRX1PktERRCnt, s.dwTXAutoPKTCnt,
                    s.dwRXPrbsERRCnt, s.dwReserved50, s.dwReserved51, s.dwTx0LpPktCnt}),
              (U32s{0x9200, 0x90C690C4, 0, 0x9200, 0x92129210, 0x921A, 0xEEEEEEEE, 0xEEEEEEEE, 0x912E912C}));

    const uint32_t regs[48] = {123, 125, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42, 43, 44,  45,
                               46,  48,  49, 50, 51, 52, 53, 54, 64, 65, 66, 67, 68, 69, 70,  71,
                               72,  73,  74, 75, 77, 78, 79, 80, 81, 83, 84, 85, 86, 87, 126, 127};
    for (uint32_t r = 0; r < 128; ++r) {
        mac().setReg(2, r, 0xA0000000u + r);
    }
    VQ6192_ETH_MAC_PER_S m{};
    EXPECT_EQ(VQ6192_ETH_GetMACPer(kChip, 2, &m), 0u);
    const uint32_t *w = reinterpret_cast<const uint32_t *>(&m);
    for (uint32_t k = 0; k < 48; ++k) {
        EXPECT_EQ(w[k], 0xA0000000u + regs[k]) << k;
    }
    mac().setReg(1, 33, 77);
    uint32_t cnt = 0;
    EXPECT_EQ(VQ6192_ETH_FMEA_CheckMACErrorCnt(kChip, &cnt), 0u);
    EXPECT_EQ(cnt, 77u);
}

TEST_F(Ports, WeightsAndPortControls) {
    for (const auto &[cls, addr, before, after] : Rows<4>{{0, 0x80BE, 0xFF00, 0xFF5A},
                                                          {1, 0x80BE, 0xFF00, 0xFF5A},
                                                          {2, 0x80BC, 0x00FF, 0x5AFF},
                                                          {3, 0x80BC, 0xFF00, 0xFF5A}}) {
        model.poke(addr, static_cast<uint16_t>(before));
        EXPECT_EQ(VQ6192_ETH_SetETH1WRRWeight(kChip, cls, 0x5A), 0u);
        EXPECT_EQ(model.peek(addr), after) << cls;
        uint32_t weight = 0;
        EXPECT_EQ((U32s{VQ6192_ETH_GetETH1WRRWeight(kChip, cls, &weight), weight}), (U32s{0, 0x5A})) << cls;
    }
    ETH_REFUSED(VQ6192_ETH_SetETH1WRRWeight(kChip, 4, 1));
    model.poke(0x80C2, 0xE000);
    EXPECT_EQ(VQ6192_ETH_SetEth1Maxlen(kChip, 8191), 0u);
    ETH_REFUSED(VQ6192_ETH_SetEth1Maxlen(kChip, 8192));
    EXPECT_EQ(VQ6192_ETH_SetEth1PortSendMode(kChip, 1), 0u);
    EXPECT_EQ(VQ6192_ETH_SetEthPppLengthEnable(kChip, 1, 0), 0u);
    EXPECT_EQ(VQ6192_ETH_SetEthGlbPauseEnable(kChip, 1), 0u);
    EXPECT_EQ(VQ6192_ETH_SetEthAppInterface(kChip, 1), 0u);
    EXPECT_EQ(peek({0x80C2, 0x80C6, 0x80BA, 0x80B8}), (U32s{0xFFFF, 0x4, 0x42, 0x2}));
}

TEST_F(Ports, SelfTestRun) {
    model.poke(0x80BA, 0xFF00);
    EXPECT_EQ(VQ6192_ETH_SetSelfTestGlbCtl(kChip, 0, 2, 0xA5, 1500), 0u);
    EXPECT_EQ(peek({0x80BA, 0x9020, 0x9026}), (U32s{0xFF18, 0xA5, 1500}));
    const uint16_t en[4] = {1, 2, 3, 0x8000};
    EXPECT_EQ(VQ6192_ETH_SetSelfTestChnlEn(kChip, en), 0u);
    EXPECT_EQ(peek({0x9018, 0x901A, 0x901C, 0x901E, 0x9020}), (U32s{1, 2, 3, 0x8000, 0xA5})) << "four words";
    uint16_t enBack[4] = {};
    EXPECT_EQ((U32s{VQ6192_ETH_GetSelfTestChnlEn(kChip, enBack), enBack[0], enBack[3]}),
              (U32s{0, 1, 0x8000}));
    uint8_t head[64];
    for (int i = 0; i < 64; ++i) {
        head[i] = static_cast<uint8_t>(i + 1);
    }
    EXPECT_EQ(VQ6192_ETH_SetSelfTestTxHeadData(kChip, 63, head, 126), 0u);
    EXPECT_EQ(VQ6192_ETH_SetSelfTestShouldRxHeadData(kChip, 0, head, 0), 0u);
    EXPECT_EQ((U32s{word(kTxHead, 63), static_cast<uint32_t>(bits(kTxHead, 63, 480, 32)), word(kRxHead, 0)}),
              (U32s{0x03040102, 0x3F403D3E, 0x03040102}));
    EXPECT_EQ(model.peek(0x9024), 126);
    uint8_t back[64] = {};
    uint32_t len = 0;
    EXPECT_EQ(VQ6192_ETH_GetSelfTestTxHeadData(kChip, 63, back, &len), 0u);
    EXPECT_EQ(std::vector<uint8_t>(back, back + 64), std::vector<uint8_t>(head, head + 64));
    EXPECT_EQ(len, 126u);
    EXPECT_EQ(VQ6192_ETH_SetSelfTestPRBS(kChip, 63, 1), 0u);
    EXPECT_EQ(VQ6192_ETH_SetSelfTestRate(kChip, 0x1234), 0u);
    EXPECT_EQ(VQ6192_ETH_SetSelfTestEn(kChip, 1, 1), 0u);
    EXPECT_EQ(peek({0x9022, 0x80BA}), (U32s{0x13F, 0xFFB8}));
    uint32_t rate = 0;
    EXPECT_EQ(VQ6192_ETH_GtSelfTestRate(kChip, &rate), 0u);
    EXPECT_EQ(rate, 0x1234u);
    ETH_REFUSED(VQ6192_ETH_SetSelfTestTxHeadData(kChip, 0, head, 127));
    ETH_REFUSED(VQ6192_ETH_SetSelfTestShouldRxHeadData(kChip, 64, head, 0));
    ETH_REFUSED(VQ6192_ETH_SetSelfTestPRBS(kChip, 64, 1));
    ETH_REFUSED(VQ6192_ETH_SetSelfTestGlbCtl(kChip, 0, 3, 0, 0));
}

TEST_F(Ports, CaptureHandshake) {
    uint8_t match[32] = {};
    match[3] = 0x81;
    const uint8_t opt[4] = {0xFC, 0xFF, 0x12, 0x34};
    model.poke(0x9092, 0xC000);
    EXPECT_EQ(VQ6192_ETH_StartCapEthPkt(kChip, 1, 12, match, opt), 0u);
    EXPECT_EQ(peek({0x9092, 0x90A2, 0x9096, 0x9094}), (U32s{0xF00C, 0x8100, 0xFFFC, 0x3412}));
    uint8_t buf[64] = {};
    uint16_t len = 9;
    EXPECT_EQ(VQ6192_ETH_GetCapEthPkt(kChip, buf, &len), kEthTimeout);
    EXPECT_EQ(len, 0u);
    eth().capture({1, 2, 3, 4, 5});
    EXPECT_EQ(VQ6192_ETH_GetCapEthPkt(kChip, buf, &len), 0u);
    EXPECT_EQ(len, 5u);
    EXPECT_EQ(std::vector<uint8_t>(buf, buf + 6), (std::vector<uint8_t>{1, 2, 3, 4, 5, 0}));
    EXPECT_FALSE(eth().captured());
    EXPECT_EQ(eth().releases(), 1u);
    EXPECT_EQ(VQ6192_ETH_StopCapEthPkt(kChip), 0u);
    EXPECT_EQ(model.peek(0x9092), 0xD00C);
    ETH_REFUSED(VQ6192_ETH_StartCapEthPkt(kChip, 0, 4096, match, opt));
}

TEST_F(Ports, ProtocolPacketsInAndOut) {
    const uint8_t pkt[5] = {0xC0, 0x21, 0x01, 0x02, 0x03};
    model.poke(0x8154, 0xFFFF);  // the send command is bits 0..4 all written
    EXPECT_EQ(VQ6192_ETH_InsertPppProtocolPkt(kChip, pkt, 5), 0u);
    EXPECT_EQ((U32s{eth().insertWord(0), eth().insertWord(1), eth().insertWord(2)}),
              (U32s{0xC021, 0x0102, 0x0300}));
    ASSERT_EQ(eth().inserted().size(), 1u);
    EXPECT_EQ(eth().inserted()[0], std::vector<uint8_t>(pkt, pkt + 5));
    eth().holdInsertBusy(3);
    capture.clear();
    EXPECT_EQ(VQ6192_ETH_InsertPppProtocolPkt(kChip, pkt, 5), kEthBusy);
    EXPECT_EQ(capture.traceTexts(),
              std::vector<std::string>{
                  "Err. VQ6192_ETH_InsertPppProtocolPkt. Insert Protocol Pkt Failed! PMU is busy now! \r\n"});
    eth().holdInsertBusy(2);
    EXPECT_EQ(VQ6192_ETH_InsertPppProtocolPkt(kChip, pkt, 4), 0u);

    uint8_t buf[16] = {};
    uint32_t len = 0;
    capture.clear();
    EXPECT_EQ(VQ6192_ETH_ReadPppProtocolPkt(kChip, buf, &len), kEthBusy);
    EXPECT_EQ(capture.traceTexts(),
              std::vector<std::string>{"Err. VQ6192_ETH_InsertPppProtocolPkt. Read Protocol "
                                       "Pkt Failed! There is no Pkt in RAM! \r\n "});
    eth().receive({0x80, 0x21, 0x09});
    EXPECT_EQ(VQ6192_ETH_ReadPppProtocolPkt(kChip, buf, &len), 0u);
    EXPECT_EQ(len, 3u);
    EXPECT_EQ(std::vector<uint8_t>(buf, buf + 4), (std::vector<uint8_t>{0x80, 0x21, 0x09, 0}));
    EXPECT_EQ(eth().waiting(), 0u);
    // The longest the read RAM holds: 2048 bytes, a length with bit 11 set.
    std::vector<uint8_t> big(2048), got(4096);
    for (size_t k = 0; k < big.size(); ++k) {
        big[k] = static_cast<uint8_t>(k * 7 + 1);
    }
    eth().receive(big);
    EXPECT_EQ(VQ6192_ETH_ReadPppProtocolPkt(kChip, got.data(), &len), 0u);
    EXPECT_EQ(len, 2048u);
    EXPECT_TRUE(std::equal(big.begin(), big.end(), got.begin()));
    ETH_REFUSED(VQ6192_ETH_InsertPppProtocolPkt(kChip, pkt, 4096));
}

}  // namespace
