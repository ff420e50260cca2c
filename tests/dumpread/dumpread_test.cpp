// The dump reader on dumps made from the chip model: what it reads back equals the model's registers
// and table memories, what it prints names tables and members by the catalogue, and a truncated or
// corrupt file gives a clear error.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <set>
#include <sstream>

#include "chip/dump_fixture.h"
#include "chip/dump_lists.h"
#include "dump_reader.h"

namespace dumptest {
namespace {

using Bytes = std::vector<uint8_t>;

class ReaderTest : public DumpTest {
  protected:
    void SetUp() override {
        DumpTest::SetUp();
        useIndirect();
    }

    // Fills entries 0, stride, 2 x stride, ... and the last of a record's table memory from `rng`.
    void fillTable(const VQ6192_DUMP_TBL_S &t, std::mt19937 &rng, uint32_t stride = 1) {
        const VQ6192_CHIP_TABLE_INFO_S &r = t.stTbl;
        const uint32_t select = r.stSelect.usValue1 & ((1u << r.stSelect.usWidth) - 1);
        auto fill = [&](uint32_t i) {
            TableEngine::Entry e{};
            for (uint32_t k = 0; k < r.usData16; ++k) {
                e[k] = static_cast<uint16_t>(rng() | 1);
            }
            model.tables().setEntry(r.ulBlockBase, select, i & ((1u << r.stAddress.usWidth) - 1), e);
        };
        for (uint32_t i = 0; i < r.ulDepth; i += stride) {
            fill(i);
        }
        fill(r.ulDepth - 1);
    }

    // The words the file must hold for entry `i` of a record: the data registers' halves, then zeros.
    std::vector<uint32_t> expectedWords(const VQ6192_DUMP_TBL_S &t, uint32_t i, uint32_t words) {
        const VQ6192_CHIP_TABLE_INFO_S &r = t.stTbl;
        const uint32_t select = r.stSelect.usValue1 & ((1u << r.stSelect.usWidth) - 1);
        const TableEngine::Entry e =
            model.tables().entry(r.ulBlockBase, select, i & ((1u << r.stAddress.usWidth) - 1));
        std::vector<uint32_t> out(words, 0);
        for (uint32_t k = 0; k < r.usData16 && k / 2 < words; ++k) {
            out[k / 2] |= uint32_t{e[k]} << (16 * (k % 2));
        }
        return out;
    }

    Bytes defaultDump(int32_t filter) {
        EXPECT_EQ(init(g_VQ6192_ChipDump_DirectReg, g_VQ6192_ChipDump_DirectReg_Cnt,
                       g_VQ6192_ChipDump_InDirectReg, g_VQ6192_ChipDump_InDirectReg_Cnt),
                  0u);
        EXPECT_EQ(VQ6192_DUMP_Dump(kChip, filter), 0u);
        VQ6192_DUMP_ChipDumpEnd(kChip);
        return files.file(kFile);
    }

    // A small dump: one register range, a timeslot table, a table the catalogue does not know.
    Bytes smallDump() {
        static const VQ6192_DUMP_REG_BLOCK_S blocks[] = {{"GLB", 1, 3, 1, 2, 0, {{0x0000, 0x10, 0x11}}}};
        small_ = VQ6192_DUMP_TBL_GROUP_S{"TS", 1, 2, 2, {0, 0}, {}};
        small_.astTbl[0] = tableRecord("TS_DL_ET1_TAB", 117, 2);
        small_.astTbl[1] = tableRecord("MYTABLE", 117, 1);
        model.poke(0x20, 0xA1B2);
        model.poke(0x22, 0xC3D4);
        model.tables().setEntry(0x10ab, 1, 0, halves({0x1234}));
        model.tables().setEntry(0x10ab, 1, 1, halves({0x5678}));
        EXPECT_EQ(init(blocks, 1, &small_, 1), 0u);
        EXPECT_EQ(VQ6192_DUMP_Dump(kChip, -1), 0u);
        VQ6192_DUMP_ChipDumpEnd(kChip);
        return files.file(kFile);
    }

    static std::string print(const vqdump::DumpImage &image, const vqdump::PrintOptions &o = {}) {
        std::ostringstream out;
        vqdump::printDump(image, o, out);
        return out.str();
    }

