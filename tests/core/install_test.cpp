// Installation, uninstallation and the record they leave.
#include <cstring>
#include <tuple>

#include "platform/osal.h"
#include "support/test_support.h"

namespace {

using vqtest::ChipTest;
using vqtest::outstandingAllocations;
using vqtest::PlatformCapture;

// clang-format off
uint32_t hookA(uint32_t) { return 0; }
uint32_t hookB(uint32_t) { return 0; }
uint32_t hookC(uint32_t) { return 1; }
uint32_t write16(uintptr_t, uint32_t, uint16_t) { return 0; }
uint32_t read16(uintptr_t, uint32_t, uint16_t *) { return 0; }
// clang-format on

// Every field set, each to a value of its own.
VQ6192_INSTALL_PARA fullRecord(uint32_t chip) {
    return {chip,   0x7f0012340000u, 0x7f0000001000u, hookA, hookB, write16,
            read16, 0xABCDEF0123u,   hookC,           2,     1,     1,
            1};
}

VQ6192_MEM_STATS statsOf(const char *tag) {
    VQ6192_MEM_STATS s{};
    VQ6192_Platform_GetMemStats(tag, &s);
    return s;
}

class InstallTest : public ::testing::Test {
  protected:
    PlatformCapture capture;
    uint64_t baseline = outstandingAllocations();
    void TearDown() override {
        for (uint32_t chip : {0u, 7u, 263u}) {
            VQ6192_UnInstall_SDK(chip);
        }
        EXPECT_EQ(outstandingAllocations(), baseline);
    }
};

TEST_F(InstallTest, RefusesNullRecordAndOutOfRangeIds) {
    EXPECT_EQ(VQ6192_Install_SDK(nullptr), 0x00010002u);

    VQ6192_INSTALL_PARA p = fullRecord(0xFFFFFFFFu);
    EXPECT_EQ(VQ6192_Install_SDK(&p), 0x0F010001u);
    EXPECT_EQ(VQ6192_UnInstall_SDK(300), 0x0C010001u);
    EXPECT_EQ(outstandingAllocations(), baseline);
    EXPECT_TRUE(capture.logs.empty()) << "install reports only through its status";
}

TEST_F(InstallTest, CopiesTheRecordAndStartsClean) {
    VQ6192_CHIP_RECORD &rec = g_vq6192[7];
    rec.aulMpChanCnt[200] = 9;
    rec.ulLinkStatAccum = 5;
    rec.aulRegFailInfo[3] = 4;
    const VQ6192_INSTALL_PARA p = fullRecord(7);
    ASSERT_EQ(VQ6192_Install_SDK(&p), 0u);

    EXPECT_EQ(std::tuple(rec.ulBaseAddr, rec.ulIndirectBaseAddr, rec.ulIndirectHandle),
              std::tuple(p.ulBaseAddr, p.ulIndirectBaseAddr, p.ulIndirectHandle));
    EXPECT_EQ(std::tuple(rec.pfnGetArbitrate, rec.pfnGiveArbitrate, rec.pfnIndirectWrite16,
                         rec.pfnIndirectRead16, rec.pfnCardPresent),
              std::tuple(&hookA, &hookB, &write16, &read16, &hookC));
    using U32s = std::vector<uint32_t>;
    EXPECT_EQ((U32s{rec.ulAddrMultiple, rec.ulRegIndirectFlag, rec.ulDelayMode, rec.ulSupportProductFlag}),
              (U32s{2, 1, 1, 1}));
    EXPECT_EQ(U32s(std::begin(rec.aulPrintFlag), std::end(rec.aulPrintFlag)),
              U32s(std::size(rec.aulPrintFlag), 14));
    EXPECT_EQ(U32s(std::begin(rec.aulRegFailInfo), std::end(rec.aulRegFailInfo)), U32s(4, 0));
    EXPECT_EQ((U32s{rec.aulMpChanCnt[200], rec.ulLinkStatAccum}), (U32s{0, 0}));
    ASSERT_NE(rec.pSem, nullptr);
    ASSERT_NE(rec.pstDumpCtx, nullptr);
    EXPECT_EQ(rec.pstDumpCtx->ulRegBase, p.ulBaseAddr);
    EXPECT_EQ(rec.pstDumpCtx->pucBuf, nullptr);
    EXPECT_EQ(statsOf("vq6192_pub").ullOutstanding, 2u) << "semaphore block and dump context";

    EXPECT_EQ(VQ6192_GetSupportProductFlag(7), 1u);
    EXPECT_EQ(VQ6192_GetRegIndirectFlag(7), 1u);
    uintptr_t base = 0;
    EXPECT_EQ(VQ6192_Base_GetChipBaseAddr(7, &base), 0u);
    EXPECT_EQ(base, p.ulBaseAddr);
    EXPECT_EQ(VQ6192_Base_GetChipBaseAddr(7, nullptr), 0x07010001u);
    EXPECT_EQ(capture.traceTexts(), (std::vector<std::string>{"ParaErr.\r\n"}));
    EXPECT_EQ(
        (std::vector<uint32_t>{VQ6192_GetSupportProductFlag(100000), VQ6192_GetRegIndirectFlag(100000)}),
        (std::vector<uint32_t>{0, 0}));
}

TEST_F(InstallTest, UninstallDropsHooksAndMemoryButKeepsTheRest) {
    VQ6192_Init_ReadWriFun(7, nullptr, nullptr, nullptr, nullptr);
    const VQ6192_INSTALL_PARA p = fullRecord(7);
    ASSERT_EQ(VQ6192_Install_SDK(&p), 0u);
    // The dump buffer is allocated by the dump; uninstall frees it exactly once.
    g_vq6192[7].pstDumpCtx->pucBuf = static_cast<uint8_t *>(vq::_drv_malloc(4096, "vq6192_dump", 1));
    ASSERT_EQ(VQ6192_UnInstall_SDK(7), 0u);

    const VQ6192_CHIP_RECORD &rec = g_vq6192[7];
    EXPECT_EQ(rec.pfnGetArbitrate, nullptr);
    EXPECT_EQ(rec.pfnGiveArbitrate, nullptr);
    EXPECT_EQ(rec.pfnCardPresent, nullptr);
    EXPECT_EQ(rec.pSem, nullptr);
    EXPECT_EQ(rec.pstDumpCtx, nullptr);
    EXPECT_EQ(rec.ulBaseAddr, p.ulBaseAddr);
    EXPECT_EQ(rec.pfnIndirectRead16, read16);
    EXPECT_EQ(rec.aulPrintFlag[5], 14u);
    EXPECT_EQ(statsOf("vq6192_dump").ullFrees, 1u);
    EXPECT_EQ(statsOf("vq6192_dump").ullOutstanding, 0u);
    EXPECT_EQ(statsOf("vq6192_pub").ullOutstanding, 0u);

    EXPECT_EQ(VQ6192_UnInstall_SDK(7), 0u) << "a second uninstall finds nothing to free";
    EXPECT_EQ(VQ6192_UnInstall_SDK(0), 0u) << "never installed";
}

TEST_F(InstallTest, EachAllocationStepCanFailCleanly) {
    const VQ6192_INSTALL_PARA p = fullRecord(7);
    struct Step {
        const char *what;
        void (*arm)();
    };
    const Step steps[] = {
        {"semaphore block", [] { VQ6192_Platform_FailAllocs(0, 1); }},
        {"semaphore creation", [] { VQ6192_Platform_FailSemCreates(0, 1); }},
        {"dump context", [] { VQ6192_Platform_FailAllocs(1, 1); }},
    };
    for (const Step &step : steps) {
        SCOPED_TRACE(step.what);
        step.arm();
        EXPECT_EQ(VQ6192_Install_SDK(&p), 0x07010002u);
        EXPECT_EQ(g_vq6192[7].pSem, nullptr);
        EXPECT_EQ(g_vq6192[7].pstDumpCtx, nullptr);
        EXPECT_EQ(outstandingAllocations(), baseline);
    }
    EXPECT_EQ(VQ6192_Install_SDK(&p), 0u) << "the next attempt succeeds";
}

TEST_F(InstallTest, HostFunctionSlotsOutliveInstallation) {
    auto w = [](uint32_t, uint32_t, uint32_t) {};
    auto r = [](uint32_t, uint32_t) -> uint32_t { return 0; };
    VQ6192_Init_ReadWriFun(7, w, r, nullptr, nullptr);
    VQ6192_Init_ReadWriFun(264, w, r, nullptr, nullptr);
    VQ6192_Init_ReadWriFun(265, w, r, nullptr, nullptr);  // past the tables: ignored
    const VQ6192_INSTALL_PARA p = fullRecord(7);
    ASSERT_EQ(VQ6192_Install_SDK(&p), 0u);
    ASSERT_EQ(VQ6192_UnInstall_SDK(7), 0u);
    EXPECT_EQ(g_p6192WriteRegPtr[7], +w);
    EXPECT_EQ(g_p6192ReadRegPtr[7], +r);
    EXPECT_EQ(g_p6192ReadRegPtr[264], +r);
    VQ6192_Init_ReadWriFun(7, nullptr, nullptr, nullptr, nullptr);
    VQ6192_Init_ReadWriFun(264, nullptr, nullptr, nullptr, nullptr);
}

}  // namespace
