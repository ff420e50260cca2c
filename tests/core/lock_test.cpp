// The chip lock around plain register accesses: order, failures, counters and log lines.
#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "support/test_support.h"
#include "vq6192/table.h"

namespace {

using vqtest::ChipTest;

using LockTest = ChipTest;
using Lines = std::vector<std::string>;

// Each way the lock fails, one access per row on register 0x10 (holding 0x1234) from a clean chip: the
// result, the register afterwards, the log lines (all mask 2), the failure counters, and
// whether the bus was touched; afterwards the lock works again.
TEST_F(LockTest, LockFailuresSkipOrFinishTheAccess) {
    const std::string sem = "chip 3 pwe3 write reg get sem fail,addr 0x10,val ";
    const auto r = [] { return VQ6192_ReadReg(kChip, 0x10); };
    const auto w = [] {
        VQ6192_WriteReg(kChip, 0x10, 0x55);
        return 0u;
    };
    const auto d = [] { return VQ6192_WriteRegDirect(kChip, 0x10, 0x4321); };
    const auto wi = [] { return VQ6192_WriteRegIndirect(kChip, 0x10, 0x55); };
    const auto a = [] { return VQ6192_GetArbitrateFunc(kChip, 0x10, 0x20); };
    struct Row {
        const char *what;
        bool indirect;
        std::function<void()> arm;
        std::function<uint32_t()> op;
        uint32_t result;
        uint16_t reg;
        Lines logs;
        std::vector<uint32_t> counters;  // arbitration, sem take, sem give, table time-out
        bool busTouched;
    };
    // clang-format off
    const Row rows[] = {
        {"take fails", false, [] { VQ6192_Platform_FailSemTakes(0, 1); }, r, 0, 0x1234,
         {sem + "0x0", "ReadRegdirect GetArbitrateFunc " + sem + "0x0"}, {0, 1, 0, 0}, false},
        {"take fails", false, [] { VQ6192_Platform_FailSemTakes(0, 1); }, w, 0, 0x1234,
         {sem + "0x55", "WriteRegIndirect " + sem + "0x55"}, {0, 1, 0, 0}, false},
        {"indirect, take fails", true, [] { VQ6192_Platform_FailSemTakes(0, 1); }, r, 0, 0x1234,
         {sem + "0x0", "ReadRegIndirect GetArbitrateFunc " + sem + "0x0"}, {0, 1, 0, 0}, false},
        {"indirect, take fails", true, [] { VQ6192_Platform_FailSemTakes(0, 1); }, wi, 0, 0x1234,
         {sem + "0x55", "WriteRegIndirect " + sem + "0x55"}, {0, 1, 0, 0}, false},
        // With a host read function the release result is ignored and the value still comes back.
        {"give fails", false, [] { VQ6192_Platform_FailSemGives(0, 1); }, r, 0x1234, 0x1234,
         {"chip 3 pwe3 write reg give sem fail,addr 0x10,val 0x1234"}, {0, 0, 1, 0}, true},
        {"give fails", false, [] { VQ6192_Platform_FailSemGives(0, 1); }, d, 8, 0x4321,
         {"chip 3 pwe3 write reg give sem fail,addr 0x10,val 0x4321"}, {0, 0, 1, 0}, true},
        {"arbitration refused", false, [&] { model.refuseArbitration(1); }, a, 0x00010007, 0x1234,
         {"chip 3 pwe3 write reg get attrb fail,addr 0x10,val 0x20"}, {1, 0, 0, 0}, false},
        {"arbitration refused", false, [&] { model.refuseArbitration(1); }, r, 0, 0x1234,
         {"chip 3 pwe3 write reg get attrb fail,addr 0x10,val 0x0", "ReadRegdirect GetArbitrateFunc " + sem + "0x0"},
         {1, 0, 0, 0}, false},
        // An absent card skips the access silently, releasing once.
        {"card out", false, [&] { model.setCardPresent(false); }, r, 0, 0x1234, {}, {0, 0, 0, 0}, false},
        {"card out", false, [&] { model.setCardPresent(false); }, w, 0, 0x1234, {}, {0, 0, 0, 0}, false},
        {"card out", false, [&] { model.setCardPresent(false); }, a, 0, 0x1234, {}, {0, 0, 0, 0}, false},
    };
    // clang-format on
    for (const Row &row : rows) {
        SCOPED_TRACE(testing::Message() << row.what << ", row " << (&row - rows));
        if (row.indirect != (VQ6192_GetRegIndirectFlag(kChip) != 0)) {
            reinstall(model.installPara(kChip, row.indirect));
        }
        model.poke(0x10, 0x1234);
        std::fill(std::begin(g_vq6192[kChip].aulRegFailInfo), std::end(g_vq6192[kChip].aulRegFailInfo), 0);
        const uint64_t taken = model.arbitrationsTaken(), given = model.arbitrationsGiven();
        capture.clear();
        row.arm();
        uint32_t result = 0;
        const auto t = traced([&] { result = row.op(); });
        EXPECT_EQ(result, row.result);
        EXPECT_EQ(model.peek(0x10), row.reg);
        EXPECT_EQ(capture.logTexts(), row.logs);
        for (const auto &line : capture.logs) {
            EXPECT_EQ(line.mask, 2u);
        }
        EXPECT_EQ(failCounters(), row.counters);
        EXPECT_EQ(!t.empty(), row.busTouched);
        // The arbitration is given back as often as it was granted.
        EXPECT_EQ(model.arbitrationsGiven() - given, model.arbitrationsTaken() - taken);
        model.setCardPresent(true);
        EXPECT_EQ(VQ6192_SemP(kChip, 0, 0), 0u) << "the semaphore was given back";
        EXPECT_EQ(VQ6192_SemV(kChip, 0, 0), 0u);
        EXPECT_EQ(VQ6192_ReadReg(kChip, 0x10), row.reg) << "the lock works again";
    }
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

// Lock order: semaphore, then arbitration; release: arbitration, then semaphore.
std::vector<std::string> g_events;

uint32_t record(const std::string &event) {
    g_events.push_back(event);
    return 0;
}

TEST_F(LockTest, LockOrderAndSemaphoreWaits) {
    VQ6192_PLATFORM_HOOKS hooks{};
    hooks.pfnSemTake = [](void *, void *, uint32_t t) { return record("take " + std::to_string(t)); };
    hooks.pfnSemGive = [](void *, void *) { return record("give"); };
    VQ6192_INSTALL_PARA p = model.installPara(kChip);
    p.pfnGetArbitrate = [](uint32_t chip) { return record("get " + std::to_string(chip)); };
    p.pfnGiveArbitrate = [](uint32_t chip) { return record("release " + std::to_string(chip)); };
    p.pfnCardPresent = [](uint32_t) { return record("present?") + 1; };
    reinstall(p);
    VQ6192_Platform_SetHooks(&hooks);
    g_events.clear();
    VQ6192_ReadReg(kChip, 0x10);
    VQ6192_Platform_SetHooks(nullptr);
    EXPECT_EQ(g_events, (std::vector<std::string>{"take 600", "get 3", "present?", "release 3", "give"}));
    // Table accesses wait as long for the semaphore; the quiet read only briefly.
    uint32_t entry[VQ6192_TBL_MAX_WORDS] = {};
    VQ6192_Platform_SetHooks(&hooks);
    g_events.clear();
    EXPECT_EQ(VQ6192_Read_Table(kChip, 1, 1, entry), 0u);
    EXPECT_EQ(VQ6192_Read_Table_Pro(kChip, 1, 1, entry), 0u);
    EXPECT_EQ(VQ6192_Write_Table(kChip, 1, 1, entry), 0u);
    VQ6192_Platform_SetHooks(nullptr);
    std::erase_if(g_events, [](const std::string &e) { return e.rfind("take ", 0) != 0; });
    EXPECT_EQ(g_events, (std::vector<std::string>{"take 600", "take 10", "take 600"}));
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
