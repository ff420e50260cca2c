// The chip health commands: their reports byte for byte from values set in the chip model, what they
// do without a buffer, the status they return, and the bound of the buffer.
#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "support/test_support.h"
#include "vq6192/chip.h"
#include "vq6192/sim/chip_control.h"

namespace {

using vq6192::sim::BusAccess;
using vq6192::sim::BusOp;
using vq6192::sim::ChipControlBlock;
using vq6192::sim::ChipModel;

constexpr uint32_t kBadChip = 264;
// Status codes: ((chip << 24) & 0x0F000000) + (module BASE << 16) + error.
constexpr uint32_t kBadChipPara = 0x08010001;
constexpr uint32_t kFailed = 0x03010007;

class ChipDiag : public vqtest::ChipTest {
  protected:
    ChipControlBlock &control() { return model.block<ChipControlBlock>(); }

    // Runs a command into a fresh buffer and returns its text.
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
};

const char kSep[] = "n-------------------------------------------------\n";

TEST_F(ChipDiag, FramedReportsByteForByte) {
    struct Case {
        const char *what;
        std::function<void(ChipModel &, ChipControlBlock &)> setUp;
        std::function<uint32_t(char *)> cmd;
        std::string expected;
        uint32_t status;
    };
    const uint32_t chip = kChip;
    const std::string sep = kSep;
    const Case cases[] = {
        {"version", [](auto &, auto &c) { c.setVersion(0x6192, 0x0A1B); },
         [&](char *b) { return getversion(chip, b); },
         sep + "        GetVersion()\n" + sep + "n Ver:   VQ6192V0a1b DRV REL 2.5.600  \n  " + sep, 0},
        {"register test passes", [](auto &, auto &) {}, [&](char *b) { return getchipstatus(chip, b); },
         sep + "        GetChipStatus()\n" + sep + " byChipStatus    :    0x0(0)\n" + sep, 0},
        {"register test fails", [](auto &, auto &c) { c.setNonInvertingBits(0x0100); },
         [&](char *b) { return getchipstatus(chip, b); },
         sep + "        GetChipStatus()\n" + sep + " byChipStatus    :    0x1(1)\n" + sep, kFailed},
        // 0x08 bit 13 is the SerDes transmit clock; every other bit set the opposite way.
        {"SerDes transmit clock", [](auto &m, auto &) { m.poke(0x08, 0x2000); },
         [&](char *b) { return getsdstxclksel(chip, b); },
         sep + "        GetSdsTxclkSel()\n" + sep + " reClkSel    :    0x1(1)\n" + sep, 0},
        // 0x240: bit 1 E3 output clock, bit 15 MAC clock, bit 0 clock detection.
        {"E3 output clock", [](auto &m, auto &) { m.poke(0x240, 0x0002); },
         [&](char *b) { return gete3outclksel(chip, b); },
         sep + "        GetE3OutClkSel()\n" + sep + " reOutClkSel    :    0x1(1)\n" + sep, 0},
        {"MAC clock", [](auto &m, auto &) { m.poke(0x240, 0x8000); },
         [&](char *b) { return getmacclksel(chip, b); },
         sep + "        GetMacClkSel()\n" +
             "    0: CDK_FE_VQ6192_MAC_CLK_SERDES, 1: CDK_FE_VQ6192_MAC_CLK_PLL\n" + sep +
             " reMacClkSel    :    0x1(1)\n" + sep,
         0},
        {"clock detection", [](auto &m, auto &) { m.poke(0x240, 0xFFFE); },
         [&](char *b) { return getclkdetectsel(chip, b); },
         sep + "        GetClkDetectSel()\n" +
             "    0: CDK_FE_VQ6192_CLK_DETECT_SERDES, 1: CDK_FE_VQ6192_CLK_DETECT_HW\n" + sep +
             " reClkDetectSel    :    0x0(0)\n" + sep,
         0},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        model.reset();
        control().setNonInvertingBits(0);
        c.setUp(model, control());
        uint32_t rc = 0;
        EXPECT_EQ(run(c.cmd, &rc), c.expected);
        EXPECT_EQ(rc, c.status);
    }
}

TEST_F(ChipDiag, FieldTablesByteForByte) {
    // PLL 2 control register 0x6A: bits 5, 4, 3, 2, 0 are 1, 0, 1, 0, 1; every other bit set.
    model.poke(0x6A, 0xFFE9);
    EXPECT_EQ(run([](char *b) { return getpllpowerdown(kChip, 2, b); }),
              "        GetPLLPowerDown()\n"
              "    | wSysPllVcoPd     : 0x1       (1         ) \n"
              "    | wSysPllPdivPd    : 0x0       (0         ) \n"
              "    | wSysPllPhasePd   : 0x1       (1         ) \n"
              "    | wSysPllDsmPd     : 0x0       (0         ) \n"
              "    | wSysPllPd        : 0x1       (1         ) \n"
              "     PRINT_END\n");

    // DDR CRC counters at 0xC128 + 8k.
    const uint16_t counts[9] = {1, 0x22, 0x333, 0x4444, 5, 6, 7, 8, 0xFFFF};
    for (uint32_t k = 0; k < 9; ++k) {
        model.poke(0xC128 + 8 * k, counts[k]);
    }
    EXPECT_EQ(run([](char *b) { return getddrcntstats(kChip, b); }),
              "        GetDDRCntStats()\n"
              "    | wDDR2CIMACRCERRCNT        : 0x1       (1         )  \n"
              "    | wDDR2CPWE3CRCERRCNT       : 0x22      (34        )  \n"
              "    | wDDR2CATMCRCERRCNT        : 0x333     (819       )  \n"
              "    | wDDR2CCESICRCERRCNT       : 0x4444    (17476     )  \n"
              "    | wDDR2CCESECRCERRCNT       : 0x5       (5         )  \n"
              "    | wDDR2CCRPCRCERRCNT        : 0x6       (6         )  \n"
              "    | wDDR2CPPPICRCERRCNT       : 0x7       (7         )  \n"
              "    | wDDR2CPKTCRCERRCNT        : 0x8       (8         )  \n"
              "    | wDDR2CPPPECRCERRCNT       : 0xffff    (65535     )  \n"
              "     PRINT_END\n");

    // DDR test state: 0xC036 next 5, current 0xA, step 6 (bit 7 and the done and error bits set too).
    model.poke(0xC036, 0x5AEF);
    model.poke(0xC102, 0xF9AB);
    model.poke(0xC104, 0xFC42);
    model.poke(0xC038, 0x0ABC);
    model.poke(0xC03A, 0xDEF0);
    for (uint32_t k = 0; k < 4; ++k) {
        model.poke(0xC040 + 2 * k, static_cast<uint16_t>(0x1111 * (k + 1)));
        model.poke(0xC048 + 2 * k, static_cast<uint16_t>(0xAAA0 + k));
    }
    EXPECT_EQ(run([](char *b) { return getddrteststats(kChip, b); }),
              "        GetDDRTestStats()\n"
              "    | wDdr2cTestCurrSt          : 0xa       (10        )  \n"
              "    | wDdr2cTestNextSt          : 0x5       (5         )  \n"
              "    | wDdr2cRrCurrSt            : 0x1ab     (427       )  \n"
              "    | wDdr2cRrNextSt            : 0x442     (1090      )  \n"
              "    | dwScanErrAddr             : 0xabcdef0 (180150000 )  \n"
              "    | wScanErrStep              : 0x6       (6         )  \n"
              "    | awScanErrRData[0]         : 0x1111    (4369      )  \n"
              "    | awScanErrRData[1]         : 0x2222    (8738      )  \n"
              "    | awScanErrRData[2]         : 0x3333    (13107     )  \n"
              "    | awScanErrRData[3]         : 0x4444    (17476     )  \n"
              "    | awScanExpRData[0]         : 0xaaa0    (43680     )  \n"
              "    | awScanExpRData[1]         : 0xaaa1    (43681     )  \n"
              "    | awScanExpRData[2]         : 0xaaa2    (43682     )  \n"
              "    | awScanExpRData[3]         : 0xaaa3    (43683     )  \n"
              "     PRINT_END\n");

    ChipControlBlock::DieId id;
    id.ctrl = 0xFFF6;  // read protect 0, write protect 1, read done 1, write done 0
    id.crc = 0xFEA5;   // CRC right 0, CRC 0xA5
    id.words = {0x0101, 0x0202, 0x0303, 0x0404, 0x0505, 0x0606, 0x0707, 0xFFEA};
    control().setDieId(id);
    EXPECT_EQ(run([](char *b) { return getdieid(kChip, b); }),
              "        GetDieID()\n"
              "    | byRead_protect_out        : 0x0       (0         )  \n"
              "    | byWrite_protect_out       : 0x1       (1         )  \n"
              "    | byDieId_read_done         : 0x1       (1         )  \n"
              "    | byDieId_write_done        : 0x0       (0         )  \n"
              "    | byDieId_crc_right         : 0x0       (0         )  \n"
              "    | byDieId_crc               : 0xa5      (165       )  \n"
              "    | byDieId_out_0             : 0x101     (257       )  \n"
              "    | byDieId_out_1             : 0x202     (514       )  \n"
              "    | byDieId_out_2             : 0x303     (771       )  \n"
              "    | byDieId_out_3             : 0x404     (1028      )  \n"
              "    | byDieId_out_4             : 0x505     (1285      )  \n"
              "    | byDieId_out_5             : 0x606     (1542      )  \n"
              "    | byDieId_out_6             : 0x707     (1799      )  \n"
              "    | byDieId_out_7             : 0x2a      (42        )  \n"
              "     PRINT_END\n");
}

TEST_F(ChipDiag, DdrFifoFlagsTwoPerLine) {
    // One flag at a time, from the register map of the DDR controller: its line shows 1, no other does.
    struct Case {
        uint32_t reg;
        unsigned bit;
        const char *flag;
    };
    const Case cases[] = {
        {0xC004, 10, "bddr2cmpicrcerr"}, {0xC004, 0, "bddr2catmcrcerr"}, {0xC060, 1, "btabrfull"},
        {0xC100, 0, "brredfifowerr"},    {0xC126, 3, "btabwdfiforerr"},  {0xC12E, 5, "batmrdfiforerr"},
        {0xC136, 0, "bpwe3cfifowerr"},   {0xC13E, 2, "bimawdfifowerr"},  {0xC15E, 1, "bpppicfiforerr"},
        {0xC166, 3, "bpktwdfiforerr"},   {0xC16E, 4, "bppperdfifowerr"}, {0xC176, 5, "bppurdfiforerr"},
        {0xC176, 1, "bppucfiforerr"},    {0xC176, 0, "bppucfifowerr"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.flag);
        model.reset();
        model.poke(c.reg, static_cast<uint16_t>(1u << c.bit));
        const std::string text = run([](char *b) { return getddrfifostats(kChip, b); });
        char line[64];
        std::snprintf(line, sizeof line, "    | %-23s: 0x1       (1         )", c.flag);
        EXPECT_NE(text.find(line), std::string::npos) << text;
        EXPECT_EQ(text.find("0x1 "), text.rfind("0x1 ")) << "one flag set";
    }
    model.reset();
    model.poke(0xC004, 0x0600);  // the first two flags
    const std::string text = run([](char *b) { return getddrfifostats(kChip, b); });
    const std::string head =
        "        GetDDRFifoStats()\n"
        "    | bddr2cmpicrcerr        : 0x1       (1         )   "
        "    | bddr2cppucrcerr        : 0x1       (1         ) \n"
        "    | bddr2cpppecrcerr       : 0x0       (0         )   ";
    EXPECT_EQ(text.substr(0, head.size()), head);
    // 77 flags: 38 full lines, the last flag alone on its line.
    const std::string tail =
        "    | bppurdfifowerr         : 0x0       (0         )   "
        "    | bppucfiforerr          : 0x0       (0         ) \n"
        "    | bppucfifowerr          : 0x0       (0         ) \n"
        "     PRINT_END\n";
    ASSERT_GE(text.size(), tail.size());
    EXPECT_EQ(text.substr(text.size() - tail.size()), tail);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1 + 39 + 1);
}

