// IMA hardware diagnostics that reach other blocks: a module dumped to a file through the chip dump, one
// ATM connection with its policer and OAM settings read back from the switching tables, one ATM pseudowire
// with its labels read back through the packet side, and the chip-wide ATM drop counters.
#include <cstdio>
#include <string>
#include <tuple>
#include <vector>

#include "atm/atm_fixture.h"
#include "support/mem_files.h"
#include "vq6192/dump.h"
#include "vq6192/eth.h"
#include "vq6192/ima.h"
#include "vq6192/sim/register_window.h"

namespace {

using namespace atmtest;

constexpr uint32_t kTableTimeout = 0x030C0003;
constexpr uint32_t kEthBlock = 0x4000;  // the packet side's table access block

class HwDiagTest : public AtmTest {
  protected:
    std::vector<char> buf = std::vector<char>(VQ6192_DIAG_BUF_SIZE);
    std::string text() const { return std::string(buf.data()); }
    vqtest::MemFiles files;

    // The chip's registers are the model's register window, so the dump reads them as host memory.
    uintptr_t useWindow() {
        VQ6192_INSTALL_PARA p = model.installPara(kChip, false);
        p.ulBaseAddr = model.block<vq6192::sim::RegisterWindow>().base();
        reinstall(p);
        return p.ulBaseAddr;
    }
};

std::string hex(uintptr_t v) {
    char s[32];
    snprintf(s, sizeof s, "0x%x", static_cast<unsigned>(v));
    return s;
}

TEST_F(HwDiagTest, DumpWritesTheModuleToItsOwnFile) {
    const uintptr_t base = useWindow();
    const VQ6192_PLATFORM_FILE_HOOKS hooks = vqtest::MemFiles::platformHooks();
    VQ6192_Platform_SetFileHooks(&hooks);
    // Twice: the second dump starts its file again rather than appending to the first.
    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(MCARD_IMA_Dbg_ImaHardWareInfo(kChip, 1, 7, 99, buf.data()), 0);
        EXPECT_EQ(text(), "\r\nASIC dump\r\nchip base addr: " + hex(base) +
                              "\r\ndump 'log/Dump307.log' finished with a success\r\n");
    }
    ASSERT_EQ(MCARD_IMA_DiagHardwareGet6192Dump(kChip, 11, 0, buf.data()), 0);
    EXPECT_NE(text().find("dump 'log/Dump311.log' finished with a success\r\n"), std::string::npos);
    VQ6192_Platform_SetFileHooks(nullptr);

    // Header naming the file, then the DDR2C register block alone: one range of registers 0x00..0xC9 (the
    // file layout itself is the chip dump's own test).
    const std::vector<uint8_t> &f = files.file("log/Dump307.log");
    ASSERT_EQ(f.size(), 48u + 24 + 6 + 2 * 0xCA);
    EXPECT_EQ(std::string(f.begin() + 1, f.begin() + 26), "DUMPlog/Dump307.logVQ6192");
    EXPECT_EQ(std::string(f.begin() + 49, f.begin() + 54), "DDR2C");
}

TEST_F(HwDiagTest, DumpFailuresAndModuleList) {
    const std::string list =
        "  1.  GLB_CFG\r\n  2.  IMA\r\n  3.  PPP\r\n  4.  ATM\r\n  5.  CES\r\n  6.  SAM\r\n  7.  DDR2C\r\n"
        "  8.  MDDRC\r\n  9.  ETH\r\n  10. TS\r\n  11. E1Map\r\n";
    // Module 0; without host file functions the library's hooks give no file, and the last flush fails; a
    // chip that is not installed has no dump context.
    const std::tuple<uint32_t, uint32_t, int32_t, std::string> cases[] = {
        {kChip, 0, 0, "module ID(0) is invalid. all valid module IDs are listed below:\r\n" + list},
        {kChip, 4, 0x030B0002, "\r\nASIC dump\r\nchip base addr: 0x0\r\nASIC_DUMP_Dump return 0x30b0002\r\n"},
        {5, 4, 0x050B0001,
         "\r\nASIC dump\r\nchip base addr: 0x0\r\nASIC_DUMP_RegFileFunc return 0x50b0001\r\n"},
    };
    for (const auto &[chip, module, rc, want] : cases) {
        buf[0] = '\0';
        model.clearTrace();
        EXPECT_EQ(MCARD_IMA_Dbg_ImaHardWareInfo(chip, 1, module, 0, buf.data()), rc);
        EXPECT_EQ(text(), want);
        EXPECT_TRUE(module != 0 || model.trace().empty());
    }
    EXPECT_TRUE(files.calls.empty());
}

// The connection with every field distinct, laid straight into the chip's tables.
struct Laid {
    uint32_t vcx, tcamPort, dir, lineNni;
    uint16_t dstVpi;
    uint32_t tag, srcPort;
};

