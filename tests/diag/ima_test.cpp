// IMA diagnostic commands and hardware diagnostics: their text, refusals and the argument helper.
#include <algorithm>
#include <string>
#include <vector>

#include "diag/diag_test.h"
#include "vq6192/ima.h"
#include "vq6192/sim/ima_processor.h"

namespace diagtest {
namespace {

using Proc = vq6192::sim::ImaProcessor;

class ImaDiagTest : public DiagTest {
  protected:
    Proc &proc() { return model.block<Proc>(); }
    std::vector<std::string> lines() const {
        std::vector<std::string> out;
        const std::string t = text();
        size_t start = 0;
        for (size_t pos; (pos = t.find("\r\n", start)) != std::string::npos; start = pos + 2) {
            out.push_back(t.substr(start, pos - start));
        }
        return out;
    }
};

TEST_F(ImaDiagTest, CellAndDelayLayouts) {
    proc().setEntryBits(Proc::kRxBlock, 5, 2 * 16, 0, 32, 0x44332211);
    ASSERT_EQ(getimaicpcell(kChip, 2, 0, buf.data()), 0u);
    EXPECT_NE(text().find(" pbyCell    :    \n11 22 33 44 00 "), std::string::npos);
    proc().setEntryBits(Proc::kRxBlock, 9, 4 + 32, 0, 16, 0x1234);
    proc().setEntryBits(Proc::kRxBlock, 9, 4 + 1, 0, 32, (1u << 28) | (1u << 26) | (2u << 21) | 0xAB);
    ASSERT_EQ(getdelayinfo(kChip, 4, buf.data()), 0u);
    const std::string t = text();
    EXPECT_NE(t.find(" dwReadPtr       :    0x1234(4660)\n dwLinkActive    :    0x0(0)\n"
                     " wWritePtr\t byOverRun   byLif      byIfsm\n0:"),
              std::string::npos);
    EXPECT_NE(t.find("\n1:0xab(171)  0x1(1)  0x1(1)  0x2(2)\n"), std::string::npos);
    const uint16_t links[2] = {2, 3};
    ASSERT_EQ(getrxtestptn(kChip, 0, 2, links, buf.data()), 0u);
    EXPECT_NE(text().find(" Ptn[ 0]       :    0x0(0)\n"), std::string::npos);
    EXPECT_NE(text().find(" Ptn[15]       :    0x0(0)\n"), std::string::npos);
    EXPECT_EQ(getimagrpstatus(kChip, 0, nullptr), 2u);
    EXPECT_EQ(getdelayinfo(kChip, 0, nullptr), 2u);
}

TEST_F(ImaDiagTest, ArgumentHelper) {
    uint32_t v = 0, isNum = 9;
    static const char hex[] = "0x1F", word[] = "abc";
    EXPECT_EQ(strcc(65534, &v, &isNum), 0u);
    EXPECT_EQ(ints(v, isNum), ints(65534, 1));
    EXPECT_EQ(strcc(reinterpret_cast<uintptr_t>(hex), &v, &isNum), 0u);
    EXPECT_EQ(ints(v, isNum), ints(31, 0));
    EXPECT_EQ(strcc(reinterpret_cast<uintptr_t>(word), &v, &isNum), 1u);
    EXPECT_EQ(strcc(1, nullptr, &isNum), 1u);
    EXPECT_EQ(strcc(1, &v, nullptr), 1u);
}

TEST_F(ImaDiagTest, HardwareHelpTexts) {
    EXPECT_EQ(MCARD_IMA_DiagHardwareGetImapp(kChip, 9, 0, buf.data()), 0);
    EXPECT_EQ(text(),
              "==================== IMAPP HELP ====================\r\n"
              "1. TX  LINK CONFIG  (IMAPP_TXC), para: link ID\r\n"
              "2. RX  LINK CONFIG  (IMAPP_RXC), para: link ID\r\n"
              "3. IMA GROUP CONFIG (IMAPP_GPC), para: group ID\r\n"
              "4. TX  LINK STATUS  (IMAPP_TXS), para: link ID\r\n"
              "5. RX  LINK STATUS  (IMAPP_RXS), para: link ID\r\n"
              "6. IMA GROUP STATUS (IMAPP_GPS), para: group ID\r\n"
              "7. READ_EVENT STATUS,            para: group ID\r\n"
              "8. ICP CELL TABLE,               para:  (group ID?)\r\n");
    EXPECT_EQ(MCARD_IMA_Dbg_ImaHardWareInfo(kChip, 4, 0, 0, buf.data()), 0);
    EXPECT_EQ(lines().at(0), "==================== IMATX HELP ====================");
    EXPECT_EQ(lines().at(7), "7. LINK IN GROUP CFG   (IMATX_LINK_IN_GP), para: group ID");
    EXPECT_EQ(MCARD_IMA_DiagHardwareGetImarx(kChip, 12, 0, buf.data()), 0);
    const auto l = lines();
    ASSERT_EQ(l.size(), 14u);
    EXPECT_EQ(l[1], " 1. RX LINK COUNT         (IMARX_LK_CNT/IMARX_UNI_WCNT),   para: link ID");
    EXPECT_EQ(l[9], " 9. RX GROUP WRITE POINTER(IMARX_GP_WPTR),                 para: group ID");
    EXPECT_EQ(l[10], "10. READ DELAY,                                            ");
    EXPECT_EQ(l[11], "13. RX GROUP COUNT        (IMARX_GP_CNT/IMARX_UNI_RCNT),   para: group ID");
    EXPECT_EQ(l[12], "14. SCVC PERIODICITY CHECK,                                para: group ID");
    EXPECT_EQ(l[13], "15. SCVC CONTROL LINK-LIST,                                para: group ID");
    EXPECT_EQ(MCARD_IMA_DiagHardwareSetImaIss(kChip, 4, 1, buf.data()), 0) << "code 3 has no command";
    EXPECT_EQ(lines().at(0), "==================== IMA ISS HELP ====================");
    EXPECT_EQ(MCARD_IMA_Dbg_ImaHardWareInfo(kChip, 11, 0, 0, buf.data()), 0);
    EXPECT_EQ(text(), "  Table Type Error!! Tyble Type 11  \r\n ");
}

TEST_F(ImaDiagTest, HardwareRefusalsAndParameters) {
    EXPECT_EQ(MCARD_IMA_DiagHardwareGetImatx(34, 1, 0, buf.data()), -1);
    EXPECT_EQ(MCARD_IMA_DiagHardwareSetExtraPara(kChip, 11, 5, buf.data()), 0);
    EXPECT_EQ(text(), "set extra para failed.\r\nparameter index should between [1, 10]\r\n");
    for (uint32_t i = 1; i <= 3; ++i) {
        EXPECT_EQ(MCARD_IMA_Dbg_ImaHardWareInfo(kChip, 6, i, 0x100 * i, buf.data()), 0);
    }
    EXPECT_EQ(text(), "set extra para[3] to 768(0x300)\r\n");
    EXPECT_EQ(MCARD_IMA_Dbg_ImaHardWareInfo(kChip, 7, 13, 44, buf.data()), 0);
    EXPECT_EQ(text(), "Issue IMA Command: 13, para = 44, 256, 512, 768, ret=0\r\n\r\n");
    EXPECT_EQ(proc().commands(), (std::vector<Proc::Command>{{12, 44, 256, 512, 768}}));
    proc().refuse(1);
    EXPECT_EQ(MCARD_IMA_DiagHardwareSetImaIss(kChip, 1, 44, buf.data()), 0x030D0009);
    std::fill(std::begin(g_uiKx9rDiagExtraPara), std::end(g_uiKx9rDiagExtraPara), 0u);
}

TEST_F(ImaDiagTest, HardwareTablePrints) {
    for (uint32_t lid = 0; lid < 32; ++lid) {
        proc().setEntryBits(Proc::kTxBlock, 3, 6 * 32 + lid, 0, 9, 0x100 + lid);
    }
    EXPECT_EQ(MCARD_IMA_DiagHardwareGetImatx(kChip, 4, 6, buf.data()), 0);
    const std::vector<std::string> map = lines();
    EXPECT_EQ(std::vector<std::string>(map.begin() + 1, map.begin() + 9),
              (std::vector<std::string>{
                  "1: tx_ch0  = 100 | 09: tx_ch08 = 108 | 17: tx_ch16 = 110 | 25: tx_ch24 = 118",
                  "2: tx_ch1  = 101 | 10: tx_ch09 = 109 | 18: tx_ch17 = 111 | 26: tx_ch25 = 119",
                  "3: tx_ch2  = 102 | 11: tx_ch10 = 10a | 19: tx_ch18 = 112 | 27: tx_ch26 = 11a",
                  "4: tx_ch3  = 103 | 12: tx_ch11 = 10b | 20: tx_ch19 = 113 | 28: tx_ch27 = 11b",
                  "5: tx_ch4  = 104 | 13: tx_ch12 = 10c | 21: tx_ch20 = 114 | 29: tx_ch28 = 11c",
                  "6: tx_ch5  = 105 | 14: tx_ch13 = 10d | 22: tx_ch21 = 115 | 30: tx_ch29 = 11d",
                  "7: tx_ch6  = 106 | 15: tx_ch14 = 10e | 23: tx_ch22 = 116 | 31: tx_ch30 = 11e",
                  "8: tx_ch7  = 107 | 16: tx_ch15 = 10f | 24: tx_ch23 = 117 | 32: tx_ch31 = 11f"}));
    proc().setEntryBits(Proc::kTxBlock, 6, 6, 0, 64, (1ull << 17) | (1ull << 32));
    EXPECT_EQ(MCARD_IMA_DiagHardwareGetImatx(kChip, 7, 6, buf.data()), 0);
    // Row r, column c is link 16c + r: link 17 in row 1 column 1, link 32 in row 0 column 2.
    EXPECT_EQ(lines().at(2),
              " 0: .   .   1   .   .   .   .   .   .   .   .   "
              ".   .   .   .   .   .   .   .   .   .  ");
    EXPECT_EQ(lines().at(3),
              " 1: .   1   .   .   .   .   .   .   .   .   .   "
              ".   .   .   .   .   .   .   .   .   .  ");
    EXPECT_EQ(MCARD_IMA_DiagHardwareGetTable(kChip, 0, 0, buf.data()), 0);
    EXPECT_EQ(lines().size(), 217u);
    model.tables().holdBusy(Proc::kTxBlock, vq6192::sim::TableEngine::kForever);
    EXPECT_NE(MCARD_IMA_DiagHardwareGetImatx(kChip, 8, 6, buf.data()), 0);
    EXPECT_EQ(text(), "ASIC_Read_Table failed, ret=0x30C0003\r\n");
    model.tables().holdBusy(Proc::kTxBlock, 0);
}

TEST_F(ImaDiagTest, HardwareSnapshotLayouts) {
    // Read_event snapshot: LID 3 reports Rxlid 0x1F.
    proc().setEntryBits(Proc::kProcBlock, 6, 3, 32, 5, 0x1F);
    EXPECT_EQ(MCARD_IMA_DiagHardwareGetImapp(kChip, 7, 9, buf.data()), 0);
    EXPECT_EQ(proc().commands(), (std::vector<Proc::Command>{{24, 9, 0, 0, 0}}));
    const std::string t = text();
    EXPECT_NE(t.find("                  1  2  3  4  5  6  7  8  9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 "
                     "24 25 26 27 28 29 30 31 32\r\n"),
              std::string::npos);
    EXPECT_NE(t.find("            Rxlid = 0  0  0  31 0  0  0  0  0  0  0  0  0  0"
                     "  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0 \r\n"),
              std::string::npos);

    // Read delay: one row per LID from entry group + LID.
    proc().setEntryBits(Proc::kRxBlock, 9, 2 + 4, 0, 32, (1u << 28) | (1u << 27) | (3u << 21) | 0xBEEF);
    EXPECT_EQ(MCARD_IMA_DiagHardwareGetImarx(kChip, 10, 2, buf.data()), 0);
    const auto l = lines();
    const auto head = std::find(l.begin(), l.end(),
                                "Reserved imarx_overrun lcd lif Reserved ifsm_state Reserved write_ptr");
    ASSERT_NE(head, l.end());
    EXPECT_EQ(*(head + 1), "-------- ------------- --- --- -------- ---------- -------- ---------");
    EXPECT_EQ(*(head + 6), "  4:        0             1   1   0        0          3        0      beef");

    // Receive ICP buffer of link 2: twelve words, octets 6..53, low byte first.
    for (uint32_t w = 0; w < 12; ++w) {
        proc().setEntryBits(Proc::kRxBlock, 5, 2 * 16 + w, 0, 32, 0x04030201u + 0x04040404u * w);
    }
    EXPECT_EQ(MCARD_IMA_DiagHardwareGetImarx(kChip, 6, 2, buf.data()), 0);
    EXPECT_EQ(
        (std::vector<std::string>{lines().at(0), lines().at(5), lines().at(11)}),
        (std::vector<std::string>{"  ICP octet 06 ~ 09:   01 02 03 04", "  ICP octet 26 ~ 29:   15 16 17 18",
                                  "  ICP octet 50 ~ 53:   2D 2E 2F 30"}));

    // Transmit ICP buffer: octets 11..51, the bytes outside the cell as reserved.
    for (uint32_t w = 0; w < 11; ++w) {
        proc().setEntryBits(Proc::kTxBlock, 1, 16 + w, 0, 32, 0x11223344u);
    }
    EXPECT_EQ(MCARD_IMA_DiagHardwareGetImatx(kChip, 2, 1, buf.data()), 0);
    EXPECT_EQ(lines().at(0), "  ICP octet 11 ~ 13:      22 33 44");
    EXPECT_EQ(lines().at(1), "  ICP octet 14 ~ 17:   11 22 33 44");
    EXPECT_EQ(lines().at(9), "  ICP octet 46 ~ 49:   11 22 33 44");
    EXPECT_EQ(lines().at(10), "  ICP octet 50 ~ 51:   11 22");
    EXPECT_EQ(lines().at(11), "  Reserved: 11  Reserved: 33  Reserved: 44");
}

}  // namespace
}  // namespace diagtest