TEST_F(ChipDiag, ServiceReports) {
    const std::string enableHead =
        "------------------------------------------SrvPowerDownEn------------------------------------------\n"
        "Srv     Enable\n";
    const std::string statHead =
        "--------------------------------------------Srv Power Down Stats---------------------------------\n"
        "Srv     Enable\n";
    const std::string close(97, '-');
    // Power bits in 0x18: ATM bit 0 off, PPP bit 1 on, CES bit 2 off; the report shows 1 - bit.
    model.poke(0x18, 0xFFFA);
    uint32_t rc = 1;
    EXPECT_EQ(run([](char *b) { return getsrvpowerdownen(kChip, b); }, &rc),
              enableHead +
                  "ATM     0x1       (1         )\n"
                  "PPP     0x0       (0         )\n"
                  "CES     0x1       (1         )\n" +
                  close + "\n");
    EXPECT_EQ(rc, 0u);

    control().holdPowerStatus(ChipControlBlock::Service::Atm, 0x2A);
    control().holdPowerStatus(ChipControlBlock::Service::Ppp, 0xABC);
    control().holdPowerStatus(ChipControlBlock::Service::Ces, 0x5);
    EXPECT_EQ(run([](char *b) { return getsrvpdstat(kChip, b); }, &rc),
              statHead +
                  "ATM     0x2a      (42        )\n"
                  "PPP     0xabc     (2748      )\n"
                  "CES     0x5       (5         )\n" +
                  close + "\n");
    EXPECT_EQ(rc, 0u);

    // A chip id out of range: the three refusals ORed, the report printed with zeros.
    EXPECT_EQ(run([](char *b) { return getsrvpdstat(kBadChip, b); }, &rc),
              statHead +
                  "ATM     0x0       (0         )\n"
                  "PPP     0x0       (0         )\n"
                  "CES     0x0       (0         )\n" +
                  close + "\n");
    EXPECT_EQ(rc, kBadChipPara);
}

