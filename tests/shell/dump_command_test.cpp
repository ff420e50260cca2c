// The shell's dump command: a long dump reports its progress, the file is the whole dump, and the
// model chip's register path is given back afterwards (short dumps: tests/shell/sessions/dump).
#include <unistd.h>

#include <filesystem>

#include "shell_fixture.h"

namespace {

using ShellDump = shelltest::ShellTest;

TEST_F(ShellDump, LongDumpShowsProgressInTenths) {
    const std::string path =
        (std::filesystem::temp_directory_path() / ("vq6192-dump-" + std::to_string(getpid()) + ".bd"))
            .string();
    const std::string out = run("dump 0 all " + path);
    const auto size = std::filesystem::file_size(path);
    std::filesystem::remove(path);
    EXPECT_EQ(out, "chip 0 dumped to " + path + ": " + std::to_string(size) + " bytes\n");
    std::istringstream lines(err());
    std::string line;
    int tenth = 0;
    while (std::getline(lines, line)) {
        ++tenth;
        EXPECT_EQ(line.rfind("dump chip 0: " + std::to_string(10 * tenth) + "% (", 0), 0u) << line;
        EXPECT_NE(line.find(" of " + std::to_string(size) + " bytes)"), std::string::npos) << line;
    }
    EXPECT_EQ(tenth, 9);
    EXPECT_EQ(g_vq6192[0].ulRegIndirectFlag, 0u) << "the chip's register path is restored";
}

}  // namespace
