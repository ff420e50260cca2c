// The shell's line parser, and a randomized run of whole lines through a session.
#include <random>

#include "parser.h"
#include "shell_fixture.h"

namespace {

using vqshell::parseBytes;
using vqshell::parseU16List;
using vqshell::parseU32;
using vqshell::splitCommands;
using vqshell::splitWords;

TEST(ShellParser, CommandsCommentsAndQuotes) {
    EXPECT_EQ(splitCommands("a 1; b 2 ;; c  # d; e"), (std::vector<std::string>{"a 1", "b 2", "c"}));
    EXPECT_EQ(splitCommands("x \"a;b#c\" ; y"), (std::vector<std::string>{"x \"a;b#c\"", "y"}));
    EXPECT_EQ(splitCommands("  # only a comment"), std::vector<std::string>{});
    EXPECT_EQ(splitCommands("x \"esc\\\"aped;\" y"), (std::vector<std::string>{"x \"esc\\\"aped;\" y"}));

    std::vector<std::string> words;
    std::string error;
    ASSERT_TRUE(splitWords("cmd  0x10\t\"two words\" a\"b c\"d \"\"", &words, &error));
    EXPECT_EQ(words, (std::vector<std::string>{"cmd", "0x10", "two words", "ab cd", ""}));
    ASSERT_TRUE(splitWords("say \"a \\\" b\"", &words, &error));
    EXPECT_EQ(words[1], "a \" b");
    EXPECT_FALSE(splitWords("say \"open", &words, &error));
    EXPECT_EQ(error, "unterminated quote");
}

TEST(ShellParser, Integers) {
    struct Case {
        const char *text;
        bool ok;
        uint32_t value;
    };
    const Case cases[] = {{"0", true, 0},
                          {"4294967295", true, 0xFFFFFFFF},
                          {"4294967296", false, 0},
                          {"0x0", true, 0},
                          {"0xFFFFFFFF", true, 0xFFFFFFFF},
                          {"0x100000000", false, 0},
                          {"0XaB", true, 0xAB},
                          {"0x", false, 0},
                          {"", false, 0},
                          {"-1", false, 0},
                          {"12a", false, 0},
                          {"0x1g", false, 0},
                          {"00000000012", false, 0},
                          {"0x0000000001", false, 0},
                          {" 1", false, 0}};
    for (const Case &c : cases) {
        uint32_t v = 0;
        EXPECT_EQ(parseU32(c.text, &v), c.ok) << c.text;
        if (c.ok) {
            EXPECT_EQ(v, c.value) << c.text;
        }
    }
}

TEST(ShellParser, ByteStringsAndLists) {
    std::vector<uint8_t> bytes;
    EXPECT_TRUE(parseBytes("001aFF", &bytes));
    EXPECT_EQ(bytes, (std::vector<uint8_t>{0x00, 0x1A, 0xFF}));
    EXPECT_TRUE(parseBytes("00:1a-2b", &bytes));
    EXPECT_EQ(bytes, (std::vector<uint8_t>{0x00, 0x1A, 0x2B}));
    for (const char *bad : {"", "0", "001", "0g", "00:", ":00", "00::11"}) {
        EXPECT_FALSE(parseBytes(bad, &bytes)) << bad;
    }
    std::vector<uint16_t> list;
    EXPECT_TRUE(parseU16List("1,0x2,65535", &list));
    EXPECT_EQ(list, (std::vector<uint16_t>{1, 2, 0xFFFF}));
    for (const char *bad : {"", "1,", ",1", "65536", "1,,2", "a"}) {
        EXPECT_FALSE(parseU16List(bad, &list)) << bad;
    }
}

// Random lines made of command names, numbers, quotes, separators and noise, run through a session on
// the chip model. Nothing may crash, overrun a buffer or leak (the sanitizer build checks the last two).
TEST(ShellParser, RandomLinesNeverBreakTheSession) {
    vqtest::PlatformCapture capture;
    shelltest::Shell s;
    ASSERT_TRUE(s.started);
    const std::vector<std::string> names = s.session.commandNames();
    const std::vector<std::string> pieces = {
        " ",   ";",   "#",        "\"",         "\\",          "0",     "1",     "3",
        "263", "264", "0x",       "0xffffffff", "99999999999", "-",     ":",     ",",
        "\t",  "a",   "Atmswvct", "Cbrpri",     "0x20090",     "1,2,3", "00:11", "quit",
    };
    std::mt19937 rng(6192);
    const int kLines = 200000;
    for (int i = 0; i < kLines; ++i) {
        std::string line;
        const int n = static_cast<int>(rng() % 12);
        for (int k = 0; k < n; ++k) {
            const uint32_t pick = rng() % 10;
            if (pick < 3) {
                line += names[rng() % names.size()];
            } else if (pick < 9) {
                line += pieces[rng() % pieces.size()];
            } else {
                line += static_cast<char>(rng() % 256);
            }
            if (rng() % 2 == 0) {
                line += ' ';
            }
        }
        if (line.find("quit") != std::string::npos || line.find("exit") != std::string::npos) {
            continue;  // keep the session going
        }
        s.session.runLine(line);
        s.out.str("");
        s.err.str("");
    }
    std::printf("[ fuzz ] %d random lines run through the shell session\n", kLines);
    EXPECT_FALSE(s.session.quitRequested());
}

}  // namespace
