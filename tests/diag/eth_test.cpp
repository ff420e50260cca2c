// Ethernet-side and MAC port commands: reports byte for byte, statuses and the null buffer.
#include <functional>
#include <string>
#include <vector>

#include "diag/diag_test.h"
#include "vq6192/eth.h"
#include "vq6192/sim/eth.h"
#include "vq6192/sim/mac.h"

namespace diagtest {
namespace {

class EthDiag : public DiagTest {
  protected:
    vq6192::sim::MacBlock &mac() { return model.block<vq6192::sim::MacBlock>(); }
    vq6192::sim::EthBlock &eth() { return model.block<vq6192::sim::EthBlock>(); }
};

TEST_F(EthDiag, ReportsByteForByte) {
    model.poke(0x8200, 0x0001);
    model.poke(0x8202, 0x0002);
    model.poke(0x812C, 0x0005);
    model.poke(0x8112, 0x6558);
    mac().setReg(2, 22, 1u << 20);
    mac().setReg(1, 24, 1u << 5);
    expectReports({
        {[](char *b) { return getegmplsbase(kChip, 0, b); },
         framed("GetEgMplsBase()", " rdwBase    :    0x10002(65538)\n", kLSep)},
        {[](char *b) { return getmaclinkstat(kChip, 2, b); },
         framed("GetMACLinkStat()", " rdwLinkStat    :    0x1(1)\n")},
        {[](char *b) { return getpmugreglbattr(kChip, b); },
         "        GetPMUGreGlbAttr()\n"
         "    | byVer                    : 0x5       (5         ) \n"
         "    | wProtType0               : 0x6558    (25944     ) \n"
         "    | wProtType1               : 0x0       (0         ) \n"
         "     PRINT_END\n"},
        {[](char *b) { return setserdeschnlreset(kChip, 1, 1, b); }, "        setserdeschnlreset() OK\n"},
        {[](char *b) { return setpmugreglbattr(kChip, 5, 0x10000, 0, b); },
         "        setpmugreglbattr() FAIL\n", 0x03050001},
        {[](char *b) { return setserdeschnlreset(kChip, 3, 1, b); }, "        setserdeschnlreset() FAIL\n",
         0x03050001},
        {[](char *b) { return setpmuipglbattr(kChip, 4, 5, 0x1234, 0x100, 7, 0, b); },
         "        setpmuipglbattr() FAIL\n", 0x03050001},  // flags take a byte
        {[](char *b) { return seteth1portsendmode(kChip, 1, b); },
         "seteth1portsendmode(UCHAR byMode)\n"
         "     UCHAR byMode   : 0:Select single-fed and single-receiving; 1:Select dual-fed and "
         "single-receiving\n"
         "        seteth1portsendmode() OK\n"},
        {[](char *b) { return insertpppprotocolpkt(kChip, nullptr, 4096, b); }, "The MAX Data Len is 4095!\n",
         0x03050001},
        {[](char *b) { return getcapethpkt(kChip, b); },
         "\r\n        GetCapEthPkt()\r\n    | RxLen                : 0x0       (0         ) \r\n\r\n"
         "----------------------------------------------------------------------------\r\n"
         "   CaptureData: \r\n\n",
         0x03050003},
        {[](char *b) { return cdk_getportworkmode(kChip, 1, b); },
         framed("GetPortWorkMode()", " reWorkMode    :    0x1(1)\n", kLSep)},
        {[](char *b) { return cdk_setportmaxpktlencfg(kChip, 0, 9000, b); },
         "        cdk_setportmaxpktlencfg() is OK\n"},
    });
}

TEST_F(EthDiag, WithoutABufferTheOperationStillRuns) {
    const uint64_t before = model.tables().readsExecuted(0x4000);
    EXPECT_EQ(getmacper(kChip, 1, nullptr), 0u);
    EXPECT_EQ(model.tables().readsExecuted(0x4000) - before, 48u);
    EXPECT_EQ(cdk_setporttxen(kChip, 2, 1, nullptr), 0u);
    EXPECT_EQ(mac().reg(2, 17), 4u);
    EXPECT_EQ(cdk_setporttxen(kChip, 3, 1, nullptr), 0x03060001u);
}

TEST_F(EthDiag, ProtocolPairsAndPacketReports) {
    ASSERT_EQ(VQ6192_ETH_ETHInit(kChip, 1), 0u);
    const std::string pairs =
        "  Index        pro       type    |  Index        pro       type\n"
        "  0          0x21        0x800     |  1          0x281       0x8847    |\n"
        "  2          0x23        0x8000    |  3          0x57        0x86dd    |\n";
    EXPECT_EQ(run([](char *b) { return ppppro2type(kChip, b); }),
              "  Ingress\n" + pairs + "  Egress\n" + pairs);

    eth().receive({0xC0, 0x21, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14});  // sixteen bytes a line
    EXPECT_EQ(run([](char *b) { return readpppprotocolpkt(kChip, b); }),
              " rdwDataLen    :    0x11(17 )\n"
              " c0  21  00  01  02  03  04  05  06  07  08  09  0a  0b  0c  0d \n 0e \n");
    eth().capture({0x00, 0x11, 0x22, 0x81});
    uint32_t rc = 1;
    EXPECT_EQ(run([](char *b) { return Vq6192CapEthPkt(kChip, 1, b); }, &rc),
              "\r\n        GetCapEthPkt()\r\n    | RxLen                : 0x4       (4         ) \r\n\r\n"
              "----------------------------------------------------------------------------\r\n"
              "   CaptureData: \r\n 00  11  22  81 \n");
    EXPECT_EQ(rc, 0u);
    EXPECT_EQ(model.peek(0x90A2), 0x8100);
    EXPECT_EQ(model.peek(0x9096), 0xFFFC);
    EXPECT_EQ(model.peek(0x9092), 0x100C);
    EXPECT_EQ(Vq6192CapEthPkt(16, 0, nullptr), 2u);
}

TEST_F(EthDiag, SettersHandTheirArgumentsOverInOrder) {
    const struct {
        const char *name;
        std::function<uint32_t(char *)> cmd;
        uint32_t addr;
        uint16_t value;
    } cases[] = {
        {"setpmuudpsport", [](char *b) { return setpmuudpsport(kChip, 0xC001, b); }, 0x8124, 0xC001},
        {"setegmplsbase", [](char *b) { return setegmplsbase(kChip, 1, 2000, b); }, 0x8204, 2000},
        {"seteth1wrrweight", [](char *b) { return seteth1wrrweight(kChip, 2, 0x33, b); }, 0x80BC, 0x3300},
        {"setselftestglbctl", [](char *b) { return setselftestglbctl(kChip, 1, 2, 0x5A, 64, b); }, 0x80BA,
         0x8},
        {"setselftestprbs", [](char *b) { return setselftestprbs(kChip, 9, 1, b); }, 0x9022, 0x109},
        {"setserdesloop", [](char *b) { return setserdesloop(kChip, 2, 2, 1, b); }, 0x21E, 0xC0},
        {"setpppcpuhead", [](char *b) { return setpppcpuhead(kChip, 1, 8, 1, 2, b); }, 0x8130, 0x0201},
        {"setethpausepara", [](char *b) { return setethpausepara(kChip, 0, 1, 2, 3, 4, b); }, 0x811A, 3},
        {"setpmuipglbattr", [](char *b) { return setpmuipglbattr(kChip, 4, 5, 0x1234, 2, 7, 0x0A000001, b); },
         0x8128, 0x1234},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(run(c.cmd), std::string("        ") + c.name + "() OK\n");
        EXPECT_EQ(model.peek(c.addr), c.value);
    }
    const uint16_t attr[41] = {1, 0, 0, 0, 0, 0, 0, 1500};
    const uint16_t sel[41] = {1, 0, 0, 0, 0, 0, 0, 1};
    EXPECT_EQ(run([&](char *b) { return setmacattr(kChip, 2, attr, sel, b); }), "        setmacattr() OK\n");
    EXPECT_EQ(mac().reg(2, 105), 1u);
    EXPECT_EQ(mac().reg(2, 15), 1500u);
    const std::string report = run([](char *b) { return getmacattr(kChip, 2, b); });
    EXPECT_NE(report.find("    | wMaxFrmSize              : 0x5dc     (1500      ) \n"), std::string::npos);
    EXPECT_EQ(report.substr(0, 22), "        GetMACAttr()\n ");
    uint8_t info[72] = {};
    info[4 * 12 + 1] = 0x01;  // dwLblPwLable = 0x00010203
    info[4 * 12 + 2] = 0x02;
    info[4 * 12 + 3] = 0x03;
    info[4 * 17 + 3] = 6;  // dwLblHdType
    EXPECT_EQ(run([&](char *b) { return setpsnethinfo(kChip, 5, 3, info, b); }),
              "        setpsnethinfo() OK\n");
    VQ6192_ETH_PSN_INFO_S back{};
    ASSERT_EQ(VQ6192_ETH_GetPSNEthInfo(kChip, 5, 3, &back), 0u);
    EXPECT_EQ(back.dwLblPwLable, 0x10203u);
    EXPECT_EQ(back.dwLblHdType, 6u);
    uint32_t rc = 0;
    EXPECT_EQ(run([](char *b) { return setegvlanid2chnl(kChip, 4096, 1, 1, b); }, &rc),
              "        setegvlanid2chnl() FAIL\n");
    EXPECT_EQ(rc, 0x03050001u);
}

TEST_F(EthDiag, TrailingZeroCount) {
    EXPECT_EQ(ints(COUNT_ZERO_NUM(0), COUNT_ZERO_NUM(1), COUNT_ZERO_NUM(8), COUNT_ZERO_NUM(0x80000000u),
                   COUNT_ZERO_NUM(0x60)),
              ints(0, 0, 3, 31, 5));
}

}  // namespace
}  // namespace diagtest
