// Shell sessions in process: entries written from the shell found in the model, one-line errors, status
// decoding, the dump's progress, a mapped register window and the bring-up.
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "shell_fixture.h"

namespace {

using shelltest::Shell;
using ShellSession = shelltest::ShellTest;

// The flag listing, the set-flag text and the status line of a refused read: sessions/flags, tables
// and errors, byte for byte.
TEST_F(ShellSession, EntryWrittenFromTheShellLandsInTheModelAndReadsBack) {
    run("tf 0 Atmpwe3pritab 5 Cbrpri 3; tf 0 1 5 ubrpri 0x5");
    vq6192::sim::ChipModel *model = session().model(0);
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->tables().entry(0x5000, 38, 5)[0], (3 << 12) | 5);
    // The diagnostic command takes the table by id or by name in any case.
    const std::string byId = run("VQ6192_Rt 0 1 5");
    EXPECT_NE(byId.find("Ubrpri(0:3)      = 0x5  \r\n"), std::string::npos);
    EXPECT_EQ(run("VQ6192_Rt 0 atmpwe3PRITAB 5"), byId);
    EXPECT_EQ(run("VQ6192_Rt 0 Atmswvct 8192", false),
              "status 0x000c0001: chip 0, TABLE, error 1 (parameter error)\n");
    run("tw 0 Psnheader 3167 0x11111111 0x22222222 0x33333333; rw 0 0x20090 0xbeef");
    EXPECT_EQ(model->tables().entry(0x4000, 0, 3167)[4], 0x3333);
    EXPECT_EQ(model->peek(0x20090), 0xBEEF);
    EXPECT_EQ(run("rr 0 0x20090"), "0x00020090 = 0xbeef\n");
}

// More of them in sessions/errors.
TEST_F(ShellSession, BadInputGetsOneLineErrors) {
    const std::string rt = " (arguments: chip tableId index)\n";
    const std::pair<const char *, std::string> cases[] = {
        {"VQ6192_Show_Printf_Flag", "error: VQ6192_Show_Printf_Flag takes 1 argument: chip\n"},
        {"VQ6192_Rt 0 Reserved 1", "error: VQ6192_Rt: 'Reserved' is not a table name or id for tableId" + rt},
        {"VQ6192_Set_Diag_Printf_Flag 0 ATMX 1",
         "error: VQ6192_Set_Diag_Printf_Flag: 'ATMX' is not a module name or id for module (arguments: chip "
         "module flag)\n"},
        {"VQ6192_Rt 0x 1 1", "error: VQ6192_Rt: '0x' is not an integer for chip" + rt},
        {"rr 0", "error: rr takes chip addr\n"},
        {"rw 0 2 0x10000", "error: registers are 16 bits wide (value 0x10000)\n"},
        {"tr 0 Nosuchtable 1", "error: no chip table 'Nosuchtable' (tables lists them; ids 0..216)\n"},
        {"tr 0 217 1", "error: no chip table '217' (tables lists them; ids 0..216)\n"},
        {"tf 0 1 0 Nomember 1", "error: Atmpwe3pritab has no member 'Nomember'\n"},
        {"rd 0 0 0", "error: count is 1..4096 registers\n"}};
    for (const auto &[line, error] : cases) {
        run(line, false);
        EXPECT_EQ(err(), error) << line;
    }
    // A failing command does not stop the others on the line.
    EXPECT_EQ(run("nosuch; rr 0 0x300", false), "0x00000300 = 0x0000\n");
}

TEST_F(ShellSession, HelpAndQuit) {
    const std::string all = run("help");
    EXPECT_NE(all.find("TABLE\n  VQ6192_Rt chip tableId index"), std::string::npos);
    EXPECT_NE(all.find("shell\n  rr chip addr"), std::string::npos);
    EXPECT_EQ(
        run("help tf tables"),
        "tf chip table index member value\n"
        "  set one member of a table entry\n"
        "  shell command; arguments: chip (installed chip id), table (table name or id), index (integer), "
        "member (member name of that table), value (integer)\n"
        "tables [filter]\n"
        "  list the table catalogue (names containing filter)\n"
        "  shell command; arguments: [filter] (text)\n");
    EXPECT_EQ(run("help nosuch"), "no command 'nosuch'\n");
    EXPECT_EQ(run("quit; rr 0 2"), "");
    EXPECT_TRUE(session().quitRequested());
}

TEST_F(ShellSession, ModuleArgumentsOfDiagnosticCommandsTakeNames) {
    // Module, print flag that must hold the value (END: every module), value, module's name.
    for (const auto &[module, first, last, flag, name] : {std::tuple{"frm", 15u, 15u, 3u, "FRM"},
                                                          {"IMA_ASI", 21u, 21u, 1u, "IMA_ASI"},
                                                          {"Table", 12u, 12u, 9u, "TABLE"},
                                                          {"off", 0u, 0u, 5u, "OFF"},
                                                          {"end", 0u, 22u, 7u, "END"}}) {
        EXPECT_EQ(run("VQ6192_Set_Diag_Printf_Flag 0 " + std::string(module) + " " + std::to_string(flag)),
                  "Diag set module " + std::string(name) + " flag " + std::to_string(flag) + " success\n");
        for (uint32_t m = first; m <= last; ++m) {
            EXPECT_EQ(g_vq6192[0].aulPrintFlag[m], flag) << module << " " << m;
        }
    }
}

