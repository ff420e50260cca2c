// The dump reader on dumps made from the chip model: what it reads back equals the model's registers
// and table memories, what it prints names tables and members by the catalogue, and a truncated or
// corrupt file gives a clear error. Damaged files at random: the reader's libFuzzer target; group
// filters and the default lists: tests/chip.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <set>
#include <sstream>
#include <tuple>

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

    // Entry `i` of a record's table memory, as the engine addresses it.
    static std::tuple<uint32_t, uint32_t, uint32_t> where(const VQ6192_DUMP_TBL_S &t, uint32_t i) {
        const VQ6192_CHIP_TABLE_INFO_S &r = t.stTbl;
        return {r.ulBlockBase, r.stSelect.usValue1 & ((1u << r.stSelect.usWidth) - 1),
                i & ((1u << r.stAddress.usWidth) - 1)};
    }

    // fn(group, table, record) for every table of the default groups, in file order.
    template <typename Fn>
    static void eachTable(Fn fn) {
        for (uint32_t g = 0; g < g_VQ6192_ChipDump_InDirectReg_Cnt; ++g) {
            for (uint32_t t = 0; t < g_VQ6192_ChipDump_InDirectReg[g].ucTblNum; ++t) {
                fn(g, t, g_VQ6192_ChipDump_InDirectReg[g].astTbl[t]);
            }
        }
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
        poke({{0x20, 0xA1B2}, {0x22, 0xC3D4}});
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

TEST_F(ReaderTest, FullDefaultDumpReproducesEveryRegisterAndEntry) {
    // The CES block's registers (but the table-access ones, which the dump's table reads change) and a
    // spread of entries of every table (first, last, every 509th) hold random values.
    std::mt19937 rng(42);
    const VQ6192_DUMP_REG_BLOCK_S &ces = g_VQ6192_ChipDump_DirectReg[4];
    std::vector<uint32_t> addrs;
    for (uint32_t r = 0; r < ces.ucRangeNum; ++r) {
        for (uint32_t reg = ces.astRange[r].usFirst; reg <= ces.astRange[r].usLast; ++reg) {
            addrs.push_back(2 * (ces.astRange[r].usBase + reg));
            if (addrs.back() >= 0x14040) {
                model.poke(addrs.back(), static_cast<uint16_t>(rng()));
            }
        }
    }
    eachTable([&](uint32_t, uint32_t, const VQ6192_DUMP_TBL_S &t) {
        for (uint32_t i = 0; i < t.stTbl.ulDepth; i += std::clamp(t.stTbl.ulDepth - 1 - i, 1u, 509u)) {
            TableEngine::Entry e{};
            std::generate_n(e.begin(), t.stTbl.usData16, [&] { return static_cast<uint16_t>(rng() | 1); });
            std::apply([&](auto... a) { model.tables().setEntry(a..., e); }, where(t, i));
        }
    });
    // As the bus shows them (interrupt summaries are computed when read), and as the memories hold them
    // before the dump's reads clear the read-clear counters.
    std::vector<uint16_t> regs;
    for (uint32_t addr : addrs) {
        regs.push_back(model.busRead(addr));
    }
    std::vector<TableEngine::Entry> held;
    eachTable([&](uint32_t, uint32_t, const VQ6192_DUMP_TBL_S &t) {
        for (uint32_t i = 0; i < t.stTbl.ulDepth; ++i) {
            held.push_back(std::apply([&](auto... a) { return model.tables().entry(a...); }, where(t, i)));
        }
    });
    const Bytes file = defaultDump(VQ6192_DUMP_ALL_GROUPS);
    const vqdump::DumpImage image = vqdump::parseDump(file);
    ASSERT_TRUE(image.ok()) << image.error;
    EXPECT_EQ(image.headText, "DUMPchip3.bdVQ6192");
    ASSERT_EQ(image.blocks.size(), 11u);
    for (uint32_t b = 0; b < image.blocks.size(); ++b) {
        const VQ6192_DUMP_REG_BLOCK_S &list = g_VQ6192_ChipDump_DirectReg[b];
        ASSERT_EQ(image.blocks[b].ranges.size(), list.ucRangeNum) << list.pszName;
        for (uint32_t r = 0; r < list.ucRangeNum; ++r) {
            EXPECT_EQ(image.blocks[b].ranges[r].base, list.astRange[r].usBase) << list.pszName;
            EXPECT_EQ(image.blocks[b].ranges[r].values.size(),
                      list.astRange[r].usLast - list.astRange[r].usFirst + 1u);
        }
    }
    std::vector<uint16_t> read;
    for (const vqdump::RegRange &r : image.blocks[4].ranges) {
        read.insert(read.end(), r.values.begin(), r.values.end());
    }
    EXPECT_TRUE(read == regs);
    ASSERT_EQ(image.groups.size(), 7u);
    for (uint32_t g = 0; g < image.groups.size(); ++g) {
        ASSERT_EQ(image.groups[g].tables.size(), g_VQ6192_ChipDump_InDirectReg[g].ucTblNum);
    }
    size_t k = 0;
    eachTable([&](uint32_t g, uint32_t t, const VQ6192_DUMP_TBL_S &record) {
        const vqdump::Table &table = image.groups[g].tables[t];
        ASSERT_EQ(table.depth, record.stTbl.ulDepth) << table.name;
        EXPECT_EQ(table.catalogueId, vq::dump::defaultTableCatalogueId(g, t)) << table.name;
        for (uint32_t i = 0; i < table.depth; ++i, ++k) {
            // The file holds the data registers' halves, low half first, then zeros.
            std::vector<uint32_t> words(table.entrySize / 4, 0);
            for (uint32_t h = 0; h < record.stTbl.usData16 && h / 2 < words.size(); ++h) {
                words[h / 2] |= uint32_t{held[k][h]} << (16 * (h % 2));
            }
            ASSERT_EQ(table.entry(i), words) << table.name << " entry " << i;
        }
    });
}

TEST_F(ReaderTest, PrintsRegistersAndMembersByNameUnderFilters) {
    const Bytes file = smallDump();  // the image points into it
    const vqdump::DumpImage image = vqdump::parseDump(file);
    ASSERT_TRUE(image.ok()) << image.error;
    const std::string head = "chip dump DUMPchip3.bdVQ6192\n";
    const std::string glb = "register block GLB, group 1, 1 range\n  registers 0x10..0x11\n";
    const std::string ts =
        "  table TS_DL_ET1_TAB (Tsdlet1tab), 2 entries of 4 bytes\n"
        "    [0] En=0x0 Moduleind=0x0 Tsspeed=0x2 Chnum=0x234\n"
        "    [1] En=0x0 Moduleind=0x2 Tsspeed=0x2 Chnum=0x678\n";
    const std::string group = "table group TS, group 1, 2 tables\n";
    const std::pair<vqdump::PrintOptions, std::string> cases[] = {
        {{},
         head + glb + "    0x00020 = 0xa1b2\n    0x00022 = 0xc3d4\n" + group + ts +
             "  table MYTABLE (no layout), 1 entries of 4 bytes\n    [0] 0x00001234\n"},
        {{{"ts_dl_et1_tab"}, {}}, head + group + ts},  // dump name, other case
        {{{"Tsdlet1tab"}, {}}, head + group + ts},     // catalogue name
        {{{}, {{0x22, 0x22}}}, head + glb + "    0x00022 = 0xc3d4\n"},
        {{{"Atmswvct"}, {{0x100, 0x200}}}, head},
    };
    for (const auto &[options, out] : cases) {
        EXPECT_EQ(print(image, options), out);
    }
}

TEST(DumpReadFilter, RegisterAddressArguments) {
    // Text, accepted, the range it gives.
    const std::tuple<const char *, bool, uint32_t, uint32_t> cases[] = {
        {"0x10", true, 0x10, 0x10}, {"16-32", true, 16, 32}, {"0x14000-0x14002", true, 0x14000, 0x14002},
        {"32-16", false, 0, 0},     {"", false, 0, 0},       {"-5", false, 0, 0},
        {"0x1-", false, 0, 0},      {"abc", false, 0, 0},    {"4294967296", false, 0, 0},
    };
    for (const auto &[text, ok, lo, hi] : cases) {
        std::pair<uint32_t, uint32_t> range{7, 7};
        EXPECT_EQ(vqdump::parseRegFilter(text, &range), ok) << text;
        EXPECT_EQ(range, ok ? std::make_pair(lo, hi) : std::make_pair(7u, 7u)) << text;
    }
}

TEST_F(ReaderTest, TruncatedAndCorruptFilesAreReported) {
    const Bytes file = smallDump();
    // Offsets: block header at 48, range at 72, group header at 82, first table header at 106.
    const std::string notDump = "not a chip dump: the file does not start with 0x7E \"DUMP\"";
    const std::string tab = "table TS_DL_ET1_TAB at offset 0x6a ";
    // Offset, bytes written there, the reader's error.
    const std::tuple<size_t, Bytes, std::string> cases[] = {
        {0, {0x00}, notDump},
        {1, {'d'}, notDump},
        {48, {0xF2}, "corrupt: unknown record mark 0xf2 at offset 0x30"},
        {49, {0x07}, "corrupt: bad register block name at offset 0x30"},
        {70, {9}, "corrupt: register block GLB at offset 0x30 claims 9 ranges (at most 8)"},
        {104, {61}, "corrupt: table group TS at offset 0x52 claims 61 tables (at most 60)"},
        {106, {0xFF}, "corrupt: bad table name at offset 0x6a (table 0 of group TS)"},
        {128, {0x00, 0x06}, "corrupt: " + tab + "has entries of 6 bytes (not whole words)"},
        {124, {0xFF, 0xFF, 0xFF, 0xFF}, "truncated: " + tab + "needs 17179869180 bytes of entries, 36 left"},
        // Empty entries with a huge depth.
        {124,
         {0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00},
         "corrupt: bad table name at offset 0x82 (table 1 of group TS)"},
        {76,
         {0xFF, 0xFF},
         "truncated: the register values of a range at offset 0x4e needs 131040 bytes, 88 left"},
    };
    for (const auto &[at, bytes, error] : cases) {
        Bytes bad = file;
        std::copy(bytes.begin(), bytes.end(), bad.begin() + static_cast<std::ptrdiff_t>(at));
        const vqdump::DumpImage image = vqdump::parseDump(bad);
        EXPECT_EQ(image.error, error) << at;
        EXPECT_LT(print(image).size(), 4096u);
    }
    // Whole records end at the header (48), after the register block (48 + 24 + 6 + 4) and at the end.
    const std::set<size_t> whole = {48, 82, file.size()};
    for (size_t len = 0; len <= file.size(); ++len) {
        const vqdump::DumpImage image = vqdump::parseDump(std::span<const uint8_t>(file.data(), len));
        EXPECT_EQ(image.ok(), whole.count(len) != 0) << len;
        EXPECT_TRUE(image.ok() || image.error.starts_with("truncated")) << len << ": " << image.error;
    }
}

// The program: exit status 0 for a whole file, 2 for a damaged one, 1 for a usage or file error.
TEST_F(ReaderTest, ProgramExitStatus) {
    const Bytes file = smallDump();
    const std::string dir = testing::TempDir() + "vq6192-dumpread-" + std::to_string(getpid());
    std::filesystem::create_directories(dir);
    for (const auto &[name, size] : {std::pair{"/whole.bd", file.size()}, {"/cut.bd", file.size() - 3}}) {
        std::ofstream(dir + name, std::ios::binary)
            .write(reinterpret_cast<const char *>(file.data()), static_cast<std::streamsize>(size));
    }
    std::string out;
    auto run = [&](const std::string &args) {
        FILE *p = popen((std::string(VQ6192_DUMPREAD) + " " + args + " 2>&1").c_str(), "r");
        char chunk[256];
        out.clear();
        for (size_t n; (n = fread(chunk, 1, sizeof chunk, p)) > 0;) {
            out.append(chunk, n);
        }
        return WEXITSTATUS(pclose(p));
    };
    EXPECT_EQ(run("--reg 0x22 " + dir + "/whole.bd"), 0);
    EXPECT_EQ(out, print(vqdump::parseDump(file), {{}, {{0x22, 0x22}}}));
    EXPECT_EQ(run(dir + "/cut.bd"), 2);
    EXPECT_NE(out.find("vq6192-dumpread: " + dir + "/cut.bd: truncated: table MYTABLE at offset 0x"),
              std::string::npos)
        << out;
    for (const std::string &args : {dir + "/none.bd", "--reg 9-1 " + dir + "/whole.bd", std::string()}) {
        EXPECT_EQ(run(args), 1) << args;
    }
    std::filesystem::remove_all(dir);
}

}  // namespace
}  // namespace dumptest
