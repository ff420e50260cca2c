// Entry printing: line layout, members across word boundaries, side-by-side fields, bounds, and the
// read-and-print command.
#include <string>

#include "core/table_print.h"
#include "support/test_support.h"

namespace {

using vqtest::ChipTest;

std::string printEntry(uint32_t tableId, const uint32_t *entry) {
    std::string buf(VQ6192_DIAG_BUF_SIZE, '\0');
    const uint32_t n = VQ6192_TBL_EntryPrintf(tableId, entry, buf.data());
    buf.resize(n);
    return buf;
}

// The priority template entry, written and printed whole, is pinned by the tables shell session.
TEST(TablePrint, MemberAcrossAWordBoundaryAndLongNames) {
    uint32_t entry[VQ6192_TBL_MAX_WORDS] = {0xDEADBEEF, 0x5, 0xFFFFFFFF};
    // Pwe3capturepkt is bits 3..34: its top three bits come from word 1.
    EXPECT_EQ(printEntry(0, entry),
              "\r\nTable name: Atmpwe3pktbuf"
              "\r\nTable value: \r\n"
              "Pwe3capturepkt(3:32)= 0xbbd5b7dd  \r\n"
              "Pwe3capturesel(1:2)= 0x3  \r\n"
              "Pwe3captureeof(0:1)= 0x1  \r\n");
}

TEST(TablePrint, ZeroConnectionEntryHasTwentyLines) {
    uint32_t entry[VQ6192_TBL_MAX_WORDS] = {};
    const std::string text = printEntry(20, entry);
    size_t lines = 0;
    for (size_t pos = text.find("= 0x0  \r\n"); pos != std::string::npos;
         pos = text.find("= 0x0  \r\n", pos + 1)) {
        ++lines;
    }
    EXPECT_EQ(lines, 20u);
    EXPECT_NE(text.find("\r\nTable value: \r\nTraffictype(66:3)"), std::string::npos);
    const std::string last = "Valid(0:1)       = 0x0  \r\n";
    EXPECT_EQ(text.substr(text.size() - last.size()), last);
}

TEST(TablePrint, FieldsSideBySideWithoutATail) {
    std::string buf(256, '\0');
    vq::TextBuilder text(buf.data(), buf.size());
    uint32_t column = 0;
    vq::tblSprintf(text, 1, "Alpha", 0, 1, nullptr, &column);
    EXPECT_EQ(column, 27u);
    vq::tblSprintf(text, 2, "Beta", 1, 2, nullptr, &column);
    EXPECT_EQ(column, 54u);
    vq::tblSprintf(text, 0xABCDEF, "GammaGammaGamma", 10, 20, nullptr, &column);  // would pass column 80
    EXPECT_EQ(column, 54u);
    vq::tblSprintf(text, 0xABCDE, "Delta", 0, 1, nullptr, &column);  // ends at column 80: stays on the line
    EXPECT_EQ(std::string(buf.c_str()),
              "Alpha(0:1)       = 0x1     "
              "Beta(1:2)        = 0x2     "
              "\r\nGammaGammaGamma(10:20)= 0xabcdef                      "
              "Delta(0:1)       = 0xabcde ");
    EXPECT_EQ(column, 81u);
    // A caller's own column counts as well: at column 1 a field past column 80 starts a new line.
    std::string wide(256, '\0');
    vq::TextBuilder wideText(wide.data(), wide.size());
    uint32_t one = 1;
    vq::tblSprintf(wideText, 1, std::string(70, 'W').c_str(), 0, 1, nullptr, &one);
    EXPECT_EQ(wide.substr(0, 3), "\r\nW");
    EXPECT_EQ(vq::tblSprintf(text, 7, "Last", 0, 3, "end", &column),
              28u);  // "Last(0:3)" padded, "= 0x7 end\r\n"
    EXPECT_EQ(column, 0u);
}

TEST(TablePrint, OutputIsBoundedAndOddIdsPrintNothing) {
    uint32_t entry[VQ6192_TBL_MAX_WORDS] = {};
    std::string buf(64, '\x7F');
    vq::TextBuilder text(buf.data(), 40);
    EXPECT_EQ(vq::tblEntryPrintf(text, 20, entry), 39u);
    EXPECT_EQ(buf[39], '\0');
    EXPECT_EQ(buf[40], '\x7F');
    EXPECT_EQ(printEntry(334, entry), "");
    EXPECT_EQ(VQ6192_TBL_EntryPrintf(1, nullptr, buf.data()), 0u);
    EXPECT_EQ(VQ6192_TBL_EntryPrintf(1, entry, nullptr), 0u);
}

using ReadAndPrint = ChipTest;

TEST_F(ReadAndPrint, RtOfAnEntryPastTheTableLeavesTheBufferAlone) {
    std::string failed(16, '\0');
    EXPECT_EQ(VQ6192_Rt(kChip, 1, 32, failed.data()), 0x030C0001u);
    EXPECT_EQ(failed, std::string(16, '\0'));
}

}  // namespace
