// The chip dump: the default lists against the chip's documented register blocks and table groups
// and the table catalogue; the dump's own register access and table reader (no chip lock, no host
// register functions, the direct form on the register window, the indirect form through the indirect
// functions); the dump file's bytes, entry sizes, buffering, file hooks and their failures, the
// initialisation checks and the default dump.
#include <cstring>
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

// ---- Register access and the table reader

using AccessTest = DumpTest;

TEST_F(AccessTest, DirectReadIgnoresMultiplierProductFlagAndHostFunctions) {
    VQ6192_INSTALL_PARA p = model.installPara(kChip, false);
    p.ulBaseAddr = window().base();
    p.ulAddrMultiple = 4;
    p.ulSupportProductFlag = 1;
    reinstall(p);
    window().set(0x2004, 0xBEEF);   // register 0x1002
    window().set(0x3E812, 0x1357);  // register 0x1F409, the last E1 map register
    window().set(0x100 + 0x20, 0x4242);
    U16s v;
    const auto t = traced([&] {
        v = {VQ6192_DUMP_ReadDumpReg(kChip, 0x1002), VQ6192_DUMP_ReadDumpReg(kChip, 0x1F409)};
    });
    EXPECT_TRUE(t.empty()) << "the direct form must not use the host register functions";
    EXPECT_EQ(model.arbitrationsTaken(), 0u);
    // Initialisation replaces the base of the direct form.
    ASSERT_EQ(init(g_VQ6192_ChipDump_DirectReg, 1, g_VQ6192_ChipDump_InDirectReg, 1, window().base() + 0x100),
              0u);
    v.push_back(VQ6192_DUMP_ReadDumpReg(kChip, 0x10));
    EXPECT_EQ(v, (U16s{0xBEEF, 0x1357, 0x4242}));
}

TEST_F(AccessTest, IndirectReadAddsTheBaseAndTakesNoLock) {
    // Absolute address 2 x regNo + 0x1300, handed over minus the indirect base 0x1000.
    useIndirect(0x1300, 0x1000);
    model.poke(0x300 + 0x20, 0xA5C3);
    uint16_t v = 0;
    const auto t = traced([&] { v = VQ6192_DUMP_ReadDumpReg(kChip, 0x10); });
    EXPECT_EQ(v, 0xA5C3);
    EXPECT_EQ(t, (Accesses{rd(0x320, 0xA5C3)}));
    EXPECT_EQ((U32s{uint32_t(model.arbitrationsTaken()), uint32_t(model.cardPresentAsked())}), (U32s{0, 0}));
}

TEST_F(AccessTest, FieldReadsAndWritesOnBothPaths) {
    struct Case {
        uint32_t before, startBit, width, value, read, after;
    } cases[] = {
        {0xA5C3, 0, 16, 0x1234, 0xA5C3, 0x1234},
        {0xA5C3, 4, 4, 0, 0xC, 0xA503},
        {0xFFFF, 4, 2, 0, 3, 0xFFCF},
        {0x0000, 8, 8, 0x1FF, 0, 0xFF00},  // value bits beyond the width are dropped
        {0x7FFF, 15, 1, 1, 0, 0xFFFF},
        {0xA5C3, 12, 4, 0xF, 0xA, 0xF5C3},
    };
    for (bool indirect : {false, true}) {
        indirect ? useIndirect() : useWindow();
        for (const Case &c : cases) {
            SCOPED_TRACE(testing::Message() << indirect << " " << c.startBit << "/" << c.width);
            indirect ? model.poke(0x40, uint16_t(c.before)) : window().set(0x40, uint16_t(c.before));
            uint16_t out = 0xEEEE;
            EXPECT_EQ((U32s{VQ6192_DUMP_ReadReg(kChip, 0x20, c.startBit, c.width, &out),
                            VQ6192_DUMP_WriteReg(kChip, 0x20, c.startBit, c.width, c.value)}),
                      U32s(2, 0));
            EXPECT_EQ((U32s{out, indirect ? model.peek(0x40) : window().at(0x40)}), (U32s{c.read, c.after}));
        }
    }
}

