// The real shell on a pseudo-terminal, typed at as a person would: the banner, then a prefix and Tab,
// and the completed line read back through what the shell ran.
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <string>

#include "support/test_support.h"

namespace {

class ShellTerminal : public ::testing::Test {
  protected:
    int master = -1;
    pid_t child = -1;
    std::string seen;  // everything the shell wrote, escape sequences and CRs removed
    size_t at = 0;     // where the next wait starts

    void SetUp() override {
        winsize size{40, 200, 0, 0};  // rows, columns
        child = forkpty(&master, nullptr, nullptr, &size);
        ASSERT_GE(child, 0);
        if (child == 0) {
            setenv("TERM", "vt100", 1);
            execl(VQ6192_SHELL_PATH, VQ6192_SHELL_PATH, static_cast<char *>(nullptr));
            _exit(127);
        }
    }

    void TearDown() override {
        if (child > 0) {
            kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
        }
        close(master);  // -1 when the terminal was never opened: refused, harmless
    }

    void type(const std::string &keys) {
        ASSERT_EQ(write(master, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    }

    // Reads until `text` has appeared after what was waited for before; false when the shell fell silent
    // or ended first. Terminal control sequences (ESC [ ... letter, ESC x), padding NULs, bells and
    // carriage returns are dropped from what is seen.
    bool waitFor(const std::string &text) {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (seen.find(text, at) == std::string::npos) {
            const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
                deadline - std::chrono::steady_clock::now());
            pollfd p{master, POLLIN, 0};
            char buf[4096];
            ssize_t n = 0;
            if (left.count() <= 0 || poll(&p, 1, static_cast<int>(left.count())) <= 0 ||
                (n = read(master, buf, sizeof buf)) <= 0) {
                return false;
            }
            for (ssize_t i = 0; i < n; ++i) {
                if (buf[i] == '\x1b' && i + 1 < n && buf[i + 1] == '[') {
                    for (i += 2; i < n && !(buf[i] >= '@' && buf[i] <= '~'); ++i) {
                    }
                } else if (buf[i] == '\x1b') {
                    ++i;
                } else if (buf[i] != '\r' && buf[i] != '\a' && buf[i] != '\0') {
                    seen += buf[i];
                }
            }
        }
        at = seen.find(text, at) + text.size();
        return true;
    }

    int exitStatus() {
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        child = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
};

TEST_F(ShellTerminal, BannerThenTabCompletesTablesAndListsMembers) {
    const std::string banner =
        VQ6192_SHELL_LINE_EDITING
            ? "vq6192-shell: chip 0 on the chip model, brought up; help lists the commands\n"
            : "vq6192-shell: chip 0 on the chip model, brought up; help lists the commands (no line "
              "editing: built without libedit)\n";
    // On a terminal the bring-up shows a line per step before the banner.
    ASSERT_TRUE(waitFor("chip 0 bring-up: MAC ports        ok\n" + banner + "vq6192> ")) << seen;
    EXPECT_EQ(seen.rfind("chip 0 bring-up: settle           ok\n", 0), 0u) << seen;
    if (!VQ6192_SHELL_LINE_EDITING) {
        type("quit\n");
        EXPECT_EQ(exitStatus(), 0);
        GTEST_SKIP() << "built without line editing";
    }
    // A unique table prefix completes to the whole name and a blank; the command then runs on it.
    type("tr 0 Atmpwe3pri\t");
    ASSERT_TRUE(waitFor("Atmpwe3pritab ")) << seen;
    type("5\r");
    ASSERT_TRUE(waitFor("Table name: Atmpwe3pritab\n") && waitFor("vq6192> ")) << seen;

    // Tab twice at the member lists the table's members; a member prefix completes; the line runs.
    type("tf 0 Atmpwe3pritab 5 \t\t");
    ASSERT_TRUE(waitFor("Ubrppri")) << seen;
    const size_t listed = seen.rfind('\n', at);
    const std::string list = seen.substr(listed + 1, seen.find('\n', at) - listed - 1);
    for (const char *member : {"Cbrpri", "Rtvbrpri", "Nrtvbrpri", "Ubrppri", "Ubrpri"}) {
        EXPECT_NE(list.find(member), std::string::npos) << member << " not in: " << list;
    }
    type("Cbr\t3\r");
    ASSERT_TRUE(waitFor("Cbrpri(12:3)     = 0x3  \n") && waitFor("vq6192> ")) << seen;

    // A module name of the print-flag command completes, and the command takes it.
    type("VQ6192_Set_Diag_Printf_Flag 0 TAB\t15\r");
    ASSERT_TRUE(waitFor("Diag set module TABLE flag 15 success\n") && waitFor("vq6192> ")) << seen;
    type("quit\r");
    EXPECT_EQ(exitStatus(), 0);
}

}  // namespace
