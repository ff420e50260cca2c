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
    bool traced(const std::string &text) {
        const auto t = capture.traceTexts();
        return std::find(t.begin(), t.end(), text) != t.end();
    }
    uint32_t region(uint32_t inner) { return PppBlock::captureAddr(inner, 0); }
};

TEST_F(CaptureTest, CaptureAddressFollowsTheInnerNumberOfTheSlot) {
    uint32_t addr = 0;
    EXPECT_EQ(VQ6192_PPP_ComputeDdrCapAddr(kChip, 5, 0x40, &addr), 5u);
    EXPECT_EQ(addr, 0x2280040u);
    model.poke(kVc4Enable, 0x8);
    EXPECT_EQ(VQ6192_PPP_ComputeDdrCapAddr(kChip, 3, 0, &addr), 0x600u);
    EXPECT_EQ(addr, 0x32000000u);
}

TEST_F(CaptureTest, IngressRecordsAreCutToTheReportedLength) {
    const auto frame = pattern(112);
    // A block without the start bit, then the frame: two blocks, the end block reporting 100 bytes.
    ppp().putCaptureBlock(region(5), {});
    ppp().putIngressFrame(region(5) + 64, frame, 100);
    std::vector<uint8_t> buf(2048, 0xEE);
    uint16_t len = 0;
    uint32_t next = 0;
    ASSERT_EQ(VQ6192_PPP_GetPppDdrCapPkt(kChip, 5, 0, 0, buf.data(), &len, &next), 0u);
    EXPECT_EQ(len, 100u);
    EXPECT_TRUE(std::equal(frame.begin(), frame.begin() + 100, buf.begin()));
    EXPECT_EQ(buf[100], 0xEEu) << "nothing beyond the length";
    EXPECT_EQ(next, 3u * 64);

    // Length bit 16 set: limited to the 112 bytes collected.
    ppp().putIngressFrame(region(6), frame, 0x10000 + 50);
    ASSERT_EQ(VQ6192_PPP_GetPppDdrCapPktUp(kChip, 6, 0, buf.data(), &len, &next), 0u);
    EXPECT_EQ(len, 112u);
}

TEST_F(CaptureTest, IngressRecordsWithoutEndOrStart) {
    std::vector<uint8_t> buf(2048);
    uint16_t len = 0;
    uint32_t next = 0;
    ppp().putIngressFrame(region(7), pattern(2100), UINT32_MAX, false);
    ASSERT_EQ(VQ6192_PPP_GetPppDdrCapPktUp(kChip, 7, 0, buf.data(), &len, &next), 0u);
    EXPECT_EQ(len, 2000u);
    EXPECT_EQ(next, 36u * 64) << "the start block and 35 more";
    EXPECT_TRUE(traced("CDrvVQ6192 : Get DDR Pkt Failed! Can't Find The End Head!\n"));

    EXPECT_EQ(VQ6192_PPP_GetPppDdrCapPktUp(kChip, 8, 0, buf.data(), &len, &next), kNoData);
    EXPECT_TRUE(traced("CDrvVQ6192::GetPppDdrCapPktUp : Get DDR Pkt Begin Head Failed!\n"));
    EXPECT_EQ(model.block<vq6192::sim::DdrBlock>().blockReads(), 36u + 40u);
}

TEST_F(CaptureTest, EgressRecords) {
    const auto frame = pattern(150);
    ppp().putEgressFrame(region(9) + 128, frame);
    std::vector<uint8_t> buf(2048);
    uint16_t len = 0;
    uint32_t next = 0;
    ASSERT_EQ(VQ6192_PPP_GetPppDdrCapPkt(kChip, 9, 0, 1, buf.data(), &len, &next), 0u);
    EXPECT_EQ(len, 150u);
    EXPECT_TRUE(std::equal(frame.begin(), frame.end(), buf.begin()));
    EXPECT_EQ(next, 128u + 3 * 64);

    EXPECT_EQ(VQ6192_PPP_GetPppDdrCapPktDown(kChip, 10, 0, buf.data(), &len, &next), kNoData);
    EXPECT_TRUE(traced("NO BEGIN!"));
}

