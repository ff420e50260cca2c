// ATM diagnostic commands: their text, the host's shadow listings, the null buffer and the buffer's end.
#include <algorithm>
#include <string>
#include <vector>

#include "diag/diag_test.h"
#include "diag/registry.h"
#include "vq6192/atm.h"
#include "vq6192/sim/atm.h"
#include "vq6192/sim/atm_pwe3.h"

namespace diagtest {
namespace {

class AtmDiagTest : public DiagTest {
  protected:
    void TearDown() override {
        std::fill(std::begin(g_conndata), std::end(g_conndata), ATM_CONN_DATA{});
        std::fill(std::begin(g_atmportdata), std::end(g_atmportdata), ATM_PORT_DATA{});
        std::fill(std::begin(g_bmtemplatedata), std::end(g_bmtemplatedata), ATM_BM_TEMPLATE_DATA{});
        ChipTest::TearDown();
    }
};

// An egress connection, in the order of the connection row: Vcx, Tag, cType, source port/VPI/VCI,
// destination port/VPI/VCI, Stype, UpcNpc, PolicingId, Qid, Clpt, Fd, Pfd, Red, idx.
ATM_SRV_CONN egress() {
    return ATM_SRV_CONN{11, 1, 1, 2000, 1, 100, 12, 2, 200, 3, 0, 40, 8, 0, 1, 0, 0, 5};
}

// An ATM table entry by select code, low 16-bit halves first.
void setAtmEntry(vq6192::sim::ChipModel &m, uint32_t sel, uint32_t index,
                 std::initializer_list<uint16_t> halves) {
    vq6192::sim::TableEngine::Entry e{};
    size_t k = 0;
    for (uint16_t h : halves) {
        e[k++] = h;
    }
    m.tables().setEntry(0x5000, sel, index, e);
}

TEST_F(AtmDiagTest, ReportsByteForByte) {
    uint8_t id[16] = {0xA, 1};
    ASSERT_EQ(VQ6192_ATM_SetOamLLID(kChip, id), 0u);
    std::string ids = "byllid[0]=0xa     byllid[1]=0x1     ";
    for (int i = 2; i < 16; ++i) {
        ids += "byllid[" + std::to_string(i) + "]=0x0     ";
    }
    auto &atm = model.block<vq6192::sim::AtmBlock>();
    atm.pushVcx(8191);
    atm.setCcloc(5, true);
    atm.setCcloc(8191, true);
    g_conndata[11].stConn = egress();
    g_conndata[11].ulUsed = 1;
    setAtmEntry(model, 18, 11, {0x0007});          // 7 cells dropped by connection 11
    setAtmEntry(model, 20, 12, {0x0009});          // 9 by transparent port 12
    setAtmEntry(model, 34, 5, {0x0003});           // PW 5: 3 packets sent
    setAtmEntry(model, 36, 5, {0, 0, 0, 0x0004});  // 4 received
    setAtmEntry(model, 34, 2047, {0x0001});
    model.block<vq6192::sim::AtmPwe3Block>().queuePacket({0x01, 0xAB, 0x00, 0xFF, 0x10});
    expectReports({
        {[](char *b) { return getoamllid(kChip, b); }, framed("GetOamLLID()", ids + "\n", kLSep)},
        {[](char *b) { return getoamvcxfifo(kChip, b); }, "OAM report VCX is 8191\n"},
        {[](char *b) { return getcclocall(kChip, b); },
         "VCX=       5            CCLOC=       1\nVCX=    8191            CCLOC=       1\n"},
        {[](char *b) { return getdropall(kChip, b); },
         "Statistics about packets discarded by VCX:  \n"
         "VCX=  11,       DropCell=   7        SerType=   3          wImaPort=  12\n"
         "dwDropAll = 7\nStatistics about packets discarded by VCX: \nPort=12,       DropCell=9\n"},
        {[](char *b) { return getatmpwe3statall(kChip, b); },
         "Pwe3Port=   5             Pwe3Tx =    3             Pwe3Rx =    4\n"
         "Pwe3Port=2047             Pwe3Tx =    1             Pwe3Rx =    0\n"},
        {[](char *b) { return getatmpwe3capcell(kChip, 5, 1, b); }, " pbyCell    :   \n01ab00ff10"},
        {[](char *b) { return captureatmcell(kChip, 0, 1, 0, 0, 0, b); }, "capture is error!\n", 0x03020001},
    });
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

TEST_F(AtmDiagTest, OamCellAndPseudowireRecords) {
    std::array<uint8_t, 53> cell{};
    cell[52] = 0xAB;
    model.block<vq6192::sim::AtmBlock>().reportCell(42, cell);
    ASSERT_EQ(getoamcell(kChip, buf.data()), 0u);
    const std::string out = text();
    EXPECT_EQ(out.substr(0, 18), "VCX=42\ncell[0]=0x0");
    EXPECT_EQ(out.substr(out.size() - 14), "cell[52]=0xab\n");

    setAtmEntry(model, 34, 6, {0x0001, 0, 0, 0, 0x0040});  // 1 packet, previous sequence number 1
    ASSERT_EQ(getatmpwe3per(kChip, 6, buf.data()), 0u);
    const std::string first = "Sequence number of the previous packet in the upstream direction : 0x1(1)\n";
    EXPECT_EQ(text().substr(0, first.size()), first);
    setAtmEntry(model, 34, 0, {0x0001, 0, 0, 0, 0x0040});
    ASSERT_EQ(getatmpwe3perall(kChip, buf.data()), 0u);
    const std::string all = text();
    EXPECT_LT(all.find("| \n|   0|"), all.find("| \n|   6|")) << "PW 0's row, then PW 6's";
    EXPECT_NE(all.find("| \n|   6|"), std::string::npos);

    model.poke(0xA6C2, 1);
    ASSERT_EQ(getpw3fifostats(kChip, buf.data()), 0u);
    const std::string fifo = text();
    EXPECT_NE(fifo.find(" byPwe3rxEthfifoEmpH    :    0x0(0)\n"), std::string::npos);
    EXPECT_NE(fifo.find(" byPwe3TxfifoOverrun    :    0x1(1)\n" + kLSep), std::string::npos);
}

TEST_F(AtmDiagTest, CounterReports) {
    model.block<vq6192::sim::AtmPwe3Block>().setReadClear(true);
    setAtmEntry(model, 2, 9, {0x0002});  // connection 9: 2 sent
    setAtmEntry(model, 1, 9, {0x0003});  // 3 received
    setAtmEntry(model, 2, 8191, {0xFFFF, 0x0001});
    ASSERT_EQ(getatmvcxstatall(kChip, buf.data()), 0u);
    EXPECT_EQ(text(),
              "VCX =        9                  dwTTcc =        2                  dwTRcc =        3\n"
              "VCX =     8191                  dwTTcc =   131071                  dwTRcc =        0\n"
              "dwTTccAll=131073\ndwTRccAll=3\ndwVcxNum=2\n");
    ASSERT_EQ(getatmvcxstatall(kChip, buf.data()), 0u);
    EXPECT_EQ(text(), "dwTTccAll=0\ndwTRccAll=0\ndwVcxNum=0\n") << "counters cleared by the first listing";
}

TEST_F(AtmDiagTest, CellCaptureReport) {
    vq6192::sim::AtmPwe3Block::Cell cell{};
    cell[0] = 0xA;
    cell[63] = 0xFF;
    model.block<vq6192::sim::AtmPwe3Block>().queueCell(1, cell);
    ASSERT_EQ(captureatmcell(kChip, 2, 1, 0, 0, 0, buf.data()), 0u);
    std::string expect = std::string(64, '-') + "\n";
    for (int i = 0; i < 64; ++i) {
        expect += i == 0 ? "0xa    " : i == 63 ? "0xff   " : "0x0    ";
        if (i % 16 == 15) {
            expect += "\n";
        }
    }
    EXPECT_EQ(text(), expect);
}

TEST_F(AtmDiagTest, EveryCommandRefusesANullBuffer) {
    for (const vq::diag::Command &c : vq::diag::atmCommands()) {
        SCOPED_TRACE(c.name);
        std::vector<vq::diag::ArgValue> args(c.argc);
        args[0].u32 = kChip;
        model.clearTrace();
        model.setTrace(true);
        EXPECT_EQ(c.invoke(args.data(), nullptr), 2u);
        EXPECT_TRUE(model.trace().empty());
    }
}

}  // namespace
}  // namespace diagtest