TEST_F(AccessTest, BadFieldArgumentsAreRefusedWithoutBusAccess) {
    useIndirect();
    for (const auto &[startBit, width] : {std::pair{16u, 1u}, {0u, 0u}, {0u, 17u}, {8u, 9u}, {15u, 2u}}) {
        SCOPED_TRACE(testing::Message() << startBit << "/" << width);
        uint16_t out = 0;
        capture.clear();
        const auto t = traced([&] {
            EXPECT_EQ((U32s{VQ6192_DUMP_ReadReg(kChip, 0x20, startBit, width, &out),
                            VQ6192_DUMP_WriteReg(kChip, 0x20, startBit, width, 1),
                            VQ6192_DUMP_ReadRegDirect(kChip, 0x20, startBit, width, &out),
                            VQ6192_DUMP_WriteRegIndirect(kChip, 0x20, startBit, width, 1)}),
                      U32s(4, kPara));
        });
        EXPECT_TRUE(t.empty());
        EXPECT_EQ(capture.traceTexts(), Lines(4, "ParaErr.\r\n"));
    }
}

class TableReadTest : public DumpTest {
  protected:
    void SetUp() override {
        DumpTest::SetUp();
        useIndirect();
        ASSERT_EQ(init(g_VQ6192_ChipDump_DirectReg, g_VQ6192_ChipDump_DirectReg_Cnt,
                       g_VQ6192_ChipDump_InDirectReg, g_VQ6192_ChipDump_InDirectReg_Cnt),
                  0u);
    }
    static constexpr uint32_t kAtmGroup = 2;  // third default group
    static constexpr uint32_t kPriTab = 1;    // ATMPWE3_PRI_TAB, select 38
    static constexpr uint32_t kTsGroup = 6;
};

TEST_F(TableReadTest, ReadsAnEntryWithTheRecordsProtocol) {
    // Registers of the 0x5000 block with their other bits set.
    poke({{0xA000, 0xFFC0}, {0xA004, 0xFFFC}});  // select [0..5], command [0..1]
    model.tables().setEntry(
        0x5000, 38, 0x2345,
        halves({0x1111, 0x2222, 0x3333, 0x4444, 0x5555, 0x6666, 0x7777, 0x8888, 0x9999, 0xAAAA}));
    uint32_t entry[5] = {};
    uint32_t rc = 1;
    const auto t = traced([&] { rc = VQ6192_DUMP_ReadDumpTbl(kChip, kAtmGroup, kPriTab, 0x12345, entry); });
    EXPECT_EQ(rc, 0u);
    EXPECT_EQ(writes(t), (Accesses{wr(0xA000, 0xFFE6), wr(0xA002, 0x2345), wr(0xA004, 0xFFFC),
                                   wr(0xA004, 0xFFFF), wr(0xA004, 0xFFFC)}));
    EXPECT_EQ((U32s{entry[0], entry[4]}), (U32s{0x22221111u, 0xAAAA9999u}));
    // Busy polled once before and once after the command; ten data registers from 0x5020.
    U32s reads;
    for (const BusAccess &a : t) {
        if (a.op == BusOp::Read && (a.addr == 0xA006 || (a.addr >= 0xA040 && a.addr < 0xA060))) {
            reads.push_back(a.addr);
        }
    }
    EXPECT_EQ(reads, (U32s{0xA006, 0xA006, 0xA040, 0xA042, 0xA044, 0xA046, 0xA048, 0xA04A, 0xA04C, 0xA04E,
                           0xA050, 0xA052}));
    EXPECT_EQ((U32s{uint32_t(model.arbitrationsTaken()), uint32_t(model.cardPresentAsked())}), (U32s{0, 0}));
    // An odd count of data registers (TS_DL_ET1_TAB) keeps the high half of the last word.
    model.tables().setEntry(0x10ab, 1, 7, halves({0x1234}));
    entry[0] = 0xDEAD0000u;
    EXPECT_EQ((U32s{VQ6192_DUMP_ReadDumpTbl(kChip, kTsGroup, 0, 7, entry), entry[0]}),
              (U32s{0, 0xDEAD1234u}));
}

