// Diagnostic commands of the chip family: print control, tables, chip health and dump.
#include <array>
#include <cstdint>
#include <cstring>

#include "diag/layout.h"
#include "diag/registry.h"
#include "vq6192/vq6192.h"

// ---- Chip health -------------------------------------------------------------------------------------
//
// Framed values query the chip whether or not there is a buffer (the chip status test only with one);
// field tables query only with a buffer and return 0 without one.

namespace vq::diag {
namespace {

// The framed value lines of the clock selections print the value as a signed decimal.
constexpr char kSignedValueLine[] = " %s    :    0x%x(%d)\n";
constexpr char kPllLine[] = "    | %-17s: 0x%-8x(%-10d) \n";
// DDR counters; the DDR test statistics and the die id use the same line (their layout is ours).
constexpr char kCounterLine[] = "    | %-26s: 0x%-8x(%-10d)  \n";
// FIFO flags, two per line.
constexpr char kFlagFirstLine[] = "    | %-23s: 0x%-8x(%-10d)   ";
constexpr char kFlagSecondLine[] = "    | %-23s: 0x%-8x(%-10d) \n";

// The DDR FIFO and CRC flags in register order.
struct Flag {
    const char *label;
    uint8_t VQ6192_DDR_FIFO_STAT::*flag;
};
#define VQ6192_FLAG(name)                  \
    Flag {                                 \
#name, &VQ6192_DDR_FIFO_STAT::name \
    }
constexpr Flag kDdrFifoFlags[] = {
    VQ6192_FLAG(bddr2cmpicrcerr),  VQ6192_FLAG(bddr2cppucrcerr),  VQ6192_FLAG(bddr2cpppecrcerr),
    VQ6192_FLAG(bddr2cpktcrcerr),  VQ6192_FLAG(bddr2cpppicrcerr), VQ6192_FLAG(bddr2ccrpcrcerr),
    VQ6192_FLAG(bddr2ccesecrcerr), VQ6192_FLAG(bddr2ccesicrcerr), VQ6192_FLAG(bddr2cimacrcerr),
    VQ6192_FLAG(bddr2cpwe3crcerr), VQ6192_FLAG(bddr2catmcrcerr),  VQ6192_FLAG(btabrfull),
    VQ6192_FLAG(btabwfull),        VQ6192_FLAG(brrecfiforerr),    VQ6192_FLAG(brrecfifowerr),
    VQ6192_FLAG(brredfiforerr),    VQ6192_FLAG(brredfifowerr),    VQ6192_FLAG(btabwdfiforerr),
    VQ6192_FLAG(btabwdfifowerr),   VQ6192_FLAG(btabcfiforerr),    VQ6192_FLAG(btabcfifowerr),
    VQ6192_FLAG(batmrdfiforerr),   VQ6192_FLAG(batmrdfifowerr),   VQ6192_FLAG(batmwdfiforerr),
    VQ6192_FLAG(batmwdfifowerr),   VQ6192_FLAG(batmcfiforerr),    VQ6192_FLAG(batmcfifowerr),
    VQ6192_FLAG(bpwe3rdfiforerr),  VQ6192_FLAG(bpwe3rdfifowerr),  VQ6192_FLAG(bpwe3wdfiforerr),
    VQ6192_FLAG(bpwe3wdfifowerr),  VQ6192_FLAG(bpwe3cfiforerr),   VQ6192_FLAG(bpwe3cfifowerr),
    VQ6192_FLAG(bimardfiforerr),   VQ6192_FLAG(bimardfifowerr),   VQ6192_FLAG(bimawdfiforerr),
    VQ6192_FLAG(bimawdfifowerr),   VQ6192_FLAG(bimacfiforerr),    VQ6192_FLAG(bimacfifowerr),
    VQ6192_FLAG(bcesirdfiforerr),  VQ6192_FLAG(bcesirdfifowerr),  VQ6192_FLAG(bcesiwdfiforerr),
    VQ6192_FLAG(bcesiwdfifowerr),  VQ6192_FLAG(bcesicfiforerr),   VQ6192_FLAG(bcesicfifowerr),
    VQ6192_FLAG(bceserdfiforerr),  VQ6192_FLAG(bceserdfifowerr),  VQ6192_FLAG(bcesewdfiforerr),
    VQ6192_FLAG(bcesewdfifowerr),  VQ6192_FLAG(bcesecfiforerr),   VQ6192_FLAG(bcesecfifowerr),
    VQ6192_FLAG(bcrprdfiforerr),   VQ6192_FLAG(bcrprdfifowerr),   VQ6192_FLAG(bcrpwdfiforerr),
    VQ6192_FLAG(bcrpwdfifowerr),   VQ6192_FLAG(bcrpcfiforerr),    VQ6192_FLAG(bcrpcfifowerr),
    VQ6192_FLAG(bpppirdfiforerr),  VQ6192_FLAG(bpppirdfifowerr),  VQ6192_FLAG(bpppiwdfiforerr),
    VQ6192_FLAG(bpppiwdfifowerr),  VQ6192_FLAG(bpppicfiforerr),   VQ6192_FLAG(bpppicfifowerr),
    VQ6192_FLAG(bpktwdfiforerr),   VQ6192_FLAG(bpktwdfifowerr),   VQ6192_FLAG(bpktcfiforerr),
    VQ6192_FLAG(bpktcfifowerr),    VQ6192_FLAG(bppperdfiforerr),  VQ6192_FLAG(bppperdfifowerr),
    VQ6192_FLAG(bpppewdfiforerr),  VQ6192_FLAG(bpppewdfifowerr),  VQ6192_FLAG(bpppecfiforerr),
    VQ6192_FLAG(bpppecfifowerr),   VQ6192_FLAG(bppurdfiforerr),   VQ6192_FLAG(bppurdfifowerr),
    VQ6192_FLAG(bppucfiforerr),    VQ6192_FLAG(bppucfifowerr),
};
#undef VQ6192_FLAG
static_assert(std::size(kDdrFifoFlags) == VQ6192_DDR_FIFO_STAT_NUM);

struct Counter {
    const char *label;
    uint16_t VQ6192_DDR_CRC_CNT::*count;
};
constexpr Counter kDdrCounters[] = {
    {"wDDR2CIMACRCERRCNT", &VQ6192_DDR_CRC_CNT::wDDR2CIMACRCERRCNT},
    {"wDDR2CPWE3CRCERRCNT", &VQ6192_DDR_CRC_CNT::wDDR2CPWE3CRCERRCNT},
    {"wDDR2CATMCRCERRCNT", &VQ6192_DDR_CRC_CNT::wDDR2CATMCRCERRCNT},
    {"wDDR2CCESICRCERRCNT", &VQ6192_DDR_CRC_CNT::wDDR2CCESICRCERRCNT},
    {"wDDR2CCESECRCERRCNT", &VQ6192_DDR_CRC_CNT::wDDR2CCESECRCERRCNT},
    {"wDDR2CCRPCRCERRCNT", &VQ6192_DDR_CRC_CNT::wDDR2CCRPCRCERRCNT},
    {"wDDR2CPPPICRCERRCNT", &VQ6192_DDR_CRC_CNT::wDDR2CPPPICRCERRCNT},
    {"wDDR2CPKTCRCERRCNT", &VQ6192_DDR_CRC_CNT::wDDR2CPKTCRCERRCNT},
    {"wDDR2CPPPECRCERRCNT", &VQ6192_DDR_CRC_CNT::wDDR2CPPPECRCERRCNT},
};
static_assert(std::size(kDdrCounters) == VQ6192_DDR_CRC_CNT_NUM);

// The service reports: one line per service, ATM, PPP, CES.
struct Service {
    const char *label;
    uint32_t srv;
};
constexpr Service kServices[] = {{"ATM", VQ6192_SRV_ATM}, {"PPP", VQ6192_SRV_PPP1}, {"CES", VQ6192_SRV_CES}};
constexpr char kServiceLine[] = "%-8s0x%-8x(%-10d)\n";
constexpr char kServiceClose[] =
    "-------------------------------------------------------------------------------------------------\n";

// A framed value with a legend line under the title.
void legendFramed(char *buf, const char *title, const char *legend, const Field &field) {
    TextBuilder text(buf);
    text.add("%s        %s\n%s%s", kSep, title, legend, kSep);
    fieldLine(text, kSignedValueLine, field);
    text.add("%s", kSep);
}

void signedFramed(char *buf, const char *title, const Field &field) {
    TextBuilder text(buf);
    framed(text, kSep, title, {field}, kSignedValueLine);
}

uint32_t serviceReport(char *buf, const char *header, uint32_t (*get)(uint32_t, uint32_t, uint16_t *),
                       uint32_t chip) {
    TextBuilder text(buf);
    text.add("%s", header).add("Srv     Enable\n");
    uint32_t rc = 0;
    for (const Service &s : kServices) {
        uint16_t value = 0;
        rc |= get(chip, s.srv, &value);
        fieldLine(text, kServiceLine, {s.label, value});
    }
    text.add("%s", kServiceClose);
    return rc;
}

}  // namespace
}  // namespace vq::diag