class ConnViewTest : public HwDiagTest {
  protected:
    void lay(const Laid &l) {
        setFields(kTcam, l.vcx, {{0, 16, 0x1234}, {16, 12, 0xABC}, {28, 12, l.tcamPort}});
        // OAM bits 46..51: Seg, CC source and sink, source end-to-end.
        setFields(kVct, l.vcx,
                  {{0, 1, 1}, {1, 16, 0xFEDC}, {17, 8, 0xA7}, {25, 4, 0x5}, {29, 11, 300}, {40, 1, l.dir}});
        setFields(kVct, l.vcx, {{41, 1, 1}, {46, 6, 0b101110}, {52, 1, 1}, {53, 13, 0x1234}, {66, 3, 3}});
        setBits(l.dir ? kLpct : kSpct, 300, l.dir ? 2 : 1, 1, l.lineNni);
        setBits(kLinkQm, l.vcx, 0, 13, 77);
        setBits(kBmPvc, l.vcx, 0, 10, 63 | 1u << 7 | 1u << 9);
        // Policer 0x1234: limit A, mode A, increment A, limit B, mode B, increment B.
        setFields(kPolCfg, 0x1234,
                  {{0, 8, 0xAB}, {8, 3, 5}, {11, 15, 0x1ABC}, {26, 8, 0xCD}, {34, 3, 6}, {37, 15, 0x2DEF}});
    }
    static std::string row(const Laid &l) {
        char s[256];
        snprintf(s, sizeof s, "|%4u|%4u|%6u|%8u|%7u|%7u|%8u|%7u|%7u|%6u|%7u|%11u|%6u|%5u|%4u|%4u|%4u|%4u| \n",
                 l.vcx, l.tag, 1u, l.srcPort, 0xABCu, 0x1234u, 300u, unsigned{l.dstVpi}, 0xFEDCu, 3u, 1u,
                 0x1234u, 77u, 1u, 0u, 1u, 0u, 63u);
        return s;
    }
};

TEST_F(ConnViewTest, ConnectionPolicerAndOam) {
    const std::string tail =
        "\r\n----------------POLICY------------------\r\n"
        "wIncrB      : 2def \r\n"
        "wPBMode     :    6 \r\n"
        "wLimitB     :   cd \r\n"
        "wIncrA      : 1abc \r\n"
        "wPAMode     :    5 \r\n"
        "wLimitA     :   ab \r\n"
        "\r\n---------------OAM SET------------------\r\n"
        "CC  Type (0 seg, 1 end)                    : 1, 0\r\n"
        "CC  Flag (0 None,1 src,2 sink,3 src+sink,4 disable src, 5 disable sink)  : 3\r\n"
        "OAM Type (0 None, 1 seg, 2 end, 3 seg+end) : 1\r\n";
    // Egress leg of link 10 from system port 1500 to NNI line port 300: a 12-bit VPI; ingress leg of link
    // 4095 from line port 7 to UNI system port 300: an 8-bit VPI.
    const std::tuple<uint32_t, uint32_t, Laid> cases[] = {{10, 1, {21, 2048 + 1500, 1, 1, 0x5A7, 1, 1500}},
                                                          {4095, 0, {8190, 7, 0, 0, 0xA7, 0, 7}}};
    for (const auto &[link, dir, laid] : cases) {
        model.tables().clear();
        lay(laid);
        ASSERT_EQ(MCARD_IMA_Dbg_ImaHardWareInfo(kChip, 8, link, dir, buf.data()), 0);
        EXPECT_EQ(text(),
                  "usVcx = " + std::to_string(laid.vcx) +
                      "\r\n"
                      "Tag: 0 Ingress, 1 Egress, 2 Local\r\n"
                      "cType: 0 VP, 1 VC\r\n"
                      "Stype: 1 CBR, 2 RTVBR, 3 NRTVBR, 4 UBR+, 5 UBR\r\n"
                      "| Vcx| Tag| cType| SrcPort| SrcVpi| SrcVci| DstPort| DstVpi| DstVci| Stype| UpcNpc| "
                      "PolicingId|   Qid| Clpt|  Fd| Pfd| Red| idx|\n" +
                      row(laid) + tail);
        EXPECT_EQ(tableCommands() - model.tables().readsExecuted(kAtmBlock), 0u) << "reads only";
    }
}

TEST_F(ConnViewTest, RefusalsAndFailingReads) {
    // Link 4096, direction 2.
    for (const auto &[link, dir] : {std::pair<uint32_t, uint32_t>{4096, 0}, {1, 2}}) {
        buf[0] = '\0';
        model.clearTrace();
        EXPECT_EQ(MCARD_IMA_DiagHardwareGetAtmConnCfg(kChip, link, dir, buf.data()),
                  static_cast<int32_t>(kPara));
        EXPECT_EQ(text(), "");
        EXPECT_TRUE(model.trace().empty());
    }
    // The policer read (the sixth table command) never completes: the rest is printed as read, and
    // the table time-out is returned.
    const Laid laid{21, 2048 + 1500, 1, 1, 0x5A7, 1, 1500};
    lay(laid);
    model.tables().failCommand(kAtmBlock, 6);
    EXPECT_EQ(MCARD_IMA_DiagHardwareGetAtmConnCfg(kChip, 10, 1, buf.data()),
              static_cast<int32_t>(kTableTimeout));
    model.tables().failCommand(kAtmBlock, 0);
    model.tables().holdBusy(kAtmBlock, 0);
    EXPECT_NE(text().find(row(laid)), std::string::npos);
    EXPECT_NE(text().find("wIncrB      :    0 \r\n"), std::string::npos);
}

