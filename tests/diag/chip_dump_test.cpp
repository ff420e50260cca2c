// The default chip dump as a diagnostic command: its registry row, and the dump it runs.
#include "chip/dump_fixture.h"
#include "diag/registry.h"

namespace dumptest {
namespace {

using DiagDumpTest = DumpTest;

TEST_F(DiagDumpTest, RowRunsTheDefaultDumpWithTheGivenFilter) {
    const vq::diag::Command *cmd = vq::diag::findCommand("VQ6192_DUMP_F");
    ASSERT_NE(cmd, nullptr);
    useWindow();
    const VQ6192_PLATFORM_FILE_HOOKS hooks = vqtest::MemFiles::platformHooks();
    VQ6192_Platform_SetFileHooks(&hooks);
    std::vector<vq::diag::ArgValue> args(2);
    std::vector<char> buf(VQ6192_DIAG_BUF_SIZE, '\0');
    args[0].u32 = kChip;
    args[1].u32 = 7;  // the DDR2C block alone
    EXPECT_EQ(cmd->invoke(args.data(), buf.data()), 0u);
    VQ6192_Platform_SetFileHooks(nullptr);
    EXPECT_EQ(files.files["ofs1/fpga/DrvDump.bd"].size(), 48u + 24 + 6 + 2 * 0xCA);
    EXPECT_EQ(buf[0], '\0') << "the dump writes no text";
}

}  // namespace
}  // namespace dumptest
