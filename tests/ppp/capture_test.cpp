// PPP counters, the delay test, and the three capture paths (DDR records, COBC words, FIFO words),
// with their failure codes and messages.
#include <algorithm>
#include <cstring>

#include "ppp_fixture.h"
#include "vq6192/sim/ddr.h"

namespace {

using namespace ppptest;
using vq6192::sim::PppBlock;

std::vector<uint8_t> pattern(size_t n) {
    std::vector<uint8_t> v(n);
    for (size_t k = 0; k < n; ++k) {
        v[k] = static_cast<uint8_t>(k * 7 + 1);
    }
    return v;
}

class CaptureTest : public PppTest {
  protected:
    uint32_t region(uint32_t inner) { return PppBlock::captureAddr(inner, 0); }
    std::vector<uint8_t> buf = std::vector<uint8_t>(2048, 0xEE);
    uint16_t len = 0;
    uint32_t next = 0, flen = 0;
};

TEST_F(CaptureTest, CaptureAddressFollowsTheInnerNumberOfTheSlot) {
    uint32_t addr = 0;
    EXPECT_EQ((U32s{VQ6192_PPP_ComputeDdrCapAddr(kChip, 5, 0x40, &addr), addr}), (U32s{5, 0x2280040}));
    model.poke(kVc4Enable, 0x8);
    EXPECT_EQ((U32s{VQ6192_PPP_ComputeDdrCapAddr(kChip, 3, 0, &addr), addr}), (U32s{0x600, 0x32000000}));
}

TEST_F(CaptureTest, DdrRecords) {
    const auto frame = pattern(2100);
    // A block without the start bit, then the frame: two blocks, the end block reporting 100 bytes.
    ppp().putCaptureBlock(region(5), {});
    ppp().putIngressFrame(region(5) + 64, std::vector<uint8_t>(frame.begin(), frame.begin() + 112), 100);
    ASSERT_EQ(VQ6192_PPP_GetPppDdrCapPkt(kChip, 5, 0, 0, buf.data(), &len, &next), 0u);
    EXPECT_EQ((U32s{len, next, buf[100]}), (U32s{100, 3 * 64, 0xEE})) << "nothing beyond the length";
    EXPECT_TRUE(std::equal(frame.begin(), frame.begin() + 100, buf.begin()));
    // Length bit 16 set: limited to the 112 bytes collected.
    ppp().putIngressFrame(region(6), std::vector<uint8_t>(frame.begin(), frame.begin() + 112), 0x10000 + 50);
    ASSERT_EQ(VQ6192_PPP_GetPppDdrCapPktUp(kChip, 6, 0, buf.data(), &len, &next), 0u);
    EXPECT_EQ(len, 112u);
    // No end block: 2000 bytes, the start block and 35 more; then no start block at all.
    ppp().putIngressFrame(region(7), frame, UINT32_MAX, false);
    const uint64_t reads = model.block<vq6192::sim::DdrBlock>().blockReads();
    ASSERT_EQ(VQ6192_PPP_GetPppDdrCapPktUp(kChip, 7, 0, buf.data(), &len, &next), 0u);
    EXPECT_EQ((U32s{len, next}), (U32s{2000, 36 * 64}));
    EXPECT_TRUE(tracedLine("CDrvVQ6192 : Get DDR Pkt Failed! Can't Find The End Head!\n"));
    EXPECT_EQ(VQ6192_PPP_GetPppDdrCapPktUp(kChip, 8, 0, buf.data(), &len, &next), kNoData);
    EXPECT_TRUE(tracedLine("CDrvVQ6192::GetPppDdrCapPktUp : Get DDR Pkt Begin Head Failed!\n"));
    EXPECT_EQ(model.block<vq6192::sim::DdrBlock>().blockReads() - reads, 36u + 40u);

    ppp().putEgressFrame(region(9) + 128, std::vector<uint8_t>(frame.begin(), frame.begin() + 150));
    ASSERT_EQ(VQ6192_PPP_GetPppDdrCapPkt(kChip, 9, 0, 1, buf.data(), &len, &next), 0u);
    EXPECT_EQ((U32s{len, next}), (U32s{150, 128 + 3 * 64}));
    EXPECT_TRUE(std::equal(frame.begin(), frame.begin() + 150, buf.begin()));
    EXPECT_EQ(VQ6192_PPP_GetPppDdrCapPktDown(kChip, 10, 0, buf.data(), &len, &next), kNoData);
    EXPECT_TRUE(tracedLine("NO BEGIN!"));
    // A start block claiming 63 valid bytes holds 56 from byte 8: the copy stops at the block's end.
    ppp().putCaptureBlock(region(11), {0x83F0});
    ppp().putCaptureBlock(region(11) + 64, {0x4000});
    ASSERT_EQ(VQ6192_PPP_GetPppDdrCapPktDown(kChip, 11, 0, buf.data(), &len, &next), 0u);
    EXPECT_EQ(len, 56u);

    VQ6192_Platform_FailAllocs(0, 3);  // the work buffers refused
    EXPECT_EQ((U32s{VQ6192_PPP_GetPppDdrCapPktUp(kChip, 5, 0, buf.data(), &len, &next),
                    VQ6192_PPP_GetPppDdrCapPktDown(kChip, 5, 0, buf.data(), &len, &next),
                    VQ6192_PPP_GetPppFifoCapData(kChip, buf.data(), &flen)}),
              (U32s{kNoMem, kNoMem, kNoMem}));
    poke({{0x13600, 0x0000}, {0x13602, 0xFFFE}});
    const auto w =
        vqtest::writes(traced([] { ASSERT_EQ(VQ6192_PPP_StartPppDdrCapPkt(kChip, 1, 8191), 0u); }));
    EXPECT_EQ(peek({0x13600, 0x13602}), (U32s{0x3FFF, 0xFFFE})) << "egress selects 0";
    ASSERT_EQ(w.size(), 4u);
    EXPECT_EQ((U32s{w[0].addr, w[0].value}), (U32s{0x13600, 0})) << "run bit cleared first";
    ASSERT_EQ(VQ6192_PPP_StartPppDdrCapPkt(kChip, 0, 36), 0u);
    EXPECT_EQ(model.peek(0x13602), 0xFFFFu) << "ingress selects 1";
    EXPECT_EQ((U64s{VQ6192_PPP_StopPppDdrCapPkt(kChip), model.peek(0x13600)}), (U64s{0, 36u}));
}

TEST_F(CaptureTest, CobcCapture) {
    len = 7;
    EXPECT_EQ(VQ6192_PPP_GetCobcCapPkt(kChip, buf.data(), &len), 0u);
    EXPECT_EQ(len, 0u) << "nothing ready";
    // A start word, 510 data words and an end word: 512 fetches of two bytes, the most one capture reads.
    std::vector<PppBlock::CobcWord> longWords(512, {0x4344, 0});
    longWords.front() = {0x4142, 2}, longWords.back() = {0x4546, 4};
    std::vector<uint8_t> longBytes;
    for (const auto &w : longWords) {
        longBytes.insert(longBytes.end(), {static_cast<uint8_t>(w.data >> 8), static_cast<uint8_t>(w.data)});
    }
    const char *noSop = "VQ6192_PPP_GetCobcCapPkt Can't find SOP!\n";
    struct Case {
        std::vector<PppBlock::CobcWord> words;
        uint32_t misses,
            readyHold;  // missed ready pulses; reads of 0 from the ready bit before the first fetch
        std::vector<uint8_t> bytes;
        const char *message;
    };
    const Case cases[] = {
        {{{0x1111, 0}, {0x4142, 2}, {0x4344, 0}, {0x4500, 5}}, 0, 0, {0x41, 0x42, 0x43, 0x44, 0x45}, nullptr},
        {{{0x4100, 3}, {0x4243, 4}}, 0, 0, {0x41, 0x42, 0x43}, nullptr},  // start word high byte only
        {{{0x4142, 2}, {0x4344, 4}},
         1,
         0,
         {0x41, 0x42, 0x43, 0x44},
         "VQ6192_PPP_GetCobcCapPkt:GetMpPpuCobcCaptRdy RData Don't Ready!\n"},
        {{{0x4142, 6}}, 0, 0, {}, noSop},                                      // start and end in one word
        {std::vector<PppBlock::CobcWord>(600, {0x4142, 2}), 0, 0, {}, noSop},  // no end
        {longWords, 0, 0, longBytes, nullptr},
        {{{0x4142, 2}, {0x4344, 4}}, 0, 2, {0x41, 0x42, 0x43, 0x44}, nullptr},  // ready at the third look
        {{{0x4142, 2}, {0x4344, 4}}, 0, 3, {}, nullptr}};                       // not ready after three
    for (const Case &c : cases) {
        SCOPED_TRACE(c.words.size());
        capture.clear();
        ppp().loadCobcWords(c.words);
        ppp().missCobcPulses(c.misses);
        ppp().holdCobcReady(c.readyHold);
        ASSERT_EQ(VQ6192_PPP_GetCobcCapPkt(kChip, buf.data(), &len), 0u);
        ASSERT_EQ(len, c.bytes.size());
        EXPECT_TRUE(std::equal(c.bytes.begin(), c.bytes.end(), buf.begin()));
        EXPECT_TRUE(c.message == nullptr || tracedLine(c.message));
    }
    model.poke(0x11012, 0xF000);
    model.setTrace(true);
    ASSERT_EQ(VQ6192_PPP_StartCobcCap(kChip, 0x7FF), 0u);
    EXPECT_EQ(model.peek(0x11012), 0xFFFFu);  // channel bits 1..11, start bit 0
    EXPECT_EQ(writesTo(0x11014), (U32s{0, 1, 0}));
    EXPECT_EQ((U64s{VQ6192_PPP_StopCobcCap(kChip), model.peek(0x11012)}), (U64s{0, 0xFFFEu}));
    // Channels 2048..4095 pass the bound but the field holds 11 bits.
    EXPECT_EQ((U64s{VQ6192_PPP_StartCobcCap(kChip, 0x801), model.peek(0x11012)}), (U64s{0, 0xF003u}));
}

TEST_F(CaptureTest, FifoCapture) {
    const auto frame = pattern(10);
    ppp().loadFifoFrame(frame);
    model.poke(kVc4Enable, 0x2);
    EXPECT_EQ((U64s{VQ6192_PPP_CapturePppFifoPkt(kChip, 1, 0, buf.data(), &flen), flen}), (U64s{0, 10u}));
    EXPECT_TRUE(std::equal(frame.begin(), frame.end(), buf.begin()));
    EXPECT_EQ(peek({0x1300E, 0x1300C}), (U32s{0x200, 0})) << "the inner number; start cleared, type PPP";
    // Never ready; ready but the read never acknowledged.
    for (const bool ready : {false, true}) {
        ppp().loadFifoFrame(frame);
        ppp().setFifoReady(ready);
        ppp().stopFifoAckAfter(ready ? 1 : PppBlock::kForever);
        VQ6192_Platform_ResetVirtualTime();
        EXPECT_EQ(VQ6192_PPP_CapturePppFifoPkt(kChip, 255, 1, buf.data(), &flen), kNoData);
        EXPECT_EQ(virtualUs(), ready ? 10000 + 3 * 1000000 : 3 * 1000000);
        EXPECT_TRUE(tracedLine(ready ? "VQ6192_PPP_GetPppFifoCapData : Get Fifo Cap Read Ack Failed\n"
                                     : "VQ6192_PPP_CapturePppFifoPkt : Get Fifo Cap Ready Failed\n"));
        EXPECT_EQ(model.peek(0x1300C), 1u) << "start cleared, type bundle";
    }
}

TEST_F(CaptureTest, LinkAndBundleCountersComeFromEachMembersEntry) {
    // Every half of entry (member * 0x800 + 9) holds 0x1000 * member + half (+ 0x100 for transmit).
    for (uint32_t k = 0; k < 8 * 11; ++k) {
        setHalf(kRppustat, k / 11 * 0x800 + 9, k % 11, static_cast<uint16_t>(0x1000 * (k / 11) + k % 11));
        setHalf(kTppustat, k / 11 * 0x800 + 9, k % 11,
                static_cast<uint16_t>(0x1000 * (k / 11) + 0x100 + k % 11));
    }
    setEntry(kMprxmhdlcpktcnt, 9, 0x12345678);
    VQ6192_PPP_LINK_STAT_S s{}, mp{};
    mp.dwRxAvailCnt = 0xAAAA, mp.dwRxmLinkCnt = 0xBBBB;
    ASSERT_EQ(VQ6192_PPP_GetPppLinkStat(kChip, 9, &s) | VQ6192_PPP_GetPppLinkStatForMp(kChip, 9, &mp), 0u);
    // Member 7, bits 144..175: the block moves ten halves (bits 0..159), so only the low half arrives.
    // Rx: bytes member 7 (0..15), available member 6 (112..143), right member 0 (0..31), abort member 5
    // (96..111) down to short member 1; Tx: bytes member 3 (64..95) down to errors member 0.
    EXPECT_EQ((U32s{s.dwRxBytesCnt, s.dwRxAvailCnt, s.dwRxRightCnt, s.dwRxmLinkCnt, s.dwRxAbortCnt,
                    s.dwRxCrcErrCnt, s.dwRx8bitErrCnt, s.dwRxLongErrCnt, s.dwRxShortErrCnt, s.dwTxBytesCnt,
                    s.dwTxRightCnt, s.dwTxAbortCnt, s.dwTxErrCnt}),
              (U32s{0x7009, 0x60086007, 0x00010000, 0x12345678, 0x5006, 0x4005, 0x3004, 0x2003, 0x1002,
                    0x31053104, 0x21032102, 0x1101, 0x0100}));
    EXPECT_EQ((U32s{mp.dwRxBytesCnt, mp.dwRxRightCnt, mp.dwTxErrCnt, mp.dwRxAvailCnt, mp.dwRxmLinkCnt}),
              (U32s{0x7009, 0x00010000, 0x0100, 0xAAAA, 0xBBBB}))
        << "available and link counts not filled for a bundle member";

    for (uint32_t k = 0; k < 6 * 10; ++k) {
        setHalf(kMprgrppktcnt, k / 10 * 256 + 4, k % 10, static_cast<uint16_t>(0x1000 * (k / 10) + k % 10));
    }
    setEntries(4, {{kMprpbytecnt, 0xCAFEF00D}, {kMprxmbecnt, 0x11112222}});
    for (uint32_t q = 0; q < 8; ++q) {
        setEntry(kMprxmmccnt, 32 + q, 0xFFFF0000u | (q + 1));
    }
    setEntries(4, {{kMprpkt, 0x01020304}, {kMprbyte, 0x05060708}});
    VQ6192_MP_INGRESS_STAT_S in{};
    VQ6192_MP_EGRESS_STAT_S e{}, n{0, 0x77};
    ASSERT_EQ(VQ6192_PPP_GetMpIngressStat(kChip, 4, &in) | VQ6192_PPP_GetMpEgressStat(kChip, 4, &e) |
                  VQ6192_PPP_GetMpEgressStatNew(kChip, 4, &n),
              0u);
    EXPECT_EQ(VQ6192_PPP_GetMpIngressStat(kChip, VQ6192_SCH_MP_MAX, &in), kParaErr) << "bundles below 256";
    // Fragments member 0 (0..31), packets member 1 (32..63), aborts member 2 (64..95), repeats member 4
    // (128..143), time-outs member 3 (96..127), SN errors member 5 (144..159).
    EXPECT_EQ((U32s{in.dwRgrpFragCnt, in.dwRgrpPktCnt, in.dwRgrpAbrCnt, in.dwRgrpRepCnt, in.dwRgrpOtCnt,
                    in.dwRgrpSnErrCnt, in.dwRxMpBytesCnt, in.wRxmMpBCnt, in.wRxmMpECnt, in.wMcRxCnt[0],
                    in.wMcRxCnt[7], e.dwTxMpRpkt, e.dwTxMpRbyte, n.dwTxMpRbyte}),
              (U32s{0x00010000, 0x10031002, 0x20052004, 0x4008, 0x30073006, 0x5009, 0xCAFEF00D, 0x1111,
                    0x2222, 1, 8, 0x01020304, 0x05060708, 0x77}));
}

TEST_F(CaptureTest, GlobalCountersAndFifoFlags) {
    // Egress: fields in structure order.
    poke({{0x12014, 1},  {0x12012, 2},  {0x1201A, 3},  {0x12018, 4},  {0x12016, 5},  {0x1200E, 6},
          {0x12010, 7},  {0x12040, 8},  {0x12200, 9},  {0x12030, 10}, {0x12032, 11}, {0x12004, 0xFFFF},
          {0x12006, 13}, {0x12008, 14}, {0x1200A, 15}, {0x1200C, 16}, {0x1201C, 17}, {0x1202A, 18},
          {0x1202E, 19}, {0x1202C, 20}, {0x1203C, 21}, {0x1203E, 22}, {0x12036, 23}, {0x12038, 24}});
    VQ6192_PPP_GLOBAL_EG_STAT_S s{};
    ASSERT_EQ(VQ6192_PPP_GetPppGlobalEgressStat(kChip, &s), 0u);
    const uint16_t *f = &s.wTpPppCnt;
    for (uint32_t k = 0; k < 24; ++k) {
        EXPECT_EQ(f[k], k == 11 ? 7u : k + 1) << k;  // wTpPdisDropCnt: bits 0..2 only
    }
    for (uint32_t k = 0; k < 16; ++k) {
        model.poke(0x13028 + 2 * k, static_cast<uint16_t>(0x100 + k));
    }
    poke({{0x11004, 0xA1}, {0x1100E, 0xA6}, {0x13064, 0xB9}, {0x13224, 0xC5}});
    VQ6192_PPP_GLOBAL_IN_STAT_S in{};
    in.wTxmTppuCnt = 0x5555, in.wRxmTdisDropCnt = 0x6666;
    ASSERT_EQ(VQ6192_PPP_GetPppGlobalIngressStat(kChip, &in), 0u);
    // Pairs low half first; the Txm TPPU and Tdis drop counts left as they were.
    EXPECT_EQ((U32s{in.wRppuRsrCnt, in.wTppuTsrCnt, in.dwRpHdlcCnt, in.dwRpPppDropCnt, in.wRpFragErrCnt,
                    in.wRxmRerrCnt, in.wTxmTppuCnt, in.wRxmTdisDropCnt}),
              (U32s{0xA1, 0xA6, 0x01010100, 0x010F010E, 0xB9, 0xC5, 0x5555, 0x6666}));
    poke({{0x11400 + 2 * 12, 0x11},
          {0x11500 + 2 * 12, 0x22},
          {0x11700 + 2 * 12, 0x33},
          {0x11300 + 2 * 12, 0xFFFE}});
    uint16_t crc[3] = {};
    VQ6192_PPP_CRC_FIFO_STATUS_S cur{9, 9};
    VQ6192_PPP_CRC_FIFO_HIS_STATUS_S his{9, 9};
    ASSERT_EQ(VQ6192_PPP_GetPppCrcCorrectStat(kChip, 12, crc) |
                  VQ6192_PPP_GetPppCrcFifoStatus(kChip, 12, &cur, &his),
              0u);
    // The history empty flag is kept.
    EXPECT_EQ((U32s{crc[0], crc[1], crc[2], cur.bCrcFifoFull, cur.bCrcFifoEmpty, his.bCrcFifoHisFull,
                    his.bCrcFifoHisEmpty}),
              (U32s{0x11, 0x22, 0x33, 1, 0, 1, 9}));
    // The documented flag table: flag bit, its current source and its latched source (register and bit,
    // register 0 where the word has none). Each source alone raises its flag in its word only.
    const uint32_t flags[][5] = {
        {31, 0x1304C, 3, 0x1304E, 1}, {30, 0x1304C, 2, 0, 0},       {29, 0x1304C, 1, 0x1304E, 0},
        {28, 0x1304C, 0, 0, 0},       {27, 0, 0, 0x13204, 5},       {26, 0, 0, 0x13204, 4},
        {25, 0x13204, 0, 0, 0},       {24, 0x13050, 3, 0x13052, 1}, {23, 0x13050, 2, 0, 0},
        {22, 0x13050, 1, 0x13052, 0}, {21, 0x13050, 0, 0, 0},       {20, 0x130D6, 5, 0x130D8, 2},
        {19, 0x130D6, 4, 0, 0},       {18, 0x130D6, 3, 0x130D8, 1}, {17, 0x130D6, 2, 0, 0},
        {16, 0x130D6, 1, 0x130D8, 0}, {15, 0x130D6, 0, 0, 0},       {14, 0x130DA, 9, 0x130DC, 4},
        {13, 0x130DA, 8, 0, 0},       {12, 0x130DA, 7, 0x130DC, 3}, {11, 0x130DA, 6, 0, 0},
        {10, 0x130DA, 5, 0x130DC, 2}, {9, 0x130DA, 4, 0, 0},        {8, 0x130DA, 3, 0x130DC, 1},
        {7, 0x130DA, 2, 0, 0},        {6, 0x130DA, 1, 0x130DC, 0},  {5, 0x130DA, 0, 0, 0}};
    for (const auto &[flag, curAddr, curBit, hisAddr, hisBit] : flags) {
        for (const bool history : {false, true}) {
            const uint32_t addr = history ? hisAddr : curAddr;
            if (addr == 0) {
                continue;
            }
            SCOPED_TRACE(testing::Message() << "flag " << flag << (history ? " latched" : " current"));
            model.reset();
            model.poke(addr, static_cast<uint16_t>(1u << (history ? hisBit : curBit)));
            VQ6192_PPP_FIFO_STATUS_S c{};
            VQ6192_PPP_FIFO_HIS_STATUS_S h{};
            c.bReserved = 0x15, h.bReserved = 0x0A;  // bits 0..4 keep the caller's values
            ASSERT_EQ(VQ6192_PPP_GetPppFifoStatus(kChip, &c, &h), 0u);
            uint32_t got[2] = {};
            std::memcpy(&got[0], &c, 4);
            std::memcpy(&got[1], &h, 4);
            EXPECT_EQ((U32s{got[0], got[1]}),
                      (U32s{(history ? 0 : 1u << flag) | 0x15u, (history ? 1u << flag : 0) | 0x0Au}));
        }
    }
}

TEST_F(CaptureTest, DelayTest) {
    setEntry(kLinkcfg, 30, 0x2FFF);
    ASSERT_EQ(VQ6192_PPP_SetPppTestTxEnable(kChip, 30, 1), 0u);
    EXPECT_EQ(entries({kMptesttxen, kLinkcfg}, 30), (U64s{1, 0x3FFF}));
    uint32_t en = 0;
    setEntry(kMptesttxen, 30, 0);
    ASSERT_EQ(VQ6192_PPP_GetPppTestTxEnable(kChip, 30, &en), 0u);
    EXPECT_EQ(en, 0u) << "both enables needed";
    model.poke(0x13400, 0xFFFE);
    ASSERT_EQ(VQ6192_PPP_SetPppTestRxEnable(kChip, 31, 1), 0u);
    EXPECT_EQ((U64s{model.peek(0x13400), entry(kLinkcfg, 31)}), (U64s{0xFFFF, 0x1000}));
    for (uint32_t h = 0; h < 8; ++h) {
        setHalf(kMplooptimestp, 30, h, static_cast<uint16_t>(0x1111 * (h + 1)));
    }
    poke({{0x1340A, 1}, {0x1340C, 2}, {0x1340E, 3}, {0x13410, 4}});
    uint32_t t[4] = {};
    uint16_t st[4] = {};
    ASSERT_EQ(VQ6192_PPP_GetPppDelayTime(kChip, 30, t) | VQ6192_PPP_GetPppDelayTestStat(kChip, st), 0u);
    EXPECT_EQ((U32s{t[0], t[3], st[0], st[1], st[2], st[3]}), (U32s{0x22221111, 0x88887777, 3, 1, 4, 2}));
}

}  // namespace
