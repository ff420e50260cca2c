// Diagnostic commands of the ATM, OAM and ATM pseudowires family: each calls one read operation and
// prints what it returned; the listings print the connection, port and template shadows.
#include <string>
#include <vector>

#include "diag/layout.h"
#include "diag/registry.h"
#include "vq6192/atm.h"

namespace vq::diag {
namespace {

constexpr uint32_t kNoBuffer = 2;
constexpr char kSignedValueLine[] = " %s    :    0x%x(%d)\n";

constexpr char kConnHeader[] =
    "| Vcx| Tag| cType| SrcPort| SrcVpi| SrcVci| DstPort| DstVpi| DstVci| Stype| UpcNpc| "
    "PolicingId|   Qid| Clpt|  Fd| Pfd| Red| idx|\n";
constexpr char kConnRow[] = "|%4u|%4u|%6u|%8u|%7u|%7u|%8u|%7u|%7u|%6u|%7u|%11u|%6u|%5u|%4u|%4u|%4u|%4u| \n";

void connRow(TextBuilder &text, const ATM_SRV_CONN &c) {
    text.add(kConnRow, c.Vcx, c.Tag, c.cType, c.SrcPort, c.SrcVpi, c.SrcVci, c.DstPort, c.DstVpi, c.DstVci,
             c.Stype, c.UpcNpc, c.PolicingId, c.Qid, c.Clpt, c.Fd, c.Pfd, c.Red, c.idx);
}

// A dashed line as wide as the connection header.
void connDash(TextBuilder &text) {
    text.add("%s\n", std::string(sizeof kConnHeader - 2, '-').c_str());
}

void asterisks(TextBuilder &text) {
    text.add("%s\n", std::string(128, '*').c_str());
}

// Print "| name : value" fields three to a line between the title and the end mark.
constexpr char kFramedTitle[] = "    %s\n";
constexpr char kFramedEnd[] = "    PRINT_END\n";
void framedTriples(TextBuilder &text, const char *title, std::initializer_list<Field> fields) {
    text.add(kFramedTitle, title);
    uint32_t n = 0;
    for (const Field &f : fields) {
        text.add("%s | %-16s : %8u", n % 3 == 0 ? "   " : "", f.label, f.value);
        if (++n % 3 == 0) {
            text.add(" \n");
        }
    }
    if (n % 3 != 0) {
        text.add(" \n");
    }
    text.add(kFramedEnd);
}

// Positions in a PW's statistics record.
constexpr uint32_t kPerTxPkt = 4;
constexpr uint32_t kPerRxPkt = 5;
constexpr const char *kPerSentences[VQ6192_ATM_PWE3_PER_NUM] = {
    "Sequence number of the previous packet in the upstream direction",
    "Number of PW packets waiting for transmission",
    "Number of cells encapsulated in the current packet",
    "Number of packets whose delay expired",
    "Number of packets in the upstream direction",
    "Number of packets in the downstream direction",
    "Number of lost packets",
    "Number of out-of-order packets",
    "Number of incomplete cells",
    "Expected sequence number",
    "Last non-zero sequence number received",
    "Number of consecutive in-order packets",
    "Downstream FIFO overflow",
    "Upstream FIFO overflow",
};

constexpr const char *kFifoFlagNames[VQ6192_ATM_PW3_FIFO_STAT_NUM] = {
    "byPwe3rxEthfifoEmpH", "byPwe3rxEthfifoFullH", "byPwe3rxSwfifoEmpH", "byPwe3rxSwfifoFullH",
    "byPwe3txEthfifoEmpH", "byPwe3txEthfifoFullH", "byPwe3txSwfifoEmpH", "byPwe3txSwfifoFullH",
    "byPwe3rxEthfifoEmp",  "byPwe3rxEthfifoFull",  "byPwe3rxSwfifoEmp",  "byPwe3rxSwfifoFull",
    "byPwe3txEthfifoEmp",  "byPwe3txEthfifoFull",  "byPwe3txSwfifoEmp",  "byPwe3txSwfifoFull",
    "byPwe3rxEthfifoRst",  "byPwe3rxSwfifoRst",    "byPwe3txEthfifoRst", "byPwe3txSwfifoRst",
    "byPwe3RxfifoOverrun", "byPwe3TxfifoOverrun",
};

// Connections with dropped cells, with their service type and line port from the host's shadow.
void vcxDrops(TextBuilder &text, uint32_t chip) {
    unsigned long all = 0;
    for (uint32_t vcx = 0; vcx < VQ6192_ATM_VCX_NUM; ++vcx) {
        uint16_t drop = 0;
        VQ6192_ATM_GetAtmVcxDropStat(chip, vcx, &drop);
        if (drop == 0) {
            continue;
        }
        const ATM_SRV_CONN &c = g_conndata[vcx].stConn;
        // The line port is the destination of an egress connection (tag 1), else its source.
        const uint32_t linePort = c.Tag == 1 ? c.DstPort : c.SrcPort;
        text.add("VCX=%4u,       DropCell=%4u        SerType=%4u          wImaPort=%4u\n", vcx, drop, c.Stype,
                 linePort);
        all += drop;
    }
    text.add("dwDropAll = %lu\n", all);
}

void portDrops(TextBuilder &text, uint32_t chip) {
    for (uint32_t port = 0; port < VQ6192_ATM_LINE_PORT_NUM; ++port) {
        uint16_t drop = 0;
        VQ6192_ATM_GetAtmPortDropStat(chip, port, &drop);
        if (drop != 0) {
            text.add("Port=%u,       DropCell=%u\n", port, drop);
        }
    }
}

}  // namespace
}  // namespace vq::diag

using vq::TextBuilder;
using vq::diag::Field;
using vq::diag::framed;
using vq::diag::kMacSep;

