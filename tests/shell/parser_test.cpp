// The shell's line parser. Arbitrary lines: its libFuzzer target; arbitrary arguments of every
// diagnostic command: tests/fuzz.
#include "parser.h"
#include "support/test_support.h"

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
    // Decimal (at most ten digits) or 0x hex (at most eight), 32 bits, nothing around them.
    for (const auto &[text, value] : {std::pair{"0", 0u},
                                      {"4294967295", 0xFFFFFFFFu},
                                      {"0x0", 0u},
                                      {"0xFFFFFFFF", 0xFFFFFFFFu},
                                      {"0XaB", 0xABu}}) {
        uint32_t v = 7;
        EXPECT_TRUE(parseU32(text, &v)) << text;
        EXPECT_EQ(v, value) << text;
    }
    for (const char *bad :
         {"4294967296", "0x100000000", "0x", "", "-1", "12a", "0x1g", "00000000012", "0x0000000001", " 1"}) {
        uint32_t v = 7;
        EXPECT_FALSE(parseU32(bad, &v)) << bad;
        EXPECT_EQ(v, 7u) << bad;
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

}  // namespace
