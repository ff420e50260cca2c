// IMA hardware diagnostics: one dispatcher that prints chip tables entry by entry, the IMA processor,
// transmit and receive tables of a group or link, issues raw IMA processor commands, dumps a module of
// the chip to a file, and prints one ATM connection with its policer and OAM settings, one ATM
// pseudowire with its labels, and the ATM drop counters.
#include <cstdio>

#include "vq6192/atm.h"
#include "vq6192/core.h"
#include "vq6192/dump.h"
#include "vq6192/eth.h"
#include "vq6192/platform.h"

#include "core/table_print.h"
#include "ima/ima_internal.h"
#include "platform/text_builder.h"

extern "C" {
VQ6192_API uint32_t g_uiKx9rDiagExtraPara[10];
VQ6192_API extern const uint32_t g_MCARD_IMA_DIAG_EXTRA_PARA_MAX_INDEX = 10;
}

namespace vq::ima {
namespace {

constexpr int32_t kRefused = -1;
constexpr uint32_t kRxIcpWords = 12;
constexpr uint32_t kTxIcpWords = 11;
constexpr uint32_t kGridRows = 16;
constexpr uint32_t kGridCols = 21;
constexpr uint32_t kHelpParaColumn = 59;

bool refused(uint32_t chip, const char *buf) {
    return chip > MCARD_IMA_DIAG_CHIP_MAX || buf == nullptr;
}

// One entry of a table, member by member. Returns the read status.
uint32_t printTable(TextBuilder &t, uint32_t chip, uint32_t tableId, uint32_t index) {
    Entry e;
    const uint32_t rc = readEntry(chip, tableId, index, e);
    if (rc != 0) {
        t.add("ASIC_Read_Table failed, ret=0x%X\r\n", rc);
        return rc;
    }
    const VQ6192_TBL_ENTRY_S &d = g_astVQ6192TblEntryList[tableId];
    t.add("==================== Table Name: %s ====================\r\n", d.pszName);
    t.add("\r\n    %s\r\n\r\n", d.pszDesc);
    // Members are numbered from 1 in catalogue order.
    for (uint16_t i = 0; i < d.usMemberNum; ++i) {
        const VQ6192_TBL_MEMBER_S &m = d.pstMember[i];
        const uint32_t v = entryBits(e.w, m.usStartBit, m.usWidth);
        t.add("    %u. %s = %u = 0x%X\r\n", i + 1u, m.pszName, v, v);
    }
    return 0;
}

// The table's entry of a group or link: number scaled by the entries per number, plus the word.
uint32_t printOf(TextBuilder &t, uint32_t chip, uint32_t tableId, uint32_t number, uint32_t word) {
    return printTable(t, chip, tableId, number * entriesPer(tableId) + word);
}

uint32_t printWords(TextBuilder &t, uint32_t chip, std::initializer_list<uint32_t> tables, uint32_t number) {
    uint32_t rc = 0;
    for (uint32_t id : tables) {
        rc |= printOf(t, chip, id, number, wordOf(id));
    }
    return rc;
}

// ICP octets 6..53 of receive-side words: word w holds octets 6 + 4w .. 9 + 4w, lowest byte first.
void icpOctetLine(TextBuilder &t, uint32_t w, uint32_t word) {
    t.add("  ICP octet %02u ~ %02u: ", 6 + 4 * w, 9 + 4 * w);
    t.add("  %02X %02X %02X %02X\r\n", word & 0xFF, (word >> 8) & 0xFF, (word >> 16) & 0xFF, word >> 24);
}

void helpLine(TextBuilder &t, uint32_t n, const char *body, const char *para) {
    char line[96];
    const int len = snprintf(line, sizeof line, "%2u. %s", n, body);
    t.add("%s%*s%s\r\n", line,
          len < static_cast<int>(kHelpParaColumn) ? static_cast<int>(kHelpParaColumn) - len : 0, "", para);
}

void imappHelp(TextBuilder &t) {
    t.add("==================== IMAPP HELP ====================\r\n");
    t.add("1. TX  LINK CONFIG  (IMAPP_TXC), para: link ID\r\n");
    t.add("2. RX  LINK CONFIG  (IMAPP_RXC), para: link ID\r\n");
    t.add("3. IMA GROUP CONFIG (IMAPP_GPC), para: group ID\r\n");
    t.add("4. TX  LINK STATUS  (IMAPP_TXS), para: link ID\r\n");
    t.add("5. RX  LINK STATUS  (IMAPP_RXS), para: link ID\r\n");
    t.add("6. IMA GROUP STATUS (IMAPP_GPS), para: group ID\r\n");
    t.add("7. READ_EVENT STATUS,            para: group ID\r\n");
    t.add("8. ICP CELL TABLE,               para:  (group ID?)\r\n");
}

void imatxHelp(TextBuilder &t) {
    t.add("==================== IMATX HELP ====================\r\n");
    t.add("1. TX IMA GROUP STATIS (IMATX_GPS),        para: group ID\r\n");
    t.add("2. TX ICP BUFFER       (IMATX_ICP_BUF),    para: group ID\r\n");
    t.add("3. TX IMA GROUP CONFIG (IMATX_GPC),        para: group ID\r\n");
    t.add("4. TX LINK MAP TABLE   (IMATX_MAP_TBL),    para: group ID\r\n");
    t.add("5. TX LINK STATUS      (IMATX_LKS),        para: link ID\r\n");
    t.add("6. TX LINK CONFIG      (IMATX_LKC),        para: link ID\r\n");
    t.add("7. LINK IN GROUP CFG   (IMATX_LINK_IN_GP), para: group ID\r\n");
    t.add("8. IMA GROUP DEPTH     (IMATX_GP_DEPTH),   para: group ID\r\n");
}

void imarxHelp(TextBuilder &t) {
    struct Line {
        uint32_t n;
        const char *name;
        const char *tag;
        const char *para;
    };
    static constexpr Line kLines[] = {
        {1, "RX LINK COUNT", "IMARX_LK_CNT/IMARX_UNI_WCNT", "para: link ID"},
        {2, "RX LINK CONFIG", "IMARX_LKC", "para: link ID"},
        {3, "RX GROUP CONFIG", "IMARX_GPC", "para: group ID"},
        {4, "RX ICP VALID", "IMARX_ICP_VLD", "para: link ID"},
        {5, "RX LINK STATUS", "IMARX_LKS", "para: link ID"},
        {6, "RX ICP BUFFER", "IMARX_ICP_BUF", "para: link ID"},
        {7, "RX IMA READ POINTER", "IMARX_IMA_RPTR", "para: group ID"},
        {8, "RX IMA WRITE POINTER", "IMARX_IMA_WPTR", "para: link ID"},
        {9, "RX GROUP WRITE POINTER", "IMARX_GP_WPTR", "para: group ID"},
        {10, "READ DELAY", nullptr, ""},
        {13, "RX GROUP COUNT", "IMARX_GP_CNT/IMARX_UNI_RCNT", "para: group ID"},
        {14, "SCVC PERIODICITY CHECK", nullptr, "para: group ID"},
        {15, "SCVC CONTROL LINK-LIST", nullptr, "para: group ID"},
    };
    t.add("==================== IMARX HELP ====================\r\n");
    for (const Line &l : kLines) {
        char body[80];
        if (l.tag != nullptr) {
            snprintf(body, sizeof body, "%-22s(%s),", l.name, l.tag);
        } else {
            snprintf(body, sizeof body, "%s,", l.name);
        }
        helpLine(t, l.n, body, l.para);
    }
}

// Read_event snapshot of a group: the three group words, then the per-LID words as a matrix.
uint32_t printEvents(TextBuilder &t, uint32_t chip, uint32_t grp) {
    uint32_t rc = runCmd(chip, VQ6192_IMA_CMD_READ_EVENT, grp, 0, 0, 0);
    rc |= printTable(t, chip, tbl::kEvent34, 34);
    rc |= printTable(t, chip, tbl::kEvent32, 32);
    rc |= printTable(t, chip, tbl::kEvent33, 33);
    Entry lids[kMaxLid];
    for (uint32_t lid = 0; lid < kMaxLid; ++lid) {
        rc |= readEntry(chip, tbl::kEvent031, lid, lids[lid]);
    }
    t.add(
        "                  1  2  3  4  5  6  7  8  9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 "
        "28 29 "
        "30 31 32\r\n");
    const VQ6192_TBL_ENTRY_S &d = g_astVQ6192TblEntryList[tbl::kEvent031];
    for (uint16_t i = 0; i < d.usMemberNum; ++i) {
        const VQ6192_TBL_MEMBER_S &m = d.pstMember[i];
        t.add("%17s =", m.pszName);
        for (uint32_t lid = 0; lid < kMaxLid; ++lid) {
            t.add(" %-2d", static_cast<int>(entryBits(lids[lid].w, m.usStartBit, m.usWidth)));
        }
        t.add("\r\n");
    }
    return rc;
}

// The ICP forwarding words of an object: 12 words from object * 12, as far as the table reaches.
uint32_t printIcpForward(TextBuilder &t, uint32_t chip, uint32_t object) {
    const uint32_t depth = g_VQ6192_CHIP_TABLE_INFO[tbl::kIcpFwd].ulDepth;
    uint32_t rc = 0;
    for (uint32_t w = 0; w < kRxIcpWords && object * kRxIcpWords + w < depth; ++w) {
        Entry e;
        rc |= readEntry(chip, tbl::kIcpFwd, object * kRxIcpWords + w, e);
        icpOctetLine(t, w, e.w[0]);
    }
    return rc;
}

uint32_t imapp(TextBuilder &t, uint32_t chip, uint32_t sel, uint32_t object) {
    switch (sel) {
        case 1:
            return printTable(t, chip, tbl::kPpTxc, object);
        case 2:
            return printTable(t, chip, tbl::kPpRxc, object);
        case 3: {
            uint32_t rc = printWords(
                t, chip, {tbl::kPpGpc0, tbl::kPpGpc1, tbl::kPpGpc2, tbl::kPpGpc3, tbl::kPpGpc4}, object);
            for (uint32_t w = 5; w < 16; ++w) {
                rc |= printOf(t, chip, tbl::kPpGpc5, object, w);
            }
            return rc;
        }
        case 4:
            return printWords(t, chip, {tbl::kPpTxs0, tbl::kPpTxs1}, object);
        case 5:
            return printWords(t, chip, {tbl::kPpRxs0, tbl::kPpRxs1}, object);
        case 6:
            return printWords(t, chip,
                              {tbl::kPpGps0, tbl::kPpGps1, tbl::kPpGps2, tbl::kPpGps3, tbl::kPpGps4,
                               tbl::kPpGps5, tableId("Imappgps6"), tbl::kPpGps7},
                              object);
        case 7:
            return printEvents(t, chip, object);
        case 8:
            return printIcpForward(t, chip, object);
        default:
            imappHelp(t);
            return 0;
    }
}

uint32_t printTxIcp(TextBuilder &t, uint32_t chip, uint32_t grp) {
    uint32_t rc = 0;
    uint32_t words[kTxIcpWords];
    for (uint32_t w = 0; w < kTxIcpWords; ++w) {
        Entry e;
        rc |= readEntry(chip, tbl::kTxIcpBuf, grp * entriesPer(tbl::kTxIcpBuf) + w, e);
        words[w] = e.w[0];
    }
    const auto b = [](uint32_t v, uint32_t n) { return (v >> (8 * n)) & 0xFFu; };
    t.add("  ICP octet 11 ~ 13: ");
    t.add("     %02X %02X %02X\r\n", b(words[0], 2), b(words[0], 1), b(words[0], 0));
    for (uint32_t w = 1; w < kTxIcpWords - 1; ++w) {
        t.add("  ICP octet %02d ~ %02d: ", static_cast<int>(10 + 4 * w), static_cast<int>(13 + 4 * w));
        t.add("  %02X %02X %02X %02X\r\n", b(words[w], 3), b(words[w], 2), b(words[w], 1), b(words[w], 0));
    }
    const uint32_t last = words[kTxIcpWords - 1];
    t.add("  ICP octet 50 ~ 51: ");
    t.add("  %02X %02X\r\n", b(last, 3), b(last, 2));
    // The bytes of the buffer that hold no octet of the cell.
    t.add("  Reserved: %02X", b(words[0], 3));
    t.add("  Reserved: %02X", b(last, 1));
    t.add("  Reserved: %02X", b(last, 0));
    t.add("\r\n");
    return rc;
}

uint32_t printLidMap(TextBuilder &t, uint32_t chip, uint32_t grp) {
    uint32_t rc = 0;
    uint32_t map[kMaxLid];
    for (uint32_t lid = 0; lid < kMaxLid; ++lid) {
        Entry e;
        rc |= readEntry(chip, tbl::kTxMap, entryIndex(tbl::kTxMap, grp, lid), e);
        map[lid] = e.get(fld::kTxCh);
    }
    t.add("IMA LID - LINK ID map:\r\n");
    for (uint32_t r = 0; r < 8; ++r) {
        t.add(
            "%u: tx_ch%-3u= %3x | %02u: tx_ch%02u = %3x | %02u: tx_ch%02u = %3x | %02u: tx_ch%02u = %3x\r\n",
            r + 1, r, map[r], r + 9, r + 8, map[r + 8], r + 17, r + 16, map[r + 16], r + 25, r + 24,
            map[r + 24]);
    }
    return rc;
}

uint32_t printIcpOffsets(TextBuilder &t, uint32_t chip, uint32_t first) {
    uint32_t rc = 0;
    t.add("LINK(icp_offset):\r\n");
    t.add("      0  16  32  48  64  80  96  112 128 144 160 176 192 208 224 240 256 272 288 304 320\r\n");
    for (uint32_t r = 0; r < kGridRows; ++r) {
        t.add("%2u:", r);
        for (uint32_t c = 0; c < kGridCols; ++c) {
            const uint32_t link = first + kGridRows * c + r;
            Entry e;
            if (link < kLinks) {
                rc |= readEntry(chip, tbl::kTxLkc, link, e);
            }
            t.add(" %3x", e.get(fld::kTxLkcIcpOffset));
        }
        t.add("\r\n");
    }
    return rc;
}

uint32_t printLinksInGroup(TextBuilder &t, uint32_t chip, uint32_t grp) {
    Entry e;
    const uint32_t rc = readEntry(chip, tbl::kTxLinkInGp, grp, e);
    t.add("LINKS IN IMA GROUP:\r\n");
    t.add("    0  16  32  48  64  80  96  112 128 144 160 176 192 208 224 240 256 272 288 304 320\r\n");
    for (uint32_t r = 0; r < kGridRows; ++r) {
        t.add("%2u:", r);
        for (uint32_t c = 0; c < kGridCols; ++c) {
            t.add("%s", entryBits(e.w, kGridRows * c + r, 1) ? " 1  " : " .  ");
        }
        t.add("\r\n");
    }
    return rc;
}

uint32_t imatx(TextBuilder &t, uint32_t chip, uint32_t sel, uint32_t object) {
    switch (sel) {
        case 1:
            return printWords(t, chip,
                              {tbl::kTxGps0, tbl::kTxGps1, tbl::kTxGps2, tbl::kTxGps3, tableId("Imatxgps4")},
                              object);
        case 2:
            return printTxIcp(t, chip, object);
        case 3:
            return printTable(t, chip, tbl::kTxGpc, object);
        case 4:
            return printLidMap(t, chip, object);
        case 5:
            return printWords(t, chip, {tbl::kTxLks0, tbl::kTxLks1}, object);
        case 6:
            return printIcpOffsets(t, chip, object);
        case 7:
            return printLinksInGroup(t, chip, object);
        case 8:
            return printTable(t, chip, tbl::kTxGpDepth, object);
        default:
            imatxHelp(t);
            return 0;
    }
}

uint32_t printDelay(TextBuilder &t, uint32_t chip, uint32_t grp) {
    uint32_t rc = runCmd(chip, VQ6192_IMA_CMD_READ_DELAY, grp, 0, 0, 0);
    rc |= printTable(t, chip, tbl::kRxDly32, grp + 32);
    rc |= printTable(t, chip, tbl::kRxDly33, grp + 33);
    t.add("Reserved imarx_overrun lcd lif Reserved ifsm_state Reserved write_ptr\r\n");
    t.add("-------- ------------- --- --- -------- ---------- -------- ---------\r\n");
    const VQ6192_TBL_ENTRY_S &d = g_astVQ6192TblEntryList[tbl::kRxDly031];
    for (uint32_t lid = 0; lid < kMaxLid; ++lid) {
        Entry e;
        rc |= readEntry(chip, tbl::kRxDly031, grp + lid, e);
        uint32_t v[8] = {};
        for (uint16_t i = 0; i < d.usMemberNum && i < 8; ++i) {
            v[i] = entryBits(e.w, d.pstMember[i].usStartBit, d.pstMember[i].usWidth);
        }
        t.add("%3u: %8x %13x %3x %3x %8x %10x %8x %9x\r\n", lid, v[0], v[1], v[2], v[3], v[4], v[5], v[6],
              v[7]);
    }
    return rc;
}

uint32_t printScvc(TextBuilder &t, uint32_t chip, uint32_t first) {
    uint32_t rc = 0;
    t.add("        0    1    2    3    4    5    6    7    8    9   10   11   12   13   14   15\r\n");
    for (uint32_t i = 0; i < kLinks; ++i) {
        const uint32_t index = first + i;
        if (i % 16 == 0) {
            t.add("%3d:", static_cast<int>(index));
        }
        Entry e;
        if (index < kLinks) {
            rc |= readEntry(chip, tbl::kRxScvc, index, e);
        }
        if (e.get(fld::kScvcEn) != 0) {
            t.add("  %3x", e.get(fld::kScvcGroupTag));
        } else {
            t.add("  ...");
        }
        if (i % 16 == 15) {
            t.add("\r\n");
        }
    }
    return rc;
}

uint32_t imarx(TextBuilder &t, uint32_t chip, uint32_t sel, uint32_t object) {
    switch (sel) {
        case 1:
            return printWords(t, chip, {tbl::kRxLkCnt0, tbl::kRxLkCnt1, tbl::kRxLkCnt2, tbl::kRxLkCnt3},
                              object);
        case 2:
            return printTable(t, chip, tableId("Imarxlkc"), object);
        case 3:
            return printTable(t, chip, tbl::kRxGpc, object);
        case 4:
            return printTable(t, chip, tbl::kRxIcpVld, object);
        case 5:
            return printWords(t, chip, {tableId("Imarxlks0"), tableId("Imarxlks1")}, object);
        case 6: {
            uint32_t rc = 0;
            for (uint32_t w = 0; w < kRxIcpWords; ++w) {
                Entry e;
                rc |= readEntry(chip, tbl::kRxIcpBuf, entryIndex(tbl::kRxIcpBuf, object, w), e);
                icpOctetLine(t, w, e.w[0]);
            }
            return rc | printOf(t, chip, tbl::kRxIcpBuf12, object, wordOf(tbl::kRxIcpBuf12));
        }
        case 7:
            return printTable(t, chip, tableId("Imarximarptr"), object);
        case 8:
            return printTable(t, chip, tableId("Imarximawptr"), object);
        case 9:
            return printWords(
                t, chip, {tableId("Imarxgpwptr0"), tableId("Imarxgpwptr1"), tableId("Imarxgpwptr2")}, object);
        case 10:
            return printDelay(t, chip, object);
        case 13:
            return printWords(t, chip, {tbl::kRxGpCnt0, tbl::kRxGpCnt1}, object);
        case 14:
            return printScvc(t, chip, object);
        case 15:
            return printTable(t, chip, tableId("Imarxscvcctrl"), object);
        default:
            imarxHelp(t);
            return 0;
    }
}

constexpr const char *kDumpModules[] = {"GLB_CFG", "IMA",   "PPP", "ATM", "CES",  "SAM",
                                        "DDR2C",   "MDDRC", "ETH", "TS",  "E1Map"};

// Dump modules are numbered 1..11; any other number lists them.
bool dumpModuleValid(TextBuilder &t, uint32_t module) {
    if (module >= 1 && module <= sizeof kDumpModules / sizeof kDumpModules[0]) {
        return true;
    }
    t.add("module ID(%u) is invalid. all valid module IDs are listed below:\r\n", module);
    for (uint32_t i = 0; i < sizeof kDumpModules / sizeof kDumpModules[0]; ++i) {
        char number[8];
        snprintf(number, sizeof number, "%u.", i + 1);
        t.add("  %-3s %s\r\n", number, kDumpModules[i]);
    }
    return false;
}

// Where the dump files go on the card; the file name itself is Dump<chip><module, two digits>.log.
constexpr char kDumpDir[] = "log/";
constexpr char kDumpChipName[] = "VQ6192";

uint32_t dumpModule(TextBuilder &t, uint32_t chip, uint32_t module) {
    t.add("\r\nASIC dump\r\n");
    uintptr_t base = 0;
    uint32_t rc = VQ6192_Base_GetChipBaseAddr(chip, &base);
    if (rc != 0) {
        t.add("ASIC_Base_GetChipBaseAddr return 0x%x\r\n", rc);
        return rc;
    }
    t.add("chip base addr: 0x%x\r\n", static_cast<unsigned>(base));
    char file[VQ6192_DUMP_FILE_NAME_MAX + 1];
    snprintf(file, sizeof file, "%sDump%u%02u.log", kDumpDir, chip, module);
    // The file functions go in first: the dump context refuses to initialise without them.
    rc = VQ6192_DUMP_RegFileFunc(chip, vq6192_fileopen_func, vq6192_filewrite_func, vq6192_fileclose_func);
    if (rc != 0) {
        t.add("ASIC_DUMP_RegFileFunc return 0x%x\r\n", rc);
        return rc;
    }
    rc = VQ6192_DUMP_InitializeDump(chip, kDumpChipName, base, g_VQ6192_ChipDump_DirectReg,
                                    g_VQ6192_ChipDump_DirectReg_Cnt, g_VQ6192_ChipDump_InDirectReg,
                                    g_VQ6192_ChipDump_InDirectReg_Cnt, file);
    if (rc != 0) {
        t.add("ASIC_DUMP_InitializeDump return 0x%x\r\n", rc);
        return rc;
    }
    // The module number is the group id of its register blocks and table groups.
    rc = VQ6192_DUMP_Dump(chip, static_cast<int32_t>(module));
    VQ6192_DUMP_ChipDumpEnd(chip);
    if (rc != 0) {
        t.add("ASIC_DUMP_Dump return 0x%x\r\n", rc);
        return rc;
    }
    t.add("dump '%s' finished with a success\r\n", file);
    return 0;
}

// One connection read back from the switching tables, in the layout of the connection listing.
void connRow(TextBuilder &t, const ATM_SRV_CONN &c) {
    t.add(
        "| Vcx| Tag| cType| SrcPort| SrcVpi| SrcVci| DstPort| DstVpi| DstVci| Stype| UpcNpc| PolicingId|   "
        "Qid| "
        "Clpt|  Fd| Pfd| Red| idx|\n");
    t.add("|%4u|%4u|%6u|%8u|%7u|%7u|%8u|%7u|%7u|%6u|%7u|%11u|%6u|%5u|%4u|%4u|%4u|%4u| \n", c.Vcx, c.Tag,
          c.cType, c.SrcPort, c.SrcVpi, c.SrcVci, c.DstPort, c.DstVpi, c.DstVci, c.Stype, c.UpcNpc,
          c.PolicingId, c.Qid, c.Clpt, c.Fd, c.Pfd, c.Red, c.idx);
}

uint32_t atmConn(TextBuilder &t, uint32_t chip, uint32_t connId, uint32_t dir) {
    uint16_t vcx = 0;
    uint32_t rc = VQ6192_ATM_GetAtmVcx(chip, connId, dir, &vcx);
    if (rc != 0) {
        // No connection number for that pair: nothing to show (the ATM layer has traced the refusal).
        return rc;
    }
    t.add("usVcx = %u\r\n", vcx);
    t.add("Tag: 0 Ingress, 1 Egress, 2 Local\r\n");
    t.add("cType: 0 VP, 1 VC\r\n");
    t.add("Stype: 1 CBR, 2 RTVBR, 3 NRTVBR, 4 UBR+, 5 UBR\r\n");
    ATM_SRV_CONN c{};
    rc = VQ6192_ATM_GetAtmSrvConn(chip, vcx, &c);
    connRow(t, c);

    ATM_POLICING_CFG p{};
    rc |= VQ6192_ATM_GetAtmPolcfg(chip, c.PolicingId, &p);
    t.add("\r\n----------------POLICY------------------\r\n");
    t.add("wIncrB      : %4x \r\n", p.wIncrB);
    t.add("wPBMode     : %4x \r\n", p.wPBMode);
    t.add("wLimitB     : %4x \r\n", p.wLimitB);
    t.add("wIncrA      : %4x \r\n", p.wIncrA);
    t.add("wPAMode     : %4x \r\n", p.wPAMode);
    t.add("wLimitA     : %4x \r\n", p.wLimitA);

    uint8_t srcType = 0;
    uint8_t sinkType = 0;
    uint32_t ccState = 0;
    uint32_t segEnd = 0;
    rc |= VQ6192_ATM_GetOamLinkCC(chip, vcx, &srcType, &sinkType, &ccState);
    rc |= VQ6192_ATM_GetOamSegEnd(chip, vcx, &segEnd);
    t.add("\r\n---------------OAM SET------------------\r\n");
    t.add("CC  Type (0 seg, 1 end)                    : %u, %u\r\n", srcType, sinkType);
    t.add("CC  Flag (0 None,1 src,2 sink,3 src+sink,4 disable src, 5 disable sink)  : %d\r\n",
          static_cast<int>(ccState));
    t.add("OAM Type (0 None, 1 seg, 2 end, 3 seg+end) : %d\r\n", static_cast<int>(segEnd));
    return rc;
}

// The PSN header kinds the label type line tells apart: none, or the MPLS label header that the
// MPLS, multicast MPLS and MEF encapsulations all build. The IP and UDP headers print their own header
// type (5..7), which the legend calls wrong for an ATM pseudowire.
constexpr uint32_t kHdNone = 0;
constexpr uint32_t kHdMpls = 4;
constexpr uint32_t kAtmService = 2;
constexpr uint32_t kSearchablePws = 512;

uint32_t labelType(uint32_t hdType) {
    return hdType == kHdNone ? 0 : hdType == kHdMpls ? 1 : hdType;
}

uint32_t atmPw(TextBuilder &t, uint32_t chip, uint32_t pw) {
    VQ6192_ETH_PSN_INFO_S psn{};
    uint32_t rc = VQ6192_ETH_GetPSNEthInfo(chip, pw, kAtmService, &psn);
    // The received label is found by searching the label map for the channel, which the packet side
    // offers for channels below 512 only: higher pseudowires show label 0 without a search.
    uint32_t inLabel = 0, sel = 0, found = 0;
    if (pw < kSearchablePws) {
        rc |= VQ6192_ETH_GetAtmCesEgMpls2Chnl(chip, pw, kAtmService, &inLabel, &sel, &found);
    }
    uint32_t encap = 0, vpi = 0, vci = 0, cells = 0, wait = 0;
    uint8_t cw = 0;
    uint16_t snChk = 0, snAdd = 0;
    rc |= VQ6192_ATM_GetAtmPwEncpMode(chip, pw, &encap);
    rc |= VQ6192_ATM_GetPwEgVPIVCI(chip, pw, &vpi, &vci);
    rc |= VQ6192_ATM_GetAtmPwCWEn(chip, pw, &cw);
    rc |= VQ6192_ATM_GetPwSnChkAdd(chip, pw, &snChk, &snAdd);
    rc |= VQ6192_ATM_GetAtmPwCellConcAttr(chip, pw, &cells, &wait);
    const auto ul = [](uint32_t v) { return static_cast<unsigned long>(v); };
    t.add("LABEL TYPE(0 unuse, 1 MPLS, other wrong)         :           %u\r\n", labelType(psn.dwLblHdType));
    t.add("EGRESS LABEL       :           0x%x(%lu)\r\n", psn.dwLblPwLable, ul(psn.dwLblPwLable));
    t.add("INGRESS LABEL      :           0x%x(%lu)\r\n", inLabel, ul(inLabel));
    t.add("ENCAP TYPE(0,3 N:1; 1 VPC 1:1; 2 VCC 1:1)         :           %d\r\n", static_cast<int>(encap));
    t.add("EGRESS VPI         :           0x%x(%lu)\r\n", vpi, ul(vpi));
    t.add("EGRESS VCI         :           0x%x(%lu)\r\n", vci, ul(vci));
    t.add("CW  ENABLE         :           %u\r\n", static_cast<unsigned>(cw));
    t.add("SN CHECK ENABLE    :           %u\r\n", static_cast<unsigned>(snChk));
    t.add("SN ADD ENABLE      :           %u\r\n", static_cast<unsigned>(snAdd));
    t.add("MAX CELL NUM       :           %lu\r\n", ul(cells));
    t.add("MAX WAIT TIME(ms)  :           %lu\r\n", ul(wait));
    if (rc != 0) {
        t.add("The Data is INVALID. 0x%X\r\n", rc);
    } else {
        t.add("The Data is VALID\r\n");
    }
    return rc;
}

bool issCode(uint32_t code) {
    switch (code) {
        case 0:
        case 1:
        case 2:
        case 4:
        case 5:
        case 6:
        case 8:
        case 9:
        case 10:
        case 12:
        case 13:
        case 16:
        case 17:
        case 24:
        case 25:
            return true;
        default:
            return false;
    }
}

void issHelp(TextBuilder &t) {
    t.add("==================== IMA ISS HELP ====================\r\n\r\n");
    t.add(" 1. add_group          para1: TX_PHY_VALID, para2: RX_PHY_VALID, para3: 0\r\n");
    t.add(" 2. delete_group       no para\r\n");
    t.add(" 3. restart_group      no para\r\n");
    t.add(" 5. inhibit_group      no para\r\n");
    t.add(" 6. not_inhibit_group  no para\r\n");
    t.add(" 9. start_lasr         para1: TX_PHY_VALID, para2: RX_PHY_VALID, para3: 0\r\n");
    t.add("10. delete_link        para1: TX_PHY_VALID, para2: RX_PHY_VALID, para3: 0\r\n");
    t.add("11. set_rx_phy_defect  para1: 0, para2: RX_PHY_VALID, para3: bit 0 defect\r\n");
    t.add(
        "13. unusable_link      para1: TX_PHY_VALID, para2: RX_PHY_VALID, para3: bits 0..2 rx reason, "
        "bits 3..5 tx reason\r\n");
    t.add(
        "17. update_test_ptn    para1: bits 0..7 tx pattern, 8..12 tx test LID, 13 tx test enable, "
        "15..22 rx pattern, 28 rx test enable\r\n");
    t.add("18. update_tx_trl      para1: LID\r\n");
    t.add("25. read_event         no para\r\n");
    t.add("26. read_delay         no para\r\n");
    t.add("extra parameters 1..3 (type 6) give para1..para3\r\n");
}

}  // namespace
}  // namespace vq::ima