class AtmViewTest : public HwDiagTest {
  protected:
    std::string view(uint32_t type, uint32_t arg1, int32_t expect) {
        buf[0] = '\0';
        EXPECT_EQ(MCARD_IMA_Dbg_ImaHardWareInfo(kChip, type, arg1, 0, buf.data()), expect);
        return buf.data();
    }
};

std::string pwView(uint32_t labelType, uint32_t egLabel, uint32_t inLabel, int encap, uint32_t vpi,
                   uint32_t vci, unsigned cw, unsigned snChk, unsigned snAdd, unsigned cells, unsigned wait) {
    char s[1024];
    snprintf(s, sizeof s,
             "LABEL TYPE(0 unuse, 1 MPLS, other wrong)         :           %u\r\n"
             "EGRESS LABEL       :           0x%x(%u)\r\n"
             "INGRESS LABEL      :           0x%x(%u)\r\n"
             "ENCAP TYPE(0,3 N:1; 1 VPC 1:1; 2 VCC 1:1)         :           %d\r\n"
             "EGRESS VPI         :           0x%x(%u)\r\n"
             "EGRESS VCI         :           0x%x(%u)\r\n"
             "CW  ENABLE         :           %u\r\n"
             "SN CHECK ENABLE    :           %u\r\n"
             "SN ADD ENABLE      :           %u\r\n"
             "MAX CELL NUM       :           %u\r\n"
             "MAX WAIT TIME(ms)  :           %u\r\n"
             "The Data is VALID\r\n",
             labelType, egLabel, egLabel, inLabel, inLabel, encap, vpi, vpi, vci, vci, cw, snChk, snAdd,
             cells, wait);
    return s;
}

TEST_F(AtmViewTest, PseudowireLabelsAndSettings) {
    struct Case {
        uint32_t pw;
        ATM_PW_CFG cfg;  // byPsnEncpType 0: not created
        uint32_t cells, wait;
        std::string text;
    };
    const Case cases[] = {
        // VCC 1:1 over MPLS (header type 4): label type 1, the received label found in the label map.
        {300,
         {0x12, 0xABCD, 0x55, 0x77, 1, 1, 0, 2, 1},
         5,
         10,
         pwView(1, 0x55, 0x77, 2, 0x12, 0xABCD, 1, 1, 0, 5, 10)},
        // N:1 over UDP/IP (header type 7) printed as it is; pseudowires from 512 up are not searched.
        {1500, {0, 0, 0x1234, 0x99, 0, 0, 1, 0, 5}, 31, 63, pwView(7, 0x1234, 0, 0, 0, 0, 0, 0, 1, 31, 63)},
        {9, {}, 0, 0, pwView(0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0)},  // never created
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(k.pw);
        if (k.cfg.byPsnEncpType != 0) {
            ASSERT_EQ(VQ6192_ATM_CreateAtmPw(kChip, k.pw, &k.cfg), 0u);
            ASSERT_EQ(VQ6192_ATM_SetAtmPwCellConcAttr(kChip, k.pw, k.cells, k.wait), 0u);
        }
        const uint64_t atmWrites = model.tables().writesExecuted(kAtmBlock);
        const uint64_t ethWrites = model.tables().writesExecuted(kEthBlock);
        EXPECT_EQ(view(9, k.pw, 0), k.text);
        EXPECT_EQ(model.tables().writesExecuted(kAtmBlock), atmWrites) << "a view writes no entry";
        EXPECT_EQ(model.tables().writesExecuted(kEthBlock), ethWrites);
    }
    // PW 2048 is refused by every read: the status is theirs, ORed.
    model.clearTrace();
    EXPECT_NE(
        view(9, 2048, static_cast<int32_t>(kPara | 0x03050001)).find("The Data is INVALID. 0x3070001\r\n"),
        std::string::npos);
    EXPECT_TRUE(model.trace().empty()) << "refused before any access";
    // A pseudowire table read that never completes.
    model.tables().failCommand(kAtmBlock, 1);
    const std::string t = view(9, 100, static_cast<int32_t>(kTableTimeout));
    EXPECT_NE(t.find("The Data is INVALID. 0x30C0003\r\n"), std::string::npos) << t;
}

TEST_F(AtmViewTest, DropCountersInTheStatisticsLayout) {
    // The chip-wide ATM drop counters in their own report (its layout is the ATM diagnostic tests').
    EXPECT_EQ(view(10, 0, 0).rfind("    GetAtmDropStat()\n    | wRedDrop         :        0 | wFdDrop", 0),
              0u);
}

}  // namespace
