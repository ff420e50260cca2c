// ATM diagnostic commands: their text byte for byte, the listings of the host's shadows, the null
// buffer, and the bound at the end of the 48128-byte buffer.
#include <string>
#include <vector>

#include "diag/registry.h"
#include "support/test_support.h"
#include "vq6192/atm.h"
#include "vq6192/sim/atm.h"

namespace {

using vqtest::ChipTest;

constexpr char kSep[] = "\n-------------------------------------------------\n";

class AtmDiagTest : public ChipTest {
  protected:
    void TearDown() override {
        for (ATM_CONN_DATA &r : g_conndata) {
            r = ATM_CONN_DATA{};
        }
        for (ATM_PORT_DATA &r : g_atmportdata) {
            r = ATM_PORT_DATA{};
        }
        for (ATM_BM_TEMPLATE_DATA &r : g_bmtemplatedata) {
            r = ATM_BM_TEMPLATE_DATA{};
        }
        ChipTest::TearDown();
    }
    std::string text() const { return std::string(buf.data()); }
    std::vector<char> buf = std::vector<char>(VQ6192_DIAG_BUF_SIZE);
};

ATM_SRV_CONN egress() {
    ATM_SRV_CONN c{};
    c.Vcx = 11;
    c.Tag = 1;
    c.cType = 1;
    c.SrcPort = 2000;
    c.SrcVpi = 1;
    c.SrcVci = 100;
    c.DstPort = 12;
    c.DstVpi = 2;
    c.DstVci = 200;
    c.Stype = 3;
    c.PolicingId = 40;
    c.Qid = 8;
    c.Fd = 1;
    c.idx = 5;
    return c;
}

TEST_F(AtmDiagTest, FramedValues) {
    ASSERT_EQ(getatmvcx(kChip, 5, 1, buf.data()), 0u);
    EXPECT_EQ(text(), std::string(kSep) + "        GetAtmVcx()\n" + kSep + " wVCX    :    0xb(11)\n" + kSep);

    EXPECT_EQ(getatmvcx(kChip, 4096, 1, buf.data()), 0x03020001u)
        << "the operation's status, text still printed";
    EXPECT_EQ(text(), std::string(kSep) + "        GetAtmVcx()\n" + kSep + " wVCX    :    0x0(0)\n" + kSep);

    const uint32_t th[3] = {0x100, 0x80, 0x7FFFF};
    ASSERT_EQ(VQ6192_ATM_AddAtmTransConn(kChip, 9, 99, th), 0u);
    ASSERT_EQ(getatmtransfifo(kChip, 9, buf.data()), 0u);
    EXPECT_EQ(text(), std::string(kSep) + "        GetAtmTransFiFo()\n" + kSep +
                          " dwBmPause    :    0x100(256)\n"
                          " dwBmCancel    :    0x80(128)\n"
                          " dwBmFifoDrop    :    0x7ffff(524287)\n" +
                          kSep);
    ASSERT_EQ(VQ6192_ATM_SetOamSegEnd(kChip, 3, 3), 0u);
    ASSERT_EQ(getoamsegend(kChip, 3, buf.data()), 0u);
    EXPECT_EQ(text(), std::string(kSep) + "        GetOamSegEnd()\n" + kSep +
                          " renSegEndType    :    0x3(3)\n" + kSep);
}

TEST_F(AtmDiagTest, ConnectionRowFromTheChip) {
    const ATM_SRV_CONN c = egress();
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &c), 0u);
    ASSERT_EQ(getatmsrvconn(kChip, 11, buf.data()), 0u);
    const std::string stars(128, '*');
    EXPECT_EQ(text(),
              stars + "\n" +
                  "| Wcx| Tag| cType| SrcPort| SrcVpi| SrcVci| DstPort| DstVpi| DstVci| Stype| UpcNpc| "
                  "PolicingId|   Qid| Clpt|  Fd| Pfd| Red| idx|\n"
                  "|  11|   1|     1|    2000|      1|    100|      12|      2|    200|     3|      0|"
                  "         40|     8|    0|   1|   0|   0|   5| \n" +
                  stars + "\n");
}

