// The chip lock around plain register accesses: order, failures, counters and log lines.
#include <string>
#include <vector>

#include "support/test_support.h"

namespace {

using vqtest::ChipTest;

using LockTest = ChipTest;

TEST_F(LockTest, SemaphoreTakeFailureSkipsTheAccess) {
    model.poke(0x10, 0x1234);
    model.setTrace(true);
    VQ6192_Platform_FailSemTakes(0, 2);
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0x10), 0u);
    VQ6192_WriteReg(kChip, 0x10, 0x55);
    EXPECT_TRUE(model.trace().empty());
    EXPECT_EQ(model.peek(0x10), 0x1234);
    EXPECT_EQ(failCounters(), (std::vector<uint32_t>{0, 2, 0, 0}));
    EXPECT_EQ(model.arbitrationsTaken(), 0u);
    EXPECT_EQ(capture.logTexts(),
              (std::vector<std::string>{
                  "chip 3 pwe3 write reg get sem fail,addr 0x10,val 0x0",
                  "ReadRegdirect GetArbitrateFunc chip 3 pwe3 write reg get sem fail,addr 0x10,val 0x0",
                  "chip 3 pwe3 write reg get sem fail,addr 0x10,val 0x55",
                  "WriteRegIndirect chip 3 pwe3 write reg get sem fail,addr 0x10,val 0x55",
              }));
    for (const auto &line : capture.logs) {
        EXPECT_EQ(line.mask, 2u);
    }
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0x10), 0x1234u) << "the lock works again";
}

TEST_F(LockTest, IndirectPathLogsItsOwnTexts) {
    reinstall(model.installPara(kChip, true));
    VQ6192_Platform_FailSemTakes(0, 2);
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0x2), 0u);
    VQ6192_WriteReg(kChip, 0x2, 7);
    EXPECT_EQ(capture.logTexts(),
              (std::vector<std::string>{
                  "chip 3 pwe3 write reg get sem fail,addr 0x2,val 0x0",
                  "ReadRegIndirect GetArbitrateFunc chip 3 pwe3 write reg get sem fail,addr 0x2,val 0x0",
                  "chip 3 pwe3 write reg get sem fail,addr 0x2,val 0x7",
                  "WriteRegIndirect chip 3 pwe3 write reg get sem fail,addr 0x2,val 0x7",
              }));
    EXPECT_EQ(model.peek(0x2), 0);
}

TEST_F(LockTest, SemaphoreGiveFailureIsCountedAndLogged) {
    model.poke(0x10, 0x1234);
    VQ6192_Platform_FailSemGives(0, 1);
    // With a host read function the release result is ignored and the value still comes back.
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0x10), 0x1234u);
    VQ6192_Platform_FailSemGives(0, 1);
    EXPECT_EQ(VQ6192_WriteRegDirect(kChip, 0x10, 0x4321), 8u);
    EXPECT_EQ(model.peek(0x10), 0x4321);
    EXPECT_EQ(failCounters(), (std::vector<uint32_t>{0, 0, 2, 0}));
    EXPECT_EQ(capture.logTexts(), (std::vector<std::string>{
                                      "chip 3 pwe3 write reg give sem fail,addr 0x10,val 0x1234",
                                      "chip 3 pwe3 write reg give sem fail,addr 0x10,val 0x4321",
                                  }));
}

TEST_F(LockTest, GiveFailureAfterAMappedReadYieldsZero) {
    std::vector<uint16_t> space(0x100, 0);
    space[0x10] = 0xCAFE;
    VQ6192_INSTALL_PARA p{};
    p.ulChipId = kChip;
    p.ulBaseAddr = reinterpret_cast<uintptr_t>(space.data());
    p.ulAddrMultiple = 1;
    model.detach();  // no host functions: memory-mapped
    reinstall(p);
    VQ6192_Platform_FailSemGives(0, 1);
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0x20), 0u);
    EXPECT_EQ(capture.logTexts(),
              (std::vector<std::string>{
                  "chip 3 pwe3 write reg give sem fail,addr 0x20,val 0xcafe",
                  "ReadRegdirect  GiveArbitrateFunc chip 3 pwe3 write reg get sem fail,addr 0x20,val 0xcafe",
              }));
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0x20), 0xCAFEu);
}