    VQ6192_DUMP_TBL_GROUP_S small_{};
};

TEST_F(ReaderTest, CesDumpReadsBackTheModelsRegisters) {
    std::mt19937 rng(6192);
    const VQ6192_DUMP_REG_BLOCK_S &block = g_VQ6192_ChipDump_DirectReg[4];
    std::vector<uint32_t> addrs;
    for (uint32_t r = 0; r < block.ucRangeNum; ++r) {
        for (uint32_t reg = block.astRange[r].usFirst; reg <= block.astRange[r].usLast; ++reg) {
            addrs.push_back(2 * (block.astRange[r].usBase + reg));
        }
    }
    for (uint32_t addr : addrs) {
        // Leave the table-access registers, which the dump's own table reads change afterwards.
        if (addr >= 0x14040) {
            model.poke(addr, static_cast<uint16_t>(rng()));
        }
    }
    // As the bus shows them: some registers (interrupt summaries) are computed when read.
    std::vector<uint16_t> before;
    for (uint32_t addr : addrs) {
        before.push_back(model.busRead(addr));
    }
    const Bytes file = defaultDump(5);
    const vqdump::DumpImage image = vqdump::parseDump(file);
    ASSERT_TRUE(image.ok()) << image.error;
    EXPECT_EQ(image.headText, "DUMPchip3.bdVQ6192");
    ASSERT_EQ(image.blocks.size(), 1u);
    EXPECT_EQ(image.blocks[0].name, "CES");
    std::vector<uint16_t> read;
    for (const vqdump::RegRange &r : image.blocks[0].ranges) {
        read.insert(read.end(), r.values.begin(), r.values.end());
    }
    EXPECT_TRUE(read == before);
    ASSERT_EQ(image.groups.size(), 1u);
    EXPECT_EQ(image.groups[0].name, "CES");
    EXPECT_EQ(image.groups[0].tables.size(), 19u);
}

TEST_F(ReaderTest, FullDefaultDumpReproducesEveryEntry) {
    // Every table of every default group holds values in a spread of entries (its first, its last and
    // every 509th); the reader must give back every entry of every table as the model holds it.
    std::mt19937 rng(42);
    for (uint32_t gi = 0; gi < g_VQ6192_ChipDump_InDirectReg_Cnt; ++gi) {
        for (uint32_t t = 0; t < g_VQ6192_ChipDump_InDirectReg[gi].ucTblNum; ++t) {
            fillTable(g_VQ6192_ChipDump_InDirectReg[gi].astTbl[t], rng, 509);
        }
    }
    // What every entry holds before the dump: reading some of them (the read-clear counters) clears them.
    std::vector<std::vector<std::vector<uint32_t>>> held(g_VQ6192_ChipDump_InDirectReg_Cnt);
    for (uint32_t gi = 0; gi < g_VQ6192_ChipDump_InDirectReg_Cnt; ++gi) {
        const VQ6192_DUMP_TBL_GROUP_S &g = g_VQ6192_ChipDump_InDirectReg[gi];
        for (uint32_t t = 0; t < g.ucTblNum; ++t) {
            for (uint32_t i = 0; i < g.astTbl[t].stTbl.ulDepth; ++i) {
                held[gi].push_back(expectedWords(g.astTbl[t], i, 64));
            }
        }
    }
    const Bytes file = defaultDump(VQ6192_DUMP_ALL_GROUPS);
    const vqdump::DumpImage image = vqdump::parseDump(file);
    ASSERT_TRUE(image.ok()) << image.error;
    ASSERT_EQ(image.blocks.size(), 11u);
    ASSERT_EQ(image.groups.size(), 7u);
    size_t entries = 0;
    for (uint32_t gi = 0; gi < image.groups.size(); ++gi) {
        const VQ6192_DUMP_TBL_GROUP_S &g = g_VQ6192_ChipDump_InDirectReg[gi];
        ASSERT_EQ(image.groups[gi].tables.size(), g.ucTblNum);
        size_t k = 0;
        for (uint32_t t = 0; t < g.ucTblNum; ++t) {
            const vqdump::Table &table = image.groups[gi].tables[t];
            SCOPED_TRACE(table.name);
            ASSERT_EQ(table.depth, g.astTbl[t].stTbl.ulDepth);
            EXPECT_EQ(table.catalogueId, vq::dump::defaultTableCatalogueId(gi, t));
            for (uint32_t i = 0; i < table.depth; ++i, ++entries, ++k) {
                const std::vector<uint32_t> &w = held[gi][k];
                ASSERT_EQ(table.entry(i), std::vector<uint32_t>(w.begin(), w.begin() + table.entrySize / 4))
                    << "entry " << i;
            }
        }
    }
    RecordProperty("entries", static_cast<int>(entries));
    RecordProperty("fileBytes", static_cast<int>(file.size()));
}

TEST_F(ReaderTest, AtmFilterDumpsOnlyTheAtmBlockAndGroup) {
    const Bytes file = defaultDump(4);
    const vqdump::DumpImage image = vqdump::parseDump(file);
    ASSERT_TRUE(image.ok()) << image.error;
    ASSERT_EQ(image.blocks.size(), 1u);
    EXPECT_EQ(image.blocks[0].name, "ATM");
    ASSERT_EQ(image.blocks[0].ranges.size(), 5u);
    EXPECT_EQ(image.blocks[0].ranges[2].base, 0x5400u);
    EXPECT_EQ(image.blocks[0].ranges[2].values.size(), 18u);
    ASSERT_EQ(image.groups.size(), 1u);
    EXPECT_EQ(image.groups[0].name, "ATM");
    ASSERT_EQ(image.groups[0].tables.size(), 40u);
    EXPECT_EQ(image.groups[0].tables[0].entrySize, 8u);   // 35 bits
    EXPECT_EQ(image.groups[0].tables[4].entrySize, 16u);  // 121 bits
    EXPECT_EQ(image.groups[0].tables[39].name, "ATM_PORT_PERIOD_CF");
    EXPECT_EQ(image.groups[0].tables[39].catalogueId, 210);
}

TEST_F(ReaderTest, PrintsRegistersAndMembersByName) {
    const Bytes file = smallDump();  // the image points into it
    const vqdump::DumpImage image = vqdump::parseDump(file);
    ASSERT_TRUE(image.ok()) << image.error;
    EXPECT_EQ(print(image),
              "chip dump DUMPchip3.bdVQ6192\n"
              "register block GLB, group 1, 1 range\n"
              "  registers 0x10..0x11\n"
              "    0x00020 = 0xa1b2\n"
              "    0x00022 = 0xc3d4\n"
              "table group TS, group 1, 2 tables\n"
              "  table TS_DL_ET1_TAB (Tsdlet1tab), 2 entries of 4 bytes\n"
              "    [0] En=0x0 Moduleind=0x0 Tsspeed=0x2 Chnum=0x234\n"
              "    [1] En=0x0 Moduleind=0x2 Tsspeed=0x2 Chnum=0x678\n"
              "  table MYTABLE (no layout), 1 entries of 4 bytes\n"
              "    [0] 0x00001234\n");
}

TEST_F(ReaderTest, Filters) {
    const Bytes file = smallDump();  // the image points into it
    const vqdump::DumpImage image = vqdump::parseDump(file);
    struct Case {
        const char *what;
        vqdump::PrintOptions options;
        std::string out;
    } cases[] = {
        {"dump name, other case",
         {{"ts_dl_et1_tab"}, {}},
         "chip dump DUMPchip3.bdVQ6192\n"
         "table group TS, group 1, 2 tables\n"
         "  table TS_DL_ET1_TAB (Tsdlet1tab), 2 entries of 4 bytes\n"
         "    [0] En=0x0 Moduleind=0x0 Tsspeed=0x2 Chnum=0x234\n"
         "    [1] En=0x0 Moduleind=0x2 Tsspeed=0x2 Chnum=0x678\n"},
        {"catalogue name",
         {{"Tsdlet1tab"}, {}},
         "chip dump DUMPchip3.bdVQ6192\n"
         "table group TS, group 1, 2 tables\n"
         "  table TS_DL_ET1_TAB (Tsdlet1tab), 2 entries of 4 bytes\n"
         "    [0] En=0x0 Moduleind=0x0 Tsspeed=0x2 Chnum=0x234\n"
         "    [1] En=0x0 Moduleind=0x2 Tsspeed=0x2 Chnum=0x678\n"},
        {"one register",
         {{}, {{0x22, 0x22}}},
         "chip dump DUMPchip3.bdVQ6192\n"
         "register block GLB, group 1, 1 range\n"
         "  registers 0x10..0x11\n"
         "    0x00022 = 0xc3d4\n"},
        {"nothing matches", {{"Atmswvct"}, {{0x100, 0x200}}}, "chip dump DUMPchip3.bdVQ6192\n"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(print(image, c.options), c.out);
    }
}

TEST(DumpReadFilter, RegisterAddressArguments) {
    struct Case {
        const char *text;
        bool ok;
        uint32_t lo, hi;
    } cases[] = {
        {"0x10", true, 0x10, 0x10}, {"16-32", true, 16, 32}, {"0x14000-0x14002", true, 0x14000, 0x14002},
        {"32-16", false, 0, 0},     {"", false, 0, 0},       {"-5", false, 0, 0},
        {"0x1-", false, 0, 0},      {"abc", false, 0, 0},    {"4294967296", false, 0, 0},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.text);
        std::pair<uint32_t, uint32_t> range{7, 7};
        EXPECT_EQ(vqdump::parseRegFilter(c.text, &range), c.ok);
        if (c.ok) {
            EXPECT_EQ(range, std::make_pair(c.lo, c.hi));
        }
    }
}

TEST_F(ReaderTest, TruncatedFilesAreReportedAtEveryLength) {
    const Bytes file = smallDump();
    // Whole records end at the header (48), after the register block (48 + 24 + 6 + 4) and at the end.
    const std::set<size_t> whole = {48, 82, file.size()};
    for (size_t len = 0; len <= file.size(); ++len) {
        SCOPED_TRACE(len);
        const vqdump::DumpImage image = vqdump::parseDump(std::span<const uint8_t>(file.data(), len));
        if (whole.count(len) != 0) {
            EXPECT_TRUE(image.ok()) << image.error;
        } else {
            EXPECT_EQ(image.error.rfind("truncated", 0), 0u) << image.error;
        }
    }
}

TEST_F(ReaderTest, CorruptFilesAreReported) {
    const Bytes file = smallDump();
    // Offsets: block header at 48, range at 72, group header at 82, first table header at 106.
    struct Case {
        const char *what;
        size_t at;
        std::vector<uint8_t> bytes;
        std::string error;
    } cases[] = {
        {"head mark", 0, {0x00}, "not a chip dump: the file does not start with 0x7E \"DUMP\""},
        {"head text", 1, {'d'}, "not a chip dump: the file does not start with 0x7E \"DUMP\""},
        {"record mark", 48, {0xF2}, "corrupt: unknown record mark 0xf2 at offset 0x30"},
        {"block name", 49, {0x07}, "corrupt: bad register block name at offset 0x30"},
        {"range count", 70, {9}, "corrupt: register block GLB at offset 0x30 claims 9 ranges (at most 8)"},
        {"table count", 104, {61}, "corrupt: table group TS at offset 0x52 claims 61 tables (at most 60)"},
        {"table name", 106, {0xFF}, "corrupt: bad table name at offset 0x6a (table 0 of group TS)"},
        {"entry size",
         128,
         {0x00, 0x06},
         "corrupt: table TS_DL_ET1_TAB at offset 0x6a has entries of 6 bytes (not whole words)"},
        {"depth",
         124,
         {0xFF, 0xFF, 0xFF, 0xFF},
         "truncated: table TS_DL_ET1_TAB at offset 0x6a needs 17179869180 bytes of entries, 36 left"},
        {"empty entries, huge depth",
         124,
         {0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00},
         "corrupt: bad table name at offset 0x82 (table 1 of group TS)"},
        {"range last",
         76,
         {0xFF, 0xFF},
         "truncated: the register values of a range at offset 0x4e needs 131040 bytes, 88 left"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        Bytes bad = file;
        std::copy(c.bytes.begin(), c.bytes.end(), bad.begin() + static_cast<std::ptrdiff_t>(c.at));
        const vqdump::DumpImage image = vqdump::parseDump(bad);
        EXPECT_EQ(image.error, c.error);
        std::ostringstream sink;
        vqdump::printDump(image, {}, sink);
        EXPECT_LT(sink.str().size(), 4096u);
    }
}

TEST_F(ReaderTest, FuzzedDumpsNeverCrashTheReader) {
    // A real dump with several layouts: a register block and tables of 1, 10 and 32 data registers.
    static const VQ6192_DUMP_REG_BLOCK_S blocks[] = {
        {"GLB_CFG", 1, 3, 2, 2, 0, {{0x0000, 0, 0x20}, {0xFFFF, 2, 9}}}};
    VQ6192_DUMP_TBL_GROUP_S g{"MIX", 1, 4, 2, {0, 0}, {}};
    g.astTbl[0] = tableRecord("ATMPWE3_PRI_TAB", 1, 8);
    g.astTbl[1] = tableRecord("CES_RX_CNT", 93, 4);
    g.astTbl[2] = tableRecord("PSN_HEADER", 125, 2);
    g.astTbl[3] = tableRecord("TS_DL_ET1_TAB", 117, 8);
    std::mt19937 rng(20261123);
    for (uint32_t t = 0; t < 4; ++t) {
        fillTable(g.astTbl[t], rng);
    }
    ASSERT_EQ(init(blocks, 1, &g, 1), 0u);
    ASSERT_EQ(VQ6192_DUMP_Dump(kChip, -1), 0u);
    const Bytes file = files.file(kFile);
    ASSERT_TRUE(vqdump::parseDump(file).ok());

    size_t damaged = 0;
    for (int iteration = 0; iteration < 4000; ++iteration) {
        Bytes bad = file;
        const uint32_t how = rng() % 4;
        if (how != 0) {  // flip, overwrite or insert bytes
            const uint32_t n = 1 + rng() % 8;
            for (uint32_t i = 0; i < n; ++i) {
                const size_t at = rng() % bad.size();
                if (how == 1) {
                    bad[at] ^= static_cast<uint8_t>(1u << (rng() % 8));
                } else if (how == 2) {
                    bad[at] = static_cast<uint8_t>(rng());
                } else {
                    bad.insert(bad.begin() + static_cast<std::ptrdiff_t>(at), static_cast<uint8_t>(rng()));
                }
            }
        }
        if (how == 0 || rng() % 2 == 0) {
            bad.resize(rng() % (bad.size() + 1));
        }
        const vqdump::DumpImage image = vqdump::parseDump(bad);
        damaged += image.ok() ? 0 : 1;
        std::ostringstream sink;
        vqdump::printDump(image, {}, sink);
        vqdump::printDump(image, {{"PSN_HEADER", "Cesrxcnt"}, {{0, 0x40000}}}, sink);
        EXPECT_FALSE(sink.str().empty());
    }
    EXPECT_GT(damaged, 1000u) << "the mutations should mostly break the file";
}

// The program: exit status 0 for a whole file, 2 for a damaged one, 1 for a usage or file error.
TEST_F(ReaderTest, ProgramExitStatus) {
    const Bytes file = smallDump();
    const std::string dir =
        std::filesystem::temp_directory_path().string() + "/vq6192-dumpread-" + std::to_string(getpid());
    std::filesystem::create_directories(dir);
    auto save = [&](const std::string &name, size_t size) {
        std::ofstream(dir + "/" + name, std::ios::binary)
            .write(reinterpret_cast<const char *>(file.data()), static_cast<std::streamsize>(size));
    };
    save("whole.bd", file.size());
    save("cut.bd", file.size() - 3);
    auto run = [&](const std::string &args, std::string *out) {
        const std::string cmd = std::string(VQ6192_DUMPREAD) + " " + args + " 2>&1";
        FILE *p = popen(cmd.c_str(), "r");
        char chunk[256];
        out->clear();
        for (size_t n; (n = fread(chunk, 1, sizeof chunk, p)) > 0;) {
            out->append(chunk, n);
        }
        return WEXITSTATUS(pclose(p));
    };
    std::string out;
    EXPECT_EQ(run("--reg 0x22 " + dir + "/whole.bd", &out), 0);
    EXPECT_EQ(out,
              "chip dump DUMPchip3.bdVQ6192\nregister block GLB, group 1, 1 range\n  registers 0x10..0x11\n"
              "    0x00022 = 0xc3d4\n");
    EXPECT_EQ(run(dir + "/cut.bd", &out), 2);
    EXPECT_NE(out.find("vq6192-dumpread: " + dir + "/cut.bd: truncated: table MYTABLE at offset 0x"),
              std::string::npos)
        << out;
    EXPECT_EQ(run(dir + "/none.bd", &out), 1);
    EXPECT_EQ(run("--reg 9-1 " + dir + "/whole.bd", &out), 1);
    EXPECT_EQ(run("", &out), 1);
    std::filesystem::remove_all(dir);
}

}  // namespace
}  // namespace dumptest
