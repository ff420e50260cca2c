// The framer, timeslot and PRBS commands: reports byte for byte from registers and table entries set
// in the chip model, what they do without a buffer, the status they return, and the buffer's bound.
#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "diag/registry.h"
#include "support/test_support.h"
#include "vq6192/framer.h"
#include "vq6192/table.h"

namespace {

using vq6192::sim::BusAccess;
using vq6192::sim::ChipModel;

// Framer status codes of chip 3: ((3 << 24) & 0x0F000000) + (14 << 16) + error.
constexpr uint32_t kPara = 0x030E0001;
// The frame mode read in both directions disagrees: error 7 without chip bits.
constexpr uint32_t kModeMismatch = 0x000E0007;

// Timeslot tables: ingress and egress E1/T1 tables; index (source << 5) | timeslot.
constexpr uint32_t kIngressTable = 119;
constexpr uint32_t kEgressTable = 117;

const std::string kSep = "n-------------------------------------------------\n";

std::string framed(const std::string &title, const std::vector<std::string> &lines) {
    std::string s = kSep + "        " + title + "\n" + kSep;
    for (const std::string &l : lines) {
        s += l;
    }
    return s + kSep;
}

class FramerDiag : public vqtest::ChipTest {
  protected:
    std::string run(const std::function<uint32_t(char *)> &cmd, uint32_t *status = nullptr) {
        std::vector<char> buf(VQ6192_DIAG_BUF_SIZE, '#');
        const uint32_t rc = cmd(buf.data());
        if (status != nullptr) {
            *status = rc;
        }
        return std::string(buf.data());
    }

    std::vector<BusAccess> traced(const std::function<void()> &op) {
        model.clearTrace();
        model.setTrace(true);
        op();
        model.setTrace(false);
        return model.trace();
    }