using namespace vq::ima;

extern "C" {

VQ6192_API int32_t MCARD_IMA_DiagHardwarePrint6192Table(uint32_t chip, uint32_t tableId, uint32_t object,
                                                        uint32_t word, char *buf) {
    if (refused(chip, buf) || tableId >= VQ6192_CHIP_TABLE_NUM) {
        return kRefused;
    }
    vq::TextBuilder t(buf);
    return static_cast<int32_t>(printOf(t, chip, tableId, object, word));
}

VQ6192_API int32_t MCARD_IMA_Dbg_ImaHardWareInfoHelp(uint32_t chip, char *buf) {
    if (refused(chip, buf)) {
        return kRefused;
    }
    vq::TextBuilder t(buf);
    t.add("==================== IMA HARDWARE INFO HELP ====================\r\n");
    t.add(" 0. help\r\n");
    t.add(" 1. dump a module's registers and tables,  arg1: module ID,   arg2: object\r\n");
    t.add(" 2. table entry,                           arg1: table ID,    arg2: index\r\n");
    t.add(" 3. IMA processor tables,                  arg1: table sel,   arg2: link or group ID\r\n");
    t.add(" 4. IMA transmit tables,                   arg1: table sel,   arg2: link or group ID\r\n");
    t.add(" 5. IMA receive tables,                    arg1: table sel,   arg2: link or group ID\r\n");
    t.add(" 6. set extra parameter,                   arg1: index 1..10, arg2: value\r\n");
    t.add(" 7. issue IMA command,                     arg1: command,     arg2: group ID\r\n");
    t.add(" 8. ATM connection,                        arg1: connection,  arg2: direction\r\n");
    t.add(" 9. ATM pseudowire,                        arg1: PW 0..2047\r\n");
    t.add("10. ATM drop counters\r\n");
    return 0;
}

VQ6192_API int32_t MCARD_IMA_DiagHardwareGetTable(uint32_t chip, uint32_t tableId, uint32_t index,
                                                  char *buf) {
    if (refused(chip, buf)) {
        return kRefused;
    }
    vq::TextBuilder t(buf);
    if (tableId == 0) {
        for (uint32_t id = 0; id < VQ6192_CHIP_TABLE_NUM; ++id) {
            const VQ6192_TBL_ENTRY_S &d = g_astVQ6192TblEntryList[id];
            t.add("%3u - %22s - %.60s\r\n", id, d.pszName, d.pszDesc);
        }
        return 0;
    }
    Entry e;
    const uint32_t rc = readEntry(chip, tableId, index, e);
    if (rc != 0) {
        t.add("ASIC_Read_Table failed, ret=0x%X\r\n", rc);
        return static_cast<int32_t>(rc);
    }
    t.add("\r\n");
    vq::tblEntryPrintf(t, tableId, e.w);
    t.add("\r\n");
    return 0;
}

VQ6192_API int32_t MCARD_IMA_DiagHardwareGetImapp(uint32_t chip, uint32_t tableSel, uint32_t object,
                                                  char *buf) {
    if (refused(chip, buf)) {
        return kRefused;
    }
    vq::TextBuilder t(buf);
    return static_cast<int32_t>(imapp(t, chip, tableSel, object));
}

VQ6192_API int32_t MCARD_IMA_DiagHardwareGetImatx(uint32_t chip, uint32_t tableSel, uint32_t object,
                                                  char *buf) {
    if (refused(chip, buf)) {
        return kRefused;
    }
    vq::TextBuilder t(buf);
    return static_cast<int32_t>(imatx(t, chip, tableSel, object));
}

VQ6192_API int32_t MCARD_IMA_DiagHardwareGetImarx(uint32_t chip, uint32_t tableSel, uint32_t object,
                                                  char *buf) {
    if (refused(chip, buf)) {
        return kRefused;
    }
    vq::TextBuilder t(buf);
    return static_cast<int32_t>(imarx(t, chip, tableSel, object));
}

VQ6192_API int32_t MCARD_IMA_DiagHardwareSetExtraPara(uint32_t chip, uint32_t index, uint32_t value,
                                                      char *buf) {
    if (refused(chip, buf)) {
        return kRefused;
    }
    vq::TextBuilder t(buf);
    if (index < 1 || index > g_MCARD_IMA_DIAG_EXTRA_PARA_MAX_INDEX) {
        t.add("set extra para failed.\r\nparameter index should between [1, %lu]\r\n",
              static_cast<unsigned long>(g_MCARD_IMA_DIAG_EXTRA_PARA_MAX_INDEX));
        return 0;
    }
    g_uiKx9rDiagExtraPara[index - 1] = value;
    t.add("set extra para[%u] to %u(0x%x)\r\n", index, value, value);
    return 0;
}

VQ6192_API int32_t MCARD_IMA_DiagHardwareSetImaIss(uint32_t chip, uint32_t command, uint32_t group,
                                                   char *buf) {
    if (refused(chip, buf)) {
        return kRefused;
    }
    vq::TextBuilder t(buf);
    const uint32_t code = command - 1;
    if (command == 0 || !issCode(code)) {
        issHelp(t);
        return 0;
    }
    const uint32_t *p = g_uiKx9rDiagExtraPara;
    const uint32_t rc = runCmd(chip, code, group, p[0], p[1], p[2]);
    t.add("Issue IMA Command: %u, para = %lu, %lu, %lu, %lu, ret=%lu\r\n\r\n", command,
          static_cast<unsigned long>(group), static_cast<unsigned long>(p[0]),
          static_cast<unsigned long>(p[1]), static_cast<unsigned long>(p[2]), static_cast<unsigned long>(rc));
    return static_cast<int32_t>(rc);
}

VQ6192_API int32_t MCARD_IMA_DiagHardwareGet6192Dump(uint32_t chip, uint32_t module, uint32_t object,
                                                     char *buf) {
    (void)object;  // a module is dumped whole
    if (refused(chip, buf)) {
        return kRefused;
    }
    vq::TextBuilder t(buf);
    if (!dumpModuleValid(t, module)) {
        return 0;
    }
    return static_cast<int32_t>(dumpModule(t, chip, module));
}

VQ6192_API int32_t MCARD_IMA_DiagHardwareGetAtmConnCfg(uint32_t chip, uint32_t connId, uint32_t dir,
                                                       char *buf) {
    if (refused(chip, buf)) {
        return kRefused;
    }
    vq::TextBuilder t(buf);
    return static_cast<int32_t>(atmConn(t, chip, connId, dir));
}

VQ6192_API int32_t MCARD_IMA_DiagHardwareGetAtmPwe3Cfg(uint32_t chip, uint32_t pw, char *buf) {
    if (refused(chip, buf)) {
        return kRefused;
    }
    vq::TextBuilder t(buf);
    return static_cast<int32_t>(atmPw(t, chip, pw));
}

// The chip-wide drop counters in the layout of the ATM statistics command.
VQ6192_API int32_t MCARD_IMA_DiagHardwareGetAtmDrop(uint32_t chip, char *buf) {
    if (refused(chip, buf)) {
        return kRefused;
    }
    return static_cast<int32_t>(getatmdropstat(chip, buf));
}

VQ6192_API int32_t MCARD_IMA_Dbg_ImaHardWareInfo(uint32_t chip, uint32_t type, uint32_t arg1, uint32_t arg2,
                                                 char *buf) {
    if (refused(chip, buf)) {
        return kRefused;
    }
    switch (type) {
        case 0:
            return MCARD_IMA_Dbg_ImaHardWareInfoHelp(chip, buf);
        case 2:
            return MCARD_IMA_DiagHardwareGetTable(chip, arg1, arg2, buf);
        case 3:
            return MCARD_IMA_DiagHardwareGetImapp(chip, arg1, arg2, buf);
        case 4:
            return MCARD_IMA_DiagHardwareGetImatx(chip, arg1, arg2, buf);
        case 5:
            return MCARD_IMA_DiagHardwareGetImarx(chip, arg1, arg2, buf);
        case 6:
            return MCARD_IMA_DiagHardwareSetExtraPara(chip, arg1, arg2, buf);
        case 7:
            return MCARD_IMA_DiagHardwareSetImaIss(chip, arg1, arg2, buf);
        case 1:
            return MCARD_IMA_DiagHardwareGet6192Dump(chip, arg1, arg2, buf);
        case 8:
            return MCARD_IMA_DiagHardwareGetAtmConnCfg(chip, arg1, arg2, buf);
        case 9:
            return MCARD_IMA_DiagHardwareGetAtmPwe3Cfg(chip, arg1, buf);
        case 10:
            return MCARD_IMA_DiagHardwareGetAtmDrop(chip, buf);
        default: {
            vq::TextBuilder t(buf);
            t.add("  Table Type Error!! Tyble Type %u  \r\n ", type);
            return 0;
        }
    }
}

}  // extern "C"
