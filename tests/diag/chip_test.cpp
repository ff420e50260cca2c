// The chip health commands: reports byte for byte, their statuses and what they do without a buffer.
#include <algorithm>
#include <cstdio>

#include "diag/diag_test.h"
#include "vq6192/chip.h"
#include "vq6192/sim/chip_control.h"

namespace diagtest {
namespace {

using vq6192::sim::ChipControlBlock;

class ChipDiag : public DiagTest {
  protected:
    ChipControlBlock &control() { return model.block<ChipControlBlock>(); }
};

TEST_F(ChipDiag, ReportsByteForByte) {
    control().setVersion(0x6192, 0x0A1B);
    control().setNonInvertingBits(0x0100);  // the register test fails
    model.poke(0x240, 0x7FFD);              // clock detection bit 0 = 1; bits 1 and 15 clear, the rest set
    model.poke(0x6A, 0xFFE9);               // PLL 2: bits 5, 4, 3, 2, 0 = 1, 0, 1, 0, 1
    poke({{0xC128, 1}, {0xC130, 0x22}, {0xC138, 0x333}, {0xC140, 0x4444}, {0xC148, 5}, {0xC150, 6}});
    poke({{0xC158, 7}, {0xC160, 8}, {0xC168, 0xFFFF}});
    expectReports({
        {[](char *b) { return getversion(kChip, b); },
         framed("GetVersion()", "n Ver:   VQ6192V0a1b DRV REL 2.5.600  \n  "), 0},
        {[](char *b) { return getchipstatus(kChip, b); },
         framed("GetChipStatus()", " byChipStatus    :    0x1(1)\n"), 0x03010007},
        {[](char *b) { return getclkdetectsel(kChip, b); },
         kNSep +
             "        GetClkDetectSel()\n    0: CDK_FE_VQ6192_CLK_DETECT_SERDES, 1: "
             "CDK_FE_VQ6192_CLK_DETECT_HW\n" +
             kNSep + " reClkDetectSel    :    0x1(1)\n" + kNSep,
         0},
        {[](char *b) { return getmacclksel(kChip, b); },
         kNSep +
             "        GetMacClkSel()\n    0: CDK_FE_VQ6192_MAC_CLK_SERDES, 1: CDK_FE_VQ6192_MAC_CLK_PLL\n" +
             kNSep + " reMacClkSel    :    0x0(0)\n" + kNSep,
         0},
        {[](char *b) { return getpllpowerdown(kChip, 2, b); },
         "        GetPLLPowerDown()\n"
         "    | wSysPllVcoPd     : 0x1       (1         ) \n"
         "    | wSysPllPdivPd    : 0x0       (0         ) \n"
         "    | wSysPllPhasePd   : 0x1       (1         ) \n"
         "    | wSysPllDsmPd     : 0x0       (0         ) \n"
         "    | wSysPllPd        : 0x1       (1         ) \n"
         "     PRINT_END\n",
         0},
        {[](char *b) { return getddrcntstats(kChip, b); },
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
         "     PRINT_END\n",
         0},
    });
}

TEST_F(ChipDiag, DdrFifoFlagsTwoPerLine) {
    // One flag at a time from the DDR controller's register map: its line shows 1, no other does.
    const struct {
        uint32_t reg;
        unsigned bit;
        const char *flag;
    } cases[] = {
        {0xC004, 10, "bddr2cmpicrcerr"}, {0xC004, 0, "bddr2catmcrcerr"}, {0xC060, 1, "btabrfull"},
        {0xC126, 3, "btabwdfiforerr"},   {0xC13E, 2, "bimawdfifowerr"},  {0xC166, 3, "bpktwdfiforerr"},
        {0xC16E, 4, "bppperdfifowerr"},  {0xC176, 1, "bppucfiforerr"},
    };
    for (const auto &c : cases) {
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
        "    | bddr2cppucrcerr        : 0x1       (1         ) \n";
    // 77 flags: 38 full lines, the last flag alone on its line.
    const std::string tail =
        "    | bppucfiforerr          : 0x0       (0         ) \n"
        "    | bppucfifowerr          : 0x0       (0         ) \n"
        "     PRINT_END\n";
    EXPECT_EQ(text.substr(0, head.size()), head);
    EXPECT_EQ(text.substr(text.size() - tail.size()), tail);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1 + 39 + 1);
}

TEST_F(ChipDiag, ServiceReports) {
    const std::string close = std::string(97, '-') + "\n";
    model.poke(0x18, 0xFFFA);  // power bits: ATM (0) off, PPP (1) on, CES (2) off; shown as 1 - bit
    control().holdPowerStatus(ChipControlBlock::Service::Atm, 0x2A);
    control().holdPowerStatus(ChipControlBlock::Service::Ppp, 0xABC);
    control().holdPowerStatus(ChipControlBlock::Service::Ces, 0x5);
    expectReports({
        {[](char *b) { return getsrvpowerdownen(kChip, b); },
         std::string(42, '-') + "SrvPowerDownEn" + std::string(42, '-') +
             "\nSrv     Enable\nATM     0x1       (1         )\nPPP     0x0       (0         )\n"
             "CES     0x1       (1         )\n" +
             close},
        {[](char *b) { return getsrvpdstat(kChip, b); },
         std::string(44, '-') + "Srv Power Down Stats" + std::string(33, '-') +
             "\nSrv     Enable\nATM     0x2a      (42        )\nPPP     0xabc     (2748      )\n"
             "CES     0x5       (5         )\n" +
             close},
    });
}

TEST_F(ChipDiag, WithoutABuffer) {
    // Framed values and the service reports query the chip anyway and return its status; the register
    // test and the field tables leave the chip alone and return 0.
    control().setNonInvertingBits(0xFFFF);
    expectUnbuffered({
        {"getversion", [] { return getversion(kChip, nullptr); }, true, 0},
        {"getchipstatus", [] { return getchipstatus(kChip, nullptr); }, false, 0},
        {"getpllpowerdown, bad pll", [] { return getpllpowerdown(kChip, 4, nullptr); }, false, 0},
        {"getddrfifostats", [] { return getddrfifostats(kChip, nullptr); }, false, 0},
        {"getddrteststats", [] { return getddrteststats(kChip, nullptr); }, false, 0},
        {"getsdstxclksel", [] { return getsdstxclksel(kChip, nullptr); }, true, 0},
        {"getsrvpowerdownen", [] { return getsrvpowerdownen(kChip, nullptr); }, true, 0},
        {"getsrvpdstat", [] { return getsrvpdstat(kChip, nullptr); }, true, 0},
    });
    // The version comes from its two registers, nothing else.
    std::vector<uint32_t> addrs;
    for (const auto &a : traced([] { getversion(kChip, nullptr); })) {
        addrs.push_back(a.addr);
    }
    EXPECT_EQ(addrs, (std::vector<uint32_t>{0x00, 0x02}));
}

}  // namespace
}  // namespace diagtest
