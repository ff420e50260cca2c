// Shell sessions in process: output of commands, entries written from the shell found in the model,
// one-line errors, status decoding and a mapped register window.
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <sstream>

#include "session.h"
#include "support/test_support.h"

namespace {

class ShellSession : public ::testing::Test {
  protected:
    vqtest::PlatformCapture capture;
    uint64_t baseline = vqtest::outstandingAllocations();
    std::ostringstream out;
    std::ostringstream err;
    std::unique_ptr<vqshell::Session> session = std::make_unique<vqshell::Session>(out, err);

    void SetUp() override { ASSERT_TRUE(session->start({})); }
    void TearDown() override {
        session.reset();
        EXPECT_EQ(vqtest::outstandingAllocations(), baseline);
    }
    std::string run(const std::string &line, bool expectOk = true) {
        out.str("");
        err.str("");
        EXPECT_EQ(session->runLine(line), expectOk) << line;
        return out.str();
    }
};

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
    vq6192::sim::ChipModel *model = session->model(0);
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
         "error: VQ6192_Rt: '0x1g' is not an integer for tableId (arguments: chip tableId index)\n"},
        {"VQ6192_Rt \"0 1 1", "error: unterminated quote\n"},
        {"rr 0", "error: rr takes chip addr\n"},
        {"rr 7 0", "error: chip 7 is not installed in this shell (chips 0..0)\n"},
        {"rw 0 2 0x10000", "error: registers are 16 bits wide (value 0x10000)\n"},
        {"tr 0 Nosuchtable 1", "error: no chip table 'Nosuchtable' (tables lists them; ids 0..216)\n"},
        {"tr 0 217 1", "error: no chip table '217' (tables lists them; ids 0..216)\n"},
        {"tf 0 1 0 Nomember 1", "error: Atmpwe3pritab has no member 'Nomember'\n"},
        {"rd 0 0 0", "error: count is 1..4096 registers\n"},
    };
    for (const Case &c : cases) {
        run(c.line, false);
        EXPECT_EQ(err.str(), c.error) << c.line;
    }
    // A failing command does not stop the others on the line.
    EXPECT_EQ(run("nosuch; rr 0 0x300", false), "0x00000300 = 0x0000\n");
}

TEST_F(ShellSession, HelpAndQuit) {
    const std::string all = run("help");
    EXPECT_NE(all.find("TABLE\n  VQ6192_Rt chip tableId index"), std::string::npos);
    EXPECT_NE(all.find("shell\n  rr chip addr"), std::string::npos);
    EXPECT_EQ(run("help VQ6192_Rt"),
              "VQ6192_Rt chip tableId index\n"
              "  read a table entry and print it member by member\n"
              "  module TABLE; arguments: chip (integer), tableId (integer), index (integer)\n");
    EXPECT_EQ(run("help nosuch"), "no command 'nosuch'\n");
    EXPECT_EQ(run("quit; rr 0 2"), "");
    EXPECT_TRUE(session->quitRequested());
}

TEST(ShellStatus, DecodesChipModuleAndError) {
    EXPECT_EQ(vqshell::describeStatus(0x030C0003), "status 0x030c0003: chip 3, TABLE, error 3 (time-out)");
    EXPECT_EQ(vqshell::describeStatus(0x00010002),
              "status 0x00010002: chip 0, BASE, error 2 (null pointer or resource not obtained)");
    EXPECT_EQ(vqshell::describeStatus(0x00010007),
              "status 0x00010007: chip 0, BASE, error 7 (arbitration refused)");
    EXPECT_EQ(vqshell::describeStatus(0x050D0009), "status 0x050d0009: chip 5, IMA, error 9");
    EXPECT_EQ(vqshell::describeStatus(0x000E0001),
              "status 0x000e0001: chip 0, FRM, error 1 (parameter error)");
    EXPECT_EQ(vqshell::describeStatus(8), "status 0x00000008: chip 0, OFF, error 8 (lock failure)");
}

TEST(ShellMapped, DrivesARegisterWindowMappedFromAFile) {
    vqtest::PlatformCapture capture;
    char path[] = "/tmp/vq6192-window-XXXXXX";
    const int fd = mkstemp(path);
    ASSERT_GE(fd, 0);
    ASSERT_EQ(ftruncate(fd, 0x20000), 0);
    {
        std::ostringstream out;
        std::ostringstream err;
        vqshell::Session session(out, err);
        vqshell::SessionOptions options;
        options.mapped.push_back({path, 0x10000, 0x8000, 0, 0});
        ASSERT_TRUE(session.start(options)) << err.str();
        EXPECT_EQ(session.model(1), nullptr);
        EXPECT_TRUE(session.runLine("rw 1 0x10 0x1234; rr 1 0x10"));
        EXPECT_EQ(out.str(), "0x00000010 = 0x1234\n");
    }
    uint8_t bytes[2] = {};
    ASSERT_EQ(pread(fd, bytes, 2, 0x10010), 2);
    EXPECT_EQ(bytes[0], 0x34);
    EXPECT_EQ(bytes[1], 0x12);
    close(fd);
    unlink(path);

    std::ostringstream out;
    std::ostringstream err;
    vqshell::Session missing(out, err);
    vqshell::SessionOptions options;
    options.mapped.push_back({"/nonexistent/window", 0, 0x1000, 0, 0});
    EXPECT_FALSE(missing.start(options));
    EXPECT_EQ(err.str().substr(0, 37), "error: cannot open /nonexistent/windo");
}

TEST(ShellBringUp, ChipsOnTheModelComeUpWithAProgressLinePerStep) {
    vqtest::PlatformCapture capture;
    const uint64_t baseline = vqtest::outstandingAllocations();
    struct Case {
        const char *name;
        bool bringUp;
        bool progress;
        size_t lines;
        uint16_t clocks;  // reg 0x06: every module clock but module 5's once up
    };
    const Case cases[] = {
        {"terminal", true, true, 2 * 14, 0x7FDF},
        {"pipe", true, false, 0, 0x7FDF},
        {"no bring-up", false, true, 0, 0},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        std::ostringstream out;
        std::ostringstream err;
        {
            vqshell::Session session(out, err);
            vqshell::SessionOptions options;
            options.chips = 2;
            options.bringUp = c.bringUp;
            options.progress = c.progress;
            ASSERT_TRUE(session.start(options)) << err.str();
            for (uint32_t chip : {0u, 1u}) {
                EXPECT_EQ(session.broughtUp(chip), c.bringUp);
                EXPECT_EQ(session.model(chip)->peek(0x06), c.clocks);
            }
            EXPECT_FALSE(session.broughtUp(2));
        }
        const std::string text = out.str();
        EXPECT_EQ(static_cast<size_t>(std::count(text.begin(), text.end(), '\n')), c.lines);
        if (c.lines != 0) {
            EXPECT_EQ(text.substr(0, 37), "chip 0 bring-up: settle           ok\n");
            EXPECT_EQ(text.substr(text.size() - 37), "chip 1 bring-up: MAC ports        ok\n");
        }
        EXPECT_TRUE(err.str().empty());
        // The waits ran on the virtual clock, which the test had switched on and still has.
        EXPECT_EQ(VQ6192_Platform_GetVirtualClock(), 1u);
    }
    EXPECT_EQ(vqtest::outstandingAllocations(), baseline);
}

}  // namespace