using vq::diag::Field;

extern "C" {

VQ6192_API uint32_t getversion(uint32_t chip, char *buf) {
    char version[VQ6192_VERSION_BUF_MIN] = {};
    const uint32_t rc = VQ6192_Base_GetVersion(chip, version, sizeof version);
    vq::TextBuilder text(buf);
    vq::diag::framedHead(text, vq::diag::kSep, "GetVersion()");
    text.add("n Ver:   %s  ", version).add("%s", vq::diag::kSep);
    return rc;
}

VQ6192_API uint32_t getchipstatus(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    uint8_t failed = 0;
    uint16_t readVal = 0, writeVal = 0;
    const uint32_t rc = VQ6192_Base_GetChipStatus(chip, &failed, &readVal, &writeVal);
    vq::TextBuilder text(buf);
    vq::diag::framed(text, vq::diag::kSep, "GetChipStatus()", {{"byChipStatus", failed}});
    return rc;
}

VQ6192_API uint32_t getpllpowerdown(uint32_t chip, uint32_t pll, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    // The five settings in the order of the PLL power-down record.
    uint16_t cfg[VQ6192_PLL_PD_CFG_NUM] = {};
    const uint32_t rc = VQ6192_Base_GetPLLPowerDown(chip, pll, cfg);
    vq::TextBuilder text(buf);
    vq::diag::fieldTable(text, "GetPLLPowerDown()",
                         {{"wSysPllVcoPd", cfg[0]},
                          {"wSysPllPdivPd", cfg[1]},
                          {"wSysPllPhasePd", cfg[2]},
                          {"wSysPllDsmPd", cfg[3]},
                          {"wSysPllPd", cfg[4]}},
                         vq::diag::kPllLine);
    return rc;
}

VQ6192_API uint32_t getddrfifostats(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    VQ6192_DDR_FIFO_STAT flags{};
    const uint32_t rc = VQ6192_Base_GetDDRFifoStats(chip, &flags);
    vq::TextBuilder text(buf);
    text.add("        GetDDRFifoStats()\n");
    // The last flag has no partner and ends its line on its own.
    constexpr size_t kLast = std::size(vq::diag::kDdrFifoFlags) - 1;
    for (size_t i = 0; i <= kLast; ++i) {
        const vq::diag::Flag &f = vq::diag::kDdrFifoFlags[i];
        const bool first = i % 2 == 0 && i != kLast;
        vq::diag::fieldLine(text, first ? vq::diag::kFlagFirstLine : vq::diag::kFlagSecondLine,
                            {f.label, flags.*f.flag});
    }
    text.add("%s", vq::diag::kPrintEnd);
    return rc;
}

VQ6192_API uint32_t getddrcntstats(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    VQ6192_DDR_CRC_CNT counts{};
    const uint32_t rc = VQ6192_Base_GetDDRCntStats(chip, &counts);
    vq::TextBuilder text(buf);
    text.add("        GetDDRCntStats()\n");
    for (const vq::diag::Counter &c : vq::diag::kDdrCounters) {
        vq::diag::fieldLine(text, vq::diag::kCounterLine, {c.label, counts.*c.count});
    }
    text.add("%s", vq::diag::kPrintEnd);
    return rc;
}

VQ6192_API uint32_t getddrteststats(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    VQ6192_DDR_TEST_STATS s{};
    const uint32_t rc = VQ6192_Base_GetDDRTestStats(chip, &s);
    vq::TextBuilder text(buf);
    vq::diag::fieldTable(text, "GetDDRTestStats()",
                         {{"wDdr2cTestCurrSt", s.wDdr2cTestCurrSt},
                          {"wDdr2cTestNextSt", s.wDdr2cTestNextSt},
                          {"wDdr2cRrCurrSt", s.wDdr2cRrCurrSt},
                          {"wDdr2cRrNextSt", s.wDdr2cRrNextSt},
                          {"dwScanErrAddr", s.dwScanErrAddr},
                          {"wScanErrStep", s.wScanErrStep},
                          {"awScanErrRData[0]", s.awScanErrRData[0]},
                          {"awScanErrRData[1]", s.awScanErrRData[1]},
                          {"awScanErrRData[2]", s.awScanErrRData[2]},
                          {"awScanErrRData[3]", s.awScanErrRData[3]},
                          {"awScanExpRData[0]", s.awScanExpRData[0]},
                          {"awScanExpRData[1]", s.awScanExpRData[1]},
                          {"awScanExpRData[2]", s.awScanExpRData[2]},
                          {"awScanExpRData[3]", s.awScanExpRData[3]}},
                         vq::diag::kCounterLine);
    return rc;
}

VQ6192_API uint32_t getsdstxclksel(uint32_t chip, char *buf) {
    uint32_t sel = 0;
    const uint32_t rc = VQ6192_Base_GetSdsTxclkSel(chip, &sel);
    vq::diag::signedFramed(buf, "GetSdsTxclkSel()", {"reClkSel", sel});
    return rc;
}

VQ6192_API uint32_t gete3outclksel(uint32_t chip, char *buf) {
    uint32_t sel = 0;
    const uint32_t rc = VQ6192_Base_GetE3OutClkSel(chip, &sel);
    vq::diag::signedFramed(buf, "GetE3OutClkSel()", {"reOutClkSel", sel});
    return rc;
}

// The value labels of the MAC clock and clock detection reports are ours: the selection names.
VQ6192_API uint32_t getmacclksel(uint32_t chip, char *buf) {
    uint32_t sel = 0;
    const uint32_t rc = VQ6192_Base_GetMacClkSel(chip, &sel);
    vq::diag::legendFramed(buf, "GetMacClkSel()",
                           "    0: CDK_FE_VQ6192_MAC_CLK_SERDES, 1: CDK_FE_VQ6192_MAC_CLK_PLL\n",
                           {"reMacClkSel", sel});
    return rc;
}

VQ6192_API uint32_t getclkdetectsel(uint32_t chip, char *buf) {
    uint32_t sel = 0;
    const uint32_t rc = VQ6192_Base_GetClkDetectSel(chip, &sel);
    vq::diag::legendFramed(buf, "GetClkDetectSel()",
                           "    0: CDK_FE_VQ6192_CLK_DETECT_SERDES, 1: CDK_FE_VQ6192_CLK_DETECT_HW\n",
                           {"reClkDetectSel", sel});
    return rc;
}

VQ6192_API uint32_t getdieid(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return 0;
    }
    VQ6192_DIE_ID id{};
    const uint32_t rc = VQ6192_Base_GetDieID(chip, &id);
    vq::TextBuilder text(buf);
    vq::diag::fieldTable(text, "GetDieID()",
                         {{"byRead_protect_out", id.byRead_protect_out},
                          {"byWrite_protect_out", id.byWrite_protect_out},
                          {"byDieId_read_done", id.byDieId_read_done},
                          {"byDieId_write_done", id.byDieId_write_done},
                          {"byDieId_crc_right", id.byDieId_crc_right},
                          {"byDieId_crc", id.byDieId_crc},
                          {"byDieId_out_0", id.byDieId_out_0},
                          {"byDieId_out_1", id.byDieId_out_1},
                          {"byDieId_out_2", id.byDieId_out_2},
                          {"byDieId_out_3", id.byDieId_out_3},
                          {"byDieId_out_4", id.byDieId_out_4},
                          {"byDieId_out_5", id.byDieId_out_5},
                          {"byDieId_out_6", id.byDieId_out_6},
                          {"byDieId_out_7", id.byDieId_out_7}},
                         vq::diag::kCounterLine);
    return rc;
}

