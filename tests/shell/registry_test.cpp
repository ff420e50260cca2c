// The diagnostic command registry: rows resolve, argument kinds follow the C signatures, and every
// kind reaches its command as parsed.
#include <cstring>
#include <set>
#include <string>

#include "diag/registry.h"
#include "support/test_support.h"

namespace {

using vq::diag::ArgKind;
using vq::diag::ArgValue;

TEST(DiagRegistry, EveryRowResolvesAndNamesItsArguments) {
    std::set<std::string> seen;
    ASSERT_FALSE(vq::diag::commands().empty());
    for (const vq::diag::Command &c : vq::diag::commands()) {
        SCOPED_TRACE(c.name);
        EXPECT_TRUE(seen.insert(c.name).second) << "duplicate row";
        EXPECT_EQ(vq::diag::findCommand(c.name), &c);
        EXPECT_NE(std::strlen(c.help), 0u);
        EXPECT_NE(std::strlen(c.module), 0u);
        ASSERT_NE(c.invoke, nullptr);
        if (c.argc > 0) {
            EXPECT_EQ(std::string(c.args).substr(0, 4), "chip") << "commands take the chip first";
            EXPECT_EQ(c.kinds[0], ArgKind::U32);
        }
    }
    EXPECT_EQ(vq::diag::findCommand("VQ6192_Rt")->argc, 3);
    EXPECT_EQ(vq::diag::findCommand("vq6192_rt"), nullptr) << "names are exact";
    EXPECT_EQ(vq::diag::findCommand(""), nullptr);
}

// A command of every argument kind, to check what the adapter hands over.
struct Seen {
    uint32_t chip;
    uint8_t byte1;
    uint16_t last;
    std::string text;
    char *buf;
} g_seen;

uint32_t everyKind(uint32_t chip, const uint8_t *bytes, const uint16_t *list, const char *text, char *buf) {
    g_seen = {chip, bytes[1], list[2], text, buf};
    return 0x1234;
}

void noResult(uint32_t chip) {
    g_seen.chip = chip;
}

TEST(DiagRegistry, AdapterPassesEveryKindInPlace) {
    constexpr vq::diag::Command cmd =
        VQ6192_DIAG_COMMAND(everyKind, "TEST", "chip bytes list text", "every argument kind");
    ASSERT_EQ(cmd.argc, 4);
    EXPECT_EQ(cmd.kinds[0], ArgKind::U32);
    EXPECT_EQ(cmd.kinds[1], ArgKind::Bytes);
    EXPECT_EQ(cmd.kinds[2], ArgKind::U16Array);
    EXPECT_EQ(cmd.kinds[3], ArgKind::Text);
    EXPECT_STREQ(cmd.name, "everyKind");

    ArgValue args[4];
    args[0].u32 = 7;
    args[1].bytes = {0xAA, 0xBB};
    args[2].u16 = {1, 2, 3};
    args[3].text = "hello";
    char buf[8];
    EXPECT_EQ(cmd.invoke(args, buf), 0x1234u);
    EXPECT_EQ(g_seen.chip, 7u);
    EXPECT_EQ(g_seen.byte1, 0xBB);
    EXPECT_EQ(g_seen.last, 3);
    EXPECT_EQ(g_seen.text, "hello");
    EXPECT_EQ(g_seen.buf, buf);

    constexpr vq::diag::Command plain = VQ6192_DIAG_COMMAND(noResult, "TEST", "chip", "returns nothing");
    args[0].u32 = 9;
    EXPECT_EQ(plain.invoke(args, nullptr), 0u);
    EXPECT_EQ(g_seen.chip, 9u);
}

}  // namespace
