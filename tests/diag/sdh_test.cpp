// Diagnostic commands of the SDH and telecom bus family: reports byte for byte, statuses, help blocks
// and the registry rows.
#include <cstring>
#include <map>
#include <set>
#include <sstream>
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

TEST_F(SdhDiagTest, TraceAndAlarmReports) {
    const char j1[17] = "VQ6192 HP TRACE1";
    ASSERT_EQ(VQ6192_SDH_SetTxHpJ1(kChip, 2, 0, reinterpret_cast<const uint8_t *>(j1), 1), 0u);
    EXPECT_EQ(gettxhpj1(kChip, 2, buf.data()), 0u);
    EXPECT_EQ(text(), framed("GetTxHpJ1()",
                             " byJ1Mode    :    0x0(0)\n"
                             " abyJ1    :    VQ6192 HP TRACE1\n"
                             " byPASS    :    0x1(1)\n"));

    model.poke(0x2C040 + 0x40 * 1 + 0x1E, 0x0008);
    model.poke(0x2C040 + 0x40 * 1 + 0x16, 0x0004);
    EXPECT_EQ(gethpalms(kChip, 1, buf.data()), 0u);
    EXPECT_EQ(text(), framed("GetHpOomAlm()",
                             " rHpoomhis    :    0x1(1)\n"
                             " rHplomhis    :    0x0(0)\n"
                             " rHplomcur    :    0x1(1)\n"));

    // VC-12 (0, 2, 3): RDI and TIM histories, TU-LOP current.
    const uint32_t lr = 0x2C380 + 0x40 * (64 + 3);
    model.poke(lr + 0x20, 0x0011);
    model.poke(lr + 0x16, 0x0001);
    EXPECT_EQ(getlpalms(kChip, 0, 2, 3, buf.data()), 0u);
    const char *names[13] = {
        "ucLpRfiAlarmHis",   "ucLpPdiAlarmHis",   "ucLpSdiAlarmHis",  "ucLpRdiAlarmHis", "ucLpCdiAlarmHis",
        "ucLpVcAisAlarmHis", "ucLpPlmAlarmHis",   "ucLpUneqAlarmHis", "ucLpTimAlarmHis", "ucLpTuAisAlarmCur",
        "ucLpTuAisAlarmHis", "ucLpTuLopAlarmCur", "ucLpTuLopAlarmHis"};
    std::string lines;
    for (int i = 0; i < 13; ++i) {
        const int v = (i == 3 || i == 8 || i == 11) ? 1 : 0;
        lines += std::string(" ") + names[i] + "    :    0x" + std::to_string(v) + "       (" +
                 std::to_string(v) + "         ) \n";
    }
    EXPECT_EQ(text(), framed("GetLpAlms()", lines));

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
    EXPECT_EQ(getb2c1j1speerr(kChip, 3, buf.data()), 0u);
    EXPECT_EQ(text(), framed("GetB2C1j1speErr()",
                             " rRteleFifoErr    :    0x1(1)\n"
                             " rRteleB2Errcntof    :    0x1(1)\n"
                             " rRteleC1Err    :    0x1(1)\n"
                             " rRteleC1j1Speall01    :    0x0(0)\n"));
    // A refused query returns the low 16 bits of its status and prints the zeroed outputs.
    EXPECT_EQ(getb2c1j1speerr(kChip, 4, buf.data()), 1u);
    EXPECT_EQ(text(), framed("GetB2C1j1speErr()",
                             " rRteleFifoErr    :    0x0(0)\n"
                             " rRteleB2Errcntof    :    0x0(0)\n"
                             " rRteleC1Err    :    0x0(0)\n"
                             " rRteleC1j1Speall01    :    0x0(0)\n"));
    model.poke(0x22236, 0x0102);
    EXPECT_EQ(gettelerxb2cnt(kChip, 3, buf.data()), 0u);
    EXPECT_EQ(text(), framed("GetTeleRxB2Cnt()", " wCnt    :    0x102(258)\n"));
    EXPECT_EQ(gettelerxb2cnt(kChip, 3, buf.data()), 0u);
    EXPECT_EQ(text(), framed("GetTeleRxB2Cnt()", " wCnt    :    0x0(0)\n"));
    model.poke(0x22002, 0xFFF9);
    EXPECT_EQ(getfpfiforead(kChip, buf.data()), 0u);
    EXPECT_EQ(text(), framed("GetFpFifoRead()", " wVal    :    0x9(9)\n"));
    EXPECT_EQ(gettxhpbyte(kChip, 4, 0, buf.data()), 1u);
    EXPECT_EQ(text(), framed("GetTxHpByte()",
                             " byVal    :    0x0(0)\n"
                             " byMode    :    0x0(0)\n"));
}