TEST_F(ChipDiag, WithoutABuffer) {
    // Framed values and the service reports query the chip anyway and return its status; the register
    // test and the field tables leave the chip alone and return 0.
    control().setNonInvertingBits(0xFFFF);  // the register test would fail
    struct Case {
        const char *what;
        std::function<uint32_t()> cmd;
        bool queries;
        uint32_t status;
    };
    const Case cases[] = {
        {"getversion", [] { return getversion(kChip, nullptr); }, true, 0},
        {"getversion, bad chip", [] { return getversion(kBadChip, nullptr); }, false, kBadChipPara},
        {"getchipstatus", [] { return getchipstatus(kChip, nullptr); }, false, 0},
        {"getpllpowerdown", [] { return getpllpowerdown(kChip, 1, nullptr); }, false, 0},
        {"getpllpowerdown, bad pll", [] { return getpllpowerdown(kChip, 4, nullptr); }, false, 0},
        {"getddrfifostats", [] { return getddrfifostats(kChip, nullptr); }, false, 0},
        {"getddrcntstats", [] { return getddrcntstats(kChip, nullptr); }, false, 0},
        {"getddrteststats", [] { return getddrteststats(kChip, nullptr); }, false, 0},
        {"getdieid", [] { return getdieid(kChip, nullptr); }, false, 0},
        {"getsdstxclksel", [] { return getsdstxclksel(kChip, nullptr); }, true, 0},
        {"gete3outclksel", [] { return gete3outclksel(kChip, nullptr); }, true, 0},
        {"getmacclksel", [] { return getmacclksel(kChip, nullptr); }, true, 0},
        {"getclkdetectsel", [] { return getclkdetectsel(kChip, nullptr); }, true, 0},
        {"getclkdetectsel, bad chip", [] { return getclkdetectsel(kBadChip, nullptr); }, false, kBadChipPara},
        {"getsrvpowerdownen", [] { return getsrvpowerdownen(kChip, nullptr); }, true, 0},
        {"getsrvpdstat", [] { return getsrvpdstat(kChip, nullptr); }, true, 0},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        uint32_t rc = 1;
        const auto t = traced([&] { rc = c.cmd(); });
        EXPECT_EQ(rc, c.status);
        EXPECT_EQ(!t.empty(), c.queries) << t.size() << " bus accesses";
        for (const BusAccess &a : t) {
            EXPECT_NE(a.addr, 0x04u) << "the register test register";
        }
    }
    // The version text is read from its two registers and nothing else.
    const auto t = traced([] { getversion(kChip, nullptr); });
    ASSERT_EQ(t.size(), 2u);
    EXPECT_EQ(t[0].addr, 0x00u);
    EXPECT_EQ(t[1].addr, 0x02u);
    EXPECT_EQ(t[0].op, BusOp::Read);
}

