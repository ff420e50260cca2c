// The default chip dump as a diagnostic command: its registry row, and the dump it runs.
#include "chip/dump_fixture.h"
#include "diag/registry.h"

namespace dumptest {
namespace {

using DiagDumpTest = DumpTest;

TEST_F(DiagDumpTest, RowTakesTheChipAndTheGroupFilter) {
    const vq::diag::Command *cmd = vq::diag::findCommand("VQ6192_DUMP_F");
    ASSERT_NE(cmd, nullptr);
    EXPECT_STREQ(cmd->module, "DUMP");
    EXPECT_STREQ(cmd->args, "chip groupFilter");
    ASSERT_EQ(cmd->argc, 2);
    EXPECT_EQ(cmd->kinds[0], vq::diag::ArgKind::U32);
    EXPECT_EQ(cmd->kinds[1], vq::diag::ArgKind::U32);
}

TEST_F(DiagDumpTest, RunsTheDefaultDumpWithTheGivenFilter) {
    useWindow();
    window().set(2 * 0x1000, 0x5A5A);  // first TS register
    const vq::diag::Command *cmd = vq::diag::findCommand("VQ6192_DUMP_F");
    ASSERT_NE(cmd, nullptr);
    std::vector<vq::diag::ArgValue> args(2);
    std::vector<char> buf(VQ6192_DIAG_BUF_SIZE, '\0');
    struct Case {
        const char *what;
        uint32_t chip, filter;
        bool fileHooks;
        uint32_t status;
        size_t fileSize;
    } cases[] = {
        {"library's own hooks: no file", kChip, 7, false, kNoFile, 0},
        {"file functions: DDR2C block", kChip, 7, true, 0, 48 + 24 + 6 + 2 * 0xCA},
        {"0xFFFFFFFF is every group, chip 264 refused", 264, 0xFFFFFFFF, true, 0x080B0001, 0},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        files.reset();
        const VQ6192_PLATFORM_FILE_HOOKS hooks = vqtest::MemFiles::platformHooks();
        VQ6192_Platform_SetFileHooks(c.fileHooks ? &hooks : nullptr);
        args[0].u32 = c.chip;
        args[1].u32 = c.filter;
        EXPECT_EQ(cmd->invoke(args.data(), buf.data()), c.status);
        VQ6192_Platform_SetFileHooks(nullptr);
        EXPECT_EQ(files.files["ofs1/fpga/DrvDump.bd"].size(), c.fileSize);
        EXPECT_EQ(buf[0], '\0') << "the dump writes no text";
    }
}

}  // namespace
}  // namespace dumptest
