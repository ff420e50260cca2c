// 264 chips on chip models driven from 8 threads at once, with reader threads on the same chips; every
// chip's log is then played again alone on a fresh model and must leave the same registers, tables,
// results and trace lines. And one chip whose bus arbitration hangs must not hold up the others.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <future>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "soak/soak_mix.h"
#include "support/test_support.h"
#include "vq6192/vq6192.h"

namespace {

using vq6192::sim::ChipModel;
using vqsoak::Step;

constexpr uint32_t kChips = VQ6192_CHIP_NUM;
constexpr uint32_t kWorkers = 8;
constexpr uint32_t kReaders = 2;
constexpr uint32_t kSeed = 20261123;
// Operations per chip, and the wall-time budget of the concurrent phase: a slow build (the thread
// sanitizer on two cores) stops early and replays what was done.
constexpr uint32_t kOpsPerChip = 250;
constexpr auto kBudget = std::chrono::seconds(12);

using TraceMap = std::map<uint32_t, std::vector<std::string>>;

// Trace lines go to the calling thread's own map, without a lock: a lock shared by all threads would
// order their accesses and hide from the race checker whatever the library shares between chips. A
// chip's lines come only from the one thread that configures it. Log lines (none are expected) are
// collected under a lock.
thread_local TraceMap *t_traces = nullptr;

struct Sinks {
    std::mutex lock;
    std::vector<std::string> logs;
    std::atomic<uint32_t> strayTraces{0};

    static void log(void *ctx, uint32_t, const char *text) {
        auto *s = static_cast<Sinks *>(ctx);
        std::lock_guard<std::mutex> g(s->lock);
        s->logs.emplace_back(text);
    }
    static void trace(void *ctx, uint32_t chip, uint32_t, uint32_t, const char *text) {
        if (t_traces != nullptr) {
            (*t_traces)[chip].emplace_back(text);
        } else {
            static_cast<Sinks *>(ctx)->strayTraces++;
        }
    }
};

class Soak : public ::testing::Test {
  protected:
    void SetUp() override {
        VQ6192_PLATFORM_HOOKS hooks{};
        hooks.ctx = &sinks;
        hooks.pfnLog = Sinks::log;
        hooks.pfnTrace = Sinks::trace;
        VQ6192_Platform_SetHooks(&hooks);
        VQ6192_Platform_SetVirtualClock(1);
        VQ6192_Platform_ResetVirtualTime();
        baseline = vqtest::outstandingAllocations();
    }
    void TearDown() override {
        VQ6192_Platform_SetHooks(nullptr);
        VQ6192_Platform_SetVirtualClock(0);
    }

    // A model for `chip`, attached and installed with the model's own install record.
    std::unique_ptr<ChipModel> install(uint32_t chip) {
        auto m = std::make_unique<ChipModel>();
        m->attach(chip);
        VQ6192_INSTALL_PARA p = m->installPara(chip);
        EXPECT_EQ(VQ6192_Install_SDK(&p), 0u) << "chip " << chip;
        return m;
    }

