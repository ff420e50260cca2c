// The default dump lists against the chip's documented register blocks and table groups, and every
// default table record against the table catalogue.
#include <set>

#include "chip/dump_fixture.h"
#include "chip/dump_lists.h"

namespace dumptest {
namespace {

struct BlockCase {
    uint32_t id;
    const char *name;
    std::vector<std::array<uint16_t, 3>> ranges;
};

// clang-format off
const BlockCase kBlockCases[] = {
    {1, "GLB_CFG", {{0x0000, 0, 0x132}}},
    {2, "IMA", {{0x2000, 0, 0x4}, {0x2800, 0, 0x24F}, {0x2200, 0, 0x29}, {0x2400, 0, 0x60}, {0x2600, 0, 0xBE}}},
    {3, "PPP", {{0x8000, 0, 0x2F}, {0x8800, 0, 0x3D3}, {0x9000, 0, 0x114}, {0x9800, 0, 0x308}}},
    {4, "ATM", {{0x5000, 0, 0x50}, {0x5200, 0, 0xE0}, {0x5400, 0x30, 0x41}, {0x5100, 0x30, 0x90}, {0x5300, 0x40, 0xD0}}},
    {5, "CES", {{0xA000, 0, 0x45F}, {0xA800, 0, 0x75F}, {0xB000, 0, 0x793}, {0xB800, 0, 0x157}}},
    {6, "SAM", {{0x3000, 0, 0x54F}}},
    {7, "DDR2C", {{0x6000, 0, 0xC9}}},
    {8, "MDDRC", {{0x6800, 0, 0x215}}},
    {9, "ETH", {{0x4000, 0, 0x11F}, {0x4800, 0, 0x127}}},
    {10, "TS", {{0x1000, 0, 0x2FC}}},
    {11, "E1Map", {{0xFFFF, 0x2, 0x408}, {0xFFFF, 0x1001, 0x111C}, {0xFFFF, 0x6001, 0xF40A}, {0xFFFF, 0x2001, 0x4C20}}},
};
// clang-format on

TEST(DumpLists, RegisterBlocks) {
    ASSERT_EQ(g_VQ6192_ChipDump_DirectReg_Cnt, 11u);
    for (size_t i = 0; i < std::size(kBlockCases); ++i) {
        const BlockCase &c = kBlockCases[i];
        const VQ6192_DUMP_REG_BLOCK_S &b = g_VQ6192_ChipDump_DirectReg[i];
        SCOPED_TRACE(c.name);
        EXPECT_STREQ(b.pszName, c.name);
        EXPECT_EQ((U32s{b.ulGroupId, b.ucVersion, b.ucKind}), (U32s{c.id, 3, 2}));
        std::vector<std::array<uint16_t, 3>> ranges;
        for (size_t r = 0; r < b.ucRangeNum; ++r) {
            ranges.push_back({b.astRange[r].usBase, b.astRange[r].usFirst, b.astRange[r].usLast});
        }
        EXPECT_EQ(ranges, c.ranges);
    }
}

struct GroupCase {
    uint32_t id;
    const char *name;
    uint32_t count;
    const char *first;
    const char *last;
    std::vector<std::pair<uint32_t, uint32_t>> ids;  // catalogue id ranges, inclusive
};

const GroupCase kGroupCases[] = {
    {2, "IMA", 39, "TC_RX_LNK_CFG", "IMATX_GP_DEPTH_PRI", {{132, 209}}},
    {3, "PPP", 52, "AFIDCFG", "MP_RBYTE", {{39, 86}, {211, 214}}},
    {4, "ATM", 40, "ATMPWE3_PKT_BUF", "ATM_PORT_PERIOD_CFG", {{0, 38}, {210, 210}}},
    {5, "CES", 19, "CES_IDLE_CODE", "CES_TXPKG_CHN_MAP", {{87, 104}, {216, 216}}},
    {6, "SAM", 12, "SAM_CFIFO_RX_CIT", "SAM_TPPU_STA", {{105, 116}}},
    {9, "ETH", 11, "DOWN_PPP_PRO", "MAC2_CNT", {{121, 131}}},
    {10, "TS", 4, "TS_DL_ET1_TAB", "TS_UL_ET3_VC4_TAB", {{117, 120}}},
};

TEST(DumpLists, TableGroups) {
    ASSERT_EQ(g_VQ6192_ChipDump_InDirectReg_Cnt, 7u);
    for (size_t i = 0; i < std::size(kGroupCases); ++i) {
        const GroupCase &c = kGroupCases[i];
        const VQ6192_DUMP_TBL_GROUP_S &g = g_VQ6192_ChipDump_InDirectReg[i];
        SCOPED_TRACE(c.name);
        EXPECT_STREQ(g.pszName, c.name);
        EXPECT_EQ((U32s{g.ulGroupId, g.ucKind}), (U32s{c.id, 2}));
        ASSERT_EQ(g.ucTblNum, c.count);
        EXPECT_STREQ(g.astTbl[0].pszName, c.first);
        EXPECT_STREQ(g.astTbl[c.count - 1].pszName, c.last);
        std::set<std::string> names;
        int32_t previous = -1;
        for (uint32_t t = 0; t < c.count; ++t) {
            EXPECT_EQ(g.astTbl[t].ulFlags, 0x03000000u);
            names.insert(g.astTbl[t].pszName);
            const int32_t id = vq::dump::defaultTableCatalogueId(static_cast<uint32_t>(i), t);
            EXPECT_GT(id, previous) << "tables in catalogue order";
            previous = id;
            bool inRange = false;
            for (const auto &[lo, hi] : c.ids) {
                inRange |= id >= static_cast<int32_t>(lo) && id <= static_cast<int32_t>(hi);
            }
            EXPECT_TRUE(inRange) << g.astTbl[t].pszName << " is catalogue id " << id;
        }
        EXPECT_EQ(names.size(), c.count) << "names are unique within a group";
    }
    EXPECT_EQ(vq::dump::defaultTableCatalogueId(7, 0), -1);
    EXPECT_EQ(vq::dump::defaultTableCatalogueId(6, 4), -1);
}

TEST(DumpLists, ImaGroupHasOneRecordPerSelectCode) {
    // Multi-word IMA tables share a select code: the group reads each select code once.
    std::set<std::pair<uint32_t, uint32_t>> wanted;
    for (uint32_t id = 132; id <= 209; ++id) {
        wanted.insert(
            {g_VQ6192_CHIP_TABLE_INFO[id].ulBlockBase, g_VQ6192_CHIP_TABLE_INFO[id].stSelect.usValue1});
    }
    std::set<std::pair<uint32_t, uint32_t>> dumped;
    const VQ6192_DUMP_TBL_GROUP_S &g = g_VQ6192_ChipDump_InDirectReg[0];
    for (uint32_t t = 0; t < g.ucTblNum; ++t) {
        dumped.insert({g.astTbl[t].stTbl.ulBlockBase, g.astTbl[t].stTbl.stSelect.usValue1});
    }
    EXPECT_EQ(dumped, wanted);
    EXPECT_EQ(dumped.size(), g.ucTblNum);
}

U32s field(const VQ6192_TBL_FIELD_S &f) {
    return {f.ulRegNo, f.usStartBit, f.usWidth, f.usValue1, f.usValue2};
}

TEST(DumpLists, RecordsCopyTheCatalogueExceptTheDocumentedDifferences) {
    for (uint32_t gi = 0; gi < g_VQ6192_ChipDump_InDirectReg_Cnt; ++gi) {
        const VQ6192_DUMP_TBL_GROUP_S &g = g_VQ6192_ChipDump_InDirectReg[gi];
        for (uint32_t t = 0; t < g.ucTblNum; ++t) {
            const VQ6192_CHIP_TABLE_INFO_S &d = g.astTbl[t].stTbl;
            const uint32_t id = static_cast<uint32_t>(vq::dump::defaultTableCatalogueId(gi, t));
            const VQ6192_CHIP_TABLE_INFO_S &c = g_VQ6192_CHIP_TABLE_INFO[id];
            SCOPED_TRACE(testing::Message() << g.astTbl[t].pszName << " (catalogue id " << id << ")");
            uint32_t depth = c.ulDepth;
            if (id == 42) {
                depth = 65535;  // RPPUSTAT
            }
            if (id == 87 || id == 95 || id == 102) {
                depth = 352;  // CES tables of the E1s, dumped over every CES channel
            }
            VQ6192_TBL_FIELD_S readCmd = c.stReadCmd;
            if (id == 118 || id == 120) {
                readCmd.usValue1 = 0;  // E3/VC-4 timeslot tables
            }
            EXPECT_EQ((U32s{d.ulDepth, d.ulBlockBase, d.usData16, d.usWidth, d.ulCounterLayout,
                            d.ulAccessKind, d.ulPresent}),
                      (U32s{depth, c.ulBlockBase, c.usData16, c.usWidth, 0, c.ulAccessKind, 1}));
            EXPECT_EQ(field(d.stReadCmd), field(readCmd));
            for (auto m : {&VQ6192_CHIP_TABLE_INFO_S::stWriteCmd, &VQ6192_CHIP_TABLE_INFO_S::stBusy,
                           &VQ6192_CHIP_TABLE_INFO_S::stSelect, &VQ6192_CHIP_TABLE_INFO_S::stAddress,
                           &VQ6192_CHIP_TABLE_INFO_S::stWriteData, &VQ6192_CHIP_TABLE_INFO_S::stReadData}) {
                EXPECT_EQ(field(d.*m), field(c.*m));
            }
        }
    }
}

}  // namespace
}  // namespace dumptest
