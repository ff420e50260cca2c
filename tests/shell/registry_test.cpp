// The diagnostic command registry: rows resolve, argument kinds follow the C signatures, and every
// kind reaches its command as parsed.
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "diag/registry.h"
#include "support/test_support.h"

namespace {

using vq::diag::ArgKind;
using vq::diag::ArgValue;

// Help and module texts of every row: tests/diag/registry_test.cpp.
TEST(DiagRegistry, EveryRowResolvesAndNamesItsArguments) {
    std::set<std::string> seen;
    ASSERT_FALSE(vq::diag::commands().empty());
    for (const vq::diag::Command &c : vq::diag::commands()) {
        EXPECT_TRUE(seen.insert(c.name).second) << c.name << ": duplicate row";
        EXPECT_EQ(vq::diag::findCommand(c.name), &c) << c.name;
        if (c.argc > 0) {
            EXPECT_EQ(std::string(c.args).substr(0, 4), "chip") << c.name << ": commands take the chip first";
            EXPECT_EQ(c.kinds[0], ArgKind::U32) << c.name;
        }
    }
    EXPECT_EQ(vq::diag::findCommand("VQ6192_Rt")->argc, 3);
    EXPECT_EQ(vq::diag::findCommand("vq6192_rt"), nullptr) << "names are exact";
    EXPECT_EQ(vq::diag::findCommand(""), nullptr);
}

// A command of every argument kind, to check what the adapter hands over.
std::tuple<uint32_t, uint8_t, uint16_t, std::string, char *> g_seen;

uint32_t everyKind(uint32_t chip, const uint8_t *bytes, const uint16_t *list, const char *text, char *buf) {
    g_seen = {chip, bytes[1], list[2], text, buf};
    return 0x1234;
}

void noResult(uint32_t chip) {
    std::get<0>(g_seen) = chip;
}

TEST(DiagRegistry, AdapterPassesEveryKindInPlace) {
    constexpr vq::diag::Command cmd =
        VQ6192_DIAG_COMMAND(everyKind, "TEST", "chip bytes list text", "every argument kind");
    EXPECT_STREQ(cmd.name, "everyKind");
    EXPECT_EQ(std::vector(cmd.kinds, cmd.kinds + cmd.argc),
              (std::vector{ArgKind::U32, ArgKind::Bytes, ArgKind::U16Array, ArgKind::Text}));
    ArgValue args[4];
    args[0].u32 = 7, args[1].bytes = {0xAA, 0xBB}, args[2].u16 = {1, 2, 3}, args[3].text = "hello";
    char buf[8];
    EXPECT_EQ(cmd.invoke(args, buf), 0x1234u);
    EXPECT_EQ(g_seen, std::make_tuple(7u, uint8_t{0xBB}, uint16_t{3}, std::string("hello"), buf));

    constexpr vq::diag::Command plain = VQ6192_DIAG_COMMAND(noResult, "TEST", "chip", "returns nothing");
    args[0].u32 = 9;
    EXPECT_EQ(plain.invoke(args, nullptr), 0u);
    EXPECT_EQ(std::get<0>(g_seen), 9u);
}

}  // namespace