TEST_F(AtmDiagTest, ShadowListings) {
    g_conndata[11].stConn = egress();
    g_conndata[11].ulUsed = 1;
    g_atmportdata[12] = {1, 12, 2000, 10, 20, 30};
    ASSERT_EQ(getlinkdata(kChip, buf.data()), 0u);
    const std::string dash(128, '-');  // as wide as the header
    EXPECT_EQ(text(),
              "| Vcx| Tag| cType| SrcPort| SrcVpi| SrcVci| DstPort| DstVpi| DstVci| Stype| UpcNpc| "
              "PolicingId|   Qid| Clpt|  Fd| Pfd| Red| idx|\n"
              "|  11|   1|     1|    2000|      1|    100|      12|      2|    200|     3|      0|"
              "         40|     8|    0|   1|   0|   0|   5| \n" +
                  dash +
                  "\n| LcptPort| ScptPort| BmPause| BmCancel| BmFifoDrop|\n"
                  "|      12|    2000|      10|      20|      30|\n"
                  "| ATM link num count is:  = 1\n"
                  "| ATM Port num count is:  = 1\n");

    g_bmtemplatedata[64 + 3] = {3, 2, {100, 200, 9, 1, 2, 3, 4, 5, 6}};
    ASSERT_EQ(getbmtemplate(kChip, buf.data()), 0u);
    EXPECT_EQ(text(),
              "| idx| ServiceType| Clp0S0| Clp1S1| RedMax| RedMin| FdTh0| FdTh1| ClpTh0| ClpTh1|\n"
              "|   3|       2|   100|   200|     9|     1|     2|     3|     4|     5|     6\n");

    // Every connection in use: the listing stops at the end of the buffer.
    for (ATM_CONN_DATA &r : g_conndata) {
        r.ulUsed = 1;
    }
    std::vector<char> big(VQ6192_DIAG_BUF_SIZE + 64, '#');
    ASSERT_EQ(getlinkdata(kChip, big.data()), 0u);
    EXPECT_EQ(std::string(big.data()).size(), VQ6192_DIAG_BUF_SIZE - 1);
    EXPECT_EQ(big[VQ6192_DIAG_BUF_SIZE], '#');
}

TEST_F(AtmDiagTest, OamReports) {
    ASSERT_EQ(getoamcell(kChip, buf.data()), 0x03020001u);
    EXPECT_EQ(text(), "OAM cells are not reported or a read error occurs.\n");
    std::array<uint8_t, 53> cell{};
    cell[52] = 0xAB;
    model.block<vq6192::sim::AtmBlock>().reportCell(42, cell);
    ASSERT_EQ(getoamcell(kChip, buf.data()), 0u);
    const std::string out = text();
    EXPECT_EQ(out.substr(0, 18), "VCX=42\ncell[0]=0x0");
    EXPECT_EQ(out.substr(out.size() - 14), "cell[52]=0xab\n");

    uint8_t id[16] = {0xA, 1};
    ASSERT_EQ(VQ6192_ATM_SetOamLLID(kChip, id), 0u);
    ASSERT_EQ(getoamllid(kChip, buf.data()), 0u);
    std::string ids = "byllid[0]=0xa     byllid[1]=0x1     ";
    for (int i = 2; i < 16; ++i) {
        ids += "byllid[" + std::to_string(i) + "]=0x0     ";
    }
    EXPECT_EQ(text(), std::string(kSep) + "        GetOamLLID()\n" + kSep + ids + "\n" + kSep);

    model.block<vq6192::sim::AtmBlock>().pushVcx(8191);
    ASSERT_EQ(getoamvcxfifo(kChip, buf.data()), 0u);
    EXPECT_EQ(text(), "OAM report VCX is 8191\n");

    model.block<vq6192::sim::AtmBlock>().setCcloc(5, true);
    model.block<vq6192::sim::AtmBlock>().setCcloc(8191, true);
    ASSERT_EQ(getcclocall(kChip, buf.data()), 0u);
    EXPECT_EQ(text(),
              "VCX=       5            CCLOC=       1\n"
              "VCX=    8191            CCLOC=       1\n");
}

TEST_F(AtmDiagTest, EveryCommandRefusesANullBufferAndHasHelp) {
    for (const vq::diag::Command &c : vq::diag::atmCommands()) {
        SCOPED_TRACE(c.name);
        EXPECT_NE(std::string(c.help), "");
        std::vector<vq::diag::ArgValue> args(c.argc);
        args[0].u32 = kChip;
        model.clearTrace();
        model.setTrace(true);
        EXPECT_EQ(c.invoke(args.data(), nullptr), 2u);
        EXPECT_TRUE(model.trace().empty());
    }
}

}  // namespace
