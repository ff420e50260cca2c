// Shell sessions in process: output of commands, entries written from the shell found in the model,
// one-line errors, status decoding and a mapped register window.
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>

#include "shell_fixture.h"

namespace {

using shelltest::Shell;
using ShellSession = shelltest::ShellTest;

TEST_F(ShellSession, PrintsTheCommandsTextAndItsStatus) {
    const std::string flags = run("VQ6192_Show_Printf_Flag 0");
    EXPECT_EQ(flags.substr(0, 78),
              "---------------ModuleID------------------------------\n"
              "0 :   OFF   FLAG is  14\n");
    EXPECT_EQ(flags.substr(flags.size() - 15), "15 : ALL_PRINT\n");
    EXPECT_EQ(run("VQ6192_Set_Diag_Printf_Flag 0 12 15"), "Diag set module TABLE flag 15 success\n");
    EXPECT_EQ(g_vq6192[0].aulPrintFlag[12], 15u);
    EXPECT_EQ(run("VQ6192_Rt 0 1 32", false),
              "status 0x000c0001: chip 0, TABLE, error 1 (parameter error)\n");
}

TEST_F(ShellSession, EntryWrittenFromTheShellLandsInTheModelAndReadsBack) {
    run("tf 0 Atmpwe3pritab 5 Cbrpri 3; tf 0 1 5 ubrpri 0x5");
    vq6192::sim::ChipModel *model = session().model(0);
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->tables().entry(0x5000, 38, 5)[0], (3 << 12) | 5);
    const std::string text = run("VQ6192_Rt 0 1 5");
    EXPECT_NE(text.find("Cbrpri(12:3)     = 0x3  \r\n"), std::string::npos);
    EXPECT_NE(text.find("Ubrpri(0:3)      = 0x5  \r\n"), std::string::npos);

    run("tw 0 Psnheader 3167 0x11111111 0x22222222 0x33333333");
    EXPECT_EQ(model->tables().entry(0x4000, 0, 3167)[4], 0x3333);
    run("rw 0 0x20090 0xbeef");
    EXPECT_EQ(model->peek(0x20090), 0xBEEF);
    EXPECT_EQ(run("rr 0 0x20090"), "0x00020090 = 0xbeef\n");
}

TEST_F(ShellSession, BadInputGetsOneLineErrors) {
    struct Case {
        const char *line;
        const char *error;
    };
    const Case cases[] = {
        {"nosuch 1", "error: unknown command 'nosuch' (help lists the commands)\n"},
        {"VQ6192_Rt 0 1", "error: VQ6192_Rt takes 3 arguments: chip tableId index\n"},
        {"VQ6192_Show_Printf_Flag", "error: VQ6192_Show_Printf_Flag takes 1 argument: chip\n"},
        {"VQ6192_Rt 0 0x1g 1",
         "error: VQ6192_Rt: '0x1g' is not a table name or id for tableId (arguments: chip tableId index)\n"},
        {"VQ6192_Rt 0 Reserved 1",
         "error: VQ6192_Rt: 'Reserved' is not a table name or id for tableId (arguments: chip tableId "
         "index)\n"},
        {"VQ6192_Set_Diag_Printf_Flag 0 ATMX 1",
         "error: VQ6192_Set_Diag_Printf_Flag: 'ATMX' is not a module name "
         "or id for module (arguments: chip module flag)\n"},
        {"VQ6192_Rt 0x 1 1",
         "error: VQ6192_Rt: '0x' is not an integer for chip (arguments: chip tableId index)\n"},
        {"VQ6192_Rt \"0 1 1", "error: unterminated quote\n"},
        {"rr 0", "error: rr takes chip addr\n"},
        {"rr 7 0", "error: chip 7 is not installed in this shell (chips 0..0)\n"},
        {"rw 0 2 0x10000", "error: registers are 16 bits wide (value 0x10000)\n"},
        {"tr 0 Nosuchtable 1", "error: no chip table 'Nosuchtable' (tables lists them; ids 0..216)\n"},
        {"tr 0 217 1", "error: no chip table '217' (tables lists them; ids 0..216)\n"},
        {"tf 0 1 0 Nomember 1", "error: Atmpwe3pritab has no member 'Nomember'\n"},
        {"rd 0 0 0", "error: count is 1..4096 registers\n"}};
    for (const Case &c : cases) {
        run(c.line, false);
        EXPECT_EQ(err(), c.error) << c.line;
    }
    // A failing command does not stop the others on the line.
    EXPECT_EQ(run("nosuch; rr 0 0x300", false), "0x00000300 = 0x0000\n");
}