TEST_F(TableReadTest, BusyTimeOutsAndRefusals) {
    struct Case {
        const char *what;
        uint32_t holdPolls, commandPolls, status, busyReads, dataRead;  // busy before and after the command
    } cases[] = {
        {"stuck before the command", TableEngine::kForever, 0, kTimeout, 100, 0},
        {"99 polls after the command", 0, 99, 0, 101, 1},
        {"100 polls after the command", 0, 100, kTimeout, 101, 0},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        model.tables().holdBusy(0x5000, c.holdPolls);
        model.tables().setCommandBusy(0x5000, c.commandPolls);
        uint32_t entry[5] = {};
        uint32_t rc = 1;
        const auto t = traced([&] { rc = VQ6192_DUMP_ReadDumpTbl(kChip, kAtmGroup, kPriTab, 0, entry); });
        uint32_t busy = 0, data = 0;
        for (const BusAccess &a : t) {
            busy += a.op == BusOp::Read && a.addr == 0xA006;
            data |= a.op == BusOp::Read && a.addr == 0xA040;
        }
        EXPECT_EQ((U32s{rc, busy, data, writes(t).empty()}),
                  (U32s{c.status, c.busyReads, c.dataRead, c.holdPolls != 0}));
        model.tables().holdBusy(0x5000, 0);
        model.tables().setCommandBusy(0x5000, 0);
    }
    EXPECT_EQ(failCounters(), (U32s{0, 0, 0, 0})) << "the dump counts no table time-outs";
    uint32_t entry[16] = {};
    expectRefused(
        {{"group past the list", kPara, [&] { return VQ6192_DUMP_ReadDumpTbl(kChip, 7, 0, 0, entry); }},
         {"table past the group", kPara,
          [&] { return VQ6192_DUMP_ReadDumpTbl(kChip, kTsGroup, 4, 0, entry); }}});
}

// ---- The dump file

using Bytes = std::vector<uint8_t>;

void append(Bytes &b, std::initializer_list<uint8_t> bytes) {
    b.insert(b.end(), bytes);
}

// A name field of `size` bytes, zero padded.
void appendName(Bytes &b, const char *name, size_t size) {
    const size_t n = std::strlen(name);
    b.insert(b.end(), name, name + n);
    b.insert(b.end(), size - n, 0);
}

// Two register blocks (group 1 with two ranges, group 2 with one) and one table group of group 1.
const VQ6192_DUMP_REG_BLOCK_S kBlocks[] = {
    {"GLB", 1, 3, 2, 2, 0, {{0x0000, 0x10, 0x11}, {0x1000, 0x02, 0x02}}},
    {"OTHER", 2, 3, 1, 2, 0, {{0x0000, 0x20, 0x20}}},
};

VQ6192_DUMP_TBL_GROUP_S tsGroup(uint32_t id) {
    VQ6192_DUMP_TBL_GROUP_S g{"TS", id, 1, 2, {0, 0}, {}};
    g.astTbl[0] = tableRecord("TS_DL_ET1_TAB", 117, 2);
    return g;
}

class FileTest : public DumpTest {
  protected:
    void SetUp() override {
        DumpTest::SetUp();
        useIndirect();
        poke({{0x20, 0xA1B2}, {0x22, 0xC3D4}, {0x2004, 0x0102}, {0x40, 0xEEEE}});
        model.tables().setEntry(0x10ab, 1, 0, halves({0x1234}));
        model.tables().setEntry(0x10ab, 1, 1, halves({0x5678}));
        groups_[0] = tsGroup(1);
    }
    uint32_t initSmall() { return init(kBlocks, 2, groups_, 1); }

    VQ6192_DUMP_TBL_GROUP_S groups_[1];
};

TEST_F(FileTest, ExactBytesOfAFilteredDump) {
    ASSERT_EQ(initSmall(), 0u);
    EXPECT_EQ(VQ6192_DUMP_Dump(kChip, 1), 0u);

    Bytes want = {0x7E};
    appendName(want, "DUMPchip3.bdVQ6192", 47);
    append(want, {0xF0});
    appendName(want, "GLB", 17);
    // Group, version, kind, range count; each range: base, first, last and the values.
    append(want, {0x00, 0x00, 0x00, 0x01, 0x02, 0x02, 0x00, 0x00, 0x00, 0x10, 0x00, 0x11, 0xA1,
                  0xB2, 0xC3, 0xD4, 0x10, 0x00, 0x00, 0x02, 0x00, 0x02, 0x01, 0x02, 0xF1});
    appendName(want, "TS", 17);
    append(want, {0x00, 0x00, 0x00, 0x01, 0x01, 0x02});
    appendName(want, "TS_DL_ET1_TAB", 18);
    append(want, {0x00, 0x00, 0x00, 0x02, 0x00, 0x04, 0x00, 0x00, 0x12, 0x34, 0x00, 0x00, 0x56, 0x78});
    EXPECT_EQ(files.file(kFile), want);
    // Header once ("wb"), then the waiting bytes appended ("ab+"), every file closed again.
    EXPECT_EQ(files.calls, (Lines{"open chip3.bd wb", "write 1 48", "close", "open chip3.bd ab+",
                                  "write 1 " + std::to_string(want.size() - 48), "close"}));
}