TEST_F(SdhDiagTest, NullBufferQueriesNothing) {
    model.setTrace(true);
    EXPECT_EQ(getrxhpj1(kChip, 0, nullptr), 0u);
    EXPECT_EQ(gettxhpj1(kChip, 0, nullptr), 0u);
    EXPECT_EQ(getsdhmaps(kChip, nullptr), 0u);
    EXPECT_EQ(gettelerxb2cnt(kChip, 0, nullptr), 0u);
    EXPECT_EQ(gettxhpj1_h(kChip, nullptr), 0u);
    EXPECT_TRUE(model.trace().empty());
}

// The SDH and telecom bus commands of the command set, and those without a help companion.
const char kNames[] =
    "getsdhsonetmode getsdhloop getsdhmap getsdhmaps gettxhpbyte getrxhpbyte gettxhpj1 getrxhpj1 "
    "gettxhpb3err "
    "gettxlpbyte getrxlpvc3byte gettxlpj1 getrxlpj1 getrxlpshouldc2 getrxlpshouldj1 gettxlpb3err gettxlpj2 "
    "getrxlpj2 getrxlpshouldj2 gettxlpv5 getrxlpv5 getrxlpshouldv5sgnllbl gettxlpk4 gettxlpn2 "
    "getrxlpvc12byte "
    "gettxlpv5bip2err getlpreimode getvc3erdimode getvc12erdimode gethplomaisen getfltalarmnum "
    "getsdhlptraninsert gethplommsk getlpalmmsk gethplomintmsk gettuaisintmsk gettulopintmsk getrxhprst "
    "getrxlprst gettxhpptryfinssel gettxhpptrssinsval getrxlpb3b2cnt getvc4tuaisinsen getsonetb3chkmode "
    "getmaploopcfg getodlpsscfg getrxhpb3cnt getrxlpreicnt gethpalms getlpalms getsdhe1fifoalm "
    "getsdhe3fifoalm "
    "gettxlpg1 gettxlpb3 gettelerst getfpfiforead getfpjittermsk getfplosmsk getfperrmsk getclklocmsk "
    "getintglbmsk getintportmsk getteleclkedge getrstport getteletxb2ins gettelerxb2mod gettelefploshis "
    "gettelefplos gettelefpdisvalue gettelerxfifoerrmsk gettelerxb2ofmsk gettelerxc1errmsk "
    "gettelerxc1j1allmsk getb2c1j1speerrhis getb2c1j1speerr gettelerxb2cnt";
const std::set<std::string> kNoHelp = {"getsdhmap",         "getsdhmaps",    "getvc4tuaisinsen",
                                       "getsonetb3chkmode", "getmaploopcfg", "getodlpsscfg"};

// The help companion of a command: its name and "_h", but for three.
std::string helpOf(const std::string &name) {
    const std::map<std::string, std::string> other = {{"getlpalms", "getlpalmhis_h"},
                                                      {"getb2c1j1speerrhis", "gettelerxc1j1allerrhis_h"},
                                                      {"getb2c1j1speerr", "gettelerxc1j1allerr_h"}};
    return other.count(name) != 0 ? other.at(name) : name + "_h";
}

TEST_F(SdhDiagTest, EveryCommandAndHelpIsRegistered) {
    std::istringstream names(kNames);
    for (std::string name; names >> name;) {
        const auto *cmd = vq::diag::findCommand(name);
        ASSERT_NE(cmd, nullptr) << name;
        EXPECT_NE(std::string(cmd->help), "") << name;
        if (kNoHelp.count(name) != 0) {
            EXPECT_EQ(vq::diag::findCommand(name + "_h"), nullptr) << name;
            continue;
        }
        const auto *help = vq::diag::findCommand(helpOf(name));
        ASSERT_NE(help, nullptr) << name;
        std::vector<vq::diag::ArgValue> args(1);
        args[0].u32 = kChip;
        EXPECT_EQ(help->invoke(args.data(), buf.data()), 0u) << name;
        const std::string text = buf.data();
        EXPECT_EQ(text.rfind("/*", 0), 0u) << name;
        EXPECT_EQ(text.substr(text.size() - 3), "*/\n") << name;
        EXPECT_NE(text.find(" Command   : " + name + "\n"), std::string::npos) << name;
    }
}

}  // namespace
}  // namespace diagtest