TEST_F(ShellSession, HelpAndQuit) {
    const std::string all = run("help");
    EXPECT_NE(all.find("TABLE\n  VQ6192_Rt chip tableId index"), std::string::npos);
    EXPECT_NE(all.find("shell\n  rr chip addr"), std::string::npos);
    EXPECT_EQ(
        run("help VQ6192_Rt"),
        "VQ6192_Rt chip tableId index\n"
        "  read a table entry and print it member by member\n"
        "  module TABLE; arguments: chip (installed chip id), tableId (table name or id), index (integer)\n");
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

TEST_F(ShellSession, TableAndModuleArgumentsOfDiagnosticCommandsTakeNames) {
    struct Case {
        const char *line;
        uint32_t module;  // print flag that must hold the value
        uint32_t flag;
        const char *output;
    };
    const Case cases[] = {
        {"VQ6192_Set_Diag_Printf_Flag 0 frm 3", 15, 3, "Diag set module FRM flag 3 success\n"},
        {"VQ6192_Set_Diag_Printf_Flag 0 IMA_ASI 1", 21, 1, "Diag set module IMA_ASI flag 1 success\n"},
        {"VQ6192_Set_Diag_Printf_Flag 0 Table 9", 12, 9, "Diag set module TABLE flag 9 success\n"},
        {"VQ6192_Set_Diag_Printf_Flag 0 off 5", 0, 5, "Diag set module OFF flag 5 success\n"}};
    for (const Case &c : cases) {
        EXPECT_EQ(run(c.line), c.output);
        EXPECT_EQ(g_vq6192[0].aulPrintFlag[c.module], c.flag) << c.line;
    }
    // END selects every module.
    EXPECT_EQ(run("VQ6192_Set_Diag_Printf_Flag 0 end 7"), "Diag set module END flag 7 success\n");
    for (uint32_t m = 0; m < 23; ++m) {
        EXPECT_EQ(g_vq6192[0].aulPrintFlag[m], 7u) << m;
    }

    run("tf 0 1 5 Rtvbrpri 6");
    const std::string byId = run("VQ6192_Rt 0 1 5");
    EXPECT_NE(byId.find("Rtvbrpri(9:3)    = 0x6  \r\n"), std::string::npos);
    EXPECT_EQ(run("VQ6192_Rt 0 atmpwe3PRITAB 5"), byId);
    EXPECT_EQ(run("VQ6192_Rt 0 Atmswvct 8192", false),
              "status 0x000c0001: chip 0, TABLE, error 1 (parameter error)\n");
}

TEST(ShellBanner, NamesTheChipsWhereTheyAreTheirBringUpAndLineEditing) {
    vqtest::PlatformCapture capture;
    char path[] = "/tmp/vq6192-banner-XXXXXX";
    const int fd = mkstemp(path);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(ftruncate(fd, 0x1000), 0);
    const std::string window = path;
    struct Case {
        uint32_t chips;
        bool mapped;
        bool bringUp;
        bool lineEditing;
        std::string banner;
    };
    const std::string help = "; help lists the commands";
    const Case cases[] = {
        {1, false, true, true, "vq6192-shell: chip 0 on the chip model, brought up" + help},
        {4, false, true, true, "vq6192-shell: chips 0..3 on the chip model, brought up" + help},
        {1, false, false, true, "vq6192-shell: chip 0 on the chip model, not brought up" + help},
        {2, true, true, true,
         "vq6192-shell: chips 0..1 on the chip model, chip 2 on the mapped window " + window +
             ", 2 of 3 brought up" + help},
        {0, true, true, true,
         "vq6192-shell: chip 0 on the mapped window " + window + ", not brought up" + help},
        {1, false, true, false,
         "vq6192-shell: chip 0 on the chip model, brought up" + help +
             " (no line editing: built without libedit)"}};
    for (const Case &c : cases) {
        vqshell::SessionOptions options;
        options.chips = c.chips;
        options.bringUp = c.bringUp;
        if (c.mapped) {
            options.mapped.push_back({window, 0, 0x1000, 0, 0});
        }
        Shell s(options);
        ASSERT_TRUE(s.started) << s.err.str();
        EXPECT_EQ(s.session.banner(c.lineEditing), c.banner);
        EXPECT_EQ(s.session.chipCount(), c.chips + (c.mapped ? 1 : 0));
        EXPECT_EQ(s.out.str(), "") << "the banner is the caller's to print";
    }
    close(fd);
    unlink(path);
}

TEST(ShellStatus, DecodesChipModuleAndError) {
    for (const auto &[status, text] : std::initializer_list<std::pair<uint32_t, const char *>>{
             {0x030C0003, "status 0x030c0003: chip 3, TABLE, error 3 (time-out)"},
             {0x00010002, "status 0x00010002: chip 0, BASE, error 2 (null pointer or resource not obtained)"},
             {0x00010007, "status 0x00010007: chip 0, BASE, error 7 (arbitration refused)"},
             {0x050D0009, "status 0x050d0009: chip 5, IMA, error 9"},
             {0x000E0001, "status 0x000e0001: chip 0, FRM, error 1 (parameter error)"},
             {8, "status 0x00000008: chip 0, OFF, error 8 (lock failure)"}}) {
        EXPECT_EQ(vqshell::describeStatus(status), text);
    }
}

TEST(ShellMapped, DrivesARegisterWindowMappedFromAFile) {
    vqtest::PlatformCapture capture;
    char path[] = "/tmp/vq6192-window-XXXXXX";
    const int fd = mkstemp(path);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(ftruncate(fd, 0x20000), 0);
    {
        vqshell::SessionOptions options;
        options.mapped.push_back({path, 0x10000, 0x8000, 0, 0});
        Shell s(options);
        ASSERT_TRUE(s.started) << s.err.str();
        EXPECT_EQ(s.session.model(1), nullptr);
        EXPECT_TRUE(s.session.runLine("rw 1 0x10 0x1234; rr 1 0x10"));
        EXPECT_EQ(s.out.str(), "0x00000010 = 0x1234\n");
    }
    uint8_t bytes[2] = {};
    ASSERT_EQ(pread(fd, bytes, 2, 0x10010), 2);
    EXPECT_EQ(bytes[0], 0x34);
    EXPECT_EQ(bytes[1], 0x12);
    close(fd);
    unlink(path);

    vqshell::SessionOptions options;
    options.mapped.push_back({"/nonexistent/window", 0, 0x1000, 0, 0});
    Shell missing(options);
    EXPECT_FALSE(missing.started);
    EXPECT_EQ(missing.err.str().substr(0, 37), "error: cannot open /nonexistent/windo");
}

TEST(ShellBringUp, ChipsOnTheModelComeUpWithAProgressLinePerStep) {
    vqtest::PlatformCapture capture;
    const uint64_t baseline = vqtest::outstandingAllocations();
    // Bring-up, progress lines (a terminal), lines printed, reg 0x06: every module clock but module 5's once
    // up.
    for (const auto &[bringUp, progress, lines, clocks] :
         std::initializer_list<std::tuple<bool, bool, size_t, uint32_t>>{
             {true, true, 2 * 18, 0x7FDF}, {true, false, 0, 0x7FDF}, {false, true, 0, 0}}) {
        SCOPED_TRACE(testing::Message() << bringUp << progress);
        vqshell::SessionOptions options;
        options.chips = 2, options.bringUp = bringUp, options.progress = progress;
        Shell s(options);
        ASSERT_TRUE(s.started) << s.err.str();
        for (uint32_t chip : {0u, 1u}) {
            EXPECT_EQ(s.session.broughtUp(chip), bringUp);
            EXPECT_EQ(s.session.model(chip)->peek(0x06), clocks);
        }
        EXPECT_FALSE(s.session.broughtUp(2));
        const std::string text = s.out.str();
        EXPECT_EQ(static_cast<size_t>(std::count(text.begin(), text.end(), '\n')), lines);
        if (lines != 0) {
            EXPECT_EQ(text.substr(0, 37), "chip 0 bring-up: settle           ok\n");
            EXPECT_EQ(text.substr(text.size() - 37), "chip 1 bring-up: MAC ports        ok\n");
        }
        EXPECT_TRUE(s.err.str().empty());
        // The waits ran on the virtual clock, which the test had switched on and still has.
        EXPECT_EQ(VQ6192_Platform_GetVirtualClock(), 1u);
    }
    EXPECT_EQ(vqtest::outstandingAllocations(), baseline);
}

}  // namespace
