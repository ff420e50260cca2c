// The reverse label search: finding a channel's in-label by walking the whole label map (8192
// entries) on the chip model through the host-function path. Time per search, per entry looked up,
// and bus accesses per entry.
#include <benchmark/benchmark.h>

#include "bench_support.h"

namespace {

using vqbench::kChip;
using vqbench::ModelChip;

constexpr uint32_t kEntries = 8192;

// A channel that is not mapped: the search reads every entry of the table.
void ReverseLabelSearchWholeTable(benchmark::State &state) {
    ModelChip chip;
    uint64_t accesses = 0;
    for (auto _ : state) {
        const uint64_t start = chip.model.counters().total();
        uint32_t inLabel = 0, sel = 0, found = 0;
        benchmark::DoNotOptimize(VQ6192_ETH_GetAtmCesEgMpls2Chnl(kChip, 17, 3, &inLabel, &sel, &found));
        accesses += chip.model.counters().total() - start;
    }
    const double lookups = static_cast<double>(state.iterations()) * kEntries;
    state.counters["entry/s"] = benchmark::Counter(lookups, benchmark::Counter::kIsRate);
    state.counters["ns/entry"] =
        benchmark::Counter(lookups, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["bus/entry"] = static_cast<double>(accesses) / lookups;
}

// The channel's label sits in the last entry of the UDP half.
void ReverseLabelSearchLastEntry(benchmark::State &state) {
    ModelChip chip;
    VQ6192_ETH_SetEgMplsBase(kChip, 1, 1000);
    VQ6192_ETH_SetAtmCesEgMpls2Chnl(kChip, 17, 3, 1000 + 4095, 1, 1);
    for (auto _ : state) {
        uint32_t inLabel = 0, sel = 0, found = 0;
        benchmark::DoNotOptimize(VQ6192_ETH_GetAtmCesEgMpls2Chnl(kChip, 17, 3, &inLabel, &sel, &found));
    }
}

BENCHMARK(ReverseLabelSearchWholeTable)->Unit(benchmark::kMillisecond);
BENCHMARK(ReverseLabelSearchLastEntry)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
