// Fault injection over every exported operation that takes the chip lock or allocates. A clean call
// on a fresh chip model counts the operation's steps: lock takes (arbitration hook calls), card
// checks, allocations and table commands per access block. Then each fault is injected at each step
// in turn, on a fresh model again:
//  - semaphore take failure, semaphore give failure, refused arbitration, card absent, allocation
//    failure, and a table command whose busy bit stays set for ever;
// and the sweep asserts the failure counters, a nonzero status wherever a table access failed (or an
// allocation), that everything allocated is given back, and that no lock stays held: a table read
// right afterwards succeeds (a held semaphore would time out on the virtual clock's tick count).
//
// Operations are called with all-zero arguments, so operations that refuse zeros before touching the
// chip are not reached here (the bad-input sweep has them). Steps are sampled to bound the run time:
// every step when there are few, else the first two, the middle one and the last one (a busy bit
// stuck for ever times out every later access of its block, thousands in the listing commands).
#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/test_support.h"
#include "sweep/ops.h"
#include "vq6192/vq6192.h"

namespace {

using sweep::Op;
using sweep::Plan;
using vq6192::sim::ChipModel;
using vq6192::sim::TableEngine;

constexpr uint64_t kNever = UINT64_MAX;

// Arbitration and card-present hooks of the install record that fail on a chosen call and otherwise
// answer as the chip model does.
struct HookFaults {
    uint64_t arbitrationCalls = 0;
    uint64_t cardCalls = 0;
    uint64_t refuseAt = kNever;
    uint64_t absentAt = kNever;
} g_hooks;

uint32_t getArbitrate(uint32_t chip) {
    if (g_hooks.arbitrationCalls++ == g_hooks.refuseAt) {
        return 1;
    }
    return ChipModel::hookGetArbitrate(chip);
}

uint32_t cardPresent(uint32_t chip) {
    if (g_hooks.cardCalls++ == g_hooks.absentAt) {
        return 0;
    }
    return ChipModel::hookCardPresent(chip);
}

enum class Fault { SemTake, SemGive, Arbitration, CardAbsent, Alloc, Busy };

const char *faultName(Fault f) {
    static const char *const kNames[] = {"semaphore take", "semaphore give", "arbitration refused",
                                         "card absent",    "allocation",     "busy for ever"};
    return kNames[static_cast<int>(f)];
}

// Failure counters expected after one fault: arbitration refusals, semaphore-take failures,
// semaphore-give failures, table time-outs. A busy bit stuck for ever may time out later accesses of
// the same block too, so only its first three counters are exact.
std::vector<uint32_t> expectedCounters(Fault f) {
    switch (f) {
        case Fault::SemTake:
            return {0, 1, 0, 0};
        case Fault::SemGive:
            return {0, 0, 1, 0};
        case Fault::Arbitration:
            return {1, 0, 0, 0};
        default:
            return {0, 0, 0, 0};
    }
}

// Lock primitives: taking without giving back is what they are for.
constexpr sweep::Exception kLockPrimitives[] = {
    {"VQ6192_SemP", "takes the semaphore for the caller"},
    {"VQ6192_SemV", "gives it back"},
    {"VQ6192_GetArbitrateFunc", "takes the chip lock for the caller"},
    {"VQ6192_GiveArbitrateFunc", "gives it back"},
    {"DbgGetCesConfig",
     "scans every line's timeslots on each call (seconds): sampled by the bad-input sweep"},
    {"DbgGetCesPara", "lists channel after channel (seconds): sampled by the bad-input sweep"},
};

bool skipped(std::string_view name) {
    return sweep::notCalled(name) != nullptr || sweep::noChip(name) != nullptr ||
           std::any_of(std::begin(kLockPrimitives), std::end(kLockPrimitives),
                       [&](const sweep::Exception &e) { return name == e.name; });
}

// Operations whose documented steps leave a failed table access out of their status.
constexpr sweep::Exception kStatusNotReported[] = {
    {"VQ6192_ATM_DelAtmSrvConn", "the VCX disable of its first step is not looked at"},
    {"VQ6192_ATM_GetAtmPWE3CapData", "returns the last of its 512 reads only"},
    {"VQ6192_ATM_GetAtmPWE3CapCell", "reads through the capture data reader: its last read only"},
    {"getatmpwe3capcell", "reads through the capture data reader: its last read only"},
    {"VQ6192_ATM_SetOamLinkCC", "the read result is not looked at; the write's is returned"},
    {"VQ6192_MAC_GetPortPauseAddr", "the status is that of the second read only"},
    {"cdk_getportpauseaddr", "the status is that of the second read only"},
    {"VQ6192_PPP_GetPppChanToMp", "returns 0 when a table read fails, outputs unwritten"},
    {"getpppchantomp", "returns 0 when a table read fails, outputs unwritten"},
    {"VQ6192_PPP_MpClearEgressBuff", "the drain sums queue counters; only blocks seen 500 times fail"},
    {"VQ6192_PPP_ResetMpBundle", "the drain sums queue counters; only blocks seen 500 times fail"},
    {"VQ6192_PPP_SetMpSnFormat", "a failed format read is taken as format 2"},
    {"VQ6192_SAM_SetSaBitInsert", "the Sa-bit entry is read and written without a status"},
    {"VQ6192_SAM_GetSaBitValue", "the Sa-bit entry is read without a status"},
    {"getdropall", "lists drop counters; a failed read lists as 0"},
    {"getportdropall", "lists drop counters; a failed read lists as 0"},
    {"getvcxdropall", "lists drop counters; a failed read lists as 0"},
    {"setmpqueweight", "prints the operation's status and returns 0"},
    {"setpppqueweight", "prints the operation's status and returns 0"},
    {"DbgGetCapPktForMatch", "returns the status of the closing capture stop"},
    {"DbgGetCapPktForMatchTemp", "returns the status of the closing capture stop"},
};

bool statusNotReported(std::string_view name) {
    return std::any_of(std::begin(kStatusNotReported), std::end(kStatusNotReported),
                       [&](const sweep::Exception &e) { return name == e.name; });
}

// The table operations' own codes for chip 3: lock failures (chip bits) + 0x0C0008, a busy bit that
// never clears (chip bits) + 0x0C0003, a card found absent 0.
struct TableCode {
    const char *name;
    Fault fault;
    uint32_t status;
};
constexpr TableCode kTableCodes[] = {
    {"VQ6192_Write_Table", Fault::SemTake, 0x030C0008},
    {"VQ6192_Write_Table", Fault::SemGive, 0x030C0008},
    {"VQ6192_Write_Table", Fault::Arbitration, 0x030C0008},
    {"VQ6192_Write_Table", Fault::Busy, 0x030C0003},
    {"VQ6192_Read_Table", Fault::SemTake, 0x030C0008},
    {"VQ6192_Read_Table", Fault::SemGive, 0x030C0008},
    {"VQ6192_Read_Table", Fault::Arbitration, 0x030C0008},
    {"VQ6192_Read_Table", Fault::Busy, 0x030C0003},
};

std::vector<uint64_t> sampledSteps(uint64_t count) {
    constexpr uint64_t kEveryStepUpTo = 4;
    std::vector<uint64_t> steps;
    for (uint64_t k = 0; k < count; ++k) {
        if (count <= kEveryStepUpTo || k < 2 || k == count / 2 || k + 1 == count) {
            steps.push_back(k);
        }
    }
    return steps;
}

constexpr uint64_t kLongListing = 256;

struct Counts {
    uint64_t locks = 0;
    uint64_t cardChecks = 0;
    uint64_t allocs = 0;
    std::map<uint32_t, uint64_t> tableCommands;  // per access block
};

uint64_t allocsSoFar() {
    VQ6192_MEM_STATS stats{};
    VQ6192_Platform_GetMemStats(nullptr, &stats);
    return stats.ullAllocs;
}

class FaultSweep : public vqtest::ChipTest {
  protected:
    // A fresh chip model and a fresh install with the failing hooks, faults cleared.
    void fresh() {
        VQ6192_UnInstall_SDK(kChip);
        sim = std::make_unique<ChipModel>();
        sim->attach(kChip);
        g_hooks = {};
        VQ6192_INSTALL_PARA p = sim->installPara(kChip);
        p.pfnGetArbitrate = getArbitrate;
        p.pfnCardPresent = cardPresent;
        baseline = vqtest::outstandingAllocations();
        ASSERT_EQ(VQ6192_Install_SDK(&p), 0u);
        capture.clear();
    }