extern "C" {

VQ6192_API uint32_t getatmvcx(uint32_t chip, uint32_t link, uint32_t dir, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t vcx = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmVcx(chip, link, dir, &vcx);
    framed(buf, kMacSep, "GetAtmVcx()", {{"wVCX", vcx}});
    return rc;
}

VQ6192_API uint32_t getatmsrvconn(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    ATM_SRV_CONN c{};
    const uint32_t rc = VQ6192_ATM_GetAtmSrvConn(chip, vcx, &c);
    TextBuilder text(buf);
    std::string header = vq::diag::kConnHeader;
    header.replace(header.find("Vcx"), 3, "Wcx");
    vq::diag::asterisks(text);
    text.add("%s", header.c_str());
    vq::diag::connRow(text, c);
    vq::diag::asterisks(text);
    return rc;
}

#define VQ6192_DIAG_U8_BY_VCX(cmd, op, title, label)                  \
    VQ6192_API uint32_t cmd(uint32_t chip, uint32_t vcx, char *buf) { \
        if (buf == nullptr) {                                         \
            return vq::diag::kNoBuffer;                               \
        }                                                             \
        uint8_t v = 0;                                                \
        const uint32_t rc = op(chip, vcx, &v);                        \
        TextBuilder text(buf);                                        \
        framed(text, kMacSep, title, {{label, v}});                   \
        return rc;                                                    \
    }
VQ6192_DIAG_U8_BY_VCX(getatmvcxenstat, VQ6192_ATM_GetAtmVcxEnStat, "GetAtmVcxEnStat()", "byEnable")
VQ6192_DIAG_U8_BY_VCX(getatmupcnpcenstat, VQ6192_ATM_GetAtmUpcNpcEnStat, "GetAtmUpcNpcEnStat()", "byEnable")
VQ6192_DIAG_U8_BY_VCX(getatmportloopmode, VQ6192_ATM_GetAtmPortLoopMode, "GetAtmPortLoopMode()", "byLoopMode")
VQ6192_DIAG_U8_BY_VCX(getatmccloc, VQ6192_ATM_GetOamCcloc, "GetOamCcloc()", "bCcloc")
#undef VQ6192_DIAG_U8_BY_VCX

VQ6192_API uint32_t getatmpolicingid(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t id = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmPolicingID(chip, vcx, &id);
    framed(buf, kMacSep, "GetAtmPolicingID()", {{"wPolicingID", id}});
    return rc;
}

VQ6192_API uint32_t getlinktype(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t type = 0;
    const uint32_t rc = VQ6192_ATM_GetLinkType(chip, vcx, &type);
    framed(buf, kMacSep, "GetLinkType()", {{"wType", type}});
    return rc;
}

VQ6192_API uint32_t getatmportenstat(uint32_t chip, uint32_t port, uint32_t side, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t en = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmPortEnStat(chip, port, side, &en);
    framed(buf, kMacSep, "GetAtmPortEnStat()", {{"byEnable", en}});
    return rc;
}

VQ6192_API uint32_t getatmporttype(uint32_t chip, uint32_t port, uint32_t side, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t uni = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmPortType(chip, port, side, &uni);
    framed(buf, kMacSep, "GetAtmPortType()", {{"byUniFlag", uni}});
    return rc;
}

VQ6192_API uint32_t getatmtransconnsingle(uint32_t chip, uint32_t port, uint32_t side, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t map = 0;
    uint16_t dst = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmTransConnSingle(chip, port, side, &map, &dst);
    framed(buf, kMacSep, "GetAtmTransConnSingle()", {{"byPortMap", map}, {"wDstPort", dst}});
    return rc;
}

VQ6192_API uint32_t getatmtransfifo(uint32_t chip, uint32_t linePort, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint32_t th[3] = {};
    const uint32_t rc = VQ6192_ATM_GetAtmTransFiFo(chip, linePort, th);
    framed(buf, kMacSep, "GetAtmTransFiFo()",
           {{"dwBmPause", th[0]}, {"dwBmCancel", th[1]}, {"dwBmFifoDrop", th[2]}});
    return rc;
}

VQ6192_API uint32_t getatmqm(uint32_t chip, uint32_t queueIndex, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t port = 0;
    uint32_t type = 0;
    uint16_t qid = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmQm(chip, queueIndex, &port, &type, &qid);
    framed(buf, kMacSep, "GetAtmQm()", {{"wPort", port}, {"renServiceType", type}, {"wQid", qid}});
    return rc;
}

VQ6192_API uint32_t getatmbmpvc(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t bm[5] = {};
    const uint32_t rc = VQ6192_ATM_GetAtmBmPvc(chip, vcx, bm);
    framed(buf, kMacSep, "GetAtmBmPvc()",
           {{"byClpt", bm[0]}, {"byFd", bm[1]}, {"byPfd", bm[2]}, {"byRed", bm[3]}, {"byIdx", bm[4]}});
    return rc;
}

VQ6192_API uint32_t getatmbmth(uint32_t chip, uint32_t idx, uint32_t serviceType, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    ATM_BM_TH t{};
    const uint32_t rc = VQ6192_ATM_GetAtmBmTh(chip, idx, serviceType, &t);
    framed(buf, kMacSep, "GetAtmBmTh()",
           {{"wBmClp0S0", t.wBmClp0S0},
            {"wBmClp1S1", t.wBmClp1S1},
            {"bBmWeight", t.bBmWeight},
            {"dwBmRedMin", t.dwBmRedMin},
            {"dwBmRedMax", t.dwBmRedMax},
            {"dwBmFdTh0", t.dwBmFdTh0},
            {"dwBmFdTh1", t.dwBmFdTh1},
            {"dwBmClpTh0", t.dwBmClpTh0},
            {"dwBmClpTh1", t.dwBmClpTh1}});
    return rc;
}

VQ6192_API uint32_t getatmbmreg(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint32_t v[7] = {};
    const uint32_t rc = VQ6192_ATM_GetAtmBmReg(chip, v);
    framed(buf, kMacSep, "GetAtmBmReg()",
           {{"dwAllTh", v[0]},
            {"dwCbrTh", v[1]},
            {"dwRtVbrTh", v[2]},
            {"dwNrtVbrTh", v[3]},
            {"dwUbrPlusTh", v[4]},
            {"dwUbrTh", v[5]},
            {"dwOamTh", v[6]}});
    return rc;
}

VQ6192_API uint32_t getatmpolcfg(uint32_t chip, uint32_t policingId, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    ATM_POLICING_CFG p{};
    const uint32_t rc = VQ6192_ATM_GetAtmPolcfg(chip, policingId, &p);
    framed(buf, kMacSep, "GetAtmPolcfg()",
           {{"wIncrB", p.wIncrB},
            {"wPBMode", p.wPBMode},
            {"wLimitB", p.wLimitB},
            {"wIncrA", p.wIncrA},
            {"wPAMode", p.wPAMode},
            {"wLimitA", p.wLimitA}});
    return rc;
}

VQ6192_API uint32_t getatmebs(uint32_t chip, uint32_t linePort, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    ATM_EBS_CFG e{};
    const uint32_t rc = VQ6192_ATM_GetAtmEbs(chip, linePort, &e);
    framed(buf, kMacSep, "GetAtmEbs()",
           {{"byVbrEn", e.byVbrEn},
            {"byNvbrEn", e.byNvbrEn},
            {"wRtvbrWeight", e.wRtvbrWeight},
            {"wNrtvbrWeight", e.wNrtvbrWeight},
            {"wUbrPlusWeight", e.wUbrPlusWeight},
            {"wUbrWeight", e.wUbrWeight}});
    return rc;
}

VQ6192_API uint32_t getatmshvc(uint32_t chip, uint32_t linePort, uint32_t cls, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint32_t cells = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmShVc(chip, linePort, cls, &cells);
    framed(buf, kMacSep, "GetAtmShVc()", {{"dwShvcCell", cells}});
    return rc;
}

VQ6192_API uint32_t getoamcrcenstat(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t en = 0;
    const uint32_t rc = VQ6192_ATM_GetOamCrcEnStat(chip, &en);
    framed(buf, kMacSep, "GetOamCrcEnStat()", {{"byEnable", en}});
    return rc;
}

VQ6192_API uint32_t getoamlinkcc(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t src = 0;
    uint8_t sink = 0;
    uint32_t state = 0;
    const uint32_t rc = VQ6192_ATM_GetOamLinkCC(chip, vcx, &src, &sink, &state);
    framed(buf, kMacSep, "GetOamLinkCC()", {{"bySrcType", src}, {"bySinkType", sink}, {"dwState", state}});
    return rc;
}

VQ6192_API uint32_t getoamsegend(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint32_t type = 0;
    const uint32_t rc = VQ6192_ATM_GetOamSegEnd(chip, vcx, &type);
    framed(buf, kMacSep, "GetOamSegEnd()", {{"renSegEndType", type}}, vq::diag::kSignedValueLine);
    return rc;
}

VQ6192_API uint32_t getoamllid(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t id[16] = {};
    const uint32_t rc = VQ6192_ATM_GetOamLLID(chip, id);
    TextBuilder text(buf);
    vq::diag::framedHead(text, kMacSep, "GetOamLLID()");
    for (uint32_t i = 0; i < 16; ++i) {
        text.add("byllid[%u]=0x%-2x    ", i, id[i]);
    }
    text.add("\n%s", kMacSep);
    return rc;
}

VQ6192_API uint32_t getoamcell(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t vcx = 0;
    uint8_t cell[VQ6192_ATM_CELL_BYTES] = {};
    const uint32_t rc = VQ6192_ATM_GetOamCell(chip, &vcx, cell);
    TextBuilder text(buf);
    if (rc != 0) {
        text.add("OAM cells are not reported or a read error occurs.\n");
        return rc;
    }
    text.add("VCX=%u\n", vcx);
    for (uint32_t i = 0; i < VQ6192_ATM_CELL_BYTES; ++i) {
        text.add("cell[%u]=0x%x\n", i, cell[i]);
    }
    return rc;
}

VQ6192_API uint32_t getoamvcxfifo(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t vcx = 0;
    const uint32_t rc = VQ6192_ATM_GetOamVcxFifo(chip, &vcx);
    TextBuilder text(buf);
    text.add("OAM report VCX is %u\n", vcx);
    return rc;
}

VQ6192_API uint32_t getcclocall(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    TextBuilder text(buf);
    uint32_t rc = 0;
    for (uint32_t vcx = 0; vcx < VQ6192_ATM_VCX_NUM; ++vcx) {
        uint8_t loc = 0;
        rc |= VQ6192_ATM_GetOamCcloc(chip, vcx, &loc);
        if (loc != 0) {
            text.add("VCX=%8u            CCLOC=%8u\n", vcx, loc);
        }
    }
    return rc;
}

VQ6192_API uint32_t getlinkdata(uint32_t /*chip*/, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    TextBuilder text(buf);
    uint32_t links = 0;
    text.add("%s", vq::diag::kConnHeader);
    for (const ATM_CONN_DATA &row : g_conndata) {
        if (row.ulUsed == 1) {
            vq::diag::connRow(text, row.stConn);
            vq::diag::connDash(text);
            ++links;
        }
    }
    uint32_t ports = 0;
    text.add("| LcptPort| ScptPort| BmPause| BmCancel| BmFifoDrop|\n");
    for (const ATM_PORT_DATA &row : g_atmportdata) {
        if (row.wUsed == 1) {
            text.add("|%8u|%8u|%8u|%8u|%8u|\n", row.LcptPort, row.ScptPort, row.BmPause, row.BmCancel,
                     row.BmFifoDrop);
            ++ports;
        }
    }
    text.add("| ATM link num count is:  = %u\n", links);
    text.add("| ATM Port num count is:  = %u\n", ports);
    return 0;
}

VQ6192_API uint32_t getbmtemplate(uint32_t /*chip*/, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    TextBuilder text(buf);
    text.add("| idx| ServiceType| Clp0S0| Clp1S1| RedMax| RedMin| FdTh0| FdTh1| ClpTh0| ClpTh1|\n");
    for (const ATM_BM_TEMPLATE_DATA &row : g_bmtemplatedata) {
        if (row.wServiceType == 0) {
            continue;
        }
        const ATM_BM_TH &t = row.stTh;
        text.add("|%4u|%8u|%6u|%6u|%6u|%6u|%6u|%6u|%6u|%6u|%6u\n", row.wIdx, row.wServiceType, t.wBmClp0S0,
                 t.wBmClp1S1, t.bBmWeight, t.dwBmRedMin, t.dwBmRedMax, t.dwBmFdTh0, t.dwBmFdTh1, t.dwBmClpTh0,
                 t.dwBmClpTh1);
    }
    return 0;
}

}  // extern "C"

