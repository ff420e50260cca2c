// Print flags: the flag table text, the setters and their refusals, and the trace point's gate.
#include <string>

#include "support/test_support.h"

namespace {

using vqtest::ChipTest;
using PrintTest = ChipTest;

std::string flagTable(uint32_t chip) {
    std::string buf(VQ6192_DIAG_BUF_SIZE, '\xAA');
    EXPECT_EQ(VQ6192_Show_Printf_Flag(chip, buf.data()), 0u);
    return buf.c_str();
}

// A fresh chip's whole table is pinned byte for byte by the flags shell session.
TEST_F(PrintTest, SetterChangesOneModuleOrAllAndRefusesBadIds) {
    char small[16];
    EXPECT_EQ(VQ6192_Show_Printf_Flag(kChip, nullptr), 0u);
    EXPECT_EQ(VQ6192_Show_Printf_Flag(100000, small), 0x00010001u);
    VQ6192_Set_Printf_Flag(kChip, VQ6192_MODULE_SDH, 3);
    EXPECT_NE(flagTable(kChip).find("8 :   SDH   FLAG is  3\n"), std::string::npos);
    EXPECT_EQ(g_vq6192[kChip].aulPrintFlag[VQ6192_MODULE_ATM], 14u);

    VQ6192_Set_Printf_Flag(kChip, 22, 15);
    for (uint32_t flag : g_vq6192[kChip].aulPrintFlag) {
        EXPECT_EQ(flag, 15u);
    }
    EXPECT_TRUE(capture.logs.empty());

    VQ6192_Set_Printf_Flag(kChip, 23, 0);
    VQ6192_Set_Printf_Flag(264, 1, 0);
    VQ6192_Set_Printf_Flag(264, 99, 0);  // the module id is checked first
    ASSERT_EQ(capture.logs.size(), 3u);
    EXPECT_EQ(capture.logs[0].mask, 256u);
    EXPECT_EQ(capture.logs[0].text, "\r\nVQ6192_Set_Printf_Flag ModuleID is wrong! 23\r\n");
    EXPECT_EQ(capture.logs[1].text, "\r\nVQ6192_Set_Printf_Flag VQ6192_CHIP_NUM is wrong! 264\r\n");
    EXPECT_EQ(capture.logs[2].text, "\r\nVQ6192_Set_Printf_Flag ModuleID is wrong! 99\r\n");
    for (uint32_t flag : g_vq6192[kChip].aulPrintFlag) {
        EXPECT_EQ(flag, 15u);
    }
}

TEST_F(PrintTest, DiagSetterReportsWithoutLookingAtTheOutcome) {
    std::string buf(VQ6192_DIAG_BUF_SIZE, '\0');
    EXPECT_EQ(VQ6192_Set_Diag_Printf_Flag(kChip, VQ6192_MODULE_TABLE, 8, buf.data()), 0u);
    EXPECT_STREQ(buf.c_str(), "Diag set module TABLE flag 8 success\n");
    EXPECT_EQ(g_vq6192[kChip].aulPrintFlag[VQ6192_MODULE_TABLE], 8u);

    EXPECT_EQ(VQ6192_Set_Diag_Printf_Flag(kChip, 40, 1, buf.data()), 0u);
    EXPECT_STREQ(buf.c_str(), "Diag set module UNKNOWN flag 1 success\n");
    EXPECT_EQ(capture.logs.size(), 1u);

    EXPECT_EQ(VQ6192_Set_Diag_Printf_Flag(kChip, VQ6192_MODULE_ATM, 0, nullptr), 1u);
    EXPECT_EQ(g_vq6192[kChip].aulPrintFlag[VQ6192_MODULE_ATM], 0u)
        << "the setter ran before the buffer check";
}

TEST_F(PrintTest, TracePointIsGatedByTheModuleFlag) {
    VQ6192_Printf(kChip, VQ6192_MODULE_ATM, VQ6192_PRINT_NORMAL, "normal %d\r\n", 1);
    VQ6192_Printf(kChip, VQ6192_MODULE_ATM, VQ6192_PRINT_EXCEPTION1_INFO, "Err. step %d\r\n", 2);
    VQ6192_Set_Printf_Flag(kChip, VQ6192_MODULE_ATM, 0);
    VQ6192_Printf(kChip, VQ6192_MODULE_ATM, VQ6192_PRINT_EXCEPTION1_INFO, "silenced\r\n");
    VQ6192_Printf(kChip, 23, 0xFFFFFFFFu, "no such module\r\n");  // every level: no flag word to look at
    VQ6192_Printf(100000, 1, VQ6192_PRINT_PARA_WRONG, "no such chip\r\n");
    // A line is cut at 511 characters.
    VQ6192_Printf(kChip, VQ6192_MODULE_SDH, VQ6192_PRINT_EXCEPTION1_INFO, "%s",
                  std::string(600, 'x').c_str());
    ASSERT_EQ(capture.traces.size(), 2u);
    EXPECT_EQ(capture.traces[1].text, std::string(511, 'x'));
    EXPECT_EQ(capture.traces[0].text, "Err. step 2\r\n");
    EXPECT_EQ(capture.traces[0].chip, kChip);
    EXPECT_EQ(capture.traces[0].module, uint32_t{VQ6192_MODULE_ATM});
    EXPECT_EQ(capture.traces[0].level, VQ6192_PRINT_EXCEPTION1_INFO);
}

TEST(PrintWithoutSink, TracePointHasNoEffect) {
    // No hooks installed: the trace point produces nothing, whatever the flags say.
    VQ6192_Platform_SetHooks(nullptr);
    testing::internal::CaptureStderr();
    VQ6192_Printf(0, VQ6192_MODULE_BASE, VQ6192_PRINT_PARA_WRONG, "ParaErr.\r\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