    std::map<uint32_t, uint64_t> tableCommands() {
        std::map<uint32_t, uint64_t> out;
        for (uint32_t block : TableEngine::blocks()) {
            out[block] = sim->tables().readsExecuted(block) + sim->tables().writesExecuted(block);
        }
        return out;
    }

    Counts clean(const Op &op) {
        // Twice: some operations leave per-chip state of the library behind (a capture started or
        // collected) that the first call still sees; the second call is what every faulty run sees.
        fresh();
        op.call({.chip = kChip});
        fresh();
        const uint64_t allocs = allocsSoFar();
        op.call({.chip = kChip});
        Counts c{g_hooks.arbitrationCalls, g_hooks.cardCalls, allocsSoFar() - allocs, tableCommands()};
        return c;
    }

    void arm(Fault f, uint64_t step, uint32_t block) {
        const auto after = static_cast<uint32_t>(step);
        switch (f) {
            case Fault::SemTake:
                VQ6192_Platform_FailSemTakes(after, 1);
                break;
            case Fault::SemGive:
                VQ6192_Platform_FailSemGives(after, 1);
                break;
            case Fault::Arbitration:
                g_hooks.refuseAt = step;
                break;
            case Fault::CardAbsent:
                g_hooks.absentAt = step;
                break;
            case Fault::Alloc:
                VQ6192_Platform_FailAllocs(after, 1);
                break;
            case Fault::Busy:
                sim->tables().failCommand(block, after + 1);
                break;
        }
    }

