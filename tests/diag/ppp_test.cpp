// PPP and multilink diagnostic commands: the report layouts byte for byte, the setters, the capture
// commands, and the bound of the text buffer.
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

TEST_F(PppDiagTest, SingleValueReports) {
    vq6192::sim::TableEngine::Entry rppu{};
    rppu[0] = static_cast<uint16_t>((1500u << 11) & 0xFFFF);
    rppu[1] = static_cast<uint16_t>((1500u << 11) >> 16);
    model.tables().setEntry(0x8000, 0, 12, rppu);  // Rppucfg of channel 12: Rxmtu 1500
    model.poke(0x13260, 0x0008);                   // bundle 3: short ingress sequence numbers
    struct Case {
        const char *name;
        uint32_t (*cmd)(uint32_t chip, char *buf);
        std::string expected;
    };
    const Case cases[] = {
        {"getpppmru", [](uint32_t c, char *b) { return getpppmru(c, 12, b); },
         framed("GetPppMRU()", " rdwMRU    :    0x5dc(1500)\n", kLSep)},
        {"getmpsnformat", [](uint32_t c, char *b) { return getmpsnformat(c, 3, b); },
         framed("GetMpSnFormat()",
                " renSnFormatUp    :    0x1(1)\n"
                " renSnFormatDown    :    0x0(0)\n",
                kLSep)},
        {"getmpctrltimeout", [](uint32_t c, char *b) { return getmpctrltimeout(c, 3, b); },
         framed("GetMpCtrlTimeOut()", " rwTimeOut    :    0x0(0)\n", kLSep)},
        {"getmpmcmap", [](uint32_t c, char *b) { return getmpmcmap(c, 3, b); },
         framed("GetMpMcMap()", " rdwMcQueNo    :    0x0(0)\n", kLSep)},
        {"calcmptimeoutvalue", [](uint32_t c, char *b) { return calcmptimeoutvalue(c, 3, 3, b); },
         framed("CalcMpTimeOutValue()", " rdwTimeOutVal    :    0x34(52)\n", kLSep)},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        ASSERT_EQ(c.cmd(kChip, buf.data()), 0u);
        EXPECT_EQ(text(), c.expected);
    }
}

TEST_F(PppDiagTest, NullBufferCallsTheOperationAndPrintsNothing) {
    model.setTrace(true);
    EXPECT_EQ(getpppmru(kChip, 12, nullptr), 0u);
    EXPECT_FALSE(model.trace().empty()) << "the operation ran";
    EXPECT_EQ(getpppmru(kChip, 512, nullptr), 0x03040001u);
    EXPECT_EQ(DbgReadPppAllCntAndStatus(kChip, 1, 1, nullptr), 0u);
}

TEST_F(PppDiagTest, StructureReport) {
    vq6192::sim::TableEngine::Entry e{};
    e[0] = 800;                   // Uncgtth
    e[1] = 1000 << 4;             // Cgtth from bit 20
    e[2] = (1200 << 8) & 0xFFFF;  // Disth from bit 40
    e[3] = 1200 >> 8;
    model.tables().setEntry(0x8000, 14, 7, e);  // Hdfccfg of channel 7
    ASSERT_EQ(getppptxlinkwatermark(kChip, 7, buf.data()), 0u);
    EXPECT_EQ(text(),
              "        GetPppTxLinkWaterMark()\n"
              "    | dwWaterMarkH             : 0x3e8     (1000      ) \n"
              "    | dwWaterMarkL             : 0x320     (800       ) \n"
              "    | dwWaterMarkDrop          : 0x4b0     (1200      ) \n"
              "     PRINT_END\n");
}

TEST_F(PppDiagTest, SetterLayouts) {
    EXPECT_EQ(setpppppucfg(kChip, 4, 0x3 | 1u << 9, 1500, 0, buf.data()), 0u);
    EXPECT_EQ(text(), "        setpppppucfg() is OK\n");
    EXPECT_EQ(setpppppucfg(kChip, 600, 1, 0, 0, buf.data()), 0x03040001u);
    EXPECT_EQ(text(), "        setpppppucfg() is FIAL\n");
    // Packed bits 21..31 select nothing.
    const uint64_t writes = model.tables().writesExecuted(0x8000);
    EXPECT_EQ(setpppppucfg(kChip, 4, 0xFFE00000u, 0, 0, buf.data()), 0u);
    EXPECT_EQ(model.tables().writesExecuted(0x8000), writes);
    EXPECT_EQ(setpppqueweight(kChip, 4, 8, 1, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\nSetpppqueweight :dwRtn = 0x3040001!\r\n");
    EXPECT_EQ(setmpqueweight(kChip, 4, 1, 5, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\nSetmpqueweight :dwRtn = 0x0!\r\n");
    EXPECT_EQ(startcobccap(kChip, 5, buf.data()), 0u);
    EXPECT_EQ(text(), "     startcobccap() is OK\n");
    EXPECT_EQ(startcobccap(kChip, 4096, buf.data()), 0x03040001u);
    EXPECT_EQ(text(), "     startcobccap() is FAIL\n");
    // The packed word 0x203: bRxafi bit 0, bMpv bits 1..8, bChnEn bit 9.
    VQ6192_PPP_PPU_CFG_S cfg{};
    ASSERT_EQ(VQ6192_PPP_GetPppPpuCfg(kChip, 4, &cfg), 0u);
    EXPECT_EQ(ints(cfg.bRxafi, cfg.bMpv, cfg.bChnEn, cfg.dwRxMtu), ints(1, 1, 1, 1500));
}

TEST_F(PppDiagTest, DdrCaptureCommands) {
    EXPECT_EQ(DbgGetCapPkt(kChip, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\n Not set pppchl and start,please first start and set ppp chl,thank you!");

    EXPECT_EQ(DbgSetCapPktAndStart(kChip, 256, 0, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\n input ulPppChanNo error");
    EXPECT_EQ(DbgSetCapPktAndStart(kChip, 2, 2, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\n input direct error");

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

    EXPECT_EQ(Vq6192PppStartDdrCappkt(kChip, 3, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\nsorry,parameter err!\r\n");
    EXPECT_EQ(Vq6192PppStartDdrCappkt(kChip, 2, buf.data()), 0x03040001u);
    EXPECT_EQ(text(), "\r\nStart cap pkt fail! dwRtn = 0x3040001\r\n");
    EXPECT_EQ(Vq6192PppSetChnlCappkt(kChip, 5, 0, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\n Disable DDR cap channel Success!\r\n");
    EXPECT_EQ(Vq6192PppSetChnlCappkt(kChip, 256, 0, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\n   sorry,parameter err!\r\n");
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

    EXPECT_EQ(DbgGetCapPktForMatchTemp(kChip, 256, 0, 0, 0, 0, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\n input ulPppChnlNo error");
    EXPECT_EQ(DbgGetCapPktForMatchTemp(kChip, 1, 2, 0, 0, 0, buf.data()), 0u);
    EXPECT_EQ(text(), "\r\n input direct type error");
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
