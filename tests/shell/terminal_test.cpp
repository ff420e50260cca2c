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

    void SetUp() override {
        winsize size{};
        size.ws_row = 40;
        size.ws_col = 200;
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
        if (master >= 0) {
            close(master);
        }
    }

    void type(const std::string &keys) {
        ASSERT_EQ(write(master, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    }

    // Reads until `text` has appeared after position `from` of what was seen; the position after it,
    // or npos when the shell fell silent or ended first.
    size_t waitFor(const std::string &text, size_t from = 0) {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (seen.find(text, from) == std::string::npos) {
            const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
                deadline - std::chrono::steady_clock::now());
            pollfd p{master, POLLIN, 0};
            if (left.count() <= 0 || poll(&p, 1, static_cast<int>(left.count())) <= 0) {
                return std::string::npos;
            }
            char buf[4096];
            const ssize_t n = read(master, buf, sizeof buf);
            if (n <= 0) {
                return std::string::npos;
            }
            append(std::string(buf, static_cast<size_t>(n)));
        }
        return seen.find(text, from) + text.size();
    }

    // Drops terminal control sequences (ESC [ ... letter, ESC x), padding NULs, bells and carriage returns.
    void append(const std::string &raw) {
        for (size_t i = 0; i < raw.size(); ++i) {
            const char c = raw[i];
            if (c == '\x1b') {
                if (i + 1 < raw.size() && raw[i + 1] == '[') {
                    i += 2;
                    while (i < raw.size() && !(raw[i] >= '@' && raw[i] <= '~')) {
                        ++i;
                    }
                } else {
                    ++i;
                }
            } else if (c != '\r' && c != '\a' && c != '\0') {
                seen += c;
            }
        }
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
    size_t at = waitFor("vq6192> ");
    ASSERT_NE(at, std::string::npos) << seen;
    // On a terminal the bring-up shows a line per step before the banner.
    const std::string first = "chip 0 bring-up: settle           ok\n";
    const std::string last = "chip 0 bring-up: MAC ports        ok\n";
    EXPECT_EQ(seen.substr(0, first.size()), first);
    const size_t after = seen.find(last);
    ASSERT_NE(after, std::string::npos) << seen;
    EXPECT_EQ(seen.substr(after + last.size(), at - after - last.size()), banner + "vq6192> ");
    if (!VQ6192_SHELL_LINE_EDITING) {
        type("quit\n");
        EXPECT_EQ(exitStatus(), 0);
        GTEST_SKIP() << "built without line editing";
    }

    // A unique table prefix completes to the whole name and a blank; the command then runs on it.
    type("tr 0 Atmpwe3pri\t");
    at = waitFor("Atmpwe3pritab ", at);
    ASSERT_NE(at, std::string::npos) << seen;
    type("5\r");
    at = waitFor("Table name: Atmpwe3pritab\n", at);
    ASSERT_NE(at, std::string::npos) << seen;

    // Tab twice at the member lists the table's members; a member prefix completes; the line runs.
    at = waitFor("vq6192> ", at);
    type("tf 0 Atmpwe3pritab 5 \t\t");
    at = waitFor("Ubrppri", at);
    ASSERT_NE(at, std::string::npos) << seen;
    const size_t listed = seen.rfind('\n', at);
    const std::string list = seen.substr(listed + 1, seen.find('\n', at) - listed - 1);
    for (const char *member : {"Cbrpri", "Rtvbrpri", "Nrtvbrpri", "Ubrppri", "Ubrpri"}) {
        EXPECT_NE(list.find(member), std::string::npos) << member << " not in: " << list;
    }
    type("Cbr\t3\r");
    at = waitFor("Cbrpri(12:3)     = 0x3  \n", at);
    ASSERT_NE(at, std::string::npos) << seen;

    // A module name of the print-flag command completes, and the command takes it.
    at = waitFor("vq6192> ", at);
    type("VQ6192_Set_Diag_Printf_Flag 0 TAB\t15\r");
    at = waitFor("Diag set module TABLE flag 15 success\n", at);
    ASSERT_NE(at, std::string::npos) << seen;

    at = waitFor("vq6192> ", at);
    type("quit\r");
    EXPECT_EQ(exitStatus(), 0);
}

}  // namespace