TEST(ShellStatus, DecodesChipModuleAndError) {
    for (const auto &[status, text] : std::initializer_list<std::pair<uint32_t, const char *>>{
             {0x030C0003, "status 0x030c0003: chip 3, TABLE, error 3 (time-out)"},
             {0x00010002, "status 0x00010002: chip 0, BASE, error 2 (null pointer or resource not obtained)"},
             {0x00010007, "status 0x00010007: chip 0, BASE, error 7 (arbitration refused)"},
             {0x050D0009, "status 0x050d0009: chip 5, IMA, error 9"},
             {8, "status 0x00000008: chip 0, OFF, error 8 (lock failure)"}}) {
        EXPECT_EQ(vqshell::describeStatus(status), text);
    }
}

// A long dump reports its progress in tenths, the file is the whole dump, and the model chip's register
// path is given back afterwards (short dumps: sessions/dump).
TEST_F(ShellSession, LongDumpShowsProgressInTenths) {
    const std::string path = testing::TempDir() + "vq6192-dump-" + std::to_string(getpid()) + ".bd";
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

// A window mapped from a file: the banner names the chips where they are, and registers written through
// the window land in the file at its offset.
TEST_F(ShellSession, BannerAndARegisterWindowMappedFromAFile) {
    char path[] = "/tmp/vq6192-window-XXXXXX";
    const int fd = mkstemp(path);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(ftruncate(fd, 0x20000), 0);
    const std::string window = path, name = "vq6192-shell: ", help = "; help lists the commands";
    // Chips on the model, a mapped chip, bring-up, line editing, banner.
    for (const auto &[chips, mapped, bringUp, editing, banner] :
         {std::tuple{1u, false, true, true, "chip 0 on the chip model, brought up" + help},
          {4u, false, true, true, "chips 0..3 on the chip model, brought up" + help},
          {1u, false, false, true, "chip 0 on the chip model, not brought up" + help},
          {2u, true, true, true,
           "chips 0..1 on the chip model, chip 2 on the mapped window " + window + ", 2 of 3 brought up" +
               help},
          {0u, true, true, true, "chip 0 on the mapped window " + window + ", not brought up" + help},
          {1u, false, true, false,
           "chip 0 on the chip model, brought up" + help + " (no line editing: built without libedit)"}}) {
        vqshell::SessionOptions options;
        options.chips = chips, options.bringUp = bringUp;
        if (mapped) {
            options.mapped.push_back({window, 0, 0x1000, 0, 0});
        }
        start(options);
        EXPECT_EQ(session().banner(editing), name + banner);
        EXPECT_EQ(session().chipCount(), chips + (mapped ? 1 : 0));
        EXPECT_EQ(shell->out.str(), "") << "the banner is the caller's to print";
    }
    vqshell::SessionOptions options;
    options.mapped.push_back({path, 0x10000, 0x8000, 0, 0});
    start(options);
    EXPECT_EQ(session().model(1), nullptr);
    EXPECT_EQ(run("rw 1 0x10 0x1234; rr 1 0x10"), "0x00000010 = 0x1234\n");
    shell.reset();
    uint8_t bytes[2] = {};
    ASSERT_EQ(pread(fd, bytes, 2, 0x10010), 2);
    EXPECT_EQ(bytes[0] | bytes[1] << 8, 0x1234) << "little-endian at offset 0x10000 + 0x10";
    close(fd);
    unlink(path);

    options.mapped = {{"/nonexistent/window", 0, 0x1000, 0, 0}};
    Shell missing(options);
    EXPECT_FALSE(missing.started);
    EXPECT_EQ(missing.err.str().substr(0, 37), "error: cannot open /nonexistent/windo");
}

TEST_F(ShellSession, ChipsOnTheModelComeUpWithAProgressLinePerStep) {
    // Bring-up, progress lines (a terminal), lines printed, reg 0x06: every module clock but module 5's
    // once up.
    for (const auto &[bringUp, progress, lines, clocks] : {std::tuple{true, true, size_t{2 * 18}, 0x7FDF},
                                                           {true, false, size_t{0}, 0x7FDF},
                                                           {false, true, size_t{0}, 0}}) {
        vqshell::SessionOptions options;
        options.chips = 2, options.bringUp = bringUp, options.progress = progress;
        start(options);
        for (uint32_t chip : {0u, 1u}) {
            EXPECT_EQ(session().broughtUp(chip), bringUp);
            EXPECT_EQ(session().model(chip)->peek(0x06), clocks);
        }
        EXPECT_FALSE(session().broughtUp(2));
        const std::string text = shell->out.str();
        EXPECT_EQ(static_cast<size_t>(std::count(text.begin(), text.end(), '\n')), lines);
        if (lines != 0) {
            EXPECT_EQ(text.substr(0, 37), "chip 0 bring-up: settle           ok\n");
            EXPECT_EQ(text.substr(text.size() - 37), "chip 1 bring-up: MAC ports        ok\n");
        }
        EXPECT_EQ(err(), "");
        // The waits ran on the virtual clock, which the test had switched on and still has.
        EXPECT_EQ(VQ6192_Platform_GetVirtualClock(), 1u);
    }
}

}  // namespace
