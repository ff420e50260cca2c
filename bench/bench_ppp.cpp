// The PPP module on the chip model: the module initialisation, and creating 512 PPP channels and 256
// bundles (two members each) then deleting them all. Real time per pass, table accesses per pass, and
// the chip waits the operations asked for (virtual clock).
#include <benchmark/benchmark.h>

#include "bench_support.h"

namespace {

using vqbench::kChip;
using vqbench::ModelChip;

constexpr uint32_t kChannels = 512;
constexpr uint32_t kBundles = 256;
constexpr uint32_t kTributaries = 336;

uint64_t tableAccesses(vq6192::sim::ChipModel &m) {
    uint64_t n = 0;
    for (uint32_t block : vq6192::sim::TableEngine::blocks()) {
        n += m.tables().readsExecuted(block) + m.tables().writesExecuted(block);
    }
    return n;
}

void InitPppModule(benchmark::State &state) {
    ModelChip chip;
    VQ6192_Platform_SetVirtualClock(1);
    uint64_t accesses = 0;
    for (auto _ : state) {
        const uint64_t before = tableAccesses(chip.model);
        benchmark::DoNotOptimize(VQ6192_PPP_InitPppModule(kChip, 1));
        accesses += tableAccesses(chip.model) - before;
    }
    state.counters["table accesses"] =
        static_cast<double>(accesses) / static_cast<double>(state.iterations());
    VQ6192_Platform_SetVirtualClock(0);
}

void CreateAndDeleteAll(benchmark::State &state) {
    ModelChip chip;
    VQ6192_Platform_SetVirtualClock(1);
    VQ6192_PPP_InitPppModule(kChip, 1);
    uint64_t accesses = 0;
    VQ6192_Platform_ResetVirtualTime();
    for (auto _ : state) {
        const uint64_t before = tableAccesses(chip.model);
        for (uint32_t ch = 0; ch < kChannels; ++ch) {
            // Channels 336 and up share an E1 with channel ch - 336: timeslots 1..15, then 16..31.
            const VQ6192_PPP_CHAN_S c{ch % kTributaries, ch, ch < kTributaries ? 0x0000FFFEu : 0xFFFF0000u,
                                      3};
            benchmark::DoNotOptimize(VQ6192_PPP_CreatePppChan(kChip, &c));
        }
        for (uint32_t b = 0; b < kBundles; ++b) {
            VQ6192_PPP_AddPppChanToMp(kChip, 2 * b, b, 2);
            VQ6192_PPP_AddPppChanToMp(kChip, 2 * b + 1, b, 2);
            VQ6192_PPP_SetMpBundleEnable(kChip, b, 1, 2);
        }
        for (uint32_t b = 0; b < kBundles; ++b) {
            VQ6192_PPP_RemovePppChanFromMp(kChip, 2 * b, b, 2);
            VQ6192_PPP_RemovePppChanFromMp(kChip, 2 * b + 1, b, 2);
            VQ6192_PPP_DelMpBundle(kChip, b);
        }
        for (uint32_t ch = 0; ch < kChannels; ++ch) {
            VQ6192_PPP_DelPppChan(kChip, ch, static_cast<uint16_t>(ch % kTributaries),
                                  ch < kTributaries ? 0x0000FFFEu : 0xFFFF0000u);
        }
        accesses += tableAccesses(chip.model) - before;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["table accesses"] = static_cast<double>(accesses) / n;
    state.counters["chip wait s"] = static_cast<double>(VQ6192_Platform_GetVirtualTimeUs()) / 1e6 / n;
    VQ6192_Platform_SetVirtualClock(0);
}

BENCHMARK(InitPppModule)->Unit(benchmark::kMillisecond);
BENCHMARK(CreateAndDeleteAll)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
