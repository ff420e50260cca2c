// CES module start and a channel's lifecycle on the chip model: real time, bus and table accesses per
// operation, and the waits the operations ask of the platform clock.
#include <benchmark/benchmark.h>

#include "bench_support.h"

namespace {

using vqbench::kChip;
using vqbench::ModelChip;

constexpr uint32_t kCesBlock = 0xa000;

uint64_t cesTableCommands(vq6192::sim::ChipModel &m) {
    return m.tables().readsExecuted(kCesBlock) + m.tables().writesExecuted(kCesBlock);
}

void InitCesModule(benchmark::State &state) {
    ModelChip chip;
    VQ6192_Platform_SetVirtualClock(1);
    chip.model.resetCounters();
    const uint64_t tables = cesTableCommands(chip.model);
    for (auto _ : state) {
        benchmark::DoNotOptimize(VQ6192_CES_InitCesModule(kChip, 1));
    }
    const auto n = static_cast<double>(state.iterations());
    state.counters["bus/init"] = static_cast<double>(chip.model.counters().total()) / n;
    state.counters["tables/init"] = static_cast<double>(cesTableCommands(chip.model) - tables) / n;
    VQ6192_Platform_SetVirtualClock(0);
}

// Create a structured channel on an E1 (timeslots 1..31), reset it while enabled, delete it.
void ChannelLifecycle(benchmark::State &state) {
    ModelChip chip;
    VQ6192_Platform_SetVirtualClock(1);
    VQ6192_Platform_ResetVirtualTime();
    chip.model.resetCounters();
    const VQ6192_CES_CHAN_S d = {5, 5, 0xFFFFFFFE, 0};
    for (auto _ : state) {
        benchmark::DoNotOptimize(VQ6192_CES_CreateCesChan(kChip, &d));
        benchmark::DoNotOptimize(VQ6192_CES_SetCesChanEnable(kChip, 5, 1));
        benchmark::DoNotOptimize(VQ6192_CES_ResetCesChan(kChip, 5));
        benchmark::DoNotOptimize(VQ6192_CES_DelCesChan(kChip, 5, 5, 0xFFFFFFFE));
    }
    const auto n = static_cast<double>(state.iterations());
    state.counters["bus/cycle"] = static_cast<double>(chip.model.counters().total()) / n;
    state.counters["virtual ms/cycle"] = static_cast<double>(VQ6192_Platform_GetVirtualTimeUs()) / 1000.0 / n;
    VQ6192_Platform_SetVirtualClock(0);
}

}  // namespace

BENCHMARK(InitCesModule)->Unit(benchmark::kMillisecond);
BENCHMARK(ChannelLifecycle)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
