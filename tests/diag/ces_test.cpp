// CES diagnostic commands: layouts byte for byte, the null buffer and the listing ranges.
#include <algorithm>
#include <cstring>
#include <string>

#include "diag/diag_test.h"
#include "vq6192/ces.h"
#include "vq6192/eth.h"
#include "vq6192/framer.h"

namespace diagtest {
namespace {

using CesCommands = DiagTest;

TEST_F(CesCommands, ReportsByteForByte) {
    model.poke(0x15800 + 2 * 9, 0x1C7);  // clock select 7, 7 frames
    model.poke(0x15C00 + 2 * 9, 300);
    model.poke(0x15400 + 2 * 9, 150);
    model.poke(0x1402E, 0xFF5A);
    ASSERT_EQ(VQ6192_CES_SetCesTSCompress(kChip, 9, 0xF0, 2), 0u);
    ASSERT_EQ(VQ6192_CES_SetCesIdleCode(kChip, 9, 0x7E), 0u);
    ASSERT_EQ(getceschanpara(kChip, 9, buf.data()), 0u);
    EXPECT_EQ(text(),
              "        GetCesChanPara()\n"
              "    | dwTsCompressBitmap   : 0xf0      (240       ) \n"
              "    | byIdleCode           : 0x7e      (126       ) \n"
              "    | byFramNum            : 0x7       (7         ) \n"
              "    | dwJtrBufDepth        : 0x12c     (300       ) \n"
              "    | dwJtrBufDelay        : 0x96      (150       ) \n"
              "    | byEmptyCode          : 0x5a      (90        ) \n"
              "     PRINT_END\n");

    const VQ6192_CES_CR_MODE_S m = {2, 40, 1, 1};
    ASSERT_EQ(VQ6192_CES_SetCesCRMode(kChip, 1, &m), 0u);
    ASSERT_EQ(getcescrmode(kChip, buf.data()), 0u);
    const std::string crmode(buf.data());
    EXPECT_EQ(crmode.substr(0, crmode.find(" 0   ")),
              kNSep + "        GetCesCRMode()\n" + kNSep +
                  "  wClkRateMode(0:E1/T1, 1: E3/T3, 2: VC4)\n  wTrPLCEn    (0:DISABLE, 1: ENABLE)\n"
                  "  eTrMode(0:CR_DIFF, 2: CR_STAMP, 4: CR_NONE)\n"
                  " Index    wCesChanNo    wClkRateMode    wTrPLCEn    eTrMode\n");
    EXPECT_NE(crmode.find(" 1        40            1               1           2      \n"),
              std::string::npos);

    ASSERT_EQ(DbgGetCesPara(kChip, 9, 10, buf.data()), 0u);
    EXPECT_EQ(
        text(),
        "n--------------------------------------------CES PARA---------------------------------------------\n"
        "CH BITMAP       IDLE FRAM  JB_DELAY  JTR_DEPTH    RTP_EN  CW_RTP  PT   TX_SSRC     RX_SSRC     TR\n"
        " 9 0xf0         0x7e  07     150        300         0       0    0x00  0x0         0x0         5 \n"
        "-------------------------------------------------------------------------------------------------"
        "\n");
}

// Without a buffer the query still runs and its status comes back; the parameter listing does nothing.
TEST_F(CesCommands, NullBufferAndRanges) {
    expectUnbuffered(
        {{"getceschanenable 352", [] { return getceschanenable(kChip, 352, nullptr); }, false, 0x03030001},
         {"getcesfifothld", [] { return getcesfifothld(kChip, nullptr); }, true, 0},
         {"DbgGetCesPara", [] { return DbgGetCesPara(kChip, 0, 0, nullptr); }, false, 0}});

    ASSERT_EQ(DbgGetCesPara(kChip, 0, 0, buf.data()), 0u);
    const std::string text(buf.data());
    EXPECT_NE(text.find("\n 1e 0x"), std::string::npos) << "channel 30 listed";
    EXPECT_EQ(text.find("\n 1f 0x"), std::string::npos) << "channel 31 not listed";
    ASSERT_EQ(DbgGetCesPara(kChip, 5, 5, buf.data()), 0u);
    EXPECT_EQ(std::count(buf.data(), buf.data() + std::strlen(buf.data()), '\n'), 3) << "no channel";
}

// The overview scans the timeslot tables for each channel's line and timeslots and shows its labels.
TEST_F(CesCommands, ConfigurationOverview) {
    const VQ6192_CES_CHAN_S d = {2, 3, 0xE, 0};
    ASSERT_EQ(VQ6192_CES_CreateCesChan(kChip, &d), 0u);
    ASSERT_EQ(VQ6192_CES_SetCesChanEnable(kChip, 3, 1), 0u);
    ASSERT_EQ(VQ6192_ETH_SetAtmCesPMUEncpLbl(kChip, 3, 3, 1, 0x777, 0x500), 0u);
    ASSERT_EQ(DbgGetCesConfig(kChip, 3, 4, buf.data()), 0u);
    EXPECT_EQ(text(),
              "n-------------------------------CES CHAN----------------------------\n"
              "CH     ENABLE   E1  TIMESLOT    LABEL_EN  TYPE  LABEL_IN    LABEL_E\n"
              " 3       1    0x2   0xe             1      0    0x500       0x777   \n"
              "-----------------------------------------------------------------\n");
    // A T1 line has 24 timeslots: an entry in timeslot 24 is not the channel's.
    ASSERT_EQ(VQ6192_Framer_SetFrmTDMMode(kChip, 1), 0u);
    ASSERT_EQ(VQ6192_Framer_SelectSrcE1(kChip, 0, 2, 3, 3, 1u << 24, 3), 0u);
    ASSERT_EQ(DbgGetCesConfig(kChip, 3, 4, buf.data()), 0u);
    EXPECT_NE(text().find(" 3       1    0x2   0xe "), std::string::npos) << text();
}

}  // namespace
}  // namespace diagtest
