// Diagnostic commands of the ATM, OAM and ATM pseudowires family: each calls one read operation and
// prints what it returned; the listings print the connection, port and template shadows.
#include <string>

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
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmVcx()", {{"wVCX", vcx}});
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
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmPolicingID()", {{"wPolicingID", id}});
    return rc;
}

VQ6192_API uint32_t getlinktype(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint16_t type = 0;
    const uint32_t rc = VQ6192_ATM_GetLinkType(chip, vcx, &type);
    TextBuilder text(buf);
    framed(text, kMacSep, "GetLinkType()", {{"wType", type}});
    return rc;
}

VQ6192_API uint32_t getatmportenstat(uint32_t chip, uint32_t port, uint32_t side, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t en = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmPortEnStat(chip, port, side, &en);
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmPortEnStat()", {{"byEnable", en}});
    return rc;
}

VQ6192_API uint32_t getatmporttype(uint32_t chip, uint32_t port, uint32_t side, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t uni = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmPortType(chip, port, side, &uni);
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmPortType()", {{"byUniFlag", uni}});
    return rc;
}

VQ6192_API uint32_t getatmtransconnsingle(uint32_t chip, uint32_t port, uint32_t side, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t map = 0;
    uint16_t dst = 0;
    const uint32_t rc = VQ6192_ATM_GetAtmTransConnSingle(chip, port, side, &map, &dst);
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmTransConnSingle()", {{"byPortMap", map}, {"wDstPort", dst}});
    return rc;
}

VQ6192_API uint32_t getatmtransfifo(uint32_t chip, uint32_t linePort, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint32_t th[3] = {};
    const uint32_t rc = VQ6192_ATM_GetAtmTransFiFo(chip, linePort, th);
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmTransFiFo()",
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
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmQm()", {{"wPort", port}, {"renServiceType", type}, {"wQid", qid}});
    return rc;
}

VQ6192_API uint32_t getatmbmpvc(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t bm[5] = {};
    const uint32_t rc = VQ6192_ATM_GetAtmBmPvc(chip, vcx, bm);
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmBmPvc()",
           {{"byClpt", bm[0]}, {"byFd", bm[1]}, {"byPfd", bm[2]}, {"byRed", bm[3]}, {"byIdx", bm[4]}});
    return rc;
}

VQ6192_API uint32_t getatmbmth(uint32_t chip, uint32_t idx, uint32_t serviceType, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    ATM_BM_TH t{};
    const uint32_t rc = VQ6192_ATM_GetAtmBmTh(chip, idx, serviceType, &t);
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmBmTh()",
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
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmBmReg()",
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
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmPolcfg()",
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
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmEbs()",
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
    TextBuilder text(buf);
    framed(text, kMacSep, "GetAtmShVc()", {{"dwShvcCell", cells}});
    return rc;
}

VQ6192_API uint32_t getoamcrcenstat(uint32_t chip, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint8_t en = 0;
    const uint32_t rc = VQ6192_ATM_GetOamCrcEnStat(chip, &en);
    TextBuilder text(buf);
    framed(text, kMacSep, "GetOamCrcEnStat()", {{"byEnable", en}});
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
    TextBuilder text(buf);
    framed(text, kMacSep, "GetOamLinkCC()", {{"bySrcType", src}, {"bySinkType", sink}, {"dwState", state}});
    return rc;
}

VQ6192_API uint32_t getoamsegend(uint32_t chip, uint32_t vcx, char *buf) {
    if (buf == nullptr) {
        return vq::diag::kNoBuffer;
    }
    uint32_t type = 0;
    const uint32_t rc = VQ6192_ATM_GetOamSegEnd(chip, vcx, &type);
    TextBuilder text(buf);
    framed(text, kMacSep, "GetOamSegEnd()", {{"renSegEndType", type}}, vq::diag::kSignedValueLine);
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
};

}  // namespace

std::span<const Command> atmCommands() {
    return kCommands;
}

}  // namespace vq::diag
