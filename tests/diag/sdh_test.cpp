// Diagnostic commands of the SDH and telecom bus family: reports byte for byte, statuses, help blocks.
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "diag/diag_test.h"
#include "diag/registry.h"
#include "vq6192/framer.h"
#include "vq6192/sdh.h"
#include "vq6192/sim/sdh_paths.h"

namespace diagtest {
namespace {

using SdhDiagTest = DiagTest;

TEST_F(SdhDiagTest, MapReports) {
    ASSERT_EQ(VQ6192_SDH_SetSDHSonetMode(kChip, 0), 0u);
    model.poke(0x000E, 0);  // E1 and E3
    ASSERT_EQ(VQ6192_SDH_SetSDHMap(kChip, 1, 2, 6), 0u);
    ASSERT_EQ(getsdhmap(kChip, 1, 2, buf.data()), 0u);
    EXPECT_EQ(text(), framed("GetSDHMap(ULONG dwChipID,UCHAR *pucBuff)",
                             " reSdhMap    :    0x6(6)\n"
                             "    CKD_FE_SDHSONET_MAP_E1_VC12TU12TUG3_AU4\n"));

    // Map 6 is programmed per VC-4, so the three slots of VC-4 1 read it back; the slots of the other
    // VC-4s match no map type and are still listed, and the statuses are ORed.
    EXPECT_EQ(getsdhmaps(kChip, buf.data()), 6u);
    std::string expected = "  Vc4No    Au3Chnl    reSdhMap\n";
    for (int i = 0; i < 12; ++i) {
        char line[128];
        const bool mapped = i / 3 == 1;
        std::snprintf(line, sizeof line, "  %5d    %6d    %3d %s\n", i / 3, i % 3, mapped ? 6 : 14,
                      mapped ? "    CKD_FE_SDHSONET_MAP_E1_VC12TU12TUG3_AU4\n" : "    NULL_MAP_PATH\n");
        expected += line;
    }
    EXPECT_EQ(text(), framed("GetSDHMaps(ULONG dwChipID,UCHAR *pucBuff)", expected));
}

TEST_F(SdhDiagTest, FifoAlarmReport) {
    model.poke(0x3C000 + 8 * 7, 0x0002);
    model.poke(0x3C002 + 8 * 7, 0x0003);
    EXPECT_EQ(getsdhe1fifoalm(kChip, 7, buf.data()), 0u);
    EXPECT_EQ(text(),
              "        GetSDHE1FifoAlm()\n"
              "    |  byMapFifoFoAlarm         : 0x1       (1         ) \n"
              "    |  byMapFifoFuAlarm         : 0x0       (0         ) \n"
              "    |  byMapFifoFoHisAlarm      : 0x1       (1         ) \n"
              "    |  byMapFifoFuHisAlarm      : 0x1       (1         ) \n"
              "     PRINT_END\n");
}

TEST_F(SdhDiagTest, TelecomReportsAndStatuses) {
    model.poke(0x22210, 0x8880);
    expectReports({
        {[](char *b) { return getb2c1j1speerr(kChip, 3, b); },
         framed("GetB2C1j1speErr()",
                " rRteleFifoErr    :    0x1(1)\n rRteleB2Errcntof    :    0x1(1)\n"
                " rRteleC1Err    :    0x1(1)\n rRteleC1j1Speall01    :    0x0(0)\n")},
        // A refused query returns the low 16 bits of its status and prints the zeroed outputs.
        {[](char *b) { return gettxhpbyte(kChip, 4, 0, b); },
         framed("GetTxHpByte()", " byVal    :    0x0(0)\n byMode    :    0x0(0)\n"), 1},
    });
}

// Without a buffer an SDH or telecom command prints nothing, queries nothing and returns 0.
TEST_F(SdhDiagTest, NullBufferQueriesNothing) {
    model.setTrace(true);
    size_t count = 0;
    for (const vq::diag::Command &cmd : vq::diag::commands()) {
        if (std::string(cmd.module) != "SDH" && std::string(cmd.module) != "TELECOM") {
            continue;
        }
        std::vector<vq::diag::ArgValue> args = argsOf(cmd, kChip);
        EXPECT_EQ(cmd.invoke(args.data(), nullptr), 0u) << cmd.name;
        EXPECT_TRUE(model.trace().empty()) << cmd.name;
        model.clearTrace();
        ++count;
    }
    EXPECT_GT(count, 76u) << "the 76 commands and their help blocks";
}

// The SDH and telecom bus commands without a help companion, and the three whose help has another name.
const std::set<std::string> kNoHelp = {"getsdhmap",         "getsdhmaps",    "getvc4tuaisinsen",
                                       "getsonetb3chkmode", "getmaploopcfg", "getodlpsscfg"};
const std::map<std::string, std::string> kOtherHelp = {{"getlpalms", "getlpalmhis_h"},
                                                       {"getb2c1j1speerrhis", "gettelerxc1j1allerrhis_h"},
                                                       {"getb2c1j1speerr", "gettelerxc1j1allerr_h"}};

TEST_F(SdhDiagTest, EveryCommandHasItsHelpBlock) {
    size_t count = 0;
    for (const vq::diag::Command &cmd : vq::diag::commands()) {
        const std::string name = cmd.name, module = cmd.module;
        if ((module != "SDH" && module != "TELECOM") || name.ends_with("_h")) {
            continue;
        }
        ++count;
        if (kNoHelp.count(name) != 0) {
            EXPECT_EQ(vq::diag::findCommand(name + "_h"), nullptr) << name;
            continue;
        }
        const auto *help =
            vq::diag::findCommand(kOtherHelp.count(name) != 0 ? kOtherHelp.at(name) : name + "_h");
        ASSERT_NE(help, nullptr) << name;
        std::vector<vq::diag::ArgValue> args(1);
        args[0].u32 = kChip;
        EXPECT_EQ(help->invoke(args.data(), buf.data()), 0u) << name;
        const std::string text = buf.data();
        EXPECT_NE(text.find(" Command   : " + name + "\n"), std::string::npos) << name;
    }
    EXPECT_EQ(count, 76u);
}

}  // namespace
}  // namespace diagtest
