// The recurring report layouts, byte for byte, and their bound at the end of the buffer.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "diag/layout.h"

namespace {

using vq::TextBuilder;
using vq::diag::Field;

TEST(DiagLayout, ReportsByteForByte) {
    std::vector<char> buf(VQ6192_DIAG_BUF_SIZE);
    struct Case {
        const char *what;
        void (*write)(TextBuilder &);
        const char *expected;
    };
    const Case cases[] = {
        {"framed value, chip separator",
         [](TextBuilder &t) {
             vq::diag::framed(t, vq::diag::kSep, "GetSdsTxclkSel()", {{"reClkSel", 17}});
         },
         "n-------------------------------------------------\n"
         "        GetSdsTxclkSel()\n"
         "n-------------------------------------------------\n"
         " reClkSel    :    0x11(17)\n"
         "n-------------------------------------------------\n"},
        {"framed value, MAC separator, two lines",
         [](TextBuilder &t) {
             vq::diag::framed(t, vq::diag::kMacSep, "GetPortWorkMode()", {{"a", 1}, {"b", 0xFFFFFFFF}},
                              " %s    :    0x%x(%d)\n");
         },
         "\n-------------------------------------------------\n"
         "        GetPortWorkMode()\n"
         "\n-------------------------------------------------\n"
         " a    :    0x1(1)\n"
         " b    :    0xffffffff(-1)\n"
         "\n-------------------------------------------------\n"},
        {"field table",
         [](TextBuilder &t) {
             vq::diag::fieldTable(t, "GetDDRCntStats()", {{"wDDR2CIMACRCERRCNT", 5}},
                                  "    | %-26s: 0x%-8x(%-10d)  \n");
         },
         "        GetDDRCntStats()\n"
         "    | wDDR2CIMACRCERRCNT        : 0x5       (5         )  \n"
         "     PRINT_END\n"},
        {"set result OK", [](TextBuilder &t) { vq::diag::setResult(t, "cdk_setporttxen", 0); },
         "        cdk_setporttxen() is OK\n"},
        {"set result FAIL", [](TextBuilder &t) { vq::diag::setResult(t, "cdk_setporttxen", 0x00090001); },
         "        cdk_setporttxen() is FAIL\n"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        TextBuilder text(buf.data());
        c.write(text);
        EXPECT_EQ(std::string(buf.data()), c.expected);
    }
}

TEST(DiagLayout, CutAtTheBufferAndSilentWithoutOne) {
    std::vector<char> buf(64, '#');
    TextBuilder text(buf.data(), 40);
    vq::diag::framed(text, vq::diag::kSep, "GetVersion()", {{"x", 1}});
    EXPECT_EQ(std::string(buf.data()), std::string(vq::diag::kSep).substr(0, 39));
    EXPECT_EQ(buf[40], '#') << "nothing past the buffer";

    TextBuilder none(nullptr);
    vq::diag::setResult(none, "x", 0);
    EXPECT_FALSE(none.hasBuffer());
}

}  // namespace