    Sinks sinks;
    uint64_t baseline = 0;
};

// Every operation of the mix, and every reader operation, from 8 threads on 8 chips at once and with
// nothing else running: no reader thread, trace sink or other lock orders the threads, so the race
// checker sees any state two chips share without a lock.
TEST_F(Soak, OperationsOnDifferentChipsShareNothing) {
    VQ6192_PLATFORM_HOOKS quiet{};
    quiet.pfnLog = Sinks::log;
    quiet.ctx = &sinks;
    VQ6192_Platform_SetHooks(&quiet);  // no trace sink: the trace point returns before anything shared

    std::vector<std::unique_ptr<ChipModel>> models(kWorkers);
    for (uint32_t c = 0; c < kWorkers; ++c) {
        models[c] = install(c);
    }
    for (const auto &ops : {vqsoak::operations(), vqsoak::readerOperations()}) {
        for (uint16_t op = 0; op < ops.size(); ++op) {
            std::vector<std::thread> threads;
            for (uint32_t c = 0; c < kWorkers; ++c) {
                threads.emplace_back([&, c] {
                    std::vector<char> buf(vqsoak::kDiagBufSize);
                    auto rng = vqsoak::chipRng(kSeed + op, c);
                    for (uint32_t n = 0; n < 24; ++n) {
                        Step s = vqsoak::drawArgs(rng, ops, op);
                        ops[op].run(c, s.args, buf.data());
                    }
                });
            }
            for (auto &th : threads) {
                th.join();
            }
        }
    }
    EXPECT_TRUE(sinks.logs.empty()) << sinks.logs.front();
    for (uint32_t c = 0; c < kWorkers; ++c) {
        EXPECT_EQ(VQ6192_UnInstall_SDK(c), 0u);
        models[c].reset();
    }
    EXPECT_EQ(vqtest::outstandingAllocations(), baseline) << "allocations not given back";
}

// The platform log from 8 threads at once: each chip's bus arbitration refuses its first accesses, every
// refusal logs two lines and counts once, and no line is lost or torn.
TEST_F(Soak, LogLinesFromEightThreadsAllArrive) {
    constexpr uint32_t kRefusals = 40;
    constexpr uint32_t kReads = 60;
    constexpr uint32_t kAddr = 0x2C008;
    std::vector<std::unique_ptr<ChipModel>> models(kWorkers);
    for (uint32_t c = 0; c < kWorkers; ++c) {
        models[c] = install(c);
        models[c]->poke(kAddr, 0x5A5A);
        models[c]->refuseArbitration(kRefusals);
    }
    std::vector<std::thread> threads;
    std::vector<uint32_t> zeros(kWorkers, 0);
    for (uint32_t c = 0; c < kWorkers; ++c) {
        threads.emplace_back([&, c] {
            for (uint32_t n = 0; n < kReads; ++n) {
                uint32_t v = VQ6192_ReadReg(c, kAddr);
                zeros[c] += v == 0 ? 1 : 0;
                EXPECT_TRUE(v == 0 || v == 0x5A5A) << std::hex << v;
            }
        });
    }
    for (auto &th : threads) {
        th.join();
    }
    std::map<std::string, uint32_t> lines;
    for (const auto &l : sinks.logs) {
        lines[l]++;
    }
    for (uint32_t c = 0; c < kWorkers; ++c) {
        const std::string id = std::to_string(c);
        EXPECT_EQ(zeros[c], kRefusals) << "chip " << c;
        EXPECT_EQ(lines["chip " + id + " pwe3 write reg get attrb fail,addr 0x2c008,val 0x0"], kRefusals);
        EXPECT_EQ(lines["ReadRegdirect GetArbitrateFunc chip " + id +
                        " pwe3 write reg get sem fail,addr 0x2c008,val 0x0"],
                  kRefusals);
        uint32_t counters[4] = {};
        VQ6192_Get_RegFailInfo(c, counters);
        EXPECT_EQ(counters[0], kRefusals) << "chip " << c;
        EXPECT_EQ(VQ6192_UnInstall_SDK(c), 0u);
        models[c].reset();
    }
    EXPECT_EQ(sinks.logs.size(), 2u * kRefusals * kWorkers);
    EXPECT_EQ(vqtest::outstandingAllocations(), baseline) << "allocations not given back";
}

TEST_F(Soak, EightThreadsOn264ChipsMatchAOneChipReplay) {
    std::vector<std::unique_ptr<ChipModel>> models(kChips);
    for (uint32_t c = 0; c < kChips; ++c) {
        models[c] = install(c);
    }

    std::vector<std::vector<Step>> logs(kChips);
    std::vector<TraceMap> traces(kWorkers);
    std::atomic<uint32_t> workersLeft{kWorkers};
    std::atomic<uint64_t> readerCalls{0};
    std::atomic<uint64_t> readerFailures{0};
    const auto deadline = std::chrono::steady_clock::now() + kBudget;

    std::vector<std::thread> threads;
    for (uint32_t t = 0; t < kWorkers; ++t) {
        threads.emplace_back([&, t] {
            t_traces = &traces[t];
            std::vector<char> buf(vqsoak::kDiagBufSize);
            std::map<uint32_t, std::mt19937> rngs;
            for (uint32_t c = t; c < kChips; c += kWorkers) {
                rngs.emplace(c, vqsoak::chipRng(kSeed, c));
                logs[c].reserve(kOpsPerChip);
            }
            // Round robin over this thread's chips, one operation each, so that every chip is busy
            // for the whole run.
            for (uint32_t n = 0; n < kOpsPerChip && std::chrono::steady_clock::now() < deadline; ++n) {
                for (auto &[c, rng] : rngs) {
                    logs[c].push_back(vqsoak::runOne(c, rng, buf.data()));
                }
            }
            t_traces = nullptr;
            workersLeft--;
        });
    }
    for (uint32_t r = 0; r < kReaders; ++r) {
        threads.emplace_back([&, r] {
            std::mt19937 rng(kSeed + 1000 + r);
            const auto ops = vqsoak::readerOperations();
            while (workersLeft.load() != 0) {
                const uint32_t chip = rng() % kChips;
                Step s = vqsoak::draw(rng, ops);
                if (static_cast<uint32_t>(ops[s.op].run(chip, s.args, nullptr)) != 0) {
                    readerFailures++;
                }
                readerCalls++;
            }
        });
    }
    for (auto &th : threads) {
        th.join();
    }

    uint64_t total = 0;
    uint64_t failed = 0;
    for (const auto &log : logs) {
        total += log.size();
        for (const Step &s : log) {
            failed += static_cast<uint32_t>(s.seen) != 0;
        }
    }
    const uint32_t minPerChip = static_cast<uint32_t>(logs[0].size());
    std::printf("soak: %llu operations on %u chips (%llu refused), %llu reads beside them\n",
                static_cast<unsigned long long>(total), kChips, static_cast<unsigned long long>(failed),
                static_cast<unsigned long long>(readerCalls.load()));
    EXPECT_GE(minPerChip, 20u) << "too few operations within the time budget";
    EXPECT_GT(readerCalls.load(), 0u);
    EXPECT_EQ(readerFailures.load(), 0u);
    EXPECT_GT(failed, 0u) << "the mix should also hit parameter errors";
    EXPECT_LT(failed, total / 2);
    // Some PW was disabled after being enabled, so the delete handshake (and its shared poll record)
    // ran from several threads.
    EXPECT_GT(g_ulVq6192AtmPwe3EnableCnt, 0u);

    // No lock, arbitration or table time-out failed on any chip.
    for (uint32_t c = 0; c < kChips; ++c) {
        uint32_t counters[4] = {9, 9, 9, 9};
        VQ6192_Get_RegFailInfo(c, counters);
        EXPECT_EQ(counters[0] + counters[1] + counters[2] + counters[3], 0u) << "chip " << c;
    }
    EXPECT_TRUE(sinks.logs.empty()) << sinks.logs.front();
    EXPECT_EQ(sinks.strayTraces.load(), 0u) << "the readers' operations traced";

    // Each chip alone: uninstall the soaked chip, install a fresh model under the same id, play the log
    // again and compare everything the caller and the chip saw.
    std::vector<char> buf(vqsoak::kDiagBufSize);
    uint32_t mismatches = 0;
    for (uint32_t c = 0; c < kChips && mismatches < 5; ++c) {
        TraceMap replayTraces;
        t_traces = &replayTraces;
        ASSERT_EQ(VQ6192_UnInstall_SDK(c), 0u);
        models[c]->detach();
        auto fresh = install(c);
        const auto ops = vqsoak::operations();
        for (size_t i = 0; i < logs[c].size(); ++i) {
            const Step &s = logs[c][i];
            const uint64_t again = vqsoak::replay(c, s, buf.data());
            if (again != s.seen) {
                ADD_FAILURE() << "chip " << c << " step " << i << " " << ops[s.op].name << ": soak saw 0x"
                              << std::hex << s.seen << ", replay 0x" << again;
                ++mismatches;
                break;
            }
        }
        t_traces = nullptr;
        EXPECT_EQ(replayTraces[c], traces[c % kWorkers][c]) << "chip " << c;

        const auto soakRegs = models[c]->registers();
        const auto replayRegs = fresh->registers();
        if (soakRegs != replayRegs) {
            ++mismatches;
            for (const auto &[addr, v] : replayRegs) {
                auto it = soakRegs.find(addr);
                uint16_t sv = it == soakRegs.end() ? 0 : it->second;
                if (sv != v) {
                    ADD_FAILURE() << "chip " << c << " register 0x" << std::hex << addr << ": soak 0x" << sv
                                  << ", replay 0x" << v;
                    break;
                }
            }
            ADD_FAILURE() << "chip " << c << ": register files differ (" << soakRegs.size() << " vs "
                          << replayRegs.size() << " registers set)";
        }
        if (models[c]->tables().contents() != fresh->tables().contents()) {
            ++mismatches;
            ADD_FAILURE() << "chip " << c << ": table memories differ";
        }
        EXPECT_EQ(VQ6192_UnInstall_SDK(c), 0u);
        fresh->detach();
        models[c].reset();
    }
    for (uint32_t c = 0; c < kChips; ++c) {
        if (models[c] != nullptr) {  // left over after an early stop
            VQ6192_UnInstall_SDK(c);
            models[c].reset();
        }
    }
    EXPECT_EQ(vqtest::outstandingAllocations(), baseline) << "allocations not given back";
}

// ---- Per-chip locks only ---------------------------------------------------------------------------

// Arbitration hook of the chip under test: holds the bus until the test lets go.
struct Gate {
    std::mutex lock;
    std::condition_variable cv;
    uint32_t chip = UINT32_MAX;
    bool entered = false;
    bool released = false;
};
Gate g_gate;

uint32_t gatedArbitrate(uint32_t chip) {
    if (chip == g_gate.chip) {
        std::unique_lock<std::mutex> l(g_gate.lock);
        g_gate.entered = true;
        g_gate.cv.notify_all();
        g_gate.cv.wait(l, [] { return g_gate.released; });
    }
    return ChipModel::hookGetArbitrate(chip);
}

TEST_F(Soak, AChipStuckInItsArbitrationHookDoesNotHoldUpTheOthers) {
    constexpr uint32_t kChipCount = 16;
    constexpr uint32_t kStuck = 5;
    std::vector<std::unique_ptr<ChipModel>> models(kChipCount);
    for (uint32_t c = 0; c < kChipCount; ++c) {
        if (c == kStuck) {
            models[c] = std::make_unique<ChipModel>();
            models[c]->attach(c);
            VQ6192_INSTALL_PARA p = models[c]->installPara(c);
            p.pfnGetArbitrate = gatedArbitrate;
            ASSERT_EQ(VQ6192_Install_SDK(&p), 0u);
        } else {
            models[c] = install(c);
        }
    }
    g_gate.chip = kStuck;

    // The stuck chip: a table write (PPP MRU) that takes the chip lock and then waits for the bus.
    std::atomic<bool> stuckDone{false};
    std::thread stuck([&] {
        EXPECT_EQ(VQ6192_PPP_SetPppMRU(kStuck, 7, 1500), 0u);
        stuckDone = true;
    });
    {
        std::unique_lock<std::mutex> l(g_gate.lock);
        ASSERT_TRUE(g_gate.cv.wait_for(l, std::chrono::seconds(10), [] { return g_gate.entered; }))
            << "the operation never reached the arbitration hook";
    }
    const uint64_t stuckAccesses = models[kStuck]->counters().total();

    // Another thread runs the soak's mix on every other chip, configuration, tables and diagnostics.
    auto others = std::async(std::launch::async, [&] {
        std::vector<char> buf(vqsoak::kDiagBufSize);
        uint64_t ops = 0;
        for (uint32_t c = 0; c < kChipCount; ++c) {
            if (c == kStuck) {
                continue;
            }
            auto rng = vqsoak::chipRng(kSeed, c);
            for (uint32_t n = 0; n < 100; ++n, ++ops) {
                vqsoak::runOne(c, rng, buf.data());
            }
            uint32_t mru = 0;
            EXPECT_EQ(VQ6192_PPP_SetPppMRU(c, 7, 1500), 0u);
            EXPECT_EQ(VQ6192_PPP_GetPppMRU(c, 7, &mru), 0u);
            EXPECT_EQ(mru, 1500u) << "chip " << c;
        }
        return ops;
    });
    const bool finished = others.wait_for(std::chrono::seconds(60)) == std::future_status::ready;
    const bool stillStuck = !stuckDone.load();
    const uint64_t stuckAccessesMeanwhile = models[kStuck]->counters().total() - stuckAccesses;

    {
        std::lock_guard<std::mutex> l(g_gate.lock);
        g_gate.released = true;
    }
    g_gate.cv.notify_all();
    stuck.join();
    EXPECT_TRUE(finished) << "operations on other chips waited for the stuck chip";
    EXPECT_EQ(others.get(), (kChipCount - 1) * 100u);
    EXPECT_TRUE(stillStuck) << "the stuck chip's operation finished before the hook let go";
    EXPECT_EQ(stuckAccessesMeanwhile, 0u) << "the stuck chip was accessed while it had no bus";

    // Once the hook lets go the stuck chip's write goes through.
    uint32_t mru = 0;
    EXPECT_EQ(VQ6192_PPP_GetPppMRU(kStuck, 7, &mru), 0u);
    EXPECT_EQ(mru, 1500u);

    g_gate.chip = UINT32_MAX;
    g_gate.entered = false;
    g_gate.released = false;
    for (uint32_t c = 0; c < kChipCount; ++c) {
        EXPECT_EQ(VQ6192_UnInstall_SDK(c), 0u);
        models[c].reset();
    }
    EXPECT_EQ(vqtest::outstandingAllocations(), baseline) << "allocations not given back";
}

}  // namespace