TEST_F(FileTest, EntrySizeFollowsTheWidth) {
    // (width >> 3) + (width AND 7) bytes, rounded up to whole words.
    const std::pair<uint16_t, int> cases[] = {{35, 8}, {121, 16}, {69, 16},  {1, 4},    {16, 4},
                                              {32, 4}, {64, 8},   {151, 28}, {512, 64}, {336, 44}};
    VQ6192_DUMP_TBL_GROUP_S g{"W", 1, static_cast<uint8_t>(std::size(cases)), 2, {0, 0}, {}};
    for (size_t i = 0; i < std::size(cases); ++i) {
        g.astTbl[i] = tableRecord("T", 1, 1, cases[i].first);
    }
    ASSERT_EQ(init(kBlocks, 1, &g, 1), 0u);
    EXPECT_EQ((U32s{VQ6192_DUMP_DumpTbl(kChip, 1), VQ6192_DUMP_WriteFile(kChip)}), U32s(2, 0));
    const Bytes &f = files.file(kFile);
    size_t at = 48 + 24;
    for (const auto &[width, size] : cases) {
        SCOPED_TRACE(width);
        ASSERT_LE(at + 24, f.size());
        EXPECT_EQ((f[at + 22] << 8) | f[at + 23], size);
        at += 24 + size;
    }
    EXPECT_EQ(at, f.size());
}

TEST_F(FileTest, LongNamesAreCutInTheirHeaders) {
    const VQ6192_DUMP_REG_BLOCK_S longBlock{"ABCDEFGHIJKLMNOPQR", 1, 3, 0, 2, 0, {}};  // 18 characters
    VQ6192_DUMP_TBL_GROUP_S g{"GROUPNAMEOF18CHARS", 1, 1, 2, {0, 0}, {}};
    g.astTbl[0] = tableRecord("TABLENAMEOF19CHARSX", 1, 0);
    ASSERT_EQ(init(&longBlock, 1, &g, 1), 0u);
    EXPECT_EQ(VQ6192_DUMP_Dump(kChip, 1), 0u);
    const Bytes &f = files.file(kFile);
    ASSERT_EQ(f.size(), 48u + 24 + 24 + 24);
    EXPECT_EQ(std::string(f.begin() + 49, f.begin() + 66), "ABCDEFGHIJKLMNOPQ");
    EXPECT_EQ(f[66], 0);  // group id follows at once
    EXPECT_EQ(std::string(f.begin() + 73, f.begin() + 90), "GROUPNAMEOF18CHAR");
    EXPECT_EQ(std::string(f.begin() + 96, f.begin() + 114), "TABLENAMEOF19CHARS");
}

TEST_F(FileTest, FullBuffersAreFlushedAsTheyFill) {
    // 3000 registers: 6000 bytes of values behind 48 + 24 + 6 bytes.
    const VQ6192_DUMP_REG_BLOCK_S big{"BIG", 1, 3, 1, 2, 0, {{0x0000, 0, 2999}}};
    ASSERT_EQ(init(&big, 1, groups_, 1), 0u);
    EXPECT_EQ(VQ6192_DUMP_DumpReg(kChip, 1), 0u);
    EXPECT_EQ(files.calls, (Lines{"open chip3.bd wb", "write 1 48", "close", "open chip3.bd ab+",
                                  "write 1 4096", "close"}));
    EXPECT_EQ(VQ6192_DUMP_WriteFile(kChip), 0u);
    EXPECT_EQ(Lines(files.calls.end() - 2, files.calls.end()),
              (Lines{"write 1 " + std::to_string(24 + 6 + 6000 - 4096), "close"}));
    EXPECT_EQ(files.file(kFile).size(), 48u + 24 + 6 + 6000);
    // A register pass that fails ends the dump before the tables.
    files.reset();
    files.failOpenMode = "ab+";
    ASSERT_EQ(init(&big, 1, groups_, 1), 0u);
    EXPECT_EQ((U32s{VQ6192_DUMP_Dump(kChip, 1), uint32_t(model.tables().readsExecuted(0x10ab))}),
              (U32s{kNoFile, 0}));
}

