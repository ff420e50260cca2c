// The framer, timeslot and PRBS commands: reports, statuses, the null buffer and the buffer's bound.
#include <algorithm>
#include <cstdio>

#include "diag/diag_test.h"
#include "vq6192/framer.h"
#include "vq6192/table.h"

namespace diagtest {
namespace {

using vq6192::sim::ChipModel;

constexpr uint32_t kPara = 0x030E0001;  // chip 3, framer module 14, error 1
// Timeslot tables, index (source << 5) | timeslot.
constexpr uint32_t kIngressTable = 119;
constexpr uint32_t kEgressTable = 117;
const std::string kRule = std::string(76, '=') + "\n";

// A record-style line: "    |  ucET3aLosAlarmCur        : %8u \n".
std::string rec(const char *label, unsigned value) {
    char line[80];
    std::snprintf(line, sizeof line, "    |  %-25s: %8u \n", label, value);
    return line;
}

class FramerDiag : public DiagTest {
  protected:
    void setEntry(uint32_t table, uint32_t source, uint32_t ts, uint32_t entry) {
        ASSERT_EQ(VQ6192_Write_Table(kChip, table, (source << 5) | ts, &entry), 0u);
    }
};

TEST_F(FramerDiag, ValueReportsByteForByte) {
    const struct {
        std::function<void(ChipModel &)> setUp;
        std::function<uint32_t(char *)> cmd;
        std::string expected;
        uint32_t status;
    } cases[] = {
        {[](ChipModel &m) { m.poke(0x000E, 0xFFFB); }, [](char *b) { return getfrmtdmmode(kChip, b); },
         framed("GetFrmTDMMode()", " enTDMMode    :    0x1(1)\n"), 0},
        // E1 100 is register channel (1, 1, 16): ingress block 0x24B10 (field 3: mode 3), egress block
        // 0x26B10 (field 3: mode 4). Both directions disagree: error 7 without chip bits, nothing read.
        {[](ChipModel &m) { m.poke(0x26B10, 0xFFFB); }, [](char *b) { return getfrmmode(kChip, 100, 1, b); },
         framed("GetFrmMode()", " reFramerMode    :    0x4(4)\n"), 0},
        {[](ChipModel &m) { m.poke(0x24B10, 0xFFF3), m.poke(0x26B10, 0xFFFB); },
         [](char *b) { return getfrmmode(kChip, 100, 2, b); },
         framed("GetFrmMode()", " reFramerMode    :    0x0(0)\n"), 0x000E0007},
        // E1 40 is (0, 1, TUG-2 5, TU 2), block 0x24340: +4 E1 CRC, +6 E1 FEBE, +8 T1 CRC, +0xA T1 FERR.
        // E1 has no framing error count and T1 no FEBE count: parameter error, ORed into the status.
        {[](ChipModel &m) { m.poke(0x000E, 0xFFF9), m.poke(0x24344, 0x1234), m.poke(0x24346, 0xBEEF); },
         [](char *b) { return getfrmcnts(kChip, 40, b); },
         framed("GetE1FrmCnt()",
                " VQ6192_FRM_CRCERR    :    0x1234(4660)\n VQ6192_FRM_FERR    :    0x0(0)\n"
                " VQ6192_FRM_FEBE    :    0xbeef(48879)\n"),
         kPara},
        {[](ChipModel &m) { m.poke(0x000E, 0xFFFF), m.poke(0x24348, 0x0808), m.poke(0x2434A, 0x0A0A); },
         [](char *b) { return getfrmcnts(kChip, 40, b); },
         framed("GetE1FrmCnt()",
                " VQ6192_FRM_CRCERR    :    0x808(2056)\n VQ6192_FRM_FERR    :    0xa0a(2570)\n"
                " VQ6192_FRM_FEBE    :    0x0(0)\n"),
         kPara},
        {[](ChipModel &m) { m.poke(0x20006, 0xFFFB), m.poke(0x20010, 0xFFFE); },
         [](char *b) { return getrfpenableonoff(kChip, b); },
         framed("GetRfpEnableOnOff()",
                " rbyDropIntEn    :    0x0(0)\n rbyErrIntEn    :    0x1(1)\n"
                " rbyJitVldEn    :    0x1(1)\n rbyShiftEn    :    0x0(0)\n"),
         0},
        {[](ChipModel &m) { m.poke(0x20008, 0xC321); }, [](char *b) { return getrfpdelay(kChip, b); },
         framed("GetRfpDelay()", " rwDelayNum    :    0x4321(17185)\n"), 0},
        // The mapper engine's error insertion (0x20400: rate 3..0, enable 5) prints the timeslot engine's
        // title.
        {[](ChipModel &m) { m.poke(0x20400, 0xFFCA); }, [](char *b) { return getprbserrinsert(kChip, b); },
         framed("GetTsPRBSIns()", " reInsRate    :    0xa(10)\n reInsEnable    :    0x0(0)\n"), 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.expected.substr(kNSep.size(), 40));
        model.reset();
        c.setUp(model);
        uint32_t rc = 1;
        EXPECT_EQ(run(c.cmd, &rc), c.expected);
        EXPECT_EQ(rc, c.status);
    }
    // E1 5 timeslot 3: ingress ATM channel 0x123 at 32k, egress CES channel 21 (PRBS bit 9) at 64k.
    setEntry(kIngressTable, 5, 3, 0xB123);
    setEntry(kEgressTable, 5, 3, 0x9A15);
    expectReports({
        {[](char *b) { return gettscfg(kChip, 1, 5, 3, b); },
         framed("GetTsCfg()",
                " rwChnlDstID    :    0x15(21)\n reSrvType    :    0x3(3)\n"
                " reTsSpeed    :    0x3(3)\n rbyEnable    :    0x1(1)\n")},
        {[](char *b) { return gettscfg(kChip, 0, 5, 3, b); },
         framed("GetTsCfg()",
                " rwChnlDstID    :    0x123(291)\n reSrvType    :    0x2(2)\n"
                " reTsSpeed    :    0x2(2)\n rbyEnable    :    0x1(1)\n")},
    });
}

TEST_F(FramerDiag, RecordReports) {
    // AU pointer bytes H1, Y, H2, F, H3 in bits 7..0 of 0x214C..0x2154.
    poke({{0x214C, 0xFF6A}, {0x214E, 0xFF9B}, {0x2150, 0xFF0A}, {0x2152, 0xFFC3}, {0x2154, 0xFF7E}});
    EXPECT_EQ(run([](char *b) { return getsdhauptr(kChip, b); }),
              rec("ucH1", 106) + rec("ucY_1", 155) + rec("ucY_2", 155) + rec("ucH2", 10) + rec("ucF_1", 195) +
                  rec("ucH3_1", 126) + rec("ucH3_2", 126) + "     PRINT_END\n");

    // E3/T3 framer 2 counters: P = 0x29486 and Q = 0x29606, five words each; the labels end in ';'.
    poke({{0x29486, 1}, {0x29488, 2}, {0x2948A, 3}, {0x2948C, 4}, {0x2948E, 0xFFFF}});
    poke({{0x29606, 6}, {0x29608, 7}, {0x2960A, 8}, {0x2960C, 9}, {0x2960E, 10}});
    EXPECT_EQ(run([](char *b) { return gett3errorstat(kChip, 2, b); }),
              rec("usAT3Ferrcnt;", 1) + rec("usAT3Merrcnt;", 2) + rec("usAT3Pcnt;", 3) +
                  rec("usAT3Cpcnt;", 4) + rec("usAT3Febecnt;", 65535) + rec("usDT3Ferrcnt;", 6) +
                  rec("usDT3Merrcnt;", 7) + rec("usDT3Pcnt;", 8) + rec("usDT3Cpcnt;", 9) +
                  rec("usDT3Febecnt;", 10) + "     PRINT_END\n");

    // A refused framer: zeros, and the refusal returned whole.
    uint32_t rc = 0;
    const std::string text = run([](char *b) { return getfrmet3alms(kChip, 12, b); }, &rc);
    EXPECT_EQ(rc, kPara);
    EXPECT_EQ(text.find("1 \n"), std::string::npos);
}

TEST_F(FramerDiag, PrbsTimeslotListing) {
    const std::string e1Head = kRule + "              E1: eSrv(1: PPP, 2: ATM , 3: CES) SrvChnl(0~max)\n" +
                               "              E1Chnl(0~335), BitMap(0~0xFFFFFFFF)\n" + kRule +
                               "    eSrv    SrvChnl    E1Chnl    BitMap\n";
    const std::string e3Head = kRule + "              E3: eSrv(1: PPP, 2: ATM , 3: CES) SrvChnl(0~max)\n" +
                               "              E3Chnl(336~347), BitMap(0~0xFFFFFFFF)\n" + kRule +
                               "    eSrv    SrvChnl    E3Chnl    BitMap\n";
    // CES entries (En, module 00, 64k) with channel bit 9: channel 21 on E1 7 timeslots 1 and 2, channel
    // 331 on E1 300 timeslot 31. Not listed: CES without bit 9 (E1 8), ATM with it (E1 9), disabled (10).
    const struct {
        uint32_t source, ts, entry;
    } entries[] = {{7, 1, 0x9A15}, {7, 2, 0x9A15}, {300, 31, 0x9B4B},
                   {8, 0, 0x9815}, {9, 0, 0xBA15}, {10, 0, 0x1A15}};
    for (const auto &e : entries) {
        setEntry(kIngressTable, e.source, e.ts, e.entry);
        setEntry(kEgressTable, e.source, e.ts, e.entry);
    }
    const std::string both = e1Head + "      3         21          7    0x       6\n" +
                             "      3        331        300    0x80000000\n" + kRule + e3Head +
                             "      3          7\n" + kRule;  // E3 row n reads source n of the E1/T1 tables
    setEntry(kEgressTable, 7, 1, 0x7800);                     // the directions now disagree on E1 7
    expectReports({
        {[](char *b) { return getprbsts(kChip, 0, b); }, both},
        {[](char *b) { return getprbsts(kChip, 2, b); },
         e1Head + "      3        331        300    0x80000000\n" + kRule + e3Head + kRule, 0x030E0007},
    });
}

TEST_F(FramerDiag, WithoutABuffer) {
    // Framed values query the chip and return its status; record reports and the PRBS listing return 0
    // and touch nothing.
    model.poke(0x000E, 0xFFF9);  // E1: the counters return a parameter error
    expectUnbuffered({
        {"getfrmmode", [] { return getfrmmode(kChip, 100, 0, nullptr); }, true, 0},
        {"getfrmmode, bad channel", [] { return getfrmmode(kChip, 336, 0, nullptr); }, false, kPara},
        {"getfrmcnts", [] { return getfrmcnts(kChip, 40, nullptr); }, true, kPara},
        {"gettscfg", [] { return gettscfg(kChip, 0, 5, 3, nullptr); }, true, 0},
        {"getfrmet3alms, bad framer", [] { return getfrmet3alms(kChip, 12, nullptr); }, false, 0},
        {"getprbsts", [] { return getprbsts(kChip, 2, nullptr); }, false, 0},
    });
}

TEST_F(FramerDiag, LongestPrbsListing) {
    // Timeslot 0 of every E1/T1 carries a CES channel under PRBS test.
    for (uint32_t source = 0; source < 336; ++source) {
        setEntry(kIngressTable, source, 0, 0x9A00 | source);
    }
    const std::string text = run([](char *b) { return getprbsts(kChip, 0, b); });
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 5 + 336 + 1 + 5 + 12 + 1);
    EXPECT_NE(text.find("      3        335        335    0x       1\n"), std::string::npos);
}

}  // namespace
}  // namespace diagtest
