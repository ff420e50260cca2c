// Chip bring-up on the chip model: one chip (real time and CPU, with the waits the bring-up asks for
// shown on the virtual clock), and 264 chips installed and brought up from 1 or 8 threads (wall time).
#include <benchmark/benchmark.h>

#include <memory>
#include <thread>
#include <vector>

#include "bench_support.h"

namespace {

using vqbench::kChip;
using vqbench::ModelChip;

void BringUpOneChip(benchmark::State &state) {
    ModelChip chip;
    VQ6192_Platform_SetVirtualClock(1);
    uint64_t failures = 0;
    uint64_t waitedUs = 0;
    uint64_t accesses = 0;
    for (auto _ : state) {
        VQ6192_Platform_ResetVirtualTime();
        chip.model.resetCounters();
        failures += VQ6192_Base_Initialize(kChip, 1, 0, 0, 0, nullptr) != 0;
        waitedUs = VQ6192_Platform_GetVirtualTimeUs();
        accesses = chip.model.counters().total();
    }
    VQ6192_Platform_SetVirtualClock(0);
    state.counters["virtual_wait_ms"] = static_cast<double>(waitedUs) / 1000.0;
    state.counters["bus_accesses"] = static_cast<double>(accesses);
    state.counters["failures"] = static_cast<double>(failures);
}

// Chips 0..263 on their own models; thread t installs and brings up chips t, t + T, t + 2T, ...
void BringUp264Chips(benchmark::State &state) {
    const auto threads = static_cast<uint32_t>(state.range(0));
    VQ6192_Platform_SetVirtualClock(1);
    std::vector<std::unique_ptr<vq6192::sim::ChipModel>> models(VQ6192_CHIP_NUM);
    uint64_t failures = 0;
    for (auto _ : state) {
        state.PauseTiming();
        for (uint32_t c = 0; c < VQ6192_CHIP_NUM; ++c) {
            models[c] = std::make_unique<vq6192::sim::ChipModel>();
            models[c]->attach(c);
        }
        std::vector<uint32_t> failed(threads, 0);
        state.ResumeTiming();

        std::vector<std::thread> pool;
        for (uint32_t t = 0; t < threads; ++t) {
            pool.emplace_back([&, t] {
                for (uint32_t c = t; c < VQ6192_CHIP_NUM; c += threads) {
                    VQ6192_INSTALL_PARA p = models[c]->installPara(c);
                    failed[t] += VQ6192_Install_SDK(&p) != 0;
                    failed[t] += VQ6192_Base_Initialize(c, 1, 0, 0, 0, nullptr) != 0;
                }
            });
        }
        for (auto &th : pool) {
            th.join();
        }

        state.PauseTiming();
        for (uint32_t c = 0; c < VQ6192_CHIP_NUM; ++c) {
            VQ6192_UnInstall_SDK(c);
            models[c].reset();
        }
        for (uint32_t f : failed) {
            failures += f;
        }
        state.ResumeTiming();
    }
    VQ6192_Platform_SetVirtualClock(0);
    state.counters["failures"] = static_cast<double>(failures);
}

}  // namespace

BENCHMARK(BringUpOneChip)->Unit(benchmark::kMillisecond);
BENCHMARK(BringUp264Chips)->Arg(1)->Arg(8)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

BENCHMARK_MAIN();