// The service reports read the chip with or without a buffer: their status is the three reads ORed.
VQ6192_API uint32_t getsrvpowerdownen(uint32_t chip, char *buf) {
    return vq::diag::serviceReport(buf,
                                   "------------------------------------------SrvPowerDownEn-----------------"
                                   "-------------------------\n",
                                   VQ6192_Base_GetSrvPowerDownEn, chip);
}

VQ6192_API uint32_t getsrvpdstat(uint32_t chip, char *buf) {
    return vq::diag::serviceReport(
        buf,
        "--------------------------------------------Srv Power Down Stats---------------------------------\n",
        VQ6192_Base_GetSrvPdStat, chip);
}

}  // extern "C"

namespace vq::diag {
namespace {

constexpr Command kCommands[] = {
    // Print control
    VQ6192_DIAG_COMMAND(VQ6192_Show_Printf_Flag, "BASE", "chip", "show the print flag of every module"),
    VQ6192_DIAG_COMMAND(VQ6192_Set_Diag_Printf_Flag, "BASE", "chip module flag",
                        "set a module's print flag (module 22: all modules)"),
    // Tables
    VQ6192_DIAG_COMMAND(VQ6192_Rt, "TABLE", "chip tableId index",
                        "read a table entry and print it member by member"),
    // Chip health
    VQ6192_DIAG_COMMAND(getversion, "BASE", "chip", "show the chip version and the driver release"),
    VQ6192_DIAG_COMMAND(getchipstatus, "BASE", "chip", "run the register test (1 = failed)"),
    VQ6192_DIAG_COMMAND(getpllpowerdown, "BASE", "chip pll", "show a PLL's power-down bits (pll 0..3)"),
    VQ6192_DIAG_COMMAND(getddrfifostats, "BASE", "chip",
                        "show the DDR controller's FIFO and CRC error flags"),
    VQ6192_DIAG_COMMAND(getddrcntstats, "BASE", "chip", "show the DDR CRC error counter of every client"),
    VQ6192_DIAG_COMMAND(getddrteststats, "BASE", "chip", "show the DDR test state and the last scan error"),
    VQ6192_DIAG_COMMAND(getsdstxclksel, "BASE", "chip", "show the SerDes transmit clock selection"),
    VQ6192_DIAG_COMMAND(gete3outclksel, "BASE", "chip", "show the E3 output clock selection"),
    VQ6192_DIAG_COMMAND(getmacclksel, "BASE", "chip", "show the MAC clock selection (0 SerDes, 1 PLL)"),
    VQ6192_DIAG_COMMAND(getclkdetectsel, "BASE", "chip",
                        "show the clock detection selection (0 SerDes, 1 hardware)"),
    VQ6192_DIAG_COMMAND(getdieid, "BASE", "chip", "show the die id"),
    VQ6192_DIAG_COMMAND(getsrvpowerdownen, "BASE", "chip", "show the power-down enable of ATM, PPP and CES"),
    VQ6192_DIAG_COMMAND(getsrvpdstat, "BASE", "chip", "show the power-down status of ATM, PPP and CES"),
};

}  // namespace

std::span<const Command> chipCommands() {
    return kCommands;
}

}  // namespace vq::diag
