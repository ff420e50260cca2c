// Tab completion driven directly: a line typed so far in, the candidates for its last word out, for
// command names, installed chips, chip tables by name and id, the members of the table given before,
// and the print-control modules.
#include <strings.h>

#include <algorithm>
#include <cstring>
#include <functional>

#include "completion.h"
#include "shell_fixture.h"

namespace {

using Words = std::vector<std::string>;

class ShellCompletion : public shelltest::ShellTest {
  protected:
    void SetUp() override {
        vqshell::SessionOptions options;
        options.chips = 3;
        start(options);
    }
    vqshell::Completion complete(const std::string &line) { return vqshell::complete(session(), line); }
};

TEST_F(ShellCompletion, ArgumentsCompleteByWhatTheyStandFor) {
    const Words pritabMembers = {"Cbrpri", "Nrtvbrpri", "Rtvbrpri", "Ubrppri", "Ubrpri"};
    const std::pair<const char *, Words> cases[] = {
        // Chip tables by name, in any case; the four "Reserved" rows and the print-only layouts
        // (Imappgpc6.., Imatxicpbuf1..) are not tables to read.
        {"tf 0 Atmpwe3pri", {"Atmpwe3pritab"}},
        {"tw 2 atmpwe3PRI", {"Atmpwe3pritab"}},
        {"tr 0 Atmswv", {"Atmswvct", "Atmswvcxfifo"}},
        {"tr 0 Imappgpc", {"Imappgpc0", "Imappgpc1", "Imappgpc2", "Imappgpc3", "Imappgpc4", "Imappgpc5"}},
        {"tr 0 Res", {}},
        {"VQ6192_Rt 0 Atmpwe3pri", {"Atmpwe3pritab"}},
        // Table ids once a digit is typed: chip tables are 0..216.
        {"tr 0 21", {"21", "210", "211", "212", "213", "214", "215", "216"}},
        {"VQ6192_Rt 0 7", {"7", "70", "71", "72", "73", "74", "75", "76", "77", "78", "79"}},
        {"tr 0 217", {}},
        // Members after the table, by its name or id.
        {"tf 0 Atmpwe3pritab 5 ", pritabMembers},
        {"tf 0 atmpwe3pritab 5 ", pritabMembers},
        {"tf 0 1 31 Ubr", {"Ubrppri", "Ubrpri"}},
        {"tf 0 1 31 nrt", {"Nrtvbrpri"}},
        {"tf 0 Nosuchtable 5 ", {}},
        // Modules of the print-flag commands, by name or id (0 OFF .. 22 END).
        {"VQ6192_Set_Diag_Printf_Flag 0 AT", {"ATM", "ATM_ASI"}},
        {"VQ6192_Set_Diag_Printf_Flag 0 i", {"IMA", "IMA_ASI", "INT"}},
        {"VQ6192_Set_Diag_Printf_Flag 0 2", {"2", "20", "21", "22"}},
        {"VQ6192_Set_Diag_Printf_Flag 0 ATM ", {}},
        // Installed chips only: this session has three.
        {"rr ", {"0", "1", "2"}},
        {"VQ6192_Show_Printf_Flag ", {"0", "1", "2"}},
        {"tf 2", {"2"}},
        {"rr 3", {}},
        // Plain integers, unknown commands and commands without arguments offer nothing.
        {"rr 0 ", {}},
        {"nosuch ", {}},
        {"quit ", {}},
        // Only the command under the cursor counts; nothing inside quotes or a comment.
        {"rr 0 2; tr 0 Atmswv", {"Atmswvct", "Atmswvcxfifo"}},
        {"tr 0 \"Atmswv", {}},
        {"rr 0 2 # tr 0 Atmswv", {}}};
    for (const auto &[line, candidates] : cases) {
        EXPECT_EQ(complete(line).candidates, candidates) << line;
    }
}

TEST_F(ShellCompletion, CommandNamesWordStartAndCommonStart) {
    struct Case {
        const char *line;
        size_t start;
        Words mustOffer;
        size_t count;  // 0: not pinned (commands are added as the chip grows)
        const char *common;
    };
    const Case cases[] = {
        {"t", 0, {"tables", "tf", "tr", "tw"}, 0, ""},
        {"VQ6192_R", 0, {"VQ6192_Rt"}, 0, ""},
        {"VQ6192_S", 0, {"VQ6192_Set_Diag_Printf_Flag", "VQ6192_Show_Printf_Flag"}, 0, ""},
        {"", 0, {"VQ6192_Rt", "help", "quit", "rr", "tables"}, 0, ""},
        {"help ", 5, {"VQ6192_Rt", "rd", "tf"}, 0, ""},
        {"help rr VQ6192_Sh", 8, {"VQ6192_Show_Printf_Flag"}, 0, ""},
        {"rr 0 2;r", 7, {"rd", "rr", "rw"}, 0, ""},
        {"tf 0 atmpwe3pri", 5, {"Atmpwe3pritab"}, 1, "Atmpwe3pritab"},
        {"rr 0 2;  tr 0 Atmswv", 14, {}, 2, "Atmswvc"},
        {"tf 0 1 31 Ubr", 10, {}, 2, "Ubrp"},
        {"VQ6192_Set_Diag_Printf_Flag 0 at", 30, {}, 2, "ATM"},
        // A bare Tab on a table lists the names of the 217 chip tables but the four "Reserved" ones.
        {"tr\t0\t", 5, {}, 213, ""},
        {"VQ6192_Set_Diag_Printf_Flag 0 ", 30, {"END", "OFF"}, 23, ""},
    };
    for (const Case &c : cases) {
        const vqshell::Completion got = complete(c.line);
        const Words &w = got.candidates;
        const std::string prefix = std::string(c.line).substr(std::min(got.start, std::strlen(c.line)));
        EXPECT_EQ(got.start, c.start) << c.line;
        EXPECT_TRUE(std::includes(w.begin(), w.end(), c.mustOffer.begin(), c.mustOffer.end())) << c.line;
        EXPECT_TRUE(std::all_of(w.begin(), w.end(), [&](const std::string &n) {
            return strncasecmp(n.c_str(), prefix.c_str(), prefix.size()) == 0;
        })) << c.line;
        EXPECT_EQ(std::adjacent_find(w.begin(), w.end(), std::greater_equal<>()), w.end())
            << c.line << ": sorted, each name once";
        if (c.count != 0) {
            EXPECT_EQ(w.size(), c.count) << c.line;
            EXPECT_EQ(vqshell::commonStart(w), c.common) << c.line;
        }
    }
    EXPECT_TRUE(complete("xyzzy").candidates.empty());
    EXPECT_EQ(vqshell::commonStart({}), "");
    EXPECT_EQ(vqshell::commonStart({"Cbrpri"}), "Cbrpri");
}

}  // namespace
