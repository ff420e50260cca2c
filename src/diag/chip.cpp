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
#define FLAG(name) (Flag{#name, &VQ6192_DDR_FIFO_STAT::name})
// clang-format off
constexpr Flag kDdrFifoFlags[] = {
    // 0xC004 bits 10..0
    FLAG(bddr2cmpicrcerr), FLAG(bddr2cppucrcerr), FLAG(bddr2cpppecrcerr), FLAG(bddr2cpktcrcerr),
    FLAG(bddr2cpppicrcerr), FLAG(bddr2ccrpcrcerr), FLAG(bddr2ccesecrcerr), FLAG(bddr2ccesicrcerr),
    FLAG(bddr2cimacrcerr), FLAG(bddr2cpwe3crcerr), FLAG(bddr2catmcrcerr),
    // 0xC060 bits 1, 0
    FLAG(btabrfull), FLAG(btabwfull),
    // 0xC100 bits 3..0
    FLAG(brrecfiforerr), FLAG(brrecfifowerr), FLAG(brredfiforerr), FLAG(brredfifowerr),
    // 0xC126 bits 3..0
    FLAG(btabwdfiforerr), FLAG(btabwdfifowerr), FLAG(btabcfiforerr), FLAG(btabcfifowerr),
    // 0xC12E bits 5..0
    FLAG(batmrdfiforerr), FLAG(batmrdfifowerr), FLAG(batmwdfiforerr),
    FLAG(batmwdfifowerr), FLAG(batmcfiforerr), FLAG(batmcfifowerr),
    // 0xC136 bits 5..0
    FLAG(bpwe3rdfiforerr), FLAG(bpwe3rdfifowerr), FLAG(bpwe3wdfiforerr),
    FLAG(bpwe3wdfifowerr), FLAG(bpwe3cfiforerr), FLAG(bpwe3cfifowerr),
    // 0xC13E bits 5..0
    FLAG(bimardfiforerr), FLAG(bimardfifowerr), FLAG(bimawdfiforerr),
    FLAG(bimawdfifowerr), FLAG(bimacfiforerr), FLAG(bimacfifowerr),
    // 0xC146 bits 5..0
    FLAG(bcesirdfiforerr), FLAG(bcesirdfifowerr), FLAG(bcesiwdfiforerr),
    FLAG(bcesiwdfifowerr), FLAG(bcesicfiforerr), FLAG(bcesicfifowerr),
    // 0xC14E bits 5..0
    FLAG(bceserdfiforerr), FLAG(bceserdfifowerr), FLAG(bcesewdfiforerr),
    FLAG(bcesewdfifowerr), FLAG(bcesecfiforerr), FLAG(bcesecfifowerr),
    // 0xC156 bits 5..0
    FLAG(bcrprdfiforerr), FLAG(bcrprdfifowerr), FLAG(bcrpwdfiforerr),
    FLAG(bcrpwdfifowerr), FLAG(bcrpcfiforerr), FLAG(bcrpcfifowerr),
    // 0xC15E bits 5..0
    FLAG(bpppirdfiforerr), FLAG(bpppirdfifowerr), FLAG(bpppiwdfiforerr),
    FLAG(bpppiwdfifowerr), FLAG(bpppicfiforerr), FLAG(bpppicfifowerr),
    // 0xC166 bits 3..0
    FLAG(bpktwdfiforerr), FLAG(bpktwdfifowerr), FLAG(bpktcfiforerr), FLAG(bpktcfifowerr),
    // 0xC16E bits 5..0
    FLAG(bppperdfiforerr), FLAG(bppperdfifowerr), FLAG(bpppewdfiforerr),
    FLAG(bpppewdfifowerr), FLAG(bpppecfiforerr), FLAG(bpppecfifowerr),
    // 0xC176 bits 5, 4, 1, 0
    FLAG(bppurdfiforerr), FLAG(bppurdfifowerr), FLAG(bppucfiforerr), FLAG(bppucfifowerr),
};
// clang-format on
#undef FLAG
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

// The shell hands every integer over as u32: a group filter of 0xFFFFFFFF is -1, every group.
uint32_t dumpDefault(uint32_t chip, uint32_t groupFilter) {
    return VQ6192_DUMP_F(chip, static_cast<int32_t>(groupFilter));
}

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
    // Chip dump
    makeCommand<dumpDefault>("VQ6192_DUMP_F", "DUMP", "chip groupFilter",
                             "default chip dump through the library's file hooks (filter 0xFFFFFFFF: all)"),
};

}  // namespace

std::span<const Command> chipCommands() {
    return kCommands;
}

}  // namespace vq::diag