extern "C" {
// ---- Counters, alarms and capture ----

VQ6192_API uint32_t getatmportstat(uint32_t chip, uint32_t port, uint32_t side, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint32_t rcc = 0, tcc = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmPortStat(chip, port, side, &rcc, &tcc);
    framed(buf, kMacSep, "GetAtmPortStat()", {{"dwRcc", rcc}, {"dwTcc", tcc}});
    return rc;
}

VQ6192_API uint32_t getatmvcsstat(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint32_t tt = 0, tr = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmVcsStat(chip, vcx, &tt, &tr);
    framed(buf, kMacSep, "GetAtmVcsStat()", {{"dwTTcc", tt}, {"dwTRcc", tr}});
    return rc;
}

VQ6192_API uint32_t getatmccsrcstat(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t timer = 0, cc = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmCcSrcStat(chip, vcx, &timer, &cc);
    framed(buf, kMacSep, "GetAtmCcSrcStat()", {{"wSrcTimer", timer}, {"wTtcc", cc}});
    return rc;
}

VQ6192_API uint32_t getatmvcxdropstat(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t drop = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmVcxDropStat(chip, vcx, &drop);
    framed(buf, kMacSep, "GetAtmVcxDropStat()", {{"wDropCell", drop}});
    return rc;
}

VQ6192_API uint32_t getatmportdropstat(uint32_t chip, uint32_t linePort, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t drop = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmPortDropStat(chip, linePort, &drop);
    framed(buf, kMacSep, "GetAtmPortDropStat()", {{"wDropCell", drop}});
    return rc;
}

VQ6192_API uint32_t getvcxdropinfo(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t all5 = 0, fd = 0, pfd = 0;
    const uint32_t rc = VQ6192_ATM_GetVcxDropInfo(chip, vcx, &all5, &fd, &pfd);
    framed(buf, kMacSep, "GetVcxDropInfo()", {{"byBmAll5", all5}, {"byBmFD", fd}, {"byBmPFD", pfd}});
    return rc;
}

VQ6192_API uint32_t getatmdropstat(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    ATM_DROP_STAT d{};
    const uint32_t rc = VQ6192_ATM_GetAtmDropStat(chip, &d);
    TextBuilder text(buf);
    vq::diag::framedTriples(
        text, "GetAtmDropStat()",
        {{"wRedDrop", d.wRedDrop},         {"wFdDrop", d.wFdDrop},         {"wPfdDrop", d.wPfdDrop},
         {"wClpDrop", d.wClpDrop},         {"wFdAll5Drop", d.wFdAll5Drop}, {"wPfdAll5Drop", d.wPfdAll5Drop},
         {"wCbrDrop", d.wCbrDrop},         {"wRtvbrDrop", d.wRtvbrDrop},   {"wNrtvbrDrop", d.wNrtvbrDrop},
         {"wUbrplusDrop", d.wUbrplusDrop}, {"wUbrDrop", d.wUbrDrop},       {"wGlobalDrop", d.wGlobalDrop},
         {"wErrDrop", d.wErrDrop},         {"wTcamDropRx", d.wTcamDropRx}, {"wTcamDropTx", d.wTcamDropTx},
         {"wLcptDropRx", d.wLcptDropRx},   {"wLcptDropTx", d.wLcptDropTx}, {"wScptDropRx", d.wScptDropRx},
         {"wScptDropTx", d.wScptDropTx},   {"wNoVldRx", d.wNoVldRx},       {"wNoVldTx", d.wNoVldTx}});
    return rc;
}

VQ6192_API uint32_t getatmqmdatastat(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    ATM_QM_DATA_STAT q{};
    const uint32_t rc = VQ6192_ATM_GetAtmQmDataStat(chip, &q);
    TextBuilder text(buf);
    vq::diag::framedTriples(text, "GetAtmQmDataStat()",
                            {{"dwCbrData", q.dwCbrData},
                             {"dwRtVbrData", q.dwRtVbrData},
                             {"dwNrtVbrData", q.dwNrtVbrData},
                             {"dwUbrPlusData", q.dwUbrPlusData},
                             {"dwUbrData", q.dwUbrData},
                             {"dwGlobalData", q.dwGlobalData}});
    return rc;
}

VQ6192_API uint32_t getatmpolicingstat(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    ATM_POLICING_STAT p{};
    const uint32_t rc = VQ6192_ATM_GetAtmPolicingStat(chip, &p);
    TextBuilder text(buf);
    vq::diag::framedTriples(text, "GetAtmPolicingStat()",
                            {{"wPolDropRx", p.wPolDropRx},
                             {"wPolDropTx", p.wPolDropTx},
                             {"wPolTagRx", p.wPolTagRx},
                             {"wPolTagTx", p.wPolTagTx}});
    return rc;
}

VQ6192_API uint32_t getatmoamstat(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    ATM_OAM_STAT o{};
    const uint32_t rc = VQ6192_ATM_GetAtmOamStat(chip, &o);
    TextBuilder text(buf);
    vq::diag::framedTriples(text, "GetAtmOamStat()",
                            {{"wOamMin", o.wOamMin},
                             {"wOamCapRx", o.wOamCapRx},
                             {"wOamCapTx", o.wOamCapTx},
                             {"wOamCapNum", o.wOamCapNum},
                             {"wOamInNum", o.wOamInNum},
                             {"wOamDropRx", o.wOamDropRx},
                             {"wOamDropTx", o.wOamDropTx},
                             {"wOamDrop", o.wOamDrop},
                             {"wOamCrcErrRx", o.wOamCrcErrRx},
                             {"wOamCrcErrTx", o.wOamCrcErrTx},
                             {"wCapFifoNum", o.wCapFifoNum},
                             {"wInFifoNum", o.wInFifoNum},
                             {"wCapltInc", o.wCapltInc}});
    return rc;
}

VQ6192_API uint32_t getatmccstat(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t fifo = 0, cc = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmCcStat(chip, &fifo, &cc);
    framed(buf, kMacSep, "GetAtmCcStat()", {{"wCcFifoNum", fifo}, {"wCcCnt", cc}});
    return rc;
}

VQ6192_API uint32_t getatmfifooverflow(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t v[3] = {};
    const uint32_t rc = VQ6192_ATM_GetAtmFifoOverflow(chip, v);
    framed(buf, kMacSep, "GetAtmFifoOverflow()",
           {{"wFifoOverflow[0]", v[0]}, {"wFifoOverflow[1]", v[1]}, {"wFifoOverflow[2]", v[2]}});
    return rc;
}

VQ6192_API uint32_t getatmtabrambusy(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t busy = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmTabRamBusy(chip, &busy);
    framed(buf, kMacSep, "GetAtmTabRamBusy()", {{"byRam", busy}});
    return rc;
}

VQ6192_API uint32_t getatmswalarm(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t v[3] = {};
    const uint32_t rc = VQ6192_ATM_GetAtmSwAlarm(chip, v);
    framed(buf, kMacSep, "GetAtmSwAlarm()",
           {{"wTcamRepeat", v[0]}, {"wTcamRepeatHis", v[1]}, {"wDDR2FullAlm", v[2]}});
    return rc;
}

VQ6192_API uint32_t getvpcdelack(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t del = 0, type = 0;
    uint16_t port = 0;
    const uint32_t rc = VQ6192_ATM_GetVpcDelAck(chip, &del, &type, &port);
    framed(buf, kMacSep, "GetVpcDelAck()", {{"byDelStat", del}, {"byType", type}, {"wLinkPort", port}});
    return rc;
}

VQ6192_API uint32_t captureatmcell(uint32_t chip, uint32_t mode, uint32_t index, uint32_t matchVci,
                                   uint32_t vpi, uint32_t vci, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t cell[VQ6192_ATM_CAP_CELL_BYTES] = {};
    const uint32_t rc = VQ6192_ATM_CaptureAtmCell(chip, cell, mode, index, matchVci, vpi, vci);
    TextBuilder text(buf);
    if (rc != 0) {
        text.add("capture is error!\n");
        return rc;
    }
    text.add("%s\n", std::string(64, '-').c_str());
    for (uint32_t k = 0; k < VQ6192_ATM_CAP_CELL_BYTES; ++k) {
        text.add("0x%-2x   ", cell[k]);
        if (k % 16 == 15) {
            text.add("\n");
        }
    }
    return rc;
}

VQ6192_API uint32_t getatmvcxstatall(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    TextBuilder text(buf);
    uint32_t rc = 0;
    unsigned long ttAll = 0, trAll = 0, vcxNum = 0;
    for (uint32_t vcx = 0; vcx < VQ6192_ATM_VCX_NUM; ++vcx) {
        uint32_t tt = 0, tr = 0;
        rc |= VQ6192_ATM_GetAtmVcsStat(chip, vcx, &tt, &tr);
        if (tt != 0 || tr != 0) {
            text.add("VCX = %8u                  dwTTcc = %8lu                  dwTRcc = %8lu\n", vcx,
                     static_cast<unsigned long>(tt), static_cast<unsigned long>(tr));
            ttAll += tt;
            trAll += tr;
            ++vcxNum;
        }
    }
    text.add("dwTTccAll=%lu\n", ttAll);
    text.add("dwTRccAll=%lu\n", trAll);
    text.add("dwVcxNum=%lu\n", vcxNum);
    return rc;
}

VQ6192_API uint32_t getatmportstatall(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    TextBuilder text(buf);
    uint32_t rc = 0;
    const struct {
        const char *banner;
        uint32_t ports;
    } sides[2] = {{"LPCT side", VQ6192_ATM_LINE_PORT_NUM}, {"SPCT side", VQ6192_ATM_SYS_PORT_NUM}};
    for (uint32_t side = 0; side < 2; ++side) {
        text.add("%s\n", sides[side].banner);
        for (uint32_t port = 0; port < sides[side].ports; ++port) {
            uint32_t rcc = 0, tcc = 0;
            rc |= VQ6192_ATM_GetAtmPortStat(chip, port, side, &rcc, &tcc);
            if (rcc != 0 || tcc != 0) {
                text.add("Port=%6u, dwRcc=%8lu dwTcc=%8lu\n", port, static_cast<unsigned long>(rcc),
                         static_cast<unsigned long>(tcc));
            }
        }
    }
    return rc;
}

VQ6192_API uint32_t getvcxdropall(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    TextBuilder text(buf);
    vq::diag::vcxDrops(text, chip);
    return 0;
}

VQ6192_API uint32_t getportdropall(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    TextBuilder text(buf);
    vq::diag::portDrops(text, chip);
    return 0;
}

VQ6192_API uint32_t getdropall(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    TextBuilder text(buf);
    text.add("Statistics about packets discarded by VCX:  \n");
    vq::diag::vcxDrops(text, chip);
    text.add("Statistics about packets discarded by VCX: \n");
    vq::diag::portDrops(text, chip);
    return 0;
}

// ---- Pseudowires ----

VQ6192_API uint32_t getsendpwe3time(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t t = 0;
    const uint32_t rc = VQ6192_ATM_GetSendPwe3Time(chip, &t);
    framed(buf, kMacSep, "GetSendPwe3Time()", {{"wTime", t}});
    return rc;
}

VQ6192_API uint32_t getatmpwe3statall(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    TextBuilder text(buf);
    uint32_t rc = 0;
    for (uint32_t pw = 0; pw < VQ6192_ATM_SYS_PORT_NUM; ++pw) {
        uint32_t per[VQ6192_ATM_PWE3_PER_NUM] = {};
        rc |= VQ6192_ATM_GetAtmPwe3Per(chip, pw, per);
        if (per[vq::diag::kPerTxPkt] != 0 || per[vq::diag::kPerRxPkt] != 0) {
            text.add("Pwe3Port=%4lu             Pwe3Tx = %4lu             Pwe3Rx = %4lu\n",
                     static_cast<unsigned long>(pw), static_cast<unsigned long>(per[vq::diag::kPerTxPkt]),
                     static_cast<unsigned long>(per[vq::diag::kPerRxPkt]));
        }
    }
    return rc;
}

VQ6192_API uint32_t getatmpwe3perall(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    TextBuilder text(buf);
    text.add(
        "|  PW|    PrevSn|  WaitPkts|RlyNum|  DelayPkt|     TxPkt|     RxPkt|   LossPkt|  Disorder|"
        "FractCell|  ExpectSn|    LastSn|  InOrdCnt|RxOverflow|TxOverflow| \n");
    text.add(
        "|----|----------|----------|------|----------|----------|----------|----------|----------|"
        "---------|----------|----------|----------|----------|----------| \n");
    uint32_t rc = 0;
    for (uint32_t pw = 0; pw < VQ6192_ATM_SYS_PORT_NUM; ++pw) {
        uint32_t p[VQ6192_ATM_PWE3_PER_NUM] = {};
        rc |= VQ6192_ATM_GetAtmPwe3Per(chip, pw, p);
        if (p[vq::diag::kPerTxPkt] == 0 && p[vq::diag::kPerRxPkt] == 0) {
            continue;
        }
        auto ul = [](uint32_t v) { return static_cast<unsigned long>(v); };
        text.add(
            "|%4lu|%10lu|%10lu|%6lu|%10lu|%10lu|%10lu|%10lu|%10lu|%10lu|%10lu|%10lu|%10lu|%10lu|%10lu| \n",
            ul(pw), ul(p[0]), ul(p[1]), ul(p[2]), ul(p[3]), ul(p[4]), ul(p[5]), ul(p[6]), ul(p[7]), ul(p[8]),
            ul(p[9]), ul(p[10]), ul(p[11]), ul(p[12]), ul(p[13]));
    }
    return rc;
}

VQ6192_API uint32_t getatmpwe3per(uint32_t chip, uint32_t pw, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint32_t p[VQ6192_ATM_PWE3_PER_NUM] = {};
    const uint32_t rc = VQ6192_ATM_GetAtmPwe3Per(chip, pw, p);
    TextBuilder text(buf);
    for (uint32_t k = 0; k < VQ6192_ATM_PWE3_PER_NUM; ++k) {
        text.add("%s : 0x%x(%lu)\n", vq::diag::kPerSentences[k], p[k], static_cast<unsigned long>(p[k]));
    }
    return rc;
}

VQ6192_API uint32_t getatmpwcwen(uint32_t chip, uint32_t pw, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t en = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmPwCWEn(chip, pw, &en);
    framed(buf, kMacSep, "GetAtmPwCWEn()", {{"rbyEnable", en}});
    return rc;
}

VQ6192_API uint32_t getatmpwencpmode(uint32_t chip, uint32_t pw, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint32_t mode = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmPwEncpMode(chip, pw, &mode);
    framed(buf, kMacSep, "GetAtmPwEncpMode()", {{"renPwEnMode", mode}}, vq::diag::kSignedValueLine);
    return rc;
}

VQ6192_API uint32_t getatmpwcellconcattr(uint32_t chip, uint32_t pw, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint32_t cells = 0, time = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmPwCellConcAttr(chip, pw, &cells, &time);
    framed(buf, kMacSep, "GetAtmPwCellConcAttr()", {{"rdwCellNum", cells}, {"rdwMaxEncpTime", time}});
    return rc;
}

#define VQ6192_DIAG_U16_BY_PW(cmd, op, title, label)                 \
    VQ6192_API uint32_t cmd(uint32_t chip, uint32_t pw, char *buf) { \
        if (buf == nullptr) {                                        \
            return vq::diag::kNoBuffer;                              \
        }                                                            \
        uint16_t v = 0;                                              \
        const uint32_t rc = op(chip, pw, &v);                        \
        TextBuilder text(buf);                                       \
        framed(text, kMacSep, title, {{label, v}});                  \
        return rc;                                                   \
    }
VQ6192_DIAG_U16_BY_PW(getpwpriIndex, VQ6192_ATM_GetPwPriIndex, "GetPwPriIndex()", "wPwPriIndex")
VQ6192_DIAG_U16_BY_PW(getpwpktdropen, VQ6192_ATM_GetPwPktDropEn, "GetPwPktDropEn()", "rwDropEn")
VQ6192_DIAG_U16_BY_PW(getpwexpectrange, VQ6192_ATM_GetPwExpectRange, "GetPwExpectRange()", "rwRange")
VQ6192_DIAG_U16_BY_PW(getpwe3loop, VQ6192_ATM_GetPWE3Loop, "GetPWE3Loop()", "wEnable")
#undef VQ6192_DIAG_U16_BY_PW

VQ6192_API uint32_t getpwenable(uint32_t chip, uint32_t pw, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t en = 0;
    const uint32_t rc = VQ6192_ATM_GetPwEnable(chip, pw, &en);
    framed(buf, kMacSep, "GetPwEnable()", {{"byPwEnable", en}});
    return rc;
}

VQ6192_API uint32_t getpwchkerralm(uint32_t chip, uint32_t pw, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t alm = 0;
    const uint32_t rc = VQ6192_ATM_GetPwChkErrAlm(chip, pw, &alm);
    framed(buf, kMacSep, "GetPwChkErrAlm()", {{"byAlmStat", alm}});
    return rc;
}

VQ6192_API uint32_t getpwsnchkadd(uint32_t chip, uint32_t pw, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t chk = 0, add = 0;
    const uint32_t rc = VQ6192_ATM_GetPwSnChkAdd(chip, pw, &chk, &add);
    framed(buf, kMacSep, "GetPwSnChkAdd()", {{"rwSnChkEn", chk}, {"rwSnAddEn", add}});
    return rc;
}

VQ6192_API uint32_t getpwpritemplate(uint32_t chip, uint32_t tmpl, uint32_t serviceType, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t pri = 0;
    const uint32_t rc = VQ6192_ATM_GetPwPriTemplate(chip, tmpl, serviceType, &pri);
    framed(buf, kMacSep, "GetPwPriTemplate()", {{"rwPriority", pri}});
    return rc;
}

VQ6192_API uint32_t getpw3fifostats(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t f[VQ6192_ATM_PW3_FIFO_STAT_NUM] = {};
    const uint32_t rc = VQ6192_ATM_GetPw3FIFOStats(chip, f);
    TextBuilder text(buf);
    vq::diag::framedHead(text, kMacSep, "GetPw3FIFOStats()");
    for (uint32_t k = 0; k < VQ6192_ATM_PW3_FIFO_STAT_NUM; ++k) {
        vq::diag::fieldLine(text, vq::diag::kValueLine, {vq::diag::kFifoFlagNames[k], f[k]});
    }
    text.add("%s", kMacSep);
    return rc;
}

VQ6192_API uint32_t getatmpwe3capcell(uint32_t chip, uint32_t pw, uint32_t direction, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    std::vector<uint8_t> cell(VQ6192_ATM_PWE3_CAP_BYTES);
    uint32_t length = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmPWE3CapCell(chip, pw, direction, cell.data(), &length);
    TextBuilder text(buf);
    text.add(" pbyCell    :   \n");
    for (uint32_t k = 0; k < length; ++k) {
        text.add("%02x", cell[k]);
    }
    return rc;
}

}  // extern "C"

