// The recurring report layouts where no command pins them: a signed value in a framed report, the cut
// at the end of a short buffer, an empty report, and no buffer at all. (The chip, SDH, Ethernet and framer
// command tests pin each layout byte for byte as the commands print it.)
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "diag/layout.h"

namespace {

using vq::TextBuilder;

TEST(DiagLayout, SignedValueCutEmptyAndNoBuffer) {
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

    std::vector<char> small(64, '#');
    TextBuilder text(small.data(), 40);
    vq::diag::framed(text, vq::diag::kSep, "GetVersion()", {{"x", 1}});
    EXPECT_EQ(std::string(small.data()), std::string(vq::diag::kSep).substr(0, 39));
    EXPECT_EQ(small[40], '#') << "nothing past the buffer";

    std::vector<char> empty(8, '#');
    TextBuilder nothing(empty.data(), empty.size());
    EXPECT_EQ(std::string(empty.data(), 1), std::string(1, '\0')) << "terminated before anything is added";

    TextBuilder none(nullptr);
    vq::diag::setResult(none, "x", 0);
    EXPECT_FALSE(none.hasBuffer());
}

}  // namespace
