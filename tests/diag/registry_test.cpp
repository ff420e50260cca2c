// Every diagnostic command of every family through its registry row: a help line, a terminated report
// kept inside the 48128-byte buffer on a chip set up for the longest listings, or no report at all for
// the few commands that print nothing.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "diag/diag_test.h"
#include "diag/registry.h"
#include "support/test_support.h"
#include "vq6192/atm.h"
#include "vq6192/table.h"

namespace {

using diagtest::argsOf;

class DiagRegistry : public vqtest::ChipTest {
  protected:
    void TearDown() override {
        std::fill(std::begin(g_conndata), std::end(g_conndata), ATM_CONN_DATA{});
        ChipTest::TearDown();
    }
};

TEST_F(DiagRegistry, EveryCommandHasHelpAndStaysInsideTheBuffer) {
    // Timeslot 0 of every E1/T1 carries a CES channel under PRBS test; every ATM connection is in use.
    for (uint32_t source = 0; source < 336; ++source) {
        const uint32_t entry = 0x9A00 | source;
        ASSERT_EQ(VQ6192_Write_Table(kChip, 119, source << 5, &entry), 0u);
    }
    for (ATM_CONN_DATA &r : g_conndata) {
        r.ulUsed = 1;
    }
    constexpr size_t kGuard = 4096;
    std::set<std::string> silent;
    for (const vq::diag::Command &cmd : vq::diag::commands()) {
        SCOPED_TRACE(cmd.name);
        EXPECT_NE(std::string(cmd.help), "");
        std::vector<vq::diag::ArgValue> args = argsOf(cmd, kChip);
        std::vector<char> buf(VQ6192_DIAG_BUF_SIZE + kGuard, '#');
        cmd.invoke(args.data(), buf.data());
        if (buf[0] == '#') {
            silent.insert(cmd.name);
        } else {
            EXPECT_NE(std::find(buf.begin(), buf.begin() + VQ6192_DIAG_BUF_SIZE, '\0'),
                      buf.begin() + VQ6192_DIAG_BUF_SIZE);
        }
        EXPECT_EQ(std::count(buf.begin() + VQ6192_DIAG_BUF_SIZE, buf.end(), '#'), static_cast<long>(kGuard));
    }
    // Only the dump (which writes a file), the MAC set-up (which has nothing to do) and the commands kept
    // for compatibility leave the buffer alone.
    EXPECT_EQ(silent, (std::set<std::string>{"VQ6192_DUMP_F", "initcdkmac", "DbgGetPppconfig",
                                             "DbgGetMpconfig", "DbgGetCapPktMatchCapture",
                                             "DbgGetCesChannelInfo", "DbgGetCesRtpParam"}));
}

// A command on a chip that is not there: the reads are refused, and whatever the report shows of them
// is 0, never a value the command made up or left over. Reports may name the refusal's status (chip
// bits 8, error 1); the PRBS listing's legend shows the bitmap range.
TEST_F(DiagRegistry, ChipAbove263ShowsOnlyZeros) {
    // Whether a report shows a nonzero hex value other than a refusal's status.
    const auto showsValue = [](const char *text) {
        for (const char *p = std::strstr(text, "0x"); p != nullptr; p = std::strstr(p + 2, "0x")) {
            const unsigned long v = std::strtoul(p + 2, nullptr, 16);
            if (v != 0 && !(v >> 24 == 8 && (v & 0xFFFF) == 1)) {
                return true;
            }
        }
        return false;
    };
    std::set<std::string> showing;
    for (const vq::diag::Command &cmd : vq::diag::commands()) {
        if (cmd.argc == 0 || std::string(cmd.module) == "DUMP" || std::string(cmd.name) == "getprbsts") {
            continue;
        }
        std::vector<vq::diag::ArgValue> args = argsOf(cmd, 264);
        std::vector<char> buf(VQ6192_DIAG_BUF_SIZE, '\0');
        cmd.invoke(args.data(), buf.data());
        if (showsValue(buf.data())) {
            showing.insert(cmd.name);
        }
    }
    EXPECT_EQ(showing, std::set<std::string>{});
}

}  // namespace