TEST_F(LockTest, RefusedArbitrationGivesTheSemaphoreBack) {
    model.poke(0x10, 0x1234);
    model.setTrace(true);
    model.refuseArbitration(1);
    EXPECT_EQ(VQ6192_GetArbitrateFunc(kChip, 0x10, 0x20), 0x00010007u);
    model.refuseArbitration(1);
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0x10), 0u);
    EXPECT_TRUE(model.trace().empty());
    EXPECT_EQ(failCounters(), (std::vector<uint32_t>{2, 0, 0, 0}));
    EXPECT_EQ(capture.logTexts()[0], "chip 3 pwe3 write reg get attrb fail,addr 0x10,val 0x20");
    EXPECT_EQ(capture.logTexts()[1], "chip 3 pwe3 write reg get attrb fail,addr 0x10,val 0x0");
    // The semaphore was given back each time: a table-style zero time-out take succeeds at once.
    EXPECT_EQ(VQ6192_SemP(kChip, 0, 0), 0u);
    EXPECT_EQ(VQ6192_SemV(kChip, 0, 0), 0u);
}

TEST_F(LockTest, AbsentCardSkipsTheAccessAndReleasesOnce) {
    model.poke(0x10, 0x1234);
    model.setTrace(true);
    model.setCardPresent(false);
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0x10), 0u);
    VQ6192_WriteReg(kChip, 0x10, 1);
    EXPECT_TRUE(model.trace().empty());
    EXPECT_EQ(model.arbitrationsTaken(), 2u);
    EXPECT_EQ(model.arbitrationsGiven(), 2u);
    // The lock step itself answers success and has already released.
    EXPECT_EQ(VQ6192_GetArbitrateFunc(kChip, 0, 0), 0u);
    EXPECT_EQ(model.arbitrationsGiven(), 3u);
    model.setCardPresent(true);
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0x10), 0x1234u);
    EXPECT_EQ(failCounters(), (std::vector<uint32_t>{0, 0, 0, 0}));
    EXPECT_TRUE(capture.logs.empty());
}

// Lock order: semaphore, then arbitration; release: arbitration, then semaphore.
std::vector<std::string> g_events;

uint32_t recordTake(void *, void *, uint32_t timeout) {
    g_events.push_back("take " + std::to_string(timeout));
    return 0;
}
uint32_t recordGive(void *, void *) {
    g_events.push_back("give");
    return 0;
}
uint32_t recordGet(uint32_t chip) {
    g_events.push_back("get " + std::to_string(chip));
    return 0;
}
uint32_t recordRelease(uint32_t chip) {
    g_events.push_back("release " + std::to_string(chip));
    return 0;
}
uint32_t recordPresent(uint32_t) {
    g_events.push_back("present?");
    return 1;
}

TEST_F(LockTest, TakesSemaphoreBeforeArbitrationAndReleasesInReverse) {
    VQ6192_PLATFORM_HOOKS hooks{};
    hooks.pfnSemTake = recordTake;
    hooks.pfnSemGive = recordGive;
    VQ6192_INSTALL_PARA p = model.installPara(kChip);
    p.pfnGetArbitrate = recordGet;
    p.pfnGiveArbitrate = recordRelease;
    p.pfnCardPresent = recordPresent;
    reinstall(p);
    VQ6192_Platform_SetHooks(&hooks);
    g_events.clear();
    VQ6192_ReadReg(kChip, 0x10);
    VQ6192_Platform_SetHooks(nullptr);
    EXPECT_EQ(g_events, (std::vector<std::string>{"take 600", "get 3", "present?", "release 3", "give"}));
}

TEST_F(LockTest, UninstalledChipRunsUnlocked) {
    ASSERT_EQ(VQ6192_UnInstall_SDK(kChip), 0u);
    VQ6192_Platform_FailSemTakes(0, 1);  // would fail a lock if one were taken
    VQ6192_WriteReg(kChip, 0x30, 0x9);
    EXPECT_EQ(model.peek(0x30), 0x9);
    EXPECT_EQ(model.arbitrationsTaken(), 0u) << "the hooks are gone with the installation";
    VQ6192_Platform_FailSemTakes(0, 0);
    ASSERT_EQ(VQ6192_Install_SDK(&para), 0u);
}

}  // namespace