    void setEntry(uint32_t table, uint32_t source, uint32_t ts, uint32_t entry) {
        ASSERT_EQ(VQ6192_Write_Table(kChip, table, (source << 5) | ts, &entry), 0u);
    }
    void setBoth(uint32_t source, uint32_t ts, uint32_t entry) {
        setEntry(kIngressTable, source, ts, entry);
        setEntry(kEgressTable, source, ts, entry);
    }
};

TEST_F(FramerDiag, FramedReportsByteForByte) {
    struct Case {
        const char *what;
        std::function<void(ChipModel &)> setUp;
        std::function<uint32_t(char *)> cmd;
        std::string expected;
        uint32_t status;
    };
    const uint32_t c = kChip;
    const Case cases[] = {
        // 0x000E: the TDM mode reads from bit 1 (bit 2 clear here).
        {"TDM mode", [](ChipModel &m) { m.poke(0x000E, 0xFFFB); },
         [&](char *b) { return getfrmtdmmode(c, b); },
         framed("GetFrmTDMMode()", {" enTDMMode    :    0x1(1)\n"}), 0},
        // E1 100 is register channel (1, 1, 16): ingress block 0x24B10, egress block 0x26B10.
        {"frame mode, ingress field 3", [](ChipModel &m) { m.poke(0x24B10, 0xFFF3); },
         [&](char *b) { return getfrmmode(c, 100, 0, b); },
         framed("GetFrmMode()", {" reFramerMode    :    0x3(3)\n"}), 0},
        {"frame mode, egress field 3", [](ChipModel &m) { m.poke(0x26B10, 0xFFFB); },
         [&](char *b) { return getfrmmode(c, 100, 1, b); },
         framed("GetFrmMode()", {" reFramerMode    :    0x4(4)\n"}), 0},
        {"frame mode, directions disagree",
         [](ChipModel &m) {
             m.poke(0x24B10, 0xFFF3);
             m.poke(0x26B10, 0xFFFB);
         },
         [&](char *b) { return getfrmmode(c, 100, 2, b); },
         framed("GetFrmMode()", {" reFramerMode    :    0x0(0)\n"}), kModeMismatch},
        // Clock source of E1 7: 0x2174 bits 5..0; E3 11: 0x2454 bits 4..0.
        {"E1 clock source", [](ChipModel &m) { m.poke(0x2174, 0xFFE7); },
         [&](char *b) { return getfrmclksource(c, 7, b); },
         framed("GetFrmClkSource()", {" rwClkLinkNum    :    0x27(39)\n"}), 0},
        {"E3 transmit clock source", [](ChipModel &m) { m.poke(0x2454, 0xFFF9); },
         [&](char *b) { return getfrme3txclksource(c, 11, b); },
         framed("GetFrmET3TxClkSource()", {" rwClkLinkNum    :    0x19(25)\n"}), 0},
        {"E1 clock source, channel out of range", [](ChipModel &) {},
         [&](char *b) { return getfrmclksource(c, 336, b); },
         framed("GetFrmClkSource()", {" rwClkLinkNum    :    0x0(0)\n"}), kPara},
        // E1 5 alarms at 0x24062: RAI bit 0, AIS bit 1, MFOOF bit 2, BFOOF bit 3.
        {"E1 alarms", [](ChipModel &m) { m.poke(0x24062, 0xFFF5); },
         [&](char *b) { return getfrmalms(c, 5, b); },
         framed("GetFrmAlm()",
                {" VQ6192_FRAMER_BFOOF    :    0x0(0)\n", " VQ6192_FRAMER_MFOOF    :    0x1(1)\n",
                 " VQ6192_FRAMER_RAI    :    0x1(1)\n", " VQ6192_FRAMER_AIS    :    0x0(0)\n"}),
         0},
        // E1 40 is (0, 1, TUG-2 5, TU 2), block 0x24340: +4 E1 CRC, +6 E1 FEBE, +8 T1 CRC, +0xA T1 FERR.
        // E1 has no framing error counter and T1 no far-end block error counter: parameter error.
        {"E1 counters",
         [](ChipModel &m) {
             m.poke(0x000E, 0xFFF9);
             m.poke(0x24344, 0x1234);
             m.poke(0x24346, 0xBEEF);
             m.poke(0x24348, 0x0808);
             m.poke(0x2434A, 0x0A0A);
         },
         [&](char *b) { return getfrmcnts(c, 40, b); },
         framed("GetE1FrmCnt()",
                {" VQ6192_FRM_CRCERR    :    0x1234(4660)\n", " VQ6192_FRM_FERR    :    0x0(0)\n",
                 " VQ6192_FRM_FEBE    :    0xbeef(48879)\n"}),
         kPara},
        {"T1 counters",
         [](ChipModel &m) {
             m.poke(0x000E, 0xFFFF);
             m.poke(0x24344, 0x1234);
             m.poke(0x24346, 0xBEEF);
             m.poke(0x24348, 0x0808);
             m.poke(0x2434A, 0x0A0A);
         },
         [&](char *b) { return getfrmcnts(c, 40, b); },
         framed("GetE1FrmCnt()",
                {" VQ6192_FRM_CRCERR    :    0x808(2056)\n", " VQ6192_FRM_FERR    :    0xa0a(2570)\n",
                 " VQ6192_FRM_FEBE    :    0x0(0)\n"}),
         kPara},
        // E1 252 lies in VC-4 4, which has no counters.
        {"counters beyond the fourth VC-4", [](ChipModel &) {},
         [&](char *b) { return getfrmcnts(c, 252, b); },
         framed("GetE1FrmCnt()", {" VQ6192_FRM_CRCERR    :    0x0(0)\n", " VQ6192_FRM_FERR    :    0x0(0)\n",
                                  " VQ6192_FRM_FEBE    :    0x0(0)\n"}),
         kPara},
        // Switch-side registers.
        {"VC-4 2 payload", [](ChipModel &m) { m.poke(0x2030, 0xFFFE); },
         [&](char *b) { return gettspayload(c, 2, b); },
         framed("GetTSPayLoad()", {" rePayLoad    :    0x2(2)\n"}), 0},
        {"egress source 2",
         [](ChipModel &m) {
             m.poke(0x2034, 0xFFFB);
             m.poke(0x2036, 0xFFF4);
         },
         [&](char *b) { return gettssource(c, 1, 2, b); },
         framed("GetTSSource()", {" reSource    :    0x1(1)\n"}), 0},
        {"TSS mode of E1 37", [](ChipModel &m) { m.poke(0x2004, 0x0020); },
         [&](char *b) { return gettssmode(c, 37, b); }, framed("GetTSSMode()", {" eTSMode    :    0x1(1)\n"}),
         0},
        // Telecom-bus loops: tributary 5 at 0x2A1C0 (in bit 5, out bit 2); chip level 0x2A020 (in bit 1,
        // out bit 0). The report is 2 out + in.
        {"tributary telecom-bus loop", [](ChipModel &m) { m.poke(0x2A1C0, 0xFFFB); },
         [&](char *b) { return gethtbloop(c, 0, 5, 1, b); },
         framed("GetHTBLoop()", {" reLoopMode    :    0x1(1)\n"}), 0},
        {"chip telecom-bus loop", [](ChipModel &m) { m.poke(0x2A020, 0xFFFD); },
         [&](char *b) { return gethtbloop(c, 0, 5, 0, b); },
         framed("GetHTBLoop()", {" reLoopMode    :    0x2(2)\n"}), 0},
        {"egress default byte", [](ChipModel &m) { m.poke(0x2164, 0xA55A); },
         [&](char *b) { return gettsegdefaultbyte(c, 9, b); },
         framed("GetTsEgDefaultByte()", {" rbyValue    :    0x5a(90)\n"}), 0},
        // E3/T3 timeslot loop of e3 4: 0x25AC bit 4 out, 0x25AE bit 4 in.
        {"E3 timeslot loop",
         [](ChipModel &m) {
             m.poke(0x25AC, 0x0010);
             m.poke(0x25AE, 0xFFEF);
         },
         [&](char *b) { return gettsloop(c, 1, 4, b); }, framed("GetTsLoop()", {" reLoop    :    0x2(2)\n"}),
         0},
        {"RFP reset", [](ChipModel &m) { m.poke(0x20004, 0x0002); },
         [&](char *b) { return getresetrfpstate(c, b); },
         framed("GetResetRfpState()", {" rbyEn    :    0x1(1)\n"}), 0},
        {"RFP enables",
         [](ChipModel &m) {
             m.poke(0x20006, 0xFFFB);
             m.poke(0x20010, 0xFFFE);
         },
         [&](char *b) { return getrfpenableonoff(c, b); },
         framed("GetRfpEnableOnOff()", {" rbyDropIntEn    :    0x0(0)\n", " rbyErrIntEn    :    0x1(1)\n",
                                        " rbyJitVldEn    :    0x1(1)\n", " rbyShiftEn    :    0x0(0)\n"}),
         0},
        {"RFP delay", [](ChipModel &m) { m.poke(0x20008, 0xC321); },
         [&](char *b) { return getrfpdelay(c, b); },
         framed("GetRfpDelay()", {" rwDelayNum    :    0x4321(17185)\n"}), 0},
        // Error insertion: timeslot engine 0x257C rate bits 6..3, enable bit 8; mapper engine 0x20400
        // rate bits 3..0, enable bit 5.
        {"timeslot PRBS error insertion", [](ChipModel &m) { m.poke(0x257C, 0xFFCF); },
         [&](char *b) { return gettsprbsins(c, b); },
         framed("GetTsPRBSIns()", {" reInsRate    :    0x9(9)\n", " reInsEnable    :    0x1(1)\n"}), 0},
        {"mapper PRBS error insertion", [](ChipModel &m) { m.poke(0x20400, 0xFFCA); },
         [&](char *b) { return getprbserrinsert(c, b); },
         framed("GetTsPRBSIns()", {" reInsRate    :    0xa(10)\n", " reInsEnable    :    0x0(0)\n"}), 0},
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(k.what);
        model.reset();
        k.setUp(model);
        uint32_t rc = 1;
        EXPECT_EQ(run(k.cmd, &rc), k.expected);
        EXPECT_EQ(rc, k.status);
    }
}

TEST_F(FramerDiag, TimeslotEntries) {
    // E1 5 timeslot 3: ingress ATM channel 0x123 at 32k, egress CES channel 21 under PRBS at 64k.
    setEntry(kIngressTable, 5, 3, 0xB123);
    setEntry(kEgressTable, 5, 3, 0x9A15);
    struct Case {
        uint32_t dir;
        std::string expected;
        uint32_t status;
    };
    const Case cases[] = {
        {0,
         framed("GetTsCfg()", {" rwChnlDstID    :    0x123(291)\n", " reSrvType    :    0x2(2)\n",
                               " reTsSpeed    :    0x2(2)\n", " rbyEnable    :    0x1(1)\n"}),
         0},
        {1,
         framed("GetTsCfg()", {" rwChnlDstID    :    0x15(21)\n", " reSrvType    :    0x3(3)\n",
                               " reTsSpeed    :    0x3(3)\n", " rbyEnable    :    0x1(1)\n"}),
         0},
        // The directions disagree: error 7 and nothing decoded.
        {2,
         framed("GetTsCfg()", {" rwChnlDstID    :    0x0(0)\n", " reSrvType    :    0x0(0)\n",
                               " reTsSpeed    :    0x0(0)\n", " rbyEnable    :    0x0(0)\n"}),
         0x030E0007},
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(k.dir);
        uint32_t rc = 1;
        EXPECT_EQ(run([&](char *b) { return gettscfg(kChip, k.dir, 5, 3, b); }, &rc), k.expected);
        EXPECT_EQ(rc, k.status);
    }
}

TEST_F(FramerDiag, RecordReports) {
    // E3/T3 framer 3: S0 0x2B66A, S1 0x2B66C, E3 A 0x292C4, E3 D 0x29384, T3 A 0x294A4, T3 D 0x29624.
    model.poke(0x2B66A, 0xFFF5);
    model.poke(0x2B66C, 0xFFB6);
    model.poke(0x292C4, 0xFFF9);
    model.poke(0x29384, 0xFFF6);
    model.poke(0x294A4, 0xFF95);
    model.poke(0x29624, 0xFFEA);
    EXPECT_EQ(run([](char *b) { return getfrmet3alms(kChip, 3, b); }),
              "    |  ucET3aLosAlarmCur        :        0 \n"
              "    |  ucET3aAll0AlarmCur       :        1 \n"
              "    |  ucET3aAll1AlarmCur       :        0 \n"
              "    |  ucET3aLocAlarmCur        :        1 \n"
              "    |  ucET3aSyncfoAlarmHis     :        0 \n"
              "    |  ucET3aSyncfuAlarmHis     :        1 \n"
              "    |  ucET3aLosAlarmHis        :        0 \n"
              "    |  ucET3aAll0AlarmHis       :        1 \n"
              "    |  ucET3aAll1AlarmHis       :        1 \n"
              "    |  ucET3aLocAlarmHis        :        0 \n"
              "    |  ucE3AAll0AlarmHis        :        1 \n"
              "    |  ucE3AAisAlarmHis         :        0 \n"
              "    |  ucE3AOofAlarmHis         :        0 \n"
              "    |  ucE3ARaiAlarmHis         :        1 \n"
              "    |  ucE3DAll0AlarmHis        :        0 \n"
              "    |  ucE3DAisAlarmHis         :        1 \n"
              "    |  ucE3DOofAlarmHis         :        1 \n"
              "    |  ucE3DRaiAlarmHis         :        0 \n"
              "    |  ucT3ARdiAlarmHis         :        0 \n"
              "    |  ucT3AAll0AlarmHis        :        0 \n"
              "    |  ucT3AAll1AlarmHis        :        1 \n"
              "    |  ucT3AAisAlarmHis         :        0 \n"
              "    |  ucT3AIdleAlarmHis        :        1 \n"
              "    |  ucT3AOofAlarmHis         :        0 \n"
              "    |  ucT3ALofAlarmHis         :        1 \n"
              "    |  ucT3DRdiAlarmHis         :        1 \n"
              "    |  ucT3DAll0AlarmHis        :        1 \n"
              "    |  ucT3DAll1AlarmHis        :        0 \n"
              "    |  ucT3DAisAlarmHis         :        1 \n"
              "    |  ucT3DIdleAlarmHis        :        0 \n"
              "    |  ucT3DOofAlarmHis         :        1 \n"
              "    |  ucT3DLofAlarmHis         :        0 \n"
              "     PRINT_END\n");

    // E3/T3 framer 2 counters: P = 0x29486, Q = 0x29606, five words each.
    const uint16_t p[5] = {1, 2, 3, 4, 0xFFFF};
    const uint16_t q[5] = {6, 7, 8, 9, 10};
    for (uint32_t k = 0; k < 5; ++k) {
        model.poke(0x29486 + 2 * k, p[k]);
        model.poke(0x29606 + 2 * k, q[k]);
    }
    EXPECT_EQ(run([](char *b) { return gett3errorstat(kChip, 2, b); }),
              "    |  usAT3Ferrcnt;            :        1 \n"
              "    |  usAT3Merrcnt;            :        2 \n"
              "    |  usAT3Pcnt;               :        3 \n"
              "    |  usAT3Cpcnt;              :        4 \n"
              "    |  usAT3Febecnt;            :    65535 \n"
              "    |  usDT3Ferrcnt;            :        6 \n"
              "    |  usDT3Merrcnt;            :        7 \n"
              "    |  usDT3Pcnt;               :        8 \n"
              "    |  usDT3Cpcnt;              :        9 \n"
              "    |  usDT3Febecnt;            :       10 \n"
              "     PRINT_END\n");

    // AU pointer bytes H1, Y, H2, F, H3 in bits 7..0 of 0x214C..0x2154.
    model.poke(0x214C, 0xFF6A);
    model.poke(0x214E, 0xFF9B);
    model.poke(0x2150, 0xFF0A);
    model.poke(0x2152, 0xFFC3);
    model.poke(0x2154, 0xFF7E);
    EXPECT_EQ(run([](char *b) { return getsdhauptr(kChip, b); }),
              "    |  ucH1                     :      106 \n"
              "    |  ucY_1                    :      155 \n"
              "    |  ucY_2                    :      155 \n"
              "    |  ucH2                     :       10 \n"
              "    |  ucF_1                    :      195 \n"
              "    |  ucH3_1                   :      126 \n"
              "    |  ucH3_2                   :      126 \n"
              "     PRINT_END\n");

    // A refused framer prints zeros and returns the refusal whole.
    uint32_t rc = 0;
    const std::string text = run([](char *b) { return getfrmet3alms(kChip, 12, b); }, &rc);
    EXPECT_EQ(rc, kPara);
    EXPECT_EQ(text.find("1 \n"), std::string::npos);
    const std::string first = "    |  ucET3aLosAlarmCur        :        0 \n";
    EXPECT_EQ(text.substr(0, first.size()), first);
}

TEST_F(FramerDiag, PrbsTimeslotListing) {
    const std::string rule = "============================================================================\n";
    const std::string e1Head = rule +
                               "              E1: eSrv(1: PPP, 2: ATM , 3: CES) SrvChnl(0~max)\n"
                               "              E1Chnl(0~335), BitMap(0~0xFFFFFFFF)\n" +
                               rule + "    eSrv    SrvChnl    E1Chnl    BitMap\n";
    const std::string e3Head = rule +
                               "              E3: eSrv(1: PPP, 2: ATM , 3: CES) SrvChnl(0~max)\n"
                               "              E3Chnl(336~347), BitMap(0~0xFFFFFFFF)\n" +
                               rule + "    eSrv    SrvChnl    E3Chnl    BitMap\n";
    uint32_t rc = 1;
    EXPECT_EQ(run([](char *b) { return getprbsts(kChip, 2, b); }, &rc), e1Head + rule + e3Head + rule);
    EXPECT_EQ(rc, 0u);

    // CES entries (En, module 00, 64k) whose channel field has bit 9: channel 21 on E1 7 timeslots 1
    // and 2, channel 331 on E1 300 timeslot 31. Not listed: a CES entry without bit 9 (E1 8), an ATM
    // entry with it (E1 9), a disabled CES entry with it (E1 10).
    setBoth(7, 1, 0x9A15);
    setBoth(7, 2, 0x9A15);
    setBoth(300, 31, 0x9B4B);
    setBoth(8, 0, 0x9815);
    setBoth(9, 0, 0xBA15);
    setBoth(10, 0, 0x1A15);
    // The E3/T3 rows take the E3 number as the source of the E1/T1 tables, so E1 7 shows as E3 7.
    EXPECT_EQ(run([](char *b) { return getprbsts(kChip, 2, b); }, &rc),
              e1Head +
                  "      3         21          7    0x       6\n"
                  "      3        331        300    0x80000000\n" +
                  rule + e3Head + "      3          7\n" + rule);
    EXPECT_EQ(rc, 0u);

    // The directions disagree on E1 7 timeslot 1: error 7 for that source, the rest still listed.
    setEntry(kEgressTable, 7, 1, 0x7800);
    EXPECT_EQ(run([](char *b) { return getprbsts(kChip, 2, b); }, &rc),
              e1Head + "      3        331        300    0x80000000\n" + rule + e3Head + rule);
    EXPECT_EQ(rc, 0x030E0007u);
    // The ingress tables alone still show it.
    EXPECT_EQ(run([](char *b) { return getprbsts(kChip, 0, b); }, &rc),
              e1Head +
                  "      3         21          7    0x       6\n"
                  "      3        331        300    0x80000000\n" +
                  rule + e3Head + "      3          7\n" + rule);
    EXPECT_EQ(rc, 0u);

    // A direction out of range: every query refused, the headers alone.
    EXPECT_EQ(run([](char *b) { return getprbsts(kChip, 3, b); }, &rc), e1Head + rule + e3Head + rule);
    EXPECT_EQ(rc, kPara);
}

TEST_F(FramerDiag, WithoutABuffer) {
    // Framed values query the chip and return its status; record reports and the PRBS listing return 0
    // and touch nothing.
    model.poke(0x000E, 0xFFF9);  // E1: the counters return a parameter error
    struct Case {
        const char *what;
        std::function<uint32_t()> cmd;
        bool queries;
        uint32_t status;
    };
    const Case cases[] = {
        {"getfrmtdmmode", [] { return getfrmtdmmode(kChip, nullptr); }, true, 0},
        {"getfrmmode", [] { return getfrmmode(kChip, 100, 0, nullptr); }, true, 0},
        {"getfrmmode, bad channel", [] { return getfrmmode(kChip, 336, 0, nullptr); }, false, kPara},
        {"getfrmcnts", [] { return getfrmcnts(kChip, 40, nullptr); }, true, kPara},
        {"getfrmalms", [] { return getfrmalms(kChip, 5, nullptr); }, true, 0},
        {"gettscfg", [] { return gettscfg(kChip, 0, 5, 3, nullptr); }, true, 0},
        {"gettsloop", [] { return gettsloop(kChip, 1, 4, nullptr); }, true, 0},
        {"getrfpdelay", [] { return getrfpdelay(kChip, nullptr); }, true, 0},
        {"getprbserrinsert", [] { return getprbserrinsert(kChip, nullptr); }, true, 0},
        {"getfrmet3alms", [] { return getfrmet3alms(kChip, 3, nullptr); }, false, 0},
        {"getfrmet3alms, bad framer", [] { return getfrmet3alms(kChip, 12, nullptr); }, false, 0},
        {"gett3errorstat", [] { return gett3errorstat(kChip, 2, nullptr); }, false, 0},
        {"getsdhauptr", [] { return getsdhauptr(kChip, nullptr); }, false, 0},
        {"getprbsts", [] { return getprbsts(kChip, 2, nullptr); }, false, 0},
        {"getprbsts, bad direction", [] { return getprbsts(kChip, 3, nullptr); }, false, 0},
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(k.what);
        capture.clear();
        uint32_t rc = 1;
        const auto t = traced([&] { rc = k.cmd(); });
        EXPECT_EQ(rc, k.status);
        EXPECT_EQ(!t.empty(), k.queries) << t.size() << " bus accesses";
        if (!k.queries && k.status == 0) {
            EXPECT_TRUE(capture.traceTexts().empty());
        }
    }
}

TEST_F(FramerDiag, NoCommandWritesPastTheBuffer) {
    // Every framer and chip health command, on a chip with every timeslot of every E1/T1 under
    // PRBS test (the longest listing), into a buffer of exactly 48128 bytes followed by a guard.
    for (uint32_t source = 0; source < 336; ++source) {
        setEntry(kIngressTable, source, 0, 0x9A00 | (source & 0x1FF));
    }
    constexpr size_t kGuard = 4096;
    std::vector<const vq::diag::Command *> rows;
    for (const vq::diag::Command &cmd : vq::diag::framerCommands()) {
        rows.push_back(&cmd);
    }
    for (const char *name :
         {"getversion", "getchipstatus", "getpllpowerdown", "getddrfifostats", "getddrcntstats",
          "getddrteststats", "getsdstxclksel", "gete3outclksel", "getmacclksel", "getclkdetectsel",
          "getdieid", "getsrvpowerdownen", "getsrvpdstat"}) {
        rows.push_back(vq::diag::findCommand(name));
        ASSERT_NE(rows.back(), nullptr) << name;
    }
    {
        for (const vq::diag::Command *row : rows) {
            const vq::diag::Command &cmd = *row;
            SCOPED_TRACE(cmd.name);
            std::vector<vq::diag::ArgValue> args(cmd.argc);
            args[0].u32 = kChip;
            std::vector<char> buf(VQ6192_DIAG_BUF_SIZE + kGuard, '#');
            cmd.invoke(args.data(), buf.data());
            const auto end = std::find(buf.begin(), buf.begin() + VQ6192_DIAG_BUF_SIZE, '\0');
            EXPECT_NE(end, buf.begin() + VQ6192_DIAG_BUF_SIZE) << "text ends inside the buffer";
            EXPECT_EQ(std::count(buf.begin() + VQ6192_DIAG_BUF_SIZE, buf.end(), '#'),
                      static_cast<long>(kGuard));
        }
    }
    std::vector<char> buf(VQ6192_DIAG_BUF_SIZE, '#');
    getprbsts(kChip, 0, buf.data());
    const std::string text(buf.data());
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 5 + 336 + 1 + 5 + 12 + 1);
    EXPECT_NE(text.find("      3        335        335    0x       1\n"), std::string::npos);
}

}  // namespace