TEST_F(CaptureTest, WorkBufferRefused) {
    std::vector<uint8_t> buf(2048);
    uint16_t len = 0;
    uint32_t next = 0, flen = 0;
    VQ6192_Platform_FailAllocs(0, 3);
    EXPECT_EQ(VQ6192_PPP_GetPppDdrCapPktUp(kChip, 5, 0, buf.data(), &len, &next), kNoMem);
    EXPECT_EQ(VQ6192_PPP_GetPppDdrCapPktDown(kChip, 5, 0, buf.data(), &len, &next), kNoMem);
    EXPECT_EQ(VQ6192_PPP_GetPppFifoCapData(kChip, buf.data(), &flen), kNoMem);
}

TEST_F(CaptureTest, DdrCaptureRunControl) {
    model.poke(0x13600, 0x0000);
    model.poke(0x13602, 0xFFFE);
    model.setTrace(true);
    ASSERT_EQ(VQ6192_PPP_StartPppDdrCapPkt(kChip, 1, 8191), 0u);
    EXPECT_EQ(model.peek(0x13600), 0x3FFFu);
    EXPECT_EQ(model.peek(0x13602), 0xFFFEu) << "egress selects 0";
    const auto w = busWrites();
    ASSERT_EQ(w.size(), 4u);
    EXPECT_EQ(w.front().addr, 0x13600u);
    EXPECT_EQ(w.front().value, 0u) << "run bit cleared first";
    ASSERT_EQ(VQ6192_PPP_StartPppDdrCapPkt(kChip, 0, 36), 0u);
    EXPECT_EQ(model.peek(0x13602), 0xFFFFu) << "ingress selects 1";
    ASSERT_EQ(VQ6192_PPP_StopPppDdrCapPkt(kChip), 0u);
    EXPECT_EQ(model.peek(0x13600), 36u);
}