TEST_F(FileTest, FileHookFailures) {
    const std::string noAppend =
        "Err. VQ6192_DUMP_WriteFile.     open file Fail!! m_pcSaveFile is \"chip3.bd\" \r\n";
    const size_t body = 24 + 10 + 8 + 24 + 24 + 8;
    struct Case {
        const char *what;
        std::string failOpen, zeroHandle;
        int failWrite, failClose;
        uint32_t status;
        Lines traces;
        size_t fileSize;  // bytes in the file afterwards
    } const cases[] = {
        // clang-format off
        {"header open fails", "wb", "", -1, false, kFileErr, {"Err. VQ6192_DUMP_WriteFileHead.     Open File[chip3.bd] Err.\r\n"}, 0},
        {"header handle 0: no header", "", "wb", -1, false, 0, {}, body},
        {"append open fails", "ab+", "", -1, false, kNoFile, {noAppend}, 48},
        {"append handle 0", "", "ab+", -1, false, kNoFile, {noAppend}, 48},
        {"data write fails", "", "", 1, false, kFileErr, {"Err. VQ6192_DUMP_WriteFile.     Write file[chip3.bd] Err \r\n"}, 48},
        {"close fails", "", "", -1, true, kNoFile, {"Err. VQ6192_DUMP_WriteFile.     Close file[chip3.bd] Err \r\n"}, 48 + body},
        // clang-format on
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        files.failOpenMode = c.failOpen;
        files.zeroHandleMode = c.zeroHandle;
        files.failWriteAt = c.failWrite;
        files.failClose = c.failClose;
        ASSERT_EQ(initSmall(), 0u);
        capture.clear();
        EXPECT_EQ(VQ6192_DUMP_Dump(kChip, 1), c.status);
        EXPECT_EQ(capture.traceTexts(), c.traces);
        EXPECT_EQ((std::pair{files.files[kFile].size(), files.openHandles()}),
                  (std::pair{c.fileSize, size_t{0}}));
        files.reset();
    }
}

TEST_F(FileTest, TableTimeOutIsReportedAndTheDumpGoesOn) {
    VQ6192_DUMP_TBL_GROUP_S g[2] = {tsGroup(1), tsGroup(1)};
    g[0].astTbl[0] = tableRecord("ATMPWE3_PRI_TAB", 1, 2);
    model.tables().holdBusy(0x5000, TableEngine::kForever);
    ASSERT_EQ(init(kBlocks, 1, g, 2), 0u);
    EXPECT_EQ(VQ6192_DUMP_Dump(kChip, 1), kTimeout);
    const Bytes &f = files.file(kFile);
    // The timed-out table's entries are written as the zeroed buffer stands; the next group is read.
    const size_t priEntries = 48 + 24 + 6 + 4 + 6 + 2 + 24 + 24;
    EXPECT_EQ(Bytes(f.begin() + priEntries, f.begin() + priEntries + 8), Bytes(8, 0));
    EXPECT_EQ(Bytes(f.end() - 8, f.end()), (Bytes{0x00, 0x00, 0x12, 0x34, 0x00, 0x00, 0x56, 0x78}));
}

TEST_F(FileTest, SecondRunAfterDumpEndRecreatesTheFile) {
    ASSERT_EQ(initSmall(), 0u);
    EXPECT_EQ(VQ6192_DUMP_Dump(kChip, 2), 0u);
    EXPECT_EQ(VQ6192_DUMP_Dump(kChip, 2), 0u);  // same run: appended, header once
    const size_t once = 48 + 24 + 6 + 2;
    EXPECT_EQ(files.file(kFile).size(), once + 24 + 6 + 2);
    VQ6192_DUMP_ChipDumpEnd(kChip);
    EXPECT_EQ(VQ6192_DUMP_Dump(kChip, 2), 0u);
    EXPECT_EQ(files.file(kFile).size(), once);
    EXPECT_EQ(std::count(files.calls.begin(), files.calls.end(), "open chip3.bd wb"), 2);
}

