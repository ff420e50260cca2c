// A signed value in a framed report, which no command prints; the commands' tests pin the other layouts.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "diag/layout.h"

namespace {

using vq::TextBuilder;

TEST(DiagLayout, SignedValueInAFramedReport) {
    std::vector<char> buf(VQ6192_DIAG_BUF_SIZE);
    TextBuilder full(buf.data());
    vq::diag::framed(full, vq::diag::kMacSep, "GetPortWorkMode()", {{"a", 1}, {"b", 0xFFFFFFFF}},
                     " %s    :    0x%x(%d)\n");
    EXPECT_EQ(std::string(buf.data()),
              "\n-------------------------------------------------\n"
              "        GetPortWorkMode()\n"
              "\n-------------------------------------------------\n"
              " a    :    0x1(1)\n"
              " b    :    0xffffffff(-1)\n"
              "\n-------------------------------------------------\n");
}

}  // namespace