TEST_F(CaptureTest, CobcCapture) {
    std::vector<uint8_t> buf(1100, 0);
    uint16_t len = 7;
    EXPECT_EQ(VQ6192_PPP_GetCobcCapPkt(kChip, buf.data(), &len), 0u);
    EXPECT_EQ(len, 0u) << "nothing ready";

    struct Case {
        const char *name;
        std::vector<PppBlock::CobcWord> words;
        uint32_t misses;
        std::vector<uint8_t> bytes;
        const char *message;
    };
    const Case cases[] = {
        {"a frame after noise",
         {{0x1111, 0}, {0x4142, 2}, {0x4344, 0}, {0x4500, 5}},
         0,
         {0x41, 0x42, 0x43, 0x44, 0x45},
         nullptr},
        {"start word high byte only", {{0x4100, 3}, {0x4243, 4}}, 0, {0x41, 0x42, 0x43}, nullptr},
        {"a missed ready",
         {{0x4142, 2}, {0x4344, 4}},
         1,
         {0x41, 0x42, 0x43, 0x44},
         "VQ6192_PPP_GetCobcCapPkt:GetMpPpuCobcCaptRdy RData Don't Ready!\n"},
        {"start and end in one word", {{0x4142, 6}}, 0, {}, "VQ6192_PPP_GetCobcCapPkt Can't find SOP!\n"},
        {"no end",
         std::vector<PppBlock::CobcWord>(600, {0x4142, 2}),
         0,
         {},
         "VQ6192_PPP_GetCobcCapPkt Can't find SOP!\n"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        capture.clear();
        ppp().loadCobcWords(c.words);
        ppp().missCobcPulses(c.misses);
        ASSERT_EQ(VQ6192_PPP_GetCobcCapPkt(kChip, buf.data(), &len), 0u);
        ASSERT_EQ(len, c.bytes.size());
        EXPECT_TRUE(std::equal(c.bytes.begin(), c.bytes.end(), buf.begin()));
        if (c.message != nullptr) {
            EXPECT_TRUE(traced(c.message));
        }
    }
}

TEST_F(CaptureTest, CobcStartAndStop) {
    model.poke(0x11012, 0xF000);
    model.setTrace(true);
    ASSERT_EQ(VQ6192_PPP_StartCobcCap(kChip, 0x7FF), 0u);
    EXPECT_EQ(model.peek(0x11012), 0xFFFFu);  // channel bits 1..11, start bit 0
    std::vector<uint32_t> clear;
    for (const auto &a : busWrites()) {
        if (a.addr == 0x11014) {
            clear.push_back(a.value);
        }
    }
    EXPECT_EQ(clear, (std::vector<uint32_t>{0, 1, 0}));
    ASSERT_EQ(VQ6192_PPP_StopCobcCap(kChip), 0u);
    EXPECT_EQ(model.peek(0x11012), 0xFFFEu);
    // Channels 2048..4095 pass the bound but the field holds 11 bits.
    ASSERT_EQ(VQ6192_PPP_StartCobcCap(kChip, 0x801), 0u);
    EXPECT_EQ(model.peek(0x11012), 0xF003u);
}

TEST_F(CaptureTest, FifoCapture) {
    const auto frame = pattern(10);
    ppp().loadFifoFrame(frame);
    std::vector<uint8_t> buf(2048);
    uint32_t len = 0;
    model.poke(kVc4Enable, 0x2);
    ASSERT_EQ(VQ6192_PPP_CapturePppFifoPkt(kChip, 1, 0, buf.data(), &len), 0u);
    EXPECT_EQ(len, 10u);
    EXPECT_TRUE(std::equal(frame.begin(), frame.end(), buf.begin()));
    EXPECT_EQ(model.peek(0x1300E), 0x200u) << "the channel's inner number";
    EXPECT_EQ(model.peek(0x1300C), 0u) << "start cleared, type PPP";

    struct Case {
        const char *name;
        bool ready;
        uint32_t ackWords;
        uint64_t waitUs;
        const char *message;
    };
    const Case cases[] = {
        {"never ready", false, PppBlock::kForever, 3 * 1000000,
         "VQ6192_PPP_CapturePppFifoPkt : Get Fifo Cap Ready Failed\n"},
        {"read not acknowledged", true, 1, 10000 + 3 * 1000000,
         "VQ6192_PPP_GetPppFifoCapData : Get Fifo Cap Read Ack Failed\n"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        ppp().loadFifoFrame(frame);
        ppp().setFifoReady(c.ready);
        ppp().stopFifoAckAfter(c.ackWords);
        VQ6192_Platform_ResetVirtualTime();
        EXPECT_EQ(VQ6192_PPP_CapturePppFifoPkt(kChip, 255, 1, buf.data(), &len), kNoData);
        EXPECT_EQ(virtualUs(), c.waitUs);
        EXPECT_TRUE(traced(c.message));
        EXPECT_EQ(model.peek(0x1300C), 1u) << "start cleared, type bundle";
    }
}

TEST_F(CaptureTest, LinkCountersComeFromEachMembersEntry) {
    // Every half of entry (member * 0x800 + 9) holds 0x1000 * member + half.
    for (uint32_t m = 0; m < 8; ++m) {
        for (uint32_t h = 0; h < 11; ++h) {
            setHalf(kRppustat, m * 0x800 + 9, h, static_cast<uint16_t>(0x1000 * m + h));
            setHalf(kTppustat, m * 0x800 + 9, h, static_cast<uint16_t>(0x1000 * m + 0x100 + h));
        }
    }
    setEntry(kMprxmhdlcpktcnt, 9, 0x12345678);
    VQ6192_PPP_LINK_STAT_S s{};
    ASSERT_EQ(VQ6192_PPP_GetPppLinkStat(kChip, 9, &s), 0u);
    // Member 7, bits 144..175: the block moves ten halves (bits 0..159), so only the low half arrives.
    EXPECT_EQ(s.dwRxBytesCnt, 0x7009u);
    EXPECT_EQ(s.dwRxAvailCnt, 0x60086007u);  // member 6, bits 112..143
    EXPECT_EQ(s.dwRxRightCnt, 0x00010000u);  // member 0, bits 0..31
    EXPECT_EQ(s.dwRxmLinkCnt, 0x12345678u);
    EXPECT_EQ(s.dwRxAbortCnt, 0x5006u);  // member 5, bits 96..111
    EXPECT_EQ(s.dwRxCrcErrCnt, 0x4005u);
    EXPECT_EQ(s.dwRx8bitErrCnt, 0x3004u);
    EXPECT_EQ(s.dwRxLongErrCnt, 0x2003u);
    EXPECT_EQ(s.dwRxShortErrCnt, 0x1002u);
    EXPECT_EQ(s.dwTxBytesCnt, 0x31053104u);  // member 3, bits 64..95
    EXPECT_EQ(s.dwTxRightCnt, 0x21032102u);
    EXPECT_EQ(s.dwTxAbortCnt, 0x1101u);
    EXPECT_EQ(s.dwTxErrCnt, 0x0100u);

    VQ6192_PPP_LINK_STAT_S mp{};
    mp.dwRxAvailCnt = 0xAAAA;
    mp.dwRxmLinkCnt = 0xBBBB;
    ASSERT_EQ(VQ6192_PPP_GetPppLinkStatForMp(kChip, 9, &mp), 0u);
    EXPECT_EQ(mp.dwRxBytesCnt, 0x7009u);
    EXPECT_EQ(mp.dwRxRightCnt, 0x00010000u);
    EXPECT_EQ(mp.dwTxErrCnt, 0x0100u);
    EXPECT_EQ(mp.dwRxAvailCnt, 0xAAAAu) << "not filled";
    EXPECT_EQ(mp.dwRxmLinkCnt, 0xBBBBu);
}

TEST_F(CaptureTest, BundleCounters) {
    for (uint32_t m = 0; m < 6; ++m) {
        for (uint32_t h = 0; h < 10; ++h) {
            setHalf(kMprgrppktcnt, m * 256 + 4, h, static_cast<uint16_t>(0x1000 * m + h));
        }
    }
    setEntry(kMprpbytecnt, 4, 0xCAFEF00D);
    setEntry(kMprxmbecnt, 4, 0x11112222);
    for (uint32_t q = 0; q < 8; ++q) {
        setEntry(kMprxmmccnt, 32 + q, 0xFFFF0000u | (q + 1));
    }
    setEntry(kMprpkt, 4, 0x01020304);
    setEntry(kMprbyte, 4, 0x05060708);
    VQ6192_MP_INGRESS_STAT_S s{};
    ASSERT_EQ(VQ6192_PPP_GetMpIngressStat(kChip, 4, &s), 0u);
    EXPECT_EQ(s.dwRgrpFragCnt, 0x00010000u);  // member 0, bits 0..31
    EXPECT_EQ(s.dwRgrpPktCnt, 0x10031002u);   // member 1, bits 32..63
    EXPECT_EQ(s.dwRgrpAbrCnt, 0x20052004u);   // member 2, bits 64..95
    EXPECT_EQ(s.dwRgrpRepCnt, 0x4008u);       // member 4, bits 128..143
    EXPECT_EQ(s.dwRgrpOtCnt, 0x30073006u);    // member 3, bits 96..127
    EXPECT_EQ(s.dwRgrpSnErrCnt, 0x5009u);     // member 5, bits 144..159
    EXPECT_EQ(s.dwRxMpBytesCnt, 0xCAFEF00Du);
    EXPECT_EQ(s.wRxmMpBCnt, 0x1111u);
    EXPECT_EQ(s.wRxmMpECnt, 0x2222u);
    for (uint32_t q = 0; q < 8; ++q) {
        EXPECT_EQ(s.wMcRxCnt[q], q + 1);
    }
    VQ6192_MP_EGRESS_STAT_S e{};
    ASSERT_EQ(VQ6192_PPP_GetMpEgressStat(kChip, 4, &e), 0u);
    EXPECT_EQ(e.dwTxMpRpkt, 0x01020304u);
    EXPECT_EQ(e.dwTxMpRbyte, 0x05060708u);
    VQ6192_MP_EGRESS_STAT_S n{0, 0x77};
    ASSERT_EQ(VQ6192_PPP_GetMpEgressStatNew(kChip, 4, &n), 0u);
    EXPECT_EQ(n.dwTxMpRbyte, 0x77u);
}

TEST_F(CaptureTest, GlobalCountersRegisterByRegister) {
    struct Reg {
        uint32_t addr;
        uint16_t value;
    };
    // Egress: fields in structure order.
    const Reg eg[] = {{0x12014, 1},  {0x12012, 2},      {0x1201A, 3},  {0x12018, 4},  {0x12016, 5},
                      {0x1200E, 6},  {0x12010, 7},      {0x12040, 8},  {0x12200, 9},  {0x12030, 10},
                      {0x12032, 11}, {0x12004, 0xFFFF}, {0x12006, 13}, {0x12008, 14}, {0x1200A, 15},
                      {0x1200C, 16}, {0x1201C, 17},     {0x1202A, 18}, {0x1202E, 19}, {0x1202C, 20},
                      {0x1203C, 21}, {0x1203E, 22},     {0x12036, 23}, {0x12038, 24}};
    for (const Reg &r : eg) {
        model.poke(r.addr, r.value);
    }
    VQ6192_PPP_GLOBAL_EG_STAT_S s{};
    ASSERT_EQ(VQ6192_PPP_GetPppGlobalEgressStat(kChip, &s), 0u);
    const uint16_t *f = &s.wTpPppCnt;
    for (uint32_t k = 0; k < 24; ++k) {
        EXPECT_EQ(f[k], k == 11 ? 7u : k + 1) << k;  // wTpPdisDropCnt: bits 0..2 only
    }

    for (uint32_t k = 0; k < 16; ++k) {
        model.poke(0x13028 + 2 * k, static_cast<uint16_t>(0x100 + k));
    }
    model.poke(0x11004, 0xA1);
    model.poke(0x1100E, 0xA6);
    model.poke(0x13064, 0xB9);
    model.poke(0x13224, 0xC5);
    VQ6192_PPP_GLOBAL_IN_STAT_S in{};
    in.wTxmTppuCnt = 0x5555;
    in.wRxmTdisDropCnt = 0x6666;
    ASSERT_EQ(VQ6192_PPP_GetPppGlobalIngressStat(kChip, &in), 0u);
    EXPECT_EQ(in.wRppuRsrCnt, 0xA1u);
    EXPECT_EQ(in.wTppuTsrCnt, 0xA6u);
    EXPECT_EQ(in.dwRpHdlcCnt, 0x01010100u);  // low half first
    EXPECT_EQ(in.dwRpPppDropCnt, 0x010F010Eu);
    EXPECT_EQ(in.wRpFragErrCnt, 0xB9u);
    EXPECT_EQ(in.wRxmRerrCnt, 0xC5u);
    EXPECT_EQ(in.wTxmTppuCnt, 0x5555u) << "left as it was";
    EXPECT_EQ(in.wRxmTdisDropCnt, 0x6666u);
}

TEST_F(CaptureTest, CrcAndFifoFlags) {
    model.poke(0x11400 + 2 * 12, 0x11);
    model.poke(0x11500 + 2 * 12, 0x22);
    model.poke(0x11700 + 2 * 12, 0x33);
    uint16_t crc[3] = {};
    ASSERT_EQ(VQ6192_PPP_GetPppCrcCorrectStat(kChip, 12, crc), 0u);
    EXPECT_EQ(crc[0], 0x11u);
    EXPECT_EQ(crc[1], 0x22u);
    EXPECT_EQ(crc[2], 0x33u);

    model.poke(0x11300 + 2 * 12, 0xFFFE);
    VQ6192_PPP_CRC_FIFO_STATUS_S cur{9, 9};
    VQ6192_PPP_CRC_FIFO_HIS_STATUS_S his{9, 9};
    ASSERT_EQ(VQ6192_PPP_GetPppCrcFifoStatus(kChip, 12, &cur, &his), 0u);
    EXPECT_EQ(cur.bCrcFifoFull, 1u);
    EXPECT_EQ(cur.bCrcFifoEmpty, 0u);
    EXPECT_EQ(his.bCrcFifoHisFull, 1u);
    EXPECT_EQ(his.bCrcFifoHisEmpty, 9u) << "kept";

    struct Flag {
        uint32_t addr;
        uint16_t value;
        uint32_t cur, his;  // bits expected in each word
    };
    const Flag flags[] = {
        {0x1304C, 0x0008, 1u << 31, 0}, {0x1304E, 0x0001, 0, 1u << 29}, {0x13204, 0x0030, 0, 3u << 26},
        {0x13204, 0x0001, 1u << 25, 0}, {0x13050, 0x0004, 1u << 23, 0}, {0x13052, 0x0002, 0, 1u << 24},
        {0x130D6, 0x0020, 1u << 20, 0}, {0x130D8, 0x0001, 0, 1u << 16}, {0x130DA, 0x0200, 1u << 14, 0},
        {0x130DC, 0x0010, 0, 1u << 14}, {0x130DA, 0x0001, 1u << 5, 0},  {0x130DC, 0x0001, 0, 1u << 6},
    };
    for (const Flag &f : flags) {
        SCOPED_TRACE(testing::Message() << std::hex << f.addr << " " << f.value);
        model.reset();
        model.poke(f.addr, f.value);
        VQ6192_PPP_FIFO_STATUS_S c{};
        VQ6192_PPP_FIFO_HIS_STATUS_S h{};
        c.bReserved = 0x15;
        h.bReserved = 0x0A;
        ASSERT_EQ(VQ6192_PPP_GetPppFifoStatus(kChip, &c, &h), 0u);
        uint32_t cw = 0, hw = 0;
        std::memcpy(&cw, &c, 4);
        std::memcpy(&hw, &h, 4);
        EXPECT_EQ(cw, f.cur | 0x15u);
        EXPECT_EQ(hw, f.his | 0x0Au);
    }
}

TEST_F(CaptureTest, DelayTest) {
    setEntry(kLinkcfg, 30, 0x2FFF);
    setEntry(kMptesttxen, 30, 0);
    ASSERT_EQ(VQ6192_PPP_SetPppTestTxEnable(kChip, 30, 1), 0u);
    EXPECT_EQ(entry(kMptesttxen, 30), 1u);
    EXPECT_EQ(entry(kLinkcfg, 30), 0x3FFFu);
    uint32_t en = 0;
    setEntry(kMptesttxen, 30, 0);
    ASSERT_EQ(VQ6192_PPP_GetPppTestTxEnable(kChip, 30, &en), 0u);
    EXPECT_EQ(en, 0u) << "both enables needed";

    model.poke(0x13400, 0xFFFE);
    ASSERT_EQ(VQ6192_PPP_SetPppTestRxEnable(kChip, 31, 1), 0u);
    EXPECT_EQ(model.peek(0x13400), 0xFFFFu);
    EXPECT_EQ(entry(kLinkcfg, 31), 0x1000u);

    for (uint32_t h = 0; h < 8; ++h) {
        setHalf(kMplooptimestp, 30, h, static_cast<uint16_t>(0x1111 * (h + 1)));
    }
    uint32_t t[4] = {};
    ASSERT_EQ(VQ6192_PPP_GetPppDelayTime(kChip, 30, t), 0u);
    EXPECT_EQ(t[0], 0x22221111u);
    EXPECT_EQ(t[3], 0x88887777u);

    model.poke(0x1340A, 1);
    model.poke(0x1340C, 2);
    model.poke(0x1340E, 3);
    model.poke(0x13410, 4);
    uint16_t st[4] = {};
    ASSERT_EQ(VQ6192_PPP_GetPppDelayTestStat(kChip, st), 0u);
    EXPECT_EQ(st[0], 3u);
    EXPECT_EQ(st[1], 1u);
    EXPECT_EQ(st[2], 4u);
    EXPECT_EQ(st[3], 2u);
}

}  // namespace
