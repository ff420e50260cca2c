// The dump file: its bytes for a small list, the entry sizes, buffering, the file hooks and their
// failures, the initialisation checks and the default dump.
#include <cstring>

#include "chip/dump_fixture.h"

namespace dumptest {
namespace {

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
    append(want, {0x00, 0x00, 0x00, 0x01, 0x02, 0x02});
    append(want, {0x00, 0x00, 0x00, 0x10, 0x00, 0x11, 0xA1, 0xB2, 0xC3, 0xD4});
    append(want, {0x10, 0x00, 0x00, 0x02, 0x00, 0x02, 0x01, 0x02});
    append(want, {0xF1});
    appendName(want, "TS", 17);
    append(want, {0x00, 0x00, 0x00, 0x01, 0x01, 0x02});
    appendName(want, "TS_DL_ET1_TAB", 18);
    append(want, {0x00, 0x00, 0x00, 0x02, 0x00, 0x04});
    append(want, {0x00, 0x00, 0x12, 0x34, 0x00, 0x00, 0x56, 0x78});
    EXPECT_EQ(files.file(kFile), want);
    // Header once ("wb"), then the waiting bytes appended ("ab+"), every file closed again.
    EXPECT_EQ(files.calls, (Lines{"open chip3.bd wb", "write 1 48", "close", "open chip3.bd ab+",
                                  "write 1 " + std::to_string(want.size() - 48), "close"}));
    EXPECT_EQ(files.openHandles(), 0u);
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
    EXPECT_EQ(VQ6192_DUMP_DumpTbl(kChip, 1) | VQ6192_DUMP_WriteFile(kChip), 0u);
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
}

TEST_F(FileTest, FileHookFailures) {
    const std::string noAppend =
        "Err. VQ6192_DUMP_WriteFile.     open file Fail!! m_pcSaveFile is \"chip3.bd\" \r\n";
    const size_t body = 24 + 10 + 8 + 24 + 24 + 8;
    struct Case {
        const char *what;
        std::string failOpen, zeroHandle;
        int failWrite;
        bool failClose;
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

TEST_F(FileTest, FailingRegisterPassEndsTheDumpBeforeTheTables) {
    const VQ6192_DUMP_REG_BLOCK_S big{"BIG", 1, 3, 1, 2, 0, {{0x0000, 0, 2999}}};
    files.failOpenMode = "ab+";
    ASSERT_EQ(init(&big, 1, groups_, 1), 0u);
    EXPECT_EQ(VQ6192_DUMP_Dump(kChip, 1), kNoFile);
    EXPECT_EQ(model.tables().readsExecuted(0x10ab), 0u);
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

// ---- Set-up checks ---------------------------------------------------------------------------------

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

// ---- The default dump ------------------------------------------------------------------------------

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