namespace vq::diag {
namespace {

constexpr Command kCommands[] = {
    // Connections
    VQ6192_DIAG_COMMAND(getatmvcx, "ATM", "chip link dir",
                        "VCX of a link's ingress (0) or egress (1) connection"),
    VQ6192_DIAG_COMMAND(getatmsrvconn, "ATM", "chip vcx", "read a connection back from the switching tables"),
    VQ6192_DIAG_COMMAND(getatmvcxenstat, "ATM", "chip vcx", "whether a connection is valid (switching)"),
    VQ6192_DIAG_COMMAND(getatmupcnpcenstat, "ATM", "chip vcx", "whether a connection is policed"),
    VQ6192_DIAG_COMMAND(getatmpolicingid, "ATM", "chip vcx", "policer entry of a connection"),
    VQ6192_DIAG_COMMAND(getlinktype, "ATM", "chip vcx", "connection type: 0 VPC, 1 VCC"),
    VQ6192_DIAG_COMMAND(getlinkdata, "ATM", "chip", "list the connections and ports the host keeps"),
    // Ports
    VQ6192_DIAG_COMMAND(getatmportenstat, "ATM", "chip port side", "port enable (side 0 line, 1 system)"),
    VQ6192_DIAG_COMMAND(getatmporttype, "ATM", "chip port side", "port attribute: 0 UNI, 1 NNI"),
    VQ6192_DIAG_COMMAND(getatmtransconnsingle, "ATM", "chip port side", "transparent mapping of one port"),
    VQ6192_DIAG_COMMAND(getatmtransfifo, "ATM", "chip linePort", "pause, pause-cancel and drop thresholds"),
    VQ6192_DIAG_COMMAND(getatmportloopmode, "ATM", "chip linePort", "whether a line port is looped"),
    // Queues, buffers and traffic
    VQ6192_DIAG_COMMAND(getatmqm, "ATM", "chip queue", "port, service type and weight of a queue"),
    VQ6192_DIAG_COMMAND(getatmbmpvc, "ATM", "chip vcx", "buffer management flags of a connection"),
    VQ6192_DIAG_COMMAND(getatmbmth, "ATM", "chip idx serviceType", "drop-threshold template"),
    VQ6192_DIAG_COMMAND(getatmbmreg, "ATM", "chip", "chip-wide buffer limits"),
    VQ6192_DIAG_COMMAND(getbmtemplate, "ATM", "chip", "list the drop-threshold templates the host keeps"),
    VQ6192_DIAG_COMMAND(getatmpolcfg, "ATM", "chip policingId", "policer bucket codes"),
    VQ6192_DIAG_COMMAND(getatmebs, "ATM", "chip linePort", "excess-bandwidth weights of a line port"),
    VQ6192_DIAG_COMMAND(getatmshvc, "ATM", "chip linePort class", "CBR rate class in cells/s"),
    // OAM
    VQ6192_DIAG_COMMAND(getoamcrcenstat, "ATM", "chip", "OAM CRC-10 checking enable"),
    VQ6192_DIAG_COMMAND(getoamllid, "ATM", "chip", "loopback location ID"),
    VQ6192_DIAG_COMMAND(getoamcell, "ATM", "chip", "read one reported OAM cell"),
    VQ6192_DIAG_COMMAND(getoamlinkcc, "ATM", "chip vcx", "continuity-check types and state of a connection"),
    VQ6192_DIAG_COMMAND(getoamsegend, "ATM", "chip vcx", "segment/end point of a connection (0..3)"),
    VQ6192_DIAG_COMMAND(getoamvcxfifo, "ATM", "chip", "pop the OAM report VCX FIFO"),
    VQ6192_DIAG_COMMAND(getatmccloc, "ATM", "chip vcx", "loss of continuity of a connection"),
    VQ6192_DIAG_COMMAND(getcclocall, "ATM", "chip", "list the connections with loss of continuity"),
    // Counters, alarms and capture
    VQ6192_DIAG_COMMAND(getatmportstat, "ATM", "chip port side",
                        "received and sent cells of a port (read-clear)"),
    VQ6192_DIAG_COMMAND(getatmvcsstat, "ATM", "chip vcx", "sent and received cells of a connection"),
    VQ6192_DIAG_COMMAND(getatmccsrcstat, "ATM", "chip vcx", "CC source timer and CC cells of a connection"),
    VQ6192_DIAG_COMMAND(getatmvcxdropstat, "ATM", "chip vcx", "dropped cells of a connection"),
    VQ6192_DIAG_COMMAND(getatmportdropstat, "ATM", "chip linePort", "dropped cells of a transparent port"),
    VQ6192_DIAG_COMMAND(getvcxdropinfo, "ATM", "chip vcx", "frame discard states of a connection"),
    VQ6192_DIAG_COMMAND(getatmdropstat, "ATM", "chip", "chip-wide drop counters"),
    VQ6192_DIAG_COMMAND(getatmqmdatastat, "ATM", "chip", "queue occupancy per service class"),
    VQ6192_DIAG_COMMAND(getatmpolicingstat, "ATM", "chip", "policing drop and tag counters"),
    VQ6192_DIAG_COMMAND(getatmoamstat, "ATM", "chip", "OAM counters"),
    VQ6192_DIAG_COMMAND(getatmccstat, "ATM", "chip", "CC FIFO level and CC counter"),
    VQ6192_DIAG_COMMAND(getatmfifooverflow, "ATM", "chip", "switch FIFO overflow registers"),
    VQ6192_DIAG_COMMAND(getatmtabrambusy, "ATM", "chip", "table RAM busy"),
    VQ6192_DIAG_COMMAND(getatmswalarm, "ATM", "chip", "TCAM repeat and DDR2 full alarms"),
    VQ6192_DIAG_COMMAND(getvpcdelack, "ATM", "chip", "queue delete status"),
    VQ6192_DIAG_COMMAND(captureatmcell, "ATM", "chip mode index matchVci vpi vci", "capture one cell"),
    VQ6192_DIAG_COMMAND(getatmvcxstatall, "ATM", "chip", "list the connections with cells counted"),
    VQ6192_DIAG_COMMAND(getatmportstatall, "ATM", "chip", "list the ports with cells counted"),
    VQ6192_DIAG_COMMAND(getvcxdropall, "ATM", "chip", "list the connections with dropped cells"),
    VQ6192_DIAG_COMMAND(getportdropall, "ATM", "chip", "list the transparent ports with dropped cells"),
    VQ6192_DIAG_COMMAND(getdropall, "ATM", "chip", "list the dropped cells of connections and ports"),
    // Pseudowires
    VQ6192_DIAG_COMMAND(getsendpwe3time, "ATM", "chip", "ingress cell-to-PWE3 time"),
    VQ6192_DIAG_COMMAND(getatmpwe3statall, "ATM", "chip", "list the PWs with packets counted"),
    VQ6192_DIAG_COMMAND(getatmpwe3perall, "ATM", "chip", "table of the statistics of the PWs with packets"),
    VQ6192_DIAG_COMMAND(getatmpwe3per, "ATM", "chip pw", "statistics of one PW"),
    VQ6192_DIAG_COMMAND(getatmpwcwen, "ATM", "chip pw", "control word of a PW"),
    VQ6192_DIAG_COMMAND(getatmpwencpmode, "ATM", "chip pw", "encapsulation mode of a PW"),
    VQ6192_DIAG_COMMAND(getatmpwcellconcattr, "ATM", "chip pw", "cell concatenation of a PW"),
    VQ6192_DIAG_COMMAND(getpwpriIndex, "ATM", "chip pw", "priority template of a PW"),
    VQ6192_DIAG_COMMAND(getpwpktdropen, "ATM", "chip pw", "sequence-error packet drop of a PW"),
    VQ6192_DIAG_COMMAND(getpwexpectrange, "ATM", "chip pw", "expected-sequence reset range of a PW"),
    VQ6192_DIAG_COMMAND(getpwe3loop, "ATM", "chip which", "PWE3 loopback 0 or 1"),
    VQ6192_DIAG_COMMAND(getpwenable, "ATM", "chip pw", "enable of a PW"),
    VQ6192_DIAG_COMMAND(getpwchkerralm, "ATM", "chip pw", "sequence check error of a PW"),
    VQ6192_DIAG_COMMAND(getpwsnchkadd, "ATM", "chip pw", "sequence check and insertion of a PW"),
    VQ6192_DIAG_COMMAND(getpwpritemplate, "ATM", "chip template serviceType", "priority of a service type"),
    VQ6192_DIAG_COMMAND(getpw3fifostats, "ATM", "chip", "PWE3 FIFO flags"),
    VQ6192_DIAG_COMMAND(getatmpwe3capcell, "ATM", "chip pw direction", "capture one PW packet"),
};

}  // namespace

std::span<const Command> atmCommands() {
    return kCommands;
}

}  // namespace vq::diag