TEST_F(FileTest, InitialisationChecksNames) {
    const VQ6192_DUMP_REG_BLOCK_S nameless[] = {{"GLB", 1, 3, 0, 2, 0, {}}, {nullptr, 0x22, 3, 0, 2, 0, {}}};
    const VQ6192_DUMP_REG_BLOCK_S tooLong[] = {{"ABCDEFGHIJKLMNOPQRS", 0x15, 3, 0, 2, 0, {}}};
    const VQ6192_DUMP_REG_BLOCK_S longest[] = {{"ABCDEFGHIJKLMNOPQR", 0x15, 3, 0, 2, 0, {}}};
    const std::string err = "Err. VQ6192_DUMP_InitializeDump.  ";
    struct Case {
        const char *what, *chipName, *outFile;
        const VQ6192_DUMP_REG_BLOCK_S *regs;
        uint32_t regCount, status;
        std::string trace;
    } cases[] = {
        // clang-format off
        {"chip name of 21", "ABCDEFGHIJKLMNOPQRSTU", "f", kBlocks, 2, 0, ""},
        {"chip name of 22", "ABCDEFGHIJKLMNOPQRSTUV", "f", kBlocks, 2, kFileErr, err + "Dump Chip Name len of Name[ABCDEFGHIJKLMNOPQRSTUV] too long or NULL\r\n"},
        {"empty chip name", "", "f", kBlocks, 2, kFileErr, err + "Dump Chip Name len of Name[] too long or NULL\r\n"},
        {"file name of 20", "c", "ofs1/fpga/DrvDump.bd", kBlocks, 2, 0, ""},
        {"file name of 21", "c", "ofs1/fpga/DrvDump.bdx", kBlocks, 2, kFileErr, err + "Dump OutFile Name len of Name[ofs1/fpga/DrvDump.bdx] too long or NULL\r\n"},
        {"block name of 18", "c", "f", longest, 1, 0, ""},
        {"block name of 19", "c", "f", tooLong, 1, kFileErr, err + "Reg MDL[0x15] len of Name[ABCDEFGHIJKLMNOPQRS] too long or NULL.\r\n"},
        {"block without a name", "c", "f", nameless, 2, kFileErr, err + "Reg MDL[0x22] len of Name[(null)] too long or NULL.\r\n"},
        // clang-format on
    };
    ASSERT_EQ(VQ6192_DUMP_RegFileFunc(kChip, vqtest::MemFiles::open, vqtest::MemFiles::write,
                                      vqtest::MemFiles::close),
              0u);
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        capture.clear();
        EXPECT_EQ(
            VQ6192_DUMP_InitializeDump(kChip, c.chipName, 0x1234, c.regs, c.regCount, groups_, 1, c.outFile),
            c.status);
        EXPECT_EQ(capture.traceTexts(), c.trace.empty() ? Lines{} : Lines{c.trace});
        // The lists and the base address are stored before the names are checked.
        const VQ6192_DUMP_CTX &ctx = *g_vq6192[kChip].pstDumpCtx;
        EXPECT_EQ(std::tuple(ctx.ulRegBase, ctx.pstRegList, ctx.ulRegListNum),
                  std::tuple(0x1234u, c.regs, c.regCount));
    }
}

TEST_F(FileTest, ParameterErrors) {
    // clang-format off
    expectRefused({
        {"init: null chip name", kPara, [&] { return VQ6192_DUMP_InitializeDump(kChip, nullptr, 0, kBlocks, 1, groups_, 1, "f"); }},
        {"dump before initialisation", kPara, [&] { return VQ6192_DUMP_Dump(kChip, -1); }},
        {"tables before initialisation", kPara, [&] { return VQ6192_DUMP_DumpTbl(kChip, -1); }},
        {"buffer before initialisation", kPara, [&] { return VQ6192_DUMP_WriteBuffer(kChip, "x", 1); }},
        {"flush before initialisation", kPara, [&] { return VQ6192_DUMP_WriteFile(kChip); }},
    });
    // clang-format on
    // Initialisation needs the three file hooks.
    capture.clear();
    EXPECT_EQ(VQ6192_DUMP_InitializeDump(kChip, "c", 0, kBlocks, 1, groups_, 1, "f"), kNoFile);
    EXPECT_EQ(capture.traceTexts(), Lines{"Err. VQ6192_DUMP_Initialize(3)     FileFuncPtr is NULL!  \r\n"});
    ASSERT_EQ(initSmall(), 0u);
    EXPECT_EQ(VQ6192_DUMP_WriteBuffer(kChip, "x", 0), kPara);
}