    void disarm() {
        VQ6192_Platform_FailSemTakes(0, 0);
        VQ6192_Platform_FailSemGives(0, 0);
        VQ6192_Platform_FailAllocs(0, 0);
        g_hooks.refuseAt = g_hooks.absentAt = kNever;
        for (uint32_t block : TableEngine::blocks()) {
            sim->tables().failCommand(block, 0);
            sim->tables().holdBusy(block, 0);
        }
    }

    bool tableFailureLogged() const {
        for (const auto &line : capture.logs) {
            if (line.text.find("table") != std::string::npos &&
                (line.text.find("fail") != std::string::npos ||
                 line.text.find("timeout") != std::string::npos)) {
                return true;
            }
        }
        return false;
    }

    // One operation with one fault at one step, and everything the chip must look like afterwards.
    void inject(const Op &op, Fault f, uint64_t step, uint32_t block = 0) {
        SCOPED_TRACE(std::string(op.name) + ", " + faultName(f) + " at step " + std::to_string(step));
        fresh();
        arm(f, step, block);
        const sweep::Result r = op.call({.chip = kChip});
        const bool tableFailed = tableFailureLogged();
        disarm();
        ++runs;

        const std::vector<uint32_t> counters = failCounters();
        if (f == Fault::Busy) {
            EXPECT_EQ(std::vector<uint32_t>(counters.begin(), counters.begin() + 3),
                      std::vector<uint32_t>(3, 0));
            EXPECT_GE(counters[3], 1u) << "no table time-out counted";
        } else {
            EXPECT_EQ(counters, expectedCounters(f));
        }
        if (r.hasStatus) {
            if (tableFailed || f == Fault::Busy || f == Fault::Alloc) {
                EXPECT_TRUE(r.status != 0 || statusNotReported(op.name))
                    << "the failure did not reach the status";
            }
            for (const TableCode &t : kTableCodes) {
                if (op.name == t.name && f == t.fault) {
                    EXPECT_EQ(r.status, t.status) << std::hex << r.status;
                }
            }
        }
        // No lock left held: the next table read on the chip goes through at once.
        uint32_t entry[16] = {};
        EXPECT_EQ(VQ6192_Read_Table(kChip, 1, 0, entry), 0u) << "the chip lock stayed held";
        VQ6192_UnInstall_SDK(kChip);
        EXPECT_EQ(vqtest::outstandingAllocations(), baseline) << "allocation not given back";
    }

    std::unique_ptr<ChipModel> sim;
    uint64_t baseline = 0;
    size_t runs = 0;
};

TEST_F(FaultSweep, EveryFaultAtEveryStep) {
    size_t swept = 0, locking = 0;
    for (const Op &op : sweep::exportedOps()) {
        if (skipped(op.name)) {
            continue;
        }
        ++swept;
        const Counts c = clean(op);
        if (c.locks == 0 && c.allocs == 0) {
            continue;
        }
        ++locking;
        for (uint64_t k : sampledSteps(c.locks)) {
            inject(op, Fault::SemTake, k);
            inject(op, Fault::SemGive, k);
            inject(op, Fault::Arbitration, k);
        }
        for (uint64_t k : sampledSteps(c.cardChecks)) {
            inject(op, Fault::CardAbsent, k);
        }
        for (uint64_t k : sampledSteps(c.allocs)) {
            inject(op, Fault::Alloc, k);
        }
        for (const auto &[block, commands] : c.tableCommands) {
            // A busy bit stuck for ever makes every later command of the block time out after 500
            // polls: the listing commands, with thousands of commands, meet it at their last one only.
            for (uint64_t k :
                 commands > kLongListing ? std::vector<uint64_t>{commands - 1} : sampledSteps(commands)) {
                inject(op, Fault::Busy, k, block);
            }
        }
    }
    // Leave the fixture's own model on the chip for its teardown.
    sim.reset();
    model.attach(kChip);
    reinstall(model.installPara(kChip));
    std::printf("fault injection: %zu operations called, %zu take the lock or allocate, %zu faulty runs\n",
                swept, locking, runs);
}

}  // namespace
