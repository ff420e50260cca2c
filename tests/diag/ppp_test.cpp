// PPP and multilink diagnostic commands: report layouts byte for byte, the setters and the captures.
#include <string>
#include <vector>

#include "diag/diag_test.h"
#include "vq6192/ppp.h"
#include "vq6192/sim/ppp.h"

namespace diagtest {
namespace {

class PppDiagTest : public DiagTest {
  protected:
    vq6192::sim::PppBlock &ppp() { return model.block<vq6192::sim::PppBlock>(); }
    void TearDown() override {
        g_st6192CapPpp[kChip] = {};
        ChipTest::TearDown();
    }
};

TEST_F(PppDiagTest, ValueAndStructureReports) {
    model.poke(0x13260, 0x0008);  // bundle 3: short ingress sequence numbers
    vq6192::sim::TableEngine::Entry e{};
    e[0] = 800;                   // Uncgtth
    e[1] = 1000 << 4;             // Cgtth from bit 20
    e[2] = (1200 << 8) & 0xFFFF;  // Disth from bit 40
    e[3] = 1200 >> 8;
    model.tables().setEntry(0x8000, 14, 7, e);  // Hdfccfg of channel 7
    expectReports({
        {[](char *b) { return getmpsnformat(kChip, 3, b); },
         framed("GetMpSnFormat()", " renSnFormatUp    :    0x1(1)\n renSnFormatDown    :    0x0(0)\n",
                kLSep)},
        {[](char *b) { return getppptxlinkwatermark(kChip, 7, b); },
         "        GetPppTxLinkWaterMark()\n"
         "    | dwWaterMarkH             : 0x3e8     (1000      ) \n"
         "    | dwWaterMarkL             : 0x320     (800       ) \n"
         "    | dwWaterMarkDrop          : 0x4b0     (1200      ) \n"
         "     PRINT_END\n"},
    });
    model.setTrace(true);
    EXPECT_EQ(getpppmru(kChip, 12, nullptr), 0u);
    EXPECT_FALSE(model.trace().empty()) << "without a buffer the operation still runs";
}

TEST_F(PppDiagTest, SetterLayouts) {
    EXPECT_EQ(setpppppucfg(kChip, 4, 0x3 | 1u << 9, 1500, 0, buf.data()), 0u);
    EXPECT_EQ(text(), "        setpppppucfg() is OK\n");
    VQ6192_PPP_PPU_CFG_S correct{};
    EXPECT_EQ(setpppppucfg(kChip, 4, 1u << 10, 0, 0, buf.data()), 0u);  // bits 10..11: the correction field
    EXPECT_EQ((std::vector<uint32_t>{VQ6192_PPP_GetPppPpuCfg(kChip, 4, &correct), correct.bCorrect}),
              (std::vector<uint32_t>{0, 1}));
    // Packed bits 21..31 select nothing.
    const uint64_t writes = model.tables().writesExecuted(0x8000);
    EXPECT_EQ(setpppppucfg(kChip, 4, 0xFFE00000u, 0, 0, buf.data()), 0u);
    EXPECT_EQ(model.tables().writesExecuted(0x8000), writes);
    expectReports({
        {[](char *b) { return setpppppucfg(kChip, 600, 1, 0, 0, b); }, "        setpppppucfg() is FIAL\n",
         0x03040001},
        {[](char *b) { return setpppqueweight(kChip, 4, 8, 1, b); },
         "\r\nSetpppqueweight :dwRtn = 0x3040001!\r\n"},
        {[](char *b) { return setmpqueweight(kChip, 4, 1, 5, b); }, "\r\nSetmpqueweight :dwRtn = 0x0!\r\n"},
        {[](char *b) { return startcobccap(kChip, 5, b); }, "     startcobccap() is OK\n"},
        {[](char *b) { return startcobccap(kChip, 4096, b); }, "     startcobccap() is FAIL\n", 0x03040001},
    });
    // The packed word 0x203: bRxafi bit 0, bMpv bits 1..8, bChnEn bit 9.
    VQ6192_PPP_PPU_CFG_S cfg{};
    ASSERT_EQ(VQ6192_PPP_GetPppPpuCfg(kChip, 4, &cfg), 0u);
    EXPECT_EQ(ints(cfg.bRxafi, cfg.bMpv, cfg.bChnEn, cfg.dwRxMtu), ints(1, 1, 1, 1500));
}

TEST_F(PppDiagTest, DdrCaptureCommands) {
    EXPECT_EQ(DbgGetCapPkt(kChip, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\n Not set pppchl and start,please first start and set ppp chl,thank you!");

    expectReports({
        {[](char *b) { return DbgSetCapPktAndStart(kChip, 256, 0, b); }, "\r\n input ulPppChanNo error"},
        {[](char *b) { return DbgSetCapPktAndStart(kChip, 2, 2, b); }, "\r\n input direct error"},
        {[](char *b) { return DbgGetCapPktForMatchTemp(kChip, 256, 0, 0, 0, 0, b); },
         "\r\n input ulPppChnlNo error"},
        {[](char *b) { return DbgGetCapPktForMatchTemp(kChip, 1, 2, 0, 0, 0, b); },
         "\r\n input direct type error"},
        {[](char *b) { return Vq6192PppStartDdrCappkt(kChip, 3, b); }, "\r\nsorry,parameter err!\r\n"},
        {[](char *b) { return Vq6192PppStartDdrCappkt(kChip, 2, b); },
         "\r\nStart cap pkt fail! dwRtn = 0x3040001\r\n", 0x03040001},
        {[](char *b) { return Vq6192PppSetChnlCappkt(kChip, 5, 0, b); },
         "\r\n Disable DDR cap channel Success!\r\n"},
        {[](char *b) { return Vq6192PppSetChnlCappkt(kChip, 256, 0, b); }, "\r\n   sorry,parameter err!\r\n"},
    });
    ASSERT_EQ(DbgSetCapPktAndStart(kChip, 34, 0, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\nStart cap pkt success!\r\n");
    EXPECT_EQ(model.peek(0x13600), 0x2000u | 36u);
    // Slot 2 (channel 34 mod 32) holds one frame of 20 bytes.
    std::vector<uint8_t> frame(20);
    for (size_t k = 0; k < frame.size(); ++k) {
        frame[k] = static_cast<uint8_t>(0xA0 + k);
    }
    ppp().putIngressFrame(vq6192::sim::PppBlock::captureAddr(2, 0), frame);
    ASSERT_EQ(DbgGetCapPkt(kChip, buf.data()), 0u);
    EXPECT_EQ(text(),
              "The Data  0  Len:  20  \n"
              " a0  a1  a2  a3  a4  a5  a6  a7  a8  a9  aa  ab  ac  ad  ae  af \n"
              " b0  b1  b2  b3 \n");
    EXPECT_EQ(model.peek(0x13600), 36u) << "capture stopped";
    EXPECT_EQ(DbgGetCapPkt(kChip, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\n Not set pppchl and start,please first start and set ppp chl,thank you!");
}

TEST_F(PppDiagTest, PacketReadCommands) {
    std::vector<uint8_t> frame(10, 0x5A);
    ppp().putIngressFrame(vq6192::sim::PppBlock::captureAddr(3, 0), frame);
    ASSERT_EQ(Vq6192PppgetDdrpkt(kChip, 35, 0, buf.data()), 0u);
    EXPECT_EQ(text(),
              "\r\n----------------------------------------------------\r\n"
              "  wDataLen  :  10 \r\n"
              "5a 5a 5a 5a 5a 5a 5a 5a  5a 5a "
              "\r\n next offset: 0x40---------------------------------\r\n");
    EXPECT_EQ(Vq6192PppgetDdrpkt(kChip, 36, 0, buf.data()), 0x03040007u);
    EXPECT_EQ(text(), "\r\nStop fail,maybe,chip buffer is not full! dwRtn = 0x3040007\r\n");

    ppp().loadFifoFrame({1, 2, 3});
    ASSERT_EQ(capturepppfifopkt(kChip, 5, 0, buf.data()), 0u);
    EXPECT_EQ(text(), " dwDataLen    :    (3)\n 01  02  03 \n");
}

TEST_F(PppDiagTest, MatchAndPrintCommands) {
    // Slot 4 holds three frames; the second has 0xC0 0x21 at bytes 2..3.
    const std::vector<std::vector<uint8_t>> frames = {{0xFF, 0x03, 0x00, 0x21, 0x45, 0x99},
                                                      {0xFF, 0x03, 0xC0, 0x21, 0x01, 0x99},
                                                      {0xFF, 0x03, 0x80, 0x21, 0x02, 0x99}};
    uint32_t addr = vq6192::sim::PppBlock::captureAddr(4, 0);
    for (const auto &f : frames) {
        addr = ppp().putIngressFrame(addr, f);
    }
    VQ6192_Platform_ResetVirtualTime();
    ASSERT_EQ(DbgGetCapPktForMatchTemp(kChip, 36, 0, 2, 0xFFFF0000u, 0xC0210000u, buf.data()), 0u);
    EXPECT_EQ(text(),
              "Cmd DATA ChipID:3  PppChanNo:36  Direct:0  StartByte:2  MatchMask: 0xffff0000 "
              "MatchTemp:0xc0210000 \n"
              "The Data  1  Capture data Len:  6  \n"
              " ff  03  c0  21  01  99 \n");
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 5000u * 10000u) << "5000 ticks of 10 ms";
    EXPECT_EQ(model.peek(0x13600) >> 13, 0u) << "capture stopped";

    ASSERT_EQ(DbgPrintPppPkt(kChip, 4, 0, 1, 1, 3, buf.data()), 0u);
    EXPECT_EQ(text(), "The Packge  1  Len:  6  Data:\n ff  03  c0 \n");
    EXPECT_EQ(DbgPrintPppPkt(kChip, 4, 0, 0, 5, 0, buf.data()), 0x03040007u);
    EXPECT_NE(text().find("Read Data Fail!!\n"), std::string::npos);
}

TEST_F(PppDiagTest, AllCountersAndStatus) {
    ASSERT_EQ(DbgReadPppAllCntAndStatus(kChip, 1, 1, buf.data()), 0u);
    const std::string out = text();
    EXPECT_NE(out.find("        GetPppGlobalIngressStat()\n"), std::string::npos);
    EXPECT_NE(out.find("        GetPppMpSchMode()\n"), std::string::npos);
    EXPECT_NE(out.find(" renMpSchMode    :    0x1(1)\n"), std::string::npos);
}

}  // namespace
}  // namespace diagtest