TEST_F(FileTest, BufferIsTakenOnceAndGivenBackAtUninstall) {
    VQ6192_MEM_STATS before{}, after{};
    VQ6192_Platform_GetMemStats("vq6192_dump", &before);
    ASSERT_EQ(initSmall(), 0u);
    ASSERT_EQ(initSmall(), 0u);
    VQ6192_Platform_GetMemStats("vq6192_dump", &after);
    EXPECT_EQ(after.ullAllocs - before.ullAllocs, 1u);
    EXPECT_EQ(after.ullBytesInUse - before.ullBytesInUse, 4096u);
    EXPECT_EQ(VQ6192_UnInstall_SDK(kChip), 0u);
    VQ6192_Platform_GetMemStats("vq6192_dump", &after);
    EXPECT_EQ(after.ullOutstanding, before.ullOutstanding);
    reinstall(model.installPara(kChip, true));

    VQ6192_Platform_FailAllocs(0, 1);
    EXPECT_EQ(initSmall(), kNoFile);
}

TEST_F(FileTest, DefaultDumpWithTheLibrarysOwnHooksWritesNoFile) {
    useWindow();
    capture.clear();
    EXPECT_EQ(VQ6192_DUMP_F(kChip, 11), kNoFile);
    // clang-format off
    EXPECT_EQ(capture.traceTexts().back(), "Err. VQ6192_DUMP_WriteFile.     open file Fail!! m_pcSaveFile is \"ofs1/fpga/DrvDump.bd\" \r\n");
    // clang-format on
    EXPECT_TRUE(files.calls.empty());
    EXPECT_EQ(g_vq6192[kChip].pstDumpCtx->ulHeadWritten, 0u);
}

TEST_F(FileTest, DefaultDumpThroughPlatformFileFunctions) {
    useWindow();
    window().set(2 * (0xFFFF + 0x2), 0x1357);     // first E1 map register
    window().set(2 * (0xFFFF + 0x4C20), 0x2468);  // last
    const VQ6192_PLATFORM_FILE_HOOKS hooks = vqtest::MemFiles::platformHooks();
    VQ6192_Platform_SetFileHooks(&hooks);
    EXPECT_EQ((U32s{VQ6192_DUMP_F(kChip, 11), VQ6192_DUMP_F(kChip, 11)}), U32s(2, 0));
    VQ6192_Platform_SetFileHooks(nullptr);
    const Bytes &f = files.file("ofs1/fpga/DrvDump.bd");
    Bytes head = {0x7E};
    appendName(head, "DUMPofs1/fpga/DrvDump.bdVQ6192", 47);
    ASSERT_GE(f.size(), 48u + 24 + 6 + 2);
    EXPECT_EQ(Bytes(f.begin(), f.begin() + 48), head);
    // E1Map: 4 ranges, base 0xFFFF.
    const size_t values =
        (0x408 - 0x2 + 1) + (0x111C - 0x1001 + 1) + (0xF40A - 0x6001 + 1) + (0x4C20 - 0x2001 + 1);
    EXPECT_EQ(f.size(), 48 + 24 + 4 * 6 + 2 * values) << "ChipDumpEnd makes the second run start a new file";
    EXPECT_EQ(Bytes(f.begin() + 48, f.begin() + 49 + 5), (Bytes{0xF0, 'E', '1', 'M', 'a', 'p'}));
    EXPECT_EQ(Bytes(f.begin() + 72, f.begin() + 80), (Bytes{0xFF, 0xFF, 0x00, 0x02, 0x04, 0x08, 0x13, 0x57}));
    EXPECT_EQ(Bytes(f.end() - 2, f.end()), (Bytes{0x24, 0x68}));
}

}  // namespace
}  // namespace dumptest