TEST_F(ChipDiag, RefusedQueriesPrintZerosAndReturnTheWholeStatus) {
    model.poke(0x2A, 0xFFFF);
    capture.clear();
    uint32_t rc = 0;
    const auto t = traced([&] {
        EXPECT_EQ(run([](char *b) { return getpllpowerdown(kChip, 4, b); }, &rc),
                  "        GetPLLPowerDown()\n"
                  "    | wSysPllVcoPd     : 0x0       (0         ) \n"
                  "    | wSysPllPdivPd    : 0x0       (0         ) \n"
                  "    | wSysPllPhasePd   : 0x0       (0         ) \n"
                  "    | wSysPllDsmPd     : 0x0       (0         ) \n"
                  "    | wSysPllPd        : 0x0       (0         ) \n"
                  "     PRINT_END\n");
    });
    EXPECT_EQ(rc, 0x03010001u);
    EXPECT_TRUE(t.empty());
    EXPECT_EQ(capture.traceTexts(), std::vector<std::string>{"ParaErr.\r\n"});

    EXPECT_EQ(
        run([](char *b) { return gete3outclksel(kBadChip, b); }, &rc),
        std::string(kSep) + "        GetE3OutClkSel()\n" + kSep + " reOutClkSel    :    0x0(0)\n" + kSep);
    EXPECT_EQ(rc, kBadChipPara);
}

}  // namespace
